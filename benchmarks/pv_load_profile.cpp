// Generates a catalogue and loads it once, for profilers (perf, callgrind): the load is all
// that runs after the files are written.
#include "PvBareDomParse.h"
#include "PvCatalogueGenerator.h"
#include "PvGeneratedCatalogue.h"
#include "PvGeneratedCatalogueRegistry.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <memory>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes COUNT generated product files into a temporary directory and loads them once."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("COUNT"), QStringLiteral("the number of product files"));
    const QCommandLineOption parseOnly(QStringLiteral("parse-only"), QStringLiteral("only parse the files into DOM documents"));
    parser.addOption(parseOnly);
    const QCommandLineOption keep(QStringLiteral("dir"), QStringLiteral("write the files into DIR and keep them"), QStringLiteral("DIR"));
    parser.addOption(keep);
    parser.process(app);

    bool ok = false;
    const int count = parser.positionalArguments().value(0).toInt(&ok);
    if (parser.positionalArguments().size() != 1 || !ok || count < 1) {
        QTextStream(stderr) << "pv_load_profile: COUNT must be a positive number\n";
        return 2;
    }
    std::unique_ptr<PvGeneratedCatalogue> temporary;
    QDir dir(parser.value(keep));
    qint64 bytes = -1;
    if (parser.isSet(keep)) {
        bytes = dir.mkpath(QStringLiteral(".")) ? PvCatalogueGenerator::write(dir.path(), count) : -1;
    } else {
        temporary = std::make_unique<PvGeneratedCatalogue>(count);
        dir = temporary->dir();
        bytes = temporary->bytes();
    }
    if (bytes < 0) {
        QTextStream(stderr) << "pv_load_profile: cannot write the catalogue\n";
        return 1;
    }

    QElapsedTimer timer;
    timer.start();
    qsizetype loaded = 0;
    qint64 milliseconds = 0;
    if (parser.isSet(parseOnly)) {
        loaded = PvBareDomParse::parseDirectory(dir);
        milliseconds = timer.elapsed();
    } else {
        const PvGeneratedCatalogueRegistry registry(dir);
        milliseconds = timer.elapsed();
        loaded = registry.allProducts().size();
    }
    QTextStream(stdout) << (parser.isSet(parseOnly) ? "parsed " : "loaded ") << loaded << " of " << count << " files (" << bytes
                        << " bytes) in " << milliseconds << " ms\n";
    return loaded == count ? 0 : 1;
}
