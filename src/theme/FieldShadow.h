#pragma once

class QWidget;

namespace NVO {

/**
 * Gives \a widget the shadow of a field that is sunken into the page: inside, along the left and the upper
 * edge of what the widget paints opaque. Only the classic look, Product::variant 0, has it; in any other
 * nothing is done.
 */
void installFieldShadow(QWidget *widget);

} // namespace NVO
