#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Font.h>

#include <QtTest>

using NVO::Font;

class TestFont : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesByElement_data();
    void sizesByElement();
    void sizeOfEveryStep();
    void changesAreSeenAtOnce();
    void missingTables();
    void styleTexts();
};

void TestFont::sizesByElement_data()
{
    QTest::addColumn<int>("element");
    QTest::addColumn<QString>("variant");
    QTest::addColumn<int>("size");

    QTest::newRow("plain key") << int(NVO::ElementButton) << "" << 16;
    QTest::newRow("key with variant") << int(NVO::ElementButton) << "HIGHLIGHT" << 20;
    QTest::newRow("icon button with variant") << int(NVO::ElementIconButton) << "SMALL" << 10;
    QTest::newRow("variant without a key") << int(NVO::ElementButton) << "BIG" << 0;
    QTest::newRow("variant is ignored elsewhere") << int(NVO::ElementLink) << "SMALL" << 12;
    QTest::newRow("element without a row") << int(NVO::ElementDialog) << "SMALL" << 12;
    QTest::newRow("foreign element") << -7 << "" << 12;
    QTest::newRow("key missing") << int(NVO::ElementRibbon) << "" << 0;
    QTest::newRow("no step") << int(NVO::ElementRibbonLabel) << "" << 0;
    QTest::newRow("step without pixels") << int(NVO::ElementPushButton) << "" << 0;
    QTest::newRow("pixels that are no number") << int(NVO::ElementToolBarButton) << "" << 0;
}

void TestFont::sizesByElement()
{
    const TestResources resources(
        {{"Font", "[Size]\nSMALL=10\nDEFAULT=12\nHIGHLIGHT=16\nHEADLINESMALL=20\nHEADLINEBIG=big\n"},
         {"FontSizes", "[Element]\nButton=HIGHLIGHT\nButton_HIGHLIGHT=HEADLINESMALL\n"
                       "IconButton_SMALL=SMALL\nLink=DEFAULT\nLink_SMALL=SMALL\nDialog=LARGE\n"
                       "RibbonLabel=nonsense\nPushButton=LARGE\nToolBarButton=HEADLINEBIG\n"}});
    const FontDeltaGuard guard;
    QFETCH(int, element);
    QFETCH(QString, variant);
    QFETCH(int, size);
    NVO::Css::instance().setFontDelta(2);
    QCOMPARE(Font::instance().fontSizeByElement(NVO::Element(element), variant), size);
    QCOMPARE(Font::instance().scaledFontSizeByElement(NVO::Element(element), variant), size + 2);
}

void TestFont::sizeOfEveryStep()
{
    const TestResources resources(
        {{"Font", "[Size]\nSMALL=1\nDEFAULT=2\nHIGHLIGHT=3\nHEADLINECONTENT=4\nHEADLINESMALL=5\n"
                  "HEADLINEMEDIUM=6\nHEADLINEBIG=7\nLARGE=8\n=9\n"}});
    for (int step = Font::SMALL; step <= Font::LARGE; ++step)
        QCOMPARE(Font::instance().fontSize(Font::FontSize(step)), step + 1);
    QCOMPARE(Font::instance().fontSize(Font::FontSize(-1)), 0);
    QCOMPARE(Font::instance().fontSize(Font::FontSize(8)), 0);
}

void TestFont::changesAreSeenAtOnce()
{
    TestResources resources(
        {{"Font", "[Size]\nDEFAULT=11\nSMALL=10\n"}, {"FontSizes", "[Element]\nLink=DEFAULT\n"}});
    const auto size = [] { return Font::instance().scaledFontSizeByElement(NVO::ElementLink, QString()); };
    QCOMPARE(size(), 11);
    resources.set("Font", "[Size]\nDEFAULT=19\nSMALL=10\n"); // same size, same time
    QCOMPARE(size(), 19);
    resources.set("FontSizes", "[Element]\nLink=SMALL\n");
    QCOMPARE(size(), 10);
    resources.remove("Font");
    QCOMPARE(size(), 0);
}

void TestFont::missingTables()
{
    for (int element = 0; element < 50; ++element)
        QCOMPARE(Font::instance().fontSizeByElement(NVO::Element(element), "SMALL"), 0);
}

void TestFont::styleTexts()
{
    const Font &font = Font::instance();
    QCOMPARE(
        font.normal(),
        QString("font-family:'Segoe UI',Frutiger,'Frutiger Linotype','Dejavu Sans','Helvetica Neue',Arial,"
                "sans-serif;font-weight:400;font-style:normal;"));
    QCOMPARE(font.bold(), QString("font-family:'Helvetica Neue',Arial,sans-serif;font-weight:700;"));
    QCOMPARE(
        font.italic(),
        QString("font-family:'Segoe UI Bold',Frutiger,'Frutiger Linotype','Dejavu Sans','Helvetica Neue',"
                "Arial,sans-serif;font-weight:400;font-style:italic;"));
    const QString rest = QStringLiteral(
        "',Frutiger,'Frutiger Linotype','Dejavu Sans','Helvetica Neue',Arial,sans-serif;font-weight:");
    QCOMPARE(font.semibold(), "font-family:'Segoe UI Semibold" + rest + "500;");
    QCOMPARE(font.semilight(), "font-family:'Segoe UI Semilight" + rest + "400;");
    QCOMPARE(font.light(), "font-family:'Segoe UI Light" + rest + "300;");
}

QTEST_MAIN(TestFont)
#include "tst_font.moc"
