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
    <message>
        <source>Spieler</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Zuletzt benutzte Ladedateien</source>
        <translation>Recent Load Files</translation>
    </message>
    <message>
        <source>Zuletzt benutzte Systeme</source>
        <translation>Recent Systems</translation>
    </message>
    <message>
        <source>Zuletzt benutzte Protokolle</source>
        <translation>Recent Protocols</translation>
    </message>
    <message>
        <source>Kugel werfen</source>
        <translation>Throw the Ball</translation>
    </message>
    <message>
        <source>Nächste Zahl wählen...</source>
        <translation>Choose the Next Number...</translation>
    </message>
    <message>
        <source>Jetons abräumen</source>
        <translation>Clear Bets</translation>
    </message>
    <message>
        <source>Einsätze wiederholen</source>
        <translation>Repeat Bets</translation>
    </message>
    <message>
        <source>Spieler 1</source>
        <translation>Player 1</translation>
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
        <source>Häufigkeit</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Eine Ladedatei kann nur gewählt werden, solange kein Spiel läuft.</source>
        <translation>A load file can only be chosen while no game is running.</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Hot</translation>
    </message>
    <message>
        <source>Cold</source>
        <translation>Cold</translation>
    </message>
    <message>
        <source>Es ist eine neue Zarvello Version (</source>
        <translation>A new Zarvello version (</translation>
    </message>
    <message>
        <source>) verfügbar. Soll die neue Version heruntergeladen und installiert werden?</source>
        <translation>) is available. Shall the new version be downloaded and installed?</translation>
    </message>
    <message>
        <source>Es ist keine neuere Zarvello Version verfügbar.</source>
        <translation>There is no newer Zarvello version.</translation>
    </message>
    <message>
        <source>Vom Update-Server kam keine gültige Antwort.</source>
        <translation>The update server gave no valid answer.</translation>
    </message>
    <message>
        <source>Die Jahrespermanenz &quot;%1&quot; konnte wieder nicht geschrieben werden!
Soll trotzdem ein neues Spiel beginnen? Der letzte Lauf (%2 Coups) geht dabei verloren.</source>
        <translation>The year permanence &quot;%1&quot; again could not be written!
Start a new game all the same? The last run (%2 coups) will then be lost.</translation>
    </message>
    <message>
        <source>Die Jahrespermanenz &quot;%1&quot; konnte nicht geschrieben werden!
Der Lauf (%2 Coups) bleibt erhalten und wird beim nächsten Start und beim Programmende noch einmal geschrieben.</source>
        <translation>The year permanence &quot;%1&quot; could not be written!
The run (%2 coups) is kept and will be written again at the next start and at the end of the program.</translation>
    </message>
    <message>
        <source>Der letzte Lauf (%1 Coups) wird beim nächsten Programmstart noch einmal geschrieben.</source>
        <translation>The last run (%1 coups) will be written again when the program next starts.</translation>
    </message>
    <message>
        <source>Der letzte Lauf (%1 Coups) geht dabei verloren.</source>
        <translation>The last run (%1 coups) will then be lost.</translation>
    </message>
    <message>
        <source>Die Jahrespermanenz &quot;%1&quot; konnte nicht geschrieben werden!
Soll das Programm trotzdem beendet werden?</source>
        <translation>The year permanence &quot;%1&quot; could not be written!
Quit the program all the same?</translation>
    </message>
    <message>
        <source>Spieltisch</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Letzte Zahlen</source>
        <translation>Last numbers</translation>
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
    <message>
        <source>Setzzeit in Sekunden</source>
        <translation>Betting time in seconds</translation>
    </message>
    <message>
        <source>Wert eines Stücks</source>
        <translation>Worth of a piece</translation>
    </message>
    <message>
        <source>Historie ab Jahr</source>
        <translation>History from year</translation>
    </message>
    <message>
        <source>Historie der letzten Tage</source>
        <translation>History of the last days</translation>
    </message>
    <message>
        <source>Historie ab Datum</source>
        <translation>History from date</translation>
    </message>
    <message>
        <source>Größe der Anzeige</source>
        <translation>Size of the display</translation>
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
    <message>
        <source>Setzzeit</source>
        <translation>Betting time</translation>
    </message>
</context>
<context>
    <name>actual_permanence</name>
    <message>
        <source>Aktuelle Permanenz</source>
        <translation>Current permanence</translation>
    </message>
    <message>
        <source>Keine Würfe zur Anzeige vorhanden!</source>
        <translation>There are no throws to show!</translation>
    </message>
</context>
<context>
    <name>chart_statistic</name>
    <message>
        <source>Straight Up</source>
        <translation>Straight Up</translation>
    </message>
    <message>
        <source>Plein</source>
        <translation>Plein</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Cheval</source>
        <translation>Cheval</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Corner</translation>
    </message>
    <message>
        <source>Carre</source>
        <translation>Carre</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Transversale Plein</source>
        <translation>Transversale Plein</translation>
    </message>
    <message>
        <source>Six Line</source>
        <translation>Six Line</translation>
    </message>
    <message>
        <source>Transversale Simple</source>
        <translation>Transversale Simple</translation>
    </message>
    <message>
        <source>Kolonne/Dutzend</source>
        <translation>Column/Dozen</translation>
    </message>
    <message>
        <source>Einfache Chancen</source>
        <translation>Even chances</translation>
    </message>
    <message>
        <source>Finale</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>GS,KS,OR,OP,ZS</source>
        <translation>GS,KS,OR,OP,ZS</translation>
    </message>
    <message>
        <source>Ein Nachbar</source>
        <translation>One neighbour</translation>
    </message>
    <message>
        <source>Zwei Nachbaren</source>
        <translation>Two neighbours</translation>
    </message>
    <message>
        <source>Drei Nachbaren</source>
        <translation>Three neighbours</translation>
    </message>
    <message>
        <source>Kolonne / Dutzend</source>
        <translation>Column / Dozen</translation>
    </message>
    <message>
        <source>Zwei Nachbarn</source>
        <translation>Two neighbours</translation>
    </message>
    <message>
        <source>Drei Nachbarn</source>
        <translation>Three neighbours</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Endziffer</source>
        <translation>Last digit</translation>
    </message>
    <message>
        <source>Chance</source>
        <translation>Chance</translation>
    </message>
    <message>
        <source>Nummer des Feldes</source>
        <translation>Number of the field</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Wie oft?</source>
        <translation>How often?</translation>
    </message>
    <message>
        <source>Seit wann nicht?</source>
        <translation>How long absent?</translation>
    </message>
</context>
<context>
    <name>chart_statistic_base</name>
    <message>
        <source>Horiz. Raster anzeigen</source>
        <translation>Show horiz. grid</translation>
    </message>
    <message>
        <source>Art der Statistik</source>
        <translation>Kind of statistic</translation>
    </message>
    <message>
        <source>Chancen</source>
        <translation>Bets</translation>
    </message>
    <message>
        <source>Diagramm</source>
        <translation>Chart</translation>
    </message>
</context>
<context>
    <name>chart_statistic_player</name>
    <message>
        <source>Spielerstatistik</source>
        <translation>Player statistics</translation>
    </message>
    <message>
        <source>Spieler 1</source>
        <translation>Player 1</translation>
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
        <source>Guthaben</source>
        <translation>Credit</translation>
    </message>
    <message>
        <source>Gewinn/Verlust / Gesetzt</source>
        <translation>Win/Loss / Stake</translation>
    </message>
    <message>
        <source>Horiz. Raster anzeigen</source>
        <translation>Show horiz. grid</translation>
    </message>
    <message>
        <source>Gewinn</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Gesetzt</source>
        <translation>Stake</translation>
    </message>
    <message>
        <source>Coup</source>
        <translation>Coup</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Startkapital</source>
        <translation>Start capital</translation>
    </message>
    <message>
        <source>Coups</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Gewinncoups</source>
        <translation>Winning coups</translation>
    </message>
    <message>
        <source>Verlustcoups</source>
        <translation>Losing coups</translation>
    </message>
    <message>
        <source>Gewinn (durchgezogen)</source>
        <translation>Return (solid line)</translation>
    </message>
    <message>
        <source>Gesetzt (gestrichelt)</source>
        <translation>Stake (dashed line)</translation>
    </message>
    <message>
        <source>Diagramm</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>Spieler der Tabelle</source>
        <translation>Player of the table</translation>
    </message>
    <message>
        <source>Werte des Spielers</source>
        <translation>Figures of the player</translation>
    </message>
</context>
<context>
    <name>chart_statistic_player_widget</name>
    <message>
        <source>Coup %1</source>
        <translation>Coup %1</translation>
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
    <name>download_update_dialog</name>
    <message>
        <source>Download Zarvello</source>
        <translation>Download Zarvello</translation>
    </message>
    <message>
        <source>Download komplett!
Das Programm wird beendet und der Update wird installiert!</source>
        <translation>Download complete!
The program will close and the update will be installed!</translation>
    </message>
    <message>
        <source>Download wurde mit einem Fehler abgebrochen!
Laden Sie bitte den Update direkt von der Homepage herunter!</source>
        <translation>The download was broken off by an error!
Please download the update directly from the homepage!</translation>
    </message>
    <message>
        <source>Fortschritt des Downloads</source>
        <translation>Progress of the download</translation>
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
    <message>
        <source>Text der Datei</source>
        <translation>Text of the file</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftgröße</source>
        <translation>Font size</translation>
    </message>
</context>
<context>
    <name>file_saver</name>
    <message>
        <source>Die Datei %1 ist schon da. Soll sie überschrieben werden?</source>
        <translation>The file %1 already exists. Overwrite it?</translation>
    </message>
    <message>
        <source>Zarvello Info</source>
        <translation>Zarvello Info</translation>
    </message>
    <message>
        <source>Der Inhalt konnte nicht erzeugt werden.</source>
        <translation>The contents could not be created.</translation>
    </message>
    <message>
        <source>Die Datei %1 konnte nicht gespeichert werden.
%2</source>
        <translation>The file %1 could not be saved.
%2</translation>
    </message>
    <message>
        <source>Das ist keine gewöhnliche Datei.</source>
        <translation>This is not a regular file.</translation>
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
    <message>
        <source>Suche schließen</source>
        <translation>Close search</translation>
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
    <name>history_dialog</name>
    <message>
        <source>Historie laden</source>
        <translation>Load history</translation>
    </message>
    <message>
        <source>Datum/Zeitbereich</source>
        <translation>Date/period</translation>
    </message>
    <message>
        <source>ab Jahr (inkl.)</source>
        <translation>from year (incl.)</translation>
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
        <source>ab dem Datum</source>
        <translation>from the date</translation>
    </message>
    <message>
        <source>lade Datei</source>
        <translation>load file</translation>
    </message>
    <message>
        <source>Doppelklick links zur Auswahl</source>
        <translation>Double-click to choose</translation>
    </message>
    <message>
        <source>Datei öffnen</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>* absolut vom Programmstarttag</source>
        <translation>* counted from the day of program start</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Daten an bestehende Statistik anhängen</source>
        <translation>Add data to the present statistics</translation>
    </message>
    <message>
        <source>Statistik vor dem Laden löschen</source>
        <translation>Clear the statistics before loading</translation>
    </message>
    <message>
        <source>Laden</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Ladeprotokoll</source>
        <translation>Load protocol</translation>
    </message>
    <message>
        <source>Lade Dateien (*.inp)</source>
        <translation>Load files (*.inp)</translation>
    </message>
    <message>
        <source>Alle Dateien (*.*)</source>
        <translation>All files (*.*)</translation>
    </message>
    <message>
        <source>Statistik wird zurückgesetzt ...</source>
        <translation>The statistics are being reset ...</translation>
    </message>
    <message>
        <source>Daten werden geladen - bitte warten ...</source>
        <translation>Data are being loaded - please wait ...</translation>
    </message>
    <message>
        <source>Statistik wurde nicht zurückgesetzt - Ladevorgang abgebrochen!</source>
        <translation>The statistics were not reset - loading cancelled!</translation>
    </message>
    <message>
        <source>Einarbeitung nicht erfolgreich!</source>
        <translation>Incorporation failed!</translation>
    </message>
    <message>
        <source>Es wurden keine gültigen/revelanten Coups gefunden!</source>
        <translation>No valid/relevant coups were found!</translation>
    </message>
    <message>
        <source>Das Laden war erfolgreich! Coups: </source>
        <translation>Loading was successful! Coups: </translation>
    </message>
    <message>
        <source> Handwechsel: </source>
        <translation> Hand changes: </translation>
    </message>
    <message>
        <source>Einarbeitung läuft - bitte warten ...</source>
        <translation>Incorporation in progress - please wait ...</translation>
    </message>
    <message>
        <source>Einarbeitung komplett und erfolgreich!</source>
        <translation>Incorporation complete and successful!</translation>
    </message>
    <message>
        <source>In der Ladedatei wurde die nicht gültige Zahl</source>
        <translation>The load file contains the invalid number</translation>
    </message>
    <message>
        <source> gefunden!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>Die ungültige Zahl wird ignoriert - Laden wird fortgesetzt!</source>
        <translation>The invalid number is ignored - loading continues!</translation>
    </message>
    <message>
        <source>In der Ladedatei wurde 00 gefunden - aktueller Spieltisch ist aber französich - 00 wurde in 0 umgewandelt!</source>
        <translation>00 was found in the load file - but the present table is French - 00 was turned into 0!</translation>
    </message>
    <message>
        <source>Laden wird fortgesetzt ...</source>
        <translation>Loading continues ...</translation>
    </message>
    <message>
        <source>Weitere Hinweise werden nicht mehr angezeigt.</source>
        <translation>Further notes are not shown.</translation>
    </message>
    <message>
        <source>Daten wurden noch nicht geladen!</source>
        <translation>The data have not been loaded yet!</translation>
    </message>
    <message>
        <source>Soll trotzdem geschlossen werden?</source>
        <translation>Close all the same?</translation>
    </message>
    <message>
        <source>Historie ab Jahr</source>
        <translation>History from year</translation>
    </message>
    <message>
        <source>Historie der letzten Tage</source>
        <translation>History of the last days</translation>
    </message>
    <message>
        <source>Historie ab Datum</source>
        <translation>History from date</translation>
    </message>
    <message>
        <source>Ladedatei der Historie</source>
        <translation>Load file of the history</translation>
    </message>
    <message>
        <source>Datei auswählen</source>
        <translation>Choose a file</translation>
    </message>
</context>
<context>
    <name>jeton_button</name>
    <message>
        <source>Spieler %1, %2: %3 Stück</source>
        <translation>Player %1, %2: Pieces: %3</translation>
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
    <message>
        <source>Coups der Hauptladedatei</source>
        <translation>Coups of the main load file</translation>
    </message>
    <message>
        <source>Reset Hauptladedatei</source>
        <translation>Reset main load file</translation>
    </message>
    <message>
        <source>Fix Start ab Coup</source>
        <translation>Fixed start from coup</translation>
    </message>
    <message>
        <source>Zufall Start 1 von</source>
        <translation>Random start 1 from</translation>
    </message>
    <message>
        <source>Zufall Start 1 bis</source>
        <translation>Random start 1 to</translation>
    </message>
    <message>
        <source>Zufall Start 2 max. Angriffe</source>
        <translation>Random start 2 max. attacks</translation>
    </message>
    <message>
        <source>Zufall Start 2 Dauer</source>
        <translation>Random start 2 length</translation>
    </message>
    <message>
        <source>Folgeladedatei 1</source>
        <translation>Follow file 1</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 1</source>
        <translation>Coups of follow file 1</translation>
    </message>
    <message>
        <source>Folgeladedatei 2</source>
        <translation>Follow file 2</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 2</source>
        <translation>Coups of follow file 2</translation>
    </message>
    <message>
        <source>Folgeladedatei 3</source>
        <translation>Follow file 3</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 3</source>
        <translation>Coups of follow file 3</translation>
    </message>
    <message>
        <source>Folgeladedatei 4</source>
        <translation>Follow file 4</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 4</source>
        <translation>Coups of follow file 4</translation>
    </message>
    <message>
        <source>Folgeladedatei 5</source>
        <translation>Follow file 5</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 5</source>
        <translation>Coups of follow file 5</translation>
    </message>
    <message>
        <source>Folgeladedatei 6</source>
        <translation>Follow file 6</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 6</source>
        <translation>Coups of follow file 6</translation>
    </message>
    <message>
        <source>Folgeladedatei 7</source>
        <translation>Follow file 7</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 7</source>
        <translation>Coups of follow file 7</translation>
    </message>
    <message>
        <source>Folgeladedatei 8</source>
        <translation>Follow file 8</translation>
    </message>
    <message>
        <source>Coups der Folgeladedatei 8</source>
        <translation>Coups of follow file 8</translation>
    </message>
    <message>
        <source>Reset Sammelladedatei</source>
        <translation>Reset collection file</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Zarvello hält seine Dateien im Ordner %1. Er kann nicht angelegt oder nicht betreten werden!</source>
        <translation>Zarvello keeps its files in the folder %1. It can&apos;t be created or entered!</translation>
    </message>
    <message>
        <source>Zarvello Warnung</source>
        <translation>Zarvello Warning</translation>
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
    <name>muster_legend_widget</name>
    <message>
        <source>Dunkelgelb</source>
        <translation>Dark yellow</translation>
    </message>
    <message>
        <source>1-18</source>
        <translation>1-18</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>19-36</source>
        <translation>19-36</translation>
    </message>
    <message>
        <source>EVEN</source>
        <translation>EVEN</translation>
    </message>
    <message>
        <source>ODD</source>
        <translation>ODD</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>1-12</source>
        <translation>1-12</translation>
    </message>
    <message>
        <source>13-24</source>
        <translation>13-24</translation>
    </message>
    <message>
        <source>Dunkelrot</source>
        <translation>Dark red</translation>
    </message>
    <message>
        <source>25-36</source>
        <translation>25-36</translation>
    </message>
    <message>
        <source>1. Kolonne</source>
        <translation>1st Column</translation>
    </message>
    <message>
        <source>2. Kolonne</source>
        <translation>2nd Column</translation>
    </message>
    <message>
        <source>3. Kolonne</source>
        <translation>3rd Column</translation>
    </message>
</context>
<context>
    <name>muster_statistic</name>
    <message>
        <source>Muster Verlauf</source>
        <translation>Pattern Course</translation>
    </message>
    <message>
        <source>1-18/19-36</source>
        <translation>1-18/19-36</translation>
    </message>
    <message>
        <source>EVEN/ODD</source>
        <translation>EVEN/ODD</translation>
    </message>
    <message>
        <source>Rot/Schwarz</source>
        <translation>Red/Black</translation>
    </message>
    <message>
        <source>Dutzende</source>
        <translation>Dozens</translation>
    </message>
    <message>
        <source>Kolonnen</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Vertikal</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Rastergröße</source>
        <translation>Grid Size</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Chance</source>
        <translation>Chance</translation>
    </message>
    <message>
        <source>Nr. %1: %2</source>
        <translation>No. %1: %2</translation>
    </message>
    <message>
        <source>Nr.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Verlauf</source>
        <translation>Course</translation>
    </message>
</context>
<context>
    <name>muster_statistic_serien</name>
    <message>
        <source>Muster Figuren</source>
        <translation>Pattern Figures</translation>
    </message>
    <message>
        <source>1-18/19-36 (EC01/EC06)</source>
        <translation>1-18/19-36 (EC01/EC06)</translation>
    </message>
    <message>
        <source>2er Figuren</source>
        <translation>Figures of 2</translation>
    </message>
    <message>
        <source>3er Figuren</source>
        <translation>Figures of 3</translation>
    </message>
    <message>
        <source>4er Figuren</source>
        <translation>Figures of 4</translation>
    </message>
    <message>
        <source>EVEN/ODD (EC02/EC05)</source>
        <translation>EVEN/ODD (EC02/EC05)</translation>
    </message>
    <message>
        <source>Rot/Schwarz (EC03/EC04)</source>
        <translation>Red/Black (EC03/EC04)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Chance</source>
        <translation>Chance</translation>
    </message>
    <message>
        <source>Figur</source>
        <translation>Figure</translation>
    </message>
    <message>
        <source>Anzahl</source>
        <translation>Count</translation>
    </message>
</context>
<context>
    <name>page_export</name>
    <message>
        <source>Exportieren</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Als CSV speichern...</source>
        <translation>Save as CSV...</translation>
    </message>
    <message>
        <source>Als PNG speichern...</source>
        <translation>Save as PNG...</translation>
    </message>
    <message>
        <source>Als SVG speichern...</source>
        <translation>Save as SVG...</translation>
    </message>
    <message>
        <source>CSV-Dateien (*.csv)</source>
        <translation>CSV files (*.csv)</translation>
    </message>
    <message>
        <source>PNG-Dateien (*.png)</source>
        <translation>PNG files (*.png)</translation>
    </message>
    <message>
        <source>SVG-Dateien (*.svg)</source>
        <translation>SVG files (*.svg)</translation>
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
    <name>permanenz_widget</name>
    <message>
        <source>Gefallene Zahlen</source>
        <translation>Numbers that have come</translation>
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
    <name>printer_c</name>
    <message>
        <source>Es ist kein Drucker bereit. Soll die Seite als PDF gespeichert werden?</source>
        <translation>There is no printer ready. Save the page as PDF instead?</translation>
    </message>
    <message>
        <source>Zarvello Info</source>
        <translation>Zarvello Info</translation>
    </message>
    <message>
        <source>Als PDF speichern</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>PDF-Dateien (*.pdf)</source>
        <translation>PDF files (*.pdf)</translation>
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
    <message>
        <source>Spieler %1</source>
        <translation>Player %1</translation>
    </message>
    <message>
        <source>Wiederholen</source>
        <translation>Repeat bet</translation>
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
    <message>
        <source>System aktiv, Spieler 1</source>
        <translation>System active, player 1</translation>
    </message>
    <message>
        <source>Systemdatei, Spieler 1</source>
        <translation>System file, player 1</translation>
    </message>
    <message>
        <source>Reset Systemdatei, Spieler 1</source>
        <translation>Reset system file, player 1</translation>
    </message>
    <message>
        <source>Protokoll aktiv, Spieler 1</source>
        <translation>Protocol active, player 1</translation>
    </message>
    <message>
        <source>Protokolldatei, Spieler 1</source>
        <translation>Protocol file, player 1</translation>
    </message>
    <message>
        <source>Reset Protokolldatei, Spieler 1</source>
        <translation>Reset protocol file, player 1</translation>
    </message>
    <message>
        <source>System aktiv, Spieler 2</source>
        <translation>System active, player 2</translation>
    </message>
    <message>
        <source>Systemdatei, Spieler 2</source>
        <translation>System file, player 2</translation>
    </message>
    <message>
        <source>Reset Systemdatei, Spieler 2</source>
        <translation>Reset system file, player 2</translation>
    </message>
    <message>
        <source>Protokoll aktiv, Spieler 2</source>
        <translation>Protocol active, player 2</translation>
    </message>
    <message>
        <source>Protokolldatei, Spieler 2</source>
        <translation>Protocol file, player 2</translation>
    </message>
    <message>
        <source>Reset Protokolldatei, Spieler 2</source>
        <translation>Reset protocol file, player 2</translation>
    </message>
    <message>
        <source>System aktiv, Spieler 3</source>
        <translation>System active, player 3</translation>
    </message>
    <message>
        <source>Systemdatei, Spieler 3</source>
        <translation>System file, player 3</translation>
    </message>
    <message>
        <source>Reset Systemdatei, Spieler 3</source>
        <translation>Reset system file, player 3</translation>
    </message>
    <message>
        <source>Protokoll aktiv, Spieler 3</source>
        <translation>Protocol active, player 3</translation>
    </message>
    <message>
        <source>Protokolldatei, Spieler 3</source>
        <translation>Protocol file, player 3</translation>
    </message>
    <message>
        <source>Reset Protokolldatei, Spieler 3</source>
        <translation>Reset protocol file, player 3</translation>
    </message>
    <message>
        <source>System aktiv, Spieler 4</source>
        <translation>System active, player 4</translation>
    </message>
    <message>
        <source>Systemdatei, Spieler 4</source>
        <translation>System file, player 4</translation>
    </message>
    <message>
        <source>Reset Systemdatei, Spieler 4</source>
        <translation>Reset system file, player 4</translation>
    </message>
    <message>
        <source>Protokoll aktiv, Spieler 4</source>
        <translation>Protocol active, player 4</translation>
    </message>
    <message>
        <source>Protokolldatei, Spieler 4</source>
        <translation>Protocol file, player 4</translation>
    </message>
    <message>
        <source>Reset Protokolldatei, Spieler 4</source>
        <translation>Reset protocol file, player 4</translation>
    </message>
</context>
<context>
    <name>table_follow_number</name>
    <message>
        <source>Folgezahlen</source>
        <translation>Follow numbers</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Tabellen</source>
        <translation>Tables</translation>
    </message>
    <message>
        <source>Folgezahlen 0-18</source>
        <translation>Follow numbers 0-18</translation>
    </message>
    <message>
        <source>Folgezahlen 19-36</source>
        <translation>Follow numbers 19-36</translation>
    </message>
</context>
<context>
    <name>table_frequency</name>
    <message>
        <source>Häufigkeit</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Tabellen</source>
        <translation>Tables</translation>
    </message>
</context>
<context>
    <name>table_statistic_base</name>
    <message>
        <source>Standard - Wie oft?</source>
        <translation>Standard - How often?</translation>
    </message>
    <message>
        <source>Einfache Chance (EC01 - EC06)</source>
        <translation>Even Chances (EC01 - EC06)</translation>
    </message>
    <message>
        <source>Kolonne (KL01 - KL03)</source>
        <translation>Columns (KL01 - KL03)</translation>
    </message>
    <message>
        <source>Dutzend (DZ01 - DZ03)</source>
        <translation>Dozens (DZ01 - DZ03)</translation>
    </message>
    <message>
        <source>Plein (PL01 - PL36)</source>
        <translation>Plein (PL01 - PL36)</translation>
    </message>
    <message>
        <source>Carre (CA01 - CA23)</source>
        <translation>Carre (CA01 - CA23)</translation>
    </message>
    <message>
        <source>Transversale Simple (TS01 - TS11)</source>
        <translation>Transversale Simple (TS01 - TS11)</translation>
    </message>
    <message>
        <source>Transversale Plein (TP01 - TP14)</source>
        <translation>Transversale Plein (TP01 - TP14)</translation>
    </message>
    <message>
        <source>Cheval (CH01 - CH60)</source>
        <translation>Cheval (CH01 - CH60)</translation>
    </message>
    <message>
        <source>Standard - Seit wann nicht?</source>
        <translation>Standard - How long absent?</translation>
    </message>
    <message>
        <source>ROT</source>
        <translation>RED</translation>
    </message>
    <message>
        <source>SCHWARZ</source>
        <translation>BLACK</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Cheval (CH01 - CH63)</source>
        <translation>Cheval (CH01 - CH63)</translation>
    </message>
    <message>
        <source>Transversale Plein (TP01 - TP16)</source>
        <translation>Transversale Plein (TP01 - TP16)</translation>
    </message>
    <message>
        <source>Straight Up (PL01 - PL36)</source>
        <translation>Straight Up (PL01 - PL36)</translation>
    </message>
    <message>
        <source>Corner (CA01 - CA23)</source>
        <translation>Corner (CA01 - CA23)</translation>
    </message>
    <message>
        <source>Six Line (TS01 - TS11)</source>
        <translation>Six Line (TS01 - TS11)</translation>
    </message>
    <message>
        <source>Split (CH01 - CH63)</source>
        <translation>Split (CH01 - CH63)</translation>
    </message>
    <message>
        <source>Split (CH01 - CH60)</source>
        <translation>Split (CH01 - CH60)</translation>
    </message>
    <message>
        <source>Street (TP01 - TP16)</source>
        <translation>Street (TP01 - TP16)</translation>
    </message>
    <message>
        <source>Street (TP01 - TP14)</source>
        <translation>Street (TP01 - TP14)</translation>
    </message>
    <message>
        <source>Tabellen</source>
        <translation>Tables</translation>
    </message>
</context>
<context>
    <name>table_statistic_extended</name>
    <message>
        <source>Annoncen - Wie oft?</source>
        <translation>Call bets - How often?</translation>
    </message>
    <message>
        <source>Finale (FI00 - FI09)</source>
        <translation>Finals (FI00 - FI09)</translation>
    </message>
    <message>
        <source>Annoncen (GS, KS, OR, OP, ZS)</source>
        <translation>Call bets (GS, KS, OR, OP, ZS)</translation>
    </message>
    <message>
        <source>Ein Nachbar (EN00 - EN37)</source>
        <translation>One Neighbour (EN00 - EN37)</translation>
    </message>
    <message>
        <source>Zwei Nachbarn (ZN00 - ZN37)</source>
        <translation>Two Neighbours (ZN00 - ZN37)</translation>
    </message>
    <message>
        <source>Drei Nachbarn (DN00 - DN37)</source>
        <translation>Three Neighbours (DN00 - DN37)</translation>
    </message>
    <message>
        <source>Annoncen - Seit wann nicht?</source>
        <translation>Call bets - How long absent?</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Tabellen</source>
        <translation>Tables</translation>
    </message>
</context>
<context>
    <name>table_statistic_serie</name>
    <message>
        <source>Serien</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Serien EC01 (1-18)</source>
        <translation>Series EC01 (1-18)</translation>
    </message>
    <message>
        <source>Serien EC02 (EVEN)</source>
        <translation>Series EC02 (EVEN)</translation>
    </message>
    <message>
        <source>Serien EC03 (ROT)</source>
        <translation>Series EC03 (RED)</translation>
    </message>
    <message>
        <source>Serien EC04 (SCHWARZ)</source>
        <translation>Series EC04 (BLACK)</translation>
    </message>
    <message>
        <source>Serien EC05 (ODD)</source>
        <translation>Series EC05 (ODD)</translation>
    </message>
    <message>
        <source>Serien EC06 (19-36)</source>
        <translation>Series EC06 (19-36)</translation>
    </message>
    <message>
        <source>Serien DZ01</source>
        <translation>Series DZ01</translation>
    </message>
    <message>
        <source>Serien DZ02</source>
        <translation>Series DZ02</translation>
    </message>
    <message>
        <source>Serien DZ03</source>
        <translation>Series DZ03</translation>
    </message>
    <message>
        <source>Serien KL01</source>
        <translation>Series KL01</translation>
    </message>
    <message>
        <source>Serien KL02</source>
        <translation>Series KL02</translation>
    </message>
    <message>
        <source>Serien KL03</source>
        <translation>Series KL03</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
</context>
<context>
    <name>wheelWidget</name>
    <message>
        <source>Kessel</source>
        <translation>Wheel</translation>
    </message>
    <message>
        <source>Kugel auf %1</source>
        <translation>Ball on %1</translation>
    </message>
</context>
<context>
    <name>wheel_distribution</name>
    <message>
        <source>Kesselverteilung</source>
        <translation>Wheel Distribution</translation>
    </message>
    <message>
        <source>Treffer im Kessel</source>
        <translation>Hits on the Wheel</translation>
    </message>
    <message>
        <source>Auswertung</source>
        <translation>Evaluation</translation>
    </message>
    <message>
        <source>Quadranten</source>
        <translation>Quadrants</translation>
    </message>
    <message>
        <source>Quadrant 1</source>
        <translation>Quadrant 1</translation>
    </message>
    <message>
        <source>Quadrant 2</source>
        <translation>Quadrant 2</translation>
    </message>
    <message>
        <source>Quadrant 3</source>
        <translation>Quadrant 3</translation>
    </message>
    <message>
        <source>Quadrant 4</source>
        <translation>Quadrant 4</translation>
    </message>
    <message>
        <source>Gesamt:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Verbleibend: </source>
        <translation>Remaining: </translation>
    </message>
    <message>
        <source>Verzögerung</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>Millisekunden</source>
        <translation>Milliseconds</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Zahl</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Treffer</source>
        <translation>Hits</translation>
    </message>
    <message>
        <source>Quadrant %1</source>
        <translation>Quadrant %1</translation>
    </message>
</context>
<context>
    <name>wheel_distribution_widget</name>
    <message>
        <source>Zahl %1: %2 Treffer</source>
        <translation>Number %1: %2 hits</translation>
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
<context>
    <name>year_file_permanenz</name>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>*aktueller Lauf</source>
        <translation>*current run</translation>
    </message>
    <message>
        <source> (schreibgeschützt)</source>
        <translation> (read-only)</translation>
    </message>
    <message>
        <source>Keine Jahres Permanenz gefunden!</source>
        <translation>No year permanence found!</translation>
    </message>
    <message>
        <source>... (die Datei ist zu lang, gezeigt wird ihr Ende)</source>
        <translation>... (the file is too long, its end is shown)</translation>
    </message>
    <message>
        <source>Jahrespermanenz</source>
        <translation>Year permanence</translation>
    </message>
</context>
</TS>
