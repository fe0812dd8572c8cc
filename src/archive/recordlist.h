#ifndef KRM_ARCHIVE_RECORDLIST_H
#define KRM_ARCHIVE_RECORDLIST_H

#include "archive/formdialog.h"

#include <QMap>
#include <functional>

class QListWidget;

// The list of every record of an archive (companies, installations): the
// rows sorted under a header row, "Apri" for the record of the current row
// and "Exit". Each archive gives its texts, translated in its own context,
// reads its records and opens one in its own way.
class RecordList : public FormDialog
{
    Q_OBJECT
protected:
    RecordList(QWidget* parent, const char* name, const QString& title, const QString& openText,
               const QString& exitText);
    // Shows the screen, once its rows are read (the reading may show a
    // progress dialog, which must not open over a screen shown before its
    // own exec), with the screen's slot for "Apri" (and Return on it).
    void showList(const std::function<void()>& open);
    // Shows the rows, sorted, under the header; _rowFile maps each row to the
    // file of its record.
    void showRows(const QString& header, QStringList rows);
    // The file of the current row; empty on the header row or with no row.
    QByteArray currentFile() const;

    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

    QMap<QString, QByteArray> _rowFile;
    QListWidget* _list;
    QPushButton* _buttonOpen;
    QPushButton* _buttonExit;

private:
    std::function<void()> _open;
};

#endif
