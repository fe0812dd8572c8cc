#include "archive/archiveinstallation.h"

#include "archive/insertinstallation.h"
#include "archive/listinstallation.h"
#include "archive/selectinstallation.h"

ArchiveInstallation::ArchiveInstallation(QWidget* parent)
    : RecordMenu(parent, "ArchiveInstallation", tr("Archivio Installazioni"),
                 {tr("Nuova"), tr("Modifica"), tr("Cancella"), tr("Elenco"), tr("Exit")})
{
    setActions({[this] { goToInsertInstallation(); }, [this] { goToSelectInstallation(); },
                [this] { goToDeleteInstallation(); }, [this] { goToListInstallation(); }});
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
