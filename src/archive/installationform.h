#ifndef KRM_ARCHIVE_INSTALLATIONFORM_H
#define KRM_ARCHIVE_INSTALLATIONFORM_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>
#include <QString>

class QComboBox;
class QMessageBox;

// The seven fields of an installation, in the order of the form and of the file.
enum InstallationField {
    INST_ID,
    INST_CITY,
    INST_ZIP,
    INST_PROV,
    INST_STREET,
    INST_NSTRI,
    INST_NPOWE,
    INSTALLATION_FIELDS
};

// The texts of one installation form, translated by the screen that shows it.
struct InstallationTexts {
    QString title;
    QString label[INSTALLATION_FIELDS];
    QString keyboardTitle[INSTALLATION_FIELDS];
    QString unitPower;  // "kW"
    QString invalid;    // the box's text
    QString boxTitle;   // the box's title
    QString tooLong;    // above 255 characters
    QString notANumber; // + " : " + the entered text
    QString panelMeasures, stringMeasures;
    // A measure already in its combo: the box's title and informative text.
    QString panelAddedTitle, panelAlreadyThere;
    QString stringAddedTitle, stringAlreadyThere;
    bool stringRowFirst; // the string measure's row stands before its text
    QString save, reset, exit;
};

// The form of InsertInstallation and EditInstallation: the seven line edits
// with their entry rules, the combos of module and string measures with their
// maps from row to the measure's file, and "Salva", "Reset" and "Exit".
// "Salva" is enabled exactly when "Installazione Id" holds a text.
class InstallationForm : public FormDialog
{
    Q_OBJECT
public:
    InstallationForm(QWidget* parent, const char* objectName, const InstallationTexts& texts);

    // The fields as a record: empty fields null, texts on the heap in the
    // file's encoding, the maps' files in the measure lists. Freed with
    // freeInstallation.
    _installation* installationFromForm() const;

public slots:
    void editLineObject(QObject* obj) override;
    virtual void saveInstallation() = 0;
    virtual void resetParameters() = 0;
    void addMeaPanelToInstallation();
    void addMeaStringToInstallation();
    void delMeaPanelToInstallation();
    void delMeaStringToInstallation();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

    void clearForm();
    // Puts a record's texts and measures into the form.
    void showInstallation(const _installation* installation);

    QLineEdit* _edit[INSTALLATION_FIELDS];
    QComboBox* _comboPanel;
    QComboBox* _comboString;
    QMap<QString, QString> _panelMap;
    QMap<QString, QString> _stringMap;
    QPushButton* _buttonAddPanel;
    QPushButton* _buttonDelPanel;
    QPushButton* _buttonAddString;
    QPushButton* _buttonDelString;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
    bool _enteredId;

private:
    void takeEntered(int field, QString text, QMessageBox* box);
    void addMeasure(_meaType type);
    // Adds one row to the combo and the map of its type, unless the row is
    // there already: a measure the operator chose is then refused with the box.
    void addMeasureRow(_meaType type, const QString& row, const QString& file, bool tell);

    InstallationTexts _texts;
};

#endif
