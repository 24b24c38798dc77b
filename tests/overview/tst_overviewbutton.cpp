#include "Guards.h"
#include "Mouse.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TileTheme.h"
#include "overview/SeparatorLine.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/Label.h>
#include <nvo/OverviewButton.h>
#include <nvo/Palette.h>
#include <nvo/Pixmap.h>

#include <QAccessible>
#include <QDialog>
#include <QGridLayout>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>
#include <optional>

using NVO::Label;
using NVO::OverviewButton;
using NVO::OverviewButtonBase;
using NVO::SeparatorLine;

namespace {

/** Gives all texts of \a tile the same. */
void setTexts(OverviewButton &tile, const QString &text)
{
    for (const auto set : {&OverviewButton::setTitle, &OverviewButton::setDescription,
                           &OverviewButton::setNote, &OverviewButton::setHint})
        (tile.*set)(text);
}

class Tile : public OverviewButtonBase
{
public:
    using OverviewButtonBase::OverviewButtonBase;
    using OverviewButtonBase::setHandleCursorKeys;
};

bool shadowShows(const OverviewButtonBase &tile)
{
    return qobject_cast<const NVO::GraphicsEffect *>(tile.graphicsEffect())->enabled();
}

void enterOrLeave(QWidget *widget, bool enter)
{
    QEnterEvent in({5, 5}, {5, 5}, {5, 5});
    QEvent out(QEvent::Leave);
    QCoreApplication::sendEvent(widget, enter ? static_cast<QEvent *>(&in) : &out);
}

NVO::Pixmap picture(bool isThere)
{
    return isThere ? NVO::Pixmap(":/picture") : NVO::Pixmap();
}

/** Row, column and their spans. */
QVector<int> placeOf(const OverviewButton &tile, QWidget *widget)
{
    QVector<int> place(4);
    auto *grid = static_cast<QGridLayout *>(tile.layout());
    grid->getItemPosition(grid->indexOf(widget), &place[0], &place[1], &place[2], &place[3]);
    return place;
}

} // namespace

class TestOverviewButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_theme.emplace(); }

    /** Random events against the rules of the state; a signal comes with each real change and no other. */
    void states()
    {
        QWidget window;
        auto *tile = new Tile(&window);
        auto *other = new QPushButton(&window);
        other->move(100, 0);
        QVERIFY(activate(&window));
        other->setFocus();
        SignalRecorder recorder;
        recorder.record(tile, &OverviewButtonBase::styleStateChanged, "changed");

        QRandomGenerator random(1);
        bool hovered = false;
        bool shadow = true; // what shows; a partially disabled tile leaves it as it was
        const QVector<std::function<void()>> actions{
            [&] { enterOrLeave(tile, hovered = !hovered); },
            [&] { tile->setFocus(); },
            [&] { other->setFocus(); },
            [&] { QTest::mousePress(tile, Qt::LeftButton); },
            [&] { tile->isDown() ? QTest::mouseRelease(tile, Qt::LeftButton) : void(); },
            [&] { QTest::keyPress(tile, Qt::Key_Space); },
            [&] { tile->setPartialDisabled((random.bounded(4) == 0) != tile->partialDisabled()); },
            [&] {
                tile->setShadowEnabled(random.bounded(2));
                shadow = tile->shadowEnabled() && !tile->isDown();
            },
        };
        auto before = OverviewButtonBase::StyleStateNormal;
        for (int step = 0; step < 2000; ++step) {
            const bool partial = tile->partialDisabled();
            actions[random.bounded(actions.size())]();
            auto now = OverviewButtonBase::StyleStateNormal;
            if (!tile->partialDisabled()) {
                shadow = tile->shadowEnabled() && !tile->isDown();
                now = tile->isDown()     ? OverviewButtonBase::StyleStatePressed
                      : tile->hasFocus() ? OverviewButtonBase::StyleStateFocus
                      : hovered          ? OverviewButtonBase::StyleStateHover
                                         : OverviewButtonBase::StyleStateNormal;
            }
            QCOMPARE(tile->styleState(), now);
            QCOMPARE(shadowShows(*tile), shadow);
            const int signalled = recorder.take().size();
            // Space can push the focus and the button in one step, a loss of focus lets go first.
            QVERIFY(signalled == 0 ? now == before : signalled < 3 && (now != before || signalled > 1));
            QVERIFY(!(tile->partialDisabled() && tile->hasFocus()) || partial);
            QCOMPARE(tile->focusPolicy(), tile->partialDisabled() ? Qt::NoFocus : Qt::StrongFocus);
            QCOMPARE(tile->cursor().shape(),
                     tile->partialDisabled() ? Qt::ArrowCursor : Qt::PointingHandCursor);
            before = now;
        }
    }

    void properties()
    {
        OverviewButton tile;
        const QByteArrayList borders{"WithoutLeftBorder", "WithoutRightBorder", "WithoutTopBorder",
                                     "WithoutBottomBorder"};
        const QByteArrayList corners{"TopLeftRound", "TopRightRound", "BottomLeftRound", "BottomRightRound"};
        for (int set = 0; set < 16; ++set) {
            tile.setBorderStyle(OverviewButton::BorderStyles(set));
            tile.setRoundCornerStyle(OverviewButton::RoundCornerStyles(15 - set));
            for (int bit = 0; bit < 4; ++bit) {
                QCOMPARE(tile.property(borders[bit]), QVariant(!(set & 1 << bit)));
                QCOMPARE(tile.property(corners[bit]), QVariant(!(set & 1 << bit)));
            }
        }
        QCOMPARE(tile.property("style"), QVariant("Normal"));
        QVERIFY(tile.setProperty("overviewButtonStyle", int(OverviewButton::Style::Primary)));
        QCOMPARE(tile.property("style"), QVariant("Primary"));
        QCOMPARE(tile.property("partialDisabled"), QVariant(false));
        QCOMPARE(tile.styleSheet(), NVO::Css::instance().css(NVO::ElementOverviewButton));
        QVERIFY(Tile().styleSheet().isEmpty());
        QCOMPARE(tile.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    }

    void painting()
    {
        OverviewButton tile;
        tile.setTitle("title");
        static_cast<QPushButton &>(tile).setText("never painted");
        tile.resize(90, 60);
        const auto colors = [&tile] {
            const Picture picture(&tile);
            return QVector<QColor>{picture.at(0, 30), picture.at(89, 30), picture.at(4, 4)};
        };
        QCOMPARE(colors(), QVector<QColor>({Qt::black, Qt::black, Qt::white}));
        tile.setBorderStyle(OverviewButton::BorderStyle::Left);
        tile.setAttribute(Qt::WA_UnderMouse); // no mouse has to move for the hover to be seen
        QCOMPARE(colors(), QVector<QColor>({Qt::black, Qt::blue, Qt::blue}));
        tile.setAttribute(Qt::WA_UnderMouse, false);
        tile.setPartialDisabled(true);
        QCOMPARE(colors(), QVector<QColor>({Qt::black, QColor("gray"), QColor("gray")}));
        tile.setDown(true); // of the ring at an open side one pixel is outside
        const Picture ring(&tile);
        QCOMPARE(QVector<bool>({ring.at(1, 30) == Qt::red, ring.at(2, 30) == Qt::red,
                                ring.at(88, 30) == Qt::red, ring.at(89, 30) == Qt::red}),
                 QVector<bool>({true, false, false, true}));
    }

    /** Every set of contents in every layout, with changes of both in between. */
    void contents()
    {
        const auto guard = withVariant(1);
        OverviewButton tile;
        static_cast<QPushButton &>(tile).setText(QString(500, 'W'));
        const auto widgets = tile.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(widgets.size(), 13);
        QRandomGenerator random(2);
        for (int round = 0; round < 600; ++round) {
            const auto layout = OverviewButton::Layout(random.bounded(3));
            const auto has = [round](int bit) { return (round >> bit & 1) != 0; };
            const auto text = [&has](int bit) { return has(bit) ? QString("text %1").arg(bit) : QString(); };
            tile.setIcon(picture(has(0)));
            tile.setTitle(text(1));
            tile.setButtonLayout(layout);
            tile.setDescription(text(2));
            tile.setNote(text(3));
            tile.setHint(text(4));
            tile.setStatus(picture(has(5)));
            tile.setAccessory(picture(has(6)));

            const bool centred = layout == OverviewButton::IconCenterLeft;
            const int rows = centred ? 5 : 1;
            const int column = centred ? 2 : 0;
            const int span = centred ? 1 : 3;
            struct Wanted
            {
                bool isShown;
                QVector<int> place;
                QSize fixed{0, 0};
            };
            const QVector<Wanted> wanted{
                {has(0) || layout == OverviewButton::IconOnly, {0, 0, rows, 1}},
                {has(0), {0, 1, rows, 1}, {10, 0}},
                {has(1), {0, 2, 1, 1}},
                {has(1) && has(2), {1, column, 1, span}, {0, 2}},
                {has(2), {2, column, 1, span}},
                {has(2) && has(3), {3, column, 1, span}, {0, 2}},
                {has(3), {4, column, 1, span}},
                {has(4), {0, 3, 5, 1}, {10, 0}},
                {has(4), {0, 4, 5, 1}},
                {has(5), {0, 5, 5, 1}, {10, 0}},
                {has(5), {0, 6, 5, 1}},
                {has(6), {0, 7, 5, 1}, {20, 0}},
                {has(6), {0, 8, 5, 1}},
            };
            for (int i = 0; i < widgets.size(); ++i) {
                const bool isShown = wanted[i].isShown && (i == 0 || layout != OverviewButton::IconOnly);
                QCOMPARE(widgets[i]->isVisibleTo(&tile), isShown);
                QCOMPARE(placeOf(tile, widgets[i]), wanted[i].place);
                QCOMPARE(widgets[i]->minimumSize(), wanted[i].fixed);
            }
            const int vertical = centred ? 10 : 20;
            QCOMPARE(tile.layout()->contentsMargins(), QMargins(10, vertical, 10, vertical));
            QCOMPARE(tile.layout()->count(), 13);
            QCOMPARE(tile.sizeHint(), tile.layout()->totalSizeHint());
            QCOMPARE(tile.findChild<Label *>("titleLabel")->text(), tile.title());
        }
        const auto classic = withVariant(0);
        QCOMPARE(OverviewButton().layout()->contentsMargins(), QMargins(20, 10, 20, 10));
    }

    /** Sizes follow the delta, also where the font of the application has grown by it, and styles the tile.
     */
    void headline()
    {
        const FontDeltaGuard guard;
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPixelSize(12);
        QApplication::setFont(font);
        NVO::Css::instance().setFontDelta(2);
        OverviewButton tile;
        tile.setTitle("title");
        tile.show();
        for (const int delta : {2, 5, 0, -3, 1}) {
            font.setPixelSize(12 + delta);
            QApplication::setFont(font);
            NVO::Css::instance().setFontDelta(delta);
            const bool big = delta > 0;
            tile.setHeadlineStyle(big ? OverviewButton::Big : OverviewButton::Normal);
            for (Label *label : tile.findChildren<Label *>()) {
                const bool icon = label->objectName() == "icon";
                QCOMPARE(label->property("style"), icon ? QVariant() : QVariant(big ? "Big" : "Normal"));
                QEvent change(QEvent::ApplicationFontChange); // the label may hear of it after its tile
                QCoreApplication::sendEvent(label, &change);
                const int size = label->objectName() == "titleLabel" ? 17 : 12;
                QCOMPARE(label->font().pixelSize(), size + delta);
            }
        }
        QApplication::setFont(before);
    }

    /** A press anywhere in a tile is the tile's, but for one on a link. */
    void mouse()
    {
        OverviewButton tile;
        tile.setIcon(picture(true));
        setTexts(tile, "some text");
        tile.resize(400, 90);
        tile.show();
        Mouse mouse(&tile);
        SignalRecorder recorder;
        recorder.record(&tile, &OverviewButton::clicked, "clicked");
        for (Label *label : tile.findChildren<Label *>()) {
            if (!label->isVisible())
                continue;
            mouse.press(label->mapToGlobal(label->rect().center()));
            QVERIFY(tile.isDown());
            mouse.move(tile.mapToGlobal({-9, -9}));
            QVERIFY(!tile.isDown());
            mouse.move(label->mapToGlobal(label->rect().center()));
            mouse.release();
            QCOMPARE(recorder.take(), QStringList("clicked"));
        }
        tile.setHint("<a href='x'>a link in the hint</a>");
        QCoreApplication::processEvents();
        auto *hint = tile.findChildren<Label *>()[4];
        recorder.record(hint, &Label::linkActivated, "link");
        mouse.press(hint->mapToGlobal(hint->rect().center()));
        mouse.release();
        QCOMPARE(recorder.take(), QStringList("link"));
    }

    void keys()
    {
        QDialog dialog;
        auto *before = new QPushButton(&dialog);
        auto *tile = new Tile(&dialog);
        QVERIFY(activate(&dialog));
        tile->setFocus();
        SignalRecorder recorder;
        recorder.record(tile, &Tile::clicked, "clicked");
        connect(tile, &Tile::keyPressed, &recorder, [tile](int key) { tile->setText(QString::number(key)); });
        QTest::keyClick(tile, Qt::Key_Space);
        QTest::keyClick(tile, Qt::Key_Return); // in a dialog a push button takes it
        QCOMPARE(recorder.take(), QStringList({"clicked", "clicked"}));
        tile->setHandleCursorKeys(true);
        for (const auto key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            QTest::keyClick(tile, key);
            QCOMPARE(tile->text(), QString::number(key));
            QVERIFY(tile->hasFocus());
            QKeyEvent release(QEvent::KeyRelease, key, {});
            QCoreApplication::sendEvent(tile, &release);
            QVERIFY(release.isAccepted());
        }
        tile->setHandleCursorKeys(false);
        QTest::keyClick(tile, Qt::Key_Up);
        QVERIFY(before->hasFocus());
        tile->setFocus();
        tile->setPartialDisabled(true);
        QVERIFY(before->hasFocus());
        tile->click();
        QCOMPARE(recorder.take(), QStringList("clicked"));
    }

    void accessibility()
    {
        OverviewButton tile;
        tile.setTitle("<b>Lohn</b> &amp; Gehalt");
        tile.setDescription("37 <i>Personen</i>");
        tile.setNote("davon 2 neu");
        tile.setHint("fertig");
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&tile);
        QCOMPARE(interface->role(), QAccessible::Button);
        QCOMPARE(interface->text(QAccessible::Name), QString("Lohn & Gehalt"));
        QCOMPARE(interface->text(QAccessible::Description), QString("37 Personen\ndavon 2 neu\nfertig"));
        QCOMPARE(interface->childCount(), 0);
        tile.setButtonLayout(OverviewButton::IconOnly);
        QCOMPARE(interface->text(QAccessible::Name), QString("Lohn & Gehalt"));
        tile.setAccessibleName("own");
        QCOMPARE(interface->text(QAccessible::Name), QString("own"));
    }

    void robust()
    {
        for (int signal = 0; signal < 5; ++signal) { // deleted inside each of its signals
            QWidget window;
            QPointer<Tile> tile = new Tile(&window);
            tile->setHandleCursorKeys(true);
            enterOrLeave(tile, true);
            const auto killIn = [&](int which, auto member) {
                if (which == signal)
                    connect(tile, member, this, [tile] { delete tile; });
            };
            killIn(0, &Tile::pressed);
            killIn(1, &Tile::released);
            killIn(2, &Tile::clicked);
            killIn(3, &Tile::keyPressed);
            killIn(4, &Tile::styleStateChanged);
            if (signal == 3)
                QTest::keyPress(tile.data(), Qt::Key_Up);
            else if (signal == 4)
                enterOrLeave(tile, false);
            else
                QTest::mousePress(tile.data(), Qt::LeftButton, {}, {5, 5});
            if (tile)
                QTest::mouseRelease(tile.data(), Qt::LeftButton, {}, {5, 5});
            QVERIFY(tile.isNull());
        }
        OverviewButton tile;
        tile.setIcon(QPixmap(3000, 10));
        setTexts(tile, QString("wort ").repeated(2000));
        QVERIFY(tile.heightForWidth(4000) < tile.heightForWidth(3300));
        tile.setGraphicsEffect(nullptr);
        tile.setShadowEnabled(false);
        tile.grab();
    }

    void separatorColors()
    {
        Tile tile;
        for (int look = 0; look < 192; ++look) {
            const auto bit = [look](int at) { return (look >> at & 1) != 0; };
            const int edges = look >> 4 & 3;
            const auto orientation = SeparatorLine::Orientation(look >> 6);
            tile.setDown(bit(0));
            SeparatorLine line({&tile, nullptr}, nullptr);
            line.setButtons({nullptr, &tile});
            line.setOrientation(orientation);
            line.setBorderStyle(bit(1) ? SeparatorLine::Inner : SeparatorLine::Outer);
            line.setEdgeStyle(SeparatorLine::EdgeStyle(edges));
            line.setBackgroundOnly(bit(2));
            line.setLayoutDirection(bit(3) ? Qt::RightToLeft : Qt::LeftToRight);
            line.resize(9, 9);
            QCOMPARE(line.size(), QVector<QSize>({{9, 1}, {1, 9}, {1, 1}})[orientation]);

            const bool isPlain = bit(2) || bit(0);
            const QColor body = bit(2) ? Qt::white : bit(0) ? Qt::red : bit(1) ? Qt::green : Qt::black;
            const QColor edge = isPlain ? body : QColor(Qt::black);
            const bool mirror = bit(3) && orientation == SeparatorLine::Horizontal;
            const int first = mirror ? SeparatorLine::BottomOrRight : SeparatorLine::TopOrLeft;
            const bool isCorner = orientation == SeparatorLine::Corner;
            const Picture picture(&line);
            QCOMPARE(picture.at(0, 0), edges & (isCorner ? 3 : first) ? edge : body);
            QCOMPARE(picture.at(line.width() / 2, line.height() / 2), isCorner && edges ? edge : body);
            QCOMPARE(picture.at(line.width() - 1, line.height() - 1),
                     edges & (isCorner ? 3 : 3 - first) ? edge : body);
        }
    }

    void separatorFollows()
    {
        QWidget window;
        auto *one = new Tile(&window);
        auto *two = new Tile(&window);
        QVERIFY(activate(&window));
        SeparatorLine line({one, two}, nullptr);
        line.resize(9, 1);
        const auto isLit = [&line] { return Picture(&line).at(4, 0) == Qt::red; };
        for (Tile *tile : {two, one}) {
            tile->setFocus();
            QVERIFY(isLit());
        }
        line.setButtons({});
        QVERIFY(!isLit());
        two->setFocus(); // is not watched
        one->setFocus();
        QVERIFY(!isLit());
        line.setButtons({one});
        QVERIFY(isLit());
        delete one; // had the focus
        QVERIFY(!isLit());
    }

private:
    std::optional<TileTheme> m_theme;
};

QTEST_MAIN(TestOverviewButton)
#include "tst_overviewbutton.moc"
