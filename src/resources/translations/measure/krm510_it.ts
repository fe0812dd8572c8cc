<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>DialogAmbiente</name>
    <message>
        <location filename="../../../measure/dialogambiente.cpp" line="+26"/>
        <source>Temp. Cell.</source>
        <translation>Temp.Cell.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Misure Ambiente</source>
        <translation>Misure Ambiente</translation>
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
        <translation>Temp. Manuale</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <location line="+40"/>
        <location line="+31"/>
        <location line="+15"/>
        <location line="+2"/>
        <source>Attivazione Collegamento.</source>
        <translation>Attivazione Collegamento.</translation>
    </message>
    <message>
        <location line="-13"/>
        <location line="+4"/>
        <source>Attivazione Collegamento..</source>
        <translation>Attivazione Collegamento..</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+38"/>
        <source>Collegamento Remoto...</source>
        <translation>Collegamento Remoto...</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Collegamento Remoto.</source>
        <translation>Collegamento Remoto.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Collegamento Remoto..</source>
        <translation>Collegamento Remoto..</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Unità Remota</source>
        <translation>Unità Remota</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Non connessa o assente.</translation>
    </message>
</context>
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
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+21"/>
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
        <location filename="../../../measure/dialogdegrado.cpp" line="+21"/>
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
        <location line="+10"/>
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
        <location filename="../../../measure/dialoginfo.cpp" line="+31"/>
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
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Attivazione Collegamento..</source>
        <translation>Attivazione Collegamento..</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Attivazione Collegamento...</source>
        <translation>Attivazione Collegamento...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Collegamento Remoto...</source>
        <translation>Collegamento Remoto...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Irradiazione</source>
        <translation>Irradiazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irradiazione troppo bassa.</source>
        <translation>Irradiazione troppo bassa.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Irradiazione troppo alta.</source>
        <translation>Irradiazione troppo alta.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Misura Modulo...</source>
        <translation>Misura Modulo...</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Tensione Eccessiva.</source>
        <translation>Tensione Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Corrente Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Potenza Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energia Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarità Inversa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo Flottante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tensione troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corrente troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema di connessione al Power Device.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misura Fase 1</source>
        <translation>Misura Fase 1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura Fase 2</source>
        <translation>Misura Fase 2</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Unità Remota</source>
        <translation>Unità Remota</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Non connessa o assente.</translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+36"/>
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
        <translation>Start</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Confronto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Misure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Calcolo</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+5"/>
        <source>Misurato</source>
        <translation>Misurato</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Attuale</source>
        <translation>Attuale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modulo</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Potenza OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potenza STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>Misura Modulo...</source>
        <translation>Misura Modulo...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Generazione Grafico...</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Tensione Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Corrente Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Potenza Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energia Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarità Inversa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo Flottante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tensione troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corrente troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Eseguito ripristino modulo potenza.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema di connessione al Power Device.</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Acquisizione Misure Ambiente</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Connessione Unità Remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Attivazione Collegamento...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unità Remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Non connessa o assente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Misure Ambiente</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperatura non rilevata.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Irradiazione non rilevata.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Irraggiamento insufficiente (&lt; </translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Delta Irraggiamento Elevato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valori STC non disponibili.
Ripetere.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatura fuori limite.</translation>
    </message>
    <message>
        <location line="+140"/>
        <source>Misura Salvata.</source>
        <translation>Misura Salvata.</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Misura</source>
        <translation>Misura</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Nome della misura già presente.</translation>
    </message>
</context>
<context>
    <name>ReferencePanel</name>
    <message>
        <location filename="../../../measure/refpanel.cpp" line="+82"/>
        <source>Modulo di Riferimento</source>
        <translation>Modulo di Riferimento</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Conferma</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modello</source>
        <translation>Nuovo Modello</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Caratteristiche</source>
        <translation>Caratteristiche</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+25"/>
        <source>Vuoto</source>
        <translation>Vuoto</translation>
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
        <translation>Start</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Confronto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Misure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Attuale</source>
        <translation>Attuale</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Misurato</source>
        <translation>Misurato</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringa</source>
        <translation>Stringa</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Potenza OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potenza STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Misura Stringa...</source>
        <translation>Misura Stringa...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Generazione Grafico...</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Tensione Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Corrente Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Potenza Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Energia Eccessiva.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polarità Inversa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo Flottante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tensione troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corrente troppo bassa.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Eseguito ripristino modulo potenza.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema di connessione al Power Device.</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Acquisizione Misure Ambiente</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Connessione Unità Remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Attivazione Collegamento...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unità Remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Non connessa o assente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Misure Ambiente</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperatura non rilevata.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Irradiazione non rilevata.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Irraggiamento insufficiente (&lt; </translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Delta Irraggiamento Elevato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valori STC non disponibili.
Ripetere.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatura fuori limite.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>Misura Salvata.</source>
        <translation>Misura Salvata.</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Misura</source>
        <translation>Misura</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Nome della misura già presente.</translation>
    </message>
</context>
<context>
    <name>ViewMeasures</name>
    <message>
        <location filename="../../../measure/viewmeasures.cpp" line="+47"/>
        <source>Misure</source>
        <translation>Misure</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modulo</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stringa</source>
        <translation>Stringa</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+18"/>
        <source>Potenza</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Potenza OPC</source>
        <translation>Potenza OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potenza STC</translation>
    </message>
</context>
</TS>
