#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"
#include "accordion/AccordionContent.h"
#include "accordion/AccordionHeader.h"
#include "accordion/AccordionSeparatorLine.h"

#include <nvo/Accordion.h>
#include <nvo/Css.h>

#include <QAccessible>
#include <QLabel>
#include <QPropertyAnimation>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

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

    void arrive()
    {
        running = false;
        shown = open ? 0 : 100;
        log << "finished"
            << "animation " + target();
    }
    void direct(bool wantsOpen)
    {
        if (open == wantsOpen)
            return;
        open = wantsOpen;
        running = false;
        shown = open ? 0 : 100;
        log << "state " + target() << "direct " + target() << "animation " + target();
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
            arrive();
    }
    void advance(int milliseconds)
    {
        if (!running)
            return;
        elapsed = qMin(duration, elapsed + milliseconds);
        if (qAbs(value() - shown) >= 0.1)
            shown = value();
        if (elapsed == duration)
            arrive();
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
            const auto state = open ? AccordionState::Expanded : AccordionState::Hidden;
            switch (random.bounded(6)) {
            case 0:
                part.setState(state);
                model.direct(open);
                break;
            case 1:
                part.setStateAnimated(state);
                model.animate(open, 1);
                break;
            case 2:
                open ? part.animateExpand(speed) : part.animateHide(speed);
                model.animate(open, speed);
                break;
            case 3:
                part.animateToggle(speed);
                model.animate(!model.open, speed);
                break;
            default:
                const int time = random.bounded(120);
                advance(&part, time);
                model.advance(time);
            }
            QCOMPARE(log, model.log);
            QCOMPARE(part.state() == AccordionState::Expanded, model.open);
            const int way = model.running ? 2 : 0;
            QCOMPARE(int(part.animationState()), (model.open ? 0 : 1) + way);
            QVERIFY(qAbs(contentOf(&part)->hiddenPercent() - model.shown) < 1e-9);
            QCOMPARE(contentOf(&part)->isHidden(), qAbs(model.shown - 100) <= 0.1);
            seen.insert(int(part.animationState()));
            log.clear();
            model.log.clear();
        }
        QCOMPARE(seen.size(), 4);
    }

    void inRealTime()
    {
        Column column(1);
        column.accordion.show();
        QStringList log;
        record(log, column.parts[0]);
        QElapsedTimer timer;
        timer.start();
        headerOf(column.parts[0])->click();
        QTRY_COMPARE(column.parts[0]->animationState(), Animated::Expanded);
        QVERIFY(timer.elapsed() >= 190);
        QCOMPARE(log,
                 QStringList({"state 0", "started 100 0 200", "animation 2", "finished", "animation 0"}));
        QCOMPARE(contentOf(column.parts[0])->height(), 60);
    }

    void slotChangesTheStateAgain()
    {
        // The signals of the newer change replace the rest of those of the older one.
        for (const bool animated : {true, false}) {
            AccordionPart part(nullptr);
            QStringList log;
            record(log, &part);
            connect(&part, &AccordionPart::stateChanged, &part, [&](AccordionState state) {
                if (state == AccordionState::Expanded)
                    animated ? part.animateHide(1) : part.setState(AccordionState::Hidden);
            });
            animated ? part.animateExpand(1) : part.setState(AccordionState::Expanded);
            QCOMPARE(log, animated ? QStringList({"state 0", "state 1", "started 100 100 0", "animation 3",
                                                  "finished", "animation 1"})
                                   : QStringList({"state 0", "state 1", "direct 1", "animation 1"}));
        }
    }

    void geometry_data()
    {
        QTest::addColumn<int>("border");
        QTest::addColumn<bool>("wraps");
        QTest::newRow("plain") << 0 << false;
        QTest::newRow("plain, wraps") << 0 << true;
        QTest::newRow("border") << 3 << false;
        QTest::newRow("border, wraps") << 3 << true;
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
                open << (part->state() == AccordionState::Expanded);
            return open;
        };
        for (int step = 0; step < 500; ++step) {
            for (const auto &part : column.parts) { // at rest, and more than one may be open
                const bool isOpen = random.bounded(2);
                part->setState(isOpen ? AccordionState::Hidden : AccordionState::Expanded);
                part->setState(isOpen ? AccordionState::Expanded : AccordionState::Hidden);
            }
            const int chosen = random.bounded(5);
            const QVector<bool> before = states();
            const int how = random.bounded(3);
            const bool open = how == 2 ? !before[chosen] : random.bounded(2);
            const auto state = open ? AccordionState::Expanded : AccordionState::Hidden;
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
                    column.parts[i]->setState(open & (1 << i) ? AccordionState::Expanded
                                                              : AccordionState::Hidden);
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
        QTest::addColumn<QSize>("margin");
        QTest::addColumn<bool>("shared");
        QTest::addColumn<int>("spacing");
        QTest::addColumn<bool>("shadow");
        QTest::newRow("Normal") << QSize(1, 0) << true << 0 << true;
        QTest::newRow("Inline") << QSize(0, 0) << false << 0 << false;
        QTest::newRow("Backstage") << QSize(1, 1) << false << 10 << true;
        QTest::newRow("Booking") << QSize(1, 1) << false << 10 << true;
        QTest::newRow("Migration") << QSize(1, 0) << false << 10 << true;
        QTest::newRow("VaSt") << QSize(1, 0) << false << 10 << true;
        QTest::newRow("MarkAsRead") << QSize(1, 0) << false << 10 << true;
        QTest::newRow("Infocenter") << QSize(1, 0) << false << 0 << false;
    }

    void styles()
    {
        QFETCH(QSize, margin);
        QFETCH(bool, shared);
        QFETCH(int, spacing);
        QFETCH(bool, shadow);
        const QString key = QTest::currentDataTag();
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
                             QMargins(margin.width(), margin.height(), margin.width(), margin.height()));
                    QCOMPARE(lineOf(part, 0)->isVisible(), shared);
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
        const auto at = [](auto signal) {
            return [signal](AccordionPart *part, QObject *victim) {
                QObject::connect(part, signal, [victim = QPointer<QObject>(victim)] { delete victim; });
            };
        };
        const std::function<void(AccordionPart *, QObject *)> hooks[] = {
            at(&AccordionPart::stateChangeRequest), at(&AccordionPart::stateChanged),
            at(&AccordionPart::animationStarted),   at(&AccordionPart::animationStateChanged),
            at(&AccordionPart::animationFinished),  at(&AccordionPart::stateChangedWithoutAnimation),
            at(&AccordionPart::styleStateChanged)};
        int deaths = 0;
        for (const auto &hook : hooks) {
            for (const int victim : {0, 1, 2}) { // the neighbour, the part, the accordion
                for (const bool animated : {true, false}) {
                    Column column(3);
                    const QPointer<Accordion> accordion = new Accordion(nullptr);
                    for (const auto &part : qAsConst(column.parts))
                        accordion->addAccordionPart(part);
                    accordion->show();
                    QVERIFY(QTest::qWaitForWindowActive(accordion));
                    accordion->setState(column.parts[0], AccordionState::Expanded);
                    const QPointer<AccordionPart> part = column.parts[1];
                    const QPointer<QObject> dies =
                        victim == 2 ? static_cast<QObject *>(accordion) : column.parts[victim];
                    hook(part, dies);
                    QEvent enter(QEvent::Enter);
                    QCoreApplication::sendEvent(headerOf(part), &enter);
                    if (part && animated)
                        headerOf(part)->click();
                    else if (part)
                        accordion->setState(part, AccordionState::Expanded);
                    if (part)
                        advance(part, 1000);
                    deaths += dies ? 0 : 1;
                    delete accordion;
                }
            }
        }
        QCOMPARE(deaths, 3 * (6 + 4)); // with animation and without
    }

    void keyboard()
    {
        Column column(2);
        column.accordion.show();
        QVERIFY(QTest::qWaitForWindowActive(&column.accordion));
        headerOf(column.parts[0])->setFocus();
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            const AccordionState before = column.parts[0]->state();
            QTest::keyClick(headerOf(column.parts[0]), Qt::Key(key));
            QVERIFY(column.parts[0]->state() != before);
        }
        column.accordion.setState(column.parts[0], AccordionState::Hidden);
        column.accordion.setState(column.parts[0], AccordionState::Expanded);
        QTRY_COMPARE(contentOf(column.parts[0])->height(), 60);
        QTest::keyClick(headerOf(column.parts[0]), Qt::Key_Tab);
        QVERIFY(headerOf(column.parts[1])->hasFocus()); // the area in between is no stop
    }

    void mouseOnHeader()
    {
        Column column(1);
        column.accordion.resize(200, 100);
        column.accordion.show();
        int requests = 0;
        connect(column.parts[0], &AccordionPart::stateChangeRequest, [&] { ++requests; });
        AccordionHeader *header = headerOf(column.parts[0]);
        QCOMPARE(header->cursor().shape(), Qt::PointingHandCursor);
        int changes = 0;
        connect(column.parts[0], &AccordionPart::styleStateChanged, [&] { ++changes; });
        for (const auto type : {QEvent::Enter, QEvent::Enter, QEvent::Leave}) {
            QEvent event(type);
            QCoreApplication::sendEvent(header, &event);
            QCOMPARE(bool(column.parts[0]->styleState() & Hovered), type == QEvent::Enter);
        }
        QCOMPARE(changes, 2);
        QTest::mouseClick(header->headerWidget(), Qt::LeftButton); // a label lets it through
        QCOMPARE(requests, 1);
    }

    void accessibleHeader()
    {
        Column column(1);
        AccordionHeader *header = headerOf(column.parts[0]);
        QAccessibleInterface *described = QAccessible::queryAccessibleInterface(header);
        QCOMPARE(described->role(), QAccessible::Button);
        QCOMPARE(described->text(QAccessible::Name), QString("0")); // as its widget is called
        for (const bool open : {false, true, false}) {
            column.parts[0]->setState(open ? AccordionState::Expanded : AccordionState::Hidden);
            QVERIFY(described->state().expandable);
            QCOMPARE(bool(described->state().expanded), open);
            QCOMPARE(bool(described->state().collapsed), !open);
        }
        column.parts[0]->setHeader(nullptr);
        QCOMPARE(described->text(QAccessible::Name), QString());
    }

private:
    TestResources m_theme;
};

QTEST_MAIN(TestAccordion)
#include "tst_accordion.moc"
