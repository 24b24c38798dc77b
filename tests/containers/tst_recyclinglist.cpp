#include "SlowList.h"
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

/** Refills a recycled widget of the right kind and tells all widgets apart by number. */
class Adapter : public RecyclingListAdapter
{
public:
    explicit Adapter(const QVector<Item> *shared)
        : items(shared)
    {}

    QWidget *widget(int position, QWidget *recycled, QWidget *parent) override
    {
        const Item item = items->at(position);
        log.append(QString("%1: %2").arg(position).arg(nameOf(recycled)));
        if (recycled && (item.height == nullItem || recycled->property("style").toString() != item.kind))
            delete std::exchange(recycled, nullptr);
        if (item.height == nullItem)
            return nullptr;
        if (!recycled) {
            recycled = new QWidget(parent);
            recycled->setObjectName(QString::number(++made));
            if (!item.kind.isEmpty())
                recycled->setProperty("style", item.kind);
        }
        recycled->resize(1, item.height);
        return recycled;
    }
    int count() override { return items->size(); }

    static QString nameOf(const QWidget *widget) { return widget ? widget->objectName() : "-"; }

    const QVector<Item> *items;
    QStringList log;
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

/** What is there to be seen of a list. */
template <typename List>
QStringList describe(const List &list)
{
    QStringList lines;
    const auto add = [&](const QString &name, const std::initializer_list<int> &numbers) {
        lines.append(name);
        for (const int number : numbers)
            lines.last() += ' ' + QString::number(number);
    };
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (QObject *child : list.container()->children()) {
        const auto *item = qobject_cast<QWidget *>(child);
        add(item->objectName(), {item->isVisible(), item->y(), item->width(), item->height()});
    }
    lines.sort();
    const QScrollBar *bar = list.bar();
    add("bar", {bar->value(), bar->maximum(), bar->isHidden(), list.stack()->currentIndex()});
    return lines;
}

Item randomItem(QRandomGenerator &random)
{
    static const QStringList kinds{"", "Buchung", "Summe"};
    return {random.bounded(40) ? random.bounded(random.bounded(15) ? 20 : 0, 120) : nullItem,
            kinds[random.bounded(3)]};
}

using Deed = std::function<void(FreeAdapter *, Shown *)>;
using Heights = std::function<int(int)>;

} // namespace

Q_DECLARE_METATYPE(Deed)
Q_DECLARE_METATYPE(Heights)

class TestRecyclingList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithSlowList_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    void agreesWithSlowList()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        QVector<Item> items;
        Adapter adapter(&items), slowAdapter(&items);
        Shown list;
        SlowList slow(&slowAdapter);
        const auto both = [&](const auto &deed) {
            deed(list, adapter);
            deed(slow, slowAdapter);
        };
        slow.resize(list.size());
        slow.show();
        list.setAdapter(&adapter);
        both([](auto &one, auto &source) { one.log = &source.log; });

        for (int step = 0; step < 300; ++step) {
            const int count = items.size();
            const int any = random.bounded(count + 2) - 1;
            const int choice = random.bounded(100);
            const int pixels = random.bounded(60);
            bool isChanged = choice > 90;
            if (choice < 30) {
                const int target = random.bounded(3) ? list.bar()->value() + random.bounded(-300, 300)
                                                     : random.bounded(list.bar()->maximum() + 1);
                both([&](auto &one, auto &) { one.bar()->setValue(target); });
            } else if (choice < 40) {
                both([&](auto &one, auto &) { one.slotEnsureVisible(any); });
            } else if (choice < 50) {
                const QSize size(random.bounded(200, 400), random.bounded(random.bounded(4) ? 100 : 0, 900));
                both([&](auto &one, auto &) { one.resize(size); });
            } else if (choice < 65) {
                const int at = random.bounded(count + 1);
                for (int i = random.bounded(step < 20 ? 120 : 12); i >= 0; --i)
                    items.insert(at, randomItem(random));
                isChanged = true;
            } else if (choice < 75) {
                const int at = random.bounded(count + 1);
                items.remove(at, random.bounded(random.bounded(6) ? 12 : count + 1) % (count - at + 1));
                isChanged = true;
            } else if (choice < 85 && any >= 0 && any < count) {
                items[any].height = random.bounded(150);
                both([&](auto &one, auto &source) {
                    if (QWidget *item = one.visibleWidget(any))
                        item->resize(item->width(), items[any].height);
                    Q_EMIT source.signalUpdateRecyclingListOne(any);
                });
            } else if (choice == 85) {
                both([&](auto &one, auto &) { one.setSpacing(pixels - 10); });
            } else if (choice == 86) {
                both([&](auto &one, auto &) { one.setMarginTopBottom(pixels); });
            } else if (choice == 87) {
                both([&](auto &one, auto &) { one.setMarginRight(pixels); });
            } else if (choice < 93) {
                both([&](auto &one, auto &) { delete one.visibleWidget(any); });
            } else if (choice < 95) {
                both([&](auto &one, auto &) { one.slotResetAll(); });
            }
            if (isChanged) {
                const auto signal = random.bounded(2) ? &RecyclingListAdapter::signalUpdateRecyclingListOrder
                                                      : &RecyclingListAdapter::signalUpdateRecyclingListAll;
                both([&](auto &, auto &source) { Q_EMIT(source.*signal)(); });
            }
            QCOMPARE(adapter.log, slowAdapter.log);
            QCOMPARE(describe(list), describe(slow));
            QCOMPARE(list.fullyVisiblePositions(), slow.fullyVisiblePositions());
            QCOMPARE(Adapter::nameOf(list.visibleWidget(any)), Adapter::nameOf(slow.visibleWidget(any)));
            both([](auto &, auto &source) { source.log.clear(); });
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

    void manyCostFew_data()
    {
        QTest::addColumn<Heights>("heightOf");
        QTest::addColumn<int>("listHeight");
        QTest::addColumn<int>("spacing");
        QTest::addColumn<int>("mostAsked");
        const auto row = [](const char *name, const Heights &heights, int mostAsked = 200,
                            int listHeight = 400, int spacing = 10) {
            QTest::newRow(name) << heights << listHeight << spacing << mostAsked;
        };
        row("growing", [](int item) { return 20 + item / 3000; });
        row("first high", [](int item) { return item < 20 ? 2000 : 20; });
        row("few huge", [](int item) { return item % 5003 ? 24 : 400000; });
        row("last high", [](int item) { return item > 999890 ? 5000 : 24; });
        row(
            "low list", [](int item) { return 80 + item % 30; }, 200, 60);
        row(
            "list without height", [](int item) { return 80 + item % 30; }, 200, 0);
        row(
            "no height", [](int) { return 0; }, 1000, 400, 0);
        row(
            "falling", [](int) { return 20; }, 1000, 400, -30);
        row(
            "no widgets", [](int) { return nullItem; }, 1100);
    }

    /** Wherever a list of many items is sent to, it asks for few of them and shows some. */
    void manyCostFew()
    {
        QFETCH(Heights, heightOf);
        QFETCH(int, listHeight);
        QFETCH(int, spacing);
        QFETCH(int, mostAsked);
        FreeAdapter adapter(1000000, [&](int position, QWidget *recycled, QWidget *parent) -> QWidget * {
            if (adapter.asked > 2 * mostAsked)
                adapter.items = 0; // instead of hours
            if (heightOf(position) == nullItem)
                return nullptr;
            QWidget *item = recycled ? recycled : new QWidget(parent);
            item->resize(1, heightOf(position));
            return item;
        });
        Shown list({300, listHeight});
        list.setSpacing(spacing);
        const QVector<std::function<void()>> deeds{
            [&] { list.setAdapter(&adapter); },
            [&] { list.bar()->setValue(list.bar()->maximum()); },
            [&] { list.bar()->setValue(list.bar()->maximum()); },
            [&] { list.slotEnsureVisible(adapter.items - 1); },
            [&] {
                adapter.items -= 100;
                Q_EMIT adapter.signalUpdateRecyclingListAll();
            },
            [&] { list.bar()->setValue(list.bar()->maximum() / 2); },
            [&] { list.bar()->setValue(list.bar()->maximum()); },
            [&] { list.setSpacing(spacing - 10); },
            [&] { list.slotResetAll(); },
            [&] { list.bar()->setValue(0); },
        };
        for (const auto &deed : deeds) {
            adapter.asked = 0;
            deed();
            QVERIFY2(adapter.asked <= mostAsked, qPrintable(QString::number(adapter.asked)));
            QVERIFY(mostAsked > 200 || list.visibleItems().last()->geometry().bottom() >= 0);
        }
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

    void hiddenAndExtreme()
    {
        FreeAdapter adapter(500);
        RecyclingList list;
        list.setAdapter(&adapter);
        list.resize(0, 0);
        for (int i = 0; i < 50; ++i)
            list.slotEnsureVisible(i * 10);
        QVERIFY(!list.visibleWidget(0));
        list.setMarginRight(1000);
        list.show();
        list.resize(300, 200);
        for (const int pixels : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0}) {
            for (auto set : {&RecyclingList::setMarginRight, &RecyclingList::setMarginTopBottom,
                             &RecyclingList::setSpacing})
                (list.*set)(pixels);
        }
        list.slotEnsureVisible(7);
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
