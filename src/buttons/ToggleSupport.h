#pragma once

#include <QVariant>
#include <QVector>

class QCheckBox;
class QWidget;

/** What the toggles have in common besides their states. */
namespace NVO::ToggleSupport {

/** Whether \a toggle shows its on side as chosen: a toggle held down shows what it becomes on release. */
bool isShownOn(const QCheckBox &toggle);

/** A dynamic property of a part of a toggle. The part may be null. */
struct PartProperty
{
    QWidget *part;
    const char *name;
    QVariant value;
};

/** Sets \a properties and lets the sheet of \a toggle look at the parts for which that was a change. */
void setProperties(const QWidget *toggle, const QVector<PartProperty> &properties);

} // namespace NVO::ToggleSupport
