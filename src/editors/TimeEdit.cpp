#include <nvo/TimeEdit.h>

namespace NVO {

TimeEdit::TimeEdit(QWidget *parent)
    : BaseEdit(ElementTimeEdit, parent)
{}

} // namespace NVO
