// Figures for the store at the size of a long-used database: 20,000 documents
// with 100,000 items. Prints
//   (a) the time from process start until the document list is loaded and
//       sorted, measured in a child process started for each run,
//   (b) the time of a save after editing one document,
//   (c) the resident memory after loading.
// The generated store is kept between runs (see cacheDirectory()).

#include "app/AppDelegate.h"
#include "bench/BenchSupport.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/SqliteStore.h"
#include "store/UserInterface.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>
#include <ctime>

#include <sys/resource.h>
#include <vector>

namespace vorn::bench {
namespace {

constexpr int documentCount = 20000;
constexpr int itemCount = 100000;
constexpr int generationVersion = 2;

qint64 monotonicNs()
{
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

qint64 residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    return -1;
}

QString cacheDirectory()
{
    const QString configured = qEnvironmentVariable("VORN_BENCH_CACHE");
    return configured.isEmpty() ? QDir::tempPath() + QStringLiteral("/vorn-store-bench") : configured;
}

// A home folder laid out as the application expects it.
const char* const itemTitles[] = {
    "Web design",  "Consulting",   "Logo draft",   "Hosting (monthly)", "Copy editing",
    "Photography", "Travel costs", "Workshop day", "Server migration",  "Support (per hour)"};
const char* const units[] = {"h", "pcs", "day", "month", ""};
const char* const cities[] = {"Berlin", "Hamburg", "Munich", "Vienna", "Zurich", "Cologne", "Leipzig"};

void generate(const QString& storePath)
{
    QRandomGenerator random(20000);
    const FixedClock clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc()));
    const QDateTime first(QDate(2020, 1, 1), QTime(8, 0), QTimeZone::utc());
    int itemsLeft = itemCount;
    QElapsedTimer timer;
    timer.start();
    constexpr int batch = 1000;
    for (int start = 0; start < documentCount; start += batch) {
        auto store = SqliteStore::open(storePath, ObjectModel::vorn());
        if (!store) {
            std::fprintf(stderr, "cannot create %s: %s\n", qPrintable(storePath),
                         qPrintable(store.error().fullText()));
            std::exit(1);
        }
        ObjectContext ctx(std::move(store.value()), clock);
        ctx.undoManager()->setEnabled(false);
        for (int d = start; d < start + batch; ++d) {
            const bool invoice = random.bounded(5) != 0;
            ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
            const QDateTime date = first.addSecs(qint64(d) * 8000 + random.bounded(3600));
            // States as the list totals leave them after earlier launches:
            // every due date lies in the past, so a sent invoice is overdue.
            static const int invoiceStates[] = {0, 2, 2, 3, 3, 3, 3, 3, 3, 4};
            const int status = invoice ? invoiceStates[random.bounded(10)] : int(random.bounded(2));
            doc->setValue(QStringLiteral("kind"), invoice ? 1 : 0);
            doc->setValue(QStringLiteral("status"), status);
            doc->setValue(
                QStringLiteral("number"),
                QStringLiteral("%1-%2-%3").arg(invoice ? "INV" : "QT").arg(date.date().year()).arg(1000 + d));
            doc->setValue(QStringLiteral("title"),
                          invoice ? QStringLiteral("Invoice") : QStringLiteral("Quote"));
            doc->setValue(QStringLiteral("subject"), QStringLiteral("Project %1").arg(d % 700));
            doc->setValue(QStringLiteral("address"),
                          QStringLiteral("Client %1 GmbH\nAttn. Accounts\nMain Street %2\n%3 %4")
                              .arg(d % 900)
                              .arg(1 + d % 120)
                              .arg(10000 + d % 89999)
                              .arg(QLatin1String(cities[d % std::size(cities)])));
            doc->setValue(QStringLiteral("emailAddress"),
                          QStringLiteral("accounts%1@example.com").arg(d % 900));
            doc->setValue(QStringLiteral("clientNumber"), QStringLiteral("C-%1").arg(1000 + d % 900));
            doc->setValue(QStringLiteral("dispatchNumber"), QString(""));
            doc->setValue(QStringLiteral("notes"),
                          d % 7 == 0 ? QStringLiteral("Call before sending.") : QString(""));
            doc->setValue(
                QStringLiteral("conditions"),
                QStringLiteral("Payment is due by the due date shown above. Please include the invoice "
                               "number with your payment."));
            doc->setValue(QStringLiteral("footer"), QStringLiteral("Thank you for your business!"));
            doc->setValue(QStringLiteral("currency"), QStringLiteral("€"));
            for (const char* key : {"date", "paid", "sent", "dispatched"})
                doc->setValue(QLatin1String(key), date);
            doc->setValue(QStringLiteral("due"), date.addDays(14));
            for (const char* key : {"isDispatched", "hasDiscountSubtitle", "isDiscountEnabled",
                                    "hasShippingSubtitle", "isShippingEnabled", "isShippingTax1Enabled",
                                    "isShippingTax2Enabled", "isShippingTax3Enabled"})
                doc->setValue(QLatin1String(key), random.bounded(2) == 1);
            for (const char* key : {"discountTitle", "discountSubtitle", "shippingTitle", "shippingSubtitle"})
                doc->setValue(QLatin1String(key), QString(""));
            for (const char* key : {"tax1Kind", "tax2Kind", "tax3Kind", "discountKind"})
                doc->setValue(QLatin1String(key), 0);
            doc->setValue(QStringLiteral("tax1Percent"), 0.19f);
            doc->setValue(QStringLiteral("tax2Percent"), 0.0f);
            doc->setValue(QStringLiteral("tax3Percent"), 0.0f);
            doc->setValue(QStringLiteral("discountPercent"), 0.0f);

            // Spread the items so that the last document takes what is left.
            const int remainingDocs = documentCount - d;
            const int items = remainingDocs == 1 ? itemsLeft
                                                 : std::clamp(int(random.bounded(1, 10)), 1,
                                                              std::max(1, itemsLeft - (remainingDocs - 1)));
            itemsLeft -= items;
            float net = 0;
            for (int i = 0; i < items; ++i) {
                ManagedObject* item = ctx.insertNewObject(Entity::Item);
                const float count = float(1 + random.bounded(20)) / 2.0f;
                const float price = float(random.bounded(1, 50000)) / 100.0f;
                item->setValue(QStringLiteral("title"),
                               QLatin1String(itemTitles[(d + i) % std::size(itemTitles)]));
                item->setValue(QStringLiteral("subtitle"),
                               i % 3 == 0 ? QStringLiteral("as agreed") : QString(""));
                item->setValue(QStringLiteral("unit"), QLatin1String(units[i % std::size(units)]));
                item->setValue(QStringLiteral("sku"), QStringLiteral("SKU-%1").arg(100 + (d * 7 + i) % 500));
                item->setValue(QStringLiteral("note"), QString(""));
                item->setValue(QStringLiteral("unitCount"), count);
                item->setValue(QStringLiteral("baseAmount"), price);
                item->setValue(QStringLiteral("subAmount"), count * price);
                item->setValue(QStringLiteral("amount"), count * price * 1.19f);
                item->setValue(QStringLiteral("isTax1Applied"), true);
                item->setValue(QStringLiteral("isTax2Applied"), false);
                item->setValue(QStringLiteral("isTax3Applied"), false);
                item->setValue(QStringLiteral("isTax2Compound"), false);
                item->setValue(QStringLiteral("isTax3Compound"), false);
                item->setValue(QStringLiteral("tax1Title"), QStringLiteral("VAT"));
                item->setValue(QStringLiteral("tax1Percent"), 0.19f);
                item->setValue(QStringLiteral("tax1Amount"), count * price * 0.19f);
                doc->insertObject(QStringLiteral("items"), item);
                net += count * price;
            }
            const float amount = net * 1.19f;
            const bool sent = invoice && status >= 2;
            const float paid = !sent         ? 0.0f
                               : status == 3 ? amount
                               : status == 4 ? float(int(amount / 2))
                                             : 0.0f;
            doc->setValue(QStringLiteral("subAmount"), net);
            doc->setValue(QStringLiteral("tax1Amount"), net * 0.19f);
            doc->setValue(QStringLiteral("amount"), amount);
            doc->setValue(QStringLiteral("isPaid"), invoice && status >= 3);
            doc->setValue(QStringLiteral("paidAmount"), paid);
            doc->setValue(QStringLiteral("dueAmount"), sent ? amount - paid : 0.0f);
        }
        if (Status s = ctx.save(); !s) {
            std::fprintf(stderr, "cannot save: %s\n", qPrintable(s.error().fullText()));
            std::exit(1);
        }
    }
    std::printf("generated %d documents with %d items in %.1f s\n", documentCount, itemCount,
                double(timer.elapsed()) / 1000.0);
}

// The cached home with its store; generated on first use.
QString preparedHome()
{
    const QString home =
        cacheDirectory() + QStringLiteral("/v%1-%2").arg(generationVersion).arg(ObjectModel::schemaVersion);
    const QString marker = home + QStringLiteral("/complete");
    const QString storePath = home + QStringLiteral("/data/com.tandrelo.Orvandel/Vorn.vndb");
    if (QFile::exists(marker) && QFile::exists(storePath)) {
        std::printf("using the store cached in %s\n", qPrintable(home));
        return home;
    }
    QDir(home).removeRecursively();
    QDir().mkpath(QFileInfo(storePath).absolutePath());
    generate(storePath);
    // Settings as after the first start, so that a launch seeds nothing.
    {
        Settings settings(home + QStringLiteral("/config/com.tandrelo.Orvandel/com.tandrelo.Orvandel.plist"));
        (void)settings.load();
        auto english = AppDelegate::defaultList(QStringLiteral("defaultPrefsEnglish"));
        if (english)
            settings.setValuesForKeys(english.value());
        for (const char* key :
             {"firstStartEverDone", "firstCenter", "isAssiDone", "isFirstStoreLoadEverDone"})
            settings.setValue(QLatin1String(key), true);
        (void)settings.synchronize();
    }
    QFile f(marker);
    if (f.open(QIODevice::WriteOnly))
        f.write("ok\n");
    return home;
}

// The child: launch as the application does until the sorted list is there.
int loadChild(const QString& home, qint64 startNs, int argc, char** argv)
{
    useHome(home);
    QCoreApplication application(argc, argv);
    Settings settings(FileLocations::fromEnvironment().settingsFile());
    (void)settings.load();
    QuietUserInterface ui;
    AppDelegate app(settings, ui, Clock::system(), FileLocations::fromEnvironment());
    app.awakeFromNib();
    const int listed = app.state().invoicesController().count();
    const qint64 elapsedNs = monotonicNs() - startNs;
    const qint64 rss = residentKiB();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const qint64 cpuUs = qint64(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000000 +
                         usage.ru_utime.tv_usec + usage.ru_stime.tv_usec;
    const ManagedObject* newest = app.state().invoicesController().arrangedObjects().value(0);
    std::printf("%lld %lld %lld %d %s\n", elapsedNs, rss, cpuUs, listed,
                newest ? qPrintable(newest->stringValue(QStringLiteral("number"))) : "-");
    std::fflush(stdout);
    return listed == documentCount ? 0 : 1;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

double percentile(std::vector<double> v, double p)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[std::min(v.size() - 1, size_t(p * double(v.size())))];
}

void measureLoad(const QString& program, const QString& home)
{
    constexpr int runs = 9;
    std::vector<double> ms;
    std::vector<double> cpu;
    std::vector<double> rss;
    for (int i = 0; i < runs; ++i) {
        QProcess child;
        child.setProgram(program);
        const qint64 start = monotonicNs();
        child.setArguments({QStringLiteral("--load"), home, QString::number(start)});
        child.start();
        if (!child.waitForFinished(120000) || child.exitCode() != 0) {
            std::fprintf(stderr, "load run failed: %s %s\n", child.readAllStandardError().constData(),
                         child.readAllStandardOutput().constData());
            std::exit(1);
        }
        const QList<QByteArray> fields = child.readAllStandardOutput().trimmed().split(' ');
        ms.push_back(double(fields.value(0).toLongLong()) / 1e6);
        rss.push_back(double(fields.value(1).toLongLong()) / 1024.0);
        cpu.push_back(double(fields.value(2).toLongLong()) / 1e3);
        if (i == 0)
            std::printf("  list of %s documents, newest first: %s\n", fields.value(3).constData(),
                        fields.value(4).constData());
    }
    std::printf("(a) process start to sorted document list: median %.1f ms, best %.1f ms, worst %.1f ms "
                "(%d runs, target <= 150 ms)\n",
                median(ms), *std::min_element(ms.begin(), ms.end()), *std::max_element(ms.begin(), ms.end()),
                runs);
    // On a busy machine the wall time includes waiting for a processor; the
    // processor time of the child is what the load itself costs.
    std::printf("    processor time of the child until then: median %.1f ms\n", median(cpu));
    std::printf("(c) resident memory after loading: median %.1f MB (target <= 150 MB)\n", median(rss));
}

void measureSave(const QString& home)
{
    // Edits go to a copy, so the cached store stays as generated.
    const QString scratch = cacheDirectory() + QStringLiteral("/save-scratch");
    QDir(scratch).removeRecursively();
    QDir().mkpath(scratch);
    const QString path = scratch + QStringLiteral("/Vorn.vndb");
    if (!QFile::copy(home + QStringLiteral("/data/com.tandrelo.Orvandel/Vorn.vndb"), path)) {
        std::fprintf(stderr, "cannot copy the store\n");
        std::exit(1);
    }
    auto store = SqliteStore::open(path, ObjectModel::vorn());
    if (!store) {
        std::fprintf(stderr, "%s\n", qPrintable(store.error().fullText()));
        std::exit(1);
    }
    ObjectContext ctx(std::move(store.value()), Clock::system());
    const QList<ManagedObject*> docs = ctx.fetch(Entity::Invoice);
    struct Edit
    {
        const char* name;
        void (*apply)(ObjectContext&, ManagedObject*, int);
    };
    const Edit edits[] = {
        {"one attribute",
         [](ObjectContext&, ManagedObject* doc, int i) {
             doc->setValue(QStringLiteral("subject"), QStringLiteral("Edited %1").arg(i));
         }},
        {"item amounts and totals (a recalculation)",
         [](ObjectContext&, ManagedObject* doc, int i) {
             float net = 0;
             for (ManagedObject* item : doc->items()) {
                 item->setValue(QStringLiteral("unitCount"), float(1 + i % 7));
                 net += item->floatValue(QStringLiteral("unitCount")) *
                        item->floatValue(QStringLiteral("baseAmount"));
                 item->setValue(QStringLiteral("subAmount"), net);
             }
             doc->setValue(QStringLiteral("subAmount"), net);
             doc->setValue(QStringLiteral("amount"), net * 1.19f);
         }},
        {"add an item",
         [](ObjectContext& c, ManagedObject* doc, int i) {
             ManagedObject* item = c.insertNewObject(Entity::Item);
             item->setValue(QStringLiteral("title"), QStringLiteral("Extra %1").arg(i));
             doc->insertObject(QStringLiteral("items"), item, 0);
         }},
    };
    constexpr int rounds = 200;
    for (const Edit& edit : edits) {
        std::vector<double> ms;
        const double cpuBefore = processorMs();
        for (int i = 0; i < rounds; ++i) {
            ManagedObject* doc = docs[(i * 97) % docs.size()];
            edit.apply(ctx, doc, i);
            QElapsedTimer timer;
            timer.start();
            if (Status s = ctx.save(); !s) {
                std::fprintf(stderr, "save failed: %s\n", qPrintable(s.error().fullText()));
                std::exit(1);
            }
            ms.push_back(double(timer.nsecsElapsed()) / 1e6);
        }
        const double cpuPerRound = (processorMs() - cpuBefore) / rounds;
        std::printf("(b) save after editing one document, %s: median %.2f ms, 90%% %.2f ms, worst %.2f ms "
                    "(%d saves, target <= 5 ms); processor time per edit and save %.2f ms\n",
                    edit.name, median(ms), percentile(ms, 0.9), *std::max_element(ms.begin(), ms.end()),
                    rounds, cpuPerRound);
    }
    QElapsedTimer timer;
    timer.start();
    const int items = int(ctx.fetch(Entity::Item).size());
    std::printf("    reading all %d items afterwards: %.1f ms\n", items, double(timer.nsecsElapsed()) / 1e6);
    QDir(scratch).removeRecursively();
}

} // namespace
} // namespace vorn::bench

int main(int argc, char** argv)
{
    using namespace vorn::bench;
    if (argc == 4 && qstrcmp(argv[1], "--load") == 0)
        return loadChild(QString::fromLocal8Bit(argv[2]), QByteArray(argv[3]).toLongLong(), argc, argv);
    QCoreApplication application(argc, argv);
    const QString home = preparedHome();
    measureLoad(QCoreApplication::applicationFilePath(), home);
    measureSave(home);
    return 0;
}
