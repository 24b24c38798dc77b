#include <nvo/Font.h>

#include "theme/IniResource.h"
#include "theme/StyleSupport.h"

namespace NVO {

namespace {

QString withVariant(const QString &key, const QString &variant)
{
    return variant.isEmpty() ? key : key + QLatin1Char('_') + variant;
}

/** The key of an element in ":/FontSizes"; null for an element without one. */
QString sizeKey(Element element, const QString &variant)
{
    switch (element) {
    case ElementButton:
        return withVariant(QStringLiteral("Button"), variant);
    case ElementIconButton:
        return withVariant(QStringLiteral("IconButton"), variant);
    case ElementLink:
        return QStringLiteral("Link");
    case ElementOverviewButton:
        return QStringLiteral("OverviewButton");
    case ElementPushButton:
        return QStringLiteral("PushButton");
    case ElementRibbonButton:
        return QStringLiteral("RibbonButton");
    case ElementRibbonCheckBox:
        return QStringLiteral("RibbonCheckBox");
    case ElementRibbonGroupButton:
        return QStringLiteral("RibbonGroupButton");
    case ElementRibbon:
        return QStringLiteral("Ribbon");
    case ElementRibbonLabel:
        return QStringLiteral("RibbonLabel");
    case ElementSegmentedControl:
        return QStringLiteral("SegmentedControl");
    case ElementToolBarButton:
        return QStringLiteral("ToolBarButton");
    default:
        return QString();
    }
}

} // namespace

Font &Font::instance()
{
    static Font font;
    return font;
}

int Font::fontSize(FontSize size) const
{
    static IniResource sizes(QStringLiteral(":/Font"));
    return sizes.section(QStringLiteral("Size")).value(StyleSupport::enumKey(size)).toInt();
}

int Font::fontSizeByElement(Element element, const QString &variant) const
{
    static IniResource elements(QStringLiteral(":/FontSizes"));
    const QString key = sizeKey(element, variant);
    if (key.isNull())
        return fontSize(DEFAULT);
    const QByteArray step = elements.section(QStringLiteral("Element")).value(key).toString().toLatin1();
    return fontSize(FontSize(QMetaEnum::fromType<FontSize>().keyToValue(step)));
}

int Font::scaledFontSizeByElement(Element element, const QString &variant) const
{
    return StyleSupport::scaled(fontSizeByElement(element, variant));
}

QString Font::normal() const
{
    return QStringLiteral("font-family:'Segoe UI',Frutiger,'Frutiger Linotype','Dejavu Sans','Helvetica "
                          "Neue',Arial,sans-serif;font-weight:400;font-style:normal;");
}

QString Font::bold() const
{
    return QStringLiteral("font-family:'Helvetica Neue',Arial,sans-serif;font-weight:700;");
}

QString Font::semibold() const
{
    return QStringLiteral("font-family:'Segoe UI Semibold',Frutiger,'Frutiger Linotype','Dejavu Sans',"
                          "'Helvetica Neue',Arial,sans-serif;font-weight:500;");
}

QString Font::semilight() const
{
    return QStringLiteral("font-family:'Segoe UI Semilight',Frutiger,'Frutiger Linotype','Dejavu Sans',"
                          "'Helvetica Neue',Arial,sans-serif;font-weight:400;");
}

QString Font::light() const
{
    return QStringLiteral("font-family:'Segoe UI Light',Frutiger,'Frutiger Linotype','Dejavu Sans',"
                          "'Helvetica Neue',Arial,sans-serif;font-weight:300;");
}

QString Font::italic() const
{
    return QStringLiteral("font-family:'Segoe UI Bold',Frutiger,'Frutiger Linotype','Dejavu Sans',"
                          "'Helvetica Neue',Arial,sans-serif;font-weight:400;font-style:italic;");
}

} // namespace NVO
