#include "TestCase.h"
#include "TestResources.h"
#include "accordion/AccordionContent.h"
#include "accordion/AccordionHeader.h"

#include <nvo/AccordionBoxIndicator.h>
#include <nvo/AccordionSimpleHeader.h>
#include <nvo/Css.h>
#include <nvo/Label.h>

#include <QAccessible>
#include <QPropertyAnimation>
#include <QtTest>

using namespace NVO;

/** The ready-made header, its arrow and its box. */
class TestAccordionHeader : public TestCase
{
    Q_OBJECT

public:
    TestAccordionHeader()
        : m_theme(QMap<QString, QByteArray>{
            {"accordionindicator", TestResources::png(16, 16, {0xffff0000, 0xff00ff00})},
            {"accordionindicator_big", TestResources::png(64, 64, {0xff0000ff})},
            {"AccordionBoxIndicator", "NVO--AccordionBoxIndicator { min-width: 12px; }\n"
                                      "[style=\"Highlight\"] { background: red; }\n"},
            {"Accordion", "#spacerBetweenTexts { min-width: 30px; }\n"}})
    {
        Css::instance().reset();
    }

private Q_SLOTS:
    void gaps()
    {
        AccordionSimpleHeader header(nullptr, nullptr);
        const auto shows = [&](const char *name) {
            return header.findChild<QWidget *>(name)->isVisibleTo(&header);
        };
        for (const bool arrow : {true, false, true}) {
            for (const bool box : {true, false, true}) {
                if (!arrow || !box || header.isVisible()) { // both are there at first
                    header.setIndicatorVisible(arrow);
                    header.setColorIndicatorVisible(box);
                }
                QCOMPARE(header.isIndicatorVisible(), arrow);
                QCOMPARE(header.isColorIndicatorVisible(), box);
                QCOMPARE(shows("spacerBeforeIndicator"), arrow && !box);
                QCOMPARE(shows("spacerBetweenColorAndIndicator"), arrow && box);
                QVERIFY(shows("spacerBetweenIndicatoAndText") && shows("spacerAfterTexts"));
                header.show(); // the answers are the same then
                QVERIFY(header.findChild<QWidget *>("spacerBetweenTexts")->width() >= 30);
            }
        }
    }

    void texts()
    {
        AccordionSimpleHeader header(nullptr, nullptr);
        header.setLeftText("Konten");
        const QString normal = header.leftLabel()->text();
        header.setLeftTextHighlight(true);
        QVERIFY(header.leftLabel()->text() != normal);
        QCOMPARE(header.leftText(), QString("Konten"));
        header.leftLabel()->setText("anders");
        header.setLeftText("Konten"); // no change: the label is left alone
        header.setLeftTextHighlight(true);
        QCOMPARE(header.leftLabel()->text(), QString("anders"));
        header.setLeftTextHighlight(false);
        QCOMPARE(header.leftLabel()->text(), normal);
        header.setRightText("12,00 €");
        QCOMPARE(header.rightText(), header.rightLabel()->text());
        header.setColorIndicatorHighlight(true);
        auto *box = header.findChild<AccordionBoxIndicator *>();
        QCOMPARE(box->property("style"), QVariant("Highlight"));
        box->setColoredBoxState(AccordionBoxIndicator::State(7));
        QCOMPARE(box->property("style"), QVariant("Highlight"));
        QVERIFY(!header.colorIndicatorHightlight());
        header.setColorIndicatorHighlight(false);
        QCOMPARE(box->property("style"), QVariant("Normal"));
    }

    void clicks()
    {
        AccordionPart part(nullptr);
        auto *header = new AccordionSimpleHeader(&part, nullptr);
        header->setLeftText("Konten");
        part.setHeader(header);
        part.resize(300, 40);
        part.show();
        int requests = 0;
        int boxes = 0;
        connect(&part, &AccordionPart::stateChangeRequest, [&] { ++requests; });
        connect(header, &AccordionSimpleHeader::coloredIndicatorPressed, [&] {
            if (++boxes == 2)
                part.setHeader(nullptr); // and with it the box
        });
        for (QWidget *child : {static_cast<QWidget *>(header->leftLabel()), static_cast<QWidget *>(header),
                               static_cast<QWidget *>(header->findChild<AccordionIndicator *>())})
            QTest::mouseClick(child, Qt::LeftButton);
        QCOMPARE(requests, 3);
        QWindow *window = part.windowHandle();
        const QPoint box = header->findChild<QWidget *>("spacerBeforeIndicator")->mapTo(&part, QPoint());
        const QPoint centre = box + QPoint(6, header->height() / 2);
        for (int i = 0; i < 2; ++i)
            QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre);
        QCOMPARE(boxes, 2);
        QCOMPARE(requests, 3);
    }

    void arrowFollows()
    {
        auto *part = new AccordionPart(nullptr);
        AccordionIndicator arrow(part, nullptr);
        auto *content = part->findChild<AccordionContent *>();
        const auto advance = [&](int milliseconds) {
            for (auto *animation :
                 {content->findChild<QPropertyAnimation *>(), arrow.findChild<QPropertyAnimation *>()}) {
                if (animation->state() == QAbstractAnimation::Running)
                    animation->setCurrentTime(animation->currentTime() + milliseconds);
            }
        };
        QCOMPARE(arrow.animationPercent(), 100.0);
        part->animateExpand(1);
        for (const int time : {30, 40, 50}) {
            advance(time);
            QCOMPARE(arrow.animationPercent(), content->hiddenPercent());
        }
        QCOMPARE(arrow.animationPercent(), 40.0);
        part->animateHide(1); // from where it stands, in the time that the way back needs
        QCOMPARE(arrow.findChild<QPropertyAnimation *>()->duration(), 120);
        QCOMPARE(arrow.animationPercent(), 40.0);
        advance(60);
        QCOMPARE(arrow.animationPercent(), 70.0);
        part->setState(AccordionState::Expanded);
        QCOMPARE(arrow.animationPercent(), 0.0);
        advance(1000);
        QCOMPARE(arrow.animationPercent(), 0.0);
        QCOMPARE(AccordionIndicator(part, nullptr).animationPercent(), 0.0);
        part->animateHide(0);
        QCOMPARE(arrow.animationPercent(), 100.0);
        part->animateExpand(1);
        delete part;
        QTRY_COMPARE(arrow.animationPercent(), 0.0); // it goes on alone
    }

    void arrowTurns()
    {
        // The image is red at the left and green at the right.
        AccordionIndicator arrow(nullptr, nullptr);
        arrow.resize(arrow.sizeHint());
        const auto colorAt = [&](int x, int y) {
            const QImage image = arrow.grab().toImage();
            return image.pixelColor(x * image.width() / 16, y * image.height() / 16);
        };
        for (const bool mirrored : {false, true}) {
            arrow.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            arrow.setAnimationPercent(0);
            QCOMPARE(colorAt(2, 8), QColor(Qt::red));
            QCOMPARE(colorAt(13, 8), QColor(Qt::green));
            arrow.setAnimationPercent(100); // against the clock, or mirrored
            QCOMPARE(colorAt(8, mirrored ? 2 : 13), QColor(Qt::red));
            QCOMPARE(colorAt(8, mirrored ? 13 : 2), QColor(Qt::green));
        }
        arrow.setIndicatorSize(AccordionIndicator::Big);
        QCOMPARE(arrow.sizeHint(), QSize(16, 16));
        arrow.setAnimationPercent(0);
        QCOMPARE(colorAt(15, 15), QColor(Qt::blue));
    }

    void spokenName()
    {
        AccordionPart part(nullptr);
        auto *header = new AccordionSimpleHeader(&part, nullptr);
        part.setHeader(header);
        header->setLeftText("Konten &amp; <i>Karten</i>");
        header->setRightText("<b>3</b>");
        auto *button = part.findChild<AccordionHeader *>();
        QAccessibleInterface *described = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(described->text(QAccessible::Name), QString("Konten & Karten"));
        QCOMPARE(described->text(QAccessible::Description), QString("3"));
        for (const bool open : {false, true, false}) {
            part.setState(open ? AccordionState::Expanded : AccordionState::Hidden);
            QVERIFY(described->state().expandable);
            QCOMPARE(bool(described->state().expanded), open);
            QCOMPARE(bool(described->state().collapsed), !open);
        }
        part.setHeader(new QLabel("Frei"));
        QCOMPARE(described->text(QAccessible::Name), QString("Frei"));
        part.setHeader(nullptr);
        QCOMPARE(described->text(QAccessible::Name), QString());
        button->setAccessibleName("Eigener");
        QCOMPARE(described->text(QAccessible::Name), QString("Eigener"));
    }

private:
    TestResources m_theme;
};

QTEST_MAIN(TestAccordionHeader)
#include "tst_accordionheader.moc"
