#include "TestCase.h"

#include "ribbon/RibbonGeometry.h"
#include "ribbon/RibbonLayout.h"

#include <nvo/Action.h>
#include <nvo/RibbonGroup.h>
#include <nvo/RibbonGroupLayout.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <array>
#include <memory>

using namespace NVO;
using Mode = RibbonControl::SizeMode;

namespace {

using Asked = QVector<QPair<int, int>>; // control and mode

/** A control that is not the library's: it writes down what it is asked. */
struct ForeignControl : QWidget, RibbonControl
{
    using RibbonControl::sizeFromMode;
    void updateLayout() override {}
    QSize sizeFromMode(SizeMode mode, bool minimum) const override
    {
        asked->append({number, mode});
        return minimum ? sizes[mode] : sizes[mode] + QSize(3, 1);
    }
    QSize sizeHint() const override { return sizes[sizeMode()] + QSize(1, 1); }
    bool controlVisible() const override { return visible; }

    std::array<QSize, 3> sizes;
    bool visible = true;
    int number = 0;
    Asked *asked = nullptr;
};

} // namespace

class TestRibbonLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void captionOfALateWidget()
    {
        QWidget panel;
        auto *layout = new RibbonGroupLayout;
        layout->addItem(nullptr);
        layout->setText("Gruppe");
        QVERIFY(!layout->getLabel()->isVisible());
        panel.setLayout(layout);
        layout->setGeometry(QRect(0, 0, 200, 90));
        QCOMPARE(layout->getLabel()->parentWidget(), &panel);
        QVERIFY(!layout->getLabel()->isHidden());
    }

    void controlsOfAGroup()
    {
        QRandomGenerator random(11);
        for (int run = 0; run < 120; ++run) {
            Asked asked;
            QWidget panel;
            auto *layout = new RibbonGroupLayout(&panel);
            QVector<ForeignControl *> visible;
            for (int i = random.bounded(10); i > 0; --i) {
                auto *control = new ForeignControl;
                layout->addWidget(control);
                control->asked = &asked;
                control->number = i;
                control->visible = random.bounded(6) > 0;
                control->setFixSizeMode(Mode(qMax(random.bounded(5) - 2, 0)));
                for (const size_t mode : {1, 2})
                    control->sizes[mode] = QSize(5 + random.bounded(120), 5 + random.bounded(30));
                if (control->visible)
                    visible.append(control);
            }
            const int margin = run % 2 * 2;
            layout->setContentsMargins(margin, margin, margin, margin);
            layout->setText("Caption");
            const int captionHeight = layout->getLabel()->sizeHint().height();
            for (int step = 0; step < 12; ++step) {
                const QRect rect(0, 0, 10 + random.bounded(900), 100);
                const QRect inner = rect.adjusted(margin, margin, -margin, -margin);
                QVector<RibbonGeometry::Control> states;
                for (const ForeignControl *control : visible)
                    states.append({control->sizeMode(), control->fixSizeMode()});
                Asked expected;
                const auto columns =
                    RibbonGeometry::columnsForWidth(states, inner.width(), 2, [&](int i, Mode mode) {
                        expected.append({visible[i]->number, mode});
                        return visible[i]->sizes[mode];
                    });
                asked.clear();
                layout->setGeometry(rect);

                int x = margin;
                for (const RibbonGeometry::Column &column : columns) {
                    const Mode mode = RibbonGeometry::columnMode(states, column, columns.size() == 1);
                    int width = 0;
                    for (const int i : column.controls) {
                        expected.append({visible[i]->number, mode});
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
                QVERIFY(asked == expected);
                QCOMPARE(layout->getLabel()->geometry(),
                         QRect(QPoint(margin, inner.bottom() - captionHeight), inner.bottomRight()));
                // The columns that the keyboard walks are those that show, unless a mode has just changed.
                layout->setGeometry(rect);
                layout->setGeometry(rect);
                QList<QWidget *> walked;
                for (const RibbonLayoutHelper &column : layout->getWidgets()) {
                    for (const RibbonLayoutItem &item : column) {
                        QCOMPARE(item.widget->x(), column.first().widget->x());
                        walked.append(item.widget);
                    }
                }
                QCOMPARE(walked, layout->visibleWidgets());
                QCOMPARE(walked.size(), visible.size());
            }
        }
    }

    void groupsOfAPage()
    {
        // Groups, one of them fixed to Large, one to Small, one empty, and a widget that is no control.
        std::vector<std::unique_ptr<Action>> actions;
        QWidget window;
        QWidget page(&window);
        auto *layout = new RibbonLayout(&page);
        layout->setContentsMargins(4, 4, 4, 0);
        layout->setSpacing(2);
        QList<RibbonGroup *> groups;
        for (const int count : {6, 1, 4, 5, 0, 7, 2}) {
            auto *group = new RibbonGroup(nullptr, false, nullptr);
            groups.append(group);
            for (int i = 0; i < count; ++i) {
                actions.push_back(std::make_unique<Action>(QString("Befehl %1").arg(i * i * i)));
                actions.back()->setControlType(i % 3 == 2 ? Action::CommandCheckBox : Action::CommandButton);
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
        groups[6]->setFixSizeMode(RibbonControl::Small);
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
                QVERIFY(group == groups[6] ? !open : open || collapses);
                QVERIFY(!open || !collapses || !closed); // groups close from the right
                closed = closed || (!open && collapses);
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
        QCOMPARE(layout->visibleWidgets().size(), 7);
    }
};

QTEST_MAIN(TestRibbonLayout)
#include "tst_ribbonlayout.moc"
