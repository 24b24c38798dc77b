#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TileTheme.h"

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
        isActive = activate(&window);
    }
    QList<OverviewButtonBase *> buttons() { return tile.template findChildren<OverviewButtonBase *>(); }

    QWidget window;
    QVBoxLayout rows;
    QPushButton before;
    Widget tile;
    QPushButton after;
    bool isActive = false;
};

} // namespace

class TestSplitTiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_theme.emplace(); }

    void walk()
    {
        for (unsigned int count = 0; count <= 4; ++count)
            walk(count);
    }

    void shapes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("rightToLeft");
        for (int row = 0; row < 8; ++row)
            QTest::addRow("%d%s", row / 2, row % 2 ? " right to left" : "") << row / 2 << (row % 2 == 1);
    }

    /** The frame and the lines of the tile, pixel by pixel, in both directions. */
    void shapes()
    {
        QFETCH(int, count);
        QFETCH(bool, rightToLeft);
        Page<OverviewButton3Children> page;
        OverviewButton3Children &tile = page.tile;
        QCOMPARE(tile.sizeHint().height(), 3 * 63 + 2);
        tile.setRightSideVisible(unsigned(count));
        tile.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        QVERIFY(count == 0 || tile.sizeHint().height() == 3 * 63 + 2);
        tile.setFixedSize(400, 3 * 70 + 2);
        page.window.adjustSize();
        QCoreApplication::processEvents();

        const Picture picture(&tile);
        QVERIFY(!picture.hasHoles());
        const auto at = [&](int x, int y) { return picture.at(rightToLeft ? 399 - x : x, y); };
        for (int y = 0; y < 212; ++y) {
            const bool frame = y == 0 || y == 211;
            const bool line = y % 71 == 70 && (y + 1) / 71 <= count && count > 0;
            QCOMPARE(at(0, y), QColor(Qt::black));
            QCOMPARE(at(399, y), QColor(Qt::black));
            QCOMPARE(at(100, y), QColor(frame ? Qt::black : Qt::white));
            QCOMPARE(at(200, y), QColor(frame || count > 0 ? Qt::black : Qt::white));
            QCOMPARE(at(199, y), QColor(frame ? Qt::black : Qt::white)); // beside the line, not a second one
            QCOMPARE(at(300, y), QColor(frame ? Qt::black : line ? Qt::green : Qt::white));
        }
        QVector<int> corners;
        for (const OverviewButtonBase *button : page.buttons())
            corners.append(int(button->roundCornerStyle()));
        const int left = count == 0 ? 15 : rightToLeft ? 10 : 5;
        QCOMPARE(corners, rightToLeft ? QVector<int>({left, 1, 0, 4}) : QVector<int>({left, 2, 0, 8}));
    }

    /** Red lines are around the button with the focus and nowhere else. */
    void lines()
    {
        Page<OverviewButton3Children> page;
        QVERIFY(page.isActive);
        page.tile.setFixedSize(400, 3 * 70 + 2);
        QCoreApplication::processEvents();
        for (int focused = 0; focused < 4; ++focused) {
            page.buttons()[focused]->setFocus();
            const Picture picture(&page.tile);
            for (int y = 0; y < 212; ++y) {
                // The rows that the button and the lines above and below it have.
                const int row = focused - 1;
                const bool near = focused == 0 || (y >= row * 71 - 1 && y <= row * 71 + 70);
                QCOMPARE(picture.at(200, y) == Qt::red, near);
                const bool between = y == 70 || y == 141;
                QCOMPARE(picture.at(300, y) == Qt::red, between && near && focused > 0);
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
        QVERIFY(tile.graphicsEffect());
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
        QVERIFY(page.isActive);
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

        const auto ground = [line] { return Picture(line).at(1, 1); };
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
        for (const char *name : {"title", "description", "note", "hint"})
            tile.setProperty(name, name);
        for (const char *name : {"title", "description", "note", "hint"})
            QCOMPARE(button->property(name), QVariant(name));
        tile.setOverviewButtonStyle(OverviewButton::Style::Primary);
        QCOMPARE(line->property("style"), button->property("style"));
        QCOMPARE(box->checkBoxStyle(), NVO::CheckBox::CheckBoxStyle::White);
        QCOMPARE(int(button->borderStyle()), 7);
        QCOMPARE(int(button->roundCornerStyle()), 3);
    }

    /** The whole tile goes in a slot. */
    void deletedInside()
    {
        for (int signal = 0; signal < 3; ++signal) {
            QPointer<OverviewButton3Children> split = new OverviewButton3Children;
            QPointer<OverviewButtonWithWidget> lined = new OverviewButtonWithWidget;
            const auto kill = [=] {
                delete split;
                delete lined;
            };
            auto *right = split->findChildren<OverviewButtonBase *>()[1];
            connect(split, &OverviewButton3Children::rightSideClicked, this, kill);
            connect(right, &OverviewButtonBase::keyPressed, this, kill);
            connect(lined, &OverviewButtonWithWidget::checkBoxClicked, this, kill);
            if (signal == 0)
                right->click();
            else if (signal == 1)
                QTest::keyPress(right, Qt::Key_Down);
            else
                lined->findChild<NVO::CheckBox *>()->click();
            QVERIFY(split.isNull() && lined.isNull());
        }
    }

private:
    /** Each key from each button: 0 is the one before, 1 the left half, then the right ones, then after. */
    void walk(unsigned int count)
    {
        Page<OverviewButton3Children> page;
        QVERIFY(page.isActive);
        page.tile.setRightSideVisible(count);
        const int rows = qMin(int(count), 3);
        QList<QWidget *> stops{&page.before};
        for (OverviewButtonBase *button : page.buttons().mid(0, rows + 1))
            stops.append(button);
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

    std::optional<TileTheme> m_theme;
};

QTEST_MAIN(TestSplitTiles)
#include "tst_splittiles.moc"
