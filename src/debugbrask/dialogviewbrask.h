#ifndef KRM_DEBUGBRASK_DIALOGVIEWBRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWBRASK_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The screen the service views share: a list with a head row and one row a
// point, "Save" and "Exit". Each view gives its own texts, its rows and its
// file's writer.
class DialogViewBrask : public QDialog
{
    Q_OBJECT
public slots:
    void goToSave();

protected:
    explicit DialogViewBrask(QWidget* parent);
    // builds the screen with the texts already translated by the view
    void build(const QString& title, const QStringList& heads, const QString& save,
               const QString& exit);
    virtual void addValueOnList() = 0;
    virtual int write(char* data, char* time, char* comment) = 0;
    // the rows of a gate sweep or a Z test: number, both counts, gate set and read
    void addGateRows(const _tstBrask* tst);

    void keyPressEvent(QKeyEvent* event) override;

    QListWidget* _list;

private:
    InfoBar* _infoBar;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
};

#endif
