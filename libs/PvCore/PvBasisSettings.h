#pragma once

#include "PvSingleton.h"
#include "pvcore_export.h"

#include <atomic>

/*! Application-wide switches: master mode and the web engine type flags. */
class PVCORE_EXPORT PvBasisSettings : public PvSingleton<PvBasisSettings>
{
public:
    [[nodiscard]] bool runsInMasterMode() const { return m_masterMode.load(); }
    void setRunsInMasterMode(bool on) { m_masterMode.store(on); }
    [[nodiscard]] int webEngineType() const { return m_webEngineType.load(); }
    void setWebEngineType(int flags) { m_webEngineType.store(flags); }

private:
    friend class PvSingleton<PvBasisSettings>;
    PvBasisSettings() = default;

    std::atomic<bool> m_masterMode { false };
    std::atomic<int> m_webEngineType { 0 };
};
