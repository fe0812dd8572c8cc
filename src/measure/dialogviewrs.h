#ifndef KRM_MEASURE_DIALOGVIEWRS_H
#define KRM_MEASURE_DIALOGVIEWRS_H

#include <QDialog>

class QGridLayout;

// A series resistance result as stored: Rs and the two irradiances.
class DialogViewRs : public QDialog
{
    Q_OBJECT
public:
    DialogViewRs(QWidget* parent, float rs, float irr1, float irr2);

private:
    void createLabel(QString name, float value, QString unit, QGridLayout* grid, int row);
};

#endif
