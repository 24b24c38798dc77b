#pragma once

#include "pages/Page.h"

#include <QStringList>

/** All tokens of the palette. */
class ColorsPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("farben"); }
    static QString title() { return QStringLiteral("Farben"); }

    ColorsPage();

private:
    void addTokens(const QString &title, const QString &description, const QStringList &tokens);
};
