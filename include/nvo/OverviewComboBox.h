#pragma once

#include <nvo/Export.h>

#include <QComboBox>
#include <QPersistentModelIndex>
#include <QPointer>

#include <memory>

namespace NVO {

/**
 * A large combo box for overview pages, whose entries have an icon, a title, a description and a path.
 *
 * Title and description are rich text, where `<b>` and `<strong>` stand for the semibold face; the path is
 * plain text in the small size of the type scale and is elided in the middle. The icon takes 24 by 24 pixels.
 * The closed box shows the current entry just as the list does. Besides entries the list can hold action
 * items: one line of rich text that runs a command. An action item never stays current. Rich text keeps its
 * faces, its colours give way to that of the box or the row.
 *
 * Everything is painted from the item roles below, with what the sheet of ElementOverviewComboBox gives:
 * colours and font of the box, colours of the list, and a border of the list, which each row gets too. The
 * sheet should say "combobox-popup: 0", or Qt opens the list over the box. A view given with setView() comes
 * with its own delegate.
 *
 * The size hint is that of the largest item. The measured sizes are kept in the model, under CachedWidthRole
 * and CachedHeightRole, until a text, the font or the style changes. A model may be shared by boxes of the
 * same font only. The items have no display text, so currentText(), findText() and a search by typing know
 * nothing of them, unless setItemText() gives them one. Assistive technology reads the title as name and the
 * rest as description.
 *
 * Keyboard and wheel pass over action items and disabled entries without activated(). A handler of
 * currentIndexChanged() or actionTriggered() may use deleteLater(), but not delete the box at once: Qt still
 * works with it.
 */
class NVO_EXPORT OverviewComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** What an item holds besides Qt::DecorationRole, its icon, and Qt::UserRole, the data of the caller. */
    enum ItemRole : int {
        TitleRole = Qt::UserRole + 1,
        DescriptionRole,
        PathRole,
        IsActionRole,                         ///< bool: a command, not an entry.
        ActionTextRole,                       ///< The text of an action item.
        CachedWidthRole = Qt::UserRole + 100, ///< Pixels the content takes, int; invalid if not known.
        CachedHeightRole
    };

    explicit OverviewComboBox(QWidget *parent = nullptr);

    /** Appends an entry. This and insertItem() hide the functions of QComboBox of the same name. */
    void addItem(const QIcon &icon, const QString &title, const QString &description, const QString &path,
                 const QVariant &userData = QVariant());

    /**
     * Inserts an entry; an \a index outside of the list means its nearest end. With a model that is not a
     * QStandardItemModel nothing is inserted.
     */
    void insertItem(int index, const QIcon &icon, const QString &title, const QString &description,
                    const QString &path, const QVariant &userData = QVariant());

    /** Appends an action item. */
    void addActionItem(const QString &text);

    /** Inserts an action item, under the same conditions as an entry. */
    void insertActionItem(int index, const QString &text);

    /** Removes an entry or an action item; nothing happens if there is none. */
    void removeItem(int index);

    /** \name Texts of an entry
     * As they are shown: with the bold tags replaced. Empty if there is no such item; setting does nothing
     * then. */
    ///@{
    QString itemTitle(int index) const;
    QString itemDescription(int index) const;
    QString itemPath(int index) const;
    void setItemTitle(int index, const QString &title);
    void setItemDescription(int index, const QString &description);
    void setItemPath(int index, const QString &path);
    ///@}

    /** The pixels that an item asks for, at least 46 high; an invalid size if there is no such item. */
    QSize sizeHintForItem(int index) const;

    /**
     * Paints an item into \a rect, its texts in \a color and without a ground; nothing if there is no such
     * item. Box and list are both painted with it. Contents are centred in the height of the box where
     * \a rect is not lower.
     */
    void paint(QPainter *painter, const QRect &rect, int index, const QColor &color) const;

    /** Large enough for each of the items; (0, 0) without any. */
    QSize sizeHint() const override;
    bool event(QEvent *event) override;
    void showPopup() override;

Q_SIGNALS:
    /**
     * The action item at \a index was chosen. The entry that was current before is current again, without a
     * second currentIndexChanged(). Not emitted for an action item that becomes current only because rows
     * came or went; no entry is current then.
     */
    void actionTriggered(int index);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void slotIndexChanged(int p_newIndex);

private:
    void initStyleSheet();
    static QString prepareText(const QString &text);
    void insertRow(int index, const QVector<QPair<int, QVariant>> &content);
    void setText(int index, ItemRole role, const QString &text);
    QModelIndex modelIndex(int index) const;
    bool isEntry(int index) const;
    int findEntry(int from, int step) const;
    void selectEntry(int index);

    void watchModel();
    void dataChanged(const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles);
    void forgetSizes(int first, int last);
    void keepSize(const QModelIndex &item, const QVariant &width, const QVariant &height) const;
    QSize contentSize(const QModelIndex &item) const;

    QPersistentModelIndex m_lastIndex; // the current entry that is not an action
    QPointer<QAbstractItemModel> m_model;
    std::unique_ptr<QObject> m_modelWatch;
    bool m_rowsChange = false;
    mutable QSize m_largestHint;                   // invalid if not known
    mutable QPersistentModelIndex m_largestHintOf; // the first item when it was computed
};

} // namespace NVO
