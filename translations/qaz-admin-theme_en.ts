<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Wallpaper</source>
        <translation>Wallpaper</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Screensaver</source>
        <translation>Screensaver</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effects</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sounds</translation>
    </message>
    <message>
        <source>Qaz Theme Editor</source>
        <translation>Qaz Theme Editor</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Restore...</translation>
    </message>
    <message>
        <source>Restore all settings.
</source>
        <translation>Restore all settings.
</translation>
    </message>
    <message>
        <source>All changes will be lost and restart session will be required.</source>
        <translation>All changes will be lost and restart session will be required.</translation>
    </message>
    <message>
        <source>Save ?</source>
        <translation>Save ?</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Save changes?</translation>
    </message>
    <message>
        <source>Theme only</source>
        <translation>Theme only</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Are you sure?
If yes then select restore type and press Yes

Restore type:</source>
        <translation>Are you sure?
If yes then select restore type and press Yes

Restore type:</translation>
    </message>
    <message>
        <source>All Qaz settings</source>
        <translation>All Qaz settings</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can&apos;t remove &apos;%1&apos;</source>
        <translation>Can&apos;t remove &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Restore done</source>
        <translation>Restore done</translation>
    </message>
    <message>
        <source>Selected settings are restored. You need to restart session. Do it now (recommended)?</source>
        <translation>Selected settings are restored. You need to restart session. Do it now (recommended)?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Can&apos;t back up &apos;%1&apos;: %2
Remove it all the same?</source>
        <translation>Can&apos;t back up &apos;%1&apos;: %2
Remove it all the same?</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
</context>
<context>
    <name>EffectForm</name>
    <message>
        <source>Effects</source>
        <translation>Effects</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>For Windows</source>
        <translation>For Windows</translation>
    </message>
    <message>
        <source>Opaque window move</source>
        <translation>Opaque window move</translation>
    </message>
    <message>
        <source>OpaqueMove</source>
        <translation>OpaqueMove</translation>
    </message>
    <message>
        <source>Search free area to map window</source>
        <translation>Search free area to map window</translation>
    </message>
    <message>
        <source>SmartPlacement</source>
        <translation>SmartPlacement</translation>
    </message>
    <message>
        <source>Opaque window resize</source>
        <translation>Opaque window resize</translation>
    </message>
    <message>
        <source>OpaqueResize</source>
        <translation>OpaqueResize</translation>
    </message>
    <message>
        <source>Animation:</source>
        <translation>Animation:</translation>
    </message>
    <message>
        <source>speed of window map/unmap</source>
        <translation>speed of window map/unmap</translation>
    </message>
    <message>
        <source>GradWindowMapSpeed:</source>
        <translation>GradWindowMapSpeed:</translation>
    </message>
    <message>
        <source>Style of window map/ummap</source>
        <translation>Style of window map/ummap</translation>
    </message>
    <message>
        <source>GradWindowMapStyle:</source>
        <translation>GradWindowMapStyle:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>TopToBottom</source>
        <translation>TopToBottom</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>LeftToRight</translation>
    </message>
    <message>
        <source>CenterToTopBottom</source>
        <translation>CenterToTopBottom</translation>
    </message>
    <message>
        <source>CenterToLeftRight</source>
        <translation>CenterToLeftRight</translation>
    </message>
    <message>
        <source>CenterToAll</source>
        <translation>CenterToAll</translation>
    </message>
    <message>
        <source>FromButton</source>
        <translation>FromButton</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>RightToLeft</translation>
    </message>
    <message>
        <source>BottomToTop</source>
        <translation>BottomToTop</translation>
    </message>
    <message>
        <source>Speed of windows minimize-maximize, restore, rearrange</source>
        <translation>Speed of windows minimize-maximize, restore, rearrange</translation>
    </message>
    <message>
        <source>ArrangeWindowSpeed:</source>
        <translation>ArrangeWindowSpeed:</translation>
    </message>
    <message>
        <source>Speed of start menu show animation</source>
        <translation>Speed of start menu show animation</translation>
    </message>
    <message>
        <source>StartMenuMapSpeed:</source>
        <translation>StartMenuMapSpeed:</translation>
    </message>
    <message>
        <source>Composite effect, available for some video cards only</source>
        <translation>Composite effect, available for some video cards only</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composite</translation>
    </message>
    <message>
        <source>Windows thumbnails in taskbar, task switcher, desktop pages, etc.</source>
        <translation>Windows thumbnails in taskbar, task switcher, desktop pages, etc.</translation>
    </message>
    <message>
        <source>Windows Preview</source>
        <translation>Windows Preview</translation>
    </message>
    <message>
        <source>Disable composite manager to speed up desktop drawing or to fix onscreen artefacts if any</source>
        <translation>Disable composite manager to speed up desktop drawing or to fix onscreen artefacts if any</translation>
    </message>
    <message>
        <source>Composite Manager</source>
        <translation>Composite Manager</translation>
    </message>
    <message>
        <source>Disable transparency to speed up</source>
        <translation>Disable transparency to speed up</translation>
    </message>
    <message>
        <source>Transparency of windows</source>
        <translation>Transparency of windows</translation>
    </message>
    <message>
        <source>Disable shadows to speed up</source>
        <translation>Disable shadows to speed up</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Others</translation>
    </message>
    <message>
        <source>For Taskbar</source>
        <translation>For Taskbar</translation>
    </message>
    <message>
        <source>autohided taskbar show delay (ms)</source>
        <translation>autohided taskbar show delay (ms)</translation>
    </message>
    <message>
        <source>TaskbarShowDelay:</source>
        <translation>TaskbarShowDelay:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>autohided taskbar hide delay (ms)</source>
        <translation>autohided taskbar hide delay (ms)</translation>
    </message>
    <message>
        <source>TaskbarHideDelay:</source>
        <translation>TaskbarHideDelay:</translation>
    </message>
    <message>
        <source>speed of autohided taskbar map/unmap</source>
        <translation>speed of autohided taskbar map/unmap</translation>
    </message>
    <message>
        <source>GradTaskbarMotionSpeed:</source>
        <translation>GradTaskbarMotionSpeed:</translation>
    </message>
    <message>
        <source>For Menus</source>
        <translation>For Menus</translation>
    </message>
    <message>
        <source>menu show delay (ms)</source>
        <translation>menu show delay (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime:</source>
        <translation>MenuDelayTime:</translation>
    </message>
    <message>
        <source>menu hide delay (ms)</source>
        <translation>menu hide delay (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime2:</source>
        <translation>MenuDelayTime2:</translation>
    </message>
    <message>
        <source>menu map animation speed</source>
        <translation>menu map animation speed</translation>
    </message>
    <message>
        <source>GradMenuMapSpeed:</source>
        <translation>GradMenuMapSpeed:</translation>
    </message>
    <message>
        <source>Autopaging</source>
        <translation>Autopaging</translation>
    </message>
    <message>
        <source>Screen edge area for autopaging</source>
        <translation>Screen edge area for autopaging</translation>
    </message>
    <message>
        <source>PagingBeltSize</source>
        <translation>PagingBeltSize</translation>
    </message>
    <message>
        <source>pix</source>
        <translation>pix</translation>
    </message>
    <message>
        <source>Autopaging resistance</source>
        <translation>Autopaging resistance</translation>
    </message>
    <message>
        <source>PagingResistance</source>
        <translation>PagingResistance</translation>
    </message>
    <message>
        <source>Shift cursor from edge when autopaging</source>
        <translation>Shift cursor from edge when autopaging</translation>
    </message>
    <message>
        <source>PagingShiftCursor</source>
        <translation>PagingShiftCursor</translation>
    </message>
    <message>
        <source>Autopaging speed</source>
        <translation>Autopaging speed</translation>
    </message>
    <message>
        <source>PagingSpeed</source>
        <translation>PagingSpeed</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>menu transparency left side value</source>
        <translation>menu transparency left side value</translation>
    </message>
    <message>
        <source>MenuTransparency:</source>
        <translation>MenuTransparency:</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>menu transparency right side value</source>
        <translation>menu transparency right side value</translation>
    </message>
    <message>
        <source>MenuTransparency2:</source>
        <translation>MenuTransparency2:</translation>
    </message>
    <message>
        <source>How fast windows appear and disappear: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>How fast windows appear and disappear: a number without a unit, from 0 to 30. 0 means no animation.</translation>
    </message>
    <message>
        <source>How fast windows are minimized, maximized, restored and rearranged: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>How fast windows are minimized, maximized, restored and rearranged: a number without a unit, from 0 to 25. 0 means no animation.</translation>
    </message>
    <message>
        <source>How fast the start menu appears: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>How fast the start menu appears: a number without a unit, from 0 to 25. 0 means no animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests at the screen&apos;s edge until a hidden taskbar appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>How long the pointer rests at the screen&apos;s edge until a hidden taskbar appears: milliseconds, from 0 to 3000. 0 means at once.</translation>
    </message>
    <message>
        <source>How long the taskbar stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>How long the taskbar stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</translation>
    </message>
    <message>
        <source>How fast a taskbar that hides itself moves: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>How fast a taskbar that hides itself moves: a number without a unit, from 0 to 30. 0 means no animation.</translation>
    </message>
    <message>
        <source>How long the pointer rests on an entry until its menu appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>How long the pointer rests on an entry until its menu appears: milliseconds, from 0 to 3000. 0 means at once.</translation>
    </message>
    <message>
        <source>How long a menu stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>How long a menu stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</translation>
    </message>
    <message>
        <source>How fast menus appear: a number without a unit, from 0 to 10. 0 means no animation.</source>
        <translation>How fast menus appear: a number without a unit, from 0 to 10. 0 means no animation.</translation>
    </message>
    <message>
        <source>How wide the area at the screen&apos;s edges is from which the pointer leads to the next desktop: pixels, from 0 to 20. 0 switches autopaging off.</source>
        <translation>How wide the area at the screen&apos;s edges is from which the pointer leads to the next desktop: pixels, from 0 to 20. 0 switches autopaging off.</translation>
    </message>
    <message>
        <source>How long the pointer pushes against the edge until the desktop changes: milliseconds, from 0 to 5000. 0 means at once.</source>
        <translation>How long the pointer pushes against the edge until the desktop changes: milliseconds, from 0 to 5000. 0 means at once.</translation>
    </message>
    <message>
        <source>How far from the edge the pointer arrives on the next desktop: pixels, from 0 to 500. 0 leaves it at the edge.</source>
        <translation>How far from the edge the pointer arrives on the next desktop: pixels, from 0 to 500. 0 leaves it at the edge.</translation>
    </message>
    <message>
        <source>How fast the desktops move: a number without a unit, from 0 to 100. 0 means no animation.</source>
        <translation>How fast the desktops move: a number without a unit, from 0 to 100. 0 means no animation.</translation>
    </message>
    <message>
        <source>How transparent menus are at their left side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>How transparent menus are at their left side: percent, from 0 to 100. 0 means opaque.</translation>
    </message>
    <message>
        <source>How transparent menus are at their right side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>How transparent menus are at their right side: percent, from 0 to 100. 0 means opaque.</translation>
    </message>
</context>
<context>
    <name>FilePreview</name>
    <message>
        <source>%1, %2 Hz, %3 × %4 bit
Length: %5 s</source>
        <translation>%1, %2 Hz, %3 × %4 bit
Length: %5 s</translation>
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
        <translation>The font settings could not be saved in the file &apos;%1&apos;: %2</translation>
    </message>
</context>
<context>
    <name>FontAASettingsForm</name>
    <message>
        <source>Configure Anti-Alias Settings</source>
        <translation>Configure Anti-Alias Settings</translation>
    </message>
    <message>
        <source>E&amp;xclude range:</source>
        <translation>E&amp;xclude range:</translation>
    </message>
    <message>
        <source>Exclude range from</source>
        <translation>Exclude range from</translation>
    </message>
    <message>
        <source> pix</source>
        <translation> pix</translation>
    </message>
    <message>
        <source> to </source>
        <translation> to </translation>
    </message>
    <message>
        <source>Exclude range to</source>
        <translation>Exclude range to</translation>
    </message>
    <message>
        <source>&lt;p&gt;If you have a TFT or LCD screen you can further improve the quality of displayed fonts by selecting this option.&lt;br /&gt;Sub-pixel rendering is also known as ClearType(tm).&lt;br /&gt; In order for sub-pixel rendering to work correctly you need to know how the sub-pixels of your display are aligned.&lt;/p&gt; &lt;p&gt;On TFT or LCD displays a single pixel is actually composed of three sub-pixels, red, green and blue. Most displays have a linear ordering of RGB sub-pixel, some have BGR.&lt;br /&gt; This feature does not work with CRT monitors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;If you have a TFT or LCD screen you can further improve the quality of displayed fonts by selecting this option.&lt;br /&gt;Sub-pixel rendering is also known as ClearType(tm).&lt;br /&gt; In order for sub-pixel rendering to work correctly you need to know how the sub-pixels of your display are aligned.&lt;/p&gt; &lt;p&gt;On TFT or LCD displays a single pixel is actually composed of three sub-pixels, red, green and blue. Most displays have a linear ordering of RGB sub-pixel, some have BGR.&lt;br /&gt; This feature does not work with CRT monitors.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Use sub-pixel rendering:</source>
        <translation>&amp;Use sub-pixel rendering:</translation>
    </message>
    <message>
        <source>Sub-pixel order</source>
        <translation>Sub-pixel order</translation>
    </message>
    <message>
        <source>Hinting is a process used to enhance the quality of fonts at small sizes.</source>
        <translation>Hinting is a process used to enhance the quality of fonts at small sizes.</translation>
    </message>
    <message>
        <source>Hinting style: </source>
        <translation>Hinting style: </translation>
    </message>
</context>
<context>
    <name>FontRendering</name>
    <message>
        <source>None</source>
        <translation>None</translation>
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
        <translation>Vertical RGB</translation>
    </message>
    <message>
        <source>Vertical BGR</source>
        <translation>Vertical BGR</translation>
    </message>
    <message>
        <source>Slight</source>
        <translation>Slight</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Full</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Qaz Theme Editor Help</source>
        <translation>Qaz Theme Editor Help</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Search:</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Not found</translation>
    </message>
</context>
<context>
    <name>KFontRequester</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Click to select a font</source>
        <translation>Click to select a font</translation>
    </message>
    <message>
        <source>Preview of the &quot;%1&quot; font</source>
        <translation>Preview of the &quot;%1&quot; font</translation>
    </message>
    <message>
        <source>This is a preview of the &quot;%1&quot; font. You can change it by clicking the &quot;...&quot; button.</source>
        <translation>This is a preview of the &quot;%1&quot; font. You can change it by clicking the &quot;...&quot; button.</translation>
    </message>
    <message>
        <source>Select the &quot;%1&quot; font</source>
        <translation>Select the &quot;%1&quot; font</translation>
    </message>
</context>
<context>
    <name>KFonts</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Default.</source>
        <translation>Default.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Window titles.</source>
        <translation>Window titles.</translation>
    </message>
    <message>
        <source>Start Menu</source>
        <translation>Start Menu</translation>
    </message>
    <message>
        <source>Start menu.</source>
        <translation>Start menu.</translation>
    </message>
    <message>
        <source>Cascade Menu</source>
        <translation>Cascade Menu</translation>
    </message>
    <message>
        <source>Cascade menus, context menus.</source>
        <translation>Cascade menus, context menus.</translation>
    </message>
    <message>
        <source>Control Menu</source>
        <translation>Control Menu</translation>
    </message>
    <message>
        <source>Control menus.</source>
        <translation>Control menus.</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Dialogs.</source>
        <translation>Dialogs.</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskbar</translation>
    </message>
    <message>
        <source>Taskbar.</source>
        <translation>Taskbar.</translation>
    </message>
    <message>
        <source>Taskbar bold</source>
        <translation>Taskbar bold</translation>
    </message>
    <message>
        <source>Taskbar bold.</source>
        <translation>Taskbar bold.</translation>
    </message>
    <message>
        <source>Taskbar clock</source>
        <translation>Taskbar clock</translation>
    </message>
    <message>
        <source>Taskbar clock.</source>
        <translation>Taskbar clock.</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icon</translation>
    </message>
    <message>
        <source>Icons.</source>
        <translation>Icons.</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Tooltip</translation>
    </message>
    <message>
        <source>Tooltips.</source>
        <translation>Tooltips.</translation>
    </message>
    <message>
        <source>Ad&amp;just All Fonts...</source>
        <translation>Ad&amp;just All Fonts...</translation>
    </message>
    <message>
        <source>Click to change all fonts</source>
        <translation>Click to change all fonts</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>System Settings</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>If this option is selected, DE will smooth the edges of curves in fonts.</source>
        <translation>If this option is selected, DE will smooth the edges of curves in fonts.</translation>
    </message>
    <message>
        <source>Configure...</source>
        <translation>Configure...</translation>
    </message>
    <message>
        <source>Use a&amp;nti-aliasing:</source>
        <translation>Use a&amp;nti-aliasing:</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>dpi</translation>
    </message>
    <message>
        <source>&lt;p&gt;This option forces a specific DPI value for fonts. It may be useful when the real DPI of the hardware is not detected properly and it is also often misused when poor quality fonts are used that do not look well with DPI values other than 96 or 120 DPI.&lt;/p&gt;&lt;p&gt;The use of this option is generally discouraged. For selecting proper DPI value a better option is explicitly configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding &lt;i&gt;-dpi value&lt;/i&gt; to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render properly with real DPI value better fonts should be used or configuration of font hinting should be checked.&lt;/p&gt;</source>
        <translation>&lt;p&gt;This option forces a specific DPI value for fonts. It may be useful when the real DPI of the hardware is not detected properly and it is also often misused when poor quality fonts are used that do not look well with DPI values other than 96 or 120 DPI.&lt;/p&gt;&lt;p&gt;The use of this option is generally discouraged. For selecting proper DPI value a better option is explicitly configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding &lt;i&gt;-dpi value&lt;/i&gt; to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render properly with real DPI value better fonts should be used or configuration of font hinting should be checked.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Force fonts DPI:</source>
        <translation>Force fonts DPI:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Some changes such as anti-aliasing or DPI will only affect newly started applications.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Some changes such as anti-aliasing or DPI will only affect newly started applications.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Font Settings Changed</source>
        <translation>Font Settings Changed</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Qaz</source>
        <comment>Usage: qaz-admin-theme themefile - open and edit theme file
</comment>
        <translation>Usage: qaz-admin-theme themefile - open and edit theme file</translation>
    </message>
</context>
<context>
    <name>ScreensaverForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Start automatically after</source>
        <translation>Start automatically after</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>DPMS off after</source>
        <translation>DPMS off after</translation>
    </message>
    <message>
        <source>Wrong password timeout</source>
        <translation>Wrong password timeout</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>Wrong password bell level</source>
        <translation>Wrong password bell level</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Lock console switching</source>
        <translation>Lock console switching</translation>
    </message>
    <message>
        <source>Lock X Access</source>
        <translation>Lock X Access</translation>
    </message>
    <message>
        <source>Start the screensaver when keyboard and mouse are not used</source>
        <translation>Start the screensaver when keyboard and mouse are not used</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts</source>
        <translation>Minutes without input until the screensaver starts</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts, from 0 to 999. 0 means never.</source>
        <translation>Minutes without input until the screensaver starts, from 0 to 999. 0 means never.</translation>
    </message>
    <message>
        <source>Minutes until the locked display is switched off</source>
        <translation>Minutes until the locked display is switched off</translation>
    </message>
    <message>
        <source>DPMS switches the display off to save energy. This is after how many minutes it does so while the screen is locked, from 0 to 999. 0 means never.</source>
        <translation>DPMS switches the display off to save energy. This is after how many minutes it does so while the screen is locked, from 0 to 999. 0 means never.</translation>
    </message>
    <message>
        <source>How long the locker waits after a wrong password</source>
        <translation>How long the locker waits after a wrong password</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password, from 0 to 99. 0 means not at all.</source>
        <translation>Seconds that the locker waits after a wrong password, from 0 to 99. 0 means not at all.</translation>
    </message>
    <message>
        <source>How loud the bell for a wrong password is</source>
        <translation>How loud the bell for a wrong password is</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password in percent, from 0 to 100. 0 is silent.</source>
        <translation>Loudness of the bell for a wrong password in percent, from 0 to 100. 0 is silent.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+F1 and the like don&apos;t leave the locked screen</source>
        <translation>Ctrl+Alt+F1 and the like don&apos;t leave the locked screen</translation>
    </message>
    <message>
        <source>Other programs can&apos;t connect to the locked display</source>
        <translation>Other programs can&apos;t connect to the locked display</translation>
    </message>
</context>
<context>
    <name>SoundForm</name>
    <message>
        <source>Sounds</source>
        <translation>Sounds</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Theme:</translation>
    </message>
    <message>
        <source>Select one of sound themes or None to use internal default sounds</source>
        <translation>Select one of sound themes or None to use internal default sounds</translation>
    </message>
    <message>
        <source>Use sounds in window manager</source>
        <translation>Use sounds in window manager</translation>
    </message>
    <message>
        <source>Set default sounds for window manager</source>
        <translation>Set default sounds for window manager</translation>
    </message>
    <message>
        <source>From theme</source>
        <translation>From theme</translation>
    </message>
    <message>
        <source>Clear all sounds for window manager</source>
        <translation>Clear all sounds for window manager</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Events and their sounds</source>
        <translation>Events and their sounds</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Select sound file for current event in list</source>
        <translation>Select sound file for current event in list</translation>
    </message>
    <message>
        <source>Select sound file</source>
        <translation>Select sound file</translation>
    </message>
    <message>
        <source>Remove assignment sound file to event</source>
        <translation>Remove assignment sound file to event</translation>
    </message>
    <message>
        <source>Remove sound file</source>
        <translation>Remove sound file</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mixer</translation>
    </message>
    <message>
        <source>Menu Popup</source>
        <translation>Menu Popup</translation>
    </message>
    <message>
        <source>Menu Command</source>
        <translation>Menu Command</translation>
    </message>
    <message>
        <source>Open Window</source>
        <translation>Open Window</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Close Window</translation>
    </message>
    <message>
        <source>Restore Window up</source>
        <translation>Restore Window up</translation>
    </message>
    <message>
        <source>Restore Window down</source>
        <translation>Restore Window down</translation>
    </message>
    <message>
        <source>Minimize Window</source>
        <translation>Minimize Window</translation>
    </message>
    <message>
        <source>Maximize Window</source>
        <translation>Maximize Window</translation>
    </message>
    <message>
        <source>System Start</source>
        <translation>System Start</translation>
    </message>
    <message>
        <source>System Exit</source>
        <translation>System Exit</translation>
    </message>
    <message>
        <source>System Lock</source>
        <translation>System Lock</translation>
    </message>
    <message>
        <source>Error Dialog</source>
        <translation>Error Dialog</translation>
    </message>
    <message>
        <source>Forced Tray Message</source>
        <translation>Forced Tray Message</translation>
    </message>
    <message>
        <source>Paging</source>
        <translation>Paging</translation>
    </message>
    <message>
        <source>Choosing a theme takes its sound for every event. Files that you chose yourself stay.</source>
        <translation>Choosing a theme takes its sound for every event. Files that you chose yourself stay.</translation>
    </message>
    <message>
        <source>Without it the window manager plays no sound. The assignments are kept.</source>
        <translation>Without it the window manager plays no sound. The assignments are kept.</translation>
    </message>
    <message>
        <source>Takes the theme&apos;s sounds for all events, also in place of your own files.</source>
        <translation>Takes the theme&apos;s sounds for all events, also in place of your own files.</translation>
    </message>
    <message>
        <source>Each event of the window manager with its sound: a file of yours, a built-in file or a sound of the theme. Return chooses a file, Delete removes it. A sound file can be dropped on a row.</source>
        <translation>Each event of the window manager with its sound: a file of yours, a built-in file or a sound of the theme. Return chooses a file, Delete removes it. A sound file can be dropped on a row.</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <source>No theme</source>
        <translation>No theme</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
Would you like to convert them to wav now?</source>
        <translation>Not all files in theme &apos;%1&apos; are in wav format
Would you like to convert them to wav now?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
You should convert them to wav.</source>
        <translation>Not all files in theme &apos;%1&apos; are in wav format
You should convert them to wav.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Can&apos;t load sound theme &apos;%1&apos;</source>
        <translation>Can&apos;t load sound theme &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>Sounds (*.wav *.au)</source>
        <translation>Sounds (*.wav *.au)</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is not wav.
Select other theme or conver to wav,
for example ogg/oga to wav by oggdev utility.</source>
        <translation>File &apos;%1&apos; is not wav.
Select other theme or conver to wav,
for example ogg/oga to wav by oggdev utility.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Program %1 not found</source>
        <translation>Program %1 not found</translation>
    </message>
    <message>
        <source>Sound &apos;%1&apos; doesn&apos;t exist</source>
        <translation>Sound &apos;%1&apos; doesn&apos;t exist</translation>
    </message>
    <message>
        <source>Can&apos;t start &apos;qasmixer&apos;</source>
        <translation>Can&apos;t start &apos;qasmixer&apos;</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
They can&apos;t be converted: &apos;%2&apos; has to be renamed first.
Blanks, quotation marks, backslashes and control characters are not safe.</source>
        <translation>Not all files in theme &apos;%1&apos; are in wav format
They can&apos;t be converted: &apos;%2&apos; has to be renamed first.
Blanks, quotation marks, backslashes and control characters are not safe.</translation>
    </message>
</context>
<context>
    <name>ThemeForm</name>
    <message>
        <source>Themes</source>
        <translation>Themes</translation>
    </message>
    <message>
        <source>Cursors:</source>
        <translation>Cursors:</translation>
    </message>
    <message>
        <source>Select your personal Cursor theme</source>
        <translation>Select your personal Cursor theme</translation>
    </message>
    <message>
        <source>Icons:</source>
        <translation>Icons:</translation>
    </message>
    <message>
        <source>Select your personal Icon theme</source>
        <translation>Select your personal Icon theme</translation>
    </message>
    <message>
        <source>Decor:</source>
        <translation>Decor:</translation>
    </message>
    <message>
        <source>Select your personal window and taskbar decoration theme</source>
        <translation>Select your personal window and taskbar decoration theme</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Colors:</translation>
    </message>
    <message>
        <source>Select item to set color for</source>
        <translation>Select item to set color for</translation>
    </message>
    <message>
        <source>Select main color of item</source>
        <translation>Select main color of item</translation>
    </message>
    <message>
        <source>Main color</source>
        <translation>Main color</translation>
    </message>
    <message>
        <source>Select end color if gradient fill available for this item</source>
        <translation>Select end color if gradient fill available for this item</translation>
    </message>
    <message>
        <source>End color</source>
        <translation>End color</translation>
    </message>
    <message>
        <source>Sizes:</source>
        <translation>Sizes:</translation>
    </message>
    <message>
        <source>Select item to set size for</source>
        <translation>Select item to set size for</translation>
    </message>
    <message>
        <source>Select size of item</source>
        <translation>Select size of item</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>The size of icons on the desktop and the height of the taskbar in pixels. The button beside the list changes the size in view.</source>
        <translation>The size of icons on the desktop and the height of the taskbar in pixels. The button beside the list changes the size in view.</translation>
    </message>
</context>
<context>
    <name>ThemeKeys</name>
    <message>
        <source>Color at the end of the gradient: %1</source>
        <translation>Color at the end of the gradient: %1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Color: %1</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Font: %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Sound: %1</translation>
    </message>
    <message>
        <source>Wallpaper: a file, a name or a color #rrggbb</source>
        <translation>Wallpaper: a file, a name or a color #rrggbb</translation>
    </message>
    <message>
        <source>Minutes from one wallpaper of the slide show to the next; 0: none</source>
        <translation>Minutes from one wallpaper of the slide show to the next; 0: none</translation>
    </message>
    <message>
        <source>Icon theme</source>
        <translation>Icon theme</translation>
    </message>
    <message>
        <source>Decoration theme of windows and taskbar; empty: none</source>
        <translation>Decoration theme of windows and taskbar; empty: none</translation>
    </message>
    <message>
        <source>Seconds without input until the screensaver starts; 0: never</source>
        <translation>Seconds without input until the screensaver starts; 0: never</translation>
    </message>
    <message>
        <source>Seconds until the locked display is switched off</source>
        <translation>Seconds until the locked display is switched off</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password</source>
        <translation>Seconds that the locker waits after a wrong password</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password, in percent</source>
        <translation>Loudness of the bell for a wrong password, in percent</translation>
    </message>
    <message>
        <source>Program that draws transparency and shadows</source>
        <translation>Program that draws transparency and shadows</translation>
    </message>
    <message>
        <source>Whether that program runs</source>
        <translation>Whether that program runs</translation>
    </message>
    <message>
        <source>Size of window thumbnails in pixels; 0: none</source>
        <translation>Size of window thumbnails in pixels; 0: none</translation>
    </message>
    <message>
        <source>Sound theme; empty: none</source>
        <translation>Sound theme; empty: none</translation>
    </message>
    <message>
        <source>buttons under the pointer</source>
        <translation>buttons under the pointer</translation>
    </message>
    <message>
        <source>buttons</source>
        <translation>buttons</translation>
    </message>
    <message>
        <source>text on buttons under the pointer</source>
        <translation>text on buttons under the pointer</translation>
    </message>
    <message>
        <source>text on buttons</source>
        <translation>text on buttons</translation>
    </message>
    <message>
        <source>text of the clock in the taskbar</source>
        <translation>text of the clock in the taskbar</translation>
    </message>
    <message>
        <source>what is selected on the desktop</source>
        <translation>what is selected on the desktop</translation>
    </message>
    <message>
        <source>background of the desktop where no wallpaper covers it</source>
        <translation>background of the desktop where no wallpaper covers it</translation>
    </message>
    <message>
        <source>background of the desktop&apos;s dialogs</source>
        <translation>background of the desktop&apos;s dialogs</translation>
    </message>
    <message>
        <source>text in the desktop&apos;s dialogs</source>
        <translation>text in the desktop&apos;s dialogs</translation>
    </message>
    <message>
        <source>frame of the active window</source>
        <translation>frame of the active window</translation>
    </message>
    <message>
        <source>frames of the other windows</source>
        <translation>frames of the other windows</translation>
    </message>
    <message>
        <source>background of icons</source>
        <translation>background of icons</translation>
    </message>
    <message>
        <source>foreground of icons</source>
        <translation>foreground of icons</translation>
    </message>
    <message>
        <source>text of selected icons</source>
        <translation>text of selected icons</translation>
    </message>
    <message>
        <source>text of icons</source>
        <translation>text of icons</translation>
    </message>
    <message>
        <source>selected entry of a menu</source>
        <translation>selected entry of a menu</translation>
    </message>
    <message>
        <source>background of menus</source>
        <translation>background of menus</translation>
    </message>
    <message>
        <source>text of the selected entry of a menu</source>
        <translation>text of the selected entry of a menu</translation>
    </message>
    <message>
        <source>text in menus</source>
        <translation>text in menus</translation>
    </message>
    <message>
        <source>miniature of the active window in the pager</source>
        <translation>miniature of the active window in the pager</translation>
    </message>
    <message>
        <source>miniatures of windows in the pager</source>
        <translation>miniatures of windows in the pager</translation>
    </message>
    <message>
        <source>desktop in view in the pager</source>
        <translation>desktop in view in the pager</translation>
    </message>
    <message>
        <source>background of the pager</source>
        <translation>background of the pager</translation>
    </message>
    <message>
        <source>logo of the start menu</source>
        <translation>logo of the start menu</translation>
    </message>
    <message>
        <source>selected window in the task switcher</source>
        <translation>selected window in the task switcher</translation>
    </message>
    <message>
        <source>background of the task switcher</source>
        <translation>background of the task switcher</translation>
    </message>
    <message>
        <source>text in the task switcher</source>
        <translation>text in the task switcher</translation>
    </message>
    <message>
        <source>background of the taskbar</source>
        <translation>background of the taskbar</translation>
    </message>
    <message>
        <source>title of the active window</source>
        <translation>title of the active window</translation>
    </message>
    <message>
        <source>titles of the other windows</source>
        <translation>titles of the other windows</translation>
    </message>
    <message>
        <source>title bar of the active window</source>
        <translation>title bar of the active window</translation>
    </message>
    <message>
        <source>title bars of the other windows</source>
        <translation>title bars of the other windows</translation>
    </message>
    <message>
        <source>background of tool tips</source>
        <translation>background of tool tips</translation>
    </message>
    <message>
        <source>text of tool tips</source>
        <translation>text of tool tips</translation>
    </message>
</context>
<context>
    <name>ThemePage</name>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Desktop active</source>
        <translation>Desktop active</translation>
    </message>
    <message>
        <source>Titlebar</source>
        <translation>Titlebar</translation>
    </message>
    <message>
        <source>Titlebar active</source>
        <translation>Titlebar active</translation>
    </message>
    <message>
        <source>Title string</source>
        <translation>Title string</translation>
    </message>
    <message>
        <source>Title string active</source>
        <translation>Title string active</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Frame active</source>
        <translation>Frame active</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <source>Pager active</source>
        <translation>Pager active</translation>
    </message>
    <message>
        <source>Pager miniature</source>
        <translation>Pager miniature</translation>
    </message>
    <message>
        <source>Pager miniatire active</source>
        <translation>Pager miniatire active</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Taskbar</translation>
    </message>
    <message>
        <source>Clock string</source>
        <translation>Clock string</translation>
    </message>
    <message>
        <source>Icon string</source>
        <translation>Icon string</translation>
    </message>
    <message>
        <source>Icon string active</source>
        <translation>Icon string active</translation>
    </message>
    <message>
        <source>Icon foreground</source>
        <translation>Icon foreground</translation>
    </message>
    <message>
        <source>Icon background</source>
        <translation>Icon background</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu active</source>
        <translation>Menu active</translation>
    </message>
    <message>
        <source>Menu string</source>
        <translation>Menu string</translation>
    </message>
    <message>
        <source>Menu string active</source>
        <translation>Menu string active</translation>
    </message>
    <message>
        <source>Start menu logo</source>
        <translation>Start menu logo</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Dialog string</source>
        <translation>Dialog string</translation>
    </message>
    <message>
        <source>Switcher</source>
        <translation>Switcher</translation>
    </message>
    <message>
        <source>Switcher active</source>
        <translation>Switcher active</translation>
    </message>
    <message>
        <source>Switcher string</source>
        <translation>Switcher string</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Button</translation>
    </message>
    <message>
        <source>Button active</source>
        <translation>Button active</translation>
    </message>
    <message>
        <source>Button string</source>
        <translation>Button string</translation>
    </message>
    <message>
        <source>Button string active</source>
        <translation>Button string active</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Tooltip</translation>
    </message>
    <message>
        <source>Tooltip string</source>
        <translation>Tooltip string</translation>
    </message>
    <message>
        <source>Desktop icon size</source>
        <translation>Desktop icon size</translation>
    </message>
    <message>
        <source>Taskbar height</source>
        <translation>Taskbar height</translation>
    </message>
    <message>
        <source>No theme</source>
        <translation>No theme</translation>
    </message>
    <message>
        <source>Select size</source>
        <translation>Select size</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The cursor theme &apos;%1&apos; can&apos;t be set.</source>
        <translation>The cursor theme &apos;%1&apos; can&apos;t be set.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>New cursor theme will be applied to newly started apps</source>
        <translation>New cursor theme will be applied to newly started apps</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
</context>
<context>
    <name>WallpaperForm</name>
    <message>
        <source>Wallpapers</source>
        <translation>Wallpapers</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Wallpaper:</source>
        <translation>Wallpaper:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full path to wallpaper file or color as &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full path to wallpaper file or color as &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File...</source>
        <translation>File...</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Color...</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>How to fit wallpaper to desktop</source>
        <translation>How to fit wallpaper to desktop</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Tile</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Stretch</translation>
    </message>
    <message>
        <source>Slide-show:</source>
        <translation>Slide-show:</translation>
    </message>
    <message>
        <source>Slide show interval (0 - no slide show)</source>
        <translation>Slide show interval (0 - no slide show)</translation>
    </message>
    <message>
        <source>min.</source>
        <translation>min.</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Use selected wallpaper for current virtual desktop only,&lt;/p&gt;&lt;p&gt;if multiple virtual desktops available.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Use selected wallpaper for current virtual desktop only,&lt;/p&gt;&lt;p&gt;if multiple virtual desktops available.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>for current desktop only</source>
        <translation>for current desktop only</translation>
    </message>
    <message>
        <source>What stands behind all windows: an image file, the name of a wallpaper such as qaz-default, or a color such as #3a6ea5. An empty field means the color that was chosen last. Files and colors can be dropped here.</source>
        <translation>What stands behind all windows: an image file, the name of a wallpaper such as qaz-default, or a color such as #3a6ea5. An empty field means the color that was chosen last. Files and colors can be dropped here.</translation>
    </message>
    <message>
        <source>Center shows the picture in its own size, Tile repeats it, Stretch makes it fill the screen.</source>
        <translation>Center shows the picture in its own size, Tile repeats it, Stretch makes it fill the screen.</translation>
    </message>
    <message>
        <source>After how many minutes the next picture of the same directory is shown, from 0 to 3600. 0 means that the picture stays.</source>
        <translation>After how many minutes the next picture of the same directory is shown, from 0 to 3600. 0 means that the picture stays.</translation>
    </message>
    <message>
        <source>Stores the wallpaper for the virtual desktop in view only. Position and slide show belong to all desktops.</source>
        <translation>Stores the wallpaper for the virtual desktop in view only. Position and slide show belong to all desktops.</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <source>Select wallpaper image file</source>
        <translation>Select wallpaper image file</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</source>
        <translation>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</translation>
    </message>
    <message>
        <source>File conversion</source>
        <translation>File conversion</translation>
    </message>
    <message>
        <source>Selected file &apos;%1&apos; is in svg format
Would you like to convert it to png now?</source>
        <translation>Selected file &apos;%1&apos; is in svg format
Would you like to convert it to png now?</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>File exists</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; already exists
Would you like to rewrite it now?</source>
        <translation>File &apos;%1&apos; already exists
Would you like to rewrite it now?</translation>
    </message>
</context>
</TS>
