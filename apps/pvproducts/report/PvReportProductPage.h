#pragma once

#include <QDir>
#include <QStringList>

struct PvReportProduct;

/*!
 * The page of one product in the catalogue report: its picture, its spiral strip where it has
 * one, its findings and its facts.
 */
namespace PvReportProductPage {
//! Writes the page with its pictures below \a out; answers what could not be written.
[[nodiscard]] QStringList write(const QDir& out, const PvReportProduct& product);
}
