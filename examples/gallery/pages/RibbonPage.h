#pragma once

#include "pages/Page.h"

#include <QTimer>

class GalleryRibbon;
class QLabel;

namespace NVO {
class RibbonGroup;
}

/** The ribbon: how it fits itself to its width, its keytips, and the popup of a collapsed group. */
class RibbonPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("ribbon"); }
    static QString title() { return QStringLiteral("Menüband"); }

    RibbonPage();

    int pictureWidth() const override;

protected:
    bool event(QEvent *event) override;

private:
    void addWidths();
    void addKeytips();
    void addTabs();
    void addPopups();
    void addStates();
    void showKeytips();

    GalleryRibbon *m_source; // of single groups
    GalleryRibbon *m_tabKeytips = nullptr;
    GalleryRibbon *m_controlKeytips = nullptr;
    GalleryRibbon *m_collapsedKeytips = nullptr;
    NVO::RibbonGroup *m_popup = nullptr;
    QLabel *m_popupKeytips = nullptr;
    QTimer m_keytipTimer;
};
