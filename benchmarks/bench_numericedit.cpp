// What it costs to type into a field for amounts.

#include <nvo/NumericEdit.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int cursor = 1; // behind the first digit, so that all groups change
constexpr int largest = 2147483647;

void prepare(NVO::NumericEdit &field)
{
    field.setRange(largest, 2, QStringLiteral("€"), NVO::NumericEdit::NoFlag);
}

void prepare(QDoubleSpinBox &field)
{
    field.setMaximum(largest);
    field.setSuffix(QStringLiteral(" €"));
    field.setGroupSeparatorShown(true);
    field.setButtonSymbols(QAbstractSpinBox::NoButtons);
    field.setAlignment(Qt::AlignRight);
}

/** A digit comes into a number of 12 digits, or goes: from the press to the new text and cursor. */
template <typename Field>
void key(benchmark::State &state)
{
    Field field;
    field.setLocale(QLocale(QLocale::German, QLocale::Germany));
    prepare(field);
    field.setValue(134567890.25);
    field.show();
    QApplication::processEvents();
    field.template findChild<QLineEdit *>()->setCursorPosition(cursor);
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        QKeyEvent press(QEvent::KeyPress, typed ? Qt::Key_2 : Qt::Key_Backspace, Qt::NoModifier,
                        typed ? QStringLiteral("2") : QString());
        QApplication::sendEvent(&field, &press);
        if (!press.isAccepted())
            state.SkipWithError("the key was not taken");
    }
}

BENCHMARK_TEMPLATE(key, NVO::NumericEdit)->Name("numeric_edit/key/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(key, QDoubleSpinBox)
    ->Name("numeric_edit/key/q_double_spin_box")
    ->Unit(benchmark::kMicrosecond);

} // namespace
