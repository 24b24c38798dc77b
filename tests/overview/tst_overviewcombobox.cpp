#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/OverviewComboBox.h>

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTextDocument>
#include <QtTest>

#include <optional>

using NVO::OverviewComboBox;

namespace {

const QByteArray sheet = "NVO--OverviewComboBox { border: 1px solid black; font-family: 'DejaVu Sans'; }"
                         "NVO--OverviewComboBox { font-size: 13px; combobox-popup: 0; }";

constexpr int sortRole = Qt::UserRole + 50;

struct Row
{
    int id;
    bool isAction;
    bool enabled;
};

QStandardItemModel *itemsOf(const OverviewComboBox &box)
{
    return qobject_cast<QStandardItemModel *>(box.model());
}

void insert(OverviewComboBox &box, int index, const Row &row)
{
    if (row.isAction)
        box.insertActionItem(index, QString("Befehl %1").arg(row.id));
    else
        box.insertItem(index, QIcon(), QString("Titel %1").arg(row.id), "Beschreibung", "C:\\", row.id);
    itemsOf(box)->item(index)->setData(row.id, Qt::UserRole);
    itemsOf(box)->item(index)->setData(row.id * 7919 % 1009, sortRole);
    itemsOf(box)->item(index)->setEnabled(row.enabled);
}

/** An item painted on white into \a rect, mirrored back where the box is mirrored. */
QImage paintItem(OverviewComboBox &box, const QRect &rect, const QColor &color = Qt::blue, int index = 0)
{
    box.ensurePolished();
    box.resize(rect.size());
    QImage picture(rect.right() + 20, rect.bottom() + 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    box.paint(&painter, rect, index, color);
    return picture.copy(rect).mirrored(box.isRightToLeft(), false);
}

/** Where \a picture is not white. */
QRect inkOf(const QImage &picture)
{
    QRegion ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255))
                ink += QRect(x, y, 1, 1);
        }
    }
    return ink.boundingRect();
}

QSizeF textSize(const QString &html, const QFont &font)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
    return html.isEmpty() ? QSizeF(0, 0) : document.size();
}

} // namespace

class TestOverviewComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{{"OverviewComboBox", sheet},
                                                  {"Font", "[Size]\nSMALL=11\nDEFAULT=13\n"}});
        NVO::Css::instance().reset();
    }

    /** Rows come, go, move and are chosen in every order, also by keyboard and wheel, beside a plain model.
     */
    void walk()
    {
        QRandomGenerator random(20261123);
        for (int round = 0; round < 30; ++round) {
            OverviewComboBox box;
            QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
            QSignalSpy activated(&box, QOverload<int>::of(&OverviewComboBox::activated));
            QVector<Row> rows;
            int current = -1; // its id
            const auto indexOf = [&](int id) {
                for (int i = 0; i < rows.size(); ++i) {
                    if (rows[i].id == id)
                        return i;
                }
                return -1;
            };
            const auto become = [&](int index) { // as far as Qt is concerned
                current = index < 0 || rows[index].isAction ? -1 : rows[index].id;
            };
            const auto search = [&](int from, int step) {
                while (from >= 0 && from < rows.size() && (rows[from].isAction || !rows[from].enabled))
                    from += step;
                if (from >= 0 && from < rows.size())
                    current = rows[from].id;
            };
            for (int step = 0; step < 150; ++step) {
                const int at = indexOf(current);
                const int act = random.bounded(12);
                const int index = rows.isEmpty() ? -1 : random.bounded(rows.size());
                QList<int> expected;
                if (act < 3 || rows.isEmpty()) {
                    const Row row{1000 * round + step, random.bounded(3) == 0, random.bounded(4) > 0};
                    const int place = random.bounded(rows.size() + 1);
                    insert(box, place, row);
                    rows.insert(place, row);
                    if (rows.size() == 1)
                        become(0);
                } else if (act == 3) {
                    box.removeItem(index);
                    rows.remove(index);
                    if (index == at)
                        become(qMin(index, rows.size() - 1));
                } else if (act == 4) {
                    itemsOf(box)->item(index)->setEnabled(rows[index].enabled = !rows[index].enabled);
                } else if (act == 5) {
                    box.setCurrentIndex(index);
                    if (rows[index].isAction)
                        expected.append(index);
                    else
                        become(index);
                } else if (act == 6) {
                    itemsOf(box)->setSortRole(step % 3 ? sortRole : int(Qt::UserRole)); // a silent move
                    itemsOf(box)->sort(0, step % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
                    QVector<Row> sorted;
                    for (int i = 0; i < rows.size(); ++i) {
                        const QStandardItem *item = itemsOf(box)->item(i);
                        const bool isAction = item->data(OverviewComboBox::IsActionRole).toBool();
                        sorted.append({item->data(Qt::UserRole).toInt(), isAction, item->isEnabled()});
                    }
                    rows = sorted;
                } else if (act == 7) {
                    const int delta = random.bounded(3) - 1;
                    QWheelEvent wheel({}, {}, {}, {50, 120 * delta}, {}, {}, Qt::NoScrollPhase, false);
                    QCoreApplication::sendEvent(&box, &wheel);
                    if (delta != 0)
                        search(at - delta, -delta);
                } else {
                    const QVector<Qt::Key> keys{Qt::Key_Up,   Qt::Key_PageUp,   Qt::Key_Down,
                                                Qt::Key_Home, Qt::Key_PageDown, Qt::Key_End};
                    const int key = random.bounded(keys.size());
                    QTest::keyClick(&box, keys[key]);
                    const bool up = key < 2;
                    if (keys[key] == Qt::Key_Home || keys[key] == Qt::Key_End)
                        search(key == 3 ? 0 : rows.size() - 1, key == 3 ? 1 : -1);
                    else
                        search(up ? at - 1 : at + 1, up ? -1 : 1);
                    QTest::keyClick(&box, up ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
                }
                QCOMPARE(box.currentIndex(), indexOf(current));
                QCOMPARE(triggered.size(), expected.size());
                if (!expected.isEmpty())
                    QCOMPARE(triggered.takeFirst().first().toInt(), expected.first());
            }
            QVERIFY(activated.isEmpty());
        }
    }

    /** Whatever changes, the hints are those of a box that has measured nothing yet. */
    void sizes()
    {
        QRandomGenerator random(20261124);
        OverviewComboBox box;
        QStandardItemModel other;
        QSignalSpy textChanged(&box, &OverviewComboBox::currentTextChanged);
        QCOMPARE(box.sizeHint(), QSize(0, 0));
        QCOMPARE(box.sizeHintForItem(0), QSize());
        const auto text = [&] { return QString(random.bounded(5) * random.bounded(12), 'x'); };
        for (int step = 0; step < 400; ++step) {
            const int index = box.count() == 0 ? -1 : random.bounded(box.count());
            const int act = random.bounded(10);
            if (act < 2)
                box.insertItem(random.bounded(20) - 5, QIcon(), text() + "<br>" + text(), text(), text());
            else if (act == 2)
                box.addActionItem(text());
            else if (act == 3)
                box.removeItem(index);
            else if (act == 4)
                box.setItemTitle(index, text());
            else if (act == 5)
                box.setItemPath(index, text());
            else if (act == 6) // past the box
                box.setItemData(index, text(), OverviewComboBox::DescriptionRole + random.bounded(2));
            else if (act == 7)
                box.setStyleSheet(
                    sheet
                    + QString("NVO--OverviewComboBox { font-size: %1px; }").arg(10 + step % 20).toUtf8());
            else if (act == 8 && box.count() > 20)
                itemsOf(box)->clear();
            else if (act == 9 && index >= 0)
                itemsOf(box)->appendRow(itemsOf(box)->item(index)->clone());
            if (step == 200)
                box.setModel(&other);
            textChanged.clear();
            OverviewComboBox fresh;
            fresh.setStyleSheet(box.styleSheet());
            fresh.ensurePolished();
            box.ensurePolished();
            QCOMPARE(fresh.font(), box.font());
            QSize largest(0, 0);
            for (int i = 0; i < box.count(); ++i) {
                const QStandardItem *item = itemsOf(box)->item(i);
                if (item->data(OverviewComboBox::IsActionRole).toBool())
                    fresh.addActionItem(item->data(OverviewComboBox::ActionTextRole).toString());
                else
                    fresh.addItem(QIcon(), box.itemTitle(i), box.itemDescription(i), box.itemPath(i));
                QCOMPARE(box.sizeHintForItem(i), fresh.sizeHintForItem(i));
                largest = largest.expandedTo(fresh.sizeHintForItem(i));
            }
            QCOMPARE(box.sizeHint(), largest);
            QVERIFY(textChanged.isEmpty()); // to measure is no change
        }
    }

    void sizeOfItem_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("path");
        const QString wide(10000, 'W');
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "";
        QTest::newRow("path") << ""
                              << ""
                              << "C:\\Daten";
        QTest::newRow("texts") << "Titel"
                               << "Eine Beschreibung"
                               << "";
        QTest::newRow("all") << "Ein <strong>breiter</strong> Titel"
                             << "zwei<br>Zeilen"
                             << "C:\\Daten";
        QTest::newRow("long") << wide << wide + "<b>" + wide << wide;
    }

    void sizeOfItem()
    {
        QFETCH(QString, title);
        QFETCH(QString, description);
        QFETCH(QString, path);
        OverviewComboBox box;
        box.addItem(QIcon(), title, description, path);
        box.addActionItem(title);
        box.ensurePolished();
        const QSizeF first = textSize(box.itemTitle(0), box.font());
        const QSizeF second = textSize(box.itemDescription(0), box.font());
        QFont font = box.font();
        font.setPixelSize(11);
        const int line = path.isEmpty() ? 0 : 5 + QFontMetrics(font).boundingRect(path).height();
        const int height = int(first.height() + second.height()) + line + 20;
        QCOMPARE(box.sizeHintForItem(0),
                 QSize(int(qMax(first.width(), second.width())) + 82, qMax(46, height)));
        QTextDocument action;
        action.setHtml(box.itemTitle(0));
        QCOMPARE(box.sizeHintForItem(1),
                 QSize(int(action.size().width()) + 48, qMax(46, int(action.size().height()) + 20)));
        QVERIFY(!box.itemTitle(0).contains("<strong>"));
        // All entries of the list are as large as the largest, action items only as they need.
        box.addItem(QIcon(), "x", "", "");
        const QAbstractItemDelegate *delegate = box.itemDelegate();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(delegate->sizeHint({}, box.model()->index(i, 0)),
                     i == 1 ? box.sizeHintForItem(1) : box.sizeHint());
        QVERIFY(!paintItem(box, QRect(0, 0, 300, 60)).isNull());
        // What is kept counts until a text changes.
        box.setItemData(2, 500, OverviewComboBox::CachedWidthRole);
        QCOMPARE(box.sizeHintForItem(2).width(), 582);
        QVERIFY(box.sizeHint().width() >= 582);
        box.setItemDescription(2, "y");
        QVERIFY(box.sizeHintForItem(2).width() < 200);
    }

    void painting()
    {
        const QString path("illi"); // its advance has a fraction and is wider than its ink
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            OverviewComboBox box;
            box.setLayoutDirection(direction);
            box.addItem(QIcon(), "", "", path);
            box.ensurePolished();
            QFont font = box.font();
            font.setPixelSize(11);
            const int enough = 44 + qCeil(QFontMetricsF(font).horizontalAdvance(path)) + 38;
            box.setItemTitle(0, QString(200, 'x'));
            box.setItemPath(0, QString(200, 'y'));
            for (int width = 60; width < enough + 60; width += 7) {
                const QRect ink = inkOf(paintItem(box, QRect(13, 7, width, 60)));
                QVERIFY(width < 100 || ink.width() > 0);
                QVERIFY(ink.isEmpty() || (ink.left() >= 44 && ink.right() < width - 38));
            }
            // Nothing is elided that fits.
            box.setItemTitle(0, "");
            box.setItemPath(0, path);
            QImage whole(enough, 60, QImage::Format_RGB32);
            whole.fill(Qt::white);
            QPainter painter(&whole);
            painter.setFont(font);
            painter.setPen(Qt::blue);
            painter.drawText(10, 30, path);
            for (const int width : {enough, enough + 50})
                QCOMPARE(inkOf(paintItem(box, QRect(0, 0, width, 60))).size(), inkOf(whole).size());
            QVERIFY(inkOf(paintItem(box, QRect(0, 0, enough - 2, 60))).width() < inkOf(whole).width());

            // Colours give way, faces do not.
            box.setItemPath(0, "");
            box.setItemTitle(0, "<span style='color:red'>Titel</span> <b>fett</b>");
            const QImage both = paintItem(box, QRect(0, 0, 300, 60), Qt::white);
            QVERIFY(inkOf(both).isEmpty());
            const int bold = inkOf(paintItem(box, QRect(0, 0, 300, 60))).width();
            box.setItemTitle(0, "Titel fett");
            QVERIFY(inkOf(paintItem(box, QRect(0, 0, 300, 60))).width() < bold);
            // In the middle of a box that is higher, and where it was in its list.
            const QRect inMiddle = inkOf(paintItem(box, QRect(0, 0, 300, 100)));
            QVERIFY(qAbs(inMiddle.top() + inMiddle.bottom() - 100) < 10);
            box.addActionItem("Befehl");
            const QRect action = inkOf(paintItem(box, QRect(0, 0, 300, 50), Qt::blue, 1));
            QVERIFY(action.left() >= 10 && action.left() < 14);
            QVERIFY(qAbs(action.top() + action.bottom() - 50) < 8);
        }
    }

    void icons_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("drawn");
        QTest::newRow("none") << QSize(0, 0) << QSize(0, 0);
        QTest::newRow("dot") << QSize(1, 1) << QSize(24, 24);
        QTest::newRow("small") << QSize(16, 16) << QSize(24, 24);
        QTest::newRow("exact") << QSize(24, 24) << QSize(24, 24);
        QTest::newRow("large") << QSize(500, 500) << QSize(24, 24);
        QTest::newRow("wide") << QSize(96, 32) << QSize(24, 8);
        QTest::newRow("high") << QSize(4, 12) << QSize(8, 24);
    }

    void icons()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, drawn);
        QPixmap pixmap(size);
        pixmap.fill(Qt::red);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            OverviewComboBox box;
            box.setLayoutDirection(direction);
            box.addItem(pixmap, "", "", "");
            QRect area(QPoint(0, 0), drawn);
            area.moveCenter(QRect(10, 18, 24, 24).center());
            QCOMPARE(inkOf(paintItem(box, QRect(5, 9, 200, 60))), drawn.isEmpty() ? QRect() : area);
        }
    }

    void list()
    {
        OverviewComboBox box;
        for (int i = 0; i < 6; ++i)
            insert(box, i, {i, i > 3, i != 2});
        box.resize(200, 60);
        box.move(100, 20);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
        QVERIFY(box.view()->isVisible());
        QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
        QSignalSpy changed(&box, QOverload<int>::of(&OverviewComboBox::currentIndexChanged));
        QTest::keyClick(box.view(), Qt::Key_End);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(triggered, (QList<QVariantList>{{5}}));
        QCOMPARE(changed, (QList<QVariantList>{{5}})); // and not 0 again
        QCOMPARE(box.currentIndex(), 0);
        box.setItemData(0, true, OverviewComboBox::IsActionRole); // nothing to go back to
        box.setCurrentIndex(4);
        QCOMPARE(box.currentIndex(), -1);
    }

    void accessibleTexts()
    {
        OverviewComboBox box;
        box.addItem(QIcon(), "Muster <b>GmbH</b> &amp; Co.", "Mandant<br>seit 2020", "C:\\Daten");
        box.addActionItem("<b>Anlegen</b> …");
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(interface->role(), QAccessible::ComboBox);
        QVERIFY(interface->state().hasPopup && interface->state().collapsed);
        QAccessibleTableInterface *rows = interface->child(0)->tableInterface();
        for (QAccessibleInterface *each : {interface, rows->cellAt(0, 0)}) {
            QCOMPARE(each->text(QAccessible::Name), QString("Muster GmbH & Co."));
            QCOMPARE(each->text(QAccessible::Description), QString("Mandant seit 2020\nC:\\Daten"));
        }
        QCOMPARE(rows->cellAt(1, 0)->text(QAccessible::Name), QString("Anlegen …"));
        box.setAccessibleName("Mandant");
        QCOMPARE(interface->text(QAccessible::Name), QString("Mandant"));
        QCOMPARE(interface->text(QAccessible::Value), QString("Muster GmbH & Co."));
        interface->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(box.view()->isVisible() && interface->state().expanded);
    }

    void participantsGo()
    {
        QPointer<OverviewComboBox> box = new OverviewComboBox;
        for (int i = 0; i < 40; ++i)
            insert(*box, i, {i, i % 4 == 3, false}); // all disabled
        box->show();
        box->showPopup();
        QTest::keyClick(box, Qt::Key_Down);
        for (const int index : {39, 0, 17, -1, 99})
            box->removeItem(index);
        box->view()->grab();
        QCOMPARE(box->count(), 37);
        box->setItemTitle(99, "x");
        QCOMPARE(box->itemTitle(99), QString());

        // An action item in front of another model is not chosen by that.
        QSignalSpy triggered(box, &OverviewComboBox::actionTriggered);
        auto *actions = new QStandardItemModel(1, 1);
        actions->setData(actions->index(0, 0), true, OverviewComboBox::IsActionRole);
        box->setModel(actions);
        QCOMPARE(box->currentIndex(), -1);
        box->addItem(QIcon(), "Titel", "", "");
        box->setCurrentIndex(1);
        box->setCurrentIndex(0);
        QCOMPARE(box->currentIndex(), 1);
        QCOMPARE(triggered, (QList<QVariantList>{{0}}));
        delete actions; // while the list is open
        QCOMPARE(box->count(), 0);
        box->view()->grab();

        QStringListModel strings({"a", "b"});
        box->setModel(&strings);
        box->addItem(QIcon(), "Titel", "", "");
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->sizeHint(), QSize(82, 46));
        box->setEditable(true);
        QTest::keyClicks(box->lineEdit(), "b");
        QTest::keyClick(box, Qt::Key_Home);
        QCOMPARE(box->currentIndex(), 0);
        box->setEditable(false);

        box->setModel(new QStandardItemModel(0, 1, box));
        insert(*box, 0, {0, false, true});
        insert(*box, 1, {1, true, true});
        box->hidePopup();
        delete box->view(); // for which Qt makes a plain one
        box->showPopup();
        QVERIFY(box->view()->sizeHintForRow(0) >= 46);
        connect(box, &OverviewComboBox::actionTriggered, box, &OverviewComboBox::deleteLater);
        QTest::keyClick(box->view(), Qt::Key_End);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(box.isNull());

        box = new OverviewComboBox;
        insert(*box, 0, {0, false, true});
        box->showPopup();
        delete box;
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestOverviewComboBox)
#include "tst_overviewcombobox.moc"
