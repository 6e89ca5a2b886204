#include "PvPageNamingStyle.h"

#include "PvXMLParser.h"

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

namespace {
constexpr std::pair<PvPageNamingStyleEnum, const char*> displayNames[] = {
    { PvPageNamingStyleBook, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Buch") },
    { PvPageNamingStyleCalendar, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Kalender") },
    { PvPageNamingStyleSingleSidedCard, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Einseitige Karte") },
    { PvPageNamingStyleBothSidedCard, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Beidseitige Karte") },
    { PvPageNamingStyleMemory, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Paarspiel") },
    { PvPageNamingStyleCollegeBlock, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Collegeblock") },
    { PvPageNamingStylePremiumPillow, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Premium-Kissen") },
    { PvPageNamingStyleSticker, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Sticker") },
    { PvPageNamingStyleAddressbook, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Adressbuch") },
    { PvPageNamingStyleCalendarAnnualDuplex, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Jahreskalender beidseitig") },
    { PvPageNamingStylePlayingCards, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Spielkarten") },
    { PvPageNamingStyleQuartetCards, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Quartett") },
    { PvPageNamingStyleNumberedCards, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Nummerierte Karten") },
    { PvPageNamingStyleAgenda, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Terminplaner") },
    { PvPageNamingStyleSheepsheadCards, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Schafkopfkarten") },
    { PvPageNamingStylePostcard, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Postkarte") },
    { PvPageNamingStyleArtPrint, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Kunstdruck") },
    { PvPageNamingStyleAdventcalendar, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Adventskalender") },
    { PvPageNamingStyleMiniPrint, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Mini-Abzüge") },
    { PvPageNamingStyleNone, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Ohne Seitennamen") },
    { PvPageNamingStyleDeluxeadventcalendar, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Deluxe-Adventskalender") },
    { PvPageNamingStylePictureBox, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Bilderbox") },
    { PvPageNamingStyleMagnet, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Magnet") },
    { PvPageNamingStyleAdventcalendarDoorBackprint, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Adventskalender mit Türchenrückseiten") },
    { PvPageNamingStyleKidsBook, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Kinderbuch") },
    { PvPageNamingStyleCardWithInsertedCard, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Karte mit Einlegekarte") },
    { PvPageNamingStyleLayingGame, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Legespiel") },
    { PvPageNamingStylePosterWithCutout, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Poster mit Ausschnitt") },
    { PvPageNamingStyleAdv41, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Adventskalender 4+1") },
    { PvPageNamingStyleSlipcase, QT_TRANSLATE_NOOP("PvPageNamingStyle", "Schuber") },
};
}

QString PvPageNamingStyle::humanReadableName() const
{
    return pvTranslatedText("PvPageNamingStyle", displayNames, m_value);
}
