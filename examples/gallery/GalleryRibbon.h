#pragma once

#include "CommandTable.h"

#include <nvo/Ribbon.h>

#include <QHash>
#include <QSet>
#include <QStringList>

namespace NVO {
class RibbonGroup;
}

/** The ribbon of the gallery, built from the table of commands. */
class GalleryRibbon : public NVO::Ribbon
{
    Q_OBJECT

public:
    /** Samples have no search field and leave the shortcuts alone. */
    enum class Use { Window, Sample };

    explicit GalleryRibbon(Use use, QWidget *parent = nullptr);

    /** Marks the command of the page that is shown, and shows its tab. */
    void markPage(const QString &page);
    /** Marks the command of the theme that is shown. */
    void markTheme(const QString &theme);

    /** Goes to the page with a command and gives it the focus. */
    void focusCommand(const QString &name);
    /** Makes the page with a title the current one. */
    void showTabByTitle(const QString &title);

    /** The options that are switched on. */
    QStringList options() const;
    void setOptions(const QStringList &names);
    bool isOn(const QString &option) const { return m_options.contains(option); }

    /** Makes a group of the ribbon for \a parent, or the content of its popup; null for an unknown group. */
    NVO::RibbonGroup *makeGroup(const QString &tab, const QString &group, bool popup, QWidget *parent) const;

    QWidget *createExtraWidget() override;
    QString getPictureDllName() const override;
    bool isTestFlag() const override;

Q_SIGNALS:
    void fileRequested();
    void pageRequested(const QString &page);
    void optionChanged(const QString &name, bool on);
    void commandTriggered(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    GalleryRibbon(NVO::Action *file, Use use, QWidget *parent);

    NVO::Action *makeAction(const QString &text, const QString &key);
    NVO::RibbonTab *makeTab(const TabEntry &entry);
    void addGroup(NVO::RibbonTab *tab, const QVector<CommandEntry> &commands);
    void addPicture(NVO::RibbonTab *tab);
    NVO::Action *makeCommand(const CommandEntry &entry);
    void run(const CommandEntry &entry);
    void setOption(const QString &name, bool on);
    void showCheckBoxes();
    void showContext(bool shown);
    void closePopup() const;
    void findCommand(const QString &text);

    NVO::Action *m_fileAction;
    Use m_use;
    QHash<QString, NVO::Action *> m_tabActions;   // by title
    QHash<QString, NVO::Action *> m_groupActions; // by tab and group
    QHash<QString, NVO::Action *> m_commands;     // by name
    QSet<QString> m_options;
};
