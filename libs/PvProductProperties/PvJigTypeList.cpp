#include "PvJigTypeList.h"

PvJigTypeList PvJigTypeList::allElementTypes()
{
    return { PvJigTypeUnknown, PvJigTypeBackground, PvJigTypeClipart, PvJigTypeContent,
             PvJigTypeLayout, PvJigTypePassepartout, PvJigTypeStylesV2 };
}

PvJigTypeList PvJigTypeList::allDownloadableElementTypes()
{
    return { PvJigTypeBackground, PvJigTypeClipart, PvJigTypeContent,
             PvJigTypePassepartout, PvJigTypeStylesV2, PvJigTypeLayout };
}
