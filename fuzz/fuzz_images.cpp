// Names of images against generated sets of resources, and strips of any size.

#include "FuzzSupport.h"
#include "TestResources.h"

#include <nvo/Icon.h>
#include <nvo/Pixmap.h>

using namespace FuzzSupport;

namespace {

/** Names that lie near each other, so that marks and their absence are met. */
QString takeName(FuzzedDataProvider &input)
{
    static const QStringList parts{"a",   "b",    "@1x", "@2x", "@3x", "@4x", "@",
                                   "@x2", ".png", "/",   ":",   "",    " ",   "@2x@2x"};
    QString name;
    const int count = input.ConsumeIntegralInRange(0, 4);
    for (int i = 0; i < count; ++i)
        name += parts.at(input.ConsumeIntegralInRange(0, parts.size() - 1));
    return input.ConsumeBool() ? name : name + takeText(input, 10);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool scaled = qputenv("QT_SCALE_FACTOR", "2");
    Q_UNUSED(scaled)
    startApplication();
    FuzzedDataProvider input(data, size);
    QMap<QString, QByteArray> files;
    const int count = input.ConsumeIntegralInRange(0, 5);
    for (int i = 0; i < count; ++i) {
        const QString name =
            takeName(input).remove(QLatin1Char('/')).remove(QLatin1Char(':')).remove(QChar(0));
        if (!name.isEmpty())
            files[name] = input.ConsumeBool()
                              ? TestResources::png(input.ConsumeIntegralInRange(1, 9), 2, {0xff0000ff})
                              : QByteArray::fromStdString(input.ConsumeRandomLengthString(50));
    }
    const TestResources resources(files);
    NVO::Pixmap pixmap(QStringLiteral(":/") + takeName(input));
    while (input.remaining_bytes()) {
        pixmap.setFileName((input.ConsumeBool() ? QStringLiteral(":/") : QString()) + takeName(input));
        NVO::Icon icon(pixmap);
        icon.pixmap(16, 16, QIcon::Disabled);
    }
    return 0;
}
