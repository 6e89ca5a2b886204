#include "PvProductPropertiesLogging.h"

Q_LOGGING_CATEGORY(lcProductProperties, "pv.productproperties", QtWarningMsg)
