#include <nvo/OverviewButton3Children.h>

#include "containers/HalvedLayout.h"
#include "overview/LeftSideButton.h"
#include "overview/RightSideButton.h"
#include "overview/RightSideDummyButton.h"
#include "overview/SeparatorLine.h"
#include "theme/StyleSupport.h"

#include <nvo/Font.h>
#include <nvo/GraphicsEffect.h>

#include <QEvent>
#include <QGridLayout>
#include <QPointer>

#include <algorithm>

namespace NVO {

namespace {

constexpr int gridRowsPerRow = 3; // button, row without a button, separator
constexpr int separatorColumn = 0;
constexpr int buttonColumn = 1;

/** What differs from row to row. */
struct Row
{
    const char *name;
    SeparatorLine::EdgeStyle edge; // of the line at the left
    OverviewButtonBase::BorderStyles borders;
    OverviewButtonBase::RoundCornerStyles corners;
};

Row rowAt(unsigned int row)
{
    using Border = OverviewButtonBase::BorderStyle;
    using Corner = OverviewButtonBase::RoundCornerStyle;
    switch (row) {
    case 0:
        return {"top", SeparatorLine::TopOrLeft, Border::Right | Border::Top, Corner::TopRight};
    case OverviewButton3Children::numOfRightSideButtons - 1:
        return {"bottom", SeparatorLine::BottomOrRight, Border::Right | Border::Bottom, Corner::BottomRight};
    default:
        return {"middle", SeparatorLine::None, Border::Right, Corner::None};
    }
}

int fontSize(const char *variant)
{
    return Font::instance().scaledFontSizeByElement(ElementOverviewButton, QString::fromLatin1(variant));
}

/** The pixel of the frame at the outer end of \a line. */
QWidget *makeFrameEdge(SeparatorLine *line)
{
    auto *edge = new SeparatorLine({}, line);
    edge->setOrientation(SeparatorLine::Corner);
    edge->hide();
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edge, 0, Qt::AlignRight);
    return edge;
}

} // namespace

OverviewButton3Children::OverviewButton3Children(QWidget *parent)
    : QFrame(parent)
{
    setFocusPolicy(Qt::NoFocus);
    initStyleSheet();
    auto *halves = new HalvedLayout(this);
    halves->setSpacing(0);
    halves->setContentsMargins(0, 0, 0, 0);
    m_leftButton = new LeftSideButton(this);
    m_leftButton->setGraphicsEffect(nullptr); // the tile casts one shadow
    m_rightContainer = new QWidget(this);
    auto *grid = new QGridLayout(m_rightContainer);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (unsigned int row = 0; row < numOfRightSideButtons; ++row)
        addRow(row, grid);
    halves->setWidgets(m_leftButton, m_rightContainer);
    updateFontSizes();
    connect(m_leftButton, &QAbstractButton::clicked, this, [this] { Q_EMIT clicked(); });
    connect(m_leftButton, &OverviewButtonBase::keyPressed, this,
            &OverviewButton3Children::leftButtonKeyPressed);
    setGraphicsEffect(createDefaultShadowEffectPixels());
}

void OverviewButton3Children::addRow(unsigned int row, QGridLayout *grid)
{
    const Row shape = rowAt(row);
    const int gridRow = gridRowsPerRow * int(row);

    auto *button = new RightSideButton(m_rightContainer);
    m_rightButtons.at(row) = button;
    button->setGraphicsEffect(nullptr);
    button->setShape(shape.borders, shape.corners);
    auto *dummy = new RightSideDummyButton(QString::fromLatin1(shape.name), m_rightContainer);
    m_rightDummies.at(row) = dummy;
    dummy->hide();

    auto *vertical = new SeparatorLine({m_leftButton, button}, m_rightContainer);
    m_verticalSeparators.at(row) = vertical;
    vertical->setOrientation(SeparatorLine::Vertical);
    vertical->setEdgeStyle(shape.edge);
    grid->addWidget(vertical, gridRow, separatorColumn, 2, 1);
    if (row > 0)
        addSeparators(row, grid);
    grid->addWidget(button, gridRow, buttonColumn);
    grid->addWidget(dummy, gridRow + 1, buttonColumn);

    connect(button, &QAbstractButton::clicked, this, [this, row] { Q_EMIT rightSideClicked(int(row)); });
    connect(button, &OverviewButtonBase::keyPressed, this,
            [this, button](int key) { rightButtonKeyPressed(button, key); });
}

/** The line above \a row, and what joins it to the line at the left. */
void OverviewButton3Children::addSeparators(unsigned int row, QGridLayout *grid)
{
    const int gridRow = gridRowsPerRow * int(row) - 1;
    RightSideButton *above = m_rightButtons.at(row - 1);
    RightSideButton *below = m_rightButtons.at(row);

    auto *horizontal = new SeparatorLine({above, below}, m_rightContainer);
    m_horizontalSeparators.at(row - 1) = horizontal;
    horizontal->setBorderStyle(SeparatorLine::Inner);
    horizontal->setEdgeStyle(SeparatorLine::BottomOrRight);
    m_frameEdges.at(row - 1) = makeFrameEdge(horizontal);
    grid->addWidget(horizontal, gridRow, buttonColumn);

    auto *corner = new SeparatorLine({m_leftButton, above, below}, m_rightContainer);
    m_cornerSeparators.at(row - 1) = corner;
    corner->setOrientation(SeparatorLine::Corner);
    grid->addWidget(corner, gridRow, separatorColumn);
}

void OverviewButton3Children::setIcon(const QPixmap &icon)
{
    m_leftButton->setIcon(icon);
}

void OverviewButton3Children::setTitle(const QString &title)
{
    m_leftButton->setTitle(title);
}

QString OverviewButton3Children::title() const
{
    return m_leftButton->title();
}

void OverviewButton3Children::setText(const QString &text)
{
    m_leftButton->setText(text);
}

QString OverviewButton3Children::text() const
{
    return m_leftButton->text();
}

void OverviewButton3Children::setRighSideTitle(unsigned int index, const QString &title)
{
    if (index < numOfRightSideButtons)
        m_rightButtons.at(index)->setTitle(title);
}

void OverviewButton3Children::setRighSideText(unsigned int index, const QString &text)
{
    if (index < numOfRightSideButtons)
        m_rightButtons.at(index)->setText(text);
}

QString OverviewButton3Children::rightSideTitle(unsigned int index) const
{
    return index < numOfRightSideButtons ? m_rightButtons.at(index)->title() : QString();
}

QString OverviewButton3Children::rightSideText(unsigned int index) const
{
    return index < numOfRightSideButtons ? m_rightButtons.at(index)->text() : QString();
}

void OverviewButton3Children::setRightSideVisible(unsigned int count)
{
    for (unsigned int row = 0; row < numOfRightSideButtons; ++row) {
        m_rightButtons.at(row)->setVisible(row < count);
        m_rightDummies.at(row)->setVisible(row >= count);
    }
    for (unsigned int line = 0; line < numOfRightSideSeparators; ++line) {
        m_horizontalSeparators.at(line)->setBackgroundOnly(line >= count);
        m_frameEdges.at(line)->setVisible(line >= count);
    }
    m_rightContainer->setVisible(count > 0);
    m_leftButton->setShapeForRightSide(count > 0);
}

/** The first visible one in a range of buttons. */
template <typename Iterator>
RightSideButton *OverviewButton3Children::visibleButton(Iterator from, Iterator end) const
{
    const auto found =
        std::find_if(from, end, [this](const RightSideButton *button) { return button->isVisibleTo(this); });
    return found == end ? nullptr : *found;
}

RightSideButton *OverviewButton3Children::nextVisibleButton(RightSideButton *button) const
{
    const auto end = m_rightButtons.end();
    const auto own = std::find(m_rightButtons.begin(), end, button);
    return own == end ? nullptr : visibleButton(own + 1, end);
}

RightSideButton *OverviewButton3Children::previousVisibleButton(RightSideButton *button) const
{
    const auto end = m_rightButtons.rend();
    const auto own = std::find(m_rightButtons.rbegin(), end, button);
    return own == end ? nullptr : visibleButton(own + 1, end);
}

void OverviewButton3Children::leftButtonKeyPressed(int key)
{
    const QPointer<OverviewButton3Children> alive(this);
    switch (key) {
    case Qt::Key_Up:
        focusPreviousChild();
        break;
    case Qt::Key_Down:
        if (RightSideButton *last = visibleButton(m_rightButtons.rbegin(), m_rightButtons.rend()))
            last->setFocus(Qt::TabFocusReason);
        if (alive)
            focusNextChild();
        break;
    case Qt::Key_Right:
        if (RightSideButton *first = visibleButton(m_rightButtons.begin(), m_rightButtons.end()))
            first->setFocus(Qt::TabFocusReason);
        break;
    default:
        break;
    }
}

void OverviewButton3Children::rightButtonKeyPressed(RightSideButton *button, int key)
{
    const QPointer<OverviewButton3Children> alive(this);
    switch (key) {
    case Qt::Key_Left:
        m_leftButton->setFocus(Qt::TabFocusReason);
        break;
    case Qt::Key_Up:
        if (RightSideButton *previous = previousVisibleButton(button)) {
            previous->setFocus(Qt::TabFocusReason);
            break;
        }
        m_leftButton->setFocus(Qt::TabFocusReason);
        if (alive)
            focusPreviousChild();
        break;
    case Qt::Key_Down:
        if (RightSideButton *next = nextVisibleButton(button))
            next->setFocus(Qt::TabFocusReason);
        else
            focusNextChild();
        break;
    default:
        break;
    }
}

void OverviewButton3Children::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementOverviewButton);
}

void OverviewButton3Children::updateFontSizes()
{
    const int big = fontSize("BIG");
    const int normal = fontSize("NORMAL");
    const int small = fontSize("SMALL");
    m_leftButton->setTitleFontSize(big);
    m_leftButton->setTextFontSize(normal);
    for (RightSideButton *button : m_rightButtons) {
        button->setTitleFontSize(normal);
        button->setTextFontSize(small);
    }
}

bool OverviewButton3Children::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        updateFontSizes();
    return QFrame::event(event);
}

} // namespace NVO
