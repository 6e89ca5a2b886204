#include "PvPageBinding.h"

PvPageBinding::PvPageBinding(const QString& text)
{
    setFromText(text);
}

void PvPageBinding::fillTable(Table* table) const
{
    table->insertAll({
        { "perfect", PvPageBindingPerfect },
        { "layflat", PvPageBindingLayflat },
        { "thread", PvPageBindingThread },
        { "spiral", PvPageBindingSpiral },
    });
}

namespace {
constexpr std::pair<PvPageBindingEnum, const char*> names[] = {
    { PvPageBindingPerfect, QT_TRANSLATE_NOOP("PvPageBinding", "Klebebindung") },
    { PvPageBindingLayflat, QT_TRANSLATE_NOOP("PvPageBinding", "Layflat-Bindung") },
    { PvPageBindingThread, QT_TRANSLATE_NOOP("PvPageBinding", "Fadenheftung") },
    { PvPageBindingSpiral, QT_TRANSLATE_NOOP("PvPageBinding", "Spiralbindung") },
};
}

QString PvPageBinding::humanReadableName() const
{
    return pvTranslatedText("PvPageBinding", names, m_value);
}
