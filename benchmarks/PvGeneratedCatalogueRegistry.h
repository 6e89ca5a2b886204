#pragma once

#include "PvProductTypeConfigRegistryAbstract.h"

/*! A product type registry over one directory, loaded when it is made. */
class PvGeneratedCatalogueRegistry : public PvProductTypeConfigRegistryAbstract
{
public:
    explicit PvGeneratedCatalogueRegistry(const QDir& dir);
    [[nodiscard]] QList<QDir> supervisedDirs() const override;

private:
    QDir m_dir;
};
