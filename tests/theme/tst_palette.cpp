#include "TestCase.h"
#include "TestResources.h"

#include "theme/StyleSupport.h"

#include <nvo/Palette.h>

#include <QApplication>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <utility>

static NVO::Palette &palette = NVO::Palette::instance();

class TestPalette : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void values()
    {
        read("[Named]\nH=#102030\nN=DarkRed\nT=10, 20, 30\nF=10, 20, 30, 40\nTWO=10, 20\nHIGH=1, 2, 300\n"
             "G=\"g(x1:0, 0 A)\"\nA=COLOR_2\nB=#12\nE=\n");
        const QHash<QString, QColor> colors{
            {"H", "#102030"}, {"N", "#8b0000"}, {"T", "#0a141e"}, {"F", "#280a141e"}};
        const QHash<QString, QString> gradients{{"TWO", ""},           {"HIGH", ""},     {"B", "#12"},
                                                {"G", "g(x1:0, 0 A)"}, {"A", "COLOR_2"}, {"E", ""}};
        QCOMPARE(palette.namedColors(), colors);
        QCOMPARE(palette.namedGradients(), gradients);
    }

    void referencesInAnyOrder()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 60; ++round) {
            // A chain through tokens with random names, which decide on the order of reading.
            QStringList tokens;
            const bool gradient = random.bounded(2) == 0;
            QString value = gradient ? "\"g(1, 2)\"" : "10, 11, 12, 77";
            QString ini = "[Named]\n";
            for (int i = 0; i < 12; ++i) {
                tokens += QChar('A' + random.bounded(26)) + QString(i, '_');
                ini += tokens.last() + '=' + std::exchange(value, tokens.last()) + '\n';
            }
            read(ini.toLatin1());
            for (const QString &token : qAsConst(tokens)) {
                QCOMPARE(palette.namedColor(token), gradient ? QColor() : QColor(10, 11, 12, 77));
                QCOMPARE(palette.namedGradients().value(token), gradient ? QString("g(1, 2)") : QString());
            }
        }
    }

    void unresolvedReferences()
    {
        const QRegularExpression message(
            "^NVO::Palette: reparseMissingColors couldn't replace QHash\\("
            "(\\(\"(A\", \"B|B\", \"A|RED\", \"RED|N\", \"NOWHERE)\"\\)){4}\\)$");
        QTest::ignoreMessage(QtDebugMsg, message);
        read("[Named]\nA=B\nB=A\nRED=RED\nN=NOWHERE\nC=red\nD=C\n");
        QCOMPARE(palette.namedColors(), (QHash<QString, QColor>{{"C", Qt::red}, {"D", Qt::red}}));
    }

    void contentsChange()
    {
        read("[Named]\nA=#111111\nG=g\n");
        palette.setNamedColors({{"B", Qt::black}});
        QVERIFY(!palette.namedColor("A").isValid() && palette.namedGradients().contains("G"));
        read("[Named]\nA=#222222\nG=g\n"); // the same size and time
        QCOMPARE(palette.namedColors(), (QHash<QString, QColor>{{"A", QColor("#222222")}}));
        palette.init();
        QVERIFY(palette.namedColors().isEmpty() && palette.namedGradients().isEmpty());
    }

    void roles()
    {
        const QPalette before = QGuiApplication::palette();
        QPalette expected = before;
        QByteArray ini;
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            ini += '[' + NVO::StyleSupport::enumKey(group).toLatin1() + "]\n";
            for (int role = QPalette::WindowText; role <= QPalette::ToolTipText; ++role) {
                ini += NVO::StyleSupport::enumKey(QPalette::ColorRole(role)).toLatin1();
                ini += '=' + QByteArray::number(role) + ", 2, " + QByteArray::number(group) + ", 200\n";
                if (role != QPalette::NoRole)
                    expected.setColor(group, QPalette::ColorRole(role), QColor(role, 2, group, 200));
            }
        }
        read(ini);
        QCOMPARE(palette.palette(), expected);
        QCOMPARE(QGuiApplication::palette(), before);
        QApplication::setPalette(expected); // what the application has now is where the next one starts
        read("[Active]\nWindow=#010203\nBase=nonsense\n");
        expected.setColor(QPalette::Active, QPalette::Window, QColor(1, 2, 3));
        QCOMPARE(palette.palette(), expected);
        QApplication::setPalette(before);
        read("");
        QCOMPARE(palette.palette(), before);
    }

private:
    static void read(const QByteArray &ini)
    {
        const TestResources resources({{"Palette", ini}});
        palette.init();
    }
};

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
