#pragma once

#include <nvo/OverviewButtonBase.h>

#include <QList>
#include <QString>

class QGridLayout;

namespace NVO {

class Label;
class Pixmap;

/**
 * A tile with icon, title, description, note, hint, status and accessory, of which only what has content is
 * there. All texts are html, see Label.
 *
 * The sheet is that of ElementOverviewButton. Object names for it: "icon" and "titleLabel"; all labels carry
 * the key of the HeadlineStyle as their dynamic property "style".
 */
class NVO_EXPORT OverviewButton : public OverviewButtonBase
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString description READ description WRITE setDescription)
    Q_PROPERTY(QString note READ note WRITE setNote)
    Q_PROPERTY(QString hint READ hint WRITE setHint)
    Q_PROPERTY(Layout buttonLayout READ buttonLayout WRITE setButtonLayout)
    Q_PROPERTY(HeadlineStyle headlineStyle READ headlineStyle WRITE setHeadlineStyle)

public:
    /** Where the icon stands. */
    enum Layout : int {
        IconCenterLeft = 0, ///< Left of all texts, in the middle of the height.
        IconTopLeft = 1,    ///< Left of the title; description and note run below both.
        IconOnly = 2        ///< There is nothing but the icon, whatever else is set.
    };
    Q_ENUM(Layout)

    enum HeadlineStyle : int { Normal = 0, Big = 1 };
    Q_ENUM(HeadlineStyle)

    explicit OverviewButton(QWidget *parent = nullptr);

    QString title() const { return m_title; }
    void setTitle(const QString &title);

    /** Below the title. */
    QString description() const { return m_description; }
    void setDescription(const QString &description);

    /** Below the description. */
    QString note() const { return m_note; }
    void setNote(const QString &note);

    /** At the right of all these. */
    QString hint() const { return m_hint; }
    void setHint(const QString &hint);

    /** Of any size; a null pixmap takes the icon away. Hides QAbstractButton::setIcon(). */
    void setIcon(const QPixmap &icon);

    /** A picture at the right, which says how things are. A null pixmap takes it away. */
    void setStatus(const Pixmap &status);

    /** A picture at the right edge, such as an arrow. A null pixmap takes it away. */
    void setAccessory(const Pixmap &accessory);

    Layout buttonLayout() const { return m_buttonLayout; }

    /** Foreign values are taken for IconTopLeft. Margins depend on Product::variant at this moment. */
    void setButtonLayout(Layout layout);

    HeadlineStyle headlineStyle() const { return m_headlineStyle; }
    void setHeadlineStyle(HeadlineStyle style);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void initStyleSheet() override;

private:
    void createChildren();
    void setText(Label *label, QString &stored, const QString &text);
    void setPicture(Label *label, const QPixmap &picture);
    QList<Label *> styledLabels() const;
    void updateFontSizes();
    void updateVisiblity();

    QString m_title;
    QString m_description;
    QString m_note;
    QString m_hint;
    Label *m_iconLabel = nullptr;
    QWidget *m_iconSpacer = nullptr;
    QWidget *m_titleSpacer = nullptr;
    QWidget *m_descriptionSpacer = nullptr;
    Label *m_titleLabel = nullptr;
    Label *m_descriptionLabel = nullptr;
    Label *m_noteLabel = nullptr;
    QWidget *m_hintSpacer = nullptr;
    Label *m_hintLabel = nullptr;
    QWidget *m_statusSpacer = nullptr;
    Label *m_statusLabel = nullptr;
    QWidget *m_accessorySpacer = nullptr;
    Label *m_accessoryLabel = nullptr;
    Layout m_buttonLayout = IconCenterLeft;
    HeadlineStyle m_headlineStyle = Normal;
    QGridLayout *m_gridLayout = nullptr;
};

} // namespace NVO
