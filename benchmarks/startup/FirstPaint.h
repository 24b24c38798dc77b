#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QResource>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <ctime>

/**
 * A program that shows one window, says on standard output what that took from the start of the process to
 * the first paint, in nanoseconds of processor time and in bytes at the most, and ends without cleaning up.
 */
class FirstPaint : public QObject
{
public:
    static constexpr int buttonCount = 30;
    static constexpr int columnCount = 5;

    /** \a make gives the window a button. */
    template <typename Make>
    static int run(const QApplication &, Make make)
    {
        QWidget window;
        auto *grid = new QGridLayout(&window);
        for (int i = 0; i < buttonCount; ++i) {
            QAbstractButton *button = make(&window);
            button->setText(QStringLiteral("Beleg %1").arg(i));
            grid->addWidget(button, i / columnCount, i % columnCount);
        }
        FirstPaint paint;
        window.installEventFilter(&paint);
        window.show();
        while (!paint.m_seen)
            QApplication::processEvents(); // paints the buttons with the window
        report();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_seen = m_seen || event->type() == QEvent::Paint;
        return false;
    }

private:
    [[noreturn]] static void report()
    {
        timespec time;
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        QFile status(QStringLiteral("/proc/self/status"));
        status.open(QIODevice::ReadOnly);
        const QByteArray text = status.readAll();
        const int at = text.indexOf("VmHWM:");
        std::printf("%.0f %lld\n", double(time.tv_sec) * 1e9 + double(time.tv_nsec),
                    1024 * std::strtoll(text.constData() + at + 6, nullptr, 10));
        std::fflush(stdout);
        std::_Exit(0);
    }

    bool m_seen = false;
};
