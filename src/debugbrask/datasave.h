#ifndef KRM_DEBUGBRASK_DATASAVE_H
#define KRM_DEBUGBRASK_DATASAVE_H

#include "data/coredata.h"

// The raw files of the service screens, plain text for a person or a
// spreadsheet, in the service folder. The name comes from the date and the
// time as for a measure ("%s-%s", lowered, letters, digits and minus signs
// only); a file of the same name is overwritten. A null comment is written
// as "(null)". Each returns 0, -4 when the service folder cannot be entered,
// -3 when the file cannot be created.
int saveMeasureMeaBrask(char* data, char* time, char* comment, _raw_ramp_iv* ramp, _info_last* info,
                        float tempStart, float tempStop);
int saveMeasureMeaBraskDebug(char* data, char* time, char* comment, _raw_ramp_vgate* ramp,
                             _info_last* info, float tempStart, float tempStop);
int saveMeasureSweepBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                          float tempStart, float tempStop);
int saveMeasureZTstDatBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                            float tempStart, float tempStop);
int saveMeasureZKillDataBrask(char* data, char* time, char* comment, _tstBrask* tst, int target,
                              float tempStart, float tempStop);

#endif
