#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"

#include <nvo/Font.h>
#include <nvo/Label.h>

#include <QSignalSpy>
#include <QTextDocument>
#include <QtTest>

using NVO::Label;

namespace {

/** Counts the mouse presses that reach it. */
class Ground : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

const QString longText =
    QStringLiteral("Die Rechnung wurde am 17. April gebucht und dem Konto 4400 zugeordnet");

/** The rows of an image that have a pixel in another colour than the first, as runs from top to bottom. */
QList<QPair<int, int>> inkedRows(const QImage &image)
{
    QList<QPair<int, int>> runs;
    for (int y = 0; y < image.height(); ++y) {
        bool inked = false;
        for (int x = 0; x < image.width() && !inked; ++x)
            inked = image.pixel(x, y) != image.pixel(0, 0);
        if (!inked)
            continue;
        if (!runs.isEmpty() && runs.last().second == y - 1)
            runs.last().second = y;
        else
            runs.append({y, y});
    }
    return runs;
}

} // namespace

class TestLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void unchangedTextIsNotSetAgain();
    void contentAndClear();
    void elidesAtEveryWidth();
    void elidesWrappedText();
    void verticalPlaces_data();
    void verticalPlaces();
    void elisionComesWithPainting();
    void fontDelta();
    void clicksOnLinks();
};

void TestLabel::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");

    const QString span = "<span style=\"" + NVO::Font::instance().semibold() + "\">";
    QTest::newRow("plain") << "Beleg"
                           << "Beleg"
                           << "Beleg";
    QTest::newRow("bold") << "<b>x</b> y" << span + "x</span> y"
                          << "x y";
    QTest::newRow("strong") << "<strong>x</strong>" << span + "x</span>"
                            << "x";
    QTest::newRow("brackets") << "a&lpar;1&rpar;"
                              << "a(1)"
                              << "a(1)";
    QTest::newRow("per cent signs") << "%1 %2 100%"
                                    << "%1 %2 100%"
                                    << "%1 %2 100%";
    QTest::newRow("other entities") << "&lt;&amp;"
                                    << "&lt;&amp;"
                                    << "<&";
}

void TestLabel::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, stored);
    const Label label(text);
    QCOMPARE(label.text(), stored);
    QCOMPARE(label.QLabel::text(), "<html><head><style>h1,h2,h3,h4{" + NVO::Font::instance().semibold()
                                       + "}</style></head><body>" + stored + "</body></html>");
    QTextDocument document;
    document.setHtml(label.QLabel::text());
    QTEST(document.toPlainText(), "shown");
}

void TestLabel::unchangedTextIsNotSetAgain()
{
    Label label("<b>x</b>");
    label.QLabel::setText("bypassed");
    label.setText("<b>x</b>");
    label.setText(label.text());
    QCOMPARE(label.QLabel::text(), QString("bypassed"));
    label.setText("&lpar;");
    label.QLabel::setText("bypassed");
    label.setText("&lpar;"); // is stored as a bracket and so is another text each time
    QVERIFY(label.QLabel::text() != "bypassed");
}

void TestLabel::contentAndClear()
{
    Label label;
    QVERIFY(!label.hasContent());
    label.setText(" \n\t");
    QVERIFY(!label.hasContent());
    label.setText("<br>");
    QVERIFY(label.hasContent());
    QMetaObject::invokeMethod(&label, "clear");
    QVERIFY(!label.hasContent());
    QCOMPARE(label.text(), QString());
    QCOMPARE(label.textFormat(), Qt::RichText);
}

void TestLabel::elidesAtEveryWidth()
{
    Label label("<b>" + longText + "</b>");
    label.enableElide(true);
    const QFontMetricsF metrics(label.fontMetrics());
    const int fitting = qCeil(metrics.horizontalAdvance(longText));
    for (int width = 1; width < fitting + 20; width += 3) {
        label.resize(width, 30);
        label.grab();
        QCOMPARE(label.isElided(), metrics.elidedText(longText, Qt::ElideRight, width) != longText);
        QCOMPARE(label.isElided(), width < fitting);
    }
    label.resize(fitting, 30);
    label.grab();
    QVERIFY(!label.isElided());
}

void TestLabel::elidesWrappedText()
{
    Label label(longText + " " + longText);
    label.enableElide(true);
    label.setWordWrap(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const qreal spacing = QFontMetricsF(label.fontMetrics()).lineSpacing();
    const int width = 200;
    int neededLines = 0;
    for (int lines = 1; lines < 20 && neededLines == 0; ++lines) {
        label.resize(width, qCeil(spacing * lines) + 2);
        const QList<QPair<int, int>> rows = inkedRows(label.grab().toImage());
        QVERIFY(!rows.isEmpty());
        // No ink below the lines that have room.
        QVERIFY(rows.last().second < spacing * lines + 2);
        QVERIFY(rows.last().second > spacing * (lines - 1));
        if (!label.isElided())
            neededLines = lines;
    }
    QVERIFY(neededLines > 3);
    label.resize(width, qCeil(spacing * (neededLines - 1)) + 2);
    label.grab();
    QVERIFY(label.isElided());
}

void TestLabel::verticalPlaces_data()
{
    QTest::addColumn<int>("alignment");
    QTest::newRow("centre") << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("horizontal centre counts as centre") << int(Qt::AlignHCenter | Qt::AlignTop);
    QTest::newRow("top") << int(Qt::AlignLeft | Qt::AlignTop);
    QTest::newRow("bottom") << int(Qt::AlignLeft | Qt::AlignBottom);
}

void TestLabel::verticalPlaces()
{
    QFETCH(int, alignment);
    Label label(QString(QChar(0x2588))); // its ink starts at the same place of each line
    label.enableElide(true);
    const int height = 100;
    label.resize(60, height);
    const qreal spacing = QFontMetricsF(label.fontMetrics()).lineSpacing();
    const auto firstRow = [&label](int to) {
        label.setAlignment(Qt::Alignment(to));
        return inkedRows(label.grab().toImage()).first().first;
    };
    const int top = firstRow(Qt::AlignLeft | Qt::AlignTop);
    qreal expected = 0;
    if (alignment & (Qt::AlignHCenter | Qt::AlignVCenter))
        expected = (height - spacing) * 0.5 - 1.0;
    else if (alignment & Qt::AlignBottom)
        expected = height - spacing - 1.5;
    QVERIFY(qAbs(firstRow(alignment) - top - expected) <= 1.0);
}

void TestLabel::elisionComesWithPainting()
{
    Label label(longText);
    QSignalSpy spy(&label, &Label::elisionChanged);
    label.resize(50, 20);
    label.grab();
    QVERIFY(!label.isElided()); // eliding is off

    label.enableElide(true);
    QVERIFY(label.isElideEnabled());
    QVERIFY(spy.isEmpty());
    label.grab();
    label.grab();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.takeFirst().first().toBool(), true);

    label.resize(2000, 20);
    QVERIFY(spy.isEmpty());
    label.grab();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.takeFirst().first().toBool(), false);

    label.resize(50, 20);
    label.grab();
    label.setText(QString());
    label.grab();
    QVERIFY(!label.isElided());
    QCOMPARE(spy.count(), 2);
}

void TestLabel::fontDelta()
{
    const FontDeltaGuard guard;
    Label inPoints("x");
    QFont font = inPoints.font();
    font.setPointSize(20);
    inPoints.setFont(font);
    const int base = QFontInfo(font).pixelSize();
    for (const int delta : {2, 0, 5, -base, 1}) {
        const int before = inPoints.font().pixelSize();
        NVO::Css::instance().setFontDelta(delta);
        QCOMPARE(inPoints.font().pixelSize(), delta == -base ? before : base + delta);
    }
}

void TestLabel::clicksOnLinks()
{
    Ground ground;
    ground.resize(300, 60);
    Label label("<a href=\"konto\">Konto</a> und Text", &ground);
    label.setGeometry(0, 0, 300, 30);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ground.show();
    QSignalSpy links(&label, &QLabel::linkActivated);
    const QPoint onLink(10, label.fontMetrics().height() / 2);
    const QPoint onText(label.fontMetrics().horizontalAdvance("Konto und T"), onLink.y());
    const QPoint onNothing(290, 25);

    for (int round = 0; round < 2; ++round) {
        QTest::mouseMove(&label, onLink);
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, onLink);
        QCOMPARE(links.count(), round + 1);
        QCOMPARE(ground.presses, 2 * round);
        QTest::mouseMove(&label, onText);
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, onText);
        QTest::mouseMove(&label, onNothing);
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, onNothing);
        QCOMPARE(ground.presses, 2 * round + 2);
    }
}

QTEST_MAIN(TestLabel)
#include "tst_label.moc"
