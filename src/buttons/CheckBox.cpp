#include <nvo/CheckBox.h>

#include "theme/StyleSupport.h"

#include <QEvent>
#include <QStyle>
#include <QStyleOptionButton>

namespace NVO {

namespace {

// How the frame lies in the focus rectangle of the style.
constexpr int frameInset = 3;
constexpr int frameDrop = 1;

} // namespace

CheckBox::CheckBox(QWidget *parent)
    : CheckBox(QString(), parent)
{}

CheckBox::CheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    initStyleSheet();
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
}

void CheckBox::setCheckBoxStyle(CheckBoxStyle style)
{
    if (m_checkBoxStyle == style)
        return;
    m_checkBoxStyle = style;
    initStyleSheet();
}

void CheckBox::setCheckBoxSize(CheckBoxSize size)
{
    if (m_checkBoxSize == size)
        return;
    m_checkBoxSize = size;
    initStyleSheet();
}

void CheckBox::setExtraBorder(bool extraBorder)
{
    if (m_extraBorder == extraBorder)
        return;
    m_extraBorder = extraBorder;
    initStyleSheet();
}

void CheckBox::setText(const QString &text)
{
    QCheckBox::setText(text);
    updateExtraBorderWidget();
}

void CheckBox::resizeEvent(QResizeEvent *event)
{
    QCheckBox::resizeEvent(event);
    updateExtraBorderWidget();
}

void CheckBox::changeEvent(QEvent *event)
{
    QCheckBox::changeEvent(event);
    switch (event->type()) {
    case QEvent::StyleChange: // a new sheet counts as one
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
        updateExtraBorderWidget();
        break;
    default:
        break;
    }
}

void CheckBox::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_checkBoxStyle));
    setProperty("checkboxSize", StyleSupport::enumKey(m_checkBoxSize));
    setProperty("extraBorder", m_extraBorder);
    updateExtraBorderWidget();
    StyleSupport::applySheet(this, ElementCheckBox);
}

void CheckBox::updateExtraBorderWidget()
{
    if (!m_extraBorder) {
        delete m_extraBorderWidget;
        return;
    }
    if (!m_extraBorderWidget) {
        m_extraBorderWidget = new QWidget(this);
        m_extraBorderWidget->setObjectName(QStringLiteral("extraBorder"));
        m_extraBorderWidget->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_extraBorderWidget->show(); // the check box may be visible already
    }
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect focus = style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, this);
    m_extraBorderWidget->setGeometry(focus.adjusted(frameInset, frameDrop, -frameInset, frameDrop));
}

} // namespace NVO
