#ifndef KRM_ARCHIVE_ARCHIVEFORM_H
#define KRM_ARCHIVE_ARCHIVEFORM_H

#include "data/coredata.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

class FormDialog;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QMessageBox;
class QWidget;

// What the module form screens and the other archive screens share: the
// label - line edit - unit rows, the defaults of the technology combo, the
// round of one number on the on-screen keyboard and the walk of the focus
// with the hardware keys. The texts come translated from each screen.

// Module technologies, by the row of the "Tipo" combo and the `type` of a data sheet.
#define PANEL_TYPES 6
// Longest name of a model or a brand.
#define FORM_NAME_LIMIT 255
// The temperature coefficient of Voc that selecting a technology puts in the form.
float defaultKvoc(int type);

class QPushButton;
// A flat button with a large icon of the archive menus.
QPushButton* archiveMenuButton(const char* icon, const QString& text, const char* name);

void setLineEditWidth(QLineEdit* edit, int width);
// Puts label, line edit and unit into the grid at row, from column on.
void createLineEdit(QGridLayout* grid, QLineEdit* edit, QString label, QString unit, int row,
                    int column);

// One number of a form and the rules of its keyboard round.
struct FormNumber {
    QLineEdit* edit;
    float* value;
    float low; // both ends included
    float high;
    int decimals;
    QString keyboardTitle;
    QString boxTitle;
    QString tag;
};

// The eleven numbers of a module's data sheet, in the order of the forms'
// Number enums (Pmax, NOCT, Vmpp, Impp, Voc, Isc, then Alpha, Beta, Gamma,
// Toll-, Toll+): the first six make the left column from row 1; the type
// combo stands at row 1 of the right column and the other five below it.
#define FEATURE_NUMBERS 11
#define FEATURE_LEFT 6
void placeFeatureNumbers(FormDialog* form, QGridLayout* grid, FormNumber number[FEATURE_NUMBERS],
                         const QString label[FEATURE_NUMBERS], QComboBox* type,
                         const QString& typeLabel);
// The technologies into the type combo, and each name's type into the map.
void fillTypeCombo(QComboBox* combo, QMap<QString, int>* types, const QString names[PANEL_TYPES]);
// The data sheet forms' chain: the widgets above the numbers, the left
// column, the type, the right column, the buttons.
QList<QWidget*> featureChain(const QList<QWidget*>& head, const FormNumber number[FEATURE_NUMBERS],
                             QComboBox* type, const QList<QWidget*>& buttons);

enum FormRound { ROUND_LEFT = 0, ROUND_REFUSED = 1, ROUND_ACCEPTED = 2 };

// Writes the value of a field into its line edit with the field's decimals.
void showFormNumber(const FormNumber& field);
// Opens the key pad on the field (empty for a stored 0), checks what the
// operator entered against the bounds and either stores and shows it or
// tells the refusal in the box (its informative text: the tag and the
// entered string). The field's text is changed only on success.
FormRound enterFormNumber(QWidget* screen, QMessageBox* box, const FormNumber& field);

// Opens the letter layer on a text field with the initial text; an empty
// text or one above 255 characters is refused with the box, whose
// informative text is then emptyText or longText. On success the line edit
// takes the text.
FormRound enterFormText(QWidget* screen, QMessageBox* box, QLineEdit* edit, const QString& initial,
                        const QString& keyboardTitle, const QString& boxTitle,
                        const QString& emptyText, const QString& longText);

// Up and Down along a fixed chain of widgets; a disabled or hidden one is
// passed over. With nothing of the chain focused the walk starts at an end.
void walkFocus(const QList<QWidget*>& chain, bool down);
// The widget of the chain that has the focus, or null.
QWidget* focusedIn(const QList<QWidget*>& chain);

// The forms hold many rows: their fields, labels and buttons take a smaller
// font than the instrument's, the status bar keeps the instrument's.
void setFormFont(QWidget* screen, QWidget* bar, int pointSize);

// One brand or model of a list screen: the name it shows and the brand's
// directory or the model's file, which the item keeps (Qt::UserRole).
struct NamedEntry {
    QString name;
    QByteArray key;
};
QList<NamedEntry> brandEntries(const _listBrand* head);
QList<NamedEntry> modelEntries(const _listModel* head);
// Sorts by name with the string order, entries of one name as they came.
void sortByName(QList<NamedEntry>* entries);

// Fills a combo with the entries sorted by name. The old screens kept only
// the names and looked the chosen one up by its name again, so of two
// brands or models of the same name, a name that is not valid UTF-8 or a
// file without a name line, another one (or none) was taken: the item keeps
// its directory or file and every lookup goes by that (comboKey).
void fillSortedCombo(QComboBox* combo, QList<NamedEntry> entries);
// The directory or file of the combo's current item, empty with none.
QByteArray comboKey(const QComboBox* combo);

#endif
