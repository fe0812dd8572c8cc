#ifndef KRM_MEASURE_DIALOGINFO_H
#define KRM_MEASURE_DIALOGINFO_H

#include "data/coredata.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

// The save form of a measure: date, time and comment.
class DialogInfo : public QDialog
{
    Q_OBJECT
public:
    DialogInfo(QWidget* parent, _typeDialog type, QString comment);

    char _date[TEXT_COPY_SIZE];
    char _time[TEXT_COPY_SIZE];
    char _comment[TEXT_COPY_SIZE];

public slots:
    void editLineObject(QObject* obj);
    void resetParameters();
    void goToFinalizeParam();

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    QString initialComment;
    QLineEdit* dateEdit;
    QLineEdit* timeEdit;
    QLineEdit* commentEdit;
    QPushButton* saveButton;
};

#endif
