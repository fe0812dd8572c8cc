#ifndef KRM_MEASURE_DIALOGCOLLEGAMENTI_H
#define KRM_MEASURE_DIALOGCOLLEGAMENTI_H

#include "data/coredata.h"

#include <QDialog>

// The wiring picture shown before a test; the test opens only after "Continua".
class DialogCollegamenti : public QDialog
{
    Q_OBJECT
public:
    DialogCollegamenti(QWidget* parent, _meaType type);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#endif
