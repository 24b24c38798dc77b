#pragma once

// Every public class of the library.

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
#include <nvo/ShadowSimple.h>
