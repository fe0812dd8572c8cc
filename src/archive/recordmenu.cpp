#include "archive/recordmenu.h"

#include "archive/archiveform.h"

#include <QGridLayout>
#include <QPushButton>

RecordMenu::RecordMenu(QWidget* parent, const char* name, const QString& title, const Texts& texts)
    : FormDialog(parent, name, title, 0)
{
    _buttonNew = archiveMenuButton(":/icon/insertnew.png", texts[0], "Nuova");
    _buttonEdit = archiveMenuButton(":/icon/editpanel.png", texts[1], "Modifica");
    _buttonDelete = archiveMenuButton(":/icon/cancel.png", texts[2], "Cancella");
    _buttonList = archiveMenuButton(":/icon/archiveList.png", texts[3], "Elenco");
    _buttonExit = archiveMenuButton(":/icon/exit.png", texts[4], "Exit");
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(_buttonNew, 0, 0);
    grid->addWidget(_buttonEdit, 0, 1);
    grid->addWidget(_buttonDelete, 1, 0);
    grid->addWidget(_buttonList, 1, 1);
    grid->addWidget(_buttonExit, 2, 1);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    showForm(grid, {});
}

void RecordMenu::setActions(const Actions& actions)
{
    _actions = actions;
    const QPushButton* entries[] = {_buttonNew, _buttonEdit, _buttonDelete, _buttonList};
    for (int i = 0; i < 4; i++)
        connect(entries[i], &QPushButton::clicked, this, [this, i] { _actions[i](); });
}

QList<QWidget*> RecordMenu::focusChain() const
{
    return {_buttonNew, _buttonEdit, _buttonDelete, _buttonList, _buttonExit};
}

void RecordMenu::returnOn(QWidget* focused)
{
    const QWidget* entries[] = {_buttonNew, _buttonEdit, _buttonDelete, _buttonList};
    for (int i = 0; i < 4; i++)
        if (focused == entries[i])
            _actions[i]();
    if (focused == _buttonExit)
        reject();
}
