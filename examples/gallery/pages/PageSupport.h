#pragma once

#include <nvo/Font.h>

#include <QPixmap>
#include <QString>

class QComboBox;
class QFrame;
class QVBoxLayout;
class QWidget;

namespace NVO {
class Label;
}

/** \name What pages are made of
 * Everything made here has no parent yet; the layout that takes it gives it one. */
///@{

constexpr int pageMargin = 24;
constexpr int cardPadding = 16;
constexpr int cardBorder = 1;

/** What a text is to the reader; the sheet of the window gives each its face and colour. */
enum class LabelRole { Headline, Text, Name, Caption, OnDark, CaptionOnDark, Error };

/** A label in one step of the type scale, which follows the font delta from the start. */
NVO::Label *makeLabel(const QString &text, NVO::Font::FontSize size = NVO::Font::DEFAULT,
                      LabelRole role = LabelRole::Text);

NVO::Label *makeCaption(const QString &text, NVO::Font::FontSize size = NVO::Font::SMALL);

enum class Ground { Card, Dark, Window, Outline };

/** An empty frame with one of the grounds of the theme. */
QFrame *makeGround(Ground ground);

/** \a widget above its caption, both at the left. */
QVBoxLayout *withCaption(QWidget *widget, const QString &caption);

/** \a box as it looks while it is open, above a picture of \a list. */
QVBoxLayout *makeOpenBox(QComboBox *box, QWidget *list);

/** An image of the theme by its name, for the ratio of the screen; null if there is none. */
QPixmap themeImage(const QString &name);

///@}
