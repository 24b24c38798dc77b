#pragma once

#include <nvo/Element.h>

#include <QCursor>
#include <QIcon>
#include <QList>
#include <QMetaEnum>
#include <QPixmap>
#include <QString>

#include <functional>

class QWidget;

/** What every styled widget of the library does to get its look. */
namespace NVO::StyleSupport {

/** Gives \a widget the finished sheet of \a element. */
void applySheet(QWidget *widget, Element element);

/**
 * Runs \a function while \a widget, which has not been shown yet, hears of no change of its style. Qt's
 * answer would be to parse its sheet, which it does again when the widget is polished.
 */
void withoutStyleChange(QWidget *widget, const std::function<void()> &function);

/** Gives the font of \a widget the pixel size of \a element; sizes of 0 or less are left out. */
void applyFontSize(QWidget *widget, Element element, const QString &variant = QString());

/**
 * The whole look of a widget with styles: publishes \a style, the key of its style, as the dynamic property
 * "style" and gives it sheet and font size. A widget that has that property and that sheet is not given them
 * again, which would make Qt parse the sheet again.
 */
void applyStyle(QWidget *widget, Element element, const QString &style,
                const QString &fontVariant = QString());

/** The same for a widget without styles. */
void applyStyle(QWidget *widget, Element element);

/**
 * The pixmap of \a icon for a place of \a size on \a widget, sharp on its screen whatever the attributes of
 * the application.
 */
QPixmap iconPixmap(const QIcon &icon, const QSize &size, const QWidget *widget, QIcon::Mode mode);

/**
 * The icon QIcon(\a resource). It is kept as long as the resource stays the same, because Qt looks into a
 * file without an extension to find out its kind.
 */
QIcon fileIcon(const QString &resource);

/** \a pixelSize with Css::fontDelta() added. */
int scaled(int pixelSize);

/** Gives the font of \a widget \a pixelSize; sizes of 0 or less are left out. */
void setPixelSize(QWidget *widget, int pixelSize);

/** The key of an enum value as the meta-enum names it, for dynamic properties; empty for a foreign value. */
template <typename Enum>
QString enumKey(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
}

/**
 * \a object as a \a Widget where QAccessible, which goes up the classes of an object, has come to that class:
 * an application may describe its subclasses in its own way.
 */
template <typename Widget>
Widget *exactly(const QString &className, QObject *object)
{
    return className == QLatin1String(Widget::staticMetaObject.className()) ? qobject_cast<Widget *>(object)
                                                                            : nullptr;
}

/** A cursor of the default shape stands for none. */
inline bool isSet(const QCursor &cursor)
{
    return cursor.shape() != QCursor().shape();
}

/** Whether the look of \a widget comes from a style sheet, its own or one above it. */
bool isStyleSheetStyled(const QWidget *widget);

/** Makes the sheets look at the dynamic properties of \a widget and its descendants again. */
void repolish(QWidget *widget);

/** The same for each of \a widgets. */
void repolish(const QList<QWidget *> &widgets);

} // namespace NVO::StyleSupport
