#include "measure/dialogambiente.h"
#include "measure/panelfixture.h"
#include "platform/clock.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <QLabel>
#include <QPixmap>
#include <cmath>
#include <limits>

using namespace panelfixture;

// The environment screen, still with the values it is given and live on the
// simulated instrument's local sensors and remote unit.
class TestAmbiente : public QObject
{
    Q_OBJECT

    static QString temperatureText(DialogAmbiente& d) { return d._labelTemperature->text(); }
    static QString irradianceText(DialogAmbiente& d) { return d._labelIrradiance->text(); }
    static QString stillTemperature(_probeTemp probe, float t, bool reference)
    {
        DialogAmbiente d(nullptr, false, probe, LINK_LOCAL, t, 800, 0, 0, reference);
        return temperatureText(d);
    }
    // The texts of the grid's name column.
    static QStringList labels(QWidget* w)
    {
        QStringList texts;
        for (QLabel* l : w->findChildren<QLabel*>())
            texts << l->text();
        return texts;
    }
    // Waits for the timer's ticks; the number of ticks it took for the
    // condition to hold, or -1.
    template <typename F> static int ticksUntil(DialogAmbiente& d, int most, F condition)
    {
        int ticks = 0;
        QObject counter;
        QObject::connect(d._timerRead, &QTimer::timeout, &counter, [&] { ticks++; });
        for (int i = 0; i < 400 && ticks <= most; i++) {
            if (condition())
                return ticks;
            QTest::qWait(10);
        }
        return condition() ? ticks : -1;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- still mode
    void stillShowsTheGivenValuesAndSchedulesNothing()
    {
        TestRoot root;
        Clock::clearWaits();
        DialogAmbiente d(nullptr, false, PROBE_MODULE, LINK_LOCAL, 41.256f, 812.5f, 0, 0, false);
        QCOMPARE(d.objectName(), QString("Environment Measures"));
        QCOMPARE(d.windowTitle(), QString("Misure Ambiente"));
        QCOMPARE(temperatureText(d), QString("41.26"));
        QCOMPARE(irradianceText(d), QString("812.50"));
        QCOMPARE(Clock::requested(Clock::SingleShot), 0LL);
        QCOMPARE(d._labelStatus->text(), QString());
        QVERIFY(d._labelLink->pixmap().isNull());
        QVERIFY(labels(&d).contains("Temp. Mod."));
        QVERIFY(labels(&d).contains("Irr."));
        QVERIFY(labels(&d).contains(QString::fromUtf8("W/m²")));
        QTest::qWait(50);
        QVERIFY(d._timerRead == nullptr);
    }
    void stillRowNameFollowsTheProbe()
    {
        TestRoot root;
        const QList<QPair<_probeTemp, QString>> rows = {{PROBE_AMBIENT, "Temp. Amb."},
                                                        {PROBE_MODULE, "Temp. Mod."},
                                                        {PROBE_AUTO, "Temp. Auto"},
                                                        {PROBE_MANUAL, "Temp. Manuale"},
                                                        {static_cast<_probeTemp>(7), "Temp. Amb."}};
        for (const auto& row : rows) {
            DialogAmbiente d(nullptr, false, row.first, LINK_LOCAL, 20, 800, 0, 0, true);
            QVERIFY2(labels(&d).contains(row.second), qPrintable(row.second));
        }
    }
    void stillComputedTemperatureNeedsAModule()
    {
        TestRoot root;
        QCOMPARE(stillTemperature(PROBE_AUTO, 35.0f, false), QString("----"));
        QCOMPARE(stillTemperature(PROBE_AUTO, 35.0f, true), QString("35.00"));
    }
    void stillComputedTemperatureOfExactly100ShowsAboveTheRange()
    {
        TestRoot root;
        QCOMPARE(stillTemperature(PROBE_AUTO, 100.0f, true), QString("> 100.00"));
        QCOMPARE(stillTemperature(PROBE_AUTO, 99.99f, true), QString("99.99"));
        QCOMPARE(stillTemperature(PROBE_AUTO, -20.0f, true), QString("< -20.00"));
        QCOMPARE(stillTemperature(PROBE_AUTO, -19.99f, true), QString("-19.99"));
        const float nan = std::numeric_limits<float>::quiet_NaN();
        const float inf = std::numeric_limits<float>::infinity();
        QCOMPARE(stillTemperature(PROBE_AUTO, nan, true), QString("----"));
        QCOMPARE(stillTemperature(PROBE_AUTO, inf, true), QString("----"));
        // the range marks belong to the computed temperature alone
        QCOMPARE(stillTemperature(PROBE_MODULE, 100.0f, true), QString("100.00"));
        QCOMPARE(stillTemperature(PROBE_AMBIENT, nan, false), QString("----"));
        QCOMPARE(stillTemperature(PROBE_MANUAL, inf, false), QString("----"));
        DialogAmbiente d(nullptr, false, PROBE_AMBIENT, LINK_LOCAL, 20, nan, 0, 0, false);
        QCOMPARE(irradianceText(d), QString("----"));
    }
    void stillLookIsLegible()
    {
        TestRoot root;
        DialogAmbiente d(nullptr, false, PROBE_AUTO, LINK_LOCAL, 100.0f, 812.5f, 0, 0, true);
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        QStringList faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogambiente-still").isEmpty());
    }
    void cellTemperatureIsInTheCatalogueOnly()
    {
        TestRoot root;
        for (_probeTemp p : {PROBE_AMBIENT, PROBE_MODULE, PROBE_AUTO, PROBE_MANUAL}) {
            DialogAmbiente d(nullptr, false, p, LINK_LOCAL, 20, 800, 0, 0, true);
            QVERIFY(!labels(&d).contains("Temp. Cell."));
        }
    }

    // ---- live mode, local sensors
    void liveLocalFollowsTheIrradianceWithinTwoTicks()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        Clock::clearWaits();
        DialogAmbiente d(nullptr, true, PROBE_MODULE, LINK_LOCAL, 0, 0, 1, 0, false);
        QCOMPARE(temperatureText(d), QString("----"));
        QCOMPARE(irradianceText(d), QString("----"));
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerRead != nullptr, 5000);
        QCOMPARE(Clock::requested(Clock::SingleShot), 800000LL);
        QCOMPARE(d._timerRead->interval(), Clock::interval(1100));
        QVERIFY(ticksUntil(d, 3, [&] { return d._irradianceValid; }) >= 0);
        QVERIFY(std::fabs(d._irradiance - 900) < 5.0f);
        QVERIFY(d._temperatureValid);
        QCOMPARE(irradianceText(d), QString::number(d._irradiance, 'f', 2));
        QVERIFY(sim.setIrradiance(600));
        int ticks = ticksUntil(d, 2, [&] { return std::fabs(d._irradiance - 600) < 5.0f; });
        QVERIFY2(ticks >= 0 && ticks <= 2, qPrintable(QString::number(ticks)));
        QVERIFY(Clock::requested(Clock::Usleep) >= 1000);
        d._buttonOk->click();
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
    void liveAutomaticTemperatureShowsDashesForEver()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 700, 40));
        DialogAmbiente d(nullptr, true, PROBE_AUTO, LINK_LOCAL, 0, 0, 1, 0, true);
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerRead != nullptr, 5000);
        QVERIFY(ticksUntil(d, 4, [] { return false; }) == -1); // four ticks go by
        QCOMPARE(temperatureText(d), QString("----"));
        QVERIFY(!d._temperatureValid);
        QVERIFY(std::isnan(d._temperature));
        QVERIFY(d._irradianceValid);
        QVERIFY(std::fabs(d._irradiance - 700) < 5.0f);
    }
    void liveManualTemperatureShowsTheValuePassedIn()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 700, 55));
        DialogAmbiente d(nullptr, true, PROBE_MANUAL, LINK_LOCAL, 33.3f, 0, 1, 0, false);
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerRead != nullptr, 5000);
        QVERIFY(ticksUntil(d, 3, [&] { return d._irradianceValid; }) >= 0);
        QCOMPARE(temperatureText(d), QString("33.30"));
        QCOMPARE(d._temperature, 33.3f);
        QStringList faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogambiente-live-local").isEmpty());
    }
    void keysLeaveWithEscapeAndWithReturnOnAButton()
    {
        TestRoot root;
        {
            DialogAmbiente d(nullptr, false, PROBE_MODULE, LINK_LOCAL, 20, 800, 0, 0, false);
            d.show();
            d.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&d));
            d._buttonCancel->setFocus();
            QVERIFY(d._buttonCancel->hasFocus());
            QTest::keyClick(&d, Qt::Key_Return);
            QVERIFY(!d.isVisible());
        }
        {
            DialogAmbiente d(nullptr, false, PROBE_MODULE, LINK_LOCAL, 20, 800, 0, 0, false);
            d.show();
            QTest::keyClick(&d, Qt::Key_Escape);
            QVERIFY(!d.isVisible());
        }
    }

    // ---- live mode, remote unit
    void remoteOnUsbShowsTheLinkFramesThenReads()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        QVERIFY(world(sim, 850, 40));
        QVERIFY(sim.command("remote gen 2"));
        QVERIFY(sim.command("set tambient 21.5"));
        // the blank first frame: the name with a comma is no picture
        QVERIFY(QPixmap(":/icon/usbrs1,png").isNull());
        QVERIFY(!QPixmap(":/icon/usbrs1.png").isNull());
        DialogAmbiente d(nullptr, true, PROBE_AMBIENT, LINK_USB, 0, 0, 1, 0, false);
        QCOMPARE(d._labelStatus->text(), QString("Attivazione Collegamento."));
        QCOMPARE(d._labelLink->pixmap().toImage(), QPixmap(":/icon/usbrs3.png").toImage());
        // what the operator sees at each turn of the event loop
        QStringList seen;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            QString now =
                d._labelStatus->text() + (d._labelLink->pixmap().isNull() ? " blank" : "");
            if (seen.isEmpty() || seen.last() != now)
                seen << now;
        });
        watch.start(0);
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerRead != nullptr, 10000);
        QVERIFY2(seen.contains("Attivazione Collegamento. blank"), qPrintable(seen.join('|')));
        QVERIFY(seen.contains("Attivazione Collegamento.."));
        QVERIFY(seen.contains("Collegamento Remoto..."));
        QCOMPARE(d._labelLink->pixmap().toImage(), QPixmap(":/icon/usbadapter.png").toImage());
        QVERIFY(ticksUntil(d, 4, [&] { return d._irradianceValid && d._temperatureValid; }) >= 0);
        watch.stop();
        QCOMPARE(irradianceText(d), QString("850.00"));
        QCOMPARE(temperatureText(d), QString("21.50"));
        QStringList faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogambiente-live-remote").isEmpty());
    }
    void remoteThatNeverAnswersGivesOneBoxAfterFourTries()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        QVERIFY(world(sim, 850, 40));
        QVERIFY(sim.command("remote link none"));
        ModalDriver driver;
        driver.answerBox();
        Clock::clearWaits();
        DialogAmbiente d(nullptr, true, PROBE_AMBIENT, LINK_USB, 0, 0, 1, 0, false);
        d.show();
        QTRY_COMPARE_WITH_TIMEOUT(driver.boxes.size(), 1, 10000);
        QCOMPARE(driver.boxes[0].title, QString("Unità Remota"));
        QCOMPARE(driver.boxes[0].text, QString("Non connessa o assente."));
        QVERIFY(d._timerRead == nullptr);
        long long pauses = 0;
        for (const Clock::Wait& w : Clock::waits())
            if (w.kind == Clock::Usleep && w.micros == 600)
                pauses += w.count;
        QCOMPARE(pauses, 4LL);
        QCOMPARE(temperatureText(d), QString("----"));
    }
    void remoteThatConnectsAndDiesLaterGivesOneBoxAndTheTimerStops()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_BLUETOOTH; });
        QVERIFY(world(sim, 760, 38));
        QVERIFY(sim.command("remote gen 2"));
        QVERIFY(sim.command("remote link rfcomm"));
        ModalDriver driver;
        driver.answerBox();
        DialogAmbiente d(nullptr, true, PROBE_MODULE, LINK_BLUETOOTH, 0, 0, 1, 0, false);
        QCOMPARE(d._labelLink->pixmap().toImage(), QPixmap(":/icon/radiotray3.png").toImage());
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerRead != nullptr, 10000);
        QCOMPARE(d._labelLink->pixmap().toImage(), QPixmap(":/icon/bluetooth.png").toImage());
        QVERIFY(ticksUntil(d, 4, [&] { return d._irradianceValid; }) >= 0);
        QCOMPARE(irradianceText(d), QString("760.00"));
        QVERIFY(sim.command("remote link none"));
        QTRY_COMPARE_WITH_TIMEOUT(driver.boxes.size(), 1, 10000);
        QCOMPARE(driver.boxes[0].text, QString("Non connessa o assente."));
        QTRY_VERIFY(!d._timerRead->isActive());
        QTest::qWait(200); // several periods of the stopped timer
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(temperatureText(d), QString("----"));
        QCOMPARE(irradianceText(d), QString("----"));
        QCOMPARE(d._labelLink->pixmap().toImage(), QPixmap(":/icon/radiotray1.png").toImage());
        QVERIFY(d.isVisible());
    }
};

QTEST_MAIN(TestAmbiente)
#include "tst_ambiente.moc"
