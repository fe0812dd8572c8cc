<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
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
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+20"/>
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
        <location filename="../../../measure/dialogdegrado.cpp" line="+20"/>
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
        <location line="+9"/>
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
        <location filename="../../../measure/dialoginfo.cpp" line="+28"/>
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
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
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
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+16"/>
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
</TS>
