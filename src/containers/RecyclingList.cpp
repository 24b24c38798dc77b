#include <nvo/RecyclingList.h>

#include "containers/AccessibleRecyclingList.h"
#include "containers/ItemPositions.h"

#include <nvo/RecyclingListAdapter.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVariant>

#include <algorithm>
#include <limits>

namespace {

constexpr int containerSize = 16777215;
constexpr int spareLimit = 10;
constexpr int singleStep = 99;
constexpr int pageStep = 400;
constexpr int passDepthLimit = 100; // passes inside each other, before the next one waits for the event loop

int toInt(qint64 pixels)
{
    return int(
        qBound(qint64(std::numeric_limits<int>::min()), pixels, qint64(std::numeric_limits<int>::max())));
}

/** Whether the user is just at work on \a item, so that it may wait for the end of its own event. */
bool isInUse(const QWidget *item)
{
    const QWidget *focus = QApplication::focusWidget();
    return item->underMouse() || item == focus || item->isAncestorOf(focus);
}

/** A click on an item can be what makes it one too many. */
void discard(QWidget *item)
{
    if (!isInUse(item)) {
        delete item;
        return;
    }
    item->deleteLater();
    item->hide();
}

} // namespace

class RecyclingList::RecyclingListScrollBar : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;
    using QScrollBar::wheelEvent;
};

/** One layout of the items, in which everybody who is asked or told something may take anything away. */
struct RecyclingList::Pass
{
    explicit Pass(RecyclingList *owner)
        : list(owner)
        , adapter(owner->m_adapter)
    {}

    bool isAlive() const { return list && adapter && list->m_adapter == adapter; }

    QPointer<RecyclingList> list;
    QPointer<RecyclingListAdapter> adapter;
    qint64 top = 0; // what the scroll bar says
    bool isFull = false;
    bool wasCut = false; // the scroll bar had to go back
};

RecyclingList::RecyclingList(QWidget *parent)
    : QFrame(parent)
    , m_superContainer(new QWidget(this))
    , m_container(new QWidget(m_superContainer))
    , m_scrollBar(new RecyclingListScrollBar(Qt::Vertical))
    , m_barStack(new QStackedWidget(this))
    , m_barPlaceholder(new QFrame)
    , m_items(std::make_unique<NVO::ItemPositions>())
{
    NVO::AccessibleRecyclingList::install();
    setObjectName(QStringLiteral("RecyclingList"));
    m_superContainer->setObjectName(QStringLiteral("RecyclingListSuperContainer"));
    m_container->setObjectName(QStringLiteral("RecyclingListContainer"));
    m_container->resize(containerSize, containerSize);
    m_barPlaceholder->setObjectName(QStringLiteral("RecyclingListBarPlaceholder"));

    m_scrollBar->setRange(0, 0);
    m_barStack->addWidget(m_scrollBar);
    m_barStack->addWidget(m_barPlaceholder);
    m_scrollBar->hide();
    showInStack(m_scrollBar);
    m_superContainer->installEventFilter(this);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_superContainer, 1);
    layout->addWidget(m_barStack, 0);

    connect(m_scrollBar, &QScrollBar::valueChanged, this, &RecyclingList::slotScrollBarChanged);
}

/** While the children die the adapter may still have something to say. */
RecyclingList::~RecyclingList()
{
    if (m_adapter)
        m_adapter->disconnect(this);
}

void RecyclingList::setAdapter(RecyclingListAdapter *adapter)
{
    if (m_adapter) {
        disconnect(m_adapter, &RecyclingListAdapter::signalUpdateRecyclingListOne, this,
                   &RecyclingList::slotUpdateOne);
        disconnect(m_adapter, &RecyclingListAdapter::signalUpdateRecyclingListAll, this,
                   &RecyclingList::slotUpdateAll);
        disconnect(m_adapter, &RecyclingListAdapter::signalUpdateRecyclingListOrder, this,
                   &RecyclingList::slotUpdateOrder);
    }
    m_adapter = adapter;
    if (!adapter)
        return;
    connect(adapter, &RecyclingListAdapter::signalUpdateRecyclingListOne, this,
            &RecyclingList::slotUpdateOne);
    connect(adapter, &RecyclingListAdapter::signalUpdateRecyclingListAll, this,
            &RecyclingList::slotUpdateAll);
    connect(adapter, &RecyclingListAdapter::signalUpdateRecyclingListOrder, this,
            &RecyclingList::slotUpdateOrder);
    slotUpdateAll();
}

RecyclingListAdapter *RecyclingList::adapter() const
{
    return m_adapter;
}

void RecyclingList::setSpacing(int spacing)
{
    if (m_items->spacing() == spacing)
        return;
    m_items->setSpacing(spacing);
    slotUpdateAll();
}

void RecyclingList::setMarginTopBottom(int margin)
{
    if (m_items->marginTopBottom() == margin)
        return;
    m_items->setMarginTopBottom(margin);
    slotUpdateAll();
}

void RecyclingList::setMarginRight(int margin)
{
    if (m_marginRight == margin)
        return;
    m_marginRight = margin;
    slotUpdateAll();
}

QWidget *RecyclingList::visibleWidget(int position)
{
    for (const UsedWidgetData &used : qAsConst(m_usedWidgets)) {
        if (used.widget && used.position == position && used.widget->isVisible())
            return used.widget;
    }
    return nullptr;
}

QPair<int, int> RecyclingList::fullyVisiblePositions()
{
    const qint64 value = m_scrollBar->value();
    const int first = m_items->firstBelow(value - 1);
    if (first == m_items->count())
        return {-1, -1};
    int last = -1;
    for (int item = first; item < m_items->count(); ++item) {
        if (m_items->top(item) - value + m_items->height(item) > height())
            break;
        last = item;
    }
    return {first, last};
}

void RecyclingList::slotUpdateAll()
{
    if (!m_adapter)
        return;
    if (m_passing) {
        later(Later::Update);
        return;
    }
    Pass current(this);
    m_passing = true;
    pass(current);
    if (!current.list)
        return;
    m_passing = false;
    if (!current.wasCut)
        return;
    if (m_passDepth == passDepthLimit) {
        later(Later::Update);
        return;
    }
    ++m_passDepth;
    slotUpdateAll();
    if (current.list)
        --m_passDepth;
}

void RecyclingList::later(Later what)
{
    const bool isWaiting = m_later != Later::Nothing;
    m_later = std::max(m_later, what);
    if (isWaiting)
        return;
    const auto run = [this] {
        const Later now = std::exchange(m_later, Later::Nothing);
        if (now == Later::Reset)
            slotResetAll();
        else if (now == Later::Update || m_passSize != m_superContainer->size())
            slotUpdateAll();
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void RecyclingList::pass(Pass &pass)
{
    nullWidget(false, m_container);
    if (!pass.isAlive() || !layOutItems(pass))
        return;
    updateScrollBar(pass);
}

/** Returns whether the pass goes on. */
bool RecyclingList::layOutItems(Pass &pass)
{
    int count = pass.adapter->count();
    if (!pass.isAlive())
        return false;
    m_items->resize(count);
    pass.top = m_scrollBar->value();
    m_passSize = m_superContainer->size();

    int slot = 0;
    int position = m_items->firstVisible(pass.top);
    for (int shown = 0; position < count && shown < NVO::ItemPositions::many && !pass.isFull; ++shown) {
        if (m_usedWidgets.size() == slot)
            m_usedWidgets.resize(slot + 1);
        if (m_boundPositions.size() <= slot)
            m_boundPositions.resize(slot + 1);
        if (!m_usedWidgets[slot].widget || m_boundPositions[slot] - 1 != position) {
            bind(pass, slot, position);
            if (pass.isAlive())
                count = std::min(count, pass.adapter->count()); // what is gone is not asked for
        }
        if (pass.isAlive())
            place(pass, slot, position);
        if (!pass.isAlive())
            return false;
        ++position;
        if (slot == 0 && position < count && m_items->isMany() && m_items->top(position) <= pass.top)
            position = m_items->firstVisible(pass.top); // that one ended above: the next takes its widget
        else
            ++slot;
    }
    return hideSpares(pass, slot);
}

/** Asks the adapter for the item. */
void RecyclingList::bind(const Pass &pass, int slot, int position)
{
    const int kind = m_items->kind(position);
    if (m_usedWidgets[slot].widget && m_usedWidgets[slot].propertyValue != 0 && kind != 0)
        ensureUsingProperty(slot, kind);

    const QPointer<QWidget> recycled = m_usedWidgets[slot].widget;
    QWidget *widget = pass.adapter->widget(position, recycled, m_container);
    if (!pass.list)
        return;
    m_usedWidgets[slot].widget = accepted(widget);
    m_usedWidgets[slot].position = position;
    m_boundPositions[slot] = position + 1;
    if (recycled && !isPooled(recycled, m_usedWidgets.size()))
        recycled->hide();
}

void RecyclingList::place(Pass &pass, int slot, int position)
{
    if (const QPointer<QWidget> widget = m_usedWidgets[slot].widget) {
        const int height = widget->height();
        m_items->setHeight(position, height);
        const qint64 y = m_items->top(position) - pass.top;
        m_usedWidgets[slot].position = position;
        pass.isFull = y + height > m_superContainer->height();
        const qint64 lowest = qint64(std::numeric_limits<int>::max()) - height; // a bottom has its limit, too
        widget->setGeometry(0, toInt(std::min(y, lowest)),
                            toInt(qint64(m_superContainer->width()) - m_marginRight), height);
        if (widget)
            widget->show();
        if (widget)
            widget->update();
    }
    if (!pass.list)
        return;
    updatePropertyValue(m_usedWidgets[slot]);
    m_items->setKind(position, m_usedWidgets[slot].propertyValue);
}

/** From \a slot on; what is behind them is deleted. Returns whether the pass goes on. */
bool RecyclingList::hideSpares(const Pass &pass, int slot)
{
    for (int kept = 0; slot < m_usedWidgets.size() && kept < spareLimit; ++kept) {
        QWidget *widget = m_usedWidgets[slot].widget;
        if (!widget || isPooled(widget, slot)) {
            m_usedWidgets.remove(slot);
            continue;
        }
        m_usedWidgets[slot].position = -1;
        widget->hide();
        if (!pass.isAlive())
            return false;
        ++slot;
    }
    deleteSurplus(pass, slot);
    return pass.isAlive();
}

void RecyclingList::deleteSurplus(const Pass &pass, int slot)
{
    const QVector<UsedWidgetData> surplus = m_usedWidgets.mid(slot);
    m_usedWidgets.resize(std::min(slot, m_usedWidgets.size()));
    for (const UsedWidgetData &used : surplus) {
        if (pass.list && used.widget && !isPooled(used.widget, m_usedWidgets.size()))
            discard(used.widget);
    }
}

/** Not what the list itself is made of; anything else becomes a child of the container. */
QWidget *RecyclingList::accepted(QWidget *widget) const
{
    if (!widget || widget == m_container || widget->isAncestorOf(m_container))
        return nullptr;
    if (widget->parentWidget() != m_container)
        widget->setParent(m_container);
    return widget;
}

/** Whether one of the first \a slots has \a widget, which an adapter may return for several items. */
bool RecyclingList::isPooled(const QWidget *widget, int slots) const
{
    return std::any_of(m_usedWidgets.begin(), m_usedWidgets.begin() + slots,
                       [widget](const UsedWidgetData &used) { return used.widget == widget; });
}

/** The item that a slot is bound to stays with the slot. */
void RecyclingList::ensureUsingProperty(int slot, int value)
{
    auto *const begin = m_usedWidgets.begin() + slot;
    auto *const found = std::find_if(begin, m_usedWidgets.end(), [value](const UsedWidgetData &used) {
        return used.propertyValue == value;
    });
    if (found != m_usedWidgets.end() && found != begin)
        std::swap(*begin, *found);
}

void RecyclingList::updatePropertyValue(UsedWidgetData &used)
{
    used.propertyValue = 0;
    if (!used.widget)
        return;
    int &number = m_propertyValues[used.widget->property(m_propertyName).toString()];
    if (number == 0)
        number = m_propertyValues.size();
    used.propertyValue = number;
}

void RecyclingList::updateScrollBar(Pass &pass)
{
    const qint64 range = m_items->totalHeight() - m_superContainer->height();
    showBarOrPlaceholder(pass, range >= 0);
    if (!pass.isAlive())
        return;

    const int before = m_scrollBar->value();
    const QSignalBlocker blocker(m_scrollBar);
    m_scrollBar->setRange(0, toInt(std::max(range, qint64(0))));
    m_scrollBar->setVisible(range > 0);
    m_scrollBar->setSingleStep(singleStep);
    m_scrollBar->setPageStep(pageStep);
    pass.wasCut = m_scrollBar->value() != before;
}

void RecyclingList::showBarOrPlaceholder(const Pass &pass, bool overflows)
{
    if (overflows) {
        showInStack(m_scrollBar);
        nullWidget(false, m_superContainer);
    } else if (pass.adapter->count() <= 0 && pass.isAlive()) {
        showInStack(m_barPlaceholder);
        nullWidget(true, m_superContainer);
    }
}

/** Only what is shown says how wide the place of the scroll bar is. */
void RecyclingList::showInStack(QWidget *widget)
{
    const bool isPlaceholder = widget == m_barPlaceholder;
    m_barPlaceholder->setSizePolicy(isPlaceholder ? QSizePolicy::Preferred : QSizePolicy::Ignored,
                                    QSizePolicy::Preferred);
    m_barStack->setCurrentWidget(widget);
}

void RecyclingList::slotUpdateOne(int)
{
    slotUpdateAll();
}

void RecyclingList::slotScrollBarChanged(int)
{
    slotUpdateAll();
}

void RecyclingList::slotUpdateOrder()
{
    m_boundPositions.fill(0);
    slotUpdateAll();
}

void RecyclingList::slotResetAll()
{
    if (m_passing) {
        later(Later::Reset);
        return;
    }
    for (const UsedWidgetData &used : qAsConst(m_usedWidgets)) {
        if (used.widget)
            used.widget->deleteLater();
    }
    m_usedWidgets.clear();
    slotUpdateOrder();
}

void RecyclingList::slotEnsureVisible(int p_position)
{
    if (!m_adapter || p_position < 0 || p_position >= m_adapter->count() || p_position >= m_items->count())
        return;
    const qint64 top = m_scrollBar->value();
    const qint64 bottom = top + height();
    const qint64 itemTop = m_items->top(p_position);
    const qint64 itemBottom = itemTop + m_items->height(p_position);
    const int margin = std::max(m_items->spacing() / 2, m_items->marginTopBottom());

    if (itemTop >= top && itemBottom <= bottom)
        return;
    if (itemTop < top && itemTop >= 0 && itemTop <= m_scrollBar->maximum())
        m_scrollBar->setValue(toInt(std::max(itemTop - margin, qint64(0))));
    else if (itemBottom > bottom)
        m_scrollBar->setValue(
            toInt(std::min(top + itemBottom - bottom + margin, qint64(m_scrollBar->maximum()))));
}

void RecyclingList::setNothingWidgetLayout(QLayout *p_layout)
{
    if (p_layout)
        m_barPlaceholder->setLayout(p_layout);
}

void RecyclingList::nullWidget(bool, QWidget *) {}

/** The place of the items can change without the list doing so, with the width of the scroll bar. */
bool RecyclingList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_superContainer && event->type() == QEvent::Resize)
        later(Later::CheckSize);
    return QFrame::eventFilter(watched, event);
}

void RecyclingList::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    slotUpdateAll();
}

void RecyclingList::wheelEvent(QWheelEvent *event)
{
    m_scrollBar->wheelEvent(event);
}

/** A page is never more than what is visible, so that nothing is left out. */
void RecyclingList::keyPressEvent(QKeyEvent *event)
{
    const int page = std::min(pageStep, m_superContainer->height());
    const qint64 value = m_scrollBar->value();
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    const int key = isPlain && focusPolicy() != Qt::NoFocus ? event->key() : 0;
    if (key == Qt::Key_PageUp)
        m_scrollBar->setValue(toInt(value - page));
    else if (key == Qt::Key_PageDown)
        m_scrollBar->setValue(toInt(value + page));
    else if (key == Qt::Key_Home)
        m_scrollBar->setValue(m_scrollBar->minimum());
    else if (key == Qt::Key_End)
        m_scrollBar->setValue(m_scrollBar->maximum());
    else
        QFrame::keyPressEvent(event);
}
