#ifndef KRM_MATH_EVALUATETEST_H
#define KRM_MATH_EVALUATETEST_H

#include "data/coredata.h"

// Pass or fail of a measure against the reference module's power tolerance.
// Tolerances count by their absolute value, whatever sign was entered.
//  - evaluateTest: in watts. The expected power E is expectedPower(npan,
//    pmax, deg); d = p - E in single precision; the limits E * -|tollm| / 100
//    and E * |tollp| / 100 are double. d passes inside [lower * 1.01,
//    upper * 0.99] or inside [lower, upper], each limit narrowed to float:
//    up to 1 percent of the tolerance below the lower limit still passes.
//  - evaluateTestStringa: in percent, with an absolute margin of 0.01: passes
//    inside [-|tollm| - 0.01, |tollp| + 0.01], the limits worked out in double
//    and narrowed to float. deg is not used.
// Result 1 passed, 0 failed.

int evaluateTest(int npan, float p, const _panelFeature* f, float deg);
int evaluateTestPannello(float p, const _panelFeature* f, float deg);
int evaluateTestStringa(float dPercent, const _panelFeature* f, float deg);

#endif
