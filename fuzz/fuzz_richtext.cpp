// Any text in a label and in an information box, laid out at any width and elided.

#include "FuzzSupport.h"

#include <nvo/InfoBox.h>
#include <nvo/Label.h>

#include <QPixmap>

using namespace FuzzSupport;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FuzzedDataProvider input(data, size);
    NVO::Label label;
    label.enableElide(input.ConsumeBool());
    label.setWordWrap(input.ConsumeBool());
    NVO::InfoBox box(nullptr);
    const int width = input.ConsumeIntegralInRange(0, 600);
    const QString text = takeText(input, 2000);
    label.setText(text);
    box.setHtmlText(text);
    for (QWidget *widget : {static_cast<QWidget *>(&label), static_cast<QWidget *>(&box)}) {
        widget->resize(width, std::min(widget->sizeHint().height(), 400));
        widget->heightForWidth(width);
        widget->grab();
    }
    return 0;
}
