#include "common/ui/FileDialog.h"

#include <QFileDialog>

namespace {

struct Script {
    bool active = false;
    QStringList answers;
};

Script& TheScript() {
    static Script script;
    return script;
}

bool Scripted(QString& answer) {
    Script& s = TheScript();
    if (!s.active) return false;
    answer = s.answers.isEmpty() ? QString() : s.answers.takeFirst();
    return true;
}

}  // namespace

QString FileDialog_Open(QWidget* parent, const QString& filter) {
    QString answer;
    if (Scripted(answer)) return answer;
    return QFileDialog::getOpenFileName(parent, "Open", QString(), filter);
}

QString FileDialog_Save(QWidget* parent, const QString& filter) {
    QString answer;
    if (Scripted(answer)) return answer;
    return QFileDialog::getSaveFileName(parent, "Save As", QString(), filter);
}

void FileDialog_Script(const QStringList& answers) {
    TheScript().active = !answers.isEmpty();
    TheScript().answers = answers;
}

int FileDialog_Remaining() { return static_cast<int>(TheScript().answers.size()); }
