// "Motor Selection", the first page of the selection wizard: a series and a
// model group are picked, their motors judged against the application, and
// "Next >" takes one on to the driver page. It stays open beside the main
// window without blocking it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

#include "selection/MotorPage.h"

class QLabel;
class QListWidget;
class QPushButton;
class GridView;
class frmList2;

class frmList1 : public QWidget {
    Q_OBJECT
public:
    // decided runs after "Finish" of the driver page stored motor and driver.
    explicit frmList1(QWidget* parent = nullptr);

    // 1 from the opening until the first activation, which leaves the focus alone.
    int16_t WizardOpening = 0;

    void lstS_Click(int index);
    void lstM_Click(int index);
    void cmdJudge_Click();
    void cmdNext_Click();
    // "Print": the series list print dialog, while a series and a group are picked.
    void CmdPrint_Click();
    // "Recommend...": the best pairs of the whole catalogue; the one chosen
    // is picked in the lists and the grid.
    void cmdRecommend_Click();
    // "< Back" and "Cancel": both pages unload, the selection that stood stays.
    void Wizard_Unload();
    // The page that is up, or this one when the driver page never came.
    QWidget* ShownPage();
    frmList2* List2() const { return list2_; }
    const MotorPage& Page() const { return page_; }
    void Form_Activate();

signals:
    // "Finish" on the driver page committed the selection: the main window repaints.
    void decided();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void Disp_Page();

    QListWidget* lstS = nullptr;
    QListWidget* lstM = nullptr;
    GridView* vsfData = nullptr;
    QLabel* lblComment = nullptr;
    QPushButton* cmdJudge = nullptr;
    QPushButton* CmdPrint = nullptr;
    QPushButton* cmdRecommend = nullptr;
    QPushButton* cmdReverce = nullptr;
    QPushButton* cmdNext = nullptr;
    QPushButton* CmdCancel = nullptr;

    MotorPage page_;
    frmList2* list2_ = nullptr;
    bool unloading_ = false;
};
