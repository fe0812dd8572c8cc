#include "archive/companyform.h"

#include "archive/archiveform.h"
#include "archive/selectinstallation.h"
#include "data/datacompany.h"
#include "data/storedtext.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <cstdlib>
#include <cstring>

// Longest text of any field, and the bounds of "Cod.".
#define COMPANY_TEXT_LIMIT 255
#define CODE_SHORTEST 5
#define CODE_LONGEST 50

CompanyForm::CompanyForm(QWidget* parent, const char* objectName, const CompanyTexts& texts)
    : FormDialog(parent, objectName, texts.title, 22), _enteredSurn(false), _enteredNin(false),
      _enteredCode(false), _texts(texts)
{
    static const char* const name[COMPANY_FIELDS] = {"surn", "name", "nin",    "code",  "city",
                                                     "zip",  "prov", "street", "phone", "email"};
    QGridLayout* grid = new QGridLayout;
    // five rows of two fields each, top to bottom on the left, then on the right
    for (int i = 0; i < COMPANY_FIELDS; i++)
        _edit[i] = formLine(grid, name[i], texts.label[i], QString(), i % 5, i < 5 ? 0 : 3, 300);

    _comboInstallation = new QComboBox;
    _comboInstallation->setObjectName("installation");
    _buttonAddInstallation = formButton(":/icon/add.png", QString(), "add");
    _buttonDelInstallation = formButton(":/icon/remove.png", QString(), "remove");
    grid->addWidget(new QLabel(texts.installation), 5, 0);
    QHBoxLayout* row = new QHBoxLayout;
    row->addWidget(_comboInstallation, 1);
    row->addWidget(_buttonAddInstallation);
    row->addWidget(_buttonDelInstallation);
    grid->addLayout(row, 5, 1, 1, 5);

    _buttonSave = formButton(":/icon/save.png", texts.save, "Salva");
    _buttonReset = formButton(":/icon/view-refresh.png", texts.reset, "Reset");
    _buttonExit = formButton(":/icon/exit.png", texts.exit, "Exit");
    _buttonSave->setEnabled(false);

    connect(_buttonAddInstallation, &QPushButton::clicked, this,
            &CompanyForm::addInstallationToCompany);
    connect(_buttonDelInstallation, &QPushButton::clicked, this,
            &CompanyForm::delInstallationToCompany);
    connect(_buttonSave, &QPushButton::clicked, this, &CompanyForm::saveCompany);
    connect(_buttonReset, &QPushButton::clicked, this, &CompanyForm::resetParameters);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {_buttonSave, _buttonReset, _buttonExit});
}

void CompanyForm::editLineObject(QObject* obj)
{
    int field = 0;
    while (field < COMPANY_FIELDS && obj != _edit[field])
        field++;
    if (field == COMPANY_FIELDS)
        return;
    QString text;
    if (typeInto(_edit[field], _texts.keyboardTitle[field], field == ZIP, &text)) {
        QMessageBox* box =
            newMessageBox(this, QMessageBox::Information, _texts.boxTitle, _texts.invalid);
        takeEntered(field, text, box);
        delete box;
    }
    updateSaveButton();
}

void CompanyForm::takeEntered(int field, QString text, QMessageBox* box)
{
    auto refuse = [box](const QString& informative) {
        box->setInformativeText(informative);
        box->exec();
    };
    if (text.length() > COMPANY_TEXT_LIMIT) {
        refuse(_texts.tooLong);
        return;
    }
    if (field == PHONE) {
        // a leading plus stays, every other character but the digits goes
        bool plus = text.startsWith('+');
        text.remove(QRegularExpression("[^0-9]"));
        if (plus)
            text.prepend('+');
    }
    _edit[field]->setText(text);
    _edit[field]->setCursorPosition(0);
    if (field == SURN) {
        _enteredSurn = !text.isEmpty();
    } else if (field == NIN) {
        // the length "Nome" asks for now; a later change of "Nome" is not looked at
        int needed = _edit[NAME]->text().isEmpty() ? 11 : 16;
        _enteredNin = text.length() == needed && !text.isEmpty();
        if (text.length() != needed)
            refuse(_texts.mustBe + QString::number(needed) + " " + _texts.characters);
    } else if (field == CODE) {
        _enteredCode = false;
        if (text.length() < CODE_SHORTEST)
            refuse(_texts.atLeastFive);
        else if (text.length() > CODE_LONGEST)
            refuse(_texts.tooLong);
        else
            _enteredCode = !text.isEmpty();
    }
}

void CompanyForm::updateSaveButton()
{
    _buttonSave->setEnabled(_enteredSurn && (_enteredNin || _enteredCode));
}

void CompanyForm::addInstallationRow(const QString& row, const QString& file)
{
    if (_installationMap.contains(row)) {
        showMessageBox(this, QMessageBox::Information, _texts.installationAdded,
                       row + _texts.alreadyThere);
        return;
    }
    _installationMap.insert(row, file);
    _comboInstallation->addItem(row);
}

void CompanyForm::addInstallationToCompany()
{
    SelectInstallation* screen = new SelectInstallation(this, SELECT_VIEW);
    if (screen->exec() == QDialog::Accepted && !screen->_chosenRow.isEmpty())
        addInstallationRow(screen->_chosenRow, screen->_chosenFile);
    delete screen;
}

void CompanyForm::delInstallationToCompany()
{
    int row = _comboInstallation->currentIndex();
    if (row < 0)
        return;
    _installationMap.remove(_comboInstallation->currentText());
    _comboInstallation->removeItem(row);
}

void CompanyForm::clearForm()
{
    for (QLineEdit* edit : _edit)
        edit->clear();
    _enteredSurn = _enteredNin = _enteredCode = false;
    _installationMap.clear();
    _comboInstallation->clear();
    _buttonSave->setEnabled(false);
}

void CompanyForm::showCompany(const _company* c)
{
    char* const text[COMPANY_FIELDS] = {c->surn, c->name, c->nin,    c->code,  c->city,
                                        c->zip,  c->prov, c->street, c->phone, c->email};
    for (int i = 0; i < COMPANY_FIELDS; i++)
        _edit[i]->setText(storedText(text[i]));
    // a stored record counts as entered as it stands
    _enteredSurn = !_edit[SURN]->text().isEmpty();
    _enteredNin = !_edit[NIN]->text().isEmpty();
    _enteredCode = !_edit[CODE]->text().isEmpty();
    resetCursorPosition();
    updateSaveButton();
}

void CompanyForm::resetCursorPosition()
{
    for (QLineEdit* edit : _edit)
        edit->setCursorPosition(0);
}

_company* CompanyForm::companyFromForm() const
{
    _company* c = static_cast<_company*>(calloc(1, sizeof(_company)));
    if (c == nullptr)
        return nullptr;
    char** const field[COMPANY_FIELDS] = {&c->surn, &c->name, &c->nin,    &c->code,  &c->city,
                                          &c->zip,  &c->prov, &c->street, &c->phone, &c->email};
    for (int i = 0; i < COMPANY_FIELDS; i++) {
        QString text = _edit[i]->text();
        *field[i] = text.isEmpty() ? nullptr : strdup(textToStore(text).constData());
    }
    for (const QString& file : _installationMap)
        c->headInst = addItemOnListInstallation(c->headInst, textToStore(file).constData());
    c->curInst = c->headInst;
    return c;
}

QList<QWidget*> CompanyForm::focusChain() const
{
    QList<QWidget*> chain;
    for (QLineEdit* edit : _edit)
        chain << edit;
    return chain << _comboInstallation << _buttonAddInstallation << _buttonDelInstallation
                 << _buttonSave << _buttonReset << _buttonExit;
}

void CompanyForm::returnOn(QWidget* focused)
{
    for (QLineEdit* edit : _edit)
        if (focused == edit)
            editLineObject(edit);
    if (focused == _buttonAddInstallation)
        addInstallationToCompany();
    else if (focused == _buttonDelInstallation)
        delInstallationToCompany();
    else if (focused == _buttonSave)
        saveCompany();
    else if (focused == _buttonReset)
        resetParameters();
    else if (focused == _buttonExit)
        reject();
}
