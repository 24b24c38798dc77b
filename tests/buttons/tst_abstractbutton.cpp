#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Icon.h>
#include <nvo/IconButton.h>
#include <nvo/Link.h>
#include <nvo/Pixmap.h>

#include <QAccessible>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QRandomGenerator>
#include <QTimer>
#include <QtTest>

#include <optional>

using NVO::AbstractButton;
using NVO::IconButton;
using NVO::IconButtonStyle;
using NVO::Link;

namespace {

// Pressed, active, normal, disabled
const QList<quint32> pand{0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888};
const char *const plainSheet = "* { background: #ffff00; border: none; color: #000000; }"
                               "*:hover, *:pressed, *:focus { color: #ff00ff; }"
                               "*:disabled { color: #808080; }";

enum State { Focus, Hover, Press };

/** What the button must know by itself, and what it was given. */
struct Model
{
    bool hovered = false;
    bool pressed = false;
    QColor text[3];
    QColor underline[3];
    Qt::CursorShape hoverCursor = Qt::PointingHandCursor;
    Qt::CursorShape pressedCursor = Qt::PointingHandCursor;
    Qt::CursorShape cursor = Qt::PointingHandCursor;
    Qt::CursorShape cursorBefore = Qt::PointingHandCursor;

    void showCursor(Qt::CursorShape shape)
    {
        if (shape != Qt::ArrowCursor)
            cursorBefore = std::exchange(cursor, shape);
    }
    void release()
    {
        if (std::exchange(pressed, false) && pressedCursor != Qt::ArrowCursor)
            cursor = cursorBefore;
    }
};

QColor stateColor(const Model &model, const AbstractButton &button, const QColor *colors, QColor color)
{
    const bool over = button.underMouse();
    if (button.hasFocus() && !model.hovered && !model.pressed && colors[Focus].isValid())
        color = colors[Focus];
    if (model.hovered && over && button.isEnabled() && colors[Hover].isValid())
        color = colors[Hover];
    if (model.pressed && over && colors[Press].isValid())
        color = colors[Press];
    return color;
}

int cell(const Model &model, const AbstractButton &button)
{
    return !button.isEnabled() ? 3 : model.pressed ? 0 : model.hovered ? 1 : 2;
}

QSize expectedSize(const AbstractButton &button)
{
    const bool arrow = button.menu() && button.menuIndicatorIcon() == ":/arrow";
    const bool icon = !button.icon().isNull();
    const QFontMetrics metrics = button.fontMetrics();
    const int gap = button.menu() && !arrow && !button.menuIndicatorIcon().isEmpty() ? 5 : 0;
    return QSize(metrics.horizontalAdvance(button.text()) + (icon ? 21 : 0) + (arrow ? 14 : gap),
                 std::max({metrics.height(), icon ? 16 : 0, arrow ? 5 : 0}));
}

QPixmap block(const QSize &size, quint32 color, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(QColor(color));
    return pixmap;
}

QImage expectedPicture(AbstractButton &button, const Model &model)
{
    QPixmap picture = button.grab();
    picture.fill(QColor(255, 255, 0));
    const bool rtl = button.isRightToLeft();
    const bool icon = !button.icon().isNull();
    const int front = icon ? 16 + 5 : 0;
    const bool arrow = button.menuIndicatorIcon() == ":/arrow";
    const int back = button.menu() && !button.menuIndicatorIcon().isEmpty() ? 9 + 5 : 0;
    QRect text(rtl ? back : front, 0, button.width() - front - back, button.height());

    QPainter painter(&picture);
    painter.setLayoutDirection(button.layoutDirection());
    QFont font = button.font();
    font.setUnderline(false);
    painter.setFont(font);
    const QColor normal = button.isEnabled() ? QColor(0, 0, 0) : QColor(128, 128, 128);
    const QColor color = stateColor(model, button, model.text, normal);
    painter.setPen(color);
    if (!button.text().isEmpty())
        painter.drawText(text.adjusted(icon && !rtl, 0, icon && rtl ? -1 : 0, 0), int(button.textAlignment()),
                         button.text(), &text);

    const bool over = button.underMouse();
    if (button.font().underline() || (button.hasFocus() && model.underline[Focus].isValid())
        || (model.hovered && over && button.isEnabled() && model.underline[Hover].isValid())
        || (model.pressed && over && model.underline[Press].isValid())) {
        painter.setPen(stateColor(model, button, model.underline, color));
        const qreal y = text.y() + button.fontMetrics().ascent() + button.fontMetrics().underlinePos() + 1;
        painter.drawLine(QLineF(text.x() + 0.5, y, text.x() + text.width() - 0.5, y));
    }
    const quint32 shade = pand[cell(model, button)];
    const qreal ratio = button.devicePixelRatioF();
    const int behind = text.x() + text.width() + 5;
    if (icon)
        painter.drawPixmap(QPointF(rtl ? behind : text.x() - 16 - 5, (button.height() - 16) / 2.0),
                           block(QSize(16, 16), shade, ratio));
    if (back > 0 && arrow)
        painter.drawPixmap(QPointF(rtl ? text.x() - 9 - 5 : behind, (button.height() - 5) / 2.0),
                           block(QSize(9, 5), shade, ratio));
    return picture.toImage();
}

/** As the window system sends it, but heard by the button alone: no menu opens. */
void sendMouse(QWidget *widget, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    const QSignalBlocker blocker(widget);
    QMouseEvent event(type, QRectF(widget->rect()).center(), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void sendEvent(QObject *object, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(object, &event);
}

/** Which image of the strip a button with the test's icon and no text shows. */
int shownCell(AbstractButton &button)
{
    return pand.indexOf(button.grab().toImage().pixel(4, button.grab().height() / 2));
}

} // namespace

class TestAbstractButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QPixmapCache::clear();
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Font", "[Size]\nSMALL=10\nDEFAULT=13\n"},
            {"FontSizes", "[Element]\nIconButton=DEFAULT\nIconButton_SMALL=SMALL\nLink=DEFAULT\n"},
            {"IconButton", sheetOfStyles({"Dark", "DarkSmall", "Light", "LightSmall"})},
            {"Link", sheetOfStyles({"Dark", "Light", "FlyoutDark", "FlyoutLight", "Login", "LoginInput"})},
            {"strip", TestResources::png(64, 16, pand)},
            {"strip@2x", TestResources::png(128, 32, pand)},
            {"arrow", TestResources::png(36, 5, pand)},
            {"arrow@2x", TestResources::png(72, 10, pand)},
        });
        NVO::Css::instance().reset();
    }

    void painting()
    {
        QRandomGenerator random(20260417);
        QWidget window;
        window.resize(400, 100);
        QLineEdit other(&window);
        AbstractButton button(&window);
        QMenu menu;
        button.setStyleSheet(plainSheet);
        button.resize(150, 30);
        QFont font;
        font.setPixelSize(13);
        button.setFont(font);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        Model model;
        const QIcon icon = NVO::Icon(NVO::Pixmap(":/strip"));
        const Qt::Alignment horizontal[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
        const Qt::Alignment vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
        const Qt::CursorShape shapes[] = {Qt::ArrowCursor, Qt::CrossCursor, Qt::WaitCursor};
        QSet<QByteArray> seen;
        for (int step = 0; step < 1500; ++step) {
            const auto chance = [&random](int of) { return random.bounded(of) == 0; };
            switch (random.bounded(10)) {
            case 0:
                sendEvent(&button, QEvent::Enter);
                model.hovered = true;
                model.showCursor(model.hoverCursor);
                break;
            case 1:
                sendEvent(&button, QEvent::Leave);
                model.hovered = false;
                model.cursor = model.hoverCursor == Qt::ArrowCursor ? model.cursor : model.cursorBefore;
                break;
            case 2: // dragged off or back, which Qt tells nobody while a mouse button is held
                button.setAttribute(Qt::WA_UnderMouse, chance(2));
                break;
            case 3:
                sendMouse(&button, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
                model.pressed |= button.isEnabled();
                if (button.isEnabled())
                    model.showCursor(model.pressedCursor);
                break;
            case 4: // perhaps while the left one is held
                sendMouse(&button, QEvent::MouseButtonPress, Qt::RightButton,
                          Qt::RightButton | (model.pressed ? Qt::LeftButton : Qt::NoButton));
                break;
            case 5:
                sendMouse(&button, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
                if (button.isEnabled())
                    model.release();
                break;
            case 6:
                (chance(3) ? static_cast<QWidget *>(&other) : &button)->setFocus();
                break;
            case 7:
                button.setEnabled(!chance(4));
                if (!button.isEnabled())
                    model.release();
                break;
            case 8: {
                for (QColor &color : model.text)
                    color = chance(3) ? QColor() : QColor::fromRgb(random.generate());
                for (QColor &color : model.underline)
                    color = chance(2) ? QColor() : QColor::fromRgb(random.generate());
                button.setFocusColor(model.text[Focus]);
                button.setHoverColor(model.text[Hover]);
                button.setPressedColor(model.text[Press]);
                button.setFocusUnderlineColor(model.underline[Focus]);
                button.setHoverUnderlineColor(model.underline[Hover]);
                button.setPressedUnderlineColor(model.underline[Press]);
                model.hoverCursor = shapes[random.bounded(3)];
                model.pressedCursor = shapes[random.bounded(3)];
                button.setHoverCursor(model.hoverCursor);
                button.setPressedCursor(model.pressedCursor);
                break;
            }
            default:
                button.setText(QString("Über & Größe jg").left(random.bounded(16)));
                button.setIcon(chance(2) ? icon : QIcon());
                button.setIconSize(QSize(16, 16));
                button.setMenu(chance(2) ? &menu : nullptr);
                button.setMenuIndicatorIcon(
                    QStringList{"", ":/missing", ":/arrow", ":/arrow"}[random.bounded(4)]);
                button.setTextAlignment(horizontal[random.bounded(3)] | vertical[random.bounded(3)]);
                button.setLayoutDirection(chance(3) ? Qt::RightToLeft : Qt::LeftToRight);
                button.setStyleSheet(QString(plainSheet)
                                     + (chance(3) ? "* { text-decoration: underline; }" : ""));
                button.resize(100 + random.bounded(120), 16 + random.bounded(24));
            }
            const QImage picture = button.grab().toImage();
            QVERIFY2(picture == expectedPicture(button, model), QByteArray::number(step));
            QCOMPARE(button.cursor().shape(), model.cursor);
            QCOMPARE(button.sizeHint(), expectedSize(button));
            QCOMPARE(button.minimumSizeHint(), expectedSize(button));
            seen.insert(QByteArray::number(cell(model, button)) + (button.hasFocus() ? "f" : "")
                        + (button.underMouse() ? "o" : "") + (model.hovered ? "h" : "")
                        + (button.font().underline() ? "u" : ""));
        }
        QVERIFY(seen.size() > 20);
    }

    void sheet_data()
    {
        // What the sheet sets; all else is kept.
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("expected");
        const QString rule = "A[style=\"Dark\"]:hover { color: %1; }";
        const QString good = rule.arg("rgb(1, 2, 3)");
        const QString hover = "hoverColor=#ff010203";
        const auto row = [](const QString &sheet, const QString &expected = {}) {
            QTest::newRow(qPrintable(sheet.left(40))) << sheet << expected;
        };
        row("A[style=\"Dark\"]:focus { color: rgb(1,2,3); text-decoration-color: rgba(4,5,6,7); }"
            "A[style=\"Dark\"]:hover { color: rgba( 11 , 12 , 13 , 255 ); text-decoration-color: rgb(1,1,1); "
            "}"
            "A[style=\"Dark\"]:pressed { color: rgb(0,255,0); text-decoration-color: rgba(1,1,1,1); }"
            "A[style=\"Dark\"]::menu-indicator { image: url(:/arrow); }",
            "focusColor=#ff010203 focusUnderlineColor=#07040506 hoverColor=#ff0b0c0d "
            "hoverUnderlineColor=#ff010101 pressedColor=#ff00ff00 pressedUnderlineColor=#01010101 "
            "menuIndicatorIcon=:/arrow");
        row(good, hover);
        row("A[style=\"Dark\"]:!focus:hover { color: rgb(1,2,3); }", hover);
        row("B[style=\"Dark\"] A:hover { color: rgb(1,2,3); }", hover);
        row("A[style=\"Dark\"]:hover, A[style=\"Light\"]:focus { color: rgb(1,2,3); }", hover);
        row("A[style=\"Dark\"]:hover:pressed { color: rgb(1,2,3); }", hover + " pressedColor=#ff010203");
        row("A[style=\"Dark\"]::menu-indicator { image: none; color: red; }", "menuIndicatorIcon=none");
        for (const char *foreign :
             {"[style=\"Dark\"]:hover", "*[style=\"Dark\"]:hover", "A:hover", "A[other=\"Dark\"]:hover",
              "A[style=\"DarkSmall\"]:hover", "A[style=\"dark\"]:hover", "A[style=\"Dark\"]",
              "A[style=\"Dark\"]:checked", "A[style=\"Dark\"]:!hover"})
            row(QString(foreign) + " { color: rgb(1,2,3); }");
        // Names of different types come out of a hash in any order.
        QString many;
        for (char name = 'A'; name <= 'Z'; ++name)
            many += QString("%1[style=\"Dark\"]:hover { color: rgb(9,9,%2); }")
                        .arg(QLatin1Char(name))
                        .arg(int(name));
        row(many + good, hover);
        row(rule.arg("rgb(9,9,9)") + rule.arg("red") + good, hover);
        row(good + "B { color: }}"); // does not parse
        for (const char *color :
             {"#010203", "#123", "red", "transparent", "hsl(1,2,3)", "rgb(1,2)", "rgb(1)", "rgb()",
              "rgba(1,2,3)", "rgb(1,2,3,4)", "rgb(1,2,x)", "rgb(10%,2,3)", "rgb(256,0,0)", "rgba(1,2,3,0.5)",
              "rgb(-1,2,3)", "RGB(1,2,3)", "url(:/arrow)", "12", "\"rgb(1,2,3)\""})
            row(good + rule.arg(color), "hoverColor=invalid");
    }

    void sheet()
    {
        QFETCH(QString, sheet);
        AbstractButton button;
        const QColor kept(200, 100, 50);
        const QByteArrayList names{"focusColor",          "focusUnderlineColor", "hoverColor",
                                   "hoverUnderlineColor", "pressedColor",        "pressedUnderlineColor",
                                   "menuIndicatorIcon"};
        for (const QByteArray &name : names)
            button.setProperty(name, name == "menuIndicatorIcon" ? QVariant("kept") : kept);
        button.setProperty("style", "Dark");
        if (sheet.contains("}}"))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Could not parse stylesheet"));
        button.setStyleSheet(sheet);
        QCOMPARE(button.hoverColor(), kept);   // not by setting the sheet
        for (int time = 0; time < 2; ++time) { // the second time what was read is known
            button.resolveStateProperties();
            QStringList changed;
            for (const QByteArray &name : names) {
                const QVariant value = button.property(name);
                const auto color = value.value<QColor>();
                const bool isText = value.type() == QVariant::String;
                if (isText ? value != "kept" : color != kept)
                    changed += name + '='
                               + (isText            ? value.toString()
                                  : color.isValid() ? color.name(QColor::HexArgb)
                                                    : "invalid");
            }
            QTEST(changed.join(' '), "expected");
        }
    }

    void lostReleases()
    {
        AbstractButton button;
        button.setStyleSheet(plainSheet);
        button.setIcon(NVO::Icon(NVO::Pixmap(":/strip")));
        button.setIconSize(QSize(16, 16));
        button.setPressedCursor(Qt::CrossCursor);
        QMenu menu;
        menu.addAction("Bearbeiten");
        button.setMenu(&menu);
        button.show();
        sendEvent(&button, QEvent::Enter);
        int whileOpen = -1; // the menu swallows leave and release
        QTimer::singleShot(0, this, [&] {
            whileOpen = shownCell(button);
            menu.close();
        });
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(whileOpen, 0);
        QCOMPARE(shownCell(button), 2);
        QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);

        button.setMenu(nullptr);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(button.cursor().shape(), Qt::CrossCursor);
        button.setEnabled(false);
        button.setEnabled(true);
        QCOMPARE(shownCell(button), 2);
        QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    }

    void deletedInItsOwnSlots()
    {
        for (const auto signal : {&AbstractButton::pressed, &AbstractButton::released}) {
            QPointer<AbstractButton> button = new Link;
            connect(button, signal, this, [button] { delete button; });
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                if (button)
                    QCoreApplication::sendEvent(button, &event);
            }
            QVERIFY(button.isNull());
        }
    }

    void iconButtonStyles()
    {
        const QByteArrayList keys{"Dark", "DarkSmall", "Light", "LightSmall"};
        const FontDeltaGuard guard;
        for (int change = 0; change < 16; ++change) {
            const int to = change % 4;
            NVO::Css::instance().setFontDelta(0);
            IconButton button;
            QCOMPARE(button.focusPolicy(), Qt::StrongFocus);
            button.setIconButtonStyle(IconButtonStyle(change / 4));
            button.setIconButtonStyle(IconButtonStyle(to));
            QCOMPARE(button.property("style").toByteArray(), keys[to]);
            for (const int delta : {0, 4}) {
                NVO::Css::instance().setFontDelta(delta);
                QCOMPARE(button.font().pixelSize(), delta + (to % 2 ? 10 : 13));
                QCOMPARE(button.hoverColor(), QColor(255, 0, to));
            }
            button.setIconButtonStyle(IconButtonStyle(99)); // keeps the name, not the small font
            QCOMPARE(button.property("style").toByteArray(), keys[to]);
            QCOMPARE(button.font().pixelSize(), 17);
        }
    }

    void linkStyles()
    {
        const FontDeltaGuard guard;
        Link link;
        link.show();
        for (const int style : {5, 0, 4, 2, 1, 3}) {
            link.setLinkStyle(Link::LinkStyle(style));
            QCOMPARE(link.property("style").toString(),
                     QMetaEnum::fromType<Link::LinkStyle>().valueToKey(style));
            QCOMPARE(link.styleSheet(), NVO::Css::instance().css(NVO::ElementLink));
            QCOMPARE(link.hoverColor(), QColor(255, 0, style));
            NVO::Css::instance().setFontDelta(style);
            QCOMPARE(link.font().pixelSize(), 13 + style);
            QCOMPARE(link.hoverColor(), QColor(255, 0, style));
        }
        link.setHoverColor(Qt::cyan);
        link.setLinkStyle(link.linkStyle()); // no change: nothing is set up again
        QCOMPARE(link.hoverColor(), QColor(Qt::cyan));
    }

    void accessibility()
    {
        IconButton button;
        button.setToolTip("<b>Hilfe</b> zur Seite");
        QAccessibleInterface *ours = QAccessible::queryAccessibleInterface(&button);
        const auto texts = [&] {
            return ours->text(QAccessible::Name) + '|' + ours->text(QAccessible::Description);
        };
        QCOMPARE(texts(), QString("Hilfe zur Seite|"));
        QCOMPARE(button.accessibleName(), QString()); // the application's own
        button.setText("Hilfe & Tipps");              // called as it is drawn
        QCOMPARE(texts(), QString("Hilfe & Tipps|Hilfe zur Seite"));
        button.setAccessibleName("Anleitung");
        QCOMPARE(texts(), QString("Anleitung|Hilfe zur Seite"));

        // All else is as Qt says it of a push button.
        QPushButton peer;
        QMenu menu;
        QAccessibleInterface *qts = QAccessible::queryAccessibleInterface(&peer);
        for (int mask = 31; mask >= 0; --mask) {
            for (QPushButton *each : {static_cast<QPushButton *>(&button), &peer}) {
                each->setCheckable(mask & 1);
                each->setChecked(mask & 2);
                each->setAutoExclusive(mask & 4);
                each->setEnabled(mask % 16 < 8);
                each->setMenu(mask & 16 ? &menu : nullptr);
                each->setFocusPolicy(Qt::StrongFocus);
                each->setShortcut(QKeySequence(mask & 1 ? "Alt+H" : ""));
            }
            QCOMPARE(ours->role(), qts->role());
            QVERIFY(ours->state() == qts->state());
            QCOMPARE(ours->text(QAccessible::Accelerator), QString(mask & 1 ? "Alt+H" : ""));
            QCOMPARE(ours->childCount(), 0);
            const QStringList actions = ours->actionInterface()->actionNames();
            QCOMPARE(actions, qts->actionInterface()->actionNames());
            if (button.isEnabled())
                QCOMPARE(ours->actionInterface()->keyBindingsForAction(actions.first()).size(), mask & 1);
        }
        const QSignalSpy clicks(&button, &IconButton::clicked);
        ours->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(clicks.count(), 1);
    }

private:
    /** A hover colour for each style that tells which one it is. */
    static QByteArray sheetOfStyles(const QByteArrayList &styles)
    {
        QByteArray sheet;
        for (int style = 0; style < styles.size(); ++style)
            sheet += "X[style=\"" + styles[style] + "\"]:hover { color: rgb(255, 0, "
                     + QByteArray::number(style) + "); }\n";
        return sheet;
    }

    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestAbstractButton)
#include "tst_abstractbutton.moc"
