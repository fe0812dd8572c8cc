#ifndef KRM_DATA_FREESPACE_H
#define KRM_DATA_FREESPACE_H

#include <QDialog>

class QKeyEvent;
class QProgressBar;
class QPushButton;

// Percent of the used blocks of the file system that holds path. A file
// system that reports no total or no free blocks reads as 0 percent, also
// when it is completely full: the instrument has always shown it so.
float get_use_space_percentage(const char* path);

// The storage gauge: a bar with the percentage of used blocks. A percent of 0
// asks the file system of "/krm510data"; any other value is shown as given.
class DialogFreeSpace : public QDialog
{
    Q_OBJECT

public:
    DialogFreeSpace(QWidget* parent, int percent);

    QProgressBar* progressBar;
    QPushButton* buttonOk;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#endif
