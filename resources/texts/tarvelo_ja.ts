<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>講義を保存しました</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>録音を破棄しました</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>録音を一時停止しました</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>録音を再開しました</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>録音を開始しました</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>録音を停止しました</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>再び音が聞こえています</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>控えを選ぶと、なくなった講義だけが戻り、ほかは変わりません。</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>%1に講義ファイルの破損が見つかりました。ファイルは丸ごと別に保管し、読み取れたものはすべて元に戻しました。</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>復元した講義：%1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>多くの講義が一度に削除される前に、Tarvelo はすべての講義の控えを残します。</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>今は講義を復元できません。何も変更していません。</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>控えはまだありません。まとめて削除された講義はありません。</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>講義のない録音</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>復元</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>破棄</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>完了</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>保存</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>聴く</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>新しい講義</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>いいえ</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>一時停止</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>リストに戻る</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>講義を表示</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>録音を開始</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>時間を挿入</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>はい</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>カレンダー</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>録音</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>表示</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>控えの日時</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>講義</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>失われた数</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>今月に移動</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>講義あり</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>「新しい講義」を押すと録音できます。</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>この日の講義はありません</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 オーディオ (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>保存せずに閉じる</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>保存 (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>クリックして題目を変更</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>一時停止 (Space)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>一時停止 (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>再生 (Space)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>再生 (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>この講義とその録音を削除しますか?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>表示中の日</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>経過時間</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>講義</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>日付</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>メモ</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>再生位置</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>録音時間</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>録音レベル</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>残り時間</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>題目</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>この講義が保存される前に Tarvelo が終了しました。その日の講義として保存するか、先に聴くことができます。このウィンドウを閉じると、次の起動時にもう一度表示されます。</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>この講義が保存される前に Tarvelo が終了しました。その日の講義として保存できます。このウインドウを閉じると、次の起動時にもう一度表示されます。</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>今は講義を保存できません。何も失われていません。次の起動時にもう一度表示されます。</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Tarvelo について</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>すべてのリスト</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>講義を復元…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>リストを折りたたむ</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>ガイド</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>ヘルプ</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>メインメニュー</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>その他のプログラム</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>新しい講義</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo を開く</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>設定…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>録音フォルダーを表示</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>ソフトウェアストアの Tarvelo</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo のウェブページ</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>この講義には音声がありません。</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>次の月</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>ここにメモを書きます</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>講義の題目</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>前の月</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>講義を録音しています</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>ディスクの空きがほとんどありません。残り %1 分</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>ディスクの空きは録音 %1 分ぶんです</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>音が聞こえません。マイクは入っていますか？</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>削除</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>編集</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>ミュージックライブラリに書き出す</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>その他</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>再生</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>メールで共有</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>ファイルを表示</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>新しい録音の形式</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>起動と外観</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>ログイン時に開く</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>タスクバーに表示</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>ステータスバーに表示</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>起動時にウィンドウを表示</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>ウィンドウを手前に表示</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>5 分の 1 の速度</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>半分の速度</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>4 分の 1 の速度</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>録音時の速度</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>3 分の 1 の速度</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>講義を復元</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>講義を編集</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>保存されていない講義</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>新しい講義</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>講義</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
