#include "overview/RightSideDummyButton.h"

#include "theme/StyleSupport.h"

#include <QEvent>
#include <QVariant>

namespace NVO {

RightSideDummyButton::RightSideDummyButton(const QString &row, QWidget *parent)
    : QFrame(parent)
{
    setObjectName(row);
    // Shares what there is with the buttons, so that the rows keep their heights.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setProperty("rightToLeft", layoutDirection() == Qt::RightToLeft);
}

void RightSideDummyButton::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    setProperty("rightToLeft", layoutDirection() == Qt::RightToLeft);
    StyleSupport::repolish(this);
}

} // namespace NVO
