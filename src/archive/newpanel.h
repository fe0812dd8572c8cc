#ifndef KRM_ARCHIVE_NEWPANEL_H
#define KRM_ARCHIVE_NEWPANEL_H

#include "archive/archiveform.h"
#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QComboBox;
class QLineEdit;
class QPushButton;

// Enters the data sheet of a new module model into a brand of the archive.
// The form keeps what it holds after a save, so that a like model is entered
// by changing a few fields; a name already in the brand is overwritten.
class NewPanel : public FormDialog
{
    Q_OBJECT
public:
    // Rows of the eleven numbers: the left column, then the right one.
    enum Number { PMAX, NOCT, VMPP, IMPP, VOC, ISC, KISC, KVOC, KPMAX, TOLLM, TOLLP, NUMBERS };

    NewPanel(QWidget* parent, _listBrand* brandList);
    ~NewPanel() override;

    // The head of the brand list, handed back to the caller.
    _listBrand* _brandHead;

    bool enteredFeature() const;
    bool enteredAllParamPanel() const;

public slots:
    void selectPanelType();
    void editLineObject(QObject* obj) override;
    void savePanel();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    void prepareCombo();
    void insertBrandOnCombo();
    void resetFeature();
    void resetLineEdit();
    void updateSaveButton();

    _panelFeature _feature;
    FormNumber _number[NUMBERS];
    bool _entered[NUMBERS];
    bool _enteredModel;
    bool _enteredSave;
    QString _modelName;
    QMap<QString, int> _typeMap;

    QComboBox* _comboBrand;
    QLineEdit* _editModel;
    QComboBox* _comboType;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
};

#endif
