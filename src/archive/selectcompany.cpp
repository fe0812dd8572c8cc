#include "archive/selectcompany.h"

#include "archive/archiveform.h"
#include "archive/editcompany.h"
#include "data/datacompany.h"
#include "data/storedtext.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

struct SelectMode {
    const char* objectName;
    const char* action;
    const char* title;
};

static const SelectMode modes[] = {
    {"AddInstallationOnCompany", QT_TRANSLATE_NOOP("SelectCompany", "Agg. Installazione"),
     QT_TRANSLATE_NOOP("SelectCompany", "Aggiungere Installazioni ad Azienda")},
    {"SelectDelCompany", QT_TRANSLATE_NOOP("SelectCompany", "Cancella"),
     QT_TRANSLATE_NOOP("SelectCompany", "Cancella Azienda")},
    {"SelectEditCompany", QT_TRANSLATE_NOOP("SelectCompany", "Modifica"),
     QT_TRANSLATE_NOOP("SelectCompany", "Selezione Azienda")},
};

SelectCompany::SelectCompany(QWidget* parent, _selectType mode)
    : FormDialog(parent, modes[mode].objectName, tr(modes[mode].title), 24), _mode(mode),
      _companyHead(nullptr)
{
    _comboCompany = new QComboBox;
    _comboCompany->setObjectName("company");
    _listFields = new QListWidget;
    _listFields->setObjectName("fields");
    _listFields->setSelectionMode(QAbstractItemView::NoSelection);
    _buttonAction = formButton(mode == SELECT_VIEW     ? ":/icon/add.png"
                               : mode == SELECT_DELETE ? ":/icon/cancel.png"
                                                       : ":/icon/editpanel.png",
                               tr(modes[mode].action), "action");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");

    QVBoxLayout* form = new QVBoxLayout;
    form->addWidget(_comboCompany);
    form->addWidget(_listFields, 1);

    reloadCompanies();
    connect(_comboCompany, &QComboBox::currentIndexChanged, this,
            &SelectCompany::selectCompanyInCombo);
    if (mode == SELECT_EDIT)
        connect(_buttonAction, &QPushButton::clicked, this, &SelectCompany::goToEditCompany);
    else if (mode == SELECT_DELETE)
        connect(_buttonAction, &QPushButton::clicked, this, &SelectCompany::goToDeleteCompany);
    else
        connect(_buttonAction, &QPushButton::clicked, this,
                &SelectCompany::goToAddInstallationOnCompany);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonAction, _buttonExit}, true);
}

SelectCompany::~SelectCompany()
{
    closeListCompany(_companyHead);
}

void SelectCompany::insertCompanyCombo()
{
    QList<NamedEntry> entries;
    for (const _listCompany* c = _companyHead; c != nullptr; c = c->next)
        entries.append(NamedEntry{storedText(c->surn) + " / " + storedText(c->nin) + " (" +
                                      storedText(c->code) + ")",
                                  QByteArray(c->file)});
    fillSortedCombo(_comboCompany, entries);
}

void SelectCompany::selectCompanyInCombo()
{
    _listFields->clear();
    _company* c = readCompanyFromFile(comboKey(_comboCompany).constData());
    _buttonAction->setEnabled(c != nullptr);
    if (c == nullptr)
        return;
    const QString label[] = {tr("Cognome / Denominazione"),
                             tr("Nome"),
                             tr("Cod. Fis."),
                             tr("Cod."),
                             tr("Città"),
                             tr("CAP"),
                             tr("Prov."),
                             tr("Via"),
                             tr("Tel."),
                             tr("E-mail")};
    const char* value[] = {c->surn, c->name, c->nin,    c->code,  c->city,
                           c->zip,  c->prov, c->street, c->phone, c->email};
    for (int i = 0; i < 10; i++)
        _listFields->addItem(label[i] + " : " + storedText(value[i]));
    freeCompany(c);
}

void SelectCompany::reloadCompanies()
{
    QSignalBlocker block(_comboCompany);
    _companyHead = closeListCompany(_companyHead);
    _companyHead = readListCompany(this);
    insertCompanyCombo();
    selectCompanyInCombo();
}

void SelectCompany::goToEditCompany()
{
    QByteArray file = comboKey(_comboCompany);
    _listCompany* node = _companyHead;
    while (node != nullptr && file != node->file)
        node = node->next;
    _company* record = readCompanyFromFile(file.constData());
    if (node == nullptr || record == nullptr) {
        freeCompany(record);
        return;
    }
    EditCompany* screen = new EditCompany(this, node, record);
    screen->exec();
    delete screen;
    freeCompany(record);
    int row = _comboCompany->currentIndex();
    reloadCompanies();
    // the company edited stays chosen
    QSignalBlocker block(_comboCompany);
    _comboCompany->setCurrentIndex(qMin(row, _comboCompany->count() - 1));
    selectCompanyInCombo();
}

void SelectCompany::goToDeleteCompany()
{
    QByteArray file = comboKey(_comboCompany);
    if (file.isEmpty())
        return;
    if (!askYesNo(this, tr("Cancella Azienda"), tr("Cancella Azienda"), tr("Conferma?")))
        return;
    // the company's installations stay
    deleteDataCompany(file.constData());
    reloadCompanies();
}

void SelectCompany::goToAddInstallationOnCompany()
{
    // this mode is reached from the installation screens, which take the choice
    accept();
}

QList<QWidget*> SelectCompany::focusChain() const
{
    return {_comboCompany, _buttonAction, _buttonExit};
}

void SelectCompany::returnOn(QWidget* focused)
{
    if (focused == _buttonAction)
        _buttonAction->click();
    else if (focused == _buttonExit)
        reject();
}
