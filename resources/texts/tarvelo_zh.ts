<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>讲座已保存</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>录音已丢弃</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>录音已暂停</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>录音已继续</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>录音已开始</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>录音已停止</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>又听到声音了</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>请选择一个副本：缺少的讲座会回来，其他内容不变。</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>%1 发现讲座文件已损坏。该文件已完整另存，所有能读取的内容都已恢复。</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>已找回的讲座：%1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>在许多讲座被一次性删除之前，Tarvelo 会保留全部讲座的副本。</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>现在无法找回讲座。没有任何更改。</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>还没有副本：到目前为止没有讲座被成批删除。</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>没有讲座的录音</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>找回</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>丢弃</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>完成</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>保留</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>试听</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>新建讲座</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>否</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>暂停</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>返回列表</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>显示讲座</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>开始录音</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>插入时间</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>是</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>日历</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>录音</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>查看</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>副本时间</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>讲座</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>现在缺少</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>转到当前月份</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>有讲座</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>按“新建讲座”即可录音。</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>这一天没有讲座</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 音频 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>关闭而不保存</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>保存 (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>点击以更改主题</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>暂停 (空格键)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>暂停 (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>播放 (空格键)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>播放 (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>要删除此讲座及其录音吗？</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>显示的日期</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>已播放时间</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>讲座</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>日期</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>笔记</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>播放位置</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>录音时长</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>录音电平</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>剩余时间</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>速度</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>主题</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo 在保存这节课之前就结束了。您可以把它保留在当天，也可以先试听。如果关闭此窗口，下次启动时会再次询问。</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo 在保存这节课之前就结束了。您可以把它保留在当天。如果关闭此窗口，下次启动时会再次询问。</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>现在无法保留这节课。没有任何内容丢失：下次启动时会再次询问。</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>关于 Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>完整列表</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>找回讲座…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>关闭窗口</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>折叠列表</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>指南</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>帮助</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>主菜单</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>更多程序</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>新建讲座</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>打开 Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>首选项…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>退出</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>显示录音文件夹</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>软件商店中的 Tarvelo</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo 网页</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>此讲座没有音频。</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>下个月</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>在此写笔记</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>讲座主题</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>上个月</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>正在录制讲座</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>磁盘快满了。还可录 %1 分钟</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>磁盘空间还可录 %1 分钟</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>听不到声音。麦克风打开了吗？</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>删除</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>编辑</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>导出到音乐库</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>更多</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>播放</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>通过电子邮件分享</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>显示文件</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>新录音的格式</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>启动与外观</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>登录时打开</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>在任务栏中显示</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>在状态栏中显示</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>启动时显示窗口</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>窗口保持在最前</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>五分之一速度</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>一半速度</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>四分之一速度</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>录制时的速度</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>三分之一速度</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>找回讲座</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>编辑讲座</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>未完成的课程</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>新建讲座</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>讲座</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>首选项</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
