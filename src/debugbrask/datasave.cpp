#include "debugbrask/datasave.h"

#include "data/datameasures.h"
#include "data/workdir.h"
#include "debugbrask/debugdir.h"

#include <QByteArray>
#include <cstdio>

namespace
{

// The date, time and comment lines behind the kind of the file. fprintf of
// a null text is undefined; the C library of the instrument printed
// "(null)", and the files keep that text.
void writeHead(FILE* f, const char* kind, const char* data, const char* time, const char* comment)
{
    auto text = [](const char* s) { return s != nullptr ? s : "(null)"; };
    fprintf(f, "comando = %s\n", kind);
    fprintf(f, "data = %s\n", text(data));
    fprintf(f, "time = %s\n", text(time));
    fprintf(f, "comment = %s\n", text(comment));
}

// "%f" in the C form whatever the locale of the process.
void writeTemperature(FILE* f, const char* key, float value)
{
    fprintf(f, "%s = %s\n", key,
            QByteArray::number(static_cast<double>(value), 'f', 6).constData());
}

void writeInfo(FILE* f, const _info_last* info, float tempStart, float tempStop)
{
    fprintf(f, "range = %d\n", info->range);
    fprintf(f, "testmode = %d\n", info->testmode);
    fprintf(f, "gatestep = %d\n", info->gatestep);
    fprintf(f, "timestep = %d\n", info->timestep);
    fprintf(f, "lastpoint = %d\n", info->lastpoint);
    fprintf(f, "icc = %d\n", info->icc);
    fprintf(f, "voc = %d\n", info->voc);
    fprintf(f, "gateLastPoint = %d\n", info->gateLastPoint);
    fprintf(f, "ntc_dac = %d\n", info->ntc_dac);
    writeTemperature(f, "temp_start", tempStart);
    writeTemperature(f, "temp_stop", tempStop);
    fprintf(f, "Tabella\n");
}

// Enters the service folder and creates the file of the date and time:
// null with the result in *error when it can't.
FILE* openDebugFile(WorkDir& wd, const char* data, const char* time, int* error)
{
    if (!wd.enter(DIR_DATA_DEBUG)) {
        *error = -4;
        return nullptr;
    }
    char name[MEASURE_NAME_SIZE];
    measureFileName(data != nullptr ? data : "(null)", time != nullptr ? time : "(null)", name);
    FILE* f = fopen(name, "w");
    *error = f != nullptr ? 0 : -3;
    return f;
}

void closeDebugFile(FILE* f)
{
    fflush(f);
    fclose(f);
}

int saveTst(const char* kind, const char* heads, char* data, char* time, char* comment,
            const _tstBrask* tst, int target, float tempStart, float tempStop)
{
    WorkDir wd;
    int error = 0;
    FILE* f = openDebugFile(wd, data, time, &error);
    if (f == nullptr)
        return error;
    writeHead(f, kind, data, time, comment);
    fprintf(f, "target = %d\n", target);
    writeTemperature(f, "temp_start", tempStart);
    writeTemperature(f, "temp_stop", tempStop);
    fprintf(f, "%s\n", heads);
    for (int k = 0; k < TST_BRASK_POINTS; k++)
        fprintf(f, "%d\t%d\t%d\t%d\t%d\n", k, tst->corrente[k], tst->tensione[k], tst->vGateImp[k],
                tst->vGateEff[k]);
    closeDebugFile(f);
    return 0;
}

const char* const sweepHeads = "Num\tI(dec)\tV(dec)\tvGateImp(dec)\tvGateEff(dec)";

} // namespace

int saveMeasureMeaBrask(char* data, char* time, char* comment, _raw_ramp_iv* ramp, _info_last* info,
                        float tempStart, float tempStop)
{
    WorkDir wd;
    int error = 0;
    FILE* f = openDebugFile(wd, data, time, &error);
    if (f == nullptr)
        return error;
    writeHead(f, "Mea_brask User", data, time, comment);
    writeInfo(f, info, tempStart, tempStop);
    fprintf(f, "Num\tI(dec)\tV(dec)\n");
    for (int k = 0; k < RAMP_POINTS; k++)
        fprintf(f, "%d\t%d\t%d\n", k, ramp->corrente[k], ramp->tensione[k]);
    closeDebugFile(f);
    return 0;
}

int saveMeasureMeaBraskDebug(char* data, char* time, char* comment, _raw_ramp_vgate* ramp,
                             _info_last* info, float tempStart, float tempStop)
{
    WorkDir wd;
    int error = 0;
    FILE* f = openDebugFile(wd, data, time, &error);
    if (f == nullptr)
        return error;
    writeHead(f, "Mea_brask Debug", data, time, comment);
    writeInfo(f, info, tempStart, tempStop);
    fprintf(f, "Num\tI(dec)\tV(dec)\tVGate1(dec)\tVGate2(dec)\n");
    for (int k = 0; k < RAMP_POINTS; k++)
        fprintf(f, "%d\t%d\t%d\t%d\t%d\n", k, ramp->corrente[k], ramp->tensione[k], ramp->vgate1[k],
                ramp->vgate2[k]);
    closeDebugFile(f);
    return 0;
}

int saveMeasureSweepBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                          float tempStart, float tempStop)
{
    return saveTst("Sweep_brask", sweepHeads, data, time, comment, tst, target, tempStart,
                   tempStop);
}

// The two Z files are labelled with a K, as the board's tools expect.
int saveMeasureZKillDataBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                              float tempStart, float tempStop)
{
    return saveTst("K_kill_brask", sweepHeads, data, time, comment, tst, target, tempStart,
                   tempStop);
}

int saveMeasureZTstDatBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                            float tempStart, float tempStop)
{
    return saveTst("K_tst_brask", "Num\tADI(dec)\tADV(dec)\tVGATEIMP(dec)\tVGATEEFF(dec)", data,
                   time, comment, tst, target, tempStart, tempStop);
}
