#ifndef KRM_ARCHIVE_VIEWCOMPANY_H
#define KRM_ARCHIVE_VIEWCOMPANY_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QListWidget;

// Shows one company, read only, and the list of its installations.
class ViewCompany : public FormDialog
{
    Q_OBJECT
public:
    ViewCompany(QWidget* parent, _company* company);

    void addInstallationOnList();
    QString headerListInstallation() const;
    QString createItemForList(_installation* installation) const;

public slots:
    void goToEnableView();
    void goToViewInstallation();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    _company* _record;
    QMap<QString, QByteArray> _rowFile;
    QListWidget* _listInstallation;
    QPushButton* _buttonView;
    QPushButton* _buttonExit;
};

#endif
