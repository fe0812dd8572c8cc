#ifndef KRM_REPORT_REPORTSELECTION_H
#define KRM_REPORT_REPORTSELECTION_H

#include "reportmeasure.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

struct _company;
struct _installation;

// The company the report is for, as its file holds it.
struct ReportCompany {
    QString file;
    QString surn, name, nin, code, city, zip, prov, street, phone, email;
    QStringList installations; // file names
    bool present() const { return !file.isEmpty(); }
};

// One installation and the measures of it that the report holds.
struct ReportInstallation {
    QString file;
    QString id, city, zip, prov, street, nstri, npowe;
    std::vector<ReportMeasure> measures;
};

// What a report holds, gathered from the data folder through the instrument's
// readers: an installation with its company, all installations of a company,
// or a chosen set of measures; within the dates asked for. Files that can't
// be read are left out and named.
class ReportSelection
{
    Q_DECLARE_TR_FUNCTIONS(ReportSelection)

public:
    // Called before each measure file is read, with its number and the count.
    std::function<void(int done, int total)> progress;
    QDate from; // invalid: no bound
    QDate to;

    // Each false with the reason in error when the name matches nothing.
    bool selectInstallation(const QString& name, QString* error);
    bool selectCompany(const QString& name, QString* error);
    // File names of the module and string measure directories.
    bool selectMeasures(const QStringList& files, QString* error);

    ReportCompany company;
    std::vector<ReportInstallation> installations;
    // Left out: file name and reason.
    QList<QPair<QString, QString>> leftOut;

    int measureCount() const;

private:
    bool readCompany(const QString& file);
    void readInstallation(const QString& file, _installation* record);
    void readMeasures(ReportInstallation* target, const QList<QPair<QString, _meaType>>& files);
};

#endif
