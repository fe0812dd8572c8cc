#include "archive/editpanel.h"

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

EditPanel::EditPanel(QWidget* parent, _listBrand* brandList)
    : FormDialog(parent, "EditPanel", tr("Modifica Modulo"), 24), _brandHead(brandList),
      _modelHead(nullptr)
{
    memset(&_record, 0, sizeof _record);

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
    _comboBrand = new QComboBox;
    _comboBrand->setObjectName("brand");
    grid->addWidget(new QLabel(tr("Marca")), 0, 0);
    grid->addWidget(_comboBrand, 0, 1, 1, 2);
    _comboModel = new QComboBox;
    _comboModel->setObjectName("model");
    grid->addWidget(new QLabel(tr("Modello")), 0, 3);
    grid->addWidget(_comboModel, 0, 4, 1, 2);
    _comboType = new QComboBox;
    placeFeatureNumbers(this, grid, _number, label, _comboType, tr("Tipo"));

    _buttonSave = formButton(":/icon/save.png", tr("Salva"), "Salva");
    _buttonReset = formButton(":/icon/view-refresh.png", tr("Reset"), "Reset");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");

    prepareCombo();
    resetFeature(&_record.feature);
    insertBrandOnCombo();
    selectBrandOnCombo();

    connect(_comboType, &QComboBox::currentIndexChanged, this, &EditPanel::selectPanelType);
    connect(_comboBrand, &QComboBox::currentIndexChanged, this, &EditPanel::selectBrandOnCombo);
    connect(_comboModel, &QComboBox::currentIndexChanged, this, &EditPanel::selectModelOnCombo);
    connect(_buttonSave, &QPushButton::clicked, this, &EditPanel::savePanelEdited);
    connect(_buttonReset, &QPushButton::clicked, this, &EditPanel::modelReloaded);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {_buttonSave, _buttonReset, _buttonExit});
}

EditPanel::~EditPanel()
{
    closeListModelBrand(_modelHead);
    takeNames(nullptr, nullptr);
}

void EditPanel::prepareCombo()
{
    const QString names[PANEL_TYPES] = {tr("Sconosciuto"),     tr("Monocristallino"),
                                        tr("Policristallino"), tr("Film Sottile"),
                                        tr("Amorfo"),          tr("MicroMorfo")};
    fillTypeCombo(_comboType, &_typeMap, names);
}

void EditPanel::insertBrandOnCombo()
{
    QSignalBlocker block(_comboBrand);
    fillSortedCombo(_comboBrand, brandEntries(_brandHead));
}

void EditPanel::resetFeature(_panelFeature* feature)
{
    memset(feature, 0, sizeof *feature);
}

// The record names the model on screen; with none chosen it names nothing.
void EditPanel::takeNames(_listBrand* brand, _listModel* model)
{
    free(_record.brandName);
    free(_record.brandDir);
    free(_record.modelName);
    free(_record.modelFile);
    // a model file without a name line has no name
    _record.brandName = brand != nullptr ? allocData(nullptr, brand->name) : nullptr;
    _record.brandDir = brand != nullptr ? allocData(nullptr, brand->dir) : nullptr;
    _record.modelName = model != nullptr ? allocData(nullptr, model->name) : nullptr;
    _record.modelFile = model != nullptr ? allocData(nullptr, model->file) : nullptr;
}

void EditPanel::selectBrandOnCombo()
{
    QSignalBlocker block(_comboModel);
    _modelHead = closeListModelBrand(_modelHead);
    _listBrand* node = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    if (node != nullptr)
        _modelHead = readListModelPanel(node->dir);
    fillSortedCombo(_comboModel, modelEntries(_modelHead));
    _comboModel->setCurrentIndex(0);
    selectModelOnCombo();
}

void EditPanel::selectModelOnCombo()
{
    _listBrand* brandNode = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    _listModel* modelNode = findModelFile(_modelHead, comboKey(_comboModel).constData());
    takeNames(brandNode, modelNode);
    resetFeature(&_record.feature);
    if (brandNode != nullptr && modelNode != nullptr)
        getPanelFeature(brandNode->dir, modelNode->file, &_record.feature);
    // nothing to write while no model is chosen
    _buttonSave->setEnabled(modelNode != nullptr);
    _buttonReset->setEnabled(modelNode != nullptr);
    viewFeaturePanel();
}

void EditPanel::modelReloaded()
{
    resetFeature(&_record.feature);
    if (_record.brandDir != nullptr && _record.modelFile != nullptr)
        getPanelFeature(_record.brandDir, _record.modelFile, &_record.feature);
    viewFeaturePanel();
}

void EditPanel::viewFeaturePanel()
{
    for (const FormNumber& field : _number)
        showFormNumber(field);
    QSignalBlocker block(_comboType);
    int type = _record.feature.type;
    _comboType->setCurrentIndex(type >= 0 && type < PANEL_TYPES ? type : 0);
    resetCursorPosition();
}

void EditPanel::resetCursorPosition()
{
    for (const FormNumber& field : _number)
        field.edit->setCursorPosition(0);
}

void EditPanel::selectPanelType()
{
    _record.feature.type = _typeMap.value(_comboType->currentText(), 0);
    // the technology's default replaces any value typed before
    _record.feature.kvoc = defaultKvoc(_record.feature.type);
    showFormNumber(_number[KVOC]);
}

void EditPanel::editLineObject(QObject* obj)
{
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Information, QString(), tr("Testo inserito non valido."));
    for (const FormNumber& field : _number)
        if (obj == field.edit)
            enterFormNumber(this, box, field);
    delete box;
}

void EditPanel::savePanelEdited()
{
    QByteArray model = textToStore(_comboModel->currentText());
    free(_record.modelName);
    _record.modelName = _record.modelFile != nullptr ? strdup(model.constData()) : nullptr;
    // the outcome of the write is not told on this screen
    saveDataPanel(&_record);
    showMessageBox(this, QMessageBox::Information, tr("Modifica Modulo"), tr("Modifica Modulo"),
                   tr("Eseguito con successo."));
}

QList<QWidget*> EditPanel::focusChain() const
{
    return featureChain({_comboBrand, _comboModel}, _number, _comboType,
                        {_buttonSave, _buttonReset, _buttonExit});
}

void EditPanel::returnOn(QWidget* focused)
{
    if (focused == _buttonSave)
        savePanelEdited();
    else if (focused == _buttonReset)
        modelReloaded();
    else if (focused == _buttonExit)
        reject();
}
