#include "stringcomparison.h"

#include <algorithm>
#include <cmath>
#include <limits>

double StringComparison::median(std::vector<double> values)
{
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

StringComparison::StringComparison(const std::vector<ReportMeasure>& measures)
{
    std::vector<Group> all;
    for (const ReportMeasure& m : measures) {
        if (m.type != MEA_STRING)
            continue;
        if (!m.hasReference()) {
            apart.append(&m);
            continue;
        }
        auto g = std::find_if(all.begin(), all.end(), [&](const Group& x) {
            return x.brand == m.brand && x.model == m.model;
        });
        if (g == all.end()) {
            all.push_back(Group{m.brand, m.model, {0, 0, 0}, {}});
            g = all.end() - 1;
        }
        const double n = m.record.mnpan;
        Row row{&m, {m.record.svoc / n, m.record.sisc, m.record.spmax / n}, {0, 0, 0}, {}};
        g->rows.push_back(row);
    }
    for (Group& g : all) {
        if (g.rows.size() < 2) {
            apart.append(g.rows.front().measure);
            continue;
        }
        for (int q = 0; q < 3; q++) {
            std::vector<double> values;
            for (const Row& r : g.rows)
                values.push_back(r.value[q]);
            g.median[q] = median(values);
            for (Row& r : g.rows) {
                r.deviation[q] = g.median[q] != 0.0
                                     ? (r.value[q] - g.median[q]) / g.median[q] * 100.0
                                     : std::numeric_limits<double>::quiet_NaN();
                r.marked[q] = std::fabs(r.deviation[q]) > markPercent;
            }
        }
        groups.push_back(g);
    }
}
