#include "data/storedtext.h"

#include <QStringDecoder>

QString storedText(const char* text)
{
    if (text == nullptr)
        return QString();
    QByteArray bytes(text);
    // a leading byte-order mark is a character of the text, kept as it is
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString decoded = utf8.decode(bytes);
    if (!utf8.hasError())
        return decoded;
    return QString::fromLatin1(bytes);
}

QByteArray textToStore(const QString& text)
{
    return text.toUtf8();
}
