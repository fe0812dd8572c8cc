#ifndef KRM_ARCHIVE_ARCHIVECOMPANY_H
#define KRM_ARCHIVE_ARCHIVECOMPANY_H

#include "archive/recordmenu.h"

// The menu of the company archive.
class ArchiveCompany : public RecordMenu
{
    Q_OBJECT
public:
    explicit ArchiveCompany(QWidget* parent);

public slots:
    void goToInsertCompany();
    void goToSelectCompany();
    void goToDeleteCompany();
    void goToListCompany();
};

#endif
