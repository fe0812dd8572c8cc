#ifndef KRM_ARCHIVE_VIEWINSTALLATION_H
#define KRM_ARCHIVE_VIEWINSTALLATION_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QList>
#include <QString>

class QListWidget;

// Shows one installation, read only, with the date and time of its module
// and string measures; "Visualizza Grafico" opens the curves of the measure
// touched last.
class ViewInstallation : public FormDialog
{
    Q_OBJECT
public:
    ViewInstallation(QWidget* parent, _installation* installation);
    // Shows the installation stored in a file; nothing when the file is
    // empty or can no longer be read.
    static void openFile(QWidget* parent, const QByteArray& file);

    void addMeaPanelList();
    void addMeaStringList();

public slots:
    void goToViewGraphPanel();
    void goToViewGraphString();
    void goToViewGraph();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    // Fills a list with one row per file, or the row "Vuoto" when there is none.
    void fillMeasureList(QListWidget* list, const QList<QByteArray>& files, _meaType type);

    _installation* _record;
    QListWidget* _listPanel;
    QListWidget* _listString;
    // the files of each list's rows, by row
    QList<QByteArray> _panelFiles;
    QList<QByteArray> _stringFiles;
    int _chosenList; // 0 modules, 1 strings, -1 none touched yet
    QPushButton* _buttonGraph;
    QPushButton* _buttonExit;
};

#endif
