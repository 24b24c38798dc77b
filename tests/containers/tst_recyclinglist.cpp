#include "SlowPositions.h"
#include "TestCase.h"

#include <nvo/RecyclingList.h>
#include <nvo/RecyclingListAdapter.h>

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr int nullItem = -1; // the height of an item without a widget

struct Item
{
    int height;
    QString kind; // empty: no property
};

/** The adapter's part, on numbers of widgets, so that it can be played with and without widgets. */
struct Content
{
    enum Answer { Null, Refill, New };

    Answer answer(int position, const QString *recycledKind) const
    {
        if (items[position].height == nullItem)
            return Null;
        return recycledKind && *recycledKind == items[position].kind ? Refill : New;
    }

    void note(int position, const QString &recycled, const QString &returned)
    {
        log.append(QString("%1: %2 -> %3").arg(position).arg(recycled, returned));
    }

    QVector<Item> items;
    QStringList log;
};

class Adapter : public RecyclingListAdapter
{
public:
    explicit Adapter(Content *shared)
        : content(shared)
    {}

    QWidget *widget(int position, QWidget *recycled, QWidget *parent) override
    {
        const QString kind = recycled ? recycled->property("style").toString() : QString();
        const Content::Answer answer = content->answer(position, recycled ? &kind : nullptr);
        QString recycledName = recycled ? recycled->objectName() : "-";
        if (answer != Content::Refill) {
            delete recycled;
            recycled = answer == Content::New ? new QWidget(parent) : nullptr;
        }
        if (answer == Content::New) {
            recycled->setObjectName(QString::number(++made));
            if (!content->items[position].kind.isEmpty())
                recycled->setProperty("style", content->items[position].kind);
        }
        if (recycled)
            recycled->resize(1, content->items[position].height);
        content->note(position, recycledName, nameOf(recycled));
        return recycled;
    }
    int count() override { return content->items.size(); }

    static QString nameOf(const QWidget *widget) { return widget ? widget->objectName() : "-"; }

    Content *content;
    int made = 0;
};

/** Answers as it is told. */
class FreeAdapter : public RecyclingListAdapter
{
public:
    using Answer = std::function<QWidget *(int, QWidget *, QWidget *)>;

    explicit FreeAdapter(int size, Answer function = {})
        : items(size)
        , answer(std::move(function))
    {}

    QWidget *widget(int position, QWidget *recycled, QWidget *parent) override
    {
        ++asked;
        if (const Answer copy = answer) // the adapter may go meanwhile
            return copy(position, recycled, parent);
        QWidget *item = recycled ? recycled : new QWidget(parent);
        item->resize(1, 20 + position * 37 % 60);
        return item;
    }
    int count() override { return items; }

    int items;
    int asked = 0;
    Answer answer;
};

/** What the list does, on numbers and without haste. */
struct Model
{
    struct Widget
    {
        QString kind;
        QRect geometry;
        bool visible = false;
    };
    struct Slot
    {
        int kind = 0;
        int position = -1;
        int widget = 0;
    };

    void pass()
    {
        positions.resize(content->items.size());
        int position = positions.firstVisible(value);
        int i = 0;
        for (bool done = false; position < content->items.size() && !done; ++i, ++position) {
            slots.resize(qMax(slots.size(), i + 1));
            bound.resize(qMax(bound.size(), i + 1));
            SlowPositions::Entry &entry = positions.at(position);
            if (!slots[i].widget || bound[i] - 1 != position) {
                if (slots[i].widget && slots[i].kind && entry.kind)
                    ensureKind(i, entry.kind);
                slots[i].widget = ask(position, slots[i].widget);
                slots[i].position = position;
                bound[i] = position + 1;
            }
            if (slots[i].widget) {
                Widget &widget = widgets[slots[i].widget];
                const int h = widget.geometry.height();
                positions.setHeight(position, h);
                const int y = int(positions.top(position) - value);
                widget.geometry = QRect(0, y, width - marginRight, h);
                widget.visible = true;
                slots[i].position = position;
                done = y + h > height;
            }
            entry.kind = slots[i].kind = slots[i].widget ? number(widgets[slots[i].widget].kind) : 0;
        }
        for (int kept = 0; i < slots.size() && kept < 10; ++kept) {
            if (!slots[i].widget) {
                slots.remove(i);
                continue;
            }
            slots[i].position = -1;
            widgets[slots[i].widget].visible = false;
            ++i;
        }
        for (; slots.size() > i; slots.remove(i))
            widgets.remove(slots[i].widget);
        updateScrollBar();
    }

    void updateScrollBar()
    {
        const qint64 range = positions.total() - height;
        if (range >= 0)
            showsBar = true;
        else if (content->items.isEmpty())
            showsBar = false;
        maximum = int(qMax(range, qint64(0)));
        if (value > maximum) {
            value = maximum;
            pass();
        }
    }

    void ensureKind(int i, int kind)
    {
        for (int j = i; j < slots.size(); ++j) {
            if (slots[j].kind == kind) {
                std::swap(slots[i], slots[j]);
                return;
            }
        }
    }

    int ask(int position, int recycled)
    {
        const Content::Answer answer =
            content->answer(position, recycled ? &widgets[recycled].kind : nullptr);
        const QString before = nameOf(recycled);
        if (answer != Content::Refill) {
            widgets.remove(recycled);
            recycled = answer == Content::New ? ++made : 0;
        }
        if (recycled) {
            widgets[recycled].kind = content->items[position].kind;
            widgets[recycled].geometry.setHeight(content->items[position].height);
        }
        content->log.append(
            QString("%1: %2 -> %3").arg(position).arg(before, recycled ? QString::number(recycled) : "-"));
        return recycled;
    }

    static QString nameOf(int widget) { return widget ? QString::number(widget) : "-"; }

    int number(const QString &kind)
    {
        if (!numbers.contains(kind))
            numbers.insert(kind, numbers.size() + 1);
        return numbers[kind];
    }

    void scrollTo(qint64 to)
    {
        const int target = int(qBound(qint64(0), to, qint64(maximum)));
        if (std::exchange(value, target) != target)
            pass();
    }

    void ensureVisible(int position)
    {
        if (position < 0 || position >= content->items.size())
            return;
        const qint64 bottom = value + height;
        const qint64 y = positions.top(position);
        const qint64 itemBottom = y + positions.height(position);
        const int margin = qMax(positions.spacing / 2, positions.margin);
        if (y >= value && itemBottom <= bottom)
            return;
        if (y < value && y >= 0 && y <= maximum)
            scrollTo(y - margin);
        else if (itemBottom > bottom)
            scrollTo(value + itemBottom - bottom + margin);
    }

    QPair<int, int> fullyVisible()
    {
        const int first = positions.firstBelow(value - 1);
        if (first == positions.count())
            return {-1, -1};
        int last = first;
        while (last < positions.count() && positions.top(last) - value + positions.height(last) <= height)
            ++last;
        return {first, last > first ? last - 1 : -1};
    }

    int visibleWidget(int position) const
    {
        for (const Slot &slot : slots) {
            if (slot.widget && slot.position == position && widgets[slot.widget].visible)
                return slot.widget;
        }
        return 0;
    }

    Content *content;
    SlowPositions positions;
    QVector<Slot> slots;
    QVector<int> bound;
    QMap<QString, int> numbers;
    QMap<int, Widget> widgets;
    int made = 0;
    int width = 0, height = 0, marginRight = 0;
    int value = 0, maximum = 0;
    bool showsBar = true;
};

/** A list with what is inside. */
struct Shown : public RecyclingList
{
    explicit Shown(const QSize &size = QSize(300, 400))
    {
        resize(size);
        show();
    }

    void nullWidget(bool empty, QWidget *widget) override
    {
        if (log)
            log->append(QString("%1 %2").arg(empty).arg(widget->objectName()));
    }

    QWidget *area() const { return findChild<QWidget *>("RecyclingListSuperContainer"); }
    QWidget *container() const { return findChild<QWidget *>("RecyclingListContainer"); }
    QWidget *placeholder() const { return findChild<QWidget *>("RecyclingListBarPlaceholder"); }
    QStackedWidget *stack() const { return findChild<QStackedWidget *>(); }
    QScrollBar *bar() const { return findChild<QScrollBar *>(); }
    QList<QWidget *> items() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return container()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QList<QWidget *> visibleItems() const
    {
        QList<QWidget *> visible;
        for (QWidget *item : items()) {
            if (item->isVisible())
                visible.append(item);
        }
        std::sort(visible.begin(), visible.end(), [](auto *a, auto *b) { return a->y() < b->y(); });
        return visible;
    }
    /** From the upper edge to the lower one there is an item or the spacing. */
    bool isFilled(int spacing = 10) const
    {
        const QList<QWidget *> visible = visibleItems();
        for (int i = 1; i < visible.size(); ++i) {
            if (visible[i]->y() != visible[i - 1]->geometry().bottom() + 1 + spacing)
                return false;
        }
        return !visible.isEmpty() && visible.first()->y() <= 50
               && visible.last()->geometry().bottom() + 50 >= height() - 1;
    }

    QStringList *log = nullptr;
};

template <typename... Values>
QString line(const Values &...values)
{
    QString text;
    ((text += QString("%1 ").arg(values)), ...);
    return text;
}

QStringList describe(const Shown &list)
{
    QStringList lines;
    for (QWidget *item : list.items())
        lines.append(line(item->objectName(), item->isVisible(), item->y(), item->width(), item->height()));
    lines.sort();
    const QScrollBar *bar = list.bar();
    return lines << line(bar->value(), bar->maximum(), !bar->isHidden(),
                         list.stack()->currentWidget() == bar);
}

QStringList describe(const Model &model)
{
    QStringList lines;
    for (auto it = model.widgets.begin(); it != model.widgets.end(); ++it) {
        const QRect &place = it->geometry;
        lines.append(line(it.key(), it->visible, place.y(), place.width(), place.height()));
    }
    lines.sort();
    return lines << line(model.value, model.maximum, model.maximum != 0, model.showsBar);
}

Item randomItem(QRandomGenerator &random)
{
    static const QStringList kinds{"", "Buchung", "Summe"};
    return {random.bounded(40) ? random.bounded(random.bounded(15) ? 20 : 0, 120) : nullItem,
            kinds[random.bounded(3)]};
}

using Deed = std::function<void(FreeAdapter *, Shown *)>;

} // namespace

Q_DECLARE_METATYPE(Deed)

class TestRecyclingList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithModel_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void agreesWithModel()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        Content content, modelContent;
        Model model;
        model.content = &modelContent;
        Adapter adapter(&content);
        Shown list;
        const auto takeSize = [&] {
            model.width = list.area()->width();
            model.height = list.area()->height();
        };
        takeSize();
        list.setAdapter(&adapter);
        model.pass();

        for (int step = 0; step < 300; ++step) {
            const int count = content.items.size();
            const int any = random.bounded(count + 2) - 1;
            const int choice = random.bounded(100);
            if (choice < 30) {
                const int target = random.bounded(3) ? model.value + random.bounded(-300, 300)
                                                     : random.bounded(model.maximum + 1);
                list.bar()->setValue(target);
                model.scrollTo(target);
            } else if (choice < 40) {
                list.slotEnsureVisible(any);
                model.ensureVisible(any);
            } else if (choice < 50) {
                const QSize size(random.bounded(200, 400), random.bounded(random.bounded(4) ? 100 : 0, 900));
                const bool changes = list.size() != size;
                list.resize(size);
                takeSize();
                if (changes)
                    model.pass();
            } else if (choice < 65) {
                const int at = random.bounded(count + 1);
                for (int i = random.bounded(step < 20 ? 120 : 12); i >= 0; --i)
                    content.items.insert(at, randomItem(random));
            } else if (choice < 75) {
                const int at = random.bounded(count + 1);
                content.items.remove(at,
                                     random.bounded(random.bounded(6) ? 12 : count + 1) % (count - at + 1));
            } else if (choice < 85 && any >= 0 && any < count) {
                content.items[any].height = random.bounded(150);
                if (QWidget *item = list.visibleWidget(any)) {
                    item->resize(item->width(), content.items[any].height);
                    model.widgets[model.visibleWidget(any)].geometry.setHeight(content.items[any].height);
                }
                modelContent.items = content.items;
                Q_EMIT adapter.signalUpdateRecyclingListOne(any);
                model.pass();
            } else if (choice < 89) {
                const int pixels = random.bounded(60);
                int *number = choice == 86   ? &model.positions.spacing
                              : choice == 87 ? &model.positions.margin
                                             : &model.marginRight;
                if (std::exchange(*number, pixels) != pixels) {
                    if (number != &model.marginRight)
                        model.positions.forget();
                    model.pass();
                }
                list.setSpacing(model.positions.spacing);
                list.setMarginTopBottom(model.positions.margin);
                list.setMarginRight(model.marginRight);
            } else if (choice < 93 && model.visibleWidget(any)) {
                const int dead = model.visibleWidget(any);
                delete list.visibleWidget(any);
                model.widgets.remove(dead);
                for (Model::Slot &slot : model.slots) {
                    if (slot.widget == dead)
                        slot.widget = 0;
                }
            } else if (choice < 95) {
                list.slotResetAll();
                model.slots.clear();
                model.widgets.clear();
                model.bound.fill(0);
                model.pass();
            }
            if (modelContent.items.size() != content.items.size() || choice > 90) {
                modelContent.items = content.items;
                if (random.bounded(2)) {
                    Q_EMIT adapter.signalUpdateRecyclingListOrder();
                    model.bound.fill(0);
                } else {
                    Q_EMIT adapter.signalUpdateRecyclingListAll();
                }
                model.pass();
            }
            QCOMPARE(content.log, modelContent.log);
            QCOMPARE(describe(list), describe(model));
            QCOMPARE(list.fullyVisiblePositions(), model.fullyVisible());
            QCOMPARE(Adapter::nameOf(list.visibleWidget(any)), Model::nameOf(model.visibleWidget(any)));
            content.log.clear();
            modelContent.log.clear();
        }
    }

    /** At every place of a long list, its end included, there are items without a gap, and few widgets. */
    void longList()
    {
        FreeAdapter adapter(1000000);
        Shown list;
        list.setAdapter(&adapter);
        QRandomGenerator random(1);
        for (int step = 0; step < 400; ++step) {
            const int before = adapter.asked;
            if (step % 20 == 7)
                list.bar()->setValue(list.bar()->maximum());
            else if (step % 20 == 13)
                list.slotEnsureVisible(random.bounded(adapter.items));
            else
                list.bar()->setValue(list.bar()->value() + random.bounded(-800, 1000));
            QVERIFY(list.isFilled());
            QVERIFY(list.items().size() <= 32);
            QVERIFY(adapter.asked - before <= 100);
            if (step % 20 == 7) {
                for (int i = 0; i < 5; ++i)
                    list.bar()->setValue(list.bar()->maximum());
                QVERIFY(list.visibleWidget(adapter.items - 1));
            }
        }
        for (const int wanted : {999999, 0, 5, 500000, 999998, 500001}) {
            list.slotEnsureVisible(wanted);
            QVERIFY(list.visibleWidget(wanted));
        }
        // One after the other, without leaving one out.
        list.bar()->setValue(0);
        for (int i = 0; i < 300; ++i) {
            list.slotEnsureVisible(i);
            const auto [first, last] = list.fullyVisiblePositions();
            QVERIFY(first <= i && i <= last);
        }
    }

    void beyondTheRange()
    {
        FreeAdapter adapter(1000000, [](int position, QWidget *recycled, QWidget *parent) {
            QWidget *item = recycled ? recycled : new QWidget(parent);
            item->resize(1, 5000 + position % 7);
            return item;
        });
        Shown list;
        list.setAdapter(&adapter);
        QCOMPARE(list.bar()->maximum(), std::numeric_limits<int>::max());
        list.bar()->setValue(list.bar()->maximum());
        const QList<QWidget *> visible = list.visibleItems();
        QVERIFY(visible.first()->y() <= 0 && visible.last()->geometry().bottom() >= list.height() - 1);
        const int last = list.fullyVisiblePositions().first;
        QVERIFY(last > 420000 && last < 440000);
        list.slotEnsureVisible(999999);
        QCOMPARE(list.bar()->value(), list.bar()->maximum());
        list.slotEnsureVisible(400000);
        QVERIFY(list.visibleWidget(400000));
        QVERIFY(list.items().size() < 20);
    }

    /** At the end the items from the first one on are laid out, because the last one begins above. */
    void lastItemHigherThanList()
    {
        FreeAdapter adapter(30);
        Shown list({300, 100});
        list.setAdapter(&adapter);
        for (int i = 0; i < adapter.items - 1; ++i)
            list.slotEnsureVisible(i);
        QVERIFY(list.visibleItems().size() < 6);
        list.bar()->setValue(list.bar()->maximum());
        QCOMPARE(list.visibleItems().size(), 30);
        QCOMPARE(list.visibleItems().last()->geometry().bottom() + 1 + 50, list.height());
        list.bar()->setValue(0);
        QVERIFY(list.items().size() <= 6 + 10);
    }

    /** Nobody falls over what an adapter does while it is asked. */
    void adapterInTheMiddle_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<bool>("goesOn");
        const auto row = [](const char *name, bool goesOn, const Deed &deed) {
            QTest::newRow(name) << deed << goesOn;
        };
        const auto resized = [](int items) {
            return [items](FreeAdapter *adapter, Shown *) {
                adapter->items = items;
                Q_EMIT adapter->signalUpdateRecyclingListAll();
            };
        };
        row("dies", false, [](FreeAdapter *adapter, Shown *) { delete adapter; });
        row("list dies", false, [](FreeAdapter *, Shown *list) { delete list; });
        row("taken", false, [](FreeAdapter *, Shown *list) { list->setAdapter(nullptr); });
        row("shrinks", true, resized(5));
        row("grows", true, resized(70));
        row("new order", true, [](FreeAdapter *, Shown *list) { list->slotUpdateOrder(); });
        row("reset", true, [](FreeAdapter *, Shown *list) { list->slotResetAll(); });
        row("resize", true, [](FreeAdapter *, Shown *list) { list->resize(250, 700); });
        row("spacing", true, [](FreeAdapter *, Shown *list) { list->setSpacing(3); });
        row("scroll", true, [](FreeAdapter *, Shown *list) { list->slotEnsureVisible(0); });
        row("clear", true, [](FreeAdapter *, Shown *list) { qDeleteAll(list->items()); });
    }

    void adapterInTheMiddle()
    {
        QFETCH(Deed, deed);
        QFETCH(bool, goesOn);
        for (const int when : {0, 3, 7}) {
            QPointer<Shown> list = new Shown;
            QPointer<FreeAdapter> adapter = new FreeAdapter(40);
            bool isOver = false;
            adapter->answer = [&, owner = adapter.data()](int position, QWidget *, QWidget *parent) {
                if (position >= owner->items)
                    qWarning("asked for an item that is gone");
                auto *item = new QWidget(parent);
                item->resize(1, 30);
                if (position == when && !std::exchange(isOver, true)) {
                    deed(owner, list);
                    return list ? new QWidget(parent) : nullptr;
                }
                return item;
            };
            list->setAdapter(adapter);
            QVERIFY(isOver);
            for (int i = 0; i < 3; ++i)
                QCoreApplication::processEvents();
            if (list) {
                list->slotUpdateOrder();
                QCOMPARE(list->visibleItems().size() > when + 1, goesOn && adapter->items > when + 1);
                QCOMPARE(list->adapter() != nullptr, goesOn);
            }
            delete list;
            delete adapter;
        }
    }

    void withoutAdapter()
    {
        QStringList log;
        Shown list;
        auto adapter = std::make_unique<FreeAdapter>(40);
        list.setAdapter(adapter.get());
        const QStringList before = describe(list);
        list.log = &log;
        for (int round = 0; round < 2; ++round) {
            list.setAdapter(nullptr);
            for (auto call : {&RecyclingList::slotUpdateOne, &RecyclingList::slotScrollBarChanged,
                              &RecyclingList::slotEnsureVisible, &RecyclingList::setMarginRight})
                (list.*call)(30 + round);
            list.slotUpdateOrder();
            adapter.reset();
        }
        list.resize(list.width(), 300);
        QCOMPARE(describe(list), before);
        QCOMPARE(log, QStringList());
        QVERIFY(list.visibleWidget(0));
        list.slotResetAll();
        QCOMPARE(list.items().size(), 0);
    }

    void oddAnswers()
    {
        Shown list;
        QWidget window;
        QPointer<QWidget> one = new QWidget;
        const QPointer<QWidget> child = new QWidget(&window);
        const QList<QWidget *> answers{one,         &list, nullptr, one, child, list.container(),
                                       list.area(), one,   child};
        FreeAdapter adapter(9, [&](int position, QWidget *, QWidget *) { return answers[position]; });
        child->resize(1, 100);
        one->resize(1, 40);
        list.setAdapter(&adapter);
        QCOMPARE(list.items().size(), 2);
        QVERIFY(one->isVisible() && child->isVisible());
        QCOMPARE(one->parentWidget(), list.container());
        QVERIFY(one->y() != child->y());
        for (int round = 0; round < 5; ++round) {
            for (const int items : {3, 9, 1, 0, 4}) {
                adapter.items = items;
                list.resize(300, 60 + 200 * round % 500);
                round % 2 ? list.slotUpdateOrder() : list.slotUpdateAll();
                QVERIFY(!one || !items || one->isVisible());
            }
        }
        adapter.items = 0;
        list.slotResetAll();
        QCOMPARE(list.items().size(), 0);
    }

    /** What is returned instead of a recycled widget takes its place; the adapter may keep that. */
    void adapterWithStore()
    {
        QHash<int, QPointer<QWidget>> store;
        FreeAdapter adapter(200, [&](int position, QWidget *, QWidget *parent) {
            if (!store[position])
                store[position] = new QWidget(parent);
            store[position]->resize(1, 30);
            return store[position].data();
        });
        Shown list;
        list.setAdapter(&adapter);
        for (const int value : {0, 45, 300, 260, 2000, 0, 1900, 5000}) {
            list.bar()->setValue(value);
            QVERIFY(list.isFilled());
            QVERIFY(list.visibleItems().size() <= 12);
        }
    }

    void heightsThatNeverRest()
    {
        FreeAdapter adapter(200);
        Shown list;
        list.setAdapter(&adapter);
        list.bar()->setValue(list.bar()->maximum());
        QRandomGenerator random(5);
        for (int pass = 0; pass < 300; ++pass) {
            for (QWidget *item : list.items())
                item->resize(item->width(), pass % 10 ? random.bounded(200) : 0);
            pass % 3 ? list.slotUpdateOne(0) : list.bar()->setValue(random.bounded(9000));
            QVERIFY(list.bar()->value() <= list.bar()->maximum());
        }
        // Each time an item moves it loses height, and with it the end of the range comes closer.
        struct Melting : public QWidget
        {
            using QWidget::QWidget;
            void moveEvent(QMoveEvent *) override { resize(width(), height() - 1); }
        };
        FreeAdapter melting(3, [](int, QWidget *recycled, QWidget *parent) {
            QWidget *item = recycled ? recycled : new Melting(parent);
            item->resize(1, 100000);
            return item;
        });
        list.setAdapter(&melting);
        list.slotResetAll();
        for (int i = 0; i < 9; ++i) {
            list.bar()->setValue(list.bar()->maximum());
            list.slotUpdateAll();
            QCoreApplication::processEvents();
        }
        QVERIFY(list.bar()->value() <= list.bar()->maximum());
    }

    void emptyList()
    {
        QStringList log;
        FreeAdapter adapter(-4);
        Shown list;
        auto *text = new QLabel("Keine Buchungen");
        auto *layout = new QVBoxLayout;
        layout->addWidget(text);
        list.setNothingWidgetLayout(nullptr);
        list.setNothingWidgetLayout(layout);
        QCoreApplication::processEvents();
        QVERIFY(list.stack()->width() < text->sizeHint().width());

        list.log = &log;
        list.setAdapter(&adapter);
        QCoreApplication::processEvents();
        const QString before = "0 RecyclingListContainer";
        QCOMPARE(log.mid(0, 2), QStringList({before, "1 RecyclingListSuperContainer"}));
        QCOMPARE(list.stack()->currentWidget(), list.placeholder());
        QVERIFY(text->isVisible() && list.stack()->width() >= text->sizeHint().width());
        QVERIFY(list.bar()->isHidden());
        QCOMPARE(list.fullyVisiblePositions(), qMakePair(-1, -1));

        log.clear();
        adapter.items = 2; // does not overflow: the placeholder stays
        Q_EMIT adapter.signalUpdateRecyclingListAll();
        QCOMPARE(log, QStringList(before));
        QCOMPARE(list.stack()->currentWidget(), list.placeholder());
        adapter.items = 100;
        Q_EMIT adapter.signalUpdateRecyclingListAll();
        QCOMPARE(log.mid(1), QStringList({before, "0 RecyclingListSuperContainer"}));
        QCOMPARE(list.stack()->currentWidget(), list.bar());
        QVERIFY(list.bar()->isVisible());
        // The items follow the area, which got wider with the bar in place of the text.
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        QVERIFY(list.stack()->width() < text->sizeHint().width());
        QCOMPARE(list.visibleItems().first()->width(), list.area()->width());
    }

    void hiddenAndWithoutSize()
    {
        FreeAdapter adapter(500);
        RecyclingList list;
        list.setAdapter(&adapter);
        list.resize(0, 0);
        for (int i = 0; i < 50; ++i)
            list.slotEnsureVisible(i * 10);
        QVERIFY(!list.visibleWidget(0));
        QVERIFY(list.findChild<QScrollBar *>()->maximum() > 1000);
        list.show();
        list.resize(300, 0);
        list.setMarginRight(1000);
        list.resize(300, 200);
        list.setMarginRight(0);
        list.slotEnsureVisible(7);
        QVERIFY(list.visibleWidget(7));
        QCOMPARE(list.visibleWidget(7)->width(), 300 - list.findChild<QStackedWidget *>()->width());
    }

    /** A click on an item may be what makes it one too many. */
    void itemGoesInItsOwnSignal()
    {
        int clicks = 0;
        FreeAdapter adapter(60);
        adapter.answer = [&](int, QWidget *recycled, QWidget *parent) {
            auto *button = qobject_cast<QPushButton *>(recycled);
            if (!button) {
                button = new QPushButton(parent);
                connect(button, &QPushButton::clicked, &adapter, [&, button] {
                    adapter.items = 2;
                    Q_EMIT adapter.signalUpdateRecyclingListAll();
                    button->setText(QString::number(++clicks));
                });
            }
            button->resize(1, 20);
            return button;
        };
        Shown list({300, 900});
        list.setAdapter(&adapter);
        list.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        const QPointer<QWidget> item = list.visibleWidget(25);
        item->setFocus();
        QTest::keyClick(item, Qt::Key_Space);
        QCOMPARE(clicks, 1);
        QCOMPARE(list.visibleItems().size(), 2);
        QCOMPARE(list.items().size(), 12);
        QVERIFY(!item);
    }

    /** Items that go down with their list have the adapter call for a new layout. */
    void listDiesBeforeItsItems()
    {
        FreeAdapter adapter(20);
        adapter.answer = [&](int, QWidget *, QWidget *parent) {
            auto *item = new QWidget(parent);
            item->resize(1, 40);
            connect(item, &QObject::destroyed, &adapter, &RecyclingListAdapter::signalUpdateRecyclingListAll);
            return item;
        };
        auto list = std::make_unique<Shown>();
        list->setAdapter(&adapter);
        const int asked = adapter.asked;
        list.reset();
        QCOMPARE(adapter.asked, asked);
    }

    void keysAndWheel()
    {
        FreeAdapter adapter(300);
        Shown list;
        list.setAdapter(&adapter);
        list.slotEnsureVisible(299);
        list.bar()->setValue(1000);
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers);
            QCoreApplication::sendEvent(list.visibleItems().first(), &event); // the list gets what it leaves
            return list.bar()->value();
        };
        for (const int key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
            QCOMPARE(press(key), 1000);
        list.setFocusPolicy(Qt::StrongFocus);
        QCOMPARE(press(Qt::Key_PageDown), 1400);
        QCOMPARE(press(Qt::Key_PageUp, Qt::KeypadModifier), 1000);
        QCOMPARE(press(Qt::Key_PageUp, Qt::ControlModifier), 1000);
        QCOMPARE(press(Qt::Key_Down), 1000);
        QCOMPARE(press(Qt::Key_Home), 0);
        QCOMPARE(press(Qt::Key_PageUp), 0);
        QCOMPARE(press(Qt::Key_End), list.bar()->maximum());
        list.resize(300, 150);
        list.bar()->setValue(1000);
        QCOMPARE(press(Qt::Key_PageDown), 1150);

        QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &wheel);
        QCOMPARE(list.bar()->value(), 1150 + qMin(99 * QApplication::wheelScrollLines(), 400));
    }

    void accessibility()
    {
        FreeAdapter adapter(12345);
        RecyclingList list;
        list.resize(300, 400);
        list.show();
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&list);
        const QAccessibleTableInterface *table = face->tableInterface();
        QCOMPARE(face->role(), QAccessible::List);
        QCOMPARE(table->rowCount(), 0);
        list.setAdapter(&adapter);
        QCOMPARE(table->rowCount(), 12345);
        QCOMPARE(face->text(QAccessible::Description), QLocale().toString(12345) + " Einträge");
        QCOMPARE(table->cellAt(2, 0)->object(), list.visibleWidget(2));
        QVERIFY(!table->cellAt(5000, 0) && !table->cellAt(-1, 0));
    }
};

QTEST_MAIN(TestRecyclingList)
#include "tst_recyclinglist.moc"
