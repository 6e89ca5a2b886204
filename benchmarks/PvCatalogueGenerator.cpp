#include "PvCatalogueGenerator.h"

#include "PvCatalogueShapes.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QStringList>

#include <array>
#include <initializer_list>
#include <utility>

namespace {
using Values = std::initializer_list<std::pair<const char*, QString>>;

// Replaces each "{key}" of the text by its value.
QString fill(QString text, Values values)
{
    for (const auto& [key, value] : values)
        text.replace(u'{' + QLatin1String(key) + u'}', value);
    return text;
}

QString number(qint64 value)
{
    return QString::number(value);
}

// German source names as content data uses them, so that lookups meet real translations.
const std::array<const char*, 24> categoryNames = { "Hochzeit", "Urlaub",  "Familie",     "Natur",     "Einfarbig",   "Baby",
                                                    "Geburtstag", "Reisen", "Liebe",       "Frühling",  "Sommer",      "Herbst",
                                                    "Winter",   "Weihnachten", "Jahreszeiten", "Feiertage", "Kalendarium", "Ostern",
                                                    "Kinder",   "Collage", "Muster",      "Elegant",   "Klassisch",   "Fenster" };

// A comma list of \a count category names, starting at a place that varies with \a seed.
QString categories(int seed, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString::fromUtf8(categoryNames[std::size_t(seed + i * 5) % categoryNames.size()]));
    return names.join(u',');
}

struct Format
{
    const char* name;
    int width;
    int height;
};

const std::array<Format, 5> bookFormats = { { { "a4", 2100, 2970 }, { "quadratic", 2100, 2100 }, { "xl", 3000, 3000 },
                                              { "a5-landscape", 1900, 1500 }, { "a4-landscape", 2970, 2100 } } };
const std::array<const char*, 5> bookBindings = { "hardcover", "softcover", "layflat", "linen", "leather" };

// Page lists with the page type their inner pages expand to.
struct PageList
{
    const char* pages;
    const char* left;
    const char* right;
};
const std::array<PageList, 3> bookPageLists = { { { "cover_back,spine,cover_front,run", "page", "page" },
                                                  { "cover_back,spine,cover_front,flyleaf,run_left_right,flyleaf", "page_left", "page_right" },
                                                  { "jacket,cover_back,spine,cover_front,run_pairs", "page_left", "page_right" } } };

struct WallDecor
{
    const char* articleClass;
    const char* group;
    const char* edge;
};
const std::array<WallDecor, 4> wallDecors = { { { "poster", "Premium Poster (matt)", "poster-paper-edge" },
                                                { "canvas", "Leinwand", "canvas-wrapped-edge" },
                                                { "acrylic", "Poster hinter Acryl-Glas", "acrylic-edge-reflection" },
                                                { "aluminium", "Foto auf Alu-Dibond", "aluminium-brushed-edge" } } };

// The serial part of a product name, so that every index gives another product type.
QString serial(int index)
{
    return QStringLiteral("%1").arg(index, 5, 10, QLatin1Char('0'));
}

QString photoBookFile(int index, int variation)
{
    const Format& format = bookFormats[std::size_t(variation) % bookFormats.size()];
    const QString binding = QLatin1String(bookBindings[std::size_t(variation / 2) % bookBindings.size()]);
    const PageList& pages = bookPageLists[std::size_t(variation) % bookPageLists.size()];
    const int lastPage = 26 + 2 * (variation % 40);
    return fill(QString::fromUtf8(PvCatalogueShapes::photoBook),
                { { "name", PvCatalogueGenerator::productName(index) },
                  { "index", number(index) },
                  { "binding", binding },
                  { "format", QLatin1String(format.name) },
                  { "width", number(format.width) },
                  { "height", number(format.height) },
                  { "logo", QLatin1String(variation % 3 ? "true" : "false") },
                  { "fold", number(20 + variation % 30) },
                  { "pages", QLatin1String(pages.pages) },
                  { "left", QLatin1String(pages.left) },
                  { "right", QLatin1String(pages.right) },
                  { "margin", number(60 + variation % 40) },
                  { "lastFrom", number(lastPage + 1) },
                  { "lastTo", number(lastPage + 10) },
                  { "lastPage", number(lastPage) },
                  { "spine", number(40 + variation % 60) },
                  { "tile", number(100 + variation % 50) },
                  { "loops", number(format.height / 84) },
                  { "layout", QLatin1String(variation % 2 ? "large" : "full") },
                  { "background", number(201 + variation % 7) },
                  { "coverCategories", categories(variation, 5) },
                  { "pageCategories", categories(variation + 1, 7) },
                  { "clipartCategories", categories(variation + 2, 4) },
                  { "maskCategories", categories(variation + 3, 3) },
                  { "styleCategories", categories(variation + 4, 4) },
                  { "code", binding.left(2).toUpper() + u'-' + QString::fromLatin1(format.name).toUpper() + u'-' + serial(index) },
                  { "barcodeX", number(format.width - 300) },
                  { "barcodeY", number(format.height - 110) } });
}

QString calendarFile(int index, int variation)
{
    const int width = 2970 - 30 * (variation % 10);
    return fill(QString::fromUtf8(PvCatalogueShapes::calendar), { { "name", PvCatalogueGenerator::productName(index) },
                                               { "index", number(index) },
                                               { "width", number(width) },
                                               { "height", number(width * 1414 / 1000) },
                                               { "holeY", number(60 + variation % 40) },
                                               { "loops", number(width / 84) },
                                               { "layout", QLatin1String(variation % 2 ? "large" : "full") },
                                               { "background", number(201 + variation % 7) },
                                               { "years", number(1 + variation % 3) },
                                               { "coverCategories", categories(variation, 4) },
                                               { "code", QStringLiteral("WA-%1").arg(serial(index)) } });
}

QString wallDecorFile(int index, int variation)
{
    const WallDecor& decor = wallDecors[std::size_t(variation) % wallDecors.size()];
    const int widthCm = 20 + 10 * (variation % 10);
    const int heightCm = widthCm * 2 / 3;
    return fill(QString::fromUtf8(PvCatalogueShapes::wallDecor), { { "name", PvCatalogueGenerator::productName(index) },
                                                { "index", number(index) },
                                                { "class", QLatin1String(decor.articleClass) },
                                                { "group", QLatin1String(decor.group) },
                                                { "edge", QLatin1String(decor.edge) },
                                                { "cm", QStringLiteral("%1x%2").arg(widthCm).arg(heightCm) },
                                                { "inch", QStringLiteral("%1x%2").arg(widthCm * 10 / 25).arg(heightCm * 10 / 25) },
                                                { "width", number(widthCm * 100) },
                                                { "height", number(heightCm * 100) },
                                                { "frame", number(150 + variation % 50) },
                                                { "layout", number(2 + variation % 4) },
                                                { "background", number(201 + variation % 7) },
                                                { "pageCategories", categories(variation, 5) },
                                                { "clipartCategories", categories(variation + 2, 3) },
                                                { "barcodeX", number(widthCm * 100 - 400) },
                                                { "barcodeY", number(heightCm * 100 - 150) },
                                                { "code", QStringLiteral("WD-%1").arg(serial(index)) } });
}

QString cardFile(int index, int variation)
{
    const bool a6 = variation % 2 == 0;
    const int width = a6 ? 1050 : 1480;
    const int height = a6 ? 1480 : 2100;
    return fill(QString::fromUtf8(PvCatalogueShapes::card), { { "name", PvCatalogueGenerator::productName(index) },
                                           { "index", number(index) },
                                           { "size", QLatin1String(a6 ? "a6" : "a5") },
                                           { "layout", QLatin1String(variation % 3 ? "short" : "long") },
                                           { "fold", number(20 + variation % 20) },
                                           { "width", number(width) },
                                           { "height", number(height) },
                                           { "background", number(201 + variation % 7) },
                                           { "coverCategories", categories(variation, 5) },
                                           { "clipartCategories", categories(variation + 3, 3) },
                                           { "code", QStringLiteral("KL-%1").arg(serial(index)) },
                                           { "barcodeX", number(width - 350) },
                                           { "barcodeY", number(height - 120) } });
}
}

PvCatalogueGenerator::Shape PvCatalogueGenerator::shape(int index)
{
    return Shape(index % ShapeCount);
}

QString PvCatalogueGenerator::productName(int index)
{
    static const std::array<const char*, ShapeCount> prefixes = { "photobook", "calendar-wall", "wall-decor", "card-folded" };
    return QLatin1String(prefixes[std::size_t(shape(index))]) + u'-' + serial(index);
}

QString PvCatalogueGenerator::fileName(int index)
{
    return serial(index) + u'-' + productName(index) + QLatin1String(".xml");
}

QByteArray PvCatalogueGenerator::productFile(int index)
{
    // The variation counts the files of one shape, so that neighbours of a shape differ.
    const int variation = index / ShapeCount;
    switch (shape(index)) {
    case Shape::PhotoBook:
        return photoBookFile(index, variation).toUtf8();
    case Shape::Calendar:
        return calendarFile(index, variation).toUtf8();
    case Shape::WallDecor:
        return wallDecorFile(index, variation).toUtf8();
    case Shape::Card:
        return cardFile(index, variation).toUtf8();
    }
    return {};
}

qint64 PvCatalogueGenerator::write(const QString& dir, int count)
{
    qint64 total = 0;
    for (int index = 0; index < count; ++index) {
        QFile file(QDir(dir).filePath(fileName(index)));
        const QByteArray content = productFile(index);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size()) {
            qWarning() << "could not write" << file.fileName() << file.errorString();
            return -1;
        }
        total += content.size();
    }
    return total;
}
