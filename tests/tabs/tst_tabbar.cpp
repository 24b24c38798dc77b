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

/** A bar that knows where it was painted and how often it was laid out. */
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

    QLayout *row(int tab) const { return tabButton(tab, Right)->layout(); }
    QWidget *item(int tab, int place) const { return row(tab)->itemAt(place)->widget(); }
    Label *title(int tab) const { return qobject_cast<Label *>(item(tab, 1)); }
    Label *pill(int tab) const { return qobject_cast<Label *>(item(tab, 2)); }
    QStringList texts(int tab) const
    {
        return tabButton(tab, Right) ? QStringList{tabText(tab), title(tab)->text(), pill(tab)->text()}
                                     : QStringList{tabText(tab)};
    }

    void check(int tab) const
    {
        for (const Label *label : {title(tab), pill(tab)}) {
            const QString state = label->property("state").toString();
            QCOMPARE(state, tab == currentIndex() ? "active" : "");
            QCOMPARE(label->palette().color(QPalette::WindowText).red(), state.isEmpty() ? 1 : 2);
        }
        QFont font = title(tab)->font();
        font.setBold(tab == currentIndex());
        const int titleWidth = QFontMetrics(font).horizontalAdvance(title(tab)->text());
        const int pillWidth =
            qMax(20, QFontMetrics(pill(tab)->font()).horizontalAdvance(pill(tab)->text()) + 10);
        const int rest = qMax(0, (tabRect(tab).width() - titleWidth - 25 - pillWidth) / 2);
        int place = 0;
        for (const int width : {10, titleWidth, pillWidth, rest}) {
            const QWidget *shown = item(tab, place++);
            QCOMPARE(QVector<int>({shown->minimumWidth(), shown->maximumWidth(), shown->width()}),
                     QVector<int>(3, width));
        }
        QVERIFY(tabRect(tab).contains(tabButton(tab, Right)->geometry()));
    }

    void tabLayoutChange() override
    {
        deepest = qMax(deepest, ++depth);
        SegmentedControl::tabLayoutChange();
        --depth;
        ++layouts;
    }

    QRegion painted;
    int depth = 0;
    int deepest = 0;
    int layouts = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        SegmentedControl::paintEvent(event);
    }
};

template <typename Bar>
void checkSetUp()
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

    const QScopedPointer<QStyle> other(QStyleFactory::create("Windows"));
    bar.setStyle(other.data()); // taken over, and taken away again
    QCOMPARE(hint(), int(Qt::AlignLeft));
    bar.grab();
    bar.setStyle(nullptr);
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

    void setUpTabBar() { checkSetUp<TabBar>(); }
    void setUpSegments() { checkSetUp<SegmentedControl>(); }

    void tabBarLook()
    {
        EventCounter<TabBar> bar;
        for (const char *title : {"Konto", "Buchung", "Beleg"})
            bar.addTab(title);
        bar.resize(300, 40);
        bar.show();
        const auto color = [&] { return bar.grab().toImage().pixelColor(2, 2); };
        QCOMPARE(color(), QColor(9, 0, 0));
        bar.setCurrentIndex(1);
        QCOMPARE(color(), QColor(0, 9, 0)); // the sheet sees the current tab

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
        bar.setCurrentIndex(0);
        QCOMPARE(color(), QColor(0, 0, 9));
    }

    void lifeCycle()
    {
        for (const bool visible : {true, false}) {
            Segments bar({"Eingang", "Offen", "Erledigt"}, visible);
            bar.setNotification(0, "3");
            QCOMPARE(bar.item(0, 3)->maximumWidth(), 0); // until the next layout
            QCOMPARE(bar.pill(0)->objectName(), "notification");
            QCOMPARE(bar.title(0)->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
            QCOMPARE(bar.row(0)->spacing(), 5);
            QCOMPARE(bar.row(0)->contentsMargins(), QMargins());
            bar.setNotification(2, "1234");
            QVERIFY(!bar.title(2)->property("state").isValid());
            bar.setCurrentIndex(2); // perhaps before the first layout
            bar.show();
            QCoreApplication::processEvents();
            for (const int current : {0, 2}) {
                bar.setCurrentIndex(current);
                bar.check(0);
                bar.check(2);
            }
            const QSize smallest = bar.minimumSizeHint();
            for (const int width : {900, 300, 640}) {
                bar.resize(width, 30);
                bar.check(0);
                bar.check(2);
                QCOMPARE(bar.minimumSizeHint(), smallest); // what fills a wide bar asks for nothing
            }

            bar.hide();
            bar.setTabText(1, QString(100, 'o'));
            bar.setNotification(0, "3"); // one layout serves all
            bar.show();
            bar.check(2);

            QPointer<QWidget> button = bar.tabButton(2, Right);
            bar.setNotification(2, "");
            QCOMPARE(bar.texts(2), QStringList("Erledigt"));
            QTRY_VERIFY(!button);
            const int layouts = bar.layouts;
            QTest::qWait(20);
            QCOMPARE(bar.layouts, layouts); // comes to rest
            QVERIFY(layouts > 0 && bar.deepest <= 2);
        }
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
            bar.check(1);
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
            QTabBar plain; // the data of a tab are title and notification
            for (int i = 0; i < bar.count(); ++i)
                plain.addTab(bar.tabText(i));
            QMap<int, QString> notifications;
            QMap<int, QString> titles;
            QList<int> notified;
            const auto update = [&](int i) {
                if (notifications.value(i).isEmpty()) {
                    plain.setTabText(i, titles.take(i));
                    plain.setTabData(i, {});
                    notified.removeAll(i);
                    return;
                }
                if (!plain.tabData(i).isValid() && !plain.tabText(i).isEmpty())
                    titles[i] = plain.tabText(i);
                if (!plain.tabData(i).isValid() && !notified.contains(i))
                    notified.append(i);
                if (!plain.tabData(i).isValid())
                    plain.setTabText(i, "");
                plain.setTabData(i, QStringList{titles.value(i), notifications[i]});
            };
            for (int step = 0; step < 60; ++step) {
                const int odd = QVector<int>{-1, INT_MIN, INT_MAX, 1000}.at(random.bounded(4));
                const int index = random.bounded(12) ? random.bounded(6) : odd;
                const int action = random.bounded(6);
                if (action == 0 && bar.count() < 9) {
                    for (QTabBar *each : {static_cast<QTabBar *>(&bar), &plain})
                        each->insertTab(index, QString::number(step));
                } else if (action == 1) {
                    bar.removeTab(index);
                    plain.removeTab(index);
                    notifications[index] = QString();
                    titles.remove(index);
                    notified.removeAll(index);
                } else if (action == 2) {
                    bar.moveTab(index, step % 6);
                    plain.moveTab(index, step % 6);
                } else {
                    notifications[index] = QStringList{"", "1", "22", "3333"}.at(random.bounded(4));
                    bar.setNotification(index, notifications[index]);
                    update(index);
                }
                bar.setCurrentIndex(random.bounded(6));
                bar.tabLayoutChange();
                for (const int i : QList<int>(notified))
                    update(i);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QCOMPARE(bar.count(), plain.count());
                int buttons = 0;
                for (int i = 0; i < bar.count(); ++i) {
                    buttons += plain.tabData(i).isValid();
                    QCOMPARE(bar.notification(i), notifications.value(i));
                    QCOMPARE(bar.texts(i), QStringList(plain.tabText(i)) + plain.tabData(i).toStringList());
                    if (bar.isVisible() && notified.contains(i))
                        bar.check(i);
                }
                QCOMPARE(bar.findChildren<Label *>("notification").size(), buttons);
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
        QCOMPARE(bar.pill(1)->text(), "2");
        delete bar.title(1);
        bar.setNotification(1, "3");
        bar.setCurrentIndex(2);
        bar.grab();

        QPointer<Segments> doomed(new Segments);
        connect(doomed, &QTabBar::currentChanged, doomed, [&doomed] { delete doomed; });
        QTest::mousePress(doomed, Qt::LeftButton, {}, doomed->tabRect(1).center());
        QVERIFY(!doomed);
    }

    void fontDelta()
    {
        const FontDeltaGuard guard;
        NVO::Css::instance().setFontDelta(3); // which the first font has in it
        Segments bar;
        bar.setNotification(0, "12");
        for (const int delta : {5, -2, 3}) {
            NVO::Css::instance().setFontDelta(delta);
            QCoreApplication::processEvents();
            for (Label *label : {bar.title(0), bar.pill(0)}) {
                QEvent again(QEvent::ApplicationFontChange); // in any order
                QCoreApplication::sendEvent(label, &again);
                QCOMPARE(label->font().pixelSize(), 11 + delta);
            }
            bar.check(0);
        }
    }

    void mouseAndKeyboard()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            Segments bar({"&Eingang", "&Offen", "R && &D"});
            bar.setLayoutDirection(direction);
            bar.setNotification(1, "2");
            bar.setNotification(2, "2");
            bar.setTabEnabled(1, false);
            QVERIFY(QTest::qWaitForWindowActive(&bar));
            QCoreApplication::processEvents();
            bar.check(1);
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
            bar.setCurrentIndex(0);
            for (const Qt::Key key : {Qt::Key_O, Qt::Key_D}) {
                QTest::keyClick(&bar, key, Qt::AltModifier);
                QCOMPARE(bar.currentIndex(), key == Qt::Key_O ? 0 : 2);
            }
            QVERIFY(static_cast<QLabel *>(bar.title(2))->text().contains("R &amp; <u>D</u>"));
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
        QVERIFY(list->role() == QAccessible::PageTabList && list->childCount() == 3);
        QCOMPARE(list->text(QAccessible::Name), "Eingang, 12");
        const QStringList names{"Eingang, 12", "Offen, 3", "R & D"};
        for (const int pressed : {2, 0, 1}) {
            list->child(pressed)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            for (int i = 0; i < 3; ++i) {
                QAccessibleInterface *tab = list->child(i);
                QCOMPARE(tab->role(), QAccessible::PageTab);
                QCOMPARE(tab->text(QAccessible::Name), names[i]);
                QCOMPARE(bool(tab->state().selected), i == pressed % 2); // the last one is disabled
                QCOMPARE(bool(tab->state().disabled), i == 2);
                QCOMPARE(list->indexOfChild(tab), i);
                const QPoint center = tab->rect().center();
                QCOMPARE(list->childAt(center.x(), center.y()), tab);
            }
        }
        QCOMPARE(list->child(1)->text(QAccessible::Description), "Noch nicht gebucht");
        QCOMPARE(list->child(0)->text(QAccessible::Accelerator), "Alt+E");
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
