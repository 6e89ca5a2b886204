#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/*! What kind of value an attribute or an element's text holds in a product file. */
enum class PvValueKind {
    Ignored,
    Text,
    Bool,
    Int,
    Number,
    IntList,          // "1, 3, 7"
    PageTypes,        // comma list of page type names, decoded as one value
    PageTypeList,     // the abstract page list: every piece is one page
    Alignments,
    ArticleClass,
    CoverType,
    ImageFXs,
    ProductAlignment,
    SurroundingType,
    RewriterStrategy,
    PageNamingStyle,
    ProductRef,
};

struct PvAttributeRule {
    const char* name;
    PvValueKind kind;
    bool required = false;
};

/*! One element of the product file format, named by its path below "product". */
struct PvElementRule {
    const char* path;
    std::vector<PvAttributeRule> attributes;
    PvValueKind text = PvValueKind::Ignored;
};

/*!
 * The element and attribute names the library reads from product files, with the kind of
 * each value. Children of "jigs" are named by jig types and appear as "*jig*" in paths.
 */
class PvProductFileVocabulary
{
public:
    static const PvElementRule* rule(const QString& path);
    //! The names of the elements the library reads below \a path.
    static QStringList childNames(const QString& path);
    static QString jigPlaceholder() { return QStringLiteral("*jig*"); }
};
