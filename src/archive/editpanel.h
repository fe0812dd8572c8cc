#ifndef KRM_ARCHIVE_EDITPANEL_H
#define KRM_ARCHIVE_EDITPANEL_H

#include "archive/archiveform.h"
#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QComboBox;
class QLineEdit;
class QPushButton;

// Changes the data sheet of a model chosen with the brand and model combos;
// the file is written in place.
class EditPanel : public FormDialog
{
    Q_OBJECT
public:
    enum Number { PMAX, NOCT, VMPP, IMPP, VOC, ISC, KISC, KVOC, KPMAX, TOLLM, TOLLP, NUMBERS };

    EditPanel(QWidget* parent, _listBrand* brandList);
    ~EditPanel() override;

public slots:
    void selectPanelType();
    void editLineObject(QObject* obj) override;
    void savePanelEdited();
    void selectBrandOnCombo();
    void selectModelOnCombo();
    void modelReloaded();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    void prepareCombo();
    void insertBrandOnCombo();
    void viewFeaturePanel();
    void resetFeature(_panelFeature* feature);
    void resetCursorPosition();
    void takeNames(_listBrand* brand, _listModel* model);

    _listBrand* _brandHead;
    _listModel* _modelHead;
    _panel _record;
    FormNumber _number[NUMBERS];
    QMap<QString, int> _typeMap;

    QComboBox* _comboBrand;
    QComboBox* _comboModel;
    QComboBox* _comboType;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
};

#endif
