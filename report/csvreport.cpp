#include "csvreport.h"

#include <QDir>
#include <QSaveFile>
#include <cmath>

namespace
{

QString number(double value, int decimals)
{
    if (!std::isfinite(value))
        return QString();
    return QString::number(value, 'f', decimals);
}

QString quoted(const QString& text)
{
    QString q = text;
    q.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + q + QLatin1Char('"');
}

const char* probeWord(int mprobe)
{
    switch (mprobe) {
    case PROBE_AMBIENT:
        return "ambient";
    case PROBE_MODULE:
        return "module";
    case PROBE_AUTO:
        return "auto";
    case PROBE_MANUAL:
        return "manual";
    default:
        return "unknown";
    }
}

bool writeFile(const QString& path, const QString& content)
{
    QSaveFile out(path);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    const QByteArray bytes = content.toUtf8();
    if (out.write(bytes) != bytes.size())
        return false;
    return out.commit();
}

} // namespace

QStringList CsvReport::summaryColumns()
{
    return {"file",
            "kind",
            "installation",
            "date",
            "time",
            "comment",
            "serial",
            "version",
            "brand",
            "model",
            "modules",
            "irradiance_wm2",
            "temperature_c",
            "temperature_source",
            "isc_a",
            "voc_v",
            "impp_a",
            "vmpp_v",
            "pmax_w",
            "ff_pct",
            "stc_isc_a",
            "stc_voc_v",
            "stc_impp_a",
            "stc_vmpp_v",
            "stc_pmax_w",
            "stc_ff_pct",
            "dpmax_pct",
            "verdict",
            "performance_pct",
            "rs_ohm",
            "rs_irradiance1_wm2",
            "rs_irradiance2_wm2",
            "ref_pmax_w",
            "ref_voc_v",
            "ref_isc_a",
            "ref_vmpp_v",
            "ref_impp_a",
            "ref_noct_c",
            "ref_kisc_pct_c",
            "ref_kvoc_pct_c",
            "ref_kpmax_pct_c",
            "ref_tolplus_pct",
            "ref_tolminus_pct"};
}

QStringList CsvReport::curveColumns()
{
    return {"point",         "voltage_v",     "current_a",  "power_w",
            "stc_voltage_v", "stc_current_a", "stc_power_w"};
}

QString CsvReport::summaryRow(const ReportInstallation& installation, const ReportMeasure& m)
{
    const _measure& r = m.record;
    const bool ref = m.hasReference();
    auto stc = [&](float v, int d) { return ref ? number(v, d) : QString(); };
    auto sheet = [&](float v, int d) { return ref ? number(v, d) : QString(); };
    QStringList f;
    f << quoted(m.file) << (m.type == MEA_STRING ? "string" : "module") << quoted(installation.id)
      << m.date << m.time << quoted(m.comment)
      << (m.serial >= 0 ? QString::number(m.serial) : QString()) << m.version << quoted(m.brand)
      << quoted(m.model) << QString::number(r.mnpan) << number(r.mirr, 0) << number(r.mtemp, 1)
      << probeWord(r.mprobe) << number(r.misc, 2) << number(r.mvoc, 2) << number(r.mimpp, 2)
      << number(r.mvmpp, 2) << number(r.mpmax, 2) << number(m.fillFactor(), 1) << stc(r.sisc, 2)
      << stc(r.svoc, 2) << stc(r.simpp, 2) << stc(r.svmpp, 2) << stc(r.spmax, 2)
      << number(m.fillFactorStc(), 1) << stc(r.mdpmax, 2)
      << (ref ? (r.mtest == 1 ? "pass" : "fail") : "") << number(m.performanceFactor(), 1)
      << (m.hasRs() ? number(r.mrs, 3) : QString()) << (m.hasRs() ? number(r.mrsi1, 0) : QString())
      << (m.hasRs() ? number(r.mrsi2, 0) : QString()) << sheet(r.ref.pmax, 2) << sheet(r.ref.voc, 2)
      << sheet(r.ref.isc, 2) << sheet(r.ref.vmpp, 2) << sheet(r.ref.impp, 2) << sheet(r.ref.noct, 2)
      << sheet(r.ref.kisc, 4) << sheet(r.ref.kvoc, 4) << sheet(r.ref.kpmax, 4)
      << sheet(r.ref.tollp, 2) << sheet(r.ref.tollm, 2);
    return f.join(QLatin1Char(','));
}

QString CsvReport::curveTable(const ReportMeasure& m)
{
    QString out = curveColumns().join(QLatin1Char(',')) + QLatin1Char('\n');
    const bool ref = m.hasReference();
    for (int k = 0; k < 512; k++) {
        const double v = m.record.ramp.tensione[k];
        const double i = m.record.ramp.corrente[k];
        QStringList row{QString::number(k), number(v, 4), number(i, 4), number(v * i, 4)};
        if (ref) {
            const double sv = m.stcCurve.tensione[k];
            const double si = m.stcCurve.corrente[k];
            row << number(sv, 4) << number(si, 4) << number(sv * si, 4);
        } else {
            row << QString() << QString() << QString();
        }
        out += row.join(QLatin1Char(',')) + QLatin1Char('\n');
    }
    return out;
}

bool CsvReport::write(const ReportSelection& selection, const QString& dir, QString* error)
{
    if (!QDir().mkpath(dir)) {
        *error = dir;
        return false;
    }
    QString summary = summaryColumns().join(QLatin1Char(',')) + QLatin1Char('\n');
    for (const ReportInstallation& installation : selection.installations)
        for (const ReportMeasure& m : installation.measures) {
            summary += summaryRow(installation, m) + QLatin1Char('\n');
            const QString curve = dir + QLatin1Char('/') +
                                  (m.type == MEA_STRING ? "string-" : "module-") + m.file + ".csv";
            if (!writeFile(curve, curveTable(m))) {
                *error = curve;
                return false;
            }
        }
    const QString path = dir + QStringLiteral("/summary.csv");
    if (!writeFile(path, summary)) {
        *error = path;
        return false;
    }
    return true;
}
