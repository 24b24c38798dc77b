#pragma once

#include <nvo/Export.h>

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QString>
#include <QVariantMap>

namespace NVO {

/**
 * The colour vocabulary of the application: named tokens, read from the INI resource ":/Palette".
 *
 * Section "Named" defines the tokens. A value is tried as
 *  1. a reference to another token, if it has only letters that are not lower case and underscores;
 *     tokens may refer to each other in any order,
 *  2. a colour: any text that QColor knows, or three or four numbers 0 to 255 (red, green, blue, alpha),
 *  3. a gradient: any other text, kept as it stands.
 *
 * Sections "Active", "Inactive" and "Disabled" give colours for the roles of a QPalette.
 *
 * Missing and bad input gives no tokens; references that lead nowhere or in a circle are named in one
 * debug message. A process-wide singleton, GUI thread only.
 */
class NVO_EXPORT Palette
{
public:
    /** The singleton. It is made, and the resource read, at the first call. */
    static Palette &instance();

    ~Palette() = default;
    Palette(const Palette &) = delete;
    Palette &operator=(const Palette &) = delete;

    /** Reads the resource anew. Sheets follow only with Css::reset(), which calls this itself. */
    void init();

    /** The colour of a token; invalid for unknown names and for gradients. */
    QColor namedColor(const QString &name) const;

    /** All colour tokens. */
    const QHash<QString, QColor> &namedColors() const { return m_namedColors; }

    /** All gradient tokens. */
    const QHash<QString, QString> &namedGradients() const { return m_namedGradients; }

    /**
     * Replaces all colour tokens until the next init(); gradients stay. namedColor() sees them at once,
     * sheets once their words are gathered anew.
     */
    void setNamedColors(const QHash<QString, QColor> &colors);

    /**
     * The application's palette at the time of init(), with the colours of the resource put in. The
     * library does not install it; an application that wants it calls QApplication::setPalette().
     */
    QPalette palette() const { return m_palette; }

protected:
    Palette();

private:
    static QColor fromVariant(const QVariant &value);
    static bool hasOnlyUpperLetters(const QString &text);
    void readNamed(const QVariantMap &values);
    void readRoles(const QVariantMap &values, QPalette::ColorGroup group);
    bool resolve(const QString &token, const QString &name);
    QHash<QString, QString> reparseMissingColors(const QHash<QString, QString> &missing);

    QHash<QString, QColor> m_namedColors;
    QHash<QString, QString> m_namedGradients;
    QPalette m_palette;
};

} // namespace NVO
