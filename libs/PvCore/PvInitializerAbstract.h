#pragma once

#include "PvInitializerOption.h"
#include "pvcore_export.h"

/*! A library's start-up and shut-down hooks, run by PvInitializer. */
class PVCORE_EXPORT PvInitializerAbstract
{
public:
    virtual ~PvInitializerAbstract();
    virtual void setup(PvInitializerOption option) = 0;
    virtual void teardown() = 0;
};
