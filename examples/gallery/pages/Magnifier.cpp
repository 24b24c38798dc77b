#include "pages/Magnifier.h"

#include <QEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int factor = 8;
constexpr QSize smallestSize(96, 112);
constexpr int beyondCorner = 5; // what is seen to the right of the widget and below it

} // namespace

Magnifier::Magnifier(QWidget *target, QWidget *parent)
    : QWidget(parent)
    , m_target(target)
{
    m_target->installEventFilter(this);
    setMinimumSize(smallestSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Magnifier::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    lookSoon();
}

void Magnifier::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    lookSoon();
}

bool Magnifier::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        lookSoon();
    return QWidget::eventFilter(watched, event);
}

/** Not before the target has its place. */
void Magnifier::lookSoon()
{
    QTimer::singleShot(0, this, &Magnifier::look);
}

void Magnifier::look()
{
    if (!m_target || !m_target->parentWidget())
        return;
    QRect region(0, 0, (width() + factor - 1) / factor, (height() + factor - 1) / factor);
    region.moveBottomRight(m_target->geometry().bottomRight() + QPoint(beyondCorner, beyondCorner));
    m_picture = m_target->parentWidget()->grab(region);
    update();
}

void Magnifier::paintEvent(QPaintEvent *)
{
    const QSizeF pictureSize = QSizeF(m_picture.size()) / m_picture.devicePixelRatio();
    QPainter(this).drawPixmap(QRectF(QPointF(0, 0), pictureSize * factor), m_picture, m_picture.rect());
}
