#include "bench/BenchSupport.h"

#include <QFile>

#include <sys/resource.h>

namespace vorn::bench {

void useHome(const QString& home)
{
    qputenv("HOME", QFile::encodeName(home));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home + QStringLiteral("/data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home + QStringLiteral("/config")));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home + QStringLiteral("/cache")));
}

double processorMs()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

} // namespace vorn::bench
