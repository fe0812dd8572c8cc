#include "analysiscsv.h"

#include "csvreport.h"
#include "curvediagnosis.h"
#include "iec60891.h"
#include "verdictband.h"

QStringList AnalysisCsv::columns()
{
    return {"file",       "kind",          "iec_alpha_a_c",   "iec_beta_v_c",
            "iec_rs_ohm", "iec_rs_source", "iec_kappa_ohm_c", "iec1_pmax_w",
            "iec1_voc_v", "iec1_isc_a",    "iec2_pmax_w",     "iec2_voc_v",
            "iec2_isc_a", "band_pct",      "band_verdict",    "findings"};
}

QString AnalysisCsv::row(const ReportMeasure& m, int substrings)
{
    const auto number = CsvReport::number;
    QStringList f;
    f << CsvReport::quoted(m.file) << (m.type == MEA_STRING ? "string" : "module");
    const Iec60891 iec(m.record);
    if (iec.valid())
        f << number(iec.alpha, 5) << number(iec.beta, 4) << number(iec.rs, 3)
          << (iec.rsFitted ? "fitted" : "sheet") << number(iec.kappa, 4)
          << number(iec.procedure1.pmax, 2) << number(iec.procedure1.voc, 2)
          << number(iec.procedure1.isc, 2) << number(iec.procedure2.pmax, 2)
          << number(iec.procedure2.voc, 2) << number(iec.procedure2.isc, 2);
    else
        for (int k = 0; k < 11; k++)
            f << QString();
    const VerdictBand band(m.record);
    if (band.valid())
        f << number(band.band, 2)
          << (band.inconclusive ? "inconclusive" : (m.record.mtest == 1 ? "pass" : "fail"));
    else
        f << QString() << QString();
    const CurveDiagnosis d(m.record, substrings);
    QStringList findings;
    for (const Finding& x : d.findings) {
        switch (x.kind) {
        case Finding::Step:
            findings << QStringLiteral("step %1 of isc at %2 V")
                            .arg(number(x.measured, 3), number(x.voltage, 1));
            break;
        case Finding::VocDeficit:
            findings << QStringLiteral("voc deficit %1 substrings").arg(number(x.measured, 2));
            break;
        case Finding::LowCurrent:
            findings << QStringLiteral("low current %1 of expected").arg(number(x.measured, 3));
            break;
        case Finding::SteepIscSlope:
            findings << QStringLiteral("steep slope near isc, shunt %1 ohm per module")
                            .arg(number(x.ohmPerModule, 1));
            break;
        case Finding::ShallowVocSlope:
            findings << QStringLiteral("shallow slope near voc, %1 ohm per module more")
                            .arg(number(x.ohmPerModule, 2));
            break;
        case Finding::LowFillFactor:
            findings << QStringLiteral("low fill factor %1 %").arg(number(x.measured, 1));
            break;
        }
    }
    f << CsvReport::quoted(findings.isEmpty() ? QStringLiteral("none")
                                              : findings.join(QStringLiteral("; ")));
    return f.join(QLatin1Char(','));
}

QString AnalysisCsv::table(const ReportSelection& selection, int substrings)
{
    QString out = columns().join(QLatin1Char(',')) + QLatin1Char('\n');
    for (const ReportInstallation& installation : selection.installations)
        for (const ReportMeasure& m : installation.measures)
            out += row(m, substrings) + QLatin1Char('\n');
    return out;
}
