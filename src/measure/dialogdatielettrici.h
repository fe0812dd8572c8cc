#ifndef KRM_MEASURE_DIALOGDATIELETTRICI_H
#define KRM_MEASURE_DIALOGDATIELETTRICI_H

#include "data/coredata.h"

#include <QDialog>

class QGridLayout;

// The table of the measured electrical figures, at operating conditions and,
// when the translation ran, at standard test conditions.
class DialogDatiElettrici : public QDialog
{
    Q_OBJECT
public:
    DialogDatiElettrici(QWidget* parent, bool stc, _meaType type, float pmax, float vmpp,
                        float impp, float voc, float isc, float pmaxStc, float vmppStc,
                        float imppStc, float vocStc, float iscStc, float deltaPmax);

    // The text a value shows: two decimals, or "----" for a value without one.
    static QString valueText(float value, int decimals);
    // Module or string: kept, and not shown on the page.
    _meaType type() const { return _type; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void createLabel(QString name, float opc, float stc, int decimals, QString unit,
                     QGridLayout* grid, int row);
    static QString fillFactorText(float value);

    bool _stc;
    _meaType _type;
    class QPushButton* okButton;
};

#endif
