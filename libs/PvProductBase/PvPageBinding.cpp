#include "PvPageBinding.h"

#include <QCoreApplication>

PvPageBinding::PvPageBinding(PvPageBindingEnum value) noexcept
    : PvEnumWrapper(value)
{
}

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
struct NameRow {
    PvPageBindingEnum value;
    const char* name;
};

constexpr NameRow names[] = {
    { PvPageBindingPerfect, QT_TRANSLATE_NOOP("PvPageBinding", "Klebebindung") },
    { PvPageBindingLayflat, QT_TRANSLATE_NOOP("PvPageBinding", "Layflat-Bindung") },
    { PvPageBindingThread, QT_TRANSLATE_NOOP("PvPageBinding", "Fadenheftung") },
    { PvPageBindingSpiral, QT_TRANSLATE_NOOP("PvPageBinding", "Spiralbindung") },
};
}

QString PvPageBinding::humanReadableName() const
{
    for (const NameRow& row : names) {
        if (row.value == m_value)
            return QCoreApplication::translate("PvPageBinding", row.name);
    }
    return {};
}
