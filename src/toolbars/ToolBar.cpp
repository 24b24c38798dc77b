#include <nvo/ToolBar.h>

#include <QAction>
#include <QActionEvent>
#include <QPointer>
#include <QVector>

namespace NVO {

namespace {

constexpr int roomyWidth = 1100;
constexpr int mostRoomyActions = 18;
constexpr int mostAnswers = 2; // to those who change a text while it is being set

QString onOneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QString onTwoLines(QString text)
{
    const int blank = text.lastIndexOf(QLatin1Char(' '));
    if (blank >= 1 && !text.contains(QLatin1Char('\n')))
        text[blank] = QLatin1Char('\n');
    return text;
}

/** Whose texts are being set by any bar, perhaps one inside the other. */
QVector<const QAction *> &actionsInFitting()
{
    static QVector<const QAction *> actions;
    return actions;
}

} // namespace

ToolBar::ToolBar(QWidget *p_parent)
    : QToolBar(p_parent)
{}

void ToolBar::addAction(QAction *p_action)
{
    if (!p_action)
        return;
    const QPointer<ToolBar> alive(this);
    QToolBar::addAction(p_action);
    if (alive)
        manipulateActions();
}

void ToolBar::actionEvent(QActionEvent *event)
{
    QToolBar::actionEvent(event);
    // While texts are being set each comes back as a change, and whoever sets them sees to the others.
    if (event->type() == QEvent::ActionChanged && !actionsInFitting().isEmpty())
        fitText(event->action());
    else
        manipulateActions();
}

void ToolBar::resizeEvent(QResizeEvent *event)
{
    QToolBar::resizeEvent(event);
    manipulateActions();
}

/** Slots that hear of a new text may add, remove or delete actions, and the bar. */
void ToolBar::manipulateActions()
{
    const QPointer<ToolBar> alive(this);
    for (int i = 0; alive && i < actions().size(); ++i)
        fitText(actions().at(i));
}

/** Bars that share an action count their answers together; each on its own, their time would be exponential.
 */
void ToolBar::fitText(QAction *action)
{
    const QString text = action->text();
    const QString fitting = isTight() ? onTwoLines(text) : onOneLine(text);
    if (fitting == text || actionsInFitting().count(action) >= mostAnswers)
        return;
    actionsInFitting().append(action);
    action->setText(fitting);
    actionsInFitting().removeLast();
}

bool ToolBar::isTight() const
{
    return width() < roomyWidth || actions().size() > mostRoomyActions;
}

} // namespace NVO
