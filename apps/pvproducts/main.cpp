#include "PvPlatformIndependent.h"
#include "PvProductTypeDescription.h"
#include "PvXMLLoader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

// Until the catalogue commands land: list the product types of the files of one directory.
int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pvproducts"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Lists the product types of a products directory."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("dir"), QStringLiteral("The products directory."));
    parser.process(app);
    if (parser.positionalArguments().size() != 1) {
        QTextStream(stderr) << "pvproducts: expected one products directory\n";
        return 2;
    }

    QTextStream out(stdout);
    const QDir dir(parser.positionalArguments().constFirst());
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {});
    for (const QFileInfo& file : files) {
        const QDomElement root = PvXMLLoader::loadDocumentElement(file);
        if (root.isNull()) {
            out << file.fileName() << ": could not open\n";
            continue;
        }
        const PvProductTypeDescription description(root.firstChildElement(QStringLiteral("product")));
        out << description.productType().name() << '\t' << description.articleClass().encodeCSV() << '\t'
            << description.coverType().encodeCSV() << '\t' << (description.isValid() ? "valid" : "invalid") << '\n';
    }
    return 0;
}
