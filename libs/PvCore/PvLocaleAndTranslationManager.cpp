#include "PvLocaleAndTranslationManager.h"

namespace {
QString languageCodeOf(const QLocale& locale)
{
    return QLocale::languageToCode(locale.language());
}
}

PvLocaleAndTranslationManager::PvLocaleAndTranslationManager()
    : m_locale(QLocale::German, QLocale::Germany)
    , m_languageCode(languageCodeOf(m_locale))
{
}

QLocale PvLocaleAndTranslationManager::locale() const
{
    QMutexLocker locker(&m_mutex);
    return m_locale;
}

QString PvLocaleAndTranslationManager::languageCode() const
{
    QMutexLocker locker(&m_mutex);
    return m_languageCode;
}

bool PvLocaleAndTranslationManager::languageChanged() const
{
    QMutexLocker locker(&m_mutex);
    return m_languageChanged;
}

QString PvLocaleAndTranslationManager::thematicTranslations() const
{
    QMutexLocker locker(&m_mutex);
    return m_thematicTranslations;
}

void PvLocaleAndTranslationManager::setLocale(const QLocale& locale)
{
    QMutexLocker locker(&m_mutex);
    m_locale = locale;
    m_languageCode = languageCodeOf(locale);
}

void PvLocaleAndTranslationManager::setLanguageCode(const QString& code)
{
    QMutexLocker locker(&m_mutex);
    m_languageCode = code;
}

void PvLocaleAndTranslationManager::setLanguageChanged(bool changed)
{
    QMutexLocker locker(&m_mutex);
    m_languageChanged = changed;
}

void PvLocaleAndTranslationManager::setThematicTranslations(const QString& tsDocument)
{
    QMutexLocker locker(&m_mutex);
    m_thematicTranslations = tsDocument;
}
