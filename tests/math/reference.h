#ifndef KRM_TESTS_MATH_REFERENCE_H
#define KRM_TESTS_MATH_REFERENCE_H

#include "data/coredata.h"

// A crystalline module of 250 W as its data sheet gives it.
inline _panelFeature referenceModule()
{
    _panelFeature f;
    f.pmax = 250.0f;
    f.impp = 8.2f;
    f.vmpp = 30.5f;
    f.isc = 8.8f;
    f.voc = 37.6f;
    f.type = 2;
    f.noct = 45.0f;
    f.kisc = 0.05f;
    f.kvoc = -0.32f;
    f.kpmax = -0.43f;
    f.tollp = 3.0f;
    f.tollm = -3.0f;
    return f;
}

#endif
