<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Zentaro</name>
    <message>
        <source>"%1" is already in your playlist</source>
        <translation>「%1」はすでにリストにあります</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 は再生できません</translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1 リスト</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n entries could not be found</source>
        <translation><numerusform>%n 件中 %1 件の項目が見つかりませんでした</numerusform></translation>
    </message>
    <message>
        <source>%1, playing</source>
        <translation>%1、再生中</translation>
    </message>
    <message numerus="yes">
        <source>%n entries play next</source>
        <translation><numerusform>次に %n 件の項目を再生します</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation><numerusform>%n 個のファイル</numerusform></translation>
    </message>
    <message>
        <source>30 Seconds Back</source>
        <translation>30 秒戻る</translation>
    </message>
    <message>
        <source>30 Seconds Forward</source>
        <translation>30 秒進む</translation>
    </message>
    <message>
        <source>5 Seconds Back</source>
        <translation>5 秒戻る</translation>
    </message>
    <message>
        <source>5 Seconds Forward</source>
        <translation>5 秒進む</translation>
    </message>
    <message>
        <source>&lt;a href="%1"&gt;The web page of VLC&lt;/a&gt;, whose engine plays everything here</source>
        <translation>&lt;a href="%1"&gt;VLC の Web ページ&lt;/a&gt;(再生エンジンの提供元)</translation>
    </message>
    <message>
        <source>&lt;No DVD drives were found&gt;</source>
        <translation>&lt;DVD ドライブが見つかりません&gt;</translation>
    </message>
    <message>
        <source>&lt;No History&gt;</source>
        <translation>&lt;履歴なし&gt;</translation>
    </message>
    <message>
        <source>&lt;Please insert a DVD&gt;</source>
        <translation>&lt;DVD を入れてください&gt;</translation>
    </message>
    <message>
        <source>A desktop media player. Free software under the MIT licence.</source>
        <translation>デスクトップ用メディア プレーヤー。MIT ライセンスの自由ソフトウェアです。</translation>
    </message>
    <message>
        <source>A file's name cannot hold any of / \ : * ? " &lt; &gt; |</source>
        <translation>ファイル名に次の文字は使えません: / \ : * ? " &lt; &gt; |</translation>
    </message>
    <message>
        <source>A Little &amp;Faster</source>
        <translation>少し速く(&amp;F)</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>少し速く</translation>
    </message>
    <message>
        <source>A Little &amp;Slower</source>
        <translation>少し遅く(&amp;S)</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>少し遅く</translation>
    </message>
    <message>
        <source>A time looks like this: 1:02:30</source>
        <translation>時間の書き方: 1:02:30</translation>
    </message>
    <message>
        <source>* In the system&apos;s own settings it is another program, and they decide.</source>
        <translation>* システムの設定では別のプログラムになっており、そちらが優先されます。</translation>
    </message>
    <message>
        <source>&amp;Default apps...</source>
        <translation>既定のアプリ(&amp;D)...</translation>
    </message>
    <message>
        <source>A type that is no longer chosen goes back to the program that had it before.</source>
        <translation>選択を外した種類は、以前のプログラムに戻ります。</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>About Zentaro</source>
        <translation>Zentaro について</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>追加(&amp;D)</translation>
    </message>
    <message>
        <source>Add Media File(s)...</source>
        <translation>メディア ファイルを追加...</translation>
    </message>
    <message>
        <source>Adding %1 of %2</source>
        <translation>%2 件中 %1 件目を追加中</translation>
    </message>
    <message>
        <source>After a snapshot</source>
        <translation>スナップショットの後</translation>
    </message>
    <message>
        <source>After file playing finished</source>
        <translation>再生が終わったら</translation>
    </message>
    <message>
        <source>After playing finish</source>
        <translation>再生が終わったら</translation>
    </message>
    <message>
        <source>After Playing: Do nothing</source>
        <translation>再生後: 何もしない</translation>
    </message>
    <message>
        <source>After Playing: Exit Zentaro</source>
        <translation>再生後: Zentaro を終了</translation>
    </message>
    <message>
        <source>After Playing: Restart the Computer</source>
        <translation>再生後: コンピューターを再起動</translation>
    </message>
    <message>
        <source>After Playing: Shutdown the Computer</source>
        <translation>再生後: コンピューターの電源を切る</translation>
    </message>
    <message>
        <source>Again and Again from Here, to Here</source>
        <translation>ここから、ここまで繰り返す</translation>
    </message>
    <message>
        <source>Again and again: %1 to %2</source>
        <translation>繰り返し: %1 から %2</translation>
    </message>
    <message>
        <source>All as Del&amp;ivered</source>
        <translation>すべて初期設定に戻す(&amp;I)</translation>
    </message>
    <message>
        <source>All file &amp;types</source>
        <translation>すべての種類(&amp;T)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>All is forgotten</source>
        <translation>すべて忘れました</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>対応するすべての形式</translation>
    </message>
    <message>
        <source>Also of &amp;Discs That Are Taken Out</source>
        <translation>取り出したディスクも(&amp;D)</translation>
    </message>
    <message>
        <source>Also of Discs That Are Taken Out</source>
        <translation>取り出したディスクも</translation>
    </message>
    <message>
        <source>Always on &amp;top</source>
        <translation>常に手前に表示(&amp;T)</translation>
    </message>
    <message>
        <source>Appeara&amp;nce</source>
        <translation>表示(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>ファイルのとおり</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>システムに合わせる</translation>
    </message>
    <message>
        <source>As&amp;pect Ratio</source>
        <translation>縦横比(&amp;P)</translation>
    </message>
    <message>
        <source>Asso&amp;ciations</source>
        <translation>関連付け(&amp;C)</translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation>音声(&amp;U)</translation>
    </message>
    <message>
        <source>Audio File</source>
        <translation>音声ファイル</translation>
    </message>
    <message>
        <source>&amp;Audio Track</source>
        <translation>音声トラック(&amp;A)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Back towards the Full Volume</source>
        <translation>最大音量まで戻す</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>ブレンド</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>&amp;Bring Back the Last List</source>
        <translation>前回のリストを戻す(&amp;B)</translation>
    </message>
    <message>
        <source>Bring Back the Last List</source>
        <translation>前回のリストを戻す</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cannot open file &lt;%1&gt;</source>
        <translation>ファイル &lt;%1&gt; を開けません</translation>
    </message>
    <message>
        <source>Cannot render thumbnail for %1. The video codec may be unsupported.</source>
        <translation>%1 のサムネイルを作成できません。映像コーデックが未対応の可能性があります。</translation>
    </message>
    <message>
        <source>Cannot save the list &lt;%1&gt;</source>
        <translation>リスト &lt;%1&gt; を保存できません</translation>
    </message>
    <message>
        <source>&amp;Chapter</source>
        <translation>チャプター(&amp;C)</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>チャプター</translation>
    </message>
    <message>
        <source>Choose together</source>
        <translation>まとめて選択</translation>
    </message>
    <message>
        <source>Clear &amp;Recent Files</source>
        <translation>最近のファイルを消去(&amp;R)</translation>
    </message>
    <message>
        <source>Clear Recent Files</source>
        <translation>最近のファイルを消去</translation>
    </message>
    <message>
        <source>Click or press Enter to bring it back</source>
        <translation>クリックまたは Enter で戻します</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>&amp;Continuous</source>
        <translation>連続(&amp;C)</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>連続</translation>
    </message>
    <message>
        <source>&amp;Contrast:</source>
        <translation>コントラスト(&amp;C):</translation>
    </message>
    <message>
        <source>Decrease Speed</source>
        <translation>速度を下げる</translation>
    </message>
    <message>
        <source>&amp;Deinterlace</source>
        <translation>インターレース解除(&amp;D)</translation>
    </message>
    <message>
        <source>Disable the screen sa&amp;ver</source>
        <translation>スクリーン セーバーを止める(&amp;V)</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Divider between video and playlist</source>
        <translation>映像とリストの境界</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>&amp;Docked at:</source>
        <translation>表示位置(&amp;D):</translation>
    </message>
    <message>
        <source>Drop files here to play them</source>
        <translation>ここにファイルをドロップして再生</translation>
    </message>
    <message>
        <source>Drop files here, or press Ctrl+O</source>
        <translation>ここにドロップするか Ctrl+O を押す</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Enter runs the command.</source>
        <translation>Enter キーで実行します。</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Exit Zentaro</source>
        <translation>Zentaro を終了</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>早送り</translation>
    </message>
    <message>
        <source>Fast Forward While Held</source>
        <translation>押している間早送り</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Find a Command</source>
        <translation>コマンドを探す</translation>
    </message>
    <message>
        <source>Find a Command...</source>
        <translation>コマンドを探す...</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>検索(&amp;F)...</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>検索...</translation>
    </message>
    <message>
        <source>Find: %1   %2 of %3</source>
        <translation>検索: %1   %3 件中 %2</translation>
    </message>
    <message>
        <source>Find: type a part of a title or folder</source>
        <translation>検索: 題名やフォルダーの一部を入力</translation>
    </message>
    <message>
        <source>First Menu</source>
        <translation>最初のメニュー</translation>
    </message>
    <message>
        <source>Flash Video File</source>
        <translation>Flash ビデオ ファイル</translation>
    </message>
    <message>
        <source>Folder for snapshots</source>
        <translation>スナップショットのフォルダー</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>すべて忘れる(&amp;A)</translation>
    </message>
    <message>
        <source>Forget All</source>
        <translation>すべて忘れる</translation>
    </message>
    <message>
        <source>&amp;Forget This Entry</source>
        <translation>この項目を忘れる(&amp;F)</translation>
    </message>
    <message>
        <source>Forget This Entry</source>
        <translation>この項目を忘れる</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>形式:</translation>
    </message>
    <message>
        <source>From %1: press again at the end</source>
        <translation>%1 から: 終わりでもう一度押す</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全画面(&amp;F)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Full screen controls</source>
        <translation>全画面の操作パネル</translation>
    </message>
    <message>
        <source>Full Screen On or Off</source>
        <translation>全画面の切り替え</translation>
    </message>
    <message>
        <source>Go to a Time</source>
        <translation>時間を指定して移動</translation>
    </message>
    <message>
        <source>&amp;Go to a Time...</source>
        <translation>指定の時間へ(&amp;G)...</translation>
    </message>
    <message>
        <source>Go to a Time...</source>
        <translation>指定の時間へ...</translation>
    </message>
    <message>
        <source>&amp;Go to Where I Was</source>
        <translation>前回の位置へ(&amp;G)</translation>
    </message>
    <message>
        <source>Go to Where I Was</source>
        <translation>前回の位置へ</translation>
    </message>
    <message>
        <source>Goes on after this one</source>
        <translation>この項目の後も続けます</translation>
    </message>
    <message>
        <source>Goes on at %1</source>
        <translation>%1 から続けます</translation>
    </message>
    <message>
        <source>GPL 2 or later</source>
        <translation>GPL 2 以降</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>ヘルプ トピック(&amp;H)</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>ヘルプ トピック</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Hours, minutes and seconds, such as 1:02:30</source>
        <translation>時:分:秒(例 1:02:30)</translation>
    </message>
    <message>
        <source>Icon in the tra&amp;y</source>
        <translation>通知領域にアイコン(&amp;Y)</translation>
    </message>
    <message>
        <source>Increase Speed</source>
        <translation>速度を上げる</translation>
    </message>
    <message>
        <source>It is a folder, not a file.</source>
        <translation>ファイルではなくフォルダーです。</translation>
    </message>
    <message>
        <source>It is the key of “%1”, which loses it.</source>
        <translation>「%1」のキーです。そちらから外れます。</translation>
    </message>
    <message>
        <source>Jump to That Tenth of the Item</source>
        <translation>その 10 分の 1 の位置へ</translation>
    </message>
    <message>
        <source>&amp;Keep History of recently Opened files.</source>
        <translation>最近開いたファイルの履歴を残す(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>Larger controls, for &amp;fingers</source>
        <translation>指で操作しやすい大きさにする(&amp;F)</translation>
    </message>
    <message>
        <source>Larger Subtitles</source>
        <translation>字幕を大きく</translation>
    </message>
    <message numerus="yes">
        <source>Last time: %n files</source>
        <translation><numerusform>前回: %n 個のファイル</numerusform></translation>
    </message>
    <message>
        <source>&amp;Launch Files in Fullscreen.</source>
        <translation>ファイルを全画面で開く(&amp;L)</translation>
    </message>
    <message>
        <source>Leave &amp;Full Screen</source>
        <translation>全画面を終了(&amp;F)</translation>
    </message>
    <message>
        <source>Leave Full Screen</source>
        <translation>全画面を終了</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>少なめ</translation>
    </message>
    <message>
        <source>Let go to play</source>
        <translation>離すと再生</translation>
    </message>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 以降</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>&amp;Load File...</source>
        <translation>ファイルを読み込む(&amp;L)...</translation>
    </message>
    <message>
        <source>Load File...</source>
        <translation>ファイルを読み込む...</translation>
    </message>
    <message>
        <source>LOADING...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>looks into files, makes thumbnails</source>
        <translation>ファイルの解析とサムネイル</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>音量を上げる</translation>
    </message>
    <message>
        <source>Louder Than the File</source>
        <translation>ファイルより大きな音量</translation>
    </message>
    <message>
        <source>&amp;Low Rows</source>
        <translation>低い行(&amp;L)</translation>
    </message>
    <message>
        <source>Low Rows</source>
        <translation>低い行</translation>
    </message>
    <message>
        <source>Made with</source>
        <translation>使用しているもの</translation>
    </message>
    <message>
        <source>&amp;Matroska</source>
        <translation>Matroska(&amp;M)</translation>
    </message>
    <message>
        <source>Matroska Audio File</source>
        <translation>Matroska 音声ファイル</translation>
    </message>
    <message>
        <source>Matroska Media File</source>
        <translation>Matroska メディア ファイル</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Maximize or Restore</source>
        <translation>最大化または元に戻す</translation>
    </message>
    <message>
        <source>Media Player</source>
        <translation>メディア プレーヤー</translation>
    </message>
    <message>
        <source>&amp;Memory</source>
        <translation>記憶(&amp;M)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Menu of What Has the Focus</source>
        <translation>フォーカス位置のメニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>その他(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Motion:</source>
        <translation>動き(&amp;M):</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Move the Window by the Arrows</source>
        <translation>矢印キーでウィンドウを移動</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>上へ(&amp;P)</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Mp3 Format Sound</source>
        <translation>MP3 音声ファイル</translation>
    </message>
    <message>
        <source>MP&amp;EG</source>
        <translation>MPEG(&amp;E)</translation>
    </message>
    <message>
        <source>MPEG Media File</source>
        <translation>MPEG メディア ファイル</translation>
    </message>
    <message>
        <source>MPEG4 Audio File</source>
        <translation>MPEG4 音声ファイル</translation>
    </message>
    <message>
        <source>MPEG4 Media File</source>
        <translation>MPEG4 メディア ファイル</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Ne&amp;w key:</source>
        <translation>新しいキー(&amp;W):</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>次のチャプター</translation>
    </message>
    <message>
        <source>Next Pi&amp;cture</source>
        <translation>次のコマ(&amp;C)</translation>
    </message>
    <message>
        <source>Next Picture</source>
        <translation>次のコマ</translation>
    </message>
    <message>
        <source>No Ke&amp;y</source>
        <translation>キーなし(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No Repeat</source>
        <translation>リピートなし(&amp;N)</translation>
    </message>
    <message>
        <source>No longer full screen</source>
        <translation>全画面表示を終了</translation>
    </message>
    <message>
        <source>No Repeat</source>
        <translation>リピートなし</translation>
    </message>
    <message>
        <source>No snapshot could be saved in %1</source>
        <translation>%1 にスナップショットを保存できませんでした</translation>
    </message>
    <message>
        <source>No working folder can be made.</source>
        <translation>作業フォルダーを作成できません。</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>標準(&amp;N)</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Nothing in the playlist can be played</source>
        <translation>リストに再生できるものがありません</translation>
    </message>
    <message>
        <source>&amp;Nothing in This Folder</source>
        <translation>このフォルダーは記憶しない(&amp;N)</translation>
    </message>
    <message>
        <source>Nothing in This Folder</source>
        <translation>このフォルダーは記憶しない</translation>
    </message>
    <message>
        <source>Nothing plays that the subtitles could belong to</source>
        <translation>字幕を付けるものが再生されていません</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>O&amp;gg</source>
        <translation>Ogg(&amp;G)</translation>
    </message>
    <message>
        <source>OGG Media File</source>
        <translation>OGG メディア ファイル</translation>
    </message>
    <message>
        <source>OGG Vorbis Audio File</source>
        <translation>OGG Vorbis 音声ファイル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open DVD</source>
        <translation>DVD を開く</translation>
    </message>
    <message>
        <source>Open Media File...</source>
        <translation>メディア ファイルを開く...</translation>
    </message>
    <message>
        <source>Open Subtitles</source>
        <translation>字幕を開く</translation>
    </message>
    <message>
        <source>Open Video File</source>
        <translation>ビデオ ファイルを開く</translation>
    </message>
    <message>
        <source>Open Video File...</source>
        <translation>ビデオ ファイルを開く...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>オプション(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Order</source>
        <translation>並び順(&amp;O)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>%1 で一時停止</translation>
    </message>
    <message>
        <source>Cover and Bars with Music</source>
        <translation>音楽のジャケットとバー</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>トラック %1</translation>
    </message>
    <message>
        <source>Pictures over the Seek Bar</source>
        <translation>シークバーの上の画像</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play from the Start</source>
        <translation>最初から再生</translation>
    </message>
    <message>
        <source>Play &amp;List</source>
        <translation>リスト(&amp;L)</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>再生モード</translation>
    </message>
    <message>
        <source>Play Mode: Continuous</source>
        <translation>再生モード: 連続</translation>
    </message>
    <message>
        <source>Play Mode: Normal</source>
        <translation>再生モード: 標準</translation>
    </message>
    <message>
        <source>Play Mode: Shuffle</source>
        <translation>再生モード: シャッフル</translation>
    </message>
    <message>
        <source>Play &amp;Next</source>
        <translation>次に再生(&amp;N)</translation>
    </message>
    <message>
        <source>Play Next</source>
        <translation>次に再生</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>Play the Selected Entry</source>
        <translation>選択した項目を再生</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>プレーヤー(&amp;P)</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>Playing from %1</source>
        <translation>%1 から再生</translation>
    </message>
    <message>
        <source>Playing rate:%1x</source>
        <translation>再生速度: %1x</translation>
    </message>
    <message>
        <source>&amp;Play&amp;List</source>
        <translation>リスト(&amp;L)</translation>
    </message>
    <message>
        <source>Play&amp;list</source>
        <translation>プレイリスト(&amp;L)</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>Plays next: %1</source>
        <translation>次に再生: %1</translation>
    </message>
    <message>
        <source>Plays on</source>
        <translation>再生を続けます</translation>
    </message>
    <message>
        <source>Plays on, whatever the clock says</source>
        <translation>時間に関係なく再生を続けます</translation>
    </message>
    <message>
        <source>Please choose a folder for the snapshots, with its whole path.</source>
        <translation>スナップショットのフォルダーを完全なパスで指定してください。</translation>
    </message>
    <message>
        <source>Please insert a valid DVD.</source>
        <translation>有効な DVD を入れてください。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>P&amp;refix:</source>
        <translation>接頭辞(&amp;R):</translation>
    </message>
    <message>
        <source>Press it here</source>
        <translation>ここで押す</translation>
    </message>
    <message>
        <source>Press the Disc's Button, or Fill the Screen</source>
        <translation>ディスクのボタンを押す、または全画面</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>前のチャプター</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>プロパティ(&amp;R)</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>&amp;QuickTime</source>
        <translation>QuickTime(&amp;Q)</translation>
    </message>
    <message>
        <source>QuickTime File</source>
        <translation>QuickTime ファイル</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>音量を下げる</translation>
    </message>
    <message>
        <source>reads MPEG program streams</source>
        <translation>MPEG ストリームの読み取り</translation>
    </message>
    <message>
        <source>&amp;Recently Played files</source>
        <translation>最近再生したファイル(&amp;R)</translation>
    </message>
    <message>
        <source>Recently Played Files</source>
        <translation>最近再生したファイル</translation>
    </message>
    <message>
        <source>R&amp;edo</source>
        <translation>やり直し(&amp;E)</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>&amp;Remember Lists and Places</source>
        <translation>リストと位置を記憶(&amp;R)</translation>
    </message>
    <message>
        <source>Remember Lists and Places</source>
        <translation>リストと位置を記憶</translation>
    </message>
    <message>
        <source>Remember the posit&amp;ion</source>
        <translation>位置を記憶(&amp;I)</translation>
    </message>
    <message>
        <source>Remember the si&amp;ze</source>
        <translation>サイズを記憶(&amp;Z)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Remove the Selected Entry</source>
        <translation>選択した項目を削除</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries</source>
        <translation><numerusform>%n 件の項目を取り除きました</numerusform></translation>
    </message>
    <message>
        <source>&amp;Repeat All</source>
        <translation>すべてリピート(&amp;R)</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>すべてリピート</translation>
    </message>
    <message>
        <source>Repeat Mode</source>
        <translation>リピート モード</translation>
    </message>
    <message>
        <source>Repeat Mode: No Repeat</source>
        <translation>リピート: なし</translation>
    </message>
    <message>
        <source>Repeat Mode: Repeat All</source>
        <translation>リピート: すべて</translation>
    </message>
    <message>
        <source>Repeat Mode: Single Repeat</source>
        <translation>リピート: 1 件</translation>
    </message>
    <message>
        <source>Reset Speed</source>
        <translation>標準の速度</translation>
    </message>
    <message>
        <source>Resize the Window by the Arrows</source>
        <translation>矢印キーでウィンドウのサイズを変更</translation>
    </message>
    <message>
        <source>Restart the Computer</source>
        <translation>コンピューターを再起動</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>巻き戻し</translation>
    </message>
    <message>
        <source>Rewind While Held</source>
        <translation>押している間巻き戻し</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Save List As</source>
        <translation>リストに名前を付けて保存</translation>
    </message>
    <message>
        <source>Save List &amp;As...</source>
        <translation>リストに名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save List As...</source>
        <translation>リストに名前を付けて保存...</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Say Where It Is</source>
        <translation>再生位置を知らせる</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>S&amp;hortcuts</source>
        <translation>ショートカット(&amp;H)</translation>
    </message>
    <message>
        <source>Show a small previe&amp;w in the window</source>
        <translation>ウィンドウに小さく表示(&amp;W)</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>フォルダーに表示(&amp;F)</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Show or Hide the Playlist</source>
        <translation>プレイリストの表示切り替え</translation>
    </message>
    <message>
        <source>Show the Time That Is Left</source>
        <translation>残り時間を表示</translation>
    </message>
    <message>
        <source>Show &amp;What Plays</source>
        <translation>再生中の項目を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Show What Plays</source>
        <translation>再生中の項目を表示</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>シャッフル(&amp;S)</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>シャッフル</translation>
    </message>
    <message>
        <source>Shutdown the Computer</source>
        <translation>コンピューターの電源を切る</translation>
    </message>
    <message>
        <source>&amp;Single Repeat</source>
        <translation>1 件リピート(&amp;S)</translation>
    </message>
    <message>
        <source>Single Repeat</source>
        <translation>1 件リピート</translation>
    </message>
    <message>
        <source>Si&amp;ze of everything:</source>
        <translation>全体の大きさ(&amp;Z):</translation>
    </message>
    <message>
        <source>Smaller Subtitles</source>
        <translation>字幕を小さく</translation>
    </message>
    <message>
        <source>S&amp;napshot</source>
        <translation>スナップショット(&amp;N)</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>&amp;Snapshots</source>
        <translation>スナップショット(&amp;S)</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>日付順(&amp;D)</translation>
    </message>
    <message>
        <source>Sort by Date</source>
        <translation>日付順</translation>
    </message>
    <message>
        <source>Sort by &amp;Folder</source>
        <translation>フォルダー順(&amp;F)</translation>
    </message>
    <message>
        <source>Sort by Folder</source>
        <translation>フォルダー順</translation>
    </message>
    <message>
        <source>Sort by &amp;Length</source>
        <translation>長さ順(&amp;L)</translation>
    </message>
    <message>
        <source>Sort by Length</source>
        <translation>長さ順</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>名前順(&amp;N)</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>名前順</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>サイズ順(&amp;S)</translation>
    </message>
    <message>
        <source>Sort by Size</source>
        <translation>サイズ順</translation>
    </message>
    <message>
        <source>Sound %1</source>
        <translation>音声 %1</translation>
    </message>
    <message>
        <source>Sound Earlier</source>
        <translation>音声を早める</translation>
    </message>
    <message>
        <source>Sound Later</source>
        <translation>音声を遅らせる</translation>
    </message>
    <message>
        <source>Start &amp;Over</source>
        <translation>最初から(&amp;O)</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop After This &amp;One</source>
        <translation>この項目の後で停止(&amp;O)</translation>
    </message>
    <message>
        <source>Stop After This One</source>
        <translation>この項目の後で停止</translation>
    </message>
    <message>
        <source>Stop by the Cloc&amp;k</source>
        <translation>時間で停止(&amp;K)</translation>
    </message>
    <message>
        <source>Stop by the Clock</source>
        <translation>時間で停止</translation>
    </message>
    <message>
        <source>Stopped, as the clock was told</source>
        <translation>指定の時間に停止しました</translation>
    </message>
    <message>
        <source>Stops adding files to the playlist</source>
        <translation>リストへの追加を中止します</translation>
    </message>
    <message>
        <source>Stops after this one</source>
        <translation>この項目の後で停止します</translation>
    </message>
    <message numerus="yes">
        <source>Stops in %n minutes</source>
        <translation><numerusform>%n 分後に停止します</numerusform></translation>
    </message>
    <message>
        <source>&amp;Subtitles</source>
        <translation>字幕(&amp;S)</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Subtitles %1</source>
        <translation>字幕 %1</translation>
    </message>
    <message>
        <source>Subtitles Earlier</source>
        <translation>字幕を早める</translation>
    </message>
    <message>
        <source>Subtitles Later</source>
        <translation>字幕を遅らせる</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>字幕: %1</translation>
    </message>
    <message>
        <source>The audio format %1 in file %2 is currently unsupported. It will not be added to the project.</source>
        <translation>ファイル %2 の音声形式 %1 は未対応のため追加されません。</translation>
    </message>
    <message>
        <source>The caption shows</source>
        <translation>タイトル バーの表示</translation>
    </message>
    <message>
        <source>the engine that plays</source>
        <translation>再生エンジン</translation>
    </message>
    <message>
        <source>The file cannot be read. It may belong to another user, or its drive may be damaged.</source>
        <translation>ファイルを読み取れません。ほかのユーザーのものか、ドライブが壊れている可能性があります。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The folder's name can be kept only without a comma, and without a blank or a quote at its beginning. Please choose another folder.</source>
        <translation>フォルダー名にコンマは使えず、先頭に空白や引用符も使えません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>the &amp;full path</source>
        <translation>完全なパス(&amp;F)</translation>
    </message>
    <message>
        <source>The help is missing. It should be here:</source>
        <translation>ヘルプがありません。次の場所にあるはずです:</translation>
    </message>
    <message>
        <source>The item is not that long</source>
        <translation>そこまで長くありません</translation>
    </message>
    <message>
        <source>The prefix can be kept only without a comma, and without a blank or a quote at its beginning.</source>
        <translation>接頭辞にコンマは使えず、先頭に空白や引用符も使えません。</translation>
    </message>
    <message>
        <source>the p&amp;rogram's name alone</source>
        <translation>プログラム名のみ(&amp;R)</translation>
    </message>
    <message>
        <source>The subtitles cannot be opened</source>
        <translation>字幕を開けません</translation>
    </message>
    <message>
        <source>the title &amp;of the file</source>
        <translation>ファイルのタイトル(&amp;O)</translation>
    </message>
    <message>
        <source>the typeface</source>
        <translation>書体</translation>
    </message>
    <message>
        <source>The web page of VLC</source>
        <translation>VLC の Web ページ</translation>
    </message>
    <message>
        <source>The whole window</source>
        <translation>ウィンドウ全体</translation>
    </message>
    <message>
        <source>the windows</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>There is no browser that shows this page:</source>
        <translation>このページを表示するブラウザーがありません:</translation>
    </message>
    <message>
        <source>There is no program that shows the folder:</source>
        <translation>フォルダーを開くプログラムがありません:</translation>
    </message>
    <message>
        <source>There is no program that shows the help:</source>
        <translation>ヘルプを表示するプログラムがありません:</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>そのファイルはありません。</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>タイトル(&amp;T)</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>To the Next Part of the Window</source>
        <translation>ウィンドウの次の部分へ</translation>
    </message>
    <message>
        <source>To the Part of the Window Before</source>
        <translation>ウィンドウの前の部分へ</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Type what it does, or its key</source>
        <translation>機能またはキーを入力</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>ミュート解除</translation>
    </message>
    <message>
        <source>&amp;Use new player for each media file played.</source>
        <translation>ファイルごとに新しいプレーヤーを使う(&amp;U)</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>映像(&amp;V)</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD ビデオ</translation>
    </message>
    <message>
        <source>Video File</source>
        <translation>ビデオ ファイル</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Volume %1 %</source>
        <translation>音量 %1 %</translation>
    </message>
    <message>
        <source>Volume %1 % (muted)</source>
        <translation>音量 %1 %(ミュート)</translation>
    </message>
    <message>
        <source>Volume %1 %: more than the file has, it can distort</source>
        <translation>音量 %1 %: ファイルを超える音量のため、ひずむことがあります</translation>
    </message>
    <message>
        <source>&amp;Ways as in Other Players</source>
        <translation>ほかのプレーヤーの流儀(&amp;W)</translation>
    </message>
    <message>
        <source>Ways as in Other Players</source>
        <translation>ほかのプレーヤーの流儀</translation>
    </message>
    <message>
        <source>Ways: Familiar</source>
        <translation>流儀: 一般的</translation>
    </message>
    <message>
        <source>Ways: Zentaro's own</source>
        <translation>流儀: Zentaro 独自</translation>
    </message>
    <message>
        <source>Language and size count from the next start on.</source>
        <translation>言語と大きさは次回の起動から有効になります。</translation>
    </message>
    <message>
        <source>What the caption shows</source>
        <translation>タイトル バーの表示内容</translation>
    </message>
    <message>
        <source>Where snapshots go</source>
        <translation>スナップショットの保存先</translation>
    </message>
    <message>
        <source>While a video plays</source>
        <translation>ビデオの再生中</translation>
    </message>
    <message>
        <source>Whole Window</source>
        <translation>ウィンドウ全体</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>Windows(&amp;W)</translation>
    </message>
    <message>
        <source>Windows Audio File</source>
        <translation>Windows 音声ファイル</translation>
    </message>
    <message>
        <source>Windows Media File</source>
        <translation>Windows メディア ファイル</translation>
    </message>
    <message>
        <source>Yadif</source>
        <translation>Yadif</translation>
    </message>
    <message>
        <source>Yadif, full rate</source>
        <translation>Yadif(フルレート)</translation>
    </message>
    <message>
        <source>You were at %1</source>
        <translation>前回の位置: %1</translation>
    </message>
    <message>
        <source>Zentaro</source>
        <translation>Zentaro</translation>
    </message>
    <message>
        <source>&amp;Ways</source>
        <translation>操作の流儀(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Zentaro's own ways</source>
        <translation>&amp;Zentaro 独自の動作</translation>
    </message>
    <message>
        <source>Ways &amp;familiar from other players</source>
        <translation>他のプレーヤーと同じ動作(&amp;F)</translation>
    </message>
    <message>
        <source>With these, Play goes on from a pause, Next and Previous follow the shuffled order, a click in the list does not change what follows, all known types of files are taken, and the last list comes back by itself. The help names the rest.</source>
        <translation>再生は一時停止した位置から続き、「次へ」と「前へ」はシャッフルの順に従い、リストのクリックは続きを変えず、再生できる種類のファイルはすべて受け付け、前回のリストは自動で戻ります。その他はヘルプをご覧ください。</translation>
    </message>
    <message>
        <source>&amp;Remember lists and places</source>
        <translation>リストと再生位置を覚える(&amp;R)</translation>
    </message>
    <message>
        <source>Also of &amp;discs that are taken out</source>
        <translation>取り外せるディスクのものも(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Low rows in the list</source>
        <translation>リストの行を低くする(&amp;L)</translation>
    </message>
    <message>
        <source>Used to other players? Click or press Enter to take their ways</source>
        <translation>他のプレーヤーに慣れていますか？クリックまたは Enter で同じ動作にします</translation>
    </message>
    <message>
        <source>%1 of %2 could not be opened</source>
        <translation>%2 個のうち %1 個を開けませんでした</translation>
    </message>
    <message>
        <source>It is of no type that is known to play.</source>
        <translation>再生できる種類のファイルではありません。</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message>
        <source>Show What Could Not Be Opened</source>
        <translation>開けなかったものを表示</translation>
    </message>
</context>
</TS>
