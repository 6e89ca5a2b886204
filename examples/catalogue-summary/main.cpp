// Prints, for each product of a catalogue, its pages for a page count and what the design
// editor may do with it.
//
//   catalogue-summary DATA_ROOT [--pages N] [--language en]

#include <PvDirectoryConfig.h>
#include <PvJigTypeList.h>
#include <PvProductEditorAbilities.h>
#include <PvProductPropertiesTranslations.h>
#include <PvProductTypeConfigRegistry.h>
#include <PvProductTypeDescription.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStringList>
#include <QTextStream>

#include <algorithm>

namespace {
QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString pageList(const PvPageTypeList& pages)
{
    QStringList names;
    for (const PvPageType& page : pages)
        names.append(page.encodeCSV());
    return names.join(QStringLiteral(", "));
}

QString enabledJigs(const PvProductEditorAbilities& abilities)
{
    QStringList names;
    for (const PvJigType& jig : PvJigTypeList::allElementTypes()) {
        if (jig.isValid() && abilities.isJigEnabled(jig) && !jig.describe().isEmpty())
            names.append(jig.describe());
    }
    return names.join(QStringLiteral(", "));
}
}

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Pages and editor abilities of every product of a catalogue."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("data-root"), QStringLiteral("The catalogue's data root."));
    const QCommandLineOption pagesOption(QStringLiteral("pages"), QStringLiteral("Page count of a project."),
                                         QStringLiteral("count"), QStringLiteral("24"));
    const QCommandLineOption languageOption(QStringLiteral("language"), QStringLiteral("Language of display names."),
                                            QStringLiteral("code"), QStringLiteral("de"));
    parser.addOption(pagesOption);
    parser.addOption(languageOption);
    parser.process(app);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    // Where the library finds its files, and its display names in the user's language.
    PvDirectoryConfig::instance().setDataRoot(QDir(parser.positionalArguments().constFirst()));
    PvProductPropertiesTranslations::load(QLocale(parser.value(languageOption)));

    const PvProductTypeConfigRegistry& registry = PvProductTypeConfigRegistry::instance();
    PvProductTypeList products = registry.allProducts();
    std::sort(products.begin(), products.end());

    const int pageCount = parser.value(pagesOption).toInt();
    QTextStream out(stdout);
    for (const PvProductType& product : products) {
        const PvProductEditorAbilities abilities = registry.description(product)->editorAbilities();
        out << product.name() << '\n'
            << "  pages (" << pageCount << "): " << pageList(registry.pageTypes(product, pageCount)) << '\n'
            << "  page naming: " << abilities.pageNamingStyle().humanReadableName() << '\n'
            << "  assistant: " << yesNo(abilities.hasAssistant())
            << ", rotate backgrounds: " << yesNo(abilities.canRotateBackgrounds())
            << ", start page: " << abilities.editorStartPage() << '\n'
            << "  elements: " << enabledJigs(abilities) << '\n';
    }
    out << products.size() << " products\n";
    return products.isEmpty() ? 1 : 0;
}
