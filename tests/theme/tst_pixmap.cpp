#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Icon.h>
#include <nvo/Pixmap.h>

#include <QPixmapCache>
#include <QtTest>

using NVO::Pixmap;

class TestPixmap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QPixmapCache::clear(); }

    void everySetOfVariants()
    {
        for (int set = 0; set < 16; ++set) {
            TestResources resources;
            for (int ratio = 1; ratio <= 4; ++ratio) {
                if (has(set, ratio))
                    resources.set("image" + mark(ratio), TestResources::png(ratio, 1, {0}));
            }
            // Without a mark, at 0, the screens ask; the others are taken at their word on any screen.
            for (const int asked : {0, 2, 3, 4}) {
                QPixmapCache::clear();
                const Pixmap pixmap(":/image" + mark(asked));
                const QStringList orders{"", "234", "234", "342", "432"};
                int found = 1;
                for (const QChar ratio : orders[asked > 0 ? asked : isSharp() ? screenRatio() : 0]) {
                    if (found == 1 && has(set, ratio.digitValue()))
                        found = ratio.digitValue();
                }
                QCOMPARE(pixmap.fileName(), ":/image" + mark(found));
                QCOMPARE(pixmap.width(), has(set, found) ? found : 0);
            }
        }
    }

    void names()
    {
        const QByteArray png = TestResources::png(1, 1, {0});
        const QString here = QString("@%1x").arg(screenRatio());
        const QList<QStringList> askedPlainSharp{{"a.png", "a.png", "a" + here},
                                                 {"b.png.png", "b.png.png", "b" + here + here},
                                                 {"me@home", "me@home", "me@home@4x"},
                                                 {"me@home@2x", "me@home@4x", "me@home@4x"},
                                                 {"@", "@", "@"},
                                                 {"b@2", "b@2", "b@2"},
                                                 {"nothing@", "nothing@", "nothing@"}};
        for (const QStringList &row : askedPlainSharp) {
            const TestResources resources({{row[1], png}, {row[2], png}});
            QCOMPARE(Pixmap(":/" + row[0]).fileName(), ":/" + row[isSharp() ? 2 : 1]);
        }
    }

    void cacheAndSameName()
    {
        TestResources resources({{"image@2x", TestResources::png(2, 1, {0})}});
        Pixmap pixmap(":/image@3x");
        const Pixmap copy = pixmap;
        resources.set("image@2x", TestResources::png(4, 1, {0}));
        QCOMPARE(Pixmap(":/image@2x").cacheKey(), copy.cacheKey());
        QPixmapCache::clear();
        pixmap.setFileName(":/image@2x"); // the same name is not loaded again
        QCOMPARE(pixmap.cacheKey(), copy.cacheKey());
        pixmap.setFileName(":/image@4x");
        QCOMPARE(pixmap.fileName(), copy.fileName());
        QCOMPARE(pixmap.width() - copy.width(), 2);
        for (const QString &missing : {QString(":/later@2x"), QString()}) {
            pixmap.setFileName(missing);
            QVERIFY(pixmap.isNull());
        }
        QCOMPARE(pixmap.fileName(), QString());
        resources.set("later@2x", TestResources::png(1, 1, {0}));
        QCOMPARE(Pixmap(":/later@2x").width(), 1);
    }

    void pandStrips()
    {
        const QList<quint32> colors{0xffff0000, 0xff00ff00, 0xff0000ff, 0xff888888};
        const QList<QIcon::Mode> modes{QIcon::Selected, QIcon::Active, QIcon::Normal, QIcon::Disabled};
        for (const int width : {0, 3, 4, 40, 43, 160}) {
            const int piece = width / 4;
            QImage strip(width, 6, QImage::Format_RGB32);
            for (int i = 0; i < 6 * width; ++i)
                strip.setPixel(i % width, i / width, colors.value(i % width / qMax(piece, 1)));
            const NVO::Icon icon(QPixmap::fromImage(strip));
            QCOMPARE(icon.isNull(), piece == 0);
            for (int i = 0; i < 4 && piece > 0; ++i) {
                QCOMPARE(icon.availableSizes(modes[i], QIcon::Off), QList<QSize>{QSize(piece, 6)});
                const QImage image = icon.pixmap(QSize(piece, 6), modes[i], QIcon::Off).toImage();
                for (int x = 0; x < image.width(); ++x)
                    QCOMPARE(image.pixel(x, 3), colors[i]);
            }
        }
    }

private:
    static bool isSharp() { return qGuiApp->devicePixelRatio() > 1.0; }
    static int screenRatio() { return qFloor(qGuiApp->devicePixelRatio() + 0.5); }
    static QString mark(int ratio) { return ratio < 2 ? QString() : QString("@%1x").arg(ratio); }
    static bool has(int set, int ratio) { return (set & 1 << ratio >> 1) != 0; }
};

QTEST_MAIN(TestPixmap)
#include "tst_pixmap.moc"
