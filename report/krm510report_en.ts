<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="en_US" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+95"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>KRM 510 test report</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+34"/>
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
        <location filename="pdfanalysis.cpp" line="+54"/>
        <location line="+102"/>
        <location filename="pdfreport.cpp" line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="-6"/>
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
        <location filename="pdfanalysis.cpp" line="-127"/>
        <source>Seconda lettura della curva</source>
        <translation>Second reading of the curve</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione secondo IEC 60891 (edizione 2, 2009), procedure 1 e 2</source>
        <translation>Translation by IEC 60891 (edition 2, 2009), procedures 1 and 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Senza modulo di riferimento la curva non è traslata secondo IEC 60891 e non è confrontata con la scheda del modulo; si cercano solo i gradini.</source>
        <translation>Without a reference module the curve is not translated by IEC 60891 nor compared with the module&apos;s data sheet; only steps are looked for.</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+103"/>
        <source>Procedura 1</source>
        <translation>Procedure 1</translation>
    </message>
    <message>
        <location line="-103"/>
        <location line="+104"/>
        <source>Procedura 2</source>
        <translation>Procedure 2</translation>
    </message>
    <message>
        <location line="-89"/>
        <source>, per modulo per %1 moduli</source>
        <translation>, per module times %1 modules</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>alfa: dalla scheda, Coeff. Isc per Isc</source>
        <translation>alpha: from the data sheet, Isc coefficient times Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>beta: dalla scheda, Coeff. Voc per Voc</source>
        <translation>beta: from the data sheet, Voc coefficient times Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: adattata ai punti misurati (equazione a un diodo)</source>
        <translation>Rs: fitted to the measured points (single-diode equation)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: dalla scheda (adattamento non riuscito)</source>
        <translation>Rs: from the data sheet (the fit failed)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>kappa: predefinito, %1 Ω/°C per modulo</source>
        <translation>kappa: default, %1 Ω/°C per module</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a (procedura 2)</source>
        <translation>a (procedure 2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La Rs dello strumento (V/I al punto di massima potenza) non è una resistenza serie e non è usata.</source>
        <translation>The instrument&apos;s Rs (V/I at the maximum power point) is not a series resistance and is not used.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+107"/>
        <source>Forma della curva</source>
        <translation>Shape of the curve</translation>
    </message>
    <message>
        <location line="-101"/>
        <source>Gradino a %1 di Isc a %2: diodi di bypass in conduzione (ombreggiamento parziale, moduli disaccoppiati, una cella danneggiata).</source>
        <translation>Step at %1 of Isc at %2: bypass diodes conducting (partial shading, mismatch, a damaged cell).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Voc inferiore di %1 a quella attesa dalla scheda (%2): circa %3 sottostringhe, un diodo di bypass in corto.</source>
        <translation>Voc %1 below the data sheet&apos;s (%2): about %3 substrings, a shorted bypass diode.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa con forma normale: Isc al %1 di quella attesa (%2). Sporcizia, degrado, irraggiamento errato o una sottostringa ombreggiata dietro un diodo di bypass aperto: la curva da sola non li distingue.</source>
        <translation>Low current with a normal shape: Isc at %1 of the expected (%2). Soiling, degradation, a wrong irradiance or a shaded substring behind an open bypass diode: the curve alone cannot tell them apart.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza ripida vicino a Isc: %1 contro %2 della curva della scheda (normalizzata): resistenza di shunt bassa, circa %3 per modulo.</source>
        <translation>Steep slope near Isc: %1 against %2 of the data sheet&apos;s curve (normalised): low shunt resistance, about %3 per module.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza debole vicino a Voc: %1 contro %2 della curva della scheda (normalizzata): resistenza serie alta (cavi, connettori), circa %3 in più per modulo.</source>
        <translation>Shallow slope near Voc: %1 against %2 of the data sheet&apos;s curve (normalised): high series resistance (cables, connectors), about %3 more per module.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Fattore di riempimento basso: %1 contro %2 della curva della scheda, senza altra spiegazione.</source>
        <translation>Low fill factor: %1 against %2 of the data sheet&apos;s curve, with no other explanation.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nessun rilievo: la curva ha la forma attesa.</source>
        <translation>No finding: the curve has the expected shape.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Senza modulo di riferimento sono cercati solo i gradini.</source>
        <translation>Without a reference module only steps are looked for.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura ricavata da Voc: la Voc non è valutata.</source>
        <translation>Temperature taken from Voc: Voc is not judged.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+78"/>
        <source>Incertezza dell&apos;esito</source>
        <translation>Uncertainty of the verdict</translation>
    </message>
    <message>
        <location line="-76"/>
        <source>Banda U (irraggiamento %1, temperatura %2, traslazione %3)</source>
        <translation>Band U (irradiance %1, temperature %2, translation %3)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scarto di Pmax e limiti</source>
        <translation>Pmax deviation and limits</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Esito dello strumento</source>
        <translation>Verdict of the instrument</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Esito con la banda</source>
        <translation>Verdict with the band</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>inconclusivo</source>
        <translation>inconclusive</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="pdfreport.cpp" line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Voltage (V)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Curva I-V a STC</source>
        <translation>I-V curve at STC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="pdfreport.cpp" line="-2"/>
        <source>Corrente (A)</source>
        <translation>Current (A)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Appendice: come legge la curva il rapporto</source>
        <translation>Appendix: how the report reads the curve</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione IEC 60891</source>
        <translation>IEC 60891 translation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Procedura 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedura 2 (edizione 2009): I2 = I1 (1 + alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), con a = %1. Verso 1000 W/m² e 25 °C.</source>
        <translation>Procedure 1: I2 = I1 + Isc1 (G2/G1 - 1) + alpha (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedure 2 (2009 edition): I2 = I1 (1 + alpha_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), with a = %1. To 1000 W/m² and 25 °C.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>alfa e beta vengono dai coefficienti della scheda; kappa è %1 Ω/°C per modulo. Rs è adattata ai punti misurati tra %2 e %3 di Isc con l&apos;equazione a un diodo V = Voc + a ln(1 - I/Isc) - Rs I (minimi quadrati). Per una stringa Rs, kappa e beta sono quelli di un modulo per il numero di moduli. La Voc della procedura 1 prolunga la curva oltre la Voc misurata con la stessa equazione.</source>
        <translation>alpha and beta come from the data sheet&apos;s coefficients; kappa is %1 Ω/°C per module. Rs is fitted to the measured points between %2 and %3 of Isc with the single-diode equation V = Voc + a ln(1 - I/Isc) - Rs I (least squares). For a string Rs, kappa and beta are those of a module times the modules. The Voc of procedure 1 carries the curve beyond the measured Voc with the same equation.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Si usano i punti misurati dalla scheda (posizioni 0, 2, ..., 254 del file). Le pendenze sono normalizzate: A/V per Voc/Isc. La curva della scheda è l&apos;equazione a un diodo ricavata da Isc, Voc, Impp e Vmpp del modulo, alla temperatura misurata e all&apos;irraggiamento che dà la Isc misurata.</source>
        <translation>The points measured by the board are used (slots 0, 2, ..., 254 of the file). Slopes are normalised: A/V times Voc/Isc. The data sheet&apos;s curve is the single-diode equation drawn from the module&apos;s Isc, Voc, Impp and Vmpp, at the measured temperature and at the irradiance that gives the measured Isc.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Gradino: un tratto piatto (pendenza sotto %1, lungo almeno %2 di Voc) almeno %3 di Isc sotto il precedente.</source>
        <translation>Step: a flat stretch (slope below %1, at least %2 of Voc long) at least %3 of Isc below the one before.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Diodo di bypass in corto: Voc sotto l&apos;attesa di almeno %1 sottostringhe e a meno di %2 da un numero intero; una sottostringa è 1/%3 della Voc del modulo (--substrings N); solo con temperatura misurata o inserita.</source>
        <translation>Shorted bypass diode: Voc below the expected by at least %1 substrings and within %2 of a whole number; a substring is 1/%3 of the module&apos;s Voc (--substrings N); only with a measured or entered temperature.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa: Isc sotto %1 di quella attesa, senza gradini.</source>
        <translation>Low current: Isc below %1 of the expected, without steps.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shunt basso: pendenza fino a %1 di Voc più ripida di %2 di quella della scheda.</source>
        <translation>Low shunt: the slope up to %1 of Voc steeper by %2 than the data sheet&apos;s.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Resistenza serie alta: resistenza sotto %1 di Isc più alta di %2 (normalizzata) di quella della scheda; non valutata quando ci sono gradini.</source>
        <translation>High series resistance: the resistance below %1 of Isc higher by %2 (normalised) than the data sheet&apos;s; not judged when there are steps.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fattore di riempimento basso: %1 punti sotto quello della scheda, solo se nessun altro rilievo lo spiega.</source>
        <translation>Low fill factor: %1 points below the data sheet&apos;s, only when no other finding explains it.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>U è la radice della somma dei quadrati di: irraggiamento %1 (classe del sensore), temperatura %2 °C per il coefficiente di potenza del modulo, traslazione %3. Uno scarto entro U da uno dei limiti di tolleranza (dopo la quota di invecchiamento) è inconclusivo.</source>
        <translation>U is the root-sum-square of: irradiance %1 (the sensor&apos;s class), temperature %2 °C times the module&apos;s power coefficient, translation %3. A deviation within U of either tolerance limit (after the ageing allowance) is inconclusive.</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="+1"/>
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
        <location filename="main.cpp" line="+48"/>
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
        <source>Sottostringhe (diodi di bypass) per modulo, 3 se non detto.</source>
        <translation>Substrings (bypass diodes) per module, 3 unless given.</translation>
    </message>
    <message>
        <location line="+4"/>
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
        <location line="+17"/>
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
