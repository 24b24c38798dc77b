#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"
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

#include <optional>

using NVO::Label;
using NVO::OverviewButton;
using NVO::OverviewButtonBase;
using NVO::SeparatorLine;

namespace {

class Tile : public OverviewButtonBase
{
public:
    using OverviewButtonBase::initStyleSheet;
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

QGridLayout *gridOf(const OverviewButton &tile)
{
    return static_cast<QGridLayout *>(tile.layout());
}

/** Row, column and their spans; empty if the widget has no place. */
QVector<int> placeOf(const OverviewButton &tile, QWidget *widget)
{
    QVector<int> place(4);
    const int index = gridOf(tile)->indexOf(widget);
    if (index < 0)
        return {};
    gridOf(tile)->getItemPosition(index, &place[0], &place[1], &place[2], &place[3]);
    return place;
}

} // namespace

Q_DECLARE_METATYPE(NVO::SeparatorLine::Orientation)

class TestOverviewButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
            {"FontSizes", "[Element]\nOverviewButton=HIGHLIGHT\n"},
            {"OverviewButton",
             "NVO--OverviewButtonBase { background: #ffff00; border: 1px solid #0000ff; }\n"
             "NVO--OverviewButtonBase:hover { background: #00ff00; }\n"
             "NVO--OverviewButtonBase[partialDisabled=\"true\"] { background: #888888; }\n"},
            {"Palette", "[Named]\nCOLOR_BIG_BUTTON_BACKGROUND=#ffffff\nCOLOR_BIG_BUTTON_BORDER=#000000\n"
                        "COLOR_BIG_BUTTON_BORDER_FOCUS=#ff0000\nCOLOR_BIG_BUTTON_BORDER_DISABLED=#00ff00\n"},
            {"picture", TestResources::png(16, 16, {0xff111111})},
        });
        NVO::Css::instance().reset();
    }

    /** Random events against the rules of the state; a signal comes with each real change and no other. */
    void states()
    {
        QWidget window;
        auto *tile = new Tile(&window);
        auto *other = new QPushButton(&window);
        other->move(100, 0);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        SignalRecorder recorder;
        recorder.record(tile, &OverviewButtonBase::styleStateChanged, "changed");

        QRandomGenerator random(1);
        bool hovered = false;
        bool shadow = true; // what shows; a partially disabled tile leaves it as it was
        auto before = OverviewButtonBase::StyleStateNormal;
        for (int step = 0; step < 2000; ++step) {
            const bool partial = tile->partialDisabled();
            switch (random.bounded(8)) {
            case 0:
                enterOrLeave(tile, hovered = !hovered);
                break;
            case 1:
                tile->setFocus();
                break;
            case 2:
                other->setFocus();
                break;
            case 3:
                QTest::mousePress(tile, Qt::LeftButton);
                break;
            case 4:
                if (tile->isDown())
                    QTest::mouseRelease(tile, Qt::LeftButton);
                break;
            case 5:
                QTest::keyPress(tile, Qt::Key_Space);
                break;
            case 6:
                if (random.bounded(4) == 0)
                    tile->setPartialDisabled(!partial);
                break;
            default:
                tile->setShadowEnabled(random.bounded(2));
                shadow = tile->shadowEnabled() && !tile->isDown();
            }
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
            const QStringList signalled = recorder.take();
            // Space can push the focus and the button in one step, a loss of focus lets go first.
            QVERIFY(signalled.isEmpty() ? now == before : now != before || signalled.size() > 1);
            QVERIFY(signalled.size() <= 2);
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
    }

    void painting()
    {
        OverviewButton tile;
        tile.setTitle("title");
        static_cast<QPushButton &>(tile).setText("never painted");
        tile.resize(90, 60);
        const auto colors = [&tile] {
            const QImage image = tile.grab().toImage();
            QStringList names;
            for (const QPoint &point : {QPoint(0, 30), QPoint(89, 30), QPoint(4, 4)})
                names.append(image.pixelColor(point).name());
            return names.join(' ');
        };
        QCOMPARE(colors(), QString("#0000ff #0000ff #ffff00"));
        // An open side is painted beyond the edge; no mouse has to move for the hover to be seen.
        tile.setBorderStyle(OverviewButton::BorderStyle::Left);
        tile.setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(colors(), QString("#0000ff #00ff00 #00ff00"));
        tile.setAttribute(Qt::WA_UnderMouse, false);
        tile.setPartialDisabled(true);
        QCOMPARE(colors(), QString("#0000ff #888888 #888888"));
    }

    /** Every set of contents in every layout, with changes of both in between. */
    void contents()
    {
        const auto guard = withVariant(1);
        OverviewButton tile;
        QCOMPARE(tile.sizeHint(), tile.layout()->totalSizeHint());
        static_cast<QPushButton &>(tile).setText(QString(500, 'W'));
        QCOMPARE(tile.sizeHint(), tile.layout()->totalSizeHint());
        auto *icon = tile.findChild<Label *>("icon");
        auto *title = tile.findChild<Label *>("titleLabel");
        // In the order in which they are made.
        const auto widgets = tile.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(widgets.size(), 13);
        QCOMPARE(widgets[0], icon);
        QCOMPARE(widgets[4], title);
        QRandomGenerator random(2);
        for (int round = 0; round < 600; ++round) {
            const int set = round % 128;
            const auto layout = OverviewButton::Layout(random.bounded(3));
            const auto has = [set](int bit) { return (set >> bit & 1) != 0; };
            const auto text = [&has](int bit) { return has(bit) ? QString("text %1").arg(bit) : QString(); };
            tile.setIcon(picture(has(0)));
            tile.setTitle(text(1));
            tile.setButtonLayout(layout);
            tile.setDescription(text(2));
            tile.setNote(text(3));
            tile.setHint(text(4));
            tile.setStatus(picture(has(5)));
            tile.setAccessory(picture(has(6)));

            const bool only = layout == OverviewButton::IconOnly;
            const QVector<bool> shown{
                only || has(0),  !only && has(0), !only && has(1) && has(2), !only && has(2) && has(3),
                !only && has(1), !only && has(2), !only && has(3),           !only && has(4),
                !only && has(4), !only && has(5), !only && has(5),           !only && has(6),
                !only && has(6)};
            const bool centred = layout == OverviewButton::IconCenterLeft;
            const int rows = centred ? 5 : 1;
            const int column = centred ? 2 : 0;
            const int span = centred ? 1 : 3;
            const QVector<QVector<int>> places{{0, 0, rows, 1},      {0, 1, rows, 1}, {1, column, 1, span},
                                               {3, column, 1, span}, {0, 2, 1, 1},    {2, column, 1, span},
                                               {4, column, 1, span}, {0, 3, 5, 1},    {0, 4, 5, 1},
                                               {0, 5, 5, 1},         {0, 6, 5, 1},    {0, 7, 5, 1},
                                               {0, 8, 5, 1}};
            for (int i = 0; i < widgets.size(); ++i) {
                QCOMPARE(widgets[i]->isVisibleTo(&tile), shown[i]);
                QCOMPARE(placeOf(tile, widgets[i]), places[i]);
            }
            QCOMPARE(gridOf(tile)->count(), 13);
            const int vertical = centred ? 10 : 20;
            QCOMPARE(gridOf(tile)->contentsMargins(), QMargins(10, vertical, 10, vertical));
            QCOMPARE(title->text(), tile.title());
        }
        const QVector<QSize> fixed{{10, 0}, {0, 2}, {0, 2}, {10, 0}, {10, 0}, {20, 0}};
        const QVector<int> spacers{1, 2, 3, 7, 9, 11};
        for (int i = 0; i < spacers.size(); ++i)
            QCOMPARE(widgets[spacers[i]]->minimumSize(), fixed[i]);
        QCOMPARE(OverviewButton().layout()->contentsMargins().left(), 10);
        const auto classic = withVariant(0);
        QCOMPARE(OverviewButton().layout()->contentsMargins(), QMargins(20, 10, 20, 10));
    }

    void headline()
    {
        const FontDeltaGuard guard;
        NVO::Css::instance().setFontDelta(2);
        OverviewButton tile;
        tile.setTitle("title");
        tile.setDescription("description");
        tile.show();
        auto *title = tile.findChild<Label *>("titleLabel");
        const QList<Label *> labels = tile.findChildren<Label *>();
        for (const int delta : {2, 5, 0, -3, 1}) { // the label may hear of it after its tile
            NVO::Css::instance().setFontDelta(delta);
            QEvent change(QEvent::ApplicationFontChange);
            QCoreApplication::sendEvent(title, &change);
            QCOMPARE(title->font().pixelSize(), 17 + delta);
            const bool big = delta > 0;
            tile.setHeadlineStyle(big ? OverviewButton::Big : OverviewButton::Normal);
            for (Label *label : labels) {
                const bool icon = label->objectName() == "icon";
                QCOMPARE(label->property("style"), icon ? QVariant() : QVariant(big ? "Big" : "Normal"));
            }
        }
    }

    void keys()
    {
        QDialog dialog;
        auto *before = new QPushButton(&dialog);
        auto *tile = new Tile(&dialog);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
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
        }
        tile->setHandleCursorKeys(false);
        QTest::keyClick(tile, Qt::Key_Up);
        QVERIFY(before->hasFocus());
        tile->setFocus();
        tile->setPartialDisabled(true);
        QVERIFY(before->hasFocus());
        tile->click();
        QCOMPARE(recorder.take(), QStringList("clicked"));
        QWidget window;
        tile->setParent(&window);
        QTest::keyClick(tile, Qt::Key_Return); // and in a window nobody does
        QCOMPARE(recorder.take(), QStringList());
    }

    void accessibility()
    {
        OverviewButton tile;
        tile.setTitle("<b>Lohn</b> &amp; Gehalt");
        tile.setDescription("37 <i>Personen</i>");
        tile.setHint("fertig");
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&tile);
        QCOMPARE(interface->role(), QAccessible::Button);
        QCOMPARE(interface->text(QAccessible::Name), QString("Lohn & Gehalt"));
        QCOMPARE(interface->text(QAccessible::Description), QString("37 Personen\nfertig"));
        QCOMPARE(interface->childCount(), 0);
        tile.setButtonLayout(OverviewButton::IconOnly);
        QCOMPARE(interface->text(QAccessible::Name), QString("Lohn & Gehalt"));
        tile.setAccessibleName("own");
        QCOMPARE(interface->text(QAccessible::Name), QString("own"));
    }

    void robust()
    {
        for (int signal = 0; signal < 5; ++signal) { // deleted inside each of its signals
            auto *window = new QWidget;
            QPointer<Tile> tile = new Tile(window);
            tile->setHandleCursorKeys(true);
            window->show();
            const auto kill = [tile] { delete tile; };
            if (signal == 0)
                connect(tile, &Tile::pressed, this, kill);
            else if (signal == 1)
                connect(tile, &Tile::released, this, kill);
            else if (signal == 2)
                connect(tile, &Tile::clicked, this, kill);
            else if (signal == 3)
                connect(tile, &Tile::keyPressed, this, kill);
            else
                connect(tile, &Tile::styleStateChanged, this, [=] {
                    if (tile->styleState() == Tile::StyleStateNormal)
                        kill();
                });
            enterOrLeave(tile, true);
            if (signal == 3)
                QTest::keyPress(tile.data(), Qt::Key_Up);
            else if (signal < 3)
                QTest::mousePress(tile.data(), Qt::LeftButton, {}, {5, 5});
            if (tile && signal < 3)
                QTest::mouseRelease(tile.data(), Qt::LeftButton, {}, {5, 5});
            if (tile)
                enterOrLeave(tile, false);
            QVERIFY(tile.isNull());
            delete window;
        }
        OverviewButton tile;
        QPixmap large(3000, 10);
        large.fill(Qt::red);
        tile.setIcon(large);
        for (const auto set : {&OverviewButton::setTitle, &OverviewButton::setDescription,
                               &OverviewButton::setNote, &OverviewButton::setHint})
            (tile.*set)(QString("wort ").repeated(2000));
        QVERIFY(tile.heightForWidth(4000) < tile.heightForWidth(3300));
        tile.setGraphicsEffect(nullptr);
        tile.setShadowEnabled(false);
        tile.grab();
    }

    void separatorColors_data()
    {
        QTest::addColumn<SeparatorLine::Orientation>("orientation");
        QTest::addColumn<QSize>("size");
        QTest::newRow("horizontal") << SeparatorLine::Horizontal << QSize(9, 1);
        QTest::newRow("vertical") << SeparatorLine::Vertical << QSize(1, 9);
        QTest::newRow("corner") << SeparatorLine::Corner << QSize(1, 1);
    }

    void separatorColors()
    {
        QFETCH(SeparatorLine::Orientation, orientation);
        QFETCH(QSize, size);
        Tile tile;
        for (int look = 0; look < 64; ++look) {
            const bool inner = look & 1;
            const bool ground = look & 2;
            const bool lit = look & 4;
            const bool rightToLeft = look & 8;
            const int edges = look >> 4;
            tile.setDown(lit);
            SeparatorLine line({&tile, nullptr}, nullptr);
            line.setButtons({nullptr, &tile});
            line.setOrientation(orientation);
            line.setBorderStyle(inner ? SeparatorLine::Inner : SeparatorLine::Outer);
            line.setEdgeStyle(SeparatorLine::EdgeStyle(edges));
            line.setBackgroundOnly(ground);
            line.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            line.resize(9, 9);
            QCOMPARE(line.size(), size);

            const QColor body = ground ? Qt::white : lit ? Qt::red : inner ? Qt::green : Qt::black;
            const QColor edge = ground || lit ? body : QColor(Qt::black);
            const bool mirror = rightToLeft && orientation == SeparatorLine::Horizontal;
            const int first = mirror ? SeparatorLine::BottomOrRight : SeparatorLine::TopOrLeft;
            const QImage image = line.grab().toImage();
            const int last = qMax(size.width(), size.height()) - 1;
            const auto at = [&](int i) {
                return image.pixelColor(qMin(i, size.width() - 1), qMin(i, size.height() - 1));
            };
            QCOMPARE(at(last / 2), last > 0 || edges == 0 ? body : edge);
            if (last > 0) {
                QCOMPARE(at(0), edges & first ? edge : body);
                QCOMPARE(at(last), edges & (3 - first) ? edge : body);
            }
        }
    }

    void separatorFollows()
    {
        QWidget window;
        auto *one = new Tile(&window);
        auto *two = new Tile(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        SeparatorLine line({one, two}, nullptr);
        line.resize(9, 1);
        const auto isLit = [&line] { return line.grab().toImage().pixelColor(4, 0) == Qt::red; };
        two->setFocus();
        QVERIFY(isLit());
        one->setFocus();
        QVERIFY(isLit());
        line.setButtons({});
        QVERIFY(!isLit());
        line.setButtons({one});
        QVERIFY(isLit());
        delete one; // had the focus
        QVERIFY(!isLit());
        enterOrLeave(two, true); // is not watched
        line.setButtons({two});
        two->setFocus();
        QVERIFY(isLit());
        window.setFocus();
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestOverviewButton)
#include "tst_overviewbutton.moc"
