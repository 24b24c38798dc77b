#include "TestCase.h"

#include <QtGlobal>

namespace {

QtMessageHandler nextHandler = nullptr;

void withoutPlatformNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support ")))
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
