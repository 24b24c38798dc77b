#pragma once

#include <QProxyStyle>

namespace NVO {

/** The application's style, but for tabs that share the whole width of their bar. */
class TabBarProxyStyle : public QProxyStyle
{
public:
    /** \a bar owns the style, which a widget does not do by itself. */
    explicit TabBarProxyStyle(QWidget *bar);

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
};

/** The same for a SegmentedControl. */
class SegmentedControlProxyStyle : public TabBarProxyStyle
{
public:
    using TabBarProxyStyle::TabBarProxyStyle;
};

} // namespace NVO
