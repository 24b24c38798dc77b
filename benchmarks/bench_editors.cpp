// What a key costs in the entry fields, painting included.

#include "theme/FieldShadow.h"

#include <nvo/Css.h>
#include <nvo/LineEdit.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

#include <memory>

namespace {

const QString mask = QStringLiteral(">AA99 9999 9999 9999 9999 99");

using MakeField = std::unique_ptr<QLineEdit> (*)();

template <typename Field>
std::unique_ptr<QLineEdit> masked()
{
    auto field = std::make_unique<Field>();
    field->setInputMask(mask);
    field->setText(QStringLiteral("DE02 1203 0000"));
    return field;
}

/** Qt's field with the sheet of ours. */
std::unique_ptr<QLineEdit> qtField()
{
    std::unique_ptr<QLineEdit> field = masked<QLineEdit>();
    field->setProperty("style", QStringLiteral("Normal"));
    field->setStyleSheet(NVO::Css::instance().css(NVO::ElementLineEdit));
    return field;
}

std::unique_ptr<QLineEdit> qtFieldWithShadow()
{
    std::unique_ptr<QLineEdit> field = qtField();
    NVO::installFieldShadow(field.get());
    return field;
}

std::unique_ptr<QLineEdit> withoutShadow()
{
    std::unique_ptr<QLineEdit> field = masked<NVO::LineEdit>();
    field->setGraphicsEffect(nullptr);
    return field;
}

void sendKey(QWidget *widget, Qt::Key key, const QString &text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &event);
    }
    QApplication::processEvents();
}

/** A digit is typed at the end, or taken away. */
void key(benchmark::State &state, MakeField make)
{
    const std::unique_ptr<QLineEdit> field = make();
    field->resize(260, 25);
    field->show();
    field->activateWindow();
    field->setFocus();
    QApplication::processEvents();
    field->end(false);
    bool typed = false;
    for (auto _ : state) {
        typed = !typed;
        if (typed)
            sendKey(field.get(), Qt::Key_7, QStringLiteral("7"));
        else
            sendKey(field.get(), Qt::Key_Backspace, QString());
    }
}

BENCHMARK_CAPTURE(key, ours, masked<NVO::LineEdit>)
    ->Name("editors/key_masked/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(key, peer, qtFieldWithShadow)
    ->Name("editors/key_masked/q_line_edit")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(key, ours, masked<NVO::LineEdit>)
    ->Name("editors/key_shadow/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(key, peer, withoutShadow)
    ->Name("editors/key_shadow/no_shadow")
    ->Unit(benchmark::kMicrosecond);

} // namespace
