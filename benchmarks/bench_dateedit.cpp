// What it costs to go on from one date to the next.

#include "theme/FieldShadow.h"

#include <nvo/Css.h>
#include <nvo/DateEdit.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QVBoxLayout>

namespace {

QLineEdit *houseField()
{
    return new NVO::DateEdit;
}

/** A line edit with the mask, the sheet and the effect of ours. */
QLineEdit *qtField()
{
    auto *field = new QLineEdit;
    field->setInputMask("09.09.9999;_");
    field->setProperty("style", "Normal");
    field->setStyleSheet(
        QString(NVO::Css::instance().css(NVO::ElementDateEdit)).replace("NVO--DateEdit", "QLineEdit"));
    NVO::installFieldShadow(field);
    return field;
}

/** The focus goes from one of two fields to the other, which both hold \a text, and they are repainted. */
void changeFocus(benchmark::State &state, QLineEdit *(*make)(), const char *text)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QLineEdit *fields[] = {make(), make()};
    for (QLineEdit *field : fields) {
        layout->addWidget(field);
        field->setText(text);
    }
    window.show();
    QApplication::setActiveWindow(&window);
    QApplication::processEvents();
    int current = 0;
    for (auto _ : state) {
        current = 1 - current;
        fields[current]->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(changeFocus, ours, houseField, "05.03.2019")
    ->Name("dateedit/focus/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(changeFocus, peer, qtField, "05.03.2019")
    ->Name("dateedit/focus/line_edit")
    ->Unit(benchmark::kMicrosecond);
// Ours change between mask and placeholder.
BENCHMARK_CAPTURE(changeFocus, ours_empty, houseField, "")
    ->Name("dateedit/focus_empty/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(changeFocus, peer_empty, qtField, "")
    ->Name("dateedit/focus_empty/line_edit")
    ->Unit(benchmark::kMicrosecond);

} // namespace
