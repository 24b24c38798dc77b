#include <nvo/LineEditWithButton.h>

#include "completer/Completer.h"
#include "theme/StyleSupport.h"

#include <nvo/Button.h>
#include <nvo/LineEdit.h>
#include <nvo/Pixmap.h>

#include <QAccessible>
#include <QAction>
#include <QBoxLayout>
#include <QEvent>
#include <QPainter>

namespace NVO {

namespace {

constexpr int fieldHeight = 25;
constexpr int buttonSize = 25;
constexpr const char *styleName = "style";

QString init()
{
    return QStringLiteral("init");
}

QString initHasButton()
{
    return QStringLiteral("initHasButton");
}

QString focusIn()
{
    return QStringLiteral("focusIn");
}

QString focusOut()
{
    return QStringLiteral("focusOut");
}

/** The cross in a border of three tenths of the icon. */
QIcon clearIcon()
{
    const Pixmap cross(QStringLiteral(":/clearDark"));
    if (cross.isNull())
        return QIcon();
    QPixmap canvas(cross.size() * 10 / 7);
    canvas.fill(Qt::transparent);
    QRect place(QPoint(), cross.size());
    place.moveCenter(canvas.rect().center());
    QPainter(&canvas).drawPixmap(place, cross);
    canvas.setDevicePixelRatio(cross.devicePixelRatio());
    return canvas;
}

CompleterDataRow makeRow(CompleterDataRow::Type type, const QStringList &texts)
{
    CompleterDataRow row;
    row.setType(type);
    for (const QString &text : texts)
        row.addColumn(text, QString());
    return row;
}

} // namespace

LineEditWithButton::LineEditWithButton(QWidget *parent)
    : QWidget(parent)
    , m_completer(new Completer(nullptr))
{
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);

    // The sheet comes first and the parts are made where they stand, or Qt would parse their sheets again.
    StyleSupport::applySheet(this, ElementLineEditWithButton);
    m_lineEdit = new LineEdit(this);
    m_lineEdit->setFixedHeight(fieldHeight);
    m_lineEdit->setObjectName(QStringLiteral("lineEdit"));
    setStyle(m_lineEdit, styleName, init());
    m_lineEdit->ensurePolished(); // before the symbol, for which Qt would parse the sheet once more
    addClearAction();
    layout->addWidget(m_lineEdit);
    addButton();
    layout->addWidget(m_button);

    connectParts();
    m_lineEdit->installEventFilter(this);
    m_button->installEventFilter(this);
    setFocusProxy(m_lineEdit);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

LineEditWithButton::~LineEditWithButton()
{
    if (m_completer)
        m_completer->dispose();
}

void LineEditWithButton::addClearAction()
{
    m_clearAction = m_lineEdit->addAction(clearIcon(), QLineEdit::TrailingPosition);
    m_clearAction->setText(QStringLiteral("Leeren"));
    // The second widget of the action is the button that the line edit has made for it.
    if (QWidget *cross = m_clearAction->associatedWidgets().value(1))
        cross->setCursor(Qt::PointingHandCursor);
    m_clearAction->setVisible(false);
}

void LineEditWithButton::addButton()
{
    m_button = new Button(this);
    m_button->setObjectName(QStringLiteral("button"));
    m_button->setFixedSize(buttonSize, buttonSize);
    m_button->setIcon(StyleSupport::fileIcon(QStringLiteral(":/bulb")));
    m_button->setCursor(Qt::PointingHandCursor);
    m_button->setFocusPolicy(Qt::NoFocus);
    m_button->setAccessibleName(QStringLiteral("Vorschläge"));
    m_button->hide();
}

/** The popup is shown before its rows are filtered. */
void LineEditWithButton::connectParts()
{
    connect(m_clearAction, &QAction::triggered, this, &LineEditWithButton::clearButtonclicked);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &LineEditWithButton::showClearButton);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &LineEditWithButton::lineEditChanged);
    connect(m_lineEdit, &QLineEdit::textChanged, m_completer, &Completer::setMatchingText);
    connect(m_lineEdit, &QLineEdit::textChanged, m_completer, &Completer::expandAll);
    connect(m_button, &QAbstractButton::clicked, this, &LineEditWithButton::toggleCompleter);
    connect(m_completer, &Completer::suggestionClicked, this, &LineEditWithButton::chooseSuggestion);
}

void LineEditWithButton::setStyle(QWidget *widget, const char *name, const QVariant &value)
{
    if (widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    StyleSupport::repolish(widget);
}

void LineEditWithButton::setStyles(const QString &style)
{
    setStyle(m_lineEdit, styleName, style);
    setStyle(m_button, styleName, style);
}

void LineEditWithButton::setDataForCompleter(const CompleterData &suggestions)
{
    if (m_completer)
        m_completer->setData(suggestions);
    showButton();
    if (m_completer && m_completer->isVisible())
        placeCompleter();
}

void LineEditWithButton::showButton()
{
    m_button->setVisible(true);
    setStyles(initHasButton());
}

void LineEditWithButton::showCompleter()
{
    if (!m_completer || !isVisible() || !isEnabled())
        return;
    placeCompleter();
    m_completer->standOn(window());
    watchAncestors();
    m_completer->show();
}

void LineEditWithButton::closeCompleter()
{
    unwatchAncestors();
    if (m_completer)
        m_completer->close();
}

/** Gives the popup its width and puts it directly under the line edit, where both begin to be read. */
void LineEditWithButton::placeCompleter()
{
    m_completer->setTargetWidth(width());
    m_completer->setLayoutDirection(layoutDirection());
    m_completer->prepareToShow();
    const QRect contents = contentsRect();
    const QPoint topLeft = mapToGlobal(QPoint(contents.left(), m_lineEdit->geometry().bottom() + 1));
    const int overhang = isRightToLeft() ? m_completer->width() - contents.width() : 0;
    m_completer->move(topLeft - QPoint(overhang, 0));
}

void LineEditWithButton::setUsername(const QString &text)
{
    m_lineEdit->setText(text);
}

QString LineEditWithButton::text() const
{
    return m_lineEdit->text();
}

CompleterData LineEditWithButton::createTestData()
{
    CompleterData sample;
    sample.setTitle(QStringLiteral("Vorschläge"));
    sample.setHeaders({QStringLiteral("Abkürzung"), QStringLiteral("Bezeichnung")});
    const auto add = [&sample](CompleterDataRow::Type type, const QString &code, const QString &name) {
        sample.addRow(makeRow(type, {code, name}));
    };
    add(CompleterDataRow::MainCaption, QStringLiteral("Zuletzt verwendet"), QString());
    add(CompleterDataRow::DataRemovable, QStringLiteral("GmbH"),
        QStringLiteral("Gesellschaft mit beschränkter Haftung"));
    add(CompleterDataRow::DataRemovable, QStringLiteral("OHG"), QStringLiteral("Offene Handelsgesellschaft"));
    add(CompleterDataRow::MainCaption, QStringLiteral("Rechtsformen"), QString());
    add(CompleterDataRow::SubCaption, QStringLiteral("Kapitalgesellschaften"), QString());
    add(CompleterDataRow::Data, QStringLiteral("AG"), QStringLiteral("Aktiengesellschaft"));
    add(CompleterDataRow::Data, QStringLiteral("UG"), QStringLiteral("Unternehmergesellschaft"));
    add(CompleterDataRow::SubCaption, QStringLiteral("Personengesellschaften"), QString());
    add(CompleterDataRow::Data, QStringLiteral("GbR"), QStringLiteral("Gesellschaft bürgerlichen Rechts"));
    add(CompleterDataRow::Data, QStringLiteral("KG"), QStringLiteral("Kommanditgesellschaft"));
    return sample;
}

void LineEditWithButton::toggleCompleter()
{
    if (m_completer && m_completer->isVisible())
        closeCompleter();
    else
        showCompleter();
}

void LineEditWithButton::lineEditChanged()
{
    if (m_lineEdit->text().isEmpty())
        closeCompleter();
    else
        showCompleter();
}

void LineEditWithButton::showClearButton()
{
    m_clearAction->setVisible(!m_lineEdit->text().isEmpty());
}

void LineEditWithButton::clearButtonclicked()
{
    m_lineEdit->clear();
    m_clearAction->setVisible(false);
    closeCompleter();
}

void LineEditWithButton::chooseSuggestion(const QString &text)
{
    const QPointer<LineEditWithButton> alive(this);
    m_lineEdit->setText(text);
    if (!alive)
        return;
    closeCompleter();
    Q_EMIT suggestionChosen(text);
}

void LineEditWithButton::watchAncestors()
{
    unwatchAncestors();
    for (QWidget *widget = this; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        widget->installEventFilter(this);
        m_ancestors.append(widget);
    }
}

void LineEditWithButton::unwatchAncestors()
{
    for (const QPointer<QWidget> &widget : qAsConst(m_ancestors)) {
        if (widget)
            widget->removeEventFilter(this);
    }
    m_ancestors.clear();
}

bool LineEditWithButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_lineEdit && event->type() == QEvent::FocusIn)
        nameLineEdit();
    const bool isFocusEvent = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (watched == m_lineEdit && isFocusEvent && m_button->isVisible()) {
        setStyles(event->type() == QEvent::FocusIn ? focusIn() : focusOut());
    } else if (watched == m_button && event->type() == QEvent::MouseButtonPress) {
        m_lineEdit->setFocus();
    } else if (watched == m_button && event->type() == QEvent::DynamicPropertyChange) {
        // A button that hears of new font sizes falls back to its own style.
        if (!m_button->isHidden())
            m_button->setProperty(styleName, m_lineEdit->property(styleName));
    } else if (m_completer && m_completer->isVisible()) {
        if (event->type() == QEvent::Move || (watched == this && event->type() == QEvent::Resize))
            placeCompleter();
    }
    return QObject::eventFilter(watched, event);
}

/** The name and the label are given to the whole field; assistive technology meets the line edit in it. */
void LineEditWithButton::nameLineEdit()
{
    const QString name = QAccessible::queryAccessibleInterface(this)->text(QAccessible::Name);
    if (!name.isEmpty())
        m_lineEdit->setAccessibleName(name);
}

bool LineEditWithButton::event(QEvent *event)
{
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::Show)
        nameLineEdit();
    if (event->type() == QEvent::Hide || (event->type() == QEvent::EnabledChange && !isEnabled()))
        closeCompleter();
    return result;
}

} // namespace NVO
