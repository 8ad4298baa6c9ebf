<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Cours enregistré</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Enregistrement abandonné</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Enregistrement en pause</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Enregistrement repris</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Enregistrement démarré</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Enregistrement arrêté</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Le son est de nouveau capté</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Choisissez une copie : ce qui manque revient, et rien d’autre ne change.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Le fichier des cours était endommagé le %1. Il a été mis de côté en entier, et tout ce qui a pu être lu est de retour.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Cours récupérés : %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Avant que plusieurs cours ne soient supprimés d’un coup, Tarvelo garde une copie de tous les cours.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Les cours ne peuvent pas être récupérés pour le moment. Rien n’a été modifié.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Il n’y a pas encore de copie : jusqu’ici, plusieurs cours n’ont jamais été supprimés d’un coup.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Enregistrements sans cours</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Récupérer</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Abandonner</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Conserver</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Nouveau cours</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Non</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Lire</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Retour à la liste</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Afficher le cours</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Démarrer l’enregistrement</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Insérer le temps</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Oui</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Calendrier</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Afficher</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Copie du</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Cours</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Manquants</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Aller au mois actuel</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Contient des cours</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Appuyez sur « Nouveau cours » pour en enregistrer un.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Aucun cours ce jour-là</translation>
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
        <translation>Fermer sans enregistrer</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Enregistrer (Ctrl+Entrée)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Cliquer pour modifier le sujet</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pause (Espace)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pause (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Lire (Espace)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Lire (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Supprimer ce cours et son enregistrement ?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Jour affiché</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Temps écoulé</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Cours</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Jour</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notes</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Position de lecture</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Durée d’enregistrement</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Niveau d’enregistrement</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Temps restant</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Vitesse</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Sujet</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo s’est terminé avant que ce cours soit enregistré. Conservez-le sous son jour, ou écoutez-le d’abord. Si vous fermez cette fenêtre, le cours sera proposé de nouveau au prochain démarrage.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo s’est terminé avant que ce cours soit enregistré. Conservez-le sous son jour. Si vous fermez cette fenêtre, le cours sera proposé de nouveau au prochain démarrage.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Le cours ne peut pas être conservé maintenant. Rien n’est perdu : il sera proposé de nouveau au prochain démarrage.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>À propos de Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Liste complète</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Récupérer des cours…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Replier la liste</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Guide</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Aide</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Menu principal</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Autres programmes</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Nouveau cours</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Ouvrir Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Préférences…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Quitter</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Afficher le dossier des enregistrements</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo dans la logithèque</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo sur le Web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Ce cours n’a pas d’enregistrement.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Mois suivant</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Écrivez vos notes ici</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Sujet du cours</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Mois précédent</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Un cours est en cours d’enregistrement</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Le disque est presque plein. Minutes restantes : %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Place restante sur le disque : %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>On n’entend rien. Le micro est-il allumé ?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Modifier</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Exporter vers la bibliothèque musicale</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Plus</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Lire</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Envoyer par e-mail</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Afficher le fichier</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Format des nouveaux enregistrements</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Démarrage et apparence</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Afficher dans la barre des tâches</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Afficher dans la barre d’état</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Afficher la fenêtre au démarrage</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Garder la fenêtre au premier plan</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Un cinquième de la vitesse</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Moitié de la vitesse</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Un quart de la vitesse</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Vitesse d’enregistrement</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Un tiers de la vitesse</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Récupérer des cours</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Modifier le cours</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Cours inachevé</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Nouveau cours</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Cours</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Préférences</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
