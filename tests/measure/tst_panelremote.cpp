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

    void remoteUnitWithoutIrradianceRefusesTheMeasure()
    {
        TestRoot root(0.1);
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
        TestRoot root(0.1);
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
