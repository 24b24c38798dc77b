// Every page of the gallery looks as it did: compared with pictures that somebody has looked at.
// "tst_pictures --update" takes new ones.

#include "Gallery.h"
#include "GalleryApplication.h"
#include "PageRegistry.h"
#include "Screenshots.h"
#include "TestCase.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {

// References are small: a change of a line or of a letter still shows in the mean of a few pixels.
constexpr int reduction = 4;
// Processors round a blended colour differently.
constexpr int tolerance = 3; // of 255, per channel

QImage reduced(const QPixmap &picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    return image.scaled(image.size() / reduction, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool alike(QRgb left, QRgb right)
{
    return std::abs(qRed(left) - qRed(right)) <= tolerance
           && std::abs(qGreen(left) - qGreen(right)) <= tolerance
           && std::abs(qBlue(left) - qBlue(right)) <= tolerance;
}

/** What encloses all pixels that differ, in pixels of the references. */
QRect difference(const QImage &left, const QImage &right)
{
    QRect differing;
    for (int y = 0; y < left.height(); ++y) {
        const auto *leftLine = reinterpret_cast<const QRgb *>(left.constScanLine(y));
        const auto *rightLine = reinterpret_cast<const QRgb *>(right.constScanLine(y));
        for (int x = 0; x < left.width(); ++x) {
            if (!alike(leftLine[x], rightLine[x]))
                differing |= QRect(x, y, 1, 1);
        }
    }
    return differing;
}

} // namespace

class tst_Pictures : public TestCase
{
    Q_OBJECT

public:
    explicit tst_Pictures(bool update)
        : m_update(update)
    {}

private Q_SLOTS:
    void page_data();
    void page();

private:
    QString keep(const QImage &image, const QString &directory) const;

    const bool m_update;
    Gallery m_gallery{QStringLiteral(NVO_THEME_DIR)};
};

void tst_Pictures::page_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("page");
    for (const Theme &theme : themes()) {
        for (const QString &page : pageKeys())
            QTest::addRow("%s-%s", qPrintable(theme.key), qPrintable(page)) << theme.key << page;
    }
}

void tst_Pictures::page()
{
    QFETCH(QString, theme);
    QFETCH(QString, page);
    const QPixmap picture = takePicture(m_gallery, *themeByKey(theme), page);
    QVERIFY2(!picture.isNull(), qPrintable(m_gallery.error()));

    const QImage now = reduced(picture);
    const QString references = QStringLiteral(NVO_PICTURE_DIR);
    if (m_update) {
        keep(now, references);
        return;
    }
    QImage before(QDir(references).filePath(QLatin1String(QTest::currentDataTag()) + QStringLiteral(".png")));
    before = before.convertToFormat(QImage::Format_RGB32);
    const QRect differing = before.size() == now.size() ? difference(before, now) : now.rect();
    if (differing.isEmpty())
        return;
    const QString kept = keep(now, QStringLiteral(NVO_DIFFERENCE_DIR));
    const QString message = QStringLiteral("%1x%2 at %3,%4 differ; see %5")
                                .arg(differing.width())
                                .arg(differing.height())
                                .arg(differing.x())
                                .arg(differing.y())
                                .arg(kept);
    QFAIL(qPrintable(message));
}

/** The path of the file that holds \a image from now on. */
QString tst_Pictures::keep(const QImage &image, const QString &directory) const
{
    QDir().mkpath(directory);
    const QString file =
        QDir(directory).filePath(QLatin1String(QTest::currentDataTag()) + QStringLiteral(".png"));
    image.save(file, "PNG", 0);
    return file;
}

int main(int argc, char **argv)
{
    GalleryApplication application(argc, argv);
    QStringList arguments = application.arguments();
    tst_Pictures test(arguments.removeAll(QStringLiteral("--update")) > 0);
    return QTest::qExec(&test, arguments);
}

#include "tst_pictures.moc"
