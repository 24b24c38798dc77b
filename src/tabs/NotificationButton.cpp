#include "tabs/NotificationButton.h"

#include "theme/StyleSupport.h"

#include <nvo/Font.h>
#include <nvo/Label.h>

#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QVariant>

namespace NVO {

namespace {

constexpr int leadWidth = 10;
constexpr int spacing = 5;
constexpr int notificationPadding = 10; // of both sides together
constexpr int smallestNotification = 20;

int textWidth(const QFont &font, const QString &text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

/** \a title as a tab shows it: "&" marks a letter, "&&" stands for one. */
QString shown(QString title, bool isUnderlined)
{
    static const QRegularExpression mark(QStringLiteral("&(?!amp;)(.)"));
    return title.replace(QLatin1String("&&"), QLatin1String("&amp;"))
        .replace(mark, isUnderlined ? QStringLiteral("<u>\\1</u>") : QStringLiteral("\\1"));
}

} // namespace

NotificationButton::NotificationButton(QTabBar *bar)
    : QWidget(bar)
    , m_mnemonic(new QShortcut(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents); // the mouse is for the tab
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing);
    addSpace()->setFixedWidth(leadWidth);
    m_title = addLabel();
    m_notification = addLabel();
    m_notification->setObjectName(QStringLiteral("notification"));
    applyFonts();
    m_filler = addSpace();
    m_filler->setFixedWidth(0);
    connect(m_mnemonic, &QShortcut::activated, bar, [this, bar] { bar->setCurrentIndex(index()); });
}

NotificationButton::~NotificationButton()
{
    if (auto *bar = qobject_cast<QTabBar *>(parentWidget()))
        bar->setTabButton(index(), QTabBar::RightSide, nullptr);
}

NotificationButton *NotificationButton::of(const QTabBar *bar, int index)
{
    return dynamic_cast<NotificationButton *>(bar->tabButton(index, QTabBar::RightSide));
}

/** That of its tab; -1 if it is on none. */
int NotificationButton::index() const
{
    const auto *bar = qobject_cast<QTabBar *>(parentWidget());
    int index = bar ? bar->count() - 1 : -1;
    while (index >= 0 && bar->tabButton(index, QTabBar::RightSide) != this)
        --index;
    return index;
}

QString NotificationButton::title() const
{
    return m_title ? m_title->text() : QString();
}

QString NotificationButton::notification() const
{
    return m_notification ? m_notification->text() : QString();
}

void NotificationButton::setTexts(const QString &title, const QString &notification, bool isCurrent)
{
    if (!m_title || !m_notification)
        return;
    for (Label *label : {m_title.data(), m_notification.data()}) {
        if ((isCurrent || label->property("state").isValid()) && setNotificationState(label, isCurrent))
            StyleSupport::repolish(label);
        label->ensurePolished();
    }
    QFont titleFont = m_title->font();
    if (isCurrent)
        titleFont.setBold(true);
    m_title->setText(title);
    if (title.contains(QLatin1Char('&')))
        m_title->QLabel::setText(
            shown(title, style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this)));
    m_mnemonic->setKey(QKeySequence::mnemonic(title));
    m_title->setFixedWidth(textWidth(titleFont, title));
    m_notification->setText(notification);
    m_notification->setFixedWidth(
        qMax(textWidth(m_notification->font(), notification) + notificationPadding, smallestNotification));
    // The space gives and takes at first, so that nothing outside of the tab is touched.
    fill(fillerWidth() > 0 ? width() - usedWidth() : 0);
}

void NotificationButton::applyFonts()
{
    if (m_title)
        m_title->setFont(parentWidget()->font());
    if (m_notification)
        StyleSupport::applyFontSize(m_notification, ElementSegmentedControl);
}

QSize NotificationButton::contentSize() const
{
    return size() - QSize(fillerWidth(), 0);
}

int NotificationButton::fillerWidth() const
{
    return m_filler ? m_filler->minimumWidth() : 0;
}

void NotificationButton::centerIn(int tabWidth)
{
    fill((tabWidth - usedWidth()) / 2);
}

/** What is left of the space on the right. */
int NotificationButton::usedWidth() const
{
    return leadWidth + 3 * spacing + (m_title ? m_title->minimumWidth() : 0)
           + (m_notification ? m_notification->minimumWidth() : 0);
}

void NotificationButton::fill(int width)
{
    if (m_filler)
        m_filler->setFixedWidth(qMax(width, 0));
    resize(layout()->sizeHint());
}

bool NotificationButton::eventFilter(QObject *, QEvent *event)
{
    return event->type() == QEvent::ApplicationFontChange;
}

Label *NotificationButton::addLabel()
{
    auto *label = new Label(this);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->installEventFilter(this);
    layout()->addWidget(label);
    return label;
}

QWidget *NotificationButton::addSpace()
{
    auto *space = new QWidget(this);
    layout()->addWidget(space);
    return space;
}

bool setNotificationState(Label *label, bool isActive)
{
    const QString state = isActive ? QStringLiteral("active") : QString();
    const QString before = label->property("state").toString();
    label->setProperty("state", state);
    return state != before;
}

} // namespace NVO
