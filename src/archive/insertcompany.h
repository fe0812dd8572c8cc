#ifndef KRM_ARCHIVE_INSERTCOMPANY_H
#define KRM_ARCHIVE_INSERTCOMPANY_H

#include "archive/companyform.h"

// Enters a new company. The form keeps what it holds after a save.
class InsertCompany : public CompanyForm
{
    Q_OBJECT
public:
    explicit InsertCompany(QWidget* parent);

public slots:
    void saveCompany() override;
    void resetParameters() override;
};

#endif
