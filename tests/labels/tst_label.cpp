#include "EventCounter.h"
#include "Guards.h"
#include "TestCase.h"

#include "theme/StyleSupport.h"

#include <nvo/Font.h>
#include <nvo/Label.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTextDocument>
#include <QtTest>

using NVO::Label;

namespace {

const QString longText = "Die Rechnung wurde am 17. April gebucht und dem Konto 4400 zugeordnet";

/** What \a label paints of \a text: as many words a line as fit, what is left in the last line, cut. */
QImage expectedPicture(Label &label, const QString &text)
{
    const QFontMetricsF metrics(label.fontMetrics());
    const Qt::Alignment alignment = label.alignment();
    const qreal spacing = metrics.lineSpacing();
    const bool centred = alignment & (Qt::AlignHCenter | Qt::AlignVCenter);
    qreal top = alignment & Qt::AlignTop ? 0.0 : label.height() - spacing - 1.5;
    if (label.wordWrap())
        top = metrics.boundingRect(label.rect(), int(alignment) | Qt::TextWordWrap, text).y();
    else if (centred)
        top = (label.height() - spacing) * 0.5 - 1.0;
    QPixmap picture = label.grab();
    picture.fill(label.palette().color(QPalette::Window));
    QPainter painter(&picture);
    painter.setFont(label.font());
    for (QStringList words = text.split(' '); !words.isEmpty(); top += spacing) {
        if (!label.wordWrap() || label.height() < top + 2 * spacing) {
            const QString rest = metrics.elidedText(words.join(' '), Qt::ElideRight, label.width());
            painter.drawText(QPointF(0, top + metrics.ascent()), rest);
            break;
        }
        QString line = words.takeFirst();
        while (!words.isEmpty() && metrics.horizontalAdvance(line + ' ' + words[0]) <= label.width())
            line += ' ' + words.takeFirst();
        const qreal left = alignment & Qt::AlignRight ? label.width() - metrics.horizontalAdvance(line) : 0.0;
        painter.drawText(QPointF(left, top + metrics.ascent()), line);
    }
    return picture.toImage();
}

} // namespace

class TestLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        const QString semibold = NVO::Font::instance().semibold();
        const QString span = "<span style=\"" + semibold + "\">";
        const QList<QStringList> givenStoredShown{
            {" \n\t", " \n\t", ""},
            {" Beleg ", " Beleg ", "Beleg "},
            {"<b>x</b> <strong>y</strong>", span + "x</span> " + span + "y</span>", "x y"},
            {"<br>", "<br>", "\n"},
            {"a&lpar;1&rpar;", "a(1)", "a(1)"},
            {"%1 %2 100%", "%1 %2 100%", "%1 %2 100%"},
            {"&lt;&amp;", "&lt;&amp;", "<&"}};
        for (const QStringList &row : givenStoredShown) {
            Label label(row[0]);
            const QString shown = label.QLabel::text();
            QCOMPARE(label.text(), row[1]);
            QCOMPARE(label.hasContent(), row[0].contains(QRegularExpression("\\S")));
            QVERIFY(
                shown.startsWith("<html><head><style>h1,h2,h3,h4{" + semibold + "}</style></head><body>"));
            QTextDocument document;
            document.setHtml(shown);
            QCOMPARE(document.toPlainText(), row[2]);
            label.QLabel::setText("bypassed");
            label.setText(row[0]); // is only set again if it differs from the one that is stored
            QCOMPARE(label.QLabel::text() == "bypassed", row[0] == row[1] || row[0].contains("<b>"));
            QMetaObject::invokeMethod(&label, "clear");
            QVERIFY(label.text().isEmpty() && !label.hasContent());
        }
    }

    void elides()
    {
        for (const auto alignment :
             {Qt::AlignLeft | Qt::AlignTop, Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignLeft | Qt::AlignBottom,
              Qt::AlignRight | Qt::AlignTop, Qt::AlignHCenter | Qt::AlignTop}) {
            Label label(longText);
            NVO::StyleSupport::setPixelSize(&label, 13); // the same on any paint device
            label.enableElide(true);
            label.setAlignment(alignment);
            const int fitting = qCeil(QFontMetricsF(label.fontMetrics()).horizontalAdvance(longText));
            for (int width = fitting; width > 20; width -= 13) {
                for (int height = 10; height < 150; height += 20) {
                    label.resize(width, height);
                    for (const bool wrap : {!(alignment & Qt::AlignHCenter), false}) {
                        label.setWordWrap(wrap);
                        QCOMPARE(label.grab().toImage(), expectedPicture(label, longText));
                    }
                    QCOMPARE(label.isElided(), width < fitting);
                }
            }
        }
    }

    void elisionComesWithPainting()
    {
        Label label("<b>" + longText + "</b>");
        QSignalSpy spy(&label, &Label::elisionChanged);
        const auto elisions = [&](int width) {
            label.resize(width, 20);
            QVariantList result{spy.count()};
            label.grab();
            label.grab();
            while (!spy.isEmpty())
                result += spy.takeFirst();
            return result;
        };
        QCOMPARE(elisions(50), QVariantList{0}); // eliding is off
        label.enableElide(true);
        QVERIFY(label.isElideEnabled());
        QCOMPARE(elisions(50), (QVariantList{0, true}));
        QCOMPARE(elisions(2000), (QVariantList{0, false}));
        QCOMPARE(elisions(60), (QVariantList{0, true}));
        label.setText(QString());
        QVERIFY(label.isElided());
        QCOMPARE(elisions(60), (QVariantList{0, false}));
    }

    void fontDelta()
    {
        const FontDeltaGuard guard;
        Label inPoints("x");
        inPoints.setFont(QFont(inPoints.font().family(), 20));
        const int base = QFontInfo(inPoints.font()).pixelSize();
        for (const int delta : {2, 0, 5, -base, 1}) {
            const int before = inPoints.font().pixelSize();
            NVO::Css::instance().setFontDelta(delta);
            QCOMPARE(inPoints.font().pixelSize(), delta == -base ? before : base + delta);
        }
    }

    void clicksOnLinks()
    {
        EventCounter<QWidget> ground;
        Label label("<a href=\"konto\">Konto</a> und Text", &ground);
        label.setGeometry(0, 0, 300, 30);
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        ground.show();
        QSignalSpy links(&label, &QLabel::linkActivated);
        const QPoint onLink(10, label.fontMetrics().height() / 2);
        const QPoint onText(label.fontMetrics().horizontalAdvance("Konto und T"), onLink.y());
        // Where, how many links are activated by then, how many presses go through
        const QVector<std::tuple<QPoint, int, int>> clicks{
            {onLink, 1, 0}, {onText, 1, 1}, {QPoint(290, 25), 1, 2}, {onLink, 2, 2}, {onText, 2, 3}};
        for (const auto &[place, activated, through] : clicks) {
            QTest::mouseMove(&label, place);
            QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, place);
            QCOMPARE(links.count(), activated);
            QCOMPARE(ground.counts[QEvent::MouseButtonPress], through);
        }
        // The link goes away under a mouse that stands still.
        connect(&label, &QLabel::linkActivated, &label, [&label] { label.setText("Konto und Text"); });
        QTest::mouseMove(&label, onLink);
        for (const int through : {3, 4}) {
            QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, onLink);
            QCOMPARE(ground.counts[QEvent::MouseButtonPress], through);
        }
    }
};

QTEST_MAIN(TestLabel)
#include "tst_label.moc"
