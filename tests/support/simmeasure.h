#ifndef KRM_TESTS_SIMMEASURE_H
#define KRM_TESTS_SIMMEASURE_H

#include "data/coredata.h"

#include <QString>

struct _configParam;

// One curve taken on the simulated instrument as the module and string screens
// take it: the board's ramp and end points read by the instrument's acquisition
// code, converted with the calibration, translated with the reference module
// at the given irradiance and temperature, judged, and saved through the data
// layer into the module (one module) or string directory. The board must be
// powered (powerDeviceStart) and the directory must exist. The file name, or
// an empty string when the board or the file failed.
struct SimMeasure {
    int modules = 1;
    float irradiance = 1000;
    float temperature = 25;
    int probe = PROBE_MODULE;
    const char* date = "2026/05/04";
    const char* time = "10:00:00";
    const char* comment = "";
    // The nominal Pmax of the record's reference; 0 keeps the sheet's.
    float nominalPmax = 0;
};

QString takeSimulatedMeasure(const _configParam& config, const _panelFeature& reference,
                             const SimMeasure& how);

#endif
