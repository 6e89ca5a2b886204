#include "PvInitializerAbstract.h"

PvInitializerAbstract::~PvInitializerAbstract() = default;
