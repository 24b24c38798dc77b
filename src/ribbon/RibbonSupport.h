#pragma once

#include <QPointer>
#include <QString>

class QLabel;
class QWidget;

/** What shell, pages and groups of the ribbon share. */
namespace NVO {

class Action;

namespace RibbonSupport {

/** A text on a single line, each line break of it a blank. */
QString singleLine(QString text);

/** The key of an action as it is shown and typed, in upper case; as it stands where there is no ribbon. */
QString indexKey(const QWidget *widget, const Action *action);

/** Name, key and command of an action, for inspection. */
QString indexEntry(const QWidget *widget, const Action *action);

/** The object names of the labels that show the keys of tabs and of controls. */
const QLatin1String tabKeytip("RibbonKeytip");
const QLatin1String controlKeytip("RibbonGroupKeytip");

/** The label that shows a key; it is a child of \a parent and does not show yet. */
QLabel *createKeytip(QWidget *parent, QLatin1String objectName, const QString &text);

bool isKeytip(const QObject *object);

/**
 * Runs the steps that copy the state of an action into a control, as long as both live: a slot that hears of
 * one step may delete either. Returns whether the control still lives.
 */
template <typename... Steps>
bool copyState(const QObject *control, const QObject *action, const Steps &...steps)
{
    const QPointer<const QObject> livingControl(control);
    const QPointer<const QObject> livingAction(action);
    const auto run = [&](const auto &step) {
        if (livingControl && livingAction)
            step();
    };
    (run(steps), ...);
    return !livingControl.isNull();
}

/** Keeps the descendants of an object that is about to die from telling it what they do as they go. */
void silenceDescendants(QObject *receiver);

} // namespace RibbonSupport
} // namespace NVO
