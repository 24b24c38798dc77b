#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/ComboBox.h>
#include <nvo/GraphicsEffect.h>
#include <nvo/ScrollBar.h>

#include <QAbstractItemView>
#include <QGraphicsOpacityEffect>
#include <QItemDelegate>
#include <QPainter>
#include <QScrollBar>
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
    rows.reserve(count);
    for (int i = 0; i < count; ++i)
        rows.append(QString("Konto %1").arg(i));
    return rows;
}

bool shadowShows(const ComboBox &box)
{
    return qobject_cast<const NVO::GraphicsEffect *>(box.graphicsEffect())->enabled();
}

/** The first and the last column of \a picture, in device-independent pixels, that has \a color. */
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

/** A row of the list as its delegate paints it, with everything else white. */
QImage paintRow(const ComboBox &box, const QString &text, const QIcon &icon, bool mirrored)
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(icon, text));
    QStyleOptionViewItem option;
    option.initFrom(&box);
    option.rect = QRect(0, 0, 300, 60);
    option.decorationSize = box.iconSize();
    option.decorationAlignment = Qt::AlignCenter;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.direction = mirrored ? Qt::RightToLeft : Qt::LeftToRight;
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    option.palette.setColor(QPalette::Text, Qt::black);
    QImage picture(option.rect.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    box.view()->itemDelegate()->paint(&painter, option, model.index(0, 0));
    return picture;
}

/** Paints like any QComboBox. */
struct PlainlyPainted : ComboBox
{
    void paintEvent(QPaintEvent *event) override { QComboBox::paintEvent(event); }
};

QList<QWidget *> scrollArrows(const ComboBox &box)
{
    QList<QWidget *> arrows;
    for (QWidget *widget : box.view()->parentWidget()->findChildren<QWidget *>()) {
        if (widget->inherits("QComboBoxPrivateScroller"))
            arrows.append(widget);
    }
    return arrows;
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

    void looks()
    {
        const QStringList keys{"Normal", "Error", "Info", "VaSt", "NoBorder"};
        for (const bool shown : {false, true}) {
            ComboBox box;
            box.setVisible(shown);
            QCOMPARE(box.cursor().shape(), Qt::PointingHandCursor);
            for (int step = 0; step < 40; ++step) {
                const int style = step * 3 % 5;
                const bool big = step / 2 % 2;
                const bool readOnly = step / 4 % 2;
                box.setComboBoxStyle(ComboBox::ComboBoxStyle(style));
                box.setComboBoxSize(ComboBox::ComboBoxSize(int(big)));
                box.setReadOnly(readOnly);
                QCOMPARE(box.property("style"), QVariant(keys[style]));
                QCOMPARE(box.property("bigSize"), QVariant(big));
                QCOMPARE(box.property("readOnly"), QVariant(readOnly));
                QCOMPARE(box.isReadOnly(), readOnly);
                QCOMPARE(box.isEnabled(), !readOnly);
                QCOMPARE(box.maxVisibleItems(), big ? 5 : 12);
                QCOMPARE(box.iconSize() == QSize(24, 24), big);
                // 2 and 3 are the policies by the minimum contents length, without and with an icon.
                QCOMPARE(int(box.sizeAdjustPolicy()), big ? 3 : 2);
                const QColor edge = big          ? QColor(0, 0, 255)
                                    : readOnly   ? QColor(0, 255, 255)
                                    : style == 4 ? QColor(255, 255, 255)
                                                 : QColor(255, 0, 255);
                const QImage picture = box.grab().toImage();
                QCOMPARE(picture.pixelColor(0, picture.height() / 2), edge);
            }
        }
    }

    void shadow()
    {
        // Every order of the four things that have a say.
        QRandomGenerator random(20260417);
        for (const bool effects : {true, false}) {
            const auto effectsGuard = withEffects(effects);
            for (const int variant : {0, 1}) {
                const auto variantGuard = withVariant(variant);
                ComboBox box;
                bool enabled = true;
                for (int step = 0; step < 300; ++step) {
                    const QGraphicsEffect *before = box.graphicsEffect();
                    const bool big = box.comboBoxSize() == ComboBox::SizeBig;
                    switch (random.bounded(4)) {
                    case 0:
                        box.setComboBoxStyle(random.bounded(2) ? ComboBox::NoBorder : ComboBox::Error);
                        break;
                    case 1:
                        box.setComboBoxSize(ComboBox::ComboBoxSize(random.bounded(2)));
                        break;
                    case 2:
                        enabled = random.bounded(2);
                        box.setShadowEnabled(enabled);
                        break;
                    default: {
                        const bool readOnly = random.bounded(2);
                        if (box.isReadOnly() != readOnly)
                            enabled = !readOnly;
                        box.setReadOnly(readOnly);
                    }
                    }
                    QCOMPARE(shadowShows(box),
                             effects && enabled && box.comboBoxStyle() != ComboBox::NoBorder);
                    const bool resized = big != (box.comboBoxSize() == ComboBox::SizeBig);
                    QCOMPARE(box.graphicsEffect() != before, resized && variant == 0);
                }
            }
        }
        ComboBox box;
        box.setGraphicsEffect(new QGraphicsOpacityEffect);
        box.setShadowEnabled(false);
        QVERIFY(box.graphicsEffect()->isEnabled());
        box.setGraphicsEffect(nullptr);
        box.setReadOnly(true);
    }

    void rowGeometry()
    {
        QPixmap pixmap(24, 24);
        pixmap.fill(Qt::red);
        for (const int variant : {0, 1}) {
            const auto variantGuard = withVariant(variant);
            for (const bool big : {false, true}) {
                ComboBox box;
                box.setComboBoxSize(big ? ComboBox::SizeBig : ComboBox::SizeNormal);
                box.setIconSize({24, 24});
                box.addItem("x");
                const QStyleOptionViewItem option;
                const auto *delegate = box.view()->itemDelegate();
                QCOMPARE(delegate->sizeHint(option, box.model()->index(0, 0)).height(), big ? 60 : 25);

                const int left = !big ? 10 : variant ? 54 : 64;
                const int right = !big ? 10 : variant ? 10 : 20;
                const int iconLeft = variant ? 10 : 20;
                const QColor ink(Qt::black);
                for (const bool mirrored : {false, true}) {
                    // A full block fills its cell; a text that is too long is cut at the right margin.
                    const auto text = columnsOf(ink, paintRow(box, QString(3, QChar(0x2588)), {}, mirrored));
                    const auto cut = columnsOf(ink, paintRow(box, QString(90, QChar(0x2588)), {}, mirrored));
                    const auto icon = columnsOf(Qt::red, paintRow(box, {}, pixmap, mirrored));
                    QCOMPARE(mirrored ? 299 - text.second : text.first, left);
                    QVERIFY(text.second - text.first > 15); // all three
                    const int rest = mirrored ? cut.first : 299 - cut.second;
                    QVERIFY2(rest >= right && rest < right + 30, qPrintable(QString::number(rest)));
                    QCOMPARE(icon.second - icon.first, 23);
                    QCOMPARE(mirrored ? 299 - icon.second : icon.first, iconLeft);
                }
            }
        }
    }

    void noFocusFrame()
    {
        const ComboBox box;
        QImage empty(300, 60, QImage::Format_RGB32);
        empty.fill(Qt::white);
        QCOMPARE(paintRow(box, {}, {}, false), empty);
    }

    void noSubControlIsActive()
    {
        ComboBox box;
        PlainlyPainted plain;
        for (ComboBox *each : {&box, static_cast<ComboBox *>(&plain)}) {
            each->addItems(rows(3));
            each->resize(200, 25);
            each->show();
        }
        QCOMPARE(box.grab().toImage(), plain.grab().toImage());
        box.setCurrentIndex(-1);
        plain.setCurrentIndex(-1);
        QCOMPARE(box.grab().toImage(), plain.grab().toImage());
        box.setPlaceholderText("Konto wählen");
        plain.setPlaceholderText("Konto wählen");
        QCOMPARE(box.grab().toImage(), plain.grab().toImage());
        // The mouse over the arrow of a box changes the look of the plain one only.
        const QImage before = plain.grab().toImage();
        for (ComboBox *each : {&box, static_cast<ComboBox *>(&plain)}) {
            each->setAttribute(Qt::WA_UnderMouse);
            QHoverEvent hover(QEvent::HoverMove, QPointF(193, 12), QPointF(190, 12));
            QCoreApplication::sendEvent(each, &hover);
        }
        QVERIFY(plain.grab().toImage() != before);
        QCOMPARE(box.grab().toImage(), before);
    }

    void list_data()
    {
        QTest::addColumn<bool>("big");
        QTest::addColumn<int>("count");
        for (const bool big : {false, true}) {
            for (const int count : {0, 1, 4, 5, 12, 13, 1000, 100000})
                QTest::addRow("%d rows, %s", count, big ? "big" : "normal") << big << count;
        }
    }

    void list()
    {
        QFETCH(bool, big);
        QFETCH(int, count);
        QStringListModel model(rows(count));
        ComboBox box;
        box.setComboBoxSize(big ? ComboBox::SizeBig : ComboBox::SizeNormal);
        box.setModel(&model);
        box.move(100, 20);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QElapsedTimer timer;
        timer.start();
        box.showPopup();
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(box.view()->isVisible(), count > 0);
        if (count == 0)
            return;
        const int visibleRows = qMin(count, big ? 5 : 12);
        QCOMPARE(box.view()->viewport()->height() / (big ? 60 : 25), visibleRows);
        QCOMPARE(box.view()->verticalScrollBar()->isVisible(), count > visibleRows);
        QTest::keyClick(box.view(), Qt::Key_End);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(box.currentIndex(), count - 1);
        model.setStringList({"neu"});
        box.showPopup();
        QCOMPARE(box.view()->viewport()->height() / (big ? 60 : 25), 1);
    }

    void scrollArrowsStayHidden()
    {
        // Without a sheet the style opens the list over the box, where Qt works with arrows.
        m_theme->set("ComboBox", "NVO--ComboBox { combobox-popup: 1; }");
        NVO::Css::instance().reset();
        ComboBox box;
        box.addItems(rows(300));
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QCOMPARE(scrollArrows(box).size(), 2);
        for (int round = 0; round < 2; ++round) {
            box.showPopup();
            QScrollBar *bar = box.view()->verticalScrollBar();
            QVERIFY(bar->isVisible() && bar->maximum() > 0);
            for (const int value : {bar->maximum() / 2, bar->maximum(), 0}) {
                bar->setValue(value);
                QCoreApplication::processEvents();
                for (const QWidget *arrow : scrollArrows(box))
                    QVERIFY(arrow->isHidden());
            }
            box.hidePopup();
        }
    }

    void popupFrame()
    {
        const ComboBox box;
        for (const QScrollBar *each : {box.view()->horizontalScrollBar(), box.view()->verticalScrollBar()}) {
            const auto *bar = qobject_cast<const NVO::ScrollBar *>(each);
            QVERIFY(bar && bar->scrollBarStyle() == NVO::ScrollBar::DropDown);
        }
        const QPalette palette = box.view()->parentWidget()->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(palette.color(group, QPalette::Window), QColor(246, 246, 246));
            QCOMPARE(palette.color(group, QPalette::Button), QColor(246, 246, 246));
        }
    }

    void readOnlyTakesNoInput()
    {
        ComboBox box;
        box.addItems(rows(5));
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.setFocus();
        box.setReadOnly(true);
        QTest::keyClick(&box, Qt::Key_Down);
        QTest::mouseClick(&box, Qt::LeftButton);
        QCOMPARE(box.currentIndex(), 0);
        QVERIFY(!box.view()->isVisible());
        box.setReadOnly(false);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.currentIndex(), 1);
    }

    void deletedInItsOwnSignal()
    {
        QPointer<ComboBox> box = new ComboBox;
        box->addItems(rows(5));
        box->show();
        QVERIFY(QTest::qWaitForWindowActive(box));
        connect(box, QOverload<int>::of(&ComboBox::currentIndexChanged), box, &ComboBox::deleteLater);
        box->showPopup();
        QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(box.isNull());
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
