#pragma once

#include <QObject>
#include <QStringList>

#include <utility>

/** Writes down the signals of several objects in the order in which they come. */
class SignalRecorder : public QObject
{
public:
    /** Writes \a text each time \a sender emits \a signal. */
    template <typename Sender, typename Signal>
    void record(const Sender *sender, Signal signal, const QString &text)
    {
        connect(sender, signal, this, [this, text] { m_log.append(text); });
    }

    /** What came since the last call. */
    QStringList take() { return std::exchange(m_log, {}); }

private:
    QStringList m_log;
};
