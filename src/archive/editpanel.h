#ifndef KRM_ARCHIVE_EDITPANEL_H
#define KRM_ARCHIVE_EDITPANEL_H

#include "archive/archiveform.h"
#include "data/coredata.h"

#include <QDialog>
#include <QMap>

class InfoBar;
class QComboBox;
class QLineEdit;
class QPushButton;

// Changes the data sheet of a model chosen with the brand and model combos;
// the file is written in place.
class EditPanel : public QDialog
{
    Q_OBJECT
public:
    enum Number { PMAX, NOCT, VMPP, IMPP, VOC, ISC, KISC, KVOC, KPMAX, TOLLM, TOLLP, NUMBERS };

    EditPanel(QWidget* parent, _listBrand* brandList);
    ~EditPanel() override;

public slots:
    void selectPanelType();
    void editLineObject(QObject* obj);
    void savePanelEdited();
    void selectBrandOnCombo();
    void selectModelOnCombo();
    void modelReloaded();

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void prepareCombo();
    void insertBrandOnCombo();
    void viewFeaturePanel();
    void resetFeature(_panelFeature* feature);
    void resetCursorPosition();
    void takeNames(_listBrand* brand, _listModel* model);
    QList<QWidget*> focusChain() const;

    _listBrand* _brandHead;
    _listModel* _modelHead;
    _panel _record;
    FormNumber _number[NUMBERS];
    QMap<QString, int> _typeMap;

    InfoBar* _infoBar;
    QComboBox* _comboBrand;
    QComboBox* _comboModel;
    QComboBox* _comboType;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
};

#endif
