#include <nvo/InfoBox.h>

#include "containers/TextHolder.h"
#include "theme/Ancestry.h"
#include "theme/StyleSupport.h"

#include <nvo/Css.h>

#include <QLabel>
#include <QVBoxLayout>

namespace NVO {

InfoBox::InfoBox(QWidget *parent)
    : QFrame(parent)
    , m_iconLabel(new QLabel(this))
    , m_iconTextSpace(new QWidget(this))
    , m_textHolder(new TextHolder(this))
    , m_textColumn(new QVBoxLayout)
{
    m_iconLabel->setObjectName(QStringLiteral("icon"));
    m_iconLabel->hide();
    m_iconTextSpace->setObjectName(QStringLiteral("iconTextSpace"));
    m_iconTextSpace->hide();
    m_textHolder->setObjectName(QStringLiteral("html"));
    m_textColumn->addWidget(m_textHolder, 1);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_iconLabel);
    row->addWidget(m_iconTextSpace);
    row->addLayout(m_textColumn, 1); // the icon is not to be wider than it is

    connect(m_textHolder, &TextHolder::linkActivated, this, &InfoBox::linkActivated);
    initStyleSheet();
}

void InfoBox::setInfoBoxStyle(InfoBoxStyle style)
{
    m_style = style;
    initStyleSheet();
}

void InfoBox::initStyleSheet()
{
    const QString key = StyleSupport::enumKey(m_style);
    if (m_style == Plain)
        setProperty("style", QVariant());
    else if (!key.isEmpty())
        setProperty("style", key);
    StyleSupport::applySheet(this, ElementInfoBox);
}

void InfoBox::setHtmlText(const QString &text)
{
    m_textHolder->setHtml(Css::instance().replaceBoldTags(text));
}

QString InfoBox::html() const
{
    return m_textHolder->html();
}

void InfoBox::setPixmap(const QPixmap &pixmap)
{
    if (!pixmap.isNull()) {
        m_pixmap = pixmap;
        m_iconLabel->setPixmap(pixmap);
    }
    m_iconLabel->setVisible(!pixmap.isNull());
    m_iconTextSpace->setVisible(!pixmap.isNull());
}

const QPixmap *InfoBox::pixmap() const
{
    return m_pixmap.isNull() ? nullptr : &m_pixmap;
}

void InfoBox::setIconAlignment(Qt::Alignment alignment)
{
    layout()->setAlignment(m_iconLabel, alignment);
}

void InfoBox::setAdditionalWidget(QWidget *widget)
{
    if (widget && Ancestry::contains(widget, this))
        return;
    delete m_textColumn->takeAt(1);
    if (widget)
        m_textColumn->addWidget(widget);
}

QWidget *InfoBox::additionalWidget()
{
    QLayoutItem *item = m_textColumn->itemAt(1);
    return item ? item->widget() : nullptr;
}

} // namespace NVO
