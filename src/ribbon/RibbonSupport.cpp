#include "ribbon/RibbonSupport.h"

#include "ribbon/RibbonAccessible.h"

#include <nvo/Action.h>
#include <nvo/Ribbon.h>

#include <QLabel>

namespace NVO::RibbonSupport {

namespace {

constexpr int keytipSize = 20;

} // namespace

QString singleLine(QString text)
{
    text.replace(QLatin1String("<br>"), QLatin1String(" "));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

QString indexKey(const QWidget *widget, const Action *action)
{
    const Ribbon *ribbon = Ribbon::findRibbon(widget);
    return ribbon ? ribbon->replaceMacroText(action->macroIndexkey()).toUpper() : action->macroIndexkey();
}

QString indexEntry(const QWidget *widget, const Action *action)
{
    return action->valueName() + QLatin1Char(' ') + indexKey(widget, action) + QLatin1Char(' ')
           + action->executeText();
}

QLabel *createKeytip(QWidget *parent, QLatin1String objectName, const QString &text)
{
    RibbonAccessible::install();
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setText(text);
    label->setFixedSize(keytipSize, keytipSize);
    label->setFocusPolicy(Qt::NoFocus);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    return label;
}

bool isKeytip(const QObject *object)
{
    return qobject_cast<const QLabel *>(object)
           && (object->objectName() == tabKeytip || object->objectName() == controlKeytip);
}

void silenceDescendants(QObject *receiver)
{
    const QList<QObject *> descendants = receiver->findChildren<QObject *>();
    for (QObject *descendant : descendants) {
        QObject::disconnect(descendant, nullptr, receiver, nullptr);
        descendant->removeEventFilter(receiver);
    }
}

} // namespace NVO::RibbonSupport
