// Suggestions of any types and texts, marked, filtered, sorted and removed.

#include "FuzzSupport.h"
#include "completer/CompleterProxyModel.h"

#include <nvo/CompleterSourceModel.h>

using namespace FuzzSupport;

namespace {

NVO::CompleterData takeData(FuzzedDataProvider &input)
{
    NVO::CompleterData result;
    result.setHeaders({takeText(input, 10), takeText(input, 10)});
    const int rows = input.ConsumeIntegralInRange(0, 20);
    for (int i = 0; i < rows; ++i) {
        NVO::CompleterDataRow row;
        row.setType(NVO::CompleterDataRow::Type(input.ConsumeIntegralInRange(0, 5)));
        const int columns = input.ConsumeIntegralInRange(0, 3);
        for (int column = 0; column < columns; ++column)
            row.addColumn(takeText(input, 30), QString());
        result.addRow(row);
    }
    return result;
}

void read(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            model.index(row, column, parent).data();
        read(model, model.index(row, 0, parent));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FuzzedDataProvider input(data, size);
    NVO::CompleterSourceModel model(nullptr);
    NVO::CompleterProxyModel proxy(nullptr);
    proxy.setSourceModel(&model);
    model.setCompleterData(takeData(input));
    while (input.remaining_bytes()) {
        switch (input.ConsumeIntegralInRange(0, 3)) {
        case 0: {
            const QString text = takeText(input, 10);
            proxy.setFilterText(text);
            model.setMatchingText(text);
            break;
        }
        case 1:
            proxy.sort(input.ConsumeIntegralInRange(-1, 3),
                       input.ConsumeBool() ? Qt::AscendingOrder : Qt::DescendingOrder);
            break;
        case 2: {
            const QModelIndex parent = proxy.index(input.ConsumeIntegralInRange(-1, 5), 0);
            proxy.removeRows(input.ConsumeIntegralInRange(0, 5), input.ConsumeIntegralInRange(0, 5), parent);
            break;
        }
        default:
            model.removeRows(input.ConsumeIntegralInRange(-2, 10), input.ConsumeIntegralInRange(-2, 10),
                             model.index(input.ConsumeIntegralInRange(-1, 10), 0));
        }
        read(proxy);
    }
    return 0;
}
