#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace NVO {

/**
 * What a style sheet says of the states of a widget that Qt's style sheet engine does not paint. A member
 * without a value is not mentioned in the sheet; a colour that cannot be read is a value and invalid.
 */
struct SheetStates
{
    /** The colours of one state. */
    struct Colors
    {
        std::optional<QColor> text;
        std::optional<QColor> underline;
    };

    Colors focus;
    Colors hover;
    Colors pressed;
    std::optional<QString> menuIndicator; ///< The name of its image.

    /**
     * Reads the rules of \a sheet that end in a type name and ask for \a style in the attribute "style", for
     * `:focus`, `:hover`, `:pressed` and `::menu-indicator`. Later rules win. A sheet that cannot be parsed
     * says nothing.
     */
    static SheetStates read(const QString &sheet, const QString &style);
};

} // namespace NVO
