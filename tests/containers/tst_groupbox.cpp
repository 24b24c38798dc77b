#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/GroupBox.h>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProxyStyle>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

#include <optional>

using NVO::GroupBox;

namespace {

// Paints what the style is, and leaves 30 pixels above the contents of a Paragraph, 50 above the others.
const QByteArray sheet =
    "NVO--GroupBox { border: none; margin: 0; padding: 50px 7px 3px 5px; background: #ff0000; }"
    "NVO--GroupBox[style=\"Paragraph\"] { background: #00ff00; padding-top: 30px; }"
    "NVO--GroupBox[style=\"TopicChooser\"] QLabel { background: #0000ff; }";

void moveTo(GroupBox &box, const QPoint &pos)
{
    QMouseEvent event(QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &event);
}

/** A box with rows of two fields, and things in between that are no rows. */
struct Form
{
    explicit Form(int rowCount)
        : column(new QVBoxLayout(&box))
    {
        for (int i = 0; i < rowCount; ++i) {
            column->addWidget(new QLabel("Überschrift"));
            auto *row = new QHBoxLayout;
            row->addWidget(new QLabel("Konto"));
            row->addStretch();
            for (int field = 0; field < 2; ++field) {
                fields.append(new QLineEdit);
                row->addWidget(fields.last());
            }
            column->addLayout(row);
            rows.append(row);
        }
        box.resize(400, 60 * rowCount);
        box.show();
    }

    GroupBox box;
    QVBoxLayout *column;
    QList<QLayout *> rows;
    QList<QLineEdit *> fields;
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

    void styles()
    {
        const QStringList keys{"Paragraph", "ParagraphWithoutBorder", "Overview", "TopicChooser"};
        for (const bool shown : {false, true}) {
            GroupBox box;
            QLabel child(&box);
            child.setGeometry(10, 60, 50, 20);
            box.resize(200, 100);
            box.setVisible(shown);
            QVERIFY(box.hasMouseTracking());
            for (const int style : {0, 2, 3, 1, 0, 3, 2, 1}) {
                box.setGroupBoxStyle(GroupBox::GroupBoxStyle(style));
                QCOMPARE(box.groupBoxStyle(), GroupBox::GroupBoxStyle(style));
                QCOMPARE(box.property("style"), QVariant(keys[style]));
                const QImage picture = box.grab().toImage();
                const QColor ground = style == 0 ? QColor(0, 255, 0) : QColor(255, 0, 0);
                QCOMPARE(picture.pixelColor(100, 90), ground);
                QCOMPARE(picture.pixelColor(30, 70), style == 3 ? QColor(0, 0, 255) : ground);
            }
            box.setStyleSheet("eigen");
            box.setGroupBoxStyle(GroupBox::ParagraphWithoutBorder); // no change: nothing is set up again
            QCOMPARE(box.styleSheet(), QString("eigen"));
        }
    }

    void legendPlaces()
    {
        for (const bool mirrored : {false, true}) {
            for (const QSize &size : {QSize(60, 16), QSize(60, 30), QSize(200, 45), QSize(1, 0)}) {
                GroupBox box;
                box.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
                box.resize(300, 120);
                QWidget legend(&box);
                legend.resize(size);
                legend.hide();
                box.setLegend(&legend);
                QCOMPARE(box.legend(), &legend);
                QVERIFY(!legend.isHidden());
                for (const int width : {300, 411, 150}) {
                    box.resize(width, 120);
                    box.show(); // events of size come to shown widgets only
                    const int x = width - 12 - size.width();
                    const QRect place(x, 0, size.width(), qMax(size.height(), 30));
                    QCOMPARE(legend.geometry(),
                             mirrored ? place.translated(width - 2 * x - size.width(), 0) : place);
                }
                const QRect before = legend.geometry();
                box.setLegend(nullptr);
                box.resize(500, 120);
                QVERIFY(legend.isVisible());
                QCOMPARE(legend.geometry(), before);
                QCOMPARE(legend.parentWidget(), &box);
            }
        }
    }

    void legendElsewhere()
    {
        GroupBox box;
        box.resize(300, 100);
        box.show();
        auto *legend = new QWidget(&box);
        QWidget second(&box);
        box.setLegend(legend);
        delete legend;
        QCOMPARE(box.legend(), nullptr);
        box.resize(310, 100);
        box.setLegend(&second);
        QVERIFY(second.isVisible());

        // Not under a style sheet there is no place.
        QProxyStyle plain;
        GroupBox unstyled;
        unstyled.setStyleSheet(QString());
        unstyled.setStyle(&plain);
        QWidget stays(&unstyled);
        stays.setGeometry(3, 4, 5, 6);
        stays.hide();
        unstyled.setLegend(&stays);
        unstyled.resize(300, 100);
        unstyled.show();
        QVERIFY(stays.isHidden());
        QCOMPARE(stays.geometry(), QRect(3, 4, 5, 6));
        unstyled.setStyle(nullptr);
    }

    void rowStates()
    {
        QRandomGenerator random(20260417);
        Form form(4);
        QVERIFY(QTest::qWaitForWindowActive(&form.box));
        QCOMPARE(form.rows[0]->property("state"), QVariant());
        QSet<QString> seen;
        for (int step = 0; step < 400; ++step) {
            const int field = random.bounded(-3, form.fields.size());
            if (field >= 0)
                form.fields[field]->setFocus();
            else if (form.box.focusWidget())
                form.box.focusWidget()->clearFocus();
            const QPoint mouse(random.bounded(-20, 420), random.bounded(-20, 260));
            moveTo(form.box, mouse);
            for (int i = 0; i < form.rows.size(); ++i) {
                const bool focused = field >= 0 && field / 2 == i;
                const bool hovered = form.rows[i]->geometry().contains(mouse);
                QCOMPARE(form.rows[i]->property("state"), QVariant(QString(focused   ? "focus"
                                                                           : hovered ? "hover"
                                                                                     : "")));
                seen.insert(form.rows[i]->property("state").toString());
            }
        }
        QCOMPARE(seen.size(), 3);
        QVERIFY(!form.column->property("state").isValid());
    }

    void boxesWithoutRows()
    {
        GroupBox empty;
        moveTo(empty, {5, 5});
        GroupBox plain;
        auto *column = new QVBoxLayout(&plain);
        moveTo(plain, {5, 5});
        auto *holder = new QWidget;
        auto *inner = new QHBoxLayout(holder);
        inner->addWidget(new QLineEdit);
        column->addWidget(holder);
        column->addStretch();
        plain.show();
        moveTo(plain, inner->geometry().center());
        QVERIFY(!column->property("state").isValid());
        QVERIFY(!inner->property("state").isValid()); // the layout of a widget is no row
    }

    void rowGoesWhenItHears()
    {
        // The first row to hear of its state takes the next ones, and then the box, with it.
        struct Eraser : QObject
        {
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() != QEvent::DynamicPropertyChange || !victim)
                    return false;
                delete victim.data();
                return true;
            }
            QPointer<QObject> victim;
        } eraser;
        auto *box = new GroupBox;
        auto *column = new QVBoxLayout(box);
        for (int i = 0; i < 3; ++i) {
            auto *row = new QHBoxLayout;
            row->addWidget(new QLineEdit);
            column->addLayout(row);
        }
        box->show();
        const QPointer<GroupBox> alive(box);
        auto *first = column->itemAt(0)->layout();
        first->installEventFilter(&eraser);
        eraser.victim = column->itemAt(1)->layout();
        moveTo(*box, first->geometry().center());
        QVERIFY(alive);
        QCOMPARE(first->property("state"), QVariant(QString("hover")));
        QCOMPARE(column->count(), 2);
        column->itemAt(1)->layout()->installEventFilter(&eraser);
        first->removeEventFilter(&eraser);
        eraser.victim = box;
        moveTo(*box, column->itemAt(1)->geometry().center());
        QVERIFY(!alive);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestGroupBox)
#include "tst_groupbox.moc"
