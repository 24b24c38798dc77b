#pragma once

#include <nvo/Export.h>

#include <QFrame>
#include <QPixmap>

class QLabel;
class QVBoxLayout;

namespace NVO {

class TextHolder;

/**
 * A coloured notice: an icon if wanted, a rich text that wraps, and a widget below the text if wanted.
 *
 * The sheet of ElementInfoBox selects on the dynamic property "style", the key of the style, which a plain
 * box does not have, and on the object names "icon", "iconTextSpace" (the gap between icon and text, whose
 * width the sheet sets) and "html" (the text). The text has font and colour of the sheet; the font
 * delta does not reach it. The height goes by the width.
 *
 * Links are reached with Tab and opened with Return or Space, too.
 */
class NVO_EXPORT InfoBox : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(InfoBoxStyle infoBoxStyle READ infoBoxStyle WRITE setInfoBoxStyle)
    Q_PROPERTY(QString htmlText READ html WRITE setHtmlText)

public:
    enum InfoBoxStyle : int {
        Plain = 0,
        Info = 1,
        Highlight = 2,
        Success = 3,
        SuccessTransparent = 4,
        Error = 5,
        Advert = 6
    };
    Q_ENUM(InfoBoxStyle)

    explicit InfoBox(QWidget *parent = nullptr);

    InfoBoxStyle infoBoxStyle() const { return m_style; }

    /** Changes the look. A value that has no key is kept, but the look stays. */
    void setInfoBoxStyle(InfoBoxStyle style);

    /** Shows \a text, which is html; bold text gets the semibold face. */
    void setHtmlText(const QString &text);

    /** The text in the form in which a QTextDocument writes it, which is not the form it was given in. */
    QString html() const;

    /** Shows an icon, in its size in device-independent pixels. A null pixmap hides icon and gap. */
    void setPixmap(const QPixmap &pixmap);

    /** The last icon that was not null, whether it shows or not; null if there was none. */
    const QPixmap *pixmap() const;

    /** Where the icon stands in the height of the box; 0, as at first, lets it fill the height. */
    void setIconAlignment(Qt::Alignment alignment);

    /**
     * Puts \a widget, which becomes a child, below the text; null for none. A widget that was there is taken
     * out of the layout and is not deleted: it stays a child, where it stands, until the caller moves, hides
     * or deletes it. A widget that contains the box is ignored.
     */
    void setAdditionalWidget(QWidget *widget);
    QWidget *additionalWidget();

Q_SIGNALS:
    /** A link was clicked, or opened with the keyboard. The box may be deleted now. */
    void linkActivated(QString link);

private:
    void initStyleSheet();

    QLabel *m_iconLabel;
    QWidget *m_iconTextSpace;
    TextHolder *m_textHolder;
    QVBoxLayout *m_textColumn;
    InfoBoxStyle m_style = Plain;
    QPixmap m_pixmap; // the label's, which may be asked for by pointer
};

} // namespace NVO
