#pragma once

#include "pages/Page.h"

class BookingAdapter;
class QHBoxLayout;
class QLineEdit;
class RecyclingList;

namespace NVO {
class Label;
}

/** A journal of a million bookings, and a list without any. */
class LongListPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("longlist"); }
    static QString title() { return QStringLiteral("Lange Liste"); }

    LongListPage();

protected:
    bool event(QEvent *event) override;

private:
    void addJournal();
    void addEmptyList();
    QHBoxLayout *makeCommands();
    int chosenPosition() const;
    void goTo(int position);
    void showFigures();

    BookingAdapter *m_adapter;
    RecyclingList *m_list;
    QLineEdit *m_number;
    NVO::Label *m_visible;
    NVO::Label *m_alive;
};
