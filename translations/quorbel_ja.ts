<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>アプリのパッケージ内に ExifTool が見つかりません。メタデータの読み書きができません。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1（%n 個のフォルダー）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n 枚を表示</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n 枚を選択</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>対応する画像が見つかりませんでした。</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>「%1」が見つからなくなりました。</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>「%1」はほかのプログラムによって削除されました。未保存の変更は保持されており、編集 ▸ 編集内容を復元 で戻せます。</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>「%1」はほかのプログラムによって削除されました。</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>次の写真のフィールドの記録先を読み取れませんでした：%1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>選択した写真のフィールドの記録先はすでに一致しています。</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>未保存の変更は、写真が読み込まれしだい復元されます。</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>次の写真はもうありません：%1。未保存の変更は保持されています。</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>%1 が見つからなくなりました。未保存の変更は保持されています。</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>ファイル名に「/」は使えません。</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>名前を変更できませんでした：%1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>名前を変更できませんでした：「%1」を保存中です。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>%1 を除いて保存</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>異なる項目</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>%n 種類のテキスト</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>消去</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1（%3 枚中 %2 枚）</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>キャプション</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>報道</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>博物館・美術館</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>ストックフォト</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>権利</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>セットに名前を付けてください</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>「%1」という名前のセットが 2 つあります</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>「%1」にはフィールドがありません</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>%n 枚の写真に Content Credentials が含まれています。ほかのプログラムでは変更済みと表示されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>時間がかかりすぎました</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>名前が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>メタデータを読み取れませんでした：%1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>リンク切れ</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>空</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>%n 個のファイルを読み取れず、除外しました：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>%n 個のサイドカーを読み取れず、写真はサイドカーなしで表示されています：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>先頭に戻りました</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>末尾に戻りました</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>空欄はもうありません</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>空欄はもうありません · 未読み込み %1 枚</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>名前は変わりません。</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>どの写真も名前は変わりません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真は名前が変わりません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>「%1」の名前を変更できませんでした：%2。</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>名前を変更できませんでした：%1。%2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>名前の変更を元に戻せませんでした：%1。%2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>現在、別の Quorbel が元に戻す処理を行っています</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>すでに元に戻されています</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>保存を元に戻す</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>「%1」の時刻の変更を元に戻す</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真の時刻の変更を元に戻す</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>「%1」の保存を元に戻す</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真の保存を元に戻す</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>時刻の変更を元に戻せませんでした：%1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>保存を元に戻せませんでした：%1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>%n 枚の写真の時刻の変更を元に戻せませんでした：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>%n 枚の写真の保存を元に戻せませんでした：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真はその後に変更されたため、元に戻していません：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>元に戻しましたが、%n 枚の写真はその後に変更されたため、そのままにしました：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>元に戻しましたが、%n 枚の写真で一部の値を元どおりにできませんでした：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>内容を読み取れませんでした</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>読み直しに時間がかかりすぎました</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>読み取れなくなりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真で IPTC と XMP の%1が異なっていたため、1 つにまとめました：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真を保存できませんでした：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>書き込まれていません</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>書き込まれていません：%1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>%1 に書き込めませんでした：%2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>何も書き込まれていません：%1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>保存しましたが、%n 個のフィールドで読み直した値が異なります：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>保存しましたが、IPTC ブロックが複数ある写真では IPTC を変更していません：%1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>更新されていません：%1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>保存できませんでした：%1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>編集内容は %n 個のサイドカーに保存されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>%n 枚の写真の編集内容はサイドカーに保存されます</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>編集内容は %1 に保存されます</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>%n 枚の写真の編集内容は %1 に保存されます</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>もうありません</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>%n 枚の写真では、ファイルと異なるサイドカーの値をそのまま残します。サイドカーの値は置き換えられません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>%n 枚の写真は書き込む必要がありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真にはサイドカーがありません：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真は RAW と同じ名前で、サイドカーは RAW のものです：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真は RAW ではありません：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>読み取り専用のため、変更していません：%1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>読み取れないため、変更していません：%1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>同じ内容にならないため、書き込んでいません：%1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1（読み込みに時間がかかりすぎました）</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>テンプレート「%1」をエクスポートできません</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>新しいテンプレート</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>入力されていません：%1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>タイムゾーンを設定できませんでした：%1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>時刻をずらせませんでした：%1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真のタイムゾーンを設定できませんでした：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真の時刻をずらせませんでした：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真で、読み直した時刻が異なります：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>タイムゾーンがないため、変更していません：%1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>年月日と時刻が揃っていない日時は変更していません：%1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>撮影</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>最初</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>最後</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>タイムゾーンなし：%n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>日付が変わる写真：%n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真は日時がないため変更しません：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>%n 枚の写真は日時の形式が正しくないため変更しません：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真は元のタイムゾーンがないため変更しません：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 枚の写真はタイムゾーンを判別できる位置がないため変更しません：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>位置はこのタイムゾーンにあります。</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>位置は別のタイムゾーンにあります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>%n 件中 %1 件の位置がこのタイムゾーンにあります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 h</source>
        <extracomment>hours</extracomment>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes</extracomment>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>seconds</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 earlier</source>
        <extracomment>%1 is a span of time: &quot;1 h 02 min 30 s later&quot;</extracomment>
        <translation>%1戻す</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>%1進める</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>各写真のタイムゾーン</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>整数で、100 年以内にしてください。</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>この写真には日時がありません。別の写真を選んでください。</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>日時ではありません：YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>時刻をずらせませんでした：処理中に RAW ファイルの編集内容の保存先が設定で変更されました</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>「%1」はもうありません。</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>「%1」はコードの一覧としては大きすぎます。</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>「%1」を読み取れません：%2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>「%1」にはコピーできるフィールドがありません。</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>「%1」のテキストは長すぎてコピーできません。</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>これらのフィールドは新しいバージョンの Quorbel でコピーされたものです。</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>フィールドがまだコピーされていません。編集 ▸ フィールドをコピー で、選択した写真のフィールドをコピーできます。</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>この名前のセットはすでにあります</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>バージョン %1（ビルド %2）</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 The Quorbel developers. MIT ライセンスのもとで公開されている自由ソフトウェアです。</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>写真の読み書きには Phil Harvey の ExifTool（Artistic License または GPL）を使用しています。Qt %1（LGPL 3）、LibRaw（LGPL 2.1 または CDDL）、libheif（LGPL 3）、libjxl（BSD）、OpenJPEG（BSD）、Little CMS（MIT）を用いて作られています。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>Quorbel について</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>フィールドセット(&amp;S)</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>画面の表示をセットとして保存…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>セットを編集…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>星なし(&amp;O)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>星 &amp;%n</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>保存して次の写真へ(&amp;X)</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>前の写真と同じ(&amp;F)</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>評価(&amp;N)</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>次の写真(&amp;X)</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>前の写真(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>拡大して見る(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>サブフォルダーも含めて開く(&amp;B)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使った項目を開く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>名前を変更(&amp;N)…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>写真の名前を変更(&amp;H)…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>更新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>フォルダーを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>設定(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>サイドカーを写真に書き込む(&amp;I)…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>メタデータをサイドカーに書き込む(&amp;M)…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>メニューを消去</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>保存を元に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>名前の変更を元に戻す(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>編集内容を復元(&amp;B)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>検索(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>時刻をずらす(&amp;H)…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>値を一致させる(&amp;G)</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>フィールドをコピー(&amp;E)</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>フィールドを貼り付け(&amp;D)…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>フィールドをもう一度貼り付け(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>プレビューを表示(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>不一致を表示(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>名前空間の詳細を表示(&amp;N)</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>すべて読み直す(&amp;A)</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>RAW と JPEG をペアにする(&amp;J)</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>次の空欄(&amp;G)</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>前の空欄(&amp;U)</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>フィルターをクリア(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>Quorbel ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>アップデートを確認(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>Quorbel について(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>%n 枚に適用(&amp;A)</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>プレビューを隠す(&amp;P)</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>画像のフォルダーを選んでください。中にあるフォルダーも開きます。</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>コードのテキストファイルを選んでください。1 行ごとに、コード、タブ、テキストの順に書かれたものです。</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>画像のフォルダー、または 1 つ以上の画像ファイルを選んでください。</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>すべてのファイル (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>テキストファイル (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>選択</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>開く</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>クイックキーワード(&amp;K)</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>テンプレート (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>テンプレートファイルを選んでください。</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>テンプレートの保存先を選んでください。</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>テンプレートとして保存…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>テンプレート(&amp;M)</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>テンプレート…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>お使いの Quorbel は最新バージョンです。</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>Quorbel %1 が利用できます</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>Quorbel の新しいバージョンが利用できます。</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>後で</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>写真に埋め込まれた文字情報を読み取り、編集します。</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>写真のフォルダー、または写真。</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[ファイル…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>アップデート情報の「%1」がないか、テキストではありません。</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>アップデート情報の「%1」がないか、整数ではありません。</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>サーバーの応答が正しくありません：HTTP ステータス %1。</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>アップデート情報が正しい JSON ではありません：%1。</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>アップデート情報が JSON オブジェクトではありません。</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>読み上げには長めです：%1 / %n 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>「%1」を参照していますが、空です</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>代替テキスト</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>画像を見られない人のために、写っているものを伝えます</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>拡張説明</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>画像を見られない人のために、短いテキストでは書ききれないことを詳しく説明します</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>国コード</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>ISO 3166 の 2 文字または 3 文字：CH、CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>役職</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>作成者の役職または職業</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>作成者の連絡先：住所、電話、メール、ウェブ</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>人物の詳細</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>写っている人物：識別子、説明、特徴</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>モデルの年齢</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>撮影時のモデルの年齢（歳）</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>最年少モデル</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>撮影時の最年少モデルの年齢</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>モデル情報</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>モデルについてのその他の情報</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>モデルリリース</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>写っている人物についてのリリースの取得状況</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>モデルリリース ID</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>モデルリリースの管理番号</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>撮影場所</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>カメラのあった場所</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>写っている場所</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>画像に写っている場所</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>主題コード</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>何についての画像か（IPTC の 8 桁コード、旧リスト）</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>主題の用語</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>何についての画像か（統制語彙の用語）</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>ジャンルの用語</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>どのような種類の画像か（統制語彙の用語）</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>イベント ID</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>イベントの識別子</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>組織</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>写っている組織の名称</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>組織コード</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>写っている組織のコード：証券コード、登記番号</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>写っている製品：GTIN と識別子</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>美術品・物品</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>写っている作品：作者、日付、所有者、権利</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>画像の部分：輪郭、名前、種類、役割</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>著作権者</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>著作権の所有者</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>画像作成者</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>画像を作った人と識別子</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>協力者</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>画像の制作に協力した人とその役割</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>その他の制約</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>その他の使用制限（文章で）</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>データマイニング</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>他者が画像をデータマイニングや AI の学習に使ってよいか</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>プロパティリリース</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>写っているものについてのリリースの取得状況</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>プロパティリリース ID</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>プロパティリリースの管理番号</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>ライセンサー</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>使用許諾の問い合わせ先</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>提供者</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>画像を最後に提供した人または組織</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>提供者の画像 ID</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>提供者が付けた画像の番号</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>埋め込まれた権利</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>機械可読の条件（ファイル内）</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>リンクされた権利</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>機械可読の条件（リンク先）</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>デジタルソース</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>画像の元になったもの：カメラ、スキャン、ソフトウェア、AI</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>AI システム</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>画像を生成したエンジンまたはモデル</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>AI システムのバージョン</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>そのバージョン</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>AI プロンプト</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>AI への指示と、除外するよう求めたもの</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>AI プロンプトの作成者</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>プロンプトを書いた人</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>画像 GUID</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>ほかの画像と重複しない識別子</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>レジストリ登録</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>画像を登録しているレジストリと、そこでの番号</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>最大の幅</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>入手できる最大の画像のサイズ（ピクセル）</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>最大の高さ</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>ウェブ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>住所</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>郵便番号</translation>
    </message>
    <message>
        <source>City</source>
        <translation>市区町村</translation>
    </message>
    <message>
        <source>State</source>
        <translation>都道府県・州</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>作品</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>制作日</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>制作時期</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>貢献内容</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>物理的特徴</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>様式・時代</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>収蔵番号</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>収蔵品の URL</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>著作権表示</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>著作権者</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>著作権者 ID</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>ライセンサー</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>ライセンサー ID</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>作者 ID</translation>
    </message>
    <message>
        <source>term</source>
        <translation>用語</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>用語 ID</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>語彙</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>関係</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>権利表現</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>権利表現</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>エンコード</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>協力者</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>役割</translation>
    </message>
    <message>
        <source>region</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>役割</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
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
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>サブロケーション</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>世界の地域</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>高度 (m)</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>海面下</translation>
    </message>
    <message>
        <source>person</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>特徴</translation>
    </message>
    <message>
        <source>product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>レジストリ</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>ライセンサー</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>電話の種類</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>電話 2</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>電話 2 の種類</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>住所（続き）</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>著作権者</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>提供者</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1が数値ではありません：「%2」</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>整数ではありません：「%1」</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>%1にはほかのプログラムの%2が入っており、この変更を行うと失われます</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>数値ではありません</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1 · ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>ジャンルを選択…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>主題を選択…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>種類を選択…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>役割を選択…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>デジタルソースタイプ</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>実写のデジタル撮影</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>カメラで撮影し、現像以外の変更をしていない</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>実写の複数フレームによる計算合成撮影</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>同じ瞬間の複数のフレームをカメラが合成したもの</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>透過原稿（ネガ）のデジタル化</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>フィルムのネガをデジタル化したもの</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>透過原稿（ポジ）のデジタル化</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>スライドをデジタル化したもの</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>反射原稿のデジタル化</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>プリントなど紙の原稿をスキャンしたもの</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>人が編集したメディア</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>生成 AI 以外のツールで人が変更した画像</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>生成 AI による編集</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>一部が生成 AI によって変更または追加された画像</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>アルゴリズムで変更されたメディア</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>生成 AI 以外のプログラムが自動で変更したもの</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>デジタル作品</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>イラストなど、人がデジタルツールで制作したもの</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>データに基づくメディア</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>グラフや地図など、データから描いたもの</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>生成 AI による作成</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>ほかの画像を学習した AI がすべて生成したもの</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>アルゴリズムのみによるメディア</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>フラクタルなど、学習によらない数式で計算したもの</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンキャプチャ</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>ディスプレイの表示内容</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>仮想イベントの記録</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>仮想世界での出来事を記録したもの</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>要素の合成</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>さまざまな種類の素材を組み合わせたもの</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>撮影した要素の合成</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>すべて撮影された素材を組み合わせたもの</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>生成 AI の要素を含む合成</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>少なくとも 1 つが生成 AI による素材を組み合わせたもの</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>人による軽微な編集を加えたオリジナルメディア</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>2024 年に廃止：「人が編集したメディア」を使用してください</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>ソフトウェアによる作成</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>2022 年に廃止：方法を示す用語を使用してください</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>デジタルアート</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>2024 年に廃止：「デジタル作品」を使用してください</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>指定なし（禁止の定めなし）</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>ファイルに記載がない</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>誰でもデータマイニングや学習に使ってよい</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>AI/ML の学習は禁止</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>AI の学習は不可、その他のデータマイニングは可</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>生成 AI/ML の学習は禁止</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>画像や文章を生成する AI の学習は不可</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>検索エンジンのインデックス作成を除き禁止</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>検索エンジンへの掲載のみ可</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>禁止</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>データマイニングも学習も一切不可</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>禁止、「その他の制約」を参照</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>許可の範囲は「その他の制約」に記載（入力必須）</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>禁止、「埋め込まれた権利」を参照</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>許可の範囲は「埋め込まれた権利」に記載</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>禁止、「リンクされた権利」を参照</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>許可の範囲は「リンクされた権利」のリンク先に記載</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>モデルリリースの状況</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>写っている人は誰もリリースに署名していない</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>同意が必要な人は写っていない</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>無制限のモデルリリース</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>写っている全員が無制限で署名済み</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>制限付きまたは不完全なモデルリリース</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>署名していない人がいる、または用途が限られている</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>プロパティリリースの状況</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>写っているものの所有者は誰も署名していない</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>所有者の同意が必要なものは写っていない</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>無制限のプロパティリリース</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>すべての所有者が無制限で署名済み</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>制限付きまたは不完全なプロパティリリース</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>最年少モデルの年齢</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>年齢不明</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>最年少者の年齢がわからない</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>25 歳以上</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>最年少者が 25 歳以上</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>24 歳</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>23 歳</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>22 歳</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>21 歳</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>20 歳</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>19 歳</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>18 歳</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>最年少者が多くの国で成人とされる年齢</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>17 歳</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>16 歳</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>15 歳</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>14 歳以下</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>最年少者が 14 歳以下の子ども</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>電話の種類</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>勤務先</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>職場の電話</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>携帯</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>携帯電話</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>FAX</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>ファクシミリ</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>自宅</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>自宅の電話</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>ポケットベル</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>短いメッセージを受信する端末</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>顔写真</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>人物の頭部</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>半身</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>人物の腰から上</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>全身</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>人物の頭からつま先まで</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>横顔</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>横から見た人物</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>後ろ姿</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>後ろから見た人や物</translation>
    </message>
    <message>
        <source>single</source>
        <translation>単独</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>1 人または 1 つだけ</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>カップル</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>親しい間柄の 2 人</translation>
    </message>
    <message>
        <source>two</source>
        <translation>二人</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>2 人または 2 つ</translation>
    </message>
    <message>
        <source>group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>3 人以上または 3 つ以上</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>全景</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>場所やイベントの全体</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>パノラマ</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>風景や街を広く見渡したもの</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>空撮</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>空から撮影</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>水中</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>水面下で撮影</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>夜景</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>夜に撮影</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>衛星</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>宇宙から撮影</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>建物の外側</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>内観</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>部屋や建物の内側</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>クローズアップ</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>近くから細部を画面いっぱいに撮影</translation>
    </message>
    <message>
        <source>action</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>動いている人や物</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>公演・演技</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>舞台やショーに立つ人</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>ポーズ</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>カメラに向かってポーズをとる人</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>象徴的</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>写っているものではなく概念を表す</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>風変わり</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>奇妙な、または面白いもの</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>映画のシーン</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>映画の撮影現場、または映画の一コマ</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>主題コード</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>芸術・文化・エンターテインメント</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>音楽、映画、演劇、文学、博物館・美術館、著名人</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>犯罪・法律・司法</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>警察、裁判所、法律、刑務所</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>災害・事故</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>火災、洪水、地震、衝突・墜落</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>経済・ビジネス・金融</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>企業、市場、商業、産業</translation>
    </message>
    <message>
        <source>education</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>学校、大学、授業</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>環境問題</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>自然、気候、汚染、環境保護</translation>
    </message>
    <message>
        <source>health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>病気、医療、病院</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>ヒューマンインタレスト</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>人、動物、珍しい話題</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>労働</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>仕事、労働組合、ストライキ、失業</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>ライフスタイル・レジャー</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>旅行、食、趣味、ファッション</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>政治</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>政府、選挙、政党、外交</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>宗教・信仰</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>信仰、信徒、祭礼</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>科学・技術</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>研究、発見、発明</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>社会問題</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>家族、貧困、移民、依存症</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>スポーツ</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>競技、選手、クラブ</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>騒乱・紛争・戦争</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>戦争、暴動、テロ、和平交渉</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>天気</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>予報、嵐、暑さ、雪</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>メディアトピック</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>芸術・文化・エンターテインメント・メディア</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>音楽、映画、演劇、文学、博物館・美術館、新聞・放送</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>災害・事故・緊急事態</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>火災、洪水、地震、衝突・墜落、救助</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>環境</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>政治・行政</translation>
    </message>
    <message>
        <source>religion</source>
        <translation>宗教</translation>
    </message>
    <message>
        <source>society</source>
        <translation>社会</translation>
    </message>
    <message>
        <source>Families, communities, migration, welfare</source>
        <translation>家族、地域社会、移民、福祉</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>紛争・戦争・平和</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>現場収録</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>その場で記録した出来事</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>アドバイス</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>日常生活の疑問に答えるもの</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>今日は何の日</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>過去の同じ日の出来事</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>出来事の意味を解説</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>記念日</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>過去の出来事の記念日に振り返るもの</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>アーカイブ資料</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>以前の保存資料の再利用</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景解説</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>出来事の理解に必要な知識</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現況</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>今起きていること</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>プレビュー記事</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>始まる前にイベントを紹介</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>予定表</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>その日の予定</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>独占</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>1 社だけが入手したもの</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特集</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>人物やテーマを扱う長めの記事</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>定例</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>定期的に掲載</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>予測</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>今後の見通し</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>現場から</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>現場からの報道</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歴史</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>遠い過去の時代について</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>星占い</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>星の運勢</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>インタビュー</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>人物との対話</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>音楽について、または音楽そのもの</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>訃報</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>亡くなった人の生涯を紹介</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>オピニオン</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>筆者の意見</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>世論調査・アンケート</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>多くの人の回答</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>プレスリリース</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>当事者による発表</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>プレスダイジェスト</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>他紙の論調</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロフィール</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>人物や組織の紹介</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>上演・放送の予定</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>質疑応答</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>質問とその回答</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>引用</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>本人の言葉</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>未編集の音声</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>編集していない音声</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>質問への回答</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>1 つの質問への 1 つの回答</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>結果一覧・統計</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>得点、表、数値</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>回顧</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>長い期間を振り返るもの</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>レビュー</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>本、映画、ショーの批評</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>現場ルポ</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>その場の様子を描写</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>サイド記事・補足情報</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>ほかの記事に添える補足</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>特別レポート</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>1 つのテーマを詳しく取材</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>要約</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>複数の記事の要点</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>あらすじ</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>長い作品の内容を短くまとめたもの</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>テキストのみ</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>画像や音声なし</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>書き起こし・全文</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>発言をそのまま記録</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>続報</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>以前の記事に新情報を追加</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>音声レポート</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>記者の声で伝えるもの</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>まとめ</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>複数のレポートを 1 つにまとめたもの</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>総まとめ</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>終了した出来事を改めて伝えるもの</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>アフリカ</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>チュニジアから南アフリカまで、島々を含む</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>南極大陸</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>南極点を囲む大陸</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>アジア</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>トルコから日本、インドネシアまで</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>ヨーロッパ</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>アイスランドからロシアまで</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>北アメリカ</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>グリーンランドからパナマまで、カリブ海地域を含む</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>オセアニア</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>オーストラリア、ニュージーランド、太平洋の島々</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>南アメリカ</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>コロンビアからティエラ・デル・フエゴまで</translation>
    </message>
    <message>
        <source>World</source>
        <translation>世界</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>全世界</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>領域の種類</translation>
    </message>
    <message>
        <source>human</source>
        <translation>人間</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>人、またはその一部</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>動物</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>動物、またはその一部</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>植物</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>植物、またはその一部</translation>
    </message>
    <message>
        <source>building</source>
        <translation>建物</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>建物、またはその一部</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>乗り物</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>車、列車、船、飛行機</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>販売のために作られたもの</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>芸術作品</translation>
    </message>
    <message>
        <source>food</source>
        <translation>食べ物</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>食べ物または飲み物</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>衣類</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>身に着けるもの</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>読み取れる文字</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>グラフィック</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>図、ロゴ、標識</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>機械可読コード</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>バーコードなど</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>地理的領域</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>土地の広がり</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>岩石地形</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>岩、崖、山</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>水域</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>湖、川、海</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>境界線</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>画像内で 1 つの画像が終わり、次の画像が始まるところ</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>領域の役割</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>主要被写体領域</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>画像の中心となるもの（画像ごとに 1 つ）</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>被写体領域</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>画像が扱うもの</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>注目領域</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>見る価値のある部分</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>この範囲にトリミングする</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>推奨トリミング</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>この範囲にトリミングするのが最適</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>横長トリミング</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>横長にする場合のトリミング範囲</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>縦長トリミング</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>縦長にする場合のトリミング範囲</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>正方形トリミング</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>正方形にする場合のトリミング範囲</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>合成画像の構成要素</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>この画像を構成する画像の 1 つ</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>著作権領域</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>独自の著作権を持つものが写っている部分</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>業務用</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>社内のワークフロー用</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>輪郭の形状</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>角、幅、高さ</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>円</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>中心と半径</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>2 つ以上の点</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>輪郭の単位</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>相対</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>画像の幅と高さに対する割合（0～1）</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>画像のピクセル</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>日本語</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>「%1」はすでにあります</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>「%1」：%2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>「%1」はもうありません</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>現在、別の Quorbel が名前を変更しています</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>名前の変更を元に戻す</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>「%1」の名前の変更を元に戻す</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真の名前の変更を元に戻す</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>ファイル名に「/」は使えません</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>ファイル名として長すぎます</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>フォルダーが読み取り専用です</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>もうありません</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>%1 のまま</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>%1 に変更</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>名前が重複するため -%1 を付加</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>同時に変更：%1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>「%1」を移動できません</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>%1 はフォルダーです。何も書き込まれていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 は読み取り専用です。</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>%1 枚中 %n 枚の写真が読み取り専用です：%2。何も書き込まれていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>別の保存が進行中か、中断されています：写真と同じ場所に %1 があります。ほかに保存中のプログラムがなければ、削除してからもう一度保存してください。何も書き込まれていません。</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>「%1」は長すぎます。値は 128 KiB までです。何も書き込まれていません。</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>「%1」に書き込めません</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>「%1」のコピーを保持できません</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>名前に使えるのは A～Z の英字と数字だけです。</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>名前には 2 文字以上の英字または数字が必要です。</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>「%1」は予約語です。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>「%1」フィールドの名前です</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>日時ではありません：YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>位置ではありません：緯度, 経度</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>時差ではありません：+HH:MM</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>整数ではありません</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>アフリカーンス語</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>アルバニア語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア語</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>アルメニア語</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>バスク語</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>ベンガル語</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>ブルガリア語</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>カタルーニャ語</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中国語</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>クロアチア語</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>チェコ語</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>デンマーク語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>エストニア語</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>フィンランド語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>ガリシア語</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>ジョージア語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ語</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ語</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>ヒンディー語</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>ハンガリー語</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>アイスランド語</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>インドネシア語</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>アイルランド語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>ラテン語</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>ラトビア語</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>リトアニア語</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>マレー語</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>ノルウェー語</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>ペルシャ語</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>ポーランド語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>ポルトガル語</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>ルーマニア語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>セルビア語</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>スロバキア語</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>スロベニア語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>スワヒリ語</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>スウェーデン語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>ウクライナ語</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>ウルドゥー語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>ウェールズ語</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>写真の名前や表題として表示されます</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>どのアプリでも検索できるキャプション</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>どのアプリでもこの日付順に並びます</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>タグで絞り込みやグループ分けができます</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>写真を撮った人</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>著作権</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>権利・著作権表示</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>地図上のピンや場所順の並べ替えに使われます</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>GPS の緯度・経度</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>評価</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ 1～5、多くの写真ライブラリで読み取れます</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>見出し</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>ギャラリーに表示される短いタイトル</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>写っている人の名前</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>イベントごとに写真をまとめます</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>都道府県・州</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>都道府県または州</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>国名</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>サブロケーション</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>地区・会場</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>色・テキストのラベル</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>キャプション執筆者</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>キャプションを書いた人</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>主題のカテゴリ</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>クレジットライン</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>知的ジャンル</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>指示</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>編集上の指示</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ジョブ ID</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>ジョブ・送信参照番号</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>IPTC シーンコード</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>編集に使ったソフトウェア</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>元のソース</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>緊急度</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>編集上の緊急度（1～8）</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>使用条件</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>権利の使用条件</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>権利に関するウェブページ</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>権利情報の URL</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>デジタル化日時</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>画像をデジタル化またはスキャンした日時</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>時差（撮影）</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>撮影日時の UTC との時差</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>時差（デジタル化）</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>デジタル化日時の UTC との時差</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>シャッター速度</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>絞り</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>色空間</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>撮影場所</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>写っている場所</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>主題</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>写っているもの</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>権利</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>XMP ファイルではありません</translation>
    </message>
    <message>
        <source>set</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>空なら設定</translation>
    </message>
    <message>
        <source>append</source>
        <translation>末尾に追加</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>先頭に追加</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>「%1」に、存在しないフィールドの名前があります。</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>「%1」に、フィールドに対して実行できない指定があります。</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>「%1」に、テキストのないフィールドがあります。</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>「%1」はテンプレートではありません。</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>「%1」は新しいバージョンの Quorbel で作成されたものです。</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>「%1」には名前がありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>テンプレート「%1」を書き込めません</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>%1なし：「%2」</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>%1なし</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>評価ではありません：0～5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>そのまま：%1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>入力する内容がありません</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>未読み込み</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>空ではありません</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>すでにあります</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>1 枚の写真の%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%n 枚の写真の%1：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>%1 に Perl インタープリターが見つかりません。</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>ExifTool がコード %1 で終了しました：%2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>ExifTool の出力を解釈できませんでした：%1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>同梱の ExifTool が見つかりませんでした。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>ExifTool を起動できませんでした：%1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>読み込みはキャンセルされました。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>元の名前</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>連番</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>1 回の保存で「%1」の置き換えと追加を同時に行うことはできません。何も書き込まれていません。</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>読み込み中に変更されました</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>「%1」に書き込めません</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1 — 出力：%2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>値が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>オブジェクトの配列ではありません</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>ファイルが UTF-8 ではないため、Windows Latin 1 として読み込みました。</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>ファイルの一部の文字を読み取れませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>ほかに同様の行が %n 行あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>%1 行目にタブがありません：%2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>%1 行目のタブの前にコードがありません。</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>%1 行目に %2 のテキストがありません。</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>%1 行目：「=」を含むコードは入力できません：%2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>%1 行目：コードは最大 %n 文字です：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>%1 が %2 行目と %3 行目に重複しています。後の行が有効になります。</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>%n 件の日付</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>%n 件のタイトル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>%n 件の説明</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>%n 件の作成者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n 件の場所</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>%n 件の見出し</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n 件のイベント</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%1（%n 枚）</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>空のフィールドに入力します</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>選択すると空のフィールドに入力します</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>%n 枚に入力します</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>選択すると %n 枚に入力します</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>「%1」に追加します</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>選択すると「%1」に追加します</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>%n 枚の%1に追加します</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>選択すると %n 枚の%1に追加します</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>%1を置き換えます</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>選択すると%1を置き換えます</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>%1を置き換え、%n 枚に入力します</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>選択すると%1を置き換え、%n 枚に入力します</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>すでに同じ内容</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>%n 枚は同じ値</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>未確認</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>未確認 %n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>星 %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>一覧に戻る</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>最後の写真です</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>最初の写真です</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>星なし</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>サムネイルのみ</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>破損：一部しか表示できません</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>プレビュー %1</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>プレビュー %1 / %2</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>縮小表示 %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>未保存の編集 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>この写真は破損しており、表示できる内容がありません。</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>この写真はピクセル数が多すぎて表示できません。</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>このファイルには表示できる画像がありません。</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>星 0～5。現在の評価をクリックすると消去します</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>列の幅</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>候補</translation>
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
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>編集済み</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>この%1の操作</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>「%1」を残す</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>「%1」を取り除く</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>%1の中</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>新しいキーワード</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>一覧にないコードです</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>「%1」を使用</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>入力どおりの値（一覧にないコード）</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>選択中</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>UTC との時差</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a field, %2 what is said of it.
----------
%1 is what a key does, %2 the key.
----------
%1: name of a field, %2: what it holds.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n characters</source>
        <extracomment>Of a text. %1: how many characters it has, %n: how many it should have at most.</extracomment>
        <translation>
            <numerusform>%1 / %n 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>既定値と書式…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>これらの写真のその他のフィールド</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>この写真のその他のフィールド</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>%n 個のフィールド</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>カメラ情報なし</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>選択したすべてのファイルに%1を書き込む</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>このフィールドを削除</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>%1を元に戻す</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>メタデータを読み込み中</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>表示中</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>（空）</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>写真のファイル本体：読み取りのみで、書き込みは行いません</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>別の規格の値：読み取りのみで、書き込みは行いません</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>表示中</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>Return でこの値を使用</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>この値を使用</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>値を一致させる</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>%1の記録先</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>記録先ごとに値が異なるすべてのフィールドについて、表示中の値をサイドカー内のすべての記録先に書き込みます</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>記録先ごとに値が異なるすべてのフィールドについて、表示中の値をすべての記録先に書き込みます</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>フィールドを追加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>復元</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>名前を変更中…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>説明を追加…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>場所を追加…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>作成者を追加…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>著作権表示を追加…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>見出しを追加…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>イベントを追加…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>%n 枚すべての写真に書き込まれます</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>追加（既存の値は残ります）</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>%n 件を取り除く</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>ID を追加 ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>年齢を追加 ↵</translation>
    </message>
    <message>
        <source>Add organisation + ↵</source>
        <translation>組織を追加 ↵</translation>
    </message>
    <message>
        <source>Add code + ↵</source>
        <translation>コードを追加 ↵</translation>
    </message>
    <message>
        <source>Add keyword + ↵</source>
        <translation>キーワードを追加 ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>すべてに追加 ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>複数の値 — 変更しない</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>%n 枚中 %1 枚の写真に書き込まれます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>残り %1 枚を読み込み中…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>未読み込み %1 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>%1 枚すべて</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>%2 枚中 %1 枚以上</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>%2 枚中 %1 枚</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>%n 枚すべての写真から取り除かれます</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>取り除かれます</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>%1 枚の写真で記録先の値が異なります</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>この名前のフィールドはここでは変更できません</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>未保存の変更はありません</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>未保存の変更 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>%n 個のフィールド → %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 個のファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>%1の編集 %n 件が未保存です</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>%n 件の編集が未保存です</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>すべてにフィールドを追加</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>保存中…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>%1 枚に適用</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>写真が選択されていません</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>%1に言語を追加</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>言語またはコード</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>該当する言語はありません。「de-AT」のようなコードも使えます。</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>現在</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%1 か所のうち %n か所で値が異なります（別の規格の値を表示中）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%1 か所のうち %n か所で値が異なります</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1（取り除かれます）</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>ほかの言語の%1：%2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>ほかの言語：%1（%2）</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>言語を追加</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>言語を隠す</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>言語を表示</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>言語を追加…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>「%1」で必須</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>入力済み %1 / %2</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>次の空欄 F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>フィールドにチェックを入れると、選択したすべてのファイルに書き込まれます。</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>%n 枚の写真を編集中</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>フィールドセット</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>「場所」からコピー</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>「場所」にコピー</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>場所を検索…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>コピー元が空</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>ここは空</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>記憶した連絡先を使用…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>記憶したライセンサーを使用…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>記憶した連絡先を使用…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>記憶したライセンサーを使用…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>記憶した連絡先を消去</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>記憶したライセンサーを消去</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>記憶した連絡先</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>記憶したライセンサー</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>%n 件の連絡先</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>%n 件の作品</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>%n 件の用語</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>%n 件の権利表現</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>%n 件の項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>%n 人の協力者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n 件の領域</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>%n 件の輪郭</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>%n 個の点</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n 件のリンク</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>%n 人</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n 件の製品</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>%n 件のライセンサー</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>%n 件の著作権者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n 件の提供者</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>連絡先を追加</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>作品を追加</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>用語を追加</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>権利表現を追加</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>項目を追加</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>協力者を追加</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>領域を追加</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>輪郭を追加</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>点を追加</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>リンクを追加</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>場所を追加</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>人物を追加</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>製品を追加</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>ライセンサーを追加</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>著作権者を追加</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>作成者を追加</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>提供者を追加</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>新しい連絡先</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>新しい作品</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>新しい用語</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>新しい権利表現</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>新しい項目</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>新しい協力者</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>新しい領域</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>新しい輪郭</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>新しい点</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>新しいリンク</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>新しい場所</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>新しい人物</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>新しい製品</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>新しいライセンサー</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>新しい著作権者</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>新しい作成者</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>新しい提供者</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>コードを追加</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>場所を検索</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>都市、名所、空港</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>検索できませんでした</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>%1 を消去</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>さらに表示</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>この%1のその他のフィールド</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>ほかのプログラムの%1も入っており、そのまま残ります。そのため、この%2を変更できないことがあります。</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1、%2（%4 件中 %3 件目）</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>コードとして保存されます</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>この %1 枚</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>取り除く予定</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>最近使ったもの</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>新しいセット…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>セットを編集…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>クイック</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>クイックキーワード</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>「%1」をすべてに追加、%2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>「%1」をすべてに追加</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>クイックキーワードのセット：%1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>座標から場所を入力</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>場所の検索がインストールされていません</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>場所検索サービスから、時間をおくよう求められました</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>場所検索サービスから送られたデータが大きすぎます</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>場所検索サービスが時間内に応答しませんでした</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>場所検索サービスに接続できません</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>場所検索サービスから想定外の応答がありました</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>場所検索サービスがステータス %1 を返しました</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>%1 の地図</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>フィールドを追加</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>フィールドを検索…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>フィールドを検索</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>推奨 · どのアプリでも有効</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>設定済みのフィールドは表示されません。</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>詳細 · カスタムフィールド</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>一部のアプリでは表示されないことがあります</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>値</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>例：Project</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>推奨フィールドはすべて表示されています。</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>該当するフィールドはありません。</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>「%1」として保存されます</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>メタデータフィールドを追加</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>その他のフィールド</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>コピー：今日 %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>コピー：昨日 %1</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <extracomment>The form of a day with its month in words: d is the day&apos;s number, MMMM the month&apos;s name, yyyy the year.</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>Copied %1, %2</source>
        <extracomment>%1 is a day, %2 a time of day.</extracomment>
        <translation>コピー：%1 %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>コピーしたフィールド</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>コピー元：%1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>すべてのフィールドを選択</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>すべてのフィールドの選択を解除</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>フィールドを貼り付け</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>%n 個のフィールドを貼り付け</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>「適用」を押すまでは何も書き込まれません。</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>「保存」を押すまでは何も書き込まれません。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>%n 枚の写真はまだ読み込まれていません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真にフィールドを貼り付け</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>%1 にフィールドを貼り付け</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>セットの名前</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>最初の 9 個には Alt+1～Alt+9 のキーが割り当てられます。</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>セットを削除</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>セットのキーワード</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>新しいクイックキーワードのセット</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>クイックキーワードのセット</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>フィールドをクリックすると挿入されます。拡張子はそのまま残ります。</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>ファイル名を変更</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>%n 枚の写真の値を一致させますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>%n 枚の写真に変更を適用しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>「%1」の値を一致させますか？</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>「%1」への変更を保存しますか？</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>フィールドの記録先ごとに値が異なる場合、すべての記録先を表示中の値に揃えます。リストは 1 つにまとめられます。</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>%n 個のフィールドを編集しました。保存しないと変更は失われます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>%n 個のファイルで、選択したフィールドを変更します。この操作は元に戻せません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>%n 個のファイルの%1を変更します。この操作は元に戻せません。</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>取り除く：%1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>保存して今後は確認しない</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>このセッションでは確認しない</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>値を一致させる</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>値を一致させる</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真に適用</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>変更前と変更後</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>時間を指定</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>写真に合わせる</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>進める</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>戻す</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>時計の時刻を保つ</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>各写真のタイムゾーンを使用</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>ずらし方</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>変更前 → 変更後</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>日</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日数</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>時間</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>分</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
    <message>
        <source>s</source>
        <comment>unit: seconds</comment>
        <translation>秒</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Was taken at</source>
        <translation>実際の撮影日時</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>選択した写真から選ぶ</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>オフにすると、撮影の瞬間は変わらず、時計の時刻が変わります</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>写真を検索</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>該当する写真はありません</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>タイムゾーン</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>都市または時差を検索</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>該当するタイムゾーンはありません</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>%n 枚のタイムゾーンを設定</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>%n 枚の時刻をずらす</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>デジタル化日時など、写真のほかの日時も一緒に変わります。</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>日時なし</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>残り %n 枚を読み込み中…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>ほかの写真もすべて同じだけずらします：%1。</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>%n 枚の写真の時刻をずらす</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>該当するショートカットはありません。</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>ショートカットを検索…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>ショートカットを検索</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>%n 個のショートカット</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>フィールドセット</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>必須</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>このセットを削除</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>このセットを複製して新規作成</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>これは Quorbel 付属のセットです。変更するには + で複製してください。</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>フィールドセット</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>セットのフィールド</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>%1を表示</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>%1を必須にする</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>%1 は名前が変わりません</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>新しい名前</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>連番の開始</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>増分</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>桁数</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>次へ</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>増分</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>桁数</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>拡張子はそのまま残ります。</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>次に確認が必要な名前へ移動</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>要確認：%1 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>%1 枚の写真の名前を変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>サイドカーとバックアップの名前も変わります。編集 ▸ 名前の変更を元に戻す で元に戻せます。</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>名前を変更中：%1 / %2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>保存が終わりしだい名前を変更します…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>%1 個のファイル名を変更</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>%1なし</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>追加</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>変更</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>削除</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>サイドカーの内容を写真に書き込みます。値が異なる場合も上書きします。サイドカーは変更されません。</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>RAW にあってサイドカーにない内容を、サイドカーに書き込みます。写真は変更されません。</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>ファイルを調べています…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>書き込む内容はありません。</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>写真を調べています：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>%1 枚の写真に書き込む</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>%1 枚分を書き込む</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>サイドカーを写真に書き込む</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>メタデータをサイドカーに書き込む</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 枚に追加されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 枚で変更されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 枚から削除されます</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>書き込む内容</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>確認中… %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>%1 枚の写真で記録先が不一致</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>不一致 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>未確認 %1 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>未確認 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>すべての写真を表示</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>確認</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルター</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>ほか %n 個のフィルター</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1、写真 %2 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>未入力</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>最低評価</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>クリックした評価以上の写真を表示します。もう一度クリックすると解除します</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>フィールド内の文字…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>いずれかのフィールドに含む文字</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>最低評価：指定なし</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>タイトルなし</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>説明なし</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>キーワードなし</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>撮影日時なし</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>場所なし</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>作成者なし</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>著作権なし</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>評価なし</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>編集済み・未保存</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>開いた後に変更あり</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>記録先が不一致</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>フィルターをクリア</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>画像を絞り込む</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>星 %n 以上</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>「%1」を含む</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>該当する写真はありません。</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>該当なし</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>すべての記録先が一致しています</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>未確認の写真 %1 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>ダブルクリックすると標準の画像アプリで開きます</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>名前（A～Z）</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>名前（Z～A）</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>日付（新しい順）</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>日付（古い順）</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>画像を並べ替え</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>%1 のサムネイル</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>設定</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>空なら設定</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>末尾に追加</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>先頭に追加</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>%1の処理</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>名前を追加 ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>前の写真</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>次の写真</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>入力</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>その他</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>テンプレートは、選択した写真のフィールドに、写真ごとの情報を補ったテキストを入力します。+ で作成するか、テンプレートのファイルを一覧にドロップしてください。</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>ショートカットなし</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>プレビュー</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>%1 枚の写真に入力</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>この名前のフィールドはありません。</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>カスタムフィールド</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>%1 から</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>%1 から、増分 %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>なければ %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>その他…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>%1を挿入</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>その他のトークン</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>トークン</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>トークンを検索…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>この名前のトークンはありません。</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>%1の既定値と書式</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>値がない場合</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>空のままにする</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>書式</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>大文字・小文字</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>例：「%1」</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>このファイルにコードはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>コードが %n 個あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>コードのファイルを選択</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>コードのファイルを使用しない</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>各行にコード、タブ、テキストを書いたテキストファイルです。テキストやキーワードに =js= と入力すると、2 つ目の「=」で js がそのテキストに置き換わります。「元に戻す」を 1 回実行すると、コードに戻ります。</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>前の写真にこれと異なる内容はありません</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>はじめに</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>Quorbel は、写真に埋め込まれたメタデータ（タイトル、日時、キャプション、キーワード、場所）を読み取り、編集します。変更は EXIF、IPTC、XMP の各規格に同時に書き込まれるので、どのアプリでも同じ内容になります。</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>まず、画像のフォルダー、または 1 つ以上の画像ファイルを開きます。</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>ファイル ▸ 開く…（⌘O）を選ぶか、写真をウィンドウにドラッグします。</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>ファイル ▸ サブフォルダーも含めて開く…（⌘⇧O）を選ぶと、フォルダーを中のフォルダーごと開けます。</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>最近開いたものは、ファイル ▸ 最近使った項目を開く からもう一度開けます。</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>ファイルマネージャーで写真を右クリックし、「別のアプリケーションで開く」▸ Quorbel を選びます。</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>画面の構成</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>ウィンドウは 3 つの部分に分かれています。</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>サイドバー（左）：フォルダー内のすべての写真です。上部で検索や、名前順・日付順の並べ替えができます。</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>サブフォルダーも含めて開くと、フォルダーごとに見出しが付きます。見出しをクリックするか、選んで Return を押すと、そのフォルダーの写真が折りたたまれます。⌥クリックですべてを折りたたみます。← は写真から見出しに移って折りたたみ、→ は展開します。</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>プレビュー（中央）：ウィンドウを広げると大きなプレビューの列が現れ、作業中の写真をいつでも確認できます。</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>インスペクター（右）：編集できるフィールドが「基本」と「場所」にまとめられ、読み取り専用のカメラ情報も表示されます。</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>Quorbel は読み取った内容を記憶します。一度開いたフォルダーは次からすぐに表示され、変更された写真だけが読み込まれます。表示 ▸ すべて読み直す（⇧F5）で、すべての写真を改めて読み込みます。</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>メタデータの編集</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>写真を選び、インスペクターでフィールドを編集します。タイトル、日時、キャプション、場所を一度入力すれば、対応する EXIF、IPTC、XMP のタグにまとめて書き込まれます。</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>「フィールドを追加」で、推奨される標準フィールドを選んだり、カスタムフィールドを作ったりできます。</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>設定で「名前空間の詳細を表示」をオンにすると、各値がどのタグに書き込まれるかを確認できます。</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>編集したフィールドには、保存するまで印が付きます。</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>写真から写真へ</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>たくさんの写真にも、マウスなしでキャプションを付けられます。次のキーは、どのフィールドでも使えます。</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>⌥+↓ と ⌥+↑ で、次または前の写真に移ります。カーソルは同じフィールドにとどまり、テキストが選択された状態になります。</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>⌘Return で保存し、すぐ次に進みます。前の写真の書き込み中でも、続けて入力できます。</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>Ctrl+&apos; で、前の写真と同じ内容をフィールドに入れます。前の写真で空の場合は、何も消えません。</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>一覧で操作しているときは 0 から 5 で、どこからでも ⌘⌥0 から ⌘⌥5 で、1 枚または複数の写真を評価できます。</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>F11、または一覧で Space を押すと、写真がウィンドウいっぱいに表示されます。クリックまたは Z で等倍表示になり、矢印キーで次の写真の同じ位置に移ります。Escape で戻ります。</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>ヘルプ ▸ キーボードショートカット（Ctrl+F1）で、すべてのキーを確認できます。</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>複数の言語</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>タイトル、説明、著作権表示、イベント、使用条件は、1 枚の写真に複数の言語で入れられます。フィールドにはどのアプリでも読めるテキストが表示されます。そこに何を書いても、ほかの言語のテキストは写真に残ります。</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>ほかの言語があるフィールドでは、右端に「de fr」のように言語が表示されます。そこをクリックするか、フィールドで ⌥+→ を押すと、ほかの言語を表示して編集できます。⌥+← で隠します。</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>「言語を追加」では、名前で言語を探せます。テキストの後ろの × で、その言語を取り除きます。</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>どちらも保存するまでは未保存の編集として扱われ、複数の写真に対しても一度に行えます。</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>キーワードの階層</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>多くのプログラムは、「場所 ▸ フランス ▸ パリ」のようにキーワードを階層で管理しています。Quorbel ではキーワードの階層上の位置が、数が少ないうちはキーワードの前に、ツールチップにはいつでも表示されます。</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>「場所 &gt; フランス &gt; パリ」（&gt; の前後に半角スペース）または「場所|フランス|パリ」と入力します。写真には、キーワード「パリ」とその階層上の位置が付きます。</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>入力候補には、キーワードの階層上の位置も表示されます。「場所|」と入力すると、「場所」の下にあるものを確認できます。</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>キーワードを取り除くと、それに至る階層も、写真内のすべての記録先から取り除かれます。その先に続く階層は残ります。</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>記録先の不一致</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>タイトルや日時は写真の複数の箇所に記録され、プログラムはそれぞれ自分の知っている記録先を読み取ります。一部だけを変更するプログラムがあると、内容が食い違います。記録先が一致しないフィールドには、下に印が付きます。</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>印をクリックすると、各記録先の内容を確認できます。「この値を使用」でそのテキストが編集内容になり、保存するとすべての記録先に書き込まれます。</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>表示 ▸ 不一致を表示（⌘⇧D）で、記録先が一致しない写真だけを一覧に表示します。そのために開いているすべての写真が調べられますが、その間も作業を続けられます。</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>写真を選択して 編集 ▸ 値を一致させる を選ぶと、各写真で表示されている内容がすべての記録先に書き込まれます。「保存を元に戻す」で取り消せます。</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>空欄を探す</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>検索の横にあるフィルターを使うと、欠けている項目がある写真、星の少ない写真や多い写真、編集後に保存していない写真、任意のフィールドに特定のテキストを含む写真だけを表示できます。複数にチェックを付けると、すべてに当てはまる写真だけになります。件数は、いずれも開いている写真全体での数です。</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>F8 で次の空欄に移ります。フォームを下へ進み、終わると次の写真に移ります。⇧F8 で戻ります。空欄のフィルターを使っているときは、フィルターで選んだフィールドだけを順に移ります。</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>編集中の写真は、保存するまで一覧に残り、保存すると次の写真に替わります。</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>チップの × をクリックするか、チップ上で Delete を押すと、そのフィルターだけが解除されます。表示 ▸ フィルターをクリア（⌘⇧F）で、すべて解除されます。</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>IPTC フィールドとフィールドセット</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>Quorbel は、IPTC Photo Metadata Standard のすべてのプロパティを読み書きします。代替テキスト、連絡先、人物、場所、リリース、ライセンス、画像の制作手段などです。写真には、入っているものだけが表示されます。それ以外は「フィールドを追加」で、名前、用途、タグから探せます。</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>表示 ▸ フィールドセット で、画面に表示するものをまとめて切り替えます。キャプション、報道、博物館・美術館、ストックフォト、権利、アクセシビリティ、または独自のセットから選べます。セット以外でも、写真に入っているものと編集したものは表示されたままです。</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>セットには、必須のフィールドを指定できます。空のものは枠が破線になり、セクションの見出しに件数が表示されます。F8 で順に移動し、最後まで進むと次の写真に移ります。⇧F8 で戻ります。</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>「画面の表示をセットとして保存…」で独自のセットを作れます。「セットを編集…」では、含めるフィールドと必須のフィールドを変更できます。Quorbel に付属のセットは、ここで複製できます。</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>「標準」は、もとのままのフォームです。セットを選ぶか作ると、フォームの上部でも切り替えられるようになります。</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>時刻をずらす</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>時計がずれたカメラで撮影すると、すべての写真の時刻がずれます。該当する写真を選択し、編集 ▸ 時刻をずらす を選びます。</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>時間を指定：日、時間、分、秒の単位で、進めるか戻します。</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>写真に合わせる：1 枚の写真の実際の撮影日時を入力すると、ほかのすべても同じだけずれます。</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>タイムゾーン：時刻のタイムゾーンを設定します。時計の時刻をそのままにすることも、タイムゾーンに合わせて変えることもできます。位置情報のある写真には、それぞれ撮影地のタイムゾーンを設定できます。</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>表には、最初の写真、最後の写真、日付が変わるものが表示されます。日時のない写真は名前が示され、変更されません。「時刻の変更を元に戻す」で取り消せます。</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>一括編集</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>複数の写真を選択すると、まとめて編集できます。⌘A ですべて選択し、⇧クリックや⌘クリックで選択を追加します。</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>適用するフィールドを選んで値を入力すると、選択したすべての写真に一度に書き込まれます。</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>リスト形式のフィールド（キーワードなど）では、選択した各写真に値が追加されます。</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>確認の表示をオフにしていなければ、一括編集の前に確認が表示されます。</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>キーワードの下には、選択した写真に付いているキーワードと、それぞれの枚数が表示されます。クリックするとすべての写真に付き、× をクリックすると次の保存ですべての写真から取り除かれます。</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>クイックキーワードは、最近使ったキーワード、または自分で作ったセットです。クリックするか、Alt+1 から Alt+9 を押して使います。セットの名前をクリックすると、すべてのセットのメニューが開きます。</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>フィールドのコピーとコード</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>ある写真の内容をほかの写真にも入れたり、よく使うテキストに短いコードを割り当てたりできます。</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>編集 ▸ フィールドをコピー（⌘⇧C）は、選択した写真のフィールドを表示どおりにコピーします。編集 ▸ フィールドを貼り付け…（⌘⇧V）は、選択した写真で置き換わる内容を表示し、チェックを付けたものを貼り付けます。保存するまでは何も書き込まれません。</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>編集 ▸ フィールドをもう一度貼り付け は、確認なしで前回と同じチェックのまま貼り付けます。最後にコピーした内容は、別のウィンドウでも、再起動した後でも使えます。</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>設定で、コードのファイルを選びます。1 行ごとに、コード、タブ、テキストを書いたものです。テキストやキーワードに =js= と入力すると、js に対応するテキストに置き換わります。「元に戻す」（⌘Z）を 1 回実行すると、コードに戻ります。</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>テンプレートは、選択した写真のフィールドに、写真ごとの情報を補ったテキストを入力します。例：「%Place|Zürich% 沖、第 %Counter% レース」。作成するには、編集 ▸ テンプレート を開くか、写真を選んで「テンプレートとして保存…」を選びます。</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>⌘1 から ⌘9 で、それぞれのキーを割り当てたテンプレートを適用します。入力された内容は編集として扱われ、保存時に書き込まれます。</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>フィールドごとに、値を設定するか、空の場合だけ設定するか、元のテキストの前または後に追加するかを選べます。</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>トークンは写真の情報に置き換わります。すべてのフィールド、カメラ、%Filename%、%Counter% があります。ダブルクリックすると、yyyy年M月d日 のような書式や、値がない写真に使うテキストを指定できます。</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>テンプレートは、それぞれ 1 つのファイルです。一覧の外にドラッグすれば人に渡せ、ファイルを一覧にドロップすればインポートできます。</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>ファイル名の変更</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>写真のメタデータから作ったパターンで、ファイル名を変更できます。名前変更の画面を開き、トークンのチップや自由なテキストを追加し、結果をプレビューで確かめてから適用します。</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>使用できるトークン：</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>%Date% — 撮影日</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>%Time% — 撮影時刻</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>%Title% — タイトル</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>%Creator% — 作成者</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>%Place% — 場所</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>%Original% — 元のファイル名</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>例：%Date%_%Title% は 2026-07-14_Sunset.jpg のようになります。名前は自動的に、ファイルシステムで使えて重複しないものになります。</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>複数の写真の名前もまとめて変更できます。写真を選択し、ファイルメニューの「写真の名前を変更…」（Shift+F2）を選びます。%Counter% は一覧の順に番号を付けます。ほかのフィールドにも %Headline% のようにその名前のトークンがあり、%Title|Untitled% や %Date:yyyyMMdd% とすると、タイトルがないときの代わりや日付の書き方を指定できます。足りない情報のある名前や、使用済みの名前には印が付きます。サイドカー、バックアップ、ペアの RAW ファイルの名前も一緒に変わり、編集メニューの「名前の変更を元に戻す」で、再起動した後でもすべてを元に戻せます。</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>保存とバックアップ</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>編集内容は、保存（⌘S）したときに書き込まれます。</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>書き込む前に、元のファイルがバックアップされます（設定でオフにできます）。</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>未保存の変更があるままほかへ移ろうとすると、確認が表示されます。</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>設定により、写真に埋め込む代わりに XMP サイドカーに書き込むこともできます。</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>RAW ファイル</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>設定 ▸ RAW ファイル で、RAW 写真の編集内容の書き込み先を選びます。ほかの写真と同じファイル内か、別ファイルです。別ファイルの場合、RAW ファイル自体には一切書き込みません。</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>その場合、内容は XMP サイドカーに保存され、ほかのプログラムでも読み書きできます。どのファイルに保存されるかは、写真の名前の下の行に表示されます。DNG には個別の設定があります。</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>サイドカーの値は、フィールドごとに RAW ファイルの値より優先されます。値が異なるフィールドには印が付き、クリックすると両方を確認できます。</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>表示 ▸ RAW と JPEG をペアにする で、同じショットの 2 つのファイルを 1 枚の写真として表示します。編集内容はそれぞれの設定に従って両方に保存され、名前の変更もショットのすべてのファイルに及びます。</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>ファイル ▸ サイドカーを写真に書き込む… と メタデータをサイドカーに書き込む… で、選択した写真の内容を書き写します。書き込む前に、何が何枚の写真で変わるかを確認できます。「保存を元に戻す」で元に戻せます。</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>現像設定など、ほかのプログラムがサイドカーに保存している内容はそのまま残ります。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>ファイル ▸ 設定…（⌘,）を選ぶと、次の項目を変更できます。</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>保存前の元のファイルのバックアップ</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>XMP サイドカーファイルへの書き込み</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>すべてのフィールドでの名前空間の詳細表示</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>一括編集の前の確認と、名前変更の標準パターン</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>Quorbel ヘルプ</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>フォルダーまたは画像をここにドラッグ</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>フォルダーを開く…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>画像を開く…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>サブフォルダーも含めて開く</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>サムネイルのみ</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>%n 枚の写真を選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>%1 のプレビュー（サムネイルのみ）</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>%1 のプレビュー</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>写真を確認中：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>情報を補完中：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>写真を読み込み中：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>写真の名前を変更中：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>写真を保存中：%1 / %2 枚…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>%1 で止まっています</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>写真を探しています…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>表示</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>名前空間の詳細を表示</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>各フィールドの下に、元になるタグ（EXIF / IPTC / XMP）を表示します。</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>書き込む前に元のファイルをバックアップ</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>複数のファイルに一括適用する前に確認</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>サイドカーの .xmp ファイルも書き込む</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>各画像と同じ場所の &lt;name&gt;.xmp に、XMP メタデータを複製します。</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>ファイル名のパターン</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>トークン：%Date% %Time% %Title% %Creator% %Place% %Original%。拡張子は自動的に保たれます。</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>特殊文字を取り除く</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>文字と数字だけを残します（アクセント記号は外れます。例：Café → Cafe）。オフにすると、@ や &apos; などの文字がそのまま残ります。</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>RAW ファイル</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>RAW 写真の編集内容</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>ほかの写真と同じように、編集内容は RAW ファイルに書き込まれます。</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>RAW ファイルは変更されません。ほかのプログラムは、サイドカーから内容を読み取ります。</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>DNG 写真の編集内容</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>DNG はメタデータを格納できるように作られているので、ほかの写真と同じように書き込まれます。</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>DNG ファイルは変更されません。ほかのプログラムは、サイドカーから内容を読み取ります。</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>ファイル内</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>別ファイル</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>ファイル内に書き込む</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>別ファイルに書き込む</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>新しいサイドカーの名前</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>すでにあるサイドカーの名前は変わりません。</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>場所</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>オンライン場所検索</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>空の場合、場所はこのコンピューター内だけで検索されます。Photon 互換サービスの https アドレスを入力すると、「場所」フィールドに入力した内容がそこに送信されます。その場合も、このコンピューターにある場所が先に表示されます。次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>コードの置き換え</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>高コントラスト</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>https アドレスではないため、使用されません。</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>評価する</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>写真の一覧で</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>次または前の写真</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>1 ページ先または前へ</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>最初または最後の写真</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>そこまで選択</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>選択せずに移動</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>選択に追加または選択から除外</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>拡大して見る</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>標準のアプリケーションで開く</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>名前の先頭の文字で探す</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>フォルダーを開閉</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>すべてのフォルダーを開閉</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>拡大表示中</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>次または前の写真の同じ位置</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>等倍表示・全体表示</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>拡大・縮小</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>写真を左右に動かす</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>写真を上下に動かす</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>フィールドで</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>ほかの言語を表示・追加</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>ほかの言語を隠す</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>キーワードで</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>入力したものを追加</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>入力欄から最後のキーワードへ移動</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>そのキーワードを取り除く</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>星の上で</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>星を 1 つ増やす・減らす</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>見つかったものに移動</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>すべての写真を再び表示</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>ダイアログで</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>このフォルダーは変更が通知されないため、%1 が数秒ごとに確認します。</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>一部のフォルダーは変更が通知されないため、%1 が数秒ごとに確認します。</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>変更が通知されるのは %2 個のフォルダーのうち %1 個だけです。ほかのフォルダーの変更は「更新」で確認できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>フォルダーを更新</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>プレビューを表示</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>プレビューを隠す</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>書き込む前に元のファイルをバックアップ</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>サイドカーの .xmp ファイルも書き込む</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>読み取れなかったため、そのまま残しました：%1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>変更され続けています</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>ExifTool から情報を得られませんでした</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>読み取れませんでした（%1）</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>一部のフィールドを読み取れませんでした（%1）</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>一部のフィールドを読み取れませんでした</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>一部のフィールドを読み取れなかった写真では、名前の下に「一部のフィールドを読み取れませんでした」と表示されます。「再試行」で読み取れるまで、それらのフィールドは編集できません。だれも見ていない内容が上書きされることはありません。</translation>
    </message>
</context>
</TS>
