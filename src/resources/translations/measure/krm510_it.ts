<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+20"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Dati Elettrici Misurati</translation>
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
        <translation>Degrado Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Degrado Stringa</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Anni : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Degrado : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Applica</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>Non Applicare</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Degrado Modulo : Anni</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Degrado Modulo : Degrado %</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Degrado Anni</source>
        <translation>Degrado Anni</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Numero non valido : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Degrado Percentuale</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+28"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Salvataggio Misure Stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Salvataggio Misure Modulo</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Ora</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Commento</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Numero di Moduli</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Numero di Moduli : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Applica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Numero non valido : </translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+16"/>
        <source>Batteria</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Batteria Insufficiente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Ricaricare la batteria.</translation>
    </message>
</context>
</TS>
