#ifndef KRM_MATH_SMOOTHING_H
#define KRM_MATH_SMOOTHING_H

#include "data/coredata.h"

// Cleaning of a converted curve: dead points (current below 0.1 A or a
// negative voltage) are replaced, ten-point averages are taken, and the two
// end points are pinned to the axes (for MEA_PANEL: point 0 at zero current,
// point 511 at zero voltage).
//
// Precision: each average is a fresh single-precision sum of its ten samples
// in ascending order from 0, divided by 10 (no running sum, so no point's
// rounding depends on the points before it). The working curve lives on the
// stack; nothing is allocated. Point 0 is never cleaned. source and target
// may be the same curve.
//
// Every caller passes MEA_PANEL, also for strings, so that all curves run the
// same way; the MEA_STRING branches are there for the type's sake.

// selector 1: smoothing_solo_curva; any other value: smoothing_senza_rimbalzi.
int smoothing(const _ramp_iv* source, _ramp_iv* target, _meaType type, int selector);
// Bounces stay in the curve: a dead point takes its left neighbour's values.
int smoothing_solo_curva(const _ramp_iv* source, _ramp_iv* target, _meaType type);
// Bounces are removed: dead points are pulled to the highest voltage seen.
int smoothing_senza_rimbalzi(const _ramp_iv* source, _ramp_iv* target, _meaType type);

#endif
