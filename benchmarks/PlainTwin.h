#pragma once

#include <QFont>
#include <QIcon>
#include <QMargins>
#include <QPixmap>
#include <QRect>
#include <QSizePolicy>
#include <QVariant>
#include <QVector>

class QWidget;

/**
 * What somebody without our library would write for the same window: for each of our widgets the Qt class
 * that it derives from, with the same sheet, name, properties, text and pictures, in grids with the same rows
 * and columns. What Qt makes itself inside its widgets is left to it.
 */
class PlainTwin
{
public:
    /** Writes down \a widget and all in it as they stand; it is on screen. */
    explicit PlainTwin(const QWidget *widget);

    /** A shadow becomes that of Qt. */
    QWidget *build(QWidget *parent) const;

    /** How many widgets build() makes. */
    int count() const;

    QSize size() const { return m_geometry.size(); }

private:
    struct Bar
    {
        Qt::Orientation orientation;
        QString sheet;
        QVariant style;
    };

    void noteContents(const QWidget *widget);
    void noteChildren(const QWidget *widget);
    void fill(QWidget *widget) const;
    void fillChildren(QWidget *widget) const;

    QByteArray m_class; // of Qt
    QString m_name;
    QString m_sheet;
    QVector<QPair<QByteArray, QVariant>> m_properties;
    bool m_hidden = false;
    QRect m_geometry;
    QSize m_minimum;
    QSize m_maximum;
    QSizePolicy m_policy;
    QVariant m_font; // where it has been set
    QString m_text;
    QIcon m_icon;
    QSize m_iconSize;
    QPixmap m_pixmap;
    bool m_wrapped = false;
    bool m_shadow = false;
    QStringList m_items;
    QVector<Bar> m_bars;
    bool m_laidOut = false;
    QMargins m_margins;
    QVector<PlainTwin> m_children;
};
