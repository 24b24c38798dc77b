#pragma once

#include <nvo/Label.h>

#include <QEvent>

namespace NVO {

/** A label whose size the tile around it sets anew with each change of the font delta. */
class TileLabel : public Label
{
public:
    using Label::Label;

protected:
    bool event(QEvent *event) override
    {
        // A label would add the delta once more if it hears of it after the tile.
        return event->type() == QEvent::ApplicationFontChange ? QLabel::event(event) : Label::event(event);
    }
};

} // namespace NVO
