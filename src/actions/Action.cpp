#include <nvo/Action.h>

namespace NVO {

Action::Action(QObject *parent)
    : QAction(parent)
{}

Action::Action(const QString &text, QObject *parent)
    : QAction(text, parent)
{}

Action::Action(const QIcon &icon, const QString &text, QObject *parent)
    : QAction(icon, text, parent)
{}

} // namespace NVO
