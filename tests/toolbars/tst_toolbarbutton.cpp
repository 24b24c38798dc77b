#include "EventCounter.h"
#include "Guards.h"
#include "Mouse.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/Palette.h>
#include <nvo/ToolBarButton.h>

#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QtTest>

using NVO::ToolBarButton;

/** Counts how often it is asked for its size. */
struct Asked : public EventCounter<ToolBarButton>
{
    QSize sizeHint() const override { return ++asked, ToolBarButton::sizeHint(); }
    mutable int asked = 0;
};

class TestToolBarButton : public TestCase
{
    Q_OBJECT

public:
    TestToolBarButton() { NVO::Css::instance().reset(); }

private:
    const TestResources m_theme{
        {{"Palette", "[Named]\nBASECOLOR_DARK_GRAY=#102030\nBASECOLOR_SILVER=#405060\n"
                     "BASECOLOR_LIGHT_SILVER=#c0d0e0\nBASECOLOR_ALTO_SILVER=#908070\n"
                     "BASECOLOR_ORANGE=#ff8000\nBASECOLOR_DOVE_GRAY=#0000ff\n"},
         {"ToolBarButton", "NVO--ToolBarButton { selection-background-color: #00ff00; }\n"},
         {"Font", "[Size]\nDEFAULT=12\n"},
         {"FontSizes", "[Element]\nToolBarButton=DEFAULT\n"}}};

    /** The picture of a button, drawn from scratch. */
    static void draw(QPainter &painter, const ToolBarButton &button)
    {
        const bool arrow = button.arrowType() != Qt::NoArrow;
        const int bw = arrow ? 48 : 42;
        const int bx = (button.width() - bw) >> 1;
        const auto fade = [](int top, int bottom, const QColor &first, const QColor &last) {
            QLinearGradient gradient(0, top, 0, bottom);
            gradient.setStops({{0, first}, {1, last}});
            return QBrush(gradient);
        };
        const auto box = [&painter](QPen pen, const QBrush &brush, const QRectF &rect, int radius) {
            painter.setPen(pen), painter.setBrush(brush), painter.drawRoundedRect(rect, radius, radius);
        };
        const QColor dark(0, 0, 0, 192);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(button.isEnabled() ? 1 : 0.4);
        const bool pressed = button.isDown() || button.isChecked();
        if (!pressed)
            box(Qt::NoPen, fade(7, 31, dark, Qt::transparent), QRectF(bx, 7, bw, 24), 5);
        box(QColor("#405060"), pressed ? QBrush("#908070") : fade(5, 29, Qt::white, "#c0d0e0"),
            QRectF(bx, 5, bw, 24), 5);
        const int c = (button.width() - 16) / 2;
        painter.setPen("#102030");
        if (arrow)
            painter.drawLine(c + 15, 15, c + 19, 19), painter.drawLine(c + 19, 19, c + 23, 15);
        if (!button.icon().isNull())
            painter.drawPixmap(arrow ? c - 6 : c, 9, 16, 16, button.icon().pixmap(16));
        if (!button.badge().isEmpty()) {
            QFont font;
            font.setFamilies({"Segoe UI Semibold", "Frutiger", "Frutiger Linotype", "Dejavu Sans",
                              "Helvetica Neue", "Arial", "sans-serif"});
            font.setWeight(62);
            font.setPixelSize(NVO::Css::instance().fontDelta() + 9);
            const QFontMetrics metrics(font);
            const int tw = metrics.horizontalAdvance(button.badge());
            const int w = qMax(tw + 4, 16);
            const int h = qMax(metrics.height() + 4, 16);
            const int x = bw + 5 + bx - w;
            box(Qt::NoPen, fade(3, h + 3, dark, Qt::transparent), QRectF(x, 3, w, h), 8);
            box(QColor(Qt::blue), Qt::white, QRectF(x, 1, w, h), 8);
            painter.setPen("#ff8000");
            painter.setFont(font);
            painter.drawText(x + ((w - tw) >> 1), (metrics.ascent() + h) / 2 + 1, button.badge());
        }
        painter.setFont(button.font());
        painter.setPen("#102030");
        const QFontMetrics metrics(button.font());
        int y = metrics.ascent() + 34;
        for (const QString &line : button.text().replace("<br>", "\n").split('\n')) {
            painter.drawText((button.width() - metrics.horizontalAdvance(line)) / 2, y, line);
            y += metrics.height();
        }
    }

private Q_SLOTS:
    /** All looks, at widths even and odd, too narrow ones among them. */
    void picture()
    {
        const FontDeltaGuard guard;
        for (int look = 0; look < 32 * 9; ++look) {
            const QString text = QStringList{"", "Post", "Offene<br>Posten & mehr\n"}.at(look / 32 % 3);
            const bool hasArrow = look & 8;
            NVO::Css::instance().setFontDelta(look % 3);
            ToolBarButton button;
            button.setText(text);
            button.setBadge(QStringList{"", "0", "12345678"}.at(look / 96));
            button.setEnabled(look & 1);
            button.setCheckable(true);
            button.setChecked(look & 2);
            button.setDown(look & 4);
            button.setArrowType(hasArrow ? Qt::DownArrow : Qt::NoArrow);
            QPixmap red(64, 64);
            red.fill(Qt::red);
            if (look & 16)
                button.setIcon(red);
            QCOMPARE(button.font().pixelSize(), 12 + look % 3);
            const QFontMetrics metrics(button.font());
            const bool single = text.size() < 5;
            const int widest = metrics.horizontalAdvance(single ? text : "Posten & mehr");
            const int lines = single ? 1 : 3;
            QCOMPARE(button.sizeHint(),
                     QSize(qMax(hasArrow ? 48 : 42, widest) + 10, 39 + lines * metrics.height()));
            QCOMPARE(button.minimumSizeHint(), button.sizeHint());

            button.resize(look % 7 ? 60 + look % 90 : 30, 90);
            QImage ours(button.size() * button.devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
            ours.setDevicePixelRatio(button.devicePixelRatioF());
            ours.fill(Qt::white);
            QImage expected = ours;
            button.render(&ours, {}, {}, {});
            QPainter painter(&expected);
            draw(painter, button);
            painter.end();
            QVERIFY2(ours == expected, qPrintable(QString("look %1").arg(look)));
        }
    }

    void mouse()
    {
        ToolBarButton button;
        button.setText("Posten");
        button.resize(101, 60); // the box is at 29 to 70 and 5 to 28
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        const QSignalSpy clicks(&button, &ToolBarButton::clicked);
        Mouse mouse(&button);
        const QPoint origin = button.mapToGlobal({0, 0});
        for (int x = 27; x < 73; ++x)
            for (int y : {0, 4, 5, 28, 29, 50}) {
                const bool inside = x >= 29 && x <= 70 && y >= 5 && y <= 28;
                const int before = clicks.count();
                mouse.press(origin + QPoint(x, y));
                QCOMPARE(button.isDown(), inside);
                mouse.release();
                QCOMPARE(clicks.count() - before, int(inside));
            }
        const QPoint inside = origin + QPoint(50, 10);
        const QPoint text = origin + QPoint(50, 45);
        mouse.drag(inside, QPoint(3, 3));
        const int before = clicks.count();
        mouse.drag(inside, text - inside);
        mouse.drag(text, inside - text);                             // the press before is over
        for (const QPoint &pos : {QPoint(50, 45), QPoint(50, 10)}) { // and let go outside without a move
            QTest::mouseDClick(&button, Qt::LeftButton, {}, pos);
            QCOMPARE(button.isDown(), pos.y() == 10);
            QMouseEvent release(QEvent::MouseButtonRelease, {50, 45}, Qt::LeftButton, {}, {});
            QCoreApplication::sendEvent(&button, &release);
            QVERIFY(!button.isDown() && release.isAccepted());
        }
        button.setEnabled(false);
        mouse.drag(inside, {});
        QCOMPARE(clicks.count(), before);
    }

    void badgeConcernsItsButtonAlone()
    {
        QWidget bar;
        auto *row = new QHBoxLayout(&bar);
        Asked buttons[3];
        for (Asked &button : buttons)
            row->addWidget(&button);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        const auto take = [&buttons] { // paints of the second, and all else
            QTest::qWait(20);
            const int paints = std::exchange(buttons[1].counts[QEvent::Paint], 0);
            int rest = 0;
            for (Asked &button : buttons)
                rest += std::exchange(button.counts[QEvent::Paint], 0) + std::exchange(button.asked, 0);
            return qMakePair(paints, rest);
        };
        take();
        buttons[1].setCounter(0);
        QCOMPARE(take(), qMakePair(1, 0));
        buttons[1].setBadge("0");
        QCOMPARE(take(), qMakePair(0, 0));
        buttons[1].setCounter(-1);
        QCOMPARE(buttons[1].badge(), QString());
        QCOMPARE(take(), qMakePair(1, 0));
    }

    void keyboard()
    {
        QWidget bar;
        ToolBarButton button(&bar);
        QPointer<ToolBarButton> doomed = new ToolBarButton(&bar);
        doomed->move(100, 0);
        bar.show();
        bar.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bar));
        const auto hasRing = [&button] { // green is nothing else
            const QImage picture = button.grab().toImage();
            return picture.pixelColor(picture.width() / 2, int(5 * picture.devicePixelRatio())).green() > 250;
        };
        button.setFocus(Qt::MouseFocusReason);
        QVERIFY(button.hasFocus() && !hasRing());
        QTest::keyClick(&button, Qt::Key_Backtab);
        QTest::keyClick(doomed, Qt::Key_Tab);
        QVERIFY(button.hasFocus() && hasRing());
        const QSignalSpy clicks(&button, &ToolBarButton::clicked);
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
        connect(doomed, &ToolBarButton::clicked, &bar, [&doomed] { delete doomed; });
        QTest::mouseClick(doomed, Qt::LeftButton, {}, {doomed->width() / 2, 10});
        QVERIFY(!doomed);
    }

    void accessibility()
    {
        ToolBarButton button;
        auto *accessible = QAccessible::queryAccessibleInterface(&button);
        button.setText("&Offene<br>Posten");
        button.setBadge("12");
        button.setToolTip("Alle");
        button.setCheckable(true);
        button.setChecked(true);
        QCOMPARE(accessible->text(QAccessible::Name), QString("Offene Posten"));
        QCOMPARE(accessible->text(QAccessible::Description), QString("12, Alle"));
        QVERIFY(accessible->state().checked && accessible->role() == QAccessible::CheckBox);
        QMenu menu;
        button.setMenu(&menu);
        QVERIFY(accessible->state().hasPopup && accessible->role() == QAccessible::ButtonDropDown);
        connect(&menu, &QMenu::aboutToShow, &menu, &QMenu::close, Qt::QueuedConnection);
        const QSignalSpy shown(&menu, &QMenu::aboutToShow);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QTRY_COMPARE(shown.count(), 1);
    }
};

QTEST_MAIN(TestToolBarButton)
#include "tst_toolbarbutton.moc"
