#include "archive/archivecompany.h"

#include "archive/insertcompany.h"
#include "archive/listcompany.h"
#include "archive/selectcompany.h"

ArchiveCompany::ArchiveCompany(QWidget* parent)
    : RecordMenu(parent, "ArchiveCompany", tr("Archivio Aziende"),
                 {tr("Nuova"), tr("Modifica"), tr("Cancella"), tr("Elenco"), tr("Exit")})
{
    setActions({[this] { goToInsertCompany(); }, [this] { goToSelectCompany(); },
                [this] { goToDeleteCompany(); }, [this] { goToListCompany(); }});
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
