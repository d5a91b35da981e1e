// A file dialog of the program answered as a user answers it, the dialog
// itself shown: what it showed, what it listed, and a name typed into it.
#pragma once

#include <QAbstractItemModel>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTimer>

struct FileDialogSeen {
    bool shown = false;
    QString title;
    QString folder;         // where it opened
    QString defaultSuffix;
    QStringList listed;     // the names it listed in that folder
};

namespace file_dialog_answer {

constexpr int kPollMs = 10;
constexpr int kPolls = 500;    // a dialog that has not opened by then never will
constexpr int kListMs = 5000;  // the dialog reads its folder in the background

inline QStringList Listed(QFileDialog* dialog) {
    auto* view = dialog->findChild<QListView*>("listView");
    QStringList names;
    if (!QTest::qWaitFor([view] { return view->model()->rowCount(view->rootIndex()) > 0; }, kListMs)) return names;
    for (int r = 0; r < view->model()->rowCount(view->rootIndex()); ++r)
        names << view->model()->index(r, 0, view->rootIndex()).data().toString();
    return names;
}

}  // namespace file_dialog_answer

// When the next file dialog opens, notes in seen what it shows, then types
// name into its file name box and presses Enter; an empty name cancels it.
// With list set, it first waits for the files of its folder to show.
inline void FileDialog_AnswerNext(const QString& name, FileDialogSeen& seen, bool list = false) {
    auto* poll = new QTimer;
    poll->setInterval(file_dialog_answer::kPollMs);
    QObject::connect(poll, &QTimer::timeout, [poll, name, &seen, list, polls = 0]() mutable {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr && ++polls < file_dialog_answer::kPolls) return;
        poll->stop();
        poll->deleteLater();
        if (dialog == nullptr) return;
        seen = {true, dialog->windowTitle(), dialog->directory().absolutePath(), dialog->defaultSuffix(), {}};
        if (list) seen.listed = file_dialog_answer::Listed(dialog);
        if (name.isEmpty()) {
            dialog->reject();
            return;
        }
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
    });
    poll->start();
}
