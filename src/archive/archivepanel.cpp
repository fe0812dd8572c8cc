#include "archive/archivepanel.h"

#include "archive/archiveform.h"
#include "archive/deletepanel.h"
#include "archive/editbrand.h"
#include "archive/editpanel.h"
#include "archive/findpanel.h"
#include "archive/listpanel.h"
#include "archive/newpanel.h"
#include "data/datapanel.h"
#include "toolkit/infobar.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

ArchivePanel::ArchivePanel(QWidget* parent)
    : FormDialog(parent, "ArchivePanel", tr("Archivio Moduli"), 0)
{

    _buttonNew = archiveMenuButton(":/icon/insertnew.png", tr("Nuovo Modulo"), "Nuovo Modulo");
    _buttonEdit =
        archiveMenuButton(":/icon/editpanel.png", tr("Modifica Modulo"), "Modifica Modulo");
    _buttonEditBrand =
        archiveMenuButton(":/icon/editpanel.png", tr("Modifica Marca"), "Modifica Marca");
    _buttonDelete = archiveMenuButton(":/icon/cancel.png", tr("Cancella"), "Cancella");
    _buttonFind = archiveMenuButton(":/icon/find-panel.png", tr("Trova"), "Trova");
    _buttonList = archiveMenuButton(":/icon/archiveList.png", tr("Elenco"), "Elenco");
    _buttonExit = archiveMenuButton(":/icon/exit.png", tr("Exit"), "Exit");

    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(_buttonNew, 0, 0);
    grid->addWidget(_buttonEdit, 0, 1);
    grid->addWidget(_buttonEditBrand, 1, 0);
    grid->addWidget(_buttonDelete, 1, 1);
    grid->addWidget(_buttonFind, 2, 0);
    grid->addWidget(_buttonList, 2, 1);
    grid->addWidget(_buttonExit, 3, 1);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();

    connect(_buttonNew, &QPushButton::clicked, this, &ArchivePanel::goToNewPanel);
    connect(_buttonEdit, &QPushButton::clicked, this, &ArchivePanel::goToEditPanel);
    connect(_buttonEditBrand, &QPushButton::clicked, this, &ArchivePanel::goToEditBrand);
    connect(_buttonDelete, &QPushButton::clicked, this, &ArchivePanel::goToDeletePanel);
    connect(_buttonFind, &QPushButton::clicked, this, &ArchivePanel::goToFindPanel);
    connect(_buttonList, &QPushButton::clicked, this, &ArchivePanel::goToListPanel);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

void ArchivePanel::goToNewPanel()
{
    _listBrand* brands = readListBrandPanel(this);
    NewPanel* screen = new NewPanel(this, brands);
    screen->exec();
    brands = screen->_brandHead;
    delete screen;
    closeListBrandPanel(brands);
}

void ArchivePanel::goToEditPanel()
{
    _listBrand* brands = readListBrandPanel(this);
    EditPanel* screen = new EditPanel(this, brands);
    screen->exec();
    delete screen;
    closeListBrandPanel(brands);
}

void ArchivePanel::goToEditBrand()
{
    _listBrand* brands = readListBrandPanel(this);
    EditBrand* screen = new EditBrand(this, brands);
    screen->exec();
    // the screen replaces the list after each change
    brands = screen->_brandHead;
    delete screen;
    closeListBrandPanel(brands);
}

void ArchivePanel::goToDeletePanel()
{
    _listBrand* brands = readListBrandPanel(this);
    DeletePanel* screen = new DeletePanel(this, brands);
    screen->exec();
    brands = screen->_brandHead;
    delete screen;
    closeListBrandPanel(brands);
}

void ArchivePanel::goToFindPanel()
{
    _listBrand* brands = readListBrandPanel(this);
    FindPanel* screen = new FindPanel(this, brands);
    screen->exec();
    delete screen;
    closeListBrandPanel(brands);
}

void ArchivePanel::goToListPanel()
{
    _listBrand* brands = readListBrandPanel(this);
    ListPanel* screen = new ListPanel(this, brands);
    screen->exec();
    delete screen;
    closeListBrandPanel(brands);
}

QList<QWidget*> ArchivePanel::focusChain() const
{
    return {_buttonNew,  _buttonEdit, _buttonEditBrand, _buttonDelete,
            _buttonFind, _buttonList, _buttonExit};
}

void ArchivePanel::returnOn(QWidget* focused)
{
    if (focused == _buttonNew)
        goToNewPanel();
    else if (focused == _buttonEdit)
        goToEditPanel();
    else if (focused == _buttonEditBrand)
        goToEditBrand();
    else if (focused == _buttonDelete)
        goToDeletePanel();
    else if (focused == _buttonFind)
        goToFindPanel();
    else if (focused == _buttonList)
        goToListPanel();
    else if (focused == _buttonExit)
        reject();
}
