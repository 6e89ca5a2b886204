#pragma once

#include "pvproductproperties_export.h"

#include <QLocale>

/*!
 * The translations of the library's display texts (jig types, page naming styles, photo book
 * shapes, classification groups, frame names, ...), which are German in the source. They are
 * built into the library, so one line after creating the application object is enough:
 *
 * \code
 * PvProductPropertiesTranslations::load(QLocale::system());
 * \endcode
 *
 * The same files are installed beside the library (PvProductProperties_TRANSLATIONS_DIR of
 * the CMake package) for applications that load translations themselves.
 */
class PVPRODUCTPROPERTIES_EXPORT PvProductPropertiesTranslations
{
public:
    /*!
     * Installs the translation for \a locale into the application in place of one installed
     * by an earlier call, and answers whether there is one. German needs none but has an
     * identity translation, so switching back to German works too. Call it from the thread of
     * the application object, after creating that object.
     */
    static bool load(const QLocale& locale);

    //! The name of the translation files: "pvproductproperties", as in "pvproductproperties_en.qm".
    [[nodiscard]] static QString fileBaseName();
};
