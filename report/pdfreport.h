#ifndef KRM_REPORT_PDFREPORT_H
#define KRM_REPORT_PDFREPORT_H

#include "reportselection.h"
#include "stringcomparison.h"

#include <QColor>
#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QStringList>

class QPainter;
class QPdfWriter;

// The installer's test report as a PDF: a first page with the instrument, the
// report, the company and the installations; one page per measure with its
// figures and its curves; per installation a comparison of its strings.
// Everything is drawn with QPainter, so text and curves stay vector graphics.
class PdfReport
{
    Q_DECLARE_TR_FUNCTIONS(PdfReport)

public:
    PdfReport(const ReportSelection& selection, const QLocale& locale);

    QString inspector;
    QDate reportDate = QDate::currentDate();

    // false, with the reason in error, when the file can't be written.
    bool write(const QString& path, QString* error);

    // Pages the report will have.
    int pageCount() const;

private:
    struct Curve {
        QPolygonF points;
        QColor color;
        QString name;
    };

    void firstPage();
    void measurePage(const ReportInstallation& installation, const ReportMeasure& m);
    void comparisonPage(const ReportInstallation& installation, const StringComparison& comparison,
                        int group);
    void apartPage(const ReportInstallation& installation, const StringComparison& comparison);

    void newPage();
    void footer();
    void heading(const QString& text);
    void subheading(const QString& text);
    // A line of label and value at the cursor, in the column given.
    void field(const QString& label, const QString& value, double x, double width);
    void fields(const QList<QPair<QString, QString>>& rows, double x, double width);
    void line(const QString& text, bool bold = false);
    void plot(const QRectF& frame, const QString& title, const QString& xTitle,
              const QString& yTitle, const QList<Curve>& curves);
    void bars(const QRectF& frame, const QString& title, const StringComparison::Group& g,
              int quantity);

    QString num(double value, int decimals, const char* unit) const;
    bool hasComparison(const ReportInstallation& installation) const;

    const ReportSelection& selection;
    QLocale locale;
    QPainter* painter = nullptr;
    QPdfWriter* writer = nullptr;
    QRectF page;
    double y = 0;
    int pageNumber = 0;
    int pages = 0;
    QString footerText;
};

#endif
