#ifndef KRM_ARCHIVE_EDITBRAND_H
#define KRM_ARCHIVE_EDITBRAND_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QLineEdit;
class QListWidget;
class QPushButton;

// Adds a brand to the module archive or renames one. The brand list is
// read anew after each change; its owner takes the new head from _brandHead.
class EditBrand : public QDialog
{
    Q_OBJECT
public:
    EditBrand(QWidget* parent, _listBrand* brandList);

    _listBrand* _brandHead;

public slots:
    void selectBrandInList();
    void saveBrand();
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void readBrandPanel();
    QString selectedText() const;
    void updateSaveButton();

    InfoBar* _infoBar;
    QListWidget* _listWidgetBrand;
    QLineEdit* _editBrand;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
};

#endif
