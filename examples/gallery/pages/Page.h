#pragma once

#include <QWidget>

class QVBoxLayout;

/**
 * A page: a column of sections. A page class says its stable name and its title in two static functions,
 * key() and title(), and builds its content in its constructor, which takes no argument.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    /** The width at which a picture shows all that the page has to show. */
    virtual int pictureWidth() const { return minimumSizeHint().width(); }

protected:
    Page();

    /** Adds a headline, a line that explains and a card below; returns the layout of the card. */
    QVBoxLayout *addSection(const QString &title, const QString &description);

private:
    QVBoxLayout *m_sections;
};
