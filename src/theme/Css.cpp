#include <nvo/Css.h>

#include "theme/WordTable.h"

#include <nvo/Font.h>
#include <nvo/Palette.h>

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QFont>
#include <QPointer>
#include <QWidget>

#include <private/qcssparser_p.h>

#include <algorithm>
#include <array>
#include <optional>

namespace NVO {

namespace {

/** The resources of the elements, by value. */
constexpr std::array<const char *, 50> resourcePaths{
    ":/Accordion",
    ":/AccordionBoxIndicator",
    ":/Button",
    ":/BookingGroup",
    ":/BookingWidget",
    ":/BookingStarter",
    ":/BookingTextItem",
    ":/ComboBox",
    ":/Completer",
    ":/CheckBox",
    ":/DateEdit",
    ":/Dialog",
    ":/DialogButton",
    ":/Flyout",
    ":/GroupBox",
    ":/FrameDialog",
    ":/IconButton",
    ":/InfoBox",
    ":/Label",
    ":/Link",
    ":/LineEdit",
    ":/LineEditWithButton",
    ":/NumericEdit",
    ":/MessageBox",
    ":/OverviewButton",
    ":/OverviewComboBox",
    ":/PeriodEdit",
    ":/PixmapToggle",
    ":/PushButton",
    ":/RadioToggle",
    ":/RibbonButton",
    ":/RibbonCheckBox",
    ":/RibbonGroupButton",
    ":/RibbonGroup",
    ":/RibbonGroupObject",
    ":/Ribbon",
    ":/RibbonLabel",
    ":/ScrollBar",
    ":/ScrollButton",
    ":/SelectionMessageBox",
    ":/Separator",
    ":/SegmentedControl",
    ":/TabBar",
    ":/TimeEdit",
    ":/Toggle",
    ":/ToolBarGroup",
    ":/ToolBarButton",
    ":/ToolBarHiddenButton",
    ":/ToolBarWidget",
    ":/ZoomSlider",
};

/** The classes that follow the font delta through the application's font, in the order of their turn. */
constexpr std::array<const char *, 7> fontClasses{
    "NVO::Button",
    "NVO::Label",
    "NVO::Link",
    "NVO::LinkButton",
    "NVO::Ribbon",
    "NVO::RibbonButton",
    "NVO::RibbonGroupButton",
};

QString rgba(const QColor &color)
{
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

/** A palette colour beats a colour name of the same text, and both beat a gradient. */
QHash<QString, QString> colorWords()
{
    QHash<QString, QString> words = Palette::instance().namedGradients();
    const QStringList names = QColor::colorNames();
    for (const QString &name : names)
        words.insert(name, rgba(QColor(name)));
    const QHash<QString, QColor> &colors = Palette::instance().namedColors();
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        words.insert(color.key(), rgba(color.value()));
    return words;
}

QHash<QString, QString> fontWords()
{
    const Font &font = Font::instance();
    return {{QStringLiteral("NORMAL"), font.normal()},
            {QStringLiteral("BOLD"), font.bold()},
            {QStringLiteral("SEMIBOLD"), font.semibold()},
            {QStringLiteral("SEMILIGHT"), font.semilight()},
            {QStringLiteral("LIGHT"), font.light()}};
}

QString textWithImports(const QString &path)
{
    QString text = Css::readFromReference(path);
    const QStringList targets = Css::imports(text);
    for (const QString &target : targets)
        text += Css::readFromReference(target);
    return text;
}

bool reachedByApplicationFont(const QWidget *widget)
{
    return std::any_of(fontClasses.begin(), fontClasses.end(),
                       [widget](const char *name) { return widget->inherits(name); });
}

/** Qt sends the event to the widgets of the font classes only; this is for all the others. */
void sendApplicationFontChange()
{
    const QWidgetList widgets = QApplication::allWidgets();
    QVector<QPointer<QWidget>> others;
    for (QWidget *widget : widgets) {
        if (!reachedByApplicationFont(widget))
            others.append(widget);
    }
    for (const QPointer<QWidget> &widget : qAsConst(others)) {
        if (!widget)
            continue; // deleted by what another one did
        QEvent event(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace

class Css::Private
{
public:
    int m_fontDelta = 0;
    std::array<std::optional<QString>, resourcePaths.size()> m_sheets;
    std::optional<WordTable> m_words;
};

Css &Css::instance()
{
    static Css css;
    return css;
}

Css::Css()
    : d(std::make_unique<Private>())
{}

Css::~Css() = default;

QString Css::css(Element element)
{
    const auto index = std::size_t(element);
    if (index >= resourcePaths.size())
        return QString();
    std::optional<QString> &sheet = d->m_sheets[index];
    if (!sheet)
        sheet = replaceCss(textWithImports(QString::fromLatin1(resourcePaths[index])));
    return *sheet;
}

QString Css::replaceCss(const QString &text)
{
    if (!d->m_words) {
        d->m_words.emplace();
        d->m_words->addPass(colorWords());
        d->m_words->addPass(fontWords());
    }
    QString result = d->m_words->expand(text);
    result.replace(QLatin1String("[os=\"windows\"]"), QLatin1String());
    return result;
}

QStringList Css::imports(const QString &text)
{
    // Without an "@", written as such or as an escape, there is no rule to be found by parsing.
    if (!text.contains(QLatin1Char('@')) && !text.contains(QLatin1Char('\\')))
        return {};

    QCss::Parser parser(text);
    QCss::StyleSheet sheet;
    if (!parser.parse(&sheet, Qt::CaseSensitive))
        return {};
    QStringList targets;
    for (const QCss::ImportRule &rule : qAsConst(sheet.importRules))
        targets.append(rule.href);
    return targets;
}

QString Css::readFromReference(const QString &reference)
{
    if (reference.isEmpty())
        return QString();
    QFile file(reference);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Css::font() const
{
    return QLatin1String("body {\n  ") + Font::instance().normal() + QLatin1String("\n}\nb {\n  ")
           + Font::instance().bold() + QLatin1String("\n}\n");
}

QString Css::replaceBoldTags(const QString &html) const
{
    QString result = html;
    result.replace(QLatin1String("<strong>"), QLatin1String("<b>"));
    result.replace(QLatin1String("</strong>"), QLatin1String("</b>"));
    result.replace(QLatin1String("<b>"),
                   QLatin1String("<span style=\"") + Font::instance().semibold() + QLatin1String("\">"));
    result.replace(QLatin1String("</b>"), QLatin1String("</span>"));
    return result;
}

int Css::fontDelta() const
{
    return d->m_fontDelta;
}

void Css::setFontDelta(int delta)
{
    if (delta == d->m_fontDelta)
        return;
    d->m_fontDelta = delta;
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;

    // The font itself stays: setting it makes Qt tell the widgets.
    const QFont font = QApplication::font();
    for (const char *name : fontClasses)
        QApplication::setFont(font, name);
    sendApplicationFontChange();
}

void Css::reset()
{
    d->m_words.reset();
    Palette::instance().init();
    d->m_sheets.fill(std::nullopt);
}

} // namespace NVO
