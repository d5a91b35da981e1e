// Opens with its header: reports/ui/frmListPrint.h.
#include "reports/ui/frmListPrint.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/MsgBox.h"
#include "commands/ListPrintCommands.h"
#include "common/ui/Cp1252Text.h"
#include "common/ui/FileDialog.h"
#include "common/ui/RunGuarded.h"
#include "reports/PageSink.h"
#include "reports/Printers.h"
#include "reports/ReportFill.h"
#include "reports/SvgReport.h"
#include "reports/ui/PrinterChoice.h"

namespace {
constexpr const char* kTitle = "Print Motor Series Selection Results";
}  // namespace

frmListPrint::frmListPrint(ListSheet sheet, QWidget* parent) : QDialog(parent), sheet_(std::move(sheet)) {
    setObjectName("frmListPrint");
    setWindowTitle(kTitle);
    setModal(true);
    auto* frame = new QGroupBox("Printer", this);
    CboPrinter = new QComboBox(frame);
    CboPrinter->setObjectName("CboPrinter");
    CboPrinter->setMinimumWidth(260);
    CmdPropaty = new QPushButton("Properties(&I)", frame);
    CmdPropaty->setObjectName("CmdPropaty");
    auto* Lbl_Printer = new QLabel("Printer Name:", frame);
    Lbl_Printer->setObjectName("Lbl_Printer");
    auto* Lbl_Status = new QLabel("Status:", frame);
    Lbl_Status->setObjectName("Lbl_Status");
    LblSettings = new QLabel(frame);
    LblSettings->setObjectName("LblSettings");
    auto* grid = new QGridLayout(frame);
    grid->addWidget(Lbl_Printer, 0, 0);
    grid->addWidget(CboPrinter, 0, 1);
    grid->addWidget(CmdPropaty, 0, 2);
    grid->addWidget(Lbl_Status, 1, 0);
    grid->addWidget(LblSettings, 1, 1, 1, 2);
    grid->setColumnStretch(1, 1);

    const PrintButtons buttons = PrinterChoice_Buttons(this, "Print (&P)");
    CmdExport = buttons.CmdExport;
    CmdPrint = buttons.CmdPrint;
    CmdCancel = buttons.CmdCancel;
    auto* main = new QVBoxLayout(this);
    main->addWidget(frame);
    main->addLayout(buttons.row);

    for (const std::string& name : Printer_List()) CboPrinter->addItem(QString::fromStdString(name));
    connect(CmdPropaty, &QPushButton::clicked, this, &frmListPrint::CmdPropaty_Click);
    connect(CmdPrint, &QPushButton::clicked, this, &frmListPrint::CmdPrint_Click);
    connect(CmdExport, &QPushButton::clicked, this, &frmListPrint::CmdExport_Click);
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

int frmListPrint::Open() {
    const std::string defaultPrinter = Printer_Default();
    if (defaultPrinter.empty()) {
        MsgBox("Printer is not set.", "Print", MsgIcon::Exclamation);
        return Rejected;
    }
    CboPrinter->setCurrentText(QString::fromStdString(defaultPrinter));
    CboPrinter_Click();
    connect(CboPrinter, &QComboBox::currentIndexChanged, this, &frmListPrint::CboPrinter_Click);
    return exec();
}

QString frmListPrint::Printer() const { return CboPrinter->currentText(); }

void frmListPrint::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) CboPrinter_Click();
}

void frmListPrint::CboPrinter_Click() { PrinterChoice_Status(CboPrinter, LblSettings, ListPrint_StatusLine); }

void frmListPrint::CmdPropaty_Click() { PrinterChoice_Properties(this, CboPrinter, "Cannot Display", "Printer Propaties"); }

void frmListPrint::CmdPrint_Click() {
    ListPrinted printed = ListPrinted::Failed;
    Run_Guarded(kTitle, [&] {
        PrinterSink sink;
        SvgReportLibrary engine(sink);
        printed = List_Print(engine, sheet_, Printer().toStdString(), Report_Today());
    });
    if (printed == ListPrinted::Done &&
        MsgBox("OK to exit printing?", "Print", MsgIcon::None, MsgButtons::YesNo) == MsgAnswer::Yes)
        accept();
}

void frmListPrint::CmdExport_Click() {
    const QString path = FileDialog_Save(this, "PDF files (*.pdf)");
    if (path.isEmpty()) return;
    Run_Guarded("Export PDF", [&] { ListPrint_Export(sheet_, path.toStdString(), Report_Today()); });
}
