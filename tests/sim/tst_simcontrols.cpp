// Scenario commands of the bench and of the end-to-end tests: real or fast
// timing switched while the simulator runs, and a key tapped once.
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QElapsedTimer>
#include <QtTest>

class TestSimControls : public QObject
{
    Q_OBJECT

    static qint64 versionExchangeMs(const TestRoot& root)
    {
        TermiosClient board(root.path("/dev/ttyS1"));
        QElapsedTimer t;
        t.start();
        const QByteArray reply = board.exchange("ver\r");
        const qint64 ms = t.elapsed();
        return reply.contains("KRM510PD") ? ms : -1;
    }

private slots:
    void timingAnswersTheMode()
    {
        TestRoot root(0.1);
        SimInstrument sim(root, true);
        QCOMPARE(sim.call("timing"), QByteArray("ok fast"));
        QCOMPARE(sim.call("timing real"), QByteArray("ok real"));
        QVERIFY(sim.value("ping").contains("mode=real"));
        QCOMPARE(sim.call("timing fast"), QByteArray("ok fast"));
        QVERIFY(sim.value("ping").contains("mode=fast"));
        QVERIFY(sim.call("timing slow").startsWith("error"));
        QCOMPARE(sim.call("timing"), QByteArray("ok fast"));
    }

    void realTimingPacesTheBoardLine()
    {
        TestRoot root(0.1);
        SimInstrument sim(root, true);
        const qint64 fast = versionExchangeMs(root);
        QVERIFY(fast >= 0);
        QVERIFY(sim.command("timing real"));
        // "ver\r" echoed and "KRM510PD FP 2.1 BRASK\r" with its status line,
        // at 960 characters a second: well over 20 ms
        const qint64 real = versionExchangeMs(root);
        QVERIFY(real >= 0);
        QVERIFY2(real - fast >= 20,
                 qPrintable(QString("fast %1 ms, real %2 ms").arg(fast).arg(real)));
    }

    void aTappedKeyReadsLowOnce()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("key tap down"));
        QVERIFY(sim.value("gpio 81").contains("tap=1"));
        QVERIFY(sim.value("gpio 81").contains("level=1"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/81"), QByteArray("ok 0 0"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/81"), QByteArray("ok 0 1"));
        QVERIFY(sim.value("gpio 81").contains("tap=0"));
        // the other keys are not touched
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/86"), QByteArray("ok 0 1"));
    }

    void aPressOrReleaseCancelsATap()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("key tap return"));
        QVERIFY(sim.command("key release return"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/75"), QByteArray("ok 0 1"));
        QVERIFY(sim.command("key tap return"));
        QVERIFY(sim.command("key press return"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/75"), QByteArray("ok 0 0"));
        QCOMPARE(sim.call("bus gpio.read /dev/gpio/75"), QByteArray("ok 0 0"));
        QVERIFY(sim.call("key tap nokey").startsWith("error"));
    }
};

QTEST_GUILESS_MAIN(TestSimControls)
#include "tst_simcontrols.moc"
