#include "archive/listinstallation.h"

#include "archive/viewinstallation.h"
#include "data/datainstallation.h"
#include "data/storedtext.h"
#include "toolkit/tabcolumns.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ListInstallation::ListInstallation(QWidget* parent)
    : FormDialog(parent, "ListInstallation", tr("Lista Installazioni"), 24)
{
    _list = new QListWidget;
    _list->setObjectName("list");
    new TabColumns(_list);
    _buttonOpen = formButton(":/icon/archiveList.png", tr("Apri"), "Apri");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");
    QVBoxLayout* form = new QVBoxLayout;
    form->addWidget(_list, 1);
    readInstallationData();
    connect(_buttonOpen, &QPushButton::clicked, this,
            &ListInstallation::goToViewInstallationForGraphView);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonOpen, _buttonExit}, true);
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
    _list->clear();
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
    rows.sort();
    _list->addItem(headerListInstallation());
    _list->addItems(rows);
}

void ListInstallation::goToViewInstallationForGraphView()
{
    QListWidgetItem* item = _list->currentItem();
    if (item == nullptr || !_rowFile.contains(item->text()))
        return; // the header row opens nothing
    _installation* in = readInstallationFromFile(_rowFile.value(item->text()).constData());
    if (in == nullptr)
        return;
    ViewInstallation* screen = new ViewInstallation(this, in);
    screen->exec();
    delete screen;
    freeInstallation(in);
}

QList<QWidget*> ListInstallation::focusChain() const
{
    return {_list, _buttonOpen, _buttonExit};
}

void ListInstallation::returnOn(QWidget* focused)
{
    if (focused == _buttonOpen)
        goToViewInstallationForGraphView();
    else if (focused == _buttonExit)
        reject();
}
