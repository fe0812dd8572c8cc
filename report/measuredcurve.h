#ifndef KRM_REPORT_MEASUREDCURVE_H
#define KRM_REPORT_MEASUREDCURVE_H

#include "data/coredata.h"

#include <vector>

// The points the board measured, out of a stored record. The board fills
// every other slot of the 512: slots 0, 2, ..., 254 hold its 128 readings
// (slot 0 at the open-circuit end), the odd slots lie between them and slots
// 256 to 511 repeat the last one. Sorted by rising voltage, with the board's
// own Isc and Voc.
struct CurvePoint {
    double v = 0;
    double i = 0;
};

// A straight line I = offset + slope * x through points, least squares.
struct LineFit {
    double slope = 0;
    double offset = 0;
    bool valid = false;
};

class MeasuredCurve
{
public:
    static constexpr int firstSlot = 0;
    static constexpr int lastSlot = 254;
    static constexpr int slotStep = 2;

    explicit MeasuredCurve(const _measure& record);
    MeasuredCurve(std::vector<CurvePoint> points, double isc, double voc);

    const std::vector<CurvePoint>& points() const { return pts; }
    double isc() const { return iscA; }
    double voc() const { return vocV; }
    // The largest V * I of the points and where it lies.
    CurvePoint maximumPowerPoint() const;

    // y on x by least squares.
    static LineFit fit(const std::vector<double>& x, const std::vector<double>& y);

private:
    std::vector<CurvePoint> pts;
    double iscA = 0;
    double vocV = 0;
};

#endif
