#pragma once

#include <nvo/Css.h>
#include <nvo/Product.h>

/** Sets a member of the product record and puts the old value back when it dies. */
template <typename Value>
class ProductGuard
{
public:
    ProductGuard(Value NVO::Product::*member, Value value)
        : m_member(member)
        , m_before(NVO::Product::instance().*member)
    {
        NVO::Product::instance().*member = value;
    }
    ~ProductGuard() { NVO::Product::instance().*m_member = m_before; }
    ProductGuard(const ProductGuard &) = delete;
    ProductGuard &operator=(const ProductGuard &) = delete;

private:
    Value NVO::Product::*m_member;
    Value m_before;
};

/** The product has look \a variant as long as the result lives. */
[[nodiscard]] inline ProductGuard<int> withVariant(int variant)
{
    return {&NVO::Product::variant, variant};
}

/** Effects may show, or not, as long as the result lives. */
[[nodiscard]] inline ProductGuard<bool> withEffects(bool enabled)
{
    return {&NVO::Product::effectsEnabled, enabled};
}

/** Puts the font delta back to 0 when it dies. */
class FontDeltaGuard
{
public:
    FontDeltaGuard() = default;
    ~FontDeltaGuard() { NVO::Css::instance().setFontDelta(0); }
    FontDeltaGuard(const FontDeltaGuard &) = delete;
    FontDeltaGuard &operator=(const FontDeltaGuard &) = delete;
};
