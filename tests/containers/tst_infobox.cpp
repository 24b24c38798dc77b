#include "EventCounter.h"
#include "TestCase.h"
#include "TestResources.h"

#include "containers/TextHolder.h"

#include <nvo/Css.h>
#include <nvo/InfoBox.h>

#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTextBlock>
#include <QVBoxLayout>
#include <QtTest>

#include <optional>

using NVO::InfoBox;
using NVO::TextHolder;

namespace {

const QString linkText =
    "Zum <a href=\"beleg:1\">Beleg</a> und, nach einem sehr langen Weg durch viele Zeilen, zum "
    "<a href=\"konto:2\">Konto <i>4930</i></a> oder <a name=\"ziel\">nirgendwohin</a>, auch nicht "
    "<a href=\"\">dorthin</a>, dann <a href=\"lieferant:3\">weiter</a>.";
const QStringList linkTargets{"beleg:1", "konto:2", "lieferant:3"};

/** A text laid out by somebody else. */
struct Reference
{
    Reference(const QString &html, const QFont &font, int width)
    {
        document.setDocumentMargin(0);
        document.setDefaultFont(font);
        document.setHtml(html);
        document.setTextWidth(width);
        document.size(); // lays out
    }

    int height() const { return document.size().toSize().height(); }

    /** The middle of the first place where \a text stands. */
    QPoint placeOf(const QString &text) const
    {
        const QTextCursor found = document.find(text);
        const QTextBlock block = found.block();
        const int start = found.selectionStart() - block.position();
        const QTextLine line = block.layout()->lineForTextPosition(start);
        const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
        return (corner + QPointF(line.cursorToX(start) + 6, line.y() + line.height() / 2)).toPoint();
    }

    QTextDocument document;
};

TextHolder *holderOf(const InfoBox &box)
{
    return box.findChild<TextHolder *>("html");
}

/** 24 x 16 */
QPixmap picture(int ratio)
{
    QPixmap pixmap(24 * ratio, 16 * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::red);
    return pixmap;
}

/** A move of the mouse that does not ask where the cursor is. */
void moveMouse(QWidget *widget, const QPoint &place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

QString randomHtml(QRandomGenerator &random)
{
    QString html;
    for (int words = random.bounded(1, 60); words > 0; --words) {
        const QString word(random.bounded(1, 14), QLatin1Char('a' + char(random.bounded(26))));
        const QStringList forms{"%1 ",       "<b>%1</b> ",  "%1<br>",
                                "<p>%1</p>", "<li>%1</li>", "<span style=\"font-size:23px\">%1</span> "};
        html += forms[random.bounded(forms.size())].arg(word);
    }
    return html;
}

} // namespace

class TestInfoBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_theme.emplace(QMap<QString, QByteArray>{
            {"InfoBox", "NVO--InfoBox { background: rgb(10, 10, 10); }\n"
                        "*[style=\"Info\"] { background: rgb(20, 20, 20); }\n"
                        "*[style=\"Highlight\"] { background: rgb(30, 30, 30); }\n"
                        "*[style=\"Success\"] { background: rgb(40, 40, 40); }\n"
                        "*[style=\"SuccessTransparent\"] { background: rgb(50, 50, 50); }\n"
                        "*[style=\"Error\"] { background: rgb(60, 60, 60); }\n"
                        "*[style=\"Advert\"] { background: rgb(70, 70, 70); }\n"
                        "#iconTextSpace { min-width: 9px; max-width: 9px; }\n"
                        "#html { color: lime; font-size: 15px; }\n"}});
        NVO::Css::instance().reset();
    }

    void styles()
    {
        const QByteArrayList keys{"",      "Info",  "Highlight", "Success", "SuccessTransparent",
                                  "Error", "Advert"};
        for (const bool shown : {false, true}) {
            InfoBox box;
            box.setVisible(shown);
            for (const int style : {0, 3, 1, 6, 0, 2, 5, 4, 0, 6, 7, -1}) {
                const int known = style == 7 || style == -1 ? 6 : style; // others leave the look as it is
                box.setInfoBoxStyle(InfoBox::InfoBoxStyle(style));
                QCOMPARE(box.property("style").isValid(), style != 0);
                QCOMPARE(box.property("style").toByteArray(), keys[known]);
                const int tone = 10 * (known + 1);
                QCOMPARE(box.grab().toImage().pixelColor(1, 1), QColor(tone, tone, tone));
            }
        }
    }

    void text()
    {
        InfoBox box;
        box.setHtmlText("<b>fett</b> und <i>schräg</i>");
        QVERIFY(!box.html().contains("<b>"));
        QTextDocument document;
        document.setHtml(box.html());
        QVERIFY(document.begin().begin().fragment().charFormat().fontWeight() > QFont::Normal);
        auto *accessible = QAccessible::queryAccessibleInterface(holderOf(box));
        QCOMPARE(accessible->role(), QAccessible::StaticText);
        QCOMPARE(accessible->text(QAccessible::Name), QString("fett und schräg"));
    }

    void heights()
    {
        QRandomGenerator random(20260417);
        InfoBox box;
        TextHolder *holder = holderOf(box);
        for (int round = 0; round < 40; ++round) {
            const QString html = randomHtml(random);
            holder->setHtml(html);
            for (int step = 0; step < 10; ++step) {
                const int width = random.bounded(0, 900);
                if (step == 5) // a new size, in the middle of it all
                    box.setStyleSheet(QString("#html { font-size: %1px; }").arg(random.bounded(6, 30)));
                const int height =
                    holder->heightForWidth(width); // from the first call on the sheet has its say
                QCOMPARE(height, Reference(html, holder->font(), width).height());
                const int hintHeight = Reference(html, holder->font(), 720).height();
                QCOMPARE(holder->sizeHint(), QSize(720, hintHeight));
                QCOMPARE(holder->minimumSizeHint(), QSize(300, hintHeight));
            }
        }
        QVERIFY(holder->sizePolicy().hasHeightForWidth());
        QCOMPARE(holder->heightForWidth(-5), holder->heightForWidth(0));
    }

    void boxTakesTheHeightOfItsWidth()
    {
        QWidget page;
        auto *column = new QVBoxLayout(&page);
        column->setContentsMargins(0, 0, 0, 0);
        auto *box = new InfoBox;
        box->setHtmlText(QString("Beleg ").repeated(60));
        box->setPixmap(picture(1));
        column->addWidget(box);
        column->addStretch(1);
        page.show();
        const TextHolder *holder = holderOf(*box);
        for (const int width : {520, 630, 1200, 340, 900}) {
            page.resize(width, 600);
            QTRY_COMPARE(box->width(), width);
            QCOMPARE(holder->width(), width - 33); // the icon keeps its width, also in wide boxes
            QCOMPARE(box->height(), qMax(16, holder->heightForWidth(holder->width())));
        }
    }

    void painting()
    {
        InfoBox box;
        TextHolder *holder = holderOf(box);
        holder->setHtml("Ein <b>Text</b>, der auf <i>mehrere</i> Zeilen umbricht");
        holder->setFixedSize(110, 90);
        for (const QColor &color : {QColor(0, 255, 0), QColor(255, 0, 0)}) {
            if (color != QColor(0, 255, 0))
                box.setStyleSheet("#html { color: red; font-size: 15px; }");
            holder->heightForWidth(720); // must not leave a trace
            QPixmap expected = holder->grab();
            const QImage picture = expected.toImage();
            expected.fill(holder->palette().color(QPalette::Window));
            Reference reference(holder->html(), holder->font(), 110);
            QAbstractTextDocumentLayout::PaintContext context;
            context.palette.setColor(QPalette::Text, color);
            QPainter painter(&expected);
            reference.document.documentLayout()->draw(&painter, context);
            painter.end();
            QCOMPARE(picture, expected.toImage());
        }
    }

    void newTextOfTheSameSizeIsPainted()
    {
        EventCounter<TextHolder> holder(nullptr);
        holder.setHtml("Text 1");
        holder.resize(300, 50);
        holder.show();
        QVERIFY(QTest::qWaitForWindowExposed(&holder));
        QTest::qWait(20);
        const int paints = holder.counts[QEvent::Paint];
        holder.setHtml("Text 2");
        QTRY_VERIFY(holder.counts[QEvent::Paint] > paints);
    }

    void icon()
    {
        InfoBox box;
        box.setHtmlText("Text");
        const auto *label = box.findChild<QLabel *>("icon");
        const auto *gap = box.findChild<QWidget *>("iconTextSpace");
        box.resize(500, 100);
        box.show();
        const int left = holderOf(box)->x();
        for (const int ratio : {1, 2, 3}) {
            QVERIFY(label->isHidden() && gap->isHidden());
            box.setPixmap(picture(ratio));
            QVERIFY(label->isVisible() && gap->isVisible());
            QTRY_COMPARE(holderOf(box)->x(), left + 24 + 9);
            const QMap<int, int> places{{Qt::AlignTop, 0}, {Qt::AlignBottom, 84}, {Qt::AlignVCenter, 42}};
            for (auto place = places.begin(); place != places.end(); ++place) {
                box.setIconAlignment(Qt::Alignment(place.key()));
                box.layout()->activate();
                QCOMPARE(label->geometry(), QRect(0, *place, 24, 16));
            }
            box.setPixmap(QPixmap());
            QTRY_COMPARE(holderOf(box)->x(), left);
        }
    }

    void rightToLeft()
    {
        InfoBox box;
        box.setHtmlText("Text");
        box.setPixmap(picture(1));
        box.resize(500, 40);
        box.show();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LeftToRight}) {
            const bool mirrored = direction == Qt::RightToLeft;
            box.setLayoutDirection(direction);
            box.layout()->activate();
            QCOMPARE(box.findChild<QLabel *>("icon")->x(), mirrored ? 476 : 0);
            const QImage shown = box.grab(holderOf(box)->geometry()).toImage();
            const int half = shown.width() / 2;
            const QImage empty = shown.copy(mirrored ? 0 : half, 0, half, shown.height());
            for (int x = 0; x < half; ++x) {
                for (int y = 0; y < empty.height(); ++y)
                    QVERIFY(empty.pixelColor(x, y).green() <= 128); // no text on this side
            }
        }
    }

    void additionalWidgets()
    {
        QRandomGenerator random(7);
        QWidget elsewhere;
        QPointer<QWidget> current;
        QList<QPointer<QWidget>> takenOut;
        InfoBox box;
        for (int step = 0; step < 1000; ++step) {
            const int deed = random.bounded(4);
            if (deed == 0) {
                box.setAdditionalWidget(current); // the one that is there
            } else if (deed == 1) {
                delete current;
            } else if (deed == 2) {
                if (current)
                    current->setParent(&elsewhere);
                current = nullptr;
            } else {
                if (current)
                    takenOut += current;
                current = random.bounded(2) ? new QLabel("unten") : nullptr;
                box.setAdditionalWidget(current);
            }
            QCOMPARE(box.additionalWidget(), current.data());
            QCOMPARE(box.layout()->itemAt(2)->layout()->count(), current ? 2 : 1);
        }
        QVERIFY(takenOut.size() > 20);
        for (const QPointer<QWidget> &widget : takenOut)
            QCOMPARE(widget->parentWidget(), &box);
        // What contains the box cannot stand in it.
        auto *inner = new InfoBox;
        elsewhere.setParent(nullptr);
        inner->setParent(&elsewhere);
        for (QWidget *foreign : {&elsewhere, static_cast<QWidget *>(inner)}) {
            inner->setAdditionalWidget(foreign);
            QVERIFY(!elsewhere.parentWidget() && inner->parentWidget() == &elsewhere);
        }
    }

    void clicksOnLinks()
    {
        InfoBox box;
        box.setHtmlText(linkText);
        TextHolder *holder = holderOf(box);
        QSignalSpy spy(&box, &InfoBox::linkActivated);
        for (const int width : {330, 560, 720}) {
            box.resize(width, box.heightForWidth(width));
            box.show();
            QTRY_COMPARE(holder->width(), width);
            const Reference reference(holder->html(), holder->font(), width);
            const QMap<QString, QString> places{
                {"Beleg", "beleg:1"}, {"Konto", "konto:2"}, {"4930", "konto:2"}, {"weiter", "lieferant:3"},
                {"Zum", ""},          {"nirgendwohin", ""}, {"dorthin", ""}};
            for (auto it = places.begin(); it != places.end(); ++it) {
                const QPoint place = reference.placeOf(it.key());
                holder->heightForWidth(200); // somebody asks in between
                moveMouse(holder, QPoint(1, holder->height() - 1));
                moveMouse(holder, place);
                QCOMPARE(holder->cursor().shape(), it->isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
                QTest::mousePress(holder, Qt::LeftButton, Qt::NoModifier, reference.placeOf("Beleg"));
                QTest::mouseRelease(holder, Qt::LeftButton, Qt::NoModifier, place);
                QTest::mouseClick(holder, Qt::RightButton, Qt::NoModifier, place);
                QCOMPARE(spy.count(), it->isEmpty() ? 0 : 1);
                while (!spy.isEmpty())
                    QCOMPARE(spy.takeFirst().first().toString(), *it);
            }
        }
    }

    void keyboard()
    {
        QWidget page;
        auto *column = new QVBoxLayout(&page);
        auto *before = new QLineEdit;
        auto *plain = new InfoBox;
        auto *box = new InfoBox;
        auto *after = new QLineEdit;
        for (QWidget *widget : {static_cast<QWidget *>(before), static_cast<QWidget *>(plain),
                                static_cast<QWidget *>(box), static_cast<QWidget *>(after)})
            column->addWidget(widget);
        plain->setHtmlText("Kein <a name=\"ziel\">Verweis</a>");
        box->setHtmlText(linkText);
        page.resize(720, 200);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        before->setFocus();
        QSignalSpy spy(box, &InfoBox::linkActivated);
        const auto pressed = [&](Qt::Key key) { // what is opened at the place the key leads to
            for (const Qt::Key each : {key, Qt::Key_Return, Qt::Key_X})
                QTest::keyClick(page.focusWidget(), each);
            return spy.isEmpty() ? QString() : spy.takeFirst().first().toString();
        };
        TextHolder *holder = holderOf(*box);
        const QImage unmarked = holder->grab().toImage();
        for (const QString &target : linkTargets) {
            QCOMPARE(pressed(Qt::Key_Tab), target);
            QVERIFY(holder->grab().toImage() != unmarked);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(holder)->text(QAccessible::Description),
                 QString("weiter"));
        QCOMPARE(pressed(Qt::Key_Tab), QString());
        QCOMPARE(page.focusWidget(), after);
        QCOMPARE(holder->grab().toImage(), unmarked);
        for (const QString &target : {linkTargets[2], linkTargets[1], linkTargets[0]})
            QCOMPARE(pressed(Qt::Key_Backtab), target);
        // The text changes while the keyboard is in it.
        box->setHtmlText("Nur <a href=\"neu\">einer</a>");
        QCOMPARE(pressed(Qt::Key_Space), QString("neu"));
        box->setHtmlText("keiner");
        spy.clear();
        QCOMPARE(pressed(Qt::Key_Backtab), QString());
        QCOMPARE(page.focusWidget(), before);
    }

    void deletedByALink()
    {
        for (const bool byKey : {false, true}) {
            QPointer<InfoBox> box = new InfoBox;
            box->setHtmlText("<a href=\"x\">Verweis</a>");
            box->resize(400, 40);
            box->show();
            QVERIFY(QTest::qWaitForWindowActive(box));
            connect(box, &InfoBox::linkActivated, this, [box] { delete box; });
            TextHolder *holder = holderOf(*box);
            holder->setFocus(Qt::TabFocusReason);
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QMouseEvent click(QEvent::MouseButtonRelease, QPointF(8, 8), Qt::LeftButton, Qt::NoButton, {});
            QCoreApplication::sendEvent(holder, byKey ? static_cast<QEvent *>(&key) : &click);
            QVERIFY(box.isNull());
        }
    }

private:
    std::optional<TestResources> m_theme;
};

QTEST_MAIN(TestInfoBox)
#include "tst_infobox.moc"
