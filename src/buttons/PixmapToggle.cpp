#include <nvo/PixmapToggle.h>

#include "buttons/ToggleSupport.h"
#include "theme/StyleSupport.h"

#include <nvo/Pixmap.h>
#include <nvo/Product.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace NVO {

namespace {

QLabel *addSide(QLayout *layout, const QString &name, const QString &image)
{
    auto *side = new QLabel;
    side->setObjectName(name);
    side->setPixmap(Pixmap(image));
    side->setAlignment(Qt::AlignCenter);
    layout->addWidget(side);
    return side;
}

void setPixmap(QLabel *side, const QString &image)
{
    if (side)
        side->setPixmap(Pixmap(image));
}

} // namespace

PixmapToggle::PixmapToggle(QWidget *parent)
    : AbstractToggle(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_leftFrame = addSide(layout, QStringLiteral("leftFrame"), QStringLiteral(":/checkmark_hell_16"));

    m_middleFrame = new QFrame(this);
    m_middleFrame->setObjectName(QStringLiteral("middleFrame"));
    layout->addWidget(m_middleFrame);
    m_middleFrame->setVisible(Product::instance().variant == 0);
    m_middleFrame->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);

    m_rightFrame = addSide(layout, QStringLiteral("rightFrame"), QStringLiteral(":/close_hell_16"));

    checkBoxToggled();
    initStyleSheet();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &PixmapToggle::toggled, this, &PixmapToggle::checkBoxToggled);
    // A press that is given up toggles nothing, but the value may have been set meanwhile.
    connect(this, &PixmapToggle::released, this, &PixmapToggle::checkBoxToggled);
}

// That of the layout: a check box's own knows nothing of the frames.
QSize PixmapToggle::sizeHint() const
{
    return QWidget::sizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

QSize PixmapToggle::minimumSizeHint() const
{
    return QWidget::minimumSizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

bool PixmapToggle::hitButton(const QPoint &) const
{
    return true;
}

void PixmapToggle::checkStateSet()
{
    if (signalsBlocked()) // toggled() does not come
        checkBoxToggled();
    AbstractToggle::checkStateSet();
}

void PixmapToggle::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

void PixmapToggle::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        updatePixmaps();
    AbstractToggle::changeEvent(event);
}

void PixmapToggle::applyState(const QString &state)
{
    ToggleSupport::setPartProperty(m_leftFrame, "state", state);
    ToggleSupport::setPartProperty(m_rightFrame, "state", state);
    ToggleSupport::setPartProperty(m_middleFrame, "state", state);
}

void PixmapToggle::initStyleSheet()
{
    StyleSupport::applySheet(this, ElementPixmapToggle);
}

void PixmapToggle::checkBoxToggled()
{
    const bool shown = ToggleSupport::isShownOn(*this);
    ToggleSupport::setPartProperty(m_leftFrame, "checked", shown);
    ToggleSupport::setPartProperty(m_rightFrame, "checked", !shown);
    updatePixmaps();
}

/** A disabled toggle has the symbol of its value only. */
void PixmapToggle::updatePixmaps()
{
    QString left = QStringLiteral(":/checkmark_hell_16");
    QString right = QStringLiteral(":/close_hell_16");
    if (!isEnabled()) {
        left = isChecked() ? QStringLiteral(":/checkmark_16") : QString();
        right = isChecked() ? QString() : QStringLiteral(":/close_16");
    }
    setPixmap(m_leftFrame, left);
    setPixmap(m_rightFrame, right);
}

} // namespace NVO
