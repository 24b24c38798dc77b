#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"
#include "overview/PathLabel.h"
#include "overview/PathText.h"
#include "overview/SeparatorLine.h"
#include "overview/TopSideButton.h"

#include <nvo/AccordionPart.h>
#include <nvo/BottomSideButton.h>
#include <nvo/ExtraSearchResultButton.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/Label.h>

#include <QAccessible>
#include <QPropertyAnimation>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <numeric>
#include <optional>

using NVO::BottomSideButton;
using NVO::ExpandingOverviewButton;
using NVO::OverviewButtonBase;
using NVO::TopSideButton;
using Path = ExpandingOverviewButton::Path;
using Paths = QVector<QPair<QString, Path>>;
using Segments = QVector<NVO::PathText::Segment>;

namespace {

constexpr int arrowWidth = 15;
constexpr int dotsWidth = 9;

int widthOf(const Segments &segments)
{
    return std::accumulate(segments.begin(), segments.end(), 0,
                           [](int sum, const auto &segment) { return sum + segment.width; });
}

/** Word for word what eliding is, without a thought for how long it takes. */
Segments elidedStepByStep(Segments list, int room, Qt::TextElideMode mode)
{
    if (widthOf(list) <= room)
        return list;
    if (mode == Qt::ElideNone)
        mode = Qt::ElideMiddle;
    int at = mode == Qt::ElideLeft ? 0 : mode == Qt::ElideMiddle ? (list.size() - 1) / 2 : list.size() - 1;
    list[at].text = "...";
    list[at].width = dotsWidth + (list[at].hasArrow ? arrowWidth : 0);
    bool toggle = false;
    while (list.size() > 1 && widthOf(list) > room) {
        const int count = list.size();
        if (mode == Qt::ElideLeft) {
            list.removeAt(1);
        } else if (mode == Qt::ElideRight) {
            list.removeAt(count - 2);
        } else if (!toggle) {
            list.removeAt(at == count - 1 ? --at : at + 1);
            toggle = true;
        } else {
            list.removeAt(at == 0 ? 1 : --at);
            toggle = false;
        }
    }
    return list;
}

QString shown(const Segments &segments)
{
    QStringList texts;
    for (const auto &segment : segments)
        texts << (segment.hasArrow ? "> " : "") + segment.text;
    return texts.join(' ');
}

Segments makeSegments(const QStringList &texts, const QList<int> &widths)
{
    Segments segments;
    for (int i = 0; i < texts.size(); ++i)
        segments.append({texts[i], i > 0, widths[i] + (i > 0 ? arrowWidth : 0)});
    return segments;
}

Path path(int id, const QString &elements = "A B C")
{
    return {id, elements.split(' ', Qt::SkipEmptyParts)};
}

Paths makePaths(int count)
{
    Paths paths;
    for (int i = 0; i < count; ++i)
        paths.append({QString("row %1").arg(i), path(i)});
    return paths;
}

/** A tile between two buttons, of which the second is older than any row. */
struct Page
{
    Page()
        : rows(&window)
    {
        rows.addWidget(&before);
        rows.addWidget(tile);
        rows.addWidget(&after);
        QObject::connect(tile, &ExpandingOverviewButton::clicked, tile,
                         [this](const Path &target) { clicked.append(target.id.toInt()); });
        window.show();
        window.activateWindow();
    }
    TopSideButton *top() const { return tile->findChild<TopSideButton *>(); }
    QList<BottomSideButton *> bottoms() const { return tile->findChildren<BottomSideButton *>(); }
    NVO::AccordionPart *part() const { return tile->findChild<NVO::AccordionPart *>(); }
    void finish() const { advance(1); }
    void advance(double share) const
    {
        for (QPropertyAnimation *animation : tile->findChildren<QPropertyAnimation *>())
            animation->setCurrentTime(int(animation->duration() * share));
    }

    QWidget window;
    QVBoxLayout rows;
    QPushButton before;
    QPointer<ExpandingOverviewButton> tile = new ExpandingOverviewButton;
    QPushButton after;
    QList<int> clicked;
};

} // namespace

class TestExpandingTiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
            {"FontSizes", "[Element]\nOverviewButton=HIGHLIGHT\n"},
            {"pathlabel_arrow", TestResources::png(5, 9, {0xffff0000})},
            {"searchresult_right_arrow", TestResources::png(8, 14, {0xff111111})},
        });
        NVO::Css::instance().reset();
    }

    void elide()
    {
        QStringList steps;
        const QStringList letters{"A", "B", "C", "D", "E"};
        for (int room = 200; room >= 0; --room) {
            const QString text = shown(NVO::PathText::fitted(makeSegments(letters, {20, 20, 20, 20, 20}),
                                                             room, Qt::ElideNone, dotsWidth, arrowWidth));
            if (steps.isEmpty() || steps.last() != text)
                steps << text;
        }
        QCOMPARE(steps, QStringList({"A > B > C > D > E", "A > B > ... > D > E", "A > B > ... > E",
                                     "A > ... > E", "A > ...", "> ..."}));

        QRandomGenerator random(14);
        for (int round = 0; round < 300; ++round) {
            QStringList texts;
            QList<int> widths;
            for (int i = round % 9; i > 0; --i) {
                texts << QString::number(i);
                widths << random.bounded(40);
            }
            const Segments segments = makeSegments(texts, widths);
            for (int room = -1; room <= widthOf(segments) + 1; ++room) {
                for (const auto mode : {Qt::ElideLeft, Qt::ElideRight, Qt::ElideMiddle, Qt::ElideNone}) {
                    const Segments fitted =
                        NVO::PathText::fitted(segments, room, mode, dotsWidth, arrowWidth);
                    const Segments expected =
                        segments.isEmpty() ? segments : elidedStepByStep(segments, room, mode);
                    QCOMPARE(shown(fitted), shown(expected));
                    QCOMPARE(widthOf(fitted), widthOf(expected));
                }
            }
        }
    }

    void pathLabel()
    {
        NVO::PathLabel label(nullptr);
        QCOMPARE(label.font().pixelSize(), 17);
        label.setPath(path(1, "Eins Zwei Drei"));
        const QFontMetrics metrics = label.fontMetrics();
        int width = 2 * 15;
        for (const QString &element : label.path().elements)
            width += metrics.horizontalAdvance(element);
        QCOMPARE(label.sizeHint(), QSize(width, metrics.height()));
        label.setContentsMargins(1, 2, 3, 4);
        QCOMPARE(label.minimumSizeHint(), QSize(width + 4, metrics.height() + 6));
        label.setContentsMargins(0, 0, 0, 0);
        label.resize(width, 40);
        const int firstArrow = metrics.horizontalAdvance("Eins") + 5;
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            label.setLayoutDirection(direction);
            const QImage image = label.grab().toImage();
            const qreal ratio = image.devicePixelRatio();
            const int x = direction == Qt::LeftToRight ? firstArrow : width - firstArrow - 5;
            for (int i = -1; i <= 5; ++i) {
                const QPoint middle(int((x + i) * ratio), int(20 * ratio));
                QCOMPARE(image.pixelColor(middle) == QColor(Qt::red), i >= 0 && i < 5);
            }
        }
    }

    void looks_data()
    {
        QTest::addColumn<int>("variant");
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("look");
        QTest::addColumn<bool>("shadow");
        QTest::newRow("classic hits") << 0 << 0 << "2 Treffer" << 42 << 20 << 0 << 1 << false;
        QTest::newRow("classic masks") << 0 << 1 << "2 Eingabemasken" << 86 << 20 << 60 << 0 << true;
        QTest::newRow("classic matching")
            << 0 << 2 << "2 passende Eingabemasken" << 10 << 20 << 60 << 0 << true;
        QTest::newRow("modern hits") << 1 << 0 << "2 Treffer" << 30 << 10 << 60 << 1 << true;
        QTest::newRow("modern masks") << 1 << 1 << "2 Eingabemasken" << 67 << 10 << 60 << 1 << true;
        QTest::newRow("modern matching")
            << 1 << 2 << "2 passende Eingabemasken" << 10 << 10 << 60 << 1 << true;
    }

    void looks()
    {
        QFETCH(int, variant);
        QFETCH(int, style);
        QFETCH(int, left);
        QFETCH(int, right);
        QFETCH(int, rowHeight);
        const auto guard = withVariant(variant);
        Page page;
        page.tile->setButtonStyle(ExpandingOverviewButton::ButtonStyle(style));
        page.tile->setTitle("title");
        const auto rows = page.tile->setPaths({{"first", path(1, "A")}, {"last", path(2, "")}});
        TopSideButton *top = page.top();
        QTEST(top->expandText(), "text");
        QTEST(qobject_cast<NVO::GraphicsEffect *>(page.tile->graphicsEffect())->enabled(), "shadow");
        const int side = variant == 1 ? 10 : 20;
        QCOMPARE(top->layout()->contentsMargins(), QMargins(side, 10, side, 10));
        QCOMPARE(top->height(), top->heightForWidth(top->width()));
        QCOMPARE(top->findChild<NVO::Label *>("text")->isElideEnabled(), style == 0);
        QCOMPARE(top->findChild<NVO::Label *>("text")->wordWrap(), style != 0);
        for (OverviewButtonBase *button : page.tile->findChildren<OverviewButtonBase *>()) {
            QFETCH(int, look);
            QCOMPARE(button->overviewButtonStyle(), OverviewButtonBase::Style(look));
            QVERIFY(!button->shadowEnabled() && !button->graphicsEffect());
        }
        const int line = rows[1]->findChild<NVO::Label *>("title")->sizeHint().height();
        const int pathLine = rows[0]->findChild<NVO::PathLabel *>()->sizeHint().height();
        const int gap = variant == 1 ? 10 : 0;
        QCOMPARE(rows[1]->sizeHint().height(), qMax(rowHeight, 20 + line));
        QCOMPARE(rows[0]->sizeHint().height(), qMax(rowHeight, 20 + line + gap + pathLine));
        QCOMPARE(rows[0]->layout()->contentsMargins(), QMargins(left, 10, right, 10));
        rows[0]->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(rows[0]->layout()->contentsMargins(), QMargins(right, 10, left, 10));
        using Border = OverviewButtonBase::BorderStyle;
        QCOMPARE(rows[0]->borderStyle(), Border::Left | Border::Right);
        QCOMPARE(rows[1]->borderStyle(), Border::Left | Border::Right | Border::Bottom);
        QCOMPARE(rows[0]->property("BottomLeftRound"), QVariant(false));
        QCOMPARE(rows[1]->property("BottomLeftRound"), QVariant(true));
        const auto gaps = [](const QWidget *section) {
            QList<int> widths;
            for (int i = 0; i < section->layout()->count(); ++i) {
                if (const QSpacerItem *spacer = section->layout()->itemAt(i)->spacerItem())
                    widths.append(spacer->sizeHint().width());
            }
            return widths;
        };
        const auto partAt = [top](int index) { return top->layout()->itemAt(index)->widget(); };
        const int arrow = top->layout()->count() - 1;
        QCOMPARE(partAt(1)->minimumWidth(), variant == 1 ? 10 : 20);
        QCOMPARE(gaps(top), (QList<int>{25, 0}));
        QCOMPARE(gaps(rows[0]), (QList<int>{0, 0, 20, 0}));
        QVERIFY(!partAt(arrow)->isVisibleTo(top) && !partAt(1)->isVisibleTo(top));
        rows[0]->setIconLeft(QPixmap(8, 8));
        rows[0]->setIconState(QPixmap(8, 8));
        QCOMPARE(gaps(rows[0]), (QList<int>{0, 10, 20, 20}));
        page.tile->setPath({});
        page.tile->setIcon(QPixmap(8, 8));
        page.tile->setIconState(QPixmap(8, 8));
        QCOMPARE(gaps(top), (QList<int>{20, 20}));
        QVERIFY(partAt(arrow)->isVisibleTo(top) && partAt(1)->isVisibleTo(top));
        page.tile->setIcon({});
        page.tile->setTextVisible(false);
        QTRY_VERIFY((top->height() == 80) == (variant == 1 && style == 0));
        QCOMPARE(top->sizeHint().height() == 80, variant == 1 && style == 0);
        QCOMPARE(top->heightForWidth(400) == 80, variant == 1 && style == 0);
    }

    /** Random operations against a model of what the tile is. */
    void machine()
    {
        Page page;
        QRandomGenerator random(4);
        int targets = 0;
        int ownId = 0;
        bool open = false;      // or on the way there
        bool openShape = false; // until the fold is shut
        for (int step = 0; step < 400; ++step) {
            QList<int> clicked;
            switch (random.bounded(6)) {
            case 0: {
                const int count = random.bounded(4);
                const int made = page.tile->setPaths(makePaths(count)).size();
                QCOMPARE(made, count == targets ? 0 : count);
                targets = count;
                break;
            }
            case 1:
                page.tile->setPath(path(ownId = 100 + step));
                targets = 0;
                break;
            case 2:
                if (open && targets > 0) {
                    const int row = random.bounded(targets);
                    page.bottoms()[row]->click();
                    clicked.append(row);
                }
                break;
            case 3:
                page.finish();
                openShape = open;
                break;
            default:
                page.top()->click();
                page.advance(0.5);
                if (targets == 0) {
                    clicked.append(ownId);
                } else {
                    open = !open;
                    openShape = true;
                }
            }
            if (targets == 0)
                open = openShape = false;
            QCOMPARE(std::exchange(page.clicked, {}), clicked);
            QCOMPARE(page.tile->paths(), makePaths(targets));
            QCOMPARE(page.bottoms().size(), targets);
            QCOMPARE(page.tile->path().id.toInt(), ownId);
            QCOMPARE(page.part()->state() == NVO::AccordionState::Expanded, open);
            QCOMPARE(page.top()->isExpandable(), targets > 0);
            QCOMPARE(page.tile->findChild<NVO::SeparatorLine *>()->isVisibleTo(page.tile), openShape);
            QCOMPARE(page.top()->borderStyle().testFlag(OverviewButtonBase::BorderStyle::Bottom), !openShape);
            const bool hasPath = targets == 0 && ownId != 0;
            QCOMPARE(page.top()->findChild<NVO::PathLabel *>()->isVisibleTo(page.tile), hasPath);
        }
    }

    /** A tile on its way is closed at the bottom, and no part of it keeps a click for itself. */
    void wholeTile()
    {
        const TestResources palette{{{"Palette", "[Named]\nCOLOR_BIG_BUTTON_BORDER=#ff00ff\n"}}};
        NVO::Css::instance().reset();
        Page page;
        page.tile->setGraphicsEffect(nullptr);
        page.tile->setPaths({{"a <a href='x'>link</a>", path(1)}, {"b", path(2)}});
        const auto isClosed = [&page] {
            QCoreApplication::processEvents();
            const QImage image = page.tile->grab().toImage();
            return image.pixelColor(image.width() / 2, image.height() - 1) == QColor(Qt::magenta);
        };
        QVERIFY(!isClosed());
        page.top()->click();
        page.advance(0.5);
        QVERIFY(isClosed());
        page.finish();
        QVERIFY(!isClosed());

        const auto rows = page.bottoms();
        QWindow *window = page.window.windowHandle();
        for (int y = 2, count = 0; y < rows[0]->height(); y += 4) {
            for (int x = 2; x < rows[0]->width(); x += 8) {
                const QPoint place = rows[0]->mapTo(&page.window, QPoint(x, y));
                QTest::mousePress(window, Qt::LeftButton, {}, place);
                QTest::mouseMove(window, place + QPoint(1, 0));
                QTest::mouseRelease(window, Qt::LeftButton, {}, place);
                QCOMPARE(page.clicked.size(), ++count);
                QVERIFY(!rows[0]->isDown());
            }
        }
    }

    void keyboard()
    {
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page.window));
        const auto rows = page.tile->setPaths(makePaths(2));
        const auto walk = [&page](Qt::Key key, QWidget *from) {
            QList<QWidget *> stops;
            from->setFocus();
            for (int i = 0; i < 5 && (stops.isEmpty() || stops.last() != from); ++i) {
                QTest::keyClick(QApplication::focusWidget(), key);
                stops.append(QApplication::focusWidget());
            }
            return stops;
        };
        const QList<QWidget *> closed{page.top(), &page.after, &page.before};
        QCOMPARE(walk(Qt::Key_Tab, &page.before), closed);
        QTest::keyClick(page.top(), Qt::Key_Space);
        page.finish();
        const QList<QWidget *> open{page.top(), rows[0], rows[1], &page.after, &page.before};
        QCOMPARE(walk(Qt::Key_Tab, &page.before), open);
        QCOMPARE(walk(Qt::Key_Down, &page.before), open);
        QTest::keyClick(rows[1], Qt::Key_Space);
        QCOMPARE(page.clicked, QList<int>{1});
        QTest::keyClick(rows[1], Qt::Key_Return);
        QCOMPARE(page.clicked.size(), 1); // a push button takes it in dialogs only
        rows[1]->setAutoDefault(true);
        QTest::keyClick(rows[1], Qt::Key_Return);
        QCOMPARE(page.clicked.size(), 2);
        // No row takes the focus with it.
        rows[0]->setFocus();
        page.tile->setPaths(makePaths(3));
        QCOMPARE(QApplication::focusWidget(), page.top());
        page.bottoms()[2]->setFocus();
        page.top()->click();
        QCOMPARE(QApplication::focusWidget(), page.top());
        page.finish();
        QCOMPARE(walk(Qt::Key_Tab, &page.before), closed);
    }

    void accessibility()
    {
        static int changes = 0;
        static int texts = 0;
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
            texts += qobject_cast<OverviewButtonBase *>(event->object())
                     && (event->type() == QAccessible::NameChanged
                         || event->type() == QAccessible::DescriptionChanged);
            changes += event->type() == QAccessible::StateChanged
                       && qobject_cast<TopSideButton *>(event->object())
                       && static_cast<QAccessibleStateChangeEvent *>(event)->changedStates().expanded;
        });
        Page page;
        page.tile->setTitle("<b>Title</b>");
        page.tile->setText("Text");
        page.tile->setPath(path(1, "A B<C"));
        QAccessibleInterface *tile = QAccessible::queryAccessibleInterface(page.tile);
        QCOMPARE(tile->text(QAccessible::Name), QString("Title"));
        QCOMPARE(tile->childCount(), 1);
        QAccessibleInterface *top = tile->child(0);
        QCOMPARE(top->parent(), tile);
        QCOMPARE(top->role(), QAccessible::Button);
        QCOMPARE(top->text(QAccessible::Name), QString("Title"));
        QCOMPARE(top->text(QAccessible::Description), QString("Text\nA > B<C"));
        QVERIFY(!top->state().expandable && !top->state().collapsed && !top->state().expanded);

        page.tile->setPaths(makePaths(2));
        page.tile->setTextVisible(false);
        QCOMPARE(top->text(QAccessible::Description), QString("2 Treffer"));
        QVERIFY(top->state().expandable && top->state().collapsed && !top->state().expanded);
        changes = 0;
        page.top()->click();
        QCOMPARE(changes, 1);
        QVERIFY(top->state().expanded && !top->state().collapsed);
        page.finish();
        QCOMPARE(tile->childCount(), 3);
        QCOMPARE(tile->child(2)->text(QAccessible::Name), QString("row 1"));
        QCOMPARE(tile->child(2)->text(QAccessible::Description), QString("A > B > C"));
        QCOMPARE(tile->indexOfChild(tile->child(2)), 2);
        NVO::ExtraSearchResultButton extra;
        texts = 0;
        for (int i = 0; i < 2; ++i) { // the second time nothing is new
            page.tile->setTitle("other");
            page.tile->setText("other");
            page.bottoms()[0]->setTitle("other");
            extra.setText("other");
        }
        QCOMPARE(texts, 4);
        page.bottoms()[0]->setPath(path(5, "D"));
        page.tile->setPath(path(5, "D"));
        QCOMPARE(texts, 6);
        QAccessible::installUpdateHandler(nullptr);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
    }

    void fontSizes()
    {
        const FontDeltaGuard guard;
        ExpandingOverviewButton tile;
        tile.setPaths(makePaths(1));
        NVO::Css::instance().setFontDelta(3);
        BottomSideButton late(&tile); // made with the delta
        NVO::Css::instance().setFontDelta(2);
        for (const char *name : {"title", "text", "expand"}) {
            for (QWidget *label : tile.findChildren<QWidget *>(name))
                QCOMPARE(label->font().pixelSize(), 19);
        }
        QCOMPARE(tile.findChildren<NVO::PathLabel *>().size(), 3);
        for (QWidget *label : tile.findChildren<NVO::PathLabel *>())
            QCOMPARE(label->font().pixelSize(), 19);
    }

    void extraButton()
    {
        NVO::ExtraSearchResultButton button;
        QCOMPARE(button.sizeHint().height(), 40);
        button.setText("a<br>b<br>c<br>d");
        QVERIFY(button.sizeHint().height() > 40);
        QCOMPARE(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), QString("a b c d"));
    }

    /** The tile goes, or gets other targets, while it tells of a click. */
    void changedInside()
    {
        for (int change = 0; change < 4; ++change) {
            for (const int targets : {0, 2}) {
                Page page;
                page.tile->setPaths(makePaths(targets));
                page.top()->click();
                connect(page.tile, &ExpandingOverviewButton::clicked, this, [&page, change] {
                    if (change == 0)
                        delete page.tile;
                    else if (change == 1)
                        page.tile->setPath(path(7));
                    else
                        page.tile->setPaths(makePaths(change));
                });
                const QPointer<QAbstractButton> button =
                    targets ? static_cast<QAbstractButton *>(page.bottoms()[1]) : page.top();
                QTest::mouseClick(button, Qt::LeftButton);
                QCOMPARE(page.tile.isNull(), change == 0);
                QVERIFY(targets == 0 || button.isNull() || change == 2); // the same targets keep their rows
            }
        }
    }

    /** Rows that their holder takes or deletes, pictures and texts of any size. */
    void odd()
    {
        Page page;
        const auto rows = page.tile->setPaths(makePaths(3));
        page.top()->click();
        rows[0]->setParent(&page.window);
        rows[0]->show();
        delete rows[1];
        page.tile->setPaths(makePaths(2));
        const QPointer<BottomSideButton> kept = rows[0];
        kept->click();
        QCOMPARE(page.clicked, QList<int>{0});
        QTest::qWait(50);
        page.tile->setPath({});
        for (const QSize &size : {QSize(1, 1), QSize(900, 700), QSize()}) {
            const QPixmap icon = size.isValid() ? QPixmap(size) : QPixmap();
            page.tile->setIcon(icon);
            page.tile->setIconState(icon);
            kept->setIconLeft(icon);
            kept->setIconState(icon);
            QCOMPARE(kept->sizeHint().height() > 700, size.height() == 700);
            QCOMPARE(page.top()->sizeHint().height() > 700, size.height() == 700);
        }
        const QString text(10000, 'x');
        page.tile->setText(text);
        page.tile->setPath({text, {text, text, text}});
        QVERIFY(page.tile->minimumSizeHint().width() < 1000);
        kept->setTitle(text);
        page.tile->setPaths({{"", path(1, QString(text).replace('x', "xxx "))}});
        page.top()->click();
        page.tile->setButtonStyle(ExpandingOverviewButton::InputMasks);
        page.tile->resize(60, 60);
        page.tile->grab();
        delete kept;
        page.tile->setButtonStyle(ExpandingOverviewButton::ButtonStyle(77));
        page.tile->setGraphicsEffect(nullptr);
        page.tile->setButtonStyle(ExpandingOverviewButton::SearchHits);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestExpandingTiles)
#include "tst_expandingtiles.moc"
