// Fields for dates and periods: any form, then keys, texts, dates and focus changes.

#include "FuzzSupport.h"
#include "editors/DateText.h"

#include <nvo/DateEdit.h>
#include <nvo/PeriodEdit.h>

#include <QDate>

using namespace FuzzSupport;

namespace {

QDate takeDate(FuzzedDataProvider &input)
{
    return QDate(input.ConsumeIntegralInRange(-10, 12000), input.ConsumeIntegralInRange(0, 13),
                 input.ConsumeIntegralInRange(0, 32));
}

template <typename Field, typename SetDate>
void drive(FuzzedDataProvider &input, Field &field, SetDate setDate)
{
    while (input.remaining_bytes()) {
        switch (input.ConsumeIntegralInRange(0, 8)) {
        case 0:
            field.setFlags(NVO::BaseDateEdit::Flags(input.ConsumeIntegral<int>()));
            break;
        case 1:
            field.setFixedYear(input.ConsumeIntegralInRange(-20, 12000));
            break;
        case 2:
            field.setText(takeText(input, 30));
            break;
        case 3:
            changeFocus(input, field);
            break;
        case 4:
            setDate();
            break;
        default:
            pressKey(input, field, QStringLiteral("0123456789./-"));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FuzzedDataProvider input(data, size);
    if (input.ConsumeBool()) {
        const QString text = takeText(input);
        NVO::DateText::blank(text);
        NVO::DateText::stepped(text, input.ConsumeIntegralInRange(-3, 40), input.ConsumeIntegral<int>());
        NVO::DateText::withShortYear(text, input.ConsumeIntegral<int>());
    }
    if (input.ConsumeBool()) {
        NVO::DateEdit field(nullptr);
        drive(input, field, [&] { field.setDate(takeDate(input)); });
    } else {
        NVO::PeriodEdit field(nullptr);
        drive(input, field, [&] {
            const QDate begin = takeDate(input);
            field.setDate(begin, takeDate(input));
        });
    }
    return 0;
}
