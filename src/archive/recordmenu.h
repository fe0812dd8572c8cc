#ifndef KRM_ARCHIVE_RECORDMENU_H
#define KRM_ARCHIVE_RECORDMENU_H

#include "archive/formdialog.h"

#include <array>
#include <functional>

// The menu of a record archive (companies, installations): four entries in
// a grid of big buttons, "Exit" under them. Each archive gives its texts,
// translated in its own context, and its own slots; the keys walk the
// entries and Return runs the focused one.
class RecordMenu : public FormDialog
{
    Q_OBJECT
public:
    // The texts of the new, edit, delete, list and exit entries.
    using Texts = std::array<QString, 5>;
    using Actions = std::array<std::function<void()>, 4>;

protected:
    RecordMenu(QWidget* parent, const char* name, const QString& title, const Texts& texts);
    // The screen's slots for the four entries, in the order of the texts.
    void setActions(const Actions& actions);

    QList<QWidget*> focusChain() const override;
    void returnOn(QWidget* focused) override;

    QPushButton* _buttonNew;
    QPushButton* _buttonEdit;
    QPushButton* _buttonDelete;
    QPushButton* _buttonList;
    QPushButton* _buttonExit;

private:
    Actions _actions;
};

#endif
