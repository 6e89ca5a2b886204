#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QDir>
#include <QJsonValue>
#include <QStringList>
#include <QTextStream>

#include <functional>

class PvProductTypeDescription;

/*!
 * The pvproducts command line: what the library makes of a catalogue of product files.
 * Exit status 0 on success, 1 on findings or an unknown product type, 2 on a usage error.
 */
class PvCatalogueTool
{
public:
    enum ExitCode { Success = 0, Findings = 1, UsageError = 2 };

    PvCatalogueTool();
    int run(const QStringList& arguments);

private:
    struct Command {
        QString name;
        QString synopsis;
        QString description;
        QList<QCommandLineOption> options;
        QStringList positionals;
        std::function<int()> run;
    };

    const Command* findCommand(const QString& name) const;
    int usage(const QString& message);
    int unknownType(const QString& name);
    bool configure();
    void printJson(const QJsonValue& value);

    int list();
    int show();
    int find();
    int groups();
    int closest();
    int legacy();
    int category();
    int spiral();
    int lint();

    QJsonObject describe(const PvProductTypeDescription& description) const;
    int printPages(const PvProductTypeDescription& description, int pageCount);

    QTextStream m_out;
    QTextStream m_err;
    QCommandLineParser m_parser;
    QList<Command> m_commands;
    QDir m_dataRoot;
};
