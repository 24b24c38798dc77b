#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Css.h>
#include <nvo/OverviewComboBox.h>

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QAccessible>
#include <QBitmap>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTextDocument>
#include <QtTest>

#include <functional>
#include <optional>

using NVO::OverviewComboBox;

namespace {

const QByteArray sheet = "NVO--OverviewComboBox { border: 1px solid black; font-family: 'DejaVu Sans'; }"
                         "NVO--OverviewComboBox { font-size: 13px; combobox-popup: 0; }";
constexpr int sortRole = Qt::UserRole + 50;

QStandardItemModel *itemsOf(const OverviewComboBox &box)
{
    return qobject_cast<QStandardItemModel *>(box.model());
}

bool isAction(const OverviewComboBox &box, int index)
{
    return box.itemData(index, OverviewComboBox::IsActionRole).toBool();
}

void insert(OverviewComboBox &box, int index, int id, bool isAction, bool enabled)
{
    if (isAction)
        box.insertActionItem(index, "Befehl");
    else
        box.insertItem(index, QIcon(), "Titel", "Beschreibung", "C:\\", id);
    itemsOf(box)->item(index)->setData(id, Qt::UserRole);
    itemsOf(box)->item(index)->setData(id * 7919 % 1009, sortRole);
    itemsOf(box)->item(index)->setEnabled(enabled);
}

void wheel(OverviewComboBox &box, int delta)
{
    QWheelEvent event({}, {}, {}, {50, 120 * delta}, {}, {}, Qt::NoScrollPhase, false);
    box.event(&event);
}

void chooseLast(const OverviewComboBox &box)
{
    QTest::keyClick(box.view(), Qt::Key_End);
    QTest::keyClick(box.view(), Qt::Key_Return);
}

/** An item painted on white into \a size, mirrored back where the box is mirrored. */
QImage paintItem(OverviewComboBox &box, const QSize &size, const QColor &color = Qt::blue, int index = 0)
{
    box.ensurePolished();
    box.resize(size);
    const QRect rect(QPoint(13, 7), size);
    QImage picture(rect.right() + 20, rect.bottom() + 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    box.paint(&painter, rect, index, color);
    return picture.copy(rect).mirrored(box.isRightToLeft(), false);
}

/** Where a painted item is not white. */
QRect inkOf(OverviewComboBox &box, int width, const QColor &color = Qt::blue)
{
    const QImage mask = paintItem(box, {width, 60}, color).createMaskFromColor(qRgb(255, 255, 255));
    return QRegion(QBitmap::fromImage(mask)).boundingRect();
}

QSizeF fill(QTextDocument &document, const QString &html, const QFont &font)
{
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
    return html.isEmpty() ? QSizeF(0, 0) : document.size();
}

QFont pathFont(const OverviewComboBox &box)
{
    QFont font = box.font();
    font.setPixelSize(11);
    return font;
}

/** What an item takes, measured here. */
QSize measured(const OverviewComboBox &box, int index)
{
    if (isAction(box, index)) {
        QTextDocument action;
        action.setHtml(box.itemData(index, OverviewComboBox::ActionTextRole).toString());
        return QSize(int(action.size().width()) + 48, qMax(46, int(action.size().height()) + 20));
    }
    QTextDocument title;
    QTextDocument description;
    const QSizeF one = fill(title, box.itemTitle(index), box.font());
    const QSizeF two = fill(description, box.itemDescription(index), box.font());
    const QString path = box.itemPath(index);
    const int line = path.isEmpty() ? 0 : 5 + QFontMetrics(pathFont(box)).boundingRect(path).height();
    return QSize(int(qMax(one.width(), two.width())) + 82,
                 qMax(46, int(one.height() + two.height()) + line + 20));
}

/** What may be done to a box, each with an index that need not exist. */
QVector<std::function<void(int)>> actsOn(OverviewComboBox &box, QRandomGenerator &random)
{
    const auto text = [&] { return QString(random.bounded(5) * random.bounded(12), 'x'); };
    return {[=, &box](int i) { box.insertItem(2 * i, {}, text() + "<br>" + text(), text(), text()); },
            [=, &box](int i) { box.insertItem(i, {}, text(), text(), text()); },
            [=, &box](int i) { box.insertActionItem(i, text()); },
            [=, &box](int i) { box.setItemTitle(i, text()); },
            [=, &box](int i) { box.setItemPath(i, text()); },
            [=, &box](int i) { box.setItemData(i, text(), OverviewComboBox::DescriptionRole); }, // past it
            [=, &box](int i) { box.setItemData(i, text(), OverviewComboBox::ActionTextRole); },
            [&](int i) { box.setStyleSheet(sheet + QString("* { font-size: %1px; }").arg(10 + i).toUtf8()); },
            [&](int i) { box.removeItem(i); },
            [&](int i) { box.setCurrentIndex(i); },
            [&](int i) { box.setCurrentIndex(i - 1); },
            [&](int) { box.count() > 20 ? box.clear() : box.setCurrentIndex(0); },
            [&](int i) {
                i == 7 ? box.setModel(new QStringListModel({"a", "b"}, &box)) : void();
            },
            [&](int i) { i == 7 ? box.setModel(new QStandardItemModel(&box)) : void(); }};
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

    /** Rows come, go, move and are chosen in every order, also by keyboard and wheel. */
    void walk()
    {
        using Key = QPair<Qt::Key, int>;
        const QVector<Key> keys{Key(Qt::Key_Up, -1),      Key(Qt::Key_PageUp, -1), Key(Qt::Key_Down, 1),
                                Key(Qt::Key_PageDown, 1), Key(Qt::Key_Home, 1),    Key(Qt::Key_End, -1)};
        QRandomGenerator random(20261123);
        for (int round = 0; round < 30; ++round) {
            OverviewComboBox box;
            QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
            int current = -1; // the id of the current entry
            const auto at = [&] { return current < 0 ? -1 : box.findData(current); };
            const auto become = [&](int index) {
                current = index < 0 || isAction(box, index) ? -1 : box.itemData(index).toInt();
            };
            const auto search = [&](int from, int step) {
                const auto *item = itemsOf(box)->item(from);
                for (; item && (isAction(box, from) || !item->isEnabled()); item = itemsOf(box)->item(from))
                    from += step;
                if (item)
                    become(from);
            };
            connect(&box, &OverviewComboBox::actionTriggered, &box,
                    [&] { QCOMPARE(box.currentIndex(), at()); });
            for (int step = 0; step < 150; ++step) {
                const int count = box.count();
                const int act = count == 0 ? 0 : random.bounded(12);
                const int index = count == 0 ? -1 : random.bounded(count);
                QList<QVariantList> expected;
                if (act < 3) {
                    insert(box, random.bounded(count + 1), step, random.bounded(3) == 0,
                           random.bounded(4) > 0);
                    if (count == 0)
                        become(0);
                } else if (act == 3) {
                    box.removeItem(index);
                    if (current >= 0 && at() < 0)
                        become(qMin(index, count - 2));
                } else if (act == 4) {
                    itemsOf(box)->item(index)->setEnabled(random.bounded(2) == 0);
                } else if (act == 5) {
                    if (isAction(box, index))
                        expected.append({index});
                    else
                        become(index);
                    box.setCurrentIndex(index);
                } else if (act == 6) {
                    itemsOf(box)->setSortRole(step % 3 ? sortRole : int(Qt::UserRole)); // a silent move
                    itemsOf(box)->sort(0, step % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
                } else if (act == 7) {
                    const int delta = random.bounded(3) - 1;
                    wheel(box, delta);
                    if (delta != 0)
                        search(at() - delta, -delta);
                } else {
                    const auto &[key, way] = keys[random.bounded(keys.size())];
                    QTest::keyClick(&box, key);
                    search(key == Qt::Key_Home ? 0 : key == Qt::Key_End ? count - 1 : at() + way, way);
                    QTest::keyClick(&box, way < 0 ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
                }
                QCOMPARE(box.currentIndex(), at());
                QCOMPARE(triggered, expected);
                triggered.clear();
            }
        }
    }

    /** Whatever changes, also by handlers inside each other, no hint is an old one and no action current. */
    void changes()
    {
        QRandomGenerator random(20261124);
        for (int round = 0; round < 30; ++round) {
            OverviewComboBox box;
            QStandardItemModel other(1, 1); // used in a box of another font
            other.setData(other.index(0, 0), 5000, OverviewComboBox::CachedWidthRole);
            other.setData(other.index(0, 0), 5000, OverviewComboBox::CachedHeightRole);
            const auto acts = actsOn(box, random);
            int depth = 0;
            const auto meddle = [&] {
                const QScopedValueRollback<int> deeper(depth, depth + 1);
                if (depth < (round % 2 ? 5 : 2))
                    acts[random.bounded(acts.size())](random.bounded(box.count() + 3) - 1);
            };
            connect(&box, QOverload<int>::of(&OverviewComboBox::currentIndexChanged), &box, meddle);
            connect(&box, &OverviewComboBox::actionTriggered, &box, meddle);
            QSignalSpy textChanged(&box, &OverviewComboBox::currentTextChanged);
            for (int step = 0; step < 60; ++step) {
                meddle();
                if (step == 20)
                    box.setModel(&other);
                QVERIFY(!isAction(box, box.currentIndex()));
                box.showPopup();
                textChanged.clear();
                QSize largest(0, 0);
                for (int i = 0; i < box.count(); ++i) {
                    QCOMPARE(box.sizeHintForItem(i), measured(box, i));
                    largest = largest.expandedTo(measured(box, i));
                }
                QCOMPARE(box.sizeHint(), largest);
                QVERIFY(textChanged.isEmpty()); // to measure is no change
            }
            box.grab();
        }
    }

    void sizesAreKept()
    {
        OverviewComboBox box;
        box.addItem(QIcon(), "Ein <strong>breiter</strong> Titel", "zwei<br>Zeilen", "C:\\Daten");
        box.addItem(QIcon(), "x", "", "");
        box.addActionItem("Befehl");
        box.ensurePolished();
        QVERIFY(!box.itemTitle(0).contains("<strong>"));
        // All entries of the list are as large as the largest, action items only as they need.
        QCOMPARE(box.itemDelegate()->sizeHint({}, box.model()->index(1, 0)), box.sizeHint());
        QCOMPARE(box.itemDelegate()->sizeHint({}, box.model()->index(2, 0)), box.sizeHintForItem(2));
        // What is kept counts until a text changes, though it be written by somebody else.
        box.setItemData(1, 500, OverviewComboBox::CachedWidthRole);
        QCOMPARE(box.sizeHintForItem(1).width(), 582);
        QCOMPARE(box.sizeHint().width(), 582);
        const QSignalBlocker quiet(box.model());
        box.setItemDescription(1, "y");
        QCOMPARE(box.sizeHintForItem(1), measured(box, 1));
        box.setItemTitle(0, QString(10000, 'W'));
        QCOMPARE(box.sizeHint().width(), measured(box, 0).width());
        QVERIFY(!paintItem(box, {300, 60}).isNull());
        box.paint(nullptr, QRect(0, 0, 300, 60), 0, Qt::blue);
        itemsOf(box)->item(0)->appendRow(new QStandardItem);
        box.setRootModelIndex(box.model()->index(0, 0));
        QCOMPARE(box.sizeHint(), QSize(82, 46));
    }

    /** Every text where it belongs, elided at its end of the row, the icon at the other. */
    void painting()
    {
        const QString path("illi"); // its advance has a fraction and is wider than its ink
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            OverviewComboBox box;
            box.setLayoutDirection(direction);
            box.addItem(QIcon(), QString(200, 'x'), "", QString(200, 'y'));
            box.ensurePolished();
            const int enough = 44 + qCeil(QFontMetricsF(pathFont(box)).horizontalAdvance(path)) + 38;
            for (int width = 100; width < enough + 60; width += 7)
                QVERIFY(QRect(44, 0, width - 82, 60).contains(inkOf(box, width)));
            QVERIFY(inkOf(box, 60).isEmpty());
            box.setItemTitle(0, "");
            box.setItemPath(0, path);
            QCOMPARE(inkOf(box, enough).width(), inkOf(box, enough + 50).width());
            QVERIFY(inkOf(box, enough - 2).width() < inkOf(box, enough).width());
            box.setItemPath(0, QString(101, 'i'));
            const QImage elided = paintItem(box, {300, 60});
            box.setItemPath(0, QString(100, 'i') + 'W'); // the end is shown
            QVERIFY(paintItem(box, {300, 60}) != elided);

            // Colours give way, faces do not.
            box.setItemPath(0, "");
            box.setItemTitle(0, "<span style='color:red'>Titel</span> <b>fett</b>");
            QVERIFY(inkOf(box, 300, Qt::white).isEmpty());
            const int bold = inkOf(box, 300).width();
            box.setItemTitle(0, "Titel fett");
            QVERIFY(inkOf(box, 300).width() < bold && inkOf(box, 300).left() < 48);

            box.setItemTitle(0, "");
            for (const QSize size : {QSize(1, 1), QSize(500, 500), QSize(96, 32), QSize(4, 12)}) {
                QPixmap pixmap(size);
                pixmap.fill(Qt::red);
                box.setItemIcon(0, pixmap);
                QRect area(QPoint(0, 0), size.scaled(24, 24, Qt::KeepAspectRatio));
                area.moveCenter(QRect(10, 18, 24, 24).center());
                itemsOf(box)->item(0)->setEnabled(true);
                QCOMPARE(inkOf(box, 200), area);
                const QImage picture = paintItem(box, {200, 60});
                itemsOf(box)->item(0)->setEnabled(false);
                QVERIFY(paintItem(box, {200, 60}) != picture);
            }
        }
    }

    void places()
    {
        OverviewComboBox box;
        box.addItem(QIcon(), "Titel", "Eine<br>Beschreibung", "C:\\Daten");
        box.addItem(QIcon(), "", "Beschreibung", "");
        box.addActionItem("Ein <b>Befehl</b>");
        box.ensurePolished();
        for (const int height : {46, box.sizeHint().height(), 101}) {
            for (int i = 0; i < box.count(); ++i) {
                QImage expected(200, height, QImage::Format_RGB32);
                expected.fill(Qt::white);
                QPainter painter(&expected);
                const auto draw = [&](const QString &html, int left, int top) {
                    QTextDocument document;
                    fill(document, "<div style='color: blue'>" + html, box.font());
                    top = isAction(box, i) ? int((height - document.size().height()) / 2) : top;
                    painter.translate(left, top);
                    document.drawContents(&painter);
                    painter.resetTransform();
                    return html.isEmpty() ? top : top + int(document.size().height());
                };
                if (isAction(box, i)) {
                    draw(box.itemData(i, OverviewComboBox::ActionTextRole).toString(), 10, 0);
                } else {
                    const int content = box.itemData(i, OverviewComboBox::CachedHeightRole).toInt();
                    int top = qMax(height - content, 0) / 2 + 10;
                    painter.setClipRect(44, 0, 118, height);
                    top = draw(box.itemTitle(i), 44, top);
                    top = draw(box.itemDescription(i), 44, top) + 5;
                    painter.setFont(pathFont(box));
                    painter.setPen(Qt::blue);
                    const int line = painter.fontMetrics().boundingRect(box.itemPath(i)).height();
                    painter.drawText(QRect(44, top, 118, qMin(line, height - top)), Qt::AlignVCenter,
                                     box.itemPath(i));
                }
                QCOMPARE(paintItem(box, expected.size(), Qt::blue, i), expected);
            }
        }
        // A row of a box that is higher than it looks as it does in any other.
        const QImage picture = paintItem(box, {200, 80});
        box.setMinimumHeight(300);
        QCOMPARE(paintItem(box, {200, 80}), picture);
    }

    void list()
    {
        OverviewComboBox box;
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
        m_theme->set("OverviewComboBox", sheet + "NVO--OverviewComboBox { font-size: 20px; }");
        NVO::Css::instance().reset();
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(&box, &change);
        for (int i = 0; i < 6; ++i)
            insert(box, i, i, i > 3, i != 2);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QCOMPARE(box.font().pixelSize(), 20);
        QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);
        QVERIFY(box.view()->isVisible());
        wheel(box, -1);
        QCOMPARE(box.currentIndex(), 0);
        QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
        QSignalSpy changed(&box, QOverload<int>::of(&OverviewComboBox::currentIndexChanged));
        chooseLast(box);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(triggered, (QList<QVariantList>{{5}}));
        QCOMPARE(changed, (QList<QVariantList>{{5}})); // and not 0 again
        QCOMPARE(box.currentIndex(), 0);
        box.blockSignals(true); // what became current meanwhile counts too
        box.setCurrentIndex(1);
        box.showPopup();
        box.blockSignals(false);
        chooseLast(box);
        QCOMPARE(box.currentIndex(), 1);
        box.setItemData(1, true, OverviewComboBox::IsActionRole); // nothing to go back to
        box.setCurrentIndex(4);
        QCOMPARE(box.currentIndex(), -1);
    }

    void accessibleTexts()
    {
        OverviewComboBox box;
        box.addItem(QIcon(), "Muster <b>GmbH</b> &amp; Co.", "Mandant<br>seit 2020", "C:\\Daten");
        box.addActionItem("<b>Anlegen</b> …");
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&box);
        QAccessibleTableInterface *rows = interface->child(0)->tableInterface();
        for (QAccessibleInterface *each : {interface, rows->cellAt(0, 0)}) {
            QCOMPARE(each->text(QAccessible::Name), QString("Muster GmbH & Co."));
            QCOMPARE(each->text(QAccessible::Description), QString("Mandant seit 2020\nC:\\Daten"));
        }
        QCOMPARE(rows->cellAt(1, 0)->text(QAccessible::Name), QString("Anlegen …"));
        box.setAccessibleName("Mandant");
        QCOMPARE(interface->text(QAccessible::Name), QString("Mandant"));
        QCOMPARE(interface->text(QAccessible::Value), QString("Muster GmbH & Co."));
        QVERIFY(interface->state().hasPopup && interface->state().collapsed);
        interface->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(box.view()->isVisible() && interface->state().expanded);
    }

    void participantsGo()
    {
        QPointer<OverviewComboBox> box = new OverviewComboBox;
        for (int i = 0; i < 40; ++i)
            insert(*box, i, i, i % 4 == 3, false); // all disabled
        box->showPopup();
        QTest::keyClick(box, Qt::Key_Down);
        for (const int index : {39, 0, 17, -1, 99})
            box->removeItem(index);
        box->view()->grab();
        QCOMPARE(box->count(), 37);

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
        QCOMPARE(box->sizeHint(), QSize(82, 46));
        box->setEditable(true);
        box->setCurrentIndex(1);
        QTest::keyClick(box, Qt::Key_Home); // of the text
        QCOMPARE(box->currentIndex(), 1);
        box->setEditable(false);

        box->setModel(new QStandardItemModel(0, 1, box));
        insert(*box, 0, 1, true, true);
        QCOMPARE(box->currentIndex(), -1);
        delete box->view(); // for which Qt makes a plain one
        box->showPopup();
        QVERIFY(box->view()->sizeHintForRow(0) >= 46);
        connect(box, &OverviewComboBox::actionTriggered, box, &OverviewComboBox::deleteLater);
        chooseLast(*box);
        QTRY_VERIFY(!box);
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestOverviewComboBox)
#include "tst_overviewcombobox.moc"
