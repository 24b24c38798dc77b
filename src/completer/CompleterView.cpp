#include "completer/CompleterView.h"

#include "completer/CompleterProxyModel.h"

#include <nvo/CompleterSourceModel.h>

#include <QHeaderView>
#include <QStyle>

namespace NVO {

namespace {

constexpr int headerHeight = 25;

bool isCaption(const QModelIndex &index)
{
    const int type = index.data(Qt::UserRole).toInt();
    return type != CompleterDataRow::Data && type != CompleterDataRow::DataRemovable;
}

} // namespace

CompleterView::CompleterView(QWidget *parent)
    : QTreeView(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    viewport()->setAttribute(Qt::WA_Hover);
    header()->style()->unpolish(header());
    header()->style()->polish(header());
    header()->setFixedHeight(headerHeight);
    header()->setDefaultAlignment(Qt::AlignVCenter);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(false);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // so that no row has to be measured but the first
    setSortingEnabled(true);
    // The rows paint no selection; the view must not paint one in the indentation beside them.
    QPalette colors;
    colors.setBrush(QPalette::Highlight, Qt::transparent);
    setPalette(colors);
}

int CompleterView::dataRowCount() const
{
    const auto *proxy = qobject_cast<CompleterProxyModel *>(model());
    auto *source = proxy ? qobject_cast<CompleterSourceModel *>(proxy->sourceModel()) : nullptr;
    return source ? source->getCompleterData().rowCount() : 0;
}

void CompleterView::openCaptions()
{
    if (m_captionsOpen || !model())
        return;
    m_captionsOpen = true;
    QVector<int> captions;
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (isCaption(model()->index(row, 0)))
            captions.append(row);
    }
    scheduleDelayedItemsLayout(); // one layout for all of them
    for (const int row : qAsConst(captions))
        expand(model()->index(row, 0));
    // While nothing spans the columns no row is asked whether it does, which is slow.
    doItemsLayout();
    for (const int row : qAsConst(captions))
        setFirstColumnSpanned(row, QModelIndex(), true);
}

void CompleterView::reset()
{
    m_captionsOpen = false;
    QTreeView::reset();
}

} // namespace NVO
