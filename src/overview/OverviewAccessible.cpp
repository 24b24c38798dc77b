#include "overview/OverviewAccessible.h"

#include "buttons/AccessibleButton.h"
#include "overview/LeftSideButton.h"
#include "overview/RightSideButton.h"
#include "theme/StyleSupport.h"

#include <nvo/Label.h>
#include <nvo/OverviewButton.h>

#include <QTextDocumentFragment>

namespace NVO::OverviewAccessible {

namespace {

QString plain(const QString &html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

/** Those that say something, each as a line of its own. */
QString joined(const QStringList &htmls)
{
    QStringList lines;
    for (const QString &html : htmls)
        lines.append(plain(html));
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QString titleOf(const OverviewButton &tile)
{
    return tile.title();
}

QStringList textsOf(const OverviewButton &tile)
{
    return {tile.description(), tile.note(), tile.hint()};
}

template <typename Half>
QString titleOf(const Half &half)
{
    return half.title();
}

template <typename Half>
QStringList textsOf(const Half &half)
{
    return {half.text()};
}

template <typename Tile>
class AccessibleTile : public AccessibleButton
{
public:
    explicit AccessibleTile(Tile *tile)
        : AccessibleButton(tile)
    {}

    QString text(QAccessible::Text type) const override
    {
        const auto &tile = *static_cast<const Tile *>(button());
        QString text;
        if (type == QAccessible::Name && tile.accessibleName().isEmpty())
            text = plain(titleOf(tile));
        else if (type == QAccessible::Description && tile.accessibleDescription().isEmpty())
            text = joined(textsOf(tile));
        return text.isEmpty() ? AccessibleButton::text(type) : text;
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    using StyleSupport::exactly;
    if (auto *tile = exactly<OverviewButton>(className, object))
        return new AccessibleTile<OverviewButton>(tile);
    if (auto *left = exactly<LeftSideButton>(className, object))
        return new AccessibleTile<LeftSideButton>(left);
    if (auto *right = exactly<RightSideButton>(className, object))
        return new AccessibleTile<RightSideButton>(right);
    if (auto *tile = exactly<OverviewButtonBase>(className, object))
        return new AccessibleButton(tile);
    return nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

void setText(QWidget *tile, Label *label, const QString &text, QAccessible::Event change)
{
    const QString before = label->text();
    label->setText(text);
    if (label->text() == before)
        return;
    QAccessibleEvent event(tile, change);
    QAccessible::updateAccessibility(&event);
}

} // namespace NVO::OverviewAccessible
