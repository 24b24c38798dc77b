#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/ToolBar.h>
#include <nvo/ToolBarGroup.h>
#include <nvo/ToolBarHiddenButton.h>
#include <nvo/ToolBarWidget.h>

#include <QAbstractButton>
#include <QAction>
#include <QLayout>
#include <QRandomGenerator>
#include <QtTest>

#include <memory>

using NVO::ToolBar;

class TestToolBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Whatever happens to a bar, its texts are those of a table that goes by the words of the rule. */
    void texts()
    {
        ToolBar bar;
        bar.show();
        QRandomGenerator random(7);
        QObject owner;
        QStringList expected;
        const auto text = [&random] {
            QString made;
            for (int length = random.bounded(9); length > 0; --length)
                made += QString("ab  \n").at(random.bounded(random.bounded(3) ? 4 : 5));
            return made;
        };
        for (int step = 0; step < 4000; ++step) {
            const int index = expected.isEmpty() ? 0 : random.bounded(expected.size());
            const int size = expected.size();
            if (size < 17 || (size < 21 && random.bounded(2))) {
                expected.append(text());
                bar.addAction(new QAction(expected.last(), &owner));
            } else if (random.bounded(3) == 0) {
                expected[index] = text();
                bar.actions().at(index)->setText(expected[index]);
            } else if (random.bounded(2)) {
                const int widths[] = {0, 600, 1099, 1100, 1101, 2000};
                bar.resize(widths[random.bounded(6)], 40);
            } else {
                expected.removeAt(index);
                if (random.bounded(2))
                    delete bar.actions().at(index);
                else
                    bar.removeAction(bar.actions().at(index));
            }
            const bool tight = bar.width() < 1100 || expected.size() > 18;
            for (int i = 0; i < expected.size(); ++i) {
                QStringList words = expected[i].split(' ');
                const QString last = words.takeLast();
                const QString before = words.join(' ');
                if (!tight)
                    expected[i] = expected[i].split('\n').join(' ');
                else if (!expected[i].contains('\n') && !before.isEmpty())
                    expected[i] = before + '\n' + last;
                QCOMPARE(bar.actions().at(i)->text(), expected[i]);
            }
        }
    }

    void onlyRealChanges()
    {
        ToolBar bar;
        QAction named("Neuer Beleg");
        QAction unnamed; // its text is made of its icon text, and stays so
        unnamed.setIconText("Beleg");
        const QSignalSpy changed(&named, &QAction::changed);
        const QSignalSpy unnamedChanged(&unnamed, &QAction::changed);
        bar.show();
        bar.resize(2000, 40);
        for (QAction *action : std::initializer_list<QAction *>{&named, &unnamed, nullptr})
            bar.addAction(action);
        bar.resize(1100, 40);
        QCOMPARE(changed.count(), 0);
        bar.resize(1099, 40);
        bar.resize(900, 40);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(unnamedChanged.count(), 0);
        connect(&named, &QAction::triggered, &bar, [&] { bar.removeAction(&named); });
        qobject_cast<QAbstractButton *>(bar.widgetForAction(&named))->click();
        QCOMPARE(bar.actions(), QList<QAction *>{&unnamed});
    }

    void hostileSlots_data()
    {
        QTest::addColumn<int>("deed");
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<QString>("last");
        QTest::newRow("removed itself") << 0 << "Zwei\nWorte"
                                        << "Eines mehr"; // with 18 it is not tight
        QTest::newRow("deleted others") << 1 << "Zwei Worte"
                                        << "Eines mehr";
        QTest::newRow("deleted the bar") << 2 << "Zwei\nWorte"
                                         << "Eines mehr";
        QTest::newRow("put it back") << 3 << "Zwei Worte"
                                     << "Eines\nmehr";
        QTest::newRow("removed all") << 4 << "Zwei Worte"
                                     << "Eines mehr";
        QTest::newRow("wider bar") << 5 << "Zwei Worte"
                                   << "Eines\nmehr";
    }
    /** What hears of a new text takes things away, or wants the text otherwise. */
    void hostileSlots()
    {
        QFETCH(int, deed);
        auto bar = std::make_unique<ToolBar>();
        ToolBar wider;
        for (ToolBar *each : {bar.get(), &wider}) {
            each->show(); // a size that is pending would come too late
            each->resize(2000, 40);
        }
        QObject owner;
        QVector<QPointer<QAction>> actions;
        for (int i = 0; i < 18; ++i) {
            actions.append(new QAction("Zwei Worte", &owner));
            bar->addAction(actions.last());
            if (deed == 5)
                wider.addAction(actions.last());
        }
        QAction *trigger = actions.at(3);
        connect(trigger, &QAction::changed, &owner, [&] {
            if (deed == 0)
                bar->removeAction(trigger);
            for (int i = 4; deed == 1 && i < 9; ++i)
                delete std::exchange(actions[i], nullptr); // which brings us here again
            if (deed == 2)
                bar.reset();
            if (deed == 3)
                trigger->setText("Zwei Worte");
            for (int i = 0; deed == 4 && i < actions.size(); ++i)
                bar->removeAction(actions.at(i));
        });
        actions.append(new QAction("Eines mehr", &owner));
        bar->addAction(actions.last()); // now it is tight
        QTEST(trigger->text(), "trigger");
        QTEST(actions.last()->text(), "last");
        for (QAction *action : qAsConst(actions)) {
            if (action)
                action->setEnabled(false); // nobody is left pointing to what is gone
        }
    }

    void shells()
    {
        const TestResources theme({{"ToolBarWidget", "#ToolBarWidget { color: red; }\n"},
                                   {"ToolBarGroup", "#ToolBarGroup { color: lime; }\n"},
                                   {"ToolBarHiddenButton", "#ToolBarHiddenButton { color: blue; }\n"}});
        NVO::Css::instance().reset();
        NVO::ToolBarWidget bar;
        auto action = std::make_unique<QAction>();
        const std::unique_ptr<NVO::ToolBarGroup> group(bar.addAction(action.get()));
        const std::unique_ptr<NVO::ToolBarGroup> empty(bar.addAction(nullptr));
        const NVO::ToolBarHiddenButton button;
        for (const QWidget *widget : std::initializer_list<const QWidget *>{&bar, group.get(), &button}) {
            const QString name = QString(widget->metaObject()->className()).mid(5);
            QCOMPARE(widget->objectName(), name);
            QVERIFY(widget->styleSheet().contains('#' + name));
        }
        QVERIFY(!group->parent() && bar.actions().isEmpty() && group->actions().isEmpty());
        QVERIFY(group->layout()->contentsMargins().isNull() && group->layout()->spacing() == 0);
        QVERIFY(!group->addAction(action.get()) && group->getHiddenActions().isEmpty());
        QCOMPARE(group->action(), action.get());
        action.reset();
        QVERIFY(!group->action() && !empty->action());
    }
};

QTEST_MAIN(TestToolBar)
#include "tst_toolbar.moc"
