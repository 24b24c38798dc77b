#include "completer/Completer.h"

#include "completer/CompleterDelegate.h"
#include "completer/CompleterProxyModel.h"
#include "completer/CompleterView.h"
#include "theme/StyleSupport.h"

#include <nvo/CompleterSourceModel.h>
#include <nvo/Label.h>

#include <QGridLayout>
#include <QHeaderView>
#include <QPointer>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace NVO {

namespace {

constexpr int titleHeight = 25;
constexpr int removeColumnWidth = 25;

} // namespace

Completer::Completer(QWidget *parent)
    : QWidget(parent)
{
    // Of the kinds of windows, tool tips alone are made active by no window system.
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                   | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto *layout = new QGridLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);

    m_titleLabel = new Label;
    m_titleLabel->setObjectName(QStringLiteral("title"));
    m_titleLabel->setFixedHeight(titleHeight);
    m_titleLabel->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_titleLabel);

    m_view = new CompleterView(this);
    m_view->setItemDelegate(new CompleterDelegate(m_view));
    m_view->header()->setMinimumSectionSize(
        std::min(m_view->header()->minimumSectionSize(), removeColumnWidth));
    m_sourceModel = new CompleterSourceModel(this);
    m_proxyModel = new CompleterProxyModel(this);
    m_proxyModel->setSourceModel(m_sourceModel);
    connect(m_view, &QAbstractItemView::clicked, this, &Completer::cellClicked);
    m_view->setModel(m_proxyModel);
    layout->addWidget(m_view);
    StyleSupport::applySheet(this, ElementCompleter);
}

void Completer::setData(const CompleterData &suggestions)
{
    // Measured are all rows, and without marks, so that the columns suit whatever is typed later.
    m_proxyModel->setFilterText(QString());
    m_sourceModel->setMatchingText(QString());
    m_sourceModel->setCompleterData(suggestions);
    expandAll();
    m_titleLabel->setText(suggestions.title());
    setAccessibleName(suggestions.title());
    m_view->setAccessibleName(suggestions.title());
    resizeColumns();
    if (!m_matchingText.isEmpty()) {
        setMatchingText(m_matchingText);
        expandAll();
    }
    adjustWidth();
}

void Completer::setMatchingText(const QString &text)
{
    m_matchingText = text;
    m_proxyModel->setFilterText(text);
    m_sourceModel->setMatchingText(text);
}

void Completer::expandAll()
{
    m_view->openCaptions();
}

void Completer::resizeColumns()
{
    const QHeaderView *header = m_view->header();
    m_contentWidths.clear();
    for (int column = 0; column < header->count() - 1; ++column) {
        m_view->resizeColumnToContents(column);
        m_contentWidths.append(header->sectionSize(column));
    }
    m_measuredFont = m_view->font(); // polished by now
    m_fitted = {};
}

void Completer::adjustWidth()
{
    QHeaderView *header = m_view->header();
    const int columns = header->count() - 1;
    const int scrollBar = scrollBarRoom();
    // Rows that just do not fit are scrolled with the wheel: for a bar there is no room then.
    m_view->setVerticalScrollBarPolicy(scrollBar > 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    if (columns <= 0) {
        setOwnWidth(std::max(m_targetWidth, removeColumnWidth));
        return;
    }
    header->resizeSection(columns, removeColumnWidth);
    const QPair<int, int> fitted(m_targetWidth, scrollBar);
    if (m_fitted != fitted) {
        m_fitted = fitted;
        for (int column = 0; column < columns; ++column)
            header->resizeSection(column, m_contentWidths.value(column));
    }
    const QMargins frame = m_view->contentsMargins();
    const int around = scrollBar + frame.left() + frame.right();
    const int sum = columnsWidth();
    if (sum < m_targetWidth) {
        const int extra = (m_targetWidth - around - sum) / columns;
        for (int column = 0; column < columns; ++column)
            header->resizeSection(column, header->sectionSize(column) + extra);
    }
    setOwnWidth(columnsWidth() + around);
}

void Completer::prepareToShow()
{
    if (!isVisible()) {
        ensurePolished();
        if (!testAttribute(Qt::WA_Resized))
            adjustSize();
        // The list has its height only when it is laid out, which a hidden window is not by itself.
        layout()->invalidate();
        layout()->activate();
    }
    if (m_view->font() != m_measuredFont)
        setData(m_sourceModel->getCompleterData());
    else
        adjustWidth();
}

void Completer::standOn(QWidget *window)
{
    create();
    QWindow *below = window->windowHandle();
    if (below && below != windowHandle() && windowHandle()->transientParent() != below)
        windowHandle()->setTransientParent(below);
}

void Completer::dispose()
{
    hide();
    if (m_inClick)
        deleteLater();
    else
        delete this;
}

void Completer::cellClicked(const QModelIndex &index)
{
    const QModelIndex source = index.model() == m_proxyModel ? m_proxyModel->mapToSource(index) : index;
    const int type = source.data(Qt::UserRole).toInt();
    const bool isRemovable = type == CompleterDataRow::DataRemovable;
    if (isRemovable && source.column() == m_sourceModel->columnCount() - 1) {
        m_sourceModel->removeRows(source.row(), 1, source.parent());
        expandAll();
    } else if (isRemovable || type == CompleterDataRow::Data) {
        const QPointer<Completer> alive(this);
        const bool wasInClick = std::exchange(m_inClick, true);
        Q_EMIT suggestionClicked(m_sourceModel->plainText(source.siblingAtColumn(0)));
        if (alive)
            m_inClick = wasInClick;
    }
}

/** The width of the vertical bar if the rows of the data need one, filtered or not; else 0. */
int Completer::scrollBarRoom() const
{
    if (m_view->height() >= m_view->dataRowCount() * m_view->header()->height())
        return 0;
    const QScrollBar *bar = m_view->verticalScrollBar();
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Vertical;
    return bar->style()->pixelMetric(QStyle::PM_ScrollBarExtent, &option, bar);
}

int Completer::columnsWidth() const
{
    int sum = 0;
    for (int column = 0; column < m_view->header()->count(); ++column)
        sum += m_view->columnWidth(column);
    return sum;
}

void Completer::setOwnWidth(int width)
{
    if (minimumWidth() != width || maximumWidth() != width)
        setFixedWidth(width);
}

} // namespace NVO
