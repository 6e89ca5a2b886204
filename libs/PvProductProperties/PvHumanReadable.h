#pragma once

#include "PvSingleton.h"
#include "pvproductproperties_export.h"

#include <QHash>
#include <QObject>
#include <QString>

/*!
 * Display texts of frame and passe-partout template names of framed wall decor, in the
 * language current when the instance was created.
 */
class PVPRODUCTPROPERTIES_EXPORT PvHumanReadable : public QObject, public PvSingleton<PvHumanReadable>
{
    Q_OBJECT
public:
    ~PvHumanReadable() override;

    //! The display text of \a name, or \a name itself when it is not a known template.
    [[nodiscard]] QString templateName(const QString& name) const;

private:
    friend class PvSingleton<PvHumanReadable>;
    PvHumanReadable();
    void initTemplateNames();

    QHash<QString, QString> m_templateNames;
};
