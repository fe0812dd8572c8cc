<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>DialogAmbiente</name>
    <message>
        <location filename="../../../measure/dialogambiente.cpp" line="+26"/>
        <source>Temp. Cell.</source>
        <translation>Temp. Célula</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Misure Ambiente</source>
        <translation>Medidas Ambiente</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temp. Mod.</source>
        <translation>Temp. Mód.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Auto</source>
        <translation>Temp. Auto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Temp. Manuale</source>
        <translation>Temp. Manual</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <location line="+40"/>
        <location line="+31"/>
        <location line="+15"/>
        <location line="+2"/>
        <source>Attivazione Collegamento.</source>
        <translation>Activación Conexión.</translation>
    </message>
    <message>
        <location line="-13"/>
        <location line="+4"/>
        <source>Attivazione Collegamento..</source>
        <translation>Activación Conexión..</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+38"/>
        <source>Collegamento Remoto...</source>
        <translation>Conexión Remota...</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Collegamento Remoto.</source>
        <translation>Conexión Remota.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Collegamento Remoto..</source>
        <translation>Conexión Remota..</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Unità Remota</source>
        <translation>Unidad Remota</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>No conectada o ausente.</translation>
    </message>
</context>
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+21"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Datos eléctricos medidos</translation>
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
        <translation>Degradación módulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Degradación string</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Años : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Degradación : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>No aplicar</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Degradación módulo : Años</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Degradación módulo : Degradación %</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Degrado Anni</source>
        <translation>Degradación años</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Número no válido : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Degradación porcentaje</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+31"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Guardar medidas string</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Guardar medidas módulo</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Hora</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Número de módulos</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Número de módulos : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Texto introducido</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Demasiado largo.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Número no válido : </translation>
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
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Attivazione Collegamento..</source>
        <translation>Activación Conexión..</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activando conexión...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Collegamento Remoto...</source>
        <translation>Conexión Remota...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Irradiazione</source>
        <translation>Irradiación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irradiazione troppo bassa.</source>
        <translation>Irradiación demasiado baja.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Irradiazione troppo alta.</source>
        <translation>Irradiación demasiado alta.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Misura Modulo...</source>
        <translation>Medida módulo...</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valor de tensión excesivo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valor excesivo de corriente.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valor excesivo de potencia.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valor excesivo de energía.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polaridad invertida.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo flotante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corriente demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Esperar el enfriamiento...
Instrumento sobrecalentado.
Esperar antes de reanudar las pruebas.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema de conexión con el módulo de Potencia.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misura Fase 1</source>
        <translation>Medida Fase 1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura Fase 2</source>
        <translation>Medida Fase 2</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Unità Remota</source>
        <translation>Unidad remota</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non connessa o assente.</source>
        <translation>No conectada o ausente.</translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+36"/>
        <source>Batteria</source>
        <translation>Batería</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Batería insuficiente.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Recargar batería.</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Calcolo</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+5"/>
        <source>Misurato</source>
        <translation>Medido</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Attuale</source>
        <translation>Actual</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modulo</source>
        <translation>Módulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Potencia OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potencia STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Potencia</translation>
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
        <translation>Medida módulo...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Generación del gráfico...</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valor de tensión excesivo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valor excesivo de corriente.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valor excesivo de potencia.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valor excesivo de energía.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polaridad invertida.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo flotante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corriente demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Esperar el enfriamiento...
Instrumento sobrecalentado.
Esperar antes de reanudar las pruebas.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Reanudada conexión al módulo de potencia.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema de conexión con el módulo de Potencia.</translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Adquisición medidas ambientales</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Conexión unidad remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activando conexión...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unidad remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>No conectada o ausente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Medidas ambientales</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Valor de temperatura no detectado.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Valor de irradiancia no detectado.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Irradiancia insuficiente (&lt; </translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Valor de la irradiancia inestable</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valores en STC no disponibles.
Repita et test.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatura fuera límite.</translation>
    </message>
    <message>
        <location line="+140"/>
        <source>Misura Salvata.</source>
        <translation>Medida guardada.</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Misura</source>
        <translation>Medida</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Este nombre de medida ya existe.</translation>
    </message>
</context>
<context>
    <name>ReferencePanel</name>
    <message>
        <location filename="../../../measure/refpanel.cpp" line="+82"/>
        <source>Modulo di Riferimento</source>
        <translation>Módulo de referencia</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Conferma</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modello</source>
        <translation>Nuevo modelo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Caratteristiche</source>
        <translation>Características</translation>
    </message>
    <message>
        <location line="+36"/>
        <location line="+25"/>
        <source>Vuoto</source>
        <translation>Vacío</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Confronto</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Attuale</source>
        <translation>Actual</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Misurato</source>
        <translation>Medido</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringa</source>
        <translation>String</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza OPC</source>
        <translation>Potencia OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potencia STC</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Potenza</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ambiente</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Misura Stringa...</source>
        <translation>Medida string...</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Generazione Grafico...</source>
        <translation>Generación del gráfico...</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Power Device</source>
        <translation>Power Device</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Tensione Eccessiva.</source>
        <translation>Valor de tensión excesivo.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente Eccessiva.</source>
        <translation>Valor excesivo de corriente.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Potenza Eccessiva.</source>
        <translation>Valor excesivo de potencia.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Energia Eccessiva.</source>
        <translation>Valor excesivo de energía.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Polarità Inversa.</source>
        <translation>Polaridad invertida.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Negativo Flottante.</source>
        <translation>Negativo flotante.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tensione troppo bassa.</source>
        <translation>Tension demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Corrente troppo bassa.</source>
        <translation>Corriente demasiado baja.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Attendere raffreddamento...
Strumento surriscaldato.
Attendere prima di riprendere i test.</source>
        <translation>Esperar el enfriamiento...
Instrumento sobrecalentado.
Esperar antes de reanudar las pruebas.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Eseguito ripristino modulo potenza.</source>
        <translation>Reanudada conexión al módulo de potencia.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Problema di connessione al Power Device.</source>
        <translation>Problema de conexión con el módulo de Potencia.</translation>
    </message>
    <message>
        <location line="+25"/>
        <location line="+49"/>
        <source>Acquisizione Misure Ambiente</source>
        <translation>Adquisición medidas ambientales</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Connessione Unità Remota</source>
        <translation>Conexión unidad remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Attivazione Collegamento...</source>
        <translation>Activando conexión...</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Unità Remota</source>
        <translation>Unidad remota</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Non connessa o assente.</source>
        <translation>No conectada o ausente.</translation>
    </message>
    <message>
        <location line="+11"/>
        <location line="+3"/>
        <source>Misure Ambiente</source>
        <translation>Medidas ambientales</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Temperatura non rilevata.</source>
        <translation>Valor de temperatura no detectado.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irradiazione non rilevata.</source>
        <translation>Valor de irradiancia no detectado.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Irraggiamento insufficiente (&lt; </source>
        <translation>Irradiancia insuficiente (&lt; </translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Delta Irraggiamento Elevato</source>
        <translation>Valor de la irradiancia inestable</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valori STC non disponibili.
Ripetere.</source>
        <translation>Valores en STC no disponibles.
Repita et test.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Temperatura fuori limite.</source>
        <translation>Temperatura fuera límite.</translation>
    </message>
    <message>
        <location line="+121"/>
        <source>Misura Salvata.</source>
        <translation>Medida guardada.</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Misura</source>
        <translation>Medida</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome della misura già presente.</source>
        <translation>Este nombre de medida ya existe.</translation>
    </message>
</context>
<context>
    <name>ViewMeasures</name>
    <message>
        <location filename="../../../measure/viewmeasures.cpp" line="+47"/>
        <source>Misure</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modulo</source>
        <translation>Módulo</translation>
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
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+18"/>
        <source>Potenza</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Potenza OPC</source>
        <translation>Potencia OPC</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Potenza STC</source>
        <translation>Potencia STC</translation>
    </message>
</context>
</TS>
