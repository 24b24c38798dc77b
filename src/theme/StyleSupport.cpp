#include "theme/StyleSupport.h"

#include <nvo/Css.h>
#include <nvo/Font.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFont>
#include <QHash>
#include <QPointer>
#include <QResource>
#include <QStyle>
#include <QVector>
#include <QWidget>

#include <limits>

namespace NVO::StyleSupport {

namespace {

/** Keeps QEvent::StyleChange from the object that it filters. */
class StyleChangeBlocker : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::StyleChange; }
};

/** Gives a widget its style, null for none, its sheet and its font size, as far as they change. */
void applyLook(QWidget *widget, Element element, const QVariant &style, const QString &fontVariant)
{
    // A change of font makes Qt parse the sheet that is there, so before the first show the font comes first.
    const bool polished = widget->testAttribute(Qt::WA_WState_Polished);
    if (!polished)
        applyFontSize(widget, element, fontVariant);
    if (widget->property("style") != style || widget->styleSheet() != Css::instance().css(element)) {
        widget->setProperty("style", style);
        applySheet(widget, element);
    }
    if (polished)
        applyFontSize(widget, element, fontVariant);
}

} // namespace

void applySheet(QWidget *widget, Element element)
{
    const QString sheet = Css::instance().css(element);
    if (widget->testAttribute(Qt::WA_WState_Polished)) {
        widget->setStyleSheet(sheet);
        return;
    }
    // Qt's answer to a change of style asks the sheet for sizes, and a sheet that was asked before its
    // widget is polished is parsed a second time then. The widget has not been shown and has nothing laid
    // out that the answer could mend.
    withoutStyleChange(widget, [=] { widget->setStyleSheet(sheet); });
}

void withoutStyleChange(QWidget *widget, const std::function<void()> &function)
{
    StyleChangeBlocker blocker;
    widget->installEventFilter(&blocker);
    function();
    widget->removeEventFilter(&blocker);
}

void applyFontSize(QWidget *widget, Element element, const QString &variant)
{
    setPixelSize(widget, Font::instance().scaledFontSizeByElement(element, variant));
}

void applyStyle(QWidget *widget, Element element, const QString &style, const QString &fontVariant)
{
    applyLook(widget, element, style, fontVariant);
}

void applyStyle(QWidget *widget, Element element)
{
    applyLook(widget, element, widget->property("style"), QString());
}

QPixmap iconPixmap(const QIcon &icon, const QSize &size, const QWidget *widget, QIcon::Mode mode)
{
    if (QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
        return icon.pixmap(widget->window()->windowHandle(), size, mode, QIcon::Off);
    const qreal ratio = widget->devicePixelRatioF();
    const QSize wanted = size * ratio;
    QPixmap pixmap = icon.pixmap(wanted, mode, QIcon::Off);
    // An icon that has nothing as large keeps its own size.
    const qreal fill = qMax(qreal(pixmap.width()) / wanted.width(), qreal(pixmap.height()) / wanted.height());
    pixmap.setDevicePixelRatio(qMax(qreal(1), ratio * fill));
    return pixmap;
}

QIcon fileIcon(const QString &resource)
{
    struct Kept
    {
        QByteArray content;
        QIcon icon;
    };
    static QHash<QString, Kept> kept;
    static bool cleared = (qAddPostRoutine([] { kept.clear(); }), true); // icons end with the application
    Q_UNUSED(cleared)

    const QResource file(resource);
    const auto content =
        QByteArray::fromRawData(reinterpret_cast<const char *>(file.data()), int(file.size()));
    Kept &entry = kept[resource];
    if (entry.icon.isNull() || entry.content != content)
        entry = {QByteArray(content.constData(), content.size()), QIcon(resource)};
    return entry.icon;
}

int scaled(int pixelSize)
{
    const qint64 size = qint64(pixelSize) + Css::instance().fontDelta();
    return int(
        qBound(qint64(std::numeric_limits<int>::min()), size, qint64(std::numeric_limits<int>::max())));
}

void setPixelSize(QWidget *widget, int pixelSize)
{
    if (pixelSize <= 0)
        return;
    QFont font = widget->font();
    font.setPixelSize(pixelSize);
    widget->setFont(font);
}

bool isStyleSheetStyled(const QWidget *widget)
{
    return widget->style()->inherits("QStyleSheetStyle");
}

void repolish(QWidget *widget)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return; // sees the properties when it is polished
    const QPointer<QWidget> alive(widget);
    QStyle *style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &event);
    // A rule may ask for a property of an ancestor.
    if (alive)
        repolish(widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void repolish(const QList<QWidget *> &widgets)
{
    // What one widget does when its style changes may be the end of another.
    const QVector<QPointer<QWidget>> living(widgets.begin(), widgets.end());
    for (const QPointer<QWidget> &widget : living) {
        if (widget)
            repolish(widget);
    }
}

} // namespace NVO::StyleSupport
