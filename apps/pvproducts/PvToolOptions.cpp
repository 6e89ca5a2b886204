#include "PvToolOptions.h"

const QCommandLineOption& PvToolOptions::json()
{
    static const QCommandLineOption option(QStringLiteral("json"), QStringLiteral("Print JSON for scripts."));
    return option;
}

const QCommandLineOption& PvToolOptions::articleClass()
{
    static const QCommandLineOption option(QStringLiteral("class"), QStringLiteral("Article classes, comma-separated."), QStringLiteral("classes"));
    return option;
}

const QCommandLineOption& PvToolOptions::cover()
{
    static const QCommandLineOption option(QStringLiteral("cover"), QStringLiteral("Cover types, comma-separated."), QStringLiteral("covers"));
    return option;
}

const QCommandLineOption& PvToolOptions::verbose()
{
    static const QCommandLineOption option(QStringLiteral("verbose"), QStringLiteral("Also name the file each product was read from."));
    return option;
}
