#include "GalleryRibbon.h"

#include "PictureLibrary.h"

#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupObject.h>
#include <nvo/RibbonTab.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QChildEvent>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int searchWidth = 112;
constexpr int searchMargin = 8;
constexpr QLatin1String pictureTab("Auswertung");

QString groupName(const QString &tab, const QString &group)
{
    return tab + QLatin1Char('.') + group;
}

/** The commands of a tab, by group, in the order of the table. */
QVector<QVector<CommandEntry>> groupsOf(const QString &tab)
{
    QVector<QVector<CommandEntry>> groups;
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.tab != tab)
            continue;
        if (groups.isEmpty() || groups.last().first().group != entry.group)
            groups.append(QVector<CommandEntry>());
        groups.last().append(entry);
    }
    return groups;
}

QIcon firstIcon(const QVector<CommandEntry> &commands)
{
    const auto entry = std::find_if(commands.begin(), commands.end(), [](const CommandEntry &command) {
        return command.icon != CommandIcon::None;
    });
    return entry == commands.end() ? QIcon() : commandIcon(entry->icon);
}

} // namespace

GalleryRibbon::GalleryRibbon(Use use, QWidget *parent)
    : GalleryRibbon(new NVO::Action(QStringLiteral("Datei")), use, parent)
{}

GalleryRibbon::GalleryRibbon(NVO::Action *file, Use use, QWidget *parent)
    : Ribbon(file, parent)
    , m_fileAction(file)
    , m_use(use)
    , m_options{headerOption}
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    file->setParent(this);
    file->setShortcut(QKeySequence(QStringLiteral("D")));
    // Queued: what the command opens must not keep the ribbon on its first tab.
    connect(file, &QAction::triggered, this, &GalleryRibbon::fileRequested, Qt::QueuedConnection);
    addTab(file);

    for (const TabEntry &entry : tabEntries()) {
        NVO::RibbonTab *tab = makeTab(entry);
        if (entry.name == pictureTab)
            addPicture(tab);
        for (const QVector<CommandEntry> &commands : groupsOf(entry.name))
            addGroup(tab, commands);
    }
    m_commands.value(QStringLiteral("kontext.entfernen"))->setEnabled(false);
    showCheckBoxes();
    showContext(false);
}

/** Actions of tabs and groups; the key of a tab is its shortcut. */
NVO::Action *GalleryRibbon::makeAction(const QString &text, const QString &key)
{
    auto *action = new NVO::Action(text, this);
    action->setValueName(text);
    action->setShortcut(QKeySequence(key));
    return action;
}

NVO::RibbonTab *GalleryRibbon::makeTab(const TabEntry &entry)
{
    NVO::Action *action = makeAction(entry.name, entry.key);
    m_tabActions.insert(entry.name, action);
    return addTab(action);
}

void GalleryRibbon::addGroup(NVO::RibbonTab *tab, const QVector<CommandEntry> &commands)
{
    const CommandEntry &first = commands.first();
    NVO::Action *action = makeAction(first.group, QString());
    action->setIcon(firstIcon(commands));
    action->setToolTip(QStringLiteral("Befehle der Gruppe „%1“").arg(first.group));
    QMap<QString, NVO::RibbonControl::SizeMode> sizes;
    for (const CommandEntry &entry : commands)
        sizes.insert(entry.name, entry.size);
    action->setSizeMode(sizes);
    m_groupActions.insert(groupName(first.tab, first.group), action);

    NVO::RibbonGroup *group = tab->addGroup(action);
    for (const CommandEntry &entry : commands)
        group->addAction(makeCommand(entry));
    group->installEventFilter(this);
}

void GalleryRibbon::addPicture(NVO::RibbonTab *tab)
{
    NVO::Action *action = makeAction(QStringLiteral("Jahresverlauf"), QString());
    action->setMacroIconname(PictureLibrary::overviewPicture());
    NVO::RibbonGroupObject *picture = tab->addGroupObject(action);
    picture->setAccessibleName(QStringLiteral("Umsatz der letzten zwölf Monate"));
}

NVO::Action *GalleryRibbon::makeCommand(const CommandEntry &entry)
{
    auto *action = new NVO::Action(commandIcon(entry.icon), entry.text, this);
    action->setValueName(entry.name);
    action->setControlType(entry.type);
    action->setMacroIndexkey(entry.key);
    action->setToolTip(entry.help);
    action->setCheckable(!entry.page.isEmpty() || entry.name.startsWith(themeCommand));
    action->setShortcut(QKeySequence(entry.shortcut));
    connect(action, &QAction::triggered, this, [this, entry] { run(entry); });
    m_commands.insert(entry.name, action);
    if (m_use == Use::Window && !entry.shortcut.isEmpty())
        addAction(action);
    return action;
}

void GalleryRibbon::run(const CommandEntry &entry)
{
    if (entry.type == NVO::Action::CommandCheckBox) {
        setOption(entry.name, !isOn(entry.name));
        return;
    }
    // A click has toggled the button or the action; which of them is marked is told from outside.
    NVO::Action *action = m_commands.value(entry.name);
    if (action->isCheckable()) {
        action->setChecked(false);
        Q_EMIT action->changed();
    }
    closePopup();
    slotTriggerAction();
    if (!entry.page.isEmpty())
        Q_EMIT pageRequested(entry.page);
    Q_EMIT commandTriggered(entry.name);
}

/** A popup stays open when a command is chosen, unless the application closes it. */
void GalleryRibbon::closePopup() const
{
    auto *popup = qobject_cast<NVO::RibbonGroup *>(QApplication::activePopupWidget());
    if (popup && findRibbon(popup) == this)
        popup->close();
}

void GalleryRibbon::markPage(const QString &page)
{
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.page.isEmpty())
            continue;
        m_commands.value(entry.name)->setChecked(entry.page == page);
        if (entry.page == page)
            showTabByTitle(entry.tab);
    }
}

void GalleryRibbon::markTheme(const QString &theme)
{
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.name.startsWith(themeCommand))
            m_commands.value(entry.name)->setChecked(entry.name == themeCommand + theme);
    }
}

void GalleryRibbon::focusCommand(const QString &name)
{
    QWidget *control = getControl(name).first;
    for (int index = 0; control && index < count(); ++index) {
        if (widget(index)->isAncestorOf(control))
            setCurrentIndex(index);
    }
    if (control)
        control->setFocus();
}

void GalleryRibbon::showTabByTitle(const QString &title)
{
    for (int index = 0; index < count(); ++index) {
        const auto *tab = qobject_cast<NVO::RibbonTab *>(widget(index));
        if (tab && tab->action() == m_tabActions.value(title))
            setCurrentIndex(index);
    }
}

QStringList GalleryRibbon::options() const
{
    return m_options.values();
}

void GalleryRibbon::setOptions(const QStringList &names)
{
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.type == NVO::Action::CommandCheckBox && names.contains(entry.name) != isOn(entry.name))
            setOption(entry.name, names.contains(entry.name));
    }
}

void GalleryRibbon::setOption(const QString &name, bool on)
{
    if (on)
        m_options.insert(name);
    else
        m_options.remove(name);
    showCheckBoxes();
    if (name == contextOption)
        showContext(on);
    if (name == namesOption) {
        for (NVO::Action *action : qAsConst(m_commands))
            Q_EMIT action->changed(); // the tool tips are made anew
    }
    Q_EMIT optionChanged(name, on);
}

/** A check box never follows its action, and the popup of a group has boxes of its own. */
void GalleryRibbon::showCheckBoxes()
{
    const auto boxes = findChildren<NVO::RibbonCheckBox *>();
    for (NVO::RibbonCheckBox *box : boxes)
        box->setChecked(box->action() && isOn(box->action()->valueName()));
}

void GalleryRibbon::showContext(bool shown)
{
    NVO::Action *action = m_tabActions.value(contextTab);
    // Without a key while it is away, so that no letter leads to it.
    action->setShortcut(shown ? QKeySequence(tabEntries().last().key) : QKeySequence());
    action->setVisible(shown);
    // A tab that comes back has its title in capitals until it hears of a change.
    if (shown)
        Q_EMIT action->changed();
}

bool GalleryRibbon::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded && qobject_cast<NVO::RibbonGroup *>(watched))
        QTimer::singleShot(0, this, &GalleryRibbon::showCheckBoxes);
    return Ribbon::eventFilter(watched, event);
}

NVO::RibbonGroup *GalleryRibbon::makeGroup(const QString &tab, const QString &group, bool popup,
                                           QWidget *parent) const
{
    NVO::Action *action = m_groupActions.value(groupName(tab, group));
    if (!action)
        return nullptr;
    auto *result = new NVO::RibbonGroup(action, popup, parent);
    result->setSizeMode(NVO::RibbonControl::Large, false);
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.tab == tab && entry.group == group)
            result->addAction(m_commands.value(entry.name));
    }
    return result;
}

QWidget *GalleryRibbon::createExtraWidget()
{
    if (m_use == Use::Sample)
        return nullptr;
    QStringList texts;
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.type == NVO::Action::CommandButton && !texts.contains(entry.plainText()))
            texts.append(entry.plainText());
    }
    texts.sort(Qt::CaseInsensitive);

    auto *extra = new QWidget;
    auto *search = new QLineEdit;
    search->setObjectName(QStringLiteral("commandSearch"));
    search->setPlaceholderText(QStringLiteral("Befehl suchen"));
    search->setAccessibleName(QStringLiteral("Befehl suchen"));
    search->setToolTip(QStringLiteral("Findet einen Befehl nach seinem Namen und führt ihn aus."));
    search->setFixedWidth(searchWidth);
    auto *completer = new QCompleter(texts, search);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->popup()->setMinimumWidth(2 * searchWidth);
    search->setCompleter(completer);
    // Queued: the completer writes the text into the field afterwards.
    connect(completer, QOverload<const QString &>::of(&QCompleter::activated), search, &QLineEdit::clear,
            Qt::QueuedConnection);
    connect(completer, QOverload<const QString &>::of(&QCompleter::activated), this,
            &GalleryRibbon::findCommand, Qt::QueuedConnection);

    auto *layout = new QHBoxLayout(extra);
    layout->setContentsMargins(searchMargin, 0, searchMargin, 0);
    layout->addWidget(search);
    return extra;
}

void GalleryRibbon::findCommand(const QString &text)
{
    for (const CommandEntry &entry : commandEntries()) {
        if (entry.plainText() == text) {
            m_commands.value(entry.name)->trigger();
            return;
        }
    }
}

QString GalleryRibbon::getPictureDllName() const
{
    return PictureLibrary::name();
}

bool GalleryRibbon::isTestFlag() const
{
    return isOn(namesOption);
}
