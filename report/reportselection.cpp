#include "reportselection.h"

#include "data/datacompany.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "data/storedtext.h"
#include "platform/systemroot.h"

#include <QFileInfo>

namespace
{

QString text(const char* field)
{
    return field != nullptr ? storedText(field) : QString();
}

bool sameName(const QString& typed, const char* stored, const char* file)
{
    return typed.compare(text(stored), Qt::CaseInsensitive) == 0 ||
           typed.compare(text(file), Qt::CaseInsensitive) == 0;
}

bool measureExists(const QString& file, _meaType type)
{
    const std::string dir = SystemRoot::path(measureDir(type));
    return QFileInfo(QString::fromStdString(dir) + QLatin1Char('/') + file).isFile();
}

} // namespace

int ReportSelection::measureCount() const
{
    int count = 0;
    for (const ReportInstallation& i : installations)
        count += int(i.measures.size());
    return count;
}

bool ReportSelection::selectInstallation(const QString& name, QString* error)
{
    _listInstallation* list = readListInstallation(nullptr);
    QString found;
    for (_listInstallation* n = list; n != nullptr && found.isEmpty(); n = n->next)
        if (sameName(name, n->id, n->file))
            found = text(n->file);
    closeListInstallation(list);
    if (found.isEmpty()) {
        *error = tr("Impianto non trovato: %1").arg(name);
        return false;
    }
    // the company that lists it, when one does
    _listCompany* companies = readListCompany(nullptr);
    for (_listCompany* n = companies; n != nullptr && !company.present(); n = n->next) {
        _company* c = readCompanyFromFile(n->file);
        if (c == nullptr)
            continue;
        for (_listFileInstallation* i = c->headInst; i != nullptr; i = i->next)
            if (text(i->file) == found) {
                readCompany(text(n->file));
                break;
            }
        freeCompany(c);
    }
    closeListCompany(companies);
    _installation* record = readInstallationFromFile(found.toLocal8Bit().constData());
    if (record == nullptr) {
        *error = tr("Impianto illeggibile: %1").arg(found);
        return false;
    }
    readInstallation(found, record);
    freeInstallation(record);
    return true;
}

bool ReportSelection::selectCompany(const QString& name, QString* error)
{
    _listCompany* list = readListCompany(nullptr);
    QString found;
    for (_listCompany* n = list; n != nullptr && found.isEmpty(); n = n->next)
        if (sameName(name, n->surn, n->file))
            found = text(n->file);
    closeListCompany(list);
    if (found.isEmpty() || !readCompany(found)) {
        *error = tr("Ditta non trovata: %1").arg(name);
        return false;
    }
    for (const QString& file : company.installations) {
        _installation* record = readInstallationFromFile(file.toLocal8Bit().constData());
        if (record == nullptr) {
            leftOut.append({file, tr("impianto illeggibile")});
            continue;
        }
        readInstallation(file, record);
        freeInstallation(record);
    }
    return true;
}

bool ReportSelection::selectMeasures(const QStringList& files, QString* error)
{
    QList<QPair<QString, _meaType>> chosen;
    for (const QString& file : files) {
        const QString name = QFileInfo(file).fileName();
        bool any = false;
        for (_meaType type : {MEA_PANEL, MEA_STRING})
            if (measureExists(name, type)) {
                chosen.append({name, type});
                any = true;
            }
        if (!any)
            leftOut.append({name, tr("file non trovato")});
    }
    if (chosen.isEmpty()) {
        *error = tr("Nessuna misura trovata");
        return false;
    }
    installations.emplace_back();
    readMeasures(&installations.back(), chosen);
    return true;
}

bool ReportSelection::readCompany(const QString& file)
{
    _company* c = readCompanyFromFile(file.toLocal8Bit().constData());
    if (c == nullptr)
        return false;
    company.file = file;
    company.surn = text(c->surn);
    company.name = text(c->name);
    company.nin = text(c->nin);
    company.code = text(c->code);
    company.city = text(c->city);
    company.zip = text(c->zip);
    company.prov = text(c->prov);
    company.street = text(c->street);
    company.phone = text(c->phone);
    company.email = text(c->email);
    // the lists hold the file's lines in reverse
    for (_listFileInstallation* i = c->headInst; i != nullptr; i = i->next)
        company.installations.prepend(text(i->file));
    freeCompany(c);
    return true;
}

void ReportSelection::readInstallation(const QString& file, _installation* record)
{
    ReportInstallation target;
    target.file = file;
    target.id = text(record->id);
    target.city = text(record->city);
    target.zip = text(record->zip);
    target.prov = text(record->prov);
    target.street = text(record->street);
    target.nstri = text(record->nstri);
    target.npowe = text(record->npowe);
    QList<QPair<QString, _meaType>> files;
    for (_listFileMeaPanel* m = record->headMeaPanel; m != nullptr; m = m->next)
        files.prepend({text(m->file), MEA_PANEL});
    QList<QPair<QString, _meaType>> strings;
    for (_listFileMeaString* m = record->headMeaString; m != nullptr; m = m->next)
        strings.prepend({text(m->file), MEA_STRING});
    files += strings;
    installations.push_back(std::move(target));
    readMeasures(&installations.back(), files);
}

void ReportSelection::readMeasures(ReportInstallation* target,
                                   const QList<QPair<QString, _meaType>>& files)
{
    int done = 0;
    for (const auto& [file, type] : files) {
        if (progress)
            progress(++done, int(files.size()));
        ReportMeasure measure;
        QString reason;
        if (!measure.load(file, type, &reason)) {
            leftOut.append({file, reason});
            continue;
        }
        if ((from.isValid() && measure.day < from) || (to.isValid() && measure.day > to))
            continue;
        target->measures.push_back(std::move(measure));
    }
    std::stable_sort(target->measures.begin(), target->measures.end(),
                     [](const ReportMeasure& a, const ReportMeasure& b) {
                         if (a.type != b.type)
                             return a.type < b.type;
                         return a.date + a.time < b.date + b.time;
                     });
}
