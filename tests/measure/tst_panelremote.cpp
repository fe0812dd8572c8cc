#include "measure/panelfixture.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <cmath>

using namespace panelfixture;

// The environment of a module test read through the remote sensor unit, on
// its USB adapter and on Bluetooth, on the simulated instrument.
class TestPanelRemote : public QObject
{
    Q_OBJECT

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void remoteUnitOnUsbGivesTheEnvironmentOfTheMeasure()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        QVERIFY(world(sim, 820, 40));
        QVERIFY(sim.command("remote gen 2"));
        QVERIFY(sim.command("remote link usb 0"));
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY2(std::fabs(panel._irradiance - 820) < 2.0f, qPrintable(QString::number(panel._irradiance)));
        QVERIFY2(std::fabs(panel._temperature - 40) < 0.5f, qPrintable(QString::number(panel._temperature)));
        QVERIFY2(sim.call("remote log").contains("VERSION"), sim.call("remote log").constData());
    }
    void fourFailedConnectionsGiveTheRemoteUnitBoxThenTheTemperatureBox()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        QVERIFY(world(sim, 820, 40));
        QVERIFY(sim.command("remote link none"));
        ModalDriver driver;
        driver.answerBox();
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Unità Remota"));
        QCOMPARE(driver.boxes[0].text, QString("Non connessa o assente."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
        QCOMPARE(driver.boxes[1].title, QString("Misure Ambiente"));
        QCOMPARE(driver.boxes[1].text, QString("Temperatura non rilevata."));
        QCOMPARE(driver.boxes[1].icon, QMessageBox::Warning);
        QVERIFY(!panel._measureDone);
        QVERIFY(!sim.boardCommands().join(' ').contains("mea_brask")); // no ramp
    }
    void remoteUnitWithoutIrradianceRefusesTheMeasure()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        QVERIFY(world(sim, 820, 40));
        QVERIFY(sim.command("remote novalue irr on"));
        ModalDriver driver;
        driver.answerBox();
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione non rilevata."));
        QVERIFY(!panel._measureDone);
    }
    void remoteUnitOnBluetoothIsReachedThroughTheLinkScript()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.remote = LINK_BLUETOOTH; });
        QVERIFY(world(sim, 760, 38));
        QVERIFY(sim.command("remote link rfcomm"));
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(std::fabs(panel._irradiance - 760) < 2.0f);
        QVERIFY(root.read("/var/lib/krm510-sim/commands.log").contains("krmhci.sh"));
    }
};

QTEST_MAIN(TestPanelRemote)
#include "tst_panelremote.moc"
