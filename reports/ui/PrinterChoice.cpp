// Opens with its header: reports/ui/PrinterChoice.h.
#include "reports/ui/PrinterChoice.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "base/MsgBox.h"
#include "common/ui/Cp1252Text.h"
#include "reports/Printers.h"

void PrinterChoice_Status(const QComboBox* box, QLabel* label, StatusLineOf line) {
    const std::string defaultPrinter = Printer_Default();
    if (defaultPrinter.empty()) return;
    const std::string printer = box->currentText().toStdString();
    label->setText(Cp1252_ToQString(line(printer, defaultPrinter, Printer_JobCount(printer))));
}

void PrinterChoice_Properties(QWidget* parent, const QComboBox* box, const char* failure, const char* title) {
    if (box->count() == 0) return;
    const QString printer = box->currentText();
    std::vector<std::string> lines;
    if (!Printer_Options(printer.toStdString(), lines)) {
        MsgBox(failure, title, MsgIcon::Exclamation);
        return;
    }
    QDialog dialog(parent);
    dialog.setObjectName("PrinterProperties");
    dialog.setWindowTitle(printer + " Properties");
    auto* text = new QPlainTextEdit(&dialog);
    text->setReadOnly(true);
    for (const std::string& line : lines) text->appendPlainText(QString::fromStdString(line));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog.resize(420, 320);
    dialog.exec();
}

PrintButtons PrinterChoice_Buttons(QWidget* dialog, const char* printCaption) {
    PrintButtons b{new QPushButton("Export PDF...", dialog), new QPushButton(printCaption, dialog),
                   new QPushButton("Cancel", dialog), new QHBoxLayout};
    b.CmdExport->setObjectName("CmdExport");
    b.CmdPrint->setObjectName("CmdPrint");
    b.CmdCancel->setObjectName("CmdCancel");
    b.row->addWidget(b.CmdExport);
    b.row->addStretch();
    b.row->addWidget(b.CmdPrint);
    b.row->addWidget(b.CmdCancel);
    return b;
}
