#include "RibbonPeers.h"

#include "RibbonContent.h"
#include "RibbonPeerLayouts.h"

#include "ribbon/RibbonGroupButton.h"
#include "ribbon/RibbonSeperator.h"

#include <nvo/Action.h>
#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/Label.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonTab.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QStackedLayout>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

using NVO::RibbonControl;
using RibbonPeers::GroupLayout;
using RibbonPeers::PageLayout;
using Mode = RibbonControl::SizeMode;

namespace {

/** The sheet of an element, for the class that stands in for ours. */
QString sheetFor(NVO::Element element, const char *ourClass, const char *peerClass)
{
    return NVO::Css::instance().css(element).replace(ourClass, peerClass);
}

void setElementFont(QWidget *widget, NVO::Element element)
{
    QFont font = widget->font();
    font.setPixelSize(NVO::Font::instance().scaledFontSizeByElement(element, QString()));
    widget->setFont(font);
}

/** How large a button of the ribbon is in a mode. */
QSize buttonSize(const QString &text, const QIcon &icon, const QFont &font, Mode mode)
{
    const bool large = mode == RibbonControl::Large;
    const int edge = icon.isNull() ? 0 : large ? 32 : 16;
    const int gap = icon.isNull() || text.isEmpty() ? 0 : 2;
    const int margins = large ? 8 : 4;
    const QFontMetrics metrics(font);
    const QStringList lines =
        large ? text.split(QLatin1Char('\n')) : QStringList{QString(text).replace('\n', ' ')};
    int widest = 0;
    for (const QString &line : lines)
        widest = qMax(widest, metrics.horizontalAdvance(line));
    const int textHeight = text.isEmpty() ? 0 : lines.size() * metrics.height();
    return QSize(margins, margins)
           + (large ? QSize(qMax(edge, widest), edge + gap + textHeight)
                    : QSize(edge + gap + widest, qMax(edge, textHeight)));
}

class AnewButton : public NVO::RibbonButton
{
public:
    using NVO::RibbonButton::RibbonButton;
    using NVO::RibbonButton::sizeFromMode;

    QSize sizeFromMode(Mode mode, bool) const override { return buttonSize(text(), icon(), font(), mode); }
};

class AnewCheckBox : public NVO::RibbonCheckBox
{
public:
    using NVO::RibbonCheckBox::RibbonCheckBox;
    using NVO::RibbonCheckBox::sizeFromMode;

    QSize sizeFromMode(Mode, bool minimum) const override
    {
        return minimum ? QCheckBox::minimumSizeHint() : QCheckBox::sizeHint();
    }
};

class AnewGroupButton : public NVO::RibbonGroupButton
{
public:
    QSize minimumSizeHint() const override
    {
        constexpr int widestLine = 80;
        const QString whole = text();
        const int blank = whole.indexOf(QLatin1Char(' '), whole.size() / 2);
        const QFontMetrics metrics = fontMetrics();
        QStringList lines{whole};
        if (metrics.horizontalAdvance(whole) > widestLine && blank > 0 && blank < whole.size() - 1)
            lines = QStringList{whole.left(blank), whole.mid(blank + 1)};
        QSize size(32, 34);
        for (const QString &line : lines)
            size =
                QSize(qMax(size.width(), metrics.horizontalAdvance(line)), size.height() + metrics.height());
        return size + QSize(8, 11);
    }
};

/** What the plain controls have in common: they follow an action and know how large they are. */
template <typename Widget>
class PlainControl : public Widget, public RibbonControl
{
public:
    PlainControl(NVO::Action *action, QWidget *parent)
        : Widget(parent)
        , m_action(action)
    {
        QObject::connect(this, &QAbstractButton::clicked, action, &QAction::triggered);
        QObject::connect(action, &QAction::changed, this, [this] { takeOver(); });
        this->setCursor(Qt::PointingHandCursor);
    }

    NVO::Action *action() const override { return m_action; }
    void updateLayout() override { this->updateGeometry(); }

protected:
    virtual void takeOver()
    {
        this->setVisible(m_action->isVisible());
        this->setEnabled(m_action->isEnabled());
        this->setToolTip(NVO::Ribbon::createTooltip(m_action, this));
    }

private:
    NVO::Action *m_action;
};

class PlainButton : public PlainControl<QToolButton>
{
public:
    PlainButton(NVO::Action *action, QWidget *parent)
        : PlainControl(action, parent)
    {
        static const QString sheet = sheetFor(NVO::ElementRibbonButton, "NVO--RibbonButton", "QToolButton");
        setElementFont(this, NVO::ElementRibbonButton);
        setStyleSheet(sheet);
        takeOver();
    }

    QSize sizeHint() const override { return sizeFromMode(sizeMode(), true); }
    QSize minimumSizeHint() const override { return sizeFromMode(sizeMode(), true); }

    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(Mode mode, bool) const override
    {
        QSize &size = mode == Large ? m_large : m_small;
        if (!size.isValid())
            size = buttonSize(m_text, icon(), font(), mode);
        return size;
    }

    void onSetSizeModeChanged(Mode) override
    {
        showText();
        updateGeometry();
    }

protected:
    void takeOver() override
    {
        PlainControl::takeOver();
        m_text = action()->text().replace("<br>", "\n");
        m_small = m_large = QSize();
        setCheckable(action()->isCheckable());
        setChecked(action()->isChecked());
        setIcon(action()->icon());
        showText();
    }

    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::FontChange)
            m_small = m_large = QSize();
        QToolButton::changeEvent(event);
    }

private:
    void showText()
    {
        const bool large = sizeMode() == Large;
        setToolButtonStyle(large ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
        setIconSize(large ? QSize(32, 32) : QSize(16, 16));
        setText(large ? m_text : QString(m_text).replace('\n', ' '));
    }

    QString m_text;
    mutable QSize m_small;
    mutable QSize m_large;
};

class PlainCheckBox : public PlainControl<QCheckBox>
{
public:
    PlainCheckBox(NVO::Action *action, QWidget *parent)
        : PlainControl(action, parent)
    {
        static const QString sheet = sheetFor(NVO::ElementRibbonCheckBox, "NVO--RibbonCheckBox", "QCheckBox");
        setMaximumHeight(20);
        setElementFont(this, NVO::ElementRibbonCheckBox);
        setStyleSheet(sheet);
        takeOver();
    }

    bool setSizeMode(Mode, bool) override { return false; }
    using RibbonControl::sizeFromMode;
    QSize sizeFromMode(Mode, bool) const override { return sizeHint(); }

protected:
    void takeOver() override
    {
        PlainControl::takeOver();
        setText(action()->text().remove("<br>"));
    }
};

/** What a group is made of. */
struct Kit
{
    QWidget *(*control)(NVO::Action *action, QWidget *parent);
    QAbstractButton *(*groupButton)();
    QLabel *(*caption)(QWidget *parent);
    bool keepsSizes;
};

template <typename Button, typename CheckBox>
QWidget *makeControl(NVO::Action *action, QWidget *parent)
{
    if (action->controlType() == NVO::Action::CommandCheckBox)
        return new CheckBox(action, parent);
    return new Button(action, parent);
}

template <typename Label>
QLabel *makeCaption(QWidget *parent)
{
    auto *label = new Label(parent);
    label->setObjectName(QStringLiteral("RibbonGroupLabel"));
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPixelSize(11);
    label->setFont(font);
    return label;
}

QAbstractButton *makePlainGroupButton()
{
    static const QString sheet =
        sheetFor(NVO::ElementRibbonGroupButton, "NVO--RibbonGroupButton", "QToolButton");
    auto *button = new QToolButton;
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize(QSize(32, 32));
    setElementFont(button, NVO::ElementRibbonGroupButton);
    button->setStyleSheet(sheet);
    return button;
}

/** The controls of a group, or the button that stands for them. */
class Group : public QFrame, public RibbonControl
{
public:
    Group(const RibbonContent::Group &content, const Kit &kit, QWidget *parent)
        : QFrame(parent)
        , m_action(content.action)
        , m_faces(new QStackedLayout(this))
    {
        static const QString sheet = sheetFor(NVO::ElementRibbonGroup, "NVO--RibbonGroup", ".QFrame");
        setStyleSheet(sheet);
        m_faces->setContentsMargins(0, 0, 0, 0);
        auto *panel = new QWidget;
        panel->setStyleSheet(QStringLiteral("background-color: transparent;"));
        m_faces->addWidget(panel);
        addButton(kit);
        RibbonControl::setSizeMode(Large, true);

        QLabel *caption = kit.caption(panel);
        m_layout = new GroupLayout(panel, caption, kit.keepsSizes);
        const QMap<QString, Mode> modes = m_action->sizeMode();
        for (NVO::Action *command : content.commands) {
            QWidget *control = kit.control(command, panel);
            m_layout->addWidget(control);
            dynamic_cast<RibbonControl *>(control)->setFixSizeMode(modes.value(command->valueName()));
        }
        caption->setText(m_action->text());
        setVisible(true);
    }

    QSize sizeHint() const override { return sizeFromMode(sizeMode(), true); }
    NVO::Action *action() const override { return m_action; }
    void updateLayout() override { updateGeometry(); }
    bool controlVisible() const override
    {
        return RibbonControl::controlVisible() && !m_layout->visible().isEmpty();
    }

    bool setSizeMode(Mode mode, bool force) override
    {
        return RibbonControl::setSizeMode(mode == Small && isSingle() ? Large : mode, force);
    }

    void onSetSizeModeChanged(Mode) override
    {
        const int face = sizeMode() == Large || isSingle() ? 0 : 1;
        if (m_faces->currentIndex() == face)
            return;
        m_faces->setCurrentIndex(face);
        updateGeometry();
    }

    QSize sizeFromMode(Mode mode, const QSize &available) const override
    {
        if (mode == Large || isSingle())
            return m_layout->sizeFromMode(mode, available);
        return sizeFromMode(mode, true);
    }

    QSize sizeFromMode(Mode mode, bool minimum) const override
    {
        const QSize open = m_layout->sizeFromMode(mode, minimum);
        const QSize button = minimum ? m_button->minimumSizeHint() : m_button->sizeHint();
        return QSize(mode == Large || isSingle() ? open.width() : button.width(),
                     qMax(open.height(), button.height()));
    }

private:
    void addButton(const Kit &kit)
    {
        m_button = kit.groupButton();
        m_button->setCursor(Qt::PointingHandCursor);
        m_button->setText(m_action->text());
        m_button->setIcon(m_action->icon());
        m_button->setToolTip(m_action->toolTip());
        m_faces->addWidget(m_button);
    }

    bool isSingle() const { return m_layout->visible().count() == 1; }

    NVO::Action *m_action;
    QStackedLayout *m_faces;
    QAbstractButton *m_button = nullptr;
    GroupLayout *m_layout = nullptr;
};

void setLookOfRibbon(QTabWidget *ribbon)
{
    ribbon->tabBar()->setDocumentMode(true);
    ribbon->tabBar()->setDrawBase(false);
    ribbon->tabBar()->setExpanding(false);
    setElementFont(ribbon, NVO::ElementRibbon);
    ribbon->setStyleSheet(NVO::Css::instance().css(NVO::ElementRibbon));
}

QWidget *makePage(const RibbonContent::Tab &content, const Kit &kit, QWidget *parent)
{
    auto *page = new QFrame(parent);
    page->setObjectName(QStringLiteral("RibbonTab"));
    auto *box = new QHBoxLayout(page);
    box->setContentsMargins(0, 0, 0, 0);
    auto *strip = new QWidget;
    box->addWidget(strip);
    auto *layout = new PageLayout(strip);
    layout->setContentsMargins(4, 4, 4, 0);
    layout->setSpacing(2);
    for (const RibbonContent::Group &groupContent : content.groups) {
        auto *group = new Group(groupContent, kit, strip);
        if (layout->count() > 0)
            layout->addWidget(new NVO::RibbonSeperator(group, strip));
        layout->addWidget(group);
    }
    return page;
}

QTabWidget *makeRibbon(const Kit &kit, QWidget *parent)
{
    auto *ribbon = new QTabWidget(parent);
    setLookOfRibbon(ribbon);
    for (const RibbonContent::Tab &tab : ribbonContent().tabs)
        ribbon->addTab(makePage(tab, kit, ribbon), tab.action->text());
    return ribbon;
}

} // namespace

namespace RibbonPeers {

QTabWidget *ours(QWidget *parent)
{
    auto *ribbon = new NVO::Ribbon(nullptr, parent);
    for (const RibbonContent::Tab &tabContent : ribbonContent().tabs) {
        NVO::RibbonTab *tab = ribbon->addTab(tabContent.action);
        for (const RibbonContent::Group &groupContent : tabContent.groups) {
            NVO::RibbonGroup *group = tab->addGroup(groupContent.action);
            for (NVO::Action *command : groupContent.commands)
                group->addAction(command);
        }
    }
    return ribbon;
}

QTabWidget *askedAnew(QWidget *parent)
{
    const Kit kit{makeControl<AnewButton, AnewCheckBox>,
                  []() -> QAbstractButton * { return new AnewGroupButton; }, makeCaption<NVO::Label>, false};
    return makeRibbon(kit, parent);
}

QTabWidget *plainKept(QWidget *parent)
{
    return makeRibbon(
        {makeControl<PlainButton, PlainCheckBox>, makePlainGroupButton, makeCaption<QLabel>, true}, parent);
}

QTabWidget *toolBars(QWidget *parent)
{
    auto *tabs = new QTabWidget(parent);
    setLookOfRibbon(tabs);
    for (const RibbonContent::Tab &tab : ribbonContent().tabs) {
        auto *page = new QFrame(tabs);
        page->setObjectName(QStringLiteral("RibbonTab"));
        auto *box = new QHBoxLayout(page);
        box->setContentsMargins(4, 4, 4, 0);
        box->setSpacing(2);
        for (const RibbonContent::Group &group : tab.groups) {
            auto *bar = new QToolBar;
            for (NVO::Action *command : group.commands)
                bar->addWidget(makeControl<PlainButton, PlainCheckBox>(command, bar));
            box->addWidget(bar);
        }
        tabs->addTab(page, tab.action->text());
    }
    return tabs;
}

} // namespace RibbonPeers
