#include "TestCase.h"

#include "ribbon/RibbonGeometry.h"
#include "ribbon/RibbonLayout.h"

#include <nvo/Action.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupLayout.h>

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>

#include <array>
#include <memory>

using namespace NVO;
using Mode = RibbonControl::SizeMode;

namespace {

using Asked = QVector<QPair<int, int>>; // control and mode

/** A control that is not the library's: it writes down what it is asked. */
class ForeignControl : public QWidget, public RibbonControl
{
public:
    ForeignControl(int number, Asked *asked)
        : m_number(number)
        , m_asked(asked)
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    using RibbonControl::sizeFromMode;
    void updateLayout() override {}
    QSize sizeFromMode(SizeMode mode, bool minimum) const override
    {
        if (m_asked)
            m_asked->append({m_number, mode});
        return minimum ? sizes[mode] : sizes[mode] + QSize(3, 1);
    }
    QSize sizeHint() const override { return sizes[sizeMode()] + QSize(1, 1); }
    bool controlVisible() const override { return visible; }

    std::array<QSize, 3> sizes{QSize(), QSize(20, 10), QSize(40, 30)};
    bool visible = true;

private:
    int m_number;
    Asked *m_asked;
};

struct GroupFixture
{
    explicit GroupFixture(int count, QRandomGenerator *random = nullptr)
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setText("Caption");
        for (int i = 0; i < count; ++i) {
            auto *control = new ForeignControl(i, &asked);
            layout->addWidget(control);
            controls.append(control);
            if (!random)
                continue;
            control->visible = random->bounded(6) > 0;
            control->setFixSizeMode(Mode(qMax(random->bounded(5) - 2, 0)));
            for (const int mode : {1, 2})
                control->sizes[size_t(mode)] = QSize(5 + random->bounded(120), 5 + random->bounded(30));
        }
    }

    /** The visible controls, and what the geometry behind the layout needs to know of them. */
    QVector<ForeignControl *> visible() const
    {
        QVector<ForeignControl *> result;
        std::copy_if(controls.begin(), controls.end(), std::back_inserter(result),
                     [](const ForeignControl *control) { return control->visible; });
        return result;
    }

    Asked asked;
    QWidget panel;
    RibbonGroupLayout *layout = new RibbonGroupLayout(&panel);
    QVector<ForeignControl *> controls;
};

std::unique_ptr<Action> action(const QString &text, int type)
{
    auto result = std::make_unique<Action>(text);
    result->setControlType(Action::CommandType(type));
    return result;
}

} // namespace

class TestRibbonLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controlsOfAGroup();
    void sizesOfAGroup();
    void groupsOfAPage();
    void sizesOfAPage();
    void groupFixedToSmallCollapses();
    void helperKeys();
};

void TestRibbonLayout::controlsOfAGroup()
{
    QRandomGenerator random(11);
    for (int run = 0; run < 120; ++run) {
        GroupFixture group(random.bounded(10), &random);
        const int margin = run % 2 * 2;
        group.layout->setContentsMargins(margin, margin, margin, margin);
        const QVector<ForeignControl *> visible = group.visible();
        const int captionHeight = group.layout->getLabel()->sizeHint().height();
        for (int step = 0; step < 12; ++step) {
            const QRect rect(0, 0, 10 + random.bounded(900), 100);
            const QRect inner = rect.adjusted(margin, margin, -margin, -margin);
            QVector<RibbonGeometry::Control> states;
            for (const ForeignControl *control : visible)
                states.append({control->sizeMode(), control->fixSizeMode()});
            Asked expected;
            const auto columns =
                RibbonGeometry::columnsForWidth(states, inner.width(), 2, [&](int i, Mode mode) {
                    expected.append({group.controls.indexOf(visible[i]), mode});
                    return visible[i]->sizes[mode];
                });
            group.asked.clear();
            group.layout->setGeometry(rect);

            int x = margin;
            for (const RibbonGeometry::Column &column : columns) {
                const Mode mode = RibbonGeometry::columnMode(states, column, columns.size() == 1);
                int width = 0;
                for (const int i : column.controls) {
                    expected.append({group.controls.indexOf(visible[i]), mode});
                    width = qMax(width, visible[i]->sizes[mode].width());
                }
                int y = margin;
                for (const int i : column.controls) {
                    QSize size = visible[i]->sizes[mode] + QSize(1, 1);
                    if (mode == RibbonControl::Large)
                        size.setHeight(inner.height() - captionHeight - 2);
                    else
                        size.setWidth(width);
                    QCOMPARE(visible[i]->sizeMode(), mode);
                    QCOMPARE(visible[i]->geometry(), QRect(QPoint(x, y), size));
                    y += size.height() + 2;
                }
                x += width + 5;
            }
            QVERIFY(group.asked == expected);
            QCOMPARE(group.layout->getLabel()->geometry(),
                     QRect(QPoint(margin, inner.bottom() - captionHeight), inner.bottomRight()));
            // The columns that the keyboard walks are those that show, unless a mode has just changed.
            group.layout->setGeometry(rect);
            group.layout->setGeometry(rect);
            QList<QWidget *> walked;
            for (const RibbonLayoutHelper &column : group.layout->getWidgets()) {
                for (const RibbonLayoutItem &item : column) {
                    QCOMPARE(item.widget->x(), column.first().widget->x());
                    walked.append(item.widget);
                }
            }
            QCOMPARE(walked, group.layout->visibleWidgets());
            QCOMPARE(walked.size(), visible.size());
        }
    }
}

void TestRibbonLayout::sizesOfAGroup()
{
    GroupFixture group(7);
    group.controls[6]->visible = false;
    group.layout->setContentsMargins(2, 2, 2, 2);
    const QSize caption = group.layout->getLabel()->sizeHint();
    const auto framed = [&](int width, int height) {
        return QSize(qMax(width, caption.width()) + 4, height + caption.height() + 2 + 4);
    };
    // Two columns of three, and each control in a column of its own; heights start one pixel short.
    const QSize compact = framed(20 + 5 + 20, 3 * 10 + 2 * 2 - 1);
    QCOMPARE(group.layout->sizeHint(), compact);
    QCOMPARE(group.layout->minimumSize(), compact);
    QCOMPARE(group.layout->maximumSize(), compact);
    QCOMPARE(group.layout->sizeFromMode(RibbonControl::Small, QSize(1, 1)), compact);
    QCOMPARE(group.layout->sizeFromMode(RibbonControl::Small, false), compact);
    QCOMPARE(group.layout->sizeFromMode(RibbonControl::Large, false),
             framed(-1 + 6 * (40 + 3) + 5 * 5, 30 + 1));
    // Plenty of room: the first column holds two controls all the same.
    QCOMPARE(group.layout->sizeFromMode(RibbonControl::Large, QSize(900, 1)),
             framed(5 * 20 + 4 * 5, 2 * 10 + 2 - 1));
    group.layout->setText(QString());
    QVERIFY(group.layout->getLabel()->isHidden());

    // A caption wider than the controls counts, and an empty group is as large as its caption.
    GroupFixture empty(0);
    QCOMPARE(empty.layout->sizeHint(), QSize(caption.width(), -1 + caption.height() + 2));
}

void TestRibbonLayout::groupsOfAPage()
{
    // Groups of 6, 1 and 4 controls, one that is fixed to Large, a widget that is no control, an empty one.
    std::vector<std::unique_ptr<Action>> actions;
    QWidget window;
    QWidget page(&window);
    auto *layout = new RibbonLayout(&page);
    layout->setContentsMargins(4, 4, 4, 0);
    layout->setSpacing(2);
    QList<RibbonGroup *> groups;
    for (const int count : {6, 1, 4, 5, 0, 7}) {
        auto *group = new RibbonGroup(nullptr, false, nullptr);
        groups.append(group);
        for (int i = 0; i < count; ++i) {
            actions.push_back(action(QStringLiteral("Befehl %1").arg(i * i * i), i % 3 == 2 ? 3 : 1));
            group->addAction(actions.back().get());
        }
        layout->addWidget(group);
        if (count == 4) {
            auto *foreign = new QLabel("Fremd");
            foreign->setMinimumWidth(9);
            layout->addWidget(foreign);
        }
    }
    groups[3]->setFixSizeMode(RibbonControl::Large);
    QVERIFY(groups[4]->isHidden());
    window.show();
    int needAll = 0;
    for (int width = 1; width <= 1600; ++width) {
        page.resize(width, 120);
        int x = 4;
        bool closed = false;
        for (int i = 0; i < layout->count(); ++i) {
            const QWidget *widget = layout->itemAt(i)->widget();
            const auto *group = qobject_cast<const RibbonGroup *>(widget);
            if (widget->isHidden())
                continue;
            QCOMPARE(widget->geometry(), QRect(x, 4, widget->width(), 116));
            x += widget->width() + 2;
            if (!group)
                continue;
            const bool collapses = group->fixSizeMode() == RibbonControl::Auto && group != groups[1];
            const bool open = group->sizeMode() == RibbonControl::Large;
            QCOMPARE(group->findChild<QPushButton *>("RibbonGroupButton")->isVisible(), !open);
            QVERIFY(open || collapses);
            QVERIFY(!open || !collapses || !closed); // groups close from the right
            closed = closed || !open;
            if (!open)
                QCOMPARE(group->width(), group->sizeFromMode(RibbonControl::Small, true).width());
        }
        const int used = x - 2 + 4;
        // Nothing is wider than the page but what cannot become smaller.
        QVERIFY(used <= width || groups[0]->sizeMode() == RibbonControl::Small || closed);
        if (!closed && needAll == 0) {
            needAll = width;
            QCOMPARE(used, width); // exactly what is needed is enough
        }
        QVERIFY(!closed || needAll == 0 || width < needAll);
    }
    QVERIFY(needAll > 400);
    QCOMPARE(layout->visibleWidgets().size(), 6);
}

void TestRibbonLayout::sizesOfAPage()
{
    QWidget page;
    auto *layout = new RibbonLayout(&page);
    layout->setContentsMargins(4, 4, 4, 0);
    layout->setSpacing(2);
    QCOMPARE(layout->minimumSize(), QSize(-1 + 8, -1 + 4));
    for (int i = 0; i < 3; ++i) {
        auto *control = new ForeignControl(i, nullptr);
        control->visible = i > 0;
        layout->addWidget(control);
    }
    auto *foreign = new QWidget;
    foreign->setMinimumSize(7, 90);
    layout->addWidget(foreign);
    QCOMPARE(layout->minimumSize(), QSize(-1 + 20 + 20 + 7 + 2 * 2 + 8, 90 + 4));
    QCOMPARE(layout->sizeHint(), layout->minimumSize());
    QCOMPARE(layout->maximumSize(), QSize(-1 + 43 + 43 + 7 + 2 * 2 + 8, 90 + 4));
    QVERIFY(!layout->itemAt(4) && !layout->takeAt(-1));
    // What waits for the page to show gets its place at once.
    layout->setGeometry(QRect(0, 0, 400, 100));
    QCOMPARE(foreign->geometry(), QRect(4 + 20 + 40 + 40 + 3 * 2, 4, 7, 96));
}

void TestRibbonLayout::groupFixedToSmallCollapses()
{
    const auto first = action("Neu", 1);
    const auto second = action("Speichern", 1);
    QWidget window;
    QWidget page(&window);
    auto *layout = new RibbonLayout(&page);
    auto *group = new RibbonGroup(nullptr, false, nullptr);
    layout->addWidget(group);
    group->addAction(first.get());
    group->addAction(second.get());
    group->setFixSizeMode(RibbonControl::Small);
    page.resize(900, 120);
    window.show();
    const auto *button = group->findChild<QPushButton *>("RibbonGroupButton");
    QVERIFY(button->isVisible());
    QCOMPARE(group->width(), button->minimumSizeHint().width());
}

void TestRibbonLayout::helperKeys()
{
    // Columns of 3, 2 and 2 controls; the one in the middle of the first is disabled.
    QWidget window;
    QVector<ForeignControl *> all;
    QList<RibbonLayoutHelper> columns;
    for (const int count : {3, 2, 2}) {
        columns.append(RibbonLayoutHelper());
        for (int i = 0; i < count; ++i) {
            all.append(new ForeignControl(all.size(), nullptr));
            all.last()->setParent(&window);
            columns.last().append(RibbonLayoutItem(all.last()));
        }
    }
    all[1]->setEnabled(false);
    int row = 77;
    QVERIFY(!RibbonLayoutHelper::nextInColumns(columns, Qt::Key_Left, &row));
    QCOMPARE(columns[0].focusIndex(), -1);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    struct Step
    {
        int from, key, to, row;
    };
    for (const Step &step : {Step{0, Qt::Key_Down, 2, 0},
                             {2, Qt::Key_Up, 0, 2},
                             {0, Qt::Key_Up, -1, 0},
                             {2, Qt::Key_Down, -1, 2},
                             {0, Qt::Key_Left, -1, 0},
                             {2, Qt::Key_Right, 3, 0},
                             {3, Qt::Key_Left, 0, 0},
                             {4, Qt::Key_Right, 6, 1},
                             {6, Qt::Key_Left, 4, 1},
                             {6, Qt::Key_Right, -1, 1},
                             {3, Qt::Key_Tab, -1, 0}}) {
        all[step.from]->setFocus();
        const QWidget *next = RibbonLayoutHelper::nextInColumns(columns, step.key, &row);
        QCOMPARE(next ? all.indexOf(dynamic_cast<ForeignControl *>(const_cast<QWidget *>(next))) : -1,
                 step.to);
        QCOMPARE(row, step.row);
    }
    all[0]->setFocus();
    RibbonLayoutHelper::nextInColumns(columns, Qt::Key_Right, nullptr);
}

QTEST_MAIN(TestRibbonLayout)
#include "tst_ribbonlayout.moc"
