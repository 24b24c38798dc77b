#include <nvo/ExtraSearchResultButton.h>

#include "overview/OverviewAccessible.h"
#include "theme/StyleSupport.h"

#include <nvo/Label.h>
#include <nvo/Product.h>

#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int classicSideMargin = 20;
constexpr int modernSideMargin = 10;
constexpr int verticalMargin = 10;
constexpr int leastHeight = 40;

} // namespace

ExtraSearchResultButton::ExtraSearchResultButton(QWidget *parent)
    : OverviewButtonBase(parent)
    , m_textLabel(new Label(this))
{
    const int side = Product::instance().variant == 1 ? modernSideMargin : classicSideMargin;
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(side, verticalMargin, side, verticalMargin);
    column->addWidget(m_textLabel);
    m_textLabel->setAlignment(Qt::AlignHCenter);
    m_textLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum); // in the middle of the height
    m_textLabel->setTextInteractionFlags(Qt::NoTextInteraction);
    setShadowEnabled(false);
    ExtraSearchResultButton::initStyleSheet();
}

void ExtraSearchResultButton::setText(const QString &text)
{
    OverviewAccessible::setText(this, m_textLabel, text, QAccessible::NameChanged);
}

QString ExtraSearchResultButton::text() const
{
    return m_textLabel->text();
}

QSize ExtraSearchResultButton::sizeHint() const
{
    return OverviewButtonBase::sizeHint().expandedTo(QSize(0, leastHeight));
}

void ExtraSearchResultButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
