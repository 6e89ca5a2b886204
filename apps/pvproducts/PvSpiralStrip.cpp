#include "PvSpiralStrip.h"

#include "PvDirectoryConfig.h"
#include "PvProductTypeDescription.h"

#include <algorithm>

namespace {
const PvSurroundingDescription* firstWithSpiral(const PvSurroundingDescriptionList& surroundings)
{
    const auto it = std::find_if(surroundings.cbegin(), surroundings.cend(), [](const PvSurroundingDescription& s) { return s.spiralConfig().hasSpiral(); });
    return it == surroundings.cend() ? nullptr : &*it;
}
}

bool PvSpiralStrip::hasSpiral(const PvProductTypeDescription& description)
{
    return firstWithSpiral(description.surroundings()) != nullptr;
}

QImage PvSpiralStrip::render(const PvProductTypeDescription& description, Qt::Orientation orientation, QString* whyNot)
{
    const PvSurroundingDescriptionList surroundings = description.surroundings();
    const PvSurroundingDescription* withSpiral = firstWithSpiral(surroundings);
    if (!withSpiral) {
        *whyNot = QStringLiteral("product type \"%1\" has no surrounding with a spiral").arg(description.productType().name());
        return {};
    }
    const QImage strip = withSpiral->spiralConfig().spiralImage(orientation);
    if (strip.isNull()) {
        *whyNot = QStringLiteral("the spiral strip is empty; is the loop picture \"%1\" in %2?")
                      .arg(withSpiral->spiralConfig().variant(), PvDirectoryConfig::instance().thumbnailsDir().path());
    }
    return strip;
}
