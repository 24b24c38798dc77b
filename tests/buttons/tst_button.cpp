#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/GraphicsEffect.h>

#include <QGraphicsOpacityEffect>
#include <QPixmapCache>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using NVO::Button;

namespace {

const QList<Button::ButtonStyle> allStyles{
    Button::Normal,     Button::Primary, Button::Right,     Button::Left,        Button::Add,
    Button::Breadcrumb, Button::Close,   Button::CloseDark, Button::FlyoutClose, Button::FlyoutCloseDark,
    Button::MacClose,   Button::Menu,    Button::Backstage};

bool shadowShows(const Button &button)
{
    const auto *effect = qobject_cast<const NVO::GraphicsEffect *>(button.graphicsEffect());
    return effect && effect->enabled();
}

/** The smallest rectangle that holds all pixels of a colour, in device-independent pixels. */
QRect extentOf(const QImage &image, const QColor &color)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                extent |= QRect(x, y, 1, 1);
        }
    }
    const int ratio = int(image.devicePixelRatio());
    return QRect(extent.topLeft() / ratio, extent.size() / ratio);
}

QIcon filledIcon(const QColor &color)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

class TestButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void styles_data();
    void styles();
    void styleSwitches();
    void sizes();
    void shadow_data();
    void shadow();
    void foreignEffects();
    void iconOnlyStates();
    void placesOfIconAndText();
    void backstageTextIsWhole();
    void hoveredMenuEntryLooksFocused();
    void deletedInItsOwnSlots_data();
    void deletedInItsOwnSlots();

private:
    std::unique_ptr<TestResources> m_theme;
};

void TestButton::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

void TestButton::init()
{
    QPixmapCache::clear();
    m_theme = std::make_unique<TestResources>(QMap<QString, QByteArray>{
        {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
        {"FontSizes", "[Element]\nButton=DEFAULT\nButton_HIGHLIGHT=HIGHLIGHT\n"},
        {"Button", "QPushButton { border: none; background: white; color: black; }\n"
                   "QPushButton:focus { background: #00ffff; }\n"},
        {"close", TestResources::png(16, 16, {0xff111111})},
        {"close_hell", TestResources::png(16, 16, {0xffeeeeee})},
        {"macclose", TestResources::png(56, 14, {0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888})},
        {"macclose@2x", TestResources::png(112, 28, {0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888})},
    });
    NVO::Css::instance().reset();
}

void TestButton::cleanup()
{
    m_theme.reset();
    NVO::Css::instance().reset();
}

void TestButton::styles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("policy");
    QTest::addColumn<QColor>("icon");

    const auto row = [](Button::ButtonStyle style, const char *key, QSizePolicy::Policy policy,
                        const QColor &icon) {
        QTest::newRow(key) << int(style) << QString(key) << int(policy) << icon;
    };
    const QColor dark("#111111");
    const QColor light("#eeeeee");
    row(Button::Normal, "Normal", QSizePolicy::Preferred, QColor());
    row(Button::Primary, "Primary", QSizePolicy::Preferred, QColor());
    row(Button::Right, "Right", QSizePolicy::Preferred, QColor());
    row(Button::Left, "Left", QSizePolicy::Preferred, QColor());
    row(Button::Add, "Add", QSizePolicy::Preferred, QColor());
    row(Button::Breadcrumb, "Breadcrumb", QSizePolicy::Fixed, QColor());
    row(Button::Close, "Close", QSizePolicy::Preferred, dark);
    row(Button::CloseDark, "CloseDark", QSizePolicy::Preferred, light);
    row(Button::FlyoutClose, "FlyoutClose", QSizePolicy::Preferred, dark);
    row(Button::FlyoutCloseDark, "FlyoutCloseDark", QSizePolicy::Preferred, light);
    row(Button::MacClose, "MacClose", QSizePolicy::Fixed, QColor(Qt::blue));
    row(Button::Menu, "Menu", QSizePolicy::Minimum, QColor());
    row(Button::Backstage, "Backstage", QSizePolicy::Preferred, QColor());
}

void TestButton::styles()
{
    QFETCH(int, style);
    QFETCH(int, policy);
    QFETCH(QColor, icon);
    Button button;
    button.setButtonStyle(Button::ButtonStyle(style));
    QTEST(button.property("style").toString(), "key");
    QCOMPARE(button.styleSheet(), NVO::Css::instance().css(NVO::ElementButton));
    QCOMPARE(button.font().pixelSize(), style == Button::Backstage ? 17 : 13);
    QCOMPARE(button.focusPolicy(), style == Button::Menu ? Qt::NoFocus : Qt::StrongFocus);
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Policy(policy), QSizePolicy::Fixed));
    QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(button.icon().isNull(), !icon.isValid());
    if (icon.isValid())
        QCOMPARE(button.icon().pixmap(14, 14).toImage().pixelColor(7, 7), icon);
}

void TestButton::styleSwitches()
{
    // Whatever the way to a style, only the icon may stay behind.
    Button button;
    for (const Button::ButtonStyle from : allStyles) {
        for (const Button::ButtonStyle to : allStyles) {
            button.setButtonStyle(from);
            button.setButtonStyle(to);
            Button fresh;
            fresh.setButtonStyle(to);
            QCOMPARE(button.property("style"), fresh.property("style"));
            QCOMPARE(button.font().pixelSize(), fresh.font().pixelSize());
            QCOMPARE(button.focusPolicy(), fresh.focusPolicy());
            QCOMPARE(button.sizePolicy(), fresh.sizePolicy());
            QCOMPARE(shadowShows(button), shadowShows(fresh));
        }
    }
    button.setButtonStyle(Button::Close);
    button.setButtonStyle(Button::Normal);
    QVERIFY(!button.icon().isNull());
    button.setIcon(QIcon());
    button.setButtonStyle(Button::Normal); // no change: nothing is set up again
    QVERIFY(button.icon().isNull());
}

void TestButton::sizes()
{
    Button button;
    QPushButton plain;
    for (const QString &text : {QString("x"), QString(40, QLatin1Char('W'))}) {
        button.setText(text);
        plain.setText(text);
        plain.setFont(button.font());
        plain.setStyleSheet(button.styleSheet());
        for (const Button::ButtonStyle style : allStyles) {
            button.setButtonStyle(style);
            plain.setIcon(button.icon());
            plain.setFont(button.font());
            QSize hint = plain.sizeHint();
            QSize minimum = plain.minimumSizeHint();
            if (style == Button::Normal || style == Button::Primary) {
                hint.setWidth(qMax(100, hint.width()));
                minimum.setWidth(qMax(100, minimum.width()));
            } else if (style == Button::Breadcrumb || style == Button::MacClose) {
                hint = minimum = style == Button::Breadcrumb ? QSize(16, 16) : QSize(14, 14);
            }
            QCOMPARE(button.sizeHint(), hint);
            QCOMPARE(button.minimumSizeHint(), minimum);
        }
    }
}

void TestButton::shadow_data()
{
    QTest::addColumn<int>("variant");
    QTest::addColumn<bool>("effects");
    for (const int variant : {0, 1}) {
        QTest::addRow("variant %d", variant) << variant << true;
        QTest::addRow("variant %d, effects off", variant) << variant << false;
    }
}

void TestButton::shadow()
{
    QFETCH(int, variant);
    QFETCH(bool, effects);
    const auto variantGuard = withVariant(variant);
    const auto effectsGuard = withEffects(effects);
    Button button;
    button.show();
    for (const Button::ButtonStyle style : allStyles) {
        button.setButtonStyle(style);
        const bool directed = style == Button::Left || style == Button::Right;
        const bool casts = style == Button::Normal || style == Button::Primary || (directed && variant == 0);
        QCOMPARE(shadowShows(button), casts && effects);

        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(!shadowShows(button));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(shadowShows(button), casts && effects);

        button.setShadowEnabled(false);
        QVERIFY(!shadowShows(button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(!shadowShows(button));
        button.setShadowEnabled(true);
        QCOMPARE(shadowShows(button), casts && effects);
    }
}

void TestButton::foreignEffects()
{
    Button button;
    auto *opacity = new QGraphicsOpacityEffect;
    opacity->setEnabled(false);
    button.setGraphicsEffect(opacity);
    button.setButtonStyle(Button::Primary);
    button.setShadowEnabled(true);
    QCOMPARE(button.graphicsEffect(), opacity);
    QVERIFY(!opacity->isEnabled());
    button.setGraphicsEffect(nullptr);
    button.setShadowEnabled(false);
}

void TestButton::iconOnlyStates()
{
    Button button;
    button.setButtonStyle(Button::MacClose);
    button.setText("never painted");
    button.resize(button.sizeHint());
    button.setGraphicsEffect(nullptr);
    const auto center = [&button] { return button.grab().toImage().pixelColor(7, 7); };

    QCOMPARE(center(), QColor(Qt::blue));
    button.setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(center(), QColor(Qt::green));
    button.setDown(true);
    QCOMPARE(center(), QColor(Qt::red));
    button.setEnabled(false);
    QCOMPARE(center(), QColor("#888888"));

    button.resize(30, 30);
    const QImage image = button.grab().toImage();
    QCOMPARE(extentOf(image, QColor("#888888")), QRect(0, 0, 14, 14));
}

void TestButton::placesOfIconAndText()
{
    Button button;
    button.setGraphicsEffect(nullptr);
    button.setText(QString(QChar(0x2588))); // a full block: its extent is exact
    button.setIcon(filledIcon(Qt::red));
    button.setIconSize(QSize(24, 12));
    button.resize(181, 43);

    button.setButtonStyle(Button::Right);
    button.setStyleSheet("NVO--Button { border: none; background: white; color: blue; }");
    QImage image = button.grab().toImage();
    QCOMPARE(extentOf(image, Qt::red), QRect(181 - 10 - 24, 15, 24, 12));
    QVERIFY(qAbs(extentOf(image, Qt::blue).right() - (181 - 18 - 24 - 1)) <= 1);

    button.setButtonStyle(Button::Left);
    button.setStyleSheet("NVO--Button { border: none; background: white; color: blue; }");
    image = button.grab().toImage();
    QCOMPARE(extentOf(image, Qt::red), QRect(10, 15, 24, 12));
    QVERIFY(qAbs(extentOf(image, Qt::blue).left() - (24 + 18)) <= 1);

    button.setButtonStyle(Button::Backstage);
    button.setStyleSheet("NVO--Button { border: none; background: white; color: blue; }");
    image = button.grab().toImage();
    const int textWidth = button.fontMetrics().horizontalAdvance(button.text());
    const int left = (181 - (textWidth + 10 + 24)) / 2;
    QCOMPARE(extentOf(image, Qt::red), QRect(left, 15, 24, 12));
    QVERIFY(qAbs(extentOf(image, Qt::blue).left() - (left + 34)) <= 1);
}

void TestButton::backstageTextIsWhole()
{
    // Texts of any width, fractions of pixels among them, end with the same block.
    const QString block(QChar(0x2588));
    Button button;
    button.setButtonStyle(Button::Backstage);
    button.setGraphicsEffect(nullptr);
    button.resize(400, 40);
    for (int length = 1; length < 25; ++length) {
        button.setText(QStringLiteral("Mandant anlegen und öffnen").left(length) + QLatin1Char(' ') + block);
        const QRect ink = extentOf(button.grab().toImage(), Qt::black);
        const int textWidth = button.fontMetrics().horizontalAdvance(button.text());
        const int right = (400 - (textWidth + 10 + button.iconSize().width())) / 2 + 10
                          + button.iconSize().width() + textWidth;
        QVERIFY2(qAbs(ink.right() - right) <= 2, qPrintable(button.text()));
    }
}

void TestButton::hoveredMenuEntryLooksFocused()
{
    Button button;
    button.setButtonStyle(Button::Menu);
    button.resize(80, 30);
    const auto corner = [&button] { return button.grab().toImage().pixelColor(2, 2); };
    QCOMPARE(corner(), QColor(Qt::white));
    button.setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(corner(), QColor("#00ffff"));
}

void TestButton::deletedInItsOwnSlots_data()
{
    QTest::addColumn<bool>("onPress");
    QTest::newRow("pressed") << true;
    QTest::newRow("clicked") << false;
}

void TestButton::deletedInItsOwnSlots()
{
    QFETCH(bool, onPress);
    QPointer<Button> button = new Button;
    button->show();
    connect(button, onPress ? &Button::pressed : &Button::released, this, [&button] { delete button; });
    const QPoint center = button->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, center, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &press);
    if (button) {
        QMouseEvent release(QEvent::MouseButtonRelease, center, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &release);
    }
    QVERIFY(button.isNull());
}

QTEST_MAIN(TestButton)
#include "tst_button.moc"
