#include "buttons/ToggleSupport.h"

#include "theme/StyleSupport.h"

#include <QCheckBox>

namespace NVO::ToggleSupport {

bool isShownOn(const QCheckBox &toggle)
{
    return toggle.isChecked() != toggle.isDown();
}

void setProperties(const QWidget *toggle, const QVector<PartProperty> &properties)
{
    QList<QWidget *> changed;
    for (const PartProperty &property : properties) {
        if (!property.part || property.part->property(property.name) == property.value)
            continue;
        property.part->setProperty(property.name, property.value);
        changed.append(property.part);
    }
    if (StyleSupport::isStyleSheetStyled(toggle))
        StyleSupport::repolish(changed);
}

} // namespace NVO::ToggleSupport
