#include <nvo/SelectionMessageBoxBase.h>

#include "dialogs/DialogSupport.h"

#include <nvo/CheckBox.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>

#include <QEvent>
#include <QVBoxLayout>

namespace NVO {

namespace {

QWidget *namedWidget(const QString &objectName)
{
    auto *widget = new QWidget;
    widget->setObjectName(objectName);
    return widget;
}

} // namespace

SelectionMessageBoxBase::SelectionMessageBoxBase(QWidget *parent, const QString &title,
                                                 const QString &caption, const QString &subHeader,
                                                 ButtonType buttons, const QString &helpPath)
    : Dialog(parent, ElementSelectionMessageBox, NoFlag)
{
    setShadowEnabled(true);
    setHairLineVisible(false);
    setWindowFilePath(helpPath);
    setButtons(buttons, DialogButton::NoButton, NoFlag);
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    createContent(caption, subHeader);
    createCheckBoxBar();
    updateHairLineVisible();
    setWindowTitle(title);
}

void SelectionMessageBoxBase::createContent(const QString &caption, const QString &subHeader)
{
    // Filled where it stands: a box that is moved makes Qt parse its sheet again.
    auto *content = new QWidget;
    setContent(content);
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QVBoxLayout *column = DialogSupport::tightColumn(content);

    m_infoBoxFrame = new QFrame(content);
    m_infoBoxFrame->setObjectName(QStringLiteral("infoBox"));
    m_infoBox = new InfoBox(m_infoBoxFrame);
    DialogSupport::tightColumn(m_infoBoxFrame)->addWidget(m_infoBox);
    m_infoBoxFrame->hide();
    column->addWidget(m_infoBoxFrame);

    if (!caption.isEmpty()) {
        Label *label = DialogSupport::wrappedLabel(caption, QStringLiteral("caption"));
        connect(label, &QLabel::linkActivated, this, &SelectionMessageBoxBase::linkActivated);
        column->addWidget(label);
    }
    if (!subHeader.isEmpty())
        column->addWidget(DialogSupport::wrappedLabel(subHeader, QStringLiteral("subHeader")));

    m_buttonsContainerWidget = new QWidget;
    DialogSupport::tightColumn(m_buttonsContainerWidget);
    column->addWidget(namedWidget(QStringLiteral("topSpacer")));
    column->addWidget(m_buttonsContainerWidget);
    column->addWidget(namedWidget(QStringLiteral("bottomSpacer")));
}

void SelectionMessageBoxBase::createCheckBoxBar()
{
    m_checkBoxBar = new QFrame(this);
    m_checkBoxBar->setObjectName(QStringLiteral("frameCheckboxBar"));
    m_checkBoxBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_checkBoxBar->hide();
    setExtraFooterWidget(m_checkBoxBar);
    m_hairLine = DialogSupport::checkBoxLine();
    m_hairLineSpacer = namedWidget(QStringLiteral("hairLineSpacer"));
    m_checkBox = new CheckBox(m_checkBoxBar);
    DialogSupport::sleep(m_checkBox);
    m_checkBox->setObjectName(QStringLiteral("SelectionMessageBoxCheckBox"));
    QVBoxLayout *column = DialogSupport::tightColumn(m_checkBoxBar);
    column->addWidget(m_hairLine);
    column->addWidget(m_hairLineSpacer);
    column->addWidget(m_checkBox);
}

void SelectionMessageBoxBase::setInfoBox(InfoBox::InfoBoxStyle style, const QString &htmlText,
                                         const QPixmap &pixmap, Qt::Alignment iconAlignment)
{
    if (!m_infoBox)
        return;
    m_infoBox->setInfoBoxStyle(style);
    m_infoBox->setHtmlText(htmlText);
    m_infoBox->setPixmap(pixmap);
    m_infoBox->setIconAlignment(iconAlignment);
}

void SelectionMessageBoxBase::setInfoBoxVisible(bool visible)
{
    // What counts is what was asked for, also before the box itself shows.
    if (m_infoBoxFrame && visible == m_infoBoxFrame->isHidden())
        m_infoBoxFrame->setVisible(visible);
}

void SelectionMessageBoxBase::setCheckBoxText(const QString &text)
{
    if (m_checkBox->text() != text)
        m_checkBox->setText(text);
}

void SelectionMessageBoxBase::setCheckBoxVisible(bool visible)
{
    if (visible)
        DialogSupport::wake(m_checkBox, ElementCheckBox);
    m_checkBoxBar->setVisible(visible);
    updateHairLineVisible();
    updateFooterVisible();
}

void SelectionMessageBoxBase::setCheckBoxChecked(bool checked)
{
    if (m_checkBox->isChecked() != checked)
        m_checkBox->setChecked(checked);
}

bool SelectionMessageBoxBase::checkBoxIsChecked() const
{
    return m_checkBox->isChecked();
}

QSize SelectionMessageBoxBase::sizeHint() const
{
    return DialogSupport::sizeForText(*this);
}

QSize SelectionMessageBoxBase::minimumSizeHint() const
{
    return sizeHint();
}

void SelectionMessageBoxBase::setVisible(bool visible)
{
    if (visible)
        DialogSupport::showFitted(*this, [this] { Dialog::setVisible(true); });
    else
        Dialog::setVisible(false);
}

bool SelectionMessageBoxBase::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible())
        DialogSupport::fitToText(*this);
    return Dialog::event(event);
}

/** The line parts check box and button row, if there are both. */
void SelectionMessageBoxBase::updateHairLineVisible()
{
    const bool show = !m_checkBoxBar->isHidden() && isActionBarVisible();
    m_hairLine->setVisible(show);
    m_hairLineSpacer->setVisible(show);
}

} // namespace NVO
