#pragma once

#include <nvo/Export.h>

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

class QAction;

namespace NVO {

/**
 * One plain QAction per name for the whole process: places of an application that ask for the same name share
 * the enabled and the checked state of a command.
 *
 * For the GUI thread only.
 */
class NVO_EXPORT ActionFactory : public QObject
{
    Q_OBJECT

public:
    /** Made at the first call; lives to the end of the process. */
    static ActionFactory &instance();

    /**
     * The action called \a name: the same one at each call. The first call makes it as a child of \a parent,
     * who owns it (with null, the caller does), with the name as its text; later calls ignore \a parent.
     * Names differ by case, and the empty one is a name, too. An action that has been deleted is made anew.
     */
    QAction *createAction(const QString &name, QObject *parent);

protected:
    ActionFactory() = default;

private:
    QMap<QString, QPointer<QAction>> m_actions;
};

} // namespace NVO
