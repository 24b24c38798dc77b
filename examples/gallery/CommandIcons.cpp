#include "CommandIcons.h"

#include <nvo/Palette.h>

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>

#include <initializer_list>

namespace {

QColor token(const char *name)
{
    return NVO::Palette::instance().namedColor(QLatin1String(name));
}

struct Inks
{
    QColor line;
    QColor ground;
    QColor tint;
    QColor accent;
    QColor onAccent;
    QColor good;
    QColor bad;
};

Inks inksFor(QIcon::Mode mode)
{
    if (mode == QIcon::Disabled) {
        const QColor line = token("COLOR_TEXT_DISABLED");
        const QColor ground = token("COLOR_DISABLED_BACKGROUND");
        return {line, ground, ground, line, ground, line, line};
    }
    return {token("COLOR_TEXT_SECONDARY"), token("COLOR_SURFACE"), token("COLOR_ACCENT_LINE"),
            token("COLOR_ACCENT"),         token("COLOR_SURFACE"), token("COLOR_SUCCESS"),
            token("COLOR_ERROR")};
}

/**
 * Draws on a grid of 32 units with a pen of 2. Straight lines at odd coordinates thus cover whole pixels in
 * an icon of 16, 32 or 64 pixels.
 */
class Sketch
{
public:
    Sketch(QPainter &painter, const QRect &rect, QIcon::Mode mode)
        : m_painter(painter)
        , m_inks(inksFor(mode))
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.translate(rect.topLeft());
        m_painter.scale(rect.width() / grid, rect.height() / grid);
    }

    void draw(CommandIcon icon);

private:
    using Points = std::initializer_list<QPointF>;

    static constexpr qreal grid = 32;

    void use(const QColor &pen, const QBrush &brush = Qt::NoBrush)
    {
        m_painter.setPen(QPen(pen, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        m_painter.setBrush(brush);
    }

    void line(Points points, const QColor &color)
    {
        use(color);
        m_painter.drawPolyline(QPolygonF(QVector<QPointF>(points)));
    }

    void shape(Points points, const QColor &pen, const QColor &brush)
    {
        use(pen, brush);
        m_painter.drawPolygon(QPolygonF(QVector<QPointF>(points)));
    }

    void box(qreal left, qreal top, qreal right, qreal bottom, const QColor &brush)
    {
        use(m_inks.line, brush);
        m_painter.drawRect(QRectF(QPointF(left, top), QPointF(right, bottom)));
    }

    void bar(qreal left, qreal top, qreal right, qreal bottom, const QColor &color)
    {
        m_painter.fillRect(QRectF(QPointF(left, top), QPointF(right, bottom)), color);
    }

    void circle(qreal x, qreal y, qreal radius, const QColor &pen, const QBrush &brush = Qt::NoBrush)
    {
        use(pen, brush);
        m_painter.drawEllipse(QPointF(x, y), radius, radius);
    }

    void rows(qreal left, qreal right, std::initializer_list<qreal> heights)
    {
        for (const qreal y : heights)
            line({{left, y}, {right, y}}, m_inks.accent);
    }

    void sheet(qreal left = 5, qreal top = 3, qreal right = 25, qreal bottom = 29)
    {
        shape({{left, top}, {right - 6, top}, {right, top + 6}, {right, bottom}, {left, bottom}}, m_inks.line,
              m_inks.ground);
        line({{right - 6, top}, {right - 6, top + 6}, {right, top + 6}}, m_inks.line);
    }

    /** A disc at the lower right corner for a sign in the lines that follow. */
    void badge(const QColor &color)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawEllipse(QRectF(14, 14, 18, 18));
    }

    void plus() { line({{23, 18}, {23, 28}}, m_inks.onAccent), minus(); }
    void minus() { line({{18, 23}, {28, 23}}, m_inks.onAccent); }
    void tick() { line({{18, 23}, {22, 27}, {28, 19}}, m_inks.onAccent); }
    void cross() { line({{19, 19}, {27, 27}}, m_inks.onAccent), line({{27, 19}, {19, 27}}, m_inks.onAccent); }
    void arrowRight()
    {
        line({{18, 23}, {27, 23}}, m_inks.onAccent), line({{23, 18}, {28, 23}, {23, 28}}, m_inks.onAccent);
    }

    void letter(qreal left, qreal right, qreal top, qreal bottom);
    void drawPageIcon(CommandIcon icon);
    void drawDocumentIcon(CommandIcon icon);
    void drawBookkeepingIcon(CommandIcon icon);
    void drawEvaluationIcon(CommandIcon icon);
    void drawViewIcon(CommandIcon icon);
    void drawSingleDocumentIcon(CommandIcon icon);

    QPainter &m_painter;
    Inks m_inks;
};

/** A capital A. */
void Sketch::letter(qreal left, qreal right, qreal top, qreal bottom)
{
    const qreal middle = (left + right) / 2;
    const qreal bridge = bottom - (bottom - top) / 3;
    const qreal inset = (right - left) / 6;
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(m_inks.accent, 3, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    m_painter.drawPolyline(QPolygonF(QVector<QPointF>{{left, bottom}, {middle, top}, {right, bottom}}));
    m_painter.drawLine(QPointF(left + inset, bridge), QPointF(right - inset, bridge));
}

void Sketch::drawPageIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::Colors:
        box(3, 3, 15, 15, m_inks.accent);
        box(17, 3, 29, 15, m_inks.tint);
        box(3, 17, 15, 29, m_inks.good);
        box(17, 17, 29, 29, m_inks.bad);
        break;
    case CommandIcon::Fonts:
        letter(4, 20, 5, 25);
        line({{23, 11}, {23, 25}}, m_inks.line);
        line({{19, 11}, {27, 11}}, m_inks.line);
        line({{3, 29}, {29, 29}}, m_inks.line);
        break;
    case CommandIcon::Images:
        box(3, 5, 29, 27, m_inks.ground);
        shape({{5, 25}, {12, 15}, {17, 21}, {21, 17}, {27, 25}}, m_inks.accent, m_inks.tint);
        circle(22, 11, 2, m_inks.accent, m_inks.accent);
        break;
    case CommandIcon::Shadows:
        bar(10, 10, 30, 30, m_inks.tint);
        box(3, 3, 25, 25, m_inks.ground);
        break;
    case CommandIcon::Buttons:
        box(3, 9, 29, 23, m_inks.tint);
        rows(9, 23, {15, 17});
        break;
    case CommandIcon::Labels:
        rows(3, 29, {7});
        line({{3, 13}, {29, 13}}, m_inks.line);
        line({{3, 19}, {29, 19}}, m_inks.line);
        line({{3, 25}, {19, 25}}, m_inks.line);
        break;
    case CommandIcon::Ribbon:
        box(3, 5, 29, 27, m_inks.ground);
        bar(4, 6, 28, 12, m_inks.accent);
        box(7, 15, 15, 23, m_inks.tint);
        line({{19, 17}, {25, 17}}, m_inks.line);
        line({{19, 21}, {25, 21}}, m_inks.line);
        break;
    default:
        sheet();
        rows(9, 21, {15, 21});
        break;
    }
}

void Sketch::drawDocumentIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::New:
        sheet();
        badge(m_inks.good);
        plus();
        break;
    case CommandIcon::Open:
        shape({{3, 27}, {3, 5}, {13, 5}, {16, 9}, {27, 9}, {27, 27}}, m_inks.line, m_inks.ground);
        shape({{3, 27}, {9, 15}, {31, 15}, {26, 27}}, m_inks.line, m_inks.tint);
        break;
    case CommandIcon::Save:
        shape({{3, 3}, {25, 3}, {29, 7}, {29, 29}, {3, 29}}, m_inks.line, m_inks.tint);
        box(9, 3, 21, 11, m_inks.ground);
        box(9, 19, 23, 29, m_inks.ground);
        break;
    case CommandIcon::Print:
        box(9, 3, 23, 15, m_inks.ground);
        box(3, 11, 29, 23, m_inks.tint);
        box(9, 19, 23, 29, m_inks.ground);
        rows(13, 19, {25});
        break;
    case CommandIcon::Paste:
        box(3, 5, 23, 29, m_inks.tint);
        box(9, 3, 17, 9, m_inks.ground);
        box(13, 13, 29, 29, m_inks.ground);
        rows(17, 25, {19, 23});
        break;
    case CommandIcon::Cut:
        line({{9, 3}, {21, 21}}, m_inks.line);
        line({{23, 3}, {11, 21}}, m_inks.line);
        circle(8, 24, 4, m_inks.accent, m_inks.ground);
        circle(24, 24, 4, m_inks.accent, m_inks.ground);
        break;
    default: // Copy
        box(3, 3, 19, 21, m_inks.tint);
        box(11, 11, 29, 29, m_inks.ground);
        rows(15, 25, {17, 23});
        break;
    }
}

void Sketch::drawBookkeepingIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::Invoice:
        sheet();
        rows(9, 21, {13, 17});
        line({{15, 23}, {21, 23}}, m_inks.line);
        line({{15, 25}, {21, 25}}, m_inks.line);
        break;
    case CommandIcon::CreditNote:
        sheet();
        badge(m_inks.bad);
        minus();
        break;
    case CommandIcon::Cash:
        box(3, 9, 29, 25, m_inks.tint);
        circle(16, 17, 4, m_inks.accent, m_inks.ground);
        break;
    case CommandIcon::Transfer:
        line({{3, 11}, {27, 11}}, m_inks.accent);
        line({{21, 5}, {27, 11}, {21, 17}}, m_inks.accent);
        line({{5, 23}, {29, 23}}, m_inks.line);
        line({{11, 17}, {5, 23}, {11, 29}}, m_inks.line);
        break;
    case CommandIcon::Bank:
        shape({{3, 11}, {16, 3}, {29, 11}}, m_inks.line, m_inks.tint);
        for (const qreal x : {7, 15, 17, 25})
            line({{x, 13}, {x, 25}}, m_inks.accent);
        line({{3, 27}, {29, 27}}, m_inks.line);
        break;
    case CommandIcon::Proposal:
        box(3, 5, 27, 25, m_inks.ground);
        rows(7, 23, {11, 17});
        badge(m_inks.accent);
        arrowRight();
        break;
    case CommandIcon::Check:
        sheet();
        badge(m_inks.good);
        tick();
        break;
    default: // Lock
        use(m_inks.line);
        m_painter.drawArc(QRectF(9, 3, 14, 20), 0, 180 * 16);
        box(5, 13, 27, 29, m_inks.tint);
        line({{15, 19}, {15, 25}}, m_inks.accent);
        line({{17, 19}, {17, 25}}, m_inks.accent);
        break;
    }
}

void Sketch::drawEvaluationIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::Chart:
        line({{3, 3}, {3, 29}, {29, 29}}, m_inks.line);
        box(7, 17, 11, 29, m_inks.tint);
        box(15, 11, 19, 29, m_inks.accent);
        box(23, 5, 27, 29, m_inks.tint);
        break;
    case CommandIcon::Balance:
        line({{15, 3}, {15, 27}}, m_inks.line);
        line({{5, 7}, {27, 7}}, m_inks.line);
        line({{9, 29}, {23, 29}}, m_inks.line);
        shape({{3, 19}, {7, 9}, {11, 19}}, m_inks.accent, m_inks.tint);
        shape({{19, 19}, {24, 9}, {29, 19}}, m_inks.accent, m_inks.tint);
        break;
    case CommandIcon::Profit:
        line({{3, 3}, {3, 29}, {29, 29}}, m_inks.line);
        line({{7, 23}, {13, 15}, {19, 19}, {27, 7}}, m_inks.good);
        line({{19, 7}, {27, 7}, {27, 15}}, m_inks.good);
        break;
    case CommandIcon::Totals:
        box(3, 3, 29, 29, m_inks.ground);
        bar(4, 4, 28, 8, m_inks.tint);
        line({{3, 9}, {29, 9}}, m_inks.line);
        line({{15, 9}, {15, 29}}, m_inks.line);
        rows(7, 11, {15, 21});
        rows(19, 25, {15, 21});
        break;
    case CommandIcon::OpenItems:
        sheet();
        rows(9, 15, {13, 19, 25});
        circle(23, 23, 7, m_inks.line, m_inks.ground);
        line({{23, 18}, {23, 23}, {27, 23}}, m_inks.accent);
        break;
    case CommandIcon::Journal:
        box(5, 3, 27, 29, m_inks.ground);
        bar(6, 4, 10, 28, m_inks.accent);
        rows(15, 23, {11, 17});
        break;
    case CommandIcon::Reminder:
        box(3, 7, 29, 25, m_inks.ground);
        line({{3, 7}, {16, 18}, {29, 7}}, m_inks.line);
        badge(m_inks.bad);
        line({{23, 17}, {23, 24}}, m_inks.onAccent);
        line({{23, 26}, {23, 28}}, m_inks.onAccent);
        break;
    default: // Export
        sheet();
        badge(m_inks.accent);
        arrowRight();
        break;
    }
}

void Sketch::drawViewIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::Classic:
        box(3, 5, 29, 27, m_inks.ground);
        bar(4, 6, 28, 12, m_inks.tint);
        line({{3, 13}, {29, 13}}, m_inks.line);
        box(7, 17, 15, 23, m_inks.tint);
        break;
    case CommandIcon::Modern:
        use(m_inks.line, m_inks.ground);
        m_painter.drawRoundedRect(QRectF(3, 5, 26, 22), 6, 6);
        circle(10, 20, 4, m_inks.accent, m_inks.accent);
        rows(9, 23, {11});
        line({{17, 19}, {25, 19}}, m_inks.line);
        break;
    case CommandIcon::Larger:
        letter(2, 20, 5, 27);
        line({{25, 5}, {25, 15}}, m_inks.line);
        line({{20, 11}, {30, 11}}, m_inks.line);
        break;
    case CommandIcon::Smaller:
        letter(4, 18, 11, 27);
        line({{20, 11}, {30, 11}}, m_inks.line);
        break;
    case CommandIcon::Reset:
        use(m_inks.accent);
        m_painter.drawArc(QRectF(5, 5, 22, 22), 120 * 16, 300 * 16);
        line({{5, 3}, {5, 11}, {13, 11}}, m_inks.accent);
        break;
    case CommandIcon::Options:
        for (const qreal y : {7, 17, 25})
            line({{3, y}, {29, y}}, m_inks.line);
        circle(11, 7, 3, m_inks.accent, m_inks.ground);
        circle(21, 17, 3, m_inks.accent, m_inks.ground);
        circle(9, 25, 3, m_inks.accent, m_inks.ground);
        break;
    case CommandIcon::Manual:
        shape({{15, 7}, {3, 5}, {3, 25}, {15, 27}}, m_inks.line, m_inks.ground);
        shape({{17, 7}, {29, 5}, {29, 25}, {17, 27}}, m_inks.line, m_inks.tint);
        line({{7, 11}, {11, 12}}, m_inks.accent);
        line({{7, 17}, {11, 18}}, m_inks.accent);
        break;
    case CommandIcon::News:
        box(3, 5, 25, 27, m_inks.ground);
        shape({{25, 11}, {29, 11}, {29, 27}, {25, 27}}, m_inks.line, m_inks.tint);
        rows(7, 21, {11});
        box(7, 17, 13, 23, m_inks.tint);
        line({{17, 17}, {21, 17}}, m_inks.line);
        line({{17, 23}, {21, 23}}, m_inks.line);
        break;
    case CommandIcon::Keyboard:
        box(3, 9, 29, 25, m_inks.ground);
        for (const qreal x : {6, 12, 18, 24})
            bar(x, 12, x + 2, 14, m_inks.accent), bar(x, 16, x + 2, 18, m_inks.accent);
        rows(9, 23, {21});
        break;
    default: // Info
        circle(16, 16, 13, m_inks.accent, m_inks.ground);
        bar(14, 8, 18, 12, m_inks.accent);
        bar(14, 14, 18, 24, m_inks.accent);
        break;
    }
}

void Sketch::drawSingleDocumentIcon(CommandIcon icon)
{
    switch (icon) {
    case CommandIcon::Edit:
        sheet();
        rows(9, 17, {13, 19});
        shape({{13, 27}, {14, 22}, {26, 10}, {30, 14}, {18, 26}}, m_inks.accent, m_inks.tint);
        break;
    case CommandIcon::Cancel:
        sheet();
        badge(m_inks.bad);
        cross();
        break;
    case CommandIcon::Attach:
        use(m_inks.accent);
        m_painter.drawRoundedRect(QRectF(11, 3, 12, 26), 6, 6);
        line({{17, 9}, {17, 23}}, m_inks.line);
        break;
    case CommandIcon::Scan:
        line({{3, 11}, {3, 3}, {11, 3}}, m_inks.line);
        line({{21, 3}, {29, 3}, {29, 11}}, m_inks.line);
        line({{3, 21}, {3, 29}, {11, 29}}, m_inks.line);
        line({{21, 29}, {29, 29}, {29, 21}}, m_inks.line);
        box(9, 9, 23, 23, m_inks.ground);
        rows(3, 29, {15});
        break;
    default: // Remove
        line({{5, 7}, {27, 7}}, m_inks.line);
        line({{11, 7}, {11, 3}, {21, 3}, {21, 7}}, m_inks.line);
        shape({{7, 11}, {25, 11}, {23, 29}, {9, 29}}, m_inks.line, m_inks.ground);
        line({{13, 15}, {13, 25}}, m_inks.bad);
        line({{19, 15}, {19, 25}}, m_inks.bad);
        break;
    }
}

/** The families stand in the order of CommandIcon. */
void Sketch::draw(CommandIcon icon)
{
    if (icon <= CommandIcon::Page)
        drawPageIcon(icon);
    else if (icon <= CommandIcon::Copy)
        drawDocumentIcon(icon);
    else if (icon <= CommandIcon::Lock)
        drawBookkeepingIcon(icon);
    else if (icon <= CommandIcon::Export)
        drawEvaluationIcon(icon);
    else if (icon <= CommandIcon::Info)
        drawViewIcon(icon);
    else
        drawSingleDocumentIcon(icon);
}

class PictogramEngine : public QIconEngine
{
public:
    explicit PictogramEngine(CommandIcon icon)
        : m_icon(icon)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->save();
        Sketch(*painter, rect, mode).draw(m_icon);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new PictogramEngine(*this); }

private:
    CommandIcon m_icon;
};

} // namespace

QIcon commandIcon(CommandIcon icon)
{
    return icon == CommandIcon::None ? QIcon() : QIcon(new PictogramEngine(icon));
}
