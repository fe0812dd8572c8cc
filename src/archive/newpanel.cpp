#include "archive/newpanel.h"

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
#include <QVBoxLayout>
#include <cstdlib>
#include <cstring>
#include <limits>

NewPanel::NewPanel(QWidget* parent, _listBrand* brandList)
    : FormDialog(parent, "NewPanel", tr("Nuovo Modulo"), 24), _brandHead(brandList)
{
    const float none = std::numeric_limits<float>::max();
    // Voc has no upper bound and Toll- may be negative here, on purpose.
    // clang-format off
    _number[PMAX] = {new QLineEdit, &_feature.pmax, 1, 1000, 1, tr("Pmax"), tr("Pmax"), tr("Pmax : ")};
    _number[NOCT] = {new QLineEdit, &_feature.noct, 0, 100, 1,
                     tr("Temperatura Nominale della Cella - NOCT [°C]"), tr("NOCT [°C]"),
                     tr("NOCT : ")};
    _number[VMPP] = {new QLineEdit, &_feature.vmpp, 1, 300, 2, tr("Vmpp"), tr("Vmpp"), tr("Vmpp : ")};
    _number[IMPP] = {new QLineEdit, &_feature.impp, 0.1f, 20, 2, tr("Impp"), tr("Impp"), tr("Impp : ")};
    _number[VOC] = {new QLineEdit, &_feature.voc, 0, none, 2, tr("Voc"), tr("Voc"), tr("Voc : ")};
    _number[ISC] = {new QLineEdit, &_feature.isc, 0.1f, 20, 2, tr("Isc"), tr("Isc"), tr("Isc : ")};
    _number[KISC] = {new QLineEdit, &_feature.kisc, 0.0001f, 1, 3,
                     tr("Coefficiente di Temperatura di Isc [%/°C]"),
                     tr("Coefficiente di Temperatura Isc [%/°C]"), tr("Alpha : ")};
    _number[KVOC] = {new QLineEdit, &_feature.kvoc, -1, 1, 4,
                     tr("Coefficiente di Temperatura di Voc [%/°C]"),
                     tr("Coefficiente di Temperatura Voc [%/°C]"), tr("Beta : ")};
    _number[KPMAX] = {new QLineEdit, &_feature.kpmax, -1, 1, 3,
                      tr("Coefficiente di Temperatura di Pmax [%/°C]"),
                      tr("Coefficiente di Temperatura Pmax [%/°C]"), tr("Gamma : ")};
    _number[TOLLM] = {new QLineEdit, &_feature.tollm, -50, 50, 2, tr("Tolleranza Minima [%]"),
                      tr("Tolleranza Minima [%]"), tr("Toll- : ")};
    _number[TOLLP] = {new QLineEdit, &_feature.tollp, 0, 50, 2, tr("Tolleranza Massima [%]"),
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
    _editModel = formLine(grid, "model", tr("Modello"), QString(), 0, 3, 260);
    _comboType = new QComboBox;
    placeFeatureNumbers(this, grid, _number, label, _comboType, tr("Tipo"));

    _buttonSave = formButton(":/icon/save.png", tr("Salva"), "Salva");
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");

    prepareCombo();
    insertBrandOnCombo();
    resetFeature();
    resetLineEdit();
    _buttonSave->setEnabled(false);

    connect(_comboType, &QComboBox::currentIndexChanged, this, &NewPanel::selectPanelType);
    connect(_buttonSave, &QPushButton::clicked, this, &NewPanel::savePanel);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {_buttonSave, _buttonExit});
}

NewPanel::~NewPanel() = default;

void NewPanel::prepareCombo()
{
    const QString names[PANEL_TYPES] = {tr("Sconosciuto"),     tr("Monocristallino"),
                                        tr("Policristallino"), tr("Film Sottile"),
                                        tr("Amorfo"),          tr("MicroMorfo")};
    fillTypeCombo(_comboType, &_typeMap, names);
}

void NewPanel::insertBrandOnCombo()
{
    fillSortedCombo(_comboBrand, brandEntries(_brandHead));
}

void NewPanel::resetFeature()
{
    memset(&_feature, 0, sizeof _feature);
    for (bool& entered : _entered)
        entered = false;
    _enteredModel = false;
    _enteredSave = false;
}

void NewPanel::resetLineEdit()
{
    _editModel->clear();
    _modelName.clear();
    for (const FormNumber& field : _number)
        showFormNumber(field);
}

bool NewPanel::enteredFeature() const
{
    for (bool entered : _entered)
        if (!entered)
            return false;
    return true;
}

bool NewPanel::enteredAllParamPanel() const
{
    return _enteredModel && enteredFeature();
}

void NewPanel::updateSaveButton()
{
    _enteredSave = enteredAllParamPanel();
    _buttonSave->setEnabled(_enteredSave);
}

void NewPanel::selectPanelType()
{
    _feature.type = _typeMap.value(_comboType->currentText(), 0);
    // the technology's default replaces any value typed before
    _feature.kvoc = defaultKvoc(_feature.type);
    showFormNumber(_number[KVOC]);
    _entered[KVOC] = true;
}

void NewPanel::editLineObject(QObject* obj)
{
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Information, QString(), tr("Testo inserito non valido."));
    if (obj == _editModel) {
        FormRound round =
            enterFormText(this, box, _editModel, _editModel->text(), tr("Modifica Modello Modulo"),
                          tr("Modello Modulo"), tr("Modello vuoto."), tr("Troppo lungo."));
        if (round == ROUND_ACCEPTED) {
            _modelName = _editModel->text();
            _enteredModel = true;
        } else if (round == ROUND_REFUSED) {
            _enteredModel = false;
        }
    }
    for (int i = 0; i < NUMBERS; i++) {
        if (obj != _number[i].edit)
            continue;
        FormRound round = enterFormNumber(this, box, _number[i]);
        if (round != ROUND_LEFT)
            _entered[i] = round == ROUND_ACCEPTED;
    }
    updateSaveButton();
    delete box;
}

void NewPanel::savePanel()
{
    QByteArray model = textToStore(_modelName);
    _panel panel;
    panel.brandName = nullptr;
    panel.brandDir = nullptr;
    panel.modelName = nullptr;
    panel.modelFile = nullptr;
    panel.feature = _feature;

    QString text = tr("Nuovo Modulo");
    _listBrand* node = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    _listModel* list = nullptr;
    if (node != nullptr) {
        panel.brandName = strdup(node->name);
        panel.brandDir = strdup(node->dir);
        list = readListModelPanel(node->dir);
        _listModel* known = findModelPanel(list, model.constData());
        if (known != nullptr) {
            text = tr("Aggiornamento Modulo");
            panel.modelName = strdup(known->name);
            panel.modelFile = strdup(known->file);
        } else {
            panel.modelName = strdup(model.constData());
            panel.modelFile = newNameFile(model.constData(), _feature.pmax, node->dir);
        }
    }
    // no brand in the archive yet: nothing to save into
    int result = saveNewDataPanel(&panel);
    showMessageBox(this, QMessageBox::Information, tr("Nuovo Modulo"), text,
                   result == 0 ? tr("Eseguito con successo.") : tr("Errore nel salvataggio."));
    closeListModelBrand(list);
    free(panel.brandName);
    free(panel.brandDir);
    free(panel.modelName);
    free(panel.modelFile);
}

QList<QWidget*> NewPanel::focusChain() const
{
    return featureChain({_comboBrand, _editModel}, _number, _comboType, {_buttonSave, _buttonExit});
}

void NewPanel::returnOn(QWidget* focused)
{
    if (focused == _editModel)
        editLineObject(_editModel);
    else if (focused == _buttonSave)
        savePanel();
    else if (focused == _buttonExit)
        reject();
}
