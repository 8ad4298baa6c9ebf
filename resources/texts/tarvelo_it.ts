<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Lezione salvata</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Registrazione scartata</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Registrazione in pausa</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Registrazione ripresa</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Registrazione avviata</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Registrazione terminata</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Si sente di nuovo il suono</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Scegli una copia: ciò che manca ritorna e nient’altro cambia.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Il file delle lezioni era danneggiato il %1. È stato messo da parte intero, e tutto ciò che si poteva leggere è di nuovo qui.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Lezioni recuperate: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Prima che molte lezioni vengano eliminate insieme, Tarvelo conserva una copia di tutte.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Ora non è possibile recuperare le lezioni. Nulla è stato modificato.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Non ci sono ancora copie: finora non sono state eliminate più lezioni insieme.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Registrazioni senza lezione</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Recupera</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Scarta</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Fine</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Conserva</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Ascolta</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Nuova lezione</translation>
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
        <translation>Riproduci</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Torna all’elenco</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Mostra la lezione</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Avvia la registrazione</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Inserisci il tempo</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Sì</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Calendario</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Registra</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Mostra</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Copia del</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Lezioni</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Mancanti</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Vai al mese corrente</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Contiene lezioni</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Premi «Nuova lezione» per registrarne una.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Nessuna lezione in questo giorno</translation>
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
        <translation>Chiudi senza salvare</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Salva (Ctrl+Invio)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Fai clic per cambiare l’argomento</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pausa (Spazio)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pausa (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Riproduci (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Eliminare questa lezione e la sua registrazione?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Giorno mostrato</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Tempo trascorso</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Lezioni</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Giorno</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Note</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Posizione di riproduzione</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Durata della registrazione</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Livello di registrazione</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Tempo rimanente</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Velocità</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Argomento</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo è terminato prima che questa lezione fosse salvata. Conservala nel suo giorno, oppure ascoltala prima. Se chiudi questa finestra, la lezione sarà proposta di nuovo al prossimo avvio.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo è terminato prima che questa lezione fosse salvata. Conservala nel suo giorno. Se chiudi questa finestra, la lezione sarà proposta di nuovo al prossimo avvio.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>La lezione non può essere conservata ora. Nulla è perduto: sarà proposta di nuovo al prossimo avvio.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Informazioni su Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Elenco completo</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recupera lezioni…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Chiudi finestra</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Comprimi elenco</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Guida</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Aiuto</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Menu principale</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Altri programmi</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Nuova lezione</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Apri Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Preferenze…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Esci</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Mostra la cartella delle registrazioni</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo nel negozio di software</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo sul web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Questa lezione non ha audio.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Mese successivo</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Scrivi qui le note</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Argomento della lezione</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Mese precedente</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>È in corso la registrazione di una lezione</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Il disco è quasi pieno. Minuti rimasti: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Spazio rimasto sul disco: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Non si sente nulla. Il microfono è acceso?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Modifica</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Esporta nella libreria musicale</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Altro</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Riproduci</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Invia per email</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Mostra il file</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Formato delle nuove registrazioni</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Avvio e aspetto</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Apri all’accesso</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Mostra nella barra delle applicazioni</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Mostra nella barra di stato</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Mostra la finestra all’avvio</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Mantieni la finestra in primo piano</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Un quinto della velocità</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Metà della velocità</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Un quarto della velocità</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Velocità registrata</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Un terzo della velocità</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recupera lezioni</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Modifica lezione</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Lezione non terminata</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Nuova lezione</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Lezione</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Preferenze</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
