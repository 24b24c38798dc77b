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
        OpenCheckBox live("Skonto");
        live.show();
        for (int i = 0; i < styleKeys.size() * sizeKeys.size() * 2; ++i) {
            const int style = i % styleKeys.size();
            const int size = i / styleKeys.size() % sizeKeys.size();
            CheckBox fresh("Skonto");
            int changes = 0;
            for (CheckBox *box : {static_cast<CheckBox *>(&live), &fresh, static_cast<CheckBox *>(&live)}) {
                changes = live.counts[QEvent::StyleChange];
                box->setCheckBoxStyle(CheckBox::CheckBoxStyle(style));
                box->setCheckBoxSize(CheckBox::CheckBoxSize(size));
                box->setExtraBorder(i % 2);
                QCOMPARE(box->property("style").toByteArray(), styleKeys[style]);
                QCOMPARE(box->property("checkboxSize").toByteArray(), sizeKeys[size]);
                box->resize(box->sizeHint());
                const QImage picture = box->grab().toImage();
                const int tone = 10 * (style + 1);
                QCOMPARE(picture.pixelColor(picture.width() - 1, 0), QColor(tone, tone, tone));
            }
            QCOMPARE(live.counts[QEvent::StyleChange], changes); // the second time nothing is set up
            QCOMPARE(live.sizeHint(), fresh.sizeHint());
            QCOMPARE(live.font().pixelSize(), fresh.font().pixelSize());
        }
    }

    void frame()
    {
        OpenCheckBox box("Skonto");
        for (const bool visible : {false, true}) {
            box.setVisible(visible);
            QVERIFY(!box.frame());
            box.setExtraBorder(true);
            QCOMPARE(box.frame()->isVisible(), visible);
            const QPoint place = box.frame()->geometry().center();
            QVERIFY(!box.childAt(place)); // the mouse is for the check box
            QCOMPARE(box.grab().toImage().pixelColor(place.x(), box.frame()->y() + 1), QColor(Qt::red));
            delete box.frame(); // somebody who tidies up
            if (visible)
                box.setText("Mahnen"); // brings it back
            QCOMPARE(box.frame() != nullptr, visible);
            box.setExtraBorder(false);
        }
        QVERIFY(!box.frame());

        box.setExtraBorder(true);
        box.resize(400, 40);
        // Each step leaves the size as it is, or is nothing but a new size.
        const QVector<std::function<void()>> steps{
            [&] { box.setText("Skonto und Mahnung"); },
            [&] { box.setCheckBoxSize(CheckBox::CheckBoxSize::Flyout); },
            [&] { box.setLayoutDirection(Qt::RightToLeft); },
            [&] { box.resize(500, 60); },
            [&] { box.setStyleSheet("font-size: 31px; spacing: 50px;"); },
            [&] { box.setStyleSheet(QString()); },
            [&] { box.setFont(QFont(box.font().family(), 40)); },
        };
        for (const auto &step : steps) {
            const QRect before = box.frame()->geometry();
            step();
            QVERIFY(box.frame()->geometry() != before);
            QCOMPARE(box.frame()->geometry(), box.frameRect());
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestCheckBox)
#include "tst_checkbox.moc"
