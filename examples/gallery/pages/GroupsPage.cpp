#include "pages/GroupsPage.h"

#include "pages/ForcedState.h"
#include "pages/PageSupport.h"

#include <nvo/CheckBox.h>
#include <nvo/ComboBox.h>
#include <nvo/GroupBox.h>
#include <nvo/Label.h>

#include <QEvent>
#include <QGridLayout>
#include <QMetaEnum>
#include <QVBoxLayout>

namespace {

constexpr int captionWidth = 110;

NVO::GroupBox *makeGroup(const QString &title, NVO::GroupBox::GroupBoxStyle style)
{
    auto *group = new NVO::GroupBox;
    group->setTitle(title);
    group->setGroupBoxStyle(style);
    return group;
}

QString keyOf(NVO::GroupBox::GroupBoxStyle style)
{
    return QString::fromLatin1(QMetaEnum::fromType<NVO::GroupBox::GroupBoxStyle>().valueToKey(style));
}

NVO::ComboBox *makeChoice(const QStringList &items)
{
    auto *box = new NVO::ComboBox;
    box->addItems(items);
    return box;
}

QLayout *makeRow(const QString &caption, QWidget *field)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    NVO::Label *label = makeLabel(caption);
    label->setFixedWidth(captionWidth);
    row->addWidget(label);
    row->addWidget(field, 1);
    return row;
}

void fillForm(NVO::GroupBox *group)
{
    auto *rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addLayout(makeRow(QStringLiteral("Kontenrahmen"),
                            makeChoice({QStringLiteral("SKR 03"), QStringLiteral("SKR 04")})));
    rows->addLayout(
        makeRow(QStringLiteral("Versteuerung"),
                makeChoice({QStringLiteral("Soll-Versteuerung"), QStringLiteral("Ist-Versteuerung")})));
    rows->addWidget(new NVO::CheckBox(QStringLiteral("Dauerfristverlängerung")));
    rows->addStretch();
}

NVO::Label *makeLegend(const QString &text, NVO::GroupBox *group)
{
    NVO::Label *legend = makeCaption(text);
    legend->setParent(group);
    legend->setAlignment(Qt::AlignRight | Qt::AlignTop);
    legend->setContentsMargins(0, group->groupBoxStyle() == NVO::GroupBox::Overview ? 13 : 3, 0, 0);
    legend->adjustSize();
    return legend;
}

/** Shows the state of a row in a label. */
class StateReader : public QObject
{
public:
    StateReader(QLayout *row, NVO::Label *label)
        : QObject(row)
        , m_row(row)
        , m_label(label)
    {
        row->installEventFilter(this);
        read();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange)
            read();
        return QObject::eventFilter(watched, event);
    }

private:
    void read()
    {
        const QString state = m_row->property("state").toString();
        m_label->setText(state.isEmpty() ? QStringLiteral("–") : state);
    }

    QLayout *m_row;
    NVO::Label *m_label;
};

} // namespace

GroupsPage::GroupsPage()
{
    addStyles();
    addLegends();
    addChoices();
    addRows();
}

void GroupsPage::addStyles()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(16);
    for (const int style : {0, 1, 2, 3}) {
        for (const bool enabled : {true, false}) {
            const auto groupStyle = NVO::GroupBox::GroupBoxStyle(style);
            NVO::GroupBox *group = makeGroup(keyOf(groupStyle), groupStyle);
            fillForm(group);
            group->setEnabled(enabled);
            grid->addWidget(group, style, enabled ? 0 : 1);
        }
    }
    addSection(QStringLiteral("Vier Stile"), QStringLiteral("Links bedienbar, rechts deaktiviert."))
        ->addLayout(grid);
}

void GroupsPage::addLegends()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const auto style : {NVO::GroupBox::Paragraph, NVO::GroupBox::Overview}) {
        NVO::GroupBox *group = makeGroup(QStringLiteral("Umsatzsteuer 2026"), style);
        fillForm(group);
        group->setLegend(makeLegend(QStringLiteral("Stand: 17. April 2026"), group));
        row->addWidget(group);
    }
    addSection(
        QStringLiteral("Legende"),
        QStringLiteral("Ein kleines Element steht rechts oben und füllt den Streifen über dem Inhalt."))
        ->addLayout(row);
}

void GroupsPage::addChoices()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (const bool checked : {true, false}) {
        NVO::GroupBox *group =
            makeGroup(QStringLiteral("Mahnungen automatisch versenden"), NVO::GroupBox::Paragraph);
        group->setCheckable(true);
        group->setChecked(checked);
        fillForm(group);
        row->addWidget(group);
    }
    NVO::GroupBox *focused = makeGroup(QStringLiteral("Im Fokus"), NVO::GroupBox::Paragraph);
    focused->setCheckable(true);
    fillForm(focused);
    ForcedState::apply(focused, ForcedState::Focus);
    row->addWidget(focused);
    addSection(QStringLiteral("An- und abwählbar"),
               QStringLiteral("Eine abgewählte Gruppe deaktiviert ihren Inhalt."))
        ->addLayout(row);
}

void GroupsPage::addRows()
{
    NVO::GroupBox *group = makeGroup(QStringLiteral("Anschrift"), NVO::GroupBox::TopicChooser);
    auto *rows = new QVBoxLayout(group);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    for (const QString &caption :
         {QStringLiteral("Anrede"), QStringLiteral("Land"), QStringLiteral("Zahlungsart")}) {
        auto *row = static_cast<QHBoxLayout *>(
            makeRow(caption, makeChoice({QStringLiteral("Bitte wählen"), QStringLiteral("Aus Stammdaten")})));
        NVO::Label *state = makeCaption(QString(), NVO::Font::DEFAULT);
        state->setFixedWidth(captionWidth);
        row->addWidget(state);
        rows->addLayout(row);
        new StateReader(row, state);
    }
    addSection(QStringLiteral("Zustand der Zeilen"),
               QStringLiteral("Jede Zeile weiß, ob die Maus über ihr steht oder der Fokus in ihr ist."))
        ->addWidget(group);
}
