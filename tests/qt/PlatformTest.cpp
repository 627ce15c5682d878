// The machine's own parts: the program's folder, the lock of the only instance, the timers.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include "qt/ProgramFolder.h"
#include "qt/QtPlatform.h"

namespace ladrix {
namespace {

void write(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

class ProgramFolderTest : public testing::Test {
  protected:
    QTemporaryDir root;
    const QString share = root.filePath("share/ladrix");
    const QString data = root.filePath("data");
};

TEST_F(ProgramFolderTest, ANewVersionRenewsAllButWhatTheUserChanged) {
    write(share + "/Demo1.els", "one");
    write(share + "/Demo2.els", "one");
    write(share + "/help/topics.htx", "one");
    write(data + "/own.els", "mine");
    renewFromShare(share, data, "1");
    EXPECT_EQ(read(data + "/help/topics.htx"), "one");

    write(data + "/Demo2.els", "changed by the user");
    QFile::remove(data + "/help/topics.htx");
    for (const auto name : {"/Demo1.els", "/Demo2.els", "/help/topics.htx", "/own.els", "/new.els"})
        write(share + name, "two");
    renewFromShare(share, data, "1");
    EXPECT_EQ(read(data + "/Demo1.els"), "one") << "the version has not changed";
    renewFromShare(share, data, "2");
    EXPECT_EQ(read(data + "/Demo1.els"), "two");
    EXPECT_EQ(read(data + "/Demo2.els"), "changed by the user");
    EXPECT_EQ(read(data + "/help/topics.htx"), "none");
    EXPECT_EQ(read(data + "/own.els"), "mine");
    EXPECT_EQ(read(data + "/new.els"), "two");
}

TEST_F(ProgramFolderTest, ABuildTreeIsItsOwnAndAnInstalledProgramIsNot) {
    const QString binaries = root.filePath("bin");
    QDir().mkpath(binaries);
    EXPECT_EQ(settleProgramFolder(binaries, data, "1"), binaries);
    write(share + "/Demo1.els", "one");
    EXPECT_EQ(settleProgramFolder(binaries, data, "1"), data);
    EXPECT_EQ(read(data + "/Demo1.els"), "one");
}

TEST(Shell, LetsOnlyOneInstanceRun) {
    QTemporaryDir runtime;
    const QByteArray former = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    {
        QtShell first, second;
        EXPECT_TRUE(first.onlyInstance());
        EXPECT_FALSE(second.onlyInstance());
    }
    QtShell later;
    EXPECT_TRUE(later.onlyInstance());
    qputenv("XDG_RUNTIME_DIR", former);
}

TEST(QtTimers, CallBackOnceAndMayBeStartedAnewFromTheCall) {
    QtTimers timers;
    int calls = 0, refreshes = 0, stopped = 0;
    timers.afterExpiry = [&] { ++refreshes; };
    timers.start(1, 1, [&] {
        if (++calls == 1) timers.start(1, 1, [&] { calls += 10; });
    });
    timers.start(2, 1, [&] { ++stopped; });
    timers.stop(2);
    QElapsedTimer clock;
    clock.start();
    while (calls < 11 && clock.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    EXPECT_EQ(calls, 11);
    EXPECT_EQ(refreshes, 2);
    EXPECT_EQ(stopped, 0);
}

}  // namespace
}  // namespace ladrix
