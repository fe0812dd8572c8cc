#include "archive/archivemeasures.h"

#include "archive/archiveform.h"
#include "archive/listmeasures.h"
#include "toolkit/infobar.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

static QPushButton* menuButton(const char* icon, const QString& text, const char* name)
{
    QPushButton* button = new QPushButton(QIcon(icon), text);
    button->setObjectName(name);
    button->setIconSize(QSize(32, 32));
    button->setFlat(true);
    return button;
}

ArchiveMeasures::ArchiveMeasures(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint)
{
    setObjectName("ArchiveMeasures");
    setWindowTitle(tr("Archivio Misure"));
    infoBar = new InfoBar(this);
    infoBar->setTitle(tr("Archivio Misure"));

    modulesButton = menuButton(":/icon/pannello.png", tr("Moduli"), "Moduli");
    modulesButton->setCheckable(true);
    modulesButton->setChecked(true);
    stringsButton = menuButton(":/icon/stringa.png", tr("Stringhe"), "Stringhe");
    stringsButton->setCheckable(true);
    listButton = menuButton(":/icon/archiveList.png", tr("Elenco"), "Elenco");
    deleteButton = menuButton(":/icon/cancel.png", tr("Cancella"), "Cancella");
    exitButton = menuButton(":/icon/exit.png", tr("Exit"), "Exit");
    exitButton->setAutoDefault(true);
    exitButton->setDefault(true);
    QButtonGroup* group = new QButtonGroup(this);
    group->setExclusive(true);
    group->addButton(modulesButton);
    group->addButton(stringsButton);

    QGridLayout* grid = new QGridLayout;
    grid->setSpacing(50);
    grid->addWidget(modulesButton, 0, 0);
    grid->addWidget(stringsButton, 0, 1);
    grid->addWidget(listButton, 1, 0);
    grid->addWidget(deleteButton, 1, 1);
    grid->addWidget(exitButton, 2, 1);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(infoBar);
    box->addStretch();
    box->addLayout(grid);

    connect(listButton, &QPushButton::clicked, this, &ArchiveMeasures::goToListArchive);
    connect(deleteButton, &QPushButton::clicked, this, &ArchiveMeasures::goToDeleteArchive);
    connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);
    modulesButton->setFocus();
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

void ArchiveMeasures::openList(_selectType selectType)
{
    _meaType type = MEA_PANEL;
    if (!modulesButton->isChecked() && stringsButton->isChecked())
        type = MEA_STRING;
    ListMeasures* screen = new ListMeasures(this, type, selectType);
    screen->exec();
    delete screen;
}

void ArchiveMeasures::goToListArchive()
{
    openList(SELECT_VIEW);
}

void ArchiveMeasures::goToDeleteArchive()
{
    openList(SELECT_DELETE);
}

// The old menu had no keys of its own. Up and Down walk the buttons, Return
// presses the focused one (a type is chosen by it), Escape leaves.
void ArchiveMeasures::keyPressEvent(QKeyEvent* event)
{
    const QList<QWidget*> chain = {modulesButton, stringsButton, listButton, deleteButton,
                                   exitButton};
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(chain, true);
        break;
    case Qt::Key_Up:
        walkFocus(chain, false);
        break;
    case Qt::Key_Return:
        if (modulesButton->hasFocus())
            modulesButton->setChecked(true);
        else if (stringsButton->hasFocus())
            stringsButton->setChecked(true);
        else if (listButton->hasFocus())
            goToListArchive();
        else if (deleteButton->hasFocus())
            goToDeleteArchive();
        else if (exitButton->hasFocus())
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
