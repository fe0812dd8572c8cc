// The search of models over all brands by Pmax, Vmpp and Impp.
#include "archive/findpanel.h"
#include "archivefixture.h"
#include "shell/language.h"
#include "toolkit/tabcolumns.h"

#include <QLabel>
#include <QListWidget>
#include <QProgressDialog>
#include <QTranslator>
#include <QtTest>

using namespace archive;

class TestFindPanel : public QObject
{
    Q_OBJECT

    // Five models in two brands: Pmax 100, 150, 200, 250, 300 W; Vmpp
    // 20, 25, 30, 35, 40 V; Impp 5, 6, 6.67, 7.14, 7.5 A.
    static void fiveModels()
    {
        QVERIFY(addModel("Solar", "solar", "S100", "s100", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Solar", "solar", "S150", "s150", sheet(150, 25, 6, 31, 6.5f)));
        QVERIFY(addModel("Solar", "solar", "S200", "s200", sheet(200, 30, 6.67f, 37, 7.2f)));
        QVERIFY(addModel("Helios", "helios", "H250", "h250", sheet(250, 35, 7.14f, 43, 7.7f)));
        QVERIFY(addModel("Helios", "helios", "H300", "h300", sheet(300, 40, 7.5f, 49, 8.1f)));
    }
    // The model names of the result rows, sorted; the header is left out.
    static QStringList found(FindPanel& d)
    {
        QListWidget* list = child<QListWidget>(&d, "result");
        QStringList names;
        for (int i = 1; i < list->count(); i++)
            names << list->item(i)->text().section('\t', 1, 1);
        names.sort();
        return names;
    }
    static void search(FindPanel& d) { touch(child<QPushButton>(&d, "Cerca")); }
    static QString count(FindPanel& d) { return child<QLabel>(&d, "count")->text(); }

private slots:
    void onlyAPmaxMinimumReturnsEveryModelAtOrAboveIt()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "200");
        search(d);
        QCOMPARE(found(d), QStringList({"H250", "H300", "S200"}));
        QCOMPARE(count(d), QString("Modello trovato : 3"));
    }
    void onlyAVmppMinimumLeavesOutAModelExactlyAtIt()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "vmppMin", "30");
        search(d);
        QCOMPARE(found(d), QStringList({"H250", "H300"}));
    }
    void rangesOfVmppAndImppAreStrictAndThoseOfPmaxInclusive()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "150");
        enter(driver, &d, "pmaxMax", "250");
        search(d);
        QCOMPARE(found(d), QStringList({"H250", "S150", "S200"}));
        touch(child<QPushButton>(&d, "Reset"));
        enter(driver, &d, "vmppMin", "25");
        enter(driver, &d, "vmppMax", "35");
        search(d);
        QCOMPARE(found(d), QStringList({"S200"}));
        touch(child<QPushButton>(&d, "Reset"));
        enter(driver, &d, "imppMax", "6");
        search(d);
        QCOMPARE(found(d), QStringList({"S100"}));
        touch(child<QPushButton>(&d, "Reset"));
        enter(driver, &d, "pmaxMax", "150");
        search(d);
        QCOMPARE(found(d), QStringList({"S100", "S150"}));
    }
    void exactPmaxWithARangeReturnsTheExactModelsAndThoseInTheRange()
    {
        TestRoot root(0.001);
        fiveModels();
        QVERIFY(addModel("Helios", "helios", "H250b", "h250b", sheet(250, 34, 7.35f, 42, 7.9f)));
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmax", "250");
        enter(driver, &d, "pmaxMin", "100");
        enter(driver, &d, "pmaxMax", "200");
        search(d);
        QCOMPARE(found(d), QStringList({"H250", "H250b", "S100", "S150", "S200"}));
    }
    void rowsJoinByAnd()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "150");
        enter(driver, &d, "imppMax", "7");
        search(d);
        QCOMPARE(found(d), QStringList({"S150", "S200"}));
    }
    void aFieldHolding0ShowsEmptyAndCountsAsNotFilled()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "0");
        QCOMPARE(child<QLineEdit>(&d, "pmaxMin")->text(), QString());
        QVERIFY(child<QPushButton>(&d, "Cerca")->isEnabled());
        enter(driver, &d, "pmaxMax", "150");
        search(d);
        // only the maximum is a criterion
        QCOMPARE(found(d), QStringList({"S100", "S150"}));
        // a row whose only field holds 0 matches nothing
        touch(child<QPushButton>(&d, "Reset"));
        enter(driver, &d, "vmpp", "0");
        search(d);
        QListWidget* list = child<QListWidget>(&d, "result");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text(), QString("Nessun risultato trovato."));
    }
    void zeroHitsShowTheHeaderAndNoResultWithCount0()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmax", "123");
        search(d);
        QListWidget* list = child<QListWidget>(&d, "result");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(),
                 QString("Marca\t Modello\t Pmax(V)\t Vmpp(V)\t Impp(A)\t Voc(V)\t Isc(A)"));
        QCOMPARE(list->item(1)->text(), QString("Nessun risultato trovato."));
        QCOMPARE(count(d), QString("Modello trovato : 0"));
    }
    void brandNamesLongerThan8AreCutInTheFindListOnly()
    {
        TestRoot root(0.001);
        QVERIFY(addModel("Solar Power Italia", "solar", "Monocrystal 250", "mono",
                         sheet(250, 30.5f, 8.2f, 37.5f, 8.75f)));
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmax", "250");
        search(d);
        QListWidget* list = child<QListWidget>(&d, "result");
        QCOMPARE(list->item(1)->text(),
                 QString("Solar Po\tMonocrysta\t250.00\t30.50\t8.20\t37.50\t8.75"));
        QVERIFY(modelFile(root, "solar", "mono").contains("name = Monocrystal 250\n"));
        QCOMPARE(root.read("/krm510data/datapanel/solar/iname"),
                 QByteArray("Solar Power Italia\n"));
    }
    void cancellingTheProgressKeepsTheRowsFoundSoFar()
    {
        TestRoot root(0.001);
        for (int i = 0; i < 6; i++) {
            QByteArray dir = "brand" + QByteArray::number(i);
            QByteArray model = "M" + QByteArray::number(i);
            QVERIFY(addModel(dir.constData(), dir.constData(), model.constData(),
                             model.toLower().constData(), sheet(200, 30, 6.67f, 37, 7.2f)));
        }
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmax", "200");
        QProgressDialog* seen = nullptr;
        QString label;
        QTimer watch;
        watch.setInterval(0);
        connect(&watch, &QTimer::timeout, [&] {
            QProgressDialog* p = d.findChild<QProgressDialog*>();
            if (p == nullptr || p->value() < 2 || seen != nullptr)
                return;
            seen = p;
            label = p->labelText();
            QCOMPARE(p->windowModality(), Qt::WindowModal);
            QCOMPARE(p->maximum(), 6);
            QCOMPARE(p->minimumDuration(), 10);
            QVERIFY(p->styleSheet().startsWith(
                "QProgressBar:horizontal {border: 1px solid gray;border-radius: 3px;"));
            p->cancel();
        });
        watch.start();
        search(d);
        watch.stop();
        QVERIFY(seen != nullptr);
        QCOMPARE(label, QString("Ricerca Modulo..."));
        QCOMPARE(found(d).size(), 2);
        QCOMPARE(count(d), QString("Modello trovato : 2"));
    }
    void searchIsEnabledOnlyWithACriterionAndResetClearsAll()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        QPushButton* find = child<QPushButton>(&d, "Cerca");
        QVERIFY(!find->isEnabled());
        driver.typeOnKeyboard("10", false);
        touch(child<QLineEdit>(&d, "impp"));
        QVERIFY(!find->isEnabled());
        enter(driver, &d, "imppMin", "5.5");
        QCOMPARE(child<QLineEdit>(&d, "imppMin")->text(), QString("5.50"));
        QVERIFY(find->isEnabled());
        enter(driver, &d, "pmax", "100");
        touch(child<QPushButton>(&d, "Reset"));
        QCOMPARE(child<QLineEdit>(&d, "imppMin")->text(), QString());
        QCOMPARE(child<QLineEdit>(&d, "pmax")->text(), QString());
        // the button is looked at again after the next round
        driver.typeOnKeyboard("", true);
        touch(child<QLineEdit>(&d, "vmpp"));
        QVERIFY(!find->isEnabled());
    }
    void anEmptyEntryClearsTheField()
    {
        TestRoot root(0.001);
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "vmppMax", "40");
        QCOMPARE(child<QLineEdit>(&d, "vmppMax")->text(), QString("40.00"));
        enter(driver, &d, "vmppMax", "");
        QCOMPARE(child<QLineEdit>(&d, "vmppMax")->text(), QString());
        QVERIFY(driver.boxes.isEmpty());
        QCOMPARE(driver.keyboardInitial, QStringList({"", "40.00"}));
        QCOMPARE(driver.keyboardTitles, QStringList({"Vmpp Massima", "Vmpp Massima"}));
    }
    void negativeValuesAreRefusedWithTheFieldsMessage_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::newRow("pmax") << "pmax"
                              << "Pmax"
                              << "Pmax non può essere negativa : -1";
        QTest::newRow("pmaxMin") << "pmaxMin"
                                 << "Pmax Minima"
                                 << "Pmax Minima non può essere negativa : -1";
        QTest::newRow("pmaxMax") << "pmaxMax"
                                 << "Pmax Massima"
                                 << "Pmax Massima non può essere negativa : -1";
        QTest::newRow("vmpp") << "vmpp"
                              << "Vmpp"
                              << "Vmpp non può essere negativa : -1";
        QTest::newRow("vmppMin") << "vmppMin"
                                 << "Vmpp Minima"
                                 << "Vmpp Minima non può essere negativa : -1";
        QTest::newRow("vmppMax") << "vmppMax"
                                 << "Vmpp Massima"
                                 << "Vmpp Massima non può essere negativa : -1";
        QTest::newRow("impp") << "impp"
                              << "Impp"
                              << "Impp non può essere negativa : -1";
        // this title stands in English
        QTest::newRow("imppMin") << "imppMin"
                                 << "Minimum Impp"
                                 << "Impp Minima non può essere negativa : -1";
        QTest::newRow("imppMax") << "imppMax"
                                 << "Impp Massima"
                                 << "Impp Massima non può essere negativa : -1";
    }
    void negativeValuesAreRefusedWithTheFieldsMessage()
    {
        QFETCH(QString, field);
        QFETCH(QString, title);
        QFETCH(QString, message);
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        QByteArray name = field.toLatin1();
        enterRefused(driver, &d, name.constData(), "-1");
        QCOMPARE(child<QLineEdit>(&d, name.constData())->text(), QString());
        QVERIFY(!child<QPushButton>(&d, "Cerca")->isEnabled());
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, title);
        QCOMPARE(driver.boxes[0].text, QString("Testo inserito non valido."));
        QCOMPARE(driver.boxes[0].informative, message);
    }
    void notANumberIsRefusedWithTheRowsTag()
    {
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        enterRefused(driver, &d, "vmppMin", "1X");
        QCOMPARE(driver.boxes.value(0).title, QString("Vmpp Minima"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Vmpp : 1X"));
        QCOMPARE(child<QLineEdit>(&d, "vmppMin")->text(), QString());
    }
    void numberIsANumber_nanInfAndNumbersBeyondAFloatAreRefused()
    {
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        const QStringList texts{"nan", "-NaN", "inf", "+Infinity", "1e39"};
        for (const QString& t : texts)
            enterRefused(driver, &d, "pmaxMin", t);
        QCOMPARE(driver.boxes.size(), texts.size());
        QCOMPARE(driver.boxes.value(0).informative, QString("Pmax : nan"));
        QCOMPARE(child<QLineEdit>(&d, "pmaxMin")->text(), QString());
        QVERIFY(!child<QPushButton>(&d, "Cerca")->isEnabled());
    }
    void numberIsANumber_aStoredNanOrInfShowsDashesInTheResults()
    {
        TestRoot root(0.001);
        QVERIFY(addModel("Solar", "solar", "S100", "s100", sheet(100, 20, 5, 25, 5.5f)));
        QByteArray file = root.read("/krm510data/datapanel/solar/s100");
        file.replace("\nvoc = 25.00\n", "\nvoc = nan\n");
        file.replace("\nisc = 5.50\n", "\nisc = inf\n");
        QVERIFY(root.write("/krm510data/datapanel/solar/s100", file));
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "50");
        search(d);
        QListWidget* list = child<QListWidget>(&d, "result");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text().split('\t').mid(5), QStringList({"----", "----"}));
    }
    void aMinimumAboveTheMaximumIsRefused()
    {
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "pmaxMax", "200");
        enterRefused(driver, &d, "pmaxMin", "200.01");
        enter(driver, &d, "vmppMax", "30");
        enterRefused(driver, &d, "vmppMin", "31");
        enter(driver, &d, "imppMax", "6");
        enterRefused(driver, &d, "imppMin", "7");
        // equal is no refusal
        enter(driver, &d, "pmaxMin", "200");
        QCOMPARE(child<QLineEdit>(&d, "pmaxMin")->text(), QString("200.00"));
        QCOMPARE(child<QLineEdit>(&d, "vmppMin")->text(), QString());
        QCOMPARE(driver.boxes.size(), 3);
        QCOMPARE(driver.boxes[0].informative, QString("Pmax minima è maggiore di Pmax massima"));
        QCOMPARE(driver.boxes[1].informative, QString("Vmpp Minima è maggiore di Vmpp Massima"));
        QCOMPARE(driver.boxes[2].informative, QString("Impp Minima è maggiore di Impp Massima."));
        QCOMPARE(driver.boxes[2].title, QString("Impp Minima"));
    }
    void aMaximumBelowTheMinimumIsRefused()
    {
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "200");
        enterRefused(driver, &d, "pmaxMax", "199");
        enter(driver, &d, "vmppMin", "30");
        enterRefused(driver, &d, "vmppMax", "29.99");
        enter(driver, &d, "imppMin", "6");
        enterRefused(driver, &d, "imppMax", "5");
        QCOMPARE(driver.boxes.size(), 3);
        QCOMPARE(driver.boxes[0].informative, QString("Pmax Massima è minore di Pmax Minima."));
        QCOMPARE(driver.boxes[1].informative, QString("Vmpp Massima è minore di Vmpp Minima."));
        QCOMPARE(driver.boxes[2].informative, QString("Impp Massima è minore di Impp Minima."));
        QCOMPARE(child<QLineEdit>(&d, "pmaxMax")->text(), QString());
    }
    void findResultsStandInColumnsUnderTheirHeaderInEveryLanguage()
    {
        TestRoot root(0.001);
        QVERIFY(root.installCatalogues());
        fiveModels();
        QVERIFY(addModel("Solar Power Italia", "spi", "Monocrystal 250", "mono",
                         sheet(250, 30.5f, 8.2f, 37.5f, 8.75f)));
        for (_language lang : {LANG_IT, LANG_EN, LANG_FR, LANG_DE, LANG_ES}) {
            QTranslator translator;
            QVERIFY(loadTranslator(&translator, lang));
            QCoreApplication::installTranslator(&translator);
            BrandList brands;
            FindPanel d(nullptr, brands.head);
            ModalDriver driver;
            enter(driver, &d, "pmaxMin", "1");
            search(d);
            QListWidget* list = child<QListWidget>(&d, "result");
            QCOMPARE(list->count(), 7);
            // the texts are built as ever: tab-separated, the header with its blanks
            QCOMPARE(list->item(0)->text(),
                     QCoreApplication::translate("FindPanel", "Marca") + "\t " +
                         QCoreApplication::translate("FindPanel", "Modello") +
                         "\t Pmax(V)\t Vmpp(V)\t Impp(A)\t Voc(V)\t Isc(A)");
            QVERIFY(list->item(0)->text().contains("\t "));
            TabColumns* columns = dynamic_cast<TabColumns*>(list->itemDelegate());
            QVERIFY(columns != nullptr);
            QFontMetrics metrics(list->font());
            QList<QRect> header = columns->cellRects(list->model()->index(0, 0),
                                                     list->visualRect(list->model()->index(0, 0)));
            QCOMPARE(header.size(), 7);
            for (int row = 0; row < list->count(); row++) {
                QModelIndex index = list->model()->index(row, 0);
                QList<QRect> cells = columns->cellRects(index, list->visualRect(index));
                QStringList texts = list->item(row)->text().split('\t');
                QCOMPARE(cells.size(), 7);
                for (int i = 0; i < 7; i++) {
                    // every cell under its header cell, fitting its column
                    QCOMPARE(cells[i].left(), header[i].left());
                    QVERIFY2(metrics.horizontalAdvance(texts[i].trimmed()) < cells[i].width(),
                             qPrintable(texts[i]));
                    if (i > 0)
                        QCOMPARE(cells[i].left(), cells[i - 1].right() + 1);
                }
            }
            QCoreApplication::removeTranslator(&translator);
        }
    }
    void theItalianCatalogueKeepsItsSlipInTheMaximumMessage()
    {
        TestRoot root(0.001);
        QVERIFY(root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, LANG_IT));
        QCoreApplication::installTranslator(&translator);
        FindPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "pmaxMin", "200");
        enterRefused(driver, &d, "pmaxMax", "100");
        QCOMPARE(driver.boxes.value(0).informative,
                 QString("Pmax Massima è minome di Pmax Minima."));
        QCoreApplication::removeTranslator(&translator);
    }
    void findPanelHasItsNameAndTitle()
    {
        TestRoot root(0.001);
        FindPanel d(nullptr, nullptr);
        QCOMPARE(d.objectName(), QString("FindPanel"));
        QCOMPARE(child<QLabel>(&d, "count")->text(), QString("Modello trovato : "));
        QCOMPARE(FindPanel::floatToString(0), QString());
        QCOMPARE(FindPanel::floatToString(7.5f), QString("7.50"));
    }
    void returnOnAFocusedFieldOpensItsKeyboardAndOnSearchSearches()
    {
        TestRoot root(0.001);
        fiveModels();
        BrandList brands;
        FindPanel d(nullptr, brands.head);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        ModalDriver driver;
        child<QLineEdit>(&d, "pmaxMin")->setFocus();
        driver.typeOnKeyboard("300");
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(child<QLineEdit>(&d, "pmaxMin")->text(), QString("300.00"));
        d.activateWindow(); // the test platform leaves it inactive behind the keyboard
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QStringList seen;
        for (int i = 0; i < 9; i++) {
            QTest::keyClick(&d, Qt::Key_Down);
            QWidget* f = QApplication::focusWidget();
            seen << (f != nullptr ? f->objectName() : QString("<none>"));
        }
        QCOMPARE(seen, QStringList({"pmaxMax", "vmpp", "vmppMin", "vmppMax", "impp", "imppMin",
                                    "imppMax", "result", "Cerca"}));
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(found(d), QStringList({"H300"}));
    }
};

QTEST_MAIN(TestFindPanel)
#include "tst_findpanel.moc"
