#pragma once

#include <nvo/Export.h>

#include <QLabel>
#include <QString>

class QFontMetricsF;

namespace NVO {

/**
 * A label that always shows rich text, with bold text and headings in the semibold face, and that can
 * cut a text which does not fit, on one line or several.
 *
 * From the first change of the font delta on, the label shows the font size that its owner gave it until then
 * plus Css::fontDelta(). A click on a link ends at the label, any other click goes on to its parent.
 */
class NVO_EXPORT Label : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool elideEnabled READ isElideEnabled WRITE enableElide)

public:
    explicit Label(QWidget *parent = nullptr);
    explicit Label(const QString &text, QWidget *parent = nullptr);

    /**
     * Shows \a text, which is html. Bold tags become spans in the semibold face, "&lpar;" and "&rpar;"
     * become brackets. Hides QLabel::setText(): callers through a QLabel bypass it.
     */
    void setText(const QString &text);

    /** The text as it is shown, after what setText() replaced. */
    QString text() const { return m_text; }

    /** Whether anything but white space is there, be it markup. */
    bool hasContent() const;

    /**
     * Whether a text that does not fit is cut with an ellipsis. Such a label paints plain text in its own
     * font and colour, links included.
     */
    void enableElide(bool enable);
    bool isElideEnabled() const { return m_elideEnabled; }

    /** Whether the text was cut when it was last painted. */
    bool isElided() const { return m_elided; }

public Q_SLOTS:
    /** Shows the empty text. */
    void clear();

Q_SIGNALS:
    /** The text is cut now and was not before, or the other way round. Emitted while painting. */
    void elisionChanged(bool p_elided = false);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateFontSizes();
    bool paintElided();
    qreal elidedTop(const QFontMetricsF &metrics) const;

    bool m_elided = false;
    bool m_elideEnabled = false;
    bool m_linkHovered = false;
    int m_basePixelSize = -1;
    QString m_text;
    QString m_plainText; // of m_text, from the first elided paint on
};

} // namespace NVO
