#pragma once

class QWidget;

namespace NVO {
class Dialog;
}

/**
 * Lets a dialog stand in a page, to be looked at: it takes neither the mouse nor the keyboard. Returns it; it
 * has no parent yet.
 */
QWidget *embedded(NVO::Dialog *dialog);
