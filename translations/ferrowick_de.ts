<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Ferrowick</name>
    <message>
        <source>  Amount of spacing in inches between layouts in multiple layout printing:</source>
        <translation>  Abstand in Zoll zwischen Layouts beim Druck mehrerer Layouts je Seite:</translation>
    </message>
    <message>
        <source>  Database Types</source>
        <translation>  Datenbankarten</translation>
    </message>
    <message>
        <source>  Please insert your working source disk or device that you have been saving to up until now.  Ferrowick needs this before it can perform the 'save as' operation to the other location you specified.  Once you have inserted the disk or device you can try 'save as' again.</source>
        <translation>  Bitte legen Sie den Datenträger ein, auf dem Sie bisher gespeichert haben. Ferrowick braucht ihn, bevor unter dem anderen angegebenen Ort gespeichert werden kann. Danach können Sie „Speichern unter“ erneut versuchen.</translation>
    </message>
    <message>
        <source>  Searches are word based, not within string based.  So for example, a search for lap would not find lapdog.</source>
        <translation>  Gesucht wird nach ganzen Wörtern, nicht nach Wortteilen. Eine Suche nach Haus findet also zum Beispiel nicht Haustür.</translation>
    </message>
    <message>
        <source>  This dialog allows you to set values of auto increment columns.  You might want to do this for setting initial starting values or to adjust the current count to coincide with deleted records.</source>
        <translation>  In diesem Dialog legen Sie die Werte automatisch erhöhter Spalten fest, zum Beispiel um Anfangswerte zu setzen oder um den aktuellen Stand an gelöschte Datensätze anzupassen.</translation>
    </message>
    <message>
        <source>  To set entry options, simply double click on a row in the list to the right.  You can only set options for date and number columns.</source>
        <translation>  Um Eingabeoptionen festzulegen, doppelklicken Sie rechts in der Liste auf eine Zeile. Optionen gibt es nur für Datums- und Zahlspalten.</translation>
    </message>
    <message>
        <source> Available Calculation Columns </source>
        <translation> Verfügbare Berechnungsspalten </translation>
    </message>
    <message>
        <source> Bold Headers </source>
        <translation> Fette Überschriften </translation>
    </message>
    <message>
        <source> Columns To Print </source>
        <translation> Zu druckende Spalten </translation>
    </message>
    <message>
        <source> Criteria </source>
        <translation> Kriterien </translation>
    </message>
    <message>
        <source> Custom Paper Size </source>
        <translation> Eigenes Papierformat </translation>
    </message>
    <message>
        <source> Define Expression </source>
        <translation> Ausdruck definieren </translation>
    </message>
    <message>
        <source> Keypad </source>
        <translation> Ziffernblock </translation>
    </message>
    <message>
        <source> Layout Spacing </source>
        <translation> Layoutabstand </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> Margins </source>
        <translation> Ränder </translation>
    </message>
    <message>
        <source> Operators </source>
        <translation> Operatoren </translation>
    </message>
    <message>
        <source> Orientation </source>
        <translation> Ausrichtung </translation>
    </message>
    <message>
        <source> Paper Size </source>
        <translation> Papierformat </translation>
    </message>
    <message>
        <source> Paper Sizes </source>
        <translation> Papierformate </translation>
    </message>
    <message>
        <source> Replace Options </source>
        <translation> Ersetzungsoptionen </translation>
    </message>
    <message>
        <source> Report Title </source>
        <translation> Berichtstitel </translation>
    </message>
    <message>
        <source> These columns are using auto incrementing serial numbers.</source>
        <translation> Diese Spalten verwenden automatisch erhöhte laufende Nummern.</translation>
    </message>
    <message>
        <source> Type </source>
        <translation> Typ </translation>
    </message>
    <message>
        <source>"%1" has a value for each item row</source>
        <translation>„%1“ hat einen Wert für jede Positionszeile</translation>
    </message>
    <message>
        <source>"%1" has a value for each item row, which are typed on the layout page</source>
        <translation>„%1“ hat einen Wert für jede Positionszeile; diese werden auf der Layoutseite eingegeben</translation>
    </message>
    <message>
        <source>"%1" holds pictures, which are chosen on the layout page</source>
        <translation>„%1“ enthält Bilder; diese werden auf der Layoutseite ausgewählt</translation>
    </message>
    <message>
        <source>"%1" is calculated and takes no value</source>
        <translation>„%1“ wird berechnet und nimmt keinen Wert auf</translation>
    </message>
    <message>
        <source>"%1" is neither a column nor a number (character %2)</source>
        <translation>„%1“ ist weder eine Spalte noch eine Zahl (Zeichen %2)</translation>
    </message>
    <message>
        <source>"%1" is no amount</source>
        <translation>„%1“ ist kein Betrag</translation>
    </message>
    <message>
        <source>"%1" is no date</source>
        <translation>„%1“ ist kein Datum</translation>
    </message>
    <message>
        <source>"%1" is no length or number.</source>
        <translation>„%1“ ist keine Länge oder Zahl.</translation>
    </message>
    <message>
        <source>"%1" is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>"%1" is no step: type a number above 0.</source>
        <translation>„%1“ ist keine Schrittweite: Geben Sie eine Zahl größer als 0 ein.</translation>
    </message>
    <message>
        <source>"%1" is out of place (character %2)</source>
        <translation>„%1“ steht an falscher Stelle (Zeichen %2)</translation>
    </message>
    <message>
        <source>"%1" needs a blank on either side (character %2)</source>
        <translation>„%1“ braucht auf beiden Seiten ein Leerzeichen (Zeichen %2)</translation>
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
Version %2

Eine kleine eigene Datenbank, ganz ohne Vorkenntnisse.
Freie Software unter der MIT-Lizenz. Ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 (%2 of %3 characters)</source>
        <translation>%1 (%2 von %3 Zeichen)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>%1 (prints on Letter)</source>
        <translation>%1 (druckt auf Letter)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>%1 (recovered).fwk</source>
        <translation>%1 (wiederhergestellt).fwk</translation>
    </message>
    <message>
        <source>%1 (steps of %2)</source>
        <translation>%1 (in Schritten von %2)</translation>
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
        <translation>%1 nebeneinander, %2 untereinander</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>%1 and %n more</comment>
        <translation><numerusform>%1 und %n weiterer</numerusform><numerusform>%1 und %n weitere</numerusform></translation>
    </message>
    <message>
        <source>%1 at place %2 has no bars, but a QR code takes it</source>
        <translation>%1 an Stelle %2 ist als Strichcode nicht darstellbar, wohl aber als QR-Code</translation>
    </message>
    <message>
        <source>%1 at place %2 is no digit</source>
        <translation>%1 an Stelle %2 ist keine Ziffer</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 nach %2</translation>
    </message>
    <message>
        <source>%1 by %2 and %3</source>
        <translation>%1 nach %2 und %3</translation>
    </message>
    <message>
        <source>%1 bytes.</source>
        <translation>%1 Byte.</translation>
    </message>
    <message>
        <source>%1 cannot be locked: %2 is in the way.</source>
        <translation>%1 kann nicht gesperrt werden: %2 ist im Weg.</translation>
    </message>
    <message>
        <source>%1 cannot be read like this: %2.</source>
        <translation>%1 kann so nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be opened:
%2</source>
        <translation>%1 konnte nicht geöffnet werden:
%2</translation>
    </message>
    <message>
        <source>%1 could not be written.
%2</source>
        <translation>%1 konnte nicht geschrieben werden.
%2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 ended too early</source>
        <translation>%1 endete zu früh</translation>
    </message>
    <message>
        <source>%1 goes into</source>
        <translation>Ziel von %1</translation>
    </message>
    <message>
        <source>%1 has a wrong size</source>
        <translation>%1 hat eine falsche Größe</translation>
    </message>
    <message>
        <source>%1 has met an error and has to end.

%2</source>
        <translation>In %1 ist ein Fehler aufgetreten. Das Programm muss beendet werden.

%2</translation>
    </message>
    <message>
        <source>%1 is a program or a script. Links do not start programs.</source>
        <translation>%1 ist ein Programm oder ein Skript. Verknüpfungen starten keine Programme.</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation>%1 ist kein Datum.</translation>
    </message>
    <message>
        <source>%1 is no longer there. It may have been renamed or deleted.</source>
        <translation>%1 ist nicht mehr vorhanden. Die Datei wurde vielleicht umbenannt oder gelöscht.</translation>
    </message>
    <message>
        <source>%1 is no number of days, from 0 to 3650.</source>
        <translation>%1 ist keine Anzahl von Tagen von 0 bis 3650.</translation>
    </message>
    <message>
        <source>%1 is no number.</source>
        <translation>%1 ist keine Zahl.</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>%1 is open elsewhere, by %2.</source>
        <translation>%1 ist anderswo geöffnet: %2.</translation>
    </message>
    <message>
        <source>%1 is open elsewhere.</source>
        <translation>%1 ist anderswo geöffnet.</translation>
    </message>
    <message>
        <source>%1 is open to read only</source>
        <translation>%1 ist schreibgeschützt geöffnet</translation>
    </message>
    <message>
        <source>%1 is packed in an unknown way</source>
        <translation>%1 ist auf unbekannte Weise gepackt</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 is the open database, and cannot be printed into.</source>
        <translation>%1 ist die geöffnete Datenbank; in sie kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 ist zu groß</translation>
    </message>
    <message>
        <source>%1 labels: too many to print at a time, which are %2 at most.</source>
        <translation>%1 Etiketten sind zu viele: Höchstens %2 werden auf einmal gedruckt.</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message numerus="yes">
        <source>%1 occurs %n time</source>
        <comment>%1 occurs %n times</comment>
        <translation><numerusform>%1 kommt %n-mal vor</numerusform><numerusform>%1 kommt %n-mal vor</numerusform></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2.fwk</source>
        <translation>%1 vom %2.fwk</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>%1 on %2 (process %3) since %4</source>
        <translation>%1 auf %2 (Prozess %3) seit %4</translation>
    </message>
    <message>
        <source>%1 on %2.</source>
        <translation>%1 auf %2.</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkt</translation>
    </message>
    <message>
        <source>%1 to %2 missing</source>
        <translation>%1 bis %2 fehlen</translation>
    </message>
    <message>
        <source>%1 to below %2</source>
        <translation>%1 bis unter %2</translation>
    </message>
    <message>
        <source>%1 twice</source>
        <translation>%1 doppelt</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened here.</source>
        <translation>%1 wurde von jemand anderem geändert, seit die Datei hier geöffnet wurde.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. It is not what your unsaved work is based on.</source>
        <translation>%1 wurde von jemand anderem geändert. Ihre nicht gespeicherte Arbeit beruht auf einem anderen Stand.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. What is shown here is as it was opened.</source>
        <translation>%1 wurde von jemand anderem geändert. Hier wird der Stand beim Öffnen gezeigt.</translation>
    </message>
    <message>
        <source>%1 was made, but there is no program that opens it.</source>
        <translation>%1 wurde erstellt, aber es gibt kein Programm, das die Datei öffnet.</translation>
    </message>
    <message>
        <source>%1 was made.</source>
        <translation>%1 wurde erstellt.</translation>
    </message>
    <message>
        <source>%1's value has been set to %2</source>
        <translation>Der Wert von %1 wurde auf %2 gesetzt</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 von %3</translation>
    </message>
    <message>
        <source>%1, first label %2</source>
        <translation>%1, erstes Etikett %2</translation>
    </message>
    <message>
        <source>%1. The first %2 are shown.</source>
        <translation>%1. Die ersten %2 werden gezeigt.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n record.</source>
        <comment>%1: %n records.</comment>
        <translation><numerusform>%1: %n Datensatz.</numerusform><numerusform>%1: %n Datensätze.</numerusform></translation>
    </message>
    <message>
        <source>%1: bad comment</source>
        <translation>%1: fehlerhafter Kommentar</translation>
    </message>
    <message>
        <source>%1: records %2</source>
        <translation>%1: Datensätze %2</translation>
    </message>
    <message>
        <source>%1: there is no text</source>
        <translation>%1: kein Text vorhanden</translation>
    </message>
    <message>
        <source>%1: this sheet cannot be imported: %2.</source>
        <translation>%1: Dieses Blatt kann nicht importiert werden: %2.</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
    <message numerus="yes">
        <source>%n cell cannot be stored:</source>
        <comment>%n cells cannot be stored:</comment>
        <translation><numerusform>%n Zelle kann nicht gespeichert werden:</numerusform><numerusform>%n Zellen können nicht gespeichert werden:</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cell is refused.</source>
        <comment>%n cells are refused.</comment>
        <translation><numerusform>%n Zelle wird abgelehnt.</numerusform><numerusform>%n Zellen werden abgelehnt.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cells are refused, these among them.</source>
        <comment>%n cells are refused, these among them.</comment>
        <translation><numerusform>%n Zelle wird abgelehnt, darunter diese.</numerusform><numerusform>%n Zellen werden abgelehnt, darunter diese.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n gap</source>
        <comment>%n gaps</comment>
        <translation><numerusform>%n Lücke</numerusform><numerusform>%n Lücken</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n group</source>
        <comment>%n groups</comment>
        <translation><numerusform>%n Gruppe</numerusform><numerusform>%n Gruppen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n label</source>
        <comment>%n labels</comment>
        <translation><numerusform>%n Etikett</numerusform><numerusform>%n Etiketten</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new invoice</source>
        <comment>%n new invoices</comment>
        <translation><numerusform>%n neue Rechnung</numerusform><numerusform>%n neue Rechnungen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new record</source>
        <comment>%n new records</comment>
        <translation><numerusform>%n neuer Datensatz</numerusform><numerusform>%n neue Datensätze</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n of the records cannot be calculated: %1</source>
        <comment>%n of the records cannot be calculated. The first one: %1</comment>
        <translation><numerusform>%n der Datensätze kann nicht berechnet werden: %1</numerusform><numerusform>%n der Datensätze können nicht berechnet werden. Der erste: %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record</source>
        <comment>%n records</comment>
        <translation><numerusform>%n Datensatz</numerusform><numerusform>%n Datensätze</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record asks for more than %1, which is the most.</source>
        <comment>%n records ask for more than %1, which is the most.</comment>
        <translation><numerusform>%n Datensatz verlangt mehr als die höchstens möglichen %1.</numerusform><numerusform>%n Datensätze verlangen mehr als die höchstens möglichen %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record behind the first of each</source>
        <comment>%n records behind the first of each</comment>
        <translation><numerusform>%n Datensatz hinter dem jeweils ersten</numerusform><numerusform>%n Datensätze hinter dem jeweils ersten</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no code in %1 now.  %2: %3.</source>
        <comment>%n records have no code in %1 now.  %2: %3.</comment>
        <translation><numerusform>%n Datensatz hat jetzt keinen Code in %1. %2: %3.</numerusform><numerusform>%n Datensätze haben jetzt keinen Code in %1. %2: %3.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no number above 0 there: no label.</source>
        <comment>%n records have no number above 0 there: no label.</comment>
        <translation><numerusform>%n Datensatz hat dort keine Zahl größer als 0: kein Etikett.</numerusform><numerusform>%n Datensätze haben dort keine Zahl größer als 0: kein Etikett.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n records.</source>
        <comment>%n records.</comment>
        <translation><numerusform>%n Datensatz.</numerusform><numerusform>%n Datensätze.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation><numerusform>%n Wiederholung</numerusform><numerusform>%n Wiederholungen</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n sheet</source>
        <comment>%n sheets</comment>
        <translation><numerusform>%n Bogen</numerusform><numerusform>%n Bögen</numerusform></translation>
    </message>
    <message>
        <source>&amp;About Ferrowick</source>
        <translation>Ü&amp;ber Ferrowick</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation>&amp;Neue Zeile</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adressen</translation>
    </message>
    <message>
        <source>&amp;Adjust Serial Number Increment</source>
        <translation>&amp;Laufende Nummer anpassen</translation>
    </message>
    <message>
        <source>&amp;Again</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;All Records</source>
        <translation>Alle Da&amp;tensätze</translation>
    </message>
    <message>
        <source>&amp;All records</source>
        <translation>Alle &amp;Datensätze</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;As The Desktop</source>
        <translation>&amp;Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>&amp;Auto-Load Previously Opened File</source>
        <translation>&amp;Zuletzt geöffnete Datei laden</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>Balke&amp;n:</translation>
    </message>
    <message>
        <source>&amp;Beside The Icons</source>
        <translation>&amp;Neben den Symbolen</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Books</source>
        <translation>&amp;Bücher</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Change Name</source>
        <translation>&amp;Name ändern</translation>
    </message>
    <message>
        <source>&amp;Clean Database</source>
        <translation>Datenbank &amp;bereinigen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Colour...</source>
        <translation>F&amp;arbe...</translation>
    </message>
    <message>
        <source>&amp;Colours...</source>
        <translation>F&amp;arben...</translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation>S&amp;palte:</translation>
    </message>
    <message>
        <source>&amp;Columns to compare:</source>
        <translation>Zu vergleichende &amp;Spalten:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>&amp;Confirm Delete</source>
        <translation>&amp;Löschen bestätigen</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Date of the print</source>
        <translation>&amp;Druckdatum</translation>
    </message>
    <message>
        <source>&amp;Dates And Numbers Of My Country</source>
        <translation>&amp;Datum und Zahlen wie in meinem Land</translation>
    </message>
    <message>
        <source>&amp;Define Columns...</source>
        <translation>Spalten de&amp;finieren...</translation>
    </message>
    <message>
        <source>&amp;Delete All But First</source>
        <translation>Alle bis auf den &amp;ersten löschen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Disclaimer</source>
        <translation>&amp;Haftungsausschluss</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>&amp;Duplicate Record</source>
        <translation>Datensatz &amp;duplizieren</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>&amp;Expression Editor</source>
        <translation>A&amp;usdruckseditor</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Find And Replace</source>
        <translation>Suchen und Erset&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Findings:</source>
        <translation>&amp;Befunde:</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schriftart:</translation>
    </message>
    <message>
        <source>&amp;Freeze First Column</source>
        <translation>Erste Spalte &amp;fixieren</translation>
    </message>
    <message>
        <source>&amp;Gap down:</source>
        <translation>Abstand se&amp;nkrecht:</translation>
    </message>
    <message>
        <source>&amp;Go To Layout Upon Double-Click</source>
        <translation>Bei &amp;Doppelklick zum Layout wechseln</translation>
    </message>
    <message>
        <source>&amp;Goes into:</source>
        <translation>&amp;Ziel:</translation>
    </message>
    <message>
        <source>&amp;Group by</source>
        <translation>&amp;Gruppieren nach</translation>
    </message>
    <message>
        <source>&amp;Group by:</source>
        <translation>&amp;Gruppieren nach:</translation>
    </message>
    <message>
        <source>&amp;Groups of equal records:</source>
        <translation>G&amp;ruppen gleicher Datensätze:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Highlight Calculation Boxes</source>
        <translation>Berechnungsfelder &amp;hervorheben</translation>
    </message>
    <message>
        <source>&amp;How many:</source>
        <translation>Wie &amp;viele:</translation>
    </message>
    <message>
        <source>&amp;Ignore capitals, and blanks at the ends</source>
        <translation>&amp;Groß-/Kleinschreibung und Leerzeichen am Rand ignorieren</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Import From Clipbard</source>
        <translation>Aus &amp;Zwischenablage einfügen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Insert Column</source>
        <translation>Spalte e&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>Re&amp;chnungen</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Positionen</translation>
    </message>
    <message>
        <source>&amp;Keep Their Columns as Text</source>
        <translation>Deren Spalten als Te&amp;xt behalten</translation>
    </message>
    <message>
        <source>&amp;Keep This Filter...</source>
        <translation>Diesen Filter &amp;merken...</translation>
    </message>
    <message>
        <source>&amp;Keep versions</source>
        <translation>&amp;Versionen aufbewahren</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>Datei&amp;typ:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>&amp;Labels across:</source>
        <translation>&amp;Etiketten nebeneinander:</translation>
    </message>
    <message>
        <source>&amp;Leave out empty lines and gaps</source>
        <translation>Leere Zeilen und Lücken &amp;auslassen</translation>
    </message>
    <message>
        <source>&amp;Leave refused cells empty</source>
        <translation>Abgelehnte Zellen &amp;leer lassen</translation>
    </message>
    <message>
        <source>&amp;Leave these cells empty</source>
        <translation>Diese Zellen &amp;leer lassen</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Lines of the label, with columns in braces:</source>
        <translation>Zei&amp;len des Etiketts, Spalten in geschweiften Klammern:</translation>
    </message>
    <message>
        <source>&amp;Lock Or Unlock Database Design</source>
        <translation>Entwurf &amp;sperren oder entsperren</translation>
    </message>
    <message>
        <source>&amp;Look at a Copy...</source>
        <translation>&amp;Kopie ansehen...</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>E&amp;rzeugen</translation>
    </message>
    <message>
        <source>&amp;Make Code...</source>
        <translation>&amp;Code erzeugen...</translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation>&amp;Mitglieder</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Mehr...</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Narrower</source>
        <translation>&amp;Schmaler</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;New Record</source>
        <translation>&amp;Neuer Datensatz</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Number of entry rows to create:</source>
        <translation>A&amp;nzahl der Eingabezeilen:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Open PDFs After Printing</source>
        <translation>PDFs nach dem Drucken ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Other size</source>
        <translation>&amp;Andere Größe</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Über&amp;schreiben</translation>
    </message>
    <message>
        <source>&amp;Overwrite It Anyway</source>
        <translation>&amp;Trotzdem überschreiben</translation>
    </message>
    <message>
        <source>&amp;Overwrite at the Next Save</source>
        <translation>Beim nächsten Speichern übersch&amp;reiben</translation>
    </message>
    <message>
        <source>&amp;Page numbers, as 3 of 8</source>
        <translation>Seiten&amp;zahlen, etwa 3 von 8</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Paste...</source>
        <translation>&amp;Einfügen...</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>&amp;Bild:</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>D&amp;rucken...</translation>
    </message>
    <message>
        <source>&amp;Prompt For Save On Exit</source>
        <translation>Beim &amp;Beenden ans Speichern erinnern</translation>
    </message>
    <message>
        <source>&amp;Quotes:</source>
        <translation>An&amp;führungszeichen:</translation>
    </message>
    <message>
        <source>&amp;Read the Other State</source>
        <translation>Anderen Stand ein&amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Recipes</source>
        <translation>&amp;Rezepte</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Replace across all columns in all rows</source>
        <translation>In allen Spalten und Zeilen &amp;ersetzen</translation>
    </message>
    <message>
        <source>&amp;Replace in all rows for selected columns.</source>
        <translation>In allen Zeilen der ausgewählten &amp;Spalten ersetzen.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Save as Another File...</source>
        <translation>In &amp;andere Datei speichern...</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Search results only</source>
        <translation>Nur &amp;Suchergebnisse</translation>
    </message>
    <message>
        <source>&amp;Select Repeats</source>
        <translation>&amp;Wiederholungen auswählen</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Setzen</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Show All Records</source>
        <translation>Alle Datensätze anze&amp;igen</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Start at label:</source>
        <translation>&amp;Beginn bei Etikett:</translation>
    </message>
    <message>
        <source>&amp;Text size:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Fa&amp;rbschema</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Top margin:</source>
        <translation>&amp;Oberer Rand:</translation>
    </message>
    <message>
        <source>&amp;Totals carried and brought forward from sheet to sheet</source>
        <translation>&amp;Summen von Blatt zu Blatt übertragen</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>T&amp;yp:</translation>
    </message>
    <message>
        <source>&amp;Under The Icons</source>
        <translation>&amp;Unter den Symbolen</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Versions...</source>
        <translation>&amp;Versionen...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Visit FWK Homepage</source>
        <translation>FWK-&amp;Website besuchen</translation>
    </message>
    <message>
        <source>&amp;Widen</source>
        <translation>&amp;Verbreitern</translation>
    </message>
    <message>
        <source>&amp;Wider</source>
        <translation>Br&amp;eiter</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Worked out from the columns of each record</source>
        <translation>Aus den Spalten jedes Datensatzes be&amp;rechnet</translation>
    </message>
    <message>
        <source>&amp;Write It Again</source>
        <translation>Erneut s&amp;chreiben</translation>
    </message>
    <message>
        <source>&amp;by</source>
        <translation>&amp;je</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>(leave out)</source>
        <translation>(auslassen)</translation>
    </message>
    <message>
        <source>(no colour)</source>
        <translation>(keine Farbe)</translation>
    </message>
    <message>
        <source>(no filter is kept yet)</source>
        <translation>(noch kein Filter gemerkt)</translation>
    </message>
    <message>
        <source>(none yet)</source>
        <translation>(noch keine)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>1 of 3: Which labels?</source>
        <translation>1 von 3: Welche Etiketten?</translation>
    </message>
    <message>
        <source>10 x 11 in</source>
        <translation>10 x 11 Zoll</translation>
    </message>
    <message>
        <source>10 x 14 in</source>
        <translation>10 x 14 Zoll</translation>
    </message>
    <message>
        <source>11 x 17 in</source>
        <translation>11 x 17 Zoll</translation>
    </message>
    <message>
        <source>15 x 11 in</source>
        <translation>15 x 11 Zoll</translation>
    </message>
    <message>
        <source>2 of 3: What stands on a label?</source>
        <translation>2 von 3: Was steht auf einem Etikett?</translation>
    </message>
    <message>
        <source>3 of 3: How are they printed?</source>
        <translation>3 von 3: Wie wird gedruckt?</translation>
    </message>
    <message>
        <source>9 x 11 in</source>
        <translation>9 x 11 Zoll</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Before you begin&lt;/h3&gt;&lt;p&gt;Ferrowick is free software. It is provided &lt;b&gt;as it is, without a warranty of any kind&lt;/b&gt;: nobody promises that it is free of errors or fit for what you want to do with it, and nobody answers for losses that come of its use.&lt;/p&gt;&lt;p&gt;What that means for your work:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Keep copies of your databases, on another disk if you can. A database is one file whose name ends in &lt;i&gt;.fwk&lt;/i&gt;, so a copy is quickly made.&lt;/li&gt;&lt;li&gt;Changes are on the disk only when you have saved them.&lt;/li&gt;&lt;li&gt;Check sums and calculations that money or other people depend on.&lt;/li&gt;&lt;li&gt;The design lock keeps a design from being changed by mistake. It does not encrypt anything: whoever has the file can read what is in it.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;The licence that comes with the program has the full terms.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Bevor Sie beginnen&lt;/h3&gt;&lt;p&gt;Ferrowick ist freie Software. Sie wird &lt;b&gt;ohne Mängelgewähr und ohne jede Garantie&lt;/b&gt; bereitgestellt: Niemand verspricht, dass sie fehlerfrei ist oder sich für Ihren Zweck eignet, und niemand haftet für Schäden, die aus ihrer Verwendung entstehen.&lt;/p&gt;&lt;p&gt;Was das für Ihre Arbeit bedeutet:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Bewahren Sie Kopien Ihrer Datenbanken auf, möglichst auf einem anderen Datenträger. Eine Datenbank ist eine einzige Datei, deren Name auf &lt;i&gt;.fwk&lt;/i&gt; endet; eine Kopie ist also schnell gemacht.&lt;/li&gt;&lt;li&gt;Änderungen sind erst dann auf dem Datenträger, wenn Sie sie gespeichert haben.&lt;/li&gt;&lt;li&gt;Prüfen Sie Summen und Berechnungen, von denen Geld oder andere Menschen abhängen.&lt;/li&gt;&lt;li&gt;Die Entwurfssperre schützt einen Entwurf vor versehentlichen Änderungen. Sie verschlüsselt nichts: Wer die Datei hat, kann ihren Inhalt lesen.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Die vollständigen Bedingungen stehen in der Lizenz, die dem Programm beiliegt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A click sorts the groups, and another one the other way</source>
        <translation>Ein Klick sortiert die Gruppen, ein weiterer in umgekehrter Richtung</translation>
    </message>
    <message>
        <source>A column has no name.</source>
        <translation>Eine Spalte hat keinen Namen.</translation>
    </message>
    <message>
        <source>A column is written in braces: {Name}.</source>
        <translation>Eine Spalte steht in geschweiften Klammern: {Name}.</translation>
    </message>
    <message>
        <source>A column you intend to delete is either a member of a calculation column expression, or is a calculation column itself.  You will need to redefine expressions for all affected calculation columns that referenced this one. Are you sure you want to do this?</source>
        <translation>Eine zu löschende Spalte ist Teil des Ausdrucks einer Berechnungsspalte oder selbst eine Berechnungsspalte. Sie müssen die Ausdrücke aller betroffenen Berechnungsspalten, die sich auf diese Spalte beziehen, neu definieren. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
        <source>A copy of your database with all changes is kept in
%1</source>
        <translation>Eine Kopie Ihrer Datenbank mit allen Änderungen liegt in
%1</translation>
    </message>
    <message>
        <source>A database has no room for so many records.</source>
        <translation>Eine Datenbank hat keinen Platz für so viele Datensätze.</translation>
    </message>
    <message>
        <source>A date is set to a date or to a column of dates, and cannot be worked out</source>
        <translation>Ein Datum wird auf ein Datum oder eine Datumsspalte gesetzt und kann nicht berechnet werden</translation>
    </message>
    <message>
        <source>A day: 12/31/2024</source>
        <translation>Ein Tag: 12/31/2024</translation>
    </message>
    <message>
        <source>A file with that name exists. Overwrite it?</source>
        <translation>Eine Datei mit diesem Namen ist schon vorhanden. Überschreiben?</translation>
    </message>
    <message>
        <source>A filter is kept for a file. Please save the database first.</source>
        <translation>Ein Filter wird für eine Datei gemerkt. Bitte speichern Sie zuerst die Datenbank.</translation>
    </message>
    <message>
        <source>A label has 50 lines at most.</source>
        <translation>Ein Etikett hat höchstens 50 Zeilen.</translation>
    </message>
    <message>
        <source>A line of the label is too long.</source>
        <translation>Eine Zeile des Etiketts ist zu lang.</translation>
    </message>
    <message>
        <source>A number, or a serial number that counts by itself</source>
        <translation>Eine Zahl oder eine laufende Nummer, die selbst weiterzählt</translation>
    </message>
    <message>
        <source>A photo or drawing: a .jpg or .gif file</source>
        <translation>Ein Foto oder eine Zeichnung: eine .jpg- oder .gif-Datei</translation>
    </message>
    <message>
        <source>A picture could not be put back: %1</source>
        <translation>Ein Bild konnte nicht wieder eingesetzt werden: %1</translation>
    </message>
    <message>
        <source>A summary has no place in address cards.</source>
        <translation>Eine Zusammenfassung passt nicht in Adresskarten.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Ein Wert fehlt.</translation>
    </message>
    <message>
        <source>A&amp;ll</source>
        <translation>A&amp;lle</translation>
    </message>
    <message>
        <source>A&amp;vailable columns:</source>
        <translation>&amp;Verfügbare Spalten:</translation>
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
        <translation>A4 klein</translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation>A5 Extra</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz ÄÖÜß 123</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add Box To Layout.</source>
        <translation>Dem Layout einen Rahmen hinzufügen.</translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation>Spalte hinzufügen</translation>
    </message>
    <message>
        <source>Add Entry Box</source>
        <translation>Eingabefeld hinzufügen</translation>
    </message>
    <message>
        <source>Add Entry Box, in the bar above, places a box for a column; Add Label a text.</source>
        <translation>„Eingabefeld hinzufügen“ in der Leiste oben platziert ein Feld für eine Spalte, „Beschriftung hinzufügen“ einen Text.</translation>
    </message>
    <message>
        <source>Add Horizontal Line To Layout.</source>
        <translation>Dem Layout eine waagerechte Linie hinzufügen.</translation>
    </message>
    <message>
        <source>Add Label</source>
        <translation>Beschriftung hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Add Object</source>
        <comment>Add %n Objects</comment>
        <translation><numerusform>Objekt hinzufügen</numerusform><numerusform>%n Objekte hinzufügen</numerusform></translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation>Bild hinzufügen</translation>
    </message>
    <message>
        <source>Add Record</source>
        <translation>Datensatz hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Add Record</source>
        <comment>Add %n Records</comment>
        <translation><numerusform>Datensatz hinzufügen</numerusform><numerusform>%n Datensätze hinzufügen</numerusform></translation>
    </message>
    <message>
        <source>Add Vertical Line To Layout.</source>
        <translation>Dem Layout eine senkrechte Linie hinzufügen.</translation>
    </message>
    <message>
        <source>Add a static clip art image to layout.</source>
        <translation>Dem Layout eine feste Grafik hinzufügen.</translation>
    </message>
    <message>
        <source>Add column to list</source>
        <translation>Spalte zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Adding the invoices</source>
        <translation>Rechnungen werden hinzugefügt</translation>
    </message>
    <message>
        <source>Adding the records</source>
        <translation>Datensätze werden hinzugefügt</translation>
    </message>
    <message>
        <source>Address book</source>
        <translation>Adressbuch</translation>
    </message>
    <message>
        <source>Address cards</source>
        <translation>Adresskarten</translation>
    </message>
    <message>
        <source>Address labels, many to a page</source>
        <translation>Adressetiketten, viele auf einer Seite</translation>
    </message>
    <message>
        <source>Adjust Serial Number</source>
        <translation>Laufende Nummer anpassen</translation>
    </message>
    <message>
        <source>Adjust Serial Number Values</source>
        <translation>Laufende Nummern anpassen</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation>Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>All columns</source>
        <translation>Alle Spalten</translation>
    </message>
    <message>
        <source>An amount of money: $1,234.50</source>
        <translation>Ein Geldbetrag: $1,234.50</translation>
    </message>
    <message>
        <source>An error has occured during one of your calculations.  It appears that an expression is incorrectly defined.  Please check your syntax.</source>
        <translation>Bei einer Ihrer Berechnungen ist ein Fehler aufgetreten. Offenbar ist ein Ausdruck falsch definiert. Bitte prüfen Sie die Syntax.</translation>
    </message>
    <message>
        <source>An invoice database has no Picture columns.</source>
        <translation>Eine Rechnungsdatenbank hat keine Bildspalten.</translation>
    </message>
    <message>
        <source>Any words, also numbers that begin with 0</source>
        <translation>Beliebige Wörter, auch Zahlen, die mit 0 beginnen</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Anwendungs- oder objektdefinierter Fehler</translation>
    </message>
    <message>
        <source>Are you absolutely certain you want to do this?  ALL data in the column %1 will be lost!</source>
        <translation>Möchten Sie das wirklich tun? ALLE Daten in der Spalte %1 gehen verloren!</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Wie vorhanden</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>So groß wie möglich</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>So breit wie das Fenster</translation>
    </message>
    <message>
        <source>At %1, %2   Size %3 x %4 in</source>
        <translation>Bei %1, %2   Größe %3 x %4 Zoll</translation>
    </message>
    <message>
        <source>Auto Name Label</source>
        <translation>Beschriftung mit Spaltennamen</translation>
    </message>
    <message>
        <source>Auto enter today's date when entering data?</source>
        <translation>Bei der Eingabe automatisch das heutige Datum eintragen?</translation>
    </message>
    <message>
        <source>Auto increment value when entering data?</source>
        <translation>Wert bei der Eingabe automatisch erhöhen?</translation>
    </message>
    <message>
        <source>Auto-Date</source>
        <translation>Auto-Datum</translation>
    </message>
    <message>
        <source>Auto-Serial</source>
        <translation>Auto-Nummer</translation>
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
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Bad file name</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Books with their covers</source>
        <translation>Bücher mit ihren Umschlägen</translation>
    </message>
    <message>
        <source>Border Width Setting</source>
        <translation>Rahmenbreite</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Unten:</translation>
    </message>
    <message>
        <source>Bring To Front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Übertrag</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Nach %1</translation>
    </message>
    <message>
        <source>By %1 and %2</source>
        <translation>Nach %1 und %2</translation>
    </message>
    <message>
        <source>C&amp;entred from top to bottom</source>
        <translation>&amp;Vertikal zentriert</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>L&amp;eeren</translation>
    </message>
    <message>
        <source>C&amp;lone Database To..</source>
        <translation>Datenbank &amp;klonen nach..</translation>
    </message>
    <message>
        <source>C&amp;olours...</source>
        <translation>Fa&amp;rben...</translation>
    </message>
    <message>
        <source>C&amp;olumns:</source>
        <translation>S&amp;palten:</translation>
    </message>
    <message>
        <source>Calculated columns as &amp;formulas</source>
        <translation>Berechnete Spalten als &amp;Formeln</translation>
    </message>
    <message>
        <source>Calculated values and totals</source>
        <translation>Berechnete Werte und Summen</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Calculation Status:</source>
        <translation>Berechnungsstatus:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation>„Abbrechen“ wurde gewählt</translation>
    </message>
    <message>
        <source>Cannot be stored because it</source>
        <translation>Nicht speicherbar, denn der Wert</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>Zu übertragen</translation>
    </message>
    <message>
        <source>Cells of the colu&amp;mn</source>
        <translation>Zellen der S&amp;palte</translation>
    </message>
    <message>
        <source>Cells that cannot be stored</source>
        <translation>Zellen, die nicht gespeichert werden können</translation>
    </message>
    <message>
        <source>Change Column</source>
        <translation>Spalte ändern</translation>
    </message>
    <message>
        <source>Change Entry Options</source>
        <translation>Eingabeoptionen ändern</translation>
    </message>
    <message>
        <source>Change Expression</source>
        <translation>Ausdruck ändern</translation>
    </message>
    <message>
        <source>Change Object</source>
        <translation>Objekt ändern</translation>
    </message>
    <message numerus="yes">
        <source>Change Record</source>
        <comment>Change %n Records</comment>
        <translation><numerusform>Datensatz ändern</numerusform><numerusform>%n Datensätze ändern</numerusform></translation>
    </message>
    <message>
        <source>Check Previous Entries</source>
        <translation>Frühere Einträge prüfen</translation>
    </message>
    <message>
        <source>Check Serial &amp;Numbers...</source>
        <translation>Laufende &amp;Nummern prüfen...</translation>
    </message>
    <message>
        <source>Check Serial Numbers</source>
        <translation>Laufende Nummern prüfen</translation>
    </message>
    <message>
        <source>Choose Columns To Total</source>
        <translation>Summenspalten wählen</translation>
    </message>
    <message>
        <source>Choose Report Columns</source>
        <translation>Berichtsspalten wählen</translation>
    </message>
    <message>
        <source>Choose at least one column for the label.</source>
        <translation>Wählen Sie mindestens eine Spalte für das Etikett.</translation>
    </message>
    <message>
        <source>Choose in the page setup what is printed.</source>
        <translation>Wählen Sie unter „Seite einrichten“, was gedruckt wird.</translation>
    </message>
    <message>
        <source>Choose the columns to compare.</source>
        <translation>Wählen Sie die Spalten, die verglichen werden sollen.</translation>
    </message>
    <message>
        <source>Choose your database format.</source>
        <translation>Wählen Sie das Datenbankformat.</translation>
    </message>
    <message>
        <source>Clean Database</source>
        <translation>Datenbank bereinigen</translation>
    </message>
    <message>
        <source>Clear &amp;Guides</source>
        <translation>&amp;Hilfslinien entfernen</translation>
    </message>
    <message>
        <source>Click to set a guide line; double-click its marker to remove it</source>
        <translation>Klicken setzt eine Hilfslinie; Doppelklick auf ihre Marke entfernt sie</translation>
    </message>
    <message>
        <source>Clone current file to...</source>
        <translation>Aktuelle Datei klonen nach...</translation>
    </message>
    <message>
        <source>Clone1.fwk</source>
        <translation>Klon1.fwk</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Filter schließen</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Code %1</source>
        <translation>Code %1</translation>
    </message>
    <message>
        <source>Code of %1</source>
        <translation>Code von %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Column Headin&amp;gs</source>
        <translation>S&amp;paltenüberschriften</translation>
    </message>
    <message>
        <source>Column Name</source>
        <translation>Spaltenname</translation>
    </message>
    <message>
        <source>Column Name:</source>
        <translation>Spaltenname:</translation>
    </message>
    <message>
        <source>Column Stat&amp;istics...</source>
        <translation>Spaltens&amp;tatistik...</translation>
    </message>
    <message>
        <source>Column Statistics</source>
        <translation>Spaltenstatistik</translation>
    </message>
    <message>
        <source>Column name must not be a number.</source>
        <translation>Der Spaltenname darf keine Zahl sein.</translation>
    </message>
    <message>
        <source>Column to find and replace in:</source>
        <translation>Spalte für Suchen und Ersetzen:</translation>
    </message>
    <message>
        <source>Column to search, %1</source>
        <translation>Zu durchsuchende Spalte, %1</translation>
    </message>
    <message>
        <source>Column with that name already exists!</source>
        <translation>Eine Spalte mit diesem Namen ist schon vorhanden!</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Columns To Print</source>
        <translation>Zu druckende Spalten</translation>
    </message>
    <message>
        <source>Columns To Total</source>
        <translation>Spalten mit Summe</translation>
    </message>
    <message>
        <source>Columns are what a record is made of, as a name, a date or a price.</source>
        <translation>Aus Spalten besteht ein Datensatz, etwa aus Name, Datum oder Preis.</translation>
    </message>
    <message>
        <source>Columns that words are looked for in</source>
        <translation>Spalten, in denen nach Wörtern gesucht wird</translation>
    </message>
    <message>
        <source>Columns to export</source>
        <translation>Zu exportierende Spalten</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Copy With &amp;Headings</source>
        <translation>&amp;Mit Überschriften kopieren</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie von %1</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Create Item Rows</source>
        <translation>Positionszeilen anlegen</translation>
    </message>
    <message>
        <source>Create Link From Label.</source>
        <translation>Beschriftung zur Verknüpfung machen.</translation>
    </message>
    <message>
        <source>Create New Record</source>
        <translation>Neuen Datensatz anlegen</translation>
    </message>
    <message>
        <source>Create a standard database for simple spreadsheets, inventory, collectibles, recipes, etc</source>
        <translation>Eine Standarddatenbank für einfache Tabellen, Inventar, Sammlungen, Rezepte usw. erstellen</translation>
    </message>
    <message>
        <source>Create an invoice style database.  This means you will design a layout where the calculations take place in the layout itself and you will have multiple values stored in a single row and column cell.</source>
        <translation>Eine Datenbank für Rechnungen erstellen. Dabei entwerfen Sie ein Layout, in dem selbst gerechnet wird, und in einer einzigen Zelle werden mehrere Werte gespeichert.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation>Kriterien</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Currency &amp;sign:</source>
        <translation>Wä&amp;hrungszeichen:</translation>
    </message>
    <message>
        <source>Current Columns:</source>
        <translation>Aktuelle Spalten:</translation>
    </message>
    <message>
        <source>Current Value:</source>
        <translation>Aktueller Wert:</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Database &amp;Properties</source>
        <translation>Datenbank&amp;eigenschaften</translation>
    </message>
    <message>
        <source>Database (*.fwk)|*.fwk|All Files (*.*)|*.*</source>
        <translation>Datenbank (*.fwk)|*.fwk|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Database Locked.</source>
        <translation>Datenbank gesperrt.</translation>
    </message>
    <message>
        <source>Database Properties</source>
        <translation>Datenbankeigenschaften</translation>
    </message>
    <message>
        <source>Database Style:</source>
        <translation>Datenbankart:</translation>
    </message>
    <message>
        <source>Database Style: Invoice</source>
        <translation>Datenbankart: Rechnung</translation>
    </message>
    <message>
        <source>Database Style: Standard</source>
        <translation>Datenbankart: Standard</translation>
    </message>
    <message>
        <source>Database st&amp;yle:</source>
        <translation>Datenbanka&amp;rt:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Day, month, year</source>
        <translation>Tag, Monat, Jahr</translation>
    </message>
    <message>
        <source>Define Expressions</source>
        <translation>Ausdrücke definieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of %1 groups?</source>
        <comment>Delete %n records and keep the first of %1 groups?</comment>
        <translation><numerusform>%n Datensatz löschen und den jeweils ersten von %1 Gruppen behalten?</numerusform><numerusform>%n Datensätze löschen und den jeweils ersten von %1 Gruppen behalten?</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of the group?</source>
        <comment>Delete %n records and keep the first of the group?</comment>
        <translation><numerusform>%n Datensatz löschen und den ersten der Gruppe behalten?</numerusform><numerusform>%n Datensätze löschen und den ersten der Gruppe behalten?</numerusform></translation>
    </message>
    <message>
        <source>Delete Duplicates</source>
        <translation>Duplikate löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete Object</source>
        <comment>Delete %n Objects</comment>
        <translation><numerusform>Objekt löschen</numerusform><numerusform>%n Objekte löschen</numerusform></translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Datensatz löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete Record</source>
        <comment>Delete %n Records</comment>
        <translation><numerusform>Datensatz löschen</numerusform><numerusform>%n Datensätze löschen</numerusform></translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Delete Selected Object</source>
        <translation>Ausgewähltes Objekt löschen</translation>
    </message>
    <message>
        <source>Delete Selected Record.</source>
        <translation>Ausgewählten Datensatz löschen.</translation>
    </message>
    <message>
        <source>Delete selected column from list</source>
        <translation>Ausgewählte Spalte aus der Liste löschen</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Design The &amp;Page</source>
        <translation>Seite ent&amp;werfen</translation>
    </message>
    <message>
        <source>Design it once: it then shows each record, takes what you type, and prints as you have placed it.</source>
        <translation>Entwerfen Sie sie einmal: Danach zeigt sie jeden Datensatz, nimmt Ihre Eingaben auf und wird so gedruckt, wie Sie sie gestaltet haben.</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Geräte-E/A-Fehler</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Verschiedene Werte</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Haftungsausschluss</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Disk not ready</source>
        <translation>Datenträger nicht bereit</translation>
    </message>
    <message>
        <source>Display Totals For Selected Items</source>
        <translation>Summen der ausgewählten Einträge anzeigen</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to empty %1 in %n record?</source>
        <comment>Do you want to empty %1 in %n records?</comment>
        <translation><numerusform>Möchten Sie %1 in %n Datensatz leeren?</numerusform><numerusform>Möchten Sie %1 in %n Datensätzen leeren?</numerusform></translation>
    </message>
    <message>
        <source>Document Modified</source>
        <translation>Dokument geändert</translation>
    </message>
    <message>
        <source>Document Opened</source>
        <translation>Dokument geöffnet</translation>
    </message>
    <message>
        <source>Document Saved</source>
        <translation>Dokument gespeichert</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Fertig.</translation>
    </message>
    <message>
        <source>Double Postcard (JIS)</source>
        <translation>Doppelpostkarte (JIS)</translation>
    </message>
    <message>
        <source>Double-click to choose a picture</source>
        <translation>Doppelklicken, um ein Bild auszuwählen</translation>
    </message>
    <message>
        <source>Double-click to choose clip art</source>
        <translation>Doppelklicken, um eine Grafik auszuwählen</translation>
    </message>
    <message>
        <source>Duplicate Record</source>
        <translation>Datensatz duplizieren</translation>
    </message>
    <message>
        <source>During a recalculate all rows event your columns were not able to be recalculated due to a syntax error with one of your defined expressions.</source>
        <translation>Beim Neuberechnen aller Zeilen konnten Ihre Spalten wegen eines Syntaxfehlers in einem der Ausdrücke nicht berechnet werden.</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>Each number is there once.</source>
        <translation>Jede Nummer kommt genau einmal vor.</translation>
    </message>
    <message>
        <source>Each row that is pasted becomes an invoice. Please show the invoices, not their items.</source>
        <translation>Jede eingefügte Zeile wird zu einer Rechnung. Bitte zeigen Sie die Rechnungen an, nicht ihre Positionen.</translation>
    </message>
    <message>
        <source>Each value</source>
        <translation>Einzelwert</translation>
    </message>
    <message>
        <source>Earlier states of this database:</source>
        <translation>Frühere Stände dieser Datenbank:</translation>
    </message>
    <message>
        <source>Earlier values</source>
        <translation>Frühere Werte</translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation>Element nicht gefunden</translation>
    </message>
    <message>
        <source>Email Address:</source>
        <translation>E-Mail-Adresse:</translation>
    </message>
    <message>
        <source>Email Currently Opened Database File</source>
        <translation>Geöffnete Datenbankdatei per E-Mail senden</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Enter URL or email address.  URL's should begin with http:// and emails should start with mailto:</source>
        <translation>Geben Sie eine URL oder E-Mail-Adresse ein. URLs müssen mit http:// beginnen, E-Mail-Adressen mit mailto:</translation>
    </message>
    <message>
        <source>Enter password to lock file.</source>
        <translation>Geben Sie ein Kennwort ein, um die Datei zu sperren.</translation>
    </message>
    <message>
        <source>Enter password to unlock database.</source>
        <translation>Geben Sie das Kennwort ein, um die Datenbank zu entsperren.</translation>
    </message>
    <message>
        <source>Enter value from 1 to 10 for border width.</source>
        <translation>Geben Sie für die Rahmenbreite einen Wert von 1 bis 10 ein.</translation>
    </message>
    <message>
        <source>Entry Form</source>
        <translation>Eingabeformular</translation>
    </message>
    <message>
        <source>Entry Options</source>
        <translation>Eingabeoptionen</translation>
    </message>
    <message>
        <source>Envelope #10</source>
        <translation>Umschlag Nr. 10</translation>
    </message>
    <message>
        <source>Envelope #11</source>
        <translation>Umschlag Nr. 11</translation>
    </message>
    <message>
        <source>Envelope #12</source>
        <translation>Umschlag Nr. 12</translation>
    </message>
    <message>
        <source>Envelope #14</source>
        <translation>Umschlag Nr. 14</translation>
    </message>
    <message>
        <source>Envelope #9</source>
        <translation>Umschlag Nr. 9</translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation>Umschlag B4</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Umschlag B5</translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation>Umschlag B6</translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation>Umschlag C3</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Umschlag C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Umschlag C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Umschlag C6</translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation>Umschlag C65</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Umschlag DL</translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation>Umschlag Einladung</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Umschlag Italien</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Umschlag Monarch</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Umschlag Personal</translation>
    </message>
    <message>
        <source>Erase Layout</source>
        <translation>Layout löschen</translation>
    </message>
    <message>
        <source>Erase Layout Confirmation</source>
        <translation>Löschen des Layouts bestätigen</translation>
    </message>
    <message>
        <source>Error %1: %2</source>
        <translation>Fehler %1: %2</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation>Excel-Arbeitsmappe</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Expor&amp;t...</source>
        <translation>Exp&amp;ortieren...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Zusammenfassung exportieren</translation>
    </message>
    <message>
        <source>Expression Editor</source>
        <translation>Ausdruckseditor</translation>
    </message>
    <message>
        <source>Expression for selected column:</source>
        <translation>Ausdruck der ausgewählten Spalte:</translation>
    </message>
    <message>
        <source>Expressions</source>
        <translation>Ausdrücke</translation>
    </message>
    <message>
        <source>F&amp;ilter...</source>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>Fanfold German</source>
        <translation>Endlospapier (deutsch)</translation>
    </message>
    <message>
        <source>Fanfold German Legal</source>
        <translation>Endlospapier (deutsch, Legal)</translation>
    </message>
    <message>
        <source>Fanfold US</source>
        <translation>Endlospapier (US)</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Field already added!</source>
        <translation>Feld bereits hinzugefügt!</translation>
    </message>
    <message>
        <source>Field already added.</source>
        <translation>Feld bereits hinzugefügt.</translation>
    </message>
    <message>
        <source>Fig&amp;ures</source>
        <translation>Kenn&amp;zahlen</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Kennzahl</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Kennzahlen</translation>
    </message>
    <message>
        <source>File does not exist!</source>
        <translation>Die Datei ist nicht vorhanden!</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Filesize:</source>
        <translation>Dateigröße:</translation>
    </message>
    <message>
        <source>Filesize: %1</source>
        <translation>Dateigröße: %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find And Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Find Duplicat&amp;es...</source>
        <translation>Du&amp;plikate suchen...</translation>
    </message>
    <message>
        <source>Find Duplicates</source>
        <translation>Duplikate suchen</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>First &amp;rows, as they will be stored:</source>
        <translation>Erste Zeilen, wie sie &amp;gespeichert werden:</translation>
    </message>
    <message>
        <source>First Record</source>
        <translation>Erster Datensatz</translation>
    </message>
    <message>
        <source>First column</source>
        <translation>Erste Spalte</translation>
    </message>
    <message>
        <source>Fit &amp;Page</source>
        <translation>Ganze &amp;Seite</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Seiten&amp;breite</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>Folio</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>From A Template</source>
        <translation>Aus einer Vorlage</translation>
    </message>
    <message>
        <source>Gap a&amp;cross:</source>
        <translation>Abstand waage&amp;recht:</translation>
    </message>
    <message>
        <source>Gap across: %1 mm</source>
        <translation>Abstand waagerecht: %1 mm</translation>
    </message>
    <message>
        <source>Gap down: %1 mm</source>
        <translation>Abstand senkrecht: %1 mm</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Garten</translation>
    </message>
    <message>
        <source>Go To First Record</source>
        <translation>Zum ersten Datensatz</translation>
    </message>
    <message>
        <source>Go To Last Record</source>
        <translation>Zum letzten Datensatz</translation>
    </message>
    <message>
        <source>Goes into</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Größer oder gleich</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Greatest of %1</source>
        <translation>Maximum von %1</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Groups With Subtotals</source>
        <translation>Gruppen mit Zwischensummen</translation>
    </message>
    <message>
        <source>Guide at %1 inches</source>
        <translation>Hilfslinie bei %1 Zoll</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation>Waagerechtes Lineal</translation>
    </message>
    <message>
        <source>How finely values are told apart: dates by year, quarter, month or day, numbers by steps, which can be typed</source>
        <translation>Wie fein Werte unterschieden werden: Datumsangaben nach Jahr, Quartal, Monat oder Tag, Zahlen nach Schritten, die sich eingeben lassen</translation>
    </message>
    <message>
        <source>How many copies?</source>
        <translation>Wie viele Kopien?</translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation>I&amp;mportieren...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>In the table: "%1".</source>
        <translation>In der Tabelle: „%1“.</translation>
    </message>
    <message>
        <source>In&amp;ventory</source>
        <translation>In&amp;ventar</translation>
    </message>
    <message>
        <source>Incorrect Password.</source>
        <translation>Falsches Kennwort.</translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Insert Link</source>
        <translation>Verknüpfung einfügen</translation>
    </message>
    <message>
        <source>Into:</source>
        <translation>In:</translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Ungültiges Dateiformat</translation>
    </message>
    <message>
        <source>Invalid values specified. Values must be greater than 0.</source>
        <translation>Ungültige Werte angegeben. Die Werte müssen größer als 0 sein.</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventar</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>It could not be written for this reason:
%1</source>
        <translation>Schreiben war aus diesem Grund nicht möglich:
%1</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Item Row Creation Tool</source>
        <translation>Positionszeilen anlegen</translation>
    </message>
    <message>
        <source>Item rows, tax and sums</source>
        <translation>Positionszeilen, Steuer und Summen</translation>
    </message>
    <message>
        <source>Items and invoices</source>
        <translation>Positionen und Rechnungen</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif</source>
        <translation>JPEG-Bilder (*.jpg)|*.jpg|GIF-Bilder (*.gif)|*.gif</translation>
    </message>
    <message>
        <source>Keep Filter</source>
        <translation>Filter merken</translation>
    </message>
    <message>
        <source>Keep The Layout</source>
        <translation>Layout behalten</translation>
    </message>
    <message>
        <source>Keeps one record of each selected group</source>
        <translation>Behält einen Datensatz jeder ausgewählten Gruppe</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Gemerkte Filter</translation>
    </message>
    <message>
        <source>Key is not unique in collection</source>
        <translation>Schlüssel ist in der Sammlung nicht eindeutig</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>L&amp;eft margin:</source>
        <translation>&amp;Linker Rand:</translation>
    </message>
    <message>
        <source>La&amp;bel Wizard...</source>
        <translation>Etiketten-Assis&amp;tent...</translation>
    </message>
    <message>
        <source>Label Wizard</source>
        <translation>Etiketten-Assistent</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Labels &amp;down:</source>
        <translation>Etiketten &amp;untereinander:</translation>
    </message>
    <message>
        <source>Labels are made of the records of a list.  Invoices print one to a page: use Print on the Layout tab.</source>
        <translation>Etiketten werden aus den Datensätzen einer Liste erstellt. Rechnungen werden einzeln je Seite gedruckt: Verwenden Sie dazu „Drucken“ auf dem Reiter „Layout“.</translation>
    </message>
    <message>
        <source>Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.</source>
        <translation>Etiketten dieser Größe und Anzahl passen nicht auf das Papier. Ein Bogen hat höchstens 10000.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Last Record</source>
        <translation>Letzter Datensatz</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Layout Page Setup</source>
        <translation>Layoutseite einrichten</translation>
    </message>
    <message>
        <source>Layout sheet</source>
        <translation>Layoutblatt</translation>
    </message>
    <message>
        <source>Lea&amp;ve out these records</source>
        <translation>Diese Datensätze aus&amp;lassen</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Least of %1</source>
        <translation>Minimum von %1</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %1, and %n more.</source>
        <comment>Left out: %1, and %n more.</comment>
        <translation><numerusform>Ausgelassen: %1 und %n weitere.</numerusform><numerusform>Ausgelassen: %1 und %n weitere.</numerusform></translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Ausgelassen: %1.</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Kleiner oder gleich</translation>
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
        <translation>Letter klein</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Lines of the label</source>
        <translation>Zeilen des Etiketts</translation>
    </message>
    <message>
        <source>Lock Database</source>
        <translation>Datenbank sperren</translation>
    </message>
    <message>
        <source>Lock Design</source>
        <translation>Entwurf sperren</translation>
    </message>
    <message>
        <source>Lock Object</source>
        <translation>Objekt sperren</translation>
    </message>
    <message>
        <source>Lock Selected Object.</source>
        <translation>Ausgewähltes Objekt sperren.</translation>
    </message>
    <message>
        <source>Make Code</source>
        <translation>Code erzeugen</translation>
    </message>
    <message>
        <source>Make ane&amp;w when the text of a record changes</source>
        <translation>&amp;Neu erzeugen, wenn sich der Text eines Datensatzes ändert</translation>
    </message>
    <message>
        <source>Maker, number, words, or a size: 99.1 x 38.1</source>
        <translation>Hersteller, Nummer, Wörter oder Größe: 99.1 x 38.1</translation>
    </message>
    <message>
        <source>Makes the columns as wide as what they print</source>
        <translation>Macht die Spalten so breit wie ihren gedruckten Inhalt</translation>
    </message>
    <message>
        <source>Making codes</source>
        <translation>Codes werden erzeugt</translation>
    </message>
    <message>
        <source>Making the records</source>
        <translation>Datensätze werden erstellt</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation>Mittelwert von %1</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Megabytes for the versions of all databases</source>
        <translation>Megabyte für die Versionen aller Datenbanken</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Message To Sender(500 Characters Max):</source>
        <translation>Nachricht (höchstens 500 Zeichen):</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Month, day, year</source>
        <translation>Monat, Tag, Jahr</translation>
    </message>
    <message>
        <source>Most frequent</source>
        <translation>Am häufigsten</translation>
    </message>
    <message>
        <source>Most frequent values</source>
        <translation>Häufigste Werte</translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Nach &amp;links verschieben</translation>
    </message>
    <message>
        <source>Move &amp;Right</source>
        <translation>Nach re&amp;chts verschieben</translation>
    </message>
    <message>
        <source>Move Column</source>
        <translation>Spalte verschieben</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Objekt verschieben</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of column to create</source>
        <translation>Name der anzulegenden Spalte</translation>
    </message>
    <message>
        <source>Name of the filter:</source>
        <translation>Name des Filters:</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Ne&amp;xt Record</source>
        <translation>Nä&amp;chster Datensatz</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>New Contents</source>
        <translation>Neuer Inhalt</translation>
    </message>
    <message>
        <source>New Database</source>
        <translation>Neue Datenbank</translation>
    </message>
    <message>
        <source>New From Te&amp;mplate</source>
        <translation>Neu aus Vor&amp;lage</translation>
    </message>
    <message>
        <source>New Record</source>
        <translation>Neuer Datensatz</translation>
    </message>
    <message>
        <source>New record</source>
        <translation>Neuer Datensatz</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Next Record</source>
        <translation>Nächster Datensatz</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No Open Document</source>
        <translation>Kein Dokument geöffnet</translation>
    </message>
    <message>
        <source>No code</source>
        <translation>Kein Code</translation>
    </message>
    <message>
        <source>No code because of</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>No column has serial numbers.  They are an option of Number columns in the database properties.</source>
        <translation>Keine Spalte hat laufende Nummern. Sie sind eine Option der Zahlspalten in den Datenbankeigenschaften.</translation>
    </message>
    <message>
        <source>No column is chosen for the report</source>
        <translation>Keine Spalte für den Bericht gewählt</translation>
    </message>
    <message>
        <source>No column is chosen.</source>
        <translation>Es ist keine Spalte gewählt.</translation>
    </message>
    <message>
        <source>No column of the report is totaled, so there are no sums: see Choose Columns To Total.</source>
        <translation>Keine Spalte des Berichts wird summiert, daher gibt es keine Summen: siehe „Summenspalten wählen“.</translation>
    </message>
    <message>
        <source>No copy of your database could be kept. The file is as you last saved it.</source>
        <translation>Es konnte keine Kopie Ihrer Datenbank aufbewahrt werden. Die Datei ist so, wie Sie sie zuletzt gespeichert haben.</translation>
    </message>
    <message>
        <source>No database is open</source>
        <translation>Keine Datenbank geöffnet</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Keine Gruppen</translation>
    </message>
    <message>
        <source>No guide is chosen</source>
        <translation>Keine Hilfslinie gewählt</translation>
    </message>
    <message>
        <source>No guides; Insert makes one</source>
        <translation>Keine Hilfslinien; Einfg setzt eine</translation>
    </message>
    <message>
        <source>No record was found</source>
        <translation>Kein Datensatz gefunden</translation>
    </message>
    <message>
        <source>No records yet</source>
        <translation>Noch keine Datensätze</translation>
    </message>
    <message>
        <source>No sheet</source>
        <translation>Kein Bogen</translation>
    </message>
    <message>
        <source>No sheet of labels is called so, or has labels of that size.</source>
        <translation>Kein Etikettenbogen heißt so oder hat Etiketten dieser Größe.</translation>
    </message>
    <message>
        <source>No two records are equal in these columns.</source>
        <translation>Keine zwei Datensätze sind in diesen Spalten gleich.</translation>
    </message>
    <message>
        <source>No version kept: %1</source>
        <translation>Keine Version aufbewahrt: %1</translation>
    </message>
    <message>
        <source>No version of this database has been kept yet.</source>
        <translation>Von dieser Datenbank wurde noch keine Version aufbewahrt.</translation>
    </message>
    <message>
        <source>No whole number: records %1</source>
        <translation>Keine ganze Zahl: Datensätze %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>&amp;Nicht jetzt</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message numerus="yes">
        <source>Nothing has been made.  %n record has a text that gives no code</source>
        <comment>Nothing has been made.  %n records have texts that give no code</comment>
        <translation><numerusform>Nichts wurde erzeugt. Der Text von %n Datensatz ergibt keinen Code</numerusform><numerusform>Nichts wurde erzeugt. Die Texte von %n Datensätzen ergeben keinen Code</numerusform></translation>
    </message>
    <message>
        <source>Nothing has been set.  The record "%1" would get no value: %2.</source>
        <translation>Nichts wurde gesetzt. Der Datensatz „%1“ bekäme keinen Wert: %2.</translation>
    </message>
    <message>
        <source>Nothing in the database is what was searched for.</source>
        <translation>In der Datenbank gibt es nichts, was der Suche entspricht.</translation>
    </message>
    <message>
        <source>Nothing is placed on the page yet</source>
        <translation>Die Seite ist noch leer</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Numeric Columns:</source>
        <translation>Numerische Spalten:</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>EIN</translation>
    </message>
    <message>
        <source>On Each Sheet</source>
        <translation>Auf jedem Blatt</translation>
    </message>
    <message>
        <source>On a sheet</source>
        <translation>Je Bogen</translation>
    </message>
    <message numerus="yes">
        <source>One label of %1 mm on %2</source>
        <comment>%n labels of %1 mm on %2</comment>
        <translation><numerusform>Ein Etikett von %1 mm auf %2</numerusform><numerusform>%n Etiketten von %1 mm auf %2</numerusform></translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open %1?</source>
        <translation>%1 öffnen?</translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation>&amp;Trotzdem öffnen</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Open In &amp;Entry Form</source>
        <translation>Im Eingabef&amp;ormular öffnen</translation>
    </message>
    <message>
        <source>Open Recent &amp;Files</source>
        <translation>Zuletzt &amp;geöffnete Dateien</translation>
    </message>
    <message>
        <source>Open a &amp;Copy...</source>
        <translation>&amp;Kopie öffnen...</translation>
    </message>
    <message>
        <source>Open a Copy As...</source>
        <translation>Kopie öffnen als...</translation>
    </message>
    <message>
        <source>Open a database, or add columns, to see its records in groups.</source>
        <translation>Öffnen Sie eine Datenbank oder fügen Sie Spalten hinzu, um die Datensätze in Gruppen zu sehen.</translation>
    </message>
    <message>
        <source>Open a database, or drop its file on this window.
A database is one file; its name ends in .fwk.</source>
        <translation>Öffnen Sie eine Datenbank oder ziehen Sie die Datei auf dieses Fenster.
Eine Datenbank ist eine Datei; ihr Name endet auf .fwk.</translation>
    </message>
    <message>
        <source>Open to &amp;Read Only</source>
        <translation>&amp;Schreibgeschützt öffnen</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>OpenDocument spreadsheet</source>
        <translation>OpenDocument-Tabelle</translation>
    </message>
    <message>
        <source>Or click the first free label of a sheet that you have used before.</source>
        <translation>Oder klicken Sie auf das erste freie Etikett eines schon benutzten Bogens.</translation>
    </message>
    <message>
        <source>Or try a sample. You get a copy of your own, so change in it what you like.</source>
        <translation>Oder probieren Sie ein Beispiel aus. Sie erhalten eine eigene Kopie und können darin beliebig ändern.</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Ot&amp;her:</source>
        <translation>An&amp;deres:</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Anderes Papier</translation>
    </message>
    <message>
        <source>Over the edge of the paper: %1.</source>
        <translation>Über den Papierrand hinaus: %1.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Overwrite Existing File?</source>
        <translation>Vorhandene Datei überschreiben?</translation>
    </message>
    <message>
        <source>P&amp;revious Record</source>
        <translation>Vorheriger &amp;Datensatz</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*</source>
        <translation>PDF-Dateien (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation>Se&amp;ite einrichten...</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper Size: %1 x %2</source>
        <translation>Papierformat: %1 x %2</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste Records</source>
        <translation>Datensätze einfügen</translation>
    </message>
    <message>
        <source>Path/file access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Place &amp;All Columns</source>
        <translation>&amp;Alle Spalten platzieren</translation>
    </message>
    <message>
        <source>Plants with photos and costs</source>
        <translation>Pflanzen mit Fotos und Kosten</translation>
    </message>
    <message>
        <source>Please allow your text to wrap automatically.</source>
        <translation>Bitte lassen Sie den Text automatisch umbrechen.</translation>
    </message>
    <message>
        <source>Please attach the database to the message yourself:
%1</source>
        <translation>Bitte hängen Sie die Datenbank selbst an die Nachricht an:
%1</translation>
    </message>
    <message>
        <source>Please check: "%1" can be read in two ways.</source>
        <translation>Bitte prüfen: „%1“ lässt sich auf zwei Arten lesen.</translation>
    </message>
    <message>
        <source>Please return layout to browse view instead of design.  The design button is currently pressed.</source>
        <translation>Bitte verlassen Sie den Entwurfsmodus des Layouts. Die Schaltfläche „Entwurf“ ist derzeit gedrückt.</translation>
    </message>
    <message>
        <source>Please use separate labels for multiple lines, or resize your label and allow your text to wrap automatically.</source>
        <translation>Bitte verwenden Sie für mehrere Zeilen getrennte Beschriftungen, oder ändern Sie die Größe der Beschriftung und lassen Sie den Text automatisch umbrechen.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Postcard (JIS)</source>
        <translation>Postkarte (JIS)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview of all records using multiple layouts.</source>
        <translation>Vorschau aller Datensätze, mehrere Layouts je Seite.</translation>
    </message>
    <message>
        <source>Preview of selected records using multiple layouts.</source>
        <translation>Vorschau der Auswahl, mehrere Layouts je Seite.</translation>
    </message>
    <message>
        <source>Previous Record</source>
        <translation>Vorheriger Datensatz</translation>
    </message>
    <message>
        <source>Previously opened file could not be found.</source>
        <translation>Die zuletzt geöffnete Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Price * 1.1, with a blank beside each name</source>
        <translation>Preis * 1.1, mit Leerzeichen neben jedem Namen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print Database</source>
        <translation>Datenbank drucken</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Print all records as layouts.</source>
        <translation>Alle Datensätze als Layouts drucken.</translation>
    </message>
    <message>
        <source>Print all records as multiple layouts per page.</source>
        <translation>Alle Datensätze drucken, mehrere Layouts je Seite.</translation>
    </message>
    <message>
        <source>Print all records as report.</source>
        <translation>Alle Datensätze als Bericht drucken.</translation>
    </message>
    <message>
        <source>Print selected items as layouts.</source>
        <translation>Auswahl als Layouts drucken.</translation>
    </message>
    <message>
        <source>Print selected items as multiple layouts per page.</source>
        <translation>Auswahl drucken, mehrere Layouts je Seite.</translation>
    </message>
    <message>
        <source>Print selected items as report.</source>
        <translation>Auswahl als Bericht drucken.</translation>
    </message>
    <message>
        <source>Print to PDF</source>
        <translation>In PDF drucken</translation>
    </message>
    <message>
        <source>Printer Not Installed</source>
        <translation>Kein Drucker installiert</translation>
    </message>
    <message>
        <source>Printing labels</source>
        <translation>Etiketten werden gedruckt</translation>
    </message>
    <message>
        <source>Printing: %1 of %2</source>
        <translation>Drucken: %1 von %2</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Put the column on a line of its own</source>
        <translation>Spalte in eine eigene Zeile setzen</translation>
    </message>
    <message>
        <source>Put the column where the text cursor is</source>
        <translation>Spalte an der Schreibmarke einfügen</translation>
    </message>
    <message>
        <source>Puts all records back in place of those of a group (Esc)</source>
        <translation>Zeigt wieder alle Datensätze statt derer einer Gruppe (Esc)</translation>
    </message>
    <message>
        <source>Puts the version in the place of the open document, as work that is not saved yet</source>
        <translation>Setzt die Version an die Stelle des geöffneten Dokuments, als noch nicht gespeicherte Arbeit</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>Quarto</source>
        <translation>Quarto</translation>
    </message>
    <message>
        <source>Quick Save</source>
        <translation>Schnell speichern</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Neu einle&amp;sen</translation>
    </message>
    <message>
        <source>Read the Other &amp;State</source>
        <translation>Anderen Stand ein&amp;lesen</translation>
    </message>
    <message>
        <source>Reading the table</source>
        <translation>Tabelle wird gelesen</translation>
    </message>
    <message>
        <source>Recalculating... %1 percent.</source>
        <translation>Neuberechnung... %1 Prozent.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt verwendete Dateien</translation>
    </message>
    <message>
        <source>Recognised</source>
        <translation>Erkannt</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Record %1 of %2</source>
        <translation>Datensatz %1 von %2</translation>
    </message>
    <message>
        <source>Record %1 of %2.</source>
        <translation>Datensatz %1 von %2.</translation>
    </message>
    <message>
        <source>Record 888 of 888</source>
        <translation>Datensatz 888 von 888</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Records cannot be pasted into search results. Please go back to all records.</source>
        <translation>In Suchergebnisse können keine Datensätze eingefügt werden. Bitte kehren Sie zu allen Datensätzen zurück.</translation>
    </message>
    <message>
        <source>Records of the version</source>
        <translation>Datensätze der Version</translation>
    </message>
    <message>
        <source>Records of the version saved %1:</source>
        <translation>Datensätze der Version vom %1:</translation>
    </message>
    <message>
        <source>Records that get no code</source>
        <translation>Datensätze ohne Code</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Refused because it</source>
        <translation>Abgelehnt, denn der Wert</translation>
    </message>
    <message>
        <source>Refused cells</source>
        <translation>Abgelehnte Zellen</translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation>Spalte entfernen</translation>
    </message>
    <message>
        <source>Rename Column</source>
        <translation>Spalte umbenennen</translation>
    </message>
    <message>
        <source>Replace Picture</source>
        <translation>Bild ersetzen</translation>
    </message>
    <message>
        <source>Replace The Layout</source>
        <translation>Layout ersetzen</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Report Choices</source>
        <translation>Berichtsoptionen</translation>
    </message>
    <message>
        <source>Report Page Setup</source>
        <translation>Berichtsseite einrichten</translation>
    </message>
    <message>
        <source>Resize Column</source>
        <translation>Spaltenbreite ändern</translation>
    </message>
    <message>
        <source>Restore Unsaved Work</source>
        <translation>Nicht gespeicherte Arbeit wiederherstellen</translation>
    </message>
    <message>
        <source>Restore Version</source>
        <translation>Version wiederherstellen</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Rows to paste</source>
        <translation>Einzufügende Zeilen</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Regel %1</translation>
    </message>
    <message>
        <source>Rule %1, colour</source>
        <translation>Regel %1, Farbe</translation>
    </message>
    <message>
        <source>Rule %1, second value</source>
        <translation>Regel %1, zweiter Wert</translation>
    </message>
    <message>
        <source>Rule %1, value</source>
        <translation>Regel %1, Wert</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>Bl&amp;att:</translation>
    </message>
    <message>
        <source>S&amp;tatistics...</source>
        <translation>S&amp;tatistik...</translation>
    </message>
    <message>
        <source>SQLite database</source>
        <translation>SQLite-Datenbank</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Datenbank speichern</translation>
    </message>
    <message>
        <source>Save Search &amp;Results As...</source>
        <translation>Su&amp;chergebnisse speichern unter...</translation>
    </message>
    <message>
        <source>Save Search Results As...</source>
        <translation>Suchergebnisse speichern unter...</translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation>&amp;Kopie speichern...</translation>
    </message>
    <message>
        <source>Save a Copy...</source>
        <translation>Kopie speichern...</translation>
    </message>
    <message>
        <source>Save as Another &amp;File...</source>
        <translation>&amp;In andere Datei speichern...</translation>
    </message>
    <message>
        <source>Save current document?</source>
        <translation>Aktuelles Dokument speichern?</translation>
    </message>
    <message>
        <source>Save current file %1?</source>
        <translation>Aktuelle Datei %1 speichern?</translation>
    </message>
    <message>
        <source>Save the Copy As...</source>
        <translation>Kopie speichern unter...</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Saves the version as a database of its own</source>
        <translation>Speichert die Version als eigene Datenbank</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search Data</source>
        <translation>Daten suchen</translation>
    </message>
    <message>
        <source>Search Database</source>
        <translation>Datenbank durchsuchen</translation>
    </message>
    <message>
        <source>Search Value:</source>
        <translation>Suchwert:</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Search within</source>
        <translation>Im Text suchen</translation>
    </message>
    <message>
        <source>Select image for clip art.</source>
        <translation>Bild für die Grafik auswählen.</translation>
    </message>
    <message>
        <source>Select image for picture box.</source>
        <translation>Bild für das Bildfeld auswählen.</translation>
    </message>
    <message>
        <source>Selected &amp;Totals</source>
        <translation>Summen der &amp;Auswahl</translation>
    </message>
    <message>
        <source>Selected Columns and Order:</source>
        <translation>Ausgewählte Spalten und Reihenfolge:</translation>
    </message>
    <message>
        <source>Selects the records that share a number in the list</source>
        <translation>Wählt in der Liste die Datensätze mit gleicher Nummer aus</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Send Database File To...</source>
        <translation>Datenbankdatei senden an...</translation>
    </message>
    <message>
        <source>Send File</source>
        <translation>Datei senden</translation>
    </message>
    <message>
        <source>Send To Back</source>
        <translation>In den Hintergrund</translation>
    </message>
    <message numerus="yes">
        <source>Set %1 in %n record</source>
        <comment>Set %1 in %n records</comment>
        <translation><numerusform>%1 in %n Datensatz setzen</numerusform><numerusform>%1 in %n Datensätzen setzen</numerusform></translation>
    </message>
    <message>
        <source>Set &amp;Values...</source>
        <translation>Werte se&amp;tzen...</translation>
    </message>
    <message>
        <source>Set &amp;to:</source>
        <translation>Setzen &amp;auf:</translation>
    </message>
    <message>
        <source>Set Font</source>
        <translation>Schriftart festlegen</translation>
    </message>
    <message>
        <source>Set Values</source>
        <translation>Werte setzen</translation>
    </message>
    <message>
        <source>Sheet of labels</source>
        <translation>Etikettenbogen</translation>
    </message>
    <message>
        <source>Sheets of labels</source>
        <translation>Etikettenbögen</translation>
    </message>
    <message>
        <source>Show On &amp;Layout Page</source>
        <translation>Auf &amp;Layoutseite anzeigen</translation>
    </message>
    <message>
        <source>Show all records and close the filter (Esc)</source>
        <translation>Alle Datensätze anzeigen und Filter schließen (Esc)</translation>
    </message>
    <message>
        <source>Show and take dates, numbers and amounts as your country writes them</source>
        <translation>Daten, Zahlen und Beträge so zeigen und annehmen, wie sie in Ihrem Land geschrieben werden</translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation>Ganze Seite anzeigen</translation>
    </message>
    <message>
        <source>Shows the records of the selected groups in the list</source>
        <translation>Zeigt die Datensätze der ausgewählten Gruppen in der Liste</translation>
    </message>
    <message>
        <source>Shows the records of the version</source>
        <translation>Zeigt die Datensätze der Version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size To &amp;Content</source>
        <translation>Breite an &amp;Inhalt anpassen</translation>
    </message>
    <message>
        <source>Size in mm</source>
        <translation>Größe in mm</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Snap To Grid</source>
        <translation>Am Raster ausrichten</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Nach %1 sortieren</translation>
    </message>
    <message>
        <source>Sort by %1, Ascending</source>
        <translation>Nach %1 aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort by %1, Descending</source>
        <translation>Nach %1 absteigend sortieren</translation>
    </message>
    <message>
        <source>Specify Name For New Database</source>
        <translation>Namen der neuen Datenbank angeben</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Steps of the groups</source>
        <translation>Schritte der Gruppen</translation>
    </message>
    <message>
        <source>Steps of the groups within</source>
        <translation>Schritte der inneren Gruppen</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Durchgestrichen</translation>
    </message>
    <message>
        <source>Su&amp;mmary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Sum of %1</source>
        <translation>Summe von %1</translation>
    </message>
    <message>
        <source>Sum of the selected records</source>
        <translation>Summe der ausgewählten Datensätze</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Sums of the selected records</source>
        <translation>Summen der ausgewählten Datensätze</translation>
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
        <translation>Layout in den Entwurfsmodus schalten</translation>
    </message>
    <message>
        <source>Syntax error</source>
        <translation>Syntaxfehler</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|All Files (*.*)|*.*</source>
        <translation>Tabellen (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tables (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|All Files (*.*)|*.*</source>
        <translation>Tabellen (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text of %1 points</source>
        <translation>Text in %1 Punkt</translation>
    </message>
    <message>
        <source>Text of %1 points: the longest texts are printed smaller, or are cut at the edge</source>
        <translation>Text in %1 Punkt: Die längsten Texte werden kleiner gedruckt oder am Rand abgeschnitten</translation>
    </message>
    <message>
        <source>That would be %1 labels.  At most %2 are printed at a time.  Select fewer records.</source>
        <translation>Das wären %1 Etiketten. Höchstens %2 werden auf einmal gedruckt. Wählen Sie weniger Datensätze aus.</translation>
    </message>
    <message>
        <source>The &amp;first row has the names of the columns</source>
        <translation>&amp;Erste Zeile enthält Spaltennamen</translation>
    </message>
    <message>
        <source>The &amp;selected records</source>
        <translation>Die &amp;ausgewählten Datensätze</translation>
    </message>
    <message>
        <source>The brace at place %1 is not closed</source>
        <translation>Die Klammer an Stelle %1 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>The codes could not be made anew: %1</source>
        <translation>Die Codes konnten nicht neu erzeugt werden: %1</translation>
    </message>
    <message>
        <source>The codes could not be stored: %1</source>
        <translation>Die Codes konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The column "%1" stands on the label twice.</source>
        <translation>Die Spalte „%1“ steht doppelt auf dem Etikett.</translation>
    </message>
    <message>
        <source>The column name "%1" cannot be used.</source>
        <translation>Der Spaltenname „%1“ kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The column name "%1" holds a "|".</source>
        <translation>Der Spaltenname „%1“ enthält „|“.</translation>
    </message>
    <message>
        <source>The column name "%1" is there twice.</source>
        <translation>Der Spaltenname „%1“ ist doppelt vorhanden.</translation>
    </message>
    <message>
        <source>The column you selected is an undefined calculation column.  Please define an expression for it first.</source>
        <translation>Die gewählte Spalte ist eine Berechnungsspalte ohne Ausdruck. Bitte definieren Sie zuerst einen Ausdruck für sie.</translation>
    </message>
    <message>
        <source>The copy cannot take the place of the database that is open.</source>
        <translation>Die Kopie kann nicht die geöffnete Datenbank ersetzen.</translation>
    </message>
    <message>
        <source>The copy could not be written: %1</source>
        <translation>Die Kopie konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The database cannot keep where these labels stand to a tenth of a millimetre: this computer does, for this file.</source>
        <translation>Die Datenbank kann die Lage dieser Etiketten nicht auf Zehntelmillimeter genau speichern; das übernimmt dieser Computer für diese Datei.</translation>
    </message>
    <message>
        <source>The database could not be made:
%1</source>
        <translation>Die Datenbank konnte nicht erstellt werden:
%1</translation>
    </message>
    <message>
        <source>The database file could not be found:
%1</source>
        <translation>Die Datenbankdatei wurde nicht gefunden:
%1</translation>
    </message>
    <message numerus="yes">
        <source>The database has room for %n more record.</source>
        <comment>The database has room for %n more records.</comment>
        <translation><numerusform>Die Datenbank hat noch Platz für %n Datensatz.</numerusform><numerusform>Die Datenbank hat noch Platz für %n Datensätze.</numerusform></translation>
    </message>
    <message>
        <source>The database is open to read only.  Save a copy of the version instead.</source>
        <translation>Die Datenbank ist schreibgeschützt geöffnet. Speichern Sie stattdessen eine Kopie der Version.</translation>
    </message>
    <message>
        <source>The database itself keeps where these labels stand.</source>
        <translation>Die Datenbank speichert selbst, wo diese Etiketten liegen.</translation>
    </message>
    <message>
        <source>The database structure and layout have been locked.  Use the Options menu to unlock.</source>
        <translation>Struktur und Layout der Datenbank sind gesperrt. Entsperren Sie sie im Menü „Optionen“.</translation>
    </message>
    <message>
        <source>The expression is not complete (character %1)</source>
        <translation>Der Ausdruck ist nicht vollständig (Zeichen %1)</translation>
    </message>
    <message>
        <source>The file itself cannot be opened. Please choose a place for the restored one.</source>
        <translation>Die Datei selbst kann nicht geöffnet werden. Bitte wählen Sie einen Ort für die wiederhergestellte.</translation>
    </message>
    <message>
        <source>The file itself was changed after that work was begun.</source>
        <translation>Die Datei selbst wurde geändert, nachdem diese Arbeit begonnen wurde.</translation>
    </message>
    <message>
        <source>The filter is too long</source>
        <translation>Der Filter ist zu lang</translation>
    </message>
    <message>
        <source>The filter is too long to be kept.</source>
        <translation>Der Filter ist zu lang, um gemerkt zu werden.</translation>
    </message>
    <message>
        <source>The first row has the &amp;names of the columns</source>
        <translation>Erste Zeile enthält Spalten&amp;namen</translation>
    </message>
    <message>
        <source>The first rule that holds decides. A cell that is coloured has a mark as well, and says why when the mouse rests on it. Colours are yours alone: they are not stored in the database.</source>
        <translation>Die erste zutreffende Regel entscheidet. Eine gefärbte Zelle trägt auch eine Marke und nennt den Grund, wenn die Maus auf ihr ruht. Farben gelten nur für Sie: Sie werden nicht in der Datenbank gespeichert.</translation>
    </message>
    <message>
        <source>The folder "%1" is there already. Pictures in it that have the same names are replaced. Continue?</source>
        <translation>Der Ordner „%1“ ist schon vorhanden. Gleichnamige Bilder darin werden ersetzt. Fortfahren?</translation>
    </message>
    <message>
        <source>The help pages are not installed.</source>
        <translation>Die Hilfeseiten sind nicht installiert.</translation>
    </message>
    <message>
        <source>The label</source>
        <translation>Das Etikett</translation>
    </message>
    <message>
        <source>The label has too many columns.</source>
        <translation>Das Etikett hat zu viele Spalten.</translation>
    </message>
    <message numerus="yes">
        <source>The layout has %n object.  The new label can take its place, or you keep your design and print it on these labels.</source>
        <comment>The layout has %n objects.  The new label can take its place, or you keep your design and print it on these labels.</comment>
        <translation><numerusform>Das Layout hat %n Objekt. Das neue Etikett kann an seine Stelle treten, oder Sie behalten Ihren Entwurf und drucken ihn auf diese Etiketten.</numerusform><numerusform>Das Layout hat %n Objekte. Das neue Etikett kann an ihre Stelle treten, oder Sie behalten Ihren Entwurf und drucken ihn auf diese Etiketten.</numerusform></translation>
    </message>
    <message>
        <source>The layout has no room for so many rows.</source>
        <translation>Das Layout hat keinen Platz für so viele Zeilen.</translation>
    </message>
    <message>
        <source>The layout is too large for its paper: with its spacing, not even one fits within the margins.  Make it smaller, or change the paper, the margins or the spacing in the page setup.</source>
        <translation>Das Layout ist zu groß für sein Papier: Mit seinem Abstand passt nicht einmal eines zwischen die Ränder. Verkleinern Sie es, oder ändern Sie Papier, Ränder oder Abstand unter „Seite einrichten“.</translation>
    </message>
    <message>
        <source>The layout page is empty</source>
        <translation>Die Layoutseite ist leer</translation>
    </message>
    <message>
        <source>The link cannot be opened: it has characters in it that no address has.</source>
        <translation>Die Verknüpfung kann nicht geöffnet werden: Sie enthält Zeichen, die in keiner Adresse vorkommen.</translation>
    </message>
    <message>
        <source>The new database cannot take the place of the one that is open.</source>
        <translation>Die neue Datenbank kann nicht die geöffnete ersetzen.</translation>
    </message>
    <message>
        <source>The open database has changes that are not saved.</source>
        <translation>Die geöffnete Datenbank hat nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>The page has room for %1 of %2 columns.</source>
        <translation>Die Seite hat Platz für %1 von %2 Spalten.</translation>
    </message>
    <message>
        <source>The page is filled in for each one.</source>
        <translation>Die Seite wird für jeden einzelnen ausgefüllt.</translation>
    </message>
    <message>
        <source>The pages are filled with them.</source>
        <translation>Mit ihnen werden die Seiten gefüllt.</translation>
    </message>
    <message>
        <source>The paper of the database, code %1, is not known here: it prints on Letter.</source>
        <translation>Das Papier der Datenbank, Code %1, ist hier nicht bekannt: Gedruckt wird auf Letter.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read, or is too large.</source>
        <translation>Das Bild %1 ist nicht lesbar oder zu groß.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>Das Bild %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2.</source>
        <translation>Das Bild %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The picture %1 is too large.</source>
        <translation>Das Bild %1 ist zu groß.</translation>
    </message>
    <message>
        <source>The picture cannot be read, or is too large.</source>
        <translation>Das Bild ist nicht lesbar oder zu groß.</translation>
    </message>
    <message>
        <source>The picture could not be added to the database: %1</source>
        <translation>Das Bild konnte der Datenbank nicht hinzugefügt werden: %1</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read.</source>
        <translation>Das Bild in der Zwischenablage kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read: %1.</source>
        <translation>Das Bild in der Zwischenablage kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The picture in the clipboard is too large.</source>
        <translation>Das Bild in der Zwischenablage ist zu groß.</translation>
    </message>
    <message>
        <source>The picture is kept as the JPEG file %1.</source>
        <translation>Das Bild wird als JPEG-Datei %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>The print could not be written.</source>
        <translation>Der Druck konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The print could not be written: %1.</source>
        <translation>Der Druck konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The same &amp;value for all</source>
        <translation>Gleicher &amp;Wert für alle</translation>
    </message>
    <message>
        <source>The sample could not be copied to %1: %2</source>
        <translation>Das Beispiel konnte nicht nach %1 kopiert werden: %2</translation>
    </message>
    <message>
        <source>The se&amp;lected records</source>
        <translation>Die aus&amp;gewählten Datensätze</translation>
    </message>
    <message>
        <source>The search &amp;results</source>
        <translation>Die Such&amp;ergebnisse</translation>
    </message>
    <message>
        <source>The sign %1 is not kept: amounts are shown with $.</source>
        <translation>Das Zeichen %1 wird nicht übernommen: Beträge werden mit $ angezeigt.</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1600.</source>
        <translation>Die Größe ist eine Zahl von 1 bis 1600.</translation>
    </message>
    <message>
        <source>The table cannot be imported: %1</source>
        <translation>Die Tabelle kann nicht importiert werden: %1</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Die Tabelle konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The table has no records.</source>
        <translation>Die Tabelle hat keine Datensätze.</translation>
    </message>
    <message numerus="yes">
        <source>The table is written, but the database has no pictures of these names:
%1 and %n more.</source>
        <comment>The table is written, but the database has no pictures of these names:
%1 and %n more.</comment>
        <translation><numerusform>Die Tabelle ist geschrieben, aber die Datenbank hat keine Bilder mit diesen Namen:
%1 und %n weiteres.</numerusform><numerusform>Die Tabelle ist geschrieben, aber die Datenbank hat keine Bilder mit diesen Namen:
%1 und %n weitere.</numerusform></translation>
    </message>
    <message>
        <source>The table is written, but the database has no pictures of these names:
%1.</source>
        <translation>Die Tabelle ist geschrieben, aber die Datenbank hat keine Bilder mit diesen Namen:
%1.</translation>
    </message>
    <message>
        <source>The table of label sheets cannot be read: %1</source>
        <translation>Die Tabelle der Etikettenbögen kann nicht gelesen werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>The values have been set, but %n record could not be calculated: %1.</source>
        <comment>The values have been set, but %n records could not be calculated: %1.</comment>
        <translation><numerusform>Die Werte wurden gesetzt, aber %n Datensatz konnte nicht berechnet werden: %1.</numerusform><numerusform>Die Werte wurden gesetzt, aber %n Datensätze konnten nicht berechnet werden: %1.</numerusform></translation>
    </message>
    <message>
        <source>The version cannot be read: %1</source>
        <translation>Die Version kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The version could not be restored: %1</source>
        <translation>Die Version konnte nicht wiederhergestellt werden: %1</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>There are %1 columns, a database has at most %2.</source>
        <translation>Es sind %1 Spalten, eine Datenbank hat höchstens %2.</translation>
    </message>
    <message>
        <source>There are no calculation columns in the current database.</source>
        <translation>Die aktuelle Datenbank hat keine Berechnungsspalten.</translation>
    </message>
    <message>
        <source>There are no columns yet</source>
        <translation>Noch keine Spalten vorhanden</translation>
    </message>
    <message>
        <source>There are no objects of a layout on the clipboard.</source>
        <translation>In der Zwischenablage sind keine Layoutobjekte.</translation>
    </message>
    <message>
        <source>There are no records to print on labels.</source>
        <translation>Es gibt keine Datensätze, die auf Etiketten gedruckt werden könnten.</translation>
    </message>
    <message>
        <source>There are no records to print yet</source>
        <translation>Noch keine Datensätze zum Drucken vorhanden</translation>
    </message>
    <message>
        <source>There are no records to set values in.</source>
        <translation>Es gibt keine Datensätze, in denen Werte gesetzt werden könnten.</translation>
    </message>
    <message>
        <source>There are no records yet</source>
        <translation>Noch keine Datensätze vorhanden</translation>
    </message>
    <message>
        <source>There are no two records to compare.</source>
        <translation>Es gibt keine zwei Datensätze zum Vergleichen.</translation>
    </message>
    <message>
        <source>There is a filter "%1" already. Do you want to replace it?</source>
        <translation>Es gibt schon einen Filter „%1“. Möchten Sie ihn ersetzen?</translation>
    </message>
    <message>
        <source>There is no column "%1"</source>
        <translation>Es gibt keine Spalte „%1“</translation>
    </message>
    <message>
        <source>There is no column "%1" whose text could be printed.</source>
        <translation>Es gibt keine Spalte „%1“, deren Text gedruckt werden könnte.</translation>
    </message>
    <message>
        <source>There is no column of pictures "%1"</source>
        <translation>Es gibt keine Bildspalte „%1“</translation>
    </message>
    <message>
        <source>There is no column to set.  Calculation columns are worked out, and pictures and the rows of invoices are entered on the layout page.</source>
        <translation>Es gibt keine Spalte, deren Werte gesetzt werden könnten. Berechnungsspalten werden berechnet, Bilder und die Zeilen von Rechnungen werden auf der Layoutseite eingegeben.</translation>
    </message>
    <message>
        <source>There is no expression</source>
        <translation>Es gibt keinen Ausdruck</translation>
    </message>
    <message>
        <source>There is no picture column "%1".</source>
        <translation>Es gibt keine Bildspalte „%1“.</translation>
    </message>
    <message>
        <source>There is no record on the page.</source>
        <translation>Auf der Seite ist kein Datensatz.</translation>
    </message>
    <message>
        <source>There is no text and no table on the clipboard.</source>
        <translation>In der Zwischenablage ist weder Text noch eine Tabelle.</translation>
    </message>
    <message>
        <source>There is no text to make codes of</source>
        <translation>Es gibt keinen Text, aus dem Codes erzeugt werden könnten</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genug Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
        <source>There is nothing to print: no record has a number of copies above 0 in the column that says how many.</source>
        <translation>Es gibt nichts zu drucken: Kein Datensatz hat eine Anzahl größer als 0 in der Spalte, die die Anzahl der Kopien angibt.</translation>
    </message>
    <message>
        <source>There was an error writing to the file.  If saving to removable media, please make sure that the disk is inserted properly, or that the device is plugged in.</source>
        <translation>Beim Schreiben der Datei ist ein Fehler aufgetreten. Wenn Sie auf einen Wechseldatenträger speichern, prüfen Sie bitte, ob er richtig eingelegt oder angeschlossen ist.</translation>
    </message>
    <message>
        <source>These choices are yours alone: they are kept for this file, but not stored in the database.</source>
        <translation>Diese Optionen gelten nur für Sie: Sie werden für diese Datei gemerkt, aber nicht in der Datenbank gespeichert.</translation>
    </message>
    <message>
        <source>These colours are too long to be kept. They hold until the database is closed.</source>
        <translation>Diese Farben sind zu lang, um gemerkt zu werden. Sie gelten, bis die Datenbank geschlossen wird.</translation>
    </message>
    <message>
        <source>These pictures of the version are no longer there:</source>
        <translation>Diese Bilder der Version sind nicht mehr vorhanden:</translation>
    </message>
    <message>
        <source>This cell cannot be stored</source>
        <translation>Diese Zelle kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>This database has no column "%1".</source>
        <translation>Diese Datenbank hat keine Spalte „%1“.</translation>
    </message>
    <message>
        <source>This database has no picture column "%1".</source>
        <translation>Diese Datenbank hat keine Bildspalte „%1“.</translation>
    </message>
    <message>
        <source>This feature is only available for normal non-invoice style databases.</source>
        <translation>Diese Funktion steht nur in normalen Datenbanken zur Verfügung, nicht in Rechnungsdatenbanken.</translation>
    </message>
    <message>
        <source>This feature will prevent any changes to be made to either the database properties or the layout.  You will need to provide a password to lock or unlock your file.  Are you sure you want to do this?</source>
        <translation>Diese Funktion verhindert alle Änderungen an den Datenbankeigenschaften und am Layout. Zum Sperren und Entsperren der Datei brauchen Sie ein Kennwort. Möchten Sie das wirklich tun?</translation>
    </message>
    <message>
        <source>This is the file of the open database. Please choose another name for the table.</source>
        <translation>Das ist die Datei der geöffneten Datenbank. Bitte wählen Sie einen anderen Namen für die Tabelle.</translation>
    </message>
    <message>
        <source>This key is already associated with an element of this collection</source>
        <translation>Dieser Schlüssel ist bereits einem Element dieser Sammlung zugeordnet</translation>
    </message>
    <message>
        <source>This object has a size or a text that cannot be copied.</source>
        <translation>Dieses Objekt hat eine Größe oder einen Text, der nicht kopiert werden kann.</translation>
    </message>
    <message>
        <source>This object is locked.  Press the Lock button to unlock it.</source>
        <translation>Dieses Objekt ist gesperrt. Klicken Sie auf die Schaltfläche mit dem Schloss, um es zu entsperren.</translation>
    </message>
    <message>
        <source>This password cannot be stored.  Please choose another one.</source>
        <translation>Dieses Kennwort kann nicht gespeichert werden. Bitte wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>This record has no text, and gets no code</source>
        <translation>Dieser Datensatz hat keinen Text und bekommt keinen Code</translation>
    </message>
    <message>
        <source>This record is new.  To store it please click on the Add toolbar button.</source>
        <translation>Dieser Datensatz ist neu. Um ihn zu speichern, klicken Sie in der Symbolleiste auf „Hinzufügen“.</translation>
    </message>
    <message>
        <source>This work was never saved. It can be restored.

File: %1
Time: %2
Records: %3</source>
        <translation>Diese Arbeit wurde nie gespeichert. Sie kann wiederhergestellt werden.

Datei: %1
Zeit: %2
Datensätze: %3</translation>
    </message>
    <message>
        <source>Title and column &amp;headings</source>
        <translation>&amp;Titel und Spaltenüberschriften</translation>
    </message>
    <message>
        <source>To create a new invoice record please click on the New toolbar button.  It's the first one on the Layout Tab's toolbar.</source>
        <translation>Um eine neue Rechnung anzulegen, klicken Sie in der Symbolleiste auf „Neu“. Das ist die erste Schaltfläche in der Leiste auf dem Reiter „Layout“.</translation>
    </message>
    <message>
        <source>To overwrite it loses what they have changed. To read their state keeps yours for recovery.</source>
        <translation>Beim Überschreiben gehen die fremden Änderungen verloren. Beim Einlesen des anderen Stands bleibt Ihrer zur Wiederherstellung erhalten.</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>Too narrow for the longest text: %1.</source>
        <translation>Zu schmal für den längsten Text: %1.</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Toolbar Te&amp;xts</source>
        <translation>Te&amp;xte der Symbolleiste</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Type the first one, or take over those of a table of another program.</source>
        <translation>Geben Sie den ersten ein, oder übernehmen Sie die einer Tabelle aus einem anderen Programm.</translation>
    </message>
    <message>
        <source>Type the first one: it is filled in on the layout page.</source>
        <translation>Geben Sie den ersten ein: Er wird auf der Layoutseite ausgefüllt.</translation>
    </message>
    <message>
        <source>UTF-16 (big endian)</source>
        <translation>UTF-16 (Big Endian)</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Undefiniert</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Unlock Database</source>
        <translation>Datenbank entsperren</translation>
    </message>
    <message>
        <source>Unlock Design</source>
        <translation>Entwurf entsperren</translation>
    </message>
    <message>
        <source>Unpacking the pictures</source>
        <translation>Bilder werden entpackt</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash, because the disk is full. Please save soon.</source>
        <translation>Die nicht gespeicherte Arbeit konnte nicht für den Fall eines Absturzes gesichert werden, weil der Datenträger voll ist. Bitte speichern Sie bald.</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash. Please save soon.</source>
        <translation>Die nicht gespeicherte Arbeit konnte nicht für den Fall eines Absturzes gesichert werden. Bitte speichern Sie bald.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Untitled Search Results.fwk</source>
        <translation>Unbenannte Suchergebnisse.fwk</translation>
    </message>
    <message>
        <source>Untitled.fwk</source>
        <translation>Unbenannt.fwk</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Update Record</source>
        <translation>Datensatz aktualisieren</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Values divided by commas</source>
        <translation>Durch Kommas getrennte Werte</translation>
    </message>
    <message>
        <source>Values divided by tabs</source>
        <translation>Durch Tabulatoren getrennte Werte</translation>
    </message>
    <message>
        <source>Verify Data</source>
        <translation>Daten prüfen</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Senkrechtes Lineal</translation>
    </message>
    <message>
        <source>View Next Record</source>
        <translation>Nächsten Datensatz anzeigen</translation>
    </message>
    <message>
        <source>View Previous Record</source>
        <translation>Vorherigen Datensatz anzeigen</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>What has not been saved yet will be lost.  Restore the version all the same?</source>
        <translation>Was noch nicht gespeichert ist, geht verloren. Version trotzdem wiederherstellen?</translation>
    </message>
    <message>
        <source>What is on the clipboard cannot be pasted: %1.</source>
        <translation>Der Inhalt der Zwischenablage kann nicht eingefügt werden: %1.</translation>
    </message>
    <message>
        <source>What is restored is not saved until you save it.</source>
        <translation>Das Wiederhergestellte ist erst gespeichert, wenn Sie es speichern.</translation>
    </message>
    <message>
        <source>What is saved here could overwrite what is saved there.</source>
        <translation>Was hier gespeichert wird, könnte überschreiben, was dort gespeichert wird.</translation>
    </message>
    <message>
        <source>What is transparent in it has become white.</source>
        <translation>Was darin durchsichtig war, ist jetzt weiß.</translation>
    </message>
    <message>
        <source>What the first records become</source>
        <translation>Was aus den ersten Datensätzen wird</translation>
    </message>
    <message>
        <source>Whether it still is cannot be told from this machine.</source>
        <translation>Ob das noch so ist, lässt sich von diesem Computer aus nicht feststellen.</translation>
    </message>
    <message>
        <source>Which sums, means, least and greatest values are counted</source>
        <translation>Welche Summen, Mittelwerte, Minima und Maxima berechnet werden</translation>
    </message>
    <message>
        <source>With &amp;outlines, for a test on plain paper</source>
        <translation>Mit &amp;Umrissen, zur Probe auf Normalpapier</translation>
    </message>
    <message>
        <source>With the &amp;Totals row</source>
        <translation>Mit &amp;Summenzeile</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in a folder beside the file</source>
        <translation>Mit &amp;Bildern, in einem Ordner neben der Datei</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in the file</source>
        <translation>Mit &amp;Bildern, in der Datei</translation>
    </message>
    <message>
        <source>Without an expression: %1. Tools &gt; Expression Editor says how a column is worked out.</source>
        <translation>Ohne Ausdruck: %1. Extras &gt; Ausdruckseditor sagt, wie eine Spalte berechnet wird.</translation>
    </message>
    <message>
        <source>Words, "a phrase", -without, Column:text, Column&gt;10</source>
        <translation>Wörter, "eine Wortfolge", -ohne, Spalte:Text, Spalte&gt;10</translation>
    </message>
    <message>
        <source>Worked out from other columns by an expression</source>
        <translation>Durch einen Ausdruck aus anderen Spalten berechnet</translation>
    </message>
    <message>
        <source>Would you like to rename all exact matching labels in your layout to the new name as well?</source>
        <translation>Möchten Sie auch alle genau übereinstimmenden Beschriftungen im Layout entsprechend umbenennen?</translation>
    </message>
    <message>
        <source>Writing the table</source>
        <translation>Tabelle wird geschrieben</translation>
    </message>
    <message>
        <source>Written &amp;as:</source>
        <translation>Schreib&amp;weise:</translation>
    </message>
    <message>
        <source>Written As</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>Written, but the folder of %1 could not be synced to the disk: %2</source>
        <translation>Geschrieben, aber der Ordner von %1 konnte nicht mit dem Datenträger abgeglichen werden: %2</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Year, month, day</source>
        <translation>Jahr, Monat, Tag</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>You can also begin with a table of another program.</source>
        <translation>Sie können auch mit einer Tabelle aus einem anderen Programm beginnen.</translation>
    </message>
    <message>
        <source>You cannot duplicate the totals row.</source>
        <translation>Die Summenzeile kann nicht dupliziert werden.</translation>
    </message>
    <message>
        <source>You cannot globally relace items in a search window, please use the normal view.</source>
        <translation>In einem Suchfenster kann nicht global ersetzt werden; bitte verwenden Sie die normale Ansicht.</translation>
    </message>
    <message>
        <source>You cannot save your search results to a file named the same as the one that is currently open.</source>
        <translation>Die Suchergebnisse können nicht in einer Datei mit dem Namen der geöffneten Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>You did not enter either an address or a subject.</source>
        <translation>Sie haben keine Adresse oder keinen Betreff eingegeben.</translation>
    </message>
    <message>
        <source>You did not enter the number of rows to create.</source>
        <translation>Sie haben die Anzahl der anzulegenden Zeilen nicht eingegeben.</translation>
    </message>
    <message>
        <source>You entered a non numeric value.</source>
        <translation>Sie haben einen nicht numerischen Wert eingegeben.</translation>
    </message>
    <message>
        <source>You entered an invalid date.</source>
        <translation>Sie haben ein ungültiges Datum eingegeben.</translation>
    </message>
    <message>
        <source>You have added the maximum number of columns to the database.</source>
        <translation>Sie haben die größtmögliche Zahl von Spalten zur Datenbank hinzugefügt.</translation>
    </message>
    <message>
        <source>You have not selected any columns to print in the page setup dialog.</source>
        <translation>Unter „Seite einrichten“ sind keine zu druckenden Spalten ausgewählt.</translation>
    </message>
    <message>
        <source>You must enter a column name.</source>
        <translation>Sie müssen einen Spaltennamen eingeben.</translation>
    </message>
    <message>
        <source>You must select a field to search by.</source>
        <translation>Sie müssen ein Feld für die Suche auswählen.</translation>
    </message>
    <message>
        <source>You need to first install a printer on this system.</source>
        <translation>Sie müssen zuerst einen Drucker auf diesem System installieren.</translation>
    </message>
    <message>
        <source>You selected a file other than a GIF or JPEG.  Please try again.</source>
        <translation>Sie haben eine Datei gewählt, die weder GIF noch JPEG ist. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Your database has no columns that could be coloured.</source>
        <translation>Ihre Datenbank hat keine Spalten, die gefärbt werden könnten.</translation>
    </message>
    <message>
        <source>Your database has no columns to export.</source>
        <translation>Ihre Datenbank hat keine Spalten zum Exportieren.</translation>
    </message>
    <message>
        <source>Your database has no columns to paste into.</source>
        <translation>Ihre Datenbank hat keine Spalten, in die eingefügt werden könnte.</translation>
    </message>
    <message>
        <source>Your database has no columns, please add some in the database properties dialog.</source>
        <translation>Ihre Datenbank hat keine Spalten. Bitte fügen Sie im Dialog „Datenbankeigenschaften“ welche hinzu.</translation>
    </message>
    <message>
        <source>Your database has no columns.</source>
        <translation>Ihre Datenbank hat keine Spalten.</translation>
    </message>
    <message>
        <source>Your mail program could not be started.</source>
        <translation>Ihr E-Mail-Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>a column has no heading</source>
        <translation>Spalte ohne Überschrift</translation>
    </message>
    <message>
        <source>a control character</source>
        <translation>ein Steuerzeichen</translation>
    </message>
    <message>
        <source>a ne&amp;w database</source>
        <translation>eine neue &amp;Datenbank</translation>
    </message>
    <message>
        <source>a quote is opened and never closed</source>
        <translation>ein Anführungszeichen wird geöffnet und nicht geschlossen</translation>
    </message>
    <message>
        <source>a&amp;nd by:</source>
        <translation>&amp;und nach:</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>after %1</source>
        <translation>nach %1</translation>
    </message>
    <message>
        <source>and</source>
        <translation>und</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <comment>and %n more</comment>
        <translation><numerusform>und %n weiteres</numerusform><numerusform>und %n weitere</numerusform></translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>another program has changes for it that are not in it yet; close it there first</source>
        <translation>ein anderes Programm hat Änderungen dafür, die noch nicht darin stehen; schließen Sie die Datei zuerst dort</translation>
    </message>
    <message>
        <source>archive entry</source>
        <translation>Archiveintrag</translation>
    </message>
    <message>
        <source>before %1</source>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation>zwischen %1 und %2</translation>
    </message>
    <message>
        <source>calculation</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>cell text</source>
        <translation>Zellentext</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>column position</source>
        <translation>Spaltenposition</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>each value</source>
        <translation>Einzelwert</translation>
    </message>
    <message>
        <source>elements of a line</source>
        <translation>Elemente einer Zeile</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>equal to %1</source>
        <translation>gleich %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>Feld %1</translation>
    </message>
    <message>
        <source>has a "|", which divides the cells of a database</source>
        <translation>enthält „|“, das Trennzeichen der Zellen einer Datenbank</translation>
    </message>
    <message>
        <source>has a character that cannot be shown</source>
        <translation>enthält ein Zeichen, das nicht dargestellt werden kann</translation>
    </message>
    <message>
        <source>has a time, which a date has no room for</source>
        <translation>enthält eine Uhrzeit, für die ein Datum keinen Platz hat</translation>
    </message>
    <message>
        <source>has more places than an amount of money</source>
        <translation>hat mehr Nachkommastellen als ein Geldbetrag</translation>
    </message>
    <message>
        <source>has more values than the %1 rows of the layout</source>
        <translation>enthält mehr Werte, als das Layout Zeilen hat (%1)</translation>
    </message>
    <message>
        <source>has passed</source>
        <translation>ist vergangen</translation>
    </message>
    <message>
        <source>help/about.html</source>
        <translation>help/de/about.html</translation>
    </message>
    <message>
        <source>help/index.html</source>
        <translation>help/de/index.html</translation>
    </message>
    <message>
        <source>inches.</source>
        <translation>Zoll.</translation>
    </message>
    <message>
        <source>increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>is above</source>
        <translation>liegt über</translation>
    </message>
    <message>
        <source>is after</source>
        <translation>liegt nach</translation>
    </message>
    <message>
        <source>is before</source>
        <translation>liegt vor</translation>
    </message>
    <message>
        <source>is below</source>
        <translation>liegt unter</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>liegt zwischen</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>ist gleich</translation>
    </message>
    <message>
        <source>is no date</source>
        <translation>ist kein Datum</translation>
    </message>
    <message>
        <source>is no date in this order</source>
        <translation>ist kein Datum in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>is no number in this form</source>
        <translation>ist keine Zahl in dieser Schreibweise</translation>
    </message>
    <message>
        <source>is too large a number</source>
        <translation>ist eine zu große Zahl</translation>
    </message>
    <message>
        <source>is within days</source>
        <translation>liegt innerhalb von Tagen</translation>
    </message>
    <message>
        <source>it has %1 bytes, which is too long for such a code</source>
        <translation>%1 Byte sind zu lang für einen solchen Code</translation>
    </message>
    <message>
        <source>it has %1 characters, and at most %2 fit</source>
        <translation>%1 Zeichen sind zu viele, höchstens %2 passen hinein</translation>
    </message>
    <message numerus="yes">
        <source>it has %n digit, and should have %1, or %2 without the check digit</source>
        <comment>it has %n digits, and should have %1, or %2 without the check digit</comment>
        <translation><numerusform>%n Ziffer statt %1 oder, ohne Prüfziffer, %2</numerusform><numerusform>%n Ziffern statt %1 oder, ohne Prüfziffer, %2</numerusform></translation>
    </message>
    <message>
        <source>it has a document type, which no spreadsheet has</source>
        <translation>ein Dokumenttyp ist vorhanden, den kein Tabellendokument hat</translation>
    </message>
    <message>
        <source>it has more rows than the %1 records that a database holds</source>
        <translation>mehr Zeilen als die %1 Datensätze, die eine Datenbank aufnimmt</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>mehr als %1 Zellen</translation>
    </message>
    <message>
        <source>it has more than %1 columns</source>
        <translation>mehr als %1 Spalten</translation>
    </message>
    <message>
        <source>it has more than %1 lines</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>it has more than %1 rows</source>
        <translation>mehr als %1 Zeilen</translation>
    </message>
    <message>
        <source>it has no %1</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>it has no cards</source>
        <translation>keine Karten vorhanden</translation>
    </message>
    <message>
        <source>it has no columns</source>
        <translation>keine Spalten vorhanden</translation>
    </message>
    <message>
        <source>it has no content.xml</source>
        <translation>content.xml fehlt</translation>
    </message>
    <message>
        <source>it has no header line</source>
        <translation>keine Kopfzeile vorhanden</translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation>keine Zeilen vorhanden</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>keine Blätter vorhanden</translation>
    </message>
    <message>
        <source>it has no such sheet</source>
        <translation>dieses Blatt ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it has no tables</source>
        <translation>keine Tabellen vorhanden</translation>
    </message>
    <message>
        <source>it has no workbook</source>
        <translation>keine Arbeitsmappe vorhanden</translation>
    </message>
    <message>
        <source>it has too many cards</source>
        <translation>zu viele Karten</translation>
    </message>
    <message>
        <source>it has too many columns</source>
        <translation>zu viele Spalten</translation>
    </message>
    <message>
        <source>it has too many merged cells</source>
        <translation>zu viele verbundene Zellen</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>zu viele Zeilen</translation>
    </message>
    <message>
        <source>it has too many sheets</source>
        <translation>zu viele Blätter</translation>
    </message>
    <message>
        <source>it has too many tables</source>
        <translation>zu viele Tabellen</translation>
    </message>
    <message>
        <source>it holds a character that is none</source>
        <translation>ein ungültiges Zeichen ist enthalten</translation>
    </message>
    <message>
        <source>it holds characters that such a code cannot</source>
        <translation>Zeichen sind enthalten, die ein solcher Code nicht aufnehmen kann</translation>
    </message>
    <message>
        <source>it is larger than 256 MB</source>
        <translation>größer als 256 MB</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>größer als 64 MB</translation>
    </message>
    <message>
        <source>it is no list of records</source>
        <translation>keine Liste von Datensätzen</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>it is no text in UTF-8 or Windows-1252</source>
        <translation>kein Text in UTF-8 oder Windows-1252</translation>
    </message>
    <message>
        <source>it is no vCard</source>
        <translation>keine vCard</translation>
    </message>
    <message>
        <source>it names a text that is not there</source>
        <translation>ein genannter Text ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it takes too long to work out</source>
        <translation>die Auswertung dauert zu lange</translation>
    </message>
    <message>
        <source>item %1</source>
        <translation>Eintrag %1</translation>
    </message>
    <message>
        <source>item rows</source>
        <translation>Positionszeilen</translation>
    </message>
    <message>
        <source>its JSON is damaged</source>
        <translation>das JSON ist beschädigt</translation>
    </message>
    <message>
        <source>its JSON is damaged at byte %1</source>
        <translation>das JSON ist bei Byte %1 beschädigt</translation>
    </message>
    <message>
        <source>its JSON is nested too deep</source>
        <translation>das JSON ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>its XML is damaged</source>
        <translation>das XML ist beschädigt</translation>
    </message>
    <message>
        <source>its cells are out of order</source>
        <translation>die Zellen sind nicht in der richtigen Reihenfolge</translation>
    </message>
    <message>
        <source>its column %1 has no name</source>
        <translation>Spalte %1 hat keinen Namen</translation>
    </message>
    <message>
        <source>its rows are out of order</source>
        <translation>die Zeilen sind nicht in der richtigen Reihenfolge</translation>
    </message>
    <message>
        <source>its styles are too long</source>
        <translation>die Formatvorlagen sind zu lang</translation>
    </message>
    <message>
        <source>its texts are too long</source>
        <translation>die Texte sind zu lang</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>line %1: a quote is opened and never closed</source>
        <translation>Zeile %1: ein Anführungszeichen wird geöffnet und nicht geschlossen</translation>
    </message>
    <message>
        <source>memory for a code</source>
        <translation>Speicher für einen Code</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>more cells than the header has names</source>
        <translation>mehr Zellen, als die Kopfzeile Namen hat</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>mehr als %1 Zellen</translation>
    </message>
    <message>
        <source>new records of the &amp;open database</source>
        <translation>neue Datensätze der &amp;offenen Datenbank</translation>
    </message>
    <message>
        <source>no archive is open</source>
        <translation>kein Archiv ist geöffnet</translation>
    </message>
    <message>
        <source>no column "%1"</source>
        <translation>keine Spalte „%1“</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>Objekt %1</translation>
    </message>
    <message>
        <source>objects of one kind</source>
        <translation>Objekte einer Art</translation>
    </message>
    <message>
        <source>of all databases, in at &amp;most</source>
        <translation>für alle Datenbanken, in &amp;höchstens</translation>
    </message>
    <message>
        <source>one of its cards has no end</source>
        <translation>eine der Karten hat kein Ende</translation>
    </message>
    <message>
        <source>one of its lines is no line of a vCard</source>
        <translation>eine der Zeilen ist keine Zeile einer vCard</translation>
    </message>
    <message>
        <source>one of its rows is too long</source>
        <translation>eine der Zeilen ist zu lang</translation>
    </message>
    <message>
        <source>packing</source>
        <translation>Packen</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>Quartal</translation>
    </message>
    <message>
        <source>record %1 has a text too long for a spreadsheet</source>
        <translation>Datensatz %1 hat einen für eine Tabelle zu langen Text</translation>
    </message>
    <message>
        <source>record keys</source>
        <translation>Datensatzschlüssel</translation>
    </message>
    <message>
        <source>sub-item %1</source>
        <translation>Untereintrag %1</translation>
    </message>
    <message>
        <source>sum of amounts</source>
        <translation>Summe von Beträgen</translation>
    </message>
    <message>
        <source>text behind the closing quote of a cell</source>
        <translation>Text hinter dem schließenden Anführungszeichen einer Zelle</translation>
    </message>
    <message>
        <source>the column "%1" has no field on the layout</source>
        <translation>die Spalte „%1“ hat kein Feld im Layout</translation>
    </message>
    <message>
        <source>the column "%1" is there twice</source>
        <translation>die Spalte „%1“ ist doppelt vorhanden</translation>
    </message>
    <message>
        <source>the last digit should be %1</source>
        <translation>die letzte Ziffer müsste %1 sein</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>the program knows no table of this kind</source>
        <translation>das Programm kennt keine Tabelle dieser Art</translation>
    </message>
    <message>
        <source>the same number of each record</source>
        <translation>gleich viele von jedem Datensatz</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>der Text endet zu früh</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>es gibt keine Spalte %1</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>es gibt keinen Drucker</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>zu viele Klammern</translation>
    </message>
    <message numerus="yes">
        <source>within %1 day</source>
        <comment>within %1 days</comment>
        <translation><numerusform>innerhalb von %1 Tag</numerusform><numerusform>innerhalb von %1 Tagen</numerusform></translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
</context>
</TS>
