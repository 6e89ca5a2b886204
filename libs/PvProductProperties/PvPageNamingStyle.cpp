#include "PvPageNamingStyle.h"

#include "PvXMLParser.h"

PvPageNamingStyle::PvPageNamingStyle(PvPageNamingStyleEnum value) noexcept
    : PvEnumWrapper(value)
{
}

PvPageNamingStyle::PvPageNamingStyle(const QString& text)
{
    setFromText(text);
}

void PvPageNamingStyle::fillTable(Table* table) const
{
    table->insertAll({
        { "none", PvPageNamingStyleNone },
        { "book", PvPageNamingStyleBook },
        { "calendar", PvPageNamingStyleCalendar },
        { "single_sided_card", PvPageNamingStyleSingleSidedCard },
        { "both_sided_card", PvPageNamingStyleBothSidedCard },
        { "memory", PvPageNamingStyleMemory },
        { "college_block", PvPageNamingStyleCollegeBlock },
        { "sticker", PvPageNamingStyleSticker },
        { "addressbook", PvPageNamingStyleAddressbook },
        { "premium-pillow", PvPageNamingStylePremiumPillow },
        { "calendar_annual_duplex", PvPageNamingStyleCalendarAnnualDuplex },
        { "playing_cards", PvPageNamingStylePlayingCards },
        { "quartet_cards", PvPageNamingStyleQuartetCards },
        { "sheepshead_cards", PvPageNamingStyleSheepsheadCards },
        { "numbered_cards", PvPageNamingStyleNumberedCards },
        { "agenda", PvPageNamingStyleAgenda },
        { "postcard", PvPageNamingStylePostcard },
        { "art_print", PvPageNamingStyleArtPrint },
        { "adventcalendar", PvPageNamingStyleAdventcalendar },
        { "deluxeadventcalendar", PvPageNamingStyleDeluxeadventcalendar },
        { "mini_print", PvPageNamingStyleMiniPrint },
        { "picture_box", PvPageNamingStylePictureBox },
        { "magnet", PvPageNamingStyleMagnet },
        { "adventcalendar_door_backprint", PvPageNamingStyleAdventcalendarDoorBackprint },
        { "kids_book", PvPageNamingStyleKidsBook },
        { "card_with_inserted_card", PvPageNamingStyleCardWithInsertedCard },
        { "laying_game", PvPageNamingStyleLayingGame },
        { "poster_with_cutout", PvPageNamingStylePosterWithCutout },
        { "adv41", PvPageNamingStyleAdv41 },
        { "slipcase", PvPageNamingStyleSlipcase },
    });
    table->unknownString = QStringLiteral("UNKOWN");
    table->unknownValue = PvPageNamingStyleEnum(0);
}

PvPageNamingStyle PvPageNamingStyle::fromXml(const QDomElement& element)
{
    const int value = PvXMLParser::intAttribute(element, defaultAttributeName(), 0);
    return PvPageNamingStyle(static_cast<PvPageNamingStyleEnum>(static_cast<quint32>(value)));
}

void PvPageNamingStyle::toXml(QDomElement& element) const
{
    const auto value = static_cast<qint32>(toUnderlying());
    element.setAttribute(defaultAttributeName(), static_cast<qlonglong>(value));
}

QString PvPageNamingStyle::defaultAttributeName()
{
    return QStringLiteral("pagenaming");
}
