#include "archive/listmeasures.h"

#include "archive/archiveform.h"
#include "data/datameasures.h"
#include "data/storedtext.h"
#include "measure/viewmeasures.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "toolkit/tabcolumns.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

static QPushButton* listButton(const char* icon, const QString& text, const char* name)
{
    QPushButton* button = new QPushButton(QIcon(icon), text);
    button->setObjectName(name);
    button->setIconSize(QSize(16, 16));
    return button;
}

ListMeasures::ListMeasures(QWidget* parent, _meaType type, _selectType selectType)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint),
      selected(nullptr), meaType(type), selectType(selectType), current(nullptr), head(nullptr),
      addButton(nullptr), graphButton(nullptr), deleteButton(nullptr)
{
    setObjectName("ListMeasures");
    head = readListMeasures(parent, meaType);

    const QString title =
        meaType == MEA_PANEL ? tr("Lista Misure Moduli") : tr("Lista Misure Stringhe");
    setWindowTitle(title);
    infoBar = new InfoBar(this);
    infoBar->setTitle(title);
    listWidget = new QListWidget;
    listWidget->setObjectName("measures");
    // date, time and comment stand in columns under the header's words
    new TabColumns(listWidget);

    QPushButton* first = nullptr;
    switch (selectType) {
    case SELECT_VIEW:
        first = graphButton = listButton(":/icon/graphpanel.png", tr("Grafico"), "Grafico");
        connect(graphButton, &QPushButton::clicked, this, &ListMeasures::goToViewGraphMeasures);
        break;
    case SELECT_DELETE:
        first = deleteButton = listButton(":/icon/trash.png", tr("Cancella"), "Cancella");
        connect(deleteButton, &QPushButton::clicked, this, &ListMeasures::goToDeleteMeasures);
        break;
    default:
        first = addButton = listButton(":/icon/add.png", tr("Aggiungi"), "Aggiungi");
        connect(addButton, &QPushButton::clicked, this, &ListMeasures::goToAddMeasures);
        break;
    }
    first->setEnabled(head != nullptr);
    exitButton = listButton(":/icon/exit.png", tr("Exit"), "Exit");
    exitButton->setAutoDefault(true);
    exitButton->setDefault(true);
    connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);

    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(first);
    buttons->addWidget(exitButton);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(infoBar);
    box->addStretch();
    // the rows take the room the stretches would leave empty: more measures
    // stand on the screen at once
    box->addWidget(listWidget, 1);
    box->addStretch();
    box->addLayout(buttons);

    addMeasuresInList();
    listWidget->setFocus();
    setModal(true);
    showMaximized();
}

ListMeasures::~ListMeasures()
{
    closeListMeasures(head);
}

QString ListMeasures::createStrForList(const _listMeasures* node)
{
    return storedText(node->mdata) + " " + storedText(node->mtime) + "\t" + storedText(node->mcom);
}

void ListMeasures::addMeasuresInList()
{
    current = head;
    listWidget->clear();
    listWidget->setSortingEnabled(true);
    for (; current != nullptr; current = current->next)
        listWidget->addItem(createStrForList(current));
    listWidget->setSortingEnabled(false);
    headerListMeasures();
}

void ListMeasures::headerListMeasures()
{
    listWidget->insertItem(0, tr("Data") + " " + tr("Ora") + "\t" + tr("Commento"));
}

// The list shows only texts: the node of the current row is the first whose
// row text stands within the row's text (so two measures of the same date,
// time and comment are one, the first in list order). The header is no
// measure's row.
_listMeasures* ListMeasures::nodeOfCurrentRow()
{
    QListWidgetItem* item = listWidget->currentItem();
    if (item == nullptr)
        return nullptr;
    for (current = head; current != nullptr; current = current->next)
        if (item->text().contains(createStrForList(current), Qt::CaseSensitive))
            return current;
    return nullptr;
}

void ListMeasures::goToViewGraphMeasures()
{
    _listMeasures* node = nodeOfCurrentRow();
    if (node == nullptr)
        return;
    ViewMeasures* screen = new ViewMeasures(this, node, meaType);
    screen->exec();
    delete screen;
}

void ListMeasures::goToAddMeasures()
{
    _listMeasures* node = nodeOfCurrentRow();
    if (node == nullptr)
        return;
    selected = node;
    accept();
}

void ListMeasures::goToDeleteMeasures()
{
    QMessageBox* box = newMessageBox(this, QMessageBox::Critical, QString(),
                                     meaType == MEA_PANEL ? tr("Cancella Misure Modulo")
                                                          : tr("Cancella Misure Stringhe"));
    box->setInformativeText(tr("Conferma?"));
    box->setStandardButtons(QMessageBox::Ok | QMessageBox::No);
    box->setDefaultButton(QMessageBox::No);
    if (listWidget->currentItem() == nullptr) {
        delete box;
        return;
    }
    _listMeasures* node = nodeOfCurrentRow();
    if (node != nullptr && box->exec() == QMessageBox::Ok) {
        deleteMeasures(node->file, meaType);
        head = closeListMeasures(head);
        head = readListMeasures(this, meaType);
        addMeasuresInList();
        deleteButton->setEnabled(head != nullptr);
    }
    delete box;
}

QPushButton* ListMeasures::firstButton() const
{
    if (graphButton != nullptr)
        return graphButton;
    return deleteButton != nullptr ? deleteButton : addButton;
}

void ListMeasures::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
        if (firstButton()->hasFocus()) {
            if (selectType == SELECT_VIEW)
                goToViewGraphMeasures();
            else if (selectType == SELECT_DELETE)
                goToDeleteMeasures();
            else
                goToAddMeasures();
        } else if (exitButton->hasFocus()) {
            reject();
        }
        break;
    case Qt::Key_Down:
    case Qt::Key_Up:
        // The old screen sent Up and Down from the list to "Exit" and from
        // anywhere else back to the list: with the keys alone the first
        // button was never reached. They walk list, first button and "Exit"
        // as a ring; the first button is passed over while disabled.
        walkFocus({listWidget, firstButton(), exitButton}, event->key() == Qt::Key_Down);
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
