#include "PvTextureTarget.h"

#include "PvValuePool.h"
#include "PvXMLParser.h"

PvTextureTarget::PvTextureTarget(const QDomElement& element)
    : m_name(PvValuePool::shared(PvXMLParser::attribute(element, QStringLiteral("name"))))
    , m_rect(PvXMLParser::readRectF(element))
    , m_page(PvXMLParser::intAttribute(element, QStringLiteral("page"), 0))
{
}
