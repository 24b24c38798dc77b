// What it costs to ask the user, and to repaint a button in a frame with a shadow.

#include <nvo/Css.h>
#include <nvo/Dialog.h>
#include <nvo/MessageBox.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHoverEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <memory>

namespace {

const QString title = QStringLiteral("Rechnung löschen");
const QString text =
    QStringLiteral("Die Rechnung <b>2026-0417</b> ist bereits gebucht. Möchten Sie sie trotzdem "
                   "löschen? Der Vorgang lässt sich nicht rückgängig machen.");

std::unique_ptr<QDialog> houseBox()
{
    using NVO::DialogButton;
    return std::make_unique<NVO::MessageBox>(QMessageBox::Question, title, text,
                                             DialogButton::Yes | DialogButton::No, DialogButton::No, nullptr);
}

/** The look of our box and its buttons, as one sheet for the classes of Qt. */
const QString &sheetForQt()
{
    static const QString sheet = QString(NVO::Css::instance().css(NVO::ElementDialogButton)
                                         + NVO::Css::instance().css(NVO::ElementMessageBox))
                                     .replace("NVO--DialogButton", "QPushButton")
                                     .replace("NVO--CheckBox", "QCheckBox");
    return sheet;
}

std::unique_ptr<QDialog> qtBox()
{
    auto box =
        std::make_unique<QMessageBox>(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    box->button(QMessageBox::No)->setProperty("buttonPrimary", true);
    box->setStyleSheet(sheetForQt());
    return box;
}

/** From the constructor to the first paint. */
void firstPaint(benchmark::State &state, std::unique_ptr<QDialog> (*make)())
{
    for (auto _ : state) {
        std::unique_ptr<QDialog> box = make();
        box->show();
        QApplication::processEvents();
        state.PauseTiming();
        box.reset();
        state.ResumeTiming();
    }
}

/** The mouse comes over a button of a dialog, or goes. */
void hover(benchmark::State &state, bool shadow)
{
    using NVO::DialogButton;
    NVO::Dialog dialog(nullptr, NVO::ElementDialog, DialogButton::Ok | DialogButton::Cancel, DialogButton::Ok,
                       NVO::Dialog::NoFlag);
    dialog.setShadowEnabled(shadow);
    dialog.setWindowTitle(title);
    auto *content = new QLabel(text);
    content->setMinimumSize(600, 400);
    dialog.setContent(content);
    dialog.show();
    QApplication::processEvents();
    auto *button = dialog.findChild<DialogButton *>();
    bool over = false;
    for (auto _ : state) {
        over = !over;
        QHoverEvent event(over ? QEvent::HoverEnter : QEvent::HoverLeave, QPointF(5, 5), QPointF(-1, -1));
        QApplication::sendEvent(button, &event);
        QApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(firstPaint, ours, houseBox)
    ->Name("dialogs/message_box/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(firstPaint, peer, qtBox)
    ->Name("dialogs/message_box/q_message_box")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(hover, ours, true)->Name("dialogs/hover/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(hover, peer, false)->Name("dialogs/hover/no_shadow")->Unit(benchmark::kMicrosecond);

} // namespace
