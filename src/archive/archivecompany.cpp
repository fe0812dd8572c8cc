#include "archive/archivecompany.h"

#include "archive/archiveform.h"
#include "archive/insertcompany.h"
#include "archive/listcompany.h"
#include "archive/selectcompany.h"

#include <QGridLayout>
#include <QPushButton>

ArchiveCompany::ArchiveCompany(QWidget* parent)
    : FormDialog(parent, "ArchiveCompany", tr("Archivio Aziende"), 0)
{
    _buttonNew = archiveMenuButton(":/icon/insertnew.png", tr("Nuova"), "Nuova");
    _buttonEdit = archiveMenuButton(":/icon/editpanel.png", tr("Modifica"), "Modifica");
    _buttonDelete = archiveMenuButton(":/icon/cancel.png", tr("Cancella"), "Cancella");
    _buttonList = archiveMenuButton(":/icon/archiveList.png", tr("Elenco"), "Elenco");
    _buttonExit = archiveMenuButton(":/icon/exit.png", tr("Exit"), "Exit");
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(_buttonNew, 0, 0);
    grid->addWidget(_buttonEdit, 0, 1);
    grid->addWidget(_buttonDelete, 1, 0);
    grid->addWidget(_buttonList, 1, 1);
    grid->addWidget(_buttonExit, 2, 1);
    connect(_buttonNew, &QPushButton::clicked, this, &ArchiveCompany::goToInsertCompany);
    connect(_buttonEdit, &QPushButton::clicked, this, &ArchiveCompany::goToSelectCompany);
    connect(_buttonDelete, &QPushButton::clicked, this, &ArchiveCompany::goToDeleteCompany);
    connect(_buttonList, &QPushButton::clicked, this, &ArchiveCompany::goToListCompany);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {});
}

void ArchiveCompany::goToInsertCompany()
{
    InsertCompany* screen = new InsertCompany(this);
    screen->exec();
    delete screen;
}

void ArchiveCompany::goToSelectCompany()
{
    SelectCompany* screen = new SelectCompany(this, SELECT_EDIT);
    screen->exec();
    delete screen;
}

void ArchiveCompany::goToDeleteCompany()
{
    SelectCompany* screen = new SelectCompany(this, SELECT_DELETE);
    screen->exec();
    delete screen;
}

void ArchiveCompany::goToListCompany()
{
    ListCompany* screen = new ListCompany(this);
    screen->exec();
    delete screen;
}

QList<QWidget*> ArchiveCompany::focusChain() const
{
    return {_buttonNew, _buttonEdit, _buttonDelete, _buttonList, _buttonExit};
}

void ArchiveCompany::returnOn(QWidget* focused)
{
    if (focused == _buttonNew)
        goToInsertCompany();
    else if (focused == _buttonEdit)
        goToSelectCompany();
    else if (focused == _buttonDelete)
        goToDeleteCompany();
    else if (focused == _buttonList)
        goToListCompany();
    else if (focused == _buttonExit)
        reject();
}
