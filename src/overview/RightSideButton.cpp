#include "overview/RightSideButton.h"

#include "overview/OverviewAccessible.h"
#include "overview/ResultEnd.h"
#include "overview/RightSideDummyButton.h"
#include "overview/TileLabel.h"
#include "overview/TileShape.h"
#include "theme/StyleSupport.h"

#include <nvo/Pixmap.h>

#include <QEvent>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int sideMargin = 20;
constexpr int verticalMargin = 10;
constexpr int arrowSpacing = 20;

} // namespace

RightSideButton::RightSideButton(QWidget *parent)
    : OverviewButtonBase(parent)
    , m_titleLabel(new TileLabel(this))
    , m_textLabel(new TileLabel(this))
    , m_arrowLabel(new Label(this))
{
    m_titleLabel->setObjectName(QStringLiteral("rightSideTitle"));
    m_titleLabel->enableElide(true);
    m_titleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_titleLabel->setTextInteractionFlags(Qt::NoTextInteraction);
    m_textLabel->setObjectName(QStringLiteral("rightSideText"));
    m_textLabel->setTextInteractionFlags(Qt::NoTextInteraction);
    m_arrowLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch(1);
    column->addWidget(m_titleLabel);
    column->addWidget(m_textLabel);
    column->addStretch(1);
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(sideMargin, verticalMargin, sideMargin, verticalMargin);
    row->addLayout(column);
    row->addSpacing(arrowSpacing);
    row->addWidget(m_arrowLabel);

    setHandleCursorKeys(true);
    initStyleSheet();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    applyDirection();
}

void RightSideButton::setTitle(const QString &title)
{
    OverviewAccessible::setText(this, m_titleLabel, title, QAccessible::NameChanged);
}

QString RightSideButton::title() const
{
    return m_titleLabel->text();
}

void RightSideButton::setText(const QString &text)
{
    OverviewAccessible::setText(this, m_textLabel, text, QAccessible::DescriptionChanged);
}

QString RightSideButton::text() const
{
    return m_textLabel->text();
}

void RightSideButton::setTitleFontSize(int pixelSize)
{
    StyleSupport::setPixelSize(m_titleLabel, pixelSize);
}

void RightSideButton::setTextFontSize(int pixelSize)
{
    StyleSupport::setPixelSize(m_textLabel, pixelSize);
}

void RightSideButton::setShape(BorderStyles borders, RoundCornerStyles corners)
{
    m_borders = borders;
    m_corners = corners;
    TileShape::apply(this, m_borders, m_corners);
}

QSize RightSideButton::sizeHint() const
{
    return OverviewButtonBase::sizeHint().expandedTo(RightSideDummyButton::smallestSize);
}

QSize RightSideButton::minimumSizeHint() const
{
    return OverviewButtonBase::minimumSizeHint().expandedTo(RightSideDummyButton::smallestSize);
}

void RightSideButton::applyDirection()
{
    TileShape::apply(this, m_borders, m_corners);
    const Pixmap arrow(QStringLiteral(":/arrow_right_dark_6x12"));
    m_arrowLabel->setPixmap(ResultEnd::directed(arrow, layoutDirection()));
}

void RightSideButton::changeEvent(QEvent *event)
{
    OverviewButtonBase::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        applyDirection();
}

void RightSideButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
