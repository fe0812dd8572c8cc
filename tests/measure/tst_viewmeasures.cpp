#include "math/smoothing.h"
#include "math/temperatura.h"
#include "math/utility.h"
#include "measure/dialogambiente.h"
#include "measure/dialogdatielettrici.h"
#include "measure/dialogshutdown.h"
#include "measure/viewfixture.h"
#include "measure/viewmeasures.h"
#include "platform/clock.h"
#include "support/datafiles.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/infobar.h"
#include "toolkit/look.h"

#include <QLabel>
#include <QMenu>

using namespace panelfixture;
using namespace viewfixture;

// The viewer of a saved measure, on files written for each case, driven by
// touches and keys as the operator does.
class TestViewMeasures : public QObject
{
    Q_OBJECT

    // The world of every test: settings, data directories, the simulated
    // instrument with the charger in (the viewer polls the supply).
    struct World {
        TestRoot root{0.1};
        SimInstrument sim{root};
        World(const std::function<void(_configParam&)>& change = {})
        {
            configure(root, change);
            sim.setAdapter(true);
        }
    };

    // A viewer on the file, its node freed with it.
    struct Viewer {
        _listMeasures* entry;
        ViewMeasures* screen;
        Viewer(const QByteArray& file, _meaType type)
            : entry(node(file, type)), screen(new ViewMeasures(nullptr, entry, type))
        {
            screen->show();
            if (!QTest::qWaitForWindowExposed(screen))
                qWarning("viewer not shown");
        }
        ~Viewer()
        {
            delete screen;
            closeListMeasures(entry);
        }
        ViewMeasures* operator->() const { return screen; }
    };

    static QStringList powerEntries(ViewMeasures* v) { return entries(v->_menuPower); }

    // The texts of a dialog's labels by object name.
    static QMap<QString, QString> labels(QWidget* w)
    {
        QMap<QString, QString> map;
        for (QLabel* l : w->findChildren<QLabel*>())
            if (!l->objectName().isEmpty())
                map[l->objectName()] = l->text();
        return map;
    }

    // The environment dialog that "Ambiente" opens, as it stands.
    struct Env {
        int probe = -1;
        bool realTime = true;
        QString shown;
        QString irradiance;
    };
    static Env environmentOf(ViewMeasures* v)
    {
        Env env;
        ModalDriver driver;
        driver.onNext([&](QWidget* w) {
            DialogAmbiente* d = qobject_cast<DialogAmbiente*>(w);
            if (d != nullptr) {
                env.probe = d->_probe;
                env.irradiance = d->_labelIrradiance->text();
                env.realTime = d->_realTime;
                env.shown = d->_labelTemperature->text();
            }
            QTest::keyClick(w, Qt::Key_Escape);
        });
        touch(v, "Ambiente");
        return env;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- What the file decides

    void moduleWithReferenceShowsBothCurvesTheStoredFiguresAndTheVerdict()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QCOMPARE(v->objectName(), QString("ViewMeasures"));
        QCOMPARE(v->_plotter->title(), QString("Misure : SIM 250"));
        QCOMPARE(v->_plotter->curves().keys(), (QList<int>{0, 1}));
        QCOMPARE(v->_iscStc, 8.71f);
        QCOMPARE(v->_vocStc, 37.48f);
        QCOMPARE(v->_imppStc, 8.21f);
        QCOMPARE(v->_vmppStc, 30.44f);
        QCOMPARE(v->_pmaxStc, 249.91f);
        QCOMPARE(v->_plotter->pmaxLabel, 249.91f);
        QCOMPARE(v->_plotter->testResult, 1);
        QVERIFY(v->_plotter->isViewPassTest());
        QCOMPARE(powerEntries(v.screen), (QStringList{"Potenza OPC", "-", "Potenza STC"}));
        // the translated curve is drawn through the stored end points
        const QVector<QPointF> stc = v->_plotter->curves()[1];
        QVERIFY(std::fabs(stc[RAMP_POINTS - 1].y() - 8.71) < 0.01);
        QVERIFY(std::fabs(stc[0].x() - 37.48) < 0.05);
        const QVector<QPointF> opc = v->_plotter->curves()[0];
        QVERIFY(std::fabs(opc[RAMP_POINTS - 1].y() - 8.02) < 0.01);
        QVERIFY(std::fabs(opc[0].x() - 36.4) < 0.05);
        QCOMPARE(v->_plotter->settings().maxX, 50.0);
        QCOMPARE(v->_plotter->settings().maxY, 10.0);
        // the bar from the left
        QList<QPushButton*> bar = v->_bar->findChildren<QPushButton*>();
        QStringList texts;
        for (QPushButton* b : bar)
            texts << b->text();
        QCOMPARE(texts, (QStringList{"Modulo", "Rs", "Ambiente", "Potenza", "Exit"}));
        QVERIFY(v->_buttonExit->autoDefault());
        QCOMPARE(v->_buttonPower->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
        QCOMPARE(v->_buttonPower->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
        for (QPushButton* b : bar)
            QVERIFY(b->isFlat());
        QVERIFY(legibilityFaults(v.screen).isEmpty());
        saveScreenshot(v.screen, "viewmeasures-module");
    }
    void measureWithoutReferenceHasNoStcEntryNoVerdictAndOneCurve()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL,
                            [](_measure& m) {
                                m.mcomp = 0;
                                m.mtest = 4;
                            }),
                 MEA_PANEL);
        QCOMPARE(v->_plotter->curves().keys(), QList<int>{0});
        QCOMPARE(powerEntries(v.screen), QStringList{"Potenza OPC"});
        QVERIFY(!v->_plotter->isViewPassTest());
        QCOMPARE(v->_plotter->testResult, 4);
        QCOMPARE(v->_plotter->title(), QString("Misure"));
        QVERIFY(std::isnan(v->_pmaxStc));
    }
    void rsTestZeroShowsRsDisabled()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL, [](_measure& m) { m.mrstest = 0; }), MEA_PANEL);
        QVERIFY(v->_buttonRs != nullptr);
        QVERIFY(!v->_buttonRs->isEnabled());
    }
    void rsShowsTheStoredResistance()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QVERIFY(v->_buttonRs->isEnabled());
        QMap<QString, QString> seen;
        QString cls;
        ModalDriver driver;
        driver.onNext([&](QWidget* d) {
            cls = d->metaObject()->className();
            seen = labels(d);
            saveScreenshot(d, "viewmeasures-rs");
            QVERIFY(legibilityFaults(d).isEmpty());
            QTest::keyClick(d, Qt::Key_Escape);
        });
        touch(v.screen, "Rs");
        QCOMPARE(cls, QString("DialogViewRs"));
        QStringList values = seen.values();
        QVERIFY2(values.join('|').contains("0.42"), qPrintable(values.join('|')));
        QVERIFY2(values.join('|').contains("905"), qPrintable(values.join('|')));
        QVERIFY2(values.join('|').contains("601"), qPrintable(values.join('|')));
    }
    void stringFileHasNoRsButton()
    {
        World w;
        Viewer v(saveSample(MEA_STRING, [](_measure& m) { m.mnpan = 12; }), MEA_STRING);
        QVERIFY(v->_buttonRs == nullptr);
        QVERIFY(v->findChild<QPushButton*>("Rs") == nullptr);
        QCOMPARE(v->_buttonData->text(), QString("Stringa"));
        QStringList texts;
        for (QPushButton* b : v->_bar->findChildren<QPushButton*>())
            texts << b->text();
        QCOMPARE(texts, (QStringList{"Stringa", "Ambiente", "Potenza", "Exit"}));
    }
    void stringTitleCarriesTheCountBeforeTheReference()
    {
        World w;
        Viewer v(saveSample(MEA_STRING, [](_measure& m) { m.mnpan = 12; }), MEA_STRING);
        QCOMPARE(v->_plotter->title(), QString("Misure : 12 * SIM 250"));
        Viewer bare(saveSample(MEA_STRING,
                               [](_measure& m) {
                                   m.mnpan = 12;
                                   m.mcomp = 0;
                                   m.mtime = const_cast<char*>("11:22:34");
                               }),
                    MEA_STRING);
        QCOMPARE(bare->_plotter->title(), QString("Misure : 12"));
    }
    void stringOfOneModuleHasAModulesTitle()
    {
        World w;
        // written by hand: a string of one module, with a reference
        QVERIFY(w.root.write("/krm510data/datameastring/20240612-093000",
                             golden("measure_string_one_module")));
        Viewer v("20240612-093000", MEA_STRING);
        QCOMPARE(v->_measure.mnpan, 1);
        QCOMPARE(v->_plotter->title(), QString("Misure : HIT 240"));
        Viewer module(
            saveSample(MEA_PANEL, [](_measure& m) { m.rname = const_cast<char*>("HIT 240"); }),
            MEA_PANEL);
        QCOMPARE(v->_plotter->title(), module->_plotter->title());
    }
    void stringAxesTakeTheStringScales()
    {
        World w;
        Viewer v(saveSample(MEA_STRING,
                            [](_measure& m) {
                                m.mnpan = 12;
                                m.mvoc = 436.8f;
                                m.svoc = 449.8f;
                                sampleCurve(&m.ramp, m.misc, m.mvoc);
                            }),
                 MEA_STRING);
        QVERIFY(v->_plotter->settings().maxX > 450);
        saveScreenshot(v.screen, "viewmeasures-string");
        QVERIFY(legibilityFaults(v.screen).isEmpty());
    }
    void storedRrimbOtherThanZeroTakesTheOtherSmoothing()
    {
        World w;
        // dead points in the middle of the curve: the two smoothings treat
        // them differently
        auto bounce = [](_measure& m) {
            for (int k = 200; k < 230; k++)
                m.ramp.corrente[k] = 0.05f;
        };
        Viewer zero(saveSample(MEA_PANEL, bounce), MEA_PANEL);
        Viewer one(saveSample(MEA_PANEL,
                              [&](_measure& m) {
                                  bounce(m);
                                  m.rrimb = 1;
                                  m.mtime = const_cast<char*>("11:22:34");
                              }),
                   MEA_PANEL);
        _ramp_iv expectOne;
        _ramp_iv expectZero;
        smoothing(&one->_measure.ramp, &expectOne, MEA_PANEL, 1);
        scaleEndPoints(&expectOne, one->_measure.misc, one->_measure.mvoc);
        smoothing(&zero->_measure.ramp, &expectZero, MEA_PANEL, 0);
        scaleEndPoints(&expectZero, zero->_measure.misc, zero->_measure.mvoc);
        QCOMPARE(std::memcmp(&one->_rampSmooth, &expectOne, sizeof expectOne), 0);
        QCOMPARE(std::memcmp(&zero->_rampSmooth, &expectZero, sizeof expectZero), 0);
        QVERIFY(std::memcmp(&expectOne, &expectZero, sizeof expectOne) != 0);
    }
    void unreadableFileOpensWithEmptyCurvesAndZerosAndNoBox()
    {
        World w;
        // the file is gone since the list was read
        ModalDriver driver;
        QMap<QString, QString> data;
        driver.onNext([&](QWidget* d) {
            data = labels(d);
            QTest::keyClick(d, Qt::Key_Escape);
        });
        _listMeasures entry;
        std::memset(&entry, 0, sizeof entry);
        entry.file = const_cast<char*>("20260101-000000");
        ViewMeasures v(nullptr, &entry, MEA_PANEL);
        v.show();
        QVERIFY(QTest::qWaitForWindowExposed(&v));
        QCOMPARE(v._measure.mpmax, 0.0f);
        QCOMPARE(v._plotter->title(), QString("Misure"));
        QCOMPARE(v._plotter->curves().keys(), QList<int>{0});
        for (const QPointF& p : v._plotter->curves()[0])
            QVERIFY(p.x() == 0 && p.y() == 0);
        QVERIFY(!v._buttonRs->isEnabled());
        touch(&v, "Dati");
        QCOMPARE(driver.boxes.size(), 0);
        QCOMPARE(data.value("Pmax_OPC"), QString("0.00"));
        QCOMPARE(data.value("Isc_OPC"), QString("0.00"));
        QVERIFY(!data.contains("Pmax_STC"));
    }

    // ---- The side dialogs

    void dataEntryShowsTheStoredFigures()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QMap<QString, QString> data;
        ModalDriver driver;
        driver.onNext([&](QWidget* d) {
            data = labels(d);
            QCOMPARE(qobject_cast<DialogDatiElettrici*>(d)->type(), MEA_PANEL);
            saveScreenshot(d, "viewmeasures-data");
            QVERIFY(legibilityFaults(d).isEmpty());
            QTest::keyClick(d, Qt::Key_Escape);
        });
        touch(v.screen, "Dati");
        QCOMPARE(data.value("Pmax_OPC"), QString("215.31"));
        QCOMPARE(data.value("Vmpp_OPC"), QString("28.90"));
        QCOMPARE(data.value("Impp_OPC"), QString("7.45"));
        QCOMPARE(data.value("Voc_OPC"), QString("36.40"));
        QCOMPARE(data.value("Isc_OPC"), QString("8.02"));
        QCOMPARE(data.value("Pmax_STC"), QString("249.91"));
        QCOMPARE(data.value("Vmpp_STC"), QString("30.44"));
        QCOMPARE(data.value("Impp_STC"), QString("8.21"));
        QCOMPARE(data.value("Voc_STC"), QString("37.48"));
        QCOMPARE(data.value("Isc_STC"), QString("8.71"));
        QCOMPARE(data.value("DPmax_STC"), QString("-0.04"));
    }
    void environmentShowsTheMeasuresReadingsByItsProbeMode_data()
    {
        QTest::addColumn<int>("mprobe");
        QTest::addColumn<int>("mcomp");
        QTest::addColumn<int>("probe");
        QTest::addColumn<bool>("ambientWorkedBack");
        QTest::newRow("ambient without reference") << 0 << 0 << 0 << false;
        QTest::newRow("ambient with reference") << 0 << 1 << 0 << true;
        QTest::newRow("module") << 1 << 1 << 1 << false;
        QTest::newRow("automatic") << 2 << 1 << 2 << false;
        QTest::newRow("manual") << 3 << 1 << 3 << false;
        QTest::newRow("unknown 9") << 9 << 1 << 3 << false;
        QTest::newRow("unknown -1") << -1 << 0 << 3 << false;
    }
    void environmentShowsTheMeasuresReadingsByItsProbeMode()
    {
        QFETCH(int, mprobe);
        QFETCH(int, mcomp);
        QFETCH(int, probe);
        QFETCH(bool, ambientWorkedBack);
        World w;
        Viewer v(saveSample(MEA_PANEL,
                            [&](_measure& m) {
                                m.mprobe = mprobe;
                                m.mcomp = mcomp;
                            }),
                 MEA_PANEL);
        const Env env = environmentOf(v.screen);
        QCOMPARE(env.probe, probe);
        QVERIFY(!env.realTime);
        QCOMPARE(env.irradiance, QString("850.00"));
        const _panelFeature ref = simulatedSheet(3);
        const float expected =
            ambientWorkedBack ? calcola_temperatura_ambiente_da_modulo(45.0f, 850.0f, &ref) : 45.0f;
        QCOMPARE(env.shown, QString::number(double(expected), 'f', 2));
        if (ambientWorkedBack)
            QVERIFY(expected < 45.0f);
    }
    void environmentDialogLooksClear()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        ModalDriver driver;
        driver.onNext([&](QWidget* d) {
            saveScreenshot(d, "viewmeasures-ambiente");
            QVERIFY(legibilityFaults(d).isEmpty());
            QTest::keyClick(d, Qt::Key_Escape);
        });
        touch(v.screen, "Ambiente");
        QCOMPARE(driver.pending(), 0);
    }

    // ---- Power curves

    void powerEntriesToggleThePowerCurves()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        v->_actionPowerOpc->trigger();
        QVERIFY(v->_plotter->curves().contains(2));
        QCOMPARE(v->_plotter->pmaxLabel, 215.31f);
        QVERIFY(v->_powerOpcShown);
        saveScreenshot(v.screen, "viewmeasures-power-opc");
        v->_actionPowerStc->trigger();
        QCOMPARE(v->_plotter->pmaxLabel, 249.91f);
        QVERIFY(v->_powerStcShown);
        QVERIFY(!v->_powerOpcShown);
        v->_actionPowerStc->trigger();
        QVERIFY(!v->_plotter->curves().contains(2));
        QVERIFY(!v->_powerStcShown);
    }
    void returnOnPotenzaMakesBothPowerEntriesCheckableForTheNextReturn()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QVERIFY(!v->_actionPowerOpc->isCheckable());
        // touched before: a plain entry, not checked, and a Return elsewhere
        // leaves it so
        v->_actionPowerOpc->trigger();
        v->_actionPowerOpc->trigger();
        QVERIFY(!v->_actionPowerOpc->isChecked());
        QVERIFY(!v->_plotter->curves().contains(2));
        v->_buttonExit->setFocus();
        v->_buttonEnv->setFocus();
        QVERIFY(!v->_actionPowerOpc->isCheckable());
        v->_buttonPower->setFocus();
        QTest::keyClick(v.screen, Qt::Key_Return);
        QVERIFY(v->_actionPowerOpc->isCheckable());
        QVERIFY(v->_actionPowerStc->isCheckable());
        QVERIFY(!v->_plotter->curves().contains(2));
        // touched now, the entry stays checked and draws its curve
        v->_actionPowerOpc->trigger();
        QVERIFY(v->_actionPowerOpc->isChecked());
        QVERIFY(v->_plotter->curves().contains(2));
        // the next Return runs it once more: the curve goes
        QTest::keyClick(v.screen, Qt::Key_Return);
        QVERIFY(!v->_plotter->curves().contains(2));
        QTest::keyClick(v.screen, Qt::Key_Return);
        QVERIFY(v->_plotter->curves().contains(2));
    }

    // ---- Clock, supply, keys

    void clockTicksEverySecondInTheStatusBarsMode()
    {
        World w([](_configParam& c) { c.tclock = CLOCK_TIME; });
        Clock::clearWaits();
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QCOMPARE(v->_timerClock->interval(), Clock::interval(1000));
        QCOMPARE(v->_timerSupply->interval(), Clock::interval(700));
        QVERIFY(v->_timerClock->isActive());
        bool clock = false;
        bool supply = false;
        for (const Clock::Wait& wait : Clock::waits()) {
            clock |= wait.kind == Clock::Timer && wait.micros == 1000000;
            supply |= wait.kind == Clock::Timer && wait.micros == 700000;
            QVERIFY(wait.micros != 60000000); // not the measuring screens' minute
        }
        QVERIFY(clock && supply);
        // the mode of the status bar object: the time alone
        QVERIFY(QRegularExpression("^\\d\\d:\\d\\d(:\\d\\d)?$")
                    .match(v->_labelClock->text())
                    .hasMatch());
        v->findChild<InfoBar*>()->chooseDisplayClock(CLOCK_DATE);
        v->displayClock();
        QVERIFY2(v->_labelClock->text().contains('/'), qPrintable(v->_labelClock->text()));
        // not placed on the screen
        QVERIFY(!v->findChild<InfoBar*>()->isVisible());
    }
    void supplyShowsTheAdapterAndAnExhaustedBatteryStopsTheInstrument()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QTRY_VERIFY_WITH_TIMEOUT(!v->_labelSupply->pixmap().isNull(), 10000);
        const int before = DialogShutDown::opened();
        ModalDriver driver;
        QString cls;
        driver.onNext([&](QWidget* d) {
            cls = d->metaObject()->className();
            w.sim.setAdapter(true);
        });
        QVERIFY(w.sim.setAdapter(false));
        QVERIFY(w.sim.forceAdc("battery", 27000));
        QTRY_VERIFY_WITH_TIMEOUT(driver.pending() == 0, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!DialogShutDown::isOpen(), 20000);
        QCOMPARE(cls, QString("DialogShutDown"));
        QCOMPARE(DialogShutDown::opened(), before + 1);
    }
    void escapeAndExitLeave()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QTest::keyClick(v.screen, Qt::Key_Escape);
        QVERIFY(!v->isVisible());
        QCOMPARE(v->result(), int(QDialog::Rejected));
        v->show();
        v->_buttonExit->setFocus();
        QTest::keyClick(v.screen, Qt::Key_Return);
        QVERIFY(!v->isVisible());
        v->show();
        touch(v.screen, "Exit");
        QVERIFY(!v->isVisible());
    }
    void returnOpensWhatHasTheFocus()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL), MEA_PANEL);
        QStringList seen;
        ModalDriver driver;
        for (int i = 0; i < 3; i++)
            driver.onNext([&](QWidget* d) {
                seen << d->metaObject()->className();
                QTest::keyClick(d, Qt::Key_Escape);
            });
        for (QPushButton* b : {v->_buttonData, v->_buttonRs, v->_buttonEnv}) {
            b->setFocus();
            QTest::keyClick(v.screen, Qt::Key_Return);
        }
        QCOMPARE(seen, (QStringList{"DialogDatiElettrici", "DialogViewRs", "DialogAmbiente"}));
    }
    void keysFinishEveryScreen_upAndDownWalkTheBar()
    {
        World w;
        Viewer v(saveSample(MEA_PANEL, [](_measure& m) { m.mrstest = 0; }), MEA_PANEL);
        QCOMPARE(v->focusWidget(), v->_buttonData);
        QList<QWidget*> walk;
        for (int i = 0; i < 4; i++) {
            QTest::keyClick(v.screen, Qt::Key_Down);
            walk << v->focusWidget();
        }
        // "Rs" is disabled: passed over
        QCOMPARE(walk,
                 (QList<QWidget*>{v->_buttonEnv, v->_buttonPower, v->_buttonExit, v->_buttonData}));
        QTest::keyClick(v.screen, Qt::Key_Up);
        QCOMPARE(v->focusWidget(), v->_buttonExit);
        // with the hardware keys alone: down to "Ambiente", Return, Escape
        ModalDriver driver;
        QString cls;
        driver.onNext([&](QWidget* d) {
            cls = d->metaObject()->className();
            hardKey(w.sim, "escape", d);
        });
        QVERIFY(hardKey(w.sim, "down", v.screen)); // Modulo
        QVERIFY(hardKey(w.sim, "down", v.screen)); // Ambiente
        QCOMPARE(v->focusWidget(), v->_buttonEnv);
        QVERIFY(hardKey(w.sim, "return", v.screen));
        QTRY_COMPARE(cls, QString("DialogAmbiente"));
        QVERIFY(hardKey(w.sim, "escape", v.screen));
        QTRY_VERIFY(!v->isVisible());
    }
};

QTEST_MAIN(TestViewMeasures)
#include "tst_viewmeasures.moc"
