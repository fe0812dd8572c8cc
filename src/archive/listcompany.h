#ifndef KRM_ARCHIVE_LISTCOMPANY_H
#define KRM_ARCHIVE_LISTCOMPANY_H

#include "archive/recordlist.h"
#include "data/coredata.h"

// Every company, surname and code, sorted under a header row; "Apri" shows
// the company of the row.
class ListCompany : public RecordList
{
    Q_OBJECT
public:
    explicit ListCompany(QWidget* parent);

    void readCompanyData();
    QString headerListCompany() const;
    QString createItemForList(_company* company) const;

public slots:
    void goToViewCompany();
};

#endif
