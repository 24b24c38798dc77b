#include "EventCounter.h"
#include "Guards.h"
#include "Mouse.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Label.h>
#include <nvo/SegmentedControl.h>
#include <nvo/TabBar.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QRandomGenerator>
#include <QStyle>
#include <QStyleFactory>
#include <QtTest>

#include <optional>

using NVO::Label;
using NVO::SegmentedControl;
using NVO::TabBar;

namespace {

constexpr auto Right = QTabBar::RightSide;

/** A bar on screen that knows where it was painted. */
struct Segments : public EventCounter<SegmentedControl>
{
    explicit Segments(const QStringList &titles = {"Eingang", "Offen", "Erledigt"}, bool visible = true)
    {
        for (const QString &title : titles)
            addTab(title);
        resize(700, 30);
        setVisible(visible);
        QCoreApplication::processEvents();
    }

    QWidget *item(int tab, int place) const
    {
        return tabButton(tab, Right)->layout()->itemAt(place)->widget();
    }
    Label *title(int tab) const { return qobject_cast<Label *>(item(tab, 1)); }
    Label *pill(int tab) const { return qobject_cast<Label *>(item(tab, 2)); }
    QByteArray state(int tab) const { return title(tab)->property("state").toByteArray(); }
    QString look(int tab) const
    {
        return tabText(tab)
               + (tabButton(tab, Right) ? "[" + title(tab)->text() + "|" + pill(tab)->text() + "]" : "");
    }

    void checkWidths(int tab) const
    {
        QFont font = title(tab)->font();
        font.setBold(font.bold() || tab == currentIndex());
        const int titleWidth = QFontMetrics(font).horizontalAdvance(title(tab)->text());
        const int pillWidth =
            qMax(20, QFontMetrics(pill(tab)->font()).horizontalAdvance(pill(tab)->text()) + 10);
        const int rest = qMax(0, (tabRect(tab).width() - titleWidth - 25 - pillWidth) / 2);
        const QVector<int> widths{10, titleWidth, pillWidth, rest};
        for (int i = 0; i < widths.size(); ++i) {
            QCOMPARE(item(tab, i)->minimumWidth(), widths[i]);
            QCOMPARE(item(tab, i)->maximumWidth(), widths[i]);
            QCOMPARE(item(tab, i)->width(), widths[i]);
        }
        QVERIFY(tabRect(tab).contains(tabButton(tab, Right)->geometry()));
    }

    using SegmentedControl::tabLayoutChange;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        SegmentedControl::paintEvent(event);
    }

public:
    QRegion painted;
};

template <typename Bar>
void setUpBar()
{
    Bar bar;
    QVERIFY(bar.documentMode() && bar.expanding() && !bar.usesScrollButtons() && !bar.drawBase());
    QCOMPARE(bar.elideMode(), Qt::ElideRight);
    QCOMPARE(bar.cursor().shape(), Qt::PointingHandCursor);
    const auto hint = [&bar] { return bar.style()->styleHint(QStyle::SH_TabBar_Alignment, nullptr, &bar); };
    QCOMPARE(hint(), int(Qt::AlignJustify));
    bar.addTab("Konto");
    bar.addTab("Buchung");
    bar.show();
    bar.resize(500, bar.height());
    QCOMPARE(bar.tabRect(1).right(), 499);

    QStyle *other = QStyleFactory::create("Windows");
    bar.setStyle(other); // taken over, and taken away again
    QCOMPARE(hint(), int(Qt::AlignLeft));
    bar.grab();
    bar.setStyle(nullptr);
    delete other;
    bar.grab();
}

} // namespace

class TestTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"FontSizes", "[Element]\nSegmentedControl=SMALL\n"},
            {"Font", "[Size]\nSMALL=11\nDEFAULT=13\n"},
            {"SegmentedControl", "::tab { background: white; padding: 0 6px; } "
                                 "NVO--Label { color: rgb(1, 1, 1); } "
                                 "[state=\"active\"] { color: rgb(2, 2, 2); }"},
            {"TabBar", "[style=\"Mac\"]::tab { background: rgb(9, 0, 0); min-height: 40px; } "
                       "[currentIndex=\"1\"]::tab { background: rgb(0, 9, 0); }"}});
        NVO::Css::instance().reset();
    }

    void setUpTabBar() { setUpBar<TabBar>(); }
    void setUpSegments() { setUpBar<SegmentedControl>(); }

    void tabBarLook()
    {
        EventCounter<TabBar> bar;
        for (const char *title : {"Konto", "Buchung", "Beleg"})
            bar.addTab(title);
        bar.resize(300, 40);
        bar.show();
        const auto color = [&] { return bar.grab().toImage().pixelColor(2, 2); };
        QCOMPARE(bar.property("style").toString(), "Mac");
        QCOMPARE(color(), QColor(9, 0, 0));
        bar.setCurrentIndex(1);
        QCOMPARE(color(), QColor(0, 9, 0)); // the sheet sees the current tab
        bar.setCurrentIndex(2);
        QCOMPARE(color(), QColor(9, 0, 0));

        const int changes = bar.counts[QEvent::StyleChange];
        bar.setTabBarStyle(NVO::Mac);
        QCOMPARE(bar.counts[QEvent::StyleChange], changes);
        bar.setProperty("style", "own");
        bar.setTabBarStyle(NVO::TabBarStyle(7));
        QCOMPARE(bar.tabBarStyle(), NVO::TabBarStyle(7));
        QCOMPARE(bar.property("style").toString(), "own");
        bar.setTabBarStyle(NVO::Mac);
        QCOMPARE(bar.property("style").toString(), "Mac");

        m_theme->set("TabBar", "::tab { background: rgb(0, 0, 9); }");
        NVO::Css::instance().reset();
        QCOMPARE(color(), QColor(9, 0, 0));
        bar.setCurrentIndex(0);
        QCOMPARE(color(), QColor(0, 0, 9));
    }

    void lifeCycle_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::newRow("shown") << true;
        QTest::newRow("hidden") << false;
    }
    void lifeCycle()
    {
        QFETCH(bool, visible);
        Segments bar({"Eingang", "Offen", "Erledigt"}, visible);
        bar.setNotification(0, "3");
        QCOMPARE(bar.look(0), "[Eingang|3]");
        QCOMPARE(bar.notification(0), "3");
        QCOMPARE(bar.item(0, 3)->maximumWidth(), 0); // until the next layout
        QCOMPARE(bar.pill(0)->maximumWidth(), 20);
        QCOMPARE(bar.pill(0)->objectName(), "notification");
        QCOMPARE(bar.title(0)->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
        const auto *row = bar.tabButton(0, Right)->layout();
        QCOMPARE(row->spacing(), 5);
        QCOMPARE(row->contentsMargins(), QMargins());
        QCOMPARE(bar.state(0), "active");
        bar.setNotification(2, "1234");
        QVERIFY(!bar.title(2)->property("state").isValid());
        bar.show();
        QCoreApplication::processEvents();
        bar.checkWidths(0);
        bar.checkWidths(2);

        bar.setCurrentIndex(2);
        QCOMPARE(bar.state(0), "");
        QCOMPARE(bar.state(2), "active");
        QCOMPARE(bar.title(2)->palette().color(QPalette::WindowText), QColor(2, 2, 2));
        QCOMPARE(bar.title(0)->palette().color(QPalette::WindowText), QColor(1, 1, 1));
        bar.checkWidths(0);
        bar.checkWidths(2);
        const QSize smallest = bar.minimumSizeHint();
        for (const int width : {900, 300, 640}) {
            bar.resize(width, 30);
            bar.checkWidths(0);
            bar.checkWidths(2);
            QCOMPARE(bar.minimumSizeHint(), smallest); // what fills a wide bar asks for nothing
        }

        bar.hide();
        bar.setTabText(1, QString(100, 'o'));
        bar.setNotification(0, "3"); // one layout serves all
        bar.show();
        bar.checkWidths(2);

        QPointer<QWidget> button = bar.tabButton(2, Right);
        bar.setNotification(2, "");
        QCOMPARE(bar.look(2), "Erledigt");
        QTRY_VERIFY(!button);
        bar.setNotification(2, ""); // nobody should
        QCOMPARE(bar.look(2), "");
    }

    void stateBeforeFirstLayout()
    {
        Segments bar({"Eingang", "Offen"}, false);
        bar.setNotification(0, "1");
        bar.setNotification(1, "2");
        bar.setNotification(1, "2");
        bar.setCurrentIndex(1);
        bar.show();
        QCOMPARE(bar.state(0), "");
        QCOMPARE(bar.state(1), "active");
        bar.setCurrentIndex(0);
        QCOMPARE(bar.state(0), "active");
    }

    void layoutGuard()
    {
        struct Recorder : public Segments
        {
            void tabLayoutChange() override
            {
                ++calls;
                deepest = qMax(deepest, ++depth);
                Segments::tabLayoutChange();
                --depth;
            }
            int calls = 0;
            int depth = 0;
            int deepest = 0;
        } bar;
        for (const char *text : {"1", "22", "", "333"})
            bar.setNotification(1, text);
        QVERIFY(bar.calls > 0 && bar.deepest <= 2);
        QTest::qWait(20);
        const int calls = bar.calls;
        QTest::qWait(20);
        QCOMPARE(bar.calls, calls); // comes to rest
    }

    void ownTabOnly()
    {
        Segments bar;
        for (const int i : {0, 1, 2})
            bar.setNotification(i, "5");
        QTest::qWait(50);
        for (const char *text : {"6", "17", "18", "345", "1"}) {
            bar.painted = QRegion();
            const QVector<QRect> others{bar.tabRect(0), bar.tabRect(2)};
            bar.setNotification(1, text);
            QTest::qWait(20);
            QCOMPARE(bar.pill(1)->text(), QString(text));
            bar.checkWidths(1);
            QVERIFY(!bar.painted.isEmpty());
            QVERIFY2(bar.tabRect(1).contains(bar.painted.boundingRect()), text);
            QVERIFY(others[0] == bar.tabRect(0) && others[1] == bar.tabRect(2));
        }
    }

    // Against the maps of notifications and titles as they are described, on a bar of plain texts.
    void randomised()
    {
        QRandomGenerator random(71);
        for (int round = 0; round < 30; ++round) {
            Segments bar({"a", "b", "c"}, round % 2);
            struct Tab
            {
                QString text;
                QStringList button; // title and notification
            };
            QVector<Tab> tabs{{"a", {}}, {"b", {}}, {"c", {}}};
            QMap<int, QString> notifications;
            QMap<int, QString> texts;
            QList<int> notified;
            const auto update = [&](int index) {
                const bool known = index >= 0 && index < tabs.size();
                Tab unknown;
                Tab &tab = known ? tabs[index] : unknown;
                if (notifications.value(index).isEmpty()) {
                    tab = {texts.take(index), {}};
                    notified.removeAll(index);
                    return;
                }
                if (tab.button.isEmpty()) {
                    if (!tab.text.isEmpty())
                        texts[index] = tab.text;
                    if (!notified.contains(index))
                        notified.append(index);
                }
                tab = {tab.button.isEmpty() ? QString() : tab.text,
                       {texts.value(index), notifications[index]}};
            };
            for (int step = 0; step < 60; ++step) {
                static const QVector<int> odd{-1, INT_MIN, INT_MAX, 1000};
                const int index = random.bounded(12) ? random.bounded(6) : odd[random.bounded(4)];
                const int to = random.bounded(6);
                switch (random.bounded(6)) {
                case 0:
                    if (tabs.size() > 8)
                        break;
                    bar.insertTab(index, QString::number(step));
                    tabs.insert(index >= 0 && index < tabs.size() ? index : tabs.size(),
                                {QString::number(step), {}});
                    break;
                case 1:
                    bar.removeTab(index);
                    notifications[index] = QString();
                    texts.remove(index);
                    notified.removeAll(index);
                    if (index >= 0 && index < tabs.size())
                        tabs.remove(index);
                    break;
                case 2:
                    bar.moveTab(index, to);
                    if (index >= 0 && index < tabs.size() && to < tabs.size())
                        tabs.move(index, to);
                    break;
                default:
                    const QString text =
                        random.bounded(4) ? QString::number(random.bounded(2000)) : QString();
                    bar.setNotification(index, text);
                    notifications[index] = text;
                    update(index);
                }
                bar.setCurrentIndex(random.bounded(6));
                bar.tabLayoutChange();
                const QList<int> list = notified;
                for (const int i : list)
                    update(i);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QCOMPARE(bar.count(), tabs.size());
                for (int i = 0; i < tabs.size(); ++i) {
                    const QStringList &button = tabs[i].button;
                    QCOMPARE(bar.notification(i), notifications.value(i));
                    QCOMPARE(bar.look(i),
                             tabs[i].text + (button.isEmpty() ? "" : "[" + button.join("|") + "]"));
                    if (bar.isVisible() && notified.contains(i))
                        bar.checkWidths(i);
                }
                QCOMPARE(bar.findChildren<Label *>("notification").size(),
                         int(std::count_if(tabs.begin(), tabs.end(),
                                           [](const Tab &tab) { return !tab.button.isEmpty(); })));
            }
        }
    }

    void foreignAndDying()
    {
        Segments bar;
        auto *own = new QWidget;
        bar.setTabButton(0, Right, own); // a button of the application
        bar.setNotification(0, "1");
        bar.setCurrentIndex(1);
        QCOMPARE(bar.tabButton(0, Right), own);
        bar.setNotification(1, "2");
        delete bar.tabButton(1, Right); // somebody who tidies up
        bar.resize(500, 30);
        QCOMPARE(bar.look(1), "[Offen|2]");
        delete bar.title(1);
        bar.setNotification(1, "3");
        bar.setCurrentIndex(2);
        bar.grab();
        bar.setTabsClosable(true);
        bar.setTabsClosable(false);
        bar.grab();

        auto *doomed = new Segments;
        doomed->setNotification(0, "1");
        connect(doomed, &QTabBar::currentChanged, doomed, [doomed] { delete doomed; });
        QPointer<Segments> alive(doomed);
        doomed->setCurrentIndex(1);
        QVERIFY(!alive);
    }

    void fontDelta()
    {
        const FontDeltaGuard guard;
        for (const int delta : {0, 3}) {
            NVO::Css::instance().setFontDelta(delta);
            Segments bar;
            bar.setNotification(0, "12");
            for (const int next : {5, -2, delta}) {
                NVO::Css::instance().setFontDelta(next);
                QCoreApplication::processEvents();
                QEvent again(QEvent::ApplicationFontChange); // in any order
                QCoreApplication::sendEvent(bar.title(0), &again);
                QCoreApplication::sendEvent(bar.pill(0), &again);
                QCOMPARE(bar.pill(0)->font().pixelSize(), 11 + next);
                QCOMPARE(bar.title(0)->font().pixelSize(), bar.font().pixelSize());
                bar.checkWidths(0);
            }
        }
    }

    void mouseAndKeyboard()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Segments bar;
            bar.setLayoutDirection(direction);
            bar.setNotification(1, "2");
            bar.setNotification(2, "2");
            bar.setTabEnabled(1, false);
            QCoreApplication::processEvents();
            bar.checkWidths(1);
            bar.grab();
            QVERIFY(!bar.title(1)->isEnabled() && bar.title(2)->isEnabled());
            Mouse mouse(&bar);
            for (const int tab : {2, 1, 0}) {
                mouse.press(bar.mapToGlobal(bar.tabRect(tab).center()));
                mouse.release();
                QCOMPARE(bar.currentIndex(), tab == 1 ? 2 : tab);
            }
            QTest::keyClick(&bar, direction == Qt::LeftToRight ? Qt::Key_Right : Qt::Key_Left);
            QCOMPARE(bar.currentIndex(), 2); // the disabled one is passed over
        }
    }

    void accessible()
    {
        Segments bar({"&Eingang", "Offen", "R && D"});
        bar.setNotification(0, "12");
        bar.setNotification(1, "<b>3</b>");
        bar.setTabEnabled(2, false);
        bar.setTabToolTip(1, "Noch nicht gebucht");
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(list->role(), QAccessible::PageTabList);
        QCOMPARE(list->childCount(), 3);
        QCOMPARE(list->text(QAccessible::Name), "Eingang, 12");
        const QStringList names{"Eingang, 12", "Offen, 3", "R & D"};
        for (int i = 0; i < 3; ++i) {
            QAccessibleInterface *tab = list->child(i);
            QCOMPARE(tab->role(), QAccessible::PageTab);
            QCOMPARE(tab->text(QAccessible::Name), names[i]);
            QCOMPARE(bool(tab->state().selected), i == 0);
            QCOMPARE(bool(tab->state().disabled), i == 2);
            QCOMPARE(list->indexOfChild(tab), i);
            const QPoint center = tab->rect().center();
            QCOMPARE(list->childAt(center.x(), center.y()), tab);
        }
        QCOMPARE(list->child(1)->text(QAccessible::Description), "Noch nicht gebucht");
        list->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(bar.currentIndex(), 0);
        list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(bar.currentIndex(), 1);
        QVERIFY(list->child(1)->state().selected);
        QVERIFY(!list->child(3) && !list->child(-1));
        QAccessibleInterface *last = list->child(2);
        bar.removeTab(2);
        QVERIFY(!last->isValid() && last->state().invalid && last->text(QAccessible::Name).isEmpty());
        bar.setAccessibleTabName(0, "Alles Neue");
        QCOMPARE(list->child(0)->text(QAccessible::Name), "Alles Neue");
        TabBar plain;
        plain.addTab("Konto");
        QCOMPARE(QAccessible::queryAccessibleInterface(&plain)->child(0)->text(QAccessible::Name), "Konto");
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestTabBar)
#include "tst_tabbar.moc"
