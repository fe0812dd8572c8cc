// The bench window of the simulator, driven as a developer would: each control
// changes the simulated world, the keys reach the key lines, and the board's
// commands show in the log.
#include "benchwindow.h"
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QtTest>
#include <cmath>

class TestBench : public QObject
{
    Q_OBJECT

    static QString socket(const TestRoot& root) { return root.path("/dev/krm510-sim.sock"); }
    static double world(const SimInstrument& sim, const char* key)
    {
        return sim.field("get", key).toDouble();
    }

private slots:
    void everyModuleOfTheBenchFitsTheSimulator()
    {
        TestRoot root;
        SimInstrument sim(root);
        BenchWindow bench(socket(root));
        QComboBox* module = bench.findChild<QComboBox*>("module");
        QLabel* answer = bench.findChild<QLabel*>("answer");
        QVERIFY(module && answer);
        QCOMPARE(module->count(), BenchWindow::moduleCount);
        QSet<QString> technologies;
        for (int i = module->count() - 1; i >= 0; i--) {
            module->setCurrentIndex(i);
            QVERIFY2(answer->text().endsWith("->  ok"), qPrintable(answer->text()));
            const double pmax = sim.field("pv figures", "pmax").toDouble();
            QVERIFY2(std::fabs(pmax - BenchWindow::modules[i].pmax) <
                         0.02 * BenchWindow::modules[i].pmax,
                     BenchWindow::modules[i].name);
            QVERIFY(bench.findChild<QLabel*>("dataSheet")
                        ->text()
                        .startsWith(BenchWindow::modules[i].technology));
            technologies.insert(BenchWindow::modules[i].technology);
        }
        QVERIFY(technologies.size() >= 4);
    }

    void controlsSetTheWorld()
    {
        TestRoot root;
        SimInstrument sim(root);
        BenchWindow bench(socket(root));
        bench.findChild<QDoubleSpinBox*>("irradiance")->setValue(650);
        QCOMPARE(world(sim, "irradiance"), 650.0);
        bench.findChild<QDoubleSpinBox*>("tmodule")->setValue(47.5);
        QCOMPARE(world(sim, "tcell"), 47.5);
        bench.findChild<QDoubleSpinBox*>("tambient")->setValue(31);
        QCOMPARE(world(sim, "tambient"), 31.0);
        bench.findChild<QDoubleSpinBox*>("battery")->setValue(11.2);
        QCOMPARE(world(sim, "battery"), 11.2);
        bench.findChild<QCheckBox*>("adapter")->setChecked(true);
        QCOMPARE(sim.field("gpio 105", "level"), QByteArray("1"));
        bench.findChild<QSpinBox*>("series")->setValue(12);
        QCOMPARE(world(sim, "series"), 12.0);
        bench.findChild<QCheckBox*>("stick")->setChecked(true);
        QCOMPARE(sim.field("get", "stick"), QByteArray("in"));
        QVERIFY(QFile::exists(root.path("/dev/sda1")));
        bench.findChild<QCheckBox*>("stick")->setChecked(false);
        QVERIFY(!QFile::exists(root.path("/dev/sda1")));
    }

    void faultsReachTheSource()
    {
        TestRoot root;
        SimInstrument sim(root);
        BenchWindow bench(socket(root));
        QComboBox* fault = bench.findChild<QComboBox*>("fault");
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("1"));
        fault->setCurrentIndex(fault->findData("shade 0.5 0 0"));
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("2"));
        fault->setCurrentIndex(fault->findData("none"));
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("1"));
        // the faults beside the cells lower the power; none brings it back
        const double pmax = sim.field("pv figures", "pmax").toDouble();
        for (const char* f : {"rs 1", "shunt 20"}) {
            fault->setCurrentIndex(fault->findData(f));
            QVERIFY2(sim.field("pv figures", "pmax").toDouble() < 0.95 * pmax, f);
            fault->setCurrentIndex(fault->findData("none"));
            QCOMPARE(sim.field("pv figures", "pmax").toDouble(), pmax);
        }
        QVERIFY(fault->findData("noise 2") >= 0);
        // an open circuit: the board refuses the ramp with its error 10
        fault->setCurrentIndex(fault->findData("open"));
        TermiosClient board(root.path("/dev/ttyS1"));
        QVERIFY(board.exchange("mea_brask\r").contains("ERROR 10"));
    }

    void timingFollowsTheRadioButtons()
    {
        TestRoot root;
        SimInstrument sim(root, true);
        BenchWindow bench(socket(root));
        QVERIFY(bench.findChild<QRadioButton*>("fast")->isChecked()); // as the simulator started
        bench.findChild<QRadioButton*>("real")->setChecked(true);
        QVERIFY(sim.value("ping").contains("mode=real"));
        bench.findChild<QRadioButton*>("fast")->setChecked(true);
        QVERIFY(sim.value("ping").contains("mode=fast"));
    }

    void aClickIsOnePressAndAHeldKeyStaysDown()
    {
        TestRoot root;
        SimInstrument sim(root);
        BenchWindow bench(socket(root));
        QPushButton* down = bench.findChild<QPushButton*>("key_down");
        QVERIFY(down);
        QTest::mouseClick(down, Qt::LeftButton);
        QCOMPARE(sim.field("gpio 81", "tap"), QByteArray("1"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/81"), QByteArray("ok 0 0"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/81"), QByteArray("ok 0 1"));
        QTest::qWait(500); // no late press after a click
        QCOMPARE(sim.field("gpio 81", "level"), QByteArray("1"));

        QPushButton* escape = bench.findChild<QPushButton*>("key_escape");
        QTest::mousePress(escape, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(sim.field("gpio 93", "level"), QByteArray("0"), 3000);
        QTest::mouseRelease(escape, Qt::LeftButton);
        QCOMPARE(sim.field("gpio 93", "level"), QByteArray("1"));
    }

    void theLogShowsTheBoardsCommands()
    {
        TestRoot root;
        SimInstrument sim(root);
        BenchWindow bench(socket(root));
        TermiosClient board(root.path("/dev/ttyS1"));
        QVERIFY(board.exchange("ver\r").contains("KRM510PD"));
        QVERIFY(board.exchange("hsink\r").size() > 0);
        bench.refresh();
        const QString log = bench.findChild<QPlainTextEdit*>("log")->toPlainText();
        QVERIFY2(log.contains("ver") && log.contains("hsink"), qPrintable(log));
        QVERIFY(log.indexOf("ver") < log.indexOf("hsink"));
        // nothing twice
        bench.refresh();
        QCOMPARE(bench.findChild<QPlainTextEdit*>("log")->toPlainText(), log);
        QVERIFY(bench.findChild<QLabel*>("state")->text().contains("irradiance="));
    }

    void logLinesAreUnescaped()
    {
        QCOMPARE(BenchWindow::parseLog("ok 2 ver\\r mea_brask\\x201\\r"),
                 (QStringList{"ver\\r", "mea_brask 1\\r"}));
        QCOMPARE(BenchWindow::parseLog("ok 0"), QStringList());
        QCOMPARE(BenchWindow::parseLog("error nothing"), QStringList());
    }

    void withoutSimulatorTheWindowSaysSo()
    {
        TestRoot root;
        BenchWindow bench(socket(root));
        QVERIFY(bench.call("ping").isEmpty());
        QVERIFY(bench.findChild<QLabel*>("state")->text().contains("does not answer"));
    }
};

QTEST_MAIN(TestBench)
#include "tst_bench.moc"
