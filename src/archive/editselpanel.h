#ifndef KRM_ARCHIVE_EDITSELPANEL_H
#define KRM_ARCHIVE_EDITSELPANEL_H

#include "archive/archiveform.h"
#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// Changes the data sheet of one model named by the caller (the reference
// module choice): brand and file stay, the model's name may change.
class EditSelectedPanel : public FormDialog
{
    Q_OBJECT
public:
    enum Number { PMAX, NOCT, VMPP, IMPP, VOC, ISC, KISC, KVOC, KPMAX, TOLLM, TOLLP, NUMBERS };

    EditSelectedPanel(QWidget* parent, char* brandDir, char* modelFile);
    ~EditSelectedPanel() override;

    // A copy of the data sheet as it was last saved here.
    _panel _panelReference;

public slots:
    void selectPanelType();
    void editLineObject(QObject* obj) override;
    void savePanelEdited();
    void modelReloaded();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    void prepareCombo();
    void viewFeaturePanel();
    void resetCursorPosition();

    _panel _record;
    FormNumber _number[NUMBERS];
    QMap<QString, int> _typeMap;

    QLabel* _labelBrand;
    QLineEdit* _editModel;
    QComboBox* _comboType;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
};

#endif
