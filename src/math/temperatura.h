#ifndef KRM_MATH_TEMPERATURA_H
#define KRM_MATH_TEMPERATURA_H

#include "data/coredata.h"

// The cell temperature a translation uses, by the probe mode in force:
//  - PROBE_AMBIENT: the ambient reading plus the NOCT rise,
//    T + (noct - 20) * G / 800;
//  - PROBE_MODULE, PROBE_MANUAL and any other value: t as given, unrounded;
//  - PROBE_AUTO: from the open-circuit voltage of one module, Vs = voc / npan,
//    against the reference's voc and kvoc (above 300 W/m2), or the NOCT rise
//    over 25 degrees C (300 W/m2 and below). The high-irradiance row adds no
//    25 degrees: it is the instrument's formula as it stands.
// Precision: Vs and k = kvoc / 100 are single, then rndVoltage, rndTemperature
// and rndIrradiation are taken; what meets a double constant is double and is
// narrowed to float at the end (in the automatic row before the division by
// k). A kvoc of 0 in the automatic row gives an infinity or NaN, not a trap.

float calcola_temperatura(_probeTemp probe, int npan, float t, float g, float voc,
                          const _panelFeature* f);
// The ambient temperature that a module temperature implies, the inverse of
// the PROBE_AMBIENT row: rndTemperature(rndTemperature(tModule)
// + (noct - 20) * g / -800), g unrounded, worked out in double.
float calcola_temperatura_ambiente_da_modulo(float tModule, float g, const _panelFeature* f);

// The test screens refuse a translation below -20.0 or above 100.0 degrees C
// with "Temperatura fuori limite."; the limits themselves pass, and so does a
// NaN, as both comparisons fail on it.
bool temperatureOutOfLimits(float t);

#endif
