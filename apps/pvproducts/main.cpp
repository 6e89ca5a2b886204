#include "PvCatalogueTool.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pvproducts"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PV_VERSION));
    return PvCatalogueTool().run(QCoreApplication::arguments());
}
