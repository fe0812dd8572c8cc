#ifndef KRM_DATA_STOREDTEXT_H
#define KRM_DATA_STOREDTEXT_H

#include <QByteArray>
#include <QString>

// Texts of the files as the screens show and give them. The old instrument
// handed the bytes of a file to the screens in the process's 8-bit encoding,
// so the texts of older instruments (Latin-1) came back broken or empty on
// a UTF-8 system. Files speak UTF-8: a text that is valid UTF-8 is read as
// such, any other as Latin-1 (files of older instruments), so no stored
// text is ever lost; what the screens write is UTF-8.

QString storedText(const char* text);
QByteArray textToStore(const QString& text);

#endif
