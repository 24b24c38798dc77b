#pragma once

#include <nvo/Export.h>

#include <QToolBar>

namespace NVO {

/**
 * A tool bar that keeps the texts of its actions in step with the room it has.
 *
 * It is tight if it is less than 1100 pixels wide or holds more than 18 actions. Then the last blank of each
 * text becomes a line feed, unless the text has one already or the blank is its first character. Otherwise
 * each line feed becomes a blank. This happens with every change of size and whenever an action comes, goes
 * or changes; the texts are those of the actions themselves, so whatever else shows an action shows it so.
 *
 * A slot or another bar that undoes the text while it is being set has the last word until the next change.
 */
class NVO_EXPORT ToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit ToolBar(QWidget *p_parent = nullptr);

    using QToolBar::addAction;
    /** Adds \a p_action, which stays its owner's, and fits all texts. Null is passed over. */
    void addAction(QAction *p_action);

protected:
    void actionEvent(QActionEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void manipulateActions();
    void fitText(QAction *action);
    bool isTight() const;
};

} // namespace NVO
