#include "archive/editcompany.h"

#include "data/datacompany.h"
#include "data/datainstallation.h"
#include "data/storedtext.h"
#include "toolkit/messagebox.h"

#include <QPushButton>

static CompanyTexts editTexts()
{
    CompanyTexts t;
    t.title = EditCompany::tr("Modifica Azienda");
    const QString label[COMPANY_FIELDS] = {EditCompany::tr("Cognome\nDenominazione"),
                                           EditCompany::tr("Nome"),
                                           EditCompany::tr("Cod. Fisc."),
                                           EditCompany::tr("Cod."),
                                           EditCompany::tr("Città"),
                                           EditCompany::tr("CAP"),
                                           EditCompany::tr("Prov."),
                                           EditCompany::tr("Via"),
                                           EditCompany::tr("Tel."),
                                           EditCompany::tr("E-mail")};
    const QString keyboard[COMPANY_FIELDS] = {EditCompany::tr("Cognome / Denominazione"),
                                              EditCompany::tr("Nome"),
                                              EditCompany::tr("Codice Fiscale"),
                                              EditCompany::tr("Codice"),
                                              EditCompany::tr("Città"),
                                              EditCompany::tr("CAP"),
                                              EditCompany::tr("Prov."),
                                              EditCompany::tr("Via"),
                                              EditCompany::tr("Telefono"),
                                              EditCompany::tr("E-mail")};
    for (int i = 0; i < COMPANY_FIELDS; i++) {
        t.label[i] = label[i];
        t.keyboardTitle[i] = keyboard[i];
    }
    t.invalid = EditCompany::tr("Testo inserito non valido.");
    t.boxTitle = EditCompany::tr("Testo inserito");
    t.tooLong = EditCompany::tr("Troppo lungo.");
    t.mustBe = EditCompany::tr("Deve essere di ");
    t.characters = EditCompany::tr("caratteri");
    t.atLeastFive = EditCompany::tr("Deve essere di almeno 5 caratteri");
    t.installation = EditCompany::tr("Installazione");
    t.installationAdded = EditCompany::tr("Installazione inserita");
    t.alreadyThere = EditCompany::tr(" è già presente.");
    t.save = EditCompany::tr("Salva");
    t.reset = EditCompany::tr("Reset");
    t.exit = EditCompany::tr("Exit");
    return t;
}

EditCompany::EditCompany(QWidget* parent, _listCompany* node, _company* company)
    : CompanyForm(parent, "EditCompany", editTexts()), _node(node), _record(company)
{
    resetParameters();
}

QString EditCompany::createStrForInstallCombo(const char* id, const char* nstri, const char* npowe)
{
    return storedText(id) + " (" + storedText(nstri) + "/" + storedText(npowe) + " )";
}

void EditCompany::resetParameters()
{
    clearForm();
    if (_record == nullptr)
        return;
    showCompany(_record);
    for (const _listFileInstallation* i = _record->headInst; i != nullptr; i = i->next) {
        // an installation whose file has gone gives a row of empty texts
        char id[256], nstri[256], npowe[256];
        getIdStringPower(i->file, id, nstri, npowe);
        addInstallationRow(createStrForInstallCombo(id, nstri, npowe), storedText(i->file));
    }
}

void EditCompany::saveCompany()
{
    if (_node == nullptr || _node->file == nullptr)
        return;
    _company* company = companyFromForm();
    // the old instrument wrote the edited company as a new file and was refused by its own name
    int result = updateDataCompany(_node->file, company);
    if (result == 0)
        showMessageBox(this, QMessageBox::Information, tr("Modifica Azienda"),
                       tr("Aggiornamento Azienda"), tr("Eseguito con successo."));
    else
        showMessageBox(this, QMessageBox::Warning, tr("Modifica Azienda"),
                       tr("Aggiornamento Azienda"), tr("Aggiornamento non riuscito."));
    freeCompany(company);
}
