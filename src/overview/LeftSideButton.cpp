#include "overview/LeftSideButton.h"

#include "overview/OverviewAccessible.h"
#include "overview/TileLabel.h"
#include "overview/TileShape.h"
#include "theme/StyleSupport.h"

#include <QEvent>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int margin = 20;
constexpr int spacing = 10;

} // namespace

LeftSideButton::LeftSideButton(QWidget *parent)
    : OverviewButtonBase(parent)
    , m_iconLabel(new Label(this))
    , m_titleLabel(new TileLabel(this))
    , m_textLabel(new TileLabel(this))
{
    m_iconLabel->setObjectName(QStringLiteral("leftSideIcon"));
    m_titleLabel->setObjectName(QStringLiteral("leftSideTitle"));
    m_textLabel->setObjectName(QStringLiteral("leftSideText"));
    for (Label *label : {m_iconLabel, m_titleLabel, m_textLabel})
        label->setTextInteractionFlags(Qt::NoTextInteraction);
    m_titleLabel->setWordWrap(true);
    m_textLabel->setWordWrap(true);

    auto *headline = new QHBoxLayout;
    headline->setContentsMargins(0, 0, 0, 0);
    headline->setSpacing(0);
    headline->addWidget(m_iconLabel);
    headline->addSpacing(spacing);
    headline->addWidget(m_titleLabel, 1); // stays beside its icon
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(0);
    column->addLayout(headline);
    column->addSpacing(spacing);
    column->addWidget(m_textLabel);
    column->addStretch(1);

    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setHandleCursorKeys(true);
    applyShape();
}

void LeftSideButton::setIcon(const QPixmap &icon)
{
    m_iconLabel->setPixmap(icon);
}

void LeftSideButton::setTitle(const QString &title)
{
    OverviewAccessible::setText(this, m_titleLabel, title, QAccessible::NameChanged);
}

QString LeftSideButton::title() const
{
    return m_titleLabel->text();
}

void LeftSideButton::setText(const QString &text)
{
    OverviewAccessible::setText(this, m_textLabel, text, QAccessible::DescriptionChanged);
}

QString LeftSideButton::text() const
{
    return m_textLabel->text();
}

void LeftSideButton::setTitleFontSize(int pixelSize)
{
    StyleSupport::setPixelSize(m_titleLabel, pixelSize);
}

void LeftSideButton::setTextFontSize(int pixelSize)
{
    StyleSupport::setPixelSize(m_textLabel, pixelSize);
}

void LeftSideButton::setShapeForRightSide(bool hasRightSide)
{
    m_hasRightSide = hasRightSide;
    applyShape();
}

void LeftSideButton::applyShape()
{
    BorderStyles borders = BorderStyle::Normal;
    RoundCornerStyles corners = RoundCornerStyle::Normal;
    if (m_hasRightSide) {
        borders = BorderStyle::Left | BorderStyle::Top | BorderStyle::Bottom;
        corners = RoundCornerStyle::TopLeft | RoundCornerStyle::BottomLeft;
    }
    TileShape::apply(this, borders, corners);
}

void LeftSideButton::changeEvent(QEvent *event)
{
    OverviewButtonBase::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        applyShape();
}

void LeftSideButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
