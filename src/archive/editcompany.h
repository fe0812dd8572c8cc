#ifndef KRM_ARCHIVE_EDITCOMPANY_H
#define KRM_ARCHIVE_EDITCOMPANY_H

#include "archive/companyform.h"

// Changes a company chosen in SelectCompany. The file keeps its name, also
// when "Cognome" changes; it is rewritten through the careful update.
class EditCompany : public CompanyForm
{
    Q_OBJECT
public:
    EditCompany(QWidget* parent, _listCompany* node, _company* company);

    // id + " (" + strings + "/" + power + " )"
    static QString createStrForInstallCombo(const char* id, const char* nstri, const char* npowe);

public slots:
    void saveCompany() override;
    // Puts the company as it was given back into the form.
    void resetParameters() override;

private:
    _listCompany* _node;
    _company* _record;
};

#endif
