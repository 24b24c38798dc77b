#pragma once

namespace NVO {

/**
 * The style-sheet resources, one for each value.
 *
 * The resource of an element is called like its key without "Element": ElementButton is ":/Button".
 * Css::css() gives the finished sheet of an element, Font::scaledFontSizeByElement() the size of its
 * text. Elements that no class of the library asks for are there for application code.
 */
enum Element : int {
    ElementAccordion = 0,
    ElementAccordionBoxIndicator = 1,
    ElementButton = 2,
    ElementBookingGroup = 3,
    ElementBookingWidget = 4,
    ElementBookingStarter = 5,
    ElementBookingTextItem = 6,
    ElementComboBox = 7,
    ElementCompleter = 8,
    ElementCheckBox = 9,
    ElementDateEdit = 10,
    ElementDialog = 11,
    ElementDialogButton = 12,
    ElementFlyout = 13,
    ElementGroupBox = 14,
    ElementFrameDialog = 15,
    ElementIconButton = 16,
    ElementInfoBox = 17,
    ElementLabel = 18,
    ElementLink = 19,
    ElementLineEdit = 20,
    ElementLineEditWithButton = 21,
    ElementNumericEdit = 22,
    ElementMessageBox = 23,
    ElementOverviewButton = 24,
    ElementOverviewComboBox = 25,
    ElementPeriodEdit = 26,
    ElementPixmapToggle = 27,
    ElementPushButton = 28,
    ElementRadioToggle = 29,
    ElementRibbonButton = 30,
    ElementRibbonCheckBox = 31,
    ElementRibbonGroupButton = 32,
    ElementRibbonGroup = 33,
    ElementRibbonGroupObject = 34,
    ElementRibbon = 35,
    ElementRibbonLabel = 36,
    ElementScrollBar = 37,
    ElementScrollButton = 38,
    ElementSelectionMessageBox = 39,
    ElementSeparator = 40,
    ElementSegmentedControl = 41,
    ElementTabBar = 42,
    ElementTimeEdit = 43,
    ElementToggle = 44,
    ElementToolBarGroup = 45,
    ElementToolBarButton = 46,
    ElementToolBarHiddenButton = 47,
    ElementToolBarWidget = 48,
    ElementZoomSlider = 49
};

} // namespace NVO
