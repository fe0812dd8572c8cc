#ifndef KRM_ARCHIVE_LISTCOMPANY_H
#define KRM_ARCHIVE_LISTCOMPANY_H

#include "archive/formdialog.h"
#include "data/coredata.h"

#include <QMap>

class QListWidget;

// Every company, surname and code, sorted under a header row; "Apri" shows
// the company of the row.
class ListCompany : public FormDialog
{
    Q_OBJECT
public:
    explicit ListCompany(QWidget* parent);

    void readCompanyData();
    QString headerListCompany() const;
    QString createItemForList(_company* company) const;

public slots:
    void goToViewCompany();

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
