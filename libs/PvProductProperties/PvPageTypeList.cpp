#include "PvPageTypeList.h"

#include <QStringList>

#include <algorithm>

PvPageTypeList::PvPageTypeList() = default;

PvPageTypeList::PvPageTypeList(const QString& text)
{
    const auto* table = PvPageType().enumToStringTable();
    reserve(text.count(QLatin1Char(',')) + 1);
    for (const QStringView part : QStringView(text).tokenize(u','))
        append(PvPageType(table->decodeCSV(part)));
}

PvPageTypeList::PvPageTypeList(std::initializer_list<PvPageType> types)
    : QList<PvPageType>(types)
{
}

PvPageTypeList::PvPageTypeList(const QList<PvPageType>& types)
    : QList<PvPageType>(types)
{
}

PvPageTypeList::PvPageTypeList(const PvPageTypeList& other) = default;
PvPageTypeList::PvPageTypeList(PvPageTypeList&& other) noexcept = default;
PvPageTypeList& PvPageTypeList::operator=(const PvPageTypeList& other) = default;
PvPageTypeList& PvPageTypeList::operator=(PvPageTypeList&& other) noexcept = default;
PvPageTypeList::~PvPageTypeList() = default;

void PvPageTypeList::appendEnum(const QList<PvPageTypeEnum>& types)
{
    for (const PvPageTypeEnum type : types)
        append(PvPageType(type));
}

bool PvPageTypeList::containsMatch(const PvPageType& type)
{
    // Non-const by contract: a shared list pays one copy here, its values stay unchanged.
    detach();
    return std::any_of(begin(), end(), [&type](const PvPageType& element) { return (element & type) != 0; });
}

bool PvPageTypeList::containsPanoPageType() const
{
    return std::any_of(cbegin(), cend(), [](const PvPageType& element) { return element == PvPageTypePanoramaPage; });
}
