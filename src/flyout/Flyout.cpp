#include <nvo/Flyout.h>

#include "flyout/FlyoutInnerWidget.h"
#include "flyout/FlyoutPlacement.h"
#include "theme/Ancestry.h"
#include "theme/StyleSupport.h"

#include <nvo/Button.h>

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace NVO {

namespace {

constexpr int shadowRoom = 10; // what the box leaves free to the right and below
constexpr int closeButtonInset = 23;

/** Of the screen at \a point or, if it lies on none, of that of \a target; empty if there is no screen. */
QRect availableGeometry(const QPoint &point, const QWidget *target)
{
    const QScreen *screen = QGuiApplication::screenAt(point);
    if (!screen && target)
        screen = target->screen();
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

FlyoutPlacement::Box boxOf(const QWidget &widget)
{
    const QMargins margins = widget.contentsMargins();
    FlyoutPlacement::Box box;
    box.preferred = widget.sizeHint();
    box.size = box.preferred - QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
    box.smallest = widget.minimumSizeHint();
    if (widget.hasHeightForWidth()) {
        box.preferred.setHeight(widget.heightForWidth(box.preferred.width()));
        if (const QLayout *layout = widget.layout())
            box.smallest.setHeight(layout->minimumHeightForWidth(box.preferred.width()));
    }
    return box;
}

class AccessibleFlyout : public QAccessibleWidget
{
public:
    explicit AccessibleFlyout(Flyout *flyout)
        : QAccessibleWidget(flyout)
    {}

    QAccessible::Role role() const override
    {
        if (static_cast<const Flyout *>(object())->flyoutStyle() == Flyout::Error)
            return QAccessible::AlertMessage;
        return widget()->windowType() == Qt::ToolTip ? QAccessible::ToolTip : QAccessible::Dialog;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *flyout = StyleSupport::exactly<Flyout>(className, object);
    return flyout ? new AccessibleFlyout(flyout) : nullptr;
}

} // namespace

Flyout::Flyout(QWidget *target, const QPoint &point, FlyoutFlags flags, QWidget *parent)
    : Flyout(target, QRect(point, point), flags, parent)
{}

Flyout::Flyout(QWidget *target, FlyoutFlags flags, QWidget *parent)
    : Flyout(target, QRect(), flags, parent)
{}

Flyout::Flyout(QWidget *target, const QRect &rect, FlyoutFlags flags, QWidget *parent)
    : QWidget(parent)
    , m_targetRect(rect)
    , m_flags(flags)
{
    QAccessible::installFactory(createInterface);
    setFocusPolicy(Qt::NoFocus);
    setContentsMargins(0, 0, shadowRoom, shadowRoom);
    setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint
                   | (flags.testFlag(Sticky) ? Qt::ToolTip : Qt::Popup));
    initStyleSheet(); // behind the flags, which make Qt parse a sheet
    setAttribute(Qt::WA_TranslucentBackground);

    m_innerWidget = new FlyoutInnerWidget(this);

    m_closeButton = new Button(this);
    m_closeButton->setButtonStyle(Button::FlyoutClose);
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    m_closeButton->setAccessibleName(QStringLiteral("Schließen"));
    m_closeButton->setVisible(flags.testFlag(CloseButton));
    connect(m_closeButton, &QAbstractButton::clicked, this, &QWidget::hide);

    setTargetWidget(target);
}

Flyout::~Flyout()
{
    // A target that lies in the flyout itself dies after this, when there is nothing left to hide.
    setTargetWidget(nullptr);
}

void Flyout::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementFlyout, StyleSupport::enumKey(m_style));
}

QWidget *Flyout::content() const
{
    return m_innerWidget->isAncestorOf(m_contentWidget) ? m_contentWidget.data() : nullptr;
}

void Flyout::setContent(QWidget *content)
{
    QWidget *old = Flyout::content();
    if (content && (content == old || Ancestry::contains(content, m_innerWidget)))
        return;
    m_contentWidget = content;
    if (content)
        m_innerWidget->layout()->addWidget(content);
    delete old;
}

void Flyout::setPointerPosition(PointerPositions position)
{
    m_requestedPosition = position;
    if (isVisible())
        reposition(false);
}

void Flyout::setFlyoutStyle(FlyoutStyle style)
{
    if (m_style == style)
        return;
    m_style = style;
    initStyleSheet();
    m_innerWidget->update();
}

void Flyout::setDeleteOnClose(bool on)
{
    setAttribute(Qt::WA_DeleteOnClose, on);
}

bool Flyout::deleteOnClose() const
{
    return testAttribute(Qt::WA_DeleteOnClose);
}

void Flyout::setTargetWidget(QWidget *target)
{
    if (m_target == target)
        return;
    clearEventFilters(0);
    if (m_target)
        disconnect(m_target, &QObject::destroyed, this, &Flyout::targetDestroyed);
    m_target = target;
    if (!target)
        return;
    connect(target, &QObject::destroyed, this, &Flyout::targetDestroyed);
    addEventFilters(target);
}

/** Listens to \a first and all of its ancestors. */
void Flyout::addEventFilters(QObject *first)
{
    for (QObject *object = first; object; object = object->parent()) {
        m_filteredObjects.append(object);
        object->installEventFilter(this);
    }
}

/** Listens no longer to what stands in the chain from the index \a from on. */
void Flyout::clearEventFilters(int from)
{
    for (int i = from; i < m_filteredObjects.size(); ++i) {
        if (m_filteredObjects[i])
            m_filteredObjects[i]->removeEventFilter(this);
    }
    m_filteredObjects.resize(from);
}

void Flyout::targetDestroyed()
{
    clearEventFilters(0);
    m_target = nullptr;
    if (isVisible())
        setVisible(false);
}

bool Flyout::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
        targetMoved();
        break;
    case QEvent::Hide:
        setVisible(false);
        break;
    case QEvent::ParentChange:
        chainChanged(object);
        break;
    default:
        break;
    }
    return false;
}

void Flyout::targetMoved()
{
    if (!isVisible() || !m_target)
        return;
    if (m_target->visibleRegion().boundingRect().isEmpty())
        setVisible(false);
    else
        reposition(true);
}

void Flyout::chainChanged(QObject *object)
{
    const int index = m_filteredObjects.indexOf(object);
    if (index < 0)
        return;
    clearEventFilters(index + 1);
    addEventFilters(object->parent());
}

void Flyout::setVisible(bool visible)
{
    if (!visible) {
        QWidget::setVisible(false);
        return;
    }
    const QPointer<Flyout> alive(this);
    reposition(false);
    standOnTargetWindow();
    QWidget::setVisible(true);
    if (alive)
        reposition(false); // what is shown has its final size
}

/**
 * Makes a flyout without a parent belong to the window of its target. Where clients cannot place a window
 * freely, a popup needs such a window, and without it a modal dialog would block a flyout on its own fields.
 */
void Flyout::standOnTargetWindow()
{
    if (parentWidget() || !m_target || Ancestry::contains(this, m_target))
        return;
    create();
    QWindow *targetWindow = m_target->window()->windowHandle();
    // Two flyouts on each other's contents must not make a circle.
    if (targetWindow && !windowHandle()->isAncestorOf(targetWindow))
        windowHandle()->setTransientParent(targetWindow);
}

bool Flyout::event(QEvent *event)
{
    const QPointer<Flyout> alive(this);
    const bool result = QWidget::event(event);
    if (!alive)
        return result;
    switch (event->type()) {
    case QEvent::LayoutRequest:
        reposition(true);
        break;
    case QEvent::UpdateRequest:
        // The repainting after a placement must not undo it: a flyout that flipped stays so while it moves.
        if (!std::exchange(m_repaintPending, false))
            reposition(false);
        break;
    case QEvent::ApplicationFontChange:
        initStyleSheet();
        break;
    case QEvent::LayoutDirectionChange:
        placeCloseButton();
        break;
    default:
        break;
    }
    return result;
}

/** What the pointer is to touch; null for nothing. */
QRect Flyout::currentTarget() const
{
    QRect rect = m_targetRect;
    if (rect.isNull() && m_target && !Ancestry::contains(this, m_target)) { // it would run after itself
        rect = m_target->rect();
        rect.moveCenter(m_target->mapToGlobal(rect.center()));
    }
    return rect;
}

void Flyout::reposition(bool fromEffective)
{
    const QRect target = currentTarget();
    const QRect available = availableGeometry(target.center(), m_target);
    if (target.isNull() || available.isEmpty() || m_placing)
        return;
    // Two flyouts on each other's contents hear of each other's placements.
    const QScopedValueRollback<bool> placing(m_placing, true);

    const FlyoutPlacement::Placement found = FlyoutPlacement::best(
        fromEffective ? m_effectivePosition : m_requestedPosition, target, boxOf(*m_innerWidget), available);
    const QRect window =
        FlyoutPlacement::windowAround(found.rect, m_innerWidget->contentsMargins(), available);

    const QSize oldSize = size();
    const bool pointerMoved = found.position != m_effectivePosition || found.offset != m_offset;
    m_effectivePosition = found.position;
    m_offset = found.offset;

    move(window.topLeft());
    resize(window.size());
    if (pointerMoved || size() != oldSize) { // else the picture, which has a costly shadow, is the same
        m_repaintPending = isVisible();
        m_innerWidget->update();
    }
}

void Flyout::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_innerWidget->resize(size() - QSize(shadowRoom, shadowRoom));
    placeCloseButton();
}

void Flyout::placeCloseButton()
{
    if (!m_closeButton)
        return; // the direction of a window may change while it is made
    const int fromEdge = shadowRoom + closeButtonInset + m_closeButton->width();
    m_closeButton->move(isRightToLeft() ? closeButtonInset : width() - fromEdge, closeButtonInset);
}

void Flyout::paintEvent(QPaintEvent *) {}

void Flyout::closeEvent(QCloseEvent *event)
{
    if (m_flags.testFlag(Sticky))
        event->ignore();
    else
        QWidget::closeEvent(event);
}

void Flyout::mousePressEvent(QMouseEvent *event)
{
    if (m_flags.testFlag(Sticky))
        return;
    event->accept();
    const QPoint pos = event->globalPos();
    const QPointer<Flyout> alive(this);
    while (QApplication::activePopupWidget() && QApplication::activePopupWidget() != this) {
        const QPointer<QWidget> popup = QApplication::activePopupWidget();
        popup->close();
        if (popup && popup == QApplication::activePopupWidget())
            popup->hide();
        if (!alive || (popup && popup == QApplication::activePopupWidget()))
            return;
    }
    if (!m_innerWidget->contentsRect().contains(m_innerWidget->mapFromGlobal(pos)))
        close();
}

int Flyout::xMarginFrom(PointerPositions position, const QSize &size, int offset)
{
    return FlyoutPlacement::pointerMargin(position, size.width(), offset);
}

int Flyout::yMarginFrom(PointerPositions position, const QSize &size, int offset)
{
    return FlyoutPlacement::pointerMargin(position, size.height(), offset);
}

} // namespace NVO
