#include "Gallery.h"

#include "MainWindow.h"

#include <QTextStream>

Gallery::Gallery(const QString &themeDirectory)
    : m_loader(themeDirectory)
{}

Gallery::~Gallery() = default;

bool Gallery::open(const Theme &theme, const QString &page)
{
    m_error.clear();
    if (!m_loader.load(theme)) {
        m_error = QStringLiteral("theme not found or not readable: %1").arg(m_loader.fileName(theme));
        return false;
    }
    if (!m_pictures.draw()) {
        m_error = QStringLiteral("pictures cannot be written to the folder for temporary files");
        return false;
    }
    auto window = std::make_unique<MainWindow>(theme);
    window->setCurrentPage(page);
    if (m_window) {
        window->setOptions(m_window->options());
        window->setGeometry(m_window->geometry());
    }
    window->setWindowState(m_window ? m_window->windowState() : Qt::WindowNoState);
    window->show();
    m_window = std::move(window);

    // Queued: the button that was clicked lives in the window that goes.
    connect(m_window.get(), &MainWindow::themeRequested, this, &Gallery::switchTheme, Qt::QueuedConnection);
    connect(m_window.get(), &MainWindow::fontDeltaRequested, this, &Gallery::setFontDelta);
    return true;
}

void Gallery::setFontDelta(int delta)
{
    applyFontDelta(delta);
}

void Gallery::switchTheme(const QString &key)
{
    const std::optional<Theme> theme = themeByKey(key);
    if (!theme || !open(*theme, m_window->currentPage())) {
        QTextStream(stderr) << "nvo_gallery: " << m_error << '\n';
        m_window->showTheme();
    }
    m_window->focusTheme();
}
