#include "pages/FlyoutsPage.h"

#include "pages/FlyoutParts.h"
#include "pages/PageSupport.h"

#include <nvo/Button.h>
#include <nvo/CheckBox.h>
#include <nvo/ComboBox.h>
#include <nvo/DateEdit.h>
#include <nvo/Flyout.h>
#include <nvo/Label.h>
#include <nvo/LineEdit.h>
#include <nvo/Link.h>
#include <nvo/NumericEdit.h>
#include <nvo/ScrollArea.h>

#include <QApplication>
#include <QDate>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

using NVO::Flyout;

constexpr QSize placementStage(350, 190);
constexpr QSize exampleStage(529, 300);
constexpr QSize markSize(24, 24);
constexpr int placementTextHeight = 66; // a lower box has no room for a pointer near its corner
constexpr int placementTextWidth = 150;
constexpr int errorTextWidth = 210;
constexpr int textWidth = 230;
constexpr int hintTextWidth = 270;
constexpr int screenEdge = 4;
constexpr QMargins longMargins(14, 14, 10, 14); // of what may have to shrink
constexpr int crossRoom = 10;
constexpr int fieldWidth = 150;
constexpr int fieldLeft = 150;
constexpr int playgroundHeight = 300;
constexpr QSize targetSize(120, 52); // some of it lies below the flyout
constexpr int dragStep = 10;
constexpr int targetWindowMargin = 12;
constexpr int months = 18;
constexpr int maximumAmount = 9999999;

constexpr std::array<Flyout::PointerPosition, 13> positions{
    Flyout::TopLeft,     Flyout::TopMiddle,   Flyout::TopRight,    Flyout::BottomLeft, Flyout::BottomMiddle,
    Flyout::BottomRight, Flyout::LeftTop,     Flyout::LeftMiddle,  Flyout::LeftBottom, Flyout::RightTop,
    Flyout::RightMiddle, Flyout::RightBottom, Flyout::CenterCenter};

QString keyOf(Flyout::PointerPositions position)
{
    return QString::fromLatin1(QMetaEnum::fromType<Flyout::PointerPosition>().valueToKey(int(position)));
}

/** A widget that can be dragged with the mouse and with the arrow keys, in its parent or together with its
 * window.
 */
class DragTarget : public NVO::Button
{
public:
    DragTarget()
    {
        setText(QStringLiteral("Ziel"));
        setButtonStyle(Primary);
        setShadowEnabled(false);
        setAccessibleDescription(QStringLiteral("Mit der Maus oder den Pfeiltasten zu verschieben"));
        adjustSize();
    }

    QSize sizeHint() const override { return targetSize; }

    void moveBy(const QPoint &step) { moveTo(carrier()->pos() + step); }

    void moveTo(const QPoint &pos)
    {
        QWidget *moved = carrier();
        const QRect room = moved == this ? parentWidget()->rect() : screen()->virtualGeometry();
        moved->move(std::max(room.left(), std::min(pos.x(), room.right() + 1 - moved->width())),
                    std::max(room.top(), std::min(pos.y(), room.bottom() + 1 - moved->height())));
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        m_grip = event->globalPos() - carrier()->pos();
        Button::mousePressEvent(event);
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() & Qt::LeftButton)
            moveTo(event->globalPos() - m_grip);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        const int length = event->modifiers() & Qt::ShiftModifier ? 1 : dragStep;
        switch (event->key()) {
        case Qt::Key_Left:
            return moveBy({-length, 0});
        case Qt::Key_Right:
            return moveBy({length, 0});
        case Qt::Key_Up:
            return moveBy({0, -length});
        case Qt::Key_Down:
            return moveBy({0, length});
        default:
            Button::keyPressEvent(event);
        }
    }

private:
    QWidget *carrier() { return parentWidget()->isWindow() ? parentWidget() : this; }

    QPoint m_grip;
};

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

NVO::Button *makeButton(const QString &text, NVO::Button::ButtonStyle style = NVO::Button::Normal)
{
    auto *button = new NVO::Button;
    button->setText(text);
    button->setButtonStyle(style);
    return button;
}

NVO::Link *makeLink(const QString &text, NVO::Link::LinkStyle style)
{
    auto *link = new NVO::Link;
    link->setText(text);
    link->setLinkStyle(style);
    return link;
}

/** \a field with its name, at a fixed place of a stage, to be looked at; returns where the field is. */
QRect addField(QWidget *stage, int row, const QString &name, QWidget *field)
{
    const QRect place(fieldLeft, 24 + row * 44, fieldWidth, field->sizeHint().height());
    NVO::Label *label = makeLabel(name);
    label->setParent(stage);
    label->setGeometry(20, place.top(), fieldLeft - 28, place.height());
    field->setAccessibleName(name);
    field->setParent(stage);
    field->setFocusPolicy(Qt::NoFocus);
    field->setAttribute(Qt::WA_TransparentForMouseEvents);
    field->setGeometry(place);
    return place;
}

NVO::LineEdit *makeTextField(const QString &text)
{
    auto *field = new NVO::LineEdit;
    field->setText(text);
    return field;
}

NVO::NumericEdit *makeAmountField(double amount)
{
    auto *field = new NVO::NumericEdit;
    field->setRange(maximumAmount, 2, QStringLiteral("€"), NVO::NumericEdit::NoFlag);
    field->setValue(amount);
    return field;
}

NVO::DateEdit *makeDateField(const QDate &date)
{
    auto *field = new NVO::DateEdit;
    field->setDate(date);
    return field;
}

QFrame *makeStage(const QSize &size)
{
    QFrame *stage = makeGround(Ground::Outline);
    stage->setFixedSize(size);
    return stage;
}

QRect addMark(QWidget *stage, const QPoint &centre)
{
    QRect place(QPoint(0, 0), markSize);
    place.moveCenter(centre);
    QFrame *mark = makeGround(Ground::Dark);
    mark->setParent(stage);
    mark->setGeometry(place);
    return place;
}

void addScreenEdge(QWidget *stage, Qt::Edge edge)
{
    QFrame *line = makeGround(Ground::Dark);
    line->setParent(stage);
    line->setGeometry(edge == Qt::TopEdge ? QRect(0, 0, stage->width(), screenEdge)
                                          : QRect(0, 0, screenEdge, stage->height()));
}

/** The place for a target that leaves room for the box on its side. */
QPoint markPlace(Flyout::PointerPositions position)
{
    const auto along = [position](int length, int first) {
        if (position & Flyout::SubPositionTopOrLeft)
            return first;
        return position & Flyout::SubPositionBottomOrRight ? length - first - 16 : length / 2 - 5;
    };
    const int width = placementStage.width();
    const int height = placementStage.height();
    if (position & Flyout::TopMask)
        return {along(width, 110), 24};
    if (position & Flyout::BottomMask)
        return {along(width, 110), height - 26};
    if (position & Flyout::LeftMask)
        return {70, along(height, 62)};
    if (position & Flyout::RightMask)
        return {width - 76, along(height, 62)};
    return {width / 2 - 5, height / 2 - 5};
}

/** What the flyouts of one edge say. */
struct Notice
{
    Flyout::FlyoutStyle style;
    Flyout::FlyoutFlag flag;
    const char *text;
};

Notice noticeFor(Flyout::PointerPositions position)
{
    if (position & Flyout::TopMask)
        return {Flyout::Normal, Flyout::NoFlag, "Bitte geben Sie ein Datum im Zeitraum ein."};
    if (position & Flyout::BottomMask)
        return {Flyout::Error, Flyout::NoFlag, "Das Konto 8400 gibt es nicht."};
    if (position & Flyout::LeftMask)
        return {Flyout::Normal, Flyout::CloseButton, "Der Betrag wird brutto erfasst."};
    if (position & Flyout::RightMask)
        return {Flyout::Error, Flyout::CloseButton, "Der Beleg 2026-0417 ist schon gebucht."};
    return {Flyout::Normal, Flyout::NoFlag, "Die Bank wird abgefragt."};
}

QWidget *makePlacement(Flyout::PointerPosition position, const QPoint &mark, const QString &text,
                       const Notice &notice)
{
    QFrame *stage = makeStage(placementStage);
    const QRect target = addMark(stage, mark);
    auto *flyout = new FlyoutPicture(target, notice.flag, stage);
    QVBoxLayout *column = makeFlyoutContent();
    addFlyoutText(column, text, placementTextWidth)->setMinimumHeight(placementTextHeight);
    if (notice.flag == Flyout::CloseButton)
        column->setContentsMargins(flyoutCrossMargins);
    flyout->present(position, notice.style, column->parentWidget());
    return stage;
}

QWidget *makePlacement(Flyout::PointerPosition position)
{
    const Notice notice = noticeFor(position);
    return makePlacement(
        position, markPlace(position),
        QStringLiteral("<b>%1</b><br>%2").arg(keyOf(position), QString::fromUtf8(notice.text)), notice);
}

/** More than fits on a small screen, in an area that may shrink because it knows that it is in a flyout. */
QWidget *makeMonths(Flyout *flyout)
{
    auto *rows = new QWidget;
    auto *list = new QVBoxLayout(rows);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(12);
    for (int month = 1; month <= months; ++month) {
        const QDate first = QDate(2024, 9, 1).addMonths(month);
        addFlyoutText(list,
                      QStringLiteral("%1 bis %2<br>am %3 geprüft")
                          .arg(first.toString(QStringLiteral("dd.MM.yyyy")),
                               first.addMonths(1).addDays(-1).toString(QStringLiteral("dd.MM.yyyy")),
                               first.addMonths(1).addDays(9).toString(QStringLiteral("dd.MM.yyyy"))),
                      textWidth);
    }
    auto *area = new NVO::ScrollArea(flyout);
    area->setWidget(rows);
    area->viewport()->setAutoFillBackground(false);
    rows->setAutoFillBackground(false);
    return area;
}

/** A form whose date is wrong. */
QWidget *makeErrorExample()
{
    QFrame *stage = makeStage(exampleStage);
    addField(stage, 0, QStringLiteral("Belegnummer"), makeTextField(QStringLiteral("2026-0417")));
    addField(stage, 1, QStringLiteral("Betrag"), makeAmountField(1190));
    NVO::DateEdit *field = makeDateField(QDate(2026, 3, 31));
    field->setLineEditStyle(NVO::DateEdit::Error);
    const QRect date = addField(stage, 2, QStringLiteral("Belegdatum"), field);

    auto *flyout = new FlyoutPicture(date, Flyout::NoFlag, stage);
    QVBoxLayout *column = makeFlyoutContent();
    addFlyoutText(
        column,
        QStringLiteral("<b>Dieser Monat ist festgeschrieben.</b><br>Bitte geben Sie ein Datum im Zeitraum "
                       "01.04.2026 bis 30.04.2026 ein."),
        errorTextWidth);
    flyout->present(Flyout::TopLeft, Flyout::Error, column->parentWidget());
    return stage;
}

/** A hint with what can be done at once, and a dark foot. */
QWidget *makeHintExample()
{
    QFrame *stage = makeStage(exampleStage);
    const QRect key = addField(stage, 0, QStringLiteral("Steuerschlüssel"),
                               makeTextField(QStringLiteral("9 – Vorsteuer 19 %")));

    auto *flyout = new FlyoutPicture(key, Flyout::CloseButton, stage);
    QVBoxLayout *column = makeFlyoutContent();
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *body = new QVBoxLayout;
    body->setContentsMargins(14, 12, 0, 12);
    body->setSpacing(10);
    NVO::Label *text =
        addFlyoutText(body,
                      QStringLiteral("<b>Wurde im Ausland bestellt?</b><br>Dann gilt Schlüssel 94, "
                                     "denn der Empfänger schuldet die Steuer."),
                      hintTextWidth);
    text->setContentsMargins(0, 0, crossRoom, 0);
    text->setMaximumWidth(QWIDGETSIZE_MAX); // the foot may be wider
    auto *choices = new QHBoxLayout;
    choices->setSpacing(12);
    choices->addWidget(makeButton(QStringLiteral("94 eintragen"), NVO::Button::Primary));
    choices->addWidget(makeLink(QStringLiteral("Mehr dazu"), NVO::Link::FlyoutDark));
    choices->addStretch();
    body->addLayout(choices);
    column->addLayout(body, 1);

    QFrame *foot = makeGround(Ground::Dark);
    auto *links = new QHBoxLayout(foot);
    links->setContentsMargins(16, 6, 16, 6);
    links->setSpacing(16);
    links->addWidget(makeLink(QStringLiteral("Alle Schlüssel"), NVO::Link::FlyoutLight));
    links->addWidget(makeLink(QStringLiteral("Hinweise abschalten"), NVO::Link::FlyoutLight));
    links->addStretch();
    column->addWidget(foot);
    flyout->present(Flyout::TopLeft, Flyout::Normal, column->parentWidget());
    return stage;
}

} // namespace

FlyoutsPage::FlyoutsPage()
{
    addExamples();
    addTrialForm();
    addPlacements();
    addPlayground();
}

void FlyoutsPage::addExamples()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeErrorExample());
    row->addWidget(makeHintExample());
    row->addStretch();
    addSection(QStringLiteral("Am Feld"),
               QStringLiteral("Ein Fehler und ein Hinweis zeigen auf das Feld, um das es geht; beides sind "
                              "Abbildungen."))
        ->addLayout(row);
}

void FlyoutsPage::addTrialForm()
{
    m_date = makeDateField(QDate(2026, 5, 12));
    m_date->setAccessibleName(QStringLiteral("Belegdatum"));
    m_date->setFixedWidth(fieldWidth);
    NVO::Button *button = makeButton(QStringLiteral("Buchen"), NVO::Button::Primary);
    connect(button, &QAbstractButton::clicked, this, &FlyoutsPage::post);
    connect(m_date, &QLineEdit::returnPressed, this, &FlyoutsPage::post);
    connect(m_date, &QLineEdit::textEdited, this, [this] {
        m_date->setLineEditStyle(NVO::DateEdit::Normal);
        if (m_dateError)
            m_dateError->hide();
    });
    m_posted = makeCaption(QString(), NVO::Font::DEFAULT);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(makeLabel(QStringLiteral("Belegdatum")));
    row->addWidget(m_date);
    row->addWidget(button);
    row->addWidget(m_posted, 1);
    addSection(QStringLiteral("Zum Ausprobieren"),
               QStringLiteral("Gebucht wird nur im April 2026. Der Fehler bleibt am Feld, bis die Eingabe "
                              "geändert wird."))
        ->addLayout(row);
}

void FlyoutsPage::post()
{
    m_posted->clear();
    const QDate date = m_date->date();
    const bool wrong = date.year() != 2026 || date.month() != 4;
    m_date->setLineEditStyle(wrong ? NVO::DateEdit::Error : NVO::DateEdit::Normal);
    if (!wrong) {
        if (m_dateError)
            m_dateError->hide();
        m_posted->setText(QStringLiteral("Gebucht zum %1.").arg(date.toString(QStringLiteral("dd.MM.yyyy"))));
        return;
    }
    if (!m_dateError) {
        m_dateError = new Flyout(m_date, Flyout::Sticky | Flyout::CloseButton, this);
        m_dateError->setFlyoutStyle(Flyout::Error);
        QVBoxLayout *column = makeFlyoutContent();
        column->setContentsMargins(flyoutCrossMargins);
        addFlyoutText(column,
                      QStringLiteral("<b>Bitte geben Sie ein Datum im Zeitraum ein.</b><br>"
                                     "Der Zeitraum reicht vom 01.04.2026 bis zum 30.04.2026."),
                      textWidth);
        m_dateError->setContent(column->parentWidget());
    }
    m_dateError->show();
}

void FlyoutsPage::addPlacements()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(12);
    for (int index = 0; index < int(positions.size()); ++index)
        grid->addWidget(makePlacement(positions.at(std::size_t(index))), index / 3, index % 3);

    QWidget *flipped =
        makePlacement(Flyout::BottomLeft, {110, 26},
                      QStringLiteral("<b>Gespiegelt</b><br>Oben ist kein Platz: BottomLeft wird TopLeft."),
                      {Flyout::Normal, Flyout::NoFlag, ""});
    addScreenEdge(flipped, Qt::TopEdge);
    grid->addWidget(flipped, 4, 1);
    QWidget *pushed =
        makePlacement(Flyout::TopRight, {90, 24},
                      QStringLiteral("<b>Verschoben</b><br>Der Kasten rückt, der Zeiger bleibt am Ziel."),
                      {Flyout::Error, Flyout::NoFlag, ""});
    addScreenEdge(pushed, Qt::LeftEdge);
    grid->addWidget(pushed, 4, 2);
    grid->setColumnStretch(3, 1);
    addSection(
        QStringLiteral("Zwölf Stellen und die Mitte"),
        QStringLiteral("Der Name sagt, wo der Zeiger sitzt. Reicht der Platz auf dem Bildschirm nicht, "
                       "rückt der Kasten oder wechselt die Seite; ein dicker Strich ist der Rand des "
                       "Bildschirms."))
        ->addLayout(grid);
}

void FlyoutsPage::addPlayground()
{
    m_playground = makeGround(Ground::Outline);
    m_playground->setMinimumHeight(playgroundHeight);
    m_target = new DragTarget;
    m_target->setParent(m_playground);
    m_playground->installEventFilter(this);
    connect(m_target, &QAbstractButton::clicked, this, [this] {
        if (!m_flyout->isVisible())
            m_flyout->show();
    });

    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeControls());
    row->addWidget(m_playground, 1);
    QVBoxLayout *section = addSection(
        QStringLiteral("Spielfläche"),
        QStringLiteral("Das Ziel lässt sich mit der Maus und mit den Pfeiltasten verschieben, mit der "
                       "Umschalttaste in kleinen Schritten. Ein Klick zeigt das Flyout, das ihm folgt."));
    section->addLayout(row);
    m_description = makeLabel(QString());
    section->addWidget(m_description);
    makeFlyout();
}

QWidget *FlyoutsPage::makeControls()
{
    auto *controls = new QWidget;
    auto *column = new QVBoxLayout(controls);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);

    m_position = new NVO::ComboBox;
    m_position->setAccessibleName(QStringLiteral("Gewünschte Stelle des Zeigers"));
    m_position->setMaxVisibleItems(int(positions.size()));
    for (const Flyout::PointerPosition position : positions)
        m_position->addItem(keyOf(position), int(position));
    connect(m_position, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        m_flyout->setPointerPosition(Flyout::PointerPosition(m_position->currentData().toInt()));
        describe();
    });
    column->addWidget(makeCaption(QStringLiteral("Gewünschte Stelle des Zeigers")));
    column->addWidget(m_position);
    column->addSpacing(4);

    const auto addOption = [this, column](const QString &text, bool on) {
        auto *option = new NVO::CheckBox(text);
        option->setChecked(on);
        connect(option, &QAbstractButton::toggled, this, &FlyoutsPage::makeFlyout);
        column->addWidget(option);
        return option;
    };
    m_error = addOption(QStringLiteral("Fehler"), false);
    m_sticky = addOption(QStringLiteral("Bleibt offen"), true);
    m_closeButton = addOption(QStringLiteral("Mit Kreuz"), true);
    m_long = addOption(QStringLiteral("Langer Inhalt"), false);
    m_detached = new NVO::CheckBox(QStringLiteral("Ziel frei auf dem Bildschirm"));
    connect(m_detached, &QAbstractButton::toggled, this, &FlyoutsPage::setDetached);
    column->addWidget(m_detached);
    column->addStretch();
    return controls;
}

/** The flags of a flyout are those of its construction, so every change makes a new one. */
void FlyoutsPage::makeFlyout()
{
    const bool shown = m_flyout && m_flyout->isVisible();
    delete m_flyout;
    Flyout::FlyoutFlags flags;
    flags.setFlag(Flyout::Sticky, m_sticky->isChecked());
    flags.setFlag(Flyout::CloseButton, m_closeButton->isChecked());
    m_flyout = new Flyout(m_target, flags, this);
    m_flyout->setFlyoutStyle(m_error->isChecked() ? Flyout::Error : Flyout::Normal);
    m_flyout->setPointerPosition(Flyout::PointerPosition(m_position->currentData().toInt()));
    fillFlyout();
    m_flyout->installEventFilter(this);
    m_flyout->setVisible(shown);
    describe();
}

void FlyoutsPage::fillFlyout()
{
    QVBoxLayout *column = makeFlyoutContent();
    column->setContentsMargins(m_closeButton->isChecked() ? flyoutCrossMargins : flyoutMargins);
    if (m_long->isChecked()) {
        column->setContentsMargins(longMargins);
        addFlyoutText(column, QStringLiteral("<b>Diese Monate sind festgeschrieben.</b>"), textWidth);
        column->addWidget(makeMonths(m_flyout), 1);
    } else {
        addFlyoutText(column,
                      QStringLiteral("<b>Bitte geben Sie ein Datum im Zeitraum ein.</b><br>"
                                     "Der Zeitraum reicht vom 01.04.2026 bis zum 30.04.2026."),
                      textWidth);
    }
    m_flyout->setContent(column->parentWidget());
}

/** Lets the target go anywhere on the screen, or takes it back to its playground. */
void FlyoutsPage::setDetached(bool detached)
{
    if (detached == bool(m_targetWindow))
        return;
    const bool shown = m_flyout->isVisible();
    auto *target = static_cast<DragTarget *>(m_target);
    if (detached) {
        const QPoint place = target->mapToGlobal(QPoint(0, 0));
        m_targetWindow = makeGround(Ground::Window);
        // With a title bar: where a window without one is, some window managers do not tell.
        m_targetWindow->setParent(this, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
        m_targetWindow->setWindowTitle(QStringLiteral("Ziel"));
        m_targetWindow->installEventFilter(this);
        auto *layout = new QVBoxLayout(m_targetWindow);
        layout->setContentsMargins(targetWindowMargin, targetWindowMargin, targetWindowMargin,
                                   targetWindowMargin);
        layout->addWidget(target);
        m_targetWindow->move(place - QPoint(targetWindowMargin, targetWindowMargin));
        m_targetWindow->show();
    } else {
        target->setParent(m_playground);
        target->show();
        target->moveTo(m_playground->rect().center() - target->rect().center());
        m_targetWindow->deleteLater();
        m_targetWindow = nullptr;
    }
    m_flyout->setVisible(shown);
}

void FlyoutsPage::describe()
{
    const QPoint offset = m_flyout->pointerOffset();
    m_description->setText(
        m_flyout->isVisible()
            ? QStringLiteral("Gewünscht: <b>%1</b>, gefunden: <b>%2</b>, verschoben um (%3, %4)")
                  .arg(keyOf(m_flyout->pointerPosition()), keyOf(m_flyout->effectivePointerPosition()))
                  .arg(offset.x())
                  .arg(offset.y())
            : QStringLiteral("Gewünscht: <b>%1</b>. Das Flyout ist geschlossen.")
                  .arg(keyOf(m_flyout->pointerPosition())));
}

bool FlyoutsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_playground && event->type() == QEvent::Resize && !m_targetWindow) {
        auto *target = static_cast<DragTarget *>(m_target);
        if (target->pos().isNull())
            target->moveTo(m_playground->rect().center() - target->rect().center());
        else
            target->moveTo(target->pos());
    }
    if (m_targetWindow && watched == m_targetWindow && event->type() == QEvent::Close)
        m_detached->setChecked(false);
    if (watched == m_flyout) {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::UpdateRequest:
            describe();
            break;
        case QEvent::KeyPress: // a popup gets the keys of the whole application
            if (isArrow(static_cast<QKeyEvent *>(event)->key()))
                return QApplication::sendEvent(m_target, event);
            break;
        default:
            break;
        }
    }
    return Page::eventFilter(watched, event);
}

void FlyoutsPage::hideEvent(QHideEvent *event)
{
    m_detached->setChecked(false);
    Page::hideEvent(event);
}
