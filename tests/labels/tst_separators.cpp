#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/Separator.h>

#include <QAccessible>
#include <QtTest>

#include <limits>

using NVO::HairLine;
using NVO::Separator;

class TestSeparators : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void thickness()
    {
        // Whatever came before, only the last weight and orientation count.
        HairLine line;
        QCOMPARE(line.maximumHeight(), 2);
        for (const int weight : {2, 1, 0, 9, -4, QWIDGETSIZE_MAX, std::numeric_limits<int>::max(), 3}) {
            line.setWeight(weight);
            const int most = qBound(0, weight, QWIDGETSIZE_MAX);
            const int least = most == QWIDGETSIZE_MAX ? 0 : most;
            for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
                line.setOrientation(orientation);
                const bool flat = orientation == Qt::Horizontal;
                QCOMPARE(line.minimumSize(), flat ? QSize(0, least) : QSize(least, 0));
                QCOMPARE(line.maximumSize(),
                         flat ? QSize(QWIDGETSIZE_MAX, most) : QSize(most, QWIDGETSIZE_MAX));
            }
        }
    }

    void colors()
    {
        const TestResources theme({{"Palette", "[Named]\nCOLOR_DEKOLINE=#123456\n"}});
        NVO::Css::instance().reset();
        EventCounter<HairLine> line;
        line.show();
        QVERIFY(QTest::qWaitForWindowExposed(&line));
        for (const QColor &color : {QColor("#123456"), QColor(Qt::red)}) {
            const int paints = line.counts[QEvent::Paint];
            const bool isNew = line.color() != color;
            line.setColor(color);
            QTest::qWait(20);
            QCOMPARE(line.counts[QEvent::Paint] > paints, isNew);
            QImage filled = line.grab().toImage();
            const QImage picture = filled;
            filled.fill(color);
            QCOMPARE(picture, filled);
            QCOMPARE(isNew, color == QColor(Qt::red)); // the first is the one of the palette
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(&line)->role(), QAccessible::Separator);
    }

    void separator()
    {
        const TestResources theme(
            {{"Separator", "#line { min-width: 5px; max-width: 5px; background: red; }\n"
                           "#label { padding: 3px; background: lime; }\n"}});
        NVO::Css::instance().reset();
        Separator separator;
        QCOMPARE(separator.text(), QString("oder"));
        const int narrow = separator.sizeHint().width();
        separator.setText("oder <b>aber</b>");
        QVERIFY(separator.sizeHint().width() > narrow);
        separator.resize(separator.sizeHint().width(), 201);
        const QImage picture = separator.grab().toImage();
        const QRect label = separator.findChild<NVO::Label *>("label")->geometry();
        QVERIFY(qAbs(label.center().y() - 100) <= 1);
        QCOMPARE(picture.pixelColor(1, label.y() + 1), QColor(Qt::green));
        for (const int y : {2, 198}) { // a line of five pixels above and below, in the middle
            for (int x = 0; x < picture.width(); ++x)
                QCOMPARE(picture.pixelColor(x, y) == QColor(Qt::red), qAbs(x - label.center().x()) <= 2);
        }
        auto *accessible = QAccessible::queryAccessibleInterface(&separator);
        QCOMPARE(accessible->role(), QAccessible::Separator);
        QCOMPARE(accessible->text(QAccessible::Name), QString("oder aber"));
        separator.setAccessibleName("Trenner");
        QCOMPARE(accessible->text(QAccessible::Name), QString("Trenner"));
    }
};

QTEST_MAIN(TestSeparators)
#include "tst_separators.moc"
