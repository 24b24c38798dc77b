#pragma once

#include <nvo/Element.h>

#include <QList>
#include <QMetaEnum>
#include <QString>

class QWidget;

/** What every styled widget of the library does to get its look. */
namespace NVO::StyleSupport {

/** Gives \a widget the finished sheet of \a element. */
void applySheet(QWidget *widget, Element element);

/**
 * The same for a widget with styles: publishes \a style, the key of its style, as the dynamic property
 * "style" before. Does nothing if the widget has that property and that sheet, which costs a parse less.
 */
void applySheet(QWidget *widget, Element element, const QString &style);

/** Gives the font of \a widget the pixel size of \a element; sizes of 0 or less are left out. */
void applyFontSize(QWidget *widget, Element element, const QString &variant = QString());

/** Gives the font of \a widget \a pixelSize; sizes of 0 or less are left out. */
void setPixelSize(QWidget *widget, int pixelSize);

/** The key of an enum value as the meta-enum names it, for dynamic properties; empty for a foreign value. */
template <typename Enum>
QString enumKey(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

/** Whether the look of \a widget comes from a style sheet, its own or one above it. */
bool isStyleSheetStyled(const QWidget *widget);

/** Makes the sheets look at the dynamic properties of \a widget and its descendants again. */
void repolish(QWidget *widget);

/** The same for each of \a widgets. */
void repolish(const QList<QWidget *> &widgets);

} // namespace NVO::StyleSupport
