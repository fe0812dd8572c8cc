#include "archive/viewcompany.h"

#include "archive/viewinstallation.h"
#include "data/datainstallation.h"
#include "data/storedtext.h"
#include "toolkit/tabcolumns.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ViewCompany::ViewCompany(QWidget* parent, _company* company)
    : FormDialog(parent, "ViewCompany", tr("Visualizza Azienda"), 20), _record(company)
{
    const QString label[] = {tr("Cognome \\ Denominazione"),
                             tr("Nome"),
                             tr("Cod. Fisc."),
                             tr("Cod."),
                             tr("Città"),
                             tr("CAP"),
                             tr("Prov."),
                             tr("Via"),
                             tr("Tel."),
                             tr("E-mail")};
    const char* value[] = {company->surn,  company->name, company->nin,  company->code,
                           company->city,  company->zip,  company->prov, company->street,
                           company->phone, company->email};
    QGridLayout* fields = new QGridLayout;
    for (int i = 0; i < 10; i++) {
        QLabel* l = new QLabel(label[i] + " : " + storedText(value[i]));
        l->setObjectName(QString("field%1").arg(i));
        fields->addWidget(l, i % 5, i / 5);
    }
    _listInstallation = new QListWidget;
    _listInstallation->setObjectName("installations");
    new TabColumns(_listInstallation);
    _buttonView = formButton(":/icon/archiveList.png", tr("Visualizza"), "Visualizza");
    _buttonView->setEnabled(false);
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");
    QVBoxLayout* form = new QVBoxLayout;
    form->addLayout(fields);
    form->addWidget(_listInstallation, 1);
    addInstallationOnList();
    connect(_listInstallation, &QListWidget::itemPressed, this, &ViewCompany::goToEnableView);
    connect(_buttonView, &QPushButton::clicked, this, &ViewCompany::goToViewInstallation);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonView, _buttonExit}, true);
}

QString ViewCompany::headerListInstallation() const
{
    return tr("Id") + "\t" + tr("Città");
}

QString ViewCompany::createItemForList(_installation* installation) const
{
    return storedText(installation->id) + "\t" + storedText(installation->city);
}

void ViewCompany::addInstallationOnList()
{
    _listInstallation->addItem(headerListInstallation());
    for (const _listFileInstallation* i = _record->headInst; i != nullptr; i = i->next) {
        _installation* in = readInstallationFromFile(i->file);
        if (in == nullptr)
            continue; // an installation whose file has gone
        QString row = createItemForList(in);
        _rowFile.insert(row, QByteArray(i->file));
        _listInstallation->addItem(row);
        freeInstallation(in);
    }
}

void ViewCompany::goToEnableView()
{
    _buttonView->setEnabled(true);
}

// The installation of the touched row; the header row opens nothing.
void ViewCompany::goToViewInstallation()
{
    const QListWidgetItem* item = _listInstallation->currentItem();
    if (item != nullptr)
        ViewInstallation::openFile(this, _rowFile.value(item->text()));
}

QList<QWidget*> ViewCompany::focusChain() const
{
    return {_listInstallation, _buttonView, _buttonExit};
}

void ViewCompany::returnOn(QWidget* focused)
{
    if (focused == _listInstallation)
        goToEnableView();
    else if (focused == _buttonView && _buttonView->isEnabled())
        goToViewInstallation();
    else if (focused == _buttonExit)
        reject();
}
