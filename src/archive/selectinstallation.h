#ifndef KRM_ARCHIVE_SELECTINSTALLATION_H
#define KRM_ARCHIVE_SELECTINSTALLATION_H

#include "archive/formdialog.h"
#include "data/coredata.h"

class QComboBox;
class QListWidget;

// Chooses an installation in a combo and shows its fields: to add it to a
// company (the choice is handed back), to delete it, or to edit it.
class SelectInstallation : public FormDialog
{
    Q_OBJECT
public:
    SelectInstallation(QWidget* parent, _selectType mode);
    ~SelectInstallation() override;

    // id + " (" + strings + "/" + power + " )"
    static QString createStrForInstallCombo(_listInstallation* node);

    // The row and the file chosen for a company, after an accepted exec.
    QString _chosenRow;
    QString _chosenFile;

public slots:
    void insertInstallationCombo();
    void selectInstallationInCombo();
    void goToEditInstallation();
    void goToDeleteInstallation();
    void goToAddInstallation();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    void reloadInstallations();

    _listInstallation* _installationHead;
    QComboBox* _comboInstallation;
    QListWidget* _listFields;
    QPushButton* _buttonAction;
    QPushButton* _buttonExit;
};

#endif
