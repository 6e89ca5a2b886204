#include "PvPaperAndBinding.h"

PvPaperAndBinding::PvPaperAndBinding() = default;

PvPaperAndBinding::PvPaperAndBinding(const PvPaperType& paperType, const PvPageBinding& binding)
    : m_paperType(paperType)
    , m_binding(binding)
{
}

PvPaperAndBinding::PvPaperAndBinding(const PvPaperAndBinding& other) = default;
PvPaperAndBinding::PvPaperAndBinding(PvPaperAndBinding&& other) noexcept = default;
PvPaperAndBinding& PvPaperAndBinding::operator=(const PvPaperAndBinding& other) = default;
PvPaperAndBinding& PvPaperAndBinding::operator=(PvPaperAndBinding&& other) noexcept = default;
PvPaperAndBinding::~PvPaperAndBinding() = default;

bool PvPaperAndBinding::operator==(const PvPaperAndBinding& other) const
{
    return m_paperType == other.m_paperType && m_binding == other.m_binding;
}

bool PvPaperAndBinding::isIndigoLayFlat() const
{
    constexpr quint32 digitalPapers = PvPaperTypeDigitalMatt | PvPaperTypeDigitalGlossy
        | PvPaperTypePremiumDigitalMatt | PvPaperTypePremiumDigitalGlossy;
    return m_paperType.hasAnyOf(digitalPapers) && m_binding.hasAnyOf(PvPageBindingLayflat);
}

QString PvPaperAndBinding::describe() const
{
    const QString paper = m_paperType.humanReadableName();
    const QString binding = m_binding.humanReadableName();
    if (binding.isEmpty())
        return paper;
    return QStringLiteral("%1 / %2").arg(paper, binding);
}
