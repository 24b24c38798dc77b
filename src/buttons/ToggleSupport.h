#pragma once

#include <QVariant>

class QCheckBox;
class QWidget;

/** What the toggles have in common besides their states. */
namespace NVO::ToggleSupport {

/** Whether \a toggle shows its on side as chosen: a toggle held down shows what it becomes on release. */
bool isShownOn(const QCheckBox &toggle);

/** Sets a dynamic property of a part of a toggle, which may be null, and lets its sheet see a change of it.
 */
void setPartProperty(QWidget *part, const char *name, const QVariant &value);

} // namespace NVO::ToggleSupport
