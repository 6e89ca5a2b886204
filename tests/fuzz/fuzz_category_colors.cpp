// A "colors.xml" through the category colour code: the table it makes, every name's colour
// with and without the metallic suffix, and the keys that order categories by colour.

#include "PvFuzzSupport.h"

#include "PvThematicCategoryColorTable.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PvFuzz::initialize();
    const PvThematicCategoryColorTable table(PvFuzz::documentElement(PvFuzz::bytes(data, size)));
    QStringList keys;
    for (const QString& name : table.names()) {
        for (const QString& asked : QStringList { name, name + QStringLiteral("_metallic"), name.left(9) })
            keys.append(PvThematicCategoryColorTable::sortKey(table.color(asked)));
    }
    std::sort(keys.begin(), keys.end());
    return 0;
}
