// The report's second opinion on a measure, beside the instrument's own
// figures: the IEC 60891 translations, what the curve's shape says and how
// sure the verdict is; and the appendix that explains the thresholds.

#include "curvediagnosis.h"
#include "iec60891.h"
#include "pdfreport.h"
#include "pdfstyle.h"
#include "reportthresholds.h"
#include "verdictband.h"

#include <QPainter>
#include <cmath>

using namespace pdfstyle;

namespace
{
const QColor procedure1Color(30, 80, 200);
const QColor procedure2Color(230, 140, 20);
} // namespace

void PdfReport::analysisPage(const ReportInstallation& installation, const ReportMeasure& m)
{
    newPage();
    footerText = installation.id;
    const _measure& r = m.record;
    const double width = page.width() - 2 * margin;
    heading(tr("Seconda lettura della curva") + QStringLiteral(" - ") + m.label());

    // IEC 60891
    subheading(tr("Traslazione secondo IEC 60891 (edizione 2, 2009), procedure 1 e 2"));
    const Iec60891 iec(r);
    if (!m.hasReference() || !iec.valid()) {
        line(tr("Senza modulo di riferimento la curva non è traslata secondo IEC 60891 e non è "
                "confrontata con la scheda del modulo; si cercano solo i gradini."));
    } else {
        const double c0 = margin, w0 = 110, wc = (width - w0) / 3;
        auto row = [&](const QString& label, const QStringList& cells, bool bold) {
            painter->setFont(font(bodySize, bold));
            painter->setPen(Qt::black);
            painter->drawText(QRectF(c0, y, w0, lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                              label);
            for (int k = 0; k < cells.size(); k++)
                painter->drawText(QRectF(c0 + w0 + k * wc, y, wc - 6, lineHeight),
                                  Qt::AlignRight | Qt::AlignVCenter, cells[k]);
            y += lineHeight;
        };
        auto versus = [&](double value, double instrument, int decimals, const char* unit) {
            const double d = instrument != 0 ? (value / instrument - 1.0) * 100.0 : NAN;
            return num(value, decimals, unit) + QStringLiteral(" (") +
                   (d >= 0 ? QStringLiteral("+") : QString()) + num(d, 1, "%") + QLatin1Char(')');
        };
        row(QString(), {tr("Strumento"), tr("Procedura 1"), tr("Procedura 2")}, true);
        row(QStringLiteral("Pmax"),
            {num(r.spmax, 2, "W"), versus(iec.procedure1.pmax, r.spmax, 2, "W"),
             versus(iec.procedure2.pmax, r.spmax, 2, "W")},
            false);
        row(QStringLiteral("Voc"),
            {num(r.svoc, 2, "V"), versus(iec.procedure1.voc, r.svoc, 2, "V"),
             versus(iec.procedure2.voc, r.svoc, 2, "V")},
            false);
        row(QStringLiteral("Isc"),
            {num(r.sisc, 2, "A"), versus(iec.procedure1.isc, r.sisc, 2, "A"),
             versus(iec.procedure2.isc, r.sisc, 2, "A")},
            false);
        y += 4;
        const QString perModule =
            r.mnpan > 1 ? tr(", per modulo per %1 moduli").arg(r.mnpan) : QString();
        fields(
            {{tr("alfa: dalla scheda, Coeff. Isc per Isc"), num(iec.alpha, 5, "A/°C")},
             {tr("beta: dalla scheda, Coeff. Voc per Voc") + perModule, num(iec.beta, 4, "V/°C")},
             {iec.rsFitted ? tr("Rs: adattata ai punti misurati (equazione a un diodo)")
                           : tr("Rs: dalla scheda (adattamento non riuscito)"),
              num(iec.rs, 3, "Ω")},
             {tr("kappa: predefinito, %1 Ω/°C per modulo")
                      .arg(locale.toString(thresholds::kappaPerModule, 'f', 4)) +
                  perModule,
              num(iec.kappa, 4, "Ω/°C")},
             {tr("a (procedura 2)"), locale.toString(thresholds::procedure2A, 'f', 2)}},
            margin, width);
        line(tr("La Rs dello strumento (V/I al punto di massima potenza) non è una resistenza "
                "serie e non è usata."));
    }

    // the curve's shape
    subheading(tr("Forma della curva"));
    const CurveDiagnosis d(r, substrings);
    for (const Finding& f : d.findings) {
        QString text;
        switch (f.kind) {
        case Finding::Step:
            text = tr("Gradino a %1 di Isc a %2: diodi di bypass in conduzione (ombreggiamento "
                      "parziale, moduli disaccoppiati, una cella danneggiata).")
                       .arg(num(f.measured * 100.0, 0, "%"), num(f.voltage, 1, "V"));
            break;
        case Finding::VocDeficit:
            text = tr("Voc inferiore di %1 a quella attesa dalla scheda (%2): circa %3 "
                      "sottostringhe, un diodo di bypass in corto.")
                       .arg(num(f.voltage, 1, "V"), num(f.expected, 1, "V"),
                            locale.toString(f.measured, 'f', 2));
            break;
        case Finding::LowCurrent:
            text = tr("Corrente bassa con forma normale: Isc al %1 di quella attesa (%2). "
                      "Sporcizia, degrado, irraggiamento errato o una sottostringa ombreggiata "
                      "dietro un diodo di bypass aperto: la curva da sola non li distingue.")
                       .arg(num(f.measured * 100.0, 0, "%"), num(f.expected, 2, "A"));
            break;
        case Finding::SteepIscSlope:
            text = tr("Pendenza ripida vicino a Isc: %1 contro %2 della curva della scheda "
                      "(normalizzata): resistenza di shunt bassa, circa %3 per modulo.")
                       .arg(locale.toString(f.measured, 'f', 3),
                            locale.toString(f.expected, 'f', 3), num(f.ohmPerModule, 1, "Ω"));
            break;
        case Finding::ShallowVocSlope:
            text = tr("Pendenza debole vicino a Voc: %1 contro %2 della curva della scheda "
                      "(normalizzata): resistenza serie alta (cavi, connettori), circa %3 in più "
                      "per modulo.")
                       .arg(locale.toString(f.measured, 'f', 3),
                            locale.toString(f.expected, 'f', 3), num(f.ohmPerModule, 2, "Ω"));
            break;
        case Finding::LowFillFactor:
            text = tr("Fattore di riempimento basso: %1 contro %2 della curva della scheda, senza "
                      "altra spiegazione.")
                       .arg(num(f.measured, 1, "%"), num(f.expected, 1, "%"));
            break;
        }
        line(QStringLiteral("• ") + text);
    }
    if (d.healthy())
        line(tr("Nessun rilievo: la curva ha la forma attesa."));
    if (!d.reference)
        line(tr("Senza modulo di riferimento sono cercati solo i gradini."));
    else if (!d.vocJudged)
        line(tr("Temperatura ricavata da Voc: la Voc non è valutata."));

    // the band on the verdict
    const VerdictBand band(r);
    if (band.valid()) {
        subheading(tr("Incertezza dell'esito"));
        fields(
            {{tr("Banda U (irraggiamento %1, temperatura %2, traslazione %3)")
                  .arg(num(band.irradiancePart, 1, "%"), num(band.temperaturePart, 2, "%"),
                       num(band.translationPart, 1, "%")),
              num(band.band, 2, "%")},
             {tr("Scarto di Pmax e limiti"),
              num(band.deviation, 2, "%") + QStringLiteral(" (") + num(band.lowerLimit, 2, "%") +
                  QStringLiteral(" / +") + num(band.upperLimit, 2, "%") + QLatin1Char(')')},
             {tr("Esito dello strumento"), m.verdictText()},
             {tr("Esito con la banda"), band.inconclusive ? tr("inconclusivo") : m.verdictText()}},
            margin, width);
    }

    // the translated curves side by side
    if (m.hasReference() && iec.valid()) {
        QList<Curve> iv{{{}, stcColor, tr("Strumento")},
                        {{}, procedure1Color, tr("Procedura 1")},
                        {{}, procedure2Color, tr("Procedura 2")}};
        for (int k = 0; k < 512; k++)
            iv[0].points << QPointF(m.stcCurve.tensione[k], m.stcCurve.corrente[k]);
        for (const CurvePoint& p : iec.curve1)
            iv[1].points << QPointF(p.v, p.i);
        iv[1].points << QPointF(iec.procedure1.voc, 0.0); // carried beyond the measured Voc
        for (const CurvePoint& p : iec.curve2)
            iv[2].points << QPointF(p.v, p.i);
        y += 8;
        const double height = page.height() - margin - 20 - y;
        if (height > 120)
            plot(QRectF(margin, y, width, height), tr("Curva I-V a STC"), tr("Tensione (V)"),
                 tr("Corrente (A)"), iv);
    }
}

void PdfReport::appendixPage()
{
    footerText.clear();
    newPage();
    heading(tr("Appendice: come legge la curva il rapporto"));
    using namespace thresholds;
    auto pct = [&](double share) { return num(share * 100.0, 0, "%"); };
    subheading(tr("Traslazione IEC 60891"));
    line(tr("Procedura 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - "
            "kappa I2 (T2 - T1) + beta (T2 - T1). Procedura 2 (edizione 2009): I2 = I1 (1 + "
            "alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs "
            "(I2 - I1) - kappa I2 (T2 - T1), con a = %1. Verso 1000 W/m² e 25 °C.")
             .arg(locale.toString(procedure2A, 'f', 2)));
    line(tr("alfa e beta vengono dai coefficienti della scheda; kappa è %1 Ω/°C per modulo. Rs è "
            "adattata ai punti misurati tra %2 e %3 di Isc con l'equazione a un diodo V = Voc + a "
            "ln(1 - I/Isc) - Rs I (minimi quadrati). Per una stringa Rs, kappa e beta sono quelli "
            "di un modulo per il numero di moduli. La Voc della procedura 1 prolunga la curva "
            "oltre la Voc misurata con la stessa equazione.")
             .arg(locale.toString(kappaPerModule, 'f', 4), pct(rsFitLowCurrent),
                  pct(rsFitHighCurrent)));
    subheading(tr("Forma della curva"));
    line(tr("Si usano i punti misurati dalla scheda (posizioni 0, 2, ..., 254 del file). Le "
            "pendenze sono normalizzate: A/V per Voc/Isc. La curva della scheda è l'equazione a "
            "un diodo ricavata da Isc, Voc, Impp e Vmpp del modulo, alla temperatura misurata e "
            "all'irraggiamento che dà la Isc misurata."));
    line(tr("Gradino: un tratto piatto (pendenza sotto %1, lungo almeno %2 di Voc) almeno %3 di "
            "Isc sotto il precedente.")
             .arg(locale.toString(plateauSlope, 'f', 1), pct(plateauMinLength), pct(stepMinDrop)));
    line(tr("Diodo di bypass in corto: Voc sotto l'attesa di almeno %1 sottostringhe e a meno di "
            "%2 da un numero intero; una sottostringa è 1/%3 della Voc del modulo (--substrings "
            "N); solo con temperatura misurata o inserita.")
             .arg(locale.toString(vocDeficitMinSubstrings, 'f', 1),
                  locale.toString(vocDeficitWholeTolerance, 'f', 1))
             .arg(substrings));
    line(tr("Corrente bassa: Isc sotto %1 di quella attesa, senza gradini.")
             .arg(pct(lowCurrentRatio)));
    line(tr("Shunt basso: pendenza fino a %1 di Voc più ripida di %2 di quella della scheda.")
             .arg(pct(iscSlopeRegion), locale.toString(iscSlopeExcess, 'f', 2)));
    line(tr("Resistenza serie alta: resistenza sotto %1 di Isc più alta di %2 (normalizzata) di "
            "quella della scheda; non valutata quando ci sono gradini.")
             .arg(pct(vocSlopeRegion), locale.toString(vocResistanceExcess, 'f', 2)));
    line(tr("Fattore di riempimento basso: %1 punti sotto quello della scheda, solo se nessun "
            "altro rilievo lo spiega.")
             .arg(locale.toString(fillFactorDeficit, 'f', 0)));
    subheading(tr("Incertezza dell'esito"));
    line(tr("U è la radice della somma dei quadrati di: irraggiamento %1 (classe del sensore), "
            "temperatura %2 °C per il coefficiente di potenza del modulo, traslazione %3. Uno "
            "scarto entro U da uno dei limiti di tolleranza (dopo la quota di invecchiamento) è "
            "inconclusivo.")
             .arg(num(irradianceUncertainty, 0, "%"),
                  locale.toString(temperatureUncertainty, 'f', 0),
                  num(translationUncertainty, 0, "%")));
}
