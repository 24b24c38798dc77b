#include "TestCase.h"

#include <QtGlobal>

namespace {

QtMessageHandler nextHandler = nullptr;

void withoutPlatformNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The last comes when a window goes while the X server is being asked about it.
    if (!message.startsWith(QLatin1String("This plugin does not support "))
        && !message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)")))
        nextHandler(type, context, message);
}

} // namespace

void TestCase::initTestCase()
{
    nextHandler = qInstallMessageHandler(withoutPlatformNoise);
}

void TestCase::cleanupTestCase()
{
    qInstallMessageHandler(nextHandler);
}
