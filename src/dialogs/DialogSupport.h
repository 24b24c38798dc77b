#pragma once

#include <nvo/Element.h>

#include <QSize>
#include <QString>

#include <functional>

class QDialog;
class QVBoxLayout;
class QWidget;

/** What the dialogs share. */
namespace NVO {

class HairLine;
class Label;

namespace DialogSupport {

/**
 * Takes the sheet from a widget that most dialogs never show. Qt would parse it with the first show of the
 * dialog all the same.
 */
void sleep(QWidget *widget);

/** Gives such a widget the sheet of its element, before it is shown. */
void wake(QWidget *widget, Element element);

/** A column without margins and spacing, the layout of \a widget. */
QVBoxLayout *tightColumn(QWidget *widget);

/** A label that wraps rich text. */
Label *wrappedLabel(const QString &text, const QString &objectName, QWidget *parent = nullptr);

/** The line above the check box. */
HairLine *checkBoxLine();

/**
 * The size of a box for its text: 520 pixels wide if no more room makes it lower, else 630, with the height
 * for that width, shadow included; that of a plain dialog if the height does not depend on the width.
 */
QSize sizeForText(const QDialog &dialog);

/**
 * Makes a dialog at least as large as its hint and its buttons ask for, but no larger than its screen. Qt
 * would make do with two thirds of the screen and cut off the text.
 */
void fitToText(QDialog &dialog);

/** Runs \a show after that. A size that the dialog was not given by others is found anew the next time. */
void showFitted(QDialog &dialog, const std::function<void()> &show);

} // namespace DialogSupport
} // namespace NVO
