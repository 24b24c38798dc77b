#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"

#include <nvo/Link.h>
#include <nvo/ZoomSlider.h>

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

#include <memory>

using NVO::ZoomSlider;

namespace {

const QStringList pageEntries{"", "Seitenbreite", "Ganze Seite"};

template <typename Child>
Child *child(const ZoomSlider &strip)
{
    return strip.findChild<Child *>();
}

QMenu *menu(const ZoomSlider &strip)
{
    return child<NVO::Link>(strip)->menu();
}

QAction *entry(const ZoomSlider &strip, const QString &text)
{
    for (QAction *action : menu(strip)->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

QStringList entries(const ZoomSlider &strip)
{
    QStringList texts;
    for (const QAction *action : menu(strip)->actions())
        texts.append(action->isSeparator() ? QString() : action->text());
    return texts;
}

/** The mouse on the entry called \a name, or on the small button if there is a "#" in front. */
void choose(ZoomSlider &strip, const QString &name)
{
    for (QPushButton *button : strip.findChildren<QPushButton *>()) {
        if ('#' + button->toolTip() == name)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    menu(strip)->popup(QPoint(10, 10));
    const QPoint pos = menu(strip)->actionGeometry(entry(strip, name)).center();
    QTest::mouseClick(menu(strip), Qt::LeftButton, {}, pos);
}

} // namespace

class TestZoomSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void start()
    {
        for (const int variant : {0, 1, 2}) {
            const auto guard = withVariant(variant);
            const ZoomSlider strip;
            QCOMPARE(QVector<int>({strip.minimum(), strip.value(), strip.maximum()}),
                     QVector<int>({10, 100, 200}));
            QCOMPARE(entries(strip), QStringList({"200%", "100%", "75%", "50%"}) + pageEntries);
            QCOMPARE(child<QSlider>(strip)->pageStep(), 10);
            QCOMPARE(strip.focusProxy(), child<QSlider>(strip));
            QCOMPARE(child<NVO::Link>(strip)->textAlignment(), Qt::AlignRight | Qt::AlignVCenter);
            const auto style = variant == 1 ? NVO::Link::FlyoutLight : NVO::Link::FlyoutDark;
            QCOMPARE(child<NVO::Link>(strip)->linkStyle(), style);
            for (const QWidget *part : strip.findChildren<QWidget *>()) {
                QCOMPARE(part->testAttribute(Qt::WA_LayoutUsesWidgetRect), part->window() == &strip);
                QCOMPARE(part->focusPolicy() != Qt::NoFocus, part == child<QSlider>(strip));
                if (part->cursor().shape() != Qt::PointingHandCursor || part == child<NVO::Link>(strip))
                    continue;
                const QAccessibleInterface *seen =
                    QAccessible::queryAccessibleInterface(const_cast<QWidget *>(part));
                QCOMPARE(seen->text(QAccessible::Name), part->toolTip().isEmpty() ? "Zoom" : part->toolTip());
                QCOMPARE(seen->text(QAccessible::Description), part->toolTip().isEmpty() ? "" : "Zoom");
            }
        }
    }

    /** What each operation does to the value, and what the application hears. */
    void operations()
    {
        struct Row
        {
            int from;
            QString operation;
            int value;
            QString heard;
        };
        for (const Row &row : QVector<Row>{{100, "75%", 75, "value"},
                                           {75, "75%", 75, ""},
                                           {100, "500%", 200, "value"},
                                           {100, "-3%", 10, "value"},
                                           {100, "Seitenbreite", 130, "value width"},
                                           {130, "Seitenbreite", 130, "width"},
                                           {100, "Ganze Seite", 90, "value page"},
                                           {90, "Ganze Seite", 90, "page"},
                                           {100, "#Seitenbreite", 100, "width"},
                                           {100, "#Seitenhöhe", 100, "page"},
                                           {195, "#Vergrößern", 200, "value"},
                                           {200, "#Vergrößern", 200, ""},
                                           {100, "#Verkleinern", 90, "value"}}) {
            ZoomSlider strip;
            strip.setPageWidthZoom(130);
            strip.setZoomLevels({75, 500, -3});
            strip.setValue(row.from);
            strip.show();
            QVERIFY(QTest::qWaitForWindowActive(&strip));
            child<QSlider>(strip)->clearFocus();
            SignalRecorder recorder;
            recorder.record(&strip, &ZoomSlider::valueChanged, "value");
            recorder.record(&strip, &ZoomSlider::pageWidthZoomTriggered, "width");
            recorder.record(&strip, &ZoomSlider::pageZoomTriggered, "page");
            choose(strip, row.operation);
            QCOMPARE(strip.value(), row.value);
            QCOMPARE(recorder.take().join(' '), row.heard);
            QCOMPARE(child<QSlider>(strip)->hasFocus(), !row.operation.startsWith("#Seiten"));

            strip.setMaximum(60);
            QCOMPARE(strip.value(), qMin(row.value, 60));
            auto *link = child<NVO::Link>(strip);
            QCOMPARE(link->text(), QString::number(strip.value()) + '%');
            QCOMPARE(QAccessible::queryAccessibleInterface(link)->text(QAccessible::Name),
                     "Zoom " + link->text());
        }
    }

    /** The text says what the value is by now. */
    void valueSetBySlot()
    {
        ZoomSlider strip;
        QStringList texts;
        const auto note = [&] { texts.append(child<NVO::Link>(strip)->text()); };
        connect(child<QSlider>(strip), &QSlider::valueChanged, &strip, note);
        connect(&strip, &ZoomSlider::valueChanged, &strip, [&] { strip.setValue(60); });
        strip.setValue(150);
        QCOMPARE(texts, QStringList({"60%", "60%"}));
    }

    void end()
    {
        auto strip = std::make_unique<ZoomSlider>();
        const QPointer<QSlider> slider(child<QSlider>(*strip));
        strip.reset();
        QVERIFY(!slider);
    }

    void levels()
    {
        ZoomSlider strip;
        const auto values = [&] {
            return QVector<int>{entry(strip, "Seitenbreite")->data().toInt(),
                                entry(strip, "Ganze Seite")->data().toInt()};
        };
        QCOMPARE(values(), QVector<int>({110, 90}));
        strip.setPageZoom(33);
        strip.setZoomLevels({});
        QCOMPARE(entries(strip), pageEntries);
        QCOMPARE(values(), QVector<int>({110, 33}));

        delete entry(strip, "Ganze Seite");
        strip.setPageZoom(44);
        strip.setZoomLevels({70, 70});
        QCOMPARE(entries(strip), QStringList({"70%", "70%"}) + pageEntries);
        QCOMPARE(values(), QVector<int>({110, 90}));

        delete menu(strip);
        strip.setPageWidthZoom(55);
        strip.setZoomLevels({60});
        QCOMPARE(entries(strip), QStringList("60%") + pageEntries);
    }

    /** Slots that rebuild the menu or end the strip while one of its parts emits. */
    void reentrance()
    {
        for (const QString operation : {"75%", "Seitenbreite", "Ganze Seite", "#Vergrößern"}) {
            QPointer<ZoomSlider> strip(new ZoomSlider);
            strip->show();
            SignalRecorder recorder;
            recorder.record(strip.data(), &ZoomSlider::pageWidthZoomTriggered, "page");
            recorder.record(strip.data(), &ZoomSlider::pageZoomTriggered, "page");
            connect(strip, &ZoomSlider::valueChanged, strip, [&] { strip->setZoomLevels({75}); });
            const QPointer<QAction> triggered(entry(*strip, operation));
            connect(menu(*strip), &QMenu::triggered, strip,
                    [&](QAction *action) { QCOMPARE(action, triggered.data()); });
            choose(*strip, operation);
            QCOMPARE(recorder.take().size(), pageEntries.contains(operation) ? 1 : 0);
            QCOMPARE(entries(*strip), QStringList("75%") + pageEntries);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!triggered);

            strip->setValue(150);
            connect(strip, &ZoomSlider::valueChanged, this, [&] { delete strip; });
            const QPointer<QMenu> goesOn(menu(*strip));
            choose(*strip, operation);
            QVERIFY(!strip && goesOn);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!goesOn);
        }
        for (const bool tracking : {true, false}) {
            QPointer<ZoomSlider> strip(new ZoomSlider);
            strip->setTracking(tracking);
            strip->show();
            connect(strip, &ZoomSlider::valueChanged, this, [&] { delete strip; });
            const QPointer<QSlider> goesOn(child<QSlider>(*strip));
            const QPoint handle(goesOn->width() / 2, 8);
            QTest::mousePress(goesOn, Qt::LeftButton, {}, handle);
            QMouseEvent move(QEvent::MouseMove, handle + QPoint(20, 0), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(goesOn, &move);
            QTest::mouseRelease(goesOn, Qt::LeftButton);
            QVERIFY(!strip && goesOn);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!goesOn);
        }
    }

    /** Slider, minus and plus go as soon as there is less room than the hint asks for. */
    void width()
    {
        const FontDeltaGuard guard;
        const ZoomSlider unseen;
        const int hintOfUnseen = unseen.sizeHint().width();
        const ZoomSlider alsoUnseen;
        QCOMPARE(unseen.minimumSizeHint(), alsoUnseen.minimumSizeHint());
        QWidget bar;
        ZoomSlider strip(&bar);
        const auto *slider = child<QSlider>(strip);
        bar.show();
        for (const int delta : {0, 5, -2}) {
            NVO::Css::instance().setFontDelta(delta);
            const int linkWidth = strip.fontMetrics().horizontalAdvance("X00%") + 16;
            const int hint = strip.sizeHint().width();
            const int least = strip.minimumSizeHint().width();
            QCOMPARE(strip.sizeHint().height(), qMax(16, child<NVO::Link>(strip)->sizeHint().height()));
            QCOMPARE(hintOfUnseen == hint, delta == 0);
            QCOMPARE(least, linkWidth + 20 + 16 + 20 + 16);
            QCOMPARE(hint - least, 20 + 16 + 10 + qMin(100, slider->sizeHint().width()) + 10 + 16 + 15);
            for (const int width : {hint, hint - 1, 3 * hint, least, 0, hint + 1}) {
                strip.resize(width, 16);
                QCOMPARE(slider->isVisible(), width >= hint);
                QCOMPARE(strip.sizeHint().width(), hint);
            }
        }
    }
};

QTEST_MAIN(TestZoomSlider)
#include "tst_zoomslider.moc"
