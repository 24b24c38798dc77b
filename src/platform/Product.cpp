#include <nvo/Product.h>

namespace NVO {

Product &Product::instance()
{
    static Product product;
    return product;
}

} // namespace NVO
