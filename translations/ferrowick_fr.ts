<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Ferrowick</name>
    <message>
        <source>  Amount of spacing in inches between layouts in multiple layout printing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Database Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Please insert your working source disk or device that you have been saving to up until now.  Ferrowick needs this before it can perform the 'save as' operation to the other location you specified.  Once you have inserted the disk or device you can try 'save as' again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Searches are word based, not within string based.  So for example, a search for lap would not find lapdog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  This dialog allows you to set values of auto increment columns.  You might want to do this for setting initial starting values or to adjust the current count to coincide with deleted records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  To set entry options, simply double click on a row in the list to the right.  You can only set options for date and number columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Available Calculation Columns </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bold Headers </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Columns To Print </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Criteria </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Custom Paper Size </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Define Expression </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Keypad </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Layout Spacing </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Margins </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Operators </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Orientation </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Paper Size </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Paper Sizes </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Replace Options </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Report Title </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> These columns are using auto incrementing serial numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Type </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" has a value for each item row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" has a value for each item row, which are typed on the layout page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" holds pictures, which are chosen on the layout page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is calculated and takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is neither a column nor a number (character %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is no amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is no length or number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is no step: type a number above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" is out of place (character %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>"%1" needs a blank on either side (character %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
%2: %3</source>
        <comment>group, figure and its value</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Version %2

A small database of your own, without learning one.
Free software under the MIT licence. It comes with no warranty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 of %3 characters)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (prints on Letter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (recovered).fwk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (steps of %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 across, %2 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>%1 and %n more</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>%1 at place %2 has no bars, but a QR code takes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at place %2 is no digit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 by %2 and %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be locked: %2 is in the way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read like this: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be opened:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written.
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ended too early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 goes into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a wrong size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has met an error and has to end.

%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a program or a script. Links do not start programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no longer there. It may have been renamed or deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number of days, from 0 to 3650.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open elsewhere, by %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open to read only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is packed in an unknown way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the open database, and cannot be printed into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 labels: too many to print at a time, which are %2 at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 occurs %n time</source>
        <comment>%1 occurs %n times</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2.fwk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2 (process %3) since %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to below %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. It is not what your unsaved work is based on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. What is shown here is as it was opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was made, but there is no program that opens it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1's value has been set to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, first label %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The first %2 are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n record.</source>
        <comment>%1: %n records.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>%1: bad comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: records %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this sheet cannot be imported: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n cell cannot be stored:</source>
        <comment>%n cells cannot be stored:</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cell is refused.</source>
        <comment>%n cells are refused.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cells are refused, these among them.</source>
        <comment>%n cells are refused, these among them.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n gap</source>
        <comment>%n gaps</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n group</source>
        <comment>%n groups</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n label</source>
        <comment>%n labels</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new invoice</source>
        <comment>%n new invoices</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new record</source>
        <comment>%n new records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n of the records cannot be calculated: %1</source>
        <comment>%n of the records cannot be calculated. The first one: %1</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record</source>
        <comment>%n records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record asks for more than %1, which is the most.</source>
        <comment>%n records ask for more than %1, which is the most.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record behind the first of each</source>
        <comment>%n records behind the first of each</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no code in %1 now.  %2: %3.</source>
        <comment>%n records have no code in %1 now.  %2: %3.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no number above 0 there: no label.</source>
        <comment>%n records have no number above 0 there: no label.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n records.</source>
        <comment>%n records.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n sheet</source>
        <comment>%n sheets</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>&amp;About Ferrowick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Adjust Serial Number Increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;As The Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Auto-Load Previously Opened File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beside The Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Books</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clean Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colour...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Colours...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns to compare:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Confirm Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date of the print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Define Columns...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete All But First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disclaimer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Expression Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find And Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Findings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Freeze First Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gap down:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go To Layout Upon Double-Click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Goes into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Groups of equal records:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Highlight Calculation Boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;How many:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ignore capitals, and blanks at the ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import From Clipbard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Their Columns as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep This Filter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Labels across:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave out empty lines and gaps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave refused cells empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave these cells empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lines of the label, with columns in braces:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lock Or Unlock Database Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look at a Copy...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make Code...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Narrower</source>
        <translation>Plus étr&amp;oite</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number of entry rows to create:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open PDFs After Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Other size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite It Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Overwrite at the Next Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Page numbers, as 3 of 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Prompt For Save On Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quotes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read the Other State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recipes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace across all columns in all rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace in all rows for selected columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as Another File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search results only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select Repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show All Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start at label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top margin:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Totals carried and brought forward from sheet to sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Under The Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Versions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Visit FWK Homepage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Widen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wider</source>
        <translation>Plus &amp;large</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Worked out from the columns of each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write It Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(leave out)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no colour)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no filter is kept yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none yet)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 of 3: Which labels?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 x 11 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 x 14 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>11 x 17 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15 x 11 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 of 3: What stands on a label?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 of 3: How are they printed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9 x 11 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Before you begin&lt;/h3&gt;&lt;p&gt;Ferrowick is free software. It is provided &lt;b&gt;as it is, without a warranty of any kind&lt;/b&gt;: nobody promises that it is free of errors or fit for what you want to do with it, and nobody answers for losses that come of its use.&lt;/p&gt;&lt;p&gt;What that means for your work:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Keep copies of your databases, on another disk if you can. A database is one file whose name ends in &lt;i&gt;.fwk&lt;/i&gt;, so a copy is quickly made.&lt;/li&gt;&lt;li&gt;Changes are on the disk only when you have saved them.&lt;/li&gt;&lt;li&gt;Check sums and calculations that money or other people depend on.&lt;/li&gt;&lt;li&gt;The design lock keeps a design from being changed by mistake. It does not encrypt anything: whoever has the file can read what is in it.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;The licence that comes with the program has the full terms.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click sorts the groups, and another one the other way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column has no name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column is written in braces: {Name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column you intend to delete is either a member of a calculation column expression, or is a calculation column itself.  You will need to redefine expressions for all affected calculation columns that referenced this one. Are you sure you want to do this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of your database with all changes is kept in
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A database has no room for so many records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A date is set to a date or to a column of dates, and cannot be worked out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A day: 12/31/2024</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with that name exists. Overwrite it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter is kept for a file. Please save the database first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label has 50 lines at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line of the label is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number, or a serial number that counts by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A photo or drawing: a .jpg or .gif file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture could not be put back: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A summary has no place in address cards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;vailable columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A3 Extra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4 Plus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4 small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Box To Layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Entry Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Horizontal Line To Layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Add Object</source>
        <comment>Add %n Objects</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Add Record</source>
        <comment>Add %n Records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Add Vertical Line To Layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a static clip art image to layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add column to list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding the invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding the records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address labels, many to a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Serial Number Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An amount of money: $1,234.50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error has occured during one of your calculations.  It appears that an expression is incorrectly defined.  Please check your syntax.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An invoice database has no Picture columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any words, also numbers that begin with 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you absolutely certain you want to do this?  ALL data in the column %1 will be lost!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1, %2   Size %3 x %4 in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Name Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto enter today's date when entering data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto increment value when entering data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Serial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B5 Extra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Books with their covers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border Width Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring To Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;entred from top to bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lone Database To..</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;olours...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;olumns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculated columns as &amp;formulas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculated values and totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculation Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be stored because it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells of the colu&amp;mn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cells that cannot be stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Entry Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Change Record</source>
        <comment>Change %n Records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Check Previous Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Serial &amp;Numbers...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Serial Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Columns To Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Report Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose at least one column for the label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose in the page setup what is printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the columns to compare.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose your database format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear &amp;Guides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to set a guide line; double-click its marker to remove it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone current file to...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone1.fwk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column Headin&amp;gs</source>
        <translation>En-&amp;têtes des colonnes</translation>
    </message>
    <message>
        <source>Column Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column Stat&amp;istics...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column name must not be a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column to find and replace in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column to search, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column with that name already exists!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns To Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns To Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns are what a record is made of, as a name, a date or a price.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns that words are looked for in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns to export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy With &amp;Headings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Item Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Link From Label.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a standard database for simple spreadsheets, inventory, collectibles, recipes, etc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create an invoice style database.  This means you will design a layout where the calculations take place in the layout itself and you will have multiple values stored in a single row and column cell.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency &amp;sign:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database &amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database (*.fwk)|*.fwk|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Style:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Style: Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Style: Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database st&amp;yle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day, month, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define Expressions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of %1 groups?</source>
        <comment>Delete %n records and keep the first of %1 groups?</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of the group?</source>
        <comment>Delete %n records and keep the first of the group?</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Delete Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Delete Object</source>
        <comment>Delete %n Objects</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Delete Record</source>
        <comment>Delete %n Records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Selected Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Selected Record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete selected column from list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design The &amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Design it once: it then shows each record, takes what you type, and prints as you have placed it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk not ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Totals For Selected Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Do you want to empty %1 in %n record?</source>
        <comment>Do you want to empty %1 in %n records?</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Document Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document Opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double Postcard (JIS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to choose a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to choose clip art</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>During a recalculate all rows event your columns were not able to be recalculated due to a syntax error with one of your defined expressions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each number is there once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each row that is pasted becomes an invoice. Please show the invoices, not their items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier states of this database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Earlier values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Currently Opened Database File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter URL or email address.  URL's should begin with http:// and emails should start with mailto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter password to lock file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter password to unlock database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter value from 1 to 10 for border width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #14</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope #9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Layout Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Executive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expor&amp;t...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression for selected column:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expressions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ilter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fanfold German</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fanfold German Legal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fanfold US</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field already added!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field already added.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field, in the bar above, places a box for a column; Label places a text beside it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fig&amp;ures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File does not exist!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filesize:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filesize: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find And Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Duplicat&amp;es...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First &amp;rows, as they will be stored:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From A Template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap a&amp;cross:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap across: %1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gap down: %1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Garden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go To First Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go To Last Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greatest of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups With Subtotals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide at %1 inches</source>
        <translation>Repère à %1 pouces</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How finely values are told apart: dates by year, quarter, month or day, numbers by steps, which can be typed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many copies?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the table: "%1".</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;ventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect Password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Into:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid values specified. Values must be greater than 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It could not be written for this reason:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Row Creation Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item rows, tax and sums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items and invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep The Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps one record of each selected group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key is not unique in collection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;eft margin:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La&amp;bel Wizard...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels &amp;down:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels are made of the records of a list.  Invoices print one to a page: use Print on the Layout tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lea&amp;ve out these records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Left out: %1, and %n more.</source>
        <comment>Left out: %1, and %n more.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter Plus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines of the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock Selected Object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make ane&amp;w when the text of a record changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maker, number, words, or a size: 99.1 x 38.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the columns as wide as what they print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making codes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Megabytes for the versions of all databases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message To Sender(500 Characters Max):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month, day, year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most frequent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most frequent values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Left</source>
        <translation>Déplacer à &amp;gauche</translation>
    </message>
    <message>
        <source>Move &amp;Right</source>
        <translation>Déplacer à &amp;droite</translation>
    </message>
    <message>
        <source>Move Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of column to create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New From Te&amp;mplate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Open Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No code because of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No column has serial numbers.  They are an option of Number columns in the database properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No column is chosen for the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No column is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No column of the report is totaled, so there are no sums: see Choose Columns To Total.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy of your database could be kept. The file is as you last saved it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No database is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No guide is chosen</source>
        <translation>Aucun repère choisi</translation>
    </message>
    <message>
        <source>No guides; Insert makes one</source>
        <translation>Aucun repère ; Inser en place un</translation>
    </message>
    <message>
        <source>No record was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No records yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sheet of labels is called so, or has labels of that size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No two records are equal in these columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No version kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No version of this database has been kept yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No whole number: records %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Nothing has been made.  %n record has a text that gives no code</source>
        <comment>Nothing has been made.  %n records have texts that give no code</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Nothing has been set.  The record "%1" would get no value: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in the database is what was searched for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is placed on the page yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numeric Columns:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On Each Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On a sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>One label of %1 mm on %2</source>
        <comment>%n labels of %1 mm on %2</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open In &amp;Entry Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Recent &amp;Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a &amp;Copy...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a Copy As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a database, or add columns, to see its records in groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a database, or drop its file on this window.
A database is one file; its name ends in .fwk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open to &amp;Read Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenDocument spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or click the first free label of a sheet that you have used before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or try a sample. You get a copy of your own, so change in it what you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ot&amp;her:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over the edge of the paper: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite Existing File?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;revious Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper Size: %1 x %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path/file access error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place &amp;All Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plants with photos and costs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please allow your text to wrap automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please attach the database to the message yourself:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check: "%1" can be read in two ways.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please return layout to browse view instead of design.  The design button is currently pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please use separate labels for multiple lines, or resize your label and allow your text to wrap automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postcard (JIS)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of all records using multiple layouts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of selected records using multiple layouts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previously opened file could not be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price * 1.1, with a blank beside each name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print all records as layouts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print all records as multiple layouts per page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print all records as report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print selected items as layouts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print selected items as multiple layouts per page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print selected items as report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer Not Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the column on a line of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the column where the text cursor is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts all records back in place of those of a group (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the version in the place of the open document, as work that is not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quarto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the Other &amp;State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recalculating... %1 percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recognised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record %1 of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record 888 of 888</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records cannot be pasted into search results. Please go back to all records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records of the version saved %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records that get no code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused because it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace The Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Page Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Unsaved Work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows to paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1, colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1, second value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1, value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tatistics...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SQLite database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Search &amp;Results As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Search Results As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Another &amp;File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save current document?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save current file %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Copy As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the version as a database of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search within</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select image for clip art.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select image for picture box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected &amp;Totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Columns and Order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the records that share a number in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Database File To...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send To Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Set %1 in %n record</source>
        <comment>Set %1 in %n records</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>Set &amp;Values...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet of labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheets of labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show On &amp;Layout Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all records and close the filter (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the records of the selected groups in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the records of the version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size To &amp;Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap To Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by %1, Ascending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by %1, Descending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify Name For New Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of the groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of the groups within</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Su&amp;mmary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum of the selected records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sums of the selected records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Layout To Design Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syntax error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of %1 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of %1 points: the longest texts are printed smaller, or are cut at the edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That would be %1 labels.  At most %2 are printed at a time.  Select fewer records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &amp;first row has the names of the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The &amp;selected records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The brace at place %1 is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The codes could not be made anew: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The codes could not be stored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column "%1" stands on the label twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column name "%1" cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column name "%1" holds a "|".</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column name "%1" is there twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column you selected is an undefined calculation column.  Please define an expression for it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy cannot take the place of the database that is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database cannot keep where these labels stand to a tenth of a millimetre: this computer does, for this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database could not be made:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database file could not be found:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The database has room for %n more record.</source>
        <comment>The database has room for %n more records.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>The database is open to read only.  Save a copy of the version instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database itself keeps where these labels stand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database structure and layout have been locked.  Use the Options menu to unlock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The expression is not complete (character %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file itself cannot be opened. Please choose a place for the restored one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file itself was changed after that work was begun.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filter is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filter is too long to be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first row has the &amp;names of the columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first rule that holds decides. A cell that is coloured has a mark as well, and says why when the mouse rests on it. Colours are yours alone: they are not stored in the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder "%1" is there already. Pictures in it that have the same names are replaced. Continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help pages are not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label has too many columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The layout has %n object.  The new label can take its place, or you keep your design and print it on these labels.</source>
        <comment>The layout has %n objects.  The new label can take its place, or you keep your design and print it on these labels.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>The layout has no room for so many rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout is too large for its paper: with its spacing, not even one fits within the margins.  Make it smaller, or change the paper, the margins or the spacing in the page setup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout page is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link cannot be opened: it has characters in it that no address has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new database cannot take the place of the one that is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The open database has changes that are not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is filled in for each one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages are filled with them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper of the database, code %1, is not known here: it prints on Letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be read, or is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture %1 is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture could not be added to the database: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture in the clipboard is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is kept as the JPEG file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print could not be written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same &amp;value for all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sample could not be copied to %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The se&amp;lected records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search &amp;results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sign %1 is not kept: amounts are shown with $.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1600.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table cannot be imported: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has no records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The table is written, but the database has no pictures of these names:
%1 and %n more.</source>
        <comment>The table is written, but the database has no pictures of these names:
%1 and %n more.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>The table is written, but the database has no pictures of these names:
%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table of label sheets cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The values have been set, but %n record could not be calculated: %1.</source>
        <comment>The values have been set, but %n records could not be calculated: %1.</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>The version cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version could not be restored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are %1 columns, a database has at most %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no calculation columns in the current database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no columns yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no objects of a layout on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no records to print on labels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no records to print yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no records to set values in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no records yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no two records to compare.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a filter "%1" already. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no column "%1"</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no column "%1" whose text could be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no column of pictures "%1"</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no column to set.  Calculation columns are worked out, and pictures and the rows of invoices are entered on the layout page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no picture column "%1".</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no record on the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no text and no table on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no text to make codes of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to print: no record has a number of copies above 0 in the column that says how many.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was an error writing to the file.  If saving to removable media, please make sure that the disk is inserted properly, or that the device is plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These choices are yours alone: they are kept for this file, but not stored in the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These colours are too long to be kept. They hold until the database is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These pictures of the version are no longer there:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cell cannot be stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This database has no column "%1".</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This database has no picture column "%1".</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This feature is only available for normal non-invoice style databases.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This feature will prevent any changes to be made to either the database properties or the layout.  You will need to provide a password to lock or unlock your file.  Are you sure you want to do this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is the file of the open database. Please choose another name for the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This key is already associated with an element of this collection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This object has a size or a text that cannot be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This object is locked.  Press the Lock button to unlock it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This password cannot be stored.  Please choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This record has no text, and gets no code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This record is new.  To store it please click on the Add toolbar button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This work was never saved. It can be restored.

File: %1
Time: %2
Records: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title and column &amp;headings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To create a new invoice record please click on the New toolbar button.  It's the first one on the Layout Tab's toolbar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To overwrite it loses what they have changed. To read their state keeps yours for recovery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too narrow for the longest text: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar Te&amp;xts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the first one, or take over those of a table of another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the first one: it is filled in on the layout page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-16 (big endian)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock Design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpacking the pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash, because the disk is full. Please save soon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash. Please save soon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled Search Results.fwk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled.fwk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values divided by commas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values divided by tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verify Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Next Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Previous Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Violet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has not been saved yet will be lost.  Restore the version all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is on the clipboard cannot be pasted: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is restored is not saved until you save it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is saved here could overwrite what is saved there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is transparent in it has become white.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the first records become</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether it still is cannot be told from this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which sums, means, least and greatest values are counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With &amp;outlines, for a test on plain paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the &amp;Totals row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the &amp;pictures, in a folder beside the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the &amp;pictures, in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words, "a phrase", -without, Column:text, Column&gt;10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worked out from other columns by an expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to rename all exact matching labels in your layout to the new name as well?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written &amp;as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written, but the folder of %1 could not be synced to the disk: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year, month, day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can also begin with a table of another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot duplicate the totals row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot globally relace items in a search window, please use the normal view.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot save your search results to a file named the same as the one that is currently open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You did not enter either an address or a subject.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You did not enter the number of rows to create.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You entered a non numeric value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You entered an invalid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have added the maximum number of columns to the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have not selected any columns to print in the page setup dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a column name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must select a field to search by.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You need to first install a printer on this system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You selected a file other than a GIF or JPEG.  Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has no columns that could be coloured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has no columns to export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has no columns to paste into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has no columns, please add some in the database properties dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has no columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your mail program could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a column has no heading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a control character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a ne&amp;w database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quote is opened and never closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a&amp;nd by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>above %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <comment>and %n more</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program has changes for it that are not in it yet; close it there first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>archive entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>before %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>below %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cell text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elements of a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>equal to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>field %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a "|", which divides the cells of a database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a character that cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a time, which a date has no room for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has more places than an amount of money</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has more values than the %1 rows of the layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>help/about.html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>help/index.html</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>increment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no date in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no number in this form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is too large a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is within days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 bytes, which is too long for such a code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 characters, and at most %2 fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>it has %n digit, and should have %1, or %2 without the check digit</source>
        <comment>it has %n digits, and should have %1, or %2 without the check digit</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>it has a document type, which no spreadsheet has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more rows than the %1 records that a database holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no content.xml</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no header line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no such sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no workbook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many merged cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many sheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has too many tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds a character that is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds characters that such a code cannot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than 256 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no list of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no text in UTF-8 or Windows-1252</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no vCard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it names a text that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it takes too long to work out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>item %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>item rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its JSON is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its JSON is damaged at byte %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its JSON is nested too deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its XML is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its cells are out of order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its column %1 has no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its rows are out of order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its styles are too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its texts are too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: a quote is opened and never closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory for a code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more cells than the header has names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new records of the &amp;open database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no archive is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no column "%1"</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>objects of one kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of all databases, in at &amp;most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of its cards has no end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of its lines is no line of a vCard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of its rows is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>packing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record %1 has a text too long for a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sub-item %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sum of amounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text behind the closing quote of a cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column "%1" has no field on the layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column "%1" is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last digit should be %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program knows no table of this kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same number of each record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>within %1 day</source>
        <comment>within %1 days</comment>
        <translation type="unfinished"><numerusform></numerusform><numerusform></numerusform></translation>
    </message>
    <message>
        <source>year</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
