#include <nvo/Accordion.h>

#include "theme/StyleSupport.h"

#include <nvo/Product.h>

#include <QChildEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace NVO {

namespace {

constexpr bool never = false;
constexpr bool inVariant1 = true;

/** What a style says besides the sheet. */
struct StyleValues
{
    int horizontalMargin; // of the headers
    int verticalMargin;
    bool sharedBorder;
    int spacing;
    bool contentShadow;
};

// In the order of AccordionStyle.
constexpr std::array<StyleValues, 8> styleTable{{
    {1, 0, true, 0, inVariant1},   // Normal
    {0, 0, false, 0, never},       // Inline
    {1, 1, false, 10, inVariant1}, // Backstage
    {1, 1, false, 10, inVariant1}, // Booking
    {1, 0, false, 10, inVariant1}, // Migration
    {1, 0, false, 10, inVariant1}, // VaSt
    {1, 0, false, 10, inVariant1}, // MarkAsRead
    {1, 0, false, 0, never},       // Infocenter
}};

const StyleValues &valuesOf(Accordion::AccordionStyle style)
{
    return styleTable[style];
}

bool showsContentShadow(Accordion::AccordionStyle style)
{
    return valuesOf(style).contentShadow && Product::instance().variant == 1;
}

} // namespace

Accordion::Accordion(QWidget *parent)
    : QFrame(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    initStyleSheet();
}

void Accordion::addAccordionPart(AccordionPart *part)
{
    if (!part || m_parts.contains(part) || part->isAncestorOf(this))
        return;
    m_layout->addWidget(part);
    applyStyleToPart(part);
    part->setShadowEnabled(showsContentShadow(m_style));
    m_parts.append(part);
    linkParts();
    connect(part, &AccordionPart::stateChangeRequest, this, &Accordion::accordionStateChangeRequest);
}

void Accordion::applyStyleToPart(AccordionPart *part) const
{
    const StyleValues &values = valuesOf(m_style);
    part->setHeaderMargin(values.horizontalMargin, values.verticalMargin);
    part->setSharedBorder(values.sharedBorder);
}

/** Tells each part who stands above and below it, and which one is the last. */
void Accordion::linkParts()
{
    for (int i = 0; i < m_parts.size(); ++i) {
        if (!m_parts[i])
            continue;
        m_parts[i]->setPreviousPart(m_parts.value(i - 1));
        m_parts[i]->setNextPart(m_parts.value(i + 1));
        m_parts[i]->setLastAccordionPart(i + 1 == m_parts.size());
    }
}

void Accordion::childEvent(QChildEvent *event)
{
    if (event->removed())
        forgetPart(event->child());
    QFrame::childEvent(event);
}

/** \a part is being deleted, and only a QObject by now, or has got another parent. */
void Accordion::forgetPart(QObject *part)
{
    const auto leaving = [part](const QPointer<AccordionPart> &entry) { return !entry || entry == part; };
    const auto end = std::remove_if(m_parts.begin(), m_parts.end(), leaving);
    if (end == m_parts.end())
        return;
    m_parts.erase(end, m_parts.end());
    if (auto *alive = qobject_cast<AccordionPart *>(part)) {
        disconnect(alive, nullptr, this, nullptr);
        alive->setPreviousPart(nullptr);
        alive->setNextPart(nullptr);
        alive->setLastAccordionPart(false);
    }
    linkParts();
}

void Accordion::setAccordionStyle(AccordionStyle style)
{
    if (m_style == style || style < Normal || style > Infocenter)
        return;
    m_style = style;
    for (const QPointer<AccordionPart> &part : qAsConst(m_parts)) {
        if (part)
            applyStyleToPart(part);
    }
    // Contents that were opened before the first show are polished; Qt has them look at the sheet again only
    // if its widget is, too.
    if (!m_parts.isEmpty())
        ensurePolished();
    initStyleSheet();
}

void Accordion::initStyleSheet()
{
    setProperty("style", StyleSupport::enumKey(m_style));
    m_layout->setSpacing(valuesOf(m_style).spacing);
    for (const QPointer<AccordionPart> &part : qAsConst(m_parts)) {
        if (part)
            part->setShadowEnabled(showsContentShadow(m_style));
    }
    StyleSupport::applySheet(this, ElementAccordion);
}

void Accordion::setState(AccordionPart *part, AccordionState state)
{
    if (!part || !m_parts.contains(part) || part->state() == state)
        return;
    if (state == AccordionState::Hidden) {
        part->setState(AccordionState::Hidden);
        return;
    }
    // What hears of one change may be the end of any part.
    const QVector<QPointer<AccordionPart>> parts = m_parts;
    for (const QPointer<AccordionPart> &each : parts) {
        if (each)
            each->setState(each == part ? AccordionState::Expanded : AccordionState::Hidden);
    }
}

void Accordion::setStateAnimated(AccordionPart *part, AccordionState state)
{
    if (!part || !m_parts.contains(part) || part->state() == state)
        return;
    if (state == AccordionState::Hidden) {
        part->animateHide(1);
        return;
    }
    const QVector<QPointer<AccordionPart>> parts = m_parts;
    int speed = 1;
    for (const QPointer<AccordionPart> &each : parts) {
        if (!each)
            continue;
        if (each == part)
            each->animateExpand(speed++);
        else if (each->state() == AccordionState::Expanded)
            each->animateHide(speed++);
    }
}

AccordionState Accordion::state(AccordionPart *part) const
{
    return part ? part->state() : AccordionState::Hidden;
}

void Accordion::setFirstPartState(AccordionState state)
{
    if (!m_parts.isEmpty())
        setState(m_parts.first(), state);
}

void Accordion::accordionStateChangeRequest()
{
    auto *part = qobject_cast<AccordionPart *>(sender());
    if (!part)
        return;
    const bool isExpanded = part->state() == AccordionState::Expanded;
    setStateAnimated(part, isExpanded ? AccordionState::Hidden : AccordionState::Expanded);
}

} // namespace NVO
