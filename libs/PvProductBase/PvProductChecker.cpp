#include "PvProductChecker.h"

PvProductChecker::~PvProductChecker() = default;
