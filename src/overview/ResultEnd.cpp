#include "overview/ResultEnd.h"

#include <nvo/Label.h>
#include <nvo/Pixmap.h>

#include <QHBoxLayout>
#include <QTransform>

namespace NVO {

namespace {

constexpr int stateGap = 20;
constexpr int stateArrowGap = 20;

QSpacerItem *makeSpacer(int width)
{
    return new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
}

} // namespace

ResultEnd::ResultEnd(QWidget *section)
    : m_section(section)
    , m_stateLabel(new Label(section))
    , m_stateArrowSpacer(makeSpacer(0))
    , m_arrowLabel(new Label(section))
    , m_stateSpacer(makeSpacer(stateGap))
{
    m_stateLabel->hide();
    for (Label *label : {m_stateLabel, m_arrowLabel})
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    updateDirection();
}

void ResultEnd::addTo(QHBoxLayout *row) const
{
    row->addItem(m_stateSpacer);
    row->addWidget(m_stateLabel);
    row->addItem(m_stateArrowSpacer);
    row->addWidget(m_arrowLabel);
}

void ResultEnd::setState(const QPixmap &state)
{
    if (!state.isNull())
        m_stateLabel->setPixmap(state);
    m_stateLabel->setVisible(!state.isNull());
    setWidth(m_stateArrowSpacer, state.isNull() ? 0 : stateArrowGap);
}

void ResultEnd::setArrowVisible(bool visible)
{
    m_arrowLabel->setVisible(visible);
}

void ResultEnd::setGap(int width)
{
    setWidth(m_stateSpacer, width);
}

void ResultEnd::setWidth(QSpacerItem *spacer, int width)
{
    spacer->changeSize(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    m_section->layout()->invalidate();
}

void ResultEnd::updateDirection()
{
    const Pixmap arrow(QStringLiteral(":/searchresult_right_arrow"));
    m_arrowLabel->setPixmap(directed(arrow, m_section->layoutDirection()));
}

QPixmap ResultEnd::directed(const QPixmap &pixmap, Qt::LayoutDirection direction)
{
    const bool mirror = direction == Qt::RightToLeft && !pixmap.isNull();
    return mirror ? pixmap.transformed(QTransform::fromScale(-1, 1)) : pixmap;
}

} // namespace NVO
