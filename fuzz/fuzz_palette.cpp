// Palette and font tables, and sheets expanded with what they define.

#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Palette.h>

#include <QGuiApplication>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_palette";
    static char *argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);

    const QByteArray table(reinterpret_cast<const char *>(data), int(size));
    const TestResources resources({{"Palette", "[Named]\n" + table},
                                   {"Font", "[Size]\n" + table},
                                   {"FontSizes", "[Element]\n" + table}});
    NVO::Css::instance().reset();
    QString sheet;
    const auto &gradients = NVO::Palette::instance().namedGradients();
    for (auto gradient = gradients.cbegin(); gradient != gradients.cend(); ++gradient)
        sheet += gradient.key() + QLatin1Char(' ') + gradient.value() + QLatin1Char('\n');
    NVO::Css::instance().replaceCss(sheet);
    for (int element = -1; element <= NVO::ElementZoomSlider + 1; ++element)
        NVO::Font::instance().scaledFontSizeByElement(NVO::Element(element), QStringLiteral("SMALL"));
    return 0;
}
