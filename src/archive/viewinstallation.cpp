#include "archive/viewinstallation.h"

#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "data/storedtext.h"
#include "measure/viewmeasures.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

void ViewInstallation::openFile(QWidget* parent, const QByteArray& file)
{
    if (file.isEmpty())
        return;
    _installation* in = readInstallationFromFile(file.constData());
    if (in == nullptr)
        return; // its file has gone since the list was read
    ViewInstallation* screen = new ViewInstallation(parent, in);
    screen->exec();
    delete screen;
    freeInstallation(in);
}

ViewInstallation::ViewInstallation(QWidget* parent, _installation* installation)
    : FormDialog(parent, "ViewInstallation", tr("Installazione"), 20), _record(installation),
      _chosenList(-1)
{
    const QString label[] = {
        tr("Installazione Id"), tr("Città"),       tr("CAP"), tr("Prov."), tr("Via"),
        tr("Num. di stringhe"), tr("Potenza Nom.")};
    const char* value[] = {installation->id,   installation->city,   installation->zip,
                           installation->prov, installation->street, installation->nstri,
                           installation->npowe};
    QGridLayout* fields = new QGridLayout;
    for (int i = 0; i < 7; i++) {
        QLabel* l = new QLabel(label[i] + " : " + storedText(value[i]));
        l->setObjectName(QString("field%1").arg(i));
        fields->addWidget(l, i % 4, i / 4);
    }
    _listPanel = new QListWidget;
    _listPanel->setObjectName("panelMeasures");
    _listString = new QListWidget;
    _listString->setObjectName("stringMeasures");
    QGridLayout* lists = new QGridLayout;
    lists->addWidget(new QLabel(tr("Misure Modulo")), 0, 0);
    lists->addWidget(new QLabel(tr("Misure Stringhe")), 0, 1);
    lists->addWidget(_listPanel, 1, 0);
    lists->addWidget(_listString, 1, 1);
    lists->setRowStretch(1, 1);
    _buttonGraph =
        formButton(":/icon/archiveMeasure.png", tr("Visualizza Grafico"), "Visualizza Grafico");
    _buttonGraph->setEnabled(false);
    _buttonExit = formButton(":/icon/exit.png", tr("Exit"), "Exit");
    QVBoxLayout* form = new QVBoxLayout;
    form->addLayout(fields);
    form->addLayout(lists, 1);
    addMeaPanelList();
    addMeaStringList();
    connect(_listPanel, &QListWidget::itemPressed, this, &ViewInstallation::goToViewGraphPanel);
    connect(_listString, &QListWidget::itemPressed, this, &ViewInstallation::goToViewGraphString);
    connect(_buttonGraph, &QPushButton::clicked, this, &ViewInstallation::goToViewGraph);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(form, {_buttonGraph, _buttonExit}, true);
}

void ViewInstallation::fillMeasureList(QListWidget* list, const QList<QByteArray>& files,
                                       _meaType type)
{
    if (files.isEmpty()) {
        list->addItem(tr("Vuoto"));
        return;
    }
    for (const QByteArray& file : files) {
        // a measure whose file has gone gives a node with null texts
        _listMeasures* m = getSingleListMeasures(file.constData(), type);
        list->addItem(storedText(m ? m->mdata : nullptr) + " " +
                      storedText(m ? m->mtime : nullptr));
        closeListMeasures(m);
    }
}

void ViewInstallation::addMeaPanelList()
{
    _panelFiles.clear();
    for (const _listFileMeaPanel* p = _record->headMeaPanel; p != nullptr; p = p->next)
        _panelFiles << QByteArray(p->file);
    fillMeasureList(_listPanel, _panelFiles, MEA_PANEL);
}

void ViewInstallation::addMeaStringList()
{
    _stringFiles.clear();
    for (const _listFileMeaString* s = _record->headMeaString; s != nullptr; s = s->next)
        _stringFiles << QByteArray(s->file);
    fillMeasureList(_listString, _stringFiles, MEA_STRING);
}

void ViewInstallation::goToViewGraphPanel()
{
    _chosenList = 0;
    _buttonGraph->setEnabled(true);
}

void ViewInstallation::goToViewGraphString()
{
    _chosenList = 1;
    _buttonGraph->setEnabled(true);
}

void ViewInstallation::goToViewGraph()
{
    if (_chosenList < 0)
        return;
    const bool panel = _chosenList == 0;
    const QListWidget* list = panel ? _listPanel : _listString;
    const QList<QByteArray>& files = panel ? _panelFiles : _stringFiles;
    const int row = list->currentRow();
    if (row < 0 || row >= files.size())
        return; // the row "Vuoto" has no file
    const _meaType type = panel ? MEA_PANEL : MEA_STRING;
    _listMeasures* entry = getSingleListMeasures(files[row].constData(), type);
    if (entry == nullptr)
        return;
    ViewMeasures* screen = new ViewMeasures(this, entry, type);
    screen->exec();
    delete screen;
    closeListMeasures(entry);
}

QList<QWidget*> ViewInstallation::focusChain() const
{
    return {_listPanel, _listString, _buttonGraph, _buttonExit};
}

void ViewInstallation::returnOn(QWidget* focused)
{
    if (focused == _listPanel)
        goToViewGraphPanel();
    else if (focused == _listString)
        goToViewGraphString();
    else if (focused == _buttonGraph)
        goToViewGraph();
    else if (focused == _buttonExit)
        reject();
}
