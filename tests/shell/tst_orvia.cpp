#include "data/datasetting.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/dialogsystem.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

// The main menu, driven by the hardware keys through the simulator.
class TestOrvia : public QObject
{
    Q_OBJECT

    static QPushButton* button(Orvia& menu, const char* name)
    {
        return menu.findChild<QPushButton*>(name);
    }
    static QString focused()
    {
        QWidget* w = QApplication::focusWidget();
        return w == nullptr ? QString() : w->objectName();
    }
    // One press of a hardware key: held until the 200 ms poll has moved the
    // focus, and let go before the next poll can see it again.
    static void press(const SimInstrument& sim, const char* key)
    {
        QString before = focused();
        QVERIFY(sim.pressKey(key));
        QTRY_VERIFY_WITH_TIMEOUT(focused() != before, 2000);
        QVERIFY(sim.releaseKey(key));
    }

private slots:
    void init()
    {
        if (qTranslator == nullptr) {
            qTranslator = new QTranslator(nullptr);
            QCoreApplication::installTranslator(qTranslator);
        }
    }

    void eightButtonsInTheirGridPlaces()
    {
        TestRoot root(0.01);
        Orvia menu;
        QStringList texts;
        for (const char* name : {"Sistema", "Modulo", "Stringa", "ArchivioModuli", "ArchivioMisure",
                                 "ArchivioAziende", "ArchivioInstallazioni", "USB"}) {
            QPushButton* b = button(menu, name);
            QVERIFY2(b != nullptr, name);
            QVERIFY(b->isFlat());
            QCOMPARE(b->iconSize(), QSize(48, 48));
            texts << b->text();
        }
        QCOMPARE(texts, QStringList({"Sistema", "Modulo", "Stringa", "Archivio\nModuli",
                                     "Archivio\nMisure", "Archivio\nAziende",
                                     "Archivio\nInstallazioni", "USB"}));
        QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("KRM 510"));
    }
    void serviceButtonIsNeverSeen()
    {
        TestRoot root(0.01);
        Orvia menu;
        menu.show();
        QVERIFY(button(menu, "Brask") == nullptr); // not a child of the menu
        QPushButton* service = nullptr;
        for (QWidget* w : QApplication::allWidgets())
            if (w->objectName() == "Brask")
                service = qobject_cast<QPushButton*>(w);
        QVERIFY(service != nullptr);
        QVERIFY(!service->isVisible());
        QVERIFY(service->parent() == nullptr);
        QCOMPARE(service->text(), QString("Brask"));
        menu.translateUi();
        QVERIFY(!service->isVisible());
    }
    void constructorSetsUpConverterAndBacklight()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        root.write("/etc/krm510.conf", "bright = 50\n");
        Orvia menu;
        QCOMPARE(sim.backlightRegister("psc1"), 0);
        QCOMPARE(sim.backlightRegister("pwm1"), 0x40);
        QCOMPARE(sim.backlightRegister("ls0"), 0x0E);
        QCOMPARE(sim.backlightRegister("pwm0"), 127); // 50 %
        QCOMPARE(sim.field("adc registers", "io"), QByteArray("0x03"));
        QCOMPARE(menu._clockMode, 0);
    }
    void myspiRunsAtConstructionAndAMissingOneDoesNoHarm()
    {
        TestRoot root(0.01);
        root.write("/home/myspi", "#!/bin/sh\ntouch \"$(dirname \"$0\")/ran\"\n");
        QFile(root.path("/home/myspi")).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        {
            Orvia menu;
        }
        QVERIFY(root.exists("/home/ran"));
        QFile::remove(root.path("/home/myspi"));
        Orvia again;
        QVERIFY(again.findChild<InfoBar*>() != nullptr);
    }
    void upAndDownWalkEachColumnAsARing()
    {
        TestRoot root(1.0);
        SimInstrument sim(root);
        Orvia menu;
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        struct Step {
            const char* from;
            const char* key;
            const char* to;
        };
        const Step steps[] = {
            {"Sistema", "up", "ArchivioAziende"},
            {"ArchivioAziende", "up", "ArchivioModuli"},
            {"ArchivioModuli", "up", "Sistema"},
            {"Sistema", "down", "ArchivioModuli"},
            {"ArchivioModuli", "down", "ArchivioAziende"},
            {"ArchivioAziende", "down", "Sistema"},
            {"Stringa", "up", "USB"},
            {"USB", "up", "ArchivioInstallazioni"},
            {"ArchivioInstallazioni", "up", "Stringa"},
            {"Stringa", "down", "ArchivioInstallazioni"},
            {"ArchivioInstallazioni", "down", "USB"},
            {"USB", "down", "Stringa"},
        };
        for (const Step& s : steps) {
            button(menu, s.from)->setFocus();
            press(sim, s.key);
            QCOMPARE(focused(), QString(s.to));
        }
    }
    void withFocusOnModuleUpAndDownBothGoToTheMeasureArchiveAndBack()
    {
        TestRoot root(1.0);
        SimInstrument sim(root);
        Orvia menu;
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        button(menu, "Modulo")->setFocus();
        press(sim, "up");
        QCOMPARE(focused(), QString("ArchivioMisure"));
        press(sim, "up");
        QCOMPARE(focused(), QString("Modulo"));
        press(sim, "down");
        QCOMPARE(focused(), QString("ArchivioMisure"));
        press(sim, "down");
        QCOMPARE(focused(), QString("Modulo"));
    }
    void rejectingTheSystemDialogWritesNoFileReloadsNothingAndTouchesNoHardware()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(root.mkdir("/etc/bluetooth"));
        QVERIFY(root.installCatalogues());
        Orvia menu;
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QByteArray backlight = sim.call("backlight");
        QByteArray i2c = sim.call("i2c log");
        ModalDriver driver;
        driver.onNext([&sim](QWidget* w) {
            sim.releaseKey("return");
            DialogSystem* d = qobject_cast<DialogSystem*>(w);
            QVERIFY(d != nullptr);
            d->findChildren<QComboBox*>().value(3)->setCurrentIndex(LANG_EN);
            d->findChildren<QComboBox*>().value(0)->setCurrentIndex(CLOCK_TIME);
            QTest::mouseClick(d->findChild<QPushButton*>("Exit"), Qt::LeftButton);
        });
        button(menu, "Sistema")->setFocus();
        QVERIFY(sim.pressKey("return")); // the hardware key opens the settings
        QTRY_COMPARE_WITH_TIMEOUT(driver.pending(), 0, 5000);
        QVERIFY(!root.exists("/etc/krm510.conf"));
        QVERIFY(!root.exists("/etc/bluetooth/rfcomm.conf"));
        QCOMPARE(button(menu, "Sistema")->text(), QString("Sistema"));
        QCOMPARE(sim.call("backlight"), backlight);
        QCOMPARE(sim.call("i2c log"), i2c);
        QCOMPARE(menu._config.lang, LANG_IT);
        QCOMPARE(menu._clockMode, 0);
        QVERIFY(menu.findChild<InfoBar*>()->clockText().contains(' '));
    }
    void languageChangeRetranslatesTheEightButtonsAndLeavesTheTitle()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(root.mkdir("/etc/bluetooth"));
        QVERIFY(root.installCatalogues());
        Orvia menu;
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        ModalDriver driver;
        driver.onNext([](QWidget* w) {
            DialogSystem* d = qobject_cast<DialogSystem*>(w);
            QVERIFY(d != nullptr);
            d->findChildren<QComboBox*>().value(3)->setCurrentIndex(LANG_EN);
            d->findChildren<QComboBox*>().value(0)->setCurrentIndex(CLOCK_TIME);
            QTest::mouseClick(d->findChild<QPushButton*>("Applica"), Qt::LeftButton);
        });
        QTest::mouseClick(button(menu, "Sistema"), Qt::LeftButton);
        QTRY_COMPARE(driver.pending(), 0);
        QCOMPARE(button(menu, "Sistema")->text(), QString("System"));
        QCOMPARE(button(menu, "Modulo")->text(), QString("Module"));
        QCOMPARE(button(menu, "ArchivioModuli")->text(), QString("Pv module\narchive"));
        QCOMPARE(button(menu, "ArchivioMisure")->text(), QString("Measurement\narchive"));
        QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("KRM 510"));
        QCOMPARE(menu._clockMode, int(CLOCK_TIME));
        QVERIFY(!menu.findChild<InfoBar*>()->clockText().contains(' '));
        _configParam saved;
        QCOMPARE(readConfigFile(&saved), 0);
        QVERIFY(root.exists("/etc/bluetooth/rfcomm.conf")); // the link file follows the settings
        QVERIFY(root.read("/etc/bluetooth/rfcomm.conf").contains("00:00:00:00:00:00"));
        QCOMPARE(saved.lang, LANG_EN);
        QCOMPARE(saved.tclock, CLOCK_TIME);
        // back to Italian: the same translator object takes the other catalogue
        loadTranslator(qTranslator, LANG_IT);
        menu.translateUi();
        QCOMPARE(button(menu, "Sistema")->text(), QString("Sistema"));
    }
    void acceptedSettingsKeepTheCalibrationReadAtStart()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        root.write("/etc/krm510.conf", "adci0 = 0.005\nkpyra = 27\n");
        Orvia menu;
        // the file changes behind the menu's back: the menu writes what it read
        root.write("/etc/krm510.conf", "adci0 = 0.009\n");
        ModalDriver driver;
        driver.onNext([](QWidget* w) {
            QTest::mouseClick(w->findChild<QPushButton*>("Applica"), Qt::LeftButton);
        });
        QTest::mouseClick(button(menu, "Sistema"), Qt::LeftButton);
        QTRY_COMPARE(driver.pending(), 0);
        _configParam saved;
        readConfigFile(&saved);
        QCOMPARE(saved.adci0, 0.005f);
        QCOMPARE(saved.kpyra, 27.0f);
    }
    void storedLanguage5YieldsTheItalianCatalogue()
    {
        QCOMPARE(getFileTraslator(LANG_DEFAULT), QString("/etc/flang/krm510_it"));
        QCOMPARE(getFileTraslator(LANG_IT), QString("/etc/flang/krm510_it"));
        QCOMPARE(getFileTraslator(LANG_ES), QString("/etc/flang/krm510_es"));
    }
    void languageAbove5GivesAPathWithoutSuffixAndStaysItalian()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QCOMPARE(getFileTraslator(static_cast<_language>(6)), QString("/etc/flang/krm510_"));
        QTranslator translator;
        QVERIFY(!loadTranslator(&translator, static_cast<_language>(6)));
        QVERIFY(translator.isEmpty());
        QVERIFY(loadTranslator(&translator, LANG_DEFAULT));
        QCOMPARE(translator.translate("DialogSystem", "Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)"),
                 QString("Bluetooth MAC (formato AA:BB:CC:DD:EE:FF)"));
    }
    void missingCatalogueLeavesTheSourceTexts()
    {
        TestRoot root(0.01);
        QTranslator translator;
        QVERIFY(!loadTranslator(&translator, LANG_FR));
        QCOMPARE(translator.translate("Orvia", "Sistema"), QString());
    }
    void hiddenServiceButtonLabelStaysUnfinishedInEveryCatalogue()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        for (int lang = LANG_IT; lang <= LANG_ES; lang++) {
            QTranslator translator;
            QVERIFY(loadTranslator(&translator, static_cast<_language>(lang)));
            QCOMPARE(translator.translate("Orvia", "Brask"), QString());
        }
    }
    // The title is no catalogue's text: whatever a catalogue would make of
    // it, at start-up in any language or after a change, it stays.
    void statusBarTitleNeverChangesWithTheLanguage()
    {
        struct EveryText : QTranslator {
            QString translate(const char*, const char* source, const char*, int) const override
            {
                return QString::fromUtf8(source) == "KRM 510" ? QString("Titolo tradotto")
                                                              : QString();
            }
            bool isEmpty() const override { return false; }
        } titleTranslator;
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QVERIFY(QCoreApplication::installTranslator(&titleTranslator));
        const char* const system[] = {"Sistema", "System", "Système", "System", "Sistema"};
        for (int lang = LANG_IT; lang <= LANG_ES; lang++) {
            QVERIFY(loadTranslator(qTranslator, static_cast<_language>(lang)));
            Orvia menu;
            QCOMPARE(button(menu, "Sistema")->text(), QString::fromUtf8(system[lang]));
            QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("KRM 510"));
            loadTranslator(qTranslator, static_cast<_language>((lang + 1) % 5));
            menu.translateUi();
            QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("KRM 510"));
        }
        QCoreApplication::removeTranslator(&titleTranslator);
        loadTranslator(qTranslator, LANG_IT);
    }
    void boardFailureIsShownInTheCataloguesOfTheMenu()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, LANG_FR));
        QCOMPARE(translator.translate("Orvia", "Stringa"), QString("Chaine"));
        QCOMPARE(translator.translate("DialogShutDown", "Ricaricare la batteria."),
                 QString("Rechargez la batterie."));
    }
};

QTEST_MAIN(TestOrvia)
#include "tst_orvia.moc"
