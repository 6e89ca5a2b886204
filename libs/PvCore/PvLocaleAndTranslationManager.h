#pragma once

#include "PvSingleton.h"
#include "pvcore_export.h"

#include <QLocale>
#include <QMutex>
#include <QString>

/*!
 * The user's language: locale, language code, whether the language was changed since the
 * last start, and category translations that came bundled in memory (one ".ts" document).
 */
class PVCORE_EXPORT PvLocaleAndTranslationManager : public PvSingleton<PvLocaleAndTranslationManager>
{
public:
    [[nodiscard]] QLocale locale() const;
    [[nodiscard]] QString languageCode() const;
    [[nodiscard]] bool languageChanged() const;
    [[nodiscard]] QString thematicTranslations() const;

    //! Sets the locale and the language code of its language.
    void setLocale(const QLocale& locale);
    void setLanguageCode(const QString& code);
    void setLanguageChanged(bool changed);
    void setThematicTranslations(const QString& tsDocument);

private:
    friend class PvSingleton<PvLocaleAndTranslationManager>;
    PvLocaleAndTranslationManager();

    mutable QMutex m_mutex;
    QLocale m_locale;
    QString m_languageCode;
    bool m_languageChanged = false;
    QString m_thematicTranslations;
};
