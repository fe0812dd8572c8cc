#include "archive/selectinstallation.h"

#include "archive/archiveform.h"
#include "archive/editinstallation.h"
#include "data/datainstallation.h"
#include "data/storedtext.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

struct InstallationMode {
    const char* objectName;
    const char* icon;
    const char* action;
    const char* title;
};

static const InstallationMode modes[] = {
    {"AddInstallation", ":/icon/add.png", QT_TRANSLATE_NOOP("SelectInstallation", "Agg."),
     QT_TRANSLATE_NOOP("SelectInstallation", "Aggiungere Installazione")},
    {"SelectDelInstallation", ":/icon/cancel.png",
     QT_TRANSLATE_NOOP("SelectInstallation", "Cancella"),
     QT_TRANSLATE_NOOP("SelectInstallation", "Cancella Installazione")},
    {"SelectEditInstallation", ":/icon/editpanel.png",
     QT_TRANSLATE_NOOP("SelectInstallation", "Modifica"),
     QT_TRANSLATE_NOOP("SelectInstallation", "Selezione Installazione")},
};

SelectInstallation::SelectInstallation(QWidget* parent, _selectType mode)
    : FormDialog(parent, modes[mode].objectName, tr(modes[mode].title), 24),
      _installationHead(nullptr)
{
    _comboInstallation = new QComboBox;
    _comboInstallation->setObjectName("installation");
    _listFields = new QListWidget;
    _listFields->setObjectName("fields");
    _listFields->setSelectionMode(QAbstractItemView::NoSelection);
    _buttonAction = formButton(modes[mode].icon, tr(modes[mode].action), "action");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");
    QVBoxLayout* form = new QVBoxLayout;
    form->addWidget(_comboInstallation);
    form->addWidget(_listFields, 1);

    reloadInstallations();
    connect(_comboInstallation, &QComboBox::currentIndexChanged, this,
            &SelectInstallation::selectInstallationInCombo);
    if (mode == SELECT_EDIT)
        connect(_buttonAction, &QPushButton::clicked, this,
                &SelectInstallation::goToEditInstallation);
    else if (mode == SELECT_DELETE)
        connect(_buttonAction, &QPushButton::clicked, this,
                &SelectInstallation::goToDeleteInstallation);
    else if (mode == SELECT_VIEW)
        connect(_buttonAction, &QPushButton::clicked, this,
                &SelectInstallation::goToAddInstallation);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonAction, _buttonExit}, true);
}

SelectInstallation::~SelectInstallation()
{
    closeListInstallation(_installationHead);
}

QString SelectInstallation::createStrForInstallCombo(_listInstallation* node)
{
    return storedText(node->id) + " (" + storedText(node->nstri) + "/" + storedText(node->npowe) +
           " )";
}

void SelectInstallation::insertInstallationCombo()
{
    QList<NamedEntry> entries;
    for (_listInstallation* i = _installationHead; i != nullptr; i = i->next)
        entries.append(NamedEntry{createStrForInstallCombo(i), QByteArray(i->file)});
    fillSortedCombo(_comboInstallation, entries);
}

void SelectInstallation::selectInstallationInCombo()
{
    _listFields->clear();
    _installation* in = readInstallationFromFile(comboKey(_comboInstallation).constData());
    _buttonAction->setEnabled(in != nullptr);
    if (in == nullptr)
        return;
    const QString label[] = {
        tr("Città"),           tr("CAP"), tr("Prov."), tr("Via"), tr("Num. di stringhe"),
        tr("Potenza Nominale")};
    const char* value[] = {in->city, in->zip, in->prov, in->street, in->nstri, in->npowe};
    for (int i = 0; i < 6; i++)
        _listFields->addItem(label[i] + " : " + storedText(value[i]));
    freeInstallation(in);
}

void SelectInstallation::reloadInstallations()
{
    QSignalBlocker block(_comboInstallation);
    _installationHead = closeListInstallation(_installationHead);
    _installationHead = readListInstallation(this);
    insertInstallationCombo();
    selectInstallationInCombo();
}

void SelectInstallation::goToDeleteInstallation()
{
    QByteArray file = comboKey(_comboInstallation);
    if (file.isEmpty() || !askYesNo(this, tr("Cancella Installazione"),
                                    tr("Cancella Installazione"), tr("Conferma?")))
        return;
    // its measures and the companies that name it stay
    deleteDataInstallation(file.constData());
    reloadInstallations();
}

void SelectInstallation::goToEditInstallation()
{
    QByteArray file = comboKey(_comboInstallation);
    _listInstallation* node = _installationHead;
    while (node != nullptr && file != node->file)
        node = node->next;
    if (node == nullptr)
        return;
    _installation* in = readInstallationFromFile(node->file);
    if (in == nullptr)
        return;
    EditInstallation* screen = new EditInstallation(this, node, in);
    screen->exec();
    delete screen;
    freeInstallation(in);
    reloadInstallations();
}

void SelectInstallation::goToAddInstallation()
{
    QByteArray file = comboKey(_comboInstallation);
    if (file.isEmpty())
        return;
    _chosenRow = _comboInstallation->currentText();
    _chosenFile = storedText(file.constData());
    accept();
}

QList<QWidget*> SelectInstallation::focusChain() const
{
    return {_comboInstallation, _buttonAction, _buttonExit};
}

void SelectInstallation::returnOn(QWidget* focused)
{
    if (focused == _buttonAction)
        _buttonAction->click();
    else if (focused == _buttonExit)
        reject();
}
