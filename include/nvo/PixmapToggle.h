#pragma once

#include <nvo/AbstractToggle.h>

#include <QPointer>

class QFrame;
class QLabel;

namespace NVO {

/**
 * A toggle with a check mark on its on side and a cross on its off side. While it is disabled it shows one
 * symbol only, the one that holds.
 *
 * Its look comes from the sheet of ElementPixmapToggle, which selects on the frames "leftFrame",
 * "middleFrame" (the divider, which shows in the classic look, Product::variant 0) and "rightFrame", on their
 * property "state" and on the property "checked" of the outer two.
 */
class NVO_EXPORT PixmapToggle : public AbstractToggle
{
    Q_OBJECT

public:
    explicit PixmapToggle(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &pos) const override;
    void checkStateSet() override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyState(const QString &state) override;
    void initStyleSheet();
    void checkBoxToggled();
    void updatePixmaps();

    QPointer<QLabel> m_leftFrame;
    QPointer<QFrame> m_middleFrame;
    QPointer<QLabel> m_rightFrame;
};

} // namespace NVO
