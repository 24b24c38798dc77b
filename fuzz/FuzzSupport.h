#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

#include <fuzzer/FuzzedDataProvider.h>

/** What the fuzzers share: the application, and how bytes become texts and keys. */
namespace FuzzSupport {

/** Makes the application at the first call, without a window system. */
inline void startApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(argc, argv);
    Q_UNUSED(offscreen)
}

/** At most \a length bytes as UTF-8. */
inline QString takeText(FuzzedDataProvider &input, std::size_t length = 200)
{
    return QString::fromStdString(input.ConsumeRandomLengthString(length));
}

/** A press of any key that a field answers to, with its release; \a characters are the ones worth typing. */
inline void pressKey(FuzzedDataProvider &input, QWidget &widget, const QString &characters)
{
    static constexpr Qt::Key keys[]{Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Left,   Qt::Key_Right,
                                    Qt::Key_Home,      Qt::Key_End,      Qt::Key_Up,     Qt::Key_Down,
                                    Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Tab,
                                    Qt::Key_Escape,    Qt::Key_A,        Qt::Key_X,      Qt::Key_Z};
    static constexpr Qt::KeyboardModifier modifiers[]{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    int key = 0;
    QString text;
    if (input.ConsumeBool()) {
        text = characters.at(input.ConsumeIntegralInRange(0, characters.size() - 1));
        key = text.at(0).toUpper().unicode();
    } else {
        key = input.PickValueInArray(keys);
    }
    const Qt::KeyboardModifier modifier = text.isEmpty() ? input.PickValueInArray(modifiers) : Qt::NoModifier;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

/** Gives or takes the focus. */
inline void changeFocus(FuzzedDataProvider &input, QWidget &widget)
{
    const QEvent::Type type = input.ConsumeBool() ? QEvent::FocusIn : QEvent::FocusOut;
    QFocusEvent event(type, input.ConsumeBool() ? Qt::TabFocusReason : Qt::PopupFocusReason);
    QApplication::sendEvent(&widget, &event);
}

} // namespace FuzzSupport
