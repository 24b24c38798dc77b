#pragma once

#include <nvo/AccordionPart.h>
#include <nvo/Export.h>

#include <QFrame>
#include <QPointer>
#include <QVector>

class QVBoxLayout;

namespace NVO {

/**
 * A column of parts of which the user opens one at a time: a click on a header opens its part and closes the
 * others, or closes it if it is open. No part is open at first.
 *
 * The look comes from the sheet of ElementAccordion, which selects on the dynamic property "style", the key
 * of the AccordionStyle. Parts that are deleted or get another parent leave the accordion by themselves.
 *
 * Parts share the room that an accordion has to spare, also the closed ones: put a stretch below it.
 *
 * Null, and parts that were not added, are ignored everywhere.
 */
class NVO_EXPORT Accordion : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(AccordionStyle accordionStyle READ accordionStyle WRITE setAccordionStyle)

public:
    /** The looks. Parts stand 10 pixels apart, or touch each other. */
    enum AccordionStyle : int {
        Normal = 0,     ///< Parts touch each other and share the lines between them.
        Inline = 1,     ///< Bare rows inside a form or another content; parts touch each other.
        Backstage = 2,  ///< Parts stand apart.
        Booking = 3,    ///< Parts stand apart.
        Migration = 4,  ///< Parts stand apart.
        VaSt = 5,       ///< Parts stand apart.
        MarkAsRead = 6, ///< Parts stand apart.
        Infocenter = 7  ///< Parts touch each other.
    };
    Q_ENUM(AccordionStyle)

    explicit Accordion(QWidget *parent = nullptr);

    /**
     * Adds \a part at the bottom. The accordion becomes its parent, and another accordion that had it loses
     * it. A part that is here already, and one that holds this accordion, are ignored.
     */
    void addAccordionPart(AccordionPart *part);

    /** Changes the look of the accordion and all of its parts. Values outside of the enum are ignored. */
    void setAccordionStyle(AccordionStyle style);
    AccordionStyle accordionStyle() const { return m_style; }

    /** Opens \a part and closes all others at once, or closes only \a part. */
    void setState(AccordionPart *part, AccordionState state);

    /**
     * The same with animations. If a part opens, they start in the order of the parts, each running faster
     * than the one before: 200 milliseconds, 100, 66 and so on.
     */
    void setStateAnimated(AccordionPart *part, AccordionState state);

    /** The state of \a part; null is Hidden. */
    AccordionState state(AccordionPart *part) const;

    /** setState() of the first part, if there is one. */
    void setFirstPartState(AccordionState state);

protected:
    void childEvent(QChildEvent *event) override;

private:
    void accordionStateChangeRequest();
    void initStyleSheet();
    void applyStyleToPart(AccordionPart *part) const;
    void linkParts();
    void forgetPart(QObject *part);

    QVector<QPointer<AccordionPart>> m_parts;
    AccordionStyle m_style = Normal;
    QVBoxLayout *m_layout;
};

} // namespace NVO
