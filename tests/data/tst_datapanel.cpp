#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <cmath>
#include <cstdlib>
#include <cstring>

// The module database: brands as directories, models as files.
class TestDataPanel : public QObject
{
    Q_OBJECT

    static void database(const TestRoot& root) { QVERIFY(root.mkdir(DIR_DATA_PANEL)); }

    static void brand(const TestRoot& root, const char* dir, const char* name)
    {
        QByteArray path = QByteArray(DIR_DATA_PANEL "/") + dir + "/iname";
        QVERIFY(root.write(path.constData(), QByteArray(name) + "\n"));
    }

    static void model(const TestRoot& root, const char* dir, const char* file,
                      const QByteArray& text)
    {
        QByteArray path = QByteArray(DIR_DATA_PANEL "/") + dir + "/" + file;
        QVERIFY(root.write(path.constData(), text));
    }

    static void takeName(const TestRoot& root, const char* dir, const char* file)
    {
        model(root, dir, file, "name = x\nversion = 2.0.2\n");
    }

    static QString heapText(char* text)
    {
        QString s = text == nullptr ? QString("<null>") : QString::fromLocal8Bit(text);
        free(text);
        return s;
    }

    static _panel hit240()
    {
        _panel p;
        memset(&p, 0, sizeof p);
        p.brandName = strdup("Solaria Italia");
        p.brandDir = strdup("solaria");
        p.modelName = strdup("HIT 240");
        p.modelFile = strdup("hit_240");
        p.feature.pmax = 240.0f;
        p.feature.noct = 45.0f;
        p.feature.impp = 5.5f;
        p.feature.vmpp = 43.75f;
        p.feature.isc = 5.75f;
        p.feature.voc = 52.25f;
        p.feature.type = 1;
        p.feature.kisc = 0.0625f;
        p.feature.kvoc = -0.25f;
        p.feature.kpmax = -0.3125f;
        p.feature.tollp = 10.0f;
        p.feature.tollm = 5.0f;
        return p;
    }

    static void freePanel(_panel* p)
    {
        free(p->brandName);
        free(p->brandDir);
        free(p->modelName);
        free(p->modelFile);
        memset(p, 0, sizeof *p);
    }

private slots:
    // ---- The golden module file

    void goldenModuleFileReadsAsExpectedPanel()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria Italia");
        model(root, "solaria", "hit_240", golden("module_hit_240"));
        _panel p;
        memset(&p, 0, sizeof p);
        QCOMPARE(getPanel(&p, "solaria", "hit_240"), 0);
        _panel want = hit240();
        QCOMPARE(QString(p.brandName), QString(want.brandName));
        QCOMPARE(QString(p.brandDir), QString(want.brandDir));
        QCOMPARE(QString(p.modelName), QString(want.modelName));
        QCOMPARE(QString(p.modelFile), QString(want.modelFile));
        QCOMPARE(memcmp(&p.feature, &want.feature, sizeof p.feature), 0);
        freePanel(&p);
        freePanel(&want);
    }

    void savedPanelMatchesGoldenFileByteForByte()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        QCOMPARE(saveNewDataPanel(&p), 0);
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/hit_240"), golden("module_hit_240"));
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/iname"), QByteArray("Solaria Italia\n"));
        freePanel(&p);
    }

    void savedPanelReadsBackWhole()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        p.feature.kvoc = -0.2871f;
        QCOMPARE(saveNewDataPanel(&p), 0);
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "hit_240", &f), 0);
        QCOMPARE(f.kvoc, -0.2871f);
        QCOMPARE(f.pmax, 240.0f);
        QCOMPARE(f.type, 1);
        freePanel(&p);
    }

    // ---- Saving

    void saveRefusesPanelWithNullString()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        free(p.modelName);
        p.modelName = nullptr;
        QCOMPARE(saveDataPanel(&p), -1);
        QCOMPARE(saveDataPanel(nullptr), -1);
        QCOMPARE(saveNewDataPanel(&p), -2);
        QVERIFY(!root.exists(DIR_DATA_PANEL "/solaria"));
        freePanel(&p);
    }

    void saveUnderlinesAndLowersFileName()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        free(p.modelFile);
        p.modelFile = strdup("HIT 240/Black");
        QCOMPARE(saveNewDataPanel(&p), 0);
        QVERIFY(root.exists(DIR_DATA_PANEL "/solaria/hit_240_black"));
        freePanel(&p);
    }

    void saveIntoMissingBrandGivesMinusOne()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        QString before = currentDir();
        QCOMPARE(saveDataPanel(&p), -1);
        QCOMPARE(currentDir(), before);
        freePanel(&p);
    }

    void fullDiskLeavesShortModelFileAndSaveReportsSuccess()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        QCOMPARE(createDataDir(p.brandName, p.brandDir), 0);
        int result;
        {
            FileSizeLimit limit(40);
            result = saveDataPanel(&p);
        }
        // only the write counts are looked at, and they don't see the disk
        QCOMPARE(result, 0);
        QByteArray text = root.read(DIR_DATA_PANEL "/solaria/hit_240");
        QCOMPARE(text, golden("module_hit_240").left(40));
        QVERIFY(text.endsWith("\npmax = 24"));
        // a short file reads as far as it goes
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "hit_240", &f), 0);
        QCOMPARE(f.pmax, 24.0f);
        QCOMPARE(f.noct, 0.0f);
        freePanel(&p);
    }

    void keyCutByFullDiskEndsFeatureReading()
    {
        TestRoot root;
        database(root);
        _panel p = hit240();
        QCOMPARE(createDataDir(p.brandName, p.brandDir), 0);
        {
            FileSizeLimit limit(48);
            QCOMPARE(saveDataPanel(&p), 0);
        }
        QVERIFY(root.read(DIR_DATA_PANEL "/solaria/hit_240").endsWith("\nnoc"));
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "hit_240", &f), 0);
        QCOMPARE(f.pmax, 240.0f);
        QCOMPARE(f.noct, 0.0f);
        freePanel(&p);
    }

    // ---- Names of new brands

    void brandNameTriesWordPrefixes()
    {
        TestRoot root;
        database(root);
        QCOMPARE(heapText(newNameDir("Solar Power Italia")), QString("solar"));
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solar"));
        QCOMPARE(heapText(newNameDir("Solar Power Italia")), QString("solar_power"));
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solar_power"));
        QCOMPARE(heapText(newNameDir("Solar Power Italia")), QString("solar_power_italia"));
    }

    void onlyBlanksCountAsSeparatorsOfBrandName()
    {
        TestRoot root;
        database(root);
        // ab_12_x has one blank: ab and ab_12 are the only word prefixes tried
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/ab"));
        QCOMPARE(heapText(newNameDir("AB-12 X")), QString("ab_12"));
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/ab_12"));
        QString name = heapText(newNameDir("AB-12 X"));
        QVERIFY2(QRegularExpression("^ab_12_x_\\d{1,2}$").match(name).hasMatch(), qPrintable(name));
    }

    void brandNameWithoutBlankIsOneCandidateBeforeTheRandomSuffix()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/ab"));
        QString name = heapText(newNameDir("AB-12"));
        QVERIFY2(QRegularExpression("^ab_12_\\d{1,2}$").match(name).hasMatch(), qPrintable(name));
    }

    void plainFileOfSameNameDoesNotTakeBrandName()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.write(DIR_DATA_PANEL "/solar", "not a brand\n"));
        QCOMPARE(heapText(newNameDir("Solar")), QString("solar"));
    }

    void takenBrandNameFallsToRandomTwoDigitSuffix()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solar"));
        QString name = heapText(newNameDir("Solar"));
        QVERIFY2(QRegularExpression("^solar_\\d{1,2}$").match(name).hasMatch(), qPrintable(name));
        QVERIFY(!root.exists(DIR_DATA_PANEL "/" + name.toLocal8Bit()));
    }

    void tenRandomFailuresGiveNullBrandName()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solar"));
        for (int i = 0; i < 100; i++)
            QVERIFY(root.mkdir(QByteArray(DIR_DATA_PANEL "/solar_" + QByteArray::number(i))));
        QVERIFY(newNameDir("Solar") == nullptr);
    }

    void overlongBrandNameIsCutToSixtyThreeCharacters()
    {
        TestRoot root;
        database(root);
        QByteArray typed(300, 'x');
        QString name = heapText(newNameDir(typed.constData()));
        QCOMPARE(name, QString(63, 'x'));
    }

    void emptyOrNullBrandNameGivesNoName()
    {
        TestRoot root;
        database(root);
        QVERIFY(newNameDir("") == nullptr);
        QVERIFY(newNameDir(nullptr) == nullptr);
    }

    void brandNameStartingWithBlankSkipsEmptyCandidate()
    {
        TestRoot root;
        database(root);
        QCOMPARE(heapText(newNameDir(" Solar")), QString("_solar"));
    }

    void missingDatabaseGivesNoBrandName()
    {
        TestRoot root;
        QVERIFY(newNameDir("Solar") == nullptr);
    }

    // ---- Names of new models

    void modelNameWithoutBlankIsTakenWhole()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QCOMPARE(heapText(newNameFile("Module", 250.0f, "solaria")), QString("module"));
    }

    void modelsModuleAndModule250TakeModuleAndModule250()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        char* first = newNameFile("Module", 250.0f, "solaria");
        QCOMPARE(QString(first), QString("module"));
        takeName(root, "solaria", first);
        free(first);
        QCOMPARE(heapText(newNameFile("Module 250", 250.0f, "solaria")), QString("module_250"));
    }

    void takenModelNameGetsPowerInWatts()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        takeName(root, "solaria", "module");
        QCOMPARE(heapText(newNameFile("Module", 250.4f, "solaria")), QString("module_250"));
    }

    void modelHit240TriesHitHit240ThenHit240240()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QCOMPARE(heapText(newNameFile("Hit 240", 240.0f, "solaria")), QString("hit"));
        takeName(root, "solaria", "hit");
        QCOMPARE(heapText(newNameFile("Hit 240", 240.0f, "solaria")), QString("hit_240"));
        takeName(root, "solaria", "hit_240");
        QCOMPARE(heapText(newNameFile("Hit 240", 240.0f, "solaria")), QString("hit_240_240"));
    }

    void takenModelNameFallsToRandomSuffixAndTenFailuresGiveNull()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        takeName(root, "solaria", "hit");
        takeName(root, "solaria", "hit_240");
        takeName(root, "solaria", "hit_240_240");
        QString name = heapText(newNameFile("Hit 240", 240.0f, "solaria"));
        QVERIFY2(QRegularExpression("^hit_240_240_\\d{1,2}$").match(name).hasMatch(),
                 qPrintable(name));
        for (int i = 0; i < 100; i++)
            takeName(root, "solaria",
                     QByteArray("hit_240_240_" + QByteArray::number(i)).constData());
        QVERIFY(newNameFile("Hit 240", 240.0f, "solaria") == nullptr);
    }

    void directoryOfSameNameDoesNotTakeModelName()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solaria/module"));
        QCOMPARE(heapText(newNameFile("Module", 250.0f, "solaria")), QString("module"));
    }

    void missingBrandGivesNoModelName()
    {
        TestRoot root;
        database(root);
        QString before = currentDir();
        QVERIFY(newNameFile("Module", 250.0f, "nobrand") == nullptr);
        QVERIFY(newNameFile(nullptr, 250.0f, "nobrand") == nullptr);
        QCOMPARE(currentDir(), before);
    }

    void powerThatIsNotANumberStaysText()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        takeName(root, "solaria", "module");
        QCOMPARE(heapText(newNameFile("Module", NAN, "solaria")), QString("module_nan"));
    }

    // ---- Brands

    void createDataDirMakesLowerCaseDirectoryWithIname()
    {
        TestRoot root;
        database(root);
        QCOMPARE(createDataDir("Solar Power", "SOLAR"), 0);
        QVERIFY(QFileInfo(root.path(DIR_DATA_PANEL "/solar")).isDir());
        QCOMPARE(root.read(DIR_DATA_PANEL "/solar/iname"), QByteArray("Solar Power\n"));
    }

    void existingBrandDirectoryFailsCreateAndKeepsIname()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria Italia");
        QCOMPARE(createDataDir("Something Else", "solaria"), -1);
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/iname"), QByteArray("Solaria Italia\n"));
    }

    void saveNewDataPanelGoesOnWhenBrandExists()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria Originale");
        _panel p = hit240();
        QCOMPARE(saveNewDataPanel(&p), 0);
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/iname"), QByteArray("Solaria Originale\n"));
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/hit_240"), golden("module_hit_240"));
        freePanel(&p);
    }

    void updateBrandRewritesIname()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QCOMPARE(updateBrand("solaria", "Solaria S.p.A."), 0);
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria/iname"), QByteArray("Solaria S.p.A.\n"));
        QCOMPARE(updateBrand("nobrand", "X"), -1);
        QVERIFY(!root.exists(DIR_DATA_PANEL "/nobrand"));
    }

    void brandDirectoryWithoutInameGivesEmptyName()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/anonima"));
        QDir::setCurrent(root.path(DIR_DATA_PANEL));
        QCOMPARE(heapText(getBrandName("anonima")), QString(""));
        _listBrand* list = readListBrandPanel(nullptr);
        QVERIFY(list != nullptr);
        QCOMPARE(QString(list->dir), QString("anonima"));
        QCOMPARE(QString(list->name), QString(""));
        QVERIFY(list->next == nullptr);
        closeListBrandPanel(list);
    }

    void brandNameIsFirstLineOfInameCutAtCarriageReturn()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.write(DIR_DATA_PANEL "/solaria/iname", "Solaria\r\nsecond line\n"));
        QDir::setCurrent(root.path(DIR_DATA_PANEL));
        QCOMPARE(heapText(getBrandName("solaria")), QString("Solaria"));
    }

    // The old reader kept 255 bytes of the brand's name, fewer than 255
    // characters of UTF-8; stored data is never lost.
    void storedDataNeverLost_brandNameOf255CharactersReadsBackWhole()
    {
        TestRoot root;
        database(root);
        QByteArray name = QString(255, QChar(0xC9)).toUtf8();
        QVERIFY(root.write(DIR_DATA_PANEL "/solaria/iname", name + "\n"));
        QDir::setCurrent(root.path(DIR_DATA_PANEL));
        char* back = getBrandName("solaria");
        QCOMPARE(QByteArray(back), name);
        free(back);
        // beyond the line bound the name is cut
        QVERIFY(root.write(DIR_DATA_PANEL "/solaria/iname", QByteArray(4000, 'S') + "\n"));
        QCOMPARE(heapText(getBrandName("solaria")), QString(TAG_LINE_SIZE - 1, 'S'));
    }

    // ---- Reading module data

    void missingModelFileGivesZeroFeature()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        _panelFeature f;
        memset(&f, 0x55, sizeof f);
        QCOMPARE(getPanelFeature("solaria", "nothing", &f), -1);
        _panelFeature zero;
        memset(&zero, 0, sizeof zero);
        QCOMPARE(memcmp(&f, &zero, sizeof f), 0);
        memset(&f, 0x55, sizeof f);
        QCOMPARE(getPanelFeature("nobrand", "nothing", &f), -2);
        QCOMPARE(memcmp(&f, &zero, sizeof f), 0);
    }

    void keysInUpperCaseReadLikeLowerCase()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        model(root, "solaria", "upper", golden("module_hit_240").toUpper());
        model(root, "solaria", "lower", golden("module_hit_240"));
        _panelFeature a, b;
        QCOMPARE(getPanelFeature("solaria", "upper", &a), 0);
        QCOMPARE(getPanelFeature("solaria", "lower", &b), 0);
        QCOMPARE(memcmp(&a, &b, sizeof a), 0);
        QCOMPARE(a.pmax, 240.0f);
    }

    void featureFileInAnyOrderReads()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        model(root, "solaria", "m", "tollm = 3\n# comment\n\nkpmax = -0.4\ntype = 2\npmax = 100\n");
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "m", &f), 0);
        QCOMPARE(f.tollm, 3.0f);
        QCOMPARE(f.kpmax, -0.4f);
        QCOMPARE(f.type, 2);
        QCOMPARE(f.pmax, 100.0f);
    }

    void lineWithoutEqualsEndsFeatureReading()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        model(root, "solaria", "m", "pmax = 100\nbroken line\nvoc = 40\nisc = 5\n");
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "m", &f), 0);
        QCOMPARE(f.pmax, 100.0f);
        QCOMPARE(f.voc, 0.0f);
        QCOMPARE(f.isc, 0.0f);
    }

    void featureReadingStopsAfterThirteenRecognisedKeys()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        // twelve keys, then the thirteenth is still taken, the fourteenth not
        model(root, "solaria", "m", golden("module_hit_240") + "pmax = 200\npmax = 300\n");
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "m", &f), 0);
        QCOMPARE(f.pmax, 200.0f);
    }

    void unknownKeysDoNotCountTowardsTheStop()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QByteArray text;
        for (int i = 0; i < 20; i++)
            text += "extra" + QByteArray::number(i) + " = 1\n";
        model(root, "solaria", "m", text + "pmax = 250\n");
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "m", &f), 0);
        QCOMPARE(f.pmax, 250.0f);
    }

    void modelNameIsValueOfName()
    {
        TestRoot root;
        database(root);
        model(root, "solaria", "m", golden("module_hit_240"));
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QCOMPARE(heapText(getModelName("m")), QString("HIT 240"));
    }

    void nameOnLastLineGivesNullModelName()
    {
        TestRoot root;
        database(root);
        model(root, "solaria", "m", "version = 2.0.2\nname = HIT 240\n");
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QVERIFY(getModelName("m") == nullptr);
    }

    void modelFileWithoutNameGivesNullModelName()
    {
        TestRoot root;
        database(root);
        model(root, "solaria", "m", "version = 2.0.2\npmax = 240\n");
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QVERIFY(getModelName("m") == nullptr);
    }

    void lineWithoutEqualsGivesDashedModelName()
    {
        TestRoot root;
        database(root);
        model(root, "solaria", "m", "# a comment\n\ngarbage here\nname = HIT 240\npmax = 1\n");
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QCOMPARE(heapText(getModelName("m")), QString("-----"));
    }

    void unreadableModelFileGivesDashedModelName()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solaria"));
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QCOMPARE(heapText(getModelName("missing")), QString("-----"));
    }

    void modelNameKeyInUpperCaseIsAccepted()
    {
        TestRoot root;
        database(root);
        model(root, "solaria", "m", "VERSION = 2.0.2\nNAME = HIT 240\nPMAX = 240.00\n");
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        QCOMPARE(heapText(getModelName("m")), QString("HIT 240"));
    }

    // The old reader took the name's line in pieces of 255 bytes and kept
    // 248 characters of a 300-character name; stored data is never lost.
    void storedDataNeverLost_modelNameOf255CharactersReadsBackWhole()
    {
        TestRoot root;
        database(root);
        QByteArray name = QString(255, QChar(0xF6)).toUtf8();
        model(root, "solaria", "m", "name = " + name + "\npmax = 1\n");
        model(root, "solaria", "n", "name = " + QByteArray(300, 'M') + "\npmax = 1\n");
        QDir::setCurrent(root.path(DIR_DATA_PANEL "/solaria"));
        char* back = getModelName("m");
        QCOMPARE(QByteArray(back), name);
        free(back);
        QCOMPARE(heapText(getModelName("n")), QString(300, 'M'));
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "n", &f), 0);
        QCOMPARE(f.pmax, 1.0f);
    }

    void getPanelOfMissingBrandFails()
    {
        TestRoot root;
        database(root);
        _panel p;
        memset(&p, 0, sizeof p);
        QString before = currentDir();
        QCOMPARE(getPanel(&p, "nobrand", "hit_240"), -1);
        QCOMPARE(currentDir(), before);
        QCOMPARE(QString(p.brandDir), QString("nobrand"));
        freePanel(&p);
    }

    void getPanelTakesItsOwnStringsAsArguments()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria Italia");
        model(root, "solaria", "hit_240", golden("module_hit_240"));
        _panel p = hit240();
        QCOMPARE(getPanel(&p, p.brandDir, p.modelFile), 0);
        QCOMPARE(QString(p.brandDir), QString("solaria"));
        QCOMPARE(QString(p.modelFile), QString("hit_240"));
        QCOMPARE(p.feature.voc, 52.25f);
        freePanel(&p);
    }

    void memPanelCpyCopiesDeep()
    {
        _panel source = hit240();
        _panel target;
        memset(&target, 0, sizeof target);
        target.brandName = strdup("old");
        memPanelCpy(&target, &source);
        QCOMPARE(QString(target.brandName), QString("Solaria Italia"));
        QVERIFY(target.brandName != source.brandName);
        QVERIFY(target.modelFile != source.modelFile);
        QCOMPARE(QString(target.modelFile), QString("hit_240"));
        QCOMPARE(memcmp(&target.feature, &source.feature, sizeof target.feature), 0);
        freePanel(&source);
        freePanel(&target);
    }

    void nullSourceStringMakesTargetNullWithoutFreeing()
    {
        _panel source = hit240();
        free(source.modelName);
        source.modelName = nullptr;
        _panel target = hit240();
        char* old = target.modelName;
        memPanelCpy(&target, &source);
        QVERIFY(target.modelName == nullptr);
        QCOMPARE(QString(old), QString("HIT 240")); // the block is still there
        free(old);
        freePanel(&source);
        freePanel(&target);
    }

    // ---- Lists

    void brandListHoldsDirectoriesOnly()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria Italia");
        brand(root, "sunpower", "Sun Power");
        QVERIFY(root.write(DIR_DATA_PANEL "/stray", "a file\n"));
        QString before = currentDir();
        _listBrand* list = readListBrandPanel(nullptr);
        QCOMPARE(currentDir(), before);
        QSet<QString> names;
        int n = 0;
        for (_listBrand* b = list; b != nullptr; b = b->next, n++)
            names.insert(QString(b->dir) + "=" + b->name);
        QCOMPARE(n, 2);
        QCOMPARE(names, QSet<QString>({"solaria=Solaria Italia", "sunpower=Sun Power"}));
        QVERIFY(closeListBrandPanel(list) == nullptr);
    }

    void brandListIsInReverseDirectoryOrder()
    {
        TestRoot root;
        database(root);
        for (const char* b : {"a", "b", "c", "d"})
            brand(root, b, b);
        QStringList walk = QDir(root.path(DIR_DATA_PANEL))
                               .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
        _listBrand* list = readListBrandPanel(nullptr);
        QStringList got;
        for (_listBrand* b = list; b != nullptr; b = b->next)
            got.prepend(b->dir);
        QCOMPARE(got, walk);
        closeListBrandPanel(list);
    }

    void modelListSkipsInameAndNonRegularEntries()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        model(root, "solaria", "hit_240", golden("module_hit_240"));
        model(root, "solaria", "noname", "pmax = 1\n");
        QVERIFY(root.mkdir(DIR_DATA_PANEL "/solaria/subdir"));
        QVERIFY(QFile::link("nowhere", root.path(DIR_DATA_PANEL "/solaria/dangling")));
        _listModel* list = readListModelPanel("solaria");
        QSet<QString> got;
        for (_listModel* m = list; m != nullptr; m = m->next)
            got.insert(QString(m->file) + "=" + (m->name ? m->name : "<null>"));
        QCOMPARE(got, QSet<QString>({"hit_240=HIT 240", "noname=<null>"}));
        QVERIFY(findModelPanel(list, "HIT 240") != nullptr);
        QCOMPARE(QString(findModelPanel(list, "HIT 240")->file), QString("hit_240"));
        QVERIFY(findModelPanel(list, "HIT 250") == nullptr);
        QVERIFY(findModelPanel(list, nullptr) == nullptr);
        QVERIFY(closeListModelBrand(list) == nullptr);
    }

    void findBrandGivesFirstNodeOfThatName()
    {
        _listBrand* list = nullptr;
        list = addBrandNode(list, "one");
        list = addBrandNode(list, "two");
        list = addBrandNode(list, "three");
        // no iname: every display name is empty; set two of them by hand
        free(list->name);
        list->name = strdup("Same");
        free(list->next->name);
        list->next->name = strdup("Same");
        _listBrand* found = findBrandPanel(list, "Same");
        QVERIFY(found == list);
        QCOMPARE(QString(found->dir), QString("three"));
        QVERIFY(findBrandPanel(list, "Other") == nullptr);
        closeListBrandPanel(list);
    }

    void missingDatabaseGivesNullLists()
    {
        TestRoot root;
        QVERIFY(readListBrandPanel(nullptr) == nullptr);
        QVERIFY(readListModelPanel("solaria") == nullptr);
    }

    void fileWhereDatabaseDirectoryIsExpectedGivesNullLists()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_PANEL, "not a directory\n"));
        QVERIFY(readListBrandPanel(nullptr) == nullptr);
        QVERIFY(readListModelPanel("solaria") == nullptr);
        _panel p = hit240();
        QCOMPARE(saveNewDataPanel(&p), -1);
        QCOMPARE(createDataDir("Solaria", "solaria"), -1);
        freePanel(&p);
    }

    void fileWhereBrandDirectoryIsExpectedReadsNothing()
    {
        TestRoot root;
        database(root);
        QVERIFY(root.write(DIR_DATA_PANEL "/solaria", "not a directory\n"));
        QVERIFY(readListModelPanel("solaria") == nullptr);
        _panelFeature f;
        QCOMPARE(getPanelFeature("solaria", "hit_240", &f), -2);
        _panel p = hit240();
        QCOMPARE(saveNewDataPanel(&p), -1);
        QCOMPARE(root.read(DIR_DATA_PANEL "/solaria"), QByteArray("not a directory\n"));
        freePanel(&p);
    }

    void brandListShowsProgressDialogReadBrand()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        brand(root, "sunpower", "Sun Power");
        brand(root, "aleo", "Aleo");
        ProgressProbe probe;
        _listBrand* list = readListBrandPanel(nullptr);
        closeListBrandPanel(list);
        QVERIFY(probe.seen.seen);
        QVERIFY(probe.seen.visible);
        QCOMPARE(probe.seen.label, QString("Read Brand..."));
        QCOMPARE(probe.seen.styleSheet, QString(READ_PROGRESS_STYLE));
        QVERIFY(probe.seen.styleSheet.startsWith(
            "QProgressBar:horizontal {border: 1px solid gray;border-radius: 3px;"
            "background: white;padding: 1px;text-align: center;}"));
        QCOMPARE(probe.seen.modality, int(Qt::WindowModal));
        QCOMPARE(probe.seen.minimumDuration, 1500);
        QCOMPARE(probe.seen.maximum, 3);
        QVERIFY(!probe.seen.cancelButton);
        QVERIFY(probe.seen.titleWithoutClose);
    }

    void progressDialogGoesAwayWithTheRead()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        _listBrand* list = readListBrandPanel(nullptr);
        closeListBrandPanel(list);
        for (QWidget* w : QApplication::topLevelWidgets())
            QVERIFY(qobject_cast<QProgressDialog*>(w) == nullptr);
    }

    // ---- Moving into the database

    void chDataPanelDirStaysInDatabase()
    {
        TestRoot root;
        database(root);
        QString before = currentDir();
        char saved[256];
        QCOMPARE(chDataPanelDir(saved, sizeof saved), 0);
        QCOMPARE(QString(saved), before);
        QCOMPARE(currentDir(), QFileInfo(root.path(DIR_DATA_PANEL)).canonicalFilePath());
        QCOMPARE(chDataPanelDir(nullptr, 256), -3);
        char tiny[2];
        QCOMPARE(chDataPanelDir(tiny, sizeof tiny), -2);
    }

    void chSubDirEntersBrandOrGoesBack()
    {
        TestRoot root;
        database(root);
        brand(root, "solaria", "Solaria");
        QString before = currentDir();
        char saved[256];
        QCOMPARE(chSubDir(saved, sizeof saved, "nobrand"), -1);
        QCOMPARE(currentDir(), before);
        QCOMPARE(chSubDir(saved, sizeof saved, nullptr), -4);
        QCOMPARE(chSubDir(saved, sizeof saved, "solaria"), 0);
        QCOMPARE(currentDir(), QFileInfo(root.path(DIR_DATA_PANEL "/solaria")).canonicalFilePath());
        QDir::setCurrent(before);
        QVERIFY(QDir(root.path(DIR_DATA_PANEL)).removeRecursively());
        QCOMPARE(chSubDir(saved, sizeof saved, "solaria"), -2);
    }

private slots:
    // ---- Deleting models and brands

    void deletingAModelRemovesOnlyItsFile()
    {
        TestRoot root;
        database(root);
        brand(root, "hit", "HIT");
        takeName(root, "hit", "hit_240");
        takeName(root, "hit", "hit_250");
        QString before = currentDir();
        QCOMPARE(deleteModelPanel("hit", "hit_240"), 0);
        QCOMPARE(currentDir(), before);
        QVERIFY(!root.exists(DIR_DATA_PANEL "/hit/hit_240"));
        QVERIFY(root.exists(DIR_DATA_PANEL "/hit/hit_250"));
        QCOMPARE(deleteModelPanel("none", "hit_250"), -2);
        QCOMPARE(deleteModelPanel(nullptr, "hit_250"), -4);
    }

    void deletingABrandRemovesEveryEntryAndTheDirectory()
    {
        TestRoot root;
        database(root);
        brand(root, "hit", "HIT");
        takeName(root, "hit", "hit_240");
        takeName(root, "hit", "hit_250");
        brand(root, "sun", "Sun");
        int steps = 0;
        QString before = currentDir();
        QCOMPARE(deleteBrandPanel("hit", [&steps] { steps++; }), 0);
        QCOMPARE(currentDir(), before);
        QCOMPARE(steps, 3);
        QVERIFY(!root.exists(DIR_DATA_PANEL "/hit"));
        QVERIFY(root.exists(DIR_DATA_PANEL "/sun/iname"));
        QCOMPARE(deleteBrandPanel("hit", [] {}), -2);
    }
};

QTEST_MAIN(TestDataPanel)
#include "tst_datapanel.moc"
