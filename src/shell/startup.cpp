#include "shell/startup.h"

#include "data/datasetting.h"
#include "data/direntry.h"
#include "device/gpiopd.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "shell/orvia.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
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

    QFont font("helvetica", 38, QFont::Bold, false);
    QApplication::setFont(font);

    // the touch screen shows no pointer, and what no window covers is black
    QApplication::setOverrideCursor(QCursor(Qt::BlankCursor));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, QColor(0, 0, 0, 255));
    palette.setColor(QPalette::WindowText, Qt::white);
    // flat buttons stand on the black and show their text in white; raised
    // ones take a dark face to match
    palette.setColor(QPalette::Button, QColor(48, 48, 48));
    palette.setColor(QPalette::ButtonText, Qt::white);
    QApplication::setPalette(palette);

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
