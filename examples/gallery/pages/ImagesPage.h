#pragma once

#include "pages/Page.h"

#include <QStringList>

/** All images of the theme in their four resolutions. */
class ImagesPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("bilder"); }
    static QString title() { return QStringLiteral("Bilder"); }

    ImagesPage();

private:
    void addImages(const QString &title, const QString &description, const QStringList &names, int columns);
    void addStrips(const QStringList &names);
};
