#ifndef KRM_MEASURE_DIALOGSHUTDOWN_H
#define KRM_MEASURE_DIALOGSHUTDOWN_H

#include <QDialog>

// The low-battery stop: cuts the measuring board's supply and holds the
// screen, with no way out, until the charger is connected. The board is
// supplied again when the dialog goes.
//
// Every screen that polls the supply (the status bars, the measuring
// screens) goes on polling inside the dialog's loop and from the screens
// behind it: one dialog at a time is open in the whole program, whoever
// opened it.
class DialogShutDown : public QDialog
{
    Q_OBJECT
public:
    explicit DialogShutDown(QWidget* parent);
    ~DialogShutDown() override;

    // True while a dialog is open anywhere: open no other.
    static bool isOpen();
    // Dialogs opened since the program started: each cycled the board's supply.
    static int opened();

public slots:
    void powerSupplyChecked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

#endif
