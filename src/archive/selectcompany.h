#ifndef KRM_ARCHIVE_SELECTCOMPANY_H
#define KRM_ARCHIVE_SELECTCOMPANY_H

#include "archive/formdialog.h"
#include "data/coredata.h"

class QComboBox;
class QListWidget;

// Chooses a company in a combo and shows its fields, to edit it, to delete it
// or to add installations to it, by the mode.
class SelectCompany : public FormDialog
{
    Q_OBJECT
public:
    SelectCompany(QWidget* parent, _selectType mode);
    ~SelectCompany() override;

public slots:
    void insertCompanyCombo();
    void selectCompanyInCombo();
    void goToEditCompany();
    void goToDeleteCompany();
    void goToAddInstallationOnCompany();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    // Reads the list again and shows the first company.
    void reloadCompanies();

    _selectType _mode;
    _listCompany* _companyHead;
    QComboBox* _comboCompany;
    QListWidget* _listFields;
    QPushButton* _buttonAction;
    QPushButton* _buttonExit;
};

#endif
