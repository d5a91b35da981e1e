// The two edits a user makes most, timed through the real main window
// offscreen on an example application: a pattern cell typed and committed,
// and a component setting typed and committed, each until the grid, the
// graphs and the results have been redrawn (the window rendered whole).
//   QT_QPA_PLATFORM=offscreen bench_edit [-iterations N]
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "core/Startup.h"
#include "core/Tables.h"
#include "tests/support/Typing.h"

class BenchEdit : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        qputenv("TORVANE_APP_PATH", TORVANE_BINARY_DIR);
        Main_Prepare(TORVANE_SOURCE_DIR "/examples/horizontal-ballscrew.AP2");
        window_ = new frmMain;
        window_->resize(1024, 768);
        window_->show();
        window_->Start();
        QApplication::processEvents();
        QVERIFY(PatternRowCount > 0);
    }

    // The speed of the run interval, changed back and forth.
    void patternCell() {
        int i = 0;
        QBENCHMARK {
            QVERIFY(Type_PatternCell(*window_, 3, 3, ++i % 2 ? "2900" : "3000"));
            window_->grab();
        }
    }

    // The workpiece mass of the linear load, changed back and forth.
    void componentSetting() {
        QTest::mouseClick(Ctl<QLabel>(window_, "imgElement", 3), Qt::LeftButton);
        QApplication::processEvents();
        int i = 0;
        QBENCHMARK {
            QVERIFY(Type_Setting(window_->Infobox(), 1, ++i % 2 ? "21" : "20"));
            window_->grab();
        }
    }

    void cleanupTestCase() { delete window_; }

private:
    frmMain* window_ = nullptr;
};

QTEST_MAIN(BenchEdit)
#include "bench_edit.moc"
