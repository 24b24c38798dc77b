#include "EventCounter.h"
#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/Font.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>

#include <QtTest>

#include <optional>

static NVO::Css &css = NVO::Css::instance();
static const NVO::Font &font = NVO::Font::instance();

class TestCss : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"Palette",
             "[Named]\nSILVER=#c0c1c2\nLINE=SILVER\nred=1, 2, 3\nblue=\"qgradient(0 red)\"\n"
             "GROUND=\"g(0 LINE, 1 rgb(1,2,3), SELF GROUND)\"\nFAINT=10, 20, 30, 40\nA=B_2\nB_2=#010203\n"},
            {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=16\n"},
            {"FontSizes", "[Element]\nButton=DEFAULT\nButton_HIGHLIGHT=HIGHLIGHT\n"},
            {"Button", "NVO--Button { color: LINE; } /* grün */\n"},
        });
        css.reset();
    }

    void everyElementHasItsResource()
    {
        const QString all =
            "Accordion AccordionBoxIndicator Button BookingGroup BookingWidget BookingStarter "
            "BookingTextItem ComboBox Completer CheckBox DateEdit Dialog DialogButton Flyout GroupBox "
            "FrameDialog IconButton InfoBox Label Link LineEdit LineEditWithButton NumericEdit "
            "MessageBox OverviewButton OverviewComboBox PeriodEdit PixmapToggle PushButton RadioToggle "
            "RibbonButton RibbonCheckBox RibbonGroupButton RibbonGroup RibbonGroupObject Ribbon "
            "RibbonLabel ScrollBar ScrollButton SelectionMessageBox Separator SegmentedControl TabBar "
            "TimeEdit Toggle ToolBarGroup ToolBarButton ToolBarHiddenButton ToolBarWidget ZoomSlider";
        const QStringList names = all.split(' ');
        for (const QString &name : names)
            m_theme->set(name, name.toLatin1() + " {}");
        css.reset();
        for (int i = 0; i < names.size(); ++i)
            QCOMPARE(css.css(NVO::Element(i)), names[i] + " {}");
        for (const int foreign : {-1, 50, INT_MAX, INT_MIN})
            QCOMPARE(css.css(NVO::Element(foreign)), QString());
    }

    void dialect()
    {
        const QList<QStringList> textsAndResults{
            {"LINE;FAINT;", "rgba(192,193,194,255);rgba(10,20,30,40);"},
            {"transparent;gold;", "rgba(0,0,0,0);rgba(255,215,0,255);"},
            {"red;blue;", "rgba(1,2,3,255);rgba(0,0,255,255);"}, // the palette, the names, gradients
            {"GROUND;", "g(0 rgba(192,193,194,255), 1 rgb(1,2,3), SELF GROUND);"},
            {"A;", "rgba(1,2,3,255);"}, // a value with a digit is no reference, but works in sheets
            {"NORMAL\n|BOLD|SEMIBOLD|SEMILIGHT|LIGHT|ITALIC|", font.normal() + "\n|" + font.bold() + '|'
                                                                   + font.semibold() + '|' + font.semilight()
                                                                   + '|' + font.light() + "|ITALIC|"},
            {"a[os=\"windows\"] b[os=\"mac\"] c[os=\"Windows\"];", "a b[os=\"mac\"] c[os=\"Windows\"];"},
            {"[os=\"win[os=\"windows\"]dows\"];", "[os=\"windows\"];"},
            {"COLOR_UNKNOWN SILVER-GRAY;LINE", "COLOR_UNKNOWN rgba(192,193,194,255)-GRAY;LINE"},
        };
        for (const QStringList &row : textsAndResults)
            QCOMPARE(css.replaceCss(row[0]), row[1]);
    }

    void cacheAndReset()
    {
        const FontDeltaGuard guard;
        const NVO::Button button;
        const auto sheets = [] { return css.css(NVO::ElementButton) + css.css(NVO::ElementLabel); };
        const QString before = "NVO--Button { color: rgba(192,193,194,255); } /* grün */\n";
        QCOMPARE(sheets(), before);
        m_theme->set("Button", "a { color: SILVER; }");
        m_theme->set("Label", "now there;");
        m_theme->set("Palette", "[Named]\nSILVER=#000001\n");
        NVO::Palette::instance().setNamedColors({{"SILVER", Qt::white}});
        QCOMPARE(sheets(), before);
        QCOMPARE(css.replaceCss("SILVER;"), QString("rgba(192,193,194,255);"));

        css.reset();
        QCOMPARE(sheets(), QString("a { color: rgba(0,0,1,255); }now there;"));
        QCOMPARE(button.styleSheet(), before);
        css.setFontDelta(1);
        QCOMPARE(button.styleSheet(), QString("a { color: rgba(0,0,1,255); }"));
    }

    void importsBehindTheText()
    {
        const QByteArray sheet =
            "@import \":/Base\"; @import \"\"; @import url(:/Missing); @import url(:/Base); a {}\n";
        m_theme->set("Base", "@import \":/Deeper\"; b { NORMAL\n}\n");
        m_theme->set("Deeper", "never read");
        m_theme->set("Button", sheet);
        m_theme->set("Label", sheet + "} a { color: FAINT }}} {"); // nothing that Qt can parse
        css.reset();
        const QString base = "@import \":/Deeper\"; b { " + font.normal() + "\n}\n";
        QCOMPARE(css.css(NVO::ElementButton), sheet + base + base);
        QCOMPARE(css.css(NVO::ElementLabel), sheet + "} a { color: rgba(10,20,30,40) }}} {");
    }

    void imports()
    {
        const QMap<QString, QStringList> sheets{{"@import \":/x\";\n@IMPORT url(:/y);\na {}", {":/x", ":/y"}},
                                                {"\\40import \":/x\"; a {}", {":/x"}},
                                                {"\\40 import \":/x\"; a {}", {}},
                                                {"/* @import \":/x\"; */ a { image: url(:/close@2x); }", {}}};
        for (auto sheet = sheets.begin(); sheet != sheets.end(); ++sheet)
            QCOMPARE(NVO::Css::imports(sheet.key()), *sheet);
    }

    void richText()
    {
        const QString span = "<span style=\"" + font.semibold() + "\">";
        QCOMPARE(
            css.replaceBoldTags("<b>1</b><strong>2</strong><B>3</B><b class=x>4</b></stro</b>ng><<strong>b>"),
            span + "1</span>" + span + "2</span><B>3</B><b class=x>4</span></stro</span>ng><" + span + "b>");
        QCOMPARE(css.font(), "body {\n  " + font.normal() + "\n}\nb {\n  " + font.bold() + "\n}\n");
    }

    void fontDeltaReachesEveryWidgetOnce()
    {
        const FontDeltaGuard guard;
        EventCounter<QWidget> window;
        EventCounter<NVO::Button> button;
        for (int i = 0; i < 30; ++i) {
            auto *one = new EventCounter<QWidget>(&window);
            auto *other = new EventCounter<QWidget>(&window);
            one->deadly = other->deadly = QEvent::ApplicationFontChange;
            one->victim = other; // whoever comes first is the end of the other
            other->victim = one;
        }
        css.setFontDelta(3);
        css.setFontDelta(3);
        QCOMPARE(window.findChildren<QWidget *>().size(), 30);
        QCOMPARE(window.counts[QEvent::ApplicationFontChange], 1);
        QCOMPARE(button.counts[QEvent::ApplicationFontChange], 1);
        for (const int delta : {0, 2, -3, 0, 40, -1000, INT_MIN, INT_MAX}) {
            const int before = button.font().pixelSize();
            css.setFontDelta(delta);
            const int wanted = delta == INT_MAX ? INT_MAX : 13 + delta;
            // Without any size nothing is applied.
            QCOMPARE(button.font().pixelSize(), delta > -13 ? wanted : before);
        }
    }

    void fontDeltaLeavesTheApplicationFont()
    {
        const QFont before = QApplication::font();
        const QFont own("Own", 31);
        const QFont other("Other", 32);
        QApplication::setFont(own);
        const QByteArrayList classes{"Button", "Label",        "Link",
                                     "Ribbon", "RibbonButton", "RibbonGroupButton"};
        for (const QByteArray &name : classes + QByteArrayList{"LinkButton", "CheckBox"})
            QApplication::setFont(other, "NVO::" + name);
        css.setFontDelta(1);
        css.setFontDelta(0);
        QCOMPARE(QApplication::font(), own);
        for (const QByteArray &name : classes)
            QCOMPARE(QApplication::font("NVO::" + name), own);
        QCOMPARE(QApplication::font("NVO::CheckBox"), other);
        QApplication::setFont(before);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestCss)
#include "tst_css.moc"
