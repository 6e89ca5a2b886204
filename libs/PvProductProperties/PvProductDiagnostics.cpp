#include "PvProductDiagnostics.h"

Q_LOGGING_CATEGORY(pvProductsLog, "pv.productproperties.products", QtWarningMsg)
Q_LOGGING_CATEGORY(pvCategoriesLog, "pv.productproperties.categories", QtWarningMsg)

using PvDiagnostics::quoted;

void PvProductDiagnostics::report(PvDiagnostic::Severity severity, const QDomElement& element, const QString& message,
                                  const QString& attribute, const QString& suggestion, const QString& found)
{
    if (PvDiagnostics::isListening(pvProductsLog()))
        PvDiagnostics::report(pvProductsLog(), severity, element, message, attribute, suggestion, found);
}

QString PvProductDiagnostics::subject(const QDomElement& element, const QString& attribute)
{
    return attribute.isEmpty() ? QStringLiteral("the text of ") + quoted(element.tagName()) : QStringLiteral("attribute ") + quoted(attribute);
}

void PvProductDiagnostics::checkNames(const QDomElement& element, const QString& attribute, const char* noun, const QStringList& known,
                                      bool emptyCounts)
{
    if (!PvDiagnostics::isListening(pvProductsLog()) || element.isNull() || (!attribute.isEmpty() && !element.hasAttribute(attribute)))
        return;
    const QString text = attribute.isEmpty() ? element.text() : element.attribute(attribute);
    const QStringList pieces = text.split(QLatin1Char(','));
    bool emptyReported = false;
    for (const QString& piece : pieces) {
        const QString name = piece.trimmed();
        if (name.isEmpty()) {
            if (emptyCounts && !emptyReported && !text.trimmed().isEmpty())
                report(PvDiagnostic::Error, element, subject(element, attribute) + QStringLiteral(": an empty entry stands for an illegal page"), attribute);
            emptyReported = emptyReported || emptyCounts;
            continue;
        }
        if (known.contains(name, Qt::CaseInsensitive))
            continue;
        const QString suggestion = PvDiagnostics::closest(name, known);
        report(PvDiagnostic::Error, element,
               QStringLiteral("%1: unknown %2 %3 counts as nothing").arg(subject(element, attribute), QLatin1String(noun), quoted(name)), attribute,
               suggestion, name);
    }
}

void PvProductDiagnostics::checkSingle(const QDomElement& parent, const QString& name)
{
    if (!PvDiagnostics::isListening(pvProductsLog()))
        return;
    const QDomElement second = parent.firstChildElement(name).nextSiblingElement(name);
    if (!second.isNull())
        report(PvDiagnostic::Error, second, QStringLiteral("a second %1 element is ignored; only the first is read").arg(quoted(name)));
}
