// The window tests run inside one QApplication on the offscreen platform,
// with the stored settings in a temporary folder instead of the user's.
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setOrganizationName("Torvane");
    QApplication::setApplicationName("Torvane");
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    return RUN_ALL_TESTS();
}
