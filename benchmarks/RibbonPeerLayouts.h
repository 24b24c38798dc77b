#pragma once

#include <nvo/RibbonLayoutHelper.h>

#include <QLabel>
#include <QLayout>

/**
 * The layouts of a ribbon, written down step by step: each look at a size asks the controls, and each step
 * makes its lists anew.
 */
namespace RibbonPeers {

using Mode = NVO::RibbonControl::SizeMode;

/** A layout of controls of the ribbon only. */
class ListLayout : public QLayout
{
public:
    using QLayout::QLayout;
    ~ListLayout() override { qDeleteAll(m_items); }

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return m_items.size(); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;

protected:
    NVO::RibbonLayoutHelper row(int spacing) const;
    QSize withMargins(const QSize &size) const;

private:
    QList<QLayoutItem *> m_items;
};

/** Controls in columns above a caption. */
class GroupLayout : public ListLayout
{
public:
    /** With \a keepsSize the compact size, which is asked most, is kept until something changes. */
    GroupLayout(QWidget *panel, QLabel *caption, bool keepsSize);

    QSize sizeHint() const override { return sizeFromMode(Mode::Large, true); }
    QSize minimumSize() const override { return sizeFromMode(Mode::Small, true); }
    QSize maximumSize() const override { return sizeFromMode(Mode::Large, true); }
    void setGeometry(const QRect &geometry) override;
    void invalidate() override;

    QSize sizeFromMode(Mode mode, const QSize &available) const;
    QSize sizeFromMode(Mode mode, bool minimum) const;
    NVO::RibbonLayoutHelper visible() const;

private:
    using Columns = QList<NVO::RibbonLayoutHelper>;

    Columns compactColumns() const;
    Columns columnsFor(int available) const;
    QSize withCaption(const QSize &size) const;

    QLabel *m_caption;
    bool m_keepsSize;
    mutable QSize m_compact;
};

/** Groups side by side, open from the left as far as there is room. */
class PageLayout : public ListLayout
{
public:
    using ListLayout::ListLayout;

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    void setGeometry(const QRect &geometry) override;
};

} // namespace RibbonPeers
