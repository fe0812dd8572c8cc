<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="en_US" sourcelanguage="it_IT">
<context>
    <name>DialogAmbiente</name>
    <message>
        <location filename="../../../measure/dialogambiente.cpp" line="+26"/>
        <source>Temp. Cell.</source>
        <translation>Cell Temp.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Misure Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temp. Mod.</source>
        <translation>PV Mod. Temp.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Auto</source>
        <translation>Auto Temp.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Manuale</source>
        <translation>Manual Temp.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Amb.</source>
        <translation>Amb. Temp.</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <location line="+40"/>
        <location line="+31"/>
        <location line="+15"/>
        <location line="+2"/>
        <source>Attivazione Collegamento.</source>
        <translation>Activating Link.</translation>
    </message>
    <message>
        <location line="-13"/>
        <location line="+4"/>
        <source>Attivazione Collegamento..</source>
        <translation>Activating Link..</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+38"/>
        <source>Collegamento Remoto...</source>
        <translation>Remote Link...</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Collegamento Remoto.</source>
        <translation>Remote Link.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Collegamento Remoto..</source>
        <translation>Remote Link..</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Unità Remota</source>
        <translation>Remote Unit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Not connected or absent.</translation>
    </message>
</context>
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+21"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Measured electrical data</translation>
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
        <translation>Module degradation</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>String degradation</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Years : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Degradation : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Apply</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>Do not apply</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Entered text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Module degradation : Years</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Module degradation : Degradation %</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Degrado Anni</source>
        <translation>Degradation years</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Invalid number : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Degradation percentage</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+31"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Save string measures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Save module measures</translation>
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
        <translation>Time</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Comment</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Save</translation>
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
        <translation>Entered text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Number of modules</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Number of modules : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Apply</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Entered text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Too long.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Invalid number : </translation>
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
        <translation>Activating Link..</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activating link...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Collegamento Remoto...</source>
        <translation>Remote Link...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Irradiazione</source>
        <translation>Radiation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irradiazione troppo bassa.</source>
        <translation>Radiation value too low.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Irradiazione troppo alta.</source>
        <translation>Radiation value too high.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Misura Modulo...</source>
        <translation>Module measure...</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Tensione Eccessiva.</source>
        <translation>Excessive voltage value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Excessive current value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Excessive power value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Excessive energy value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Reverse polarity.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Floating negative.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Voltage too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Current too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Wait for cooling...
Instrument overheated.
Wait before resuming the tests.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problem of wiring to the power device.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misura Fase 1</source>
        <translation>Measure Phase 1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura Fase 2</source>
        <translation>Measure Phase 2</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Unità Remota</source>
        <translation>Remote Unit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>Not connected or missing.</translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+36"/>
        <source>Batteria</source>
        <translation>Battery</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Low Battery.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Recharge the battery.</translation>
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
        <translation>Comparison</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Measured</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Calcolo</source>
        <translation>Calculation</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+5"/>
        <source>Misurato</source>
        <translation>Measured</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Attuale</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>OPC power</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>STC power</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>Misura Modulo...</source>
        <translation>Module measure...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Drawing the graph...</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Excessive voltage value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Excessive current value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Excessive power value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Excessive energy value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Reverse polarity.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Floating negative.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Voltage too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Current too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Wait for cooling...
Instrument overheated.
Wait before resuming the tests.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Power module restore done.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problem of wiring to the power device.</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Environment measures</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Remote unit connection</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activating link...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Remote Unit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Not connected or missing.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperature not detected.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Solar radiation value not detected.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Insufficient irradiance (&lt; </translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Highly variable solar radiation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>STC values are not available.
Repeat.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Outside temperature limit.</translation>
    </message>
    <message>
        <location line="+140"/>
        <source>Misura Salvata.</source>
        <translation>Saved measure.</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Misura</source>
        <translation>Measure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>The measure name already exists.</translation>
    </message>
</context>
<context>
    <name>ReferencePanel</name>
    <message>
        <location filename="../../../measure/refpanel.cpp" line="+82"/>
        <source>Modulo di Riferimento</source>
        <translation>Reference module</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Conferma</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica</source>
        <translation>Edit</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modello</source>
        <translation>New model</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Brand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Model</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Caratteristiche</source>
        <translation>Characteristics</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+25"/>
        <source>Vuoto</source>
        <translation>Empty</translation>
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
        <translation>Comparison</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Measured</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Attuale</source>
        <translation>Current</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Misurato</source>
        <translation>Measured</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>OPC power</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>STC power</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Misura Stringa...</source>
        <translation>String measure...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Drawing the graph...</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Excessive voltage value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Excessive current value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Excessive power value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Excessive energy value.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Reverse polarity.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Floating negative.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Voltage too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Current too low.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Wait for cooling...
Instrument overheated.
Wait before resuming the tests.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Power module restore done.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problem of wiring to the power device.</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Environment measures</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Remote unit connection</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activating link...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Remote Unit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>Not connected or missing.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Temperature not detected.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Solar radiation value not detected.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Insufficient irradiance (&lt; </translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Highly variable solar radiation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>STC values are not available.
Repeat.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Outside temperature limit.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>Misura Salvata.</source>
        <translation>Saved measure.</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Misura</source>
        <translation>Measure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>The measure name already exists.</translation>
    </message>
</context>
<context>
    <name>ViewMeasures</name>
    <message>
        <location filename="../../../measure/viewmeasures.cpp" line="+47"/>
        <source>Misure</source>
        <translation>Measured</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rs</source>
        <translation>Rs</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Environment</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+18"/>
        <source>Potenza</source>
        <translation>Power</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Potenza OPC</source>
        <translation>OPC power</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>STC power</translation>
    </message>
</context>
</TS>
