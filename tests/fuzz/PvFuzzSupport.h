#pragma once

#include "PvJigType.h"

#include <QByteArray>
#include <QDir>
#include <QDomElement>
#include <QList>

#include <cstddef>
#include <cstdint>

// What every harness shares: a quiet process with its own data root, and the input as XML.
namespace PvFuzz {

/*!
 * Once per process: drops the library's warnings (bad input warns by design and would only
 * slow the runs down) and points the directory configuration at a fresh temporary data root
 * with empty "products", "products-updates" and "translations" folders and the sample
 * catalogue's loop pictures in "thumbnails".
 */
void initialize();
[[nodiscard]] QDir dataRoot();

[[nodiscard]] QByteArray bytes(const uint8_t* data, size_t size);
//! The document element of \a data, as the library's loader reads a file; null when not XML.
[[nodiscard]] QDomElement documentElement(const QByteArray& data);

//! Page counts that the harnesses ask about: real ones and the bounds of what callers pass.
[[nodiscard]] const QList<int>& pageCounts();
/*!
 * Ends the process (a finding) when the heap holds more than \a limitMB megabytes beyond
 * \a before, a heapInUse() taken earlier. Only sanitizer builds count the heap; elsewhere
 * this checks nothing.
 */
void checkHeldMemory(qint64 before, int limitMB, const char* what);
[[nodiscard]] qint64 heapInUse();

//! No jig type, then every single bit.
[[nodiscard]] const QList<PvJigType>& jigTypes();

}
