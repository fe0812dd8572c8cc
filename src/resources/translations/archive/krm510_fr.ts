<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>ArchiveCompany</name>
    <message>
        <location filename="../../../archive/archivecompany.cpp" line="+8"/>
        <source>Archivio Aziende</source>
        <translation>Archives entreprises</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
</context>
<context>
    <name>ArchiveInstallation</name>
    <message>
        <location filename="../../../archive/archiveinstallation.cpp" line="+8"/>
        <source>Archivio Installazioni</source>
        <translation>Archive installations</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
</context>
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Archive mesures</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Modules</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Chaines</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
</context>
<context>
    <name>ArchivePanel</name>
    <message>
        <location filename="../../../archive/archivepanel.cpp" line="+19"/>
        <source>Archivio Moduli</source>
        <translation>Archive modèles</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modulo</source>
        <translation>Nouveau module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Marca</source>
        <translation>Modifier marque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
</context>
<context>
    <name>DeletePanel</name>
    <message>
        <location filename="../../../archive/deletepanel.cpp" line="+28"/>
        <location line="+84"/>
        <source>Cancella Modulo / Modello</source>
        <translation>Effacer module / modèle</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+77"/>
        <source>Cancella Modello</source>
        <translation>Effacer modèle</translation>
    </message>
    <message>
        <location line="-75"/>
        <location line="+81"/>
        <source>Cancella Marca</source>
        <translation>Effacer marque</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Nombre de modèles : </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Cancella Modulo...</source>
        <translation>Effacement module...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Modifier marque</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+32"/>
        <location line="+21"/>
        <location line="+18"/>
        <location line="+13"/>
        <location line="+9"/>
        <source>&lt;Nuova Marca&gt;</source>
        <translation>&lt;Nouvelle marque&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Marque du module</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Nouvelle marque ajoutée</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Mise à jour effectuée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Erreur de sauvegarde.</translation>
    </message>
</context>
<context>
    <name>EditCompany</name>
    <message>
        <location filename="../../../archive/editcompany.cpp" line="+13"/>
        <location line="+73"/>
        <location line="+3"/>
        <source>Modifica Azienda</source>
        <translation>Modifier entreprise</translation>
    </message>
    <message>
        <location line="-75"/>
        <source>Cognome
Denominazione</source>
        <translation>Nom
Raison sociale</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Code fiscal</translation>
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
        <translation>Ville</translation>
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
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tél.</translation>
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
        <translation>Nom / Raison sociale</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Code fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Doit être de </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caractères</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Doit être d&apos;au moins 5 caractères</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installation ajoutée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> è già presente.</source>
        <translation> est déjà présente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+3"/>
        <source>Aggiornamento Azienda</source>
        <translation>Mise à jour entreprise</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Échec de la mise à jour.</translation>
    </message>
</context>
<context>
    <name>EditInstallation</name>
    <message>
        <location filename="../../../archive/editinstallation.cpp" line="+9"/>
        <location line="+60"/>
        <location line="+3"/>
        <source>Modifica Installazione</source>
        <translation>Modifier installation</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Id installation</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ville</translation>
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
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Nb. de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Puissance nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Nombre de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Puissance nominale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Nombre non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Modulo</source>
        <translation>Mesures module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Mesures chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misura inserita</source>
        <translation>Mesure insérée</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Già presente.</source>
        <translation>Déjà présente.</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Misure inserita</source>
        <translation>Mesures insérée</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>Aggiornameno Installazione</source>
        <translation>Mise à jour installation</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Échec de la mise à jour.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+22"/>
        <location line="+177"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+90"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+30"/>
        <location line="+139"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifier modèle du module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modèle du module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modèle vide.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+32"/>
        <source>Ricerca Modulo</source>
        <translation>Recherche module</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+228"/>
        <source>Modello trovato : </source>
        <translation>Modèles trouvés : </translation>
    </message>
    <message>
        <location line="-226"/>
        <source>Cerca</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima</source>
        <translation>Pmax minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp maximale</translation>
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
        <translation>Pmax ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax minimale est supérieure à Pmax maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp minimale est supérieure à Vmpp maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp minimale est supérieure à Impp maximale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax maximale est inférieure à Pmax minimale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp maximale est inférieure à Vmpp minimale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp maximale est inférieure à Impp minimale.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Recherche module...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Annuler...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Aucun résultat trouvé.</translation>
    </message>
</context>
<context>
    <name>InsertCompany</name>
    <message>
        <location filename="../../../archive/insertcompany.cpp" line="+11"/>
        <location line="+49"/>
        <location line="+3"/>
        <source>Nuova Azienda</source>
        <translation>Nouvelle entreprise</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Cognome
Denominazione</source>
        <translation>Nom
Raison sociale</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Code fiscal</translation>
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
        <translation>Ville</translation>
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
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tél.</translation>
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
        <translation>Nom / Raison sociale</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Code fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Doit être de </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>caractères</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Doit être d&apos;au moins 5 caractères</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Installation ajoutée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> già presente.</source>
        <translation> déjà présente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Azienda</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome dell&apos;azienda già presente.</source>
        <translation>Nom de l&apos;entreprise déjà présent.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Azienda Salvata.</source>
        <translation>Entreprise enregistrée.</translation>
    </message>
</context>
<context>
    <name>InsertInstallation</name>
    <message>
        <location filename="../../../archive/insertinstallation.cpp" line="+9"/>
        <location line="+47"/>
        <location line="+3"/>
        <source>Inserimento Installazione</source>
        <translation>Nouvelle installation</translation>
    </message>
    <message>
        <location line="-49"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Id installation</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ville</translation>
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
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Nb. de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Puissance nom.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Nombre de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Puissance nominale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Nombre non valide.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Moduli</source>
        <translation>Mesures modules</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Mesures chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Misura inserita</source>
        <translation>Mesure insérée</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Già presente.</source>
        <translation>Déjà présente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> già presente.</source>
        <translation> déjà présente.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installazione</source>
        <translation>Installation</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nome dell&apos;installazione già presente.</source>
        <translation>Nom de l&apos;installation déjà présent.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Installazione Salvata.</source>
        <translation>Installation enregistrée.</translation>
    </message>
</context>
<context>
    <name>ListCompany</name>
    <message>
        <location filename="../../../archive/listcompany.cpp" line="+8"/>
        <source>Lista Aziende</source>
        <translation>Liste entreprises</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cogn./Denom.</source>
        <translation>Nom/Raison</translation>
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
        <translation>Liste installations</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ville</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Liste mesures modules</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Liste mesures chaines</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Effacer mesure module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Effacer mesure chaine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Liste des modules</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modèle</translation>
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
        <translation>Nouveau module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+57"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifier modèle du module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modèle du module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Modèle vide.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Mise à jour module</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Erreur de sauvegarde.</translation>
    </message>
</context>
<context>
    <name>SelectCompany</name>
    <message>
        <location filename="../../../archive/selectcompany.cpp" line="+22"/>
        <source>Agg. Installazione</source>
        <translation>Ajout. installation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazioni ad Azienda</source>
        <translation>Ajouter des installations à l&apos;entreprise</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+114"/>
        <source>Cancella Azienda</source>
        <translation>Effacer entreprise</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Modifica</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Azienda</source>
        <translation>Sélection entreprise</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Cognome / Denominazione</source>
        <translation>Nom / Raison sociale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fis.</source>
        <translation>Code fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Città</source>
        <translation>Ville</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tél.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
</context>
<context>
    <name>SelectInstallation</name>
    <message>
        <location filename="../../../archive/selectinstallation.cpp" line="+23"/>
        <source>Agg.</source>
        <translation>Ajout.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazione</source>
        <translation>Ajouter installation</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+84"/>
        <location line="+1"/>
        <source>Cancella Installazione</source>
        <translation>Effacer installation</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>Modifica</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Installazione</source>
        <translation>Sélection installation</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Città</source>
        <translation>Ville</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Num. di stringhe</source>
        <translation>Nb. de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Puissance nominale</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
</context>
<context>
    <name>ViewCompany</name>
    <message>
        <location filename="../../../archive/viewcompany.cpp" line="+15"/>
        <source>Visualizza Azienda</source>
        <translation>Afficher entreprise</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cognome \ Denominazione</source>
        <translation>Nom \ Raison sociale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fisc.</source>
        <translation>Code fiscal</translation>
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
        <translation>Ville</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tél.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Visualizza</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
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
        <translation>Id installation</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ville</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>CP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Dép.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Rue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Num. di stringhe</source>
        <translation>Nb. de chaînes</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Potenza Nom.</source>
        <translation>Puissance nom.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misure Modulo</source>
        <translation>Mesures module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Mesures chaînes</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Visualizza Grafico</source>
        <translation>Afficher graphique</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Vuoto</source>
        <translation>Vide</translation>
    </message>
</context>
</TS>
