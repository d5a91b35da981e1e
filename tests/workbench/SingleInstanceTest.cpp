// One running copy: a second start of the window program ends silently and leaves the first running.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

QProcessEnvironment Environment(const QString& runtimeDir, const QString& appDir) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_RUNTIME_DIR", runtimeDir);
    env.insert("TORVANE_APP_PATH", appDir);
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("ASAN_OPTIONS", "detect_leaks=0");
    return env;
}

bool WaitForFile(const QString& path) {
    for (int i = 0; i < 200 && !QFile::exists(path); ++i) QThread::msleep(50);
    return QFile::exists(path);
}

}  // namespace

TEST(SingleInstance, SecondCopyEndsSilentlyAndLeavesTheFirstRunning) {
    QTemporaryDir runtime, app;
    QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QProcessEnvironment env = Environment(runtime.path(), app.path());

    QProcess first;
    first.setProcessEnvironment(env);
    first.start(TORVANE_GUI_EXE, {});
    ASSERT_TRUE(first.waitForStarted());
    ASSERT_TRUE(WaitForFile(runtime.path() + "/torvane.lock"));

    QProcess second;
    second.setProcessEnvironment(env);
    second.start(TORVANE_GUI_EXE, {});
    ASSERT_TRUE(second.waitForFinished(20000));
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(second.readAllStandardOutput().isEmpty());
    EXPECT_TRUE(second.readAllStandardError().isEmpty());

    EXPECT_EQ(first.state(), QProcess::Running);
    first.kill();
    first.waitForFinished();
}

TEST(SingleInstance, FirstCopyStartsWhenNoOtherRuns) {
    QTemporaryDir runtime, app;
    QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcess first;
    first.setProcessEnvironment(Environment(runtime.path(), app.path()));
    first.start(TORVANE_GUI_EXE, {});
    ASSERT_TRUE(first.waitForStarted());
    EXPECT_TRUE(WaitForFile(runtime.path() + "/torvane.lock"));
    EXPECT_FALSE(first.waitForFinished(500));
    first.kill();
    first.waitForFinished();
}
