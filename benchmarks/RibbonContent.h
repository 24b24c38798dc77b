#pragma once

#include <QVector>

namespace NVO {
class Action;
}

/** What an application shows in its ribbon. The actions live as long as the application object. */
struct RibbonContent
{
    struct Group
    {
        NVO::Action *action;
        QVector<NVO::Action *> commands;
    };
    struct Tab
    {
        NVO::Action *action;
        QVector<Group> groups;
    };
    QVector<Tab> tabs;
};

/** Eight tabs of six groups of six commands. */
const RibbonContent &ribbonContent();
