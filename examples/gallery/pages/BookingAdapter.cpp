#include "pages/BookingAdapter.h"

#include "pages/PageSupport.h"

#include <nvo/Label.h>

#include <QDate>
#include <QFrame>
#include <QHBoxLayout>
#include <QLocale>
#include <QStringList>
#include <QVBoxLayout>
#include <QVariant>

#include <array>
#include <numeric>

namespace {

constexpr quint32 entriesADay = 12; // the last is the sum
constexpr int numberWidth = 100;
constexpr int amountWidth = 130;

struct Posting
{
    const char *text;
    const char *account;
};

constexpr std::array<Posting, 10> postings{{
    {"Papier Lang e. K., Kopierpapier", "4930 Bürobedarf"},
    {"Stadtwerke Ulm, Abschlag Strom", "4240 Gas, Strom, Wasser"},
    {"Miete Geschäftsräume Donaustraße 12", "4210 Miete"},
    {"Autohaus Keller, Inspektion UL-NV 204", "4540 Kfz-Reparaturen"},
    {"Telefon und Internet", "4920 Telefon"},
    {"Rechnung an Bäckerei Sommer GmbH", "8400 Erlöse 19 % USt"},
    {"Reisekosten Messe Hannover", "4660 Reisekosten Arbeitnehmer"},
    {"Haftpflichtversicherung, Jahresbeitrag", "4360 Versicherungen"},
    {"Rechnung an Praxis Dr. Vogt", "8400 Erlöse 19 % USt"},
    {"Wartung Heizungsanlage", "4260 Instandhaltung"},
}};

constexpr std::array<const char *, 5> notes{
    {"Beleg liegt als Scan vor.", "Skonto von 2 % bis zum Zahlungsziel abgezogen.",
     "Auf zwei Kostenstellen verteilt: Verwaltung 60 %, Vertrieb 40 %.",
     "Rückfrage an den Lieferanten ist beantwortet.", "Wiederkehrende Buchung, monatlich zum Ersten."}};

/** A number that looks as if it had nothing to do with \a seed. */
quint32 scattered(quint32 seed)
{
    seed = (seed ^ (seed >> 16)) * 0x45d9f3bU;
    seed = (seed ^ (seed >> 16)) * 0x45d9f3bU;
    return seed ^ (seed >> 16);
}

bool isSum(quint32 number)
{
    return number % entriesADay == entriesADay - 1;
}

QString dateOf(quint32 number)
{
    return QDate(1900, 1, 1).addDays(int(number / entriesADay)).toString(QStringLiteral("dd.MM.yyyy"));
}

int centsOf(quint32 number)
{
    return 500 + int(scattered(number) % 250000);
}

QString amount(qint64 cents)
{
    return QLocale(QLocale::German).toString(double(cents) / 100, 'f', 2) + QStringLiteral(" €");
}

QString sumOfDay(quint32 number)
{
    qint64 cents = 0;
    for (quint32 other = number - number % entriesADay; other < number; ++other)
        cents += centsOf(other);
    return amount(cents);
}

QStringList notesOf(quint32 number)
{
    const quint32 random = scattered(number + 77);
    QStringList lines;
    for (quint32 line = 0; line < random % 3; ++line)
        lines.append(QString::fromUtf8(notes.at((random / 8 + line) % notes.size())));
    return lines;
}

NVO::Label *makeColumn(int width, LabelRole role, Qt::Alignment alignment)
{
    NVO::Label *label = makeLabel(QString(), NVO::Font::DEFAULT, role);
    label->setFixedWidth(width);
    label->setAlignment(alignment);
    return label;
}

/** A row of the journal, as high as its texts. */
class Entry : public QFrame
{
public:
    Entry(const QString &kind, QWidget *parent)
        : QFrame(parent)
    {
        setProperty("style", kind);
        setObjectName(QStringLiteral("booking") + kind);
    }

    virtual void show(int position, quint32 number) = 0;

    void takeHeight()
    {
        for (NVO::Label *label : findChildren<NVO::Label *>())
            label->ensurePolished();
        layout()->activate();
        resize(width(), sizeHint().height());
    }
};

class BookingEntry : public Entry
{
public:
    static QString kind() { return QStringLiteral("Entry"); }

    explicit BookingEntry(QWidget *parent)
        : Entry(kind(), parent)
        , m_position(makeColumn(numberWidth, LabelRole::Caption, Qt::AlignTop))
        , m_text(makeLabel(QString(), NVO::Font::DEFAULT, LabelRole::Name))
        , m_account(makeCaption(QString(), NVO::Font::DEFAULT))
        , m_notes(makeCaption(QString(), NVO::Font::DEFAULT))
        , m_amount(makeColumn(amountWidth, LabelRole::Text, Qt::AlignTop | Qt::AlignRight))
    {
        auto *texts = new QVBoxLayout;
        texts->setSpacing(2);
        texts->addWidget(m_text);
        texts->addWidget(m_account);
        texts->addWidget(m_notes);
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(12, 8, 12, 8);
        row->addWidget(m_position);
        row->addLayout(texts, 1);
        row->addWidget(m_amount);
    }

    void show(int position, quint32 number) override
    {
        const Posting &posting = postings.at(scattered(number + 5) % postings.size());
        const QStringList lines = notesOf(number);
        m_position->setText(QLocale(QLocale::German).toString(position + 1));
        m_text->setText(QString::fromUtf8(posting.text));
        m_account->setText(dateOf(number) + QStringLiteral(" · ") + QString::fromUtf8(posting.account));
        m_notes->setText(lines.join(QStringLiteral("<br>")));
        m_notes->setVisible(!lines.isEmpty());
        m_amount->setText(amount(centsOf(number)));
    }

private:
    NVO::Label *m_position;
    NVO::Label *m_text;
    NVO::Label *m_account;
    NVO::Label *m_notes;
    NVO::Label *m_amount;
};

class SumEntry : public Entry
{
public:
    static QString kind() { return QStringLiteral("Sum"); }

    explicit SumEntry(QWidget *parent)
        : Entry(kind(), parent)
        , m_position(makeColumn(numberWidth, LabelRole::Caption, Qt::AlignVCenter))
        , m_text(makeLabel(QString(), NVO::Font::DEFAULT, LabelRole::Name))
        , m_amount(makeColumn(amountWidth, LabelRole::Name, Qt::AlignVCenter | Qt::AlignRight))
    {
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(12, 6, 12, 6);
        row->addWidget(m_position);
        row->addWidget(m_text, 1);
        row->addWidget(m_amount);
    }

    void show(int position, quint32 number) override
    {
        m_position->setText(QLocale(QLocale::German).toString(position + 1));
        m_text->setText(QStringLiteral("Tagessumme %1").arg(dateOf(number)));
        m_amount->setText(sumOfDay(number));
    }

private:
    NVO::Label *m_position;
    NVO::Label *m_text;
    NVO::Label *m_amount;
};

} // namespace

BookingAdapter::BookingAdapter(int entries)
    : m_numbers(std::size_t(entries))
    , m_nextNumber(quint32(entries))
{
    std::iota(m_numbers.begin(), m_numbers.end(), 0U);
}

QWidget *BookingAdapter::widget(int position, QWidget *recycled, QWidget *parent)
{
    const quint32 number = m_numbers.at(std::size_t(position));
    const QString kind = isSum(number) ? SumEntry::kind() : BookingEntry::kind();
    if (recycled && recycled->property("style") != kind) {
        delete recycled;
        recycled = nullptr;
    }
    if (!recycled)
        recycled = adopted(isSum(number) ? static_cast<QWidget *>(new SumEntry(parent))
                                         : static_cast<QWidget *>(new BookingEntry(parent)));
    auto *entry = static_cast<Entry *>(recycled);
    entry->show(position, number);
    entry->takeHeight();
    return entry;
}

int BookingAdapter::count()
{
    return int(m_numbers.size());
}

void BookingAdapter::insert(int position)
{
    m_nextNumber += isSum(m_nextNumber) ? 1 : 0; // a sum is not entered
    m_numbers.insert(m_numbers.begin() + position, m_nextNumber++);
    Q_EMIT signalUpdateRecyclingListOrder();
}

void BookingAdapter::remove(int position)
{
    m_numbers.erase(m_numbers.begin() + position);
    Q_EMIT signalUpdateRecyclingListOrder();
}

QWidget *BookingAdapter::adopted(QWidget *item)
{
    ++m_alive;
    connect(item, &QObject::destroyed, this, [this] {
        --m_alive;
        Q_EMIT aliveWidgetsChanged();
    });
    Q_EMIT aliveWidgetsChanged();
    return item;
}
