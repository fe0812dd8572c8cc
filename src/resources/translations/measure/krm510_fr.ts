<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>DialogAmbiente</name>
    <message>
        <location filename="../../../measure/dialogambiente.cpp" line="+26"/>
        <source>Temp. Cell.</source>
        <translation>Temp. Cellule</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Misure Ambiente</source>
        <translation>Mesures Environnement</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temp. Mod.</source>
        <translation>Temp. Mod.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Auto</source>
        <translation>Temp. Auto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Manuale</source>
        <translation>Temp. Manuelle</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Amb.</source>
        <translation>Temp. Amb.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Irr.</source>
        <translation>Irr.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+40"/>
        <location line="+31"/>
        <location line="+15"/>
        <location line="+2"/>
        <source>Attivazione Collegamento.</source>
        <translation>Activation Liaison.</translation>
    </message>
    <message>
        <location line="-13"/>
        <location line="+4"/>
        <source>Attivazione Collegamento..</source>
        <translation>Activation Liaison..</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+38"/>
        <source>Collegamento Remoto...</source>
        <translation>Liaison à distance...</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Collegamento Remoto.</source>
        <translation>Liaison à distance.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Collegamento Remoto..</source>
        <translation>Liaison à distance..</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Unità Remota</source>
        <translation>Unité à distance</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Non connectée ou absente.</translation>
    </message>
</context>
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+21"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Données électriques mesurées</translation>
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
        <location filename="../../../measure/dialogdegrado.cpp" line="+21"/>
        <source>Degrado Modulo</source>
        <translation>Dégradation module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Dégradation chaîne</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Années : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Dégradation : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>Ne pas appliquer</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Dégradation module : Années</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Dégradation module : Dégradation %</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Degrado Anni</source>
        <translation>Dégradation années</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Nombre non valable : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Dégradation pourcentage</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+31"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Sauvegarde mesures chaîne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Sauvegarde mesures module</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Nombre de modules</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Nombre de modules : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Nombre non valable : </translation>
    </message>
</context>
<context>
    <name>DialogRs</name>
    <message>
        <location filename="../../../measure/dialogrs.cpp" line="+49"/>
        <location line="+21"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>ohm</source>
        <translation>ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr.</source>
        <translation>Irr.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Reset</source>
        <translation>Réinit.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Attivazione Collegamento..</source>
        <translation>Activation Liaison..</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activation de la liaison...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Collegamento Remoto...</source>
        <translation>Liaison à distance...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Irradiazione</source>
        <translation>Irradiation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irradiazione troppo bassa.</source>
        <translation>Irradiation trop faible.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Irradiazione troppo alta.</source>
        <translation>Irradiation trop élevée.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Misura Modulo...</source>
        <translation>Mesure module...</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valeur tension exessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valeur de courant excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valeur de puissance excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valeur d&apos;énergie excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarité inversée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negatif flottant.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Courant trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendre le refroidissement...
Instrument surchauffé.
Attendre avant de reprendre les tests.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problème de connection à l&apos;appareil de puissance.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misura Fase 1</source>
        <translation>Mesure Phase 1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura Fase 2</source>
        <translation>Mesure Phase 2</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Unità Remota</source>
        <translation>Unité distante</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Non connectée ou absente.</translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+36"/>
        <source>Batteria</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Batterie faible.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Rechargez la batterie.</translation>
    </message>
</context>
<context>
    <name>DialogViewRs</name>
    <message>
        <location filename="../../../measure/dialogviewrs.cpp" line="+12"/>
        <location line="+3"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ohm</source>
        <translation>ohm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr. 1</source>
        <translation>Irr. 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irr. 2</source>
        <translation>Irr. 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PanelIV</name>
    <message>
        <location filename="../../../measure/panelIV.cpp" line="+70"/>
        <source>Panel IV</source>
        <translation>Panel IV</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Calcolo</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+5"/>
        <source>Misurato</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Attuale</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Puissance OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Puissance STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>Misura Modulo...</source>
        <translation>Mesure module...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Génération du graphique...</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valeur tension exessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valeur de courant excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valeur de puissance excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valeur d&apos;énergie excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarité inversée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negatif flottant.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Courant trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendre le refroidissement...
Instrument surchauffé.
Attendre avant de reprendre les tests.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Restauration du module de puissance.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problème de connection à l&apos;appareil de puissance.</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Acquisition mesures ambiantes</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Connexion unité distante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activation de la liaison...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unité distante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Non connectée ou absente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Mesures ambiantes</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Température non détectée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Valeur de radiation solaire non détecté.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Ensoleillement insuffisant (&lt; </translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Fort variation du valeur d&apos;ensoleillement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valeurs STC pas disponibles.
Repeter le test.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Température hors limite.</translation>
    </message>
    <message>
        <location line="+140"/>
        <source>Misura Salvata.</source>
        <translation>Mesure sauvegardée.</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Misura</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Ce nom de mesure déjà present.</translation>
    </message>
</context>
<context>
    <name>ReferencePanel</name>
    <message>
        <location filename="../../../measure/refpanel.cpp" line="+82"/>
        <source>Modulo di Riferimento</source>
        <translation>Module de référence</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Conferma</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modello</source>
        <translation>Nouveau modèle</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Caratteristiche</source>
        <translation>Caractéristiques</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+25"/>
        <source>Vuoto</source>
        <translation>Vide</translation>
    </message>
</context>
<context>
    <name>StringIV</name>
    <message>
        <location filename="../../../measure/stringIV.cpp" line="+69"/>
        <source>String IV</source>
        <translation>String IV</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Attuale</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Misurato</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringa</source>
        <translation>Chaine</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Puissance OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Puissance STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Misura Stringa...</source>
        <translation>Mesure chaine...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Génération du graphique...</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valeur tension exessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valeur de courant excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valeur de puissance excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valeur d&apos;énergie excessive.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarité inversée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negatif flottant.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Courant trop fiable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendre le refroidissement...
Instrument surchauffé.
Attendre avant de reprendre les tests.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Restauration du module de puissance.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problème de connection à l&apos;appareil de puissance.</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Acquisition mesures ambiantes</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Connexion unité distante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activation de la liaison...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unité distante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Non connectée ou absente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Mesures ambiantes</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Température non détectée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Valeur de radiation solaire non détecté.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Ensoleillement insuffisant (&lt; </translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Fort variation du valeur d&apos;ensoleillement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valeurs STC pas disponibles.
Repeter le test.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Température hors limite.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>Misura Salvata.</source>
        <translation>Mesure sauvegardée.</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Misura</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Ce nom de mesure déjà present.</translation>
    </message>
</context>
<context>
    <name>ViewMeasures</name>
    <message>
        <location filename="../../../measure/viewmeasures.cpp" line="+47"/>
        <source>Misure</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stringa</source>
        <translation>Chaine</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+18"/>
        <source>Potenza</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Potenza OPC</source>
        <translation>Puissance OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Puissance STC</translation>
    </message>
</context>
</TS>
