// The amount field: any range and unit, then keys, texts and focus changes.

#include "FuzzSupport.h"

#include <nvo/NumericEdit.h>

#include <QLineEdit>

#include <cmath>

using namespace FuzzSupport;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FuzzedDataProvider input(data, size);
    NVO::NumericEdit field;
    auto *lineEdit = field.findChild<QLineEdit *>();
    field.setLocale(input.ConsumeBool() ? QLocale::German : QLocale::English);
    field.setRange(input.ConsumeIntegral<int>(), input.ConsumeIntegralInRange(-2, 8), takeText(input, 8),
                   NVO::NumericEdit::Flags(input.ConsumeIntegralInRange(0, 7)));
    while (input.remaining_bytes()) {
        switch (input.ConsumeIntegralInRange(0, 4)) {
        case 0:
            field.setValue(input.ConsumeFloatingPoint<double>());
            break;
        case 1:
            lineEdit->setText(takeText(input, 40));
            break;
        case 2:
            changeFocus(input, field);
            break;
        default:
            pressKey(input, field, QStringLiteral("0123456789,.+-- e€"));
        }
    }
    if (!(field.value() >= field.minimum() && field.value() <= field.maximum()))
        std::abort();
    return 0;
}
