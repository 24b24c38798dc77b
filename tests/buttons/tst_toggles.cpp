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

NVO::GraphicsEffect *shadow(const QWidget *widget)
{
    return qobject_cast<NVO::GraphicsEffect *>(widget->graphicsEffect());
}

/** The number of the image on a side, 0 for none. */
int symbol(const QFrame *side)
{
    const QImage image = qobject_cast<const QLabel *>(side)->pixmap(Qt::ReturnByValue).toImage();
    return image.isNull() ? 0 : qBlue(image.pixel(0, 0));
}

/** A held radio toggle shows the other side as chosen at once, with its shadow. */
void checkSides(const RadioToggle &toggle, bool shown)
{
    const QWidget *chosen = frame(toggle, shown ? "leftFrame" : "rightFrame");
    const QWidget *raised = frame(toggle, shown ? "rightFrame" : "leftFrame");
    QVERIFY(chosen->property("checked").toBool() && chosen->findChild<QRadioButton *>()->isChecked());
    QVERIFY(!raised->property("checked").toBool() && !raised->findChild<QRadioButton *>()->isChecked());
    if (NVO::Product::instance().variant == 0) {
        QVERIFY(!toggle.graphicsEffect() && shadow(chosen)->enabled() && !shadow(raised)->enabled());
        return;
    }
    const int half = toggle.width() / 2;
    const QRect part(shown ? half : 0, 0, shown ? half : half + 1, toggle.height());
    QCOMPARE(shadow(&toggle)->partialRect(),
             QStyle::visualRect(toggle.layoutDirection(), toggle.rect(), part));
    QVERIFY(shadow(&toggle)->partialRect().contains(raised->geometry().center()));
}

/** A disabled one shows the symbol of its value only. */
void checkSides(const PixmapToggle &toggle, bool checked, bool held)
{
    const QFrame *left = frame(toggle, "leftFrame");
    const QFrame *right = frame(toggle, "rightFrame");
    QVERIFY(held || left->property("checked").toBool() == checked);
    QVERIFY(held || right->property("checked").toBool() != checked);
    QCOMPARE(symbol(left), toggle.isEnabled() ? 1 : checked ? 3 : 0);
    QCOMPARE(symbol(right), toggle.isEnabled() ? 2 : checked ? 0 : 4);
}

} // namespace

class TestToggles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        const auto image = [](quint32 number) { return TestResources::png(16, 16, {0xff000000 + number}); };
        m_theme.emplace(QMap<QString, QByteArray>{
            {"RadioToggle", "QFrame[state=\"pressed\"] { background: rgb(0, 0, 250); }\n"
                            "QRadioButton[checked=\"true\"] { font-weight: 504; }\n"},
            {"checkmark_hell_16", image(1)},
            {"close_hell_16", image(2)},
            {"checkmark_16", image(3)},
            {"close_16", image(4)}});
        NVO::Css::instance().reset();
        QPixmapCache::clear();
    }

    void states_data()
    {
        QTest::addColumn<int>("kind");
        for (const int kind : {0, 1, 2, 3})
            QTest::addRow("%s, variant %d", kind / 2 ? "radio" : "pixmap", kind % 2) << kind;
    }

    /** Mouse, keyboard, value and enabling by chance, against what the state has to be at each moment. */
    void states()
    {
        QFETCH(const int, kind);
        const auto guard = withVariant(kind % 2);
        QWidget window;
        window.resize(300, 200);
        RadioToggle radioToggle(kind / 2 ? &window : nullptr);
        PixmapToggle pixmapToggle(kind / 2 ? nullptr : &window);
        AbstractToggle *toggle = kind / 2 ? static_cast<AbstractToggle *>(&radioToggle) : &pixmapToggle;
        QLineEdit other(&window);
        other.move(0, 150);
        toggle->setGeometry(20, 20, 100, 30);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(frame(*toggle, "middleFrame")->isVisible(), kind != 1);

        SignalRecorder signalled;
        signalled.record(toggle, &AbstractToggle::toggled, "toggled");
        signalled.record(toggle, &AbstractToggle::stateChanged, "stateChanged");
        signalled.record(toggle, &AbstractToggle::clicked, "clicked");
        Mouse mouse(&window);
        const QPoint inside = toggle->mapToGlobal({10, 10});
        const QPoint outside = window.mapToGlobal({250, 100});
        std::mt19937 random(20);
        enum { Press, Space, Release, Type, Set, SetSilently };
        const auto toggleSilently = [&] {
            const QSignalBlocker blocker(toggle);
            toggle->toggle();
        };
        const QVector<std::function<void()>> steps{
            [&] {
                QTest::mousePress(toggle, Qt::LeftButton, Qt::NoModifier, QPoint(int(random() % 100), 5));
            },
            [&] { QTest::keyPress(toggle, Qt::Key_Space); },
            [&] { QTest::mouseRelease(toggle, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50)); },
            [&] { QTest::keyRelease(toggle, Qt::Key_Space); },
            [&] { toggle->toggle(); },
            toggleSilently,
            [&] { QTest::keyPress(toggle, Qt::Key_Escape); },
            [&] { mouse.move(inside); },
            [&] { mouse.move(outside); },
            [&] { toggle->resize(100 + int(random() % 3), 30); },
            [&] { toggle->setFocus(); },
            [&] { other.setFocus(); },
            [&] { toggle->setEnabled(!toggle->isEnabled()); },
            [&] { toggle->setLayoutDirection(Qt::LayoutDirection(random() % 2)); },
        };
        for (int i = 0; i < 600; ++i) {
            const int step = int(random() % unsigned(steps.size()));
            const bool clicks = toggle->isDown() && (step == Release || step == Type);
            const bool checked = toggle->isChecked() != (clicks || step == Set || step == SetSilently);
            steps.at(step)();
            toggle->layout()->activate();
            const bool held = toggle->isDown();
            const QString hover = toggle->underMouse() && toggle->isEnabled() ? "hover" : "";
            const QString state = held ? "pressed" : hover + (toggle->hasFocus() ? "focus" : "");
            for (const char *name : {"leftFrame", "middleFrame", "rightFrame"})
                QCOMPARE(frame(*toggle, name)->property("state").toString(), state);
            QCOMPARE(toggle->isChecked(), checked);
            QVERIFY(held == toggle->isEnabled() || (step != Press && step != Space));
            QCOMPARE(signalled.take(), clicks        ? QStringList({"toggled", "stateChanged", "clicked"})
                                       : step == Set ? QStringList({"stateChanged", "toggled"})
                                                     : QStringList());
            if (kind / 2)
                checkSides(radioToggle, checked != held);
            else
                checkSides(pixmapToggle, checked, held);
        }
    }

    void sizes()
    {
        QWidget window;
        auto *toggle = new RadioToggle;
        (new QHBoxLayout(&window))->addWidget(toggle, 0, Qt::AlignLeft);
        window.show();
        toggle->setOffText("&Haben");
        const QSize before = toggle->sizeHint();
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(toggle->findChild<QRadioButton *>()->font().weight() == 63, toggle->isChecked());
            QCOMPARE(toggle->sizeHint(), before);
            toggle->toggle();
        }
        toggle->setOnText("Nach vereinbarten Entgelten");
        QCoreApplication::processEvents();
        QVERIFY(toggle->width() > before.width() + 50);
        QCOMPARE(toggle->size(), toggle->sizeHint());
        QCOMPARE(toggle->middleX(), frame(*toggle, "middleFrame")->x());
    }

    /** The radio buttons are nobody's business: not the keyboard's, the form's or assistive technology's. */
    void alone()
    {
        QWidget form;
        RadioToggle toggle(&form);
        PixmapToggle symbols(&form);
        QRadioButton neighbour(&form);
        form.show();
        QApplication::setActiveWindow(&form);
        toggle.setOnText("&Soll");
        toggle.setOffText("&Haben");
        toggle.setChecked(true);
        neighbour.setChecked(true);
        auto *onRadio = toggle.findChild<QRadioButton *>();
        QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
        QVERIFY(toggle.isChecked() && onRadio->isChecked());
        toggle.setFocus();
        QTest::keyClick(&toggle, Qt::Key_Tab);
        QVERIFY(symbols.hasFocus());

        toggle.setCheckState(Qt::PartiallyChecked);
        toggle.setToolTip("Kontoseite"); // the name
        const auto *accessible = QAccessible::queryAccessibleInterface(&toggle);
        const QAccessible::State state = accessible->state();
        QVERIFY(accessible->role() == QAccessible::CheckBox && accessible->childCount() == 0);
        QVERIFY(state.checkable && state.focusable && state.checkStateMixed);
        QCOMPARE(accessible->text(QAccessible::Description), QString("Soll / Haben"));
        accessible = QAccessible::queryAccessibleInterface(&symbols);
        QCOMPARE(accessible->text(QAccessible::Description), QString("Ja / Nein"));
        QVERIFY(!accessible->state().checkStateMixed);
        QCOMPARE(QAccessible::queryAccessibleInterface(onRadio)->role(), QAccessible::NoRole);
    }

    /** Styles, sheets and effects change under a toggle, parts and the toggle itself die in the middle. */
    void turmoil()
    {
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            RadioToggle toggle;
            toggle.show();
            toggle.setRadioToggleStyle(RadioToggle::VaSt);
            QCOMPARE(toggle.property("style").toString(), QString("VaSt"));
            QTest::keyPress(&toggle, Qt::Key_Space);
            const QPoint onTheLeft = toggle.rect().center() / 2 * toggle.devicePixelRatio();
            QCOMPARE(toggle.grab().toImage().pixelColor(onTheLeft).blue(), 250);
            auto *foreign = new QGraphicsOpacityEffect;
            const auto replaceShadow = [&] {
                QWidget *left = frame(toggle, "leftFrame");
                (variant ? &toggle : left)->setGraphicsEffect(foreign);
            };
            std::unique_ptr<QStyle> style(QStyleFactory::create("windows"));
            const QVector<std::function<void()>> steps{
                [&] { toggle.setStyle(style.get()); },
                [&] { qApp->setStyleSheet("QFrame { border: 3px solid red; }"); },
                [&] { toggle.setStyleSheet(QString()); },
                [&] { qApp->setStyleSheet(QString()); },
                replaceShadow,
                [&] { QVERIFY(std::unique_ptr<QGraphicsEffect>(foreign)->isEnabled()); },
                [&] { delete toggle.findChild<QRadioButton *>(); },
                [&] { delete frame(toggle, "leftFrame"); },
                [&] { delete frame(toggle, "middleFrame"); },
                [&] { delete frame(toggle, "rightFrame"); },
            };
            for (const auto &step : steps) {
                step();
                QTest::mouseClick(&toggle, Qt::LeftButton);
                if (frame(toggle, "rightFrame"))
                    QCOMPARE(frame(toggle, "rightFrame")->property("checked").toBool(), !toggle.isChecked());
                toggle.setOnText(toggle.onText() + "x");
                toggle.grab();
            }
            QVERIFY(toggle.onText().isEmpty() && toggle.middleX() == 0);
        }
        const auto clickDying = [](auto *dying, auto signal) {
            connect(dying, signal, dying, [dying] { delete dying; });
            dying->click();
        };
        clickDying(new RadioToggle, &RadioToggle::pressed);
        clickDying(new RadioToggle, &RadioToggle::released);
        clickDying(new PixmapToggle, &PixmapToggle::toggled);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestToggles)
#include "tst_toggles.moc"
