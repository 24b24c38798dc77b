#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include "theme/StyleSupport.h"

#include <nvo/Button.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace StyleSupport = NVO::StyleSupport;

namespace {

/** Knows which events it was sent; has no meta-object of its own, like most subclasses in applications. */
template <typename Base>
class EventCounter : public Base
{
public:
    using Base::Base;

    bool event(QEvent *event) override
    {
        ++counts[event->type()];
        return Base::event(event);
    }

    QHash<int, int> counts;
};

} // namespace

class TestStyleSupport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enumKeys();
    void sheetIsSetOnce();
    void subclassIsPolishedAsEver();
    void sameLookAsPlainSheet();
    void fontSizes();
    void repolishReachesDescendants();
};

void TestStyleSupport::enumKeys()
{
    QCOMPARE(StyleSupport::enumKey(NVO::Button::FlyoutCloseDark), QString("FlyoutCloseDark"));
    QCOMPARE(StyleSupport::enumKey(NVO::Button::ButtonStyle(99)), QString());
    QCOMPARE(StyleSupport::enumKey(QPalette::WindowText), QString("WindowText"));
}

void TestStyleSupport::sheetIsSetOnce()
{
    const TestResources theme({{"Button", "QPushButton[style=\"B\"] { padding-left: 30px; }\n"}});
    NVO::Css::instance().reset();
    EventCounter<QPushButton> button;
    StyleSupport::applyStyle(&button, NVO::ElementButton, "A");
    button.show();
    QVERIFY(StyleSupport::isStyleSheetStyled(&button));
    const int width = button.sizeHint().width();

    button.counts.clear();
    StyleSupport::applyStyle(&button, NVO::ElementButton, "A");
    QCOMPARE(button.counts[QEvent::StyleChange], 0);
    StyleSupport::applyStyle(&button, NVO::ElementButton, "B");
    QCOMPARE(button.counts[QEvent::StyleChange], 1);
    QVERIFY(button.sizeHint().width() > width);
    QVERIFY(!StyleSupport::isStyleSheetStyled(std::make_unique<QWidget>().get()));
}

void TestStyleSupport::subclassIsPolishedAsEver()
{
    const TestResources theme({{"Button", "NVO--Button { color: #010203; }\n"}});
    NVO::Css::instance().reset();
    EventCounter<NVO::Button> button;
    QCOMPARE(button.counts[QEvent::Polish], 0);
    button.ensurePolished();
    QCOMPARE(button.counts[QEvent::Polish], 1);
    QCOMPARE(button.palette().color(QPalette::ButtonText), QColor(1, 2, 3));
    button.show();
    QCOMPARE(button.counts[QEvent::Polish], 1);
}

void TestStyleSupport::sameLookAsPlainSheet()
{
    // A widget that gets its sheet through us looks like one that was given the same sheet by hand.
    const QByteArray sheet =
        "QPushButton { border: 2px solid black; padding: 3px 7px; font-weight: 700; min-width: 40px; }\n"
        "QPushButton[style=\"X\"] { color: blue; background: yellow; margin: 1px; }\n";
    const TestResources theme(
        {{"Button", sheet}, {"Font", "[Size]\nDEFAULT=17\n"}, {"FontSizes", "[Element]\nButton=DEFAULT\n"}});
    NVO::Css::instance().reset();

    QPushButton ours("Text");
    StyleSupport::applyStyle(&ours, NVO::ElementButton, "X");

    QPushButton plain("Text");
    plain.setProperty("style", "X");
    plain.setStyleSheet(NVO::Css::instance().css(NVO::ElementButton));
    QFont font = plain.font();
    font.setPixelSize(17);
    plain.setFont(font);

    ours.resize(120, 40);
    plain.resize(120, 40);
    QCOMPARE(ours.grab().toImage(), plain.grab().toImage());
    QCOMPARE(ours.sizeHint(), plain.sizeHint());
    QCOMPARE(ours.font(), plain.font());
}

void TestStyleSupport::fontSizes()
{
    QLabel label;
    StyleSupport::setPixelSize(&label, 23);
    QCOMPARE(label.font().pixelSize(), 23);
    StyleSupport::setPixelSize(&label, 0);
    StyleSupport::setPixelSize(&label, -4);
    StyleSupport::applyFontSize(&label, NVO::ElementButton); // no tables: size 0
    QCOMPARE(label.font().pixelSize(), 23);
}

void TestStyleSupport::repolishReachesDescendants()
{
    QWidget window;
    window.setStyleSheet(
        "QWidget[mood=\"glad\"] QLabel { color: #00ff00; } QLabel[mood=\"sad\"] { color: #0000ff; }");
    QLabel child(&window);
    auto *middle = new QWidget(&window);
    QLabel grandchild(middle);
    window.show();
    const auto colors = [&] {
        return QList<QColor>{child.palette().color(QPalette::WindowText),
                             grandchild.palette().color(QPalette::WindowText)};
    };
    const QColor before = colors().first();

    window.setProperty("mood", "glad");
    StyleSupport::repolish(&window);
    QCOMPARE(colors(), (QList<QColor>{QColor("#00ff00"), QColor("#00ff00")}));

    window.setProperty("mood", QVariant());
    grandchild.setProperty("mood", "sad");
    StyleSupport::repolish({&window, &grandchild});
    QCOMPARE(colors(), (QList<QColor>{before, QColor("#0000ff")}));
}

QTEST_MAIN(TestStyleSupport)
#include "tst_stylesupport.moc"
