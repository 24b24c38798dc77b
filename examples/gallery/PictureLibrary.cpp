#include "PictureLibrary.h"

#include <nvo/Palette.h>

#include <QDir>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr QSize pictureSize(104, 80); // the ribbon shows pictures at this height
constexpr int baseLine = 70;
constexpr int barWidth = 6;
constexpr int barStep = 8;
constexpr int firstBar = 5;
constexpr std::array<int, 12> months{22, 27, 34, 30, 41, 46, 38, 35, 49, 55, 52, 60};

QColor token(const char *name)
{
    return NVO::Palette::instance().namedColor(QLatin1String(name));
}

/** The turnover of a year: a bar for each month, the best one in the accent colour. */
QImage overview(int ratio)
{
    QImage image(pictureSize * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(ratio, ratio);
    painter.fillRect(QRect(QPoint(), pictureSize), token("COLOR_BORDER_SOFT"));
    painter.fillRect(QRect(QPoint(), pictureSize).adjusted(1, 1, -1, -1), token("COLOR_SURFACE"));
    const int best = *std::max_element(months.begin(), months.end());
    int left = firstBar;
    for (const int height : months) {
        painter.fillRect(left, baseLine - height, barWidth, height,
                         token(height == best ? "COLOR_ACCENT" : "COLOR_ACCENT_LINE"));
        left += barStep;
    }
    painter.fillRect(firstBar - 1, baseLine, int(months.size()) * barStep, 1, token("COLOR_BORDER"));
    return image;
}

} // namespace

PictureLibrary::PictureLibrary()
{
    QDir::setSearchPaths(QStringLiteral("nvo"), {m_directory.path()});
}

bool PictureLibrary::draw() const
{
    const QDir folder(m_directory.filePath(name() + QStringLiteral("/PIXMAP")));
    if (!m_directory.isValid() || !folder.mkpath(QStringLiteral(".")))
        return false;
    const QString file = folder.filePath(overviewPicture());
    return overview(1).save(file, "PNG") && overview(2).save(file + QStringLiteral("@2x"), "PNG");
}
