#include <nvo/GroupBox.h>

#include "theme/StyleSupport.h"

#include <QLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QVector>

#include <algorithm>

namespace NVO {

namespace {

QVector<QPointer<QLayout>> rowsOf(const QLayout *layout)
{
    QVector<QPointer<QLayout>> rows;
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (QLayout *row = layout->itemAt(i)->layout())
            rows.append(row);
    }
    return rows;
}

bool holdsFocus(const QLayout *row)
{
    for (int i = 0; i < row->count(); ++i) {
        const QWidget *widget = row->itemAt(i)->widget();
        if (widget && widget->hasFocus())
            return true;
    }
    return false;
}

/** Returns whether that is a change. */
bool setState(QLayout *row, const QString &state)
{
    const QVariant value(state);
    if (row->property("state") == value)
        return false;
    row->setProperty("state", value);
    return true;
}

} // namespace

GroupBox::GroupBox(QWidget *parent)
    : QGroupBox(parent)
{
    setMouseTracking(true);
    initStyleSheet();
}

void GroupBox::setGroupBoxStyle(GroupBoxStyle style)
{
    if (m_groupBoxStyle == style)
        return;
    m_groupBoxStyle = style;
    initStyleSheet();
}

void GroupBox::setLegend(QWidget *legend)
{
    if (m_legend == legend)
        return;
    m_legend = legend;
    positionLegend();
}

void GroupBox::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_groupBoxStyle));
    StyleSupport::applySheet(this, ElementGroupBox);
}

bool GroupBox::event(QEvent *event)
{
    // A group box of Qt asks its sheet at every event, and Qt parses a sheet again that was asked before its
    // widget is polished.
    return testAttribute(Qt::WA_WState_Polished) ? QGroupBox::event(event) : QWidget::event(event);
}

void GroupBox::resizeEvent(QResizeEvent *event)
{
    QGroupBox::resizeEvent(event);
    positionLegend();
}

/** Only the sheet says what is above the contents, so elsewhere the legend has no place. */
void GroupBox::positionLegend()
{
    if (!m_legend || !StyleSupport::isStyleSheetStyled(this))
        return;
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const QRect contents =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);

    const QPointer<GroupBox> alive(this);
    m_legend->show();
    if (!alive || !m_legend)
        return;
    const QRect place(contents.width() - m_legend->width(), 0, m_legend->width(),
                      std::max(m_legend->height(), contents.y()));
    m_legend->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void GroupBox::mouseMoveEvent(QMouseEvent *event)
{
    // Whoever hears of a state may take rows or the box away.
    const QPointer<GroupBox> alive(this);
    for (const QPointer<QLayout> &row : rowsOf(layout())) {
        if (row && alive)
            updateRowState(row, event->pos());
    }
    if (alive)
        QGroupBox::mouseMoveEvent(event);
}

void GroupBox::updateRowState(QLayout *row, const QPoint &mouse)
{
    const bool hovered = row->geometry().contains(mouse);
    const QPointer<QLayout> rowAlive(row);
    const QPointer<GroupBox> alive(this);
    bool changed = setState(row, hovered ? QStringLiteral("hover") : QString());
    if (rowAlive && holdsFocus(row))
        changed |= setState(row, QStringLiteral("focus"));
    if (changed && alive)
        update();
}

} // namespace NVO
