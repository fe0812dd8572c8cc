// The adapter sense line, the measuring board's power line and the backlight
// dimmer against the simulated instrument.
#include "device/gpiopd.h"
#include "device/monitor.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QtTest>

class TestPowerRail : public QObject
{
    Q_OBJECT

private slots:
    void adapterLineGivesItsLevel()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        QCOMPARE(isPowerSupply(), 1);
        QVERIFY(sim.setAdapter(false));
        QCOMPARE(isPowerSupply(), 0);
    }

    void missingAdapterLineReadsMinusOne()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(false));
        QVERIFY(sim.removeNode("/dev/gpio/105"));
        QCOMPARE(isPowerSupply(), -1);
    }

    void powerLineSwitchesTheBoard()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(powerDeviceStart(1), 0);
        QCOMPARE(sim.field("power", "level"), QByteArray("1"));
        QCOMPARE(sim.field("power", "board"), QByteArray("off"));
        QCOMPARE(powerDeviceStart(0), 0);
        QCOMPARE(sim.field("power", "level"), QByteArray("0"));
        QCOMPARE(sim.field("power", "board"), QByteArray("on"));
        QCOMPARE(sim.value("gpio 106").contains("direction=out"), true);
    }

    void powerValueOtherThanZeroOrOneOpensNothing()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QByteArray writes = sim.field("power", "writes");
        QCOMPARE(powerDeviceStart(2), -4);
        QCOMPARE(powerDeviceStart(-1), -4);
        QCOMPARE(sim.field("power", "writes"), writes);
        QCOMPARE(sim.field("power", "board"), QByteArray("on"));
    }

    void missingPowerLineIsMinusThree()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/gpio/106"));
        QCOMPARE(powerDeviceStart(0), -3);
    }

    void brightnessByteIsInverted()
    {
        QCOMPARE(int(monitor_pwm_byte(100)), 0);
        QCOMPARE(int(monitor_pwm_byte(50)), 127);
        QCOMPARE(int(monitor_pwm_byte(0)), 254); // 100 * 2.55 is just below 255
        QCOMPARE(int(monitor_pwm_byte(1)), 252);
    }

    void brightnessReachesPwm0()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(monitor_set_value(0), 0);
        QCOMPARE(sim.backlightRegister("pwm0"), 254);
        QCOMPARE(monitor_set_value(100), 0);
        QCOMPARE(sim.backlightRegister("pwm0"), 0);
        QCOMPARE(monitor_set_value(50), 0);
        QCOMPARE(sim.backlightRegister("pwm0"), 127);
    }

    void brightnessAbove100OpensNothing()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(monitor_set_value(30), 0);
        QByteArray writes = sim.field("backlight", "writes");
        QCOMPARE(monitor_set_value(101), -1);
        QCOMPARE(monitor_set_value(-1), -1);
        QCOMPARE(sim.field("backlight", "writes"), writes);
        QCOMPARE(sim.backlightRegister("pwm0"), 178);
    }

    void defaultSetsAllFiveRegisters()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(monitor_set_value(10), 0);
        QCOMPARE(monitor_pwm_set_default(), 0);
        QCOMPARE(sim.backlightRegister("psc0"), 0);
        QCOMPARE(sim.backlightRegister("pwm0"), 0);
        QCOMPARE(sim.backlightRegister("psc1"), 0);
        QCOMPARE(sim.backlightRegister("pwm1"), 0x40);
        QCOMPARE(sim.backlightRegister("ls0"), 0x0E);
    }

    void missingI2cNodeIsMinusOne()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/i2c-1"));
        QCOMPARE(monitor_set_value(50), -1);
        QCOMPARE(monitor_pwm_set_default(), -1);
    }
};

QTEST_GUILESS_MAIN(TestPowerRail)
#include "tst_powerrail.moc"
