#pragma once

#include <QPointer>
#include <QWidget>

class QShortcut;
class QTabBar;

namespace NVO {

class Label;

/**
 * What a segment with a notification shows: the title and the notification, held together in the middle of
 * the tab by a space on either side. It is the button on the right side of its tab; if somebody deletes it,
 * it takes itself off the bar, which would keep a dangling pointer.
 */
class NotificationButton : public QWidget
{
public:
    explicit NotificationButton(QTabBar *bar);
    ~NotificationButton() override;
    Q_DISABLE_COPY_MOVE(NotificationButton)

    /** The one on the tab at \a index of \a bar; null if there is none. */
    static NotificationButton *of(const QTabBar *bar, int index);

    QString title() const;
    QString notification() const;

    /** Shows the texts, in as much room as they need. */
    void setTexts(const QString &title, const QString &notification, bool isCurrent);

    /** Gives the title the font of the bar, which does not go through a sheet, and the notification its size.
     */
    void applyFonts();

    /** The size without the space on the right. */
    QSize contentSize() const;

    /** The space on the right, which fills the tab and so has no part in the size that the tab should have.
     */
    int fillerWidth() const;

    /** Brings the texts to the middle of a tab of \a tabWidth. */
    void centerIn(int tabWidth);

    /** The labels do not scale their fonts themselves: the sizes they are given here are final. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int index() const;
    int usedWidth() const;
    void fill(int width);
    Label *addLabel();
    QWidget *addSpace();

    QShortcut *m_mnemonic; // a tab without text has none
    QPointer<Label> m_title;
    QPointer<Label> m_notification;
    QPointer<QWidget> m_filler;
};

/** Publishes on \a label whether it stands on the current tab; returns whether this is new to the sheet. */
bool setNotificationState(Label *label, bool isActive);

} // namespace NVO
