#ifndef KRM_REPORT_STRINGCOMPARISON_H
#define KRM_REPORT_STRINGCOMPARISON_H

#include "reportmeasure.h"

#include <QList>
#include <QString>
#include <vector>

// The strings of one installation side by side: Voc, Isc and Pmax at standard
// conditions per module, each against the median of the strings of the same
// reference model. Voc and Pmax are divided by the modules in series; the
// current of a series string is the current of each of its modules, so Isc
// is compared as measured. A string more than 5 % from the median is marked.
class StringComparison
{
public:
    static constexpr double markPercent = 5.0;

    struct Row {
        const ReportMeasure* measure;
        double value[3];     // Voc (V), Isc (A), Pmax (W) per module
        double deviation[3]; // percent from the group's median
        bool marked[3];
    };
    struct Group {
        QString brand;
        QString model;
        double median[3];
        std::vector<Row> rows;
    };

    explicit StringComparison(const std::vector<ReportMeasure>& measures);

    // Groups of two strings or more of one reference model.
    std::vector<Group> groups;
    // Strings without a reference, or alone with their model.
    QList<const ReportMeasure*> apart;

    static double median(std::vector<double> values);
};

#endif
