#include "archive/deletepanel.h"

#include "archive/archiveform.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cstring>

DeletePanel::DeletePanel(QWidget* parent, _listBrand* brandList)
    : QDialog(parent), _brandHead(brandList), _modelHead(nullptr)
{
    setObjectName("DeletePanelModel");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Cancella Modulo / Modello"));
    setFormFont(this, _infoBar, 30);

    _comboBrand = new QComboBox;
    _comboBrand->setObjectName("brand");
    QHBoxLayout* brandRow = new QHBoxLayout;
    brandRow->addWidget(new QLabel(tr("Marca")));
    brandRow->addWidget(_comboBrand, 1);
    _listWidgetModel = new QListWidget;
    _listWidgetModel->setObjectName("models");
    _labelCount = new QLabel;
    _labelCount->setObjectName("count");
    _buttonDeleteModel = new QPushButton(QIcon(":/icon/trash.png"), tr("Cancella Modello"));
    _buttonDeleteModel->setObjectName("Cancella Modello");
    _buttonDeleteBrand = new QPushButton(QIcon(":/icon/trash.png"), tr("Cancella Marca"));
    _buttonDeleteBrand->setObjectName("Cancella Marca");
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonDeleteModel);
    buttons->addWidget(_buttonDeleteBrand);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addLayout(brandRow);
    box->addWidget(new QLabel(tr("Modello")));
    box->addWidget(_listWidgetModel);
    box->addWidget(_labelCount);
    box->addLayout(buttons);

    insertBrandOnCombo();
    selectBrandOnCombo();
    connect(_comboBrand, &QComboBox::currentIndexChanged, this, &DeletePanel::selectBrandOnCombo);
    connect(_listWidgetModel, &QListWidget::itemPressed, this, &DeletePanel::selectModel);
    connect(_buttonDeleteModel, &QPushButton::clicked, this, &DeletePanel::questionDeleteModel);
    connect(_buttonDeleteBrand, &QPushButton::clicked, this, &DeletePanel::questionDeleteBrand);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

DeletePanel::~DeletePanel()
{
    closeListModelBrand(_modelHead);
}

void DeletePanel::insertBrandOnCombo()
{
    QSignalBlocker block(_comboBrand);
    fillSortedCombo(_comboBrand, brandEntries(_brandHead));
}

void DeletePanel::selectBrandOnCombo()
{
    _listBrand* node = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    _modelHead = closeListModelBrand(_modelHead);
    if (node != nullptr)
        _modelHead = readListModelPanel(node->dir);
    // each item keeps its model's file, by which the deletion goes
    QList<NamedEntry> models = modelEntries(_modelHead);
    sortByName(&models);
    _listWidgetModel->clear();
    for (const NamedEntry& e : models) {
        QListWidgetItem* item = new QListWidgetItem(e.name, _listWidgetModel);
        item->setData(Qt::UserRole, e.key);
    }
    _labelCount->setText(tr("Numero di Modelli : ") + QString::number(models.size()));
    _modelSelected.clear();
    _buttonDeleteModel->setEnabled(false);
    _buttonDeleteBrand->setEnabled(node != nullptr);
}

void DeletePanel::selectModel(QListWidgetItem* item)
{
    if (item == nullptr)
        return;
    _modelSelected = item->data(Qt::UserRole).toByteArray();
    _buttonDeleteModel->setEnabled(true);
}

bool DeletePanel::askConfirmation(const QString& text)
{
    return askYesNo(this, tr("Cancella Modulo / Modello"), text, tr("Conferma?"));
}

void DeletePanel::questionDeleteModel()
{
    if (askConfirmation(tr("Cancella Modello")))
        eraseModel();
}

void DeletePanel::questionDeleteBrand()
{
    if (askConfirmation(tr("Cancella Marca")))
        eraseBrand();
}

void DeletePanel::eraseModel()
{
    _listBrand* brandNode = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    _listModel* modelNode = findModelFile(_modelHead, _modelSelected.constData());
    if (brandNode != nullptr && modelNode != nullptr)
        deleteModelPanel(brandNode->dir, modelNode->file);
    selectBrandOnCombo();
}

void DeletePanel::eraseBrand()
{
    _listBrand* node = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    if (node == nullptr)
        return;
    int models = 0;
    for (_listModel* m = _modelHead; m != nullptr; m = m->next)
        models++;
    QProgressDialog progress(tr("Cancella Modulo..."), QString(), 0, models + 2, this);
    progress.reset(); // stops the show timer of the constructor (see PanelIV::measurePanel)
    progress.setWindowModality(Qt::WindowModal);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.setValue(0);

    int step = 0;
    deleteBrandPanel(node->dir, [&progress, &step] {
        progress.setValue(++step);
        QCoreApplication::processEvents();
    });
    progress.setValue(models + 2);

    _modelHead = closeListModelBrand(_modelHead);
    closeListBrandPanel(_brandHead);
    _brandHead = readListBrandPanel(this);
    insertBrandOnCombo();
    {
        QSignalBlocker block(_listWidgetModel);
        selectBrandOnCombo();
    }
}

void DeletePanel::keyPressEvent(QKeyEvent* event)
{
    QList<QWidget*> chain{_comboBrand, _listWidgetModel, _buttonDeleteModel, _buttonDeleteBrand,
                          _buttonExit};
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(chain, true);
        break;
    case Qt::Key_Up:
        walkFocus(chain, false);
        break;
    case Qt::Key_Return:
        if (_listWidgetModel->hasFocus())
            selectModel(_listWidgetModel->currentItem());
        else if (_buttonDeleteModel->hasFocus())
            questionDeleteModel();
        else if (_buttonDeleteBrand->hasFocus())
            questionDeleteBrand();
        else if (_buttonExit->hasFocus())
            reject();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
