#include "PvBenchWarnings.h"

#include <QtGlobal>

#include <atomic>

namespace {
std::atomic<int> warnings{ 0 };
QtMessageHandler previous = nullptr;

void countingHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++warnings;
    if (previous)
        previous(type, context, message);
}
}

void PvBenchWarnings::install()
{
    previous = qInstallMessageHandler(countingHandler);
}

int PvBenchWarnings::count()
{
    return warnings;
}
