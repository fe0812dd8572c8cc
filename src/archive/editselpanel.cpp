#include "archive/editselpanel.h"

#include "data/datapanel.h"
#include "data/storedtext.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cstdlib>
#include <cstring>

static void freePanelStrings(_panel* panel)
{
    free(panel->brandName);
    free(panel->brandDir);
    free(panel->modelName);
    free(panel->modelFile);
}

EditSelectedPanel::EditSelectedPanel(QWidget* parent, char* brandDir, char* modelFile)
    : FormDialog(parent, "EditSelectedPanel", tr("Modifica Modulo"), 24)
{
    memset(&_record, 0, sizeof _record);
    memset(&_panelReference, 0, sizeof _panelReference);
    getPanel(&_record, brandDir, modelFile);

    _panelFeature& f = _record.feature;
    // clang-format off
    _number[PMAX] = {new QLineEdit, &f.pmax, 1, 1000, 1, tr("Pmax"), tr("Pmax"), tr("Pmax : ")};
    _number[NOCT] = {new QLineEdit, &f.noct, 0, 100, 1,
                     tr("Temperatura Nominale della Cella - NOCT [°C]"), tr("NOCT [°C]"),
                     tr("NOCT : ")};
    _number[VMPP] = {new QLineEdit, &f.vmpp, 1, 300, 2, tr("Vmpp"), tr("Vmpp"), tr("Vmpp : ")};
    _number[IMPP] = {new QLineEdit, &f.impp, 0.1f, 20, 2, tr("Impp"), tr("Impp"), tr("Impp : ")};
    _number[VOC] = {new QLineEdit, &f.voc, 1, 300, 2, tr("Voc"), tr("Voc"), tr("Voc : ")};
    _number[ISC] = {new QLineEdit, &f.isc, 0.1f, 20, 2, tr("Isc"), tr("Isc"), tr("Isc : ")};
    _number[KISC] = {new QLineEdit, &f.kisc, 0.0001f, 1, 3,
                     tr("Coefficiente di Temperatura di Isc [%/°C]"),
                     tr("Coefficiente di Temperatura Isc [%/°C]"), tr("Alpha : ")};
    _number[KVOC] = {new QLineEdit, &f.kvoc, -1, 1, 4,
                     tr("Coefficiente di Temperatura di Voc [%/°C]"),
                     tr("Coefficiente di Temperatura Voc [%/°C]"), tr("Beta : ")};
    _number[KPMAX] = {new QLineEdit, &f.kpmax, -1, 1, 3,
                      tr("Coefficiente di Temperatura di Pmax [%/°C]"),
                      tr("Coefficiente di Temperatura Pmax [%/°C]"), tr("Gamma : ")};
    _number[TOLLM] = {new QLineEdit, &f.tollm, -50, 50, 2, tr("Tolleranza Minima [%]"),
                      tr("Tolleranza Minima [%]"), tr("Toll- : ")};
    _number[TOLLP] = {new QLineEdit, &f.tollp, 0, 50, 2, tr("Tolleranza Massima [%]"),
                      tr("Tolleranza Massima [%]"), tr("Toll+ : ")};
    const QString label[NUMBERS] = {tr("Pmax"),  tr("NOCT"), tr("Vmpp"),  tr("Impp"),
                                    tr("Voc"),   tr("Isc"),  tr("Alpha"), tr("Beta"),
                                    tr("Gamma"), tr("Toll-"), tr("Toll+")};
    // clang-format on

    QGridLayout* grid = new QGridLayout;
    _labelBrand = new QLabel;
    _labelBrand->setObjectName("brand");
    grid->addWidget(new QLabel(tr("Marca")), 0, 0);
    grid->addWidget(_labelBrand, 0, 1, 1, 2);
    _editModel = formLine(grid, "model", tr("Modello"), QString(), 0, 3, 260);
    _comboType = new QComboBox;
    placeFeatureNumbers(this, grid, _number, label, _comboType, tr("Tipo"));

    _buttonSave = formButton(":/icon/save.png", tr("Salva"), "Salva");
    _buttonReset = formButton(":/icon/view-refresh.png", tr("Reset"), "Reset");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");

    prepareCombo();
    viewFeaturePanel();

    connect(_comboType, &QComboBox::currentIndexChanged, this, &EditSelectedPanel::selectPanelType);
    connect(_buttonSave, &QPushButton::clicked, this, &EditSelectedPanel::savePanelEdited);
    connect(_buttonReset, &QPushButton::clicked, this, &EditSelectedPanel::modelReloaded);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {_buttonSave, _buttonReset, _buttonExit});
}

EditSelectedPanel::~EditSelectedPanel()
{
    freePanelStrings(&_record);
    freePanelStrings(&_panelReference);
}

void EditSelectedPanel::prepareCombo()
{
    const QString names[PANEL_TYPES] = {tr("Sconosciuto"),     tr("Monocristallino"),
                                        tr("Policristallino"), tr("Film Sottile"),
                                        tr("Amorfo"),          tr("MicroMorfo")};
    fillTypeCombo(_comboType, &_typeMap, names);
}

void EditSelectedPanel::viewFeaturePanel()
{
    _labelBrand->setText(storedText(_record.brandName));
    _editModel->setText(storedText(_record.modelName));
    for (const FormNumber& field : _number)
        showFormNumber(field);
    QSignalBlocker block(_comboType);
    int type = _record.feature.type;
    _comboType->setCurrentIndex(type >= 0 && type < PANEL_TYPES ? type : 0);
    resetCursorPosition();
}

void EditSelectedPanel::resetCursorPosition()
{
    _editModel->setCursorPosition(0);
    for (const FormNumber& field : _number)
        field.edit->setCursorPosition(0);
}

void EditSelectedPanel::modelReloaded()
{
    if (_record.brandDir != nullptr && _record.modelFile != nullptr) {
        // the arguments are the record's own strings: getPanel copies them first
        getPanel(&_record, _record.brandDir, _record.modelFile);
    }
    viewFeaturePanel();
}

void EditSelectedPanel::selectPanelType()
{
    _record.feature.type = _typeMap.value(_comboType->currentText(), 0);
    // the technology's default replaces any value typed before
    _record.feature.kvoc = defaultKvoc(_record.feature.type);
    showFormNumber(_number[KVOC]);
    _buttonSave->setEnabled(true);
}

void EditSelectedPanel::editLineObject(QObject* obj)
{
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Information, QString(), tr("Testo inserito non valido."));
    FormRound round = ROUND_LEFT;
    if (obj == _editModel)
        round =
            enterFormText(this, box, _editModel, _editModel->text(), tr("Modifica Modello Modulo"),
                          tr("Modello Modulo"), tr("Modello vuoto."), tr("Troppo lungo."));
    for (const FormNumber& field : _number)
        if (obj == field.edit)
            round = enterFormNumber(this, box, field);
    if (round == ROUND_ACCEPTED)
        _buttonSave->setEnabled(true);
    delete box;
}

void EditSelectedPanel::savePanelEdited()
{
    QByteArray model = textToStore(_editModel->text());
    char* grown =
        static_cast<char*>(realloc(_record.modelName, static_cast<size_t>(model.size()) + 1));
    if (grown != nullptr) {
        memcpy(grown, model.constData(), static_cast<size_t>(model.size()) + 1);
        _record.modelName = grown;
    }
    saveDataPanel(&_record);
    freePanelStrings(&_panelReference);
    memset(&_panelReference, 0, sizeof _panelReference);
    memPanelCpy(&_panelReference, &_record);
    _buttonSave->setEnabled(false);
    showMessageBox(this, QMessageBox::Information, tr("Modifica Modulo"), tr("Modifica Modulo"),
                   tr("Eseguito con successo."));
}

QList<QWidget*> EditSelectedPanel::focusChain() const
{
    return featureChain({_editModel}, _number, _comboType,
                        {_buttonSave, _buttonReset, _buttonExit});
}

void EditSelectedPanel::returnOn(QWidget* focused)
{
    if (focused == _editModel)
        editLineObject(_editModel);
    else if (focused == _buttonSave)
        savePanelEdited();
    else if (focused == _buttonReset)
        modelReloaded();
    else if (focused == _buttonExit)
        reject();
}
