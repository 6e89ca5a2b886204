#pragma once

#include "PvPageType.h"
#include "pvproductproperties_export.h"

#include <QList>
#include <QString>

#include <initializer_list>

/*!
 * The page types a product consists of, in order, duplicates allowed; read from the
 * comma-separated page list of product files.
 */
class PVPRODUCTPROPERTIES_EXPORT PvPageTypeList : public QList<PvPageType>
{
public:
    //! The empty list.
    PvPageTypeList();
    /*!
     * One page type per comma-separated part. Empty and unknown parts are kept as the value
     * the page type table decodes for them, so positions in the list stay those of the text.
     */
    explicit PvPageTypeList(const QString& text);
    //! The list of \a types.
    PvPageTypeList(std::initializer_list<PvPageType> types);
    //! The list of \a types.
    PvPageTypeList(const QList<PvPageType>& types);
    //! Lists are plain values.
    //! @{
    PvPageTypeList(const PvPageTypeList& other);
    PvPageTypeList(PvPageTypeList&& other) noexcept;
    PvPageTypeList& operator=(const PvPageTypeList& other);
    PvPageTypeList& operator=(PvPageTypeList&& other) noexcept;
    virtual ~PvPageTypeList();
    //! @}

    //! Appends one page type per value of \a types.
    void appendEnum(const QList<PvPageTypeEnum>& types);
    //! Whether some element shares a flag bit with \a type; never for a type of value 0.
    [[nodiscard]] bool containsMatch(const PvPageType& type);
    //! Whether some element is exactly the panorama page type (panorama and page together).
    [[nodiscard]] bool containsPanoPageType() const;
};
