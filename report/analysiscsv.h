#ifndef KRM_REPORT_ANALYSISCSV_H
#define KRM_REPORT_ANALYSISCSV_H

#include "reportselection.h"

#include <QString>
#include <QStringList>

// analysis.csv: the report's second opinion on each measure, one row per
// measure (the columns in report/README.md): the IEC 60891 figures and their
// coefficients, the band on the verdict, the findings of the curve's shape.
class AnalysisCsv
{
public:
    static QStringList columns();
    static QString row(const ReportMeasure& m, int substrings);
    static QString table(const ReportSelection& selection, int substrings);
};

#endif
