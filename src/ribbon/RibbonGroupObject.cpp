#include <nvo/RibbonGroupObject.h>

#include "ribbon/RibbonSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Action.h>
#include <nvo/Label.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonLabel.h>

#include <QDebug>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr int spaceAbove = 1; // stretch
constexpr int controlStretch = 2;
constexpr int pictureMargin = 6; // at the left

} // namespace

RibbonGroupObject::RibbonGroupObject(Action *p_action, QWidget *p_parent)
    : QFrame(p_parent)
    , m_pixmapLabel(new Label)
    , m_action(p_action)
    , m_controlLayout(new QVBoxLayout)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_pixmapLabel->setObjectName(QStringLiteral("ribbonGroupPixmapLabel"));
    layout->addWidget(m_pixmapLabel);
    layout->addLayout(m_controlLayout);
    m_controlLayout->setContentsMargins(0, 0, 0, 0);
    m_controlLayout->addStretch(spaceAbove);
    if (p_action)
        connect(p_action, &QAction::changed, this, &RibbonGroupObject::changedAction);
    initStyleSheet();
    setActionParams();
}

QWidget *RibbonGroupObject::addAction(Action *p_action)
{
    if (!p_action)
        return nullptr;
    QWidget *control = nullptr;
    switch (p_action->controlType()) {
    case Action::CommandButton: {
        auto *button = new RibbonButton(p_action, this);
        button->setTextOption(QTextOption(Qt::AlignRight | Qt::AlignTop));
        button->setCursor(Qt::PointingHandCursor);
        control = button;
        break;
    }
    case Action::CommandCheckBox:
        control = new RibbonCheckBox(p_action, this);
        control->setCursor(Qt::PointingHandCursor);
        break;
    case Action::CommandLabel:
        control = new RibbonLabel(p_action, this);
        break;
    default:
        qDebug().nospace() << "RibbonGroupObject::addAction unknown type: " << int(p_action->controlType());
        return nullptr;
    }
    m_controlLayout->addWidget(control, controlStretch);
    return control;
}

QPair<QWidget *, RibbonControl *> RibbonGroupObject::getControl(const QString &p_name) const
{
    const QString name = p_name.toUpper();
    for (int i = 0; i < m_controlLayout->count(); ++i) {
        QWidget *widget = m_controlLayout->itemAt(i)->widget();
        auto *control = dynamic_cast<RibbonControl *>(widget);
        if (control && control->action() && control->action()->valueName().toUpper() == name)
            return {widget, control};
    }
    return {nullptr, nullptr};
}

void RibbonGroupObject::updateLayout() {}

QSize RibbonGroupObject::sizeFromMode(SizeMode, bool) const
{
    return sizeHint();
}

Action *RibbonGroupObject::action() const
{
    return m_action;
}

void RibbonGroupObject::changedAction()
{
    setActionParams();
}

void RibbonGroupObject::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementRibbonGroupObject);
}

void RibbonGroupObject::setActionParams()
{
    RibbonSupport::copyState(
        this, m_action, [this] { setVisible(controlVisible()); }, [this] { showPicture(imageName()); },
        [this] { setEnabled(m_action->isEnabled()); });
}

void RibbonGroupObject::showPicture(const QString &name)
{
    m_pixmapLabel->setVisible(!name.isEmpty());
    if (!name.isEmpty())
        m_pixmapLabel->setText(QStringLiteral("<img src=\"%1\" height=\"80\">").arg(name));
    m_pixmapLabel->setContentsMargins(name.isEmpty() ? 0 : pictureMargin, 0, 0, 0);
}

/** The name by which rich text finds the picture; empty for none. */
QString RibbonGroupObject::imageName() const
{
    const Ribbon *ribbon = Ribbon::findRibbon(this);
    const QString icon = m_action->macroIconname();
    QString name = ribbon ? ribbon->replaceMacroText(icon) : icon;
    if (name.isEmpty() || name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return name;
    return QStringLiteral("nvo://%1/PIXMAP/%2").arg(ribbon ? ribbon->getPictureDllName() : QString(), name);
}

} // namespace NVO
