#include "archive/listcompany.h"

#include "archive/viewcompany.h"
#include "data/datacompany.h"
#include "data/storedtext.h"
#include "toolkit/tabcolumns.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ListCompany::ListCompany(QWidget* parent)
    : FormDialog(parent, "ListCompany", tr("Lista Aziende"), 24)
{
    _list = new QListWidget;
    _list->setObjectName("list");
    new TabColumns(_list);
    _buttonOpen = formButton(":/icon/archiveList.png", tr("Apri"), "Apri");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");
    QVBoxLayout* form = new QVBoxLayout;
    form->addWidget(_list, 1);
    readCompanyData();
    connect(_buttonOpen, &QPushButton::clicked, this, &ListCompany::goToViewCompany);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonOpen, _buttonExit}, true);
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
    _list->clear();
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
    rows.sort();
    _list->addItem(headerListCompany());
    _list->addItems(rows);
}

void ListCompany::goToViewCompany()
{
    QListWidgetItem* item = _list->currentItem();
    if (item == nullptr || !_rowFile.contains(item->text()))
        return; // the header row opens nothing
    _company* c = readCompanyFromFile(_rowFile.value(item->text()).constData());
    if (c == nullptr)
        return;
    ViewCompany* screen = new ViewCompany(this, c);
    screen->exec();
    delete screen;
    freeCompany(c);
}

QList<QWidget*> ListCompany::focusChain() const
{
    return {_list, _buttonOpen, _buttonExit};
}

void ListCompany::returnOn(QWidget* focused)
{
    if (focused == _buttonOpen)
        goToViewCompany();
    else if (focused == _buttonExit)
        reject();
}
