#pragma once

#include <nvo/RecyclingListAdapter.h>

#include <vector>

/**
 * A journal of bookings, each of which is made up from its number: bookings with up to two lines of notes,
 * and after eleven of them the sum of a day.
 */
class BookingAdapter : public RecyclingListAdapter
{
    Q_OBJECT

public:
    explicit BookingAdapter(int entries);

    QWidget *widget(int position, QWidget *recycled, QWidget *parent) override;
    int count() override;

    /** Enters a new booking before \a position. */
    void insert(int position);
    void remove(int position);

    /** How many widgets of items there are at the moment. */
    int aliveWidgets() const { return m_alive; }

Q_SIGNALS:
    void aliveWidgetsChanged();

private:
    QWidget *adopted(QWidget *item);

    std::vector<quint32> m_numbers; // of the entries in their order
    quint32 m_nextNumber;
    int m_alive = 0;
};
