#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/ToolBar.h>
#include <nvo/ToolBarGroup.h>
#include <nvo/ToolBarHiddenButton.h>
#include <nvo/ToolBarWidget.h>

#include <QAction>
#include <QLayout>
#include <QRandomGenerator>
#include <QtTest>

#include <array>
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
            QString made(random.bounded(9), ' ');
            for (QChar &letter : made)
                letter = "ab  \n"[random.bounded(random.bounded(3) ? 4 : 5)];
            return made;
        };
        for (int step = 0; step < 4000; ++step) {
            const int size = expected.size();
            const int index = random.bounded(qMax(1, size));
            if (size < 17 || (size < 21 && random.bounded(2))) {
                expected.append(text());
                bar.addAction(new QAction(expected.last(), &owner));
            } else if (random.bounded(3) == 0) {
                expected[index] = text();
                bar.actions().at(index)->setText(expected[index]);
            } else if (random.bounded(2)) {
                bar.resize(QList<int>{0, 600, 1099, 1100, 1101, 2000}.at(random.bounded(6)), 40);
            } else {
                expected.removeAt(index);
                delete bar.actions().at(index);
            }
            const bool tight = bar.width() < 1100 || expected.size() > 18;
            for (int i = 0; i < expected.size(); ++i) {
                const QString before = expected[i].section(' ', 0, -2);
                if (!tight)
                    expected[i].replace('\n', ' ');
                else if (!expected[i].contains('\n') && !before.isEmpty())
                    expected[i][before.size()] = '\n';
                QCOMPARE(bar.actions().at(i)->text(), expected[i]);
            }
        }
    }

    /** What hears of a new text takes things away or puts the text back. */
    void hostileSlots()
    {
        const QString whole = "Zwei Worte";
        const QString broken = "Zwei\nWorte";
        for (int deed = 0; deed < 5; ++deed) {
            auto bar = std::make_unique<ToolBar>();
            bar->show(); // a size that is pending would come too late
            bar->resize(2000, 40);
            QObject owner;
            QVector<QPointer<QAction>> actions;
            for (int i = 0; i < 19; ++i)
                actions.append(new QAction(whole, &owner));
            QAction *trigger = actions.at(3);
            connect(trigger, &QAction::changed, &owner, [&] {
                if (deed == 0)
                    bar->removeAction(trigger); // with 18 it is not tight
                for (int i = 4; deed == 1 && i < 9; ++i)
                    delete std::exchange(actions[i], nullptr); // which brings us here again
                if (deed == 2)
                    bar.reset();
                if (deed == 3)
                    trigger->setText(whole);
                if (deed == 4 && trigger->text() == broken)
                    trigger->setText("Noch zwei Worte"); // which is answered
            });
            for (const auto &action : qAsConst(actions))
                bar->addAction(action); // the last makes it tight
            QCOMPARE(trigger->text(), deed == 4 ? "Noch zwei\nWorte" : deed % 2 ? whole : broken);
            QCOMPARE(actions.last()->text(), deed > 2 ? broken : whole);
        }
    }

    /** An action hears of real changes only, and bars of different width that share it come to an end. */
    void changes()
    {
        std::array<ToolBar, 8> bars;
        QAction shared("Zwei Worte");
        QAction unnamed; // its text is made of its icon text, and stays so
        unnamed.setIconText("Beleg");
        const QSignalSpy changed(&shared, &QAction::changed);
        const QSignalSpy unnamedChanged(&unnamed, &QAction::changed);
        for (std::size_t i = 0; i < bars.size(); ++i) {
            bars.at(i).resize(i % 4 < 2 ? 900 : 1200, 40);
            for (QAction *action : std::initializer_list<QAction *>{&shared, &unnamed, nullptr})
                bars.at(i).addAction(action);
            QVERIFY(i > 1 || changed.count() == 1);
        }
        shared.setText("Neuer Beleg");
        QVERIFY(changed.count() < 100 && unnamedChanged.isEmpty());
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
        const NVO::ToolBarHiddenButton button;
        for (const QWidget *widget : std::initializer_list<const QWidget *>{&bar, group.get(), &button}) {
            const QString name = QString(widget->metaObject()->className()).mid(5);
            QVERIFY(widget->objectName() == name && widget->styleSheet().contains('#' + name));
        }
        QVERIFY(!group->parent() && bar.actions().isEmpty() && group->action() == action.get());
        QVERIFY(group->layout()->contentsMargins().isNull() && group->layout()->spacing() == 0);
        action.reset();
        QVERIFY(!group->action());
    }
};

QTEST_MAIN(TestToolBar)
#include "tst_toolbar.moc"
