<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="en_US" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+109"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>KRM 510 test report</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
        <source>Impossibile scrivere %1</source>
        <translation>Cannot write %1</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>KRM 510 - Rapporto di prova</source>
        <translation>KRM 510 - Test report</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Rapporto di prova delle curve I-V</source>
        <translation>I-V curve test report</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>non registrato</source>
        <translation>not recorded</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Numero di serie</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versione software</source>
        <translation>Software version</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rapporto</source>
        <translation>Report</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Data del rapporto</source>
        <translation>Report date</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ispettore</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure nel rapporto</source>
        <translation>Measures in the report</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure lasciate fuori</source>
        <translation>Measures left out</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ditta</source>
        <translation>Company</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cognome / Ragione sociale</source>
        <translation>Surname / Company name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Partita IVA</source>
        <translation>VAT number</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice fiscale</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Indirizzo</source>
        <translation>Address</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Telefono</source>
        <translation>Phone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+225"/>
        <source>Impianto %1</source>
        <translation>Installation %1</translation>
    </message>
    <message>
        <location line="-222"/>
        <source>Numero di stringhe</source>
        <translation>Number of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Measures</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lasciate fuori</source>
        <translation>Left out</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>... e altre %1</source>
        <translation>... and %1 more</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Misura di stringa</source>
        <translation>String measure</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura di modulo</source>
        <translation>Module measure</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Misura</source>
        <translation>Measure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ora</source>
        <translation>Time</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Commento</source>
        <translation>Comment</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Moduli in serie</source>
        <translation>Modules in series</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irraggiamento</source>
        <translation>Irradiance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura rilevata da</source>
        <translation>Temperature taken by</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+171"/>
        <source>Modulo di riferimento</source>
        <translation>Reference module</translation>
    </message>
    <message>
        <location line="-166"/>
        <source>Marca</source>
        <translation>Make</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax nominale</source>
        <translation>Nominal Pmax</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Voc / Isc</source>
        <translation>Voc / Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp / Impp</source>
        <translation>Vmpp / Impp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tolleranza</source>
        <translation>Tolerance</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coeff. Isc</source>
        <translation>Isc coefficient</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Voc</source>
        <translation>Voc coefficient</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Pmax</source>
        <translation>Pmax coefficient</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+33"/>
        <location line="+234"/>
        <source>nessun riferimento</source>
        <translation>no reference</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>Valori misurati</source>
        <translation>Measured values</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+25"/>
        <location line="+1"/>
        <source>Condizioni operative</source>
        <translation>Operating conditions</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Condizioni standard (STC)</source>
        <translation>Standard conditions (STC)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Fattore di riempimento</source>
        <translation>Fill factor</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Scarto di Pmax dal nominale</source>
        <translation>Pmax deviation from nominal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+4"/>
        <source>Esito</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Fattore di prestazione</source>
        <translation>Performance factor</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Rs (V/I al punto di massima potenza della prima rampa)</source>
        <translation>Rs (V/I at the maximum power point of the first ramp)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+1"/>
        <source>STC</source>
        <translation>STC</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Curva I-V</source>
        <translation>I-V curve</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Voltage (V)</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Corrente (A)</source>
        <translation>Current (A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Curva P-V</source>
        <translation>P-V curve</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza (W)</source>
        <translation>Power (W)</translation>
    </message>
    <message>
        <location line="+84"/>
        <source>Confronto delle stringhe</source>
        <translation>Comparison of the strings</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Valori a condizioni standard per modulo (Voc e Pmax divise per i moduli in serie; la corrente di una stringa in serie è quella di ogni suo modulo).</source>
        <translation>Values at standard conditions per module (Voc and Pmax divided by the modules in series; the current of a series string is that of each of its modules).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Scarto dalla mediana delle stringhe; oltre %1 è segnato con ◄.</source>
        <translation>Deviation from the median of the strings; beyond %1 it is marked with ◄.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc/modulo</source>
        <translation>Voc/module</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+1"/>
        <source>scarto</source>
        <translation>deviation</translation>
    </message>
    <message>
        <location line="-1"/>
        <location line="+24"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Pmax/modulo</source>
        <translation>Pmax/module</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mediana</source>
        <translation>Median</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Voc per modulo</source>
        <translation>Voc per module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax per modulo</source>
        <translation>Pmax per module</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>scarto dalla mediana %1</source>
        <translation>deviation from the median %1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stringhe non confrontate</source>
        <translation>Strings not compared</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impianto %1: stringhe senza modulo di riferimento o sole con il loro modello.</source>
        <translation>Installation %1: strings without a reference module or alone with their model.</translation>
    </message>
</context>
<context>
    <name>ReportMain</name>
    <message>
        <location filename="main.cpp" line="+47"/>
        <source>data non valida per --%1: %2 (aaaa-MM-gg)</source>
        <translation>invalid date for --%1: %2 (yyyy-MM-dd)</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Rapporto di prova delle misure del KRM 510, in PDF e in CSV.</source>
        <translation>Test report of the KRM 510 measures, as PDF and CSV.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>La cartella krm510data (copia della chiavetta) o la cartella che la contiene.</source>
        <translation>The krm510data folder (copy of the stick) or the folder that holds it.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Con --measures: i file delle misure.</source>
        <translation>With --measures: the measure files.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di un impianto.</source>
        <translation>The report of one installation.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di tutti gli impianti di una ditta.</source>
        <translation>The report of all installations of a company.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il rapporto delle misure nominate.</source>
        <translation>The report of the measures named.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Solo le misure da questa data (aaaa-MM-gg).</source>
        <translation>Only the measures from this date (yyyy-MM-dd).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Solo le misure fino a questa data (aaaa-MM-gg).</source>
        <translation>Only the measures up to this date (yyyy-MM-dd).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lingua del rapporto: it, en, fr, de, es.</source>
        <translation>Language of the report: it, en, fr, de, es.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il nome dell&apos;ispettore.</source>
        <translation>The name of the inspector.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il file PDF da scrivere.</source>
        <translation>The PDF file to write.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La cartella dei file CSV da scrivere.</source>
        <translation>The folder of the CSV files to write.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>uso: krm510-report DATA (--installation NOME | --company NOME | --measures FILE...) (-o rapporto.pdf | --csv CARTELLA)</source>
        <translation>usage: krm510-report DATA (--installation NAME | --company NAME | --measures FILE...) (-o report.pdf | --csv DIR)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>cartella dei dati non trovata: %1</source>
        <translation>data folder not found: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>cartella dei dati non leggibile: %1</source>
        <translation>data folder not readable: %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lettura misure</source>
        <translation>Reading measures</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>lasciato fuori %1: %2</source>
        <translation>left out %1: %2</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Impossibile scrivere %1</source>
        <translation>Cannot write %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 misure nel rapporto, %2 lasciate fuori</source>
        <translation>%1 measures in the report, %2 left out</translation>
    </message>
</context>
<context>
    <name>ReportMeasure</name>
    <message>
        <location filename="reportmeasure.cpp" line="+46"/>
        <source>file illeggibile</source>
        <translation>unreadable file</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>misura danneggiata</source>
        <translation>damaged measure</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>sonda ambiente</source>
        <translation>ambient probe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sonda sul modulo</source>
        <translation>probe on the module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>automatica da Voc</source>
        <translation>automatic from Voc</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>manuale</source>
        <translation>manual</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sconosciuta (%1)</source>
        <translation>unknown (%1)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Superato</source>
        <translation>Passed</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non superato</source>
        <translation>Failed</translation>
    </message>
</context>
<context>
    <name>ReportSelection</name>
    <message>
        <location filename="reportselection.cpp" line="+50"/>
        <source>Impianto non trovato: %1</source>
        <translation>Installation not found: %1</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Impianto illeggibile: %1</source>
        <translation>Unreadable installation: %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Ditta non trovata: %1</source>
        <translation>Company not found: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>impianto illeggibile</source>
        <translation>unreadable installation</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>file non trovato</source>
        <translation>file not found</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nessuna misura trovata</source>
        <translation>No measure found</translation>
    </message>
</context>
</TS>
