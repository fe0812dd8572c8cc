// The measuring board's operations against the simulated instrument: its
// firmware answers on a real pseudo-terminal at "/dev/ttyS1", with its own
// reading of the protocol, its faults and its power line.
#include "device/gpiopd.h"
#include "device/powerdevice.h"
#include "platform/clock.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QProgressDialog>
#include <QtTest>

#include <cstring>

namespace {

bool rampIsZero(const _raw_ramp_iv& ramp)
{
    for (int i = 0; i < RAMP_POINTS; i++)
        if (ramp.corrente[i] != 0 || ramp.tensione[i] != 0)
            return false;
    return true;
}

} // namespace

class TestBoardLink : public QObject
{
    Q_OBJECT

private slots:
    void versionOfTheBoardIsRead()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        PowerDevice device;
        QCOMPARE(device.getVersion(), 0);
        QCOMPARE(device.versionMajor, 2); // "KRM510PD FP 2.1 BRASK"
        QCOMPARE(device.versionMinor, 1);
        QCOMPARE(device.versionProto, 0);
        QCOMPARE(Clock::waits().front(), (Clock::Wait{Clock::Sleep, 2000000, 1}));
        QCOMPARE(sim.boardCommands(), QStringList{"ver"});
    }

    void versionWithProtoFromTheBoard()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("board version KRM510PD 3.4 PROTO"));
        PowerDevice device;
        QCOMPARE(device.getVersion(), 0);
        QCOMPARE(device.versionMajor, 3);
        QCOMPARE(device.versionMinor, 4);
        QCOMPARE(device.versionProto, 1);
    }

    void boardWithoutSupplyIsADeadLine()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(powerDeviceStart(1), 0);
        PowerDevice device;
        Clock::clearWaits();
        QCOMPARE(device.getVersion(), int(PD_NO_REPLY));
        QCOMPARE(device.versionMajor, 0);
        QCOMPARE(device.versionMinor, 0);
        std::vector<Clock::Wait> expected{{Clock::Sleep, 2000000, 1}, {Clock::Select, 1000000, 3}};
        QCOMPARE(Clock::waits(), expected);
    }

    void missingTtyS1GivesNoReplyWithoutWaiting()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/ttyS1"));
        PowerDevice device;
        Clock::clearWaits();
        QCOMPARE(device.getVersion(), int(PD_NO_REPLY));
        _raw_ramp_iv ramp;
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        QVERIFY(Clock::waits().empty());
    }

    void braskOfTheModuleIsSpreadOverTheRamp()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(900));
        PowerDevice device;
        _raw_ramp_vgate raw;
        QCOMPARE(device.acquireBraskDebug(&raw, nullptr), PD_OK);
        QCOMPARE(raw.vgate1[5], 650); // the board's own gate columns
        QCOMPARE(raw.vgate2[5], 647);
        QCOMPARE(raw.corrente[128], 0);
        _raw_ramp_iv ramp;
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_OK);
        QVERIFY(ramp.tensione[0] > ramp.tensione[254]);
        for (int k = 0; k < 128; k++) {
            QCOMPARE(ramp.corrente[2 * k], raw.corrente[k]);
            QCOMPARE(ramp.tensione[2 * k], raw.tensione[k]);
        }
        for (int i = 1; i < 255; i += 2)
            QCOMPARE(ramp.tensione[i], (ramp.tensione[i - 1] + ramp.tensione[i + 1]) / 2);
        for (int i = 255; i < RAMP_POINTS; i++)
            QCOMPARE(ramp.corrente[i], raw.corrente[127]);
        QCOMPARE(sim.boardCommands(), (QStringList{"mea_brask", "mea_brask"}));
        // the reply was closed by a full ten second silence
        QCOMPARE(Clock::waits().back().micros, 10000000LL);
    }

    void statusSevenInTheMiddleOfTheReply()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("midstatus 7"));
        PowerDevice device;
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_REVERSE_POLARITY);
        QVERIFY(rampIsZero(ramp));
    }

    void replyWithoutStatusLineIsNoReply()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("nostatus"));
        PowerDevice device;
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
    }

    void strayBytesAndNoiseBeforeTheEchoAreDropped()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("board hsink 47.5"));
        QVERIFY(sim.setBoardFault("stray"));
        PowerDevice device;
        float t = 0;
        QCOMPARE(device.acquireTempHSink(&t), PD_OK);
        QVERIFY(qAbs(t - 47.5f) < 0.2f);
        QVERIFY(sim.setBoardFault("none"));
        QVERIFY(sim.setBoardFault("noise"));
        t = 0;
        QCOMPARE(device.acquireTempHSink(&t), PD_OK);
        QVERIFY(qAbs(t - 47.5f) < 0.2f);
    }

    // The old instrument read its replies as C text: a NUL byte behind the echo
    // ended the text, its status line was never found and the reply read as
    // none. A reply with a NUL in its data is no reply, never "OK" with a tail
    // of zero points, though the line goes on to "ERROR 0".
    void numberIsANumber_nulInsideTheDataIsNoReply()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(900));
        QVERIFY(sim.setBoardFault("nul"));
        PowerDevice device;
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquirePanel(_ramp_param{512, 0, 50, 0, 4095}, &ramp, nullptr),
                 PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        float t = 0;
        QCOMPARE(device.acquireTempHSink(&t), PD_NO_REPLY);
        // the same replies without the NUL are good
        QVERIFY(sim.setBoardFault("none"));
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_OK);
        QCOMPARE(device.acquireTempHSink(&t), PD_OK);
    }

    void numberIsANumber_nulsBeforeTheEchoAreDropped()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("board hsink 47.5"));
        static const char reply[] = "\0\0x\0temp_hsink\r47.5\rERROR 0\r";
        QVERIFY(sim.forceBoardReply(QByteArray(reply, sizeof reply - 1)));
        PowerDevice device;
        float t = 0;
        QCOMPARE(device.acquireTempHSink(&t), PD_OK);
        QCOMPARE(t, 47.5f);
    }

    // The old reply buffer of 2650 bytes was overrun by a legal ramp of 512
    // points: the whole ramp now reaches its record.
    void storedDataNeverLost_rampOf512PointsArrivesWhole()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(1000));
        PowerDevice device;
        _raw_ramp_iv panel, string;
        QCOMPARE(device.acquirePanel(_ramp_param{512, 0, 50, 0, 4095}, &panel, nullptr), PD_OK);
        QCOMPARE(device.acquireString(_string_param{512, 0}, &string, nullptr), PD_OK);
        for (const _raw_ramp_iv* ramp : {&panel, &string}) {
            // the sweep runs from open circuit (no current) to short circuit (no voltage)
            QCOMPARE(ramp->tensione[511], 0);
            QVERIFY(ramp->corrente[511] > 0);
            QVERIFY(ramp->tensione[0] > 0);
            for (int k = 1; k < 511; k++)
                QVERIFY2(ramp->tensione[k] > 0, qPrintable(QString::number(k)));
        }
    }

    void garbledLinesTakeTheirSlots()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(900));
        PowerDevice device;
        _raw_ramp_vgate clean;
        QCOMPARE(device.acquireBraskDebug(&clean, nullptr), PD_OK);
        QVERIFY(sim.setBoardFault("garbage"));
        _raw_ramp_vgate garbled;
        QCOMPARE(device.acquireBraskDebug(&garbled, nullptr), PD_OK);
        // a garbage line first: slot 0 stays 0 and the points move up by one
        QCOMPARE(garbled.corrente[0], 0);
        QCOMPARE(garbled.vgate1[0], 0);
        QCOMPARE(garbled.corrente[1], clean.corrente[0]);
        QCOMPARE(garbled.tensione[16], clean.tensione[15]);
        // the line "x?y\t*z" after every sixteen points reads nothing
        QCOMPARE(garbled.tensione[17], 0);
        QCOMPARE(garbled.tensione[18], clean.tensione[16]);
    }

    void replyOf20000BytesIsCutAndLosesItsStatus()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("long 20000"));
        PowerDevice device;
        _raw_ramp_iv ramp;
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
        QCOMPARE(Clock::waits().back().micros, 10000000LL);
    }

    void replyOf100000BytesIsAbandoned()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("long 100000"));
        PowerDevice device;
        _tstBrask tst;
        QCOMPARE(device.acquireSweepBrask(&tst, 800, 0, nullptr), PD_NO_REPLY);
        QCOMPARE(tst.corrente[0], 0);
        QCOMPARE(tst.vGateImp[127], 0);
    }

    void pauseLongerThanTheSilenceSplitsTheReply()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setBoardFault("pause 3000"));
        PowerDevice device;
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(device.acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
    }

    void zTestDeliversDataWithAnErrorStatus()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(900));
        QVERIFY(sim.command("board status 4"));
        PowerDevice device;
        _tstBrask tst;
        QCOMPARE(device.acquireZTstBrask(&tst, 700, 1, nullptr), PD_OVER_CURRENT);
        QCOMPARE(tst.vGateImp[0], 700);
        QCOMPARE(tst.vGateEff[127], 697);
        QVERIFY(tst.tensione[0] > 0);
        QCOMPARE(sim.boardCommands(), QStringList{"Z_tst_brask 700 1"});
    }

    void lastInfoAndHeatSinkFromTheBoard()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("board hsink 66"));
        PowerDevice device;
        _info_last info;
        QCOMPARE(device.acquireLastInfo(&info), PD_OK);
        QCOMPARE(info.testmode, 2);
        QCOMPARE(info.gatestep, 8);
        QCOMPARE(info.timestep, 250);
        QCOMPARE(info.lastpoint, 127);
        QCOMPARE(info.gateLastPoint, 2047);
        float t = 0;
        QCOMPARE(device.acquireTempHSink(&t), PD_OK);
        QVERIFY(t > 65.0f && t <= 66.0f);
    }

    void clampedArgumentsReachTheBoard()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        PowerDevice device;
        _raw_ramp_iv ramp;
        device.acquirePanel(_ramp_param{64, 2, 7, 4096, 4095}, &ramp, nullptr);
        device.acquireString(_string_param{0, 1}, &ramp, nullptr);
        int value = 0;
        device.acquireVoc(5, &value);
        device.acquireIsc(1, &value);
        QCOMPARE(sim.boardCommands(), (QStringList{"ramp 64 0 7 1000 4095", "charge 1 1",
                                                   "volt_mean 0", "curr_mean 1"}));
    }

    void progressDialogOrNoneGiveTheSameRamp()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.setIrradiance(700));
        PowerDevice device;
        QProgressDialog progress;
        _raw_ramp_iv withDialog, without;
        QCOMPARE(device.acquireBrask(&withDialog, &progress), PD_OK);
        QCOMPARE(progress.maximum(), 513);
        QCOMPARE(progress.value(), 512);
        QCOMPARE(device.acquireBrask(&without, nullptr), PD_OK);
        QCOMPARE(std::memcmp(&withDialog, &without, sizeof without), 0);
    }
};

QTEST_MAIN(TestBoardLink)
#include "tst_boardlink.moc"
