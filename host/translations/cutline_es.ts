<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: no se puede guardar el documento: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>no hay documento</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>se ha detenido</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>no es de un tipo que se pueda leer: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG o texto (UTF-8); «-o raw» lo envía tal cual a la impresora</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>está dañado; ábralo en otro programa y guárdelo de nuevo</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>está protegido con contraseña; guárdelo sin ella</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>está protegido contra la impresión; pida otro a su propietario</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>no tiene páginas</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>tiene demasiadas páginas; imprímalo en partes más pequeñas</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>tiene una página de un tamaño que ningún papel tiene; guárdelo con otro</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>necesita más memoria de la permitida a un documento; guárdelo con imágenes más pequeñas o en partes</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>tarda demasiado en leerse; guárdelo como PDF en otro programa o imprímalo en partes</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>no tiene todas las páginas elegidas</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>no está instalado lo que lee documentos de este tipo</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>su lector ha fallado</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>tiene %1 páginas, que son demasiadas; imprímalo en partes más pequeñas</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>es demasiado grande: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>no está instalado lo que lee documentos de este tipo: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>su lector ha fallado: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>no se puede leer el documento «%1»: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>no se puede leer uno de los documentos %1: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>no se puede iniciar el programa «%1»: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>no se pueden dibujar las páginas: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>esa página no existe</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>su imagen sería demasiado grande</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>tarda demasiado</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>no se puede dibujar la página %1: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>el rollo de etiquetas o la cinta se ha acabado</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>hacen falta etiquetas o cinta</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>etiqueta o cinta atascada</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>las etiquetas o la cinta están a punto de acabarse</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>la tapa está abierta</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>la puerta está abierta</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>la tapa no está bloqueada</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>falta el casete</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>la impresora está apagada o no está conectada</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>la impresora está apagada</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>la impresora no responde</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>conectando con la impresora</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>pausa tras la etiqueta actual</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>deteniéndose</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>parcialmente detenida</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>revise el cortador</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>fallo del cortador</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>el cortador está atascado</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>el cortador está casi desgastado</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>el cortador está desgastado</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>la cinta de tinta se ha acabado</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>la cinta de tinta está a punto de acabarse</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>el cabezal de impresión está demasiado caliente</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>el servidor de impresión no tiene espacio para más trabajos</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>los trabajos nuevos se retienen</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>revise la impresora</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>el controlador de la impresora falta en el servidor de impresión</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>el controlador de la impresora no está instalado de forma segura en el servidor de impresión</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>la impresora remota está en pausa</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>esperando a la impresora remota</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>esperando a que la impresora termine</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Estado desconocido</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>No está lista</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>no se pueden enumerar las impresoras</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>no tiene impresoras</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>tiene %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>el servidor de impresión «%1» no tiene ninguna impresora «%2»: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>no hay impresora predeterminada: indique una con -d; el servidor de impresión «%1»: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>no hay impresora predeterminada (%1): indique una con -d; el servidor de impresión «%2»: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>no hay ninguno guardado</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>están guardados %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>la impresora «%1» no tiene ajustes guardados «%2»: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>«%1» es una impresora, no unos ajustes guardados</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>los ajustes «%1» son del administrador: solo lpoptions como root los elimina</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Retenido</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ha fallado</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>la impresora está en pausa</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>la impresora está parcialmente en pausa</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>se está recibiendo el documento</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>hasta que se libere</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>la impresora necesita atención</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>no se puede leer el documento</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>la impresora no puede imprimir este tipo de documento</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>no se puede imprimir el documento</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>por el operador</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>en la impresora</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>por el servidor de impresión</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>no se conoce el estado del trabajo %1</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>el servidor de impresión no ha indicado el estado del trabajo %1</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>no tiene ninguno</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>sus valores son %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>«%1» no es un tamaño de papel: escríbalo como Custom.ANCHOxLARGOmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>la impresora no admite papel de %1: admite de %2 a %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>la opción %1 no tiene el valor «%2»: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>no se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>se ha perdido la conexión con el servidor de impresión «%1»: inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>el servidor de impresión «%1» no entrega el archivo PPD de «%2»: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>el servidor de impresión «%1» no tiene ninguna impresora «%2»</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>la impresora «%1» no tiene archivo PPD en el servidor de impresión «%2»: elija una impresora instalada con su controlador</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>el archivo PPD «%1»</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>el archivo PPD de «%1»</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>no hay memoria para %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>no se puede usar %1: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>no se puede usar %1: línea %2: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>el nombre «%1» tiene %2 bytes y los nombres de un archivo PPD tienen %3 como máximo</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>no se puede leer el documento «%1»: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>se ha cancelado la impresión, no se ha impreso nada</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>ha cambiado durante el envío; no se ha impreso nada</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>no se ha podido enviar el documento «%1» a «%2»</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1; es posible que el trabajo %2 siga ahí: elimínelo con cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>«%1» no acepta ningún trabajo</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>no se puede cancelar el trabajo %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>«%1» no es el nombre de una impresora</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>no se pueden guardar los ajustes como «%1»: elija un nombre sin espacios, «/» ni «#»</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>no se puede guardar la opción %1: su valor contiene «#» o un fin de línea</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>no se pueden guardar las opciones en «%1»: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>no print server gives an encrypted connection at &quot;%1&quot; (%2): start one or leave out -E</source>
        <translation>ningún servidor de impresión ofrece una conexión cifrada en «%1» (%2): inicie uno u omita -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>ningún servidor de impresión responde en «%1»: inícielo o indique otro con -h</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: el servidor de impresión «%2» dice: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>ninguna impresora «%1»</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>ninguna impresora predeterminada</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>el papel «%1» tiene medidas que ningún papel tiene</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>tiene más de %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>está dañado o incompleto</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>ningún PPD de «%1»</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>no se puede usar %1: tiene %2 %3 y como máximo se pueden usar %4</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>no se puede usar %1: el parámetro %2 de su tamaño personalizado no es una medida</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>no se puede usar %1: su papel predeterminado «%2» tiene medidas que ningún papel tiene</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>el documento «%1» no llegó entero a «%2»: imprímalo de nuevo</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>no se pueden guardar los ajustes «%1»: tienen %2 caracteres y como máximo se pueden guardar %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>el servidor de impresión en «%1» no responde: inténtelo más tarde, reinícielo o indique otro con -h</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 del servidor de impresión en «%2» tiene más de %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 no llegó entero</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 no llegó entero del servidor de impresión en «%2»: inténtelo de nuevo</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>otro programa lo mantiene bloqueado; inténtelo de nuevo</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: se perdió la conexión con el servidor de impresión en «%2»</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>la etiqueta o la cinta no avanza</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>la impresora tiene otras etiquetas u otra cinta</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>hay que retirar las etiquetas</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>la impresora se está iniciando</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>la impresora está en reposo</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>la tapa del cortador está abierta</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>falta el cortador</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>falta la cinta de tinta</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>el depósito de tinta usada está lleno</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>En pausa desde %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>no se puede modificar el trabajo %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>no se puede pasar el trabajo %1 a su impresora</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>no se puede liberar el trabajo %1</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>la opción %1 contiene caracteres de control; no se imprimió nada</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>sentencias</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1; es posible que haya llegado de todos modos: mire los trabajos de «%2» antes de volver a imprimirlo</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: el servidor de impresión en «%2» no se lo permite (%3): pregunte a quien se encargue de él</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>La impresora corta la cinta cada tantas etiquetas y después de la última.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>La impresora corta la cinta después de la última etiqueta.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>La cuchilla atraviesa solo la capa impresa: las etiquetas quedan juntas en su soporte y se despegan una a una.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Para cinta que dañaría la cuchilla, como tela o tubo termorretráctil: la impresora nunca la corta. Córtela con tijeras.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>La última etiqueta se queda en la impresora y el trabajo siguiente la sigue sin cinta en blanco entre medias. Tras el último trabajo, avance y corte en la impresora.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Imprime en espejo, para etiquetas que se leen por detrás o se planchan.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Omite el espacio en blanco antes y después de lo impreso: cada etiqueta es tan larga como su contenido.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Imprime una marca en los extremos de cada etiqueta, por donde cortar a mano.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Ahorra %1 mm de cinta.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Gasta %1 mm más de cinta.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Ahorraría %1 mm de cinta.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Gastaría %1 mm más de cinta.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Trozos: %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Trozos: serían %1 en lugar de %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>La cinta especial nunca se corta, por eso no se puede elegir.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>Las etiquetas de este tamaño están en lugares fijos, por eso no se puede elegir.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Después de cada etiqueta</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>Cada %1 etiquetas</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Después de cada copia</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Después de la última etiqueta</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Según decida la impresora</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Elección del controlador</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Cortar:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Esperando al servidor de impresión…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>El servidor de impresión aún no responde. ¿Está encendido y conectado el ordenador que tiene la impresora?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>Deshacer el último cambio de un ajuste</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Rehacer lo deshecho</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Volver a los ajustes iniciales del controlador</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>cutline::JobForm</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>&amp;Páginas:</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Pape&amp;l:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Todas, o por ejemplo 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primero</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>El documento entero una vez por copia, en lugar de cada etiqueta tantas veces como copias</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Qué páginas se imprimen, como 1-3,5; todas si está vacío</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Impreso.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 etiquetas impresas.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 etiqueta impresa.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>Ca&amp;ncelar el trabajo</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>Cerrar &amp;y dejar imprimir</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Progreso del trabajo</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Enviando a %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Trabajo %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Componiendo…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>Imprimiendo: etiqueta %1 de %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>El trabajo %1 se cancelará cuando el servidor de impresión vuelva a responder</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>El trabajo %1 se envió; el servidor de impresión no responde sobre su estado</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>El trabajo %1 se ha enviado, pero el servidor ya no indica su estado: %2. Es posible que todavía se imprima.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>El trabajo %1 se ha cancelado en la impresora</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 ha abandonado el trabajo %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Compruebe que la impresora está lista y vuelva a imprimir.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Se ha cancelado el trabajo.</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>Diseño:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Cambiar el diseño</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Tamaño, giro y posición del documento en la etiqueta</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo derecha</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Del papel</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fijo</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Del contenido</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Por párrafo</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Por línea</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Porcentaje del tamaño del documento</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Longitud en milímetros</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Giro:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Posición:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longitud:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Etiquetas:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>Cuerpo:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>Más opciones de impresora</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>cutline::NoticeView</name>
    <message>
        <source>Chan&amp;ge the others</source>
        <translation>Cambiar las &amp;otras</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>Mantener la última elección y cambiar las que la excluyen</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Documentos recientes</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Esta impresora no tiene un panel propio. Sus opciones están en «Más opciones de impresora».</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Prea&amp;juste:</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Guardar estos ajustes como preajuste</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>Eliminar el preajuste elegido</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Ajustes de la impresora</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>¿Eliminar el preajuste «%1» de esta impresora?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Escriba un nombre.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Use letras, cifras, guiones y guiones bajos, sin espacios.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nombre del preajuste</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Sustituye el preajuste de este nombre.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Sustituye el preajuste «%1»: no se distinguen mayúsculas de minúsculas.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>&amp;Más opciones de impresora</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>Imprimi&amp;r</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>No se puede mostrar este documento</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Etiqueta %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Se ha cancelado el trabajo.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Ninguna impresora</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 no imprime ahora (%2). Los trabajos esperan hasta que la impresora vuelva a estar lista.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 no acepta trabajos. Elija otra impresora o pregunte a quien se ocupa de esta.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>No hay ninguna impresora abierta.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Esto es un archivo PPD, no una impresora: no se puede imprimir.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>No se puede imprimir este documento.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>El documento tiene páginas %1; se reducen al %2 %</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Encaja mejor: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Elegir este papel</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>Se cortarán bordes en la etiqueta %1: reducir al %2 %</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>Se cortarán bordes en %1 etiquetas: reducir al %2 %</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>Hacer los documentos lo bastante pequeños</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Abra o arrastre aquí un documento</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Este documento va tal cual a la impresora, sin vista previa</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>No hay documento que imprimir: abra uno o arrástrelo aquí.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>Imprimi&amp;r 1 etiqueta</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>Imprimi&amp;r %1 etiquetas</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>Imprimi&amp;r de nuevo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>Se ha cancelado el trabajo; algunas de sus etiquetas están impresas.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>La tira muestra el trabajo entero tal como sale de la impresora, con lo que hace la cuchilla; la línea de abajo lo dice con palabras.

Señale una opción de corte, o pulse F1 sobre ella, para leer qué hace y qué cambiaría.

Tira: más y menos para el zum, 0 para ajustar, Intro muestra una etiqueta en grande. Ctrl+Z deshace un ajuste.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>El último trozo tiene %1 de %2 etiquetas.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Cortar cada %1</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Así todos los trozos son iguales</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>Imprimir %1 copias</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>¿Imprimir todo esto?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>&amp;Imprimir %1 etiquetas</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>El servidor de impresión no responde. ¿Está encendido y conectado el ordenador que tiene la impresora? Cuando vuelva a responder, se podrá imprimir.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>Las etiquetas se muestran cuando continúe</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>Con&amp;tinuar</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>El servidor de impresión no responde y quizá tenga el trabajo que ha cancelado. Mire sus trabajos antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Esperando al servidor de impresión…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 se ha configurado de nuevo en el servidor de impresión; sus ajustes se han conservado.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 se ha configurado de nuevo en el servidor de impresión y ya no tiene: %2. Mire los ajustes antes de imprimir.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Impresora:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>Archivo PPD, sin impresora</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Elija una impresora</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Etiqueta anterior</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Etiqueta siguiente</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etiqueta %1 de %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>Ajustar el trabajo a la vista</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Vista previa de las etiquetas</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>Imprimir solo esta etiqueta</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Mostrar todas las etiquetas</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Mostrar en grande</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (copia %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, queda en la impresora</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>document</name>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>no se puede dibujar la página %1: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>«%1: %2» no se puede usar junto con «%3: %4».</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Cambie uno de los dos.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: se envía como «%2» porque la cinta especial está activada.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: se envía como «%2» porque el papel «%3» conserva su espacio en blanco.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: se envía como «%2» porque el papel «%3» no se debe cortar automáticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: se envía como «%2» aunque el papel «%3» no se debe cortar automáticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: se envía como «%2», pero no se corta nada mientras la cinta especial está activada.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: se envía como «%2», lo que la imagen no muestra.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: se envía como «%2».</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>opción desconocida «%1»; esta impresora no tiene esa opción</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>opción desconocida «%1»; ¿es %2?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>las páginas deben estar en orden ascendente</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>el panel «%1» no acepta imprimir con estos ajustes; cámbielos e imprima de nuevo</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>papel desconocido «%1»; esta impresora tiene %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>esta impresora no tiene la opción «%1»</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>copias: %1 no está entre 1 y %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>un archivo PPD solo no puede imprimir; elija una impresora</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: ese documento no existe</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 no tiene el valor «%2»: sus valores son %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>«%1» no es para etiquetas: se omite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>No se puede leer «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>Se omite «%1»: no es texto sin formato de %2 kB como máximo</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 se omite: «%2» no significa nada ahí</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 se omite: necesita una opción, una elección y su efecto</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>«%1», línea %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>intervalo de páginas «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>«%1» no es una página; escriba las páginas como 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>falta una página junto a una coma; escriba las páginas como 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 no tiene primera página: escriba 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>las páginas se cuentan desde 1</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 va hacia atrás: escriba %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>el documento tiene solo 1 página</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>el documento tiene %1 páginas y ninguna página %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>«%1» no se ha imprimido</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>«%1» sigue a la espera de imprimirse</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>«%1» se ha configurado de nuevo en el servidor de impresión: mire los ajustes y vuelva a imprimir</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 etiqueta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etiquetas</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 pieza</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 piezas</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>longitud desconocida</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 del rollo</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 de cinta</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>como máximo %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>cinta especial, que nunca se corta</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>corte al final</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>rollo sin cortar</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>cinta sin cortar</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>corte tras cada etiqueta</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>corte tras cada copia</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>corte cada %1</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>medio corte entre ellas</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>medio corte junto a la etiqueta</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>la última etiqueta queda en la impresora</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>con marcas de corte</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>sin espacio en blanco</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>en espejo</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>avance inicial: %1, cortado</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>avance inicial: %1, con medio corte detrás</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>avance inicial: %1, sin cortar</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>con medio corte detrás, sin cortar</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>sin cortar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1; este controlador no dice nada del corte</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1; la impresora decide dónde cortar</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>ninguna etiqueta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>avance tras la última etiqueta: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>marcas de corte en ambos extremos de cada etiqueta: %1</translation>
    </message>
</context>
</TS>
