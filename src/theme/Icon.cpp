#include <nvo/Icon.h>

#include <array>

namespace NVO {

namespace {

// Pressed, active, normal, disabled, from the left.
constexpr std::array<QIcon::Mode, 4> stripModes{QIcon::Selected, QIcon::Active, QIcon::Normal,
                                                QIcon::Disabled};
// The normal image comes first, so that it is what Qt falls back to.
constexpr std::array<int, 4> addingOrder{2, 3, 1, 0};

} // namespace

Icon::Icon(const QPixmap &strip)
{
    if (!strip.isNull())
        setPAND(strip);
}

void Icon::setPAND(const QPixmap &strip)
{
    const int width = strip.width() / int(stripModes.size());
    if (width == 0)
        return; // QPixmap::copy() would take the empty piece for the whole strip
    for (const int piece : addingOrder) {
        addPixmap(strip.copy(piece * width, 0, width, strip.height()), stripModes[std::size_t(piece)],
                  QIcon::Off);
    }
}

} // namespace NVO
