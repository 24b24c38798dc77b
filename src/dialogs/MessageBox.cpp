#include <nvo/MessageBox.h>

#include "dialogs/DialogSupport.h"

#include <nvo/CheckBox.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/Pixmap.h>

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace NVO {

namespace {

constexpr QMargins messageMargins(10, 10, 10, 20);
constexpr QSize iconPlace(40, 40);

QString iconName(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral(":/information");
    case QMessageBox::Warning:
        return QStringLiteral(":/warning");
    case QMessageBox::Critical:
        return QStringLiteral(":/critical");
    case QMessageBox::Question:
        return QStringLiteral(":/question");
    default:
        return QString();
    }
}

} // namespace

MessageBox::MessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                       QFlags<ButtonType> buttons, ButtonType defaultButton, QWidget *parent)
    : Dialog(parent, ElementMessageBox, buttons, defaultButton, NoFlag)
{
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    setShadowEnabled(true);
    setHairLineVisible(false);
    setContent(createContent(icon, text));
    createCheckBoxBar();
    setWindowTitle(title);
    setObjectName(QStringLiteral("NvoMessageBox"));
    setAccessibleDescription(QTextDocumentFragment::fromHtml(text).toPlainText());
}

QWidget *MessageBox::createContent(QMessageBox::Icon icon, const QString &text)
{
    auto *content = new QWidget;
    content->setFocusPolicy(Qt::NoFocus);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(messageMargins);
    DialogSupport::tightColumn(content)->addLayout(row);

    if (icon != QMessageBox::NoIcon) {
        auto *iconLabel = new QLabel(content);
        iconLabel->setObjectName(QStringLiteral("icon"));
        iconLabel->setFixedSize(iconPlace);
        iconLabel->setPixmap(Pixmap(iconName(icon)));
        row->addWidget(iconLabel);
    }
    Label *message = DialogSupport::wrappedLabel(text, QStringLiteral("mmessage"), content);
    connect(message, &QLabel::linkActivated, this, &MessageBox::linkActivated);
    row->addWidget(message);
    return content;
}

void MessageBox::createCheckBoxBar()
{
    m_checkBoxBar = new QFrame(this);
    m_checkBoxBar->setObjectName(QStringLiteral("frameCheckboxBar"));
    m_checkBoxBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_checkBoxBar->hide();
    setExtraFooterWidget(m_checkBoxBar);
    m_checkBox = new CheckBox(m_checkBoxBar);
    DialogSupport::sleep(m_checkBox);
    QVBoxLayout *column = DialogSupport::tightColumn(m_checkBoxBar);
    column->addWidget(DialogSupport::checkBoxLine());
    column->addWidget(m_checkBox);
}

void MessageBox::setCheckbox(const QString &text, Qt::CheckState state)
{
    if (!text.isEmpty())
        DialogSupport::wake(m_checkBox, ElementCheckBox);
    m_checkBox->setText(text);
    m_checkBoxBar->setVisible(!text.isEmpty());
    setCheckState(state);
    updateFooterVisible();
}

void MessageBox::setCheckState(Qt::CheckState state)
{
    if (m_checkBox->checkState() != state)
        m_checkBox->setCheckState(state);
}

Qt::CheckState MessageBox::checkState() const
{
    return m_checkBox->checkState();
}

bool MessageBox::isChecked() const
{
    return m_checkBox->isChecked();
}

QSize MessageBox::sizeHint() const
{
    return DialogSupport::sizeForText(*this);
}

QSize MessageBox::minimumSizeHint() const
{
    return sizeHint();
}

void MessageBox::setVisible(bool visible)
{
    if (visible)
        DialogSupport::showFitted(*this, [this] { Dialog::setVisible(true); });
    else
        Dialog::setVisible(false);
}

bool MessageBox::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible())
        DialogSupport::fitToText(*this);
    return Dialog::event(event);
}

void MessageBox::showEvent(QShowEvent *event)
{
    Dialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace NVO
