#include "archive/listcompany.h"

#include "archive/viewcompany.h"
#include "data/datacompany.h"
#include "data/storedtext.h"

ListCompany::ListCompany(QWidget* parent)
    : RecordList(parent, "ListCompany", tr("Lista Aziende"), tr("Apri"), tr("Exit"))
{
    readCompanyData();
    showList([this] { goToViewCompany(); });
}

QString ListCompany::headerListCompany() const
{
    return tr("Cogn./Denom.") + "\t" + tr("Cod.");
}

QString ListCompany::createItemForList(_company* company) const
{
    return storedText(company->surn) + "\t" + storedText(company->code);
}

void ListCompany::readCompanyData()
{
    _rowFile.clear();
    _listCompany* head = readListCompany(this);
    QStringList rows;
    for (const _listCompany* node = head; node != nullptr; node = node->next) {
        _company* c = readCompanyFromFile(node->file);
        if (c == nullptr)
            continue;
        QString row = createItemForList(c);
        rows << row;
        _rowFile.insert(row, QByteArray(node->file));
        freeCompany(c);
    }
    closeListCompany(head);
    showRows(headerListCompany(), rows);
}

void ListCompany::goToViewCompany()
{
    const QByteArray file = currentFile();
    if (file.isEmpty())
        return; // the header row opens nothing
    _company* c = readCompanyFromFile(file.constData());
    if (c == nullptr)
        return;
    ViewCompany* screen = new ViewCompany(this, c);
    screen->exec();
    delete screen;
    freeCompany(c);
}
