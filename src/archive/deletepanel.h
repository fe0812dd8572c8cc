#ifndef KRM_ARCHIVE_DELETEPANEL_H
#define KRM_ARCHIVE_DELETEPANEL_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

// Removes one model, or a whole brand with all its models, after a
// question. The brand list is read anew after a brand went; its owner takes
// the new head from _brandHead.
class DeletePanel : public QDialog
{
    Q_OBJECT
public:
    DeletePanel(QWidget* parent, _listBrand* brandList);
    ~DeletePanel() override;

    _listBrand* _brandHead;

public slots:
    void selectBrandOnCombo();
    void selectModel(QListWidgetItem* item);
    void questionDeleteModel();
    void questionDeleteBrand();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void eraseModel();
    void eraseBrand();
    void insertBrandOnCombo();
    bool askConfirmation(const QString& text);

    _listModel* _modelHead;
    QByteArray _modelSelected; // the chosen model's file

    InfoBar* _infoBar;
    QComboBox* _comboBrand;
    QListWidget* _listWidgetModel;
    QLabel* _labelCount;
    QPushButton* _buttonDeleteModel;
    QPushButton* _buttonDeleteBrand;
    QPushButton* _buttonExit;
};

#endif
