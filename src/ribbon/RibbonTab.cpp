#include <nvo/RibbonTab.h>

#include "ribbon/RibbonLayout.h"
#include "ribbon/RibbonSeperator.h"
#include "ribbon/RibbonSupport.h"
#include "theme/Ancestry.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupObject.h>

#include <QFocusEvent>
#include <QHBoxLayout>

namespace NVO {

namespace {

constexpr QMargins pageMargins(4, 4, 4, 0);
constexpr int pageSpacing = 2;
constexpr int extraPosition = 1; // behind the strip of groups

} // namespace

RibbonTab::RibbonTab(Action *p_action, QWidget *p_parent)
    : QFrame(p_parent)
    , m_action(p_action)
    , m_boxLayout(new QHBoxLayout(this))
    , m_pageWidget(new QWidget)
{
    setObjectName(QStringLiteral("RibbonTab"));
    m_boxLayout->setContentsMargins(0, 0, 0, 0);
    m_boxLayout->setSpacing(0);
    m_ribbonLayout = new RibbonLayout(m_pageWidget);
    m_ribbonLayout->setContentsMargins(pageMargins);
    m_ribbonLayout->setSpacing(pageSpacing);
    m_boxLayout->addWidget(m_pageWidget, 1);
    if (p_action) {
        connect(p_action, &QAction::triggered, this, &RibbonTab::showKeytips);
        connect(p_action, &QAction::changed, this, &RibbonTab::changedAction);
    }
    setActionParams();
}

RibbonTab::~RibbonTab()
{
    RibbonSupport::silenceDescendants(this);
}

Action *RibbonTab::action() const
{
    return m_action;
}

RibbonGroup *RibbonTab::addGroup(Action *p_action)
{
    auto *group = new RibbonGroup(p_action, false, m_pageWidget);
    connect(group, &RibbonGroup::visibleChange, this, &RibbonTab::onVisibleChange);
    connect(group, &RibbonGroup::focusInOutEvent, this, &RibbonTab::focusInOutEvent);
    connect(group, &RibbonGroup::keyFocusChange, this, &RibbonTab::groupKeyFocusChange);
    return addBlock(group);
}

RibbonGroupObject *RibbonTab::addGroupObject(Action *p_action)
{
    auto *object = new RibbonGroupObject(p_action, this);
    if (p_action)
        connect(p_action, &QAction::changed, this, &RibbonTab::updateSeparators);
    return addBlock(object);
}

/** Adds a group or picture block, behind a separator if it is not the first. */
template <typename Block>
Block *RibbonTab::addBlock(Block *block)
{
    if (m_ribbonLayout->count() > 0) {
        auto *separator = new RibbonSeperator(block, m_pageWidget);
        if constexpr (std::is_same_v<Block, RibbonGroup>)
            connect(block, &RibbonGroup::visibleChange, separator, &RibbonSeperator::onVisibleChange);
        m_ribbonLayout->addWidget(separator);
    }
    m_ribbonLayout->addWidget(block);
    Q_EMIT signalChangedAction(this);
    updateGeometry();
    return block;
}

bool RibbonTab::addExtraWidget(QWidget *p_widget)
{
    if (!p_widget || Ancestry::contains(p_widget, this) || m_boxLayout->count() != extraPosition)
        return false;
    m_boxLayout->addWidget(p_widget, 0, Qt::AlignRight);
    return true;
}

QWidget *RibbonTab::getRemoveExtraWidget(bool p_remove)
{
    QLayoutItem *item = m_boxLayout->itemAt(extraPosition);
    if (!item)
        return nullptr;
    QWidget *extra = item->widget();
    if (p_remove)
        delete m_boxLayout->takeAt(extraPosition);
    return extra;
}

bool RibbonTab::isVisible() const
{
    return !m_ribbonLayout->visibleWidgets().isEmpty();
}

QPair<QWidget *, RibbonControl *> RibbonTab::getControl(const QString &p_name) const
{
    for (int i = 0; i < m_ribbonLayout->count(); ++i) {
        QWidget *block = m_ribbonLayout->itemAt(i)->widget();
        QPair<QWidget *, RibbonControl *> found;
        if (const auto *group = qobject_cast<RibbonGroup *>(block))
            found = group->getControl(p_name);
        else if (const auto *object = qobject_cast<RibbonGroupObject *>(block))
            found = object->getControl(p_name);
        if (found.first || found.second)
            return found;
    }
    return {nullptr, nullptr};
}

QList<RibbonGroup *> RibbonTab::groups() const
{
    QList<RibbonGroup *> result;
    for (int i = 0; i < m_ribbonLayout->count(); ++i) {
        if (auto *group = qobject_cast<RibbonGroup *>(m_ribbonLayout->itemAt(i)->widget()))
            result.append(group);
    }
    return result;
}

QString RibbonTab::getIndexkeys() const
{
    QStringList entries;
    if (m_action)
        entries.append(RibbonSupport::indexEntry(this, m_action));
    const QList<RibbonGroup *> all = groups();
    for (const RibbonGroup *group : all)
        entries.append(group->getIndexkeys());
    return entries.join(QLatin1Char(' '));
}

bool RibbonTab::selectControlByKey(const QString &p_key, bool p_shortcut)
{
    // A popup that opens, or what a command does, may be the end of a group.
    QList<QPointer<RibbonGroup>> living;
    const QList<RibbonGroup *> all = groups();
    for (RibbonGroup *group : all)
        living.append(group);
    for (const QPointer<RibbonGroup> &group : qAsConst(living)) {
        if (group && group->selectControlByKey(p_key, p_shortcut))
            return true;
    }
    return false;
}

bool RibbonTab::selectFirstControl()
{
    const QList<RibbonGroup *> all = groups();
    for (RibbonGroup *group : all) {
        if (group->isEnabled() && group->isVisible() && group->selectFirstControl())
            return true;
    }
    return false;
}

void RibbonTab::hideKeytips()
{
    const QList<RibbonGroup *> all = groups();
    for (RibbonGroup *group : all)
        group->hideKeytips();
}

bool RibbonTab::areControlKeytipsVisible() const
{
    const QList<RibbonGroup *> all = groups();
    return std::any_of(all.begin(), all.end(),
                       [](const RibbonGroup *group) { return group->areControlKeytipsVisible(); });
}

void RibbonTab::testFunction() {}

void RibbonTab::showKeytips()
{
    hideKeytips();
    const QList<RibbonGroup *> all = groups();
    for (RibbonGroup *group : all)
        group->showKeytips();
}

void RibbonTab::changedAction()
{
    setActionParams();
    Q_EMIT signalChangedAction(this);
}

void RibbonTab::onVisibleChange(RibbonControl *)
{
    updateSeparators();
    Q_EMIT signalChangedAction(this);
}

/** What stands visible before a separator has changed for all that follow. */
void RibbonTab::updateSeparators()
{
    const auto separators =
        m_pageWidget->findChildren<RibbonSeperator *>(QString(), Qt::FindDirectChildrenOnly);
    for (RibbonSeperator *separator : separators)
        separator->onVisibleChange(nullptr);
}

void RibbonTab::groupKeyFocusChange(bool p_left, int p_row)
{
    const QList<QWidget *> visible = m_ribbonLayout->visibleWidgets();
    const int from = visible.indexOf(qobject_cast<QWidget *>(sender()));
    if (from < 0)
        return;
    const int step = p_left ? -1 : 1;
    for (int i = from + step; i >= 0 && i < visible.count(); i += step) {
        if (auto *group = qobject_cast<RibbonGroup *>(visible[i])) {
            group->setFocus(p_left, p_row);
            return;
        }
    }
}

void RibbonTab::focusInEvent(QFocusEvent *event)
{
    Q_EMIT focusInOutEvent(event, true);
    QFrame::focusInEvent(event);
}

void RibbonTab::focusOutEvent(QFocusEvent *event)
{
    Q_EMIT focusInOutEvent(event, false);
    QFrame::focusOutEvent(event);
}

void RibbonTab::setActionParams()
{
    if (!m_action)
        return;
    // A page that is not the current one must not come up over that.
    if (!m_action->isVisible() || isCurrentPage())
        setVisible(m_action->isVisible());
    if (Ribbon *ribbon = Ribbon::findRibbon(this))
        ribbon->setTabToolTip(ribbon->indexOf(this), m_action->toolTip());
}

/** A page without a ribbon is on its own. */
bool RibbonTab::isCurrentPage() const
{
    const Ribbon *ribbon = Ribbon::findRibbon(this);
    return !ribbon || ribbon->currentWidget() == this;
}

} // namespace NVO
