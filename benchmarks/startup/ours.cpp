#include "FirstPaint.h"

#include <nvo/Button.h>

/** Takes the file of a theme. */
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QResource::registerResource(QString::fromLocal8Bit(argv[1]));
    return FirstPaint::run(application, [](QWidget *window) { return new NVO::Button(window); });
}
