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
    return character.isLetterOrNumber() || character == '_';
}

/** Replaces by recursion, up to the end of \a text; a word within its own replacement stands. */
QString replaced(const QString &text, const Words &words, const QSet<QString> &open = {})
{
    QString result;
    for (int position = 0; position < text.size();) {
        const int start = position;
        while (position < text.size() && isWord(text[position]))
            ++position;
        const QString word = text.mid(start, position - start);
        const bool stands = word.isEmpty() || !words.contains(word) || open.contains(word);
        result += stands ? word : replaced(words.value(word), words, open + QSet<QString>{word});
        result += text.mid(position++, 1);
    }
    return result;
}

QString randomText(QRandomGenerator &random, const QStringList &words, int length)
{
    static const QStringList gaps{"", " ", "-", "(\n", QChar(0x2019), QChar(0xd83d), "\""};
    QString text;
    for (int i = 0; i < length; ++i)
        text += gaps[random.bounded(gaps.size())] + words[random.bounded(words.size())];
    return text;
}

QString expanded(const QString &text, const Words &words)
{
    WordTable table;
    table.addPass(words);
    return table.expand(text);
}

const QStringList vocabulary{"A",  "B",      "C_1",    "GRÜN", "Ä",  "rgba", "1",
                             "DE", "NORMAL", "normal", "_",    "x٣", "",     QString(70, 'L')};

} // namespace

class TestWordTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void words()
    {
        const Words words{{"A", "<a>"}, {"B", "b"}, {"AB", "(A,B)"}, {"NONE", ""}};
        QCOMPARE(expanded("", words), QString());
        QCOMPARE(expanded("A-B {AB} \"A\" /*B*/ NONE A\nA", words),
                 QString("<a>-b {(<a>,b)} \"<a>\" /*b*/  <a>\nA"));
        const QString foreign = "a A_ A1 1A AÄ ÄA ΑA ";
        QCOMPARE(expanded(foreign, words), foreign);
    }

    void passesAfterEachOther()
    {
        QRandomGenerator random(20261122);
        for (int round = 0; round < 400; ++round) {
            Words passes[2];
            WordTable table;
            for (Words &pass : passes) {
                for (int i = 0; i < vocabulary.size(); ++i) {
                    const QStringList later = vocabulary.mid(i + 1) << "z";
                    if (random.bounded(2) == 0)
                        pass.insert(vocabulary[i], randomText(random, later, random.bounded(5)));
                }
                table.addPass(pass);
            }
            for (int i = 0; i < 5; ++i) {
                const QString text = randomText(random, vocabulary, random.bounded(40)) + ';';
                QCOMPARE(table.expand(text), replaced(replaced(text, passes[0]), passes[1]));
            }
        }
    }

    void circlesEnd()
    {
        QRandomGenerator random(7);
        const QStringList few = vocabulary.mid(0, 5);
        for (int round = 0; round < 500; ++round) {
            Words words;
            for (const QString &word : few)
                words.insert(word, randomText(random, few, random.bounded(3)));
            const QString text = randomText(random, few, 6) + ';';
            QCOMPARE(expanded(text, words), replaced(text, words));
        }
    }

    void valuesWithoutMeasure()
    {
        const auto word = [](int i) { return QString("W%1").arg(i); };
        Words chain;
        Words circle;
        Words doubling;
        Words mutual;
        for (int i = 0; i < 5000; ++i) {
            chain.insert(word(i), word(i + 1));
            circle.insert(word(i), word((i + 1) % 5000));
        }
        for (int i = 0; i < 60; ++i) {
            doubling.insert(word(i), word(i + 1) + ' ' + word(i + 1));
            mutual.insert(word(i), QStringList(chain.keys().mid(0, 60)).join(' ') + ' ' + word(i + 1));
        }
        for (const Words &words : {chain, circle, doubling, mutual}) {
            QString text;
            for (int i = 0; i < 40; ++i)
                text += word(i) + ' ';
            const int size = expanded(text, words).size();
            QVERIFY(size >= 120 && size < 10'000'000);
        }
        QCOMPARE(expanded("W4910 ", chain), QString("W5000 ")); // ninety words deep
    }
};

QTEST_GUILESS_MAIN(TestWordTable)
#include "tst_wordtable.moc"
