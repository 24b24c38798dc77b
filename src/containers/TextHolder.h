#pragma once

#include <QTextDocument>
#include <QVector>
#include <QWidget>

namespace NVO {

/**
 * Paints a rich text that is as wide as the widget, in its font and colour, and lets the links be clicked or
 * walked through with Tab.
 */
class TextHolder : public QWidget
{
    Q_OBJECT

public:
    explicit TextHolder(QWidget *parent);

    void setHtml(const QString &html);
    QString html() const { return m_document.toHtml(); }
    QString plainText() const { return m_document.toPlainText(); }

    /** The text of the link that the keyboard is on; empty if it is on none. */
    QString currentLinkText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /** A link was clicked, or opened with the keyboard. The widget may be deleted now. */
    void linkActivated(QString link);

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /** Where a link stands in the document. */
    struct Link
    {
        int begin;
        int end;
        QString target;
    };

    void findLinks();
    void setCurrentLink(int index);
    void followFont();
    void followDirection();
    void textChanged();
    int hintHeight() const;
    void layOut(int width) const;
    QString anchorAt(const QPointF &position) const;

    mutable QTextDocument m_document; // laid out anew for each width that is asked for
    mutable int m_hintHeight = -1;    // at the width of the size hint; -1 if it is not known
    QVector<Link> m_links;
    int m_currentLink = -1;
};

} // namespace NVO
