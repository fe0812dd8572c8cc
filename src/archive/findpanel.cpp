#include "archive/findpanel.h"

#include "archive/archiveform.h"
#include "data/datapanel.h"
#include "data/recordfiles.h"
#include "data/storedtext.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "toolkit/numbertext.h"
#include "toolkit/tabcolumns.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

FindPanel::FindPanel(QWidget* parent, _listBrand* brandList)
    : QDialog(parent), _brandHead(brandList)
{
    setObjectName("FindPanel");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Ricerca Modulo"));

    const QString quantity[ROWS] = {"Pmax", "Vmpp", "Impp"};
    const QString unit[ROWS] = {"W", "V", "A"};
    const char* name[ROWS][FIELDS] = {{"pmax", "pmaxMin", "pmaxMax"},
                                      {"vmpp", "vmppMin", "vmppMax"},
                                      {"impp", "imppMin", "imppMax"}};
    QGridLayout* grid = new QGridLayout;
    for (int r = 0; r < ROWS; r++) {
        for (int f = 0; f < FIELDS; f++) {
            _edit[r][f] = new QLineEdit;
            _edit[r][f]->setObjectName(name[r][f]);
            setLineEditWidth(_edit[r][f], 140);
            _edit[r][f]->installEventFilter(this);
        }
        grid->addWidget(new QLabel(quantity[r]), r, 0);
        grid->addWidget(_edit[r][EXACT], r, 1);
        grid->addWidget(new QLabel(unit[r]), r, 2);
        grid->addWidget(_edit[r][MINIMUM], r, 3);
        grid->addWidget(new QLabel(unit[r] + " < "), r, 4);
        grid->addWidget(new QLabel(quantity[r]), r, 5);
        grid->addWidget(new QLabel(" <"), r, 6);
        grid->addWidget(_edit[r][MAXIMUM], r, 7);
        grid->addWidget(new QLabel(unit[r]), r, 8);
        _rowSet[r] = false;
    }

    _listFind = new QListWidget;
    _listFind->setObjectName("result");
    // the seven cells of a result row take a smaller font than the screen's
    QFont listFont = _listFind->font();
    listFont.setPointSize(22);
    _listFind->setFont(listFont);
    // the cells of the header and of the rows stand in columns
    new TabColumns(_listFind);
    _labelCount = new QLabel(tr("Modello trovato : "));
    _labelCount->setObjectName("count");
    _buttonFind = new QPushButton(QIcon(":/icon/find-panel.png"), tr("Cerca"));
    _buttonFind->setObjectName("Cerca");
    _buttonFind->setEnabled(false);
    _buttonReset = new QPushButton(QIcon(":/icon/view-refresh.png"), tr("Reset"));
    _buttonReset->setObjectName("Reset");
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"));
    _buttonExit->setObjectName("Exit");
    // the count takes the room the buttons leave: where the language's words
    // are longer than that room, it is drawn smaller, the buttons keep theirs
    _labelCount->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_labelCount, 1);
    buttons->addWidget(_buttonFind);
    buttons->addWidget(_buttonReset);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addLayout(grid);
    box->addWidget(_listFind);
    box->addLayout(buttons);

    connect(_buttonFind, &QPushButton::clicked, this, &FindPanel::findPanelInDB);
    connect(_buttonReset, &QPushButton::clicked, this, &FindPanel::resetParameters);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    // modal from the first show: exec() on a shown window would not make it so
    setModal(true);
    showMaximized();
}

QString FindPanel::floatToString(float value)
{
    if (value == 0)
        return QString("");
    return storedNumberText(value, 2);
}

void FindPanel::resetParameters()
{
    for (int r = 0; r < ROWS; r++) {
        for (int f = 0; f < FIELDS; f++)
            _edit[r][f]->clear();
        _rowSet[r] = false;
    }
}

bool FindPanel::eventFilter(QObject* obj, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        for (int r = 0; r < ROWS; r++) {
            for (int f = 0; f < FIELDS; f++) {
                if (obj == _edit[r][f]) {
                    editLineObject(obj);
                    return true;
                }
            }
        }
    }
    return QDialog::eventFilter(obj, event);
}

void FindPanel::editLineObject(QObject* obj)
{
    int row = -1;
    int field = -1;
    for (int r = 0; r < ROWS; r++)
        for (int f = 0; f < FIELDS; f++)
            if (obj == _edit[r][f]) {
                row = r;
                field = f;
            }
    if (row < 0)
        return;

    const QString title[ROWS][FIELDS] = {{tr("Pmax"), tr("Pmax Minima"), tr("Pmax Massima")},
                                         {tr("Vmpp"), tr("Vmpp Minima"), tr("Vmpp Massima")},
                                         {tr("Impp"), tr("Impp Minima"), tr("Impp Massima")}};
    const QString tag[ROWS] = {tr("Pmax : "), tr("Vmpp : "), tr("Impp : ")};
    const QString negative[ROWS][FIELDS] = {
        {tr("Pmax non può essere negativa : "), tr("Pmax Minima non può essere negativa : "),
         tr("Pmax Massima non può essere negativa : ")},
        {tr("Vmpp non può essere negativa : "), tr("Vmpp Minima non può essere negativa : "),
         tr("Vmpp Massima non può essere negativa : ")},
        {tr("Impp non può essere negativa : "), tr("Impp Minima non può essere negativa : "),
         tr("Impp Massima non può essere negativa : ")}};
    const QString minimumAbove[ROWS] = {tr("Pmax minima è maggiore di Pmax massima"),
                                        tr("Vmpp Minima è maggiore di Vmpp Massima"),
                                        tr("Impp Minima è maggiore di Impp Massima.")};
    const QString maximumBelow[ROWS] = {tr("Pmax Massima è minore di Pmax Minima."),
                                        tr("Vmpp Massima è minore di Vmpp Minima."),
                                        tr("Impp Massima è minore di Impp Minima.")};

    QLineEdit* edit = _edit[row][field];
    QMessageBox* box = newMessageBox(this, QMessageBox::Information, title[row][field],
                                     tr("Testo inserito non valido."));
    EmbKeyboard* keyboard = new EmbKeyboard(this, QString(), QString());
    keyboard->setWindowTitle(title[row][field]);
    if (edit->text() != "0.0")
        keyboard->setInitString(edit->text());
    keyboard->toKeyPad();
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        float value = 0;
        bool ok = finiteNumber(text, &value);
        QLineEdit* minimum = _edit[row][MINIMUM];
        QLineEdit* maximum = _edit[row][MAXIMUM];
        QString refusal;
        if (text.isEmpty()) {
            edit->clear();
        } else if (!ok) {
            refusal = tag[row] + text;
        } else if (value < 0) {
            refusal = negative[row][field] + text;
            // this one title stands in English
            if (row == IMPP && field == MINIMUM)
                box->setWindowTitle("Minimum Impp");
        } else if (field == MINIMUM && !maximum->text().isEmpty() &&
                   value > maximum->text().toFloat()) {
            refusal = minimumAbove[row];
        } else if (field == MAXIMUM && !minimum->text().isEmpty() &&
                   value < minimum->text().toFloat()) {
            refusal = maximumBelow[row];
        } else {
            edit->setText(floatToString(value));
            _rowSet[row] = true;
        }
        if (!refusal.isEmpty()) {
            box->setInformativeText(refusal);
            box->exec();
        }
    }
    _buttonFind->setEnabled(_rowSet[PMAX] || _rowSet[VMPP] || _rowSet[IMPP]);
    delete keyboard;
    delete box;
}

void FindPanel::headerFindList()
{
    _listFind->addItem(tr("Marca") + "\t " + tr("Modello") + "\t Pmax(V)" + "\t Vmpp(V)" +
                       "\t Impp(A)" + "\t Voc(V)" + "\t Isc(A)");
}

void FindPanel::addPanelInFindList(_listBrand* brand, _listModel* model, _panelFeature* feature)
{
    QStringList cells;
    cells << storedText(brand->name).left(8) << storedText(model->name).left(10)
          << floatToString(feature->pmax) << floatToString(feature->vmpp)
          << floatToString(feature->impp) << floatToString(feature->voc)
          << floatToString(feature->isc);
    _listFind->addItem(cells.join("\t"));
}

namespace
{

// One quantity's criterion as the fields hold it at the start of a search.
struct Criterion {
    bool set;
    bool exactFilled, minFilled, maxFilled;
    float exact, minimum, maximum;
    bool inclusive; // the Pmax range takes its ends, the others don't

    bool passes(float value) const
    {
        if (!set)
            return true;
        bool exactHit = exactFilled && value == exact;
        bool rangeHit = false;
        if (minFilled && maxFilled)
            rangeHit = inclusive ? (minimum <= value && maximum >= value)
                                 : (minimum < value && maximum > value);
        else if (minFilled)
            rangeHit = inclusive ? minimum <= value : minimum < value;
        else if (maxFilled)
            rangeHit = inclusive ? maximum >= value : maximum > value;
        return exactHit || rangeHit;
    }
};

} // namespace

void FindPanel::findPanelInDB()
{
    int brands = 0;
    for (_listBrand* b = _brandHead; b != nullptr; b = b->next)
        brands++;
    QProgressDialog progress(tr("Ricerca Modulo..."), tr("Cancella..."), 0, brands, this);
    progress.reset(); // stops the show timer of the constructor (see PanelIV::measurePanel)
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(10);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.setValue(0);

    Criterion criterion[ROWS];
    for (int r = 0; r < ROWS; r++) {
        Criterion& c = criterion[r];
        c.set = _rowSet[r];
        c.exact = _edit[r][EXACT]->text().toFloat();
        c.minimum = _edit[r][MINIMUM]->text().toFloat();
        c.maximum = _edit[r][MAXIMUM]->text().toFloat();
        c.exactFilled = !_edit[r][EXACT]->text().isEmpty();
        c.minFilled = !_edit[r][MINIMUM]->text().isEmpty();
        c.maxFilled = !_edit[r][MAXIMUM]->text().isEmpty();
        c.inclusive = r == PMAX;
    }

    _listFind->clear();
    headerFindList();
    int found = 0;
    int done = 0;
    for (_listBrand* b = _brandHead; b != nullptr && !progress.wasCanceled(); b = b->next) {
        _listModel* models = readListModelPanel(b->dir);
        for (_listModel* m = models; m != nullptr; m = m->next) {
            _panelFeature feature;
            getPanelFeature(b->dir, m->file, &feature);
            if (criterion[PMAX].passes(feature.pmax) && criterion[VMPP].passes(feature.vmpp) &&
                criterion[IMPP].passes(feature.impp)) {
                addPanelInFindList(b, m, &feature);
                found++;
            }
        }
        closeListModelBrand(models);
        progress.setValue(++done);
        // let the bar and its cancel button live between two brands
        QCoreApplication::processEvents();
    }
    _labelCount->setText(tr("Modello trovato : ") + QString::number(found));
    if (found == 0)
        _listFind->addItem(tr("Nessun risultato trovato."));
}

QList<QWidget*> FindPanel::focusChain() const
{
    QList<QWidget*> chain;
    for (int r = 0; r < ROWS; r++)
        for (int f = 0; f < FIELDS; f++)
            chain << _edit[r][f];
    chain << _listFind << _buttonFind << _buttonReset << _buttonExit;
    return chain;
}

void FindPanel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(focusChain(), true);
        break;
    case Qt::Key_Up:
        walkFocus(focusChain(), false);
        break;
    case Qt::Key_Return: {
        QWidget* focused = focusedIn(focusChain());
        if (qobject_cast<QLineEdit*>(focused) != nullptr)
            editLineObject(focused);
        else if (focused == _buttonFind)
            findPanelInDB();
        else if (focused == _buttonReset)
            resetParameters();
        else if (focused == _buttonExit)
            reject();
        break;
    }
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
