#include "EventCounter.h"
#include "Guards.h"
#include "Mouse.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/ToolBarButton.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QtTest>

using NVO::ToolBarButton;

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
        const int c = (button.width() - 16) / 2;
        const auto side = [&button](int x, int width) {
            return button.isRightToLeft() ? button.width() - x - width : x;
        };
        const auto box = [&painter](const QPen &pen, QColor first, QColor last, const QRect &rect,
                                    int radius) {
            QLinearGradient gradient(0, rect.y(), 0, rect.y() + rect.height());
            gradient.setStops({{0, first}, {1, last}});
            painter.setPen(pen);
            painter.setBrush(gradient);
            painter.drawRoundedRect(rect, radius, radius);
        };
        const QColor dark(0, 0, 0, 192);
        const bool pressed = button.isDown() || button.isChecked();
        painter.setLayoutDirection(button.layoutDirection());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(button.isEnabled() ? 1 : 0.4);
        if (!pressed)
            box(Qt::NoPen, dark, Qt::transparent, {bx, 7, bw, 24}, 5);
        box(QColor("#405060"), pressed ? "#908070" : "white", pressed ? "#908070" : "#c0d0e0",
            {bx, 5, bw, 24}, 5);
        painter.setPen("#102030");
        const QPoint tip(side(c + 15, 9) + 4, 19);
        if (arrow)
            painter.drawLine(tip - QPoint(4, 4), tip), painter.drawLine(tip, tip + QPoint(4, -4));
        painter.drawPixmap(side(arrow ? c - 6 : c, 16), 9, 16, 16, button.icon().pixmap(16));
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
            const int x = side(bw + 5 + bx - w, w);
            box(Qt::NoPen, dark, Qt::transparent, {x, 3, w, h}, 8);
            box(QColor(Qt::blue), Qt::white, Qt::white, {x, 1, w, h}, 8);
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
        QPixmap red(64, 64);
        red.fill(Qt::red);
        for (int look = 0; look < 32 * 9; ++look) {
            const QString text = QStringList{"", "Post", "Offene<br>Posten & mehr\n"}.at(look / 32 % 3);
            ToolBarButton button;
            NVO::Css::instance().setFontDelta(look % 3);
            button.setText(text);
            button.setBadge(QStringList{"", "0", "12345678"}.at(look / 96));
            button.setEnabled(look & 1);
            button.setCheckable(true);
            button.setChecked(look & 2);
            button.setDown(look & 4);
            button.setArrowType(look & 8 ? Qt::DownArrow : Qt::NoArrow);
            button.setIcon(look & 16 ? QIcon(red) : QIcon());
            button.setLayoutDirection(look % 5 ? Qt::LeftToRight : Qt::RightToLeft);
            QCOMPARE(button.font().pixelSize(), 12 + look % 3);
            const QFontMetrics metrics(button.font());
            const int lines = text.size() < 5 ? 1 : 3;
            const int widest = metrics.horizontalAdvance(lines == 1 ? text : "Posten & mehr");
            QCOMPARE(button.sizeHint(),
                     QSize(qMax(look & 8 ? 48 : 42, widest) + 10, 39 + lines * metrics.height()));
            QCOMPARE(button.minimumSizeHint(), button.sizeHint());
            button.resize(look % 7 ? 60 + look % 90 : 31, 90);
            QPixmap ours(button.size() * button.devicePixelRatioF());
            ours.setDevicePixelRatio(button.devicePixelRatioF());
            ours.fill(Qt::white);
            QPixmap expected = ours;
            button.render(&ours, {}, {}, {});
            QPainter painter(&expected);
            draw(painter, button);
            painter.end();
            QVERIFY2(ours.toImage() == expected.toImage(), qPrintable(QString("look %1").arg(look)));
        }
    }

    void mouse()
    {
        ToolBarButton button;
        button.resize(101, 60); // the box is at 29 to 70 and 5 to 28
        button.show();
        const QSignalSpy clicks(&button, &ToolBarButton::clicked);
        Mouse mouse(&button);
        const QPoint origin = button.mapToGlobal({0, 0});
        for (int x : {28, 29, 70, 71})
            for (int y : {4, 5, 28, 29, 50}) {
                const bool inside = x >= 29 && x <= 70 && y >= 5 && y <= 28;
                mouse.press(origin + QPoint(x, y));
                QCOMPARE(button.isDown(), inside);
                mouse.release();
            }
        QCOMPARE(clicks.count(), 4);
        const QPoint inside = origin + QPoint(50, 10);
        const QPoint text = origin + QPoint(50, 45);
        mouse.press(inside);
        mouse.move(text);
        QVERIFY(!button.isDown());
        mouse.release();
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
        QCOMPARE(clicks.count(), 4);
    }

    void badgeConcernsItsButtonAlone()
    {
        EventCounter<QWidget> bar;
        QHBoxLayout row(&bar);
        EventCounter<ToolBarButton> button;
        EventCounter<ToolBarButton> neighbour;
        row.addWidget(&button);
        row.addWidget(&neighbour);
        bar.show();
        QTest::qWait(20);
        for (int count : {0, 0, -1, 7}) {
            const QString badge = count < 0 ? QString() : QString::number(count);
            const int paints = button.counts[QEvent::Paint] + int(badge != button.badge());
            const int others = neighbour.counts[QEvent::Paint] + bar.counts[QEvent::LayoutRequest];
            button.setCounter(count);
            QTest::qWait(20);
            QCOMPARE(button.badge(), badge);
            QCOMPARE(button.counts[QEvent::Paint], paints);
            QCOMPARE(neighbour.counts[QEvent::Paint] + bar.counts[QEvent::LayoutRequest], others);
        }
    }

    void keyboard()
    {
        QWidget bar;
        ToolBarButton button(&bar);
        QPointer<ToolBarButton> doomed = new ToolBarButton(&bar);
        bar.show();
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
        connect(doomed, &ToolBarButton::clicked, &bar, [&doomed] { delete doomed; });
        QTest::mouseClick(doomed, Qt::LeftButton, {}, {doomed->width() / 2, 10});
        QVERIFY(!doomed);
    }

    void accessibility()
    {
        ToolBarButton button;
        auto *accessible = QAccessible::queryAccessibleInterface(&button);
        button.setText("&Ein- & Ausgang<br>heute");
        button.setBadge("12");
        button.setToolTip("Alle");
        button.setCheckable(true);
        QCOMPARE(accessible->text(QAccessible::Name), QString("Ein- & Ausgang heute"));
        QCOMPARE(accessible->text(QAccessible::Description), QString("12, Alle"));
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
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
