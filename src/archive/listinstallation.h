#ifndef KRM_ARCHIVE_LISTINSTALLATION_H
#define KRM_ARCHIVE_LISTINSTALLATION_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QListWidget;

// Every installation, id and city, sorted under a header row; "Apri" shows
// the installation of the row with its measures.
class ListInstallation : public FormDialog
{
    Q_OBJECT
public:
    explicit ListInstallation(QWidget* parent);

    void readInstallationData();
    QString headerListInstallation() const;
    QString createItemForList(_installation* installation) const;

public slots:
    void goToViewInstallationForGraphView();

protected:
    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

private:
    QMap<QString, QByteArray> _rowFile;
    QListWidget* _list;
    QPushButton* _buttonOpen;
    QPushButton* _buttonExit;
};

#endif
