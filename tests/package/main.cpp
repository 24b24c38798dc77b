#include <nvo/NvoSdkGui.h>

#include <QApplication>
#include <QDebug>
#include <QResource>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString themes = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (!QResource::registerResource(themes + QLatin1String("/nvo-classic.rcc")))
        return 1;

    NVO::Button button;
    button.setButtonStyle(NVO::Button::Primary);
    NVO::Label label(QStringLiteral("<b>Rechnung</b>"));
    NVO::Pixmap pixmap(QStringLiteral(":/close"));
    const bool works = !button.styleSheet().isEmpty() && label.hasContent() && !pixmap.isNull()
                       && NVO::Palette::instance().namedColor(QStringLiteral("COLOR_DEKOLINE")).isValid()
                       && NVO::Product::instance().effectsEnabled;
    if (!works)
        qWarning() << "a piece of the installed package does not work";
    return works ? 0 : 1;
}
