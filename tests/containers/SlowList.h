#pragma once

#include "SlowPositions.h"

#include <nvo/RecyclingListAdapter.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVariant>

/** What a RecyclingList does, with plain loops and without caring for adapters that do something odd. */
class SlowList : public QFrame
{
public:
    explicit SlowList(RecyclingListAdapter *source)
        : m_adapter(source)
    {
        m_stack->addWidget(m_bar);
        m_stack->addWidget(new QFrame);
        m_bar->setRange(0, 0);
        m_bar->hide();
        m_container->resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(m_area, 1);
        layout->addWidget(m_stack);
        connect(m_bar, &QScrollBar::valueChanged, this, &SlowList::slotUpdateAll);
        connect(source, &RecyclingListAdapter::signalUpdateRecyclingListOne, this, &SlowList::slotUpdateAll);
        connect(source, &RecyclingListAdapter::signalUpdateRecyclingListAll, this, &SlowList::slotUpdateAll);
        connect(source, &RecyclingListAdapter::signalUpdateRecyclingListOrder, this,
                &SlowList::slotUpdateOrder);
    }

    QScrollBar *bar() const { return m_bar; }
    QStackedWidget *stack() const { return m_stack; }
    QWidget *container() const { return m_container; }

    void setSpacing(int pixels) { change(m_positions.spacing, pixels); }
    void setMarginTopBottom(int pixels) { change(m_positions.margin, pixels); }
    void setMarginRight(int pixels)
    {
        if (std::exchange(m_marginRight, pixels) != pixels)
            slotUpdateAll();
    }

    void slotUpdateAll()
    {
        note(false, "Container");
        const int count = m_adapter->count();
        m_positions.resize(count);
        const int top = m_bar->value();
        int position = m_positions.firstVisible(top);
        int i = 0;
        for (bool done = false; position < count && !done; ++i, ++position) {
            m_used.resize(qMax(m_used.size(), i + 1));
            m_bound.resize(qMax(m_bound.size(), i + 1));
            SlowPositions::Entry &entry = m_positions.at(position);
            if (!m_used[i].widget || m_bound[i] - 1 != position) {
                if (m_used[i].widget && m_used[i].kind && entry.kind)
                    ensureKind(i, entry.kind);
                m_used[i].widget = m_adapter->widget(position, m_used[i].widget, m_container);
                m_used[i].position = position;
                m_bound[i] = position + 1;
            }
            if (QWidget *widget = m_used[i].widget) {
                const int h = widget->height();
                m_positions.setHeight(position, h);
                const int y = int(m_positions.top(position) - top);
                widget->setGeometry(0, y, m_area->width() - m_marginRight, h);
                widget->show();
                m_used[i].position = position;
                done = y + h > m_area->height();
            }
            entry.kind = m_used[i].kind = kindOf(m_used[i].widget);
        }
        for (int kept = 0; i < m_used.size() && kept < 10; ++kept) {
            if (!m_used[i].widget) {
                m_used.remove(i);
                continue;
            }
            m_used[i].position = -1;
            m_used[i++].widget->hide();
        }
        for (; m_used.size() > i; m_used.remove(i))
            delete m_used[i].widget;
        updateScrollBar();
    }

    void slotUpdateOrder()
    {
        m_bound.fill(0);
        slotUpdateAll();
    }

    void slotResetAll()
    {
        for (const Used &used : qAsConst(m_used))
            delete used.widget;
        m_used.clear();
        slotUpdateOrder();
    }

    void slotEnsureVisible(int position)
    {
        if (position < 0 || position >= m_adapter->count())
            return;
        const qint64 top = m_bar->value(), bottom = top + height();
        const qint64 y = m_positions.top(position), itemBottom = y + m_positions.height(position);
        const int margin = qMax(m_positions.spacing / 2, m_positions.margin);
        if (y >= top && itemBottom <= bottom)
            return;
        if (y < top && y >= 0 && y <= m_bar->maximum())
            m_bar->setValue(int(y - margin));
        else if (itemBottom > bottom)
            m_bar->setValue(int(top + itemBottom - bottom + margin));
    }

    QPair<int, int> fullyVisiblePositions()
    {
        const int value = m_bar->value();
        const int first = m_positions.firstBelow(value - 1);
        if (first == m_positions.count())
            return {-1, -1};
        int last = first;
        while (last < m_positions.count()
               && m_positions.top(last) - value + m_positions.height(last) <= height())
            ++last;
        return {first, last > first ? last - 1 : -1};
    }

    QWidget *visibleWidget(int position) const
    {
        for (const Used &used : m_used) {
            if (used.widget && used.position == position && used.widget->isVisible())
                return used.widget;
        }
        return nullptr;
    }

    QStringList *log = nullptr;

protected:
    void resizeEvent(QResizeEvent *) override { slotUpdateAll(); }

private:
    struct Used
    {
        int kind = 0;
        int position = -1;
        QPointer<QWidget> widget;
    };

    void note(bool empty, const char *place)
    {
        if (log)
            log->append(QString("%1 RecyclingList%2").arg(empty).arg(place));
    }

    void change(int &number, int pixels)
    {
        if (std::exchange(number, pixels) == pixels)
            return;
        m_positions.forget();
        slotUpdateAll();
    }

    void ensureKind(int i, int kind)
    {
        for (int j = i; j < m_used.size(); ++j) {
            if (m_used[j].kind == kind) {
                std::swap(m_used[i], m_used[j]);
                return;
            }
        }
    }

    int kindOf(const QWidget *widget)
    {
        if (!widget)
            return 0;
        const QString kind = widget->property("style").toString();
        if (!m_kinds.contains(kind))
            m_kinds.append(kind);
        return m_kinds.indexOf(kind) + 1;
    }

    void updateScrollBar()
    {
        const int range = int(m_positions.total()) - m_area->height();
        if (range >= 0 || m_positions.count() == 0) {
            m_stack->setCurrentIndex(range >= 0 ? 0 : 1);
            note(range < 0, "SuperContainer");
        }
        const int before = m_bar->value();
        const QSignalBlocker blocker(m_bar);
        m_bar->setRange(0, qMax(range, 0));
        m_bar->setVisible(range > 0);
        if (m_bar->value() != before)
            slotUpdateAll();
    }

    RecyclingListAdapter *m_adapter;
    QWidget *m_area = new QWidget(this);
    QWidget *m_container = new QWidget(m_area);
    QScrollBar *m_bar = new QScrollBar;
    QStackedWidget *m_stack = new QStackedWidget(this);
    SlowPositions m_positions;
    QVector<Used> m_used;
    QVector<int> m_bound;
    QStringList m_kinds;
    int m_marginRight = 0;
};
