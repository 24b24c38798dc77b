#pragma once

#include <nvo/Element.h>
#include <nvo/Export.h>

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace NVO {

/**
 * Turns the style-sheet resources of the application into finished Qt style sheets.
 *
 * A resource is a Qt style sheet in UTF-8 with four additions:
 *  - `@import` rules name further files or resources; their text is added behind the importing text.
 *    Imports are followed one level deep.
 *  - A colour word (a token of Palette, or a name of QColor::colorNames()) stands for its colour or
 *    gradient. Colours are written as rgba(r,g,b,a).
 *  - A font word (NORMAL, BOLD, SEMIBOLD, SEMILIGHT, LIGHT) stands for the declarations of Font. It
 *    stands in the braces of a rule without a property name and without a semicolon.
 *  - The selector `[os="windows"]` is deleted, so that its rule always applies.
 *
 * A word is a run of letters, digits and underscores. Words are replaced wherever they stand, in
 * selectors, strings and comments too; a word at the very end of a text is never replaced. Unknown words
 * pass through. What cannot be read counts as empty, and nothing is reported.
 *
 * A process-wide singleton, GUI thread only.
 */
class NVO_EXPORT Css : public QObject
{
    Q_OBJECT

public:
    /** The singleton. It comes into being at the first call and lives to the end of the program. */
    static Css &instance();

    ~Css() override;

    /**
     * The finished sheet of \a element. It is built at the first call and then kept until reset(), an
     * empty one too. A value outside of Element gives the expansion of nothing, the empty text.
     */
    QString css(Element element);

    /** \a text with all words of the dialect replaced. */
    QString replaceCss(const QString &text);

    /**
     * The targets of the `@import` rules of \a text in the order in which they stand, unchanged. A text
     * that Qt's style-sheet parser refuses has none.
     */
    static QStringList imports(const QString &text);

    /** The whole content of the file or resource \a reference, read as UTF-8; empty if it cannot be read. */
    static QString readFromReference(const QString &reference);

    /** A small style sheet for rich-text documents: the normal face for the body, the bold one for `b`. */
    QString font() const;

    /** \a html with every `<b>` and `<strong>` turned into a span in the semibold face. */
    QString replaceBoldTags(const QString &html) const;

    /** The pixels that are added to the font size of every element; 0 at first. */
    int fontDelta() const;

    /**
     * Sets the font delta in pixels and sends QEvent::ApplicationFontChange to every live widget, which
     * then picks up its new size. An unchanged value sends nothing.
     */
    void setFontDelta(int delta);

    /**
     * Reads the palette anew and forgets all finished sheets. Widgets keep the sheet they have until they
     * ask for it again.
     */
    void reset();

protected:
    Css();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace NVO
