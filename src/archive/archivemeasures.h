#ifndef KRM_ARCHIVE_ARCHIVEMEASURES_H
#define KRM_ARCHIVE_ARCHIVEMEASURES_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QPushButton;

// The menu of the measure archive: module or string measures, then the list
// to look at them or the list to delete them.
class ArchiveMeasures : public QDialog
{
    Q_OBJECT
public:
    explicit ArchiveMeasures(QWidget* parent);

    InfoBar* infoBar;
    QPushButton* modulesButton;
    QPushButton* stringsButton;
    QPushButton* listButton;
    QPushButton* deleteButton;
    QPushButton* exitButton;

public slots:
    void goToListArchive();
    void goToDeleteArchive();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openList(_selectType selectType);
};

#endif
