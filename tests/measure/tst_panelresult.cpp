#include "data/datameasures.h"
#include "math/curvechain.h"
#include "math/dpmax.h"
#include "math/temperatura.h"
#include "measure/panelfixture.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/embkeyboard.h"

#include <QLabel>
#include <QLineEdit>
#include <cmath>

using namespace panelfixture;

// What follows a good curve on the module screen: the reference module, the
// translation to standard conditions, the ageing allowance, the verdict, the
// power curves, the electrical data and the save.
class TestPanelResult : public QObject
{
    Q_OBJECT

    // Types into a field of an open dialog through the on-screen keyboard.
    static void typeInField(QWidget* dialog, const char* field, const QString& text)
    {
        QTimer::singleShot(20, [text] {
            EmbKeyboard* kb = qobject_cast<EmbKeyboard*>(QApplication::activeModalWidget());
            if (kb == nullptr) {
                qWarning("no keyboard");
                return;
            }
            const int length = kb->editor()->text().length();
            kb->editor()->setCursorPosition(length);
            for (int i = 0; i < length; i++)
                ModalDriver::touchKey(kb, "BACK");
            ModalDriver::type(kb, text);
            ModalDriver::touchKey(kb, "ENTER");
        });
        QTest::mouseClick(child<QLineEdit>(dialog, field), Qt::LeftButton);
    }
    // The operator's answers to "Confronto": the module, then the ageing form
    // left without an allowance (or with the years given).
    static void expectReference(ModalDriver& driver, const QString& model, int years = -1)
    {
        driver.onNext([model](QWidget* w) { chooseInReferenceDialog(w, "Simul", model); });
        expectAgeing(driver, years);
    }
    static void expectAgeing(ModalDriver& driver, int years = -1)
    {
        driver.onNext([years](QWidget* w) {
            if (years < 0) {
                touch(w, "Non Applicare");
                return;
            }
            typeInField(w, "years", QString::number(years));
            touch(w, "Applica");
        });
    }
    static void seedDatabase()
    {
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        _panelFeature hot = simulatedSheet(3);
        hot.noct = 60;
        hot.kisc = 0.08f;
        hot.kvoc = -0.40f;
        QVERIFY(addModule("Simul", "simul", "SIM 250 HOT", "sim_250_hot", hot));
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void matchingModulePassesAndTenPercentBelowFails()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(panel.plotter()->title(), QString("Panel IV / SIM 250"));
        QCOMPARE(panel._title, QString("Panel IV"));
        QVERIFY(panel._referenceChosen);
        QCOMPARE(panel._result, 1);
        QCOMPARE(panel.plotter()->testResult, 1);
        QVERIFY(panel.plotter()->isViewPassTest());
        QVERIFY(std::fabs(panel._deltaPmax) < 3.0f);
        QCOMPARE(panel._deltaPmax, panelVerdict(panel._pmaxStc, &panel._reference, 0).deltaPmax);
        QCOMPARE(panel.plotter()->curves().value(1).size(), RAMP_POINTS);
        QCOMPARE(panel._rampStcSmooth.corrente[511], panel._iscStc);
        QCOMPARE(entries(child<QMenu>(&panel, "Potenza")), (QStringList{"Potenza OPC", "-", "Potenza STC"}));
        QVERIFY(child<QMenu>(&panel, "Potenza")->actions().last()->isVisible());

        QVERIFY(sim.command("set module pmax=225.09 impp=7.38 isc=7.83"));
        expectAgeing(driver);
        touch(&panel, "Start");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(panel._result, 0);
        QCOMPARE(panel.plotter()->testResult, 0);
        QVERIFY(panel._deltaPmax < -8.0f);
        saveScreenshot(&panel, "panel_verdict_failed");
    }
    void moduleChosenBeforeOrAfterTheMeasureGivesTheSameVerdict()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV before(nullptr);
        before.show();
        expectReference(driver, "SIM 250");
        touch(&before, "Confronto");
        // chosen first: nothing to judge yet, and no ageing form
        QCOMPARE(driver.pending(), 1);
        QVERIFY(before._referenceChosen);
        QVERIFY(!before.plotter()->isViewPassTest());
        touch(&before, "Start");
        QCOMPARE(driver.pending(), 0);
        before.close();

        PanelIV after(nullptr);
        after.show();
        touch(&after, "Start");
        QVERIFY(!after.plotter()->isViewPassTest());
        expectReference(driver, "SIM 250");
        touch(&after, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(after._result, before._result);
        QCOMPARE(after._pmaxStc, before._pmaxStc);
        QCOMPARE(after._deltaPmax, before._deltaPmax);
        QCOMPARE(after.plotter()->testResult, before.plotter()->testResult);
    }
    void newReferenceChoiceRecomputesFromTheFirstReading()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_AMBIENT; });
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set tmodule 20"));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        const float probe = panel._temperatureProbe;
        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        const float t45 = panel._temperature;
        QCOMPARE(t45, calcola_temperatura(PROBE_AMBIENT, 1, probe, panel._irradiance, panel._voc,
                                          &panel._reference));
        expectReference(driver, "SIM 250 HOT");
        touch(&panel, "Confronto");
        QCOMPARE(driver.pending(), 0);
        // again from the reading, not from the last result
        QCOMPARE(panel._temperature, calcola_temperatura(PROBE_AMBIENT, 1, probe,
                                                         panel._irradiance, panel._voc,
                                                         &panel._reference));
        QVERIFY(panel._temperature > t45);
        QCOMPARE(panel.plotter()->title(), QString("Panel IV / SIM 250 HOT"));
    }
    void rejectedAgeingGivesNoAllowanceAndKeepsTheLastYears()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        expectReference(driver, "SIM 250", 2);
        touch(&panel, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(panel._degradoEnabled);
        QCOMPARE(panel._degradoYears, 2.0f);
        QCOMPARE(panel._degradoPercent, 10.0f);
        // 10 percent a year for two years: held against 200 W
        const float d = degradationAllowance(true, 2, 10);
        QCOMPARE(panel._deltaPmax, DELTAPMAX(panel._pmaxStc, 250.0f * (1.0 - d)));
        QVERIFY(panel._deltaPmax > 10.0f);

        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        QVERIFY(!panel._degradoEnabled);
        QCOMPARE(panel._degradoYears, 2.0f);
        QCOMPARE(panel._deltaPmax, DELTAPMAX(panel._pmaxStc, 250.0f));

        driver.onNext([](QWidget* w) { touch(w, "Salva"); });
        driver.answerBox();
        touch(&panel, "Salva");
        QCOMPARE(driver.boxes.last().text, QString("Misura Salvata."));
        QStringList files = QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        QByteArray saved = root.read(("/krm510data/datameapanel/" + files[0]).toLatin1());
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(files[0].toLatin1().constData(), &m, MEA_PANEL), 511);
        QCOMPARE(m.mdegy, 2.0f);
        QCOMPARE(m.mdegp, 10.0f);
        QCOMPARE(m.mcomp, 1);
        freeMeasureData(&m);
        QVERIFY(!saved.isEmpty());
    }
    void unstableIrradianceWithAReferenceShowsAndSavesNoStandardValues()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        driver.onNext([](QWidget* w) { chooseInReferenceDialog(w, "Simul", "SIM 250"); });
        touch(&panel, "Confronto");
        driver.answerBox(); // the irradiance delta
        ProgressWatch watch("Misura Modulo...", [&] { sim.setIrradiance(700); });
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(panel._referenceChosen);
        QVERIFY(!panel._stcValid);
        QVERIFY(!panel.plotter()->isViewPassTest());
        QVERIFY(!panel.plotter()->curves().contains(1));
        QCOMPARE(driver.pending(), 0); // and no ageing form

        QStringList stcLabels;
        ModalDriver panelData;
        panelData.onNext([&](QWidget* w) {
            for (QLabel* l : w->findChildren<QLabel*>())
                if (l->objectName().endsWith("_STC"))
                    stcLabels << l->objectName();
            touch(w, "OK");
        });
        touchMenu(&panel, "Modulo");
        QCOMPARE(panelData.pending(), 0);
        QVERIFY(stcLabels.isEmpty());

        ModalDriver saving;
        saving.onNext([](QWidget* w) { touch(w, "Salva"); });
        saving.answerBox();
        touch(&panel, "Salva");
        QStringList files = QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(files[0].toLatin1().constData(), &m, MEA_PANEL), 511);
        QCOMPARE(m.mcomp, 0);
        QCOMPARE(m.spmax, 0.0f);
        QCOMPARE(m.sisc, 0.0f);
        QCOMPARE(m.ref.pmax, 0.0f);
        QVERIFY(m.rname == nullptr);
        QVERIFY(m.rbname == nullptr);
        QCOMPARE(m.mpmax, panel._pmax);
        freeMeasureData(&m);
    }
    void powerOpcReplacesTheStcCurveAndASecondPressRemovesIt()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        saveScreenshot(&panel, "panel_measured");
        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        saveScreenshot(&panel, "panel_verdict");
        {
            const QStringList faults = legibilityFaults(&panel);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        }
        touchMenu(&panel, "Potenza STC");
        QVERIFY(panel._powerStcShown);
        QCOMPARE(panel.plotter()->pmaxLabel, panel._pmaxStc);
        QVector<QPointF> stcPower = panel.plotter()->curves().value(2);
        QCOMPARE(stcPower.size(), RAMP_POINTS);
        double top = 0;
        for (const QPointF& p : stcPower)
            top = std::max(top, p.y());
        QVERIFY(std::fabs(top - 9.5) < 1e-4);
        saveScreenshot(&panel, "panel_power_stc");
        touchMenu(&panel, "Potenza OPC");
        QVERIFY(panel._powerOpcShown);
        QVERIFY(!panel._powerStcShown);
        QCOMPARE(panel.plotter()->pmaxLabel, panel._pmax);
        QVERIFY(panel.plotter()->curves().value(2) != stcPower);
        QCOMPARE(panel.plotter()->curves().value(2).first().x(), double(panel._rampSmooth.tensione[0]));
        saveScreenshot(&panel, "panel_power_opc");
        touchMenu(&panel, "Potenza OPC");
        QVERIFY(!panel._powerOpcShown);
        QVERIFY(!panel._powerStcShown);
        QVERIFY(!panel.plotter()->curves().contains(2));
    }
    void verdictRecalculationKeepsThePowerCurveNewlyScaled()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        touchMenu(&panel, "Potenza STC");
        const QVector<QPointF> before = panel.plotter()->curves().value(2);
        expectReference(driver, "SIM 250 HOT");
        touch(&panel, "Confronto");
        QVERIFY(panel._powerStcShown);
        QVERIFY(panel.plotter()->curves().contains(2));
        QVERIFY(panel.plotter()->curves().value(2) != before);
        QCOMPARE(panel.plotter()->pmaxLabel, panel._pmaxStc);
        QCOMPARE(panel.plotter()->curves().value(2).last().x(),
                 double(panel._rampStcSmooth.tensione[511]));
    }
    void temperatureOutOfLimitsForgetsTheReference()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) {
            c.tprobe = PROBE_MANUAL;
            c.utemp = 100.5f;
        });
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        driver.onNext([](QWidget* w) { chooseInReferenceDialog(w, "Simul", "SIM 250"); });
        driver.answerBox();
        touch(&panel, "Confronto");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString());
        QCOMPARE(driver.boxes[0].informative, QString("Temperatura fuori limite."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QVERIFY(!panel._referenceChosen);
        QCOMPARE(panel._temperature, -20.0f);
        QCOMPARE(QByteArray(panel._modelName), QByteArray());
        QCOMPARE(QByteArray(panel._brandName), QByteArray());
        QCOMPARE(QByteArray(panel._brandDir), QByteArray());
        QCOMPARE(QByteArray(panel._modelFile), QByteArray("sim_250"));
        QCOMPARE(panel.plotter()->title(), QString("Panel IV / SIM 250"));
        QVERIFY(!panel.plotter()->isViewPassTest());
        saveScreenshot(&panel, "panel_temperature_out_of_limits");
    }
    void temperatureLimit100PassesTheTranslation() { temperatureLimitPasses(100.0f); }
    void temperatureLimitMinus20PassesTheTranslation() { temperatureLimitPasses(-20.0f); }

private:
    void temperatureLimitPasses(float t)
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [t](_configParam& c) {
            c.tprobe = PROBE_MANUAL;
            c.utemp = t;
        });
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        expectReference(driver, "SIM 250");
        touch(&panel, "Confronto");
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(panel._referenceChosen);
        QCOMPARE(panel._temperature, t);
        QVERIFY(panel.plotter()->isViewPassTest());
    }

private slots:
    void exitAfterAChoiceLeavesTheScreenAsItWas()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        seedDatabase();
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        driver.onNext([](QWidget* w) {
            QListWidget* brands = child<QListWidget>(w, "Marca");
            brands->setCurrentRow(0);
            child<QListWidget>(w, "Modello")->setCurrentRow(0);
            touch(w, "Exit");
        });
        touch(&panel, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(!panel._referenceChosen);
        QCOMPARE(panel.plotter()->title(), QString("Panel IV"));
        QVERIFY(!panel.plotter()->isViewPassTest());
    }

    // ---- Save
    void rejectedSaveFormKeepsSaveEnabledAndReturnOpensItTwice()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QStringList forms;
        auto leave = [&](QWidget* w) {
            forms << w->objectName();
            touch(w, "Exit");
        };
        driver.onNext(leave);
        touch(&panel, "Salva");
        QCOMPARE(forms, QStringList{"DialogInfo"});
        QVERIFY(panel._measureDone);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        // Return on the focused button: the form, left, opens a second time
        panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        child<QPushButton>(&panel, "Salva")->setFocus();
        QVERIFY(child<QPushButton>(&panel, "Salva")->hasFocus());
        driver.onNext(leave);
        driver.onNext(leave);
        QVERIFY(hardKey(sim, "return", &panel));
        QCOMPARE(forms.size(), 3);
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files).size(), 0);
    }
    void saveIntoAMissingMeasureFolderSaysTheNameExistsAndLosesTheMeasure()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(QDir(root.path("/krm510data/datameapanel")).removeRecursively());
        QVERIFY(root.write("/krm510data/datameapanel", "not a folder"));
        driver.onNext([](QWidget* w) { touch(w, "Salva"); });
        driver.answerBox();
        touch(&panel, "Salva");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura"));
        QCOMPARE(driver.boxes[0].informative, QString("Nome della misura già presente."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QVERIFY(!panel._measureDone);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    }
    void savedCommentIsThePresetOfTheNextSave()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        driver.onNext([](QWidget* w) {
            typeInField(w, "Commento", "tetto sud");
            touch(w, "Salva");
        });
        driver.answerBox();
        touch(&panel, "Salva");
        QCOMPARE(driver.boxes.last().text, QString("Misura Salvata."));
        QCOMPARE(panel._comment, QString("tetto sud"));
        QStringList files = QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(files[0].toLatin1().constData(), &m, MEA_PANEL), 511);
        QCOMPARE(QByteArray(m.mcom), QByteArray("tetto sud"));
        QCOMPARE(m.mnpan, 1);
        QCOMPARE(m.mprobe, int(PROBE_MODULE));
        QCOMPARE(m.ramp.corrente[300], panel._rampExact.corrente[300]);
        QCOMPARE(m.mtest, 0);
        freeMeasureData(&m);
        touch(&panel, "Start");
        QString preset;
        driver.onNext([&](QWidget* w) {
            preset = child<QLineEdit>(w, "Commento")->text();
            touch(w, "Exit");
        });
        touch(&panel, "Salva");
        QCOMPARE(preset, QString("tetto sud"));
    }
};

QTEST_MAIN(TestPanelResult)
#include "tst_panelresult.moc"
