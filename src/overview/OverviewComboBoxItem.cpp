#include "overview/OverviewComboBoxItem.h"

#include <nvo/OverviewComboBox.h>

#include <QTextDocumentFragment>

namespace NVO {

OverviewComboBoxItem::OverviewComboBoxItem(const QVector<QPair<int, QVariant>> &content)
{
    for (const auto &each : content)
        setData(each.second, each.first);
}

QStandardItem *OverviewComboBoxItem::clone() const
{
    return new OverviewComboBoxItem(*this);
}

QVariant OverviewComboBoxItem::data(int role) const
{
    QVariant own = QStandardItem::data(role);
    if (own.isValid())
        return own;
    if (role == Qt::AccessibleTextRole) {
        const bool isAction = data(OverviewComboBox::IsActionRole).toBool();
        return spoken(isAction ? OverviewComboBox::ActionTextRole : OverviewComboBox::TitleRole);
    }
    if (role == Qt::AccessibleDescriptionRole) {
        QStringList lines{spoken(OverviewComboBox::DescriptionRole),
                          data(OverviewComboBox::PathRole).toString()};
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }
    return own;
}

/** A rich text on one line. */
QString OverviewComboBoxItem::spoken(int role) const
{
    return QTextDocumentFragment::fromHtml(data(role).toString()).toPlainText().simplified();
}

} // namespace NVO
