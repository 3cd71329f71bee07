<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Wallpaper</source>
        <translation>Fond d’écran</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Screensaver</source>
        <translation>Écran de veille</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Qaz Theme Editor</source>
        <translation>Éditeur de thèmes Qaz</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Réinitialiser…</translation>
    </message>
    <message>
        <source>Restore all settings.
</source>
        <translation>Réinitialiser tous les réglages.
</translation>
    </message>
    <message>
        <source>All changes will be lost and restart session will be required.</source>
        <translation>Toutes les modifications seront perdues et la session devra être redémarrée.</translation>
    </message>
    <message>
        <source>Save ?</source>
        <translation>Enregistrer ?</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Enregistrer les modifications ?</translation>
    </message>
    <message>
        <source>Theme only</source>
        <translation>Le thème seulement</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Réinitialisation</translation>
    </message>
    <message>
        <source>Are you sure?
If yes then select restore type and press Yes

Restore type:</source>
        <translation>Voulez-vous vraiment réinitialiser ?
Si oui, choisissez l’étendue et appuyez sur OK

Réinitialiser :</translation>
    </message>
    <message>
        <source>All Qaz settings</source>
        <translation>Tous les réglages de Qaz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Can&apos;t remove &apos;%1&apos;</source>
        <translation>Impossible de supprimer « %1 »</translation>
    </message>
    <message>
        <source>Restore done</source>
        <translation>Réinitialisation terminée</translation>
    </message>
    <message>
        <source>Selected settings are restored. You need to restart session. Do it now (recommended)?</source>
        <translation>Les réglages choisis ont été réinitialisés. La session doit être redémarrée. Le faire maintenant (recommandé) ?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Can&apos;t back up &apos;%1&apos;: %2
Remove it all the same?</source>
        <translation>Impossible de sauvegarder « %1 » : %2
Le supprimer quand même ?</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>EffectForm</name>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>For Windows</source>
        <translation>Pour les fenêtres</translation>
    </message>
    <message>
        <source>Opaque window move</source>
        <translation>Afficher le contenu des fenêtres déplacées</translation>
    </message>
    <message>
        <source>OpaqueMove</source>
        <translation>Déplacement opaque</translation>
    </message>
    <message>
        <source>Search free area to map window</source>
        <translation>Chercher un espace libre pour ouvrir une fenêtre</translation>
    </message>
    <message>
        <source>SmartPlacement</source>
        <translation>Placement intelligent</translation>
    </message>
    <message>
        <source>Opaque window resize</source>
        <translation>Afficher le contenu des fenêtres redimensionnées</translation>
    </message>
    <message>
        <source>OpaqueResize</source>
        <translation>Redimensionnement opaque</translation>
    </message>
    <message>
        <source>Animation:</source>
        <translation>Animation :</translation>
    </message>
    <message>
        <source>speed of window map/unmap</source>
        <translation>Vitesse d’apparition et de disparition des fenêtres</translation>
    </message>
    <message>
        <source>GradWindowMapSpeed:</source>
        <translation>Vitesse d’ouverture :</translation>
    </message>
    <message>
        <source>Style of window map/ummap</source>
        <translation>Style d’apparition et de disparition des fenêtres</translation>
    </message>
    <message>
        <source>GradWindowMapStyle:</source>
        <translation>Style d’ouverture :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>TopToBottom</source>
        <translation>Du haut</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>De la gauche</translation>
    </message>
    <message>
        <source>CenterToTopBottom</source>
        <translation>Centre, vertical</translation>
    </message>
    <message>
        <source>CenterToLeftRight</source>
        <translation>Centre, horizontal</translation>
    </message>
    <message>
        <source>CenterToAll</source>
        <translation>Du centre</translation>
    </message>
    <message>
        <source>FromButton</source>
        <translation>Du bouton</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>De la droite</translation>
    </message>
    <message>
        <source>BottomToTop</source>
        <translation>Du bas</translation>
    </message>
    <message>
        <source>Speed of windows minimize-maximize, restore, rearrange</source>
        <translation>Vitesse de réduction, d’agrandissement, de restauration et de réorganisation des fenêtres</translation>
    </message>
    <message>
        <source>ArrangeWindowSpeed:</source>
        <translation>Vitesse d’organisation :</translation>
    </message>
    <message>
        <source>Speed of start menu show animation</source>
        <translation>Vitesse d’apparition du menu de démarrage</translation>
    </message>
    <message>
        <source>StartMenuMapSpeed:</source>
        <translation>Vitesse du menu :</translation>
    </message>
    <message>
        <source>Composite effect, available for some video cards only</source>
        <translation>Effet de composition, disponible avec certaines cartes graphiques seulement</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composition</translation>
    </message>
    <message>
        <source>Windows thumbnails in taskbar, task switcher, desktop pages, etc.</source>
        <translation>Miniatures des fenêtres dans la barre des tâches, le sélecteur de fenêtres, celui des bureaux, etc.</translation>
    </message>
    <message>
        <source>Windows Preview</source>
        <translation>Aperçu des fenêtres</translation>
    </message>
    <message>
        <source>Disable composite manager to speed up desktop drawing or to fix onscreen artefacts if any</source>
        <translation>Désactivez le gestionnaire de composition pour accélérer l’affichage du bureau ou supprimer des défauts d’affichage</translation>
    </message>
    <message>
        <source>Composite Manager</source>
        <translation>Gestionnaire de composition</translation>
    </message>
    <message>
        <source>Disable transparency to speed up</source>
        <translation>Désactivez la transparence pour accélérer l’affichage</translation>
    </message>
    <message>
        <source>Transparency of windows</source>
        <translation>Transparence des fenêtres</translation>
    </message>
    <message>
        <source>Disable shadows to speed up</source>
        <translation>Désactivez les ombres pour accélérer l’affichage</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombres</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>For Taskbar</source>
        <translation>Pour la barre des tâches</translation>
    </message>
    <message>
        <source>autohided taskbar show delay (ms)</source>
        <translation>Délai d’apparition de la barre des tâches masquée (ms)</translation>
    </message>
    <message>
        <source>TaskbarShowDelay:</source>
        <translation>Délai d’affichage :</translation>
    </message>
    <message>
        <source>ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>autohided taskbar hide delay (ms)</source>
        <translation>Délai de masquage de la barre des tâches (ms)</translation>
    </message>
    <message>
        <source>TaskbarHideDelay:</source>
        <translation>Délai de masquage :</translation>
    </message>
    <message>
        <source>speed of autohided taskbar map/unmap</source>
        <translation>Vitesse d’apparition et de masquage de la barre des tâches</translation>
    </message>
    <message>
        <source>GradTaskbarMotionSpeed:</source>
        <translation>Vitesse :</translation>
    </message>
    <message>
        <source>For Menus</source>
        <translation>Pour les menus</translation>
    </message>
    <message>
        <source>menu show delay (ms)</source>
        <translation>Délai d’apparition des menus (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime:</source>
        <translation>Délai d’affichage :</translation>
    </message>
    <message>
        <source>menu hide delay (ms)</source>
        <translation>Délai de disparition des menus (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime2:</source>
        <translation>Délai de masquage :</translation>
    </message>
    <message>
        <source>menu map animation speed</source>
        <translation>Vitesse de l’animation des menus</translation>
    </message>
    <message>
        <source>GradMenuMapSpeed:</source>
        <translation>Vitesse :</translation>
    </message>
    <message>
        <source>Autopaging</source>
        <translation>Changement de bureau au bord de l’écran</translation>
    </message>
    <message>
        <source>Screen edge area for autopaging</source>
        <translation>Largeur du bord de l’écran qui fait changer de bureau</translation>
    </message>
    <message>
        <source>PagingBeltSize</source>
        <translation>Largeur du bord</translation>
    </message>
    <message>
        <source>pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Autopaging resistance</source>
        <translation>Temps pendant lequel le pointeur doit rester au bord</translation>
    </message>
    <message>
        <source>PagingResistance</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>Shift cursor from edge when autopaging</source>
        <translation>Écart du pointeur par rapport au bord après le changement</translation>
    </message>
    <message>
        <source>PagingShiftCursor</source>
        <translation>Décalage du pointeur</translation>
    </message>
    <message>
        <source>Autopaging speed</source>
        <translation>Vitesse du changement de bureau</translation>
    </message>
    <message>
        <source>PagingSpeed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>menu transparency left side value</source>
        <translation>Transparence du côté gauche des menus</translation>
    </message>
    <message>
        <source>MenuTransparency:</source>
        <translation>Menus, à gauche :</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>menu transparency right side value</source>
        <translation>Transparence du côté droit des menus</translation>
    </message>
    <message>
        <source>MenuTransparency2:</source>
        <translation>Menus, à droite :</translation>
    </message>
    <message>
        <source>How fast windows appear and disappear: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>La vitesse à laquelle les fenêtres apparaissent et disparaissent : un nombre sans unité, de 0 à 30. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How fast windows are minimized, maximized, restored and rearranged: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>La vitesse à laquelle les fenêtres sont réduites, agrandies, restaurées et réorganisées : un nombre sans unité, de 0 à 25. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How fast the start menu appears: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>La vitesse à laquelle le menu de démarrage apparaît : un nombre sans unité, de 0 à 25. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests at the screen&apos;s edge until a hidden taskbar appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>Le temps que le pointeur reste au bord de l’écran avant que la barre des tâches masquée apparaisse : en millisecondes, de 0 à 3000. 0 signifie aussitôt.</translation>
    </message>
    <message>
        <source>How long the taskbar stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>Le temps que la barre des tâches reste après le départ du pointeur : en millisecondes, de 0 à 3000. 0 signifie pas du tout.</translation>
    </message>
    <message>
        <source>How fast a taskbar that hides itself moves: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>La vitesse à laquelle se déplace une barre des tâches qui se masque : un nombre sans unité, de 0 à 30. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests on an entry until its menu appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>Le temps que le pointeur reste sur une entrée avant que son menu apparaisse : en millisecondes, de 0 à 3000. 0 signifie aussitôt.</translation>
    </message>
    <message>
        <source>How long a menu stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>Le temps qu’un menu reste après le départ du pointeur : en millisecondes, de 0 à 3000. 0 signifie pas du tout.</translation>
    </message>
    <message>
        <source>How fast menus appear: a number without a unit, from 0 to 10. 0 means no animation.</source>
        <translation>La vitesse à laquelle les menus apparaissent : un nombre sans unité, de 0 à 10. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How wide the area at the screen&apos;s edges is from which the pointer leads to the next desktop: pixels, from 0 to 20. 0 switches autopaging off.</source>
        <translation>La largeur de la zone au bord de l’écran depuis laquelle le pointeur mène au bureau suivant : en pixels, de 0 à 20. 0 désactive le changement de bureau.</translation>
    </message>
    <message>
        <source>How long the pointer pushes against the edge until the desktop changes: milliseconds, from 0 to 5000. 0 means at once.</source>
        <translation>Le temps que le pointeur pousse contre le bord avant que le bureau change : en millisecondes, de 0 à 5000. 0 signifie aussitôt.</translation>
    </message>
    <message>
        <source>How far from the edge the pointer arrives on the next desktop: pixels, from 0 to 500. 0 leaves it at the edge.</source>
        <translation>La distance du bord à laquelle le pointeur arrive sur le bureau suivant : en pixels, de 0 à 500. 0 le laisse au bord.</translation>
    </message>
    <message>
        <source>How fast the desktops move: a number without a unit, from 0 to 100. 0 means no animation.</source>
        <translation>La vitesse à laquelle les bureaux défilent : un nombre sans unité, de 0 à 100. 0 signifie sans animation.</translation>
    </message>
    <message>
        <source>How transparent menus are at their left side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>La transparence des menus à leur gauche : en pour cent, de 0 à 100. 0 signifie opaque.</translation>
    </message>
    <message>
        <source>How transparent menus are at their right side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>La transparence des menus à leur droite : en pour cent, de 0 à 100. 0 signifie opaque.</translation>
    </message>
</context>
<context>
    <name>FilePreview</name>
    <message>
        <source>%1, %2 Hz, %3 × %4 bit
Length: %5 s</source>
        <translation>%1, %2 Hz, %3 × %4 bits
Durée : %5 s</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>FontAASettings</name>
    <message>
        <source>The font settings could not be saved in the file &apos;%1&apos;: %2</source>
        <translation>Les réglages des polices n’ont pas pu être enregistrés dans le fichier « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>FontAASettingsForm</name>
    <message>
        <source>Configure Anti-Alias Settings</source>
        <translation>Configurer le lissage</translation>
    </message>
    <message>
        <source>E&amp;xclude range:</source>
        <translation>E&amp;xclure l’intervalle :</translation>
    </message>
    <message>
        <source>Exclude range from</source>
        <translation>Début de l’intervalle exclu</translation>
    </message>
    <message>
        <source> pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source> to </source>
        <translation> à </translation>
    </message>
    <message>
        <source>Exclude range to</source>
        <translation>Fin de l’intervalle exclu</translation>
    </message>
    <message>
        <source>&lt;p&gt;If you have a TFT or LCD screen you can further improve the quality of displayed fonts by selecting this option.&lt;br /&gt;Sub-pixel rendering is also known as ClearType(tm).&lt;br /&gt; In order for sub-pixel rendering to work correctly you need to know how the sub-pixels of your display are aligned.&lt;/p&gt; &lt;p&gt;On TFT or LCD displays a single pixel is actually composed of three sub-pixels, red, green and blue. Most displays have a linear ordering of RGB sub-pixel, some have BGR.&lt;br /&gt; This feature does not work with CRT monitors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Avec un écran TFT ou LCD, cette option améliore encore la qualité d’affichage des polices.&lt;br /&gt;Le rendu sous-pixel est aussi connu sous le nom de ClearType(tm).&lt;br /&gt; Pour qu’il fonctionne correctement, vous devez connaître la disposition des sous-pixels de votre écran.&lt;/p&gt; &lt;p&gt;Sur les écrans TFT ou LCD, chaque pixel se compose de trois sous-pixels : rouge, vert et bleu. La plupart des écrans les alignent dans l’ordre RVB (RGB), certains dans l’ordre BVR (BGR).&lt;br /&gt; Cette fonction est sans effet sur les écrans cathodiques.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Use sub-pixel rendering:</source>
        <translation>Re&amp;ndu sous-pixel :</translation>
    </message>
    <message>
        <source>Sub-pixel order</source>
        <translation>Ordre des sous-pixels</translation>
    </message>
    <message>
        <source>Hinting is a process used to enhance the quality of fonts at small sizes.</source>
        <translation>L’optimisation (hinting) améliore la qualité des polices de petite taille.</translation>
    </message>
    <message>
        <source>Hinting style: </source>
        <translation>Optimisation : </translation>
    </message>
</context>
<context>
    <name>FontRendering</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
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
        <translation>RGB vertical</translation>
    </message>
    <message>
        <source>Vertical BGR</source>
        <translation>BGR vertical</translation>
    </message>
    <message>
        <source>Slight</source>
        <translation>Léger</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Complet</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Qaz Theme Editor Help</source>
        <translation>Aide de l’éditeur de thèmes Qaz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Résultat précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Résultat suivant</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
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
        <translation>Cliquer pour choisir une police</translation>
    </message>
    <message>
        <source>Preview of the &quot;%1&quot; font</source>
        <translation>Aperçu de la police « %1 »</translation>
    </message>
    <message>
        <source>This is a preview of the &quot;%1&quot; font. You can change it by clicking the &quot;...&quot; button.</source>
        <translation>Aperçu de la police « %1 ». Le bouton « … » permet d’en changer.</translation>
    </message>
    <message>
        <source>Select the &quot;%1&quot; font</source>
        <translation>Choisir la police « %1 »</translation>
    </message>
</context>
<context>
    <name>KFonts</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Default.</source>
        <translation>Police par défaut.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Window titles.</source>
        <translation>Titres des fenêtres.</translation>
    </message>
    <message>
        <source>Start Menu</source>
        <translation>Menu de démarrage</translation>
    </message>
    <message>
        <source>Start menu.</source>
        <translation>Menu de démarrage.</translation>
    </message>
    <message>
        <source>Cascade Menu</source>
        <translation>Menus en cascade</translation>
    </message>
    <message>
        <source>Cascade menus, context menus.</source>
        <translation>Menus en cascade, menus contextuels.</translation>
    </message>
    <message>
        <source>Control Menu</source>
        <translation>Menus de contrôle</translation>
    </message>
    <message>
        <source>Control menus.</source>
        <translation>Menus de contrôle des fenêtres.</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogues</translation>
    </message>
    <message>
        <source>Dialogs.</source>
        <translation>Boîtes de dialogue.</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barre des tâches</translation>
    </message>
    <message>
        <source>Taskbar.</source>
        <translation>Barre des tâches.</translation>
    </message>
    <message>
        <source>Taskbar bold</source>
        <translation>Barre des tâches (gras)</translation>
    </message>
    <message>
        <source>Taskbar bold.</source>
        <translation>Barre des tâches, en gras.</translation>
    </message>
    <message>
        <source>Taskbar clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Taskbar clock.</source>
        <translation>Horloge de la barre des tâches.</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>Icons.</source>
        <translation>Icônes.</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Infobulles</translation>
    </message>
    <message>
        <source>Tooltips.</source>
        <translation>Infobulles.</translation>
    </message>
    <message>
        <source>Ad&amp;just All Fonts...</source>
        <translation>A&amp;juster toutes les polices…</translation>
    </message>
    <message>
        <source>Click to change all fonts</source>
        <translation>Cliquer pour modifier toutes les polices</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Réglages du système</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>If this option is selected, DE will smooth the edges of curves in fonts.</source>
        <translation>Lisse les bords des courbes des polices.</translation>
    </message>
    <message>
        <source>Configure...</source>
        <translation>Configurer…</translation>
    </message>
    <message>
        <source>Use a&amp;nti-aliasing:</source>
        <translation>Lissa&amp;ge :</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>&lt;p&gt;This option forces a specific DPI value for fonts. It may be useful when the real DPI of the hardware is not detected properly and it is also often misused when poor quality fonts are used that do not look well with DPI values other than 96 or 120 DPI.&lt;/p&gt;&lt;p&gt;The use of this option is generally discouraged. For selecting proper DPI value a better option is explicitly configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding &lt;i&gt;-dpi value&lt;/i&gt; to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render properly with real DPI value better fonts should be used or configuration of font hinting should be checked.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Impose une résolution (PPP) donnée pour les polices. C’est utile quand la résolution réelle du matériel n’est pas détectée correctement ; on en abuse souvent pour des polices de mauvaise qualité qui ne s’affichent bien qu’à 96 ou 120 PPP.&lt;/p&gt;&lt;p&gt;Cette option est en général déconseillée. Mieux vaut, si possible, régler la résolution pour tout le serveur X (par exemple avec DisplaySize dans xorg.conf ou en ajoutant &lt;i&gt;-dpi valeur&lt;/i&gt; à ServerLocalArgs= dans /etc/X11/qaz-dm/qaz-dmrc). Si des polices s’affichent mal à la résolution réelle, utilisez de meilleures polices ou vérifiez le réglage de leur optimisation.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Force fonts DPI:</source>
        <translation>PPP des polices :</translation>
    </message>
    <message>
        <source>&lt;p&gt;Some changes such as anti-aliasing or DPI will only affect newly started applications.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Certaines modifications, comme le lissage ou les PPP, n’affectent que les applications lancées par la suite.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Font Settings Changed</source>
        <translation>Réglages des polices modifiés</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Qaz</source>
        <comment>Usage: qaz-admin-theme themefile - open and edit theme file
</comment>
        <translation>Utilisation : qaz-admin-theme fichier_de_thème - ouvrir et modifier le fichier de thème</translation>
    </message>
</context>
<context>
    <name>ScreensaverForm</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Start automatically after</source>
        <translation>Démarrer automatiquement après</translation>
    </message>
    <message>
        <source>min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>DPMS off after</source>
        <translation>Extinction de l’écran (DPMS) après</translation>
    </message>
    <message>
        <source>Wrong password timeout</source>
        <translation>Délai après un mot de passe erroné</translation>
    </message>
    <message>
        <source>sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Wrong password bell level</source>
        <translation>Volume du signal de mot de passe erroné</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Lock console switching</source>
        <translation>Verrouiller le changement de console</translation>
    </message>
    <message>
        <source>Lock X Access</source>
        <translation>Verrouiller l’accès à X</translation>
    </message>
    <message>
        <source>Start the screensaver when keyboard and mouse are not used</source>
        <translation>Démarrer l’écran de veille quand le clavier et la souris ne sont pas utilisés</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts</source>
        <translation>Minutes sans saisie avant le démarrage de l’écran de veille</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts, from 0 to 999. 0 means never.</source>
        <translation>Minutes sans saisie avant le démarrage de l’écran de veille, de 0 à 999. 0 signifie jamais.</translation>
    </message>
    <message>
        <source>Minutes until the locked display is switched off</source>
        <translation>Minutes avant l’extinction de l’écran verrouillé</translation>
    </message>
    <message>
        <source>DPMS switches the display off to save energy. This is after how many minutes it does so while the screen is locked, from 0 to 999. 0 means never.</source>
        <translation>DPMS éteint l’écran pour économiser l’énergie. Voici après combien de minutes il le fait quand l’écran est verrouillé, de 0 à 999. 0 signifie jamais.</translation>
    </message>
    <message>
        <source>How long the locker waits after a wrong password</source>
        <translation>Le temps d’attente du verrouillage après un mot de passe erroné</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password, from 0 to 99. 0 means not at all.</source>
        <translation>Secondes d’attente du verrouillage après un mot de passe erroné, de 0 à 99. 0 signifie aucune attente.</translation>
    </message>
    <message>
        <source>How loud the bell for a wrong password is</source>
        <translation>Le volume du signal sonore pour un mot de passe erroné</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password in percent, from 0 to 100. 0 is silent.</source>
        <translation>Volume du signal sonore pour un mot de passe erroné en pour cent, de 0 à 100. 0 est muet.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+F1 and the like don&apos;t leave the locked screen</source>
        <translation>Ctrl+Alt+F1 et semblables ne quittent pas l’écran verrouillé</translation>
    </message>
    <message>
        <source>Other programs can&apos;t connect to the locked display</source>
        <translation>Les autres programmes ne peuvent pas se connecter à l’écran verrouillé</translation>
    </message>
</context>
<context>
    <name>SoundForm</name>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Thème :</translation>
    </message>
    <message>
        <source>Select one of sound themes or None to use internal default sounds</source>
        <translation>Choisissez un thème de sons, ou aucun pour utiliser les sons intégrés</translation>
    </message>
    <message>
        <source>Use sounds in window manager</source>
        <translation>Utiliser des sons dans le gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>Set default sounds for window manager</source>
        <translation>Reprendre les sons du thème pour le gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>From theme</source>
        <translation>Depuis le thème</translation>
    </message>
    <message>
        <source>Clear all sounds for window manager</source>
        <translation>Retirer tous les sons du gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Events and their sounds</source>
        <translation>Événements et leurs sons</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Select sound file for current event in list</source>
        <translation>Choisir le fichier son de l’événement sélectionné</translation>
    </message>
    <message>
        <source>Select sound file</source>
        <translation>Choisir le fichier son</translation>
    </message>
    <message>
        <source>Remove assignment sound file to event</source>
        <translation>Ne plus associer de fichier son à l’événement</translation>
    </message>
    <message>
        <source>Remove sound file</source>
        <translation>Retirer le fichier son</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mélangeur</translation>
    </message>
    <message>
        <source>Menu Popup</source>
        <translation>Ouverture de menu</translation>
    </message>
    <message>
        <source>Menu Command</source>
        <translation>Commande de menu</translation>
    </message>
    <message>
        <source>Open Window</source>
        <translation>Ouvrir une fenêtre</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer une fenêtre</translation>
    </message>
    <message>
        <source>Restore Window up</source>
        <translation>Restaurer une fenêtre vers le haut</translation>
    </message>
    <message>
        <source>Restore Window down</source>
        <translation>Restaurer une fenêtre vers le bas</translation>
    </message>
    <message>
        <source>Minimize Window</source>
        <translation>Réduire une fenêtre</translation>
    </message>
    <message>
        <source>Maximize Window</source>
        <translation>Agrandir une fenêtre</translation>
    </message>
    <message>
        <source>System Start</source>
        <translation>Démarrage du système</translation>
    </message>
    <message>
        <source>System Exit</source>
        <translation>Arrêt du système</translation>
    </message>
    <message>
        <source>System Lock</source>
        <translation>Verrouillage du système</translation>
    </message>
    <message>
        <source>Error Dialog</source>
        <translation>Message d’erreur</translation>
    </message>
    <message>
        <source>Forced Tray Message</source>
        <translation>Message urgent de la zone de notification</translation>
    </message>
    <message>
        <source>Paging</source>
        <translation>Changement de bureau</translation>
    </message>
    <message>
        <source>Choosing a theme takes its sound for every event. Files that you chose yourself stay.</source>
        <translation>Le choix d’un thème en reprend les sons pour tous les événements. Les fichiers que vous avez choisis restent.</translation>
    </message>
    <message>
        <source>Without it the window manager plays no sound. The assignments are kept.</source>
        <translation>Sans cela, le gestionnaire de fenêtres ne joue aucun son. Les affectations sont conservées.</translation>
    </message>
    <message>
        <source>Takes the theme&apos;s sounds for all events, also in place of your own files.</source>
        <translation>Prend les sons du thème pour tous les événements, y compris à la place de vos propres fichiers.</translation>
    </message>
    <message>
        <source>Each event of the window manager with its sound: a file of yours, a built-in file or a sound of the theme. Return chooses a file, Delete removes it. A sound file can be dropped on a row.</source>
        <translation>Les événements du gestionnaire de fenêtres et leurs sons : un fichier à vous, un fichier intégré ou un son du thème. Entrée choisit un fichier, Suppr le retire. Un fichier son peut être déposé sur une ligne.</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <source>No theme</source>
        <translation>Aucun thème</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
Would you like to convert them to wav now?</source>
        <translation>Les fichiers du thème « %1 » ne sont pas tous au format wav
Voulez-vous les convertir en wav maintenant ?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
You should convert them to wav.</source>
        <translation>Les fichiers du thème « %1 » ne sont pas tous au format wav
Vous devriez les convertir en wav.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Can&apos;t load sound theme &apos;%1&apos;</source>
        <translation>Impossible de charger le thème de sons « %1 »</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Sounds (*.wav *.au)</source>
        <translation>Sons (*.wav *.au)</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is not wav.
Select other theme or conver to wav,
for example ogg/oga to wav by oggdev utility.</source>
        <translation>Le fichier « %1 » n’est pas au format wav.
Choisissez un autre thème ou convertissez-le en wav,
par exemple d’ogg/oga en wav avec l’outil oggdec.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Program %1 not found</source>
        <translation>Programme %1 introuvable</translation>
    </message>
    <message>
        <source>Sound &apos;%1&apos; doesn&apos;t exist</source>
        <translation>Le son « %1 » n’existe pas</translation>
    </message>
    <message>
        <source>Can&apos;t start &apos;qasmixer&apos;</source>
        <translation>Impossible de lancer « qasmixer »</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
They can&apos;t be converted: &apos;%2&apos; has to be renamed first.
Blanks, quotation marks, backslashes and control characters are not safe.</source>
        <translation>Les fichiers du thème « %1 » ne sont pas tous au format wav
Ils ne peuvent pas être convertis : « %2 » doit d’abord être renommé.
Les espaces, guillemets, barres obliques inverses et caractères de contrôle ne sont pas sûrs.</translation>
    </message>
</context>
<context>
    <name>ThemeForm</name>
    <message>
        <source>Themes</source>
        <translation>Thèmes</translation>
    </message>
    <message>
        <source>Cursors:</source>
        <translation>Curseurs :</translation>
    </message>
    <message>
        <source>Select your personal Cursor theme</source>
        <translation>Choisissez votre thème de curseurs</translation>
    </message>
    <message>
        <source>Icons:</source>
        <translation>Icônes :</translation>
    </message>
    <message>
        <source>Select your personal Icon theme</source>
        <translation>Choisissez votre thème d’icônes</translation>
    </message>
    <message>
        <source>Decor:</source>
        <translation>Décoration :</translation>
    </message>
    <message>
        <source>Select your personal window and taskbar decoration theme</source>
        <translation>Choisissez votre thème de décoration des fenêtres et de la barre des tâches</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Couleurs :</translation>
    </message>
    <message>
        <source>Select item to set color for</source>
        <translation>Choisissez l’élément dont vous voulez régler la couleur</translation>
    </message>
    <message>
        <source>Select main color of item</source>
        <translation>Choisir la couleur principale de l’élément</translation>
    </message>
    <message>
        <source>Main color</source>
        <translation>Couleur principale</translation>
    </message>
    <message>
        <source>Select end color if gradient fill available for this item</source>
        <translation>Choisir la couleur finale si l’élément accepte un dégradé</translation>
    </message>
    <message>
        <source>End color</source>
        <translation>Couleur finale</translation>
    </message>
    <message>
        <source>Sizes:</source>
        <translation>Tailles :</translation>
    </message>
    <message>
        <source>Select item to set size for</source>
        <translation>Choisissez l’élément dont vous voulez régler la taille</translation>
    </message>
    <message>
        <source>Select size of item</source>
        <translation>Choisir la taille de l’élément</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The size of icons on the desktop and the height of the taskbar in pixels. The button beside the list changes the size in view.</source>
        <translation>La taille des icônes du bureau et la hauteur de la barre des tâches en pixels. Le bouton à côté de la liste modifie la taille affichée.</translation>
    </message>
</context>
<context>
    <name>ThemeKeys</name>
    <message>
        <source>Color at the end of the gradient: %1</source>
        <translation>Couleur à la fin du dégradé : %1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Couleur : %1</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Police : %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Son : %1</translation>
    </message>
    <message>
        <source>Wallpaper: a file, a name or a color #rrggbb</source>
        <translation>Fond : un fichier, un nom ou une couleur #rrggbb</translation>
    </message>
    <message>
        <source>Minutes from one wallpaper of the slide show to the next; 0: none</source>
        <translation>Minutes d’une image du diaporama à la suivante ; 0 : aucun</translation>
    </message>
    <message>
        <source>Icon theme</source>
        <translation>Thème d’icônes</translation>
    </message>
    <message>
        <source>Decoration theme of windows and taskbar; empty: none</source>
        <translation>Thème de décoration des fenêtres et de la barre des tâches ; vide : aucun</translation>
    </message>
    <message>
        <source>Seconds without input until the screensaver starts; 0: never</source>
        <translation>Secondes sans saisie avant l’écran de veille ; 0 : jamais</translation>
    </message>
    <message>
        <source>Seconds until the locked display is switched off</source>
        <translation>Secondes avant l’extinction de l’écran verrouillé</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password</source>
        <translation>Secondes d’attente du verrouillage après un mot de passe erroné</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password, in percent</source>
        <translation>Volume du signal pour un mot de passe erroné, en pour cent</translation>
    </message>
    <message>
        <source>Program that draws transparency and shadows</source>
        <translation>Programme qui dessine la transparence et les ombres</translation>
    </message>
    <message>
        <source>Whether that program runs</source>
        <translation>Si ce programme est lancé</translation>
    </message>
    <message>
        <source>Size of window thumbnails in pixels; 0: none</source>
        <translation>Taille des miniatures de fenêtres en pixels ; 0 : aucune</translation>
    </message>
    <message>
        <source>Sound theme; empty: none</source>
        <translation>Thème sonore ; vide : aucun</translation>
    </message>
    <message>
        <source>buttons under the pointer</source>
        <translation>boutons sous le pointeur</translation>
    </message>
    <message>
        <source>buttons</source>
        <translation>boutons</translation>
    </message>
    <message>
        <source>text on buttons under the pointer</source>
        <translation>texte des boutons sous le pointeur</translation>
    </message>
    <message>
        <source>text on buttons</source>
        <translation>texte des boutons</translation>
    </message>
    <message>
        <source>text of the clock in the taskbar</source>
        <translation>texte de l’horloge dans la barre des tâches</translation>
    </message>
    <message>
        <source>what is selected on the desktop</source>
        <translation>ce qui est sélectionné sur le bureau</translation>
    </message>
    <message>
        <source>background of the desktop where no wallpaper covers it</source>
        <translation>fond du bureau là où aucun fond d’écran ne le couvre</translation>
    </message>
    <message>
        <source>background of the desktop&apos;s dialogs</source>
        <translation>fond des boîtes de dialogue du bureau</translation>
    </message>
    <message>
        <source>text in the desktop&apos;s dialogs</source>
        <translation>texte des boîtes de dialogue du bureau</translation>
    </message>
    <message>
        <source>frame of the active window</source>
        <translation>cadre de la fenêtre active</translation>
    </message>
    <message>
        <source>frames of the other windows</source>
        <translation>cadres des autres fenêtres</translation>
    </message>
    <message>
        <source>background of icons</source>
        <translation>arrière-plan des icônes</translation>
    </message>
    <message>
        <source>foreground of icons</source>
        <translation>premier plan des icônes</translation>
    </message>
    <message>
        <source>text of selected icons</source>
        <translation>texte des icônes sélectionnées</translation>
    </message>
    <message>
        <source>text of icons</source>
        <translation>texte des icônes</translation>
    </message>
    <message>
        <source>selected entry of a menu</source>
        <translation>entrée sélectionnée d’un menu</translation>
    </message>
    <message>
        <source>background of menus</source>
        <translation>fond des menus</translation>
    </message>
    <message>
        <source>text of the selected entry of a menu</source>
        <translation>texte de l’entrée sélectionnée d’un menu</translation>
    </message>
    <message>
        <source>text in menus</source>
        <translation>texte des menus</translation>
    </message>
    <message>
        <source>miniature of the active window in the pager</source>
        <translation>miniature de la fenêtre active dans le sélecteur de bureaux</translation>
    </message>
    <message>
        <source>miniatures of windows in the pager</source>
        <translation>miniatures des fenêtres dans le sélecteur de bureaux</translation>
    </message>
    <message>
        <source>desktop in view in the pager</source>
        <translation>bureau affiché dans le sélecteur de bureaux</translation>
    </message>
    <message>
        <source>background of the pager</source>
        <translation>fond du sélecteur de bureaux</translation>
    </message>
    <message>
        <source>logo of the start menu</source>
        <translation>logo du menu de démarrage</translation>
    </message>
    <message>
        <source>selected window in the task switcher</source>
        <translation>fenêtre sélectionnée dans le sélecteur de fenêtres</translation>
    </message>
    <message>
        <source>background of the task switcher</source>
        <translation>fond du sélecteur de fenêtres</translation>
    </message>
    <message>
        <source>text in the task switcher</source>
        <translation>texte du sélecteur de fenêtres</translation>
    </message>
    <message>
        <source>background of the taskbar</source>
        <translation>fond de la barre des tâches</translation>
    </message>
    <message>
        <source>title of the active window</source>
        <translation>titre de la fenêtre active</translation>
    </message>
    <message>
        <source>titles of the other windows</source>
        <translation>titres des autres fenêtres</translation>
    </message>
    <message>
        <source>title bar of the active window</source>
        <translation>barre de titre de la fenêtre active</translation>
    </message>
    <message>
        <source>title bars of the other windows</source>
        <translation>barres de titre des autres fenêtres</translation>
    </message>
    <message>
        <source>background of tool tips</source>
        <translation>fond des infobulles</translation>
    </message>
    <message>
        <source>text of tool tips</source>
        <translation>texte des infobulles</translation>
    </message>
</context>
<context>
    <name>ThemePage</name>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Desktop active</source>
        <translation>Bureau (actif)</translation>
    </message>
    <message>
        <source>Titlebar</source>
        <translation>Barre de titre</translation>
    </message>
    <message>
        <source>Titlebar active</source>
        <translation>Barre de titre (active)</translation>
    </message>
    <message>
        <source>Title string</source>
        <translation>Texte de titre</translation>
    </message>
    <message>
        <source>Title string active</source>
        <translation>Texte de titre (actif)</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Frame active</source>
        <translation>Cadre (actif)</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Sélecteur de bureaux</translation>
    </message>
    <message>
        <source>Pager active</source>
        <translation>Sélecteur de bureaux (actif)</translation>
    </message>
    <message>
        <source>Pager miniature</source>
        <translation>Miniature de fenêtre</translation>
    </message>
    <message>
        <source>Pager miniatire active</source>
        <translation>Miniature de fenêtre (active)</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barre des tâches</translation>
    </message>
    <message>
        <source>Clock string</source>
        <translation>Texte de l’horloge</translation>
    </message>
    <message>
        <source>Icon string</source>
        <translation>Texte d’icône</translation>
    </message>
    <message>
        <source>Icon string active</source>
        <translation>Texte d’icône (actif)</translation>
    </message>
    <message>
        <source>Icon foreground</source>
        <translation>Premier plan d’icône</translation>
    </message>
    <message>
        <source>Icon background</source>
        <translation>Arrière-plan d’icône</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu active</source>
        <translation>Menu (actif)</translation>
    </message>
    <message>
        <source>Menu string</source>
        <translation>Texte de menu</translation>
    </message>
    <message>
        <source>Menu string active</source>
        <translation>Texte de menu (actif)</translation>
    </message>
    <message>
        <source>Start menu logo</source>
        <translation>Logo du menu de démarrage</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>Dialog string</source>
        <translation>Texte de dialogue</translation>
    </message>
    <message>
        <source>Switcher</source>
        <translation>Sélecteur de fenêtres</translation>
    </message>
    <message>
        <source>Switcher active</source>
        <translation>Sélecteur de fenêtres (actif)</translation>
    </message>
    <message>
        <source>Switcher string</source>
        <translation>Texte du sélecteur de fenêtres</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Bouton</translation>
    </message>
    <message>
        <source>Button active</source>
        <translation>Bouton (actif)</translation>
    </message>
    <message>
        <source>Button string</source>
        <translation>Texte de bouton</translation>
    </message>
    <message>
        <source>Button string active</source>
        <translation>Texte de bouton (actif)</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Infobulle</translation>
    </message>
    <message>
        <source>Tooltip string</source>
        <translation>Texte d’infobulle</translation>
    </message>
    <message>
        <source>Desktop icon size</source>
        <translation>Taille des icônes du bureau</translation>
    </message>
    <message>
        <source>Taskbar height</source>
        <translation>Hauteur de la barre des tâches</translation>
    </message>
    <message>
        <source>No theme</source>
        <translation>Aucun thème</translation>
    </message>
    <message>
        <source>Select size</source>
        <translation>Choisir la taille</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The cursor theme &apos;%1&apos; can&apos;t be set.</source>
        <translation>Impossible d’appliquer le thème de curseurs « %1 ».</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>New cursor theme will be applied to newly started apps</source>
        <translation>Le nouveau thème de curseurs s’appliquera aux applications lancées par la suite</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>WallpaperForm</name>
    <message>
        <source>Wallpapers</source>
        <translation>Fonds d’écran</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Wallpaper:</source>
        <translation>Fond d’écran :</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full path to wallpaper file or color as &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Chemin du fichier image ou couleur sous la forme &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File...</source>
        <translation>Fichier…</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Couleur…</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position :</translation>
    </message>
    <message>
        <source>How to fit wallpaper to desktop</source>
        <translation>Disposition du fond d’écran sur le bureau</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centré</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étiré</translation>
    </message>
    <message>
        <source>Slide-show:</source>
        <translation>Diaporama :</translation>
    </message>
    <message>
        <source>Slide show interval (0 - no slide show)</source>
        <translation>Intervalle du diaporama (0 - pas de diaporama)</translation>
    </message>
    <message>
        <source>min.</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Use selected wallpaper for current virtual desktop only,&lt;/p&gt;&lt;p&gt;if multiple virtual desktops available.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;N’utiliser le fond choisi que pour le bureau virtuel actuel,&lt;/p&gt;&lt;p&gt;s’il y a plusieurs bureaux virtuels.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>for current desktop only</source>
        <translation>pour le bureau actuel seulement</translation>
    </message>
    <message>
        <source>What stands behind all windows: an image file, the name of a wallpaper such as qaz-default, or a color such as #3a6ea5. An empty field means the color that was chosen last. Files and colors can be dropped here.</source>
        <translation>Ce qui se trouve derrière toutes les fenêtres : un fichier image, le nom d’un fond d’écran comme qaz-default, ou une couleur comme #3a6ea5. Un champ vide désigne la dernière couleur choisie. Des fichiers et des couleurs peuvent être déposés ici.</translation>
    </message>
    <message>
        <source>Center shows the picture in its own size, Tile repeats it, Stretch makes it fill the screen.</source>
        <translation>« Centré » montre l’image à sa taille, « Mosaïque » la répète, « Étiré » en remplit l’écran.</translation>
    </message>
    <message>
        <source>After how many minutes the next picture of the same directory is shown, from 0 to 3600. 0 means that the picture stays.</source>
        <translation>Au bout de combien de minutes l’image suivante du même dossier est affichée, de 0 à 3600. 0 signifie que l’image reste.</translation>
    </message>
    <message>
        <source>Stores the wallpaper for the virtual desktop in view only. Position and slide show belong to all desktops.</source>
        <translation>N’enregistre le fond que pour le bureau virtuel affiché. La position et le diaporama valent pour tous les bureaux.</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <source>Select wallpaper image file</source>
        <translation>Choisir le fichier image du fond d’écran</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</source>
        <translation>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</translation>
    </message>
    <message>
        <source>File conversion</source>
        <translation>Conversion de fichier</translation>
    </message>
    <message>
        <source>Selected file &apos;%1&apos; is in svg format
Would you like to convert it to png now?</source>
        <translation>Le fichier choisi « %1 » est au format svg
Voulez-vous le convertir en png maintenant ?</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Fichier existant</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; already exists
Would you like to rewrite it now?</source>
        <translation>Le fichier « %1 » existe déjà
Voulez-vous le remplacer maintenant ?</translation>
    </message>
</context>
</TS>
