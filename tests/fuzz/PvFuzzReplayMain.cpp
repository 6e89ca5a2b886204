// Stands in for libFuzzer where there is none: runs every file given, and every file below
// every directory given, once through the harness. Flags in libFuzzer's "-name=value" form
// are accepted so that one command line serves both builds; only -timeout (seconds per
// input) is enforced here, memory limits come from the sanitizer's options.

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {
// An ASan debug build is several times slower than the fuzz build, and CI machines are shared.
constexpr int defaultTimeoutSeconds = 25;

bool collect(const QString& path, QStringList* files)
{
    const QFileInfo info(path);
    if (info.isFile()) {
        files->append(path);
        return true;
    }
    if (!info.isDir())
        return false;
    QStringList found;
    QDirIterator it(path, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        found.append(it.next());
    std::sort(found.begin(), found.end());
    files->append(found);
    return true;
}
}

int main(int argc, char** argv)
{
    int timeoutSeconds = defaultTimeoutSeconds;
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (argument.startsWith(QLatin1String("-timeout=")))
            timeoutSeconds = argument.mid(9).toInt();
        else if (argument.startsWith(u'-'))
            continue;
        else if (!collect(argument, &files)) {
            std::fprintf(stderr, "no such input: %s\n", argv[i]);
            return 2;
        }
    }

    int slow = 0;
    for (const QString& path : files) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read: %s\n", qPrintable(path));
            return 2;
        }
        const QByteArray data = file.readAll();
        std::fprintf(stderr, "Running: %s\n", qPrintable(path));
        QElapsedTimer timer;
        timer.start();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(data.constData()), size_t(data.size()));
        const qint64 elapsed = timer.elapsed();
        if (elapsed > qint64(timeoutSeconds) * 1000) {
            std::fprintf(stderr, "TIMEOUT: %s took %lld ms (limit %d s)\n", qPrintable(path), elapsed, timeoutSeconds);
            ++slow;
        }
    }
    std::fprintf(stderr, "Replayed %lld inputs, %d too slow\n", static_cast<long long>(files.size()), slow);
    return slow == 0 ? 0 : 1;
}
