#pragma once

#include "PvToolContext.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>

/*!
 * The pvproducts command line: what the library makes of a catalogue of product files.
 * Exit status 0 on success, 1 on findings or an unknown product type, 2 on a usage error.
 * Each command lives in its own file in commands/.
 */
class PvCatalogueTool
{
public:
    PvCatalogueTool();
    int run(const QStringList& arguments);

private:
    const PvCommand* findCommand(const QString& name) const;
    int usage(const QString& message);

    QTextStream m_out;
    QTextStream m_err;
    QCommandLineParser m_parser;
    QList<PvCommand> m_commands;
};
