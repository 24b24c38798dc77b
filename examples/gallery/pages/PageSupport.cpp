#include "pages/PageSupport.h"

#include "pages/ForcedState.h"

#include <nvo/Css.h>
#include <nvo/Label.h>
#include <nvo/Pixmap.h>

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>
#include <array>

namespace {

// In the order of LabelRole and Ground; the sheet of the window selects on them.
constexpr std::array<const char *, 7> roleNames{"headline", "text",          "name", "caption",
                                                "onDark",   "captionOnDark", "error"};
constexpr std::array<const char *, 4> groundNames{"card", "dark", "window", "outline"};

} // namespace

NVO::Label *makeLabel(const QString &text, NVO::Font::FontSize size, LabelRole role)
{
    auto *label = new NVO::Label;
    QFont font = label->font();
    font.setPixelSize(std::max(NVO::Font::instance().fontSize(size), 1));
    label->setFont(font);
    label->setProperty("galleryRole", QLatin1String(roleNames.at(std::size_t(role))));
    label->setText(text);

    // A label adds the delta when it hears that it has changed; a new one has heard nothing yet.
    if (NVO::Css::instance().fontDelta() != 0) {
        QEvent event(QEvent::ApplicationFontChange);
        QApplication::sendEvent(label, &event);
    }
    return label;
}

NVO::Label *makeCaption(const QString &text, NVO::Font::FontSize size)
{
    return makeLabel(text, size, LabelRole::Caption);
}

QFrame *makeGround(Ground ground)
{
    auto *frame = new QFrame;
    frame->setProperty("ground", QLatin1String(groundNames.at(std::size_t(ground))));
    return frame;
}

QVBoxLayout *withCaption(QWidget *widget, const QString &caption)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(widget, 0, Qt::AlignLeft);
    NVO::Label *label = makeCaption(caption);
    label->setBuddy(widget);
    layout->addWidget(label);
    return layout;
}

QVBoxLayout *makeOpenBox(QComboBox *box, QWidget *list)
{
    auto *picture = new QLabel;
    picture->setPixmap(list->grab());
    picture->setFixedSize(list->size());
    ForcedState::apply(box, ForcedState::Focus); // the look of an open one
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(box);
    column->addWidget(picture);
    column->addStretch();
    return column;
}

QPixmap themeImage(const QString &name)
{
    return NVO::Pixmap(QStringLiteral(":/") + name);
}
