#pragma once

#include <QString>

/*!
 * Routes the library's own warnings while the tool runs: each names the product file being
 * loaded (from the thread's diagnostic collector) or, after loading, the product the command
 * is working on.
 */
namespace PvToolMessages {
void install();
//! What the command is working on, such as "product \"x\" (products/x.xml)"; empty for nothing.
void setSubject(const QString& subject);
}
