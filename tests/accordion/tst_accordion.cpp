#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"
#include "accordion/AccordionContent.h"
#include "accordion/AccordionHeader.h"
#include "accordion/AccordionSeparatorLine.h"

#include <nvo/Accordion.h>
#include <nvo/Css.h>

#include <QLabel>
#include <QMetaMethod>
#include <QPropertyAnimation>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

using namespace NVO;
using Animated = AnimatedAccordionState;

namespace {

AccordionContent *contentOf(const QObject *part)
{
    return part->findChild<AccordionContent *>(QString(), Qt::FindDirectChildrenOnly);
}

AccordionHeader *headerOf(const QObject *part)
{
    return part->findChild<AccordionHeader *>(QString(), Qt::FindDirectChildrenOnly);
}

/** The line above the header of a part (0) or below it (1). */
AccordionSeparatorLine *lineOf(const QObject *part, int kind)
{
    return part->findChildren<AccordionSeparatorLine *>(QString(), Qt::FindDirectChildrenOnly).value(kind);
}

AccordionState stateFor(bool open)
{
    return open ? AccordionState::Expanded : AccordionState::Hidden;
}

void advance(const QObject *part, int milliseconds)
{
    auto *animation = contentOf(part)->findChild<QPropertyAnimation *>(QString(), Qt::FindDirectChildrenOnly);
    if (animation->state() == QAbstractAnimation::Running)
        animation->setCurrentTime(animation->currentTime() + milliseconds);
}

/** Writes down all signals of a part with what they say. */
void record(QStringList &log, AccordionPart *part, const QString &prefix = QString())
{
    const auto number = [](auto value) { return QString::number(int(value)); };
    QObject::connect(part, &AccordionPart::stateChanged,
                     [=, &log](AccordionState state) { log << prefix + "state " + number(state); });
    QObject::connect(part, &AccordionPart::animationStateChanged,
                     [=, &log](Animated state) { log << prefix + "animation " + number(state); });
    QObject::connect(part, &AccordionPart::stateChangedWithoutAnimation,
                     [=, &log](AccordionState state) { log << prefix + "direct " + number(state); });
    QObject::connect(part, &AccordionPart::animationStarted, [=, &log](double start, double end, int time) {
        log << prefix + QString("started %1 %2 %3").arg(start).arg(end).arg(time);
    });
    QObject::connect(part, &AccordionPart::animationFinished, [=, &log] { log << prefix + "finished"; });
}

/** What a part has to be, worked out by hand from what is done to it. */
struct PartModel
{
    bool open = false;
    double shown = 100; // hidden percent
    bool running = false;
    double from = 100;
    double to = 100;
    int duration = 0;
    int elapsed = 0;
    QStringList log;

    double value() const { return from + (to - from) * (double(elapsed) / duration); }
    QString target() const { return open ? "0" : "1"; }

    void arrive(const QString &how)
    {
        running = false;
        shown = open ? 0 : 100;
        log << how << "animation " + target();
    }
    void direct(bool wantsOpen)
    {
        if (open == wantsOpen)
            return;
        open = wantsOpen;
        log << "state " + target();
        arrive("direct " + target());
    }
    void animate(bool wantsOpen, int speed)
    {
        if (open == wantsOpen)
            return;
        const double start = running ? value() : open ? 0 : 100;
        const double end = open ? 100 : 0;
        const int base = running ? int(qAbs(end - start) / 100 * 200) : 200;
        open = wantsOpen;
        from = start;
        to = end;
        duration = speed > 0 ? base / speed : 0;
        elapsed = 0;
        running = duration > 0;
        log << "state " + target() << QString("started %1 %2 %3").arg(from).arg(to).arg(duration)
            << (open ? "animation 2" : "animation 3");
        if (!running)
            arrive("finished");
    }
    void advance(int milliseconds)
    {
        if (!running)
            return;
        elapsed = qMin(duration, elapsed + milliseconds);
        if (qAbs(value() - shown) >= 0.1)
            shown = value();
        if (elapsed == duration)
            arrive("finished");
    }
};

struct Column
{
    explicit Column(int count)
    {
        for (int i = 0; i < count; ++i) {
            auto *part = new AccordionPart(nullptr);
            auto *content = new QWidget;
            content->setFixedHeight(60);
            part->setContent(content);
            part->setHeader(new QLabel(QString::number(i)));
            accordion.addAccordionPart(part);
            parts << part;
        }
    }
    Accordion accordion;
    QVector<QPointer<AccordionPart>> parts;
};

} // namespace

class TestAccordion : public TestCase
{
    Q_OBJECT

public:
    TestAccordion()
        : m_theme(QMap<QString, QByteArray>{
            {"Palette", "[Named]\nCOLOR_BIG_BUTTON_BORDER_FOCUS=#ff0000\nCOLOR_BIG_BUTTON_BORDER=#00ff00\n"
                        "BASECOLOR_SILVER_GRAY=#0000ff\n"},
            {"Accordion", "NVO--AccordionHeader { border: none; min-height: 20px; }\n"
                          "NVO--AccordionHeader:hover { background: #123456; }\n"
                          "[style=\"Infocenter\"] > * > #last { border: 2px solid red; }\n"}})
    {
        Css::instance().reset();
    }

private Q_SLOTS:
    void machine()
    {
        QRandomGenerator random(20260417);
        AccordionPart part(nullptr);
        PartModel model;
        QStringList log;
        record(log, &part);
        QSet<int> seen;
        for (int step = 0; step < 4000; ++step) {
            const bool open = random.bounded(2);
            const int speed = random.bounded(4) ? random.bounded(1, 4) : random.bounded(-1, 300);
            const int time = random.bounded(120);
            const int what = random.bounded(6);
            if (what == 0) {
                part.setState(stateFor(open));
                model.direct(open);
            } else if (what == 1) {
                part.setStateAnimated(stateFor(open));
                model.animate(open, 1);
            } else if (what == 2) {
                open ? part.animateExpand(speed) : part.animateHide(speed);
                model.animate(open, speed);
            } else if (what == 3) {
                part.animateToggle(speed);
                model.animate(!model.open, speed);
            } else {
                advance(&part, time);
                model.advance(time);
            }
            QCOMPARE(log, model.log);
            QCOMPARE(part.state(), stateFor(model.open));
            QCOMPARE(int(part.animationState()), (model.open ? 0 : 1) + (model.running ? 2 : 0));
            QVERIFY(qAbs(contentOf(&part)->hiddenPercent() - model.shown) < 1e-9);
            QCOMPARE(contentOf(&part)->isHidden(), qAbs(model.shown - 100) <= 0.1);
            seen.insert(int(part.animationState()));
            log.clear();
            model.log.clear();
        }
        QCOMPARE(seen.size(), 4);
    }

    void slotChangesTheStateAgain()
    {
        // The signals of the newer change replace the rest of those of the older one.
        AccordionPart part(nullptr);
        QStringList log;
        record(log, &part);
        connect(&part, &AccordionPart::animationStarted, [&] { part.setState(AccordionState::Hidden); });
        connect(&part, &AccordionPart::stateChangedWithoutAnimation, [&](AccordionState state) {
            if (state == AccordionState::Expanded)
                part.setStateAnimated(AccordionState::Hidden);
        });
        part.animateExpand(1);
        QCOMPARE(log, QStringList({"state 0", "started 100 0 200", "state 1", "direct 1", "animation 1"}));
        log.clear();
        part.setState(AccordionState::Expanded);
        QCOMPARE(log, QStringList({"state 0", "direct 0", "state 1", "started 0 100 200", "animation 3"}));
    }

    void geometry_data()
    {
        QTest::addColumn<int>("border");
        QTest::addColumn<bool>("wraps");
        for (const int border : {0, 3}) {
            for (const bool wraps : {false, true})
                QTest::addRow("border %d, wraps %d", border, wraps) << border << wraps;
        }
    }

    void geometry()
    {
        QFETCH(int, border);
        QFETCH(bool, wraps);
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *part = new AccordionPart(nullptr);
        AccordionContent *content = contentOf(part);
        content->setStyleSheet(QString(".NVO--AccordionContent { border: %1px solid red; }").arg(border));
        auto *rows = new QLabel(QString("Wort ").repeated(60));
        rows->setWordWrap(wraps);
        part->setContent(rows);
        part->setSharedBorder(false);
        layout->addWidget(part);
        layout->addStretch();
        window.resize(300, 600);
        window.show();
        QVERIFY(content->isHidden());
        const int headerHeight = part->height();
        QWidget *viewport = content->widget();
        QCOMPARE(viewport->objectName(), QString("viewport"));
        for (int percent = 99; percent >= 0; --percent) {
            content->setHiddenPercent(percent);
            QCoreApplication::processEvents();
            QCOMPARE(content->frameWidth(), border);
            QCOMPARE(content->hasHeightForWidth(), wraps);
            QCOMPARE(content->sizeHint().height(),
                     (viewport->sizeHint().height() + 2 * border) * (100 - percent) / 100);
            QCOMPARE(content->minimumSizeHint().height(),
                     (viewport->minimumSizeHint().height() + 2 * border) * (100 - percent) / 100);
            QCOMPARE(content->sizeHint().width(), viewport->sizeHint().width() + 2 * border);
            const int width = content->width();
            int height = content->sizeHint().height();
            int full = viewport->sizeHint().height();
            if (wraps) {
                height = 2 * border + (100 - percent) * viewport->heightForWidth(width - border) / 100;
                full = viewport->heightForWidth(width - 2 * border);
                QCOMPARE(content->heightForWidth(width), height);
            }
            QCOMPARE(content->height(), height);
            QCOMPARE(part->height(), headerHeight + height);
            QCOMPARE(viewport->size(), QSize(width - 2 * border, full));
        }
        // What is inside grows: so does the area, and nothing is squeezed.
        rows->setMinimumHeight(400);
        QTRY_COMPARE(viewport->height(), 400);
        QTRY_COMPARE(content->height(), 400 + 2 * border);
        content->setFixedHeight(100);
        rows->setMinimumHeight(500);
        QTRY_COMPARE(viewport->height(), 500);
        for (int width = 40; width < 300; ++width)
            QCOMPARE(content->heightForWidth(width), viewport->heightForWidth(width - border) + 2 * border);
        content->setHiddenPercent(0.05); // too small a step
        QCOMPARE(content->hiddenPercent(), 0.0);
        content->setHiddenPercent(99.95);
        QVERIFY(content->isHidden());
        QCoreApplication::processEvents();
        QCOMPARE(part->height(), headerHeight);
    }

    void exclusive()
    {
        QRandomGenerator random(7);
        Column column(5);
        QStringList log;
        for (int i = 0; i < 5; ++i)
            record(log, column.parts[i], QString("%1 ").arg(i));
        const auto states = [&] {
            QVector<bool> open;
            for (const auto &part : column.parts)
                open << (part->state() == stateFor(true));
            return open;
        };
        for (int step = 0; step < 500; ++step) {
            for (const auto &part : column.parts) { // at rest, and more than one may be open
                const bool isOpen = random.bounded(2);
                part->setState(stateFor(!isOpen));
                part->setState(stateFor(isOpen));
            }
            const int chosen = random.bounded(5);
            const QVector<bool> before = states();
            const int how = random.bounded(3);
            const bool open = how == 2 ? !before[chosen] : random.bounded(2);
            const auto state = stateFor(open);
            log.clear();
            if (how == 0)
                column.accordion.setState(column.parts[chosen], state);
            else if (how == 1)
                column.accordion.setStateAnimated(column.parts[chosen], state);
            else
                headerOf(column.parts[chosen])->click();
            QVector<bool> expected = before;
            QStringList starts;
            if (before[chosen] != open) {
                for (int i = 0; i < 5; ++i) {
                    const bool target = i == chosen ? open : before[i] && !open;
                    if (target != before[i])
                        starts << QString("%1 started %2 %3 %4")
                                      .arg(i)
                                      .arg(before[i] ? 0 : 100)
                                      .arg(before[i] ? 100 : 0)
                                      .arg(200 / (starts.size() + 1));
                    expected[i] = target;
                }
            }
            QCOMPARE(states(), expected);
            QCOMPARE(log.filter("started"), how == 0 ? QStringList() : starts);
            QCOMPARE(column.accordion.state(column.parts[chosen]), state);
        }
        for (const auto &part : column.parts)
            part->setState(AccordionState::Hidden);
        column.accordion.setFirstPartState(AccordionState::Expanded);
        QCOMPARE(states().indexOf(true), 0);
    }

    void separators()
    {
        // Each combination of open parts, focus and look, against what a user has to see.
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            for (int open = 0; open < 8; ++open) {
                Column column(3);
                for (int i = 0; i < 3; ++i)
                    column.parts[i]->setState(stateFor(open & (1 << i)));
                column.accordion.resize(200, column.accordion.sizeHint().height());
                column.accordion.show();
                QVERIFY(QTest::qWaitForWindowActive(&column.accordion));
                for (int focus = 0; focus < 3; ++focus) {
                    headerOf(column.parts[focus])->setFocus();
                    QCOMPARE(column.parts[focus]->styleState() & Focused, Focused);
                    for (int i = 0; i < 3; ++i) {
                        const bool isOpen = open & (1 << i);
                        const bool aboveClosed = i > 0 && !(open & (1 << (i - 1)));
                        AccordionSeparatorLine *top = lineOf(column.parts[i], 0);
                        AccordionSeparatorLine *bottom = lineOf(column.parts[i], 1);
                        QVERIFY(top->isVisible());
                        QCOMPARE(bottom->isVisible(), isOpen || i == 2);
                        const bool topLit = focus == i || (aboveClosed && focus == i - 1);
                        QCOMPARE(top->isHighlighted(), topLit);
                        if (bottom->isVisible())
                            QCOMPARE(bottom->isHighlighted(), focus == i);
                        QCOMPARE(top->grab().toImage().pixelColor(5, 0), QColor(topLit    ? "#ff0000"
                                                                                : variant ? "#00ff00"
                                                                                          : "#0000ff"));
                        QCOMPARE(top->height(), 1);
                    }
                }
            }
        }
        // On its way a part still has its own lines; without a shared border there is none.
        Column column(2);
        column.accordion.show();
        column.parts[0]->animateExpand(1);
        QVERIFY(lineOf(column.parts[0], 1)->isVisible());
        column.parts[0]->animateHide(0);
        QVERIFY(!lineOf(column.parts[0], 1)->isVisible());
        column.parts[0]->setSharedBorder(false);
        QVERIFY(!lineOf(column.parts[0], 0)->isVisible());
    }

    void styles_data()
    {
        QTest::addColumn<int>("vertical"); // margin of the headers
        QTest::addColumn<int>("spacing");
        QTest::newRow("Normal") << 0 << 0;
        QTest::newRow("Inline") << 0 << 0;
        QTest::newRow("Backstage") << 1 << 10;
        QTest::newRow("Booking") << 1 << 10;
        QTest::newRow("Migration") << 0 << 10;
        QTest::newRow("VaSt") << 0 << 10;
        QTest::newRow("MarkAsRead") << 0 << 10;
        QTest::newRow("Infocenter") << 0 << 0;
    }

    void styles()
    {
        QFETCH(int, vertical);
        QFETCH(int, spacing);
        const QString key = QTest::currentDataTag();
        const int horizontal = key == "Inline" ? 0 : 1;
        const bool shadow = key != "Inline" && key != "Infocenter";
        const auto style = Accordion::AccordionStyle(
            QMetaEnum::fromType<Accordion::AccordionStyle>().keyToValue(key.toLatin1()));
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            for (const bool before : {false, true}) { // parts that are added, and those that are there
                Column column(before ? 2 : 0);
                column.accordion.setAccordionStyle(style);
                column.accordion.setAccordionStyle(Accordion::AccordionStyle(8));
                QCOMPARE(column.accordion.accordionStyle(), style);
                QCOMPARE(column.accordion.property("style"), QVariant(key));
                QCOMPARE(column.accordion.layout()->spacing(), spacing);
                Column more(2);
                for (const auto &part : qAsConst(more.parts))
                    column.accordion.addAccordionPart(part);
                column.accordion.resize(200, 300);
                column.accordion.show();
                for (AccordionPart *part : column.accordion.findChildren<AccordionPart *>()) {
                    QCOMPARE(headerOf(part)->layout()->contentsMargins(),
                             QMargins(horizontal, vertical, horizontal, vertical));
                    QCOMPARE(lineOf(part, 0)->isVisible(), key == "Normal");
                }
                AccordionPart *first = more.parts[0];
                first->setState(AccordionState::Expanded);
                QCoreApplication::processEvents();
                const QImage picture = first->grab().toImage();
                const int ratio = picture.width() / first->width();
                const int top = contentOf(first)->y() * ratio;
                QCOMPARE(picture.pixelColor(50, top) != picture.pixelColor(50, top + 5 * ratio),
                         shadow && variant == 1);
            }
        }
    }

    void members()
    {
        Column column(3);
        Column other(1);
        const auto lasts = [](const Column &of) {
            QString text;
            for (const auto &part : of.accordion.findChildren<AccordionPart *>())
                text += contentOf(part)->objectName() == "last" ? 'L' : '-';
            return text;
        };
        AccordionPart outside(nullptr);
        outside.setContent(new QWidget);
        column.accordion.addAccordionPart(nullptr);
        column.accordion.addAccordionPart(column.parts[0]); // is there
        column.accordion.setState(nullptr, AccordionState::Expanded);
        column.accordion.setStateAnimated(&outside, AccordionState::Expanded);
        QCOMPARE(column.accordion.state(nullptr), AccordionState::Hidden);
        QCOMPARE(outside.state(), AccordionState::Hidden);
        QCOMPARE(lasts(column), QString("--L"));

        // The last one moves to another accordion, and only that one answers it.
        AccordionPart *moved = column.parts[2];
        other.accordion.addAccordionPart(moved);
        QCOMPARE(lasts(column), QString("-L"));
        QCOMPARE(lasts(other), QString("-L"));
        column.accordion.setState(column.parts[0], AccordionState::Expanded);
        headerOf(moved)->click();
        QCOMPARE(moved->state(), AccordionState::Expanded);
        QCOMPARE(column.parts[0]->state(), AccordionState::Expanded);

        // The one between two goes: its neighbours meet.
        column.accordion.addAccordionPart(moved);
        headerOf(moved)->click(); // one answer, though it has been here before
        QCOMPARE(moved->state(), AccordionState::Hidden);
        column.accordion.setState(column.parts[0], AccordionState::Hidden);
        delete column.parts[1];
        QCOMPARE(lasts(column), QString("-L"));
        QVERIFY(lineOf(column.parts[0], 1)->isHidden()); // the line above its neighbour stands for both
        delete moved;
        QCOMPARE(lasts(column), QString("L"));
        QVERIFY(!lineOf(column.parts[0], 1)->isHidden());

        // The sheet sees the style and who is the last, also of a content that was opened before.
        column.accordion.setFirstPartState(AccordionState::Expanded);
        column.accordion.setAccordionStyle(Accordion::Infocenter);
        column.accordion.show();
        QCOMPARE(contentOf(column.parts[0])->frameWidth(), 2);
        column.accordion.addAccordionPart(new AccordionPart(nullptr));
        QCOMPARE(contentOf(column.parts[0])->frameWidth(), 0);

        // A part in whose content the accordion stands is no part of it.
        auto *inner = new Accordion(nullptr);
        column.parts[0]->setContent(inner);
        inner->addAccordionPart(column.parts[0]);
        QVERIFY(inner->findChildren<AccordionPart *>().isEmpty());
        inner->setFirstPartState(AccordionState::Expanded);
    }

    void widgetsFromOutside()
    {
        AccordionPart part(nullptr);
        QPointer<QWidget> first;
        QPointer<QWidget> second;
        for (const bool header : {true, false}) {
            const auto set = [&](QWidget *widget) {
                header ? part.setHeader(widget) : part.setContent(widget);
            };
            first = new QWidget;
            second = new QWidget(first);
            set(first);
            set(first);
            set(&part);
            QVERIFY(first && part.isAncestorOf(first));
            set(second); // out of the one before, which goes
            QVERIFY(!first && second);
            QWidget elsewhere;
            second->setParent(&elsewhere);
            set(nullptr); // no longer the part's to delete
            QVERIFY(second);
            first = new QWidget;
            set(first);
            set(nullptr);
            QVERIFY(!first);
            first = new QWidget;
            set(first);
            delete first;
            set(new QWidget);
        }
    }

    void deletedInItsOwnSignals()
    {
        const QMetaObject &meta = AccordionPart::staticMetaObject;
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfMethod("deleteVictim()"));
        int deaths = 0;
        for (int signal = meta.methodOffset(); signal < meta.methodCount(); ++signal) {
            for (const int victim : {0, 1, 2}) { // the neighbour, the part, the accordion
                for (const bool animated : {true, false}) {
                    Column column(3);
                    const QPointer<Accordion> accordion = new Accordion(nullptr);
                    for (const auto &part : qAsConst(column.parts))
                        accordion->addAccordionPart(part);
                    accordion->setState(column.parts[0], AccordionState::Expanded);
                    const QPointer<AccordionPart> part = column.parts[1];
                    m_victim = victim == 2 ? static_cast<QObject *>(accordion) : column.parts[victim];
                    connect(part, meta.method(signal), this, slot);
                    QEvent enter(QEvent::Enter);
                    QCoreApplication::sendEvent(headerOf(part), &enter);
                    if (part && animated)
                        headerOf(part)->click();
                    else if (part)
                        accordion->setState(part, AccordionState::Expanded);
                    if (part)
                        advance(part, 1000);
                    deaths += m_victim ? 0 : 1;
                    delete accordion;
                }
            }
        }
        QCOMPARE(deaths, 3 * (6 + 4)); // with animation and without
    }

    void keyboardInRealTime()
    {
        Column column(2);
        column.accordion.show();
        QVERIFY(QTest::qWaitForWindowActive(&column.accordion));
        AccordionPart *part = column.parts[0];
        headerOf(part)->setFocus();
        QElapsedTimer timer;
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            const AccordionState before = part->state();
            timer.start();
            QTest::keyClick(headerOf(part), Qt::Key(key));
            QVERIFY(part->state() != before);
            QTRY_COMPARE(int(part->animationState()), int(part->state()));
            QVERIFY(timer.elapsed() >= 190);
        }
        QCOMPARE(contentOf(part)->height(), 60);
        QTest::keyClick(headerOf(part), Qt::Key_Tab);
        QVERIFY(headerOf(column.parts[1])->hasFocus()); // the area in between is no stop
    }

    void hover()
    {
        AccordionPart part(nullptr);
        QCOMPARE(headerOf(&part)->cursor().shape(), Qt::PointingHandCursor);
        int changes = 0;
        connect(&part, &AccordionPart::styleStateChanged, [&] { ++changes; });
        for (const auto type : {QEvent::Enter, QEvent::Enter, QEvent::Leave}) {
            QEvent event(type);
            QCoreApplication::sendEvent(headerOf(&part), &event);
            QCOMPARE(bool(part.styleState() & Hovered), type == QEvent::Enter);
        }
        QCOMPARE(changes, 2);

        // It looks hovered over its widget too, where a push button would not.
        Column column(1);
        column.accordion.show();
        for (const bool hovered : {true, false}) {
            headerOf(column.parts[0])->setAttribute(Qt::WA_UnderMouse, hovered);
            const QImage picture = headerOf(column.parts[0])->grab().toImage();
            QCOMPARE(picture.pixelColor(picture.width() - 2, 2) == QColor("#123456"), hovered);
        }
    }

private:
    Q_INVOKABLE void deleteVictim() { delete m_victim; }

    TestResources m_theme;
    QPointer<QObject> m_victim;
};

QTEST_MAIN(TestAccordion)
#include "tst_accordion.moc"
