#pragma once

#include <nvo/Export.h>

#include <QPixmap>
#include <QString>

namespace NVO {

/**
 * A pixmap that is loaded by name in the variant that fits the sharpest screen of the desktop.
 *
 * The variants of an image are called like ":/close", ":/close@2x", ":/close@3x" and ":/close@4x". For a
 * name without such a mark the largest device pixel ratio of the screens is looked for, then higher
 * ratios, then lower ones, and at last the plain image. ".png" in a name is replaced by the mark. A name
 * with a mark is taken at its word, and resolved in the same way if it does not exist.
 *
 * Images are shared through QPixmapCache under the resolved name; an application that exchanges its
 * resources clears that cache. A name without any image leaves the pixmap null. GUI thread only.
 */
class NVO_EXPORT Pixmap : public QPixmap
{
public:
    /** Loads \a fileName; the empty name gives a null pixmap. */
    Pixmap(const QString &fileName = QString()); // NOLINT(google-explicit-constructor)

    /** Loads another image. The name that is already loaded is not loaded again. */
    void setFileName(const QString &fileName);

    /** The name of the image really loaded, with its mark. */
    QString fileName() const { return m_fileName; }

private:
    QString m_fileName;
};

} // namespace NVO
