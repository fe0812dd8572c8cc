<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+95"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>KRM 510 Prüfbericht</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+34"/>
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
        <location filename="pdfanalysis.cpp" line="+54"/>
        <location line="+102"/>
        <location filename="pdfreport.cpp" line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="-6"/>
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
        <location filename="pdfanalysis.cpp" line="-127"/>
        <source>Seconda lettura della curva</source>
        <translation>Zweite Lesart der Kennlinie</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione secondo IEC 60891 (edizione 2, 2009), procedure 1 e 2</source>
        <translation>Umrechnung nach IEC 60891 (Ausgabe 2, 2009), Verfahren 1 und 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Senza modulo di riferimento la curva non è traslata secondo IEC 60891 e non è confrontata con la scheda del modulo; si cercano solo i gradini.</source>
        <translation>Ohne Referenzmodul wird die Kennlinie weder nach IEC 60891 umgerechnet noch mit dem Datenblatt verglichen; nur Stufen werden gesucht.</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+103"/>
        <source>Procedura 1</source>
        <translation>Verfahren 1</translation>
    </message>
    <message>
        <location line="-103"/>
        <location line="+104"/>
        <source>Procedura 2</source>
        <translation>Verfahren 2</translation>
    </message>
    <message>
        <location line="-89"/>
        <source>, per modulo per %1 moduli</source>
        <translation>, je Modul mal %1 Module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>alfa: dalla scheda, Coeff. Isc per Isc</source>
        <translation>Alpha: aus dem Datenblatt, Isc-Koeffizient mal Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>beta: dalla scheda, Coeff. Voc per Voc</source>
        <translation>Beta: aus dem Datenblatt, Voc-Koeffizient mal Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: adattata ai punti misurati (equazione a un diodo)</source>
        <translation>Rs: an die Messpunkte angepasst (Eindiodengleichung)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: dalla scheda (adattamento non riuscito)</source>
        <translation>Rs: aus dem Datenblatt (Anpassung fehlgeschlagen)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>kappa: predefinito, %1 Ω/°C per modulo</source>
        <translation>Kappa: Vorgabe, %1 Ω/°C je Modul</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a (procedura 2)</source>
        <translation>a (Verfahren 2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La Rs dello strumento (V/I al punto di massima potenza) non è una resistenza serie e non è usata.</source>
        <translation>Der Rs-Wert des Geräts (V/I im Punkt maximaler Leistung) ist kein Serienwiderstand und wird nicht verwendet.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+107"/>
        <source>Forma della curva</source>
        <translation>Form der Kennlinie</translation>
    </message>
    <message>
        <location line="-101"/>
        <source>Gradino a %1 di Isc a %2: diodi di bypass in conduzione (ombreggiamento parziale, moduli disaccoppiati, una cella danneggiata).</source>
        <translation>Stufe bei %1 von Isc bei %2: Bypassdioden leiten (Teilverschattung, Fehlanpassung, eine beschädigte Zelle).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Voc inferiore di %1 a quella attesa dalla scheda (%2): circa %3 sottostringhe, un diodo di bypass in corto.</source>
        <translation>Voc %1 unter dem Datenblattwert (%2): etwa %3 Teilstränge, eine kurzgeschlossene Bypassdiode.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa con forma normale: Isc al %1 di quella attesa (%2). Sporcizia, degrado, irraggiamento errato o una sottostringa ombreggiata dietro un diodo di bypass aperto: la curva da sola non li distingue.</source>
        <translation>Niedriger Strom bei normaler Form: Isc bei %1 des erwarteten (%2). Verschmutzung, Degradation, falsche Einstrahlung oder ein verschatteter Teilstrang hinter einer offenen Bypassdiode: die Kennlinie allein unterscheidet sie nicht.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza ripida vicino a Isc: %1 contro %2 della curva della scheda (normalizzata): resistenza di shunt bassa, circa %3 per modulo.</source>
        <translation>Steile Neigung nahe Isc: %1 gegen %2 der Datenblattkennlinie (normiert): niedriger Parallelwiderstand, etwa %3 je Modul.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza debole vicino a Voc: %1 contro %2 della curva della scheda (normalizzata): resistenza serie alta (cavi, connettori), circa %3 in più per modulo.</source>
        <translation>Flache Neigung nahe Voc: %1 gegen %2 der Datenblattkennlinie (normiert): hoher Serienwiderstand (Kabel, Stecker), etwa %3 mehr je Modul.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Fattore di riempimento basso: %1 contro %2 della curva della scheda, senza altra spiegazione.</source>
        <translation>Niedriger Füllfaktor: %1 gegen %2 der Datenblattkennlinie, ohne andere Erklärung.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nessun rilievo: la curva ha la forma attesa.</source>
        <translation>Kein Befund: die Kennlinie hat die erwartete Form.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Senza modulo di riferimento sono cercati solo i gradini.</source>
        <translation>Ohne Referenzmodul werden nur Stufen gesucht.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura ricavata da Voc: la Voc non è valutata.</source>
        <translation>Temperatur aus Voc ermittelt: Voc wird nicht bewertet.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+78"/>
        <source>Incertezza dell&apos;esito</source>
        <translation>Unsicherheit des Ergebnisses</translation>
    </message>
    <message>
        <location line="-76"/>
        <source>Banda U (irraggiamento %1, temperatura %2, traslazione %3)</source>
        <translation>Band U (Einstrahlung %1, Temperatur %2, Umrechnung %3)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scarto di Pmax e limiti</source>
        <translation>Pmax-Abweichung und Grenzen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Esito dello strumento</source>
        <translation>Ergebnis des Geräts</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Esito con la banda</source>
        <translation>Ergebnis mit dem Band</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>inconclusivo</source>
        <translation>nicht eindeutig</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="pdfreport.cpp" line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Spannung (V)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Curva I-V a STC</source>
        <translation>I-V-Kennlinie bei STC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="pdfreport.cpp" line="-2"/>
        <source>Corrente (A)</source>
        <translation>Strom (A)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Appendice: come legge la curva il rapporto</source>
        <translation>Anhang: wie der Bericht die Kennlinie liest</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione IEC 60891</source>
        <translation>Umrechnung nach IEC 60891</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Procedura 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedura 2 (edizione 2009): I2 = I1 (1 + alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), con a = %1. Verso 1000 W/m² e 25 °C.</source>
        <translation>Verfahren 1: I2 = I1 + Isc1 (G2/G1 - 1) + Alpha (T2 - T1); V2 = V1 - Rs (I2 - I1) - Kappa I2 (T2 - T1) + Beta (T2 - T1). Verfahren 2 (Ausgabe 2009): I2 = I1 (1 + Alpha_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (Beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - Kappa I2 (T2 - T1), mit a = %1. Auf 1000 W/m² und 25 °C.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>alfa e beta vengono dai coefficienti della scheda; kappa è %1 Ω/°C per modulo. Rs è adattata ai punti misurati tra %2 e %3 di Isc con l&apos;equazione a un diodo V = Voc + a ln(1 - I/Isc) - Rs I (minimi quadrati). Per una stringa Rs, kappa e beta sono quelli di un modulo per il numero di moduli. La Voc della procedura 1 prolunga la curva oltre la Voc misurata con la stessa equazione.</source>
        <translation>Alpha und Beta stammen aus den Koeffizienten des Datenblatts; Kappa ist %1 Ω/°C je Modul. Rs wird an die Messpunkte zwischen %2 und %3 von Isc mit der Eindiodengleichung V = Voc + a ln(1 - I/Isc) - Rs I angepasst (kleinste Quadrate). Für einen Strang sind Rs, Kappa und Beta die eines Moduls mal die Anzahl der Module. Die Voc von Verfahren 1 setzt die Kennlinie mit derselben Gleichung über die gemessene Voc hinaus fort.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Si usano i punti misurati dalla scheda (posizioni 0, 2, ..., 254 del file). Le pendenze sono normalizzate: A/V per Voc/Isc. La curva della scheda è l&apos;equazione a un diodo ricavata da Isc, Voc, Impp e Vmpp del modulo, alla temperatura misurata e all&apos;irraggiamento che dà la Isc misurata.</source>
        <translation>Verwendet werden die von der Messplatine gemessenen Punkte (Plätze 0, 2, ..., 254 der Datei). Neigungen sind normiert: A/V mal Voc/Isc. Die Datenblattkennlinie ist die Eindiodengleichung aus Isc, Voc, Impp und Vmpp des Moduls, bei der gemessenen Temperatur und der Einstrahlung, die die gemessene Isc ergibt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Gradino: un tratto piatto (pendenza sotto %1, lungo almeno %2 di Voc) almeno %3 di Isc sotto il precedente.</source>
        <translation>Stufe: ein flacher Abschnitt (Neigung unter %1, mindestens %2 von Voc lang) mindestens %3 von Isc unter dem vorigen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Diodo di bypass in corto: Voc sotto l&apos;attesa di almeno %1 sottostringhe e a meno di %2 da un numero intero; una sottostringa è 1/%3 della Voc del modulo (--substrings N); solo con temperatura misurata o inserita.</source>
        <translation>Kurzgeschlossene Bypassdiode: Voc mindestens %1 Teilstränge unter dem erwarteten Wert und höchstens %2 von einer ganzen Zahl entfernt; ein Teilstrang ist 1/%3 der Modul-Voc (--substrings N); nur mit gemessener oder eingegebener Temperatur.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa: Isc sotto %1 di quella attesa, senza gradini.</source>
        <translation>Niedriger Strom: Isc unter %1 des erwarteten, ohne Stufen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shunt basso: pendenza fino a %1 di Voc più ripida di %2 di quella della scheda.</source>
        <translation>Niedriger Parallelwiderstand: Neigung bis %1 von Voc um %2 steiler als die des Datenblatts.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Resistenza serie alta: resistenza sotto %1 di Isc più alta di %2 (normalizzata) di quella della scheda; non valutata quando ci sono gradini.</source>
        <translation>Hoher Serienwiderstand: Widerstand unter %1 von Isc um %2 (normiert) höher als der des Datenblatts; bei Stufen nicht bewertet.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fattore di riempimento basso: %1 punti sotto quello della scheda, solo se nessun altro rilievo lo spiega.</source>
        <translation>Niedriger Füllfaktor: %1 Punkte unter dem des Datenblatts, nur wenn kein anderer Befund ihn erklärt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>U è la radice della somma dei quadrati di: irraggiamento %1 (classe del sensore), temperatura %2 °C per il coefficiente di potenza del modulo, traslazione %3. Uno scarto entro U da uno dei limiti di tolleranza (dopo la quota di invecchiamento) è inconclusivo.</source>
        <translation>U ist die Wurzel der Quadratsumme aus: Einstrahlung %1 (Klasse des Sensors), Temperatur %2 °C mal Leistungskoeffizient des Moduls, Umrechnung %3. Eine Abweichung innerhalb U von einer der Toleranzgrenzen (nach dem Alterungsabzug) ist nicht eindeutig.</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="+1"/>
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
        <location filename="main.cpp" line="+48"/>
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
        <source>Sottostringhe (diodi di bypass) per modulo, 3 se non detto.</source>
        <translation>Teilstränge (Bypassdioden) je Modul, 3 wenn nicht angegeben.</translation>
    </message>
    <message>
        <location line="+4"/>
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
        <location line="+17"/>
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
