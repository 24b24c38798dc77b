#pragma once

#include <nvo/BaseEdit.h>

namespace NVO {

/**
 * A text field in the look of ElementTimeEdit. It knows nothing of times: a mask or a validator is the
 * application's.
 */
class NVO_EXPORT TimeEdit : public BaseEdit
{
    Q_OBJECT

public:
    explicit TimeEdit(QWidget *parent = nullptr);
};

} // namespace NVO
