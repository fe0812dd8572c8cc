// The measuring board's reply handling on byte buffers, without a line: the
// bounded reply, the status line, the echo, the line parse, the guarded parse,
// the "mea_brask" interpolation and the version text.
#include "device/powerdevice.h"
#include "device/serialport.h"

#include <QtTest>

#include <climits>
#include <cstring>
#include <vector>

namespace {

// Feeds bytes to a reply in the 127-byte pieces of the line reader.
int feed(SerialReply* reply, const QByteArray& bytes)
{
    for (qsizetype at = 0; at < bytes.size(); at += 127) {
        int n = int(qMin<qsizetype>(127, bytes.size() - at));
        if (appendSerialReply(reply, bytes.constData() + at, n) < 0)
            return -1;
    }
    return 0;
}

QByteArray braskLines(int lines)
{
    QByteArray text;
    for (int k = 0; k < lines; k++)
        text += QByteArray::number(10 * k + 1) + '\t' + QByteArray::number(-3 * k) + '\t' +
                QByteArray::number(k + 1000) + '\t' + QByteArray::number(k + 2000) + "\n\n";
    return text;
}

struct Columns {
    std::vector<int> c[4];
    int* p[4];
    explicit Columns(int points, int fill = 0x5a5a5a5a)
    {
        for (int i = 0; i < 4; i++) {
            c[i].assign(size_t(points), fill);
            p[i] = c[i].data();
        }
    }
};

} // namespace

class TestPowerReply : public QObject
{
    Q_OBJECT

private slots:
    void commandTableKeepsItsOrder()
    {
        QCOMPARE(QByteArray(power_cmd[0]), QByteArray("ver\r"));
        QCOMPARE(QByteArray(power_cmd[1]), QByteArray("ramp %d %d %d %d %d\r"));
        QCOMPARE(QByteArray(power_cmd[2]), QByteArray("charge %d %d\r"));
        QCOMPARE(QByteArray(power_cmd[3]), QByteArray("curr_mean %d\r"));
        QCOMPARE(QByteArray(power_cmd[4]), QByteArray("volt_mean %d\r"));
        QCOMPARE(QByteArray(power_cmd[5]), QByteArray("mea_utroque\r"));
        QCOMPARE(QByteArray(power_cmd[6]), QByteArray("info_last\r"));
        QCOMPARE(QByteArray(power_cmd[7]), QByteArray("volt_sum %d\r"));
        QCOMPARE(QByteArray(power_cmd[8]), QByteArray("volt_spot %d\r"));
        QCOMPARE(QByteArray(power_cmd[9]), QByteArray("mea_brask\r"));
        QCOMPARE(QByteArray(power_cmd[10]), QByteArray("Z_tst_brask %d %d\r"));
        QCOMPARE(QByteArray(power_cmd[11]), QByteArray("Z_kill_brask %d %d\r"));
        QCOMPARE(QByteArray(power_cmd[12]), QByteArray("temp_hsink\r"));
        QCOMPARE(QByteArray(power_cmd[13]), QByteArray("Z_sweep_brask %d %d\r"));
        QCOMPARE(QByteArray(power_cmd[14]), QByteArray(""));
    }

    void statusLineZeroIsCutOff()
    {
        char buffer[] = "mea_brask\r\n1\t2\t3\t4\r\nERROR 0\r\n";
        int count = int(strlen(buffer));
        QCOMPARE(cutStatusLine(buffer, &count), 0);
        QCOMPARE(QByteArray(buffer), QByteArray("mea_brask\r\n1\t2\t3\t4\r\n"));
        QCOMPARE(count, int(strlen(buffer)));
    }

    void replyWithoutStatusLineIsNoReply()
    {
        char buffer[] = "mea_brask\r\n1\t2\t3\t4\r\n";
        int count = int(strlen(buffer));
        QCOMPARE(cutStatusLine(buffer, &count), int(PD_NO_REPLY));
        QCOMPARE(QByteArray(buffer), QByteArray("mea_brask\r\n1\t2\t3\t4\r\n"));
        QCOMPARE(count, int(strlen(buffer)));
    }

    void statusLineInTheMiddleDropsTheRest()
    {
        char buffer[] = "mea_brask\r\n1\t2\t3\t4\r\nERROR 7\r\n5\t6\t7\t8\r\nERROR 0\r\n";
        int count = int(strlen(buffer));
        QCOMPARE(cutStatusLine(buffer, &count), int(PD_REVERSE_POLARITY));
        QCOMPARE(QByteArray(buffer), QByteArray("mea_brask\r\n1\t2\t3\t4\r\n"));
        QCOMPARE(count, int(strlen(buffer)));
    }

    void statusWordWithoutNumberIsNoReplyAndStillCuts()
    {
        char buffer[] = "ver\r\nx ERRORS\r\n";
        int count = int(strlen(buffer));
        QCOMPARE(cutStatusLine(buffer, &count), int(PD_NO_REPLY));
        QCOMPARE(QByteArray(buffer), QByteArray("ver\r\nx "));
    }

    void statusLineBehindNulBytesIsFound()
    {
        char buffer[] = "ver\r\0\0x\r\nERROR 8\r\n";
        int count = int(sizeof buffer - 1);
        QCOMPARE(cutStatusLine(buffer, &count), int(PD_NEGATIVE_FLOATING));
        QCOMPARE(count, 9);
    }

    void statusNumbersWithoutTextAreKept()
    {
        char buffer[] = "info_last\r\nERROR 12\r";
        int count = int(strlen(buffer));
        QCOMPARE(cutStatusLine(buffer, &count), 12);
    }

    void strayBytesWithNulBeforeTheEchoAreDropped()
    {
        char data[64];
        std::memset(data, 'z', sizeof data);
        int count = -5;
        const char reply[] = "\x01\0\xff#garbage temp_hsink\r\n41.5\r\n";
        QCOMPARE(takeEchoedData(reply, sizeof reply - 1, "temp_hsink\r", data, sizeof data,
                                &count, 10),
                 1);
        QCOMPARE(QByteArray(data), QByteArray("\n41.5\n\n"));
        QCOMPARE(count, 7);
    }

    void missingEchoLeavesTheDataAsItWas()
    {
        char data[16] = "untouched";
        int count = 3;
        QCOMPARE(takeEchoedData("temp_hsin\r\n41.5\r\n", 17, "temp_hsink\r", data, sizeof data,
                                &count, 10),
                 -1);
        QCOMPARE(QByteArray(data), QByteArray("untouched"));
        QCOMPARE(count, 3);
    }

    void separatorOutsideSevenToFourteenKeepsCarriageReturns()
    {
        char data[32];
        int count = 0;
        QCOMPARE(takeEchoedData("ver\r\rA\r", 7, "ver\r", data, sizeof data, &count, 0), 1);
        QCOMPARE(QByteArray(data), QByteArray("\rA\r"));
        QCOMPARE(takeEchoedData("ver\r\rA\r", 7, "ver\r", data, sizeof data, &count, 15), 1);
        QCOMPARE(QByteArray(data), QByteArray("\rA\r"));
        QCOMPARE(takeEchoedData("ver\r\rA\r", 7, "ver\r", data, sizeof data, &count, 7), 1);
        QCOMPARE(QByteArray(data), QByteArray("\aA\a"));
    }

    void echoedDataIsCutAtTheCallersBuffer()
    {
        char data[8];
        int count = 0;
        QCOMPARE(takeEchoedData("ver\r0123456789", 14, "ver\r", data, sizeof data, &count, 10), 1);
        QCOMPARE(QByteArray(data), QByteArray("0123456"));
        QCOMPARE(count, 7);
    }

    void replyFittingTheBufferIsKeptWhole()
    {
        std::vector<char> buffer(SerialPort::replySize);
        SerialReply reply{buffer.data(), SerialPort::replySize, 0, 0};
        QByteArray bytes(SerialPort::replySize - 1, 'a');
        QCOMPARE(feed(&reply, bytes), 0);
        QCOMPARE(reply.count, SerialPort::replySize - 1);
        QCOMPARE(reply.discarded, 0L);
    }

    void replyOf20000BytesIsCutAtTheBuffer()
    {
        std::vector<char> buffer(SerialPort::replySize);
        SerialReply reply{buffer.data(), SerialPort::replySize, 0, 0};
        QCOMPARE(feed(&reply, QByteArray(20000, 'b')), 0);
        QCOMPARE(reply.count, SerialPort::replySize - 1);
        QCOMPARE(reply.discarded, 20000L - (SerialPort::replySize - 1));
    }

    void replyOf100000BytesIsAbandoned()
    {
        std::vector<char> buffer(SerialPort::replySize);
        SerialReply reply{buffer.data(), SerialPort::replySize, 0, 0};
        QCOMPARE(feed(&reply, QByteArray(100000, 'c')), -1);
        // given up within the piece that crossed the limit
        QVERIFY(reply.discarded >= SerialPort::maxDiscarded);
        QVERIFY(reply.discarded < SerialPort::maxDiscarded + 127);
    }

    void lineIsAbandonedAtExactly65536DiscardedBytes()
    {
        char buffer[4];
        SerialReply reply{buffer, sizeof buffer, 0, 0};
        QByteArray bytes(3 + 65535, 'd');
        QCOMPARE(appendSerialReply(&reply, bytes.constData(), int(bytes.size())), 0);
        QCOMPARE(appendSerialReply(&reply, "e", 1), -1);
    }

    void replyLinesAreReadSkippingEmptyLines()
    {
        QByteArray text = "\n\n1\t2\n\n3\t4\n";
        Columns out(4, 0);
        QCOMPARE(parseReplyLines(text.data(), "%d\t%d", 2, 4, out.p, false), 2);
        QCOMPARE(out.c[0][0], 1);
        QCOMPARE(out.c[1][0], 2);
        QCOMPARE(out.c[0][1], 3);
        QCOMPARE(out.c[1][1], 4);
        QCOMPARE(out.c[0][2], 0);
    }

    void replyLinesBeyondTheRecordAreIgnored()
    {
        QByteArray text;
        for (int k = 0; k < 600; k++)
            text += QByteArray::number(k) + "\t" + QByteArray::number(-k) + "\n";
        Columns out(RAMP_POINTS, 0);
        QCOMPARE(parseReplyLines(text.data(), "%d\t%d", 2, RAMP_POINTS, out.p, false),
                 RAMP_POINTS);
        QCOMPARE(out.c[0][511], 511);
        QCOMPARE(out.c[1][511], -511);
    }

    void checkedParseReadsAllFourColumns()
    {
        QByteArray text = braskLines(3);
        Columns out(TST_BRASK_POINTS);
        checkedParse(text.constData(), "%d\t%d\t%d\t%d", 4, 4, TST_BRASK_POINTS, out.p);
        QCOMPARE(out.c[0][2], 21);
        QCOMPARE(out.c[1][2], -6);
        QCOMPARE(out.c[2][2], 1002);
        QCOMPARE(out.c[3][2], 2002);
        // the slots without a line are cleared
        QCOMPARE(out.c[0][3], 0);
        QCOMPARE(out.c[3][127], 0);
    }

    void checkedParseKeepsWhatAShortLineGives()
    {
        QByteArray text = "5\t6\nx\n7\n";
        Columns out(RAMP_POINTS);
        checkedParse(text.constData(), "%d\t%d", 2, 2, RAMP_POINTS, out.p);
        QCOMPARE(out.c[0][0], 5);
        QCOMPARE(out.c[1][0], 6);
        QCOMPARE(out.c[0][1], 0);
        QCOMPARE(out.c[0][2], 7);
        QCOMPARE(out.c[1][2], 0);
    }

    void checkedParseTextIsCutAt8192Bytes()
    {
        // 8191 bytes of padding lines, then a line that falls behind the cut.
        QByteArray text(checkedTextSize - 1, '\n');
        text += "9\t9\n";
        Columns out(RAMP_POINTS);
        checkedParse(text.constData(), "%d\t%d", 2, 2, RAMP_POINTS, out.p);
        QCOMPARE(out.c[0][0], 0);
        QCOMPARE(out.c[1][0], 0);
    }

    void braskOf128PointsFillsEvenSlotsAndMeansBetween()
    {
        Columns in(RAMP_POINTS, 0);
        QByteArray text = braskLines(128);
        checkedParse(text.constData(), "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, in.p);
        _raw_ramp_iv ramp;
        interpolateBrask(in.p[0], in.p[1], &ramp);
        QCOMPARE(ramp.corrente[0], 1);
        QCOMPARE(ramp.corrente[1], 6);     // (1 + 11) / 2
        QCOMPARE(ramp.tensione[1], -1);    // (0 + -3) / 2 toward zero
        QCOMPARE(ramp.corrente[254], 1271);
        QCOMPARE(ramp.tensione[254], -381);
        QCOMPARE(ramp.corrente[255], 1271); // between point 127 and its copies
        for (int i = 256; i < RAMP_POINTS; i++) {
            QCOMPARE(ramp.corrente[i], 1271);
            QCOMPARE(ramp.tensione[i], -381);
        }
    }

    void braskOfFewerThan128LinesLeavesZeroPoints()
    {
        Columns in(RAMP_POINTS, 0);
        QByteArray text = braskLines(10);
        checkedParse(text.constData(), "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, in.p);
        _raw_ramp_iv ramp;
        std::memset(&ramp, 0x7f, sizeof ramp);
        interpolateBrask(in.p[0], in.p[1], &ramp);
        QCOMPARE(ramp.corrente[18], 91);
        QCOMPARE(ramp.corrente[19], 45); // (91 + 0) / 2: the mean runs over the missing points
        QCOMPARE(ramp.tensione[19], -13); // (-27 + 0) / 2
        QCOMPARE(ramp.corrente[20], 0);
        for (int i = 256; i < RAMP_POINTS; i++) {
            QCOMPARE(ramp.corrente[i], 0);
            QCOMPARE(ramp.tensione[i], 0);
        }
    }

    void braskMeanOfExtremeCountsDoesNotOverflow()
    {
        int corrente[128], tensione[128];
        for (int k = 0; k < 128; k++) {
            corrente[k] = INT_MAX;
            tensione[k] = (k % 2) ? INT_MIN : INT_MAX;
        }
        _raw_ramp_iv ramp;
        interpolateBrask(corrente, tensione, &ramp);
        QCOMPARE(ramp.corrente[1], INT_MAX);
        QCOMPARE(ramp.tensione[1], 0); // (INT_MAX + INT_MIN) / 2 = -1 / 2
    }

    void versionOfWordNumberWord()
    {
        int major = 0, minor = 0, proto = 0;
        parseVersion("\nKRMPD 4.12 release\n", &major, &minor, &proto);
        QCOMPARE(major, 4);
        QCOMPARE(minor, 12);
        QCOMPARE(proto, 0);
    }

    void versionWithFpIsReadBehindIt()
    {
        int major = 0, minor = 0, proto = 0;
        parseVersion("\nBoard FP 2.3 ready\n", &major, &minor, &proto);
        QCOMPARE(major, 2);
        QCOMPARE(minor, 3);
        QCOMPARE(proto, 0);
    }

    void versionWithProtoSetsProto()
    {
        int major = 0, minor = 0, proto = 0;
        parseVersion("\nBoard 1.7 PROTO\n", &major, &minor, &proto);
        QCOMPARE(major, 1);
        QCOMPARE(minor, 7);
        QCOMPARE(proto, 1);
    }

    void numberIsANumber_nulBehindTheEchoIsFoundAndNulsBeforeItAreNot()
    {
        static const char behind[] = "ver\rKRM\0"
                                     "510\r";
        QVERIFY(nulBehindEcho(behind, sizeof behind - 1, "ver\r"));
        static const char before[] = "\0x\0ver\rKRM510\r";
        QVERIFY(!nulBehindEcho(before, sizeof before - 1, "ver\r"));
        // no echo: nothing to look behind
        QVERIFY(!nulBehindEcho(behind, sizeof behind - 1, "temp_hsink\r"));
        // the NUL that closes the buffer lies beyond the count
        QVERIFY(!nulBehindEcho("ver\rKRM510\r", 11, "ver\r"));
        QVERIFY(!nulBehindEcho("ver\r", 4, "ver\r"));
    }

    void binaryNoiseGivesNoReplyAndNoData()
    {
        QByteArray noise;
        quint32 x = 12345;
        for (int i = 0; i < 20000; i++) {
            x = x * 1103515245u + 12345u;
            char c = char(x >> 24);
            noise += c == 'E' ? 'e' : c;
        }
        std::vector<char> buffer(SerialPort::replySize);
        SerialReply reply{buffer.data(), SerialPort::replySize, 0, 0};
        QCOMPARE(feed(&reply, noise), 0);
        buffer[size_t(reply.count)] = '\0';
        int count = reply.count;
        QCOMPARE(cutStatusLine(buffer.data(), &count), int(PD_NO_REPLY));
        char data[checkedTextSize] = "";
        int dataCount = 0;
        QCOMPARE(takeEchoedData(buffer.data(), count, "mea_brask\r", data, sizeof data, &dataCount, 10),
                 -1);
        QCOMPARE(data[0], '\0');
    }
};

QTEST_GUILESS_MAIN(TestPowerReply)
#include "tst_powerreply.moc"
