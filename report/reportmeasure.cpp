#include "reportmeasure.h"

#include "data/datameasures.h"
#include "data/measureserial.h"
#include "data/storedtext.h"
#include "math/compensazione.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace
{

// Takes a text field of the record into a QString and releases it.
QString takeText(char*& field)
{
    const QString text = field != nullptr ? storedText(field) : QString();
    free(field);
    field = nullptr;
    return text;
}

double ratioPercent(double part, double whole)
{
    if (!(whole > 0) || !std::isfinite(part) || !std::isfinite(whole))
        return std::numeric_limits<double>::quiet_NaN();
    return part / whole * 100.0;
}

} // namespace

bool ReportMeasure::load(const QString& fileName, _meaType measureType, QString* error)
{
    file = fileName;
    type = measureType;
    const QByteArray name = fileName.toLocal8Bit();
    std::memset(&record, 0, sizeof record);
    const int points = readMeasureData(name.constData(), &record, type);
    date = takeText(record.mdata);
    time = takeText(record.mtime);
    comment = takeText(record.mcom);
    model = takeText(record.rname);
    brand = takeText(record.rbname);
    if (points < 0) {
        *error = tr("file illeggibile");
        return false;
    }
    serial = readMeasureSerial(name.constData(), type);
    version = QStringLiteral("%1.%2.%3")
                  .arg(record.version.major)
                  .arg(record.version.minor)
                  .arg(record.version.patch);
    day = QDate::fromString(date, QStringLiteral("yyyy/MM/dd"));
    bool curve = false;
    for (int k = 0; k < 512 && !curve; k++)
        curve = record.ramp.corrente[k] != 0.0f || record.ramp.tensione[k] != 0.0f;
    if (!day.isValid() || time.isEmpty() || record.mnpan < 1 || !curve) {
        *error = tr("misura danneggiata");
        return false;
    }
    std::memset(&stcCurve, 0, sizeof stcCurve);
    if (hasReference()) {
        float vmpp = 0, impp = 0, pmax = 0, vmax = 0, imax = 0;
        compensazione_curva(&record.ramp, &stcCurve, record.misc, record.mvoc, record.mirr,
                            record.mtemp, &record.ref, &vmpp, &impp, &pmax, &vmax, &imax);
    }
    return true;
}

QString ReportMeasure::label() const
{
    if (!comment.trimmed().isEmpty())
        return comment;
    return date + QLatin1Char(' ') + time;
}

double ReportMeasure::fillFactor() const
{
    return ratioPercent(record.mpmax, double(record.mvoc) * double(record.misc));
}

double ReportMeasure::fillFactorStc() const
{
    if (!hasReference())
        return std::numeric_limits<double>::quiet_NaN();
    return ratioPercent(record.spmax, double(record.svoc) * double(record.sisc));
}

double ReportMeasure::performanceFactor() const
{
    if (!hasReference())
        return std::numeric_limits<double>::quiet_NaN();
    return ratioPercent(record.spmax, double(record.mnpan) * double(record.ref.pmax));
}

QString ReportMeasure::probeText() const
{
    switch (record.mprobe) {
    case PROBE_AMBIENT:
        return tr("sonda ambiente");
    case PROBE_MODULE:
        return tr("sonda sul modulo");
    case PROBE_AUTO:
        return tr("automatica da Voc");
    case PROBE_MANUAL:
        return tr("manuale");
    default:
        return tr("sconosciuta (%1)").arg(record.mprobe);
    }
}

QString ReportMeasure::verdictText() const
{
    if (!hasReference())
        return QString();
    return record.mtest == 1 ? tr("Superato") : tr("Non superato");
}
