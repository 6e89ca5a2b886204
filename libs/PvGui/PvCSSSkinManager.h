#pragma once

#include "PvSingleton.h"
#include "pvgui_export.h"

#include <QColor>
#include <QMutex>

/*! The application's skin: colours the editor paints with. */
class PVGUI_EXPORT PvCSSSkinManager : public PvSingleton<PvCSSSkinManager>
{
public:
    [[nodiscard]] QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);

private:
    friend class PvSingleton<PvCSSSkinManager>;
    PvCSSSkinManager() = default;

    mutable QMutex m_mutex;
    QColor m_backgroundColor { Qt::white };
};
