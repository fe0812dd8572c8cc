#include "device/powerdevice.h"

#include "platform/clock.h"

#include <QProgressDialog>

#include <cstdio>
#include <cstring>

const char* const power_cmd[15] = {
    "ver\r",
    "ramp %d %d %d %d %d\r",
    "charge %d %d\r",
    "curr_mean %d\r",
    "volt_mean %d\r",
    "mea_utroque\r",
    "info_last\r",
    "volt_sum %d\r",
    "volt_spot %d\r",
    "mea_brask\r",
    "Z_tst_brask %d %d\r",
    "Z_kill_brask %d %d\r",
    "temp_hsink\r",
    "Z_sweep_brask %d %d\r",
    "",
};

namespace {

const unsigned int shortTimeoutMs = 1000;
const unsigned int rampTimeoutMs = 10000;
const char separatorLF = 10;
// Reply buffer of the first-generation ramps: the longest legal reply, 512
// lines of two 12-bit counts ("4095\t4095" and its line end, CR turned into
// LF), about 5.6 KB, with room to spare. The old instrument's 2650 bytes were
// overrun by a legal reply of 512 points.
const int rampReplySize = RAMP_POINTS * static_cast<int>(sizeof "4095\t4095\r\n");
// Reply buffer of the single values and of the version.
const int valueReplySize = 256;
const int brask_points = 128;

void startProgress(QProgressDialog* progress, int maximum)
{
    if (progress == nullptr)
        return;
    progress->setWindowModality(Qt::WindowModal);
    progress->setMaximum(maximum);
}

void endProgress(QProgressDialog* progress, int value)
{
    if (progress != nullptr)
        progress->setValue(value);
}

} // namespace

PowerDevice::PowerDevice()
    : serialPort(new SerialPort()), versionMajor(0), versionMinor(0), versionProto(0)
{
}

PowerDevice::~PowerDevice()
{
    delete serialPort;
}

int PowerDevice::getVersion()
{
    versionMajor = 0;
    versionMinor = 0;
    versionProto = 0;
    int error = -1;
    char reply[valueReplySize];
    std::memset(reply, 0, sizeof reply);
    int count = 0;
    // A board that has just been switched on needs time to start.
    if (serialPort->fd > 0)
        Clock::sleep(2);
    for (int attempt = 0; attempt < 3; attempt++) {
        serialPort->writeReadSerialPort(power_cmd[0], reply, sizeof reply, &count, &error,
                                        separatorLF, shortTimeoutMs, nullptr);
        if (error == 0)
            break;
    }
    if (error != 0)
        return error;
    parseVersion(reply, &versionMajor, &versionMinor, &versionProto);
    return error;
}

_pdError PowerDevice::acquireRampLines(const char* command, int points, _raw_ramp_iv* ramp,
                                       QProgressDialog* progress)
{
    startProgress(progress, points);
    char reply[rampReplySize];
    std::memset(reply, 0, sizeof reply);
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(command, reply, sizeof reply, &count, &error, separatorLF,
                                    rampTimeoutMs, progress);
    endProgress(progress, points);
    std::memset(ramp, 0, sizeof *ramp);
    if (error != 0)
        return static_cast<_pdError>(error);
    int* const columns[2] = {ramp->corrente, ramp->tensione};
    parseReplyLines(reply, "%d\t%d", 2, RAMP_POINTS, columns, false);
    return PD_OK;
}

_pdError PowerDevice::acquirePanel(_ramp_param param, _raw_ramp_iv* ramp,
                                   QProgressDialog* progress)
{
    if (param.rampRange > 1)
        param.rampRange = 0;
    if (param.rampLimitB >= 4096)
        param.rampLimitB = 2300;
    if (param.rampLimitA >= 4096)
        param.rampLimitA = 1000;
    char command[128];
    std::snprintf(command, sizeof command, power_cmd[1], param.rampPoints,
                  static_cast<int>(param.rampRange), param.rampArg,
                  static_cast<int>(param.rampLimitA), static_cast<int>(param.rampLimitB));
    return acquireRampLines(command, param.rampPoints, ramp, progress);
}

_pdError PowerDevice::acquireString(_string_param param, _raw_ramp_iv* ramp,
                                    QProgressDialog* progress)
{
    if (param.chargePoints == 0)
        param.chargePoints = 1;
    char command[128];
    std::snprintf(command, sizeof command, power_cmd[2], param.chargePoints,
                  static_cast<int>(param.chargeRange));
    return acquireRampLines(command, param.chargePoints, ramp, progress);
}

_pdError PowerDevice::acquireUtroque(_raw_ramp_iv* ramp, QProgressDialog* progress)
{
    startProgress(progress, 513);
    char data[checkedTextSize];
    std::memset(data, 0, sizeof data);
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(power_cmd[5], data, sizeof data, &count, &error,
                                    separatorLF, rampTimeoutMs, progress);
    endProgress(progress, 512);
    std::memset(ramp, 0, sizeof *ramp);
    if (error != 0)
        return static_cast<_pdError>(error);
    int* const columns[2] = {ramp->corrente, ramp->tensione};
    checkedParse(data, "%d\t%d", 2, 2, RAMP_POINTS, columns);
    return PD_OK;
}

_pdError PowerDevice::acquireBrask(_raw_ramp_iv* ramp, QProgressDialog* progress)
{
    startProgress(progress, 513);
    char data[checkedTextSize];
    std::memset(data, 0, sizeof data);
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(power_cmd[9], data, sizeof data, &count, &error,
                                    separatorLF, rampTimeoutMs, progress);
    endProgress(progress, 512);
    std::memset(ramp, 0, sizeof *ramp);
    if (error != 0)
        return static_cast<_pdError>(error);
    static_assert(RAMP_POINTS == 4 * brask_points, "a ramp is four times the board's points");
    int corrente[RAMP_POINTS], tensione[RAMP_POINTS], gate1[RAMP_POINTS], gate2[RAMP_POINTS];
    int* const columns[4] = {corrente, tensione, gate1, gate2};
    checkedParse(data, "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, columns);
    interpolateBrask(corrente, tensione, ramp);
    return PD_OK;
}

_pdError PowerDevice::acquireBraskDebug(_raw_ramp_vgate* ramp, QProgressDialog* progress)
{
    startProgress(progress, 513);
    char data[checkedTextSize];
    std::memset(data, 0, sizeof data);
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(power_cmd[9], data, sizeof data, &count, &error,
                                    separatorLF, rampTimeoutMs, progress);
    endProgress(progress, 512);
    std::memset(ramp, 0, sizeof *ramp);
    if (error != 0)
        return static_cast<_pdError>(error);
    int corrente[RAMP_POINTS], tensione[RAMP_POINTS], gate1[RAMP_POINTS], gate2[RAMP_POINTS];
    int* const columns[4] = {corrente, tensione, gate1, gate2};
    checkedParse(data, "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, columns);
    for (int k = 0; k < brask_points; k++) {
        ramp->corrente[k] = corrente[k];
        ramp->tensione[k] = tensione[k];
        ramp->vgate1[k] = gate1[k];
        ramp->vgate2[k] = gate2[k];
    }
    return PD_OK;
}

_pdError PowerDevice::acquireTst(const char* format, int target, int list, int maximum,
                                 int final, _tstBrask* tst, QProgressDialog* progress)
{
    std::memset(tst, 0, sizeof *tst);
    startProgress(progress, maximum);
    char command[128];
    std::snprintf(command, sizeof command, format, target, list);
    char data[checkedTextSize];
    std::memset(data, 0, sizeof data);
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(command, data, sizeof data, &count, &error, separatorLF,
                                    rampTimeoutMs, progress);
    endProgress(progress, final);
    // The data before a status line is kept whatever the status was.
    int* const columns[4] = {tst->corrente, tst->tensione, tst->vGateImp, tst->vGateEff};
    checkedParse(data, "%d\t%d\t%d\t%d", 4, 4, TST_BRASK_POINTS, columns);
    return static_cast<_pdError>(error);
}

_pdError PowerDevice::acquireSweepBrask(_tstBrask* tst, int target, int list,
                                        QProgressDialog* progress)
{
    return acquireTst(power_cmd[13], target, list, 129, 128, tst, progress);
}

_pdError PowerDevice::acquireZKillBrask(_tstBrask* tst, int target, int list,
                                        QProgressDialog* progress)
{
    return acquireTst(power_cmd[11], target, list, 129, 128, tst, progress);
}

_pdError PowerDevice::acquireZTstBrask(_tstBrask* tst, int target, int list,
                                       QProgressDialog* progress)
{
    return acquireTst(power_cmd[10], target, list, 513, 128, tst, progress);
}

_pdError PowerDevice::exchangeValue(const char* command, char* reply, int replySize)
{
    std::memset(reply, 0, static_cast<size_t>(replySize));
    int count = 0;
    int error = -1;
    serialPort->writeReadSerialPort(command, reply, replySize, &count, &error, separatorLF,
                                    shortTimeoutMs, nullptr);
    return static_cast<_pdError>(error);
}

_pdError PowerDevice::acquireVoc(unsigned char range, int* value)
{
    if (range > 1)
        range = 0;
    char command[64];
    std::snprintf(command, sizeof command, power_cmd[4], static_cast<int>(range));
    char reply[valueReplySize];
    _pdError error = exchangeValue(command, reply, sizeof reply);
    if (error == PD_OK)
        std::sscanf(reply, "%d", value);
    return error;
}

_pdError PowerDevice::acquireIsc(unsigned char range, int* value)
{
    if (range > 1)
        range = 0;
    char command[64];
    std::snprintf(command, sizeof command, power_cmd[3], static_cast<int>(range));
    char reply[valueReplySize];
    _pdError error = exchangeValue(command, reply, sizeof reply);
    if (error == PD_OK)
        std::sscanf(reply, "%d", value);
    return error;
}

_pdError PowerDevice::acquireVoltSpot(unsigned char arg, unsigned long* value)
{
    char command[64];
    std::snprintf(command, sizeof command, power_cmd[8], static_cast<int>(arg));
    char reply[valueReplySize];
    _pdError error = exchangeValue(command, reply, sizeof reply);
    if (error == PD_OK)
        std::sscanf(reply, "%lu", value);
    return error;
}

_pdError PowerDevice::acquireVoltSum(unsigned char arg, unsigned long* value)
{
    char command[64];
    std::snprintf(command, sizeof command, power_cmd[7], static_cast<int>(arg));
    char reply[valueReplySize];
    _pdError error = exchangeValue(command, reply, sizeof reply);
    if (error == PD_OK)
        std::sscanf(reply, "%lu", value);
    else
        *value = 0;
    return error;
}

_pdError PowerDevice::acquireLastInfo(_info_last* info)
{
    std::memset(info, 0, sizeof *info);
    char reply[valueReplySize];
    _pdError error = exchangeValue(power_cmd[6], reply, sizeof reply);
    if (error == PD_OK)
        std::sscanf(reply, "%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d", &info->range, &info->testmode,
                    &info->gatestep, &info->timestep, &info->lastpoint, &info->icc, &info->voc,
                    &info->gateLastPoint, &info->ntc_dac);
    return error;
}

_pdError PowerDevice::acquireTempHSink(float* temperature)
{
    char reply[valueReplySize];
    _pdError error = exchangeValue(power_cmd[12], reply, sizeof reply);
    if (error == PD_OK)
        cSscanf(reply, "%f", temperature); // numbers on the wire speak C
    else
        *temperature = 0;
    return error;
}

// ---- Reply text.

int parseReplyLines(char* text, const char* format, int fields, int points, int* const* columns,
                    bool retry)
{
    int k = 0;
    char* state = nullptr;
    for (char* line = strtok_r(text, "\n", &state); line != nullptr && k < points;
         line = strtok_r(nullptr, "\n", &state), k++) {
        for (int pass = 0; pass < (retry ? 2 : 1); pass++) {
            int got = fields == 4 ? std::sscanf(line, format, &columns[0][k], &columns[1][k],
                                                &columns[2][k], &columns[3][k])
                                  : std::sscanf(line, format, &columns[0][k], &columns[1][k]);
            if (got >= fields)
                break;
        }
    }
    return k;
}

void checkedParse(const char* data, const char* format, int fields, int compared, int points,
                  int* const* columns)
{
    char first[checkedTextSize], second[checkedTextSize], third[checkedTextSize];
    std::memset(first, 0, sizeof first);
    std::memset(second, 0, sizeof second);
    std::memset(third, 0, sizeof third);
    size_t length = strnlen(data, checkedTextSize - 1);
    std::memcpy(first, data, length);
    std::memcpy(second, data, length);
    std::memcpy(third, data, length);

    for (int c = 0; c < fields; c++)
        std::memset(columns[c], 0, sizeof(int) * static_cast<size_t>(points));
    parseReplyLines(first, format, fields, points, columns, true);

    int again[4][RAMP_POINTS];
    std::memset(again, 0, sizeof again);
    int* const check[4] = {again[0], again[1], again[2], again[3]};
    int checked = points < RAMP_POINTS ? points : RAMP_POINTS;
    parseReplyLines(second, format, fields, checked, check, true);

    for (int k = 0; k < checked; k++) {
        bool agrees = false;
        for (int c = 0; c < compared && !agrees; c++)
            agrees = columns[c][k] == check[c][k];
        if (!agrees) {
            for (int c = 0; c < fields; c++)
                std::memset(columns[c], 0, sizeof(int) * static_cast<size_t>(points));
            parseReplyLines(third, format, fields, points, columns, true);
            break;
        }
    }
}

void interpolateBrask(const int* corrente, const int* tensione, _raw_ramp_iv* ramp)
{
    for (int k = 0; k < brask_points; k++) {
        ramp->corrente[2 * k] = corrente[k];
        ramp->tensione[2 * k] = tensione[k];
    }
    for (int i = 2 * brask_points; i < RAMP_POINTS; i++) {
        ramp->corrente[i] = corrente[brask_points - 1];
        ramp->tensione[i] = tensione[brask_points - 1];
    }
    // The mean in 64 bits: two large counts must not overflow on the way.
    for (int i = 1; i <= RAMP_POINTS - 3; i += 2) {
        ramp->corrente[i] = static_cast<int>(
            (static_cast<long long>(ramp->corrente[i - 1]) + ramp->corrente[i + 1]) / 2);
        ramp->tensione[i] = static_cast<int>(
            (static_cast<long long>(ramp->tensione[i - 1]) + ramp->tensione[i + 1]) / 2);
    }
}

void parseVersion(const char* text, int* major, int* minor, int* proto)
{
    std::sscanf(text, "%*s %d.%d %*s", major, minor);
    if (std::strstr(text, "PROTO") != nullptr)
        *proto = 1;
    else if (std::strstr(text, "FP") != nullptr)
        std::sscanf(text, "%*s FP %d.%d %*s", major, minor);
}
