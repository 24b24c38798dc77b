#pragma once

#include "pages/Page.h"

#include <QVector>

class BookingGroup;
class BookingRow;
class QLabel;
class QPushButton;
class QVBoxLayout;

/** What the theme has for plain widgets: a day of bookings, buttons, texts, switches and a framed dialog. */
class VocabularyPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("vokabular"); }
    static QString title() { return QStringLiteral("Vokabular"); }

    VocabularyPage();

private:
    void addDay();
    void addDayHead(QVBoxLayout *day);
    void addGroups(QVBoxLayout *day);
    void addStarter(QVBoxLayout *day);
    void addDaySum(QVBoxLayout *day);
    void addBookingStates();
    void addButtons();
    void addToggles();
    void addTexts();
    void addDialogs();

    /** Shows all groups for 0, else the one of this number. */
    void showGroups(int filter);

    void choose(BookingRow *row);
    void updateSum();

    QVector<QPushButton *> m_filters; ///< One for all groups, then one for each.
    QVector<BookingGroup *> m_groups;
    QLabel *m_sum = nullptr;
    BookingRow *m_chosen = nullptr;
};
