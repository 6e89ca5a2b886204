#pragma once

/*!
 * The product files that PvCatalogueGenerator writes, one per shape, with "{key}" where a
 * value varies from file to file. Modelled on the sample catalogue.
 */
namespace PvCatalogueShapes {
extern const char* const photoBook;
extern const char* const calendar;
extern const char* const wallDecor;
extern const char* const card;
}
