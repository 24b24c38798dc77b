#pragma once

#include "completer/Completer.h"
#include "completer/CompleterView.h"

#include <nvo/Button.h>
#include <nvo/LineEdit.h>
#include <nvo/LineEditWithButton.h>

#include <QApplication>
#include <QHeaderView>
#include <QPointer>
#include <QtTest>

using Row = NVO::CompleterDataRow;

inline Row makeRow(int type, const QStringList &texts)
{
    Row row;
    row.setType(Row::Type(type));
    for (const QString &text : texts)
        row.addColumn(text, QString());
    return row;
}

/** One entry that can be removed, then two below a second caption. */
inline NVO::CompleterData makeNames()
{
    NVO::CompleterData data;
    data.setTitle("Anmelden als");
    data.setHeaders({"Benutzer", "Name"});
    data.addRow(makeRow(Row::MainCaption, {"Zuletzt"}));
    data.addRow(makeRow(Row::DataRemovable, {"brandt", "Sabine Brandt"}));
    data.addRow(makeRow(Row::SubCaption, {"Kanzlei"}));
    data.addRow(makeRow(Row::Data, {"keller", "Andrea Keller"}));
    data.addRow(makeRow(Row::DataRemovable, {"moeller", "Jörg Möller"}));
    return data;
}

/** A field, its parts and its popup. */
struct CompleterField : NVO::LineEditWithButton
{
    explicit CompleterField(QWidget *parent = nullptr)
        : LineEditWithButton(parent)
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            auto *completer = qobject_cast<NVO::Completer *>(window);
            if (completer && !completer->property("known").isValid())
                popup = completer;
        }
        popup->setProperty("known", true);
        list = popup->findChild<NVO::CompleterView *>();
    }

    /** The cell in the row that starts with \a text, marked or not. */
    QModelIndex cell(const QString &text, int column = 0) const
    {
        const QAbstractItemModel *model = list->model();
        for (int i = 0; i < model->rowCount(); ++i) {
            const QModelIndex caption = model->index(i, 0);
            for (int row = -1; row < model->rowCount(caption); ++row) {
                const QModelIndex index = row < 0 ? caption : model->index(row, 0, caption);
                if (index.data().toString().remove("<b>").remove("</b>").startsWith(text))
                    return index.siblingAtColumn(column);
            }
        }
        return {};
    }
    void click(const QModelIndex &index) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
    void click(const QString &text, int column) const { click(cell(text, column)); }

    NVO::LineEdit *edit = findChild<NVO::LineEdit *>("lineEdit");
    NVO::Button *bulb = findChild<NVO::Button *>("button");
    QPointer<NVO::Completer> popup;
    QPointer<NVO::CompleterView> list;
};
