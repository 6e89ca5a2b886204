#include "PvToolContext.h"

int PvToolContext::usage(const QString& message) const
{
    err << "pvproducts: " << message << "\nTry 'pvproducts --help'.\n";
    err.flush();
    return UsageError;
}

int PvToolContext::unknownType(const QString& name) const
{
    err << "pvproducts: unknown product type \"" << name << "\"\n";
    return Findings;
}
