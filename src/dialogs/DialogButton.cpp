#include <nvo/DialogButton.h>

#include "theme/StyleSupport.h"

#include <nvo/Icon.h>

#include <algorithm>
#include <array>

namespace NVO {

namespace {

constexpr int minimumButtonWidth = 100;

struct Row
{
    DialogButton::ButtonType type;
    const char *text;
    const char *shortcut; ///< One letter, or empty for none.
    QDialogButtonBox::ButtonRole role;
};

constexpr std::array<Row, 26> rows{{
    {DialogButton::NoButton, "", "", QDialogButtonBox::AcceptRole},
    {DialogButton::Ok, "OK", "O", QDialogButtonBox::AcceptRole},
    {DialogButton::Cancel, "Abbrechen", "A", QDialogButtonBox::RejectRole},
    {DialogButton::Retry, "Wiederholen", "W", QDialogButtonBox::AcceptRole},
    {DialogButton::Yes, "Ja", "J", QDialogButtonBox::YesRole},
    {DialogButton::No, "Nein", "N", QDialogButtonBox::NoRole},
    {DialogButton::Ignore, "Ignorieren", "I", QDialogButtonBox::AcceptRole},
    {DialogButton::Close, "Schließen", "S", QDialogButtonBox::RejectRole},
    {DialogButton::Save, "Speichern", "", QDialogButtonBox::AcceptRole},
    {DialogButton::NoSave, "Nicht speichern", "", QDialogButtonBox::DestructiveRole},
    {DialogButton::Replace, "Ersetzen", "E", QDialogButtonBox::AcceptRole},
    {DialogButton::Apply, "Übernehmen", "Ü", QDialogButtonBox::ApplyRole},
    {DialogButton::Calculate, "Berechnen", "B", QDialogButtonBox::AcceptRole},
    {DialogButton::SetBookmark, "Lesezeichen setzen", "L", QDialogButtonBox::AcceptRole},
    {DialogButton::DeleteBookmark, "Lesezeichen entfernen", "", QDialogButtonBox::DestructiveRole},
    {DialogButton::GoToMapping, "Weiter zur Zuordnung", "", QDialogButtonBox::AcceptRole},
    {DialogButton::SurveyNow, "Ja, gerne", "", QDialogButtonBox::AcceptRole},
    {DialogButton::SurveyLater, "Später", "", QDialogButtonBox::RejectRole},
    {DialogButton::SurveyNo, "Nein", "", QDialogButtonBox::RejectRole},
    {DialogButton::SurveyJa, "Ja!", "", QDialogButtonBox::AcceptRole},
    {DialogButton::SurveyNotReally, "Nicht wirklich", "", QDialogButtonBox::RejectRole},
    {DialogButton::Print, "Drucken", "", QDialogButtonBox::ActionRole},
    {DialogButton::Next, "Weiter", "", QDialogButtonBox::ApplyRole},
    {DialogButton::AbgabeComplete, "Abgabe abschließen", "", QDialogButtonBox::AcceptRole},
    {DialogButton::Accept, "Akzeptieren", "", QDialogButtonBox::AcceptRole},
    {DialogButton::UserDefined, "", "", QDialogButtonBox::ActionRole},
}};

QSize wideEnough(const QSize &size)
{
    return size.expandedTo(QSize(minimumButtonWidth, 0));
}

} // namespace

DialogButton::DialogButton()
    : DialogButton(Icon(QPixmap()), NoButton, nullptr)
{}

DialogButton::DialogButton(const Icon &icon, ButtonType type, QWidget *parent)
    : AbstractButton(parent)
    , m_type(type)
{
    setText(properties(type).text);
    setMouseTracking(false); // a sheet with `:hover` turns it on when the button is polished
    setIcon(icon);
    StyleSupport::applySheet(this, ElementDialogButton);
}

DialogButtonProperties DialogButton::properties(ButtonType type)
{
    const auto *row = std::find_if(rows.begin(), rows.end(),
                                   [type](const Row &candidate) { return candidate.type == type; });
    if (row == rows.end())
        return {};
    return {QString::fromUtf8(row->text), QKeySequence(QString::fromUtf8(row->shortcut)), row->role};
}

void DialogButton::setHoverCursor(const QCursor &cursor)
{
    if (m_hoverCursor.shape() != cursor.shape())
        m_hoverCursor = cursor;
}

QSize DialogButton::sizeHint() const
{
    // The size that the sheet gives to a push button. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return wideEnough(QPushButton::sizeHint());
}

QSize DialogButton::minimumSizeHint() const
{
    return wideEnough(QPushButton::minimumSizeHint());
}

// The hover of the base stays out of it: the sheet alone shows that the mouse is over the button.
void DialogButton::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event); // NOLINT(bugprone-parent-virtual-call)
    if (StyleSupport::isSet(m_hoverCursor)) {
        m_savedCursor = cursor();
        setCursor(m_hoverCursor);
    }
}

void DialogButton::leaveEvent(QEvent *event)
{
    if (StyleSupport::isSet(m_hoverCursor))
        setCursor(m_savedCursor);
    QWidget::leaveEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

} // namespace NVO
