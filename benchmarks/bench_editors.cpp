// What a key and a change of the focus cost in the entry fields.

#include "theme/FieldShadow.h"

#include <nvo/Css.h>
#include <nvo/DateEdit.h>
#include <nvo/LineEdit.h>
#include <nvo/NumericEdit.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <memory>

namespace {

using Edit = std::unique_ptr<QLineEdit>;
using MakeEdit = Edit (*)();

/** Qt's field with mask, sheet and shadow of ours. */
Edit qtField(NVO::Element element, const char *className, const QString &mask)
{
    auto field = std::make_unique<QLineEdit>();
    field->setInputMask(mask);
    for (const char *selectedOn : {"style", "lineEditStyle"})
        field->setProperty(selectedOn, "Normal");
    field->setStyleSheet(QString(NVO::Css::instance().css(element)).replace(className, "QLineEdit"));
    NVO::installFieldShadow(field.get());
    return field;
}

/** A digit comes to a text, or goes: one turn is the press and what is done \a afterwards. */
template <typename Afterwards>
void typeAndErase(benchmark::State &state, QWidget &field, Qt::Key digit, Afterwards afterwards)
{
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        QKeyEvent press(QEvent::KeyPress, typed ? digit : Qt::Key_Backspace, Qt::NoModifier,
                        typed ? QString(QChar(digit)) : QString());
        QApplication::sendEvent(&field, &press);
        if (!press.isAccepted())
            state.SkipWithError("the key was not taken");
        afterwards();
    }
}

const QString accountMask = QStringLiteral(">AA99 9999 9999 9999 9999 99");

Edit maskedField()
{
    auto field = std::make_unique<NVO::LineEdit>();
    field->setInputMask(accountMask);
    return field;
}

Edit maskedQtField()
{
    return qtField(NVO::ElementLineEdit, "NVO--LineEdit", accountMask);
}

Edit maskedFieldWithoutShadow()
{
    Edit field = maskedField();
    field->setGraphicsEffect(nullptr);
    return field;
}

/** At the end of a text, with painting. */
void keyMasked(benchmark::State &state, MakeEdit make)
{
    const Edit field = make();
    field->setText(QStringLiteral("DE02 1203 0000"));
    field->resize(260, 25);
    field->show();
    field->activateWindow();
    field->setFocus();
    QApplication::processEvents();
    field->end(false);
    typeAndErase(state, *field, Qt::Key_7, [] { QApplication::processEvents(); });
}

Edit dateField()
{
    return std::make_unique<NVO::DateEdit>();
}

Edit dateQtField()
{
    return qtField(NVO::ElementDateEdit, "NVO--DateEdit", QStringLiteral("09.09.9999;_"));
}

/** From one of two fields to the other, which both hold \a text, with painting. */
void dateFocus(benchmark::State &state, MakeEdit make, const char *text)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    const Edit fields[] = {make(), make()};
    for (const Edit &field : fields) {
        layout->addWidget(field.get());
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

/** Behind the first of 12 digits, so that all groups change; without painting. */
template <typename Field>
void keyNumeric(benchmark::State &state)
{
    Field field;
    field.setLocale(QLocale(QLocale::German, QLocale::Germany));
    prepare(field);
    field.setValue(134567890.25);
    field.show();
    QApplication::processEvents();
    field.template findChild<QLineEdit *>()->setCursorPosition(1);
    typeAndErase(state, field, Qt::Key_2, [] {});
}

BENCHMARK_CAPTURE(keyMasked, ours, maskedField)
    ->Name("editors/key_masked/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyMasked, peer, maskedQtField)
    ->Name("editors/key_masked/q_line_edit")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyMasked, ours, maskedField)
    ->Name("editors/key_shadow/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(keyMasked, peer, maskedFieldWithoutShadow)
    ->Name("editors/key_shadow/no_shadow")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dateFocus, ours, dateField, "05.03.2019")
    ->Name("dateedit/focus/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dateFocus, peer, dateQtField, "05.03.2019")
    ->Name("dateedit/focus/line_edit")
    ->Unit(benchmark::kMicrosecond);
// Ours change between mask and placeholder.
BENCHMARK_CAPTURE(dateFocus, ours_empty, dateField, "")
    ->Name("dateedit/focus_empty/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dateFocus, peer_empty, dateQtField, "")
    ->Name("dateedit/focus_empty/line_edit")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(keyNumeric, NVO::NumericEdit)
    ->Name("numeric_edit/key/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(keyNumeric, QDoubleSpinBox)
    ->Name("numeric_edit/key/q_double_spin_box")
    ->Unit(benchmark::kMicrosecond);

} // namespace
