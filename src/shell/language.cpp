#include "shell/language.h"

#include "platform/systemroot.h"

#include <QTranslator>

QTranslator* qTranslator = nullptr;

QString getFileTraslator(_language lang)
{
    static const char* const suffix[] = {"it", "en", "fr", "de", "es", "it"};
    QString path = QStringLiteral("/etc/flang");
    path += QStringLiteral("/krm510_");
    if (lang >= LANG_IT && lang <= LANG_DEFAULT)
        path += QLatin1String(suffix[lang]);
    return path;
}

bool loadTranslator(QTranslator* translator, _language lang)
{
    if (translator == nullptr)
        return false;
    QString path = QString::fromStdString(SystemRoot::path(getFileTraslator(lang).toStdString()));
    return translator->load(path, QLatin1String(""), QLatin1String(""), QLatin1String(""));
}
