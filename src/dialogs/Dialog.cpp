#include <nvo/Dialog.h>

#include "dialogs/ButtonBar.h"
#include "dialogs/DialogSupport.h"
#include "dialogs/WidgetResizeHandler.h"
#include "theme/Ancestry.h"
#include "theme/StyleSupport.h"

#include <nvo/Button.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>
#include <nvo/Product.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace NVO {

namespace {

constexpr int titlePosition = 0; // in the frame
constexpr int contentPosition = 1;
constexpr int contentStretch = 1;
constexpr int titleStretch = 1; // the button keeps its own width, whatever policy its look brings
constexpr int hairLineWeight = 1;
constexpr QSize macCloseSize(14, 14);
constexpr QMargins shadowMargins(10, 0, 10, 10);
constexpr int shadowWidth = 10;
constexpr int resizeBand = 6;

#ifdef Q_OS_MACOS
constexpr bool onMac = true;
#else
constexpr bool onMac = false;
#endif

Qt::WindowFlags windowFlagsFor(QFlags<Dialog::DialogFlag> flags)
{
    constexpr Qt::WindowFlags frameless = Qt::FramelessWindowHint | Qt::CustomizeWindowHint;
    if (flags.testFlag(Dialog::StaysOnTop))
        return Qt::Dialog | frameless | Qt::WindowStaysOnTopHint;
    return (flags.testFlag(Dialog::Tool) ? Qt::Tool : Qt::Dialog) | frameless;
}

} // namespace

Dialog::Dialog(QWidget *parent, Element element, QFlags<ButtonType> buttons, ButtonType defaultButton,
               QFlags<DialogFlag> flags)
    : QDialog(parent, Qt::WindowFlags())
    , m_resizeHandler(new WidgetResizeHandler(this))
{
    setObjectName(QStringLiteral("NvoDialog"));
    setWindowFlags(windowFlagsFor(flags));
    StyleSupport::applySheet(this, element);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMouseTracking(true);
    m_resizeHandler->setActive(WidgetResizeHandler::Resize, false);
    createFrame();
    createTitleBar();
    createHairLine();
    createButtonBar();
    createFooter();
    setButtons(buttons, defaultButton, flags);
    setWindowFilePath(QString());
}

Dialog::Dialog(QWidget *parent, Element element, QFlags<DialogFlag> flags)
    : Dialog(parent, element, DialogButton::NoButton, DialogButton::NoButton, flags)
{}

Dialog::~Dialog() = default;

void Dialog::createFrame()
{
    m_frame = new QFrame(this);
    m_frame->setObjectName(QStringLiteral("frame"));
    m_frame->setMouseTracking(true);
    DialogSupport::tightColumn(this)->addWidget(m_frame);
    m_frameLayout = DialogSupport::tightColumn(m_frame);
}

void Dialog::createTitleBar()
{
    m_titleBar = new QFrame(m_frame);
    m_titleBar->setObjectName(QStringLiteral("frameTitleBar"));
    m_titleBar->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    m_titleBar->setMouseTracking(true);
    m_frameLayout->insertWidget(titlePosition, m_titleBar);

    m_titleLabel = new Label(m_titleBar);
    m_titleLabel->setObjectName(QStringLiteral("title"));
    m_titleLabel->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    m_titleLabel->setIndent(0);
    m_titleLabel->setContentsMargins(0, 0, 0, 0);
    m_titleLabel->setWordWrap(true);
    m_titleLabel->setFocusPolicy(Qt::NoFocus);
    m_titleLabel->setMouseTracking(true);
    m_titleLabel->setTextInteractionFlags(Qt::NoTextInteraction);

    m_closeButton = new Button(m_titleBar);
    m_closeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_closeButton->setAccessibleName(QStringLiteral("Schließen"));
    connect(m_closeButton, &QAbstractButton::clicked, this, &Dialog::reject);
    const int variant = Product::instance().variant;
    auto *row = new QHBoxLayout(m_titleBar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    if (onMac && variant == 1) {
        m_closeButton->setButtonStyle(Button::MacClose);
        m_titleLabel->setAlignment(Qt::AlignCenter);
        row->addWidget(m_closeButton);
        row->addWidget(m_titleLabel, titleStretch);
        row->addItem(new QSpacerItem(macCloseSize.width(), macCloseSize.height(), QSizePolicy::Fixed,
                                     QSizePolicy::Fixed)); // balances the button
    } else {
        m_closeButton->setButtonStyle(variant == 0 ? Button::Close : Button::CloseDark);
        row->addWidget(m_titleLabel, titleStretch);
        row->addWidget(m_closeButton);
    }
    m_closeButton->setFocusPolicy(Qt::NoFocus);
    m_closeButton->hide();
    DialogSupport::sleep(m_closeButton);
    m_titleBar->show();
}

void Dialog::createHairLine()
{
    const int variant = Product::instance().variant;
    m_hairLine = new HairLine(Qt::Horizontal, m_frame);
    m_hairLine->setColor(Palette::instance().namedColor(
        variant == 1 ? QStringLiteral("BASECOLOR_SILVER") : QStringLiteral("BASECOLOR_LIGHT_GRAY")));
    m_hairLine->setWeight(hairLineWeight);
    m_frameLayout->addWidget(m_hairLine);
    m_hairLineWanted = variant == 0;
}

void Dialog::createButtonBar()
{
    m_buttonBar = new ButtonBar(m_frame);
    m_buttonBar->setMouseTracking(true);
    m_frameLayout->addWidget(m_buttonBar);
    connect(m_buttonBar, &ButtonBar::helpClicked, this, &Dialog::helpClicked);
    connect(m_buttonBar, &ButtonBar::buttonClicked, this, &Dialog::buttonClicked);
}

void Dialog::createFooter()
{
    m_footer = new QWidget(m_frame);
    DialogSupport::tightColumn(m_footer);
    m_frameLayout->addWidget(m_footer);
    updateFooterVisible();
}

void Dialog::setContent(QWidget *widget, Qt::Alignment alignment)
{
    if (widget == m_contentWidget || (widget && Ancestry::contains(widget, m_frame)))
        return;
    const QPointer<QWidget> before = std::exchange(m_contentWidget, QPointer<QWidget>(widget));
    if (widget) // first, for it may have been a part of the one before
        m_frameLayout->insertWidget(contentPosition, widget, contentStretch, alignment);
    delete before;
}

QWidget *Dialog::content()
{
    return m_contentWidget;
}

void Dialog::setWindowTitle(const QString &title)
{
    if (title == windowTitle())
        return;
    QDialog::setWindowTitle(title);
    m_titleLabel->setText(title);
}

void Dialog::setTitleBarVisible(bool visible)
{
    m_titleBar->setVisible(visible);
}

void Dialog::enableCloseButton(bool enable)
{
    if (enable)
        DialogSupport::wake(m_closeButton, ElementButton);
    m_closeButton->setVisible(enable);
}

void Dialog::enableMove(bool enable)
{
    m_resizeHandler->setActive(WidgetResizeHandler::Move, enable);
}

void Dialog::enableResize(bool enable)
{
    m_resizeHandler->setActive(WidgetResizeHandler::Resize, enable);
}

void Dialog::setShadowEnabled(bool enable)
{
    const bool shadow = enable && Product::instance().effectsEnabled && !m_frame->graphicsEffect();
    m_frame->setGraphicsEffect(shadow ? createDefaultShadowEffectRect() : nullptr);
    layout()->setContentsMargins(shadow ? shadowMargins : QMargins());
    setAttribute(Qt::WA_TranslucentBackground, shadow);
    setAttribute(Qt::WA_NoSystemBackground, shadow); // comes with the former, but does not go with it
    const int outerMargin = shadow ? shadowWidth : 0;
    m_resizeHandler->setMargins(outerMargin, outerMargin + resizeBand);
}

int Dialog::titleBarHeight() const
{
    return m_titleBar->height();
}

int Dialog::actionBarHeight() const
{
    return m_buttonBar->height();
}

void Dialog::addButton(const QString &text, QDialogButtonBox::ButtonRole role)
{
    m_buttonBar->addButton(text, role);
    updateHairLineVisible();
}

void Dialog::setButtonText(ButtonType type, const QString &text)
{
    m_buttonBar->setButtonText(type, text);
}

void Dialog::setDefaultButton(ButtonType type)
{
    m_buttonBar->setDefaultButton(type);
}

void Dialog::setHelpFilePath(const QString &path)
{
    m_buttonBar->setHelpPath(path);
}

void Dialog::setWindowFilePath(const QString &path)
{
    setHelpFilePath(path);
}

void Dialog::setHelpButtonText(const QString &text)
{
    m_buttonBar->setHelpButtonText(text);
}

void Dialog::setExtraActionBarWidget(QWidget *widget)
{
    m_buttonBar->setExtraWidget(widget);
}

void Dialog::setActionBarDarkBackground(bool dark)
{
    m_buttonBar->setDarkBackground(dark);
}

void Dialog::setButtons(QFlags<ButtonType> buttons, ButtonType defaultButton, QFlags<DialogFlag> flags)
{
    m_buttonBar->setDarkBackground(flags.testFlag(HasDarkBackground));
    m_buttonBar->setButtons(buttons, defaultButton);
    updateHairLineVisible();
}

void Dialog::setExtraFooterWidget(QWidget *widget)
{
    if (widget && widget == m_extraFooterWidget)
        return;
    delete m_extraFooterWidget;
    m_extraFooterWidget = widget;
    if (widget) {
        m_footer->layout()->addWidget(widget);
        if (!widget->testAttribute(Qt::WA_WState_ExplicitShowHide))
            widget->show(); // as it would with the footer; whether that shows depends on it
    }
    updateFooterVisible();
}

void Dialog::updateFooterVisible()
{
    m_footer->setVisible(m_extraFooterWidget && m_extraFooterWidget->isVisibleTo(m_footer));
}

void Dialog::setHairLineVisible(bool visible)
{
    m_hairLineWanted = visible;
    updateHairLineVisible();
}

void Dialog::updateHairLineVisible()
{
    m_hairLine->setVisible(m_hairLineWanted && isActionBarVisible());
}

bool Dialog::isActionBarVisible() const
{
    return m_buttonBar->isVisibleTo(m_frame);
}

bool Dialog::checkAccept()
{
    return true;
}

void Dialog::buttonClicked(ButtonType type)
{
    m_pressedButtonType = type;
    if (type == DialogButton::Print) {
        Q_EMIT printClicked();
        return;
    }
    switch (DialogButton::properties(type).role) {
    case QDialogButtonBox::AcceptRole:
    case QDialogButtonBox::ApplyRole:
    case QDialogButtonBox::YesRole:
    case QDialogButtonBox::ActionRole: {
        const QPointer<Dialog> alive(this);
        if (checkAccept() && alive)
            accept();
        break;
    }
    default:
        reject();
    }
}

void Dialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto *focused = qobject_cast<QPushButton *>(focusWidget());
    if (isEnter && focused && focused->hasFocus() && focused->isEnabled()) {
        event->accept();
        focused->click(); // also one that never becomes the default button, such as help
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    m_pressedButtonType = buttonTypeForEsc();
    reject();
}

Dialog::ButtonType Dialog::buttonTypeForEsc() const
{
    for (const ButtonType type :
         {DialogButton::Close, DialogButton::Cancel, DialogButton::No, DialogButton::NoSave,
          DialogButton::Ignore, DialogButton::SurveyLater, DialogButton::SurveyNo}) {
        if (m_buttonBar->buttonFlags().testFlag(type))
            return type;
    }
    return DialogButton::NoButton;
}

void Dialog::setVisible(bool visible)
{
    // Whoever sets window flags later makes Qt derive from the attribute that the window takes no input.
    if (visible && windowFlags().testFlag(Qt::WindowTransparentForInput)) {
        overrideWindowFlags(windowFlags() & ~Qt::WindowTransparentForInput);
        if (windowHandle())
            windowHandle()->setFlag(Qt::WindowTransparentForInput, false);
    }
    QDialog::setVisible(visible);
}

} // namespace NVO
