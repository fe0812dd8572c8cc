#include "archive/insertcompany.h"

#include "data/datacompany.h"
#include "toolkit/messagebox.h"

#include <QPushButton>

static CompanyTexts insertTexts()
{
    CompanyTexts t;
    t.title = InsertCompany::tr("Nuova Azienda");
    const QString label[COMPANY_FIELDS] = {InsertCompany::tr("Cognome\nDenominazione"),
                                           InsertCompany::tr("Nome"),
                                           InsertCompany::tr("Cod. Fisc."),
                                           InsertCompany::tr("Cod."),
                                           InsertCompany::tr("Città"),
                                           InsertCompany::tr("CAP"),
                                           InsertCompany::tr("Prov."),
                                           InsertCompany::tr("Via"),
                                           InsertCompany::tr("Tel."),
                                           InsertCompany::tr("E-mail")};
    const QString keyboard[COMPANY_FIELDS] = {InsertCompany::tr("Cognome / Denominazione"),
                                              InsertCompany::tr("Nome"),
                                              InsertCompany::tr("Codice Fiscale"),
                                              InsertCompany::tr("Codice"),
                                              InsertCompany::tr("Città"),
                                              InsertCompany::tr("CAP"),
                                              InsertCompany::tr("Prov."),
                                              InsertCompany::tr("Via"),
                                              InsertCompany::tr("Telefono"),
                                              InsertCompany::tr("E-mail")};
    for (int i = 0; i < COMPANY_FIELDS; i++) {
        t.label[i] = label[i];
        t.keyboardTitle[i] = keyboard[i];
    }
    t.invalid = InsertCompany::tr("Testo inserito non valido.");
    t.boxTitle = InsertCompany::tr("Testo inserito");
    t.tooLong = InsertCompany::tr("Troppo lungo.");
    t.mustBe = InsertCompany::tr("Deve essere di ");
    t.characters = InsertCompany::tr("caratteri");
    t.atLeastFive = InsertCompany::tr("Deve essere di almeno 5 caratteri");
    t.installation = InsertCompany::tr("Installazione");
    t.installationAdded = InsertCompany::tr("Installazione inserita");
    t.alreadyThere = InsertCompany::tr(" già presente.");
    t.save = InsertCompany::tr("Salva");
    t.reset = InsertCompany::tr("Reset");
    t.exit = InsertCompany::tr("Exit");
    return t;
}

InsertCompany::InsertCompany(QWidget* parent) : CompanyForm(parent, "InsertCompany", insertTexts())
{
}

void InsertCompany::saveCompany()
{
    _company* company = companyFromForm();
    int result = saveDataCompany(company);
    if (result == -3)
        showMessageBox(this, QMessageBox::Information, tr("Nuova Azienda"), tr("Azienda"),
                       tr("Nome dell'azienda già presente."));
    else // the other failures are not told apart from success
        showMessageBox(this, QMessageBox::Information, tr("Nuova Azienda"), tr("Azienda Salvata."));
    freeCompany(company);
}

void InsertCompany::resetParameters()
{
    clearForm();
}
