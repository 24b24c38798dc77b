#include "StatusBar.h"

#include "Theme.h"
#include "pages/PageSupport.h"

#include <nvo/Css.h>
#include <nvo/Label.h>
#include <nvo/ZoomSlider.h>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QTimer>

namespace {

constexpr int percentPerPixel = 10;
constexpr int noZoom = 100;
constexpr int wideZoom = 120; // lines fill the width of a usual window
constexpr int sidePadding = 12;
constexpr int smoothStep = 100; // milliseconds
constexpr int rest = 120;       // milliseconds
constexpr int verticalPadding = 4;
constexpr int minimumTextWidth = 60;

constexpr int zoomOf(int delta)
{
    return noZoom + percentPerPixel * delta;
}

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QFrame(parent)
    , m_text(makeCaption(QString()))
    , m_zoom(new NVO::ZoomSlider)
    , m_pause(new QTimer(this))
{
    setObjectName(QStringLiteral("statusBar"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sidePadding, verticalPadding, sidePadding, verticalPadding);
    layout->setSpacing(0);
    m_text->enableElide(true);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_text->setMinimumWidth(minimumTextWidth);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_zoom);
    setMessage(QString());
    connectZoom();
}

void StatusBar::connectZoom()
{
    m_zoom->setMinimum(zoomOf(minimumFontDelta));
    m_zoom->setMaximum(zoomOf(maximumFontDelta));
    m_zoom->setZoomLevels({160, 140, 120, 100, 80});
    m_zoom->setPageWidthZoom(wideZoom);
    m_zoom->setPageZoom(zoomOf(minimumFontDelta));
    m_zoom->setValue(zoomOf(NVO::Css::instance().fontDelta()));
    m_pause->setSingleShot(true);
    connect(m_pause, &QTimer::timeout, this, &StatusBar::requestFontDelta);
    connect(m_zoom, &NVO::ZoomSlider::valueChanged, m_pause, QOverload<>::of(&QTimer::start));
    connect(m_zoom, &NVO::ZoomSlider::pageWidthZoomTriggered, m_zoom, [this] { m_zoom->setValue(wideZoom); });
    connect(m_zoom, &NVO::ZoomSlider::pageZoomTriggered, m_zoom,
            [this] { m_zoom->setValue(zoomOf(minimumFontDelta)); });
}

/** Where many pages are open and a step takes its time, the fonts wait until the slider rests. */
void StatusBar::requestFontDelta()
{
    if (fontDelta() == NVO::Css::instance().fontDelta())
        return;
    QElapsedTimer timer;
    timer.start();
    Q_EMIT fontDeltaRequested(fontDelta());
    m_pause->setInterval(timer.elapsed() < smoothStep ? 0 : rest);
}

void StatusBar::setMessage(const QString &message)
{
    QStringList parts{QStringLiteral("Mandant 10412 Bäckerei Sommer GmbH"), QStringLiteral("April 2026")};
    if (!message.isEmpty())
        parts.append(message);
    m_text->setText(parts.join(QStringLiteral("  ·  ")));
}

int StatusBar::fontDelta() const
{
    return qRound(double(m_zoom->value() - noZoom) / percentPerPixel);
}

void StatusBar::setFontDelta(int delta)
{
    m_zoom->setValue(zoomOf(delta));
}
