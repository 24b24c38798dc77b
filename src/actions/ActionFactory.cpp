#include <nvo/ActionFactory.h>

#include <QAction>

namespace NVO {

ActionFactory &ActionFactory::instance()
{
    static ActionFactory factory;
    return factory;
}

QAction *ActionFactory::createAction(const QString &name, QObject *parent)
{
    QPointer<QAction> &action = m_actions[name];
    if (!action) {
        action = new QAction(parent);
        action->setText(name);
    }
    return action;
}

} // namespace NVO
