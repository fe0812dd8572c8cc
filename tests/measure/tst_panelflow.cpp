#include "data/datameasures.h"
#include "measure/panelfixture.h"
#include "shell/orvia.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <QDir>
#include <cmath>

using namespace panelfixture;

// A module test from the main menu to the file on disk, driven as the
// operator drives it: touches on the menu, the wiring picture and the forms,
// the hardware keys on the module screen.
class TestPanelFlow : public QObject
{
    Q_OBJECT

    struct Outcome {
        int result = -1;
        QString file;
        float pmaxStc = 0;
    };

    // One whole test of the simulated module against the reference SIM 250.
    static Outcome runFromTheMenu(const TestRoot& root, const SimInstrument& sim,
                                  const QString& shot)
    {
        Outcome out;
        ModalDriver outer; // the wiring picture, then the module screen
        ModalDriver inner; // what the module screen opens
        Orvia menu;
        menu.show();
        outer.onNext([](QWidget* w) { touch(w, "Continua"); });
        outer.onNext([&](QWidget* w) {
            PanelIV* panel = qobject_cast<PanelIV*>(w);
            if (panel == nullptr) {
                qWarning("not the module screen: %s", w->metaObject()->className());
                return;
            }
            // the inner driver takes the module screen itself as met
            inner.onNext([](QWidget*) {});
            QTest::qWait(20);
            hardKey(sim, "return", panel); // Start has the focus
            if (!panel->_measureDone)
                qWarning("no measure");
            inner.onNext([](QWidget* r) { chooseInReferenceDialog(r, "Simul", "SIM 250"); });
            inner.onNext([](QWidget* a) { touch(a, "Non Applicare"); });
            hardKey(sim, "down", panel);
            hardKey(sim, "return", panel); // "Confronto"
            out.result = panel->_result;
            out.pmaxStc = panel->_pmaxStc;
            if (!shot.isEmpty())
                saveScreenshot(panel, shot);
            inner.onNext([](QWidget*) {}); // the module screen, active again
            QTest::qWait(20);
            inner.onNext([](QWidget* f) { touch(f, "Salva"); });
            inner.answerBox();
            hardKey(sim, "down", panel);
            hardKey(sim, "down", panel);
            hardKey(sim, "return", panel); // "Salva"
            hardKey(sim, "escape", panel);
        });
        touch(&menu, "Modulo");
        QStringList files = QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files);
        if (files.size() == 1)
            out.file = files[0];
        if (outer.pending() != 0 || inner.pending() != 0)
            qWarning("windows not met: %d %d", outer.pending(), inner.pending());
        if (inner.boxes.size() != 1 || inner.boxes[0].text != "Misura Salvata.")
            qWarning("save not confirmed");
        return out;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void moduleTestFromTheMenuToTheSavedFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 850, 45));
        const double isc = sim.field("pv figures", "isc").toDouble();
        const double voc = sim.field("pv figures", "voc").toDouble();
        const double pmax = sim.field("pv figures", "pmax").toDouble();
        // the module's true power at standard conditions
        QVERIFY(sim.setIrradiance(1000) && sim.setCellTemperature(25));
        const double pmaxStc = sim.field("pv figures", "pmax").toDouble();
        QVERIFY(world(sim, 850, 45));

        Outcome out = runFromTheMenu(root, sim, "panel_flow_verdict");
        QCOMPARE(out.result, 1);
        QVERIFY(!out.file.isEmpty());
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(out.file.toLatin1().constData(), &m, MEA_PANEL), 511);
        QVERIFY2(std::fabs(m.misc - isc) <= 0.02, qPrintable(QString("%1 %2").arg(m.misc).arg(isc)));
        QVERIFY2(std::fabs(m.mvoc - voc) <= 0.5, qPrintable(QString("%1 %2").arg(m.mvoc).arg(voc)));
        QVERIFY2(std::fabs(m.mpmax - pmax) <= 0.01 * pmax,
                 qPrintable(QString("%1 %2").arg(m.mpmax).arg(pmax)));
        QVERIFY2(std::fabs(m.spmax - pmaxStc) <= 0.03 * pmaxStc,
                 qPrintable(QString("%1 %2").arg(m.spmax).arg(pmaxStc)));
        QCOMPARE(m.mcomp, 1);
        QCOMPARE(m.mtest, 1);
        QCOMPARE(QByteArray(m.rname), QByteArray("SIM 250"));
        QCOMPARE(QByteArray(m.rbname), QByteArray("Simul"));
        QCOMPARE(m.ref.pmax, 250.0f);
        QVERIFY(std::fabs(m.mirr - 850) < 1.0f);
        QVERIFY(std::fabs(m.mtemp - 45) < 0.5f);
        freeMeasureData(&m);
    }
    void moduleTenPercentBelowItsDataSheetFails()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set module pmax=225.09 impp=7.38 isc=7.83"));
        Outcome out = runFromTheMenu(root, sim, QString());
        QCOMPARE(out.result, 0);
        QVERIFY(!out.file.isEmpty());
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(out.file.toLatin1().constData(), &m, MEA_PANEL), 511);
        QCOMPARE(m.mtest, 0);
        QVERIFY(m.mdpmax < -8.0f);
        freeMeasureData(&m);
    }
    void wiringPictureLeftOpensNoModuleScreen()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Orvia menu;
        menu.show();
        touch(&menu, "Modulo");
        QCOMPARE(seen, QStringList{"DialogCollegamenti"});
        QVERIFY(menu.findChild<PanelIV*>() == nullptr);
    }
};

QTEST_MAIN(TestPanelFlow)
#include "tst_panelflow.moc"
