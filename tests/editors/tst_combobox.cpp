#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/ComboBox.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/ScrollBar.h>

#include <QAbstractItemView>
#include <QItemDelegate>
#include <QPainter>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QtTest>

#include <optional>

using NVO::ComboBox;

namespace {

const QByteArray sheet = "NVO--ComboBox { border: 1px solid #ff00ff; padding: 2px 8px; background: white; }"
                         "NVO--ComboBox[style=\"NoBorder\"] { border-color: white; }"
                         "NVO--ComboBox[readOnly=\"true\"] { border-color: #00ffff; }"
                         "NVO--ComboBox[bigSize=\"true\"] { border-color: #0000ff; }"
                         "NVO--ComboBox::drop-down:hover { background: red; }"
                         "NVO--ComboBox { combobox-popup: 0; }";

QStringList rows(int count)
{
    QStringList rows;
    for (int i = 0; i < count; ++i)
        rows.append(QString("Konto %1").arg(i));
    return rows;
}

/** The first and the last column of \a picture that has \a color. */
QPair<int, int> columnsOf(const QColor &color, const QImage &picture)
{
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) == color)
                columns = {columns.first < 0 ? x : columns.first, x};
        }
    }
    return columns;
}

/** A focused row of the list as its delegate paints it, on white; mirrored back if it is mirrored. */
QImage paintRow(const ComboBox &box, const QString &text, const QIcon &icon = {})
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(icon, text));
    QStyleOptionViewItem option;
    option.initFrom(&box);
    option.rect = QRect(0, 0, 300, 60);
    option.decorationSize = box.iconSize();
    option.decorationAlignment = Qt::AlignCenter;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    option.palette.setColor(QPalette::Text, Qt::black);
    QImage picture(option.rect.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    box.view()->itemDelegate()->paint(&painter, option, model.index(0, 0));
    return picture.mirrored(box.isRightToLeft(), false);
}

} // namespace

class TestComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{{"ComboBox", sheet}});
        NVO::Css::instance().reset();
    }

    /** Every order of the four things that have a say in look and shadow. */
    void looksAndShadow()
    {
        QRandomGenerator random(20260417);
        const QStringList keys{"Normal", "Error", "Info", "VaSt", "NoBorder"};
        for (const int round : {0, 1, 2}) {
            const auto effectsGuard = withEffects(round < 2);
            const auto variantGuard = withVariant(round % 2);
            ComboBox box;
            bool enabled = true;
            for (int step = 0; step < 200; ++step) {
                const QGraphicsEffect *before = box.graphicsEffect();
                const bool wasBig = box.comboBoxSize() == ComboBox::SizeBig;
                const bool yes = random.bounded(2);
                const int act = random.bounded(4);
                if (act == 0) {
                    box.setComboBoxStyle(ComboBox::ComboBoxStyle(random.bounded(5)));
                } else if (act == 1) {
                    box.setComboBoxSize(yes ? ComboBox::SizeBig : ComboBox::SizeNormal);
                } else if (act == 2) {
                    box.setShadowEnabled(enabled = yes);
                } else {
                    enabled = box.isReadOnly() != yes ? !yes : enabled;
                    box.setReadOnly(yes);
                }
                const bool big = box.comboBoxSize() == ComboBox::SizeBig;
                const bool bare = box.comboBoxStyle() == ComboBox::NoBorder;
                const auto *effect = qobject_cast<NVO::GraphicsEffect *>(box.graphicsEffect());
                QCOMPARE(effect->enabled(), round < 2 && enabled && !bare);
                QCOMPARE(effect != before, big != wasBig && round % 2 == 0);
                QCOMPARE(box.property("style"), QVariant(keys[box.comboBoxStyle()]));
                QCOMPARE(box.isEnabled(), !box.isReadOnly());
                QCOMPARE(box.maxVisibleItems(), big ? 5 : 12);
                QCOMPARE(box.iconSize() == QSize(24, 24), big);
                QCOMPARE(int(box.sizeAdjustPolicy()), big ? 3 : 2); // minimum contents, 3 with icon
                const char *edge = bare ? "white" : "#ff00ff";
                if (big || box.isReadOnly())
                    edge = big ? "#0000ff" : "#00ffff";
                const QImage picture = box.grab().toImage();
                QCOMPARE(picture.pixelColor(0, picture.height() / 2), QColor(edge));
                box.setVisible(step > 100);
            }
            box.setGraphicsEffect(nullptr);
            box.setShadowEnabled(!enabled);
        }
    }

    /** The rows have the width of the list, so that none has to be measured. */
    void longList()
    {
        struct Model : QStringListModel
        {
            QVariant data(const QModelIndex &index, int role) const override
            {
                asked.insert(index.row());
                return QStringListModel::data(index, role);
            }
            mutable QSet<int> asked;
        } model;
        model.setStringList(QStringList{QString(200, 'm')} + rows(1000));
        ComboBox box;
        box.setModel(&model);
        box.showPopup();
        QVERIFY(model.asked.size() < 100);
        QCOMPARE(box.view()->visualRect(model.index(0)).width(), box.view()->viewport()->width());
    }

    void rowGeometry()
    {
        QPixmap pixmap(24, 24);
        pixmap.fill(Qt::red);
        for (int i = 0; i < 8; ++i) {
            const bool variant = i & 1;
            const bool big = i & 2;
            const auto variantGuard = withVariant(variant);
            ComboBox box;
            box.setLayoutDirection(i & 4 ? Qt::RightToLeft : Qt::LeftToRight);
            box.setComboBoxSize(big ? ComboBox::SizeBig : ComboBox::SizeNormal);
            box.setIconSize({24, 24});
            // A full block fills its cell; a text that is too long is cut at the right margin.
            const auto text = columnsOf(Qt::black, paintRow(box, QString(3, QChar(0x2588))));
            const auto cut = columnsOf(Qt::black, paintRow(box, QString(90, QChar(0x2588))));
            const auto icon = columnsOf(Qt::red, paintRow(box, {}, pixmap));
            QCOMPARE(text.first, !big ? 10 : variant ? 54 : 64);
            QVERIFY(text.second - text.first > 15); // all three
            const int right = !big || variant ? 10 : 20;
            QVERIFY(299 - cut.second >= right && 299 - cut.second < right + 30);
            QCOMPARE(icon, qMakePair(variant ? 10 : 20, variant ? 33 : 43));
            QCOMPARE(columnsOf(Qt::white, paintRow(box, {})), qMakePair(0, 299)); // no focus frame
        }
    }

    void boxLook()
    {
        QPixmap pixmap(24, 24);
        pixmap.fill(Qt::red);
        ComboBox box;
        box.addItem(pixmap, QString(5, QChar(0x2588)));
        box.setComboBoxSize(ComboBox::SizeBig);
        box.setStyleSheet(box.styleSheet() + "NVO--ComboBox { color: #000001; }");
        box.resize(160, 40);
        box.show();
        const QImage before = box.grab().toImage();
        box.setAttribute(Qt::WA_UnderMouse);
        QHoverEvent hover(QEvent::HoverMove, QPointF(150, 12), QPointF(140, 12));
        QCoreApplication::sendEvent(&box, &hover);
        QCOMPARE(box.grab().toImage(), before); // no part of it answers to the mouse
        box.setLayoutDirection(Qt::RightToLeft);
        const QImage mirrored = box.grab().toImage().mirrored(true, false);
        for (const QColor &color : {QColor(255, 0, 0), QColor(0, 0, 1)}) {
            const auto columns = columnsOf(color, before);
            QVERIFY(columns.first > 0);
            QCOMPARE(columnsOf(color, mirrored), columns);
        }
    }

    void list()
    {
        for (const int count : {0, 1, 5, 6, 12, 13, 100000}) {
            const bool big = count % 3; // 1, 5, 13 and 100000
            ComboBox box;
            QCOMPARE(box.view()->parentWidget()->palette().color(QPalette::Button), QColor(246, 246, 246));
            box.setComboBoxSize(big ? ComboBox::SizeBig : ComboBox::SizeNormal);
            box.setModel(new QStringListModel(rows(count), &box));
            box.move(100, 20);
            box.show();
            QVERIFY(QTest::qWaitForWindowActive(&box));
            const QDeadlineTimer patience(5000);
            box.showPopup();
            QVERIFY(!patience.hasExpired());
            QCOMPARE(box.view()->isVisible(), count > 0);
            const auto *bar = qobject_cast<NVO::ScrollBar *>(box.view()->verticalScrollBar());
            QCOMPARE(bar->scrollBarStyle(), NVO::ScrollBar::DropDown);
            if (count == 0)
                continue;
            const int visibleRows = qMin(count, big ? 5 : 12);
            QCOMPARE(box.view()->viewport()->height() / (big ? 60 : 25), visibleRows);
            QCOMPARE(bar->isVisible(), count > visibleRows);
            QTest::keyClick(box.view(), Qt::Key_End);
            QTest::keyClick(box.view(), Qt::Key_Return);
            QTRY_VERIFY(!box.view()->isVisible());
            QCOMPARE(box.currentIndex(), count - 1);
        }
    }

    void scrollArrowsStayHidden()
    {
        // Here the style opens the list over the box, where Qt works with arrows.
        m_theme->set("ComboBox", "NVO--ComboBox { combobox-popup: 1; }");
        NVO::Css::instance().reset();
        ComboBox box;
        box.addItems(rows(300));
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.showPopup();
        QScrollBar *bar = box.view()->verticalScrollBar();
        QVERIFY(bar->isVisible() && bar->maximum() > 0);
        for (const int value : {bar->maximum() / 2, 0}) {
            bar->setValue(value);
            for (const QWidget *widget : box.view()->parentWidget()->findChildren<QWidget *>())
                QVERIFY(widget->isHidden() || !widget->inherits("QComboBoxPrivateScroller"));
        }
    }

    void participantsGo()
    {
        auto *model = new QStringListModel(rows(5));
        QPointer<ComboBox> box = new ComboBox;
        box->setModel(model);
        box->show();
        box->showPopup();
        delete model;
        QCOMPARE(box->count(), 0);
        box->hidePopup();
        box->setModel(new QStringListModel(rows(5), box));
        delete box->view(); // for which Qt makes a plain one
        box->showPopup();
        QVERIFY(box->view()->isVisible() && box->view()->model() == box->model());
        connect(box, QOverload<int>::of(&ComboBox::activated), box, &ComboBox::deleteLater);
        QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(box.isNull());
        box = new ComboBox;
        box->addItems(rows(5));
        box->showPopup();
        delete box; // while its list is open
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
