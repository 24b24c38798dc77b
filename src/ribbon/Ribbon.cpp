#include <nvo/Ribbon.h>

#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/RibbonTab.h>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTabBar>

#include <algorithm>

namespace NVO {

namespace {

constexpr int fileTab = 0;
constexpr int firstPage = 1; // behind the file tab
constexpr int keytipOverlap = 2;

const QString &defaultStyle()
{
    static const QString style = QStringLiteral("default");
    return style;
}

const QString &focusStyle()
{
    static const QString style = QStringLiteral("focus");
    return style;
}

const QString &firstFocusStyle()
{
    static const QString style = QStringLiteral("firstFocus");
    return style;
}

QString shortcutText(const Action *action)
{
    return action ? action->shortcut().toString(QKeySequence::PortableText) : QString();
}

QString tooltipTitle(const Action *action)
{
    QString title = RibbonSupport::singleLine(action->text());
    if (!action->shortcut().isEmpty()) {
        QString key = action->shortcut().toString(QKeySequence::NativeText);
        if (key.isEmpty())
            key = action->shortcutKey();
        if (!key.isEmpty())
            title += QLatin1String(" (") + key + QLatin1Char(')');
    }
    // Lets the line break in front of the last key.
    const int plus = title.indexOf(QLatin1Char('+'));
    if (plus >= 1 && title.at(plus - 1) != QLatin1Char(' '))
        title.insert(plus, QLatin1Char(' '));
    return title;
}

} // namespace

Ribbon::Ribbon(Action *p_action, QWidget *p_parent)
    : QTabWidget(p_parent)
    , m_fileAction(p_action)
{
    tabBar()->setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(false);
    tabBar()->installEventFilter(this);
    tabBar()->setCursor(Qt::PointingHandCursor);
    tabBar()->setProperty("style", defaultStyle());
    connect(this, &QTabWidget::currentChanged, this, &Ribbon::tabCurrentChanged);
    initStyleSheet();
    if (qobject_cast<QApplication *>(QCoreApplication::instance()))
        connect(qApp, &QApplication::focusChanged, this, &Ribbon::slotFocusChanged);
}

Ribbon::~Ribbon()
{
    disconnect(this, &QTabWidget::currentChanged, this, &Ribbon::tabCurrentChanged);
    if (qApp)
        disconnect(qApp, nullptr, this, nullptr);
    const QList<RibbonTab *> tabs = livingTabs();
    for (RibbonTab *tab : tabs) {
        if (indexOf(tab) < 0)
            delete tab;
    }
    RibbonSupport::silenceDescendants(this);
}

void Ribbon::testFunc() {}

QWidget *Ribbon::createExtraWidget()
{
    return nullptr;
}

QString Ribbon::replaceMacroText(const QString &p_text) const
{
    return p_text;
}

int Ribbon::getMacroNumber(const QString &) const
{
    return -1;
}

QVariant Ribbon::getEvaluateExpression(const QString &) const
{
    return QVariant();
}

QString Ribbon::getPictureDllName() const
{
    return QString();
}

bool Ribbon::isTestFlag() const
{
    return false;
}

void Ribbon::slotTriggerAction()
{
    setOutsideFocusWidget();
}

Ribbon *Ribbon::findRibbon(const QWidget *p_widget)
{
    for (; p_widget; p_widget = p_widget->parentWidget()) {
        if (const auto *ribbon = qobject_cast<const Ribbon *>(p_widget))
            return const_cast<Ribbon *>(ribbon);
    }
    return nullptr;
}

QString Ribbon::createTooltip(Action *p_action, QWidget *p_widget)
{
    if (!p_action)
        return QString();
    QString html = QStringLiteral("<table>");
    const QString title = tooltipTitle(p_action);
    if (!title.isEmpty())
        html += QLatin1String("<tr><td style=\"white-space: nowrap\"><b>") + title
                + QLatin1String("</b></td></tr>");
    const QString help = p_action->toolTip();
    if (!help.isEmpty())
        html += QLatin1String("<tr><td style=\"padding-top: 4px;\">") + help + QLatin1String("</td></tr>");
    const Ribbon *ribbon = findRibbon(p_widget);
    if (ribbon && ribbon->isTestFlag() && !p_action->valueName().isEmpty())
        html += QLatin1String("<tr><td><b>") + p_action->valueName() + QLatin1String("</b></td></tr>");
    return html + QLatin1String("</table>");
}

RibbonTab *Ribbon::addTab(Action *p_action)
{
    auto *tab = new RibbonTab(p_action, this);
    connect(tab, &RibbonTab::signalChangedAction, this, &Ribbon::onChangedAction);
    m_tabs.append(tab);
    const QScopedValueRollback<bool> guard(m_changingTabs, true);
    QTabWidget::addTab(tab, p_action ? p_action->text() : QString());
    leaveFileTab();
    return tab;
}

void Ribbon::setOutsideFocusWidget()
{
    if (!m_outsideFocusWidget)
        return;
    m_outsideFocusWidget->setFocus();
    setTabBarStyle(false);
}

QPair<QWidget *, RibbonControl *> Ribbon::getControl(const QString &p_name) const
{
    const QList<RibbonTab *> tabs = livingTabs();
    for (const RibbonTab *tab : tabs) {
        const QPair<QWidget *, RibbonControl *> found = tab->getControl(p_name);
        if (found.first || found.second)
            return found;
    }
    return {nullptr, nullptr};
}

QString Ribbon::getIndexkeys() const
{
    QStringList entries;
    const QList<RibbonTab *> tabs = livingTabs();
    for (const RibbonTab *tab : tabs)
        entries.append(tab->getIndexkeys());
    return entries.join(QLatin1Char(' '));
}

bool Ribbon::areKeytipsVisible() const
{
    return !m_keytips.isEmpty();
}

bool Ribbon::areControlKeytipsVisible() const
{
    const QList<RibbonTab *> tabs = livingTabs();
    return std::any_of(tabs.begin(), tabs.end(),
                       [](const RibbonTab *tab) { return tab->areControlKeytipsVisible(); });
}

void Ribbon::showKeytips()
{
    hideKeytips();
    for (int i = 0; i < count(); ++i) {
        const RibbonTab *tab = tabAt(i);
        if (!tab)
            continue;
        QWidget *keytip = createKeytip(replaceMacroText(shortcutText(tab->action())).toUpper());
        const QRect place = tabBar()->tabRect(i);
        keytip->move(place.center().x() - keytip->sizeHint().width() / 2, place.bottom() - keytipOverlap);
        keytip->show();
        m_keytips.append(keytip);
    }
}

void Ribbon::hideKeytips()
{
    for (const QPointer<QWidget> &keytip : qAsConst(m_keytips))
        delete keytip;
    m_keytips.clear();
    const QList<RibbonTab *> tabs = livingTabs();
    for (RibbonTab *tab : tabs)
        tab->hideKeytips();
    repaint();
}

bool Ribbon::toggleKeyfocus()
{
    if (areKeytipsVisible()) {
        hideKeytips();
        return false;
    }
    showKeytips();
    setFocus(Qt::ActiveWindowFocusReason);
    setTabBarStyle(true);
    return true;
}

bool Ribbon::selectTabByKey(const QString &p_key)
{
    const QString key = p_key.toUpper();
    if (key.isEmpty())
        return false;
    const QList<RibbonTab *> tabs = livingTabs();
    const auto chosen = std::find_if(tabs.begin(), tabs.end(), [&key](const RibbonTab *tab) {
        return shortcutText(tab->action()).toUpper() == key;
    });
    if (chosen == tabs.end())
        return false;
    hideKeytips();
    // The file tab triggers its action, which may be the end of the page and of the ribbon.
    const QPointer<Ribbon> alive(this);
    const QPointer<RibbonTab> tab(*chosen);
    m_selectingByKey = true;
    setCurrentWidget(tab);
    if (alive)
        m_selectingByKey = false;
    if (tab)
        tab->showKeytips();
    return true;
}

bool Ribbon::selectControlByKey(const QString &p_key, bool p_currentTab, bool p_shortcut)
{
    hideKeytips();
    if (p_key.isEmpty())
        return false;
    if (p_currentTab) {
        RibbonTab *current = tabAt(currentIndex());
        return current && current->selectControlByKey(p_key, p_shortcut);
    }
    const QList<QPointer<RibbonTab>> tabs = m_tabs;
    return std::any_of(tabs.begin(), tabs.end(), [&](const QPointer<RibbonTab> &tab) {
        return tab && tab->isVisible() && tab->isEnabled() && tab->selectControlByKey(p_key, p_shortcut);
    });
}

void Ribbon::showTab(int p_index)
{
    setCurrentIndex(p_index);
}

void Ribbon::tabCurrentChanged(int p_index)
{
    if (!m_selectingByKey)
        hideKeytips();
    if (p_index == fileTab && m_fileAction) {
        // Nobody has chosen the file tab where it has only taken the place of a page that went.
        if (!m_changingTabs && m_previousPage && indexOf(m_previousPage) >= 0)
            triggerFileTab();
        return;
    }
    moveExtraWidget(p_index);
    m_previousPage = widget(p_index);
}

/** The first tab is a command: the page that was current comes back. */
void Ribbon::triggerFileTab()
{
    const QPointer<Ribbon> alive(this);
    m_fileAction->trigger();
    if (alive)
        leaveFileTab();
}

/** From the file tab goes back to the page that was current last, or else to the first page. */
void Ribbon::leaveFileTab()
{
    if (!m_fileAction || currentIndex() != fileTab)
        return;
    const int previous = m_previousPage ? indexOf(m_previousPage) : -1;
    if (previous > fileTab)
        setCurrentIndex(previous);
    else if (count() > firstPage)
        setCurrentIndex(firstPage);
}

/** The one extra widget travels with the current page; it is made on first need. */
void Ribbon::moveExtraWidget(int index)
{
    QWidget *extra = nullptr;
    const QList<RibbonTab *> tabs = livingTabs();
    for (auto tab = tabs.begin(); tab != tabs.end() && !extra; ++tab)
        extra = (*tab)->getRemoveExtraWidget(true);
    if (!extra)
        extra = createExtraWidget();
    if (!extra)
        return;
    RibbonTab *tab = tabAt(index);
    if (!tab || !tab->addExtraWidget(extra))
        delete extra;
}

void Ribbon::onChangedAction(RibbonTab *p_ribbonTab)
{
    if (!p_ribbonTab || !p_ribbonTab->action())
        return;
    const Action *action = p_ribbonTab->action();
    const int index = indexOf(p_ribbonTab);
    if (index >= 0 && tabText(index) != action->text())
        setTabText(index, action->text());

    const QScopedValueRollback<bool> guard(m_changingTabs, true);
    const bool present = action->isVisible() && p_ribbonTab->isVisible();
    if (present && index < 0)
        insertTab(returnPosition(p_ribbonTab), p_ribbonTab, action->text().toUpper());
    else if (!present && index >= 0 && m_fileAction && action != m_fileAction)
        removeTab(index);
    leaveFileTab();
}

/** Where a page comes back: to the right of its nearest neighbour that is on the bar. */
int Ribbon::returnPosition(const RibbonTab *tab) const
{
    const QList<RibbonTab *> tabs = livingTabs();
    const int own = tabs.indexOf(const_cast<RibbonTab *>(tab));
    for (int i = own - 1; i >= 0; --i) {
        const int neighbour = indexOf(tabs[i]);
        if (neighbour >= 0)
            return neighbour + 1;
    }
    return own == 0 ? 0 : -1;
}

void Ribbon::slotFocusChanged(QWidget *p_old, QWidget *)
{
    if (!p_old || findRibbon(p_old) || p_old == m_outsideFocusWidget)
        return;
    m_outsideFocusWidget = p_old;
    connect(p_old, &QObject::destroyed, this, &Ribbon::slotDestroyedFocusWidget, Qt::UniqueConnection);
}

void Ribbon::slotDestroyedFocusWidget(QObject *)
{
    m_outsideFocusWidget = nullptr;
}

void Ribbon::setTabBarStyle(const QString &p_style)
{
    tabBar()->setProperty("style", p_style);
    style()->unpolish(tabBar());
    style()->polish(tabBar());
}

void Ribbon::setTabBarStyle(bool p_focus)
{
    setTabBarStyle(p_focus ? focusStyle() : defaultStyle());
}

QWidget *Ribbon::createKeytip(const QString &p_text)
{
    return RibbonSupport::createKeytip(this, RibbonSupport::tabKeytip, p_text);
}

void Ribbon::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementRibbon);
}

bool Ribbon::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        initStyleSheet();
        return true;
    }
    return QTabWidget::event(event);
}

bool Ribbon::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        hideKeytips();
    if (event->type() == QEvent::KeyPress) {
        const QPointer<Ribbon> alive(this);
        if (tabBarKeyPress(static_cast<QKeyEvent *>(event)->key()) || !alive)
            return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

/**
 * The file tab is never current, but the keyboard can visit it: the index stays, and the style of the bar
 * tells the sheet to draw the first tab as focused. Returns whether the key ends here.
 */
bool Ribbon::tabBarKeyPress(int key)
{
    if (tabBar()->isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left; // as the bar itself takes them
    switch (key) {
    case Qt::Key_Left:
        if (!m_fileAction || tabBar()->currentIndex() != firstPage)
            return false;
        setTabBarStyle(firstFocusStyle());
        setFocus(Qt::ActiveWindowFocusReason);
        return true;
    case Qt::Key_Right:
        if (!isFirstTabFocused())
            return false;
        setTabBarStyle(true);
        return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
        if (m_fileAction && isFirstTabFocused())
            m_fileAction->trigger();
        return false;
    default:
        return false;
    }
}

bool Ribbon::isFirstTabFocused() const
{
    return tabBar()->property("style") == firstFocusStyle();
}

void Ribbon::tabInserted(int)
{
    placeKeytips();
}

void Ribbon::tabRemoved(int)
{
    placeKeytips();
}

/** Keytips that show stand on the tabs that are there now. */
void Ribbon::placeKeytips()
{
    if (areKeytipsVisible())
        showKeytips();
}

void Ribbon::focusOutEvent(QFocusEvent *event)
{
    hideKeytips();
    QTabWidget::focusOutEvent(event);
}

void Ribbon::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Down) {
        QTabWidget::keyPressEvent(event);
        return;
    }
    hideKeytips();
    if (RibbonTab *tab = tabAt(currentIndex()))
        tab->selectFirstControl();
}

QList<RibbonTab *> Ribbon::livingTabs() const
{
    QList<RibbonTab *> tabs;
    for (const QPointer<RibbonTab> &tab : m_tabs) {
        if (tab)
            tabs.append(tab);
    }
    return tabs;
}

RibbonTab *Ribbon::tabAt(int index) const
{
    return qobject_cast<RibbonTab *>(widget(index));
}

} // namespace NVO
