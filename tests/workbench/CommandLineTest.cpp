// The window program's --help and --version: answered on standard output
// with no display at all, exit code 0.
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#include "base/Version.h"

namespace {

struct Answer {
    int code;
    QString out;
};

// Runs torvane with no display of any kind.
Answer Torvane_Run(const QString& argument) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("DISPLAY");
    env.remove("WAYLAND_DISPLAY");
    env.remove("QT_QPA_PLATFORM");
    env.insert("ASAN_OPTIONS", "detect_leaks=0");
    QProcess torvane;
    torvane.setProcessEnvironment(env);
    torvane.start(TORVANE_GUI_EXE, {argument});
    EXPECT_TRUE(torvane.waitForFinished(30000));
    return {torvane.exitCode(), QString::fromUtf8(torvane.readAllStandardOutput())};
}

TEST(CommandLine, VersionAnswersWithoutADisplay) {
    const Answer a = Torvane_Run("--version");
    EXPECT_EQ(a.code, 0);
    EXPECT_EQ(a.out, QString("torvane ") + kVersionText + "\n");
}

TEST(CommandLine, HelpAnswersWithoutADisplay) {
    for (const char* word : {"--help", "-h"}) {
        const Answer a = Torvane_Run(word);
        EXPECT_EQ(a.code, 0) << word;
        EXPECT_TRUE(a.out.startsWith("Usage: torvane [FILE.AP2]\n")) << a.out.toStdString();
        EXPECT_TRUE(a.out.contains("--version")) << word;
    }
}

}  // namespace
