#pragma once

#include <nvo/Export.h>

#include <QtGlobal>

#ifdef NVO_EXTERNAL_CORE
#define NVO_CORE_EXPORT Q_DECL_IMPORT
#else
#define NVO_CORE_EXPORT NVO_EXPORT
#endif

namespace NVO {

/**
 * What the product is, as far as widgets need to know: a process-wide record of two values that the
 * application sets at start and may change at any time.
 *
 * Objects that read a value when they are made (the shadows, for one) keep what they read; the others
 * ask anew each time. GUI thread only.
 *
 * A library built with the CMake option NVO_EXTERNAL_CORE does not define instance(); the core library
 * of the application family does, with the same two members in the same order.
 */
class Product
{
public:
    /** The one record of the process. */
    NVO_CORE_EXPORT static Product &instance();

    Product(const Product &) = delete;
    Product &operator=(const Product &) = delete;

    /** Whether graphics effects may show at all. */
    bool effectsEnabled = true;

    /** The look of the product: 0 classic, 1 modern. */
    int variant = 0;

private:
    Product() = default;
};

} // namespace NVO
