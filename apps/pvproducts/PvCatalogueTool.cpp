#include "PvCatalogueTool.h"

#include "PvBasisSettings.h"
#include "PvDiagnosticCollector.h"
#include "PvDirectoryConfig.h"
#include "PvLocaleAndTranslationManager.h"
#include "PvProductPropertiesTranslations.h"
#include "PvToolMessages.h"

#include <algorithm>

PvCatalogueTool::PvCatalogueTool()
    : m_out(stdout)
    , m_err(stderr)
    , m_commands(pvCommands())
{
}

const PvCommand* PvCatalogueTool::findCommand(const QString& name) const
{
    const auto it = std::find_if(m_commands.cbegin(), m_commands.cend(), [&](const PvCommand& c) { return c.name == name; });
    return it == m_commands.cend() ? nullptr : &*it;
}

int PvCatalogueTool::run(const QStringList& arguments)
{
    const QCommandLineOption dataOption(QStringLiteral("data"), QStringLiteral("The data root (products, products-updates, resources, thumbnails, translations); default: the bundled sample catalogue."), QStringLiteral("dir"), QStringLiteral(PV_SAMPLE_DATA));
    const QCommandLineOption languageOption(QStringLiteral("language"), QStringLiteral("The user's locale, such as de_DE or en_GB."), QStringLiteral("locale"));
    const QCommandLineOption masterOption(QStringLiteral("master-mode"), QStringLiteral("Run as in master mode (untranslated category names shown too)."));
    const QCommandLineOption helpOption = m_parser.addHelpOption();
    m_parser.addOptions({ dataOption, languageOption, masterOption });

    // The command is the first argument that is neither an option nor an option's value.
    const PvCommand* command = nullptr;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--data") || argument == QLatin1String("--language"))
            ++i;
        else if (!argument.startsWith(QLatin1Char('-'))) {
            command = findCommand(argument);
            if (!command)
                return usage(QStringLiteral("unknown command \"%1\"").arg(argument));
            break;
        }
    }

    QString description = QStringLiteral("Shows what the product library makes of a catalogue of product files.\n\nCommands:\n");
    for (const PvCommand& c : std::as_const(m_commands))
        description += QStringLiteral("  %1\n      %2\n").arg(c.synopsis, c.description);
    if (command) {
        description = command->description;
        m_parser.addOptions(command->options);
        m_parser.addPositionalArgument(command->name, QString(), command->synopsis);
    } else {
        m_parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("One of the commands above."), QStringLiteral("<command> [options]"));
    }
    m_parser.setApplicationDescription(description);

    if (!m_parser.parse(arguments))
        return usage(m_parser.errorText());
    if (m_parser.isSet(helpOption)) {
        m_out << m_parser.helpText();
        return PvToolContext::Success;
    }
    if (!command)
        return usage(QStringLiteral("no command given"));

    const QDir dataRoot(m_parser.value(dataOption));
    if (!dataRoot.exists())
        return usage(QStringLiteral("no such data directory: %1").arg(m_parser.value(dataOption)));
    if (!QFileInfo(dataRoot.filePath(QStringLiteral("products"))).isDir())
        return usage(QStringLiteral("%1 is no data root: it has no \"products\" directory").arg(m_parser.value(dataOption)));
    PvDirectoryConfig::instance().setDataRoot(dataRoot);
    if (m_parser.isSet(languageOption)) {
        const QLocale locale(m_parser.value(languageOption));
        if (locale.language() == QLocale::C)
            return usage(QStringLiteral("unknown language \"%1\"").arg(m_parser.value(languageOption)));
        PvLocaleAndTranslationManager::instance().setLocale(locale);
        PvProductPropertiesTranslations::load(locale);
    }
    PvBasisSettings::instance().setRunsInMasterMode(m_parser.isSet(masterOption));

    // The collector tells the message handler which file the library is reading; what it
    // collects is for lint, which asks for it itself.
    const PvDiagnosticCollector loading;
    PvToolMessages::install();
    PvToolContext context { m_out, m_err, m_parser, dataRoot };
    const int status = command->run(context);
    m_out.flush();
    m_err.flush();
    return status;
}

int PvCatalogueTool::usage(const QString& message)
{
    return PvToolContext { m_out, m_err, m_parser, QDir() }.usage(message);
}
