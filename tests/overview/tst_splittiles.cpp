#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/CheckBox.h>
#include <nvo/Label.h>
#include <nvo/OverviewButton3Children.h>
#include <nvo/OverviewButtonWithWidget.h>

#include <QAccessible>
#include <QVBoxLayout>
#include <QtTest>

#include <optional>

using NVO::OverviewButton;
using NVO::OverviewButton3Children;
using NVO::OverviewButtonBase;
using NVO::OverviewButtonWithWidget;

namespace {

/** A tile of either kind between two buttons. */
template <typename Widget>
struct Page
{
    Page()
        : rows(&window)
    {
        rows.addWidget(&before);
        rows.addWidget(&tile);
        rows.addWidget(&after);
        window.show();
        window.activateWindow();
    }
    QList<OverviewButtonBase *> buttons() { return tile.template findChildren<OverviewButtonBase *>(); }

    QWidget window;
    QVBoxLayout rows;
    QPushButton before;
    Widget tile;
    QPushButton after;
};

QImage pictureOf(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

} // namespace

class TestSplitTiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
            {"FontSizes", "[Element]\nOverviewButton=HIGHLIGHT\n"},
            {"OverviewButton",
             "NVO--OverviewButtonBase, #top, #middle, #bottom { background: #ffffff; border: 1px solid "
             "#000000; }\n"
             "[WithoutLeftBorder=\"true\"], #middle[rightToLeft=\"false\"], #bottom[rightToLeft=\"false\"] { "
             "border-left: none; }\n"
             "[WithoutRightBorder=\"true\"], #middle[rightToLeft=\"true\"], #bottom[rightToLeft=\"true\"] { "
             "border-right: none; }\n"
             "[WithoutTopBorder=\"true\"], #middle, #bottom { border-top: none; }\n"
             "[WithoutBottomBorder=\"true\"], #middle { border-bottom: none; }\n"
             "#lastLine { background: #00ff00; } #lastLine[state=\"hover\"] { background: #0000ff; }\n"},
            {"Palette", "[Named]\nCOLOR_BIG_BUTTON_BACKGROUND=#ffffff\nCOLOR_BIG_BUTTON_BORDER=#000000\n"
                        "COLOR_BIG_BUTTON_BORDER_FOCUS=#ff0000\nCOLOR_BIG_BUTTON_BORDER_DISABLED=#00ff00\n"},
            {"arrow_right_dark_6x12", TestResources::png(6, 12, {0xff111111})},
        });
        NVO::Css::instance().reset();
    }

    void walk_data()
    {
        QTest::addColumn<int>("count");
        for (int count = 0; count <= 4; ++count)
            QTest::addRow("%d", count) << count;
    }

    /** Each key from each button; 0 is the button before, 1 the left half, then the right ones, then after.
     */
    void walk()
    {
        QFETCH(int, count);
        Page<OverviewButton3Children> page;
        QVERIFY(QTest::qWaitForWindowActive(&page.window));
        page.tile.setRightSideVisible(unsigned(count));
        const int rows = qMin(count, 3);
        QList<QWidget *> stops{&page.before};
        const auto buttons = page.buttons();
        for (int i = 0; i <= rows; ++i)
            stops.append(buttons[i]);
        stops.append(&page.after);
        const int last = rows + 1;
        for (int from = 1; from <= last; ++from) {
            const auto reached = [&](Qt::Key key) {
                stops[from]->setFocus();
                QTest::keyClick(stops[from], key);
                return stops.indexOf(QApplication::focusWidget());
            };
            const bool left = from == 1;
            QCOMPARE(reached(Qt::Key_Left), 1);
            QCOMPARE(reached(Qt::Key_Right), left && rows > 0 ? 2 : from);
            QCOMPARE(reached(Qt::Key_Up), left || from == 2 ? 0 : from - 1);
            QCOMPARE(reached(Qt::Key_Down), left ? last + 1 : from + 1);
            QCOMPARE(reached(Qt::Key_Tab), from + 1);
            QCOMPARE(reached(Qt::Key_Backtab), from - 1);
        }
    }

    void shapes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("rightToLeft");
        for (int count = 0; count <= 3; ++count) {
            QTest::addRow("%d", count) << count << false;
            QTest::addRow("%d right to left", count) << count << true;
        }
    }

    /** The frame and the lines of the tile, pixel by pixel, in both directions. */
    void shapes()
    {
        QFETCH(int, count);
        QFETCH(bool, rightToLeft);
        Page<OverviewButton3Children> page;
        OverviewButton3Children &tile = page.tile;
        tile.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        tile.setRightSideVisible(3);
        const int height = tile.sizeHint().height();
        tile.setRightSideVisible(unsigned(count));
        QCOMPARE(height, 3 * 63 + 2);
        QVERIFY(count == 0 || tile.sizeHint().height() == height);
        tile.setGraphicsEffect(nullptr);
        tile.setFixedSize(400, 3 * 70 + 2);
        page.window.adjustSize();
        QCoreApplication::processEvents();

        QImage image = pictureOf(tile);
        if (rightToLeft)
            image = image.mirrored(true, false);
        for (int y = 0; y < image.height(); ++y) {
            for (const int x : {0, 100, 200, 300, 399}) { // edges, middles of the halves and the line between
                if (x == 100 || x == 300) {               // no texts, but the arrows are at the edge
                    const int row = (y + 1) / 71;
                    const bool line = x == 300 && y % 71 == 70 && row <= count && count > 0;
                    const bool frame = y == 0 || y == image.height() - 1;
                    QCOMPARE(image.pixelColor(x, y), QColor(frame  ? Qt::black
                                                            : line ? Qt::green
                                                                   : Qt::white));
                } else if (x != 200 || count > 0) {
                    QCOMPARE(image.pixelColor(x, y), QColor(Qt::black));
                }
            }
        }
        const OverviewButtonBase &left = *page.buttons().first();
        using Corner = OverviewButtonBase::RoundCornerStyle;
        QCOMPARE(left.roundCornerStyle().testFlag(Corner::TopRight), count == 0 || rightToLeft);
        QCOMPARE(left.roundCornerStyle().testFlag(Corner::BottomLeft), count == 0 || !rightToLeft);
    }

    /** Red lines are around the button with the focus and nowhere else. */
    void lines()
    {
        Page<OverviewButton3Children> page;
        QVERIFY(QTest::qWaitForWindowActive(&page.window));
        page.tile.setGraphicsEffect(nullptr);
        page.tile.setFixedSize(400, 3 * 70 + 2);
        QCoreApplication::processEvents();
        for (int focused = 0; focused < 4; ++focused) {
            page.buttons()[focused]->setFocus();
            const QImage image = pictureOf(page.tile);
            for (int y = 0; y < image.height(); ++y) {
                // The rows that the button and the lines above and below it have.
                const int row = focused - 1;
                const bool near = focused == 0 || (y >= row * 71 - 1 && y <= row * 71 + 70);
                QCOMPARE(image.pixelColor(200, y) == Qt::red, near);
                const bool between = y == 70 || y == 141;
                QCOMPARE(image.pixelColor(300, y) == Qt::red, between && near && focused > 0);
            }
        }
    }

    void texts()
    {
        const FontDeltaGuard guard;
        OverviewButton3Children tile;
        SignalRecorder recorder;
        recorder.record(&tile, &OverviewButton3Children::clicked, "left");
        connect(&tile, &OverviewButton3Children::rightSideClicked, &recorder,
                [&tile](int row) { tile.setText(QString::number(row)); });
        tile.setTitle("title");
        for (unsigned int row = 0; row < 5; ++row) {
            tile.setRighSideTitle(row, QString("title %1").arg(row));
            tile.setRighSideText(row, QString("text %1").arg(row));
            QCOMPARE(tile.rightSideTitle(row), row < 3 ? QString("title %1").arg(row) : QString());
            QCOMPARE(tile.rightSideText(row), row < 3 ? QString("text %1").arg(row) : QString());
        }
        const auto buttons = tile.findChildren<OverviewButtonBase *>();
        for (int row = 0; row < 3; ++row) {
            buttons[row + 1]->click();
            QCOMPARE(tile.text(), QString::number(row));
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(buttons[row + 1]);
            QCOMPARE(interface->text(QAccessible::Name), QString("title %1").arg(row));
            QCOMPARE(interface->text(QAccessible::Description), QString("text %1").arg(row));
        }
        QCOMPARE(recorder.take(), QStringList());
        buttons[0]->click();
        QCOMPARE(recorder.take(), QStringList("left"));
        QCOMPARE(QAccessible::queryAccessibleInterface(buttons[0])->text(QAccessible::Name),
                 QString("title"));
        NVO::Css::instance().setFontDelta(3);
        for (const char *name : {"leftSideTitle", "leftSideText", "rightSideTitle", "rightSideText"})
            QCOMPARE(tile.findChild<NVO::Label *>(name)->font().pixelSize(), 20);
    }

    void lastLine()
    {
        Page<OverviewButtonWithWidget> page;
        QVERIFY(QTest::qWaitForWindowActive(&page.window));
        OverviewButtonWithWidget &tile = page.tile;
        auto *button = tile.findChild<OverviewButton *>();
        auto *line = tile.findChild<QWidget *>("lastLine");
        auto *box = tile.findChild<NVO::CheckBox *>("lastLineWidget");
        auto *label = tile.findChild<NVO::Label *>("lastLineWidget");
        SignalRecorder recorder;
        recorder.record(&tile, &OverviewButtonWithWidget::pressed, "pressed");
        recorder.record(&tile, &OverviewButtonWithWidget::released, "released");
        recorder.record(&tile, &OverviewButtonWithWidget::clicked, "clicked");
        recorder.record(&tile, &OverviewButtonWithWidget::checkBoxPressed, "box pressed");
        recorder.record(&tile, &OverviewButtonWithWidget::checkBoxReleased, "box released");
        recorder.record(&tile, &OverviewButtonWithWidget::checkBoxClicked, "box clicked");
        recorder.record(&tile, &OverviewButtonWithWidget::checkBoxToggled, "box toggled");
        page.before.setFocus();

        const auto ground = [line] { return line->grab().toImage().pixelColor(1, 1); };
        QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(line, &enter);
        QCOMPARE(ground(), QColor(Qt::green));
        QCoreApplication::sendEvent(button, &enter);
        QCOMPARE(line->property("state"), QVariant("hover"));
        QCOMPARE(ground(), QColor(Qt::blue));
        QTest::mousePress(button, Qt::LeftButton);
        QCOMPARE(line->property("state"), QVariant("pressed"));
        QTest::mouseRelease(button, Qt::LeftButton);
        QCOMPARE(line->property("state"), QVariant("focus"));
        page.before.setFocus();
        QCoreApplication::sendEvent(button, &leave);
        QCOMPARE(line->property("state"), QVariant(""));
        QVERIFY(!line->property("state").toString().isNull());
        QCOMPARE(recorder.take(), QStringList({"pressed", "released", "clicked"}));

        QVERIFY(box->isVisible() && !label->isVisible());
        for (const bool enabled : {true, false}) {
            tile.setButtonEnabled(enabled);
            QCOMPARE(button->partialDisabled(), !enabled);
            QTest::keyClick(box, Qt::Key_Space);
            QCOMPARE(tile.isChecked(), enabled);
            QCOMPARE(recorder.take(),
                     QStringList({"box pressed", "box toggled", "box released", "box clicked"}));
        }
        tile.setLastLineText("text");
        for (const int mode : {1, 0, 7}) {
            tile.setLastLineMode(OverviewButtonWithWidget::LastLineMode(mode));
            QCOMPARE(box->isVisible(), mode == 0);
            QCOMPARE(label->isVisible(), mode == 1);
            QCOMPARE(box->text(), tile.lastLineText());
        }
        QCOMPARE(button->borderStyle() | OverviewButton::BorderStyle::Bottom,
                 OverviewButton::BorderStyles(OverviewButton::BorderStyle::Normal));
        QVERIFY(!button->borderStyle().testFlag(OverviewButton::BorderStyle::Bottom));
    }

    /** In a slot of each signal the whole tile goes. */
    void deletedInside()
    {
        for (int signal = 0; signal < 5; ++signal) {
            QWidget window;
            QPointer<OverviewButton3Children> split = new OverviewButton3Children(&window);
            QPointer<OverviewButtonWithWidget> lined = new OverviewButtonWithWidget(&window);
            window.show();
            const auto kill = [split, lined] {
                delete split;
                delete lined;
            };
            const auto buttons = split->findChildren<OverviewButtonBase *>();
            connect(split, &OverviewButton3Children::clicked, this, kill);
            connect(split, &OverviewButton3Children::rightSideClicked, this, kill);
            connect(buttons[2], &OverviewButtonBase::keyPressed, this, kill);
            connect(lined, &OverviewButtonWithWidget::pressed, this, kill);
            connect(lined, &OverviewButtonWithWidget::checkBoxClicked, this, kill);
            if (signal < 2)
                buttons[signal]->click();
            else if (signal == 2)
                QTest::keyPress(buttons[2], Qt::Key_Down);
            else if (signal == 3)
                QTest::keyPress(lined->findChild<OverviewButton *>(), Qt::Key_Space);
            else
                lined->findChild<NVO::CheckBox *>()->click();
            QVERIFY(split.isNull() && lined.isNull());
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestSplitTiles)
#include "tst_splittiles.moc"
