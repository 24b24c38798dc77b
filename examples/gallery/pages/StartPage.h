#pragma once

#include "pages/Page.h"

#include <QPair>
#include <QSize>
#include <QVector>

/** The start page of an application: tiles of all kinds, in all states. */
class StartPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("startseite"); }
    static QString title() { return QStringLiteral("Startseite"); }

    StartPage();

    int pictureWidth() const override;

protected:
    bool event(QEvent *event) override;

private:
    void fitTiles();
    void addTiles();
    void addStates();
    void addSplitTiles();
    void addLastLines();

    QVector<QPair<QWidget *, QSize>> m_tiles; ///< Those that flow, with their least size.
};
