// Pictures of every screen of the module archive on the instrument's screen
// (1024 x 600, the instrument's font) in each of the five languages, for
// review; each laid out within the screen, every text of it legible.
#include "archive/archivepanel.h"
#include "archive/deletepanel.h"
#include "archive/editbrand.h"
#include "archive/editpanel.h"
#include "archive/editselpanel.h"
#include "archive/findpanel.h"
#include "archive/listpanel.h"
#include "archive/newpanel.h"
#include "archivefixture.h"
#include "support/fivelanguages.h"
#include "support/screenshot.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QtTest>

using namespace archive;

class TestArchiveScreens : public QObject
{
    Q_OBJECT

    std::unique_ptr<ShownLanguage> shown;

    static void someModels()
    {
        QVERIFY(addModel("Solar Power Italia", "solar", "SPI 250 Mono", "spi",
                         sheet(250, 30.5f, 8.2f, 37.6f, 8.75f)));
        QVERIFY(addModel("Solar Power Italia", "solar", "SPI 250 Poly", "spi_250",
                         sheet(250, 30.1f, 8.31f, 37.2f, 8.9f)));
        QVERIFY(addModel("Helios Energy", "helios", "HE-300", "he",
                         sheet(300, 36.2f, 8.29f, 45.1f, 8.82f)));
    }
    // The screen's layout needs no more than the instrument's screen.
    static void shoot(QDialog* d, const char* name)
    {
        QVERIFY(QTest::qWaitForWindowExposed(d));
        // the test platform maximizes inside a window frame: the screen's size by hand
        d->resize(1024, 600);
        QTRY_COMPARE(d->size(), QSize(1024, 600));
        QSize needed = d->minimumSizeHint();
        QVERIFY2(
            needed.width() <= 1024 && needed.height() <= 600,
            qPrintable(
                QString("%1 needs %2 x %3").arg(name).arg(needed.width()).arg(needed.height())));
        QFETCH_GLOBAL(int, lang);
        const QStringList faults = shootInLanguage(d, name, lang);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }
    // every screen in each of the five languages
    void initTestCase_data() { languageRows(); }
    void init()
    {
        QFETCH_GLOBAL(int, lang);
        shown = std::make_unique<ShownLanguage>(lang);
        QVERIFY(shown->loaded());
    }
    void cleanup() { shown.reset(); }
    void archiveMenu()
    {
        TestRoot root(0.001);
        ArchivePanel d(nullptr);
        shoot(&d, "archive-menu");
    }
    void newModelForm()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "model", "SPI 260 Mono Black");
        enter(driver, &d, "pmax", "260");
        enter(driver, &d, "vmpp", "31.2");
        shoot(&d, "archive-new-model");
    }
    void editModelForm()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        shoot(&d, "archive-edit-model");
    }
    void editSelectedModelForm()
    {
        TestRoot root(0.001);
        someModels();
        char dir[] = "helios";
        char file[] = "he";
        EditSelectedPanel d(nullptr, dir, file);
        shoot(&d, "archive-edit-selected-model");
    }
    void findModels()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "240");
        enter(driver, &d, "pmaxMax", "260");
        touch(child<QPushButton>(&d, "Cerca"));
        shoot(&d, "archive-find");
    }
    void listModels()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        ListPanel d(nullptr, brands.head);
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        shoot(&d, "archive-list");
    }
    void editBrands()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        child<QListWidget>(&d, "brands")->setCurrentRow(2);
        shoot(&d, "archive-edit-brand");
    }
    void deleteModels()
    {
        TestRoot root(0.001);
        someModels();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        shoot(&d, "archive-delete");
    }
};

QTEST_MAIN(TestArchiveScreens)
#include "tst_archivescreens.moc"
