#include "pages/EditsPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/CapsLockEventFilter.h>
#include <nvo/CheckBox.h>
#include <nvo/ComboBox.h>
#include <nvo/DateEdit.h>
#include <nvo/KeyState.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/NumericEdit.h>
#include <nvo/PeriodEdit.h>
#include <nvo/TimeEdit.h>

#include <QEvent>
#include <QGridLayout>
#include <QMetaEnum>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <functional>

namespace {

using NVO::BaseDateEdit;
using NVO::BaseEdit;
using NVO::NumericEdit;

constexpr int fieldWidth = 260;
constexpr int formWidth = 150;
constexpr int periodWidth = 240;
constexpr int lockDelay = 100; // milliseconds
constexpr int maximumAmount = 9999999;

/** A look, what it is for, and why a field would have it. */
struct Look
{
    BaseEdit::LineEditStyle style;
    const char *meaning;
    const char *toolTip;
};

constexpr std::array<Look, 5> looks{
    Look{BaseEdit::Normal, "in Ordnung", ""},
    Look{BaseEdit::Error, "nicht zulässig", "Dieser Wert ist nicht zulässig."},
    Look{BaseEdit::Info, "auffällig", "Dieser Wert weicht vom Vorjahr ab."},
    Look{BaseEdit::VaSt, "übernommen", "Dieser Wert wurde aus den Daten der Behörde übernommen."},
    Look{BaseEdit::Due, "fehlt noch", "Diese Angabe wird bis zum 10. Mai gebraucht."}};

/** The states of a field, in the order of their columns. */
enum class Shown { Normal, Hover, Focus, Disabled, ReadOnly, Empty };

constexpr std::array<Shown, 6> shownStates{Shown::Normal,   Shown::Hover,    Shown::Focus,
                                           Shown::Disabled, Shown::ReadOnly, Shown::Empty};

QString titleOf(Shown shown)
{
    switch (shown) {
    case Shown::Hover:
        return ForcedState::title(ForcedState::Hover);
    case Shown::Focus:
        return ForcedState::title(ForcedState::Focus);
    case Shown::Disabled:
        return ForcedState::title(ForcedState::Disabled);
    case Shown::ReadOnly:
        return QStringLiteral("Nur lesbar");
    case Shown::Empty:
        return QStringLiteral("Leer");
    default:
        return ForcedState::title(ForcedState::Normal);
    }
}

/** A class of fields, the share of the width that its text needs, and a field with a value or without. */
struct Kind
{
    const char *name;
    int share;
    std::function<QWidget *(bool filled)> make;
};

template <typename Field>
Field *inMask(const QString &mask, const QString &text)
{
    auto *field = new Field;
    field->setInputMask(mask);
    field->setText(text);
    return field;
}

NumericEdit *makeNumber(double value, int decimals, const QString &unit, NumericEdit::Flags flags)
{
    auto *field = new NumericEdit;
    field->setRange(maximumAmount, decimals, unit, flags);
    field->setValue(value);
    return field;
}

NVO::DateEdit *makeDate(bool filled, BaseDateEdit::Flags flags, int fixedYear)
{
    auto *field = new NVO::DateEdit;
    field->setFlags(flags);
    field->setFixedYear(fixedYear);
    if (filled)
        field->setDate(QDate(2026, 5, 12));
    return field;
}

NVO::PeriodEdit *makePeriod(bool filled, BaseDateEdit::Flags flags, int fixedYear)
{
    auto *field = new NVO::PeriodEdit;
    field->setFlags(flags);
    field->setFixedYear(fixedYear);
    if (filled)
        field->setDate(QDate(2026, 4, 1), QDate(2026, 6, 30));
    return field;
}

/** Empty fields have their placeholder; an amount without one is 0, and a masked field has its mask. */
const QVector<Kind> &kinds()
{
    static const QVector<Kind> all{
        {"LineEdit", 5,
         [](bool filled) {
             auto *field = new NVO::LineEdit;
             field->setPlaceholderText(QStringLiteral("Bitte eingeben"));
             field->setText(filled ? QStringLiteral("Muster AG") : QString());
             return field;
         }},
        {"LineEdit mit Maske", 7,
         [](bool filled) {
             return inMask<NVO::LineEdit>(QStringLiteral("RE-9999-9999;_"),
                                          filled ? QStringLiteral("RE-2026-0418") : QString());
         }},
        {"NumericEdit", 6,
         [](bool filled) {
             return makeNumber(filled ? 1234.5 : 0, 2, QStringLiteral("€"), NumericEdit::NoFlag);
         }},
        {"DateEdit", 6, [](bool filled) { return makeDate(filled, BaseDateEdit::DayMonthYear, -1); }},
        {"PeriodEdit", 8, [](bool filled) { return makePeriod(filled, BaseDateEdit::DayMonth, -1); }},
        {"TimeEdit", 4,
         [](bool filled) {
             auto *field = new NVO::TimeEdit;
             field->setPlaceholderText(QStringLiteral("hh:mm"));
             field->setText(filled ? QStringLiteral("08:30") : QString());
             return field;
         }},
        {"ComboBox", 5, [](bool filled) {
             auto *box = new NVO::ComboBox;
             box->addItems({QStringLiteral("19 %"), QStringLiteral("7 %"), QStringLiteral("0 %")});
             box->setPlaceholderText(QStringLiteral("Bitte wählen"));
             box->setCurrentIndex(filled ? 0 : -1);
             return box;
         }}};
    return all;
}

QString keyOf(BaseEdit::LineEditStyle style)
{
    return QString::fromLatin1(QMetaEnum::fromType<BaseEdit::LineEditStyle>().valueToKey(style));
}

/** The styles have the same values in all classes; the combo box has none of its own for Due. */
void setLook(QWidget *field, const Look &look)
{
    if (auto *edit = qobject_cast<BaseEdit *>(field))
        edit->setLineEditStyle(look.style);
    else if (auto *number = qobject_cast<NumericEdit *>(field))
        number->setLineEditStyle(NumericEdit::NumericEditStyle(look.style));
    else if (auto *box = qobject_cast<NVO::ComboBox *>(field))
        box->setComboBoxStyle(look.style == BaseEdit::Due ? NVO::ComboBox::Normal
                                                          : NVO::ComboBox::ComboBoxStyle(look.style));
    field->setToolTip(QString::fromUtf8(look.toolTip));
}

void setReadOnly(QWidget *field)
{
    if (auto *box = qobject_cast<NVO::ComboBox *>(field))
        box->setReadOnly(true);
    else
        field->setProperty("readOnly", true);
}

void show(QWidget *field, Shown shown)
{
    switch (shown) {
    case Shown::Hover:
        return ForcedState::apply(field, ForcedState::Hover);
    case Shown::Focus:
        return ForcedState::apply(field, ForcedState::Focus);
    case Shown::Disabled:
        return ForcedState::apply(field, ForcedState::Disabled);
    case Shown::ReadOnly:
        return setReadOnly(field);
    case Shown::Normal:
    case Shown::Empty:
        break;
    }
}

QGridLayout *makeGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    return grid;
}

/** All looks of one class in all states. */
QGridLayout *makeMatrix(const Kind &kind)
{
    QGridLayout *grid = makeGrid();
    grid->addWidget(makeLabel(QString::fromUtf8(kind.name), NVO::Font::DEFAULT, LabelRole::Name), 0, 0, 1, 2);
    for (const Shown shown : shownStates) {
        const int column = int(shown) + 1;
        grid->addWidget(makeCaption(titleOf(shown)), 1, column);
        grid->setColumnStretch(column, 1);
    }
    for (const Look &look : looks) {
        if (look.style == BaseEdit::Due && QLatin1String(kind.name) == QLatin1String("ComboBox"))
            continue;
        const int row = grid->rowCount();
        grid->addWidget(makeCaption(keyOf(look.style)), row, 0);
        for (const Shown shown : shownStates) {
            QWidget *field = kind.make(shown != Shown::Empty);
            field->setMinimumWidth(1); // the columns are of one width
            field->setAccessibleName(
                QStringLiteral("%1, %2, %3")
                    .arg(QString::fromUtf8(kind.name), keyOf(look.style), titleOf(shown)));
            setLook(field, look);
            show(field, shown);
            grid->addWidget(field, row, int(shown) + 1);
        }
    }
    grid->setColumnMinimumWidth(0, 56);
    return grid;
}

/** Tells its slot when the page comes into view or a field gets the focus. */
class Arrival : public QObject
{
public:
    Arrival(QWidget *widget, std::function<void()> slot)
        : QObject(widget)
        , m_slot(std::move(slot))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::FocusIn)
            m_slot();
        return false;
    }

private:
    std::function<void()> m_slot;
};

} // namespace

EditsPage::EditsPage()
{
    addFamily();
    addPassword();
    addDateForms();
    addNumberForms();
    addMasks();
    addStates();
}

void EditsPage::addFamily()
{
    QGridLayout *grid = makeGrid();
    for (int i = 0; i < kinds().size(); ++i) {
        grid->addWidget(makeCaption(QString::fromUtf8(kinds().at(i).name)), 0, i + 1);
        grid->setColumnStretch(i + 1, kinds().at(i).share);
    }
    for (const Look &look : looks) {
        const int row = grid->rowCount();
        auto *names = new QVBoxLayout;
        names->setSpacing(0);
        names->addWidget(makeLabel(keyOf(look.style), NVO::Font::DEFAULT, LabelRole::Name));
        names->addWidget(makeCaption(QString::fromUtf8(look.meaning)));
        grid->addLayout(names, row, 0);
        for (int i = 0; i < kinds().size(); ++i) {
            QWidget *field = kinds().at(i).make(true);
            field->setMinimumWidth(1);
            setLook(field, look);
            field->setAccessibleName(
                QStringLiteral("%1, %2").arg(QString::fromUtf8(kinds().at(i).name), keyOf(look.style)));
            grid->addWidget(field, row, i + 1);
        }
    }
    addSection(QStringLiteral("Die Familie"),
               QStringLiteral("Fünf Stile, ein Maß. Die Auswahlliste kennt den Stil „Due“ nicht. Was hinter "
                              "einem Stil steckt, sagt der Hinweis unter der Maus."))
        ->addLayout(grid);
}

void EditsPage::addStates()
{
    QVBoxLayout *section =
        addSection(QStringLiteral("Alle Zustände"),
                   QStringLiteral("Die Felder der Spalten „Normal“, „Nur lesbar“ und „Leer“ lassen sich "
                                  "bedienen; die anderen zeigen einen festgehaltenen Zustand."));
    for (const Kind &kind : kinds()) {
        section->addLayout(makeMatrix(kind));
        section->addSpacing(8);
    }
}

void EditsPage::addDateForms()
{
    struct Form
    {
        const char *name;
        BaseDateEdit::Flags flags;
        int fixedYear;
    };
    const Form forms[]{{"DayMonthYear", BaseDateEdit::DayMonthYear, -1},
                       {"mit SeparatorSlash", BaseDateEdit::SeparatorSlash, -1},
                       {"festes Jahr 2026", BaseDateEdit::DayMonthYear, 2026},
                       {"DayMonth", BaseDateEdit::DayMonth, -1},
                       {"MonthYear", BaseDateEdit::MonthYear, -1},
                       {"HideDay", BaseDateEdit::HideDay, -1},
                       {"Year", BaseDateEdit::Year, -1}};
    QGridLayout *grid = makeGrid();
    int column = 1;
    for (const char *title : {"DateEdit", "Leer", "PeriodEdit", "Leer"})
        grid->addWidget(makeCaption(QString::fromUtf8(title)), 0, column++);
    for (const Form &form : forms) {
        const int row = grid->rowCount();
        grid->addWidget(makeLabel(QString::fromUtf8(form.name), NVO::Font::DEFAULT, LabelRole::Name), row, 0);
        column = 1;
        for (const bool filled : {true, false}) {
            NVO::DateEdit *field = makeDate(filled, form.flags, form.fixedYear);
            field->setMinimumWidth(formWidth);
            field->setAccessibleName(QString::fromUtf8(form.name));
            grid->addWidget(field, row, column++);
        }
        for (const bool filled : {true, false}) {
            NVO::PeriodEdit *field = makePeriod(filled, form.flags, form.fixedYear);
            field->setMinimumWidth(periodWidth);
            field->setAccessibleName(QString::fromUtf8(form.name));
            grid->addWidget(field, row, column++);
        }
    }
    grid->setColumnStretch(column, 1);
    addSection(QStringLiteral("Daten und Zeiträume"),
               QStringLiteral("Pfeiltasten ändern die Zahl am Cursor um 1, Bild auf und Bild ab um 10. Ein "
                              "festes Jahr steht schon da."))
        ->addLayout(grid);
}

void EditsPage::addNumberForms()
{
    struct Form
    {
        const char *name;
        double value;
        int decimals;
        const char *unit;
        NumericEdit::Flags flags;
    };
    const Form forms[]{
        {"Betrag", 1234.56, 2, "€", NumericEdit::NoFlag},
        {"auch negativ", -1234.56, 2, "€", NumericEdit::AllowNegativ},
        {"volle Euro", 1234.56, 2, "€", NumericEdit::ZeroSymbol},
        {"volle Euro, auch negativ", -980, 2, "€", NumericEdit::ZeroSymbol | NumericEdit::AllowNegativ},
        {"ohne Nachkommastellen", 12500, 0, "km", NumericEdit::NoFlag},
        {"Prozent", 19, 2, "%", NumericEdit::NoFlag}};
    QGridLayout *grid = makeGrid();
    auto *locked = new NVO::CheckBox(QStringLiteral("Nur lesbar"));
    int column = 0;
    for (const Form &form : forms) {
        NumericEdit *field = makeNumber(form.value, form.decimals, QString::fromUtf8(form.unit), form.flags);
        field->setMinimumWidth(formWidth);
        field->setAccessibleName(QString::fromUtf8(form.name));
        connect(locked, &QAbstractButton::toggled, field, &NumericEdit::setReadOnly);
        grid->addWidget(field, 0, column);
        grid->addWidget(makeCaption(QString::fromUtf8(form.name)), 1, column++);
    }
    grid->addWidget(locked, 2, 0);
    grid->setColumnStretch(column, 1);
    addSection(QStringLiteral("Zahlen"),
               QStringLiteral("Komma und Punkt führen hinter das Komma, Minus und Plus schalten das "
                              "Vorzeichen um. Felder in vollen Euro zeigen Cent nur mit dem Fokus."))
        ->addLayout(grid);
}

void EditsPage::addMasks()
{
    const auto wide = [](QWidget *field) {
        field->setMinimumWidth(fieldWidth);
        return field;
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(withCaption(wide(inMask<NVO::LineEdit>(QStringLiteral(">AA99 9999 9999 9999 9999 99"),
                                                          QStringLiteral("DE02 1203 0000"))),
                               QStringLiteral("IBAN")));
    row->addLayout(withCaption(wide(inMask<NVO::LineEdit>(QStringLiteral("99999"), QStringLiteral("80"))),
                               QStringLiteral("Postleitzahl")));
    row->addLayout(
        withCaption(wide(inMask<NVO::TimeEdit>(QStringLiteral("09:99;_"), QStringLiteral("08:30"))),
                    QStringLiteral("Uhrzeit (TimeEdit)")));
    row->addStretch();
    addSection(QStringLiteral("Mit Eingabemaske"),
               QStringLiteral("Tasten und Maus führen den Cursor nicht in den leeren Rest der Maske; die "
                              "Uhrzeit ist ein Feld ohne diese Schranke."))
        ->addLayout(row);
}

void EditsPage::addPassword()
{
    auto *field = new NVO::LineEdit;
    field->setEchoMode(QLineEdit::Password);
    field->setText(QStringLiteral("geheim"));
    field->setMinimumWidth(fieldWidth);
    field->setAccessibleName(QStringLiteral("Kennwort"));
    NVO::Label *off = makeCaption(QStringLiteral("Die Feststelltaste ist aus."), NVO::Font::DEFAULT);
    NVO::Label *on =
        makeLabel(QStringLiteral("Die Feststelltaste ist aktiv."), NVO::Font::DEFAULT, LabelRole::Error);
    const auto update = [off, on] {
        const bool locked = NVO::KeyState::isCapsLockActive();
        on->setVisible(locked);
        off->setVisible(!locked);
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(field);
    row->addWidget(off);
    row->addWidget(on);
    row->addStretch();
    addSection(QStringLiteral("Kennwort"),
               QStringLiteral("Ein Kennwort sieht man nicht, wohl aber, dass die Feststelltaste aktiv ist."))
        ->addLayout(row);

    update();
    new Arrival(field, update);
    auto *filter = new NVO::CapsLockEventFilter;
    filter->setParent(field);
    field->installEventFilter(filter);
    // The window system may report the new state only after the press.
    connect(filter, &NVO::CapsLockEventFilter::capsLockPressed, field,
            [field, update] { QTimer::singleShot(lockDelay, field, update); });
}
