#include <nvo/ComboBox.h>

#include "editors/ComboBoxDelegate.h"
#include "theme/StyleSupport.h"

#include <nvo/GraphicsEffect.h>
#include <nvo/Product.h>
#include <nvo/ScrollBar.h>

#include <QAbstractItemView>
#include <QEvent>
#include <QLayout>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <array>

namespace NVO {

namespace {

constexpr int normalItemHeight = 25;
constexpr int bigItemHeight = 60;
constexpr int normalVisibleItems = 12;
constexpr int bigVisibleItems = 5;
constexpr QSize bigIconSize(24, 24);

// Missing by name in a build without deprecated ones.
constexpr auto adjustToMinimumContentsLength = QComboBox::SizeAdjustPolicy(2);

// From the edges of a row of the list, the second of each pair in variant 1.
constexpr std::array<int, 2> iconMargins{20, 10};
constexpr std::array<int, 2> bigLeftTextMargins{64, 54};
constexpr std::array<int, 2> bigRightTextMargins{20, 10};
constexpr int normalTextMargin = 10;

constexpr QColor popupGround(246, 246, 246);

int ofVariant(const std::array<int, 2> &margins)
{
    return Product::instance().variant == 1 ? margins.back() : margins.front();
}

/** Made where it will stand: another parent would make Qt parse its sheet again. */
ScrollBar *makeScrollBar(const QScrollBar *replaced)
{
    auto *bar = new ScrollBar(replaced->orientation(), replaced->parentWidget());
    bar->setScrollBarStyle(ScrollBar::DropDown);
    return bar;
}

} // namespace

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
    // Before the sheet: a sheet that was asked is parsed again when its widget is polished.
    m_textMargin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    initStyleSheet();
    view()->setItemDelegate(new ComboBoxDelegate(this));
    setMaxVisibleItems(normalVisibleItems);
    initPopupFrame();
    setCursor(Qt::PointingHandCursor);
    connect(model(), &QAbstractItemModel::dataChanged, this, &ComboBox::adjustDropDown);
    connect(model(), &QAbstractItemModel::rowsInserted, this, &ComboBox::adjustDropDown);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, &ComboBox::adjustDropDown);
    connect(model(), &QAbstractItemModel::modelReset, this, &ComboBox::adjustDropDown);
    view()->setHorizontalScrollBar(makeScrollBar(view()->horizontalScrollBar()));
    view()->setVerticalScrollBar(makeScrollBar(view()->verticalScrollBar()));
    installShadow(createDefaultShadowEffectRect());
}

void ComboBox::setComboBoxStyle(ComboBoxStyle style)
{
    if (m_comboBoxStyle == style)
        return;
    m_comboBoxStyle = style;
    initStyleSheet();
    updateShadow();
}

void ComboBox::setComboBoxSize(ComboBoxSize size)
{
    if (m_comboBoxSize == size)
        return;
    // The classic shadow of a big box follows its shape.
    if (Product::instance().variant == 0)
        installShadow(size == SizeBig ? createDefaultShadowEffectPixels() : createDefaultShadowEffectRect());
    m_comboBoxSize = size;
    setMaxVisibleItems(size == SizeBig ? bigVisibleItems : normalVisibleItems);
    initStyleSheet();
}

void ComboBox::setReadOnly(bool readOnly)
{
    if (m_readOnly == readOnly)
        return;
    m_readOnly = readOnly;
    setDisabled(readOnly);
    setShadowEnabled(!readOnly);
    initStyleSheet();
}

void ComboBox::setShadowEnabled(bool enabled)
{
    if (m_shadowEnabled == enabled)
        return;
    m_shadowEnabled = enabled;
    updateShadow();
}

void ComboBox::adjustDropDown() {}

void ComboBox::showPopup()
{
    // The view that Qt makes in place of one that was deleted has no model, which showing it does not
    // survive.
    if (view()->model() != model())
        view()->setModel(model());
    // Qt shows its arrows again when the list is longer than its window, so they are watched from now on.
    const QLayout *popup = view()->parentWidget()->layout();
    for (int i = 0; popup && i < popup->count(); ++i) {
        QWidget *widget = popup->itemAt(i)->widget();
        if (widget && widget->inherits("QComboBoxPrivateScroller")) {
            widget->installEventFilter(this);
            widget->hide();
        }
    }
    QComboBox::showPopup();
}

bool ComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent && watched->inherits("QComboBoxPrivateScroller"))
        static_cast<QWidget *>(watched)->hide();
    return QComboBox::eventFilter(watched, event);
}

void ComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.setLayoutDirection(layoutDirection()); // or a sheet writes mirrored texts from the left
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.activeSubControls = QStyle::SC_None; // the box is one area to the mouse
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (currentIndex() < 0 && !placeholderText().isEmpty()) {
        option.palette.setBrush(QPalette::ButtonText, option.palette.buttonText().color().lighter());
        option.currentText = placeholderText();
    }
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ComboBox::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
}

void ComboBox::initStyleSheet()
{
    const bool big = m_comboBoxSize == SizeBig;
    setProperty("readOnly", m_readOnly);
    setProperty("style", StyleSupport::enumKey(m_comboBoxStyle));
    setProperty("bigSize", big);
    setIconSize(big ? bigIconSize : QSize());
    setSizeAdjustPolicy(big ? AdjustToMinimumContentsLengthWithIcon : adjustToMinimumContentsLength);
    StyleSupport::applySheet(this, ElementComboBox);
}

void ComboBox::initPopupFrame()
{
    QWidget *frame = view()->parentWidget();
    frame->ensurePolished();
    QPalette palette = frame->palette();
    palette.setBrush(QPalette::Window, popupGround);
    palette.setBrush(QPalette::Button, popupGround);
    frame->setPalette(palette);
    frame->setWindowOpacity(1.0);
    // Where a style opens the list over the box it expects arrows instead of a scroll bar.
    view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void ComboBox::installShadow(GraphicsEffect *effect)
{
    setGraphicsEffect(effect);
    updateShadow();
}

void ComboBox::updateShadow()
{
    if (auto *effect = qobject_cast<GraphicsEffect *>(graphicsEffect()))
        effect->setEnabled(m_shadowEnabled && m_comboBoxStyle != NoBorder);
}

int ComboBox::itemHeight() const
{
    return m_comboBoxSize == SizeBig ? bigItemHeight : normalItemHeight;
}

int ComboBox::leftIconMargin() const
{
    return ofVariant(iconMargins);
}

int ComboBox::leftTextMargin() const
{
    return (m_comboBoxSize == SizeBig ? ofVariant(bigLeftTextMargins) : normalTextMargin) - m_textMargin;
}

int ComboBox::rightTextMargin() const
{
    return (m_comboBoxSize == SizeBig ? ofVariant(bigRightTextMargins) : normalTextMargin) - m_textMargin;
}

} // namespace NVO
