#ifndef KRM_ARCHIVE_ARCHIVECOMPANY_H
#define KRM_ARCHIVE_ARCHIVECOMPANY_H

#include "archive/formdialog.h"

// The menu of the company archive.
class ArchiveCompany : public FormDialog
{
    Q_OBJECT
public:
    explicit ArchiveCompany(QWidget* parent);

public slots:
    void goToInsertCompany();
    void goToSelectCompany();
    void goToDeleteCompany();
    void goToListCompany();

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
