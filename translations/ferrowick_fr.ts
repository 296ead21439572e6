<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Ferrowick</name>
    <message>
        <source>  Amount of spacing in inches between layouts in multiple layout printing:</source>
        <translation>  Espacement en pouces entre les mises en page lors de l'impression de plusieurs par page :</translation>
    </message>
    <message>
        <source>  Database Types</source>
        <translation>  Types de bases de données</translation>
    </message>
    <message>
        <source>  Please insert your working source disk or device that you have been saving to up until now.  Ferrowick needs this before it can perform the 'save as' operation to the other location you specified.  Once you have inserted the disk or device you can try 'save as' again.</source>
        <translation>  Insérez le disque ou le périphérique sur lequel vous enregistriez jusqu'ici. Ferrowick en a besoin avant de pouvoir enregistrer à l'autre endroit indiqué. Vous pourrez ensuite essayer de nouveau « Enregistrer sous ».</translation>
    </message>
    <message>
        <source>  Searches are word based, not within string based.  So for example, a search for lap would not find lapdog.</source>
        <translation>  La recherche porte sur des mots entiers, pas sur des parties de mots. Chercher « port » ne trouvera donc pas « porte ».</translation>
    </message>
    <message>
        <source>  This dialog allows you to set values of auto increment columns.  You might want to do this for setting initial starting values or to adjust the current count to coincide with deleted records.</source>
        <translation>  Cette boîte de dialogue permet de fixer les valeurs des colonnes à incrément automatique, pour une valeur de départ ou pour ajuster le compte après des suppressions.</translation>
    </message>
    <message>
        <source>  To set entry options, simply double click on a row in the list to the right.  You can only set options for date and number columns.</source>
        <translation>  Pour les options de saisie, double-cliquez sur une ligne de la liste à droite. Seules les colonnes de dates et de nombres en ont.</translation>
    </message>
    <message>
        <source> Available Calculation Columns </source>
        <translation> Colonnes de calcul disponibles </translation>
    </message>
    <message>
        <source> Bold Headers </source>
        <translation> En-têtes en gras </translation>
    </message>
    <message>
        <source> Columns To Print </source>
        <translation> Colonnes à imprimer </translation>
    </message>
    <message>
        <source> Criteria </source>
        <translation> Critères </translation>
    </message>
    <message>
        <source> Custom Paper Size </source>
        <translation> Format de papier personnalisé </translation>
    </message>
    <message>
        <source> Define Expression </source>
        <translation> Définir l'expression </translation>
    </message>
    <message>
        <source> Keypad </source>
        <translation> Pavé numérique </translation>
    </message>
    <message>
        <source> Layout Spacing </source>
        <translation> Espacement des mises en page </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source> Margins </source>
        <translation> Marges </translation>
    </message>
    <message>
        <source> Operators </source>
        <translation> Opérateurs </translation>
    </message>
    <message>
        <source> Orientation </source>
        <translation> Orientation </translation>
    </message>
    <message>
        <source> Paper Size </source>
        <translation> Format du papier </translation>
    </message>
    <message>
        <source> Paper Sizes </source>
        <translation> Formats de papier </translation>
    </message>
    <message>
        <source> Replace Options </source>
        <translation> Options de remplacement </translation>
    </message>
    <message>
        <source> Report Title </source>
        <translation> Titre du rapport </translation>
    </message>
    <message>
        <source> These columns are using auto incrementing serial numbers.</source>
        <translation> Ces colonnes utilisent des numéros d'ordre automatiques.</translation>
    </message>
    <message>
        <source> Type </source>
        <translation> Type </translation>
    </message>
    <message>
        <source>"%1" has a value for each item row</source>
        <translation>« %1 » a une valeur pour chaque ligne d'article</translation>
    </message>
    <message>
        <source>"%1" has a value for each item row, which are typed on the layout page</source>
        <translation>« %1 » a une valeur pour chaque ligne d'article ; elles se saisissent sur la page de mise en page</translation>
    </message>
    <message>
        <source>"%1" holds pictures, which are chosen on the layout page</source>
        <translation>« %1 » contient des images, qui se choisissent sur la page de mise en page</translation>
    </message>
    <message>
        <source>"%1" is calculated and takes no value</source>
        <translation>« %1 » est calculée et ne prend pas de valeur</translation>
    </message>
    <message>
        <source>"%1" is neither a column nor a number (character %2)</source>
        <translation>« %1 » n'est ni une colonne ni un nombre (caractère %2)</translation>
    </message>
    <message>
        <source>"%1" is no amount</source>
        <translation>« %1 » n'est pas un montant</translation>
    </message>
    <message>
        <source>"%1" is no date</source>
        <translation>« %1 » n'est pas une date</translation>
    </message>
    <message>
        <source>"%1" is no length or number.</source>
        <translation>« %1 » n'est ni une longueur ni un nombre.</translation>
    </message>
    <message>
        <source>"%1" is no number</source>
        <translation>« %1 » n'est pas un nombre</translation>
    </message>
    <message>
        <source>"%1" is no step: type a number above 0.</source>
        <translation>« %1 » n'est pas un pas : tapez un nombre supérieur à 0.</translation>
    </message>
    <message>
        <source>"%1" is out of place (character %2)</source>
        <translation>« %1 » n'est pas à sa place (caractère %2)</translation>
    </message>
    <message>
        <source>"%1" needs a blank on either side (character %2)</source>
        <translation>« %1 » doit être entouré d'espaces (caractère %2)</translation>
    </message>
    <message>
        <source>%1
%2: %3</source>
        <comment>group, figure and its value</comment>
        <translation>%1
%2 : %3</translation>
    </message>
    <message>
        <source>%1
Version %2

A small database of your own, without learning one.
Free software under the MIT licence. It comes with no warranty.</source>
        <translation>%1
Version %2

Une petite base de données à vous, sans apprentissage.
Logiciel libre sous licence MIT, fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 (%2 of %3 characters)</source>
        <translation>%1 (%2 sur %3 caractères)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (suite)</translation>
    </message>
    <message>
        <source>%1 (prints on Letter)</source>
        <translation>%1 (s'imprime sur Letter)</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <source>%1 (recovered).fwk</source>
        <translation>%1 (récupérée).fwk</translation>
    </message>
    <message>
        <source>%1 (steps of %2)</source>
        <translation>%1 (pas de %2)</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 across, %2 down</source>
        <translation>%1 en largeur, %2 en hauteur</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>%1 and %n more</comment>
        <translation><numerusform>%1 et %n autre</numerusform><numerusform>%1 et %n autres</numerusform></translation>
    </message>
    <message>
        <source>%1 at place %2 has no bars, but a QR code takes it</source>
        <translation>%1 à la position %2 n'a pas de barres, mais un code QR l'accepte</translation>
    </message>
    <message>
        <source>%1 at place %2 is no digit</source>
        <translation>%1 à la position %2 n'est pas un chiffre</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 par %2</translation>
    </message>
    <message>
        <source>%1 by %2 and %3</source>
        <translation>%1 par %2 et %3</translation>
    </message>
    <message>
        <source>%1 bytes.</source>
        <translation>%1 octets.</translation>
    </message>
    <message>
        <source>%1 cannot be locked: %2 is in the way.</source>
        <translation>%1 ne peut pas être verrouillé : %2 l'empêche.</translation>
    </message>
    <message>
        <source>%1 cannot be read like this: %2.</source>
        <translation>%1 ne peut pas être lu ainsi : %2.</translation>
    </message>
    <message>
        <source>%1 could not be opened:
%2</source>
        <translation>%1 n'a pas pu être ouvert :
%2</translation>
    </message>
    <message>
        <source>%1 could not be written.
%2</source>
        <translation>%1 n'a pas pu être écrit.
%2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 n'a pas pu être écrit : %2</translation>
    </message>
    <message>
        <source>%1 ended too early</source>
        <translation>%1 se termine trop tôt</translation>
    </message>
    <message>
        <source>%1 goes into</source>
        <translation>Destination de %1</translation>
    </message>
    <message>
        <source>%1 has a wrong size</source>
        <translation>%1 a une taille erronée</translation>
    </message>
    <message>
        <source>%1 has met an error and has to end.

%2</source>
        <translation>%1 a rencontré une erreur et doit se terminer.

%2</translation>
    </message>
    <message>
        <source>%1 is a program or a script. Links do not start programs.</source>
        <translation>%1 est un programme ou un script. Les liens ne lancent pas de programmes.</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation>%1 n'est pas une date.</translation>
    </message>
    <message>
        <source>%1 is no longer there. It may have been renamed or deleted.</source>
        <translation>%1 n'existe plus. Il a peut-être été renommé ou supprimé.</translation>
    </message>
    <message>
        <source>%1 is no number of days, from 0 to 3650.</source>
        <translation>%1 n'est pas un nombre de jours de 0 à 3650.</translation>
    </message>
    <message>
        <source>%1 is no number.</source>
        <translation>%1 n'est pas un nombre.</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n'est pas un fichier</translation>
    </message>
    <message>
        <source>%1 is open elsewhere, by %2.</source>
        <translation>%1 est ouvert ailleurs, par %2.</translation>
    </message>
    <message>
        <source>%1 is open elsewhere.</source>
        <translation>%1 est ouvert ailleurs.</translation>
    </message>
    <message>
        <source>%1 is open to read only</source>
        <translation>%1 est ouvert en lecture seule</translation>
    </message>
    <message>
        <source>%1 is packed in an unknown way</source>
        <translation>%1 est compressé d'une manière inconnue</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 est en lecture seule</translation>
    </message>
    <message>
        <source>%1 is the open database, and cannot be printed into.</source>
        <translation>%1 est la base ouverte ; on ne peut pas y imprimer.</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 est trop grand</translation>
    </message>
    <message>
        <source>%1 labels: too many to print at a time, which are %2 at most.</source>
        <translation>%1 étiquettes : trop pour une seule impression (%2 au plus).</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>%1 manquant</translation>
    </message>
    <message numerus="yes">
        <source>%1 occurs %n time</source>
        <comment>%1 occurs %n times</comment>
        <translation><numerusform>%1 apparaît %n fois</numerusform><numerusform>%1 apparaît %n fois</numerusform></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 of %2.fwk</source>
        <translation>%1 du %2.fwk</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2 : %3</translation>
    </message>
    <message>
        <source>%1 on %2 (process %3) since %4</source>
        <translation>%1 sur %2 (processus %3) depuis %4</translation>
    </message>
    <message>
        <source>%1 on %2.</source>
        <translation>%1 sur %2.</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>%1 to %2 missing</source>
        <translation>%1 à %2 manquants</translation>
    </message>
    <message>
        <source>%1 to below %2</source>
        <translation>de %1 à moins de %2</translation>
    </message>
    <message>
        <source>%1 twice</source>
        <translation>%1 en double</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else since it was opened here.</source>
        <translation>%1 a été modifié par quelqu'un d'autre depuis son ouverture ici.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. It is not what your unsaved work is based on.</source>
        <translation>%1 a été modifié par quelqu'un d'autre. Votre travail non enregistré repose sur un autre état.</translation>
    </message>
    <message>
        <source>%1 was changed by somebody else. What is shown here is as it was opened.</source>
        <translation>%1 a été modifié par quelqu'un d'autre. L'affichage correspond à son état à l'ouverture.</translation>
    </message>
    <message>
        <source>%1 was made, but there is no program that opens it.</source>
        <translation>%1 a été créé, mais aucun programme ne peut l'ouvrir.</translation>
    </message>
    <message>
        <source>%1 was made.</source>
        <translation>%1 a été créé.</translation>
    </message>
    <message>
        <source>%1's value has been set to %2</source>
        <translation>La valeur de %1 est maintenant %2</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 sur %3</translation>
    </message>
    <message>
        <source>%1, first label %2</source>
        <translation>%1, première étiquette %2</translation>
    </message>
    <message>
        <source>%1. The first %2 are shown.</source>
        <translation>%1. Les %2 premières sont affichées.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n record.</source>
        <comment>%1: %n records.</comment>
        <translation><numerusform>%1 : %n fiche.</numerusform><numerusform>%1 : %n fiches.</numerusform></translation>
    </message>
    <message>
        <source>%1: bad comment</source>
        <translation>%1 : commentaire erroné</translation>
    </message>
    <message>
        <source>%1: records %2</source>
        <translation>%1 : fiches %2</translation>
    </message>
    <message>
        <source>%1: there is no text</source>
        <translation>%1 : il n'y a pas de texte</translation>
    </message>
    <message>
        <source>%1: this sheet cannot be imported: %2.</source>
        <translation>%1 : cette feuille ne peut pas être importée : %2.</translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 sur %L2</translation>
    </message>
    <message numerus="yes">
        <source>%n cell cannot be stored:</source>
        <comment>%n cells cannot be stored:</comment>
        <translation><numerusform>%n cellule ne peut pas être stockée :</numerusform><numerusform>%n cellules ne peuvent pas être stockées :</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cell is refused.</source>
        <comment>%n cells are refused.</comment>
        <translation><numerusform>%n cellule est refusée.</numerusform><numerusform>%n cellules sont refusées.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n cells are refused, these among them.</source>
        <comment>%n cells are refused, these among them.</comment>
        <translation><numerusform>%n cellule est refusée, dont celle-ci.</numerusform><numerusform>%n cellules sont refusées, dont celles-ci.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n gap</source>
        <comment>%n gaps</comment>
        <translation><numerusform>%n lacune</numerusform><numerusform>%n lacunes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n group</source>
        <comment>%n groups</comment>
        <translation><numerusform>%n groupe</numerusform><numerusform>%n groupes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n label</source>
        <comment>%n labels</comment>
        <translation><numerusform>%n étiquette</numerusform><numerusform>%n étiquettes</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new invoice</source>
        <comment>%n new invoices</comment>
        <translation><numerusform>%n nouvelle facture</numerusform><numerusform>%n nouvelles factures</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n new record</source>
        <comment>%n new records</comment>
        <translation><numerusform>%n nouvelle fiche</numerusform><numerusform>%n nouvelles fiches</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n of the records cannot be calculated: %1</source>
        <comment>%n of the records cannot be calculated. The first one: %1</comment>
        <translation><numerusform>%n des fiches ne peut pas être calculée : %1</numerusform><numerusform>%n des fiches ne peuvent pas être calculées. La première : %1</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record</source>
        <comment>%n records</comment>
        <translation><numerusform>%n fiche</numerusform><numerusform>%n fiches</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record asks for more than %1, which is the most.</source>
        <comment>%n records ask for more than %1, which is the most.</comment>
        <translation><numerusform>%n fiche demande plus que le maximum de %1.</numerusform><numerusform>%n fiches demandent plus que le maximum de %1.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record behind the first of each</source>
        <comment>%n records behind the first of each</comment>
        <translation><numerusform>%n fiche après la première de chaque groupe</numerusform><numerusform>%n fiches après la première de chaque groupe</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no code in %1 now.  %2: %3.</source>
        <comment>%n records have no code in %1 now.  %2: %3.</comment>
        <translation><numerusform>%n fiche n'a pour l'instant pas de code dans %1. %2 : %3.</numerusform><numerusform>%n fiches n'ont pour l'instant pas de code dans %1. %2 : %3.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n record has no number above 0 there: no label.</source>
        <comment>%n records have no number above 0 there: no label.</comment>
        <translation><numerusform>%n fiche n'y a pas de nombre supérieur à 0 : pas d'étiquette.</numerusform><numerusform>%n fiches n'y ont pas de nombre supérieur à 0 : pas d'étiquette.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n records.</source>
        <comment>%n records.</comment>
        <translation><numerusform>%n fiche.</numerusform><numerusform>%n fiches.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation><numerusform>%n répétition</numerusform><numerusform>%n répétitions</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n sheet</source>
        <comment>%n sheets</comment>
        <translation><numerusform>%n feuille</numerusform><numerusform>%n feuilles</numerusform></translation>
    </message>
    <message>
        <source>&amp;About Ferrowick</source>
        <translation>&amp;À propos de Ferrowick</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>A&amp;ccepter</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Add Line</source>
        <translation>Ajouter une &amp;ligne</translation>
    </message>
    <message>
        <source>&amp;Addresses</source>
        <translation>&amp;Adresses</translation>
    </message>
    <message>
        <source>&amp;Adjust Serial Number Increment</source>
        <translation>Ré&amp;gler l'incrément des numéros d'ordre</translation>
    </message>
    <message>
        <source>&amp;Again</source>
        <translation>E&amp;ncore</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>&amp;All Records</source>
        <translation>Toutes les fic&amp;hes</translation>
    </message>
    <message>
        <source>&amp;All records</source>
        <translation>Toutes les fic&amp;hes</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>App&amp;liquer</translation>
    </message>
    <message>
        <source>&amp;As The Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Auto-Load Previously Opened File</source>
        <translation>Ouvrir &amp;automatiquement le dernier fichier</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Bars:</source>
        <translation>&amp;Barres :</translation>
    </message>
    <message>
        <source>&amp;Beside The Icons</source>
        <translation>À &amp;côté des icônes</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Books</source>
        <translation>&amp;Livres</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Change Name</source>
        <translation>&amp;Changer le nom</translation>
    </message>
    <message>
        <source>&amp;Clean Database</source>
        <translation>Netto&amp;yer la base</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Colour...</source>
        <translation>&amp;Couleur...</translation>
    </message>
    <message>
        <source>&amp;Colours...</source>
        <translation>&amp;Couleurs...</translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation>&amp;Colonne :</translation>
    </message>
    <message>
        <source>&amp;Columns to compare:</source>
        <translation>&amp;Colonnes à comparer :</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes :</translation>
    </message>
    <message>
        <source>&amp;Confirm Delete</source>
        <translation>&amp;Confirmer la suppression</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>C&amp;réer</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;Date of the print</source>
        <translation>&amp;Date de l'impression</translation>
    </message>
    <message>
        <source>&amp;Dates And Numbers Of My Country</source>
        <translation>&amp;Dates et nombres de mon pays</translation>
    </message>
    <message>
        <source>&amp;Define Columns...</source>
        <translation>&amp;Définir les colonnes...</translation>
    </message>
    <message>
        <source>&amp;Delete All But First</source>
        <translation>Supprimer to&amp;utes sauf la première</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>&amp;Disclaimer</source>
        <translation>&amp;Avertissement</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Ne pas enregistrer</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Terminé</translation>
    </message>
    <message>
        <source>&amp;Duplicate Record</source>
        <translation>Dupliquer la &amp;fiche</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>Co&amp;dage :</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>&amp;Expression Editor</source>
        <translation>Éditeur d'&amp;expressions</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Find And Replace</source>
        <translation>Rec&amp;hercher et remplacer</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>&amp;Findings:</source>
        <translation>Constat&amp;s :</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Police :</translation>
    </message>
    <message>
        <source>&amp;Freeze First Column</source>
        <translation>&amp;Figer la première colonne</translation>
    </message>
    <message>
        <source>&amp;Gap down:</source>
        <translation>Intervalle &amp;vertical :</translation>
    </message>
    <message>
        <source>&amp;Go To Layout Upon Double-Click</source>
        <translation>Aller à la mise en page par &amp;double-clic</translation>
    </message>
    <message>
        <source>&amp;Goes into:</source>
        <translation>Destin&amp;ation :</translation>
    </message>
    <message>
        <source>&amp;Group by</source>
        <translation>&amp;Grouper par</translation>
    </message>
    <message>
        <source>&amp;Group by:</source>
        <translation>&amp;Grouper par :</translation>
    </message>
    <message>
        <source>&amp;Groups of equal records:</source>
        <translation>&amp;Groupes de fiches égales :</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Hauteur :</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Highlight Calculation Boxes</source>
        <translation>&amp;Surligner les champs de calcul</translation>
    </message>
    <message>
        <source>&amp;How many:</source>
        <translation>&amp;Combien :</translation>
    </message>
    <message>
        <source>&amp;Ignore capitals, and blanks at the ends</source>
        <translation>&amp;Ignorer la casse et les espaces aux extrémités</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;Import From Clipbard</source>
        <translation>&amp;Importer du presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>Im&amp;porter...</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>&amp;Insert Column</source>
        <translation>&amp;Insérer une colonne</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>Fac&amp;tures</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Items</source>
        <translation>&amp;Articles</translation>
    </message>
    <message>
        <source>&amp;Keep Their Columns as Text</source>
        <translation>&amp;Garder leurs colonnes comme texte</translation>
    </message>
    <message>
        <source>&amp;Keep This Filter...</source>
        <translation>&amp;Conserver ce filtre...</translation>
    </message>
    <message>
        <source>&amp;Keep versions</source>
        <translation>&amp;Conserver des versions</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Type de fichier :</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ype :</translation>
    </message>
    <message>
        <source>&amp;Labels across:</source>
        <translation>Étiquettes en &amp;largeur :</translation>
    </message>
    <message>
        <source>&amp;Leave out empty lines and gaps</source>
        <translation>&amp;Omettre les lignes vides et les intervalles</translation>
    </message>
    <message>
        <source>&amp;Leave refused cells empty</source>
        <translation>&amp;Laisser vides les cellules refusées</translation>
    </message>
    <message>
        <source>&amp;Leave these cells empty</source>
        <translation>&amp;Laisser ces cellules vides</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Lines of the label, with columns in braces:</source>
        <translation>&amp;Lignes de l'étiquette, avec les colonnes entre accolades :</translation>
    </message>
    <message>
        <source>&amp;Lock Or Unlock Database Design</source>
        <translation>&amp;Verrouiller ou déverrouiller la base</translation>
    </message>
    <message>
        <source>&amp;Look at a Copy...</source>
        <translation>&amp;Regarder une copie...</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>C&amp;réer</translation>
    </message>
    <message>
        <source>&amp;Make Code...</source>
        <translation>Créer &amp;un code...</translation>
    </message>
    <message>
        <source>&amp;Members</source>
        <translation>&amp;Membres</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Plus...</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Narrower</source>
        <translation>Plus étr&amp;oite</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;New Record</source>
        <translation>&amp;Nouvelle fiche</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>Taille &amp;normale</translation>
    </message>
    <message>
        <source>&amp;Number of entry rows to create:</source>
        <translation>&amp;Nombre de lignes de saisie à créer :</translation>
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
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Open PDFs After Printing</source>
        <translation>&amp;Ouvrir les PDF après l'impression</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Other size</source>
        <translation>&amp;Autre taille</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>É&amp;craser</translation>
    </message>
    <message>
        <source>&amp;Overwrite It Anyway</source>
        <translation>É&amp;craser quand même</translation>
    </message>
    <message>
        <source>&amp;Overwrite at the Next Save</source>
        <translation>É&amp;craser au prochain enregistrement</translation>
    </message>
    <message>
        <source>&amp;Page numbers, as 3 of 8</source>
        <translation>&amp;Numéros de page, comme 3 sur 8</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Paste...</source>
        <translation>Co&amp;ller...</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>&amp;Image :</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>&amp;Prompt For Save On Exit</source>
        <translation>&amp;Proposer d'enregistrer en quittant</translation>
    </message>
    <message>
        <source>&amp;Quotes:</source>
        <translation>G&amp;uillemets :</translation>
    </message>
    <message>
        <source>&amp;Read the Other State</source>
        <translation>&amp;Lire l'autre état</translation>
    </message>
    <message>
        <source>&amp;Recipes</source>
        <translation>&amp;Recettes</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Replace across all columns in all rows</source>
        <translation>&amp;Remplacer dans toutes les colonnes de toutes les lignes</translation>
    </message>
    <message>
        <source>&amp;Replace in all rows for selected columns.</source>
        <translation>Remplacer dans toutes les &amp;lignes des colonnes choisies.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save as Another File...</source>
        <translation>&amp;Enregistrer dans un autre fichier...</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Search results only</source>
        <translation>Seulement les &amp;résultats</translation>
    </message>
    <message>
        <source>&amp;Select Repeats</source>
        <translation>Sélectionner les répé&amp;titions</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Définir</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>&amp;Show All Records</source>
        <translation>&amp;Afficher toutes les fiches</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Taille :</translation>
    </message>
    <message>
        <source>&amp;Start at label:</source>
        <translation>&amp;Commencer à l'étiquette :</translation>
    </message>
    <message>
        <source>&amp;Text size:</source>
        <translation>&amp;Taille du texte :</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte :</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Ou&amp;tils</translation>
    </message>
    <message>
        <source>&amp;Top margin:</source>
        <translation>Marge du &amp;haut :</translation>
    </message>
    <message>
        <source>&amp;Totals carried and brought forward from sheet to sheet</source>
        <translation>&amp;Totaux reportés de feuille en feuille</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type :</translation>
    </message>
    <message>
        <source>&amp;Under The Icons</source>
        <translation>&amp;Sous les icônes</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Souligné</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Versions...</source>
        <translation>&amp;Versions...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Visit FWK Homepage</source>
        <translation>&amp;Visiter le site de FWK</translation>
    </message>
    <message>
        <source>&amp;Widen</source>
        <translation>É&amp;largir</translation>
    </message>
    <message>
        <source>&amp;Wider</source>
        <translation>Plus &amp;large</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur :</translation>
    </message>
    <message>
        <source>&amp;Worked out from the columns of each record</source>
        <translation>Calculé à &amp;partir des colonnes de chaque fiche</translation>
    </message>
    <message>
        <source>&amp;Write It Again</source>
        <translation>&amp;L'écrire de nouveau</translation>
    </message>
    <message>
        <source>&amp;by</source>
        <translation>&amp;par</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>(leave out)</source>
        <translation>(ignorer)</translation>
    </message>
    <message>
        <source>(no colour)</source>
        <translation>(sans couleur)</translation>
    </message>
    <message>
        <source>(no filter is kept yet)</source>
        <translation>(aucun filtre conservé)</translation>
    </message>
    <message>
        <source>(none yet)</source>
        <translation>(aucun pour l'instant)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>1 of 3: Which labels?</source>
        <translation>1 sur 3 : quelles étiquettes ?</translation>
    </message>
    <message>
        <source>10 x 11 in</source>
        <translation>10 x 11 po</translation>
    </message>
    <message>
        <source>10 x 14 in</source>
        <translation>10 x 14 po</translation>
    </message>
    <message>
        <source>11 x 17 in</source>
        <translation>11 x 17 po</translation>
    </message>
    <message>
        <source>15 x 11 in</source>
        <translation>15 x 11 po</translation>
    </message>
    <message>
        <source>2 of 3: What stands on a label?</source>
        <translation>2 sur 3 : que contient une étiquette ?</translation>
    </message>
    <message>
        <source>3 of 3: How are they printed?</source>
        <translation>3 sur 3 : comment les imprimer ?</translation>
    </message>
    <message>
        <source>9 x 11 in</source>
        <translation>9 x 11 po</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Before you begin&lt;/h3&gt;&lt;p&gt;Ferrowick is free software. It is provided &lt;b&gt;as it is, without a warranty of any kind&lt;/b&gt;: nobody promises that it is free of errors or fit for what you want to do with it, and nobody answers for losses that come of its use.&lt;/p&gt;&lt;p&gt;What that means for your work:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Keep copies of your databases, on another disk if you can. A database is one file whose name ends in &lt;i&gt;.fwk&lt;/i&gt;, so a copy is quickly made.&lt;/li&gt;&lt;li&gt;Changes are on the disk only when you have saved them.&lt;/li&gt;&lt;li&gt;Check sums and calculations that money or other people depend on.&lt;/li&gt;&lt;li&gt;The design lock keeps a design from being changed by mistake. It does not encrypt anything: whoever has the file can read what is in it.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;The licence that comes with the program has the full terms.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Avant de commencer&lt;/h3&gt;&lt;p&gt;Ferrowick est un logiciel libre. Il est fourni &lt;b&gt;tel quel, sans garantie d'aucune sorte&lt;/b&gt; : personne ne promet qu'il est exempt d'erreurs ou convient à ce que vous voulez en faire, et personne ne répond des pertes dues à son usage.&lt;/p&gt;&lt;p&gt;Ce que cela signifie pour votre travail :&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Gardez des copies de vos bases de données, si possible sur un autre disque. Une base est un seul fichier dont le nom se termine par &lt;i&gt;.fwk&lt;/i&gt; ; une copie est donc vite faite.&lt;/li&gt;&lt;li&gt;Les modifications ne sont sur le disque qu'une fois enregistrées.&lt;/li&gt;&lt;li&gt;Vérifiez les sommes et les calculs dont dépendent de l'argent ou d'autres personnes.&lt;/li&gt;&lt;li&gt;Le verrouillage évite qu'une mise en page soit modifiée par erreur. Il ne chiffre rien : quiconque a le fichier peut en lire le contenu.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;La licence fournie avec le programme contient les conditions complètes.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A click sorts the groups, and another one the other way</source>
        <translation>Un clic trie les groupes, un autre dans l'autre sens</translation>
    </message>
    <message>
        <source>A column has no name.</source>
        <translation>Une colonne n'a pas de nom.</translation>
    </message>
    <message>
        <source>A column is written in braces: {Name}.</source>
        <translation>Une colonne s'écrit entre accolades : {Nom}.</translation>
    </message>
    <message>
        <source>A column you intend to delete is either a member of a calculation column expression, or is a calculation column itself.  You will need to redefine expressions for all affected calculation columns that referenced this one. Are you sure you want to do this?</source>
        <translation>Une colonne que vous voulez supprimer fait partie de l'expression d'une colonne de calcul ou en est une elle-même. Vous devrez redéfinir les expressions de toutes les colonnes de calcul qui y faisaient référence. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>A copy of your database with all changes is kept in
%1</source>
        <translation>Une copie de votre base avec toutes les modifications est conservée dans
%1</translation>
    </message>
    <message>
        <source>A database has no room for so many records.</source>
        <translation>Une base n'a pas de place pour autant de fiches.</translation>
    </message>
    <message>
        <source>A date is set to a date or to a column of dates, and cannot be worked out</source>
        <translation>Une date reçoit une date ou une colonne de dates et ne peut pas être calculée</translation>
    </message>
    <message>
        <source>A day: 12/31/2024</source>
        <translation>Un jour : 12/31/2024</translation>
    </message>
    <message>
        <source>A file with that name exists. Overwrite it?</source>
        <translation>Un fichier de ce nom existe. Le remplacer ?</translation>
    </message>
    <message>
        <source>A filter is kept for a file. Please save the database first.</source>
        <translation>Un filtre est conservé pour un fichier. Enregistrez d'abord la base.</translation>
    </message>
    <message>
        <source>A label has 50 lines at most.</source>
        <translation>Une étiquette a 50 lignes au plus.</translation>
    </message>
    <message>
        <source>A line of the label is too long.</source>
        <translation>Une ligne de l'étiquette est trop longue.</translation>
    </message>
    <message>
        <source>A number, or a serial number that counts by itself</source>
        <translation>Un nombre, ou un numéro d'ordre qui avance tout seul</translation>
    </message>
    <message>
        <source>A photo or drawing: a .jpg or .gif file</source>
        <translation>Une photo ou un dessin : un fichier .jpg ou .gif</translation>
    </message>
    <message>
        <source>A picture could not be put back: %1</source>
        <translation>Une image n'a pas pu être remise en place : %1</translation>
    </message>
    <message>
        <source>A summary has no place in address cards.</source>
        <translation>Une synthèse n'a pas sa place dans des cartes d'adresse.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Il manque une valeur.</translation>
    </message>
    <message>
        <source>A&amp;ll</source>
        <translation>Toute&amp;s</translation>
    </message>
    <message>
        <source>A&amp;vailable columns:</source>
        <translation>Colonnes &amp;disponibles :</translation>
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
        <translation>A4 petit</translation>
    </message>
    <message>
        <source>A5 Extra</source>
        <translation>A5 Extra</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz éèàç 123</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add Box To Layout.</source>
        <translation>Ajouter un cadre à la mise en page.</translation>
    </message>
    <message>
        <source>Add Column</source>
        <translation>Ajouter une colonne</translation>
    </message>
    <message>
        <source>Add Entry Box</source>
        <translation>Ajouter un champ de saisie</translation>
    </message>
    <message>
        <source>Add Entry Box, in the bar above, places a box for a column; Add Label a text.</source>
        <translation>« Ajouter un champ de saisie », dans la barre ci-dessus, place un champ pour une colonne ; « Ajouter un libellé », un texte.</translation>
    </message>
    <message>
        <source>Add Horizontal Line To Layout.</source>
        <translation>Ajouter une ligne horizontale à la mise en page.</translation>
    </message>
    <message>
        <source>Add Label</source>
        <translation>Ajouter un libellé</translation>
    </message>
    <message numerus="yes">
        <source>Add Object</source>
        <comment>Add %n Objects</comment>
        <translation><numerusform>Ajouter un objet</numerusform><numerusform>Ajouter %n objets</numerusform></translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Add Record</source>
        <translation>Ajouter une fiche</translation>
    </message>
    <message numerus="yes">
        <source>Add Record</source>
        <comment>Add %n Records</comment>
        <translation><numerusform>Ajouter une fiche</numerusform><numerusform>Ajouter %n fiches</numerusform></translation>
    </message>
    <message>
        <source>Add Vertical Line To Layout.</source>
        <translation>Ajouter une ligne verticale à la mise en page.</translation>
    </message>
    <message>
        <source>Add a static clip art image to layout.</source>
        <translation>Ajouter une image décorative fixe à la mise en page.</translation>
    </message>
    <message>
        <source>Add column to list</source>
        <translation>Ajouter la colonne à la liste</translation>
    </message>
    <message>
        <source>Adding the invoices</source>
        <translation>Ajout des factures</translation>
    </message>
    <message>
        <source>Adding the records</source>
        <translation>Ajout des fiches</translation>
    </message>
    <message>
        <source>Address book</source>
        <translation>Carnet d'adresses</translation>
    </message>
    <message>
        <source>Address cards</source>
        <translation>Cartes d'adresse</translation>
    </message>
    <message>
        <source>Address labels, many to a page</source>
        <translation>Étiquettes d'adresse, plusieurs par page</translation>
    </message>
    <message>
        <source>Adjust Serial Number</source>
        <translation>Régler le numéro d'ordre</translation>
    </message>
    <message>
        <source>Adjust Serial Number Values</source>
        <translation>Régler les valeurs des numéros d'ordre</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation>Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>All columns</source>
        <translation>Toutes les colonnes</translation>
    </message>
    <message>
        <source>An amount of money: $1,234.50</source>
        <translation>Un montant : $1,234.50</translation>
    </message>
    <message>
        <source>An error has occured during one of your calculations.  It appears that an expression is incorrectly defined.  Please check your syntax.</source>
        <translation>Une erreur est survenue lors d'un de vos calculs. Une expression semble mal définie. Vérifiez sa syntaxe.</translation>
    </message>
    <message>
        <source>An invoice database has no Picture columns.</source>
        <translation>Une base de factures n'a pas de colonnes d'images.</translation>
    </message>
    <message>
        <source>Any words, also numbers that begin with 0</source>
        <translation>N'importe quels mots, même des nombres commençant par 0</translation>
    </message>
    <message>
        <source>Application-defined or object-defined error</source>
        <translation>Erreur définie par l'application ou par l'objet</translation>
    </message>
    <message>
        <source>Are you absolutely certain you want to do this?  ALL data in the column %1 will be lost!</source>
        <translation>Voulez-vous vraiment le faire ? TOUTES les données de la colonne %1 seront perdues !</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Êtes-vous sûr ?</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Tel quel</translation>
    </message>
    <message>
        <source>As large as fits</source>
        <translation>Aussi grand que possible</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>Aussi large que la fenêtre</translation>
    </message>
    <message>
        <source>At %1, %2   Size %3 x %4 in</source>
        <translation>À %1, %2   Taille %3 x %4 po</translation>
    </message>
    <message>
        <source>Auto Name Label</source>
        <translation>Libellé automatique</translation>
    </message>
    <message>
        <source>Auto enter today's date when entering data?</source>
        <translation>Saisir automatiquement la date du jour ?</translation>
    </message>
    <message>
        <source>Auto increment value when entering data?</source>
        <translation>Incrémenter automatiquement la valeur à la saisie ?</translation>
    </message>
    <message>
        <source>Auto-Date</source>
        <translation>Date automatique</translation>
    </message>
    <message>
        <source>Auto-Serial</source>
        <translation>Numéro automatique</translation>
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
        <translation>Retour</translation>
    </message>
    <message>
        <source>Bad file name</source>
        <translation>Nom de fichier incorrect</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre verticale</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Books with their covers</source>
        <translation>Des livres avec leurs couvertures</translation>
    </message>
    <message>
        <source>Border Width Setting</source>
        <translation>Épaisseur de la bordure</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Bas :</translation>
    </message>
    <message>
        <source>Bring To Front</source>
        <translation>Mettre au premier plan</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Par %1</translation>
    </message>
    <message>
        <source>By %1 and %2</source>
        <translation>Par %1 et %2</translation>
    </message>
    <message>
        <source>C&amp;entred from top to bottom</source>
        <translation>Centré de &amp;haut en bas</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>C&amp;lone Database To..</source>
        <translation>C&amp;loner la base vers..</translation>
    </message>
    <message>
        <source>C&amp;olours...</source>
        <translation>&amp;Couleurs...</translation>
    </message>
    <message>
        <source>C&amp;olumns:</source>
        <translation>C&amp;olonnes :</translation>
    </message>
    <message>
        <source>Calculated columns as &amp;formulas</source>
        <translation>Colonnes calculées en &amp;formules</translation>
    </message>
    <message>
        <source>Calculated values and totals</source>
        <translation>Valeurs calculées et totaux</translation>
    </message>
    <message>
        <source>Calculation</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Calculation Status:</source>
        <translation>État du calcul :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel was selected</source>
        <translation>L'annulation a été choisie</translation>
    </message>
    <message>
        <source>Cannot be stored because it</source>
        <translation>Ne peut être stockée, car elle</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>À reporter</translation>
    </message>
    <message>
        <source>Cells of the colu&amp;mn</source>
        <translation>Cellules de la colo&amp;nne</translation>
    </message>
    <message>
        <source>Cells that cannot be stored</source>
        <translation>Cellules qui ne peuvent pas être stockées</translation>
    </message>
    <message>
        <source>Change Column</source>
        <translation>Modifier la colonne</translation>
    </message>
    <message>
        <source>Change Entry Options</source>
        <translation>Modifier les options de saisie</translation>
    </message>
    <message>
        <source>Change Expression</source>
        <translation>Modifier l'expression</translation>
    </message>
    <message>
        <source>Change Object</source>
        <translation>Modifier l'objet</translation>
    </message>
    <message numerus="yes">
        <source>Change Record</source>
        <comment>Change %n Records</comment>
        <translation><numerusform>Modifier une fiche</numerusform><numerusform>Modifier %n fiches</numerusform></translation>
    </message>
    <message>
        <source>Check Previous Entries</source>
        <translation>Saisies précédentes</translation>
    </message>
    <message>
        <source>Check Serial &amp;Numbers...</source>
        <translation>Vérifier les &amp;numéros d'ordre...</translation>
    </message>
    <message>
        <source>Check Serial Numbers</source>
        <translation>Vérifier les numéros d'ordre</translation>
    </message>
    <message>
        <source>Choose Columns To Total</source>
        <translation>Choisir les colonnes à totaliser</translation>
    </message>
    <message>
        <source>Choose Report Columns</source>
        <translation>Choisir les colonnes du rapport</translation>
    </message>
    <message>
        <source>Choose at least one column for the label.</source>
        <translation>Choisissez au moins une colonne pour l'étiquette.</translation>
    </message>
    <message>
        <source>Choose in the page setup what is printed.</source>
        <translation>Choisissez dans la configuration de la page ce qui s'imprime.</translation>
    </message>
    <message>
        <source>Choose the columns to compare.</source>
        <translation>Choisissez les colonnes à comparer.</translation>
    </message>
    <message>
        <source>Choose your database format.</source>
        <translation>Choisissez le format de votre base.</translation>
    </message>
    <message>
        <source>Clean Database</source>
        <translation>Nettoyer la base</translation>
    </message>
    <message>
        <source>Clear &amp;Guides</source>
        <translation>Effacer les &amp;repères</translation>
    </message>
    <message>
        <source>Click to set a guide line; double-click its marker to remove it</source>
        <translation>Cliquez pour poser un repère ; double-cliquez sur sa marque pour l'enlever</translation>
    </message>
    <message>
        <source>Clone current file to...</source>
        <translation>Cloner le fichier actuel vers...</translation>
    </message>
    <message>
        <source>Clone1.fwk</source>
        <translation>Clone1.fwk</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Fermer le filtre</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;pier</translation>
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
        <translation>Code de %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>Column Headin&amp;gs</source>
        <translation>En-&amp;têtes des colonnes</translation>
    </message>
    <message>
        <source>Column Name</source>
        <translation>Nom de la colonne</translation>
    </message>
    <message>
        <source>Column Name:</source>
        <translation>Nom de la colonne :</translation>
    </message>
    <message>
        <source>Column Stat&amp;istics...</source>
        <translation>&amp;Statistiques de la colonne...</translation>
    </message>
    <message>
        <source>Column Statistics</source>
        <translation>Statistiques de la colonne</translation>
    </message>
    <message>
        <source>Column name must not be a number.</source>
        <translation>Le nom d'une colonne ne doit pas être un nombre.</translation>
    </message>
    <message>
        <source>Column to find and replace in:</source>
        <translation>Colonne où rechercher et remplacer :</translation>
    </message>
    <message>
        <source>Column to search, %1</source>
        <translation>Colonne où rechercher, %1</translation>
    </message>
    <message>
        <source>Column with that name already exists!</source>
        <translation>Une colonne de ce nom existe déjà !</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Columns To Print</source>
        <translation>Colonnes à imprimer</translation>
    </message>
    <message>
        <source>Columns To Total</source>
        <translation>Colonnes à totaliser</translation>
    </message>
    <message>
        <source>Columns are what a record is made of, as a name, a date or a price.</source>
        <translation>Une fiche se compose de colonnes, comme un nom, une date ou un prix.</translation>
    </message>
    <message>
        <source>Columns that words are looked for in</source>
        <translation>Colonnes où les mots sont cherchés</translation>
    </message>
    <message>
        <source>Columns to export</source>
        <translation>Colonnes à exporter</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Confirm Deletion</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>Copy With &amp;Headings</source>
        <translation>Copier avec les &amp;en-têtes</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Create Item Rows</source>
        <translation>Créer des lignes d'article</translation>
    </message>
    <message>
        <source>Create Link From Label.</source>
        <translation>Créer un lien à partir du libellé.</translation>
    </message>
    <message>
        <source>Create New Record</source>
        <translation>Créer une fiche</translation>
    </message>
    <message>
        <source>Create a standard database for simple spreadsheets, inventory, collectibles, recipes, etc</source>
        <translation>Créer une base standard : tableaux simples, inventaire, collections, recettes, etc.</translation>
    </message>
    <message>
        <source>Create an invoice style database.  This means you will design a layout where the calculations take place in the layout itself and you will have multiple values stored in a single row and column cell.</source>
        <translation>Créer une base de factures. Vous concevrez une mise en page où se font les calculs, et une même cellule pourra contenir plusieurs valeurs.</translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation>Critères</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>C&amp;ouper</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Currency &amp;sign:</source>
        <translation>&amp;Symbole monétaire :</translation>
    </message>
    <message>
        <source>Current Columns:</source>
        <translation>Colonnes actuelles :</translation>
    </message>
    <message>
        <source>Current Value:</source>
        <translation>Valeur actuelle :</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Database &amp;Properties</source>
        <translation>&amp;Propriétés de la base</translation>
    </message>
    <message>
        <source>Database (*.fwk)|*.fwk|All Files (*.*)|*.*</source>
        <translation>Base de données (*.fwk)|*.fwk|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Database Locked.</source>
        <translation>Base de données verrouillée.</translation>
    </message>
    <message>
        <source>Database Properties</source>
        <translation>Propriétés de la base</translation>
    </message>
    <message>
        <source>Database Style:</source>
        <translation>Type de base :</translation>
    </message>
    <message>
        <source>Database Style: Invoice</source>
        <translation>Type de base : factures</translation>
    </message>
    <message>
        <source>Database Style: Standard</source>
        <translation>Type de base : standard</translation>
    </message>
    <message>
        <source>Database st&amp;yle:</source>
        <translation>T&amp;ype de base :</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Day, month, year</source>
        <translation>Jour, mois, année</translation>
    </message>
    <message>
        <source>Define Expressions</source>
        <translation>Définir des expressions</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of %1 groups?</source>
        <comment>Delete %n records and keep the first of %1 groups?</comment>
        <translation><numerusform>Supprimer %n fiche et garder la première de %1 groupes ?</numerusform><numerusform>Supprimer %n fiches et garder la première de %1 groupes ?</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>Delete %n record and keep the first of the group?</source>
        <comment>Delete %n records and keep the first of the group?</comment>
        <translation><numerusform>Supprimer %n fiche et garder la première du groupe ?</numerusform><numerusform>Supprimer %n fiches et garder la première du groupe ?</numerusform></translation>
    </message>
    <message>
        <source>Delete Duplicates</source>
        <translation>Supprimer les doublons</translation>
    </message>
    <message numerus="yes">
        <source>Delete Object</source>
        <comment>Delete %n Objects</comment>
        <translation><numerusform>Supprimer un objet</numerusform><numerusform>Supprimer %n objets</numerusform></translation>
    </message>
    <message>
        <source>Delete Record</source>
        <translation>Supprimer la fiche</translation>
    </message>
    <message numerus="yes">
        <source>Delete Record</source>
        <comment>Delete %n Records</comment>
        <translation><numerusform>Supprimer une fiche</numerusform><numerusform>Supprimer %n fiches</numerusform></translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>Delete Selected Object</source>
        <translation>Supprimer l'objet sélectionné</translation>
    </message>
    <message>
        <source>Delete Selected Record.</source>
        <translation>Supprimer la fiche sélectionnée.</translation>
    </message>
    <message>
        <source>Delete selected column from list</source>
        <translation>Supprimer de la liste la colonne sélectionnée</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Création</translation>
    </message>
    <message>
        <source>Design The &amp;Page</source>
        <translation>Concevoir la &amp;page</translation>
    </message>
    <message>
        <source>Design it once: it then shows each record, takes what you type, and prints as you have placed it.</source>
        <translation>Concevez-la une fois : elle affiche ensuite chaque fiche, reçoit ce que vous tapez et s'imprime telle que vous l'avez disposée.</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d'entrée/sortie du périphérique</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valeurs différentes</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Disk not ready</source>
        <translation>Disque non prêt</translation>
    </message>
    <message>
        <source>Display Totals For Selected Items</source>
        <translation>Afficher les totaux des éléments sélectionnés</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to empty %1 in %n record?</source>
        <comment>Do you want to empty %1 in %n records?</comment>
        <translation><numerusform>Voulez-vous vider %1 dans %n fiche ?</numerusform><numerusform>Voulez-vous vider %1 dans %n fiches ?</numerusform></translation>
    </message>
    <message>
        <source>Document Modified</source>
        <translation>Document modifié</translation>
    </message>
    <message>
        <source>Document Opened</source>
        <translation>Document ouvert</translation>
    </message>
    <message>
        <source>Document Saved</source>
        <translation>Document enregistré</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Terminé.</translation>
    </message>
    <message>
        <source>Double Postcard (JIS)</source>
        <translation>Carte postale double (JIS)</translation>
    </message>
    <message>
        <source>Double-click to choose a picture</source>
        <translation>Double-cliquez pour choisir une image</translation>
    </message>
    <message>
        <source>Double-click to choose clip art</source>
        <translation>Double-cliquez pour choisir une image décorative</translation>
    </message>
    <message>
        <source>Duplicate Record</source>
        <translation>Dupliquer la fiche</translation>
    </message>
    <message>
        <source>During a recalculate all rows event your columns were not able to be recalculated due to a syntax error with one of your defined expressions.</source>
        <translation>Lors du recalcul de toutes les lignes, vos colonnes n'ont pas pu être recalculées à cause d'une erreur de syntaxe dans une de vos expressions.</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Each number is there once.</source>
        <translation>Chaque numéro n'existe qu'une fois.</translation>
    </message>
    <message>
        <source>Each row that is pasted becomes an invoice. Please show the invoices, not their items.</source>
        <translation>Chaque ligne collée devient une facture. Affichez les factures, pas leurs articles.</translation>
    </message>
    <message>
        <source>Each value</source>
        <translation>Chaque valeur</translation>
    </message>
    <message>
        <source>Earlier states of this database:</source>
        <translation>États antérieurs de cette base :</translation>
    </message>
    <message>
        <source>Earlier values</source>
        <translation>Valeurs antérieures</translation>
    </message>
    <message>
        <source>Element not found</source>
        <translation>Élément introuvable</translation>
    </message>
    <message>
        <source>Email Address:</source>
        <translation>Adresse électronique :</translation>
    </message>
    <message>
        <source>Email Currently Opened Database File</source>
        <translation>Envoyer par courriel la base ouverte</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>Enter URL or email address.  URL's should begin with http:// and emails should start with mailto:</source>
        <translation>Entrez une URL ou une adresse électronique. Les URL commencent par http:// et les adresses par mailto:</translation>
    </message>
    <message>
        <source>Enter password to lock file.</source>
        <translation>Entrez un mot de passe pour verrouiller le fichier.</translation>
    </message>
    <message>
        <source>Enter password to unlock database.</source>
        <translation>Entrez le mot de passe pour déverrouiller la base.</translation>
    </message>
    <message>
        <source>Enter value from 1 to 10 for border width.</source>
        <translation>Entrez une valeur de 1 à 10 pour l'épaisseur de la bordure.</translation>
    </message>
    <message>
        <source>Entry Form</source>
        <translation>Formulaire de saisie</translation>
    </message>
    <message>
        <source>Entry Options</source>
        <translation>Options de saisie</translation>
    </message>
    <message>
        <source>Envelope #10</source>
        <translation>Enveloppe n° 10</translation>
    </message>
    <message>
        <source>Envelope #11</source>
        <translation>Enveloppe n° 11</translation>
    </message>
    <message>
        <source>Envelope #12</source>
        <translation>Enveloppe n° 12</translation>
    </message>
    <message>
        <source>Envelope #14</source>
        <translation>Enveloppe n° 14</translation>
    </message>
    <message>
        <source>Envelope #9</source>
        <translation>Enveloppe n° 9</translation>
    </message>
    <message>
        <source>Envelope B4</source>
        <translation>Enveloppe B4</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Enveloppe B5</translation>
    </message>
    <message>
        <source>Envelope B6</source>
        <translation>Enveloppe B6</translation>
    </message>
    <message>
        <source>Envelope C3</source>
        <translation>Enveloppe C3</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Enveloppe C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Enveloppe C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Enveloppe C6</translation>
    </message>
    <message>
        <source>Envelope C65</source>
        <translation>Enveloppe C65</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Enveloppe DL</translation>
    </message>
    <message>
        <source>Envelope Invite</source>
        <translation>Enveloppe invitation</translation>
    </message>
    <message>
        <source>Envelope Italian</source>
        <translation>Enveloppe italienne</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Enveloppe Monarch</translation>
    </message>
    <message>
        <source>Envelope Personal</source>
        <translation>Enveloppe personnelle</translation>
    </message>
    <message>
        <source>Erase Layout</source>
        <translation>Effacer la mise en page</translation>
    </message>
    <message>
        <source>Erase Layout Confirmation</source>
        <translation>Confirmer l'effacement de la mise en page</translation>
    </message>
    <message>
        <source>Error %1: %2</source>
        <translation>Erreur %1 : %2</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>Excel workbook</source>
        <translation>Classeur Excel</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Expor&amp;t...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export Summary</source>
        <translation>Exporter la synthèse</translation>
    </message>
    <message>
        <source>Expression Editor</source>
        <translation>Éditeur d'expressions</translation>
    </message>
    <message>
        <source>Expression for selected column:</source>
        <translation>Expression de la colonne sélectionnée :</translation>
    </message>
    <message>
        <source>Expressions</source>
        <translation>Expressions</translation>
    </message>
    <message>
        <source>F&amp;ilter...</source>
        <translation>F&amp;iltrer...</translation>
    </message>
    <message>
        <source>Fanfold German</source>
        <translation>Papier continu allemand</translation>
    </message>
    <message>
        <source>Fanfold German Legal</source>
        <translation>Papier continu allemand Legal</translation>
    </message>
    <message>
        <source>Fanfold US</source>
        <translation>Papier continu US</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;ltre :</translation>
    </message>
    <message>
        <source>Field already added!</source>
        <translation>Champ déjà ajouté !</translation>
    </message>
    <message>
        <source>Field already added.</source>
        <translation>Champ déjà ajouté.</translation>
    </message>
    <message>
        <source>Fig&amp;ures</source>
        <translation>&amp;Mesures</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>File does not exist!</source>
        <translation>Le fichier n'existe pas !</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Filesize:</source>
        <translation>Taille du fichier :</translation>
    </message>
    <message>
        <source>Filesize: %1</source>
        <translation>Taille du fichier : %1</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find And Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find Duplicat&amp;es...</source>
        <translation>Rechercher les &amp;doublons...</translation>
    </message>
    <message>
        <source>Find Duplicates</source>
        <translation>Rechercher les doublons</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Première</translation>
    </message>
    <message>
        <source>First &amp;rows, as they will be stored:</source>
        <translation>Premières &amp;lignes, telles qu'elles seront stockées :</translation>
    </message>
    <message>
        <source>First Record</source>
        <translation>Première fiche</translation>
    </message>
    <message>
        <source>First column</source>
        <translation>Première colonne</translation>
    </message>
    <message>
        <source>Fit &amp;Page</source>
        <translation>&amp;Page entière</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>&amp;Largeur de page</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>Folio</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>From A Template</source>
        <translation>À partir d'un modèle</translation>
    </message>
    <message>
        <source>Gap a&amp;cross:</source>
        <translation>Intervalle &amp;horizontal :</translation>
    </message>
    <message>
        <source>Gap across: %1 mm</source>
        <translation>Intervalle horizontal : %1 mm</translation>
    </message>
    <message>
        <source>Gap down: %1 mm</source>
        <translation>Intervalle vertical : %1 mm</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Jardin</translation>
    </message>
    <message>
        <source>Go To First Record</source>
        <translation>Aller à la première fiche</translation>
    </message>
    <message>
        <source>Go To Last Record</source>
        <translation>Aller à la dernière fiche</translation>
    </message>
    <message>
        <source>Goes into</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Greater than or equal to</source>
        <translation>Supérieur ou égal à</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Greatest of %1</source>
        <translation>Maximum de %1</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Groups With Subtotals</source>
        <translation>Groupes avec sous-totaux</translation>
    </message>
    <message>
        <source>Guide at %1 inches</source>
        <translation>Repère à %1 pouces</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur :</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation>Règle horizontale</translation>
    </message>
    <message>
        <source>How finely values are told apart: dates by year, quarter, month or day, numbers by steps, which can be typed</source>
        <translation>Finesse de distinction des valeurs : les dates par année, trimestre, mois ou jour, les nombres par pas, que vous pouvez taper</translation>
    </message>
    <message>
        <source>How many copies?</source>
        <translation>Combien de copies ?</translation>
    </message>
    <message>
        <source>I&amp;mport...</source>
        <translation>I&amp;mporter...</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>In the table: "%1".</source>
        <translation>Dans le tableau : « %1 ».</translation>
    </message>
    <message>
        <source>In&amp;ventory</source>
        <translation>In&amp;ventaire</translation>
    </message>
    <message>
        <source>Incorrect Password.</source>
        <translation>Mot de passe incorrect.</translation>
    </message>
    <message>
        <source>Index out of bounds</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Insert Link</source>
        <translation>Insérer un lien</translation>
    </message>
    <message>
        <source>Into:</source>
        <translation>Dans :</translation>
    </message>
    <message>
        <source>Invalid file format</source>
        <translation>Format de fichier incorrect</translation>
    </message>
    <message>
        <source>Invalid values specified. Values must be greater than 0.</source>
        <translation>Valeurs incorrectes. Les valeurs doivent être supérieures à 0.</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventaire</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>It could not be written for this reason:
%1</source>
        <translation>L'écriture a échoué pour cette raison :
%1</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Item Row Creation Tool</source>
        <translation>Outil de création de lignes d'article</translation>
    </message>
    <message>
        <source>Item rows, tax and sums</source>
        <translation>Lignes d'article, taxe et sommes</translation>
    </message>
    <message>
        <source>Items and invoices</source>
        <translation>Articles et factures</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif</source>
        <translation>Images JPEG (*.jpg)|*.jpg|Images GIF (*.gif)|*.gif</translation>
    </message>
    <message>
        <source>Keep Filter</source>
        <translation>Conserver le filtre</translation>
    </message>
    <message>
        <source>Keep The Layout</source>
        <translation>Garder la mise en page</translation>
    </message>
    <message>
        <source>Keeps one record of each selected group</source>
        <translation>Garde une fiche de chaque groupe sélectionné</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Filtres conservés</translation>
    </message>
    <message>
        <source>Key is not unique in collection</source>
        <translation>La clé n'est pas unique dans la collection</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>L&amp;eft margin:</source>
        <translation>Marge &amp;gauche :</translation>
    </message>
    <message>
        <source>La&amp;bel Wizard...</source>
        <translation>Assis&amp;tant d'étiquettes...</translation>
    </message>
    <message>
        <source>Label Wizard</source>
        <translation>Assistant d'étiquettes</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Labels &amp;down:</source>
        <translation>Étiquettes en &amp;hauteur :</translation>
    </message>
    <message>
        <source>Labels are made of the records of a list.  Invoices print one to a page: use Print on the Layout tab.</source>
        <translation>Les étiquettes se font avec les fiches d'une liste. Les factures s'impriment une par page : utilisez Imprimer dans l'onglet de mise en page.</translation>
    </message>
    <message>
        <source>Labels of this size and number do not find room on the paper.  There are 10000 on a sheet at most.</source>
        <translation>Des étiquettes de cette taille et de ce nombre ne tiennent pas sur le papier. Il y en a au plus 10000 par feuille.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernière</translation>
    </message>
    <message>
        <source>Last Record</source>
        <translation>Dernière fiche</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Layout Page Setup</source>
        <translation>Page de la mise en page</translation>
    </message>
    <message>
        <source>Layout sheet</source>
        <translation>Feuille de la mise en page</translation>
    </message>
    <message>
        <source>Lea&amp;ve out these records</source>
        <translation>&amp;Laisser ces fiches de côté</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Least of %1</source>
        <translation>Minimum de %1</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message numerus="yes">
        <source>Left out: %1, and %n more.</source>
        <comment>Left out: %1, and %n more.</comment>
        <translation><numerusform>Laissés de côté : %1, et encore %n.</numerusform><numerusform>Laissés de côté : %1, et encore %n.</numerusform></translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Laissés de côté : %1.</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longueur :</translation>
    </message>
    <message>
        <source>Less than or equal to</source>
        <translation>Inférieur ou égal à</translation>
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
        <translation>Letter petit</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Lines of the label</source>
        <translation>Lignes de l'étiquette</translation>
    </message>
    <message>
        <source>Lock Database</source>
        <translation>Verrouiller la base</translation>
    </message>
    <message>
        <source>Lock Design</source>
        <translation>Verrouiller la création</translation>
    </message>
    <message>
        <source>Lock Object</source>
        <translation>Verrouiller l'objet</translation>
    </message>
    <message>
        <source>Lock Selected Object.</source>
        <translation>Verrouiller l'objet sélectionné.</translation>
    </message>
    <message>
        <source>Make Code</source>
        <translation>Créer un code</translation>
    </message>
    <message>
        <source>Make ane&amp;w when the text of a record changes</source>
        <translation>Refaire quand le te&amp;xte d'une fiche change</translation>
    </message>
    <message>
        <source>Maker, number, words, or a size: 99.1 x 38.1</source>
        <translation>Marque, numéro, mots ou taille : 99.1 x 38.1</translation>
    </message>
    <message>
        <source>Makes the columns as wide as what they print</source>
        <translation>Rend les colonnes aussi larges que ce qu'elles impriment</translation>
    </message>
    <message>
        <source>Making codes</source>
        <translation>Création des codes</translation>
    </message>
    <message>
        <source>Making the records</source>
        <translation>Création des fiches</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation>Moyenne de %1</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Megabytes for the versions of all databases</source>
        <translation>Mégaoctets pour les versions de toutes les bases</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>Message To Sender(500 Characters Max):</source>
        <translation>Message au destinataire (500 caractères max.) :</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Month, day, year</source>
        <translation>Mois, jour, année</translation>
    </message>
    <message>
        <source>Most frequent</source>
        <translation>Le plus fréquent</translation>
    </message>
    <message>
        <source>Most frequent values</source>
        <translation>Valeurs les plus fréquentes</translation>
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
        <translation>Déplacer la colonne</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Déplacer l'objet</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>NA</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of column to create</source>
        <translation>Nom de la colonne à créer</translation>
    </message>
    <message>
        <source>Name of the filter:</source>
        <translation>Nom du filtre :</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Ne&amp;xt Record</source>
        <translation>Fiche &amp;suivante</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>New Contents</source>
        <translation>Nouveau contenu</translation>
    </message>
    <message>
        <source>New Database</source>
        <translation>Nouvelle base</translation>
    </message>
    <message>
        <source>New From Te&amp;mplate</source>
        <translation>Nouveau à partir d'un &amp;modèle</translation>
    </message>
    <message>
        <source>New Record</source>
        <translation>Nouvelle fiche</translation>
    </message>
    <message>
        <source>New record</source>
        <translation>Nouvelle fiche</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Next Record</source>
        <translation>Fiche suivante</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No Open Document</source>
        <translation>Aucun document ouvert</translation>
    </message>
    <message>
        <source>No code</source>
        <translation>Pas de code</translation>
    </message>
    <message>
        <source>No code because of</source>
        <translation>Pas de code à cause de</translation>
    </message>
    <message>
        <source>No column has serial numbers.  They are an option of Number columns in the database properties.</source>
        <translation>Aucune colonne n'a de numéros d'ordre. C'est une option des colonnes Nombre dans les propriétés de la base.</translation>
    </message>
    <message>
        <source>No column is chosen for the report</source>
        <translation>Aucune colonne n'est choisie pour le rapport</translation>
    </message>
    <message>
        <source>No column is chosen.</source>
        <translation>Aucune colonne n'est choisie.</translation>
    </message>
    <message>
        <source>No column of the report is totaled, so there are no sums: see Choose Columns To Total.</source>
        <translation>Aucune colonne du rapport n'est totalisée, il n'y a donc pas de sommes : voir Choisir les colonnes à totaliser.</translation>
    </message>
    <message>
        <source>No copy of your database could be kept. The file is as you last saved it.</source>
        <translation>Aucune copie de votre base n'a pu être conservée. Le fichier est tel que vous l'avez enregistré en dernier.</translation>
    </message>
    <message>
        <source>No database is open</source>
        <translation>Aucune base n'est ouverte</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Pas de groupes</translation>
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
        <translation>Aucune fiche trouvée</translation>
    </message>
    <message>
        <source>No records yet</source>
        <translation>Pas encore de fiches</translation>
    </message>
    <message>
        <source>No sheet</source>
        <translation>Pas de feuille</translation>
    </message>
    <message>
        <source>No sheet of labels is called so, or has labels of that size.</source>
        <translation>Aucune feuille d'étiquettes ne porte ce nom ni n'a d'étiquettes de cette taille.</translation>
    </message>
    <message>
        <source>No two records are equal in these columns.</source>
        <translation>Il n'y a pas deux fiches égales dans ces colonnes.</translation>
    </message>
    <message>
        <source>No version kept: %1</source>
        <translation>Aucune version conservée : %1</translation>
    </message>
    <message>
        <source>No version of this database has been kept yet.</source>
        <translation>Aucune version de cette base n'a encore été conservée.</translation>
    </message>
    <message>
        <source>No whole number: records %1</source>
        <translation>Pas de nombre entier : fiches %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>&amp;Pas maintenant</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message numerus="yes">
        <source>Nothing has been made.  %n record has a text that gives no code</source>
        <comment>Nothing has been made.  %n records have texts that give no code</comment>
        <translation><numerusform>Rien n'a été créé. %n fiche a un texte qui ne donne pas de code</numerusform><numerusform>Rien n'a été créé. %n fiches ont des textes qui ne donnent pas de code</numerusform></translation>
    </message>
    <message>
        <source>Nothing has been set.  The record "%1" would get no value: %2.</source>
        <translation>Rien n'a été changé. La fiche « %1 » n'aurait pas de valeur : %2.</translation>
    </message>
    <message>
        <source>Nothing in the database is what was searched for.</source>
        <translation>Rien dans la base ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>Nothing is placed on the page yet</source>
        <translation>Rien n'est encore placé sur la page</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Numeric Columns:</source>
        <translation>Colonnes numériques :</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NON</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>OUI</translation>
    </message>
    <message>
        <source>On Each Sheet</source>
        <translation>Sur chaque feuille</translation>
    </message>
    <message>
        <source>On a sheet</source>
        <translation>Sur une feuille</translation>
    </message>
    <message numerus="yes">
        <source>One label of %1 mm on %2</source>
        <comment>%n labels of %1 mm on %2</comment>
        <translation><numerusform>Une étiquette de %1 mm sur %2</numerusform><numerusform>%n étiquettes de %1 mm sur %2</numerusform></translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open %1?</source>
        <translation>Ouvrir %1 ?</translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation>Ouvrir &amp;quand même</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Ouvrir une base</translation>
    </message>
    <message>
        <source>Open In &amp;Entry Form</source>
        <translation>Ouvrir dans le formulaire de &amp;saisie</translation>
    </message>
    <message>
        <source>Open Recent &amp;Files</source>
        <translation>&amp;Fichiers récents</translation>
    </message>
    <message>
        <source>Open a &amp;Copy...</source>
        <translation>Ouvrir une &amp;copie...</translation>
    </message>
    <message>
        <source>Open a Copy As...</source>
        <translation>Ouvrir une copie sous...</translation>
    </message>
    <message>
        <source>Open a database, or add columns, to see its records in groups.</source>
        <translation>Ouvrez une base ou ajoutez des colonnes pour voir ses fiches par groupes.</translation>
    </message>
    <message>
        <source>Open a database, or drop its file on this window.
A database is one file; its name ends in .fwk.</source>
        <translation>Ouvrez une base ou déposez son fichier sur cette fenêtre.
Une base est un seul fichier ; son nom se termine par .fwk.</translation>
    </message>
    <message>
        <source>Open to &amp;Read Only</source>
        <translation>Ouvrir en &amp;lecture seule</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>OpenDocument spreadsheet</source>
        <translation>Feuille de calcul OpenDocument</translation>
    </message>
    <message>
        <source>Or click the first free label of a sheet that you have used before.</source>
        <translation>Ou cliquez sur la première étiquette libre d'une feuille déjà entamée.</translation>
    </message>
    <message>
        <source>Or try a sample. You get a copy of your own, so change in it what you like.</source>
        <translation>Ou essayez un exemple. Vous en recevez une copie, que vous pouvez modifier à votre guise.</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Ot&amp;her:</source>
        <translation>A&amp;utre :</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Autre papier</translation>
    </message>
    <message>
        <source>Over the edge of the paper: %1.</source>
        <translation>Au-delà du bord du papier : %1.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement</translation>
    </message>
    <message>
        <source>Overwrite Existing File?</source>
        <translation>Écraser le fichier existant ?</translation>
    </message>
    <message>
        <source>P&amp;revious Record</source>
        <translation>Fiche &amp;précédente</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*</source>
        <translation>Fichiers PDF (*.pdf)|*.pdf|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation>&amp;Configurer la page...</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurer la page</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper Size: %1 x %2</source>
        <translation>Format du papier : %1 x %2</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste Records</source>
        <translation>Coller des fiches</translation>
    </message>
    <message>
        <source>Path/file access error</source>
        <translation>Erreur d'accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Place &amp;All Columns</source>
        <translation>Placer &amp;toutes les colonnes</translation>
    </message>
    <message>
        <source>Plants with photos and costs</source>
        <translation>Des plantes avec photos et coûts</translation>
    </message>
    <message>
        <source>Please allow your text to wrap automatically.</source>
        <translation>Laissez votre texte passer à la ligne de lui-même.</translation>
    </message>
    <message>
        <source>Please attach the database to the message yourself:
%1</source>
        <translation>Joignez vous-même la base au message :
%1</translation>
    </message>
    <message>
        <source>Please check: "%1" can be read in two ways.</source>
        <translation>Vérifiez : « %1 » peut se lire de deux façons.</translation>
    </message>
    <message>
        <source>Please return layout to browse view instead of design.  The design button is currently pressed.</source>
        <translation>Repassez la mise en page du mode création à la consultation. Le bouton Création est enfoncé.</translation>
    </message>
    <message>
        <source>Please use separate labels for multiple lines, or resize your label and allow your text to wrap automatically.</source>
        <translation>Utilisez des libellés séparés pour plusieurs lignes, ou agrandissez le libellé et laissez le texte passer à la ligne de lui-même.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Postcard (JIS)</source>
        <translation>Carte postale (JIS)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preview of all records using multiple layouts.</source>
        <translation>Aperçu de toutes les fiches, plusieurs mises en page par page.</translation>
    </message>
    <message>
        <source>Preview of selected records using multiple layouts.</source>
        <translation>Aperçu des fiches sélectionnées, plusieurs mises en page par page.</translation>
    </message>
    <message>
        <source>Previous Record</source>
        <translation>Fiche précédente</translation>
    </message>
    <message>
        <source>Previously opened file could not be found.</source>
        <translation>Le dernier fichier ouvert est introuvable.</translation>
    </message>
    <message>
        <source>Price * 1.1, with a blank beside each name</source>
        <translation>Prix * 1.1, avec une espace de chaque côté d'un nom</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print Database</source>
        <translation>Imprimer la base</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Print all records as layouts.</source>
        <translation>Imprimer toutes les fiches sur leur mise en page.</translation>
    </message>
    <message>
        <source>Print all records as multiple layouts per page.</source>
        <translation>Imprimer toutes les fiches, plusieurs mises en page par page.</translation>
    </message>
    <message>
        <source>Print all records as report.</source>
        <translation>Imprimer toutes les fiches en rapport.</translation>
    </message>
    <message>
        <source>Print selected items as layouts.</source>
        <translation>Imprimer les éléments sélectionnés sur leur mise en page.</translation>
    </message>
    <message>
        <source>Print selected items as multiple layouts per page.</source>
        <translation>Imprimer les éléments sélectionnés, plusieurs mises en page par page.</translation>
    </message>
    <message>
        <source>Print selected items as report.</source>
        <translation>Imprimer les éléments sélectionnés en rapport.</translation>
    </message>
    <message>
        <source>Print to PDF</source>
        <translation>Imprimer en PDF</translation>
    </message>
    <message>
        <source>Printer Not Installed</source>
        <translation>Aucune imprimante installée</translation>
    </message>
    <message>
        <source>Printing labels</source>
        <translation>Impression des étiquettes</translation>
    </message>
    <message>
        <source>Printing: %1 of %2</source>
        <translation>Impression : %1 sur %2</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Put the column on a line of its own</source>
        <translation>Mettre la colonne sur une ligne à part</translation>
    </message>
    <message>
        <source>Put the column where the text cursor is</source>
        <translation>Mettre la colonne à l'endroit du curseur</translation>
    </message>
    <message>
        <source>Puts all records back in place of those of a group (Esc)</source>
        <translation>Remet toutes les fiches à la place de celles d'un groupe (Échap)</translation>
    </message>
    <message>
        <source>Puts the version in the place of the open document, as work that is not saved yet</source>
        <translation>Met la version à la place du document ouvert, comme travail non encore enregistré</translation>
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
        <translation>Enregistrement rapide</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>Read the Other &amp;State</source>
        <translation>Lire l'autre &amp;état</translation>
    </message>
    <message>
        <source>Reading the table</source>
        <translation>Lecture du tableau</translation>
    </message>
    <message>
        <source>Recalculating... %1 percent.</source>
        <translation>Recalcul... %1 pour cent.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Recognised</source>
        <translation>Reconnu</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Record %1 of %2</source>
        <translation>Fiche %1 sur %2</translation>
    </message>
    <message>
        <source>Record %1 of %2.</source>
        <translation>Fiche %1 sur %2.</translation>
    </message>
    <message>
        <source>Record 888 of 888</source>
        <translation>Fiche 888 sur 888</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <source>Records cannot be pasted into search results. Please go back to all records.</source>
        <translation>On ne peut pas coller de fiches dans des résultats de recherche. Revenez à toutes les fiches.</translation>
    </message>
    <message>
        <source>Records of the version</source>
        <translation>Fiches de la version</translation>
    </message>
    <message>
        <source>Records of the version saved %1:</source>
        <translation>Fiches de la version enregistrée %1 :</translation>
    </message>
    <message>
        <source>Records that get no code</source>
        <translation>Fiches sans code</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Refused because it</source>
        <translation>Refusé car le texte</translation>
    </message>
    <message>
        <source>Refused cells</source>
        <translation>Cellules refusées</translation>
    </message>
    <message>
        <source>Remove Column</source>
        <translation>Supprimer la colonne</translation>
    </message>
    <message>
        <source>Rename Column</source>
        <translation>Renommer la colonne</translation>
    </message>
    <message>
        <source>Replace Picture</source>
        <translation>Remplacer l'image</translation>
    </message>
    <message>
        <source>Replace The Layout</source>
        <translation>Remplacer la mise en page</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Remplacer par :</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Report Choices</source>
        <translation>Choix du rapport</translation>
    </message>
    <message>
        <source>Report Page Setup</source>
        <translation>Page du rapport</translation>
    </message>
    <message>
        <source>Resize Column</source>
        <translation>Redimensionner la colonne</translation>
    </message>
    <message>
        <source>Restore Unsaved Work</source>
        <translation>Restaurer le travail non enregistré</translation>
    </message>
    <message>
        <source>Restore Version</source>
        <translation>Restaurer une version</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rows to paste</source>
        <translation>Lignes à coller</translation>
    </message>
    <message>
        <source>Rule %1</source>
        <translation>Règle %1</translation>
    </message>
    <message>
        <source>Rule %1, colour</source>
        <translation>Règle %1, couleur</translation>
    </message>
    <message>
        <source>Rule %1, second value</source>
        <translation>Règle %1, seconde valeur</translation>
    </message>
    <message>
        <source>Rule %1, value</source>
        <translation>Règle %1, valeur</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>F&amp;euille :</translation>
    </message>
    <message>
        <source>S&amp;tatistics...</source>
        <translation>S&amp;tatistiques...</translation>
    </message>
    <message>
        <source>SQLite database</source>
        <translation>Base SQLite</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As</source>
        <translation>Enregistrer so&amp;us</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Enregistrer la base</translation>
    </message>
    <message>
        <source>Save Search &amp;Results As...</source>
        <translation>Enregistrer les &amp;résultats sous...</translation>
    </message>
    <message>
        <source>Save Search Results As...</source>
        <translation>Enregistrer les résultats de la recherche sous...</translation>
    </message>
    <message>
        <source>Save a &amp;Copy...</source>
        <translation>Enregistrer une &amp;copie...</translation>
    </message>
    <message>
        <source>Save a Copy...</source>
        <translation>Enregistrer une copie...</translation>
    </message>
    <message>
        <source>Save as Another &amp;File...</source>
        <translation>Enregistrer dans un autre &amp;fichier...</translation>
    </message>
    <message>
        <source>Save current document?</source>
        <translation>Enregistrer le document actuel ?</translation>
    </message>
    <message>
        <source>Save current file %1?</source>
        <translation>Enregistrer le fichier actuel %1 ?</translation>
    </message>
    <message>
        <source>Save the Copy As...</source>
        <translation>Enregistrer la copie sous...</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Saves the version as a database of its own</source>
        <translation>Enregistre la version comme une base à part</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>Sé&amp;parateur :</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search Data</source>
        <translation>Rechercher des données</translation>
    </message>
    <message>
        <source>Search Database</source>
        <translation>Rechercher dans la base</translation>
    </message>
    <message>
        <source>Search Value:</source>
        <translation>Valeur cherchée :</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Résultats de la recherche</translation>
    </message>
    <message>
        <source>Search within</source>
        <translation>Contient</translation>
    </message>
    <message>
        <source>Select image for clip art.</source>
        <translation>Choisissez une image décorative.</translation>
    </message>
    <message>
        <source>Select image for picture box.</source>
        <translation>Choisissez une image pour le cadre.</translation>
    </message>
    <message>
        <source>Selected &amp;Totals</source>
        <translation>&amp;Totaux de la sélection</translation>
    </message>
    <message>
        <source>Selected Columns and Order:</source>
        <translation>Colonnes choisies et ordre :</translation>
    </message>
    <message>
        <source>Selects the records that share a number in the list</source>
        <translation>Sélectionne dans la liste les fiches qui partagent un numéro</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Send Database File To...</source>
        <translation>Envoyer le fichier à...</translation>
    </message>
    <message>
        <source>Send File</source>
        <translation>Envoyer le fichier</translation>
    </message>
    <message>
        <source>Send To Back</source>
        <translation>Mettre à l'arrière-plan</translation>
    </message>
    <message numerus="yes">
        <source>Set %1 in %n record</source>
        <comment>Set %1 in %n records</comment>
        <translation><numerusform>Définir %1 dans %n fiche</numerusform><numerusform>Définir %1 dans %n fiches</numerusform></translation>
    </message>
    <message>
        <source>Set &amp;Values...</source>
        <translation>Définir des &amp;valeurs...</translation>
    </message>
    <message>
        <source>Set &amp;to:</source>
        <translation>Définir &amp;à :</translation>
    </message>
    <message>
        <source>Set Font</source>
        <translation>Choisir la police</translation>
    </message>
    <message>
        <source>Set Values</source>
        <translation>Définir des valeurs</translation>
    </message>
    <message>
        <source>Sheet of labels</source>
        <translation>Feuille d'étiquettes</translation>
    </message>
    <message>
        <source>Sheets of labels</source>
        <translation>Feuilles d'étiquettes</translation>
    </message>
    <message>
        <source>Show On &amp;Layout Page</source>
        <translation>Afficher sur la page de &amp;mise en page</translation>
    </message>
    <message>
        <source>Show all records and close the filter (Esc)</source>
        <translation>Afficher toutes les fiches et fermer le filtre (Échap)</translation>
    </message>
    <message>
        <source>Show and take dates, numbers and amounts as your country writes them</source>
        <translation>Afficher et accepter les dates, les nombres et les montants comme on les écrit dans votre pays</translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation>Afficher la page entière</translation>
    </message>
    <message>
        <source>Shows the records of the selected groups in the list</source>
        <translation>Affiche dans la liste les fiches des groupes sélectionnés</translation>
    </message>
    <message>
        <source>Shows the records of the version</source>
        <translation>Affiche les fiches de la version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Size To &amp;Content</source>
        <translation>Ajuster au &amp;contenu</translation>
    </message>
    <message>
        <source>Size in mm</source>
        <translation>Taille en mm</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tailles</translation>
    </message>
    <message>
        <source>Snap To Grid</source>
        <translation>Aligner sur la grille</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Trier</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Tri cr&amp;oissant</translation>
    </message>
    <message>
        <source>Sort &amp;By</source>
        <translation>Trier &amp;par</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Tri &amp;décroissant</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Trier par %1</translation>
    </message>
    <message>
        <source>Sort by %1, Ascending</source>
        <translation>Trier par %1, croissant</translation>
    </message>
    <message>
        <source>Sort by %1, Descending</source>
        <translation>Trier par %1, décroissant</translation>
    </message>
    <message>
        <source>Specify Name For New Database</source>
        <translation>Indiquez le nom de la nouvelle base</translation>
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
        <translation>Pas des groupes</translation>
    </message>
    <message>
        <source>Steps of the groups within</source>
        <translation>Pas des sous-groupes</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Barré</translation>
    </message>
    <message>
        <source>Su&amp;mmary</source>
        <translation>S&amp;ynthèse</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Objet :</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice hors plage</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Sum of %1</source>
        <translation>Somme de %1</translation>
    </message>
    <message>
        <source>Sum of the selected records</source>
        <translation>Somme des fiches sélectionnées</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Synthèse</translation>
    </message>
    <message>
        <source>Sums of the selected records</source>
        <translation>Sommes des fiches sélectionnées</translation>
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
        <translation>Passer la mise en page en mode création</translation>
    </message>
    <message>
        <source>Syntax error</source>
        <translation>Erreur de syntaxe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|All Files (*.*)|*.*</source>
        <translation>Tableaux (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tables (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|All Files (*.*)|*.*</source>
        <translation>Tableaux (*.xlsx)|*.xlsx;*.ods;*.csv;*.tsv;*.html;*.json;*.sqlite|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloïd</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text of %1 points</source>
        <translation>Texte de %1 points</translation>
    </message>
    <message>
        <source>Text of %1 points: the longest texts are printed smaller, or are cut at the edge</source>
        <translation>Texte de %1 points : les textes les plus longs sont imprimés plus petit ou coupés au bord</translation>
    </message>
    <message>
        <source>That would be %1 labels.  At most %2 are printed at a time.  Select fewer records.</source>
        <translation>Cela ferait %1 étiquettes. On en imprime au plus %2 à la fois. Sélectionnez moins de fiches.</translation>
    </message>
    <message>
        <source>The &amp;first row has the names of the columns</source>
        <translation>La première li&amp;gne contient les noms des colonnes</translation>
    </message>
    <message>
        <source>The &amp;selected records</source>
        <translation>Les fiches sé&amp;lectionnées</translation>
    </message>
    <message>
        <source>The brace at place %1 is not closed</source>
        <translation>L'accolade à la position %1 n'est pas fermée</translation>
    </message>
    <message>
        <source>The codes could not be made anew: %1</source>
        <translation>Les codes n'ont pas pu être refaits : %1</translation>
    </message>
    <message>
        <source>The codes could not be stored: %1</source>
        <translation>Les codes n'ont pas pu être stockés : %1</translation>
    </message>
    <message>
        <source>The column "%1" stands on the label twice.</source>
        <translation>La colonne « %1 » figure deux fois sur l'étiquette.</translation>
    </message>
    <message>
        <source>The column name "%1" cannot be used.</source>
        <translation>Le nom de colonne « %1 » ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>The column name "%1" holds a "|".</source>
        <translation>Le nom de colonne « %1 » contient un « | ».</translation>
    </message>
    <message>
        <source>The column name "%1" is there twice.</source>
        <translation>Le nom de colonne « %1 » y est deux fois.</translation>
    </message>
    <message>
        <source>The column you selected is an undefined calculation column.  Please define an expression for it first.</source>
        <translation>La colonne choisie est une colonne de calcul non définie. Définissez d'abord son expression.</translation>
    </message>
    <message>
        <source>The copy cannot take the place of the database that is open.</source>
        <translation>La copie ne peut pas prendre la place de la base ouverte.</translation>
    </message>
    <message>
        <source>The copy could not be written: %1</source>
        <translation>La copie n'a pas pu être écrite : %1</translation>
    </message>
    <message>
        <source>The database cannot keep where these labels stand to a tenth of a millimetre: this computer does, for this file.</source>
        <translation>La base ne peut pas noter l'emplacement de ces étiquettes au dixième de millimètre : cet ordinateur le fait, pour ce fichier.</translation>
    </message>
    <message>
        <source>The database could not be made:
%1</source>
        <translation>La base de données n'a pas pu être créée :
%1</translation>
    </message>
    <message>
        <source>The database file could not be found:
%1</source>
        <translation>Le fichier de la base est introuvable :
%1</translation>
    </message>
    <message numerus="yes">
        <source>The database has room for %n more record.</source>
        <comment>The database has room for %n more records.</comment>
        <translation><numerusform>La base a de la place pour encore %n fiche.</numerusform><numerusform>La base a de la place pour encore %n fiches.</numerusform></translation>
    </message>
    <message>
        <source>The database is open to read only.  Save a copy of the version instead.</source>
        <translation>La base est ouverte en lecture seule. Enregistrez plutôt une copie de la version.</translation>
    </message>
    <message>
        <source>The database itself keeps where these labels stand.</source>
        <translation>La base note elle-même l'emplacement de ces étiquettes.</translation>
    </message>
    <message>
        <source>The database structure and layout have been locked.  Use the Options menu to unlock.</source>
        <translation>La structure et la mise en page de la base sont verrouillées. Utilisez le menu Options pour les déverrouiller.</translation>
    </message>
    <message>
        <source>The expression is not complete (character %1)</source>
        <translation>L'expression n'est pas complète (caractère %1)</translation>
    </message>
    <message>
        <source>The file itself cannot be opened. Please choose a place for the restored one.</source>
        <translation>Le fichier lui-même ne peut pas être ouvert. Choisissez un emplacement pour celui qui est restauré.</translation>
    </message>
    <message>
        <source>The file itself was changed after that work was begun.</source>
        <translation>Le fichier lui-même a été modifié après le début de ce travail.</translation>
    </message>
    <message>
        <source>The filter is too long</source>
        <translation>Le filtre est trop long</translation>
    </message>
    <message>
        <source>The filter is too long to be kept.</source>
        <translation>Le filtre est trop long pour être conservé.</translation>
    </message>
    <message>
        <source>The first row has the &amp;names of the columns</source>
        <translation>La première ligne contient les &amp;noms des colonnes</translation>
    </message>
    <message>
        <source>The first rule that holds decides. A cell that is coloured has a mark as well, and says why when the mouse rests on it. Colours are yours alone: they are not stored in the database.</source>
        <translation>La première règle vérifiée décide. Une cellule colorée porte aussi une marque et dit pourquoi quand la souris s'y arrête. Les couleurs ne sont qu'à vous : elles ne sont pas stockées dans la base.</translation>
    </message>
    <message>
        <source>The folder "%1" is there already. Pictures in it that have the same names are replaced. Continue?</source>
        <translation>Le dossier « %1 » existe déjà. Les images du même nom y seront remplacées. Continuer ?</translation>
    </message>
    <message>
        <source>The help pages are not installed.</source>
        <translation>Les pages d'aide ne sont pas installées.</translation>
    </message>
    <message>
        <source>The label</source>
        <translation>L'étiquette</translation>
    </message>
    <message>
        <source>The label has too many columns.</source>
        <translation>L'étiquette a trop de colonnes.</translation>
    </message>
    <message numerus="yes">
        <source>The layout has %n object.  The new label can take its place, or you keep your design and print it on these labels.</source>
        <comment>The layout has %n objects.  The new label can take its place, or you keep your design and print it on these labels.</comment>
        <translation><numerusform>La mise en page a %n objet. La nouvelle étiquette peut prendre sa place, ou vous gardez votre création et l'imprimez sur ces étiquettes.</numerusform><numerusform>La mise en page a %n objets. La nouvelle étiquette peut prendre leur place, ou vous gardez votre création et l'imprimez sur ces étiquettes.</numerusform></translation>
    </message>
    <message>
        <source>The layout has no room for so many rows.</source>
        <translation>La mise en page n'a pas de place pour autant de lignes.</translation>
    </message>
    <message>
        <source>The layout is too large for its paper: with its spacing, not even one fits within the margins.  Make it smaller, or change the paper, the margins or the spacing in the page setup.</source>
        <translation>La mise en page est trop grande pour son papier : avec son espacement, pas même une ne tient entre les marges. Réduisez-la, ou changez le papier, les marges ou l'espacement.</translation>
    </message>
    <message>
        <source>The layout page is empty</source>
        <translation>La page de mise en page est vide</translation>
    </message>
    <message>
        <source>The link cannot be opened: it has characters in it that no address has.</source>
        <translation>Le lien ne peut pas être ouvert : il contient des caractères qu'aucune adresse n'a.</translation>
    </message>
    <message>
        <source>The new database cannot take the place of the one that is open.</source>
        <translation>La nouvelle base ne peut pas prendre la place de celle qui est ouverte.</translation>
    </message>
    <message>
        <source>The open database has changes that are not saved.</source>
        <translation>La base ouverte a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>The page has room for %1 of %2 columns.</source>
        <translation>La page a de la place pour %1 colonnes sur %2.</translation>
    </message>
    <message>
        <source>The page is filled in for each one.</source>
        <translation>La page se remplit pour chacune.</translation>
    </message>
    <message>
        <source>The pages are filled with them.</source>
        <translation>Les pages s'en remplissent.</translation>
    </message>
    <message>
        <source>The paper of the database, code %1, is not known here: it prints on Letter.</source>
        <translation>Le papier de la base, code %1, n'est pas connu ici : elle s'imprime sur Letter.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read, or is too large.</source>
        <translation>L'image %1 est illisible ou trop grande.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read.</source>
        <translation>L'image %1 est illisible.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read: %2.</source>
        <translation>L'image %1 est illisible : %2.</translation>
    </message>
    <message>
        <source>The picture %1 is too large.</source>
        <translation>L'image %1 est trop grande.</translation>
    </message>
    <message>
        <source>The picture cannot be read, or is too large.</source>
        <translation>L'image est illisible ou trop grande.</translation>
    </message>
    <message>
        <source>The picture could not be added to the database: %1</source>
        <translation>L'image n'a pas pu être ajoutée à la base : %1</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read.</source>
        <translation>L'image du presse-papiers est illisible.</translation>
    </message>
    <message>
        <source>The picture in the clipboard cannot be read: %1.</source>
        <translation>L'image du presse-papiers est illisible : %1.</translation>
    </message>
    <message>
        <source>The picture in the clipboard is too large.</source>
        <translation>L'image du presse-papiers est trop grande.</translation>
    </message>
    <message>
        <source>The picture is kept as the JPEG file %1.</source>
        <translation>L'image est conservée dans le fichier JPEG %1.</translation>
    </message>
    <message>
        <source>The print could not be written.</source>
        <translation>L'impression n'a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The print could not be written: %1.</source>
        <translation>L'impression n'a pas pu être écrite : %1.</translation>
    </message>
    <message>
        <source>The same &amp;value for all</source>
        <translation>La même &amp;valeur pour toutes</translation>
    </message>
    <message>
        <source>The sample could not be copied to %1: %2</source>
        <translation>L'exemple n'a pas pu être copié vers %1 : %2</translation>
    </message>
    <message>
        <source>The se&amp;lected records</source>
        <translation>Les fiches sé&amp;lectionnées</translation>
    </message>
    <message>
        <source>The search &amp;results</source>
        <translation>Les résultats d&amp;e la recherche</translation>
    </message>
    <message>
        <source>The sign %1 is not kept: amounts are shown with $.</source>
        <translation>Le symbole %1 n'est pas conservé : les montants s'affichent avec $.</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1600.</source>
        <translation>La taille est un nombre de 1 à 1600.</translation>
    </message>
    <message>
        <source>The table cannot be imported: %1</source>
        <translation>Le tableau ne peut pas être importé : %1</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Le tableau n'a pas pu être écrit : %1</translation>
    </message>
    <message>
        <source>The table has no records.</source>
        <translation>Le tableau n'a pas de fiches.</translation>
    </message>
    <message numerus="yes">
        <source>The table is written, but the database has no pictures of these names:
%1 and %n more.</source>
        <comment>The table is written, but the database has no pictures of these names:
%1 and %n more.</comment>
        <translation><numerusform>Le tableau est écrit, mais la base n'a pas d'images de ces noms :
%1 et encore %n.</numerusform><numerusform>Le tableau est écrit, mais la base n'a pas d'images de ces noms :
%1 et encore %n.</numerusform></translation>
    </message>
    <message>
        <source>The table is written, but the database has no pictures of these names:
%1.</source>
        <translation>Le tableau est écrit, mais la base n'a pas d'images de ces noms :
%1.</translation>
    </message>
    <message>
        <source>The table of label sheets cannot be read: %1</source>
        <translation>La liste des feuilles d'étiquettes est illisible : %1</translation>
    </message>
    <message numerus="yes">
        <source>The values have been set, but %n record could not be calculated: %1.</source>
        <comment>The values have been set, but %n records could not be calculated: %1.</comment>
        <translation><numerusform>Les valeurs ont été fixées, mais %n fiche n'a pas pu être calculée : %1.</numerusform><numerusform>Les valeurs ont été fixées, mais %n fiches n'ont pas pu être calculées : %1.</numerusform></translation>
    </message>
    <message>
        <source>The version cannot be read: %1</source>
        <translation>La version est illisible : %1</translation>
    </message>
    <message>
        <source>The version could not be restored: %1</source>
        <translation>La version n'a pas pu être restaurée : %1</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>There are %1 columns, a database has at most %2.</source>
        <translation>Il y a %1 colonnes, une base en a au plus %2.</translation>
    </message>
    <message>
        <source>There are no calculation columns in the current database.</source>
        <translation>La base actuelle n'a pas de colonnes de calcul.</translation>
    </message>
    <message>
        <source>There are no columns yet</source>
        <translation>Il n'y a pas encore de colonnes</translation>
    </message>
    <message>
        <source>There are no objects of a layout on the clipboard.</source>
        <translation>Il n'y a pas d'objets de mise en page dans le presse-papiers.</translation>
    </message>
    <message>
        <source>There are no records to print on labels.</source>
        <translation>Il n'y a pas de fiches à imprimer sur des étiquettes.</translation>
    </message>
    <message>
        <source>There are no records to print yet</source>
        <translation>Il n'y a pas encore de fiches à imprimer</translation>
    </message>
    <message>
        <source>There are no records to set values in.</source>
        <translation>Il n'y a pas de fiches où définir des valeurs.</translation>
    </message>
    <message>
        <source>There are no records yet</source>
        <translation>Il n'y a pas encore de fiches</translation>
    </message>
    <message>
        <source>There are no two records to compare.</source>
        <translation>Il n'y a pas deux fiches à comparer.</translation>
    </message>
    <message>
        <source>There is a filter "%1" already. Do you want to replace it?</source>
        <translation>Il y a déjà un filtre « %1 ». Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>There is no column "%1"</source>
        <translation>Il n'y a pas de colonne « %1 »</translation>
    </message>
    <message>
        <source>There is no column "%1" whose text could be printed.</source>
        <translation>Il n'y a pas de colonne « %1 » dont le texte puisse s'imprimer.</translation>
    </message>
    <message>
        <source>There is no column of pictures "%1"</source>
        <translation>Il n'y a pas de colonne d'images « %1 »</translation>
    </message>
    <message>
        <source>There is no column to set.  Calculation columns are worked out, and pictures and the rows of invoices are entered on the layout page.</source>
        <translation>Il n'y a pas de colonne à fixer. Les colonnes de calcul se calculent, les images et les lignes des factures se saisissent sur la page de mise en page.</translation>
    </message>
    <message>
        <source>There is no expression</source>
        <translation>Il n'y a pas d'expression</translation>
    </message>
    <message>
        <source>There is no picture column "%1".</source>
        <translation>Il n'y a pas de colonne d'images « %1 ».</translation>
    </message>
    <message>
        <source>There is no record on the page.</source>
        <translation>Il n'y a pas de fiche sur la page.</translation>
    </message>
    <message>
        <source>There is no text and no table on the clipboard.</source>
        <translation>Il n'y a ni texte ni tableau dans le presse-papiers.</translation>
    </message>
    <message>
        <source>There is no text to make codes of</source>
        <translation>Il n'y a pas de texte dont faire des codes</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>There is nothing to print: no record has a number of copies above 0 in the column that says how many.</source>
        <translation>Il n'y a rien à imprimer : aucune fiche n'a un nombre de copies supérieur à 0 dans la colonne qui l'indique.</translation>
    </message>
    <message>
        <source>There was an error writing to the file.  If saving to removable media, please make sure that the disk is inserted properly, or that the device is plugged in.</source>
        <translation>Une erreur est survenue à l'écriture du fichier. Si vous enregistrez sur un support amovible, vérifiez que le disque est bien inséré ou que le périphérique est branché.</translation>
    </message>
    <message>
        <source>These choices are yours alone: they are kept for this file, but not stored in the database.</source>
        <translation>Ces choix ne sont qu'à vous : ils sont conservés pour ce fichier, mais pas stockés dans la base.</translation>
    </message>
    <message>
        <source>These colours are too long to be kept. They hold until the database is closed.</source>
        <translation>Ces couleurs sont trop longues pour être conservées. Elles valent jusqu'à la fermeture de la base.</translation>
    </message>
    <message>
        <source>These pictures of the version are no longer there:</source>
        <translation>Ces images de la version n'existent plus :</translation>
    </message>
    <message>
        <source>This cell cannot be stored</source>
        <translation>Cette cellule ne peut pas être stockée</translation>
    </message>
    <message>
        <source>This database has no column "%1".</source>
        <translation>Cette base n'a pas de colonne « %1 ».</translation>
    </message>
    <message>
        <source>This database has no picture column "%1".</source>
        <translation>Cette base n'a pas de colonne d'images « %1 ».</translation>
    </message>
    <message>
        <source>This feature is only available for normal non-invoice style databases.</source>
        <translation>Cette fonction n'existe que pour les bases standard, sans factures.</translation>
    </message>
    <message>
        <source>This feature will prevent any changes to be made to either the database properties or the layout.  You will need to provide a password to lock or unlock your file.  Are you sure you want to do this?</source>
        <translation>Cette fonction empêchera toute modification des propriétés de la base et de la mise en page. Il faudra un mot de passe pour verrouiller ou déverrouiller le fichier. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>This is the file of the open database. Please choose another name for the table.</source>
        <translation>C'est le fichier de la base ouverte. Choisissez un autre nom pour le tableau.</translation>
    </message>
    <message>
        <source>This key is already associated with an element of this collection</source>
        <translation>Cette clé est déjà associée à un élément de cette collection</translation>
    </message>
    <message>
        <source>This object has a size or a text that cannot be copied.</source>
        <translation>Cet objet a une taille ou un texte qui ne peut pas être copié.</translation>
    </message>
    <message>
        <source>This object is locked.  Press the Lock button to unlock it.</source>
        <translation>Cet objet est verrouillé. Appuyez sur le bouton de verrouillage pour le libérer.</translation>
    </message>
    <message>
        <source>This password cannot be stored.  Please choose another one.</source>
        <translation>Ce mot de passe ne peut pas être stocké. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This record has no text, and gets no code</source>
        <translation>Cette fiche n'a pas de texte et ne reçoit pas de code</translation>
    </message>
    <message>
        <source>This record is new.  To store it please click on the Add toolbar button.</source>
        <translation>Cette fiche est nouvelle. Pour la stocker, cliquez sur le bouton Ajouter.</translation>
    </message>
    <message>
        <source>This work was never saved. It can be restored.

File: %1
Time: %2
Records: %3</source>
        <translation>Ce travail n'a jamais été enregistré. Il peut être restauré.

Fichier : %1
Heure : %2
Fiches : %3</translation>
    </message>
    <message>
        <source>Title and column &amp;headings</source>
        <translation>Titre et &amp;en-têtes des colonnes</translation>
    </message>
    <message>
        <source>To create a new invoice record please click on the New toolbar button.  It's the first one on the Layout Tab's toolbar.</source>
        <translation>Pour créer une facture, cliquez sur le bouton Nouveau, le premier de la barre d'outils de la mise en page.</translation>
    </message>
    <message>
        <source>To overwrite it loses what they have changed. To read their state keeps yours for recovery.</source>
        <translation>Remplacer perd ce qu'ils ont modifié. Lire leur état garde le vôtre pour la récupération.</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>À :</translation>
    </message>
    <message>
        <source>Too narrow for the longest text: %1.</source>
        <translation>Trop étroites pour le texte le plus long : %1.</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d'outils</translation>
    </message>
    <message>
        <source>Toolbar Te&amp;xts</source>
        <translation>Te&amp;xtes de la barre d'outils</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Haut :</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Type incompatible</translation>
    </message>
    <message>
        <source>Type the first one, or take over those of a table of another program.</source>
        <translation>Tapez la première, ou reprenez celles d'un tableau d'un autre programme.</translation>
    </message>
    <message>
        <source>Type the first one: it is filled in on the layout page.</source>
        <translation>Tapez la première : elle se remplit sur la page de mise en page.</translation>
    </message>
    <message>
        <source>UTF-16 (big endian)</source>
        <translation>UTF-16 (gros-boutiste)</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Non définie</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Souligné</translation>
    </message>
    <message>
        <source>Unlock Database</source>
        <translation>Déverrouiller la base</translation>
    </message>
    <message>
        <source>Unlock Design</source>
        <translation>Déverrouiller la création</translation>
    </message>
    <message>
        <source>Unpacking the pictures</source>
        <translation>Décompression des images</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash, because the disk is full. Please save soon.</source>
        <translation>Le travail non enregistré n'a pas pu être mis à l'abri d'une panne, car le disque est plein. Enregistrez bientôt.</translation>
    </message>
    <message>
        <source>Unsaved work could not be kept for the case of a crash. Please save soon.</source>
        <translation>Le travail non enregistré n'a pas pu être mis à l'abri d'une panne. Enregistrez bientôt.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Untitled Search Results.fwk</source>
        <translation>Résultats sans titre.fwk</translation>
    </message>
    <message>
        <source>Untitled.fwk</source>
        <translation>Sans titre.fwk</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Update Record</source>
        <translation>Mettre à jour la fiche</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Values divided by commas</source>
        <translation>Valeurs séparées par des virgules</translation>
    </message>
    <message>
        <source>Values divided by tabs</source>
        <translation>Valeurs séparées par des tabulations</translation>
    </message>
    <message>
        <source>Verify Data</source>
        <translation>Vérifier les données</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Règle verticale</translation>
    </message>
    <message>
        <source>View Next Record</source>
        <translation>Voir la fiche suivante</translation>
    </message>
    <message>
        <source>View Previous Record</source>
        <translation>Voir la fiche précédente</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>What has not been saved yet will be lost.  Restore the version all the same?</source>
        <translation>Ce qui n'a pas encore été enregistré sera perdu. Restaurer la version malgré tout ?</translation>
    </message>
    <message>
        <source>What is on the clipboard cannot be pasted: %1.</source>
        <translation>Le contenu du presse-papiers ne peut pas être collé : %1.</translation>
    </message>
    <message>
        <source>What is restored is not saved until you save it.</source>
        <translation>Ce qui est restauré n'est pas enregistré avant que vous ne l'enregistriez.</translation>
    </message>
    <message>
        <source>What is saved here could overwrite what is saved there.</source>
        <translation>Ce qui est enregistré ici pourrait remplacer ce qui est enregistré là-bas.</translation>
    </message>
    <message>
        <source>What is transparent in it has become white.</source>
        <translation>Ce qui y était transparent est devenu blanc.</translation>
    </message>
    <message>
        <source>What the first records become</source>
        <translation>Ce que deviennent les premières fiches</translation>
    </message>
    <message>
        <source>Whether it still is cannot be told from this machine.</source>
        <translation>D'ici, on ne peut pas savoir s'il l'est encore.</translation>
    </message>
    <message>
        <source>Which sums, means, least and greatest values are counted</source>
        <translation>Quelles sommes, moyennes, valeurs minimales et maximales sont comptées</translation>
    </message>
    <message>
        <source>With &amp;outlines, for a test on plain paper</source>
        <translation>Avec les c&amp;ontours, pour un essai sur papier ordinaire</translation>
    </message>
    <message>
        <source>With the &amp;Totals row</source>
        <translation>Avec la ligne &amp;des totaux</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in a folder beside the file</source>
        <translation>Avec les &amp;images, dans un dossier à côté du fichier</translation>
    </message>
    <message>
        <source>With the &amp;pictures, in the file</source>
        <translation>Avec les &amp;images, dans le fichier</translation>
    </message>
    <message>
        <source>Without an expression: %1. Tools &gt; Expression Editor says how a column is worked out.</source>
        <translation>Sans expression : %1. Outils &gt; Éditeur d'expressions indique comment une colonne se calcule.</translation>
    </message>
    <message>
        <source>Words, "a phrase", -without, Column:text, Column&gt;10</source>
        <translation>Des mots, "une phrase", -sans, Colonne:texte, Colonne&gt;10</translation>
    </message>
    <message>
        <source>Worked out from other columns by an expression</source>
        <translation>Calculée à partir d'autres colonnes par une expression</translation>
    </message>
    <message>
        <source>Would you like to rename all exact matching labels in your layout to the new name as well?</source>
        <translation>Voulez-vous aussi renommer tous les libellés identiques de la mise en page ?</translation>
    </message>
    <message>
        <source>Writing the table</source>
        <translation>Écriture du tableau</translation>
    </message>
    <message>
        <source>Written &amp;as:</source>
        <translation>Écrit co&amp;mme :</translation>
    </message>
    <message>
        <source>Written As</source>
        <translation>Écrit comme</translation>
    </message>
    <message>
        <source>Written, but the folder of %1 could not be synced to the disk: %2</source>
        <translation>Écrit, mais le dossier de %1 n'a pas pu être synchronisé avec le disque : %2</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Year, month, day</source>
        <translation>Année, mois, jour</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>You can also begin with a table of another program.</source>
        <translation>Vous pouvez aussi commencer par un tableau d'un autre programme.</translation>
    </message>
    <message>
        <source>You cannot duplicate the totals row.</source>
        <translation>La ligne des totaux ne peut pas être dupliquée.</translation>
    </message>
    <message>
        <source>You cannot globally relace items in a search window, please use the normal view.</source>
        <translation>Le remplacement global n'est pas possible dans les résultats d'une recherche ; revenez à l'affichage normal.</translation>
    </message>
    <message>
        <source>You cannot save your search results to a file named the same as the one that is currently open.</source>
        <translation>Les résultats ne peuvent pas être enregistrés sous le nom du fichier ouvert.</translation>
    </message>
    <message>
        <source>You did not enter either an address or a subject.</source>
        <translation>Vous n'avez entré ni adresse ni objet.</translation>
    </message>
    <message>
        <source>You did not enter the number of rows to create.</source>
        <translation>Vous n'avez pas entré le nombre de lignes à créer.</translation>
    </message>
    <message>
        <source>You entered a non numeric value.</source>
        <translation>Vous avez entré une valeur non numérique.</translation>
    </message>
    <message>
        <source>You entered an invalid date.</source>
        <translation>Vous avez entré une date incorrecte.</translation>
    </message>
    <message>
        <source>You have added the maximum number of columns to the database.</source>
        <translation>La base a atteint le nombre maximal de colonnes.</translation>
    </message>
    <message>
        <source>You have not selected any columns to print in the page setup dialog.</source>
        <translation>Vous n'avez choisi aucune colonne à imprimer dans la mise en page du papier.</translation>
    </message>
    <message>
        <source>You must enter a column name.</source>
        <translation>Vous devez entrer un nom de colonne.</translation>
    </message>
    <message>
        <source>You must select a field to search by.</source>
        <translation>Vous devez choisir un champ à chercher.</translation>
    </message>
    <message>
        <source>You need to first install a printer on this system.</source>
        <translation>Installez d'abord une imprimante sur ce système.</translation>
    </message>
    <message>
        <source>You selected a file other than a GIF or JPEG.  Please try again.</source>
        <translation>Vous avez choisi un fichier qui n'est ni GIF ni JPEG. Réessayez.</translation>
    </message>
    <message>
        <source>Your database has no columns that could be coloured.</source>
        <translation>Votre base n'a pas de colonnes qui puissent être colorées.</translation>
    </message>
    <message>
        <source>Your database has no columns to export.</source>
        <translation>Votre base n'a pas de colonnes à exporter.</translation>
    </message>
    <message>
        <source>Your database has no columns to paste into.</source>
        <translation>Votre base n'a pas de colonnes où coller.</translation>
    </message>
    <message>
        <source>Your database has no columns, please add some in the database properties dialog.</source>
        <translation>Votre base n'a pas de colonnes ; ajoutez-en dans les propriétés de la base.</translation>
    </message>
    <message>
        <source>Your database has no columns.</source>
        <translation>Votre base n'a pas de colonnes.</translation>
    </message>
    <message>
        <source>Your mail program could not be started.</source>
        <translation>Votre programme de messagerie n'a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>a column has no heading</source>
        <translation>une colonne n'a pas d'en-tête</translation>
    </message>
    <message>
        <source>a control character</source>
        <translation>un caractère de contrôle</translation>
    </message>
    <message>
        <source>a ne&amp;w database</source>
        <translation>une nouvelle &amp;base de données</translation>
    </message>
    <message>
        <source>a quote is opened and never closed</source>
        <translation>un guillemet est ouvert et jamais fermé</translation>
    </message>
    <message>
        <source>a&amp;nd by:</source>
        <translation>&amp;et par :</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>supérieur à %1</translation>
    </message>
    <message>
        <source>after %1</source>
        <translation>après %1</translation>
    </message>
    <message>
        <source>and</source>
        <translation>et</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <comment>and %n more</comment>
        <translation><numerusform>et %n autre</numerusform><numerusform>et %n autres</numerusform></translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>another program has changes for it that are not in it yet; close it there first</source>
        <translation>un autre programme n'y a pas encore écrit ses modifications ; fermez-y d'abord le fichier</translation>
    </message>
    <message>
        <source>archive entry</source>
        <translation>entrée de l'archive</translation>
    </message>
    <message>
        <source>before %1</source>
        <translation>avant %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>inférieur à %1</translation>
    </message>
    <message>
        <source>between %1 and %2</source>
        <translation>entre %1 et %2</translation>
    </message>
    <message>
        <source>calculation</source>
        <translation>calcul</translation>
    </message>
    <message>
        <source>cell text</source>
        <translation>texte de cellule</translation>
    </message>
    <message>
        <source>column %1</source>
        <translation>colonne %1</translation>
    </message>
    <message>
        <source>column position</source>
        <translation>position de colonne</translation>
    </message>
    <message>
        <source>columns</source>
        <translation>colonnes</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>each value</source>
        <translation>chaque valeur</translation>
    </message>
    <message>
        <source>elements of a line</source>
        <translation>éléments d'une ligne</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>entrée</translation>
    </message>
    <message>
        <source>equal to %1</source>
        <translation>égal à %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>champ %1</translation>
    </message>
    <message>
        <source>has a "|", which divides the cells of a database</source>
        <translation>contient un « | », qui sépare les cellules d'une base de données</translation>
    </message>
    <message>
        <source>has a character that cannot be shown</source>
        <translation>contient un caractère qui ne peut pas être affiché</translation>
    </message>
    <message>
        <source>has a time, which a date has no room for</source>
        <translation>comporte une heure, ce qu'une date n'admet pas</translation>
    </message>
    <message>
        <source>has more places than an amount of money</source>
        <translation>a plus de décimales qu'un montant</translation>
    </message>
    <message>
        <source>has more values than the %1 rows of the layout</source>
        <translation>a plus de valeurs que la mise en page n'a de lignes (%1)</translation>
    </message>
    <message>
        <source>has passed</source>
        <translation>est passée</translation>
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
        <translation>pouces.</translation>
    </message>
    <message>
        <source>increment</source>
        <translation>incrément</translation>
    </message>
    <message>
        <source>is above</source>
        <translation>est supérieur à</translation>
    </message>
    <message>
        <source>is after</source>
        <translation>est après</translation>
    </message>
    <message>
        <source>is before</source>
        <translation>est avant</translation>
    </message>
    <message>
        <source>is below</source>
        <translation>est inférieur à</translation>
    </message>
    <message>
        <source>is between</source>
        <translation>est entre</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is equal to</source>
        <translation>est égal à</translation>
    </message>
    <message>
        <source>is no date</source>
        <translation>n'est pas une date</translation>
    </message>
    <message>
        <source>is no date in this order</source>
        <translation>n'est pas une date dans cet ordre</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>n'est pas un nombre</translation>
    </message>
    <message>
        <source>is no number in this form</source>
        <translation>n'est pas un nombre sous cette forme</translation>
    </message>
    <message>
        <source>is too large a number</source>
        <translation>est un nombre trop grand</translation>
    </message>
    <message>
        <source>is within days</source>
        <translation>tombe d'ici (jours)</translation>
    </message>
    <message>
        <source>it has %1 bytes, which is too long for such a code</source>
        <translation>il y a %1 octets, trop pour un tel code</translation>
    </message>
    <message>
        <source>it has %1 characters, and at most %2 fit</source>
        <translation>il y a %1 caractères, pour %2 au plus</translation>
    </message>
    <message numerus="yes">
        <source>it has %n digit, and should have %1, or %2 without the check digit</source>
        <comment>it has %n digits, and should have %1, or %2 without the check digit</comment>
        <translation><numerusform>il y a %n chiffre, il en faudrait %1, ou %2 sans le chiffre de contrôle</numerusform><numerusform>il y a %n chiffres, il en faudrait %1, ou %2 sans le chiffre de contrôle</numerusform></translation>
    </message>
    <message>
        <source>it has a document type, which no spreadsheet has</source>
        <translation>il y a un type de document, ce qu'aucun classeur n'a</translation>
    </message>
    <message>
        <source>it has more rows than the %1 records that a database holds</source>
        <translation>il y a plus de lignes que les %1 fiches d'une base de données</translation>
    </message>
    <message>
        <source>it has more than %1 cells</source>
        <translation>il y a plus de %1 cellules</translation>
    </message>
    <message>
        <source>it has more than %1 columns</source>
        <translation>il y a plus de %1 colonnes</translation>
    </message>
    <message>
        <source>it has more than %1 lines</source>
        <translation>il y a plus de %1 lignes de texte</translation>
    </message>
    <message>
        <source>it has more than %1 rows</source>
        <translation>il y a plus de %1 lignes</translation>
    </message>
    <message>
        <source>it has no %1</source>
        <translation>%1 manque</translation>
    </message>
    <message>
        <source>it has no cards</source>
        <translation>il n'y a pas de cartes</translation>
    </message>
    <message>
        <source>it has no columns</source>
        <translation>il n'y a pas de colonnes</translation>
    </message>
    <message>
        <source>it has no content.xml</source>
        <translation>content.xml manque</translation>
    </message>
    <message>
        <source>it has no header line</source>
        <translation>il n'y a pas de ligne d'en-tête</translation>
    </message>
    <message>
        <source>it has no rows</source>
        <translation>il n'y a pas de lignes</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>il n'y a pas de feuilles</translation>
    </message>
    <message>
        <source>it has no such sheet</source>
        <translation>cette feuille n'y est pas</translation>
    </message>
    <message>
        <source>it has no tables</source>
        <translation>il n'y a pas de tableaux</translation>
    </message>
    <message>
        <source>it has no workbook</source>
        <translation>il n'y a pas de classeur</translation>
    </message>
    <message>
        <source>it has too many cards</source>
        <translation>il y a trop de cartes</translation>
    </message>
    <message>
        <source>it has too many columns</source>
        <translation>il y a trop de colonnes</translation>
    </message>
    <message>
        <source>it has too many merged cells</source>
        <translation>il y a trop de cellules fusionnées</translation>
    </message>
    <message>
        <source>it has too many rows</source>
        <translation>il y a trop de lignes</translation>
    </message>
    <message>
        <source>it has too many sheets</source>
        <translation>il y a trop de feuilles</translation>
    </message>
    <message>
        <source>it has too many tables</source>
        <translation>il y a trop de tableaux</translation>
    </message>
    <message>
        <source>it holds a character that is none</source>
        <translation>il contient un caractère non valide</translation>
    </message>
    <message>
        <source>it holds characters that such a code cannot</source>
        <translation>il contient des caractères qu'un tel code n'admet pas</translation>
    </message>
    <message>
        <source>it is larger than 256 MB</source>
        <translation>il dépasse 256 Mo</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>il dépasse 64 Mo</translation>
    </message>
    <message>
        <source>it is no list of records</source>
        <translation>ce n'est pas une liste de fiches</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>ce n'est pas un texte</translation>
    </message>
    <message>
        <source>it is no text in UTF-8 or Windows-1252</source>
        <translation>ce n'est pas un texte en UTF-8 ou Windows-1252</translation>
    </message>
    <message>
        <source>it is no vCard</source>
        <translation>ce n'est pas une vCard</translation>
    </message>
    <message>
        <source>it names a text that is not there</source>
        <translation>il renvoie à un texte absent</translation>
    </message>
    <message>
        <source>it takes too long to work out</source>
        <translation>le calcul est trop long</translation>
    </message>
    <message>
        <source>item %1</source>
        <translation>élément %1</translation>
    </message>
    <message>
        <source>item rows</source>
        <translation>lignes d'article</translation>
    </message>
    <message>
        <source>its JSON is damaged</source>
        <translation>son JSON est endommagé</translation>
    </message>
    <message>
        <source>its JSON is damaged at byte %1</source>
        <translation>son JSON est endommagé à l'octet %1</translation>
    </message>
    <message>
        <source>its JSON is nested too deep</source>
        <translation>son JSON est trop imbriqué</translation>
    </message>
    <message>
        <source>its XML is damaged</source>
        <translation>son XML est endommagé</translation>
    </message>
    <message>
        <source>its cells are out of order</source>
        <translation>ses cellules sont en désordre</translation>
    </message>
    <message>
        <source>its column %1 has no name</source>
        <translation>sa colonne %1 n'a pas de nom</translation>
    </message>
    <message>
        <source>its rows are out of order</source>
        <translation>ses lignes sont en désordre</translation>
    </message>
    <message>
        <source>its styles are too long</source>
        <translation>ses styles sont trop longs</translation>
    </message>
    <message>
        <source>its texts are too long</source>
        <translation>ses textes sont trop longs</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>line %1: a quote is opened and never closed</source>
        <translation>ligne %1 : un guillemet est ouvert et jamais fermé</translation>
    </message>
    <message>
        <source>memory for a code</source>
        <translation>mémoire pour un code</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>more cells than the header has names</source>
        <translation>plus de cellules que l'en-tête n'a de noms</translation>
    </message>
    <message>
        <source>more than %1 cells</source>
        <translation>plus de %1 cellules</translation>
    </message>
    <message>
        <source>new records of the &amp;open database</source>
        <translation>nouvelles fiches de la base &amp;ouverte</translation>
    </message>
    <message>
        <source>no archive is open</source>
        <translation>aucune archive n'est ouverte</translation>
    </message>
    <message>
        <source>no column "%1"</source>
        <translation>pas de colonne « %1 »</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>object %1</source>
        <translation>objet %1</translation>
    </message>
    <message>
        <source>objects of one kind</source>
        <translation>objets d'une sorte</translation>
    </message>
    <message>
        <source>of all databases, in at &amp;most</source>
        <translation>de toutes les bases, au &amp;plus</translation>
    </message>
    <message>
        <source>one of its cards has no end</source>
        <translation>une de ses cartes n'a pas de fin</translation>
    </message>
    <message>
        <source>one of its lines is no line of a vCard</source>
        <translation>une de ses lignes n'est pas une ligne de vCard</translation>
    </message>
    <message>
        <source>one of its rows is too long</source>
        <translation>une de ses lignes est trop longue</translation>
    </message>
    <message>
        <source>packing</source>
        <translation>compression</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>trimestre</translation>
    </message>
    <message>
        <source>record %1 has a text too long for a spreadsheet</source>
        <translation>la fiche %1 a un texte trop long pour une feuille de calcul</translation>
    </message>
    <message>
        <source>record keys</source>
        <translation>clés des fiches</translation>
    </message>
    <message>
        <source>sub-item %1</source>
        <translation>sous-élément %1</translation>
    </message>
    <message>
        <source>sum of amounts</source>
        <translation>somme de montants</translation>
    </message>
    <message>
        <source>text behind the closing quote of a cell</source>
        <translation>texte après le guillemet fermant d'une cellule</translation>
    </message>
    <message>
        <source>the column "%1" has no field on the layout</source>
        <translation>la colonne « %1 » n'a pas de champ sur la mise en page</translation>
    </message>
    <message>
        <source>the column "%1" is there twice</source>
        <translation>la colonne « %1 » y est deux fois</translation>
    </message>
    <message>
        <source>the last digit should be %1</source>
        <translation>le dernier chiffre devrait être %1</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>l'imprimante ne répond pas</translation>
    </message>
    <message>
        <source>the program knows no table of this kind</source>
        <translation>le programme ne connaît pas de tableau de cette sorte</translation>
    </message>
    <message>
        <source>the same number of each record</source>
        <translation>le même nombre de chaque fiche</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>le texte se termine trop tôt</translation>
    </message>
    <message>
        <source>there is no column %1</source>
        <translation>il n'y a pas de colonne %1</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>il n'y a pas d'imprimante</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>trop de parenthèses</translation>
    </message>
    <message numerus="yes">
        <source>within %1 day</source>
        <comment>within %1 days</comment>
        <translation><numerusform>d'ici %1 jour</numerusform><numerusform>d'ici %1 jours</numerusform></translation>
    </message>
    <message>
        <source>year</source>
        <translation>année</translation>
    </message>
</context>
</TS>
