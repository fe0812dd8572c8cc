#ifndef KRM_MEASURE_DIALOGSHUTDOWN_H
#define KRM_MEASURE_DIALOGSHUTDOWN_H

#include <QDialog>

// The low-battery stop: cuts the measuring board's supply and holds the
// screen, with no way out, until the charger is connected. The board is
// supplied again when the dialog goes.
class DialogShutDown : public QDialog
{
    Q_OBJECT
public:
    explicit DialogShutDown(QWidget* parent);
    ~DialogShutDown() override;

public slots:
    void powerSupplyChecked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#endif
