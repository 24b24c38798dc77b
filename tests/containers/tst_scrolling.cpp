#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/ScrollArea.h>
#include <nvo/ScrollAreaWithButton.h>
#include <nvo/ScrollBar.h>
#include <nvo/ScrollButton.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPixmapCache>
#include <QRandomGenerator>
#include <QScreen>
#include <QtTest>

#include <memory>
#include <optional>

using NVO::ScrollArea;
using NVO::ScrollAreaWithButton;
using NVO::ScrollBar;
using NVO::ScrollButton;
using NVO::ScrollButtonStyle;

namespace {

/** Is a flyout to whoever asks for the class by its name. */
struct FlyoutDouble : public QWidget
{
    void *qt_metacast(const char *name) override
    {
        return qstrcmp(name, "NVO::Flyout") == 0 ? this : QWidget::qt_metacast(name);
    }
};

/** Contents with a size hint and, if wanted, a height that is a fraction of the width. */
struct Contents : public QWidget
{
    explicit Contents(const QSize &wanted, bool byWidth = false)
        : hint(wanted)
        , heightByWidth(byWidth)
    {}
    QSize sizeHint() const override { return hint; }
    bool hasHeightForWidth() const override { return heightByWidth; }
    int heightForWidth(int width) const override { return width / 2; }

    QSize hint;
    bool heightByWidth;
};

/** Returns whether the event was accepted. */
bool sendWheel(QWidget *widget, int delta)
{
    const QPointF pos(5, 5);
    QWheelEvent event(pos, widget->mapToGlobal(pos.toPoint()), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/** Which of the arrows show: "", "top", "bottom" or both. */
QString arrows(const ScrollAreaWithButton &area)
{
    QStringList shown;
    if (area.topScrollButton() && area.topScrollButton()->isVisibleTo(&area))
        shown << "top";
    if (area.bottomScrollButton() && area.bottomScrollButton()->isVisibleTo(&area))
        shown << "bottom";
    return shown.join(' ');
}

QString expectedArrows(const ScrollAreaWithButton &area)
{
    const QScrollBar *bar = area.verticalScrollBar();
    if (!area.widget() || area.widget()->height() <= area.contentsRect().height())
        return QString();
    QStringList shown;
    if (bar->value() > bar->minimum())
        shown << "top";
    if (bar->value() < bar->maximum())
        shown << "bottom";
    return shown.join(' ');
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

Q_DECLARE_METATYPE(NVO::ScrollButtonStyle)

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

    void barStyles()
    {
        ScrollBar bar;
        QCOMPARE(bar.orientation(), Qt::Vertical);
        QCOMPARE(ScrollBar(Qt::Horizontal, nullptr).orientation(), Qt::Horizontal);
        QCOMPARE(bar.cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(bar.styleSheet(), NVO::Css::instance().css(NVO::ElementScrollBar));
        QCOMPARE(bar.property("style").toString(), QString("Dialog"));
        const QSize dialogSize = bar.sizeHint();
        bar.show();
        bar.setScrollBarStyle(ScrollBar::DropDown);
        QCOMPARE(bar.property("style").toString(), QString("DropDown"));
        QVERIFY(dialogSize.width() != 12);
        QCOMPARE(bar.sizeHint().width(), 12); // the live bar was polished anew
        bar.setScrollBarStyle(ScrollBar::Navigation);
        QCOMPARE(bar.property("style").toString(), QString("Navigation"));
        bar.setScrollBarStyle(ScrollBar::ScrollBarStyle(77));
        QCOMPARE(bar.property("style").toString(), QString("Navigation"));
    }

    void transientBar()
    {
        QWidget parent;
        ScrollBar bar(&parent);
        bar.resize(20, 80);
        parent.resize(20, 80);
        const QSize hint = bar.sizeHint();
        for (const bool transient : {true, false}) {
            for (const int maximum : {0, 10}) {
                bar.setTransient(transient);
                bar.setRange(0, maximum);
                const bool painted = !boundsOf(parent.grab().toImage(), Qt::red).isEmpty();
                QCOMPARE(painted, !transient || maximum > 0);
                QCOMPARE(bar.sizeHint(), hint);
            }
        }
    }

    void areaHints_data()
    {
        QTest::addColumn<bool>("inFlyout");
        QTest::addColumn<int>("wanted");
        QTest::addColumn<int>("least");
        const int screen = QGuiApplication::primaryScreen()->availableGeometry().height();
        QTest::newRow("short") << false << 60 << 60;
        QTest::newRow("as the screen") << false << screen << screen;
        QTest::newRow("a little more") << false << screen + 40 << screen + 40;
        QTest::newRow("too high") << false << screen + 41 << screen - 40;
        QTest::newRow("short in flyout") << true << 200 << 200;
        QTest::newRow("as high as a flyout takes") << true << 300 << 300;
        QTest::newRow("high in flyout") << true << 301 << 300;
    }

    void areaHints()
    {
        QFETCH(bool, inFlyout);
        QFETCH(int, wanted);
        QFETCH(int, least);
        FlyoutDouble flyout;
        QWidget inner(&flyout);
        QWidget elsewhere;
        ScrollArea area(inFlyout ? &inner : &elsewhere);
        area.setParent(inFlyout ? &elsewhere : &inner); // comes too late to count
        QCOMPARE(area.sizeHint(), QSize(0, 0));
        area.setWidget(new Contents(QSize(150, wanted - 4)));
        QCOMPARE(area.sizeHint(), QSize(150, wanted));
        QCOMPARE(area.minimumSizeHint(), QSize(150, least));
        area.setWidget(new Contents(QSize(150, 1), true));
        QCOMPARE(area.sizeHint(), QSize(150, 79));
        delete area.widget();
        QCOMPARE(area.minimumSizeHint(), QSize(0, 0));
    }

    void rightMargin_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<bool>("taller");
        QTest::addColumn<int>("barWidth");
        QTest::addColumn<int>("after");
        QTest::newRow("fits") << 5 << false << 12 << 20;
        QTest::newRow("taller") << 5 << true << 12 << 8;
        QTest::newRow("wide bar") << 5 << true << 30 << 0;
        QTest::newRow("at the limit, fits") << 20 << false << 12 << 20;
        QTest::newRow("at the limit, taller") << 20 << true << 12 << 8;
        QTest::newRow("wide margin, fits") << 21 << false << 12 << 8;
        QTest::newRow("wide margin, taller") << 50 << true << 12 << 8;
        QTest::newRow("wide margin, wide bar") << 50 << false << 30 << 0;
    }

    void rightMargin()
    {
        QFETCH(int, before);
        QFETCH(bool, taller);
        QFETCH(int, barWidth);
        QFETCH(int, after);
        ScrollArea area;
        area.verticalScrollBar()->setFixedWidth(barWidth);
        area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        area.setWidget(new QWidget);
        area.widget()->setMinimumHeight(taller ? 151 : 150);
        area.resize(200, 150);
        area.show();
        const QResizeEvent once(area.viewport()->size(), QSize());
        for (const bool ignore : {true, false}) {
            area.ignoreRightAutoContent(ignore);
            area.widget()->setContentsMargins(1, 2, before, 4);
            QResizeEvent event(once);
            QCoreApplication::sendEvent(area.viewport(), &event);
            QCOMPARE(area.widget()->contentsMargins(), QMargins(1, 2, ignore ? before : after, 4));
        }
        delete area.takeWidget();
        area.resize(100, 100); // nothing to keep room in
    }

    void areaBars()
    {
        ScrollArea area;
        for (QScrollBar *bar : {area.verticalScrollBar(), area.horizontalScrollBar()})
            QCOMPARE(qobject_cast<ScrollBar *>(bar)->scrollBarStyle(), ScrollBar::DropDown);
        QCOMPARE(area.verticalScrollBar()->orientation(), Qt::Vertical);
        QCOMPARE(area.horizontalScrollBar()->orientation(), Qt::Horizontal);
        QCOMPARE(area.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(area.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QVERIFY(area.widgetResizable());
        QCOMPARE(area.frameWidth(), 0);
    }

    /** Whatever happens to an area, its arrows say where there is more, and steps never leave the range. */
    void arrowsAndSteps()
    {
        QRandomGenerator random(20260417);
        const auto area = makeArea(120, 400);
        QScrollBar *bar = area->verticalScrollBar();
        for (int round = 0; round < 600; ++round) {
            const int before = bar->value();
            switch (random.bounded(7)) {
            case 0:
                area->resize(200, random.bounded(60, 300));
                break;
            case 1:
                area->widget()->setFixedHeight(random.bounded(2) ? area->height() : random.bounded(20, 600));
                break;
            case 2:
                bar->setValue(random.bounded(2) ? bar->minimum() + 34 : random.bounded(600));
                break;
            case 3:
                bar->setValue(bar->maximum() - random.bounded(3, 37));
                break;
            case 4:
                sendWheel(area->topScrollButton(), random.bounded(2) ? 120 : -120);
                break;
            case 5:
                area->topScrollButton()->click();
                QCOMPARE(bar->value(), qMax(bar->minimum(), before - 35));
                break;
            default:
                area->bottomScrollButton()->click();
                QCOMPARE(bar->value(), qMin(bar->maximum(), before + 35));
            }
            QCOMPARE(arrows(*area), expectedArrows(*area));
        }
    }

    void steppedToTheEndLosesFocus()
    {
        const auto area = makeArea(120, 200);
        QVERIFY(QTest::qWaitForWindowActive(area.get()));
        ScrollButton *button = area->bottomScrollButton();
        button->setFocus();
        button->click();
        QVERIFY(button->hasFocus());
        button->click();
        button->click();
        QCOMPARE(area->verticalScrollBar()->value(), 80);
        QVERIFY(!button->hasFocus());
        QVERIFY(!QApplication::focusWidget() || !area->topScrollButton()->hasFocus());
        QCOMPARE(arrows(*area), QString("top"));
    }

    void heldDown()
    {
        const auto area = makeArea(120, 120 + 90);
        QList<int> values;
        connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this,
                [&values](int value) { values << value; });
        ScrollButton *button = area->bottomScrollButton();
        QElapsedTimer time;
        time.start();
        QTest::mousePress(button, Qt::LeftButton);
        QVERIFY(values.isEmpty());
        QTRY_VERIFY(!values.isEmpty());
        QVERIFY(time.elapsed() >= 390);
        QTRY_COMPARE(values, (QList<int>{35, 70, 90}));
        QVERIFY(!button->isDown() && !button->isVisible());
        QTest::qWait(250);
        QCOMPARE(values.size(), 3); // the repetition has ended
    }

    void buttonGeometry()
    {
        for (const int frame : {0, 3}) {
            for (const QSize &size : {QSize(200, 120), QSize(61, 40), QSize(10, 20)}) {
                const auto area = makeArea(100, 400);
                area->setFrameStyle(frame ? QFrame::Box : 0);
                area->setLineWidth(frame);
                area->setMinimumSize(1, 1);
                area->resize(size);
                area->setButtonMargins(7, 13);
                const QRect inner = area->rect().adjusted(frame, frame, -frame, -frame);
                const int width = qMax(0, inner.width() - 20);
                QCOMPARE(area->topScrollButton()->geometry(), QRect(frame + 7, frame, width, 25));
                QCOMPARE(area->bottomScrollButton()->geometry(),
                         QRect(frame + 7, inner.bottom() - 24, width, 25));
            }
        }
    }

    void contentsComeAndGo()
    {
        ScrollAreaWithButton area;
        area.resize(200, 100);
        area.show();
        QCOMPARE(arrows(area), QString());
        area.setWidget(makeTall(300));
        QCOMPARE(arrows(area), QString("bottom"));
        area.bottomScrollButton()->setDown(true);
        area.verticalScrollBar()->setValue(1000);
        QCOMPARE(arrows(area), QString("top"));
        QVERIFY(!area.bottomScrollButton()->isDown());
        area.setWidget(makeTall(300)); // the same range
        QCOMPARE(arrows(area), QString("bottom"));
        delete area.widget();
        QCOMPARE(arrows(area), QString());
        area.setWidget(makeTall(300));
        const std::unique_ptr<QWidget> taken(area.takeWidget());
        QCOMPARE(arrows(area), QString());
        area.bottomScrollButton()->click();
        area.topScrollButton()->click();

        area.setWidget(makeTall(300));
        area.setVerticalScrollBar(new ScrollBar);
        area.resize(200, 110);
        area.verticalScrollBar()->setValue(20);
        QCOMPARE(arrows(area), QString("top bottom"));
        delete area.topScrollButton();
        delete area.bottomScrollButton();
        area.resize(150, 90);
        area.setButtonMargins(3, 3);
        area.verticalScrollBar()->setValue(0);
        QCOMPARE(arrows(area), QString());
    }

    void newBarIsFollowedFromItsFirstMove()
    {
        const auto area = makeArea(100, 300);
        area->setVerticalScrollBar(new ScrollBar);
        area->verticalScrollBar()->setValue(20);
        QCOMPARE(arrows(*area), QString("top bottom"));
        area->verticalScrollBar()->setValue(200);
        QCOMPARE(arrows(*area), QString("top"));
    }

    void areaDeletedOnTheWay()
    {
        for (const bool byClick : {true, false}) {
            QPointer<ScrollAreaWithButton> area = makeArea(100, 300).release();
            if (byClick)
                connect(area->bottomScrollButton(), &ScrollButton::clicked, this, [area] { delete area; });
            else
                connect(area->verticalScrollBar(), &QScrollBar::valueChanged, this, [area] { delete area; });
            QTest::mouseClick(area->bottomScrollButton(), Qt::LeftButton);
            QVERIFY(area.isNull());
        }
    }

    /** Qt brings the child into view; if it lies under an arrow then, one step goes on top of that. */
    void tabbing()
    {
        constexpr int count = 14;
        int steps = 0;
        for (const int height : {60, 70, 90, 130, 200}) {
            const auto area = makeArea(height, count * 30);
            QScrollArea plain;
            plain.setFrameStyle(0);
            plain.setWidget(makeTall(count * 30));
            plain.resize(area->size());
            plain.show();
            area->topScrollButton()->setFocusPolicy(Qt::NoFocus);
            area->bottomScrollButton()->setFocusPolicy(Qt::NoFocus);
            for (QScrollArea *each : {static_cast<QScrollArea *>(area.get()), &plain}) {
                each->setFocusPolicy(Qt::NoFocus);
                for (int row = 0; row < count; ++row) {
                    auto *edit = new QLineEdit(each->widget());
                    edit->setGeometry(0, row * 30, 80, 24);
                    edit->show();
                }
            }
            const QList<QLineEdit *> edits = area->findChildren<QLineEdit *>();
            const QList<QLineEdit *> plainEdits = plain.findChildren<QLineEdit *>();
            const auto tab = [](QWidget *window, QWidget *from, Qt::Key key) {
                QApplication::setActiveWindow(window);
                from->setFocus();
                QTest::keyClick(from, key);
            };
            for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
                for (int i = 0; i < count - 1; ++i) {
                    const int from = key == Qt::Key_Tab ? i : count - 1 - i;
                    const int to = key == Qt::Key_Tab ? from + 1 : from - 1;
                    plain.verticalScrollBar()->setValue(area->verticalScrollBar()->value());
                    tab(&plain, plainEdits[from], key);
                    tab(area.get(), edits[from], key);
                    QVERIFY(edits[to]->hasFocus());
                    int value = plain.verticalScrollBar()->value();
                    const int maximum = plain.verticalScrollBar()->maximum();
                    const int plainValue = value;
                    if (value > 0 && to * 30 - value < 25)
                        value = qMax(0, value - 35);
                    if (value < maximum && to * 30 + 24 - value > height - 25)
                        value = qMin(maximum, value + 35);
                    steps += value != plainValue;
                    QCOMPARE(area->verticalScrollBar()->value(), value);
                }
            }
        }
        QVERIFY(steps > 5);
    }

    void buttonLook_data()
    {
        QTest::addColumn<ScrollButtonStyle>("style");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QColor>("ground");
        const QColor veiled(52, 52, 255); // four fifths of the blue on white
        QTest::newRow("dark") << ScrollButtonStyle::Dark << "" << veiled;
        QTest::newRow("dark hover") << ScrollButtonStyle::Dark << "hover" << QColor(0, 255, 0);
        QTest::newRow("dark down") << ScrollButtonStyle::Dark << "hover down" << QColor(255, 0, 255);
        QTest::newRow("dark disabled") << ScrollButtonStyle::Dark << "hover disabled" << veiled;
        QTest::newRow("light") << ScrollButtonStyle::Light << "" << QColor(0, 0, 255);
        QTest::newRow("light down") << ScrollButtonStyle::Light << "hover down" << QColor(0, 0, 255);
        QTest::newRow("error") << ScrollButtonStyle::Error << "" << veiled;
        QTest::newRow("error down") << ScrollButtonStyle::Error << "down" << QColor(255, 255, 0);
    }

    void buttonLook()
    {
        QFETCH(ScrollButtonStyle, style);
        QFETCH(QString, state);
        QFETCH(QColor, ground);
        QWidget parent;
        parent.setPalette(Qt::white);
        parent.resize(100, 25);
        ScrollButton button(&parent);
        button.setFixedWidth(100);
        parent.show();
        button.setPressedColor(Qt::magenta);
        button.setStyle(style);
        QCOMPARE(button.hoverColor(), QColor(0, 255, 0)); // by the sheet
        button.setDown(state.contains("down"));
        button.setEnabled(!state.contains("disabled"));
        button.setAttribute(Qt::WA_UnderMouse, state.contains("hover"));
        for (const NVO::Direction direction : {NVO::Up, NVO::Down}) {
            button.setDirection(direction);
            const QColor ink = QColor::fromRgb(0xff110000 + quint32(style) * 2 + quint32(direction));
            button.setBorderColor(Qt::transparent);
            QImage image = parent.grab().toImage();
            const int ratio = qRound(image.devicePixelRatio());
            QCOMPARE(image.pixelColor(5 * ratio, 5 * ratio), ground);
            QCOMPARE(image.pixelColor(99 * ratio, 5 * ratio), QColor(Qt::white));
            QCOMPARE(boundsOf(image, ink), QRect(43 * ratio, 9 * ratio, 12 * ratio, 7 * ratio));

            button.setBorderColor(Qt::black);
            image = parent.grab().toImage();
            const int edge = (direction == NVO::Up ? 24 : 0) * ratio;
            const QColor line = image.pixelColor(5 * ratio, edge);
            QVERIFY2(line != ground && line.red() < 60, qPrintable(line.name()));
            QCOMPARE(image.pixelColor(5 * ratio, 12 * ratio), ground);
        }
        button.setStyle(ScrollButtonStyle(9));
        button.grab();
    }

    void withoutImages()
    {
        m_theme.emplace();
        NVO::Css::instance().reset();
        ScrollButton button;
        button.setFixedWidth(80);
        button.setHoverColor(Qt::cyan);
        button.setAttribute(Qt::WA_UnderMouse);
        const QImage image = button.grab().toImage();
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::cyan));
    }

    void wheelOverButtons()
    {
        const auto area = makeArea(100, 300);
        area->verticalScrollBar()->setValue(100);
        for (ScrollButton *button : {area->topScrollButton(), area->bottomScrollButton()}) {
            const int before = area->verticalScrollBar()->value();
            sendWheel(button, -120);
            QVERIFY(area->verticalScrollBar()->value() > before);
        }
        EventCounter<QWidget> other;
        ScrollButton button(&other);
        other.show();
        QVERIFY(sendWheel(&button, -120));
        QCOMPARE(other.counts.value(QEvent::Wheel), 0);
    }

    void accessibility()
    {
        ScrollAreaWithButton area;
        ScrollButton *button = area.bottomScrollButton();
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(interface->role(), QAccessible::Button);
        QCOMPARE(interface->text(QAccessible::Name), QString("Nach unten scrollen"));
        button->setDirection(NVO::Up);
        QCOMPARE(interface->text(QAccessible::Name), QString("Nach oben scrollen"));
        button->setAccessibleName("Frühere Belege");
        QCOMPARE(interface->text(QAccessible::Name), QString("Frühere Belege"));
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestScrolling)
#include "tst_scrolling.moc"
