#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QDir>
#include <QList>
#include <QString>
#include <QTextStream>

/*! What a command of the tool works with: its streams, its parsed arguments, the data root. */
struct PvToolContext {
    enum ExitCode { Success = 0, Findings = 1, UsageError = 2 };

    QTextStream& out;
    QTextStream& err;
    QCommandLineParser& parser;
    QDir dataRoot;

    //! Prints a usage error and answers its exit code.
    int usage(const QString& message) const;
    //! Says that the product type is unknown and answers the exit code of a finding.
    int unknownType(const QString& name) const;
    //! The positional arguments after the command's name.
    [[nodiscard]] QStringList arguments() const { return parser.positionalArguments().mid(1); }
};

/*! One command of the tool: its help and what it runs. */
struct PvCommand {
    QString name;
    QString synopsis;
    QString description;
    QList<QCommandLineOption> options;
    int (*run)(PvToolContext& context);
};

//! The commands, in the order the help lists them; each is defined in its file in commands/.
QList<PvCommand> pvCommands();
