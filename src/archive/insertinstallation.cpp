#include "archive/insertinstallation.h"

#include "data/datainstallation.h"
#include "toolkit/messagebox.h"

static InstallationTexts insertTexts()
{
    InstallationTexts t;
    t.title = InsertInstallation::tr("Inserimento Installazione");
    const QString label[INSTALLATION_FIELDS] = {InsertInstallation::tr("Installazione Id"),
                                                InsertInstallation::tr("Città"),
                                                InsertInstallation::tr("CAP"),
                                                InsertInstallation::tr("Prov."),
                                                InsertInstallation::tr("Via"),
                                                InsertInstallation::tr("Num. di stringhe"),
                                                InsertInstallation::tr("Potenza Nom.")};
    const QString keyboard[INSTALLATION_FIELDS] = {InsertInstallation::tr("Installazione Id"),
                                                   InsertInstallation::tr("Città"),
                                                   InsertInstallation::tr("CAP"),
                                                   InsertInstallation::tr("Prov."),
                                                   InsertInstallation::tr("Via"),
                                                   InsertInstallation::tr("Numero delle stringhe"),
                                                   InsertInstallation::tr("Potenza Nominale")};
    for (int i = 0; i < INSTALLATION_FIELDS; i++) {
        t.label[i] = label[i];
        t.keyboardTitle[i] = keyboard[i];
    }
    t.unitPower = InsertInstallation::tr("kW");
    t.invalid = InsertInstallation::tr("Testo inserito non valido.");
    t.boxTitle = InsertInstallation::tr("Testo inserito");
    t.tooLong = InsertInstallation::tr("Troppo lungo.");
    t.notANumber = InsertInstallation::tr("Numero non valido.");
    t.panelMeasures = InsertInstallation::tr("Misure Moduli");
    t.stringMeasures = InsertInstallation::tr("Misure Stringhe");
    t.panelAddedTitle = InsertInstallation::tr("Misura inserita");
    t.panelAlreadyThere = InsertInstallation::tr("Già presente.");
    t.stringAddedTitle = InsertInstallation::tr("Misura inserita");
    t.stringAlreadyThere = InsertInstallation::tr(" già presente.");
    t.stringRowFirst = true;
    t.save = InsertInstallation::tr("Salva");
    t.reset = InsertInstallation::tr("Reset");
    t.exit = InsertInstallation::tr("Exit");
    return t;
}

InsertInstallation::InsertInstallation(QWidget* parent)
    : InstallationForm(parent, "InsertInstallation", insertTexts())
{
}

void InsertInstallation::saveInstallation()
{
    _installation* installation = installationFromForm();
    int result = saveDataInstallation(installation);
    if (result == -3)
        showMessageBox(this, QMessageBox::Information, tr("Inserimento Installazione"),
                       tr("Installazione"), tr("Nome dell'installazione già presente."));
    else // the other failures are not told apart from success
        showMessageBox(this, QMessageBox::Information, tr("Inserimento Installazione"),
                       tr("Installazione Salvata."));
    freeInstallation(installation);
}

void InsertInstallation::resetParameters()
{
    clearForm();
}
