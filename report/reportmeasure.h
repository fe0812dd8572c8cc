#ifndef KRM_REPORT_REPORTMEASURE_H
#define KRM_REPORT_REPORTMEASURE_H

#include "data/coredata.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

// One saved measure as the report shows it: the record read through the
// instrument's own reader, its texts decoded as the instrument decodes them,
// the serial number of the instrument that took it, and what the report works
// out from it (fill factors, performance factor, the translated curve).
class ReportMeasure
{
    Q_DECLARE_TR_FUNCTIONS(ReportMeasure)

public:
    // Reads a measure file of the module or string directory. false, with the
    // reason in error, when the file can't be read or holds no measure: no
    // date or time, no module count, or no point of a curve.
    bool load(const QString& fileName, _meaType measureType, QString* error);

    QString file;
    _meaType type = MEA_PANEL;
    long serial = -1;
    QString version; // "major.minor.patch" of the software that wrote it
    QString date;    // as stored, "yyyy/MM/dd"
    QString time;    // as stored, "HH:mm:ss"
    QDate day;
    QString comment;
    QString brand;
    QString model;
    // Every number of the file; the texts are the QStrings above and the
    // record's own text fields are null.
    _measure record{};
    // The curve translated to standard conditions as the instrument computes
    // it for display (all zeros without a reference module).
    _ramp_iv stcCurve{};

    bool hasReference() const { return record.mcomp == 1; }
    bool hasRs() const { return record.mrstest == 1; }
    // The string's comment, else its date and time.
    QString label() const;
    // Pmax / (Voc * Isc) in percent, at operating and at standard conditions.
    double fillFactor() const;
    double fillFactorStc() const;
    // The translated Pmax over the modules times the nominal Pmax, percent;
    // NaN without a reference module.
    double performanceFactor() const;
    // How the temperature was obtained, in words.
    QString probeText() const;
    // The verdict as the instrument gave it; empty without a reference module.
    QString verdictText() const;
};

#endif
