// Where the main window, the palette and the component settings open: the
// place each stored in twips when it was closed, the fallback for a place
// beyond the screen, and no storing while the main window is minimised.
#include <QAction>
#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <gtest/gtest.h>

#include "selection/mdlDataBase.h"
#include "selection/ui/frmList1.h"
#include "tests/support/WorkbenchFixture.h"
#include "tests/selection/CatalogueFixture.h"
#include "tests/selection/SizedDocument.h"
#include "workbench/frmInfobox.h"
#include "workbench/frmItem.h"
#include "workbench/frmMain.h"
#include "workbench/frmUnit.h"

namespace {

constexpr int kTwipsPerPixel = 15;

class WindowPlaceTest : public WorkbenchTest {
protected:
    void SetUp() override {
        WorkbenchTest::SetUp();
        QSettings().remove("Settings");
    }

    void TearDown() override {
        QSettings().remove("Settings");
        WorkbenchTest::TearDown();
    }

    static QString Stored(const char* key) { return QSettings().value(QString("Settings/") + key).toString(); }
    static void Store(const char* key, const QString& value) { QSettings().setValue(QString("Settings/") + key, value); }
    static void Store(const char* key, int value) { Store(key, QString::number(value)); }

    static QSize Screen() { return QGuiApplication::primaryScreen()->size(); }

    // The pixel place of a place in twips.
    static QPoint Pixels(int leftTwips, int topTwips) {
        return {leftTwips / kTwipsPerPixel, topTwips / kTwipsPerPixel};
    }

    static void ShowPalette(frmMain& w) { w.Action("mnuElementSelect")->trigger(); }
    static void ShowSettings(frmMain& w) { w.Action("mnuElementData")->trigger(); }
};

// --- storing at unload and opening there again -------------------------------------

TEST_F(WindowPlaceTest, TheMainWindowStoresItsPlaceInTwipsWhenClosedAndOpensThereAgain) {
    {
        frmMain w;
        w.show();
        w.move(120, 80);
        ASSERT_TRUE(w.close());
        EXPECT_EQ(Stored("MainLeft"), "1800");
        EXPECT_EQ(Stored("MainTop"), "1200");
    }
    frmMain again;
    EXPECT_EQ(again.pos(), QPoint(120, 80));
    again.show();
    EXPECT_EQ(again.pos(), QPoint(120, 80));
}

TEST_F(WindowPlaceTest, ThePaletteStoresItsPlaceWhenItsCloseBoxIsUsed) {
    {
        frmMain w;
        w.show();
        ShowPalette(w);
        frmItem* palette = w.ItemWindow();
        ASSERT_TRUE(palette->isVisible());
        palette->move(300, 200);
        ASSERT_TRUE(palette->close());
        EXPECT_FALSE(palette->isVisible());
        EXPECT_EQ(Stored("ItemLeft"), "4500");
        EXPECT_EQ(Stored("ItemTop"), "3000");
        EXPECT_EQ(Stored("InfoboxLeft"), "");  // the settings window was not closed
    }
    frmMain again;
    EXPECT_EQ(again.ItemWindow()->pos(), QPoint(300, 200));
    again.show();
    ShowPalette(again);
    EXPECT_EQ(again.ItemWindow()->pos(), QPoint(300, 200));
}

TEST_F(WindowPlaceTest, TheSettingsWindowStoresItsPlaceWhenItsCloseBoxIsUsed) {
    {
        frmMain w;
        w.show();
        ShowSettings(w);
        frmInfobox* box = w.Infobox();
        ASSERT_TRUE(box->isVisible());
        box->move(410, 35);
        ASSERT_TRUE(box->close());
        EXPECT_FALSE(box->isVisible());
        EXPECT_EQ(Stored("InfoboxLeft"), "6150");
        EXPECT_EQ(Stored("InfoboxTop"), "525");
        EXPECT_EQ(Stored("ItemLeft"), "");  // the palette was not closed
    }
    frmMain again;
    EXPECT_EQ(again.Infobox()->pos(), QPoint(410, 35));
    again.show();
    ShowSettings(again);
    EXPECT_EQ(again.Infobox()->pos(), QPoint(410, 35));
}

TEST_F(WindowPlaceTest, ClosingTheMainWindowStoresTheFloatingWindowsToo) {
    {
        frmMain w;
        StartWith(w, 0);  // a manual start: the palette and the settings are up
        ASSERT_TRUE(w.ItemWindow()->isVisible());
        ASSERT_TRUE(w.Infobox()->isVisible());
        w.move(40, 30);
        w.ItemWindow()->move(500, 60);
        w.Infobox()->move(520, 300);
        ASSERT_TRUE(w.close());
        EXPECT_FALSE(w.ItemWindow()->isVisible());
        EXPECT_FALSE(w.Infobox()->isVisible());
        EXPECT_EQ(Stored("MainLeft"), "600");
        EXPECT_EQ(Stored("MainTop"), "450");
        EXPECT_EQ(Stored("ItemLeft"), "7500");
        EXPECT_EQ(Stored("ItemTop"), "900");
        EXPECT_EQ(Stored("InfoboxLeft"), "7800");
        EXPECT_EQ(Stored("InfoboxTop"), "4500");
        EXPECT_EQ(Stored("UnitLeft"), "");  // never opened, so not unloaded
        EXPECT_EQ(Stored("ListLeft"), "");
    }
    frmMain again;
    EXPECT_EQ(again.pos(), QPoint(40, 30));
    EXPECT_EQ(again.ItemWindow()->pos(), QPoint(500, 60));
    EXPECT_EQ(again.Infobox()->pos(), QPoint(520, 300));
    EXPECT_TRUE(msg.Seen().empty());
}

TEST_F(WindowPlaceTest, ClosingTheMainWindowUnloadsTheUnitWindowWithItsPlace) {
    frmMain w;
    w.show();
    w.Action("mnuPerSet")->trigger();
    frmUnit* units = w.UnitWindow();
    ASSERT_TRUE(units->isVisible());
    units->move(330, 140);
    ASSERT_TRUE(w.close());
    EXPECT_FALSE(units->isVisible());
    EXPECT_EQ(Stored("UnitLeft"), "4950");
    EXPECT_EQ(Stored("UnitTop"), "2100");
}

TEST_F(WindowPlaceTest, EscapeInTheUnitWindowStoresItsPlaceToo) {
    frmMain w;
    w.show();
    w.Action("mnuPerSet")->trigger();
    frmUnit* units = w.UnitWindow();
    ASSERT_TRUE(units->isVisible());
    units->move(210, 120);
    QTest::keyClick(units, Qt::Key_Escape);
    EXPECT_FALSE(units->isVisible());
    EXPECT_EQ(Stored("UnitLeft"), "3150");
    EXPECT_EQ(Stored("UnitTop"), "1800");
}

TEST_F(WindowPlaceTest, ClosingTheMainWindowUnloadsTheWizardWithItsPlace) {
    frmMain w;
    StartWith(w, 1);
    Document_Sized();
    w.Disp_Refresh();
    Catalogue_Build(appDir.Path(), "INSERT INTO MotorSeriesMaster VALUES ('S', 10, 1);");
    w.Action("mnuMortorSelect")->trigger();
    frmList1* page = w.Wizard();
    ASSERT_NE(page, nullptr);
    ASSERT_TRUE(SeriesConnection.IsOpen());
    page->move(210, 170);
    DirtyFlag = 0;
    ASSERT_TRUE(w.close());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(w.Wizard(), nullptr);
    EXPECT_FALSE(SeriesConnection.IsOpen());
    EXPECT_EQ(Stored("ListLeft"), "3150");
    EXPECT_EQ(Stored("ListTop"), "2550");
}

// --- the place at load -------------------------------------------------------------

TEST_F(WindowPlaceTest, WithNothingStoredEachWindowTakesItsDefault) {
    frmMain w;
    EXPECT_EQ(w.pos(), Pixels(100, 100));
    EXPECT_EQ(w.ItemWindow()->pos(), Pixels(1000, 1000));
    EXPECT_EQ(w.Infobox()->pos(), Pixels(1000, 1000));
}

TEST_F(WindowPlaceTest, ALeftAtTheScreenWidthPutsTheWindowAtTheFallback) {
    const int width = Screen().width() * kTwipsPerPixel;
    Store("MainLeft", width);
    Store("MainTop", 450);
    Store("ItemLeft", width + 15000);
    Store("ItemTop", 450);
    Store("InfoboxLeft", width);
    Store("InfoboxTop", 0);
    frmMain w;
    EXPECT_EQ(w.pos(), Pixels(100, 100));
    EXPECT_EQ(w.ItemWindow()->pos(), Pixels(100, 100));
    EXPECT_EQ(w.Infobox()->pos(), Pixels(100, 100));
}

TEST_F(WindowPlaceTest, ATopAtTheScreenHeightPutsTheWindowAtTheFallback) {
    const int height = Screen().height() * kTwipsPerPixel;
    Store("MainLeft", 450);
    Store("MainTop", height);
    Store("ItemLeft", 0);
    Store("ItemTop", height);
    Store("InfoboxLeft", 450);
    Store("InfoboxTop", height + 30000);
    frmMain w;
    EXPECT_EQ(w.pos(), Pixels(100, 100));
    EXPECT_EQ(w.ItemWindow()->pos(), Pixels(100, 100));
    EXPECT_EQ(w.Infobox()->pos(), Pixels(100, 100));
}

TEST_F(WindowPlaceTest, APlaceJustInsideTheScreenIsKept) {
    const QSize screen = Screen();
    const int left = (screen.width() - 1) * kTwipsPerPixel;
    const int top = (screen.height() - 1) * kTwipsPerPixel;
    Store("MainLeft", left);
    Store("MainTop", top);
    Store("ItemLeft", left);
    Store("ItemTop", 0);
    Store("InfoboxLeft", 0);
    Store("InfoboxTop", top);
    frmMain w;
    EXPECT_EQ(w.pos(), QPoint(screen.width() - 1, screen.height() - 1));
    EXPECT_EQ(w.ItemWindow()->pos(), QPoint(screen.width() - 1, 0));
    EXPECT_EQ(w.Infobox()->pos(), QPoint(0, screen.height() - 1));
}

TEST_F(WindowPlaceTest, AStoredPlaceThatIsNoNumberIsToldAndTheDefaultStays) {
    Store("MainLeft", "left");
    frmMain w;
    ASSERT_EQ(msg.Seen().size(), 1u);
    EXPECT_EQ(msg.Seen()[0].text, "The stored window position could not be read (Type mismatch).");
    EXPECT_EQ(msg.Seen()[0].title, "Torvane");
    EXPECT_EQ(msg.Seen()[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(w.ItemWindow()->pos(), Pixels(1000, 1000));
}

// --- no storing while minimised ----------------------------------------------------

TEST_F(WindowPlaceTest, AMinimisedMainWindowKeepsTheStoredPlaces) {
    Store("MainLeft", 1500);
    Store("MainTop", 750);
    Store("ItemLeft", 3000);
    Store("ItemTop", 3000);
    Store("InfoboxLeft", 4500);
    Store("InfoboxTop", 4500);
    frmMain w;
    StartWith(w, 0);
    w.move(250, 150);
    w.ItemWindow()->move(400, 20);
    w.Infobox()->move(420, 260);
    w.showMinimized();
    QApplication::processEvents();
    ASSERT_TRUE(w.isMinimized());
    ASSERT_TRUE(w.ItemWindow()->isMinimized());  // the floating windows follow into the taskbar
    ASSERT_TRUE(w.Infobox()->isMinimized());
    ASSERT_TRUE(w.close());
    EXPECT_EQ(Stored("MainLeft"), "1500");
    EXPECT_EQ(Stored("MainTop"), "750");
    EXPECT_EQ(Stored("ItemLeft"), "3000");
    EXPECT_EQ(Stored("ItemTop"), "3000");
    EXPECT_EQ(Stored("InfoboxLeft"), "4500");
    EXPECT_EQ(Stored("InfoboxTop"), "4500");
}

TEST_F(WindowPlaceTest, AMinimisedPaletteKeepsItsStoredPlace) {
    Store("ItemLeft", 3000);
    Store("ItemTop", 1500);
    frmMain w;
    w.show();
    ShowPalette(w);
    frmItem* palette = w.ItemWindow();
    palette->move(350, 90);
    palette->showMinimized();
    ASSERT_TRUE(palette->isMinimized());
    ASSERT_TRUE(palette->close());
    EXPECT_EQ(Stored("ItemLeft"), "3000");
    EXPECT_EQ(Stored("ItemTop"), "1500");
}

}  // namespace
