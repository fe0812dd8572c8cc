#ifndef KRM_REPORT_SHEETMODEL_H
#define KRM_REPORT_SHEETMODEL_H

#include "data/coredata.h"

// The curve a module (or a string of them) of a data sheet should give at an
// irradiance and a cell temperature: the single-diode equation without shunt,
// with the photocurrent taken equal to Isc,
//     V = Voc + a ln(1 - I / Isc) - Rs I,
// whose a (n Ns kT/q) and Rs follow in closed form from the data sheet's Isc,
// Voc, Impp and Vmpp (the maximum power point lies on the curve and the power
// is flat there). Isc follows the sheet's kisc and the irradiance, Voc its kvoc
// and a ln(G / 1000), a the absolute temperature; Rs stays.
class SheetModel
{
public:
    SheetModel(const _panelFeature& sheet, int modules, double irradiance, double temperature);

    bool valid() const { return ok; }
    double isc() const { return iscA; }
    double voc() const { return vocV; }
    double a() const { return aV; }     // of the whole string
    double rs() const { return rsOhm; } // of the whole string
    double voltageAt(double current) const;
    double currentAt(double voltage) const;
    double pmax() const;
    double fillFactor() const; // percent

private:
    bool ok = false;
    double iscA = 0, vocV = 0, aV = 0, rsOhm = 0;
};

#endif
