<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
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
        <translation>Sistema</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modulo</source>
        <translation>Módulo</translation>
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
        <translation>Fichero de
Módulos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Misure</source>
        <translation>Fichero de
Medidas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Aziende</source>
        <translation>Fichero de
Empresas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Installazioni</source>
        <translation>Fichero de
Instalaciones</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
</context>
</TS>
