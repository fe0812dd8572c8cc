#include "math/smoothing.h"

namespace {

const int kLast = RAMP_POINTS - 1;

// The dead-point threshold is 0.1 in double precision. 0.1f is the first
// float above 0.1, so for every float x (NaN included) x < 0.1 holds exactly
// when x < 0.1f does: the per-point test runs in single precision.
inline bool belowThreshold(float x)
{
    return x < 0.1f;
}

inline bool deadPoint(const _ramp_iv& c, int j)
{
    return belowThreshold(c.corrente[j]) || c.tensione[j] < 0;
}

// Sum of values[n] .. values[n + 9] in single precision, ascending from 0,
// divided by 10. Dividing the float sum by 10.0 in double and narrowing gives
// the same float as the single division (53 >= 2 * 24 + 2 bits: the double
// rounding is innocuous), so it is done in single precision.
inline float average10(const float* values, int n)
{
    float sum = 0.0f;
    for (int i = 0; i < 10; i++)
        sum += values[n + i];
    return sum / 10.0f;
}

void averageInto(const _ramp_iv& work, _ramp_iv* target, int lastStart)
{
    for (int n = 0; n <= lastStart; n++) {
        target->corrente[n] = average10(work.corrente, n);
        target->tensione[n] = average10(work.tensione, n);
    }
}

void pinEndPoints(_ramp_iv* target, _meaType type)
{
    if (type == MEA_PANEL) {
        target->corrente[kLast] = target->corrente[kLast - 1];
        target->tensione[kLast] = 0.0f;
        target->corrente[0] = 0.0f;
    } else {
        target->tensione[kLast] = target->tensione[kLast - 1];
        target->corrente[kLast] = 0.0f;
        target->tensione[0] = 0.0f;
    }
}

} // namespace

int smoothing(const _ramp_iv* source, _ramp_iv* target, _meaType type, int selector)
{
    if (selector == 1)
        return smoothing_solo_curva(source, target, type);
    return smoothing_senza_rimbalzi(source, target, type);
}

int smoothing_solo_curva(const _ramp_iv* source, _ramp_iv* target, _meaType type)
{
    _ramp_iv work = *source;
    *target = work; // points the averaging doesn't reach keep the raw values

    for (int j = 1; j <= kLast; j++) {
        if (deadPoint(work, j)) {
            work.corrente[j] = work.corrente[j - 1];
            work.tensione[j] = work.tensione[j - 1];
        }
    }
    averageInto(work, target, 501);
    pinEndPoints(target, type);
    return 1;
}

int smoothing_senza_rimbalzi(const _ramp_iv* source, _ramp_iv* target, _meaType type)
{
    _ramp_iv work = *source;
    *target = work;

    if (type != MEA_STRING) {
        float vmax = 0.0f;
        for (int j = 1; j <= kLast; j++) {
            if (work.tensione[j] > vmax)
                vmax = work.tensione[j];
            if (deadPoint(work, j)) {
                work.corrente[j] = 0.0f;
                work.tensione[j] = work.tensione[j - 1];
            }
        }
        // Pulls every dead point, point 0 included, to the open-circuit voltage.
        if (vmax > 0.1) {
            for (int k = 0; k <= kLast; k++) {
                if (belowThreshold(work.corrente[k]))
                    work.tensione[k] = vmax;
            }
        }
        averageInto(work, target, 491);
    } else {
        // Everything after the first dead point is cut to zero current.
        bool cut = false;
        float kept = 0.0f;
        for (int j = 1; j <= kLast; j++) {
            if (cut) {
                work.corrente[j] = 0.0f;
                work.tensione[j] = kept;
            } else if (deadPoint(work, j)) {
                kept = work.tensione[j - 1];
                cut = true;
            }
        }
        averageInto(work, target, 491);
        bool cutTarget = false;
        for (int k = 0; k <= kLast; k++) {
            if (cutTarget) {
                target->corrente[k] = 0.0f;
                target->tensione[k] = kept;
            } else if (belowThreshold(target->corrente[k])) {
                kept = target->tensione[k];
                cutTarget = true;
            }
        }
    }
    pinEndPoints(target, type);
    return 1;
}
