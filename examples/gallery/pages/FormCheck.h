#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

namespace NVO {
class BaseEdit;
class Flyout;
class NumericEdit;
} // namespace NVO

/**
 * Checks the fields of a form when the focus leaves them. A wrong field takes the style Error until its entry
 * is changed, and a flyout beside it says what is wrong. The form owns its check.
 */
class FormCheck : public QObject
{
    Q_OBJECT

public:
    /** What is wrong with a field now, as rich text; empty if nothing is. */
    using Finding = std::function<QString()>;

    explicit FormCheck(QWidget *form);

    void add(NVO::BaseEdit *field, const Finding &finding);
    void add(NVO::NumericEdit *field, const Finding &finding);

    /** Gives \a field the style that it deserves and returns what is wrong with it. */
    QString mark(QWidget *field);

    /** Checks all fields. The first wrong one gets the focus and the flyout. Returns whether none is wrong.
     */
    bool checkAll();

    /** Takes all fields for right. */
    void forget();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entry
    {
        QWidget *field;
        Finding finding;
        std::function<void(bool)> showWrong;
        QString wrong;
    };

    template <typename Field>
    void addEntry(Field *field, const Finding &finding);
    Entry *entryOf(const QObject *field);
    void setWrong(Entry &entry, const QString &wrong);
    void mark(Entry &entry);
    void leave(Entry &entry);
    void forgiveOthers();
    void point(const Entry &entry);

    QWidget *m_form;
    std::vector<Entry> m_entries;
    QPointer<NVO::Flyout> m_flyout;
};
