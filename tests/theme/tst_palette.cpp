#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Palette.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

using NVO::Palette;

class TestPalette : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void referencesInAnyOrder();
    void unresolvedReferences();
    void missingResource();
    void sameSizeAndTime();
    void setNamedColors();
    void rolesOfPalette();

private:
    static Palette &read(TestResources &resources, const QByteArray &ini)
    {
        resources.set("Palette", ini);
        Palette::instance().init();
        return Palette::instance();
    }
};

void TestPalette::values_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("gradient");

    const QString none;
    QTest::newRow("hex") << QByteArray("#102030") << QColor(16, 32, 48) << none;
    QTest::newRow("name") << QByteArray("red") << QColor(255, 0, 0) << none;
    QTest::newRow("name in mixed case") << QByteArray("DarkRed") << QColor(139, 0, 0) << none;
    QTest::newRow("three numbers") << QByteArray("10, 20, 30") << QColor(10, 20, 30) << none;
    QTest::newRow("four numbers") << QByteArray("10, 20, 30, 40") << QColor(10, 20, 30, 40) << none;
    QTest::newRow("two numbers") << QByteArray("10, 20") << QColor() << QString("");
    QTest::newRow("numbers out of range") << QByteArray("10, 20, 300") << QColor() << QString("");
    QTest::newRow("quoted gradient") << QByteArray("\"qlineargradient(x1:0, stop:0 A)\"") << QColor()
                                     << QString("qlineargradient(x1:0, stop:0 A)");
    QTest::newRow("digit is no reference") << QByteArray("COLOR_2") << QColor() << QString("COLOR_2");
    QTest::newRow("no colour") << QByteArray("#12") << QColor() << QString("#12");
    QTest::newRow("empty") << QByteArray("") << QColor() << QString("");
}

void TestPalette::values()
{
    QFETCH(QByteArray, value);
    QFETCH(QColor, color);
    QFETCH(QString, gradient);
    TestResources resources;
    const Palette &palette = read(resources, "[Named]\nCOLOR_2=#ffffff\nT=" + value + "\n");
    QCOMPARE(palette.namedColor("T"), color);
    QCOMPARE(palette.namedColors().contains("T"), color.isValid());
    QCOMPARE(palette.namedGradients().contains("T"), !color.isValid());
    QCOMPARE(palette.namedGradients().value("T"), gradient);
}

void TestPalette::referencesInAnyOrder()
{
    QRandomGenerator random(11);
    TestResources resources;
    for (int round = 0; round < 60; ++round) {
        // A chain through tokens with random names, which decide on the order of reading.
        QStringList chain;
        while (chain.size() < 12) {
            QString token;
            for (int i = 0; i < 4; ++i)
                token += QChar('A' + random.bounded(26));
            if (!chain.contains(token))
                chain.append(token);
        }
        const bool gradient = random.bounded(2) == 0;
        QByteArray ini = "[Named]\n" + chain.last().toLatin1() + (gradient ? "=\"g(1, 2)\"\n" : "=#0a0b0c\n");
        for (int i = 0; i + 1 < chain.size(); ++i)
            ini += chain[i].toLatin1() + '=' + chain[i + 1].toLatin1() + '\n';
        const Palette &palette = read(resources, ini);
        for (const QString &token : qAsConst(chain)) {
            QCOMPARE(palette.namedColor(token), gradient ? QColor() : QColor(10, 11, 12));
            QCOMPARE(palette.namedGradients().value(token), gradient ? QString("g(1, 2)") : QString());
        }
    }
}

void TestPalette::unresolvedReferences()
{
    TestResources resources;
    QTest::ignoreMessage(QtDebugMsg,
                         "NVO::Palette: reparseMissingColors couldn't replace QHash((\"A\", \"NOWHERE\"))");
    read(resources, "[Named]\nA=NOWHERE\nB=#ffffff\nC=B\n");
    QCOMPARE(Palette::instance().namedColors(), (QHash<QString, QColor>{{"B", Qt::white}, {"C", Qt::white}}));

    QTest::ignoreMessage(
        QtDebugMsg,
        QRegularExpression("^NVO::Palette: reparseMissingColors couldn't replace QHash\\("
                           "(\\(\"A\", \"B\"\\)|\\(\"B\", \"A\"\\)|\\(\"RED\", \"RED\"\\)){3}\\)$"));
    read(resources, "[Named]\nA=B\nB=A\nRED=RED\nC=red\n");
    QCOMPARE(Palette::instance().namedColors().keys(), QStringList{"C"});
    QVERIFY(Palette::instance().namedGradients().isEmpty());
}

void TestPalette::missingResource()
{
    {
        TestResources resources;
        read(resources, "[Named]\nA=#ffffff\n");
    }
    Palette::instance().init();
    QVERIFY(Palette::instance().namedColors().isEmpty());
    QVERIFY(Palette::instance().namedGradients().isEmpty());
    QCOMPARE(Palette::instance().namedColor("A"), QColor());
}

void TestPalette::sameSizeAndTime()
{
    TestResources resources;
    QCOMPARE(read(resources, "[Named]\nA=#111111\n").namedColor("A"), QColor("#111111"));
    QCOMPARE(read(resources, "[Named]\nA=#222222\n").namedColor("A"), QColor("#222222"));
}

void TestPalette::setNamedColors()
{
    TestResources resources;
    Palette &palette = read(resources, "[Named]\nA=#111111\nG=\"g(1)\"\n");
    palette.setNamedColors({{"B", Qt::black}});
    QCOMPARE(palette.namedColor("A"), QColor());
    QCOMPARE(palette.namedColor("B"), QColor(Qt::black));
    QCOMPARE(palette.namedGradients().value("G"), QString("g(1)"));
    palette.init();
    QCOMPARE(palette.namedColor("A"), QColor("#111111"));
    QCOMPARE(palette.namedColor("B"), QColor());
}

void TestPalette::rolesOfPalette()
{
    TestResources resources;
    const QPalette application = QGuiApplication::palette();
    const QPalette palette =
        read(resources, "[Active]\nWindow=#111111\nText=1, 2, 3, 4\nLinkVisited=blue\nBase=nonsense\n"
                        "[Inactive]\nHighlight=#222222\n[Disabled]\nWindowText=#333333\n")
            .palette();
    QPalette expected = application;
    expected.setColor(QPalette::Active, QPalette::Window, QColor("#111111"));
    expected.setColor(QPalette::Active, QPalette::Text, QColor(1, 2, 3, 4));
    expected.setColor(QPalette::Active, QPalette::LinkVisited, QColor("blue"));
    expected.setColor(QPalette::Inactive, QPalette::Highlight, QColor("#222222"));
    expected.setColor(QPalette::Disabled, QPalette::WindowText, QColor("#333333"));
    QCOMPARE(palette, expected);
    QCOMPARE(QGuiApplication::palette(), application);
}

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
