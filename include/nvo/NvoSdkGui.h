#pragma once

// Every public class of the library.

#include <nvo/Action.h>
#include <nvo/Button.h>
#include <nvo/Css.h>
#include <nvo/Element.h>
#include <nvo/Export.h>
#include <nvo/Font.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/Icon.h>
#include <nvo/Label.h>
#include <nvo/Palette.h>
#include <nvo/Pixmap.h>
#include <nvo/Product.h>
#include <nvo/Ribbon.h>
#include <nvo/RibbonButton.h>
#include <nvo/RibbonCheckBox.h>
#include <nvo/RibbonControl.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupLayout.h>
#include <nvo/RibbonGroupObject.h>
#include <nvo/RibbonLabel.h>
#include <nvo/RibbonLayoutHelper.h>
#include <nvo/RibbonLayoutItem.h>
#include <nvo/RibbonTab.h>
#include <nvo/ShadowSimple.h>
