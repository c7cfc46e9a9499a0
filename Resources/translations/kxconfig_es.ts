<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>KXConfig</name>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Network &amp;interface:</source>
        <translation>&amp;Interfaz de red:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No interface is chosen</source>
        <translation>Ninguna interfaz elegida</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>UDP &amp;port:</source>
        <translation>&amp;Puerto UDP:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Discover</source>
        <translation>Buscar unidades</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Details…</source>
        <translation>Detalles…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Shows every check on the way to the units and back</source>
        <translation>Muestra cada comprobación en el camino a las unidades y de vuelta</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>U&amp;nit:</source>
        <translation>U&amp;nidad:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No units listed</source>
        <translation>No hay unidades en la lista</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Unit I&amp;D:</source>
        <translation>I&amp;dentificador:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/SentenceLabel.cpp"/>
        <source>Unit parameters</source>
        <translation>Parámetros de la unidad</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No unit is selected</source>
        <translation>Ninguna unidad seleccionada</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Edit parameter</source>
        <translation>Editar parámetro</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Select a parameter to edit it</source>
        <translation>Seleccione un parámetro para editarlo</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Option command:</source>
        <translation>&amp;Orden opcional:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>V  Version</source>
        <translation>V  Versión</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>-Z  Set clock</source>
        <translation>-Z  Poner en hora</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Command text:</source>
        <translation>Te&amp;xto de la orden:</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore Defaults</source>
        <translation>Restablecer valores de fábrica</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event Log</source>
        <translation>Registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event log text</source>
        <translation>Texto del registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Unit</source>
        <translation>&amp;Unidad</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Configure from File…</source>
        <translation>&amp;Configurar desde un archivo…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Save Event &amp;Log…</source>
        <translation>Guardar el &amp;registro…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Save Session…</source>
        <translation>Guardar la s&amp;esión…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Cu&amp;t</source>
        <translation>Co&amp;rtar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Pa&amp;ste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Copy &amp;Value</source>
        <translation>Copiar &amp;valor</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Copy All Pa&amp;rameters</source>
        <translation>Copiar todos los pará&amp;metros</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Find in Event Log…</source>
        <translation>&amp;Buscar en el registro de eventos…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Previous</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Discover</source>
        <translation>&amp;Buscar unidades</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Reload</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Send Option Command</source>
        <translation>&amp;Enviar orden opcional</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore De&amp;faults</source>
        <translation>Restablecer valores de &amp;fábrica</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Event Log</source>
        <translation>&amp;Registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>All &amp;Units</source>
        <translation>Todas las &amp;unidades</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;About KXConfig</source>
        <translation>Acerca &amp;de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>No configured interfaces</source>
        <translation>No hay interfaces configuradas</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>The pages of the help are not installed.</source>
        <translation>Las páginas de la ayuda no están instaladas.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>Help could not be opened in a web browser. To read it here, press Alt+Shift+F1.</source>
        <translation>No se pudo abrir la ayuda en un navegador web. Para leerla aquí, pulse Alt+Mayús+F1.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_DiscoveryLine.cpp"/>
        <source>Did not answer the latest Discover.</source>
        <translation>No respondió a la última búsqueda.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>KXConfig</source>
        <translation>KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>Authentication was not completed, some features may not be available.</source>
        <translation>No se completó la autenticación, es posible que algunas funciones no estén disponibles.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: 1 datagram.</source>
        <translation>La sesión se ha guardado: 1 datagrama.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: %d datagrams.</source>
        <translation>La sesión se ha guardado: %d datagramas.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Event Log</source>
        <translation>Guardar el registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The event log was saved.</source>
        <translation>El registro de eventos se ha guardado.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Session</source>
        <translation>Guardar la sesión</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Captures</source>
        <translation>Capturas</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>“%@” cannot be written: %@. Nothing is lost: save it in another place.</source>
        <translation>No se puede escribir en «%@»: %@. No se ha perdido nada: guárdelo en otro lugar.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Other values that no command brings back: %d.</source>
        <translation>Otros valores que ninguna orden restablece: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Table of Units</source>
        <translation>Elegir una tabla de unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Tables and plans</source>
        <translation>Tablas y planes</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Journal</source>
        <translation>Elegir un diario</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Journals</source>
        <translation>Diarios</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>No network interface can broadcast. It needs a link and an IPv4 address.</source>
        <translation>Ninguna interfaz de red puede difundir. Necesita un enlace y una dirección IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose the network interface on which the units are asked.</source>
        <translation>Elija la interfaz de red por la que se pregunta a las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>All of the UDP ports 3520 to 3523 are taken by other programs.</source>
        <translation>Todos los puertos UDP del 3520 al 3523 están ocupados por otros programas.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The UDP port cannot be opened: %@.</source>
        <translation>No se puede abrir el puerto UDP: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Nothing was sent.</source>
        <translation>No se envió nada.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The units are not as they were: this is the new plan. Nothing was sent.</source>
        <translation>Las unidades ya no están como antes: este es el plan nuevo. No se envió nada.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal cannot be written: %@. Nothing was sent.</source>
        <translation>No se puede escribir el diario: %@. No se envió nada.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal could not be written: %@.</source>
        <translation>No se pudo escribir el diario: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Look at the units that are half configured or have fallen silent.</source>
        <translation>Revise las unidades que están a medio configurar o han enmudecido.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Save Report</source>
        <translation>Guardar el informe</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Comma-separated values</source>
        <translation>Valores separados por comas</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>“%@” cannot be written: %@.</source>
        <translation>No se puede escribir en «%@»: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has a fault. Correct it, and choose the file again.</source>
        <translation>El archivo tiene un error. Corríjalo y elija de nuevo el archivo.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has %d faults. Correct them, and choose the file again.</source>
        <translation>El archivo tiene %d errores. Corríjalos y elija de nuevo el archivo.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping. The units under way are finished and read back.</source>
        <translation>Deteniendo. Las unidades empezadas se terminan y se comprueban.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units again.</source>
        <translation>Se pregunta de nuevo a las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Finding out who holds the new addresses.</source>
        <translation>Comprobando quién ocupa las direcciones nuevas.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Configuring the units.</source>
        <translation>Configurando las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping.</source>
        <translation>Deteniendo.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units. %d have answered.</source>
        <translation>Se pregunta a las unidades. Han respondido %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>The journal is “%@”.</source>
        <translation>El diario es «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply keeps a journal in the folder “%@”.</source>
        <translation>«Aplicar» lleva un diario en la carpeta «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing: lines of the table are wrong, whatever the units answer.</source>
        <translation>«Aplicar» no envía nada: hay líneas de la tabla que son erróneas, respondan lo que respondan las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing while lines are refused or without an answer, unless “Keep going” is ticked.</source>
        <translation>«Aplicar» no envía nada mientras haya líneas rechazadas o sin respuesta, salvo que esté marcado «Continuar».</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d, %@: %@</source>
        <translation>Línea %d, %@: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>%d of %d units</source>
        <translation>%d de %d unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/System Configuration/ConfigurationKeys.h"/>
        <source>not available</source>
        <translation>no disponible</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: inString is nil</source>
        <translation>HardwareAddressFormatter: inString es nil</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: object could not be allocated</source>
        <translation>HardwareAddressFormatter: no se pudo asignar el objeto</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddressFormatter: invalid Ethernet address</source>
        <translation>HardwareAddressFormatter: dirección Ethernet no válida</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddress: invalid Ethernet address</source>
        <translation>HardwareAddress: dirección Ethernet no válida</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>“%@” is no IPv4 address, such as 192.0.2.41.</source>
        <translation>«%@» no es una dirección IPv4 como 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>Somebody holds %@.</source>
        <translation>%@ está ocupada.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether somebody holds %@ could not be found out.</source>
        <translation>No se pudo averiguar si %@ está ocupada.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>An option lacks its value, or a flag has one. See kxctl --help.</source>
        <translation>A una opción le falta su valor, o un indicador tiene uno. Véase kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>The command line cannot be read: %@.</source>
        <translation>No se puede leer la línea de órdenes: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>These are six words. Write the serial number without blanks, 4B5800000001, or in quotation marks.</source>
        <translation>Son seis palabras. Escriba el número de serie sin espacios, 4B5800000001, o entre comillas.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ needs more words: %@.</source>
        <translation>kxctl %@ necesita más palabras: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ does not take the word “%@”.</source>
        <translation>kxctl %@ no admite la palabra «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--json and --csv cannot stand together.</source>
        <translation>--json y --csv no pueden ir juntos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--port takes auto, 3520, 3521, 3522 or 3523, not “%@”.</source>
        <translation>--port admite auto, 3520, 3521, 3522 o 3523, no «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. Did you mean “%@”?</source>
        <translation>No existe la orden «%@». ¿Quería decir «%@»?</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. See kxctl --help.</source>
        <translation>No existe la orden «%@». Véase kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no option “%@” here. See kxctl --help.</source>
        <translation>Aquí no existe la opción «%@». Véase kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>A command is missing. See kxctl --help.</source>
        <translation>Falta una orden. Véase kxctl --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes a whole number from 1 on, not “%@”.</source>
        <translation>%@ admite un número entero desde 1, no «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes seconds, such as 2 or 0.5, not “%@”.</source>
        <translation>%@ admite segundos, como 2 o 0.5, no «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>Standard output cannot be written: %@.</source>
        <translation>No se puede escribir en la salida estándar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>The capture is not whole, because it could not be written.</source>
        <translation>La captura no está completa, porque no se pudo escribir.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>Several network interfaces can broadcast. Choose one with -i: %@.</source>
        <translation>Varias interfaces de red pueden difundir. Elija una con -i: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>%@ cannot broadcast. It needs a link and an IPv4 address.</source>
        <translation>%@ no puede difundir. Necesita un enlace y una dirección IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>There is no network interface “%@”. There are: %@.</source>
        <translation>No existe la interfaz de red «%@». Existen: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>“%@” may mean: %@.</source>
        <translation>«%@» puede significar: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by another program.</source>
        <translation>El puerto UDP %d está ocupado por otro programa.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is this host&apos;s own address.</source>
        <translation>%@ es la dirección de este mismo equipo.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is the address of a whole network.</source>
        <translation>%@ es la dirección de una red entera.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ lies in no network of the interface.</source>
        <translation>%@ no está en ninguna red de la interfaz.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Interrupted.</source>
        <translation>Interrumpido.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not answer.</source>
        <translation>La unidad %@ no responde.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units answer as %@: %@.</source>
        <translation>Varias unidades responden como %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the address of the unit %@.</source>
        <translation>Otra unidad tiene la dirección de la unidad %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>“%@” names no unit. Write a serial number of six pairs of digits, such as 4B5800000001, or id:TEXT.</source>
        <translation>«%@» no designa ninguna unidad. Escriba un número de serie de seis pares de dígitos, como 4B5800000001, o id:TEXT.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered.</source>
        <translation>Ninguna unidad ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the serial number %@: %@.</source>
        <translation>Otra unidad tiene el número de serie %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ tells an address of many as its own: %@.</source>
        <translation>La unidad %@ da como suya una dirección colectiva: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CompareCommand.cpp"/>
        <source>Nothing differs from “%@”: %d the same.</source>
        <translation>Nada difiere de «%@»: %d iguales.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>“%@” names no unit and is no IPv4 address. Write a serial number such as 4B5800000001, id:TEXT, or 192.0.2.41.</source>
        <translation>«%@» no designa ninguna unidad ni es una dirección IPv4. Escriba un número de serie como 4B5800000001, id:TEXT o 192.0.2.41.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d requests in that time follow each other too closely. They need 0.01 seconds each.</source>
        <translation>%d consultas se siguen demasiado de cerca en ese tiempo. Cada una necesita 0,01 segundos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units have the address %@: %@.</source>
        <translation>Varias unidades tienen la dirección %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>Several units have the serial number %@: %@.</source>
        <translation>Varias unidades tienen el número de serie %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system had no room for %d datagrams. Units may be missing.</source>
        <translation>El sistema no tuvo sitio para %d datagramas. Pueden faltar unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>“%@” stays as it is, because no unit has answered.</source>
        <translation>«%@» queda como está, porque ninguna unidad ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d of %d units have answered.</source>
        <translation>Han respondido %d de %d unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/InterfacesCommand.cpp"/>
        <source>The system tells no network interfaces.</source>
        <translation>El sistema no indica ninguna interfaz de red.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>“%@” is the journal of a run that has ended. Name another file.</source>
        <translation>«%@» es el diario de una ejecución terminada. Indique otro archivo.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write a text or --clock, not both.</source>
        <translation>Escriba un texto o --clock, no ambos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write the text of the option command, or --clock.</source>
        <translation>Escriba el texto de la orden de opción, o --clock.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>“%@” has other characters than ASCII.</source>
        <translation>«%@» contiene otros caracteres que ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>The unit %@ has not answered the option command.</source>
        <translation>La unidad %@ no ha respondido a la orden de opción.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <source>Other lines that are not done: %d.</source>
        <translation>Otras líneas sin realizar: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit. --everyone restores all that hear the command.</source>
        <translation>Nombre una unidad. --everyone restaura todas las que oigan la orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit, or write --everyone, not both.</source>
        <translation>Nombre una unidad o escriba --everyone, no ambos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nobody can be asked here. Write --yes if this is meant.</source>
        <translation>Aquí no se puede preguntar a nadie. Escriba --yes si es lo que se quiere.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Nothing was restored.</source>
        <translation>No se ha restaurado nada.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Restore the factory settings of the unit %@? (y/n)</source>
        <translation>¿Restaurar los ajustes de fábrica de la unidad %@? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>%d units answer. Others that hear the command are restored too.</source>
        <translation>Responden %d unidades. Otras que oigan la orden se restaurarán también.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Type the number of units to restore the factory settings of all:</source>
        <translation>Escriba el número de unidades para restaurar los ajustes de fábrica de todas:</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has not answered since the command.</source>
        <translation>La unidad %@ no ha respondido desde la orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>The unit %@ shows the old values and has not acknowledged the command.</source>
        <translation>La unidad %@ muestra los valores antiguos y no ha confirmado la orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. %@</source>
        <translation>«%@» se rechaza. %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. It has %d faults, the first one: %@</source>
        <translation>«%@» se rechaza. Tiene %d errores, el primero: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is damaged.</source>
        <translation>«%@» está dañado.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” is no saved discovery. “kxctl discover --save FILE” writes one.</source>
        <translation>«%@» no es una búsqueda guardada. «kxctl discover --save FILE» escribe una.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” has the format of another version of kxctl.</source>
        <translation>«%@» tiene el formato de otra versión de kxctl.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” tells of a discovery that could not ask anybody.</source>
        <translation>«%@» contiene una búsqueda que no pudo preguntar a nadie.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/TableFileText.cpp"/>
        <source>“%@” cannot be read: %@.</source>
        <translation>No se puede leer «%@»: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because datagrams were dropped.</source>
        <translation>Unidades de «%@» que no han respondido: %d. No se dan por ausentes, porque se descartaron datagramas.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because the discovery was not complete.</source>
        <translation>Unidades de «%@» que no han respondido: %d. No se dan por ausentes, porque la búsqueda no fue completa.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because they could not be asked at their last addresses.</source>
        <translation>Unidades de «%@» que no han respondido: %d. No se dan por ausentes, porque no se les pudo preguntar en su última dirección.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units that are not in “%@”: %d. They are not called missing, because that discovery was not complete.</source>
        <translation>Unidades que no están en «%@»: %d. No se dan por ausentes, porque esa búsqueda no fue completa.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The discovery in “%@” was not complete, so a unit that is called new may have been there.</source>
        <translation>La búsqueda de «%@» no fue completa, así que una unidad dada por nueva pudo estar ya.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The units differ from “%@”: %d new, %d missing, %d changed, %d the same.</source>
        <translation>Las unidades difieren de «%@»: %d nuevas, %d ausentes, %d cambiadas, %d iguales.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it reaches many hosts.</source>
        <translation>Ninguna unidad puede tenerla: llega a muchos equipos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is refused without --loose. The window says of its value: %@</source>
        <translation>%@ se rechaza sin --loose. La ventana dice de su valor: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>“%@” is not NAME=VALUE with the name of a parameter. See kxctl set --help.</source>
        <translation>«%@» no es NOMBRE=VALOR con el nombre de un parámetro. Véase kxctl set --help.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ has no value.</source>
        <translation>%@ no tiene valor.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ is not a text in UTF-8.</source>
        <translation>El valor de %@ no es un texto en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ does not fit into a command.</source>
        <translation>El valor de %@ no cabe en una orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is there twice.</source>
        <translation>%@ está dos veces.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>kxctl needs no question when root runs it.</source>
        <translation>Si lo ejecuta root, kxctl no necesita preguntar.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows %@, but %@ answers ARP requests for it.</source>
        <translation>La unidad %@ muestra %@, pero %@ responde a las peticiones ARP para ella.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>Whether the unit itself answers ARP requests for %@ could not be found out.</source>
        <translation>No se ha podido averiguar si la propia unidad responde a las peticiones ARP para %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit shows %@ but does not answer ARP requests for it.</source>
        <translation>La unidad muestra %@, pero no responde a las peticiones ARP para ella.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by %@.</source>
        <translation>%@ está ocupada por %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has taken some of the values and not others.</source>
        <translation>La unidad %@ ha aceptado algunos de los valores y otros no.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows the old value.</source>
        <translation>La unidad %@ muestra el valor antiguo.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The unit %@ shows another value.</source>
        <translation>La unidad %@ muestra otro valor.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another unit answers with the same serial number.</source>
        <translation>Otra unidad responde con el mismo número de serie.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all.</source>
        <translation>Nombre unidades o escriba --all.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all, not both.</source>
        <translation>Nombre unidades o escriba --all, no ambos.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>%@ takes a number up to %d.</source>
        <translation>%@ admite un número hasta %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Change %d units, %d parameters in all? (y/n)</source>
        <translation>¿Cambiar %d unidades, %d parámetros en total? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nothing was changed.</source>
        <translation>No se ha cambiado nada.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>--every takes 0.1 seconds or more: every unit answers each time.</source>
        <translation>--every admite 0.1 segundos como mínimo: cada unidad responde cada vez.</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>%d of %d units are there.</source>
        <translation>Están %d de %d unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>A check of Details, not in the event log</source>
        <translation>Una comprobación de Detalles que no está en el registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>Configure from File, not in the event log</source>
        <translation>Configurar desde un archivo; no está en el registro de eventos</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ARPTool.cpp"/>
        <source>The ARP tool gets no text that begins with “-”.</source>
        <translation>La herramienta ARP no recibe ningún texto que empiece por «-».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Ethernet</source>
        <translation>Ethernet</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bridge</source>
        <translation>Puente</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>VLAN</source>
        <translation>VLAN</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bond</source>
        <translation>Agregación</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>PPP</source>
        <translation>PPP</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <location filename="../../Sources/platform/linux/PolkitCheck.cpp"/>
        <source>Waiting for administrator rights.</source>
        <translation>Esperando derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <source>Waiting for the tool that has administrator rights.</source>
        <translation>Esperando a la herramienta que tiene derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>About KXConfig</source>
        <translation>Acerca de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>KXConfig %@</source>
        <translation>KXConfig %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Finds and configures small networked units over UDP.</source>
        <translation>Busca y configura pequeñas unidades en red mediante UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Qt %@</source>
        <translation>Qt %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Ascending</source>
        <translation>Orden &amp;ascendente</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Descending</source>
        <translation>Orden &amp;descendente</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Left</source>
        <translation>Columna a la &amp;izquierda</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Right</source>
        <translation>Columna a la de&amp;recha</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>All Units</source>
        <translation>Todas las unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Any part of a shown value</source>
        <translation>Cualquier parte de un valor mostrado</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Show in Main Window</source>
        <translation>&amp;Mostrar en la ventana principal</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit has answered yet. Press Discover in the main window.</source>
        <translation>Aún no ha respondido ninguna unidad. Pulse «Buscar unidades» en la ventana principal.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit contains the text of the filter.</source>
        <translation>Ninguna unidad contiene el texto del filtro.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit, %d shown</source>
        <translation>1 unidad, %d mostrada</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units, %d shown</source>
        <translation>%d unidades, %d mostradas</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit</source>
        <translation>1 unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units</source>
        <translation>%d unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>More have answered; those that were heard last are listed.</source>
        <translation>Han respondido más; en la lista están las últimas que se oyeron.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Export Units</source>
        <translation>Exportar unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit is written to “%@”.</source>
        <translation>Se ha escrito 1 unidad en «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units are written to “%@”.</source>
        <translation>Se han escrito %d unidades en «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AnnouncedLabel.cpp"/>
        <source>Attention:</source>
        <translation>Atención:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Ask Again</source>
        <translation>Preguntar de nuevo</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Why no unit answers</source>
        <translation>Por qué no responde ninguna unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Checks</source>
        <translation>Comprobaciones</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Check</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What was seen</source>
        <translation>Qué se vio</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What to do</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Asking. This takes a second, or three where nobody answers for an address.</source>
        <translation>Preguntando. Tarda un segundo, o tres si nadie responde por una dirección.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Units answer, and no check fails.</source>
        <translation>Las unidades responden y ninguna comprobación falla.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>No cause was found.</source>
        <translation>No se encontró ninguna causa.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the beginning</source>
        <translation>Desde el principio</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the end</source>
        <translation>Desde el final</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches or more</source>
        <translation>%d coincidencias o más</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>1 match</source>
        <translation>1 coincidencia</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches</source>
        <translation>%d coincidencias</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Keep going past lines that are refused or that fail</source>
        <translation>&amp;Continuar aunque haya líneas rechazadas o que fallen</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Configure from File</source>
        <translation>Configurar desde un archivo</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;File…</source>
        <translation>Elegir &amp;archivo…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;Journal…</source>
        <translation>Elegir &amp;diario…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes the run of a journal back.</source>
        <translation>Hace el plan que deshace la ejecución de un diario.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>None chosen</source>
        <translation>Ninguna elegida</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Re&amp;vert</source>
        <translation>&amp;Revertir</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes this run back. Apply then carries it out.</source>
        <translation>Hace el plan que deshace esta ejecución. «Aplicar» lo lleva a cabo después.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Save &amp;Report…</source>
        <translation>Guardar &amp;informe…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Reads a table of units or a kept plan, and asks the units.</source>
        <translation>Lee una tabla de unidades o un plan guardado y pregunta a las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asks the units again, and makes the plan anew.</source>
        <translation>Pregunta de nuevo a las unidades y rehace el plan.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the units show what the plan wants.</source>
        <translation>Da a las unidades los valores que pide el plan.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Finishes the units under way, and begins no other.</source>
        <translation>Termina las unidades empezadas y no empieza ninguna otra.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Writes the table with what became of each line.</source>
        <translation>Escribe la tabla con lo que ha sido de cada línea.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Opens the help.</source>
        <translation>Abre la ayuda.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Closes the window.</source>
        <translation>Cierra la ventana.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose a table of units: comma-separated values with a column “serial” and one for each parameter that is to change.</source>
        <translation>Elija una tabla de unidades: valores separados por comas con una columna «serial» y una por cada parámetro que debe cambiar.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units of the file were not asked.</source>
        <translation>No se preguntó a las unidades del archivo.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asking the units.</source>
        <translation>Se pregunta a las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The file names no unit.</source>
        <translation>El archivo no nombra ninguna unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Units are being configured. Stop?</source>
        <translation>Se están configurando unidades. ¿Detener?</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units under way are finished and read back. The others stay as they are.</source>
        <translation>Las unidades empezadas se terminan y se comprueban. Las demás quedan como están.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Go On</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Help text</source>
        <translation>Texto de ayuda</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Find in this page</source>
        <translation>Buscar en esta página</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Finds the units on the chosen interface.</source>
        <translation>Encuentra las unidades de la interfaz elegida.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the value in the edit row to the unit.</source>
        <translation>Envía a la unidad el valor de la fila de edición.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the command text to the unit.</source>
        <translation>Envía a la unidad el texto de la orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Shows or hides the event log.</source>
        <translation>Muestra u oculta el registro de eventos.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Return ends the typing. To apply it, press %@.</source>
        <translation>La tecla Intro termina la escritura. Para aplicar, pulse %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtHelpServices.cpp"/>
        <source>KXConfig Help</source>
        <translation>Ayuda de KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtOpenPanel.cpp"/>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host has no IPv4 address that can be reached.</source>
        <translation>El equipo no tiene ninguna dirección IPv4 accesible.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host name could not be resolved.</source>
        <translation>No se pudo resolver el nombre del equipo.</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The operation could not be completed (%@ error %d).</source>
        <translation>No se pudo completar la operación (%@, error %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work</source>
        <translation>trabajo</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home</source>
        <translation>casa</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>mobile</source>
        <translation>móvil</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>main</source>
        <translation>principal</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home fax</source>
        <translation>casa (fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work fax</source>
        <translation>trabajo (fax)</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>pager</source>
        <translation>buscapersonas</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>other</source>
        <translation>otro</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>vacation</source>
        <translation>vacaciones</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address</source>
        <translation>Dirección IP de destino</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address %@</source>
        <translation>dirección IP de destino %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address</source>
        <translation>Dirección MAC de destino</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address %@</source>
        <translation>dirección MAC de destino %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination Port number</source>
        <translation>Puerto de destino</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination port %@</source>
        <translation>puerto de destino %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device Port number</source>
        <translation>Puerto de la unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device port %@</source>
        <translation>puerto de la unidad %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address</source>
        <translation>Dirección IP interna</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address %@</source>
        <translation>dirección IP interna %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address</source>
        <translation>Dirección MAC interna</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address %@</source>
        <translation>dirección MAC interna %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number %@</source>
        <translation>número de serie %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID</source>
        <translation>Identificador de unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID %@</source>
        <translation>identificador de unidad %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ carries datagrams.</source>
        <translation>La interfaz %@ transmite datagramas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ cannot broadcast.</source>
        <translation>La interfaz %@ no puede difundir.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There is none.</source>
        <translation>No hay ninguna.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers are expected on UDP port %d.</source>
        <translation>Se esperan respuestas en el puerto UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>The UDP listener is not running.</source>
        <translation>La escucha UDP no está activa.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The request left.</source>
        <translation>La solicitud salió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes lead to the units by this interface.</source>
        <translation>Las rutas llevan a las unidades por esta interfaz.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes to a part of the network lead elsewhere.</source>
        <translation>Las rutas a una parte de la red llevan a otro sitio.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer hears its own broadcast on UDP port %d.</source>
        <translation>El equipo oye su propia difusión en el puerto UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer does not hear its own broadcast on UDP port %d. Datagrams that were taken away meanwhile: %d.</source>
        <translation>El equipo no oye su propia difusión en el puerto UDP %d. Datagramas retirados entretanto: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is off.</source>
        <translation>El filtro está desactivado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is on. Datagrams that it took away meanwhile: %d.</source>
        <translation>El filtro está activado. Datagramas que retiró entretanto: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered: %d.</source>
        <translation>Unidades que respondieron: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answer now: %d.</source>
        <translation>Unidades que responden ahora: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers that are not understood: %d. Other datagrams: %d.</source>
        <translation>Respuestas no entendidas: %d. Otros datagramas: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ answers.</source>
        <translation>%@ responde.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ does not answer.</source>
        <translation>%@ no responde.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>IPv4 address</source>
        <translation>Dirección IPv4</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>UDP port</source>
        <translation>Puerto UDP</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Request</source>
        <translation>Solicitud</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Routes</source>
        <translation>Rutas</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Own broadcast</source>
        <translation>Difusión propia</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers</source>
        <translation>Respuestas</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Strange answers</source>
        <translation>Respuestas extrañas</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped datagrams</source>
        <translation>Datagramas descartados</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers on other ports</source>
        <translation>Respuestas en otros puertos</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units of other networks</source>
        <translation>Unidades de otras redes</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Reverse path filter</source>
        <translation>Filtro de camino inverso</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Doubled addresses</source>
        <translation>Direcciones duplicadas</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fixed ARP entries</source>
        <translation>Entradas ARP fijas</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The unit itself</source>
        <translation>La propia unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fine</source>
        <translation>Bien</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Odd</source>
        <translation>Llamativo</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fails</source>
        <translation>Falla</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Not known</source>
        <translation>No se sabe</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>It was not asked.</source>
        <translation>No se ha preguntado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped before they were read: %d.</source>
        <translation>Descartados antes de leerse: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered there: %d.</source>
        <translation>Unidades que respondieron allí: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>None answered.</source>
        <translation>Ninguna respondió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There are none.</source>
        <translation>No las hay.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Entries that name another hardware address: %d.</source>
        <translation>Entradas con otra dirección de hardware: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>This computer has no network interface that reaches units.</source>
        <translation>Este equipo no tiene ninguna interfaz de red que alcance unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no link.</source>
        <translation>La interfaz %@ no tiene enlace.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by %@ (process %d).</source>
        <translation>El puerto UDP %d está ocupado por %@ (proceso %d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by a program of the user %@.</source>
        <translation>El puerto UDP %d está ocupado por un programa del usuario %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to %@.</source>
        <translation>Ninguna ruta de este equipo lleva a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to the units behind the interface %@.</source>
        <translation>Ninguna ruta de este equipo lleva a las unidades detrás de la interfaz %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ answers to UDP port %d, and not to the one that asks.</source>
        <translation>La unidad %@ responde al puerto UDP %d y no al que pregunta.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Units answer from another network than that of the interface %@.</source>
        <translation>Responden unidades de otra red que la de la interfaz %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ takes no request to %@, so its network is another one.</source>
        <translation>La unidad %@ no acepta solicitudes a %@, así que su red es otra.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ is at %@, which is not in the network of the interface %@.</source>
        <translation>La unidad %@ está en %@, que no pertenece a la red de la interfaz %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Another host than the unit answers for %@: %@.</source>
        <translation>Otro equipo que la unidad responde por %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, but the unit there is %@.</source>
        <translation>Una entrada ARP fija dice que %@ es %@, pero la unidad allí es %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, and nobody answers there.</source>
        <translation>Una entrada ARP fija dice que %@ es %@, y allí no responde nadie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>%@ says that %@ cannot be reached.</source>
        <translation>%@ dice que no se puede llegar a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No host answers for the address %@.</source>
        <translation>Ningún equipo responde por la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo firewall-cmd --add-port=%d/udp</source>
        <translation>Deje entrar las respuestas: sudo firewall-cmd --add-port=%d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo ufw allow %d/udp</source>
        <translation>Deje entrar las respuestas: sudo ufw allow %d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let UDP to port %d in, in the rules of the firewall.</source>
        <translation>Deje entrar UDP al puerto %d en las reglas del cortafuegos.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Take the entry out: sudo arp -d %@</source>
        <translation>Quite la entrada: sudo arp -d %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no IPv4 address.</source>
        <translation>La interfaz %@ no tiene dirección IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system refuses to send the request: %@.</source>
        <translation>El sistema se niega a enviar la solicitud: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers in to UDP port %d.</source>
        <translation>Un cortafuegos de este equipo no deja entrar respuestas al puerto UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers to a broadcast in to UDP port %d, only those to single requests.</source>
        <translation>Un cortafuegos de este equipo no deja entrar al puerto UDP %d las respuestas a una difusión, solo las de solicitudes individuales.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The reverse path filter of the interface %@ takes the answers away.</source>
        <translation>El filtro de camino inverso de la interfaz %@ retira las respuestas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The host %@ is there, but nothing reads its UDP port %d.</source>
        <translation>El equipo %@ está ahí, pero nada lee su puerto UDP %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Something answers, but not as a unit does.</source>
        <translation>Algo responde, pero no como una unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back from %@.</source>
        <translation>La solicitud salió y nada volvió de %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back.</source>
        <translation>La solicitud salió y nada volvió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Plug in the cable, switch the interface on, and look whether something is switched on at the other end.</source>
        <translation>Conecte el cable, active la interfaz y mire si hay algo encendido en el otro extremo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units.</source>
        <translation>Dé a la interfaz una dirección en la red de las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Quit that program, or choose another UDP port.</source>
        <translation>Cierre ese programa o elija otro puerto UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look for a firewall rule on this computer that stops datagrams to UDP port 3520.</source>
        <translation>Busque en este equipo una regla del cortafuegos que detenga los datagramas al puerto UDP 3520.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit, or add a route.</source>
        <translation>Dé a la interfaz una dirección en la red de la unidad o añada una ruta.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units, or take out the route that leads elsewhere. The filter is the setting net.ipv4.conf.%@.rp_filter.</source>
        <translation>Dé a la interfaz una dirección en la red de las unidades o quite la ruta que lleva a otro sitio. El filtro es el ajuste net.ipv4.conf.%@.rp_filter.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Choose that UDP port, or change the unit’s destination port.</source>
        <translation>Elija ese puerto UDP o cambie el puerto de destino de la unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit as its first one, or change the unit’s address.</source>
        <translation>Dé a la interfaz como primera una dirección en la red de la unidad o cambie la dirección de la unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Disconnect one of them, and give the other one another address.</source>
        <translation>Desconecte una de ellas y dé otra dirección a la otra.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Allow a larger receive buffer. Help says how.</source>
        <translation>Permita un búfer de recepción mayor. La ayuda explica cómo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether this is a unit, and which device port it has.</source>
        <translation>Mire si es una unidad y qué puerto de unidad tiene.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether the address is right.</source>
        <translation>Mire si la unidad tiene corriente y su cable, y si la dirección es correcta.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Find out what it is. The event log shows what came.</source>
        <translation>Averigüe qué es. El registro de eventos muestra lo que llegó.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether a router or a switch with separated ports stands in between.</source>
        <translation>Mire si la unidad tiene corriente y su cable, y si hay en medio un enrutador o un conmutador con puertos separados.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Port %d is taken by another program. Choose another port.</source>
        <translation>El puerto %d está ocupado por otro programa. Elija otro puerto.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@</source>
        <translation>No se envió ninguna solicitud: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@.</source>
        <translation>No se envió ninguna solicitud: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: no unit has answered yet</source>
        <translation>Preguntando a %@, puerto %d: aún no ha respondido ninguna unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: 1 unit answered</source>
        <translation>Preguntando a %@, puerto %d: ha respondido 1 unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: %d units answered</source>
        <translation>Preguntando a %@, puerto %d: han respondido %d unidades</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No interface is chosen: asked %@.</source>
        <translation>No hay ninguna interfaz elegida: se preguntó a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The one listed answered earlier.</source>
        <translation>La de la lista respondió antes.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The %d listed answered earlier.</source>
        <translation>Las %d de la lista respondieron antes.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No unit answered.</source>
        <translation>Ninguna unidad respondió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered late. Discover again to list it.</source>
        <translation>1 unidad respondió tarde. Busque de nuevo para incluirla en la lista.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered late. Discover again to list them.</source>
        <translation>%d unidades respondieron tarde. Busque de nuevo para incluirlas en la lista.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d of the %d listed answered.</source>
        <translation>Respondieron %d de las %d de la lista.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered.</source>
        <translation>Respondió 1 unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered.</source>
        <translation>Respondieron %d unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answered last time and not now.</source>
        <translation>%@ respondió la última vez y ahora no.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answered last time and not now.</source>
        <translation>%d respondieron la última vez y ahora no.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ is new.</source>
        <translation>%@ es nueva.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d are new.</source>
        <translation>%d son nuevas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ has changed.</source>
        <translation>%@ ha cambiado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d have changed.</source>
        <translation>%d han cambiado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answers again.</source>
        <translation>%@ vuelve a responder.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answer again.</source>
        <translation>%d vuelven a responder.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is another kind of file than the one that is wanted.</source>
        <translation>«%@» no es el tipo de archivo que se espera.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@.</source>
        <translation>«Aplicar» envía %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because that is how “%@” is read.</source>
        <translation>«Aplicar» envía %@: %@, porque así se lee «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and nothing else but colons.</source>
        <translation>«Aplicar» envía %@, aunque una dirección MAC tiene 12 dígitos hexadecimales y nada más que dos puntos.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and this has %d.</source>
        <translation>«Aplicar» envía %@, aunque una dirección MAC tiene 12 dígitos hexadecimales y esta tiene %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and nothing else but blanks.</source>
        <translation>«Aplicar» envía %@, aunque un número de serie tiene 12 dígitos hexadecimales y nada más que espacios.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and this has %d.</source>
        <translation>«Aplicar» envía %@, aunque un número de serie tiene 12 dígitos hexadecimales y este tiene %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: serial number %@, which another unit has.</source>
        <translation>«Aplicar» envía %@: número de serie %@, que tiene otra unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” is not an IPv4 address.</source>
        <translation>«Aplicar» envía %@: %@, porque «%@» no es una dirección IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” does not begin with a number.</source>
        <translation>«Aplicar» envía %@: %@, porque «%@» no empieza por un número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because %@ is outside 3520 to 3523.</source>
        <translation>«Aplicar» envía %@: %@, porque %@ no está entre 3520 y 3523.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, more than the four digits of a port, because %@ is outside 0 to 65535.</source>
        <translation>«Aplicar» envía %@, más que los cuatro dígitos de un puerto, porque %@ no está entre 0 y 65535.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, which does not show as a number because it is above 255.</source>
        <translation>«Aplicar» envía %@: el número %@, que no se muestra como número porque pasa de 255.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, because that is how “%@” is read. Above 255 it does not show as a number.</source>
        <translation>«Aplicar» envía %@: el número %@, porque así se lee «%@». Por encima de 255 no se muestra como número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has %d.</source>
        <translation>«Aplicar» envía %@: el texto «%@», aunque un identificador de unidad tiene 6 bytes y este tiene %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: unit ID “%@”.</source>
        <translation>«Aplicar» envía %@: identificador de unidad «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no MAC address is known for an ARP entry.</source>
        <translation>«Aplicar» pide derechos de administrador, pero no se conoce ninguna dirección MAC para una entrada ARP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but an ARP entry can hold ASCII characters only.</source>
        <translation>«Aplicar» pide derechos de administrador, pero una entrada ARP solo puede contener caracteres ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no ARP entry will be made for “%@”: %@</source>
        <translation>«Aplicar» pide derechos de administrador, pero no se creará ninguna entrada ARP para «%@»: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply hands “%@” and %@ to the ARP tool, which needs administrator rights.</source>
        <translation>«Aplicar» entrega «%@» y %@ a la herramienta ARP. Para ello se necesitan derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply enters %@ at %@ in the ARP cache, which needs administrator rights.</source>
        <translation>«Aplicar» inscribe %@ con %@ en la caché ARP. Para ello se necesitan derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the UDP listener is not running.</source>
        <translation>«Aplicar» no envía nada: la escucha UDP no está activa.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit is selected.</source>
        <translation>No hay ninguna unidad seleccionada.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.</source>
        <translation>«Aplicar» envía %@ a 0.0.0.0, porque «%@» no es una dirección IPv4.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@, because that is how “%@” is read.</source>
        <translation>«Aplicar» envía %@ a %@, porque así se lee «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@.</source>
        <translation>«Aplicar» envía %@ a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no command changes this parameter.</source>
        <translation>«Aplicar» no envía nada: ninguna orden cambia este parámetro.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the value is empty.</source>
        <translation>«Aplicar» no envía nada: el valor está vacío.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the unit ID is not a text in UTF-8.</source>
        <translation>«Aplicar» no envía nada: el identificador de unidad no es un texto en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no unit is selected.</source>
        <translation>«Aplicar» no envía nada: no hay ninguna unidad seleccionada.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: a command can hold ASCII characters only.</source>
        <translation>«Aplicar» no envía nada: una orden solo puede contener caracteres ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the address of the unit is not known.</source>
        <translation>«Aplicar» no envía nada: no se conoce la dirección de la unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>This computer has it.</source>
        <translation>Este equipo la tiene.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>The unit %@ has it.</source>
        <translation>La unidad %@ la tiene.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it is the address of the subnet.</source>
        <translation>Ninguna unidad puede tenerla: es la dirección de la subred.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It is outside this computer&apos;s subnet, perhaps out of reach.</source>
        <translation>Está fuera de la subred, quizá fuera de alcance.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It goes to the unit %@, which was not shown when the row was chosen.</source>
        <translation>Va a la unidad %@, que no se mostraba cuando se eligió la fila.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Return ends the typing; Ctrl+Return applies.</source>
        <translation>Intro termina la escritura; Ctrl+Intro aplica.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the command is too long for a datagram.</source>
        <translation>«Aplicar» no envía nada: la orden es demasiado larga para un datagrama.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@</source>
        <translation>La unidad aceptó una orden. No se le pudieron pedir sus parámetros: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@.</source>
        <translation>La unidad aceptó una orden. No se le pudieron pedir sus parámetros: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters. If its port has changed, Discover finds it.</source>
        <translation>La unidad aceptó una orden y se le pidieron sus parámetros. Si su puerto ha cambiado, «Buscar unidades» la encuentra.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters.</source>
        <translation>La unidad aceptó una orden y se le pidieron sus parámetros.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number. Discover lists it under that.</source>
        <translation>La unidad muestra ahora %@ como su número de serie. «Buscar unidades» la incluye en la lista con ese número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@.</source>
        <translation>La unidad muestra ahora %@ en «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number (was %@). Discover lists it under that.</source>
        <translation>La unidad muestra ahora %@ como su número de serie (antes %@). «Buscar unidades» la incluye en la lista con ese número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@ (was %@).</source>
        <translation>La unidad muestra ahora %@ en «%@» (antes %@).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit still shows %@ as its %@.</source>
        <translation>La unidad sigue mostrando %@ en «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@, which is not what was sent.</source>
        <translation>La unidad muestra ahora %@ en «%@», que no es lo que se envió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit&apos;s parameters hold no %@.</source>
        <translation>Los parámetros de la unidad no contienen «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: it has the address %@ already.</source>
        <translation>Otra unidad, %@, aceptó una orden: ya tiene la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: both have the address %@.</source>
        <translation>Otra unidad, %@, aceptó una orden: ambas tienen la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@.</source>
        <translation>Se envió %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered.</source>
        <translation>Se envió %@. La unidad no ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered yet.</source>
        <translation>Se envió %@. La unidad aún no ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@</source>
        <translation>No se creó ninguna entrada ARP para %@: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@.</source>
        <translation>No se creó ninguna entrada ARP para %@: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: administrator rights were not given.</source>
        <translation>No se creó ninguna entrada ARP para %@: no se concedieron derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: running the ARP tool was refused.</source>
        <translation>No se creó ninguna entrada ARP para %@: se denegó la ejecución de la herramienta ARP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the question for administrator rights was dismissed.</source>
        <translation>No se creó ninguna entrada ARP para %@: se canceló la petición de derechos de administrador.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool cannot be run.</source>
        <translation>No se creó ninguna entrada ARP para %@: no se puede ejecutar la herramienta ARP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: it can hold ASCII characters only.</source>
        <translation>No se creó ninguna entrada ARP para %@: solo puede contener caracteres ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool was not started (%d).</source>
        <translation>No se creó ninguna entrada ARP para %@: la herramienta ARP no se inició (%d).</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool ended with status %d.</source>
        <translation>No se creó ninguna entrada ARP para %@: la herramienta ARP terminó con el estado %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The ARP entry for %@ is not on the interface by which the command left, so the unit may not have heard it.</source>
        <translation>La entrada ARP para %@ no está en la interfaz por la que salió la orden, así que es posible que la unidad no la haya oído.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[Begin Discover]</source>
        <translation>[Inicio de la búsqueda]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[The event log keeps 256 MiB. Older entries were removed.]</source>
        <translation>[El registro de eventos conserva 256 MiB. Se han eliminado las entradas más antiguas.]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did start. </source>
        <translation>
Escucha UDP iniciada. </translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Error setting SO_BROADCAST %s</source>
        <translation>
Error al establecer SO_BROADCAST %s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did stop with error.</source>
        <translation>
Escucha UDP detenida con un error.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Request unit parameters with address: %@</source>
        <translation>
Parámetros de unidad pedidos a la dirección: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Send to: %@ command: %@</source>
        <translation>
Envío a: %@ orden: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP server did send data.</source>
        <translation>
Datos UDP enviados.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP failed to send data.</source>
        <translation>
No se pudieron enviar los datos UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did receive data. Length: %d</source>
        <translation>
Datos UDP recibidos. Longitud: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring short packet</source>
        <translation>
Paquete demasiado corto ignorado</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring unknown packet, prefix != ^^</source>
        <translation>
Paquete desconocido ignorado, prefijo != ^^</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did receive error.</source>
        <translation>
Error de recepción UDP.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@ unit:%@ serial:%@ cidString:%@</source>
        <translation>
Orden recibida: ^^%@ identificador:%@ número de serie:%@ contenido:%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@</source>
        <translation>
Orden recibida: ^^%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache with MAC %@ for IP %@</source>
        <translation>
Caché ARP: inscripción de la MAC %@ para la IP %@ iniciada</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache result: %d</source>
        <translation>
Resultado de la inscripción en la caché ARP: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Unit ID could not be converted to 6-byte UTF-8 string</source>
        <translation>
No se pudo convertir el identificador de unidad en un texto UTF-8 de 6 bytes</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ is gone, so no broadcast was sent. Choose another one, or bring it back.</source>
        <translation>La interfaz %@ ha desaparecido, por lo que no se envió ninguna difusión. Elija otra o vuelva a conectarla.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has no link. Is its cable plugged in, and the device at the other end switched on?</source>
        <translation>La interfaz %@ no tiene enlace. ¿Está conectado el cable y encendido el aparato del otro extremo?</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ reaches no unit by broadcast. Choose the one that leads to the units.</source>
        <translation>La interfaz %@ no llega a ninguna unidad por difusión. Elija la que lleva a las unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has lost the address that it had when it was chosen. When it has one again, choose it again.</source>
        <translation>La interfaz %@ ha perdido la dirección que tenía al elegirla. Cuando vuelva a tener una, elíjala otra vez.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The address and mask of the interface %@ are out of date: they have changed since it was chosen. Choose it again to take the new ones over.</source>
        <translation>La dirección y la máscara de la interfaz %@ no están al día: han cambiado desde que se eligió. Elíjala otra vez para tomar las nuevas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped 1 datagram before it was read, so a unit may be missing. Help says how to allow a larger buffer.</source>
        <translation>El sistema descartó 1 datagrama antes de que se leyera, por lo que puede faltar una unidad. La ayuda explica cómo permitir un búfer mayor.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped %d datagrams before they were read, so units may be missing. Help says how to allow a larger buffer.</source>
        <translation>El sistema descartó %d datagramas antes de que se leyeran, por lo que pueden faltar unidades. La ayuda explica cómo permitir un búfer mayor.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>More than 1,048,576 units have answered, so the list leaves out those that were not heard for longest.</source>
        <translation>Han respondido más de 1.048.576 unidades, por lo que en la lista faltan las que no se han oído desde hace más tiempo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two hosts answer as the unit %@: %@ and %@.</source>
        <translation>Dos equipos responden como la unidad %@: %@ y %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two units say that their address is %@: %@ and %@. A command may reach either.</source>
        <translation>Dos unidades dicen que su dirección es %@: %@ y %@. Una orden puede llegar a cualquiera de ellas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units or more say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d unidades o más dicen que su dirección es %@, entre ellas %@ y %@. Una orden puede llegar a cualquiera de ellas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d unidades dicen que su dirección es %@, entre ellas %@ y %@. Una orden puede llegar a cualquiera de ellas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ says that its address is %@, but its answer came from %@.</source>
        <translation>La unidad %@ dice que su dirección es %@, pero su respuesta llegó de %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ is heard on two interfaces: %@ and %@. Commands leave by the one on which it was heard last.</source>
        <translation>La unidad %@ se oye en dos interfaces: %@ y %@. Las órdenes salen por aquella en la que se oyó por última vez.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is free: nobody answers for it.</source>
        <translation>%@ está libre: nadie responde por ella.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is held by %@, unit %@.</source>
        <translation>%@ está ocupada por %@, unidad %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>Address %@, mask %@, broadcast address %@.</source>
        <translation>Dirección %@, máscara %@, dirección de difusión %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The interface has no IPv4 address, so Discover asks %@.</source>
        <translation>La interfaz no tiene dirección IPv4, así que «Buscar unidades» pregunta a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>No interface is chosen, so Discover asks %@.</source>
        <translation>No se ha elegido ninguna interfaz, así que «Buscar unidades» pregunta a %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is up.</source>
        <translation>El enlace está activo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is down.</source>
        <translation>El enlace está inactivo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>To change</source>
        <translation>Por cambiar</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Refused</source>
        <translation>Rechazada</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done</source>
        <translation>Hecha</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not begun</source>
        <translation>No empezada</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Half configured</source>
        <translation>A medio configurar</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not sent</source>
        <translation>No enviada</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Other value</source>
        <translation>Otro valor</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Under way</source>
        <translation>En curso</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wrong</source>
        <translation>Errónea</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wanted</source>
        <translation>Deseado</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Units to change: %d, parameters in all: %d. Unchanged: %d, refused: %d, without an answer: %d.</source>
        <translation>Unidades por cambiar: %d, parámetros en total: %d. Sin cambios: %d, rechazadas: %d, sin respuesta: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done: %d, unchanged: %d, refused: %d, not begun: %d, half configured: %d, without an answer: %d.</source>
        <translation>Hechas: %d, sin cambios: %d, rechazadas: %d, no empezadas: %d, a medio configurar: %d, sin respuesta: %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked the unit at %@ for its parameters.</source>
        <translation>Se pidieron sus parámetros a la unidad con la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked every unit that hears it for its parameters.</source>
        <translation>Se pidieron sus parámetros a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to the unit at %@.</source>
        <translation>Se envió %@ a la unidad con la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to every unit that hears it.</source>
        <translation>Se envió %@ a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered “%@”.</source>
        <translation>Otra unidad con esta dirección, %@, respondió «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered.</source>
        <translation>Otra unidad con esta dirección, %@, respondió.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit answered “%@”.</source>
        <translation>La unidad respondió «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has told them.</source>
        <translation>La unidad los ha dado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit accepted a command.</source>
        <translation>La unidad aceptó una orden.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered.</source>
        <translation>La unidad no ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered yet.</source>
        <translation>La unidad aún no ha respondido.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered yet.</source>
        <translation>Aún no ha respondido ninguna unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by 1 unit.</source>
        <translation>Aceptada por 1 unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>1 unit has answered.</source>
        <translation>Ha respondido 1 unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units or more.</source>
        <translation>Aceptada por %d unidades o más.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units or more have answered.</source>
        <translation>Han respondido %d unidades o más.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units.</source>
        <translation>Aceptada por %d unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units have answered.</source>
        <translation>Han respondido %d unidades.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>No unit is selected: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>No hay ninguna unidad seleccionada: «Restablecer valores de fábrica», como «Recargar», llega a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>The address of this unit is not known: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>No se conoce la dirección de esta unidad: «Restablecer valores de fábrica», como «Recargar», llega a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>This unit tells an address of many as its own: Restore Defaults, like Reload, Apply and Send, reaches every unit that hears it.</source>
        <translation>Esta unidad da como suya una dirección colectiva: «Restablecer valores de fábrica», como «Recargar», «Aplicar» y «Enviar», llega a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks the unit at %@ for its parameters.</source>
        <translation>Pide sus parámetros a la unidad con la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks every unit that hears it for its parameters.</source>
        <translation>Pide sus parámetros a todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets the unit at %@ to its factory settings.</source>
        <translation>Restablece los valores de fábrica de la unidad con la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets every unit that hears it to its factory settings.</source>
        <translation>Restablece los valores de fábrica de todas las unidades que lo oyen.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@</source>
        <translation>No se envió: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@.</source>
        <translation>No se envió: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No command changes this parameter.</source>
        <translation>No se envió: ninguna orden cambia este parámetro.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The value is empty.</source>
        <translation>No se envió: el valor está vacío.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The unit ID is not a text in UTF-8.</source>
        <translation>No se envió: el identificador de unidad no es un texto en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No unit is selected.</source>
        <translation>No se envió: no hay ninguna unidad seleccionada.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: A command can hold ASCII characters only.</source>
        <translation>No se envió: una orden solo puede contener caracteres ASCII.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The address of the unit is not known.</source>
        <translation>No se envió: no se conoce la dirección de la unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no name of a column.</source>
        <translation>«%@» no es un nombre de columna.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” means the same as another column.</source>
        <translation>«%@» significa lo mismo que otra columna.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” stands in a column without a name.</source>
        <translation>«%@» está en una columna sin nombre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has text behind its closing quotation mark.</source>
        <translation>«%@» tiene texto detrás de las comillas de cierre.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins or ends with a blank.</source>
        <translation>«%@» empieza o termina con un espacio.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a character that nobody sees.</source>
        <translation>«%@» contiene un carácter invisible.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no serial number. Write six pairs of digits, such as 4B 58 00 00 00 01.</source>
        <translation>«%@» no es un número de serie. Escriba seis pares de dígitos, como 4B 58 00 00 00 01.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a number that a spreadsheet has shortened.</source>
        <translation>«%@» es un número que una hoja de cálculo ha acortado.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks digits: a spreadsheet has taken it for a number.</source>
        <translation>A «%@» le faltan dígitos: una hoja de cálculo lo ha tomado por un número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks its dots: a spreadsheet has taken it for a number.</source>
        <translation>A «%@» le faltan los puntos: una hoja de cálculo lo ha tomado por un número.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a date: a spreadsheet has taken the value for one.</source>
        <translation>«%@» es una fecha: una hoja de cálculo ha tomado el valor por una.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has separators that a spreadsheet has put between digits.</source>
        <translation>«%@» contiene separadores que una hoja de cálculo ha puesto entre los dígitos.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has decimal places that a spreadsheet has added.</source>
        <translation>«%@» tiene decimales que una hoja de cálculo ha añadido.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a truth value: a spreadsheet has taken the value for one.</source>
        <translation>«%@» es un valor lógico: una hoja de cálculo ha tomado el valor por uno.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a value that a spreadsheet had no room to show.</source>
        <translation>«%@» es un valor para el que una hoja de cálculo no tenía espacio.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is an error of a spreadsheet.</source>
        <translation>«%@» es un error de una hoja de cálculo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins with the mark of a text in a spreadsheet.</source>
        <translation>«%@» empieza con la marca de texto de una hoja de cálculo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a blank of another kind.</source>
        <translation>«%@» contiene un espacio de otro tipo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d is about the same unit.</source>
        <translation>La línea %d trata de la misma unidad.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same serial number.</source>
        <translation>La línea %d tiene el mismo número de serie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same address.</source>
        <translation>La línea %d tiene la misma dirección.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same hardware address.</source>
        <translation>La línea %d tiene la misma dirección de hardware.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is in UTF-16. Save it as CSV in UTF-8.</source>
        <translation>El archivo está en UTF-16. Guárdelo como CSV en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell is not in UTF-8. Save the file as CSV in UTF-8.</source>
        <translation>La celda no está en UTF-8. Guarde el archivo como CSV en UTF-8.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A quotation mark is not closed.</source>
        <translation>Unas comillas no están cerradas.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line must name the columns: serial and parameters.</source>
        <translation>La primera línea debe nombrar las columnas: serial y parámetros.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line names no column “serial”.</source>
        <translation>La primera línea no nombra ninguna columna «serial».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has fewer cells than the first one.</source>
        <translation>La línea tiene menos celdas que la primera.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has more cells than the first one.</source>
        <translation>La línea tiene más celdas que la primera.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The serial number is missing.</source>
        <translation>Falta el número de serie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell has nothing but blanks.</source>
        <translation>La celda solo contiene espacios.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The value does not fit into a command.</source>
        <translation>El valor no cabe en un comando.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A unit would get another value than “%@”. The window says of it: %@</source>
        <translation>Una unidad recibiría otro valor que «%@». La ventana dice de él: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Type it again in a cell that is formatted as text.</source>
        <translation>Escríbalo de nuevo en una celda con formato de texto.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d: %@</source>
        <translation>Línea %d: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Sender</source>
        <translation>Remitente</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Last heard</source>
        <translation>Último contacto</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Serial number used twice</source>
        <translation>Número de serie duplicado</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Address used twice</source>
        <translation>Dirección duplicada</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Answered</source>
        <translation>Ha respondido</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>It did not answer the latest Discover.</source>
        <translation>No ha respondido a la última búsqueda.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Another unit, %@, has this serial number, too.</source>
        <translation>Otra unidad, %@, tiene también este número de serie.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>The unit %@ has the address %@, too.</source>
        <translation>La unidad %@ tiene también la dirección %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d wants the same value: %@.</source>
        <translation>La línea %d quiere el mismo valor: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell its hardware address, which a new address needs.</source>
        <translation>La unidad %@ no indica su dirección de hardware, necesaria para una dirección nueva.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by the unit %@.</source>
        <translation>%@ está en uso por la unidad %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ changes hands in a ring: line %d must be done first, and waits for this one.</source>
        <translation>%@ cambia de manos en círculo: la línea %d debe hacerse antes, y espera a esta.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ does not become free, because line %d is not done.</source>
        <translation>%@ no queda libre, porque la línea %d no se ha hecho.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The plan is out of date: %@ was “%@” and is “%@” now.</source>
        <translation>El plan está anticuado: %@ era «%@» y ahora es «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell whether it has taken %@.</source>
        <translation>La unidad %@ no indica si ha tomado %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows another value: %@ is “%@”.</source>
        <translation>La unidad %@ muestra otro valor: %@ es «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing was sent, because other lines are refused or silent.</source>
        <translation>No se ha enviado nada, porque otras líneas se rechazan o no responden.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing new was begun after line %d.</source>
        <translation>Después de la línea %d no se ha empezado nada nuevo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The journal could not be written.</source>
        <translation>No se ha podido escribir el diario.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether another run is under way could not be found out: %@.</source>
        <translation>No se ha podido averiguar si hay otra ejecución en curso: %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host.</source>
        <translation>Otra ejecución está cambiando unidades desde este equipo.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host: process %d.</source>
        <translation>Otra ejecución está cambiando unidades desde este equipo: proceso %d.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>No command brings %@ of the unit %@ back: it was “%@”.</source>
        <translation>Ningún comando restablece %@ de la unidad %@: el valor era «%@».</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The entry for %@ could not be taken out of the ARP cache again.</source>
        <translation>No se pudo retirar de la caché ARP la entrada de %@.</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d s left</source>
        <translation>quedan unos %d s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d min left</source>
        <translation>quedan unos %d min</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool gets one address and one hardware address only.</source>
        <translation>La herramienta ARP solo recibe una dirección y una dirección de hardware.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>An address is four decimal numbers without leading zeros, as in 192.0.2.7.</source>
        <translation>Una dirección son cuatro números decimales sin ceros a la izquierda, como 192.0.2.7.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>A hardware address is six pairs of hexadecimal digits and names one host, as in 02:00:00:00:00:07.</source>
        <translation>Una dirección de hardware son seis pares de dígitos hexadecimales y designa un solo equipo, como 02:00:00:00:00:07.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache has no fixed entry with this address and this hardware address.</source>
        <translation>La caché ARP no tiene ninguna entrada fija con esta dirección y esta dirección de hardware.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache cannot be read.</source>
        <translation>No se puede leer la caché ARP.</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool cannot be run.</source>
        <translation>No se puede ejecutar la herramienta ARP.</translation>
    </message>
</context>
</TS>
