#include "archive/listpanel.h"

#include "archive/archiveform.h"
#include "data/datapanel.h"
#include "data/storedtext.h"
#include "toolkit/infobar.h"
#include "toolkit/numbertext.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

ListPanel::ListPanel(QWidget* parent, _listBrand* brandList)
    : QDialog(parent), _brandHead(brandList), _modelHead(nullptr)
{
    setObjectName("ListPanel");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Lista Moduli"));

    _comboBrand = new QComboBox;
    _comboBrand->setObjectName("brand");
    QHBoxLayout* brandRow = new QHBoxLayout;
    brandRow->addWidget(new QLabel(tr("Marca")));
    brandRow->addWidget(_comboBrand, 1);
    _table = new QTableWidget;
    _table->setObjectName("table");
    // seven columns of figures across the screen: the table's own, smaller font
    QFont tableFont = _table->font();
    tableFont.setPointSize(22);
    _table->setFont(tableFont);
    _table->horizontalHeader()->setFont(tableFont);
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addLayout(brandRow);
    box->addWidget(_table);
    box->addLayout(buttons);

    insertBrandOnCombo();
    selectBrandOnCombo();
    connect(_comboBrand, &QComboBox::currentIndexChanged, this, &ListPanel::selectBrandOnCombo);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

ListPanel::~ListPanel()
{
    closeListModelBrand(_modelHead);
}

void ListPanel::insertBrandOnCombo()
{
    fillSortedCombo(_comboBrand, brandEntries(_brandHead));
}

void ListPanel::addItemToTable(int row, int column, QString text)
{
    QTableWidgetItem* item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    _table->setItem(row, column, item);
}

void ListPanel::selectBrandOnCombo()
{
    _listBrand* node = findBrandDir(_brandHead, comboKey(_comboBrand).constData());
    _modelHead = closeListModelBrand(_modelHead);
    if (node != nullptr)
        _modelHead = readListModelPanel(node->dir);
    _table->clear();
    _table->setRowCount(0);
    _table->setColumnCount(0);

    _table->setColumnCount(7);
    _table->setHorizontalHeaderLabels({tr("Model"), tr("Pmax") + " W", tr("Vmpp") + " (V)",
                                       tr("Impp") + " (A)", tr("Voc") + " (V)",
                                       tr("Isc") + " (A)", tr("Beta") + " (%/°C)"});
    int row = 0;
    for (_listModel* m = _modelHead; m != nullptr; m = m->next, row++) {
        _panelFeature f;
        getPanelFeature(node->dir, m->file, &f);
        _table->insertRow(row);
        addItemToTable(row, 0, storedText(m->name));
        addItemToTable(row, 1, storedNumberText(f.pmax, 1));
        addItemToTable(row, 2, storedNumberText(f.vmpp, 2));
        addItemToTable(row, 3, storedNumberText(f.impp, 2));
        addItemToTable(row, 4, storedNumberText(f.voc, 2));
        addItemToTable(row, 5, storedNumberText(f.isc, 2));
        addItemToTable(row, 6, storedNumberText(f.kvoc, 4));
    }
    for (int column = 1; column <= 6; column++)
        _table->resizeColumnToContents(column);
    // the model's name takes the room the figures leave
    _table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void ListPanel::keyPressEvent(QKeyEvent* event)
{
    QList<QWidget*> chain{_comboBrand, _table, _buttonExit};
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(chain, true);
        break;
    case Qt::Key_Up:
        walkFocus(chain, false);
        break;
    case Qt::Key_Return:
        if (_buttonExit->hasFocus())
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
