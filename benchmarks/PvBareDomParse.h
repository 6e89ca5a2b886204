#pragma once

#include <QDir>

/*!
 * The floor of loading a products directory: list its files and parse each into a DOM
 * document, exactly as the registry's reader does, and nothing more.
 */
class PvBareDomParse
{
public:
    //! The number of files of \a dir that parsed.
    [[nodiscard]] static int parseDirectory(const QDir& dir);
};
