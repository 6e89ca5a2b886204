#include "PvArticleClass.h"

PvArticleClass::PvArticleClass(const QString& text)
{
    setFromText(text);
}

void PvArticleClass::fillTable(Table* table) const
{
    table->insertAll({
        { "photobook", PvArticleClassPhotobook },
        { "calendar", PvArticleClassCalendar },
        { "poster", PvArticleClassPoster },
        { "card", PvArticleClassCard },
        { "canvas", PvArticleClassCanvas },
        { "acrylic", PvArticleClassAcrylic },
        { "aluminium", PvArticleClassAluminium },
        { "foamboard", PvArticleClassFoamboard },
        { "gallery_print", PvArticleClassGalleryPrint },
        { "photo_strip", PvArticleClassPhotoStrip },
        { "fine_art", PvArticleClassFineArt },
        { "framed_photo", PvArticleClassFramedPhoto },
        { "playing_cards", PvArticleClassPlayingCards },
        { "memory_game", PvArticleClassMemoryGame },
        { "puzzle", PvArticleClassPuzzle },
        { "advent_calendar", PvArticleClassAdventCalendar },
        { "mug", PvArticleClassMug },
        { "cushion", PvArticleClassCushion },
        { "magnet", PvArticleClassMagnet },
        { "sticker", PvArticleClassSticker },
        { "notebook", PvArticleClassNotebook },
        { "wood", PvArticleClassWood },
        { "prints", PvArticleClassPrints },
    });
}
