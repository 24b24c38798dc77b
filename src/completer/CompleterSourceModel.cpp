#include <nvo/CompleterSourceModel.h>

#include "completer/CompleterMatch.h"
#include "completer/CompleterTreeItem.h"

#include <algorithm>

namespace NVO {

namespace {

bool isCaption(int type)
{
    return type == CompleterDataRow::MainCaption || type == CompleterDataRow::SubCaption;
}

bool isShown(int type)
{
    return type >= CompleterDataRow::MainCaption && type <= CompleterDataRow::DataRemovable;
}

QVector<QVariant> variants(const QStringList &texts)
{
    QVector<QVariant> result;
    result.reserve(texts.size());
    for (const QString &text : texts)
        result.append(text);
    return result;
}

/** The number of rows above child \a row of \a parent, counted over the whole tree. */
int rowsAbove(const CompleterTreeItem &parent, int row)
{
    if (parent.parent())
        return rowsAbove(*parent.parent(), parent.childNumber()) + 1 + row;
    int rows = row;
    for (int above = 0; above < row; ++above)
        rows += parent.child(above)->childCount();
    return rows;
}

} // namespace

CompleterSourceModel::CompleterSourceModel(QObject *parent)
    : CompleterSourceModel(CompleterData(), parent)
{}

CompleterSourceModel::CompleterSourceModel(const CompleterData &data, QObject *parent)
    : QAbstractItemModel(parent)
    , m_completerData(data)
    , m_match(std::make_unique<CompleterMatch>(QString()))
{}

CompleterSourceModel::~CompleterSourceModel() = default;

void CompleterSourceModel::setCompleterData(const CompleterData &data)
{
    beginResetModel();
    m_completerData = data;
    setupModelData();
    endResetModel();
}

const CompleterData CompleterSourceModel::getCompleterData()
{
    return m_completerData;
}

void CompleterSourceModel::setMatchingText(const QString &text)
{
    m_matchingText = text;
    m_match = std::make_unique<CompleterMatch>(text);
    ++m_key;
    beginResetModel();
    endResetModel();
}

QModelIndex CompleterSourceModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!m_rootItem || column < 0 || column > m_rootItem->columnCount()
        || (parent.isValid() && parent.column() != 0))
        return QModelIndex();
    const CompleterTreeItem *const item = getItem(parent);
    CompleterTreeItem *const child = item ? item->child(row) : nullptr;
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex CompleterSourceModel::parent(const QModelIndex &index) const
{
    const CompleterTreeItem *const item = index.isValid() ? getItem(index) : nullptr;
    CompleterTreeItem *const parent = item ? item->parent() : nullptr;
    return !parent || parent == m_rootItem.get() ? QModelIndex()
                                                 : createIndex(parent->childNumber(), 0, parent);
}

int CompleterSourceModel::rowCount(const QModelIndex &parent) const
{
    const CompleterTreeItem *const item = parent.column() > 0 ? nullptr : getItem(parent);
    return item ? item->childCount() : 0;
}

int CompleterSourceModel::columnCount(const QModelIndex &) const
{
    return m_rootItem ? m_rootItem->columnCount() + 1 : 0;
}

QVariant CompleterSourceModel::data(const QModelIndex &index, int role) const
{
    const CompleterTreeItem *const item = index.isValid() ? getItem(index) : nullptr;
    if (!item)
        return QVariant();
    switch (role) {
    case Qt::TextAlignmentRole:
        return int(Qt::AlignLeft);
    case Qt::UserRole:
        return item->type();
    case Qt::DisplayRole:
        return markedText(*item, index.column());
    default:
        return QVariant();
    }
}

QVariant CompleterSourceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!m_rootItem || orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return m_rootItem->data(section);
}

bool CompleterSourceModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const int rows = rowCount(parent);
    if (row < 0 || row >= rows || count <= 0)
        return true;
    const int end = row + std::min(count, rows - row);
    CompleterTreeItem *const item = getItem(parent);
    beginRemoveRows(parent, row, end - 1);
    const QList<int> gone = dataRows(*item, row, end - row);
    std::for_each(gone.rbegin(), gone.rend(), [this](int dataRow) { m_completerData.removeRow(dataRow); });
    item->removeChildren(row, end - row);
    ++m_tree;
    endRemoveRows();
    return true;
}

/** The item of the index, the root for none, and null for an index of another model. */
CompleterTreeItem *CompleterSourceModel::getItem(const QModelIndex &index) const
{
    if (!index.isValid())
        return m_rootItem.get();
    return index.model() == this ? static_cast<CompleterTreeItem *>(index.internalPointer()) : nullptr;
}

void CompleterSourceModel::setupModelData()
{
    const QStringList &headers = m_completerData.headers();
    ++m_tree;
    m_rootItem = std::make_unique<CompleterTreeItem>(variants(headers), nullptr);
    m_rootItem->setType(0);
    CompleterTreeItem *caption = m_rootItem.get();
    for (const CompleterDataRow &row : m_completerData.rowData()) {
        if (!isShown(row.type()))
            continue;
        const bool isTop = isCaption(row.type());
        CompleterTreeItem *const parent = isTop ? m_rootItem.get() : caption;
        parent->insertChild(parent->childCount(), headers.size());
        CompleterTreeItem *const item = parent->child(parent->childCount() - 1);
        for (int column = 0; column < headers.size(); ++column)
            item->setData(column, isTop && column > 0 ? QString() : row.columnData(column).first);
        item->setType(row.type());
        if (isTop)
            caption = item;
    }
}

/** The text of a cell without bold tags. */
QString CompleterSourceModel::plainText(const QModelIndex &index) const
{
    const CompleterTreeItem *const item = index.isValid() ? getItem(index) : nullptr;
    return item ? item->text(index.column()) : QString();
}

QString CompleterSourceModel::markedText(const CompleterTreeItem &item, int column) const
{
    const QString text = item.text(column);
    if (m_matchingText.isEmpty() || text.isEmpty())
        return text;
    CompleterTreeItem::Marked &kept = item.marked();
    if (kept.key != m_key) {
        kept.key = m_key;
        kept.texts.fill(QString(), item.columnCount());
    }
    QString &marked = kept.texts[column];
    if (marked.isNull())
        marked = m_match->marked(text);
    return marked;
}

/** The rows of the data from which these children come, and all below them. */
QList<int> CompleterSourceModel::dataRows(const CompleterTreeItem &parent, int row, int count) const
{
    const int begin = rowsAbove(parent, row);
    int end = begin + count;
    for (int child = row; child < row + count; ++child)
        end += parent.child(child)->childCount();

    QList<int> result;
    int shown = 0;
    const QList<CompleterDataRow> rows = m_completerData.rowData();
    for (int dataRow = 0; dataRow < rows.size() && shown < end; ++dataRow) {
        if (!isShown(rows.at(dataRow).type()))
            continue;
        if (shown++ >= begin)
            result.append(dataRow);
    }
    return result;
}

} // namespace NVO
