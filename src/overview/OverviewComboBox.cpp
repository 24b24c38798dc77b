#include <nvo/OverviewComboBox.h>

#include "overview/AccessibleOverviewComboBox.h"
#include "overview/OverviewComboBoxDelegate.h"
#include "theme/StyleSupport.h"

#include <nvo/Css.h>
#include <nvo/Font.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QTextCursor>
#include <QTextDocument>
#include <QWheelEvent>
#include <QtMath>

#include <algorithm>
#include <array>

namespace NVO {

namespace {

constexpr QSize iconArea(24, 24);
constexpr int sideMargin = 10;    // left of an icon and of the text of an action item
constexpr int textLeft = 44;      // of an entry
constexpr int textRight = 38;     // of an entry; leaves room for the arrow
constexpr int actionMargins = 48; // left and right of the text of an action item
constexpr int heightMargins = 20; // above and below
constexpr int pathSpacing = 5;
constexpr int lowestItem = 46;

constexpr std::array<int, 5> textRoles{OverviewComboBox::TitleRole, OverviewComboBox::DescriptionRole,
                                       OverviewComboBox::PathRole, OverviewComboBox::IsActionRole,
                                       OverviewComboBox::ActionTextRole};

/** An item that knows how its texts are read. The plain texts are made when they are asked for. */
class OverviewItem : public QStandardItem
{
public:
    QStandardItem *clone() const override { return new OverviewItem(*this); }

    QVariant data(int role) const override
    {
        QVariant own = QStandardItem::data(role);
        if (own.isValid())
            return own;
        if (role == Qt::AccessibleTextRole) {
            const bool isAction = data(OverviewComboBox::IsActionRole).toBool();
            return spoken(isAction ? OverviewComboBox::ActionTextRole : OverviewComboBox::TitleRole);
        }
        if (role == Qt::AccessibleDescriptionRole) {
            QStringList lines{spoken(OverviewComboBox::DescriptionRole),
                              data(OverviewComboBox::PathRole).toString()};
            lines.removeAll(QString());
            return lines.join(QLatin1Char('\n'));
        }
        return own;
    }

private:
    QString spoken(int role) const { return AccessibleOverviewComboBox::spoken(data(role).toString()); }
};

/** Gives a painter back as it was. */
class PainterState
{
public:
    explicit PainterState(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterState() { m_painter->restore(); }
    PainterState(const PainterState &) = delete;
    PainterState &operator=(const PainterState &) = delete;

private:
    QPainter *m_painter;
};

bool isAction(const QModelIndex &item)
{
    return item.data(OverviewComboBox::IsActionRole).toBool();
}

QString textOf(const QModelIndex &item, int role)
{
    return item.data(role).toString();
}

QSize sizeOf(const QTextDocument &document)
{
    const QSizeF size = document.size();
    return {int(size.width()), int(size.height())};
}

/** A text that is laid out without margins; it is never edited. */
void fill(QTextDocument &document, const QString &html, const QFont &font)
{
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
}

/** The same to be painted: the colours of the text give way, its faces stay. */
void fill(QTextDocument &document, const QString &html, const QFont &font, const QColor &color)
{
    fill(document, html, font);
    QTextCharFormat format;
    format.setForeground(color);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
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

OverviewComboBox::~OverviewComboBox() = default;

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
        auto *item = new OverviewItem;
        for (const auto &each : content)
            item->setData(each.second, each.first);
        QStandardItem *parent = model->itemFromIndex(rootModelIndex());
        (parent ? parent : model->invisibleRootItem())->insertRow(qBound(0, index, count()), item);
    }
    updateGeometry();
}

void OverviewComboBox::removeItem(int index)
{
    watchModel();
    model()->removeRows(index, 1, rootModelIndex());
    updateGeometry();
}

QString OverviewComboBox::itemTitle(int index) const
{
    return textOf(modelIndex(index), TitleRole);
}

QString OverviewComboBox::itemDescription(int index) const
{
    return textOf(modelIndex(index), DescriptionRole);
}

QString OverviewComboBox::itemPath(int index) const
{
    return textOf(modelIndex(index), PathRole);
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
    const auto isText = [](int role) {
        return std::find(textRoles.begin(), textRoles.end(), role) != textRoles.end();
    };
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
    const QSize content = contentSize(item);
    return {content.width() + (isAction(item) ? actionMargins : textLeft + textRight),
            std::max(content.height(), lowestItem)};
}

QSize OverviewComboBox::contentSize(const QModelIndex &item) const
{
    const QVariant width = item.data(CachedWidthRole);
    const QVariant height = item.data(CachedHeightRole);
    if (width.isValid() && height.isValid())
        return {width.toInt(), height.toInt()};
    QSize size;
    if (isAction(item)) {
        QTextDocument document;
        document.setHtml(textOf(item, ActionTextRole));
        size = sizeOf(document);
    } else {
        size = measureEntry(item);
    }
    size.rheight() += heightMargins;
    keepSize(item, size.width(), size.height());
    return size;
}

QSize OverviewComboBox::measureEntry(const QModelIndex &item) const
{
    QSizeF size(0, 0);
    for (const int role : {TitleRole, DescriptionRole}) {
        const QString html = textOf(item, role);
        if (html.isEmpty())
            continue;
        QTextDocument document;
        fill(document, html, font());
        size = {std::max(size.width(), document.size().width()), size.height() + document.size().height()};
    }
    const QString path = textOf(item, PathRole);
    const int pathHeight =
        path.isEmpty() ? 0 : QFontMetrics(pathFont()).boundingRect(path).height() + pathSpacing;
    return {int(size.width()), int(size.height()) + pathHeight};
}

QFont OverviewComboBox::pathFont() const
{
    QFont font = this->font();
    const int pixelSize = Font::instance().fontSize(Font::SMALL);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    return font;
}

// Painting

void OverviewComboBox::paint(QPainter *painter, const QRect &rect, int index, const QColor &color) const
{
    const QModelIndex item = modelIndex(index);
    if (!painter || !item.isValid())
        return;
    if (isAction(item)) {
        paintAction(painter, rect, item, color);
        return;
    }
    paintIcon(painter, rect, item);

    const PainterState state(painter);
    const QRect clip = QStyle::visualRect(layoutDirection(), rect, rect.adjusted(textLeft, 0, -textRight, 0));
    painter->setClipRect(clip, Qt::IntersectClip);
    // The rows of a box that is higher than it asks to be stay as they are.
    const int spare = std::min(height(), rect.height()) - contentSize(item).height();
    QRect place = clip;
    place.setTop(rect.top() + std::max(spare, 0) / 2 + heightMargins / 2);
    for (const int role : {TitleRole, DescriptionRole}) {
        const QString html = textOf(item, role);
        if (html.isEmpty())
            continue;
        QTextDocument document;
        fill(document, html, font(), color);
        place.setTop(place.top() + paintText(painter, place, document));
    }
    place.setTop(place.top() + pathSpacing);
    paintPath(painter, place, textOf(item, PathRole), color);
}

void OverviewComboBox::paintAction(QPainter *painter, const QRect &rect, const QModelIndex &item,
                                   const QColor &color) const
{
    QTextDocument document;
    fill(document, textOf(item, ActionTextRole), font(), color);
    QRect place = QStyle::visualRect(layoutDirection(), rect, rect.adjusted(sideMargin, 0, 0, 0));
    place.setTop(int(rect.top() + (rect.height() - document.size().height()) / 2));
    paintText(painter, place, document);
}

/** In its own proportions, whatever size it has. */
void OverviewComboBox::paintIcon(QPainter *painter, const QRect &rect, const QModelIndex &item) const
{
    const QIcon icon = itemIcon(item.row());
    if (icon.isNull())
        return;
    const bool enabled = isEnabled() && item.flags().testFlag(Qt::ItemIsEnabled);
    const QPixmap pixmap =
        StyleSupport::iconPixmap(icon, iconArea, this, enabled ? QIcon::Normal : QIcon::Disabled);
    QRect place(QPoint(rect.left() + sideMargin, rect.top() + (rect.height() - iconArea.height()) / 2),
                iconArea);
    place = QStyle::visualRect(layoutDirection(), rect, place);
    const PainterState state(painter);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                            pixmap.size().scaled(iconArea, Qt::KeepAspectRatio), place),
                        pixmap);
}

/** Paints a text that begins in the upper corner of \a place, and returns its height. */
int OverviewComboBox::paintText(QPainter *painter, const QRect &place, QTextDocument &document) const
{
    qreal left = place.left();
    if (isRightToLeft()) {
        QTextOption option = document.defaultTextOption();
        option.setTextDirection(Qt::RightToLeft);
        document.setDefaultTextOption(option);
        document.setTextWidth(document.idealWidth());
        left = place.right() + 1 - document.size().width();
    }
    const PainterState state(painter);
    painter->translate(left, place.top());
    document.drawContents(painter);
    return int(document.size().height());
}

/** Paints a path into the top of \a place, elided where it is too long. */
void OverviewComboBox::paintPath(QPainter *painter, const QRect &place, const QString &path,
                                 const QColor &color) const
{
    const QFont font = pathFont();
    const QFontMetrics metrics(font);
    const QRect bounds = metrics.boundingRect(path);
    const int width = std::max(bounds.width(), qCeil(QFontMetricsF(font).horizontalAdvance(path)));
    const QRect line = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignTop,
                                           QSize(width, bounds.height()).boundedTo(place.size()), place);
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(
        line,
        int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignVCenter)
            | Qt::TextSingleLine,
        metrics.elidedText(path, Qt::ElideMiddle, line.width()));
}

void OverviewComboBox::paintEvent(QPaintEvent *)
{
    watchModel();
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.activeSubControls = QStyle::SC_None; // the box is one area to the mouse
    QPainter painter(this);
    {
        const PainterState state(&painter);
        painter.setPen(palette().color(QPalette::Text));
        style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    }
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

    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    const bool alt = event->modifiers() & Qt::AltModifier;
    int entry = -1;
    if (event->key() == Qt::Key_Down && alt) {
        showPopup();
        return;
    }
    if ((event->key() == Qt::Key_Up && !ctrl) || event->key() == Qt::Key_PageUp) {
        entry = findEntry(currentIndex() - 1, -1);
    } else if ((event->key() == Qt::Key_Down && !ctrl) || event->key() == Qt::Key_PageDown) {
        entry = findEntry(currentIndex() + 1, 1);
    } else if (event->key() == Qt::Key_Home && !lineEdit()) {
        entry = findEntry(0, 1);
    } else if (event->key() == Qt::Key_End && !lineEdit()) {
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
    event->accept();
    if (delta != 0)
        selectEntry(delta > 0 ? findEntry(currentIndex() - 1, -1) : findEntry(currentIndex() + 1, 1));
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
