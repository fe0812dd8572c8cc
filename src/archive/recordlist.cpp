#include "archive/recordlist.h"

#include "toolkit/tabcolumns.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

RecordList::RecordList(QWidget* parent, const char* name, const QString& title,
                       const QString& openText, const QString& exitText)
    : FormDialog(parent, name, title, 24)
{
    _list = new QListWidget;
    _list->setObjectName("list");
    new TabColumns(_list);
    _buttonOpen = formButton(":/icon/archiveList.png", openText, "Apri");
    _buttonExit = formButton(":/icon/exit.png", exitText, "Exit");
    connect(_buttonOpen, &QPushButton::clicked, this, [this] { _open(); });
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
}

void RecordList::showList(const std::function<void()>& open)
{
    _open = open;
    QVBoxLayout* form = new QVBoxLayout;
    form->addWidget(_list, 1);
    showForm(form, {_buttonOpen, _buttonExit}, true);
}

void RecordList::showRows(const QString& header, QStringList rows)
{
    _list->clear();
    rows.sort();
    _list->addItem(header);
    _list->addItems(rows);
}

QByteArray RecordList::currentFile() const
{
    const QListWidgetItem* item = _list->currentItem();
    if (item == nullptr)
        return QByteArray();
    return _rowFile.value(item->text()); // the header row has none
}

QList<QWidget*> RecordList::focusChain() const
{
    return {_list, _buttonOpen, _buttonExit};
}

void RecordList::returnOn(QWidget* focused)
{
    if (focused == _buttonOpen)
        _open();
    else if (focused == _buttonExit)
        reject();
}
