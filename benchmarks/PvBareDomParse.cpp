#include "PvBareDomParse.h"

#include "PvPlatformIndependent.h"
#include "PvXMLChildElements.h"
#include "PvXMLLoader.h"

#include <QDomDocument>
#include <QSet>

namespace {
// Calls \a use with each file's document element, listed, opened and parsed by the reader's
// own loader (PvXMLLoader), so that the ratio of load to parse compares like with like.
// Answers the number of files that parsed.
template <typename Use>
int forEachDocument(const QDir& dir, Use use)
{
    int parsed = 0;
    const QFileInfoList files = PvPlatformIndependent::instance().getDirectFilesInDirectoryAsFileInfos(dir, {});
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QDomElement root = PvXMLLoader::loadDocumentElement(files.at(i));
        if (!root.isNull()) {
            use(i, root);
            ++parsed;
        }
    }
    return parsed;
}

// Equal lists of names share one copy, as a reader's names are its own few literals: a copy
// per element would cost the reading cache misses that no reader has.
void collectNames(const QDomElement& element, QSet<QStringList>* known, QList<QStringList>* names)
{
    QStringList own;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i)
        own.append(attributes.item(i).toAttr().name());
    names->append(*known->insert(own));
    for (const QDomElement child : PvXMLChildElements(element))
        collectNames(child, known, names);
}

// Reads \a element and its descendants; \a next is the index of its names in \a names.
// Answers a sum of the sizes read, so that no read can be left out.
qsizetype readElement(const QDomElement& element, const QList<QStringList>& names, qsizetype* next)
{
    qsizetype read = element.tagName().size();
    const qsizetype index = (*next)++;
    if (index < names.size()) {
        for (const QString& name : names.at(index))
            read += element.attribute(name).size();
    }
    bool hasChildElements = false;
    for (const QDomElement child : PvXMLChildElements(element)) {
        hasChildElements = true;
        read += readElement(child, names, next);
    }
    return hasChildElements ? read : read + element.text().size();
}
}

int PvBareDomParse::parseDirectory(const QDir& dir)
{
    return forEachDocument(dir, [](qsizetype, const QDomElement&) {});
}

PvBareDomParse::AttributeNames PvBareDomParse::attributeNames(const QDir& dir)
{
    AttributeNames names;
    QSet<QStringList> known;
    (void)forEachDocument(dir, [&](qsizetype file, const QDomElement& root) {
        names.fileStarts.resize(file + 1, names.elements.size());
        const QDomElement product = root.firstChildElement(QStringLiteral("product"));
        if (!product.isNull())
            collectNames(product, &known, &names.elements);
    });
    return names;
}

int PvBareDomParse::readDirectory(const QDir& dir, const AttributeNames& names)
{
    qsizetype read = 0;
    const int parsed = forEachDocument(dir, [&](qsizetype file, const QDomElement& root) {
        // As the reader finds it.
        const QDomElement product = root.firstChildElement(QStringLiteral("product"));
        qsizetype next = names.fileStarts.value(file, names.elements.size());
        if (!product.isNull())
            read += readElement(product, names.elements, &next);
    });
    // Nothing read means the names did not belong to these files.
    return read > 0 ? parsed : 0;
}
