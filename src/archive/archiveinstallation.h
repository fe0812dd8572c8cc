#ifndef KRM_ARCHIVE_ARCHIVEINSTALLATION_H
#define KRM_ARCHIVE_ARCHIVEINSTALLATION_H

#include "archive/recordmenu.h"

// The menu of the installation archive.
class ArchiveInstallation : public RecordMenu
{
    Q_OBJECT
public:
    explicit ArchiveInstallation(QWidget* parent);

public slots:
    void goToInsertInstallation();
    void goToSelectInstallation();
    void goToDeleteInstallation();
    void goToListInstallation();
};

#endif
