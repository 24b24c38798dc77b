#include "pages/ForcedState.h"

#include <nvo/AbstractButton.h>
#include <nvo/AbstractToggle.h>
#include <nvo/Button.h>
#include <nvo/OverviewButtonBase.h>

#include <QApplication>
#include <QEnterEvent>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QTimer>

namespace {

/** For buttons that know the mouse better than being down; nobody hears of it, so no menu opens. */
void pressByMouse(QAbstractButton *button)
{
    const QSignalBlocker blocker(button);
    const QPointF centre = QRectF(button->rect()).center();
    QMouseEvent pressEvent(QEvent::MouseButtonPress, centre, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(button, &pressEvent);
}

} // namespace

void ForcedState::apply(QWidget *widget, State state)
{
    if (state == Disabled)
        widget->setEnabled(false);
    else if (state != Normal)
        new ForcedState(widget, state);
}

QString ForcedState::title(State state)
{
    switch (state) {
    case Hover:
        return QStringLiteral("Überfahren");
    case Pressed:
        return QStringLiteral("Gedrückt");
    case Focus:
        return QStringLiteral("Fokus");
    case Disabled:
        return QStringLiteral("Deaktiviert");
    default:
        return QStringLiteral("Normal");
    }
}

ForcedState::ForcedState(QWidget *widget, State state)
    : QObject(widget)
    , m_widget(widget)
    , m_state(state)
{
    // Without events of the mouse nothing takes back what is set here.
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->installEventFilter(this);
    if (state == Hover || state == Pressed)
        enter();
    if (state == Pressed)
        press();
    if (state == Focus)
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget *, QWidget *now) { followFocus(now); });
    hold();
}

/** Lets the mouse come in and never leave. Push buttons look at where it is, so they have to have a size. */
void ForcedState::enter()
{
    m_widget->setMouseTracking(true);
    const QPointF centre = QRectF(m_widget->rect()).center();
    QEnterEvent enterEvent(centre, centre, m_widget->mapToGlobal(centre.toPoint()));
    QApplication::sendEvent(m_widget, &enterEvent);
    QHoverEvent hoverEvent(QEvent::HoverEnter, centre, QPointF(-1, -1));
    QApplication::sendEvent(m_widget, &hoverEvent);
    QMouseEvent moveEvent(QEvent::MouseMove, centre, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_widget, &moveEvent);
}

void ForcedState::press()
{
    auto *button = qobject_cast<QAbstractButton *>(m_widget);
    if (!button)
        return;
    if (qobject_cast<NVO::AbstractButton *>(button)) {
        pressByMouse(button);
        return;
    }
    button->setDown(true);
    if (auto *houseButton = qobject_cast<NVO::Button *>(button))
        houseButton->setShadowEnabled(true); // lets the shadow follow the state
    if (qobject_cast<NVO::OverviewButtonBase *>(button))
        enter(); // lets all of its looks follow the state
}

void ForcedState::hold()
{
    m_widget->setFocusPolicy(Qt::NoFocus);
    if (m_state == Focus)
        followFocus(QApplication::focusWidget());
}

/** A widget looks focused if the one that stands in for it has the focus. */
void ForcedState::followFocus(QWidget *focusWidget)
{
    // What stands in for this widget itself, like the field of a spin box, cannot be stood in for by it.
    const bool isOwn = focusWidget && focusWidget->focusProxy() == m_widget;
    m_widget->setFocusProxy(isOwn ? nullptr : focusWidget);
    m_widget->update();
    if (qobject_cast<NVO::OverviewButtonBase *>(m_widget) || qobject_cast<NVO::AbstractToggle *>(m_widget)) {
        QEvent leaveEvent(QEvent::Leave); // tiles and toggles tell their parts when they look at their state
        QApplication::sendEvent(m_widget, &leaveEvent);
    }
}

bool ForcedState::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Show && (m_state == Hover || m_state == Pressed))
        enter();
    // Widgets restore their focus policy now, and a policy goes on to the widget that stands in.
    if (event->type() == QEvent::ApplicationFontChange) {
        m_widget->setFocusProxy(nullptr);
        QTimer::singleShot(0, this, &ForcedState::hold);
    }
    return false;
}
