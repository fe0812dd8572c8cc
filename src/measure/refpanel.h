#ifndef KRM_MEASURE_REFPANEL_H
#define KRM_MEASURE_REFPANEL_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The choice of the module model a measure is compared with: brand, model
// and the model's nominal figures. The chosen entries point into the
// dialog's own lists: the caller copies them before deleting the dialog.
class ReferencePanel : public QDialog
{
    Q_OBJECT
public:
    explicit ReferencePanel(QWidget* parent);
    ~ReferencePanel() override;

    _listModel* _selectedModel;
    _listBrand* _selectedBrand;

public slots:
    void goToConfirmPanel();
    void goToEditPanel();
    void goToNewPanel();
    void showModel();
    void showCharacteristics();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void readBrandPanel();

    QPushButton* _buttonConfirm;
    QPushButton* _buttonEdit;
    QPushButton* _buttonNew;
    QPushButton* _buttonExit;
    QListWidget* _listWidgetBrand;
    QListWidget* _listWidgetModel;
    QListWidget* _listWidgetFeature;
    bool _modelChosen;
    _listBrand* _brandCursor;
    _listBrand* _brandHead;
    char _brandDirName[256];
    _listModel* _modelCursor;
    _listModel* _modelHead;
    char _modelFileName[256];
    _panelFeature _feature;
    InfoBar* _infoBar;
};

#endif
