#include "workbench/frmInsertQ.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmInsertQ::frmInsertQ(QWidget* parent) : QDialog(parent) {
    setObjectName("frmInsertQ");
    setWindowTitle(QString::fromUtf8("Insert\xEF\xBC\x8FOverwrite"));
    setModal(true);
    auto* text = new QLabel("Insert?  Overwrite?", this);
    text->setObjectName("Label1");
    cmdInsert = new QPushButton("Insert", this);
    cmdInsert->setObjectName("cmdInsert");
    cmdUpdate = new QPushButton("Overwrite", this);
    cmdUpdate->setObjectName("cmdUpdate");
    Command1 = new QPushButton("Cancel", this);
    Command1->setObjectName("Command1");
    cmdInsert->setDefault(true);
    auto answer = [this](int16_t a) {
        Answer = a;
        accept();
    };
    connect(cmdInsert, &QPushButton::clicked, this, [answer] { answer(1); });
    connect(cmdUpdate, &QPushButton::clicked, this, [answer] { answer(2); });
    connect(Command1, &QPushButton::clicked, this, [answer] { answer(-1); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdInsert);
    buttons->addWidget(cmdUpdate);
    buttons->addWidget(Command1);
    auto* main = new QVBoxLayout(this);
    main->addWidget(text);
    main->addLayout(buttons);
}

MsgAnswer frmInsertQ::Ask(QWidget* parent) {
    frmInsertQ q(parent);
    q.exec();
    if (q.Answer == 1) return MsgAnswer::Insert;
    if (q.Answer == 2) return MsgAnswer::Overwrite;
    return MsgAnswer::Cancel;
}
