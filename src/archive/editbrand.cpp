#include "archive/editbrand.h"

#include "archive/archiveform.h"
#include "data/datapanel.h"
#include "data/storedtext.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cstdlib>

EditBrand::EditBrand(QWidget* parent, _listBrand* brandList)
    : QDialog(parent), _brandHead(brandList)
{
    setObjectName("EditBrand");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Modifica Marca"));

    _listWidgetBrand = new QListWidget;
    _listWidgetBrand->setObjectName("brands");
    _editBrand = new QLineEdit;
    _editBrand->setObjectName("name");
    _editBrand->installEventFilter(this);
    _buttonSave = new QPushButton(QIcon(":/icon/save.png"), tr("Salva"));
    _buttonSave->setObjectName("Salva");
    _buttonSave->setEnabled(false);
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonSave);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(_listWidgetBrand);
    box->addWidget(_editBrand);
    box->addLayout(buttons);

    readBrandPanel();
    connect(_listWidgetBrand, &QListWidget::itemSelectionChanged, this,
            &EditBrand::selectBrandInList);
    connect(_buttonSave, &QPushButton::clicked, this, &EditBrand::saveBrand);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

void EditBrand::readBrandPanel()
{
    _listWidgetBrand->clear();
    // each item keeps its brand's directory: two brands may bear one name
    QList<NamedEntry> brands = brandEntries(_brandHead);
    sortByName(&brands);
    for (const NamedEntry& e : brands) {
        QListWidgetItem* item = new QListWidgetItem(e.name, _listWidgetBrand);
        item->setData(Qt::UserRole, e.key);
    }
    _listWidgetBrand->insertItem(0, tr("<Nuova Marca>"));
}

QString EditBrand::selectedText() const
{
    QListWidgetItem* item = _listWidgetBrand->currentItem();
    return item != nullptr && item->isSelected() ? item->text() : QString();
}

void EditBrand::selectBrandInList()
{
    _editBrand->setText(selectedText());
    updateSaveButton();
}

// Something to save: a row is selected, "<Nuova Marca>" included, and the
// text is another than the row's (and not the placeholder's).
void EditBrand::updateSaveButton()
{
    QString selected = selectedText();
    QString text = _editBrand->text();
    _buttonSave->setEnabled(!selected.isEmpty() && text != selected && text != tr("<Nuova Marca>"));
}

bool EditBrand::eventFilter(QObject* obj, QEvent* event)
{
    if (obj == _editBrand && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void EditBrand::editLineObject(QObject* obj)
{
    if (obj != _editBrand)
        return;
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Information, QString(), tr("Testo inserito non valido."));
    QString initial = selectedText() == tr("<Nuova Marca>") ? QString() : _editBrand->text();
    enterFormText(this, box, _editBrand, initial, tr("Modifica Marca"), tr("Marca Modulo"),
                  QString(), QString());
    updateSaveButton();
    delete box;
}

void EditBrand::saveBrand()
{
    QString selected = selectedText();
    QString name = _editBrand->text();
    if (selected.isEmpty())
        return;
    if (name.isEmpty() || name == tr("<Nuova Marca>")) {
        // the placeholder row is not a brand's name
        showMessageBox(this, QMessageBox::Information, tr("Marca Modulo"),
                       tr("Testo inserito non valido."));
        return;
    }
    QByteArray typed = textToStore(name);
    int result = -1;
    QString text;
    if (selected == tr("<Nuova Marca>")) {
        char* dir = newNameDir(typed.constData());
        if (dir != nullptr)
            result = createDataDir(typed.constData(), dir);
        free(dir);
        text = tr("Inserita nuova marca");
    } else {
        QByteArray dir = _listWidgetBrand->currentItem()->data(Qt::UserRole).toByteArray();
        result = updateBrand(dir.constData(), typed.constData());
        text = tr("Aggiornamento eseguito.");
    }
    if (result != 0)
        text = tr("Errore nel salvataggio.");
    showMessageBox(this, QMessageBox::Information, tr("Modifica Marca"), text);

    closeListBrandPanel(_brandHead);
    _brandHead = readListBrandPanel(this);
    {
        QSignalBlocker block(_listWidgetBrand);
        readBrandPanel();
    }
    _editBrand->clear();
    _buttonSave->setEnabled(false);
}

void EditBrand::keyPressEvent(QKeyEvent* event)
{
    QList<QWidget*> chain{_listWidgetBrand, _editBrand, _buttonSave, _buttonExit};
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(chain, true);
        break;
    case Qt::Key_Up:
        walkFocus(chain, false);
        break;
    case Qt::Key_Return:
        if (_listWidgetBrand->hasFocus() && _listWidgetBrand->currentItem() != nullptr) {
            _listWidgetBrand->currentItem()->setSelected(true);
            selectBrandInList();
        } else if (_editBrand->hasFocus()) {
            editLineObject(_editBrand);
        } else if (_buttonSave->hasFocus()) {
            saveBrand();
        } else if (_buttonExit->hasFocus()) {
            reject();
        }
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
