#include <nvo/Pixmap.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>

namespace NVO {

namespace {

constexpr int highestRatio = 4;
constexpr int markLength = 3;
constexpr int highestDigit = 9;

QString mark(int ratio)
{
    return QStringLiteral("@%1x").arg(ratio);
}

/** Where the first of the marks "@2x" to "@4x" stands in \a name; -1 if there is none. */
int markPosition(const QString &name)
{
    static const QRegularExpression marks(QStringLiteral("@[2-4]x"));
    return name.indexOf(marks);
}

qreal highestScreenRatio()
{
    qreal ratio = 1.0;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        ratio = std::max(ratio, screen->devicePixelRatio());
    return ratio;
}

/** The name of an image that exists, at best with the ratio of the mark of \a name at \a position. */
QString mostAccurateRatio(QString name, int position)
{
    if (QFileInfo::exists(name))
        return name;

    const int ratio = name.at(position + 1).digitValue();
    const auto found = [&name, position](int candidate) {
        name.replace(position, markLength, mark(candidate));
        return QFileInfo::exists(name);
    };
    for (int higher = ratio + 1; higher <= highestRatio; ++higher) {
        if (found(higher))
            return name;
    }
    for (int lower = ratio - 1; lower >= 2; --lower) {
        if (found(lower))
            return name;
    }
    return name.remove(position, markLength);
}

QString resolved(const QString &name)
{
    const int given = markPosition(name);
    if (given >= 0)
        return mostAccurateRatio(name, given);

    const qreal ratio = highestScreenRatio();
    if (ratio <= 1.0 || name.isEmpty())
        return name;
    const QString wanted = mark(std::min(qRound(ratio), highestDigit));
    const int extension = name.indexOf(QLatin1String(".png"));
    if (extension < 0)
        return mostAccurateRatio(name + wanted, name.size());
    return mostAccurateRatio(QString(name).replace(QLatin1String(".png"), wanted), extension);
}

} // namespace

Pixmap::Pixmap(const QString &fileName)
{
    if (!fileName.isEmpty())
        setFileName(fileName);
}

void Pixmap::setFileName(const QString &fileName)
{
    if (fileName == m_fileName)
        return;
    m_fileName = resolved(fileName);
    if (!QPixmapCache::find(m_fileName, this) && load(m_fileName))
        QPixmapCache::insert(m_fileName, *this);
}

} // namespace NVO
