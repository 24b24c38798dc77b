#include "theme/StyleSupport.h"

#include <nvo/Css.h>
#include <nvo/Font.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFont>
#include <QStyle>
#include <QWidget>

namespace NVO::StyleSupport {

namespace {

/** Keeps QEvent::StyleChange from the object that it filters. */
class StyleChangeBlocker : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::StyleChange; }
};

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
    StyleChangeBlocker blocker;
    widget->installEventFilter(&blocker);
    widget->setStyleSheet(sheet);
    widget->removeEventFilter(&blocker);
}

void applySheet(QWidget *widget, Element element, const QString &style)
{
    const QString sheet = Css::instance().css(element);
    if (widget->property("style") == style && widget->styleSheet() == sheet)
        return;
    widget->setProperty("style", style);
    applySheet(widget, element);
}

void applyFontSize(QWidget *widget, Element element, const QString &variant)
{
    setPixelSize(widget, Font::instance().scaledFontSizeByElement(element, variant));
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
    QStyle *style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &event);
    // A rule may ask for a property of an ancestor.
    repolish(widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void repolish(const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets)
        repolish(widget);
}

} // namespace NVO::StyleSupport
