#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/GraphicsEffect.h>

#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QtTest>

#include <optional>

using NVO::Button;

namespace {

bool shadowShows(const Button &button)
{
    return qobject_cast<const NVO::GraphicsEffect *>(button.graphicsEffect())->enabled();
}

const QByteArrayList keys{"Normal",     "Primary", "Right",     "Left",        "Add",
                          "Breadcrumb", "Close",   "CloseDark", "FlyoutClose", "FlyoutCloseDark",
                          "MacClose",   "Menu",    "Backstage"};
const QColor ground(255, 255, 0);
const QList<quint32> pand{0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888};

/** What a button with the normal icon of the strip looks like if it is painted by hand. */
QImage expectedPicture(Button &button)
{
    const Button::ButtonStyle style = button.buttonStyle();
    const int iw = button.iconSize().width();
    const int ih = button.iconSize().height();
    const int tw = button.fontMetrics().horizontalAdvance(button.text());
    const int fh = button.fontMetrics().height();
    const int centred = (button.width() - (tw + 10 + iw)) / 2;
    const int left = style == Button::Right ? button.width() - 10 - iw : style == Button::Left ? 10 : centred;
    QRect text(left + iw + 10, (button.height() - fh) / 2, tw, fh);
    if (style == Button::Left)
        text = QRect(iw + 18, text.top(), button.width() - 20 - iw, button.height());
    else if (style == Button::Right)
        text = QRect(0, 0, button.width() - 18 - iw, button.height());
    QPixmap picture = button.grab();
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setFont(button.font());
    painter.drawText(text, style == Button::Right ? int(Qt::AlignCenter | Qt::AlignRight) : 0, button.text());
    painter.fillRect(left, (button.height() - ih) / 2, iw, ih, QColor(pand[2]));
    return picture.toImage();
}

} // namespace

class TestButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
        QPixmapCache::clear();
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
            {"FontSizes", "[Element]\nButton=DEFAULT\nButton_HIGHLIGHT=HIGHLIGHT\n"},
            {"Button",
             "* { border: none; background: #ffff00; color: black; } *:focus { background: #00ffff; }\n"
             "*[style=\"Normal\"], *[style=\"Left\"] { SEMIBOLD\n } *[style=\"Menu\"] { LIGHT\n }\n"},
            {"close", TestResources::png(16, 16, {0xff111111})},
            {"close_hell", TestResources::png(16, 16, {0xffeeeeee})},
            {"macclose", TestResources::png(56, 14, pand)},
            {"macclose@2x", TestResources::png(112, 28, pand)},
        });
        NVO::Css::instance().reset();
    }

    void styles()
    {
        for (int style = 0; style < keys.size(); ++style) {
            Button button;
            button.setButtonStyle(Button::ButtonStyle(style));
            QCOMPARE(button.property("style").toByteArray(), keys[style]);
            QCOMPARE(button.styleSheet(), NVO::Css::instance().css(NVO::ElementButton));
            QCOMPARE(button.font().pixelSize(), style == Button::Backstage ? 17 : 13);
            QCOMPARE(button.focusPolicy(), style == Button::Menu ? Qt::NoFocus : Qt::StrongFocus);
            QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
            const bool iconOnly = style == Button::Breadcrumb || style == Button::MacClose;
            const auto narrow = iconOnly ? QSizePolicy::Fixed : QSizePolicy::Preferred;
            const auto horizontal = style == Button::Menu ? QSizePolicy::Minimum : narrow;
            QCOMPARE(button.hasMouseTracking(), iconOnly);
            QCOMPARE(button.sizePolicy(), QSizePolicy(horizontal, QSizePolicy::Fixed));

            const QRgb cross = keys[style].endsWith("Dark") ? 0xffeeeeee : 0xff111111;
            const QImage icon = button.icon().pixmap(14, 14).toImage();
            QCOMPARE(icon.isNull(), !keys[style].contains("Close"));
            if (!icon.isNull())
                QCOMPARE(icon.pixel(7, 7), style == Button::MacClose ? pand[2] : cross);
            QVERIFY(style != Button::MacClose || icon.width() == qRound(14 * button.devicePixelRatioF()));

            const QSize least(style == Button::Normal || style == Button::Primary ? 100 : 0, 0);
            const QSize fixed = style == Button::Breadcrumb ? QSize(16, 16) : QSize(14, 14);
            for (const QString &text : {QString("x"), QString(40, 'W')}) {
                button.setText(text);
                const QSize hint = iconOnly ? fixed : button.QPushButton::sizeHint().expandedTo(least);
                QCOMPARE(button.sizeHint(), hint);
                QCOMPARE(button.minimumSizeHint(), hint);
            }
        }
    }

    void styleSwitches()
    {
        // A live change of the style leaves nothing of the old one behind but the icon.
        const auto look = [](Button::ButtonStyle from, Button::ButtonStyle to) {
            Button button;
            button.setButtonStyle(from);
            button.show();
            button.setButtonStyle(to);
            return QVariantList{button.property("style"), button.font(), int(button.focusPolicy()),
                                int(button.sizePolicy().horizontalPolicy()), shadowShows(button)};
        };
        for (int change = 0; change < keys.size() * keys.size(); ++change) {
            const auto to = Button::ButtonStyle(change / keys.size());
            QCOMPARE(look(Button::ButtonStyle(change % keys.size()), to), look(to, to));
        }
        Button button;
        button.setButtonStyle(Button::Close);
        button.setButtonStyle(Button::Normal);
        QVERIFY(!button.icon().isNull());
        button.setButtonStyle(Button::Close);
        button.setIcon(QIcon());
        button.setButtonStyle(Button::Close); // no change: nothing is set up again
        QVERIFY(button.icon().isNull());
    }

    void shadow()
    {
        for (int round = 0; round < 4; ++round) {
            const auto variantGuard = withVariant(round % 2);
            const auto effectsGuard = withEffects(round < 2);
            Button button;
            button.show();
            for (int style = 0; style < keys.size(); ++style) {
                button.setButtonStyle(Button::ButtonStyle(style));
                const bool wide = style == Button::Normal || style == Button::Primary;
                const bool directed = style == Button::Left || style == Button::Right;
                const bool casts = round < 2 && (wide || (directed && round == 0));
                for (const bool enabled : {true, false, true}) {
                    button.setShadowEnabled(enabled);
                    QCOMPARE(shadowShows(button), casts && enabled);
                    QTest::mousePress(&button, Qt::LeftButton);
                    QVERIFY(!shadowShows(button));
                    QTest::mouseRelease(&button, Qt::LeftButton);
                    QCOMPARE(shadowShows(button), casts && enabled);
                }
            }
        }
        Button button; // somebody else's effect, and none
        auto *opacity = new QGraphicsOpacityEffect;
        for (QGraphicsEffect *effect : {static_cast<QGraphicsEffect *>(opacity), {}}) {
            button.setGraphicsEffect(effect);
            button.setShadowEnabled(effect == nullptr);
            QVERIFY(!effect || opacity->isEnabled());
        }
    }

    void handPainting()
    {
        Button button;
        button.setButtonStyle(Button::MacClose); // leaves its icon
        for (const auto style : {Button::Right, Button::Left, Button::Backstage}) {
            button.setButtonStyle(style);
            for (const QSize &size : {QSize(181, 43), QSize(400, 40), QSize(250, 9)}) {
                button.resize(size);
                for (int length = 0; length < 27; ++length) {
                    // Texts of any width, fractions of pixels among them, end with a block.
                    button.setText(QString("Mandant anlegen und öffnen").left(length) + " \u2588");
                    button.setIconSize(QSize(14 + length % 3, 14 - length % 5));
                    button.setEnabled(length % 2 == 0);
                    button.setDown(length % 3 == 0);
                    button.setAttribute(Qt::WA_UnderMouse, length % 4 == 0);
                    QCOMPARE(button.grab().toImage(), expectedPicture(button));
                }
            }
        }
    }

    void statesOfTheMouse()
    {
        Button button;
        button.setButtonStyle(Button::MacClose);
        button.setText("never painted");
        button.resize(30, 30);
        QPixmap expected = button.grab();
        for (const int state : {2, 1, 0, 3}) {
            button.setAttribute(Qt::WA_UnderMouse, state != 2);
            button.setDown(state == 0 || state == 3);
            button.setEnabled(state != 3);
            expected.fill(Qt::transparent);
            QPainter(&expected).fillRect(0, 0, 14, 14, QColor(pand[state]));
            QCOMPARE(button.grab().toImage(), expected.toImage());
        }
        Button entry; // looks focused under the mouse
        entry.setButtonStyle(Button::Menu);
        for (const bool hovered : {false, true}) {
            entry.setAttribute(Qt::WA_UnderMouse, hovered);
            QCOMPARE(entry.grab().toImage().pixelColor(2, 2), hovered ? QColor(Qt::cyan) : ground);
        }
    }

    void deletedInItsOwnSlots()
    {
        for (const auto signal : {&Button::pressed, &Button::released}) {
            QPointer<Button> button = new Button;
            connect(button, signal, this, [button] { delete button; });
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                if (button)
                    QCoreApplication::sendEvent(button, &event);
            }
            QVERIFY(button.isNull());
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestButton)
#include "tst_button.moc"
