// A line edit with any mask and text, under keys and focus changes.

#include "FuzzSupport.h"

#include <nvo/LineEdit.h>

using namespace FuzzSupport;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FuzzedDataProvider input(data, size);
    NVO::LineEdit field;
    while (input.remaining_bytes()) {
        switch (input.ConsumeIntegralInRange(0, 6)) {
        case 0:
            field.setInputMask(takeText(input, 30));
            break;
        case 1:
            field.setText(takeText(input, 30));
            break;
        case 2:
            changeFocus(input, field);
            break;
        case 3:
            field.setCursorPosition(input.ConsumeIntegralInRange(-2, 40));
            break;
        default:
            pressKey(input, field, QStringLiteral("0123456789abcXYZ-./: _"));
        }
        if (field.cursorPosition() < 0 || field.cursorPosition() > field.displayText().size())
            std::abort();
    }
    return 0;
}
