#pragma once

#include <nvo/Export.h>

#include <QIcon>
#include <QPixmap>

namespace NVO {

/**
 * An icon cut from a strip of four images of equal width, called PAND: pressed (QIcon::Selected), active
 * under the mouse (QIcon::Active), normal (QIcon::Normal) and disabled (QIcon::Disabled), from the left.
 */
class NVO_EXPORT Icon : public QIcon
{
public:
    /** The icon of \a strip; a null pixmap gives a null icon. */
    Icon(const QPixmap &strip = QPixmap()); // NOLINT(google-explicit-constructor)

    /**
     * Adds the four images of \a strip. Each is a quarter of its width, rounded down; a strip that is
     * narrower than four pixels has no images.
     */
    void setPAND(const QPixmap &strip);
};

} // namespace NVO
