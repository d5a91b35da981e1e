// torvane: the window program.
#include <QApplication>
#include <QStringList>

#include <iostream>
#include <string_view>

#include "base/MsgBox.h"
#include "base/Version.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "workbench/MsgBoxDialog.h"
#include "workbench/SingleInstance.h"
#include "workbench/frmMain.h"
#include "workbench/frmSplash.h"

namespace {

constexpr const char* kUsage =
    "Usage: torvane [FILE.AP2]\n"
    "Size servo motors and drivers for a machine: build the chain of components\n"
    "behind the motor, type its motion, and judge the catalogue's motors and\n"
    "drivers against the sizing values.\n"
    "\n"
    "The whole command line is the name of one application file, opened at start.\n"
    "\n"
    "  --help     print this text and exit\n"
    "  --version  print the version and exit\n"
    "\n"
    "The command line tool is torvane-cli; see torvane(1) and torvane-cli(1).\n";

// --help or --version given alone: answered on standard output, with no
// window and no display needed. -1 when the command line is something else.
int Answer(int argc, char** argv) {
    if (argc != 2) return -1;
    const std::string_view word = argv[1];
    if (word == "--version") std::cout << "torvane " << kVersionText << '\n';
    else if (word == "--help" || word == "-h") std::cout << kUsage;
    else return -1;
    return std::cout.flush() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (const int code = Answer(argc, argv); code >= 0) return code;
    QApplication app(argc, argv);
    QApplication::setOrganizationName("Torvane");
    QApplication::setApplicationName("Torvane");

    const auto lock = SingleInstance_Lock();
    if (!lock) return 0;

    frmSplash splash;
    splash.show();
    QApplication::processEvents();

    // The whole command line is one file name, not parsed, unquoted or trimmed.
    const QStringList args = QApplication::arguments().mid(1);
    MsgBox_SetHandler(MsgBox_DialogHandler);
    Main_Prepare(args.join(' ').toStdString());

    frmMain main;
    splash.close();
    main.show();
    main.Start();
    return QApplication::exec();
}
