#pragma once

#include <nvo/CompleterData.h>

#include <QAbstractItemModel>

#include <memory>

namespace NVO {

class CompleterMatch;
class CompleterTreeItem;

/**
 * A CompleterData as a tree of two levels: captions at the top, entries below the caption that last came
 * before them. Entries that come before any caption stand at the top themselves, and rows without a known
 * type are left out.
 *
 * There is one column more than headers; it has no text and is where entries show their remove cross.
 *
 * Roles: Qt::DisplayRole gives the text, with each match of the matching text between bold tags, whatever its
 * case; Qt::UserRole gives the CompleterDataRow::Type as an int; Qt::TextAlignmentRole is always left. There
 * are no others. Texts are marked when they are first asked for, and kept until the matching text or the data
 * changes. GUI thread only.
 */
class NVO_EXPORT CompleterSourceModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit CompleterSourceModel(QObject *parent);

    /** Keeps \a data for getCompleterData(), but shows nothing before setCompleterData() is called. */
    CompleterSourceModel(const CompleterData &data, QObject *parent);
    ~CompleterSourceModel() override;

    /** Shows \a data; the model is reset. */
    void setCompleterData(const CompleterData &data);

    /** What is shown: the data that was set, without the rows that were removed since. */
    const CompleterData getCompleterData();

    /** Marks \a text from now on, taken letter by letter; an empty one marks nothing. The model is reset. */
    void setMatchingText(const QString &text);

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /**
     * Takes rows out of the tree and out of the data; with a caption go its entries. Rows that do not exist
     * are passed over. Always true.
     */
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    using QObject::parent;

private:
    friend class Completer;
    friend class CompleterProxyModel;

    CompleterTreeItem *getItem(const QModelIndex &index) const;
    void setupModelData();

    QString plainText(const QModelIndex &index) const;
    QString markedText(const CompleterTreeItem &item, int column) const;
    QList<int> dataRows(const CompleterTreeItem &parent, int row, int count) const;

    std::unique_ptr<CompleterTreeItem> m_rootItem;
    CompleterData m_completerData;
    QString m_matchingText;
    std::unique_ptr<CompleterMatch> m_match; // of the matching text
    unsigned m_key = 0;                      // changes with the matching text
    unsigned m_tree = 0;                     // changes with the rows
};

} // namespace NVO
