#include "dialogs/DialogSupport.h"

#include "theme/StyleSupport.h"

#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>
#include <nvo/Product.h>

#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

namespace NVO::DialogSupport {

namespace {

constexpr int narrowWidth = 520;
constexpr int wideWidth = 630;
constexpr int unlimitedWidth = 2000;
constexpr int lineWeight = 1;

/** Lets the layouts hear at once, from the innermost out, of what has been shown and hidden in them. */
void updateLayouts(const QWidget &widget)
{
    const QList<QWidget *> descendants = widget.findChildren<QWidget *>();
    for (auto descendant = descendants.rbegin(); descendant != descendants.rend(); ++descendant) {
        if ((*descendant)->layout())
            (*descendant)->layout()->activate();
    }
}

} // namespace

void sleep(QWidget *widget)
{
    widget->setStyleSheet(QString());
}

void wake(QWidget *widget, Element element)
{
    if (widget->styleSheet().isEmpty())
        StyleSupport::applySheet(widget, element);
}

QVBoxLayout *tightColumn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

Label *wrappedLabel(const QString &text, const QString &objectName, QWidget *parent)
{
    auto *label = new Label(parent);
    label->setWordWrap(true);
    label->setText(text);
    label->setObjectName(objectName);
    return label;
}

HairLine *checkBoxLine()
{
    auto *line = new HairLine(Qt::Horizontal);
    line->setWeight(lineWeight);
    line->setColor(Palette::instance().namedColor(Product::instance().variant == 1
                                                      ? QStringLiteral("BASECOLOR_SILVER")
                                                      : QStringLiteral("BASECOLOR_MERCURY_GRAY")));
    return line;
}

QSize sizeForText(const QDialog &dialog)
{
    updateLayouts(dialog);
    if (!dialog.layout()->hasHeightForWidth())
        return dialog.QDialog::sizeHint();
    const int narrowHeight = dialog.heightForWidth(narrowWidth);
    if (dialog.heightForWidth(unlimitedWidth) >= narrowHeight)
        return QSize(narrowWidth, narrowHeight);
    return QSize(wideWidth, dialog.heightForWidth(wideWidth));
}

void fitToText(QDialog &dialog)
{
    QSize size = dialog.sizeHint();
    const int leastWidth = dialog.layout()->totalMinimumSize().width();
    if (size.width() < leastWidth)
        size = QSize(leastWidth, dialog.heightForWidth(leastWidth));
    size = size.boundedTo(dialog.screen()->availableSize());
    const bool isResized = dialog.testAttribute(Qt::WA_Resized);
    dialog.resize(isResized || dialog.isVisible() ? size.expandedTo(dialog.size()) : size);
    dialog.setAttribute(Qt::WA_Resized, isResized); // by others: the next time it may be another text
}

void showFitted(QDialog &dialog, const std::function<void()> &show)
{
    const QPointer<QDialog> alive(&dialog);
    const bool isResized = dialog.testAttribute(Qt::WA_Resized);
    fitToText(dialog);
    dialog.setAttribute(Qt::WA_Resized); // else Qt finds a size of its own
    show();
    if (alive)
        dialog.setAttribute(Qt::WA_Resized, isResized);
}

} // namespace NVO::DialogSupport
