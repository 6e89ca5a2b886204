#include "PvProductionExtraPage.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"

PvProductionExtraPage::PvProductionExtraPage() = default;

PvProductionExtraPage::PvProductionExtraPage(const QDomElement& pdf)
    : m_filename(PvValuePool::shared(PvXMLParser::attribute(pdf, QStringLiteral("filename"))))
    , m_templateType(PvValuePool::shared(PvXMLParser::attribute(pdf, QStringLiteral("type"))))
    , m_targetLayer(PvXMLParser::attribute(pdf, QStringLiteral("layer")).toInt(nullptr, 10))
{
}

PvProductionExtraPage::PvProductionExtraPage(const PvProductionExtraPage& other) = default;
PvProductionExtraPage::PvProductionExtraPage(PvProductionExtraPage&& other) noexcept = default;
PvProductionExtraPage& PvProductionExtraPage::operator=(const PvProductionExtraPage& other) = default;
PvProductionExtraPage& PvProductionExtraPage::operator=(PvProductionExtraPage&& other) noexcept = default;
PvProductionExtraPage::~PvProductionExtraPage() = default;
