#pragma once

#include "pvproductproperties_export.h"

#include <QColor>
#include <QDomElement>
#include <QHash>
#include <QString>
#include <QStringList>

/*!
 * The colours of thematic categories by internal name, as a "colors.xml" document gives them.
 * The category code reads the application's file once; any document can be read into a table.
 */
class PVPRODUCTPROPERTIES_EXPORT PvThematicCategoryColorTable
{
public:
    PvThematicCategoryColorTable();
    //! Reads every "color" element below \a root by its "name" and "rgb" attributes.
    explicit PvThematicCategoryColorTable(const QDomElement& root);

    //! The names with an entry, valid colour or not, in no particular order.
    [[nodiscard]] QStringList names() const { return m_colors.keys(); }
    /*!
     * The colour of \a internalName. A name without a valid entry of ten characters or more
     * falls back to the name without its last nine (the length of "_metallic", whatever they are).
     */
    [[nodiscard]] QColor color(const QString& internalName) const;
    //! Text whose ordering groups colours: weakly saturated first, then by hue, saturation and value.
    [[nodiscard]] static QString sortKey(const QColor& colour);

private:
    QHash<QString, QColor> m_colors;
};
