#include "workbench/SingleInstance.h"

#include <QDir>
#include <QStandardPaths>

std::unique_ptr<QLockFile> SingleInstance_Lock() {
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty()) dir = QDir::tempPath();
    auto lock = std::make_unique<QLockFile>(dir + "/torvane.lock");
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) return nullptr;
    return lock;
}
