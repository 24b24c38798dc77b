#pragma once

#include <nvo/CompleterData.h>
#include <nvo/Export.h>

#include <QPointer>
#include <QVector>
#include <QWidget>

class QAction;

namespace NVO {

class Button;
class Completer;
class LineEdit;

/**
 * A field for names with suggestions: a line edit with a cross that clears it, and a bulb beside it.
 *
 * The suggestions hang in a popup directly under the line edit, at least as wide as the field. The popup
 * opens when a text is there, typed or set, and with a click on the bulb; it narrows down to the rows that
 * contain the text, which is marked there. It closes when the text is gone, with the cross, with a further
 * click on the bulb and once a row is chosen. Losing the focus does not close it. It never takes the focus,
 * follows when the field or its window moves, opens over modal dialogs too, and is gone when the field is
 * hidden, disabled or dies. A hidden or disabled field opens none.
 *
 * The look comes from the sheet of ElementLineEditWithButton, and below that from those of ElementLineEdit
 * and ElementButton. The object names are "lineEdit" and "button". Both carry the dynamic property "style":
 * "init" (the line edit alone), "initHasButton", "focusIn" and "focusOut", the last two only while the bulb
 * is there. The popup has the sheet of ElementCompleter.
 *
 * The line edit is the focus proxy. An application reaches it by its object name, for a placeholder or a
 * length.
 */
class NVO_EXPORT LineEditWithButton : public QWidget
{
    Q_OBJECT

public:
    /** A field without a bulb and without suggestions. */
    explicit LineEditWithButton(QWidget *parent = nullptr);
    ~LineEditWithButton() override;

    /**
     * Suggests the rows of \a suggestions, of which the popup takes a copy, and shows the bulb. An open popup
     * shows them at once. Rows that the user has removed come back.
     */
    void setDataForCompleter(const CompleterData &suggestions);

    /** Shows the bulb, which is hidden at first. */
    void showButton();

    /** Opens the popup, or places it anew if it is open. A hidden or disabled field does nothing. */
    void showCompleter();

    /** Sets the text; one that is not empty opens the popup of a visible and enabled field. */
    void setUsername(const QString &text);
    QString text() const;

    /** A sample with all types of rows in two columns, for trials. */
    CompleterData createTestData();

Q_SIGNALS:
    /**
     * The user has clicked on a suggestion. \a p_text is the text of its first column, without marks, and now
     * the text of the field, as far as the maximum length of the line edit allows.
     */
    void suggestionChosen(const QString &p_text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;

private Q_SLOTS:
    void toggleCompleter();
    void lineEditChanged();
    void showClearButton();
    void clearButtonclicked();

private:
    void addClearAction();
    void addButton();
    void connectParts();
    void nameLineEdit();
    void setStyle(QWidget *widget, const char *name, const QVariant &value);
    void setStyles(const QString &style);
    void closeCompleter();
    void placeCompleter();
    void chooseSuggestion(const QString &text);
    void watchAncestors();
    void unwatchAncestors();

    Button *m_button = nullptr;
    LineEdit *m_lineEdit = nullptr;
    QAction *m_clearAction = nullptr;
    QPointer<Completer> m_completer;        // a window without a parent, which dies with this
    QVector<QPointer<QWidget>> m_ancestors; // while the popup is open: from this up to its window
};

} // namespace NVO
