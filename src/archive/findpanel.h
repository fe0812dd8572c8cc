#ifndef KRM_ARCHIVE_FINDPANEL_H
#define KRM_ARCHIVE_FINDPANEL_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

// Searches every brand for models by Pmax, Vmpp and Impp: an exact value,
// a range, or both, per quantity.
class FindPanel : public QDialog
{
    Q_OBJECT
public:
    FindPanel(QWidget* parent, _listBrand* brandList);

    static QString floatToString(float value);

public slots:
    void findPanelInDB();
    void resetParameters();
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The three rows and the three fields of each.
    enum Row { PMAX, VMPP, IMPP, ROWS };
    enum Field { EXACT, MINIMUM, MAXIMUM, FIELDS };

    void addPanelInFindList(_listBrand* brand, _listModel* model, _panelFeature* feature);
    void headerFindList();
    QList<QWidget*> focusChain() const;

    _listBrand* _brandHead;
    bool _rowSet[ROWS];
    QLineEdit* _edit[ROWS][FIELDS];

    InfoBar* _infoBar;
    QListWidget* _listFind;
    QLabel* _labelCount;
    QPushButton* _buttonFind;
    QPushButton* _buttonReset;
    QPushButton* _buttonExit;
};

#endif
