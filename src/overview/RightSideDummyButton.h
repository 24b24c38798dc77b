#pragma once

#include <QFrame>

namespace NVO {

/**
 * Stands where a split tile has no button at the right. Its object name is "top", "middle" or "bottom", by
 * its row; its dynamic property "rightToLeft" says at which side the frame of the tile is.
 */
class RightSideDummyButton : public QFrame
{
    Q_OBJECT

public:
    /** That of a row, whatever is in it. */
    static constexpr QSize smallestSize{0, 63};

    RightSideDummyButton(const QString &row, QWidget *parent);

    QSize sizeHint() const override { return smallestSize; }
    QSize minimumSizeHint() const override { return smallestSize; }

protected:
    void changeEvent(QEvent *event) override;
};

} // namespace NVO
