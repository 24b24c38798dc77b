#include "pages/BookingParts.h"

#include <nvo/Css.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMargins>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>
#include <array>
#include <numeric>

namespace {

constexpr int rowMargin = 9;
constexpr int columnSpacing = 12;
constexpr int rowFrame = 2; // edge and padding of a row
constexpr int groupBorder = 1;
constexpr int headerMargin = 4; // beside the arrow

/** How many digits wide the columns are; the text takes what is left. */
enum ColumnWidth { DocumentWidth = 9, AccountWidth = 24, TextWidth = 26, TaxWidth = 10, AmountWidth = 12 };

/** Keeps the font of its widget at one step of the type scale. */
class FontKeeper : public QObject
{
public:
    FontKeeper(QWidget *widget, NVO::Font::FontSize size)
        : QObject(widget)
        , m_widget(widget)
        , m_size(size)
    {
        widget->installEventFilter(this);
        setSize();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationFontChange)
            setSize();
        return QObject::eventFilter(watched, event);
    }

private:
    void setSize()
    {
        QFont font = m_widget->font();
        font.setPixelSize(
            std::max(NVO::Font::instance().fontSize(m_size) + NVO::Css::instance().fontDelta(), 1));
        m_widget->setFont(font);
    }

    QWidget *m_widget;
    NVO::Font::FontSize m_size;
};

/** A label or a field as wide as a column, at any size of the font. */
template <typename Base>
class Cell : public Base
{
public:
    Cell(int digits, const QString &text)
        : Base(text)
        , m_digits(digits)
    {
        const bool stretches = digits == TextWidth;
        this->setSizePolicy(stretches ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    /** The weight does not count: bold and plain cells stand below each other. */
    QSize sizeHint() const override
    {
        QFont font = this->font();
        font.setWeight(QFont::Normal);
        return {QFontMetrics(font).horizontalAdvance(QLatin1Char('0')) * m_digits, Base::sizeHint().height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int m_digits;
};

QLabel *addCell(QHBoxLayout *row, const char *name, const QString &text, int digits)
{
    auto *cell = new Cell<QLabel>(digits, text);
    cell->setObjectName(QLatin1String(name));
    if (digits == AmountWidth)
        cell->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(cell);
    return cell;
}

QHBoxLayout *makeColumns(int frame)
{
    auto *columns = new QHBoxLayout;
    columns->setContentsMargins(rowMargin + frame, 4, rowMargin + frame, 4);
    columns->setSpacing(columnSpacing);
    return columns;
}

QString spoken(const BookingData &booking)
{
    QStringList parts{booking.document, booking.account, booking.contraAccount,
                      booking.text,     booking.tax,     amountText(booking.cents)};
    if (!booking.error.isEmpty())
        parts.append(booking.error);
    return parts.join(QStringLiteral(", "));
}

} // namespace

void keepFont(QWidget *widget, NVO::Font::FontSize size)
{
    new FontKeeper(widget, size);
}

void dress(QWidget *widget, NVO::Element element, const QString &style, NVO::Font::FontSize size)
{
    if (!style.isEmpty())
        widget->setProperty("style", style);
    widget->setStyleSheet(NVO::Css::instance().css(element));
    keepFont(widget, size);
}

QLabel *makeText(const QString &text, const QString &role, NVO::Font::FontSize size)
{
    auto *label = new QLabel(text);
    dress(label, NVO::ElementLabel, role, size);
    return label;
}

QString amountText(qint64 cents)
{
    return QLocale(QLocale::German).toString(double(cents) / 100, 'f', 2);
}

QWidget *makeColumnTitles()
{
    auto *titles = new QWidget;
    QHBoxLayout *columns = makeColumns(groupBorder + rowFrame);
    columns->setContentsMargins(columns->contentsMargins() - QMargins(0, 0, 0, 4));
    titles->setLayout(columns);
    constexpr std::array<const char *, 6> names{"Beleg", "Konto",  "Gegenkonto",
                                                "Text",  "Steuer", "Betrag in €"};
    constexpr std::array<int, 6> widths{DocumentWidth, AccountWidth, AccountWidth,
                                        TextWidth,     TaxWidth,     AmountWidth};
    for (std::size_t column = 0; column < names.size(); ++column)
        dress(addCell(columns, "columnTitle", QString::fromUtf8(names.at(column)), widths.at(column)),
              NVO::ElementLabel, QStringLiteral("Hint"));
    return titles;
}

BookingRow::BookingRow(const BookingData &booking)
    : m_booking(booking)
{
    setObjectName(QStringLiteral("bookingWidget"));
    setFrameShape(QFrame::StyledPanel);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(spoken(booking));
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    QHBoxLayout *columns = makeColumns(0);
    lines->addLayout(columns);
    addCell(columns, "document", booking.document, DocumentWidth);
    addCell(columns, "account", booking.account, AccountWidth);
    addCell(columns, "contraAccount", booking.contraAccount, AccountWidth);
    addCell(columns, "text", booking.text, TextWidth);
    addCell(columns, "tax", booking.tax, TaxWidth);
    addCell(columns, "amount", amountText(booking.cents), AmountWidth);
    if (!booking.error.isEmpty()) {
        auto *message = new QLabel(booking.error);
        message->setObjectName(QStringLiteral("message"));
        message->setContentsMargins(rowMargin, 0, rowMargin, 4);
        lines->addWidget(message);
    }
    dress(this, NVO::ElementBookingWidget,
          booking.error.isEmpty() ? QStringLiteral("Normal") : QStringLiteral("Error"));
}

void BookingRow::setSelected(bool selected)
{
    say("selected", selected);
}

void BookingRow::setLast(bool last)
{
    say("last", last);
}

void BookingRow::say(const char *property, bool value)
{
    if (this->property(property) == QVariant(value))
        return;
    setProperty(property, value);
    setStyleSheet(styleSheet()); // the sheet looks at the property
}

void BookingRow::mousePressEvent(QMouseEvent *)
{
    Q_EMIT chosen();
}

void BookingRow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down)
        focusNextChild();
    else if (event->key() == Qt::Key_Up)
        focusPreviousChild();
    else if (event->key() == Qt::Key_Space)
        Q_EMIT chosen();
    else
        QFrame::keyPressEvent(event);
}

BookingGroup::BookingGroup(const QString &caption, const QVector<BookingData> &bookings)
    : m_expander(new QToolButton)
    , m_info(new QLabel)
    , m_sum(new QLabel)
    , m_rows(new QVBoxLayout)
{
    setObjectName(QStringLiteral("bookingGroup"));
    setFrameShape(QFrame::StyledPanel);
    auto *header = new QFrame;
    header->setObjectName(QStringLiteral("header"));
    auto *line = new QHBoxLayout(header);
    line->setContentsMargins(headerMargin, 0, headerMargin, 0);
    line->setSpacing(6);
    auto *name = new QLabel(caption);
    name->setObjectName(QStringLiteral("caption"));
    m_expander->setObjectName(QStringLiteral("expander"));
    m_expander->setCheckable(true);
    m_expander->setChecked(true);
    m_expander->setAccessibleName(QStringLiteral("%1 zeigen").arg(caption));
    m_info->setObjectName(QStringLiteral("info"));
    m_sum->setObjectName(QStringLiteral("sum"));
    line->addWidget(m_expander);
    line->addWidget(name);
    line->addSpacing(6);
    line->addWidget(m_info, 1);
    line->addWidget(m_sum);
    line->addSpacing(rowMargin + rowFrame - headerMargin);

    auto *body = new QWidget;
    body->setLayout(m_rows);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    auto *parts = new QVBoxLayout(this);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(0);
    parts->addWidget(header);
    parts->addWidget(body);
    connect(m_expander, &QToolButton::toggled, this, [this, body](bool open) {
        body->setVisible(open);
        setProperty("open", open);
        setStyleSheet(styleSheet()); // the sheet looks at the property
    });
    for (const BookingData &booking : bookings)
        add(booking);
    const bool wrong = std::any_of(bookings.begin(), bookings.end(),
                                   [](const BookingData &booking) { return !booking.error.isEmpty(); });
    dress(this, NVO::ElementBookingGroup, wrong ? QStringLiteral("Error") : QStringLiteral("Normal"));
}

BookingRow *BookingGroup::add(const BookingData &booking)
{
    auto *row = new BookingRow(booking);
    connect(row, &BookingRow::chosen, this, [this, row] { Q_EMIT chosen(row); });
    if (QLayoutItem *last = m_rows->itemAt(m_rows->count() - 1))
        static_cast<BookingRow *>(last->widget())->setLast(false);
    row->setLast(true);
    m_rows->addWidget(row);
    updateHeader();
    return row;
}

void BookingGroup::setNote(const QString &note)
{
    m_note = note;
    updateHeader();
}

qint64 BookingGroup::cents() const
{
    qint64 cents = 0;
    for (int place = 0; place < m_rows->count(); ++place)
        cents += static_cast<BookingRow *>(m_rows->itemAt(place)->widget())->booking().cents;
    return cents;
}

void BookingGroup::updateHeader()
{
    const QString number = m_rows->count() == 1 ? QStringLiteral("1 Buchung")
                                                : QStringLiteral("%1 Buchungen").arg(m_rows->count());
    m_info->setText(m_note.isEmpty() ? number : number + QStringLiteral(" · ") + m_note);
    m_sum->setText(amountText(cents()));
}

BookingEntry::BookingEntry(const BookingData &proposal)
{
    QHBoxLayout *columns = makeColumns(groupBorder + rowFrame);
    setLayout(columns);
    const auto add = [columns](const QString &text, const char *hint, int digits) {
        QLineEdit *field = new Cell<QLineEdit>(digits, text);
        field->setPlaceholderText(QString::fromUtf8(hint));
        field->setAccessibleName(QString::fromUtf8(hint));
        dress(field, NVO::ElementBookingTextItem, QStringLiteral("Normal"));
        columns->addWidget(field);
        return field;
    };
    m_document = add(proposal.document, "Beleg", DocumentWidth);
    m_account = add(proposal.account, "Konto", AccountWidth);
    m_contraAccount = add(proposal.contraAccount, "Gegenkonto", AccountWidth);
    m_text = add(proposal.text, "Buchungstext", TextWidth);
    m_tax = add(proposal.tax, "Steuer", TaxWidth);
    m_amount = add(proposal.cents == 0 ? QString() : amountText(proposal.cents), "Betrag", AmountWidth);
    m_amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_amount, &QLineEdit::returnPressed, this, &BookingEntry::accept);
}

void BookingEntry::accept()
{
    bool isNumber = false;
    const double amount = QLocale(QLocale::German).toDouble(m_amount->text(), &isNumber);
    m_amount->setProperty("style", isNumber ? QStringLiteral("Normal") : QStringLiteral("Error"));
    m_amount->setStyleSheet(m_amount->styleSheet()); // the sheet looks at the property
    if (isNumber)
        Q_EMIT entered({m_document->text(), m_account->text(), m_contraAccount->text(), m_text->text(),
                        m_tax->text(), qRound64(amount * 100), QString()});
}
