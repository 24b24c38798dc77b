#include <nvo/OverviewComboBox.h>

#include "overview/AccessibleOverviewComboBox.h"
#include "overview/OverviewComboBoxDelegate.h"
#include "overview/OverviewComboBoxItem.h"
#include "overview/OverviewItemLook.h"
#include "theme/StyleSupport.h"

#include <nvo/Css.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include <algorithm>

namespace NVO {

namespace {

bool isAction(const QModelIndex &item)
{
    return item.data(OverviewComboBox::IsActionRole).toBool();
}

} // namespace

OverviewComboBox::OverviewComboBox(QWidget *parent)
    : QComboBox(parent)
{
    AccessibleOverviewComboBox::install();
    setFocusPolicy(Qt::StrongFocus);
    initStyleSheet();
    setItemDelegate(new OverviewComboBoxDelegate(this));
    setCursor(Qt::PointingHandCursor);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &OverviewComboBox::slotIndexChanged);
    watchModel();
}

void OverviewComboBox::addItem(const QIcon &icon, const QString &title, const QString &description,
                               const QString &path, const QVariant &userData)
{
    insertItem(count(), icon, title, description, path, userData);
}

void OverviewComboBox::insertItem(int index, const QIcon &icon, const QString &title,
                                  const QString &description, const QString &path, const QVariant &userData)
{
    insertRow(index, {{Qt::DecorationRole, icon},
                      {Qt::UserRole, userData},
                      {TitleRole, prepareText(title)},
                      {DescriptionRole, prepareText(description)},
                      {PathRole, path},
                      {IsActionRole, false}});
}

void OverviewComboBox::addActionItem(const QString &text)
{
    insertActionItem(count(), text);
}

void OverviewComboBox::insertActionItem(int index, const QString &text)
{
    insertRow(index, {{ActionTextRole, prepareText(text)}, {IsActionRole, true}});
}

void OverviewComboBox::insertRow(int index, const QVector<QPair<int, QVariant>> &content)
{
    watchModel();
    if (auto *model = qobject_cast<QStandardItemModel *>(this->model())) {
        QStandardItem *parent = model->itemFromIndex(rootModelIndex());
        if (!parent)
            parent = model->invisibleRootItem();
        parent->insertRow(qBound(0, index, count()), new OverviewComboBoxItem(content));
    }
    updateGeometry();
}

void OverviewComboBox::removeItem(int index)
{
    watchModel();
    if (index >= 0 && index < count()) // models of Qt add 1 to the largest int
        model()->removeRows(index, 1, rootModelIndex());
    updateGeometry();
}

QString OverviewComboBox::itemTitle(int index) const
{
    return modelIndex(index).data(TitleRole).toString();
}

QString OverviewComboBox::itemDescription(int index) const
{
    return modelIndex(index).data(DescriptionRole).toString();
}

QString OverviewComboBox::itemPath(int index) const
{
    return modelIndex(index).data(PathRole).toString();
}

void OverviewComboBox::setItemTitle(int index, const QString &title)
{
    setText(index, TitleRole, prepareText(title));
}

void OverviewComboBox::setItemDescription(int index, const QString &description)
{
    setText(index, DescriptionRole, prepareText(description));
}

void OverviewComboBox::setItemPath(int index, const QString &path)
{
    setText(index, PathRole, path);
}

void OverviewComboBox::setText(int index, ItemRole role, const QString &text)
{
    const QModelIndex item = modelIndex(index);
    if (item.isValid()) {
        model()->setData(item, text, role);
        forgetSizes(index, index);
    }
    updateGeometry();
}

QModelIndex OverviewComboBox::modelIndex(int index) const
{
    return model()->index(index, modelColumn(), rootModelIndex());
}

bool OverviewComboBox::isEntry(int index) const
{
    const QModelIndex item = modelIndex(index);
    return item.flags().testFlag(Qt::ItemIsEnabled) && !isAction(item);
}

/** The first entry that can be selected, from \a from on in steps of \a step; -1 if there is none. */
int OverviewComboBox::findEntry(int from, int step) const
{
    const int end = count();
    for (int index = from; index >= 0 && index < end; index += step) {
        if (isEntry(index))
            return index;
    }
    return -1;
}

void OverviewComboBox::selectEntry(int index)
{
    if (index >= 0)
        setCurrentIndex(index);
}

// Sizes

/**
 * Qt has no signal for a new model, so this is called wherever one may be noticed. Not for every event: some
 * come while the old one is being deleted.
 */
void OverviewComboBox::watchModel()
{
    QAbstractItemModel *model = this->model();
    if (m_model == model)
        return;
    m_model = model;
    m_modelWatch = std::make_unique<QObject>();
    m_lastIndex = QPersistentModelIndex();
    m_rowsChange = false;

    QObject *watch = m_modelWatch.get();
    const auto begin = [this] { m_rowsChange = true; };
    const auto end = [this] {
        m_rowsChange = false; // Qt was told earlier and has changed the current index by now
        m_largestHint = QSize();
        updateGeometry();
    };
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, watch, begin);
    connect(model, &QAbstractItemModel::rowsInserted, watch, end);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, watch, begin);
    connect(model, &QAbstractItemModel::rowsRemoved, watch, end);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, watch, begin);
    connect(model, &QAbstractItemModel::modelReset, watch, end);
    connect(model, &QAbstractItemModel::dataChanged, watch,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                dataChanged(first, last, roles);
            });
    // They may have been measured by a box of another font.
    forgetSizes(0, count() - 1);
    updateGeometry();
}

void OverviewComboBox::dataChanged(const QModelIndex &first, const QModelIndex &last,
                                   const QVector<int> &roles)
{
    if (first.parent() != rootModelIndex())
        return;
    const auto isText = [](int role) { return role >= TitleRole && role <= ActionTextRole; };
    if (roles.isEmpty() || std::any_of(roles.begin(), roles.end(), isText))
        forgetSizes(first.row(), last.row());
    m_largestHint = QSize(); // a kept size may have been written by the application
    updateGeometry();
}

void OverviewComboBox::forgetSizes(int first, int last)
{
    for (int index = first; index <= last; ++index)
        keepSize(modelIndex(index), QVariant(), QVariant());
    m_largestHint = QSize();
}

/** Nobody hears of it: what is shown stays, and an answer to it would be to lay out the list once more. */
void OverviewComboBox::keepSize(const QModelIndex &item, const QVariant &width, const QVariant &height) const
{
    const QSignalBlocker quiet(model());
    model()->setData(item, width, CachedWidthRole);
    model()->setData(item, height, CachedHeightRole);
}

QSize OverviewComboBox::sizeHint() const
{
    const QModelIndex first = modelIndex(0);
    if (m_largestHint.isValid() && m_model == model() && m_largestHintOf == first)
        return m_largestHint;
    m_largestHint = QSize(0, 0);
    m_largestHintOf = first;
    for (int index = 0; index < count(); ++index)
        m_largestHint = m_largestHint.expandedTo(sizeHintForItem(index));
    return m_largestHint;
}

QSize OverviewComboBox::sizeHintForItem(int index) const
{
    const QModelIndex item = modelIndex(index);
    if (!item.isValid())
        return QSize();
    return OverviewItemLook(item, this).sizeHint(contentSize(item));
}

QSize OverviewComboBox::contentSize(const QModelIndex &item) const
{
    const QVariant width = item.data(CachedWidthRole);
    const QVariant height = item.data(CachedHeightRole);
    if (width.isValid() && height.isValid())
        return {width.toInt(), height.toInt()};
    const QSize size = OverviewItemLook(item, this).contentSize();
    keepSize(item, size.width(), size.height());
    return size;
}

// Painting

void OverviewComboBox::paint(QPainter *painter, const QRect &rect, int index, const QColor &color) const
{
    const QModelIndex item = modelIndex(index);
    if (painter && item.isValid())
        OverviewItemLook(item, this).paint(painter, rect, contentSize(item).height(), color);
}

void OverviewComboBox::paintEvent(QPaintEvent *)
{
    watchModel();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.activeSubControls = QStyle::SC_None; // the box is one area to the mouse
    QPainter painter(this);
    painter.save();
    painter.setPen(palette().color(QPalette::Text));
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    painter.restore();
    paint(&painter, option.rect, currentIndex(), option.palette.color(QPalette::Text));
}

// Behaviour

void OverviewComboBox::slotIndexChanged(int p_newIndex)
{
    const bool byRows = m_rowsChange || m_model != model();
    watchModel();
    const QModelIndex item = modelIndex(p_newIndex);
    if (!isAction(item)) {
        m_lastIndex = item;
        QAccessibleEvent change(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&change);
        return;
    }
    if (isAction(m_lastIndex)) {
        setCurrentIndex(-1);
    } else {
        const QSignalBlocker once(this);
        setCurrentIndex(m_lastIndex.row());
    }
    if (!byRows)
        Q_EMIT actionTriggered(p_newIndex);
}

void OverviewComboBox::showPopup()
{
    watchModel();
    const QModelIndex current = modelIndex(currentIndex());
    if (!isAction(current))
        m_lastIndex = current; // it may have become current while signals were blocked
    // The view that Qt makes in place of one that was deleted has neither a model nor our delegate.
    if (view()->model() != model()) {
        view()->setModel(model());
        setItemDelegate(new OverviewComboBoxDelegate(this));
    }
    QComboBox::showPopup();
}

void OverviewComboBox::keyPressEvent(QKeyEvent *event)
{
    const QCompleter *completer = lineEdit() ? lineEdit()->completer() : nullptr;
    if (completer && completer->completionMode() != QCompleter::InlineCompletion
        && completer->popup()->isVisible()) {
        lineEdit()->event(event);
        return;
    }

    const int key = event->key();
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    if (key == Qt::Key_Down && event->modifiers() & Qt::AltModifier) {
        showPopup();
        return;
    }
    int entry = -1;
    if ((key == Qt::Key_Up && !ctrl) || key == Qt::Key_PageUp) {
        entry = findEntry(currentIndex() - 1, -1);
    } else if ((key == Qt::Key_Down && !ctrl) || key == Qt::Key_PageDown) {
        entry = findEntry(currentIndex() + 1, 1);
    } else if (key == Qt::Key_Home && !lineEdit()) {
        entry = findEntry(0, 1);
    } else if (key == Qt::Key_End && !lineEdit()) {
        entry = findEntry(count() - 1, -1);
    } else {
        QComboBox::keyPressEvent(event);
        return;
    }
    event->accept();
    selectEntry(entry);
}

void OverviewComboBox::wheelEvent(QWheelEvent *event)
{
    if (view()->isVisible())
        return;
    const int delta = event->angleDelta().y();
    if (delta > 0)
        selectEntry(findEntry(currentIndex() - 1, -1));
    else if (delta < 0)
        selectEntry(findEntry(currentIndex() + 1, 1));
    event->accept();
}

bool OverviewComboBox::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        watchModel();
        forgetSizes(0, count() - 1);
        break;
    case QEvent::ApplicationFontChange:
        initStyleSheet();
        return true;
    default:
        break;
    }
    return QComboBox::event(event);
}

void OverviewComboBox::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementOverviewComboBox);
}

QString OverviewComboBox::prepareText(const QString &text)
{
    return Css::instance().replaceBoldTags(text);
}

} // namespace NVO
