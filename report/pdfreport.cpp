#include "pdfreport.h"

#include <QBuffer>
#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace
{

// The page is laid out in points (1/72 inch) on A4.
constexpr int pointsPerInch = 72;
constexpr double margin = 42;
constexpr double bodySize = 9.5;
constexpr double lineHeight = 13;

const QColor measuredColor(200, 30, 30);
const QColor stcColor(20, 130, 40);
const QColor markColor(200, 30, 30);
const QColor gridColor(210, 210, 210);

QFont font(double size, bool bold = false)
{
    QFont f(QStringLiteral("Helvetica"));
    f.setPointSizeF(size);
    f.setBold(bold);
    return f;
}

// A step of 1, 2 or 5 times a power of ten that cuts [0, span] in about n.
double niceStep(double span, int n)
{
    if (!(span > 0) || !std::isfinite(span))
        return 1;
    const double raw = span / n;
    const double p = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0})
        if (raw <= m * p)
            return m * p;
    return 10 * p;
}

QString orDash(const QString& text)
{
    return text.trimmed().isEmpty() ? QStringLiteral("-") : text;
}

// Postcode, city and province, leaving out those not given.
QString place(const QString& zip, const QString& city, const QString& prov)
{
    QStringList parts{zip.trimmed(), city.trimmed(), prov.trimmed()};
    parts.removeAll(QString());
    return orDash(parts.join(QLatin1Char(' ')));
}

} // namespace

PdfReport::PdfReport(const ReportSelection& selection, const QLocale& locale)
    : selection(selection), locale(locale)
{
}

QString PdfReport::num(double value, int decimals, const char* unit) const
{
    if (!std::isfinite(value))
        return QStringLiteral("----");
    QString text = locale.toString(value, 'f', decimals);
    if (unit != nullptr && *unit != 0)
        text += QLatin1Char(' ') + QString::fromUtf8(unit);
    return text;
}

bool PdfReport::hasComparison(const ReportInstallation& installation) const
{
    return std::any_of(installation.measures.begin(), installation.measures.end(),
                       [](const ReportMeasure& m) { return m.type == MEA_STRING; });
}

int PdfReport::pageCount() const
{
    int count = 1;
    for (const ReportInstallation& i : selection.installations) {
        count += int(i.measures.size());
        if (!hasComparison(i))
            continue;
        const StringComparison c(i.measures);
        count += int(c.groups.size()) + (c.apart.isEmpty() ? 0 : 1);
    }
    return count;
}

bool PdfReport::write(const QString& path, QString* error)
{
    // drawn into memory, then written with every write checked: a full disk
    // is a failure, not a cut PDF that looks whole
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setResolution(pointsPerInch);
    pdf.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    pdf.setCreator(QStringLiteral("krm510-report"));
    pdf.setTitle(tr("Rapporto di prova KRM 510"));
    QPainter p;
    if (!p.begin(&pdf)) {
        *error = tr("Impossibile scrivere %1").arg(path);
        return false;
    }
    painter = &p;
    writer = &pdf;
    page = QRectF(QPointF(0, 0), QPageSize(QPageSize::A4).size(QPageSize::Point));
    pages = pageCount();
    pageNumber = 0;

    firstPage();
    for (const ReportInstallation& installation : selection.installations) {
        for (const ReportMeasure& m : installation.measures)
            measurePage(installation, m);
        if (!hasComparison(installation))
            continue;
        const StringComparison comparison(installation.measures);
        for (int g = 0; g < int(comparison.groups.size()); g++)
            comparisonPage(installation, comparison, g);
        if (!comparison.apart.isEmpty())
            apartPage(installation, comparison);
    }
    footer();
    bool ok = p.end();
    painter = nullptr;
    writer = nullptr;
    QFile out(path);
    ok = ok && out.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
         out.write(buffer.data()) == buffer.data().size() && out.flush();
    out.close();
    ok = ok && out.error() == QFileDevice::NoError;
    if (!ok) {
        *error = tr("Impossibile scrivere %1").arg(path);
        return false;
    }
    return true;
}

// ---- Page furniture.

void PdfReport::newPage()
{
    if (pageNumber > 0) {
        footer();
        writer->newPage();
    }
    pageNumber++;
    y = margin;
}

void PdfReport::footer()
{
    painter->save();
    painter->setFont(font(8));
    painter->setPen(Qt::darkGray);
    const QRectF band(margin, page.height() - margin + 8, page.width() - 2 * margin, 14);
    painter->drawLine(QPointF(band.left(), band.top() - 3), QPointF(band.right(), band.top() - 3));
    painter->drawText(band, Qt::AlignLeft | Qt::AlignVCenter,
                      tr("KRM 510 - Rapporto di prova") +
                          (footerText.isEmpty() ? QString() : QStringLiteral(" - ") + footerText));
    painter->drawText(band, Qt::AlignRight | Qt::AlignVCenter,
                      QStringLiteral("%1 / %2").arg(pageNumber).arg(pages));
    painter->restore();
}

void PdfReport::heading(const QString& text)
{
    painter->setFont(font(16, true));
    painter->setPen(Qt::black);
    painter->drawText(QRectF(margin, y, page.width() - 2 * margin, 22),
                      Qt::AlignLeft | Qt::AlignVCenter, text);
    y += 26;
}

void PdfReport::subheading(const QString& text)
{
    y += 4;
    painter->setFont(font(11, true));
    painter->setPen(Qt::black);
    painter->drawText(QRectF(margin, y, page.width() - 2 * margin, 16),
                      Qt::AlignLeft | Qt::AlignVCenter, text);
    y += 16;
    painter->setPen(QPen(Qt::gray, 0.5));
    painter->drawLine(QPointF(margin, y), QPointF(page.width() - margin, y));
    y += 4;
}

void PdfReport::field(const QString& label, const QString& value, double x, double width)
{
    const double labelWidth = width > 400 ? 330 : width * 0.5;
    painter->setPen(Qt::black);
    painter->setFont(font(bodySize));
    painter->drawText(QRectF(x, y, labelWidth - 4, lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                      label);
    painter->setFont(font(bodySize, true));
    const QFontMetricsF metrics(painter->font());
    const QRectF box(x + labelWidth, y, width - labelWidth, lineHeight);
    painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                      metrics.elidedText(value, Qt::ElideRight, box.width()));
    y += lineHeight;
}

void PdfReport::fields(const QList<QPair<QString, QString>>& rows, double x, double width)
{
    for (const auto& [label, value] : rows)
        field(label, value, x, width);
}

void PdfReport::line(const QString& text, bool bold)
{
    painter->setPen(Qt::black);
    painter->setFont(font(bodySize, bold));
    const QFontMetricsF metrics(painter->font());
    const QRectF box(margin, y, page.width() - 2 * margin, page.height());
    const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    const QRectF used = metrics.boundingRect(box, flags, text);
    painter->drawText(box, flags, text);
    y += std::max(lineHeight, std::ceil(used.height()) + 2);
}

// ---- The first page.

void PdfReport::firstPage()
{
    footerText.clear();
    newPage();
    heading(tr("Rapporto di prova delle curve I-V"));
    const double width = page.width() - 2 * margin;

    subheading(tr("Strumento"));
    QStringList serials;
    QStringList versions;
    for (const ReportInstallation& i : selection.installations)
        for (const ReportMeasure& m : i.measures) {
            const QString s = m.serial >= 0 ? QString::number(m.serial) : tr("non registrato");
            if (!serials.contains(s))
                serials << s;
            if (!versions.contains(m.version))
                versions << m.version;
        }
    fields({{tr("Strumento"), QStringLiteral("KRM 510")},
            {tr("Numero di serie"), orDash(serials.join(QStringLiteral(", ")))},
            {tr("Versione software"), orDash(versions.join(QStringLiteral(", ")))}},
           margin, width);

    subheading(tr("Rapporto"));
    QList<QPair<QString, QString>> report{
        {tr("Data del rapporto"), reportDate.toString(QStringLiteral("yyyy-MM-dd"))}};
    if (!inspector.isEmpty())
        report.append({tr("Ispettore"), inspector});
    report.append({tr("Misure nel rapporto"), QString::number(selection.measureCount())});
    report.append({tr("Misure lasciate fuori"), QString::number(selection.leftOut.size())});
    fields(report, margin, width);

    const ReportCompany& c = selection.company;
    if (c.present()) {
        subheading(tr("Ditta"));
        fields({{tr("Cognome / Ragione sociale"), orDash(c.surn)},
                {tr("Nome"), orDash(c.name)},
                {tr("Partita IVA"), orDash(c.nin)},
                {tr("Codice fiscale"), orDash(c.code)},
                {tr("Indirizzo"), orDash(c.street)},
                {tr("Città"), place(c.zip, c.city, c.prov)},
                {tr("Telefono"), orDash(c.phone)},
                {tr("Email"), orDash(c.email)}},
               margin, width);
    }
    for (const ReportInstallation& i : selection.installations) {
        if (i.file.isEmpty())
            continue;
        subheading(tr("Impianto %1").arg(i.id));
        fields({{tr("Indirizzo"), orDash(i.street)},
                {tr("Città"), place(i.zip, i.city, i.prov)},
                {tr("Numero di stringhe"), orDash(i.nstri)},
                {tr("Potenza"), orDash(i.npowe)},
                {tr("Misure"), QString::number(i.measures.size())}},
               margin, width);
    }
    if (!selection.leftOut.isEmpty()) {
        subheading(tr("Lasciate fuori"));
        const double bottom = page.height() - margin - 2 * lineHeight;
        for (int k = 0; k < selection.leftOut.size(); k++) {
            if (y > bottom) {
                line(tr("... e altre %1").arg(selection.leftOut.size() - k));
                break;
            }
            line(selection.leftOut[k].first + QStringLiteral(": ") + selection.leftOut[k].second);
        }
    }
}

// ---- One measure.

void PdfReport::measurePage(const ReportInstallation& installation, const ReportMeasure& m)
{
    newPage();
    footerText = installation.id;
    const _measure& r = m.record;
    const bool string = m.type == MEA_STRING;
    heading((string ? tr("Misura di stringa") : tr("Misura di modulo")) + QStringLiteral(" - ") +
            m.label());
    const double width = page.width() - 2 * margin;
    const double half = (width - 20) / 2;
    const double top = y;

    subheading(tr("Misura"));
    QList<QPair<QString, QString>> left{{tr("Data"), m.date},
                                        {tr("Ora"), m.time},
                                        {tr("Commento"), orDash(m.comment)},
                                        {tr("File"), m.file},
                                        {tr("Moduli in serie"), QString::number(r.mnpan)},
                                        {tr("Irraggiamento"), num(r.mirr, 0, "W/m²")},
                                        {tr("Temperatura"), num(r.mtemp, 1, "°C")},
                                        {tr("Temperatura rilevata da"), m.probeText()}};
    fields(left, margin, half);
    const double afterLeft = y;

    y = top;
    const double right = margin + half + 20;
    painter->setFont(font(11, true));
    painter->drawText(QRectF(right, y + 4, half, 16), Qt::AlignLeft | Qt::AlignVCenter,
                      tr("Modulo di riferimento"));
    y += 24;
    if (m.hasReference()) {
        const _panelFeature& f = r.ref;
        fields(
            {{tr("Marca"), orDash(m.brand)},
             {tr("Modello"), orDash(m.model)},
             {tr("Pmax nominale"), num(f.pmax, 2, "W")},
             {tr("Voc / Isc"), num(f.voc, 2, "V") + QStringLiteral(" / ") + num(f.isc, 2, "A")},
             {tr("Vmpp / Impp"), num(f.vmpp, 2, "V") + QStringLiteral(" / ") + num(f.impp, 2, "A")},
             {tr("NOCT"), num(f.noct, 1, "°C")},
             {tr("Tolleranza"), QStringLiteral("-") + num(std::fabs(f.tollm), 2, "%") +
                                    QStringLiteral(" / +") + num(std::fabs(f.tollp), 2, "%")},
             {tr("Coeff. Isc"), num(f.kisc, 4, "%/°C")},
             {tr("Coeff. Voc"), num(f.kvoc, 4, "%/°C")},
             {tr("Coeff. Pmax"), num(f.kpmax, 4, "%/°C")}},
            right, half);
    } else {
        line(QString());
        painter->setFont(font(bodySize, true));
        painter->drawText(QRectF(right, y - lineHeight, half, lineHeight),
                          Qt::AlignLeft | Qt::AlignVCenter, tr("nessun riferimento"));
    }
    y = std::max(y, afterLeft);

    // the figures, at operating and at standard conditions
    subheading(tr("Valori misurati"));
    const double c0 = margin, c1 = margin + 120, c2 = margin + 300;
    auto row = [&](const QString& label, const QString& opc, const QString& stc, bool bold) {
        painter->setFont(font(bodySize, bold));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(c0, y, 120, lineHeight), Qt::AlignLeft | Qt::AlignVCenter, label);
        painter->drawText(QRectF(c1, y, 170, lineHeight), Qt::AlignRight | Qt::AlignVCenter, opc);
        painter->drawText(QRectF(c2, y, 200, lineHeight), Qt::AlignRight | Qt::AlignVCenter, stc);
        y += lineHeight;
    };
    const bool ref = m.hasReference();
    auto stc = [&](double v, int d, const char* u) { return ref ? num(v, d, u) : QString("-"); };
    row(QString(), tr("Condizioni operative"), tr("Condizioni standard (STC)"), true);
    row(QStringLiteral("Isc"), num(r.misc, 2, "A"), stc(r.sisc, 2, "A"), false);
    row(QStringLiteral("Voc"), num(r.mvoc, 2, "V"), stc(r.svoc, 2, "V"), false);
    row(QStringLiteral("Impp"), num(r.mimpp, 2, "A"), stc(r.simpp, 2, "A"), false);
    row(QStringLiteral("Vmpp"), num(r.mvmpp, 2, "V"), stc(r.svmpp, 2, "V"), false);
    row(QStringLiteral("Pmax"), num(r.mpmax, 2, "W"), stc(r.spmax, 2, "W"), false);
    row(tr("Fattore di riempimento"), num(m.fillFactor(), 1, "%"), stc(m.fillFactorStc(), 1, "%"),
        false);
    y += 4;
    const double summaryWidth = width;
    if (ref) {
        fields({{tr("Scarto di Pmax dal nominale"), num(r.mdpmax, 2, "%")},
                {tr("Esito"), m.verdictText()},
                {tr("Fattore di prestazione"), num(m.performanceFactor(), 1, "%")}},
               margin, summaryWidth);
    } else {
        field(tr("Esito"), tr("nessun riferimento"), margin, summaryWidth);
    }
    if (m.hasRs())
        field(tr("Rs (V/I al punto di massima potenza della prima rampa)"),
              num(r.mrs, 3, "Ω") + QStringLiteral(" (") + num(r.mrsi1, 0, "W/m²") +
                  QStringLiteral(", ") + num(r.mrsi2, 0, "W/m²") + QLatin1Char(')'),
              margin, summaryWidth);

    // the curves
    QList<Curve> iv{{{}, measuredColor, tr("Condizioni operative")}};
    QList<Curve> pv{{{}, measuredColor, tr("Condizioni operative")}};
    if (ref) {
        iv.append({{}, stcColor, tr("STC")});
        pv.append({{}, stcColor, tr("STC")});
    }
    for (int k = 0; k < 512; k++) {
        const double v = r.ramp.tensione[k], i = r.ramp.corrente[k];
        iv[0].points << QPointF(v, i);
        pv[0].points << QPointF(v, v * i);
        if (ref) {
            const double sv = m.stcCurve.tensione[k], si = m.stcCurve.corrente[k];
            iv[1].points << QPointF(sv, si);
            pv[1].points << QPointF(sv, sv * si);
        }
    }
    y += 8;
    const double plotHeight = (page.height() - margin - 20 - y - 12) / 2;
    plot(QRectF(margin, y, width, plotHeight), tr("Curva I-V"), tr("Tensione (V)"),
         tr("Corrente (A)"), iv);
    plot(QRectF(margin, y + plotHeight + 12, width, plotHeight), tr("Curva P-V"),
         tr("Tensione (V)"), tr("Potenza (W)"), pv);
}

void PdfReport::plot(const QRectF& frame, const QString& title, const QString& xTitle,
                     const QString& yTitle, const QList<Curve>& curves)
{
    double xmax = 0, ymax = 0;
    for (const Curve& c : curves)
        for (const QPointF& p : c.points) {
            if (std::isfinite(p.x()))
                xmax = std::max(xmax, p.x());
            if (std::isfinite(p.y()))
                ymax = std::max(ymax, p.y());
        }
    const double xs = niceStep(xmax, 8), ys = niceStep(ymax, 5);
    xmax = std::max(xs, std::ceil(xmax / xs) * xs);
    ymax = std::max(ys, std::ceil(ymax * 1.05 / ys) * ys);
    const QRectF area(frame.left() + 48, frame.top() + 18, frame.width() - 60, frame.height() - 46);
    auto at = [&](double x, double yv) {
        return QPointF(area.left() + x / xmax * area.width(),
                       area.bottom() - yv / ymax * area.height());
    };
    painter->save();
    painter->setFont(font(10, true));
    painter->setPen(Qt::black);
    painter->drawText(QRectF(area.left(), frame.top(), area.width(), 16),
                      Qt::AlignLeft | Qt::AlignVCenter, title);
    painter->setFont(font(7.5));
    for (double x = 0; x <= xmax + xs / 2; x += xs) {
        painter->setPen(QPen(gridColor, 0.4));
        painter->drawLine(at(x, 0), at(x, ymax));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(at(x, 0).x() - 25, area.bottom() + 2, 50, 11), Qt::AlignCenter,
                          locale.toString(x, 'g', 6));
    }
    for (double v = 0; v <= ymax + ys / 2; v += ys) {
        painter->setPen(QPen(gridColor, 0.4));
        painter->drawLine(at(0, v), at(xmax, v));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(area.left() - 44, at(0, v).y() - 6, 40, 12),
                          Qt::AlignRight | Qt::AlignVCenter, locale.toString(v, 'g', 6));
    }
    painter->setPen(QPen(Qt::black, 0.8));
    painter->drawRect(area);
    painter->setFont(font(8));
    painter->drawText(QRectF(area.left(), area.bottom() + 13, area.width(), 12), Qt::AlignCenter,
                      xTitle);
    painter->save();
    painter->translate(frame.left() + 6, area.center().y());
    painter->rotate(-90);
    painter->drawText(QRectF(-area.height() / 2, -6, area.height(), 12), Qt::AlignCenter, yTitle);
    painter->restore();
    // the legend above the frame, at its right, where no curve runs
    double legendX = area.right();
    for (int k = int(curves.size()) - 1; k >= 0; k--) {
        const Curve& c = curves[k];
        const double w = QFontMetricsF(painter->font()).horizontalAdvance(c.name) + 24;
        legendX -= w;
        painter->setPen(QPen(c.color, 1.2));
        painter->drawLine(QPointF(legendX, area.top() - 8), QPointF(legendX + 14, area.top() - 8));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(legendX + 17, area.top() - 14, w - 17, 12),
                          Qt::AlignLeft | Qt::AlignVCenter, c.name);
    }
    painter->setClipRect(area);
    for (const Curve& c : curves) {
        QPolygonF line;
        for (const QPointF& p : c.points)
            if (std::isfinite(p.x()) && std::isfinite(p.y()))
                line << at(p.x(), p.y());
        painter->setPen(QPen(c.color, 1.2));
        painter->drawPolyline(line);
    }
    painter->restore();
}

// ---- The comparison of the strings.

void PdfReport::comparisonPage(const ReportInstallation& installation,
                               const StringComparison& comparison, int group)
{
    newPage();
    footerText = installation.id;
    const StringComparison::Group& g = comparison.groups[size_t(group)];
    heading(tr("Confronto delle stringhe"));
    // a chosen set of measures belongs to no installation
    const QString reference =
        tr("Modulo di riferimento") + QLatin1Char(' ') + g.brand + QLatin1Char(' ') + g.model;
    line(installation.id.isEmpty()
             ? reference
             : tr("Impianto %1").arg(installation.id) + QStringLiteral(" - ") + reference,
         true);
    line(tr("Valori a condizioni standard per modulo (Voc e Pmax divise per i moduli in serie; "
            "la corrente di una stringa in serie è quella di ogni suo modulo)."));
    line(tr("Scarto dalla mediana delle stringhe; oltre %1 è segnato con ◄.")
             .arg(num(StringComparison::markPercent, 0, "%")));
    y += 4;

    const double cols[] = {margin,       margin + 20,  margin + 175, margin + 232,
                           margin + 278, margin + 335, margin + 381, margin + 443};
    const double widths[] = {18, 150, 55, 44, 55, 44, 60, 44};
    auto cells = [&](const QStringList& texts, bool bold, const QList<bool>& marks) {
        for (int k = 0; k < texts.size(); k++) {
            const bool marked = k < marks.size() && marks[k];
            painter->setFont(font(8.5, bold || marked));
            painter->setPen(marked ? markColor : Qt::black);
            const QFontMetricsF metrics(painter->font());
            painter->drawText(QRectF(cols[k], y, widths[k], lineHeight),
                              (k == 1 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter,
                              metrics.elidedText(texts[k], Qt::ElideRight, widths[k]));
        }
        y += lineHeight;
    };
    cells({QStringLiteral("#"), tr("Stringa"), tr("Voc/modulo"), tr("scarto"), tr("Isc"),
           tr("scarto"), tr("Pmax/modulo"), tr("scarto")},
          true, {});
    auto dev = [&](const StringComparison::Row& r, int q) {
        QString t =
            (r.deviation[q] > 0 ? QStringLiteral("+") : QString()) + num(r.deviation[q], 1, "%");
        return r.marked[q] ? t + QStringLiteral(" ◄") : t;
    };
    for (size_t k = 0; k < g.rows.size(); k++) {
        const StringComparison::Row& r = g.rows[k];
        cells({QString::number(k + 1),
               r.measure->label() + QStringLiteral(" (%1 x)").arg(r.measure->record.mnpan),
               num(r.value[0], 2, "V"), dev(r, 0), num(r.value[1], 2, "A"), dev(r, 1),
               num(r.value[2], 1, "W"), dev(r, 2)},
              false, {false, false, false, r.marked[0], false, r.marked[1], false, r.marked[2]});
    }
    cells({QString(), tr("Mediana"), num(g.median[0], 2, "V"), QString(), num(g.median[1], 2, "A"),
           QString(), num(g.median[2], 1, "W"), QString()},
          true, {});

    y += 10;
    const double width = page.width() - 2 * margin;
    const double chartHeight = std::min(170.0, (page.height() - margin - 24 - y) / 3);
    bars(QRectF(margin, y, width, chartHeight - 6), tr("Voc per modulo"), g, 0);
    bars(QRectF(margin, y + chartHeight, width, chartHeight - 6), tr("Isc"), g, 1);
    bars(QRectF(margin, y + 2 * chartHeight, width, chartHeight - 6), tr("Pmax per modulo"), g, 2);
}

void PdfReport::bars(const QRectF& frame, const QString& title, const StringComparison::Group& g,
                     int quantity)
{
    const char* units[] = {"V", "A", "W"};
    double span = 2 * StringComparison::markPercent;
    for (const StringComparison::Row& r : g.rows)
        if (std::isfinite(r.deviation[quantity]))
            span = std::max(span, std::fabs(r.deviation[quantity]) * 1.3);
    const QRectF area(frame.left() + 48, frame.top() + 16, frame.width() - 60, frame.height() - 30);
    auto yAt = [&](double d) { return area.center().y() - d / span * area.height() / 2; };
    painter->save();
    painter->setFont(font(9.5, true));
    painter->setPen(Qt::black);
    painter->drawText(
        QRectF(frame.left(), frame.top(), frame.width(), 14), Qt::AlignCenter,
        title + QStringLiteral(" - ") +
            tr("scarto dalla mediana %1")
                .arg(num(g.median[quantity], quantity == 2 ? 1 : 2, units[quantity])));
    painter->setFont(font(7.5));
    const double step = niceStep(span, 3);
    for (double d = -std::floor(span / step) * step; d <= span + 1e-9; d += step) {
        painter->setPen(QPen(gridColor, 0.4));
        painter->drawLine(QPointF(area.left(), yAt(d)), QPointF(area.right(), yAt(d)));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(area.left() - 46, yAt(d) - 6, 42, 12),
                          Qt::AlignRight | Qt::AlignVCenter, num(d, 0, "%"));
    }
    painter->setPen(QPen(markColor, 0.6, Qt::DashLine));
    for (double d : {-StringComparison::markPercent, StringComparison::markPercent})
        painter->drawLine(QPointF(area.left(), yAt(d)), QPointF(area.right(), yAt(d)));
    painter->setPen(QPen(Qt::black, 0.8));
    painter->drawRect(area);
    painter->drawLine(QPointF(area.left(), yAt(0)), QPointF(area.right(), yAt(0)));
    const int n = int(g.rows.size());
    const double slot = area.width() / n;
    for (int k = 0; k < n; k++) {
        const StringComparison::Row& r = g.rows[size_t(k)];
        const double d = std::isfinite(r.deviation[quantity]) ? r.deviation[quantity] : 0;
        const double x = area.left() + k * slot + slot * 0.2;
        const QRectF bar = QRectF(QPointF(x, yAt(std::max(d, 0.0))),
                                  QPointF(x + slot * 0.6, yAt(std::min(d, 0.0))));
        painter->fillRect(bar, r.marked[quantity] ? markColor : QColor(60, 110, 180));
        painter->setPen(Qt::black);
        painter->drawText(QRectF(area.left() + k * slot, area.bottom() + 1, slot, 11),
                          Qt::AlignCenter, QString::number(k + 1));
        const double labelY = d >= 0 ? bar.top() - 11 : bar.bottom() + 1;
        painter->drawText(QRectF(area.left() + k * slot, labelY, slot, 10), Qt::AlignCenter,
                          num(r.value[quantity], quantity == 2 ? 1 : 2, units[quantity]));
    }
    painter->restore();
}

void PdfReport::apartPage(const ReportInstallation& installation,
                          const StringComparison& comparison)
{
    newPage();
    footerText = installation.id;
    heading(tr("Stringhe non confrontate"));
    line(tr("Impianto %1: stringhe senza modulo di riferimento o sole con il loro modello.")
             .arg(installation.id));
    y += 4;
    for (const ReportMeasure* m : comparison.apart) {
        const QString model =
            m->hasReference() ? m->brand + QLatin1Char(' ') + m->model : tr("nessun riferimento");
        line(m->label() + QStringLiteral(" - ") + model + QStringLiteral(" - Voc ") +
             num(m->record.mvoc, 2, "V") + QStringLiteral(", Isc ") + num(m->record.misc, 2, "A") +
             QStringLiteral(", Pmax ") + num(m->record.mpmax, 1, "W"));
    }
}
