#include <nvo/OverviewButton.h>

#include "overview/OverviewAccessible.h"
#include "overview/TileLabel.h"
#include "theme/StyleSupport.h"

#include <nvo/Pixmap.h>
#include <nvo/Product.h>

#include <QEvent>
#include <QGridLayout>
#include <QMouseEvent>

namespace NVO {

namespace {

constexpr int classicSideMargin = 20;
constexpr int modernSideMargin = 10;
constexpr int centredVerticalMargin = 10; // with the icon beside all texts
constexpr int verticalMargin = 20;
constexpr int pictureSpacing = 10; // beside icon, hint and status
constexpr int accessorySpacing = 20;
constexpr int textSpacing = 2;
constexpr int textRows = 5; // title, description and note with the spacers between them
constexpr int titleColumn = 2;
constexpr int titleColumnStretch = 100000; // takes all there is

/**
 * Leaves to its tile what follows a press. A label would keep it, also where it left the press itself to the
 * tile, which would stay down.
 */
class HintLabel : public Label
{
public:
    using Label::Label;

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        Label::mouseMoveEvent(event);
        event->ignore();
    }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        Label::mouseReleaseEvent(event);
        event->ignore();
    }
};

/** A child of \a tile that is not there yet. */
template <typename Child>
Child *addHidden(QWidget *tile)
{
    auto *child = new Child(tile);
    child->hide();
    return child;
}

template <typename TextLabel>
Label *addText(QWidget *tile)
{
    auto *label = addHidden<TextLabel>(tile);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setWordWrap(true);
    return label;
}

QWidget *addWidth(QWidget *tile, int width)
{
    auto *spacer = addHidden<QWidget>(tile);
    spacer->setFixedWidth(width);
    return spacer;
}

QWidget *addHeight(QWidget *tile, int height)
{
    auto *spacer = addHidden<QWidget>(tile);
    spacer->setFixedHeight(height);
    return spacer;
}

bool hasPicture(const Label *label)
{
    return !label->pixmap(Qt::ReturnByValue).isNull();
}

} // namespace

OverviewButton::OverviewButton(QWidget *parent)
    : OverviewButtonBase(parent)
    , m_gridLayout(new QGridLayout(this))
{
    m_gridLayout->setSpacing(0);
    OverviewButton::initStyleSheet(); // before there are children, whom it would have to be told
    createChildren();
    setButtonLayout(IconCenterLeft);
    updateFontSizes();
}

void OverviewButton::createChildren()
{
    m_iconLabel = addHidden<Label>(this);
    m_iconLabel->setObjectName(QStringLiteral("icon"));
    m_iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_iconSpacer = addWidth(this, pictureSpacing);

    m_titleLabel = addText<TileLabel>(this);
    m_titleLabel->setObjectName(QStringLiteral("titleLabel"));
    m_titleLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_titleSpacer = addHeight(this, textSpacing);
    m_descriptionLabel = addText<Label>(this);
    m_descriptionSpacer = addHeight(this, textSpacing);
    m_noteLabel = addText<Label>(this);

    m_hintSpacer = addWidth(this, pictureSpacing);
    m_hintLabel = addHidden<HintLabel>(this);
    m_hintLabel->setWordWrap(true);
    m_hintLabel->setAlignment(Qt::AlignRight | Qt::AlignCenter);
    m_statusSpacer = addWidth(this, pictureSpacing);
    m_statusLabel = addHidden<Label>(this);
    m_accessorySpacer = addWidth(this, accessorySpacing);
    m_accessoryLabel = addHidden<Label>(this);
    for (Label *label : {m_hintLabel, m_statusLabel, m_accessoryLabel})
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void OverviewButton::setButtonLayout(Layout layout)
{
    m_buttonLayout = layout;
    const bool isCentred = layout == IconCenterLeft;
    const int side = Product::instance().variant == 1 ? modernSideMargin : classicSideMargin;
    const int vertical = isCentred ? centredVerticalMargin : verticalMargin;
    m_gridLayout->setContentsMargins(side, vertical, side, vertical);

    while (QLayoutItem *item = m_gridLayout->takeAt(0))
        delete item;
    const int iconRows = isCentred ? textRows : 1;
    const int textColumn = isCentred ? titleColumn : 0;
    const int textSpan = isCentred ? 1 : 3;
    m_gridLayout->addWidget(m_iconLabel, 0, 0, iconRows, 1);
    m_gridLayout->addWidget(m_iconSpacer, 0, 1, iconRows, 1);
    m_gridLayout->addWidget(m_titleLabel, 0, titleColumn);
    int row = 1;
    for (QWidget *widget : {m_titleSpacer, static_cast<QWidget *>(m_descriptionLabel), m_descriptionSpacer,
                            static_cast<QWidget *>(m_noteLabel)})
        m_gridLayout->addWidget(widget, row++, textColumn, 1, textSpan);
    int column = titleColumn + 1;
    for (QWidget *widget :
         {m_hintSpacer, static_cast<QWidget *>(m_hintLabel), m_statusSpacer,
          static_cast<QWidget *>(m_statusLabel), m_accessorySpacer, static_cast<QWidget *>(m_accessoryLabel)})
        m_gridLayout->addWidget(widget, 0, column++, textRows, 1);
    m_gridLayout->setColumnStretch(titleColumn, titleColumnStretch);

    updateVisiblity();
}

void OverviewButton::updateVisiblity()
{
    const bool hasTexts = m_buttonLayout != IconOnly;
    const bool hasIcon = hasPicture(m_iconLabel);
    const bool hasTitle = hasTexts && !m_title.isEmpty();
    const bool hasDescription = hasTexts && !m_description.isEmpty();
    const bool hasNote = hasTexts && !m_note.isEmpty();
    const bool hasHint = hasTexts && !m_hint.isEmpty();
    const bool hasStatus = hasTexts && hasPicture(m_statusLabel);
    const bool hasAccessory = hasTexts && hasPicture(m_accessoryLabel);
    m_iconLabel->setVisible(hasIcon || !hasTexts);
    m_iconSpacer->setVisible(hasIcon && hasTexts);
    m_titleLabel->setVisible(hasTitle);
    m_descriptionLabel->setVisible(hasDescription);
    m_noteLabel->setVisible(hasNote);
    m_hintSpacer->setVisible(hasHint);
    m_hintLabel->setVisible(hasHint);
    m_statusLabel->setVisible(hasStatus);
    m_statusSpacer->setVisible(hasStatus);
    m_accessoryLabel->setVisible(hasAccessory);
    m_accessorySpacer->setVisible(hasAccessory);
    m_titleSpacer->setVisible(hasTitle && hasDescription);
    m_descriptionSpacer->setVisible(hasDescription && hasNote);
}

void OverviewButton::setText(Label *label, QString &stored, const QString &text)
{
    if (stored == text)
        return;
    stored = text;
    const bool isName = label == m_titleLabel;
    OverviewAccessible::setText(this, label, text,
                                isName ? QAccessible::NameChanged : QAccessible::DescriptionChanged);
    updateVisiblity();
}

void OverviewButton::setTitle(const QString &title)
{
    setText(m_titleLabel, m_title, title);
}

void OverviewButton::setDescription(const QString &description)
{
    setText(m_descriptionLabel, m_description, description);
}

void OverviewButton::setNote(const QString &note)
{
    setText(m_noteLabel, m_note, note);
}

void OverviewButton::setHint(const QString &hint)
{
    setText(m_hintLabel, m_hint, hint);
}

void OverviewButton::setPicture(Label *label, const QPixmap &picture)
{
    label->setPixmap(picture);
    updateVisiblity();
}

void OverviewButton::setIcon(const QPixmap &icon)
{
    setPicture(m_iconLabel, icon);
}

void OverviewButton::setStatus(const Pixmap &status)
{
    setPicture(m_statusLabel, status);
}

void OverviewButton::setAccessory(const Pixmap &accessory)
{
    setPicture(m_accessoryLabel, accessory);
}

void OverviewButton::setHeadlineStyle(HeadlineStyle style)
{
    if (m_headlineStyle == style)
        return;
    m_headlineStyle = style;
    updateFontSizes();
}

QList<Label *> OverviewButton::styledLabels() const
{
    return {m_titleLabel, m_descriptionLabel, m_noteLabel, m_hintLabel, m_statusLabel, m_accessoryLabel};
}

void OverviewButton::updateFontSizes()
{
    const QString key = StyleSupport::enumKey(m_headlineStyle);
    // Polishing for nothing is slow, and a label would take a font of the application that it has yet to hear
    // of for its own.
    const bool changed = m_titleLabel->property("style") != key;
    for (Label *label : styledLabels())
        label->setProperty("style", key);
    if (!StyleSupport::isStyleSheetStyled(this))
        return;
    if (changed)
        StyleSupport::repolish(m_titleLabel);
    StyleSupport::applyFontSize(m_titleLabel, ElementOverviewButton,
                                m_headlineStyle == Big ? QStringLiteral("BIG") : QStringLiteral("NORMAL"));
    if (changed)
        StyleSupport::repolish(
            {m_descriptionLabel, m_noteLabel, m_hintLabel, m_statusLabel, m_accessoryLabel});
}

bool OverviewButton::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        updateFontSizes();
    return OverviewButtonBase::event(event);
}

void OverviewButton::paintEvent(QPaintEvent *event)
{
    OverviewButtonBase::paintEvent(event);
}

void OverviewButton::initStyleSheet()
{
    OverviewButtonBase::initStyleSheet();
    StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
