#pragma once

#include "TestResources.h"

#include <nvo/Css.h>

#include <QImage>
#include <QWidget>
#include <QtTest>

/** White tiles with black frames, and a colour for each state. */
class TileTheme
{
public:
    TileTheme() { NVO::Css::instance().reset(); }

private:
    TestResources m_resources{{
        {"Font", "[Size]\nDEFAULT=13\nHIGHLIGHT=17\n"},
        {"FontSizes", "[Element]\nOverviewButton=HIGHLIGHT\n"},
        {"OverviewButton",
         "NVO--OverviewButtonBase, #top, #middle, #bottom { background: white; border: 1px solid black; }\n"
         "NVO--OverviewButtonBase:hover, #lastLine[state=\"hover\"] { background: blue; }\n"
         "NVO--OverviewButtonBase:pressed { border: 2px solid red; }\n"
         "NVO--OverviewButtonBase[partialDisabled=\"true\"] { background: gray; }\n"
         "#lastLine { background: lime; }\n"
         "[WithoutLeftBorder=\"true\"], [rightToLeft=\"false\"] { border-left: none; }\n"
         "[WithoutRightBorder=\"true\"], [rightToLeft=\"true\"] { border-right: none; }\n"
         "[WithoutTopBorder=\"true\"], #middle, #bottom { border-top: none; }\n"
         "[WithoutBottomBorder=\"true\"], #middle { border-bottom: none; }\n"},
        {"Palette", "[Named]\nCOLOR_BIG_BUTTON_BACKGROUND=#ffffff\nCOLOR_BIG_BUTTON_BORDER=#000000\n"
                    "COLOR_BIG_BUTTON_BORDER_FOCUS=#ff0000\nCOLOR_BIG_BUTTON_BORDER_DISABLED=#00ff00\n"},
        {"arrow_right_dark_6x12", TestResources::png(6, 12, {0xff111111})},
        {"picture", TestResources::png(16, 16, {0xff111111})},
    }};
};

/** What a widget looks like at the ratio of the screen, on magenta and without its effect. */
class Picture
{
public:
    explicit Picture(QWidget *widget)
        : m_ratio(widget->devicePixelRatioF())
        , m_image(widget->size() * m_ratio, QImage::Format_RGB32)
    {
        m_image.setDevicePixelRatio(m_ratio);
        m_image.fill(Qt::magenta);
        widget->setGraphicsEffect(nullptr);
        widget->render(&m_image);
    }
    /** In the middle of a pixel of the widget. */
    QColor at(int x, int y) const
    {
        return m_image.pixelColor(int((x + 0.5) * m_ratio), int((y + 0.5) * m_ratio));
    }
    /** Whether some of the magenta shines through. */
    bool hasHoles() const
    {
        for (int y = 0; y < m_image.height(); ++y) {
            for (int x = 0; x < m_image.width(); ++x) {
                const QColor color = m_image.pixelColor(x, y);
                if (qMin(color.red(), color.blue()) > color.green() + 8)
                    return true;
            }
        }
        return false;
    }

private:
    qreal m_ratio;
    QImage m_image;
};

/** Shows \a window and gives it the focus. */
inline bool activate(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}
