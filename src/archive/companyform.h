#ifndef KRM_ARCHIVE_COMPANYFORM_H
#define KRM_ARCHIVE_COMPANYFORM_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>
#include <QString>

class QComboBox;
class QMessageBox;

// The ten fields of a company, in the order of the form and of the file.
enum CompanyField { SURN, NAME, NIN, CODE, CITY, ZIP, PROV, STREET, PHONE, EMAIL, COMPANY_FIELDS };

// The texts of one company form, translated by the screen that shows it.
struct CompanyTexts {
    QString title;
    QString label[COMPANY_FIELDS];
    QString keyboardTitle[COMPANY_FIELDS];
    QString invalid;  // the box's text
    QString boxTitle; // the box's title
    QString tooLong;  // above 255 characters, and "Cod." above 50
    QString mustBe;   // "Cod. Fisc." of the wrong length: mustBe + "11" or "16" + " " + characters
    QString characters;
    QString atLeastFive;       // "Cod." under 5 characters
    QString installation;      // the combo's label
    QString installationAdded; // the title of the box of an installation already in the combo
    QString alreadyThere;      // appended to the installation's row in that box
    QString save, reset, exit;
};

// The form of InsertCompany and EditCompany: the ten line edits with their
// entry rules, the "Installazione" combo with its map from row to the
// installation's file, and the buttons "Salva", "Reset" and "Exit". "Salva"
// is enabled exactly when "Cognome" is entered and "Cod. Fisc." or "Cod." is.
class CompanyForm : public FormDialog
{
    Q_OBJECT
public:
    CompanyForm(QWidget* parent, const char* objectName, const CompanyTexts& texts);

    // The fields as a record: empty fields null, texts on the heap in the
    // file's encoding, the map's files in headInst. Freed with freeCompany.
    _company* companyFromForm() const;

public slots:
    void editLineObject(QObject* obj) override;
    virtual void saveCompany() = 0;
    virtual void resetParameters() = 0;
    void addInstallationToCompany();
    void delInstallationToCompany();
    void resetCursorPosition();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

    // Empties the fields, the flags, the map and the combo; "Salva" disabled.
    void clearForm();
    // Puts a record's texts into the fields; the flags follow what they hold.
    void showCompany(const _company* company);
    // Adds one row to the combo and the map, unless the row is there already.
    void addInstallationRow(const QString& row, const QString& file);
    void updateSaveButton();

    QLineEdit* _edit[COMPANY_FIELDS];
    QComboBox* _comboInstallation;
    QMap<QString, QString> _installationMap;
    QPushButton* _buttonAddInstallation;
    QPushButton* _buttonDelInstallation;
    QPushButton* _buttonSave;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
    bool _enteredSurn;
    bool _enteredNin;
    bool _enteredCode;

private:
    void takeEntered(int field, QString text, QMessageBox* box);

    CompanyTexts _texts;
};

#endif
