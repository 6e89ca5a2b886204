#include "PvProductPropertiesTranslations.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QTranslator>

bool PvProductPropertiesTranslations::load(const QLocale& locale)
{
    static QMutex mutex;
    // Owned by the application object, so it goes with it; QPointer notices.
    static QPointer<QTranslator> installed;
    const QMutexLocker locker(&mutex);

    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(locale, fileBaseName(), QStringLiteral("_"), QStringLiteral(":/i18n"))) {
        delete translator;
        return false;
    }
    if (installed) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
    }
    installed = translator;
    return QCoreApplication::installTranslator(translator);
}

QString PvProductPropertiesTranslations::fileBaseName()
{
    return QStringLiteral("pvproductproperties");
}
