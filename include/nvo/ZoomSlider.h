#pragma once

#include <nvo/Export.h>

#include <QPointer>
#include <QVector>
#include <QWidget>

class QAction;
class QHBoxLayout;
class QMenu;
class QPushButton;
class QSlider;

namespace NVO {

class Link;

/**
 * The zoom strip of a status bar: a slider between a minus and a plus button, a link that shows the
 * percentage and opens a menu of fixed values, and two buttons for the height and the width of a page.
 *
 * It holds an integer percentage, of 10 to 200 and 100 at first; what a value means is the application's
 * business. Where there is less room than its size hint asks for, slider, minus and plus are hidden, and the
 * minimum size leaves room for the rest. Only the slider takes the focus, which the buttons and the menu hand
 * to it, as does setFocus() of the strip.
 *
 * It is painted by the sheet of ElementZoomSlider. The link is Link::FlyoutLight where Product::variant is 1
 * at construction and Link::FlyoutDark otherwise, and as wide as three digits in the font of the strip need.
 *
 * What is connected to its signals may delete the strip.
 */
class NVO_EXPORT ZoomSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)

public:
    explicit ZoomSlider(QWidget *parent = nullptr);
    ~ZoomSlider() override;

    /** In percent. A value beyond the range becomes the nearest one within it. */
    int value() const;
    void setValue(int value);

    /** The range, in percent. A limit beyond the other one moves that, too, and the value follows both. */
    int minimum() const;
    int maximum() const;
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /** Whether the value changes while the mouse drags the slider (true at first) or at the release. */
    bool hasTracking() const;
    void setTracking(bool enable);

    /**
     * Fills the menu with an entry for each of \a p_levels (200, 100, 75 and 50 percent at first), in this
     * order, a separator, and the entries "Seitenbreite" and "Ganze Seite" with the values that they had.
     * A level beyond the range is shown and leads to the nearest value within it.
     */
    void setZoomLevels(const QVector<int> &p_levels);

    /** \name Values of the entries "Seitenbreite" (110 at first) and "Ganze Seite" (90), in percent
     * Lost if somebody has deleted the entry, until setZoomLevels() makes it anew. */
    ///@{
    void setPageWidthZoom(int p_value);
    void setPageZoom(int p_value);
    ///@}

    /** Wide enough for the whole strip, whether or not the slider is hidden. */
    QSize sizeHint() const override;
    /** Wide enough for the link and the buttons of the page. */
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** \a p_value is the new percentage. */
    void valueChanged(int p_value);
    /** The button for the height of a page or the entry "Ganze Seite" has been chosen. Only the entry has
     * set the value before. */
    void pageZoomTriggered();
    /** The same for the button for the width of a page and the entry "Seitenbreite". */
    void pageWidthZoomTriggered();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void initStyleSheet();
    void buildSliderPart();
    void buildButtonPart();
    QPushButton *createButton(QWidget *parent);
    QPushButton *addButton(QHBoxLayout *layout, const QString &icon, const QString &toolTip);
    QAction *createZoomAction(QMenu *menu, int value, void (ZoomSlider::*signal)());
    QMenu *emptyMenu();
    void minusClicked();
    void plusClicked();
    void step(int action);
    void slotValueChanged(int p_value);
    void zoomActionTriggered(const QAction *action);
    void reserveLinkWidth();

    QSlider *m_slider;
    Link *m_link = nullptr;
    QPointer<QAction> m_pageWidthAction;
    QPointer<QAction> m_pageZoomAction;
    QWidget *m_sliderPart;
    QWidget *m_buttonPart;
};

} // namespace NVO
