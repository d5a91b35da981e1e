#include "common/ui/FileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

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

QString StartFolder(DialogFor purpose) {
    const DialogFolderHints hints =
        DialogFolder_Hints(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString(),
                           QDir::homePath().toStdString());
    return QString::fromStdString(Dialog_StartFolder(hints, purpose));
}

QString Chosen(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
}

}  // namespace

QString FileDialog_Open(QWidget* parent, const QString& filter, DialogFor purpose) {
    QString answer;
    if (Scripted(answer)) return answer;
    QFileDialog dialog(parent, "Open", StartFolder(purpose), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Chosen(dialog);
}

QString FileDialog_Save(QWidget* parent, const QString& filter, const QString& title, const QString& defaultSuffix) {
    QString answer;
    if (Scripted(answer)) return answer;
    QFileDialog dialog(parent, title, StartFolder(DialogFor::OtherFile), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(defaultSuffix);
    return Chosen(dialog);
}

void FileDialog_Script(const QStringList& answers) {
    TheScript().active = !answers.isEmpty();
    TheScript().answers = answers;
}

int FileDialog_Remaining() { return static_cast<int>(TheScript().answers.size()); }
