#pragma once

#include <QObject>
#include <QString>

class QWidget;

/**
 * Makes a widget show one of its states all the time, so that all states can be seen side by side.
 *
 * Such a widget takes neither the mouse nor the keyboard. The focus is that of the whole window: the widget
 * shows it as long as any widget of the application has it.
 */
class ForcedState : public QObject
{
    Q_OBJECT

public:
    enum State { Normal, Hover, Pressed, Focus, Disabled };

    /** Normal leaves the widget as it is: alive. */
    static void apply(QWidget *widget, State state);

    /** The name of a state in captions. */
    static QString title(State state);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ForcedState(QWidget *widget, State state);
    void enter();
    void press();
    void hold();
    void followFocus(QWidget *focusWidget);

    QWidget *m_widget;
    State m_state;
};
