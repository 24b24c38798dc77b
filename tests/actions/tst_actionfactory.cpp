#include "TestCase.h"

#include <nvo/ActionFactory.h>

#include <QAction>
#include <QtTest>

class TestActionFactory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Also of names whose action has died, as early as somebody may ask again. */
    void oneActionPerName()
    {
        NVO::ActionFactory &factory = NVO::ActionFactory::instance();
        QObject second;
        QSet<QAction *> made;
        for (const QString name : {"Drucken", "drucken", "", " "}) {
            auto *first = new QObject;
            QAction *action = factory.createAction(name, first);
            QCOMPARE(action->metaObject(), &QAction::staticMetaObject);
            QCOMPARE(action->text(), name);
            action->setText("Anders");
            QCOMPARE(NVO::ActionFactory::instance().createAction(name, &second), action);
            QCOMPARE(action->parent(), first);
            connect(action, &QObject::destroyed, &second,
                    [&] { made.insert(factory.createAction(name, &second)); });
            delete first;
            QCOMPARE(factory.createAction(name, nullptr)->parent(), &second);
            QCOMPARE(factory.createAction(name, nullptr)->text(), name);
        }
        QCOMPARE(made.size(), 4);
    }
};

QTEST_MAIN(TestActionFactory)
#include "tst_actionfactory.moc"
