<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+20"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Datos eléctricos medidos</translation>
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
        <translation>Degradación módulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Degradación string</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Años : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Degradación : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>No aplicar</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Degradación módulo : Años</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Degradación módulo : Degradación %</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Degrado Anni</source>
        <translation>Degradación años</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Número no válido : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Degradación porcentaje</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+28"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Guardar medidas string</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Guardar medidas módulo</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Hora</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Guardar</translation>
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
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Número de módulos</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Número de módulos : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Número no válido : </translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+16"/>
        <source>Batteria</source>
        <translation>Batería</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Batería insuficiente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Recargar batería.</translation>
    </message>
</context>
</TS>
