#pragma once

#include <nvo/Export.h>
#include <nvo/RibbonControl.h>
#include <nvo/RibbonLayoutHelper.h>

#include <QLayout>
#include <QList>
#include <QPointer>

#include <memory>

namespace NVO {

class Label;
class RibbonItemList;

/**
 * The layout of an open ribbon group: controls in columns of up to three, in as few as its width asks for,
 * above a caption.
 *
 * Its items are widgets that are RibbonControls. Columns stand 5 pixels apart, controls in a column 2.
 */
class NVO_EXPORT RibbonGroupLayout : public QLayout
{
    Q_OBJECT

public:
    explicit RibbonGroupLayout(QWidget *p_parent = nullptr);
    ~RibbonGroupLayout() override;

    /** Takes an item over. Spacers and layouts are deleted; null is left out. */
    void addItem(QLayoutItem *p_item) override;
    int count() const override;
    /** The item at a position; null out of range. */
    QLayoutItem *itemAt(int p_index) const override;
    /** Takes the item at a position out and gives it to the caller; null out of range. */
    QLayoutItem *takeAt(int p_index) override;

    /** The most compact arrangement, like minimumSize() and maximumSize(). */
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    void setGeometry(const QRect &p_rect) override;

    /** The size in pixels in a mode: the compact one for Small, else what \a p_available makes of it. */
    QSize sizeFromMode(RibbonControl::SizeMode p_mode, const QSize &p_available) const;

    /** The compact size in pixels for Small or \a p_minimum, else that with each control in a column of its
     * own. */
    QSize sizeFromMode(RibbonControl::SizeMode p_mode, bool p_minimum) const;

    /** The widgets whose controls are visible, in order. */
    QList<QWidget *> visibleWidgets() const;

    /** The columns as they stand now. */
    QList<RibbonLayoutHelper> getWidgets() const;

    /** The caption. */
    QWidget *getLabel() const;

    /** Sets the caption and shows it, or hides it if it is empty. */
    void setText(const QString &p_text);

    /** How many controls a column has at most: 3. */
    static int getCountVerticalControls();

private:
    class Arrangement;

    void doLayout() const;
    void adoptCaption();
    QSize withCaption(QSize size) const;

    std::unique_ptr<RibbonItemList> m_items;
    QPointer<Label> m_label;
    QRect m_area; // unlike geometry() it stands until the next layout
};

} // namespace NVO
