<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+109"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>KRM 510 Prüfbericht</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
        <source>Impossibile scrivere %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>KRM 510 - Rapporto di prova</source>
        <translation>KRM 510 - Prüfbericht</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Rapporto di prova delle curve I-V</source>
        <translation>Prüfbericht der I-U-Kennlinien</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>non registrato</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Numero di serie</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versione software</source>
        <translation>Softwareversion</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rapporto</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Data del rapporto</source>
        <translation>Datum des Berichts</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ispettore</source>
        <translation>Prüfer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure nel rapporto</source>
        <translation>Messungen im Bericht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure lasciate fuori</source>
        <translation>Ausgelassene Messungen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ditta</source>
        <translation>Firma</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cognome / Ragione sociale</source>
        <translation>Name / Firmenname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Partita IVA</source>
        <translation>USt-IdNr.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice fiscale</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Indirizzo</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Telefono</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+225"/>
        <source>Impianto %1</source>
        <translation>Anlage %1</translation>
    </message>
    <message>
        <location line="-222"/>
        <source>Numero di stringhe</source>
        <translation>Anzahl der Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lasciate fuori</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>... e altre %1</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Misura di stringa</source>
        <translation>String-Messung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura di modulo</source>
        <translation>Modul-Messung</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Misura</source>
        <translation>Messung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Data</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ora</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Commento</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Moduli in serie</source>
        <translation>Module in Reihe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irraggiamento</source>
        <translation>Einstrahlung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura rilevata da</source>
        <translation>Temperatur erfasst durch</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+171"/>
        <source>Modulo di riferimento</source>
        <translation>Referenzmodul</translation>
    </message>
    <message>
        <location line="-166"/>
        <source>Marca</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax nominale</source>
        <translation>Nenn-Pmax</translation>
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
        <translation>Toleranz</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coeff. Isc</source>
        <translation>Koeff. Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Voc</source>
        <translation>Koeff. Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Pmax</source>
        <translation>Koeff. Pmax</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+33"/>
        <location line="+234"/>
        <source>nessun riferimento</source>
        <translation>keine Referenz</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>Valori misurati</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+25"/>
        <location line="+1"/>
        <source>Condizioni operative</source>
        <translation>Betriebsbedingungen</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Condizioni standard (STC)</source>
        <translation>Standardbedingungen (STC)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Fattore di riempimento</source>
        <translation>Füllfaktor</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Scarto di Pmax dal nominale</source>
        <translation>Abweichung Pmax vom Nennwert</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+4"/>
        <source>Esito</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Fattore di prestazione</source>
        <translation>Leistungsfaktor</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Rs (V/I al punto di massima potenza della prima rampa)</source>
        <translation>Rs (U/I im Punkt maximaler Leistung der ersten Rampe)</translation>
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
        <translation>I-U-Kennlinie</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Spannung (V)</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Corrente (A)</source>
        <translation>Strom (A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Curva P-V</source>
        <translation>P-U-Kennlinie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza (W)</source>
        <translation>Leistung (W)</translation>
    </message>
    <message>
        <location line="+84"/>
        <source>Confronto delle stringhe</source>
        <translation>Vergleich der Strings</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Valori a condizioni standard per modulo (Voc e Pmax divise per i moduli in serie; la corrente di una stringa in serie è quella di ogni suo modulo).</source>
        <translation>Werte bei Standardbedingungen je Modul (Voc und Pmax geteilt durch die Module in Reihe; der Strom eines Reihenstrings ist der jedes seiner Module).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Scarto dalla mediana delle stringhe; oltre %1 è segnato con ◄.</source>
        <translation>Abweichung vom Median der Strings; über %1 mit ◄ markiert.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc/modulo</source>
        <translation>Voc/Modul</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+1"/>
        <source>scarto</source>
        <translation>Abweichung</translation>
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
        <translation>Pmax/Modul</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mediana</source>
        <translation>Median</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Voc per modulo</source>
        <translation>Voc je Modul</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax per modulo</source>
        <translation>Pmax je Modul</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>scarto dalla mediana %1</source>
        <translation>Abweichung vom Median %1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stringhe non confrontate</source>
        <translation>Nicht verglichene Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impianto %1: stringhe senza modulo di riferimento o sole con il loro modello.</source>
        <translation>Anlage %1: Strings ohne Referenzmodul oder allein mit ihrem Modell.</translation>
    </message>
</context>
<context>
    <name>ReportMain</name>
    <message>
        <location filename="main.cpp" line="+47"/>
        <source>data non valida per --%1: %2 (aaaa-MM-gg)</source>
        <translation>ungültiges Datum für --%1: %2 (JJJJ-MM-TT)</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Rapporto di prova delle misure del KRM 510, in PDF e in CSV.</source>
        <translation>Prüfbericht der Messungen des KRM 510, als PDF und CSV.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>La cartella krm510data (copia della chiavetta) o la cartella che la contiene.</source>
        <translation>Der Ordner krm510data (Kopie des USB-Sticks) oder der Ordner, der ihn enthält.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Con --measures: i file delle misure.</source>
        <translation>Mit --measures: die Messdateien.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di un impianto.</source>
        <translation>Der Bericht einer Anlage.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di tutti gli impianti di una ditta.</source>
        <translation>Der Bericht aller Anlagen einer Firma.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il rapporto delle misure nominate.</source>
        <translation>Der Bericht der genannten Messungen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Solo le misure da questa data (aaaa-MM-gg).</source>
        <translation>Nur Messungen ab diesem Datum (JJJJ-MM-TT).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Solo le misure fino a questa data (aaaa-MM-gg).</source>
        <translation>Nur Messungen bis zu diesem Datum (JJJJ-MM-TT).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lingua del rapporto: it, en, fr, de, es.</source>
        <translation>Sprache des Berichts: it, en, fr, de, es.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il nome dell&apos;ispettore.</source>
        <translation>Der Name des Prüfers.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il file PDF da scrivere.</source>
        <translation>Die zu schreibende PDF-Datei.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La cartella dei file CSV da scrivere.</source>
        <translation>Der Ordner der zu schreibenden CSV-Dateien.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>uso: krm510-report DATA (--installation NOME | --company NOME | --measures FILE...) (-o rapporto.pdf | --csv CARTELLA)</source>
        <translation>Aufruf: krm510-report DATEN (--installation NAME | --company NAME | --measures DATEI...) (-o bericht.pdf | --csv ORDNER)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>cartella dei dati non trovata: %1</source>
        <translation>Datenordner nicht gefunden: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>cartella dei dati non leggibile: %1</source>
        <translation>Datenordner nicht lesbar: %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lettura misure</source>
        <translation>Messungen lesen</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>lasciato fuori %1: %2</source>
        <translation>ausgelassen %1: %2</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Impossibile scrivere %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 misure nel rapporto, %2 lasciate fuori</source>
        <translation>%1 Messungen im Bericht, %2 ausgelassen</translation>
    </message>
</context>
<context>
    <name>ReportMeasure</name>
    <message>
        <location filename="reportmeasure.cpp" line="+46"/>
        <source>file illeggibile</source>
        <translation>Datei nicht lesbar</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>misura danneggiata</source>
        <translation>beschädigte Messung</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>sonda ambiente</source>
        <translation>Umgebungsfühler</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sonda sul modulo</source>
        <translation>Fühler am Modul</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>automatica da Voc</source>
        <translation>automatisch aus Voc</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>manuale</source>
        <translation>manuell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sconosciuta (%1)</source>
        <translation>unbekannt (%1)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Superato</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non superato</source>
        <translation>Nicht bestanden</translation>
    </message>
</context>
<context>
    <name>ReportSelection</name>
    <message>
        <location filename="reportselection.cpp" line="+50"/>
        <source>Impianto non trovato: %1</source>
        <translation>Anlage nicht gefunden: %1</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Impianto illeggibile: %1</source>
        <translation>Anlage nicht lesbar: %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Ditta non trovata: %1</source>
        <translation>Firma nicht gefunden: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>impianto illeggibile</source>
        <translation>Anlage nicht lesbar</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>file non trovato</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nessuna misura trovata</source>
        <translation>Keine Messung gefunden</translation>
    </message>
</context>
</TS>
