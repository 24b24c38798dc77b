// What the large combo box costs beside one that keeps the size of each item, but asks all of them again
// whenever it is asked for its own.

#include <nvo/Css.h>
#include <nvo/Font.h>
#include <nvo/OverviewComboBox.h>

#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QItemDelegate>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace {

using Role = NVO::OverviewComboBox;

/** The same combo box in its simplest form: nothing is kept but the sizes of the items. */
class PlainComboBox : public QComboBox
{
public:
    PlainComboBox()
    {
        setStyleSheet(NVO::Css::instance()
                          .css(NVO::ElementOverviewComboBox)
                          .replace("NVO--OverviewComboBox", "QComboBox"));
        setItemDelegate(new Delegate(this));
    }

    void addItem(const QIcon &icon, const QString &title, const QString &description, const QString &path)
    {
        auto *item = new QStandardItem;
        item->setIcon(icon);
        item->setData(NVO::Css::instance().replaceBoldTags(title), Role::TitleRole);
        item->setData(NVO::Css::instance().replaceBoldTags(description), Role::DescriptionRole);
        item->setData(path, Role::PathRole);
        static_cast<QStandardItemModel *>(model())->appendRow(item);
        updateGeometry();
    }

    QSize sizeHint() const override
    {
        QSize hint(0, 0);
        for (int i = 0; i < count(); ++i)
            hint = hint.expandedTo(sizeHintForItem(i));
        return hint;
    }

    QSize sizeHintForItem(int index) const
    {
        const QVariant width = itemData(index, Role::CachedWidthRole);
        const QVariant height = itemData(index, Role::CachedHeightRole);
        QSize size(width.toInt(), height.toInt());
        if (!width.isValid() || !height.isValid()) {
            QSizeF texts(0, 0);
            for (const int role : {Role::TitleRole, Role::DescriptionRole}) {
                QTextDocument document;
                fill(document, index, role);
                texts = {qMax(texts.width(), document.size().width()),
                         texts.height() + document.size().height()};
            }
            const QString path = itemData(index, Role::PathRole).toString();
            const int pathHeight = QFontMetrics(pathFont()).boundingRect(path).height() + 5;
            size = {int(texts.width()), int(texts.height()) + pathHeight + 20};
            model()->setData(model()->index(index, 0), size.width(), Role::CachedWidthRole);
            model()->setData(model()->index(index, 0), size.height(), Role::CachedHeightRole);
        }
        return {size.width() + 82, qMax(size.height(), 46)};
    }

    void paint(QPainter *painter, const QRect &rect, int index, const QColor &color) const
    {
        painter->drawPixmap(QRect(rect.left() + 10, rect.top() + (rect.height() - 24) / 2, 24, 24),
                            itemIcon(index).pixmap(24, 24));
        painter->save();
        const QRect clip = rect.adjusted(44, 0, -38, 0);
        painter->setClipRect(clip, Qt::IntersectClip);
        sizeHintForItem(index);
        const int contentHeight = itemData(index, Role::CachedHeightRole).toInt();
        int y = rect.top() + qMax(height() - contentHeight, 0) / 2 + 10;
        for (const int role : {Role::TitleRole, Role::DescriptionRole}) {
            QTextDocument document;
            fill(document, index, role);
            QTextCharFormat format;
            format.setForeground(color);
            QTextCursor cursor(&document);
            cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
            painter->save();
            painter->translate(clip.left(), y);
            document.drawContents(painter);
            painter->restore();
            y += int(document.size().height());
        }
        const QString path = itemData(index, Role::PathRole).toString();
        const QFontMetrics metrics(pathFont());
        QRect line = metrics.boundingRect(path);
        line.moveTo(clip.left(), y + 5);
        line &= clip;
        painter->setFont(pathFont());
        painter->setPen(color);
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(path, Qt::ElideMiddle, line.width()));
        painter->restore();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        option.activeSubControls = QStyle::SC_None;
        QPainter painter(this);
        style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
        paint(&painter, option.rect, currentIndex(), option.palette.color(QPalette::Text));
    }

private:
    class Delegate : public QItemDelegate
    {
    public:
        explicit Delegate(PlainComboBox *box)
            : QItemDelegate(box)
            , m_box(box)
        {}

        void paint(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const override
        {
            drawBackground(painter, option, index);
            const bool selected = option.state & QStyle::State_Selected;
            m_box->paint(painter, option.rect, index.row(),
                         option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
            QStyleOptionFrame frame;
            frame.rect = option.rect;
            m_box->style()->drawPrimitive(QStyle::PE_Frame, &frame, painter, m_box->view());
        }
        QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
        {
            return m_box->sizeHint();
        }

    private:
        PlainComboBox *m_box;
    };

    void fill(QTextDocument &document, int index, int role) const
    {
        document.setDocumentMargin(0);
        document.setDefaultFont(font());
        document.setHtml(itemData(index, role).toString());
    }

    QFont pathFont() const
    {
        QFont font = this->font();
        font.setPixelSize(NVO::Font::instance().fontSize(NVO::Font::SMALL));
        return font;
    }
};

/** A box on screen, filled from then on, whose items have been measured. */
template <typename Box>
std::unique_ptr<Box> makeBox(int entries)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::darkCyan);
    auto box = std::make_unique<Box>();
    box->resize(400, 70);
    box->show();
    QApplication::processEvents();
    for (int i = 0; i < entries; ++i)
        box->addItem(pixmap, QStringLiteral("<b>Mandant %1</b>").arg(i),
                     QStringLiteral("Wirtschaftsjahr 2026"),
                     QStringLiteral("D:\\Mandanten\\%1\\2026\\Rechnungswesen").arg(i));
    box->sizeHint();
    return box;
}

/** The list opens for the first time, until it is on screen. */
template <typename Box>
void open(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto box = makeBox<Box>(500);
        state.ResumeTiming();
        box->showPopup();
        QApplication::processEvents();
        state.PauseTiming();
        box.reset();
        state.ResumeTiming();
    }
}

template <typename Box>
void sizeHint(benchmark::State &state)
{
    const auto box = makeBox<Box>(500);
    for (auto _ : state)
        benchmark::DoNotOptimize(box->sizeHint());
}

/** Box and open list, all rows of it. */
template <typename Box>
void paint(benchmark::State &state)
{
    const auto box = makeBox<Box>(20);
    QAbstractItemView *list = box->view();
    list->setFixedSize(400, 20 * box->sizeHint().height());
    QPixmap picture(list->size());
    list->grab();
    for (auto _ : state) {
        box->render(&picture);
        list->render(&picture);
    }
}

BENCHMARK(open<NVO::OverviewComboBox>)->Name("overview_combo/open/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(open<PlainComboBox>)->Name("overview_combo/open/asked_again")->Unit(benchmark::kMillisecond);
BENCHMARK(sizeHint<NVO::OverviewComboBox>)
    ->Name("overview_combo/size_hint/ours")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(sizeHint<PlainComboBox>)
    ->Name("overview_combo/size_hint/asked_again")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(paint<NVO::OverviewComboBox>)->Name("overview_combo/paint/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(paint<PlainComboBox>)->Name("overview_combo/paint/asked_again")->Unit(benchmark::kMillisecond);

} // namespace
