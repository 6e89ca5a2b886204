#pragma once

#include "PvBlockPool.h"
#include "PvDateRangeConstraint.h"
#include "PvJigEditorAbilities.h"
#include "PvJigType.h"
#include "PvPageNamingStyle.h"
#include "PvUserPageTiltConfig.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QList>

#include <utility>
#include <QSharedData>

/*! The shared data of PvProductEditorAbilities. */
class PVPRODUCTPROPERTIES_EXPORT PvProductEditorAbilitiesImpl : public QSharedData, public PvBlockPoolAllocated
{
public:
    PvProductEditorAbilitiesImpl() = default;
    explicit PvProductEditorAbilitiesImpl(const QDomElement& element);

    //! The abilities of \a jigType, or the defaults for a type without an entry (exact value lookup).
    [[nodiscard]] PvJigEditorAbilities jigAbilities(const PvJigType& jigType) const;
    bool operator==(const PvProductEditorAbilitiesImpl& other) const;

    bool hasAssistant = false;
    bool convertable = true;
    PvPageNamingStyle pageNamingStyle;
    PvUserPageTiltConfig userPageTilt;
    int editorStartPage = 0;
    PvDateRangeConstraint dateRangeConstraint;
    bool showChangeBaseDesignButton = false;
    // Sorted by jig type, one entry each. A handful of entries: a list is one block, a map a
    // node each and a hash a table for dozens from the start.
    QList<std::pair<PvJigType, PvJigEditorAbilities>> jigs;

private:
    void readJigs(const QDomElement& jigsElement);
};
