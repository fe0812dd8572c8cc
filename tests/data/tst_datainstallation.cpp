#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "platform/systemroot.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QtTest>

#include <cstdlib>
#include <cstring>

// Installation files: seven texts and the file names of module and string measures.
class TestDataInstallation : public QObject
{
    Q_OBJECT

    static void directories()
    {
        checkDirData();
        QVERIFY(QFileInfo(SystemRoot::path(DIR_DATA_INSTALLATION).c_str()).isDir());
    }

    static QString text(const char* s) { return s == nullptr ? QString("<null>") : QString(s); }

    template <class Node> static QStringList files(const Node* list)
    {
        QStringList l;
        for (; list != nullptr; list = list->next)
            l << text(list->file);
        return l;
    }

    // The installation of the golden file, its measures in file order.
    static _installation* capannone()
    {
        _installation* in = static_cast<_installation*>(calloc(1, sizeof(_installation)));
        in->id = strdup("Capannone Nord");
        in->city = strdup("Castel Maggiore");
        in->zip = strdup("40013");
        in->prov = strdup("BO");
        in->street = strdup("Via Galliera 88");
        in->nstri = strdup("4");
        in->npowe = strdup("19.8");
        in->headMeaPanel = addItemOnListFileMeaPanel(in->headMeaPanel, "20100615-104500");
        in->headMeaPanel = addItemOnListFileMeaPanel(in->headMeaPanel, "20100615-103000");
        in->headMeaString = addItemOnListFileMeaString(in->headMeaString, "20100616-091500");
        return in;
    }

    static void installationFile(const TestRoot& root, const char* file, const QByteArray& content)
    {
        QByteArray path = QByteArray(DIR_DATA_INSTALLATION "/") + file;
        QVERIFY(root.write(path.constData(), content));
    }

    static QByteArray installationText(const TestRoot& root, const char* file)
    {
        return root.read((QByteArray(DIR_DATA_INSTALLATION "/") + file).constData());
    }

private slots:
    // ---- Golden file

    void goldenInstallationReadsAsExpectedRecord()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        QString before = currentDir();
        _installation* in = readInstallationFromFile("capannone_nord");
        QCOMPARE(currentDir(), before);
        QVERIFY(in != nullptr);
        QCOMPARE(text(in->id), QString("Capannone Nord"));
        QCOMPARE(text(in->city), QString("Castel Maggiore"));
        QCOMPARE(text(in->zip), QString("40013"));
        QCOMPARE(text(in->prov), QString("BO"));
        QCOMPARE(text(in->street), QString("Via Galliera 88"));
        QCOMPARE(text(in->nstri), QString("4"));
        QCOMPARE(text(in->npowe), QString("19.8"));
        QCOMPARE(files(in->headMeaPanel), QStringList({"20100615-104500", "20100615-103000"}));
        QCOMPARE(files(in->headMeaString), QStringList({"20100616-091500"}));
        QVERIFY(in->curMeaPanel == in->headMeaPanel);
        QVERIFY(in->curMeaString == in->headMeaString);
        freeInstallation(in);
    }

    void savedInstallationMatchesGoldenByteForByte()
    {
        TestRoot root;
        directories();
        _installation* in = capannone();
        int sum = saveDataInstallation(in);
        QByteArray file = installationText(root, "capannone_nord");
        QCOMPARE(file, golden("installation_capannone_nord"));
        QCOMPARE(sum, file.size());
        QVERIFY(in->curMeaPanel == in->headMeaPanel);
        QVERIFY(in->curMeaString == in->headMeaString);
        freeInstallation(in);
    }

    void readSaveReadReversesBothMeasureLists()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord",
                         golden("installation_capannone_nord") + "smea = 20100616-093000\n");
        _installation* in = readInstallationFromFile("capannone_nord");
        QCOMPARE(myUnlink(DIR_DATA_INSTALLATION "/capannone_nord"), 0);
        QVERIFY(saveDataInstallation(in) > 0);
        QVERIFY(installationText(root, "capannone_nord")
                    .endsWith("pmea = 20100615-104500\npmea = 20100615-103000\n"
                              "smea = 20100616-093000\nsmea = 20100616-091500\n"));
        _installation* again = readInstallationFromFile("capannone_nord");
        QCOMPARE(files(again->headMeaPanel), QStringList({"20100615-103000", "20100615-104500"}));
        QCOMPARE(files(again->headMeaString), QStringList({"20100616-091500", "20100616-093000"}));
        freeInstallation(in);
        freeInstallation(again);
    }

    // ---- Names

    void idIsLoweredAndUnderlinedIntoFileName()
    {
        TestRoot root;
        directories();
        char name[256];
        QVERIFY(newNameFileInstallation("Capannone Nord (B)", name) == name);
        QCOMPARE(QString(name), QString("capannone_nord__b_"));
    }

    void sameIdIsRefusedWithMinusThree()
    {
        TestRoot root;
        directories();
        _installation* in = capannone();
        QVERIFY(saveDataInstallation(in) > 0);
        free(in->id);
        in->id = strdup("CAPANNONE-NORD");
        QCOMPARE(saveDataInstallation(in), -3);
        QCOMPARE(installationText(root, "capannone_nord"), golden("installation_capannone_nord"));
        freeInstallation(in);
    }

    void saveRefusesMissingRecordOrIdWithMinusFour()
    {
        TestRoot root;
        directories();
        QCOMPARE(saveDataInstallation(nullptr), -4);
        _installation* in = capannone();
        free(in->id);
        in->id = nullptr;
        QCOMPARE(saveDataInstallation(in), -4);
        freeInstallation(in);
    }

    void fileWhereInstallationDirectoryIsExpectedRefusesEverything()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_INSTALLATION, "not a directory\n"));
        _installation* in = capannone();
        QCOMPARE(saveDataInstallation(in), -3);
        QCOMPARE(updateDataInstallation("capannone_nord", in), -3);
        QVERIFY(readInstallationFromFile("capannone_nord") == nullptr);
        QVERIFY(readListInstallation(nullptr) == nullptr);
        char id[256], nstri[256], npowe[256];
        QCOMPARE(getIdStringPower("capannone_nord", id, nstri, npowe), -2);
        QCOMPARE(root.read(DIR_DATA_INSTALLATION), QByteArray("not a directory\n"));
        freeInstallation(in);
    }

    // ---- Reading

    void tildeReadsBackNull()
    {
        TestRoot root;
        directories();
        installationFile(root, "x", "id = X\nnstri = ~\nnpowe = 3\nnpowe = ~\n");
        _installation* in = readInstallationFromFile("x");
        QCOMPARE(text(in->id), QString("X"));
        QVERIFY(in->nstri == nullptr);
        QVERIFY(in->npowe == nullptr);
        freeInstallation(in);
    }

    void readingMissingFileOrDirectoryGivesNull()
    {
        TestRoot root;
        QVERIFY(readInstallationFromFile("x") == nullptr);
        directories();
        QVERIFY(readInstallationFromFile("x") == nullptr);
    }

    void keysInUpperCaseAreAccepted()
    {
        TestRoot root;
        directories();
        installationFile(root, "x", "ID = X\nPMEA = a\nSMEA = b\nNoKey\nCITY = Y\n");
        _installation* in = readInstallationFromFile("x");
        QCOMPARE(text(in->id), QString("X"));
        QCOMPARE(text(in->city), QString("Y"));
        QCOMPARE(files(in->headMeaPanel), QStringList({"a"}));
        QCOMPARE(files(in->headMeaString), QStringList({"b"}));
        freeInstallation(in);
    }

    void measureWhoseFileIsGoneGivesNodeWithNullTexts()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        QVERIFY(root.write(DIR_DATA_MEA_PANEL "/20100615-103000", golden("measure_512_points")));
        _installation* in = readInstallationFromFile("capannone_nord");
        QStringList seen;
        for (_listFileMeaPanel* m = in->headMeaPanel; m != nullptr; m = m->next) {
            _listMeasures* node = getSingleListMeasures(m->file, MEA_PANEL);
            QVERIFY(node != nullptr);
            seen << QString(node->file) + " " + text(node->mdata);
            closeListMeasures(node);
        }
        QCOMPARE(seen, QStringList({"20100615-104500 <null>", "20100615-103000 2010/06/15"}));
        freeInstallation(in);
    }

    // ---- Header readers

    void idReaderRepeatedKeyReplacesEarlierAndCountsAsTaken()
    {
        TestRoot root;
        directories();
        installationFile(root, "x", "id = A\nid = B\nnstri = 3\nnpowe = 5\n");
        QDir::setCurrent(root.path(DIR_DATA_INSTALLATION));
        _listInstallation node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getIdNstringNpowerInstallation("x", &node), 0);
        QCOMPARE(text(node.id), QString("B"));
        QCOMPARE(text(node.nstri), QString("3"));
        // three values were taken before NPOWE came
        QVERIFY(node.npowe == nullptr);
        free(node.id);
        free(node.nstri);
    }

    void idReaderStopsAtSecondLineWithoutEquals()
    {
        TestRoot root;
        directories();
        installationFile(root, "x", "id = A\nbad one\nbad two\nnstri = 3\n");
        QDir::setCurrent(root.path(DIR_DATA_INSTALLATION));
        _listInstallation node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getIdNstringNpowerInstallation("x", &node), 2);
        QCOMPARE(text(node.id), QString("A"));
        QVERIFY(node.nstri == nullptr);
        QCOMPARE(getIdNstringNpowerInstallation("missing", &node), 1);
        free(node.id);
    }

    void idStringPowerCopiesIntoCallerBuffers()
    {
        TestRoot root;
        directories();
        installationFile(root, "x",
                         "id = First\nnpowe = 6.0\nid = " + QByteArray(300, 'i') + "\nnstri = 2\n");
        char id[256], nstri[256], npowe[256];
        memset(npowe, 'x', sizeof npowe);
        QCOMPARE(getIdStringPower("x", id, nstri, npowe), 0);
        // a later key replaces; the line is read whole and the value cut to
        // the caller's 256 bytes
        QCOMPARE(QString(id), QString(255, 'i'));
        QCOMPARE(QString(nstri), QString("2"));
        QCOMPARE(QString(npowe), QString("6.0"));
        QCOMPARE(getIdStringPower("missing", id, nstri, npowe), -1);
        QCOMPARE(QString(id), QString(""));
    }

    // ---- Lists

    void installationListHoldsEveryRegularFile()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        installationFile(root, "tetto", "nstri = 1\nid = Tetto\n");
        QVERIFY(root.mkdir(DIR_DATA_INSTALLATION "/subdir"));
        QString before = currentDir();
        _listInstallation* list = readListInstallation(nullptr);
        QCOMPARE(currentDir(), before);
        QSet<QString> got;
        for (_listInstallation* n = list; n != nullptr; n = n->next)
            got.insert(QString(n->file) + "|" + text(n->id) + "|" + text(n->nstri) + "|" +
                       text(n->npowe));
        QCOMPARE(got,
                 QSet<QString>({"capannone_nord|Capannone Nord|4|19.8", "tetto|Tetto|1|<null>"}));
        QVERIFY(closeListInstallation(list) == nullptr);
    }

    void installationListShowsProgressDialogReadInstallation()
    {
        TestRoot root;
        directories();
        installationFile(root, "a", "id = A\n");
        installationFile(root, "b", "id = B\n");
        installationFile(root, "c", "id = C\n");
        ProgressProbe probe;
        closeListInstallation(readListInstallation(nullptr));
        QVERIFY(probe.seen.seen);
        QCOMPARE(probe.seen.label, QString("Read Installation..."));
        QCOMPARE(probe.seen.maximum, 3);
        QCOMPARE(probe.seen.modality, int(Qt::WindowModal));
        QVERIFY(!probe.seen.cancelButton);
    }

    void missingInstallationDirectoryGivesEmptyList()
    {
        TestRoot root;
        QVERIFY(readListInstallation(nullptr) == nullptr);
    }

    // ---- Update through the temporary file

    void updateWritesRecordFirstAndCarriesOldVersionToTheEnd()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        _installation* in = capannone();
        in->headMeaString = addItemOnListFileMeaString(in->headMeaString, "20100617-120000");
        QCOMPARE(updateDataInstallation("capannone_nord", in), 0);
        QCOMPARE(installationText(root, "capannone_nord"),
                 QByteArray("id = Capannone Nord\ncity = Castel Maggiore\nzip = 40013\nprov = BO\n"
                            "street = Via Galliera 88\nnstri = 4\nnpowe = 19.8\n"
                            "pmea = 20100615-103000\npmea = 20100615-104500\n"
                            "smea = 20100617-120000\nsmea = 20100616-091500\nversion = 2.0.2\n"));
        QVERIFY(!root.exists(DIR_DATA_INSTALLATION "/capannone_nord.$$$"));
        freeInstallation(in);
    }

    void updateCarriesUnknownLineAlongInLowerCase()
    {
        TestRoot root;
        directories();
        installationFile(root, "x",
                         "Version = 1.9.0\nID = Old\nINVERTER = SMA Tripower\n"
                         "NOTE = VALID UNTIL 2012\nPMEA = old\n");
        _installation* in = static_cast<_installation*>(calloc(1, sizeof(_installation)));
        in->id = strdup("New");
        QCOMPARE(updateDataInstallation("x", in), 0);
        // "valid" holds "id": that line goes too
        QCOMPARE(installationText(root, "x"),
                 QByteArray("id = New\ncity = ~\nzip = ~\nprov = ~\nstreet = ~\nnstri = ~\n"
                            "npowe = ~\nversion = 1.9.0\ninverter = sma tripower\n"));
        freeInstallation(in);
    }

    void updateOfEmptyListsWritesNoMeasureLine()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        _installation* in = capannone();
        in->headMeaPanel = closeListFileMeaPanel(in->headMeaPanel);
        in->headMeaString = closeListFileMeaString(in->headMeaString);
        QCOMPARE(updateDataInstallation("capannone_nord", in), 0);
        QByteArray t = installationText(root, "capannone_nord");
        QVERIFY(!t.contains("pmea"));
        QVERIFY(!t.contains("smea"));
        QVERIFY(in->curMeaPanel == nullptr && in->curMeaString == nullptr);
        freeInstallation(in);
    }

    void updateOfMissingFileGivesMinusTwo()
    {
        TestRoot root;
        directories();
        _installation* in = capannone();
        QCOMPARE(updateDataInstallation("capannone_nord", in), -2);
        QVERIFY(QDir(root.path(DIR_DATA_INSTALLATION)).isEmpty());
        freeInstallation(in);
    }

    void updateInMissingDirectoryGivesMinusThree()
    {
        TestRoot root;
        _installation* in = capannone();
        QCOMPARE(updateDataInstallation("capannone_nord", in), -3);
        freeInstallation(in);
    }

    void unwritableTemporaryFileGivesMinusOneAndKeepsOldFile()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        QVERIFY(root.mkdir(DIR_DATA_INSTALLATION "/capannone_nord.$$$"));
        _installation* in = capannone();
        QCOMPARE(updateDataInstallation("capannone_nord", in), -1);
        QCOMPARE(installationText(root, "capannone_nord"), golden("installation_capannone_nord"));
        freeInstallation(in);
    }

    // The old instrument put the cut ".$$$" file in the old one's place when
    // the disk was full; the old file now stays byte for byte.
    void storedDataNeverLost_fullDiskDuringUpdateKeepsTheOldFile()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        _installation* in = capannone();
        int result;
        {
            FileSizeLimit limit(63);
            result = updateDataInstallation("capannone_nord", in);
        }
        QCOMPARE(result, -1);
        QVERIFY(!root.exists(DIR_DATA_INSTALLATION "/capannone_nord.$$$"));
        QCOMPARE(installationText(root, "capannone_nord"), golden("installation_capannone_nord"));
        freeInstallation(in);
    }

    void storedDataNeverLost_longStreetSurvivesTenUpdates()
    {
        TestRoot root;
        directories();
        installationFile(root, "capannone_nord", golden("installation_capannone_nord"));
        const QByteArray street = QByteArray(255, 'v');
        _installation* in = capannone();
        free(in->street);
        in->street = strdup(street.constData());
        QCOMPARE(updateDataInstallation("capannone_nord", in), 0);
        freeInstallation(in);
        for (int i = 0; i < 10; i++) {
            _installation* r = readInstallationFromFile("capannone_nord");
            QVERIFY(r != nullptr);
            QCOMPARE(QByteArray(r->street), street);
            QCOMPARE(updateDataInstallation("capannone_nord", r), 0);
            freeInstallation(r);
        }
        QVERIFY(installationText(root, "capannone_nord").contains("street = " + street + "\n"));
        QStringList left = QDir(root.path(DIR_DATA_INSTALLATION)).entryList(QDir::Files);
        QCOMPARE(left, QStringList{"capannone_nord"});
    }

    void freeInstallationReturnsNull()
    {
        QVERIFY(freeInstallation(capannone()) == nullptr);
        QVERIFY(freeInstallation(nullptr) == nullptr);
        QVERIFY(closeListInstallation(nullptr) == nullptr);
    }
};

QTEST_MAIN(TestDataInstallation)
#include "tst_datainstallation.moc"
