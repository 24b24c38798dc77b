#pragma once

#include <QObject>

class QKeyEvent;

namespace NVO {
class Ribbon;
}

/**
 * Works a ribbon from the keyboard: Alt alone shows the keytips or takes them away, letters choose a tab and
 * then a control, Esc leaves. Alt together with another key stays what it is.
 */
class KeytipDriver : public QObject
{
    Q_OBJECT

public:
    /** Drives \a ribbon, which owns the driver. */
    explicit KeytipDriver(NVO::Ribbon *ribbon);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchAlt(const QKeyEvent &event);
    bool keyPressed(const QKeyEvent &event);
    void altReleased();
    void choose(const QString &key);
    void leave();
    bool isShowing() const;
    bool hasFocus() const;
    bool isInFront() const;

    NVO::Ribbon *m_ribbon;
    bool m_altAlone = false;
};
