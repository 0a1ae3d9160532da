#include "app/StoreSnapshot.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/SqliteStore.h"
#include "tests/support/TestEnvironment.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSet>

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <random>
#include <thread>

#include <sqlite3.h>

using namespace vorn;

namespace {

struct Verdict
{
    qint64 documents = -1;
    QStringList problems;
};

// Opens the store as the application does at launch and checks every
// document the writer left: present with all its items, or not at all.
Verdict inspect(const QString& path)
{
    Verdict verdict;
    auto store = SqliteStore::open(path, ObjectModel::vorn());
    if (!store) {
        verdict.problems << store.error().fullText();
        return verdict;
    }
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(store.value()->handle(), "PRAGMA integrity_check", -1, &stmt, nullptr);
    QString integrity;
    while (sqlite3_step(stmt) == SQLITE_ROW)
        integrity += QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    if (integrity != QLatin1String("ok"))
        verdict.problems << QStringLiteral("integrity: ") + integrity;

    FixedClock clock(QDateTime::currentDateTimeUtc());
    ObjectContext context(std::move(store.value()), clock);
    const QList<ManagedObject*> documents = context.fetch(Entity::Invoice);
    QSet<qint64> numbers;
    for (ManagedObject* doc : documents) {
        const QString number = doc->stringValue(QStringLiteral("number"));
        const qint64 k = number.mid(1).toLongLong();
        numbers.insert(k);
        const QList<ManagedObject*> items = doc->items();
        if (doc->intValue(QStringLiteral("misc2")) != 1 + k % 5 || items.size() != 1 + k % 5)
            verdict.problems << QStringLiteral("%1 has %2 items").arg(number).arg(items.size());
        if (doc->stringValue(QStringLiteral("notes")).size() != 200 * (k % 7))
            verdict.problems << QStringLiteral("%1 has cut notes").arg(number);
        for (int j = 0; j < items.size(); ++j)
            if (items[j]->stringValue(QStringLiteral("title")) !=
                    number + QLatin1Char('/') + QString::number(j) ||
                items[j]->floatValue(QStringLiteral("unitCount")) != float(j))
                verdict.problems << QStringLiteral("%1 item %2 is wrong").arg(number).arg(j);
    }
    // Saves commit in order: no document may be missing before the last one.
    for (qint64 k = 0; k < documents.size(); ++k)
        if (!numbers.contains(k)) {
            verdict.problems << QStringLiteral("W%1 is missing").arg(k);
            break;
        }
    verdict.documents = documents.size();
    return verdict;
}

TEST(KillDuringSave, EveryDocumentIsWholeOrAbsentAfter200Kills)
{
    test::TestEnvironment env;
    const QString store = env.home() + QStringLiteral("/kill.vndb");
    constexpr int rounds = 200;
    // Fixed seed: a failure can be replayed.
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> delayMicroseconds(0, 15000);

    QElapsedTimer timer;
    timer.start();
    int insideSave = 0;
    qint64 saves = 0;
    qint64 previous = 0;
    for (int round = 0; round < rounds; ++round) {
        QProcess writer;
        writer.start(QStringLiteral(VORN_STORE_WRITER), {store});
        ASSERT_TRUE(writer.waitForStarted(5000));
        ASSERT_TRUE(writer.waitForReadyRead(5000))
            << "round " << round << ": " << writer.readAllStandardError().toStdString();
        std::this_thread::sleep_for(std::chrono::microseconds(delayMicroseconds(random)));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished(5000));
        ASSERT_EQ(writer.exitStatus(), QProcess::CrashExit)
            << "round " << round << ": the writer stopped by itself";
        const QByteArray progress = writer.readAllStandardOutput();
        saves += progress.count('e');
        if (progress.endsWith('b'))
            ++insideSave;

        const Verdict verdict = inspect(store);
        ASSERT_TRUE(verdict.problems.isEmpty())
            << "round " << round << ": " << verdict.problems.join(QLatin1String("; ")).toStdString();
        // A finished save is never lost.
        ASSERT_GE(verdict.documents, previous) << "round " << round;
        previous = verdict.documents;
    }
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(store).ok());
    EXPECT_GT(insideSave, rounds / 10) << "too few kills landed inside a save to mean anything";
    std::cout << "kill during save: " << rounds << " kills, " << insideSave << " inside a save, " << saves
              << " saves finished, " << previous << " documents intact, " << timer.elapsed() << " ms"
              << std::endl;
    RecordProperty("kills", rounds);
    RecordProperty("killsInsideSave", insideSave);
    RecordProperty("documents", int(previous));
}

} // namespace
