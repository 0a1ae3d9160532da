// Writes documents into a store until it is killed; the kill test starts it.
// Each save holds one to three documents with their items. Progress goes to
// stdout unbuffered: "r" once the store is open, "b" before and "e" after
// each save.

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/SqliteStore.h"

#include <QString>

#include <cstdio>
#include <unistd.h>

using namespace vorn;

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: vorn_store_writer STORE\n");
        return 2;
    }
    auto store = SqliteStore::open(QString::fromLocal8Bit(argv[1]), ObjectModel::vorn());
    if (!store) {
        std::fprintf(stderr, "%s\n", qPrintable(store.error().fullText()));
        return 3;
    }
    ObjectContext context(std::move(store.value()), Clock::system());
    qint64 next = context.fetch(Entity::Invoice).size();
    if (::write(1, "r", 1) != 1)
        return 3;
    for (;;) {
        const qint64 batch = 1 + next % 3;
        for (qint64 b = 0; b < batch; ++b, ++next) {
            ManagedObject* doc = context.insertNewObject(Entity::Invoice);
            const QString number = QStringLiteral("W%1").arg(next, 6, 10, QLatin1Char('0'));
            const int items = int(1 + next % 5);
            doc->setValue(QStringLiteral("number"), number);
            doc->setValue(QStringLiteral("misc2"), items);
            doc->setValue(QStringLiteral("notes"), QString(int(200 * (next % 7)), QLatin1Char('x')));
            for (int j = 0; j < items; ++j) {
                ManagedObject* item = context.insertNewObject(Entity::Item);
                item->setValue(QStringLiteral("title"), number + QLatin1Char('/') + QString::number(j));
                item->setValue(QStringLiteral("unitCount"), float(j));
                doc->insertObject(QStringLiteral("items"), item);
            }
        }
        if (::write(1, "b", 1) != 1)
            return 3;
        const Status saved = context.save();
        if (::write(1, saved ? "e" : "f", 1) != 1 || !saved)
            return 4;
    }
}
