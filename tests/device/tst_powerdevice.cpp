// The measuring board's operations over a real pseudo-terminal whose far end
// the test plays with scripted replies: what each call sends, how it reads
// the reply, its clamps, and what it leaves in its record on each outcome.
#include "device/powerdevice.h"
#include "platform/clock.h"
#include "ptyboard.h"
#include "support/testroot.h"

#include <QProgressBar>
#include <QProgressDialog>
#include <QtTest>

#include <cstring>

namespace {

QByteArray lines4(const QByteArray& echo, int lines)
{
    QByteArray text = echo + "\r\n";
    for (int k = 0; k < lines; k++)
        text += QByteArray::number(100 + k) + '\t' + QByteArray::number(-(k + 1)) + '\t' +
                QByteArray::number(1000 + k) + '\t' + QByteArray::number(2000 + k) + "\r\n";
    return text;
}

QByteArray lines2(const QByteArray& echo, int lines)
{
    QByteArray text = echo + "\r\n";
    for (int k = 0; k < lines; k++)
        text += QByteArray::number(7 * k) + '\t' + QByteArray::number(k + 3) + "\r\n";
    return text;
}

bool rampIsZero(const _raw_ramp_iv& ramp)
{
    for (int i = 0; i < RAMP_POINTS; i++)
        if (ramp.corrente[i] != 0 || ramp.tensione[i] != 0)
            return false;
    return true;
}

} // namespace

class TestPowerDevice : public QObject
{
    Q_OBJECT

    // Each test has its own root, line and device; replies are queued on the
    // line before the call and the silence that ends them is 50 ms.
    struct Bench {
        TestRoot root{0.02};
        PtyBoard board{root};
        PowerDevice* device = nullptr;
        Bench() { device = new PowerDevice(); }
        ~Bench() { delete device; }
    };

private slots:
    void statusZeroWithoutDataGivesAnEmptyRamp()
    {
        Bench b;
        QVERIFY(b.board.isValid());
        QVERIFY(b.board.send("mea_brask\r\nERROR 0\r\n"));
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquireBrask(&ramp, nullptr), PD_OK);
        QVERIFY(rampIsZero(ramp));
        QCOMPARE(b.board.received(), QByteArray("mea_brask\r"));
    }

    void dataWithoutStatusLineIsNoReplyWithAZeroRamp()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 128)));
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquireBrask(&ramp, nullptr), PD_NO_REPLY);
        QVERIFY(rampIsZero(ramp));
    }

    void statusSevenInTheMiddleEndsTheReply()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 20) + "ERROR 7\r\n" +
                             lines4("", 100).mid(2) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquireBrask(&ramp, nullptr), PD_REVERSE_POLARITY);
        QVERIFY(rampIsZero(ramp));
    }

    void strayBytesBeforeTheEchoAreDropped()
    {
        Bench b;
        QVERIFY(b.board.send("\x03junk 5\t5\r\ntemp_hsink\r\n41.25\r\nERROR 0\r\n"));
        float t = 0;
        QCOMPARE(b.device->acquireTempHSink(&t), PD_OK);
        QCOMPARE(t, 41.25f);
    }

    void statusZeroWithoutEchoIsSuccessWithEmptyData()
    {
        Bench b;
        QVERIFY(b.board.send("xx\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\r\nERROR 0\r\n"));
        _info_last info;
        std::memset(&info, 1, sizeof info);
        QCOMPARE(b.device->acquireLastInfo(&info), PD_OK);
        QCOMPARE(info.range, 0);
        QCOMPARE(info.ntc_dac, 0);
    }

    void braskOf128LinesIsSpreadOver512Slots()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 130) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquireBrask(&ramp, nullptr), PD_OK);
        QCOMPARE(ramp.corrente[0], 100);
        QCOMPARE(ramp.tensione[0], -1);
        QCOMPARE(ramp.corrente[1], 100);  // (100 + 101) / 2
        QCOMPARE(ramp.tensione[1], -1);   // (-1 + -2) / 2 toward zero
        QCOMPARE(ramp.corrente[2], 101);
        QCOMPARE(ramp.corrente[254], 227);
        QCOMPARE(ramp.tensione[254], -128);
        for (int i = 255; i < RAMP_POINTS; i++) {
            QCOMPARE(ramp.corrente[i], 227); // lines 128 and 129 are ignored
            QCOMPARE(ramp.tensione[i], -128);
        }
    }

    void braskOfFewerThan128LinesInterpolatesOverZeros()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 50) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquireBrask(&ramp, nullptr), PD_OK);
        QCOMPARE(ramp.corrente[98], 149);
        QCOMPARE(ramp.corrente[99], 74);
        QCOMPARE(ramp.tensione[99], -25);
        QCOMPARE(ramp.corrente[100], 0);
        for (int i = 256; i < RAMP_POINTS; i++)
            QCOMPARE(ramp.corrente[i], 0);
    }

    void braskDebugKeepsFourRawColumns()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 128) + "ERROR 0\r\n"));
        _raw_ramp_vgate ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquireBraskDebug(&ramp, nullptr), PD_OK);
        QCOMPARE(ramp.corrente[127], 227);
        QCOMPARE(ramp.tensione[127], -128);
        QCOMPARE(ramp.vgate1[127], 1127);
        QCOMPARE(ramp.vgate2[127], 2127);
        for (int i = 128; i < RAMP_POINTS; i++) {
            QCOMPARE(ramp.corrente[i], 0);
            QCOMPARE(ramp.vgate2[i], 0);
        }
    }

    void braskDebugOnErrorIsAllZero()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 128) + "ERROR 5\r\n"));
        _raw_ramp_vgate ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquireBraskDebug(&ramp, nullptr), PD_OVER_POWER);
        QCOMPARE(ramp.corrente[0], 0);
        QCOMPARE(ramp.vgate1[0], 0);
        QCOMPARE(ramp.vgate2[511], 0);
    }

    void utroqueReadsTwoColumnsWithoutInterpolation()
    {
        Bench b;
        QVERIFY(b.board.send(lines2("mea_utroque\r", 300) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquireUtroque(&ramp, nullptr), PD_OK);
        QCOMPARE(ramp.corrente[299], 7 * 299);
        QCOMPARE(ramp.tensione[299], 302);
        QCOMPARE(ramp.corrente[300], 0);
    }

    void zFamilyKeepsDataBeforeAnErrorStatus()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("Z_kill_brask 300 1\r", 5) + "ERROR 10\r\n"));
        _tstBrask tst;
        QCOMPARE(b.device->acquireZKillBrask(&tst, 300, 1, nullptr), PD_LOW_CURRENT);
        QCOMPARE(tst.corrente[4], 104);
        QCOMPARE(tst.tensione[4], -5);
        QCOMPARE(tst.vGateImp[4], 1004);
        QCOMPARE(tst.vGateEff[4], 2004);
        QCOMPARE(tst.corrente[5], 0);
        QCOMPARE(b.board.received(), QByteArray("Z_kill_brask 300 1\r"));
    }

    void zFamilyWithoutStatusLineStillDeliversItsData()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("Z_sweep_brask -4 0\r", 140)));
        _tstBrask tst;
        QCOMPARE(b.device->acquireSweepBrask(&tst, -4, 0, nullptr), PD_NO_REPLY);
        QCOMPARE(tst.corrente[127], 227);
        QCOMPARE(tst.vGateEff[127], 2127);
        QCOMPARE(b.board.received(), QByteArray("Z_sweep_brask -4 0\r"));
    }

    void zTestSendsItsArgumentsAsGiven()
    {
        Bench b;
        QVERIFY(b.board.send("Z_tst_brask 70000 9\r\nERROR 0\r\n"));
        _tstBrask tst;
        std::memset(&tst, 1, sizeof tst);
        QCOMPARE(b.device->acquireZTstBrask(&tst, 70000, 9, nullptr), PD_OK);
        QCOMPARE(tst.corrente[0], 0);
        QCOMPARE(b.board.received(), QByteArray("Z_tst_brask 70000 9\r"));
    }

    void rampLimitB4095PassesAnd4096Becomes2300()
    {
        Bench b;
        QVERIFY(b.board.send("ERROR 9\r\n"));
        _raw_ramp_iv ramp;
        _ramp_param p{100, 1, -5, 4095, 4095};
        QCOMPARE(b.device->acquirePanel(p, &ramp, nullptr), PD_LOW_VOLTAGE);
        QCOMPARE(b.board.received(), QByteArray("ramp 100 1 -5 4095 4095\r"));
        QVERIFY(b.board.send("ERROR 9\r\n"));
        p = _ramp_param{100, 1, -5, 4096, 4096};
        b.device->acquirePanel(p, &ramp, nullptr);
        QCOMPARE(b.board.received(),
                 QByteArray("ramp 100 1 -5 4095 4095\rramp 100 1 -5 1000 2300\r"));
    }

    void rampRangeTwoBecomesZero()
    {
        Bench b;
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquirePanel(_ramp_param{512, 2, 0, 0, 0}, &ramp, nullptr),
                 PD_NO_REPLY);
        QCOMPARE(b.board.received(), QByteArray("ramp 512 0 0 0 0\r"));
    }

    void panelRampIsReadLineByLine()
    {
        Bench b;
        QVERIFY(b.board.send(lines2("ramp 40 0 0 0 0\r", 40) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquirePanel(_ramp_param{40, 0, 0, 0, 0}, &ramp, nullptr), PD_OK);
        QCOMPARE(ramp.corrente[39], 273);
        QCOMPARE(ramp.tensione[39], 42);
        QCOMPARE(ramp.corrente[40], 0);
    }

    void panelRampOnErrorIsZero()
    {
        Bench b;
        QVERIFY(b.board.send(lines2("ramp 40 0 0 0 0\r", 40) + "ERROR 3\r\n"));
        _raw_ramp_iv ramp;
        std::memset(&ramp, 1, sizeof ramp);
        QCOMPARE(b.device->acquirePanel(_ramp_param{40, 0, 0, 0, 0}, &ramp, nullptr),
                 PD_OVER_VOLTAGE);
        QVERIFY(rampIsZero(ramp));
    }

    void chargeOfZeroPointsAsksForOne()
    {
        Bench b;
        QVERIFY(b.board.send(lines2("charge 1 200\r", 1) + "ERROR 0\r\n"));
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquireString(_string_param{0, 200}, &ramp, nullptr), PD_OK);
        QCOMPARE(b.board.received(), QByteArray("charge 1 200\r"));
        QCOMPARE(ramp.corrente[0], 0);
        QCOMPARE(ramp.tensione[0], 3);
    }

    void vocAndIscRangeAboveOneBecomesZero()
    {
        Bench b;
        QVERIFY(b.board.send("volt_mean 0\r\n31234\r\nERROR 0\r\n"));
        int voc = -1;
        QCOMPARE(b.device->acquireVoc(2, &voc), PD_OK);
        QCOMPARE(voc, 31234);
        QVERIFY(b.board.send("curr_mean 1\r\n812\r\nERROR 0\r\n"));
        int isc = -1;
        QCOMPARE(b.device->acquireIsc(1, &isc), PD_OK);
        QCOMPARE(isc, 812);
        QCOMPARE(b.board.received(), QByteArray("volt_mean 0\rcurr_mean 1\r"));
        QCOMPARE(Clock::waits().back().micros, 1000000LL);
    }

    void vocIscAndVoltSpotKeepTheirValueOnError()
    {
        Bench b;
        int voc = 11, isc = 22;
        unsigned long spot = 33;
        QCOMPARE(b.device->acquireVoc(0, &voc), PD_NO_REPLY);
        QCOMPARE(b.device->acquireIsc(0, &isc), PD_NO_REPLY);
        QCOMPARE(b.device->acquireVoltSpot(4, &spot), PD_NO_REPLY);
        QCOMPARE(voc, 11);
        QCOMPARE(isc, 22);
        QCOMPARE(spot, 33ul);
    }

    void voltSumAndHeatSinkAreZeroOnError()
    {
        Bench b;
        unsigned long sum = 33;
        float t = 44;
        QVERIFY(b.board.send("volt_sum 3\r\n123\r\nERROR 8\r\n"));
        QCOMPARE(b.device->acquireVoltSum(3, &sum), PD_NEGATIVE_FLOATING);
        QCOMPARE(b.device->acquireTempHSink(&t), PD_NO_REPLY);
        QCOMPARE(sum, 0ul);
        QCOMPARE(t, 0.0f);
    }

    void voltSpotAndSumReadUnsignedValues()
    {
        Bench b;
        unsigned long spot = 0, sum = 0;
        QVERIFY(b.board.send("volt_spot 200\r\n4000000000\r\nERROR 0\r\n"));
        QCOMPARE(b.device->acquireVoltSpot(200, &spot), PD_OK);
        QVERIFY(b.board.send("volt_sum 7\r\n123456\r\nERROR 0\r\n"));
        QCOMPARE(b.device->acquireVoltSum(7, &sum), PD_OK);
        QCOMPARE(spot, 4000000000ul);
        QCOMPARE(sum, 123456ul);
    }

    void lastInfoReadsNineFieldsInOrder()
    {
        Bench b;
        QVERIFY(b.board.send("info_last\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\r\nERROR 0\r\n"));
        _info_last info;
        QCOMPARE(b.device->acquireLastInfo(&info), PD_OK);
        QCOMPARE(info.range, 1);
        QCOMPARE(info.testmode, 2);
        QCOMPARE(info.gatestep, 3);
        QCOMPARE(info.timestep, 4);
        QCOMPARE(info.lastpoint, 5);
        QCOMPARE(info.icc, 6);
        QCOMPARE(info.voc, 7);
        QCOMPARE(info.gateLastPoint, 8);
        QCOMPARE(info.ntc_dac, 9);
    }

    void lastInfoOnErrorIsAllZero()
    {
        Bench b;
        QVERIFY(b.board.send("info_last\r\n1\t2\t3\t4\t5\t6\t7\t8\t9\r\nERROR 11\r\n"));
        _info_last info;
        std::memset(&info, 1, sizeof info);
        QCOMPARE(b.device->acquireLastInfo(&info), PD_OVER_TEMPERATURE);
        QCOMPARE(info.range, 0);
        QCOMPARE(info.ntc_dac, 0);
    }

    void versionWithFpIsReadOverTheLine()
    {
        Bench b;
        QVERIFY(b.board.send("ver\r\nKRMPD FP 2.3 ok\r\nERROR 0\r\n"));
        QCOMPARE(b.device->getVersion(), 0);
        QCOMPARE(b.device->versionMajor, 2);
        QCOMPARE(b.device->versionMinor, 3);
        QCOMPARE(b.device->versionProto, 0);
        std::vector<Clock::Wait> waits = Clock::waits();
        QCOMPARE(waits.front(), (Clock::Wait{Clock::Sleep, 2000000, 1}));
    }

    void versionTriesAgainAfterABadReply()
    {
        Bench b;
        QVERIFY(b.board.send("ver\r\nKRMPD 1.0 x\r\n"));
        QCOMPARE(b.device->getVersion(), int(PD_NO_REPLY));
        QCOMPARE(b.board.received(), QByteArray("ver\rver\rver\r"));
        QCOMPARE(b.device->versionMajor, 0);
        QVERIFY(b.board.send("ver\r\nKRMPD 1.0 x\r\n"));
        QCOMPARE(b.device->getVersion(), int(PD_NO_REPLY));
        // a status of 3 on the first try, then silence: the last try's result
        QVERIFY(b.board.send("ver\r\nERROR 3\r\n"));
        QCOMPARE(b.device->getVersion(), int(PD_NO_REPLY));
        QCOMPARE(b.board.received(), QByteArray("ver\rver\rver\rver\rver\rver\rver\rver\rver\r"));
    }

    void versionWithProtoSetsProto()
    {
        Bench b;
        QVERIFY(b.board.send("ver\r\nKRMPD 3.14 PROTO\r\nERROR 0\r\n"));
        QCOMPARE(b.device->getVersion(), 0);
        QCOMPARE(b.device->versionMajor, 3);
        QCOMPARE(b.device->versionMinor, 14);
        QCOMPARE(b.device->versionProto, 1);
    }

    void progressOfBraskEndsAt512Of513AndCountsLineEnds()
    {
        Bench b;
        QVERIFY(b.board.send(lines4("mea_brask\r", 128) + "ERROR 0\r\n"));
        QProgressDialog progress;
        QList<int> seen;
        QObject::connect(progress.findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                         [&seen](int v) { seen << v; });
        _raw_ramp_iv ramp;
        QCOMPARE(b.device->acquireBrask(&ramp, &progress), PD_OK);
        QCOMPARE(progress.windowModality(), Qt::WindowModal);
        QCOMPARE(progress.maximum(), 513);
        QCOMPARE(progress.value(), 512);
        // one value for each CR and LF: echo with its CR LF, 128 lines, status line
        QVERIFY(seen.contains(0));
        QVERIFY(seen.contains(260));
        QVERIFY(!seen.contains(261));
    }

    void progressOfZFamilyKeepsItsUnevenNumbers()
    {
        Bench b;
        QProgressDialog progress;
        _tstBrask tst;
        b.device->acquireZTstBrask(&tst, 1, 0, &progress);
        QCOMPARE(progress.maximum(), 513);
        QCOMPARE(progress.value(), 128);
        b.device->acquireSweepBrask(&tst, 1, 0, &progress);
        QCOMPARE(progress.maximum(), 129);
        QCOMPARE(progress.value(), 128);
        b.device->acquireZKillBrask(&tst, 1, 0, &progress);
        QCOMPARE(progress.maximum(), 129);
        QCOMPARE(progress.value(), 128);
        _raw_ramp_iv ramp;
        progress.setAutoReset(false); // the full bar would reset the dialog
        b.device->acquireString(_string_param{77, 0}, &ramp, &progress);
        QCOMPARE(progress.maximum(), 77);
        QCOMPARE(progress.value(), 77);
    }

    void withoutProgressDialogTheExchangeBehavesAlike()
    {
        Bench b;
        QByteArray reply = lines4("mea_brask\r", 128) + "ERROR 0\r\n";
        QVERIFY(b.board.send(reply));
        _raw_ramp_iv withDialog, without;
        QProgressDialog progress;
        QCOMPARE(b.device->acquireBrask(&withDialog, &progress), PD_OK);
        std::vector<Clock::Wait> waitsWith = Clock::waits();
        Clock::clearWaits();
        QVERIFY(b.board.send(reply));
        QCOMPARE(b.device->acquireBrask(&without, nullptr), PD_OK);
        QCOMPARE(std::memcmp(&withDialog, &without, sizeof without), 0);
        QCOMPARE(Clock::waits().back().micros, 10000000LL);
        QCOMPARE(waitsWith.back().micros, 10000000LL);
    }
};

QTEST_MAIN(TestPowerDevice)
#include "tst_powerdevice.moc"
