#include <nvo/Separator.h>

#include "theme/StyleSupport.h"

#include <nvo/Label.h>

#include <QAccessibleWidget>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace NVO {

namespace {

/** One thing to assistive technology: a separator that is called like its word. */
class AccessibleSeparator : public QAccessibleWidget
{
public:
    explicit AccessibleSeparator(Separator *separator)
        : QAccessibleWidget(separator, QAccessible::Separator)
    {}

    QString text(QAccessible::Text type) const override
    {
        QString own = QAccessibleWidget::text(type);
        if (type != QAccessible::Name || !own.isEmpty())
            return own;
        const auto *separator = static_cast<const Separator *>(object());
        return QTextDocumentFragment::fromHtml(separator->text()).toPlainText();
    }

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *separator = StyleSupport::exactly<Separator>(className, object);
    return separator ? new AccessibleSeparator(separator) : nullptr;
}

} // namespace

Separator::Separator(QWidget *parent)
    : Separator(QStringLiteral("oder"), parent)
{}

Separator::Separator(const QString &text, QWidget *parent)
    : QWidget(parent)
{
    QAccessible::installFactory(createInterface);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    m_line1 = addLine();
    m_label = new Label;
    m_label->setObjectName(QStringLiteral("label"));
    m_label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    column->addWidget(m_label);
    m_line2 = addLine();

    setText(text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    StyleSupport::applySheet(this, ElementSeparator);
}

void Separator::setText(const QString &text)
{
    m_label->setText(text);
}

QString Separator::text() const
{
    return m_label->text();
}

/** A line below what is there already. */
QWidget *Separator::addLine()
{
    auto *line = new QWidget;
    line->setObjectName(QStringLiteral("line"));
    line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    static_cast<QVBoxLayout *>(layout())->addWidget(line, 0, Qt::AlignHCenter);
    return line;
}

} // namespace NVO
