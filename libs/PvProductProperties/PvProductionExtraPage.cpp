#include "PvProductionExtraPage.h"

#include "PvStringPool.h"
#include "PvXMLParser.h"

PvProductionExtraPage::PvProductionExtraPage() = default;

PvProductionExtraPage::PvProductionExtraPage(const QDomElement& pdf)
    : m_filename(PvStringPool::shared(PvXMLParser::attribute(pdf, QStringLiteral("filename"))))
    , m_templateType(PvStringPool::shared(PvXMLParser::attribute(pdf, QStringLiteral("type"))))
    , m_targetLayer(PvXMLParser::attribute(pdf, QStringLiteral("layer")).toInt(nullptr, 10))
{
}

PvProductionExtraPage::PvProductionExtraPage(const PvProductionExtraPage& other) = default;
PvProductionExtraPage::PvProductionExtraPage(PvProductionExtraPage&& other) noexcept = default;
PvProductionExtraPage& PvProductionExtraPage::operator=(const PvProductionExtraPage& other) = default;
PvProductionExtraPage& PvProductionExtraPage::operator=(PvProductionExtraPage&& other) noexcept = default;
PvProductionExtraPage::~PvProductionExtraPage() = default;
