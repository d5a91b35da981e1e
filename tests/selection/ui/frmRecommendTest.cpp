// "Recommend..." on the motor page and its list "Recommend" (frmRecommend): the best pairs of the
// whole catalogue, the one chosen picked on the motor page, and the wizard finished from there.
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

#include "core/Tables.h"
#include "selection/ui/frmRecommend.h"
#include "tests/support/Controls.h"
#include "tests/support/WizardFixture.h"

namespace {

class frmRecommendTest : public WizardTest {
protected:
    // The catalogue of the wizard's tests with the group "Big" of series "S",
    // whose 300 W motor OK3 passes with the driver D1.
    void BuildWithBig() {
        const Room room = Twice();
        Build("INSERT INTO ModelMaster VALUES (10, 'Big', 3);" +
              Motor("OK3", 300, room.R, room.X, room.N, kJm, room.A, 3) +
              "INSERT INTO MotorDriverTable VALUES ('OK3', 'D1');");
    }

    // Presses "Recommend..." on the page; the list, once up, is handed to the answer.
    static void Recommend(frmList1* page, std::function<void(frmRecommend*)> answer) {
        QTimer::singleShot(0, [answer = std::move(answer)] {
            auto* list = qobject_cast<frmRecommend*>(QApplication::activeModalWidget());
            ASSERT_NE(list, nullptr);
            answer(list);
            if (list->isVisible()) list->reject();
        });
        Ctl<QPushButton>(page, "cmdRecommend")->click();
    }
};

TEST_F(frmRecommendTest, TheListShowsTheBestPairsSmallestFirst) {
    BuildWithBig();
    frmList1* page = Open();
    Recommend(page, [this](frmRecommend* list) {
        EXPECT_EQ(list->windowTitle(), "Recommend");
        EXPECT_TRUE(list->isModal());
        auto* pairs = Ctl<GridView>(list, "vsfPairs");
        ASSERT_EQ(pairs->rowCount(), 2);
        EXPECT_EQ(pairs->CellText(0, 1), "Series");
        EXPECT_EQ(pairs->CellText(0, 6), "Tightest limit");
        EXPECT_EQ(pairs->CellText(1, 5), "W");
        ExpectCell(pairs, 2, 0, "OK", true, Text());
        EXPECT_EQ(pairs->CellText(2, 1), "S");
        EXPECT_EQ(pairs->CellText(2, 2), "G");
        EXPECT_EQ(pairs->CellText(2, 3), "OK1");
        EXPECT_EQ(pairs->CellText(2, 4), "D1");
        EXPECT_EQ(pairs->CellText(2, 5), "100");
        EXPECT_EQ(pairs->CellText(3, 2), "Big");
        EXPECT_EQ(pairs->CellText(3, 3), "OK3");
        // Twice the room on every datum: the torques take 5/8 (of 80 %) and 5/7 (of 70 %) at most.
        const Room room = Twice();
        const double tightest = std::max({v.T1 / (0.8 * room.R), v.T3 / (0.7 * room.R), v.T2 / (0.8 * room.X), 0.5});
        EXPECT_EQ(pairs->CellText(2, 7), QString::number(tightest, 'f', 2));
        EXPECT_FALSE(pairs->CellText(2, 6).isEmpty());
        EXPECT_FALSE(Ctl<QLabel>(list, "lblSkipped")->isVisible());
    });
    EXPECT_TRUE(msg.Seen().empty());
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->count(), 0);  // Cancel picks nothing
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->rowCount(), 0);
}

TEST_F(frmRecommendTest, ADoubleClickPicksThePairAndTheWizardFinishesWithIt) {
    BuildWithBig();
    frmList1* page = Open();
    Recommend(page, [](frmRecommend* list) {
        auto* pairs = Ctl<GridView>(list, "vsfPairs");
        const QPoint cell = pairs->visualItemRect(pairs->item(1, 3)).center();
        QTest::mouseClick(pairs->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(pairs->viewport(), Qt::LeftButton, {}, cell);
        EXPECT_EQ(list->Chosen(), 1);
    });
    EXPECT_EQ(Ctl<QListWidget>(page, "lstS")->currentItem()->text(), "S");
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->currentItem()->text(), "Big");
    auto* vsfData = Ctl<GridView>(page, "vsfData");
    EXPECT_EQ(vsfData->GridRow(), 2);
    EXPECT_EQ(vsfData->CellText(2, 1), "OK3");
    EXPECT_EQ(vsfData->CellText(2, 0), "OK");  // judged as it is picked

    Ctl<QPushButton>(page, "cmdNext")->click();
    frmList2* drivers = page->List2();
    ASSERT_NE(drivers, nullptr);
    drivers->Form_Activate();
    EXPECT_EQ(Ctl<GridView>(drivers, "vsfDrvList")->CellText(2, 1), "D1");
    Ctl<QPushButton>(drivers, "cmdDecide")->click();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w->Wizard(), nullptr);
    EXPECT_EQ(MotorSelected, 1);
    EXPECT_EQ(MotorModelText.Str(), "OK3");
    EXPECT_EQ(DriverModelText.Str(), "D1");
    EXPECT_EQ(Element[0].Item[0].ItemText.Str(), "300");
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(frmRecommendTest, OkChoosesTheCurrentPair) {
    BuildWithBig();
    frmList1* page = Open();
    Recommend(page, [](frmRecommend* list) { Ctl<QPushButton>(list, "cmdOK")->click(); });
    EXPECT_EQ(Ctl<QListWidget>(page, "lstM")->currentItem()->text(), "G");
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->CellText(2, 1), "OK1");
    EXPECT_EQ(Ctl<QLabel>(page, "lblComment")->text(), "about OK1");
}

TEST_F(frmRecommendTest, WhenNothingPassesItIsSaidAndNoListOpens) {
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);");
    frmList1* page = Open();
    Ctl<QPushButton>(page, "cmdRecommend")->click();
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "No motor and driver of the catalogue pass.");
    EXPECT_EQ(msg.Seen()[0].title, "Recommend");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Information);
}

TEST_F(frmRecommendTest, RowsThatCannotBeJudgedAreCountedUnderTheList) {
    const Room room = Twice();
    Build(Motor("ZERO", 50, room.R, room.X, room.N, 0, room.A) + "INSERT INTO MotorDriverTable VALUES ('ZERO', 'D1');");
    frmList1* page = Open();
    Recommend(page, [](frmRecommend* list) {
        auto* skipped = Ctl<QLabel>(list, "lblSkipped");
        EXPECT_TRUE(skipped->isVisible());
        EXPECT_EQ(skipped->text(), "1 catalogue rows could not be judged and were left out.");
        EXPECT_EQ(Ctl<GridView>(list, "vsfPairs")->CellText(2, 3), "OK1");
    });
}

TEST_F(frmRecommendTest, APairBeyondTheListsOfThePageIsToldAndNothingElseChanges) {
    // Twelve series: the page's lists hold eleven, and the twelfth holds the only motor.
    std::string series;
    for (int s = 1; s <= 12; ++s) series += "INSERT INTO MotorSeriesMaster VALUES ('S" + std::to_string(s) + "', " +
                                            std::to_string(s) + ", " + std::to_string(s) + ");";
    const Room room = Twice();
    Catalogue_Build(appDir.Path(), series + "INSERT INTO ModelMaster VALUES (12, 'G', 1);" +
                                       "INSERT INTO MotorTable VALUES (12, 1, 'FAR', 100, " + Sql(room.N) + ", " +
                                       Sql(kJm) + ", " + Sql(room.R) + ", " + Sql(room.X) + ", " + Sql(room.A) +
                                       ", 2, 0, NULL);"
                                       "INSERT INTO DriverTypeMaster VALUES (1, 'ok', 'ng', 0, 2);" +
                                       Driver("D1", "NULL", "NULL", 1) + "INSERT INTO MotorDriverTable VALUES ('FAR', 'D1');");
    frmList1* page = Open();
    msg.Clear();  // the load told that the lists are full
    Recommend(page, [](frmRecommend* list) { Ctl<QPushButton>(list, "cmdOK")->click(); });
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "The motor cannot be picked: its series or model group lies beyond the lists.");
    EXPECT_EQ(Ctl<GridView>(page, "vsfData")->rowCount(), 0);
}

}  // namespace
