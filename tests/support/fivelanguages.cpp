#include "support/fivelanguages.h"

#include "support/lookcheck.h"
#include "support/screenshot.h"

#include <QCoreApplication>
#include <QDialog>
#include <QtTest>

const char* languageCode(int lang)
{
    static const char* const codes[] = {"it", "en", "fr", "de", "es"};
    return lang >= 0 && lang < 5 ? codes[lang] : "it";
}

void languageRows()
{
    QTest::addColumn<int>("lang");
    for (int lang = 0; lang < 5; ++lang)
        QTest::newRow(languageCode(lang)) << lang;
}

ShownLanguage::ShownLanguage(int lang)
{
    isLoaded = translator.load(QStringLiteral(KRM_BINARY_DIR "/system/etc/flang/krm510_") +
                               QLatin1String(languageCode(lang)));
    if (isLoaded)
        QCoreApplication::installTranslator(&translator);
}

ShownLanguage::~ShownLanguage()
{
    if (isLoaded)
        QCoreApplication::removeTranslator(&translator);
}

QStringList shootInLanguage(QWidget* screen, const QString& name, int lang)
{
    if (screen->isWindow() && screen->minimumSize() != screen->maximumSize())
        screen->resize(1024, 600);
    if (!screen->isVisible())
        screen->show();
    if (!QTest::qWaitForWindowExposed(screen, 60000)) // a bound, not a pause
        return {name + ": never shown"};
    const QString picture = name + "-" + languageCode(lang);
    QStringList faults;
    if (saveScreenshot(screen, picture).isEmpty())
        faults << picture + ": no picture";
    if (screen->width() > 1024 || screen->height() > 600)
        faults << QString("%1: %2 x %3 px, larger than the screen")
                      .arg(picture)
                      .arg(screen->width())
                      .arg(screen->height());
    for (const QString& fault : legibilityFaults(screen))
        faults << picture + ": " + fault;
    return faults;
}

QStringList shootAllInLanguage(const QList<ScreenMaker>& screens, int lang)
{
    QStringList faults;
    for (const ScreenMaker& maker : screens) {
        std::unique_ptr<QWidget> screen = maker.make();
        if (!screen) {
            faults << QString(maker.name) + ": not built";
            continue;
        }
        faults += shootInLanguage(screen.get(), maker.name, lang);
    }
    return faults;
}
