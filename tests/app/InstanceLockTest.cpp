#include "app/InstanceLock.h"
#include "app/InstanceChannel.h"
#include "tests/support/TestFiles.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace vorn::test {
namespace {

// The id of a process that has ended.
qint64 deadProcessId()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    int status = 0;
    waitpid(child, &status, 0);
    return child;
}

class InstanceLockTest : public ::testing::Test
{
protected:
    QString path() const { return m_dir.filePath(QStringLiteral("files/Vorn.vndb.lock")); }
    QTemporaryDir m_dir;
};

TEST_F(InstanceLockTest, ASecondLockIsRefusedWhileTheFirstIsHeld)
{
    InstanceLock first(path());
    ASSERT_TRUE(first.tryLock());
    EXPECT_TRUE(InstanceLock::isHeldElsewhere(path()));

    InstanceLock second(path());
    const Status refused = second.tryLock();
    ASSERT_FALSE(refused.ok());
    EXPECT_EQ(refused.error().code, ErrorCode::StoreLocked);
    EXPECT_FALSE(second.isLocked());
    EXPECT_TRUE(first.isLocked()) << "a refused attempt must not break the holder's lock";

    first.unlock();
    EXPECT_FALSE(InstanceLock::isHeldElsewhere(path()));
    EXPECT_TRUE(second.tryLock());
    EXPECT_FALSE(first.tryLock().ok());
}

TEST_F(InstanceLockTest, ALockLeftByADeadProcessDoesNotBlock)
{
    writeFile(path(),
              QByteArray::number(deadProcessId()) + "\nvorn\n" + QSysInfo::machineHostName().toUtf8() + "\n");

    EXPECT_FALSE(InstanceLock::isHeldElsewhere(path()));
    InstanceLock lock(path());
    ASSERT_TRUE(lock.tryLock());
    EXPECT_TRUE(lock.isLocked());
}

TEST_F(InstanceLockTest, ALockThatCannotBeCreatedIsAnError)
{
    writeFile(m_dir.filePath(QStringLiteral("files")), "a file where the folder should be");
    InstanceLock lock(path());
    const Status s = lock.tryLock();
    ASSERT_FALSE(s.ok());
    EXPECT_NE(s.error().code, ErrorCode::StoreLocked);
    EXPECT_FALSE(InstanceLock::isHeldElsewhere(path()));
}

// A later start hands its files to the running instance (from another
// thread here, since sending waits for the answer).
TEST(InstanceChannelTest, ALaterStartHandsItsFilesToTheRunningInstance)
{
    QTemporaryDir dir;
    const QString name = InstanceChannel::nameFor(dir.filePath("Vorn.vndb.lock"));
    EXPECT_NE(name, InstanceChannel::nameFor(dir.filePath("other/Vorn.vndb.lock")));
    EXPECT_FALSE(InstanceChannel::send(name, {"/tmp/a.vorn"}, 200)) << "nobody listens yet";

    InstanceChannel channel(name);
    ASSERT_TRUE(channel.listen());
    QList<QStringList> received;
    QObject::connect(&channel, &InstanceChannel::filesReceived, [&](const QStringList& p) { received << p; });
    const QList<QStringList> sent = {{"/home/kim/Invoice 1.vorn", "/home/kim/Ä.design"}, {}};
    for (const QStringList& paths : sent) {
        std::atomic<int> answer = -1;
        std::thread later([&] { answer = InstanceChannel::send(name, paths) ? 1 : 0; });
        QDeadlineTimer deadline(5000);
        while (answer < 0 && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        later.join();
        EXPECT_EQ(answer, 1);
    }
    EXPECT_EQ(received, sent);
}

} // namespace
} // namespace vorn::test
