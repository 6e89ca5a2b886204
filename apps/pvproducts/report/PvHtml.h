#pragma once

#include <QString>

//! The small HTML vocabulary of the catalogue report: escaped text, whole pages, the style sheet.
namespace PvHtml {
//! \a text with every character that HTML reads as markup written as a reference.
[[nodiscard]] QString escape(const QString& text);
//! An element holding escaped \a text, such as <td class="x">text</td>.
[[nodiscard]] QString element(const char* tag, const QString& text, const char* cssClass = nullptr);
//! A link to \a target (a relative path of safe names) showing escaped \a text.
[[nodiscard]] QString link(const QString& target, const QString& text);
//! A complete page, well-formed XML too; \a stylesheet is the relative path of the style sheet, \a body is markup.
[[nodiscard]] QString page(const QString& title, const QString& stylesheet, const QString& body);
//! The style sheet every page links.
[[nodiscard]] QString stylesheet();
//! Writes \a text as UTF-8 to \a fileName; an empty string when written, else why not.
[[nodiscard]] QString write(const QString& fileName, const QString& text);
}
