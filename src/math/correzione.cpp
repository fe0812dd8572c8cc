#include "math/correzione.h"

float correzTensione(int raw, float gain, float offset)
{
    const float v = static_cast<float>(raw) * gain + offset;
    return v < 0 ? 0.0f : v;
}

float correzCorrente(int raw, float gain, int offset)
{
    // The difference of the counts is taken in 64 bits so that extreme
    // counts cannot overflow; inside the int range this is the plain
    // integer difference.
    const long long counts = static_cast<long long>(raw) - offset;
    const float i = static_cast<float>(counts) * gain;
    return i < 0 ? 0.0f : i;
}
