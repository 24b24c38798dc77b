#include "buttons/ToggleSupport.h"

#include "theme/StyleSupport.h"

#include <QCheckBox>

namespace NVO::ToggleSupport {

bool isShownOn(const QCheckBox &toggle)
{
    return toggle.isChecked() != toggle.isDown();
}

void setPartProperty(QWidget *part, const char *name, const QVariant &value)
{
    if (!part || part->property(name) == value)
        return;
    part->setProperty(name, value);
    if (StyleSupport::isStyleSheetStyled(part))
        StyleSupport::repolish(part);
}

} // namespace NVO::ToggleSupport
