#include "PlainTwin.h"

#include <nvo/GraphicsEffect.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>

namespace {

template <typename Type>
QWidget *make(QWidget *parent)
{
    return new Type(parent);
}

using Maker = QWidget *(*)(QWidget *);

const QHash<QByteArray, Maker> &makers()
{
    static const QHash<QByteArray, Maker> makers{{"QCheckBox", make<QCheckBox>},
                                                 {"QComboBox", make<QComboBox>},
                                                 {"QDoubleSpinBox", make<QDoubleSpinBox>},
                                                 {"QFrame", make<QFrame>},
                                                 {"QGroupBox", make<QGroupBox>},
                                                 {"QLabel", make<QLabel>},
                                                 {"QLineEdit", make<QLineEdit>},
                                                 {"QPushButton", make<QPushButton>},
                                                 {"QRadioButton", make<QRadioButton>},
                                                 {"QScrollArea", make<QScrollArea>},
                                                 {"QScrollBar", make<QScrollBar>},
                                                 {"QSlider", make<QSlider>},
                                                 {"QStackedWidget", make<QStackedWidget>},
                                                 {"QTabBar", make<QTabBar>},
                                                 {"QTabWidget", make<QTabWidget>},
                                                 {"QToolButton", make<QToolButton>},
                                                 {"QWidget", make<QWidget>}};
    return makers;
}

QByteArray qtClass(const QMetaObject *meta)
{
    while (!makers().contains(meta->className()))
        meta = meta->superClass();
    return meta->className();
}

/** The sheet with our class names, as far as they have been seen, exchanged for those of Qt. */
QString plainSheet(QString sheet, const QWidget *widget)
{
    static QHash<QString, QString> names;
    for (const QMetaObject *meta = widget->metaObject(); meta->className() != qtClass(meta);
         meta = meta->superClass())
        names.insert(QString::fromLatin1(meta->className()).replace("::", "--"), qtClass(meta));
    static const QRegularExpression ours("NVO--\\w+");
    QRegularExpressionMatch match;
    for (int at = 0; (match = ours.match(sheet, at)).hasMatch(); at = match.capturedStart() + 1) {
        if (names.contains(match.captured()))
            sheet.replace(match.capturedStart(), match.capturedLength(), names.value(match.captured()));
    }
    return sheet;
}

QAbstractScrollArea *scrollAreaOf(QWidget *widget)
{
    if (const auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->view();
    return qobject_cast<QAbstractScrollArea *>(widget);
}

/** The children that somebody has put there, for a widget of a class that makes others itself. */
QWidgetList pages(const QWidget *widget)
{
    QWidgetList pages;
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            pages << tabs->widget(i);
    } else if (const auto *stack = qobject_cast<const QStackedWidget *>(widget)) {
        for (int i = 0; i < stack->count(); ++i)
            pages << stack->widget(i);
    } else if (const auto *area = qobject_cast<const QScrollArea *>(widget)) {
        if (area->widget())
            pages << area->widget();
    }
    return pages;
}

bool holdsPages(const QWidget *widget)
{
    return widget->inherits("QTabWidget") || widget->inherits("QStackedWidget")
           || widget->inherits("QScrollArea");
}

/** The rank of each of \a values among them. */
template <typename Container>
int rank(const Container &values, int value)
{
    return int(std::lower_bound(values.begin(), values.end(), value) - values.begin());
}

} // namespace

PlainTwin::PlainTwin(const QWidget *widget)
    : m_class(qtClass(widget->metaObject()))
    , m_name(widget->objectName())
    , m_sheet(plainSheet(widget->styleSheet(), widget))
    , m_hidden(widget->isHidden() && !widget->isWindow())
    , m_geometry(widget->geometry())
    , m_minimum(widget->minimumSize())
    , m_maximum(widget->maximumSize())
    , m_policy(widget->sizePolicy())
{
    const QList<QByteArray> properties = widget->dynamicPropertyNames();
    for (const QByteArray &name : properties) {
        if (!name.startsWith("_q"))
            m_properties.append({name, widget->property(name)});
    }
    if (widget->testAttribute(Qt::WA_SetFont))
        m_font = widget->font();
    const auto *effect = dynamic_cast<const NVO::GraphicsEffect *>(widget->graphicsEffect());
    m_shadow = effect && effect->enabled() && effect->isEnabled();
    noteContents(widget);
    noteChildren(widget);
}

void PlainTwin::noteContents(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        m_text = button->text();
        m_icon = button->icon();
        m_iconSize = button->iconSize();
    } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        m_text = label->text();
        m_pixmap = label->pixmap(Qt::ReturnByValue);
        m_wrapped = label->wordWrap();
    } else if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        m_text = edit->text();
    } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
        m_text = box->title();
    } else if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        for (int i = 0; i < combo->count(); ++i)
            m_items << combo->itemText(i);
    } else if (const auto *bar = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
            m_items << bar->tabText(i);
    } else if (const auto *tabs = qobject_cast<const QTabWidget *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            m_items << tabs->tabText(i);
    }
    if (const QAbstractScrollArea *area = scrollAreaOf(const_cast<QWidget *>(widget))) {
        for (const QScrollBar *bar : {area->horizontalScrollBar(), area->verticalScrollBar()}) {
            if (!bar->styleSheet().isEmpty())
                m_bars.append(
                    {bar->orientation(), plainSheet(bar->styleSheet(), bar), bar->property("style")});
        }
    }
}

void PlainTwin::noteChildren(const QWidget *widget)
{
    for (const char *leaf : {"QComboBox", "QDoubleSpinBox", "QLineEdit", "QScrollBar"}) {
        if (m_class == leaf)
            return;
    }
    m_laidOut = widget->layout() && !holdsPages(widget);
    if (m_laidOut)
        m_margins = widget->layout()->contentsMargins();
    const QWidgetList children = holdsPages(widget)
                                     ? pages(widget)
                                     : widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (!child->isWindow() && (m_class != "QTabBar" || !child->inherits("QToolButton")))
            m_children.append(PlainTwin(child));
    }
}

int PlainTwin::count() const
{
    int count = 1;
    for (const PlainTwin &child : m_children)
        count += child.count();
    return count;
}

QWidget *PlainTwin::build(QWidget *parent) const
{
    QWidget *widget = makers()[m_class](parent);
    widget->setObjectName(m_name);
    for (const auto &property : m_properties)
        widget->setProperty(property.first, property.second);
    if (m_font.isValid())
        widget->setFont(m_font.value<QFont>());
    if (!m_sheet.isEmpty())
        widget->setStyleSheet(m_sheet);
    widget->setMinimumSize(m_minimum);
    widget->setMaximumSize(m_maximum);
    widget->setSizePolicy(m_policy);
    widget->setGeometry(m_geometry);
    fill(widget);
    fillChildren(widget);
    if (m_shadow)
        widget->setGraphicsEffect(new QGraphicsDropShadowEffect(widget));
    if (m_hidden)
        widget->hide();
    return widget;
}

void PlainTwin::fill(QWidget *widget) const
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setText(m_text);
        button->setIcon(m_icon);
        button->setIconSize(m_iconSize);
    } else if (auto *label = qobject_cast<QLabel *>(widget)) {
        label->setWordWrap(m_wrapped);
        if (m_pixmap.isNull())
            label->setText(m_text);
        else
            label->setPixmap(m_pixmap);
    } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        edit->setText(m_text);
    } else if (auto *box = qobject_cast<QGroupBox *>(widget)) {
        box->setTitle(m_text);
    } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        combo->addItems(m_items);
    } else if (auto *bar = qobject_cast<QTabBar *>(widget)) {
        for (const QString &item : m_items)
            bar->addTab(item);
    }
    for (const Bar &bar : m_bars) {
        QAbstractScrollArea *area = scrollAreaOf(widget);
        QScrollBar *scrollBar =
            bar.orientation == Qt::Horizontal ? area->horizontalScrollBar() : area->verticalScrollBar();
        scrollBar->setProperty("style", bar.style);
        scrollBar->setStyleSheet(bar.sheet);
    }
}

void PlainTwin::fillChildren(QWidget *widget) const
{
    auto *tabs = qobject_cast<QTabWidget *>(widget);
    auto *stack = qobject_cast<QStackedWidget *>(widget);
    auto *area = qobject_cast<QScrollArea *>(widget);
    QGridLayout *grid = nullptr;
    QVector<int> columns;
    QVector<int> rows;
    if (m_laidOut && !m_children.isEmpty()) {
        grid = new QGridLayout(widget);
        grid->setContentsMargins(m_margins);
        grid->setSpacing(0);
        for (const PlainTwin &child : m_children) {
            columns << child.m_geometry.x();
            rows << child.m_geometry.y();
        }
        for (QVector<int> *values : {&columns, &rows}) {
            std::sort(values->begin(), values->end());
            values->erase(std::unique(values->begin(), values->end()), values->end());
        }
    }
    for (int i = 0; i < m_children.size(); ++i) {
        const PlainTwin &child = m_children[i];
        QWidget *made = child.build(widget);
        if (tabs)
            tabs->addTab(made, m_items.value(i));
        else if (stack)
            stack->addWidget(made);
        else if (area)
            area->setWidget(made);
        else if (grid)
            grid->addWidget(made, rank(rows, child.m_geometry.y()), rank(columns, child.m_geometry.x()));
    }
    if (area)
        area->setWidgetResizable(true);
}
