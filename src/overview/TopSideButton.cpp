#include "overview/TopSideButton.h"

#include "overview/OverviewAccessible.h"
#include "overview/PathLabel.h"
#include "overview/TileLabel.h"
#include "theme/StyleSupport.h"

#include <nvo/AccordionIndicator.h>
#include <nvo/Product.h>

#include <QEvent>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int classicSideMargin = 20;
constexpr int modernSideMargin = 10;
constexpr int verticalMargin = 10;
constexpr int classicIconSpacing = 20;
constexpr int iconSpacing = 10;
constexpr int textSpacing = 10;
constexpr int gapToArrow = 20;
constexpr int gapWithoutArrow = 25;
constexpr int leastModernHeight = 80;

int variant()
{
    return Product::instance().variant;
}

} // namespace

TopSideButton::TopSideButton(QWidget *parent, AccordionPart *part)
    : OverviewButtonBase(parent)
    , m_part(part)
    , m_iconLabel(new Label(this))
    , m_iconSpacer(new QWidget(this))
    , m_titleLabel(new TileLabel(this))
    , m_textLabel(new TileLabel(this))
    , m_pathLabel(new PathLabel(this))
    , m_expandContainer(new QWidget(this))
    , m_expandLabel(new TileLabel(m_expandContainer))
    , m_end(this)
{
    updateFontSizes(); // before the sheet, which a change of font lets Qt parse again
    createChildren(part);
    addLayouts();
    connect(part, &AccordionPart::stateChanged, this, &TopSideButton::tellAssistiveTechnology);
    setShadowEnabled(false);
    setOverviewButtonStyle(Style::Light);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TopSideButton::createChildren(AccordionPart *part)
{
    m_iconLabel->setObjectName(QStringLiteral("icon"));
    m_iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_iconLabel->hide();
    m_iconSpacer->setFixedWidth(variant() == 0 ? classicIconSpacing : iconSpacing);
    m_iconSpacer->hide();

    m_titleLabel->setObjectName(QStringLiteral("title"));
    m_titleLabel->setWordWrap(true);
    m_textLabel->setObjectName(QStringLiteral("text"));
    m_textLabel->enableElide(true);
    m_textLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_pathLabel->hide();

    m_expandLabel->setObjectName(QStringLiteral("expand"));
    auto *row = new QHBoxLayout(m_expandContainer);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(new AccordionIndicator(part, m_expandContainer));
    row->addWidget(m_expandLabel);
    row->addStretch(1);
    m_expandContainer->hide();

    for (Label *label : {m_titleLabel, m_textLabel, m_expandLabel})
        label->setTextInteractionFlags(Qt::NoTextInteraction);
}

void TopSideButton::addLayouts()
{
    const auto addSpacing = [](QBoxLayout *layout) {
        layout->addItem(new QSpacerItem(0, textSpacing, QSizePolicy::Minimum, QSizePolicy::Fixed));
    };
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLabel);
    if (variant() == 0)
        addSpacing(column);
    column->addWidget(m_textLabel);
    column->addWidget(m_pathLabel);
    addSpacing(column);
    column->addWidget(m_expandContainer);

    const int side = variant() == 1 ? modernSideMargin : classicSideMargin;
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(side, verticalMargin, side, verticalMargin);
    row->addWidget(m_iconLabel);
    row->addWidget(m_iconSpacer);
    row->addLayout(column);
    m_end.addTo(row);
}

void TopSideButton::setTitle(const QString &title)
{
    OverviewAccessible::setText(this, m_titleLabel, title, QAccessible::NameChanged);
}

QString TopSideButton::title() const
{
    return m_titleLabel->text();
}

void TopSideButton::setText(const QString &text)
{
    OverviewAccessible::setText(this, m_textLabel, text, QAccessible::DescriptionChanged);
}

QString TopSideButton::text() const
{
    return m_textLabel->text();
}

void TopSideButton::setTextVisible(bool visible)
{
    m_textLabel->setVisible(visible);
}

bool TopSideButton::isTextVisible() const
{
    return m_textLabel->isVisibleTo(this);
}

void TopSideButton::setIcon(const QPixmap &icon)
{
    m_iconLabel->setPixmap(icon);
    m_iconLabel->setVisible(!icon.isNull());
    m_iconSpacer->setVisible(!icon.isNull());
}

void TopSideButton::setIconState(const QPixmap &state)
{
    m_end.setState(state);
}

void TopSideButton::setPath(const Path &path)
{
    m_pathLabel->setPath(path);
    m_pathLabel->setVisible(!path.elements.isEmpty());
    showExpandable(false);
    OverviewAccessible::tell(this, QAccessible::DescriptionChanged);
}

TopSideButton::Path TopSideButton::path() const
{
    return m_pathLabel->path();
}

void TopSideButton::setExpandText(const QString &text)
{
    OverviewAccessible::setText(this, m_expandLabel, text, QAccessible::DescriptionChanged);
    m_pathLabel->hide();
    showExpandable(true);
}

QString TopSideButton::expandText() const
{
    return m_expandLabel->text();
}

void TopSideButton::showExpandable(bool expandable)
{
    const bool isNew = expandable != isExpandable();
    m_expandContainer->setVisible(expandable);
    m_end.setArrowVisible(!expandable);
    m_end.setGap(expandable ? gapWithoutArrow : gapToArrow);
    if (isNew)
        tellAssistiveTechnology();
}

bool TopSideButton::isExpandable() const
{
    return m_expandContainer->isVisibleTo(this);
}

bool TopSideButton::isPartExpanded() const
{
    return m_part->state() == AccordionState::Expanded;
}

void TopSideButton::tellAssistiveTechnology()
{
    QAccessible::State changed;
    changed.expandable = true;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void TopSideButton::setButtonStyle(ButtonStyle style)
{
    if (m_buttonStyle == style)
        return;
    m_buttonStyle = style;
    const bool isHit = style == ButtonStyle::SearchHits;
    m_textLabel->enableElide(isHit);
    m_textLabel->setWordWrap(!isHit);
    if (variant() == 0)
        setOverviewButtonStyle(isHit ? Style::Light : Style::Normal);
    updateGeometry();
}

void TopSideButton::setExpanded(bool expanded)
{
    BorderStyles borders = BorderStyle::Normal;
    RoundCornerStyles corners = RoundCornerStyle::Normal;
    if (expanded) {
        borders = BorderStyle::Left | BorderStyle::Right | BorderStyle::Top;
        corners = RoundCornerStyle::TopLeft | RoundCornerStyle::TopRight;
    }
    setBorderStyle(borders);
    setRoundCornerStyle(corners);
}

int TopSideButton::leastHeight() const
{
    return variant() == 1 && m_buttonStyle == ButtonStyle::SearchHits ? leastModernHeight : 0;
}

QSize TopSideButton::sizeHint() const
{
    return OverviewButtonBase::sizeHint().expandedTo(QSize(0, leastHeight()));
}

/** A layout asks this in place of the hint, because the title wraps. */
int TopSideButton::heightForWidth(int width) const
{
    const int height = OverviewButtonBase::heightForWidth(width);
    return height < 0 ? height : qMax(height, leastHeight());
}

void TopSideButton::updateFontSizes()
{
    for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_titleLabel),
                            static_cast<QWidget *>(m_textLabel), static_cast<QWidget *>(m_expandLabel)})
        StyleSupport::applyFontSize(widget, ElementOverviewButton, QStringLiteral("SMALL"));
}

bool TopSideButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        updateFontSizes();
    return OverviewButtonBase::event(event);
}

void TopSideButton::changeEvent(QEvent *event)
{
    OverviewButtonBase::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        m_end.updateDirection();
}

void TopSideButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
