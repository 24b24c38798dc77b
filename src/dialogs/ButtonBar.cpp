#include "dialogs/ButtonBar.h"

#include "dialogs/DialogSupport.h"
#include "theme/Ancestry.h"
#include "theme/StyleSupport.h"

#include <nvo/Icon.h>
#include <nvo/IconButton.h>
#include <nvo/Pixmap.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QMetaEnum>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace NVO {

namespace {

constexpr int buttonSpacing = 10;

/** A button box whose margins stay at 0, whatever the style thinks of them, and that never has the focus. */
class MButtonBox : public QDialogButtonBox
{
public:
    using QDialogButtonBox::QDialogButtonBox;

protected:
    void changeEvent(QEvent *event) override
    {
        QDialogButtonBox::changeEvent(event);
        if (!layout() || (event->type() != QEvent::StyleChange && event->type() != QEvent::MacSizeChange))
            return;
        layout()->setContentsMargins(0, 0, 0, 0);
        setFocusProxy(nullptr); // comes with each layout of the buttons
    }
};

/** The descendants of a widget that the keyboard reaches, in their order. */
QList<QWidget *> focusableIn(QWidget *widget)
{
    QList<QWidget *> result;
    const auto add = [&](QWidget *candidate) {
        if ((candidate == widget || widget->isAncestorOf(candidate))
            && candidate->focusPolicy() & Qt::TabFocus)
            result.append(candidate);
    };
    add(widget);
    for (QWidget *next = widget->nextInFocusChain(); next != widget; next = next->nextInFocusChain())
        add(next);
    return result;
}

} // namespace

ButtonBar::ButtonBar(QWidget *parent)
    : QFrame(parent)
    , m_buttonBox(new MButtonBox(this))
    , m_helpButton(new IconButton(this))
    , m_extraHost(new QWidget(this))
    , m_extraSpacer(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum))
{
    setObjectName(QStringLiteral("frameActionBar"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);

    m_helpButton->setText(QStringLiteral("Hilfe"));
    m_helpButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_helpButton->setFocusPolicy(Qt::StrongFocus);
    m_helpButton->setAutoDefault(false); // else Qt makes it the default button where there is no other
    m_helpButton->hide();
    DialogSupport::sleep(m_helpButton);
    row->addWidget(m_helpButton);
    connect(m_helpButton, &QAbstractButton::clicked, this, [this] { Q_EMIT helpClicked(m_helpPath); });

    DialogSupport::tightColumn(m_extraHost)->addItem(m_extraSpacer);
    row->addWidget(m_extraHost);

    m_buttonBox->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(m_buttonBox);
    setDarkBackground(false);
}

void ButtonBar::setButtons(QFlags<ButtonType> buttons, ButtonType defaultButton)
{
    m_buttonFlags = buttons;
    m_buttonBox->clear();
    m_buttonBox->layout()->setSpacing(buttonSpacing);
    m_buttonBox->layout()->setContentsMargins(0, 0, 0, 0);
    const auto types = QMetaEnum::fromType<ButtonType>();
    for (int i = 0; i < types.keyCount(); ++i) {
        const auto type = ButtonType(types.value(i));
        if (type == DialogButton::NoButton || !buttons.testFlag(type))
            continue;
        const DialogButtonProperties properties = DialogButton::properties(type);
        auto *button = new DialogButton(Icon(), type, m_buttonBox);
        publishDefault(button, type == defaultButton);
        insertButton(button, properties.role);
        addShortcut(button, properties.shortcut);
        applyDefault(button, type == defaultButton);
    }
    updateTabOrder();
    updateVisible();
}

void ButtonBar::addButton(const QString &text, QDialogButtonBox::ButtonRole role)
{
    auto *button = new DialogButton(Icon(), DialogButton::UserDefined, m_buttonBox);
    button->setText(text);
    insertButton(button, role);
    updateTabOrder();
    updateVisible();
}

void ButtonBar::insertButton(DialogButton *button, QDialogButtonBox::ButtonRole role)
{
    button->setProperty("DarkBackground", darkBackground());
    // The box moves the button twice, and with each move Qt would parse its sheet.
    const QString sheet = button->styleSheet();
    button->setStyleSheet(QString());
    m_buttonBox->addButton(button, role);
    button->setStyleSheet(sheet);
    button->setAutoDefault(true);
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { Q_EMIT buttonClicked(button->buttonType()); });
}

/** The shortcut is the button's, so that it goes with it and is dead while it is hidden or disabled. */
void ButtonBar::addShortcut(DialogButton *button, const QKeySequence &keys)
{
    if (keys.isEmpty())
        return;
    auto *shortcut = new QShortcut(keys, button);
    shortcut->setContext(Qt::WindowShortcut);
    connect(shortcut, &QShortcut::activated, button, [button] { Q_EMIT button->clicked(false); });
}

/** What the sheets select on; false if it was there already. */
bool ButtonBar::publishDefault(DialogButton *button, bool isDefault)
{
    if (button->property("buttonPrimary") == isDefault)
        return false;
    button->setProperty("buttonPrimary", isDefault);
    button->setProperty("buttonSecondary", !isDefault);
    return true;
}

void ButtonBar::applyDefault(DialogButton *button, bool isDefault)
{
    button->setDefault(isDefault);
    button->setAutoDefault(true);
    if (isDefault)
        button->setFocus();
    if (publishDefault(button, isDefault))
        StyleSupport::repolish(button);
}

void ButtonBar::setDefaultButton(ButtonType type)
{
    const QList<DialogButton *> buttons = dialogButtons();
    const auto chosen = std::find_if(buttons.begin(), buttons.end(), [type](const DialogButton *button) {
        return button->buttonType() == type;
    });
    for (auto button = buttons.begin(); button != buttons.end(); ++button) {
        // Qt takes the default state from the other buttons by itself, but not what the sheets select on.
        const bool isDefault = button == chosen;
        if ((*button)->isDefault() != isDefault || (*button)->property("buttonPrimary").toBool() != isDefault)
            applyDefault(*button, isDefault);
    }
}

void ButtonBar::setButtonText(ButtonType type, const QString &text)
{
    const QList<DialogButton *> buttons = dialogButtons();
    for (DialogButton *button : buttons) {
        if (button->buttonType() == type)
            button->setText(text);
    }
}

void ButtonBar::setHelpPath(const QString &path)
{
    m_helpPath = path;
    if (!path.isEmpty())
        DialogSupport::wake(m_helpButton, ElementIconButton);
    m_helpButton->setVisible(!path.isEmpty());
    updateVisible();
}

void ButtonBar::setHelpButtonText(const QString &text)
{
    m_helpButton->setText(text);
}

void ButtonBar::setExtraWidget(QWidget *widget)
{
    if (widget && (widget == m_extraWidget || Ancestry::contains(widget, m_extraHost)))
        return;
    const QPointer<QWidget> before = std::exchange(m_extraWidget, QPointer<QWidget>(widget));
    if (widget) { // first, for it may have been a part of the one before
        m_extraHost->layout()->addWidget(widget);
        if (!widget->testAttribute(Qt::WA_WState_ExplicitShowHide))
            widget->show(); // as it would with the bar; whether the bar shows depends on it
    }
    delete before;
    m_extraSpacer->changeSize(0, 0, widget ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_extraHost->layout()->invalidate();
    updateTabOrder();
    updateVisible();
}

bool ButtonBar::darkBackground() const
{
    return property("darkBackground").toBool();
}

void ButtonBar::setDarkBackground(bool dark)
{
    const QString image = dark ? QStringLiteral(":/hilfe_hell_16") : QStringLiteral(":/hilfe_16");
    m_helpButton->setIcon(Pixmap(image));
    m_helpButton->setIconButtonStyle(dark ? IconButtonStyle::Light : IconButtonStyle::Dark);
    const QList<DialogButton *> buttons = dialogButtons();
    for (DialogButton *button : buttons)
        button->setProperty("DarkBackground", dark);
    setProperty("darkBackground", dark);
    StyleSupport::repolish(this);
}

void ButtonBar::updateVisible()
{
    const bool hasExtra = m_extraWidget && m_extraWidget->isVisibleTo(m_extraHost);
    setVisible(!m_helpPath.isEmpty() || !m_buttonBox->buttons().isEmpty() || hasExtra);
}

/** What is in the extra widget may have come after it. */
void ButtonBar::showEvent(QShowEvent *event)
{
    updateTabOrder();
    QFrame::showEvent(event);
}

/** The keyboard goes from help over the extra widget to the buttons, as they stand. */
void ButtonBar::updateTabOrder()
{
    QList<QWidget *> order{m_helpButton};
    if (m_extraWidget)
        order += focusableIn(m_extraWidget);
    const QLayout *boxLayout = m_buttonBox->layout();
    for (int i = 0; i < boxLayout->count(); ++i) {
        if (QWidget *button = boxLayout->itemAt(i)->widget())
            order.append(button);
    }
    for (int i = 1; i < order.count(); ++i)
        setTabOrder(order[i - 1], order[i]);
    m_buttonBox->setFocusProxy(nullptr); // it stands behind its buttons now and would lead back to the first
}

QList<DialogButton *> ButtonBar::dialogButtons() const
{
    QList<DialogButton *> result;
    const QList<QAbstractButton *> buttons = m_buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        if (auto *own = qobject_cast<DialogButton *>(button))
            result.append(own);
    }
    return result;
}

} // namespace NVO
