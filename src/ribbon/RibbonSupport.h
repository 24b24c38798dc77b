#pragma once

#include <QString>

class QLabel;
class QObject;
class QWidget;

/** What shell, pages and groups of the ribbon share. */
namespace NVO {

class Action;

namespace RibbonSupport {

/** The text of an action on a single line, each line break of it a blank. */
QString singleLine(const Action *action);

/** The key of an action as it is shown and typed, in upper case; as it stands where there is no ribbon. */
QString indexKey(const QWidget *widget, const Action *action);

/** Name, key and command of an action, for inspection. */
QString indexEntry(const QWidget *widget, const Action *action);

/** The object names of the labels that show the keys of tabs and of controls. */
constexpr QLatin1String tabKeytip("RibbonKeytip");
constexpr QLatin1String controlKeytip("RibbonGroupKeytip");

/** The label that shows a key; it is a child of \a parent and does not show yet. */
QLabel *createKeytip(QWidget *parent, QLatin1String objectName, const QString &text);

bool isKeytip(const QObject *object);

/** Keeps the descendants of an object that is about to die from telling it what they do as they go. */
void silenceDescendants(QObject *receiver);

} // namespace RibbonSupport
} // namespace NVO
