// Spiral and calendar hole configuration into their pictures: every "spirals" and "hole"
// element of the input (a bare element or a whole product file), drawn as loop, strip and hook,
// in each of the colours the file names.

#include "PvFuzzSupport.h"

#include "PvCalendarHoleConfig.h"
#include "PvSpiralConfig.h"

#include <QDomNodeList>

namespace {
// Enough to compare configurations with each other; a file may hold many more.
constexpr int maxElements = 4;

void draw(const PvSpiralConfig& spiral)
{
    (void)spiral.spiralSize(Qt::Horizontal), (void)spiral.spiralSize(Qt::Vertical);
    (void)spiral.bindingLoopImage();
    (void)spiral.spiralImage(Qt::Horizontal), (void)spiral.spiralImage(Qt::Vertical);
    (void)spiral.spiralBindingLoopHorizontal(spiral.spiralCount() / 2);
    (void)spiral.spiralHookImage();
}

void drawSpirals(const QDomElement& root)
{
    const QDomNodeList elements = root.elementsByTagName(QStringLiteral("spirals"));
    QList<PvSpiralConfig> spirals { PvSpiralConfig(root.tagName() == QLatin1String("spirals") ? root : QDomElement()) };
    for (int i = 0; i < elements.size() && i < maxElements; ++i)
        spirals.append(PvSpiralConfig(elements.at(i).toElement()));
    for (PvSpiralConfig& spiral : spirals) {
        draw(spiral);
        const QDomNodeList colours = root.elementsByTagName(QStringLiteral("loopImage"));
        for (int i = 0; i < colours.size() && i < maxElements; ++i) {
            PvSpiralConfig coloured = spiral;
            coloured.setSpiralColor(colours.at(i).toElement().attribute(QStringLiteral("variant")));
            draw(coloured);
        }
        for (const PvSpiralConfig& other : spirals)
            (void)(spiral == other), (void)(spiral < other);
    }
}

void compareHoles(const QDomElement& root)
{
    const QDomNodeList elements = root.elementsByTagName(QStringLiteral("hole"));
    QList<PvCalendarHoleConfig> holes { PvCalendarHoleConfig(root.tagName() == QLatin1String("hole") ? root : QDomElement()) };
    for (int i = 0; i < elements.size() && i < maxElements; ++i)
        holes.append(PvCalendarHoleConfig(elements.at(i).toElement()));
    for (const PvCalendarHoleConfig& hole : holes) {
        (void)hole.hasHole();
        for (const PvCalendarHoleConfig& other : holes)
            (void)(hole == other), (void)(hole < other);
    }
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PvFuzz::initialize();
    const QDomElement root = PvFuzz::documentElement(PvFuzz::bytes(data, size));
    drawSpirals(root);
    compareHoles(root);
    return 0;
}
