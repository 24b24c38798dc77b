#include "PageRegistry.h"

#include "AllPages.h"

namespace {

template <typename PageType>
PageEntry entry()
{
    return {PageType::key(), PageType::title(), []() -> Page * { return new PageType; }};
}

template <typename... Pages>
QVector<PageEntry> entries(PageTypes<Pages...>)
{
    return {entry<Pages>()...};
}

} // namespace

const QVector<PageEntry> &pageEntries()
{
    static const QVector<PageEntry> pages = entries(AllPages());
    return pages;
}

QStringList pageKeys()
{
    QStringList keys;
    for (const PageEntry &page : pageEntries())
        keys.append(page.key);
    return keys;
}
