#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Font.h>

#include <QtTest>

static const NVO::Font &font = NVO::Font::instance();

class TestFont : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyBelongsToItsElement()
    {
        const QList<int> elements{
            NVO::ElementButton,         NVO::ElementIconButton,        NVO::ElementLink,
            NVO::ElementOverviewButton, NVO::ElementPushButton,        NVO::ElementRibbonButton,
            NVO::ElementRibbonCheckBox, NVO::ElementRibbonGroupButton, NVO::ElementRibbon,
            NVO::ElementRibbonLabel,    NVO::ElementSegmentedControl,  NVO::ElementToolBarButton};
        // The keys of these elements, in the same order, and some that nobody reads.
        const QByteArray all =
            "Button IconButton Link OverviewButton PushButton RibbonButton RibbonCheckBox RibbonGroupButton "
            "Ribbon RibbonLabel SegmentedControl ToolBarButton Button_SMALL IconButton_SMALL Link_SMALL "
            "Dialog";
        const QByteArrayList keys = all.split(' ');
        TestResources resources({{"Font", "[Size]\nDEFAULT=12\nLARGE=30\n"}});
        for (const QByteArray &set : keys) {
            resources.set("FontSizes", "[Element]\n" + set + "=LARGE\n");
            for (int element = -1; element <= 50; ++element) {
                const int row = elements.indexOf(element);
                for (const QByteArray variant : {"", "_SMALL"}) {
                    const QByteArray key = keys.value(row) + (row == 0 || row == 1 ? variant : QByteArray());
                    const int expected = row < 0 ? 12 : key == set ? 30 : 0;
                    QCOMPARE(font.fontSizeByElement(NVO::Element(element), variant.mid(1)), expected);
                }
            }
        }
    }

    void steps()
    {
        const FontDeltaGuard guard;
        const auto size = [] { return font.scaledFontSizeByElement(NVO::ElementLink, QString()); };
        QCOMPARE(size(), 0); // no tables
        const QByteArray scale =
            "[Size]\nSMALL=1\nDEFAULT=2\nHIGHLIGHT=3\nHEADLINECONTENT=4\nHEADLINESMALL=5\n";
        TestResources resources({{"Font", scale + "HEADLINEMEDIUM=6\nHEADLINEBIG=7\nLARGE=8\n=9\n"}});
        for (int step = -1; step < 9; ++step)
            QCOMPARE(font.fontSize(NVO::Font::FontSize(step)), step < 8 ? step + 1 : 0);
        for (const QByteArray none : {"Link", "Link=", "Link=nonsense", "Link=small"}) {
            resources.set("FontSizes", "[Element]\n" + none + '\n');
            QCOMPARE(size(), 0);
        }
        resources.set("FontSizes", "[Element]\nLink=SMALL\n");
        NVO::Css::instance().setFontDelta(2);
        QCOMPARE(size(), 3);
        resources.set("Font", "[Size]\nSMALL=8\n"); // seen at once
        QCOMPARE(size(), 10);
        resources.set("Font", "[Size]\nSMALL=big\n");
        QCOMPARE(size(), 2);
    }

    void styleTexts()
    {
        const QString rest =
            "',Frutiger,'Frutiger Linotype','Dejavu Sans','Helvetica Neue',Arial,sans-serif;font-weight:";
        QCOMPARE(font.normal(), "font-family:'Segoe UI" + rest + "400;font-style:normal;");
        QCOMPARE(font.bold(), QString("font-family:'Helvetica Neue',Arial,sans-serif;font-weight:700;"));
        QCOMPARE(font.semibold(), "font-family:'Segoe UI Semibold" + rest + "500;");
        QCOMPARE(font.semilight(), "font-family:'Segoe UI Semilight" + rest + "400;");
        QCOMPARE(font.light(), "font-family:'Segoe UI Light" + rest + "300;");
        QCOMPARE(font.italic(), "font-family:'Segoe UI Bold" + rest + "400;font-style:italic;");
    }
};

QTEST_MAIN(TestFont)
#include "tst_font.moc"
