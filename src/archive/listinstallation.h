#ifndef KRM_ARCHIVE_LISTINSTALLATION_H
#define KRM_ARCHIVE_LISTINSTALLATION_H

#include "archive/recordlist.h"
#include "data/coredata.h"

// Every installation, id and city, sorted under a header row; "Apri" shows
// the installation of the row with its measures.
class ListInstallation : public RecordList
{
    Q_OBJECT
public:
    explicit ListInstallation(QWidget* parent);

    void readInstallationData();
    QString headerListInstallation() const;
    QString createItemForList(_installation* installation) const;

public slots:
    void goToViewInstallationForGraphView();
};

#endif
