#include <nvo/BottomSideButton.h>

#include "overview/OverviewAccessible.h"
#include "overview/PathLabel.h"
#include "overview/ResultEnd.h"
#include "overview/TileLabel.h"
#include "theme/StyleSupport.h"

#include <nvo/Product.h>

#include <QEvent>
#include <QVBoxLayout>

#include <utility>

namespace NVO {

namespace {

constexpr int verticalMargin = 10;
constexpr int classicEndMargin = 20;
constexpr int modernEndMargin = 10;
constexpr int pathGapHeight = 10;
constexpr int iconGap = 10;
constexpr int leastContentHeight = 40;

bool isModern()
{
    return Product::instance().variant == 1;
}

int indent(ExpandingOverviewButton::ButtonStyle style)
{
    switch (style) {
    case ExpandingOverviewButton::InputMasks:
        return isModern() ? 67 : 86;
    case ExpandingOverviewButton::MatchingInputMasks:
        return 10;
    default:
        return isModern() ? 30 : 42;
    }
}

bool isForMasks(ExpandingOverviewButton::ButtonStyle style)
{
    return style == ExpandingOverviewButton::InputMasks
           || style == ExpandingOverviewButton::MatchingInputMasks;
}

} // namespace

BottomSideButton::BottomSideButton(QWidget *parent)
    : OverviewButtonBase(parent)
    , m_titleLabel(new TileLabel(this))
    , m_pathLabel(new PathLabel(this))
    , m_iconLeftLabel(new Label(this))
    , m_iconLeftSpacer(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum))
    , m_end(std::make_unique<ResultEnd>(this))
    , m_pathGap(new QWidget(this))
    , m_heightSpacer(new QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed))
{
    StyleSupport::applyFontSize(m_titleLabel, ElementOverviewButton, QStringLiteral("SMALL"));
    m_titleLabel->setObjectName(QStringLiteral("title"));
    m_titleLabel->setWordWrap(true);
    m_titleLabel->setTextInteractionFlags(Qt::NoTextInteraction);
    m_pathLabel->hide();
    m_pathGap->setFixedHeight(pathGapHeight);
    m_pathGap->hide();
    m_iconLeftLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_iconLeftLabel->hide();
    addLayouts();
    updateMargins();
    updateHeightSpacer();
    setShadowEnabled(false);
    setOverviewButtonStyle(OverviewButtonBase::Style::Light);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

BottomSideButton::~BottomSideButton() = default;

void BottomSideButton::addLayouts()
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLabel);
    column->addWidget(m_pathGap);
    column->addWidget(m_pathLabel);
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->addItem(m_heightSpacer);
    row->addWidget(m_iconLeftLabel);
    row->addItem(m_iconLeftSpacer);
    row->addLayout(column);
    m_end->addTo(row);
}

void BottomSideButton::setTitle(const QString &title)
{
    OverviewAccessible::setText(this, m_titleLabel, title, QAccessible::NameChanged);
}

QString BottomSideButton::title() const
{
    return m_titleLabel->text();
}

void BottomSideButton::setPath(const Path &path)
{
    m_pathLabel->setPath(path);
    m_pathLabel->setVisible(!path.elements.isEmpty());
    m_pathGap->setVisible(!path.elements.isEmpty() && isModern());
    OverviewAccessible::tell(this, QAccessible::DescriptionChanged);
}

BottomSideButton::Path BottomSideButton::path() const
{
    return m_pathLabel->path();
}

void BottomSideButton::setIconLeft(const QPixmap &icon)
{
    if (!icon.isNull()) {
        m_iconLeftLabel->setPixmap(icon);
        m_iconLeftLabel->setMaximumSize(icon.size() / icon.devicePixelRatio());
    }
    m_iconLeftLabel->setVisible(!icon.isNull());
    m_iconLeftSpacer->changeSize(icon.isNull() ? 0 : iconGap, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout()->invalidate();
}

void BottomSideButton::setIconState(const QPixmap &state)
{
    m_end->setState(state);
}

void BottomSideButton::setStyle(Style style)
{
    BorderStyles borders = BorderStyle::Left | BorderStyle::Right;
    RoundCornerStyles corners = RoundCornerStyle::None;
    if (style == LastRow) {
        borders |= BorderStyle::Bottom;
        corners = RoundCornerStyle::BottomLeft | RoundCornerStyle::BottomRight;
    }
    setBorderStyle(borders);
    setRoundCornerStyle(corners);
}

void BottomSideButton::setButtonStyle(ButtonStyle style)
{
    if (m_buttonStyle == style)
        return;
    m_buttonStyle = style;
    updateMargins();
    if (!isModern())
        setOverviewButtonStyle(style == ButtonStyle::SearchHits ? OverviewButtonBase::Style::Light
                                                                : OverviewButtonBase::Style::Normal);
    updateHeightSpacer();
}

/** The indent is where one begins to read. */
void BottomSideButton::updateMargins()
{
    int left = indent(m_buttonStyle);
    int right = isModern() ? modernEndMargin : classicEndMargin;
    if (isRightToLeft())
        std::swap(left, right);
    layout()->setContentsMargins(left, verticalMargin, right, verticalMargin);
}

void BottomSideButton::updateHeightSpacer()
{
    const int height = isModern() || isForMasks(m_buttonStyle) ? leastContentHeight : 0;
    m_heightSpacer->changeSize(0, height, QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout()->invalidate();
}

bool BottomSideButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        StyleSupport::applyFontSize(m_titleLabel, ElementOverviewButton, QStringLiteral("SMALL"));
    return OverviewButtonBase::event(event);
}

void BottomSideButton::changeEvent(QEvent *event)
{
    OverviewButtonBase::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    m_end->updateDirection();
    updateMargins();
}

void BottomSideButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
