// torvane: the window program.
#include <QApplication>
#include <QStringList>

#include "base/MsgBox.h"
#include "core/Startup.h"
#include "core/Tables.h"
#include "workbench/MsgBoxDialog.h"
#include "workbench/SingleInstance.h"
#include "workbench/frmMain.h"
#include "workbench/frmSplash.h"

int main(int argc, char** argv) {
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
