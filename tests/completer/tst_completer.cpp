#include "CompleterField.h"
#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"
#include "completer/CompleterDelegate.h"

#include <nvo/Palette.h>

#include <QStandardItemModel>
#include <QtWidgets>

namespace {

const QByteArray palette = "[Named]\n"
                           "COLOR_COMPLETER_MAINCAPTION_BACKGROUND_NORMAL=#ffff00\n"
                           "COLOR_COMPLETER_MAINCAPTION_TEXT_NORMAL=#ff0000\n"
                           "COLOR_COMPLETER_SUBCAPTION_TEXT_NORMAL=#00ff00\n"
                           "COLOR_COMPLETER_DATA_TEXT_NORMAL=#0000ff\n"
                           "COLOR_COMPLETER_DATA_TEXT_MOUSEOVER=#ff00ff\n"
                           "COLOR_COMPLETER_DATA_BACKGROUND_MOUSEOVER=#00ffff\n";

bool isData(int type)
{
    return type == Row::Data || type == Row::DataRemovable;
}

NVO::CompleterData makeRows(int rows, const QStringList &texts)
{
    NVO::CompleterData data;
    data.setTitle("Konten");
    QStringList headers;
    for (int i = 0; i < texts.size(); ++i)
        headers.append(QString("Spalte %1").arg(i));
    data.setHeaders(headers);
    for (int i = 0; i < rows; ++i)
        data.addRow(makeRow(i % 50 == 0 ? Row::MainCaption : Row::Data, texts));
    return data;
}

QVector<int> widths(const QHeaderView &header)
{
    QVector<int> widths;
    for (int i = 0; i < header.count(); ++i)
        widths.append(header.sectionSize(i));
    return widths;
}

/** What the popup paints for one cell, on white. */
QImage paintCell(const NVO::CompleterDelegate &delegate, int type, const QString &text, int column,
                 bool hovered, bool mirrored = false)
{
    QStandardItemModel model(1, 3);
    model.setData(model.index(0, column), text, Qt::DisplayRole);
    model.setData(model.index(0, column), type, Qt::UserRole);
    QStyleOptionViewItem option;
    option.rect = QRect(40, 0, 100, 25);
    option.state.setFlag(QStyle::State_MouseOver, hovered);
    option.direction = mirrored ? Qt::RightToLeft : Qt::LeftToRight;
    option.font.setPixelSize(12);
    option.font.setStyleStrategy(QFont::NoAntialias);
    QImage picture(180, 25, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    delegate.paint(&painter, option, model.index(0, column));
    painter.end();
    return mirrored ? picture.mirrored(true, false) : picture;
}

/** The columns of \a picture that have \a color: the first and the last. */
QPair<int, int> columnsOf(const QImage &picture, const QColor &color)
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

} // namespace

class TestCompleter : public TestCase
{
    Q_OBJECT

public:
    TestCompleter()
        : m_resources({{"Palette", palette},
                       {"clearWhite", TestResources::png(15, 15, {0xff101010})},
                       {"clearDark", TestResources::png(11, 11, {0xff202020})}})
    {
        NVO::Palette::instance().init();
    }

private Q_SLOTS:
    void parts()
    {
        CompleterField field;
        field.show();
        QCOMPARE(field.edit->height(), 25);
        QCOMPARE(field.bulb->size(), QSize(25, 25));
        QVERIFY(!field.bulb->isVisible() && field.bulb->focusPolicy() == Qt::NoFocus);
        QCOMPARE(field.focusProxy(), field.edit);
        for (const Qt::WindowType flag : {Qt::FramelessWindowHint, Qt::WindowDoesNotAcceptFocus})
            QVERIFY(field.popup->windowFlags() & flag);

        // 11 pixels in 16, with what is left of the ten sevenths around them.
        const QAction *cross = field.edit->actions().value(0);
        const QImage icon = cross->icon().pixmap(100, 100).toImage();
        QCOMPARE(icon.size(), QSize(16, 16));
        QCOMPARE(columnsOf(icon, 0xff202020), qMakePair(2, 12));
        QCOMPARE(cross->associatedWidgets().at(1)->cursor().shape(), Qt::PointingHandCursor);
    }

    void styles()
    {
        FontDeltaGuard guard;
        CompleterField field;
        QLineEdit other;
        field.show();
        other.show();
        const auto both = [&field] {
            return field.edit->property("style").toString() + ' ' + field.bulb->property("style").toString();
        };
        const auto give = [](QWidget *widget) {
            widget->activateWindow();
            widget->setFocus();
            QApplication::processEvents();
        };
        give(&field);
        give(&other);
        QCOMPARE(both(), QString("init Normal"));
        field.showButton();
        QCOMPARE(both(), QString("initHasButton initHasButton"));
        give(&field);
        QCOMPARE(both(), QString("focusIn focusIn"));
        give(&other);
        QCOMPARE(both(), QString("focusOut focusOut"));
        NVO::Css::instance().setFontDelta(2);
        QCOMPARE(both(), QString("focusOut focusOut"));
        QTest::mouseClick(field.bulb, Qt::LeftButton);
        QCOMPARE(field.focusWidget(), field.edit);
    }

    void opensAndCloses()
    {
        CompleterField field;
        field.setDataForCompleter(makeNames());
        field.setUsername("x"); // not on the screen yet
        QVERIFY(!field.popup->isVisible());
        field.show();
        field.activateWindow();
        field.setUsername({});
        field.setFocus();
        QAction *cross = field.edit->actions().value(0);
        const auto state = [&] { return qMakePair(field.popup->isVisible(), cross->isVisible()); };
        const auto open = qMakePair(true, true);
        const auto closed = qMakePair(false, false);
        QTest::keyClicks(field.edit, "ab");
        QApplication::processEvents();
        QCOMPARE(state(), open);
        QVERIFY(field.edit->hasFocus());
        QTest::keyClick(field.edit, Qt::Key_Backspace);
        QCOMPARE(state(), open);
        QTest::keyClick(field.edit, Qt::Key_Backspace);
        QCOMPARE(state(), closed);
        field.setUsername("b");
        cross->trigger();
        QCOMPARE(state(), closed);
        QVERIFY(field.text().isEmpty());
        field.setUsername("zzz"); // nothing matches
        QCOMPARE(state(), open);
        QCOMPARE(field.list->model()->rowCount(), 0);
        for (const bool visible : {false, true, false}) {
            QTest::mouseClick(field.bulb, Qt::LeftButton);
            QCOMPARE(state(), qMakePair(visible, true));
        }
        QTest::keyClicks(field.edit, "z");
        QCOMPARE(state(), open);
        field.setEnabled(false);
        QVERIFY(!field.popup->isVisible());
        field.setUsername("ab");
        QVERIFY(!field.popup->isVisible());
    }

    void captions()
    {
        NVO::CompleterData data;
        data.setHeaders({"Benutzer", "Name"});
        data.addRow(makeRow(Row::Data, {"oben", "an der Wurzel"}));
        for (const Row &row : makeNames().rowData())
            data.addRow(row);
        data.addRow(makeRow(Row::SubCaption, {"Leer"}));
        CompleterField field;
        field.show();
        field.setDataForCompleter(data);
        for (const char *text : {"", "e", "er", "zz", "e", "ob", "k", ""}) {
            field.setUsername(text);
            const QAbstractItemModel *model = field.list->model();
            for (int row = 0; row < model->rowCount(); ++row) {
                const QModelIndex index = model->index(row, 0);
                const bool isCaption = !isData(index.data(Qt::UserRole).toInt());
                QCOMPARE(field.list->isFirstColumnSpanned(row, {}), isCaption);
                QVERIFY(field.list->isExpanded(index) || !isCaption);
            }
        }
        // Neither clicks nor double clicks do anything to a caption.
        field.showCompleter();
        const QModelIndex caption = field.cell("Kanzlei");
        QTest::mouseDClick(field.list->viewport(), Qt::LeftButton, {},
                           field.list->visualRect(caption).center());
        field.click(caption);
        QVERIFY(field.list->isExpanded(caption) && field.popup->isVisible() && field.text().isEmpty());
        QCOMPARE(field.list->visualRect(field.cell("brandt")).height(), 25);
    }

    void width_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QStringList>("texts");
        for (const int rows : {0, 1, 7, 8, 3000}) {
            for (const int columns : {1, 2, 3}) {
                QStringList texts;
                for (int i = 0; i < columns; ++i)
                    texts.append(QString(5 + 7 * i, 'm'));
                QTest::addRow("%d rows, %d columns", rows, columns) << rows << texts;
            }
        }
    }
    void width()
    {
        QFETCH(int, rows);
        QFETCH(QStringList, texts);
        const int columns = texts.size();
        CompleterField field;
        field.show();
        field.setDataForCompleter(makeRows(rows, texts));
        const QAbstractItemView &list = *field.list;
        const QHeaderView &header = *field.list->header();
        QVector<int> content = widths(header);
        QCOMPARE(content.takeLast(), 25);
        for (int i = 0; i < columns; ++i)
            QCOMPARE(content.at(i), std::max(list.sizeHintForColumn(i), header.sectionSizeHint(i)));
        const int sum = std::accumulate(content.begin(), content.end(), 25);
        const int height =
            std::min(25 + 192, QGuiApplication::primaryScreen()->availableSize().height() * 2 / 3);
        const int bar =
            rows * 25 > height - 25 ? field.list->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
        for (const int target : {0, sum, sum + 5, sum + 100, sum + 101, 2000, sum + 50, 10}) {
            field.setFixedWidth(std::max(target, 1));
            for (const char *text : {"", "m", "mm"}) {
                field.setUsername(text);
                field.showCompleter();
                const int extra = sum < target ? (target - bar - sum) / columns : 0;
                QVector<int> expected = content;
                for (int &each : expected)
                    each += extra;
                QCOMPARE(widths(header), expected + QVector<int>{25});
                QCOMPARE(field.popup->width(), sum + columns * extra + bar);
                QCOMPARE(field.popup->height(), height);
                QVERIFY(!field.list->horizontalScrollBar()->isVisible());
            }
        }
    }

    void place_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("ltr") << Qt::LeftToRight;
        QTest::newRow("rtl") << Qt::RightToLeft;
    }
    void place()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QWidget window;
        window.setLayoutDirection(direction);
        window.setGeometry(100, 50, 300, 80);
        CompleterField field(&window);
        field.setGeometry(31, 17, 200, 25);
        field.setDataForCompleter(makeRows(3, {QString(80, 'm'), "x"}));
        window.show();
        field.setUsername("m");
        const auto isBelow = [&] {
            const QRect at(field.mapToGlobal({}), field.size());
            const QRect popup = field.popup->geometry();
            return popup.top() == at.bottom() + 1 && popup.width() > at.width()
                   && (direction == Qt::LeftToRight ? popup.left() == at.left()
                                                    : popup.right() == at.right());
        };
        QVERIFY(isBelow());
        window.move(140, 90);
        QVERIFY(isBelow());
        field.setGeometry(40, 30, 210, 25);
        QVERIFY(isBelow());
        field.setDataForCompleter(makeRows(3, {QString(90, 'm'), "x"}));
        QVERIFY(isBelow());
    }

    void choosing_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"Keller", "<b>Keller</b> & Söhne", "a &amp; b < c", "<i>x</i>"})
            QTest::newRow(name) << name;
    }
    void choosing()
    {
        QFETCH(QString, name);
        NVO::CompleterData data;
        data.setHeaders({"Name", "Ort"});
        data.addRow(makeRow(Row::MainCaption, {"Alle"}));
        data.addRow(makeRow(Row::Data, {name, "Fürth"}));
        CompleterField field;
        field.show();
        field.setDataForCompleter(data);
        QSignalSpy chosen(&field, &CompleterField::suggestionChosen);
        for (int column = 0; column < 3; ++column) { // the last one, too: nothing can be removed here
            field.setUsername("f");
            field.click(field.list->model()->index(0, column, field.list->model()->index(0, 0)));
            QCOMPARE(chosen.takeFirst(), QVariantList{name});
            QVERIFY(chosen.isEmpty() && !field.popup->isVisible());
            QCOMPARE(field.text(), name);
            QVERIFY(field.edit->actions().value(0)->isVisible());
            QVERIFY(field.list->model()->index(0, 0, field.list->model()->index(0, 0)).data() != name);
        }
    }

    // A row that was clicked stays the selected one, of which nothing is seen.
    void selectionIsNotPainted()
    {
        CompleterField field;
        field.show();
        field.setDataForCompleter(makeNames());
        const auto picture = [&field] {
            field.showCompleter();
            QTest::mouseMove(field.popup, {5, 5});
            QApplication::processEvents();
            return field.popup->grab().toImage();
        };
        field.setUsername("keller");
        const QImage before = picture();
        field.click("keller", 0);
        QVERIFY(field.list->selectionModel()->hasSelection());
        QCOMPARE(picture(), before);
    }

    void removing()
    {
        CompleterField field;
        field.show();
        field.setDataForCompleter(makeNames());
        QSignalSpy chosen(&field, &CompleterField::suggestionChosen);
        field.showCompleter();
        field.click("brandt", 2); // the last row below its caption
        field.click("moeller", 2);
        QVERIFY(field.popup->isVisible() && chosen.isEmpty());
        QCOMPARE(field.list->dataRowCount(), 3);
        field.setDataForCompleter(makeNames());
        field.click("brandt", 1);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(field.list->dataRowCount(), 5);
        field.setUsername({});
        field.showCompleter();
        field.click("brandt", 2);
        field.click("moeller", 2);
        QVERIFY(field.cell("Zuletzt").isValid() && !field.cell("brandt").isValid());
        QVERIFY(field.cell("keller").isValid() && !field.cell("moeller").isValid());
        field.popup->close();
        field.setUsername("z");
        QVERIFY(field.cell("Zuletzt").isValid() && !field.cell("brandt").isValid());
        field.setDataForCompleter(makeNames()); // while it is open
        QCOMPARE(field.list->model()->rowCount(), 2);
        field.setUsername({});
        QCOMPARE(field.list->dataRowCount(), 5);
        QVERIFY(field.cell("brandt").isValid());
    }

    void dataOfAShowing()
    {
        CompleterField field;
        field.show();
        field.setUsername("e"); // no data yet
        QCOMPARE(field.popup->width(), field.width());
        field.setDataForCompleter(makeNames());
        field.showCompleter();
        QCOMPARE(field.list->dataRowCount(), 5);
        const QVector<int> narrowed = widths(*field.list->header()); // they suit all rows, whatever is typed
        field.setUsername({});
        field.setDataForCompleter(makeNames());
        field.showCompleter();
        QCOMPARE(widths(*field.list->header()), narrowed);
        field.setUsername("kel");
        QFont larger = field.list->font();
        larger.setPixelSize(QFontInfo(larger).pixelSize() + 10);
        field.popup->setFont(larger);
        field.showCompleter();
        const QVector<int> widened = widths(*field.list->header());
        QVERIFY(widened != narrowed && field.cell("keller").data() == "<b>kel</b>ler");
        field.setDataForCompleter(makeNames());
        QCOMPARE(widths(*field.list->header()), widened);
        field.setDataForCompleter(makeRows(4, {}));
        field.setUsername("a");
        QVERIFY(field.popup->isVisible());
        field.setDataForCompleter(makeRows(100000, {"4711", "Erlöse"}));
        field.setUsername("lös");
        QCOMPARE(field.list->dataRowCount(), 100000);
        field.setDataForCompleter({});
        field.setDataForCompleter(field.createTestData());
        QCOMPARE(field.list->header()->model()->headerData(1, Qt::Horizontal).toString(), "Bezeichnung");
    }

    void life()
    {
        QScopedPointer<QWidget> window(new QWidget);
        auto *field = new CompleterField(window.data());
        window->show();
        field->setDataForCompleter(makeNames());
        const QPointer<NVO::Completer> popup = field->popup;
        field->setUsername("e");
        field->setParent(nullptr);
        QVERIFY(!popup->isVisible());
        field->setParent(window.data());
        field->show();
        field->setUsername("er");
        window.reset();
        QVERIFY(!popup);

        for (int i = 0; i < 2; ++i) { // inside its own signals
            QPointer<CompleterField> dying = new CompleterField;
            dying->setDataForCompleter(makeNames());
            dying->show();
            dying->showCompleter();
            if (i == 0)
                connect(dying, &CompleterField::suggestionChosen, this, [&dying] { delete dying; });
            else
                connect(dying->edit, &QLineEdit::textChanged, this, [&dying] { dying->deleteLater(); });
            const QPointer<NVO::Completer> itsPopup = dying->popup;
            dying->click("keller", 0);
            QVERIFY(!itsPopup || !itsPopup->isVisible());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!dying && !itsPopup);
        }
        auto *outer = new CompleterField; // in a slot, after a further click there
        outer->setDataForCompleter(makeNames());
        outer->show();
        outer->showCompleter();
        int clicks = 0;
        connect(outer, &CompleterField::suggestionChosen, this, [&clicks, outer] {
            if (++clicks == 2)
                return;
            outer->setUsername("e");
            outer->click("brandt", 0);
            delete outer;
        });
        outer->click("keller", 0);
        QCOMPARE(clicks, 2);

        CompleterField survivor;
        survivor.show();
        delete survivor.popup;
        survivor.setDataForCompleter(makeNames());
        survivor.setUsername("e");
        QTest::mouseClick(survivor.bulb, Qt::LeftButton);
    }

    void painting()
    {
        const NVO::CompleterDelegate delegate(nullptr);
        const auto ground = [&](int type, int column, bool hovered, const QColor &color) {
            const auto columns = columnsOf(paintCell(delegate, type, {}, column, hovered), color);
            const auto mirrored = columnsOf(paintCell(delegate, type, {}, column, hovered, true), color);
            return mirrored == columns ? columns : qMakePair(-2, -2);
        };
        const auto none = qMakePair(-1, -1);
        QCOMPARE(ground(Row::MainCaption, 0, true, Qt::yellow), qMakePair(40, 139));
        QCOMPARE(ground(Row::SubCaption, 0, true, Qt::cyan), none);
        QCOMPARE(ground(Row::Data, 0, false, Qt::cyan), none);
        QCOMPARE(ground(Row::Data, 0, true, Qt::cyan), qMakePair(20, 139));
        QCOMPARE(ground(Row::DataRemovable, 1, true, Qt::cyan), qMakePair(40, 139));
        QCOMPARE(ground(Row::DataRemovable, 2, true, 0x101010), qMakePair(45, 59));
        QCOMPARE(ground(Row::DataRemovable, 2, false, 0x101010), none);
        QCOMPARE(ground(Row::DataRemovable, 1, true, 0x101010), none);
        QCOMPARE(ground(Row::Data, 2, true, 0x101010), none);

        // Of a text that fills its cell, the first and the last pixel, twice: the second time it was kept.
        const QString text(40, 'H');
        const auto isWithin = [&](int type, int column, bool hovered, const QColor &color, int left,
                                  int right) {
            const auto [first, last] = columnsOf(paintCell(delegate, type, text, column, hovered), color);
            return first >= left + 4 && first <= left + 7 && last <= right && last >= right - 4;
        };
        for (int again = 0; again < 2; ++again) {
            QVERIFY(isWithin(Row::MainCaption, 0, false, Qt::red, 45, 139));
            QVERIFY(isWithin(Row::SubCaption, 0, true, Qt::green, 45, 139));
            QVERIFY(isWithin(Row::Data, 0, false, Qt::blue, 35, 139));
            QVERIFY(isWithin(Row::Data, 0, true, Qt::magenta, 35, 139));
            QVERIFY(isWithin(Row::DataRemovable, 1, true, Qt::magenta, 45, 144));
            QVERIFY(isWithin(Row::Data, 2, false, Qt::blue, 45, 139));
        }
        // Marks are bold; what only looks like markup stands there as it is.
        const auto data = [&](const QString &shown, bool mirrored = false) {
            return paintCell(delegate, Row::Data, shown, 0, false, mirrored);
        };
        QVERIFY(data("a<b>b</b>c") != data("abc"));
        QVERIFY(data("x < y") != data("x") && data("R&D") != data("RD") && data("&amp;") != data("&"));
        QCOMPARE(data("<i>x</i>"), data("<em>x</em>"));
        const int distance =
            columnsOf(data("i", true), Qt::blue).first - columnsOf(data("i"), Qt::blue).first;
        QVERIFY(std::abs(distance) <= 2); // a letter is not the same in the mirror
    }

private:
    TestResources m_resources;
};

QTEST_MAIN(TestCompleter)
#include "tst_completer.moc"
