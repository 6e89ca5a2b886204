#include "PvCatalogueTool.h"

#include <QGuiApplication>

namespace {
QtMessageHandler startupHandler = nullptr;

// While Qt starts it looks for a desktop session in the runtime directory and warns on a
// machine without one, which tells the user nothing about the tool's work.
void quietStartup(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    if (startupHandler)
        startupHandler(type, context, message);
}
}

int main(int argc, char* argv[])
{
    // Pictures need fonts, which need a GUI application; the tool never shows a window, so
    // it runs without a display unless told otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    startupHandler = qInstallMessageHandler(quietStartup);
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(startupHandler);
    QCoreApplication::setApplicationName(QStringLiteral("pvproducts"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PV_VERSION));
    return PvCatalogueTool().run(QCoreApplication::arguments());
}
