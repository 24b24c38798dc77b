#pragma once

#include <nvo/Export.h>

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

namespace NVO {

/**
 * One row of a list of suggestions: a caption or an entry, with a text for each column.
 *
 * A value that is cheap to copy. A row of type Data or DataRemovable should have a column for each header of
 * its CompleterData; what is missing shows as an empty text. Of a caption only the first column is shown.
 */
class NVO_EXPORT CompleterDataRow
{
public:
    enum Type : int {
        MainCaption = 1,   ///< a caption on a coloured band
        SubCaption = 2,    ///< a caption without a band, beside the main captions and not below them
        Data = 3,          ///< an entry
        DataRemovable = 4, ///< an entry that the user can take out of the list
    };

    /**
     * Appends a column that shows \a text: as rich text if Qt::mightBeRichText() says so, else as it stands.
     * The list makes no use of \a value; pass an empty string.
     */
    void addColumn(const QString &text, const QVariant &value);

    int columnCount() const;

    /** The text and the value of \a column; both empty where there is no such column. */
    QPair<QString, QVariant> columnData(int column) const;

    /** Must be called before the row is added to a CompleterData: a row without a type is not shown. */
    void setType(Type type);

    /** 0, which is none of the types, until one is set. */
    Type type() const;

private:
    QList<QPair<QString, QVariant>> m_columns;
    Type m_type{};
};

} // namespace NVO
