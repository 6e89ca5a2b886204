#pragma once

#include "PvEnumWrapper.h"
#include "pvproductbase_export.h"

enum PvArticleClassEnum : quint64 {
    PvArticleClassPhotobook = 1ULL,
    PvArticleClassCalendar = 2ULL,
    PvArticleClassPoster = 4ULL,
    PvArticleClassCard = 8ULL,
    PvArticleClassCanvas = 16ULL,
    PvArticleClassAcrylic = 32ULL,
    PvArticleClassAluminium = 64ULL,
    PvArticleClassFoamboard = 128ULL,
    PvArticleClassGalleryPrint = 256ULL,
    PvArticleClassPhotoStrip = 512ULL,
    PvArticleClassFineArt = 1024ULL,
    PvArticleClassFramedPhoto = 2048ULL,
    PvArticleClassPlayingCards = 4096ULL,
    PvArticleClassMemoryGame = 8192ULL,
    PvArticleClassPuzzle = 16384ULL,
    PvArticleClassAdventCalendar = 32768ULL,
    PvArticleClassMug = 65536ULL,
    PvArticleClassCushion = (1ULL << 17),
    PvArticleClassMagnet = (1ULL << 18),
    PvArticleClassSticker = (1ULL << 19),
    PvArticleClassNotebook = (1ULL << 20),
    PvArticleClassWood = (1ULL << 21),
    PvArticleClassPrints = (1ULL << 44),
};

/*! The article class of a product: one bit per class, 64 bits wide. "prints" is the one class that is valid without a cover type. */
class PVPRODUCTBASE_EXPORT PvArticleClass : public PvEnumWrapper<PvArticleClassEnum>
{
public:
    PvArticleClass(PvArticleClassEnum value = PvArticleClassEnum(0)) noexcept
        : PvEnumWrapper(value)
    {
    }
    explicit PvArticleClass(const QString& text);

protected:
    void fillTable(Table* table) const override;
};
