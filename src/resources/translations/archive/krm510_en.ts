<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="en_US" sourcelanguage="it_IT">
<context>
    <name>ArchiveCompany</name>
    <message>
        <location filename="../../../archive/archivecompany.cpp" line="+8"/>
        <source>Archivio Aziende</source>
        <translation>Company archive</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>New</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Edit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>List</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>ArchiveInstallation</name>
    <message>
        <location filename="../../../archive/archiveinstallation.cpp" line="+8"/>
        <source>Archivio Installazioni</source>
        <translation>Installation archive</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>New</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Edit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>List</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Measurement archive</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Modules</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Strings</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>List</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>ArchivePanel</name>
    <message>
        <location filename="../../../archive/archivepanel.cpp" line="+19"/>
        <source>Archivio Moduli</source>
        <translation>Pv module archive</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modulo</source>
        <translation>New module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Modulo</source>
        <translation>Edit module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Marca</source>
        <translation>Edit brand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Find</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>List</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>DeletePanel</name>
    <message>
        <location filename="../../../archive/deletepanel.cpp" line="+28"/>
        <location line="+84"/>
        <source>Cancella Modulo / Modello</source>
        <translation>Delete module / model</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Marca</source>
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+77"/>
        <source>Cancella Modello</source>
        <translation>Delete model</translation>
    </message>
    <message>
        <location line="-75"/>
        <location line="+81"/>
        <source>Cancella Marca</source>
        <translation>Delete brand</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Number of models : </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Conferma?</source>
        <translation>Confirm?</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Cancella Modulo...</source>
        <translation>Deleting module...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Edit brand</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+32"/>
        <location line="+21"/>
        <location line="+18"/>
        <location line="+13"/>
        <location line="+9"/>
        <source>&lt;Nuova Marca&gt;</source>
        <translation>&lt;New brand&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Module brand</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>New brand added</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Update done.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Error while saving.</translation>
    </message>
</context>
<context>
    <name>EditCompany</name>
    <message>
        <location filename="../../../archive/editcompany.cpp" line="+13"/>
        <location line="+73"/>
        <location line="+3"/>
        <source>Modifica Azienda</source>
        <translation>Edit company</translation>
    </message>
    <message>
        <location line="-75"/>
        <source>Cognome
Denominazione</source>
        <translation>Surname
Company name</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>ZIP</translation>
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
        <translation>Street</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Phone</translation>
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
        <translation>Surname / Company name</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Phone</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Text entered</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Must be of </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>characters</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Must be at least 5 characters</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installation added</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> è già presente.</source>
        <translation> is already present.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+3"/>
        <source>Aggiornamento Azienda</source>
        <translation>Company update</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Done successfully.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Update failed.</translation>
    </message>
</context>
<context>
    <name>EditInstallation</name>
    <message>
        <location filename="../../../archive/editinstallation.cpp" line="+9"/>
        <location line="+60"/>
        <location line="+3"/>
        <source>Modifica Installazione</source>
        <translation>Edit installation</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Installation Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>ZIP</translation>
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
        <translation>Street</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>No. of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Nom. power</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Number of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Rated power</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Text entered</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Invalid number.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Modulo</source>
        <translation>Module measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>String measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misura inserita</source>
        <translation>Measure inserted</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Già presente.</source>
        <translation>Already present.</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Misure inserita</source>
        <translation>Measures inserted</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>Aggiornameno Installazione</source>
        <translation>Installation update</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Done successfully.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Update failed.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+22"/>
        <location line="+177"/>
        <source>Modifica Modulo</source>
        <translation>Edit module</translation>
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
        <translation>Nominal operating cell temperature - NOCT [°C]</translation>
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
        <translation>Temperature coefficient of Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Isc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperature coefficient of Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Voc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperature coefficient of Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Pmax temperature coefficient [%/°C]</translation>
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
        <translation>Minimum tolerance [%]</translation>
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
        <translation>Maximum tolerance [%]</translation>
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
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Sconosciuto</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocrystalline</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycrystalline</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Thin film</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphous</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorph</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Done successfully.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+30"/>
        <location line="+139"/>
        <source>Modifica Modulo</source>
        <translation>Edit module</translation>
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
        <translation>Nominal operating cell temperature - NOCT [°C]</translation>
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
        <translation>Temperature coefficient of Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Isc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperature coefficient of Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Voc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperature coefficient of Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Pmax temperature coefficient [%/°C]</translation>
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
        <translation>Minimum tolerance [%]</translation>
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
        <translation>Maximum tolerance [%]</translation>
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
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Sconosciuto</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocrystalline</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycrystalline</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Thin film</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphous</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorph</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Edit module model</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Module model</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Empty model.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Eseguito con successo.</source>
        <translation>Done successfully.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+32"/>
        <source>Ricerca Modulo</source>
        <translation>Module search</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+228"/>
        <source>Modello trovato : </source>
        <translation>Models found : </translation>
    </message>
    <message>
        <location line="-226"/>
        <source>Cerca</source>
        <translation>Search</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima</source>
        <translation>Minimum Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Maximum Pmax</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Minimum Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Maximum Vmpp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Minimum Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Maximum Impp</translation>
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
        <translation>Pmax cannot be negative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Minimum Pmax cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Maximum Pmax cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp cannot be negative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Minimum Vmpp cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Maximum Vmpp cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp cannot be negative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Minimum Impp cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Maximum Impp cannot be negative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Minimum Pmax is greater than maximum Pmax</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Minimum Vmpp is greater than maximum Vmpp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Minimum Impp is greater than maximum Impp.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Maximum Pmax is less than minimum Pmax.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Maximum Vmpp is less than minimum Vmpp.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Maximum Impp is less than minimum Impp.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Searching module...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancel...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>No result found.</translation>
    </message>
</context>
<context>
    <name>InsertCompany</name>
    <message>
        <location filename="../../../archive/insertcompany.cpp" line="+11"/>
        <location line="+49"/>
        <location line="+3"/>
        <source>Nuova Azienda</source>
        <translation>New company</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Cognome
Denominazione</source>
        <translation>Surname
Company name</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>ZIP</translation>
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
        <translation>Street</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Phone</translation>
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
        <translation>Surname / Company name</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Phone</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Text entered</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Must be of </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>characters</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Must be at least 5 characters</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installation added</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> già presente.</source>
        <translation> already present.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Azienda</source>
        <translation>Company</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome dell&apos;azienda già presente.</source>
        <translation>Company name already present.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Azienda Salvata.</source>
        <translation>Company saved.</translation>
    </message>
</context>
<context>
    <name>InsertInstallation</name>
    <message>
        <location filename="../../../archive/insertinstallation.cpp" line="+9"/>
        <location line="+47"/>
        <location line="+3"/>
        <source>Inserimento Installazione</source>
        <translation>New installation</translation>
    </message>
    <message>
        <location line="-49"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Installation Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>ZIP</translation>
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
        <translation>Street</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>No. of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Nom. power</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Number of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Rated power</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Text entered</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Invalid number.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Moduli</source>
        <translation>Module measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>String measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Misura inserita</source>
        <translation>Measure inserted</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Già presente.</source>
        <translation>Already present.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> già presente.</source>
        <translation> already present.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nome dell&apos;installazione già presente.</source>
        <translation>Installation name already present.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Installazione Salvata.</source>
        <translation>Installation saved.</translation>
    </message>
</context>
<context>
    <name>ListCompany</name>
    <message>
        <location filename="../../../archive/listcompany.cpp" line="+8"/>
        <source>Lista Aziende</source>
        <translation>Company list</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cogn./Denom.</source>
        <translation>Surn./Name</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>ListInstallation</name>
    <message>
        <location filename="../../../archive/listinstallation.cpp" line="+8"/>
        <source>Lista Installazioni</source>
        <translation>Installation list</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Module measurements</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>String measurements</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Graph</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Add</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Time</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Comment</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Delete module measurement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Delete string measurement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Confirm?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Module list</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Model</translation>
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
        <translation>New module</translation>
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
        <translation>Nominal operating cell temperature - NOCT [°C]</translation>
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
        <translation>Temperature coefficient of Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Isc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperature coefficient of Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Voc temperature coefficient [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperature coefficient of Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Pmax temperature coefficient [%/°C]</translation>
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
        <translation>Minimum tolerance [%]</translation>
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
        <translation>Maximum tolerance [%]</translation>
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
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Sconosciuto</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocrystalline</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycrystalline</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Thin film</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphous</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorph</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Testo inserito non valido.</source>
        <translation>Invalid text entered.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Edit module model</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Module model</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Empty model.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Module update</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Done successfully.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Error while saving.</translation>
    </message>
</context>
<context>
    <name>SelectCompany</name>
    <message>
        <location filename="../../../archive/selectcompany.cpp" line="+22"/>
        <source>Agg. Installazione</source>
        <translation>Add installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazioni ad Azienda</source>
        <translation>Add installations to company</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+114"/>
        <source>Cancella Azienda</source>
        <translation>Delete company</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Modifica</source>
        <translation>Edit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Azienda</source>
        <translation>Select company</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Cognome / Denominazione</source>
        <translation>Surname / Company name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fis.</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAP</source>
        <translation>ZIP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Street</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Phone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Conferma?</source>
        <translation>Confirm?</translation>
    </message>
</context>
<context>
    <name>SelectInstallation</name>
    <message>
        <location filename="../../../archive/selectinstallation.cpp" line="+23"/>
        <source>Agg.</source>
        <translation>Add</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazione</source>
        <translation>Add installation</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancella</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+84"/>
        <location line="+1"/>
        <source>Cancella Installazione</source>
        <translation>Delete installation</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>Modifica</source>
        <translation>Edit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Installazione</source>
        <translation>Select installation</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>ZIP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Street</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Num. di stringhe</source>
        <translation>No. of strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Rated power</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Conferma?</source>
        <translation>Confirm?</translation>
    </message>
</context>
<context>
    <name>ViewCompany</name>
    <message>
        <location filename="../../../archive/viewcompany.cpp" line="+15"/>
        <source>Visualizza Azienda</source>
        <translation>View company</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cognome \ Denominazione</source>
        <translation>Surname \ Company name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fisc.</source>
        <translation>Tax code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+33"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>CAP</source>
        <translation>ZIP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Street</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Phone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Visualizza</source>
        <translation>View</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
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
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Installazione Id</source>
        <translation>Installation Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>City</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>ZIP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Street</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Num. di stringhe</source>
        <translation>No. of strings</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Potenza Nom.</source>
        <translation>Nom. power</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misure Modulo</source>
        <translation>Module measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>String measures</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Visualizza Grafico</source>
        <translation>View graph</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Vuoto</source>
        <translation>Empty</translation>
    </message>
</context>
</TS>
