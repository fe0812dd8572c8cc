#ifndef KRM_ARCHIVE_ARCHIVEPANEL_H
#define KRM_ARCHIVE_ARCHIVEPANEL_H

#include "archive/formdialog.h"

// The menu of the module archive. Each entry reads the brands, opens its
// screen with them and closes the list again when the screen is gone.
class ArchivePanel : public FormDialog
{
    Q_OBJECT
public:
    explicit ArchivePanel(QWidget* parent);

public slots:
    void goToNewPanel();
    void goToEditPanel();
    void goToEditBrand();
    void goToDeletePanel();
    void goToFindPanel();
    void goToListPanel();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    QPushButton* _buttonNew;
    QPushButton* _buttonEdit;
    QPushButton* _buttonEditBrand;
    QPushButton* _buttonDelete;
    QPushButton* _buttonFind;
    QPushButton* _buttonList;
    QPushButton* _buttonExit;
};

#endif
