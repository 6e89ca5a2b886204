#pragma once

#include "PvEnumWrapper.h"
#include "pvproductproperties_export.h"

#include <QDomElement>
#include <QString>

enum PvPageNamingStyleEnum : quint32 {
    PvPageNamingStyleBook = 0x1,
    PvPageNamingStyleCalendar = 0x2,
    PvPageNamingStyleSingleSidedCard = 0x4,
    PvPageNamingStyleBothSidedCard = 0x8,
    PvPageNamingStyleMemory = 0x10,
    PvPageNamingStyleCollegeBlock = 0x20,
    PvPageNamingStylePremiumPillow = 0x40,
    PvPageNamingStyleSticker = 0x100,
    PvPageNamingStyleAddressbook = 0x200,
    PvPageNamingStyleCalendarAnnualDuplex = 0x400,
    PvPageNamingStylePlayingCards = 0x800,
    PvPageNamingStyleQuartetCards = 0x2000,
    PvPageNamingStyleNumberedCards = 0x4000,
    PvPageNamingStyleAgenda = 0x8000,
    PvPageNamingStyleSheepsheadCards = 0x10000,
    PvPageNamingStylePostcard = 0x20000,
    PvPageNamingStyleArtPrint = 0x40000,
    PvPageNamingStyleAdventcalendar = 0x80000,
    PvPageNamingStyleMiniPrint = 0x100000,
    PvPageNamingStyleNone = 0x200000,
    PvPageNamingStyleDeluxeadventcalendar = 0x400000,
    PvPageNamingStylePictureBox = 0x800000,
    PvPageNamingStyleMagnet = 0x1000000,
    PvPageNamingStyleAdventcalendarDoorBackprint = 0x2000000,
    PvPageNamingStyleKidsBook = 0x4000000,
    PvPageNamingStyleCardWithInsertedCard = 0x8000000,
    PvPageNamingStyleLayingGame = 0x10000000,
    PvPageNamingStylePosterWithCutout = 0x20000000,
    PvPageNamingStyleAdv41 = 0x40000000,
    PvPageNamingStyleSlipcase = 0x80000000,
};

/*! How the editor names and counts the pages of a product for the user. */
class PVPRODUCTPROPERTIES_EXPORT PvPageNamingStyle : public PvEnumWrapper<PvPageNamingStyleEnum>
{
public:
    //! The style \a value.
    PvPageNamingStyle(PvPageNamingStyleEnum value = PvPageNamingStyleEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    //! The styles named in the comma-separated \a text.
    explicit PvPageNamingStyle(const QString& text);

    //! The style stored numerically in the attribute "pagenaming" of \a element; 0 when absent.
    [[nodiscard]] static PvPageNamingStyle fromXml(const QDomElement& element);
    //! Writes the value as a signed decimal, so "slipcase" (the sign bit) reads -2147483648.
    void toXml(QDomElement& element) const;
    //! The attribute that fromXml() and toXml() use: "pagenaming".
    [[nodiscard]] static QString defaultAttributeName();

    //! The translated display name of a single style, e.g. "Kalender"; empty for 0 and for combinations.
    [[nodiscard]] QString humanReadableName() const;

protected:
    //! Fills the table with the styles' names.
    void fillTable(Table* table) const override;
};
