#include <nvo/Product.h>

namespace NVO {

Product &Product::instance()
{
    static Product product;
    product.variant = 1;
    return product;
}

} // namespace NVO
