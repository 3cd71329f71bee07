<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Wallpaper</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Screensaver</source>
        <translation>Bildschirmschoner</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Qaz Theme Editor</source>
        <translation>Qaz-Designeditor</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Zurücksetzen …</translation>
    </message>
    <message>
        <source>Restore all settings.
</source>
        <translation>Alle Einstellungen zurücksetzen.
</translation>
    </message>
    <message>
        <source>All changes will be lost and restart session will be required.</source>
        <translation>Alle Änderungen gehen verloren, und die Sitzung muss neu gestartet werden.</translation>
    </message>
    <message>
        <source>Save ?</source>
        <translation>Speichern?</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Theme only</source>
        <translation>Nur das Design</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Are you sure?
If yes then select restore type and press Yes

Restore type:</source>
        <translation>Sind Sie sicher?
Wenn ja, wählen Sie den Umfang und drücken Sie OK

Zurücksetzen:</translation>
    </message>
    <message>
        <source>All Qaz settings</source>
        <translation>Alle Einstellungen von Qaz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Can&apos;t remove &apos;%1&apos;</source>
        <translation>„%1“ kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Restore done</source>
        <translation>Zurückgesetzt</translation>
    </message>
    <message>
        <source>Selected settings are restored. You need to restart session. Do it now (recommended)?</source>
        <translation>Die gewählten Einstellungen sind zurückgesetzt. Die Sitzung muss neu gestartet werden. Jetzt neu starten (empfohlen)?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Can&apos;t back up &apos;%1&apos;: %2
Remove it all the same?</source>
        <translation>„%1“ kann nicht gesichert werden: %2
Trotzdem entfernen?</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>EffectForm</name>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>For Windows</source>
        <translation>Für Fenster</translation>
    </message>
    <message>
        <source>Opaque window move</source>
        <translation>Fenster beim Verschieben mit Inhalt zeigen</translation>
    </message>
    <message>
        <source>OpaqueMove</source>
        <translation>Mit Inhalt verschieben</translation>
    </message>
    <message>
        <source>Search free area to map window</source>
        <translation>Für ein neues Fenster freien Platz suchen</translation>
    </message>
    <message>
        <source>SmartPlacement</source>
        <translation>Freien Platz suchen</translation>
    </message>
    <message>
        <source>Opaque window resize</source>
        <translation>Fenster beim Ändern der Größe mit Inhalt zeigen</translation>
    </message>
    <message>
        <source>OpaqueResize</source>
        <translation>Größe mit Inhalt ändern</translation>
    </message>
    <message>
        <source>Animation:</source>
        <translation>Animation:</translation>
    </message>
    <message>
        <source>speed of window map/unmap</source>
        <translation>Tempo, mit dem Fenster erscheinen und verschwinden</translation>
    </message>
    <message>
        <source>GradWindowMapSpeed:</source>
        <translation>Öffnungstempo:</translation>
    </message>
    <message>
        <source>Style of window map/ummap</source>
        <translation>Art, in der Fenster erscheinen und verschwinden</translation>
    </message>
    <message>
        <source>GradWindowMapStyle:</source>
        <translation>Öffnungsart:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>TopToBottom</source>
        <translation>Von oben</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Von links</translation>
    </message>
    <message>
        <source>CenterToTopBottom</source>
        <translation>Mitte, senkrecht</translation>
    </message>
    <message>
        <source>CenterToLeftRight</source>
        <translation>Mitte, waagerecht</translation>
    </message>
    <message>
        <source>CenterToAll</source>
        <translation>Von der Mitte</translation>
    </message>
    <message>
        <source>FromButton</source>
        <translation>Vom Knopf</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>Von rechts</translation>
    </message>
    <message>
        <source>BottomToTop</source>
        <translation>Von unten</translation>
    </message>
    <message>
        <source>Speed of windows minimize-maximize, restore, rearrange</source>
        <translation>Tempo beim Minimieren, Maximieren, Wiederherstellen und Anordnen von Fenstern</translation>
    </message>
    <message>
        <source>ArrangeWindowSpeed:</source>
        <translation>Anordnungstempo:</translation>
    </message>
    <message>
        <source>Speed of start menu show animation</source>
        <translation>Tempo, mit dem das Startmenü erscheint</translation>
    </message>
    <message>
        <source>StartMenuMapSpeed:</source>
        <translation>Startmenütempo:</translation>
    </message>
    <message>
        <source>Composite effect, available for some video cards only</source>
        <translation>Compositing-Effekt, nur mit manchen Grafikkarten verfügbar</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Compositing</translation>
    </message>
    <message>
        <source>Windows thumbnails in taskbar, task switcher, desktop pages, etc.</source>
        <translation>Miniaturen der Fenster in Taskleiste, Fensterumschalter, Pager usw.</translation>
    </message>
    <message>
        <source>Windows Preview</source>
        <translation>Fenstervorschau</translation>
    </message>
    <message>
        <source>Disable composite manager to speed up desktop drawing or to fix onscreen artefacts if any</source>
        <translation>Schalten Sie den Compositing-Manager aus, wenn der Bildaufbau zu langsam ist oder Darstellungsfehler auftreten</translation>
    </message>
    <message>
        <source>Composite Manager</source>
        <translation>Compositing-Manager</translation>
    </message>
    <message>
        <source>Disable transparency to speed up</source>
        <translation>Ohne Transparenz geht es schneller</translation>
    </message>
    <message>
        <source>Transparency of windows</source>
        <translation>Transparente Fenster</translation>
    </message>
    <message>
        <source>Disable shadows to speed up</source>
        <translation>Ohne Schatten geht es schneller</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>For Taskbar</source>
        <translation>Für die Taskleiste</translation>
    </message>
    <message>
        <source>autohided taskbar show delay (ms)</source>
        <translation>Verzögerung, mit der eine ausgeblendete Taskleiste erscheint (ms)</translation>
    </message>
    <message>
        <source>TaskbarShowDelay:</source>
        <translation>Einblenden nach:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>autohided taskbar hide delay (ms)</source>
        <translation>Verzögerung, mit der sich die Taskleiste ausblendet (ms)</translation>
    </message>
    <message>
        <source>TaskbarHideDelay:</source>
        <translation>Ausblenden nach:</translation>
    </message>
    <message>
        <source>speed of autohided taskbar map/unmap</source>
        <translation>Tempo, mit dem sich die Taskleiste ein- und ausblendet</translation>
    </message>
    <message>
        <source>GradTaskbarMotionSpeed:</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>For Menus</source>
        <translation>Für Menüs</translation>
    </message>
    <message>
        <source>menu show delay (ms)</source>
        <translation>Verzögerung, mit der ein Menü erscheint (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime:</source>
        <translation>Einblenden nach:</translation>
    </message>
    <message>
        <source>menu hide delay (ms)</source>
        <translation>Verzögerung, mit der ein Menü verschwindet (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime2:</source>
        <translation>Ausblenden nach:</translation>
    </message>
    <message>
        <source>menu map animation speed</source>
        <translation>Tempo, mit dem ein Menü erscheint</translation>
    </message>
    <message>
        <source>GradMenuMapSpeed:</source>
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>Autopaging</source>
        <translation>Arbeitsflächenwechsel am Bildschirmrand</translation>
    </message>
    <message>
        <source>Screen edge area for autopaging</source>
        <translation>Breite des Bildschirmrands, der die Arbeitsfläche wechselt</translation>
    </message>
    <message>
        <source>PagingBeltSize</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Autopaging resistance</source>
        <translation>Zeit, die der Mauszeiger am Rand verweilen muss</translation>
    </message>
    <message>
        <source>PagingResistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Shift cursor from edge when autopaging</source>
        <translation>Abstand des Mauszeigers vom Rand nach dem Wechsel</translation>
    </message>
    <message>
        <source>PagingShiftCursor</source>
        <translation>Zeigerversatz</translation>
    </message>
    <message>
        <source>Autopaging speed</source>
        <translation>Tempo des Arbeitsflächenwechsels</translation>
    </message>
    <message>
        <source>PagingSpeed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>menu transparency left side value</source>
        <translation>Transparenz der Menüs an der linken Seite</translation>
    </message>
    <message>
        <source>MenuTransparency:</source>
        <translation>Menü links:</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>menu transparency right side value</source>
        <translation>Transparenz der Menüs an der rechten Seite</translation>
    </message>
    <message>
        <source>MenuTransparency2:</source>
        <translation>Menü rechts:</translation>
    </message>
    <message>
        <source>How fast windows appear and disappear: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>Wie schnell Fenster erscheinen und verschwinden: eine Zahl ohne Einheit von 0 bis 30. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How fast windows are minimized, maximized, restored and rearranged: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>Wie schnell Fenster minimiert, maximiert, wiederhergestellt und angeordnet werden: eine Zahl ohne Einheit von 0 bis 25. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How fast the start menu appears: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>Wie schnell das Startmenü erscheint: eine Zahl ohne Einheit von 0 bis 25. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests at the screen&apos;s edge until a hidden taskbar appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>Wie lange der Mauszeiger am Bildschirmrand ruht, bis eine ausgeblendete Taskleiste erscheint: Millisekunden von 0 bis 3000. 0 bedeutet sofort.</translation>
    </message>
    <message>
        <source>How long the taskbar stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>Wie lange die Taskleiste noch bleibt, nachdem der Mauszeiger sie verlassen hat: Millisekunden von 0 bis 3000. 0 bedeutet gar nicht.</translation>
    </message>
    <message>
        <source>How fast a taskbar that hides itself moves: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>Wie schnell sich eine Taskleiste bewegt, die sich ausblendet: eine Zahl ohne Einheit von 0 bis 30. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests on an entry until its menu appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>Wie lange der Mauszeiger auf einem Eintrag ruht, bis dessen Menü erscheint: Millisekunden von 0 bis 3000. 0 bedeutet sofort.</translation>
    </message>
    <message>
        <source>How long a menu stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>Wie lange ein Menü noch bleibt, nachdem der Mauszeiger es verlassen hat: Millisekunden von 0 bis 3000. 0 bedeutet gar nicht.</translation>
    </message>
    <message>
        <source>How fast menus appear: a number without a unit, from 0 to 10. 0 means no animation.</source>
        <translation>Wie schnell Menüs erscheinen: eine Zahl ohne Einheit von 0 bis 10. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How wide the area at the screen&apos;s edges is from which the pointer leads to the next desktop: pixels, from 0 to 20. 0 switches autopaging off.</source>
        <translation>Wie breit der Bereich an den Bildschirmrändern ist, von dem aus der Mauszeiger zur nächsten Arbeitsfläche führt: Pixel von 0 bis 20. 0 schaltet den Arbeitsflächenwechsel aus.</translation>
    </message>
    <message>
        <source>How long the pointer pushes against the edge until the desktop changes: milliseconds, from 0 to 5000. 0 means at once.</source>
        <translation>Wie lange der Mauszeiger gegen den Rand drückt, bis die Arbeitsfläche wechselt: Millisekunden von 0 bis 5000. 0 bedeutet sofort.</translation>
    </message>
    <message>
        <source>How far from the edge the pointer arrives on the next desktop: pixels, from 0 to 500. 0 leaves it at the edge.</source>
        <translation>Wie weit vom Rand entfernt der Mauszeiger auf der nächsten Arbeitsfläche ankommt: Pixel von 0 bis 500. 0 lässt ihn am Rand.</translation>
    </message>
    <message>
        <source>How fast the desktops move: a number without a unit, from 0 to 100. 0 means no animation.</source>
        <translation>Wie schnell sich die Arbeitsflächen bewegen: eine Zahl ohne Einheit von 0 bis 100. 0 bedeutet keine Animation.</translation>
    </message>
    <message>
        <source>How transparent menus are at their left side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>Wie durchsichtig Menüs an ihrer linken Seite sind: Prozent von 0 bis 100. 0 bedeutet deckend.</translation>
    </message>
    <message>
        <source>How transparent menus are at their right side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>Wie durchsichtig Menüs an ihrer rechten Seite sind: Prozent von 0 bis 100. 0 bedeutet deckend.</translation>
    </message>
</context>
<context>
    <name>FilePreview</name>
    <message>
        <source>%1, %2 Hz, %3 × %4 bit
Length: %5 s</source>
        <translation>%1, %2 Hz, %3 × %4 Bit
Länge: %5 s</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
</context>
<context>
    <name>FontAASettings</name>
    <message>
        <source>The font settings could not be saved in the file &apos;%1&apos;: %2</source>
        <translation>Die Schrifteinstellungen konnten nicht in der Datei „%1“ gespeichert werden: %2</translation>
    </message>
</context>
<context>
    <name>FontAASettingsForm</name>
    <message>
        <source>Configure Anti-Alias Settings</source>
        <translation>Kantenglättung einrichten</translation>
    </message>
    <message>
        <source>E&amp;xclude range:</source>
        <translation>&amp;Bereich ausschließen:</translation>
    </message>
    <message>
        <source>Exclude range from</source>
        <translation>Ausgeschlossener Bereich von</translation>
    </message>
    <message>
        <source> pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source> to </source>
        <translation> bis </translation>
    </message>
    <message>
        <source>Exclude range to</source>
        <translation>Ausgeschlossener Bereich bis</translation>
    </message>
    <message>
        <source>&lt;p&gt;If you have a TFT or LCD screen you can further improve the quality of displayed fonts by selecting this option.&lt;br /&gt;Sub-pixel rendering is also known as ClearType(tm).&lt;br /&gt; In order for sub-pixel rendering to work correctly you need to know how the sub-pixels of your display are aligned.&lt;/p&gt; &lt;p&gt;On TFT or LCD displays a single pixel is actually composed of three sub-pixels, red, green and blue. Most displays have a linear ordering of RGB sub-pixel, some have BGR.&lt;br /&gt; This feature does not work with CRT monitors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mit einem TFT- oder LCD-Bildschirm verbessert diese Option die Darstellung der Schriften noch weiter.&lt;br /&gt;Subpixel-Rendering ist auch als ClearType(tm) bekannt.&lt;br /&gt; Damit es richtig funktioniert, müssen Sie wissen, wie die Subpixel Ihres Bildschirms angeordnet sind.&lt;/p&gt; &lt;p&gt;Auf TFT- und LCD-Bildschirmen besteht jedes Pixel aus drei Subpixeln: rot, grün und blau. Die meisten Bildschirme ordnen sie in der Folge RGB an, manche in der Folge BGR.&lt;br /&gt; Mit Röhrenbildschirmen funktioniert das nicht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Use sub-pixel rendering:</source>
        <translation>&amp;Subpixel-Rendering:</translation>
    </message>
    <message>
        <source>Sub-pixel order</source>
        <translation>Anordnung der Subpixel</translation>
    </message>
    <message>
        <source>Hinting is a process used to enhance the quality of fonts at small sizes.</source>
        <translation>Hinting verbessert die Darstellung kleiner Schriften.</translation>
    </message>
    <message>
        <source>Hinting style: </source>
        <translation>Hinting: </translation>
    </message>
</context>
<context>
    <name>FontRendering</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>BGR</source>
        <translation>BGR</translation>
    </message>
    <message>
        <source>Vertical RGB</source>
        <translation>RGB vertikal</translation>
    </message>
    <message>
        <source>Vertical BGR</source>
        <translation>BGR vertikal</translation>
    </message>
    <message>
        <source>Slight</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Qaz Theme Editor Help</source>
        <translation>Hilfe zum Qaz-Designeditor</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
<context>
    <name>KFontRequester</name>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Click to select a font</source>
        <translation>Klicken, um eine Schrift zu wählen</translation>
    </message>
    <message>
        <source>Preview of the &quot;%1&quot; font</source>
        <translation>Vorschau der Schrift „%1“</translation>
    </message>
    <message>
        <source>This is a preview of the &quot;%1&quot; font. You can change it by clicking the &quot;...&quot; button.</source>
        <translation>Eine Vorschau der Schrift „%1“. Mit der Schaltfläche „…“ wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Select the &quot;%1&quot; font</source>
        <translation>Schrift „%1“ wählen</translation>
    </message>
</context>
<context>
    <name>KFonts</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Default.</source>
        <translation>Standardschrift.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Window titles.</source>
        <translation>Fenstertitel.</translation>
    </message>
    <message>
        <source>Start Menu</source>
        <translation>Startmenü</translation>
    </message>
    <message>
        <source>Start menu.</source>
        <translation>Startmenü.</translation>
    </message>
    <message>
        <source>Cascade Menu</source>
        <translation>Untermenüs</translation>
    </message>
    <message>
        <source>Cascade menus, context menus.</source>
        <translation>Untermenüs, Kontextmenüs.</translation>
    </message>
    <message>
        <source>Control Menu</source>
        <translation>Fenstermenüs</translation>
    </message>
    <message>
        <source>Control menus.</source>
        <translation>Fenstermenüs.</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialoge</translation>
    </message>
    <message>
        <source>Dialogs.</source>
        <translation>Dialoge.</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskleiste</translation>
    </message>
    <message>
        <source>Taskbar.</source>
        <translation>Taskleiste.</translation>
    </message>
    <message>
        <source>Taskbar bold</source>
        <translation>Taskleiste, fett</translation>
    </message>
    <message>
        <source>Taskbar bold.</source>
        <translation>Taskleiste, fett.</translation>
    </message>
    <message>
        <source>Taskbar clock</source>
        <translation>Uhr der Taskleiste</translation>
    </message>
    <message>
        <source>Taskbar clock.</source>
        <translation>Uhr der Taskleiste.</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Icons.</source>
        <translation>Symbole.</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Kurzinfos</translation>
    </message>
    <message>
        <source>Tooltips.</source>
        <translation>Kurzinfos.</translation>
    </message>
    <message>
        <source>Ad&amp;just All Fonts...</source>
        <translation>A&amp;lle Schriften ändern …</translation>
    </message>
    <message>
        <source>Click to change all fonts</source>
        <translation>Klicken, um alle Schriften zu ändern</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Systemeinstellung</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>If this option is selected, DE will smooth the edges of curves in fonts.</source>
        <translation>Glättet die Kanten der Rundungen in Schriften.</translation>
    </message>
    <message>
        <source>Configure...</source>
        <translation>Einrichten …</translation>
    </message>
    <message>
        <source>Use a&amp;nti-aliasing:</source>
        <translation>&amp;Kantenglättung:</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>&lt;p&gt;This option forces a specific DPI value for fonts. It may be useful when the real DPI of the hardware is not detected properly and it is also often misused when poor quality fonts are used that do not look well with DPI values other than 96 or 120 DPI.&lt;/p&gt;&lt;p&gt;The use of this option is generally discouraged. For selecting proper DPI value a better option is explicitly configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding &lt;i&gt;-dpi value&lt;/i&gt; to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render properly with real DPI value better fonts should be used or configuration of font hinting should be checked.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Erzwingt eine bestimmte Auflösung (DPI) für Schriften. Das hilft, wenn die wirkliche Auflösung des Bildschirms nicht richtig erkannt wird; oft wird es aber für schlechte Schriften missbraucht, die nur mit 96 oder 120 DPI gut aussehen.&lt;/p&gt;&lt;p&gt;Im Allgemeinen ist davon abzuraten. Besser stellen Sie die Auflösung nach Möglichkeit für den ganzen X-Server ein (zum Beispiel mit DisplaySize in xorg.conf oder indem Sie &lt;i&gt;-dpi Wert&lt;/i&gt; zu ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc hinzufügen). Wenn Schriften mit der wirklichen Auflösung schlecht aussehen, verwenden Sie bessere Schriften oder prüfen Sie die Einstellung des Hintings.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Force fonts DPI:</source>
        <translation>DPI der Schriften:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Some changes such as anti-aliasing or DPI will only affect newly started applications.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Manche Änderungen wie Kantenglättung oder DPI wirken erst auf neu gestartete Programme.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Font Settings Changed</source>
        <translation>Schrifteinstellungen geändert</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Qaz</source>
        <comment>Usage: qaz-admin-theme themefile - open and edit theme file
</comment>
        <translation>Aufruf: qaz-admin-theme Designdatei - Designdatei öffnen und bearbeiten</translation>
    </message>
</context>
<context>
    <name>ScreensaverForm</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Start automatically after</source>
        <translation>Automatisch starten nach</translation>
    </message>
    <message>
        <source>min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>DPMS off after</source>
        <translation>Bildschirm aus (DPMS) nach</translation>
    </message>
    <message>
        <source>Wrong password timeout</source>
        <translation>Wartezeit nach falschem Passwort</translation>
    </message>
    <message>
        <source>sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Wrong password bell level</source>
        <translation>Signallautstärke bei falschem Passwort</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Lock console switching</source>
        <translation>Wechsel der Konsole sperren</translation>
    </message>
    <message>
        <source>Lock X Access</source>
        <translation>X-Zugriff sperren</translation>
    </message>
    <message>
        <source>Start the screensaver when keyboard and mouse are not used</source>
        <translation>Den Bildschirmschoner starten, wenn Tastatur und Maus nicht benutzt werden</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts</source>
        <translation>Minuten ohne Eingabe, bis der Bildschirmschoner startet</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts, from 0 to 999. 0 means never.</source>
        <translation>Minuten ohne Eingabe von 0 bis 999, bis der Bildschirmschoner startet. 0 bedeutet nie.</translation>
    </message>
    <message>
        <source>Minutes until the locked display is switched off</source>
        <translation>Minuten, bis der gesperrte Bildschirm ausgeschaltet wird</translation>
    </message>
    <message>
        <source>DPMS switches the display off to save energy. This is after how many minutes it does so while the screen is locked, from 0 to 999. 0 means never.</source>
        <translation>DPMS schaltet den Bildschirm aus, um Energie zu sparen. Hier steht, nach wie vielen Minuten das bei gesperrtem Bildschirm geschieht, von 0 bis 999. 0 bedeutet nie.</translation>
    </message>
    <message>
        <source>How long the locker waits after a wrong password</source>
        <translation>Wie lange die Bildschirmsperre nach einem falschen Passwort wartet</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password, from 0 to 99. 0 means not at all.</source>
        <translation>Sekunden von 0 bis 99, die die Bildschirmsperre nach einem falschen Passwort wartet. 0 bedeutet gar nicht.</translation>
    </message>
    <message>
        <source>How loud the bell for a wrong password is</source>
        <translation>Wie laut der Signalton für ein falsches Passwort ist</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password in percent, from 0 to 100. 0 is silent.</source>
        <translation>Lautstärke des Signaltons für ein falsches Passwort in Prozent, von 0 bis 100. 0 ist stumm.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+F1 and the like don&apos;t leave the locked screen</source>
        <translation>Strg+Alt+F1 und Ähnliches führen nicht vom gesperrten Bildschirm weg</translation>
    </message>
    <message>
        <source>Other programs can&apos;t connect to the locked display</source>
        <translation>Andere Programme können sich nicht mit dem gesperrten Bildschirm verbinden</translation>
    </message>
</context>
<context>
    <name>SoundForm</name>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Design:</translation>
    </message>
    <message>
        <source>Select one of sound themes or None to use internal default sounds</source>
        <translation>Wählen Sie ein Klangdesign oder kein Design für die eingebauten Klänge</translation>
    </message>
    <message>
        <source>Use sounds in window manager</source>
        <translation>Klänge der Fensterverwaltung verwenden</translation>
    </message>
    <message>
        <source>Set default sounds for window manager</source>
        <translation>Klänge des Designs für die Fensterverwaltung übernehmen</translation>
    </message>
    <message>
        <source>From theme</source>
        <translation>Aus dem Design</translation>
    </message>
    <message>
        <source>Clear all sounds for window manager</source>
        <translation>Alle Klänge der Fensterverwaltung entfernen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Events and their sounds</source>
        <translation>Ereignisse und ihre Klänge</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Select sound file for current event in list</source>
        <translation>Klangdatei für das gewählte Ereignis wählen</translation>
    </message>
    <message>
        <source>Select sound file</source>
        <translation>Klangdatei wählen</translation>
    </message>
    <message>
        <source>Remove assignment sound file to event</source>
        <translation>Dem Ereignis keine Klangdatei mehr zuordnen</translation>
    </message>
    <message>
        <source>Remove sound file</source>
        <translation>Klangdatei entfernen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mischpult</translation>
    </message>
    <message>
        <source>Menu Popup</source>
        <translation>Menü geöffnet</translation>
    </message>
    <message>
        <source>Menu Command</source>
        <translation>Menübefehl</translation>
    </message>
    <message>
        <source>Open Window</source>
        <translation>Fenster öffnen</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Restore Window up</source>
        <translation>Fenster nach oben wiederherstellen</translation>
    </message>
    <message>
        <source>Restore Window down</source>
        <translation>Fenster nach unten wiederherstellen</translation>
    </message>
    <message>
        <source>Minimize Window</source>
        <translation>Fenster minimieren</translation>
    </message>
    <message>
        <source>Maximize Window</source>
        <translation>Fenster maximieren</translation>
    </message>
    <message>
        <source>System Start</source>
        <translation>Systemstart</translation>
    </message>
    <message>
        <source>System Exit</source>
        <translation>Systemende</translation>
    </message>
    <message>
        <source>System Lock</source>
        <translation>Systemsperre</translation>
    </message>
    <message>
        <source>Error Dialog</source>
        <translation>Fehlerdialog</translation>
    </message>
    <message>
        <source>Forced Tray Message</source>
        <translation>Dringende Meldung der Taskleiste</translation>
    </message>
    <message>
        <source>Paging</source>
        <translation>Wechsel der Arbeitsfläche</translation>
    </message>
    <message>
        <source>Choosing a theme takes its sound for every event. Files that you chose yourself stay.</source>
        <translation>Die Wahl eines Designs übernimmt dessen Klang für jedes Ereignis. Selbst gewählte Dateien bleiben.</translation>
    </message>
    <message>
        <source>Without it the window manager plays no sound. The assignments are kept.</source>
        <translation>Ohne dies spielt die Fensterverwaltung keinen Klang. Die Zuordnungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Takes the theme&apos;s sounds for all events, also in place of your own files.</source>
        <translation>Übernimmt die Klänge des Designs für alle Ereignisse, auch anstelle eigener Dateien.</translation>
    </message>
    <message>
        <source>Each event of the window manager with its sound: a file of yours, a built-in file or a sound of the theme. Return chooses a file, Delete removes it. A sound file can be dropped on a row.</source>
        <translation>Jedes Ereignis der Fensterverwaltung mit seinem Klang: eine eigene Datei, eine eingebaute Datei oder ein Klang des Designs. Die Eingabetaste wählt eine Datei, Entf entfernt sie. Eine Klangdatei kann auf einer Zeile abgelegt werden.</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <source>No theme</source>
        <translation>Kein Design</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
Would you like to convert them to wav now?</source>
        <translation>Nicht alle Dateien des Designs „%1“ sind im wav-Format
Möchten Sie sie jetzt in wav umwandeln?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
You should convert them to wav.</source>
        <translation>Nicht alle Dateien des Designs „%1“ sind im wav-Format
Sie sollten sie in wav umwandeln.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Can&apos;t load sound theme &apos;%1&apos;</source>
        <translation>Das Klangdesign „%1“ kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Sounds (*.wav *.au)</source>
        <translation>Klänge (*.wav *.au)</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is not wav.
Select other theme or conver to wav,
for example ogg/oga to wav by oggdev utility.</source>
        <translation>Die Datei „%1“ ist nicht im wav-Format.
Wählen Sie ein anderes Design oder wandeln Sie sie in wav um,
zum Beispiel ogg/oga in wav mit dem Programm oggdec.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Program %1 not found</source>
        <translation>Das Programm %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Sound &apos;%1&apos; doesn&apos;t exist</source>
        <translation>Der Klang „%1“ ist nicht vorhanden</translation>
    </message>
    <message>
        <source>Can&apos;t start &apos;qasmixer&apos;</source>
        <translation>„qasmixer“ kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
They can&apos;t be converted: &apos;%2&apos; has to be renamed first.
Blanks, quotation marks, backslashes and control characters are not safe.</source>
        <translation>Nicht alle Dateien des Designs „%1“ sind im wav-Format
Sie können nicht umgewandelt werden: „%2“ muss zuerst umbenannt werden.
Leerzeichen, Anführungszeichen, umgekehrte Schrägstriche und Steuerzeichen sind nicht sicher.</translation>
    </message>
</context>
<context>
    <name>ThemeForm</name>
    <message>
        <source>Themes</source>
        <translation>Designs</translation>
    </message>
    <message>
        <source>Cursors:</source>
        <translation>Mauszeiger:</translation>
    </message>
    <message>
        <source>Select your personal Cursor theme</source>
        <translation>Wählen Sie Ihr persönliches Mauszeigerdesign</translation>
    </message>
    <message>
        <source>Icons:</source>
        <translation>Symbole:</translation>
    </message>
    <message>
        <source>Select your personal Icon theme</source>
        <translation>Wählen Sie Ihr persönliches Symboldesign</translation>
    </message>
    <message>
        <source>Decor:</source>
        <translation>Dekoration:</translation>
    </message>
    <message>
        <source>Select your personal window and taskbar decoration theme</source>
        <translation>Wählen Sie Ihr persönliches Design für Fenster und Taskleiste</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>Select item to set color for</source>
        <translation>Wählen Sie das Element, dessen Farbe Sie ändern möchten</translation>
    </message>
    <message>
        <source>Select main color of item</source>
        <translation>Hauptfarbe des Elements wählen</translation>
    </message>
    <message>
        <source>Main color</source>
        <translation>Hauptfarbe</translation>
    </message>
    <message>
        <source>Select end color if gradient fill available for this item</source>
        <translation>Endfarbe wählen, wenn das Element einen Farbverlauf haben kann</translation>
    </message>
    <message>
        <source>End color</source>
        <translation>Endfarbe</translation>
    </message>
    <message>
        <source>Sizes:</source>
        <translation>Größen:</translation>
    </message>
    <message>
        <source>Select item to set size for</source>
        <translation>Wählen Sie das Element, dessen Größe Sie ändern möchten</translation>
    </message>
    <message>
        <source>Select size of item</source>
        <translation>Größe des Elements wählen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The size of icons on the desktop and the height of the taskbar in pixels. The button beside the list changes the size in view.</source>
        <translation>Die Größe der Symbole auf der Arbeitsfläche und die Höhe der Taskleiste in Pixeln. Die Schaltfläche neben der Liste ändert die angezeigte Größe.</translation>
    </message>
</context>
<context>
    <name>ThemeKeys</name>
    <message>
        <source>Color at the end of the gradient: %1</source>
        <translation>Farbe am Ende des Verlaufs: %1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Farbe: %1</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Schrift: %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Klang: %1</translation>
    </message>
    <message>
        <source>Wallpaper: a file, a name or a color #rrggbb</source>
        <translation>Hintergrund: eine Datei, ein Name oder eine Farbe #rrggbb</translation>
    </message>
    <message>
        <source>Minutes from one wallpaper of the slide show to the next; 0: none</source>
        <translation>Minuten von einem Bild der Diaschau zum nächsten; 0: keine</translation>
    </message>
    <message>
        <source>Icon theme</source>
        <translation>Symboldesign</translation>
    </message>
    <message>
        <source>Decoration theme of windows and taskbar; empty: none</source>
        <translation>Design der Fenster und der Taskleiste; leer: keines</translation>
    </message>
    <message>
        <source>Seconds without input until the screensaver starts; 0: never</source>
        <translation>Sekunden ohne Eingabe, bis der Bildschirmschoner startet; 0: nie</translation>
    </message>
    <message>
        <source>Seconds until the locked display is switched off</source>
        <translation>Sekunden, bis der gesperrte Bildschirm abgeschaltet wird</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password</source>
        <translation>Sekunden, die die Sperre nach einem falschen Passwort wartet</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password, in percent</source>
        <translation>Lautstärke des Signals bei falschem Passwort, in Prozent</translation>
    </message>
    <message>
        <source>Program that draws transparency and shadows</source>
        <translation>Programm, das Transparenz und Schatten zeichnet</translation>
    </message>
    <message>
        <source>Whether that program runs</source>
        <translation>Ob dieses Programm läuft</translation>
    </message>
    <message>
        <source>Size of window thumbnails in pixels; 0: none</source>
        <translation>Größe der Fenstervorschauen in Pixeln; 0: keine</translation>
    </message>
    <message>
        <source>Sound theme; empty: none</source>
        <translation>Klangdesign; leer: keines</translation>
    </message>
    <message>
        <source>buttons under the pointer</source>
        <translation>Schaltflächen unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>text on buttons under the pointer</source>
        <translation>Text auf Schaltflächen unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>text on buttons</source>
        <translation>Text auf Schaltflächen</translation>
    </message>
    <message>
        <source>text of the clock in the taskbar</source>
        <translation>Text der Uhr in der Taskleiste</translation>
    </message>
    <message>
        <source>what is selected on the desktop</source>
        <translation>was auf der Arbeitsfläche ausgewählt ist</translation>
    </message>
    <message>
        <source>background of the desktop where no wallpaper covers it</source>
        <translation>Hintergrund der Arbeitsfläche, wo ihn kein Hintergrundbild verdeckt</translation>
    </message>
    <message>
        <source>background of the desktop&apos;s dialogs</source>
        <translation>Hintergrund der Dialoge des Desktops</translation>
    </message>
    <message>
        <source>text in the desktop&apos;s dialogs</source>
        <translation>Text in den Dialogen des Desktops</translation>
    </message>
    <message>
        <source>frame of the active window</source>
        <translation>Rahmen des aktiven Fensters</translation>
    </message>
    <message>
        <source>frames of the other windows</source>
        <translation>Rahmen der übrigen Fenster</translation>
    </message>
    <message>
        <source>background of icons</source>
        <translation>Hintergrund von Symbolen</translation>
    </message>
    <message>
        <source>foreground of icons</source>
        <translation>Vordergrund von Symbolen</translation>
    </message>
    <message>
        <source>text of selected icons</source>
        <translation>Text ausgewählter Symbole</translation>
    </message>
    <message>
        <source>text of icons</source>
        <translation>Text von Symbolen</translation>
    </message>
    <message>
        <source>selected entry of a menu</source>
        <translation>ausgewählter Eintrag eines Menüs</translation>
    </message>
    <message>
        <source>background of menus</source>
        <translation>Hintergrund von Menüs</translation>
    </message>
    <message>
        <source>text of the selected entry of a menu</source>
        <translation>Text des ausgewählten Eintrags eines Menüs</translation>
    </message>
    <message>
        <source>text in menus</source>
        <translation>Text in Menüs</translation>
    </message>
    <message>
        <source>miniature of the active window in the pager</source>
        <translation>Miniatur des aktiven Fensters im Pager</translation>
    </message>
    <message>
        <source>miniatures of windows in the pager</source>
        <translation>Miniaturen von Fenstern im Pager</translation>
    </message>
    <message>
        <source>desktop in view in the pager</source>
        <translation>sichtbare Arbeitsfläche im Pager</translation>
    </message>
    <message>
        <source>background of the pager</source>
        <translation>Hintergrund des Pagers</translation>
    </message>
    <message>
        <source>logo of the start menu</source>
        <translation>Logo des Startmenüs</translation>
    </message>
    <message>
        <source>selected window in the task switcher</source>
        <translation>ausgewähltes Fenster im Fensterumschalter</translation>
    </message>
    <message>
        <source>background of the task switcher</source>
        <translation>Hintergrund des Fensterumschalters</translation>
    </message>
    <message>
        <source>text in the task switcher</source>
        <translation>Text im Fensterumschalter</translation>
    </message>
    <message>
        <source>background of the taskbar</source>
        <translation>Hintergrund der Taskleiste</translation>
    </message>
    <message>
        <source>title of the active window</source>
        <translation>Titel des aktiven Fensters</translation>
    </message>
    <message>
        <source>titles of the other windows</source>
        <translation>Titel der übrigen Fenster</translation>
    </message>
    <message>
        <source>title bar of the active window</source>
        <translation>Titelleiste des aktiven Fensters</translation>
    </message>
    <message>
        <source>title bars of the other windows</source>
        <translation>Titelleisten der übrigen Fenster</translation>
    </message>
    <message>
        <source>background of tool tips</source>
        <translation>Hintergrund von Kurzinfos</translation>
    </message>
    <message>
        <source>text of tool tips</source>
        <translation>Text von Kurzinfos</translation>
    </message>
</context>
<context>
    <name>ThemePage</name>
    <message>
        <source>Desktop</source>
        <translation>Arbeitsfläche</translation>
    </message>
    <message>
        <source>Desktop active</source>
        <translation>Arbeitsfläche (aktiv)</translation>
    </message>
    <message>
        <source>Titlebar</source>
        <translation>Titelleiste</translation>
    </message>
    <message>
        <source>Titlebar active</source>
        <translation>Titelleiste (aktiv)</translation>
    </message>
    <message>
        <source>Title string</source>
        <translation>Titeltext</translation>
    </message>
    <message>
        <source>Title string active</source>
        <translation>Titeltext (aktiv)</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Frame active</source>
        <translation>Rahmen (aktiv)</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <source>Pager active</source>
        <translation>Pager (aktiv)</translation>
    </message>
    <message>
        <source>Pager miniature</source>
        <translation>Pager-Miniatur</translation>
    </message>
    <message>
        <source>Pager miniatire active</source>
        <translation>Pager-Miniatur (aktiv)</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskleiste</translation>
    </message>
    <message>
        <source>Clock string</source>
        <translation>Uhrtext</translation>
    </message>
    <message>
        <source>Icon string</source>
        <translation>Symboltext</translation>
    </message>
    <message>
        <source>Icon string active</source>
        <translation>Symboltext (aktiv)</translation>
    </message>
    <message>
        <source>Icon foreground</source>
        <translation>Symbolvordergrund</translation>
    </message>
    <message>
        <source>Icon background</source>
        <translation>Symbolhintergrund</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Menu active</source>
        <translation>Menü (aktiv)</translation>
    </message>
    <message>
        <source>Menu string</source>
        <translation>Menütext</translation>
    </message>
    <message>
        <source>Menu string active</source>
        <translation>Menütext (aktiv)</translation>
    </message>
    <message>
        <source>Start menu logo</source>
        <translation>Logo des Startmenüs</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Dialog string</source>
        <translation>Dialogtext</translation>
    </message>
    <message>
        <source>Switcher</source>
        <translation>Fensterumschalter</translation>
    </message>
    <message>
        <source>Switcher active</source>
        <translation>Fensterumschalter (aktiv)</translation>
    </message>
    <message>
        <source>Switcher string</source>
        <translation>Text des Fensterumschalters</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>Button active</source>
        <translation>Schaltfläche (aktiv)</translation>
    </message>
    <message>
        <source>Button string</source>
        <translation>Schaltflächentext</translation>
    </message>
    <message>
        <source>Button string active</source>
        <translation>Schaltflächentext (aktiv)</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Kurzinfo</translation>
    </message>
    <message>
        <source>Tooltip string</source>
        <translation>Kurzinfotext</translation>
    </message>
    <message>
        <source>Desktop icon size</source>
        <translation>Symbole der Arbeitsfläche</translation>
    </message>
    <message>
        <source>Taskbar height</source>
        <translation>Höhe der Taskleiste</translation>
    </message>
    <message>
        <source>No theme</source>
        <translation>Kein Design</translation>
    </message>
    <message>
        <source>Select size</source>
        <translation>Größe wählen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The cursor theme &apos;%1&apos; can&apos;t be set.</source>
        <translation>Das Mauszeigerdesign „%1“ kann nicht eingestellt werden.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>New cursor theme will be applied to newly started apps</source>
        <translation>Das neue Mauszeigerdesign gilt für neu gestartete Programme</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>WallpaperForm</name>
    <message>
        <source>Wallpapers</source>
        <translation>Hintergrundbilder</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Wallpaper:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full path to wallpaper file or color as &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Pfad der Bilddatei oder Farbe in der Form &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File...</source>
        <translation>Datei …</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Farbe …</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>How to fit wallpaper to desktop</source>
        <translation>Wie das Bild die Arbeitsfläche füllt</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Gekachelt</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Gestreckt</translation>
    </message>
    <message>
        <source>Slide-show:</source>
        <translation>Diaschau:</translation>
    </message>
    <message>
        <source>Slide show interval (0 - no slide show)</source>
        <translation>Abstand zwischen zwei Bildern (0 - keine Diaschau)</translation>
    </message>
    <message>
        <source>min.</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Use selected wallpaper for current virtual desktop only,&lt;/p&gt;&lt;p&gt;if multiple virtual desktops available.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Das gewählte Bild nur für die aktuelle Arbeitsfläche verwenden,&lt;/p&gt;&lt;p&gt;wenn es mehrere Arbeitsflächen gibt.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>for current desktop only</source>
        <translation>nur für die aktuelle Arbeitsfläche</translation>
    </message>
    <message>
        <source>What stands behind all windows: an image file, the name of a wallpaper such as qaz-default, or a color such as #3a6ea5. An empty field means the color that was chosen last. Files and colors can be dropped here.</source>
        <translation>Was hinter allen Fenstern steht: eine Bilddatei, der Name eines Hintergrundbilds wie qaz-default oder eine Farbe wie #3a6ea5. Ein leeres Feld bedeutet die zuletzt gewählte Farbe. Dateien und Farben können hier abgelegt werden.</translation>
    </message>
    <message>
        <source>Center shows the picture in its own size, Tile repeats it, Stretch makes it fill the screen.</source>
        <translation>„Zentriert“ zeigt das Bild in seiner Größe, „Gekachelt“ wiederholt es, „Gestreckt“ füllt damit den Bildschirm.</translation>
    </message>
    <message>
        <source>After how many minutes the next picture of the same directory is shown, from 0 to 3600. 0 means that the picture stays.</source>
        <translation>Nach wie vielen Minuten das nächste Bild desselben Ordners gezeigt wird, von 0 bis 3600. 0 bedeutet, dass das Bild bleibt.</translation>
    </message>
    <message>
        <source>Stores the wallpaper for the virtual desktop in view only. Position and slide show belong to all desktops.</source>
        <translation>Speichert den Hintergrund nur für die sichtbare Arbeitsfläche. Position und Diaschau gelten für alle Arbeitsflächen.</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <source>Select wallpaper image file</source>
        <translation>Bilddatei für den Hintergrund wählen</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</source>
        <translation>Bilder (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</translation>
    </message>
    <message>
        <source>File conversion</source>
        <translation>Dateiumwandlung</translation>
    </message>
    <message>
        <source>Selected file &apos;%1&apos; is in svg format
Would you like to convert it to png now?</source>
        <translation>Die gewählte Datei „%1“ ist im svg-Format
Möchten Sie sie jetzt in png umwandeln?</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Datei ist vorhanden</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; already exists
Would you like to rewrite it now?</source>
        <translation>Die Datei „%1“ ist schon vorhanden
Möchten Sie sie jetzt überschreiben?</translation>
    </message>
</context>
</TS>
