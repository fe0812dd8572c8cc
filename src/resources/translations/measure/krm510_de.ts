<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>DialogAmbiente</name>
    <message>
        <location filename="../../../measure/dialogambiente.cpp" line="+26"/>
        <source>Temp. Cell.</source>
        <translation>Zellentemp.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Misure Ambiente</source>
        <translation>Umgebungsmessungen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temp. Mod.</source>
        <translation>Modultemp.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Auto</source>
        <translation>Temp. Auto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Manuale</source>
        <translation>Temp. Manuell</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Amb.</source>
        <translation>Umgebungstemp.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Irr.</source>
        <translation>Einstr.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+40"/>
        <location line="+31"/>
        <location line="+15"/>
        <location line="+2"/>
        <source>Attivazione Collegamento.</source>
        <translation>Verbindung wird aufgebaut.</translation>
    </message>
    <message>
        <location line="-13"/>
        <location line="+4"/>
        <source>Attivazione Collegamento..</source>
        <translation>Verbindung wird aufgebaut..</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+38"/>
        <source>Collegamento Remoto...</source>
        <translation>Fernverbindung...</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Collegamento Remoto.</source>
        <translation>Fernverbindung.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Collegamento Remoto..</source>
        <translation>Fernverbindung..</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Unità Remota</source>
        <translation>Ferneinheit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Nicht verbunden oder nicht vorhanden.</translation>
    </message>
</context>
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+21"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Gemessene elektrische Daten</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>DialogDegrado</name>
    <message>
        <location filename="../../../measure/dialogdegrado.cpp" line="+21"/>
        <source>Degrado Modulo</source>
        <translation>Moduldegradation</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Stringdegradation</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Jahre : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Degradation : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>Nicht anwenden</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Moduldegradation : Jahre</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Moduldegradation : Degradation %</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Degrado Anni</source>
        <translation>Degradation Jahre</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Ungültige Zahl : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Degradation Prozent</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+31"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Stringmessungen speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Modulmessungen speichern</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Anzahl der Module</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Anzahl der Module : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Ungültige Zahl : </translation>
    </message>
</context>
<context>
    <name>DialogRs</name>
    <message>
        <location filename="../../../measure/dialogrs.cpp" line="+49"/>
        <location line="+21"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>ohm</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr.</source>
        <translation>Einstr.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Attivazione Collegamento..</source>
        <translation>Verbindung wird aufgebaut..</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Attivazione Collegamento...</source>
        <translation>Verbindung wird aufgebaut...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Collegamento Remoto...</source>
        <translation>Fernverbindung...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Irradiazione</source>
        <translation>Einstrahlung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irradiazione troppo bassa.</source>
        <translation>Einstrahlung zu niedrig.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Irradiazione troppo alta.</source>
        <translation>Einstrahlung zu hoch.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Misura Modulo...</source>
        <translation>Modulmessung...</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Tensione Eccessiva.</source>
        <translation>Spannung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Strom zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Leistung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energie zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarität vertauscht.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Potentialfrei.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Spannung zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Strom zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Abkühlung abwarten...
Gerät überhitzt.
Vor weiteren Tests bitte warten.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Anschlussproblem an Power Device.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misura Fase 1</source>
        <translation>Messung Phase 1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura Fase 2</source>
        <translation>Messung Phase 2</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Unità Remota</source>
        <translation>Ferneinheit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Nicht verbunden oder nicht vorhanden.</translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+36"/>
        <source>Batteria</source>
        <translation>Akku</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Akku schwach.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Laden Sie den Akku bitte.</translation>
    </message>
</context>
<context>
    <name>DialogViewRs</name>
    <message>
        <location filename="../../../measure/dialogviewrs.cpp" line="+12"/>
        <location line="+3"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ohm</source>
        <translation>Ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr. 1</source>
        <translation>Einstr. 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr. 2</source>
        <translation>Einstr. 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PanelIV</name>
    <message>
        <location filename="../../../measure/panelIV.cpp" line="+70"/>
        <source>Panel IV</source>
        <translation>Panel IV</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Calcolo</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+5"/>
        <source>Misurato</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Attuale</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modulo</source>
        <translation>Modul</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Leistung OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Leistung STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>Misura Modulo...</source>
        <translation>Modulmessung...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Grafik wird erstellt...</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Spannung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Strom zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Leistung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energie zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarität vertauscht.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Potentialfrei.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Spannung zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Strom zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Abkühlung abwarten...
Gerät überhitzt.
Vor weiteren Tests bitte warten.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Wiederherstellung des Power Device.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Anschlussproblem an Power Device.</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Umgebungsmessung</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Verbindung Fernmodul</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Verbindung wird aufgebaut...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Ferneinheit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Nicht verbunden oder nicht vorhanden.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperatur nicht ermittelt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Sonneneinstrahlung nicht ermittelt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Einstrahlung zu niedrig (&lt; </translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Einstrahlung sehr variabel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>STC werte nicht verfügbar.
Bitte wiederholen.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatur von Grenzen.</translation>
    </message>
    <message>
        <location line="+140"/>
        <source>Misura Salvata.</source>
        <translation>Messung gespeichert.</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Misura</source>
        <translation>Messung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Dieser Messungsname ist bereits vorhanden.</translation>
    </message>
</context>
<context>
    <name>ReferencePanel</name>
    <message>
        <location filename="../../../measure/refpanel.cpp" line="+82"/>
        <source>Modulo di Riferimento</source>
        <translation>Referenzmodul</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Conferma</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modello</source>
        <translation>Neues Modell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Caratteristiche</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+25"/>
        <source>Vuoto</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>StringIV</name>
    <message>
        <location filename="../../../measure/stringIV.cpp" line="+69"/>
        <source>String IV</source>
        <translation>String IV</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Attuale</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Misurato</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Leistung OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Leistung STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Misura Stringa...</source>
        <translation>Stringmessung...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Grafik wird erstellt...</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Spannung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Strom zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Leistung zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energie zu hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarität vertauscht.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Potentialfrei.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Spannung zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Strom zu niedrig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Abkühlung abwarten...
Gerät überhitzt.
Vor weiteren Tests bitte warten.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Wiederherstellung des Power Device.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Anschlussproblem an Power Device.</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Umgebungsmessung</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Verbindung Fernmodul</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Verbindung wird aufgebaut...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Ferneinheit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Nicht verbunden oder nicht vorhanden.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperatur nicht ermittelt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Sonneneinstrahlung nicht ermittelt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Einstrahlung zu niedrig (&lt; </translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Einstrahlung sehr variabel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>STC werte nicht verfügbar.
Bitte wiederholen.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatur von Grenzen.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>Misura Salvata.</source>
        <translation>Messung gespeichert.</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Misura</source>
        <translation>Messung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Dieser Messungsname ist bereits vorhanden.</translation>
    </message>
</context>
<context>
    <name>ViewMeasures</name>
    <message>
        <location filename="../../../measure/viewmeasures.cpp" line="+47"/>
        <source>Misure</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modulo</source>
        <translation>Modul</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+18"/>
        <source>Potenza</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Potenza OPC</source>
        <translation>Leistung OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Leistung STC</translation>
    </message>
</context>
</TS>
