#ifndef KRM_ARCHIVE_LISTPANEL_H
#define KRM_ARCHIVE_LISTPANEL_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QComboBox;
class QPushButton;
class QTableWidget;

// Shows the models of one brand as a table of their main figures.
class ListPanel : public QDialog
{
    Q_OBJECT
public:
    ListPanel(QWidget* parent, _listBrand* brandList);
    ~ListPanel() override;

public slots:
    void selectBrandOnCombo();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addItemToTable(int row, int column, QString text);
    void insertBrandOnCombo();

    _listBrand* _brandHead;
    _listModel* _modelHead;

    InfoBar* _infoBar;
    QComboBox* _comboBrand;
    QTableWidget* _table;
    QPushButton* _buttonExit;
};

#endif
