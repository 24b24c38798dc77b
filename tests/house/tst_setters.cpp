#include "Guards.h"
#include "TestCase.h"
#include "house/House.h"

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace House;

namespace {

constexpr int intMax = std::numeric_limits<int>::max();
constexpr int intMin = std::numeric_limits<int>::min();
constexpr double infinity = std::numeric_limits<double>::infinity();

/** What the setters of a pass are given where they take an object: it dies with the pass. */
std::unique_ptr<QWidget> foreign;

QStringList hostileTexts()
{
    return {QString(), QStringLiteral(""), QString(10000, 'W'),
            QStringLiteral("<b>\u0000<table><tr>&bad; <a href=\"") + QChar(0xd800),
            QString(300, '\n') + QString(300, '&')};
}

bool isDeclaredHere(const QMetaObject *meta, int property)
{
    while (property < meta->propertyOffset())
        meta = meta->superClass();
    return QByteArray(meta->className()).startsWith("NVO::");
}

// ---- values by type --------------------------------------------------------------------------------------

template <typename Enum, typename = void>
constexpr bool takesAnyNumber = false;
template <typename Enum>
constexpr bool takesAnyNumber<Enum, std::void_t<decltype(Enum{0})>> = true;

template <typename Type>
struct IsFlags : std::false_type
{};
template <typename Enum>
struct IsFlags<QFlags<Enum>> : std::true_type
{};

/** Hostile arguments of a type, for a setter of \a target; types that are not told here get a default. */
template <typename Type>
std::vector<Type> hostile(QObject *target)
{
    Q_UNUSED(target)
    if constexpr (std::is_same_v<Type, QString>) {
        const QStringList texts = hostileTexts();
        return {texts.begin(), texts.end()};
    } else if constexpr (std::is_same_v<Type, bool>) {
        return {true, false};
    } else if constexpr (std::is_same_v<Type, int> || std::is_same_v<Type, unsigned>) {
        return {Type(-1), 0, 3, Type(intMax), Type(intMin)};
    } else if constexpr (std::is_same_v<Type, double>) {
        return {-1, 0, 1e300, -infinity, std::nan("")};
    } else if constexpr (std::is_enum_v<Type>) {
        if constexpr (takesAnyNumber<Type>)
            return {Type(0), Type(1), Type(-1), Type(99), Type(intMax), Type(intMin)};
        return {Type(0), Type(1)};
    } else if constexpr (IsFlags<Type>::value) {
        return {Type(), Type(QFlag(1)), Type(QFlag(-1)), Type(QFlag(intMax)), Type(QFlag(intMin))};
    } else if constexpr (std::is_same_v<Type, QColor>) {
        return {QColor(), QColor(1, 2, 3, 4), QColor(Qt::red)};
    } else if constexpr (std::is_same_v<Type, QPixmap> || std::is_same_v<Type, Pixmap>) {
        return {Type(), Pixmap(QStringLiteral(":/information")), Pixmap(QStringLiteral(":/no such"))};
    } else if constexpr (std::is_same_v<Type, QDate>) {
        return {QDate(), QDate(2024, 2, 29), QDate(-4712, 1, 1), QDate::fromJulianDay(1LL << 60)};
    } else if constexpr (std::is_same_v<Type, QVector<int>>) {
        return {{}, {intMin, -1, 0, intMax}, QVector<int>(500, 100)};
    } else if constexpr (std::is_same_v<Type, ExpandingOverviewButton::Path>) {
        return {Type(), Type{QVariant(), hostileTexts()}, Type{1, QString(500, ',').split(',')}};
    } else if constexpr (std::is_same_v<Type, QVector<QPair<QString, ExpandingOverviewButton::Path>>>) {
        return {Type(), Type(1), Type(40, {hostileTexts()[2], {}})};
    } else if constexpr (std::is_pointer_v<Type>) {
        std::vector<Type> result{nullptr, qobject_cast<Type>(target), qobject_cast<Type>(target->parent())};
        if constexpr (std::is_constructible_v<std::remove_pointer_t<Type>, QWidget *>)
            result.push_back(new std::remove_pointer_t<Type>(foreign.get()));
        return result;
    } else {
        return {Type()};
    }
}

/** The same for a property; what would make Qt itself warn or take gigabytes is left out. */
QVariantList hostileValues(const QMetaProperty &property, bool own)
{
    static const QHash<QByteArray, QVariantList> special{
        {"styleSheet", {QString(), QStringLiteral("* { color: red }")}},
        {"inputMask", {QString(), QStringLiteral("99.99"), QStringLiteral("\\"), QString(10000, '9')}},
        {"maxCount", {0, 1, 100000}},
        {"maxVisibleItems", {0, 1, 100000}},
        {"windowModified", {}},
        {"selectionBehaviorOnRemove", {}},
        {"maximumWidth", {0, 16777215}},
        {"maximumHeight", {0, 16777215}},
        {"maximumSize", {QSize(0, 0), QSize(16777215, 16777215)}},
        {"minimumWidth", {0, 300}},
        {"minimumHeight", {0, 300}},
        {"minimum", {-1, 0, 1000000}}, // Qt divides by zero where a slider's range is beyond an int
        {"maximum", {-1, 0, 1000000}},
        {"lineWidth", {0, -1, 50}},
        {"midLineWidth", {0, -1, 50}},
    };
    const auto found = special.constFind(property.name());
    if (found != special.constEnd())
        return *found;
    QVariantList values;
    const int large = own ? intMax : 1000;
    if (property.isEnumType())
        for (const int value : {0, 1, -1, 99, intMax, intMin})
            values.append(value);
    else if (property.userType() == QMetaType::QString)
        for (const QString &text : hostileTexts())
            values.append(text);
    else if (property.userType() == QMetaType::Int)
        values = {0, 1, -1, large, -large};
    else if (property.userType() == QMetaType::Double)
        values = {0.0, -1.0, 1e300, infinity, std::nan("")};
    else if (property.userType() == QMetaType::Bool)
        values = {true, false};
    else if (property.userType() == QMetaType::QColor)
        values = {QColor(), QColor(1, 2, 3, 4)};
    else if (property.userType() == QMetaType::QFont)
        values = {QFont(), QFont(QStringLiteral("no such"), 90)};
    else if (property.userType() == QMetaType::QSize)
        values = {QSize(0, 0), QSize(1, 1), QSize(40, 300)};
    else if (property.userType() == QMetaType::QRect)
        values = {QRect(0, 0, 0, 0), QRect(-500, -500, 1, 1), QRect(0, 0, 40, 300)};
    else if (property.userType() == QMetaType::QPoint)
        values = {QPoint(-10000, -10000), QPoint(0, 0)};
    else
        values = {QVariant(property.userType(), nullptr)};
    return values;
}

/** Whether a class promises to keep \a value as it is, rather than to pass over it or bring it into range. */
bool isKept(const QMetaProperty &property, const QVariant &value)
{
    static const QSet<QByteArray> brought{"htmlText", "inputMask",        "value",         "minimum",
                                          "maximum",  "animationPercent", "cursorPosition"};
    if (brought.contains(property.name()))
        return false;
    if (!property.isEnumType())
        return !value.toString().contains(QLatin1String("<b>")); // as the label has it
    const QMetaEnum keys = property.enumerator();
    return keys.isFlag() ? value.toInt() == 1 : keys.valueToKey(value.toInt()) != nullptr;
}

// ---- setters that are no properties ----------------------------------------------------------------------

struct Setter
{
    const char *name;
    std::function<bool(QObject *)> call; // false if the object is none of the class
};

/** Calls \a setter with each combination of hostile arguments. */
template <typename Class, typename Result, typename... Arguments>
Setter each(const char *name, Result (Class::*setter)(Arguments...))
{
    return {name, [setter](QObject *object) {
                auto *target = dynamic_cast<Class *>(object);
                if (!target)
                    return false;
                size_t rounds = 1;
                for (size_t round = 0; round<rounds; round += rounds> 100 ? 7 : 1) {
                    // Anew each time: what was handed over may be gone.
                    size_t rest = round;
                    rounds = 1;
                    const auto next = [&](auto list) {
                        const size_t index = rest % list.size();
                        rest /= list.size();
                        rounds *= list.size();
                        return list[index];
                    };
                    // Braces: the arguments are taken in their order.
                    const std::tuple<std::decay_t<Arguments>...> arguments{
                        next(hostile<std::decay_t<Arguments>>(object))...};
                    std::apply([&](auto... value) { (target->*setter)(value...); }, arguments);
                }
                return true;
            }};
}

/** The same for a setter with one argument, whose getter gives back what the class takes as it is. */
template <typename Class, typename Argument, typename Value>
Setter kept(const char *name, void (Class::*setter)(Argument), Value (Class::*getter)() const)
{
    return {name, [=](QObject *object) {
                auto *target = dynamic_cast<Class *>(object);
                if (!target)
                    return false;
                for (const auto &value : hostile<std::decay_t<Argument>>(object)) {
                    (target->*setter)(value);
                    if (!((target->*getter)() == value))
                        qWarning("%s does not keep its value", name);
                }
                return true;
            }};
}

const std::vector<Setter> &setters()
{
    static const std::vector<Setter> all{
        kept("Action::setValueName", &Action::setValueName, &Action::valueName),
        kept("Action::setMacroText", &Action::setMacroText, &Action::macroText),
        kept("Action::setControlType", &Action::setControlType, &Action::controlType),
        each("AbstractButton::setHoverCursor", &AbstractButton::setHoverCursor),
        each("QPushButton::setMenu", &QPushButton::setMenu),
        each("Button::setShadowEnabled", &Button::setShadowEnabled),
        kept("IconButton::setIconButtonStyle", &IconButton::setIconButtonStyle, &IconButton::iconButtonStyle),
        kept("CheckBox::setExtraBorder", &CheckBox::setExtraBorder, &CheckBox::extraBorder),
        each("CheckBox::setText", &CheckBox::setText),
        each("Label::setText", &Label::setText),
        each("Label::setBuddy", &QLabel::setBuddy),
        kept("HairLine::setWeight", &HairLine::setWeight, &HairLine::weight),
        kept("HairLine::setOrientation", &HairLine::setOrientation, &HairLine::orientation),
        kept("HairLine::setColor", &HairLine::setColor, &HairLine::color),
        each("Separator::setText", &Separator::setText),
        each("Ribbon::selectTabByKey", &Ribbon::selectTabByKey),
        each("Ribbon::selectControlByKey", &Ribbon::selectControlByKey),
        each("Ribbon::showTab", &Ribbon::showTab),
        each("Ribbon::tabCurrentChanged", &Ribbon::tabCurrentChanged),
        each("Ribbon::onChangedAction", &Ribbon::onChangedAction),
        each("Ribbon::slotFocusChanged", &Ribbon::slotFocusChanged),
        each("Ribbon::addTab", qOverload<Action *>(&Ribbon::addTab)),
        each("RibbonTab::addGroup", &RibbonTab::addGroup),
        each("RibbonTab::addGroupObject", &RibbonTab::addGroupObject),
        each("RibbonTab::addExtraWidget", &RibbonTab::addExtraWidget),
        each("RibbonTab::getRemoveExtraWidget", &RibbonTab::getRemoveExtraWidget),
        each("RibbonTab::selectControlByKey", &RibbonTab::selectControlByKey),
        each("RibbonTab::groupKeyFocusChange", &RibbonTab::groupKeyFocusChange),
        each("RibbonGroup::addAction", &RibbonGroup::addAction),
        each("RibbonGroup::setFocus", qOverload<bool, int>(&RibbonGroup::setFocus)),
        each("RibbonGroup::selectControlByKey", &RibbonGroup::selectControlByKey),
        each("RibbonGroupObject::addAction", &RibbonGroupObject::addAction),
        each("RibbonControl::setFixSizeMode", &RibbonControl::setFixSizeMode),
        each("RibbonControl::setSizeMode", &RibbonControl::setSizeMode),
        each("RibbonGroupLayout::setText", &RibbonGroupLayout::setText),
        kept("RibbonCheckBox::setElideEnable", &RibbonCheckBox::setElideEnable,
             &RibbonCheckBox::elideEnabled),
        each("ToolBar::addAction", static_cast<void (ToolBar::*)(QAction *)>(&ToolBar::addAction)),
        each("ToolBarButton::setCounter", &ToolBarButton::setCounter),
        each("ToolBarGroup::addAction", &ToolBarGroup::addAction),
        kept("TabBar::setTabBarStyle", &TabBar::setTabBarStyle, &TabBar::tabBarStyle),
        each("SegmentedControl::setNotification", &SegmentedControl::setNotification),
        each("SegmentedControl::removeTab", &SegmentedControl::removeTab),
        each("ZoomSlider::setZoomLevels", &ZoomSlider::setZoomLevels),
        each("ZoomSlider::setPageWidthZoom", &ZoomSlider::setPageWidthZoom),
        each("ZoomSlider::setPageZoom", &ZoomSlider::setPageZoom),
        each("Dialog::setContent", &Dialog::setContent),
        each("Dialog::setWindowTitle", &Dialog::setWindowTitle),
        each("Dialog::setTitleBarVisible", &Dialog::setTitleBarVisible),
        each("Dialog::enableCloseButton", &Dialog::enableCloseButton),
        each("Dialog::enableMove", &Dialog::enableMove),
        each("Dialog::enableResize", &Dialog::enableResize),
        each("Dialog::setShadowEnabled", &Dialog::setShadowEnabled),
        each("Dialog::addButton", &Dialog::addButton),
        each("Dialog::setButtonText", &Dialog::setButtonText),
        each("Dialog::setDefaultButton", &Dialog::setDefaultButton),
        each("Dialog::setHelpFilePath", &Dialog::setHelpFilePath),
        each("Dialog::setHelpButtonText", &Dialog::setHelpButtonText),
        each("Dialog::setExtraActionBarWidget", &Dialog::setExtraActionBarWidget),
        each("Dialog::setActionBarDarkBackground", &Dialog::setActionBarDarkBackground),
        each("MessageBox::setCheckbox", &MessageBox::setCheckbox),
        each("SelectionMessageBoxBase::setInfoBox", &SelectionMessageBoxBase::setInfoBox),
        each("SelectionMessageBoxBase::setInfoBoxVisible", &SelectionMessageBoxBase::setInfoBoxVisible),
        each("SelectionMessageBoxBase::setCheckBoxText", &SelectionMessageBoxBase::setCheckBoxText),
        each("SelectionMessageBoxBase::setCheckBoxVisible", &SelectionMessageBoxBase::setCheckBoxVisible),
        each("Flyout::setPointerPosition", &Flyout::setPointerPosition),
        each("Flyout::setContent", &Flyout::setContent),
        each("Flyout::setTargetWidget", &Flyout::setTargetWidget),
        each("Accordion::addAccordionPart", &Accordion::addAccordionPart),
        each("Accordion::setState", &Accordion::setState),
        each("Accordion::setStateAnimated", &Accordion::setStateAnimated),
        each("Accordion::setFirstPartState", &Accordion::setFirstPartState),
        each("AccordionPart::setHeader", &AccordionPart::setHeader),
        each("AccordionPart::setContent", &AccordionPart::setContent),
        each("AccordionPart::setHeaderMargin", &AccordionPart::setHeaderMargin),
        each("AccordionPart::setSharedBorder", &AccordionPart::setSharedBorder),
        each("AccordionPart::setShadowEnabled", &AccordionPart::setShadowEnabled),
        each("AccordionPart::setNextPart", &AccordionPart::setNextPart),
        each("AccordionPart::setPreviousPart", &AccordionPart::setPreviousPart),
        each("AccordionPart::setLastAccordionPart", &AccordionPart::setLastAccordionPart),
        each("AccordionPart::setState", &AccordionPart::setState),
        each("AccordionPart::setStateAnimated", &AccordionPart::setStateAnimated),
        each("AccordionPart::animateExpand", &AccordionPart::animateExpand),
        each("AccordionPart::animateHide", &AccordionPart::animateHide),
        each("AccordionPart::animateToggle", &AccordionPart::animateToggle),
        each("AccordionSimpleHeader::setIndicatorSize", &AccordionSimpleHeader::setIndicatorSize),
        each("AccordionIndicator::setIndicatorSize", &AccordionIndicator::setIndicatorSize),
        kept("AccordionBoxIndicator::setColoredBoxState", &AccordionBoxIndicator::setColoredBoxState,
             &AccordionBoxIndicator::coloredBoxIndicatorStyle),
        each("RecyclingList::setSpacing", &RecyclingList::setSpacing),
        each("RecyclingList::setMarginTopBottom", &RecyclingList::setMarginTopBottom),
        each("RecyclingList::setMarginRight", &RecyclingList::setMarginRight),
        each("RecyclingList::visibleWidget", &RecyclingList::visibleWidget),
        each("RecyclingList::slotUpdateOne", &RecyclingList::slotUpdateOne),
        each("RecyclingList::slotScrollBarChanged", &RecyclingList::slotScrollBarChanged),
        each("RecyclingList::slotEnsureVisible", &RecyclingList::slotEnsureVisible),
        each("RecyclingList::setNothingWidgetLayout", &RecyclingList::setNothingWidgetLayout),
        each("RecyclingList::setAdapter", &RecyclingList::setAdapter),
        each("GroupBox::setLegend", &GroupBox::setLegend),
        each("InfoBox::setPixmap", &InfoBox::setPixmap),
        each("InfoBox::setIconAlignment", &InfoBox::setIconAlignment),
        each("InfoBox::setAdditionalWidget", &InfoBox::setAdditionalWidget),
        each("ScrollArea::ignoreRightAutoContent", &ScrollArea::ignoreRightAutoContent),
        each("ScrollAreaWithButton::setButtonMargins", &ScrollAreaWithButton::setButtonMargins),
        kept("ScrollButton::setStyle", &ScrollButton::setStyle, &ScrollButton::style),
        kept("ScrollButton::setDirection", &ScrollButton::setDirection, &ScrollButton::direction),
        each("ShadowSimple::useShadow", &ShadowSimple::useShadow),
        each("ShadowSimple::useDropShadow", &ShadowSimple::useDropShadow),
        each("ShadowSimple::setShadowEnabled", &ShadowSimple::setShadowEnabled),
        each("GraphicsEffect::setEnabled", &GraphicsEffect::setEnabled),
        each("GraphicsEffect::setPartialRect", &GraphicsEffect::setPartialRect),
        each("NumericEdit::setRange", &NumericEdit::setRange),
        each("DateEdit::setDate", &DateEdit::setDate),
        each("PeriodEdit::setDate", &PeriodEdit::setDate),
        kept("ComboBox::setComboBoxSize", &ComboBox::setComboBoxSize, &ComboBox::comboBoxSize),
        kept("ComboBox::setReadOnly", &ComboBox::setReadOnly, &ComboBox::isReadOnly),
        each("ComboBox::setShadowEnabled", &ComboBox::setShadowEnabled),
        each("LineEditWithButton::setUsername", &LineEditWithButton::setUsername),
        each("LineEditWithButton::setDataForCompleter", &LineEditWithButton::setDataForCompleter),
        each("CompleterSourceModel::setCompleterData", &CompleterSourceModel::setCompleterData),
        each("CompleterSourceModel::setMatchingText", &CompleterSourceModel::setMatchingText),
        each("CompleterSourceModel::removeRows", &CompleterSourceModel::removeRows),
        kept("OverviewButtonBase::setPartialDisabled", &OverviewButtonBase::setPartialDisabled,
             &OverviewButtonBase::partialDisabled),
        each("OverviewButton::setIcon", &OverviewButton::setIcon),
        each("OverviewButton::setStatus", &OverviewButton::setStatus),
        each("OverviewButton::setAccessory", &OverviewButton::setAccessory),
        each("OverviewButton3Children::setIcon", &OverviewButton3Children::setIcon),
        each("OverviewButton3Children::setRighSideTitle", &OverviewButton3Children::setRighSideTitle),
        each("OverviewButton3Children::setRighSideText", &OverviewButton3Children::setRighSideText),
        each("OverviewButton3Children::setRightSideVisible", &OverviewButton3Children::setRightSideVisible),
        kept("OverviewButtonWithWidget::setButtonLayout", &OverviewButtonWithWidget::setButtonLayout,
             &OverviewButtonWithWidget::buttonLayout),
        kept("OverviewButtonWithWidget::setHeadlineStyle", &OverviewButtonWithWidget::setHeadlineStyle,
             &OverviewButtonWithWidget::headlineStyle),
        each("OverviewButtonWithWidget::setIcon", &OverviewButtonWithWidget::setIcon),
        each("OverviewButtonWithWidget::setCheckState", &OverviewButtonWithWidget::setCheckState),
        each("OverviewButtonWithWidget::setLastLineMode", &OverviewButtonWithWidget::setLastLineMode),
        each("OverviewButtonWithWidget::setButtonEnabled", &OverviewButtonWithWidget::setButtonEnabled),
        each("ExpandingOverviewButton::setTextVisible", &ExpandingOverviewButton::setTextVisible),
        each("ExpandingOverviewButton::setIcon", &ExpandingOverviewButton::setIcon),
        each("ExpandingOverviewButton::setIconState", &ExpandingOverviewButton::setIconState),
        kept("ExpandingOverviewButton::setPath", &ExpandingOverviewButton::setPath,
             &ExpandingOverviewButton::path),
        each("ExpandingOverviewButton::setPaths", &ExpandingOverviewButton::setPaths),
        kept("BottomSideButton::setPath", &BottomSideButton::setPath, &BottomSideButton::path),
        each("BottomSideButton::setIconLeft", &BottomSideButton::setIconLeft),
        each("BottomSideButton::setStyle", &BottomSideButton::setStyle),
        each("BottomSideButton::setButtonStyle", &BottomSideButton::setButtonStyle),
        each("OverviewComboBox::addItem",
             qOverload<const QIcon &, const QString &, const QString &, const QString &, const QVariant &>(
                 &OverviewComboBox::addItem)),
        each("OverviewComboBox::insertActionItem", &OverviewComboBox::insertActionItem),
        each("OverviewComboBox::setItemTitle", &OverviewComboBox::setItemTitle),
        each("OverviewComboBox::setItemPath", &OverviewComboBox::setItemPath),
        each("OverviewComboBox::removeItem", &OverviewComboBox::removeItem),
    };
    return all;
}

} // namespace

/** Whether each class of the house takes whatever its setters are given. */
class TestSetters : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        owner = std::make_unique<QObject>();
        foreign = std::make_unique<QWidget>();
    }

    void classes_data()
    {
        QTest::addColumn<int>("factory");
        QTest::addColumn<int>("variant");
        for (size_t i = 0; i < factories().size(); ++i)
            for (const int variant : {0, 1})
                QTest::addRow("%s, %d", factories()[i].name, variant) << int(i) << variant;
    }

    void classes()
    {
        QFETCH(int, factory);
        QFETCH(int, variant);
        const auto look = withVariant(variant);
        const FontDeltaGuard delta;
        const auto make = factories()[size_t(factory)].make;

        pass(std::unique_ptr<QObject>(make(nullptr)).get(), false);
        pass(std::unique_ptr<QObject>(make(nullptr)).get(), true);
        QWidget window;
        window.resize(300, 200);
        window.show();
        const QPointer<QObject> child = make(&window);
        pass(child, variant == 0);
        delete child;
        // Made below one window, at home in another one.
        QWidget other;
        other.resize(300, 200);
        other.show();
        const QPointer<QObject> moved = make(&window);
        if (auto *widget = qobject_cast<QWidget *>(moved))
            widget->setParent(&other, widget->windowFlags());
        Css::instance().setFontDelta(4);
        pass(moved, false);
        delete moved;
    }

private:
    /** Everything to an object, before it is shown and after. */
    static void pass(const QPointer<QObject> &object, bool inherited)
    {
        if (object->parent() && object->isWidgetType())
            static_cast<QWidget *>(object.data())->resize(200, 100);
        if (auto *window = qobject_cast<QWidget *>(object); window && window->isWindow()) {
            window->setMinimumSize(50, 50); // no texts of 10000 characters on the screen's memory
            window->setMaximumSize(800, 600);
        }
        for (const bool shown : {false, true}) {
            auto *widget = qobject_cast<QWidget *>(object);
            if (widget)
                widget->setVisible(shown);
            writeProperties(object, inherited && shown);
            QVERIFY(object);
            for (const Setter &setter : setters()) {
                if (!setter.call(object))
                    continue;
                QVERIFY2(object, setter.name);
                settle(object);
            }
            foreign = std::make_unique<QWidget>(); // what was handed over and not taken dies
            settle(object);
            QVERIFY(object);
        }
    }

    static void writeProperties(const QPointer<QObject> &object, bool inherited)
    {
        for (int i = 0; i < object->metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = object->metaObject()->property(i);
            const bool own = isDeclaredHere(object->metaObject(), i);
            if (!property.isWritable() || !(own || inherited))
                continue;
            const QVariantList values = hostileValues(property, own);
            if (values.isEmpty())
                continue;
            const QVariant before = property.read(object);
            for (const QVariant &value : values) {
                const QVariant last = property.read(object);
                property.write(object, value);
                const QVariant now = property.read(object);
                const auto isNow = [&](const QVariant &wanted) {
                    return property.isEnumType() ? now.toInt() == wanted.toInt() : now == wanted;
                };
                if (own && isKept(property, value))
                    QVERIFY2(isNow(value), property.name());
                else if (own && property.isEnumType())
                    QVERIFY2(isNow(value) || isNow(last), property.name());
                settle(object);
                QVERIFY2(object, property.name());
            }
            property.write(object, before);
        }
    }

    /** Lets an object be asked, laid out and painted. */
    static void settle(const QPointer<QObject> &object)
    {
        if (auto *widget = qobject_cast<QWidget *>(object)) {
            widget->sizeHint();
            widget->minimumSizeHint();
        }
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    const Theme m_theme;
};

QTEST_MAIN(TestSetters)
#include "tst_setters.moc"
