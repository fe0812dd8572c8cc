<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>ArchiveCompany</name>
    <message>
        <location filename="../../../archive/archivecompany.cpp" line="+8"/>
        <source>Archivio Aziende</source>
        <translation>Archivio Aziende</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
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
        <translation>Archivio Installazioni</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
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
        <translation>Archivio Misure</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Moduli</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Stringhe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
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
        <translation>Archivio Moduli</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modulo</source>
        <translation>Nuovo Modulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Marca</source>
        <translation>Modifica Marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Trova</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
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
        <translation>Cancella Modulo / Modello</translation>
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
        <translation>Cancella Modello</translation>
    </message>
    <message>
        <location line="-75"/>
        <location line="+81"/>
        <source>Cancella Marca</source>
        <translation>Cancella Marca</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Numero di Modelli : </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Conferma?</source>
        <translation>Conferma?</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Cancella Modulo...</source>
        <translation>Cancella Modulo...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Modifica Marca</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>&lt;Nuova Marca&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Marca Modulo</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Inserita nuova marca</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Aggiornamento eseguito.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Errore nel salvataggio.</translation>
    </message>
</context>
<context>
    <name>EditCompany</name>
    <message>
        <location filename="../../../archive/editcompany.cpp" line="+13"/>
        <location line="+73"/>
        <location line="+3"/>
        <source>Modifica Azienda</source>
        <translation>Modifica Azienda</translation>
    </message>
    <message>
        <location line="-75"/>
        <source>Cognome
Denominazione</source>
        <translation>Cognome
Denominazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Cod. Fisc.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cod.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>CAP</translation>
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
        <translation>Via</translation>
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
        <translation>Cognome / Denominazione</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Codice Fiscale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Codice</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Deve essere di </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caratteri</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Deve essere di almeno 5 caratteri</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installazione inserita</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> è già presente.</source>
        <translation> è già presente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Aggiornamento Azienda</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Aggiornamento non riuscito.</translation>
    </message>
</context>
<context>
    <name>EditInstallation</name>
    <message>
        <location filename="../../../archive/editinstallation.cpp" line="+9"/>
        <location line="+60"/>
        <location line="+3"/>
        <source>Modifica Installazione</source>
        <translation>Modifica Installazione</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Installazione Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>CAP</translation>
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
        <translation>Via</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Num. di stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Potenza Nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Numero delle stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potenza Nominale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Numero non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Modulo</source>
        <translation>Misure Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Misure Stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misura inserita</source>
        <translation>Misura Inserita</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Già presente.</source>
        <translation>Già presente.</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Misure inserita</source>
        <translation>Misure inserita</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Aggiornamento installazione</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Aggiornamento non riuscito.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+22"/>
        <location line="+177"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
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
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
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
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
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
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
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
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+30"/>
        <location line="+139"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
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
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
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
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
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
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
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
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifica Modello Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modello Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modello vuoto.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+32"/>
        <source>Ricerca Modulo</source>
        <translation>Ricerca Modulo</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+228"/>
        <source>Modello trovato : </source>
        <translation>Modello trovato : </translation>
    </message>
    <message>
        <location line="-226"/>
        <source>Cerca</source>
        <translation>Cerca</translation>
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
        <translation>Pmax Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp Massima</translation>
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
        <translation>Pmax non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax minima è maggiore di Pmax massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp Minima è maggiore di Vmpp Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp Minima è maggiore di Impp Massima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax Massima è minome di Pmax Minima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp Massima è minore di Vmpp Minima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp Massima è minore di Impp Minima.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Ricerca Modulo...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancella...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Nessun risultato trovato.</translation>
    </message>
</context>
<context>
    <name>InsertCompany</name>
    <message>
        <location filename="../../../archive/insertcompany.cpp" line="+11"/>
        <location line="+49"/>
        <location line="+3"/>
        <source>Nuova Azienda</source>
        <translation>Nuova Azienda</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Cognome
Denominazione</source>
        <translation>Cognome
Denominazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Cod. Fisc.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cod.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>CAP</translation>
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
        <translation>Via</translation>
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
        <translation>Cognome / Denominazione</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Codice Fiscale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Codice</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Deve essere di </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caratteri</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Deve essere di almeno 5 caratteri</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installazione inserita</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> già presente.</source>
        <translation> già presente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Azienda</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome dell&apos;azienda già presente.</source>
        <translation>Nome dell&apos;azienda già presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Azienda Salvata.</source>
        <translation>Azienda Salvata.</translation>
    </message>
</context>
<context>
    <name>InsertInstallation</name>
    <message>
        <location filename="../../../archive/insertinstallation.cpp" line="+9"/>
        <location line="+47"/>
        <location line="+3"/>
        <source>Inserimento Installazione</source>
        <translation>Inserimento Installazione</translation>
    </message>
    <message>
        <location line="-49"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Installazione Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>CAP</translation>
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
        <translation>Via</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Num. di stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Potenza Nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Numero delle stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potenza Nominale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Testo inserito</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Numero non valido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Moduli</source>
        <translation>Misure Moduli</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Misure Stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Misura inserita</source>
        <translation>Misura Inserita</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Già presente.</source>
        <translation>Già presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> già presente.</source>
        <translation> già presente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Salva</translation>
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
        <translation>Installazione</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nome dell&apos;installazione già presente.</source>
        <translation>Nome dell&apos;installazione gia&apos; presente.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Installazione Salvata.</source>
        <translation>Installazione Salvata.</translation>
    </message>
</context>
<context>
    <name>ListCompany</name>
    <message>
        <location filename="../../../archive/listcompany.cpp" line="+8"/>
        <source>Lista Aziende</source>
        <translation>Lista Aziende</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Apri</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cogn./Denom.</source>
        <translation>Cogn./Denom.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cod.</source>
        <translation>Cod.</translation>
    </message>
</context>
<context>
    <name>ListInstallation</name>
    <message>
        <location filename="../../../archive/listinstallation.cpp" line="+8"/>
        <source>Lista Installazioni</source>
        <translation>Lista installazioni</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Apri</translation>
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
        <translation>Città</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Lista Misure Moduli</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Lista Misure Stringhe</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Grafico</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Ora</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Commento</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Cancella Misure Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Cancella Misure Stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Conferma?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Lista Moduli</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modello</translation>
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
        <translation>Nuovo Modulo</translation>
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
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
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
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
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
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
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
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Sconosciuto</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifica Modello Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modello Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modello vuoto.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Aggiornamento Modulo</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Errore nel salvataggio.</translation>
    </message>
</context>
<context>
    <name>SelectCompany</name>
    <message>
        <location filename="../../../archive/selectcompany.cpp" line="+22"/>
        <source>Agg. Installazione</source>
        <translation>Agg. Installazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazioni ad Azienda</source>
        <translation>Aggiungere Installazioni ad Azienda</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+114"/>
        <source>Cancella Azienda</source>
        <translation>Cancella Azienda</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Modifica</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Azienda</source>
        <translation>Selezione Azienda</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Cognome / Denominazione</source>
        <translation>Cognome / Denominazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fis.</source>
        <translation>Cod. Fisc.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cod.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAP</source>
        <translation>CAP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Via</translation>
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
        <translation>Conferma?</translation>
    </message>
</context>
<context>
    <name>SelectInstallation</name>
    <message>
        <location filename="../../../archive/selectinstallation.cpp" line="+23"/>
        <source>Agg.</source>
        <translation>Agg.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazione</source>
        <translation>Aggiungere Installazione</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+84"/>
        <location line="+1"/>
        <source>Cancella Installazione</source>
        <translation>Cancella Installazione</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>Modifica</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Installazione</source>
        <translation>Selezione Installazione</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CAP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Via</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Num. di stringhe</source>
        <translation>Num. di stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Potenza Nominale</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Conferma?</source>
        <translation>Conferma?</translation>
    </message>
</context>
<context>
    <name>ViewCompany</name>
    <message>
        <location filename="../../../archive/viewcompany.cpp" line="+15"/>
        <source>Visualizza Azienda</source>
        <translation>Visualizza Azienda</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cognome \ Denominazione</source>
        <translation>Cognome \ Denominazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Nome</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fisc.</source>
        <translation>Cod. Fisc.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Cod.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+33"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>CAP</source>
        <translation>CAP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Via</translation>
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
        <translation>Visualizza</translation>
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
        <translation>Installazione</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Installazione Id</source>
        <translation>Installazione Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Città</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CAP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Via</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Num. di stringhe</source>
        <translation>Num. di stringhe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Potenza Nom.</source>
        <translation>Potenza Nom.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misure Modulo</source>
        <translation>Misure Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Misure Stringhe</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Visualizza Grafico</source>
        <translation>Visualizza Grafico</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Vuoto</source>
        <translation>Vuoto</translation>
    </message>
</context>
</TS>
