#include "PvProductionExtraPageGroup.h"

#include "PvProductDiagnostics.h"
#include "PvValuePool.h"
#include "PvXMLChildElements.h"

#include <utility>

#include <QDebug>
#include <QStringList>

PvProductionExtraPageGroup::PvProductionExtraPageGroup() = default;

PvProductionExtraPageGroup::PvProductionExtraPageGroup(const QDomElement& item)
    : PvProductionExtraPageGroup(item, maxTargetPages)
{
}

PvProductionExtraPageGroup::PvProductionExtraPageGroup(const QDomElement& item, int pageBudget)
{
    const QDomElement pdf = PvXMLChildElements::first(item, QStringLiteral("pdf"));
    m_content = PvProductionExtraPage(pdf);
    const QDomElement targetPages = PvXMLChildElements::first(item, QStringLiteral("target_pages"));
    readTargetPages(targetPages, pageBudget);
    if (PvProductDiagnostics::listening() && pdf.isNull() && !item.isNull())
        PvProductDiagnostics::report(PvDiagnostic::Error, item, QStringLiteral("an extra production page item without \"pdf\" adds empty pages"));
    if (PvProductDiagnostics::listening() && targetPages.isNull() && !item.isNull())
        PvProductDiagnostics::report(PvDiagnostic::Error, item, QStringLiteral("an extra production page item without \"target_pages\" goes on no page"));
}

PvProductionExtraPageGroup::PvProductionExtraPageGroup(const PvProductionExtraPageGroup& other) = default;
PvProductionExtraPageGroup::PvProductionExtraPageGroup(PvProductionExtraPageGroup&& other) noexcept = default;
PvProductionExtraPageGroup& PvProductionExtraPageGroup::operator=(const PvProductionExtraPageGroup& other) = default;
PvProductionExtraPageGroup& PvProductionExtraPageGroup::operator=(PvProductionExtraPageGroup&& other) noexcept = default;
PvProductionExtraPageGroup::~PvProductionExtraPageGroup() = default;

void PvProductionExtraPageGroup::readTargetPages(const QDomElement& targetPages, int pageBudget)
{
    const QString text = targetPages.text().simplified();
    bool warned = false;
    for (const QStringView part : QStringView(text).tokenize(u',', Qt::SkipEmptyParts)) {
        qint64 first = 0;
        qint64 last = 0;
        if (part.contains(u'-')) {
            // "-4" is a range from 0: a piece that is not a number counts as 0.
            first = part.first(part.indexOf(u'-')).toInt(nullptr, 10);
            last = part.sliced(part.lastIndexOf(u'-') + 1).toInt(nullptr, 10);
            if (first > last)
                std::swap(first, last);
        } else {
            bool ok = false;
            first = last = part.toInt(&ok, 10);
            if (!ok) {
                if (PvDiagnostics::isListening(pvProductsLog()))
                    PvProductDiagnostics::report(PvDiagnostic::Error, targetPages, QStringLiteral("the text of \"target_pages\": %1 is not a page or a range a-b and is skipped")
                                                                 .arg(PvDiagnostics::quoted(part.trimmed().toString())));
                continue;
            }
        }
        // Product files come from outside: a range such as 1-2000000000 is a typing error,
        // not a product, and must not allocate gigabytes.
        const qint64 count = last - first + 1;
        if (count > pageBudget - m_targetPages.size()) {
            if (!warned)
                qWarning("Too many target pages, skipped: \"%s\"", qUtf8Printable(part.trimmed().toString()));
            if (PvDiagnostics::isListening(pvProductsLog()))
                PvProductDiagnostics::report(PvDiagnostic::Error, targetPages, QStringLiteral("the text of \"target_pages\": %1 is more pages than %2; it is skipped")
                                                             .arg(PvDiagnostics::quoted(part.trimmed().toString())).arg(pageBudget));
            warned = true;
            continue;
        }
        m_targetPages.reserve(m_targetPages.size() + count);
        for (qint64 page = first; page <= last; ++page)
            m_targetPages.append(int(page));
    }
    m_targetPages = PvValuePool::shared(m_targetPages);
}
