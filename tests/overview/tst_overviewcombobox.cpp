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

#include <array>
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

int idOf(const OverviewComboBox &box, int index)
{
    return box.itemData(index, Qt::UserRole).toInt();
}

bool isAction(const OverviewComboBox &box, int index)
{
    return box.itemData(index, OverviewComboBox::IsActionRole).toBool();
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

void fill(QTextDocument &document, const QString &html, const QFont &font)
{
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setHtml(html);
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
    QSizeF texts(0, 0);
    for (const QString &html : {box.itemTitle(index), box.itemDescription(index)}) {
        QTextDocument document;
        fill(document, html, box.font());
        if (!html.isEmpty())
            texts = {qMax(texts.width(), document.size().width()), texts.height() + document.size().height()};
    }
    const QString path = box.itemPath(index);
    const int line = path.isEmpty() ? 0 : 5 + QFontMetrics(pathFont(box)).boundingRect(path).height();
    return QSize(int(texts.width()) + 82, qMax(46, int(texts.height()) + line + 20));
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
        QRandomGenerator random(20261123);
        for (int round = 0; round < 30; ++round) {
            OverviewComboBox box;
            QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
            QSignalSpy activated(&box, QOverload<int>::of(&OverviewComboBox::activated));
            int current = -1; // the id of the current entry
            const auto indexOf = [&](int id) {
                int index = box.count() - 1;
                while (index >= 0 && idOf(box, index) != id)
                    --index;
                return index;
            };
            const auto become = [&](int index) {
                current = index < 0 || isAction(box, index) ? -1 : idOf(box, index);
            };
            const auto search = [&](int from, int step) {
                while (from >= 0 && from < box.count()
                       && (isAction(box, from) || !itemsOf(box)->item(from)->isEnabled()))
                    from += step;
                if (from >= 0 && from < box.count())
                    become(from);
            };
            connect(&box, &OverviewComboBox::actionTriggered, &box,
                    [&] { QCOMPARE(box.currentIndex(), indexOf(current)); });
            for (int step = 0; step < 150; ++step) {
                const int count = box.count();
                const int at = indexOf(current);
                const int act = random.bounded(12);
                const int index = count == 0 ? -1 : random.bounded(count);
                QList<QVariantList> expected;
                if (act < 3 || count == 0) {
                    const int place = random.bounded(count + 1);
                    insert(box, place, {step, random.bounded(3) == 0, random.bounded(4) > 0});
                    if (count == 0)
                        become(0);
                } else if (act == 3) {
                    box.removeItem(index);
                    if (index == at)
                        become(qMin(index, count - 2));
                } else if (act == 4) {
                    itemsOf(box)->item(index)->setEnabled(random.bounded(2) == 0);
                } else if (act == 5) {
                    box.setCurrentIndex(index);
                    if (isAction(box, index))
                        expected.append({index});
                    else
                        become(index);
                } else if (act == 6) {
                    itemsOf(box)->setSortRole(step % 3 ? sortRole : int(Qt::UserRole)); // a silent move
                    itemsOf(box)->sort(0, step % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
                } else if (act == 7) {
                    const int delta = random.bounded(3) - 1;
                    QWheelEvent wheel({}, {}, {}, {50, 120 * delta}, {}, {}, Qt::NoScrollPhase, false);
                    QCoreApplication::sendEvent(&box, &wheel);
                    if (delta != 0)
                        search(at - delta, -delta);
                } else {
                    const QVector<Qt::Key> keys{Qt::Key_Up,   Qt::Key_PageUp,   Qt::Key_Down,
                                                Qt::Key_Home, Qt::Key_PageDown, Qt::Key_End};
                    const Qt::Key key = keys[random.bounded(keys.size())];
                    const bool up = key == Qt::Key_Up || key == Qt::Key_PageUp;
                    QTest::keyClick(&box, key);
                    if (key == Qt::Key_Home || key == Qt::Key_End)
                        search(key == Qt::Key_Home ? 0 : count - 1, key == Qt::Key_Home ? 1 : -1);
                    else
                        search(up ? at - 1 : at + 1, up ? -1 : 1);
                    QTest::keyClick(&box, up ? Qt::Key_Up : Qt::Key_Down, Qt::ControlModifier);
                }
                QCOMPARE(box.currentIndex(), indexOf(current));
                QCOMPARE(triggered, expected);
                triggered.clear();
            }
            QVERIFY(activated.isEmpty());
        }
    }

    /** Whatever changes, no hint is an old one. */
    void sizes()
    {
        QRandomGenerator random(20261124);
        OverviewComboBox box;
        QStandardItemModel other(1, 1); // used in a box of another font
        other.setData(other.index(0, 0), 5000, OverviewComboBox::CachedWidthRole);
        other.setData(other.index(0, 0), 5000, OverviewComboBox::CachedHeightRole);
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
            box.ensurePolished();
            QSize largest(0, 0);
            for (int i = 0; i < box.count(); ++i) {
                QCOMPARE(box.sizeHintForItem(i), measured(box, i));
                largest = largest.expandedTo(measured(box, i));
            }
            QCOMPARE(box.sizeHint(), largest);
            QVERIFY(textChanged.isEmpty()); // to measure is no change
        }
    }

    void sizesAreKept()
    {
        const QString wide(10000, 'W');
        OverviewComboBox box;
        box.addItem(QIcon(), "Ein <strong>breiter</strong> Titel", "zwei<br>Zeilen", "C:\\Daten");
        box.addItem(QIcon(), "x", "", "");
        box.addActionItem("Befehl");
        box.ensurePolished();
        QVERIFY(!box.itemTitle(0).contains("<strong>"));
        // All entries of the list are as large as the largest, action items only as they need.
        for (int i = 0; i < 3; ++i)
            QCOMPARE(box.itemDelegate()->sizeHint({}, box.model()->index(i, 0)),
                     i == 2 ? box.sizeHintForItem(2) : box.sizeHint());
        // What is kept counts until a text changes, though it be written by somebody else.
        box.setItemData(1, 500, OverviewComboBox::CachedWidthRole);
        QCOMPARE(box.sizeHintForItem(1).width(), 582);
        QCOMPARE(box.sizeHint().width(), 582);
        {
            const QSignalBlocker quiet(box.model());
            box.setItemDescription(1, "y");
        }
        QCOMPARE(box.sizeHintForItem(1), measured(box, 1));
        box.insertItem(0, QIcon(), wide, wide + "<b>" + wide, wide);
        QCOMPARE(box.sizeHint().width(), measured(box, 0).width());
        QVERIFY(!paintItem(box, QRect(0, 0, 300, 60)).isNull());
        box.paint(nullptr, QRect(0, 0, 300, 60), 0, Qt::blue);
        itemsOf(box)->item(0)->appendRow(new QStandardItem);
        QCOMPARE(box.sizeHint().width(), measured(box, 0).width());
        box.setRootModelIndex(box.model()->index(0, 0));
        QCOMPARE(box.sizeHint(), QSize(82, 46));
    }

    void painting()
    {
        const QString path("illi"); // its advance has a fraction and is wider than its ink
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            OverviewComboBox box;
            box.setLayoutDirection(direction);
            box.addItem(QIcon(), "", "", path);
            box.ensurePolished();
            const int enough = 44 + qCeil(QFontMetricsF(pathFont(box)).horizontalAdvance(path)) + 38;
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
            const int whole = inkOf(paintItem(box, QRect(0, 0, enough + 50, 60))).width();
            QCOMPARE(inkOf(paintItem(box, QRect(0, 0, enough, 60))).width(), whole);
            QVERIFY(inkOf(paintItem(box, QRect(0, 0, enough - 2, 60))).width() < whole);

            // Colours give way, faces do not.
            box.setItemPath(0, "");
            box.setItemTitle(0, "<span style='color:red'>Titel</span> <b>fett</b>");
            QVERIFY(inkOf(paintItem(box, QRect(0, 0, 300, 60), Qt::white)).isEmpty());
            const int bold = inkOf(paintItem(box, QRect(0, 0, 300, 60))).width();
            box.setItemTitle(0, "Titel fett");
            const QRect plain = inkOf(paintItem(box, QRect(0, 0, 300, 60)));
            QVERIFY(plain.width() < bold && plain.left() < 48);
            box.setItemPath(0, QString(101, 'i'));
            const QImage elided = paintItem(box, QRect(0, 0, 300, 60));
            box.setItemPath(0, QString(100, 'i') + 'W'); // the end is shown
            QVERIFY(paintItem(box, QRect(0, 0, 300, 60)) != elided);
        }
    }

    /** Every text where it belongs. */
    void places()
    {
        OverviewComboBox box;
        box.addItem(QIcon(), "Titel", "Eine<br>Beschreibung", "C:\\Daten");
        box.addItem(QIcon(), "", "Beschreibung", "");
        box.addItem(QIcon(), "", "", "C:\\Daten");
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
                QCOMPARE(paintItem(box, QRect(QPoint(13, 7), expected.size()), Qt::blue, i), expected);
            }
        }
        // A row of a box that is higher than it looks as it does in any other.
        const QRect row(0, 0, 200, 80);
        const QImage picture = paintItem(box, row);
        box.setMinimumHeight(300);
        QCOMPARE(paintItem(box, row), picture);
    }

    void icons()
    {
        const QVector<QPair<QSize, QSize>> sizes{
            {{0, 0}, {0, 0}},       {{1, 1}, {24, 24}},  {{16, 16}, {24, 24}}, {{24, 24}, {24, 24}},
            {{500, 500}, {24, 24}}, {{96, 32}, {24, 8}}, {{4, 12}, {8, 24}}};
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            for (const auto &[size, drawn] : sizes) {
                QPixmap pixmap(size);
                pixmap.fill(Qt::red);
                OverviewComboBox box;
                box.setLayoutDirection(direction);
                box.addItem(pixmap, "", "", "");
                QRect area(QPoint(0, 0), drawn);
                area.moveCenter(QRect(10, 18, 24, 24).center());
                const QImage picture = paintItem(box, QRect(5, 9, 200, 60));
                QCOMPARE(inkOf(picture), drawn.isEmpty() ? QRect() : area);
                itemsOf(box)->item(0)->setEnabled(false);
                QCOMPARE(paintItem(box, QRect(5, 9, 200, 60)) == picture, drawn.isEmpty());
            }
        }
    }

    void look()
    {
        OverviewComboBox box;
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(box.cursor().shape(), Qt::PointingHandCursor);
        m_theme->set("OverviewComboBox", sheet + "NVO--OverviewComboBox { font-size: 20px; }");
        NVO::Css::instance().reset();
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(&box, &change);
        box.ensurePolished();
        QCOMPARE(box.font().pixelSize(), 20);
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
        QWheelEvent wheel({}, {}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        box.event(&wheel);
        QCOMPARE(box.currentIndex(), 0);
        QSignalSpy triggered(&box, &OverviewComboBox::actionTriggered);
        QSignalSpy changed(&box, QOverload<int>::of(&OverviewComboBox::currentIndexChanged));
        QTest::keyClick(box.view(), Qt::Key_End);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(triggered, (QList<QVariantList>{{5}}));
        QCOMPARE(changed, (QList<QVariantList>{{5}})); // and not 0 again
        QCOMPARE(box.currentIndex(), 0);
        const QSignalBlocker quiet(&box); // what became current meanwhile counts too
        box.setCurrentIndex(1);
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_End);
        box.blockSignals(false);
        QTest::keyClick(box.view(), Qt::Key_Return);
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

    /** Handlers that change the box, inside each other. */
    void handlers()
    {
        QRandomGenerator random(20261125);
        for (int round = 0; round < 60; ++round) {
            OverviewComboBox box;
            QStringListModel strings({"a", "b"});
            int depth = 0;
            const auto meddle = [&] {
                if (depth > 3)
                    return;
                const QScopedValueRollback<int> deeper(depth, depth + 1);
                const int index = random.bounded(8) - 1;
                const int act = random.bounded(11);
                if (act < 2)
                    box.insertItem(index, QIcon(), "Titel", "", "");
                else if (act < 4)
                    box.insertActionItem(index, "Befehl");
                else if (act < 8)
                    box.setCurrentIndex(index);
                else if (act == 8)
                    box.removeItem(index);
                else if (act == 9)
                    box.clear();
                else if (random.bounded(4) == 0)
                    box.setModel(&strings);
                else
                    box.setModel(new QStandardItemModel(&box));
            };
            connect(&box, QOverload<int>::of(&OverviewComboBox::currentIndexChanged), &box, meddle);
            connect(&box, &OverviewComboBox::actionTriggered, &box, meddle);
            for (int step = 0; step < 60; ++step) {
                meddle();
                QVERIFY(!isAction(box, box.currentIndex()));
                box.showPopup();
            }
            box.grab();
            box.view()->grab();
        }
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
        box->setCurrentIndex(1);
        QTest::keyClick(box, Qt::Key_Home); // of the text
        QCOMPARE(box->currentIndex(), 1);
        box->setCurrentIndex(0);
        box->setEditable(false);

        box->setModel(new QStandardItemModel(0, 1, box));
        insert(*box, 0, {1, true, true});
        QCOMPARE(box->currentIndex(), -1);
        insert(*box, 0, {0, false, true});
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
