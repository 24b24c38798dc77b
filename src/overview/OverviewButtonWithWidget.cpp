#include <nvo/OverviewButtonWithWidget.h>

#include "theme/StyleSupport.h"

#include <nvo/CheckBox.h>
#include <nvo/Label.h>
#include <nvo/Pixmap.h>

#include <QGraphicsEffect>
#include <QVBoxLayout>

namespace NVO {

namespace {

QString stateName(OverviewButtonBase::StyleState state)
{
    switch (state) {
    case OverviewButtonBase::StyleStateFocus:
        return QStringLiteral("focus");
    case OverviewButtonBase::StyleStateHover:
        return QStringLiteral("hover");
    case OverviewButtonBase::StyleStatePressed:
        return QStringLiteral("pressed");
    default:
        return QStringLiteral("");
    }
}

} // namespace

OverviewButtonWithWidget::OverviewButtonWithWidget(QWidget *parent)
    : QWidget(parent)
    , m_button(new OverviewButton(this))
    , m_lastLine(new QWidget(this))
{
    using Border = OverviewButton::BorderStyle;
    using Corner = OverviewButton::RoundCornerStyle;
    m_button->setBorderStyle(Border::Left | Border::Right | Border::Top); // open towards the last line
    m_button->setRoundCornerStyle(Corner::TopLeft | Corner::TopRight);
    // The button fills the tile, so nothing is seen of its shadow. The way over a picture, which Qt takes for
    // an effect, would shift the button against the line at ratios such as 1.25.
    m_button->graphicsEffect()->setEnabled(false);
    createLastLine();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_button, 1); // the line stays as low as it is
    column->addWidget(m_lastLine);
    connectSignals();
}

void OverviewButtonWithWidget::createLastLine()
{
    m_lastLine->setObjectName(QStringLiteral("lastLine"));
    m_lastLine->setProperty("style", StyleSupport::enumKey(m_button->overviewButtonStyle()));
    m_lastLine->setProperty("state", stateName(m_button->styleState()));
    StyleSupport::applySheet(m_lastLine, ElementOverviewButton);
    m_checkBox = new CheckBox(m_lastLine); // under the sheet, or Qt would parse its own again
    m_label = new Label(m_lastLine);
    auto *spacer = new QWidget(m_lastLine);
    spacer->setObjectName(QStringLiteral("spacerBeforeLastLine"));
    m_checkBox->setObjectName(QStringLiteral("lastLineWidget"));
    m_label->setObjectName(QStringLiteral("lastLineWidget"));
    m_label->hide();
    auto *row = new QHBoxLayout(m_lastLine);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(spacer);
    row->addWidget(m_checkBox);
    row->addWidget(m_label);
}

void OverviewButtonWithWidget::connectSignals()
{
    connect(m_button, &OverviewButton::styleStateChanged, this,
            &OverviewButtonWithWidget::overviewButtonStyleStateChanged);
    connect(m_button, &OverviewButton::clicked, this, &OverviewButtonWithWidget::clicked);
    connect(m_button, &OverviewButton::pressed, this, &OverviewButtonWithWidget::pressed);
    connect(m_button, &OverviewButton::released, this, &OverviewButtonWithWidget::released);
    connect(m_checkBox, &CheckBox::pressed, this, &OverviewButtonWithWidget::checkBoxPressed);
    connect(m_checkBox, &CheckBox::released, this, &OverviewButtonWithWidget::checkBoxReleased);
    connect(m_checkBox, &CheckBox::clicked, this, &OverviewButtonWithWidget::checkBoxClicked);
    connect(m_checkBox, &CheckBox::toggled, this, &OverviewButtonWithWidget::checkBoxToggled);
}

void OverviewButtonWithWidget::overviewButtonStyleStateChanged()
{
    const QString state = stateName(m_button->styleState());
    if (m_lastLine->property("state") == state)
        return;
    m_lastLine->setProperty("state", state);
    if (StyleSupport::isStyleSheetStyled(m_lastLine))
        StyleSupport::repolish(m_lastLine);
}

void OverviewButtonWithWidget::setTitle(const QString &title)
{
    m_button->setTitle(title);
}

QString OverviewButtonWithWidget::title() const
{
    return m_button->title();
}

void OverviewButtonWithWidget::setDescription(const QString &description)
{
    m_button->setDescription(description);
}

QString OverviewButtonWithWidget::description() const
{
    return m_button->description();
}

void OverviewButtonWithWidget::setNote(const QString &note)
{
    m_button->setNote(note);
}

QString OverviewButtonWithWidget::note() const
{
    return m_button->note();
}

void OverviewButtonWithWidget::setHint(const QString &hint)
{
    m_button->setHint(hint);
}

QString OverviewButtonWithWidget::hint() const
{
    return m_button->hint();
}

void OverviewButtonWithWidget::setIcon(const Pixmap &icon)
{
    m_button->setIcon(icon);
}

void OverviewButtonWithWidget::setStatus(const Pixmap &status)
{
    m_button->setStatus(status);
}

void OverviewButtonWithWidget::setAccessory(const Pixmap &accessory)
{
    m_button->setAccessory(accessory);
}

void OverviewButtonWithWidget::setButtonLayout(OverviewButton::Layout layout)
{
    m_button->setButtonLayout(layout);
}

OverviewButton::Layout OverviewButtonWithWidget::buttonLayout() const
{
    return m_button->buttonLayout();
}

void OverviewButtonWithWidget::setHeadlineStyle(OverviewButton::HeadlineStyle style)
{
    m_button->setHeadlineStyle(style);
}

OverviewButton::HeadlineStyle OverviewButtonWithWidget::headlineStyle() const
{
    return m_button->headlineStyle();
}

void OverviewButtonWithWidget::setOverviewButtonStyle(OverviewButton::Style style)
{
    if (m_button->overviewButtonStyle() == style)
        return;
    const bool isDark = style == OverviewButton::Style::Primary;
    m_checkBox->setCheckBoxStyle(isDark ? CheckBox::CheckBoxStyle::White : CheckBox::CheckBoxStyle::Normal);
    m_lastLine->setProperty("style", StyleSupport::enumKey(style));
    StyleSupport::repolish(m_lastLine);
    m_button->setOverviewButtonStyle(style);
}

OverviewButton::Style OverviewButtonWithWidget::overviewButtonStyle() const
{
    return m_button->overviewButtonStyle();
}

void OverviewButtonWithWidget::setShadowEnabled(bool enabled)
{
    m_button->setShadowEnabled(enabled);
}

bool OverviewButtonWithWidget::shadowEnabled() const
{
    return m_button->shadowEnabled();
}

void OverviewButtonWithWidget::setButtonEnabled(bool enabled)
{
    m_button->setPartialDisabled(!enabled);
}

Qt::CheckState OverviewButtonWithWidget::checkState() const
{
    return m_checkBox->checkState();
}

void OverviewButtonWithWidget::setCheckState(Qt::CheckState state)
{
    m_checkBox->setCheckState(state);
}

bool OverviewButtonWithWidget::isChecked() const
{
    return m_checkBox->isChecked();
}

bool OverviewButtonWithWidget::isTristate() const
{
    return m_checkBox->isTristate();
}

void OverviewButtonWithWidget::setTristate(bool tristate)
{
    m_checkBox->setTristate(tristate);
}

void OverviewButtonWithWidget::setLastLineMode(LastLineMode mode)
{
    m_checkBox->setVisible(mode == LastLineCheckBox);
    m_label->setVisible(mode == LastLineText);
}

void OverviewButtonWithWidget::setLastLineText(const QString &text)
{
    m_label->setText(text);
    m_checkBox->setText(text);
}

QString OverviewButtonWithWidget::lastLineText() const
{
    return m_label->text();
}

} // namespace NVO
