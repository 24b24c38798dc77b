#include "TestCase.h"
#include "theme/SheetStates.h"

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
    void initTestCase_data()
    {
        QTest::addColumn<QString>("theme");
        for (const char *theme : {"classic", "modern"})
            QTest::newRow(theme) << QStringLiteral(NVO_THEME_DIR "/nvo-%1.rcc").arg(theme);
    }

    void init()
    {
        QFETCH_GLOBAL(QString, theme);
        QVERIFY(QResource::registerResource(theme));
        NVO::Css::instance().reset();
    }

    void cleanup()
    {
        QFETCH_GLOBAL(QString, theme);
        QResource::unregisterResource(theme);
    }

    void images()
    {
        const QString names =
            "accordionindicator accordionindicator_big close close_hell hilfe_16 hilfe_hell_16 clearWhite "
            "clearDark bulb pathlabel_arrow searchresult_right_arrow information warning critical question "
            "arrow_right_dark_6x12 checkmark_16 checkmark_hell_16 close_16 close_hell_16 scrollarrow_up "
            "scrollarrow_up_hell scrollarrow_up_error scrollarrow_down scrollarrow_down_hell "
            "checkbox_check checkbox_check_disabled checkbox_partial checkbox_partial_disabled "
            "combobox_arrow combobox_arrow_disabled tile_accounting tile_payroll tile_receipts tile_bank "
            "tile_tax tile_clients tile_new_hell "
            "scrollarrow_down_error sym_minus sym_plus aufhoehe_16 aufbreite_16 macclose";
        for (const QString &name : names.split(' ')) {
            const QImage plain(":/" + name);
            QVERIFY2(!plain.isNull(), qPrintable(name));
            for (int ratio = 2; ratio <= 4; ++ratio)
                QCOMPARE(QImage(QString(":/%1@%2x").arg(name).arg(ratio)).size(), plain.size() * ratio);
        }
        QCOMPARE(QImage(":/macclose").width() % 4, 0);
    }

    void colorTokens()
    {
        const QHash<QString, QColor> colors = NVO::Palette::instance().namedColors();
        const QByteArray asked =
            "BASECOLOR_ALTO_SILVER BASECOLOR_DARK_GRAY BASECOLOR_DOVE_GRAY BASECOLOR_LIGHT_GRAY "
            "BASECOLOR_LIGHT_SILVER BASECOLOR_MERCURY_GRAY BASECOLOR_ORANGE BASECOLOR_SILVER "
            "BASECOLOR_SILVER_GRAY COLOR_BIG_BUTTON_BACKGROUND COLOR_BIG_BUTTON_BORDER "
            "COLOR_BIG_BUTTON_BORDER_DISABLED COLOR_BIG_BUTTON_BORDER_FOCUS "
            "COLOR_COMPLETER_DATA_BACKGROUND_MOUSEOVER COLOR_COMPLETER_DATA_TEXT_MOUSEOVER "
            "COLOR_COMPLETER_DATA_TEXT_NORMAL COLOR_COMPLETER_MAINCAPTION_BACKGROUND_NORMAL "
            "COLOR_COMPLETER_MAINCAPTION_TEXT_NORMAL COLOR_COMPLETER_SUBCAPTION_TEXT_NORMAL COLOR_DEKOLINE";
        for (const QByteArray &token : asked.split(' '))
            QVERIFY2(colors.contains(token), token);
        // A sheet may be shared, so a token of one theme must mean something in the other.
        QStringList tokens = colors.keys() + NVO::Palette::instance().namedGradients().keys();
        tokens.sort();
        static const QStringList first = tokens;
        QVERIFY(tokens.size() > 100);
        QCOMPARE(tokens, first);
    }

    void typeScale()
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

    void stateColors()
    {
        // What one style does not mention stays when the style changes, so each mentions the same.
        const QVector<QPair<NVO::Element, QStringList>> looks{
            {NVO::ElementIconButton, {"Dark", "DarkSmall", "Light", "LightSmall"}},
            {NVO::ElementLink, {"Dark", "Light", "FlyoutDark", "FlyoutLight", "Login", "LoginInput"}}};
        for (const auto &look : looks) {
            QSet<QVector<bool>> mentioned;
            for (const QString &style : look.second) {
                const auto states = NVO::SheetStates::read(NVO::Css::instance().css(look.first), style);
                QVector<bool> said;
                for (const auto &color :
                     {states.focus.text, states.focus.underline, states.hover.text, states.hover.underline,
                      states.pressed.text, states.pressed.underline}) {
                    said.append(color.has_value());
                    QVERIFY2(!color || color->isValid(), qPrintable(style));
                }
                mentioned.insert(said);
                QVERIFY(states.hover.text && states.pressed.text && states.menuIndicator);
                QVERIFY2(QFile::exists(*states.menuIndicator), qPrintable(style));
            }
            QCOMPARE(mentioned.size(), 1);
        }
    }

    void sheets()
    {
        const QRegularExpression tokens("\\b((BASE)?COLOR|GRADIENT)_\\w+|\\b(SEMI)?(BOLD|LIGHT)\\b");
        for (int element = NVO::ElementAccordion; element <= NVO::ElementZoomSlider; ++element) {
            const QString sheet = NVO::Css::instance().css(NVO::Element(element));
            QCss::StyleSheet parsed;
            const QByteArray name = QByteArray::number(element);
            QVERIFY2(!sheet.isEmpty() && QCss::Parser(sheet).parse(&parsed, Qt::CaseSensitive), name);
            QWidget widget;
            widget.setStyleSheet(sheet); // warns of what it cannot read
            widget.ensurePolished();
            const QStringList targets = NVO::Css::imports(sheet);
            for (const QString &target : targets)
                QVERIFY2(QFile::exists(target), qPrintable(target));
            QVERIFY2(!sheet.contains(tokens), qPrintable(tokens.match(sheet).captured()));
        }
    }
};

QTEST_MAIN(TestSampleThemes)
#include "tst_samplethemes.moc"
