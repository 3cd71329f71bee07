<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Wallpaper</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Screensaver</source>
        <translation>Salvapantallas</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Qaz Theme Editor</source>
        <translation>Editor de temas de Qaz</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Restablecer…</translation>
    </message>
    <message>
        <source>Restore all settings.
</source>
        <translation>Restablecer todos los ajustes.
</translation>
    </message>
    <message>
        <source>All changes will be lost and restart session will be required.</source>
        <translation>Se perderán todos los cambios y habrá que reiniciar la sesión.</translation>
    </message>
    <message>
        <source>Save ?</source>
        <translation>¿Guardar?</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>Theme only</source>
        <translation>Solo el tema</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Are you sure?
If yes then select restore type and press Yes

Restore type:</source>
        <translation>¿Está seguro?
Si lo está, elija el alcance y pulse Aceptar

Restablecer:</translation>
    </message>
    <message>
        <source>All Qaz settings</source>
        <translation>Todos los ajustes de Qaz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Can&apos;t remove &apos;%1&apos;</source>
        <translation>No se puede eliminar «%1»</translation>
    </message>
    <message>
        <source>Restore done</source>
        <translation>Ajustes restablecidos</translation>
    </message>
    <message>
        <source>Selected settings are restored. You need to restart session. Do it now (recommended)?</source>
        <translation>Los ajustes elegidos se han restablecido. Hay que reiniciar la sesión. ¿Hacerlo ahora (recomendado)?</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Can&apos;t back up &apos;%1&apos;: %2
Remove it all the same?</source>
        <translation>No se puede hacer una copia de seguridad de «%1»: %2
¿Eliminarlo de todos modos?</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>EffectForm</name>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>For Windows</source>
        <translation>Para las ventanas</translation>
    </message>
    <message>
        <source>Opaque window move</source>
        <translation>Mostrar el contenido de las ventanas al moverlas</translation>
    </message>
    <message>
        <source>OpaqueMove</source>
        <translation>Movimiento opaco</translation>
    </message>
    <message>
        <source>Search free area to map window</source>
        <translation>Buscar un espacio libre para abrir la ventana</translation>
    </message>
    <message>
        <source>SmartPlacement</source>
        <translation>Colocación inteligente</translation>
    </message>
    <message>
        <source>Opaque window resize</source>
        <translation>Mostrar el contenido de las ventanas al cambiar su tamaño</translation>
    </message>
    <message>
        <source>OpaqueResize</source>
        <translation>Cambio de tamaño opaco</translation>
    </message>
    <message>
        <source>Animation:</source>
        <translation>Animación:</translation>
    </message>
    <message>
        <source>speed of window map/unmap</source>
        <translation>Velocidad al mostrar y ocultar ventanas</translation>
    </message>
    <message>
        <source>GradWindowMapSpeed:</source>
        <translation>Velocidad al abrir:</translation>
    </message>
    <message>
        <source>Style of window map/ummap</source>
        <translation>Estilo al mostrar y ocultar ventanas</translation>
    </message>
    <message>
        <source>GradWindowMapStyle:</source>
        <translation>Estilo al abrir:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>TopToBottom</source>
        <translation>Desde arriba</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Desde la izquierda</translation>
    </message>
    <message>
        <source>CenterToTopBottom</source>
        <translation>Centro, vertical</translation>
    </message>
    <message>
        <source>CenterToLeftRight</source>
        <translation>Centro, horizontal</translation>
    </message>
    <message>
        <source>CenterToAll</source>
        <translation>Desde el centro</translation>
    </message>
    <message>
        <source>FromButton</source>
        <translation>Desde el botón</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>Desde la derecha</translation>
    </message>
    <message>
        <source>BottomToTop</source>
        <translation>Desde abajo</translation>
    </message>
    <message>
        <source>Speed of windows minimize-maximize, restore, rearrange</source>
        <translation>Velocidad al minimizar, maximizar, restaurar y reorganizar ventanas</translation>
    </message>
    <message>
        <source>ArrangeWindowSpeed:</source>
        <translation>Velocidad al organizar:</translation>
    </message>
    <message>
        <source>Speed of start menu show animation</source>
        <translation>Velocidad al mostrar el menú de inicio</translation>
    </message>
    <message>
        <source>StartMenuMapSpeed:</source>
        <translation>Velocidad del menú:</translation>
    </message>
    <message>
        <source>Composite effect, available for some video cards only</source>
        <translation>Efecto de composición, disponible solo con algunas tarjetas gráficas</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Composición</translation>
    </message>
    <message>
        <source>Windows thumbnails in taskbar, task switcher, desktop pages, etc.</source>
        <translation>Miniaturas de las ventanas en la barra de tareas, el selector de ventanas, el paginador, etc.</translation>
    </message>
    <message>
        <source>Windows Preview</source>
        <translation>Vista previa de ventanas</translation>
    </message>
    <message>
        <source>Disable composite manager to speed up desktop drawing or to fix onscreen artefacts if any</source>
        <translation>Desactive el gestor de composición para acelerar el dibujo del escritorio o corregir defectos en pantalla</translation>
    </message>
    <message>
        <source>Composite Manager</source>
        <translation>Gestor de composición</translation>
    </message>
    <message>
        <source>Disable transparency to speed up</source>
        <translation>Desactive la transparencia para acelerar el dibujo</translation>
    </message>
    <message>
        <source>Transparency of windows</source>
        <translation>Transparencia de las ventanas</translation>
    </message>
    <message>
        <source>Disable shadows to speed up</source>
        <translation>Desactive las sombras para acelerar el dibujo</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombras</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>For Taskbar</source>
        <translation>Para la barra de tareas</translation>
    </message>
    <message>
        <source>autohided taskbar show delay (ms)</source>
        <translation>Retardo al mostrar la barra de tareas oculta (ms)</translation>
    </message>
    <message>
        <source>TaskbarShowDelay:</source>
        <translation>Retardo al mostrar:</translation>
    </message>
    <message>
        <source>ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>autohided taskbar hide delay (ms)</source>
        <translation>Retardo al ocultar la barra de tareas (ms)</translation>
    </message>
    <message>
        <source>TaskbarHideDelay:</source>
        <translation>Retardo al ocultar:</translation>
    </message>
    <message>
        <source>speed of autohided taskbar map/unmap</source>
        <translation>Velocidad al mostrar y ocultar la barra de tareas</translation>
    </message>
    <message>
        <source>GradTaskbarMotionSpeed:</source>
        <translation>Velocidad:</translation>
    </message>
    <message>
        <source>For Menus</source>
        <translation>Para los menús</translation>
    </message>
    <message>
        <source>menu show delay (ms)</source>
        <translation>Retardo al mostrar los menús (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime:</source>
        <translation>Retardo al mostrar:</translation>
    </message>
    <message>
        <source>menu hide delay (ms)</source>
        <translation>Retardo al ocultar los menús (ms)</translation>
    </message>
    <message>
        <source>MenuDelayTime2:</source>
        <translation>Retardo al ocultar:</translation>
    </message>
    <message>
        <source>menu map animation speed</source>
        <translation>Velocidad de la animación de los menús</translation>
    </message>
    <message>
        <source>GradMenuMapSpeed:</source>
        <translation>Velocidad:</translation>
    </message>
    <message>
        <source>Autopaging</source>
        <translation>Cambio de escritorio en el borde de la pantalla</translation>
    </message>
    <message>
        <source>Screen edge area for autopaging</source>
        <translation>Anchura del borde de la pantalla que cambia de escritorio</translation>
    </message>
    <message>
        <source>PagingBeltSize</source>
        <translation>Anchura del borde</translation>
    </message>
    <message>
        <source>pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Autopaging resistance</source>
        <translation>Tiempo que el puntero debe permanecer en el borde</translation>
    </message>
    <message>
        <source>PagingResistance</source>
        <translation>Resistencia</translation>
    </message>
    <message>
        <source>Shift cursor from edge when autopaging</source>
        <translation>Distancia del puntero al borde después del cambio</translation>
    </message>
    <message>
        <source>PagingShiftCursor</source>
        <translation>Desplazamiento</translation>
    </message>
    <message>
        <source>Autopaging speed</source>
        <translation>Velocidad del cambio de escritorio</translation>
    </message>
    <message>
        <source>PagingSpeed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>menu transparency left side value</source>
        <translation>Transparencia del lado izquierdo de los menús</translation>
    </message>
    <message>
        <source>MenuTransparency:</source>
        <translation>Menús, izquierda:</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>menu transparency right side value</source>
        <translation>Transparencia del lado derecho de los menús</translation>
    </message>
    <message>
        <source>MenuTransparency2:</source>
        <translation>Menús, derecha:</translation>
    </message>
    <message>
        <source>How fast windows appear and disappear: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>La velocidad con la que aparecen y desaparecen las ventanas: un número sin unidad, de 0 a 30. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How fast windows are minimized, maximized, restored and rearranged: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>La velocidad con la que se minimizan, maximizan, restauran y reorganizan las ventanas: un número sin unidad, de 0 a 25. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How fast the start menu appears: a number without a unit, from 0 to 25. 0 means no animation.</source>
        <translation>La velocidad con la que aparece el menú de inicio: un número sin unidad, de 0 a 25. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How long the pointer rests at the screen&apos;s edge until a hidden taskbar appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>El tiempo que el puntero permanece en el borde de la pantalla hasta que aparece la barra de tareas oculta: milisegundos, de 0 a 3000. 0 significa al instante.</translation>
    </message>
    <message>
        <source>How long the taskbar stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>El tiempo que la barra de tareas permanece después de que el puntero la abandona: milisegundos, de 0 a 3000. 0 significa nada.</translation>
    </message>
    <message>
        <source>How fast a taskbar that hides itself moves: a number without a unit, from 0 to 30. 0 means no animation.</source>
        <translation>La velocidad con la que se mueve una barra de tareas que se oculta: un número sin unidad, de 0 a 30. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How long the pointer rests on an entry until its menu appears: milliseconds, from 0 to 3000. 0 means at once.</source>
        <translation>El tiempo que el puntero permanece sobre una entrada hasta que aparece su menú: milisegundos, de 0 a 3000. 0 significa al instante.</translation>
    </message>
    <message>
        <source>How long a menu stays after the pointer has left it: milliseconds, from 0 to 3000. 0 means not at all.</source>
        <translation>El tiempo que un menú permanece después de que el puntero lo abandona: milisegundos, de 0 a 3000. 0 significa nada.</translation>
    </message>
    <message>
        <source>How fast menus appear: a number without a unit, from 0 to 10. 0 means no animation.</source>
        <translation>La velocidad con la que aparecen los menús: un número sin unidad, de 0 a 10. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How wide the area at the screen&apos;s edges is from which the pointer leads to the next desktop: pixels, from 0 to 20. 0 switches autopaging off.</source>
        <translation>El ancho de la zona en los bordes de la pantalla desde la que el puntero lleva al escritorio siguiente: píxeles, de 0 a 20. 0 desactiva el cambio de escritorio.</translation>
    </message>
    <message>
        <source>How long the pointer pushes against the edge until the desktop changes: milliseconds, from 0 to 5000. 0 means at once.</source>
        <translation>El tiempo que el puntero empuja contra el borde hasta que cambia el escritorio: milisegundos, de 0 a 5000. 0 significa al instante.</translation>
    </message>
    <message>
        <source>How far from the edge the pointer arrives on the next desktop: pixels, from 0 to 500. 0 leaves it at the edge.</source>
        <translation>La distancia del borde a la que el puntero llega al escritorio siguiente: píxeles, de 0 a 500. 0 lo deja en el borde.</translation>
    </message>
    <message>
        <source>How fast the desktops move: a number without a unit, from 0 to 100. 0 means no animation.</source>
        <translation>La velocidad con la que se mueven los escritorios: un número sin unidad, de 0 a 100. 0 significa sin animación.</translation>
    </message>
    <message>
        <source>How transparent menus are at their left side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>La transparencia de los menús en su lado izquierdo: por ciento, de 0 a 100. 0 significa opaco.</translation>
    </message>
    <message>
        <source>How transparent menus are at their right side: percent, from 0 to 100. 0 means opaque.</source>
        <translation>La transparencia de los menús en su lado derecho: por ciento, de 0 a 100. 0 significa opaco.</translation>
    </message>
</context>
<context>
    <name>FilePreview</name>
    <message>
        <source>%1, %2 Hz, %3 × %4 bit
Length: %5 s</source>
        <translation>%1, %2 Hz, %3 × %4 bits
Duración: %5 s</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
</context>
<context>
    <name>FontAASettings</name>
    <message>
        <source>The font settings could not be saved in the file &apos;%1&apos;: %2</source>
        <translation>No se pudieron guardar los ajustes de las fuentes en el archivo «%1»: %2</translation>
    </message>
</context>
<context>
    <name>FontAASettingsForm</name>
    <message>
        <source>Configure Anti-Alias Settings</source>
        <translation>Configurar el suavizado</translation>
    </message>
    <message>
        <source>E&amp;xclude range:</source>
        <translation>E&amp;xcluir el intervalo:</translation>
    </message>
    <message>
        <source>Exclude range from</source>
        <translation>Inicio del intervalo excluido</translation>
    </message>
    <message>
        <source> pix</source>
        <translation> px</translation>
    </message>
    <message>
        <source> to </source>
        <translation> a </translation>
    </message>
    <message>
        <source>Exclude range to</source>
        <translation>Final del intervalo excluido</translation>
    </message>
    <message>
        <source>&lt;p&gt;If you have a TFT or LCD screen you can further improve the quality of displayed fonts by selecting this option.&lt;br /&gt;Sub-pixel rendering is also known as ClearType(tm).&lt;br /&gt; In order for sub-pixel rendering to work correctly you need to know how the sub-pixels of your display are aligned.&lt;/p&gt; &lt;p&gt;On TFT or LCD displays a single pixel is actually composed of three sub-pixels, red, green and blue. Most displays have a linear ordering of RGB sub-pixel, some have BGR.&lt;br /&gt; This feature does not work with CRT monitors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Con una pantalla TFT o LCD, esta opción mejora todavía más la calidad de las fuentes.&lt;br /&gt;La representación por subpíxeles también se conoce como ClearType(tm).&lt;br /&gt; Para que funcione correctamente hay que saber cómo están alineados los subpíxeles de la pantalla.&lt;/p&gt; &lt;p&gt;En las pantallas TFT o LCD cada píxel se compone de tres subpíxeles: rojo, verde y azul. La mayoría de las pantallas los ordenan como RGB, algunas como BGR.&lt;br /&gt; Esta función no sirve para monitores CRT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Use sub-pixel rendering:</source>
        <translation>&amp;Usar subpíxeles:</translation>
    </message>
    <message>
        <source>Sub-pixel order</source>
        <translation>Orden de los subpíxeles</translation>
    </message>
    <message>
        <source>Hinting is a process used to enhance the quality of fonts at small sizes.</source>
        <translation>El ajuste (hinting) mejora la calidad de las fuentes en tamaños pequeños.</translation>
    </message>
    <message>
        <source>Hinting style: </source>
        <translation>Ajuste: </translation>
    </message>
</context>
<context>
    <name>FontRendering</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
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
        <translation>Ligero</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completo</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Qaz Theme Editor Help</source>
        <translation>Ayuda del editor de temas de Qaz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Search:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Resultado anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Resultado siguiente</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se ha encontrado</translation>
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
        <translation>Pulsar para elegir una fuente</translation>
    </message>
    <message>
        <source>Preview of the &quot;%1&quot; font</source>
        <translation>Vista previa de la fuente «%1»</translation>
    </message>
    <message>
        <source>This is a preview of the &quot;%1&quot; font. You can change it by clicking the &quot;...&quot; button.</source>
        <translation>Vista previa de la fuente «%1». Puede cambiarla con el botón «…».</translation>
    </message>
    <message>
        <source>Select the &quot;%1&quot; font</source>
        <translation>Elegir la fuente «%1»</translation>
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
        <translation>Fuente predeterminada.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Window titles.</source>
        <translation>Títulos de las ventanas.</translation>
    </message>
    <message>
        <source>Start Menu</source>
        <translation>Menú de inicio</translation>
    </message>
    <message>
        <source>Start menu.</source>
        <translation>Menú de inicio.</translation>
    </message>
    <message>
        <source>Cascade Menu</source>
        <translation>Menús en cascada</translation>
    </message>
    <message>
        <source>Cascade menus, context menus.</source>
        <translation>Menús en cascada, menús contextuales.</translation>
    </message>
    <message>
        <source>Control Menu</source>
        <translation>Menús de control</translation>
    </message>
    <message>
        <source>Control menus.</source>
        <translation>Menús de control de las ventanas.</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Diálogos</translation>
    </message>
    <message>
        <source>Dialogs.</source>
        <translation>Diálogos.</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barra de tareas</translation>
    </message>
    <message>
        <source>Taskbar.</source>
        <translation>Barra de tareas.</translation>
    </message>
    <message>
        <source>Taskbar bold</source>
        <translation>Barra de tareas, negrita</translation>
    </message>
    <message>
        <source>Taskbar bold.</source>
        <translation>Barra de tareas, en negrita.</translation>
    </message>
    <message>
        <source>Taskbar clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Taskbar clock.</source>
        <translation>Reloj de la barra de tareas.</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Iconos</translation>
    </message>
    <message>
        <source>Icons.</source>
        <translation>Iconos.</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Información emergente</translation>
    </message>
    <message>
        <source>Tooltips.</source>
        <translation>Información emergente.</translation>
    </message>
    <message>
        <source>Ad&amp;just All Fonts...</source>
        <translation>A&amp;justar todas las fuentes…</translation>
    </message>
    <message>
        <source>Click to change all fonts</source>
        <translation>Pulsar para cambiar todas las fuentes</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Ajustes del sistema</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>If this option is selected, DE will smooth the edges of curves in fonts.</source>
        <translation>Suaviza los bordes de las curvas de las fuentes.</translation>
    </message>
    <message>
        <source>Configure...</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Use a&amp;nti-aliasing:</source>
        <translation>Suaviza&amp;do:</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>&lt;p&gt;This option forces a specific DPI value for fonts. It may be useful when the real DPI of the hardware is not detected properly and it is also often misused when poor quality fonts are used that do not look well with DPI values other than 96 or 120 DPI.&lt;/p&gt;&lt;p&gt;The use of this option is generally discouraged. For selecting proper DPI value a better option is explicitly configuring it for the whole X server if possible (e.g. DisplaySize in xorg.conf or adding &lt;i&gt;-dpi value&lt;/i&gt; to ServerLocalArgs= in /etc/X11/qaz-dm/qaz-dmrc). When fonts do not render properly with real DPI value better fonts should be used or configuration of font hinting should be checked.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Impone una resolución (PPP) determinada para las fuentes. Es útil cuando la resolución real del equipo no se detecta bien; a menudo se abusa de ella con fuentes de mala calidad que solo se ven bien a 96 o 120 PPP.&lt;/p&gt;&lt;p&gt;En general no se recomienda esta opción. Es mejor configurar la resolución para todo el servidor X, si es posible (por ejemplo con DisplaySize en xorg.conf o añadiendo &lt;i&gt;-dpi valor&lt;/i&gt; a ServerLocalArgs= en /etc/X11/qaz-dm/qaz-dmrc). Si las fuentes no se ven bien con la resolución real, use fuentes mejores o compruebe su ajuste (hinting).&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Force fonts DPI:</source>
        <translation>PPP de las fuentes:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Some changes such as anti-aliasing or DPI will only affect newly started applications.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Algunos cambios, como el suavizado o los PPP, solo afectan a las aplicaciones que se inicien a partir de ahora.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Font Settings Changed</source>
        <translation>Ajustes de las fuentes modificados</translation>
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
        <translation>Uso: qaz-admin-theme archivo_de_tema - abrir y editar el archivo de tema</translation>
    </message>
</context>
<context>
    <name>ScreensaverForm</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Start automatically after</source>
        <translation>Iniciar automáticamente después de</translation>
    </message>
    <message>
        <source>min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>DPMS off after</source>
        <translation>Apagar la pantalla (DPMS) después de</translation>
    </message>
    <message>
        <source>Wrong password timeout</source>
        <translation>Espera tras contraseña incorrecta</translation>
    </message>
    <message>
        <source>sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Wrong password bell level</source>
        <translation>Volumen del aviso de contraseña incorrecta</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Lock console switching</source>
        <translation>Bloquear el cambio de consola</translation>
    </message>
    <message>
        <source>Lock X Access</source>
        <translation>Bloquear el acceso a X</translation>
    </message>
    <message>
        <source>Start the screensaver when keyboard and mouse are not used</source>
        <translation>Iniciar el salvapantallas cuando no se usan el teclado ni el ratón</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts</source>
        <translation>Minutos sin actividad hasta que se inicia el salvapantallas</translation>
    </message>
    <message>
        <source>Minutes without input until the screensaver starts, from 0 to 999. 0 means never.</source>
        <translation>Minutos sin actividad hasta que se inicia el salvapantallas, de 0 a 999. 0 significa nunca.</translation>
    </message>
    <message>
        <source>Minutes until the locked display is switched off</source>
        <translation>Minutos hasta que se apaga la pantalla bloqueada</translation>
    </message>
    <message>
        <source>DPMS switches the display off to save energy. This is after how many minutes it does so while the screen is locked, from 0 to 999. 0 means never.</source>
        <translation>DPMS apaga la pantalla para ahorrar energía. Aquí se indica tras cuántos minutos lo hace con la pantalla bloqueada, de 0 a 999. 0 significa nunca.</translation>
    </message>
    <message>
        <source>How long the locker waits after a wrong password</source>
        <translation>El tiempo que espera el bloqueo tras una contraseña incorrecta</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password, from 0 to 99. 0 means not at all.</source>
        <translation>Segundos que espera el bloqueo tras una contraseña incorrecta, de 0 a 99. 0 significa nada.</translation>
    </message>
    <message>
        <source>How loud the bell for a wrong password is</source>
        <translation>El volumen del aviso por una contraseña incorrecta</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password in percent, from 0 to 100. 0 is silent.</source>
        <translation>Volumen del aviso por una contraseña incorrecta en por ciento, de 0 a 100. 0 es silencio.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+F1 and the like don&apos;t leave the locked screen</source>
        <translation>Ctrl+Alt+F1 y similares no salen de la pantalla bloqueada</translation>
    </message>
    <message>
        <source>Other programs can&apos;t connect to the locked display</source>
        <translation>Otros programas no pueden conectarse a la pantalla bloqueada</translation>
    </message>
</context>
<context>
    <name>SoundForm</name>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Tema:</translation>
    </message>
    <message>
        <source>Select one of sound themes or None to use internal default sounds</source>
        <translation>Elija un tema de sonido, o ninguno para usar los sonidos internos</translation>
    </message>
    <message>
        <source>Use sounds in window manager</source>
        <translation>Usar sonidos en el gestor de ventanas</translation>
    </message>
    <message>
        <source>Set default sounds for window manager</source>
        <translation>Tomar los sonidos del tema para el gestor de ventanas</translation>
    </message>
    <message>
        <source>From theme</source>
        <translation>Del tema</translation>
    </message>
    <message>
        <source>Clear all sounds for window manager</source>
        <translation>Quitar todos los sonidos del gestor de ventanas</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Events and their sounds</source>
        <translation>Eventos y sus sonidos</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Select sound file for current event in list</source>
        <translation>Elegir el archivo de sonido del evento seleccionado</translation>
    </message>
    <message>
        <source>Select sound file</source>
        <translation>Elegir archivo de sonido</translation>
    </message>
    <message>
        <source>Remove assignment sound file to event</source>
        <translation>Quitar al evento su archivo de sonido</translation>
    </message>
    <message>
        <source>Remove sound file</source>
        <translation>Quitar archivo de sonido</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>Mezclador</translation>
    </message>
    <message>
        <source>Menu Popup</source>
        <translation>Apertura de menú</translation>
    </message>
    <message>
        <source>Menu Command</source>
        <translation>Orden de menú</translation>
    </message>
    <message>
        <source>Open Window</source>
        <translation>Abrir ventana</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Restore Window up</source>
        <translation>Restaurar ventana hacia arriba</translation>
    </message>
    <message>
        <source>Restore Window down</source>
        <translation>Restaurar ventana hacia abajo</translation>
    </message>
    <message>
        <source>Minimize Window</source>
        <translation>Minimizar ventana</translation>
    </message>
    <message>
        <source>Maximize Window</source>
        <translation>Maximizar ventana</translation>
    </message>
    <message>
        <source>System Start</source>
        <translation>Inicio del sistema</translation>
    </message>
    <message>
        <source>System Exit</source>
        <translation>Salida del sistema</translation>
    </message>
    <message>
        <source>System Lock</source>
        <translation>Bloqueo del sistema</translation>
    </message>
    <message>
        <source>Error Dialog</source>
        <translation>Diálogo de error</translation>
    </message>
    <message>
        <source>Forced Tray Message</source>
        <translation>Mensaje urgente de la bandeja</translation>
    </message>
    <message>
        <source>Paging</source>
        <translation>Cambio de escritorio</translation>
    </message>
    <message>
        <source>Choosing a theme takes its sound for every event. Files that you chose yourself stay.</source>
        <translation>Elegir un tema toma su sonido para cada evento. Los archivos que usted eligió se mantienen.</translation>
    </message>
    <message>
        <source>Without it the window manager plays no sound. The assignments are kept.</source>
        <translation>Sin esto el gestor de ventanas no reproduce ningún sonido. Las asignaciones se conservan.</translation>
    </message>
    <message>
        <source>Takes the theme&apos;s sounds for all events, also in place of your own files.</source>
        <translation>Toma los sonidos del tema para todos los eventos, también en lugar de sus propios archivos.</translation>
    </message>
    <message>
        <source>Each event of the window manager with its sound: a file of yours, a built-in file or a sound of the theme. Return chooses a file, Delete removes it. A sound file can be dropped on a row.</source>
        <translation>Cada evento del gestor de ventanas con su sonido: un archivo propio, un archivo interno o un sonido del tema. Intro elige un archivo, Supr lo quita. Se puede soltar un archivo de sonido en una fila.</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <source>No theme</source>
        <translation>Ningún tema</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
Would you like to convert them to wav now?</source>
        <translation>No todos los archivos del tema «%1» están en formato wav
¿Quiere convertirlos a wav ahora?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
You should convert them to wav.</source>
        <translation>No todos los archivos del tema «%1» están en formato wav
Debería convertirlos a wav.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Can&apos;t load sound theme &apos;%1&apos;</source>
        <translation>No se puede cargar el tema de sonido «%1»</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Sounds (*.wav *.au)</source>
        <translation>Sonidos (*.wav *.au)</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is not wav.
Select other theme or conver to wav,
for example ogg/oga to wav by oggdev utility.</source>
        <translation>El archivo «%1» no está en formato wav.
Elija otro tema o conviértalo a wav,
por ejemplo de ogg/oga a wav con la herramienta oggdec.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Program %1 not found</source>
        <translation>No se encuentra el programa %1</translation>
    </message>
    <message>
        <source>Sound &apos;%1&apos; doesn&apos;t exist</source>
        <translation>El sonido «%1» no existe</translation>
    </message>
    <message>
        <source>Can&apos;t start &apos;qasmixer&apos;</source>
        <translation>No se puede iniciar «qasmixer»</translation>
    </message>
    <message>
        <source>Not all files in theme &apos;%1&apos; are in wav format
They can&apos;t be converted: &apos;%2&apos; has to be renamed first.
Blanks, quotation marks, backslashes and control characters are not safe.</source>
        <translation>No todos los archivos del tema «%1» están en formato wav
No se pueden convertir: primero hay que cambiar el nombre de «%2».
Los espacios, las comillas, las barras invertidas y los caracteres de control no son seguros.</translation>
    </message>
</context>
<context>
    <name>ThemeForm</name>
    <message>
        <source>Themes</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Cursors:</source>
        <translation>Cursores:</translation>
    </message>
    <message>
        <source>Select your personal Cursor theme</source>
        <translation>Elija su tema de cursores</translation>
    </message>
    <message>
        <source>Icons:</source>
        <translation>Iconos:</translation>
    </message>
    <message>
        <source>Select your personal Icon theme</source>
        <translation>Elija su tema de iconos</translation>
    </message>
    <message>
        <source>Decor:</source>
        <translation>Decoración:</translation>
    </message>
    <message>
        <source>Select your personal window and taskbar decoration theme</source>
        <translation>Elija su tema de decoración de ventanas y barra de tareas</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>Select item to set color for</source>
        <translation>Elija el elemento cuyo color quiere cambiar</translation>
    </message>
    <message>
        <source>Select main color of item</source>
        <translation>Elegir el color principal del elemento</translation>
    </message>
    <message>
        <source>Main color</source>
        <translation>Color principal</translation>
    </message>
    <message>
        <source>Select end color if gradient fill available for this item</source>
        <translation>Elegir el color final si el elemento admite un degradado</translation>
    </message>
    <message>
        <source>End color</source>
        <translation>Color final</translation>
    </message>
    <message>
        <source>Sizes:</source>
        <translation>Tamaños:</translation>
    </message>
    <message>
        <source>Select item to set size for</source>
        <translation>Elija el elemento cuyo tamaño quiere cambiar</translation>
    </message>
    <message>
        <source>Select size of item</source>
        <translation>Elegir el tamaño del elemento</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>The size of icons on the desktop and the height of the taskbar in pixels. The button beside the list changes the size in view.</source>
        <translation>El tamaño de los iconos del escritorio y la altura de la barra de tareas en píxeles. El botón junto a la lista cambia el tamaño mostrado.</translation>
    </message>
</context>
<context>
    <name>ThemeKeys</name>
    <message>
        <source>Color at the end of the gradient: %1</source>
        <translation>Color al final del degradado: %1</translation>
    </message>
    <message>
        <source>Color: %1</source>
        <translation>Color: %1</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Fuente: %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Sonido: %1</translation>
    </message>
    <message>
        <source>Wallpaper: a file, a name or a color #rrggbb</source>
        <translation>Fondo: un archivo, un nombre o un color #rrggbb</translation>
    </message>
    <message>
        <source>Minutes from one wallpaper of the slide show to the next; 0: none</source>
        <translation>Minutos de una imagen de la presentación a la siguiente; 0: ninguna</translation>
    </message>
    <message>
        <source>Icon theme</source>
        <translation>Tema de iconos</translation>
    </message>
    <message>
        <source>Decoration theme of windows and taskbar; empty: none</source>
        <translation>Tema de decoración de ventanas y barra de tareas; vacío: ninguno</translation>
    </message>
    <message>
        <source>Seconds without input until the screensaver starts; 0: never</source>
        <translation>Segundos sin actividad hasta que empieza el salvapantallas; 0: nunca</translation>
    </message>
    <message>
        <source>Seconds until the locked display is switched off</source>
        <translation>Segundos hasta que se apaga la pantalla bloqueada</translation>
    </message>
    <message>
        <source>Seconds that the locker waits after a wrong password</source>
        <translation>Segundos que espera el bloqueo tras una contraseña incorrecta</translation>
    </message>
    <message>
        <source>Loudness of the bell for a wrong password, in percent</source>
        <translation>Volumen del aviso de contraseña incorrecta, en porcentaje</translation>
    </message>
    <message>
        <source>Program that draws transparency and shadows</source>
        <translation>Programa que dibuja la transparencia y las sombras</translation>
    </message>
    <message>
        <source>Whether that program runs</source>
        <translation>Si ese programa se ejecuta</translation>
    </message>
    <message>
        <source>Size of window thumbnails in pixels; 0: none</source>
        <translation>Tamaño de las miniaturas de ventanas en píxeles; 0: ninguna</translation>
    </message>
    <message>
        <source>Sound theme; empty: none</source>
        <translation>Tema de sonidos; vacío: ninguno</translation>
    </message>
    <message>
        <source>buttons under the pointer</source>
        <translation>botones bajo el puntero</translation>
    </message>
    <message>
        <source>buttons</source>
        <translation>botones</translation>
    </message>
    <message>
        <source>text on buttons under the pointer</source>
        <translation>texto de los botones bajo el puntero</translation>
    </message>
    <message>
        <source>text on buttons</source>
        <translation>texto de los botones</translation>
    </message>
    <message>
        <source>text of the clock in the taskbar</source>
        <translation>texto del reloj en la barra de tareas</translation>
    </message>
    <message>
        <source>what is selected on the desktop</source>
        <translation>lo que está seleccionado en el escritorio</translation>
    </message>
    <message>
        <source>background of the desktop where no wallpaper covers it</source>
        <translation>fondo del escritorio donde no lo cubre ningún fondo de pantalla</translation>
    </message>
    <message>
        <source>background of the desktop&apos;s dialogs</source>
        <translation>fondo de los diálogos del escritorio</translation>
    </message>
    <message>
        <source>text in the desktop&apos;s dialogs</source>
        <translation>texto de los diálogos del escritorio</translation>
    </message>
    <message>
        <source>frame of the active window</source>
        <translation>marco de la ventana activa</translation>
    </message>
    <message>
        <source>frames of the other windows</source>
        <translation>marcos de las demás ventanas</translation>
    </message>
    <message>
        <source>background of icons</source>
        <translation>fondo de los iconos</translation>
    </message>
    <message>
        <source>foreground of icons</source>
        <translation>primer plano de los iconos</translation>
    </message>
    <message>
        <source>text of selected icons</source>
        <translation>texto de los iconos seleccionados</translation>
    </message>
    <message>
        <source>text of icons</source>
        <translation>texto de los iconos</translation>
    </message>
    <message>
        <source>selected entry of a menu</source>
        <translation>entrada seleccionada de un menú</translation>
    </message>
    <message>
        <source>background of menus</source>
        <translation>fondo de los menús</translation>
    </message>
    <message>
        <source>text of the selected entry of a menu</source>
        <translation>texto de la entrada seleccionada de un menú</translation>
    </message>
    <message>
        <source>text in menus</source>
        <translation>texto de los menús</translation>
    </message>
    <message>
        <source>miniature of the active window in the pager</source>
        <translation>miniatura de la ventana activa en el paginador</translation>
    </message>
    <message>
        <source>miniatures of windows in the pager</source>
        <translation>miniaturas de las ventanas en el paginador</translation>
    </message>
    <message>
        <source>desktop in view in the pager</source>
        <translation>escritorio a la vista en el paginador</translation>
    </message>
    <message>
        <source>background of the pager</source>
        <translation>fondo del paginador</translation>
    </message>
    <message>
        <source>logo of the start menu</source>
        <translation>logotipo del menú de inicio</translation>
    </message>
    <message>
        <source>selected window in the task switcher</source>
        <translation>ventana seleccionada en el selector de ventanas</translation>
    </message>
    <message>
        <source>background of the task switcher</source>
        <translation>fondo del selector de ventanas</translation>
    </message>
    <message>
        <source>text in the task switcher</source>
        <translation>texto del selector de ventanas</translation>
    </message>
    <message>
        <source>background of the taskbar</source>
        <translation>fondo de la barra de tareas</translation>
    </message>
    <message>
        <source>title of the active window</source>
        <translation>título de la ventana activa</translation>
    </message>
    <message>
        <source>titles of the other windows</source>
        <translation>títulos de las demás ventanas</translation>
    </message>
    <message>
        <source>title bar of the active window</source>
        <translation>barra de título de la ventana activa</translation>
    </message>
    <message>
        <source>title bars of the other windows</source>
        <translation>barras de título de las demás ventanas</translation>
    </message>
    <message>
        <source>background of tool tips</source>
        <translation>fondo de las ayudas emergentes</translation>
    </message>
    <message>
        <source>text of tool tips</source>
        <translation>texto de las ayudas emergentes</translation>
    </message>
</context>
<context>
    <name>ThemePage</name>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Desktop active</source>
        <translation>Escritorio (activo)</translation>
    </message>
    <message>
        <source>Titlebar</source>
        <translation>Barra de título</translation>
    </message>
    <message>
        <source>Titlebar active</source>
        <translation>Barra de título (activa)</translation>
    </message>
    <message>
        <source>Title string</source>
        <translation>Texto de título</translation>
    </message>
    <message>
        <source>Title string active</source>
        <translation>Texto de título (activo)</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Frame active</source>
        <translation>Marco (activo)</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Paginador</translation>
    </message>
    <message>
        <source>Pager active</source>
        <translation>Paginador (activo)</translation>
    </message>
    <message>
        <source>Pager miniature</source>
        <translation>Miniatura del paginador</translation>
    </message>
    <message>
        <source>Pager miniatire active</source>
        <translation>Miniatura del paginador (activa)</translation>
    </message>
    <message>
        <source>Taskbar</source>
        <translation>Barra de tareas</translation>
    </message>
    <message>
        <source>Clock string</source>
        <translation>Texto del reloj</translation>
    </message>
    <message>
        <source>Icon string</source>
        <translation>Texto de icono</translation>
    </message>
    <message>
        <source>Icon string active</source>
        <translation>Texto de icono (activo)</translation>
    </message>
    <message>
        <source>Icon foreground</source>
        <translation>Primer plano de icono</translation>
    </message>
    <message>
        <source>Icon background</source>
        <translation>Fondo de icono</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Menu active</source>
        <translation>Menú (activo)</translation>
    </message>
    <message>
        <source>Menu string</source>
        <translation>Texto de menú</translation>
    </message>
    <message>
        <source>Menu string active</source>
        <translation>Texto de menú (activo)</translation>
    </message>
    <message>
        <source>Start menu logo</source>
        <translation>Logotipo del menú de inicio</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Diálogo</translation>
    </message>
    <message>
        <source>Dialog string</source>
        <translation>Texto de diálogo</translation>
    </message>
    <message>
        <source>Switcher</source>
        <translation>Selector de ventanas</translation>
    </message>
    <message>
        <source>Switcher active</source>
        <translation>Selector de ventanas (activo)</translation>
    </message>
    <message>
        <source>Switcher string</source>
        <translation>Texto del selector de ventanas</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Button active</source>
        <translation>Botón (activo)</translation>
    </message>
    <message>
        <source>Button string</source>
        <translation>Texto de botón</translation>
    </message>
    <message>
        <source>Button string active</source>
        <translation>Texto de botón (activo)</translation>
    </message>
    <message>
        <source>Tooltip</source>
        <translation>Información emergente</translation>
    </message>
    <message>
        <source>Tooltip string</source>
        <translation>Texto de información emergente</translation>
    </message>
    <message>
        <source>Desktop icon size</source>
        <translation>Tamaño de los iconos del escritorio</translation>
    </message>
    <message>
        <source>Taskbar height</source>
        <translation>Altura de la barra de tareas</translation>
    </message>
    <message>
        <source>No theme</source>
        <translation>Ningún tema</translation>
    </message>
    <message>
        <source>Select size</source>
        <translation>Elegir el tamaño</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The cursor theme &apos;%1&apos; can&apos;t be set.</source>
        <translation>No se puede aplicar el tema de cursores «%1».</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>New cursor theme will be applied to newly started apps</source>
        <translation>El nuevo tema de cursores se aplicará a las aplicaciones que se inicien a partir de ahora</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
</context>
<context>
    <name>WallpaperForm</name>
    <message>
        <source>Wallpapers</source>
        <translation>Fondos</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Wallpaper:</source>
        <translation>Fondo:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Full path to wallpaper file or color as &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ruta del archivo de imagen o color con la forma &amp;quot;#RRGGBB&amp;quot;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>File...</source>
        <translation>Archivo…</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Color…</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posición:</translation>
    </message>
    <message>
        <source>How to fit wallpaper to desktop</source>
        <translation>Cómo ajustar el fondo al escritorio</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrado</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirado</translation>
    </message>
    <message>
        <source>Slide-show:</source>
        <translation>Presentación:</translation>
    </message>
    <message>
        <source>Slide show interval (0 - no slide show)</source>
        <translation>Intervalo de la presentación (0 - sin presentación)</translation>
    </message>
    <message>
        <source>min.</source>
        <translation> min</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Use selected wallpaper for current virtual desktop only,&lt;/p&gt;&lt;p&gt;if multiple virtual desktops available.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Usar el fondo elegido solo para el escritorio virtual actual,&lt;/p&gt;&lt;p&gt;si hay varios escritorios virtuales.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>for current desktop only</source>
        <translation>solo para el escritorio actual</translation>
    </message>
    <message>
        <source>What stands behind all windows: an image file, the name of a wallpaper such as qaz-default, or a color such as #3a6ea5. An empty field means the color that was chosen last. Files and colors can be dropped here.</source>
        <translation>Lo que hay detrás de todas las ventanas: un archivo de imagen, el nombre de un fondo como qaz-default o un color como #3a6ea5. Un campo vacío significa el último color elegido. Aquí se pueden soltar archivos y colores.</translation>
    </message>
    <message>
        <source>Center shows the picture in its own size, Tile repeats it, Stretch makes it fill the screen.</source>
        <translation>«Centrado» muestra la imagen en su tamaño, «Mosaico» la repite, «Estirado» llena con ella la pantalla.</translation>
    </message>
    <message>
        <source>After how many minutes the next picture of the same directory is shown, from 0 to 3600. 0 means that the picture stays.</source>
        <translation>Tras cuántos minutos se muestra la siguiente imagen de la misma carpeta, de 0 a 3600. 0 significa que la imagen no cambia.</translation>
    </message>
    <message>
        <source>Stores the wallpaper for the virtual desktop in view only. Position and slide show belong to all desktops.</source>
        <translation>Guarda el fondo solo para el escritorio virtual a la vista. La posición y la presentación son comunes a todos los escritorios.</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <source>Select wallpaper image file</source>
        <translation>Elegir el archivo de imagen del fondo</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</source>
        <translation>Imágenes (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)</translation>
    </message>
    <message>
        <source>File conversion</source>
        <translation>Conversión de archivo</translation>
    </message>
    <message>
        <source>Selected file &apos;%1&apos; is in svg format
Would you like to convert it to png now?</source>
        <translation>El archivo elegido «%1» está en formato svg
¿Quiere convertirlo a png ahora?</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>El archivo existe</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; already exists
Would you like to rewrite it now?</source>
        <translation>El archivo «%1» ya existe
¿Quiere reemplazarlo ahora?</translation>
    </message>
</context>
</TS>
