// Figures of the invoicing engine on a store of 20,000 documents (100,000
// items), loaded as the application loads it:
//   (a) the list totals over every document,
//   (b) a change of the list filter (predicate, rearrangement, totals),
//   (c) the arithmetic of one document of 1,000 items,
//   (d) adding one item end to end (insert, arithmetic, totals, save).
// Targets: 5 ms, 20 ms, 1 ms, 10 ms. The generated store is kept between runs
// (VORN_BENCH_CACHE names the folder).

#include "app/AppDelegate.h"
#include "bench/BenchSupport.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/SqliteStore.h"
#include "store/UserInterface.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

namespace vorn::bench {
namespace {

constexpr int documentCount = 20000;
constexpr int itemCount = 100000;
constexpr int bigDocumentItems = 1000;

QString cacheDirectory()
{
    const QString configured = qEnvironmentVariable("VORN_BENCH_CACHE");
    return (configured.isEmpty() ? QDir::tempPath() : configured) + QStringLiteral("/vorn-invoicing-bench");
}

// Documents of both kinds and every status over six years, with items taxed
// in every combination, shipping and discounts on some.
void generate(const QString& storePath)
{
    QRandomGenerator random(20000);
    const FixedClock clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc()));
    const QDateTime first(QDate(2020, 11, 1), QTime(8, 0), QTimeZone::utc());
    int itemsLeft = itemCount - bigDocumentItems;
    QElapsedTimer timer;
    timer.start();
    constexpr int batch = 2000;
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
            const QDateTime date = first.addSecs(qint64(d) * 9000 + random.bounded(3600));
            ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
            doc->setValue(key::kind, invoice ? 1 : 0);
            doc->setValue(key::status, random.bounded(5));
            doc->setValue(key::number, QStringLiteral("%1-%2").arg(invoice ? "INV" : "QT").arg(1000 + d));
            doc->setValue(key::title, invoice ? QStringLiteral("Invoice") : QStringLiteral("Quote"));
            doc->setValue(key::address,
                          QStringLiteral("Client %1\nMain Street %2").arg(d % 900).arg(d % 120));
            for (const QString& k : {key::date, key::paid, key::sent, key::dispatched})
                doc->setValue(k, date);
            doc->setValue(key::due, date.addDays(14));
            doc->setValue(key::isPaid, random.bounded(2) == 1);
            doc->setValue(key::isShippingEnabled, random.bounded(3) == 0);
            doc->setValue(key::shippingAmount, float(random.bounded(500, 2500)) / 100.0f);
            doc->setValue(key::isShippingTax1Enabled, random.bounded(2) == 1);
            doc->setValue(key::isShippingTax2Enabled, random.bounded(2) == 1);
            doc->setValue(key::isDiscountEnabled, random.bounded(4) == 0);
            doc->setValue(key::discountKind, random.bounded(2));
            doc->setValue(key::discountPercent, 0.05f);
            doc->setValue(key::discountAmount, 10.0f);
            doc->setValue(key::tax1Percent, 0.19f);
            doc->setValue(key::tax2Percent, 0.07f);
            doc->setValue(key::tax3Percent, 0.01f);
            doc->setValue(key::paidAmount, 0.0f);
            doc->setValue(key::dueAmount, 0.0f);

            // The newest document is the big one.
            const int items =
                d == documentCount - 1 ? bigDocumentItems
                : d == documentCount - 2
                    ? itemsLeft
                    : std::min(int(random.bounded(1, 9)), std::max(1, itemsLeft - (documentCount - d)));
            if (d != documentCount - 1)
                itemsLeft -= items;
            for (int i = 0; i < items; ++i) {
                ManagedObject* item = ctx.insertNewObject(Entity::Item);
                item->setValue(key::title, QStringLiteral("Line %1").arg(i));
                item->setValue(key::unitCount, float(1 + random.bounded(20)) / 2.0f);
                item->setValue(key::baseAmount, float(random.bounded(1, 50000)) / 100.0f);
                item->setValue(key::isTax1Applied, random.bounded(4) != 0);
                item->setValue(key::isTax2Applied, random.bounded(3) == 0);
                item->setValue(key::isTax3Applied, random.bounded(5) == 0);
                item->setValue(key::isTax2Compound, random.bounded(2) == 1);
                item->setValue(key::isTax3Compound, random.bounded(2) == 1);
                item->setValue(key::tax1Percent, 0.19f);
                item->setValue(key::tax2Percent, 0.07f);
                item->setValue(key::tax3Percent, 0.01f);
                doc->insertObject(key::items, item);
            }
        }
        if (Status s = ctx.save(); !s) {
            std::fprintf(stderr, "cannot save: %s\n", qPrintable(s.error().fullText()));
            std::exit(1);
        }
    }
    std::printf("generated %d documents with %d items in %.1f s\n", documentCount, itemCount,
                double(timer.elapsed()) / 1000.0);
}

qint64 threadCpuNs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

// Wall-clock and processor time: on a busy machine the processor time shows
// the work itself, the wall clock what the user waits.
struct Figure
{
    double median = 0;
    double worst = 0;
    double cpuMedian = 0;
};

Figure measure(int runs, const std::function<void()>& prepare, const std::function<void()>& work)
{
    std::vector<double> wall, cpu;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        QElapsedTimer t;
        const qint64 c0 = threadCpuNs();
        t.start();
        work();
        wall.push_back(double(t.nsecsElapsed()) / 1e6);
        cpu.push_back(double(threadCpuNs() - c0) / 1e6);
    }
    std::sort(wall.begin(), wall.end());
    std::sort(cpu.begin(), cpu.end());
    return {wall[wall.size() / 2], wall.back(), cpu[cpu.size() / 2]};
}

void report(const char* what, const Figure& f, double target)
{
    std::printf("%-56s median %7.3f ms (cpu %7.3f)  worst %7.3f ms  target %4.1f ms  %s\n", what, f.median,
                f.cpuMedian, f.worst, target, f.median <= target ? "ok" : "OVER");
}

int run()
{
    const QString home = cacheDirectory();
    QDir().mkpath(home);
    useHome(home);
    const FileLocations locations = FileLocations::fromEnvironment();
    QDir().mkpath(locations.filesDirectory);
    if (!QFile::exists(locations.storeFile()))
        generate(locations.storeFile());

    Settings settings(home + QStringLiteral("/bench-settings.plist"));
    settings.setValue(key::tax2IsCompound, true);
    settings.setValue(key::tax1Enabled, true);
    settings.setValue(key::tax1Rate, 0.19);
    QuietUserInterface ui;
    const FixedClock clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc()));
    AppDelegate app(settings, ui, clock, locations);
    app.setLaunchChecksEnabled(false);
    QElapsedTimer load;
    load.start();
    app.awakeFromNib();
    ObjectContext* ctx = app.managedObjectContext();
    if (!ctx)
        return 1;
    AppState& state = app.state();
    InvoicingControllers& inv = app.invoicing();
    std::printf("loaded %d documents in %.0f ms\n", int(state.invoicesController().count()),
                double(load.elapsed()));
    QFile loadAverage(QStringLiteral("/proc/loadavg"));
    if (loadAverage.open(QIODevice::ReadOnly))
        std::printf("load average %s (figures on a busy machine: see the processor times)\n",
                    loadAverage.readAll().split(' ').value(0).constData());
    // Every document's items, so that the figures measure arithmetic, not loading.
    ctx->fetch(Entity::Item);
    // The first run moves statuses and stamps payments; the figures are of later runs.
    inv.calculator().calculateDatabase();
    ctx->undoManager()->removeAllActions();

    report("calculateDatabase over 20,000 documents",
           measure(50, {}, [&] { inv.calculator().calculateDatabase(); }), 5);

    quint64 tag = 0;
    const Figure filter = measure(45, {}, [&] { inv.filter().selectFilterAction(tag++ % 9); });
    report("filter change (predicate, rearrange, totals), tags 0-8", filter, 20);
    const Figure all = measure(
        20, [&] { inv.filter().selectFilterAction(1); }, [&] { inv.filter().selectFilterAction(0); });
    report("filter change back to all 20,000 documents", all, 20);

    inv.filter().selectFilterAction(0);
    ManagedObject* big = nullptr;
    for (ManagedObject* doc : state.invoicesController().arrangedObjects())
        if (doc->items().size() == bigDocumentItems)
            big = doc;
    if (!big) {
        std::fprintf(stderr, "no document of %d items\n", bigDocumentItems);
        return 1;
    }
    state.invoicesController().setSelectedObjects({big});
    QList<ManagedObject*> lines = big->items();
    int edit = 0;
    report("calculateInvoice: 1,000 items, one line edited",
           measure(
               50,
               [&] {
                   ++edit;
                   lines[edit % lines.size()]->setValue(key::unitCount, float(edit % 7 + 1));
               },
               [&] { inv.calculator().calculateInvoiceAmounts(big); }),
           1);
    report("calculateInvoice: 1,000 items, unchanged",
           measure(50, {}, [&] { inv.calculator().calculateInvoiceAmounts(big); }), 1);
    report("calculateInvoice: 1,000 items, with the list totals",
           measure(20, {}, [&] { inv.calculator().calculateInvoice(big); }), 6);

    // A document of everyday size (the generator gives most of them 1 to 8 lines).
    ManagedObject* small = nullptr;
    for (ManagedObject* doc : state.invoicesController().arrangedObjects()) {
        if (doc->items().size() <= 8) {
            small = doc;
            break;
        }
    }
    state.invoicesController().setSelectedObjects({small});
    if (Status s = ctx->save(); !s)
        return 1;
    ItemController& items = inv.items();
    int n = 0;
    report("add one item end to end (insert, calculate, totals, save)",
           measure(
               30,
               [&] {
                   items.showItemPopover();
                   items.popover().title = QStringLiteral("Bench line %1").arg(n++);
                   items.popover().baseAmount = QStringLiteral("12.5");
               },
               [&] { items.addItem(); }),
           10);
    return 0;
}

} // namespace
} // namespace vorn::bench

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    return vorn::bench::run();
}
