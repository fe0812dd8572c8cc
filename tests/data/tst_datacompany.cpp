#include "data/datacompany.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "platform/systemroot.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <cstdlib>
#include <cstring>

// Company files: ten texts and the file names of the company's installations.
class TestDataCompany : public QObject
{
    Q_OBJECT

    static void directories()
    {
        checkDirData();
        QVERIFY(QFileInfo(SystemRoot::path(DIR_DATA_COMPANY).c_str()).isDir());
    }

    static QString text(const char* s) { return s == nullptr ? QString("<null>") : QString(s); }

    static QStringList installations(const _company* c)
    {
        QStringList l;
        for (const _listFileInstallation* i = c->headInst; i != nullptr; i = i->next)
            l << text(i->file);
        return l;
    }

    // The company of the golden file, with its installations in file order.
    static _company* rossi()
    {
        _company* c = static_cast<_company*>(calloc(1, sizeof(_company)));
        c->surn = strdup("Rossi & Figli");
        c->name = strdup("Marco");
        c->nin = strdup("01234567890");
        c->code = strdup("C-0042");
        c->city = strdup("Bologna");
        c->zip = strdup("40128");
        c->prov = strdup("BO");
        c->street = strdup("Via dei Mille 12");
        c->phone = strdup("051 6543210");
        c->email = strdup("ufficio@rossifigli.example");
        c->headInst = addItemOnListInstallation(c->headInst, "pensilina_parcheggio");
        c->headInst = addItemOnListInstallation(c->headInst, "tetto_uffici");
        c->headInst = addItemOnListInstallation(c->headInst, "capannone_nord");
        c->curInst = c->headInst;
        return c;
    }

    static void companyFile(const TestRoot& root, const char* file, const QByteArray& content)
    {
        QByteArray path = QByteArray(DIR_DATA_COMPANY "/") + file;
        QVERIFY(root.write(path.constData(), content));
    }

    static QByteArray companyText(const TestRoot& root, const char* file)
    {
        return root.read((QByteArray(DIR_DATA_COMPANY "/") + file).constData());
    }

private slots:
    // ---- Golden file

    void goldenCompanyReadsAsExpectedRecord()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        QString before = currentDir();
        _company* c = readCompanyFromFile("rossi___figli");
        QCOMPARE(currentDir(), before);
        QVERIFY(c != nullptr);
        _company* want = rossi();
        QCOMPARE(text(c->surn), text(want->surn));
        QCOMPARE(text(c->name), text(want->name));
        QCOMPARE(text(c->nin), text(want->nin));
        QCOMPARE(text(c->code), text(want->code));
        QCOMPARE(text(c->city), text(want->city));
        QCOMPARE(text(c->zip), text(want->zip));
        QCOMPARE(text(c->prov), text(want->prov));
        QCOMPARE(text(c->street), text(want->street));
        QCOMPARE(text(c->phone), text(want->phone));
        QCOMPARE(text(c->email), text(want->email));
        // each line went to the front: the list is the reverse of the file
        QCOMPARE(installations(c),
                 QStringList({"pensilina_parcheggio", "tetto_uffici", "capannone_nord"}));
        QVERIFY(c->curInst == c->headInst);
        freeCompany(c);
        freeCompany(want);
    }

    void savedCompanyMatchesGoldenByteForByte()
    {
        TestRoot root;
        directories();
        _company* c = rossi();
        c->curInst = nullptr;
        int sum = saveDataCompany(c);
        QByteArray file = companyText(root, "rossi___figli");
        QCOMPARE(file, golden("company_rossi___figli"));
        QCOMPARE(sum, file.size());
        QVERIFY(c->curInst == c->headInst);
        freeCompany(c);
    }

    void readSaveReadReversesInstallationOrder()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = readCompanyFromFile("rossi___figli");
        QVERIFY(c != nullptr);
        QVERIFY(c->headInst != nullptr);
        QCOMPARE(deleteCompanyFile(), 0);
        QVERIFY(saveDataCompany(c) > 0);
        QVERIFY(companyText(root, "rossi___figli")
                    .endsWith("sinst = pensilina_parcheggio\nsinst = tetto_uffici\n"
                              "sinst = capannone_nord\n"));
        _company* again = readCompanyFromFile("rossi___figli");
        QCOMPARE(installations(again),
                 QStringList({"capannone_nord", "tetto_uffici", "pensilina_parcheggio"}));
        freeCompany(c);
        freeCompany(again);
    }

    void updateInPlaceReversesInstallationOrderToo()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = readCompanyFromFile("rossi___figli");
        QCOMPARE(updateDataCompany("rossi___figli", c), 0);
        _company* again = readCompanyFromFile("rossi___figli");
        QCOMPARE(installations(again),
                 QStringList({"capannone_nord", "tetto_uffici", "pensilina_parcheggio"}));
        QCOMPARE(text(again->email), QString("ufficio@rossifigli.example"));
        freeCompany(c);
        freeCompany(again);
    }

    // ---- Names

    void rossiAndFigliGetsFileRossiUnderscoreFigli()
    {
        TestRoot root;
        directories();
        char name[COMPANY_NAME_SIZE];
        QVERIFY(newNameFileCompany("Rossi & Figli", name) == name);
        QCOMPARE(QString(name), QString("rossi___figli"));
    }

    void sameSurnameOrOneDifferingInCaseOrPunctuationIsRefused()
    {
        TestRoot root;
        directories();
        _company* c = rossi();
        QVERIFY(saveDataCompany(c) > 0);
        QCOMPARE(saveDataCompany(c), -3);
        for (const char* other : {"ROSSI & FIGLI", "rossi - figli", "Rossi/&/Figli"}) {
            free(c->surn);
            c->surn = strdup(other);
            QCOMPARE(saveDataCompany(c), -3);
        }
        QCOMPARE(QDir(root.path(DIR_DATA_COMPANY)).entryList(QDir::Files),
                 QStringList({"rossi___figli"}));
        QCOMPARE(companyText(root, "rossi___figli"), golden("company_rossi___figli"));
        freeCompany(c);
    }

    void directoryOfSameNameDoesNotRefuseTheName()
    {
        TestRoot root;
        directories();
        QVERIFY(root.mkdir(DIR_DATA_COMPANY "/rossi___figli"));
        char name[COMPANY_NAME_SIZE];
        QVERIFY(newNameFileCompany("Rossi & Figli", name) != nullptr);
        // but a directory can't be written as a file
        _company* c = rossi();
        QCOMPARE(saveDataCompany(c), -1);
        freeCompany(c);
    }

    void saveRefusesMissingRecordOrSurnameWithMinusFour()
    {
        TestRoot root;
        directories();
        QCOMPARE(saveDataCompany(nullptr), -4);
        _company* c = rossi();
        free(c->surn);
        c->surn = nullptr;
        QCOMPARE(saveDataCompany(c), -4);
        char name[COMPANY_NAME_SIZE];
        QVERIFY(newNameFileCompany(nullptr, name) == nullptr);
        freeCompany(c);
    }

    void saveIntoMissingDirectoryGivesMinusThree()
    {
        TestRoot root;
        _company* c = rossi();
        char name[COMPANY_NAME_SIZE];
        QVERIFY(newNameFileCompany("Rossi", name) == nullptr);
        QCOMPARE(saveDataCompany(c), -3);
        freeCompany(c);
    }

    void fileWhereCompanyDirectoryIsExpectedRefusesEverything()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_COMPANY, "not a directory\n"));
        _company* c = rossi();
        QCOMPARE(saveDataCompany(c), -3);
        QCOMPARE(updateDataCompany("rossi___figli", c), -3);
        QVERIFY(readCompanyFromFile("rossi___figli") == nullptr);
        QVERIFY(readListCompany(nullptr) == nullptr);
        QCOMPARE(root.read(DIR_DATA_COMPANY), QByteArray("not a directory\n"));
        freeCompany(c);
    }

    void nullTextsAreWrittenAsTildeAndReadBackNull()
    {
        TestRoot root;
        directories();
        _company* c = static_cast<_company*>(calloc(1, sizeof(_company)));
        c->surn = strdup("Bianchi");
        QVERIFY(saveDataCompany(c) > 0);
        QCOMPARE(companyText(root, "bianchi"),
                 QByteArray("version = 2.0.2\nsurn = Bianchi\nname = ~\nnin = ~\ncode = ~\n"
                            "city = ~\nzip = ~\nprov = ~\nstreet = ~\nphone = ~\nemail = ~\n"));
        _company* r = readCompanyFromFile("bianchi");
        QCOMPARE(text(r->surn), QString("Bianchi"));
        QVERIFY(r->name == nullptr && r->email == nullptr && r->headInst == nullptr);
        freeCompany(r);
        freeCompany(c);
    }

    // ---- Reading

    void readerSkipsLinesWithoutEqualsAndKeepsLastValue()
    {
        TestRoot root;
        directories();
        companyFile(root, "x",
                    "SURN = Verdi\nbroken line\nCITY = Parma\ncity = Modena\nsinst\n"
                    "Sinst = a\n# sinst = b\nzip = ~\n");
        _company* c = readCompanyFromFile("x");
        QVERIFY(c != nullptr);
        QCOMPARE(text(c->surn), QString("Verdi"));
        QCOMPARE(text(c->city), QString("Modena"));
        QVERIFY(c->zip == nullptr);
        QCOMPARE(installations(c), QStringList({"a"}));
        freeCompany(c);
    }

    void laterTildeClearsEarlierValue()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "surn = Verdi\nsurn = ~\n");
        _company* c = readCompanyFromFile("x");
        QVERIFY(c->surn == nullptr);
        freeCompany(c);
    }

    void readingMissingFileOrDirectoryGivesNull()
    {
        TestRoot root;
        QVERIFY(readCompanyFromFile("x") == nullptr);
        directories();
        QVERIFY(readCompanyFromFile("x") == nullptr);
        QVERIFY(readCompanyFromFile(nullptr) == nullptr);
    }

    void binaryNoiseReadsWithoutHarm()
    {
        TestRoot root;
        directories();
        QRandomGenerator random(42);
        for (int round = 0; round < 20; round++) {
            QByteArray noise(3000 + round * 311, '\0');
            for (char& c : noise)
                c = char(random.bounded(256));
            companyFile(root, "noise", noise);
            freeCompany(readCompanyFromFile("noise"));
            _listCompany* list = readListCompany(nullptr);
            QVERIFY(list != nullptr);
            closeListCompany(list);
        }
    }

    // The old reader took a line in pieces of 255 bytes and kept 246
    // characters of a 300-character street; the tag files' line reader
    // keeps a line whole up to its bound and skips the rest.
    void storedDataNeverLost_overlongValueIsReadWholeUpToTheBound()
    {
        TestRoot root;
        directories();
        companyFile(root, "x",
                    "street = " + QByteArray(300, 's') + "\nname = " + QByteArray(3000, 'n') +
                        "\ncity = Lugo\n");
        _company* c = readCompanyFromFile("x");
        QCOMPARE(text(c->street), QString(300, 's'));
        QCOMPARE(text(c->name), QString(TAG_LINE_SIZE - 1 - 7, 'n'));
        QCOMPARE(text(c->city), QString("Lugo"));
        freeCompany(c);
    }

    // ---- Header reader of the list

    void surnameCodeReaderTakesFirstOccurrence()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "code = 1\nsurn = Primo\nsurn = Secondo\nnin = 123\ncode = 2\n");
        QDir::setCurrent(root.path(DIR_DATA_COMPANY));
        _listCompany node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getSurnameCodeCompany("x", &node), 0);
        QCOMPARE(text(node.surn), QString("Primo"));
        QCOMPARE(text(node.nin), QString("123"));
        QCOMPARE(text(node.code), QString("1"));
        free(node.surn);
        free(node.nin);
        free(node.code);
    }

    void surnameCodeReaderStopsAtSecondLineWithoutEquals()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "surn = Primo\nbad one\nnin = 1\nbad two\ncode = 9\nbad three\n");
        QDir::setCurrent(root.path(DIR_DATA_COMPANY));
        _listCompany node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getSurnameCodeCompany("x", &node), 2);
        QCOMPARE(text(node.surn), QString("Primo"));
        QCOMPARE(text(node.nin), QString("1"));
        QVERIFY(node.code == nullptr);
        free(node.surn);
        free(node.nin);
    }

    void surnameCodeReaderStopsOnceThreeValuesAreTaken()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "surn = A\nnin = B\ncode = C\nbad one\nbad two\n");
        QDir::setCurrent(root.path(DIR_DATA_COMPANY));
        _listCompany node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getSurnameCodeCompany("x", &node), 0);
        QCOMPARE(getSurnameCodeCompany("missing", &node), 1);
        free(node.surn);
        free(node.nin);
        free(node.code);
    }

    void surnameTildeStaysNullAndIsNotTakenAgain()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "surn = ~\nsurn = Dopo\n");
        QDir::setCurrent(root.path(DIR_DATA_COMPANY));
        _listCompany node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getSurnameCodeCompany("x", &node), 0);
        QVERIFY(node.surn == nullptr);
    }

    // ---- Lists

    void companyListHoldsEveryRegularFile()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        companyFile(root, "verdi", "surn = Verdi\nnin = 999\n");
        // a company whose update was cut short stands in the list as a record of its own
        companyFile(root, "verdi.$$$", "surn = Verdi\n");
        QVERIFY(root.mkdir(DIR_DATA_COMPANY "/subdir"));
        QString before = currentDir();
        _listCompany* list = readListCompany(nullptr);
        QCOMPARE(currentDir(), before);
        QSet<QString> got;
        for (_listCompany* n = list; n != nullptr; n = n->next)
            got.insert(QString(n->file) + "|" + text(n->surn) + "|" + text(n->nin) + "|" +
                       text(n->code));
        QCOMPARE(got, QSet<QString>({"rossi___figli|Rossi & Figli|01234567890|C-0042",
                                     "verdi|Verdi|999|<null>", "verdi.$$$|Verdi|<null>|<null>"}));
        QVERIFY(closeListCompany(list) == nullptr);
    }

    void companyListIsInReverseDirectoryOrder()
    {
        TestRoot root;
        directories();
        for (const char* f : {"a", "b", "c", "d"})
            companyFile(root, f, "surn = x\n");
        QStringList walk = QDir(root.path(DIR_DATA_COMPANY)).entryList(QDir::Files, QDir::Unsorted);
        _listCompany* list = readListCompany(nullptr);
        QStringList got;
        for (_listCompany* n = list; n != nullptr; n = n->next)
            got.prepend(n->file);
        QCOMPARE(got, walk);
        closeListCompany(list);
    }

    void missingCompanyDirectoryGivesEmptyList()
    {
        TestRoot root;
        QVERIFY(readListCompany(nullptr) == nullptr);
    }

    void companyListShowsProgressDialogReadCompany()
    {
        TestRoot root;
        directories();
        companyFile(root, "a", "surn = A\n");
        ProgressProbe probe;
        closeListCompany(readListCompany(nullptr));
        QVERIFY(probe.seen.seen);
        QCOMPARE(probe.seen.label, QString("Read Company..."));
        QCOMPARE(probe.seen.maximum, 1);
        QCOMPARE(probe.seen.minimumDuration, 1500);
        QCOMPARE(probe.seen.modality, int(Qt::WindowModal));
        QCOMPARE(probe.seen.styleSheet, QString(READ_PROGRESS_STYLE));
    }

    // ---- Update through the temporary file

    void updateWritesRecordFirstAndCarriesOldVersionToTheEnd()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = rossi();
        free(c->city);
        c->city = strdup("Imola");
        QCOMPARE(updateDataCompany("rossi___figli", c), 0);
        QCOMPARE(companyText(root, "rossi___figli"),
                 QByteArray("surn = Rossi & Figli\nname = Marco\nnin = 01234567890\ncode = C-0042\n"
                            "city = Imola\nzip = 40128\nprov = BO\nstreet = Via dei Mille 12\n"
                            "phone = 051 6543210\nemail = ufficio@rossifigli.example\n"
                            "sinst = capannone_nord\nsinst = tetto_uffici\n"
                            "sinst = pensilina_parcheggio\nversion = 2.0.2\n"));
        QVERIFY(!root.exists(DIR_DATA_COMPANY "/rossi___figli.$$$"));
        freeCompany(c);
    }

    void updateCarriesUnknownLineAlongInLowerCase()
    {
        TestRoot root;
        directories();
        companyFile(root, "x", "VERSION = 2.0.2\nSURN = Old\nFAX = 051 Interno B\nSINST = gone\n");
        _company* c = static_cast<_company*>(calloc(1, sizeof(_company)));
        c->surn = strdup("New");
        QCOMPARE(updateDataCompany("x", c), 0);
        QCOMPARE(companyText(root, "x"),
                 QByteArray("surn = New\nname = ~\nnin = ~\ncode = ~\ncity = ~\nzip = ~\n"
                            "prov = ~\nstreet = ~\nphone = ~\nemail = ~\n"
                            "version = 2.0.2\nfax = 051 interno b\n"));
        freeCompany(c);
    }

    void updateOfEmptyListWritesNoSinstLine()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = rossi();
        c->headInst = closeListFileInstallation(c->headInst);
        QCOMPARE(updateDataCompany("rossi___figli", c), 0);
        QVERIFY(!companyText(root, "rossi___figli").contains("sinst"));
        freeCompany(c);
    }

    void updateDropsOldLineWhoseValueMerelyContainsAKey()
    {
        TestRoot root;
        directories();
        companyFile(root, "x",
                    "surn = X\nnote = ask for the ZIP code\nremark = by phone only\n"
                    "extra = kept\nmyname = dropped\n");
        _company* c = readCompanyFromFile("x");
        QCOMPARE(updateDataCompany("x", c), 0);
        QByteArray t = companyText(root, "x");
        QVERIFY(t.endsWith("email = ~\nextra = kept\n"));
        QVERIFY(!t.contains("note"));
        QVERIFY(!t.contains("remark"));
        QVERIFY(!t.contains("myname"));
        freeCompany(c);
    }

    void updateOfMissingFileGivesMinusTwoAndWritesNothing()
    {
        TestRoot root;
        directories();
        _company* c = rossi();
        QCOMPARE(updateDataCompany("rossi___figli", c), -2);
        QVERIFY(QDir(root.path(DIR_DATA_COMPANY)).isEmpty());
        QCOMPARE(updateDataCompany(nullptr, c), -4);
        QCOMPARE(updateDataCompany("rossi___figli", nullptr), -4);
        freeCompany(c);
    }

    void updateInMissingDirectoryGivesMinusThree()
    {
        TestRoot root;
        _company* c = rossi();
        QString before = currentDir();
        QCOMPARE(updateDataCompany("rossi___figli", c), -3);
        QCOMPARE(currentDir(), before);
        freeCompany(c);
    }

    void unwritableTemporaryFileGivesMinusOneAndKeepsOldFile()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        QVERIFY(root.mkdir(DIR_DATA_COMPANY "/rossi___figli.$$$"));
        _company* c = rossi();
        QCOMPARE(updateDataCompany("rossi___figli", c), -1);
        QCOMPARE(companyText(root, "rossi___figli"), golden("company_rossi___figli"));
        freeCompany(c);
    }

    // The old instrument wrote the ".$$$" file without looking, deleted the
    // old file and renamed the short one into its place: a full disk left a
    // cut record. The old file now stays byte for byte and no ".$$$" is left.
    void storedDataNeverLost_fullDiskDuringUpdateKeepsTheOldFile()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = rossi();
        free(c->city);
        c->city = strdup("Imola");
        int result;
        {
            FileSizeLimit limit(100);
            result = updateDataCompany("rossi___figli", c);
        }
        QCOMPARE(result, -1);
        QVERIFY(!root.exists(DIR_DATA_COMPANY "/rossi___figli.$$$"));
        QCOMPARE(companyText(root, "rossi___figli"), golden("company_rossi___figli"));
        freeCompany(c);
    }

    // Every line fits the stream's buffer; the write fails only when it is flushed.
    void storedDataNeverLost_writeFailingOnlyAtTheFlushKeepsTheOldFile()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = rossi();
        int result;
        {
            FileSizeLimit limit(0);
            result = updateDataCompany("rossi___figli", c);
        }
        QCOMPARE(result, -1);
        QVERIFY(!root.exists(DIR_DATA_COMPANY "/rossi___figli.$$$"));
        QCOMPARE(companyText(root, "rossi___figli"), golden("company_rossi___figli"));
        freeCompany(c);
    }

    // A street of the 255 characters the form accepts, in UTF-8, stays byte for
    // byte however often the company is updated.
    void storedDataNeverLost_longStreetSurvivesTenUpdates()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        const QByteArray street = QString(255, QChar(0x00e8)).toUtf8();
        _company* c = rossi();
        free(c->street);
        c->street = strdup(street.constData());
        QCOMPARE(updateDataCompany("rossi___figli", c), 0);
        freeCompany(c);
        QByteArray first;
        for (int i = 0; i < 10; i++) {
            _company* r = readCompanyFromFile("rossi___figli");
            QVERIFY(r != nullptr);
            QCOMPARE(QByteArray(r->street), street);
            QCOMPARE(updateDataCompany("rossi___figli", r), 0);
            freeCompany(r);
            QByteArray t = companyText(root, "rossi___figli");
            QVERIFY(t.contains("street = " + street + "\n"));
            // the list lines turn round at every cycle: every second file is the same
            if (i == 0)
                first = t;
            else if (i % 2 == 0)
                QCOMPARE(t, first);
        }
        QStringList left = QDir(root.path(DIR_DATA_COMPANY)).entryList(QDir::Files);
        QCOMPARE(left, QStringList{"rossi___figli"});
    }

    // An unknown line longer than any reader's buffer is carried along whole.
    void storedDataNeverLost_updateCarriesALongUnknownLineWhole()
    {
        TestRoot root;
        directories();
        const QByteArray note = "remark = " + QByteArray(5000, 'r') + "\n";
        companyFile(root, "x", "surn = X\n" + note + "version = 2.0.2\n");
        _company* c = readCompanyFromFile("x");
        QCOMPARE(updateDataCompany("x", c), 0);
        freeCompany(c);
        QVERIFY(companyText(root, "x").contains(note));
    }

    void updateSetsCursorToTheHead()
    {
        TestRoot root;
        directories();
        companyFile(root, "rossi___figli", golden("company_rossi___figli"));
        _company* c = rossi();
        c->curInst = c->headInst->next;
        QCOMPARE(updateDataCompany("rossi___figli", c), 0);
        QVERIFY(c->curInst == c->headInst);
        freeCompany(c);
    }

    void freeCompanyReturnsNull()
    {
        QVERIFY(freeCompany(rossi()) == nullptr);
        QVERIFY(freeCompany(nullptr) == nullptr);
        QVERIFY(closeListFileInstallation(nullptr) == nullptr);
    }

private:
    static int deleteCompanyFile() { return myUnlink(DIR_DATA_COMPANY "/rossi___figli"); }
};

QTEST_MAIN(TestDataCompany)
#include "tst_datacompany.moc"
