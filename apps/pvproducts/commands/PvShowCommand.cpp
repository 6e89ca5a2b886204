#include "PvDescriptionJson.h"
#include "PvJsonOutput.h"
#include "PvProductFacts.h"
#include "PvProductSources.h"
#include "PvProductTypeDescription.h"
#include "PvTextTable.h"
#include "PvToolContext.h"
#include "PvToolMessages.h"
#include "PvToolOptions.h"

namespace {
// A page list is built page by page; beyond this a typo is far likelier than a real product.
constexpr int maximumPageCount = 100000;

const QCommandLineOption pagesOption(QStringLiteral("pages"), QStringLiteral("Also list the concrete pages of a project of <n> pages."), QStringLiteral("n"));

int show(PvToolContext& context)
{
    const QStringList arguments = context.arguments();
    if (arguments.size() != 1)
        return context.usage(QStringLiteral("show needs one product type"));
    int pageCount = -1;
    if (context.parser.isSet(pagesOption)) {
        bool ok = false;
        pageCount = context.parser.value(pagesOption).toInt(&ok);
        if (!ok || pageCount < 0 || pageCount > maximumPageCount)
            return context.usage(QStringLiteral("--pages needs a page count from 0 to %1").arg(maximumPageCount));
    }
    const PvProductType type(arguments.at(0));
    const PvProductFacts facts = PvProductFacts::find(type, PvProductSources(context.dataRoot));
    if (!facts.description)
        return context.unknownType(type.name());
    const PvProductTypeDescription* d = facts.description;
    QJsonObject object = facts.json();
    const bool json = context.parser.isSet(PvToolOptions::json());
    if (pageCount < 0) {
        if (json)
            PvJsonOutput::print(context.out, object);
        else
            PvJsonOutput::printObject(context.out, object, PvDescriptionJson::order());
        return PvToolContext::Success;
    }

    // The library warns about illegal pages while it builds the list: say which product.
    PvToolMessages::setSubject(QStringLiteral("product \"%1\" (%2)").arg(type.name(), object.value(QStringLiteral("file")).toString()));
    const PvPageTypeList pages = d->pageTypes(unsigned(pageCount));
    const QList<int> numbers = d->productionNumberingList(int(pages.size()));
    PvToolMessages::setSubject(QString());
    PvTextTable table({ QStringLiteral("INDEX"), QStringLiteral("PAGE TYPE"), QStringLiteral("ALIGNMENT"), QStringLiteral("NUMBER"), QStringLiteral("CONTENT") });
    QJsonArray array;
    for (int i = 0; i < pages.size(); ++i) {
        const QString pageType = PvJsonOutput::nameOf(pages.at(i));
        const QString alignment = d->pageAlignment(pages, i).encodeCSV();
        const bool content = d->contentAllowedOnPage(i);
        table.addRow({ QString::number(i), pageType, alignment, QString::number(numbers.value(i)), PvJsonOutput::yesNo(content) });
        array.append(QJsonObject { { QStringLiteral("index"), i }, { QStringLiteral("pageType"), pageType }, { QStringLiteral("alignment"), alignment },
                                   { QStringLiteral("number"), numbers.value(i) }, { QStringLiteral("content"), content } });
    }
    if (json) {
        object.insert(QStringLiteral("pages"), array);
        PvJsonOutput::print(context.out, object);
    } else {
        PvJsonOutput::printObject(context.out, object, PvDescriptionJson::order());
        context.out << "pages for " << pageCount << ":\n";
        table.print(context.out);
    }
    return PvToolContext::Success;
}
}

PvCommand pvShowCommand()
{
    return { QStringLiteral("show"), QStringLiteral("show TYPE [--pages N]"),
             QStringLiteral("Everything the description of a product type holds, retired products too, with the file it was read from."),
             { PvToolOptions::json(), pagesOption }, &show };
}
