#include "archive/listinstallation.h"

#include "archive/viewinstallation.h"
#include "data/datainstallation.h"
#include "data/storedtext.h"

ListInstallation::ListInstallation(QWidget* parent)
    : RecordList(parent, "ListInstallation", tr("Lista Installazioni"), tr("Apri"), tr("Exit"))
{
    readInstallationData();
    showList([this] { goToViewInstallationForGraphView(); });
}

QString ListInstallation::headerListInstallation() const
{
    return tr("Id") + "\t" + tr("Città");
}

QString ListInstallation::createItemForList(_installation* installation) const
{
    return storedText(installation->id) + "\t" + storedText(installation->city);
}

void ListInstallation::readInstallationData()
{
    _rowFile.clear();
    _listInstallation* head = readListInstallation(this);
    QStringList rows;
    for (const _listInstallation* node = head; node != nullptr; node = node->next) {
        _installation* in = readInstallationFromFile(node->file);
        if (in == nullptr)
            continue;
        QString row = createItemForList(in);
        rows << row;
        _rowFile.insert(row, QByteArray(node->file));
        freeInstallation(in);
    }
    closeListInstallation(head);
    showRows(headerListInstallation(), rows);
}

void ListInstallation::goToViewInstallationForGraphView()
{
    ViewInstallation::openFile(this, currentFile()); // the header row opens nothing
}
