// How long the archive screens wait for their lists: readListMeasures over
// 1000 and 10000 measure files, and the brand and model lists of a module
// database of 200 brands and 5000 models. Beside each figure, the time `cat`
// needs to read the same files, for scale. Files are in the page cache (they
// have just been written), as on the instrument after the first listing.
//
//   bench_filelists [repeats]

#include "data/datameasures.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "platform/command.h"
#include "platform/systemroot.h"

#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include "insnmark.h"

static double bestSeconds(int repeats, const std::function<void()>& run)
{
    double best = 1e30;
    for (int i = 0; i < repeats; i++) {
        QElapsedTimer t;
        t.start();
        run();
        best = std::min(best, t.nsecsElapsed() / 1e9);
    }
    return best;
}

static double catSeconds(int repeats, const char* devicePath)
{
    std::string line =
        "find " + SystemRoot::path(devicePath) + " -type f -exec cat {} + > /dev/null";
    return bestSeconds(repeats, [&line] { Command::system(line.c_str()); });
}

static void writeFile(const QString& path, const QByteArray& content)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(content) != content.size()) {
        fprintf(stderr, "cannot write %s\n", qPrintable(path));
        exit(1);
    }
}

// One measure file of 512 points as the instrument writes it.
static QByteArray measureText()
{
    _measure m;
    memset(&m, 0, sizeof m);
    m.mdata = strdup("2010/06/15");
    m.mtime = strdup("10:30:00");
    m.mcom = strdup("Tetto est, fila 3");
    m.mnpan = 1;
    m.mpmax = 240.25f;
    for (int k = 0; k < RAMP_POINTS; k++) {
        m.ramp.corrente[k] = 8.5f * k / 511.0f;
        m.ramp.tensione[k] = 37.25f * (511 - k) / 511.0f;
    }
    saveMeasuresData(&m, MEA_PANEL, 1);
    freeMeasureData(&m);
    QFile f(QString::fromStdString(SystemRoot::path(DIR_DATA_MEA_PANEL "/20100615-103000")));
    f.open(QIODevice::ReadOnly);
    QByteArray text = f.readAll();
    f.remove();
    return text;
}

static int listLength(_listMeasures* list)
{
    int n = 0;
    for (; list != nullptr; list = list->next)
        n++;
    return n;
}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    int repeats = argc > 1 ? std::max(1, atoi(argv[1])) : 3;
    // bench_filelists <repeats> 1000: only the list of 1000 measures, for the
    // instruction counter (marks 1 and 2 around each reading of it)
    const bool only1000 = argc > 2 && atoi(argv[2]) == 1000;

    QTemporaryDir machine(QDir::tempPath() + "/krm510-bench-XXXXXX");
    SystemRoot::set(machine.path().toStdString());
    QDir().mkpath(machine.path() + DIR_DATA_ROOT);
    checkDirData();
    QString meaDir = QString::fromStdString(SystemRoot::path(DIR_DATA_MEA_PANEL));
    QByteArray measure = measureText();

    printf("readListMeasures (best of %d, %d bytes a file)\n", repeats, int(measure.size()));
    // the fixed part: the progress dialog on an empty directory
    double empty =
        bestSeconds(repeats, [] { closeListMeasures(readListMeasures(nullptr, MEA_STRING)); });
    printf("empty directory: %.4f s\n", empty);
    printf("%8s %12s %14s %12s %14s\n", "files", "list s", "list files/s", "cat s", "cat files/s");
    double perFile1000 = 0;
    int written = 0;
    for (int n : {1000, 10000}) {
        if (only1000 && n > 1000)
            return 0;
        for (; written < n; written++)
            writeFile(meaDir + QString::asprintf("/2010%04d-%06d", written / 100, written),
                      measure);
        int got = 0;
        double list = bestSeconds(repeats, [&got, n] {
            insnMark(n == 1000 ? 1 : 3);
            _listMeasures* l = readListMeasures(nullptr, MEA_PANEL);
            got = listLength(l);
            closeListMeasures(l);
            insnMark(n == 1000 ? 2 : 4);
        });
        if (got != n) {
            fprintf(stderr, "listed %d of %d files\n", got, n);
            return 1;
        }
        double cat = catSeconds(repeats, DIR_DATA_MEA_PANEL);
        printf("%8d %12.4f %14.0f %12.4f %14.0f\n", n, list, n / list, cat, n / cat);
        if (n == 1000)
            perFile1000 = list / n;
        else
            printf("time per file at 10000 / at 1000: %.2f (1.00 is linear growth); "
                   "without the empty-directory part: %.2f\n",
                   (list / n) / perFile1000, ((list - empty) / n) / (perFile1000 - empty / 1000));
    }

    // the module database: 200 brands of 25 models each
    QString panelDir = QString::fromStdString(SystemRoot::path(DIR_DATA_PANEL));
    QByteArray module = "version = 2.0.2\nname = HIT 240\npmax = 240.00\nnoct = 45.00\n"
                        "impp = 5.50\nvmpp = 43.75\nisc = 5.75\nvoc = 52.25\ntype = 1\n"
                        "kisc = 0.0625\nkvoc = -0.2500\nkpmax = -0.3125\ntollp = 10.00\n"
                        "tollm = 5.00\n";
    std::vector<QByteArray> brands;
    for (int b = 0; b < 200; b++) {
        QByteArray dir = "brand" + QByteArray::number(b);
        brands.push_back(dir);
        QDir().mkpath(panelDir + "/" + dir);
        writeFile(panelDir + "/" + dir + "/iname", "Brand " + QByteArray::number(b) + "\n");
        for (int m = 0; m < 25; m++)
            writeFile(panelDir + "/" + dir + "/model_" + QString::number(m), module);
    }
    int brandCount = 0;
    double brandList = bestSeconds(repeats, [&brandCount] {
        _listBrand* l = readListBrandPanel(nullptr);
        brandCount = 0;
        for (_listBrand* b = l; b != nullptr; b = b->next)
            brandCount++;
        closeListBrandPanel(l);
    });
    int modelCount = 0;
    double modelLists = bestSeconds(repeats, [&brands, &modelCount] {
        modelCount = 0;
        for (const QByteArray& b : brands) {
            _listModel* l = readListModelPanel(b.constData());
            for (_listModel* m = l; m != nullptr; m = m->next)
                modelCount++;
            closeListModelBrand(l);
        }
    });
    if (brandCount != 200 || modelCount != 5000) {
        fprintf(stderr, "listed %d brands and %d models\n", brandCount, modelCount);
        return 1;
    }
    double cat = catSeconds(repeats, DIR_DATA_PANEL);
    printf("\nmodule database: 200 brands, 5000 models (best of %d)\n", repeats);
    printf("readListBrandPanel (200 iname files)     %.4f s  %8.0f files/s\n", brandList,
           200 / brandList);
    printf("readListModelPanel x 200 (5000 models)   %.4f s  %8.0f files/s\n", modelLists,
           5000 / modelLists);
    printf("cat of all 5200 files                    %.4f s  %8.0f files/s\n", cat, 5200 / cat);
    return 0;
}
