#include "data/datameasures.h"
#include "math/curvechain.h"
#include "math/scale.h"
#include "math/temperatura.h"
#include "math/utility.h"
#include "measure/dialogdatielettrici.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/look.h"

#include <QDir>
#include <QLineEdit>
#include <QProgressBar>
#include <cmath>

using namespace panelfixture;
using namespace screenkinds;

// What the string screen does otherwise than the module screen: the count
// of modules asked at every start, the title with the count, the voltage
// axis of 1000 V during the ramp, the string scales and verdict, the record
// of a string, and its keys. The behaviour both screens share is tested on
// both in tst_screenmeasure.
class TestStringScreen : public QObject
{
    Q_OBJECT

    static void expectReference(ModalDriver& driver, const QString& model)
    {
        driver.onNext([model](QWidget* r) { chooseInReferenceDialog(r, "Simul", model); });
    }
    static void expectAgeingLeft(ModalDriver& driver)
    {
        driver.onNext([](QWidget* w) { touch(w, "Non Applicare"); });
    }
    static QProgressDialog* visibleProgress()
    {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            QProgressDialog* p = qobject_cast<QProgressDialog*>(w);
            if (p != nullptr && p->isVisible())
                return p;
        }
        return nullptr;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- Title and count
    void openingShowsTheTitleWithoutCountUntilTheFirstStart()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        StringIV screen(nullptr);
        screen.show();
        QCOMPARE(screen.objectName(), QString("StringIV"));
        QCOMPARE(screen.plotter()->title(), QString("String IV"));
        QCOMPARE(screen._numberOfPanel, 2);
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        QTest::qWait(50); // maximised by the window system
        saveScreenshot(&screen, "string_title_before_start");
        QStringList faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        // no model chosen: the title ends after " * "
        enterCount(driver, 4);
        touch(&screen, "Start");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(screen.plotter()->title(), QString("String IV / 4 * "));
        QCOMPARE(screen._title, QString("String IV"));
        saveScreenshot(&screen, "string_title_after_start");
        faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
    void referenceChosenBeforeTheFirstStartShowsTheTitleWithCount2()
    {
        TestRoot root(0.1);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet()));
        ModalDriver driver;
        expectReference(driver, "SIM 250");
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(screen.plotter()->title(), QString("String IV / 2 * SIM 250"));
        QCOMPARE(screen._referenceModelName, QString("SIM 250"));
        QVERIFY(screen._referenceChosen);
    }
    // A model written by an older instrument names itself in Latin-1; the old
    // screen turned its bytes into text in the process's 8-bit encoding and
    // showed a broken or empty name on a UTF-8 system.
    void textsSpeakUtf8_aLatin1ModelNameStandsWholeInTheTitle()
    {
        TestRoot root(0.1);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "y", "kraft", simulatedSheet()));
        QByteArray model = root.read("/krm510data/datapanel/simul/kraft");
        model.replace("name = y\n", "name = Kr\xe4"
                                    "ft 250\n");
        QVERIFY(root.write("/krm510data/datapanel/simul/kraft", model));
        ModalDriver driver;
        expectReference(driver, QString::fromUtf8("Kräft 250"));
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(screen.plotter()->title(), QString::fromUtf8("String IV / 2 * Kräft 250"));
        QCOMPARE(screen._referenceModelName, QString::fromUtf8("Kräft 250"));
    }
    void countIsAskedAtEveryStartAndKeptForTheLifeOfTheScreen()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setSeries(3));
        ModalDriver driver;
        QStringList shown;
        enterCount(driver, 3);
        driver.onNext([&](QWidget* w) {
            shown << child<QLineEdit>(w, "number")->text();
            touch(w, "Applica");
        });
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        QVERIFY(coolHeatSink(sim));
        touch(&screen, "Start");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(shown, QStringList{"3"});
        QCOMPARE(screen._numberOfPanel, 3);
        QVERIFY(screen._measureDone);
    }
    void countStartsAgainAt2AtEachOpening()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        {
            ModalDriver driver;
            enterCount(driver, 7);
            StringIV screen(nullptr);
            screen.show();
            touch(&screen, "Start");
            QCOMPARE(screen._numberOfPanel, 7);
        }
        ModalDriver driver;
        QString shown;
        driver.onNext([&](QWidget* w) {
            shown = child<QLineEdit>(w, "number")->text();
            touch(w, "Annulla");
        });
        StringIV screen(nullptr);
        screen.show();
        QCOMPARE(screen._numberOfPanel, 2);
        touch(&screen, "Start");
        QCOMPARE(shown, QString("2"));
    }
    void rejectingTheCountLeavesCurveVerdictAndSaveAndALaterReferenceChangesTheTitleOnly()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet()));
        QVERIFY(addModule("Simul", "simul", "SIM 240", "sim_240", simulatedSheet()));
        QVERIFY(world(sim, 1000, 25));
        QVERIFY(sim.setSeries(2));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        expectReference(driver, "SIM 250");
        expectAgeingLeft(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        touch(&screen, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(screen.plotter()->isViewPassTest());
        QAction* stc = screen.findChild<QAction*>("PotenzaSTC");
        QVERIFY(stc->isEnabled() && stc->isVisible());
        const int result = screen._result;
        const float delta = screen._deltaPmax;
        const QMap<int, QVector<QPointF>> curves = screen.plotter()->curves();
        QVERIFY(curves.contains(1));
        QVERIFY(sim.command("board log clear"));

        rejectCount(driver);
        touch(&screen, "Start");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(sim.boardCommands().isEmpty()); // no ramp, no reading
        QCOMPARE(screen.plotter()->curves(), curves);
        QVERIFY(screen.plotter()->isViewPassTest());
        QCOMPARE(screen.plotter()->testResult, result);
        QVERIFY(screen._measureDone);
        QVERIFY(child<QPushButton>(&screen, "Salva")->isEnabled());
        // the count dialog came after the two valid flags were cleared
        QVERIFY(!screen._temperatureValid);
        QVERIFY(!screen._irradianceValid);
        QVERIFY(screen._stcValid); // kept until the irradiance check writes it

        // a reference now: the title changes, nothing is computed again and
        // no ageing dialog opens
        expectReference(driver, "SIM 240");
        touch(&screen, "Confronto");
        QTest::qWait(50);
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(screen.plotter()->title(), QString("String IV / 2 * SIM 240"));
        QCOMPARE(screen._result, result);
        QCOMPARE(screen._deltaPmax, delta);
        QCOMPARE(screen.plotter()->curves(), curves);
    }

    // ---- Qt 6 is not the old toolkit
    void countDialogKeptOpenBeyondTheProgressMinimumDurationShowsNoProgressDialog()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        bool progressSeen = false;
        driver.onNext([&](QWidget* w) {
            // beyond Qt's default minimum duration of 4 s
            QDeadlineTimer wait(4500);
            while (!wait.hasExpired()) {
                QTest::qWait(100);
                progressSeen |= visibleProgress() != nullptr;
            }
            touch(w, "Applica");
        });
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(!progressSeen);
        QVERIFY(screen._measureDone);
    }

    // ---- The ramp
    void rampShowsTheGreenBarAndA1000VoltAxis()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setSeries(12));
        ModalDriver driver;
        enterCount(driver, 12);
        StringIV* screen = nullptr;
        double axis = 0;
        int maximum = 0;
        QString style;
        ProgressWatch watch("Misura Stringa...", [&] {
            QProgressDialog* p = visibleProgress();
            maximum = p->maximum();
            style = p->styleSheet();
            axis = screen->plotter()->settings().maxX;
            saveScreenshot(screen, "string_during_ramp");
            p->setValue(40); // the bar part way, as the board reports it
            saveScreenshot(p, "string_during_ramp_progress");
        });
        StringIV s(nullptr);
        screen = &s;
        s.show();
        touch(&s, "Start");
        QVERIFY(watch.done);
        QCOMPARE(axis, 1000.0);
        QCOMPARE(maximum, 100);
        QVERIFY(style.contains("stop: 0 green, stop: 1 white"));
        QVERIFY(!style.contains("blue"));
        // the string scales after the curve
        float vmax = 0;
        float imax = 0;
        curveMaxima(&s._rampSmooth, &vmax, &imax);
        QCOMPARE(s.plotter()->settings().maxX, double(stringVScale(vmax)));
        QCOMPARE(s.plotter()->settings().maxY, double(stringIScale(imax)));
    }
    void smoothingIsOfTheModuleType()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setSeries(4));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        _ramp_iv expected;
        smoothAndScale(&screen._ramp, &expected, screen._isc, screen._voc);
        QCOMPARE(std::memcmp(&expected, &screen._rampSmooth, sizeof expected), 0);
    }
    void startPressedWhileAMeasureRunsIsIgnored()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        int counts = 0;
        driver.onNext([&](QWidget* w) {
            counts++;
            touch(w, "Applica");
        });
        StringIV* screen = nullptr;
        ProgressWatch watch("Misura Stringa...", [&] { screen->stringMeasure(); });
        StringIV s(nullptr);
        screen = &s;
        s.show();
        touch(&s, "Start");
        QTest::qWait(50);
        QVERIFY(watch.done);
        QCOMPARE(counts, 1);
        QCOMPARE(sim.boardCommands().join(' ').count("mea_brask"), 1);
        QVERIFY(s._measureDone);
    }
    void startEndingWithoutANewCurveAfterTheRampsWereClearedTurnsSaveOff()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        QVERIFY(child<QPushButton>(&screen, "Salva")->isEnabled());
        QVERIFY(coolHeatSink(sim));
        Kind<StringIV>::count(driver);
        driver.answerBox();
        ProgressWatch watch("Misura Stringa...", [&] { sim.command("set pt100 open"); });
        touch(&screen, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
        QVERIFY(!screen._measureDone);
        QVERIFY(!child<QPushButton>(&screen, "Salva")->isEnabled());
    }

    // ---- Temperature and verdict
    void cellTemperatureFromVocUsesTheCount()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_AUTO; });
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet()));
        QVERIFY(world(sim, 1000, 40));
        QVERIFY(sim.setSeries(4));
        ModalDriver driver;
        enterCount(driver, 4);
        expectReference(driver, "SIM 250");
        expectAgeingLeft(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        touch(&screen, "Confronto");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(screen._temperature, calcola_temperatura(PROBE_AUTO, 4, -20.0f, screen._irradiance,
                                                          screen._voc, &screen._reference));
        // near the cells' 40 degrees C; the Voc of four modules taken for one
        // would be far out of limits
        QVERIFY2(std::fabs(screen._temperature - 40) < 10,
                 qPrintable(QString::number(screen._temperature)));
        const float asOne = calcola_temperatura(PROBE_AUTO, 1, -20.0f, screen._irradiance,
                                                screen._voc, &screen._reference);
        QVERIFY2(asOne < -20.0f || asOne > 100.0f, qPrintable(QString::number(asOne)));
    }
    void tenModulesOf200WattWithATranslatedPowerOf1960GiveTheDeviationAgainst2000()
    {
        _panelFeature f = simulatedSheet(3);
        f.pmax = 200;
        const Verdict v = stringVerdict(10, 1960.0f, &f, 0.0f);
        QCOMPARE(v.deltaPmax, -2.0f);
        QCOMPARE(v.result, 1);
        // on the screen: the deviation is the string's, against count x power
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet()));
        QVERIFY(world(sim, 1000, 25));
        QVERIFY(sim.setSeries(3));
        ModalDriver driver;
        enterCount(driver, 3);
        expectReference(driver, "SIM 250");
        expectAgeingLeft(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        touch(&screen, "Confronto");
        QCOMPARE(driver.pending(), 0);
        const Verdict own = stringVerdict(3, screen._pmaxStc, &screen._reference, 0.0f);
        QCOMPARE(screen._deltaPmax, own.deltaPmax);
        QCOMPARE(screen._result, own.result);
        QVERIFY2(std::fabs(screen._deltaPmax) < 3, qPrintable(QString::number(screen._deltaPmax)));
    }
    void ageingDialogIsTheModuleVariant()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet()));
        QVERIFY(world(sim, 1000, 25));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        expectReference(driver, "SIM 250");
        QString title;
        driver.onNext([&](QWidget* w) {
            title = w->windowTitle();
            touch(w, "Non Applicare");
        });
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        touch(&screen, "Confronto");
        QCOMPARE(title, QString("Degrado Modulo"));
    }
    void restorationMessageStillShowsAfterAnInterveningFailureOfAnotherKind()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            sim.setAdapter(true);
        });
        StringIV screen(nullptr);
        screen.show();
        QVERIFY(sim.setAdapter(false));
        QVERIFY(sim.forceAdc("battery", 27000));
        QTRY_VERIFY_WITH_TIMEOUT(!seen.isEmpty(), 5000);
        QCOMPARE(seen, QStringList{"DialogShutDown"});
        QVERIFY(screen._powerRestored);
        // a failure of another kind first
        QVERIFY(sim.command("board status 3"));
        Kind<StringIV>::count(driver);
        driver.answerBox();
        touch(&screen, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Tensione Eccessiva."));
        QVERIFY(screen._powerRestored);
        // then the board's silence is still told as the restoration
        QVERIFY(sim.command("board fault nostatus"));
        Kind<StringIV>::count(driver);
        driver.answerBox();
        touch(&screen, "Start");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].text, QString("Eseguito ripristino modulo potenza."));
        QCOMPARE(driver.boxes[1].icon, QMessageBox::Critical);
        QVERIFY(!screen._powerRestored);
    }

    // ---- Side dialogs, save, keys
    void stringEntryOpensTheElectricalDataOfAString()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        int type = -1;
        driver.onNext([&](QWidget* w) {
            DialogDatiElettrici* d = qobject_cast<DialogDatiElettrici*>(w);
            if (d != nullptr)
                type = d->type();
            touch(w, "OK");
        });
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        QCOMPARE(entries(measuresMenu(&screen)),
                 (QStringList{"Ambiente", "-", "Stringa", "-", "Potenza"}));
        touchMenu(&screen, "Stringa");
        QCOMPARE(type, int(MEA_STRING));
    }
    void saveWritesAStringRecordWithTheCountAndNoSeriesResistance()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setSeries(5));
        ModalDriver driver;
        enterCount(driver, 5);
        QString formTitle;
        driver.onNext([&](QWidget* f) {
            formTitle = f->windowTitle();
            touch(f, "Salva");
        });
        driver.answerBox();
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        touch(&screen, "Salva");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(formTitle, QString("Salvataggio Misure Modulo")); // the module titles
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura Salvata."));
        QVERIFY(!child<QPushButton>(&screen, "Salva")->isEnabled());
        QStringList files = QDir(root.path("/krm510data/datameastring")).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        QVERIFY(QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files).isEmpty());
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(files[0].toLatin1().constData(), &m, MEA_STRING), 511);
        QCOMPARE(m.mnpan, 5);
        QCOMPARE(m.mrstest, 0);
        QCOMPARE(m.mrs, 0.0f);
        QCOMPARE(m.mrsi1, 0.0f);
        QCOMPARE(m.mrsi2, 0.0f);
        QCOMPARE(m.mcomp, 0);
        freeMeasureData(&m);
    }
    void saveIntoAMissingStringFolderSaysTheNameExistsAndLosesTheMeasure()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        QVERIFY(QDir(root.path("/krm510data/datameastring")).removeRecursively());
        QVERIFY(root.write("/krm510data/datameastring", "not a folder"));
        driver.onNext([](QWidget* w) { touch(w, "Salva"); });
        driver.answerBox();
        touch(&screen, "Salva");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura"));
        QCOMPARE(driver.boxes[0].informative, QString("Nome della misura già presente."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QVERIFY(!screen._measureDone);
        QVERIFY(!child<QPushButton>(&screen, "Salva")->isEnabled());
    }
    void rejectedSaveFormDoesNotReopenOnReturn()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        int forms = 0;
        driver.onNext([&](QWidget* f) {
            forms++;
            QTest::keyClick(f, Qt::Key_Escape);
        });
        StringIV screen(nullptr);
        screen.show();
        touch(&screen, "Start");
        child<QPushButton>(&screen, "Salva")->setFocus();
        QTest::keyClick(&screen, Qt::Key_Return);
        QTest::qWait(50);
        QCOMPARE(forms, 1);
        QCOMPARE(driver.pending(), 0);
        QVERIFY(screen._measureDone);
        QVERIFY(child<QPushButton>(&screen, "Salva")->isEnabled());
    }
    void measuresMenuHoldsTheEnvironmentBeforeTheFirstCurveAndReturnOnItOpensItLive()
    {
        TestRoot root(0.1);
        configure(root);
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        StringIV screen(nullptr);
        screen.show();
        QCOMPARE(entries(measuresMenu(&screen)), QStringList{"Ambiente"});
        child<QPushButton>(&screen, "Misure")->setFocus();
        QTest::keyClick(&screen, Qt::Key_Return);
        QTRY_COMPARE(seen, QStringList{"DialogAmbiente"});
        QVERIFY(screen.isVisible());
    }
    void returnOnStartAndExitAndEscape()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        Kind<StringIV>::count(driver);
        StringIV screen(nullptr);
        screen.show();
        child<QPushButton>(&screen, "Start")->setFocus();
        QTest::keyClick(&screen, Qt::Key_Return);
        QVERIFY(screen._measureDone);
        child<QPushButton>(&screen, "Exit")->setFocus();
        QTest::keyClick(&screen, Qt::Key_Return);
        QCOMPARE(screen.result(), int(QDialog::Rejected));
        QVERIFY(!screen.isVisible());
        screen.show();
        QTest::keyClick(&screen, Qt::Key_Escape);
        QVERIFY(!screen.isVisible());
    }
};

QTEST_MAIN(TestStringScreen)
#include "tst_stringscreen.moc"
