// The simulated bus back end against krm510-simd: the AD7795 register
// traffic gives the expected counts, GPIO and I2C requests land in the
// simulator, and a missing device or a missing simulator fails at once.
#include "platform/bus.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QElapsedTimer>
#include <QtTest>
#include <cmath>
#include <fcntl.h>

namespace {

int openAdc()
{
    int fd = Bus::open("/dev/spidev0.0", O_RDWR);
    if (fd < 0)
        return -1;
    uint8_t mode = 0, bits = 0;
    uint32_t speed = 0;
    if (Bus::spiWriteMode(fd, 3) < 0 || Bus::spiReadMode(fd, &mode) < 0 || mode != 3 ||
        Bus::spiWriteBitsPerWord(fd, 8) < 0 || Bus::spiReadBitsPerWord(fd, &bits) < 0 || bits != 8 ||
        Bus::spiWriteMaxSpeed(fd, 4000000) < 0 || Bus::spiReadMaxSpeed(fd, &speed) < 0 || speed != 4000000) {
        Bus::close(fd);
        return -1;
    }
    return fd;
}

bool send(int fd, std::initializer_list<uint8_t> bytes)
{
    std::vector<uint8_t> tx(bytes);
    return Bus::spiTransfer(fd, tx.data(), nullptr, tx.size()) == static_cast<int>(tx.size());
}

bool initAdc(int fd)
{
    return send(fd, {0x08, 0x00, 0x09}) && send(fd, {0x10, 0x14, 0x33}) && send(fd, {0x28, 0x03});
}

// One conversion as the front end does it; the number of busy polls in `polls`.
int readProbe(int fd, uint8_t configHigh, uint8_t configLow, int* polls = nullptr)
{
    if (!send(fd, {0x08, 0x00, 0x09}) || !send(fd, {0x10, configHigh, configLow}))
        return -1;
    int busy = 0;
    for (;;) {
        uint8_t tx[2] = {0x40, 0x00}, rx[2] = {0, 0};
        if (Bus::spiTransfer(fd, tx, rx, 2) != 2)
            return -1;
        if ((rx[1] & 0x80) == 0)
            break;
        if (++busy > 100000)
            return -1;
    }
    if (polls)
        *polls = busy;
    uint8_t tx[3] = {0x58, 0x00, 0x00}, rx[3] = {0, 0, 0};
    if (Bus::spiTransfer(fd, tx, rx, 3) != 3)
        return -1;
    return rx[1] * 256 + rx[2];
}

int gpio(const char* node, Bus::GpioRequest request, int value = 0)
{
    int fd = Bus::open(node, O_RDWR);
    if (fd < 0)
        return -100;
    int result;
    if (request == Bus::GPIO_READ) {
        result = Bus::gpioRequest(fd, Bus::GPIO_SET_INPUT, nullptr);
        int level = -1;
        if (result == 0)
            result = Bus::gpioRequest(fd, Bus::GPIO_READ, &level) == 0 ? level : -1;
    } else {
        result = Bus::gpioRequest(fd, Bus::GPIO_SET_OUTPUT, nullptr);
        if (result == 0)
            result = Bus::gpioRequest(fd, Bus::GPIO_WRITE, &value);
    }
    Bus::close(fd);
    return result;
}

} // namespace

class TestSimBus : public QObject
{
    Q_OBJECT

private slots:
    void pyranometerConversionGivesTheExpectedCount()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(800));
        int fd = openAdc();
        QVERIFY(fd >= 0);
        QVERIFY(initAdc(fd));
        int polls = 0;
        // Gain code 6 (64) for a sensitivity of 10.54 mV/(kW/m2), channel AIN1.
        int count = readProbe(fd, 0x10 + 6, 0x30, &polls);
        QVERIFY(polls >= 1); // RDY stays high for a while after the restart
        QCOMPARE(count, static_cast<int>(std::lround(0.8 * 10.54 * 26.17963 * 64)));
        float irradiance = static_cast<float>(count) / 26.17963f / 64.0f / 10.54f * 1000.0f;
        QVERIFY(std::fabs(irradiance - 800.0f) < 0.1f);
        QCOMPARE(Bus::close(fd), 0);
        QVERIFY(sim.field("adc registers", "mode") == "0x0009");
    }
    void temperatureFromPt100AndReference()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setModuleTemperature(47.5));
        int fd = openAdc();
        QVERIFY(initAdc(fd));
        int reference = readProbe(fd, 0x14, 0x33);
        int pt100 = readProbe(fd, 0x14, 0x32);
        Bus::close(fd);
        QCOMPARE(reference, static_cast<int>(std::lround(100.0 * 16 * 26.17963)));
        float ratio = static_cast<float>(pt100) / static_cast<float>(reference);
        float t = static_cast<float>((static_cast<double>(ratio) - 1.0) * 100.0 / 0.385);
        QVERIFY2(std::fabs(t - 47.5f) < 0.05f, qPrintable(QString::number(t)));
    }
    void ambientProbeAndOpenProbe()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("set probe ambient"));
        QVERIFY(sim.setAmbientTemperature(-5));
        int fd = openAdc();
        QVERIFY(initAdc(fd));
        int reference = readProbe(fd, 0x14, 0x33);
        int pt100 = readProbe(fd, 0x14, 0x32);
        float t = static_cast<float>((static_cast<double>(static_cast<float>(pt100) / reference) - 1.0) * 100.0 / 0.385);
        QVERIFY(std::fabs(t + 5.0f) < 0.05f);
        QVERIFY(sim.command("set pt100 open"));
        QCOMPARE(readProbe(fd, 0x14, 0x32), 65535);
        Bus::close(fd);
    }
    void noExcitationMeansNoPt100Voltage()
    {
        TestRoot root;
        SimInstrument sim(root);
        int fd = openAdc();
        QCOMPARE(readProbe(fd, 0x14, 0x32), 0); // the IO register was never written
        Bus::close(fd);
    }
    void batteryDivider()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setBattery(12.9));
        int fd = openAdc();
        QCOMPARE(readProbe(fd, 0x10, 0x35), static_cast<int>(std::lround(1290.0 * 26.17963)));
        QVERIFY(sim.setBattery(10.5));
        QVERIFY(readProbe(fd, 0x10, 0x35) <= 27930);
        Bus::close(fd);
    }
    void forcedRawCounts()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.forceAdc("pyrano", 12345));
        QVERIFY(sim.forceAdc("battery", 33686));
        int fd = openAdc();
        QCOMPARE(readProbe(fd, 0x16, 0x30), 12345);
        QCOMPARE(readProbe(fd, 0x10, 0x35), 33686);
        QVERIFY(sim.forceAdc("pyrano", -1));
        QVERIFY(readProbe(fd, 0x16, 0x30) != 12345);
        Bus::close(fd);
    }
    void wrongSpiModeGetsNoAnswer()
    {
        TestRoot root;
        SimInstrument sim(root);
        int fd = Bus::open("/dev/spidev0.0", O_RDWR);
        QVERIFY(fd >= 0);
        QCOMPARE(Bus::spiWriteMode(fd, 0), 0);
        uint8_t tx[3] = {0x58, 0, 0}, rx[3] = {0, 0, 0};
        QCOMPARE(Bus::spiTransfer(fd, tx, rx, 3), 3);
        QCOMPARE(rx[1], uint8_t(0xFF));
        QCOMPARE(rx[2], uint8_t(0xFF));
        Bus::close(fd);
    }
    void keyLinesReadZeroWhilePressed()
    {
        TestRoot root;
        SimInstrument sim(root);
        for (const char* node : {"/dev/gpio/93", "/dev/gpio/86", "/dev/gpio/89", "/dev/gpio/75",
                                 "/dev/gpio/81", "/dev/gpio/88"})
            QCOMPARE(gpio(node, Bus::GPIO_READ), 1);
        QVERIFY(sim.pressKey("return"));
        QCOMPARE(gpio("/dev/gpio/75", Bus::GPIO_READ), 0);
        QCOMPARE(gpio("/dev/gpio/93", Bus::GPIO_READ), 1);
        QVERIFY(sim.releaseKey("return"));
        QCOMPARE(gpio("/dev/gpio/75", Bus::GPIO_READ), 1);
        QVERIFY(!sim.pressKey("space"));
    }
    void adapterLine()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(gpio("/dev/gpio/105", Bus::GPIO_READ), 0);
        QVERIFY(sim.setAdapter(true));
        QCOMPARE(gpio("/dev/gpio/105", Bus::GPIO_READ), 1);
    }
    void powerLineWriteLandsInTheSimulator()
    {
        TestRoot root;
        SimInstrument sim(root);
        QCOMPARE(sim.powerLineLevel(), 0);
        QCOMPARE(gpio("/dev/gpio/106", Bus::GPIO_WRITE, 1), 0);
        QCOMPARE(sim.powerLineLevel(), 1);
        QCOMPARE(sim.field("power", "board"), QByteArray("off"));
        QCOMPARE(gpio("/dev/gpio/106", Bus::GPIO_WRITE, 0), 0);
        QCOMPARE(sim.field("power", "board"), QByteArray("on"));
        QCOMPARE(sim.field("power", "writes"), QByteArray("2"));
    }
    void backlightRegistersLandInTheSimulator()
    {
        TestRoot root;
        SimInstrument sim(root);
        int fd = Bus::open("/dev/i2c-1", O_RDWR);
        QVERIFY(fd >= 0);
        QCOMPARE(Bus::i2cSlave(fd, 0x60), 0);
        QCOMPARE(Bus::i2cTimeout(fd, 1), 0);
        QCOMPARE(Bus::i2cRetries(fd, 1), 0);
        const uint8_t writes[5][2] = {{1, 0x00}, {2, 0x00}, {3, 0x00}, {4, 0x40}, {5, 0x0E}};
        for (const auto& w : writes)
            QCOMPARE(Bus::i2cWrite(fd, w, 2), 2);
        const uint8_t pwm[2] = {2, 127};
        QCOMPARE(Bus::i2cWrite(fd, pwm, 2), 2);
        QCOMPARE(sim.backlightRegister("pwm0"), 127);
        QCOMPARE(sim.backlightRegister("pwm1"), 0x40);
        QCOMPARE(sim.backlightRegister("ls0"), 0x0E);
        // Nobody answers at another address.
        QCOMPARE(Bus::i2cSlave(fd, 0x61), 0);
        QCOMPARE(Bus::i2cWrite(fd, pwm, 2), -1);
        Bus::close(fd);
    }
    void missingNodeFailsToOpen()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/gpio/105"));
        QCOMPARE(Bus::open("/dev/gpio/105", O_RDWR), -1);
        QVERIFY(sim.removeNode("/dev/i2c-1"));
        QCOMPARE(Bus::open("/dev/i2c-1", O_RDWR), -1);
    }
    void requestOnAnUnknownDescriptorFails()
    {
        TestRoot root;
        SimInstrument sim(root);
        int level = 0;
        QCOMPARE(Bus::gpioRequest(12345, Bus::GPIO_READ, &level), -1);
        uint8_t mode = 0;
        QCOMPARE(Bus::spiReadMode(-1, &mode), -1);
    }
    void noSimulatorFailsAtOnce()
    {
        TestRoot root;
        QVERIFY(root.write("/dev/gpio/106", ""));
        int fd = Bus::open("/dev/gpio/106", O_RDWR);
        QVERIFY(fd >= 0);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(Bus::gpioRequest(fd, Bus::GPIO_SET_OUTPUT, nullptr), -1);
        int level = 0;
        QCOMPARE(Bus::gpioRequest(fd, Bus::GPIO_WRITE, &level), -1);
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(Bus::close(fd), 0);
    }
};

QTEST_GUILESS_MAIN(TestSimBus)
#include "tst_simbus.moc"
