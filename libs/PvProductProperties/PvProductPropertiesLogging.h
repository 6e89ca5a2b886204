#pragma once

#include <QLoggingCategory>

// The library's own diagnostics, "pv.productproperties": bounds that a product file crossed and
// paths that were refused. The fixed warnings of product files stay in the default category.
Q_DECLARE_LOGGING_CATEGORY(lcProductProperties)
