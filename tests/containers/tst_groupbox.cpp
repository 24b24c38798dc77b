#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/GroupBox.h>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

#include <optional>

using NVO::GroupBox;

namespace {

// Paints what the style is, and leaves 30 pixels above the contents of a Paragraph, 50 above the others.
const QByteArray sheet =
    "NVO--GroupBox { border: none; margin: 0; padding: 50px 7px 3px 5px; background: #ff0000; }"
    "NVO--GroupBox[style=\"Paragraph\"] { background: #00ff00; padding-top: 30px; }";

void moveTo(GroupBox &box, const QPoint &pos)
{
    QMouseEvent event(QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &event);
}

/** Deletes its victim when what it watches hears of a state. */
struct Eraser : QObject
{
    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool deadly = victim && event->type() == QEvent::DynamicPropertyChange;
        if (deadly)
            delete victim.data();
        return deadly;
    }
    QPointer<QObject> victim;
};

} // namespace

class TestGroupBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{{"GroupBox", sheet}});
        NVO::Css::instance().reset();
    }

    void stylesAndLegend()
    {
        const QStringList keys{"Paragraph", "ParagraphWithoutBorder", "Overview", "TopicChooser"};
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            GroupBox box;
            box.setLayoutDirection(direction);
            box.resize(300, 120);
            auto *legend = new QWidget(&box);
            legend->resize(direction == Qt::RightToLeft ? QSize(200, 45) : QSize(60, 16));
            legend->hide();
            int height = legend->height(); // which never shrinks
            box.setLegend(legend);
            for (const int style : {0, 3, 2, 1, 0, 3, 1}) {
                box.setGroupBoxStyle(GroupBox::GroupBoxStyle(style));
                box.show();
                QCOMPARE(box.property("style"), QVariant(keys[style]));
                const QColor ground = style == 0 ? QColor(0, 255, 0) : QColor(255, 0, 0);
                QCOMPARE(box.grab().toImage().pixelColor(100, 100), ground);
                box.resize(280 + style, 120);
                const int x = direction == Qt::RightToLeft ? 12 : box.width() - 12 - legend->width();
                height = qMax(height, style == 0 ? 30 : 50);
                QCOMPARE(legend->geometry(), QRect(x, 0, legend->width(), height));
            }
            box.setLegend(nullptr);
            box.resize(500, 120);
            QVERIFY(legend->isVisible() && legend->x() < 250);
            box.setLegend(legend);
            delete legend;
            box.setStyleSheet(QString());
            box.setGroupBoxStyle(GroupBox::ParagraphWithoutBorder); // no change: nothing is set up again
            QWidget unplaced(&box);
            unplaced.hide();
            box.setLegend(&unplaced);
            QVERIFY(unplaced.isHidden());
        }
    }

    void rowStates()
    {
        QRandomGenerator random(20260417);
        GroupBox box;
        moveTo(box, {5, 5});
        auto *column = new QVBoxLayout(&box);
        QList<QLayout *> rows;
        QList<QLineEdit *> fields;
        for (int i = 0; i < 4; ++i) {
            column->addWidget(new QLabel("Überschrift"));
            auto *row = new QHBoxLayout;
            row->addStretch();
            for (int field = 0; field < 2; ++field) {
                fields.append(new QLineEdit);
                row->addWidget(fields.last());
            }
            column->addLayout(row);
            rows.append(row);
        }
        box.resize(400, 240);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        for (int step = 0; step < 400; ++step) {
            const int field = random.bounded(fields.size());
            fields[field]->setFocus();
            if (step % 3 == 0)
                fields[field]->clearFocus();
            const QPoint mouse(random.bounded(-20, 420), random.bounded(-20, 260));
            moveTo(box, mouse);
            for (int i = 0; i < rows.size(); ++i) {
                const bool focused = step % 3 && field / 2 == i;
                const bool hovered = rows[i]->geometry().contains(mouse);
                QCOMPARE(rows[i]->property("state"), QVariant(focused ? "focus" : hovered ? "hover" : ""));
            }
        }
    }

    void rowGoesWhenItHears()
    {
        Eraser eraser;
        QPointer<GroupBox> box = new GroupBox;
        auto *column = new QVBoxLayout(box);
        for (int i = 0; i < 3; ++i) {
            auto *row = new QHBoxLayout;
            row->addWidget(new QLineEdit);
            row->installEventFilter(&eraser);
            column->addLayout(row);
        }
        box->show();
        eraser.victim = column->itemAt(1)->layout();
        moveTo(*box, column->itemAt(0)->geometry().center());
        QCOMPARE(column->count(), 2);
        eraser.victim = box;
        moveTo(*box, column->itemAt(1)->geometry().center());
        QVERIFY(!box);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestGroupBox)
#include "tst_groupbox.moc"
