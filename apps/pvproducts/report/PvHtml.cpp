#include "PvHtml.h"

#include <QSaveFile>

QString PvHtml::escape(const QString& text)
{
    // Single quotes too, so that text stays text in an attribute whichever quotes it uses.
    return text.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

QString PvHtml::element(const char* tag, const QString& text, const char* cssClass)
{
    const QString name = QLatin1String(tag);
    const QString attribute = cssClass ? QStringLiteral(" class=\"%1\"").arg(QLatin1String(cssClass)) : QString();
    return QStringLiteral("<%1%2>%3</%1>").arg(name, attribute, escape(text));
}

QString PvHtml::link(const QString& target, const QString& text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(escape(target), escape(text));
}

QString PvHtml::page(const QString& title, const QString& stylesheet, const QString& body)
{
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\" />\n"
                          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\" />\n"
                          "<title>%1</title>\n<link rel=\"stylesheet\" href=\"%2\" />\n</head>\n<body>\n%3</body>\n</html>\n")
        .arg(escape(title), escape(stylesheet), body);
}

QString PvHtml::stylesheet()
{
    return QStringLiteral(
        "body { font-family: sans-serif; margin: 2em auto; max-width: 72em; padding: 0 1em; color: #222; }\n"
        "h1 { font-size: 1.6em; } h2 { font-size: 1.2em; margin-top: 2em; border-bottom: 1px solid #ccc; }\n"
        "nav { font-size: 0.9em; }\n"
        "table { border-collapse: collapse; } th, td { text-align: left; padding: 0.2em 0.8em 0.2em 0; vertical-align: top; }\n"
        "td.error { color: #a00; font-weight: bold; } td.warning { color: #a60; }\n"
        "dl { display: grid; grid-template-columns: max-content auto; gap: 0.1em 1em; margin: 0; }\n"
        "dt { font-weight: bold; } dd { margin: 0; overflow-wrap: anywhere; }\n"
        "ol.records > li { margin-bottom: 0.5em; }\n"
        "figure { margin: 0; } img { max-width: 100%; height: auto; border: 1px solid #ddd; }\n"
        "figcaption, .missing { color: #555; font-style: italic; }\n"
        "ul.products { columns: 2 24em; } .counts { color: #555; font-size: 0.9em; }\n");
}

QString PvHtml::write(const QString& fileName, const QString& text)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString());
    file.write(text.toUtf8());
    if (!file.commit())
        return QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString());
    return {};
}
