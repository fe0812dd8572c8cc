#include "archive/editinstallation.h"

#include "data/datainstallation.h"
#include "toolkit/messagebox.h"

static InstallationTexts editTexts()
{
    InstallationTexts t;
    t.title = EditInstallation::tr("Modifica Installazione");
    const QString label[INSTALLATION_FIELDS] = {EditInstallation::tr("Installazione Id"),
                                                EditInstallation::tr("Città"),
                                                EditInstallation::tr("CAP"),
                                                EditInstallation::tr("Prov."),
                                                EditInstallation::tr("Via"),
                                                EditInstallation::tr("Num. di stringhe"),
                                                EditInstallation::tr("Potenza Nom.")};
    const QString keyboard[INSTALLATION_FIELDS] = {EditInstallation::tr("Installazione Id"),
                                                   EditInstallation::tr("Città"),
                                                   EditInstallation::tr("CAP"),
                                                   EditInstallation::tr("Prov."),
                                                   EditInstallation::tr("Via"),
                                                   EditInstallation::tr("Numero delle stringhe"),
                                                   EditInstallation::tr("Potenza Nominale")};
    for (int i = 0; i < INSTALLATION_FIELDS; i++) {
        t.label[i] = label[i];
        t.keyboardTitle[i] = keyboard[i];
    }
    t.unitPower = EditInstallation::tr("kW");
    t.invalid = EditInstallation::tr("Testo inserito non valido.");
    t.boxTitle = EditInstallation::tr("Testo inserito");
    t.tooLong = EditInstallation::tr("Troppo lungo.");
    t.notANumber = EditInstallation::tr("Numero non valido.");
    t.panelMeasures = EditInstallation::tr("Misure Modulo");
    t.stringMeasures = EditInstallation::tr("Misure Stringhe");
    t.panelAddedTitle = EditInstallation::tr("Misura inserita");
    t.panelAlreadyThere = EditInstallation::tr("Già presente.");
    t.stringAddedTitle = EditInstallation::tr("Misure inserita");
    t.stringAlreadyThere = EditInstallation::tr("Già presente.");
    t.stringRowFirst = false;
    t.save = EditInstallation::tr("Salva");
    t.reset = EditInstallation::tr("Reset");
    t.exit = EditInstallation::tr("Exit");
    return t;
}

EditInstallation::EditInstallation(QWidget* parent, _listInstallation* node,
                                   _installation* installation)
    : InstallationForm(parent, "EditInstallation", editTexts()), _node(node), _record(installation)
{
    resetParameters();
}

void EditInstallation::resetParameters()
{
    clearForm();
    if (_record != nullptr)
        showInstallation(_record);
}

void EditInstallation::saveInstallation()
{
    if (_node == nullptr || _node->file == nullptr)
        return;
    _installation* installation = installationFromForm();
    // the old instrument wrote the edited installation as a new file and was
    // refused by its own name
    int result = updateDataInstallation(_node->file, installation);
    if (result == 0)
        showMessageBox(this, QMessageBox::Information, tr("Modifica Installazione"),
                       tr("Aggiornameno Installazione"), tr("Eseguito con successo."));
    else
        showMessageBox(this, QMessageBox::Warning, tr("Modifica Installazione"),
                       tr("Aggiornameno Installazione"), tr("Aggiornamento non riuscito."));
    freeInstallation(installation);
}
