#pragma once

#include "PvLookUpTable.h"
#include "pvproductproperties_export.h"

#include <QSet>
#include <QString>

/*! The material family of a wall decor product, such as "Poster" or "Foto auf Alu-Dibond". */
class PVPRODUCTPROPERTIES_EXPORT PvProductClassificationGroup
{
public:
    PvProductClassificationGroup();
    //! The group named \a value, as written in product files.
    explicit PvProductClassificationGroup(const QString& value);
    //! Groups are plain values.
    //! @{
    PvProductClassificationGroup(const PvProductClassificationGroup& other);
    PvProductClassificationGroup(PvProductClassificationGroup&& other) noexcept;
    PvProductClassificationGroup& operator=(const PvProductClassificationGroup& other);
    PvProductClassificationGroup& operator=(PvProductClassificationGroup&& other) noexcept;
    virtual ~PvProductClassificationGroup();
    //! @}

    //! The group's name as written in product files.
    [[nodiscard]] QString value() const { return m_value; }
    //! The translated display text of the group; empty for a group the application does not know.
    [[nodiscard]] QString visibleDescription() const;
    //! Whether products of group \a name (of this group when \a name is empty) may be ordered in a custom format.
    [[nodiscard]] bool canCustomFormat(const QString& name = QString()) const;

    //! The groups whose products may be ordered in a custom format.
    [[nodiscard]] static const QSet<QString>& customFormatProductWhiteList();
    //! Fills \a table with the untranslated display text of each known group.
    static void initDescriptions(PvLookUpTable<QString, QString>* table);

    //! The same name.
    friend bool operator==(const PvProductClassificationGroup& a, const PvProductClassificationGroup& b) { return a.m_value == b.m_value; }
    //! Different names.
    friend bool operator!=(const PvProductClassificationGroup& a, const PvProductClassificationGroup& b) { return a.m_value != b.m_value; }

private:
    QString m_value;
};
