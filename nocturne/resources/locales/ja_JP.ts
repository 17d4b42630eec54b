<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>メディア (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>メディア (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne ギャラリー</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左へ</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>正確</translation>
    </message>
    <message>
        <source>Readable</source>
        <translation>読みやすい</translation>
    </message>
    <message>
        <source>Dimmed</source>
        <translation>減光</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>役割</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>リソース</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>名前で絞り込み</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%2 件中 %1 件の画像</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>ライブラリのテキスト</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;2 桁にはバッジが付きません</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;カメラ 1 に切り替え</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;カメラ 2 に切り替え</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;カメラ 3 に切り替え</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>100 のうち 0、1、50、100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>ウィンドウより大きな画像</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>テキストのない単独のタブ</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>すべてのソースが再接続されました。</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>最大値</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>最小値、プラスとマイナス</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>自動で浮き上がる</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>「戻る」にポインター</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>「戻る」を押下</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>内容の横</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>ビン %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>ボックス</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>バッファー</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>バス %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>バス A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>ボタンとラベル</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>カメラ 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>カメラ 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>チェックボックス</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>チェックボックスとラジオボタン</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>チェックあり</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>選択済み</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>このラベルをクリック</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>クリックできるラベル</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>クライアント</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>クリップ %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>クリップ名</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>クリッププレーヤー</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>コンボボックス</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>コマンドリンク</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>コンテナー</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>遅延ボタン</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>ダイヤル</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>ディゾルブ</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>「下」を押下</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>編集可能</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>編集可能、アイコン付き</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>フォーカスあり</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>0.5 秒</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>ハンドルにポインター</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>ハンドルを押下</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>水平線</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>水平プログレスバー</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>水平スライダー</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>ポインターあり</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>アイコンのみ</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>レベル、時刻、日付</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>ループ</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>メニューを即時表示</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>矢印でメニュー</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>ミックス</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>混在した選択</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>ボタンなし</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>番号なし</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>目盛りなし</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>切り替え不可: 遅延なし</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>編集不可</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>編集不可、編集可能</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>編集不可、アイコン付き</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>オンエア</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>オン、ポインターあり</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>オン、押下</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>展開されたリスト</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>前回のショーを開く</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>同じ枠を持つもの</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>%1 の上</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>内容の上</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>一部チェック</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>プレーン</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>プラスとマイナス</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>X 位置</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Y 位置</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>押下</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>プログレスバー</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>プロキシスタイル</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>プッシュボタン</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>ID で設定するラジオボタン</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>浮き出し</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>レンダリング</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>スクロールバー</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>スライダーとダイヤル</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>スピンボックス</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>配信</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>くぼみ</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>スイッチ</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>テイク</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>縦長</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>アイコンの横にテキスト</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>テキスト付きタブは同じ幅です。テキストのないタブはバー全体に広がります。</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>アイコンの下にテキスト</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>上に目盛り</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>下に目盛り</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>両側に目盛り</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>タイトルのみ</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>ツールボタン</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>ツールボタン</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>2 秒</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>チェックなし</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>「上」にポインター</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>「上」を押下</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>垂直プログレスバー</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>垂直スライダー</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>垂直、両側</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>垂直、反転</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>垂直、目盛りなし</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>垂直、左に目盛り</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>垂直、右に目盛り</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>ワイプ</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>アイコン付き</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>メニュー付き</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>目盛り付き</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>枠なし</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>テキストなし</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>ショー(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>ソースが見つかりません。</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>収まりきらない長いタイトル</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>ツールヒント</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>上、2 番目</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>上、2 行目</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>カメラ %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>カメラ、プレーヤー、タイトル</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>チェックあり、無効</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>チェックあり、アイコン付き</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>閉じる・移動が可能、アイコン付き</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>前回のソースをコピー</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>ダイアログとヒント</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>ドキュメントモード、タブの 1 つが無効</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>夜のショー</translation>
    </message>
    <message>
        <source>First</source>
        <translation>1 番目</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>グループボックスとフレーム</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>非アクティブなウィンドウ</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>内側</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>入力欄</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>リスト、表、ツリー</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>メインウィンドウ</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>「最大化」にポインター</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>「最大化」を押下</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>最小化されたウィンドウ</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>ミキサー</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>収まりきらない数のタブ</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>ショーの名前</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>新規ショー</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>チェックなし</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>チェックなし、アイコン付き</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>これ以上なし</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>2 つのうちの 1 つ</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>タイトルを流す。
黒へフェード。</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>選択枠</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>閉じる前に保存しますか?</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>2 番目</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>複数行</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>巻き上げたウィンドウ</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>ショー %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>ソース %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>スタイル付きパネル</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>既定の項目</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>もう 1 つ</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>進行表は前回の保存後に変更されています。</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>右揃えのタイトル</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>三角形、上</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>三角形、下</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>三角形、左</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>三角形、右</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>縦書きのタイトル</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>名前は何ですか?</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>ヘルプ付きウィンドウ</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>ウィンドウ内のウィンドウ</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>クリアボタン付き</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>ヒント付き</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>選択あり</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>アイコン付き</translation>
    </message>
    <message>
        <source>Ramp: press to add, drag to move, drag away to remove, double-click for a colour</source>
        <translation>ランプ: 押して追加、ドラッグで移動、外へドラッグで削除、ダブルクリックで色を選択</translation>
    </message>
    <message>
        <source>Opacity of the chosen colour</source>
        <translation>選択した色の不透明度</translation>
    </message>
    <message>
        <source>Buttons: click for a dialog, drag a colour onto another</source>
        <translation>ボタン: クリックでダイアログ、色を別の色へドラッグ</translation>
    </message>
    <message>
        <source>(accepted)</source>
        <translation>(確定)</translation>
    </message>
    <message>
        <source>(preview)</source>
        <translation>(プレビュー)</translation>
    </message>
    <message>
        <source>Bars and dots</source>
        <translation>バーとドット</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>点滅</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Stage left</source>
        <translation>上手</translation>
    </message>
    <message>
        <source>Stage right</source>
        <translation>下手</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>イントロ</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>インタビュー</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>レコーダー</translation>
    </message>
    <message>
        <source>No output</source>
        <translation>出力なし</translation>
    </message>
    <message>
        <source>All outputs</source>
        <translation>すべての出力</translation>
    </message>
    <message>
        <source>Undetermined</source>
        <translation>未確定</translation>
    </message>
    <message>
        <source>Tonight live from the studio</source>
        <translation>今夜スタジオから生放送</translation>
    </message>
    <message>
        <source>Grouped</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>Its list</source>
        <translation>そのリスト</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>すべてチェックなし</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>一部の項目をチェック</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>すべてチェックあり</translation>
    </message>
    <message>
        <source>Without items</source>
        <translation>項目なし</translation>
    </message>
    <message>
        <source>Their list</source>
        <translation>それらのリスト</translation>
    </message>
    <message>
        <source>Font with preview</source>
        <translation>プレビュー付きフォント</translation>
    </message>
    <message>
        <source>Grouped and check combo boxes</source>
        <translation>グループとチェック付きのコンボボックス</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>重大</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>メッセージボックス</translation>
    </message>
    <message>
        <source>Take the next cue live?</source>
        <translation>次のキューを本番に出しますか?</translation>
    </message>
    <message>
        <source>Use own button texts from now on</source>
        <translation>以後、独自のボタンテキストを使う</translation>
    </message>
    <message>
        <source>Take it live</source>
        <translation>本番に出す</translation>
    </message>
    <message>
        <source>Balloons</source>
        <translation>バルーン</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>The recording disk has room for five more minutes.</source>
        <translation>録画ディスクの残り容量はあと 5 分です。</translation>
    </message>
    <message>
        <source>File choosers</source>
        <translation>ファイル選択</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>メディアファイル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Recent videos</source>
        <translation>最近使ったビデオ</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>通知内容</translation>
    </message>
    <message>
        <source>Letter box</source>
        <translation>レターボックス</translation>
    </message>
    <message>
        <source>Resize delay</source>
        <translation>サイズ変更の遅延</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Dialogs and pickers</source>
        <translation>ダイアログと選択欄</translation>
    </message>
    <message>
        <source>Files you drop appear below</source>
        <translation>ドロップしたファイルは下に表示されます</translation>
    </message>
    <message>
        <source>(not a local file)</source>
        <translation>(ローカルファイルではありません)</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>ここにファイルをドロップ</translation>
    </message>
    <message>
        <source>Icons with the item delegate</source>
        <translation>項目デリゲートによるアイコン</translation>
    </message>
    <message>
        <source>Drag a clip onto another.</source>
        <translation>クリップを別のクリップへドラッグします。</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>リストの末尾</translation>
    </message>
    <message>
        <source>%1 was dropped on %2.</source>
        <translation>%1 のドロップ先: %2</translation>
    </message>
    <message>
        <source>Moves are reported, the host moves</source>
        <translation>移動を通知、移動はホストが実行</translation>
    </message>
    <message>
        <source>Rows dragged as they look</source>
        <translation>見た目のままドラッグされる行</translation>
    </message>
    <message>
        <source>Drag the selected rows.</source>
        <translation>選択した行をドラッグします。</translation>
    </message>
    <message>
        <source>Lists to drag and drop</source>
        <translation>ドラッグ＆ドロップ用リスト</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 件のメッセージ</translation>
    </message>
    <message>
        <source>Learn</source>
        <translation>学習</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Open a virtual port</source>
        <translation>仮想ポートを開く</translation>
    </message>
    <message>
        <source>No port is open.</source>
        <translation>開いているポートはありません。</translation>
    </message>
    <message>
        <source>No MIDI service is running, or it has no port.</source>
        <translation>MIDI サービスが動作していないか、ポートがありません。</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 は開いています。</translation>
    </message>
    <message>
        <source>%1 is gone.</source>
        <translation>%1 はなくなりました。</translation>
    </message>
    <message>
        <source>Asked for the virtual port %1.</source>
        <translation>仮想ポート %1 を要求しました。</translation>
    </message>
    <message>
        <source>Send to the output</source>
        <translation>出力へ送信</translation>
    </message>
    <message>
        <source>Note (hold)</source>
        <translation>ノート (押し続ける)</translation>
    </message>
    <message>
        <source>Controller 7</source>
        <translation>コントローラー 7</translation>
    </message>
    <message>
        <source>Learn a message for the level</source>
        <translation>レベル用のメッセージを学習</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Simulate a stream of 10,000 messages a second</source>
        <translation>毎秒 10,000 件のメッセージ受信をシミュレート</translation>
    </message>
    <message>
        <source>MIDI</source>
        <translation>MIDI</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>リング</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>バー</translation>
    </message>
    <message>
        <source>Busy wheels</source>
        <translation>処理中ホイール</translation>
    </message>
    <message>
        <source>Turn the grey one</source>
        <translation>灰色のホイールを回す</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>クリップをトリム</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>フレーム %1</translation>
    </message>
    <message>
        <source>In %1   Out %2   Length %3</source>
        <translation>イン %1   アウト %2   長さ %3</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Range handles</source>
        <translation>範囲ハンドル</translation>
    </message>
    <message>
        <source>Symmetric moves</source>
        <translation>対称移動</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>追従</translation>
    </message>
    <message>
        <source>Spans</source>
        <translation>スパン</translation>
    </message>
    <message>
        <source>Handles pass</source>
        <translation>ハンドルの追い越し可</translation>
    </message>
    <message>
        <source>Handles meet</source>
        <translation>ハンドルは接するまで</translation>
    </message>
    <message>
        <source>Handles keep apart</source>
        <translation>ハンドルは間隔を維持</translation>
    </message>
    <message>
        <source>With tick marks</source>
        <translation>目盛り付き</translation>
    </message>
    <message>
        <source>Ranges</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>%1: triggered</source>
        <translation>%1: 実行</translation>
    </message>
    <message>
        <source>Click a field, then press the keys</source>
        <translation>欄をクリックしてからキーを押します</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Next cue</source>
        <translation>次のキュー</translation>
    </message>
    <message>
        <source>Blackout</source>
        <translation>暗転</translation>
    </message>
    <message>
        <source>The shortcuts are those of this page. They work as long as no field has the focus.</source>
        <translation>これらはこのページのショートカットです。どの欄にもフォーカスがない間だけ働きます。</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Click to jump, drag, hover</source>
        <translation>クリックでジャンプ、ドラッグ、ポインターを重ねる</translation>
    </message>
    <message>
        <source>Without jump</source>
        <translation>ジャンプなし</translation>
    </message>
    <message>
        <source>Set the level to 30 without a signal</source>
        <translation>シグナルなしでレベルを 30 に設定</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>フェーダー</translation>
    </message>
    <message>
        <source>Faders</source>
        <translation>フェーダー</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search field, empty</source>
        <translation>検索欄、空</translation>
    </message>
    <message>
        <source>interview</source>
        <translation>インタビュー</translation>
    </message>
    <message>
        <source>Search field, with text</source>
        <translation>検索欄、テキストあり</translation>
    </message>
    <message>
        <source>Opening titles, second version</source>
        <translation>オープニングタイトル、第 2 版</translation>
    </message>
    <message>
        <source>Label that fits</source>
        <translation>収まるラベル</translation>
    </message>
    <message>
        <source>Cropped at the right</source>
        <translation>右側を省略</translation>
    </message>
    <message>
        <source>Cropped in the middle</source>
        <translation>中央を省略</translation>
    </message>
    <message>
        <source>Cropped at the left</source>
        <translation>左側を省略</translation>
    </message>
    <message>
        <source>Being edited</source>
        <translation>編集中</translation>
    </message>
    <message>
        <source>Click a name to edit it.</source>
        <translation>名前をクリックすると編集できます。</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>「%1」に変更しました</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>テキスト欄</translation>
    </message>
    <message>
        <source>(new edit)</source>
        <translation>(新しい編集)</translation>
    </message>
    <message>
        <source>Drag across a number; click it to type</source>
        <translation>数値の上でドラッグ、クリックで入力</translation>
    </message>
    <message>
        <source>Ctrl doubles the speed of a drag, Shift halves it.</source>
        <translation>ドラッグ速度は Ctrl で 2 倍、Shift で半分になります。</translation>
    </message>
    <message>
        <source>Show the mixed selection as --</source>
        <translation>混在した選択を -- と表示</translation>
    </message>
    <message>
        <source>Open the port</source>
        <translation>ポートを開く</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>The library&apos;s own</source>
        <translation>ライブラリ独自のもの</translation>
    </message>
    <message>
        <source>Standard controls</source>
        <translation>標準コントロール</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>模擬コントローラー</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Color stop %1</source>
        <translation>カラー分岐点 %1</translation>
    </message>
    <message>
        <source>Select color</source>
        <translation>色の選択</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>最大値</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小値</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>上限</translation>
    </message>
</context>
</TS>
