// Opens with its header: reports/ui/PrinterProperties.h.
#include "reports/ui/PrinterProperties.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "reports/Printers.h"

bool PrinterProperties_Show(QWidget* parent, const QString& printer) {
    std::vector<std::string> lines;
    if (!Printer_Options(printer.toStdString(), lines)) return false;
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
    return true;
}
