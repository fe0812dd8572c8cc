<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>ArchiveCompany</name>
    <message>
        <location filename="../../../archive/archivecompany.cpp" line="+8"/>
        <source>Archivio Aziende</source>
        <translation>Archivo empresas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Lista</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>ArchiveInstallation</name>
    <message>
        <location filename="../../../archive/archiveinstallation.cpp" line="+8"/>
        <source>Archivio Installazioni</source>
        <translation>Archivo instalaciones</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Lista</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Fichero de Medidas</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Módulos</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Strings</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Lista</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>ArchivePanel</name>
    <message>
        <location filename="../../../archive/archivepanel.cpp" line="+19"/>
        <source>Archivio Moduli</source>
        <translation>Fichero de Módulos</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modulo</source>
        <translation>Nuevo módulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Modulo</source>
        <translation>Modificar módulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Marca</source>
        <translation>Modificar marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>Lista</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>DeletePanel</name>
    <message>
        <location filename="../../../archive/deletepanel.cpp" line="+28"/>
        <location line="+84"/>
        <source>Cancella Modulo / Modello</source>
        <translation>Borrar módulo / modelo</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+77"/>
        <source>Cancella Modello</source>
        <translation>Borrar modelo</translation>
    </message>
    <message>
        <location line="-75"/>
        <location line="+81"/>
        <source>Cancella Marca</source>
        <translation>Borrar marca</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Número de modelos : </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Conferma?</source>
        <translation>¿Confirmar?</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Cancella Modulo...</source>
        <translation>Borrando módulo...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Modificar marca</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+32"/>
        <location line="+21"/>
        <location line="+18"/>
        <location line="+13"/>
        <location line="+9"/>
        <source>&lt;Nuova Marca&gt;</source>
        <translation>&lt;Nueva marca&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Marca del módulo</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Nueva marca añadida</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Actualización realizada.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Error al guardar.</translation>
    </message>
</context>
<context>
    <name>EditCompany</name>
    <message>
        <location filename="../../../archive/editcompany.cpp" line="+13"/>
        <location line="+73"/>
        <location line="+3"/>
        <source>Modifica Azienda</source>
        <translation>Modificar empresa</translation>
    </message>
    <message>
        <location line="-75"/>
        <source>Cognome
Denominazione</source>
        <translation>Apellido
Denominación</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Cód. fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cód.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cognome / Denominazione</source>
        <translation>Apellido / Denominación</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Código fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Código</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Debe ser de </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caracteres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Debe tener al menos 5 caracteres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Instalación añadida</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> è già presente.</source>
        <translation> ya está presente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+3"/>
        <source>Aggiornamento Azienda</source>
        <translation>Actualización empresa</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Realizado con éxito.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Actualización fallida.</translation>
    </message>
</context>
<context>
    <name>EditInstallation</name>
    <message>
        <location filename="../../../archive/editinstallation.cpp" line="+9"/>
        <location line="+60"/>
        <location line="+3"/>
        <source>Modifica Installazione</source>
        <translation>Modificar instalación</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Id instalación</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Núm. de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Potencia nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Número de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potencia nominal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Número no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Modulo</source>
        <translation>Medidas módulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Medidas cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misura inserita</source>
        <translation>Medida insertada</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Già presente.</source>
        <translation>Ya presente.</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Misure inserita</source>
        <translation>Medidas insertada</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>Aggiornameno Installazione</source>
        <translation>Actualización instalación</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Realizado con éxito.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Actualización fallida.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+22"/>
        <location line="+177"/>
        <source>Modifica Modulo</source>
        <translation>Modificar módulo</translation>
    </message>
    <message>
        <location line="-170"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura nominal de la célula - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coeficiente de temperatura de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coeficiente de temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coeficiente de temperatura de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coeficiente de temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolerancia mínima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Tol- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolerancia máxima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Tol+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Sconosciuto</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristalino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristalino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Capa fina</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorfo</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Realizado con éxito.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+30"/>
        <location line="+139"/>
        <source>Modifica Modulo</source>
        <translation>Modificar módulo</translation>
    </message>
    <message>
        <location line="-131"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura nominal de la célula - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coeficiente de temperatura de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coeficiente de temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coeficiente de temperatura de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coeficiente de temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolerancia mínima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Tol- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolerancia máxima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Tol+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Sconosciuto</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristalino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristalino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Capa fina</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorfo</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modificar modelo del módulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modelo del módulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modelo vacío.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Eseguito con successo.</source>
        <translation>Realizado con éxito.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+32"/>
        <source>Ricerca Modulo</source>
        <translation>Búsqueda de módulo</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+228"/>
        <source>Modello trovato : </source>
        <translation>Modelos encontrados : </translation>
    </message>
    <message>
        <location line="-226"/>
        <source>Cerca</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima</source>
        <translation>Pmax mínima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax máxima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp mínima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp máxima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp mínima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp máxima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax non può essere negativa : </source>
        <translation>Pmax no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax mínima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax máxima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp mínima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp máxima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp mínima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp máxima no puede ser negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax mínima es mayor que Pmax máxima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp mínima es mayor que Vmpp máxima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp mínima es mayor que Impp máxima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax máxima es menor que Pmax mínima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp máxima es menor que Vmpp mínima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp máxima es menor que Impp mínima.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Buscando módulo...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancelar...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Ningún resultado encontrado.</translation>
    </message>
</context>
<context>
    <name>InsertCompany</name>
    <message>
        <location filename="../../../archive/insertcompany.cpp" line="+11"/>
        <location line="+49"/>
        <location line="+3"/>
        <source>Nuova Azienda</source>
        <translation>Nueva empresa</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Cognome
Denominazione</source>
        <translation>Apellido
Denominación</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Cód. fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cód.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cognome / Denominazione</source>
        <translation>Apellido / Denominación</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Código fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Código</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Debe ser de </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caracteres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Debe tener al menos 5 caracteres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Instalación añadida</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> già presente.</source>
        <translation> ya presente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Azienda</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome dell&apos;azienda già presente.</source>
        <translation>Nombre de la empresa ya presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Azienda Salvata.</source>
        <translation>Empresa guardada.</translation>
    </message>
</context>
<context>
    <name>InsertInstallation</name>
    <message>
        <location filename="../../../archive/insertinstallation.cpp" line="+9"/>
        <location line="+47"/>
        <location line="+3"/>
        <source>Inserimento Installazione</source>
        <translation>Nueva instalación</translation>
    </message>
    <message>
        <location line="-49"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Id instalación</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Núm. de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Potencia nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Número de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potencia nominal</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Número no válido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Moduli</source>
        <translation>Medidas módulos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Medidas cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Misura inserita</source>
        <translation>Medida insertada</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Già presente.</source>
        <translation>Ya presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> già presente.</source>
        <translation> ya presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installazione</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nome dell&apos;installazione già presente.</source>
        <translation>Nombre de la instalación ya presente.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Installazione Salvata.</source>
        <translation>Instalación guardada.</translation>
    </message>
</context>
<context>
    <name>ListCompany</name>
    <message>
        <location filename="../../../archive/listcompany.cpp" line="+8"/>
        <source>Lista Aziende</source>
        <translation>Lista empresas</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cogn./Denom.</source>
        <translation>Apell./Denom.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cod.</source>
        <translation>Cód.</translation>
    </message>
</context>
<context>
    <name>ListInstallation</name>
    <message>
        <location filename="../../../archive/listinstallation.cpp" line="+8"/>
        <source>Lista Installazioni</source>
        <translation>Lista instalaciones</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Lista medidas módulos</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Lista medidas strings</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Data</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Hora</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Borrar medida módulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Borrar medida string</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>¿Confirmar?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Lista de módulos</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
</context>
<context>
    <name>NewPanel</name>
    <message>
        <location filename="../../../archive/newpanel.cpp" line="+22"/>
        <location line="+151"/>
        <location line="+19"/>
        <source>Nuovo Modulo</source>
        <translation>Nuevo módulo</translation>
    </message>
    <message>
        <location line="-165"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura nominal de la célula - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coeficiente de temperatura de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coeficiente de temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coeficiente de temperatura de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coeficiente de temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coeficiente de temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolerancia mínima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Tol- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolerancia máxima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Tol+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Sconosciuto</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristalino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristalino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Capa fina</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorfo</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Testo inserito non valido.</source>
        <translation>Texto introducido no válido.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modificar modelo del módulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modelo del módulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modelo vacío.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Actualización del módulo</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Realizado con éxito.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Error al guardar.</translation>
    </message>
</context>
<context>
    <name>SelectCompany</name>
    <message>
        <location filename="../../../archive/selectcompany.cpp" line="+22"/>
        <source>Agg. Installazione</source>
        <translation>Añad. instalación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazioni ad Azienda</source>
        <translation>Añadir instalaciones a la empresa</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+114"/>
        <source>Cancella Azienda</source>
        <translation>Borrar empresa</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Modifica</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Azienda</source>
        <translation>Selección empresa</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Cognome / Denominazione</source>
        <translation>Apellido / Denominación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fis.</source>
        <translation>Cód. fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cód.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Conferma?</source>
        <translation>¿Confirmar?</translation>
    </message>
</context>
<context>
    <name>SelectInstallation</name>
    <message>
        <location filename="../../../archive/selectinstallation.cpp" line="+23"/>
        <source>Agg.</source>
        <translation>Añad.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazione</source>
        <translation>Añadir instalación</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancella</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+84"/>
        <location line="+1"/>
        <source>Cancella Installazione</source>
        <translation>Borrar instalación</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>Modifica</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Installazione</source>
        <translation>Selección instalación</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Num. di stringhe</source>
        <translation>Núm. de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potencia nominal</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Conferma?</source>
        <translation>¿Confirmar?</translation>
    </message>
</context>
<context>
    <name>ViewCompany</name>
    <message>
        <location filename="../../../archive/viewcompany.cpp" line="+15"/>
        <source>Visualizza Azienda</source>
        <translation>Ver empresa</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cognome \ Denominazione</source>
        <translation>Apellido \ Denominación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fisc.</source>
        <translation>Cód. fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cód.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+33"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Visualizza</source>
        <translation>Ver</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
</context>
<context>
    <name>ViewInstallation</name>
    <message>
        <location filename="../../../archive/viewinstallation.cpp" line="+28"/>
        <source>Installazione</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Installazione Id</source>
        <translation>Id instalación</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Calle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Num. di stringhe</source>
        <translation>Núm. de cadenas</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Potenza Nom.</source>
        <translation>Potencia nom.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misure Modulo</source>
        <translation>Medidas módulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Medidas cadenas</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Visualizza Grafico</source>
        <translation>Ver gráfico</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Vuoto</source>
        <translation>Vacío</translation>
    </message>
</context>
</TS>
