#include <nvo/RadioToggle.h>

#include "buttons/RadioToggleRadioButton.h"
#include "buttons/ToggleSupport.h"
#include "theme/ShadowEffect.h"
#include "theme/StyleSupport.h"

#include <nvo/Product.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QResizeEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace NVO {

namespace {

constexpr int margin = 1;

// Classic: the chosen side is sunken like a field. Modern: the other half is raised a little.
using SunkenShadow = ShadowEffect<4, 4, ShadowLeft | ShadowTop, ShadowInner, 14, ShadowOfPixels>;
using RaisedShadow =
    ShadowEffect<1, 2, ShadowLeft | ShadowRight | ShadowBottom, ShadowOuter, 4, ShadowOfPart>;

QFrame *addFrame(QLayout *layout, const QString &name)
{
    auto *frame = new QFrame;
    frame->setObjectName(name);
    layout->addWidget(frame);
    return frame;
}

RadioToggleRadioButton *addRadio(QFrame *side)
{
    auto *radio = new RadioToggleRadioButton(side);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(radio);
    layout->setAlignment(radio, Qt::AlignCenter);
    return radio;
}

void setSunken(const QWidget *side, bool sunken)
{
    if (auto *effect = side ? qobject_cast<GraphicsEffect *>(side->graphicsEffect()) : nullptr)
        effect->setEnabled(sunken);
}

QString textOf(const QAbstractButton *radio)
{
    return radio ? radio->text() : QString();
}

void setTextOf(RadioToggleRadioButton *radio, const QString &text, QObject *toggle)
{
    if (!radio || radio->text() == text)
        return;
    radio->setText(text);
    QAccessibleEvent event(toggle, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace

RadioToggle::RadioToggle(QWidget *parent)
    : AbstractToggle(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(0);
    m_leftFrame = addFrame(layout, QStringLiteral("leftFrame"));
    m_middleFrame = addFrame(layout, QStringLiteral("middleFrame"));
    m_rightFrame = addFrame(layout, QStringLiteral("rightFrame"));
    m_onRadio = addRadio(m_leftFrame);
    m_offRadio = addRadio(m_rightFrame);
    installShadows();

    setOnText(QStringLiteral("Ja"));
    setOffText(QStringLiteral("Nein"));
    checkBoxToggled();
    connect(this, &RadioToggle::toggled, this, &RadioToggle::checkBoxToggled);
    initStyleSheet();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QString RadioToggle::onText() const
{
    return textOf(m_onRadio);
}

void RadioToggle::setOnText(const QString &text)
{
    setTextOf(m_onRadio, text, this);
}

QString RadioToggle::offText() const
{
    return textOf(m_offRadio);
}

void RadioToggle::setOffText(const QString &text)
{
    setTextOf(m_offRadio, text, this);
}

int RadioToggle::middleX() const
{
    return m_middleFrame ? m_middleFrame->x() : 0;
}

void RadioToggle::setRadioToggleStyle(RadioToggleStyle style)
{
    if (m_radioToggleStyle == style)
        return;
    m_radioToggleStyle = style;
    initStyleSheet();
}

// That of the layout: a check box's own knows nothing of the radio buttons.
QSize RadioToggle::sizeHint() const
{
    return QWidget::sizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

QSize RadioToggle::minimumSizeHint() const
{
    return QWidget::minimumSizeHint(); // NOLINT(bugprone-parent-virtual-call)
}

bool RadioToggle::hitButton(const QPoint &) const
{
    return true;
}

void RadioToggle::checkStateSet()
{
    if (signalsBlocked()) // toggled() does not come
        checkBoxToggled();
    AbstractToggle::checkStateSet();
}

void RadioToggle::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

void RadioToggle::resizeEvent(QResizeEvent *event)
{
    raiseHalf(QRect(QPoint(0, 0), event->size()));
}

void RadioToggle::applyState(const QString &state)
{
    ToggleSupport::setPartProperty(m_leftFrame, "state", state);
    ToggleSupport::setPartProperty(m_rightFrame, "state", state);
    ToggleSupport::setPartProperty(m_middleFrame, "state", state);
    checkBoxToggled();
}

void RadioToggle::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_radioToggleStyle));
    StyleSupport::applySheet(this, ElementRadioToggle);
    RadioToggle::applyState(QString());
}

void RadioToggle::checkBoxToggled()
{
    const bool shown = ToggleSupport::isShownOn(*this);
    if (m_onRadio)
        m_onRadio->setChecked(shown);
    if (m_offRadio)
        m_offRadio->setChecked(!shown);
    setSunken(m_leftFrame, shown);
    setSunken(m_rightFrame, !shown);
    raiseHalf(rect());
    // For a radio button "checked" is its value; it is polished again with its frame.
    ToggleSupport::setPartProperty(m_leftFrame, "checked", shown);
    ToggleSupport::setPartProperty(m_rightFrame, "checked", !shown);
}

void RadioToggle::installShadows()
{
    if (Product::instance().variant == 1) {
        setGraphicsEffect(new RaisedShadow);
        return;
    }
    for (QFrame *side : {m_leftFrame.data(), m_rightFrame.data()})
        side->setGraphicsEffect(new SunkenShadow);
}

/** Lets the half of \a rect that is not chosen cast the shadow of the toggle. */
void RadioToggle::raiseHalf(const QRect &rect)
{
    auto *effect = qobject_cast<GraphicsEffect *>(graphicsEffect());
    if (!effect)
        return;
    QRect raised = rect;
    const int half = rect.width() / 2;
    if (ToggleSupport::isShownOn(*this)) {
        raised.setLeft(half);
        raised.setWidth(half);
    } else {
        raised.setRight(half);
    }
    effect->setPartialRect(QStyle::visualRect(layoutDirection(), rect, raised));
}

} // namespace NVO
