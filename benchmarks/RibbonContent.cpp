#include "RibbonContent.h"

#include <nvo/Action.h>

#include <QApplication>
#include <QPainter>

namespace {

constexpr int tabCount = 8;
constexpr int groupCount = 6;
constexpr int commandCount = 6;

QIcon makeIcon(int number)
{
    QIcon icon;
    for (const int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setBrush(QColor::fromHsv(number * 37 % 360, 160, 200));
        painter.drawEllipse(1, 1, size - 2, size - 2);
        icon.addPixmap(pixmap);
    }
    return icon;
}

NVO::Action *makeAction(const QString &text, int number)
{
    auto *action = new NVO::Action(makeIcon(number), text, qApp);
    action->setValueName(QStringLiteral("COMMAND_%1").arg(number));
    action->setControlType(NVO::Action::CommandButton);
    return action;
}

/** A group as applications have them: a large command first or small ones together, some check boxes. */
RibbonContent::Group makeGroup(int number)
{
    static const QStringList texts{
        "Öffnen",      "Speichern unter", "Kopieren", "Mahnung<br>drucken",  "Suchen", "Bericht",
        "Löschen",     "Beleg anhängen",  "Zurück",   "Buchung<br>kopieren", "Prüfen", "Konten abstimmen",
        "Filter lösen"};
    RibbonContent::Group group{makeAction(QStringLiteral("Gruppe %1").arg(number), number), {}};
    QMap<QString, NVO::RibbonControl::SizeMode> modes;
    for (int i = 0; i < commandCount; ++i) {
        const int id = 1000 + number * commandCount + i;
        const bool leads = i == 0 && number % 2 == 0;
        auto *command =
            makeAction(leads ? QStringLiteral("Rechnung<br>erfassen") : texts[id % texts.size()], id);
        if (leads)
            modes[command->valueName()] = NVO::RibbonControl::Large;
        else if (i <= 3 && number % 3 == 2)
            modes[command->valueName()] = NVO::RibbonControl::Small;
        if (i >= 4 && number % 3 == 1)
            command->setControlType(NVO::Action::CommandCheckBox);
        group.commands.append(command);
    }
    group.action->setSizeMode(modes);
    return group;
}

} // namespace

const RibbonContent &ribbonContent()
{
    static const RibbonContent content = [] {
        RibbonContent result;
        for (int tab = 0; tab < tabCount; ++tab) {
            result.tabs.append(
                RibbonContent::Tab{makeAction(QStringLiteral("Register %1").arg(tab), tab), {}});
            for (int group = 0; group < groupCount; ++group)
                result.tabs.last().groups.append(makeGroup(tab * groupCount + group));
        }
        return result;
    }();
    return content;
}
