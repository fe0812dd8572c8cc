#include "archive/archiveinstallation.h"

#include "archive/archiveform.h"
#include "archive/insertinstallation.h"
#include "archive/listinstallation.h"
#include "archive/selectinstallation.h"

#include <QGridLayout>
#include <QPushButton>

ArchiveInstallation::ArchiveInstallation(QWidget* parent)
    : FormDialog(parent, "ArchiveInstallation", tr("Archivio Installazioni"), 0)
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
    connect(_buttonNew, &QPushButton::clicked, this, &ArchiveInstallation::goToInsertInstallation);
    connect(_buttonEdit, &QPushButton::clicked, this, &ArchiveInstallation::goToSelectInstallation);
    connect(_buttonDelete, &QPushButton::clicked, this,
            &ArchiveInstallation::goToDeleteInstallation);
    connect(_buttonList, &QPushButton::clicked, this, &ArchiveInstallation::goToListInstallation);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {});
}

void ArchiveInstallation::goToInsertInstallation()
{
    InsertInstallation* screen = new InsertInstallation(this);
    screen->exec();
    delete screen;
}

void ArchiveInstallation::goToSelectInstallation()
{
    SelectInstallation* screen = new SelectInstallation(this, SELECT_EDIT);
    screen->exec();
    delete screen;
}

void ArchiveInstallation::goToDeleteInstallation()
{
    SelectInstallation* screen = new SelectInstallation(this, SELECT_DELETE);
    screen->exec();
    delete screen;
}

void ArchiveInstallation::goToListInstallation()
{
    ListInstallation* screen = new ListInstallation(this);
    screen->exec();
    delete screen;
}

QList<QWidget*> ArchiveInstallation::focusChain() const
{
    return {_buttonNew, _buttonEdit, _buttonDelete, _buttonList, _buttonExit};
}

void ArchiveInstallation::returnOn(QWidget* focused)
{
    if (focused == _buttonNew)
        goToInsertInstallation();
    else if (focused == _buttonEdit)
        goToSelectInstallation();
    else if (focused == _buttonDelete)
        goToDeleteInstallation();
    else if (focused == _buttonList)
        goToListInstallation();
    else if (focused == _buttonExit)
        reject();
}
