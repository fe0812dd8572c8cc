#include "shell/language.h"
#include "support/testroot.h"

#include <QFile>
#include <QMap>
#include <QResource>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

// The five catalogues of the instrument, checked as a whole: the translation
// sources kept compressed in the resource tree, the compiled catalogues the
// program loads from /etc/flang, and the texts of the code, gathered from the
// sources by lupdate at build time apart from both (KRM_CODE_TEXTS).
namespace
{

const char* const languages[] = {"it", "en", "fr", "de", "es"};
const char* const regions[] = {"it_IT", "en_US", "fr_FR", "de_DE", "es_ES"};
const _language languageValues[] = {LANG_IT, LANG_EN, LANG_FR, LANG_DE, LANG_ES};

struct Message {
    enum Kind { Finished, Unfinished, Obsolete };
    QString context;
    QString source;
    QString translation;
    Kind kind = Finished;
    QString file; // where the code shows it, as lupdate wrote it
};

using Key = QPair<QString, QString>; // context, source text

struct Catalogue {
    QString version;
    QString language;
    QString sourceLanguage;
    QList<Message> messages;
    QStringList contexts;

    int count(Message::Kind kind) const
    {
        int n = 0;
        for (const Message& m : messages)
            n += m.kind == kind ? 1 : 0;
        return n;
    }
    QMap<Key, Message> byKey() const
    {
        QMap<Key, Message> map;
        for (const Message& m : messages)
            map.insert(Key(m.context, m.source), m);
        return map;
    }
};

// Reads a catalogue in the toolkit's translation source format. Locations
// written relative name their file only when it changes: the file carries
// over from message to message.
Catalogue readCatalogue(const QString& path)
{
    Catalogue cat;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cat;
    QXmlStreamReader xml(&file);
    QString context;
    QString lastFile;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const QStringView name = xml.name();
        if (name == QLatin1String("TS")) {
            cat.version = xml.attributes().value("version").toString();
            cat.language = xml.attributes().value("language").toString();
            cat.sourceLanguage = xml.attributes().value("sourcelanguage").toString();
        } else if (name == QLatin1String("name")) {
            context = xml.readElementText();
            cat.contexts.append(context);
        } else if (name == QLatin1String("message")) {
            message = Message();
            message.context = context;
        } else if (name == QLatin1String("location")) {
            if (xml.attributes().hasAttribute("filename"))
                lastFile = xml.attributes().value("filename").toString();
            if (message.file.isEmpty())
                message.file = lastFile;
        } else if (name == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            const QString type = xml.attributes().value("type").toString();
            message.kind = type.isEmpty()         ? Message::Finished
                           : type == "unfinished" ? Message::Unfinished
                                                  : Message::Obsolete; // obsolete, vanished
            message.translation = xml.readElementText();
            cat.messages.append(message);
        }
    }
    if (xml.hasError())
        qWarning() << path << xml.errorString();
    return cat;
}

Catalogue sourceCatalogue(int i)
{
    return readCatalogue(QString(":/krm510_%1.ts").arg(languages[i]));
}

Catalogue codeTexts()
{
    return readCatalogue(QStringLiteral(KRM_CODE_TEXTS));
}

// The service screens of the measuring board are not translated.
bool isService(const Message& codeText)
{
    return codeText.file.contains("/debugbrask/");
}

bool isHiddenServiceButton(const Key& key)
{
    return key == Key("Orvia", "Brask");
}

// The rows the old instrument's catalogues still hold for screens and texts
// that are gone: three board test screens and the first language names.
QSet<Key> obsoleteRows()
{
    return {Key("TestDialog", "Test Scheda"),
            Key("TestDialog", "Esegui Test"),
            Key("TestDialog", "Test superato."),
            Key("TestChargeDialog", "Test Carica"),
            Key("TestChargeDialog", "Carica in corso..."),
            Key("TestChargeDialog", "Batteria carica."),
            Key("TestRampDialog", "Test Rampa"),
            Key("TestRampDialog", "Rampa eseguita."),
            Key("DialogSystem", "Italy"),
            Key("DialogSystem", "England")};
}

// Texts that stand the same in Italian and in another language: units,
// symbols, abbreviations, the keys of the on-screen keyboard, names of
// devices and standards, and the source texts that are English already.
const QSet<QString>& sameEverywhere()
{
    static const QSet<QString> texts = {
        ".?123",    "ABC",          "BACK",      "CAPS",      "DEL",
        "ENTER",    "ESC",          "LEFT",      "RIGHT",     "Alpha",
        "Alpha : ", "Beta",         "Beta : ",   "Gamma",     "Gamma : ",
        "Impp",     "Impp : ",      "Isc",       "Isc : ",    "Vmpp",
        "Vmpp : ",  "Voc",          "Voc : ",    "Pmax",      "Pmax : ",
        "NOCT",     "NOCT : ",      "NOCT [°C]", "Rs",        "ohm",
        "kW",       "Irr.",         "Irr. 1",    "Irr. 2",    "STC",
        "OPC",      "Ok",           "OK",        "Id",        "USB",
        "Usb",      "Power Device", "Panel IV",  "String IV", "Auto (EN 60904-5)"};
    return texts;
}

QSet<QString> sameIn(const QString& language)
{
    if (language == "en")
        return {"Exit",
                "Start",
                "Reset",
                "Model",
                "No",
                "E-mail",
                "Prov.",
                "Usb Device",
                "Rs-232 Serial Adapter",
                "Bluetooth Adapter",
                "Bluetooth Address (MAC)",
                "Bluetooth MAC"};
    if (language == "fr")
        return {"E-mail", "Temp. Mod.", "Temp. Auto", "Temp. Amb."};
    if (language == "de")
        return {"Start", "Prov.", "Tel.", "Temp. Auto"};
    return {"Ambiente", "Amorfo", "E-mail",     "Italiano",   "Marca",       "No",  "Prov.",
            "Sistema",  "Tel.",   "Temp. Amb.", "Temp. Auto", "Temperatura", "Tipo"};
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

    Catalogue catalogues[5];
    Catalogue code;

    // The contexts of the code that show a text, the service screens aside.
    QStringList contextsShowing(const QString& source) const
    {
        QStringList contexts;
        for (const Message& m : code.messages)
            if (m.source == source && !isService(m))
                contexts.append(m.context);
        return contexts;
    }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 5; i++) {
            catalogues[i] = sourceCatalogue(i);
            QVERIFY2(!catalogues[i].messages.isEmpty(), languages[i]);
        }
        code = codeTexts();
        QVERIFY(!code.messages.isEmpty());
    }

    void fiveCataloguesHoldTheSameContextsAndCounts()
    {
        QSet<QString> contexts0(catalogues[0].contexts.begin(), catalogues[0].contexts.end());
        for (int i = 0; i < 5; i++) {
            const Catalogue& c = catalogues[i];
            qInfo("krm510_%s: %lld contexts, %lld messages: %d finished, %d unfinished, %d "
                  "obsolete",
                  languages[i], static_cast<long long>(c.contexts.size()),
                  static_cast<long long>(c.messages.size()), c.count(Message::Finished),
                  c.count(Message::Unfinished), c.count(Message::Obsolete));
            QCOMPARE(c.version, QString("2.0"));
            QCOMPARE(c.language, QString(regions[i]));
            QCOMPARE(c.sourceLanguage, QString("it_IT"));
            QSet<QString> contexts(c.contexts.begin(), c.contexts.end());
            QCOMPARE(contexts.size(), c.contexts.size()); // each context once
            QCOMPARE(contexts, contexts0);
            QCOMPARE(c.count(Message::Finished), catalogues[0].count(Message::Finished));
            QCOMPARE(c.count(Message::Unfinished), catalogues[0].count(Message::Unfinished));
        }
        // the screens of the code and the three vanished test screens
        QCOMPARE(contexts0.size(), 63);
        for (const Message& m : code.messages)
            QVERIFY2(contexts0.contains(m.context), qPrintable(m.context));
    }

    void sourceCataloguesAreStoredCompressed()
    {
        for (const char* language : languages) {
            QResource resource(QString(":/krm510_%1.ts").arg(language));
            QVERIFY(resource.isValid());
            QVERIFY2(resource.compressionAlgorithm() != QResource::NoCompression, language);
            QVERIFY(resource.size() < resource.uncompressedSize());
        }
    }

    // No text reaches the screen untranslated by accident: every text of the
    // code stands in its context of every catalogue, and the compiled
    // catalogues translate each one outside the service screens.
    void everyTextOfTheCodeStandsInItsContext()
    {
        qInfo("code: %lld texts in %lld contexts", static_cast<long long>(code.messages.size()),
              static_cast<long long>(code.contexts.size()));
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        for (int i = 0; i < 5; i++) {
            const QMap<Key, Message> rows = catalogues[i].byKey();
            QTranslator compiled;
            QVERIFY(loadTranslator(&compiled, languageValues[i]));
            QSet<Key> inCode;
            int translated = 0;
            for (const Message& m : code.messages) {
                const Key key(m.context, m.source);
                inCode.insert(key);
                const QString where = QString("%1 %2: %3").arg(languages[i], m.context, m.source);
                QVERIFY2(rows.contains(key), qPrintable(where));
                QVERIFY2(rows[key].kind != Message::Obsolete, qPrintable(where));
                const QByteArray context = m.context.toUtf8();
                const QByteArray source = m.source.toUtf8();
                const QString shown = compiled.translate(context.constData(), source.constData());
                if (isService(m) || isHiddenServiceButton(key))
                    QVERIFY2(shown.isEmpty(), qPrintable(where));
                else
                    QVERIFY2(!shown.isEmpty(), qPrintable(where));
                translated += shown.isEmpty() ? 0 : 1;
            }
            // the compiled catalogue holds the finished rows, no more, no fewer
            qInfo("compiled krm510_%s translates %d of the code's texts", languages[i], translated);
            QCOMPARE(translated, catalogues[i].count(Message::Finished));
            // what the code no longer shows is kept only as obsolete
            for (const Message& m : catalogues[i].messages)
                if (!inCode.contains(Key(m.context, m.source)))
                    QVERIFY2(
                        m.kind == Message::Obsolete,
                        qPrintable(QString("%1 %2: %3").arg(languages[i], m.context, m.source)));
        }
    }

    void obsoleteRowsAreTheVanishedTestScreensAndTheOldLanguageNames()
    {
        for (int i = 0; i < 5; i++) {
            QSet<Key> obsolete;
            for (const Message& m : catalogues[i].messages) {
                if (m.kind != Message::Obsolete)
                    continue;
                obsolete.insert(Key(m.context, m.source));
                QVERIFY(!m.translation.isEmpty());
            }
            // a text that has just left the code stands here as vanished:
            // drop its row from the folder's five catalogues
            QStringList unexpected;
            for (const Key& key : obsolete - obsoleteRows())
                unexpected << key.first + ": " + key.second;
            QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(", ")));
            QCOMPARE(obsolete, obsoleteRows());
        }
    }

    void noFinishedTranslationIsEmpty()
    {
        for (int i = 0; i < 5; i++)
            for (const Message& m : catalogues[i].messages)
                if (m.kind == Message::Finished)
                    QVERIFY2(
                        !m.translation.isEmpty(),
                        qPrintable(QString("%1 %2: %3").arg(languages[i], m.context, m.source)));
    }

    void unfinishedAreTheServiceScreensAndTheHiddenServiceButton()
    {
        QSet<Key> expected;
        for (const Message& m : code.messages)
            if (isService(m))
                expected.insert(Key(m.context, m.source));
        expected.insert(Key("Orvia", "Brask"));
        for (int i = 0; i < 5; i++) {
            QSet<Key> unfinished;
            for (const Message& m : catalogues[i].messages)
                if (m.kind == Message::Unfinished)
                    unfinished.insert(Key(m.context, m.source));
            QCOMPARE(unfinished, expected);
        }
    }

    // A translation equal to its Italian text is one of the texts that the
    // language writes alike; any other is a text nobody translated.
    void translationsDifferFromTheItalianWhereTheLanguageDoes()
    {
        for (int i = 1; i < 5; i++) {
            const QSet<QString> alike = sameEverywhere() + sameIn(languages[i]);
            for (const Message& m : catalogues[i].messages)
                if (m.kind == Message::Finished && m.translation == m.source)
                    QVERIFY2(
                        alike.contains(m.source),
                        qPrintable(QString("%1 %2: %3").arg(languages[i], m.context, m.source)));
        }
    }

    void italianCatalogueMendsTheTwelveTabulatedRows_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("shown");
        auto row = [](const char* context, const char* source, const char* shown) {
            QTest::addRow("%s %s", context, source)
                << QString(context) << QString::fromUtf8(source) << QString::fromUtf8(shown);
        };
        row("DialogAmbiente", "Temp. Cell.", "Temp.Cell.");
        row("DialogCopyTo", "Copia In...", "Copia in...");
        row("DialogSystem", "Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)",
            "Bluetooth MAC (formato AA:BB:CC:DD:EE:FF)");
        row("EditInstallation", "Aggiornameno Installazione", "Aggiornamento installazione");
        row("EditInstallation", "Misura inserita", "Misura Inserita");
        row("FindPanel", "Pmax Massima è minore di Pmax Minima.",
            "Pmax Massima è minome di Pmax Minima.");
        row("InsertInstallation", "Nome dell'installazione già presente.",
            "Nome dell'installazione gia' presente.");
        row("InsertInstallation", "Misura inserita", "Misura Inserita");
        row("ListInstallation", "Lista Installazioni", "Lista installazioni");
        row("ListPanel", "Model", "Modello");
        row("SelectCompany", "Cod. Fis.", "Cod. Fisc.");
        row("UsbDialog", "Copia In...", "Copia in...");
    }
    void italianCatalogueMendsTheTwelveTabulatedRows()
    {
        QFETCH(QString, context);
        QFETCH(QString, source);
        QFETCH(QString, shown);
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator italian;
        QVERIFY(loadTranslator(&italian, LANG_IT));
        QCOMPARE(italian.translate(qPrintable(context), source.toUtf8().constData()), shown);
    }
    // Only those twelve: every other Italian row gives its source text back.
    void italianCatalogueDiffersFromTheCodeInTwelveRowsOnly()
    {
        int differing = 0;
        for (const Message& m : catalogues[0].messages)
            if (m.kind == Message::Finished && m.translation != m.source)
                differing++;
        QCOMPARE(differing, 12);
    }

    void tabulatedRowsStandInEveryContextThatShowsThem_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("shown"); // en, fr, de, es
        auto row = [](const char* source, const QStringList& shown) {
            QTest::newRow(QByteArray(source).replace('\n', ' ').constData())
                << QString::fromUtf8(source) << shown;
        };
        row("Sistema", {"System", "Système", "System", "Sistema"});
        row("Modulo", {"Module", "Module", "Modul", "Módulo"});
        row("Stringa", {"String", "Chaine", "String", "String"});
        row("Archivio\nModuli",
            {"Pv module\narchive", "Archive\nmodèles", "Archiv\nFormulare", "Fichero de\nMódulos"});
        row("Archivio\nMisure", {"Measurement\narchive", "Archive\nmesures", "Archiv\nMessungen",
                                 "Fichero de\nMedidas"});
        row("Start", {"Start", "Début", "Start", "Inicio"});
        row("Confronto", {"Comparison", "Comparaison", "Vergleichen", "Comparación"});
        row("Misure", {"Measured", "Mesures", "Messungen", "Medidas"});
        row("Salva", {"Save", "Sauvegarder", "Speichern", "Guardar"});
        row("Tensione Eccessiva.", {"Excessive voltage value.", "Valeur tension exessive.",
                                    "Spannung zu hoch.", "Valor de tensión excesivo."});
        row("Corrente Eccessiva.", {"Excessive current value.", "Valeur de courant excessive.",
                                    "Strom zu hoch.", "Valor excesivo de corriente."});
        row("Potenza Eccessiva.", {"Excessive power value.", "Valeur de puissance excessive.",
                                   "Leistung zu hoch.", "Valor excesivo de potencia."});
        row("Energia Eccessiva.", {"Excessive energy value.", "Valeur d'énergie excessive.",
                                   "Energie zu hoch.", "Valor excesivo de energía."});
        row("Polarità Inversa.", {"Reverse polarity.", "Polarité inversée.",
                                  "Polarität vertauscht.", "Polaridad invertida."});
        row("Negativo Flottante.",
            {"Floating negative.", "Negatif flottant.", "Potentialfrei.", "Negativo flotante."});
        row("Tensione troppo bassa.", {"Voltage too low.", "Tension trop fiable.",
                                       "Spannung zu niedrig.", "Tension demasiado baja."});
        row("Corrente troppo bassa.", {"Current too low.", "Courant trop fiable.",
                                       "Strom zu niedrig.", "Corriente demasiado baja."});
        row("Problema di connessione al Power Device.",
            {"Problem of wiring to the power device.",
             "Problème de connection à l'appareil de puissance.",
             "Anschlussproblem an Power Device.",
             "Problema de conexión con el módulo de Potencia."});
        row("Eseguito ripristino modulo potenza.",
            {"Power module restore done.", "Restauration du module de puissance.",
             "Wiederherstellung des Power Device.", "Reanudada conexión al módulo de potencia."});
        row("Temperatura non rilevata.",
            {"Temperature not detected.", "Température non détectée.",
             "Temperatur nicht ermittelt.", "Valor de temperatura no detectado."});
        row("Irradiazione non rilevata.",
            {"Solar radiation value not detected.", "Valeur de radiation solaire non détecté.",
             "Sonneneinstrahlung nicht ermittelt.", "Valor de irradiancia no detectado."});
        row("Temperatura fuori limite.", {"Outside temperature limit.", "Température hors limite.",
                                          "Temperatur von Grenzen.", "Temperatura fuera límite."});
        row("Valori STC non disponibili.\nRipetere.",
            {"STC values are not available.\nRepeat.",
             "Valeurs STC pas disponibles.\nRepeter le test.",
             "STC werte nicht verfügbar.\nBitte wiederholen.",
             "Valores en STC no disponibles.\nRepita et test."});
        row("Delta Irraggiamento Elevato",
            {"Highly variable solar radiation", "Fort variation du valeur d'ensoleillement",
             "Einstrahlung sehr variabel", "Valor de la irradiancia inestable"});
        row("Misura Salvata.",
            {"Saved measure.", "Mesure sauvegardée.", "Messung gespeichert.", "Medida guardada."});
        row("Nome della misura già presente.",
            {"The measure name already exists.", "Ce nom de mesure déjà present.",
             "Dieser Messungsname ist bereits vorhanden.", "Este nombre de medida ya existe."});
        row("Batteria Insufficiente.",
            {"Low Battery.", "Batterie faible.", "Akku schwach.", "Batería insuficiente."});
        row("Ricaricare la batteria.", {"Recharge the battery.", "Rechargez la batterie.",
                                        "Laden Sie den Akku bitte.", "Recargar batería."});
    }
    // Every screen that shows a tabulated text shows the tabulated row, slips
    // included; the service screens keep their source text.
    void tabulatedRowsStandInEveryContextThatShowsThem()
    {
        QFETCH(QString, source);
        QFETCH(QStringList, shown);
        const QStringList contexts = contextsShowing(source);
        QVERIFY(!contexts.isEmpty());
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        const QByteArray text = source.toUtf8();
        for (int i = 0; i < 5; i++) {
            QTranslator compiled;
            QVERIFY(loadTranslator(&compiled, languageValues[i]));
            // the Italian catalogue gives the source text back
            const QString expected = i == 0 ? source : shown[i - 1];
            for (const QString& context : contexts)
                QCOMPARE(compiled.translate(qPrintable(context), text.constData()), expected);
        }
    }

    // What tr does on the instrument: the installed catalogue's row, else the
    // source text, whether the row is missing, unfinished, or the catalogue
    // did not load at all.
    void sourceTextShowsWhereTheCatalogueHasNoFinishedRow()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator english;
        QVERIFY(loadTranslator(&english, LANG_EN));
        QVERIFY(QCoreApplication::installTranslator(&english));
        QCOMPARE(QCoreApplication::translate("Orvia", "Sistema"), QString("System"));
        // a message the catalogue lacks
        QCOMPARE(QCoreApplication::translate("Orvia", "Archivio"), QString("Archivio"));
        QCOMPARE(QCoreApplication::translate("UsbDialog", "Sistema"), QString("Sistema"));
        // an unfinished one: the hidden service button, a service screen
        QCOMPARE(QCoreApplication::translate("Orvia", "Brask"), QString("Brask"));
        QCOMPARE(QCoreApplication::translate("DialogInfoSave", "Salva"), QString("Salva"));
        // an obsolete one
        QCOMPARE(QCoreApplication::translate("TestDialog", "Test Scheda"), QString("Test Scheda"));
        QVERIFY(QCoreApplication::removeTranslator(&english));
        // a catalogue that does not load
        QVERIFY(QFile::remove(root.path("/etc/flang/krm510_fr")));
        QTranslator french;
        QVERIFY(!loadTranslator(&french, LANG_FR));
        QVERIFY(QCoreApplication::installTranslator(&french) || french.isEmpty());
        QCOMPARE(QCoreApplication::translate("Orvia", "Sistema"), QString("Sistema"));
        QCoreApplication::removeTranslator(&french);
    }
};

QTEST_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
