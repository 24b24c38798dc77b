#include <nvo/BaseEdit.h>

#include "theme/FieldShadow.h"
#include "theme/StyleSupport.h"

#include <QEvent>

namespace NVO {

namespace {

constexpr int fieldHeight = 25;

} // namespace

BaseEdit::BaseEdit(Element element, QWidget *parent)
    : QLineEdit(parent)
    , m_element(element)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    initStyleSheet();
    installFieldShadow(this);
}

void BaseEdit::setLineEditStyle(LineEditStyle style)
{
    if (m_lineEditStyle == style)
        return;
    m_lineEditStyle = style;
    initStyleSheet();
}

QSize BaseEdit::sizeHint() const
{
    return QLineEdit::sizeHint().expandedTo(QSize(0, fieldHeight));
}

bool BaseEdit::event(QEvent *event)
{
    const bool result = QLineEdit::event(event);
    if (event->type() == QEvent::Polish) {
        // The sheet came without this event, in whose answer Qt looks for the sign that hides a password.
        QEvent styleChange(QEvent::StyleChange);
        changeEvent(&styleChange);
    }
    return result;
}

void BaseEdit::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_lineEditStyle));
    StyleSupport::applySheet(this, m_element);
}

} // namespace NVO
