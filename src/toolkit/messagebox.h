#ifndef KRM_TOOLKIT_MESSAGEBOX_H
#define KRM_TOOLKIT_MESSAGEBOX_H

#include <QMessageBox>

// Every message of the instrument is a modal box with a title bar without
// buttons and one Ok button that is also the default: a warning icon for
// measuring problems, critical for lost links, information for refused input.
// The flags of the instrument's boxes and progress dialogs: a title bar
// without buttons.
extern const Qt::WindowFlags messageBoxFlags;

QMessageBox* newMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                           const QString& text);

// Shows such a box and waits for the Ok; returns the result of exec().
int showMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                   const QString& text, const QString& informative = QString());

// A question with Yes and No, No the default; true on Yes.
bool askYesNo(QWidget* parent, const QString& title, const QString& text,
              const QString& informative);

#endif
