// Sheets through the expansion of words and the search for imports.

#include "TestResources.h"

#include <nvo/Css.h>

#include <QGuiApplication>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_sheet";
    static char *argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);
    static const TestResources resources(
        {{"Palette", "[Named]\nA=#102030\nB=A\nC=\"g(A, B, C D)\"\nD=\"C\"\nrgba=1, 2, 3\n"}});

    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const QString expanded = NVO::Css::instance().replaceCss(text);
    NVO::Css::imports(text);
    NVO::Css::imports(expanded);
    NVO::Css::instance().replaceBoldTags(text);
    return 0;
}
