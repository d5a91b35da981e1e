// Opens with its header: reports/ui/frmPrint.h.
#include "reports/ui/frmPrint.h"

#include <QCheckBox>
#include <QComboBox>

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/MsgBox.h"
#include "common/ui/ColumnFit.h"
#include "common/ui/Cp1252Text.h"
#include "common/ui/FileDialog.h"
#include "common/ui/RunGuarded.h"
#include "core/Tables.h"
#include "reports/CommentBox.h"
#include "reports/PageSink.h"
#include "reports/Printers.h"
#include "reports/SvgReport.h"
#include "reports/ui/PrinterChoice.h"

namespace {

constexpr const char* kTitle = "Print";
constexpr const char* kRowProperty = "infoRow";

// The cell editor carries its row, so that the dialog can judge its keys.
class InfoDelegate : public QStyledItemDelegate {
public:
    InfoDelegate(QObject* keyFilter, QObject* parent) : QStyledItemDelegate(parent), keyFilter_(keyFilter) {}
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setProperty(kRowProperty, index.row());
        editor->installEventFilter(keyFilter_);
        return editor;
    }

private:
    QObject* keyFilter_;
};

// The comment box holds CR LF line ends; the window's text has one LF.
QString Shown_ToQt(std::string shown) {
    for (std::size_t at = 0; (at = shown.find("\r\n", at)) != std::string::npos;) shown.erase(at, 1);
    return Cp1252_ToQString(shown);
}

std::string Qt_ToShown(const QString& text) {
    std::string shown;
    for (char c : QString_ToCp1252(text)) {
        if (c == '\n') shown += '\r';
        shown += c;
    }
    return shown;
}

// A caret of the window's text as a place in the shown text, and back.
int Shown_Position(const QString& text, int position) {
    return position + static_cast<int>(text.left(position).count('\n'));
}

int Qt_Position(const std::string& shown, int position) {
    int qt = 0;
    for (int i = 0; i < position && i < static_cast<int>(shown.size()); ++i)
        if (!(shown[i] == '\r' && i + 1 < static_cast<int>(shown.size()) && shown[i + 1] == '\n')) ++qt;
    return qt;
}

// The key code of a key press as the checks know it; 0 for a key that types nothing.
int Key_Code(const QKeyEvent* e) {
    switch (e->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return 13;
        case Qt::Key_Backspace: return 8;
        case Qt::Key_Delete: return 46;
        case Qt::Key_NumLock: return 144;
        default: break;
    }
    if (e->text().isEmpty() || e->text().at(0) < QChar(' ')) return 0;
    return static_cast<unsigned char>(QString_ToCp1252(e->text().left(1)).front());
}

void Set_Dirty() { DirtyFlag = 1; }

}  // namespace

frmPrint::frmPrint(QWidget* parent) : QDialog(parent) {
    setObjectName("frmPrint");
    setWindowTitle("Print Results");
    setModal(true);

    CboPrinter = new QComboBox(this);
    CboPrinter->setObjectName("CboPrinter");
    CboPrinter->setMinimumWidth(260);
    CmdPropaty = new QPushButton("Properties(&I)", this);
    CmdPropaty->setObjectName("CmdPropaty");
    LblStatus = new QLabel(this);
    LblStatus->setObjectName("LblStatus");
    auto* printer = new QGridLayout;
    printer->addWidget(new QLabel("Printer name:", this), 0, 0);
    printer->addWidget(CboPrinter, 0, 1);
    printer->addWidget(CmdPropaty, 0, 2);
    printer->addWidget(new QLabel("Status:", this), 1, 0);
    printer->addWidget(LblStatus, 1, 1, 1, 2);
    printer->setColumnStretch(1, 1);

    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName("SSTab1");
    SSTab1->addTab(BuildInformation(), "Information");
    SSTab1->addTab(BuildComments(), "Comments");
    SSTab1->addTab(BuildItems(), "Items");

    const PrintButtons buttons = PrinterChoice_Buttons(this, "Print(&P)");
    CmdExport = buttons.CmdExport;
    CmdPrint = buttons.CmdPrint;
    CmdCancel = buttons.CmdCancel;

    auto* main = new QVBoxLayout(this);
    main->addLayout(printer);
    main->addWidget(SSTab1, 1);
    main->addLayout(buttons.row);

    connect(CmdPropaty, &QPushButton::clicked, this, &frmPrint::CmdPropaty_Click);
    connect(CmdPrint, &QPushButton::clicked, this, &frmPrint::CmdPrint_Click);
    connect(CmdExport, &QPushButton::clicked, this, &frmPrint::CmdExport_Click);
    connect(CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmPrint::SSTab1_Click);
    Form_Load();
    connect(CboPrinter, &QComboBox::currentIndexChanged, this, &frmPrint::CboPrinter_Click);
}

QWidget* frmPrint::BuildInformation() {
    auto* page = new QWidget(this);
    vsfInfomation = new QTableWidget(kInfoRows, 3, page);
    vsfInfomation->setObjectName("vsfInfomation");
    vsfInfomation->horizontalHeader()->hide();
    vsfInfomation->verticalHeader()->hide();
    vsfInfomation->setSelectionMode(QAbstractItemView::SingleSelection);
    vsfInfomation->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                   QAbstractItemView::AnyKeyPressed);
    vsfInfomation->setItemDelegate(new InfoDelegate(this, vsfInfomation));
    new ColumnFit(vsfInfomation, {1800, 2000, 2800});
    for (int row = 0; row < kInfoRows; ++row) {
        for (int col = 0; col < 3; ++col) {
            auto* item = new QTableWidgetItem;
            if (!Print_CellEditable(row, col)) item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            vsfInfomation->setItem(row, col, item);
        }
        vsfInfomation->item(row, 0)->setText(kInfoRowCaptions[row].group);
        vsfInfomation->item(row, 1)->setText(kInfoRowCaptions[row].label);
    }
    // The first column merges the rows of a group.
    for (int first = 0; first < kInfoRows;) {
        int last = first;
        while (last + 1 < kInfoRows && QString(kInfoRowCaptions[last + 1].group) == kInfoRowCaptions[first].group) ++last;
        vsfInfomation->setSpan(first, 0, last - first + 1, 1);
        first = last + 1;
    }
    vsfInfomation->setMinimumHeight(vsfInfomation->verticalHeader()->defaultSectionSize() * kInfoRows +
                                    2 * vsfInfomation->frameWidth());
    vsfInfomation->installEventFilter(this);
    connect(vsfInfomation, &QTableWidget::itemChanged, this, [this] {
        if (loaded_) Set_Dirty();
    });
    connect(vsfInfomation, &QTableWidget::currentCellChanged, this, [this](int row) { PreviousRow = row; });
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(vsfInfomation);
    return page;
}

QWidget* frmPrint::BuildComments() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    static constexpr std::array<const char*, 6> kNames = {"txtData0", "txtData1", "txtData2",
                                                          "txtData3", "txtData4", "txtData5"};
    for (int frame = 0; frame < 2; ++frame) {
        auto* box = new QGroupBox(frame == 0 ? "Header" : "Footer", page);
        auto* grid = new QGridLayout(box);
        static constexpr std::array<const char*, 3> kPlaces = {"Left", "Center", "Right"};
        for (int place = 0; place < 3; ++place) {
            const int i = frame * 3 + place;
            txtData[i] = new QLineEdit(box);
            txtData[i]->setObjectName(kNames[i]);
            txtData[i]->setMaxLength(100);
            connect(txtData[i], &QLineEdit::textEdited, this, [] { Set_Dirty(); });
            grid->addWidget(new QLabel(kPlaces[place], box), 0, place);
            grid->addWidget(txtData[i], 1, place);
        }
        layout->addWidget(box);
    }
    layout->addWidget(new QLabel("Comments", page));
    txtComment = new QPlainTextEdit(page);
    txtComment->setObjectName("txtComment");
    txtComment->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont mono("Monospace");
    mono.setStyleHint(QFont::TypeWriter);
    txtComment->setFont(mono);
    txtComment->setMinimumWidth(QFontMetrics(mono).horizontalAdvance(QString(102, 'M')));
    txtComment->setFixedHeight(QFontMetrics(mono).lineSpacing() * 7);
    txtComment->installEventFilter(this);
    connect(txtComment, &QPlainTextEdit::textChanged, this, &frmPrint::txtComment_Change);
    layout->addWidget(txtComment);
    layout->addWidget(new QLabel("Input no more than 5 lines of  100 characters each", page));
    layout->addStretch();
    return page;
}

QWidget* frmPrint::BuildItems() {
    auto* page = new QWidget(this);
    auto* layout = new QGridLayout(page);
    static constexpr std::array<const char*, 4> kCaptions = {"Print cover", "Print component settings",
                                                             "Print user precautions", "Print operating patterns"};
    for (int i = 0; i < 4; ++i) {
        chkPrint[i] = new QCheckBox(kCaptions[i], page);
        chkPrint[i]->setObjectName(QString("chkPrint%1").arg(i));
        connect(chkPrint[i], &QCheckBox::clicked, this, [this, i](bool on) {
            PrintCheck[i] = on ? 1 : 0;
            Set_Dirty();
        });
        layout->addWidget(chkPrint[i], i, 0, 1, 3);
    }
    chkTemp = new QCheckBox("Attachment:", page);
    chkTemp->setObjectName("chkTemp");
    connect(chkTemp, &QCheckBox::clicked, this, [this](bool on) {
        PrintCheck[kPrintAttachment] = on ? 1 : 0;
        Set_Dirty();
    });
    txtTemp = new QLineEdit(page);
    txtTemp->setObjectName("txtTemp");
    connect(txtTemp, &QLineEdit::textEdited, this, [] { Set_Dirty(); });
    cmdFile = new QPushButton("Browse", page);
    cmdFile->setObjectName("cmdFile");
    connect(cmdFile, &QPushButton::clicked, this, &frmPrint::cmdFile_Click);
    layout->addWidget(chkTemp, 4, 0);
    layout->addWidget(txtTemp, 4, 1);
    layout->addWidget(cmdFile, 4, 2);
    layout->setRowStretch(5, 1);
    layout->setColumnStretch(1, 1);
    return page;
}

void frmPrint::Form_Load() {
    PrintDialogState state;
    Run_Guarded("Print", [&state] { state = Print_Open(); });
    for (int row = 0; row < kInfoRows; ++row) vsfInfomation->item(row, 2)->setText(Cp1252_ToQString(state.info[row]));
    for (int i = 0; i < 6; ++i) txtData[i]->setText(Cp1252_ToQString(state.txtData[i]));
    CommentBusy = true;
    txtComment->setPlainText(Shown_ToQt(state.comment));
    CommentBusy = false;
    PrintCheck = state.PrintCheck;
    for (int i = 0; i < 4; ++i) chkPrint[i]->setChecked(PrintCheck[i] != 0);
    chkTemp->setChecked(PrintCheck[kPrintAttachment] != 0);

    const std::vector<std::string> printers = Printer_List();
    for (const std::string& name : printers) CboPrinter->addItem(QString::fromStdString(name));
    const std::string defaultPrinter = Printer_Default();
    if (!printers.empty() && !defaultPrinter.empty()) {
        CboPrinter->setCurrentText(QString::fromStdString(defaultPrinter));
        CboPrinter_Click();
    } else {
        if (printers.empty()) LblStatus->clear();
        MsgBox("Printer is not set.", kTitle, MsgIcon::Exclamation);
    }
    SSTab1_Click(0);
    loaded_ = true;
}

QString frmPrint::Printer() const { return CboPrinter->currentText(); }

PrintDialogState frmPrint::State() const {
    PrintDialogState state;
    for (int row = 0; row < kInfoRows; ++row) state.info[row] = QString_ToCp1252(vsfInfomation->item(row, 2)->text());
    for (int i = 0; i < 6; ++i) state.txtData[i] = QString_ToCp1252(txtData[i]->text());
    state.comment = Qt_ToShown(txtComment->toPlainText());
    state.PrintCheck = PrintCheck;
    state.txtTemp = txtTemp->text().toStdString();
    return state;
}

void frmPrint::Controls_Disable() {
    QWidget* const controls[] = {vsfInfomation, txtData[0], txtData[1], txtData[2], txtData[3], txtData[4],
                                 txtData[5],    txtComment, chkPrint[0], chkPrint[1], chkPrint[2], chkTemp,
                                 txtTemp,       cmdFile};
    for (QWidget* w : controls) w->setFocusPolicy(Qt::ClickFocus);
}

void frmPrint::SSTab1_Click(int tab) {
    Controls_Disable();
    std::vector<QWidget*> order = {CboPrinter, CmdPropaty, SSTab1->tabBar()};
    if (tab == 0) order.push_back(vsfInfomation);
    if (tab == 1) {
        order.insert(order.end(), txtData.begin(), txtData.end());
        order.push_back(txtComment);
    }
    if (tab == 2) {
        order.insert(order.end(), chkPrint.begin(), chkPrint.end());
        order.insert(order.end(), {chkTemp, txtTemp, cmdFile});
        for (int i = 0; i < 4; ++i) chkPrint[i]->setChecked(PrintCheck[i] != 0);
    }
    order.insert(order.end(), {CmdPrint, CmdCancel, CmdExport});
    for (std::size_t i = 3; i + 3 < order.size(); ++i) order[i]->setFocusPolicy(Qt::StrongFocus);
    for (std::size_t i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
}

void frmPrint::CboPrinter_Click() { PrinterChoice_Status(CboPrinter, LblStatus, Print_StatusLine); }

void frmPrint::CmdPropaty_Click() { PrinterChoice_Properties(this, CboPrinter, "Cannot display printer properties.", "printer properties"); }

void frmPrint::cmdFile_Click() {
    const QString path = FileDialog_Open(this, "Word doc (*.doc);;Text Files (*.txt);;All Files (*)");
    if (!path.isEmpty()) {
        txtTemp->setText(path);
        Set_Dirty();
    }
}

void frmPrint::CmdPrint_Click() {
    if (CboPrinter->count() == 0) return;
    Controls_Disable();
    const std::string printer = Printer().toStdString();
    const PrintDialogState state = State();
    bool close = false;
    Run_Guarded(kTitle, [&] {
        PrinterSink sink;
        SvgReportLibrary engine(sink);
        close = Print_Command(state, engine, Print_Request(state, printer, Report_Today()),
                              [&printer](const std::string& path) {
                                  Printer_PrintFile(printer, path, path.substr(path.find_last_of('/') + 1));
                              });
    });
    if (close) accept();
}

void frmPrint::CmdExport_Click() {
    const QString path = FileDialog_Save(this, "PDF files (*.pdf)");
    if (path.isEmpty()) return;
    const PrintDialogState state = State();
    Run_Guarded("Export PDF", [&] {
        PRINTINFO_Set(state);
        Print_Export(Print_Request(state, "", Report_Today()), path.toStdString());
    });
}

bool frmPrint::txtComment_KeyPress(int key) {
    const QString text = txtComment->toPlainText();
    return Box_KeyAllowed(Shown_Position(text, txtComment->textCursor().position()), static_cast<int16_t>(key));
}

void frmPrint::txtComment_Change() {
    if (CommentBusy) return;
    CommentBusy = true;
    const QString text = txtComment->toPlainText();
    const int caret = Shown_Position(text, txtComment->textCursor().position());
    int shift = 0;
    const std::string shown = Box_Change(Qt_ToShown(text), shift);
    txtComment->setPlainText(Shown_ToQt(shown));
    QTextCursor cursor = txtComment->textCursor();
    cursor.setPosition(Qt_Position(shown, caret + (shift > 0 ? shift : 0)));
    txtComment->setTextCursor(cursor);
    CommentBusy = false;
    if (loaded_) Set_Dirty();
}

bool frmPrint::vsfInfomation_KeyDown(int key) {
    const int row = vsfInfomation->currentRow();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        vsfInfomation->setCurrentCell(Print_EnterRow(row), 2);
        return true;
    }
    if (key == Qt::Key_Delete && Print_CellEditable(row, vsfInfomation->currentColumn())) {
        vsfInfomation->currentItem()->setText({});
        return true;
    }
    return false;
}

bool frmPrint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (watched == txtComment) {
        const int code = Key_Code(key);
        return code != 0 && code != 46 && code != 144 && !txtComment_KeyPress(code);
    }
    if (watched == vsfInfomation) return vsfInfomation_KeyDown(key->key());
    const QVariant row = watched->property(kRowProperty);
    if (row.isValid()) {
        const auto* editor = qobject_cast<QLineEdit*>(watched);
        const int code = Key_Code(key);
        if (code == 13) {
            QMetaObject::invokeMethod(
                this, [this, r = row.toInt()] { vsfInfomation->setCurrentCell(Print_EnterRow(r), 2); },
                Qt::QueuedConnection);
            return false;
        }
        return editor && code != 0 && !Print_CellKeyAllowed(row.toInt(), static_cast<int>(editor->text().size()), code);
    }
    return QDialog::eventFilter(watched, event);
}

void frmPrint::done(int result) {
    Print_Unload(State());
    QDialog::done(result);
}
