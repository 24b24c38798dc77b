#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/**
 * Resources of the root directory whose contents a test sets while it runs: set("Button", "...") is what
 * ":/Button" reads from then on. They are gone when the object dies. The resources have no time stamp, as
 * in a reproducible build.
 */
class TestResources
{
public:
    TestResources() = default;
    explicit TestResources(const QMap<QString, QByteArray> &files);
    ~TestResources();
    TestResources(const TestResources &) = delete;
    TestResources &operator=(const TestResources &) = delete;

    void set(const QString &name, const QByteArray &content);

    /** A PNG of one colour per column, for use with set(). */
    static QByteArray png(int width, int height, const QList<quint32> &columns);

private:
    void exchange();

    QMap<QString, QByteArray> m_files;
    QByteArray m_registered;
};
