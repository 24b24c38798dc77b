#include "pages/FormCheck.h"

#include "pages/FlyoutParts.h"

#include <nvo/BaseEdit.h>
#include <nvo/Flyout.h>
#include <nvo/NumericEdit.h>

#include <QFocusEvent>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int textWidth = 250;

} // namespace

FormCheck::FormCheck(QWidget *form)
    : QObject(form)
    , m_form(form)
{}

void FormCheck::add(NVO::BaseEdit *field, const Finding &finding)
{
    addEntry(field, finding);
    connect(field, &QLineEdit::textEdited, this, [this, field] { setWrong(*entryOf(field), QString()); });
}

void FormCheck::add(NVO::NumericEdit *field, const Finding &finding)
{
    addEntry(field, finding);
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this, field] {
        if (field->hasFocus()) // else the field rounds what has just been checked
            setWrong(*entryOf(field), QString());
    });
}

template <typename Field>
void FormCheck::addEntry(Field *field, const Finding &finding)
{
    const auto showWrong = [field](bool wrong) {
        field->setLineEditStyle(wrong ? Field::Error : Field::Normal);
    };
    m_entries.push_back({field, finding, showWrong, QString()});
    field->installEventFilter(this);
}

FormCheck::Entry *FormCheck::entryOf(const QObject *field)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [field](const Entry &entry) { return entry.field == field; });
    return found == m_entries.end() ? nullptr : &*found;
}

void FormCheck::setWrong(Entry &entry, const QString &wrong)
{
    entry.wrong = wrong;
    entry.showWrong(!wrong.isEmpty());
    // Remains when the flyout is closed, and is what assistive tools tell of the field.
    entry.field->setToolTip(wrong);
    if (wrong.isEmpty() && m_flyout && m_flyout->targetWidget() == entry.field)
        m_flyout->hide();
}

/** A date that does not exist is cleared when the focus goes: what was said of it then still holds. */
void FormCheck::mark(Entry &entry)
{
    const QString now = entry.finding();
    if (now.isEmpty() || entry.wrong.isEmpty())
        setWrong(entry, now);
}

QString FormCheck::mark(QWidget *field)
{
    Entry *entry = entryOf(field);
    if (!entry)
        return QString();
    mark(*entry);
    return entry->wrong;
}

bool FormCheck::checkAll()
{
    for (Entry &entry : m_entries)
        mark(entry);
    const auto wrong = std::find_if(m_entries.begin(), m_entries.end(),
                                    [](const Entry &entry) { return !entry.wrong.isEmpty(); });
    if (wrong == m_entries.end())
        return true;
    wrong->field->setFocus();
    point(*wrong);
    return false;
}

void FormCheck::forget()
{
    for (Entry &entry : m_entries)
        setWrong(entry, QString());
}

void FormCheck::leave(Entry &entry)
{
    mark(entry);
    forgiveOthers();
    if (!entry.wrong.isEmpty())
        point(entry);
}

/** Fields that were wrong only beside what stood in another. */
void FormCheck::forgiveOthers()
{
    for (Entry &entry : m_entries) {
        if (!entry.wrong.isEmpty())
            mark(entry);
    }
}

void FormCheck::point(const Entry &entry)
{
    if (!m_flyout) {
        m_flyout = new NVO::Flyout(entry.field, NVO::Flyout::Sticky | NVO::Flyout::CloseButton, m_form);
        m_flyout->setFlyoutStyle(NVO::Flyout::Error);
        m_flyout->setPointerPosition(NVO::Flyout::LeftMiddle);
    }
    const QString plainText = QTextDocumentFragment::fromHtml(entry.wrong).toPlainText();
    if (m_flyout->isVisible() && m_flyout->targetWidget() == entry.field
        && m_flyout->accessibleName() == plainText)
        return;
    m_flyout->hide();
    m_flyout->setTargetWidget(entry.field);
    QVBoxLayout *column = makeFlyoutContent();
    column->setContentsMargins(flyoutCrossMargins);
    addFlyoutText(column, entry.wrong, textWidth);
    m_flyout->setContent(column->parentWidget());
    m_flyout->setAccessibleName(plainText);
    m_flyout->show();
}

bool FormCheck::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    Entry *entry = entryOf(watched);
    if (!entry || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
        return false;
    // The field itself sees the event later, and may clear what it cannot read.
    if (event->type() == QEvent::FocusOut)
        leave(*entry);
    else if (!entry->wrong.isEmpty())
        point(*entry);
    return false;
}
