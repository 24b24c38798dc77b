#include <nvo/OverviewButtonBase.h>

#include "overview/OverviewAccessible.h"
#include "theme/StyleSupport.h"

#include <nvo/GraphicsEffect.h>

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace NVO {

OverviewButtonBase::OverviewButtonBase(QWidget *parent)
    : QPushButton(parent)
    , m_shadowEffect(createDefaultShadowEffectPixels())
{
    OverviewAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setGraphicsEffect(m_shadowEffect);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    connect(this, &QAbstractButton::pressed, this, &OverviewButtonBase::updateStyleState);
    connect(this, &QAbstractButton::released, this, &OverviewButtonBase::updateStyleState);
}

void OverviewButtonBase::setOverviewButtonStyle(Style style)
{
    if (m_overviewButtonStyle == style)
        return;
    m_overviewButtonStyle = style;
    initStyleSheet();
}

void OverviewButtonBase::setBorderStyle(BorderStyles borders)
{
    if (m_borderStyle == borders)
        return;
    m_borderStyle = borders;
    initStyleSheet();
}

void OverviewButtonBase::setRoundCornerStyle(RoundCornerStyles corners)
{
    if (m_roundCornerStyle == corners)
        return;
    m_roundCornerStyle = corners;
    initStyleSheet();
}

void OverviewButtonBase::setPartialDisabled(bool disabled)
{
    if (m_partialDisabled == disabled)
        return;
    m_partialDisabled = disabled;
    setFocusPolicy(disabled ? Qt::NoFocus : Qt::StrongFocus);
    setCursor(disabled ? Qt::ArrowCursor : Qt::PointingHandCursor);
    initStyleSheet();
    const QPointer<OverviewButtonBase> alive(this);
    if (disabled)
        passFocusOn();
    if (alive)
        updateStyleState();
}

/** Nobody would see where the focus is. */
void OverviewButtonBase::passFocusOn()
{
    if (window()->focusWidget() != this)
        return;
    const QPointer<OverviewButtonBase> alive(this);
    const bool passed = focusNextChild() && alive && window()->focusWidget() != this;
    if (!passed && alive)
        clearFocus();
}

void OverviewButtonBase::setShadowEnabled(bool enabled)
{
    m_shadowEnabled = enabled;
    updateShadow();
}

void OverviewButtonBase::setHandleCursorKeys(bool handle)
{
    m_handleCursorKeys = handle;
}

QSize OverviewButtonBase::sizeHint() const
{
    return QWidget::sizeHint(); // NOLINT(bugprone-parent-virtual-call): a push button counts its text
}

QSize OverviewButtonBase::minimumSizeHint() const
{
    return QWidget::minimumSizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

void OverviewButtonBase::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_overviewButtonStyle));
    setProperty("WithoutLeftBorder", !m_borderStyle.testFlag(BorderStyle::Left));
    setProperty("WithoutRightBorder", !m_borderStyle.testFlag(BorderStyle::Right));
    setProperty("WithoutTopBorder", !m_borderStyle.testFlag(BorderStyle::Top));
    setProperty("WithoutBottomBorder", !m_borderStyle.testFlag(BorderStyle::Bottom));
    setProperty("TopLeftRound", m_roundCornerStyle.testFlag(RoundCornerStyle::TopLeft));
    setProperty("TopRightRound", m_roundCornerStyle.testFlag(RoundCornerStyle::TopRight));
    setProperty("BottomLeftRound", m_roundCornerStyle.testFlag(RoundCornerStyle::BottomLeft));
    setProperty("BottomRightRound", m_roundCornerStyle.testFlag(RoundCornerStyle::BottomRight));
    setProperty("partialDisabled", m_partialDisabled);
}

bool OverviewButtonBase::isReportedKey(const QKeyEvent &event) const
{
    if (!m_handleCursorKeys)
        return false;
    const int key = event.key();
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

void OverviewButtonBase::keyPressEvent(QKeyEvent *event)
{
    if (isReportedKey(*event))
        Q_EMIT keyPressed(event->key());
    else
        QPushButton::keyPressEvent(event);
}

void OverviewButtonBase::keyReleaseEvent(QKeyEvent *event)
{
    if (!isReportedKey(*event))
        QPushButton::keyReleaseEvent(event);
}

void OverviewButtonBase::focusInEvent(QFocusEvent *event)
{
    QPushButton::focusInEvent(event);
    updateStyleState();
}

void OverviewButtonBase::focusOutEvent(QFocusEvent *event)
{
    const QPointer<OverviewButtonBase> alive(this);
    QPushButton::focusOutEvent(event); // lets go of a key that is held down
    if (alive)
        updateStyleState();
}

void OverviewButtonBase::enterEvent(QEvent *event)
{
    QPushButton::enterEvent(event);
    m_hovered = true;
    updateStyleState();
}

void OverviewButtonBase::leaveEvent(QEvent *event)
{
    m_hovered = false;
    const QPointer<OverviewButtonBase> alive(this);
    updateStyleState();
    if (alive)
        QPushButton::leaveEvent(event);
}

void OverviewButtonBase::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    // A push button hears nothing of a mouse that moves over what it holds, and then shows no hover.
    option.state.setFlag(QStyle::State_MouseOver, underMouse());
    option.rect += openEdges();
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

/**
 * What a tile is painted larger at its open sides, so that it fills the last row of pixels of the device
 * there, which at ratios such as 1.5 is only a part of its own.
 */
QMargins OverviewButtonBase::openEdges() const
{
    const auto edge = [this](BorderStyle side) { return m_borderStyle.testFlag(side) ? 0 : 1; };
    return {edge(BorderStyle::Left), edge(BorderStyle::Top), edge(BorderStyle::Right),
            edge(BorderStyle::Bottom)};
}

OverviewButtonBase::StyleState OverviewButtonBase::currentStyleState() const
{
    if (m_partialDisabled)
        return StyleStateNormal;
    if (isDown())
        return StyleStatePressed;
    if (hasFocus())
        return StyleStateFocus;
    return m_hovered ? StyleStateHover : StyleStateNormal;
}

void OverviewButtonBase::updateShadow()
{
    if (m_shadowEffect)
        m_shadowEffect->setEnabled(m_shadowEnabled && !isDown());
}

void OverviewButtonBase::updateStyleState()
{
    const StyleState state = currentStyleState();
    if (!m_partialDisabled)
        updateShadow();
    if (m_styleState == state)
        return;
    m_styleState = state;
    Q_EMIT styleStateChanged();
}

} // namespace NVO
