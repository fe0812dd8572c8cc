#include "archive/installationform.h"

#include "archive/listmeasures.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "data/storedtext.h"
#include "toolkit/messagebox.h"
#include "toolkit/numbertext.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdlib>
#include <cstring>

// Longest text of any field.
#define INSTALLATION_TEXT_LIMIT 255

InstallationForm::InstallationForm(QWidget* parent, const char* objectName,
                                   const InstallationTexts& texts)
    : FormDialog(parent, objectName, texts.title, 22), _enteredId(false), _texts(texts)
{
    static const char* const name[INSTALLATION_FIELDS] = {"id",     "city",  "zip",  "prov",
                                                          "street", "nstri", "npowe"};
    QGridLayout* grid = new QGridLayout;
    // four rows on the left, three on the right; fields narrow enough that
    // the longest labels (French, Spanish) and the power's unit stand beside
    // them within the screen's width
    for (int i = 0; i < INSTALLATION_FIELDS; i++)
        _edit[i] =
            formLine(grid, name[i], texts.label[i], i == INST_NPOWE ? texts.unitPower : QString(),
                     i % 4, i < 4 ? 0 : 3, 270);

    auto comboRow = [this, grid](int row, const QString& label, const char* name, QComboBox** combo,
                                 QPushButton** add, QPushButton** del) {
        *combo = new QComboBox;
        (*combo)->setObjectName(name);
        *add = formButton(":/icon/add.png", QString(), (QByteArray(name) + "Add").constData());
        *del = formButton(":/icon/remove.png", QString(), (QByteArray(name) + "Del").constData());
        grid->addWidget(new QLabel(label), row, 0);
        QHBoxLayout* line = new QHBoxLayout;
        line->addWidget(*combo, 1);
        line->addWidget(*add);
        line->addWidget(*del);
        grid->addLayout(line, row, 1, 1, 5);
    };
    comboRow(4, texts.panelMeasures, "panel", &_comboPanel, &_buttonAddPanel, &_buttonDelPanel);
    comboRow(5, texts.stringMeasures, "string", &_comboString, &_buttonAddString,
             &_buttonDelString);

    _buttonSave = formButton(":/icon/save.png", texts.save, "Salva");
    _buttonReset = formButton(":/icon/view-refresh.png", texts.reset, "Reset");
    _buttonExit = formButton(":/icon/exit.png", texts.exit, "Exit");
    _buttonSave->setEnabled(false);

    connect(_buttonAddPanel, &QPushButton::clicked, this,
            &InstallationForm::addMeaPanelToInstallation);
    connect(_buttonDelPanel, &QPushButton::clicked, this,
            &InstallationForm::delMeaPanelToInstallation);
    connect(_buttonAddString, &QPushButton::clicked, this,
            &InstallationForm::addMeaStringToInstallation);
    connect(_buttonDelString, &QPushButton::clicked, this,
            &InstallationForm::delMeaStringToInstallation);
    connect(_buttonSave, &QPushButton::clicked, this, &InstallationForm::saveInstallation);
    connect(_buttonReset, &QPushButton::clicked, this, &InstallationForm::resetParameters);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {_buttonSave, _buttonReset, _buttonExit});
}

void InstallationForm::editLineObject(QObject* obj)
{
    int field = 0;
    while (field < INSTALLATION_FIELDS && obj != _edit[field])
        field++;
    if (field == INSTALLATION_FIELDS)
        return;
    QString text;
    if (typeInto(_edit[field], _texts.keyboardTitle[field],
                 field == INST_NSTRI || field == INST_NPOWE, &text)) {
        QMessageBox* box =
            newMessageBox(this, QMessageBox::Information, _texts.boxTitle, _texts.invalid);
        takeEntered(field, text, box);
        delete box;
    }
    _buttonSave->setEnabled(_enteredId);
}

void InstallationForm::takeEntered(int field, QString text, QMessageBox* box)
{
    auto refuse = [box](const QString& informative) {
        box->setInformativeText(informative);
        box->exec();
    };
    if (text.length() > INSTALLATION_TEXT_LIMIT) {
        refuse(_texts.tooLong);
        return;
    }
    bool number = true;
    if (field == INST_NSTRI && !text.isEmpty())
        text.toInt(&number); // beyond an int's range is no whole number either
    float power;
    // the old screen took "nan" and "inf" as powers: a number is a number
    if (field == INST_NPOWE && !text.isEmpty())
        number = finiteNumber(text, &power);
    if (!number) {
        refuse(_texts.notANumber + " : " + text);
        return;
    }
    _edit[field]->setText(text);
    _edit[field]->setCursorPosition(0);
    if (field == INST_ID)
        _enteredId = !text.isEmpty();
}

// A measure's row: date, time and comment, each after a blank; a measure
// whose file has gone gives blanks alone.
static QString measureRow(const _listMeasures* m)
{
    if (m == nullptr)
        return "  ";
    return storedText(m->mdata) + " " + storedText(m->mtime) + " " + storedText(m->mcom);
}

void InstallationForm::addMeaPanelToInstallation()
{
    addMeasure(MEA_PANEL);
}

void InstallationForm::addMeaStringToInstallation()
{
    addMeasure(MEA_STRING);
}

void InstallationForm::addMeasure(_meaType type)
{
    ListMeasures* list = new ListMeasures(this, type, SELECT_EDIT);
    if (list->exec() == QDialog::Accepted && list->selected != nullptr) {
        addMeasureRow(type, measureRow(list->selected), storedText(list->selected->file), true);
    }
    delete list;
}

void InstallationForm::addMeasureRow(_meaType type, const QString& row, const QString& file,
                                     bool tell)
{
    QMap<QString, QString>& map = type == MEA_PANEL ? _panelMap : _stringMap;
    if (map.contains(row)) {
        if (!tell)
            return;
        if (type == MEA_PANEL)
            showMessageBox(this, QMessageBox::Information, _texts.panelAddedTitle, QString(),
                           _texts.panelAlreadyThere);
        else
            showMessageBox(this, QMessageBox::Information, _texts.stringAddedTitle, QString(),
                           (_texts.stringRowFirst ? row : QString()) + _texts.stringAlreadyThere);
        return;
    }
    map.insert(row, file);
    (type == MEA_PANEL ? _comboPanel : _comboString)->addItem(row);
}

void InstallationForm::delMeaPanelToInstallation()
{
    int row = _comboPanel->currentIndex();
    if (row < 0)
        return;
    _panelMap.remove(_comboPanel->currentText());
    _comboPanel->removeItem(row);
}

void InstallationForm::delMeaStringToInstallation()
{
    int row = _comboString->currentIndex();
    if (row < 0)
        return;
    _stringMap.remove(_comboString->currentText());
    _comboString->removeItem(row);
}

void InstallationForm::clearForm()
{
    for (QLineEdit* edit : _edit)
        edit->clear();
    _enteredId = false;
    _panelMap.clear();
    _stringMap.clear();
    _comboPanel->clear();
    _comboString->clear();
    _buttonSave->setEnabled(false);
}

void InstallationForm::showInstallation(const _installation* in)
{
    char* const text[INSTALLATION_FIELDS] = {in->id,     in->city,  in->zip,  in->prov,
                                             in->street, in->nstri, in->npowe};
    for (int i = 0; i < INSTALLATION_FIELDS; i++) {
        _edit[i]->setText(storedText(text[i]));
        _edit[i]->setCursorPosition(0);
    }
    _enteredId = !_edit[INST_ID]->text().isEmpty();
    _buttonSave->setEnabled(_enteredId);
    for (const _listFileMeaPanel* p = in->headMeaPanel; p != nullptr; p = p->next) {
        _listMeasures* m = getSingleListMeasures(p->file, MEA_PANEL);
        addMeasureRow(MEA_PANEL, measureRow(m), storedText(p->file), false);
        closeListMeasures(m);
    }
    for (const _listFileMeaString* s = in->headMeaString; s != nullptr; s = s->next) {
        _listMeasures* m = getSingleListMeasures(s->file, MEA_STRING);
        addMeasureRow(MEA_STRING, measureRow(m), storedText(s->file), false);
        closeListMeasures(m);
    }
}

_installation* InstallationForm::installationFromForm() const
{
    _installation* in = static_cast<_installation*>(calloc(1, sizeof(_installation)));
    if (in == nullptr)
        return nullptr;
    char** const field[INSTALLATION_FIELDS] = {&in->id,     &in->city,  &in->zip,  &in->prov,
                                               &in->street, &in->nstri, &in->npowe};
    for (int i = 0; i < INSTALLATION_FIELDS; i++) {
        QString text = _edit[i]->text();
        *field[i] = text.isEmpty() ? nullptr : strdup(textToStore(text).constData());
    }
    for (const QString& file : _panelMap)
        in->headMeaPanel =
            addItemOnListFileMeaPanel(in->headMeaPanel, textToStore(file).constData());
    for (const QString& file : _stringMap)
        in->headMeaString =
            addItemOnListFileMeaString(in->headMeaString, textToStore(file).constData());
    in->curMeaPanel = in->headMeaPanel;
    in->curMeaString = in->headMeaString;
    return in;
}

QList<QWidget*> InstallationForm::focusChain() const
{
    QList<QWidget*> chain;
    for (QLineEdit* edit : _edit)
        chain << edit;
    return chain << _comboPanel << _buttonAddPanel << _buttonDelPanel << _comboString
                 << _buttonAddString << _buttonDelString << _buttonSave << _buttonReset
                 << _buttonExit;
}

void InstallationForm::returnOn(QWidget* focused)
{
    for (QLineEdit* edit : _edit)
        if (focused == edit)
            editLineObject(edit);
    const QList<QPushButton*> buttons = {_buttonAddPanel,  _buttonDelPanel, _buttonAddString,
                                         _buttonDelString, _buttonSave,     _buttonReset,
                                         _buttonExit};
    for (QPushButton* button : buttons)
        if (focused == button)
            button->click();
}
