#include "pages/EmbeddedDialog.h"

#include <nvo/Dialog.h>

QWidget *embedded(NVO::Dialog *dialog)
{
    dialog->setWindowFlags(Qt::Widget);
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->setFocusPolicy(Qt::NoFocus);
    dialog->setFixedSize(dialog->sizeHint());
    return dialog;
}
