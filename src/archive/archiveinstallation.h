#ifndef KRM_ARCHIVE_ARCHIVEINSTALLATION_H
#define KRM_ARCHIVE_ARCHIVEINSTALLATION_H

#include "archive/formdialog.h"

// The menu of the installation archive.
class ArchiveInstallation : public FormDialog
{
    Q_OBJECT
public:
    explicit ArchiveInstallation(QWidget* parent);

public slots:
    void goToInsertInstallation();
    void goToSelectInstallation();
    void goToDeleteInstallation();
    void goToListInstallation();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    QPushButton* _buttonNew;
    QPushButton* _buttonEdit;
    QPushButton* _buttonDelete;
    QPushButton* _buttonList;
    QPushButton* _buttonExit;
};

#endif
