#include "TestCase.h"

#include "completer/CompleterMatch.h"
#include "completer/CompleterProxyModel.h"
#include "completer/CompleterTreeItem.h"

#include <nvo/CompleterSourceModel.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QtTest>

#include <algorithm>

using NVO::CompleterData;
using NVO::CompleterDataRow;
using NVO::CompleterProxyModel;
using NVO::CompleterSourceModel;

namespace {

CompleterDataRow makeRow(int type, const QStringList &texts)
{
    CompleterDataRow row;
    row.setType(CompleterDataRow::Type(type));
    for (const QString &text : texts)
        row.addColumn(text, QString());
    return row;
}

CompleterData makeData(const QStringList &headers, const QList<CompleterDataRow> &rows)
{
    CompleterData data;
    data.setHeaders(headers);
    for (const CompleterDataRow &row : rows)
        data.addRow(row);
    return data;
}

/** A line for each row of a model: dashes for the depth, type, texts. */
QStringList lines(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList result;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QStringList line{(parent.isValid() ? "-" : "")
                         + model.index(row, 0, parent).data(Qt::UserRole).toString()};
        for (int column = 0; column < model.columnCount(parent); ++column)
            line += model.index(row, column, parent).data().toString();
        result += line.join('|');
        result += lines(model, model.index(row, 0, parent));
    }
    return result;
}

QString marked(const QString &text, const QString &match)
{
    const QRegularExpression expression("(" + QRegularExpression::escape(match) + ")",
                                        QRegularExpression::CaseInsensitiveOption);
    return match.isEmpty() || !expression.isValid() ? text : QString(text).replace(expression, "<b>\\1</b>");
}

/** Filters and sorts as simply as can be. */
class Oracle
{
public:
    Oracle(const CompleterData &data, const QString &match)
        : m_columns(data.headers().size())
    {
        for (const CompleterDataRow &row : data.rowData()) {
            if (row.type() < 1 || row.type() > 4)
                continue;
            Node node{row.type(), {}, {}};
            const bool isCaption = row.type() < 3;
            for (int column = 0; column < m_columns; ++column)
                node.texts += isCaption && column > 0 ? "" : marked(row.columnData(column).first, match);
            node.texts += "";
            const bool isTop = isCaption || m_top.isEmpty() || m_top.last().type > 2;
            (isTop ? m_top : m_top.last().children).append(node);
        }
    }

    QStringList filtered(const QString &filter, int column, Qt::SortOrder order)
    {
        return filtered(m_top, filter, column, order, "");
    }

private:
    struct Node
    {
        int type;
        QStringList texts;
        QVector<Node> children;

        QString joined() const { return texts.join(' ') + ' '; }
    };

    static QStringList filtered(const QVector<Node> &nodes, const QString &filter, int column,
                                Qt::SortOrder order, const QString &prefix)
    {
        QVector<Node> left;
        for (const Node &node : nodes) {
            QString below;
            for (const Node &child : node.children)
                below += child.joined();
            if (node.joined().contains(filter, Qt::CaseInsensitive)
                || below.contains(filter, Qt::CaseInsensitive))
                left += node;
        }
        const auto less = [column](const Node &a, const Node &b) {
            return a.type == b.type && a.type >= 3
                   && QString::localeAwareCompare(a.texts.value(column), b.texts.value(column)) < 0;
        };
        std::stable_sort(left.begin(), left.end(), [&](const Node &a, const Node &b) {
            return order == Qt::AscendingOrder ? less(a, b) : less(b, a);
        });
        QStringList result;
        for (const Node &node : qAsConst(left)) {
            result += prefix + QString::number(node.type) + '|' + node.texts.join('|');
            result += filtered(node.children, filter, column, order, "-");
        }
        return result;
    }

    int m_columns;
    QVector<Node> m_top;
};

class RandomData
{
public:
    int below(int end) { return int(m_random.bounded(quint32(end))); }
    bool oneIn(int count) { return below(count) == 0; }

    QString text(int pieces)
    {
        static const QStringList letters{"a",
                                         "A",
                                         "b",
                                         "B",
                                         "m",
                                         "Müller",
                                         "müller",
                                         "straße",
                                         "ä",
                                         "Ä",
                                         " ",
                                         " ",
                                         ".",
                                         "<b>",
                                         "</b>",
                                         "&",
                                         "&amp;",
                                         "(",
                                         "[",
                                         "\\1",
                                         "1",
                                         "10",
                                         "ſ",
                                         "K",
                                         "ss",
                                         "abab",
                                         "e\u0301",
                                         "-",
                                         "",
                                         "\U0001F600",
                                         "\U00010400",
                                         "\U00010428",
                                         QString(QChar(0xd801)),
                                         QString(QChar(0xdc00)),
                                         QString(QChar(0))};
        QString result;
        for (int piece = below(pieces + 1); piece > 0; --piece)
            result += letters.at(below(oneIn(4) ? letters.size() : 12));
        return result;
    }

    CompleterData data()
    {
        static const QList<int> types{1, 2, 2, 3, 3, 3, 3, 3, 4, 4, 4, 0, 5, -1};
        const QStringList headers{"Name", "Ort", "Nummer"};
        QList<CompleterDataRow> rows;
        const bool isPlain = oneIn(2);
        for (int row = below(30); row > 0; --row) {
            QStringList texts;
            for (int column = oneIn(5) ? below(4) : 3; column > 0; --column)
                texts += text(5);
            rows += makeRow(isPlain && !oneIn(9) ? 3 : types.at(below(types.size())), texts);
        }
        return makeData(headers.mid(0, oneIn(6) ? 0 : 1 + below(3)), rows);
    }

private:
    QRandomGenerator m_random{20};
};

/** Any row of the model; invalid if there is none, or by chance. */
QModelIndex anyRow(RandomData &random, const QAbstractItemModel &model)
{
    const QModelIndex top = model.index(random.below(model.rowCount() + 1), 0);
    const QModelIndex below = model.index(random.below(model.rowCount(top) + 1), 0, top);
    return below.isValid() && !random.oneIn(4) ? below : top;
}

int hiddenRows(const CompleterData &data)
{
    const QList<CompleterDataRow> rows = data.rowData();
    return int(std::count_if(rows.begin(), rows.end(),
                             [](const CompleterDataRow &row) { return row.type() < 1 || row.type() > 4; }));
}

} // namespace

class TestCompleterModel : public TestCase
{
    Q_OBJECT

public:
    // The C locale compares codes only.
    TestCompleterModel() { QLocale::setDefault(QLocale(QLocale::German)); }

private Q_SLOTS:
    void tree()
    {
        CompleterData data = makeData(
            {"Name", "Ort"}, {makeRow(3, {"Erster"}), makeRow(1, {"Zuletzt", "fehlt"}), makeRow(0, {"fehlt"}),
                              makeRow(4, {"a.c", "abc", "fehlt"}), makeRow(2, {}), makeRow(2, {"Abab"}),
                              makeRow(5, {"fehlt"}), makeRow(3, {"Abc", "<b> & Ab"})});
        data.setTitle("Vorschläge");
        CompleterSourceModel model(data, nullptr);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(model.columnCount(), 0);
        QCOMPARE(lines(model), QStringList());
        QVERIFY(!model.headerData(0, Qt::Horizontal).isValid());
        QCOMPARE(model.getCompleterData().title(), QString("Vorschläge"));
        QCOMPARE(data.columnCount(), 3);

        model.setCompleterData(data);
        QCOMPARE(model.columnCount(), 3);
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QString("Ort"));
        QVERIFY(!model.headerData(2, Qt::Horizontal).isValid());
        QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
        QCOMPARE(lines(model), (QStringList{"3|Erster||", "1|Zuletzt||", "-4|a.c|abc|", "2|||", "2|Abab||",
                                            "-3|Abc|<b> & Ab|"}));
        QCOMPARE(model.index(0, 0).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
        QVERIFY(!model.index(0, 0).data(Qt::EditRole).isValid());

        model.setMatchingText("ab");
        QCOMPARE(lines(model).mid(2), (QStringList{"-4|a.c|<b>ab</b>c|", "2|||", "2|<b>Ab</b><b>ab</b>||",
                                                   "-3|<b>Ab</b>c|<b> & <b>Ab</b>|"}));
        model.setMatchingText("a.c");
        QCOMPARE(lines(model).at(2), QString("-4|<b>a.c</b>|abc|"));
    }

    void badInput()
    {
        CompleterData data = makeData({"Name"}, {makeRow(1, {"a"}), makeRow(3, {"b"})});
        data.removeRow(-1);
        data.removeRow(2);
        QCOMPARE(data.rowCount(), 2);
        QCOMPARE(data.rowData().first().columnData(7).first, QString());
        QCOMPARE(int(CompleterDataRow().type()), 0);

        CompleterSourceModel model(nullptr);
        QVERIFY(model.removeRows(0, 1));
        model.setCompleterData(data);
        QStandardItemModel foreign(3, 3);
        const QModelIndex strange = foreign.index(0, 0);
        QVERIFY(!model.index(0, 0, strange).isValid() && !model.parent(strange).isValid());
        QVERIFY(model.rowCount(strange) == 0 && !model.data(strange).isValid());
        QVERIFY(!model.index(0, 2).isValid() && !model.index(0, -1).isValid());
        for (const auto &[row, count] : {std::pair{-1, 1}, {1, 1}, {0, 0}, {0, -1}})
            QVERIFY(model.removeRows(row, count));
        QVERIFY(model.removeRows(0, 1, strange));
        QCOMPARE(model.getCompleterData().rowCount(), 2);
        QVERIFY(model.removeRows(0, INT_MAX, model.index(0, 0)));
        QCOMPARE(lines(model), QStringList{"1|a|"});

        auto source = std::make_unique<CompleterSourceModel>(nullptr);
        CompleterProxyModel proxy(nullptr);
        proxy.setFilterText("b");
        proxy.sort(0);
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setSourceModel(source.get());
        source->setCompleterData(data);
        QCOMPARE(proxy.rowCount(proxy.index(0, 0)), 1);
        source.reset();
        QCOMPARE(proxy.rowCount(), 0);
    }

    void item()
    {
        NVO::CompleterTreeItem root({"a", "b"}, nullptr);
        QVERIFY(root.insertChild(0, 1) && root.insertChild(0, 2) && root.insertChild(1, -1));
        QVERIFY(!root.insertChild(4, 1) && !root.insertChild(-1, 1));
        const auto columns = [&root] {
            QVector<int> result;
            for (int number = 0; number < root.childCount(); ++number) {
                if (root.child(number)->childNumber() == number && root.child(number)->parent() == &root)
                    result += root.child(number)->columnCount();
            }
            return result;
        };
        QCOMPARE(columns(), (QVector<int>{2, 0, 1}));
        root.removeChildren(0, 2);
        QCOMPARE(columns(), QVector<int>{1});
        QVERIFY(root.child(0)->setData(0, 7) && !root.child(0)->setData(1, 7));
        QCOMPARE(root.child(0)->data(0), QVariant(7));
        QVERIFY(!root.data(2).isValid() && !root.data(-1).isValid() && !root.child(1) && !root.child(-1));
        QCOMPARE(root.type(), 3);
    }

    // Letters are marked without the expression engine where both are known to agree.
    void marksAsTheExpressionDoes()
    {
        QString all;
        for (uint code = 0; code < 0x10000; ++code) {
            if (!QChar::isSurrogate(code))
                all += QChar(code);
        }
        for (ushort code = 1; code < 0x300; ++code) {
            const QString letter{QChar(code)};
            if (NVO::CompleterMatch(letter).marked(all) != marked(all, letter))
                QFAIL(qPrintable(QString::number(code, 16)));
        }
    }

    // Random data, keys, removals and orders, each beside the oracle.
    void randomOperations()
    {
        RandomData random;
        CompleterSourceModel source(nullptr);
        CompleterProxyModel proxy(nullptr);
        const auto mode = QAbstractItemModelTester::FailureReportingMode::Fatal;
        const QAbstractItemModelTester sourceTester(&source, mode);
        proxy.setSourceModel(&source);
        const QAbstractItemModelTester proxyTester(&proxy, mode);
        QString match;
        QString filter;
        int column = -1;
        auto order = Qt::AscendingOrder;

        for (int step = 0; step < 4000; ++step) {
            switch (random.below(8)) {
            case 0:
                source.setCompleterData(random.data());
                break;
            case 1:
                column = random.below(4);
                order = random.oneIn(2) ? Qt::AscendingOrder : Qt::DescendingOrder;
                proxy.sort(column, order);
                break;
            case 2: {
                const QModelIndex index = anyRow(random, source);
                if (!index.isValid())
                    break;
                QStringList expected = lines(source);
                const int hidden = hiddenRows(source.getCompleterData());
                int first = 0;
                for (int row = 0; row < index.row(); ++row)
                    first += 1 + source.rowCount(index.siblingAtRow(row));
                for (int row = 0; index.parent().isValid() && row <= index.parent().row(); ++row)
                    first += 1 + (row < index.parent().row() ? source.rowCount(source.index(row, 0)) : 0);
                expected.erase(expected.begin() + first,
                               expected.begin() + first + 1 + source.rowCount(index));
                QVERIFY(source.removeRows(index.row(), 1, index.parent()));
                QCOMPARE(lines(source), expected);
                QCOMPARE(hiddenRows(source.getCompleterData()), hidden);
                break;
            }
            case 3:
                filter = random.text(3);
                if (random.oneIn(3))
                    match = random.text(2);
                break;
            case 4:
                filter.chop(1);
                break;
            default:
                filter += random.text(1);
            }
            if (!random.oneIn(6))
                match = filter;
            proxy.setFilterText(filter);
            source.setMatchingText(match);
            Oracle oracle(source.getCompleterData(), match);
            QCOMPARE(lines(source), oracle.filtered(QString(), -1, order));
            QCOMPARE(lines(proxy), oracle.filtered(filter, column, order));
        }
    }

    // Where letters are collated together, as the Czech "ch" is, a mark between them changes the order. Qt
    // keeps a collation for each thread.
    void contractions()
    {
        QLocale::setDefault(QLocale(QLocale::Czech));
        QStringList unmarked;
        QStringList marked;
        const std::unique_ptr<QThread> thread(QThread::create([&unmarked, &marked] {
            CompleterSourceModel source(nullptr);
            CompleterProxyModel proxy(nullptr);
            proxy.setSourceModel(&source);
            proxy.sort(0);
            source.setCompleterData(makeData({"Name"}, {makeRow(3, {"cizin"}), makeRow(3, {"chata"})}));
            unmarked = lines(proxy);
            source.setMatchingText("c");
            marked = lines(proxy);
        }));
        thread->start();
        thread->wait();
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(unmarked, (QStringList{"3|cizin|", "3|chata|"}));
        QCOMPARE(marked, (QStringList{"3|<b>c</b>hata|", "3|<b>c</b>izin|"}));
    }

    // The same on a model that is none of ours.
    void foreignSource()
    {
        QStandardItemModel source(0, 2);
        for (const char *const text : {"b1", "b<b>2</b>", "a2", "c"}) {
            auto *const item = new QStandardItem(QString(text));
            item->setData(3, Qt::UserRole);
            source.appendRow({item, new QStandardItem("x")});
        }
        CompleterProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.setFilterText("2</B> X");
        proxy.sort(0);
        QCOMPARE(lines(proxy), QStringList{"3|b<b>2</b>|x"});
        proxy.setFilterText("2");
        proxy.invalidate();
        QCOMPARE(lines(proxy), (QStringList{"3|a2|x", "3|b<b>2</b>|x"}));
    }

    void manyRows()
    {
        QList<CompleterDataRow> rows{makeRow(1, {"Alle"})};
        for (int row = 0; row < 100000; ++row)
            rows += makeRow(3, {QString("%1, Meier").arg(row * 7919 % 100000, 5, 10, QChar('0')), "Ort"});
        CompleterSourceModel source(nullptr);
        CompleterProxyModel proxy(nullptr);
        proxy.setSourceModel(&source);
        proxy.sort(0);
        source.setCompleterData(makeData({"Name", "Ort"}, rows));
        for (const auto &[text, count] :
             {std::pair{"9", 40951}, {"99", 3691}, {"99999", 1}, {"7, m", 10000}}) {
            proxy.setFilterText(text);
            source.setMatchingText(text);
            const QModelIndex caption = proxy.index(0, 0);
            QCOMPARE(proxy.rowCount(caption), count);
            for (int row = 1; row < count; ++row) {
                const QString above = proxy.index(row - 1, 0, caption).data().toString();
                const QString below = proxy.index(row, 0, caption).data().toString();
                if (QString::localeAwareCompare(above, below) > 0)
                    QFAIL(qPrintable(above + " comes before " + below));
            }
        }
    }
};

QTEST_MAIN(TestCompleterModel)

#include "tst_completermodel.moc"
