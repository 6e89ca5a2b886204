#pragma once

#include "PvJigType.h"
#include "pvproductproperties_export.h"

#include <QList>

/*! An ordered list of jig types, with the fixed lists the editor and the downloads offer. */
class PVPRODUCTPROPERTIES_EXPORT PvJigTypeList : public QList<PvJigType>
{
public:
    using QList<PvJigType>::QList;

    //! Every kind the editor lists, led by the unknown type.
    [[nodiscard]] static PvJigTypeList allElementTypes();
    //! The kinds whose content comes as download packages; layouts come last.
    [[nodiscard]] static PvJigTypeList allDownloadableElementTypes();
};
