#pragma once

#include "pages/Page.h"

#include <QPointer>

class QFrame;

namespace NVO {
class Button;
class CheckBox;
class ComboBox;
class DateEdit;
class Flyout;
class Label;
} // namespace NVO

/** Flyouts: at a field, in all their positions, and one that follows a target which can be dragged. */
class FlyoutsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("flyouts"); }
    static QString title() { return QStringLiteral("Flyouts"); }

    FlyoutsPage();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addExamples();
    void addPlacements();
    void addTrialForm();
    void addPlayground();
    QWidget *makeControls();
    void post();
    void makeFlyout();
    void fillFlyout();
    void setDetached(bool detached);
    void describe();

    NVO::DateEdit *m_date = nullptr;
    NVO::Label *m_posted = nullptr;
    QPointer<NVO::Flyout> m_dateError;

    QFrame *m_playground = nullptr;
    NVO::Button *m_target = nullptr;
    QWidget *m_targetWindow = nullptr; // of the target while it is detached
    NVO::Flyout *m_flyout = nullptr;
    NVO::ComboBox *m_position = nullptr;
    NVO::CheckBox *m_error = nullptr;
    NVO::CheckBox *m_sticky = nullptr;
    NVO::CheckBox *m_closeButton = nullptr;
    NVO::CheckBox *m_long = nullptr;
    NVO::CheckBox *m_detached = nullptr;
    NVO::Label *m_description = nullptr;
};
