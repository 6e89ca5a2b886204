#pragma once

#include "PvDiagnostics.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QLoggingCategory>
#include <QStringList>

//! Reading product files: what the description and its records skip, default or cannot decode.
PVPRODUCTPROPERTIES_EXPORT Q_DECLARE_LOGGING_CATEGORY(pvProductsLog)
//! Reading "colors.xml" and category translation files.
PVPRODUCTPROPERTIES_EXPORT Q_DECLARE_LOGGING_CATEGORY(pvCategoriesLog)

/*!
 * The reports of the product file readers, in one place so that their texts stay alike.
 * Every function does nothing unless someone listens (PvDiagnostics::isListening).
 */
namespace PvProductDiagnostics {
//! Whether the product readers have anyone to report to; checks that cost time ask first.
[[nodiscard]] inline bool listening()
{
    return PvDiagnostics::isListening(pvProductsLog());
}

//! Reports a finding about \a element, or about its \a attribute when given.
PVPRODUCTPROPERTIES_EXPORT void report(PvDiagnostic::Severity severity, const QDomElement& element, const QString& message,
                                       const QString& attribute = QString(), const QString& suggestion = QString(),
                                       const QString& found = QString());

//! "attribute "x"" or "the text of "y"", the subject of a message about a value.
[[nodiscard]] PVPRODUCTPROPERTIES_EXPORT QString subject(const QDomElement& element, const QString& attribute);

/*!
 * Reports each comma-separated piece of \a element's \a attribute (its text when empty) that
 * is not one of \a known, with the closest known name; an empty piece too when
 * \a emptyCounts, as in page lists where it stands for an illegal page.
 */
PVPRODUCTPROPERTIES_EXPORT void checkNames(const QDomElement& element, const QString& attribute, const char* noun,
                                           const QStringList& known, bool emptyCounts = false);

//! checkNames() with the written names of an enumeration wrapper.
template <typename Wrapper>
void checkEnum(const QDomElement& element, const QString& attribute, const char* noun, bool emptyCounts = false)
{
    if (!PvDiagnostics::isListening(pvProductsLog()))
        return;
    const auto* table = Wrapper().enumToStringTable();
    // The written names first, so that a suggestion is spelt as the reference spells it.
    QStringList known(table->enumToString.cbegin(), table->enumToString.cend());
    known += table->stringToEnum.keys();
    checkNames(element, attribute, noun, known, emptyCounts);
}

//! Reports a second child \a name of \a parent, which the readers never look at.
PVPRODUCTPROPERTIES_EXPORT void checkSingle(const QDomElement& parent, const QString& name);
}
