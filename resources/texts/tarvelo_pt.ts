<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Aula salva</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Gravação descartada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Gravação em pausa</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Gravação retomada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Gravação iniciada</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Gravação encerrada</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Ouve-se som de novo</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Escolha uma cópia: o que falta volta e nada mais muda.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>O ficheiro das aulas estava danificado em %1. Foi posto de lado inteiro, e tudo o que se pôde ler está aqui de novo.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Aulas recuperadas: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Antes de muitas aulas serem removidas de uma vez, o Tarvelo guarda uma cópia de todas.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Agora não é possível recuperar as aulas. Nada foi alterado.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Ainda não há cópias: até agora não foram removidas várias aulas de uma vez.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Gravações sem aula</translation>
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
        <translation>Fechar</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Excluir</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Descartar</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Concluir</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Ouvir</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Nova aula</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Não</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pausar</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Reproduzir</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Voltar à lista</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Mostrar a aula</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Iniciar gravação</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Inserir o tempo</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Sim</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Calendário</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Gravar</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Ver</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Cópia feita em</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Aulas</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Em falta</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Ir para o mês atual</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Tem aulas</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Clique em «Nova aula» para gravar uma.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Nenhuma aula neste dia</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>Áudio MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Fechar sem salvar</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Salvar (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Clique para alterar o assunto</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pausar (Espaço)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pausar (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Reproduzir (Espaço)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Reproduzir (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Excluir esta aula e a sua gravação?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Dia mostrado</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Tempo decorrido</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Aulas</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Dia</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notas</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Posição de reprodução</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Tempo de gravação</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Nível de gravação</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Tempo restante</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Velocidade</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Assunto</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>O Tarvelo terminou antes de esta aula ser guardada. Guarde-a no seu dia ou ouça-a primeiro. Se fechar esta janela, a aula será apresentada de novo no próximo arranque.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>O Tarvelo terminou antes de esta aula ser guardada. Guarde-a no seu dia. Se fechar esta janela, a aula será apresentada de novo no próximo arranque.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>A aula não pode ser guardada agora. Nada se perdeu: será apresentada de novo no próximo arranque.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Acerca do Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Lista completa</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recuperar aulas…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Fechar janela</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Recolher lista</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Guia</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Ajuda</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Menu principal</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Outros programas</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Nova aula</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Abrir o Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Preferências…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Sair</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Mostrar a pasta de gravações</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo na loja de programas</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo na Web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Esta aula não tem áudio.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Próximo mês</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Escreva as notas aqui</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Assunto da aula</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Mês anterior</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Uma aula está sendo gravada</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>O disco está quase cheio. Minutos restantes: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Espaço livre no disco: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Não se ouve nada. O microfone está ligado?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Excluir</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Editar</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Exportar para a biblioteca de música</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Mais</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Reproduzir</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Enviar por e-mail</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Mostrar o arquivo</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Formato das novas gravações</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Início e aparência</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Mostrar na barra de tarefas</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Mostrar na barra de status</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Mostrar a janela ao iniciar</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Manter a janela por cima</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Um quinto da velocidade</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Metade da velocidade</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Um quarto da velocidade</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Velocidade gravada</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Um terço da velocidade</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Recuperar aulas</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Editar aula</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Aula por terminar</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Nova aula</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Aula</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Preferências</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
