#include <nvo/ExpandingOverviewButton.h>

#include "overview/SeparatorLine.h"
#include "overview/TopSideButton.h"
#include "theme/StyleSupport.h"

#include <nvo/AccordionPart.h>
#include <nvo/BottomSideButton.h>
#include <nvo/Css.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/Palette.h>
#include <nvo/Product.h>

#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int speed = 1;
constexpr int edgeHeight = 1;

/** The last row, which has the frame at the bottom, comes into sight only at the end of the way. */
class FoldEdge : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(),
                                Palette::instance().namedColor(QStringLiteral("COLOR_BIG_BUTTON_BORDER")));
    }
};

QVBoxLayout *makeColumn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

QString expandText(ExpandingOverviewButton::ButtonStyle style)
{
    switch (style) {
    case ExpandingOverviewButton::InputMasks:
        return QStringLiteral("%1 Eingabemasken");
    case ExpandingOverviewButton::MatchingInputMasks:
        return QStringLiteral("%1 passende Eingabemasken");
    default:
        return QStringLiteral("%1 Treffer");
    }
}

} // namespace

ExpandingOverviewButton::ExpandingOverviewButton(QWidget *parent)
    : QFrame(parent)
    , m_accordionPart(new AccordionPart(this))
    , m_foldEdge(new FoldEdge(this))
{
    m_accordionPart->setShadowEnabled(false);
    m_accordionPart->setSharedBorder(false);
    m_accordionPart->setHeaderMargin(0, 0);
    makeColumn(this)->addWidget(m_accordionPart);
    createHeader();
    connect(m_topSideButton, &QAbstractButton::clicked, this, &ExpandingOverviewButton::topSideClicked);
    connect(m_accordionPart, &AccordionPart::animationFinished, this,
            &ExpandingOverviewButton::animationFinished);
    m_foldEdge->hide();
    connect(m_accordionPart, &AccordionPart::animationStateChanged, m_foldEdge,
            [this](AnimatedAccordionState state) {
                m_foldEdge->setVisible(state == AnimatedAccordionState::Expanding
                                       || state == AnimatedAccordionState::Hiding);
                m_foldEdge->raise();
            });
    initStyleSheet();
    setGraphicsEffect(createDefaultShadowEffectPixels());
}

void ExpandingOverviewButton::createHeader()
{
    auto *header = new QWidget(m_accordionPart);
    m_topSideButton = new TopSideButton(header, m_accordionPart);
    m_topSideButton->setGraphicsEffect(nullptr); // the tile casts one shadow
    m_separator = new SeparatorLine({m_topSideButton}, header);
    m_separator->hide();
    QVBoxLayout *column = makeColumn(header);
    column->addWidget(m_topSideButton);
    column->addWidget(m_separator);
    m_accordionPart->setHeader(header);

    // The button of the part is all covered: it shall not be seen at round corners nor get the focus.
    if (auto *covered = qobject_cast<QPushButton *>(header->parentWidget())) {
        covered->setFlat(true);
        covered->setAutoDefault(false);
        covered->setFocusPolicy(Qt::NoFocus);
        covered->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // lets the path be cut
    }
}

void ExpandingOverviewButton::setTitle(const QString &title)
{
    m_topSideButton->setTitle(title);
}

QString ExpandingOverviewButton::title() const
{
    return m_topSideButton->title();
}

void ExpandingOverviewButton::setText(const QString &text)
{
    m_topSideButton->setText(text);
}

QString ExpandingOverviewButton::text() const
{
    return m_topSideButton->text();
}

void ExpandingOverviewButton::setTextVisible(bool visible)
{
    m_topSideButton->setTextVisible(visible);
}

void ExpandingOverviewButton::setIcon(const QPixmap &icon)
{
    m_topSideButton->setIcon(icon);
}

void ExpandingOverviewButton::setIconState(const QPixmap &state)
{
    m_topSideButton->setIconState(state);
}

void ExpandingOverviewButton::setPath(const Path &path)
{
    m_topSideButton->setPath(path);
    showOnlyTarget();
}

ExpandingOverviewButton::Path ExpandingOverviewButton::path() const
{
    return m_topSideButton->path();
}

/** Gives up the rows and shuts the fold. */
void ExpandingOverviewButton::showOnlyTarget()
{
    m_paths.clear();
    keepFocus();
    m_separator->setButtons({m_topSideButton});
    m_separator->hide();
    m_topSideButton->setExpanded(false);
    m_accordionPart->setContent(nullptr);
    m_accordionPart->setState(AccordionState::Hidden);
}

QList<BottomSideButton *> ExpandingOverviewButton::setPaths(const QVector<QPair<QString, Path>> &paths)
{
    if (m_paths == paths)
        return {};
    if (paths.isEmpty()) {
        setPath(path());
        return {};
    }
    m_paths = paths;
    updateExpandText();
    keepFocus();
    auto *content = new QWidget;
    const QList<BottomSideButton *> rows = makeRows(content);
    m_accordionPart->setContent(content);

    QWidget *before = m_topSideButton; // else the rows came after all that the window has
    for (BottomSideButton *row : rows) {
        setTabOrder(before, row);
        before = row;
    }
    return rows;
}

/** The rows and the lines between them; the line above the first one is that of the header. */
QList<BottomSideButton *> ExpandingOverviewButton::makeRows(QWidget *content)
{
    QVBoxLayout *column = makeColumn(content);
    QList<BottomSideButton *> rows;
    for (const auto &target : qAsConst(m_paths)) {
        auto *row = new BottomSideButton(content);
        row->setGraphicsEffect(nullptr);
        const bool isLast = rows.size() + 1 == m_paths.size();
        row->setStyle(isLast ? BottomSideButton::LastRow : BottomSideButton::InnerRow);
        row->setButtonStyle(m_buttonStyle);
        row->setTitle(target.first);
        row->setPath(target.second);
        connect(row, &QAbstractButton::clicked, this, [this, path = target.second] { Q_EMIT clicked(path); });
        if (rows.isEmpty())
            m_separator->setButtons({m_topSideButton, row});
        else
            column->addWidget(new SeparatorLine({rows.last(), row}, content));
        column->addWidget(row);
        rows.append(row);
    }
    return rows;
}

/** The focus does not get lost with a row that goes. */
void ExpandingOverviewButton::keepFocus()
{
    const QWidget *focused = window()->focusWidget();
    if (focused && focused != m_topSideButton && m_accordionPart->isAncestorOf(focused))
        m_topSideButton->setFocus(Qt::OtherFocusReason);
}

void ExpandingOverviewButton::setButtonStyle(ButtonStyle style)
{
    m_buttonStyle = style;
    m_topSideButton->setButtonStyle(style);
    if (auto *shadow = qobject_cast<GraphicsEffect *>(graphicsEffect()))
        shadow->setEnabled(Product::instance().variant == 1 || style == InputMasks
                           || style == MatchingInputMasks);
    initStyleSheet();
    updateExpandText();
}

void ExpandingOverviewButton::topSideClicked()
{
    if (m_paths.isEmpty()) {
        const Path path = m_topSideButton->path();
        Q_EMIT clicked(path);
        return;
    }
    if (m_accordionPart->state() == AccordionState::Expanded) {
        keepFocus();
        m_accordionPart->animateHide(speed);
        return;
    }
    const QPointer<ExpandingOverviewButton> alive(this);
    m_accordionPart->animateExpand(speed);
    if (!alive)
        return;
    m_separator->show();
    m_topSideButton->setExpanded(true);
}

void ExpandingOverviewButton::animationFinished()
{
    if (m_accordionPart->state() != AccordionState::Hidden)
        return;
    m_separator->hide();
    m_topSideButton->setExpanded(false);
}

void ExpandingOverviewButton::updateExpandText()
{
    if (!m_paths.isEmpty())
        m_topSideButton->setExpandText(expandText(m_buttonStyle).arg(m_paths.size()));
}

void ExpandingOverviewButton::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_foldEdge->setGeometry(0, height() - edgeHeight, width(), edgeHeight);
}

/** The same sheet again would let Qt parse those of all sections. */
void ExpandingOverviewButton::initStyleSheet()
{
    if (styleSheet() != Css::instance().css(ElementOverviewButton))
        StyleSupport::applySheet(this, ElementOverviewButton);
}

} // namespace NVO
