<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>Über Corvane</translation>
    </message>
    <message>
        <source>Keeps track of credit-card debt, and of the day it is gone</source>
        <translation>Behält Kreditkartenschulden im Blick, bis zu dem Tag, an dem sie weg sind</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Datendatei</translation>
    </message>
    <message>
        <source>Nothing on this system opens folders.</source>
        <translation>Auf diesem System gibt es nichts, das Ordner öffnet.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Selects the item</source>
        <translation>Wählt den Eintrag aus</translation>
    </message>
</context>
<context>
    <name>AmountField</name>
    <message>
        <source>Amounts here are in %1, not in %2.</source>
        <translation>Beträge sind hier in %1, nicht in %2.</translation>
    </message>
    <message>
        <source>This can mean %1 or %2.</source>
        <translation>Das kann %1 oder %2 heißen.</translation>
    </message>
    <message>
        <source>An amount here has no decimals.</source>
        <translation>Hier sind keine Nachkommastellen möglich.</translation>
    </message>
    <message numerus="yes">
        <source>An amount here has at most %n decimals.</source>
        <translation>
            <numerusform>Hier ist nur %n Nachkommastelle möglich.</numerusform>
            <numerusform>Hier sind nur %n Nachkommastellen möglich.</numerusform>
        </translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Meinten Sie %1?</translation>
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
        <translation>Unbenannte Karte</translation>
    </message>
</context>
<context>
    <name>CVCardPopover</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CVCardPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>CVCardTableCellView</name>
    <message>
        <source>Add Statement</source>
        <translation>Abrechnung hinzufügen</translation>
    </message>
    <message>
        <source>Add a statement of this card</source>
        <translation>Abrechnung dieser Karte hinzufügen</translation>
    </message>
</context>
<context>
    <name>CVCardTableView</name>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
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
        <translation>%1&#xa0;% eff. Jahreszins</translation>
    </message>
</context>
<context>
    <name>CVStatementPopover</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>Eff. Jahreszins</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CVStatementPopoverController</name>
    <message>
        <source>Update</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>This was deleted meanwhile.</source>
        <translation>Das wurde inzwischen gelöscht.</translation>
    </message>
    <message>
        <source>There is no date.</source>
        <translation>Es fehlt ein Datum.</translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>Das ist kein Datum.</translation>
    </message>
    <message>
        <source>This date is still to come.</source>
        <translation>Dieses Datum liegt in der Zukunft.</translation>
    </message>
    <message>
        <source>%1 has a statement already, of %2.</source>
        <translation>%1 hat schon eine Abrechnung, vom %2.</translation>
    </message>
    <message>
        <source>The limit and the payment will become the balance, %1.</source>
        <translation>Limit und Zahlung werden auf den Saldo von %1 gesetzt.</translation>
    </message>
    <message>
        <source>The limit will be raised to the balance, %1.</source>
        <translation>Das Limit wird auf den Saldo von %1 angehoben.</translation>
    </message>
    <message>
        <source>A payment of nothing will become the whole balance, %1.</source>
        <translation>Eine Zahlung von null wird durch den ganzen Saldo von %1 ersetzt.</translation>
    </message>
</context>
<context>
    <name>CVTimelineHeaderView</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitachse</translation>
    </message>
</context>
<context>
    <name>CVTimelineTableView</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitachse</translation>
    </message>
</context>
<context>
    <name>Corvane_AppDelegate</name>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Die Änderungen konnten beim Beenden nicht gesichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Wenn Sie jetzt beenden, gehen alle Änderungen seit dem letzten erfolgreichen Speichern verloren</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>CurrencyChooser</name>
    <message>
        <source>Choose Currency</source>
        <translation>Währung wählen</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>Diese Währung gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>DebtForecast</name>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Debt-free never</source>
        <translation>Niemals schuldenfrei</translation>
    </message>
    <message>
        <source>Debt-free %1</source>
        <translation>Schuldenfrei am %1</translation>
    </message>
    <message numerus="yes">
        <source>%n m ⟶ %1</source>
        <extracomment>In the space of a card&apos;s row: the months until it is paid off, and the day when it is. The arrow points where reading goes on.</extracomment>
        <translation>
            <numerusform>%n Monat ⟶ %1</numerusform>
            <numerusform>%n Monate ⟶ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DemoStore</name>
    <message>
        <source>Demo, nothing is kept – Corvane</source>
        <translation>Demo, nichts wird gespeichert – Corvane</translation>
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
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Zoom the timeline</source>
        <translation>Zeitachse vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>&amp;Corvane</source>
        <translation>&amp;Corvane</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>&amp;Über Corvane</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;New Card…</source>
        <translation>&amp;Neue Karte…</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected statement or card</source>
        <translation>Ausgewählte Abrechnung oder Karte löschen</translation>
    </message>
    <message>
        <source>Get &amp;Info</source>
        <translation>&amp;Informationen</translation>
    </message>
    <message>
        <source>Information about the selection</source>
        <translation>Informationen zur Auswahl</translation>
    </message>
    <message>
        <source>&amp;Card List</source>
        <translation>&amp;Kartenliste</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>V&amp;erkleinern</translation>
    </message>
    <message>
        <source>Statement to the &amp;Left</source>
        <translation>Abrechnung &amp;links</translation>
    </message>
    <message>
        <source>Statement to the &amp;Right</source>
        <translation>Abrechnung &amp;rechts</translation>
    </message>
    <message>
        <source>&amp;Add Statement…</source>
        <translation>&amp;Abrechnung hinzufügen…</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>&amp;Nach Aktualisierungen suchen…</translation>
    </message>
    <message>
        <source>No statements yet</source>
        <translation>Noch keine Abrechnungen</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>Noch keine Karten</translation>
    </message>
    <message>
        <source>Add your first card with the + below the list, then a statement each month, and see the day you will be debt-free.</source>
        <translation>Fügen Sie mit dem + unter der Liste Ihre erste Karte hinzu, dann jeden Monat eine Abrechnung, und sehen Sie, wann Sie schuldenfrei sind.</translation>
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
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>&amp;Delete Statement</source>
        <translation>Abrechnung &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Delete Card</source>
        <translation>Karte &amp;löschen</translation>
    </message>
    <message>
        <source>Delete Statement</source>
        <translation>Abrechnung löschen</translation>
    </message>
    <message>
        <source>Delete Card</source>
        <translation>Karte löschen</translation>
    </message>
    <message>
        <source>Save Again</source>
        <translation>Erneut speichern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Add a card’s statement with the + in its row, and another each month.</source>
        <translation>Fügen Sie mit dem + in der Zeile einer Karte deren Abrechnung hinzu, und jeden Monat eine weitere.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
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
        <translation>Die Änderungen konnten nicht gesichert werden.</translation>
    </message>
    <message>
        <source>A record is not valid.</source>
        <translation>Ein Eintrag ist ungültig.</translation>
    </message>
    <message>
        <source>There is no data file.</source>
        <translation>Es gibt keine Datendatei.</translation>
    </message>
    <message>
        <source>The data file “%1” is in use by another program.</source>
        <translation>Die Datendatei „%1“ wird von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>The data file “%1” is damaged.</source>
        <translation>Die Datendatei „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Corvane data file.</source>
        <translation>Die Datei „%1“ ist keine Datendatei von Corvane.</translation>
    </message>
    <message>
        <source>There is no room left to save to the data file “%1”.</source>
        <translation>Zum Speichern in die Datendatei „%1“ ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The data file “%1” cannot be written.</source>
        <translation>In die Datendatei „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be opened.</source>
        <translation>Die Datendatei „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be read or written.</source>
        <translation>Die Datendatei „%1“ konnte nicht gelesen oder geschrieben werden.</translation>
    </message>
    <message>
        <source>The data file “%1” was made by another version.</source>
        <translation>Die Datendatei „%1“ wurde von einer anderen Version angelegt.</translation>
    </message>
    <message>
        <source>The data file “%1” could not be made.</source>
        <translation>Die Datendatei „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>It is write-protected.</source>
        <translation>Sie ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Its folder is write-protected.</source>
        <translation>Ihr Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>Die Daten konnten nicht geöffnet werden</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>Beim Anlegen der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>The file “%1” could not be locked for Corvane alone.</source>
        <translation>Die Datei „%1“ konnte nicht für Corvane allein gesperrt werden.</translation>
    </message>
    <message>
        <source>SQLite reports: %1.</source>
        <translation>SQLite meldet: %1.</translation>
    </message>
    <message>
        <source>the data file is in use by another program</source>
        <translation>ein anderes Programm verwendet die Datendatei</translation>
    </message>
    <message>
        <source>the data file is damaged</source>
        <translation>die Datendatei ist beschädigt</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the data file cannot be written</source>
        <translation>die Datendatei ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>the data file could not be opened</source>
        <translation>die Datendatei ließ sich nicht öffnen</translation>
    </message>
    <message>
        <source>the data file could not be written</source>
        <translation>die Datendatei ließ sich nicht schreiben</translation>
    </message>
    <message>
        <source>a record is not valid</source>
        <translation>ein Eintrag ist ungültig</translation>
    </message>
    <message>
        <source>there is no data file</source>
        <translation>es gibt keine Datendatei</translation>
    </message>
    <message>
        <source>the file is not a Corvane data file</source>
        <translation>die Datei ist keine Datendatei von Corvane</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>Deleted %1</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>Deleted %1 and its statement</source>
        <translation>%1 mit der Abrechnung gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 and its %n statements</source>
        <translation>
            <numerusform>%1 mit %n Abrechnung gelöscht</numerusform>
            <numerusform>%1 mit %n Abrechnungen gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleted the statement of %1 for %2</source>
        <translation>Abrechnung vom %1 für %2 gelöscht</translation>
    </message>
    <message>
        <source>The new card was not added</source>
        <translation>Die neue Karte wurde nicht hinzugefügt</translation>
    </message>
    <message>
        <source>The statement for %1 was not added</source>
        <translation>Die Abrechnung für %1 wurde nicht hinzugefügt</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>The statement is gone, so the editor was closed</source>
        <translation>Formular geschlossen, denn die Abrechnung gibt es nicht mehr</translation>
    </message>
    <message>
        <source>The card is gone, so the editor was closed</source>
        <translation>Formular geschlossen, denn die Karte gibt es nicht mehr</translation>
    </message>
    <message>
        <source>%1 was not changed</source>
        <translation>%1 wurde nicht geändert</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 was not changed</source>
        <translation>Abrechnung vom %1 für %2 nicht geändert</translation>
    </message>
    <message>
        <source>The new card is not added yet</source>
        <translation>Die neue Karte ist noch nicht hinzugefügt</translation>
    </message>
    <message>
        <source>The statement for %1 is not added yet</source>
        <translation>Die Abrechnung für %1 ist noch nicht hinzugefügt</translation>
    </message>
    <message>
        <source>%1 is not changed yet</source>
        <translation>%1 ist noch nicht geändert</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 is not changed yet</source>
        <translation>Abrechnung vom %1 für %2 noch nicht geändert</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A number has at most %1 digits.</source>
        <translation>Eine Zahl hat höchstens %1 Ziffern.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>OADatePicker</name>
    <message>
        <source>Previous Month</source>
        <translation>Voriger Monat</translation>
    </message>
    <message>
        <source>Back to Today</source>
        <translation>Zurück zu heute</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>Nächster Monat</translation>
    </message>
</context>
<context>
    <name>OADatePickerButton</name>
    <message>
        <source>Choose Date</source>
        <translation>Datum wählen</translation>
    </message>
</context>
<context>
    <name>OADatePickerTextField</name>
    <message>
        <source>Choose Date</source>
        <translation>Datum wählen</translation>
    </message>
</context>
<context>
    <name>OpenCardEditor</name>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Add Card</source>
        <translation>Karte hinzufügen</translation>
    </message>
    <message>
        <source>Edit Card</source>
        <translation>Karte ändern</translation>
    </message>
</context>
<context>
    <name>OpenStatementEditor</name>
    <message>
        <source>Statement</source>
        <translation>Abrechnung</translation>
    </message>
    <message>
        <source>Add Statement</source>
        <translation>Abrechnung hinzufügen</translation>
    </message>
    <message>
        <source>Edit Statement</source>
        <translation>Abrechnung ändern</translation>
    </message>
</context>
<context>
    <name>PackageTransaction</name>
    <message>
        <source>PackageKit, which knows the packages of this system, is not installed.</source>
        <translation>PackageKit, das die Pakete dieses Systems kennt, ist nicht installiert.</translation>
    </message>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit antwortet nicht.</translation>
    </message>
    <message>
        <source>PackageKit cannot be asked: %1</source>
        <translation>PackageKit lässt sich nicht fragen: %1</translation>
    </message>
    <message>
        <source>PackageKit ended before it had an answer.</source>
        <translation>PackageKit wurde beendet, bevor es eine Antwort hatte.</translation>
    </message>
    <message>
        <source>PackageKit reports: %1</source>
        <translation>PackageKit meldet: %1</translation>
    </message>
    <message>
        <source>PackageKit gave up.</source>
        <translation>PackageKit hat aufgegeben.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>Der Nachrichtenbus des Systems ist nicht erreichbar.</translation>
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
        <translation>der|den|dem|am|vom</translation>
    </message>
    <message>
        <source>today|now</source>
        <extracomment>Alternatives are separated by &apos;|&apos;; all of them are understood.</extracomment>
        <translation>heute|jetzt</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>morgen</translation>
    </message>
    <message>
        <source>last %1|past %1</source>
        <extracomment>%1 is a weekday, or one of the words for week, month and year.</extracomment>
        <translation>letzte %1|letzten %1|letzter %1|letztes %1|letztem %1|vorige %1|vorigen %1|voriger %1|voriges %1|vergangene %1|vergangenen %1|vergangenes %1</translation>
    </message>
    <message>
        <source>%1 %2 ago</source>
        <extracomment>%1 is a number or one of the words for one, %2 one of the words for days to years.</extracomment>
        <translation>vor %1 %2</translation>
    </message>
    <message>
        <source>a|an|one</source>
        <translation>ein|eine|einem|einer|einen</translation>
    </message>
    <message>
        <source>d|day|days</source>
        <extracomment>In the order of days, weeks, months and years: in all grammatical forms, and with a letter that stands for it in &quot;-2d&quot;.</extracomment>
        <translation>T|Tag|Tage|Tagen</translation>
    </message>
    <message>
        <source>w|week|weeks</source>
        <translation>W|Woche|Wochen</translation>
    </message>
    <message>
        <source>m|month|months</source>
        <translation>M|Monat|Monate|Monaten|Monats</translation>
    </message>
    <message>
        <source>y|year|years</source>
        <translation>J|Jahr|Jahre|Jahren|Jahres</translation>
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
        <translation>Zahlung %1</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit antwortet nicht.</translation>
    </message>
    <message>
        <source>Corvane was not installed as a package, so this system knows of no newer one.</source>
        <translation>Corvane wurde nicht als Paket installiert, daher kennt dieses System kein neueres.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>Der Nachrichtenbus des Systems ist nicht erreichbar.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Looking for a newer version</source>
        <translation>Neuere Version wird gesucht</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Neuere Version wird gesucht…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>A newer version of Corvane is available</source>
        <translation>Eine neuere Version von Corvane ist verfügbar</translation>
    </message>
    <message>
        <source>Version %1 is installed. Version %2 comes with the next update of your system.</source>
        <translation>Version %1 ist installiert. Version %2 kommt mit der nächsten Aktualisierung Ihres Systems.</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane ist aktuell</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system knows of.</source>
        <translation>Version %1 ist die neueste, die Ihr System kennt.</translation>
    </message>
    <message>
        <source>Unable to look for a newer version</source>
        <translation>Nach einer neueren Version kann nicht gesucht werden</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
</TS>
