#pragma once

#include <QString>

/** What the fields for dates do with texts, away from any widget. "_" is a place without a digit. */
namespace NVO::DateText {

/** What a field with \a mask, whose places are "0" and "9", shows while nothing is typed. */
QString blank(const QString &mask);

/**
 * \a text with \a delta added to the number at \a cursor or, where there is none, right before it. The number
 * fills its places with zeros. The null string if there is no number.
 */
QString stepped(const QString &text, int cursor, int delta);

/**
 * \a text with a fixed year of less than four digits written as short as the mask has it, whose places the
 * digits of a longer one would miss.
 */
QString withShortYear(const QString &text, int fixedYear);

} // namespace NVO::DateText
