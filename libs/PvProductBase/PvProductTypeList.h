#pragma once

#include "PvProductType.h"

#include <QList>

using PvProductTypeList = QList<PvProductType>;
