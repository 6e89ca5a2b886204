#include "PvToolMessages.h"

#include "PvDiagnosticCollector.h"
#include "PvJsonOutput.h"

#include <cstdio>

namespace {
QString& subject()
{
    static QString text;
    return text;
}
}

void PvToolMessages::install()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
        const PvDiagnosticCollector* collector = PvDiagnosticCollector::current();
        QString about = subject();
        if (collector && !collector->file().isEmpty())
            about = PvJsonOutput::displayPath(collector->file());
        const QByteArray text = (about.isEmpty() ? message : about + QStringLiteral(": ") + message).toLocal8Bit();
        const char* level = type == QtWarningMsg ? "warning" : type == QtCriticalMsg ? "critical" : type == QtFatalMsg ? "fatal" : type == QtInfoMsg ? "info" : "debug";
        std::fprintf(stderr, "pvproducts: %s: %s\n", level, text.constData());
        Q_UNUSED(context);
    });
}

void PvToolMessages::setSubject(const QString& text)
{
    subject() = text;
}
