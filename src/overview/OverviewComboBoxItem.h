#pragma once

#include <QPair>
#include <QStandardItem>
#include <QVector>

namespace NVO {

/**
 * An item of an OverviewComboBox. Besides what it holds it tells how its texts are read: as plain text, made
 * when it is asked for.
 */
class OverviewComboBoxItem : public QStandardItem
{
public:
    explicit OverviewComboBoxItem(const QVector<QPair<int, QVariant>> &content);

    QStandardItem *clone() const override;
    QVariant data(int role) const override;

private:
    QString spoken(int role) const;
};

} // namespace NVO
