#include <nvo/HairLine.h>

#include <nvo/Palette.h>

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>

namespace NVO {

namespace {

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    // It has no meta-object of its own to be known by.
    auto *line = className == QLatin1String("QWidget") ? dynamic_cast<HairLine *>(object) : nullptr;
    return line ? new QAccessibleWidget(line, QAccessible::Separator) : nullptr;
}

} // namespace

HairLine::HairLine(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_color(Palette::instance().namedColor(QStringLiteral("COLOR_DEKOLINE")))
{
    QAccessible::installFactory(createInterface);
    setObjectName(QStringLiteral("HairLine"));
    reinit();
}

void HairLine::setWeight(int weight)
{
    if (m_weight == weight)
        return;
    m_weight = weight;
    reinit();
}

void HairLine::setOrientation(Qt::Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    reinit();
}

void HairLine::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

void HairLine::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), m_color);
}

void HairLine::reinit()
{
    const int thickness = qBound(0, m_weight, QWIDGETSIZE_MAX);
    QSize least(0, thickness);
    QSize most(QWIDGETSIZE_MAX, thickness);
    if (m_orientation == Qt::Vertical) {
        least.transpose();
        most.transpose();
    }
    setMinimumSize(least);
    setMaximumSize(most);
}

} // namespace NVO
