// krm510-report: the installer's test report of the measures on a stick's copy
// of the instrument's data, or of the desktop instrument's machine folder, as
// a PDF and as CSV files. It reads through the instrument's own data layer.

#include "csvreport.h"
#include "pdfreport.h"
#include "reportselection.h"

#include "platform/systemroot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>
#include <cstdio>
#include <unistd.h>

namespace
{

void say(const QString& message)
{
    std::fprintf(stderr, "krm510-report: %s\n", message.toLocal8Bit().constData());
}

// The language asked for, looked up before the parser exists, so that the
// parser's own texts are translated too.
QString languageOf(const QStringList& arguments)
{
    for (int k = 0; k < arguments.size(); k++) {
        if (arguments[k] == QLatin1String("--lang") && k + 1 < arguments.size())
            return arguments[k + 1];
        if (arguments[k].startsWith(QLatin1String("--lang=")))
            return arguments[k].mid(7);
    }
    return QStringLiteral("it");
}

QDate dateOption(const QCommandLineParser& parser, const QString& name, bool* ok)
{
    if (!parser.isSet(name))
        return QDate();
    const QDate d = QDate::fromString(parser.value(name), QStringLiteral("yyyy-MM-dd"));
    if (!d.isValid()) {
        say(QCoreApplication::translate("ReportMain", "data non valida per --%1: %2 (aaaa-MM-gg)")
                .arg(name, parser.value(name)));
        *ok = false;
    }
    return d;
}

} // namespace

int main(int argc, char* argv[])
{
    // an office PC without a display, or a terminal on a server: no window is
    // ever shown, the pages are drawn off screen
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("krm510-report"));

    const QString lang = languageOf(app.arguments());
    const QStringList languages{"it", "en", "fr", "de", "es"};
    if (!languages.contains(lang)) {
        say(QStringLiteral("--lang: it, en, fr, de, es"));
        return 1;
    }
    QTranslator translator;
    if (translator.load(QStringLiteral(":/report/krm510report_") + lang))
        QCoreApplication::installTranslator(&translator);

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "ReportMain", "Rapporto di prova delle misure del KRM 510, in PDF e in CSV."));
    parser.addHelpOption();
    parser.addPositionalArgument(
        QStringLiteral("DATA"),
        QCoreApplication::translate(
            "ReportMain",
            "La cartella krm510data (copia della chiavetta) o la cartella che la contiene."));
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QCoreApplication::translate("ReportMain", "Con --measures: i file delle misure."),
        QStringLiteral("[FILE...]"));
    parser.addOptions({
        {"installation", QCoreApplication::translate("ReportMain", "Il rapporto di un impianto."),
         "NAME"},
        {"company",
         QCoreApplication::translate("ReportMain",
                                     "Il rapporto di tutti gli impianti di una ditta."),
         "NAME"},
        {"measures",
         QCoreApplication::translate("ReportMain", "Il rapporto delle misure nominate.")},
        {"from",
         QCoreApplication::translate("ReportMain", "Solo le misure da questa data (aaaa-MM-gg)."),
         "DATE"},
        {"to",
         QCoreApplication::translate("ReportMain",
                                     "Solo le misure fino a questa data (aaaa-MM-gg)."),
         "DATE"},
        {"lang",
         QCoreApplication::translate("ReportMain", "Lingua del rapporto: it, en, fr, de, es."),
         "LANG", "it"},
        {"inspector", QCoreApplication::translate("ReportMain", "Il nome dell'ispettore."), "NAME"},
        {{"o", "output"},
         QCoreApplication::translate("ReportMain", "Il file PDF da scrivere."),
         "FILE"},
        {"csv", QCoreApplication::translate("ReportMain", "La cartella dei file CSV da scrivere."),
         "DIR"},
    });
    parser.process(app);

    const QStringList positional = parser.positionalArguments();
    const int modes = int(parser.isSet("installation")) + int(parser.isSet("company")) +
                      int(parser.isSet("measures"));
    if (positional.isEmpty() || modes != 1 || (!parser.isSet("output") && !parser.isSet("csv"))) {
        say(QCoreApplication::translate(
            "ReportMain",
            "uso: krm510-report DATA (--installation NOME | --company NOME | --measures "
            "FILE...) (-o rapporto.pdf | --csv CARTELLA)"));
        return 1;
    }
    bool datesOk = true;
    ReportSelection selection;
    selection.from = dateOption(parser, "from", &datesOk);
    selection.to = dateOption(parser, "to", &datesOk);
    if (!datesOk)
        return 1;

    // The instrument's readers find their files under /krm510data of the
    // system root: the root is the parent of the data folder, or a folder of
    // our own that points to it when the copy bears another name.
    QFileInfo data(positional.first());
    if (QFileInfo(data.absoluteFilePath() + QStringLiteral("/krm510data")).isDir())
        data = QFileInfo(data.absoluteFilePath() + QStringLiteral("/krm510data"));
    if (!data.isDir()) {
        say(QCoreApplication::translate("ReportMain", "cartella dei dati non trovata: %1")
                .arg(positional.first()));
        return 1;
    }
    QTemporaryDir linkRoot;
    QString root = data.absolutePath();
    if (data.fileName() != QLatin1String("krm510data")) {
        if (!linkRoot.isValid() ||
            !QFile::link(data.absoluteFilePath(), linkRoot.filePath("krm510data"))) {
            say(QCoreApplication::translate("ReportMain", "cartella dei dati non leggibile: %1")
                    .arg(positional.first()));
            return 1;
        }
        root = linkRoot.path();
    }
    SystemRoot::set(root.toStdString());

    const bool terminal = isatty(STDERR_FILENO) != 0;
    if (terminal)
        selection.progress = [](int done, int total) {
            std::fprintf(stderr, "\r%s %d / %d",
                         QCoreApplication::translate("ReportMain", "Lettura misure")
                             .toLocal8Bit()
                             .constData(),
                         done, total);
            if (done == total)
                std::fputc('\n', stderr);
        };

    QString error;
    bool found = false;
    if (parser.isSet("installation"))
        found = selection.selectInstallation(parser.value("installation"), &error);
    else if (parser.isSet("company"))
        found = selection.selectCompany(parser.value("company"), &error);
    else
        found = selection.selectMeasures(positional.mid(1), &error);
    for (const auto& [file, reason] : selection.leftOut)
        say(QCoreApplication::translate("ReportMain", "lasciato fuori %1: %2").arg(file, reason));
    if (!found) {
        say(error);
        return 2;
    }

    int result = 0;
    if (parser.isSet("output")) {
        PdfReport pdf(selection, QLocale(lang));
        pdf.inspector = parser.value("inspector");
        if (!pdf.write(parser.value("output"), &error)) {
            say(error);
            result = 3;
        }
    }
    if (parser.isSet("csv") && !CsvReport::write(selection, parser.value("csv"), &error)) {
        say(QCoreApplication::translate("ReportMain", "Impossibile scrivere %1").arg(error));
        result = 3;
    }
    if (result == 0)
        say(QCoreApplication::translate("ReportMain", "%1 misure nel rapporto, %2 lasciate fuori")
                .arg(selection.measureCount())
                .arg(selection.leftOut.size()));
    return result;
}
