#include "PvFuzzSupport.h"

#include "PvDirectoryConfig.h"

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#if defined(__SANITIZE_ADDRESS__)
#define PV_FUZZ_COUNTS_HEAP 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PV_FUZZ_COUNTS_HEAP 1
#endif
#endif
#ifdef PV_FUZZ_COUNTS_HEAP
// From the sanitizer runtime; declared here because g++ does not install its header.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {
void dropMessages(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type == QtFatalMsg)
        std::abort();
}

QTemporaryDir& temporaryRoot()
{
    static QTemporaryDir root;
    return root;
}

void copySamplePictures(const QDir& thumbnails)
{
    const QDir sample(QStringLiteral(PV_SAMPLE_DATA "/thumbnails"));
    for (const QString& name : sample.entryList(QDir::Files))
        QFile::copy(sample.filePath(name), thumbnails.filePath(name));
}
}

namespace PvFuzz {

void initialize()
{
    static const bool done = [] {
        qInstallMessageHandler(dropMessages);
        if (!temporaryRoot().isValid())
            std::abort();
        const QDir root(temporaryRoot().path());
        for (const char* folder : { "products", "products-updates", "thumbnails", "translations", "resources" })
            root.mkpath(QLatin1String(folder));
        copySamplePictures(QDir(root.filePath(QStringLiteral("thumbnails"))));
        PvDirectoryConfig::instance().setDataRoot(root);
        return true;
    }();
    (void)done;
}

QDir dataRoot()
{
    return QDir(temporaryRoot().path());
}

QByteArray bytes(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

QDomElement documentElement(const QByteArray& data)
{
    QDomDocument document;
    if (!document.setContent(data))
        return {};
    return document.documentElement();
}

qint64 heapInUse()
{
#ifdef PV_FUZZ_COUNTS_HEAP
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    return 0;
#endif
}

void checkHeldMemory(qint64 before, int limitMB, const char* what)
{
    const qint64 held = heapInUse() - before;
    if (held <= qint64(limitMB) * 1024 * 1024)
        return;
    std::fprintf(stderr, "==PvFuzz== ERROR: %s holds %lld bytes, more than %d MB\n", what, static_cast<long long>(held), limitMB);
    std::abort();
}

const QList<int>& pageCounts()
{
    static const QList<int> counts { -1, 0, 1, 2, 3, 7, 24, 101, 1000 };
    return counts;
}

const QList<PvJigType>& jigTypes()
{
    static const QList<PvJigType> types = [] {
        QList<PvJigType> all { PvJigType() };
        for (int bit = 0; bit < 32; ++bit)
            all.append(PvJigType(PvJigTypeEnum(quint32(1) << bit)));
        return all;
    }();
    return types;
}

}
