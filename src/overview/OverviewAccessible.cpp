#include "overview/OverviewAccessible.h"

#include "buttons/AccessibleButton.h"
#include "overview/LeftSideButton.h"
#include "overview/RightSideButton.h"
#include "overview/TopSideButton.h"
#include "theme/StyleSupport.h"

#include <nvo/BottomSideButton.h>
#include <nvo/ExtraSearchResultButton.h>
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

QString htmlOf(const ExpandingOverviewButton::Path &path)
{
    return path.elements.join(QStringLiteral(" > ")).toHtmlEscaped();
}

QStringList textsOf(const TopSideButton &top)
{
    return {top.isTextVisible() ? top.text() : QString(),
            top.isExpandable() ? top.expandText() : htmlOf(top.path())};
}

QStringList textsOf(const BottomSideButton &row)
{
    return {htmlOf(row.path())};
}

QString titleOf(const ExtraSearchResultButton &tile)
{
    return tile.text();
}

QStringList textsOf(const ExtraSearchResultButton &)
{
    return {};
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

ExpandingOverviewButton *expandingTile(QWidget *section)
{
    QWidget *widget = section->parentWidget();
    while (widget && !qobject_cast<ExpandingOverviewButton *>(widget))
        widget = widget->parentWidget();
    return static_cast<ExpandingOverviewButton *>(widget);
}

/** A section of an expanding tile is a child of the tile, whatever is between them. */
template <typename Section>
class AccessibleSection : public AccessibleTile<Section>
{
public:
    using AccessibleTile<Section>::AccessibleTile;

    QAccessibleInterface *parent() const override
    {
        ExpandingOverviewButton *tile = expandingTile(this->button());
        return tile ? QAccessible::queryAccessibleInterface(tile) : AccessibleTile<Section>::parent();
    }
};

class AccessibleTop : public AccessibleSection<TopSideButton>
{
public:
    using AccessibleSection::AccessibleSection;

    QAccessible::State state() const override
    {
        const auto &top = *static_cast<const TopSideButton *>(button());
        QAccessible::State state = AccessibleSection::state();
        state.expandable = top.isExpandable();
        state.expanded = top.isExpandable() && top.isPartExpanded();
        state.collapsed = top.isExpandable() && !top.isPartExpanded();
        return state;
    }
};

/** The buttons of an expanding tile that can be seen, without the part of an accordion around them. */
class AccessibleExpandingTile : public QAccessibleWidget
{
public:
    explicit AccessibleExpandingTile(ExpandingOverviewButton *tile)
        : QAccessibleWidget(tile, QAccessible::Grouping)
    {}

    int childCount() const override { return sections().size(); }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(sections().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child ? sections().indexOf(qobject_cast<OverviewButtonBase *>(child->object())) : -1;
    }
    QString text(QAccessible::Text type) const override
    {
        const QString own = QAccessibleWidget::text(type);
        return type == QAccessible::Name && own.isEmpty() ? plain(tile()->title()) : own;
    }

private:
    ExpandingOverviewButton *tile() const { return static_cast<ExpandingOverviewButton *>(object()); }
    QList<OverviewButtonBase *> sections() const
    {
        QList<OverviewButtonBase *> sections;
        for (OverviewButtonBase *section : tile()->findChildren<OverviewButtonBase *>()) {
            if (section->isVisibleTo(tile()))
                sections.append(section);
        }
        return sections;
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
    if (auto *top = exactly<TopSideButton>(className, object))
        return new AccessibleTop(top);
    if (auto *row = exactly<BottomSideButton>(className, object))
        return new AccessibleSection<BottomSideButton>(row);
    if (auto *tile = exactly<ExtraSearchResultButton>(className, object))
        return new AccessibleTile<ExtraSearchResultButton>(tile);
    if (auto *tile = exactly<ExpandingOverviewButton>(className, object))
        return new AccessibleExpandingTile(tile);
    if (auto *tile = exactly<OverviewButtonBase>(className, object))
        return new AccessibleButton(tile);
    return nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(createInterface);
}

void tell(QWidget *tile, QAccessible::Event change)
{
    QAccessibleEvent event(tile, change);
    QAccessible::updateAccessibility(&event);
}

void setText(QWidget *tile, Label *label, const QString &text, QAccessible::Event change)
{
    const QString before = label->text();
    label->setText(text);
    if (label->text() != before)
        tell(tile, change);
}

} // namespace NVO::OverviewAccessible
