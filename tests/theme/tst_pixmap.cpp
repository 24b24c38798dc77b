#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Icon.h>
#include <nvo/Pixmap.h>

#include <QPainter>
#include <QPixmapCache>
#include <QScreen>
#include <QtTest>

using NVO::Icon;
using NVO::Pixmap;

namespace {

/** What a name resolves to, by the order in which the ratios are tried. */
QString expectedName(const QString &base, int asked, const QSet<int> &present)
{
    if (asked == 1 && qGuiApp->devicePixelRatio() <= 1.0)
        return base; // no ratio was asked for at all
    QList<int> order{asked};
    for (int higher = asked + 1; higher <= 4; ++higher)
        order << higher;
    for (int lower = asked - 1; lower >= 2; --lower)
        order << lower;
    for (const int ratio : qAsConst(order)) {
        if (present.contains(ratio) && ratio > 1)
            return QStringLiteral("%1@%2x").arg(base).arg(ratio);
    }
    return base;
}

} // namespace

class TestPixmap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QPixmapCache::clear(); }
    void everySetOfVariants();
    void extension();
    void foreignMarks();
    void cache();
    void sameNameAgain();
    void pandStrip_data();
    void pandStrip();
    void pandStripWithRatio();

private:
    static int screenRatio() { return qFloor(qGuiApp->devicePixelRatio() + 0.5); }
};

void TestPixmap::everySetOfVariants()
{
    for (int set = 0; set < 16; ++set) {
        TestResources resources;
        QSet<int> present;
        for (int ratio = 1; ratio <= 4; ++ratio) {
            if ((set & (1 << (ratio - 1))) == 0)
                continue;
            present.insert(ratio);
            const QString mark = ratio == 1 ? QString() : QStringLiteral("@%1x").arg(ratio);
            resources.set("image" + mark, TestResources::png(ratio, 1, {0xff000000}));
        }
        const auto check = [&present](const QString &asked, int ratio) {
            QPixmapCache::clear();
            const Pixmap pixmap(asked);
            const QString expected = expectedName(":/image", ratio, present);
            QCOMPARE(pixmap.fileName(), expected);
            const int loaded = expected == ":/image" ? 1 : expected.mid(8, 1).toInt();
            QCOMPARE(pixmap.isNull(), !present.contains(loaded));
            QCOMPARE(pixmap.width(), pixmap.isNull() ? 0 : loaded);
        };
        check(":/image", screenRatio());
        for (int ratio = 2; ratio <= 4; ++ratio)
            check(QStringLiteral(":/image@%1x").arg(ratio), ratio); // taken at its word on any screen
    }
}

void TestPixmap::extension()
{
    const TestResources resources({{"a", TestResources::png(1, 1, {0xff000000})},
                                   {"a.png", TestResources::png(2, 1, {0xff000000})},
                                   {"a@2x", TestResources::png(3, 1, {0xff000000})}});
    QCOMPARE(Pixmap(":/a.png").fileName(),
             qGuiApp->devicePixelRatio() > 1.0 ? QString(":/a@2x") : QString(":/a.png"));
}

void TestPixmap::foreignMarks()
{
    const QByteArray png = TestResources::png(1, 1, {0xff000000});
    const TestResources resources({{"me@home", png}, {"me@home@3x", png}, {"@", png}, {"b@2", png}});
    const bool sharp = qGuiApp->devicePixelRatio() > 1.0;
    QCOMPARE(Pixmap(":/me@home").fileName(), sharp ? QString(":/me@home@3x") : QString(":/me@home"));
    QCOMPARE(Pixmap(":/me@home@4x").fileName(), QString(":/me@home@3x"));
    QCOMPARE(Pixmap(":/@").fileName(), QString(":/@"));
    QCOMPARE(Pixmap(":/b@2").fileName(), QString(":/b@2"));
    QCOMPARE(Pixmap(":/missing@").fileName(), QString(":/missing@"));
}

void TestPixmap::cache()
{
    TestResources resources({{"image@2x", TestResources::png(2, 1, {0xffff0000})}});
    const Pixmap first(":/image@2x");
    resources.set("image@2x", TestResources::png(4, 1, {0xff00ff00}));
    QCOMPARE(Pixmap(":/image@2x").cacheKey(), first.cacheKey());
    QPixmapCache::clear();
    QCOMPARE(Pixmap(":/image@2x").width(), 4);

    QVERIFY(Pixmap(":/later@2x").isNull());
    resources.set("later@2x", TestResources::png(1, 1, {0xff00ff00}));
    QVERIFY(!Pixmap(":/later@2x").isNull());
}

void TestPixmap::sameNameAgain()
{
    TestResources resources({{"image@2x", TestResources::png(2, 1, {0xffff0000})}});
    Pixmap pixmap(":/image@3x");
    QCOMPARE(pixmap.fileName(), QString(":/image@2x"));
    const Pixmap copy = pixmap;
    pixmap.setFileName(":/image@2x");
    QCOMPARE(pixmap.cacheKey(), copy.cacheKey());
    pixmap.setFileName(":/image@4x");
    QCOMPARE(pixmap.fileName(), copy.fileName());
    pixmap.setFileName(":/nothing");
    QVERIFY(pixmap.isNull());
    QVERIFY(!copy.isNull());
    pixmap.setFileName(QString());
    QVERIFY(pixmap.isNull());
    QCOMPARE(pixmap.fileName(), QString());
}

void TestPixmap::pandStrip_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("piece");

    QTest::newRow("four equal pieces") << 40 << 10;
    QTest::newRow("a rest is not used") << 43 << 10;
    QTest::newRow("one pixel each") << 4 << 1;
    QTest::newRow("too narrow") << 3 << 0;
    QTest::newRow("nothing") << 0 << 0;
}

void TestPixmap::pandStrip()
{
    QFETCH(int, width);
    QFETCH(int, piece);
    const QList<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::gray, Qt::black};
    QPixmap strip(width, 6);
    if (width > 0) {
        QPainter painter(&strip);
        for (int x = 0; x < width; ++x)
            painter.fillRect(x, 0, 1, 6, colors.value(piece > 0 ? x / piece : 0));
    }

    const Icon icon(strip);
    QCOMPARE(icon.isNull(), piece == 0);
    if (piece == 0)
        return;
    const QList<QIcon::Mode> modes{QIcon::Selected, QIcon::Active, QIcon::Normal, QIcon::Disabled};
    for (int i = 0; i < modes.size(); ++i) {
        QCOMPARE(icon.availableSizes(modes[i], QIcon::Off), QList<QSize>{QSize(piece, 6)});
        const QImage image = icon.pixmap(QSize(piece, 6), modes[i], QIcon::Off).toImage();
        for (int x = 0; x < piece; ++x)
            QCOMPARE(image.pixelColor(x, 3), colors[i]);
    }
}

void TestPixmap::pandStripWithRatio()
{
    const TestResources resources(
        {{"strip@2x", TestResources::png(80, 20, {0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888})}});
    const Icon icon(Pixmap(":/strip@2x"));
    const QPixmap normal = icon.pixmap(QSize(20, 20), QIcon::Normal, QIcon::Off);
    QCOMPARE(normal.size(), QSize(20, 20));
    QCOMPARE(normal.toImage().pixelColor(10, 10), QColor(Qt::blue));
}

QTEST_MAIN(TestPixmap)
#include "tst_pixmap.moc"
