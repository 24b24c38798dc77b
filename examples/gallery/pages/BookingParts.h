#pragma once

#include <nvo/Element.h>
#include <nvo/Font.h>

#include <QFrame>
#include <QString>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QToolButton;
class QVBoxLayout;

/** \name What a day of bookings is made of
 * Plain widgets of Qt in the sheets that the theme has for them. Nothing made here has a parent yet.
 */
///@{

/** Keeps the font of \a widget at \a size, which follows the font delta. */
void keepFont(QWidget *widget, NVO::Font::FontSize size);

/** Gives \a widget the sheet of \a element, for \a style, and a font of \a size that follows the font delta.
 */
void dress(QWidget *widget, NVO::Element element, const QString &style = QString(),
           NVO::Font::FontSize size = NVO::Font::DEFAULT);

/** A plain label in one of the roles of the sheet for labels. */
QLabel *makeText(const QString &text, const QString &role = QString(),
                 NVO::Font::FontSize size = NVO::Font::DEFAULT);

/** What one booking says. */
struct BookingData
{
    QString document;
    QString account;
    QString contraAccount;
    QString text;
    QString tax;
    qint64 cents = 0;
    QString error; ///< What is wrong with it; empty if nothing is.
};

/** An amount in German notation, without a unit. */
QString amountText(qint64 cents);

/** The names of the columns, above rows. */
QWidget *makeColumnTitles();

/** One booking: a row that is chosen with the mouse or the space bar. */
class BookingRow : public QFrame
{
    Q_OBJECT

public:
    explicit BookingRow(const BookingData &booking);

    const BookingData &booking() const { return m_booking; }
    void setSelected(bool selected);

    /** Whether this is the last row of its group, which follows the corners of the group. */
    void setLast(bool last);

Q_SIGNALS:
    void chosen();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void say(const char *property, bool value);

    BookingData m_booking;
};

/** Bookings of one kind below a line that folds them away and shows their sum. */
class BookingGroup : public QFrame
{
    Q_OBJECT

public:
    BookingGroup(const QString &caption, const QVector<BookingData> &bookings);

    BookingRow *add(const BookingData &booking);
    qint64 cents() const;

    /** What stands in the line behind the number of bookings, "festgeschrieben" for instance. */
    void setNote(const QString &note);

Q_SIGNALS:
    void chosen(BookingRow *row);

private:
    void updateHeader();

    QToolButton *m_expander;
    QLabel *m_info;
    QLabel *m_sum;
    QVBoxLayout *m_rows;
    QString m_note;
};

/** The fields in which a new booking is written, in the columns of the rows. */
class BookingEntry : public QFrame
{
    Q_OBJECT

public:
    explicit BookingEntry(const BookingData &proposal);

    /** Takes what the fields say; marks the amount and emits nothing if that is not a number. */
    void accept();

Q_SIGNALS:
    void entered(const BookingData &booking);

private:
    QLineEdit *m_document;
    QLineEdit *m_account;
    QLineEdit *m_contraAccount;
    QLineEdit *m_text;
    QLineEdit *m_tax;
    QLineEdit *m_amount;
};

///@}
