#include "Screenshots.h"

#include "Gallery.h"
#include "MainWindow.h"
#include "Options.h"
#include "PageRegistry.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTextStream>
#include <QThread>

namespace {

constexpr QSize pictureSize(1180, 800);
constexpr int activationTimeout = 1000; // milliseconds
constexpr int settlingTime = 60;        // milliseconds: more than the timers that pages and shadows start

void processEventsFor(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, milliseconds);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    } while (timer.elapsed() < milliseconds);
}

/** The focus is seen in an active window only. */
void waitUntilActive(const QWidget &window)
{
    QElapsedTimer timer;
    timer.start();
    while (!window.isActiveWindow() && timer.elapsed() < activationTimeout)
        processEventsFor(10);
}

QString pictureName(const Theme &theme, const QString &page)
{
    return QStringLiteral("%1-%2@%3x.png").arg(theme.key, page).arg(qApp->devicePixelRatio());
}

} // namespace

QPixmap takePicture(Gallery &gallery, const Theme &theme, const QString &page)
{
    if (!gallery.open(theme, page))
        return QPixmap();
    MainWindow *window = gallery.window();
    window->resize(pictureSize);
    window->activateWindow();
    waitUntilActive(*window);
    window->fitToPage(pictureSize);
    processEventsFor(settlingTime);
    return window->grab();
}

QString takeScreenshots(Gallery &gallery, const Options &options)
{
    const QDir directory(options.screenshotDirectory);
    if (!directory.mkpath(QStringLiteral(".")))
        return QStringLiteral("folder cannot be made: %1").arg(directory.path());

    const QVector<Theme> chosenThemes = options.theme ? QVector<Theme>{*options.theme} : themes();
    const QStringList chosenPages = options.page.isEmpty() ? pageKeys() : QStringList{options.page};
    QTextStream out(stdout);
    for (const Theme &theme : chosenThemes) {
        for (const QString &page : chosenPages) {
            const QPixmap picture = takePicture(gallery, theme, page);
            if (picture.isNull())
                return gallery.error();
            const QString file = directory.absoluteFilePath(pictureName(theme, page));
            if (!picture.save(file, "PNG"))
                return QStringLiteral("file cannot be written: %1").arg(file);
            out << file << '\n';
            out.flush();
        }
    }
    return QString();
}
