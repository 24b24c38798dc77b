#include "TestCase.h"

#include "theme/WordTable.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

using NVO::WordTable;
using Words = QHash<QString, QString>;

namespace {

bool isWord(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_');
}

/** Replaces in place and scans each replacement again. Does not end if values go in a circle. */
QString replacedInPlace(QString text, const Words &words)
{
    int position = 0;
    for (;;) {
        while (position < text.size() && !isWord(text[position]))
            ++position;
        const int start = position;
        while (position < text.size() && isWord(text[position]))
            ++position;
        if (position >= text.size())
            return text;
        const QString word = text.mid(start, position - start);
        if (words.contains(word)) {
            text.replace(start, word.size(), words.value(word));
            position = start;
        }
    }
}

/** The same by recursion; a word within its own replacement stands. */
QString replacedRecursively(const QString &text, const Words &words, const QSet<QString> &open)
{
    QString result;
    int position = 0;
    while (position < text.size()) {
        const int start = position;
        if (!isWord(text[position])) {
            result += text[position++];
            continue;
        }
        while (position < text.size() && isWord(text[position]))
            ++position;
        const QString word = text.mid(start, position - start);
        const bool stands = !words.contains(word) || open.contains(word);
        result += stands ? word : replacedRecursively(words.value(word), words, open + QSet<QString>{word});
    }
    return result;
}

template <typename Values>
auto pick(QRandomGenerator &random, const Values &values)
{
    return values[random.bounded(int(values.size()))];
}

QString randomText(QRandomGenerator &random, const QStringList &words, int length)
{
    static const QStringList gaps{QStringLiteral(" "),    QStringLiteral("-"),    QStringLiteral("(\n"),
                                  QString(QChar(0x2019)), QString(QChar(0xd83d)), QStringLiteral("\"")};
    QString text;
    for (int i = 0; i < length; ++i) {
        text += random.bounded(4) == 0 ? QString() : pick(random, gaps);
        text += random.bounded(9) == 0 ? QString() : pick(random, words);
    }
    return text;
}

const QStringList vocabulary{QStringLiteral("A"),          QStringLiteral("B"),  QStringLiteral("C_1"),
                             QStringLiteral("GRÜN"),       QStringLiteral("Ä"),  QStringLiteral("rgba"),
                             QStringLiteral("1"),          QStringLiteral("DE"), QStringLiteral("NORMAL"),
                             QStringLiteral("normal"),     QStringLiteral("_"),  QStringLiteral("x٣"),
                             QString(70, QLatin1Char('L'))};

} // namespace

class TestWordTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void passesLikeReplacingInPlace();
    void circlesEnd();
    void explodingValuesStay();
    void longChains();
};

void TestWordTable::words_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("at the very end") << "A"
                                     << "A";
    QTest::newRow("followed by a newline") << "A\n"
                                           << "<a>\n";
    QTest::newRow("twice, the last at the end") << "A A"
                                                << "<a> A";
    QTest::newRow("case") << "a "
                          << "a ";
    QTest::newRow("underscore and digit belong to the word") << "A_ A1 1A "
                                                             << "A_ A1 1A ";
    QTest::newRow("hyphen does not") << "A-B "
                                     << "<a>-b ";
    QTest::newRow("letters beyond ASCII belong to the word") << "AÄ ÄA ΑA "
                                                             << "AÄ ÄA ΑA ";
    QTest::newRow("value with words") << "{AB}"
                                      << "{(<a>,b)}";
    QTest::newRow("in strings and comments") << "\"A\" /*B*/ "
                                             << "\"<a>\" /*b*/ ";
    QTest::newRow("empty value") << "A NONE B "
                                 << "<a>  b ";
}

void TestWordTable::words()
{
    QFETCH(QString, text);
    WordTable table;
    table.addPass({{"A", "<a>"}, {"B", "b"}, {"AB", "(A,B)"}, {"NONE", ""}});
    QTEST(table.expand(text), "expected");
}

void TestWordTable::passesLikeReplacingInPlace()
{
    QRandomGenerator random(20261122);
    for (int round = 0; round < 400; ++round) {
        // Values use later words only, so that replacing in place ends.
        const auto randomPass = [&random] {
            Words pass;
            for (int i = 0; i < vocabulary.size(); ++i) {
                if (random.bounded(2) == 0)
                    pass.insert(
                        vocabulary[i],
                        randomText(random, vocabulary.mid(i + 1) << QStringLiteral("z"), random.bounded(5)));
            }
            return pass;
        };
        const Words first = randomPass();
        const Words second = randomPass();
        WordTable table;
        table.addPass(first);
        table.addPass(second);
        for (int i = 0; i < 5; ++i) {
            const QString text = randomText(random, vocabulary, random.bounded(40));
            QCOMPARE(table.expand(text), replacedInPlace(replacedInPlace(text, first), second));
        }
    }
}

void TestWordTable::circlesEnd()
{
    QRandomGenerator random(7);
    const QStringList few = vocabulary.mid(0, 5);
    for (int round = 0; round < 500; ++round) {
        Words words;
        for (const QString &word : few)
            words.insert(word, randomText(random, few, random.bounded(3)));
        WordTable table;
        table.addPass(words);
        const QString text = randomText(random, few, 6) + QLatin1Char(';');
        QCOMPARE(table.expand(text), replacedRecursively(text, words, {}));
    }
}

void TestWordTable::explodingValuesStay()
{
    Words doubling;
    for (int i = 0; i < 60; ++i)
        doubling.insert(QStringLiteral("W%1").arg(i), QStringLiteral("W%1 W%1").arg(i + 1));
    Words mutual;
    for (int i = 0; i < 40; ++i) {
        QString value;
        for (int other = 0; other < 40; ++other)
            value += QStringLiteral(" M%1").arg(other);
        mutual.insert(QStringLiteral("M%1").arg(i), value);
    }
    for (const Words &words : {doubling, mutual}) {
        WordTable table;
        table.addPass(words);
        for (auto word = words.cbegin(); word != words.cend(); ++word) {
            const int size = table.expand(word.key() + QLatin1Char(' ')).size();
            QVERIFY(size >= word->size());
            QVERIFY(size < 10'000'000);
        }
    }
}

void TestWordTable::longChains()
{
    for (const int length : {90, 5'000}) {
        Words chain;
        Words circle;
        for (int i = 0; i < length; ++i) {
            chain.insert(QStringLiteral("W%1").arg(i), QStringLiteral("W%1").arg(i + 1));
            circle.insert(QStringLiteral("W%1").arg(i), QStringLiteral("W%1").arg((i + 1) % length));
        }
        WordTable chainTable;
        chainTable.addPass(chain);
        const QString end = chainTable.expand(QStringLiteral("W0 "));
        if (length == 90)
            QCOMPARE(end, QStringLiteral("W90 "));
        else
            QVERIFY(end.startsWith(QLatin1Char('W'))); // deeper than values are followed
        WordTable circleTable;
        circleTable.addPass(circle);
        QCOMPARE(circleTable.expand(QStringLiteral("W0 ")).at(0), QLatin1Char('W'));
    }
}

QTEST_GUILESS_MAIN(TestWordTable)
#include "tst_wordtable.moc"
