#pragma once

#include "pvcore_export.h"

/*! Flags handed to every initializer's setup(); none are defined yet. */
class PVCORE_EXPORT PvInitializerOption
{
public:
    constexpr PvInitializerOption(int flags = 0) noexcept : m_flags(flags) { }
    [[nodiscard]] constexpr int flags() const noexcept { return m_flags; }
    [[nodiscard]] constexpr bool testFlag(int flag) const noexcept { return (m_flags & flag) == flag; }

private:
    int m_flags;
};
