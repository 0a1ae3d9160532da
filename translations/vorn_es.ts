<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AtomicFile</name>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>No se pudo crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>No se pudo escribir el archivo «%1».</translation>
    </message>
    <message>
        <source>“%1” could not be written because a file of that name already exists.</source>
        <translation>No se ha podido escribir «%1» porque ya existe un archivo con ese nombre.</translation>
    </message>
    <message>
        <source>Choose another name, or move the existing file aside, and try again.</source>
        <translation>Elija otro nombre o aparte el archivo existente y vuelva a intentarlo.</translation>
    </message>
</context>
<context>
    <name>CiiSummary</name>
    <message>
        <source>The amount %1 of the e-invoice is not a number.</source>
        <translation>El importe %1 de la factura electrónica no es un número.</translation>
    </message>
    <message>
        <source>The e-invoice could not be read: %1</source>
        <translation>No se ha podido leer la factura electrónica: %1</translation>
    </message>
</context>
<context>
    <name>DesignPreview</name>
    <message>
        <source>The sample items of the design preview are missing.</source>
        <translation>Faltan los artículos de ejemplo de la vista previa del diseño.</translation>
    </message>
    <message>
        <source>The sample items of the design preview are damaged.</source>
        <translation>Los artículos de ejemplo de la vista previa del diseño están dañados.</translation>
    </message>
    <message>
        <source>Federal Tax</source>
        <translation>Impuesto federal</translation>
    </message>
    <message>
        <source>State Tax</source>
        <translation>Impuesto estatal</translation>
    </message>
    <message>
        <source>Third Tax</source>
        <translation>Tercer impuesto</translation>
    </message>
</context>
<context>
    <name>EInvoiceData</name>
    <message>
        <source>No tax charged</source>
        <translation>Sin impuestos</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Discount of %1 % on the total</source>
        <translation>Descuento del %1 % sobre el total</translation>
    </message>
    <message>
        <source>Discount on the total</source>
        <translation>Descuento sobre el total</translation>
    </message>
    <message>
        <source>The amounts are computed without rounding and printed to the cent; the VAT computed per rate from the rounded line amounts differs from the printed total by %1 %2, given as the rounding amount.</source>
        <translation>Los importes se calculan sin redondeo y se imprimen al céntimo; el IVA calculado por tipo a partir de los importes redondeados de las líneas difiere del total impreso en %1 %2, indicados como importe de redondeo.</translation>
    </message>
</context>
<context>
    <name>FacturX</name>
    <message>
        <source>The colour profile of PDF/A files is missing.</source>
        <translation>Falta el perfil de color de los archivos PDF/A.</translation>
    </message>
    <message>
        <source>An encrypted PDF cannot become a PDF/A file.</source>
        <translation>Un PDF cifrado no puede convertirse en un archivo PDF/A.</translation>
    </message>
    <message>
        <source>The PDF could not be made into a Factur-X file.</source>
        <translation>No se ha podido convertir el PDF en un archivo Factur-X.</translation>
    </message>
</context>
<context>
    <name>HttpRequest</name>
    <message>
        <source>The answer of %1 is too large.</source>
        <translation>La respuesta de %1 es demasiado grande.</translation>
    </message>
    <message>
        <source>%1 did not answer in time.</source>
        <translation>%1 no respondió a tiempo.</translation>
    </message>
</context>
<context>
    <name>InstanceLock</name>
    <message>
        <source>The Vorn database is in use by another Vorn program.</source>
        <translation>Otro programa de Vorn está usando la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>Quit the other Vorn program (the application or a running vorn-cli) and try again.</source>
        <translation>Cierre el otro programa de Vorn (la aplicación o un vorn-cli en ejecución) y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The Vorn database could not be locked for use.</source>
        <translation>No se pudo bloquear la base de datos de Vorn para usarla.</translation>
    </message>
    <message>
        <source>The lock file “%1” cannot be created.</source>
        <translation>No se puede crear el archivo de bloqueo «%1».</translation>
    </message>
</context>
<context>
    <name>InterchangeFile</name>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation>No se pudo abrir el archivo «%1».</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ese archivo no existe.</translation>
    </message>
    <message>
        <source>The file “%1” is too large to be a Vorn file.</source>
        <translation>El archivo «%1» es demasiado grande para ser un archivo de Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” could not be read.</source>
        <translation>No se pudo leer el archivo «%1».</translation>
    </message>
    <message>
        <source>The file is not a Vorn design.</source>
        <translation>El archivo no es un diseño de Vorn.</translation>
    </message>
    <message>
        <source>The file is not a Vorn document.</source>
        <translation>El archivo no es un documento de Vorn.</translation>
    </message>
</context>
<context>
    <name>KeyedArchive</name>
    <message>
        <source>The file is damaged or not a Vorn file.</source>
        <translation>El archivo está dañado o no es un archivo de Vorn.</translation>
    </message>
    <message>
        <source>The file holds an object of an unknown class, “%1”.</source>
        <translation>El archivo contiene un objeto de una clase desconocida, «%1».</translation>
    </message>
    <message>
        <source>The file is an archive of an unknown kind.</source>
        <translation>El archivo es un archivo comprimido de un tipo desconocido.</translation>
    </message>
    <message>
        <source>The file unfolds into too many values to be a Vorn file.</source>
        <translation>El archivo se despliega en demasiados valores para ser un archivo de Vorn.</translation>
    </message>
</context>
<context>
    <name>Logo</name>
    <message>
        <source>&lt;small&gt;&lt;small&gt;Please provide a &apos;Logo Image&apos; in the Preferences&lt;br /&gt;or remove the &apos;LOGO&apos; substitute from the design/template.&lt;/small&gt;&lt;/small&gt;</source>
        <translation>&lt;small&gt;&lt;small&gt;Indique una «imagen de logotipo» en las preferencias&lt;br /&gt;o quite el sustituto «LOGO» del diseño o la plantilla.&lt;/small&gt;&lt;/small&gt;</translation>
    </message>
</context>
<context>
    <name>PdfImageView</name>
    <message>
        <source>The PDF “%1” could not be opened.</source>
        <translation>No se pudo abrir el PDF «%1».</translation>
    </message>
</context>
<context>
    <name>PdfRenderer</name>
    <message>
        <source>The PDF could not be made.</source>
        <translation>No se pudo crear el PDF.</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>7 days</source>
        <translation>7 días</translation>
    </message>
    <message>
        <source>14 days</source>
        <translation>14 días</translation>
    </message>
    <message>
        <source>21 days</source>
        <translation>21 días</translation>
    </message>
    <message>
        <source>28 days</source>
        <translation>28 días</translation>
    </message>
</context>
<context>
    <name>PropertyList</name>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file is too large to be a Vorn file.</source>
        <translation>El archivo es demasiado grande para ser un archivo de Vorn.</translation>
    </message>
    <message>
        <source>The file is damaged or not a property list.</source>
        <translation>El archivo está dañado o no es una lista de propiedades.</translation>
    </message>
</context>
<context>
    <name>QtUserInterface</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 Files (%2)</source>
        <translation>Archivos %1 (%2)</translation>
    </message>
    <message>
        <source>No printer is set up. Add a printer in the system settings, or export the document as a PDF file and print that.</source>
        <translation>No hay ninguna impresora configurada. Añada una impresora en la configuración del sistema, o exporte el documento como PDF e imprima ese archivo.</translation>
    </message>
    <message>
        <source>The printer “%1” did not accept the job.</source>
        <translation>La impresora «%1» no aceptó el trabajo.</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>No se pudo imprimir el documento.</translation>
    </message>
</context>
<context>
    <name>SentLock</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to make changes, please set its status back to &apos;Created&apos; first. Then you will also be able to resend the modified invoice.</source>
        <translation>La factura seleccionada ya está marcada como enviada. Si de verdad necesita modificarla, cambie primero su estado a «Creada». Así también podrá volver a enviar la factura modificada.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Serialization</name>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>a yes/no value</source>
        <translation>un valor sí/no</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>una fecha</translation>
    </message>
    <message>
        <source>data</source>
        <translation>datos</translation>
    </message>
    <message>
        <source>a record has no class name</source>
        <translation>un registro no tiene nombre de clase</translation>
    </message>
    <message>
        <source>it names an unknown kind of record, “%1”</source>
        <translation>nombra un tipo de registro desconocido, «%1»</translation>
    </message>
    <message>
        <source>a record of kind “%1” stands where a “%2” belongs</source>
        <translation>hay un registro de tipo «%1» donde corresponde un «%2»</translation>
    </message>
    <message>
        <source>its records are nested too deeply</source>
        <translation>sus registros están anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>it holds too many records</source>
        <translation>contiene demasiados registros</translation>
    </message>
    <message>
        <source>a list of records</source>
        <translation>una lista de registros</translation>
    </message>
    <message>
        <source>a record</source>
        <translation>un registro</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>El archivo está dañado: %1.</translation>
    </message>
    <message>
        <source>the value of “%1” (%2) is not %3</source>
        <translation>el valor de «%1» (%2) no es %3</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>No se pudo leer la base de datos de Vorn «%1».</translation>
    </message>
    <message>
        <source>The file “%1” is not a Vorn database.</source>
        <translation>El archivo «%1» no es una base de datos de Vorn.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged and cannot be opened.</source>
        <translation>La base de datos de Vorn «%1» está dañada y no se puede abrir.</translation>
    </message>
    <message>
        <source>The file is shorter than its contents require; it may have been cut off while copying.</source>
        <translation>El archivo es más corto de lo que exige su contenido; puede que se cortara al copiarlo.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>No se pudo abrir la base de datos de Vorn «%1».</translation>
    </message>
    <message>
        <source>The Vorn database “%1” cannot be written: you don&apos;t have permission.</source>
        <translation>No se puede escribir la base de datos de Vorn «%1»: no tiene permiso.</translation>
    </message>
    <message>
        <source>The Vorn database is in use by another program.</source>
        <translation>Otro programa está usando la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” was made by a newer version of Vorn.</source>
        <translation>La base de datos de Vorn «%1» se creó con una versión más reciente de Vorn.</translation>
    </message>
    <message>
        <source>This version of Vorn cannot read it. Use the newer version, or restore a backup made with this version.</source>
        <translation>Esta versión de Vorn no puede leerla. Use la versión más reciente o restaure una copia de seguridad hecha con esta versión.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be created.</source>
        <translation>No se pudo crear la base de datos de Vorn «%1».</translation>
    </message>
    <message>
        <source>The Vorn database could not be saved.</source>
        <translation>No se pudo guardar la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>The disk is full: the Vorn database could not be saved.</source>
        <translation>El disco está lleno: no se pudo guardar la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>Your changes are kept while Vorn runs and saved with the next change once there is space again; what was saved before is not lost. (%1)</source>
        <translation>Sus cambios se conservan mientras Vorn esté abierto y se guardan con el siguiente cambio en cuanto vuelva a haber espacio; lo que se guardó antes no se pierde. (%1)</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be brought up to date.</source>
        <translation>No se ha podido actualizar la base de datos de Vorn «%1».</translation>
    </message>
</context>
<context>
    <name>StoreSnapshot</name>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The copy “%1” could not be written.</source>
        <translation>No se pudo escribir la copia «%1».</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>La carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be written to (%2).</source>
        <translation>No se puede escribir en la carpeta «%1» (%2).</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be read.</source>
        <translation>No se pudo leer la base de datos de Vorn «%1».</translation>
    </message>
    <message>
        <source>The copy could not be flushed to disk.</source>
        <translation>No se pudo volcar la copia al disco.</translation>
    </message>
    <message>
        <source>There is no open Vorn database to copy.</source>
        <translation>No hay ninguna base de datos de Vorn abierta que copiar.</translation>
    </message>
    <message>
        <source>The Vorn database “%1” could not be opened.</source>
        <translation>No se pudo abrir la base de datos de Vorn «%1».</translation>
    </message>
    <message>
        <source>The Vorn database “%1” is damaged.</source>
        <translation>La base de datos de Vorn «%1» está dañada.</translation>
    </message>
    <message>
        <source>SQLite&apos;s integrity check found: %1</source>
        <translation>La comprobación de integridad de SQLite encontró: %1</translation>
    </message>
    <message>
        <source>The file “%1” could not be put in place.</source>
        <translation>No se pudo colocar el archivo «%1» en su sitio.</translation>
    </message>
</context>
<context>
    <name>SyntaxDefinition</name>
    <message>
        <source>The syntax definition “%1” is missing.</source>
        <translation>Falta la definición de sintaxis «%1».</translation>
    </message>
    <message>
        <source>The syntax definition “%1” is damaged.</source>
        <translation>La definición de sintaxis «%1» está dañada.</translation>
    </message>
</context>
<context>
    <name>VCardReader</name>
    <message>
        <source>the card beginning on line %1 was cut off by the size limit and was not read.</source>
        <translation>la tarjeta que empieza en la línea %1 quedó cortada por el límite de tamaño y no se leyó.</translation>
    </message>
    <message>
        <source>the card beginning on line %1 has no end; it was read as far as it goes.</source>
        <translation>la tarjeta que empieza en la línea %1 no tiene final; se leyó hasta donde llega.</translation>
    </message>
    <message>
        <source>text outside of any card was ignored.</source>
        <translation>se ignoró el texto situado fuera de cualquier tarjeta.</translation>
    </message>
    <message>
        <source>no contact cards found.</source>
        <translation>no se encontraron tarjetas de contacto.</translation>
    </message>
    <message>
        <source>card %1: line %2 is longer than the reader accepts and was skipped.</source>
        <translation>tarjeta %1: la línea %2 es más larga de lo que admite el lector y se omitió.</translation>
    </message>
    <message>
        <source>card %1: line %2 is not a property and was skipped.</source>
        <translation>tarjeta %1: la línea %2 no es una propiedad y se omitió.</translation>
    </message>
    <message>
        <source>card %1 has more than %2 properties; the rest were skipped.</source>
        <translation>la tarjeta %1 tiene más de %2 propiedades; se omitió el resto.</translation>
    </message>
    <message>
        <source>card %1 (line %2) uses the unknown character set “%3” and was skipped.</source>
        <translation>la tarjeta %1 (línea %2) usa el juego de caracteres desconocido «%3» y se omitió.</translation>
    </message>
    <message>
        <source>larger than %1 MB; only the contacts in the first %1 MB were read.</source>
        <translation>supera los %1 MB; solo se leyeron los contactos de los primeros %1 MB.</translation>
    </message>
    <message>
        <source>cannot be read (%1).</source>
        <translation>no se puede leer (%1).</translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation>no existe.</translation>
    </message>
    <message>
        <source>More than %1 contact files were found; only the first %1 were read.</source>
        <translation>Se encontraron más de %1 archivos de contactos; solo se leyeron los primeros %1.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation>Facturas, presupuestos y recordatorios de pago.</translation>
    </message>
    <message>
        <source>Files to open (Vorn explains how to import them).</source>
        <translation>Archivos que abrir (Vorn explica cómo importarlos).</translation>
    </message>
    <message>
        <source>Vorn is already running.</source>
        <translation>Vorn ya está en ejecución.</translation>
    </message>
</context>
<context>
    <name>vorn::AboutDialog</name>
    <message>
        <source>About Vorn</source>
        <translation>Acerca de Vorn</translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Invoices, quotes and payment reminders.</source>
        <translation>Facturas, presupuestos y recordatorios de pago.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte</translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation>Agradecimientos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>vorn::AddressController</name>
    <message>
        <source>You need to provide an address pattern in the Preferences.</source>
        <translation>Indique un patrón de dirección en las preferencias.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
</context>
<context>
    <name>vorn::AddressPage</name>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>&amp;Choose Address…</source>
        <translation>&amp;Elegir dirección…</translation>
    </message>
    <message>
        <source>Client &amp;address:</source>
        <translation>&amp;Dirección del cliente:</translation>
    </message>
    <message>
        <source>Client address</source>
        <translation>Dirección del cliente</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;Correo:</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Generar</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Generar número de cliente</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>&amp;Número de cliente:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Número de cliente</translation>
    </message>
    <message>
        <source>&amp;Subject:</source>
        <translation>&amp;Asunto:</translation>
    </message>
</context>
<context>
    <name>vorn::AddressPopover</name>
    <message>
        <source>Client Address</source>
        <translation>Dirección del cliente</translation>
    </message>
    <message>
        <source>Address source</source>
        <translation>Origen de la dirección</translation>
    </message>
    <message>
        <source>Search contacts</source>
        <translation>Buscar contactos</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>Open Contacts Application</source>
        <translation>Abrir la aplicación de contactos</translation>
    </message>
    <message>
        <source>Recent Addresses</source>
        <translation>Direcciones recientes</translation>
    </message>
    <message>
        <source>&amp;Generate</source>
        <translation>&amp;Generar</translation>
    </message>
    <message>
        <source>Generate client number</source>
        <translation>Generar número de cliente</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;Correo:</translation>
    </message>
    <message>
        <source>Client &amp;number:</source>
        <translation>&amp;Número de cliente:</translation>
    </message>
    <message>
        <source>Client number</source>
        <translation>Número de cliente</translation>
    </message>
    <message>
        <source>&amp;Use Address</source>
        <translation>&amp;Usar dirección</translation>
    </message>
    <message>
        <source>No contacts found. Vorn reads vCard files from the contacts folder set in the preferences.</source>
        <translation>No se han encontrado contactos. Vorn lee los archivos vCard de la carpeta de contactos indicada en las preferencias.</translation>
    </message>
</context>
<context>
    <name>vorn::AppDelegate</name>
    <message>
        <source>Expected a folder to store application data, found a file (%1).</source>
        <translation>Se esperaba una carpeta para los datos de la aplicación, pero se encontró un archivo (%1).</translation>
    </message>
    <message>
        <source>The folder “%1” could not be created.</source>
        <translation>No se pudo crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to create it.</source>
        <translation>No tiene permiso para crearla.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>No se pudo inicializar el almacén</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Se produjo un error al crear el archivo de datos.</translation>
    </message>
    <message>
        <source>The default settings “%1” are missing.</source>
        <translation>Faltan los ajustes predeterminados «%1».</translation>
    </message>
    <message>
        <source>The default settings “%1” are damaged.</source>
        <translation>Los ajustes predeterminados «%1» están dañados.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si sale ahora, perderá todos los cambios hechos desde la última vez que se guardó correctamente</translation>
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
        <source>Vorn, Vorn Documents, and the Vorn Database</source>
        <translation>Vorn, los documentos de Vorn y la base de datos de Vorn</translation>
    </message>
    <message>
        <source>In order to avoid duplicate entries, hiccups, and to keep the database intact - please use the &apos;File Menu&apos; to open documents and to restore the Vorn database.</source>
        <translation>Para evitar entradas duplicadas y contratiempos, y para mantener intacta la base de datos, use el menú «Archivo» para abrir documentos y para restaurar la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>vorn::AssiController</name>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>It seems that you&apos;ve already setup Vorn and have run the setup assistant at least once before. Doing this again will delete all your customizations and replace them with the default values. Do you really want to continue?</source>
        <translation>Parece que ya ha configurado Vorn y ha ejecutado el asistente de configuración al menos una vez. Si lo vuelve a hacer, se eliminarán todas sus personalizaciones y se sustituirán por los valores predeterminados. ¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Continue…</source>
        <translation>Continuar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>30 Second Introduction</source>
        <translation>Presentación de 30 segundos</translation>
    </message>
    <message>
        <source>Do you want to see the 30 second introduction video before creating your first invoice?</source>
        <translation>¿Quiere ver el vídeo de presentación de 30 segundos antes de crear su primera factura?</translation>
    </message>
    <message>
        <source>Yes, please!</source>
        <translation>¡Sí, por favor!</translation>
    </message>
    <message>
        <source>No, I prefer to suffer in silence.</source>
        <translation>No, prefiero sufrir en silencio.</translation>
    </message>
</context>
<context>
    <name>vorn::AssistantSheet</name>
    <message>
        <source>Vorn Setup Assistant</source>
        <translation>Asistente de configuración de Vorn</translation>
    </message>
    <message>
        <source>Welcome to Vorn</source>
        <translation>Bienvenido a Vorn</translation>
    </message>
    <message>
        <source>Your Business</source>
        <translation>Su empresa</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Manténgase informado</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Todo listo</translation>
    </message>
    <message>
        <source>Choose your language. Vorn writes its default texts in it: the words printed on your invoices and quotes, the payment terms, the tax names and the number patterns. Its windows use it too.

Running the assistant again replaces your own texts with these defaults.</source>
        <translation>Elija su idioma. Vorn escribe en él sus textos predeterminados: las palabras impresas en sus facturas y presupuestos, las condiciones de pago, los nombres de los impuestos y los patrones de numeración. Sus ventanas también lo usan.

Si vuelve a ejecutar el asistente, sus propios textos se sustituirán por estos valores predeterminados.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Who writes the invoices? Your company name and your contact details go into your documents; you can change them later in the preferences.</source>
        <translation>¿Quién emite las facturas? El nombre de su empresa y sus datos de contacto aparecen en sus documentos; podrá cambiarlos más adelante en las preferencias.</translation>
    </message>
    <message>
        <source>&amp;Company name:</source>
        <translation>Nombre de la &amp;empresa:</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Nombre de la empresa</translation>
    </message>
    <message>
        <source>C&amp;ontact:</source>
        <translation>C&amp;ontacto:</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Check for &amp;updates once a day when Vorn starts</source>
        <translation>Buscar &amp;actualizaciones una vez al día al iniciar Vorn</translation>
    </message>
    <message>
        <source>Check for updates once a day when Vorn starts</source>
        <translation>Buscar actualizaciones una vez al día al iniciar Vorn</translation>
    </message>
    <message>
        <source>Subscribe to the Vorn newsletter to hear about new versions and tips. We write rarely, and you can leave at any time. This page is optional.</source>
        <translation>Suscríbase al boletín de Vorn para enterarse de las nuevas versiones y recibir consejos. Escribimos pocas veces y puede darse de baja cuando quiera. Este paso es opcional.</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;Correo:</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>Dirección de correo electrónico</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nombre@ejemplo.es</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;Suscribirse</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Suscribirse</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Suscribiendo</translation>
    </message>
    <message>
        <source>Vorn is ready. Create your first invoice with the New Invoice button.

You find this assistant again in the Help menu.</source>
        <translation>Vorn está listo. Cree su primera factura con el botón «Nueva factura».

Encontrará este asistente de nuevo en el menú Ayuda.</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>&amp;Salir de Vorn</translation>
    </message>
    <message>
        <source>Quit Vorn</source>
        <translation>Salir de Vorn</translation>
    </message>
    <message>
        <source>&amp;Start Using Vorn</source>
        <translation>&amp;Empezar a usar Vorn</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Start Using Vorn</source>
        <translation>Empezar a usar Vorn</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
</context>
<context>
    <name>vorn::BackupController</name>
    <message>
        <source>It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or restore it from an internal backup. You should only proceed if you&apos;re sure that your database really is not intact, since this action will replace any possible data. Should Vorn not be able to repair or restore your database, please restore it from your own (Time Machine) backups. Do you want to proceed?</source>
        <translation>Parece que su base de datos de Vorn se ha dañado o destruido. Vorn puede intentar repararla o restaurarla a partir de una copia de seguridad interna. Continúe solo si está seguro de que su base de datos realmente no está intacta, ya que esta acción sustituirá los datos que pueda haber. Si Vorn no consigue reparar o restaurar su base de datos, restáurela a partir de sus propias copias de seguridad (Time Machine). ¿Desea continuar?</translation>
    </message>
    <message>
        <source>There is no open Vorn database to back up.</source>
        <translation>No hay ninguna base de datos de Vorn abierta de la que hacer una copia de seguridad.</translation>
    </message>
    <message>
        <source>A backup cannot replace the Vorn database itself.</source>
        <translation>Una copia de seguridad no puede sustituir a la propia base de datos de Vorn.</translation>
    </message>
    <message>
        <source>Please choose another name or folder for the backup.</source>
        <translation>Elija otro nombre u otra carpeta para la copia de seguridad.</translation>
    </message>
    <message>
        <source>Backup Vorn Database</source>
        <translation>Copia de seguridad de la base de datos de Vorn</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Base de datos de Vorn</translation>
    </message>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>No valid backup file available. Please restore your Vorn database from your own (Time Machine) backups.</source>
        <translation>No hay ninguna copia de seguridad válida. Restaure su base de datos de Vorn a partir de sus propias copias de seguridad (Time Machine).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>You are about to restore your complete Vorn database from a backup. This will irretrievably replace any existing data. Do you really want to do that?</source>
        <translation>Está a punto de restaurar toda su base de datos de Vorn a partir de una copia de seguridad. Todos los datos existentes se sustituirán de forma irreversible. ¿Seguro que quiere hacerlo?</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Restore Vorn Database</source>
        <translation>Restaurar la base de datos de Vorn</translation>
    </message>
    <message>
        <source>Nothing was changed: your Vorn database is as it was.</source>
        <translation>No se ha cambiado nada: su base de datos de Vorn sigue como estaba.</translation>
    </message>
    <message>
        <source>There is no place to restore the Vorn database to.</source>
        <translation>No hay ningún lugar donde restaurar la base de datos de Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” is the Vorn database itself.</source>
        <translation>El archivo «%1» es la propia base de datos de Vorn.</translation>
    </message>
    <message>
        <source>The file “%1” could not be found.</source>
        <translation>No se encontró el archivo «%1».</translation>
    </message>
    <message>
        <source>The file “%1” disappeared while it was being read.</source>
        <translation>El archivo «%1» desapareció mientras se leía.</translation>
    </message>
</context>
<context>
    <name>vorn::DataController</name>
    <message>
        <source>New Invoice</source>
        <translation>Nueva factura</translation>
    </message>
    <message>
        <source>New Quote</source>
        <translation>Nuevo presupuesto</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Sorry!</source>
        <translation>¡Lo sentimos!</translation>
    </message>
    <message>
        <source>You can&apos;t convert an invoice into a quote.</source>
        <translation>No se puede convertir una factura en un presupuesto.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Convert Into Invoice</source>
        <translation>Convertir en factura</translation>
    </message>
    <message>
        <source>Do you really want to convert the selected quote into an invoice? This will also change the title, the counter for your invoice numbering and you can&apos;t undo this action.</source>
        <translation>¿Seguro que quiere convertir el presupuesto seleccionado en una factura? Esto también cambia el título y el contador de su numeración de facturas, y no se puede deshacer.</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>The selected invoice is marked as already sent. If you really need to delete it, please set its status back to &apos;Created&apos; first.</source>
        <translation>La factura seleccionada ya está marcada como enviada. Si de verdad necesita eliminarla, cambie primero su estado a «Creada».</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Eliminar factura</translation>
    </message>
    <message>
        <source>Deleting invoices is permanent and cannot be undone. Do you really want to delete the selected invoice?</source>
        <translation>Eliminar facturas es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar la factura seleccionada?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Eliminar presupuesto</translation>
    </message>
    <message>
        <source>Deleting quotes is permanent and cannot be undone. Do you really want to delete the selected quote?</source>
        <translation>Eliminar presupuestos es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el presupuesto seleccionado?</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Despachada</translation>
    </message>
</context>
<context>
    <name>vorn::DesignBuilder</name>
    <message>
        <source>Duplicate Design</source>
        <translation>Duplicar diseño</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>Copia de %1</translation>
    </message>
    <message>
        <source>Edit Design</source>
        <translation>Editar diseño</translation>
    </message>
    <message>
        <source>Choose Logo</source>
        <translation>Elegir logotipo</translation>
    </message>
    <message>
        <source>The logo was not changed.</source>
        <translation>El logotipo no se cambió.</translation>
    </message>
    <message>
        <source>“%1” is too large for a logo.</source>
        <translation>«%1» es demasiado grande para un logotipo.</translation>
    </message>
    <message>
        <source>“%1” could not be read.</source>
        <translation>No se pudo leer «%1».</translation>
    </message>
    <message>
        <source>“%1” is not an image.</source>
        <translation>«%1» no es una imagen.</translation>
    </message>
</context>
<context>
    <name>vorn::DesignController</name>
    <message>
        <source>The built-in design “%1” is missing.</source>
        <translation>Falta el diseño integrado «%1».</translation>
    </message>
    <message>
        <source>The built-in design “%1” is damaged.</source>
        <translation>El diseño integrado «%1» está dañado.</translation>
    </message>
    <message>
        <source>The texts of a new design are missing.</source>
        <translation>Faltan los textos de un diseño nuevo.</translation>
    </message>
    <message>
        <source>New Design</source>
        <translation>Nuevo diseño</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>You can&apos;t delete the default design.</source>
        <translation>No se puede eliminar el diseño predeterminado.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Delete Design</source>
        <translation>Eliminar diseño</translation>
    </message>
    <message>
        <source>Deleting designs is permanent and cannot be undone. Do you really want to delete the selected design?</source>
        <translation>Eliminar diseños es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el diseño seleccionado?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Establecer como predeterminado</translation>
    </message>
    <message>
        <source>Import Vorn Design</source>
        <translation>Importar diseño de Vorn</translation>
    </message>
    <message>
        <source>Import Design</source>
        <translation>Importar diseño</translation>
    </message>
    <message>
        <source>Export Vorn Design</source>
        <translation>Exportar diseño de Vorn</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountController</name>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
</context>
<context>
    <name>vorn::DiscountPopover</name>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>&amp;Mostrar subtítulo</translation>
    </message>
    <message>
        <source>Fixed amount</source>
        <translation>Importe fijo</translation>
    </message>
    <message>
        <source>Percentage of the total</source>
        <translation>Porcentaje del total</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Subtítulo:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ipo:</translation>
    </message>
    <message>
        <source>&amp;Percent:</source>
        <translation>&amp;Porcentaje:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>Impo&amp;rte:</translation>
    </message>
    <message>
        <source>&amp;No Discount</source>
        <translation>Si&amp;n descuento</translation>
    </message>
    <message>
        <source>&amp;Give Discount</source>
        <translation>&amp;Aplicar descuento</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentEditor</name>
    <message>
        <source>No document is selected.</source>
        <translation>No hay ningún documento seleccionado.</translation>
    </message>
    <message>
        <source>This invoice is marked as sent, so it cannot be changed. Set its status back to &quot;Created&quot; to change it.</source>
        <translation>Esta factura está marcada como enviada, por lo que no se puede modificar. Vuelva a poner su estado en «Creada» para modificarla.</translation>
    </message>
    <message>
        <source>Change Title</source>
        <translation>Cambiar título</translation>
    </message>
    <message>
        <source>Change Subtitle</source>
        <translation>Cambiar subtítulo</translation>
    </message>
    <message>
        <source>Change Subject</source>
        <translation>Cambiar asunto</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Cambiar dirección</translation>
    </message>
    <message>
        <source>Change E-mail Address</source>
        <translation>Cambiar dirección de correo</translation>
    </message>
    <message>
        <source>Change Client Number</source>
        <translation>Cambiar número de cliente</translation>
    </message>
    <message>
        <source>Change Number</source>
        <translation>Cambiar número</translation>
    </message>
    <message>
        <source>Change Date</source>
        <translation>Cambiar fecha</translation>
    </message>
    <message>
        <source>Change Due Date</source>
        <translation>Cambiar vencimiento</translation>
    </message>
    <message>
        <source>Change Status</source>
        <translation>Cambiar estado</translation>
    </message>
    <message>
        <source>Change Paid Date</source>
        <translation>Cambiar fecha de pago</translation>
    </message>
    <message>
        <source>Change Paid Amount</source>
        <translation>Cambiar importe pagado</translation>
    </message>
    <message>
        <source>Change Dispatched</source>
        <translation>Cambiar despacho</translation>
    </message>
    <message>
        <source>Change Dispatch Number</source>
        <translation>Cambiar número de despacho</translation>
    </message>
    <message>
        <source>Change Currency</source>
        <translation>Cambiar moneda</translation>
    </message>
    <message>
        <source>Change Notes</source>
        <translation>Cambiar notas</translation>
    </message>
    <message>
        <source>Change Conditions</source>
        <translation>Cambiar condiciones</translation>
    </message>
    <message>
        <source>Change Footer</source>
        <translation>Cambiar pie de página</translation>
    </message>
    <message>
        <source>Change Quantity</source>
        <translation>Cambiar cantidad</translation>
    </message>
    <message>
        <source>Change Unit</source>
        <translation>Cambiar unidad</translation>
    </message>
    <message>
        <source>Change Price</source>
        <translation>Cambiar precio</translation>
    </message>
    <message>
        <source>Change SKU</source>
        <translation>Cambiar referencia</translation>
    </message>
    <message>
        <source>Change Note</source>
        <translation>Cambiar nota</translation>
    </message>
    <message>
        <source>Change Tax</source>
        <translation>Cambiar impuesto</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Change Buyer Country</source>
        <translation>Cambiar país del comprador</translation>
    </message>
    <message>
        <source>Change Buyer VAT ID</source>
        <translation>Cambiar NIF-IVA del comprador</translation>
    </message>
    <message>
        <source>Change Buyer Reference</source>
        <translation>Cambiar referencia del comprador</translation>
    </message>
    <message>
        <source>Change Order Reference</source>
        <translation>Cambiar referencia del pedido</translation>
    </message>
</context>
<context>
    <name>vorn::DocumentListModel</name>
    <message>
        <source>Sent</source>
        <translation>Enviada</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Vencida</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Pagada</translation>
    </message>
    <message>
        <source>Partly Paid</source>
        <translation>Pagada en parte</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creada</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceController</name>
    <message>
        <source>No invoice is selected.</source>
        <translation>No hay ninguna factura seleccionada.</translation>
    </message>
    <message>
        <source>The invoice changed while its PDF was made.</source>
        <translation>La factura ha cambiado mientras se creaba su PDF.</translation>
    </message>
    <message>
        <source>The e-invoice cannot be made</source>
        <translation>No se puede crear la factura electrónica</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Export As XRechnung XML</source>
        <translation>Exportar como XML XRechnung</translation>
    </message>
    <message>
        <source>Export As E-Invoice (Factur-X PDF)</source>
        <translation>Exportar como factura electrónica (PDF Factur-X)</translation>
    </message>
</context>
<context>
    <name>vorn::EInvoiceValidator</name>
    <message>
        <source>Only invoices can be sent as e-invoices; this is a quote.</source>
        <translation>Solo las facturas pueden enviarse como factura electrónica; esto es un presupuesto.</translation>
    </message>
    <message>
        <source>The invoice&apos;s currency is missing.</source>
        <translation>Falta la moneda de la factura.</translation>
    </message>
    <message>
        <source>The currency “%1” has no ISO code: write it as a three-letter code such as EUR.</source>
        <translation>La moneda «%1» no tiene código ISO: escríbala como un código de tres letras, como EUR.</translation>
    </message>
    <message>
        <source>The seller&apos;s country is missing.</source>
        <translation>Falta el país del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>El país del vendedor «%1» no es un código de país de dos letras, como ES.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier or tax number is missing.</source>
        <translation>Falta el NIF-IVA o el número fiscal del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s VAT identifier “%1” must begin with its country code, as in DE123456789.</source>
        <translation>El NIF-IVA del vendedor «%1» debe empezar por su código de país, como en DE123456789.</translation>
    </message>
    <message>
        <source>The seller&apos;s IBAN is missing.</source>
        <translation>Falta el IBAN del vendedor.</translation>
    </message>
    <message>
        <source>The IBAN “%1” is not valid: its length or check digits are wrong.</source>
        <translation>El IBAN «%1» no es válido: su longitud o sus dígitos de control son incorrectos.</translation>
    </message>
    <message>
        <source>The BIC “%1” is not valid: it has 8 or 11 letters and digits.</source>
        <translation>El BIC «%1» no es válido: tiene 8 u 11 letras y dígitos.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country is missing.</source>
        <translation>Falta el país del comprador.</translation>
    </message>
    <message>
        <source>The buyer&apos;s country “%1” is not a two-letter country code such as DE.</source>
        <translation>El país del comprador «%1» no es un código de país de dos letras, como ES.</translation>
    </message>
    <message>
        <source>The buyer&apos;s VAT identifier “%1” must begin with its country code, as in FR12345678901.</source>
        <translation>El NIF-IVA del comprador «%1» debe empezar por su código de país, como en FR12345678901.</translation>
    </message>
    <message>
        <source>The invoice has no items.</source>
        <translation>La factura no tiene artículos.</translation>
    </message>
    <message>
        <source>Item %1 has no description.</source>
        <translation>El artículo %1 no tiene descripción.</translation>
    </message>
    <message>
        <source>The invoice total must be more than zero: an invoice with a negative total is a credit note.</source>
        <translation>El total de la factura debe ser mayor que cero: una factura con total negativo es una factura rectificativa.</translation>
    </message>
    <message>
        <source>The invoice&apos;s amounts do not add up: change an item or recompute the invoice, then export it again.</source>
        <translation>Los importes de la factura no cuadran: cambie un artículo o vuelva a calcular la factura y expórtela de nuevo.</translation>
    </message>
    <message>
        <source>The invoice number is missing.</source>
        <translation>Falta el número de factura.</translation>
    </message>
    <message>
        <source>The invoice date is missing.</source>
        <translation>Falta la fecha de la factura.</translation>
    </message>
    <message>
        <source>The seller&apos;s legal name is missing.</source>
        <translation>Falta la razón social del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s street is missing.</source>
        <translation>Falta la calle del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s postcode is missing.</source>
        <translation>Falta el código postal del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s city is missing.</source>
        <translation>Falta la ciudad del vendedor.</translation>
    </message>
    <message>
        <source>The buyer&apos;s name is missing: it is the first line of the address.</source>
        <translation>Falta el nombre del comprador: es la primera línea de la dirección.</translation>
    </message>
    <message>
        <source>The buyer reference (Leitweg-ID) is missing.</source>
        <translation>Falta la referencia del comprador (Leitweg-ID).</translation>
    </message>
    <message>
        <source>The seller&apos;s contact e-mail is missing.</source>
        <translation>Falta el correo de contacto del vendedor.</translation>
    </message>
    <message>
        <source>The seller&apos;s contact phone is missing.</source>
        <translation>Falta el teléfono de contacto del vendedor.</translation>
    </message>
    <message>
        <source>The buyer&apos;s e-mail address is missing.</source>
        <translation>Falta la dirección de correo del comprador.</translation>
    </message>
    <message>
        <source>The buyer&apos;s postcode and city are missing: write them on the last line of the address, as in “10115 Berlin”.</source>
        <translation>Faltan el código postal y la ciudad del comprador: escríbalos en la última línea de la dirección, como en «28001 Madrid».</translation>
    </message>
</context>
<context>
    <name>vorn::ExportController</name>
    <message>
        <source>Print Invoice</source>
        <translation>Imprimir factura</translation>
    </message>
    <message>
        <source>Export Invoice As PDF File</source>
        <translation>Exportar factura como PDF</translation>
    </message>
    <message>
        <source>Send Invoice As Email Attachment</source>
        <translation>Enviar factura como adjunto de correo</translation>
    </message>
    <message>
        <source>Export Invoice</source>
        <translation>Exportar factura</translation>
    </message>
    <message>
        <source>Export As PDF File</source>
        <translation>Exportar como PDF</translation>
    </message>
    <message>
        <source>The PDF “%1” could not be read.</source>
        <translation>No se pudo leer el PDF «%1».</translation>
    </message>
    <message>
        <source>Export As XML Document</source>
        <translation>Exportar como documento XML</translation>
    </message>
    <message>
        <source>Export As Vorn Document</source>
        <translation>Exportar como documento de Vorn</translation>
    </message>
    <message>
        <source>The e-mail could not be prepared</source>
        <translation>No se pudo preparar el correo</translation>
    </message>
    <message>
        <source>No mail program could be started. The PDF is shown in the file manager so that you can attach it to a message yourself.</source>
        <translation>No se pudo iniciar ningún programa de correo. El PDF se muestra en el gestor de archivos para que pueda adjuntarlo usted mismo a un mensaje.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Mark as Sent</source>
        <translation>Marcar como enviada</translation>
    </message>
</context>
<context>
    <name>vorn::ExportSheet</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Making the PDF…</source>
        <translation>Creando el PDF…</translation>
    </message>
    <message>
        <source>No PDF</source>
        <translation>Sin PDF</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Write E-mail</source>
        <translation>Escribir correo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>No document is selected.</source>
        <translation>No hay ningún documento seleccionado.</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
    <message>
        <source>Your mail program opens a new message with the PDF attached.</source>
        <translation>Su programa de correo abre un mensaje nuevo con el PDF adjunto.</translation>
    </message>
    <message>
        <source>Your mail program opens a new message to %1 with the PDF attached.</source>
        <translation>Su programa de correo abre un mensaje nuevo para %1 con el PDF adjunto.</translation>
    </message>
    <message>
        <source>The invoice will be marked as sent.</source>
        <translation>La factura se marcará como enviada.</translation>
    </message>
</context>
<context>
    <name>vorn::FilterPopover</name>
    <message>
        <source>All Documents</source>
        <translation>Todos los documentos</translation>
    </message>
    <message>
        <source>Sent Invoices</source>
        <translation>Facturas enviadas</translation>
    </message>
    <message>
        <source>Overdue Invoices</source>
        <translation>Facturas vencidas</translation>
    </message>
    <message>
        <source>Paid Invoices</source>
        <translation>Facturas pagadas</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Presupuestos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>This Week</source>
        <translation>Esta semana</translation>
    </message>
    <message>
        <source>This Month</source>
        <translation>Este mes</translation>
    </message>
    <message>
        <source>This Year</source>
        <translation>Este año</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Dated within</source>
        <translation>Período</translation>
    </message>
</context>
<context>
    <name>vorn::GUIController</name>
    <message>
        <source>Delete Invoice</source>
        <translation>Eliminar factura</translation>
    </message>
    <message>
        <source>Delete Quote</source>
        <translation>Eliminar presupuesto</translation>
    </message>
    <message>
        <source>No calculator found</source>
        <translation>No se ha encontrado ninguna calculadora</translation>
    </message>
    <message>
        <source>Vorn starts GNOME Calculator, KCalc, Galculator or Qalculate, but none of them is installed.</source>
        <translation>Vorn abre Calculadora de GNOME, KCalc, Galculator o Qalculate, pero ninguna está instalada.</translation>
    </message>
</context>
<context>
    <name>vorn::HelpMenu</name>
    <message>
        <source>Vorn &amp;Manual</source>
        <translation>&amp;Manual de Vorn</translation>
    </message>
    <message>
        <source>&amp;Introduction Video</source>
        <translation>&amp;Vídeo de presentación</translation>
    </message>
    <message>
        <source>Contact &amp;Support…</source>
        <translation>Contactar con el &amp;soporte…</translation>
    </message>
    <message>
        <source>Send &amp;Feedback…</source>
        <translation>Enviar &amp;comentarios…</translation>
    </message>
    <message>
        <source>Vorn &amp;Website</source>
        <translation>Sitio &amp;web de Vorn</translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation>&amp;Blog</translation>
    </message>
    <message>
        <source>Vorn on &amp;Twitter</source>
        <translation>Vorn en &amp;Twitter</translation>
    </message>
    <message>
        <source>Vorn on &amp;App.net</source>
        <translation>Vorn en &amp;App.net</translation>
    </message>
    <message>
        <source>Tandrelo &amp;Apps</source>
        <translation>Aplicaciones de Tan&amp;drelo</translation>
    </message>
    <message>
        <source>Subscribe to the &amp;Newsletter…</source>
        <translation>Suscribirse al &amp;boletín…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Buscar act&amp;ualizaciones…</translation>
    </message>
    <message>
        <source>Setup Assis&amp;tant…</source>
        <translation>Asis&amp;tente de configuración…</translation>
    </message>
    <message>
        <source>&amp;About Vorn</source>
        <translation>Acerca de &amp;Vorn</translation>
    </message>
    <message>
        <source>Restart Vorn?</source>
        <translation>¿Reiniciar Vorn?</translation>
    </message>
    <message>
        <source>The main window shows the language you chose after Vorn starts again. Restart now?</source>
        <translation>La ventana principal aparecerá en el idioma elegido cuando Vorn se vuelva a iniciar. ¿Reiniciar ahora?</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Introduction Video</source>
        <translation>Vídeo de presentación</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>vorn::InfoPage</name>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Ne&amp;xt Number</source>
        <translation>Número &amp;siguiente</translation>
    </message>
    <message>
        <source>Next number</source>
        <translation>Número siguiente</translation>
    </message>
    <message>
        <source>Number this document from the numbering pattern</source>
        <translation>Numerar este documento según el patrón de numeración</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Número:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source> days from today</source>
        <translation> días a partir de hoy</translation>
    </message>
    <message>
        <source>Due in days from today</source>
        <translation>Vence en días a partir de hoy</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>&amp;Vencimiento:</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Vencimiento</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>&amp;Estado:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Paid amount</source>
        <translation>Importe pagado</translation>
    </message>
    <message>
        <source>Paid &amp;amount:</source>
        <translation>&amp;Importe pagado:</translation>
    </message>
    <message>
        <source>&amp;Paid on:</source>
        <translation>&amp;Pagada el:</translation>
    </message>
    <message>
        <source>Paid on</source>
        <translation>Pagada el</translation>
    </message>
    <message>
        <source>D&amp;ispatched</source>
        <translation>&amp;Despachada</translation>
    </message>
    <message>
        <source>Dispatch number</source>
        <translation>Número de despacho</translation>
    </message>
    <message>
        <source>Stamp &amp;Now</source>
        <translation>&amp;Ahora</translation>
    </message>
    <message>
        <source>Mark as dispatched now</source>
        <translation>Marcar como despachada ahora</translation>
    </message>
    <message>
        <source>Dispatch:</source>
        <translation>Despacho:</translation>
    </message>
    <message>
        <source>Dispatched</source>
        <translation>Despachada</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>N&amp;otes:</source>
        <translation>N&amp;otas:</translation>
    </message>
    <message>
        <source>Con&amp;ditions:</source>
        <translation>&amp;Condiciones:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>Pie de pá&amp;gina:</translation>
    </message>
    <message>
        <source>Quotes are not paid; convert the quote into an invoice first.</source>
        <translation>Los presupuestos no se pagan; convierta primero el presupuesto en factura.</translation>
    </message>
    <message>
        <source>E-Invoice</source>
        <translation>Factura electrónica</translation>
    </message>
    <message>
        <source>e.g. DE</source>
        <translation>p. ej. ES</translation>
    </message>
    <message>
        <source>The buyer&apos;s country as a two-letter code</source>
        <translation>El país del comprador como código de dos letras</translation>
    </message>
    <message>
        <source>Buyer countr&amp;y:</source>
        <translation>País de&amp;l comprador:</translation>
    </message>
    <message>
        <source>Buyer country</source>
        <translation>País del comprador</translation>
    </message>
    <message>
        <source>&amp;Buyer VAT ID:</source>
        <translation>NIF-IVA del comp&amp;rador:</translation>
    </message>
    <message>
        <source>Buyer VAT ID</source>
        <translation>NIF-IVA del comprador</translation>
    </message>
    <message>
        <source>The reference the buyer gave, for public bodies their Leitweg-ID</source>
        <translation>La referencia que dio el comprador; para organismos públicos alemanes, su Leitweg-ID</translation>
    </message>
    <message>
        <source>Buyer reference (&amp;Leitweg-ID):</source>
        <translation>Referencia del comprador (Leit&amp;weg-ID):</translation>
    </message>
    <message>
        <source>Order &amp;reference:</source>
        <translation>Referencia de s&amp;u pedido:</translation>
    </message>
</context>
<context>
    <name>vorn::InterchangeController</name>
    <message>
        <source>Warning!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by design it can&apos;t know or care about duplicate invoices, messed up numbers, or if you&apos;re having a bad hair day. So please, do yourself a favor and check what you are doing here. Do you still want to import the invoice?</source>
        <translation>La integridad de sus datos es responsabilidad suya, y solo suya. Vorn no es más que una simple aplicación y, por diseño, no puede saber ni preocuparse de si hay facturas duplicadas, números desordenados o si usted tiene un mal día. Así que hágase un favor y compruebe bien lo que está haciendo. ¿Aún quiere importar la factura?</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import Vorn Document</source>
        <translation>Importar documento de Vorn</translation>
    </message>
    <message>
        <source>There is no database to import into.</source>
        <translation>No hay ninguna base de datos en la que importar.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Vorn Database</source>
        <translation>Base de datos de Vorn</translation>
    </message>
    <message>
        <source>Export Vorn Database As XML</source>
        <translation>Exportar base de datos de Vorn como XML</translation>
    </message>
</context>
<context>
    <name>vorn::ItemCellView</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulo</translation>
    </message>
</context>
<context>
    <name>vorn::ItemController</name>
    <message>
        <source>Add Item</source>
        <translation>Añadir artículo</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Eliminar artículo</translation>
    </message>
    <message>
        <source>Deleting items is permanent and cannot be undone. Do you really want to delete the selected item?</source>
        <translation>Eliminar artículos es definitivo y no se puede deshacer. ¿Seguro que quiere eliminar el artículo seleccionado?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Move Items</source>
        <translation>Mover artículos</translation>
    </message>
</context>
<context>
    <name>vorn::ItemPopover</name>
    <message>
        <source>New Item</source>
        <translation>Nuevo artículo</translation>
    </message>
    <message>
        <source>Item source</source>
        <translation>Origen del artículo</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Subtítulo:</translation>
    </message>
    <message>
        <source>&amp;Quantity:</source>
        <translation>&amp;Cantidad:</translation>
    </message>
    <message>
        <source>U&amp;nit:</source>
        <translation>&amp;Unidad:</translation>
    </message>
    <message>
        <source>Unit &amp;price:</source>
        <translation>&amp;Precio unitario:</translation>
    </message>
    <message>
        <source>S&amp;KU:</source>
        <translation>&amp;Referencia:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Nota:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Impuestos:</translation>
    </message>
    <message>
        <source>Recent Items</source>
        <translation>Artículos recientes</translation>
    </message>
    <message>
        <source>&amp;Add Item</source>
        <translation>&amp;Añadir artículo</translation>
    </message>
    <message>
        <source>&amp;Use Item</source>
        <translation>Usar artícul&amp;o</translation>
    </message>
</context>
<context>
    <name>vorn::ItemTableModel</name>
    <message>
        <source>Gross %1</source>
        <translation>Bruto %1</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulo</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
</context>
<context>
    <name>vorn::ItemsPage</name>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Add Item…</source>
        <translation>Añadir artículo…</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Eliminar artículo</translation>
    </message>
    <message>
        <source>Shipping…</source>
        <translation>Envío…</translation>
    </message>
    <message>
        <source>Discount…</source>
        <translation>Descuento…</translation>
    </message>
    <message>
        <source>Subtotal %1</source>
        <translation>Subtotal %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>Shipping %1</source>
        <translation>Envío %1</translation>
    </message>
    <message>
        <source>Discount %1 %</source>
        <translation>Descuento %1 %</translation>
    </message>
    <message>
        <source>Discount %1</source>
        <translation>Descuento %1</translation>
    </message>
    <message>
        <source>Total %1 %2</source>
        <translation>Total %1 %2</translation>
    </message>
</context>
<context>
    <name>vorn::LineNumberRuler</name>
    <message>
        <source>Line numbers</source>
        <translation>Números de línea</translation>
    </message>
</context>
<context>
    <name>vorn::LockBanner</name>
    <message>
        <source>This invoice is marked as sent, so its fields are read-only. To change it, set its status back to &quot;Created&quot; on the Info page.</source>
        <translation>Esta factura está marcada como enviada, por lo que sus campos son de solo lectura. Para modificarla, vuelva a poner su estado en «Creada» en la página Información.</translation>
    </message>
</context>
<context>
    <name>vorn::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save all changes to the database</source>
        <translation>Guardar todos los cambios en la base de datos</translation>
    </message>
    <message>
        <source>&amp;Quit Vorn</source>
        <translation>Salir de V&amp;orn</translation>
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
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>&amp;Documento</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>New &amp;Invoice</source>
        <translation>Nueva &amp;factura</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>New &amp;Quote</source>
        <translation>Nuevo &amp;presupuesto</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>&amp;Convert Quote to Invoice…</source>
        <translation>&amp;Convertir presupuesto en factura…</translation>
    </message>
    <message>
        <source>Mark as &amp;Dispatched Now</source>
        <translation>Marcar como &amp;despachada ahora</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Eliminar factura</translation>
    </message>
    <message>
        <source>Payment &amp;Reminder…</source>
        <translation>&amp;Recordatorio de pago…</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>&amp;Import Document…</source>
        <translation>I&amp;mportar documento…</translation>
    </message>
    <message>
        <source>Export &amp;Listed Documents as XML…</source>
        <translation>Exportar documentos &amp;listados como XML…</translation>
    </message>
    <message>
        <source>Export &amp;All Documents as XML…</source>
        <translation>Exportar &amp;todos los documentos como XML…</translation>
    </message>
    <message>
        <source>&amp;Back Up Database…</source>
        <translation>Hacer copia de &amp;seguridad de la base de datos…</translation>
    </message>
    <message>
        <source>&amp;Restore Database…</source>
        <translation>&amp;Restaurar base de datos…</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Export as P&amp;DF…</source>
        <translation>Exportar como P&amp;DF…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Send by &amp;E-mail…</source>
        <translation>Enviar por &amp;correo…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>E&amp;xport Document…</source>
        <translation>E&amp;xportar documento…</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>No documents yet.</source>
        <translation>Todavía no hay documentos.</translation>
    </message>
    <message>
        <source>The Vorn database could not be opened, so there are no documents to show.</source>
        <translation>No se pudo abrir la base de datos de Vorn, así que no hay documentos que mostrar.</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>1 invoice</source>
        <translation>1 factura</translation>
    </message>
    <message>
        <source>%1 invoices</source>
        <translation>%1 facturas</translation>
    </message>
    <message>
        <source>1 quote</source>
        <translation>1 presupuesto</translation>
    </message>
    <message>
        <source>%1 quotes</source>
        <translation>%1 presupuestos</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>Artíc&amp;ulos</translation>
    </message>
    <message>
        <source>&amp;Calculator</source>
        <translation>Ca&amp;lculadora</translation>
    </message>
    <message>
        <source>Ctrl+Shift+K</source>
        <translation>Ctrl+Shift+K</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <source>Choose &amp;Address…</source>
        <translation>&amp;Seleccionar dirección…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Add Item…</source>
        <translation>&amp;Añadir artículo…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+I</source>
        <translation>Ctrl+Shift+I</translation>
    </message>
    <message>
        <source>De&amp;lete Item</source>
        <translation>&amp;Eliminar artículo</translation>
    </message>
    <message>
        <source>Ctrl+Backspace</source>
        <translation>Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Shipping…</source>
        <translation>E&amp;nvío…</translation>
    </message>
    <message>
        <source>D&amp;iscount…</source>
        <translation>&amp;Descuento…</translation>
    </message>
    <message>
        <source>&amp;Filter List…</source>
        <translation>&amp;Filtrar la lista…</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Show the %1 page</source>
        <translation>Mostrar la página «%1»</translation>
    </message>
    <message>
        <source>Export as E-Invoice (&amp;Factur-X PDF)…</source>
        <translation>Exportar como factura &amp;electrónica (PDF Factur-X)…</translation>
    </message>
    <message>
        <source>Export as XRec&amp;hnung XML…</source>
        <translation>Exportar como XML XRec&amp;hnung…</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Select a document in the list, or make a new invoice or quote.</source>
        <translation>Seleccione un documento de la lista o cree una factura o un presupuesto nuevos.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Showing %1</source>
        <translation>Mostrando: %1</translation>
    </message>
    <message>
        <source>Showing all documents</source>
        <translation>Se muestran todos los documentos</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation>Filtrar la lista</translation>
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
        <source>Undo %1</source>
        <translation>Deshacer %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer %1</translation>
    </message>
    <message>
        <source>Total %1
Paid %2 · Due %3</source>
        <translation>Total %1
Pagado %2 · Pendiente %3</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Más herramientas</translation>
    </message>
    <message>
        <source>Divider between list and document</source>
        <translation>Separador entre la lista y el documento</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterSubscription</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>Please provide a valid email address.</source>
        <translation>Indique una dirección de correo electrónico válida.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Success!</source>
        <translation>¡Listo!</translation>
    </message>
    <message>
        <source>Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.</source>
        <translation>Gracias por suscribirse. Y sí, es mucho más que el típico spam aburrido de Kelvo Apps. Lo prometo.</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>Compruebe su conexión a Internet y vuelva a intentarlo.</translation>
    </message>
</context>
<context>
    <name>vorn::NewsletterWindow</name>
    <message>
        <source>Vorn Newsletter</source>
        <translation>Boletín de Vorn</translation>
    </message>
    <message>
        <source>Hear about new versions and tips. We write rarely, and you can leave at any time.</source>
        <translation>Entérese de las nuevas versiones y reciba consejos. Escribimos pocas veces y puede darse de baja cuando quiera.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>Dirección de correo electrónico</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>nombre@ejemplo.es</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;E-mail:</source>
        <translation>&amp;Correo:</translation>
    </message>
    <message>
        <source>Subscribing</source>
        <translation>Suscribiendo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Subscribe</source>
        <translation>&amp;Suscribirse</translation>
    </message>
    <message>
        <source>Subscribe</source>
        <translation>Suscribirse</translation>
    </message>
</context>
<context>
    <name>vorn::ObjectContext</name>
    <message>
        <source>There is no entity named “%1”.</source>
        <translation>No existe ninguna entidad llamada «%1».</translation>
    </message>
</context>
<context>
    <name>vorn::PdfRenderer</name>
    <message>
        <source>Laying out the document took too long.</source>
        <translation>La maquetación del documento tardó demasiado.</translation>
    </message>
    <message>
        <source>Rendering needs the graphical application object.</source>
        <translation>La representación necesita el objeto de aplicación gráfica.</translation>
    </message>
    <message>
        <source>The layout engine stopped unexpectedly.</source>
        <translation>El motor de maquetación se detuvo de forma inesperada.</translation>
    </message>
    <message>
        <source>The document could not be laid out.</source>
        <translation>No se pudo maquetar el documento.</translation>
    </message>
    <message>
        <source>The layout engine did not print the document.</source>
        <translation>El motor de maquetación no imprimió el documento.</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesBuilderPane</name>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Item Row</source>
        <translation>Fila de artículo</translation>
    </message>
    <message>
        <source>Style Sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>%1 template</source>
        <translation>Plantilla %1</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignList</name>
    <message>
        <source>Designs</source>
        <translation>Diseños</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>New design</source>
        <translation>Nuevo diseño</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Duplicate the selected design</source>
        <translation>Duplicar el diseño seleccionado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete the selected design</source>
        <translation>Eliminar el diseño seleccionado</translation>
    </message>
    <message>
        <source>Make Default</source>
        <translation>Establecer como predeterminado</translation>
    </message>
    <message>
        <source>Render every document with the selected design</source>
        <translation>Mostrar todos los documentos con el diseño seleccionado</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Import a design file</source>
        <translation>Importar un archivo de diseño</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Export the selected design</source>
        <translation>Exportar el diseño seleccionado</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Preview the default design</source>
        <translation>Vista previa del diseño predeterminado</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesDesignModel</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Rename Design</source>
        <translation>Cambiar nombre del diseño</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseño</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesLivePreview</name>
    <message>
        <source>Design preview</source>
        <translation>Vista previa del diseño</translation>
    </message>
    <message>
        <source>Preview status</source>
        <translation>Estado de la vista previa</translation>
    </message>
    <message>
        <source>Rendering…</source>
        <translation>Representando…</translation>
    </message>
    <message>
        <source>The preview could not be made: %1</source>
        <translation>No se pudo crear la vista previa: %1</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 páginas</translation>
    </message>
</context>
<context>
    <name>vorn::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Builder</source>
        <translation>Taller</translation>
    </message>
    <message>
        <source>&amp;Panes</source>
        <translation>&amp;Paneles</translation>
    </message>
    <message>
        <source>Your company</source>
        <translation>Su empresa</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>&amp;Contacto:</translation>
    </message>
    <message>
        <source>&amp;Letterbox line:</source>
        <translation>Línea de &amp;remitente:</translation>
    </message>
    <message>
        <source>&amp;Slogan:</source>
        <translation>&amp;Eslogan:</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose logo</source>
        <translation>Elegir logotipo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove logo</source>
        <translation>Quitar logotipo</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>Logotipo:</translation>
    </message>
    <message>
        <source>No logo</source>
        <translation>Sin logotipo</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>Number new invoices</source>
        <translation>Numerar las facturas nuevas</translation>
    </message>
    <message>
        <source>Invoice number pattern:</source>
        <translation>Patrón de número de factura:</translation>
    </message>
    <message>
        <source>Invoice counter offset:</source>
        <translation>Desfase del contador de facturas:</translation>
    </message>
    <message>
        <source>Give new invoices a due date</source>
        <translation>Dar fecha de vencimiento a las facturas nuevas</translation>
    </message>
    <message>
        <source>Due after:</source>
        <translation>Vence a los:</translation>
    </message>
    <message>
        <source>Quotes</source>
        <translation>Presupuestos</translation>
    </message>
    <message>
        <source>Number new quotes</source>
        <translation>Numerar los presupuestos nuevos</translation>
    </message>
    <message>
        <source>Quote number pattern:</source>
        <translation>Patrón de número de presupuesto:</translation>
    </message>
    <message>
        <source>Quote counter offset:</source>
        <translation>Desfase del contador de presupuestos:</translation>
    </message>
    <message>
        <source>Give new quotes an expiry date</source>
        <translation>Dar fecha de caducidad a los presupuestos nuevos</translation>
    </message>
    <message>
        <source>Valid for:</source>
        <translation>Válido durante:</translation>
    </message>
    <message>
        <source>Document texts</source>
        <translation>Textos de los documentos</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>Presupuesto</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>%1 conditions:</source>
        <translation>Condiciones (%1):</translation>
    </message>
    <message>
        <source>%1 footer:</source>
        <translation>Pie de página (%1):</translation>
    </message>
    <message>
        <source>Miscellaneous:</source>
        <translation>Varios:</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message>
        <source>Tax %1 applies</source>
        <translation>Se aplica el impuesto %1</translation>
    </message>
    <message>
        <source>Tax %1 title:</source>
        <translation>Nombre del impuesto %1:</translation>
    </message>
    <message>
        <source>Tax %1 rate:</source>
        <translation>Tipo del impuesto %1:</translation>
    </message>
    <message>
        <source>Tax %1 is charged on the taxes before it</source>
        <translation>El impuesto %1 se aplica sobre los impuestos anteriores</translation>
    </message>
    <message>
        <source>Words printed on documents</source>
        <translation>Palabras impresas en los documentos</translation>
    </message>
    <message>
        <source>Invoice:</source>
        <translation>Factura:</translation>
    </message>
    <message>
        <source>Quote:</source>
        <translation>Presupuesto:</translation>
    </message>
    <message>
        <source>Reminder:</source>
        <translation>Recordatorio:</translation>
    </message>
    <message>
        <source>Invoice number:</source>
        <translation>Número de factura:</translation>
    </message>
    <message>
        <source>Quote number:</source>
        <translation>Número de presupuesto:</translation>
    </message>
    <message>
        <source>Client number:</source>
        <translation>Número de cliente:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Due:</source>
        <translation>Vencimiento:</translation>
    </message>
    <message>
        <source>Subtotal:</source>
        <translation>Subtotal:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Descuento:</translation>
    </message>
    <message>
        <source>Shipping:</source>
        <translation>Envío:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Cantidad:</translation>
    </message>
    <message>
        <source>Unit price:</source>
        <translation>Precio unitario:</translation>
    </message>
    <message>
        <source>Page numbers:</source>
        <translation>Números de página:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Print page numbers</source>
        <translation>Imprimir números de página</translation>
    </message>
    <message>
        <source>Print the document&apos;s details beside the page numbers</source>
        <translation>Imprimir los datos del documento junto a los números de página</translation>
    </message>
    <message>
        <source>Print without margins</source>
        <translation>Imprimir sin márgenes</translation>
    </message>
    <message>
        <source>Item rows show the net amount</source>
        <translation>Las filas de artículo muestran el importe neto</translation>
    </message>
    <message>
        <source>Item rows show the article number</source>
        <translation>Las filas de artículo muestran la referencia</translation>
    </message>
    <message>
        <source>Printing or exporting marks the document as sent</source>
        <translation>Imprimir o exportar marca el documento como enviado</translation>
    </message>
    <message>
        <source>Border font</source>
        <translation>Fuente del margen</translation>
    </message>
    <message>
        <source>Choose border font</source>
        <translation>Elegir la fuente del margen</translation>
    </message>
    <message>
        <source>Border font:</source>
        <translation>Fuente del margen:</translation>
    </message>
    <message>
        <source>Border Font</source>
        <translation>Fuente del margen</translation>
    </message>
    <message>
        <source>Every document is rendered with the default design. Edit designs in the Builder.</source>
        <translation>Todos los documentos se muestran con el diseño predeterminado. Los diseños se editan en el taller.</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papel:</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>JIS B4</source>
        <translation>JIS B4</translation>
    </message>
    <message>
        <source>JIS B5</source>
        <translation>JIS B5</translation>
    </message>
    <message>
        <source>Money and dates</source>
        <translation>Importes y fechas</translation>
    </message>
    <message>
        <source>&amp;Currency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>&amp;Date pattern:</source>
        <translation>Patrón de &amp;fecha:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>Client addresses</source>
        <translation>Direcciones de clientes</translation>
    </message>
    <message>
        <source>&amp;Address pattern:</source>
        <translation>Patrón de &amp;dirección:</translation>
    </message>
    <message>
        <source>Client number &amp;pattern:</source>
        <translation>&amp;Patrón de número de cliente:</translation>
    </message>
    <message>
        <source>Client counter offset:</source>
        <translation>Desfase del contador de clientes:</translation>
    </message>
    <message>
        <source>E-invoices</source>
        <translation>Facturas electrónicas</translation>
    </message>
    <message>
        <source>Le&amp;gal name:</source>
        <translation>Ra&amp;zón social:</translation>
    </message>
    <message>
        <source>S&amp;treet:</source>
        <translation>Ca&amp;lle:</translation>
    </message>
    <message>
        <source>&amp;Postcode:</source>
        <translation>Código &amp;postal:</translation>
    </message>
    <message>
        <source>C&amp;ity:</source>
        <translation>Ciu&amp;dad:</translation>
    </message>
    <message>
        <source>Co&amp;untry code:</source>
        <translation>Código de paí&amp;s:</translation>
    </message>
    <message>
        <source>&amp;VAT identifier:</source>
        <translation>Número de I&amp;VA:</translation>
    </message>
    <message>
        <source>Ta&amp;x number:</source>
        <translation>Número &amp;fiscal:</translation>
    </message>
    <message>
        <source>Contact &amp;e-mail:</source>
        <translation>Correo de c&amp;ontacto:</translation>
    </message>
    <message>
        <source>Contact p&amp;hone:</source>
        <translation>&amp;Teléfono de contacto:</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Pagos</translation>
    </message>
    <message>
        <source>&amp;IBAN:</source>
        <translation>&amp;IBAN:</translation>
    </message>
    <message>
        <source>&amp;BIC:</source>
        <translation>&amp;BIC:</translation>
    </message>
    <message>
        <source>Account &amp;holder:</source>
        <translation>Titular de la cue&amp;nta:</translation>
    </message>
    <message>
        <source>Export invoices as Factur-X PDF (e-invoice)</source>
        <translation>Exportar las facturas como PDF Factur-X (factura electrónica)</translation>
    </message>
</context>
<context>
    <name>vorn::PreviewController</name>
    <message>
        <source>The PDF “%1” could not be written.</source>
        <translation>No se pudo escribir el PDF «%1».</translation>
    </message>
    <message>
        <source>There is no default design</source>
        <translation>No hay ningún diseño predeterminado</translation>
    </message>
    <message>
        <source>Make one of the designs in the preferences the default design to see your documents.</source>
        <translation>Establezca uno de los diseños como predeterminado en las preferencias para ver sus documentos.</translation>
    </message>
    <message>
        <source>This design has no page template</source>
        <translation>Este diseño no tiene plantilla de página</translation>
    </message>
    <message>
        <source>Give the default design a page template in the preferences, or make another design the default design.</source>
        <translation>Dé una plantilla de página al diseño predeterminado en las preferencias, o establezca otro diseño como predeterminado.</translation>
    </message>
    <message>
        <source>Ooops!</source>
        <translation>¡Uy!</translation>
    </message>
    <message>
        <source>Something went really wrong while creating the preview.</source>
        <translation>Algo salió realmente mal al crear la vista previa.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>vorn::PreviewWindow</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The preview could not be made.</source>
        <translation>No se pudo crear la vista previa.</translation>
    </message>
    <message>
        <source>Select a document to see how it will look on paper.</source>
        <translation>Seleccione un documento para ver cómo quedará en papel.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The preview could not be shown.</source>
        <translation>No se pudo mostrar la vista previa.</translation>
    </message>
    <message>
        <source>Making the preview…</source>
        <translation>Creando la vista previa…</translation>
    </message>
    <message>
        <source>Preview – %1</source>
        <translation>Vista previa – %1</translation>
    </message>
    <message>
        <source>Page thumbnails</source>
        <translation>Miniaturas de las páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>vorn::ReminderSheet</name>
    <message>
        <source>Payment Reminder</source>
        <translation>Recordatorio de pago</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Conditions:</source>
        <translation>Condiciones:</translation>
    </message>
    <message>
        <source>Footer:</source>
        <translation>Pie de página:</translation>
    </message>
    <message>
        <source>Create Reminder</source>
        <translation>Crear recordatorio</translation>
    </message>
</context>
<context>
    <name>vorn::ScreenCastController</name>
    <message>
        <source>Please check your internet connection!</source>
        <translation>¡Compruebe su conexión a Internet!</translation>
    </message>
</context>
<context>
    <name>vorn::Settings</name>
    <message>
        <source>Your settings could not be read from “%1”. Vorn leaves the file as it is and uses its standard settings until it is repaired or removed; changes to settings are not saved.</source>
        <translation>No se pudo leer su configuración de «%1». Vorn deja el archivo como está y usa su configuración estándar hasta que se repare o se elimine; los cambios en la configuración no se guardan.</translation>
    </message>
    <message>
        <source>The file does not hold a dictionary.</source>
        <translation>El archivo no contiene un diccionario.</translation>
    </message>
    <message>
        <source>Your settings were not saved because the settings file “%1” could not be read at start.</source>
        <translation>Su configuración no se guardó porque el archivo de configuración «%1» no se pudo leer al iniciar.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>No se pudo guardar su configuración.</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingController</name>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
</context>
<context>
    <name>vorn::ShippingPopover</name>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Shipping source</source>
        <translation>Origen del envío</translation>
    </message>
    <message>
        <source>Show s&amp;ubtitle</source>
        <translation>&amp;Mostrar subtítulo</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Subtitle:</source>
        <translation>&amp;Subtítulo:</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>Impo&amp;rte:</translation>
    </message>
    <message>
        <source>N&amp;ote:</source>
        <translation>&amp;Nota:</translation>
    </message>
    <message>
        <source>Tax %1</source>
        <translation>Impuesto %1</translation>
    </message>
    <message>
        <source>Taxes:</source>
        <translation>Impuestos:</translation>
    </message>
    <message>
        <source>Recent Shipping</source>
        <translation>Envíos recientes</translation>
    </message>
    <message>
        <source>&amp;No Shipping</source>
        <translation>Sin &amp;envío</translation>
    </message>
    <message>
        <source>&amp;Charge Shipping</source>
        <translation>&amp;Cobrar envío</translation>
    </message>
</context>
<context>
    <name>vorn::TemplateEditor</name>
    <message>
        <source>Indent</source>
        <translation>Sangrar</translation>
    </message>
    <message>
        <source>Unindent</source>
        <translation>Quitar sangría</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentar</translation>
    </message>
</context>
<context>
    <name>vorn::UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Vorn</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>¡Actualización disponible!</translation>
    </message>
    <message>
        <source>A new version</source>
        <translation>Una versión nueva</translation>
    </message>
    <message>
        <source>%1 is available; you have Vorn %2. Do you want to download the update now?</source>
        <translation>%1 está disponible; usted tiene Vorn %2. ¿Quiere descargar la actualización ahora?</translation>
    </message>
    <message>
        <source>&amp;Release notes:</source>
        <translation>&amp;Notas de la versión:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>No se pudieron cargar las notas de la versión.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>&amp;Download…</source>
        <translation>&amp;Descargar…</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
</context>
<context>
    <name>vorn::ZRUpdateChecker</name>
    <message>
        <source>Check for updates automatically?</source>
        <translation>¿Buscar actualizaciones automáticamente?</translation>
    </message>
    <message>
        <source>Should %1 look for a newer version once a day when it starts? You can change this at any time in the preferences.</source>
        <translation>¿Debe %1 buscar una versión más reciente una vez al día al iniciarse? Puede cambiarlo en cualquier momento en las preferencias.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The server answered with status %1.</source>
        <translation>El servidor respondió con el estado %1.</translation>
    </message>
    <message>
        <source>The version list is not a readable property list.</source>
        <translation>La lista de versiones no es una lista de propiedades legible.</translation>
    </message>
    <message>
        <source>The version list has no version for %1.</source>
        <translation>La lista de versiones no tiene ninguna versión para %1.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>No se pudo buscar actualizaciones</translation>
    </message>
    <message>
        <source>The list of available versions could not be loaded. Please check your internet connection and try again later.</source>
        <translation>No se pudo cargar la lista de versiones disponibles. Compruebe su conexión a Internet y vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>¡Está al día!</translation>
    </message>
    <message>
        <source>%1 %2 is the newest version available.</source>
        <translation>%1 %2 es la versión más reciente disponible.</translation>
    </message>
    <message>
        <source>Do you want to download the update now?</source>
        <translation>¿Quiere descargar la actualización ahora?</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>¡Actualización disponible!</translation>
    </message>
    <message>
        <source>Download…</source>
        <translation>Descargar…</translation>
    </message>
</context>
</TS>
