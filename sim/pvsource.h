#ifndef KRM_SIM_PVSOURCE_H
#define KRM_SIM_PVSOURCE_H

// The photovoltaic source on the measuring inputs: one module or a string of
// identical modules in series, each a single-diode model (photocurrent,
// saturation current, modified ideality, series and shunt resistance) fitted
// from its data sheet, split into substrings with a bypass diode each.

#include <string>
#include <vector>

namespace sim
{

struct DataSheet {
    double pmax = 250.0;  // W
    double impp = 8.20;   // A
    double vmpp = 30.50;  // V
    double isc = 8.70;    // A
    double voc = 37.50;   // V
    double kisc = 0.05;   // % per degree C
    double kvoc = -0.32;  // % per degree C
    double kpmax = -0.42; // % per degree C
    double noct = 45.0;   // degrees C
    int cells = 60;
    int bypass = 3; // substrings, one bypass diode each
};

// Fitted parameters of one module, at standard test conditions.
struct DiodeModel {
    double iph = 0; // A
    double i0 = 0;  // A
    double a = 0;   // V, n * cells * kT/q
    double rs = 0;  // ohm
    double gsh = 0; // 1/ohm (1/Rsh)
    double krs = 0; // 1/K, temperature coefficient of rs (fitted to the data sheet's kpmax)
};

struct PvFigures {
    double isc = 0, voc = 0, pmax = 0, vmpp = 0, impp = 0;
    int maxima = 0; // local maxima of power along the curve
};

class PvSource
{
public:
    enum Bypass { BypassOk, BypassShort, BypassOpen };

    PvSource();

    // Fits the model to the data sheet; false (and the old model kept) when
    // the figures are inconsistent.
    bool setDataSheet(const DataSheet& sheet, std::string* error);
    const DataSheet& dataSheet() const { return sheet; }
    const DiodeModel& model() const { return stc; }

    void setSeries(int modules);
    int series() const { return modules; }
    void setConditions(double irradiance, double cellTemperature);
    double irradiance() const { return g; }
    double cellTemperature() const { return t; }

    // Faults of the modules themselves.
    void clearShading();
    // Irradiance factor (0..1) of one substring of one module.
    bool setShade(int module, int substring, double factor);
    bool setBypass(int module, int substring, Bypass state);
    // Faults beside the cells, the same on every module: a resistance added in
    // series with each module (cables, connectors, a corroded joint) and a
    // resistance across each module (a leaky cell or junction box). Zero
    // removes them; clearShading does too.
    void setAddedSeries(double ohmPerModule);
    void setShunt(double ohmPerModule);
    double addedSeries() const { return addedRs; }
    double shunt() const { return shuntR; }

    // The curve at the present conditions: terminal voltage at a current and
    // current at a terminal voltage.
    double voltageAt(double current) const;
    double currentAt(double voltage) const;
    PvFigures figures() const;
    // The same curve from a table built once per condition (for the board's
    // sweeps): current at a terminal voltage between 0 and Voc.
    double sweepCurrentAt(double voltage) const;

private:
    struct Substring {
        double shade = 1.0;
        Bypass bypass = BypassOk;
    };
    struct Group {
        Substring state;
        int count;
    };

    void rebuild();
    double substringVoltage(double current, const Substring& s) const;
    // Voltage of the cells and bypass diodes alone, at a current through them.
    double cellsVoltageAt(double current) const;

    DataSheet sheet;
    DiodeModel stc;
    DiodeModel now; // at the present conditions, one module
    int modules = 1;
    double g = 1000.0, t = 25.0;
    double addedRs = 0.0;                        // ohm per module
    double shuntR = 0.0;                         // ohm per module, 0: none
    std::vector<std::vector<Substring>> strings; // [module][substring]
    std::vector<Group> groups;                   // distinct substrings and their count
    mutable bool cacheValid = false;
    mutable PvFigures cachedFigures;
    mutable std::vector<double> tableI, tableV; // V falling as I rises
    void buildCache() const;
};

// Model at given conditions from the STC model and the data sheet.
DiodeModel conditionsModel(const DiodeModel& stc, const DataSheet& sheet, double irradiance,
                           double cellTemperature);
// Maximum power of one unshaded module with the given model.
double modulePmax(const DiodeModel& m);
double moduleVoc(const DiodeModel& m);
bool fitDataSheet(const DataSheet& sheet, DiodeModel* model, std::string* error);

} // namespace sim

#endif
