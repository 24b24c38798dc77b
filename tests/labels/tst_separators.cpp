#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/Separator.h>

#include <QAccessible>
#include <QVBoxLayout>
#include <QtTest>

#include <limits>

using NVO::HairLine;
using NVO::Separator;

class TestSeparators : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { NVO::Css::instance().reset(); }

    void thickness()
    {
        // Whatever came before, only the last weight and orientation count.
        HairLine line;
        QCOMPARE(line.weight(), 2);
        QCOMPARE(line.objectName(), QString("HairLine"));
        for (const int weight : {2, 1, 0, 9, -4, QWIDGETSIZE_MAX, std::numeric_limits<int>::max(), 3}) {
            line.setWeight(weight);
            const int height = qBound(0, weight, QWIDGETSIZE_MAX);
            const bool free = height == QWIDGETSIZE_MAX;
            for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
                line.setOrientation(orientation);
                QSize least(0, free ? 0 : height);
                QSize most(QWIDGETSIZE_MAX, height);
                if (orientation == Qt::Vertical) {
                    least.transpose();
                    most.transpose();
                }
                QCOMPARE(line.minimumSize(), least);
                QCOMPARE(line.maximumSize(), most);
                QCOMPARE(line.weight(), weight);
            }
        }
    }

    void lineInALayout()
    {
        QWidget page;
        auto *column = new QVBoxLayout(&page);
        column->setContentsMargins(0, 0, 0, 0);
        auto *line = new EventCounter<HairLine>(Qt::Horizontal);
        line->setWeight(3);
        column->addWidget(line);
        page.resize(200, 90);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QCOMPARE(line->size(), QSize(200, 3));
        const int paints = line->counts[QEvent::Paint];
        line->setColor(line->color());
        QTest::qWait(20);
        QCOMPARE(line->counts[QEvent::Paint], paints);
        line->setColor(Qt::red);
        QTRY_VERIFY(line->counts[QEvent::Paint] > paints);
        QImage red = line->grab().toImage();
        const QImage picture = red;
        red.fill(Qt::red);
        QCOMPARE(picture, red);
    }

    void colorOfThePalette()
    {
        const TestResources theme({{"Palette", "[Named]\nCOLOR_DEKOLINE=#123456\n"}});
        NVO::Css::instance().reset();
        HairLine line;
        QCOMPARE(line.color(), QColor("#123456"));
        QVERIFY(QByteArray(line.metaObject()->className()) == "QWidget");
    }

    void separator()
    {
        const TestResources theme(
            {{"Separator", "#line { min-width: 5px; max-width: 5px; background: red; }\n"
                           "#label { padding: 3px; background: lime; }\n"}});
        NVO::Css::instance().reset();
        Separator separator;
        QCOMPARE(separator.text(), QString("oder"));
        auto *label = separator.findChild<NVO::Label *>("label");
        const int narrow = separator.sizeHint().width();
        separator.setText("oder aber");
        QCOMPARE(label->text(), QString("oder aber"));
        QVERIFY(separator.sizeHint().width() > narrow);
        separator.resize(separator.sizeHint().width(), 201);
        const QImage picture = separator.grab().toImage();
        const int middle = label->geometry().center().x();
        const auto colorAt = [&](int x, int y) { return picture.pixelColor(x, y); };
        QCOMPARE(colorAt(middle, 2), QColor(Qt::red));
        QCOMPARE(colorAt(1, label->y() + 1), QColor(Qt::green));
        QCOMPARE(colorAt(middle, 198), QColor(Qt::red));
        QVERIFY(colorAt(middle - 4, 2) != QColor(Qt::red));
        QVERIFY(qAbs(label->geometry().center().y() - 100) <= 1);
        const QList<QWidget *> lines = separator.findChildren<QWidget *>("line");
        QCOMPARE(lines.size(), 2);
        for (const QWidget *line : lines)
            QCOMPARE(line->width(), 5);
    }

    void accessibleNames()
    {
        Separator separator("<b>sonst</b> nichts");
        auto *accessible = QAccessible::queryAccessibleInterface(&separator);
        QCOMPARE(accessible->role(), QAccessible::Separator);
        QCOMPARE(accessible->childCount(), 0);
        QCOMPARE(accessible->text(QAccessible::Name), QString("sonst nichts"));
        separator.setAccessibleName("Trenner");
        QCOMPARE(accessible->text(QAccessible::Name), QString("Trenner"));
        HairLine line;
        QCOMPARE(QAccessible::queryAccessibleInterface(&line)->role(), QAccessible::Separator);
    }
};

QTEST_MAIN(TestSeparators)
#include "tst_separators.moc"
