#pragma once

#include <QDir>
#include <QList>
#include <QStringList>

/*!
 * The floor of loading a products directory: list its files and parse each into a DOM
 * document, exactly as the registry's reader does, and nothing more.
 *
 * And the floor of reading what was parsed: whatever a reader builds, it has to visit each
 * element of the product once and read its tag, its attributes and, where it has no child
 * elements, its text. readDirectory() does that and nothing more, so that the load can be
 * set against the least work the DOM interface allows.
 */
class PvBareDomParse
{
public:
    //! The number of files of \a dir that parsed.
    [[nodiscard]] static int parseDirectory(const QDir& dir);

    //! For each file of a directory, in the order listed, the attribute names of each element
    //! of its product, in document order. One list for all files: a list per file, kept while
    //! the files are parsed, would scatter the heap that every later parse works in.
    struct AttributeNames
    {
        QList<QStringList> elements; //!< the names of each element, file after file
        QList<qsizetype> fileStarts; //!< the index in elements of each file's first element
    };
    //! What readDirectory() asks for in \a dir. Readers know the names they ask for, so this
    //! is not part of the floor: listing an element's attributes through the DOM costs more
    //! than looking each up.
    [[nodiscard]] static AttributeNames attributeNames(const QDir& dir);
    //! Parses the files of \a dir as parseDirectory() does and reads each product the least
    //! way a reader can. Answers the number of files read.
    [[nodiscard]] static int readDirectory(const QDir& dir, const AttributeNames& names);
};
