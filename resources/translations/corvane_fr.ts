<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>À propos de Corvane</translation>
    </message>
    <message>
        <source>Keeps track of credit-card debt, and of the day it is gone</source>
        <translation>Suit vos dettes de cartes de crédit, jusqu’au jour où elles auront disparu</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Fichier de données</translation>
    </message>
    <message>
        <source>Nothing on this system opens folders.</source>
        <translation>Rien sur ce système n’ouvre les dossiers.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
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
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Selects the item</source>
        <translation>Sélectionne l’élément</translation>
    </message>
</context>
<context>
    <name>AmountField</name>
    <message>
        <source>Amounts here are in %1, not in %2.</source>
        <translation>Les montants sont ici en %1, pas en %2.</translation>
    </message>
    <message>
        <source>This can mean %1 or %2.</source>
        <translation>Cela peut vouloir dire %1 ou %2.</translation>
    </message>
    <message>
        <source>An amount here has no decimals.</source>
        <translation>Un montant n’a pas de décimales ici.</translation>
    </message>
    <message numerus="yes">
        <source>An amount here has at most %n decimals.</source>
        <translation>
            <numerusform>Un montant a ici au plus %n décimale.</numerusform>
            <numerusform>Un montant a ici au plus %n décimales.</numerusform>
        </translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Vouliez-vous dire %1&#xa0;?</translation>
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
        <translation>Carte sans nom</translation>
    </message>
</context>
<context>
    <name>CVCardPopover</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Devise</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CVCardPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>CVCardTableCellView</name>
    <message>
        <source>Add Statement</source>
        <translation>Ajouter un relevé</translation>
    </message>
    <message>
        <source>Add a statement of this card</source>
        <translation>Ajouter un relevé de cette carte</translation>
    </message>
</context>
<context>
    <name>CVCardTableView</name>
    <message>
        <source>Cards</source>
        <translation>Cartes</translation>
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
        <translation>TAEG %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>CVStatementPopover</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Plafond</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Paiement</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>TAEG</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CVStatementPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>This was deleted meanwhile.</source>
        <translation>Cela a été supprimé entre-temps.</translation>
    </message>
    <message>
        <source>There is no date.</source>
        <translation>Il n’y a pas de date.</translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>Ce n’est pas une date.</translation>
    </message>
    <message>
        <source>This date is still to come.</source>
        <translation>Cette date est à venir.</translation>
    </message>
    <message>
        <source>%1 has a statement already, of %2.</source>
        <translation>Il y a déjà un relevé pour %1, celui du %2.</translation>
    </message>
    <message>
        <source>The limit and the payment will become the balance, %1.</source>
        <translation>Le plafond et le paiement seront portés au solde, %1.</translation>
    </message>
    <message>
        <source>The limit will be raised to the balance, %1.</source>
        <translation>Le plafond sera porté au solde, %1.</translation>
    </message>
    <message>
        <source>A payment of nothing will become the whole balance, %1.</source>
        <translation>Un paiement nul sera remplacé par le solde entier, %1.</translation>
    </message>
</context>
<context>
    <name>CVTimelineHeaderView</name>
    <message>
        <source>Timeline</source>
        <translation>Chronologie</translation>
    </message>
</context>
<context>
    <name>CVTimelineTableView</name>
    <message>
        <source>Timeline</source>
        <translation>Chronologie</translation>
    </message>
</context>
<context>
    <name>Corvane_AppDelegate</name>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Impossible d’enregistrer les modifications avant de quitter. Quitter quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si vous quittez maintenant, les modifications faites depuis le dernier enregistrement réussi seront perdues</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>CurrencyChooser</name>
    <message>
        <source>Choose Currency</source>
        <translation>Choisir la devise</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>Cette devise n’existe pas.</translation>
    </message>
</context>
<context>
    <name>DebtForecast</name>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Debt-free never</source>
        <translation>Jamais libre de dettes</translation>
    </message>
    <message>
        <source>Debt-free %1</source>
        <translation>Libre de dettes le %1</translation>
    </message>
    <message numerus="yes">
        <source>%n m ⟶ %1</source>
        <extracomment>In the space of a card&apos;s row: the months until it is paid off, and the day when it is. The arrow points where reading goes on.</extracomment>
        <translation>
            <numerusform>%n mois ⟶ %1</numerusform>
            <numerusform>%n mois ⟶ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DemoStore</name>
    <message>
        <source>Demo, nothing is kept – Corvane</source>
        <translation>Démo, rien n’est conservé – Corvane</translation>
    </message>
</context>
<context>
    <name>DialogPresenter</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Cards</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Zoom the timeline</source>
        <translation>Agrandir ou réduire la chronologie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>&amp;Corvane</source>
        <translation>&amp;Corvane</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>À &amp;propos de Corvane</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;New Card…</source>
        <translation>&amp;Nouvelle carte…</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete the selected statement or card</source>
        <translation>Supprimer le relevé ou la carte sélectionnés</translation>
    </message>
    <message>
        <source>Get &amp;Info</source>
        <translation>&amp;Informations</translation>
    </message>
    <message>
        <source>Information about the selection</source>
        <translation>Informations sur la sélection</translation>
    </message>
    <message>
        <source>&amp;Card List</source>
        <translation>&amp;Liste des cartes</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Statement to the &amp;Left</source>
        <translation>Relevé de &amp;gauche</translation>
    </message>
    <message>
        <source>Statement to the &amp;Right</source>
        <translation>Relevé de &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Add Statement…</source>
        <translation>&amp;Ajouter un relevé…</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>No statements yet</source>
        <translation>Aucun relevé pour l’instant</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Aucune carte pour l’instant</translation>
    </message>
    <message>
        <source>Add your first card with the + below the list, then a statement each month, and see the day you will be debt-free.</source>
        <translation>Ajoutez votre première carte avec le + sous la liste, puis un relevé chaque mois, et voyez le jour où vous n’aurez plus de dettes.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Delete Statement</source>
        <translation>&amp;Supprimer le relevé</translation>
    </message>
    <message>
        <source>&amp;Delete Card</source>
        <translation>&amp;Supprimer la carte</translation>
    </message>
    <message>
        <source>Delete Statement</source>
        <translation>Supprimer le relevé</translation>
    </message>
    <message>
        <source>Delete Card</source>
        <translation>Supprimer la carte</translation>
    </message>
    <message>
        <source>Save Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Add a card’s statement with the + in its row, and another each month.</source>
        <translation>Ajoutez un relevé avec le + de la ligne d’une carte, puis un autre chaque mois.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
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
        <translation>Les modifications n’ont pas pu être enregistrées.</translation>
    </message>
    <message>
        <source>A record is not valid.</source>
        <translation>Un enregistrement n’est pas valide.</translation>
    </message>
    <message>
        <source>There is no data file.</source>
        <translation>Il n’y a pas de fichier de données.</translation>
    </message>
    <message>
        <source>The data file “%1” is in use by another program.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>The data file “%1” is damaged.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» est endommagé.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Corvane data file.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas un fichier de données de Corvane.</translation>
    </message>
    <message>
        <source>There is no room left to save to the data file “%1”.</source>
        <translation>Il n’y a plus de place pour enregistrer dans le fichier de données «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The data file “%1” cannot be written.</source>
        <translation>Impossible d’écrire dans le fichier de données «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be opened.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be read or written.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être lu ou écrit.</translation>
    </message>
    <message>
        <source>The data file “%1” was made by another version.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» a été créé par une autre version.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be made.</source>
        <translation>Le fichier de données «&#xa0;%1&#xa0;» n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is write-protected.</source>
        <translation>Il est protégé en écriture.</translation>
    </message>
    <message>
        <source>Its folder is write-protected.</source>
        <translation>Son dossier est protégé en écriture.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Impossible d’ouvrir les données</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Une erreur est survenue lors de la préparation du fichier de données.</translation>
    </message>
    <message>
        <source>The file “%1” could not be locked for Corvane alone.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas pu être verrouillé pour Corvane seul.</translation>
    </message>
    <message>
        <source>SQLite reports: %1.</source>
        <translation>SQLite signale&#xa0;: %1.</translation>
    </message>
    <message>
        <source>the data file is in use by another program</source>
        <translation>un autre programme utilise le fichier de données</translation>
    </message>
    <message>
        <source>the data file is damaged</source>
        <translation>le fichier de données est endommagé</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the data file cannot be written</source>
        <translation>impossible d’écrire dans le fichier de données</translation>
    </message>
    <message>
        <source>the data file could not be opened</source>
        <translation>le fichier de données n’a pas pu être ouvert</translation>
    </message>
    <message>
        <source>the data file could not be written</source>
        <translation>le fichier de données n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>a record is not valid</source>
        <translation>un enregistrement n’est pas valide</translation>
    </message>
    <message>
        <source>there is no data file</source>
        <translation>il n’y a pas de fichier de données</translation>
    </message>
    <message>
        <source>the file is not a Corvane data file</source>
        <translation>le fichier n’est pas un fichier de données de Corvane</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>Deleted %1</source>
        <translation>Carte supprimée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Deleted %1 and its statement</source>
        <translation>Carte supprimée avec son relevé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 and its %n statements</source>
        <translation>
            <numerusform>Carte supprimée avec %n relevé&#xa0;: %1</numerusform>
            <numerusform>Carte supprimée avec ses %n relevés&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleted the statement of %1 for %2</source>
        <translation>Relevé du %1 pour %2 supprimé</translation>
    </message>
    <message>
        <source>The new card was not added</source>
        <translation>La nouvelle carte n’a pas été ajoutée</translation>
    </message>
    <message>
        <source>The statement for %1 was not added</source>
        <translation>Le relevé pour %1 n’a pas été ajouté</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>Carte ajoutée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>Carte modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>The statement is gone, so the editor was closed</source>
        <translation>Le relevé n’existe plus, le formulaire a donc été fermé</translation>
    </message>
    <message>
        <source>The card is gone, so the editor was closed</source>
        <translation>La carte n’existe plus, le formulaire a donc été fermé</translation>
    </message>
    <message>
        <source>%1 was not changed</source>
        <translation>Carte non modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 was not changed</source>
        <translation>Relevé du %1 pour %2 non modifié</translation>
    </message>
    <message>
        <source>The new card is not added yet</source>
        <translation>La nouvelle carte n’est pas encore ajoutée</translation>
    </message>
    <message>
        <source>The statement for %1 is not added yet</source>
        <translation>Le relevé pour %1 n’est pas encore ajouté</translation>
    </message>
    <message>
        <source>%1 is not changed yet</source>
        <translation>Carte pas encore modifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 is not changed yet</source>
        <translation>Relevé du %1 pour %2 pas encore modifié</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A number has at most %1 digits.</source>
        <translation>Un nombre a au plus %1 chiffres.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Ce n’est pas un nombre.</translation>
    </message>
</context>
<context>
    <name>OADatePicker</name>
    <message>
        <source>Previous Month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Back to Today</source>
        <translation>Revenir à aujourd’hui</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>Mois suivant</translation>
    </message>
</context>
<context>
    <name>OADatePickerButton</name>
    <message>
        <source>Choose Date</source>
        <translation>Choisir la date</translation>
    </message>
</context>
<context>
    <name>OADatePickerTextField</name>
    <message>
        <source>Choose Date</source>
        <translation>Choisir la date</translation>
    </message>
</context>
<context>
    <name>OpenCardEditor</name>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Add Card</source>
        <translation>Ajouter une carte</translation>
    </message>
    <message>
        <source>Edit Card</source>
        <translation>Modifier la carte</translation>
    </message>
</context>
<context>
    <name>OpenStatementEditor</name>
    <message>
        <source>Statement</source>
        <translation>Relevé</translation>
    </message>
    <message>
        <source>Add Statement</source>
        <translation>Ajouter un relevé</translation>
    </message>
    <message>
        <source>Edit Statement</source>
        <translation>Modifier le relevé</translation>
    </message>
</context>
<context>
    <name>PackageTransaction</name>
    <message>
        <source>PackageKit, which knows the packages of this system, is not installed.</source>
        <translation>PackageKit, qui connaît les paquets de ce système, n’est pas installé.</translation>
    </message>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit ne répond pas.</translation>
    </message>
    <message>
        <source>PackageKit cannot be asked: %1</source>
        <translation>Impossible d’interroger PackageKit&#xa0;: %1</translation>
    </message>
    <message>
        <source>PackageKit ended before it had an answer.</source>
        <translation>PackageKit s’est arrêté avant d’avoir une réponse.</translation>
    </message>
    <message>
        <source>PackageKit reports: %1</source>
        <translation>PackageKit signale&#xa0;: %1</translation>
    </message>
    <message>
        <source>PackageKit gave up.</source>
        <translation>PackageKit a abandonné.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>Le bus de messages du système est injoignable.</translation>
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
        <translation>er|ère|le|du|de</translation>
    </message>
    <message>
        <source>today|now</source>
        <extracomment>Alternatives are separated by &apos;|&apos;; all of them are understood.</extracomment>
        <translation>aujourd’hui|aujourd hui|ce jour|maintenant</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>demain</translation>
    </message>
    <message>
        <source>last %1|past %1</source>
        <extracomment>%1 is a weekday, or one of the words for week, month and year.</extracomment>
        <translation>%1 dernier|%1 dernière|le %1 dernier|la %1 dernière|l’%1 dernière|l’%1 dernier|%1 passé|%1 passée</translation>
    </message>
    <message>
        <source>%1 %2 ago</source>
        <extracomment>%1 is a number or one of the words for one, %2 one of the words for days to years.</extracomment>
        <translation>il y a %1 %2|voilà %1 %2</translation>
    </message>
    <message>
        <source>a|an|one</source>
        <translation>un|une</translation>
    </message>
    <message>
        <source>d|day|days</source>
        <extracomment>In the order of days, weeks, months and years: in all grammatical forms, and with a letter that stands for it in &quot;-2d&quot;.</extracomment>
        <translation>j|jour|jours</translation>
    </message>
    <message>
        <source>w|week|weeks</source>
        <translation>s|sem|semaine|semaines</translation>
    </message>
    <message>
        <source>m|month|months</source>
        <translation>m|mois</translation>
    </message>
    <message>
        <source>y|year|years</source>
        <translation>a|an|ans|année|années</translation>
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
        <translation>Paiement %1</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit ne répond pas.</translation>
    </message>
    <message>
        <source>Corvane was not installed as a package, so this system knows of no newer one.</source>
        <translation>Corvane n’a pas été installé comme paquet&#xa0;; ce système n’en connaît donc pas de plus récent.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>Le bus de messages du système est injoignable.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Looking for a newer version</source>
        <translation>Recherche d’une version plus récente</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Recherche d’une version plus récente…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>A newer version of Corvane is available</source>
        <translation>Une version plus récente de Corvane est disponible</translation>
    </message>
    <message>
        <source>Version %1 is installed. Version %2 comes with the next update of your system.</source>
        <translation>La version %1 est installée. La version %2 viendra avec la prochaine mise à jour de votre système.</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane est à jour</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system knows of.</source>
        <translation>La version %1 est la plus récente que connaisse votre système.</translation>
    </message>
    <message>
        <source>Unable to look for a newer version</source>
        <translation>Impossible de rechercher une version plus récente</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
</TS>
