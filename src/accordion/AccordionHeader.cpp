#include "accordion/AccordionHeader.h"

#include "accordion/AccordionSlot.h"
#include "buttons/AccessibleButton.h"
#include "theme/StyleSupport.h"

#include <nvo/AccordionSimpleHeader.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocumentFragment>

namespace NVO {

namespace {

QString plainText(const QString &html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText();
}

class AccessibleHeader : public AccessibleButton
{
public:
    using AccessibleButton::AccessibleButton;

    QAccessible::State state() const override
    {
        const auto *part = qobject_cast<AccordionPart *>(button()->parentWidget());
        const bool isExpanded = part && part->state() == AccordionState::Expanded;
        QAccessible::State state = AccessibleButton::state();
        state.expandable = true;
        state.expanded = isExpanded;
        state.collapsed = !isExpanded;
        return state;
    }

    QString text(QAccessible::Text type) const override
    {
        QString own = AccessibleButton::text(type);
        QWidget *content = static_cast<AccordionHeader *>(button())->headerWidget();
        if (!own.isEmpty() || !content || (type != QAccessible::Name && type != QAccessible::Description))
            return own;
        if (const auto *header = qobject_cast<AccordionSimpleHeader *>(content))
            return plainText(type == QAccessible::Name ? header->leftText() : header->rightText());
        const QAccessibleInterface *described = QAccessible::queryAccessibleInterface(content);
        return described ? described->text(type) : own;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *header = StyleSupport::exactly<AccordionHeader>(className, object);
    return header ? new AccessibleHeader(header) : nullptr;
}

} // namespace

AccordionHeader::AccordionHeader(AccordionPart *part)
    : QPushButton(part)
{
    QAccessible::installFactory(createInterface);
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    setAttribute(Qt::WA_LayoutUsesWidgetRect);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setAutoDefault(true); // Return opens it, and not only in a dialog
}

void AccordionHeader::setHeader(QWidget *widget)
{
    AccordionSlot::exchange(m_headerWidget, widget, this);
}

QSize AccordionHeader::sizeHint() const
{
    return QWidget::sizeHint(); // NOLINT(bugprone-parent-virtual-call): its layout decides
}

QSize AccordionHeader::minimumSizeHint() const
{
    return QWidget::minimumSizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

bool AccordionHeader::hasHeightForWidth() const
{
    return QWidget::hasHeightForWidth();
}

int AccordionHeader::heightForWidth(int width) const
{
    return QWidget::heightForWidth(width);
}

bool AccordionHeader::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool handled = QPushButton::event(event);
    // Last, because whoever hears of the change may delete the header.
    if (type == QEvent::FocusIn || type == QEvent::FocusOut || type == QEvent::Enter || type == QEvent::Leave)
        updateStyleState();
    return handled;
}

/** A push button is not told of a mouse over a child, and would not look hovered there. */
void AccordionHeader::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.state.setFlag(QStyle::State_MouseOver, isEnabled() && underMouse());
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

void AccordionHeader::updateStyleState()
{
    QFlags<AccordionHeaderStyleState> state;
    state.setFlag(Pressed, isDown());
    state.setFlag(Hovered, underMouse());
    state.setFlag(Focused, hasFocus());
    if (state == m_styleState)
        return;
    m_styleState = state;
    Q_EMIT styleStateChanged();
}

} // namespace NVO
