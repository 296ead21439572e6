<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Ferrowick</name>
    <message>
        <source>  Amount of spacing in inches between layouts in multiple layout printing:</source>
        <translation>  Espacio en pulgadas entre diseños al imprimir varios por página:</translation>
    </message>
    <message>
        <source>  Database Types</source>
        <translation>  Tipos de base de datos</translation>
    </message>
    <message>
        <source>  Please insert your working source disk or device that you have been saving to up until now.  Ferrowick needs this before it can perform the 'save as' operation to the other location you specified.  Once you have inserted the disk or device you can try 'save as' again.</source>
        <translation>  Inserte el disco o dispositivo en el que ha guardado hasta ahora. Ferrowick lo necesita para poder guardar en la otra ubicación que ha indicado. Cuando lo haya insertado, intente de nuevo «Guardar como».</translation>
    </message>
    <message>
        <source>  Searches are word based, not within string based.  So for example, a search for lap would not find lapdog.</source>
        <translation>  Se buscan palabras completas, no partes de palabras. Por ejemplo, al buscar «sol» no se encuentra «solar».</translation>
    </message>
    <message>
        <source>  This dialog allows you to set values of auto increment columns.  You might want to do this for setting initial starting values or to adjust the current count to coincide with deleted records.</source>
        <translation>  Este diálogo permite establecer los valores de las columnas que se incrementan automáticamente, por ejemplo para fijar un valor inicial o para ajustar la cuenta actual tras eliminar registros.</translation>
    </message>
    <message>
        <source>  To set entry options, simply double click on a row in the list to the right.  You can only set options for date and number columns.</source>
        <translation>  Para establecer las opciones de entrada, haga doble clic en una fila de la lista de la derecha. Solo las columnas de fecha y de número tienen opciones.</translation>
    </message>
    <message>
        <source> Available Calculation Columns </source>
        <translation> Columnas de cálculo disponibles </translation>
    </message>
    <message>
        <source> Bold Headers </source>
        <translation> Encabezados en negrita </translation>
    </message>
    <message>
        <source> Columns To Print </source>
        <translation> Columnas que imprimir </translation>
    </message>
    <message>
        <source> Criteria </source>
        <translation> Criterios </translation>
    </message>
    <message>
        <source> Custom Paper Size </source>
        <translation> Tamaño de papel personalizado </translation>
    </message>
    <message>
        <source> Define Expression </source>
        <translation> Definir expresión </translation>
    </message>
    <message>
        <source> Keypad </source>
        <translation> Teclado </translation>
    </message>
    <message>
        <source> Layout Spacing </source>
        <translation> Espacio entre diseños </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> Margins </source>
        <translation> Márgenes </translation>
    </message>
    <message>
        <source> Operators </source>
        <translation> Operadores </translation>
    </message>
    <message>
        <source> Orientation </source>
        <translation> Orientación </translation>
    </message>
    <message>
        <source> Paper Size </source>
        <translation> Tamaño de papel </translation>
    </message>
    <message>
        <source> Paper Sizes </source>
        <translation> Tamaños de papel </translation>
    </message>
    <message>
        <source> Replace Options </source>
        <translation> Opciones de reemplazo </translation>
    </message>
    <message>
        <source> Report Title </source>
        <translation> Título del informe </translation>
    </message>
    <message>
        <source> These columns are using auto incrementing serial numbers.</source>
        <translation> Estas columnas usan números de serie que se incrementan automáticamente.</translation>
    </message>
    <message>
        <source> Type </source>
        <translation> Tipo </translation>
    </message>
    <message>
        <source>"%1" has a value for each item row</source>
        <translation>«%1» tiene un valor por cada fila de artículo</translation>
    </message>
    <message>
        <source>"%1" has a value for each item row, which are typed on the layout page</source>
        <translation>«%1» tiene un valor por cada fila de artículo, que se escriben en la página de diseño</translation>
    </message>
    <message>
        <source>"%1" holds pictures, which are chosen on the layout page</source>
        <translation>«%1» contiene imágenes, que se eligen en la página de diseño</translation>
    </message>
    <message>
        <source>"%1" is calculated and takes no value</source>
        <translation>«%1» se calcula y no admite ningún valor</translation>
    </message>
    <message>
        <source>"%1" is neither a column nor a number (character %2)</source>
        <translation>«%1» no es una columna ni un número (carácter %2)</translation>
    </message>
    <message>
        <source>"%1" is no amount</source>
        <translation>«%1» no es un importe</translation>
    </message>
    <message>
        <source>"%1" is no date</source>
        <translation>«%1» no es una fecha</translation>
    </message>
    <message>
        <source>"%1" is no length or number.</source>
        <translation>«%1» no es una longitud ni un número.</translation>
    </message>
    <message>
        <source>"%1" is no number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>"%1" is no step: type a number above 0.</source>
        <translation>«%1» no es un intervalo: escriba un número mayor que 0.</translation>
    </message>
    <message>
        <source>"%1" is out of place (character %2)</source>
        <translation>«%1» está fuera de lugar (carácter %2)</translation>
    </message>
    <message>
        <source>"%1" needs a blank on either side (character %2)</source>
        <translation>«%1» necesita un espacio a cada lado (carácter %2)</translation>
    </message>
    <message>
        <source>%1
%2: %3</source>
        <comment>group, figure and its value</comment>
        <translation>%1
%2: %3</translation>
    </message>
    <message>
        <source>%1
Version %2

A small database of your own, without learning one.
Free software under the MIT licence. It comes with no warranty.</source>
        <translation>%1
Versión %2

Una pequeña base de datos propia, sin tener que aprender a usarla.
Software libre con licencia MIT. Se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 (%2 of %3 characters)</source>
        <translation>%1 (%2 de %3 caracteres)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuación)</translation>
    </message>
    <message>
        <source>%1 (prints on Letter)</source>
        <translation>%1 (se imprime en Letter)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (solo lectura)</translation>
    </message>
    <message>
        <source>%1 (recovered).fwk</source>
        <translation>%1 (recuperado).fwk</translation>
    </message>
    <message>
        <source>%1 (steps of %2)</source>
        <translation>%1 (intervalos de %2)</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 across, %2 down</source>
        <translation>%1 en horizontal, %2 en vertical</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>%1 and %n more</comment>
        <translation><numerusform>%1 y %n más</numerusform><numerusform>%1 y %n más</numerusform></translation>
    </message>
    <message>
        <source>%1 at place %2 has no bars, but a QR code takes it</source>
        <translation>%1 en la posición %2 no tiene barras, pero un código QR lo admite</translation>
    </message>
    <message>
        <source>%1 at place %2 is no digit</source>
        <translation>%1 en la posición %2 no es una cifra</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 por %2</translation>
    </message>
    <message>
        <source>%1 by %2 and %3</source>
        <translation>%1 por %2 y %3</translation>
    </message>
    <message>
        <source>%1 bytes.</source>
        <translation>%1 bytes.</translation>
    </message>
    <message>
        <source>%1 cannot be locked: %2 is in the way.</source>
        <translation>%1 no se puede bloquear: %2 lo impide.</translation>
    </message>
    <message>
        <source>%1 cannot be read like this: %2.</source>
        <translation>%1 no se puede leer así: %2.</translation>
    </message>
    <message>
        <source>%1 could not be opened:
%2</source>
        <translation>No se pudo abrir %1:
%2</translation>
    </message>
    <message>
        <source>%1 could not be written.
%2</source>
        <translation>No se pudo escribir %1.
%2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 ended too early</source>
        <translation>%1 termina antes de tiempo</translation>
    </message>
    <message>
        <source>%1 goes into</source>
        <translation>%1 va a</translation>
    </message>
    <message>
        <source>%1 has a wrong size</source>
        <translation>%1 tiene un tamaño incorrecto</translation>
    </message>
    <message>
        <source>%1 has met an error and has to end.

%2</source>
        <translation>%1 ha encontrado un error y debe cerrarse.

%2</translation>
    </message>
    <message>
        <source>%1 is a program or a script. Links do not start programs.</source>
        <translation>%1 es un programa o un script. Los enlaces no inician programas.</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation>%1 no es una fecha.</translation>
    </message>
    <message>
        <source>%1 is no longer there. It may have been renamed or deleted.</source>
        <translation>%1 ya no existe. Puede que se haya eliminado o que se le haya cambiado el nombre.</translation>
    </message>
    <message>
        <source>%1 is no number of days, from 0 to 3650.</source>
        <translation>%1 no es un número de días entre 0 y 3650.</translation>
    </message>
    <message>
        <source>%1 is no number.</source>
        <translation>%1 no es un número.</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>%1 is open elsewhere, by %2.</source>
        <translation>%1 está abierto en otro lugar por %2.</translation>
    </message>
    <message>
        <source>%1 is open elsewhere.</source>
        <translation>%1 está abierto en otro lugar.</translation>
    </message>
    <message>
        <source>%1 is open to read only</source>
        <translation>%1 está abierto como solo lectura</translation>
    </message>
    <message>
        <source>%1 is packed in an unknown way</source>
        <translation>%1 está comprimido de una forma desconocida</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 es de solo lectura</translation>
    </message>
    <message>
        <source>%1 is the open database, and cannot be printed into.</source>
        <translation>%1 es la base de datos abierta; no se puede imprimir en ese archivo.</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 es demasiado grande</translation>
    </message>
    <message>
        <source>%1 labels: too many to print at a time, which are %2 at most.</source>
        <translation>%1 etiquetas: son demasiadas para imprimirlas de una vez; el máximo es %2.</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>Falta el %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 occurs %n time</source>
        <comment>%1 occurs %n times</comment>
        <translation><numerusform>%1 aparece %n vez</numerusform><numerusform>%1 aparece %n veces</numerusform></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2.fwk</source>
        <translation>%1 del %2.fwk</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
    <message>
        <source>%1 on %2 (process %3) since %4</source>
        <translation>%1 en %2 (proceso %3) desde %4</translation>
    </message>
    <message>
        <source>%1 on %2.</source>
        <translation>%1 en %2.</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 puntos</translation>
    </message>
    <message>
        <source>%1 to %2 missing</source>
        <translation>Faltan del %1 al %2</translation>
    </message>
    <message>
        <source>%1 to below %2</source>
        <translation>%1 a menos de %2</translation>
    </message>
    <message>
        <source>%1 twice</source>
        <translation>%1 dos veces</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened here.</source>
        <translation>Otra persona ha modificado %1 desde que se abrió aquí.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. It is not what your unsaved work is based on.</source>
        <translation>Otra persona ha modificado %1. Ya no es la base de su trabajo sin guardar.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. What is shown here is as it was opened.</source>
        <translation>Otra persona ha modificado %1. Aquí se muestra tal como se abrió.</translation>
    </message>
    <message>
        <source>%1 was made, but there is no program that opens it.</source>
        <translation>Se ha creado %1, pero no hay ningún programa que lo abra.</translation>
    </message>
    <message>
        <source>%1 was made.</source>
        <translation>Se creó %1.</translation>
    </message>
    <message>
        <source>%1's value has been set to %2</source>
        <translation>El valor de %1 se ha establecido en %2</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 de %3</translation>
    </message>
    <message>
        <source>%1, first label %2</source>
        <translation>%1, primera etiqueta %2</translation>
    </message>
    <message>
        <source>%1. The first %2 are shown.</source>
        <translation>%1. Se muestran los primeros %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n record.</source>
        <comment>%1: %n records.</comment>
        <translation><numerusform>%1: %n registro.</numerusform><numerusform>%1: %n registros.</numerusform></translation>
    </message>
    <message>
        <source>%1: bad comment</source>
        <translation>%1: comentario incorrecto</translation>
    </message>
    <message>
        <source>%1: records %2</source>
        <translation>%1: registros %2</translation>
    </message>
    <message>
        <source>%1: there is no text</source>
        <translation>%1: no hay texto</translation>
    </message>
    <message>
        <source>%1: this sheet cannot be imported: %2.</source>
        <translation>%1: esta hoja no se puede importar: %2.</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 de %L2</translation>
    </message>
    <message numerus="yes">
        <source>%n cell cannot be stored:</source>
        <comment>%n cells cannot be stored:</comment>
        <translation><numerusform>%n celda no se puede guardar:</numerusform><numerusform>%n celdas no se pueden guardar:</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cell is refused.</source>
        <comment>%n cells are refused.</comment>
        <translation><numerusform>Se rechaza %n celda.</numerusform><numerusform>Se rechazan %n celdas.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cells are refused, these among them.</source>
        <comment>%n cells are refused, these among them.</comment>
        <translation><numerusform>Se rechaza %n celda, esta.</numerusform><numerusform>Se rechazan %n celdas, entre ellas estas.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n gap</source>
        <comment>%n gaps</comment>
        <translation><numerusform>%n hueco</numerusform><numerusform>%n huecos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n group</source>
        <comment>%n groups</comment>
        <translation><numerusform>%n grupo</numerusform><numerusform>%n grupos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n label</source>
        <comment>%n labels</comment>
        <translation><numerusform>%n etiqueta</numerusform><numerusform>%n etiquetas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new invoice</source>
        <comment>%n new invoices</comment>
        <translation><numerusform>%n factura nueva</numerusform><numerusform>%n facturas nuevas</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new record</source>
        <comment>%n new records</comment>
        <translation><numerusform>%n registro nuevo</numerusform><numerusform>%n registros nuevos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n of the records cannot be calculated: %1</source>
        <comment>%n of the records cannot be calculated. The first one: %1</comment>
        <translation><numerusform>%n de los registros no se puede calcular: %1</numerusform><numerusform>%n de los registros no se pueden calcular. El primero: %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record</source>
        <comment>%n records</comment>
        <translation><numerusform>%n registro</numerusform><numerusform>%n registros</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record asks for more than %1, which is the most.</source>
        <comment>%n records ask for more than %1, which is the most.</comment>
        <translation><numerusform>%n registro pide más de %1, que es el máximo.</numerusform><numerusform>%n registros piden más de %1, que es el máximo.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record behind the first of each</source>
        <comment>%n records behind the first of each</comment>
        <translation><numerusform>%n registro además del primero de cada grupo</numerusform><numerusform>%n registros además del primero de cada grupo</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no code in %1 now.  %2: %3.</source>
        <comment>%n records have no code in %1 now.  %2: %3.</comment>
        <translation><numerusform>%n registro no tiene ahora código en %1. %2: %3.</numerusform><numerusform>%n registros no tienen ahora código en %1. %2: %3.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no number above 0 there: no label.</source>
        <comment>%n records have no number above 0 there: no label.</comment>
        <translation><numerusform>%n registro no tiene ahí un número mayor que 0: sin etiqueta.</numerusform><numerusform>%n registros no tienen ahí un número mayor que 0: sin etiqueta.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n records.</source>
        <comment>%n records.</comment>
        <translation><numerusform>%n registro.</numerusform><numerusform>%n registros.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation><numerusform>%n repetido</numerusform><numerusform>%n repetidos</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n sheet</source>
        <comment>%n sheets</comment>
        <translation><numerusform>%n hoja</numerusform><numerusform>%n hojas</numerusform></translation>
    </message>
    <message>
        <source>&amp;About Ferrowick</source>
        <translation>&amp;Acerca de Ferrowick</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>Co&amp;nfirmar</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation>Añadir &amp;línea</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Direcciones</translation>
    </message>
    <message>
        <source>&amp;Adjust Serial Number Increment</source>
        <translation>&amp;Ajustar incremento del número de serie</translation>
    </message>
    <message>
        <source>&amp;Again</source>
        <translation>&amp;Otra vez</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>&amp;All Records</source>
        <translation>&amp;Todos los registros</translation>
    </message>
    <message>
        <source>&amp;All records</source>
        <translation>T&amp;odos los registros</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;plicar</translation>
    </message>
    <message>
        <source>&amp;As The Desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
    <message>
        <source>&amp;Auto-Load Previously Opened File</source>
        <translation>Abrir &amp;automáticamente el último archivo</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Barras:</translation>
    </message>
    <message>
        <source>&amp;Beside The Icons</source>
        <translation>&amp;Junto a los iconos</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Books</source>
        <translation>&amp;Libros</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Change Name</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>&amp;Clean Database</source>
        <translation>&amp;Limpiar base de datos</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Colour...</source>
        <translation>C&amp;olor...</translation>
    </message>
    <message>
        <source>&amp;Colours...</source>
        <translation>&amp;Colores...</translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation>&amp;Columna:</translation>
    </message>
    <message>
        <source>&amp;Columns to compare:</source>
        <translation>&amp;Columnas que comparar:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Columnas:</translation>
    </message>
    <message>
        <source>&amp;Confirm Delete</source>
        <translation>&amp;Confirmar eliminación</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>Co&amp;pias:</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Crear</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;Date of the print</source>
        <translation>&amp;Fecha de impresión</translation>
    </message>
    <message>
        <source>&amp;Dates And Numbers Of My Country</source>
        <translation>&amp;Fechas y números de mi país</translation>
    </message>
    <message>
        <source>&amp;Define Columns...</source>
        <translation>&amp;Definir columnas...</translation>
    </message>
    <message>
        <source>&amp;Delete All But First</source>
        <translation>&amp;Eliminar todos menos el primero</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Disclaimer</source>
        <translation>&amp;Descargo de responsabilidad</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;No guardar</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Listo</translation>
    </message>
    <message>
        <source>&amp;Duplicate Record</source>
        <translation>D&amp;uplicar registro</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>Codi&amp;ficación:</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Expression Editor</source>
        <translation>&amp;Editor de expresiones</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Find And Replace</source>
        <translation>Buscar y ree&amp;mplazar</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>&amp;Findings:</source>
        <translation>&amp;Resultados:</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Fuente:</translation>
    </message>
    <message>
        <source>&amp;Freeze First Column</source>
        <translation>&amp;Inmovilizar primera columna</translation>
    </message>
    <message>
        <source>&amp;Gap down:</source>
        <translation>Separació&amp;n vertical:</translation>
    </message>
    <message>
        <source>&amp;Go To Layout Upon Double-Click</source>
        <translation>&amp;Ir a la página de diseño con doble clic</translation>
    </message>
    <message>
        <source>&amp;Goes into:</source>
        <translation>&amp;Va a:</translation>
    </message>
    <message>
        <source>&amp;Group by</source>
        <translation>A&amp;grupar por</translation>
    </message>
    <message>
        <source>&amp;Group by:</source>
        <translation>A&amp;grupar por:</translation>
    </message>
    <message>
        <source>&amp;Groups of equal records:</source>
        <translation>&amp;Grupos de registros iguales:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>Al&amp;to:</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Highlight Calculation Boxes</source>
        <translation>&amp;Resaltar campos de cálculo</translation>
    </message>
    <message>
        <source>&amp;How many:</source>
        <translation>&amp;Cuántas:</translation>
    </message>
    <message>
        <source>&amp;Ignore capitals, and blanks at the ends</source>
        <translation>&amp;Ignorar mayúsculas y espacios en los extremos</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Import From Clipbard</source>
        <translation>&amp;Importar del portapapeles</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mportar...</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>&amp;Insert Column</source>
        <translation>&amp;Insertar columna</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>Fact&amp;uras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>A&amp;rtículos</translation>
    </message>
    <message>
        <source>&amp;Keep Their Columns as Text</source>
        <translation>&amp;Dejar sus columnas como texto</translation>
    </message>
    <message>
        <source>&amp;Keep This Filter...</source>
        <translation>&amp;Conservar este filtro...</translation>
    </message>
    <message>
        <source>&amp;Keep versions</source>
        <translation>C&amp;onservar versiones</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Tipo de archivo:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Ti&amp;po:</translation>
    </message>
    <message>
        <source>&amp;Labels across:</source>
        <translation>Etiquetas en &amp;horizontal:</translation>
    </message>
    <message>
        <source>&amp;Leave out empty lines and gaps</source>
        <translation>Omitir líneas &amp;vacías y huecos</translation>
    </message>
    <message>
        <source>&amp;Leave refused cells empty</source>
        <translation>&amp;Dejar vacías las celdas rechazadas</translation>
    </message>
    <message>
        <source>&amp;Leave these cells empty</source>
        <translation>De&amp;jar vacías estas celdas</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Lines of the label, with columns in braces:</source>
        <translation>Líneas &amp;de la etiqueta, con columnas entre llaves:</translation>
    </message>
    <message>
        <source>&amp;Lock Or Unlock Database Design</source>
        <translation>&amp;Bloquear o desbloquear el diseño</translation>
    </message>
    <message>
        <source>&amp;Look at a Copy...</source>
        <translation>&amp;Ver una copia...</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>Cr&amp;ear</translation>
    </message>
    <message>
        <source>&amp;Make Code...</source>
        <translation>Crear códi&amp;go...</translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation>&amp;Socios</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Más...</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Narrower</source>
        <translation>Más estrec&amp;ha</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;New Record</source>
        <translation>&amp;Nuevo registro</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Ninguna</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Tamaño &amp;normal</translation>
    </message>
    <message>
        <source>&amp;Number of entry rows to create:</source>
        <translation>&amp;Número de filas de entrada que crear:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Open PDFs After Printing</source>
        <translation>Abrir los P&amp;DF tras imprimir</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Other size</source>
        <translation>&amp;Otro tamaño</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>&amp;Sobrescribir</translation>
    </message>
    <message>
        <source>&amp;Overwrite It Anyway</source>
        <translation>&amp;Sobrescribir de todos modos</translation>
    </message>
    <message>
        <source>&amp;Overwrite at the Next Save</source>
        <translation>So&amp;brescribir al guardar</translation>
    </message>
    <message>
        <source>&amp;Page numbers, as 3 of 8</source>
        <translation>&amp;Números de página, como 3 de 8</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Paste...</source>
        <translation>&amp;Pegar...</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>I&amp;magen:</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Prompt For Save On Exit</source>
        <translation>&amp;Preguntar si se guarda al salir</translation>
    </message>
    <message>
        <source>&amp;Quotes:</source>
        <translation>Comi&amp;llas:</translation>
    </message>
    <message>
        <source>&amp;Read the Other State</source>
        <translation>&amp;Leer el otro estado</translation>
    </message>
    <message>
        <source>&amp;Recipes</source>
        <translation>&amp;Recetas</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Replace across all columns in all rows</source>
        <translation>&amp;Reemplazar en todas las columnas y filas</translation>
    </message>
    <message>
        <source>&amp;Replace in all rows for selected columns.</source>
        <translation>Reemplazar en todas las filas de las columnas &amp;seleccionadas.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Save as Another File...</source>
        <translation>&amp;Guardar como otro archivo...</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Search results only</source>
        <translation>&amp;Solo resultados de la búsqueda</translation>
    </message>
    <message>
        <source>&amp;Select Repeats</source>
        <translation>&amp;Seleccionar repetidos</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>E&amp;stablecer</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Show All Records</source>
        <translation>Mostrar to&amp;dos los registros</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Ta&amp;maño:</translation>
    </message>
    <message>
        <source>&amp;Start at label:</source>
        <translation>&amp;Empezar en la etiqueta:</translation>
    </message>
    <message>
        <source>&amp;Text size:</source>
        <translation>&amp;Tamaño del texto:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texto:</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Top margin:</source>
        <translation>Margen s&amp;uperior:</translation>
    </message>
    <message>
        <source>&amp;Totals carried and brought forward from sheet to sheet</source>
        <translation>Pasar los &amp;totales de una hoja a la siguiente</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>&amp;Under The Icons</source>
        <translation>&amp;Debajo de los iconos</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Subrayado</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Versions...</source>
        <translation>&amp;Versiones...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Visit FWK Homepage</source>
        <translation>&amp;Visitar la página web de FWK</translation>
    </message>
    <message>
        <source>&amp;Widen</source>
        <translation>E&amp;nsanchar</translation>
    </message>
    <message>
        <source>&amp;Wider</source>
        <translation>Más a&amp;ncha</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>An&amp;cho:</translation>
    </message>
    <message>
        <source>&amp;Worked out from the columns of each record</source>
        <translation>Calcula&amp;do a partir de las columnas de cada registro</translation>
    </message>
    <message>
        <source>&amp;Write It Again</source>
        <translation>Escri&amp;bir de nuevo</translation>
    </message>
    <message>
        <source>&amp;by</source>
        <translation>&amp;por</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>(leave out)</source>
        <translation>(omitir)</translation>
    </message>
    <message>
        <source>(no colour)</source>
        <translation>(sin color)</translation>
    </message>
    <message>
        <source>(no filter is kept yet)</source>
        <translation>(aún no hay filtros conservados)</translation>
    </message>
    <message>
        <source>(none yet)</source>
        <translation>(ninguno aún)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>1 of 3: Which labels?</source>
        <translation>1 de 3: ¿Qué etiquetas?</translation>
    </message>
    <message>
        <source>10 x 11 in</source>
        <translation>10 x 11 pulgadas</translation>
    </message>
    <message>
        <source>10 x 14 in</source>
        <translation>10 x 14 pulgadas</translation>
    </message>
    <message>
        <source>11 x 17 in</source>
        <translation>11 x 17 pulgadas</translation>
    </message>
    <message>
        <source>15 x 11 in</source>
        <translation>15 x 11 pulgadas</translation>
    </message>
    <message>
        <source>2 of 3: What stands on a label?</source>
        <translation>2 de 3: ¿Qué contiene la etiqueta?</translation>
    </message>
    <message>
        <source>3 of 3: How are they printed?</source>
        <translation>3 de 3: ¿Cómo se imprimen?</translation>
    </message>
    <message>
        <source>9 x 11 in</source>
        <translation>9 x 11 pulgadas</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Before you begin&lt;/h3&gt;&lt;p&gt;Ferrowick is free software. It is provided &lt;b&gt;as it is, without a warranty of any kind&lt;/b&gt;: nobody promises that it is free of errors or fit for what you want to do with it, and nobody answers for losses that come of its use.&lt;/p&gt;&lt;p&gt;What that means for your work:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Keep copies of your databases, on another disk if you can. A database is one file whose name ends in &lt;i&gt;.fwk&lt;/i&gt;, so a copy is quickly made.&lt;/li&gt;&lt;li&gt;Changes are on the disk only when you have saved them.&lt;/li&gt;&lt;li&gt;Check sums and calculations that money or other people depend on.&lt;/li&gt;&lt;li&gt;The design lock keeps a design from being changed by mistake. It does not encrypt anything: whoever has the file can read what is in it.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;The licence that comes with the program has the full terms.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Antes de empezar&lt;/h3&gt;&lt;p&gt;Ferrowick es software libre. Se ofrece &lt;b&gt;tal cual, sin garantía de ningún tipo&lt;/b&gt;: nadie promete que esté libre de errores ni que sirva para lo que usted quiera hacer con él, y nadie responde de las pérdidas que se deriven de su uso.&lt;/p&gt;&lt;p&gt;Qué significa esto para su trabajo:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Conserve copias de sus bases de datos, en otro disco si es posible. Una base de datos es un solo archivo cuyo nombre termina en &lt;i&gt;.fwk&lt;/i&gt;, así que la copia se hace enseguida.&lt;/li&gt;&lt;li&gt;Los cambios solo están en el disco cuando los ha guardado.&lt;/li&gt;&lt;li&gt;Compruebe las sumas y los cálculos de los que dependan dinero u otras personas.&lt;/li&gt;&lt;li&gt;El bloqueo del diseño evita que un diseño se cambie por error. No cifra nada: quien tenga el archivo puede leer su contenido.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;La licencia que acompaña al programa contiene las condiciones completas.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A click sorts the groups, and another one the other way</source>
        <translation>Un clic ordena los grupos; otro, en sentido contrario</translation>
    </message>
    <message>
        <source>A column has no name.</source>
        <translation>Una columna no tiene nombre.</translation>
    </message>
    <message>
        <source>A column is written in braces: {Name}.</source>
        <translation>Una columna se escribe entre llaves: {Nombre}.</translation>
    </message>
    <message>
        <source>A column you intend to delete is either a member of a calculation column expression, or is a calculation column itself.  You will need to redefine expressions for all affected calculation columns that referenced this one. Are you sure you want to do this?</source>
        <translation>Una columna que quiere eliminar forma parte de la expresión de una columna de cálculo o es ella misma una columna de cálculo. Tendrá que volver a definir las expresiones de todas las columnas de cálculo que hacían referencia a ella. ¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>A copy of your database with all changes is kept in
%1</source>
        <translation>Se conserva una copia de su base de datos con todos los cambios en
%1</translation>
    </message>
    <message>
        <source>A database has no room for so many records.</source>
        <translation>En una base de datos no caben tantos registros.</translation>
    </message>
    <message>
        <source>A date is set to a date or to a column of dates, and cannot be worked out</source>
        <translation>Una fecha solo admite una fecha o una columna de fechas, y no se puede calcular</translation>
    </message>
    <message>
        <source>A day: 12/31/2024</source>
        <translation>Un día: 12/31/2024</translation>
    </message>
    <message>
        <source>A file with that name exists. Overwrite it?</source>
        <translation>Ya existe un archivo con ese nombre. ¿Sobrescribirlo?</translation>
    </message>
    <message>
        <source>A filter is kept for a file. Please save the database first.</source>
        <translation>Los filtros se conservan para un archivo. Guarde antes la base de datos.</translation>
    </message>
    <message>
        <source>A label has 50 lines at most.</source>
        <translation>Una etiqueta tiene 50 líneas como máximo.</translation>
    </message>
    <message>
        <source>A line of the label is too long.</source>
        <translation>Una línea de la etiqueta es demasiado larga.</translation>
    </message>
    <message>
        <source>A number, or a serial number that counts by itself</source>
        <translation>Un número, o un número de serie que avanza solo</translation>
    </message>
    <message>
        <source>A photo or drawing: a .jpg or .gif file</source>
        <translation>Una foto o un dibujo: un archivo .jpg o .gif</translation>
    </message>
    <message>
        <source>A picture could not be put back: %1</source>
        <translation>No se pudo restablecer una imagen: %1</translation>
    </message>
    <message>
        <source>A summary has no place in address cards.</source>
        <translation>Un resumen no se puede guardar en tarjetas de contacto.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Falta un valor.</translation>
    </message>
    <message>
        <source>A&amp;ll</source>
        <translation>To&amp;das</translation>
    </message>
    <message>
        <source>A&amp;vailable columns:</source>
        <translation>Columnas &amp;disponibles:</translation>
    </message>
    <message>
        <source>A3 Extra</source>
        <translation>A3 Extra</translation>
    </message>
    <message>
        <source>A4 Plus</source>
        <translation>A4 Plus</translation>
    </message>
    <message>
        <source>A4 small</source>
        <translation>A4 pequeño</translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation>A5 Extra</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz 123</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add Box To Layout.</source>
        <translation>Añadir recuadro al diseño.</translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation>Añadir columna</translation>
    </message>
    <message>
        <source>Add Entry Box</source>
        <translation>Añadir campo de entrada</translation>
    </message>
    <message>
        <source>Add Entry Box, in the bar above, places a box for a column; Add Label a text.</source>
        <translation>«Añadir campo de entrada», en la barra de arriba, coloca un campo para una columna; «Añadir rótulo», un texto.</translation>
    </message>
    <message>
        <source>Add Horizontal Line To Layout.</source>
        <translation>Añadir línea horizontal al diseño.</translation>
    </message>
    <message>
        <source>Add Label</source>
        <translation>Añadir rótulo</translation>
    </message>
    <message numerus="yes">
        <source>Add Object</source>
        <comment>Add %n Objects</comment>
        <translation><numerusform>Añadir objeto</numerusform><numerusform>Añadir %n objetos</numerusform></translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation>Añadir imagen</translation>
    </message>
    <message>
        <source>Add Record</source>
        <translation>Añadir registro</translation>
    </message>
    <message numerus="yes">
        <source>Add Record</source>
        <comment>Add %n Records</comment>
        <translation><numerusform>Añadir registro</numerusform><numerusform>Añadir %n registros</numerusform></translation>
    </message>
    <message>
        <source>Add Vertical Line To Layout.</source>
        <translation>Añadir línea vertical al diseño.</translation>
    </message>
    <message>
        <source>Add a static clip art image to layout.</source>
        <translation>Añadir una imagen prediseñada fija al diseño.</translation>
    </message>
    <message>
        <source>Add column to list</source>
        <translation>Añadir columna a la lista</translation>
    </message>
    <message>
        <source>Adding the invoices</source>
        <translation>Añadiendo las facturas</translation>
    </message>
    <message>
        <source>Adding the records</source>
        <translation>Añadiendo los registros</translation>
    </message>
    <message>
        <source>Address book</source>
        <translation>Libreta de direcciones</translation>
    </message>
    <message>
        <source>Address cards</source>
        <translation>Tarjetas de contacto</translation>
    </message>
    <message>
        <source>Address labels, many to a page</source>
        <translation>Etiquetas de direcciones, varias por página</translation>
    </message>
    <message>
        <source>Adjust Serial Number</source>
        <translation>Ajustar número de serie</translation>
    </message>
    <message>
        <source>Adjust Serial Number Values</source>
        <translation>Ajustar valores de números de serie</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation>Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>All columns</source>
        <translation>Todas las columnas</translation>
    </message>
    <message>
        <source>An amount of money: $1,234.50</source>
        <translation>Un importe de dinero: $1,234.50</translation>
    </message>
    <message>
        <source>An error has occured during one of your calculations.  It appears that an expression is incorrectly defined.  Please check your syntax.</source>
        <translation>Se ha producido un error en uno de sus cálculos. Parece que una expresión está mal definida. Compruebe la sintaxis.</translation>
    </message>
    <message>
        <source>An invoice database has no Picture columns.</source>
        <translation>Una base de datos de facturas no tiene columnas de tipo Imagen.</translation>
    </message>
    <message>
        <source>Any words, also numbers that begin with 0</source>
        <translation>Cualquier palabra, también números que empiezan por 0</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Error definido por la aplicación o por el objeto</translation>
    </message>
    <message>
        <source>Are you absolutely certain you want to do this?  ALL data in the column %1 will be lost!</source>
        <translation>¿Seguro que quiere hacerlo? ¡Se perderán TODOS los datos de la columna %1!</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>¿Seguro?</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Tal cual</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>Lo más grande posible</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>Tan ancho como la ventana</translation>
    </message>
    <message>
        <source>At %1, %2   Size %3 x %4 in</source>
        <translation>En %1, %2   Tamaño %3 x %4 pulg.</translation>
    </message>
    <message>
        <source>Auto Name Label</source>
        <translation>Rótulo con nombre automático</translation>
    </message>
    <message>
        <source>Auto enter today's date when entering data?</source>
        <translation>¿Poner automáticamente la fecha de hoy al introducir datos?</translation>
    </message>
    <message>
        <source>Auto increment value when entering data?</source>
        <translation>¿Incrementar el valor automáticamente al introducir datos?</translation>
    </message>
    <message>
        <source>Auto-Date</source>
        <translation>Autofecha</translation>
    </message>
    <message>
        <source>Auto-Serial</source>
        <translation>Autonúmero</translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation>B4 (ISO)</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4 (JIS)</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>B5 Extra</source>
        <translation>B5 Extra</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Bad file name</source>
        <translation>Nombre de archivo incorrecto</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra vertical</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Books with their covers</source>
        <translation>Libros con sus portadas</translation>
    </message>
    <message>
        <source>Border Width Setting</source>
        <translation>Grosor del borde</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Inferior:</translation>
    </message>
    <message>
        <source>Bring To Front</source>
        <translation>Traer al frente</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Suma anterior</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Por %1</translation>
    </message>
    <message>
        <source>By %1 and %2</source>
        <translation>Por %1 y %2</translation>
    </message>
    <message>
        <source>C&amp;entred from top to bottom</source>
        <translation>&amp;Centrado en vertical</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>C&amp;lone Database To..</source>
        <translation>Clonar &amp;base de datos en..</translation>
    </message>
    <message>
        <source>C&amp;olours...</source>
        <translation>C&amp;olores...</translation>
    </message>
    <message>
        <source>C&amp;olumns:</source>
        <translation>C&amp;olumnas:</translation>
    </message>
    <message>
        <source>Calculated columns as &amp;formulas</source>
        <translation>Columnas calculadas como fór&amp;mulas</translation>
    </message>
    <message>
        <source>Calculated values and totals</source>
        <translation>Valores calculados y totales</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Calculation Status:</source>
        <translation>Estado del cálculo:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation>Se ha cancelado</translation>
    </message>
    <message>
        <source>Cannot be stored because it</source>
        <translation>No se puede guardar porque</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Suma y sigue</translation>
    </message>
    <message>
        <source>Cells of the colu&amp;mn</source>
        <translation>Celdas de la colu&amp;mna</translation>
    </message>
    <message>
        <source>Cells that cannot be stored</source>
        <translation>Celdas que no se pueden guardar</translation>
    </message>
    <message>
        <source>Change Column</source>
        <translation>Cambiar columna</translation>
    </message>
    <message>
        <source>Change Entry Options</source>
        <translation>Cambiar opciones de entrada</translation>
    </message>
    <message>
        <source>Change Expression</source>
        <translation>Cambiar expresión</translation>
    </message>
    <message>
        <source>Change Object</source>
        <translation>Cambiar objeto</translation>
    </message>
    <message numerus="yes">
        <source>Change Record</source>
        <comment>Change %n Records</comment>
        <translation><numerusform>Cambiar registro</numerusform><numerusform>Cambiar %n registros</numerusform></translation>
    </message>
    <message>
        <source>Check Previous Entries</source>
        <translation>Comprobar entradas anteriores</translation>
    </message>
    <message>
        <source>Check Serial &amp;Numbers...</source>
        <translation>Comprobar &amp;números de serie...</translation>
    </message>
    <message>
        <source>Check Serial Numbers</source>
        <translation>Comprobar números de serie</translation>
    </message>
    <message>
        <source>Choose Columns To Total</source>
        <translation>Elegir columnas que totalizar</translation>
    </message>
    <message>
        <source>Choose Report Columns</source>
        <translation>Elegir columnas del informe</translation>
    </message>
    <message>
        <source>Choose at least one column for the label.</source>
        <translation>Elija al menos una columna para la etiqueta.</translation>
    </message>
    <message>
        <source>Choose in the page setup what is printed.</source>
        <translation>Elija en la configuración de página lo que se imprime.</translation>
    </message>
    <message>
        <source>Choose the columns to compare.</source>
        <translation>Elija las columnas que comparar.</translation>
    </message>
    <message>
        <source>Choose your database format.</source>
        <translation>Elija el formato de la base de datos.</translation>
    </message>
    <message>
        <source>Clean Database</source>
        <translation>Limpiar base de datos</translation>
    </message>
    <message>
        <source>Clear &amp;Guides</source>
        <translation>&amp;Quitar guías</translation>
    </message>
    <message>
        <source>Click to set a guide line; double-click its marker to remove it</source>
        <translation>Haga clic para poner una guía; doble clic en su marca para quitarla</translation>
    </message>
    <message>
        <source>Clone current file to...</source>
        <translation>Clonar el archivo actual en...</translation>
    </message>
    <message>
        <source>Clone1.fwk</source>
        <translation>Clon1.fwk</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Cerrar el filtro</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Code %1</source>
        <translation>Código %1</translation>
    </message>
    <message>
        <source>Code of %1</source>
        <translation>Código de %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Column Headin&amp;gs</source>
        <translation>Encabe&amp;zados de columna</translation>
    </message>
    <message>
        <source>Column Name</source>
        <translation>Nombre de columna</translation>
    </message>
    <message>
        <source>Column Name:</source>
        <translation>Nombre de columna:</translation>
    </message>
    <message>
        <source>Column Stat&amp;istics...</source>
        <translation>E&amp;stadísticas de columna...</translation>
    </message>
    <message>
        <source>Column Statistics</source>
        <translation>Estadísticas de columna</translation>
    </message>
    <message>
        <source>Column name must not be a number.</source>
        <translation>El nombre de columna no puede ser un número.</translation>
    </message>
    <message>
        <source>Column to find and replace in:</source>
        <translation>Columna en la que buscar y reemplazar:</translation>
    </message>
    <message>
        <source>Column to search, %1</source>
        <translation>Columna en la que buscar, %1</translation>
    </message>
    <message>
        <source>Column with that name already exists!</source>
        <translation>¡Ya existe una columna con ese nombre!</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Columns To Print</source>
        <translation>Columnas que imprimir</translation>
    </message>
    <message>
        <source>Columns To Total</source>
        <translation>Columnas que totalizar</translation>
    </message>
    <message>
        <source>Columns are what a record is made of, as a name, a date or a price.</source>
        <translation>Las columnas son lo que compone un registro, como un nombre, una fecha o un precio.</translation>
    </message>
    <message>
        <source>Columns that words are looked for in</source>
        <translation>Columnas en las que se buscan las palabras</translation>
    </message>
    <message>
        <source>Columns to export</source>
        <translation>Columnas que exportar</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Confirmar eliminación</translation>
    </message>
    <message>
        <source>Copy With &amp;Headings</source>
        <translation>Copiar con &amp;encabezados</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Copia de %1</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Create Item Rows</source>
        <translation>Crear filas de artículos</translation>
    </message>
    <message>
        <source>Create Link From Label.</source>
        <translation>Crear enlace a partir del rótulo.</translation>
    </message>
    <message>
        <source>Create New Record</source>
        <translation>Crear registro nuevo</translation>
    </message>
    <message>
        <source>Create a standard database for simple spreadsheets, inventory, collectibles, recipes, etc</source>
        <translation>Crear una base de datos estándar para tablas sencillas, inventarios, colecciones, recetas, etc.</translation>
    </message>
    <message>
        <source>Create an invoice style database.  This means you will design a layout where the calculations take place in the layout itself and you will have multiple values stored in a single row and column cell.</source>
        <translation>Crear una base de datos de facturas. Esto significa que diseñará una página en la que se harán los propios cálculos y que una sola celda podrá guardar varios valores.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation>Criterios</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Currency &amp;sign:</source>
        <translation>Símb&amp;olo de moneda:</translation>
    </message>
    <message>
        <source>Current Columns:</source>
        <translation>Columnas actuales:</translation>
    </message>
    <message>
        <source>Current Value:</source>
        <translation>Valor actual:</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Database &amp;Properties</source>
        <translation>&amp;Propiedades de la base de datos</translation>
    </message>
    <message>
        <source>Database (*.fwk)|*.fwk|All Files (*.*)|*.*</source>
        <translation>Base de datos (*.fwk)|*.fwk|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Database Locked.</source>
        <translation>Base de datos bloqueada.</translation>
    </message>
    <message>
        <source>Database Properties</source>
        <translation>Propiedades de la base de datos</translation>
    </message>
    <message>
        <source>Database Style:</source>
        <translation>Estilo de base de datos:</translation>
    </message>
    <message>
        <source>Database Style: Invoice</source>
        <translation>Estilo de base de datos: factura</translation>
    </message>
    <message>
        <source>Database Style: Standard</source>
        <translation>Estilo de base de datos: estándar</translation>
    </message>
    <message>
        <source>Database st&amp;yle:</source>
        <translation>&amp;Estilo de base de datos:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Day, month, year</source>
        <translation>Día, mes, año</translation>
    </message>
    <message>
        <source>Define Expressions</source>
        <translation>Definir expresiones</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of %1 groups?</source>
        <comment>Delete %n records and keep the first of %1 groups?</comment>
        <translation><numerusform>¿Eliminar %n registro y conservar el primero de %1 grupos?</numerusform><numerusform>¿Eliminar %n registros y conservar el primero de %1 grupos?</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of the group?</source>
        <comment>Delete %n records and keep the first of the group?</comment>
        <translation><numerusform>¿Eliminar %n registro y conservar el primero del grupo?</numerusform><numerusform>¿Eliminar %n registros y conservar el primero del grupo?</numerusform></translation>
    </message>
    <message>
        <source>Delete Duplicates</source>
        <translation>Eliminar duplicados</translation>
    </message>
    <message numerus="yes">
        <source>Delete Object</source>
        <comment>Delete %n Objects</comment>
        <translation><numerusform>Eliminar objeto</numerusform><numerusform>Eliminar %n objetos</numerusform></translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Eliminar registro</translation>
    </message>
    <message numerus="yes">
        <source>Delete Record</source>
        <comment>Delete %n Records</comment>
        <translation><numerusform>Eliminar registro</numerusform><numerusform>Eliminar %n registros</numerusform></translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>Eliminar fila</translation>
    </message>
    <message>
        <source>Delete Selected Object</source>
        <translation>Eliminar el objeto seleccionado</translation>
    </message>
    <message>
        <source>Delete Selected Record.</source>
        <translation>Eliminar el registro seleccionado.</translation>
    </message>
    <message>
        <source>Delete selected column from list</source>
        <translation>Eliminar de la lista la columna seleccionada</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Diseñar</translation>
    </message>
    <message>
        <source>Design The &amp;Page</source>
        <translation>Diseñar la &amp;página</translation>
    </message>
    <message>
        <source>Design it once: it then shows each record, takes what you type, and prints as you have placed it.</source>
        <translation>Diséñela una vez: mostrará cada registro, recogerá lo que escriba y se imprimirá tal como la haya compuesto.</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Error de E/S del dispositivo</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valores distintos</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Descargo de responsabilidad</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Disk not ready</source>
        <translation>El disco no está listo</translation>
    </message>
    <message>
        <source>Display Totals For Selected Items</source>
        <translation>Mostrar los totales de la selección</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to empty %1 in %n record?</source>
        <comment>Do you want to empty %1 in %n records?</comment>
        <translation><numerusform>¿Quiere vaciar %1 en %n registro?</numerusform><numerusform>¿Quiere vaciar %1 en %n registros?</numerusform></translation>
    </message>
    <message>
        <source>Document Modified</source>
        <translation>Documento modificado</translation>
    </message>
    <message>
        <source>Document Opened</source>
        <translation>Documento abierto</translation>
    </message>
    <message>
        <source>Document Saved</source>
        <translation>Documento guardado</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Listo.</translation>
    </message>
    <message>
        <source>Double Postcard (JIS)</source>
        <translation>Postal doble (JIS)</translation>
    </message>
    <message>
        <source>Double-click to choose a picture</source>
        <translation>Doble clic para elegir una imagen</translation>
    </message>
    <message>
        <source>Double-click to choose clip art</source>
        <translation>Doble clic para elegir una imagen prediseñada</translation>
    </message>
    <message>
        <source>Duplicate Record</source>
        <translation>Duplicar registro</translation>
    </message>
    <message>
        <source>During a recalculate all rows event your columns were not able to be recalculated due to a syntax error with one of your defined expressions.</source>
        <translation>No se pudieron recalcular las columnas de todas las filas por un error de sintaxis en una de las expresiones definidas.</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Each number is there once.</source>
        <translation>Cada número aparece una sola vez.</translation>
    </message>
    <message>
        <source>Each row that is pasted becomes an invoice. Please show the invoices, not their items.</source>
        <translation>Cada fila que se pega se convierte en una factura. Muestre las facturas, no sus artículos.</translation>
    </message>
    <message>
        <source>Each value</source>
        <translation>Cada valor</translation>
    </message>
    <message>
        <source>Earlier states of this database:</source>
        <translation>Estados anteriores de esta base de datos:</translation>
    </message>
    <message>
        <source>Earlier values</source>
        <translation>Valores anteriores</translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation>Elemento no encontrado</translation>
    </message>
    <message>
        <source>Email Address:</source>
        <translation>Dirección de correo:</translation>
    </message>
    <message>
        <source>Email Currently Opened Database File</source>
        <translation>Enviar por correo la base de datos abierta</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacíos</translation>
    </message>
    <message>
        <source>Enter URL or email address.  URL's should begin with http:// and emails should start with mailto:</source>
        <translation>Introduzca una URL o una dirección de correo. Las URL deben empezar por http:// y las direcciones de correo por mailto:</translation>
    </message>
    <message>
        <source>Enter password to lock file.</source>
        <translation>Introduzca la contraseña para bloquear el archivo.</translation>
    </message>
    <message>
        <source>Enter password to unlock database.</source>
        <translation>Introduzca la contraseña para desbloquear la base de datos.</translation>
    </message>
    <message>
        <source>Enter value from 1 to 10 for border width.</source>
        <translation>Introduzca un valor de 1 a 10 para el grosor del borde.</translation>
    </message>
    <message>
        <source>Entry Form</source>
        <translation>Formulario de entrada</translation>
    </message>
    <message>
        <source>Entry Options</source>
        <translation>Opciones de entrada</translation>
    </message>
    <message>
        <source>Envelope #10</source>
        <translation>Sobre n.º 10</translation>
    </message>
    <message>
        <source>Envelope #11</source>
        <translation>Sobre n.º 11</translation>
    </message>
    <message>
        <source>Envelope #12</source>
        <translation>Sobre n.º 12</translation>
    </message>
    <message>
        <source>Envelope #14</source>
        <translation>Sobre n.º 14</translation>
    </message>
    <message>
        <source>Envelope #9</source>
        <translation>Sobre n.º 9</translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation>Sobre B4</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Sobre B5</translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation>Sobre B6</translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation>Sobre C3</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Sobre C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Sobre C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Sobre C6</translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation>Sobre C65</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Sobre DL</translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation>Sobre de invitación</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Sobre italiano</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Sobre Monarch</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Sobre personal</translation>
    </message>
    <message>
        <source>Erase Layout</source>
        <translation>Borrar diseño de página</translation>
    </message>
    <message>
        <source>Erase Layout Confirmation</source>
        <translation>Confirmar borrado del diseño de página</translation>
    </message>
    <message>
        <source>Error %1: %2</source>
        <translation>Error %1: %2</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exacto</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation>Libro de Excel</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Ejecutivo</translation>
    </message>
    <message>
        <source>Expor&amp;t...</source>
        <translation>Expor&amp;tar...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Exportar resumen</translation>
    </message>
    <message>
        <source>Expression Editor</source>
        <translation>Editor de expresiones</translation>
    </message>
    <message>
        <source>Expression for selected column:</source>
        <translation>Expresión de la columna seleccionada:</translation>
    </message>
    <message>
        <source>Expressions</source>
        <translation>Expresiones</translation>
    </message>
    <message>
        <source>F&amp;ilter...</source>
        <translation>&amp;Filtrar...</translation>
    </message>
    <message>
        <source>Fanfold German</source>
        <translation>Continuo alemán</translation>
    </message>
    <message>
        <source>Fanfold German Legal</source>
        <translation>Continuo alemán Legal</translation>
    </message>
    <message>
        <source>Fanfold US</source>
        <translation>Continuo EE. UU.</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;ltro:</translation>
    </message>
    <message>
        <source>Field already added!</source>
        <translation>¡El campo ya está añadido!</translation>
    </message>
    <message>
        <source>Field already added.</source>
        <translation>El campo ya está añadido.</translation>
    </message>
    <message>
        <source>Fig&amp;ures</source>
        <translation>Ci&amp;fras</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Cifra</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Cifras</translation>
    </message>
    <message>
        <source>File does not exist!</source>
        <translation>¡El archivo no existe!</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
    </message>
    <message>
        <source>Filesize:</source>
        <translation>Tamaño del archivo:</translation>
    </message>
    <message>
        <source>Filesize: %1</source>
        <translation>Tamaño del archivo: %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find And Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Find Duplicat&amp;es...</source>
        <translation>Buscar dup&amp;licados...</translation>
    </message>
    <message>
        <source>Find Duplicates</source>
        <translation>Buscar duplicados</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primero</translation>
    </message>
    <message>
        <source>First &amp;rows, as they will be stored:</source>
        <translation>Primeras filas, tal como se g&amp;uardarán:</translation>
    </message>
    <message>
        <source>First Record</source>
        <translation>Primer registro</translation>
    </message>
    <message>
        <source>First column</source>
        <translation>Primera columna</translation>
    </message>
    <message>
        <source>Fit &amp;Page</source>
        <translation>Ajustar a la &amp;página</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Ajustar al anc&amp;ho</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>Folio</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>From A Template</source>
        <translation>A partir de una plantilla</translation>
    </message>
    <message>
        <source>Gap a&amp;cross:</source>
        <translation>Sepa&amp;ración horizontal:</translation>
    </message>
    <message>
        <source>Gap across: %1 mm</source>
        <translation>Separación horizontal: %1 mm</translation>
    </message>
    <message>
        <source>Gap down: %1 mm</source>
        <translation>Separación vertical: %1 mm</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Jardín</translation>
    </message>
    <message>
        <source>Go To First Record</source>
        <translation>Ir al primer registro</translation>
    </message>
    <message>
        <source>Go To Last Record</source>
        <translation>Ir al último registro</translation>
    </message>
    <message>
        <source>Goes into</source>
        <translation>Va a</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Mayor o igual que</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Greatest of %1</source>
        <translation>Máximo de %1</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Groups With Subtotals</source>
        <translation>Grupos con subtotales</translation>
    </message>
    <message>
        <source>Guide at %1 inches</source>
        <translation>Guía a %1 pulgadas</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation>Regla horizontal</translation>
    </message>
    <message>
        <source>How finely values are told apart: dates by year, quarter, month or day, numbers by steps, which can be typed</source>
        <translation>Con qué detalle se distinguen los valores: las fechas por año, trimestre, mes o día; los números por intervalos, que se pueden escribir</translation>
    </message>
    <message>
        <source>How many copies?</source>
        <translation>¿Cuántas copias?</translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation>I&amp;mportar...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>In the table: "%1".</source>
        <translation>En la tabla: «%1».</translation>
    </message>
    <message>
        <source>In&amp;ventory</source>
        <translation>In&amp;ventario</translation>
    </message>
    <message>
        <source>Incorrect Password.</source>
        <translation>Contraseña incorrecta.</translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation>Índice fuera de los límites</translation>
    </message>
    <message>
        <source>Insert Link</source>
        <translation>Insertar enlace</translation>
    </message>
    <message>
        <source>Into:</source>
        <translation>Destino:</translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Formato de archivo no válido</translation>
    </message>
    <message>
        <source>Invalid values specified. Values must be greater than 0.</source>
        <translation>Valores no válidos. Los valores deben ser mayores que 0.</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Factura</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Facturas</translation>
    </message>
    <message>
        <source>It could not be written for this reason:
%1</source>
        <translation>No se pudo escribir por este motivo:
%1</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Item Row Creation Tool</source>
        <translation>Creación de filas de artículos</translation>
    </message>
    <message>
        <source>Item rows, tax and sums</source>
        <translation>Filas de artículos, impuestos y sumas</translation>
    </message>
    <message>
        <source>Items and invoices</source>
        <translation>Artículos y facturas</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif</source>
        <translation>Imágenes JPEG (*.jpg)|*.jpg|Imágenes GIF (*.gif)|*.gif</translation>
    </message>
    <message>
        <source>Keep Filter</source>
        <translation>Conservar filtro</translation>
    </message>
    <message>
        <source>Keep The Layout</source>
        <translation>Conservar el diseño</translation>
    </message>
    <message>
        <source>Keeps one record of each selected group</source>
        <translation>Conserva un registro de cada grupo seleccionado</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Filtros conservados</translation>
    </message>
    <message>
        <source>Key is not unique in collection</source>
        <translation>La clave no es única en la colección</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>L&amp;eft margin:</source>
        <translation>Margen &amp;izquierdo:</translation>
    </message>
    <message>
        <source>La&amp;bel Wizard...</source>
        <translation>Asistente de &amp;etiquetas...</translation>
    </message>
    <message>
        <source>Label Wizard</source>
        <translation>Asistente de etiquetas</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Labels &amp;down:</source>
        <translation>Etiquetas en &amp;vertical:</translation>
    </message>
    <message>
        <source>Labels are made of the records of a list.  Invoices print one to a page: use Print on the Layout tab.</source>
        <translation>Las etiquetas se hacen con los registros de una lista. Las facturas se imprimen una por página: use Imprimir en la pestaña Diseño de página.</translation>
    </message>
    <message>
        <source>Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.</source>
        <translation>En el papel no caben tantas etiquetas de este tamaño. En una hoja hay 10000 como máximo.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>Last Record</source>
        <translation>Último registro</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño de página</translation>
    </message>
    <message>
        <source>Layout Page Setup</source>
        <translation>Configurar página de diseño</translation>
    </message>
    <message>
        <source>Layout sheet</source>
        <translation>Hoja de diseño</translation>
    </message>
    <message>
        <source>Lea&amp;ve out these records</source>
        <translation>O&amp;mitir estos registros</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Least of %1</source>
        <translation>Mínimo de %1</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %1, and %n more.</source>
        <comment>Left out: %1, and %n more.</comment>
        <translation><numerusform>Omitido: %1 y %n más.</numerusform><numerusform>Omitido: %1 y %n más.</numerusform></translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Omitido: %1.</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Izquierdo:</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Largo:</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Menor o igual que</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Letter Plus</source>
        <translation>Letter Plus</translation>
    </message>
    <message>
        <source>Letter small</source>
        <translation>Letter pequeño</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Lines of the label</source>
        <translation>Líneas de la etiqueta</translation>
    </message>
    <message>
        <source>Lock Database</source>
        <translation>Bloquear base de datos</translation>
    </message>
    <message>
        <source>Lock Design</source>
        <translation>Bloquear diseño</translation>
    </message>
    <message>
        <source>Lock Object</source>
        <translation>Bloquear objeto</translation>
    </message>
    <message>
        <source>Lock Selected Object.</source>
        <translation>Bloquear el objeto seleccionado.</translation>
    </message>
    <message>
        <source>Make Code</source>
        <translation>Crear código</translation>
    </message>
    <message>
        <source>Make ane&amp;w when the text of a record changes</source>
        <translation>Crear de nue&amp;vo al cambiar el texto de un registro</translation>
    </message>
    <message>
        <source>Maker, number, words, or a size: 99.1 x 38.1</source>
        <translation>Fabricante, número, palabras o un tamaño: 99.1 x 38.1</translation>
    </message>
    <message>
        <source>Makes the columns as wide as what they print</source>
        <translation>Da a las columnas el ancho de lo que imprimen</translation>
    </message>
    <message>
        <source>Making codes</source>
        <translation>Creando códigos</translation>
    </message>
    <message>
        <source>Making the records</source>
        <translation>Creando los registros</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation>Media de %1</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Megabytes for the versions of all databases</source>
        <translation>Megabytes para las versiones de todas las bases de datos</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menús</translation>
    </message>
    <message>
        <source>Message To Sender(500 Characters Max):</source>
        <translation>Mensaje (500 caracteres como máximo):</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Month, day, year</source>
        <translation>Mes, día, año</translation>
    </message>
    <message>
        <source>Most frequent</source>
        <translation>Más frecuentes</translation>
    </message>
    <message>
        <source>Most frequent values</source>
        <translation>Valores más frecuentes</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Mover a la i&amp;zquierda</translation>
    </message>
    <message>
        <source>Move &amp;Right</source>
        <translation>Mover a la de&amp;recha</translation>
    </message>
    <message>
        <source>Move Column</source>
        <translation>Mover columna</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Mover objeto</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name of column to create</source>
        <translation>Nombre de la columna que se creará</translation>
    </message>
    <message>
        <source>Name of the filter:</source>
        <translation>Nombre del filtro:</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Ne&amp;xt Record</source>
        <translation>Registro si&amp;guiente</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>New Contents</source>
        <translation>Contenido nuevo</translation>
    </message>
    <message>
        <source>New Database</source>
        <translation>Nueva base de datos</translation>
    </message>
    <message>
        <source>New From Te&amp;mplate</source>
        <translation>Nuevo desde &amp;plantilla</translation>
    </message>
    <message>
        <source>New Record</source>
        <translation>Nuevo registro</translation>
    </message>
    <message>
        <source>New record</source>
        <translation>Nuevo registro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Next Record</source>
        <translation>Registro siguiente</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No Open Document</source>
        <translation>Ningún documento abierto</translation>
    </message>
    <message>
        <source>No code</source>
        <translation>Sin código</translation>
    </message>
    <message>
        <source>No code because of</source>
        <translation>Sin código por</translation>
    </message>
    <message>
        <source>No column has serial numbers.  They are an option of Number columns in the database properties.</source>
        <translation>Ninguna columna tiene números de serie. Son una opción de las columnas de tipo Número en las propiedades de la base de datos.</translation>
    </message>
    <message>
        <source>No column is chosen for the report</source>
        <translation>No se ha elegido ninguna columna para el informe</translation>
    </message>
    <message>
        <source>No column is chosen.</source>
        <translation>No se ha elegido ninguna columna.</translation>
    </message>
    <message>
        <source>No column of the report is totaled, so there are no sums: see Choose Columns To Total.</source>
        <translation>No se totaliza ninguna columna del informe, así que no hay sumas: vea Elegir columnas que totalizar.</translation>
    </message>
    <message>
        <source>No copy of your database could be kept. The file is as you last saved it.</source>
        <translation>No se pudo conservar ninguna copia de la base de datos. El archivo está como lo guardó por última vez.</translation>
    </message>
    <message>
        <source>No database is open</source>
        <translation>No hay ninguna base de datos abierta</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Sin grupos</translation>
    </message>
    <message>
        <source>No guide is chosen</source>
        <translation>Ninguna guía elegida</translation>
    </message>
    <message>
        <source>No guides; Insert makes one</source>
        <translation>No hay guías; Insertar coloca una</translation>
    </message>
    <message>
        <source>No record was found</source>
        <translation>No se encontró ningún registro</translation>
    </message>
    <message>
        <source>No records yet</source>
        <translation>Aún no hay registros</translation>
    </message>
    <message>
        <source>No sheet</source>
        <translation>Sin hoja</translation>
    </message>
    <message>
        <source>No sheet of labels is called so, or has labels of that size.</source>
        <translation>Ninguna hoja de etiquetas se llama así ni tiene etiquetas de ese tamaño.</translation>
    </message>
    <message>
        <source>No two records are equal in these columns.</source>
        <translation>No hay dos registros iguales en estas columnas.</translation>
    </message>
    <message>
        <source>No version kept: %1</source>
        <translation>No se ha conservado ninguna versión: %1</translation>
    </message>
    <message>
        <source>No version of this database has been kept yet.</source>
        <translation>Aún no se ha conservado ninguna versión de esta base de datos.</translation>
    </message>
    <message>
        <source>No whole number: records %1</source>
        <translation>Sin número entero: registros %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>Ahora &amp;no</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message numerus="yes">
        <source>Nothing has been made.  %n record has a text that gives no code</source>
        <comment>Nothing has been made.  %n records have texts that give no code</comment>
        <translation><numerusform>No se ha creado nada. %n registro tiene un texto que no da ningún código</numerusform><numerusform>No se ha creado nada. %n registros tienen textos que no dan ningún código</numerusform></translation>
    </message>
    <message>
        <source>Nothing has been set.  The record "%1" would get no value: %2.</source>
        <translation>No se ha establecido nada. El registro «%1» se quedaría sin valor: %2.</translation>
    </message>
    <message>
        <source>Nothing in the database is what was searched for.</source>
        <translation>En la base de datos no hay nada de lo buscado.</translation>
    </message>
    <message>
        <source>Nothing is placed on the page yet</source>
        <translation>Aún no hay nada en la página</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Numeric Columns:</source>
        <translation>Columnas numéricas:</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>SÍ</translation>
    </message>
    <message>
        <source>On Each Sheet</source>
        <translation>En cada hoja</translation>
    </message>
    <message>
        <source>On a sheet</source>
        <translation>Por hoja</translation>
    </message>
    <message numerus="yes">
        <source>One label of %1 mm on %2</source>
        <comment>%n labels of %1 mm on %2</comment>
        <translation><numerusform>Una etiqueta de %1 mm en %2</numerusform><numerusform>%n etiquetas de %1 mm en %2</numerusform></translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open %1?</source>
        <translation>¿Abrir %1?</translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation>&amp;Abrir de todos modos</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Abrir base de datos</translation>
    </message>
    <message>
        <source>Open In &amp;Entry Form</source>
        <translation>&amp;Abrir en formulario de entrada</translation>
    </message>
    <message>
        <source>Open Recent &amp;Files</source>
        <translation>Arc&amp;hivos recientes</translation>
    </message>
    <message>
        <source>Open a &amp;Copy...</source>
        <translation>Abrir una &amp;copia...</translation>
    </message>
    <message>
        <source>Open a Copy As...</source>
        <translation>Abrir una copia como...</translation>
    </message>
    <message>
        <source>Open a database, or add columns, to see its records in groups.</source>
        <translation>Abra una base de datos o añada columnas para ver sus registros en grupos.</translation>
    </message>
    <message>
        <source>Open a database, or drop its file on this window.
A database is one file; its name ends in .fwk.</source>
        <translation>Abra una base de datos o suelte su archivo en esta ventana.
Una base de datos es un solo archivo; su nombre termina en .fwk.</translation>
    </message>
    <message>
        <source>Open to &amp;Read Only</source>
        <translation>Abrir como solo &amp;lectura</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir...</translation>
    </message>
    <message>
        <source>OpenDocument spreadsheet</source>
        <translation>Hoja de cálculo OpenDocument</translation>
    </message>
    <message>
        <source>Or click the first free label of a sheet that you have used before.</source>
        <translation>O haga clic en la primera etiqueta libre de una hoja ya empezada.</translation>
    </message>
    <message>
        <source>Or try a sample. You get a copy of your own, so change in it what you like.</source>
        <translation>O pruebe un ejemplo. Recibirá su propia copia, así que cambie en ella lo que quiera.</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Ot&amp;her:</source>
        <translation>&amp;Otro:</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Otro papel</translation>
    </message>
    <message>
        <source>Over the edge of the paper: %1.</source>
        <translation>Fuera del borde del papel: %1.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Overwrite Existing File?</source>
        <translation>¿Sobrescribir el archivo existente?</translation>
    </message>
    <message>
        <source>P&amp;revious Record</source>
        <translation>Registro ante&amp;rior</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*</source>
        <translation>Archivos PDF (*.pdf)|*.pdf|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation>&amp;Configurar página...</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
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
        <source>Paper Size: %1 x %2</source>
        <translation>Tamaño de papel: %1 x %2</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste Records</source>
        <translation>Pegar registros</translation>
    </message>
    <message>
        <source>Path/file access error</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Place &amp;All Columns</source>
        <translation>Colocar &amp;todas las columnas</translation>
    </message>
    <message>
        <source>Plants with photos and costs</source>
        <translation>Plantas con fotos y costes</translation>
    </message>
    <message>
        <source>Please allow your text to wrap automatically.</source>
        <translation>Deje que el texto se ajuste automáticamente.</translation>
    </message>
    <message>
        <source>Please attach the database to the message yourself:
%1</source>
        <translation>Adjunte usted mismo la base de datos al mensaje:
%1</translation>
    </message>
    <message>
        <source>Please check: "%1" can be read in two ways.</source>
        <translation>Compruébelo: «%1» se puede leer de dos maneras.</translation>
    </message>
    <message>
        <source>Please return layout to browse view instead of design.  The design button is currently pressed.</source>
        <translation>Salga del modo de diseño de la página. El botón Diseñar está pulsado.</translation>
    </message>
    <message>
        <source>Please use separate labels for multiple lines, or resize your label and allow your text to wrap automatically.</source>
        <translation>Use rótulos separados para varias líneas, o cambie el tamaño del rótulo y deje que el texto se ajuste automáticamente.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Postcard (JIS)</source>
        <translation>Postal (JIS)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Preview of all records using multiple layouts.</source>
        <translation>Vista previa de todos los registros con varios diseños por página.</translation>
    </message>
    <message>
        <source>Preview of selected records using multiple layouts.</source>
        <translation>Vista previa de los registros seleccionados con varios diseños por página.</translation>
    </message>
    <message>
        <source>Previous Record</source>
        <translation>Registro anterior</translation>
    </message>
    <message>
        <source>Previously opened file could not be found.</source>
        <translation>No se encontró el último archivo abierto.</translation>
    </message>
    <message>
        <source>Price * 1.1, with a blank beside each name</source>
        <translation>Precio * 1.1, con un espacio a cada lado de los nombres</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print Database</source>
        <translation>Imprimir base de datos</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print all records as layouts.</source>
        <translation>Imprimir todos los registros con el diseño de página.</translation>
    </message>
    <message>
        <source>Print all records as multiple layouts per page.</source>
        <translation>Imprimir todos los registros con varios diseños por página.</translation>
    </message>
    <message>
        <source>Print all records as report.</source>
        <translation>Imprimir todos los registros como informe.</translation>
    </message>
    <message>
        <source>Print selected items as layouts.</source>
        <translation>Imprimir la selección con el diseño de página.</translation>
    </message>
    <message>
        <source>Print selected items as multiple layouts per page.</source>
        <translation>Imprimir la selección con varios diseños por página.</translation>
    </message>
    <message>
        <source>Print selected items as report.</source>
        <translation>Imprimir la selección como informe.</translation>
    </message>
    <message>
        <source>Print to PDF</source>
        <translation>Imprimir en PDF</translation>
    </message>
    <message>
        <source>Printer Not Installed</source>
        <translation>Impresora no instalada</translation>
    </message>
    <message>
        <source>Printing labels</source>
        <translation>Imprimiendo etiquetas</translation>
    </message>
    <message>
        <source>Printing: %1 of %2</source>
        <translation>Imprimiendo: %1 de %2</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Put the column on a line of its own</source>
        <translation>Pone la columna en una línea propia</translation>
    </message>
    <message>
        <source>Put the column where the text cursor is</source>
        <translation>Pone la columna donde está el cursor de texto</translation>
    </message>
    <message>
        <source>Puts all records back in place of those of a group (Esc)</source>
        <translation>Vuelve a mostrar todos los registros en lugar de los de un grupo (Esc)</translation>
    </message>
    <message>
        <source>Puts the version in the place of the open document, as work that is not saved yet</source>
        <translation>Pone la versión en lugar del documento abierto, como trabajo aún sin guardar</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Trimestre</translation>
    </message>
    <message>
        <source>Quarto</source>
        <translation>Quarto</translation>
    </message>
    <message>
        <source>Quick Save</source>
        <translation>Guardado rápido</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Leer &amp;de nuevo</translation>
    </message>
    <message>
        <source>Read the Other &amp;State</source>
        <translation>&amp;Leer el otro estado</translation>
    </message>
    <message>
        <source>Reading the table</source>
        <translation>Leyendo la tabla</translation>
    </message>
    <message>
        <source>Recalculating... %1 percent.</source>
        <translation>Recalculando... %1 por ciento.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>Recognised</source>
        <translation>Reconocido</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Record %1 of %2</source>
        <translation>Registro %1 de %2</translation>
    </message>
    <message>
        <source>Record %1 of %2.</source>
        <translation>Registro %1 de %2.</translation>
    </message>
    <message>
        <source>Record 888 of 888</source>
        <translation>Registro 888 de 888</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Records cannot be pasted into search results. Please go back to all records.</source>
        <translation>No se pueden pegar registros en los resultados de la búsqueda. Vuelva a todos los registros.</translation>
    </message>
    <message>
        <source>Records of the version</source>
        <translation>Registros de la versión</translation>
    </message>
    <message>
        <source>Records of the version saved %1:</source>
        <translation>Registros de la versión guardada el %1:</translation>
    </message>
    <message>
        <source>Records that get no code</source>
        <translation>Registros que se quedan sin código</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Refused because it</source>
        <translation>Rechazada porque</translation>
    </message>
    <message>
        <source>Refused cells</source>
        <translation>Celdas rechazadas</translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation>Quitar columna</translation>
    </message>
    <message>
        <source>Rename Column</source>
        <translation>Cambiar nombre de columna</translation>
    </message>
    <message>
        <source>Replace Picture</source>
        <translation>Reemplazar imagen</translation>
    </message>
    <message>
        <source>Replace The Layout</source>
        <translation>Reemplazar el diseño</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Reemplazar por:</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Report Choices</source>
        <translation>Opciones del informe</translation>
    </message>
    <message>
        <source>Report Page Setup</source>
        <translation>Configurar página del informe</translation>
    </message>
    <message>
        <source>Resize Column</source>
        <translation>Cambiar ancho de columna</translation>
    </message>
    <message>
        <source>Restore Unsaved Work</source>
        <translation>Restaurar trabajo no guardado</translation>
    </message>
    <message>
        <source>Restore Version</source>
        <translation>Restaurar versión</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecho:</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Rows to paste</source>
        <translation>Filas que pegar</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Regla %1</translation>
    </message>
    <message>
        <source>Rule %1, colour</source>
        <translation>Regla %1, color</translation>
    </message>
    <message>
        <source>Rule %1, second value</source>
        <translation>Regla %1, segundo valor</translation>
    </message>
    <message>
        <source>Rule %1, value</source>
        <translation>Regla %1, valor</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Hoja:</translation>
    </message>
    <message>
        <source>S&amp;tatistics...</source>
        <translation>&amp;Estadísticas...</translation>
    </message>
    <message>
        <source>SQLite database</source>
        <translation>Base de datos SQLite</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Guardar &amp;como</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Guardar base de datos</translation>
    </message>
    <message>
        <source>Save Search &amp;Results As...</source>
        <translation>Guardar &amp;resultados de la búsqueda como...</translation>
    </message>
    <message>
        <source>Save Search Results As...</source>
        <translation>Guardar resultados de la búsqueda como...</translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation>Guardar una co&amp;pia...</translation>
    </message>
    <message>
        <source>Save a Copy...</source>
        <translation>Guardar una copia...</translation>
    </message>
    <message>
        <source>Save as Another &amp;File...</source>
        <translation>&amp;Guardar como otro archivo...</translation>
    </message>
    <message>
        <source>Save current document?</source>
        <translation>¿Guardar el documento actual?</translation>
    </message>
    <message>
        <source>Save current file %1?</source>
        <translation>¿Guardar el archivo actual %1?</translation>
    </message>
    <message>
        <source>Save the Copy As...</source>
        <translation>Guardar la copia como...</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardada</translation>
    </message>
    <message>
        <source>Saves the version as a database of its own</source>
        <translation>Guarda la versión como una base de datos propia</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>Se&amp;parador:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search Data</source>
        <translation>Buscar datos</translation>
    </message>
    <message>
        <source>Search Database</source>
        <translation>Buscar en la base de datos</translation>
    </message>
    <message>
        <source>Search Value:</source>
        <translation>Valor buscado:</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Resultados de la búsqueda</translation>
    </message>
    <message>
        <source>Search within</source>
        <translation>Buscar dentro</translation>
    </message>
    <message>
        <source>Select image for clip art.</source>
        <translation>Elija la imagen prediseñada.</translation>
    </message>
    <message>
        <source>Select image for picture box.</source>
        <translation>Elija la imagen para el campo de imagen.</translation>
    </message>
    <message>
        <source>Selected &amp;Totals</source>
        <translation>&amp;Totales de la selección</translation>
    </message>
    <message>
        <source>Selected Columns and Order:</source>
        <translation>Columnas seleccionadas y orden:</translation>
    </message>
    <message>
        <source>Selects the records that share a number in the list</source>
        <translation>Selecciona en la lista los registros que comparten un número</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Send Database File To...</source>
        <translation>Enviar archivo de base de datos a...</translation>
    </message>
    <message>
        <source>Send File</source>
        <translation>Enviar archivo</translation>
    </message>
    <message>
        <source>Send To Back</source>
        <translation>Enviar al fondo</translation>
    </message>
    <message numerus="yes">
        <source>Set %1 in %n record</source>
        <comment>Set %1 in %n records</comment>
        <translation><numerusform>Establecer %1 en %n registro</numerusform><numerusform>Establecer %1 en %n registros</numerusform></translation>
    </message>
    <message>
        <source>Set &amp;Values...</source>
        <translation>Establecer &amp;valores...</translation>
    </message>
    <message>
        <source>Set &amp;to:</source>
        <translation>Valor n&amp;uevo:</translation>
    </message>
    <message>
        <source>Set Font</source>
        <translation>Establecer fuente</translation>
    </message>
    <message>
        <source>Set Values</source>
        <translation>Establecer valores</translation>
    </message>
    <message>
        <source>Sheet of labels</source>
        <translation>Hoja de etiquetas</translation>
    </message>
    <message>
        <source>Sheets of labels</source>
        <translation>Hojas de etiquetas</translation>
    </message>
    <message>
        <source>Show On &amp;Layout Page</source>
        <translation>Mostrar en página de di&amp;seño</translation>
    </message>
    <message>
        <source>Show all records and close the filter (Esc)</source>
        <translation>Mostrar todos los registros y cerrar el filtro (Esc)</translation>
    </message>
    <message>
        <source>Show and take dates, numbers and amounts as your country writes them</source>
        <translation>Mostrar y aceptar fechas, números e importes como se escriben en su país</translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation>Mostrar la página entera</translation>
    </message>
    <message>
        <source>Shows the records of the selected groups in the list</source>
        <translation>Muestra en la lista los registros de los grupos seleccionados</translation>
    </message>
    <message>
        <source>Shows the records of the version</source>
        <translation>Muestra los registros de la versión</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Size To &amp;Content</source>
        <translation>Ajustar al &amp;contenido</translation>
    </message>
    <message>
        <source>Size in mm</source>
        <translation>Tamaño en mm</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tamaños</translation>
    </message>
    <message>
        <source>Snap To Grid</source>
        <translation>Ajustar a la cuadrícula</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Ordenar</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Orden &amp;ascendente</translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Orden &amp;descendente</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Ordenar por %1</translation>
    </message>
    <message>
        <source>Sort by %1, Ascending</source>
        <translation>Ordenar por %1, ascendente</translation>
    </message>
    <message>
        <source>Sort by %1, Descending</source>
        <translation>Ordenar por %1, descendente</translation>
    </message>
    <message>
        <source>Specify Name For New Database</source>
        <translation>Indique el nombre de la nueva base de datos</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Steps of the groups</source>
        <translation>Intervalos de los grupos</translation>
    </message>
    <message>
        <source>Steps of the groups within</source>
        <translation>Intervalos de los grupos interiores</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Tachado</translation>
    </message>
    <message>
        <source>Su&amp;mmary</source>
        <translation>Resu&amp;men</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Asunto:</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subíndice fuera del intervalo</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Sum of %1</source>
        <translation>Suma de %1</translation>
    </message>
    <message>
        <source>Sum of the selected records</source>
        <translation>Suma de los registros seleccionados</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Sums of the selected records</source>
        <translation>Sumas de los registros seleccionados</translation>
    </message>
    <message>
        <source>Super A</source>
        <translation>Super A</translation>
    </message>
    <message>
        <source>Super B</source>
        <translation>Super B</translation>
    </message>
    <message>
        <source>Switch Layout To Design Mode</source>
        <translation>Pasar la página al modo de diseño</translation>
    </message>
    <message>
        <source>Syntax error</source>
        <translation>Error de sintaxis</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|All Files (*.*)|*.*</source>
        <translation>Tablas (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tables (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|All Files (*.*)|*.*</source>
        <translation>Tablas (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text of %1 points</source>
        <translation>Texto de %1 puntos</translation>
    </message>
    <message>
        <source>Text of %1 points: the longest texts are printed smaller, or are cut at the edge</source>
        <translation>Texto de %1 puntos: los textos más largos se imprimen más pequeños o se cortan en el borde</translation>
    </message>
    <message>
        <source>That would be %1 labels.  At most %2 are printed at a time.  Select fewer records.</source>
        <translation>Serían %1 etiquetas. Se imprimen como máximo %2 de una vez. Seleccione menos registros.</translation>
    </message>
    <message>
        <source>The &amp;first row has the names of the columns</source>
        <translation>La p&amp;rimera fila contiene los nombres de las columnas</translation>
    </message>
    <message>
        <source>The &amp;selected records</source>
        <translation>Los registros &amp;seleccionados</translation>
    </message>
    <message>
        <source>The brace at place %1 is not closed</source>
        <translation>La llave de la posición %1 no se cierra</translation>
    </message>
    <message>
        <source>The codes could not be made anew: %1</source>
        <translation>No se pudieron crear de nuevo los códigos: %1</translation>
    </message>
    <message>
        <source>The codes could not be stored: %1</source>
        <translation>No se pudieron guardar los códigos: %1</translation>
    </message>
    <message>
        <source>The column "%1" stands on the label twice.</source>
        <translation>La columna «%1» aparece dos veces en la etiqueta.</translation>
    </message>
    <message>
        <source>The column name "%1" cannot be used.</source>
        <translation>El nombre de columna «%1» no se puede usar.</translation>
    </message>
    <message>
        <source>The column name "%1" holds a "|".</source>
        <translation>El nombre de columna «%1» contiene «|».</translation>
    </message>
    <message>
        <source>The column name "%1" is there twice.</source>
        <translation>El nombre de columna «%1» aparece dos veces.</translation>
    </message>
    <message>
        <source>The column you selected is an undefined calculation column.  Please define an expression for it first.</source>
        <translation>La columna seleccionada es una columna de cálculo sin definir. Defina primero una expresión para ella.</translation>
    </message>
    <message>
        <source>The copy cannot take the place of the database that is open.</source>
        <translation>La copia no puede ocupar el lugar de la base de datos abierta.</translation>
    </message>
    <message>
        <source>The copy could not be written: %1</source>
        <translation>No se pudo escribir la copia: %1</translation>
    </message>
    <message>
        <source>The database cannot keep where these labels stand to a tenth of a millimetre: this computer does, for this file.</source>
        <translation>La base de datos no puede conservar la posición de estas etiquetas con precisión de una décima de milímetro: lo hace este equipo, para este archivo.</translation>
    </message>
    <message>
        <source>The database could not be made:
%1</source>
        <translation>No se pudo crear la base de datos:
%1</translation>
    </message>
    <message>
        <source>The database file could not be found:
%1</source>
        <translation>No se encontró el archivo de la base de datos:
%1</translation>
    </message>
    <message numerus="yes">
        <source>The database has room for %n more record.</source>
        <comment>The database has room for %n more records.</comment>
        <translation><numerusform>En la base de datos cabe %n registro más.</numerusform><numerusform>En la base de datos caben %n registros más.</numerusform></translation>
    </message>
    <message>
        <source>The database is open to read only.  Save a copy of the version instead.</source>
        <translation>La base de datos está abierta como solo lectura. Guarde en su lugar una copia de la versión.</translation>
    </message>
    <message>
        <source>The database itself keeps where these labels stand.</source>
        <translation>La propia base de datos conserva la posición de estas etiquetas.</translation>
    </message>
    <message>
        <source>The database structure and layout have been locked.  Use the Options menu to unlock.</source>
        <translation>La estructura de la base de datos y el diseño de página están bloqueados. Use el menú Opciones para desbloquearlos.</translation>
    </message>
    <message>
        <source>The expression is not complete (character %1)</source>
        <translation>La expresión no está completa (carácter %1)</translation>
    </message>
    <message>
        <source>The file itself cannot be opened. Please choose a place for the restored one.</source>
        <translation>El archivo no se puede abrir. Elija un lugar para el restaurado.</translation>
    </message>
    <message>
        <source>The file itself was changed after that work was begun.</source>
        <translation>El archivo se modificó después de empezar ese trabajo.</translation>
    </message>
    <message>
        <source>The filter is too long</source>
        <translation>El filtro es demasiado largo</translation>
    </message>
    <message>
        <source>The filter is too long to be kept.</source>
        <translation>El filtro es demasiado largo para conservarlo.</translation>
    </message>
    <message>
        <source>The first row has the &amp;names of the columns</source>
        <translation>La primera fila contiene los &amp;nombres de las columnas</translation>
    </message>
    <message>
        <source>The first rule that holds decides. A cell that is coloured has a mark as well, and says why when the mouse rests on it. Colours are yours alone: they are not stored in the database.</source>
        <translation>Decide la primera regla que se cumple. Una celda coloreada tiene además una marca y dice el motivo al detener el ratón sobre ella. Los colores son solo suyos: no se guardan en la base de datos.</translation>
    </message>
    <message>
        <source>The folder "%1" is there already. Pictures in it that have the same names are replaced. Continue?</source>
        <translation>La carpeta «%1» ya existe. Las imágenes que contenga con los mismos nombres se reemplazarán. ¿Continuar?</translation>
    </message>
    <message>
        <source>The help pages are not installed.</source>
        <translation>Las páginas de ayuda no están instaladas.</translation>
    </message>
    <message>
        <source>The label</source>
        <translation>La etiqueta</translation>
    </message>
    <message>
        <source>The label has too many columns.</source>
        <translation>La etiqueta tiene demasiadas columnas.</translation>
    </message>
    <message numerus="yes">
        <source>The layout has %n object.  The new label can take its place, or you keep your design and print it on these labels.</source>
        <comment>The layout has %n objects.  The new label can take its place, or you keep your design and print it on these labels.</comment>
        <translation><numerusform>El diseño tiene %n objeto. La etiqueta nueva puede ocupar su lugar, o puede conservar su diseño e imprimirlo en estas etiquetas.</numerusform><numerusform>El diseño tiene %n objetos. La etiqueta nueva puede ocupar su lugar, o puede conservar su diseño e imprimirlo en estas etiquetas.</numerusform></translation>
    </message>
    <message>
        <source>The layout has no room for so many rows.</source>
        <translation>En el diseño no caben tantas filas.</translation>
    </message>
    <message>
        <source>The layout is too large for its paper: with its spacing, not even one fits within the margins.  Make it smaller, or change the paper, the margins or the spacing in the page setup.</source>
        <translation>El diseño es demasiado grande para su papel: con su espacio, ni siquiera cabe uno entre los márgenes. Hágalo más pequeño, o cambie el papel, los márgenes o el espacio en la configuración de página.</translation>
    </message>
    <message>
        <source>The layout page is empty</source>
        <translation>La página de diseño está vacía</translation>
    </message>
    <message>
        <source>The link cannot be opened: it has characters in it that no address has.</source>
        <translation>El enlace no se puede abrir: contiene caracteres que no tiene ninguna dirección.</translation>
    </message>
    <message>
        <source>The new database cannot take the place of the one that is open.</source>
        <translation>La nueva base de datos no puede ocupar el lugar de la que está abierta.</translation>
    </message>
    <message>
        <source>The open database has changes that are not saved.</source>
        <translation>La base de datos abierta tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>The page has room for %1 of %2 columns.</source>
        <translation>La página tiene espacio para %1 de %2 columnas.</translation>
    </message>
    <message>
        <source>The page is filled in for each one.</source>
        <translation>La página se rellena para cada uno.</translation>
    </message>
    <message>
        <source>The pages are filled with them.</source>
        <translation>Las páginas se llenan con ellos.</translation>
    </message>
    <message>
        <source>The paper of the database, code %1, is not known here: it prints on Letter.</source>
        <translation>El papel de la base de datos, código %1, no se conoce aquí: se imprime en Letter.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read, or is too large.</source>
        <translation>La imagen %1 no se puede leer o es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>La imagen %1 no se puede leer.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2.</source>
        <translation>La imagen %1 no se puede leer: %2.</translation>
    </message>
    <message>
        <source>The picture %1 is too large.</source>
        <translation>La imagen %1 es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture cannot be read, or is too large.</source>
        <translation>La imagen no se puede leer o es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture could not be added to the database: %1</source>
        <translation>No se pudo añadir la imagen a la base de datos: %1</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read.</source>
        <translation>La imagen del portapapeles no se puede leer.</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read: %1.</source>
        <translation>La imagen del portapapeles no se puede leer: %1.</translation>
    </message>
    <message>
        <source>The picture in the clipboard is too large.</source>
        <translation>La imagen del portapapeles es demasiado grande.</translation>
    </message>
    <message>
        <source>The picture is kept as the JPEG file %1.</source>
        <translation>La imagen se guarda como archivo JPEG %1.</translation>
    </message>
    <message>
        <source>The print could not be written.</source>
        <translation>No se pudo escribir la impresión.</translation>
    </message>
    <message>
        <source>The print could not be written: %1.</source>
        <translation>No se pudo escribir la impresión: %1.</translation>
    </message>
    <message>
        <source>The same &amp;value for all</source>
        <translation>El mismo &amp;valor para todos</translation>
    </message>
    <message>
        <source>The sample could not be copied to %1: %2</source>
        <translation>No se pudo copiar el ejemplo en %1: %2</translation>
    </message>
    <message>
        <source>The se&amp;lected records</source>
        <translation>Los registros se&amp;leccionados</translation>
    </message>
    <message>
        <source>The search &amp;results</source>
        <translation>Los &amp;resultados de la búsqueda</translation>
    </message>
    <message>
        <source>The sign %1 is not kept: amounts are shown with $.</source>
        <translation>El símbolo %1 no se conserva: los importes se muestran con $.</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1600.</source>
        <translation>El tamaño es un número de 1 a 1600.</translation>
    </message>
    <message>
        <source>The table cannot be imported: %1</source>
        <translation>La tabla no se puede importar: %1</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>No se pudo escribir la tabla: %1</translation>
    </message>
    <message>
        <source>The table has no records.</source>
        <translation>La tabla no tiene registros.</translation>
    </message>
    <message numerus="yes">
        <source>The table is written, but the database has no pictures of these names:
%1 and %n more.</source>
        <comment>The table is written, but the database has no pictures of these names:
%1 and %n more.</comment>
        <translation><numerusform>La tabla se ha escrito, pero la base de datos no tiene imágenes con estos nombres:
%1 y %n más.</numerusform><numerusform>La tabla se ha escrito, pero la base de datos no tiene imágenes con estos nombres:
%1 y %n más.</numerusform></translation>
    </message>
    <message>
        <source>The table is written, but the database has no pictures of these names:
%1.</source>
        <translation>La tabla se ha escrito, pero la base de datos no tiene imágenes con estos nombres:
%1.</translation>
    </message>
    <message>
        <source>The table of label sheets cannot be read: %1</source>
        <translation>La tabla de hojas de etiquetas no se puede leer: %1</translation>
    </message>
    <message numerus="yes">
        <source>The values have been set, but %n record could not be calculated: %1.</source>
        <comment>The values have been set, but %n records could not be calculated: %1.</comment>
        <translation><numerusform>Los valores se han establecido, pero no se pudo calcular %n registro: %1.</numerusform><numerusform>Los valores se han establecido, pero no se pudieron calcular %n registros: %1.</numerusform></translation>
    </message>
    <message>
        <source>The version cannot be read: %1</source>
        <translation>La versión no se puede leer: %1</translation>
    </message>
    <message>
        <source>The version could not be restored: %1</source>
        <translation>No se pudo restaurar la versión: %1</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>There are %1 columns, a database has at most %2.</source>
        <translation>Hay %1 columnas; una base de datos tiene %2 como máximo.</translation>
    </message>
    <message>
        <source>There are no calculation columns in the current database.</source>
        <translation>No hay columnas de cálculo en la base de datos actual.</translation>
    </message>
    <message>
        <source>There are no columns yet</source>
        <translation>Aún no hay columnas</translation>
    </message>
    <message>
        <source>There are no objects of a layout on the clipboard.</source>
        <translation>No hay objetos de un diseño en el portapapeles.</translation>
    </message>
    <message>
        <source>There are no records to print on labels.</source>
        <translation>No hay registros que imprimir en etiquetas.</translation>
    </message>
    <message>
        <source>There are no records to print yet</source>
        <translation>Aún no hay registros que imprimir</translation>
    </message>
    <message>
        <source>There are no records to set values in.</source>
        <translation>No hay registros en los que establecer valores.</translation>
    </message>
    <message>
        <source>There are no records yet</source>
        <translation>Aún no hay registros</translation>
    </message>
    <message>
        <source>There are no two records to compare.</source>
        <translation>No hay dos registros que comparar.</translation>
    </message>
    <message>
        <source>There is a filter "%1" already. Do you want to replace it?</source>
        <translation>Ya existe un filtro «%1». ¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>There is no column "%1"</source>
        <translation>No hay ninguna columna «%1»</translation>
    </message>
    <message>
        <source>There is no column "%1" whose text could be printed.</source>
        <translation>No hay ninguna columna «%1» cuyo texto se pueda imprimir.</translation>
    </message>
    <message>
        <source>There is no column of pictures "%1"</source>
        <translation>No hay ninguna columna de imágenes «%1»</translation>
    </message>
    <message>
        <source>There is no column to set.  Calculation columns are worked out, and pictures and the rows of invoices are entered on the layout page.</source>
        <translation>No hay ninguna columna que establecer. Las columnas de cálculo se calculan, y las imágenes y las filas de las facturas se introducen en la página de diseño.</translation>
    </message>
    <message>
        <source>There is no expression</source>
        <translation>No hay ninguna expresión</translation>
    </message>
    <message>
        <source>There is no picture column "%1".</source>
        <translation>No hay ninguna columna de imágenes «%1».</translation>
    </message>
    <message>
        <source>There is no record on the page.</source>
        <translation>No hay ningún registro en la página.</translation>
    </message>
    <message>
        <source>There is no text and no table on the clipboard.</source>
        <translation>No hay texto ni tabla en el portapapeles.</translation>
    </message>
    <message>
        <source>There is no text to make codes of</source>
        <translation>No hay texto del que crear códigos</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>There is nothing to print: no record has a number of copies above 0 in the column that says how many.</source>
        <translation>No hay nada que imprimir: ningún registro tiene un número de copias mayor que 0 en la columna que indica cuántas.</translation>
    </message>
    <message>
        <source>There was an error writing to the file.  If saving to removable media, please make sure that the disk is inserted properly, or that the device is plugged in.</source>
        <translation>Se produjo un error al escribir en el archivo. Si guarda en un medio extraíble, asegúrese de que el disco esté bien insertado o el dispositivo esté conectado.</translation>
    </message>
    <message>
        <source>These choices are yours alone: they are kept for this file, but not stored in the database.</source>
        <translation>Estas opciones son solo suyas: se conservan para este archivo, pero no se guardan en la base de datos.</translation>
    </message>
    <message>
        <source>These colours are too long to be kept. They hold until the database is closed.</source>
        <translation>Estos colores son demasiado largos para conservarlos. Valen hasta que se cierre la base de datos.</translation>
    </message>
    <message>
        <source>These pictures of the version are no longer there:</source>
        <translation>Estas imágenes de la versión ya no existen:</translation>
    </message>
    <message>
        <source>This cell cannot be stored</source>
        <translation>Esta celda no se puede guardar</translation>
    </message>
    <message>
        <source>This database has no column "%1".</source>
        <translation>Esta base de datos no tiene ninguna columna «%1».</translation>
    </message>
    <message>
        <source>This database has no picture column "%1".</source>
        <translation>Esta base de datos no tiene ninguna columna de imágenes «%1».</translation>
    </message>
    <message>
        <source>This feature is only available for normal non-invoice style databases.</source>
        <translation>Esta función solo está disponible en las bases de datos que no son de facturas.</translation>
    </message>
    <message>
        <source>This feature will prevent any changes to be made to either the database properties or the layout.  You will need to provide a password to lock or unlock your file.  Are you sure you want to do this?</source>
        <translation>Esta función impide cambiar tanto las propiedades de la base de datos como el diseño de página. Necesitará una contraseña para bloquear o desbloquear el archivo. ¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>This is the file of the open database. Please choose another name for the table.</source>
        <translation>Este es el archivo de la base de datos abierta. Elija otro nombre para la tabla.</translation>
    </message>
    <message>
        <source>This key is already associated with an element of this collection</source>
        <translation>Esta clave ya está asociada a un elemento de esta colección</translation>
    </message>
    <message>
        <source>This object has a size or a text that cannot be copied.</source>
        <translation>Este objeto tiene un tamaño o un texto que no se puede copiar.</translation>
    </message>
    <message>
        <source>This object is locked.  Press the Lock button to unlock it.</source>
        <translation>Este objeto está bloqueado. Pulse el botón Bloquear para desbloquearlo.</translation>
    </message>
    <message>
        <source>This password cannot be stored.  Please choose another one.</source>
        <translation>Esta contraseña no se puede guardar. Elija otra.</translation>
    </message>
    <message>
        <source>This record has no text, and gets no code</source>
        <translation>Este registro no tiene texto y se queda sin código</translation>
    </message>
    <message>
        <source>This record is new.  To store it please click on the Add toolbar button.</source>
        <translation>Este registro es nuevo. Para guardarlo, haga clic en el botón Añadir de la barra de herramientas.</translation>
    </message>
    <message>
        <source>This work was never saved. It can be restored.

File: %1
Time: %2
Records: %3</source>
        <translation>Este trabajo no se guardó nunca. Se puede restaurar.

Archivo: %1
Hora: %2
Registros: %3</translation>
    </message>
    <message>
        <source>Title and column &amp;headings</source>
        <translation>Título y &amp;encabezados de columna</translation>
    </message>
    <message>
        <source>To create a new invoice record please click on the New toolbar button.  It's the first one on the Layout Tab's toolbar.</source>
        <translation>Para crear una factura nueva, haga clic en el botón Nuevo de la barra de herramientas. Es el primero de la barra de la pestaña Diseño de página.</translation>
    </message>
    <message>
        <source>To overwrite it loses what they have changed. To read their state keeps yours for recovery.</source>
        <translation>Si lo sobrescribe, se pierde lo que ha cambiado la otra persona. Si lee su estado, el de usted se conserva para recuperarlo.</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
    <message>
        <source>Too narrow for the longest text: %1.</source>
        <translation>Demasiado estrecho para el texto más largo: %1.</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Toolbar Te&amp;xts</source>
        <translation>Te&amp;xtos de la barra de herramientas</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Superior:</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Los tipos no coinciden</translation>
    </message>
    <message>
        <source>Type the first one, or take over those of a table of another program.</source>
        <translation>Escriba el primero, o traiga los de una tabla de otro programa.</translation>
    </message>
    <message>
        <source>Type the first one: it is filled in on the layout page.</source>
        <translation>Escriba el primero: se rellena en la página de diseño.</translation>
    </message>
    <message>
        <source>UTF-16 (big endian)</source>
        <translation>UTF-16 (big endian)</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Subrayado</translation>
    </message>
    <message>
        <source>Unlock Database</source>
        <translation>Desbloquear base de datos</translation>
    </message>
    <message>
        <source>Unlock Design</source>
        <translation>Desbloquear diseño</translation>
    </message>
    <message>
        <source>Unpacking the pictures</source>
        <translation>Extrayendo las imágenes</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash, because the disk is full. Please save soon.</source>
        <translation>El trabajo sin guardar no se pudo conservar para el caso de un fallo porque el disco está lleno. Guarde pronto.</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash. Please save soon.</source>
        <translation>El trabajo sin guardar no se pudo conservar para el caso de un fallo. Guarde pronto.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Untitled Search Results.fwk</source>
        <translation>Resultados de la búsqueda sin título.fwk</translation>
    </message>
    <message>
        <source>Untitled.fwk</source>
        <translation>Sin título.fwk</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Update Record</source>
        <translation>Actualizar registro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Values divided by commas</source>
        <translation>Valores separados por comas</translation>
    </message>
    <message>
        <source>Values divided by tabs</source>
        <translation>Valores separados por tabuladores</translation>
    </message>
    <message>
        <source>Verify Data</source>
        <translation>Comprobar datos</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versiones</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Regla vertical</translation>
    </message>
    <message>
        <source>View Next Record</source>
        <translation>Ver el registro siguiente</translation>
    </message>
    <message>
        <source>View Previous Record</source>
        <translation>Ver el registro anterior</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violeta</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>What has not been saved yet will be lost.  Restore the version all the same?</source>
        <translation>Se perderá lo que aún no se ha guardado. ¿Restaurar la versión de todos modos?</translation>
    </message>
    <message>
        <source>What is on the clipboard cannot be pasted: %1.</source>
        <translation>El contenido del portapapeles no se puede pegar: %1.</translation>
    </message>
    <message>
        <source>What is restored is not saved until you save it.</source>
        <translation>Lo restaurado no queda guardado hasta que usted lo guarde.</translation>
    </message>
    <message>
        <source>What is saved here could overwrite what is saved there.</source>
        <translation>Lo que se guarde aquí podría sobrescribir lo que se guarde allí.</translation>
    </message>
    <message>
        <source>What is transparent in it has become white.</source>
        <translation>Lo que era transparente en ella ahora es blanco.</translation>
    </message>
    <message>
        <source>What the first records become</source>
        <translation>Cómo quedan los primeros registros</translation>
    </message>
    <message>
        <source>Whether it still is cannot be told from this machine.</source>
        <translation>Desde este equipo no se puede saber si lo sigue estando.</translation>
    </message>
    <message>
        <source>Which sums, means, least and greatest values are counted</source>
        <translation>Qué sumas, medias, mínimos y máximos se calculan</translation>
    </message>
    <message>
        <source>With &amp;outlines, for a test on plain paper</source>
        <translation>Con con&amp;tornos, para una prueba en papel normal</translation>
    </message>
    <message>
        <source>With the &amp;Totals row</source>
        <translation>Con la &amp;fila de totales</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in a folder beside the file</source>
        <translation>Con las &amp;imágenes, en una carpeta junto al archivo</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in the file</source>
        <translation>Con las &amp;imágenes, en el archivo</translation>
    </message>
    <message>
        <source>Without an expression: %1. Tools &gt; Expression Editor says how a column is worked out.</source>
        <translation>Sin expresión: %1. Herramientas &gt; Editor de expresiones indica cómo se calcula una columna.</translation>
    </message>
    <message>
        <source>Words, "a phrase", -without, Column:text, Column&gt;10</source>
        <translation>Palabras, "una frase", -sin, Columna:texto, Columna&gt;10</translation>
    </message>
    <message>
        <source>Worked out from other columns by an expression</source>
        <translation>Calculado a partir de otras columnas con una expresión</translation>
    </message>
    <message>
        <source>Would you like to rename all exact matching labels in your layout to the new name as well?</source>
        <translation>¿Quiere cambiar también al nombre nuevo todos los rótulos del diseño que coincidan exactamente?</translation>
    </message>
    <message>
        <source>Writing the table</source>
        <translation>Escribiendo la tabla</translation>
    </message>
    <message>
        <source>Written &amp;as:</source>
        <translation>E&amp;scrito como:</translation>
    </message>
    <message>
        <source>Written As</source>
        <translation>Escrito como</translation>
    </message>
    <message>
        <source>Written, but the folder of %1 could not be synced to the disk: %2</source>
        <translation>Escrito, pero la carpeta de %1 no se pudo sincronizar con el disco: %2</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Year, month, day</source>
        <translation>Año, mes, día</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>You can also begin with a table of another program.</source>
        <translation>También puede empezar con una tabla de otro programa.</translation>
    </message>
    <message>
        <source>You cannot duplicate the totals row.</source>
        <translation>La fila de totales no se puede duplicar.</translation>
    </message>
    <message>
        <source>You cannot globally relace items in a search window, please use the normal view.</source>
        <translation>En los resultados de la búsqueda no se puede reemplazar de forma global; use la vista normal.</translation>
    </message>
    <message>
        <source>You cannot save your search results to a file named the same as the one that is currently open.</source>
        <translation>Los resultados de la búsqueda no se pueden guardar con el mismo nombre que el archivo abierto.</translation>
    </message>
    <message>
        <source>You did not enter either an address or a subject.</source>
        <translation>No ha introducido la dirección o el asunto.</translation>
    </message>
    <message>
        <source>You did not enter the number of rows to create.</source>
        <translation>No ha introducido el número de filas que crear.</translation>
    </message>
    <message>
        <source>You entered a non numeric value.</source>
        <translation>Ha introducido un valor no numérico.</translation>
    </message>
    <message>
        <source>You entered an invalid date.</source>
        <translation>Ha introducido una fecha no válida.</translation>
    </message>
    <message>
        <source>You have added the maximum number of columns to the database.</source>
        <translation>Ya ha añadido a la base de datos el número máximo de columnas.</translation>
    </message>
    <message>
        <source>You have not selected any columns to print in the page setup dialog.</source>
        <translation>No ha seleccionado ninguna columna que imprimir en la configuración de página.</translation>
    </message>
    <message>
        <source>You must enter a column name.</source>
        <translation>Debe introducir un nombre de columna.</translation>
    </message>
    <message>
        <source>You must select a field to search by.</source>
        <translation>Debe seleccionar un campo por el que buscar.</translation>
    </message>
    <message>
        <source>You need to first install a printer on this system.</source>
        <translation>Primero debe instalar una impresora en este sistema.</translation>
    </message>
    <message>
        <source>You selected a file other than a GIF or JPEG.  Please try again.</source>
        <translation>Ha seleccionado un archivo que no es GIF ni JPEG. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your database has no columns that could be coloured.</source>
        <translation>La base de datos no tiene columnas que se puedan colorear.</translation>
    </message>
    <message>
        <source>Your database has no columns to export.</source>
        <translation>La base de datos no tiene columnas que exportar.</translation>
    </message>
    <message>
        <source>Your database has no columns to paste into.</source>
        <translation>La base de datos no tiene columnas en las que pegar.</translation>
    </message>
    <message>
        <source>Your database has no columns, please add some in the database properties dialog.</source>
        <translation>La base de datos no tiene columnas; añada alguna en las propiedades de la base de datos.</translation>
    </message>
    <message>
        <source>Your database has no columns.</source>
        <translation>La base de datos no tiene columnas.</translation>
    </message>
    <message>
        <source>Your mail program could not be started.</source>
        <translation>No se pudo iniciar el programa de correo.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Acercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>a column has no heading</source>
        <translation>una columna no tiene encabezado</translation>
    </message>
    <message>
        <source>a control character</source>
        <translation>un carácter de control</translation>
    </message>
    <message>
        <source>a ne&amp;w database</source>
        <translation>una &amp;base de datos nueva</translation>
    </message>
    <message>
        <source>a quote is opened and never closed</source>
        <translation>unas comillas se abren y no se cierran</translation>
    </message>
    <message>
        <source>a&amp;nd by:</source>
        <translation>y &amp;por:</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>mayor que %1</translation>
    </message>
    <message>
        <source>after %1</source>
        <translation>posterior a %1</translation>
    </message>
    <message>
        <source>and</source>
        <translation>y</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <comment>and %n more</comment>
        <translation><numerusform>y %n más</numerusform><numerusform>y %n más</numerusform></translation>
    </message>
    <message>
        <source>another program</source>
        <translation>otro programa</translation>
    </message>
    <message>
        <source>another program has changes for it that are not in it yet; close it there first</source>
        <translation>otro programa tiene cambios que aún no están en el archivo; ciérrelo antes allí</translation>
    </message>
    <message>
        <source>archive entry</source>
        <translation>entrada del archivo comprimido</translation>
    </message>
    <message>
        <source>before %1</source>
        <translation>anterior a %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>menor que %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation>entre %1 y %2</translation>
    </message>
    <message>
        <source>calculation</source>
        <translation>cálculo</translation>
    </message>
    <message>
        <source>cell text</source>
        <translation>texto de celda</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>columna %1</translation>
    </message>
    <message>
        <source>column position</source>
        <translation>posición de columna</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>columnas</translation>
    </message>
    <message>
        <source>day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>each value</source>
        <translation>cada valor</translation>
    </message>
    <message>
        <source>elements of a line</source>
        <translation>elementos de una línea</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>equal to %1</source>
        <translation>igual a %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>campo %1</translation>
    </message>
    <message>
        <source>has a "|", which divides the cells of a database</source>
        <translation>tiene «|», que separa las celdas de una base de datos</translation>
    </message>
    <message>
        <source>has a character that cannot be shown</source>
        <translation>tiene un carácter que no se puede mostrar</translation>
    </message>
    <message>
        <source>has a time, which a date has no room for</source>
        <translation>tiene una hora, que no cabe en una fecha</translation>
    </message>
    <message>
        <source>has more places than an amount of money</source>
        <translation>tiene más decimales que un importe</translation>
    </message>
    <message>
        <source>has more values than the %1 rows of the layout</source>
        <translation>tiene más valores que las %1 filas del diseño</translation>
    </message>
    <message>
        <source>has passed</source>
        <translation>ya ha pasado</translation>
    </message>
    <message>
        <source>help/about.html</source>
        <translation>help/about.html</translation>
    </message>
    <message>
        <source>help/index.html</source>
        <translation>help/index.html</translation>
    </message>
    <message>
        <source>inches.</source>
        <translation>pulgadas.</translation>
    </message>
    <message>
        <source>increment</source>
        <translation>incremento</translation>
    </message>
    <message>
        <source>is above</source>
        <translation>es mayor que</translation>
    </message>
    <message>
        <source>is after</source>
        <translation>es posterior a</translation>
    </message>
    <message>
        <source>is before</source>
        <translation>es anterior a</translation>
    </message>
    <message>
        <source>is below</source>
        <translation>es menor que</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>está entre</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>es igual a</translation>
    </message>
    <message>
        <source>is no date</source>
        <translation>no es una fecha</translation>
    </message>
    <message>
        <source>is no date in this order</source>
        <translation>no es una fecha en este orden</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>is no number in this form</source>
        <translation>no es un número en este formato</translation>
    </message>
    <message>
        <source>is too large a number</source>
        <translation>es un número demasiado grande</translation>
    </message>
    <message>
        <source>is within days</source>
        <translation>en un plazo de días</translation>
    </message>
    <message>
        <source>it has %1 bytes, which is too long for such a code</source>
        <translation>tiene %1 bytes, demasiados para un código así</translation>
    </message>
    <message>
        <source>it has %1 characters, and at most %2 fit</source>
        <translation>tiene %1 caracteres y caben como máximo %2</translation>
    </message>
    <message numerus="yes">
        <source>it has %n digit, and should have %1, or %2 without the check digit</source>
        <comment>it has %n digits, and should have %1, or %2 without the check digit</comment>
        <translation><numerusform>tiene %n cifra y debería tener %1, o %2 sin el dígito de control</numerusform><numerusform>tiene %n cifras y debería tener %1, o %2 sin el dígito de control</numerusform></translation>
    </message>
    <message>
        <source>it has a document type, which no spreadsheet has</source>
        <translation>tiene un tipo de documento, cosa que no tiene ninguna hoja de cálculo</translation>
    </message>
    <message>
        <source>it has more rows than the %1 records that a database holds</source>
        <translation>tiene más filas que los %1 registros que admite una base de datos</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>tiene más de %1 celdas</translation>
    </message>
    <message>
        <source>it has more than %1 columns</source>
        <translation>tiene más de %1 columnas</translation>
    </message>
    <message>
        <source>it has more than %1 lines</source>
        <translation>tiene más de %1 líneas</translation>
    </message>
    <message>
        <source>it has more than %1 rows</source>
        <translation>tiene más de %1 filas</translation>
    </message>
    <message>
        <source>it has no %1</source>
        <translation>no tiene %1</translation>
    </message>
    <message>
        <source>it has no cards</source>
        <translation>no tiene tarjetas</translation>
    </message>
    <message>
        <source>it has no columns</source>
        <translation>no tiene columnas</translation>
    </message>
    <message>
        <source>it has no content.xml</source>
        <translation>no tiene content.xml</translation>
    </message>
    <message>
        <source>it has no header line</source>
        <translation>no tiene línea de encabezado</translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation>no tiene filas</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>no tiene hojas</translation>
    </message>
    <message>
        <source>it has no such sheet</source>
        <translation>no tiene esa hoja</translation>
    </message>
    <message>
        <source>it has no tables</source>
        <translation>no tiene tablas</translation>
    </message>
    <message>
        <source>it has no workbook</source>
        <translation>no tiene libro</translation>
    </message>
    <message>
        <source>it has too many cards</source>
        <translation>tiene demasiadas tarjetas</translation>
    </message>
    <message>
        <source>it has too many columns</source>
        <translation>tiene demasiadas columnas</translation>
    </message>
    <message>
        <source>it has too many merged cells</source>
        <translation>tiene demasiadas celdas combinadas</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>tiene demasiadas filas</translation>
    </message>
    <message>
        <source>it has too many sheets</source>
        <translation>tiene demasiadas hojas</translation>
    </message>
    <message>
        <source>it has too many tables</source>
        <translation>tiene demasiadas tablas</translation>
    </message>
    <message>
        <source>it holds a character that is none</source>
        <translation>contiene un carácter que no es tal</translation>
    </message>
    <message>
        <source>it holds characters that such a code cannot</source>
        <translation>contiene caracteres que un código así no admite</translation>
    </message>
    <message>
        <source>it is larger than 256 MB</source>
        <translation>ocupa más de 256 MB</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>ocupa más de 64 MB</translation>
    </message>
    <message>
        <source>it is no list of records</source>
        <translation>no es una lista de registros</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>no es texto</translation>
    </message>
    <message>
        <source>it is no text in UTF-8 or Windows-1252</source>
        <translation>no es texto en UTF-8 ni en Windows-1252</translation>
    </message>
    <message>
        <source>it is no vCard</source>
        <translation>no es una vCard</translation>
    </message>
    <message>
        <source>it names a text that is not there</source>
        <translation>nombra un texto que no existe</translation>
    </message>
    <message>
        <source>it takes too long to work out</source>
        <translation>tarda demasiado en calcularse</translation>
    </message>
    <message>
        <source>item %1</source>
        <translation>elemento %1</translation>
    </message>
    <message>
        <source>item rows</source>
        <translation>filas de artículos</translation>
    </message>
    <message>
        <source>its JSON is damaged</source>
        <translation>su JSON está dañado</translation>
    </message>
    <message>
        <source>its JSON is damaged at byte %1</source>
        <translation>su JSON está dañado en el byte %1</translation>
    </message>
    <message>
        <source>its JSON is nested too deep</source>
        <translation>su JSON tiene demasiados niveles</translation>
    </message>
    <message>
        <source>its XML is damaged</source>
        <translation>su XML está dañado</translation>
    </message>
    <message>
        <source>its cells are out of order</source>
        <translation>sus celdas están desordenadas</translation>
    </message>
    <message>
        <source>its column %1 has no name</source>
        <translation>su columna %1 no tiene nombre</translation>
    </message>
    <message>
        <source>its rows are out of order</source>
        <translation>sus filas están desordenadas</translation>
    </message>
    <message>
        <source>its styles are too long</source>
        <translation>sus estilos son demasiado largos</translation>
    </message>
    <message>
        <source>its texts are too long</source>
        <translation>sus textos son demasiado largos</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>line %1: a quote is opened and never closed</source>
        <translation>línea %1: unas comillas se abren y no se cierran</translation>
    </message>
    <message>
        <source>memory for a code</source>
        <translation>memoria para un código</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mes</translation>
    </message>
    <message>
        <source>more cells than the header has names</source>
        <translation>más celdas que nombres tiene el encabezado</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>más de %1 celdas</translation>
    </message>
    <message>
        <source>new records of the &amp;open database</source>
        <translation>registros nuevos de la base de datos &amp;abierta</translation>
    </message>
    <message>
        <source>no archive is open</source>
        <translation>no hay ningún archivo comprimido abierto</translation>
    </message>
    <message>
        <source>no column "%1"</source>
        <translation>no hay columna «%1»</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>objeto %1</translation>
    </message>
    <message>
        <source>objects of one kind</source>
        <translation>objetos de un mismo tipo</translation>
    </message>
    <message>
        <source>of all databases, in at &amp;most</source>
        <translation>de todas las bases de datos, en un má&amp;ximo de</translation>
    </message>
    <message>
        <source>one of its cards has no end</source>
        <translation>una de sus tarjetas no termina</translation>
    </message>
    <message>
        <source>one of its lines is no line of a vCard</source>
        <translation>una de sus líneas no es una línea de vCard</translation>
    </message>
    <message>
        <source>one of its rows is too long</source>
        <translation>una de sus filas es demasiado larga</translation>
    </message>
    <message>
        <source>packing</source>
        <translation>compresión</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>trimestre</translation>
    </message>
    <message>
        <source>record %1 has a text too long for a spreadsheet</source>
        <translation>el registro %1 tiene un texto demasiado largo para una hoja de cálculo</translation>
    </message>
    <message>
        <source>record keys</source>
        <translation>claves de registro</translation>
    </message>
    <message>
        <source>sub-item %1</source>
        <translation>subelemento %1</translation>
    </message>
    <message>
        <source>sum of amounts</source>
        <translation>suma de importes</translation>
    </message>
    <message>
        <source>text behind the closing quote of a cell</source>
        <translation>texto detrás de las comillas de cierre de una celda</translation>
    </message>
    <message>
        <source>the column "%1" has no field on the layout</source>
        <translation>la columna «%1» no tiene ningún campo en el diseño</translation>
    </message>
    <message>
        <source>the column "%1" is there twice</source>
        <translation>la columna «%1» aparece dos veces</translation>
    </message>
    <message>
        <source>the last digit should be %1</source>
        <translation>la última cifra debería ser %1</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la impresora no responde</translation>
    </message>
    <message>
        <source>the program knows no table of this kind</source>
        <translation>el programa no conoce ninguna tabla de este tipo</translation>
    </message>
    <message>
        <source>the same number of each record</source>
        <translation>el mismo número de cada registro</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>el texto termina antes de tiempo</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>no hay ninguna columna %1</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>no hay ninguna impresora</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>demasiados paréntesis</translation>
    </message>
    <message numerus="yes">
        <source>within %1 day</source>
        <comment>within %1 days</comment>
        <translation><numerusform>en un plazo de %1 día</numerusform><numerusform>en un plazo de %1 días</numerusform></translation>
    </message>
    <message>
        <source>year</source>
        <translation>año</translation>
    </message>
</context>
</TS>
