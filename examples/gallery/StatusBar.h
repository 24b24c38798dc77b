#pragma once

#include <QFrame>

class QTimer;

namespace NVO {
class Label;
class ZoomSlider;
} // namespace NVO

/** The lower edge of the window: what is being worked on, what has been done last, and the zoom. */
class StatusBar : public QFrame
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    /** Shows \a message beside the client and the period; empty: none. */
    void setMessage(const QString &message);

    /** The pixels by which the user wants all fonts to grow, and ten percent of zoom for each. */
    int fontDelta() const;
    void setFontDelta(int delta);

Q_SIGNALS:
    /** Comes after what mouse and keyboard have still to say, so that the slider never lags behind. */
    void fontDeltaRequested(int delta);

private:
    void connectZoom();
    void requestFontDelta();

    NVO::Label *m_text;
    NVO::ZoomSlider *m_zoom;
    QTimer *m_pause;
};
