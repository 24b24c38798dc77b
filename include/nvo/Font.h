#pragma once

#include <nvo/Element.h>
#include <nvo/Export.h>

#include <QObject>
#include <QString>

namespace NVO {

/**
 * How large the text of an element is, and which declarations make up a font style.
 *
 * Sizes are pixels and come from two INI resources of the application: ":/Font" gives each step of the
 * scale its pixels (section "Size"), ":/FontSizes" gives each element its step (section "Element"). Both
 * are seen as they are at each call. What is missing there gives 0.
 *
 * A process-wide singleton, GUI thread only.
 */
class NVO_EXPORT Font : public QObject
{
    Q_OBJECT

public:
    /** The steps of the type scale, from the smallest use to the largest. */
    enum FontSize : int {
        SMALL = 0,
        DEFAULT = 1,
        HIGHLIGHT = 2,
        HEADLINECONTENT = 3,
        HEADLINESMALL = 4,
        HEADLINEMEDIUM = 5,
        HEADLINEBIG = 6,
        LARGE = 7
    };
    Q_ENUM(FontSize)

    /** The singleton. It comes into being at the first call and lives to the end of the program. */
    static Font &instance();

    /** The pixels of a step; 0 for a value outside the scale or missing in the resource. */
    int fontSize(FontSize size) const;

    /**
     * The pixels of the text of \a element; elements without a row of their own have step DEFAULT.
     * \a variant counts for ElementButton and ElementIconButton only: "SMALL" looks for "Button_SMALL".
     */
    int fontSizeByElement(Element element, const QString &variant) const;

    /** fontSizeByElement() plus Css::fontDelta(): what widgets show. */
    int scaledFontSizeByElement(Element element, const QString &variant) const;

    /** \name Font styles
     * Style-sheet declarations of family, weight and slant, each ending in a semicolon. */
    ///@{
    QString normal() const;
    QString bold() const;
    QString semibold() const;
    QString semilight() const;
    QString light() const;
    QString italic() const;
    ///@}

protected:
    Font() = default;
};

} // namespace NVO
