#ifndef KRM_MEASURE_DIALOGNUMBER_H
#define KRM_MEASURE_DIALOGNUMBER_H

#include <QDialog>

class QLineEdit;

// The number of modules of the string about to be measured: at least two.
class DialogNumber : public QDialog
{
    Q_OBJECT
public:
    DialogNumber(QWidget* parent, int number);

    int _number;

public slots:
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    QLineEdit* numberEdit;
};

#endif
