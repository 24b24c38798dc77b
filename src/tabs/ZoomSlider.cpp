#include <nvo/ZoomSlider.h>

#include "theme/StyleSupport.h"

#include <nvo/Link.h>
#include <nvo/Product.h>

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QResizeEvent>
#include <QSlider>

namespace NVO {

namespace {

constexpr int minimumValue = 10;
constexpr int maximumValue = 200;
constexpr int stepWidth = 10;
constexpr int startValue = 100;
constexpr int sliderHeight = 16;
constexpr int sliderMaximumWidth = 100;
constexpr int buttonExtent = 16;
constexpr int spaceBeforeSlider = 20;
constexpr int spaceBesideSlider = 10;
constexpr int spaceAfterSlider = 15;
constexpr int spaceBetweenButtons = 20;
constexpr int linkPadding = 16;
constexpr int firstWidthZoom = 110;
constexpr int firstPageZoom = 90;

QHBoxLayout *makeLayout(QWidget *widget)
{
    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

ZoomSlider::ZoomSlider(QWidget *parent)
    : QWidget(parent)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_sliderPart(new QWidget(this))
    , m_buttonPart(new QWidget(this))
{
    initStyleSheet();
    setToolTip(QStringLiteral("Zoom"));
    setFocusProxy(m_slider);

    QHBoxLayout *layout = makeLayout(this);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // a window may be as narrow as the minimum size hint
    layout->addWidget(m_sliderPart);
    layout->addWidget(m_buttonPart);
    buildSliderPart();
    buildButtonPart();
    for (QWidget *part : QWidgetList{this, m_sliderPart, m_buttonPart, m_slider, m_link})
        part->setAttribute(Qt::WA_LayoutUsesWidgetRect);

    setZoomLevels({200, 100, 75, 50});
    connect(m_slider, &QAbstractSlider::valueChanged, this, &ZoomSlider::slotValueChanged);
    setValue(startValue);
}

ZoomSlider::~ZoomSlider()
{
    if (!sender())
        return;
    // Slider and menu, which may have led here by what they emit, cannot bear to be deleted meanwhile.
    for (QWidget *part : QWidgetList{m_slider, m_link->menu()}) {
        if (!part)
            continue;
        part->setParent(nullptr);
        part->deleteLater();
    }
}

void ZoomSlider::initStyleSheet()
{
    StyleSupport::applyStyle(this, ElementZoomSlider);
}

void ZoomSlider::buildSliderPart()
{
    m_slider->setRange(minimumValue, maximumValue);
    m_slider->setPageStep(stepWidth);
    m_slider->setSingleStep(stepWidth);
    m_slider->setFixedHeight(sliderHeight);
    m_slider->setMaximumWidth(sliderMaximumWidth);
    m_slider->setCursor(Qt::PointingHandCursor);
    m_slider->setAccessibleName(toolTip());

    QHBoxLayout *layout = makeLayout(m_sliderPart);
    layout->addSpacing(spaceBeforeSlider);
    const QPushButton *minus =
        addButton(layout, QStringLiteral(":/sym_minus"), QStringLiteral("Verkleinern"));
    layout->addSpacing(spaceBesideSlider);
    layout->addWidget(m_slider);
    layout->addSpacing(spaceBesideSlider);
    const QPushButton *plus = addButton(layout, QStringLiteral(":/sym_plus"), QStringLiteral("Vergrößern"));
    layout->addSpacing(spaceAfterSlider);
    connect(minus, &QPushButton::clicked, this, &ZoomSlider::minusClicked);
    connect(plus, &QPushButton::clicked, this, &ZoomSlider::plusClicked);
}

void ZoomSlider::buildButtonPart()
{
    m_link = new Link(m_buttonPart); // where it stands: another parent would make Qt parse its sheet again
    m_link->setFocusPolicy(Qt::NoFocus);
    m_link->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_link->setLinkStyle(Product::instance().variant == 1 ? Link::FlyoutLight : Link::FlyoutDark);

    QHBoxLayout *layout = makeLayout(m_buttonPart);
    layout->addWidget(m_link);
    layout->addSpacing(spaceBetweenButtons);
    const QPushButton *height =
        addButton(layout, QStringLiteral(":/aufhoehe_16"), QStringLiteral("Seitenhöhe"));
    layout->addSpacing(spaceBetweenButtons);
    const QPushButton *width =
        addButton(layout, QStringLiteral(":/aufbreite_16"), QStringLiteral("Seitenbreite"));
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::MinimumExpanding, QSizePolicy::Fixed));
    connect(height, &QPushButton::clicked, this, &ZoomSlider::pageZoomTriggered);
    connect(width, &QPushButton::clicked, this, &ZoomSlider::pageWidthZoomTriggered);
}

QPushButton *ZoomSlider::createButton(QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setFixedSize(buttonExtent, buttonExtent);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setAttribute(Qt::WA_LayoutUsesWidgetRect);
    return button;
}

QPushButton *ZoomSlider::addButton(QHBoxLayout *layout, const QString &icon, const QString &toolTip)
{
    QPushButton *button = createButton(layout->parentWidget());
    button->setIcon(StyleSupport::fileIcon(icon));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAccessibleDescription(this->toolTip()); // without one, it would be the name again
    layout->addWidget(button);
    return button;
}

int ZoomSlider::value() const
{
    return m_slider->value();
}

void ZoomSlider::setValue(int value)
{
    m_slider->setValue(value);
}

int ZoomSlider::minimum() const
{
    return m_slider->minimum();
}

int ZoomSlider::maximum() const
{
    return m_slider->maximum();
}

void ZoomSlider::setMinimum(int minimum)
{
    m_slider->setMinimum(minimum);
}

void ZoomSlider::setMaximum(int maximum)
{
    m_slider->setMaximum(maximum);
}

bool ZoomSlider::hasTracking() const
{
    return m_slider->hasTracking();
}

void ZoomSlider::setTracking(bool enable)
{
    m_slider->setTracking(enable);
}

void ZoomSlider::setZoomLevels(const QVector<int> &p_levels)
{
    const int widthValue = m_pageWidthAction ? m_pageWidthAction->data().toInt() : firstWidthZoom;
    const int pageValue = m_pageZoomAction ? m_pageZoomAction->data().toInt() : firstPageZoom;
    QMenu *menu = emptyMenu();
    for (const int level : p_levels)
        createZoomAction(menu, level, nullptr);
    menu->addSeparator();
    m_pageWidthAction = createZoomAction(menu, widthValue, &ZoomSlider::pageWidthZoomTriggered);
    m_pageWidthAction->setText(QStringLiteral("Seitenbreite"));
    m_pageZoomAction = createZoomAction(menu, pageValue, &ZoomSlider::pageZoomTriggered);
    m_pageZoomAction->setText(QStringLiteral("Ganze Seite"));
}

/** The menu of the link without its entries. They die later: one of them may be what calls us. */
QMenu *ZoomSlider::emptyMenu()
{
    m_link->ensurePolished(); // before the menu, for which Qt would parse its sheet once more
    if (!m_link->menu())
        m_link->setMenu(new QMenu(m_link));
    QMenu *menu = m_link->menu();
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        menu->removeAction(action);
        if (action->parent() == menu && action->associatedWidgets().isEmpty())
            action->deleteLater();
    }
    return menu;
}

QAction *ZoomSlider::createZoomAction(QMenu *menu, int value, void (ZoomSlider::*signal)())
{
    auto *action = new QAction(QString::number(value) + QLatin1Char('%'), menu);
    action->setData(value);
    connect(action, &QAction::triggered, this, [this, action] { zoomActionTriggered(action); });
    if (signal)
        connect(action, &QAction::triggered, this, signal);
    menu->addAction(action);
    return action;
}

void ZoomSlider::setPageWidthZoom(int p_value)
{
    if (m_pageWidthAction)
        m_pageWidthAction->setData(p_value);
}

void ZoomSlider::setPageZoom(int p_value)
{
    if (m_pageZoomAction)
        m_pageZoomAction->setData(p_value);
}

void ZoomSlider::minusClicked()
{
    step(QAbstractSlider::SliderSingleStepSub);
}

void ZoomSlider::plusClicked()
{
    step(QAbstractSlider::SliderSingleStepAdd);
}

void ZoomSlider::step(int action)
{
    const QPointer<QSlider> slider(m_slider);
    slider->triggerAction(QAbstractSlider::SliderAction(action));
    if (slider)
        slider->setFocus();
}

void ZoomSlider::zoomActionTriggered(const QAction *action)
{
    const QPointer<QSlider> slider(m_slider);
    slider->setValue(action->data().toInt());
    if (slider)
        slider->setFocus();
}

void ZoomSlider::slotValueChanged(int p_value)
{
    m_link->setText(QString::number(m_slider->value()) + QLatin1Char('%'));
    m_link->setAccessibleName(toolTip() + QLatin1Char(' ') + m_link->text());
    Q_EMIT valueChanged(p_value);
}

QSize ZoomSlider::sizeHint() const
{
    ensurePolished();
    return {m_sliderPart->sizeHint().width() + m_buttonPart->sizeHint().width(),
            QWidget::sizeHint().height()};
}

QSize ZoomSlider::minimumSizeHint() const
{
    ensurePolished();
    return {m_buttonPart->sizeHint().width(), QWidget::minimumSizeHint().height()};
}

bool ZoomSlider::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::ApplicationFontChange:
        initStyleSheet();
        break;
    case QEvent::Polish:
    case QEvent::FontChange:
        reserveLinkWidth();
        break;
    default:
        break;
    }
    return handled;
}

/** Room for any percentage of three digits. */
void ZoomSlider::reserveLinkWidth()
{
    if (!m_link)
        return; // still being made
    m_link->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("X00%")) + linkPadding);
}

void ZoomSlider::resizeEvent(QResizeEvent *event)
{
    m_sliderPart->setVisible(event->size().width() >= sizeHint().width());
    QWidget::resizeEvent(event);
}

} // namespace NVO
