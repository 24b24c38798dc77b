#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/Flyout.h>
#include <nvo/ScrollArea.h>
#include <nvo/ScrollAreaWithButton.h>
#include <nvo/ScrollBar.h>
#include <nvo/ScrollButton.h>

#include <QAccessible>
#include <QPixmapCache>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QtTest>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <tuple>
#include <vector>

using NVO::ScrollArea;
using NVO::ScrollAreaWithButton;
using NVO::ScrollBar;
using NVO::ScrollButton;
using NVO::ScrollButtonStyle;

namespace {

/** Contents with a size hint that, if it is flat, goes for half of the width. */
struct Contents : public QWidget
{
    QSize sizeHint() const override { return hint; }
    bool hasHeightForWidth() const override { return hint.height() == 0; }
    int heightForWidth(int width) const override { return width / 2; }

    QSize hint;
};

bool wheelIsAccepted(QWidget *widget)
{
    QWheelEvent event({5, 5}, widget->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

QWidget *makeTall(int height)
{
    auto *widget = new QWidget;
    widget->setFixedSize(100, height);
    return widget;
}

/** An area on the screen, with contents that do not follow its size. */
std::unique_ptr<ScrollAreaWithButton> makeArea(int height, int contentHeight)
{
    auto area = std::make_unique<ScrollAreaWithButton>();
    area->setFrameStyle(0);
    area->setWidget(makeTall(contentHeight));
    area->resize(200, height);
    area->show();
    return area;
}

QRect boundsOf(const QImage &image, const QColor &color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

class TestScrolling : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QPixmapCache::clear();
        m_theme.emplace(QMap<QString, QByteArray>{
            {"ScrollBar", "* { background: #ff0000; } *[style=\"DropDown\"] { width: 12px; }\n"},
            {"ScrollButton", "* { background: #0000ff; qproperty-hoverColor: #00ff00; }\n"
                             "*[style=\"Error\"] { qproperty-pressedColor: #ffff00; }\n"},
        });
        int index = 0;
        for (const char *arrow : {"up", "down", "up_hell", "down_hell", "up_error", "down_error"})
            m_theme->set(QString("scrollarrow_") + arrow,
                         TestResources::png(12, 7, {0xff110000 + quint32(index++)}));
        NVO::Css::instance().reset();
    }

    void bars()
    {
        QWidget parent;
        parent.resize(20, 80);
        ScrollBar bar(&parent);
        bar.resize(20, 80);
        const QStringList keys{"Dialog", "Navigation", "DropDown", "DropDown"};
        const QList<int> styles{0, 2, 1, 77}; // the last is none and changes nothing
        for (int i = 0; i < styles.size(); ++i) {
            bar.setScrollBarStyle(ScrollBar::ScrollBarStyle(styles[i]));
            QCOMPARE(bar.property("style").toString(), keys[i]);
            QCOMPARE(bar.sizeHint().width() == 12, keys[i] == "DropDown"); // polished anew
            parent.show();
        }
        for (const bool transient : {true, false}) {
            for (const int maximum : {0, 10}) {
                bar.setTransient(transient);
                bar.setRange(0, maximum);
                const bool painted = !boundsOf(parent.grab().toImage(), Qt::red).isEmpty();
                QCOMPARE(painted, !transient || maximum > 0);
            }
        }
    }

    void areaHints()
    {
        const int screen = QGuiApplication::primaryScreen()->availableGeometry().height();
        const std::map<int, int> outside{{screen + 40, screen + 40}, {screen + 41, screen - 40}};
        const std::map<int, int> inside{{200, 200}, {301, 300}};
        QWidget target;
        NVO::Flyout flyout(&target, NVO::Flyout::NoFlag, nullptr);
        QWidget inner(&flyout);
        for (QWidget *parent : {&target, &inner}) {
            ScrollArea area(parent);
            area.setParent(parent == &target ? &inner : &target); // comes too late to count
            QCOMPARE(area.sizeHint(), QSize(0, 0));
            auto *contents = new Contents;
            area.setWidget(contents);
            for (const auto &[wanted, least] : parent == &target ? outside : inside) {
                contents->hint = QSize(150, wanted - 4);
                QCOMPARE(area.sizeHint(), QSize(150, wanted));
                QCOMPARE(area.minimumSizeHint(), QSize(150, least));
            }
            contents->hint = QSize(150, 0);
            QCOMPARE(area.sizeHint(), QSize(150, 79));
        }
    }

    void rightMargin()
    {
        const std::vector<std::array<int, 4>> cases{
            {20, 150, 12, 20}, {20, 151, 12, 8}, {5, 151, 30, 0}, {21, 150, 12, 8}, {50, 150, 30, 0}};
        for (const auto &[before, height, barWidth, after] : cases) {
            ScrollArea area;
            area.verticalScrollBar()->setFixedWidth(barWidth);
            area.setWidget(new QWidget);
            area.widget()->setMinimumHeight(height);
            area.resize(200, 150);
            area.show();
            for (const bool ignore : {true, false}) {
                area.ignoreRightAutoContent(ignore);
                area.widget()->setContentsMargins(1, 2, before, 4);
                QResizeEvent event(area.viewport()->size(), QSize());
                QCoreApplication::sendEvent(area.viewport(), &event);
                QCOMPARE(area.widget()->contentsMargins(), QMargins(1, 2, ignore ? before : after, 4));
            }
        }
    }

    /** Whatever happens to an area, its arrows say where there is more, and steps never leave the range. */
    void arrowsAndSteps()
    {
        QRandomGenerator random(20260417);
        const auto area = makeArea(120, 400);
        const auto bar = [&area] { return area->verticalScrollBar(); };
        bool up = false;
        const std::vector<std::function<void()>> acts{
            [&] { area->resize(200, random.bounded(60, 300)); },
            [&] { bar()->setValue(up ? bar()->minimum() + 34 : bar()->maximum() - random.bounded(3, 37)); },
            [&] {
                area->setVerticalScrollBar(new ScrollBar); // followed from its first move
                bar()->setValue(random.bounded(300));
            },
            [&] { area->setWidget(makeTall(area->widget() && up ? area->widget()->height() : 300)); },
            [&] { area->setWidget(makeTall(up ? area->height() : random.bounded(20, 600))); },
            [&] { delete (up ? area->widget() : area->takeWidget()); }};
        for (int round = 0; round < 900; ++round) {
            ScrollButton *top = area->topScrollButton();
            top->setDown(top->isVisible());
            up = random.bounded(2);
            const auto act = std::size_t(random.bounded(8));
            if (act < acts.size()) {
                acts[act]();
            } else {
                const int before = bar()->value();
                (up ? area->topScrollButton() : area->bottomScrollButton())->click();
                QCOMPARE(bar()->value(),
                         up ? qMax(bar()->minimum(), before - 35) : qMin(bar()->maximum(), before + 35));
            }
            const bool more = area->widget() && area->widget()->height() > area->height();
            QVERIFY(top->isVisible() || !top->isDown());
            QCOMPARE(top->isVisible(), more && bar()->value() > bar()->minimum());
            QCOMPARE(area->bottomScrollButton()->isVisible(), more && bar()->value() < bar()->maximum());
        }
    }

    void heldDown()
    {
        const auto area = makeArea(120, 120 + 90);
        QVERIFY(QTest::qWaitForWindowActive(area.get()));
        QList<int> values;
        connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this,
                [&values](int value) { values << value; });
        ScrollButton *button = area->bottomScrollButton();
        button->setFocus();
        const QDeadlineTimer delay(390, Qt::PreciseTimer);
        QTest::mousePress(button, Qt::LeftButton);
        QTRY_VERIFY(!values.isEmpty());
        QVERIFY(delay.hasExpired() && button->hasFocus());
        QTRY_COMPARE(values, (QList<int>{35, 70, 90}));
        QVERIFY(!button->isDown() && !button->isVisible() && !button->hasFocus());
        QTest::qWait(250);
        QCOMPARE(values.size(), 3);
    }

    void buttonGeometry()
    {
        const auto area = makeArea(100, 400);
        area->setFrameStyle(QFrame::Box);
        area->setLineWidth(3);
        area->setMinimumSize(1, 1);
        area->setButtonMargins(7, 13);
        for (const QSize &size : {QSize(200, 120), QSize(10, 20)}) {
            area->resize(size);
            const int width = qMax(0, size.width() - 26);
            QCOMPARE(area->topScrollButton()->geometry(), QRect(10, 3, width, 25));
            QCOMPARE(area->bottomScrollButton()->geometry(), QRect(10, size.height() - 28, width, 25));
        }
        area->setViewport(new QWidget);
        QVERIFY(area->children().last()->inherits("NVO::ScrollButton")); // still on top
    }

    void participantsGo()
    {
        QPointer<ScrollAreaWithButton> area = makeArea(100, 300).release();
        delete area->topScrollButton();
        area->setButtonMargins(3, 3);
        connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this, [area] { delete area; });
        QTest::mouseClick(area->bottomScrollButton(), Qt::LeftButton);
        QVERIFY(area.isNull());
    }

    /** An arrow over the child makes one step; the lower one not if only the step up led under it. */
    void tabbing()
    {
        const std::vector<std::array<int, 4>> cases{{200, 150, 100, 100},
                                                    {200, 110, 100, 65},
                                                    {200, 260, 100, 135},
                                                    {85, 110, 100, 65},
                                                    {200, 40, 20, 0}};
        for (const auto &[height, top, value, after] : cases) {
            const auto area = makeArea(height, 600);
            auto *child = new QPushButton(area->widget()); // Qt leaves it where it is while it is in view
            child->setGeometry(0, top, 80, 24);
            child->show();
            area->topScrollButton()->setFocusPolicy(Qt::NoFocus);
            area->bottomScrollButton()->setFocusPolicy(Qt::NoFocus);
            QApplication::setActiveWindow(area.get());
            area->setFocus();
            area->verticalScrollBar()->setValue(value);
            QTest::keyClick(area.get(), Qt::Key_Tab);
            QVERIFY(child->hasFocus());
            QCOMPARE(area->verticalScrollBar()->value(), after);
        }
    }

    void buttonLook()
    {
        const QColor veiled(52, 52, 255); // four fifths of the blue on white
        using Style = ScrollButtonStyle;
        for (const auto &[style, state, ground] :
             std::vector<std::tuple<Style, QString, QColor>>{{Style::Dark, "", veiled},
                                                             {Style::Dark, "hover", QColor(0, 255, 0)},
                                                             {Style::Dark, "hover down", QColor(255, 0, 255)},
                                                             {Style::Dark, "hover disabled", veiled},
                                                             {Style::Light, "hover down", QColor(0, 0, 255)},
                                                             {Style::Error, "down", QColor(255, 255, 0)}}) {
            QWidget parent;
            parent.setPalette(Qt::white);
            parent.resize(100, 25);
            ScrollButton button(&parent);
            button.setFixedWidth(100);
            parent.show();
            button.setPressedColor(Qt::magenta);
            button.setStyle(style);
            button.setDown(state.contains("down"));
            button.setEnabled(!state.contains("disabled"));
            button.setAttribute(Qt::WA_UnderMouse, state.contains("hover"));
            for (const NVO::Direction direction : {NVO::Up, NVO::Down}) {
                button.setDirection(direction);
                const auto ink = QColor::fromRgb(0xff110000 + quint32(style) * 2 + quint32(direction));
                button.setBorderColor(Qt::transparent);
                const QImage image = parent.grab().toImage();
                const int ratio = qRound(image.devicePixelRatio());
                QCOMPARE(image.pixelColor(5 * ratio, 5 * ratio), ground);
                QCOMPARE(image.pixelColor(99 * ratio, 5 * ratio), QColor(Qt::white));
                QCOMPARE(boundsOf(image, ink), QRect(43 * ratio, 9 * ratio, 12 * ratio, 7 * ratio));
                button.setBorderColor(Qt::black);
                const int edge = (direction == NVO::Up ? 24 : 0) * ratio;
                QVERIFY(parent.grab().toImage().pixelColor(5 * ratio, edge).value() < 60);
            }
        }
    }

    void wheelOverButtonAndItsName()
    {
        const auto area = makeArea(100, 300);
        area->verticalScrollBar()->setValue(100);
        QVERIFY(wheelIsAccepted(area->bottomScrollButton()));
        QVERIFY(area->verticalScrollBar()->value() > 100);
        QWidget other;
        ScrollButton button(&other);
        QVERIFY(wheelIsAccepted(&button)); // climbs no further
        const auto name = [](ScrollButton *each) {
            return QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name);
        };
        QCOMPARE(name(area->bottomScrollButton()), QString("Nach unten scrollen"));
        QCOMPARE(name(&button), QString("Nach oben scrollen"));
        button.setAccessibleName("Frühere Belege");
        QCOMPARE(name(&button), QString("Frühere Belege"));
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestScrolling)
#include "tst_scrolling.moc"
