#include "FirstPaint.h"

#include <QPushButton>

/** Takes the file of a theme and one with the finished sheet; is linked to Qt alone. */
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QResource::registerResource(QString::fromLocal8Bit(argv[1]));
    QFile file(QString::fromLocal8Bit(argv[2]));
    file.open(QIODevice::ReadOnly);
    const QString sheet = QString::fromUtf8(file.readAll());
    QFont font;
    font.setPixelSize(QByteArray(argv[3]).toInt());
    return FirstPaint::run(application, [&](QWidget *window) {
        auto *button = new QPushButton(window);
        button->setFont(font);
        button->setCursor(Qt::PointingHandCursor);
        button->setProperty("style", QStringLiteral("Normal"));
        button->setStyleSheet(sheet);
        return button;
    });
}
