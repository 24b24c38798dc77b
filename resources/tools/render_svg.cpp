// Renders SVG masters to the PNG images of a theme.
//
//   render_svg <output directory> <master.svg>...
//
// Each master "close.svg" becomes the four files "close", "close@2x", "close@3x" and "close@4x": PNG data
// without a file name extension, as the library asks for them. The size at ratio 1 is the SVG's own. Needs
// no display; masters must not contain text, since no fonts are loaded.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

constexpr int largestRatio = 4;

QString imageName(const QString &baseName, int ratio)
{
    return ratio == 1 ? baseName : baseName + QStringLiteral("@%1x").arg(ratio);
}

QImage rendered(QSvgRenderer &master, int ratio)
{
    QImage image(master.defaultSize() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    master.render(&painter, QRectF(image.rect()));
    return image;
}

bool renderMaster(const QString &path, const QDir &directory)
{
    QSvgRenderer master(path);
    if (!master.isValid() || master.defaultSize().isEmpty()) {
        return false;
    }
    const QString baseName = QFileInfo(path).completeBaseName();
    for (int ratio = 1; ratio <= largestRatio; ++ratio) {
        const QString file = directory.filePath(imageName(baseName, ratio));
        if (!rendered(master, ratio).convertToFormat(QImage::Format_ARGB32).save(file, "PNG")) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() < 3) {
        errors << "usage: render_svg <output directory> <master.svg>...\n";
        return 2;
    }
    const QDir directory(arguments.at(1));
    if (!directory.mkpath(QStringLiteral("."))) {
        errors << "render_svg: cannot create " << directory.path() << '\n';
        return 1;
    }
    for (const QString &path : arguments.mid(2)) {
        if (!renderMaster(path, directory)) {
            errors << "render_svg: cannot render " << path << " into " << directory.path() << '\n';
            return 1;
        }
    }
    return 0;
}
