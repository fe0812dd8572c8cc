#include "data/datameasures.h"
#include "measure/dialogambiente.h"
#include "measure/dialogrs.h"
#include "measure/dialogviewrs.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "support/modaldriver.h"

#include <QDir>
#include <QLabel>
#include <cmath>

using namespace panelfixture;

// The series resistance and environment entries of the module screen, from
// the menu to the value handed back.
class TestPanelEnv : public QObject
{
    Q_OBJECT

    static QAction* action(QWidget* panel, const char* name)
    {
        return panel->findChild<QAction*>(name);
    }
    // Waits in the open Rs dialog until it reads the irradiance g.
    static bool reads(DialogRs* d, float g)
    {
        for (int i = 0; i < 500; i++) {
            if (d->_irradianceValid && std::fabs(d->_irradiance - g) < 0.5f &&
                d->_buttonMeasure->isEnabled())
                return true;
            QTest::qWait(10);
        }
        return false;
    }

    // Takes the series resistance at 900 then 600 W/m2 from "Rs" / "Calcolo".
    static bool takeRs(QWidget* panel, const SimInstrument& sim, ModalDriver& driver)
    {
        bool ran = false;
        driver.onWindow("DialogRs", [&](QWidget* w) {
            DialogRs* d = qobject_cast<DialogRs*>(w);
            QVERIFY(reads(d, 900));
            QTest::mouseClick(d->_buttonMeasure, Qt::LeftButton);
            QVERIFY(sim.setIrradiance(600));
            QVERIFY(reads(d, 600));
            QTest::mouseClick(d->_buttonMeasure, Qt::LeftButton);
            QVERIFY(d->_done);
            ran = true;
            QTest::mouseClick(d->_buttonExit, Qt::LeftButton);
        });
        action(panel, "RsCalcolo")->trigger();
        return ran;
    }
    // Saves through "Salva" and its form; reads the one saved file back.
    static bool saveAndRead(QWidget* screen, const TestRoot& root, ModalDriver& driver,
                            const char* folder, _meaType kind, _measure* m)
    {
        driver.onNext([](QWidget* w) { touch(w, "Salva"); });
        driver.answerBox();
        touch(screen, "Salva");
        if (driver.boxes.isEmpty() || driver.boxes.last().text != "Misura Salvata.")
            return false;
        const QStringList files = QDir(root.path((QByteArray("/krm510data/") + folder).constData()))
                                      .entryList(QDir::Files);
        if (files.size() != 1)
            return false;
        std::memset(m, 0, sizeof *m);
        return readMeasureData(files[0].toLatin1().constData(), m, kind) == 511;
    }

    struct Seen {
        int probe = -1;
        float gain = 0, offset = 0, typed = 0;
        bool live = false;
    };
    // Opens the live environment from "Misure" with a probe mode and settings.
    static Seen liveWith(_probeTemp mode)
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [mode](_configParam& c) {
            c.tprobe = mode;
            c.utemp = 31.5f;
            c.tmenv = 1.25f;
            c.toenv = -2.5f;
            c.tmmod = 1.75f;
            c.tomod = 3.5f;
        });
        Seen seen;
        if (!world(sim, 800, 40))
            return seen;
        ModalDriver driver;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            seen = {d->_probe, d->_gain, d->_offset, d->_temperature, d->_realTime};
            QTest::keyClick(w, Qt::Key_Escape);
        });
        PanelIV panel(nullptr);
        panel.show();
        child<QPushButton>(&panel, "Misure")->setFocus();
        QTest::keyClick(&panel, Qt::Key_Return);
        return seen;
    }

private slots:
    void seriesResistanceAtTwoIrradiancesIsVmppOverImppAndIsSavedAfterAFailedMeasure()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        QVERIFY(!action(&panel, "RsMisurato")->isEnabled());
        QVERIFY(!action(&panel, "AmbienteMisurato")->isEnabled());
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(action(&panel, "AmbienteMisurato")->isEnabled());
        // the simulated module's own maximum power point at the first conditions
        const double vmpp = sim.field("pv figures", "vmpp").toDouble();
        const double impp = sim.field("pv figures", "impp").toDouble();
        QVERIFY(vmpp > 0 && impp > 0);
        const double expected = vmpp / impp;
        QVERIFY(takeRs(&panel, sim, driver));
        QVERIFY(panel._rsDone);
        qInfo("Rs %.4f ohm, simulated Vmpp/Impp %.4f ohm, screen %.4f ohm", panel._rs, expected,
              panel._vmpp / panel._impp);
        QVERIFY2(std::fabs(panel._rs - expected) < 0.03 * expected,
                 qPrintable(QString("%1 %2").arg(panel._rs).arg(expected)));
        QVERIFY(std::fabs(panel._rsI1 - 900) < 0.5f);
        QVERIFY(std::fabs(panel._rsI2 - 600) < 0.5f);
        QVERIFY(action(&panel, "RsMisurato")->isEnabled());

        // a failed measure keeps the series resistance
        QVERIFY(sim.command("fault open"));
        driver.answerBox();
        touch(&panel, "Start");
        QVERIFY(!panel._measureDone);
        QCOMPARE(entries(measuresMenu(&panel)), (QStringList{"Rs", "-", "Ambiente"}));
        QVERIFY(!action(&panel, "AmbienteMisurato")->isEnabled());
        QVERIFY(panel._rsDone);
        QVERIFY(action(&panel, "RsMisurato")->isEnabled());
        QVERIFY(sim.command("fault none"));
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(panel._rsDone);
        QVERIFY(std::fabs(panel._rsI1 - 900) < 0.5f);
        // and is saved with the next good one
        const float rs = panel._rs;
        _measure m;
        QVERIFY(saveAndRead(&panel, root, driver, "datameapanel", MEA_PANEL, &m));
        QCOMPARE(int(m.mrstest), 1);
        QCOMPARE(m.mrs, rs);
        QVERIFY(std::fabs(m.mrsi1 - 900) < 0.5f);
        QVERIFY(std::fabs(m.mrsi2 - 600) < 0.5f);
        freeMeasureData(&m);
    }
    void returnOnMeasuresOpensTheLiveEnvironmentWithTheProbeSettings()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) {
            c.tprobe = PROBE_MANUAL;
            c.utemp = 31.5f;
        });
        QVERIFY(world(sim, 800, 40));
        ModalDriver driver;
        DialogAmbiente* seen = nullptr;
        bool live = false;
        float temperature = 0;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            seen = qobject_cast<DialogAmbiente*>(w);
            live = seen->_realTime;
            temperature = seen->_temperature;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        PanelIV panel(nullptr);
        panel.show();
        child<QPushButton>(&panel, "Misure")->setFocus();
        QTest::keyClick(&panel, Qt::Key_Return);
        QVERIFY(seen != nullptr);
        QVERIFY(live);
        QCOMPARE(temperature, 31.5f);
    }
    void measuredEnvironmentHandsOverTheMeasureByTheProbeMode()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) {
            c.tprobe = PROBE_MANUAL;
            c.utemp = 31.5f;
        });
        QVERIFY(world(sim, 800, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        // the manual mode hands over the measure's value, then takes the typed one
        panel._temperature = 12.25f;
        QString shown;
        int mode = -1;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            shown = d->_labelTemperature->text();
            mode = d->_probe;
            QVERIFY(!d->_realTime);
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "AmbienteMisurato")->trigger();
        QCOMPARE(shown, QString("12.25"));
        QCOMPARE(mode, int(PROBE_MANUAL));
        QCOMPARE(panel._temperature, 31.5f);
        // an unknown mode is shown as ambient
        panel._config.tprobe = static_cast<_probeTemp>(9);
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            mode = qobject_cast<DialogAmbiente*>(w)->_probe;
            shown = qobject_cast<DialogAmbiente*>(w)->_labelTemperature->text();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "AmbienteMisurato")->trigger();
        QCOMPARE(mode, int(PROBE_AMBIENT));
        QCOMPARE(shown, QString("31.50")); // no reference: the measure's own
    }
    void savedModuleMeasureCarriesTheSeriesResistanceShownAndBothIrradiances()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(takeRs(&panel, sim, driver));
        QVERIFY(panel._rsDone);
        QString shown;
        driver.onWindow("DialogViewRs", [&](QWidget* w) {
            shown = w->findChild<QLabel*>("Rs")->text();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "RsMisurato")->trigger();
        _measure m;
        QVERIFY(saveAndRead(&panel, root, driver, "datameapanel", MEA_PANEL, &m));
        QCOMPARE(int(m.mrstest), 1);
        QCOMPARE(m.mrs, panel._rs);
        QCOMPARE(QString::number(m.mrs, 'f', 2), shown);
        QVERIFY2(std::fabs(m.mrsi1 - 900) < 0.5f, qPrintable(QString::number(m.mrsi1)));
        QVERIFY2(std::fabs(m.mrsi2 - 600) < 0.5f, qPrintable(QString::number(m.mrsi2)));
        QCOMPARE(m.mrsi1, panel._rsI1);
        QCOMPARE(m.mrsi2, panel._rsI2);
        freeMeasureData(&m);
    }
    void savedStringMeasureCarriesNoSeriesResistance()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        StringIV screen(nullptr);
        screen.show();
        screenkinds::enterCount(driver, 4);
        touch(&screen, "Start");
        QVERIFY(screen._measureDone);
        _measure m;
        QVERIFY(saveAndRead(&screen, root, driver, "datameastring", MEA_STRING, &m));
        QCOMPARE(int(m.mrstest), 0);
        QCOMPARE(m.mrs, 0.0f);
        QCOMPARE(m.mrsi1, 0.0f);
        QCOMPARE(m.mrsi2, 0.0f);
        freeMeasureData(&m);
    }
    void measuredRsOpensTheStoredResultAndEscapeClosesIt()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(takeRs(&panel, sim, driver));
        QString rs, irr1, irr2;
        bool closed = false;
        driver.onWindow("DialogViewRs", [&](QWidget* w) {
            rs = w->findChild<QLabel*>("Rs")->text();
            irr1 = w->findChild<QLabel*>("Irr. 1")->text();
            irr2 = w->findChild<QLabel*>("Irr. 2")->text();
            QTest::keyClick(w, Qt::Key_Escape);
            closed = !w->isVisible();
        });
        action(&panel, "RsMisurato")->trigger();
        QVERIFY(closed);
        QCOMPARE(rs, QString::number(panel._rs, 'f', 2));
        QCOMPARE(irr1, QString::number(panel._rsI1, 'f', 2));
        QCOMPARE(irr2, QString::number(panel._rsI2, 'f', 2));
    }
    void stringMeasuredEnvironmentShowsTheMeasureStill()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_MODULE; });
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        StringIV screen(nullptr);
        screen.show();
        screenkinds::enterCount(driver, 4);
        touch(&screen, "Start");
        QVERIFY(screen._measureDone);
        bool live = true;
        QString t, g;
        int mode = -1;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            live = d->_realTime;
            t = d->_labelTemperature->text();
            g = d->_labelIrradiance->text();
            mode = d->_probe;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&screen, "AmbienteMisurato")->trigger();
        QVERIFY(!live);
        QCOMPARE(mode, int(PROBE_MODULE));
        QCOMPARE(t, QString::number(screen._temperature, 'f', 2));
        QCOMPARE(g, QString::number(screen._irradiance, 'f', 2));
    }
    void liveEnvironmentOfTheAmbientProbeTakesTheAmbientCalibration()
    {
        const Seen s = liveWith(PROBE_AMBIENT);
        QVERIFY(s.live);
        QCOMPARE(s.probe, int(PROBE_AMBIENT));
        QCOMPARE(s.gain, 1.25f);
        QCOMPARE(s.offset, -2.5f);
    }
    void liveEnvironmentOfTheModuleProbeTakesTheModuleCalibration()
    {
        const Seen s = liveWith(PROBE_MODULE);
        QVERIFY(s.live);
        QCOMPARE(s.probe, int(PROBE_MODULE));
        QCOMPARE(s.gain, 1.75f);
        QCOMPARE(s.offset, 3.5f);
    }
    void liveEnvironmentOfTheAutomaticModeTakesTheModuleCalibration()
    {
        const Seen s = liveWith(PROBE_AUTO);
        QVERIFY(s.live);
        QCOMPARE(s.probe, int(PROBE_AUTO));
        QCOMPARE(s.gain, 1.75f);
        QCOMPARE(s.offset, 3.5f);
    }
    void measuredEnvironmentOfTheModuleProbeShowsTheMeasuredTemperatureAsIs()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_MODULE; });
        QVERIFY(world(sim, 800, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        const float before = panel._temperature;
        QString t, g;
        int mode = -1;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            t = d->_labelTemperature->text();
            g = d->_labelIrradiance->text();
            mode = d->_probe;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "AmbienteMisurato")->trigger();
        QCOMPARE(mode, int(PROBE_MODULE));
        QCOMPARE(t, QString::number(before, 'f', 2));
        QCOMPARE(g, QString::number(panel._irradiance, 'f', 2));
        QCOMPARE(panel._temperature, before);
    }
    // The ambient probe with a reference chosen: the module's temperature of
    // the measure goes back to an ambient estimate through the module's NOCT.
    void measuredEnvironmentOfTheAmbientProbeWithAReferenceShowsTheAmbientEstimate()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_AMBIENT; });
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 800, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        driver.onNext([](QWidget* w) { chooseInReferenceDialog(w, "Simul", "SIM 250"); });
        driver.onNext([](QWidget* w) { touch(w, "Non Applicare"); });
        touch(&panel, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(panel._referenceChosen);
        const float module = panel._temperature;
        const float irradiance = panel._irradiance;
        const float ambient = module - (panel._reference.noct - 20.0f) * irradiance / 800.0f;
        QString t;
        int mode = -1;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            t = d->_labelTemperature->text();
            mode = d->_probe;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "AmbienteMisurato")->trigger();
        QCOMPARE(mode, int(PROBE_AMBIENT));
        bool number = false;
        const float shown = t.toFloat(&number);
        QVERIFY2(number && std::fabs(shown - ambient) < 0.06f,
                 qPrintable(QString("%1 shown, %2 expected").arg(t).arg(ambient)));
        QVERIFY(std::fabs(module - ambient) > 5.0f); // an estimate, not the module's own
        QCOMPARE(panel._temperature, module);        // the measure itself stays
    }
    void measuredEnvironmentOfTheAutomaticModeWithoutAModuleShowsDashes()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_AUTO; });
        QVERIFY(world(sim, 800, 40));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QString t;
        int mode = -1;
        driver.onWindow("DialogAmbiente", [&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            t = d->_labelTemperature->text();
            mode = d->_probe;
            QTest::keyClick(w, Qt::Key_Escape);
        });
        action(&panel, "AmbienteMisurato")->trigger();
        QCOMPARE(mode, int(PROBE_AUTO));
        QCOMPARE(t, QString("----"));
    }
};

QTEST_MAIN(TestPanelEnv)
#include "tst_panelenv.moc"
