<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>DialogCopyFrom</name>
    <message>
        <location filename="../../../usb/dialogcopyfrom.cpp" line="+10"/>
        <source>Copia Da...</source>
        <translation>Copier de...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la sorgente</source>
        <translation>Sélectionner la source</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copie base de données</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Annuler...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Déconnectez la clé USB avant de la retirer.</translation>
    </message>
</context>
<context>
    <name>DialogCopyTo</name>
    <message>
        <location filename="../../../usb/dialogcopyto.cpp" line="+8"/>
        <source>Copia In...</source>
        <translation>Copier vers...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la destinazione</source>
        <translation>Sélectionner la destination</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copie base de données</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Annuler...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Déconnectez la clé USB avant de la retirer.</translation>
    </message>
</context>
<context>
    <name>DialogFileUpg</name>
    <message>
        <location filename="../../../usb/dialogfileupg.cpp" line="+21"/>
        <location line="+1"/>
        <source>Elenco file UPG</source>
        <translation>Liste fichiers UPG</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezionare il file</source>
        <translation>Sélectionner le fichier</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Conferma</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
</context>
<context>
    <name>UsbDialog</name>
    <message>
        <location filename="../../../usb/usbdialog.cpp" line="+62"/>
        <source>Usb</source>
        <translation>Usb</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connetti</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnetti</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia In...</source>
        <translation>Copier vers...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia Da...</source>
        <translation>Copier de...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiornamento</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+11"/>
        <source>Usb Device</source>
        <translation>Périphérique Usb</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>E&apos; connesso</source>
        <translation>Il est connecté</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>E&apos; disconnesso</source>
        <translation>Il est déconnecté</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Inserisci Usb Device.</source>
        <translation>Insérez le périphérique Usb.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connessione...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Disconnessione...</source>
        <translation>Déconnexion...</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Aggiornamento KRM 510...</source>
        <translation>Mise à jour KRM 510...</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>KRM510 Aggiornamento</source>
        <translation>KRM510 Mise à jour</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Aggiornamento firmware non riuscito.</source>
        <translation>Échec de la mise à jour du firmware.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Riavviare KRM510</source>
        <translation>Redémarrer KRM510</translation>
    </message>
</context>
</TS>
