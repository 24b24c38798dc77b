#include <nvo/RibbonGroup.h>

#include "ribbon/RibbonAccessible.h"
#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroupLayout.h>
#include <nvo/RibbonLabel.h>

#include <QCursor>
#include <QDebug>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QStackedLayout>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <limits>

namespace NVO {

namespace {

constexpr int popupMargin = 2;
constexpr int openPage = 0;
constexpr int collapsedPage = 1;

bool isArrowKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/** The screen that holds a point, or else the one that is nearest to it. */
const QScreen *screenFor(const QPoint &point)
{
    if (const QScreen *screen = QGuiApplication::screenAt(point))
        return screen;
    const QScreen *nearest = QGuiApplication::primaryScreen();
    int distance = std::numeric_limits<int>::max();
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        const QRect area = screen->geometry();
        const QPoint inside(qBound(area.left(), point.x(), area.right()),
                            qBound(area.top(), point.y(), area.bottom()));
        if ((inside - point).manhattanLength() < distance) {
            distance = (inside - point).manhattanLength();
            nearest = screen;
        }
    }
    return nearest;
}

bool canBeChosen(const RibbonControl *control)
{
    const Action *action = control->action();
    return action && action->isEnabled() && action->isVisible();
}

} // namespace

RibbonGroup::RibbonGroup(Action *p_action, bool p_popup, QWidget *p_parent)
    : QFrame(p_parent)
    , m_action(p_action)
    , m_stackedLayout(new QStackedLayout(this))
{
    RibbonAccessible::install();
    m_stackedLayout->setContentsMargins(0, 0, 0, 0);
    // The sheet comes first and the parts are made where they stand, or Qt would parse their sheets again.
    setProperty("style", p_popup ? QStringLiteral("popup") : QStringLiteral("default"));
    initStyleSheet();
    auto *panel = new QWidget(this);
    panel->setStyleSheet(QStringLiteral("background-color: transparent;"));
    m_groupLayout = new RibbonGroupLayout(panel);
    const int margin = p_popup ? popupMargin : 0;
    m_groupLayout->setContentsMargins(margin, margin, margin, margin);
    if (p_action) {
        connect(p_action, &QAction::triggered, this, &RibbonGroup::triggeredAction);
        connect(p_action, &QAction::changed, this, &RibbonGroup::changedAction);
    }
    m_stackedLayout->addWidget(panel);
    if (!p_popup)
        createButton();
    RibbonControl::setSizeMode(Large, true);
    setActionParams();
    if (!p_popup)
        setVisible(false); // without a control
}

RibbonGroup::~RibbonGroup()
{
    RibbonSupport::silenceDescendants(this);
}

void RibbonGroup::createButton()
{
    m_groupButton = new RibbonGroupButton(this);
    m_groupButton->setObjectName(QStringLiteral("RibbonGroupButton"));
    m_groupButton->setCursor(Qt::PointingHandCursor);
    connect(m_groupButton, &QAbstractButton::clicked, this, &RibbonGroup::showPopup);
    m_groupButton->installEventFilter(this);
    m_stackedLayout->addWidget(m_groupButton);
}

QWidget *RibbonGroup::addAction(Action *p_action)
{
    if (!p_action)
        return nullptr;
    QWidget *panel = m_groupLayout->parentWidget();
    switch (p_action->controlType()) {
    case Action::CommandButton:
        return addControl(new RibbonButton(p_action, panel));
    case Action::CommandCheckBox:
        return addControl(new RibbonCheckBox(p_action, panel));
    case Action::CommandLabel:
        return addControl(new RibbonLabel(p_action, panel));
    }
    qDebug().nospace() << "RibbonGroup::addAction unknown type: " << int(p_action->controlType());
    return nullptr;
}

template <typename Control>
QWidget *RibbonGroup::addControl(Control *control)
{
    connect(control, &Control::visibleChange, this, &RibbonGroup::onVisibleChange);
    connect(control, &Control::focusInOutEvent, this, &RibbonGroup::focusInOutEvent);
    control->setCursor(Qt::PointingHandCursor);
    control->installEventFilter(this);
    m_groupLayout->addWidget(control);
    updateCaption();
    setUpdateVisible();
    if (m_action) {
        const QMap<QString, SizeMode> modes = m_action->sizeMode();
        const auto mode = modes.constFind(control->action()->valueName());
        if (mode != modes.constEnd())
            control->setFixSizeMode(*mode);
    }
    return control;
}

QList<QWidget *> RibbonGroup::visibleWidgets() const
{
    return m_groupLayout->visibleWidgets();
}

QPair<QWidget *, RibbonControl *> RibbonGroup::getControl(const QString &p_name) const
{
    const QString name = p_name.toUpper();
    const QList<RibbonControl *> all = controls();
    for (RibbonControl *control : all) {
        if (control->action() && control->action()->valueName().toUpper() == name)
            return {dynamic_cast<QWidget *>(control), control};
    }
    return {nullptr, nullptr};
}

QList<RibbonControl *> RibbonGroup::controls() const
{
    QList<RibbonControl *> result;
    for (int i = 0; i < m_groupLayout->count(); ++i) {
        if (auto *control = dynamic_cast<RibbonControl *>(m_groupLayout->itemAt(i)->widget()))
            result.append(control);
    }
    return result;
}

QString RibbonGroup::getIndexkeys() const
{
    QStringList entries;
    if (m_action)
        entries.append(RibbonSupport::indexEntry(this, m_action));
    const QList<RibbonControl *> all = controls();
    for (const RibbonControl *control : all) {
        if (control->action())
            entries.append(RibbonSupport::indexEntry(this, control->action()));
    }
    return entries.join(QLatin1Char(' '));
}

bool RibbonGroup::selectControlByKey(const QString &p_key, bool p_shortcut)
{
    if (p_key.isEmpty() || !Ribbon::findRibbon(this))
        return false;
    const auto matches = [&](const Action *action) {
        return p_shortcut ? action->shortcut().toString(QKeySequence::PortableText) == p_key
                          : RibbonSupport::indexKey(this, action) == p_key.toUpper();
    };
    const QList<RibbonControl *> all = controls();
    for (const RibbonControl *control : all) {
        if (!canBeChosen(control) || !matches(control->action()))
            continue;
        if (isCollapsed() && !m_groupButton->isOpen()) {
            showPopup(true);
            return false;
        }
        control->action()->trigger();
        return true;
    }
    return false;
}

bool RibbonGroup::selectFirstControl()
{
    const QList<RibbonControl *> all = controls();
    for (RibbonControl *control : all) {
        if (canBeChosen(control)) {
            QWidget *widget = isCollapsed() ? m_groupButton : dynamic_cast<QWidget *>(control);
            widget->setFocus();
            return true;
        }
    }
    return false;
}

void RibbonGroup::showKeytips()
{
    hideKeytips();
    const QList<RibbonControl *> all = controls();
    if (!isCollapsed()) {
        for (RibbonControl *control : all) {
            if (control->controlVisible() && control->action())
                showKeytip(dynamic_cast<QWidget *>(control), control->action());
        }
        return;
    }
    const Action *shown = m_action;
    for (RibbonControl *control : all) {
        if (dynamic_cast<QWidget *>(control)->isEnabled()) {
            shown = control->action();
            break;
        }
    }
    if (shown)
        showKeytip(m_groupButton, shown);
}

void RibbonGroup::hideKeytips()
{
    for (const QPointer<QWidget> &keytip : qAsConst(m_keytips))
        delete keytip;
    m_keytips.clear();
    update();
}

bool RibbonGroup::areControlKeytipsVisible() const
{
    return !m_keytips.isEmpty();
}

void RibbonGroup::showKeytip(QWidget *widget, const Action *action)
{
    if (action->macroIndexkey().isEmpty() || !Ribbon::findRibbon(this))
        return;
    QLabel *keytip = RibbonSupport::createKeytip(widget, RibbonSupport::controlKeytip,
                                                 RibbonSupport::indexKey(this, action));
    StyleSupport::applySheet(keytip, ElementRibbonGroup);
    keytip->move(0, 0);
    keytip->show();
    m_keytips.append(keytip);
}

void RibbonGroup::setFocus(bool p_left, int p_row)
{
    if (isCollapsed()) {
        m_groupButton->setFocus();
        return;
    }
    const QList<RibbonLayoutHelper> columns = m_groupLayout->getWidgets();
    if (columns.isEmpty())
        return;
    const RibbonLayoutHelper &column = p_left ? columns.last() : columns.first();
    column.at(p_row >= 0 && p_row < column.count() ? p_row : 0).widget->setFocus();
}

QPoint RibbonGroup::screenGeometry(QRect p_rect)
{
    const QScreen *screen = screenFor(p_rect.topLeft());
    if (!screen)
        return p_rect.topLeft();
    const QRect area = screen->availableGeometry();
    if (p_rect.right() > area.right())
        p_rect.translate(area.right() - 1 - p_rect.right(), 0);
    if (p_rect.bottom() > area.bottom())
        p_rect.translate(0, area.bottom() - 1 - p_rect.bottom());
    if (p_rect.left() < area.left())
        p_rect.translate(area.left() - p_rect.left(), 0);
    if (p_rect.top() < area.top())
        p_rect.translate(0, area.top() - p_rect.top());
    return p_rect.topLeft();
}

QSize RibbonGroup::sizeHint() const
{
    return sizeFromMode(sizeMode(), true);
}

bool RibbonGroup::setSizeMode(SizeMode p_mode, bool p_force)
{
    const SizeMode mode = p_mode == Small && hasSingleControl() ? Large : p_mode;
    const bool result = RibbonControl::setSizeMode(mode, p_force);
    updateFace(); // a fixed mode may have come without a change
    return result;
}

void RibbonGroup::updateLayout()
{
    updateGeometry();
}

QSize RibbonGroup::sizeFromMode(SizeMode p_mode, const QSize &p_available) const
{
    if (p_mode == Large || hasSingleControl())
        return m_groupLayout->sizeFromMode(p_mode, p_available);
    return sizeFromMode(p_mode, true);
}

QSize RibbonGroup::sizeFromMode(SizeMode p_mode, bool p_minimum) const
{
    const QSize open = m_groupLayout->sizeFromMode(p_mode, p_minimum);
    QSize button;
    if (m_groupButton)
        button = p_minimum ? m_groupButton->minimumSizeHint() : m_groupButton->sizeHint();
    const bool isOpen = p_mode == Large || hasSingleControl();
    return QSize(isOpen ? open.width() : button.width(), qMax(open.height(), button.height()));
}

void RibbonGroup::onSetSizeModeChanged(SizeMode)
{
    updateFace();
}

void RibbonGroup::updateFace()
{
    const bool open = !m_groupButton || sizeMode() == Large || hasSingleControl();
    const int page = open ? openPage : collapsedPage;
    if (m_stackedLayout->currentIndex() == page)
        return;
    m_stackedLayout->setCurrentIndex(page);
    updateGeometry();
    reconsiderPopup();
}

Action *RibbonGroup::action() const
{
    return m_action;
}

bool RibbonGroup::controlVisible() const
{
    return RibbonControl::controlVisible() && !visibleWidgets().isEmpty();
}

void RibbonGroup::closePopup()
{
    if (m_groupButton)
        m_groupButton->setOpen(false);
    Q_EMIT focusInOutEvent(nullptr, true);
}

void RibbonGroup::triggeredAction()
{
    if (isCollapsed())
        showPopup(false);
    else
        showKeytips();
}

void RibbonGroup::changedAction()
{
    const QPointer<RibbonGroup> alive(this);
    setActionParams();
    if (alive)
        setUpdateVisible();
}

void RibbonGroup::onVisibleChange(RibbonControl *)
{
    updateCaption();
    setUpdateVisible();
}

bool RibbonGroup::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (isArrowKey(key)) {
            moveFocus(key);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void RibbonGroup::moveFocus(int key)
{
    if (isCollapsed()) {
        Q_EMIT keyFocusChange(key == Qt::Key_Left, 0);
        return;
    }
    int row = 0;
    if (QWidget *next = RibbonLayoutHelper::nextInColumns(m_groupLayout->getWidgets(), key, &row)) {
        next->setFocus();
    } else if (key == Qt::Key_Up) {
        const Ribbon *ribbon = Ribbon::findRibbon(this);
        if (m_groupButton && ribbon)
            ribbon->tabBar()->setFocus();
    } else if (key != Qt::Key_Down) {
        Q_EMIT keyFocusChange(key == Qt::Key_Left, row);
    }
}

void RibbonGroup::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    reconsiderPopup();
}

void RibbonGroup::focusInEvent(QFocusEvent *event)
{
    const QPointer<RibbonGroup> alive(this);
    Q_EMIT focusInOutEvent(event, true);
    if (alive)
        QFrame::focusInEvent(event);
}

void RibbonGroup::focusOutEvent(QFocusEvent *event)
{
    const QPointer<RibbonGroup> alive(this);
    Q_EMIT focusInOutEvent(event, false);
    if (alive)
        QFrame::focusOutEvent(event);
}

void RibbonGroup::keyPressEvent(QKeyEvent *event)
{
    const QPointer<RibbonGroup> alive(this);
    if (!m_groupButton) {
        if (isArrowKey(event->key()))
            hideKeytips();
        else
            selectControlByKey(event->text(), false);
    }
    if (alive)
        QFrame::keyPressEvent(event);
}

void RibbonGroup::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementRibbonGroup);
}

void RibbonGroup::setActionParams()
{
    if (!m_action)
        return;
    if (m_groupButton) {
        m_groupButton->setText(m_action->text());
        m_groupButton->setIcon(m_action->icon());
        m_groupButton->setToolTip(m_action->toolTip());
    }
    updateCaption();
    setEnabled(m_action->isEnabled());
}

/** A lone control needs no caption. */
void RibbonGroup::updateCaption()
{
    m_groupLayout->setText(m_action && !hasSingleControl() ? m_action->text() : QString());
}

void RibbonGroup::setUpdateVisible()
{
    const QPointer<RibbonGroup> alive(this);
    if (windowType() != Qt::Popup)
        setVisible(controlVisible());
    else if (!controlVisible())
        QTimer::singleShot(0, this, &RibbonGroup::closeIfEmpty);
    if (!alive)
        return;
    if (isCollapsed())
        updateGeometry(); // what changes behind the button reaches nobody else
    Q_EMIT visibleChange(this);
}

/** A popup goes with its last control, unless a control has come back before the change was over. */
void RibbonGroup::closeIfEmpty()
{
    if (!controlVisible())
        close();
}

bool RibbonGroup::hasSingleControl() const
{
    return visibleWidgets().count() == 1;
}

bool RibbonGroup::isCollapsed() const
{
    return m_stackedLayout->currentIndex() == collapsedPage;
}

void RibbonGroup::showPopup(bool p_showKeytips)
{
    if (!m_groupButton || (m_popup && m_popup->isVisible()))
        return;
    const QPointer<RibbonGroup> popup(new RibbonGroup(m_action, true, this));
    m_popup = popup;
    popup->setWindowFlags(Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setSizeMode(Large, false);
    const QList<RibbonControl *> all = controls();
    for (const RibbonControl *control : all)
        popup->addAction(control->action());
    if (popup->visibleWidgets().isEmpty()) {
        delete popup;
        return;
    }
    popup->setFocusPolicy(Qt::StrongFocus);
    if (p_showKeytips)
        popup->showKeytips();
    m_groupButton->setOpen(true);
    placePopup(popup);
    connect(popup, &QObject::destroyed, this, [this](const QObject *gone) {
        if (!m_popup || gone == m_popup) // else another one is open by now
            closePopup();
    });
    popup->show();
    if (popup)
        focusPopup(*popup);
}

/** The popup goes with the button that it has come from, unless that is back before the change is over. */
void RibbonGroup::reconsiderPopup()
{
    if (!m_popup)
        return;
    QTimer::singleShot(0, this, [this] {
        if (m_popup && !m_groupButton->isVisible())
            m_popup->close();
    });
}

void RibbonGroup::placePopup(RibbonGroup *popup)
{
    const QPoint point = m_groupButton->mapToGlobal(QPoint(0, height()));
    const QSize size = popup->sizeHint();
    popup->setGeometry(QRect(QPoint(), size));
    popup->move(screenGeometry(QRect(point, size)));
}

/** The first control of the popup that can has the focus; where the mouse did not open it, that is to be
 * seen. */
void RibbonGroup::focusPopup(const RibbonGroup &popup)
{
    const bool underMouse = m_groupButton->geometry().contains(m_groupButton->mapFromGlobal(QCursor::pos()));
    const QList<QWidget *> visible = popup.visibleWidgets();
    const auto first =
        std::find_if(visible.begin(), visible.end(), [](QWidget *control) { return control->isEnabled(); });
    if (first != visible.end())
        (*first)->setFocus(underMouse ? Qt::OtherFocusReason : Qt::TabFocusReason);
}

} // namespace NVO
