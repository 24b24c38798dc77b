#include "pages/FlyoutParts.h"

#include "pages/PageSupport.h"

#include <nvo/Label.h>

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

namespace {

QPoint screenOrigin()
{
    return QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

QWidget *makeScreen(QWidget *stage)
{
    auto *screen = new QWidget(stage);
    screen->setAttribute(Qt::WA_TransparentForMouseEvents);
    screen->setGeometry(QRect(-screenOrigin(), stage->rect().bottomRight()));
    return screen;
}

} // namespace

FlyoutPicture::FlyoutPicture(const QRect &target, FlyoutFlags flags, QWidget *stage)
    : Flyout(nullptr, target.translated(screenOrigin()), flags | Sticky, makeScreen(stage))
{
    setWindowFlags(Qt::Widget);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FlyoutPicture::present(PointerPosition position, FlyoutStyle style, QWidget *content)
{
    const QList<QWidget *> widgets = content->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->setFocusPolicy(Qt::NoFocus);
    setFlyoutStyle(style);
    setPointerPosition(position);
    setContent(content);
    show();
}

void FlyoutPicture::showEvent(QShowEvent *event)
{
    Flyout::showEvent(event);
    setPointerPosition(pointerPosition()); // the sizes are right now
}

QVBoxLayout *makeFlyoutContent()
{
    auto *column = new QVBoxLayout(new QWidget);
    column->setContentsMargins(flyoutMargins);
    column->setSpacing(10);
    return column;
}

NVO::Label *addFlyoutText(QVBoxLayout *column, const QString &html, int width)
{
    NVO::Label *label = makeLabel(html);
    label->setWordWrap(true);
    label->setFixedWidth(width);
    column->addWidget(label);
    return label;
}
