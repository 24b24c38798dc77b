#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>

#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using NVO::Css;

namespace {

constexpr int elementCount = 50;

/** Counts the font events of a widget and, if told so, deletes another one at the first. */
class FontListener : public QWidget
{
public:
    using QWidget::QWidget;

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationFontChange) {
            ++count;
            delete victim;
        }
        return QWidget::event(event);
    }

    int count = 0;
    QPointer<QWidget> victim;
};

} // namespace

class TestCss : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyElementHasItsResource();
    void elementsOutOfRange();
    void dialect_data();
    void dialect();
    void cacheAndReset();
    void importsBehindTheText();
    void imports_data();
    void imports();
    void unparsableSheetIsStillExpanded();
    void boldTags();
    void richTextSheet();
    void fontDeltaReachesEveryWidgetOnce();
    void fontDeltaOnLiveWidgets();
    void liveWidgetsKeepTheirSheet();

private:
    std::unique_ptr<TestResources> m_theme;
};

void TestCss::init()
{
    m_theme = std::make_unique<TestResources>(QMap<QString, QByteArray>{
        {"Palette",
         "[Named]\nBASECOLOR_SILVER=#c0c1c2\nCOLOR_DEKOLINE=BASECOLOR_SILVER\nred=1, 2, 3\n"
         "blue=\"qgradient(0 red)\"\nCOLOR_GROUND=\"g(0 COLOR_DEKOLINE, 1 rgb(1,2,3), SELF COLOR_GROUND)\"\n"
         "COLOR_FAINT=10, 20, 30, 40\nA=COLOR_2\nCOLOR_2=#010203\n"},
        {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=16\n"},
        {"FontSizes", "[Element]\nButton=DEFAULT\nButton_HIGHLIGHT=HIGHLIGHT\n"},
        {"Button", "NVO--Button { color: COLOR_DEKOLINE; }\n"},
    });
    Css::instance().reset();
}

void TestCss::cleanup()
{
    m_theme.reset();
    Css::instance().reset();
}

void TestCss::everyElementHasItsResource()
{
    const QStringList names{"Accordion",
                            "AccordionBoxIndicator",
                            "Button",
                            "BookingGroup",
                            "BookingWidget",
                            "BookingStarter",
                            "BookingTextItem",
                            "ComboBox",
                            "Completer",
                            "CheckBox",
                            "DateEdit",
                            "Dialog",
                            "DialogButton",
                            "Flyout",
                            "GroupBox",
                            "FrameDialog",
                            "IconButton",
                            "InfoBox",
                            "Label",
                            "Link",
                            "LineEdit",
                            "LineEditWithButton",
                            "NumericEdit",
                            "MessageBox",
                            "OverviewButton",
                            "OverviewComboBox",
                            "PeriodEdit",
                            "PixmapToggle",
                            "PushButton",
                            "RadioToggle",
                            "RibbonButton",
                            "RibbonCheckBox",
                            "RibbonGroupButton",
                            "RibbonGroup",
                            "RibbonGroupObject",
                            "Ribbon",
                            "RibbonLabel",
                            "ScrollBar",
                            "ScrollButton",
                            "SelectionMessageBox",
                            "Separator",
                            "SegmentedControl",
                            "TabBar",
                            "TimeEdit",
                            "Toggle",
                            "ToolBarGroup",
                            "ToolBarButton",
                            "ToolBarHiddenButton",
                            "ToolBarWidget",
                            "ZoomSlider"};
    QCOMPARE(names.size(), elementCount);
    for (const QString &name : names)
        m_theme->set(name, "sheet of " + name.toLatin1() + ";");
    Css::instance().reset();
    for (int i = 0; i < elementCount; ++i)
        QCOMPARE(Css::instance().css(NVO::Element(i)), QStringLiteral("sheet of %1;").arg(names[i]));
}

void TestCss::elementsOutOfRange()
{
    for (const int value : {-1, elementCount, INT_MAX, INT_MIN})
        QCOMPARE(Css::instance().css(NVO::Element(value)), QString());
}

void TestCss::dialect_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const QString normal = NVO::Font::instance().normal();
    QTest::newRow("colour") << "COLOR_DEKOLINE;"
                            << "rgba(192,193,194,255);";
    QTest::newRow("alpha") << "COLOR_FAINT;"
                           << "rgba(10,20,30,40);";
    QTest::newRow("colour name") << "transparent;gold;"
                                 << "rgba(0,0,0,0);rgba(255,215,0,255);";
    QTest::newRow("palette colour beats colour name") << "red;"
                                                      << "rgba(1,2,3,255);";
    QTest::newRow("colour name beats gradient") << "blue;"
                                                << "rgba(0,0,255,255);";
    QTest::newRow("gradient with words, its own among them")
        << "COLOR_GROUND;"
        << "g(0 rgba(192,193,194,255), 1 rgb(1,2,3), SELF COLOR_GROUND);";
    QTest::newRow("reference with a digit works in sheets") << "A;"
                                                            << "rgba(1,2,3,255);";
    QTest::newRow("font words") << "NORMAL\n}" << normal + "\n}";
    QTest::newRow("all font words") << "BOLD SEMIBOLD SEMILIGHT LIGHT ITALIC "
                                    << QStringList{NVO::Font::instance().bold(),
                                                   NVO::Font::instance().semibold(),
                                                   NVO::Font::instance().semilight(),
                                                   NVO::Font::instance().light(), "ITALIC "}
                                           .join(' ');
    QTest::newRow("os") << "a[os=\"windows\"] b[os=\"mac\"] c[os=\"Windows\"];"
                        << "a b[os=\"mac\"] c[os=\"Windows\"];";
    QTest::newRow("os is deleted once, not again") << "[os=\"win[os=\"windows\"]dows\"];"
                                                   << "[os=\"windows\"];";
    QTest::newRow("word at the end") << "COLOR_DEKOLINE"
                                     << "COLOR_DEKOLINE";
    QTest::newRow("unknown") << "COLOR_UNKNOWN BASECOLOR_SILVER-GRAY;"
                             << "COLOR_UNKNOWN rgba(192,193,194,255)-GRAY;";
}

void TestCss::dialect()
{
    QFETCH(QString, text);
    QTEST(Css::instance().replaceCss(text), "expected");
}

void TestCss::cacheAndReset()
{
    const QString before = Css::instance().css(NVO::ElementButton);
    QCOMPARE(before, QStringLiteral("NVO--Button { color: rgba(192,193,194,255); }\n"));
    QCOMPARE(Css::instance().css(NVO::ElementLabel), QString());

    m_theme->set("Button", "now BASECOLOR_SILVER;");
    m_theme->set("Label", "now there;");
    m_theme->set("Palette", "[Named]\nBASECOLOR_SILVER=#000001\n");
    NVO::Palette::instance().setNamedColors({{"BASECOLOR_SILVER", Qt::white}});
    QCOMPARE(Css::instance().css(NVO::ElementButton), before);
    QCOMPARE(Css::instance().css(NVO::ElementLabel), QString());
    QCOMPARE(Css::instance().replaceCss("BASECOLOR_SILVER;"), QStringLiteral("rgba(192,193,194,255);"));

    Css::instance().reset();
    QCOMPARE(Css::instance().css(NVO::ElementButton), QStringLiteral("now rgba(0,0,1,255);"));
    QCOMPARE(Css::instance().css(NVO::ElementLabel), QStringLiteral("now there;"));
}

void TestCss::importsBehindTheText()
{
    m_theme->set("Base", "@import \":/Deeper\";\nb { NORMAL\n}\n");
    m_theme->set("Deeper", "never read");
    m_theme->set("Button", "@import \":/Base\";\n@import url(:/Missing);\n@import url(:/Base);\na {}\n");
    Css::instance().reset();
    const QString base = "@import \":/Deeper\";\nb { " + NVO::Font::instance().normal() + "\n}\n";
    QCOMPARE(Css::instance().css(NVO::ElementButton),
             "@import \":/Base\";\n@import url(:/Missing);\n@import url(:/Base);\na {}\n" + base + base);
}

void TestCss::imports_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("none") << "a { color: red; }" << QStringList();
    QTest::newRow("several") << "@import \":/x\";\n@import url(:/y);\na {}" << QStringList{":/x", ":/y"};
    QTest::newRow("upper case") << "@IMPORT \":/x\"; a {}" << QStringList{":/x"};
    QTest::newRow("in a comment") << "/* @import \":/x\"; */ a {}" << QStringList();
    QTest::newRow("in a name") << "a { image: url(:/close@2x); }" << QStringList();
    QTest::newRow("unparsable") << "@import \":/x\"; a { color: }}} {" << QStringList();
}

void TestCss::imports()
{
    QFETCH(QString, text);
    QTEST(Css::imports(text), "expected");
}

void TestCss::unparsableSheetIsStillExpanded()
{
    m_theme->set("Button", "@import \":/Font\"; a { color: COLOR_DEKOLINE }}} {");
    Css::instance().reset();
    QCOMPARE(Css::instance().css(NVO::ElementButton),
             QStringLiteral("@import \":/Font\"; a { color: rgba(192,193,194,255) }}} {"));
}

void TestCss::boldTags()
{
    const QString span = "<span style=\"" + NVO::Font::instance().semibold() + "\">";
    QCOMPARE(Css::instance().replaceBoldTags("<b>1</b><strong>2</strong><B>3</B><b class=x>4</b>"),
             span + "1</span>" + span + "2</span><B>3</B><b class=x>4</span>");
    QCOMPARE(Css::instance().replaceBoldTags("</stro</b>ng><<strong>b>"), "</stro</span>ng><" + span + "b>");
}

void TestCss::richTextSheet()
{
    QCOMPARE(Css::instance().font(), "body {\n  " + NVO::Font::instance().normal() + "\n}\nb {\n  "
                                         + NVO::Font::instance().bold() + "\n}\n");
}

void TestCss::fontDeltaReachesEveryWidgetOnce()
{
    const FontDeltaGuard guard;
    FontListener window;
    FontListener child(&window);
    auto *victim = new FontListener(&window);
    auto *killer = new FontListener;
    killer->victim = victim;

    Css::instance().setFontDelta(3);
    QCOMPARE(Css::instance().fontDelta(), 3);
    QCOMPARE(window.count, 1);
    QCOMPARE(child.count, 1);
    QCOMPARE(killer->count, 1);

    Css::instance().setFontDelta(3);
    QCOMPARE(window.count, 1);
    delete killer;
}

void TestCss::fontDeltaOnLiveWidgets()
{
    const FontDeltaGuard guard;
    NVO::Button button;
    NVO::Button backstage;
    backstage.setButtonStyle(NVO::Button::Backstage);
    NVO::Label label("Text");
    QFont own = label.font();
    own.setPixelSize(20);
    label.setFont(own);

    const auto sizes = [&] {
        return QList<int>{button.font().pixelSize(), backstage.font().pixelSize(), label.font().pixelSize()};
    };
    QCOMPARE(sizes(), (QList<int>{13, 16, 20}));
    for (const int delta : {2, -3, 0, 40}) {
        Css::instance().setFontDelta(delta);
        QCOMPARE(sizes(), (QList<int>{13 + delta, 16 + delta, 20 + delta}));
    }
    Css::instance().setFontDelta(-1000); // no size at all: nothing is applied
    QCOMPARE(sizes(), (QList<int>{53, 56, 60}));
}

void TestCss::liveWidgetsKeepTheirSheet()
{
    const FontDeltaGuard guard;
    NVO::Button button;
    const QString before = button.styleSheet();
    m_theme->set("Button", "NVO--Button { color: #123456; }\n");
    Css::instance().reset();
    QCOMPARE(button.styleSheet(), before);
    Css::instance().setFontDelta(1);
    QCOMPARE(button.styleSheet(), QStringLiteral("NVO--Button { color: #123456; }\n"));
}

QTEST_MAIN(TestCss)
#include "tst_css.moc"
