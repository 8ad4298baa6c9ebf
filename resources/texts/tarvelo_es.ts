<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Clase guardada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Grabación descartada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Grabación en pausa</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Grabación reanudada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Grabación iniciada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Grabación detenida</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Vuelve a oírse sonido</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Elija una copia: lo que falta vuelve y nada más cambia.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>El archivo de las clases estaba dañado el %1. Se apartó entero, y todo lo que pudo leerse está aquí de nuevo.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Clases recuperadas: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Antes de que se eliminen muchas clases a la vez, Tarvelo guarda una copia de todas.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Ahora no se pueden recuperar las clases. No se ha cambiado nada.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Todavía no hay copias: hasta ahora no se han eliminado varias clases a la vez.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Grabaciones sin clase</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Recuperar</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Descartar</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Listo</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Conservar</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Escuchar</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Clase nueva</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pausa</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Volver a la lista</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Mostrar la clase</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Empezar a grabar</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Insertar la hora</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Sí</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Calendario</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Grabar</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Ver</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Copia del</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Clases</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Faltan</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Ir al mes actual</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Tiene clases</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Pulse «Clase nueva» para grabar una.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>No hay clases este día</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>Audio MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Cerrar sin guardar</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Guardar (Ctrl+Intro)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Pulse para cambiar el tema</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pausa (Espacio)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pausa (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Reproducir (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>¿Eliminar esta clase y su grabación?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Día mostrado</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Clases</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Día</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notas</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Posición de reproducción</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Duración de la grabación</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Nivel de grabación</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Tiempo restante</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Velocidad</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Tema</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo terminó antes de que se guardara esta clase. Consérvela en su día o escúchela primero. Si cierra esta ventana, la clase se ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo terminó antes de que se guardara esta clase. Consérvela en su día. Si cierra esta ventana, la clase se ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>La clase no se puede conservar ahora. No se pierde nada: se ofrecerá de nuevo en el próximo inicio.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Acerca de Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Lista completa</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recuperar clases…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Plegar la lista</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Guía</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Ayuda</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Menú principal</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Más programas</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Clase nueva</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Abrir Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Preferencias…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Salir</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Mostrar la carpeta de grabaciones</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo en la tienda de software</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo en la web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Esta clase no tiene audio.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Mes siguiente</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Escriba aquí sus notas</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Tema de la clase</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Mes anterior</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Se está grabando una clase</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>El disco está casi lleno. Minutos restantes: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Espacio libre en el disco: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>No se oye nada. ¿Está encendido el micrófono?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Editar</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Exportar a la biblioteca de música</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Más</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Reproducir</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Enviar por correo</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Mostrar el archivo</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Formato de las grabaciones nuevas</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Inicio y aspecto</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Mostrar en la barra de tareas</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Mostrar en la barra de estado</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Mostrar la ventana al inicio</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Mantener la ventana encima</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Un quinto de la velocidad</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Mitad de la velocidad</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Un cuarto de la velocidad</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Velocidad de grabación</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Un tercio de la velocidad</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recuperar clases</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Editar la clase</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Clase sin terminar</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Clase nueva</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Clase</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Preferencias</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
