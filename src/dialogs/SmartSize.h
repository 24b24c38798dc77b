#pragma once

#include <QSize>

class QWidget;

/** The smallest size that \a widget may take by its hints, policies and limits together. */
QSize smartMinimumSize(const QWidget *widget);

/** The largest such size. */
QSize smartMaximumSize(const QWidget *widget);
