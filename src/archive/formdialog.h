#ifndef KRM_ARCHIVE_FORMDIALOG_H
#define KRM_ARCHIVE_FORMDIALOG_H

#include <QDialog>
#include <QList>

class InfoBar;
class QGridLayout;
class QLayout;
class QLineEdit;
class QPushButton;

// What every archive form shares: the status bar with the screen's title,
// the line edits that open the on-screen keyboard when touched (a touch is
// consumed, so a line edit never takes the focus by touch), Up and Down along
// the screen's focus chain, Return on the focused widget, and Escape.
// Each form keeps its own texts, bounds, chain and Return rule. The menus,
// lists and choices of the archive are screens of the same kind without
// line edits.
class FormDialog : public QDialog
{
    Q_OBJECT
public:
    // A point size of 0 keeps the instrument's font.
    FormDialog(QWidget* parent, const char* objectName, const QString& title, int pointSize);

    // A touch on the line edit opens its keyboard round.
    void filterLine(QLineEdit* edit);

public slots:
    // The keyboard round of one filtered line edit; a screen without line
    // edits has none.
    virtual void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    // The widgets Up and Down walk, from the top of the form to its buttons.
    virtual QList<QWidget*> focusChain() const = 0;
    // Return with the focus on a widget of the chain (null when none has it).
    virtual void returnOn(QWidget* focused) = 0;

    // A filtered line edit of the given width in the grid, with its label
    // and unit, from the column on.
    QLineEdit* formLine(QGridLayout* grid, const char* name, const QString& label,
                        const QString& unit, int row, int column, int width);
    QPushButton* formButton(const char* icon, const QString& text, const char* name);
    // The keyboard on one line edit of the form, with its title and the
    // edit's text (the key pad for a number); true, with the text entered,
    // when the operator accepted it.
    bool typeInto(const QLineEdit* edit, const QString& title, bool keyPad, QString* entered);
    // Lays out the status bar, the form and the row of buttons, and shows the
    // screen maximised; modal from the first show, as exec() on a shown
    // window would not make it so. A form of lists takes the whole height
    // (fill); a form of fields stands at the top.
    void showForm(QLayout* form, const QList<QPushButton*>& buttons, bool fill = false);

    InfoBar* _infoBar;

private:
    QList<QObject*> _lines;
};

#endif
