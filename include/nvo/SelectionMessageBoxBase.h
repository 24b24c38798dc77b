#pragma once

#include <nvo/Dialog.h>
#include <nvo/InfoBox.h>

#include <QPixmap>
#include <QPointer>

namespace NVO {

class CheckBox;

/**
 * The frame of message boxes that offer a choice of large buttons: a caption, a sub-header, an info box on
 * top, a container for the buttons of the derived class, and a check box at the bottom. Info box and check
 * box are hidden at first. The class has no selection logic of its own.
 *
 * Sheets select on the object names "infoBox", "caption", "subHeader", "topSpacer", "bottomSpacer",
 * "frameCheckboxBar", "hairLineSpacer" and "SelectionMessageBoxCheckBox".
 */
class NVO_EXPORT SelectionMessageBoxBase : public Dialog
{
    Q_OBJECT

public:
    /** What a derived class needs for one choice: a picture and three texts. */
    struct ButtonBase
    {
        ButtonBase() = default;
        ButtonBase(const QPixmap &p_pixmap, const QString &p_title, const QString &p_description,
                   const QString &p_note)
            : pixmap(p_pixmap)
            , title(p_title)
            , description(p_description)
            , note(p_note)
        {}

        QPixmap pixmap;
        QString title;
        QString description;
        QString note;
    };

    /**
     * \a buttons is one button type or several of them; none is the default one. An empty \a caption or
     * \a subHeader leaves no place; both are rich text. The empty \a helpPath leaves no help button.
     */
    SelectionMessageBoxBase(QWidget *parent, const QString &title, const QString &caption,
                            const QString &subHeader, ButtonType buttons, const QString &helpPath);

    /** Fills the info box without showing it; see InfoBox. */
    void setInfoBox(InfoBox::InfoBoxStyle style, const QString &htmlText, const QPixmap &pixmap,
                    Qt::Alignment iconAlignment);
    void setInfoBoxVisible(bool visible);

    void setCheckBoxText(const QString &text);
    void setCheckBoxVisible(bool visible);
    void setCheckBoxChecked(bool checked);
    bool checkBoxIsChecked() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setVisible(bool visible) override;

Q_SIGNALS:
    /** A link in the caption was activated. */
    void linkActivated(QString p_link);

protected:
    /**
     * Where the buttons of the derived class go; its layout is a QVBoxLayout without margins. Null once
     * another content has been set.
     */
    QWidget *buttonsContainer() const { return m_buttonsContainerWidget; }

    bool event(QEvent *event) override;

private:
    void createContent(const QString &caption, const QString &subHeader);
    void createCheckBoxBar();
    void updateHairLineVisible();

    QPointer<InfoBox> m_infoBox; // dies with a content that is replaced, as do the frame and the container
    QPointer<QFrame> m_infoBoxFrame;
    QFrame *m_checkBoxBar = nullptr;
    CheckBox *m_checkBox = nullptr;
    HairLine *m_hairLine = nullptr;
    QWidget *m_hairLineSpacer = nullptr;
    QPointer<QWidget> m_buttonsContainerWidget;
};

} // namespace NVO
