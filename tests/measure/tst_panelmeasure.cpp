#include "math/rndf.h"
#include "measure/dialogshutdown.h"
#include "measure/panelfixture.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/infobar.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTranslator>
#include <cmath>

using namespace panelfixture;

// The acquisition of the module screen on the simulated instrument: the
// environment before and after the ramp, the board's ramp, the conversion of
// the counts, the irradiance check and every failure, driven by touches on
// the screen's buttons as the operator makes them.
class TestPanelMeasure : public QObject
{
    Q_OBJECT

    PanelIV* current = nullptr;
    QWidget* screenOf() const { return current; }

    static const char* coolingText()
    {
        return "Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima di "
               "riprendere i test.";
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        QApplication::setFont(instrumentFont());
    }

    void goodMeasureDrawsTheCurveAndEnablesSave()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        PanelIV panel(nullptr);
        panel.show();
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), QStringList());
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(panel._curveValid);
        QVERIFY(panel._stcValid);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), (QStringList{"-", "Modulo", "-", "Potenza"}));
        QCOMPARE(panel.plotter()->curves().value(0).size(), RAMP_POINTS);
        QVERIFY(!panel.plotter()->curves().contains(1));
        // the curve begins on Voc and ends on Isc
        QCOMPARE(panel._rampSmooth.corrente[511], panel._isc);
        QVERIFY(std::fabs(panel._rampSmooth.tensione[0] - panel._voc) < 0.01f);
        const double isc = sim.field("pv figures", "isc").toDouble();
        const double voc = sim.field("pv figures", "voc").toDouble();
        const double pmax = sim.field("pv figures", "pmax").toDouble();
        QVERIFY2(std::fabs(panel._isc - isc) < 0.02, qPrintable(QString::number(panel._isc)));
        QVERIFY2(std::fabs(panel._voc - voc) < 0.5, qPrintable(QString::number(panel._voc)));
        QVERIFY2(std::fabs(panel._pmax - pmax) < 0.01 * pmax,
                 qPrintable(QString("%1 %2").arg(panel._pmax).arg(pmax)));
        QCOMPARE(panel._vmpp, rndf(panel._pmax / panel._impp, 2));
        QCOMPARE(panel._deltaPmax, 0.0f);
        QCOMPARE(panel._temperature, panel._temperatureProbe);
        QVERIFY(std::fabs(panel._temperature - 45) < 0.5f);
        QVERIFY(std::fabs(panel._irradiance - 850) < 1.0f);
        QVERIFY(sim.boardCommands().join(' ').contains("mea_brask"));
    }

    // ---- Heat sink
    void heatSinkAt65RefusesTheRampWithTheCoolingMessage()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        // resting at 65: the heat sink cools towards the ambient
        QVERIFY(sim.setAmbientTemperature(65));
        QVERIFY(sim.command("board hsink 65"));
        QVERIFY(sim.command("board log clear"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString(coolingText()));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        QVERIFY(!sim.boardCommands().join(' ').contains("mea_brask"));
        QVERIFY(!panel._measureDone);
        QVERIFY(!panel._curveValid);
        saveScreenshot(&panel, "panel_after_cooling_box");
    }
    void heatSinkAt64_9RunsTheRamp()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setAmbientTemperature(64.9));
        QVERIFY(sim.command("board hsink 64.9"));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(sim.boardCommands().join(' ').contains("mea_brask"));
        QVERIFY(panel._measureDone);
    }

    // ---- The environment before the ramp
    void automaticAndManualTemperatureReadNoSensor_data()
    {
        QTest::addColumn<int>("probe");
        QTest::addColumn<float>("expected");
        QTest::newRow("automatic") << int(PROBE_AUTO) << -20.0f;
        QTest::newRow("manual") << int(PROBE_MANUAL) << 37.5f;
    }
    void automaticAndManualTemperatureReadNoSensor()
    {
        QFETCH(int, probe);
        QFETCH(float, expected);
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [probe](_configParam& c) {
            c.tprobe = static_cast<_probeTemp>(probe);
            c.utemp = 37.5f;
        });
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set pt100 open"));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(panel._measureDone);
        QVERIFY(panel._temperatureValid);
        QCOMPARE(panel._temperature, expected);
    }
    void openTemperatureProbeRefusesTheStart()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set pt100 open"));
        QVERIFY(sim.command("board log clear"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Misure Ambiente"));
        QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        QVERIFY(sim.boardCommands().isEmpty());
    }
    void temperatureAndIrradianceBothMissingSpeaksOfTheTemperatureOnly()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set pt100 open"));
        QVERIFY(sim.forceAdc("pyrano", 0));
        ModalDriver driver;
        driver.answerBox();
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QTest::qWait(20);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
        QVERIFY(!panel._temperatureValid);
        QVERIFY(!panel._irradianceValid);
    }
    void missingIrradianceRefusesTheStart()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.forceAdc("pyrano", 0));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Misure Ambiente"));
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione non rilevata."));
        QVERIFY(!panel._measureDone);
    }
    void irradianceEqualToIrrminPassesAndJustBelowIsRefused()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.forceAdc("pyrano", 31000));
        char ok = 0;
        const float g = irradiationAcquire(&ok);
        QVERIFY(ok);
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        panel._config.irrmin = g;
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(panel._measureDone);
        QCOMPARE(panel._irradiance, g);

        panel._config.irrmin = std::nextafter(g, 2000.0f);
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString());
        QCOMPARE(driver.boxes[0].text,
                 "Irraggiamento insufficiente (< " +
                     QString::number(double(panel._config.irrmin), 'f', 2) + " W/m²)");
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
    }
    void refusedStartLeavesTheOldCurveAndVerdictStanding()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        const QVector<QPointF> curve = panel.plotter()->curves().value(0);
        QVERIFY(sim.setIrradiance(300));
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(panel.plotter()->curves().value(0), curve);
        QVERIFY(panel._measureDone);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), (QStringList{"-", "Modulo", "-", "Potenza"}));
    }
    void secondReadingDecidesNothingButAMissingValue()
    {
        // below irrmin after the ramp: not refused, and the first reading stays
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        driver.answerBox(); // the irradiance delta
        ProgressWatch watch("Misura Modulo...", [&] { sim.setIrradiance(400); });
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Delta Irraggiamento Elevato"));
        QVERIFY(panel._measureDone);
        QVERIFY(std::fabs(panel._irradiance - 850) < 1.0f);
        QVERIFY(std::fabs(panel._irradianceProbe - 850) < 1.0f);
    }
    void secondReadingWithoutTemperatureEndsTheMeasureWithoutTheFailurePath()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        driver.answerBox();
        ProgressWatch watch("Misura Modulo...", [&] { sim.command("set pt100 open"); });
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
        QVERIFY(!panel._measureDone);
        QVERIFY(!panel._curveValid);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), QStringList());
    }

    // ---- The irradiance check
    void irradianceFallFrom800To786ClearsTheStandardValues()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 800, 45));
        ModalDriver driver;
        driver.answerBox();
        ProgressWatch watch("Misura Modulo...", [&] { sim.setIrradiance(786); });
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(rndIrradiation(panel._irradiance), 800.0f);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Delta Irraggiamento Elevato"));
        QCOMPARE(driver.boxes[0].text, QString("Valori STC non disponibili.\nRipetere."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        QVERIFY(!panel._stcValid);
        QVERIFY(panel._measureDone); // the curve stays and may be saved
        QCOMPARE(panel.plotter()->curves().value(0).size(), RAMP_POINTS);
        saveScreenshot(&panel, "panel_after_irradiance_delta_box");
    }
    void irradianceFallFrom700To685KeepsTheStandardValues()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.irrmin = 500; });
        QVERIFY(world(sim, 699.8, 45));
        ModalDriver driver;
        ProgressWatch watch("Misura Modulo...", [&] { sim.setIrradiance(685); });
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QVERIFY(panel._irradiance <= 700.0f);
        QCOMPARE(rndIrradiation(panel._irradiance), 700.0f);
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(panel._stcValid);
    }

    // ---- Board failures
    void boardConditionsShowTheirTexts_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("3") << 3 << "Tensione Eccessiva.";
        QTest::newRow("4") << 4 << "Corrente Eccessiva.";
        QTest::newRow("5") << 5 << "Potenza Eccessiva.";
        QTest::newRow("6") << 6 << "Energia Eccessiva.";
        QTest::newRow("7") << 7 << "Polarità Inversa.";
        QTest::newRow("8") << 8 << "Negativo Flottante.";
        QTest::newRow("9") << 9 << "Tensione troppo bassa.";
        QTest::newRow("10") << 10 << "Corrente troppo bassa.";
        QTest::newRow("11") << 11 << QString(coolingText());
        QTest::newRow("1") << 1 << QString();
        QTest::newRow("2") << 2 << QString();
    }
    void boardConditionsShowTheirTexts()
    {
        QFETCH(int, status);
        QFETCH(QString, text);
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("board status " + QByteArray::number(status)));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, text);
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
        QVERIFY(!panel._measureDone);
    }
    void boardError1OpensAnEmptyBoxAndTakesTheFailurePath()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(sim.command("board status 1"));
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString());
        QCOMPARE(driver.boxes[0].informative, QString());
        QVERIFY(!panel._measureDone);
        QVERIFY(!panel._curveValid);
        QVERIFY(!panel._stcValid);
        QVERIFY(!panel._temperatureValid);
        QVERIFY(!panel._irradianceValid);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), QStringList());
        // the plot was cleared when the first reading had passed
        QVERIFY(panel.plotter()->curves().isEmpty());
        saveScreenshot(&panel, "panel_after_board_error_box");
    }
    void silentBoardIsALostConnection()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("board fault nostatus"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Problema di connessione al Power Device."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
    }
    // A NUL byte inside the ramp's data ends the reply's text before its
    // status line: a lost connection, never a good measure of zero points.
    void numberIsANumber_nulInsideTheRampIsALostConnection()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("board fault nul"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Problema di connessione al Power Device."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
        QVERIFY(!panel._measureDone);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    }

    void exhaustedBatteryDuringARampOpensTheShutDownDialogAndTheNextSilenceIsARestoration()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setAdapter(false));
        ModalDriver driver;
        QStringList seen;
        PanelIV* screen = nullptr;
        QWidget* opener = nullptr;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            opener = w->parentWidget();
            sim.setAdapter(true); // the charger comes
        });
        // The battery gives out once the first reading has passed; the dialog
        // cuts the board's supply, and the board, switched on again, leaves
        // the ramp without its status line.
        ProgressWatch watch("Misura Modulo...", [&] {
            sim.forceAdc("battery", 27000);
            sim.command("board fault nostatus once");
            // the 700 ms supply poll opens the dialog, however busy the machine
            QTRY_VERIFY_WITH_TIMEOUT(!seen.isEmpty(), 5000);
        });
        PanelIV panel(nullptr);
        screen = &panel;
        driver.answerBox();
        panel.show();
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QCOMPARE(seen, QStringList{"DialogShutDown"});
        // the screen has no status bar: the dialog is its own
        QCOMPARE(opener, static_cast<QWidget*>(screen));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString("Eseguito ripristino modulo potenza."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
        QVERIFY(!panel._powerRestored);
        QVERIFY(!panel._measureDone);
        // the restoration is told once: the next silence is a lost connection again
        QVERIFY(sim.command("board fault nostatus"));
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].text, QString("Problema di connessione al Power Device."));
    }

    // The measuring screen had a hidden status bar that polled the supply a
    // second time and could open a second low-battery dialog over its own;
    // the main menu's bar behind the screen polls as well. One dialog is open
    // in the program at a time, and whichever opened it, the board's next
    // silence is told as a restoration.
    void oneBatteryDialogWithTheMenusBarBehindTheScreen()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setAdapter(false));
        InfoBar menuBar(nullptr); // the main menu's bar, polling behind the screen
        ModalDriver driver;
        int mostOpen = 0;
        int dialogs = 0;
        QTimer count;
        QObject::connect(&count, &QTimer::timeout, [&] {
            int open = 0;
            for (QWidget* w : QApplication::topLevelWidgets())
                open += qobject_cast<DialogShutDown*>(w) != nullptr && w->isVisible();
            mostOpen = qMax(mostOpen, open);
        });
        count.start(0);
        // should a second dialog open, the charger comes anyway and ends them
        QTimer rescue;
        rescue.setSingleShot(true);
        QObject::connect(&rescue, &QTimer::timeout, [&] { sim.setAdapter(true); });
        rescue.start(20000);
        driver.onNext([&](QWidget*) {
            dialogs++;
            // both polls go on inside the dialog for many of their periods
            QTest::qWait(300);
            sim.setAdapter(true);
        });
        ProgressWatch watch("Misura Modulo...", [&] {
            sim.forceAdc("battery", 27000);
            sim.command("board fault nostatus once");
            QTRY_VERIFY_WITH_TIMEOUT(dialogs > 0, 5000);
        });
        PanelIV panel(nullptr);
        driver.answerBox();
        panel.show();
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QCOMPARE(panel.findChildren<InfoBar*>().size(), 0);
        QCOMPARE(mostOpen, 1);
        QCOMPARE(dialogs, 1);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Eseguito ripristino modulo potenza."));
    }

    // Qt 6 shows a progress dialog by itself once its minimum duration has
    // passed since it was built; the old toolkit showed one only on show() or
    // once setValue had passed that duration. A start refused by its first
    // reading never shows "Misura Modulo...", however long its box stays.
    void qt6IsNotTheOldToolkit_noMeasureProgressOverARefusalBoxKeptOpen()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("set pt100 open"));
        ModalDriver driver;
        QStringList shown;
        driver.onNext([&](QWidget* w) {
            // longer than the 4 s a progress dialog waits by default
            QTest::qWait(4500);
            for (QWidget* top : QApplication::topLevelWidgets())
                if (qobject_cast<QProgressDialog*>(top) != nullptr && top->isVisible())
                    shown << top->objectName();
            static_cast<QMessageBox*>(w)->accept();
        });
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.pending(), 0);
        // the environment's dialog was shown on purpose; the measure's never
        QVERIFY2(!shown.contains("MeasureProgress"), qPrintable(shown.join(' ')));
    }

    // ---- One measure at a time
    // The board exchange runs event loops in which "Start" can be pressed
    // again, by touch or by the hardware key: the old instrument then started
    // a measure inside the measure.
    void startPressedDuringAMeasureIsIgnored()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.command("board log clear"));
        ProgressWatch watch("Misura Modulo...", [&] {
            child<QPushButton>(screenOf(), "Start")->click();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(screenOf(), &press);
        });
        PanelIV panel(nullptr);
        current = &panel;
        panel.show();
        child<QPushButton>(&panel, "Start")->setFocus();
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QVERIFY(panel._measureDone);
        QCOMPARE(sim.boardCommands().filter("mea_brask").size(), 1);
        QCOMPARE(sim.boardCommands().filter("temp_hsink").size(), 1);
    }

    // A "Start" whose second reading fails after the ramps were cleared left
    // "Salva" on for the earlier measure on the old instrument: saving then
    // wrote its figures with a ramp of zeros.
    void storedDataNeverLost_startEndingWithoutACurveTurnsSaveOff()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        driver.answerBox();
        ProgressWatch watch("Misura Modulo...", [&] { sim.command("set pt100 open"); });
        touch(&panel, "Start");
        QVERIFY(watch.done);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
        QVERIFY(!panel._measureDone);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    }

    // ---- The measures menu
    void twoGoodMeasuresLeaveTwoExtraSeparators()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 0);
        QCOMPARE(entries(measuresMenu(&panel)),
                 (QStringList{"-", "-", "-", "Modulo", "-", "Potenza"}));
        QVERIFY(sim.command("board status 10"));
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(entries(measuresMenu(&panel)), QStringList());
    }

    // ---- Language
    void boardFailureShowsItsEnglishTextWithLanguage1()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.lang = LANG_EN; });
        QVERIFY(world(sim, 850, 45));
        if (qTranslator == nullptr)
            qTranslator = new QTranslator(qApp);
        QVERIFY(loadTranslator(qTranslator, LANG_EN));
        QCoreApplication::installTranslator(qTranslator);
        QVERIFY(sim.command("board status 3"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        QCOMPARE(child<QPushButton>(&panel, "Confronto")->text(), QString("Comparison"));
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Excessive voltage value."));
        QVERIFY(sim.command("board status 9"));
        driver.answerBox();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes[1].text, QString("Voltage too low."));
        loadTranslator(qTranslator, LANG_IT);
    }

    // ---- Clock and supply
    void clockShowsDateAndTimeByTheSetting_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("date and time") << 0 << "^\\d{1,2}/\\d\\d/\\d\\d\\n\\d\\d:\\d\\d$";
        QTest::newRow("date") << 1 << "^\\d{1,2}/\\d\\d/\\d\\d\\n$";
        QTest::newRow("time") << 2 << "^\\d\\d:\\d\\d$";
    }
    void clockShowsDateAndTimeByTheSetting()
    {
        QFETCH(int, mode);
        QFETCH(QString, pattern);
        TestRoot root(0.01);
        configure(root, [mode](_configParam& c) { c.tclock = static_cast<_displayClock>(mode); });
        PanelIV panel(nullptr);
        panel.show();
        QLabel* clock = child<QLabel>(&panel, "clock");
        QVERIFY2(QRegularExpression(pattern).match(clock->text()).hasMatch(),
                 qPrintable(clock->text()));
        QCOMPARE(clock->font().pointSize(), 28);
        panel._config.tclock = static_cast<_displayClock>(7);
        panel.displayClock();
        QCOMPARE(clock->text(), QString());
        bool clockTimer = false;
        for (const Clock::Wait& w : Clock::waits())
            clockTimer |= w.kind == Clock::Timer && w.micros == 60000000LL;
        QVERIFY(clockTimer);
    }
    void supplyShowsTheAdapterOrTheBatteryLevel()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(sim.setAdapter(true));
        PanelIV panel(nullptr);
        panel.show();
        QLabel* supply = child<QLabel>(&panel, "supply");
        QTRY_COMPARE(supply->pixmap().toImage(), QPixmap(":/icon/vac-adapter.png").toImage());
        QVERIFY(sim.setAdapter(false));
        QVERIFY(sim.forceAdc("battery", 31500));
        QTRY_COMPARE(supply->pixmap().toImage(), QPixmap(":/icon/vbattery-25.png").toImage());
        bool supplyTimer = false;
        for (const Clock::Wait& w : Clock::waits())
            supplyTimer |= w.kind == Clock::Timer && w.micros == 700000LL;
        QVERIFY(supplyTimer);
    }
};

QTEST_MAIN(TestPanelMeasure)
#include "tst_panelmeasure.moc"
