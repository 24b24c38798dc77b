#include "EventCounter.h"
#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include "theme/StyleSupport.h"

#include <nvo/Button.h>

#include <QLabel>
#include <QtTest>

namespace StyleSupport = NVO::StyleSupport;

class TestStyleSupport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheetIsSetOnce()
    {
        const TestResources theme({{"Button", "* { color: red; }\n"}});
        NVO::Css::instance().reset();
        EventCounter<NVO::Button> made;
        made.show();
        QCOMPARE(made.counts[QEvent::Polish], 1); // comes to subclasses, that is after the constructor
        EventCounter<QPushButton> button;
        StyleSupport::applyStyle(&button, NVO::ElementButton, "A");
        button.show();
        StyleSupport::applyStyle(&button, NVO::ElementButton, "A");
        QCOMPARE(button.counts[QEvent::StyleChange], 0); // neither before the first show nor without a change
        StyleSupport::applyStyle(&button, NVO::ElementButton, "B");
        QCOMPARE(button.counts[QEvent::StyleChange], 1);
        QCOMPARE(StyleSupport::enumKey(NVO::Button::ButtonStyle(99)), QString());
    }

    void sameLookAsPlainSheet()
    {
        // A widget that gets its sheet through us looks like one that was given the same sheet by hand.
        const QByteArray sheet =
            "* { border: 2px solid black; padding: 3px 7px; font-weight: 700; min-width: 40px; }"
            "*[style=\"X\"] { color: blue; background: yellow; margin: 1px; }\n";
        const TestResources theme({{"Button", sheet},
                                   {"Font", "[Size]\nDEFAULT=17\n"},
                                   {"FontSizes", "[Element]\nButton=DEFAULT\n"}});
        NVO::Css::instance().reset();
        QPushButton ours("Text");
        StyleSupport::applyStyle(&ours, NVO::ElementButton, "X");
        QPushButton plain("Text");
        plain.setProperty("style", "X");
        plain.setStyleSheet(NVO::Css::instance().css(NVO::ElementButton));
        StyleSupport::setPixelSize(&plain, 17);
        for (const int none : {0, -4})
            StyleSupport::setPixelSize(&ours, none);
        QCOMPARE(ours.grab().toImage(), plain.grab().toImage());
        QCOMPARE(ours.font(), plain.font());
    }

    void repolishReachesDescendants()
    {
        EventCounter<QWidget> window;
        window.setStyleSheet(
            "*[mood=\"glad\"] QLabel { color: #0f0; } QLabel[mood=\"sad\"] { color: #00f; }");
        EventCounter<QWidget> middle(&window);
        EventCounter<QLabel> label(&middle);
        const auto repolished = [&](const QList<QWidget *> &widgets) {
            for (auto *counts : {&window.counts, &middle.counts, &label.counts})
                counts->clear();
            StyleSupport::repolish(widgets);
            constexpr auto type = QEvent::StyleChange;
            return QList<int>{window.counts[type], middle.counts[type], label.counts[type]};
        };
        QCOMPARE(repolished({&window}), (QList<int>{0, 0, 0})); // is still to be polished
        window.show();
        const auto color = [&label] { return label.palette().color(QPalette::WindowText); };
        QVERIFY(StyleSupport::isStyleSheetStyled(&label));
        window.setProperty("mood", "glad");
        QCOMPARE(repolished({&window}), (QList<int>{1, 1, 1}));
        QCOMPARE(color(), QColor(Qt::green));
        window.setProperty("mood", QVariant());
        QCOMPARE(repolished({&window, &middle}), (QList<int>{1, 2, 2}));
        QCOMPARE(color(), QPalette().color(QPalette::WindowText));
        label.setProperty("mood", "sad");
        QCOMPARE(repolished({&label}), (QList<int>{0, 0, 1}));
        QCOMPARE(color(), QColor(Qt::blue));
    }

    void repolishAmongWidgetsThatDie()
    {
        const QPointer<QWidget> window = new QWidget;
        QList<EventCounter<QWidget> *> children;
        for (int i = 0; i < 41; ++i)
            children.append(new EventCounter<QWidget>(window));
        window->show();
        for (int i = 0; i < 41; ++i) {
            children[i]->deadly = QEvent::StyleChange;
            children[i]->victim = children[i == 40 ? 40 : i ^ 1]; // each other, the last one itself
        }
        StyleSupport::repolish(window);
        QCOMPARE(window->children().size(), 20);
        auto *last = new EventCounter<QWidget>(window);
        last->show();
        last->deadly = QEvent::StyleChange;
        last->victim = window;
        StyleSupport::repolish(window);
        QVERIFY(window.isNull());
    }
};

QTEST_MAIN(TestStyleSupport)
#include "tst_stylesupport.moc"
