<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>Acerca de Corvane</translation>
    </message>
    <message>
        <source>Keeps track of credit-card debt, and of the day it is gone</source>
        <translation>Sigue sus deudas de tarjetas de crédito hasta el día en que desaparezcan</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotecas</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Archivo de datos</translation>
    </message>
    <message>
        <source>Nothing on this system opens folders.</source>
        <translation>Nada en este sistema abre carpetas.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>AccessibleCardRow</name>
    <message>
        <source>, </source>
        <comment>between the parts of a text</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>AccessibleListItem</name>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Selects the item</source>
        <translation>Selecciona el elemento</translation>
    </message>
</context>
<context>
    <name>AmountField</name>
    <message>
        <source>Amounts here are in %1, not in %2.</source>
        <translation>Los importes aquí son en %1, no en %2.</translation>
    </message>
    <message>
        <source>This can mean %1 or %2.</source>
        <translation>Esto puede significar %1 o bien %2.</translation>
    </message>
    <message>
        <source>An amount here has no decimals.</source>
        <translation>Aquí un importe no tiene decimales.</translation>
    </message>
    <message numerus="yes">
        <source>An amount here has at most %n decimals.</source>
        <translation>
            <numerusform>Aquí un importe tiene como máximo %n decimal.</numerusform>
            <numerusform>Aquí un importe tiene como máximo %n decimales.</numerusform>
        </translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>¿Quería decir %1?</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>AnchoredBarButton</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what it does, and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>CVCard</name>
    <message>
        <source>Unnamed card</source>
        <translation>Tarjeta sin nombre</translation>
    </message>
</context>
<context>
    <name>CVCardPopover</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>CVCardPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>CVCardTableCellView</name>
    <message>
        <source>Add Statement</source>
        <translation>Añadir extracto</translation>
    </message>
    <message>
        <source>Add a statement of this card</source>
        <translation>Añadir un extracto de esta tarjeta</translation>
    </message>
</context>
<context>
    <name>CVCardTableView</name>
    <message>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
</context>
<context>
    <name>CVStatement</name>
    <message>
        <source>%1 ÷ %2 = %3%</source>
        <translation>%1 ÷ %2 = %3&#xa0;%</translation>
    </message>
    <message>
        <source>%1% APR</source>
        <translation>TAE %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>CVStatementPopover</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pago</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>TAE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>CVStatementPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>This was deleted meanwhile.</source>
        <translation>Esto se ha eliminado entretanto.</translation>
    </message>
    <message>
        <source>There is no date.</source>
        <translation>No hay ninguna fecha.</translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>Esto no es una fecha.</translation>
    </message>
    <message>
        <source>This date is still to come.</source>
        <translation>Esta fecha aún no ha llegado.</translation>
    </message>
    <message>
        <source>%1 has a statement already, of %2.</source>
        <translation>Ya hay un extracto de %1, el del %2.</translation>
    </message>
    <message>
        <source>The limit and the payment will become the balance, %1.</source>
        <translation>El límite y el pago pasarán a ser el saldo, %1.</translation>
    </message>
    <message>
        <source>The limit will be raised to the balance, %1.</source>
        <translation>El límite se elevará al saldo, %1.</translation>
    </message>
    <message>
        <source>A payment of nothing will become the whole balance, %1.</source>
        <translation>Un pago de cero se sustituirá por el saldo entero, %1.</translation>
    </message>
</context>
<context>
    <name>CVTimelineHeaderView</name>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
</context>
<context>
    <name>CVTimelineTableView</name>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
    </message>
</context>
<context>
    <name>Corvane_AppDelegate</name>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se han podido guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si sale ahora, perderá los cambios hechos desde la última vez que se guardó correctamente</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>CurrencyChooser</name>
    <message>
        <source>Choose Currency</source>
        <translation>Elegir moneda</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>No existe esa moneda.</translation>
    </message>
</context>
<context>
    <name>DebtForecast</name>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Debt-free never</source>
        <translation>Nunca libre de deudas</translation>
    </message>
    <message>
        <source>Debt-free %1</source>
        <translation>Libre de deudas el %1</translation>
    </message>
    <message numerus="yes">
        <source>%n m ⟶ %1</source>
        <extracomment>In the space of a card&apos;s row: the months until it is paid off, and the day when it is. The arrow points where reading goes on.</extracomment>
        <translation>
            <numerusform>%n mes ⟶ %1</numerusform>
            <numerusform>%n meses ⟶ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DemoStore</name>
    <message>
        <source>Demo, nothing is kept – Corvane</source>
        <translation>Demostración, no se guarda nada – Corvane</translation>
    </message>
</context>
<context>
    <name>DialogPresenter</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <source>Zoom the timeline</source>
        <translation>Ampliar o reducir la línea de tiempo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliación</translation>
    </message>
    <message>
        <source>&amp;Corvane</source>
        <translation>&amp;Corvane</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>&amp;Acerca de Corvane</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;New Card…</source>
        <translation>&amp;Nueva tarjeta…</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Nueva tarjeta</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Delete the selected statement or card</source>
        <translation>Eliminar el extracto o la tarjeta seleccionados</translation>
    </message>
    <message>
        <source>Get &amp;Info</source>
        <translation>&amp;Información</translation>
    </message>
    <message>
        <source>Information about the selection</source>
        <translation>Información sobre la selección</translation>
    </message>
    <message>
        <source>&amp;Card List</source>
        <translation>&amp;Lista de tarjetas</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Statement to the &amp;Left</source>
        <translation>Extracto a la i&amp;zquierda</translation>
    </message>
    <message>
        <source>Statement to the &amp;Right</source>
        <translation>Extracto a la &amp;derecha</translation>
    </message>
    <message>
        <source>&amp;Add Statement…</source>
        <translation>&amp;Añadir extracto…</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>No statements yet</source>
        <translation>Aún no hay extractos</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Aún no hay tarjetas</translation>
    </message>
    <message>
        <source>Add your first card with the + below the list, then a statement each month, and see the day you will be debt-free.</source>
        <translation>Añada su primera tarjeta con el + que hay bajo la lista y después un extracto cada mes, y verá el día en que quedará libre de deudas.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <source>&amp;Delete Statement</source>
        <translation>&amp;Eliminar extracto</translation>
    </message>
    <message>
        <source>&amp;Delete Card</source>
        <translation>&amp;Eliminar tarjeta</translation>
    </message>
    <message>
        <source>Delete Statement</source>
        <translation>Eliminar extracto</translation>
    </message>
    <message>
        <source>Delete Card</source>
        <translation>Eliminar tarjeta</translation>
    </message>
    <message>
        <source>Save Again</source>
        <translation>Guardar de nuevo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Add a card’s statement with the + in its row, and another each month.</source>
        <translation>Añada un extracto con el + de la fila de una tarjeta, y otro cada mes.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>Two notices in one: what was deleted, and what was not kept.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>NSError</name>
    <message>
        <source>The changes could not be saved.</source>
        <translation>No se han podido guardar los cambios.</translation>
    </message>
    <message>
        <source>A record is not valid.</source>
        <translation>Un registro no es válido.</translation>
    </message>
    <message>
        <source>There is no data file.</source>
        <translation>No hay ningún archivo de datos.</translation>
    </message>
    <message>
        <source>The data file “%1” is in use by another program.</source>
        <translation>Otro programa está usando el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” is damaged.</source>
        <translation>El archivo de datos «%1» está dañado.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Corvane data file.</source>
        <translation>El archivo «%1» no es un archivo de datos de Corvane.</translation>
    </message>
    <message>
        <source>There is no room left to save to the data file “%1”.</source>
        <translation>No queda espacio para guardar en el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” cannot be written.</source>
        <translation>No se puede escribir en el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be opened.</source>
        <translation>No se ha podido abrir el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be read or written.</source>
        <translation>No se ha podido leer o escribir el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” was made by another version.</source>
        <translation>El archivo de datos «%1» se creó con otra versión.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be made.</source>
        <translation>No se ha podido crear el archivo de datos «%1».</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It is write-protected.</source>
        <translation>Está protegido contra escritura.</translation>
    </message>
    <message>
        <source>Its folder is write-protected.</source>
        <translation>Su carpeta está protegida contra escritura.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>No se han podido abrir los datos</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Se ha producido un error al preparar el archivo de datos.</translation>
    </message>
    <message>
        <source>The file “%1” could not be locked for Corvane alone.</source>
        <translation>No se ha podido bloquear el archivo «%1» solo para Corvane.</translation>
    </message>
    <message>
        <source>SQLite reports: %1.</source>
        <translation>SQLite informa: %1.</translation>
    </message>
    <message>
        <source>the data file is in use by another program</source>
        <translation>otro programa está usando el archivo de datos</translation>
    </message>
    <message>
        <source>the data file is damaged</source>
        <translation>el archivo de datos está dañado</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the data file cannot be written</source>
        <translation>no se puede escribir en el archivo de datos</translation>
    </message>
    <message>
        <source>the data file could not be opened</source>
        <translation>no se ha podido abrir el archivo de datos</translation>
    </message>
    <message>
        <source>the data file could not be written</source>
        <translation>no se ha podido escribir el archivo de datos</translation>
    </message>
    <message>
        <source>a record is not valid</source>
        <translation>un registro no es válido</translation>
    </message>
    <message>
        <source>there is no data file</source>
        <translation>no hay ningún archivo de datos</translation>
    </message>
    <message>
        <source>the file is not a Corvane data file</source>
        <translation>el archivo no es un archivo de datos de Corvane</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>Deleted %1</source>
        <translation>Se ha eliminado %1</translation>
    </message>
    <message>
        <source>Deleted %1 and its statement</source>
        <translation>Se ha eliminado %1 con su extracto</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 and its %n statements</source>
        <translation>
            <numerusform>Se ha eliminado %1 con su extracto</numerusform>
            <numerusform>Se ha eliminado %1 con sus %n extractos</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleted the statement of %1 for %2</source>
        <translation>Se ha eliminado el extracto del %1 de %2</translation>
    </message>
    <message>
        <source>The new card was not added</source>
        <translation>No se ha añadido la nueva tarjeta</translation>
    </message>
    <message>
        <source>The statement for %1 was not added</source>
        <translation>No se ha añadido el extracto de %1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>Se ha añadido %1</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>Se ha modificado %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No se ha guardado: %1</translation>
    </message>
    <message>
        <source>The statement is gone, so the editor was closed</source>
        <translation>El extracto ya no existe, así que se ha cerrado el formulario</translation>
    </message>
    <message>
        <source>The card is gone, so the editor was closed</source>
        <translation>La tarjeta ya no existe, así que se ha cerrado el formulario</translation>
    </message>
    <message>
        <source>%1 was not changed</source>
        <translation>No se ha modificado %1</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 was not changed</source>
        <translation>No se ha modificado el extracto del %1 de %2</translation>
    </message>
    <message>
        <source>The new card is not added yet</source>
        <translation>Aún no se ha añadido la nueva tarjeta</translation>
    </message>
    <message>
        <source>The statement for %1 is not added yet</source>
        <translation>Aún no se ha añadido el extracto de %1</translation>
    </message>
    <message>
        <source>%1 is not changed yet</source>
        <translation>Aún no se ha modificado %1</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 is not changed yet</source>
        <translation>Aún no se ha modificado el extracto del %1 de %2</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A number has at most %1 digits.</source>
        <translation>Un número tiene como máximo %1 cifras.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Esto no es un número.</translation>
    </message>
</context>
<context>
    <name>OADatePicker</name>
    <message>
        <source>Previous Month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Back to Today</source>
        <translation>Volver a hoy</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>Mes siguiente</translation>
    </message>
</context>
<context>
    <name>OADatePickerButton</name>
    <message>
        <source>Choose Date</source>
        <translation>Elegir fecha</translation>
    </message>
</context>
<context>
    <name>OADatePickerTextField</name>
    <message>
        <source>Choose Date</source>
        <translation>Elegir fecha</translation>
    </message>
</context>
<context>
    <name>OpenCardEditor</name>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
    <message>
        <source>Add Card</source>
        <translation>Añadir tarjeta</translation>
    </message>
    <message>
        <source>Edit Card</source>
        <translation>Modificar tarjeta</translation>
    </message>
</context>
<context>
    <name>OpenStatementEditor</name>
    <message>
        <source>Statement</source>
        <translation>Extracto</translation>
    </message>
    <message>
        <source>Add Statement</source>
        <translation>Añadir extracto</translation>
    </message>
    <message>
        <source>Edit Statement</source>
        <translation>Modificar extracto</translation>
    </message>
</context>
<context>
    <name>PackageTransaction</name>
    <message>
        <source>PackageKit, which knows the packages of this system, is not installed.</source>
        <translation>PackageKit, que conoce los paquetes de este sistema, no está instalado.</translation>
    </message>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit no responde.</translation>
    </message>
    <message>
        <source>PackageKit cannot be asked: %1</source>
        <translation>No se puede consultar a PackageKit: %1</translation>
    </message>
    <message>
        <source>PackageKit ended before it had an answer.</source>
        <translation>PackageKit terminó antes de tener una respuesta.</translation>
    </message>
    <message>
        <source>PackageKit reports: %1</source>
        <translation>PackageKit informa: %1</translation>
    </message>
    <message>
        <source>PackageKit gave up.</source>
        <translation>PackageKit ha desistido.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>No se puede acceder al bus de mensajes del sistema.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;RTL&quot; where the language is written from right to left, else &quot;LTR&quot;. Qt asks for it when a translation is installed, and mirrors the layouts.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>RelativeDateFormatter</name>
    <message>
        <source>st|nd|rd|th|of|the</source>
        <translation>de|del|el</translation>
    </message>
    <message>
        <source>today|now</source>
        <extracomment>Alternatives are separated by &apos;|&apos;; all of them are understood.</extracomment>
        <translation>hoy|ahora</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>mañana</translation>
    </message>
    <message>
        <source>last %1|past %1</source>
        <extracomment>%1 is a weekday, or one of the words for week, month and year.</extracomment>
        <translation>%1 pasado|%1 pasada|el %1 pasado|la %1 pasada|último %1|última %1|el último %1|la última %1</translation>
    </message>
    <message>
        <source>%1 %2 ago</source>
        <extracomment>%1 is a number or one of the words for one, %2 one of the words for days to years.</extracomment>
        <translation>hace %1 %2</translation>
    </message>
    <message>
        <source>a|an|one</source>
        <translation>un|una|uno</translation>
    </message>
    <message>
        <source>d|day|days</source>
        <extracomment>In the order of days, weeks, months and years: in all grammatical forms, and with a letter that stands for it in &quot;-2d&quot;.</extracomment>
        <translation>d|día|días</translation>
    </message>
    <message>
        <source>w|week|weeks</source>
        <translation>s|sem|semana|semanas</translation>
    </message>
    <message>
        <source>m|month|months</source>
        <translation>m|mes|meses</translation>
    </message>
    <message>
        <source>y|year|years</source>
        <translation>a|año|años</translation>
    </message>
</context>
<context>
    <name>StatementText</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Payment %1</source>
        <translation>Pago %1</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit no responde.</translation>
    </message>
    <message>
        <source>Corvane was not installed as a package, so this system knows of no newer one.</source>
        <translation>Corvane no se instaló como paquete, así que este sistema no conoce ninguno más reciente.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>No se puede acceder al bus de mensajes del sistema.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Looking for a newer version</source>
        <translation>Buscando una versión más reciente</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Buscando una versión más reciente…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>A newer version of Corvane is available</source>
        <translation>Hay una versión más reciente de Corvane</translation>
    </message>
    <message>
        <source>Version %1 is installed. Version %2 comes with the next update of your system.</source>
        <translation>Está instalada la versión %1. La versión %2 llegará con la próxima actualización de su sistema.</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system knows of.</source>
        <translation>La versión %1 es la más reciente que conoce su sistema.</translation>
    </message>
    <message>
        <source>Unable to look for a newer version</source>
        <translation>No se puede buscar una versión más reciente</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
</TS>
