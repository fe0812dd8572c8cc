#ifndef KRM_MEASURE_DIALOGDEGRADO_H
#define KRM_MEASURE_DIALOGDEGRADO_H

#include "data/coredata.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

// The ageing allowance: years of service and percent per year. "Applica"
// opens only with years typed by the operator.
class DialogDegrado : public QDialog
{
    Q_OBJECT
public:
    DialogDegrado(QWidget* parent, _meaType type);

    float _years;
    float _percent;

public slots:
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    QLineEdit* yearsEdit;
    QLineEdit* percentEdit;
    QPushButton* applyButton;
    QPushButton* exitButton;
};

#endif
