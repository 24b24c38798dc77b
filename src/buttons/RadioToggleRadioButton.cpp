#include "buttons/RadioToggleRadioButton.h"

#include <QKeySequence>
#include <QStyle>
#include <QStyleOptionButton>

namespace NVO {

namespace {

constexpr int iconSpacing = 4;

} // namespace

RadioToggleRadioButton::RadioToggleRadioButton(QWidget *parent)
    : QRadioButton(parent)
{
    // Else a radio button of the form that is chosen would take the mark from this one.
    setAutoExclusive(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RadioToggleRadioButton::setText(const QString &text)
{
    QRadioButton::setText(text);
    setShortcut(QKeySequence());
}

QSize RadioToggleRadioButton::sizeHint() const
{
    ensurePolished();
    QFont chosen = font();
    chosen.setWeight(QFont::DemiBold);
    QStyleOptionButton option;
    initStyleOption(&option);
    QSize size =
        style()->itemTextRect(QFontMetrics(chosen), QRect(), Qt::TextShowMnemonic, false, text()).size();
    if (!option.icon.isNull()) {
        size.rwidth() += option.iconSize.width() + iconSpacing;
        size.rheight() = qMax(size.height(), option.iconSize.height());
    }
    return style()->sizeFromContents(QStyle::CT_RadioButton, &option, size, this);
}

} // namespace NVO
