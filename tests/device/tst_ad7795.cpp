// The AD7795 front end against the simulated converter: set-up bytes,
// channels, the irradiance and temperature mappings, the battery levels and
// the cached values when the device node is gone.
#include "device/ad7795.h"
#include "platform/bus.h"
#include "platform/clock.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QtTest>

#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace {

QByteArray registers(const SimInstrument& sim)
{
    return sim.value("adc registers");
}

int readOnce(_probe probe)
{
    int fd = open_ad7795();
    if (fd < 0)
        return -1;
    int count = read_probe(fd, probe);
    Bus::close(fd);
    return count;
}

} // namespace

class TestAd7795 : public QObject
{
    Q_OBJECT

private slots:
    void gainCodeFollowsTheSensitivityLimits()
    {
        setGforPyrano(9.76f);
        QCOMPARE(int(getGforPyrano()), 6);
        QCOMPARE(getSensPyrano(), 9.76f);
        setGforPyrano(625.0f);
        QCOMPARE(int(getGforPyrano()), 0);
        setGforPyrano(0.0f);
        QCOMPARE(int(getGforPyrano()), 7);
        setGforPyrano(-4.0f);
        QCOMPARE(int(getGforPyrano()), 7);
        setGforPyrano(9.75f);
        QCOMPARE(int(getGforPyrano()), 7);
        setGforPyrano(19.53f);
        QCOMPARE(int(getGforPyrano()), 5);
        setGforPyrano(39.06f);
        QCOMPARE(int(getGforPyrano()), 4);
        setGforPyrano(78.125f);
        QCOMPARE(int(getGforPyrano()), 3);
        setGforPyrano(156.2f);
        QCOMPARE(int(getGforPyrano()), 2);
        setGforPyrano(312.2f);
        QCOMPARE(int(getGforPyrano()), 1);
        setGforPyrano(624.9f);
        QCOMPARE(int(getGforPyrano()), 1);
    }

    void irradianceIsComputedInItsOrder()
    {
        setKforPyrano(2.5f);
        setGforPyrano(10.0f); // gain 64
        QCOMPARE(calc_irr(32000), 20000.0f);
        float expected = 12345.0f;
        expected /= 2.5f;
        expected /= 64.0f;
        expected /= 10.0f;
        expected *= 1000.0f;
        QCOMPARE(calc_irr(12345), expected);
    }

    void batteryCountsMapToEightLevels()
    {
        QCOMPARE(batteryLevelOfCount(33687), 0);
        QCOMPARE(batteryLevelOfCount(33686), 1);
        QCOMPARE(batteryLevelOfCount(32785), 1);
        QCOMPARE(batteryLevelOfCount(32784), 2);
        QCOMPARE(batteryLevelOfCount(32064), 3);
        QCOMPARE(batteryLevelOfCount(31112), 4);
        QCOMPARE(batteryLevelOfCount(30080), 5);
        QCOMPARE(batteryLevelOfCount(29184), 6);
        QCOMPARE(batteryLevelOfCount(27931), 6);
        QCOMPARE(batteryLevelOfCount(27930), 7);
        QCOMPARE(batteryLevelOfCount(0), 7);
    }

    void batteryLevelOfTheConverterCount()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("battery", 33686));
        QCOMPARE(batteryLevel(), 1);
        QVERIFY(sim.forceAdc("battery", 27931));
        QCOMPARE(batteryLevel(), 6);
        QVERIFY(sim.forceAdc("battery", 27930));
        QCOMPARE(batteryLevel(), 7);
        QVERIFY(sim.forceAdc("battery", 40000));
        QCOMPARE(batteryLevel(), 0);
    }

    void initWritesModeConfigurationAndExcitation()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(init_ad7795() >= 0);
        QByteArray regs = registers(sim);
        QVERIFY2(regs.contains("mode=0x0009"), regs);
        QVERIFY2(regs.contains("config=0x1433"), regs);
        QVERIFY2(regs.contains("io=0x03"), regs);
        QCOMPARE(Clock::waits().back(), (Clock::Wait{Clock::Usleep, 1000, 1}));
    }

    void eachProbeSelectsItsChannelAndGain()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setGforPyrano(10.0f); // code 6
        QVERIFY(readOnce(AD_PT100) >= 0);
        QVERIFY2(registers(sim).contains("config=0x1432"), registers(sim));
        QVERIFY(readOnce(AD_PYRANO) >= 0);
        QVERIFY2(registers(sim).contains("config=0x1630"), registers(sim));
        QVERIFY(readOnce(AD_BATTERY) >= 0);
        QVERIFY2(registers(sim).contains("config=0x1035"), registers(sim));
        QVERIFY(readOnce(AD_REFERENCE) >= 0);
        QVERIFY2(registers(sim).contains("config=0x1433"), registers(sim));
        QVERIFY2(registers(sim).contains("mode=0x0009"), registers(sim));
    }

    void forcedCountIsReadWhole()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("pt100", 0xBEEF));
        QCOMPARE(readOnce(AD_PT100), 0xBEEF);
    }

    void failedTransferReadsZero()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(read_probe(-1, AD_PT100), 0);
    }

    void pyranoCountZeroIsNotOkAndCachesZero()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setKforPyrano(2.5f);
        setGforPyrano(10.0f);
        char ok = 0;
        QVERIFY(sim.forceAdc("pyrano", 32000));
        QCOMPARE(irradiationAcquire(&ok), 20000.0f);
        QCOMPARE(int(ok), 1);
        QVERIFY(sim.forceAdc("pyrano", 0));
        QCOMPARE(irradiationAcquire(&ok), 0.0f);
        QCOMPARE(int(ok), 0);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        ok = 1;
        QCOMPARE(irradiationAcquire(&ok), 0.0f);
        QCOMPARE(int(ok), 0);
    }

    void irradianceOfFiveThousandthsIsNotOkButCached()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setKforPyrano(312.5f);
        setGforPyrano(10.0f); // 1 / 312.5 / 64 / 10 * 1000 = 0.005
        QVERIFY(sim.forceAdc("pyrano", 1));
        char ok = 1;
        float value = irradiationAcquire(&ok);
        QVERIFY(qAbs(value - 0.005f) < 1e-7f);
        QCOMPARE(int(ok), 0);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        QCOMPARE(irradiationAcquire(&ok), value);
        QCOMPARE(int(ok), 0);
    }

    void temperatureOfThePt100OverItsReference()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 33000));
        char ok = 0;
        float ratio = 33000.0f / 30000.0f;
        float degrees = float((double(ratio) - 1.0) * 100.0 / 0.385);
        QCOMPARE(temperatureAcquire(&ok, 1.02f, -0.5f), degrees * 1.02f + -0.5f);
        QCOMPARE(int(ok), 1);
        QVERIFY(qAbs(pt100Temperature(30000, 33000, 1, 0) - 25.974f) < 0.001f);
        QCOMPARE(Clock::waits().back(), (Clock::Wait{Clock::Usleep, 100, 3}));
    }

    void openProbeIsNotOkButComputedAndCached()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 65535));
        char ok = 1;
        float value = temperatureAcquire(&ok, 1, 0);
        QCOMPARE(value, pt100Temperature(30000, 65535, 1, 0));
        QCOMPARE(int(ok), 0);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        ok = 1;
        QCOMPARE(temperatureAcquire(&ok, 1, 0), value);
        QCOMPARE(int(ok), 0);
    }

    void temperatureBelowMinusTenIsNotOk()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 30500));
        char ok = 1;
        QCOMPARE(temperatureAcquire(&ok, 0.0f, -10.1f), -10.1f);
        QCOMPARE(int(ok), 0);
        QCOMPARE(temperatureAcquire(&ok, 0.0f, -10.0f), -10.0f);
        QCOMPARE(int(ok), 1);
    }

    void pt100CountZeroIsNotOk()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 0));
        char ok = 1;
        QVERIFY(qAbs(temperatureAcquire(&ok, 1, 0) - -259.74f) < 0.01f);
        QCOMPARE(int(ok), 0);
    }

    // The old instrument stored the non-finite temperature of a reference
    // count of 0 and, as no comparison holds for it, called it good. It is a
    // failed reading now: the last value comes back and stays cached.
    void numberIsANumber_referenceCountZeroIsAFailedReadingThatKeepsTheCache()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 33000));
        char ok = 0;
        const float good = temperatureAcquire(&ok, 1, 0);
        QCOMPARE(int(ok), 1);
        QVERIFY(sim.forceAdc("reference", 0));
        for (int pt100 : {30000, 0}) { // infinite, then not a number
            QVERIFY(sim.forceAdc("pt100", pt100));
            ok = 1;
            QCOMPARE(temperatureAcquire(&ok, 1, 0), good);
            QCOMPARE(int(ok), 0);
        }
        // the cache still holds the good value
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        QCOMPARE(temperatureAcquire(&ok, 1, 0), good);
    }

    void numberIsANumber_irradianceOfAZeroScaleIsAFailedReadingThatKeepsTheCache()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setKforPyrano(2.5f);
        setGforPyrano(10.0f);
        QVERIFY(sim.forceAdc("pyrano", 32000));
        char ok = 0;
        QCOMPARE(irradiationAcquire(&ok), 20000.0f);
        QCOMPARE(int(ok), 1);
        setKforPyrano(0.0f); // counts over a scale of 0: infinite
        ok = 1;
        QCOMPARE(irradiationAcquire(&ok), 20000.0f);
        QCOMPARE(int(ok), 0);
        setKforPyrano(2.5f);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        QCOMPARE(irradiationAcquire(&ok), 20000.0f);
        QCOMPARE(int(ok), 0);
    }

    // The old instrument polled the converter's RDY for ever. A chip that never
    // becomes ready now fails the transfer after a fixed number of status
    // reads, whatever the pace of the clock.
    void everyWaitEnds_converterNeverReadyIsAFailedTransfer()
    {
        TestRoot root(0.0);
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("pt100", 0xBEEF));
        QVERIFY(sim.command("adc stuck on"));
        const int before = sim.field("adc registers", "transfers").toInt();
        QCOMPARE(readOnce(AD_PT100), 0);
        const int after = sim.field("adc registers", "transfers").toInt();
        // mode, configuration and 10000 status reads; no data read
        QCOMPARE(after - before, 2 + 10000);
        char ok = 1;
        QCOMPARE(temperatureAcquire(&ok, 1, 0), 0.0f);
        QCOMPARE(int(ok), 0);
        QVERIFY(sim.command("adc stuck off"));
        QCOMPARE(readOnce(AD_PT100), 0xBEEF);
    }

    void missingSpiNodeGivesTheCachedValues()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        setKforPyrano(2.5f);
        setGforPyrano(10.0f);
        QVERIFY(sim.forceAdc("pyrano", 32000));
        QVERIFY(sim.forceAdc("reference", 30000));
        QVERIFY(sim.forceAdc("pt100", 33000));
        QVERIFY(sim.forceAdc("battery", 31000));
        char ok = 0;
        float irr = irradiationAcquire(&ok);
        float temp = temperatureAcquire(&ok, 1, 0);
        QCOMPARE(batteryLevel(), 4);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        QVERIFY(sim.forceAdc("battery", 40000));
        ok = 1;
        QCOMPARE(irradiationAcquire(&ok), irr);
        QCOMPARE(int(ok), 0);
        ok = 1;
        QCOMPARE(temperatureAcquire(&ok, 1, 0), temp);
        QCOMPARE(int(ok), 0);
        QCOMPARE(batteryLevel(), 4);

        // init tells standard output only
        fflush(stdout);
        QString log = root.path("/stdout.txt");
        int saved = dup(STDOUT_FILENO);
        QVERIFY(freopen(log.toLocal8Bit().constData(), "w", stdout) != nullptr);
        int result = init_ad7795();
        fflush(stdout);
        dup2(saved, STDOUT_FILENO);
        ::close(saved);
        QCOMPARE(result, -1);
        QCOMPARE(root.read("/stdout.txt"), QByteArray("ad7795 open error\n"));
    }

    void missingSpiNodeBeforeAnyReadGivesZeros()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/spidev0.0"));
        char ok = 1;
        QCOMPARE(irradiationAcquire(&ok), 0.0f);
        QCOMPARE(int(ok), 0);
        ok = 1;
        QCOMPARE(temperatureAcquire(&ok, 1, 0), 0.0f);
        QCOMPARE(int(ok), 0);
        QCOMPARE(batteryLevel(), 7);
        QCOMPARE(open_ad7795(), -1);
    }
};

QTEST_GUILESS_MAIN(TestAd7795)
#include "tst_ad7795.moc"
