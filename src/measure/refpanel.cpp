#include "measure/refpanel.h"

#include "archive/editselpanel.h"
#include "archive/newpanel.h"
#include "data/datapanel.h"
#include "data/storedtext.h"
#include "toolkit/infobar.h"
#include "toolkit/textfit.h"
#include "toolkit/numbertext.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

namespace {

QVBoxLayout* labelledList(const QString& label, QListWidget* list)
{
    QVBoxLayout* column = new QVBoxLayout;
    column->addWidget(new QLabel(label));
    column->addWidget(list);
    return column;
}

QString featureRow(const char* name, float value, int decimals, const char* unit)
{
    return QString(name) + " \n" + storedNumberText(value, decimals) + unit;
}

// The old screen kept only the names and looked the chosen one up by its
// name again: of two brands or models of one name the first was taken, a
// name that is not valid UTF-8 or a file without a name line was never
// found, and "Conferma" could confirm another model than the one shown.
// Each item keeps its brand's directory or its model's file, and every
// lookup goes by that.
void keyedItem(QListWidget* list, const char* name, const char* key)
{
    QListWidgetItem* item = new QListWidgetItem(storedText(name), list);
    item->setData(Qt::UserRole, QByteArray(key));
}

QByteArray itemKey(const QListWidgetItem* item)
{
    return item->data(Qt::UserRole).toByteArray();
}

// All the characteristics stand in their list at once: in the largest font,
// not above the screen's, in which every row fits the list's height, but not
// below the smallest an operator reads.
void fitAllRows(QListWidget* list, const QFont& screenFont)
{
    QFont font = screenFont;
    int px = fontPixels(font);
    while (true) {
        list->setFont(font);
        int height = 0;
        for (int row = 0; row < list->count(); ++row)
            height += list->sizeHintForRow(row);
        if (height <= list->viewport()->height() || px <= MinTextPixels)
            break;
        font.setPixelSize(--px);
    }
}

} // namespace

ReferencePanel::ReferencePanel(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint),
      _selectedModel(nullptr), _selectedBrand(nullptr), _modelChosen(false),
      _brandCursor(nullptr), _brandHead(nullptr), _modelCursor(nullptr), _modelHead(nullptr)
{
    setObjectName("ReferencePanel");
    std::memset(_brandDirName, 0, sizeof _brandDirName);
    std::memset(_modelFileName, 0, sizeof _modelFileName);
    std::memset(&_feature, 0, sizeof _feature);

    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Modulo di Riferimento"));
    _listWidgetBrand = new QListWidget;
    _listWidgetBrand->setObjectName("Marca");
    _listWidgetModel = new QListWidget;
    _listWidgetModel->setObjectName("Modello");
    _listWidgetFeature = new QListWidget;
    _listWidgetFeature->setObjectName("Caratteristiche");

    _buttonConfirm = new QPushButton(QIcon(":/icon/confirm.png"), tr("Conferma"));
    _buttonConfirm->setObjectName("Conferma");
    _buttonConfirm->setEnabled(false);
    _buttonEdit = new QPushButton(QIcon(":/icon/edit.png"), tr("Modifica"));
    _buttonEdit->setObjectName("Modifica");
    _buttonEdit->setEnabled(false);
    _buttonNew = new QPushButton(QIcon(":/icon/panelnew.png"), tr("Nuovo Modello"));
    _buttonNew->setObjectName("Nuovo Modello");
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    _buttonExit->setAutoDefault(true);
    _buttonExit->setDefault(true);

    QHBoxLayout* lists = new QHBoxLayout;
    lists->addLayout(labelledList(tr("Marca"), _listWidgetBrand));
    lists->addLayout(labelledList(tr("Modello"), _listWidgetModel));
    lists->addLayout(labelledList(tr("Caratteristiche"), _listWidgetFeature));
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonConfirm);
    buttons->addWidget(_buttonEdit);
    buttons->addWidget(_buttonNew);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* page = new QVBoxLayout(this);
    page->addWidget(_infoBar);
    page->addLayout(lists);
    page->addLayout(buttons);

    connect(_buttonConfirm, &QPushButton::clicked, this, &ReferencePanel::goToConfirmPanel);
    connect(_buttonEdit, &QPushButton::clicked, this, &ReferencePanel::goToEditPanel);
    connect(_buttonNew, &QPushButton::clicked, this, &ReferencePanel::goToNewPanel);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(_listWidgetBrand, &QListWidget::itemSelectionChanged, this,
            &ReferencePanel::showModel);
    connect(_listWidgetModel, &QListWidget::itemSelectionChanged, this,
            &ReferencePanel::showCharacteristics);
    // maximized when shown: exec() shows it, and only then does it become modal
    setWindowState(windowState() | Qt::WindowMaximized);
    readBrandPanel();
}

ReferencePanel::~ReferencePanel()
{
    closeListModelBrand(_modelHead);
    closeListBrandPanel(_brandHead);
}

void ReferencePanel::readBrandPanel()
{
    _listWidgetBrand->clear();
    _brandHead = readListBrandPanel(this);
    _brandCursor = _brandHead;
    if (_brandHead == nullptr)
        _listWidgetBrand->addItem(tr("Vuoto"));
    for (_listBrand* b = _brandHead; b != nullptr; b = b->next)
        keyedItem(_listWidgetBrand, b->name, b->dir);
    _brandCursor = _brandHead;
}

void ReferencePanel::showModel()
{
    if (_brandHead == nullptr)
        return;
    _brandCursor = _brandHead;
    // the model list goes first, so that its selection signal finds no list
    _modelCursor = _modelHead = closeListModelBrand(_modelHead);
    _listWidgetModel->clear();
    _listWidgetFeature->clear();
    QListWidgetItem* item = _listWidgetBrand->currentItem();
    _listBrand* brand =
        item == nullptr ? nullptr : findBrandDir(_brandHead, itemKey(item).constData());
    if (brand != nullptr) {
        _brandCursor = brand;
        std::memset(_brandDirName, 0, sizeof _brandDirName);
        std::strncpy(_brandDirName, brand->dir, sizeof _brandDirName - 1);
        _modelHead = readListModelPanel(_brandDirName);
        _modelCursor = _modelHead;
        if (_modelHead == nullptr)
            _listWidgetModel->addItem(tr("Vuoto"));
        for (_listModel* m = _modelHead; m != nullptr; m = m->next)
            keyedItem(_listWidgetModel, m->name, m->file);
    }
    _modelChosen = false;
    _buttonEdit->setEnabled(false);
    _buttonConfirm->setEnabled(false);
}

void ReferencePanel::showCharacteristics()
{
    if (_modelHead == nullptr)
        return;
    _modelCursor = _modelHead;
    _listWidgetFeature->clear();
    QListWidgetItem* item = _listWidgetModel->currentItem();
    _listModel* model =
        item == nullptr ? nullptr : findModelFile(_modelHead, itemKey(item).constData());
    if (model == nullptr)
        return;
    _modelCursor = model;
    std::memset(_modelFileName, 0, sizeof _modelFileName);
    std::strncpy(_modelFileName, model->file, sizeof _modelFileName - 1);
    getPanelFeature(_brandDirName, _modelFileName, &_feature);
    _listWidgetFeature->addItem(featureRow("Pmax", _feature.pmax, 1, " W"));
    _listWidgetFeature->addItem(featureRow("Vmpp", _feature.vmpp, 2, " V"));
    _listWidgetFeature->addItem(featureRow("Impp", _feature.impp, 2, " A"));
    _listWidgetFeature->addItem(featureRow("Voc", _feature.voc, 2, " V"));
    _listWidgetFeature->addItem(featureRow("Isc", _feature.isc, 2, " A"));
    fitAllRows(_listWidgetFeature, font());
    _modelChosen = true;
    _buttonEdit->setEnabled(true);
    _buttonConfirm->setEnabled(true);
}

void ReferencePanel::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    fitAllRows(_listWidgetFeature, font());
}

void ReferencePanel::goToConfirmPanel()
{
    _selectedBrand = _brandCursor;
    _selectedModel = _modelCursor;
    accept();
}

void ReferencePanel::goToEditPanel()
{
    EditSelectedPanel* editor = new EditSelectedPanel(this, _brandDirName, _modelFileName);
    editor->exec();
    delete editor;
    showModel(); // the models again, as the editor may have renamed one
    _modelChosen = false;
    _buttonEdit->setEnabled(false);
    _buttonConfirm->setEnabled(false);
}

void ReferencePanel::goToNewPanel()
{
    _brandCursor = _brandHead;
    NewPanel* creator = new NewPanel(this, _brandCursor);
    creator->exec();
    _brandCursor = _brandHead = creator->_brandHead;
    delete creator;
    closeListModelBrand(_modelHead);
    closeListBrandPanel(_brandHead);
    _brandHead = _brandCursor = nullptr;
    _modelHead = _modelCursor = nullptr;
    _listWidgetModel->clear();
    _listWidgetFeature->clear();
    readBrandPanel();
    _modelChosen = false;
    _buttonEdit->setEnabled(false);
    _buttonConfirm->setEnabled(false);
}

void ReferencePanel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
        if (_buttonExit->hasFocus())
            reject();
        else if (_buttonConfirm->hasFocus())
            goToConfirmPanel();
        else if (_listWidgetBrand->hasFocus())
            showModel();
        else if (_listWidgetModel->hasFocus())
            showCharacteristics();
        else if (_buttonEdit->hasFocus())
            goToEditPanel();
        else if (_buttonNew->hasFocus())
            goToNewPanel();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
