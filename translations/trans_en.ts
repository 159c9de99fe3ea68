<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>Dialog_Select_Number</name>
    <message>
        <source>Einen Nachbar löschen</source>
        <translation>Remove one neighbour</translation>
    </message>
    <message>
        <source>Einen Nachbar setzen</source>
        <translation>Bet one neighbour</translation>
    </message>
    <message>
        <source>Zwei Nachbarn löschen</source>
        <translation>Remove two neighbours</translation>
    </message>
    <message>
        <source>Zwei Nachbarn setzen</source>
        <translation>Bet two neighbours</translation>
    </message>
    <message>
        <source>Drei Nachbarn löschen</source>
        <translation>Remove three neighbours</translation>
    </message>
    <message>
        <source>Drei Nachbarn setzen</source>
        <translation>Bet three neighbours</translation>
    </message>
    <message>
        <source>Finale löschen</source>
        <translation>Remove a finale</translation>
    </message>
    <message>
        <source>Finale setzen</source>
        <translation>Bet a finale</translation>
    </message>
    <message>
        <source>Finale:</source>
        <translation>Finale:</translation>
    </message>
    <message>
        <source>Zahl:</source>
        <translation>Number:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>zu wenige Coups</source>
        <translation>too few coups</translation>
    </message>
    <message>
        <source>Setzung löschen</source>
        <translation>Clear bets</translation>
    </message>
    <message>
        <source>Letzte Setzung</source>
        <translation>Last bet</translation>
    </message>
    <message>
        <source>Wiederholen</source>
        <translation>Repeat bet</translation>
    </message>
    <message>
        <source>Superkurzspiel</source>
        <translation>Super short game</translation>
    </message>
    <message>
        <source>Spiel</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Dateien</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Ladedatei bearbeiten</source>
        <translation>Edit load file</translation>
    </message>
    <message>
        <source>Permanenz</source>
        <translation>Permanence</translation>
    </message>
    <message>
        <source>Systemspiel</source>
        <translation>System game</translation>
    </message>
    <message>
        <source>Systemdateien</source>
        <translation>System files</translation>
    </message>
    <message>
        <source>Statistik</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Hilfe</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Zurücksetzen...</source>
        <translation>Reset...</translation>
    </message>
    <message>
        <source>Optionen...</source>
        <translation>Options...</translation>
    </message>
    <message>
        <source>Beenden</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Lademenü...</source>
        <translation>Load files...</translation>
    </message>
    <message>
        <source>Historie laden...</source>
        <translation>Load history...</translation>
    </message>
    <message>
        <source>Aktuelle Permanenz...</source>
        <translation>Current permanence...</translation>
    </message>
    <message>
        <source>Jahrespermanenz...</source>
        <translation>Year permanence...</translation>
    </message>
    <message>
        <source>Systemspiel...</source>
        <translation>System game...</translation>
    </message>
    <message>
        <source>SysMonitor Spieler 1</source>
        <translation>System monitor player 1</translation>
    </message>
    <message>
        <source>SysMonitor Spieler 2</source>
        <translation>System monitor player 2</translation>
    </message>
    <message>
        <source>SysMonitor Spieler 3</source>
        <translation>System monitor player 3</translation>
    </message>
    <message>
        <source>SysMonitor Spieler 4</source>
        <translation>System monitor player 4</translation>
    </message>
    <message>
        <source>Hauptladedatei</source>
        <translation>Main load file</translation>
    </message>
    <message>
        <source>Folgeladedatei 1</source>
        <translation>Follow file 1</translation>
    </message>
    <message>
        <source>Folgeladedatei 2</source>
        <translation>Follow file 2</translation>
    </message>
    <message>
        <source>Folgeladedatei 3</source>
        <translation>Follow file 3</translation>
    </message>
    <message>
        <source>Folgeladedatei 4</source>
        <translation>Follow file 4</translation>
    </message>
    <message>
        <source>Folgeladedatei 5</source>
        <translation>Follow file 5</translation>
    </message>
    <message>
        <source>Folgeladedatei 6</source>
        <translation>Follow file 6</translation>
    </message>
    <message>
        <source>Folgeladedatei 7</source>
        <translation>Follow file 7</translation>
    </message>
    <message>
        <source>Folgeladedatei 8</source>
        <translation>Follow file 8</translation>
    </message>
    <message>
        <source>Neue Datei...</source>
        <translation>New file...</translation>
    </message>
    <message>
        <source>Datei öffnen...</source>
        <translation>Open file...</translation>
    </message>
    <message>
        <source>Wie oft?</source>
        <translation>How often?</translation>
    </message>
    <message>
        <source>Seit wann nicht?</source>
        <translation>How long absent?</translation>
    </message>
    <message>
        <source>Annoncen: Wie oft?</source>
        <translation>Call bets: how often?</translation>
    </message>
    <message>
        <source>Annoncen: Seit wann nicht?</source>
        <translation>Call bets: how long absent?</translation>
    </message>
    <message>
        <source>Serien</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Folgezahlen</source>
        <translation>Follow numbers</translation>
    </message>
    <message>
        <source>Diagramm: Wie oft?</source>
        <translation>Chart: how often?</translation>
    </message>
    <message>
        <source>Diagramm: Seit wann nicht?</source>
        <translation>Chart: how long absent?</translation>
    </message>
    <message>
        <source>Spielerstatistik</source>
        <translation>Player statistics</translation>
    </message>
    <message>
        <source>Kesselverteilung</source>
        <translation>Wheel distribution</translation>
    </message>
    <message>
        <source>Figurenverlauf</source>
        <translation>Course of the figures</translation>
    </message>
    <message>
        <source>Figurenstatistik</source>
        <translation>Figure statistics</translation>
    </message>
    <message>
        <source>Auf Update prüfen...</source>
        <translation>Check for updates...</translation>
    </message>
    <message>
        <source>Über Zarvello...</source>
        <translation>About Zarvello...</translation>
    </message>
    <message>
        <source>Die Ladedatei Funktion wurde beendet!</source>
        <translation>The load file function has ended!</translation>
    </message>
    <message>
        <source>Alle Dateien wurden fertig gespielt und der Pause Modus wurde aktiviert!</source>
        <translation>All files have been played to the end and the game is paused!</translation>
    </message>
    <message>
        <source>Weiter</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Zarvello Info</source>
        <translation>Zarvello Info</translation>
    </message>
    <message>
        <source>Soll das aktuelle Spiel wirklich beendet werden?</source>
        <translation>Do you really want to end the current game?</translation>
    </message>
    <message>
        <source>Sollen alle Werte (Statistik, Würfe) für alle Spieler zurückgesetzt werden?</source>
        <translation>Do you want to reset all values (statistics, throws) for all players?</translation>
    </message>
    <message>
        <source>Superkurzspiel aktiv</source>
        <translation>Super short is on</translation>
    </message>
    <message>
        <source>Zarvello %1

Roulette und Systemspiel am französischen und am amerikanischen Tisch.</source>
        <translation>Zarvello %1

Roulette and system games on the French and the American table.</translation>
    </message>
    <message>
        <source>Ladedatei: %1 (%2 Coups)</source>
        <translation>Load file: %1 (%2 coups)</translation>
    </message>
    <message>
        <source>Datei wird geladen - Bitte warten!</source>
        <translation>Loading file - please wait!</translation>
    </message>
    <message>
        <source>Nächste gewählte Roulettezahl: </source>
        <translation>Next chosen number: </translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Player %1</translation>
    </message>
    <message>
        <source>Soll das Startkaptital für </source>
        <translation>Do you want to give </translation>
    </message>
    <message>
        <source> übernommen werden?</source>
        <translation> the new start capital?</translation>
    </message>
    <message>
        <source>Bitte zuerst das Spiel über den Menüpunkt &quot;Start&quot; oder F2 starten!</source>
        <translation>Please start the game first with the menu item &quot;Start&quot; or F2!</translation>
    </message>
    <message>
        <source>Zarvello Nachricht</source>
        <translation>Zarvello Message</translation>
    </message>
    <message>
        <source>Setzung konnte auf Grund Kaptialmangel nicht durchgeführt werden! Notwendiges Kapital wären %1 Einheiten!</source>
        <translation>The bet could not be placed for lack of capital! %1 units would be needed!</translation>
    </message>
    <message>
        <source>Protokolle</source>
        <translation>Protocols</translation>
    </message>
    <message>
        <source>Protokoll Spieler 1</source>
        <translation>Protocol of player 1</translation>
    </message>
    <message>
        <source>Protokoll Spieler 2</source>
        <translation>Protocol of player 2</translation>
    </message>
    <message>
        <source>Protokoll Spieler 3</source>
        <translation>Protocol of player 3</translation>
    </message>
    <message>
        <source>Protokoll Spieler 4</source>
        <translation>Protocol of player 4</translation>
    </message>
    <message>
        <source>Zarvello Warnung</source>
        <translation>Zarvello Warning</translation>
    </message>
    <message>
        <source>Es ist mindestens ein Systemspiel aktiv - aufgrund der Zurücksetzung wird ein Neustart des Systemspiels empfohlen!</source>
        <translation>At least one system game is active - because of the reset a new start of the system game is recommended!</translation>
    </message>
    <message>
        <source>Zarvello Systemspiel Nachricht</source>
        <translation>Zarvello System Game Message</translation>
    </message>
    <message>
        <source>Systemspiel für Spieler </source>
        <translation>System game of player </translation>
    </message>
    <message>
        <source> wurde gestoppt!
</source>
        <translation> was stopped!
</translation>
    </message>
    <message>
        <source> wurde beendet!</source>
        <translation> was ended!</translation>
    </message>
    <message>
        <source>Fehler: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>Zeilennummer: </source>
        <translation>Line number: </translation>
    </message>
    <message>
        <source>Zeile: </source>
        <translation>Line: </translation>
    </message>
    <message>
        <source>Soll die Systemspieldatei geöffnet werden?</source>
        <translation>Do you want to open the system file?</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Allgemeine Optionen</source>
        <translation>General options</translation>
    </message>
    <message>
        <source>Sprache</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Englisch</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Begriffe</source>
        <translation>Terms</translation>
    </message>
    <message>
        <source>französisch</source>
        <translation>French</translation>
    </message>
    <message>
        <source>amerikanisch</source>
        <translation>American</translation>
    </message>
    <message>
        <source>Spieltisch</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>französischer Tisch</source>
        <translation>French table</translation>
    </message>
    <message>
        <source>amerikanischer Tisch</source>
        <translation>American table</translation>
    </message>
    <message>
        <source>Setzzeit</source>
        <translation>Betting time</translation>
    </message>
    <message>
        <source>automatisch</source>
        <translation>automatic</translation>
    </message>
    <message>
        <source> sec</source>
        <translation> sec</translation>
    </message>
    <message>
        <source>manuell</source>
        <translation>manual</translation>
    </message>
    <message>
        <source>Einfärbiger Zeitbalken</source>
        <translation>Time bar in one colour</translation>
    </message>
    <message>
        <source>Kesselumdrehungen  deaktivieren</source>
        <translation>Switch off the rotation of the wheel</translation>
    </message>
    <message>
        <source>Superkurzwurf aktivieren</source>
        <translation>Use the super short throw</translation>
    </message>
    <message>
        <source>Klassik Dolly</source>
        <translation>Classic dolly</translation>
    </message>
    <message>
        <source>Spieler Optionen</source>
        <translation>Player options</translation>
    </message>
    <message>
        <source>Anfangsjetons</source>
        <translation>Start jetons</translation>
    </message>
    <message>
        <source>Setzart</source>
        <translation>Betting in</translation>
    </message>
    <message>
        <source>Stück</source>
        <translation>Pieces</translation>
    </message>
    <message>
        <source>Real</source>
        <translation>Real</translation>
    </message>
    <message>
        <source>zu</source>
        <translation>at</translation>
    </message>
    <message>
        <source>Angestellen Stück </source>
        <translation>Staff piece </translation>
    </message>
    <message>
        <source>keines</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Setzjetons zum Gewinn</source>
        <translation>Stake is paid out with the win</translation>
    </message>
    <message>
        <source>En Prison Regel</source>
        <translation>En prison rule</translation>
    </message>
    <message>
        <source>Datei Optionen</source>
        <translation>File options</translation>
    </message>
    <message>
        <source>Handwechsel Zeichen</source>
        <translation>Hand change sign</translation>
    </message>
    <message>
        <source>Datei Verlaufprotokoll aktivieren</source>
        <translation>Keep a course protocol in a file</translation>
    </message>
    <message>
        <source>Statistik Optionen</source>
        <translation>Statistics options</translation>
    </message>
    <message>
        <source>Jahresstatistik</source>
        <translation>Year statistics</translation>
    </message>
    <message>
        <source>Textdatei</source>
        <translation>Text file</translation>
    </message>
    <message>
        <source>Datenbank</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Ladefiles zur Jahresstatisk hinzufügen</source>
        <translation>Add load files to the year statistics</translation>
    </message>
    <message>
        <source>Jahresstatistik als Historie bei Programmstart laden **</source>
        <translation>Load year statistics as history at program start **</translation>
    </message>
    <message>
        <source>ab Jahr</source>
        <translation>from year</translation>
    </message>
    <message>
        <source>einen Tag*</source>
        <translation>one day*</translation>
    </message>
    <message>
        <source>die letzten</source>
        <translation>the last</translation>
    </message>
    <message>
        <source>Tage*</source>
        <translation>days*</translation>
    </message>
    <message>
        <source>ab Datum</source>
        <translation>from date</translation>
    </message>
    <message>
        <source>* absolut vom Programmstarttag</source>
        <translation>* counted from the day of program start</translation>
    </message>
    <message>
        <source>** Änderungen werden ab dem nächsten Start aktiv</source>
        <translation>** Changes take effect at the next start</translation>
    </message>
    <message>
        <source>Aktivierung der Hot/Cold Anzeige ab Coup </source>
        <translation>Hot/cold display from coup </translation>
    </message>
    <message>
        <source>(inkl.)</source>
        <translation>(incl.)</translation>
    </message>
    <message>
        <source>Drucker Optionen</source>
        <translation>Printer options</translation>
    </message>
    <message>
        <source>in Farbe drucken</source>
        <translation>Print in colour</translation>
    </message>
    <message>
        <source>Hochformat</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Querformat</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Anzeige</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>max</source>
        <translation>max</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>automatischer Updatecheck nach Programmstart</source>
        <translation>Check for updates after program start</translation>
    </message>
    <message>
        <source>Die Datei zarvello.ini konnte nicht geschrieben werden!
Die Einstellungen gelten nur bis zum Ende des Programms.</source>
        <translation>The file zarvello.ini could not be written!
The settings hold only until the program ends.</translation>
    </message>
</context>
<context>
    <name>StatusProgressBar</name>
    <message>
        <source>Starten Sie Ihr Spiel!</source>
        <translation>Start your game!</translation>
    </message>
    <message>
        <source>Manuell - Starten Sie Ihr Spiel!</source>
        <translation>Manual - start your game!</translation>
    </message>
    <message>
        <source>Manuell</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Machen Sie Ihr Spiel!</source>
        <translation>Place your bets!</translation>
    </message>
    <message>
        <source>Nichts geht mehr!</source>
        <translation>No more bets!</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Superkurzspiel aktiv!</source>
        <translation>Super short game is on!</translation>
    </message>
    <message>
        <source>Historie wird geladen!</source>
        <translation>Loading the history!</translation>
    </message>
    <message>
        <source>Manuell / Pause</source>
        <translation>Manual / Pause</translation>
    </message>
</context>
<context>
    <name>dialog_supershort_game_counter</name>
    <message>
        <source>Superkurzspiel</source>
        <translation>Super short game</translation>
    </message>
    <message>
        <source>Anzahl der Coups (0 = endlos)</source>
        <translation>Number of coups (0 = endless)</translation>
    </message>
</context>
<context>
    <name>editor_window</name>
    <message>
        <source>Error:</source>
        <translation>Error:</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Neu</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Öffnen...</source>
        <translation>Open...</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Speichern unter...</source>
        <translation>Save as...</translation>
    </message>
    <message>
        <source>Beenden</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Rückgängig</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Wiederherstellen</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Ausschneiden</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Einfügen</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Alles auswählen</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Suchen...</source>
        <translation>Find...</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Find next</translation>
    </message>
    <message>
        <source>Rückwärts suchen</source>
        <translation>Find previous</translation>
    </message>
    <message>
        <source>Ersetzen...</source>
        <translation>Replace...</translation>
    </message>
    <message>
        <source>Gehe zu Zeile...</source>
        <translation>Go to line...</translation>
    </message>
    <message>
        <source>Prüfen</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>MoveCursor</source>
        <translation>MoveCursor</translation>
    </message>
    <message>
        <source>Zur Fehlerstelle springen</source>
        <translation>Go to the place of the error</translation>
    </message>
    <message>
        <source>Neue Datei</source>
        <translation>New file</translation>
    </message>
    <message>
        <source> (schreibgeschützt)</source>
        <translation> (read-only)</translation>
    </message>
    <message>
        <source>Wird geladen...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Geändert</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Fehler: %1, Warnungen: %2</source>
        <translation>Errors: %1, warnings: %2</translation>
    </message>
    <message>
        <source>Zeile %1, Spalte %2</source>
        <translation>Line %1, column %2</translation>
    </message>
    <message>
        <source>Fehler: </source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>Gehe zu Zeile</source>
        <translation>Go to line</translation>
    </message>
    <message>
        <source>Zeile:</source>
        <translation>Line:</translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Systemspieldateien (*.syf)</source>
        <translation>System files (*.syf)</translation>
    </message>
    <message>
        <source>Systemprotokolldateien (*.out)</source>
        <translation>System protocols (*.out)</translation>
    </message>
    <message>
        <source>Ladedateien (*.inp)</source>
        <translation>Load files (*.inp)</translation>
    </message>
    <message>
        <source>Sammelladedateien (*.snp)</source>
        <translation>Collection load files (*.snp)</translation>
    </message>
    <message>
        <source>Text Dateien (*.txt)</source>
        <translation>Text files (*.txt)</translation>
    </message>
    <message>
        <source>Alle Dateien (*.*)</source>
        <translation>All files (*.*)</translation>
    </message>
    <message>
        <source>Die aktive Hauptladedatei wurde geändert - Änderungen übernehmen und Hauptladedatei neu laden?</source>
        <translation>The active main load file was changed - apply the changes and read the main load file again?</translation>
    </message>
    <message>
        <source>Die aktive Systemspieldatei wurde geändert - Änderungen übernehmen und System neu starten?</source>
        <translation>The active system file was changed - apply the changes and restart the system?</translation>
    </message>
    <message>
        <source>Speichere unter...</source>
        <translation>Save as...</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht gespeichert werden!
%2</source>
        <translation>The file %1 could not be saved!
%2</translation>
    </message>
    <message>
        <source>Sollen die Änderungen gespeichert werden?</source>
        <translation>Save the changes?</translation>
    </message>
</context>
<context>
    <name>find_bar</name>
    <message>
        <source>Suchen:</source>
        <translation>Find:</translation>
    </message>
    <message>
        <source>Ersetzen durch:</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>Weitersuchen</source>
        <translation>Find next</translation>
    </message>
    <message>
        <source>Rückwärts</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Ersetzen</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Alle ersetzen</source>
        <translation>Replace all</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Groß-/Kleinschreibung</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>Suche am anderen Ende fortgesetzt</source>
        <translation>Went on at the other end</translation>
    </message>
    <message>
        <source>Ersetzt: %1</source>
        <translation>Replaced: %1</translation>
    </message>
</context>
<context>
    <name>findings_list</name>
    <message>
        <source>Prüfergebnis</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Zeile</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Spalte</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>Meldung</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Keine Fehler gefunden</source>
        <translation>No errors found</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Warning</translation>
    </message>
</context>
<context>
    <name>highlighter_icon</name>
    <message>
        <source>Syntax Highligther</source>
        <translation>Syntax highlighter</translation>
    </message>
</context>
<context>
    <name>line_sieve</name>
    <message>
        <source>Code ohne Sektion nicht zuflässig!</source>
        <translation>Code without a section is not allowed!</translation>
    </message>
    <message>
        <source>Französischer Tisch aktiv - Amerikanische Setzungen gefunden!</source>
        <translation>French table active - American bets found!</translation>
    </message>
    <message>
        <source>Amerikanischer Tisch aktiv - Französische Setzungen gefunden!</source>
        <translation>American table active - French bets found!</translation>
    </message>
    <message>
        <source>Syntax Fehler!</source>
        <translation>Syntax error!</translation>
    </message>
</context>
<context>
    <name>load_files_option</name>
    <message>
        <source>Lademenü</source>
        <translation>Load files</translation>
    </message>
    <message>
        <source>Hauptladedatei</source>
        <translation>Main load file</translation>
    </message>
    <message>
        <source>Coups</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Doppelklick links zur Auswahl</source>
        <translation>Double-click to choose</translation>
    </message>
    <message>
        <source>Aktiv</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Pausemodus bei Ladedatei Modus Ende</source>
        <translation>Pause at the end of load file mode</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Datei wird geladen - Bitte warten!</source>
        <translation>Loading file - please wait!</translation>
    </message>
    <message>
        <source>Start Einstellungen</source>
        <translation>Start settings</translation>
    </message>
    <message>
        <source>Normal Start</source>
        <translation>Normal start</translation>
    </message>
    <message>
        <source>Fix Start</source>
        <translation>Fixed start</translation>
    </message>
    <message>
        <source>Zufall Start 1</source>
        <translation>Random start 1</translation>
    </message>
    <message>
        <source>von</source>
        <translation>from</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Zufall Start 2</source>
        <translation>Random start 2</translation>
    </message>
    <message>
        <source>max. Angriffe</source>
        <translation>max. attacks</translation>
    </message>
    <message>
        <source>Dauer</source>
        <translation>length</translation>
    </message>
    <message>
        <source>Folgeladedateien</source>
        <translation>Follow files</translation>
    </message>
    <message>
        <source>Sammelladedatei</source>
        <translation>Collection file</translation>
    </message>
    <message>
        <source>Dateien noch zu laden/total</source>
        <translation>Files left to load/total</translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Sammelladedateien (*.snp)</source>
        <translation>Collection files (*.snp)</translation>
    </message>
    <message>
        <source>Ladedateien (*.inp)</source>
        <translation>Load files (*.inp)</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Es wurde keine gültige Ladedatei in der Sammelladedatei gefunden!</source>
        <translation>No valid load file was found in the collection file!</translation>
    </message>
    <message>
        <source>Folgende Dateien (in der Sammelladedatei) wurden nicht gefunden:</source>
        <translation>These files (in the collection file) were not found:</translation>
    </message>
    <message>
        <source>Sollen die restlichen Dateien trotzdem geladen werden?</source>
        <translation>Do you want to load the other files anyway?</translation>
    </message>
    <message>
        <source>Hauptladefile und Folgefiles wirklich löschen?</source>
        <translation>Do you really want to clear the main load file and the follow files?</translation>
    </message>
    <message>
        <source>(max. %1)</source>
        <translation>(max. %1)</translation>
    </message>
    <message>
        <source>WARNUNG - 00 (Dopple Zero) in den Ladefiles gefunden (Französicher Tisch)!</source>
        <translation>WARNING - 00 (double zero) found in the load files (French table)!</translation>
    </message>
    <message>
        <source>Sollen die neuen Ladedateien übernommen werden?</source>
        <translation>Do you want to use the new load files?</translation>
    </message>
</context>
<context>
    <name>menu_Window</name>
    <message>
        <source>Hauptladedatei</source>
        <translation>Main load file</translation>
    </message>
    <message>
        <source>Folgeladedatei %1</source>
        <translation>Follow file %1</translation>
    </message>
    <message>
        <source>Spieler %1</source>
        <translation>Player %1</translation>
    </message>
</context>
<context>
    <name>past_throw</name>
    <message>
        <source>S: Ungültige Überprüfung (keine Nummer): %1 !</source>
        <translation>S: Invalid test (no number): %1 !</translation>
    </message>
    <message>
        <source>S: Ungültige Überprüfung (kein V): %1 !</source>
        <translation>S: Invalid test (no V): %1 !</translation>
    </message>
</context>
<context>
    <name>player_statistik_widget</name>
    <message>
        <source>Spieler %1</source>
        <translation>Player %1</translation>
    </message>
    <message>
        <source>Coups</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Plus-Coups</source>
        <translation>Winning coups</translation>
    </message>
    <message>
        <source>Minus-Coups</source>
        <translation>Losing coups</translation>
    </message>
    <message>
        <source>Letzter Einsatz</source>
        <translation>Last stake</translation>
    </message>
    <message>
        <source>Gewinn/Verlust</source>
        <translation>Profit/loss</translation>
    </message>
</context>
<context>
    <name>player_status_widget</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Gesetzt</source>
        <translation>Stake</translation>
    </message>
    <message>
        <source>Kapital</source>
        <translation>Capital</translation>
    </message>
    <message>
        <source>Spieler %1</source>
        <translation>Player %1</translation>
    </message>
</context>
<context>
    <name>statement_compiler</name>
    <message>
        <source>Keine gültige Aktion gefunden!</source>
        <translation>No valid action found!</translation>
    </message>
    <message>
        <source>S: Keine gültige Aktion gefunden!</source>
        <translation>S: No valid action found!</translation>
    </message>
    <message>
        <source>Strichpunkt erwartet!</source>
        <translation>Semicolon expected!</translation>
    </message>
    <message>
        <source>SZ Überprüfungsaktion erwartet!</source>
        <translation>SZ test action expected!</translation>
    </message>
    <message>
        <source>Schlüsselwörter MAX,MIN oder ; erwartet!</source>
        <translation>Keywords MAX,MIN or ; expected!</translation>
    </message>
    <message>
        <source>Zahl mit max. 6 Stellen erwartet!</source>
        <translation>Number of at most 6 digits expected!</translation>
    </message>
    <message>
        <source>Schlüsselwort THEN erwartet!</source>
        <translation>Keyword THEN expected!</translation>
    </message>
    <message>
        <source>Schlüsselwort SZ erwartet!</source>
        <translation>Keyword SZ expected!</translation>
    </message>
    <message>
        <source>Aktion erwartet!</source>
        <translation>Action expected!</translation>
    </message>
    <message>
        <source>IF Überprüfungsaktion erwartet!</source>
        <translation>IF test action expected!</translation>
    </message>
    <message>
        <source>Schlüsselwörter IN oder NOT IN erwartet!</source>
        <translation>Keywords IN or NOT IN expected!</translation>
    </message>
    <message>
        <source>Jeton erwartet!</source>
        <translation>Jeton expected!</translation>
    </message>
    <message>
        <source>Schlüsselwort AND bei UZ nicht erlaubt!</source>
        <translation>Keyword AND not allowed with UZ!</translation>
    </message>
    <message>
        <source>Schlüsselwort IF erwartet!</source>
        <translation>Keyword IF expected!</translation>
    </message>
    <message>
        <source>Schlüsselwort THEN bei UZ nicht erlaubt!</source>
        <translation>Keyword THEN not allowed with UZ!</translation>
    </message>
    <message>
        <source>Schlüsselwort RESULT nicht erlaubt!</source>
        <translation>Keyword RESULT not allowed!</translation>
    </message>
    <message>
        <source>Schlüsselwort AND oder THEN erwartet!</source>
        <translation>Keyword AND or THEN expected!</translation>
    </message>
    <message>
        <source>Direkte Jeton Setzung nicht erlaubt (nur Jeton Typen (EC,PL) sind gültig)!</source>
        <translation>Direct jeton bet not allowed (only jeton types (EC,PL) are valid)!</translation>
    </message>
    <message>
        <source>Counter Syntax falsch!</source>
        <translation>Wrong counter syntax!</translation>
    </message>
</context>
<context>
    <name>statement_reader</name>
    <message>
        <source>S: Unbekannte IF Aktion!</source>
        <translation>S: Unknown IF action!</translation>
    </message>
    <message>
        <source>Schlüsselwort IN erwartet!</source>
        <translation>Keyword IN expected!</translation>
    </message>
</context>
<context>
    <name>statement_warnings</name>
    <message>
        <source>Hinter dem Setz Jeton fehlt der Strichpunkt, dieser Text wird nicht gelesen!</source>
        <translation>The semicolon is missing behind the jeton to set, this text is not read!</translation>
    </message>
    <message>
        <source>Hinter dem ersten Strichpunkt wird nichts gelesen, dieser Text geht verloren!</source>
        <translation>Nothing is read behind the first semicolon, this text is lost!</translation>
    </message>
    <message>
        <source>Hinter der MESSAGE fehlt der Strichpunkt, dieser Text wird ein Teil von ihr!</source>
        <translation>The semicolon is missing behind the MESSAGE, this text becomes a part of it!</translation>
    </message>
    <message>
        <source>%1 hat hier keine Wirkung, gemeint ist RESTART(N) oder RESTART(F)!</source>
        <translation>%1 has no effect here, RESTART(N) or RESTART(F) is meant!</translation>
    </message>
    <message>
        <source>%1 hat hier keine Wirkung, es begrenzt nur eine Änderung der Einheit wie EI1+1!</source>
        <translation>%1 has no effect here, it only bounds a change of a unit such as EI1+1!</translation>
    </message>
    <message>
        <source>Die Aufzählung endet mit einem Komma!</source>
        <translation>The list ends with a comma!</translation>
    </message>
    <message>
        <source>Die Option %1 hat keine Wirkung!</source>
        <translation>The option %1 has no effect!</translation>
    </message>
    <message>
        <source>UZ wählt hier immer den Platz 0, den es beim Jeton Typ %1 nicht gibt!</source>
        <translation>UZ always chooses place 0 here, which the jeton type %1 does not have!</translation>
    </message>
    <message>
        <source>Für %1 sind bei der ersten Ausführung zu wenige Coups gefallen (%2 von %3, Tipp: siehe Verzögerungsbedingungen)!</source>
        <translation>Too few coups have been played for %1 when it is first run (%2 of %3, hint: see the conditions of delay)!</translation>
    </message>
</context>
<context>
    <name>status_button</name>
    <message>
        <source>Aktiv</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Ein Klick schaltet die Wiederholung der letzten Setzung ein oder aus.</source>
        <translation>A click switches the repetition of the last bet on or off.</translation>
    </message>
</context>
<context>
    <name>sys_play_operator_check</name>
    <message>
        <source>Der Vergleichswert muss größer als 0 sein!</source>
        <translation>The value compared with must be greater than 0!</translation>
    </message>
    <message>
        <source>S: Operator &apos;%1&apos; ist nicht gültig!</source>
        <translation>S: Operator &apos;%1&apos; is not valid!</translation>
    </message>
</context>
<context>
    <name>system_check</name>
    <message>
        <source>Ein &apos;%1&apos; in einer MESSAGE reißt die Anweisung auseinander!</source>
        <translation>A &apos;%1&apos; in a MESSAGE tears the statement apart!</translation>
    </message>
    <message>
        <source>Mit einem &apos;|&apos; in der MESSAGE wird die Anweisung nicht übersetzt!</source>
        <translation>With a &apos;|&apos; in the MESSAGE the statement is not compiled!</translation>
    </message>
    <message>
        <source>Ein &apos;,&apos; im Text einer MESSAGE trennt Argumente, der Text endet hier!</source>
        <translation>A &apos;,&apos; in the text of a MESSAGE separates arguments, the text ends here!</translation>
    </message>
    <message>
        <source>%1 beginnt keine Sektion, es muss groß geschrieben werden!</source>
        <translation>%1 begins no section, it must be written in capitals!</translation>
    </message>
    <message>
        <source>Ohne Strichpunkt in derselben Zeile geht dieser Text verloren!</source>
        <translation>Without a semicolon in the same line this text is lost!</translation>
    </message>
    <message>
        <source>Ohne Strichpunkt am Ende geht diese Anweisung verloren!</source>
        <translation>Without a semicolon at its end this statement is lost!</translation>
    </message>
</context>
<context>
    <name>system_file_reader</name>
    <message>
        <source>Die Systemspieldatei konnte nicht geöffnet werden!</source>
        <translation>The system file could not be opened!</translation>
    </message>
    <message>
        <source>Kommentar Ende Zeichen wurde nicht gefunden!</source>
        <translation>End of comment was not found!</translation>
    </message>
</context>
<context>
    <name>system_play</name>
    <message>
        <source>Verzögerung aktiv</source>
        <translation>Delay active</translation>
    </message>
    <message>
        <source>Grund: Verlust Grenze erreicht!</source>
        <translation>Reason: loss limit reached!</translation>
    </message>
    <message>
        <source>Grund: Gewinn Grenze erreicht!</source>
        <translation>Reason: win limit reached!</translation>
    </message>
    <message>
        <source>Grund: Coup Grenze erreicht!</source>
        <translation>Reason: coup limit reached!</translation>
    </message>
    <message>
        <source>SysReset durchgeführt</source>
        <translation>SysReset done</translation>
    </message>
</context>
<context>
    <name>system_play_cheton</name>
    <message>
        <source>Jeton Setzung %1 nicht möglich!</source>
        <translation>Jeton bet %1 not possible!</translation>
    </message>
</context>
<context>
    <name>system_play_command_line</name>
    <message>
        <source>MAX Wert muss größer als 0 sein!</source>
        <translation>MAX value must be greater than 0!</translation>
    </message>
    <message>
        <source>MIN Wert muss größer als 0 sein!</source>
        <translation>MIN value must be greater than 0!</translation>
    </message>
    <message>
        <source>S: MAX Wert ungültig!</source>
        <translation>S: MAX value invalid!</translation>
    </message>
    <message>
        <source>S: MIN Wert ungültig!</source>
        <translation>S: MIN value invalid!</translation>
    </message>
    <message>
        <source>Eine Steigerungstabellen Belegung ist nur in der Start Sektion erlaubt!</source>
        <translation>A progression table may only be filled in the start section!</translation>
    </message>
</context>
<context>
    <name>system_play_einheiten</name>
    <message>
        <source>MIN/MAX Setzung für eine normale Einheitensetzung nicht erlaubt!</source>
        <translation>MIN/MAX bet not allowed for an ordinary bet of units!</translation>
    </message>
    <message>
        <source>Verwendung einer Steigerungstabelle die noch nicht initialisiert wurde!</source>
        <translation>Use of a progression table that has not been initialised yet!</translation>
    </message>
</context>
<context>
    <name>system_play_message</name>
    <message>
        <source>&apos;(&apos; wurde nicht gefunden!</source>
        <translation>&apos;(&apos; was not found!</translation>
    </message>
    <message>
        <source>&apos;)&apos; wurde nicht gefunden!</source>
        <translation>&apos;)&apos; was not found!</translation>
    </message>
    <message>
        <source>Spieler: </source>
        <translation>Player: </translation>
    </message>
    <message>
        <source>/Wert: </source>
        <translation>/Value: </translation>
    </message>
    <message>
        <source>Der Argument Wert muss numerisch und größer als 0 sein!</source>
        <translation>The argument value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der Start Argument Wert muss numerisch und größer als 0 sein!</source>
        <translation>The first argument value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der Ende Argument Wert muss numerisch und größer als 0 sein!</source>
        <translation>The last argument value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der zweite Argument Wert muss größer sein als der erste Argument Wert!</source>
        <translation>The second argument value must be greater than the first argument value!</translation>
    </message>
    <message>
        <source>Die Argument Werte müssen größer als 0 sein!</source>
        <translation>The argument values must be greater than 0!</translation>
    </message>
    <message>
        <source>Der Playtabellen Wert muss numerisch und größer als 0 sein!</source>
        <translation>The play table value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der Start Playtabellen Wert muss numerisch und größer als 0 sein!</source>
        <translation>The first play table value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der Ende Playtabellen Wert muss numerisch und größer als 0 sein!</source>
        <translation>The last play table value must be numeric and greater than 0!</translation>
    </message>
    <message>
        <source>Der zweite Playtabellen Wert muss größer sein als der erste Playtabellen Wert!</source>
        <translation>The second play table value must be greater than the first play table value!</translation>
    </message>
    <message>
        <source>Die Playtabellen Werte müssen größer als 0 sein!</source>
        <translation>The play table values must be greater than 0!</translation>
    </message>
    <message>
        <source>Das Message Argument &apos;%1&apos; wird nicht unterstützt!</source>
        <translation>The message argument &apos;%1&apos; is not supported!</translation>
    </message>
</context>
<context>
    <name>system_play_section</name>
    <message>
        <source>Verzögerung aktiv</source>
        <translation>Delay active</translation>
    </message>
</context>
<context>
    <name>system_play_settings</name>
    <message>
        <source>Syntax Steigerungstabelle Rücksetzung falsch!</source>
        <translation>Wrong syntax of the progression table reset!</translation>
    </message>
    <message>
        <source>Counter erwartet!</source>
        <translation>Counter expected!</translation>
    </message>
    <message>
        <source>Counter Klammer fehlt!</source>
        <translation>Bracket of the counter is missing!</translation>
    </message>
    <message>
        <source>Counter Syntax falsch!</source>
        <translation>Wrong counter syntax!</translation>
    </message>
</context>
<context>
    <name>system_play_signal_compare</name>
    <message>
        <source>Signal Jeton unterschiedlich zum Setz Jeton!</source>
        <translation>Signal jeton differs from the bet jeton!</translation>
    </message>
    <message>
        <source>Der Überprüfungsbereich muss größer als 0 sein!</source>
        <translation>The tested range must be greater than 0!</translation>
    </message>
    <message>
        <source>Der Signal Jeton Typ %1 ist nicht erlaubt!</source>
        <translation>The signal jeton type %1 is not allowed!</translation>
    </message>
    <message>
        <source>Signal Jeton/Aktion wurde nicht gefunden!</source>
        <translation>Signal jeton/action was not found!</translation>
    </message>
    <message>
        <source>S: Signal Jeton wurde nicht gefunden!</source>
        <translation>S: Signal jeton was not found!</translation>
    </message>
</context>
<context>
    <name>system_play_steigerungstabelle</name>
    <message>
        <source>Werte in der Steigerungstabelle müssen größer 0 sein!</source>
        <translation>Values in the progression table must be greater than 0!</translation>
    </message>
    <message>
        <source>S: ST Wert ist nicht gültig!</source>
        <translation>S: ST value is not valid!</translation>
    </message>
</context>
<context>
    <name>system_play_throw_compare</name>
    <message>
        <source>Eine Überprüfung auf %1 ist noch nicht möglich! Für eine Überprüfung sind mehr Coups notwendig (Tipp: siehe Verzögerungsbedingungen)!</source>
        <translation>A test for %1 is not possible yet! A test needs more coups (hint: see the delay conditions)!</translation>
    </message>
    <message>
        <source>S: Ungültige Überprüfung: %1 !</source>
        <translation>S: Invalid test: %1 !</translation>
    </message>
    <message>
        <source>Cheton Typ wurde nicht gefunden!</source>
        <translation>Jeton type was not found!</translation>
    </message>
</context>
<context>
    <name>system_sektor_check</name>
    <message>
        <source>Bedingung STMAX in falscher Sektion gefunden!</source>
        <translation>Condition STMAX found in the wrong section!</translation>
    </message>
</context>
<context>
    <name>systemgame_monitor</name>
    <message>
        <source>SysMonitor</source>
        <translation>System monitor</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>System aktiv</source>
        <translation>System active</translation>
    </message>
    <message>
        <source>Gewählte Zahl</source>
        <translation>Chosen number</translation>
    </message>
    <message>
        <source>Manuell</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Letzte Zahl</source>
        <translation>Last number</translation>
    </message>
    <message>
        <source>Wurf</source>
        <translation>Throw</translation>
    </message>
    <message>
        <source>Einheiten/Setzungen</source>
        <translation>Units/Bets</translation>
    </message>
    <message>
        <source>Spieler %1</source>
        <translation>Player %1</translation>
    </message>
</context>
<context>
    <name>systemspiel_dialog</name>
    <message>
        <source>Systemspiel</source>
        <translation>System game</translation>
    </message>
    <message>
        <source>Spieler 1</source>
        <translation>Player 1</translation>
    </message>
    <message>
        <source>System aktiv</source>
        <translation>System active</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Protokoll aktiv</source>
        <translation>Protocol active</translation>
    </message>
    <message>
        <source>Spieler 2</source>
        <translation>Player 2</translation>
    </message>
    <message>
        <source>Spieler 3</source>
        <translation>Player 3</translation>
    </message>
    <message>
        <source>Spieler 4</source>
        <translation>Player 4</translation>
    </message>
    <message>
        <source>Doppelklick links zur Auswahl</source>
        <translation>Double-click to choose</translation>
    </message>
    <message>
        <source>Zarvello Info</source>
        <translation>Zarvello Info</translation>
    </message>
    <message>
        <source>Öffnen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Systemspieldateien (*.syf)</source>
        <translation>System files (*.syf)</translation>
    </message>
    <message>
        <source>Öffnen oder Neu</source>
        <translation>Open or new</translation>
    </message>
    <message>
        <source>Systemprotokolldatei (*.out)</source>
        <translation>System protocol file (*.out)</translation>
    </message>
    <message>
        <source>Bitte zuerst die Systemspieldatei wählen!</source>
        <translation>Please choose the system file first!</translation>
    </message>
    <message>
        <source>Aktivierung nicht möglich, da ein normales Spiel für diesen Spieler aktiv (Jetons gesetzt) ist!</source>
        <translation>Can&apos;t be activated: a normal game is active for this player (jetons are set)!</translation>
    </message>
    <message>
        <source>Bitte zuerst die Systemprotokolldatei wählen!</source>
        <translation>Please choose the system protocol file first!</translation>
    </message>
    <message>
        <source>Bitte zuerst die Systemspieldatei aktivieren!</source>
        <translation>Please activate the system file first!</translation>
    </message>
    <message>
        <source>Systemspieldatei wurde geändert</source>
        <translation>The system file was changed</translation>
    </message>
    <message>
        <source>Die Systemspieldatei für Spieler%1 wurde geändert - Änderung beibehalten?</source>
        <translation>The system file of player %1 was changed - keep the change?</translation>
    </message>
</context>
<context>
    <name>wheel_number_selection</name>
    <message>
        <source>Nächste Roulettezahl wählen</source>
        <translation>Choose the next number</translation>
    </message>
    <message>
        <source>Gewählte Zahl löschen</source>
        <translation>Clear chosen number</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Nächste gewählte Roulettezahl: </source>
        <translation>Next chosen number: </translation>
    </message>
    <message>
        <source>Keine Roulettezahl gewählt</source>
        <translation>No number chosen</translation>
    </message>
</context>
</TS>
