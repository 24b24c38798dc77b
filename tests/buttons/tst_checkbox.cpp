#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/CheckBox.h>
#include <nvo/Css.h>

#include <QStyleOptionButton>
#include <QtTest>

#include <optional>

using NVO::CheckBox;

namespace {

const QByteArrayList styleKeys{"Normal", "Error", "Info", "VaSt", "White"};
const QByteArrayList sizeKeys{"Normal", "Small", "Flyout"};

/** Lets a test ask what the style is asked. */
struct OpenCheckBox : public EventCounter<CheckBox>
{
    using EventCounter::EventCounter;

    QWidget *frame() const { return findChild<QWidget *>("extraBorder"); }

    /** Where the frame belongs. */
    QRect frameRect() const
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        const QRect focus = style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, this);
        return QRect(focus.x() + 3, focus.y() + 1, focus.width() - 6, focus.height());
    }
};

} // namespace

class TestCheckBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"CheckBox", "NVO--CheckBox { background: rgb(10, 10, 10); font-size: 14px; }\n"
                         "*[style=\"Error\"] { background: rgb(20, 20, 20); }\n"
                         "*[style=\"Info\"] { background: rgb(30, 30, 30); }\n"
                         "*[style=\"VaSt\"] { background: rgb(40, 40, 40); }\n"
                         "*[style=\"White\"] { background: rgb(50, 50, 50); }\n"
                         "*[checkboxSize=\"Small\"] { font-size: 9px; }\n"
                         "*[checkboxSize=\"Flyout\"] { font-size: 20px; spacing: 30px; }\n"
                         "*[extraBorder=\"true\"] { padding-right: 40px; }\n"
                         "#extraBorder { background: red; }\n"}});
        NVO::Css::instance().reset();
    }

    void variants()
    {
        CheckBox live;
        live.show();
        for (int i = 0; i < styleKeys.size() * sizeKeys.size() * 2; ++i) {
            const auto style = CheckBox::CheckBoxStyle(i % styleKeys.size());
            const auto size = CheckBox::CheckBoxSize(i / styleKeys.size() % sizeKeys.size());
            const bool framed = i % 2;
            CheckBox fresh("Skonto");
            live.setText("Skonto");
            for (CheckBox *box : {&live, &fresh}) {
                box->setCheckBoxStyle(style);
                box->setCheckBoxSize(size);
                box->setExtraBorder(framed);
                QCOMPARE(box->property("style").toByteArray(), styleKeys[int(style)]);
                QCOMPARE(box->property("checkboxSize").toByteArray(), sizeKeys[int(size)]);
                QCOMPARE(box->property("extraBorder"), QVariant(framed));
                QCOMPARE(box->styleSheet(), NVO::Css::instance().css(NVO::ElementCheckBox));
                QCOMPARE(box->cursor().shape(), Qt::PointingHandCursor);
                QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
                box->resize(box->sizeHint());
                const QImage picture = box->grab().toImage();
                const int tone = 10 * (int(style) + 1);
                QCOMPARE(picture.pixelColor(picture.width() - 1, 0), QColor(tone, tone, tone));
            }
            QCOMPARE(live.sizeHint(), fresh.sizeHint());
            QCOMPARE(live.font().pixelSize(), fresh.font().pixelSize());
        }
    }

    void unchangedValuesSetNothingUp()
    {
        OpenCheckBox box("Skonto");
        box.show();
        box.setCheckBoxStyle(CheckBox::CheckBoxStyle::Info);
        box.setExtraBorder(true);
        const QWidget *frame = box.frame();
        const int changes = box.counts[QEvent::StyleChange];
        box.setCheckBoxStyle(CheckBox::CheckBoxStyle::Info);
        box.setCheckBoxSize(CheckBox::CheckBoxSize::Normal);
        box.setExtraBorder(true);
        QCOMPARE(box.counts[QEvent::StyleChange], changes);
        QCOMPARE(box.frame(), frame);
    }

    void frameComesAndGoes()
    {
        OpenCheckBox box("Skonto");
        QVERIFY(!box.frame());
        for (const bool visible : {false, true}) {
            box.setVisible(visible);
            box.setExtraBorder(true);
            QCOMPARE(box.frame()->isVisible(), visible);
            QCOMPARE(box.frame()->geometry(), box.frameRect());
            box.setExtraBorder(false);
            QVERIFY(!box.frame());
        }
        box.setExtraBorder(true);
        delete box.frame(); // somebody who tidies up
        box.setText("Mahnen");
        QCOMPARE(box.frame()->geometry(), box.frameRect());
        delete box.frame();
        box.setExtraBorder(false);
        QVERIFY(!box.frame());
    }

    void frameFollows()
    {
        OpenCheckBox box("Skonto");
        box.setExtraBorder(true);
        box.resize(400, 40);
        box.show();
        const int width = box.frame()->width();
        box.setText("Skonto und Mahnung");
        QVERIFY(box.frame()->width() > width);
        QCOMPARE(box.frame()->geometry(), box.frameRect());
        // Each step leaves the size as it is, or is nothing but a new size.
        const QVector<std::function<void()>> steps{
            [&] { box.setCheckBoxSize(CheckBox::CheckBoxSize::Small); },
            [&] { box.setCheckBoxSize(CheckBox::CheckBoxSize::Flyout); },
            [&] { box.setLayoutDirection(Qt::RightToLeft); },
            [&] { box.resize(500, 60); },
            [&] { box.setLayoutDirection(Qt::LeftToRight); },
            [&] { box.setStyleSheet("font-size: 31px;"); },
            [&] { box.setStyleSheet("font-size: 31px; spacing: 50px;"); },
            [&] { box.setStyleSheet(QString()); },
            [&] { box.setFont(QFont(box.font().family(), 40)); },
            [&] { box.setText(QString()); },
        };
        for (const auto &step : steps) {
            const QRect before = box.frame()->geometry();
            step();
            QVERIFY(box.frame()->geometry() != before);
            QCOMPARE(box.frame()->geometry(), box.frameRect());
        }
    }

    void frameLetsTheMouseThrough()
    {
        OpenCheckBox box("Skonto");
        box.setExtraBorder(true);
        box.resize(box.sizeHint());
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QPoint place = box.frame()->geometry().center();
        QVERIFY(!box.childAt(place));
        QTest::mouseClick(box.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(box.isChecked());
        QCOMPARE(box.grab().toImage().pixelColor(place.x(), box.frame()->y() + 1), QColor(Qt::red));
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestCheckBox)
#include "tst_checkbox.moc"
