<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>KXConfig</name>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Network &amp;interface:</source>
        <translation>ネットワークインターフェース(&amp;I):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No interface is chosen</source>
        <translation>インターフェース未選択</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>UDP &amp;port:</source>
        <translation>UDP ポート(&amp;P):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Discover</source>
        <translation>検出</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Details…</source>
        <translation>詳細…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Shows every check on the way to the units and back</source>
        <translation>ユニットまでの往復の経路で行った各チェックを表示します</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>U&amp;nit:</source>
        <translation>ユニット(&amp;N):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No units listed</source>
        <translation>ユニットがありません</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Unit I&amp;D:</source>
        <translation>ユニット ID(&amp;D):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/SentenceLabel.cpp"/>
        <source>Unit parameters</source>
        <translation>ユニットのパラメータ</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>No unit is selected</source>
        <translation>ユニットが選択されていません</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Edit parameter</source>
        <translation>パラメータを編集</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Select a parameter to edit it</source>
        <translation>編集するパラメータを選択してください</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Option command:</source>
        <translation>オプションコマンド(&amp;O):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>V  Version</source>
        <translation>V  バージョン</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>-Z  Set clock</source>
        <translation>-Z  時計を設定</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Command text:</source>
        <translation>コマンドテキスト(&amp;C):</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore Defaults</source>
        <translation>工場出荷時設定に戻す</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event Log</source>
        <translation>イベントログ</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Event log text</source>
        <translation>イベントログのテキスト</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Unit</source>
        <translation>ユニット(&amp;U)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Configure from File…</source>
        <translation>ファイルから設定(&amp;C)…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Save Event &amp;Log…</source>
        <translation>イベントログを保存(&amp;L)…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Save Session…</source>
        <translation>セッションを保存(&amp;S)…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Pa&amp;ste</source>
        <translation>貼り付け(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Copy &amp;Value</source>
        <translation>値をコピー(&amp;V)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Copy All Pa&amp;rameters</source>
        <translation>すべてのパラメータをコピー(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/LogTextView_Input.cpp"/>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Find in Event Log…</source>
        <translation>イベントログを検索(&amp;F)…</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Discover</source>
        <translation>検出(&amp;D)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Reload</source>
        <translation>再読み込み(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Send Option Command</source>
        <translation>オプションコマンドを送信(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>Restore De&amp;faults</source>
        <translation>工場出荷時設定に戻す(&amp;F)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;Event Log</source>
        <translation>イベントログ(&amp;E)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>All &amp;Units</source>
        <translation>すべてのユニット(&amp;U)</translation>
    </message>
    <message>
        <location filename="../../Resources/MainWindow.ui"/>
        <source>&amp;About KXConfig</source>
        <translation>KXConfig について(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>No configured interfaces</source>
        <translation>設定済みのインターフェースがありません</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>The pages of the help are not installed.</source>
        <translation>ヘルプのページがインストールされていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate.cpp"/>
        <source>Help could not be opened in a web browser. To read it here, press Alt+Shift+F1.</source>
        <translation>ヘルプをウェブブラウザーで開けませんでした。ここで読むには、Alt+Shift+F1 キーを押してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_DiscoveryLine.cpp"/>
        <source>Did not answer the latest Discover.</source>
        <translation>最新の検出に応答しませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>KXConfig</source>
        <translation>KXConfig</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>Authentication was not completed, some features may not be available.</source>
        <translation>認証が完了していないため、一部の機能を利用できない場合があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXConfigAppDelegate_Editing.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: 1 datagram.</source>
        <translation>セッションを保存しました: データグラム 1 個。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The session was saved: %d datagrams.</source>
        <translation>セッションを保存しました: データグラム %d 個。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Event Log</source>
        <translation>イベントログを保存</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>The event log was saved.</source>
        <translation>イベントログを保存しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Save Session</source>
        <translation>セッションを保存</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>Captures</source>
        <translation>キャプチャー</translation>
    </message>
    <message>
        <location filename="../../Sources/KXSaving.cpp"/>
        <source>“%@” cannot be written: %@. Nothing is lost: save it in another place.</source>
        <translation>「%@」に書き込めません: %@。何も失われていません。別の場所に保存してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Other values that no command brings back: %d.</source>
        <translation>コマンドで元に戻せない値は、ほかに %d 個あります。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Table of Units</source>
        <translation>ユニットの表を選択</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Tables and plans</source>
        <translation>表と計画</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose a Journal</source>
        <translation>ジャーナルを選択</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Journals</source>
        <translation>ジャーナル</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>No network interface can broadcast. It needs a link and an IPv4 address.</source>
        <translation>ブロードキャストできるネットワークインターフェイスがありません。リンクと IPv4 アドレスが必要です。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Choose the network interface on which the units are asked.</source>
        <translation>ユニットに問い合わせるネットワークインターフェイスを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>All of the UDP ports 3520 to 3523 are taken by other programs.</source>
        <translation>UDP ポート 3520 から 3523 はすべて別のプログラムが使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The UDP port cannot be opened: %@.</source>
        <translation>UDP ポートを開けません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun.cpp"/>
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Nothing was sent.</source>
        <translation>何も送信していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The units are not as they were: this is the new plan. Nothing was sent.</source>
        <translation>ユニットの状態が前と異なります。これは新しい計画です。何も送信していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal cannot be written: %@. Nothing was sent.</source>
        <translation>ジャーナルに書き込めません: %@。何も送信していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>The journal could not be written: %@.</source>
        <translation>ジャーナルに書き込めませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Look at the units that are half configured or have fallen silent.</source>
        <translation>設定が途中のユニットや応答しなくなったユニットを確認してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Save Report</source>
        <translation>レポートを保存</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <source>Comma-separated values</source>
        <translation>カンマ区切りの値</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Applying.cpp"/>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>“%@” cannot be written: %@.</source>
        <translation>「%@」に書き込めません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has a fault. Correct it, and choose the file again.</source>
        <translation>ファイルに誤りがあります。修正してから、もう一度ファイルを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>The file has %d faults. Correct them, and choose the file again.</source>
        <translation>ファイルに %d 個の誤りがあります。修正してから、もう一度ファイルを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping. The units under way are finished and read back.</source>
        <translation>停止しています。処理中のユニットは最後まで設定し、値を確認します。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units again.</source>
        <translation>ユニットにもう一度問い合わせています。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Finding out who holds the new addresses.</source>
        <translation>新しいアドレスの使用者を調べています。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Configuring the units.</source>
        <translation>ユニットを設定しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Stopping.</source>
        <translation>停止しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Asking the units. %d have answered.</source>
        <translation>ユニットに問い合わせています。%d 台が応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>The journal is “%@”.</source>
        <translation>ジャーナルは「%@」です。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply keeps a journal in the folder “%@”.</source>
        <translation>「適用」はフォルダー「%@」にジャーナルを残します。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing: lines of the table are wrong, whatever the units answer.</source>
        <translation>「適用」は何も送信しません。ユニットの応答に関係なく、表の行に誤りがあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>Apply sends nothing while lines are refused or without an answer, unless “Keep going” is ticked.</source>
        <translation>拒否された行や応答のない行がある間は、「続行」にチェックマークを付けない限り、「適用」を押しても何も送信されません。</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d, %@: %@</source>
        <translation>%d 行目、%@: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/KXTableRun_Showing.cpp"/>
        <source>%d of %d units</source>
        <translation>%d/%d 台</translation>
    </message>
    <message>
        <location filename="../../Sources/System Configuration/ConfigurationKeys.h"/>
        <source>not available</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: inString is nil</source>
        <translation>HardwareAddressFormatter: inString が nil です</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <source>HardwareAddressFormatter: object could not be allocated</source>
        <translation>HardwareAddressFormatter: オブジェクトを割り当てられませんでした</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddress.cpp"/>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddressFormatter: invalid Ethernet address</source>
        <translation>HardwareAddressFormatter: イーサネットアドレスが無効です</translation>
    </message>
    <message>
        <location filename="../../Sources/addresses/HardwareAddressText.cpp"/>
        <source>HardwareAddress: invalid Ethernet address</source>
        <translation>HardwareAddress: イーサネットアドレスが無効です</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>“%@” is no IPv4 address, such as 192.0.2.41.</source>
        <translation>「%@」は 192.0.2.41 のような IPv4 アドレスではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <source>Somebody holds %@.</source>
        <translation>%@ は使用中です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CheckCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether somebody holds %@ could not be found out.</source>
        <translation>%@ が使用中かどうかわかりませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>An option lacks its value, or a flag has one. See kxctl --help.</source>
        <translation>オプションに値がないか、値を取らないオプションに値があります。kxctl --help を参照してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>The command line cannot be read: %@.</source>
        <translation>コマンドラインを読み取れません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>These are six words. Write the serial number without blanks, 4B5800000001, or in quotation marks.</source>
        <translation>単語が 6 つあります。シリアル番号は空白なしの 4B5800000001 の形で、または引用符で囲んで書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ needs more words: %@.</source>
        <translation>kxctl %@ には引数が足りません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>kxctl %@ does not take the word “%@”.</source>
        <translation>kxctl %@ は引数「%@」を受け付けません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--json and --csv cannot stand together.</source>
        <translation>--json と --csv は同時に指定できません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>--port takes auto, 3520, 3521, 3522 or 3523, not “%@”.</source>
        <translation>--port の値は auto、3520、3521、3522、3523 のいずれかで、「%@」は使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. Did you mean “%@”?</source>
        <translation>コマンド「%@」はありません。「%@」のことですか?</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no command “%@”. See kxctl --help.</source>
        <translation>コマンド「%@」はありません。kxctl --help を参照してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>There is no option “%@” here. See kxctl --help.</source>
        <translation>ここではオプション「%@」は使えません。kxctl --help を参照してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>A command is missing. See kxctl --help.</source>
        <translation>コマンドがありません。kxctl --help を参照してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes a whole number from 1 on, not “%@”.</source>
        <translation>%@ の値は 1 以上の整数で、「%@」は使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandLine.cpp"/>
        <source>%@ takes seconds, such as 2 or 0.5, not “%@”.</source>
        <translation>%@ の値は 2 や 0.5 のような秒数で、「%@」は使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>Standard output cannot be written: %@.</source>
        <translation>標準出力に書き込めません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandOutput.cpp"/>
        <source>The capture is not whole, because it could not be written.</source>
        <translation>書き込みに失敗したため、キャプチャは完全ではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>Several network interfaces can broadcast. Choose one with -i: %@.</source>
        <translation>ブロードキャストできるネットワークインターフェイスが複数あります。-i で選んでください: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>%@ cannot broadcast. It needs a link and an IPv4 address.</source>
        <translation>%@ はブロードキャストできません。リンクと IPv4 アドレスが必要です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>There is no network interface “%@”. There are: %@.</source>
        <translation>ネットワークインターフェイス「%@」はありません。あるのは次のものです: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <source>“%@” may mean: %@.</source>
        <translation>「%@」は次のいずれかを指します: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by another program.</source>
        <translation>UDP ポート %d は別のプログラムが使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is this host&apos;s own address.</source>
        <translation>%@ はこのホスト自身のアドレスです。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is the address of a whole network.</source>
        <translation>%@ はネットワーク全体のアドレスです。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ lies in no network of the interface.</source>
        <translation>%@ はインターフェイスのどのネットワークにも属していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandRun.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Interrupted.</source>
        <translation>中断しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not answer.</source>
        <translation>ユニット %@ は応答しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units answer as %@: %@.</source>
        <translation>複数のユニットが %@ として応答しています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the address of the unit %@.</source>
        <translation>別のユニットがユニット %@ と同じアドレスを使っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>“%@” names no unit. Write a serial number of six pairs of digits, such as 4B5800000001, or id:TEXT.</source>
        <translation>「%@」はユニットの名前ではありません。4B5800000001 のような 6 組の数字のシリアル番号か、id:TEXT を書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered.</source>
        <translation>応答したユニットはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <source>Another unit has the serial number %@: %@.</source>
        <translation>別のユニットがシリアル番号 %@ を持っています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CommandUnits.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ tells an address of many as its own: %@.</source>
        <translation>ユニット %@ は多数宛てのアドレスを自分のものとしています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/CompareCommand.cpp"/>
        <source>Nothing differs from “%@”: %d the same.</source>
        <translation>「%@」との違いはありません: 同じもの %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiagnoseCommand.cpp"/>
        <source>“%@” names no unit and is no IPv4 address. Write a serial number such as 4B5800000001, id:TEXT, or 192.0.2.41.</source>
        <translation>「%@」はユニットの名前でも IPv4 アドレスでもありません。4B5800000001 のようなシリアル番号、id:TEXT、または 192.0.2.41 のように書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d requests in that time follow each other too closely. They need 0.01 seconds each.</source>
        <translation>その時間に %d 回の要求では間隔が短すぎます。1 回につき 0.01 秒が必要です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Several units have the address %@: %@.</source>
        <translation>複数のユニットがアドレス %@ を使っています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>Several units have the serial number %@: %@.</source>
        <translation>複数のユニットのシリアル番号が %@ です: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system had no room for %d datagrams. Units may be missing.</source>
        <translation>システムに %d 個のデータグラムを保持する余地がありませんでした。ユニットが欠けている可能性があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>“%@” stays as it is, because no unit has answered.</source>
        <translation>応答したユニットがないため、「%@」はそのままにします。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/DiscoverCommand.cpp"/>
        <source>%d of %d units have answered.</source>
        <translation>応答したユニット: %d、期待した数: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/InterfacesCommand.cpp"/>
        <source>The system tells no network interfaces.</source>
        <translation>システムからネットワークインターフェイスの情報が得られません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/JournalFiles.cpp"/>
        <source>“%@” is the journal of a run that has ended. Name another file.</source>
        <translation>「%@」は終了した実行のジャーナルです。別のファイルを指定してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write a text or --clock, not both.</source>
        <translation>テキストと --clock はどちらか一方だけを書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>Write the text of the option command, or --clock.</source>
        <translation>オプションコマンドのテキストか --clock を書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>“%@” has other characters than ASCII.</source>
        <translation>「%@」に ASCII 以外の文字が含まれています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/OptionCommand.cpp"/>
        <source>The unit %@ has not answered the option command.</source>
        <translation>ユニット %@ はオプションコマンドに応答しませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/PlanReport.cpp"/>
        <source>Other lines that are not done: %d.</source>
        <translation>完了していない他の行: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit. --everyone restores all that hear the command.</source>
        <translation>ユニットを指定してください。--everyone は、コマンドを受け取るすべてのユニットを復元します。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Name a unit, or write --everyone, not both.</source>
        <translation>ユニットの指定と --everyone はどちらか一方だけを書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nobody can be asked here. Write --yes if this is meant.</source>
        <translation>ここでは確認を求められません。本当に実行する場合は --yes を書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Nothing was restored.</source>
        <translation>何も復元していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Restore the factory settings of the unit %@? (y/n)</source>
        <translation>ユニット %@ を工場出荷時の設定に戻しますか? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>%d units answer. Others that hear the command are restored too.</source>
        <translation>%d 台のユニットが応答しています。コマンドを受け取るほかのユニットも復元されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>Type the number of units to restore the factory settings of all:</source>
        <translation>すべてを工場出荷時の設定に戻すには、ユニットの数を入力してください:</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has not answered since the command.</source>
        <translation>ユニット %@ はコマンドの後に応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RestoreCommand.cpp"/>
        <source>The unit %@ shows the old values and has not acknowledged the command.</source>
        <translation>ユニット %@ は以前の値のままで、コマンドの確認応答もありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. %@</source>
        <translation>「%@」は拒否されました。%@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/RowsFile.cpp"/>
        <source>“%@” is refused. It has %d faults, the first one: %@</source>
        <translation>「%@」は拒否されました。誤りが %d 件あります。最初の誤り: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is damaged.</source>
        <translation>「%@」は壊れています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” is no saved discovery. “kxctl discover --save FILE” writes one.</source>
        <translation>「%@」は保存された検出ではありません。「kxctl discover --save FILE」で保存できます。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” has the format of another version of kxctl.</source>
        <translation>「%@」は別の版の kxctl の形式です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>“%@” tells of a discovery that could not ask anybody.</source>
        <translation>「%@」は、どこにも問い合わせられなかった検出です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <location filename="../../Sources/words/TableFileText.cpp"/>
        <source>“%@” cannot be read: %@.</source>
        <translation>「%@」を読み取れません: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because datagrams were dropped.</source>
        <translation>「%@」のうち応答していないユニット: %d。データグラムが破棄されたため、ないとは判断しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because the discovery was not complete.</source>
        <translation>「%@」のうち応答していないユニット: %d。検出が完全ではなかったため、ないとは判断しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units of “%@” that have not answered: %d. They are not called missing, because they could not be asked at their last addresses.</source>
        <translation>「%@」のうち応答していないユニット: %d。最後のアドレスに問い合わせられなかったため、ないとは判断しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>Units that are not in “%@”: %d. They are not called missing, because that discovery was not complete.</source>
        <translation>「%@」に含まれないユニット: %d。その検出が完全ではなかったため、ないとは判断しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The discovery in “%@” was not complete, so a unit that is called new may have been there.</source>
        <translation>「%@」の検出は完全ではなかったため、新しいとされるユニットが前からあった可能性があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SavedComparison.cpp"/>
        <source>The units differ from “%@”: %d new, %d missing, %d changed, %d the same.</source>
        <translation>ユニットは「%@」と異なります: 新規 %d、なし %d、変更 %d、同じ %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it reaches many hosts.</source>
        <translation>多数宛てなので、ユニットには使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is refused without --loose. The window says of its value: %@</source>
        <translation>%@ は --loose がないため拒否されました。この値についてウィンドウは次のように示します: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>“%@” is not NAME=VALUE with the name of a parameter. See kxctl set --help.</source>
        <translation>「%@」はパラメーター名を使った NAME=VALUE の形ではありません。kxctl set --help を参照してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ has no value.</source>
        <translation>%@ に値がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ is not a text in UTF-8.</source>
        <translation>%@ の値は UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The value of %@ does not fit into a command.</source>
        <translation>%@ の値はコマンドに入りません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>%@ is there twice.</source>
        <translation>%@ が 2 回書かれています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>kxctl needs no question when root runs it.</source>
        <translation>root で実行すれば、kxctl は確認なしで動きます。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows %@, but %@ answers ARP requests for it.</source>
        <translation>ユニット %@ は %@ を示していますが、%@ がその ARP 要求に応答しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>Whether the unit itself answers ARP requests for %@ could not be found out.</source>
        <translation>%@ への ARP 要求にユニット自身が応答しているかどうかは分かりませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit shows %@ but does not answer ARP requests for it.</source>
        <translation>ユニットは %@ を示していますが、その ARP 要求に応答しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by %@.</source>
        <translation>%@ は %@ が使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ has taken some of the values and not others.</source>
        <translation>ユニット %@ は一部の値だけを受け入れました。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows the old value.</source>
        <translation>ユニット %@ は以前の値のままです。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <source>The unit %@ shows another value.</source>
        <translation>ユニット %@ は別の値を示しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/SetCommand.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another unit answers with the same serial number.</source>
        <translation>別のユニットが同じシリアル番号で応答しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all.</source>
        <translation>ユニットを指定するか、--all を書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/ShowCommand.cpp"/>
        <source>Name units, or write --all, not both.</source>
        <translation>ユニットの指定と --all はどちらか一方だけを書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>%@ takes a number up to %d.</source>
        <translation>%@ の値は %d までの数です。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Change %d units, %d parameters in all? (y/n)</source>
        <translation>%d 台のユニット、合計 %d 個のパラメーターを変更しますか? (y/n)</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/TableRun.cpp"/>
        <source>Nothing was changed.</source>
        <translation>何も変更されていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>--every takes 0.1 seconds or more: every unit answers each time.</source>
        <translation>--every の値は 0.1 秒以上です。毎回すべてのユニットが応答します。</translation>
    </message>
    <message>
        <location filename="../../Sources/commands/WatchCommand.cpp"/>
        <source>%d of %d units are there.</source>
        <translation>今あるユニット: %d、期待した数: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>A check of Details, not in the event log</source>
        <translation>詳細の確認（イベントログには記録されません）</translation>
    </message>
    <message>
        <location filename="../../Sources/kxconfig.cpp"/>
        <source>Configure from File, not in the event log</source>
        <translation>ファイルから設定（イベントログには記録されません）</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ARPTool.cpp"/>
        <source>The ARP tool gets no text that begins with “-”.</source>
        <translation>「-」で始まるテキストは ARP ツールに渡されません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Ethernet</source>
        <translation>イーサネット</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bridge</source>
        <translation>ブリッジ</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>VLAN</source>
        <translation>VLAN</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Bond</source>
        <translation>ボンディング</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>PPP</source>
        <translation>PPP</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/ConfigurationRecords.cpp"/>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <location filename="../../Sources/platform/linux/PolkitCheck.cpp"/>
        <source>Waiting for administrator rights.</source>
        <translation>管理者権限を待っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/linux/LinuxAuthorizationReference.cpp"/>
        <source>Waiting for the tool that has administrator rights.</source>
        <translation>管理者権限を持つツールを待っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>About KXConfig</source>
        <translation>KXConfig について</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>KXConfig %@</source>
        <translation>KXConfig %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Finds and configures small networked units over UDP.</source>
        <translation>ネットワーク上の小型ユニットを UDP で検出して設定します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AboutBox.cpp"/>
        <source>Qt %@</source>
        <translation>Qt %@</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Ascending</source>
        <translation>昇順で並べ替え(&amp;A)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Sort &amp;Descending</source>
        <translation>降順で並べ替え(&amp;D)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Left</source>
        <translation>列を左へ移動(&amp;L)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsView.cpp"/>
        <source>Move Column &amp;Right</source>
        <translation>列を右へ移動(&amp;R)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>All Units</source>
        <translation>すべてのユニット</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Filter:</source>
        <translation>フィルター(&amp;F):</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Any part of a shown value</source>
        <translation>表示されている値の一部</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Export…</source>
        <translation>書き出す(&amp;E)…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>&amp;Show in Main Window</source>
        <translation>メインウィンドウに表示(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit has answered yet. Press Discover in the main window.</source>
        <translation>まだどのユニットも応答していません。メインウィンドウで「検出」を押してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>No unit contains the text of the filter.</source>
        <translation>フィルターの文字を含むユニットはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit, %d shown</source>
        <translation>1 台のユニット、%d 台を表示</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units, %d shown</source>
        <translation>%d 台のユニット、%d 台を表示</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit</source>
        <translation>1 台のユニット</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units</source>
        <translation>%d 台のユニット</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>More have answered; those that were heard last are listed.</source>
        <translation>ほかにも応答がありましたが、最後に受信したものだけを表示しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Comma-separated values (*.csv)</source>
        <translation>カンマ区切りの値 (*.csv)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>Export Units</source>
        <translation>ユニットの書き出し</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>1 unit is written to “%@”.</source>
        <translation>1 台のユニットを「%@」に書き込みました。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AllUnitsWindow.cpp"/>
        <source>%d units are written to “%@”.</source>
        <translation>%d 台のユニットを「%@」に書き込みました。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/AnnouncedLabel.cpp"/>
        <source>Attention:</source>
        <translation>注意:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Ask Again</source>
        <translation>もう一度問い合わせる</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Why no unit answers</source>
        <translation>ユニットが応答しない理由</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Checks</source>
        <translation>チェック</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Check</source>
        <translation>チェック項目</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What was seen</source>
        <translation>確認されたこと</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>What to do</source>
        <translation>対処方法</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Asking. This takes a second, or three where nobody answers for an address.</source>
        <translation>問い合わせ中です。1 秒、アドレスに誰も応答しない場合は 3 秒かかります。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>Units answer, and no check fails.</source>
        <translation>ユニットが応答し、失敗したチェックはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/DiagnosisWindow.cpp"/>
        <source>No cause was found.</source>
        <translation>原因は見つかりませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find:</source>
        <translation>検索:</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Previous</source>
        <translation>前を検索</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>Find Next</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the beginning</source>
        <translation>先頭から検索しました</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>From the end</source>
        <translation>末尾から検索しました</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches or more</source>
        <translation>%d 件以上</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>1 match</source>
        <translation>1 件</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FindBar.cpp"/>
        <source>%d matches</source>
        <translation>%d 件</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Keep going past lines that are refused or that fail</source>
        <translation>拒否された行や失敗した行があっても続行(&amp;K)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Configure from File</source>
        <translation>ファイルから設定</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Plan</source>
        <translation>計画</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;File…</source>
        <translation>ファイルを選択(&amp;F)…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose &amp;Journal…</source>
        <translation>ジャーナルを選択(&amp;J)…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes the run of a journal back.</source>
        <translation>ジャーナルの内容を元に戻す計画を作ります。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>None chosen</source>
        <translation>未選択</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Re&amp;vert</source>
        <translation>元に戻す(&amp;V)</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the plan that takes this run back. Apply then carries it out.</source>
        <translation>今回の変更を元に戻す計画を作ります。その後「適用」で実行します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Save &amp;Report…</source>
        <translation>レポートを保存(&amp;R)…</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Reads a table of units or a kept plan, and asks the units.</source>
        <translation>ユニットの表または保存した計画を読み込み、ユニットに問い合わせます。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asks the units again, and makes the plan anew.</source>
        <translation>ユニットにもう一度問い合わせ、計画を作り直します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Makes the units show what the plan wants.</source>
        <translation>ユニットを計画どおりの値に設定します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Finishes the units under way, and begins no other.</source>
        <translation>処理中のユニットを最後まで設定し、ほかのユニットを始めません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Writes the table with what became of each line.</source>
        <translation>各行の結果を加えた表を書き出します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Opens the help.</source>
        <translation>ヘルプを開きます。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Closes the window.</source>
        <translation>ウィンドウを閉じます。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Choose a table of units: comma-separated values with a column “serial” and one for each parameter that is to change.</source>
        <translation>ユニットの表を選んでください。「serial」の列と、変更するパラメータごとの列を持つ、カンマ区切りのファイルです。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units of the file were not asked.</source>
        <translation>ファイルのユニットには問い合わせていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Asking the units.</source>
        <translation>ユニットに問い合わせています。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The file names no unit.</source>
        <translation>ファイルにユニットがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Units are being configured. Stop?</source>
        <translation>ユニットを設定しています。停止しますか?</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>The units under way are finished and read back. The others stay as they are.</source>
        <translation>処理中のユニットは最後まで設定し、値を確認します。ほかのユニットはそのままです。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/FromFileWindow.cpp"/>
        <source>Go On</source>
        <translation>続ける</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Help text</source>
        <translation>ヘルプのテキスト</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/HelpViewer.cpp"/>
        <source>Find in this page</source>
        <translation>このページ内を検索</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Parameter</source>
        <translation>パラメータ</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow.cpp"/>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Finds the units on the chosen interface.</source>
        <translation>選択したインターフェース上のユニットを探します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the value in the edit row to the unit.</source>
        <translation>編集行の値をユニットに送信します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Sends the command text to the unit.</source>
        <translation>コマンドの文字列をユニットに送信します。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Shows or hides the event log.</source>
        <translation>イベントログを表示または非表示にします。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/MainWindow_Speech.cpp"/>
        <source>Return ends the typing. To apply it, press %@.</source>
        <translation>Return は入力を終えるだけです。適用するには %@ を押してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtHelpServices.cpp"/>
        <source>KXConfig Help</source>
        <translation>KXConfig ヘルプ</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/QtOpenPanel.cpp"/>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <location filename="../../Sources/platform/qt/WaitingPanel.cpp"/>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host has no IPv4 address that can be reached.</source>
        <translation>ホストには到達可能な IPv4 アドレスがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The host name could not be resolved.</source>
        <translation>ホスト名を解決できませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/support/Error.cpp"/>
        <source>The operation could not be completed (%@ error %d).</source>
        <translation>操作を完了できませんでした (%@ エラー %d)。</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work</source>
        <translation>勤務先</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home</source>
        <translation>自宅</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>iPhone</source>
        <translation>iPhone</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>mobile</source>
        <translation>携帯</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>main</source>
        <translation>代表</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>home fax</source>
        <translation>自宅 FAX</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>work fax</source>
        <translation>勤務先 FAX</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>pager</source>
        <translation>ポケベル</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <location filename="../../Sources/support/LabelledNames.cpp"/>
        <source>vacation</source>
        <translation>休暇</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address</source>
        <translation>宛先 IP アドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination IP address %@</source>
        <translation>宛先 IP アドレス %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address</source>
        <translation>宛先 MAC アドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination MAC address %@</source>
        <translation>宛先 MAC アドレス %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination Port number</source>
        <translation>宛先ポート番号</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>destination port %@</source>
        <translation>宛先ポート %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device Port number</source>
        <translation>ユニットのポート番号</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>device port %@</source>
        <translation>ユニットのポート %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address</source>
        <translation>内部 IP アドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal IP address %@</source>
        <translation>内部 IP アドレス %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address</source>
        <translation>内部 MAC アドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>internal MAC address %@</source>
        <translation>内部 MAC アドレス %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>serial number %@</source>
        <translation>シリアル番号 %@</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID</source>
        <translation>ユニット ID</translation>
    </message>
    <message>
        <location filename="../../Sources/units/UnitParameter.h"/>
        <source>unit ID %@</source>
        <translation>ユニット ID %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ carries datagrams.</source>
        <translation>インターフェース %@ はデータグラムを運んでいます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The interface %@ cannot broadcast.</source>
        <translation>インターフェース %@ はブロードキャストできません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There is none.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers are expected on UDP port %d.</source>
        <translation>応答は UDP ポート %d で待っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>The UDP listener is not running.</source>
        <translation>UDP リスナーが動作していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The request left.</source>
        <translation>要求は送信されました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes lead to the units by this interface.</source>
        <translation>経路はこのインターフェースを通ってユニットに至ります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The routes to a part of the network lead elsewhere.</source>
        <translation>ネットワークの一部への経路が別の場所に向いています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer hears its own broadcast on UDP port %d.</source>
        <translation>コンピューターは UDP ポート %d で自分のブロードキャストを受信しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The computer does not hear its own broadcast on UDP port %d. Datagrams that were taken away meanwhile: %d.</source>
        <translation>コンピューターは UDP ポート %d で自分のブロードキャストを受信していません。その間に取り除かれたデータグラム: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is off.</source>
        <translation>フィルターはオフです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The filter is on. Datagrams that it took away meanwhile: %d.</source>
        <translation>フィルターはオンです。その間に取り除いたデータグラム: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered: %d.</source>
        <translation>応答したユニット: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answer now: %d.</source>
        <translation>現在応答しているユニット: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers that are not understood: %d. Other datagrams: %d.</source>
        <translation>理解できない応答: %d。その他のデータグラム: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ answers.</source>
        <translation>%@ は応答しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>%@ does not answer.</source>
        <translation>%@ は応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>IPv4 address</source>
        <translation>IPv4 アドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>UDP port</source>
        <translation>UDP ポート</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Request</source>
        <translation>要求</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Routes</source>
        <translation>経路</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Own broadcast</source>
        <translation>自分のブロードキャスト</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers</source>
        <translation>応答</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Strange answers</source>
        <translation>不明な応答</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped datagrams</source>
        <translation>破棄されたデータグラム</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Answers on other ports</source>
        <translation>他のポートへの応答</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units of other networks</source>
        <translation>他のネットワークのユニット</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Reverse path filter</source>
        <translation>逆方向パスフィルター</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Doubled addresses</source>
        <translation>重複したアドレス</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fixed ARP entries</source>
        <translation>固定 ARP エントリ</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>The unit itself</source>
        <translation>ユニット自体</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fine</source>
        <translation>正常</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Odd</source>
        <translation>要確認</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Fails</source>
        <translation>失敗</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>It was not asked.</source>
        <translation>問い合わせていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Dropped before they were read: %d.</source>
        <translation>読み取り前に破棄: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Units that answered there: %d.</source>
        <translation>そこに応答したユニット: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>None answered.</source>
        <translation>応答したものはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>There are none.</source>
        <translation>ありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisCheckText.cpp"/>
        <source>Entries that name another hardware address: %d.</source>
        <translation>別のハードウェアアドレスを示すエントリ: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>This computer has no network interface that reaches units.</source>
        <translation>このコンピューターにはユニットに届くネットワークインターフェースがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no link.</source>
        <translation>インターフェース %@ にリンクがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by %@ (process %d).</source>
        <translation>UDP ポート %d は %@ (プロセス %d) が使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>UDP port %d is taken by a program of the user %@.</source>
        <translation>UDP ポート %d はユーザー %@ のプログラムが使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to %@.</source>
        <translation>このコンピューターには %@ への経路がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No route of this computer leads to the units behind the interface %@.</source>
        <translation>このコンピューターにはインターフェース %@ の先にあるユニットへの経路がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ answers to UDP port %d, and not to the one that asks.</source>
        <translation>ユニット %@ は問い合わせ元ではなく UDP ポート %d に応答しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Units answer from another network than that of the interface %@.</source>
        <translation>インターフェース %@ とは別のネットワークからユニットが応答しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ takes no request to %@, so its network is another one.</source>
        <translation>ユニット %@ は %@ への要求を受け付けないため、別のネットワークに属しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The unit %@ is at %@, which is not in the network of the interface %@.</source>
        <translation>ユニット %@ のアドレスは %@ で、インターフェース %@ のネットワークにありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Another host than the unit answers for %@: %@.</source>
        <translation>ユニット以外のホストが %@ に応答しています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, but the unit there is %@.</source>
        <translation>固定 ARP エントリでは %@ は %@ ですが、そこにあるユニットは %@ です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A fixed ARP entry says that %@ is %@, and nobody answers there.</source>
        <translation>固定 ARP エントリでは %@ は %@ ですが、そこでは何も応答しません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>%@ says that %@ cannot be reached.</source>
        <translation>%@ によると、%@ には到達できません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>No host answers for the address %@.</source>
        <translation>アドレス %@ に応答するホストがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo firewall-cmd --add-port=%d/udp</source>
        <translation>応答を許可してください: sudo firewall-cmd --add-port=%d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let the answers in: sudo ufw allow %d/udp</source>
        <translation>応答を許可してください: sudo ufw allow %d/udp</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Let UDP to port %d in, in the rules of the firewall.</source>
        <translation>ファイアウォールの規則で、ポート %d への UDP を許可してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Take the entry out: sudo arp -d %@</source>
        <translation>エントリを削除してください: sudo arp -d %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The interface %@ has no IPv4 address.</source>
        <translation>インターフェース %@ に IPv4 アドレスがありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The system refuses to send the request: %@.</source>
        <translation>システムが要求の送信を拒否しています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers in to UDP port %d.</source>
        <translation>このコンピューターのファイアウォールが UDP ポート %d への応答を通していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>A firewall on this computer lets no answers to a broadcast in to UDP port %d, only those to single requests.</source>
        <translation>このコンピューターのファイアウォールはブロードキャストへの応答を UDP ポート %d に通さず、個別の要求への応答だけを通しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The reverse path filter of the interface %@ takes the answers away.</source>
        <translation>インターフェース %@ の逆方向パスフィルターが応答を取り除いています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The host %@ is there, but nothing reads its UDP port %d.</source>
        <translation>ホスト %@ は存在しますが、UDP ポート %d を受け付けていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Something answers, but not as a unit does.</source>
        <translation>何かが応答していますが、ユニットの応答ではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back from %@.</source>
        <translation>要求は送信されましたが、%@ から何も返ってきませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>The request left, and nothing came back.</source>
        <translation>要求は送信されましたが、何も返ってきませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Plug in the cable, switch the interface on, and look whether something is switched on at the other end.</source>
        <translation>ケーブルを差し込み、インターフェースを有効にし、相手側の機器の電源を確認してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units.</source>
        <translation>インターフェースにユニットのネットワークのアドレスを設定してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Quit that program, or choose another UDP port.</source>
        <translation>そのプログラムを終了するか、別の UDP ポートを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look for a firewall rule on this computer that stops datagrams to UDP port 3520.</source>
        <translation>UDP ポート 3520 宛てのデータグラムを止めるファイアウォールの規則がこのコンピューターにないか調べてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit, or add a route.</source>
        <translation>インターフェースにユニットのネットワークのアドレスを設定するか、経路を追加してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the units, or take out the route that leads elsewhere. The filter is the setting net.ipv4.conf.%@.rp_filter.</source>
        <translation>インターフェースにユニットのネットワークのアドレスを設定するか、別の場所に向かう経路を削除してください。フィルターの設定は net.ipv4.conf.%@.rp_filter です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Choose that UDP port, or change the unit’s destination port.</source>
        <translation>その UDP ポートを選ぶか、ユニットの宛先ポート番号を変更してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Give the interface an address in the network of the unit as its first one, or change the unit’s address.</source>
        <translation>インターフェースの最初のアドレスとしてユニットのネットワークのアドレスを設定するか、ユニットのアドレスを変更してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Disconnect one of them, and give the other one another address.</source>
        <translation>一方を切り離し、もう一方に別のアドレスを設定してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Allow a larger receive buffer. Help says how.</source>
        <translation>より大きな受信バッファーを許可してください。方法はヘルプにあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether this is a unit, and which device port it has.</source>
        <translation>それがユニットかどうか、またユニットのポート番号を確認してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether the address is right.</source>
        <translation>ユニットの電源とケーブル、およびアドレスが正しいかを確認してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Find out what it is. The event log shows what came.</source>
        <translation>それが何かを調べてください。届いた内容はイベントログにあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiagnosisText.cpp"/>
        <source>Look whether the unit has power and its cable, and whether a router or a switch with separated ports stands in between.</source>
        <translation>ユニットの電源とケーブル、および間にルーターやポートを分離したスイッチがないかを確認してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Port %d is taken by another program. Choose another port.</source>
        <translation>ポート %d は別のプログラムが使用しています。別のポートを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@</source>
        <translation>要求は送信されませんでした: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No request was sent: %@.</source>
        <translation>要求は送信されませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: no unit has answered yet</source>
        <translation>%@ のポート %d に問い合わせ中: 応答したユニットはまだありません</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: 1 unit answered</source>
        <translation>%@ のポート %d に問い合わせ中: 1 台が応答</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>Asking %@, port %d: %d units answered</source>
        <translation>%@ のポート %d に問い合わせ中: %d 台が応答</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No interface is chosen: asked %@.</source>
        <translation>インターフェースが選ばれていません: %@ に問い合わせました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The one listed answered earlier.</source>
        <translation>一覧の 1 台は以前に応答したものです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>The %d listed answered earlier.</source>
        <translation>一覧の %d 台は以前に応答したものです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>No unit answered.</source>
        <translation>応答したユニットはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered late. Discover again to list it.</source>
        <translation>1 台の応答が遅れました。もう一度検出すると一覧に表示されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered late. Discover again to list them.</source>
        <translation>%d 台の応答が遅れました。もう一度検出すると一覧に表示されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d of the %d listed answered.</source>
        <translation>%d 台が応答しました (一覧は %d 台)。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>1 unit answered.</source>
        <translation>1 台が応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d units answered.</source>
        <translation>%d 台が応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answered last time and not now.</source>
        <translation>%@ は前回応答し、今回は応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answered last time and not now.</source>
        <translation>%d 台は前回応答し、今回は応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ is new.</source>
        <translation>%@ は新しいユニットです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d are new.</source>
        <translation>%d 台は新しいユニットです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ has changed.</source>
        <translation>%@ は変わりました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d have changed.</source>
        <translation>%d 台は変わりました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%@ answers again.</source>
        <translation>%@ が再び応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DiscoveryLine.cpp"/>
        <source>%d answer again.</source>
        <translation>%d 台が再び応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/DocumentFaultText.cpp"/>
        <source>“%@” is another kind of file than the one that is wanted.</source>
        <translation>「%@」は必要な種類のファイルではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@.</source>
        <translation>「適用」を押すと %@ を送信します: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because that is how “%@” is read.</source>
        <translation>「適用」を押すと %@ を送信します: %@（「%@」はこのように読み取られるため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and nothing else but colons.</source>
        <translation>「適用」を押すと %@ を送信します。ただし、MAC アドレスは 12 桁の 16 進数で、コロン以外の文字は含みません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a MAC address has 12 hexadecimal digits and this has %d.</source>
        <translation>「適用」を押すと %@ を送信します。ただし、MAC アドレスは 12 桁の 16 進数ですが、これは %d 桁です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and nothing else but blanks.</source>
        <translation>「適用」を押すと %@ を送信します。ただし、シリアル番号は 12 桁の 16 進数で、空白以外の文字は含みません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, though a serial number has 12 hexadecimal digits and this has %d.</source>
        <translation>「適用」を押すと %@ を送信します。ただし、シリアル番号は 12 桁の 16 進数ですが、これは %d 桁です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: serial number %@, which another unit has.</source>
        <translation>「適用」を押すと %@ を送信します: シリアル番号 %@（別のユニットが使用しています）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” is not an IPv4 address.</source>
        <translation>「適用」を押すと %@ を送信します: %@（「%@」は IPv4 アドレスではないため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because “%@” does not begin with a number.</source>
        <translation>「適用」を押すと %@ を送信します: %@（「%@」は数字で始まっていないため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: %@, because %@ is outside 3520 to 3523.</source>
        <translation>「適用」を押すと %@ を送信します: %@（%@ は 3520～3523 の範囲外のため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@, more than the four digits of a port, because %@ is outside 0 to 65535.</source>
        <translation>「適用」を押すと %@ を送信します。%@ は 0～65535 の範囲外のため、ポートの 4 桁を超えています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, which does not show as a number because it is above 255.</source>
        <translation>「適用」を押すと %@ を送信します: 数値 %@（255 を超えるため、数値としては表示されません）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the number %@, because that is how “%@” is read. Above 255 it does not show as a number.</source>
        <translation>「適用」を押すと %@ を送信します: 数値 %@（「%@」はこのように読み取られるため）。255 を超えると数値としては表示されません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has %d.</source>
        <translation>「適用」を押すと %@ を送信します: テキスト「%@」。ただし、ユニット ID は 6 バイトですが、これは %d バイトです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@: unit ID “%@”.</source>
        <translation>「適用」を押すと %@ を送信します: ユニット ID「%@」。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no MAC address is known for an ARP entry.</source>
        <translation>「適用」を押すと管理者権限を求めますが、ARP エントリに使う MAC アドレスがわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but an ARP entry can hold ASCII characters only.</source>
        <translation>「適用」を押すと管理者権限を求めますが、ARP エントリには ASCII 文字しか使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply asks for administrator rights, but no ARP entry will be made for “%@”: %@</source>
        <translation>「適用」を押すと管理者権限を求めますが、「%@」の ARP エントリは作成されません: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply hands “%@” and %@ to the ARP tool, which needs administrator rights.</source>
        <translation>「適用」を押すと「%@」と %@ を ARP ツールに渡します。これには管理者権限が必要です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply enters %@ at %@ in the ARP cache, which needs administrator rights.</source>
        <translation>「適用」は %@ を %@ として ARP キャッシュに登録します (要管理者権限)。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the UDP listener is not running.</source>
        <translation>「適用」を押しても何も送信されません: UDP リスナーが動作していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit is selected.</source>
        <translation>ユニットが選択されていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.</source>
        <translation>「適用」を押すと %@ を 0.0.0.0 に送信します（「%@」は IPv4 アドレスではないため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@, because that is how “%@” is read.</source>
        <translation>「適用」を押すと %@ を %@ に送信します（「%@」はこのように読み取られるため）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends %@ to %@.</source>
        <translation>「適用」は %@ を %@ に送信します。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no command changes this parameter.</source>
        <translation>「適用」を押しても何も送信されません: このパラメータを変更するコマンドはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the value is empty.</source>
        <translation>「適用」を押しても何も送信されません: 値が空です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the unit ID is not a text in UTF-8.</source>
        <translation>「適用」を押しても何も送信されません: ユニット ID が UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: no unit is selected.</source>
        <translation>「適用」を押しても何も送信されません: ユニットが選択されていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: a command can hold ASCII characters only.</source>
        <translation>「適用」を押しても何も送信されません: コマンドには ASCII 文字しか使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the address of the unit is not known.</source>
        <translation>「適用」を押しても何も送信されません: ユニットのアドレスがわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>This computer has it.</source>
        <translation>このコンピュータが使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>The unit %@ has it.</source>
        <translation>ユニット %@ が使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>No unit can have it: it is the address of the subnet.</source>
        <translation>サブネットのアドレスなので、ユニットには使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It is outside this computer&apos;s subnet, perhaps out of reach.</source>
        <translation>サブネットの外なので、届かなくなることがあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>It goes to the unit %@, which was not shown when the row was chosen.</source>
        <translation>送信先はユニット %@ です。行を選んだときに表示していたユニットではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Return ends the typing; Ctrl+Return applies.</source>
        <translation>Return は入力を終えるだけです。適用は Ctrl+Return です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditForecast.cpp"/>
        <source>Apply sends nothing: the command is too long for a datagram.</source>
        <translation>「適用」を押しても何も送信されません: コマンドがデータグラムに収まりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@</source>
        <translation>ユニットはコマンドを受け付けました。パラメータを要求できませんでした: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command. It could not be asked for its parameters: %@.</source>
        <translation>ユニットはコマンドを受け付けました。パラメータを要求できませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters. If its port has changed, Discover finds it.</source>
        <translation>ユニットはコマンドを受け付け、パラメータを要求されました。ポートが変わった場合は、「検出」を押すと見つかります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit accepted a command and was asked for its parameters.</source>
        <translation>ユニットはコマンドを受け付け、パラメータを要求されました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number. Discover lists it under that.</source>
        <translation>ユニットのシリアル番号は %@ になりました。「検出」を押すと、この番号で一覧に表示されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@.</source>
        <translation>ユニットは現在 %@ を「%@」として示しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its serial number (was %@). Discover lists it under that.</source>
        <translation>ユニットのシリアル番号は %@ になりました（以前は %@）。「検出」を押すと、この番号で一覧に表示されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@ (was %@).</source>
        <translation>ユニットは現在 %@ を「%@」として示しています（以前は %@）。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit still shows %@ as its %@.</source>
        <translation>ユニットはまだ %@ を「%@」として示しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit now shows %@ as its %@, which is not what was sent.</source>
        <translation>ユニットは現在 %@ を「%@」として示していますが、送信した値と異なります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The unit&apos;s parameters hold no %@.</source>
        <translation>ユニットのパラメータに「%@」がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: it has the address %@ already.</source>
        <translation>別のユニット %@ がコマンドを受け付けました: すでにアドレス %@ を使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Another unit, %@, accepted a command: both have the address %@.</source>
        <translation>別のユニット %@ がコマンドを受け付けました: 両方がアドレス %@ を使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@.</source>
        <translation>%@ を送信しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered.</source>
        <translation>%@ を送信しました。ユニットは応答しませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>Sent %@. The unit has not answered yet.</source>
        <translation>%@ を送信しました。ユニットはまだ応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@</source>
        <translation>%@ の ARP エントリは作成されませんでした: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: %@.</source>
        <translation>%@ の ARP エントリは作成されませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: administrator rights were not given.</source>
        <translation>%@ の ARP エントリは作成されませんでした: 管理者権限が与えられませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: running the ARP tool was refused.</source>
        <translation>%@ の ARP エントリは作成されませんでした: ARP ツールの実行が拒否されました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the question for administrator rights was dismissed.</source>
        <translation>%@ の ARP エントリは作成されませんでした: 管理者権限の確認が取り消されました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool cannot be run.</source>
        <translation>%@ の ARP エントリは作成されませんでした: ARP ツールを実行できません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: it can hold ASCII characters only.</source>
        <translation>%@ の ARP エントリは作成されませんでした: ASCII 文字しか使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool was not started (%d).</source>
        <translation>%@ の ARP エントリは作成されませんでした: ARP ツールが起動しませんでした (%d)。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>No ARP entry was made for %@: the ARP tool ended with status %d.</source>
        <translation>%@ の ARP エントリは作成されませんでした: ARP ツールがステータス %d で終了しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EditOutcomeText.cpp"/>
        <source>The ARP entry for %@ is not on the interface by which the command left, so the unit may not have heard it.</source>
        <translation>%@ の ARP エントリはコマンドを送信したインターフェースにないため、ユニットが受信していない可能性があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[Begin Discover]</source>
        <translation>[検出開始]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>[The event log keeps 256 MiB. Older entries were removed.]</source>
        <translation>[イベントログは 256 MiB まで保持します。古い項目は削除されました。]</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did start. </source>
        <translation>
UDP リスナーを開始しました。 </translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Error setting SO_BROADCAST %s</source>
        <translation>
SO_BROADCAST の設定エラー %s</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did stop with error.</source>
        <translation>
UDP リスナーがエラーで停止しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Request unit parameters with address: %@</source>
        <translation>
ユニットのパラメータを要求、アドレス: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Send to: %@ command: %@</source>
        <translation>
送信先: %@ コマンド: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP server did send data.</source>
        <translation>
UDP データを送信しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP failed to send data.</source>
        <translation>
UDP データを送信できませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP listener did receive data. Length: %d</source>
        <translation>
UDP データを受信しました。長さ: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring short packet</source>
        <translation>
短すぎるパケットを無視しました</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Ignoring unknown packet, prefix != ^^</source>
        <translation>
不明なパケットを無視しました、プレフィックス != ^^</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
UDP did receive error.</source>
        <translation>
UDP の受信でエラーが発生しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@ unit:%@ serial:%@ cidString:%@</source>
        <translation>
受信コマンド: ^^%@ ユニット ID:%@ シリアル番号:%@ 内容:%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Received command: ^^%@</source>
        <translation>
受信コマンド: ^^%@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache with MAC %@ for IP %@</source>
        <translation>
ARP キャッシュへの登録を開始: MAC %@、IP %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Stuff ARP cache result: %d</source>
        <translation>
ARP キャッシュ登録の結果: %d</translation>
    </message>
    <message>
        <location filename="../../Sources/words/EventLogEntries.cpp"/>
        <source>
Unit ID could not be converted to 6-byte UTF-8 string</source>
        <translation>
ユニット ID を 6 バイトの UTF-8 文字列に変換できませんでした</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ is gone, so no broadcast was sent. Choose another one, or bring it back.</source>
        <translation>インターフェース %@ がなくなったため、ブロードキャストは送信されませんでした。別のものを選ぶか、元に戻してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has no link. Is its cable plugged in, and the device at the other end switched on?</source>
        <translation>インターフェース %@ にリンクがありません。ケーブルは差し込まれ、相手側の機器の電源は入っていますか？</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ reaches no unit by broadcast. Choose the one that leads to the units.</source>
        <translation>インターフェース %@ からはブロードキャストがどのユニットにも届きません。ユニットにつながるものを選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The interface %@ has lost the address that it had when it was chosen. When it has one again, choose it again.</source>
        <translation>インターフェース %@ は、選択したときのアドレスを失いました。再びアドレスを得たら、もう一度選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The address and mask of the interface %@ are out of date: they have changed since it was chosen. Choose it again to take the new ones over.</source>
        <translation>インターフェース %@ のアドレスとマスクは古くなっています: 選択後に変わりました。新しいものを使うには、もう一度選んでください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped 1 datagram before it was read, so a unit may be missing. Help says how to allow a larger buffer.</source>
        <translation>1 個のデータグラムが、読み取られる前にシステムに破棄されました。ユニットが足りない可能性があります。バッファーを大きくする方法はヘルプにあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The system dropped %d datagrams before they were read, so units may be missing. Help says how to allow a larger buffer.</source>
        <translation>%d 個のデータグラムが、読み取られる前にシステムに破棄されました。ユニットが足りない可能性があります。バッファーを大きくする方法はヘルプにあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>More than 1,048,576 units have answered, so the list leaves out those that were not heard for longest.</source>
        <translation>1,048,576 台を超えるユニットが応答したため、最も長く応答を確認していないユニットは一覧に表示されません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two hosts answer as the unit %@: %@ and %@.</source>
        <translation>2 台のホストがユニット %@ として応答しています: %@ と %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>Two units say that their address is %@: %@ and %@. A command may reach either.</source>
        <translation>2 台のユニットがアドレス %@ を名乗っています: %@ と %@。コマンドはどちらに届くかわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units or more say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d 台以上のユニットがアドレス %@ を名乗っています（%@ と %@ など）。コマンドはどれに届くかわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>%d units say that their address is %@, among them %@ and %@. A command may reach any of them.</source>
        <translation>%d 台のユニットがアドレス %@ を名乗っています（%@ と %@ など）。コマンドはどれに届くかわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ says that its address is %@, but its answer came from %@.</source>
        <translation>ユニット %@ は自分のアドレスを %@ としていますが、応答は %@ から届きました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/FindingText.cpp"/>
        <source>The unit %@ is heard on two interfaces: %@ and %@. Commands leave by the one on which it was heard last.</source>
        <translation>ユニット %@ は 2 つのインターフェースで受信されています: %@ と %@。コマンドは最後に受信したインターフェースから送信されます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is free: nobody answers for it.</source>
        <translation>%@ は空いています。応答するものはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/HolderText.cpp"/>
        <source>%@ is held by %@, unit %@.</source>
        <translation>%@ は %@ (ユニット %@) が使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>Address %@, mask %@, broadcast address %@.</source>
        <translation>アドレス %@、マスク %@、ブロードキャストアドレス %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The interface has no IPv4 address, so Discover asks %@.</source>
        <translation>インターフェースに IPv4 アドレスがないため、「検出」は %@ に問い合わせます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>No interface is chosen, so Discover asks %@.</source>
        <translation>インターフェースが選択されていないため、「検出」は %@ に問い合わせます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is up.</source>
        <translation>リンクは接続されています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/InterfaceText.cpp"/>
        <source>The link is down.</source>
        <translation>リンクは切れています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>To change</source>
        <translation>変更予定</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Refused</source>
        <translation>拒否</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not begun</source>
        <translation>未着手</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Half configured</source>
        <translation>途中まで設定</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Not sent</source>
        <translation>未送信</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Other value</source>
        <translation>別の値</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Under way</source>
        <translation>処理中</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wrong</source>
        <translation>誤り</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Unit</source>
        <translation>ユニット</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Wanted</source>
        <translation>目標</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Units to change: %d, parameters in all: %d. Unchanged: %d, refused: %d, without an answer: %d.</source>
        <translation>変更するユニット: %d、パラメータの合計: %d。変更なし: %d、拒否: %d、応答なし: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/PlanCells.cpp"/>
        <source>Done: %d, unchanged: %d, refused: %d, not begun: %d, half configured: %d, without an answer: %d.</source>
        <translation>完了: %d、変更なし: %d、拒否: %d、未着手: %d、途中まで設定: %d、応答なし: %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked the unit at %@ for its parameters.</source>
        <translation>アドレス %@ のユニットにパラメータを要求しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Asked every unit that hears it for its parameters.</source>
        <translation>受信したすべてのユニットにパラメータを要求しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to the unit at %@.</source>
        <translation>%@ をアドレス %@ のユニットに送信しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Sent %@ to every unit that hears it.</source>
        <translation>%@ を受信するすべてのユニットに送信しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered “%@”.</source>
        <translation>このアドレスの別のユニット %@ が「%@」と応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Another unit at this address, %@, answered.</source>
        <translation>このアドレスの別のユニット %@ が応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit answered “%@”.</source>
        <translation>ユニットは「%@」と応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has told them.</source>
        <translation>ユニットはパラメータを返しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit accepted a command.</source>
        <translation>ユニットはコマンドを受け付けました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered.</source>
        <translation>ユニットは応答しませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>The unit has not answered yet.</source>
        <translation>ユニットはまだ応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>No unit has answered yet.</source>
        <translation>まだどのユニットも応答していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by 1 unit.</source>
        <translation>1 台のユニットが受け付けました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>1 unit has answered.</source>
        <translation>1 台のユニットが応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units or more.</source>
        <translation>%d 台以上のユニットが受け付けました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units or more have answered.</source>
        <translation>%d 台以上のユニットが応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>Accepted by %d units.</source>
        <translation>%d 台のユニットが受け付けました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestOutcomeText.cpp"/>
        <source>%d units have answered.</source>
        <translation>%d 台のユニットが応答しました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>No unit is selected: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>ユニットが選択されていません: 「工場出荷時設定に戻す」は「再読み込み」と同じく、受信したすべてのユニットに届きます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>The address of this unit is not known: Restore Defaults, like Reload, reaches every unit that hears it.</source>
        <translation>このユニットのアドレスがわかりません: 「工場出荷時設定に戻す」は「再読み込み」と同じく、受信したすべてのユニットに届きます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>This unit tells an address of many as its own: Restore Defaults, like Reload, Apply and Send, reaches every unit that hears it.</source>
        <translation>このユニットは多数宛てのアドレスを自分のものとしています: 「工場出荷時設定に戻す」は「再読み込み」「適用」「送信」と同じく、受信したすべてのユニットに届きます。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks the unit at %@ for its parameters.</source>
        <translation>アドレス %@ のユニットにパラメータを要求します。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Asks every unit that hears it for its parameters.</source>
        <translation>受信したすべてのユニットにパラメータを要求します。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets the unit at %@ to its factory settings.</source>
        <translation>アドレス %@ のユニットを工場出荷時設定に戻します。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/RequestTargetText.cpp"/>
        <source>Resets every unit that hears it to its factory settings.</source>
        <translation>受信したすべてのユニットを工場出荷時設定に戻します。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@</source>
        <translation>送信しませんでした: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: %@.</source>
        <translation>送信しませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No command changes this parameter.</source>
        <translation>送信しませんでした: このパラメータを変更するコマンドはありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The value is empty.</source>
        <translation>送信しませんでした: 値が空です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The unit ID is not a text in UTF-8.</source>
        <translation>送信しませんでした: ユニット ID が UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: No unit is selected.</source>
        <translation>送信しませんでした: ユニットが選択されていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: A command can hold ASCII characters only.</source>
        <translation>送信しませんでした: コマンドには ASCII 文字しか使えません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/SendFailureText.cpp"/>
        <source>Not sent: The address of the unit is not known.</source>
        <translation>送信しませんでした: ユニットのアドレスがわかりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no name of a column.</source>
        <translation>「%@」は列の名前ではありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” means the same as another column.</source>
        <translation>「%@」は別の列と同じ意味です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” stands in a column without a name.</source>
        <translation>「%@」は名前のない列にあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has text behind its closing quotation mark.</source>
        <translation>「%@」は閉じる引用符の後に文字があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins or ends with a blank.</source>
        <translation>「%@」は先頭または末尾に空白があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a character that nobody sees.</source>
        <translation>「%@」には見えない文字があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is no serial number. Write six pairs of digits, such as 4B 58 00 00 00 01.</source>
        <translation>「%@」はシリアル番号ではありません。4B 58 00 00 00 01 のような 6 組の数字を書いてください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a number that a spreadsheet has shortened.</source>
        <translation>「%@」は表計算ソフトが短縮した数です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks digits: a spreadsheet has taken it for a number.</source>
        <translation>「%@」は桁が足りません。表計算ソフトが数とみなしました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” lacks its dots: a spreadsheet has taken it for a number.</source>
        <translation>「%@」はピリオドが欠けています。表計算ソフトが数とみなしました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a date: a spreadsheet has taken the value for one.</source>
        <translation>「%@」は日付です。表計算ソフトが値を日付とみなしました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has separators that a spreadsheet has put between digits.</source>
        <translation>「%@」には表計算ソフトが数字の間に入れた区切りがあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has decimal places that a spreadsheet has added.</source>
        <translation>「%@」には表計算ソフトが加えた小数点以下の桁があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a truth value: a spreadsheet has taken the value for one.</source>
        <translation>「%@」は真偽値です。表計算ソフトが値を真偽値とみなしました。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is a value that a spreadsheet had no room to show.</source>
        <translation>「%@」は表計算ソフトで幅が足りず表示できなかった値です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” is an error of a spreadsheet.</source>
        <translation>「%@」は表計算ソフトのエラーです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” begins with the mark of a text in a spreadsheet.</source>
        <translation>「%@」は表計算ソフトで文字列を示す記号で始まっています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>“%@” has a blank of another kind.</source>
        <translation>「%@」には別の種類の空白があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d is about the same unit.</source>
        <translation>%d 行目は同じユニットについての行です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same serial number.</source>
        <translation>%d 行目に同じシリアル番号があります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same address.</source>
        <translation>%d 行目に同じアドレスがあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d has the same hardware address.</source>
        <translation>%d 行目に同じハードウェアアドレスがあります。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is empty.</source>
        <translation>ファイルは空です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The file is in UTF-16. Save it as CSV in UTF-8.</source>
        <translation>ファイルは UTF-16 です。UTF-8 の CSV として保存してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell is not in UTF-8. Save the file as CSV in UTF-8.</source>
        <translation>セルは UTF-8 ではありません。ファイルを UTF-8 の CSV として保存してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A quotation mark is not closed.</source>
        <translation>引用符が閉じられていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line must name the columns: serial and parameters.</source>
        <translation>最初の行には列の名前が必要です: serial とパラメーター。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The first line names no column “serial”.</source>
        <translation>最初の行に列「serial」がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has fewer cells than the first one.</source>
        <translation>この行のセルは最初の行より少なくなっています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The line has more cells than the first one.</source>
        <translation>この行のセルは最初の行より多くなっています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The serial number is missing.</source>
        <translation>シリアル番号がありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The cell has nothing but blanks.</source>
        <translation>セルには空白しかありません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>The value does not fit into a command.</source>
        <translation>値がコマンドに収まりません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>A unit would get another value than “%@”. The window says of it: %@</source>
        <translation>ユニットには「%@」とは別の値が設定されます。ウィンドウは次のように示します: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Type it again in a cell that is formatted as text.</source>
        <translation>文字列の書式にしたセルに入力し直してください。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/TableComplaintText.cpp"/>
        <source>Line %d: %@</source>
        <translation>%d 行目: %@</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Sender</source>
        <translation>送信元</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Interface</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Last heard</source>
        <translation>最終受信</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Serial number used twice</source>
        <translation>シリアル番号が重複</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Address used twice</source>
        <translation>アドレスが重複</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Answered</source>
        <translation>応答あり</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>It did not answer the latest Discover.</source>
        <translation>最後の検出に応答しませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>Another unit, %@, has this serial number, too.</source>
        <translation>別のユニット %@ もこのシリアル番号を使っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitColumns.cpp"/>
        <source>The unit %@ has the address %@, too.</source>
        <translation>ユニット %@ もアドレス %@ を使っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Line %d wants the same value: %@.</source>
        <translation>%d 行目も同じ値を指定しています: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell its hardware address, which a new address needs.</source>
        <translation>ユニット %@ は、新しいアドレスに必要なハードウェアアドレスを通知していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ is held by the unit %@.</source>
        <translation>%@ はユニット %@ が使用しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ changes hands in a ring: line %d must be done first, and waits for this one.</source>
        <translation>%@ の受け渡しが循環しています。%d 行目を先に行う必要がありますが、その行はこの行を待っています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>%@ does not become free, because line %d is not done.</source>
        <translation>%@ は空きになりません。%d 行目が完了していないためです。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The plan is out of date: %@ was “%@” and is “%@” now.</source>
        <translation>計画が古くなっています: %@ は「%@」でしたが、今は「%@」です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ does not tell whether it has taken %@.</source>
        <translation>ユニット %@ は %@ を反映したかどうかを通知していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The unit %@ shows another value: %@ is “%@”.</source>
        <translation>ユニット %@ は別の値を示しています: %@ は「%@」です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing was sent, because other lines are refused or silent.</source>
        <translation>他の行が拒否されたか応答がないため、何も送信していません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Nothing new was begun after line %d.</source>
        <translation>%d 行目の後は新しく始めていません。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The journal could not be written.</source>
        <translation>ジャーナルを書き込めませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Whether another run is under way could not be found out: %@.</source>
        <translation>別の実行が進行中かどうかを確認できませんでした: %@。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host.</source>
        <translation>このコンピューターから別の実行がユニットを変更しています。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>Another run changes units from this host: process %d.</source>
        <translation>このコンピューターから別の実行がユニットを変更しています: プロセス %d。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>No command brings %@ of the unit %@ back: it was “%@”.</source>
        <translation>%@ を元に戻すコマンドはありません (ユニット %@)。以前の値は「%@」です。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>The entry for %@ could not be taken out of the ARP cache again.</source>
        <translation>%@ の登録を ARP キャッシュから取り除けませんでした。</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d s left</source>
        <translation>残り約 %d 秒</translation>
    </message>
    <message>
        <location filename="../../Sources/words/UnitPlanText.cpp"/>
        <source>about %d min left</source>
        <translation>残り約 %d 分</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool gets one address and one hardware address only.</source>
        <translation>ARP ツールに渡されるのは、1 つのアドレスと 1 つのハードウェアアドレスだけです。</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>An address is four decimal numbers without leading zeros, as in 192.0.2.7.</source>
        <translation>アドレスは、192.0.2.7 のように、先頭にゼロのない 4 つの 10 進数です。</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>A hardware address is six pairs of hexadecimal digits and names one host, as in 02:00:00:00:00:07.</source>
        <translation>ハードウェアアドレスは、02:00:00:00:00:07 のように、16 進数 2 桁が 6 組で、1 台のホストを表します。</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache has no fixed entry with this address and this hardware address.</source>
        <translation>ARP キャッシュには、このアドレスとこのハードウェアアドレスの固定エントリがありません。</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP cache cannot be read.</source>
        <translation>ARP キャッシュを読み取れません。</translation>
    </message>
    <message>
        <location filename="../../PrivilegedTool/ARPRequest.cpp"/>
        <source>The ARP tool cannot be run.</source>
        <translation>ARP ツールを実行できません。</translation>
    </message>
</context>
</TS>
