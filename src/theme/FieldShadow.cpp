#include "theme/FieldShadow.h"

#include "theme/ShadowEffect.h"

#include <nvo/Product.h>

namespace NVO {

namespace {

constexpr int fieldExtent = 4;
constexpr int fieldSides = ShadowLeft | ShadowTop;
constexpr int fieldPercent = 14;

using FieldShadow =
    ShadowEffect<fieldExtent, fieldExtent, fieldSides, ShadowInner, fieldPercent, ShadowOfPixels>;

} // namespace

void installFieldShadow(QWidget *widget)
{
    if (Product::instance().variant == 0)
        widget->setGraphicsEffect(new FieldShadow);
}

} // namespace NVO
