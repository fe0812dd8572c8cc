#ifndef KRM_REPORT_CSVREPORT_H
#define KRM_REPORT_CSVREPORT_H

#include "reportselection.h"

#include <QString>
#include <QStringList>

// The report's figures for a spreadsheet: summary.csv, one row per measure,
// and one curve file per measure, named after the measure file. Comma
// separated, decimal point, UTF-8, a header row; the columns are listed in
// report/README.md.
class CsvReport
{
public:
    static QStringList summaryColumns();
    static QStringList curveColumns();

    // false, with the file in error, when a file can't be written whole.
    static bool write(const ReportSelection& selection, const QString& dir, QString* error);

    static QString summaryRow(const ReportInstallation& installation, const ReportMeasure& m);
    static QString curveTable(const ReportMeasure& m);
};

#endif
