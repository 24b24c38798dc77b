#include "pages/InvoicePage.h"

#include "pages/EmbeddedDialog.h"
#include "pages/FlyoutParts.h"
#include "pages/FormCheck.h"
#include "pages/InvoiceForm.h"
#include "pages/PageSupport.h"
#include "pages/PaymentDialog.h"

#include <nvo/Button.h>
#include <nvo/DateEdit.h>
#include <nvo/Flyout.h>
#include <nvo/Label.h>
#include <nvo/NumericEdit.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int errorTextWidth = 250;
constexpr int flyoutRoom = 320; // beside a dialog
constexpr int targetWidth = 20;
constexpr QSize stageSize(390, 390); // fits on a small screen

/** A form or a dialog with the flyout of a wrong field, to be looked at. */
class ErrorPicture : public QWidget
{
public:
    ErrorPicture(QWidget *subject, QWidget *field, const QString &wrong, int room)
        : m_field(field)
        , m_wrong(wrong)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        const QList<QWidget *> widgets = subject->findChildren<QWidget *>();
        for (QWidget *widget : widgets)
            widget->setFocusPolicy(Qt::NoFocus);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, room, 0);
        layout->addWidget(subject);
    }

protected:
    bool event(QEvent *event) override
    {
        const QEvent::Type type = event->type();
        // When all has its place, which also changes with the fonts.
        if (type == QEvent::Show || type == QEvent::LayoutRequest || type == QEvent::Resize)
            QTimer::singleShot(0, this, &ErrorPicture::point);
        return QWidget::event(event);
    }

private:
    void point()
    {
        const QRect field(m_field->mapTo(this, QPoint(0, 0)), m_field->size());
        if (m_stage && field == m_fieldPlace)
            return;
        m_fieldPlace = field;
        delete m_stage;
        m_stage = new QWidget(this);
        m_stage->setGeometry(field.right() + 1 - targetWidth, field.center().y() - stageSize.height() / 2,
                             stageSize.width(), stageSize.height());
        const QRect target(0, field.top() - m_stage->y(), targetWidth, field.height());
        auto *flyout = new FlyoutPicture(target, NVO::Flyout::CloseButton, m_stage);
        m_stage->show();
        QVBoxLayout *column = makeFlyoutContent();
        column->setContentsMargins(flyoutCrossMargins);
        addFlyoutText(column, m_wrong, errorTextWidth);
        flyout->present(NVO::Flyout::LeftMiddle, NVO::Flyout::Error, column->parentWidget());
    }

    QWidget *m_field;
    QString m_wrong;
    QRect m_fieldPlace;
    QWidget *m_stage = nullptr; // beside the field, with its right end
};

ErrorPicture *makeFormPicture()
{
    auto *form = new InvoiceForm;
    form->fillWithSample();
    form->dueDateField()->setDate(form->date().addDays(-7));
    return new ErrorPicture(form, form->dueDateField(), form->check()->mark(form->dueDateField()), 0);
}

ErrorPicture *makeDialogPicture()
{
    constexpr double openAmount = 690;
    auto *dialog = new PaymentDialog(QStringLiteral("RE-2026-0418"), QDate(2026, 5, 12), openAmount, nullptr);
    dialog->amountField()->setValue(openAmount + 500);
    const QString wrong = dialog->check()->mark(dialog->amountField());
    return new ErrorPicture(embedded(dialog), dialog->amountField(), wrong, flyoutRoom);
}

NVO::Button *makeButton(const QString &text, NVO::Button::ButtonStyle style = NVO::Button::Normal)
{
    auto *button = new NVO::Button;
    button->setText(text);
    button->setButtonStyle(style);
    return button;
}

} // namespace

InvoicePage::InvoicePage()
{
    addForm();
    addErrorPictures();
}

void InvoicePage::addForm()
{
    m_form = new InvoiceForm;
    m_outcome = makeLabel(QString());
    NVO::Button *bookButton = makeButton(QStringLiteral("Buchen"), NVO::Button::Primary);
    NVO::Button *payButton = makeButton(QStringLiteral("Zahlung erfassen …"));
    NVO::Button *clearButton = makeButton(QStringLiteral("Leeren"));
    connect(bookButton, &QAbstractButton::clicked, this, &InvoicePage::book);
    connect(payButton, &QAbstractButton::clicked, this, &InvoicePage::pay);
    connect(clearButton, &QAbstractButton::clicked, this, [this] {
        m_form->clear();
        m_outcome->clear();
    });

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(bookButton);
    buttons->addWidget(payButton);
    buttons->addWidget(clearButton);
    buttons->addSpacing(12);
    buttons->addWidget(m_outcome, 1);

    QVBoxLayout *section = addSection(
        QStringLiteral("Ausgangsrechnung"),
        QStringLiteral("Jedes Feld wird beim Verlassen geprüft. Was nicht stimmt, sagt ein Flyout, "
                       "das stehen bleibt, bis die Eingabe geändert wird."));
    section->addWidget(m_form);
    section->addSpacing(4);
    section->addLayout(buttons);
}

void InvoicePage::addErrorPictures()
{
    addSection(
        QStringLiteral("Ein Fehler im Formular"),
        QStringLiteral("Abbildung: Das Feld zeigt den Stil „Error“, das Flyout weist mit seinem Zeiger "
                       "darauf."))
        ->addWidget(makeFormPicture());
    addSection(QStringLiteral("Ein Fehler im Dialog"),
               QStringLiteral("Abbildung: „OK“ lässt den Dialog offen, solange ein Feld nicht stimmt."))
        ->addWidget(makeDialogPicture(), 0, Qt::AlignLeft);
}

void InvoicePage::book()
{
    m_outcome->clear();
    if (m_form->check()->checkAll())
        m_outcome->setText(QStringLiteral("Rechnung <b>%1</b> über <b>%2</b> ist gebucht.")
                               .arg(m_form->number(), InvoiceForm::money(m_form->gross())));
}

/** A payment needs an invoice without mistakes. */
void InvoicePage::pay()
{
    m_outcome->clear();
    if (!m_form->check()->checkAll())
        return;
    auto *dialog = new PaymentDialog(m_form->number(), m_form->date(), m_form->openAmount(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setShadowEnabled(true);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        m_outcome->setText(QStringLiteral("Zahlung erfasst: <b>%1</b>").arg(dialog->summary()));
    });
    // Where a window without a frame was placed some window managers do not tell, and a flyout has to know.
    dialog->adjustSize();
    dialog->move(window()->geometry().center() - dialog->rect().center());
    dialog->open();
}
