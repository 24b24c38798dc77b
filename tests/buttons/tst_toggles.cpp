#include "Guards.h"
#include "Mouse.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/PixmapToggle.h>
#include <nvo/RadioToggle.h>

#include <QAccessible>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>
#include <QtTest>

#include <optional>
#include <random>

using NVO::AbstractToggle;
using NVO::PixmapToggle;
using NVO::RadioToggle;

namespace {

QFrame *frame(const QWidget &toggle, const char *name)
{
    return toggle.findChild<QFrame *>(QLatin1String(name));
}

QString stateOf(const QWidget &toggle)
{
    return frame(toggle, "middleFrame")->property("state").toString();
}

/** What a toggle says to those who look at its frames: of each side whether it is chosen. */
QString sidesOf(const QWidget &toggle)
{
    const bool left = frame(toggle, "leftFrame")->property("checked").toBool();
    const bool right = frame(toggle, "rightFrame")->property("checked").toBool();
    return left == right ? QStringLiteral("broken") : left ? QStringLiteral("on") : QStringLiteral("off");
}

NVO::GraphicsEffect *shadow(const QWidget *widget)
{
    return qobject_cast<NVO::GraphicsEffect *>(widget->graphicsEffect());
}

QRgb symbol(const QWidget *side)
{
    const QPixmap pixmap = qobject_cast<const QLabel *>(side)->pixmap(Qt::ReturnByValue);
    return pixmap.isNull() ? 0 : pixmap.toImage().pixel(0, 0);
}

} // namespace

class TestToggles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const auto image = [](quint32 color) { return TestResources::png(16, 16, {color}); };
        m_theme.emplace(QMap<QString, QByteArray>{
            {"RadioToggle", "QFrame[checked] { background: rgb(50, 50, 50); border: 2px solid white; }\n"
                            "QFrame[checked=\"true\"] { background: rgb(250, 0, 0); }\n"
                            "QFrame[state=\"pressed\"] { background: rgb(0, 0, 250); }\n"
                            "QRadioButton[checked=\"true\"] { font-weight: 504; }\n"},
            {"PixmapToggle", "QLabel[state=\"pressed\"] { background: rgb(0, 0, 250); }\n"},
            {"checkmark_hell_16", image(0xff010101)},
            {"close_hell_16", image(0xff020202)},
            {"checkmark_16", image(0xff030303)},
            {"close_16", image(0xff040404)}});
        NVO::Css::instance().reset();
        QPixmapCache::clear();
    }

    void states_data()
    {
        QTest::addColumn<int>("variant");
        QTest::addColumn<bool>("radio");
        for (const int i : {0, 1, 2, 3})
            QTest::addRow("%s, variant %d", i / 2 ? "radio" : "pixmap", i % 2) << i % 2 << bool(i / 2);
    }

    /** Mouse, keyboard, value and enabling by chance, against what the state has to be at each moment. */
    void states()
    {
        QFETCH(const int, variant);
        QFETCH(const bool, radio);
        const auto guard = withVariant(variant);
        QWidget window;
        window.resize(300, 200);
        std::unique_ptr<AbstractToggle> toggle;
        if (radio)
            toggle = std::make_unique<RadioToggle>(&window);
        else
            toggle = std::make_unique<PixmapToggle>(&window);
        QLineEdit other(&window);
        other.move(0, 150);
        toggle->setGeometry(20, 20, 100, 30);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(frame(*toggle, "middleFrame")->isVisible(), radio || variant == 0);

        Mouse mouse(&window);
        const QPoint inside = toggle->mapToGlobal({10, 10});
        const QPoint outside = window.mapToGlobal({250, 100});
        std::mt19937 random(20);
        SignalRecorder signalled;
        signalled.record(toggle.get(), &AbstractToggle::toggled, "toggled");
        signalled.record(toggle.get(), &AbstractToggle::stateChanged, "stateChanged");
        signalled.record(toggle.get(), &AbstractToggle::clicked, "clicked");
        bool held = false;
        bool checked = false;
        QStringList expectedSignals;
        const auto click = [&] {
            checked = !checked;
            expectedSignals += {"toggled", "stateChanged", "clicked"};
        };
        for (int i = 0; i < 300; ++i) {
            const auto finish = [&] { // a mouse that is let go toggles wherever it is
                mouse.release();
                if (held)
                    click();
                held = false;
            };
            switch (random() % 9) {
            case 0:
                mouse.move(inside);
                break;
            case 1:
                mouse.move(outside);
                break;
            case 2:
                finish();
                mouse.press(inside + QPoint(int(random() % 80), 0));
                held = toggle->isEnabled();
                break;
            case 3:
                finish();
                break;
            case 4:
                toggle->setFocus();
                break;
            case 5:
                other.setFocus();
                held = false; // given up
                mouse.release();
                break;
            case 6:
                toggle->setEnabled(!toggle->isEnabled());
                held = false;
                mouse.release();
                break;
            case 7: {
                const bool silent = random() % 2;
                const QSignalBlocker blocker(silent ? toggle.get() : nullptr);
                toggle->setChecked(checked = !checked);
                if (!silent)
                    expectedSignals += {"stateChanged", "toggled"};
                break;
            }
            default:
                if (held || !toggle->hasFocus())
                    break;
                QTest::keyPress(toggle.get(), Qt::Key_Space);
                QCOMPARE(stateOf(*toggle), QString("pressed"));
                if (random() % 2) {
                    QTest::keyPress(toggle.get(), Qt::Key_Escape);
                } else {
                    QTest::keyRelease(toggle.get(), Qt::Key_Space);
                    click();
                }
            }
            const bool hover = toggle->underMouse() && toggle->isEnabled();
            const bool focus = toggle->hasFocus();
            QCOMPARE(toggle->isDown(), held);
            QCOMPARE(toggle->isChecked(), checked);
            const QString expected = held             ? "pressed"
                                     : hover && focus ? "hoverfocus"
                                     : hover          ? "hover"
                                     : focus          ? "focus"
                                                      : "";
            QCOMPARE(stateOf(*toggle), expected);
            if (radio || !held)
                QCOMPARE(sidesOf(*toggle), checked != held ? QString("on") : QString("off"));
            QCOMPARE(signalled.take(), expectedSignals);
            expectedSignals.clear();
            if (!radio) {
                const int first = toggle->isEnabled() ? 1 : 3;
                const auto color = [&](int offset, bool none) {
                    return none ? QRgb(0) : QRgb(0xff000000 + 0x010101 * (first + offset));
                };
                QCOMPARE(symbol(frame(*toggle, "leftFrame")), color(0, !toggle->isEnabled() && !checked));
                QCOMPARE(symbol(frame(*toggle, "rightFrame")), color(1, !toggle->isEnabled() && checked));
            }
        }
    }

    /** What is held shows the sheet's look and its shadow on the other side at once. */
    void shadows()
    {
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            QWidget window;
            RadioToggle toggle(&window);
            toggle.resize(100, 30);
            const auto check = [&](bool shown) {
                const bool mirrored = toggle.layoutDirection() == Qt::RightToLeft;
                QWidget *chosen = frame(toggle, shown ? "leftFrame" : "rightFrame");
                QWidget *raised = frame(toggle, shown ? "rightFrame" : "leftFrame");
                const auto radios = toggle.findChildren<QRadioButton *>();
                QCOMPARE(radios.size(), 2);
                for (const QRadioButton *radio : radios)
                    QCOMPARE(radio->isChecked(), radio->parentWidget() == chosen);
                if (variant == 0) {
                    QVERIFY(!toggle.graphicsEffect());
                    QVERIFY(shadow(chosen)->enabled() && !shadow(raised)->enabled());
                    return;
                }
                const QRect half = shown ? QRect(50, 0, 50, 30) : QRect(0, 0, 51, 30);
                QCOMPARE(shadow(&toggle)->partialRect(),
                         mirrored ? half.translated(100 - half.width() - 2 * half.x(), 0) : half);
                QVERIFY(shadow(&toggle)->partialRect().contains(raised->geometry().center()));
            };
            window.show();
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                toggle.setLayoutDirection(direction);
                toggle.layout()->activate();
                QCOMPARE(toggle.middleX(), frame(toggle, "middleFrame")->x());
                check(false);
                QTest::mousePress(&toggle, Qt::LeftButton);
                check(true);
                QCOMPARE(toggle.grab().toImage().pixelColor(toggle.grab().rect().center() / 2).blue(), 250);
                QTest::mouseRelease(&toggle, Qt::LeftButton, {}, {-50, -50});
                check(true);
                toggle.setChecked(false);
            }
            toggle.resize(0, 0);
            QVERIFY(toggle.grab().isNull());
            toggle.resize(100, 30);
            // Others than ours are left alone, and those that are gone are not missed.
            const QList<QWidget *> shadowed{&toggle, frame(toggle, "leftFrame"), frame(toggle, "rightFrame")};
            for (QWidget *widget : shadowed) {
                auto *effect = new QGraphicsOpacityEffect;
                widget->setGraphicsEffect(effect);
                toggle.toggle();
                toggle.resize(toggle.width() + 2, 30);
                QVERIFY(effect->isEnabled() && qFuzzyCompare(effect->opacity(), 0.7));
                delete effect;
                toggle.toggle();
            }
        }
    }

    void sizes()
    {
        QWidget window;
        auto *layout = new QHBoxLayout(&window);
        auto *toggle = new RadioToggle;
        layout->addWidget(toggle, 0, Qt::AlignLeft);
        window.show();
        toggle->setOffText("&Haben");
        const QSize before = toggle->sizeHint();
        const auto radios = toggle->findChildren<QRadioButton *>();
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(radios.at(0)->font().weight() == 63, toggle->isChecked());
            QCOMPARE(toggle->sizeHint(), before);
            toggle->toggle();
        }
        toggle->setOnText("Nach vereinbarten Entgelten");
        QCoreApplication::processEvents();
        QVERIFY(toggle->width() > before.width() + 50);
        QCOMPARE(toggle->size(), toggle->sizeHint());
    }

    /** The radio buttons are nobody's business: not the keyboard's, the form's or assistive technology's. */
    void alone()
    {
        QWidget form;
        RadioToggle toggle(&form);
        PixmapToggle symbols(&form);
        QRadioButton neighbour(&form);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        toggle.setOnText("&Soll");
        toggle.setOffText("&Haben");
        neighbour.setChecked(true);
        toggle.setChecked(true);
        QVERIFY(neighbour.isChecked());
        neighbour.setAutoExclusive(false);
        neighbour.setChecked(false);
        neighbour.setAutoExclusive(true);
        neighbour.setChecked(true);
        const auto radios = toggle.findChildren<QRadioButton *>();
        QVERIFY(radios.at(0)->isChecked());
        QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
        QVERIFY(toggle.isChecked() && radios.at(0)->isChecked());
        toggle.setFocus();
        QTest::keyClick(&toggle, Qt::Key_Tab);
        QVERIFY(symbols.hasFocus());

        toggle.setTristate(true);
        toggle.setCheckState(Qt::PartiallyChecked);
        toggle.setToolTip("Kontoseite");
        const auto *parent = QAccessible::queryAccessibleInterface(&form);
        QCOMPARE(parent->childCount(), 3);
        for (AbstractToggle *each : std::initializer_list<AbstractToggle *>{&toggle, &symbols}) {
            auto *accessible = QAccessible::queryAccessibleInterface(each);
            QCOMPARE(accessible->role(), QAccessible::CheckBox);
            QCOMPARE(accessible->childCount(), 0);
            QVERIFY(accessible->state().checkable && accessible->state().focusable);
            QCOMPARE(bool(accessible->state().checkStateMixed), each == &toggle);
            QCOMPARE(accessible->text(QAccessible::Description),
                     each == &toggle ? QString("Soll / Haben") : QString("Ja / Nein"));
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(radios.at(0))->role(), QAccessible::NoRole);
    }

    /** Styles and sheets come and go under a toggle, parts and the toggle itself die in the middle. */
    void turmoil()
    {
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            RadioToggle toggle;
            toggle.show();
            toggle.setRadioToggleStyle(RadioToggle::VaSt);
            QCOMPARE(toggle.property("style").toString(), QString("VaSt"));
            std::unique_ptr<QStyle> style(QStyleFactory::create("windows"));
            const QVector<std::function<void()>> steps{
                [&] { toggle.setStyle(style.get()); },
                [&] { qApp->setStyleSheet("QFrame { border: 3px solid red; }"); },
                [&] { toggle.setStyleSheet(QString()); },
                [&] { qApp->setStyleSheet(QString()); },
                [&] { delete toggle.findChild<QRadioButton *>(); },
                [&] { delete frame(toggle, "leftFrame"); },
                [&] { delete frame(toggle, "middleFrame"); },
                [&] { delete frame(toggle, "rightFrame"); },
            };
            for (const auto &step : steps) {
                step();
                QTest::mouseClick(&toggle, Qt::LeftButton);
                if (QFrame *right = frame(toggle, "rightFrame"))
                    QCOMPARE(right->property("checked").toBool(), !toggle.isChecked());
                toggle.setOnText(toggle.onText() + "x");
                toggle.grab();
            }
            QCOMPARE(toggle.onText(), QString());
            QCOMPARE(toggle.middleX(), 0);

            for (const auto signal : {&RadioToggle::pressed, &RadioToggle::released}) {
                auto *dying = new RadioToggle;
                connect(dying, signal, dying, [dying] { delete dying; });
                QTest::keyPress(dying, Qt::Key_Space);
                if (signal == &RadioToggle::released)
                    QTest::keyRelease(dying, Qt::Key_Space);
            }
            auto *dying = new PixmapToggle;
            connect(dying, &PixmapToggle::toggled, dying, [dying] { delete dying; });
            QTest::mouseClick(dying, Qt::LeftButton);
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestToggles)
#include "tst_toggles.moc"
