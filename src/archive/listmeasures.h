#ifndef KRM_ARCHIVE_LISTMEASURES_H
#define KRM_ARCHIVE_LISTMEASURES_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The saved measures of one type, oldest first under a header row, with one
// task by selectType: look at one (SELECT_VIEW), delete one (SELECT_DELETE),
// or pick one for an installation (SELECT_EDIT: the caller reads selected
// after exec returned 1, before it deletes the screen). The screen owns the
// list it reads.
class ListMeasures : public QDialog
{
    Q_OBJECT
public:
    ListMeasures(QWidget* parent, _meaType type, _selectType selectType);
    ~ListMeasures() override;

    _listMeasures* selected;
    _meaType meaType;
    _selectType selectType;
    _listMeasures* current;
    _listMeasures* head;
    InfoBar* infoBar;
    QListWidget* listWidget;
    QPushButton* addButton;    // SELECT_EDIT only
    QPushButton* graphButton;  // SELECT_VIEW only
    QPushButton* deleteButton; // SELECT_DELETE only
    QPushButton* exitButton;

    // The row text of a measure: date, a blank, time, a tab and comment.
    static QString createStrForList(const _listMeasures* node);
    void addMeasuresInList();
    void headerListMeasures();

public slots:
    void goToAddMeasures();
    void goToViewGraphMeasures();
    void goToDeleteMeasures();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* firstButton() const;
    _listMeasures* nodeOfCurrentRow();
};

#endif
