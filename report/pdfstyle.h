#ifndef KRM_REPORT_PDFSTYLE_H
#define KRM_REPORT_PDFSTYLE_H

#include <QColor>
#include <QFont>
#include <QString>

// The report's page: laid out in points (1/72 inch) on A4, its fonts and the
// colours of its curves.
namespace pdfstyle
{

constexpr int pointsPerInch = 72;
constexpr double margin = 42;
constexpr double bodySize = 9.5;
constexpr double lineHeight = 13;

inline const QColor measuredColor(200, 30, 30);
inline const QColor stcColor(20, 130, 40);
inline const QColor markColor(200, 30, 30);
inline const QColor gridColor(210, 210, 210);

inline QFont font(double size, bool bold = false)
{
    QFont f(QStringLiteral("Helvetica"));
    f.setPointSizeF(size);
    f.setBold(bold);
    return f;
}

} // namespace pdfstyle

#endif
