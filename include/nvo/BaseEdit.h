#pragma once

#include <nvo/Element.h>
#include <nvo/Export.h>

#include <QLineEdit>

namespace NVO {

/**
 * The base of the single-line text fields: a line edit with the sheet of an element, in five looks.
 *
 * The sheet selects on the dynamic property "style", the key of the LineEditStyle. While Product::variant is
 * 0 at construction, the field gets a shadow that makes it look sunken; a later change of the variant leaves
 * the effect as it is. Text, selection, signals and what assistive tools are told are those of QLineEdit.
 */
class NVO_EXPORT BaseEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(LineEditStyle lineEditStyle READ lineEditStyle WRITE setLineEditStyle)

public:
    /** The looks. */
    enum LineEditStyle : int {
        Normal = 0,
        Error = 1, ///< What is entered cannot stay so.
        Info = 2,  ///< What is entered deserves a look.
        VaSt = 3,  ///< What is entered was filled in from data fetched elsewhere.
        Due = 4    ///< An entry is due here.
    };
    Q_ENUM(LineEditStyle)

    /** A field of the style Normal with the sheet of \a element; one that is out of range has none. */
    BaseEdit(Element element, QWidget *parent);

    LineEditStyle lineEditStyle() const { return m_lineEditStyle; }

    /** Changes the look; text, cursor, selection and focus stay. */
    void setLineEditStyle(LineEditStyle style);

    /** The hint of QLineEdit, and at least 25 pixels high. */
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    void initStyleSheet();

    Element m_element;
    LineEditStyle m_lineEditStyle = Normal;
};

} // namespace NVO
