#include "TestCase.h"

#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Palette.h>

#include <QImage>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

#include <private/qcssparser_p.h>

/** Whether the sample themes hold all that the library asks for, in a form that it can use. */
class TestSampleThemes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();
    void images_data();
    void images();
    void colorTokens();
    void sameVocabulary();
    void typeScale();
    void sheets_data();
    void sheets();

private:
    QString m_theme;
};

void TestSampleThemes::initTestCase_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("classic") << QStringLiteral(NVO_THEME_DIR "/nvo-classic.rcc");
    QTest::newRow("modern") << QStringLiteral(NVO_THEME_DIR "/nvo-modern.rcc");
}

void TestSampleThemes::init()
{
    QFETCH_GLOBAL(QString, theme);
    m_theme = theme;
    QVERIFY(QResource::registerResource(m_theme));
    NVO::Css::instance().reset();
}

void TestSampleThemes::cleanup()
{
    QResource::unregisterResource(m_theme);
}

void TestSampleThemes::images_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("strip");

    for (const char *name : {"accordionindicator",
                             "accordionindicator_big",
                             "close",
                             "close_hell",
                             "hilfe_16",
                             "hilfe_hell_16",
                             "clearWhite",
                             "clearDark",
                             "bulb",
                             "pathlabel_arrow",
                             "searchresult_right_arrow",
                             "information",
                             "warning",
                             "critical",
                             "question",
                             "arrow_right_dark_6x12",
                             "checkmark_16",
                             "checkmark_hell_16",
                             "close_16",
                             "close_hell_16",
                             "scrollarrow_up",
                             "scrollarrow_up_hell",
                             "scrollarrow_up_error",
                             "scrollarrow_down",
                             "scrollarrow_down_hell",
                             "scrollarrow_down_error",
                             "sym_minus",
                             "sym_plus",
                             "aufhoehe_16",
                             "aufbreite_16"})
        QTest::newRow(name) << QString(name) << false;
    QTest::newRow("macclose") << QString("macclose") << true;
}

void TestSampleThemes::images()
{
    QFETCH(QString, name);
    QFETCH(bool, strip);
    const QImage plain(":/" + name);
    QVERIFY(!plain.isNull());
    QVERIFY(!strip || plain.width() % 4 == 0);
    for (int ratio = 2; ratio <= 4; ++ratio) {
        const QImage sharp(QStringLiteral(":/%1@%2x").arg(name).arg(ratio));
        QCOMPARE(sharp.size(), plain.size() * ratio);
    }
}

void TestSampleThemes::colorTokens()
{
    for (const char *token : {"BASECOLOR_ALTO_SILVER",
                              "BASECOLOR_DARK_GRAY",
                              "BASECOLOR_DOVE_GRAY",
                              "BASECOLOR_LIGHT_GRAY",
                              "BASECOLOR_LIGHT_SILVER",
                              "BASECOLOR_MERCURY_GRAY",
                              "BASECOLOR_ORANGE",
                              "BASECOLOR_SILVER",
                              "BASECOLOR_SILVER_GRAY",
                              "COLOR_BIG_BUTTON_BACKGROUND",
                              "COLOR_BIG_BUTTON_BORDER",
                              "COLOR_BIG_BUTTON_BORDER_DISABLED",
                              "COLOR_BIG_BUTTON_BORDER_FOCUS",
                              "COLOR_COMPLETER_DATA_BACKGROUND_MOUSEOVER",
                              "COLOR_COMPLETER_DATA_TEXT_MOUSEOVER",
                              "COLOR_COMPLETER_DATA_TEXT_NORMAL",
                              "COLOR_COMPLETER_MAINCAPTION_BACKGROUND_NORMAL",
                              "COLOR_COMPLETER_MAINCAPTION_TEXT_NORMAL",
                              "COLOR_COMPLETER_SUBCAPTION_TEXT_NORMAL",
                              "COLOR_DEKOLINE"})
        QVERIFY2(NVO::Palette::instance().namedColor(token).isValid(), token);
}

void TestSampleThemes::sameVocabulary()
{
    // A sheet may be shared, so a token of one theme must mean something in the other.
    static QStringList first;
    QStringList tokens =
        NVO::Palette::instance().namedColors().keys() + NVO::Palette::instance().namedGradients().keys();
    tokens.sort();
    QVERIFY(tokens.size() > 100);
    if (first.isEmpty())
        first = tokens;
    QCOMPARE(tokens, first);
}

void TestSampleThemes::typeScale()
{
    const NVO::Font &font = NVO::Font::instance();
    for (int step = NVO::Font::SMALL; step < NVO::Font::LARGE; ++step)
        QVERIFY(font.fontSize(NVO::Font::FontSize(step)) < font.fontSize(NVO::Font::FontSize(step + 1)));
    QVERIFY(font.fontSize(NVO::Font::SMALL) > 0);
    for (int element = NVO::ElementAccordion; element <= NVO::ElementZoomSlider; ++element)
        QVERIFY(font.fontSizeByElement(NVO::Element(element), QString()) > 0);
    QVERIFY(font.fontSizeByElement(NVO::ElementButton, "HIGHLIGHT") > 0);
    QVERIFY(font.fontSizeByElement(NVO::ElementIconButton, "SMALL") > 0);
}

void TestSampleThemes::sheets_data()
{
    QTest::addColumn<int>("element");
    QTest::newRow("Button") << int(NVO::ElementButton);
}

void TestSampleThemes::sheets()
{
    QFETCH(int, element);
    const QString sheet = NVO::Css::instance().css(NVO::Element(element));
    QVERIFY(!sheet.isEmpty());
    QCss::StyleSheet parsed;
    QVERIFY(QCss::Parser(sheet).parse(&parsed, Qt::CaseSensitive));
    const QStringList targets = NVO::Css::imports(sheet);
    for (const QString &target : targets)
        QVERIFY2(QFile::exists(target), qPrintable(target));
    const auto misspelt =
        QRegularExpression("\\b((BASE)?COLOR|GRADIENT)_\\w+|\\b(SEMI)?(BOLD|LIGHT)\\b").match(sheet);
    QVERIFY2(!misspelt.hasMatch(), qPrintable(misspelt.captured()));
}

QTEST_MAIN(TestSampleThemes)
#include "tst_samplethemes.moc"
