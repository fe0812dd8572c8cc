<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>Orvia</name>
    <message>
        <location filename="../../../shell/orvia.cpp" line="+65"/>
        <source>Brask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Sistema</source>
        <translation>System</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modulo</source>
        <translation>Modul</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Moduli</source>
        <translation>Archiv
Formulare</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Misure</source>
        <translation>Archiv
Messungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Aziende</source>
        <translation>Archiv
Firmen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Installazioni</source>
        <translation>Archiv
Anlagen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
</context>
</TS>
