#include "shell/startup.h"

#include "data/datasetting.h"
#include "data/direntry.h"
#include "device/gpiopd.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "toolkit/look.h"

#include <QApplication>
#include <QPixmap>
#include <QSplashScreen>
#include <QTranslator>
#include <clocale>

int startInstrument(int& argc, char** argv)
{
    QApplication app(argc, argv);
    // The toolkit has just set the process locale from the environment; the
    // old instrument then read and wrote numbers in it. Numbers speak C
    // whatever the operator's locale (the data layer also keeps its own C
    // locale, so this covers the rest: replies of the board and the unit).
    setlocale(LC_NUMERIC, "C");

    setInstrumentLook();

    _configParam config;
    readConfigFile(&config);

    qTranslator = new QTranslator(nullptr);
    loadTranslator(qTranslator, config.lang);
    QCoreApplication::installTranslator(qTranslator);

    QSplashScreen* splash = new QSplashScreen(QPixmap(), Qt::WindowFlags());
    splash->setPixmap(QPixmap(":/image/splash.png"));
    splash->show();
    QCoreApplication::processEvents();

    powerDeviceStart(0);
    // the measuring board needs its time after the supply comes on
    Clock::sleep(4);
    checkDirData();

    Orvia window;
    window.show();
    splash->finish(&window);
    delete splash;

    return app.exec();
}
