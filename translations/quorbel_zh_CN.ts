<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>在应用程序中找不到 ExifTool，无法读取或写入元数据。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1，%n 个文件夹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>显示 %n 张</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>已选中 %n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>未找到支持的图像。</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>已找不到“%1”。</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>“%1”已被其他程序移除。其未保存的更改已保留：编辑 ▸ 恢复编辑内容。</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>“%1”已被其他程序移除。</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>无法读取这些照片的字段存储位置：%1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>选中照片的字段在各存储位置中已经一致。</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>照片读取完成后，未保存的更改会随即恢复。</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>已不在此处：%1。未保存的更改已保留。</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>已找不到 %1。未保存的更改已保留。</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>文件名不能包含“/”。</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>无法重命名：%1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>无法重命名：正在保存“%1”。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>保存，但不写入 %1</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>不同的条目</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>%n 个不同的文本</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>已清空</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1，%3 张中 %2 张</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>图片说明</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>新闻</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>博物馆</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>图库</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>权利</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>无障碍</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>请填写名称</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>有两个字段集都叫“%1”</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>“%1”没有字段</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>%n 张照片带有内容凭证：其他程序会提示其已被更改。</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>耗时过长</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>文件名不是 UTF-8</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>无法读取元数据：%1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>链接已失效</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>空文件</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>%n 个文件无法读取，已略过：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>%n 个附属文件无法读取，对应的照片显示时不含其内容：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>已从开头重新查找</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>已从末尾重新查找</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>没有空缺了</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>没有空缺了 · %1 张尚未读取</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>名称保持不变。</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>所有照片的名称都保持不变。</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>%n 张照片中有 %1 张名称保持不变。</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>无法重命名 %1：%2。</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>无法重命名：%1。%2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>无法撤销重命名：%1。%2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>另一个 Quorbel 正在执行撤销</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>已经撤销过</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>撤销保存</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>撤销“%1”的时间平移</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>撤销 %n 张照片的时间平移</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>撤销“%1”的保存</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>撤销 %n 张照片的保存</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>无法撤销时间平移：%1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>无法撤销保存：%1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>无法撤销 %n 张照片的时间平移：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>无法撤销 %n 张照片的保存：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>未撤销：%n 张照片此后有更改，未作改动：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>已撤销，但 %n 张照片此后有更改，未作改动：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>已撤销，但 %n 张照片的值未能全部恢复原样：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>无法读取其内容</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>读回耗时过长</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>已无法读取</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片的%1在 IPTC 与 XMP 中不同，已合并：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>%n 张照片中有 %1 张无法保存：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>未写入</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>未写入：%1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>%1 拒绝写入：%2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>未写入任何内容：%1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>已保存，但 %n 个字段读回的内容不同：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>已保存，但含有多个 IPTC 块的照片，其 IPTC 未作改动：%1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>未更新：%1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>无法保存：%1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>编辑内容将写入 %n 个附属文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>%n 张照片的编辑内容将写入附属文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>编辑内容将写入 %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>%n 张照片的编辑内容将写入 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>已不在此处</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>%n 张照片的附属文件与文件内容不同，将保留附属文件的内容：附属文件中的内容不会被替换。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>%n 张照片无需处理。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片没有附属文件：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片与 RAW 照片同名，附属文件属于 RAW 照片：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片不是 RAW 照片：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>只读，未作改动：%1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>无法读取，未作改动：%1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>未写入，因为写入后内容会与原来不同：%1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1（读取耗时过长）</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>无法导出模板“%1”</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>新模板</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>未填入：%1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>无法设置时区：%1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>无法平移时间：%1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>%n 张照片中有 %1 张无法设置时区：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>%n 张照片中有 %1 张无法平移时间：%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>%n 张照片中有 %1 张读回的时间不同：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>缺少时区，未作改动：%1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>日期或时间不完整，未作改动：%1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>拍摄于</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>第一张</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>最后一张</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n 张原无时区</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>%n 张日期改变</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片没有日期，不作改动：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>%n 张照片的日期异常，不作改动：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片没有可换算的原时区，不作改动：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>%n 张照片没有位于时区内的坐标，不作改动：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>唯一的坐标位于此时区内。</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>唯一的坐标位于另一时区。</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>%n 个坐标中有 %1 个位于此时区内。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 h</source>
        <extracomment>hours</extracomment>
        <translation>%1 小时</translation>
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
        <translation>提前 %1</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>推后 %1</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>各张照片自己的时区</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>请输入整数，最多相当于一百年。</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>此照片没有日期：请另选一张。</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>不是日期：YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>无法平移时间：在此期间，设置中 RAW 文件编辑内容的写入位置已更改</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>“%1”已不在此处。</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>“%1”过大，不能用作代码列表。</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>“%1”没有可复制的字段。</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>“%1”的文本过长，无法复制。</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>这些字段由较新版本的 Quorbel 复制。</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>尚未复制任何字段。编辑 ▸ 复制字段 可复制选中照片的字段。</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>已有同名的组</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>版本 %1（构建 %2）</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 The Quorbel developers。以 MIT 许可证发布的自由软件。</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>使用 Phil Harvey 的 ExifTool（Artistic License 或 GPL）读写照片。基于 Qt %1（LGPL 3）、LibRaw（LGPL 2.1 或 CDDL）、libheif（LGPL 3）、libjxl（BSD）、OpenJPEG（BSD）和 Little CMS（MIT）构建。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>关于 Quorbel</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>字段集(&amp;S)</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>将当前显示存为字段集…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>编辑字段集…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>无星(&amp;O)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>&amp;%n 星</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>保存并转到下一张(&amp;X)</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>与上一张照片相同(&amp;F)</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>评分(&amp;N)</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>下一张照片(&amp;X)</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>上一张照片(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>放大细看(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>连同子文件夹打开(&amp;B)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>打开最近项目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>重命名(&amp;N)…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>重命名照片(&amp;H)…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>关闭文件夹(&amp;C)</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>设置(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>将附属文件写入照片(&amp;I)…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>将元数据写入附属文件(&amp;M)…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>清空菜单</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>撤销保存(&amp;V)</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>撤销重命名(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>恢复编辑内容(&amp;B)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>平移时间(&amp;H)…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>使其一致(&amp;G)</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>复制字段(&amp;E)</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>粘贴字段(&amp;D)…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>再次粘贴字段(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>显示预览(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>显示不一致项(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>显示命名空间详情(&amp;N)</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>重新读取(&amp;A)</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>RAW 与 JPEG 配对(&amp;J)</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>下一处空缺(&amp;G)</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>上一处空缺(&amp;U)</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>清除筛选(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>Quorbel 帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>检查更新(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>关于 Quorbel(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>应用到 %n 张(&amp;A)</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>隐藏预览(&amp;P)</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>图像 (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>请选择图像文件夹，其中的文件夹也会一并打开。</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>请选择代码文本文件：每行依次为代码、制表符和对应的文字。</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>请选择图像文件夹，或者一个或多个图像文件。</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>所有文件 (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>文本文件 (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>选择</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>打开</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>快捷关键词(&amp;K)</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>模板 (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>请选择模板文件。</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>请选择模板的保存位置。</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>存为模板…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>模板(&amp;M)</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>模板…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>您使用的 Quorbel 已是最新版本。</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>Quorbel %1 已发布</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>Quorbel 有新版本可用。</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>下载</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>读取和编辑照片中的文字信息。</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>照片文件夹，或照片。</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[文件…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>更新源中的“%1”缺失或不是文本。</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>更新源中的“%1”缺失或不是整数。</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>服务器响应有误：HTTP 状态 %1。</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>更新源不是有效的 JSON：%1。</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>更新源不是 JSON 对象。</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>朗读起来过长：%1/%n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>指向“%1”，但该字段为空</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>替代文本</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>为看不到图片的人说明画面内容</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>扩展说明</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>为看不到图片的人详细说明短文本无法表达的内容</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>国家/地区代码</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>ISO 3166 的两位或三位字母代码：CH、CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>职务</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>作者的职位或职业</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>联系方式</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>如何联系作者：地址、电话、电子邮件、网站</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>人物详情</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>画面中的人物，含标识符、说明和特征</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>模特年龄</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>拍摄时模特的年龄（岁）</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>最年轻模特</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>拍摄时最年轻模特的年龄</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>模特信息</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>关于模特的其他信息</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>肖像授权</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>画面中人物的授权情况</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>肖像授权书编号</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>肖像授权书的存档编号</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>拍摄地点</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>相机所在的位置</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>画面中的地点</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>画面中可见的地点</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>主题代码</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>内容主题，用 IPTC 的八位数代码表示（旧版列表）</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>主题词</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>内容主题，用受控词表中的词条表示</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>体裁词</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>图片的类型，用受控词表中的词条表示</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>事件编号</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>事件的标识符</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>机构</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>画面中机构的名称</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>机构代码</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>画面中机构的代码：股票代码、注册号</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>画面中的产品，含 GTIN 和标识符</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>艺术品或物品</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>画面中的作品，含作者、日期、所有者和权利</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>图片的局部：轮廓、名称、类型和作用</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>版权所有者</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>版权归谁所有</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>图像作者</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>图片的创作者及其标识符</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>贡献者</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>参与创作图片的人及其角色</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>其他限制</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>以文字表述的其他使用限制</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>数据挖掘</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>他人能否对图片进行数据挖掘或用其训练 AI</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>物权授权</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>画面中物品和场所的授权情况</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>物权授权书编号</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>物权授权书的存档编号</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>许可方</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>向谁取得使用许可</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>供应方</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>最后提供图片的一方</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>供应方图像编号</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>图片在供应方处的编号</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>嵌入的权利声明</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>文件中机器可读的条款</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>链接的权利声明</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>网址上机器可读的条款</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>数字来源</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>图片的由来：相机、扫描、软件、AI</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>AI 系统</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>生成图片的引擎或模型</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>AI 系统版本</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>AI 系统的版本</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>AI 提示词</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>要求 AI 生成和避免的内容</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>AI 提示词作者</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>提示词由谁撰写</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>图像 GUID</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>其他图片都没有的唯一标识符</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>登记条目</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>收录图片的登记机构及其登记号</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>最大宽度</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>可获得的最大版本的尺寸（像素）</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>最大高度</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>联系方式</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>邮政编码</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>State</source>
        <translation>省/州</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>艺术品</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创作日期</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>大致创作日期</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>贡献说明</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>实物描述</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>风格或时期</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>藏品编号</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>藏品网址</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>版权声明</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>版权所有者</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>版权所有者编号</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>许可方</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>许可方编号</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>作者编号</translation>
    </message>
    <message>
        <source>term</source>
        <translation>词条</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>词条编号</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>词表</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>关系</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>权利表述</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>权利表述</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>编码方式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>贡献者</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>作用</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
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
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
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
        <translation>链接</translation>
    </message>
    <message>
        <source>place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>具体地点</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>世界区域</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>海拔（米）</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>低于海平面</translation>
    </message>
    <message>
        <source>person</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>特征</translation>
    </message>
    <message>
        <source>product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>登记机构</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>许可方</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>电话类型</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>第二电话</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>第二电话类型</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>地址（补充）</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>供应方</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1不是数字：“%2”</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>不是整数：“%1”</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>%1中有其他程序写入的%2，此更改会使其丢失</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>不是数字</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1 · 另有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>选择体裁…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>选择主题…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>选择类型…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>选择作用…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>数字来源类型</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>真实场景的数字拍摄</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>用相机拍摄，除显影处理外未作更改</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>真实场景的多帧计算拍摄</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>由相机将同一时刻的多帧合成</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>由透明负片数字化</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>将胶片负片转为数字图片</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>由透明正片数字化</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>将反转片转为数字图片</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>由不透明介质数字化</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>扫描照片或其他纸质材料</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>经人工编辑的媒体</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>由人用生成式 AI 以外的工具修改过的图片</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>使用生成式 AI 编辑</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>部分内容由生成式 AI 修改或添加的图片</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>经算法修改的媒体</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>由程序自动修改，未使用生成式 AI</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>数字创作</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>由人用数字工具创作，例如绘画</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>数据驱动的媒体</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>根据数据绘制，例如图表或地图</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>使用生成式 AI 创建</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>完全由学习过其他图片的 AI 生成</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>纯算法媒体</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>由未经任何学习的公式计算得出，例如分形</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>显示器上显示的内容</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>虚拟事件录制</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>录制虚拟世界中发生的事</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>多元素合成</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>由各种素材拼合而成</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>拍摄元素合成</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>由全部拍摄所得的素材拼合而成</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>含生成式 AI 元素的合成</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>由多个素材拼合而成，其中至少一个由生成式 AI 生成</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>经少量人工编辑的原始媒体</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>2024 年停用：请改用“经人工编辑的媒体”</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>由软件创建</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>2022 年停用：请改用能说明创建方式的词条</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>数字艺术</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>2024 年停用：请改用“数字创作”</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>未指定（未定义禁止规定）</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>文件中对此没有说明</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>任何人都可对图片进行数据挖掘或用于训练</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>禁止用于 AI/ML 训练</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>不得用于训练任何 AI，可进行其他数据挖掘</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>禁止用于生成式 AI/ML 训练</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>不得用于训练生成图片或文本的 AI</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>禁止，搜索引擎索引除外</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>仅允许搜索引擎收录图片</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>禁止</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>不得进行任何数据挖掘或训练</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>禁止，见“其他限制”</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>允许的用途见“其他限制”，该字段必须填写</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>禁止，见“嵌入的编码权利表述”</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>允许的用途见“嵌入的权利声明”</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>禁止，见“链接的编码权利表述”</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>允许的用途见“链接的权利声明”所指的网址</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>肖像授权状态</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>画面中无人签署授权书</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>不适用</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>画面中没有需要征得同意的人</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>无限制的肖像授权</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>画面中所有人均已签署，无限制</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>有限或不完整的肖像授权</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>有人未签署，或仅授权特定用途</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>物权授权状态</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>画面中物品或场所的所有者均未签署授权书</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>画面中没有需要所有者同意的物品或场所</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>无限制的物权授权</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>各所有者均已签署，无限制</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>有限或不完整的物权授权</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>未成年模特年龄</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>年龄不详</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>无人知道最年轻者的年龄</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>25 岁或以上</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>最年轻者至少 25 岁</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>24 岁</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>23 岁</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>22 岁</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>21 岁</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>20 岁</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>19 岁</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>18 岁</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>最年轻者在多数国家/地区已成年</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>17 岁</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>16 岁</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>15 岁</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>14 岁或以下</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>最年轻者为不超过 14 岁的儿童</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>电话类型</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>工作场所的电话</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>移动电话</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>传真</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>传真机</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>住宅</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>家中的电话</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>寻呼机</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>接收短消息</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>头像</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>人物的头部</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>半身像</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>人物腰部以上</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>全身像</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>人物从头到脚</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>侧面像</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>人物的侧面</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>背面</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>人物或物品的背面</translation>
    </message>
    <message>
        <source>single</source>
        <translation>单个</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>单独一个人或物</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>一对</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>关系亲密的两个人</translation>
    </message>
    <message>
        <source>two</source>
        <translation>两个</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>两个人或物</translation>
    </message>
    <message>
        <source>group</source>
        <translation>群体</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>两个以上的人或物</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>概貌</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>地点或事件的全貌</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>全景</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>宽幅展现整片风景或城镇</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>航拍</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>从空中拍摄</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>水下</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>在水面以下拍摄</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>夜景</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>在夜间拍摄</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>卫星图像</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>从太空拍摄</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>外景</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>建筑物的外部</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>内景</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>房间或建筑物的内部</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>特写</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>近距离拍摄，细节充满画面</translation>
    </message>
    <message>
        <source>action</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>运动中的人或物</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>表演</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>舞台上或演出中的人</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>摆姿势</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>面对镜头静止不动的人</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>象征</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>表达某种概念，而非画面本身</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>趣味</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>奇特或滑稽</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>电影场景</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>拍摄于电影制作现场，或为电影画面</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>主题代码</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>艺术、文化与娱乐</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>音乐、电影、戏剧、文学、博物馆、文艺界名人</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>犯罪、法律与司法</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>警察、法院、法律、监狱</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>灾难与事故</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>火灾、洪水、地震、交通事故</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>经济、商业与金融</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>公司、市场、贸易、产业</translation>
    </message>
    <message>
        <source>education</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>学校、大学、教学</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>环境问题</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>自然、气候、污染、保护</translation>
    </message>
    <message>
        <source>health</source>
        <translation>健康</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>疾病、医学、医院</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>人情趣味</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>人物、动物、奇闻</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>劳工</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>工作、工会、罢工、失业</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>生活方式与休闲</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>旅行、美食、爱好、时尚</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>政治</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>政府、选举、政党、外交</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>宗教与信仰</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>各种信仰及其信众和节日</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>科学与技术</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>研究、发现、发明</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>社会问题</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>家庭、贫困、移民、成瘾</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>体育</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>比赛、运动员、俱乐部</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>动乱、冲突与战争</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>战争、骚乱、恐怖活动、和平谈判</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>预报、风暴、高温、降雪</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>媒体主题</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>艺术、文化、娱乐与媒体</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>音乐、电影、戏剧、文学、博物馆、新闻出版与广播</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>灾难、事故与紧急事件</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>火灾、洪水、地震、交通事故、救援</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>政治与政府</translation>
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
        <translation>家庭、社区、移民、福利</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>冲突、战争与和平</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>体裁</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>实况</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>在现场如实记录的事件</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>解答日常生活中的问题</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>历史上的今天</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>往年今日发生的事</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>解释事件的意义</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>周年纪念</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>在纪念日回顾过去的事件</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>档案资料</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>早前留存、再次使用的内容</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>了解事件所需的信息</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>时事</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>关于正在发生的事</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>前瞻</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>在事件开始之前介绍</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>每日日程</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>当天的安排</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>独家</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>仅一家媒体拥有</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特写专稿</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>关于人物或主题的长篇报道</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>固定栏目</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>定期刊出</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>预测</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>说明预计会发生什么</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>现场报道</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>从事发地点报道</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>关于久远的过去</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>星座运势</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>星象所预示的内容</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>采访</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>与某人的谈话</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>关于音乐，或音乐本身</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>讣闻</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>讲述逝者的生平</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>观点</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>表达作者的看法</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>民意调查</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>众人的回答</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>新闻稿</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>由所涉及的当事方发布</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>报刊摘要</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>其他报刊的内容</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>人物或机构介绍</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>介绍人物或机构</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>节目单</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>即将演出或播出的内容</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>问答</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>向某人提出的问题及其回答</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>引语</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>某人的原话</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>原始音频</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>未经编辑的声音</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>对问题的回应</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>对一个问题的一个回答</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>成绩榜单与统计</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>比分、表格、数字</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>回顾</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>回顾较长的一段时间</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>评论</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>评价书籍、电影或演出</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>现场描写</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>描写某地的情景</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>边栏与辅助信息</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>配合另一篇报道并加以补充</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>特别报道</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>深入探讨一个主题</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>综述</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>多篇报道的要点</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>梗概</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>较长作品的内容简介</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>纯文本</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>没有图片或声音</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>文字实录</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>逐字记录所说的话</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>为先前的报道补充新内容</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>记者口述</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>由记者的声音讲述报道</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>汇编</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>将多篇报道汇集在一起</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>总结报道</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>事件结束后再次完整讲述</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>非洲</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>从突尼斯到南非，包括其岛屿</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>南极洲</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>环绕南极的大陆</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>亚洲</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>从土耳其到日本和印度尼西亚</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>欧洲</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>从冰岛到俄罗斯</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>北美洲</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>从格陵兰到巴拿马，包括加勒比地区</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>大洋洲</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>澳大利亚、新西兰和太平洋岛屿</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>南美洲</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>从哥伦比亚到火地岛</translation>
    </message>
    <message>
        <source>World</source>
        <translation>世界</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>整个世界</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>区域类型</translation>
    </message>
    <message>
        <source>human</source>
        <translation>人</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>人，或人的一部分</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>动物</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>动物，或动物的一部分</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>植物</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>植物，或植物的一部分</translation>
    </message>
    <message>
        <source>building</source>
        <translation>建筑物</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>建筑物，或建筑物的一部分</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>交通工具</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>汽车、火车、船舶或飞机</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>为销售而制造的东西</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>艺术作品</translation>
    </message>
    <message>
        <source>food</source>
        <translation>食物</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>吃的或喝的东西</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>服装</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>穿戴的东西</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>可以读出的文字</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>图画、徽标、标志</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>机器可读代码</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>条形码之类</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>地理区域</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>一片土地</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>岩石地貌</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>岩石、悬崖、山脉</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>水体</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>湖泊、河流、海洋</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>分界线</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>画面中各图片的交界处</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>区域作用</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>主要主体区域</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>图片的主要内容；每张图片一个</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>主体区域</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>图片所表现的内容</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>关注区域</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>值得一看的部分</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>裁剪至此范围</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>推荐裁剪</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>最好裁剪至此范围</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>横幅裁剪</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>需要横幅时裁剪至此范围</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>竖幅裁剪</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>需要竖幅时裁剪至此范围</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>方形裁剪</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>需要方形时裁剪至此范围</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>合成图像的组成部分</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>组成此图片的图片之一</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>版权区域</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>含有另有版权的内容</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>业务用途</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>供公司内部工作流程使用</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>轮廓形状</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>一个角点、宽度和高度</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>圆心和半径</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>两个或更多的点</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>轮廓单位</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>相对</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>占图片宽度和高度的比例，从 0 到 1</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>图片的像素</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>“%1”已存在</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>“%1”已不在此处</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>另一个 Quorbel 正在重命名</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>撤销重命名</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>撤销“%1”的重命名</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>撤销 %n 张照片的重命名</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>文件名不能包含“/”</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>作为文件名过长</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>所在文件夹为只读</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>已不在此处</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>保持 %1</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>改为 %1</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>名称已占用，加 -%1</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>连同 %1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>无法移动“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1 和另外 %n 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>%1 是文件夹，未写入任何内容。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 为只读。</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>%1 张照片中有 %n 张为只读：%2；未写入任何内容。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>另一次保存正在进行或已中断：照片旁边有 %1。如果没有其他程序正在保存，请将其删除后重新保存。未写入任何内容。</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>“%1”过长：一个值最多 128 KiB。未写入任何内容。</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>无法写入“%1”</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>无法保留“%1”的副本</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>名称只能使用字母 A–Z 和数字。</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>名称至少需要两个字母或数字。</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>“%1”是保留字，请换一个名称。</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>已有字段“%1”</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>不是日期：YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>不是坐标：lat, lon</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>不是时区偏移：+HH:MM</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>不是整数</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>南非荷兰语</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>阿尔巴尼亚语</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯语</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>亚美尼亚语</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>巴斯克语</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>孟加拉语</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>保加利亚语</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>加泰罗尼亚语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>克罗地亚语</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>爱沙尼亚语</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬兰语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>加利西亚语</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>格鲁吉亚语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯来语</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>印地语</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>匈牙利语</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>冰岛语</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>印度尼西亚语</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>爱尔兰语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>拉丁语</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>拉脱维亚语</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>立陶宛语</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>马来语</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>波斯语</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>罗马尼亚语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>塞尔维亚语</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>斯洛伐克语</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>斯洛文尼亚语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>斯瓦希里语</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰语</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>乌克兰语</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>乌尔都语</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南语</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>威尔士语</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>作为照片的名称或标题显示</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>各处都能搜索到的图片说明</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>拍摄日期</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>在各个应用中按此日期排序</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>按关键词筛选和分组</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>照片由谁创作</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>权利/版权声明</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>在地图上标出位置；按地点排序</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>GPS 纬度/经度</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>评分</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ 1–5，多数图库软件均可读取</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>主标题</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>在相册中显示的简短标题</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>画面中人物的姓名</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>按事件将照片分组</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>省/州</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>省或州</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>国家/地区名称</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>具体地点</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>街区/场所</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>颜色或文字标记</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>说明撰写者</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>图片说明由谁撰写</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>主题类别</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>署名</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>署名行</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>内容体裁</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>编辑指示</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>给编辑部的指示</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>任务编号</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>任务/传送编号</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>IPTC 场景代码</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>编辑所用的软件</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>原始来源</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>紧急程度</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>编辑紧急程度（1–8）</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>使用条款</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>权利使用条款</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>权利声明网页</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>权利信息的网址</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>数字化日期</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>图像数字化或扫描的时间</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>时区偏移（拍摄）</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>拍摄日期的时区偏移</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>时区偏移（数字化）</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>数字化日期的时区偏移</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>快门</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>光圈</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>色彩空间</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>常用</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>联系方式</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>拍摄地点</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>画面中的地点</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>画面中的物品</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>权利</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>许可</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>不是 XMP 文件</translation>
    </message>
    <message>
        <source>set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>为空时设置</translation>
    </message>
    <message>
        <source>append</source>
        <translation>加到后面</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>加到前面</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>“%1”中指定的字段不存在。</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>“%1”中指定的字段操作不存在。</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>“%1”中有一个字段没有文本。</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>“%1”不是模板。</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>“%1”由较新版本的 Quorbel 创建。</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>“%1”没有名称。</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>无法读取“%1”。</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>无法写入模板“%1”</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>缺少%1：“%2”</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>缺少%1</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>不是评分：0 到 5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>保留：%1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>没有可填入的内容</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>尚未读取</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>不为空</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>已有</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>一张照片的%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%n 张照片的%1：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>在 %1 找不到 Perl 解释器。</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>ExifTool 已退出，代码为 %1：%2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>无法解码 ExifTool 的输出：%1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>找不到随附的 ExifTool。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>无法启动 ExifTool：%1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>原名称</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>在同一次保存中，不能既替换又追加“%1”。未写入任何内容。</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>在读取过程中发生更改</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>无法写入到“%1”</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1；输出：%2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>其值不是 UTF-8</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>不是对象数组</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>文件不是 UTF-8：已按 Windows Latin 1 读取。</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>文件中有些字符无法读取。</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>另有 %n 行有类似问题。</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>第 %1 行没有制表符：%2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>第 %1 行的制表符前没有代码。</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>第 %1 行没有%2对应的文字。</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>第 %1 行：含有“=”的代码无法输入：%2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>第 %1 行：代码最多 %n 个字符：%2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>%1在第 %2 行和第 %3 行重复出现：以后者为准。</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>%n 个日期</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>%n 个标题</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>%n 个说明</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>%n 位作者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>%n 个地点</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>%n 个主标题</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n 个事件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%n 张中的%1</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>填入空字段</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>会填入空字段</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>填入 %n 张</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>会填入 %n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>追加到“%1”</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>会追加到“%1”</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>追加到 %n 张的%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>会追加到 %n 张的%1</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>替换 %1</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>会替换 %1</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>替换 %1，填入 %n 张</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>会替换 %1，填入 %n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>内容已相同</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>%n 张相同</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>尚未检查</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>%n 张尚未检查</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1/%2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>%n 星</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>返回列表</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>这是最后一张照片</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>这是第一张照片</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>无星</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>仅有缩略图</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>已损坏：无法完整显示</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>预览 %1</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>预览 %1（原图 %2）</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>缩小为 %1（原图 %2）</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>%n 处编辑未保存</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>此照片已损坏：没有可显示的内容。</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>此照片的像素过多，无法显示。</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>此文件中没有可显示的图片。</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>0 到 5 星；点击当前评分可清除</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>栏宽</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>输入建议</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>已编辑</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>此%1的操作</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>保留“%1”</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>移除“%1”</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>位于 %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>移除“%1”</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>新关键词</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>不在已知代码中</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>使用“%1”</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>按输入的内容使用，不属于已知代码</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>时区偏移</translation>
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
            <numerusform>%1/%n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>默认值和格式…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>这些照片的其他字段</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>这张照片的其他字段</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>%n 个字段</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>无相机信息</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>将“%1”写入所有选中的文件</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>移除此字段</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>恢复%1</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>正在读取元数据</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>显示中</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>（空）</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>照片文件本身：此处只读取，绝不写入</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>属于其他标准：此处只读取，绝不写入</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>显示中</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>按 Return 使用此项</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>使用此项</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>使其一致</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>“%1”的存储位置</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>对附属文件中存储位置内容不一致的每个字段，将所显示的内容写入其中的所有存储位置</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>对存储位置内容不一致的每个字段，将所显示的内容写入所有存储位置</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>添加字段</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>正在重命名…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>自定义</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>相机</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>无标题</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>添加说明…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>添加地点…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>添加作者…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>添加版权声明…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>添加主标题…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>添加事件…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>将写入全部 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>追加，保留原有的值</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>移除 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>添加编号 + ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>添加年龄 + ↵</translation>
    </message>
    <message>
        <source>Add organisation + ↵</source>
        <translation>添加机构 + ↵</translation>
    </message>
    <message>
        <source>Add code + ↵</source>
        <translation>添加代码 + ↵</translation>
    </message>
    <message>
        <source>Add keyword + ↵</source>
        <translation>添加关键词 + ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>添加到全部 + ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>多个值，保持不变</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>将写入 %n 张照片中的 %1 张</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>正在读取另外 %1 张…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 张尚未读取</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>全部 %1 张都有</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>%2 张中至少 %1 张有</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>%2 张中 %1 张有</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>将从全部 %n 张照片中移除</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>将移除</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>%1 张照片的存储位置不一致</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>此名称的字段无法在此更改</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>没有未保存的更改</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>%n 处未保存的更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>%n 个字段 → %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>%1有 %n 处编辑未保存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>%n 处编辑未保存</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>为全部添加字段</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在保存…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>应用到 %1 张</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>未选中照片</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>为“%1”添加语言</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>语言或代码</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>没有匹配的语言。也可输入“de-AT”之类的代码。</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>现在</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%1 个存储位置中有 %n 个不一致，显示的是其他标准的内容</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>%1 个存储位置中有 %n 个不一致</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1（将移除）</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>“%1”的其他语言：%2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>其他语言：%1（%2）</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>添加语言</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>隐藏语言</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>显示语言</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>添加语言…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>“%1”必填</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>已填 %1/%2</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>下一处空缺 F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>勾选字段，即可写入所有选中的文件。</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>正在编辑 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>字段集</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>从“地点”复制</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>复制到“地点”</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>搜索地点…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>那里没有内容</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>此处没有内容</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>使用记住的联系方式…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>使用记住的许可方…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>使用记住的联系方式…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>使用记住的许可方…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>清除记住的联系方式</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>清除记住的许可方</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>记住的联系方式</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>记住的许可方</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>%n 个联系方式</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>%n 件艺术品</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>%n 个词条</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>%n 条权利表述</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>%n 个条目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>%n 位贡献者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n 个区域</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>%n 个轮廓</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>%n 个点</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n 个链接</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>%n 个人物</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n 个产品</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>%n 个许可方</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>%n 个所有者</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n 个供应方</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>添加联系方式</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>添加艺术品</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>添加词条</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>添加权利表述</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>添加条目</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>添加贡献者</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>添加区域</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>添加轮廓</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>添加点</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>添加链接</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>添加地点</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>添加人物</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>添加产品</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>添加许可方</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>添加所有者</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>添加作者</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>添加供应方</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>新联系方式</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>新艺术品</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>新词条</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>新权利表述</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>新条目</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>新贡献者</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>新区域</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>新轮廓</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>新点</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>新链接</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>新地点</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>新人物</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>新产品</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>新许可方</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>新所有者</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>新作者</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>新供应方</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>添加代码</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>搜索地点</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>城市、地标或机场</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>无法查询</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>清除“%1”</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>更多</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>此%1的更多字段</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>另含其他程序写入的%1，会予以保留。更改此%2时可能因此被拒绝。</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>清空</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1，第 %3 个%2，共 %4 个</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>以代码存储</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>这 %1 张中</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>将移除</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>新建组…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>编辑组…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>快捷</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>快捷关键词</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>将“%1”添加到全部，%2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>将“%1”添加到全部</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>快捷关键词组：%1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>根据坐标填入地点</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>未安装地点搜索</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>地名服务要求稍候再试</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>地名服务返回的数据过多</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>地名服务未及时响应</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>无法连接地名服务</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>地名服务返回了意外的内容</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>地名服务返回状态 %1</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>%1 的地图</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>添加字段</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>搜索字段…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>搜索字段</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>推荐 · 各处通用</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>已有内容的字段不再列出。</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>高级 · 自定义字段</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>部分应用可能不显示</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>值</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>例如 Project</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>推荐的字段均已显示。</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>没有匹配的字段。</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>将存储为“%1”</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>添加元数据字段</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>其他字段</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>复制于今天 %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>复制于昨天 %1</translation>
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
        <translation>复制于 %1 %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>复制的字段</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>来自 %1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>全选</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>勾选所有字段</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>取消勾选所有字段</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>粘贴字段</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>粘贴 %n 个字段</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>应用之前不会写入任何内容。</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>保存之前不会写入任何内容。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>%n 张照片尚未读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>将字段粘贴到 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>将字段粘贴到 %1</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>前九个可用 Alt+1 到 Alt+9 添加。</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>删除此组</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>组中的关键词</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>新建快捷关键词组</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>快捷关键词组</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>点击字段即可插入。扩展名会自动保留。</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>预览</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>重命名文件</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>使 %n 张照片的内容一致？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>将更改应用到 %n 张照片？</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>使“%1”的内容一致？</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>保存对“%1”的更改？</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>字段的各存储位置内容不同时，将全部统一为所显示的内容。列表则会合并。</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>您编辑了 %n 个字段。如果不保存，更改将会丢失。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>这将修改 %n 个文件中所选的字段，且无法撤销。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>这将修改 %n 个文件中的%1，且无法撤销。</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>移除：%1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>更改</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>保存且不再询问</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>本次运行期间不再询问</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>使其一致</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>使其一致</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>应用到 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>调整前后</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>按时间量</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>按已知照片</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>推后</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>提前</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>保持钟面时间</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>使用各照片自身的时区</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>平移方式</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>调整前 → 调整后</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>天</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>天</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>时</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>分</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
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
        <translation>实际拍摄于</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>从选中的照片中选择</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>不勾选时，实际时刻不变，钟面时间改变</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>搜索照片</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>没有匹配的照片</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>搜索城市或时区偏移</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>没有匹配的时区</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>设置 %n 张的时区</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>平移 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>照片的数字化日期和其他日期会一同平移。</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>无日期</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>正在读取另外 %n 张…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>其余照片按相同的量平移：%1。</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>平移 %n 张照片的时间</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>没有匹配的快捷键。</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>搜索快捷键…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>搜索快捷键</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>%n 个快捷键</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>字段集</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>必填</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>删除此字段集</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>复制此字段集并新建</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>%1 副本</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>此字段集为 Quorbel 自带。如需更改，请用 + 创建副本。</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>字段集</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>字段集中的字段</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>字段</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>显示%1</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>%1必填</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>%1 名称不变</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 改为 %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>序号起始</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步长</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>位数</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>下一个</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>步长</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>位数</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>扩展名会保留。</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>转到下一个需要检查的名称</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>%1 个需检查</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>重命名 %1 张</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>附属文件和备份会一同重命名。编辑 ▸ 撤销重命名 可还原。</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>正在重命名 %1/%2 张…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>保存完成后立即重命名…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>重命名 %1 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>无%1</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>新增</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>更改</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>移除</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>附属文件中的内容会写入照片本身，两者不同时也会写入。附属文件保持不变。</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>RAW 照片中有而附属文件中没有的内容会写入附属文件。照片保持不变。</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>正在检查文件…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>没有需要写入的内容。</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>已检查 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>写入 %1 张照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>为 %1 张照片写入</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>将附属文件写入照片</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>将元数据写入附属文件</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 张照片新增此字段</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 张照片更改此字段</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>%n 张照片移除此字段</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>写入的内容</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>正在检查… %1/%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>%1 张照片不一致</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 张不一致</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>%1 张尚未检查</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 张未知</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>显示所有照片</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>筛选</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>另外 %n 项筛选</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1，%2 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>缺少</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>至少</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>点击要列出的最低评分；再次点击则不限评分</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>任意字段包含…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>任意字段包含</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>至少，不限评分</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>无标题</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>无说明</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>无关键词</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>无拍摄日期</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>无地点</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>无作者</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>无版权</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>未评分</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>已编辑，未保存</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>打开后有更改</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>存储位置不一致</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>清除筛选</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>筛选图像</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>至少 %n 星</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>包含“%1”</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>没有匹配的照片。</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>没有符合的照片</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>所有存储位置一致</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>%1 张照片尚未检查</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>双击可用默认图像应用打开</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>名称（A–Z）</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>名称（Z–A）</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>日期（从新到旧）</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>日期（从旧到新）</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>图像排序</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>%1 的缩略图</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>无内容</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>设置</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>为空时设置</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>加到后面</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>加到前面</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>对“%1”的处理</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>添加姓名 + ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>上一张照片</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>下一张照片</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>填写</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>更多</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>字段</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>模板用文本填写选中照片的字段，文本中的占位符由每张照片自身的信息补全。按 + 创建模板，或将模板文件拖到列表中。</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>无快捷键</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>预览</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>填写 %1 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>没有此名称的字段。</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>自定义字段</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>从 %1 开始</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>从 %1 开始，步长 %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>或 %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>更多…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>插入“%1”</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>更多占位符</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>占位符</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>搜索占位符…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>没有此名称的占位符。</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>“%1”的默认值和格式</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>缺少时</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>留空</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>格式</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>起始</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>大小写</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>保持原样</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>全部大写</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>全部小写</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>例如“%1”</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>此文件中没有代码。</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>%n 个代码。</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>清除</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>选择代码文件</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>不使用代码文件</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>文本文件，每行依次为代码、制表符和对应的文字。在文本或关键词中输入 =js=，输入第二个“=”时 js 就会变成对应的文字；撤销一次可还原为代码。</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>无文件</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>上一张照片中没有不同的内容</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>入门</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>Quorbel 可读取和编辑照片中的元数据（标题、日期、图片说明、关键词和地点），并将更改同时写入 EXIF、IPTC 和 XMP 标准，使各个应用读到的内容一致。</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>首先，请打开图像文件夹，或者一个或多个图像文件：</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>选择 文件 ▸ 打开…（⌘O），或将照片拖到窗口中。</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>选择 文件 ▸ 连同子文件夹打开…（⌘⇧O），打开文件夹及其中的所有文件夹。</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>通过 文件 ▸ 打开最近项目 重新打开最近用过的内容。</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>在文件管理器中右键点击照片，选择 打开方式 ▸ Quorbel。</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>界面</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>窗口分为三个部分：</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>侧边栏（左）：文件夹中的所有照片。可用顶部的控件搜索，并按名称或日期排序。</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>连同子文件夹打开时，每个文件夹都有一个标题行。点击标题行，或在其上按 Return，可折叠该文件夹的照片；⌥点击可折叠全部。← 从照片移到所属标题行并折叠，→ 展开。</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>预览（中）：加宽窗口后会出现大幅预览栏，始终能看到正在处理的照片。</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>检查器（右）：可编辑的字段，分为“常用”“地点”等组，另有只读的“相机”信息。</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>Quorbel 会记住读取过的内容：再次打开的文件夹会立即显示，只重新读取有变化的照片。查看 ▸ 重新读取（⇧F5）会将全部照片重读一遍。</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>编辑元数据</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>选择照片，在检查器中编辑其字段。标题、日期、图片说明或地点只需填写一次，Quorbel 便会同时写入对应的 EXIF、IPTC 和 XMP 标签。</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>使用“添加字段”选择推荐的标准字段，或创建自定义字段。</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>在设置中打开“显示命名空间详情”，可查看每个值具体写入哪个标签。</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>编辑过的字段会带有标识，直到保存为止。</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>逐张处理照片</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>为大量照片撰写图片说明无需鼠标。以下按键在任何字段中都有效：</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>⌥+↓ 和 ⌥+↑ 转到下一张和上一张照片。光标停留在同一字段，其中的文字会被选中。</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>⌘Return 保存并立即转到下一张：上一张照片还在写入时，就可以继续输入。</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>Ctrl+&apos; 用上一张照片的内容填入字段。如果上一张的该字段为空，则不会删除任何内容。</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>焦点在列表中时，按 0 到 5 评分；⌘⌥0 到 ⌘⌥5 在任何位置都可评分，一张或多张照片均可。</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>F11，或在列表中按空格键，可放大细看：照片占满整个窗口。点击或按 Z 以原始像素显示该处，方向键转到下一张照片的同一位置，Escape 返回。</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>帮助 ▸ 键盘快捷键（Ctrl+F1）列出所有按键。</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>多种语言</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>同一张照片的标题、说明、版权声明、事件或使用条款可以有多种语言。字段中显示各个应用都会读取的文本；无论在其中写什么，其他语言的文本都会保留在照片中。</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>如果字段还有其他语言，其右端会列出这些语言，例如“de fr”。点击该处，或在字段中按 ⌥+→，可查看和编辑；⌥+← 将其隐藏。</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>“添加语言”可按名称查找语言；点击文本后面的叉号可移除该语言。</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>两者在保存之前都算未保存的更改，并且可同时用于多张照片。</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>关键词路径</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>许多程序以树状结构管理关键词，例如 地点 ▸ 法国 ▸ 巴黎。Quorbel 会显示关键词所处的位置：关键词不多时显示在其前面，并且始终显示在工具提示中。</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>输入 地点 &gt; 法国 &gt; 巴黎（&gt; 两侧各留一个空格），或者 地点|法国|巴黎。照片便会得到关键词“巴黎”及其在树中的位置。</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>输入建议会给出关键词所处的位置。输入 地点| 可查看“地点”下面的内容。</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>移除关键词时，通向它的路径也会从照片中所有存有该路径的地方一并移除。通向更下层的路径则会保留。</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>不一致的存储位置</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>照片的标题或日期存储在多个位置，每个程序只读取自己认识的那个。如果有程序只改了其中一部分，各位置的内容就会不同。存储位置内容不一致的字段，下方会有标识。</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>点击该标识可查看各存储位置的内容。“使用此项”会将该文本作为您的编辑内容；保存时会写入所有位置。</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>查看 ▸ 显示不一致项（⌘⇧D）只列出存储位置内容不一致的照片。Quorbel 会检查所有打开的照片，其间您可以继续工作。</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>选中照片后，编辑 ▸ 使其一致 会把每张照片显示的内容写入其所有存储位置。“撤销保存”可还原。</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>查找空缺</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>搜索旁边的筛选器可只列出缺少某项内容、星级较低或较高、已编辑但未保存，或在任意字段中含有某段文字的照片。勾选多项时，照片必须全部符合。各项计数均针对所有打开的照片。</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>F8 转到下一个空字段：先沿表单向下，再到下一张照片。⇧F8 反向跳转。使用空字段筛选时，只计入所筛选的字段。</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>正在编辑的照片会留在列表中，直到保存；之后由下一张照片接替。</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>点击筛选标签上的叉号，或在其上按 Delete，可取消该项筛选；查看 ▸ 清除筛选（⌘⇧F）取消全部筛选。</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>IPTC 字段与字段集</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>Quorbel 可读写 IPTC Photo Metadata Standard 的所有属性：替代文本、联系方式、人物、地点、授权书、许可、图片的制作方式等。照片只显示其中已有的字段；其余字段都可在“添加字段”中按名称、用途或标签找到。</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>查看 ▸ 字段集 用于切换屏幕上同时显示的字段：图片说明、新闻、博物馆、图库、权利、无障碍，或您自己的字段集。照片中不属于该字段集的已有内容仍会显示，编辑过的内容也是如此。</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>字段集可以指定必填字段。空的必填字段带有虚线边框，各分组的标题行会显示其数量，按 F8 可逐个转到，到末尾后转到下一张照片。⇧F8 反向跳转。</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>“将当前显示存为字段集…”可创建您自己的字段集；“编辑字段集…”可更改其中的字段和必填字段。Quorbel 自带的字段集可在那里复制。</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>“默认”即原来的表单。选择或创建过字段集后，也可以在表单顶部切换。</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>平移时间</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>如果相机时钟不准，它拍的所有照片时间都会出错。请选中这些照片，然后选择 编辑 ▸ 平移时间。</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>按时间量：推后或提前若干天、小时、分钟和秒。</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>按已知照片：输入其中一张照片的实际拍摄时间，其余照片会按相同的量平移。</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>时区：设置这些时间所属的时区。可保持钟面时间不变，也可让其随时区变化。有位置信息的照片可各自设为拍摄地的时区。</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>表格显示第一张和最后一张照片，以及日期会改变的照片。没有日期的照片会列出，但不作更改。“撤销时间平移”可还原。</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>批量编辑</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>选择多张照片即可一并编辑。⌘A 全选，⇧点击或 ⌘点击可逐步添加选择。</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>选择要应用的字段并填写值，Quorbel 会一次性写入所有选中的照片。</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>列表字段（如关键词）的值会追加到选中的每张照片。</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>批量编辑之前，Quorbel 会请您确认，除非您已关闭该提示。</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>关键词下方列出选中照片已有的关键词，以及各有多少张照片使用。点击某个关键词可将其添加到所有选中的照片；点击其叉号，则会在下次保存时从全部照片中移除。</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>快捷关键词是您最近用过的关键词，或您自己的一组关键词：点击即可使用，或按 Alt+1 到 Alt+9。点击组名会打开包含所有组的菜单。</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>复制字段与代码</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>一张照片的内容可以用到其他照片上，经常输入的文字也可以用简短的代码代替。</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>编辑 ▸ 复制字段（⌘⇧C）按显示的内容复制所选照片的字段。编辑 ▸ 粘贴字段…（⌘⇧V）显示选中的照片中哪些内容会被替换，并粘贴您勾选的字段。保存之前不会写入任何内容。</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>编辑 ▸ 再次粘贴字段 按相同的勾选直接粘贴，不再询问。最近一次复制的内容在其他窗口中以及重启之后仍然可用。</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>在设置中选择代码文件：每行依次为代码、制表符和对应的文字。然后在文本或关键词中输入 =js=，js 就会变成对应的文字。撤销（⌘Z）一次可还原为代码。</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>模板用文本填写选中照片的字段，文本中的占位符由每张照片自身的信息补全，例如“%Place|Zürich% 帆船赛第 %Counter% 场”。要创建模板，请打开 编辑 ▸ 模板，或在照片上选择 存为模板…</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>⌘1 到 ⌘9 应用设有相应按键的模板。填入的内容算作编辑内容，保存时才写入。</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>每个字段可以直接设置、仅在为空时设置，或者在原有文本之后或之前添加文本。</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>占位符代表照片中的信息：所有字段、相机、%Filename% 和 %Counter%。双击占位符可设置格式（如 d MMMM yyyy），以及照片缺少该值时使用的文本。</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>每个模板都是一个文件。从列表中拖出即可分享给他人，将文件拖入即可导入。</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>重命名文件</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>Quorbel 可按照由照片元数据组成的格式重命名文件。打开重命名对话框，添加占位符和任意文字，预览结果后再应用。</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>可用的占位符：</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>%Date%：拍摄日期</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>%Time%：拍摄时间</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>%Title%：标题</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>%Creator%：作者</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>%Place%：地点</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>%Original%：原文件名</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>示例：%Date%_%Title% 可能得到 2026-07-14_Sunset.jpg。文件名会自动符合文件系统的要求，并且不会重复。</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>多张照片可以一起重命名：选中照片，在文件菜单中选择“重命名照片…”（Shift+F2）。%Counter% 按列表顺序编号；其他每个字段也都有以其名称命名的占位符，例如 %Headline%，而 %Title|Untitled% 或 %Date:yyyyMMdd% 可指定没有标题时的替代文字或日期的写法。缺少内容或已被占用的名称会带有标识。附属文件、备份和配对的 RAW 文件会一同重命名；编辑菜单中的“撤销重命名”可全部还原，重启之后也可以。</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>保存与备份</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>编辑内容在保存（⌘S）时写入。</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>写入之前会备份原文件（可在设置中关闭）。</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>有未保存的更改时，Quorbel 会在您离开之前提示。</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>可在设置中选择写入 XMP 附属文件，而不是嵌入照片。</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>RAW 文件</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>设置 ▸ RAW 文件 决定 RAW 照片的编辑内容写到哪里：像其他照片那样写入文件内，或者写到文件旁。选择文件旁时，RAW 文件本身绝不会被写入。</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>这时内容会写入 XMP 附属文件，其他程序也能读写。照片名称下方的一行会显示是哪个文件。DNG 可单独设置。</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>逐个字段来看，附属文件中的内容优先于 RAW 文件中的内容。两者不同时，字段会带有标识；点击标识可同时查看两者。</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>查看 ▸ RAW 与 JPEG 配对 将同一次拍摄的两个文件显示为一张照片。编辑内容会按各自的设置写入两个文件，重命名时同一次拍摄的所有文件会一并更名。</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>文件 ▸ 将附属文件写入照片… 和 将元数据写入附属文件… 可为选中的照片转移内容。写入之前会先显示有哪些更改、涉及多少张照片。“撤销保存”可还原。</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>显影设置以及其他程序存放在附属文件中的其他内容都保持不变。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>选择 文件 ▸ 设置…（⌘,），可调整：</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>保存前备份原文件。</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>写入 XMP 附属文件。</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>为每个字段显示命名空间详情。</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>批量编辑前的确认，以及默认的重命名格式。</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>Quorbel 帮助</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>将文件夹或图像拖到此处</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>打开文件夹…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>打开图像…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>连同子文件夹打开</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>仅有缩略图</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>已选中 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>%1 的预览，仅有缩略图</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>%1 的预览</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>正在检查 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>正在补读 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>正在读取 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>正在重命名 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>正在保存 %1/%2 张照片…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>卡在 %1</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>正在查找照片…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>显示</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>下次启动时生效。</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>显示命名空间详情</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>在每个字段下方显示来源标签（EXIF / IPTC / XMP）。</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>写入前备份原文件</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>批量应用到多个文件前确认</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>同时写入附属 .xmp 文件</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>将 XMP 元数据同步写入每个图像旁边的 &lt;name&gt;.xmp。</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>文件名格式</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>占位符：%Date% %Time% %Title% %Creator% %Place% %Original%。扩展名会自动保留。</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>去除特殊字符</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>只保留字母和数字（去掉变音符号，例如 Café → Cafe）。关闭时会保留 @ 和 &apos; 等字符。</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>RAW 文件</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>RAW 照片的编辑内容</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>与其他照片一样，编辑内容会写入 RAW 文件。</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>RAW 文件保持不变。其他程序可从附属文件中读取内容。</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>DNG 照片的编辑内容</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>DNG 本来就能存放元数据，因此与其他照片一样直接写入。</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>DNG 文件保持不变。其他程序可从附属文件中读取内容。</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>文件内</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>文件旁</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>写入文件内</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>写入文件旁</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>新附属文件的名称</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>已有的附属文件名称不变。</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>地点</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>在线地名服务</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>留空：只在本机查找地点。填写兼容 Photon 的服务的 https 地址后，您在“地点”字段中输入的内容会发送到该服务；本机已知的地点仍排在前面。下次启动时生效。</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>代码替换</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>未使用：这不是 https 地址。</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>评分</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>在照片列表中</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>下一张或上一张照片</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>向后或向前一页</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>第一张或最后一张照片</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>选择到该处</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>移到该处但不选择</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>加入选择或从中移除</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>放大细看</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>用默认应用打开</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>按名称开头查找</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>折叠或展开文件夹</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>折叠或展开所有文件夹</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>放大细看时</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>下一张或上一张照片的同一位置</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>原始像素或整张照片</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>放大或缩小</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>左右移动照片</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>上下移动照片</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>在字段中</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>显示其他语言或添加语言</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>隐藏其他语言</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>在关键词中</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>添加输入的内容</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>从输入框转到最后一个关键词</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>移除该关键词</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>在星级上</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>增加或减少一颗星</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>搜索时</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>转到搜索结果</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>重新显示所有照片</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>在对话框中</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>此文件夹不会报告更改；%1 每隔几秒检查一次。</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>其中有些文件夹不会报告更改；%1 每隔几秒检查一次。</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>%2 个文件夹中只有 %1 个会报告更改。请刷新以查看其余文件夹的变化。</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>刷新文件夹</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>显示预览</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>隐藏预览</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>写入前备份原文件</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>同时写入附属 .xmp 文件</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>因无法读取而保持原样：%1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>一直在变化</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>ExifTool 没有返回任何信息</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>部分字段无法读取（%1）</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>部分字段无法读取</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>如果照片的部分字段无法读取，其名称下方会显示“部分字段无法读取”。在点击“重试”读取到这些字段之前，无法编辑它们：没有人看到过的内容不会被覆盖。</translation>
    </message>
</context>
</TS>
