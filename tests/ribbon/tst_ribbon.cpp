#include "TestCase.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonTab.h>

#include <QtTest>
#include <QtWidgets>

using namespace NVO;

namespace {

class TestedRibbon : public Ribbon
{
public:
    using Ribbon::Ribbon;
    QWidget *createExtraWidget() override
    {
        ++extrasMade;
        return extra = new QLabel("Extra");
    }
    QString replaceMacroText(const QString &text) const override { return QString(text).remove('%'); }

    int extrasMade = 0;
    QPointer<QWidget> extra;
};

/** A window with a ribbon, whose pages are told as "A:3,2 B:1": tabs with groups of so many buttons. */
struct Fixture
{
    explicit Fixture(const QString &pages, bool withFile = true)
        : ribbon(new TestedRibbon(withFile ? &file : nullptr, &window))
    {
        ribbon->resize(1200, 160);
        outside->move(0, 200);
        if (withFile)
            ribbon->addTab(&file)->setObjectName("file");
        for (const QString &page : pages.split(' ')) {
            const QString name = page.section(':', 0, 0);
            tabs.append(ribbon->addTab(action(name)));
            tabs.last()->action()->setShortcut(name);
            for (const QString &count : page.section(':', 1).split(',')) {
                groups.append(tabs.last()->addGroup(action("Gruppe " + name)));
                for (int i = 0; i < count.toInt(); ++i) {
                    Action *own = action(QString("%1%2").arg(name).arg(actions.size()));
                    own->setControlType(Action::CommandButton);
                    own->setMacroIndexkey(own->text().toLower() + '%');
                    controls.append(groups.last()->addAction(own));
                }
            }
        }
    }
    ~Fixture() { qDeleteAll(actions); }

    Action *action(const QString &text)
    {
        actions.append(new Action(text));
        actions.last()->setValueName("name" + text);
        return actions.last();
    }
    void show()
    {
        window.resize(1300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    /** The texts of the tabs, with the current one in brackets. */
    QString bar() const
    {
        QString texts;
        for (int i = 0; i < ribbon->count(); ++i)
            texts += QString(i == ribbon->currentIndex() ? "[%1] " : "%1 ").arg(ribbon->tabText(i));
        return texts.trimmed();
    }
    /** The texts of the keytips of one level. */
    QString keytips(const char *level) const
    {
        QStringList texts;
        for (const QLabel *label : window.findChildren<QLabel *>(level))
            texts += label->size() == QSize(20, 20) && !label->isHidden() ? label->text() : "wrong";
        return texts.join(' ');
    }
    void collapse() { ribbon->resize(40, 160); }
    QPushButton *buttonOf(int group) const
    {
        return groups[group]->findChild<QPushButton *>("RibbonGroupButton");
    }
    QPointer<RibbonGroup> popupOf(int group) const { return groups[group]->findChild<RibbonGroup *>(); }
    Action *actionOf(int control) const { return dynamic_cast<RibbonControl *>(controls[control])->action(); }

    QWidget window;
    Action file{"Datei"};
    QPointer<TestedRibbon> ribbon;
    QLineEdit *outside = new QLineEdit(&window);
    QList<RibbonTab *> tabs;
    QList<RibbonGroup *> groups;
    QList<QWidget *> controls;
    QList<Action *> actions;
};

} // namespace

class TestRibbon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fileTab()
    {
        Fixture f("A:1 B:1 C:1");
        int triggered = 0;
        // It goes back by page, not by index: the page moves, and then it is gone.
        connect(&f.file, &QAction::triggered, this, [&] {
            if (++triggered > 1)
                f.tabs[triggered - 2]->action()->setVisible(false);
        });
        f.ribbon->showTab(2);
        for (const char *bar : {"Datei A [B] C", "Datei [B] C", "Datei [C]"}) {
            f.ribbon->setCurrentIndex(0);
            QCOMPARE(f.bar(), QString(bar));
        }
        f.ribbon->removeTab(1); // the file tab takes its place
        QCOMPARE(f.bar(), QString("[Datei]"));
        QCOMPARE(triggered, 3);
    }

    void tabsLeaveAndReturn()
    {
        Fixture f("A:1 B:2 C:1");
        f.file.setVisible(false); // stays
        f.ribbon->setCurrentIndex(3);
        const QVector<QPair<std::function<void()>, const char *>> steps{
            {[&] { f.tabs[1]->action()->setVisible(false); }, "Datei A [C]"},
            {[&] { f.tabs[0]->action()->setText("Anders"); }, "Datei Anders [C]"},
            {[&] { f.actionOf(0)->setVisible(false); }, "Datei [C]"},
            {[&] { f.tabs[1]->action()->setVisible(true); }, "Datei B [C]"},
            {[&] { f.actionOf(0)->setVisible(true); }, "Datei ANDERS B [C]"},
            {[&] { f.tabs[0]->action()->setToolTip("Tipp"); }, "Datei Anders B [C]"},
            {[&] { f.tabs[0]->action()->setText(f.ribbon->tabToolTip(1)); }, "Datei Tipp B [C]"},
            {[&] { f.tabs[2]->action()->setVisible(false); }, "Datei Tipp [B]"},
            {[&] { f.tabs[0]->action()->setVisible(false); }, "Datei [B]"},
            {[&] { delete f.tabs[0]; }, "Datei [B]"},
            {[&] { delete f.tabs[1]; }, "[Datei]"},
            {[&] { f.tabs[2]->action()->setVisible(true); }, "Datei [C]"}};
        for (const auto &step : steps) {
            step.first();
            QCOMPARE(f.bar(), QString(step.second));
        }
        QVERIFY(!f.ribbon->selectTabByKey("A"));
    }

    void storm()
    {
        Fixture f("A:25,25 B:25,25");
        f.show();
        const QSignalSpy first(f.tabs[0], &RibbonTab::signalChangedAction);
        const QSignalSpy second(f.tabs[1], &RibbonTab::signalChangedAction);
        QRandomGenerator random(5);
        int changes = 0;
        for (int round = 0; round < 6; ++round) {
            for (int i = 0; i < 100; ++i) {
                const bool visible = round % 2 ? random.bounded(40) > 0 : random.bounded(40) == 0;
                changes += f.actionOf(i)->isVisible() != visible;
                f.actionOf(i)->setVisible(visible);
                QCOMPARE(f.controls[i]->isHidden(), !visible);
                if (i % 10 == 0)
                    f.ribbon->setCurrentIndex(random.bounded(f.ribbon->count()));
                // The extra widget travels with the current page.
                if (f.ribbon->currentIndex() > 0)
                    QCOMPARE(f.ribbon->extra->parentWidget(), f.ribbon->currentWidget());
            }
            for (int group = 0; group < 4; ++group)
                QCOMPARE(f.groups[group]->isHidden(), f.groups[group]->visibleWidgets().isEmpty());
            for (RibbonTab *tab : qAsConst(f.tabs))
                QCOMPARE(f.ribbon->indexOf(tab) >= 0, tab->isVisible());
        }
        f.groups[0]->action()->setEnabled(false);
        QCOMPARE(first.count() + second.count(), changes + 1);
        QCOMPARE(f.ribbon->extrasMade, 1);
        QVERIFY(!f.controls[0]->isEnabled());
        f.groups[0]->action()->setVisible(false);
        QVERIFY(f.groups[0]->isHidden() && f.tabs[0]->isVisible());
    }

    void captions()
    {
        Fixture f("A:3,1,0");
        const auto hasCaption = [&f](int group) {
            const auto *label = f.groups[group]->findChild<QLabel *>("RibbonGroupLabel");
            return !label->isHidden() && label->text().contains("Gruppe A");
        };
        QVERIFY(hasCaption(0) && !hasCaption(1) && f.groups[2]->isHidden());
        f.actionOf(0)->setVisible(false);
        f.actionOf(1)->setVisible(false);
        QVERIFY(!hasCaption(0));
    }

    void separators()
    {
        qApp->installEventFilter(this);
        Fixture f("A:1,1,1");
        f.tabs[0]->addGroupObject(f.action("Bild"));
        qApp->removeEventFilter(this);
        QCOMPARE(m_windowsShown, 0); // nothing flashes up on its own
        const auto lines = f.tabs[0]->findChildren<QWidget *>("RibbonSeperator");
        const QVector<QPair<int, QString>> toggledAndLines{{1, "-||"}, {0, "--|"}, {1, "-||"}};
        for (const auto &row : toggledAndLines) {
            f.actionOf(row.first)->setVisible(!f.actionOf(row.first)->isVisible());
            QString shown;
            for (const QWidget *line : lines)
                shown += line->isHidden() ? '-' : '|';
            QCOMPARE(shown, row.second);
        }
        lines.first()->setContentsMargins(3, 5, 4, 6);
        const auto *control = dynamic_cast<const RibbonControl *>(lines.first());
        QCOMPARE(control->sizeFromMode(RibbonControl::Auto, false), QSize(7, 72 - 11));
        qDeleteAll(f.groups);
        QVERIFY(!control->controlVisible());
    }

    void keytips()
    {
        Fixture f("A:2,2 B:1");
        f.tabs[1]->action()->setShortcut(QKeySequence("b"));
        f.actionOf(1)->setMacroIndexkey(QString());
        f.groups[0]->setFixSizeMode(RibbonControl::Large);
        f.groups[1]->setFixSizeMode(RibbonControl::Small);
        f.show();
        QVERIFY(f.ribbon->toggleKeyfocus() && f.ribbon->tabBar()->hasFocus());
        QCOMPARE(f.keytips("RibbonKeytip"), QString(" A B")); // the file tab has no key
        QVERIFY(!f.ribbon->toggleKeyfocus() && !f.ribbon->areKeytipsVisible());
        f.ribbon->showKeytips();
        QVERIFY(!f.ribbon->selectTabByKey("X") && !f.ribbon->selectTabByKey(QString()));
        QVERIFY(f.ribbon->selectTabByKey("b"));
        QCOMPARE(f.bar(), QString("Datei A [B]"));
        QVERIFY(f.ribbon->selectTabByKey("a"));
        // The group button shows the key of its first control.
        QCOMPARE(f.keytips("RibbonGroupKeytip"), f.actionOf(0)->text() + ' ' + f.actionOf(2)->text());
        QVERIFY(!f.ribbon->areKeytipsVisible() && f.ribbon->areControlKeytipsVisible());
        QVERIFY(!f.ribbon->selectControlByKey("nothing", true, false));
        QVERIFY(!f.ribbon->areControlKeytipsVisible());

        const QList<std::function<void()>> exits{
            [&] { f.ribbon->setCurrentIndex(2); }, [&] { QTest::keyClick(f.ribbon->tabBar(), Qt::Key_Down); },
            [&] { f.outside->setFocus(); }, [&] { f.ribbon->selectControlByKey(QString(), false, false); }};
        for (const auto &exit : exits) {
            f.ribbon->setCurrentIndex(1);
            f.ribbon->toggleKeyfocus();
            f.tabs[0]->action()->trigger(); // shows the keytips of its page, too
            exit();
            QCOMPARE(f.keytips("RibbonKeytip"), QString());
            QVERIFY(!f.ribbon->areKeytipsVisible());
        }
    }

    void selectByKey()
    {
        Fixture f("A:2,1 B:3");
        f.show();
        QString triggered;
        for (int i = 0; i < 6; ++i)
            connect(f.actionOf(i), &QAction::triggered, this, [&, i] { triggered += QString::number(i); });
        // Which action the key triggers, before a mark if the key was found
        const auto chosen = [&](const QString &key, bool currentPage = false, bool shortcut = false) {
            const bool found = f.ribbon->selectControlByKey(key, currentPage, shortcut);
            return std::exchange(triggered, QString()) + (found ? "!" : "");
        };
        const auto key = [&f](int control) { return f.actionOf(control)->text(); };
        for (int i = 0; i < 6; ++i)
            QCOMPARE(chosen(key(i)), QString("%1!").arg(i));
        QCOMPARE(chosen(key(4), true), QString());
        f.actionOf(0)->setEnabled(false);
        QCOMPARE(chosen(key(0)), QString());
        for (const int i : {1, 2, 3, 4})
            f.actionOf(i)->setMacroIndexkey("same");
        QCOMPARE(chosen("SAME"), QString("1!"));
        f.actionOf(5)->setShortcut(QKeySequence("Ctrl+K"));
        QCOMPARE(chosen("Ctrl+K", false, true), QString("5!"));
        QCOMPARE(chosen("ctrl+k", false, true) + chosen("", false, true), QString());
        QVERIFY(f.ribbon->getIndexkeys().contains(
            QString("name%1 SAME  name%2 %2 ").arg(key(4), key(5)))); // each its own key
        f.collapse(); // opens its popup, and the search goes on behind it
        QCOMPARE(chosen("same"), QString("2!"));
        QVERIFY(f.popupOf(0) && f.popupOf(0)->areControlKeytipsVisible());
        QCOMPARE(chosen("same"), QString("1!"));
        QTest::keyClick(f.popupOf(0), Qt::Key_Escape);
        QTRY_VERIFY(!f.popupOf(0));
        QCOMPARE(f.buttonOf(0)->property("style").toString(), QString("default"));
    }

    void walk()
    {
        Fixture f("Auftrag:5,5,1,4,7");
        f.actionOf(1)->setEnabled(false);
        f.actionOf(9)->setEnabled(false);
        f.actionOf(15)->setVisible(false);
        f.show();
        for (int width = 1200; width > 0 && !f.buttonOf(4)->isVisible(); --width)
            f.ribbon->resize(width, 160);
        QCoreApplication::processEvents();
        // What shows: groups of columns of widgets, by their places; a collapsed group is its button.
        QVector<QVector<QVector<QWidget *>>> map;
        for (int group = 0; group < 5; ++group) {
            map.append(QVector<QVector<QWidget *>>());
            QPushButton *button = f.buttonOf(group);
            int x = -1;
            for (QWidget *widget :
                 button->isVisible() ? QList<QWidget *>{button} : f.groups[group]->visibleWidgets()) {
                if (widget->x() != std::exchange(x, widget->x()))
                    map.last().append(QVector<QWidget *>());
                map.last().last().append(widget);
            }
        }
        QVERIFY(f.buttonOf(4)->isVisible() && !f.buttonOf(0)->isVisible());
        QVERIFY(map[0].size() > 1 && map[0].size() < 5);
        QRandomGenerator random(6);
        int g = 0, c = 0, r = 0;
        f.controls[0]->setFocus();
        for (int step = 0; step < 2000; ++step) {
            const int key = QVector<int>{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
                                         Qt::Key_Right}[random.bounded(5)];
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
            const bool onButton = map[g][0][0] == f.buttonOf(g);
            int toG = g, toC = c, toR = r;
            if (!onButton && (key == Qt::Key_Up || key == Qt::Key_Down)) {
                const int by = key == Qt::Key_Up ? -1 : 1;
                do
                    toR += by;
                while (toR >= 0 && toR < map[g][c].size() && !map[g][c][toR]->isEnabled());
                if (toR < 0) {
                    QVERIFY(f.ribbon->tabBar()->hasFocus());
                    QTest::keyClick(f.ribbon->tabBar(), Qt::Key_Down);
                    toG = toC = toR = 0;
                } else if (toR == map[g][c].size()) {
                    toR = r;
                }
            } else {
                const bool left = key == Qt::Key_Left;
                toC += left ? -1 : 1;
                if (onButton || toC < 0 || toC == map[g].size()) {
                    toG = qBound(0, g + (left ? -1 : 1), map.size() - 1);
                    toC = toG == g ? c : left ? map[toG].size() - 1 : 0;
                    toR = onButton && toG != g ? 0 : r;
                }
                if (toR >= map[toG][toC].size())
                    toR = 0;
            }
            if (map[toG][toC][toR]->isEnabled())
                std::tie(g, c, r) = std::tie(toG, toC, toR);
            QCOMPARE(QApplication::focusWidget(), map[g][c][r]);
        }
    }

    void tabBarKeys()
    {
        Fixture f("A:2 B:1");
        f.show();
        QTabBar *bar = f.ribbon->tabBar();
        const QSignalSpy triggered(&f.file, &QAction::triggered);
        f.ribbon->toggleKeyfocus();
        const auto press = [&](const QVector<QPair<Qt::Key, QString>> &keysAndLooks) {
            for (const auto &row : keysAndLooks) {
                QTest::keyClick(bar, row.first);
                QCOMPARE(bar->property("style").toString() + ' ' + f.bar(), row.second);
            }
        };
        press({{Qt::Key_Right, "focus Datei A [B]"},
               {Qt::Key_Left, "focus Datei [A] B"},
               {Qt::Key_Space, "focus Datei [A] B"},
               {Qt::Key_Left, "firstFocus Datei [A] B"},
               {Qt::Key_Return, "firstFocus Datei [A] B"},
               {Qt::Key_Right, "focus Datei [A] B"}});
        QCOMPARE(triggered.count(), 1);
        bar->setLayoutDirection(Qt::RightToLeft); // the file tab is at the other end
        press({{Qt::Key_Right, "firstFocus Datei [A] B"}, {Qt::Key_Left, "focus Datei [A] B"}});
        f.outside->setFocus();
        f.ribbon->toggleKeyfocus();
        QTest::keyClick(bar, Qt::Key_Down);
        QVERIFY(f.controls[0]->hasFocus());
        f.controls[1]->setFocus(); // from one control to the other: nothing new to remember
        f.ribbon->slotTriggerAction();
        QVERIFY(f.outside->hasFocus());
        QCOMPARE(bar->property("style").toString(), QString("default"));
        f.controls[0]->setFocus();
        delete f.outside;
        f.ribbon->setOutsideFocusWidget();
        QVERIFY(f.controls[0]->hasFocus());
    }

    void withoutFileTab()
    {
        Fixture f("A:1 B:1", false);
        QTest::keyClick(f.ribbon->tabBar(), Qt::Key_Left);
        QCOMPARE(f.ribbon->tabBar()->property("style").toString(), QString("default"));
        f.actionOf(0)->setVisible(false); // no tab leaves
        f.tabs[1]->action()->setVisible(false);
        QCOMPARE(f.bar(), QString("[A] B"));
    }

    void accessibility()
    {
        Fixture f("A:1,2");
        f.show();
        const auto seen = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget); };
        const auto texts = [&](QWidget *widget) {
            return seen(widget)->text(QAccessible::Name) + '|' + seen(widget)->text(QAccessible::Accelerator)
                   + '|' + seen(widget)->text(QAccessible::Description);
        };
        Action *box = f.action("Netto");
        box->setControlType(Action::CommandCheckBox);
        for (QWidget *control : {f.controls[1], f.groups[1]->addAction(box)}) {
            Action *action = dynamic_cast<RibbonControl *>(control)->action();
            action->setText("Netto<br>zeigen");
            action->setToolTip("Hilfe");
            action->setShortcut(QKeySequence("Ctrl+T"));
            QCOMPARE(texts(control), QString("Netto zeigen|Ctrl+T|Hilfe"));
            QCOMPARE(seen(control)->role(), action == box ? QAccessible::CheckBox : QAccessible::Button);
            const QSignalSpy triggered(action, &QAction::triggered);
            QAccessibleActionInterface *actions = seen(control)->actionInterface();
            QCOMPARE(actions->keyBindingsForAction(actions->actionNames().first()), QStringList("Ctrl+T"));
            actions->doAction(actions->actionNames().first());
            QTRY_COMPARE(triggered.count(), 1);
            QCOMPARE(bool(seen(control)->state().checked), action == box);
        }
        QCOMPARE(seen(f.groups[1])->role(), QAccessible::Grouping);
        f.groups[1]->setSizeMode(RibbonControl::Small, false);
        QVERIFY(texts(f.buttonOf(1)).startsWith("Gruppe A||"));
        QAccessibleInterface *button = seen(f.buttonOf(1));
        QVERIFY(button->role() == QAccessible::ButtonMenu && button->state().collapsed);
        button->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QTRY_VERIFY(f.popupOf(1));
        QVERIFY(button->state().expanded && !button->state().collapsed);
        f.popupOf(1)->close();
        f.tabs[0]->showKeytips();
        f.ribbon->showKeytips();
        for (QLabel *keytip : f.window.findChildren<QLabel *>(QRegularExpression("Keytip$")))
            QVERIFY(seen(keytip)->state().invisible && texts(keytip) == "||");
    }

    void popup()
    {
        Fixture f("A:3,2 B:1");
        f.collapse();
        f.show();
        f.actionOf(2)->setMacroIndexkey("q");
        const QSignalSpy triggered(f.actionOf(2), &QAction::triggered);
        QTest::mouseClick(f.buttonOf(0), Qt::LeftButton);
        const QPointer<RibbonGroup> popup = f.popupOf(0);
        QVERIFY(popup && popup->isVisible() && popup->isWindow() && !popup->areControlKeytipsVisible());
        QCOMPARE(popup->property("style").toString(), QString("popup"));
        QCOMPARE(popup->size(), popup->sizeHint());
        QTRY_VERIFY(popup->visibleWidgets().first()->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QVERIFY(popup->visibleWidgets()[1]->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q);
        QCOMPARE(triggered.count(), 1);
        QVERIFY(popup->isVisible()); // whether it closes then is up to the application
        f.actionOf(1)->setVisible(false);
        popup->close();
        f.actionOf(1)->setVisible(true); // does not bring it back
        QVERIFY(!popup->isVisible());
        f.groups[0]->triggeredAction(); // the closed one still waits for its end
        QTRY_COMPARE(f.groups[0]->findChildren<RibbonGroup *>().size(), 1);
        QVERIFY(f.popupOf(0)->isVisible() && f.buttonOf(0)->property("style") == "open");
    }

    void popupEndsWithWhatItShows()
    {
        Fixture f("A:3,2 B:1");
        f.actionOf(0)->setEnabled(false);
        const auto setVisible = [&](bool visible) {
            for (int i = 0; i < 3; ++i)
                f.actionOf(i)->setVisible(visible);
        };
        const QList<std::function<void()>> ends{[&] { f.ribbon->resize(1200, 160); },
                                                [&] { f.ribbon->setCurrentIndex(2); },
                                                [&] { f.tabs[0]->action()->setVisible(false); },
                                                [&] { setVisible(false); }, [&] { f.window.hide(); }};
        for (const auto &end : ends) {
            f.show();
            setVisible(true);
            f.tabs[0]->action()->setVisible(true);
            f.ribbon->setCurrentIndex(1);
            f.collapse();
            QTest::qWait(1);
            f.groups[0]->triggeredAction();
            QTRY_VERIFY(f.popupOf(0) && f.popupOf(0)->visibleWidgets()[1]->hasFocus());
            setVisible(false); // comes back before anybody has seen it
            setVisible(true);
            QCoreApplication::processEvents();
            QVERIFY(f.popupOf(0)->isVisible());
            end();
            QTRY_VERIFY(!f.popupOf(0));
        }
        RibbonGroup embedded(f.groups[0]->action(), true, nullptr);
        embedded.addAction(f.actionOf(0));
        for (const bool visible : {false, true}) {
            setVisible(visible);
            QCOMPARE(embedded.isVisible(), visible);
        }
    }

    void collapsedGroupsOpenAgain()
    {
        Fixture f("A:6,6");
        for (Action *command : f.actions)
            command->setText("Langer Befehl");
        f.show();
        const RibbonGroup *last = f.groups[1];
        for (int width = 1200; last->sizeMode() == RibbonControl::Large; width -= 10) {
            f.ribbon->resize(width, 160);
            QTest::qWait(1);
        }
        for (const bool visible : {false, true}) {
            for (int i = 7; i < 12; ++i)
                f.actionOf(i)->setVisible(visible);
            QTRY_COMPARE(last->sizeMode(), visible ? RibbonControl::Small : RibbonControl::Large);
        }
        for (int i = 6; i < 12; ++i)
            f.actionOf(i)->setText("Kurz");
        QTRY_COMPARE(last->sizeMode(), RibbonControl::Large);
    }

    void deadActions()
    {
        Fixture f("A:2,2 B:2");
        f.show();
        qDeleteAll(std::exchange(f.actions, {}));
        f.ribbon->showKeytips();
        f.ribbon->selectControlByKey("A1", false, false);
        f.ribbon->getIndexkeys();
        f.ribbon->getControl("nameA1");
        f.controls[0]->setFocus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right})
            QTest::keyClick(f.controls[0], key);
        f.groups[0]->setSizeMode(RibbonControl::Small, true);
        f.groups[0]->triggeredAction();
        f.ribbon->resize(90, 160);
        f.ribbon->grab();
        f.ribbon->setCurrentIndex(0);
        QVERIFY(!f.popupOf(0)); // there is nothing to show
    }

    void deletedWhileOpen()
    {
        for (const int victim : {0, 1, 2, 3}) {
            Fixture f("A:3,2 B:1");
            f.collapse();
            f.show();
            f.ribbon->showKeytips();
            f.tabs[0]->showKeytips();
            f.groups[0]->triggeredAction();
            const QPointer<RibbonGroup> popup = f.popupOf(0);
            QVERIFY(popup);
            delete QVector<QObject *>{f.groups[0], f.tabs[0], f.ribbon, popup}[victim];
            QVERIFY(!popup);
            if (f.ribbon)
                f.ribbon->hideKeytips();
            QCoreApplication::processEvents();
        }
        Fixture f("A:3 B:1"); // the focus goes with the ribbon
        f.show();
        f.controls[0]->setFocus();
        delete f.ribbon;
    }

    void deletedByFileAction()
    {
        for (const int way : {0, 1, 2}) {
            Fixture f("A:1 B:1");
            f.file.setShortcut(QKeySequence("D"));
            f.show();
            connect(&f.file, &QAction::triggered, this, [&] { delete f.ribbon; });
            f.ribbon->toggleKeyfocus();
            if (way == 0)
                f.ribbon->setCurrentIndex(0);
            else if (way == 1)
                f.ribbon->selectTabByKey("D");
            else
                for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Return})
                    QTest::keyClick(f.ribbon->tabBar(), key);
            QVERIFY(!f.ribbon);
        }
    }

    void changedInOwnTrigger()
    {
        for (int run = 0; run < 4 * 7; ++run) {
            Fixture f("A:2,2 B:1");
            f.show();
            int done = 0;
            Action *own = f.actionOf(0);
            const QVector<std::function<void()>> deeds{
                [&] { own->setVisible(false); },
                [&] { f.tabs[0]->action()->setVisible(false); },
                [&] { delete f.actions.takeAt(f.actions.indexOf(own)); },
                [&] { delete f.controls[0]; },
                [&] { delete f.groups[0]; },
                [&] { delete f.tabs[0]; },
                [&] { delete f.ribbon; }};
            connect(own, &QAction::triggered, this, [&] {
                if (!done++)
                    deeds[run / 4]();
            });
            if (run % 4 == 0) {
                QTest::mouseClick(f.controls[0], Qt::LeftButton);
            } else if (run % 4 < 3) {
                f.ribbon->selectControlByKey(own->text(), run % 4 == 1, false);
            } else {
                f.collapse();
                f.groups[0]->triggeredAction();
                QTest::keyClick(f.popupOf(0)->visibleWidgets().first(), Qt::Key_Space);
            }
            QCOMPARE(done, 1);
            QCoreApplication::processEvents();
        }
    }

private:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && object->isWidgetType())
            m_windowsShown += static_cast<QWidget *>(object)->isWindow();
        return false;
    }

    int m_windowsShown = 0;
};

QTEST_MAIN(TestRibbon)
#include "tst_ribbon.moc"
