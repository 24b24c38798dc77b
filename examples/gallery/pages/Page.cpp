#include "pages/Page.h"

#include "pages/PageSupport.h"

#include <nvo/Label.h>

#include <QVBoxLayout>

Page::Page()
    : m_sections(new QVBoxLayout)
{
    setObjectName(QStringLiteral("page"));
    setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    layout->setSpacing(0);
    layout->addLayout(m_sections);
    layout->addStretch();
    m_sections->setSpacing(pageMargin);
}

QVBoxLayout *Page::addSection(const QString &title, const QString &description)
{
    auto *section = new QVBoxLayout;
    section->setSpacing(4);
    section->addWidget(makeLabel(title, NVO::Font::HEADLINESMALL, LabelRole::Headline));
    NVO::Label *text = makeCaption(description, NVO::Font::DEFAULT);
    text->setWordWrap(true);
    section->addWidget(text);
    section->addSpacing(8);

    QFrame *card = makeGround(Ground::Card);
    auto *content = new QVBoxLayout(card);
    content->setContentsMargins(cardPadding, cardPadding, cardPadding, cardPadding);
    content->setSpacing(12);
    section->addWidget(card);
    m_sections->addLayout(section);
    return content;
}
