#include "containers/AccessibleRecyclingList.h"

#include "theme/StyleSupport.h"

#include <nvo/RecyclingList.h>
#include <nvo/RecyclingListAdapter.h>

#include <QAccessibleWidget>

#include <algorithm>

namespace NVO::AccessibleRecyclingList {

namespace {

class ListInterface : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit ListInterface(RecyclingList *list)
        : QAccessibleWidget(list, QAccessible::List)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text type) const override
    {
        QString own = QAccessibleWidget::text(type);
        if (type != QAccessible::Description || !own.isEmpty())
            return own;
        const int items = rowCount();
        return items == 1 ? QStringLiteral("1 Eintrag") : QStringLiteral("%L1 Einträge").arg(items);
    }

    int rowCount() const override
    {
        RecyclingListAdapter *adapter = list()->adapter();
        return adapter ? std::max(adapter->count(), 0) : 0;
    }
    int columnCount() const override { return 1; }

    QAccessibleInterface *cellAt(int row, int column) const override
    {
        QWidget *item = column == 0 && row >= 0 ? list()->visibleWidget(row) : nullptr;
        return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    }

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QString rowDescription(int) const override { return QString(); }
    QString columnDescription(int) const override { return QString(); }
    void modelChange(QAccessibleTableModelChangeEvent *) override {}

    // Nothing can be selected.
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface *> selectedCells() const override { return {}; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedRows() const override { return {}; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool unselectRow(int) override { return false; }
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectColumn(int) override { return false; }

private:
    RecyclingList *list() const { return static_cast<RecyclingList *>(object()); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *list = StyleSupport::exactly<RecyclingList>(className, object);
    return list ? new ListInterface(list) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

} // namespace NVO::AccessibleRecyclingList
