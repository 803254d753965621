<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CanvasAccessibility</name>
    <message>
        <source>%1 × %2 px, %3, %4</source>
        <translation>%1 × %2 px、%3、%4</translation>
    </message>
</context>
<context>
    <name>CanvasTexts</name>
    <message>
        <source>single_stroke</source>
        <translation>%1 ストローク</translation>
    </message>
    <message>
        <source>multiple_strokes</source>
        <translation>%1 ストローク</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Drawing-</source>
        <translation>イラスト-</translation>
    </message>
    <message>
        <source>Export Drawing</source>
        <translation>イラストをエクスポート</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>PNG 画像</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG 画像</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF 画像</translation>
    </message>
    <message>
        <source>BMP image</source>
        <translation>BMP 画像</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>PDF ドキュメント</translation>
    </message>
    <message>
        <source>Marlevo drawing</source>
        <translation>Marlevo イラスト</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>イラストを開く</translation>
    </message>
    <message>
        <source>Save Drawing</source>
        <translation>イラストを保存</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Square 1:1 (1080×1080)</source>
        <translation>正方形 1:1 (1080×1080)</translation>
    </message>
    <message>
        <source>HD 16:9 (1280×720)</source>
        <translation>HD 16:9 (1280×720)</translation>
    </message>
    <message>
        <source>Full HD 16:9 (1920×1080)</source>
        <translation>フル HD 16:9 (1920×1080)</translation>
    </message>
    <message>
        <source>4K 16:9 (3840×2160)</source>
        <translation>4K 16:9 (3840×2160)</translation>
    </message>
    <message>
        <source>A4 Portrait (2480×3508)</source>
        <translation>A4 縦 (2480×3508)</translation>
    </message>
    <message>
        <source>A4 Landscape (3508×2480)</source>
        <translation>A4 横 (3508×2480)</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>ページまたは範囲をコンマで区切って指定します。範囲は 2 つの数字をハイフンでつないで指定します。例: 3,5-7,9 と指定すると 3、5、6、7、9 ページを印刷します。</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>Draw</source>
        <translation>描く</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>楕円</translation>
    </message>
</context>
<context>
    <name>marlevo::ActionRow</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Opens a menu</source>
        <translation>メニューを開きます</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasScrollArea</name>
    <message>
        <source>Drawing area</source>
        <translation>描画領域</translation>
    </message>
</context>
<context>
    <name>marlevo::CanvasView</name>
    <message>
        <source>Canvas</source>
        <translation>キャンバス</translation>
    </message>
</context>
<context>
    <name>marlevo::ColorRow</name>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Color black</source>
        <translation>黒色</translation>
    </message>
    <message>
        <source>Color white</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Color red</source>
        <translation>赤色</translation>
    </message>
    <message>
        <source>Color orange</source>
        <translation>オレンジ色</translation>
    </message>
    <message>
        <source>Color yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Color green</source>
        <translation>緑色</translation>
    </message>
    <message>
        <source>Color blue</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Color purple</source>
        <translation>紫色</translation>
    </message>
</context>
<context>
    <name>marlevo::ContentView</name>
    <message>
        <source>Marlevo</source>
        <translation>Marlevo</translation>
    </message>
</context>
<context>
    <name>marlevo::DrawingSection</name>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>%1px</source>
        <translation>%1px</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>描画</translation>
    </message>
</context>
<context>
    <name>marlevo::ExportPopover</name>
    <message>
        <source>Export as</source>
        <translation>エクスポート形式</translation>
    </message>
</context>
<context>
    <name>marlevo::EyeButton</name>
    <message>
        <source>Hide layer</source>
        <translation>レイヤーを隠す</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>レイヤーを表示</translation>
    </message>
    <message>
        <source>Hide layer: %1</source>
        <translation>レイヤーを隠す: %1</translation>
    </message>
    <message>
        <source>Show layer: %1</source>
        <translation>レイヤーを表示: %1</translation>
    </message>
</context>
<context>
    <name>marlevo::FormsSection</name>
    <message>
        <source>Forms</source>
        <translation>図形</translation>
    </message>
</context>
<context>
    <name>marlevo::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>About Marlevo</source>
        <translation>Marlevo について</translation>
    </message>
    <message>
        <source>Marlevo</source>
        <translation>Marlevo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Draw with the mouse: strokes, shapes and layers.</source>
        <translation>マウスで線や図形を描き、レイヤーに重ねられます。</translation>
    </message>
</context>
<context>
    <name>marlevo::LayerRows</name>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
</context>
<context>
    <name>marlevo::LayersSection</name>
    <message>
        <source>Add layer</source>
        <translation>レイヤーを追加</translation>
    </message>
    <message>
        <source>Delete layer</source>
        <translation>レイヤーを削除</translation>
    </message>
    <message>
        <source>Move layer up</source>
        <translation>レイヤーを上へ移動</translation>
    </message>
    <message>
        <source>Move layer down</source>
        <translation>レイヤーを下へ移動</translation>
    </message>
</context>
<context>
    <name>marlevo::MenuCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新規ウィンドウ</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>印刷…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Copy Canvas</source>
        <translation>キャンバスをコピー</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>キャンバス(&amp;C)</translation>
    </message>
    <message>
        <source>Clear Active Layer</source>
        <translation>アクティブレイヤーを消去</translation>
    </message>
    <message>
        <source>Clear All Layers</source>
        <translation>すべてのレイヤーを消去</translation>
    </message>
    <message>
        <source>Toggle Grid</source>
        <translation>グリッドの表示を切り替え</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Add Layer</source>
        <translation>レイヤーを追加</translation>
    </message>
    <message>
        <source>Delete Active Layer</source>
        <translation>アクティブレイヤーを削除</translation>
    </message>
    <message>
        <source>Move Layer Up</source>
        <translation>レイヤーを上へ移動</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>レイヤーを下へ移動</translation>
    </message>
    <message>
        <source>New Canvas…</source>
        <translation>新規キャンバス…</translation>
    </message>
</context>
<context>
    <name>marlevo::NewCanvasSheet</name>
    <message>
        <source>Custom size</source>
        <translation>カスタムサイズ</translation>
    </message>
    <message>
        <source>Create Canvas</source>
        <translation>キャンバスを作成</translation>
    </message>
    <message>
        <source>New Canvas</source>
        <translation>新規キャンバス</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>marlevo::OpenPanel</name>
    <message>
        <source>There is no file “%1”.</source>
        <translation>ファイル「%1」が見つかりません。</translation>
    </message>
</context>
<context>
    <name>marlevo::PreferencesView</name>
    <message>
        <source>Default width</source>
        <translation>既定の幅</translation>
    </message>
    <message>
        <source>Default height</source>
        <translation>既定の高さ</translation>
    </message>
    <message>
        <source>Auto-save every 30 seconds</source>
        <translation>30 秒ごとに自動保存</translation>
    </message>
    <message>
        <source>Default Canvas Size</source>
        <translation>既定のキャンバスサイズ</translation>
    </message>
    <message>
        <source>Auto-Save</source>
        <translation>自動保存</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>marlevo::SavePanel</name>
    <message>
        <source>Save in:</source>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>A folder named “%1” exists.</source>
        <translation>「%1」という名前のフォルダーがすでにあります。</translation>
    </message>
    <message>
        <source>The folder “%1” does not exist.</source>
        <translation>フォルダー「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>「%1」という名前は長すぎます。</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>「%1」はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>marlevo::SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>marlevo::ShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Tools and View</source>
        <translation>ツールと表示</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Delete Selected Stroke</source>
        <translation>選択したストロークを削除</translation>
    </message>
</context>
<context>
    <name>marlevo::SidebarView</name>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
</context>
<context>
    <name>marlevo::StatusBar</name>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>marlevo::TextFieldCommands</name>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>marlevo::ViewSection</name>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>透明な背景</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowAccessor::Coordinator</name>
    <message>
        <source>Do you want to save your drawing?</source>
        <translation>イラストを保存しますか？</translation>
    </message>
    <message>
        <source>Your drawing will be lost if you don&apos;t save.</source>
        <translation>保存しない場合、イラストは失われます。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>保存しない(&amp;D)</translation>
    </message>
</context>
<context>
    <name>marlevo::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
</context>
</TS>
