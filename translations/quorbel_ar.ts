<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Quorbel::Texts</name>
    <message>
        <source>ExifTool could not be found in the app bundle. Metadata cannot be read or written.</source>
        <translation>تعذّر العثور على ExifTool ضمن البرنامج. لا يمكن قراءة البيانات الوصفية أو كتابتها.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>لا صور</numerusform>
            <numerusform>صورة واحدة</numerusform>
            <numerusform>صورتان</numerusform>
            <numerusform>%n صور</numerusform>
            <numerusform>%n صورة</numerusform>
            <numerusform>%n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n folder(s)</source>
        <extracomment>%1 is a number of photos: &quot;12 photos in 3 folders&quot;</extracomment>
        <translation>
            <numerusform>%1 في %n مجلد</numerusform>
            <numerusform>%1 في مجلد واحد</numerusform>
            <numerusform>%1 في مجلدين</numerusform>
            <numerusform>%1 في %n مجلدات</numerusform>
            <numerusform>%1 في %n مجلدًا</numerusform>
            <numerusform>%1 في %n مجلد</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>لا شيء معروض</numerusform>
            <numerusform>واحدة معروضة</numerusform>
            <numerusform>اثنتان معروضتان</numerusform>
            <numerusform>%n معروضة</numerusform>
            <numerusform>%n معروضة</numerusform>
            <numerusform>%n معروضة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>لا شيء محدد</numerusform>
            <numerusform>واحدة محددة</numerusform>
            <numerusform>اثنتان محددتان</numerusform>
            <numerusform>%n محددة</numerusform>
            <numerusform>%n محددة</numerusform>
            <numerusform>%n محددة</numerusform>
        </translation>
    </message>
    <message>
        <source>No supported images were found.</source>
        <translation>لم يُعثر على صور مدعومة.</translation>
    </message>
    <message>
        <source>“%1” could no longer be found.</source>
        <translation>لم يعد «%1» موجودًا.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits.</source>
        <translation>أزال برنامج آخر «%1». التغييرات غير المحفوظة باقية: تحرير ◂ استعادة التعديلات.</translation>
    </message>
    <message>
        <source>“%1” was removed by another program.</source>
        <translation>أزال برنامج آخر «%1».</translation>
    </message>
    <message>
        <source>The places of these photos’ fields could not be read: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>تعذّرت قراءة مواضع حقول هذه الصور: %1</translation>
    </message>
    <message>
        <source>The places of the selected photos’ fields agree already.</source>
        <translation>مواضع حقول الصور المحددة متفقة من قبل.</translation>
    </message>
    <message>
        <source>The unsaved changes come back as soon as their photos are read.</source>
        <translation>تُستعاد التغييرات غير المحفوظة فور قراءة صورها.</translation>
    </message>
    <message>
        <source>Not here any more: %1. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>لم تعد موجودة هنا: %1. التغييرات غير المحفوظة باقية.</translation>
    </message>
    <message>
        <source>%1 could no longer be found. The unsaved changes are kept.</source>
        <extracomment>%1 names photos</extracomment>
        <translation>لم يعد %1 موجودًا. التغييرات غير المحفوظة باقية.</translation>
    </message>
    <message>
        <source>A file name cannot hold “/”.</source>
        <translation>لا يجوز أن يحتوي اسم الملف على «/».</translation>
    </message>
    <message>
        <source>Could not rename: %1</source>
        <translation>تعذّرت إعادة التسمية: %1</translation>
    </message>
    <message>
        <source>Could not rename: “%1” is being saved.</source>
        <translation>تعذّرت إعادة التسمية: يجري حفظ «%1» الآن.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>the end of a list: &quot;a.jpg, b.jpg and c.jpg&quot;
----------
The end of a list of names: %1 is those before, with commas between them, %2 the last one.</extracomment>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>Save without %1</source>
        <extracomment>%1 are parts of a file that take no text: &quot;EXIF and IPTC&quot;</extracomment>
        <translation>الحفظ دون %1</translation>
    </message>
    <message>
        <source>different items</source>
        <translation>عناصر مختلفة</translation>
    </message>
    <message numerus="yes">
        <source>%n different texts</source>
        <translation>
            <numerusform>لا نصوص مختلفة</numerusform>
            <numerusform>نص واحد</numerusform>
            <numerusform>نصان مختلفان</numerusform>
            <numerusform>%n نصوص مختلفة</numerusform>
            <numerusform>%n نصًا مختلفًا</numerusform>
            <numerusform>%n نص مختلف</numerusform>
        </translation>
    </message>
    <message>
        <source>emptied</source>
        <extracomment>said of a field whose text is taken away</extracomment>
        <translation>أُفرغ</translation>
    </message>
    <message>
        <source>%1 in %2 of %3</source>
        <extracomment>%1 is what stands in a field (&quot;3 different texts&quot;), %2 and %3 count photos: &quot;“Zoë” in 2 of 12&quot;</extracomment>
        <translation>%1 في %2 من %3</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>التعليقات</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>الصحافة</translation>
    </message>
    <message>
        <source>Museum</source>
        <translation>المتاحف</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>مخزون الصور</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>الحقوق</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>إمكانية الوصول</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>الافتراضي</translation>
    </message>
    <message>
        <source>A set needs a name</source>
        <translation>لا بد للمجموعة من اسم</translation>
    </message>
    <message>
        <source>There are two sets named “%1”</source>
        <translation>توجد مجموعتان باسم «%1»</translation>
    </message>
    <message>
        <source>“%1” has no fields</source>
        <translation>لا حقول في «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.</source>
        <translation>
            <numerusform>لا صور تحمل بيانات اعتماد المحتوى.</numerusform>
            <numerusform>تحمل صورة واحدة بيانات اعتماد المحتوى: ستبلّغ برامج أخرى عن تغييرها.</numerusform>
            <numerusform>تحمل صورتان بيانات اعتماد المحتوى: ستبلّغ برامج أخرى عن تغييرهما.</numerusform>
            <numerusform>تحمل %n صور بيانات اعتماد المحتوى: ستبلّغ برامج أخرى عن تغييرها.</numerusform>
            <numerusform>تحمل %n صورة بيانات اعتماد المحتوى: ستبلّغ برامج أخرى عن تغييرها.</numerusform>
            <numerusform>تحمل %n صورة بيانات اعتماد المحتوى: ستبلّغ برامج أخرى عن تغييرها.</numerusform>
        </translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>استغرق وقتًا أطول من اللازم</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>اسمه ليس بترميز UTF-8</translation>
    </message>
    <message>
        <source>Could not read metadata: %1</source>
        <translation>تعذّرت قراءة البيانات الوصفية: %1</translation>
    </message>
    <message>
        <source>broken link</source>
        <extracomment>why a file cannot be read, in brackets behind its name</extracomment>
        <translation>رابط معطوب</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>of a file</comment>
        <translation>فارغ</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read and (was|were) left out: %1</source>
        <extracomment>%1 names the files, with the reasons</extracomment>
        <translation>
            <numerusform>لم يُستبعد أي ملف: %1</numerusform>
            <numerusform>تعذّرت قراءة ملف واحد فاستُبعد: %1</numerusform>
            <numerusform>تعذّرت قراءة ملفين فاستُبعدا: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملفات فاستُبعدت: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملفًا فاستُبعدت: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملف فاستُبعدت: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1</source>
        <extracomment>%1 names the sidecars, with the reasons</extracomment>
        <translation>
            <numerusform>قُرئت كل الملفات المرافقة: %1</numerusform>
            <numerusform>تعذّرت قراءة ملف مرافق واحد، فتُعرض صورته بدونه: %1</numerusform>
            <numerusform>تعذّرت قراءة ملفين مرافقين، فتُعرض صورتاهما بدونهما: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملفات مرافقة، فتُعرض صورها بدونها: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملفًا مرافقًا، فتُعرض صورها بدونها: %1</numerusform>
            <numerusform>تعذّرت قراءة %n ملف مرافق، فتُعرض صورها بدونها: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Started again at the top</source>
        <translation>استؤنف من البداية</translation>
    </message>
    <message>
        <source>Started again at the end</source>
        <translation>استؤنف من النهاية</translation>
    </message>
    <message>
        <source>No gaps left</source>
        <translation>لم تبقَ حقول فارغة</translation>
    </message>
    <message>
        <source>No gaps left · %1 not read yet</source>
        <translation>لم تبقَ حقول فارغة · لم تُقرأ بعد: %1</translation>
    </message>
    <message>
        <source>It keeps its name.</source>
        <translation>يبقى الاسم كما هو.</translation>
    </message>
    <message>
        <source>All photos keep their names.</source>
        <translation>تبقى أسماء كل الصور كما هي.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) keep their names.</source>
        <translation>
            <numerusform>تبقى الأسماء كما هي: %1 من %n</numerusform>
            <numerusform>تبقى الأسماء كما هي: %1 من صورة واحدة</numerusform>
            <numerusform>تبقى الأسماء كما هي: %1 من صورتين</numerusform>
            <numerusform>تبقى الأسماء كما هي: %1 من %n صور</numerusform>
            <numerusform>تبقى الأسماء كما هي: %1 من %n صورة</numerusform>
            <numerusform>تبقى الأسماء كما هي: %1 من %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not rename: %1: %2.</source>
        <extracomment>%1 is the photo, %2 why</extracomment>
        <translation>تعذّرت إعادة التسمية: %1: %2.</translation>
    </message>
    <message>
        <source>Could not rename: %1. %2</source>
        <translation>تعذّرت إعادة التسمية: %1. %2</translation>
    </message>
    <message>
        <source>Could not undo the rename: %1. %2</source>
        <translation>تعذّر التراجع عن إعادة التسمية: %1. %2</translation>
    </message>
    <message>
        <source>another Quorbel is undoing one at this moment</source>
        <translation>نسخة أخرى من Quorbel تُجري تراجعًا الآن</translation>
    </message>
    <message>
        <source>it was undone already</source>
        <translation>جرى التراجع من قبل</translation>
    </message>
    <message>
        <source>Undo Save</source>
        <translation>التراجع عن الحفظ</translation>
    </message>
    <message>
        <source>Undo Shift Time of “%1”</source>
        <translation>التراجع عن إزاحة الوقت في «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Shift Time of %n photo(s)</source>
        <translation>
            <numerusform>التراجع عن إزاحة الوقت</numerusform>
            <numerusform>التراجع عن إزاحة الوقت في صورة واحدة</numerusform>
            <numerusform>التراجع عن إزاحة الوقت في صورتين</numerusform>
            <numerusform>التراجع عن إزاحة الوقت في %n صور</numerusform>
            <numerusform>التراجع عن إزاحة الوقت في %n صورة</numerusform>
            <numerusform>التراجع عن إزاحة الوقت في %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Save of “%1”</source>
        <translation>التراجع عن حفظ «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Save of %n photo(s)</source>
        <translation>
            <numerusform>التراجع عن الحفظ</numerusform>
            <numerusform>التراجع عن حفظ صورة واحدة</numerusform>
            <numerusform>التراجع عن حفظ صورتين</numerusform>
            <numerusform>التراجع عن حفظ %n صور</numerusform>
            <numerusform>التراجع عن حفظ %n صورة</numerusform>
            <numerusform>التراجع عن حفظ %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not undo the shift of time: %1</source>
        <extracomment>%1 is the reason</extracomment>
        <translation>تعذّر التراجع عن إزاحة الوقت: %1</translation>
    </message>
    <message>
        <source>Could not undo the save: %1</source>
        <translation>تعذّر التراجع عن الحفظ: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the shift of time of %n photo(s): %1</source>
        <extracomment>%1 names the photos, with the reasons</extracomment>
        <translation>
            <numerusform>تعذّر التراجع عن إزاحة الوقت: %1</numerusform>
            <numerusform>تعذّر التراجع عن إزاحة الوقت في صورة واحدة: %1</numerusform>
            <numerusform>تعذّر التراجع عن إزاحة الوقت في صورتين: %1</numerusform>
            <numerusform>تعذّر التراجع عن إزاحة الوقت في %n صور: %1</numerusform>
            <numerusform>تعذّر التراجع عن إزاحة الوقت في %n صورة: %1</numerusform>
            <numerusform>تعذّر التراجع عن إزاحة الوقت في %n صورة: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not undo the save of %n photo(s): %1</source>
        <translation>
            <numerusform>تعذّر التراجع عن الحفظ: %1</numerusform>
            <numerusform>تعذّر التراجع عن حفظ صورة واحدة: %1</numerusform>
            <numerusform>تعذّر التراجع عن حفظ صورتين: %1</numerusform>
            <numerusform>تعذّر التراجع عن حفظ %n صور: %1</numerusform>
            <numerusform>تعذّر التراجع عن حفظ %n صورة: %1</numerusform>
            <numerusform>تعذّر التراجع عن حفظ %n صورة: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not undone: %n photo(s) changed since and (was|were) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لم يجرِ التراجع: %1</numerusform>
            <numerusform>لم يجرِ التراجع: تغيّرت صورة واحدة بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>لم يجرِ التراجع: تغيّرت صورتان بعد ذلك فتُركتا كما هما: %1</numerusform>
            <numerusform>لم يجرِ التراجع: تغيّرت %n صور بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>لم يجرِ التراجع: تغيّرت %n صورة بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>لم يجرِ التراجع: تغيّرت %n صورة بعد ذلك فتُركت كما هي: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but %n photo(s) changed since and (was|were) left alone: %1</source>
        <translation>
            <numerusform>جرى التراجع: %1</numerusform>
            <numerusform>جرى التراجع، لكن صورة واحدة تغيّرت بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>جرى التراجع، لكن صورتين تغيّرتا بعد ذلك فتُركتا كما هما: %1</numerusform>
            <numerusform>جرى التراجع، لكن %n صور تغيّرت بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>جرى التراجع، لكن %n صورة تغيّرت بعد ذلك فتُركت كما هي: %1</numerusform>
            <numerusform>جرى التراجع، لكن %n صورة تغيّرت بعد ذلك فتُركت كما هي: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone, but not every value of %n photo(s) could be put back as it was: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>جرى التراجع: %1</numerusform>
            <numerusform>جرى التراجع، لكن بعض قيم صورة واحدة لم يعد كما كان: %1</numerusform>
            <numerusform>جرى التراجع، لكن بعض قيم صورتين لم يعد كما كان: %1</numerusform>
            <numerusform>جرى التراجع، لكن بعض قيم %n صور لم يعد كما كان: %1</numerusform>
            <numerusform>جرى التراجع، لكن بعض قيم %n صورة لم يعد كما كان: %1</numerusform>
            <numerusform>جرى التراجع، لكن بعض قيم %n صورة لم يعد كما كان: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>what it holds could not be read</source>
        <translation>تعذّرت قراءة محتواه</translation>
    </message>
    <message>
        <source>reading it back took too long</source>
        <translation>استغرقت إعادة قراءته وقتًا أطول من اللازم</translation>
    </message>
    <message>
        <source>cannot be read any more</source>
        <translation>لم تعد قراءته ممكنة</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s) differed between IPTC and XMP and were brought together: %2</source>
        <extracomment>%1 is a field that holds a list (&quot;Keywords&quot;), %2 names the photos</extracomment>
        <translation>
            <numerusform>اختلف الحقل %1 بين IPTC وXMP فجُمعت القيم (%n): %2</numerusform>
            <numerusform>اختلف الحقل %1 في صورة واحدة بين IPTC وXMP فجُمعت قيمه: %2</numerusform>
            <numerusform>اختلف الحقل %1 في صورتين بين IPTC وXMP فجُمعت قيمه: %2</numerusform>
            <numerusform>اختلف الحقل %1 في %n صور بين IPTC وXMP فجُمعت قيمه: %2</numerusform>
            <numerusform>اختلف الحقل %1 في %n صورة بين IPTC وXMP فجُمعت قيمه: %2</numerusform>
            <numerusform>اختلف الحقل %1 في %n صورة بين IPTC وXMP فجُمعت قيمه: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not save %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>تعذّر حفظ %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّر حفظ %1 من صورة واحدة: %2</numerusform>
            <numerusform>تعذّر حفظ %1 من صورتين: %2</numerusform>
            <numerusform>تعذّر حفظ %1 من %n صور: %2</numerusform>
            <numerusform>تعذّر حفظ %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّر حفظ %1 من %n صورة: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <extracomment>%1 is why something was not written, %2 names photos: &quot;not a whole number: “abc” in a.jpg, b.jpg&quot;</extracomment>
        <translation>%1 في %2</translation>
    </message>
    <message>
        <source>not written</source>
        <translation>لم يُكتب</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <translation>لم يُكتب: %1</translation>
    </message>
    <message>
        <source>%1 refused: %2</source>
        <extracomment>%1 is a part of the file that takes no text (&quot;EXIF&quot;), %2 why: &quot;EXIF refused: Bad format&quot;</extracomment>
        <translation>رُفض في %1: %2</translation>
    </message>
    <message>
        <source>Nothing was written: %1</source>
        <extracomment>%1 names fields</extracomment>
        <translation>لم يُكتب شيء: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved, but %n field(s) (reads|read) back differently: %1</source>
        <extracomment>%1 names the fields</extracomment>
        <translation>
            <numerusform>تم الحفظ: %1</numerusform>
            <numerusform>تم الحفظ، لكن حقلًا واحدًا يُقرأ على نحو مختلف: %1</numerusform>
            <numerusform>تم الحفظ، لكن حقلين يُقرآن على نحو مختلف: %1</numerusform>
            <numerusform>تم الحفظ، لكن %n حقول تُقرأ على نحو مختلف: %1</numerusform>
            <numerusform>تم الحفظ، لكن %n حقلًا تُقرأ على نحو مختلف: %1</numerusform>
            <numerusform>تم الحفظ، لكن %n حقل تُقرأ على نحو مختلف: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved, but IPTC was left alone in photos that have several blocks of it: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>تم الحفظ، لكن بيانات IPTC تُركت كما هي في الصور التي فيها عدة كتل منها: %1</translation>
    </message>
    <message>
        <source>Not brought up to date: %1</source>
        <extracomment>%1 names files beside photos, with the reasons</extracomment>
        <translation>لم تُحدَّث: %1</translation>
    </message>
    <message>
        <source>Could not save: %1</source>
        <translation>تعذّر الحفظ: %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits go to %n sidecars</source>
        <translation>
            <numerusform>لا تُكتب التعديلات في ملفات مرافقة</numerusform>
            <numerusform>تُكتب التعديلات في ملف مرافق</numerusform>
            <numerusform>تُكتب التعديلات في ملفين مرافقين</numerusform>
            <numerusform>تُكتب التعديلات في %n ملفات مرافقة</numerusform>
            <numerusform>تُكتب التعديلات في %n ملفًا مرافقًا</numerusform>
            <numerusform>تُكتب التعديلات في %n ملف مرافق</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to sidecars</source>
        <translation>
            <numerusform>تُكتب التعديلات في ملفات مرافقة</numerusform>
            <numerusform>تُكتب تعديلات صورة واحدة في ملف مرافق</numerusform>
            <numerusform>تُكتب تعديلات صورتين في ملفين مرافقين</numerusform>
            <numerusform>تُكتب تعديلات %n صور في ملفات مرافقة</numerusform>
            <numerusform>تُكتب تعديلات %n صورة في ملفات مرافقة</numerusform>
            <numerusform>تُكتب تعديلات %n صورة في ملفات مرافقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Edits go to %1</source>
        <extracomment>%1 is a file, or two</extracomment>
        <translation>تُكتب التعديلات في %1</translation>
    </message>
    <message numerus="yes">
        <source>Edits of %n photo(s) go to %1</source>
        <translation>
            <numerusform>تُكتب التعديلات في %1</numerusform>
            <numerusform>تُكتب تعديلات صورة واحدة في %1</numerusform>
            <numerusform>تُكتب تعديلات صورتين في %1</numerusform>
            <numerusform>تُكتب تعديلات %n صور في %1</numerusform>
            <numerusform>تُكتب تعديلات %n صورة في %1</numerusform>
            <numerusform>تُكتب تعديلات %n صورة في %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>لم يعد موجودًا هناك</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (keeps|keep) what the sidecar holds otherwise than the file: nothing in a sidecar is replaced.</source>
        <translation>
            <numerusform>لا يُستبدل شيء في الملفات المرافقة.</numerusform>
            <numerusform>في صورة واحدة يبقى ما يختلف به الملف المرافق عن الملف: لا يُستبدل شيء في ملف مرافق.</numerusform>
            <numerusform>في صورتين يبقى ما يختلف به الملف المرافق عن الملف: لا يُستبدل شيء في ملف مرافق.</numerusform>
            <numerusform>في %n صور يبقى ما يختلف به الملف المرافق عن الملف: لا يُستبدل شيء في ملف مرافق.</numerusform>
            <numerusform>في %n صورة يبقى ما يختلف به الملف المرافق عن الملف: لا يُستبدل شيء في ملف مرافق.</numerusform>
            <numerusform>في %n صورة يبقى ما يختلف به الملف المرافق عن الملف: لا يُستبدل شيء في ملف مرافق.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (needs|need) nothing.</source>
        <translation>
            <numerusform>لا توجد صور.</numerusform>
            <numerusform>صورة واحدة لا تحتاج إلى شيء.</numerusform>
            <numerusform>صورتان لا تحتاجان إلى شيء.</numerusform>
            <numerusform>%n صور لا تحتاج إلى شيء.</numerusform>
            <numerusform>%n صورة لا تحتاج إلى شيء.</numerusform>
            <numerusform>%n صورة لا تحتاج إلى شيء.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has|have) no sidecar: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لكل الصور ملفات مرافقة: %1</numerusform>
            <numerusform>صورة واحدة بلا ملف مرافق: %1</numerusform>
            <numerusform>صورتان بلا ملف مرافق: %1</numerusform>
            <numerusform>%n صور بلا ملف مرافق: %1</numerusform>
            <numerusform>%n صورة بلا ملف مرافق: %1</numerusform>
            <numerusform>%n صورة بلا ملف مرافق: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (shares its name with a raw photo, whose sidecar it is|share their names with raw photos, whose sidecars they are): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لا توجد صور: %1</numerusform>
            <numerusform>صورة واحدة تشترك في الاسم مع صورة RAW، والملف المرافق تابع لصورة RAW: %1</numerusform>
            <numerusform>صورتان تشتركان في الاسم مع صورتي RAW، والملفان المرافقان تابعان لصورتي RAW: %1</numerusform>
            <numerusform>%n صور تشترك في أسمائها مع صور RAW، والملفات المرافقة تابعة لصور RAW: %1</numerusform>
            <numerusform>%n صورة تشترك في أسمائها مع صور RAW، والملفات المرافقة تابعة لصور RAW: %1</numerusform>
            <numerusform>%n صورة تشترك في أسمائها مع صور RAW، والملفات المرافقة تابعة لصور RAW: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (is no raw photo|are no raw photos): %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>كلها صور RAW: %1</numerusform>
            <numerusform>صورة واحدة ليست صورة RAW: %1</numerusform>
            <numerusform>صورتان ليستا صورتي RAW: %1</numerusform>
            <numerusform>%n صور ليست صور RAW: %1</numerusform>
            <numerusform>%n صورة ليست صور RAW: %1</numerusform>
            <numerusform>%n صورة ليست صور RAW: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Read-only, and left alone: %1</source>
        <extracomment>%1 names files</extracomment>
        <translation>للقراءة فقط، فتُركت كما هي: %1</translation>
    </message>
    <message>
        <source>Could not be read, and left alone: %1</source>
        <extracomment>%1 names files, with the reasons</extracomment>
        <translation>تعذّرت قراءتها فتُركت كما هي: %1</translation>
    </message>
    <message>
        <source>Not written, because it would not be the same there: %1</source>
        <extracomment>%1 names photos, with the fields</extracomment>
        <translation>لم يُكتب لأنه لن يبقى هناك كما هو: %1</translation>
    </message>
    <message>
        <source>%1 (reading took too long)</source>
        <extracomment>%1 is a photo</extracomment>
        <translation>%1 (استغرقت القراءة وقتًا أطول من اللازم)</translation>
    </message>
    <message>
        <source>Cannot export the template “%1”</source>
        <translation>لا يمكن تصدير القالب «%1»</translation>
    </message>
    <message>
        <source>New template</source>
        <translation>قالب جديد</translation>
    </message>
    <message>
        <source>Not filled in: %1</source>
        <extracomment>%1 names fields, and why a text cannot stand in them</extracomment>
        <translation>لم تُعبَّأ: %1</translation>
    </message>
    <message>
        <source>Could not set the zone: %1</source>
        <translation>تعذّر ضبط المنطقة الزمنية: %1</translation>
    </message>
    <message>
        <source>Could not shift the time: %1</source>
        <translation>تعذّرت إزاحة الوقت: %1</translation>
    </message>
    <message numerus="yes">
        <source>Could not set the zone of %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with the reasons</extracomment>
        <translation>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من صورة واحدة: %2</numerusform>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من صورتين: %2</numerusform>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من %n صور: %2</numerusform>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّر ضبط المنطقة الزمنية في %1 من %n صورة: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Could not shift the time of %1 of %n photos: %2</source>
        <translation>
            <numerusform>تعذّرت إزاحة الوقت في %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّرت إزاحة الوقت في %1 من صورة واحدة: %2</numerusform>
            <numerusform>تعذّرت إزاحة الوقت في %1 من صورتين: %2</numerusform>
            <numerusform>تعذّرت إزاحة الوقت في %1 من %n صور: %2</numerusform>
            <numerusform>تعذّرت إزاحة الوقت في %1 من %n صورة: %2</numerusform>
            <numerusform>تعذّرت إزاحة الوقت في %1 من %n صورة: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Times read back differently in %1 of %n photos: %2</source>
        <extracomment>%1 is how many of them, %2 names these, with tags</extracomment>
        <translation>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من %n صورة: %2</numerusform>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من صورة واحدة: %2</numerusform>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من صورتين: %2</numerusform>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من %n صور: %2</numerusform>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من %n صورة: %2</numerusform>
            <numerusform>أوقات تُقرأ على نحو مختلف في %1 من %n صورة: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Left alone for want of a time zone: %1</source>
        <extracomment>%1 names photos</extracomment>
        <translation>تُركت كما هي لعدم وجود منطقة زمنية: %1</translation>
    </message>
    <message>
        <source>Dates without a full day and time were left alone: %1</source>
        <extracomment>%1 names photos, with tags</extracomment>
        <translation>تُركت كما هي التواريخ التي ليس فيها يوم ووقت كاملان: %1</translation>
    </message>
    <message>
        <source>Taken</source>
        <comment>of a photo</comment>
        <extracomment>names of rows: when the only photo, or the first and the last one, was taken</extracomment>
        <translation>التُقطت</translation>
    </message>
    <message>
        <source>First</source>
        <comment>of some photos</comment>
        <translation>الأولى</translation>
    </message>
    <message>
        <source>Last</source>
        <comment>of some photos</comment>
        <translation>الأخيرة</translation>
    </message>
    <message numerus="yes">
        <source>%n had no zone</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>لا شيء بلا منطقة</numerusform>
            <numerusform>واحدة كانت بلا منطقة</numerusform>
            <numerusform>اثنتان كانتا بلا منطقة</numerusform>
            <numerusform>%n كانت بلا منطقة</numerusform>
            <numerusform>%n كانت بلا منطقة</numerusform>
            <numerusform>%n كانت بلا منطقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on a new day</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>
            <numerusform>لا شيء يتغير يومه</numerusform>
            <numerusform>واحدة يتغير يومها</numerusform>
            <numerusform>اثنتان يتغير يومهما</numerusform>
            <numerusform>%n يتغير يومها</numerusform>
            <numerusform>%n يتغير يومها</numerusform>
            <numerusform>%n يتغير يومها</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no date and is|have no date and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لا صور بلا تاريخ: %1</numerusform>
            <numerusform>صورة واحدة بلا تاريخ تُترك كما هي: %1</numerusform>
            <numerusform>صورتان بلا تاريخ تُتركان كما هما: %1</numerusform>
            <numerusform>%n صور بلا تاريخ تُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا تاريخ تُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا تاريخ تُترك كما هي: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1</source>
        <extracomment>%1 names the photos, with their dates</extracomment>
        <translation>
            <numerusform>لا صور بتاريخ غريب: %1</numerusform>
            <numerusform>صورة واحدة تاريخها غريب تُترك كما هي: %1</numerusform>
            <numerusform>صورتان تاريخاهما غريبان تُتركان كما هما: %1</numerusform>
            <numerusform>%n صور تواريخها غريبة تُترك كما هي: %1</numerusform>
            <numerusform>%n صورة تواريخها غريبة تُترك كما هي: %1</numerusform>
            <numerusform>%n صورة تواريخها غريبة تُترك كما هي: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no time zone to come from and is|have no time zone to come from and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لا صور بلا منطقة زمنية سابقة: %1</numerusform>
            <numerusform>صورة واحدة بلا منطقة زمنية يُنتقل منها، فتُترك كما هي: %1</numerusform>
            <numerusform>صورتان بلا منطقة زمنية يُنتقل منها، فتُتركان كما هما: %1</numerusform>
            <numerusform>%n صور بلا منطقة زمنية يُنتقل منها، فتُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا منطقة زمنية يُنتقل منها، فتُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا منطقة زمنية يُنتقل منها، فتُترك كما هي: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (has no position in a time zone and is|have no position in a time zone and are) left alone: %1</source>
        <extracomment>%1 names the photos</extracomment>
        <translation>
            <numerusform>لا صور خارج المناطق الزمنية: %1</numerusform>
            <numerusform>صورة واحدة بلا موضع في منطقة زمنية، فتُترك كما هي: %1</numerusform>
            <numerusform>صورتان بلا موضع في منطقة زمنية، فتُتركان كما هما: %1</numerusform>
            <numerusform>%n صور بلا موضع في منطقة زمنية، فتُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا موضع في منطقة زمنية، فتُترك كما هي: %1</numerusform>
            <numerusform>%n صورة بلا موضع في منطقة زمنية، فتُترك كما هي: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The one position lies in this zone.</source>
        <translation>الموضع الوحيد في هذه المنطقة.</translation>
    </message>
    <message>
        <source>The one position lies in another zone.</source>
        <translation>الموضع الوحيد في منطقة أخرى.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n positions lie in this zone.</source>
        <translation>
            <numerusform>في هذه المنطقة %1 من %n موضع.</numerusform>
            <numerusform>في هذه المنطقة %1 من موضع واحد.</numerusform>
            <numerusform>في هذه المنطقة %1 من موضعين.</numerusform>
            <numerusform>في هذه المنطقة %1 من %n مواضع.</numerusform>
            <numerusform>في هذه المنطقة %1 من %n موضعًا.</numerusform>
            <numerusform>في هذه المنطقة %1 من %n موضع.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 ي</translation>
    </message>
    <message>
        <source>%1 h</source>
        <extracomment>hours</extracomment>
        <translation>%1 س</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes</extracomment>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>seconds</extracomment>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 earlier</source>
        <extracomment>%1 is a span of time: &quot;1 h 02 min 30 s later&quot;</extracomment>
        <translation>%1 أبكر</translation>
    </message>
    <message>
        <source>%1 later</source>
        <translation>%1 لاحقًا</translation>
    </message>
    <message>
        <source>Each photo’s own</source>
        <translation>منطقة كل صورة</translation>
    </message>
    <message>
        <source>Whole numbers, of a hundred years at most.</source>
        <translation>أعداد صحيحة لا تتجاوز مئة عام.</translation>
    </message>
    <message>
        <source>This photo has no date: choose another one.</source>
        <translation>هذه الصورة بلا تاريخ: يُرجى اختيار أخرى.</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM:SS</source>
        <translation>ليس تاريخًا: YYYY-MM-DD HH:MM:SS</translation>
    </message>
    <message>
        <source>Could not shift the time: where edits of raw files go was changed in the settings meanwhile</source>
        <translation>تعذّرت إزاحة الوقت: تغيّر في الإعدادات أثناء ذلك موضع كتابة تعديلات ملفات RAW</translation>
    </message>
    <message>
        <source>“%1” is not there any more.</source>
        <translation>لم يعد «%1» موجودًا.</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>«%1» ليس ملفًا.</translation>
    </message>
    <message>
        <source>“%1” is too large for a list of codes.</source>
        <translation>«%1» أكبر من أن يكون قائمة رموز.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>لا يمكن قراءة «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” has no fields to copy.</source>
        <translation>لا حقول لنسخها في «%1».</translation>
    </message>
    <message>
        <source>The texts of “%1” are too long to be copied.</source>
        <translation>نصوص «%1» أطول من أن تُنسخ.</translation>
    </message>
    <message>
        <source>These fields were copied by a newer version of Quorbel.</source>
        <translation>نُسخت هذه الحقول بإصدار أحدث من Quorbel.</translation>
    </message>
    <message>
        <source>No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo.</source>
        <translation>لم تُنسخ أي حقول بعد. الأمر تحرير ◂ نسخ الحقول يأخذ حقول الصورة المحددة.</translation>
    </message>
    <message>
        <source>There is a set of this name already</source>
        <translation>توجد مجموعة بهذا الاسم</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <extracomment>%1 is a version like 1.2, %2 a number that says which build of it this is.</extracomment>
        <translation>الإصدار %1 (البناء %2)</translation>
    </message>
    <message>
        <source>© 2026 The Quorbel developers. Free software under the MIT License.</source>
        <translation>© 2026 مطوّرو Quorbel. برنامج حر بموجب رخصة MIT.</translation>
    </message>
    <message>
        <source>Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) and Little CMS (MIT).</source>
        <translation>تُقرأ الصور وتُكتب بواسطة ExifTool من Phil Harvey (رخصة Artistic License أو GPL). بُني البرنامج باستخدام Qt %1 ‏(LGPL 3) وLibRaw ‏(LGPL 2.1 أو CDDL) وlibheif ‏(LGPL 3) وlibjxl ‏(BSD) وOpenJPEG ‏(BSD) وLittle CMS ‏(MIT).</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>About Quorbel</source>
        <translation>حول Quorbel</translation>
    </message>
    <message>
        <source>Field &amp;Set</source>
        <translation>مجموعة ال&amp;حقول</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set…</source>
        <translation>حفظ المعروض كمجموعة…</translation>
    </message>
    <message>
        <source>Edit Sets…</source>
        <translation>تحرير المجموعات…</translation>
    </message>
    <message>
        <source>N&amp;o Stars</source>
        <translation>&amp;بلا نجوم</translation>
    </message>
    <message numerus="yes">
        <source>&amp;%n Star(s)</source>
        <translation>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
            <numerusform>&amp;%n من 5 نجوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Save and Ne&amp;xt Photo</source>
        <translation>حف&amp;ظ والانتقال إلى الصورة التالية</translation>
    </message>
    <message>
        <source>Same as Photo Be&amp;fore</source>
        <translation>م&amp;ثل الصورة السابقة</translation>
    </message>
    <message>
        <source>Rati&amp;ng</source>
        <translation>&amp;التقييم</translation>
    </message>
    <message>
        <source>Ne&amp;xt Photo</source>
        <translation>الص&amp;ورة التالية</translation>
    </message>
    <message>
        <source>Previ&amp;ous Photo</source>
        <translation>الصورة السا&amp;بقة</translation>
    </message>
    <message>
        <source>&amp;Look Closely</source>
        <translation>&amp;عرض عن قرب</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu: what concerns files and the program.</extracomment>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;فتح…</translation>
    </message>
    <message>
        <source>Open with Su&amp;bfolders…</source>
        <translation>فتح مع الم&amp;جلدات الفرعية…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>المفتوحة &amp;مؤخرًا</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>إعادة الت&amp;سمية…</translation>
    </message>
    <message>
        <source>Rename P&amp;hotos…</source>
        <translation>إعادة تسمية ال&amp;صور…</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>تح&amp;ديث</translation>
    </message>
    <message>
        <source>&amp;Close Folder</source>
        <translation>إ&amp;غلاق المجلد</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>الإ&amp;عدادات…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>Write Sidecars &amp;Into Photos…</source>
        <translation>&amp;كتابة الملفات المرافقة في الصور…</translation>
    </message>
    <message>
        <source>Write &amp;Metadata Into Sidecars…</source>
        <translation>كتابة ال&amp;بيانات الوصفية في الملفات المرافقة…</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <comment>verb: empty it</comment>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu: what changes photos and texts.</extracomment>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>Undo Sa&amp;ve</source>
        <translation>التراجع عن ال&amp;حفظ</translation>
    </message>
    <message>
        <source>Und&amp;o Rename</source>
        <translation>التراجع عن إعادة الت&amp;سمية</translation>
    </message>
    <message>
        <source>&amp;Bring Back Edits</source>
        <translation>استعا&amp;دة التعديلات</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <extracomment>A verb.</extracomment>
        <translation>&amp;بحث</translation>
    </message>
    <message>
        <source>S&amp;hift Time…</source>
        <translation>إ&amp;زاحة الوقت…</translation>
    </message>
    <message>
        <source>Make Them A&amp;gree</source>
        <extracomment>Them: the places of a photo that should hold the same.</extracomment>
        <translation>توح&amp;يد القيم</translation>
    </message>
    <message>
        <source>Copy Fi&amp;elds</source>
        <translation>نس&amp;خ الحقول</translation>
    </message>
    <message>
        <source>Paste Fiel&amp;ds…</source>
        <translation>ل&amp;صق الحقول…</translation>
    </message>
    <message>
        <source>Paste Fields Aga&amp;in</source>
        <translation>لصق الحقول &amp;مرة أخرى</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu: what is on screen.</extracomment>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>Show &amp;preview</source>
        <translation>إظهار ال&amp;معاينة</translation>
    </message>
    <message>
        <source>Show &amp;Disagreements</source>
        <translation>إظهار الا&amp;ختلافات</translation>
    </message>
    <message>
        <source>Show &amp;namespace details</source>
        <translation>إظهار تفاصيل مساحات الأ&amp;سماء</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>إعادة ال&amp;قراءة</translation>
    </message>
    <message>
        <source>Pair Raw and &amp;JPEG</source>
        <translation>إق&amp;ران ملفات RAW وJPEG</translation>
    </message>
    <message>
        <source>Next &amp;Gap</source>
        <translation>الحقل الفارغ ال&amp;تالي</translation>
    </message>
    <message>
        <source>Previo&amp;us Gap</source>
        <translation>الحقل الفار&amp;غ السابق</translation>
    </message>
    <message>
        <source>Clear &amp;Filters</source>
        <translation>مسح عوامل الت&amp;صفية</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Quorbel &amp;Help</source>
        <translation>م&amp;ساعدة Quorbel</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>اختصارات &amp;لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>التحقق من وجود &amp;تحديثات…</translation>
    </message>
    <message>
        <source>&amp;About Quorbel</source>
        <translation>&amp;حول Quorbel</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Apply to %n</source>
        <comment>photos</comment>
        <translation>
            <numerusform>&amp;تطبيق على %n صورة</numerusform>
            <numerusform>&amp;تطبيق على صورة واحدة</numerusform>
            <numerusform>&amp;تطبيق على صورتين</numerusform>
            <numerusform>&amp;تطبيق على %n صور</numerusform>
            <numerusform>&amp;تطبيق على %n صورة</numerusform>
            <numerusform>&amp;تطبيق على %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Hide &amp;preview</source>
        <translation>إخفاء ال&amp;معاينة</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <extracomment>Which files a panel lists; %1 is a list of endings.</extracomment>
        <translation>الصور (%1)</translation>
    </message>
    <message>
        <source>Choose a folder of images. The folders in it are opened as well.</source>
        <translation>اختيار مجلد صور. تُفتح المجلدات التي بداخله أيضًا.</translation>
    </message>
    <message>
        <source>Choose a text file of codes: a code, a tab, and its text in each line.</source>
        <translation>اختيار ملف نصي للرموز: في كل سطر رمز ثم علامة جدولة ثم نصه.</translation>
    </message>
    <message>
        <source>Choose a folder of images, or one or more image files.</source>
        <translation>اختيار مجلد صور أو ملف صورة واحد أو أكثر.</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>كل الملفات (%1)</translation>
    </message>
    <message>
        <source>Text files (%1)</source>
        <translation>ملفات نصية (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <comment>verb: this file</comment>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>verb: these photos</comment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Quick &amp;Keywords</source>
        <translation>الكلمات الم&amp;فتاحية السريعة</translation>
    </message>
    <message>
        <source>Templates (%1)</source>
        <translation>القوالب (%1)</translation>
    </message>
    <message>
        <source>Choose template files.</source>
        <translation>اختيار ملفات القوالب.</translation>
    </message>
    <message>
        <source>Choose where the template is to go.</source>
        <translation>اختيار مكان حفظ القالب.</translation>
    </message>
    <message>
        <source>Save as Template…</source>
        <translation>حفظ كقالب…</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>الق&amp;والب</translation>
    </message>
    <message>
        <source>Templates…</source>
        <translation>القوالب…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>البرنامج محدَّث</translation>
    </message>
    <message>
        <source>Quorbel is running the latest version.</source>
        <translation>لديك أحدث إصدار من Quorbel.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>تعذّر التحقق من وجود تحديثات</translation>
    </message>
    <message>
        <source>Please check your internet connection and try again.</source>
        <translation>يُرجى التحقق من الاتصال بالإنترنت ثم المحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Quorbel %1 is available</source>
        <translation>يتوفر الإصدار Quorbel %1</translation>
    </message>
    <message>
        <source>A newer version of Quorbel is available.</source>
        <translation>يتوفر إصدار أحدث من Quorbel.</translation>
    </message>
    <message>
        <source>Download</source>
        <comment>verb</comment>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>button: not now</comment>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Reads and edits the words inside photos.</source>
        <translation>قراءة النصوص داخل الصور وتحريرها.</translation>
    </message>
    <message>
        <source>A folder of photos, or photos.</source>
        <translation>مجلد صور، أو صور.</translation>
    </message>
    <message>
        <source>[files…]</source>
        <extracomment>What a command line may hold behind the name of the program.</extracomment>
        <translation>[ملفات…]</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no text.</source>
        <translation>العنصر «%1» في بيانات التحديث مفقود أو ليس نصًا.</translation>
    </message>
    <message>
        <source>The update feed’s “%1” is missing or no whole number.</source>
        <translation>العنصر «%1» في بيانات التحديث مفقود أو ليس عددًا صحيحًا.</translation>
    </message>
    <message>
        <source>Bad server response: HTTP status %1.</source>
        <translation>استجابة غير صالحة من الخادم: حالة HTTP %1.</translation>
    </message>
    <message>
        <source>The update feed is no valid JSON: %1.</source>
        <translation>بيانات التحديث ليست JSON صالحًا: %1.</translation>
    </message>
    <message>
        <source>The update feed is no JSON object.</source>
        <translation>بيانات التحديث ليست كائن JSON.</translation>
    </message>
    <message numerus="yes">
        <source>Long to listen to: %1 of %n character(s)</source>
        <translation>
            <numerusform>طويل عند الاستماع إليه: %1 من %n حرف</numerusform>
            <numerusform>طويل عند الاستماع إليه: %1 من حرف واحد</numerusform>
            <numerusform>طويل عند الاستماع إليه: %1 من حرفين</numerusform>
            <numerusform>طويل عند الاستماع إليه: %1 من %n أحرف</numerusform>
            <numerusform>طويل عند الاستماع إليه: %1 من %n حرفًا</numerusform>
            <numerusform>طويل عند الاستماع إليه: %1 من %n حرف</numerusform>
        </translation>
    </message>
    <message>
        <source>Points to “%1”, which is empty</source>
        <translation>يشير إلى «%1»، وهو فارغ</translation>
    </message>
    <message>
        <source>Alternative text</source>
        <translation>النص البديل</translation>
    </message>
    <message>
        <source>Says what is to be seen, for people who cannot see it</source>
        <translation>يصف ما يظهر في الصورة لمن لا يستطيع رؤيتها</translation>
    </message>
    <message>
        <source>Extended description</source>
        <translation>الوصف الموسّع</translation>
    </message>
    <message>
        <source>Describes at length what a short text cannot, for people who cannot see it</source>
        <translation>يصف بالتفصيل ما لا يتسع له نص قصير، لمن لا يستطيع رؤية الصورة</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>رمز الدولة</translation>
    </message>
    <message>
        <source>Two or three letters of ISO 3166: CH, CHE</source>
        <translation>حرفان أو ثلاثة من ISO 3166: ‏CH، CHE</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>المسمى الوظيفي</translation>
    </message>
    <message>
        <source>The creator&apos;s position or occupation</source>
        <translation>وظيفة المنشئ أو مهنته</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>جهة الاتصال</translation>
    </message>
    <message>
        <source>Where the creator can be reached: address, phone, e-mail, web</source>
        <translation>كيفية الوصول إلى المنشئ: العنوان والهاتف والبريد الإلكتروني والويب</translation>
    </message>
    <message>
        <source>People in detail</source>
        <translation>تفاصيل الأشخاص</translation>
    </message>
    <message>
        <source>Who is to be seen, with identifiers, description and characteristics</source>
        <translation>الأشخاص الظاهرون، مع المعرّفات والوصف والسمات</translation>
    </message>
    <message>
        <source>Model ages</source>
        <translation>أعمار العارضين</translation>
    </message>
    <message>
        <source>How old the models were, in years</source>
        <translation>أعمار العارضين بالسنوات عند التقاط الصورة</translation>
    </message>
    <message>
        <source>Youngest model</source>
        <translation>أصغر العارضين</translation>
    </message>
    <message>
        <source>How old the youngest model was</source>
        <translation>عمر أصغر العارضين عند التقاط الصورة</translation>
    </message>
    <message>
        <source>Model information</source>
        <translation>معلومات العارضين</translation>
    </message>
    <message>
        <source>Anything else that is to be known about the models</source>
        <translation>أي معلومات أخرى عن العارضين</translation>
    </message>
    <message>
        <source>Model releases</source>
        <translation>تصاريح العارضين</translation>
    </message>
    <message>
        <source>How far releases cover the people who are shown</source>
        <translation>مدى شمول التصاريح للأشخاص الظاهرين</translation>
    </message>
    <message>
        <source>Model release IDs</source>
        <translation>معرّفات تصاريح العارضين</translation>
    </message>
    <message>
        <source>Numbers under which the model releases are filed</source>
        <translation>الأرقام التي حُفظت بها تصاريح العارضين</translation>
    </message>
    <message>
        <source>Location created</source>
        <translation>مكان الالتقاط</translation>
    </message>
    <message>
        <source>Where the camera stood</source>
        <translation>حيث كانت الكاميرا</translation>
    </message>
    <message>
        <source>Locations shown</source>
        <translation>الأماكن الظاهرة</translation>
    </message>
    <message>
        <source>Places that are to be seen</source>
        <translation>الأماكن التي تُرى في الصورة</translation>
    </message>
    <message>
        <source>Subject codes</source>
        <translation>رموز الموضوع</translation>
    </message>
    <message>
        <source>What it is about, by the eight-digit codes of IPTC (an older list)</source>
        <translation>موضوع الصورة برموز IPTC ذات الأرقام الثمانية (قائمة قديمة)</translation>
    </message>
    <message>
        <source>Subject terms</source>
        <translation>مصطلحات الموضوع</translation>
    </message>
    <message>
        <source>What it is about, by terms of a vocabulary</source>
        <translation>موضوع الصورة بمصطلحات من معجم مصطلحات</translation>
    </message>
    <message>
        <source>Genre terms</source>
        <translation>مصطلحات النوع الفني</translation>
    </message>
    <message>
        <source>What kind of picture it is, by terms of a vocabulary</source>
        <translation>نوع الصورة بمصطلحات من معجم مصطلحات</translation>
    </message>
    <message>
        <source>Event IDs</source>
        <translation>معرّفات الحدث</translation>
    </message>
    <message>
        <source>Identifiers of the event</source>
        <translation>معرّفات الحدث المصوَّر</translation>
    </message>
    <message>
        <source>Organisations</source>
        <translation>المؤسسات</translation>
    </message>
    <message>
        <source>Organisations that are to be seen, by name</source>
        <translation>أسماء المؤسسات الظاهرة</translation>
    </message>
    <message>
        <source>Organisation codes</source>
        <translation>رموز المؤسسات</translation>
    </message>
    <message>
        <source>The same by a code: stock ticker, registry number</source>
        <translation>المؤسسات نفسها برموزها: رمز البورصة أو رقم السجل</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>المنتجات</translation>
    </message>
    <message>
        <source>Products that are to be seen, with GTIN and identifiers</source>
        <translation>المنتجات الظاهرة، مع GTIN والمعرّفات</translation>
    </message>
    <message>
        <source>Artworks or objects</source>
        <translation>أعمال فنية أو قطع</translation>
    </message>
    <message>
        <source>Works that are to be seen, with maker, date, owner and rights</source>
        <translation>الأعمال الظاهرة، مع الصانع والتاريخ والمالك والحقوق</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>Parts of the picture: outline, name, kind and role</source>
        <translation>أجزاء من الصورة: الإطار والاسم والنوع والدور</translation>
    </message>
    <message>
        <source>Copyright owners</source>
        <translation>مالكو حقوق النشر</translation>
    </message>
    <message>
        <source>Who owns the copyright</source>
        <translation>من يملك حقوق النشر</translation>
    </message>
    <message>
        <source>Image creators</source>
        <translation>منشئو الصورة</translation>
    </message>
    <message>
        <source>Who made the picture, with identifiers</source>
        <translation>من أنشأ الصورة، مع المعرّفات</translation>
    </message>
    <message>
        <source>Contributors</source>
        <translation>المساهمون</translation>
    </message>
    <message>
        <source>Who helped to make the picture, and in which role</source>
        <translation>من ساهم في إنشاء الصورة، وبأي دور</translation>
    </message>
    <message>
        <source>Other constraints</source>
        <translation>قيود أخرى</translation>
    </message>
    <message>
        <source>Further limits of use, in words</source>
        <translation>قيود إضافية على الاستخدام، مصوغة نصًا</translation>
    </message>
    <message>
        <source>Data mining</source>
        <translation>التنقيب في البيانات</translation>
    </message>
    <message>
        <source>Whether others may mine the picture or train AI with it</source>
        <translation>هل يجوز للغير التنقيب في بيانات الصورة أو تدريب الذكاء الاصطناعي بها</translation>
    </message>
    <message>
        <source>Property releases</source>
        <translation>تصاريح الممتلكات</translation>
    </message>
    <message>
        <source>How far releases cover what is shown</source>
        <translation>مدى شمول التصاريح لما يظهر في الصورة</translation>
    </message>
    <message>
        <source>Property release IDs</source>
        <translation>معرّفات تصاريح الممتلكات</translation>
    </message>
    <message>
        <source>Numbers under which the property releases are filed</source>
        <translation>الأرقام التي حُفظت بها تصاريح الممتلكات</translation>
    </message>
    <message>
        <source>Licensors</source>
        <translation>جهات الترخيص</translation>
    </message>
    <message>
        <source>Whom to ask for a licence</source>
        <translation>من يُطلب منه الترخيص</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>المورّدون</translation>
    </message>
    <message>
        <source>Who passed the picture on last</source>
        <translation>آخر من قدّم الصورة</translation>
    </message>
    <message>
        <source>Supplier image ID</source>
        <translation>معرّف الصورة لدى المورّد</translation>
    </message>
    <message>
        <source>The picture&apos;s number at the supplier</source>
        <translation>رقم الصورة لدى المورّد</translation>
    </message>
    <message>
        <source>Embedded rights</source>
        <translation>حقوق مضمّنة</translation>
    </message>
    <message>
        <source>Terms that machines read, within the file</source>
        <translation>شروط مقروءة آليًا داخل الملف</translation>
    </message>
    <message>
        <source>Linked rights</source>
        <translation>حقوق مرتبطة</translation>
    </message>
    <message>
        <source>Terms that machines read, at an address</source>
        <translation>شروط مقروءة آليًا على عنوان ويب</translation>
    </message>
    <message>
        <source>Digital source</source>
        <translation>المصدر الرقمي</translation>
    </message>
    <message>
        <source>What the picture was made from: camera, scan, software, AI</source>
        <translation>ما صُنعت منه الصورة: كاميرا أو مسح ضوئي أو برنامج أو ذكاء اصطناعي</translation>
    </message>
    <message>
        <source>AI system</source>
        <translation>نظام الذكاء الاصطناعي</translation>
    </message>
    <message>
        <source>Which engine or model made it</source>
        <translation>المحرّك أو النموذج الذي أنتج الصورة</translation>
    </message>
    <message>
        <source>AI system version</source>
        <translation>إصدار نظام الذكاء الاصطناعي</translation>
    </message>
    <message>
        <source>Its version</source>
        <translation>رقم إصدار النظام</translation>
    </message>
    <message>
        <source>AI prompt</source>
        <translation>موجّه الذكاء الاصطناعي</translation>
    </message>
    <message>
        <source>What the AI was asked for, and what not</source>
        <translation>ما طُلب من الذكاء الاصطناعي، وما طُلب تجنّبه</translation>
    </message>
    <message>
        <source>AI prompt writer</source>
        <translation>كاتب الموجّه</translation>
    </message>
    <message>
        <source>Who wrote the prompt</source>
        <translation>من كتب موجّه الذكاء الاصطناعي</translation>
    </message>
    <message>
        <source>Image GUID</source>
        <translation>معرّف GUID للصورة</translation>
    </message>
    <message>
        <source>An identifier that no other picture has</source>
        <translation>معرّف لا تحمله أي صورة أخرى</translation>
    </message>
    <message>
        <source>Registry entries</source>
        <translation>القيود في السجلات</translation>
    </message>
    <message>
        <source>Registries that know the picture, and its number there</source>
        <translation>السجلات التي قُيّدت فيها الصورة، ورقمها فيها</translation>
    </message>
    <message>
        <source>Largest width</source>
        <translation>أكبر عرض</translation>
    </message>
    <message>
        <source>Of the largest version that can be had, in pixels</source>
        <translation>أبعاد أكبر نسخة متاحة، بالبكسل</translation>
    </message>
    <message>
        <source>Largest height</source>
        <translation>أكبر ارتفاع</translation>
    </message>
    <message>
        <source>contact</source>
        <translation>جهة اتصال</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>الويب</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>الرمز البريدي</translation>
    </message>
    <message>
        <source>City</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الولاية</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>الدولة</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>عمل فني</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Creators</source>
        <translation>المنشئون</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>تاريخ الإنشاء</translation>
    </message>
    <message>
        <source>Created about</source>
        <translation>تاريخ الإنشاء التقريبي</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Contributions</source>
        <translation>المساهمات</translation>
    </message>
    <message>
        <source>Physical description</source>
        <translation>الوصف المادي</translation>
    </message>
    <message>
        <source>Style or period</source>
        <translation>الأسلوب أو الحقبة</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Inventory number</source>
        <translation>رقم الجرد</translation>
    </message>
    <message>
        <source>Inventory address</source>
        <translation>رابط الجرد</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>إشعار حقوق النشر</translation>
    </message>
    <message>
        <source>Copyright owner</source>
        <translation>مالك حقوق النشر</translation>
    </message>
    <message>
        <source>Copyright owner ID</source>
        <translation>معرّف مالك حقوق النشر</translation>
    </message>
    <message>
        <source>Licensor</source>
        <translation>جهة الترخيص</translation>
    </message>
    <message>
        <source>Licensor ID</source>
        <translation>معرّف جهة الترخيص</translation>
    </message>
    <message>
        <source>Creator IDs</source>
        <translation>معرّفات المنشئين</translation>
    </message>
    <message>
        <source>term</source>
        <translation>مصطلح</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Term ID</source>
        <translation>معرّف المصطلح</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>معجم المصطلحات</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>العلاقة</translation>
    </message>
    <message>
        <source>expression</source>
        <translation>تعبير حقوق</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>تعبير الحقوق</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>الترميز</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>entry</source>
        <translation>قيد</translation>
    </message>
    <message>
        <source>Identifiers</source>
        <translation>المعرّفات</translation>
    </message>
    <message>
        <source>contributor</source>
        <translation>مساهم</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>الأدوار</translation>
    </message>
    <message>
        <source>region</source>
        <translation>منطقة</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>الدور</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>إطار</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>الشكل</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
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
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>نصف القطر</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>النقاط</translation>
    </message>
    <message>
        <source>point</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>place</source>
        <translation>مكان</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>الموقع الفرعي</translation>
    </message>
    <message>
        <source>World region</source>
        <translation>الإقليم العالمي</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>خط العرض</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>خط الطول</translation>
    </message>
    <message>
        <source>Altitude (m)</source>
        <translation>الارتفاع (م)</translation>
    </message>
    <message>
        <source>Below sea level</source>
        <translation>تحت مستوى سطح البحر</translation>
    </message>
    <message>
        <source>person</source>
        <translation>شخص</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>السمات</translation>
    </message>
    <message>
        <source>product</source>
        <translation>منتج</translation>
    </message>
    <message>
        <source>GTIN</source>
        <translation>GTIN</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>licensor</source>
        <translation>جهة ترخيص</translation>
    </message>
    <message>
        <source>Phone type</source>
        <translation>نوع الهاتف</translation>
    </message>
    <message>
        <source>Second phone</source>
        <translation>الهاتف الثاني</translation>
    </message>
    <message>
        <source>Second phone type</source>
        <translation>نوع الهاتف الثاني</translation>
    </message>
    <message>
        <source>Address, further</source>
        <translation>تتمة العنوان</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>مالك</translation>
    </message>
    <message>
        <source>creator</source>
        <translation>منشئ</translation>
    </message>
    <message>
        <source>supplier</source>
        <translation>مورّد</translation>
    </message>
    <message>
        <source>%1 is not a number: “%2”</source>
        <extracomment>%1 is what the number tells (&quot;Latitude&quot;), %2 what stands there instead</extracomment>
        <translation>%1 ليس رقمًا: «%2»</translation>
    </message>
    <message>
        <source>not a whole number: “%1”</source>
        <translation>ليس عددًا صحيحًا: «%1»</translation>
    </message>
    <message>
        <source>%1 holds %2 of another program, which this change would lose</source>
        <extracomment>%1 is a field, %2 names parts of it, in quotation marks</extracomment>
        <translation>يحتوي %1 على %2 من برنامج آخر، وسيُفقد بهذا التغيير</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>ليس رقمًا</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n more</source>
        <extracomment>%1 is what the first of several cards says</extracomment>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1 · واحد آخر</numerusform>
            <numerusform>%1 · اثنان آخران</numerusform>
            <numerusform>%1 · %n أخرى</numerusform>
            <numerusform>%1 · %n أخرى</numerusform>
            <numerusform>%1 · %n أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Genre…</source>
        <translation>اختيار النوع الفني…</translation>
    </message>
    <message>
        <source>Choose Subject…</source>
        <translation>اختيار الموضوع…</translation>
    </message>
    <message>
        <source>Choose Kind…</source>
        <translation>اختيار النوع…</translation>
    </message>
    <message>
        <source>Choose Role…</source>
        <translation>اختيار الدور…</translation>
    </message>
    <message>
        <source>Digital source type</source>
        <translation>نوع المصدر الرقمي</translation>
    </message>
    <message>
        <source>Digital capture sampled from real life</source>
        <translation>التقاط رقمي من الواقع</translation>
    </message>
    <message>
        <source>Taken with a camera, not changed beyond developing</source>
        <translation>التُقطت بكاميرا ولم تُعدَّل سوى بالتحميض</translation>
    </message>
    <message>
        <source>Multi-frame computational capture sampled from real life</source>
        <translation>التقاط حاسوبي متعدد الإطارات من الواقع</translation>
    </message>
    <message>
        <source>Several frames of one moment joined by the camera</source>
        <translation>عدة إطارات للحظة واحدة دمجتها الكاميرا</translation>
    </message>
    <message>
        <source>Digitised from a transparent negative</source>
        <translation>مرقمنة من فيلم سالب شفاف</translation>
    </message>
    <message>
        <source>A film negative turned into a digital picture</source>
        <translation>فيلم سالب حُوّل إلى صورة رقمية</translation>
    </message>
    <message>
        <source>Digitised from a transparent positive</source>
        <translation>مرقمنة من فيلم موجب شفاف</translation>
    </message>
    <message>
        <source>A slide turned into a digital picture</source>
        <translation>شريحة حُوّلت إلى صورة رقمية</translation>
    </message>
    <message>
        <source>Digitised from a non-transparent medium</source>
        <translation>مرقمنة من وسيط غير شفاف</translation>
    </message>
    <message>
        <source>A scan of a print or another thing on paper</source>
        <translation>مسح ضوئي لمطبوعة أو غيرها من الورقيات</translation>
    </message>
    <message>
        <source>Human-edited media</source>
        <translation>وسائط حرّرها إنسان</translation>
    </message>
    <message>
        <source>A picture that a person changed, with tools other than generative AI</source>
        <translation>صورة غيّرها شخص بأدوات غير الذكاء الاصطناعي التوليدي</translation>
    </message>
    <message>
        <source>Edited using Generative AI</source>
        <translation>حُرّرت بالذكاء الاصطناعي التوليدي</translation>
    </message>
    <message>
        <source>A picture parts of which were changed or added by generative AI</source>
        <translation>صورة غيّر الذكاء الاصطناعي التوليدي أجزاء منها أو أضافها</translation>
    </message>
    <message>
        <source>Algorithmically-altered media</source>
        <translation>وسائط معدّلة خوارزميًا</translation>
    </message>
    <message>
        <source>Changed by a program by itself, not by generative AI</source>
        <translation>غيّرها برنامج تلقائيًا، دون ذكاء اصطناعي توليدي</translation>
    </message>
    <message>
        <source>Digital creation</source>
        <translation>إنشاء رقمي</translation>
    </message>
    <message>
        <source>Made by a person with digital tools, such as a drawing</source>
        <translation>صنعها شخص بأدوات رقمية، كالرسم</translation>
    </message>
    <message>
        <source>Data-driven media</source>
        <translation>وسائط مبنية على البيانات</translation>
    </message>
    <message>
        <source>Drawn from data, such as a chart or a map</source>
        <translation>رُسمت من بيانات، كمخطط أو خريطة</translation>
    </message>
    <message>
        <source>Created using Generative AI</source>
        <translation>أُنشئت بالذكاء الاصطناعي التوليدي</translation>
    </message>
    <message>
        <source>Made wholly by an AI that learned from other pictures</source>
        <translation>صنعها كلها ذكاء اصطناعي تعلّم من صور أخرى</translation>
    </message>
    <message>
        <source>Pure algorithmic media</source>
        <translation>وسائط خوارزمية بحتة</translation>
    </message>
    <message>
        <source>Computed by a formula that learned from nothing, such as a fractal</source>
        <translation>حُسبت بمعادلة لم تتعلّم من شيء، كالأشكال الكسيرية</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>What a display showed</source>
        <translation>ما عرضته شاشة</translation>
    </message>
    <message>
        <source>Virtual event recording</source>
        <translation>تسجيل حدث افتراضي</translation>
    </message>
    <message>
        <source>Recorded of something that took place in a virtual world</source>
        <translation>تسجيل لما جرى في عالم افتراضي</translation>
    </message>
    <message>
        <source>Composite of elements</source>
        <translation>مركّب من عناصر</translation>
    </message>
    <message>
        <source>Put together from parts of any kind</source>
        <translation>رُكّبت من أجزاء من أي نوع</translation>
    </message>
    <message>
        <source>Composite of captured elements</source>
        <translation>مركّب من عناصر ملتقطة</translation>
    </message>
    <message>
        <source>Put together from parts that were all photographed</source>
        <translation>رُكّبت من أجزاء كلها ملتقطة بالكاميرا</translation>
    </message>
    <message>
        <source>Composite including generative AI elements</source>
        <translation>مركّب يضم عناصر من الذكاء الاصطناعي التوليدي</translation>
    </message>
    <message>
        <source>Put together from parts of which generative AI made at least one</source>
        <translation>رُكّبت من أجزاء صنع الذكاء الاصطناعي التوليدي واحدًا منها على الأقل</translation>
    </message>
    <message>
        <source>Original media with minor human edits</source>
        <translation>وسائط أصلية بتعديلات بشرية طفيفة</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for human-edited media</source>
        <translation>أُلغي عام 2024: يُستخدم بدله «وسائط حرّرها إنسان»</translation>
    </message>
    <message>
        <source>Created by software</source>
        <translation>أنشأها برنامج</translation>
    </message>
    <message>
        <source>Retired in 2022: use one that says how</source>
        <translation>أُلغي عام 2022: يُستخدم بدله ما يبيّن الكيفية</translation>
    </message>
    <message>
        <source>Digital art</source>
        <translation>فن رقمي</translation>
    </message>
    <message>
        <source>Retired in 2024: use the one for a digital creation</source>
        <translation>أُلغي عام 2024: يُستخدم بدله «إنشاء رقمي»</translation>
    </message>
    <message>
        <source>Unspecified – no prohibition defined</source>
        <translation>غير محدد – لم يُنص على حظر</translation>
    </message>
    <message>
        <source>The file says nothing about it</source>
        <translation>لا يقول الملف شيئًا عن ذلك</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>مسموح</translation>
    </message>
    <message>
        <source>Anybody may mine the picture and train with it</source>
        <translation>يجوز لأي أحد التنقيب في الصورة والتدريب بها</translation>
    </message>
    <message>
        <source>Prohibited for AI/ML training</source>
        <translation>محظور لتدريب الذكاء الاصطناعي وتعلّم الآلة</translation>
    </message>
    <message>
        <source>No training of any AI; other mining may be done</source>
        <translation>لا تدريب لأي ذكاء اصطناعي؛ ويجوز غيره من التنقيب</translation>
    </message>
    <message>
        <source>Prohibited for Generative AI/ML training</source>
        <translation>محظور لتدريب الذكاء الاصطناعي التوليدي</translation>
    </message>
    <message>
        <source>No training of AI that makes pictures or texts</source>
        <translation>لا تدريب لذكاء اصطناعي يُنتج صورًا أو نصوصًا</translation>
    </message>
    <message>
        <source>Prohibited except for search engine indexing</source>
        <translation>محظور عدا فهرسة محركات البحث</translation>
    </message>
    <message>
        <source>Search engines may list the picture; nothing else</source>
        <translation>يجوز لمحركات البحث فهرسة الصورة، لا غير</translation>
    </message>
    <message>
        <source>Prohibited</source>
        <translation>محظور</translation>
    </message>
    <message>
        <source>No mining and no training at all</source>
        <translation>لا تنقيب ولا تدريب مطلقًا</translation>
    </message>
    <message>
        <source>Prohibited, see Other Constraints</source>
        <translation>محظور، انظر «قيود أخرى»</translation>
    </message>
    <message>
        <source>What may be done stands in Other constraints, which must be filled</source>
        <translation>المسموح به مذكور في «قيود أخرى»، ويجب تعبئته</translation>
    </message>
    <message>
        <source>Prohibited, see Embedded Encoded Rights Expression</source>
        <translation>محظور، انظر «حقوق مضمّنة»</translation>
    </message>
    <message>
        <source>What may be done stands in Embedded rights</source>
        <translation>المسموح به مذكور في «حقوق مضمّنة»</translation>
    </message>
    <message>
        <source>Prohibited, see Linked Encoded Rights Expression</source>
        <translation>محظور، انظر «حقوق مرتبطة»</translation>
    </message>
    <message>
        <source>What may be done stands where Linked rights points</source>
        <translation>المسموح به مذكور حيث تشير «حقوق مرتبطة»</translation>
    </message>
    <message>
        <source>Model release status</source>
        <translation>حالة تصريح العارض</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>Nobody who is shown has signed a release</source>
        <translation>لم يوقّع تصريحًا أي من الظاهرين</translation>
    </message>
    <message>
        <source>Not Applicable</source>
        <translation>لا ينطبق</translation>
    </message>
    <message>
        <source>Nobody is shown whose consent would be needed</source>
        <translation>لا يظهر أحد تلزم موافقته</translation>
    </message>
    <message>
        <source>Unlimited Model Releases</source>
        <translation>تصاريح عارضين غير محدودة</translation>
    </message>
    <message>
        <source>All who are shown have signed, without limits</source>
        <translation>وقّع كل الظاهرين دون حدود</translation>
    </message>
    <message>
        <source>Limited or Incomplete Model Releases</source>
        <translation>تصاريح عارضين محدودة أو ناقصة</translation>
    </message>
    <message>
        <source>Some have not signed, or only for certain uses</source>
        <translation>بعضهم لم يوقّع، أو وقّع لاستخدامات معينة فقط</translation>
    </message>
    <message>
        <source>Property release status</source>
        <translation>حالة تصريح الممتلكات</translation>
    </message>
    <message>
        <source>No owner of what is shown has signed a release</source>
        <translation>لم يوقّع تصريحًا أي من مالكي ما يظهر</translation>
    </message>
    <message>
        <source>Nothing is shown whose owner&apos;s consent would be needed</source>
        <translation>لا يظهر شيء تلزم موافقة مالكه</translation>
    </message>
    <message>
        <source>Unlimited Property Releases</source>
        <translation>تصاريح ممتلكات غير محدودة</translation>
    </message>
    <message>
        <source>All owners have signed, without limits</source>
        <translation>وقّع كل المالكين دون حدود</translation>
    </message>
    <message>
        <source>Limited or Incomplete Property Releases</source>
        <translation>تصاريح ممتلكات محدودة أو ناقصة</translation>
    </message>
    <message>
        <source>Minor model age</source>
        <translation>عمر أصغر العارضين</translation>
    </message>
    <message>
        <source>Age Unknown</source>
        <translation>العمر غير معروف</translation>
    </message>
    <message>
        <source>Nobody knows how old the youngest person was</source>
        <translation>لا يُعرف عمر أصغر الأشخاص</translation>
    </message>
    <message>
        <source>Age 25 or Over</source>
        <translation>العمر 25 أو أكثر</translation>
    </message>
    <message>
        <source>The youngest person was at least 25</source>
        <translation>لا يقل عمر أصغر الأشخاص عن 25 عامًا</translation>
    </message>
    <message>
        <source>Age 24</source>
        <translation>العمر 24</translation>
    </message>
    <message>
        <source>Age 23</source>
        <translation>العمر 23</translation>
    </message>
    <message>
        <source>Age 22</source>
        <translation>العمر 22</translation>
    </message>
    <message>
        <source>Age 21</source>
        <translation>العمر 21</translation>
    </message>
    <message>
        <source>Age 20</source>
        <translation>العمر 20</translation>
    </message>
    <message>
        <source>Age 19</source>
        <translation>العمر 19</translation>
    </message>
    <message>
        <source>Age 18</source>
        <translation>العمر 18</translation>
    </message>
    <message>
        <source>The youngest person was of age in most countries</source>
        <translation>كان أصغر الأشخاص راشدًا في معظم الدول</translation>
    </message>
    <message>
        <source>Age 17</source>
        <translation>العمر 17</translation>
    </message>
    <message>
        <source>Age 16</source>
        <translation>العمر 16</translation>
    </message>
    <message>
        <source>Age 15</source>
        <translation>العمر 15</translation>
    </message>
    <message>
        <source>Age 14 or Under</source>
        <translation>العمر 14 أو أقل</translation>
    </message>
    <message>
        <source>The youngest person was a child of at most 14</source>
        <translation>كان أصغر الأشخاص طفلًا لا يتجاوز 14 عامًا</translation>
    </message>
    <message>
        <source>Telephone type</source>
        <translation>نوع الهاتف</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>At the place of work</source>
        <translation>في مكان العمل</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>محمول</translation>
    </message>
    <message>
        <source>A mobile phone</source>
        <translation>هاتف محمول</translation>
    </message>
    <message>
        <source>FAX</source>
        <translation>فاكس</translation>
    </message>
    <message>
        <source>A fax machine</source>
        <translation>جهاز فاكس</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>At home</source>
        <translation>في المنزل</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>جهاز نداء</translation>
    </message>
    <message>
        <source>Takes short messages</source>
        <translation>يستقبل رسائل قصيرة</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
    <message>
        <source>headshot</source>
        <translation>لقطة رأس</translation>
    </message>
    <message>
        <source>The head of a person</source>
        <translation>رأس شخص</translation>
    </message>
    <message>
        <source>half-length</source>
        <translation>لقطة نصفية</translation>
    </message>
    <message>
        <source>A person down to the waist</source>
        <translation>شخص حتى الخصر</translation>
    </message>
    <message>
        <source>full-length</source>
        <translation>لقطة كاملة للجسم</translation>
    </message>
    <message>
        <source>A person from head to toe</source>
        <translation>شخص من الرأس إلى القدم</translation>
    </message>
    <message>
        <source>profile</source>
        <translation>منظر جانبي</translation>
    </message>
    <message>
        <source>A person from the side</source>
        <translation>شخص من الجانب</translation>
    </message>
    <message>
        <source>rear view</source>
        <translation>منظر خلفي</translation>
    </message>
    <message>
        <source>A person or thing from behind</source>
        <translation>شخص أو شيء من الخلف</translation>
    </message>
    <message>
        <source>single</source>
        <translation>منفرد</translation>
    </message>
    <message>
        <source>One person or thing alone</source>
        <translation>شخص أو شيء واحد بمفرده</translation>
    </message>
    <message>
        <source>couple</source>
        <translation>ثنائي</translation>
    </message>
    <message>
        <source>Two people who belong together</source>
        <translation>شخصان تربطهما علاقة</translation>
    </message>
    <message>
        <source>two</source>
        <translation>اثنان</translation>
    </message>
    <message>
        <source>Two people or things</source>
        <translation>شخصان أو شيئان</translation>
    </message>
    <message>
        <source>group</source>
        <translation>مجموعة</translation>
    </message>
    <message>
        <source>More than two people or things</source>
        <translation>أكثر من شخصين أو شيئين</translation>
    </message>
    <message>
        <source>general view</source>
        <translation>منظر عام</translation>
    </message>
    <message>
        <source>The whole of a place or an event</source>
        <translation>مكان أو حدث بكامله</translation>
    </message>
    <message>
        <source>panoramic view</source>
        <translation>منظر بانورامي</translation>
    </message>
    <message>
        <source>Wide, over a whole landscape or town</source>
        <translation>منظر واسع لمشهد طبيعي أو مدينة</translation>
    </message>
    <message>
        <source>aerial view</source>
        <translation>منظر جوي</translation>
    </message>
    <message>
        <source>Taken from the air</source>
        <translation>التُقطت من الجو</translation>
    </message>
    <message>
        <source>under-water</source>
        <translation>تحت الماء</translation>
    </message>
    <message>
        <source>Taken below the surface of water</source>
        <translation>التُقطت تحت سطح الماء</translation>
    </message>
    <message>
        <source>night scene</source>
        <translation>مشهد ليلي</translation>
    </message>
    <message>
        <source>Taken by night</source>
        <translation>التُقطت ليلًا</translation>
    </message>
    <message>
        <source>satellite</source>
        <translation>من قمر صناعي</translation>
    </message>
    <message>
        <source>Taken from space</source>
        <translation>التُقطت من الفضاء</translation>
    </message>
    <message>
        <source>exterior view</source>
        <translation>منظر خارجي</translation>
    </message>
    <message>
        <source>A building from outside</source>
        <translation>مبنى من الخارج</translation>
    </message>
    <message>
        <source>interior view</source>
        <translation>منظر داخلي</translation>
    </message>
    <message>
        <source>A room or building from inside</source>
        <translation>غرفة أو مبنى من الداخل</translation>
    </message>
    <message>
        <source>close-up</source>
        <translation>لقطة قريبة</translation>
    </message>
    <message>
        <source>Taken from near, details fill the frame</source>
        <translation>التُقطت عن قرب وتملؤها التفاصيل</translation>
    </message>
    <message>
        <source>action</source>
        <translation>حركة</translation>
    </message>
    <message>
        <source>People or things in motion</source>
        <translation>أشخاص أو أشياء في حركة</translation>
    </message>
    <message>
        <source>performing</source>
        <translation>أداء</translation>
    </message>
    <message>
        <source>Somebody on a stage or at a show</source>
        <translation>شخص على خشبة المسرح أو في عرض</translation>
    </message>
    <message>
        <source>posing</source>
        <translation>وقفة للتصوير</translation>
    </message>
    <message>
        <source>Somebody who holds still for the camera</source>
        <translation>شخص يقف ساكنًا أمام الكاميرا</translation>
    </message>
    <message>
        <source>symbolic</source>
        <translation>رمزية</translation>
    </message>
    <message>
        <source>Stands for an idea rather than for what it shows</source>
        <translation>تمثّل فكرة لا ما يظهر فيها</translation>
    </message>
    <message>
        <source>off-beat</source>
        <translation>غير مألوفة</translation>
    </message>
    <message>
        <source>Odd or funny</source>
        <translation>غريبة أو طريفة</translation>
    </message>
    <message>
        <source>movie scene</source>
        <translation>مشهد سينمائي</translation>
    </message>
    <message>
        <source>Taken at the making of a film, or a frame of one</source>
        <translation>من تصوير فيلم، أو إطار منه</translation>
    </message>
    <message>
        <source>Subject code</source>
        <translation>رمز الموضوع</translation>
    </message>
    <message>
        <source>arts, culture and entertainment</source>
        <translation>الفنون والثقافة والترفيه</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, celebrities of the arts</source>
        <translation>الموسيقى والأفلام والمسرح والأدب والمتاحف ومشاهير الفن</translation>
    </message>
    <message>
        <source>crime, law and justice</source>
        <translation>الجريمة والقانون والعدالة</translation>
    </message>
    <message>
        <source>Police, courts, laws, prisons</source>
        <translation>الشرطة والمحاكم والقوانين والسجون</translation>
    </message>
    <message>
        <source>disaster and accident</source>
        <translation>الكوارث والحوادث</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes</source>
        <translation>الحرائق والفيضانات والزلازل والاصطدامات</translation>
    </message>
    <message>
        <source>economy, business and finance</source>
        <translation>الاقتصاد والأعمال والمال</translation>
    </message>
    <message>
        <source>Companies, markets, trades, industries</source>
        <translation>الشركات والأسواق والتجارة والصناعات</translation>
    </message>
    <message>
        <source>education</source>
        <translation>التعليم</translation>
    </message>
    <message>
        <source>Schools, universities, teaching</source>
        <translation>المدارس والجامعات والتدريس</translation>
    </message>
    <message>
        <source>environmental issue</source>
        <translation>قضايا البيئة</translation>
    </message>
    <message>
        <source>Nature, climate, pollution, conservation</source>
        <translation>الطبيعة والمناخ والتلوث وحماية البيئة</translation>
    </message>
    <message>
        <source>health</source>
        <translation>الصحة</translation>
    </message>
    <message>
        <source>Illness, medicine, hospitals</source>
        <translation>الأمراض والطب والمستشفيات</translation>
    </message>
    <message>
        <source>human interest</source>
        <translation>اهتمامات إنسانية</translation>
    </message>
    <message>
        <source>People, animals, curiosities</source>
        <translation>أشخاص وحيوانات وطرائف</translation>
    </message>
    <message>
        <source>labour</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>Work, unions, strikes, unemployment</source>
        <translation>العمل والنقابات والإضرابات والبطالة</translation>
    </message>
    <message>
        <source>lifestyle and leisure</source>
        <translation>نمط الحياة والترفيه</translation>
    </message>
    <message>
        <source>Travel, food, hobbies, fashion</source>
        <translation>السفر والطعام والهوايات والأزياء</translation>
    </message>
    <message>
        <source>politics</source>
        <translation>السياسة</translation>
    </message>
    <message>
        <source>Governments, elections, parties, diplomacy</source>
        <translation>الحكومات والانتخابات والأحزاب والدبلوماسية</translation>
    </message>
    <message>
        <source>religion and belief</source>
        <translation>الدين والمعتقدات</translation>
    </message>
    <message>
        <source>Faiths, their people and their feasts</source>
        <translation>الأديان وأهلها وأعيادها</translation>
    </message>
    <message>
        <source>science and technology</source>
        <translation>العلوم والتكنولوجيا</translation>
    </message>
    <message>
        <source>Research, discoveries, inventions</source>
        <translation>الأبحاث والاكتشافات والاختراعات</translation>
    </message>
    <message>
        <source>social issue</source>
        <translation>قضايا اجتماعية</translation>
    </message>
    <message>
        <source>Families, poverty, migration, addiction</source>
        <translation>الأسر والفقر والهجرة والإدمان</translation>
    </message>
    <message>
        <source>sport</source>
        <translation>الرياضة</translation>
    </message>
    <message>
        <source>Competitions, athletes, clubs</source>
        <translation>المنافسات والرياضيون والأندية</translation>
    </message>
    <message>
        <source>unrest, conflicts and war</source>
        <translation>الاضطرابات والنزاعات والحروب</translation>
    </message>
    <message>
        <source>Wars, riots, terror, peace talks</source>
        <translation>الحروب وأعمال الشغب والإرهاب ومحادثات السلام</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Forecasts, storms, heat, snow</source>
        <translation>التوقعات والعواصف والحر والثلوج</translation>
    </message>
    <message>
        <source>Media topic</source>
        <translation>موضوع إعلامي</translation>
    </message>
    <message>
        <source>arts, culture, entertainment and media</source>
        <translation>الفنون والثقافة والترفيه والإعلام</translation>
    </message>
    <message>
        <source>Music, film, theatre, literature, museums, press and broadcasting</source>
        <translation>الموسيقى والأفلام والمسرح والأدب والمتاحف والصحافة والبث</translation>
    </message>
    <message>
        <source>disaster, accident and emergency incident</source>
        <translation>الكوارث والحوادث والطوارئ</translation>
    </message>
    <message>
        <source>Fires, floods, earthquakes, crashes, rescues</source>
        <translation>الحرائق والفيضانات والزلازل والاصطدامات والإنقاذ</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>البيئة</translation>
    </message>
    <message>
        <source>politics and government</source>
        <translation>السياسة والحكومة</translation>
    </message>
    <message>
        <source>religion</source>
        <translation>الدين</translation>
    </message>
    <message>
        <source>society</source>
        <translation>المجتمع</translation>
    </message>
    <message>
        <source>Families, communities, migration, welfare</source>
        <translation>الأسر والمجتمعات والهجرة والرعاية الاجتماعية</translation>
    </message>
    <message>
        <source>conflict, war and peace</source>
        <translation>النزاع والحرب والسلام</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>النوع الفني</translation>
    </message>
    <message>
        <source>Actuality</source>
        <translation>تسجيل حي</translation>
    </message>
    <message>
        <source>Something as it happened, recorded there</source>
        <translation>حدث كما جرى، مسجَّلًا في مكانه</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>نصائح</translation>
    </message>
    <message>
        <source>Help with a question of daily life</source>
        <translation>عون في مسألة من الحياة اليومية</translation>
    </message>
    <message>
        <source>Almanac</source>
        <translation>روزنامة</translation>
    </message>
    <message>
        <source>What happened on this day in other years</source>
        <translation>ما حدث في مثل هذا اليوم في سنوات أخرى</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>تحليل</translation>
    </message>
    <message>
        <source>Explains what an event means</source>
        <translation>شرح لمعنى حدث</translation>
    </message>
    <message>
        <source>Anniversary</source>
        <translation>ذكرى سنوية</translation>
    </message>
    <message>
        <source>Looks back on the day of an earlier event</source>
        <translation>عودة إلى حدث سابق في ذكراه</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>مادة أرشيفية</translation>
    </message>
    <message>
        <source>Kept from earlier and used again</source>
        <translation>محفوظة من السابق وأُعيد استخدامها</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>خلفية</translation>
    </message>
    <message>
        <source>What has to be known to follow an event</source>
        <translation>ما تلزم معرفته لمتابعة حدث</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>أحداث راهنة</translation>
    </message>
    <message>
        <source>About what happens at the moment</source>
        <translation>عمّا يحدث الآن</translation>
    </message>
    <message>
        <source>Curtain Raiser</source>
        <translation>تمهيد</translation>
    </message>
    <message>
        <source>Tells of an event before it begins</source>
        <translation>يتحدث عن حدث قبل بدئه</translation>
    </message>
    <message>
        <source>Daybook</source>
        <translation>أجندة اليوم</translation>
    </message>
    <message>
        <source>What is planned for the day</source>
        <translation>ما هو مقرر لليوم</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>حصري</translation>
    </message>
    <message>
        <source>Had by one publisher alone</source>
        <translation>لدى ناشر واحد فقط</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>مادة مطوّلة</translation>
    </message>
    <message>
        <source>A longer piece on a person or a subject</source>
        <translation>مادة أطول عن شخص أو موضوع</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>مادة ثابتة</translation>
    </message>
    <message>
        <source>Appears regularly</source>
        <translation>تظهر بانتظام</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>توقعات</translation>
    </message>
    <message>
        <source>Says what is to be expected</source>
        <translation>تقول ما المنتظر حدوثه</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>من موقع الحدث</translation>
    </message>
    <message>
        <source>Reported from where it happens</source>
        <translation>تقرير من مكان الحدث</translation>
    </message>
    <message>
        <source>History</source>
        <translation>تاريخ</translation>
    </message>
    <message>
        <source>About times long past</source>
        <translation>عن أزمنة بعيدة</translation>
    </message>
    <message>
        <source>Horoscope</source>
        <translation>أبراج</translation>
    </message>
    <message>
        <source>What the stars are said to tell</source>
        <translation>ما يُزعم أن النجوم تقوله</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>مقابلة</translation>
    </message>
    <message>
        <source>A talk with somebody</source>
        <translation>حوار مع شخص</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>موسيقى</translation>
    </message>
    <message>
        <source>About music, or music itself</source>
        <translation>عن الموسيقى، أو موسيقى</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>نعي</translation>
    </message>
    <message>
        <source>Tells the life of somebody who has died</source>
        <translation>سيرة شخص توفي</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>رأي</translation>
    </message>
    <message>
        <source>Says what its author thinks</source>
        <translation>ما يراه الكاتب</translation>
    </message>
    <message>
        <source>Polls and Surveys</source>
        <translation>استطلاعات ومسوح</translation>
    </message>
    <message>
        <source>What many people answered</source>
        <translation>ما أجاب به كثيرون</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>بيان صحفي</translation>
    </message>
    <message>
        <source>Issued by those whom it is about</source>
        <translation>أصدره المعنيون به</translation>
    </message>
    <message>
        <source>Press-Digest</source>
        <translation>عرض الصحف</translation>
    </message>
    <message>
        <source>What other papers say</source>
        <translation>ما تقوله الصحف الأخرى</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>بورتريه</translation>
    </message>
    <message>
        <source>A portrait of a person or an organization</source>
        <translation>صورة عن شخص أو مؤسسة</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>برنامج</translation>
    </message>
    <message>
        <source>What will be performed or broadcast</source>
        <translation>ما سيُعرض أو يُبث</translation>
    </message>
    <message>
        <source>Question and Answer Session</source>
        <translation>جلسة أسئلة وأجوبة</translation>
    </message>
    <message>
        <source>Questions put to somebody, and the answers</source>
        <translation>أسئلة طُرحت على شخص، وأجوبتها</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>اقتباس</translation>
    </message>
    <message>
        <source>Somebody&apos;s own words</source>
        <translation>كلام شخص بنصه</translation>
    </message>
    <message>
        <source>Raw Sound</source>
        <translation>صوت خام</translation>
    </message>
    <message>
        <source>Sound without editing</source>
        <translation>صوت دون تحرير</translation>
    </message>
    <message>
        <source>Response to a Question</source>
        <translation>إجابة عن سؤال</translation>
    </message>
    <message>
        <source>One answer to one question</source>
        <translation>إجابة واحدة عن سؤال واحد</translation>
    </message>
    <message>
        <source>Results Listings and Statistics</source>
        <translation>قوائم نتائج وإحصاءات</translation>
    </message>
    <message>
        <source>Scores, tables, numbers</source>
        <translation>نتائج وجداول وأرقام</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>نظرة استعادية</translation>
    </message>
    <message>
        <source>Looks back over a longer time</source>
        <translation>نظرة إلى فترة سابقة أطول</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>مراجعة نقدية</translation>
    </message>
    <message>
        <source>Judges a book, a film, a show</source>
        <translation>تقييم لكتاب أو فيلم أو عرض</translation>
    </message>
    <message>
        <source>Scener</source>
        <translation>أجواء المكان</translation>
    </message>
    <message>
        <source>Describes what it is like at a place</source>
        <translation>يصف الأجواء في مكان</translation>
    </message>
    <message>
        <source>Side bar and supporting information</source>
        <translation>مادة جانبية ومعلومات داعمة</translation>
    </message>
    <message>
        <source>Goes with another piece and adds to it</source>
        <translation>ترافق مادة أخرى وتكملها</translation>
    </message>
    <message>
        <source>Special Report</source>
        <translation>تقرير خاص</translation>
    </message>
    <message>
        <source>A thorough look at one subject</source>
        <translation>تناول متعمق لموضوع واحد</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>ملخص</translation>
    </message>
    <message>
        <source>The main points of several pieces</source>
        <translation>أهم ما في عدة مواد</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>موجز</translation>
    </message>
    <message>
        <source>What a longer work contains, in short</source>
        <translation>مضمون عمل أطول باختصار</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>نص فقط</translation>
    </message>
    <message>
        <source>Has no pictures or sound</source>
        <translation>بلا صور أو صوت</translation>
    </message>
    <message>
        <source>Transcript and Verbatim</source>
        <translation>تفريغ حرفي</translation>
    </message>
    <message>
        <source>Word for word what was said</source>
        <translation>ما قيل كلمة كلمة</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Adds what is new to an earlier piece</source>
        <translation>يضيف الجديد إلى مادة سابقة</translation>
    </message>
    <message>
        <source>Voicer</source>
        <translation>تقرير صوتي</translation>
    </message>
    <message>
        <source>A reporter&apos;s voice tells the story</source>
        <translation>يروي المراسل الخبر بصوته</translation>
    </message>
    <message>
        <source>Wrap</source>
        <translation>تجميع</translation>
    </message>
    <message>
        <source>Brings several reports together</source>
        <translation>يجمع عدة تقارير معًا</translation>
    </message>
    <message>
        <source>Wrapup</source>
        <translation>حصيلة</translation>
    </message>
    <message>
        <source>Tells an event once more when it has ended</source>
        <translation>يروي الحدث مرة أخرى بعد انتهائه</translation>
    </message>
    <message>
        <source>Africa</source>
        <translation>أفريقيا</translation>
    </message>
    <message>
        <source>From Tunisia to South Africa, with its islands</source>
        <translation>من تونس إلى جنوب أفريقيا، مع جزرها</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>أنتاركتيكا</translation>
    </message>
    <message>
        <source>The continent round the South Pole</source>
        <translation>القارة حول القطب الجنوبي</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>آسيا</translation>
    </message>
    <message>
        <source>From Turkey to Japan and Indonesia</source>
        <translation>من تركيا إلى اليابان وإندونيسيا</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>أوروبا</translation>
    </message>
    <message>
        <source>From Iceland to Russia</source>
        <translation>من آيسلندا إلى روسيا</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>أمريكا الشمالية</translation>
    </message>
    <message>
        <source>From Greenland to Panama, with the Caribbean</source>
        <translation>من غرينلاند إلى بنما، مع الكاريبي</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>أوقيانوسيا</translation>
    </message>
    <message>
        <source>Australia, New Zealand and the islands of the Pacific</source>
        <translation>أستراليا ونيوزيلندا وجزر المحيط الهادئ</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>أمريكا الجنوبية</translation>
    </message>
    <message>
        <source>From Colombia to Tierra del Fuego</source>
        <translation>من كولومبيا إلى أرض النار</translation>
    </message>
    <message>
        <source>World</source>
        <translation>العالم</translation>
    </message>
    <message>
        <source>The whole world</source>
        <translation>العالم كله</translation>
    </message>
    <message>
        <source>Region type</source>
        <translation>نوع المنطقة</translation>
    </message>
    <message>
        <source>human</source>
        <translation>إنسان</translation>
    </message>
    <message>
        <source>A person, or part of one</source>
        <translation>شخص، أو جزء منه</translation>
    </message>
    <message>
        <source>animal</source>
        <translation>حيوان</translation>
    </message>
    <message>
        <source>An animal, or part of one</source>
        <translation>حيوان، أو جزء منه</translation>
    </message>
    <message>
        <source>plant</source>
        <translation>نبات</translation>
    </message>
    <message>
        <source>A plant, or part of one</source>
        <translation>نبات، أو جزء منه</translation>
    </message>
    <message>
        <source>building</source>
        <translation>مبنى</translation>
    </message>
    <message>
        <source>A building, or part of one</source>
        <translation>مبنى، أو جزء منه</translation>
    </message>
    <message>
        <source>vehicle</source>
        <translation>مركبة</translation>
    </message>
    <message>
        <source>A car, train, ship or plane</source>
        <translation>سيارة أو قطار أو سفينة أو طائرة</translation>
    </message>
    <message>
        <source>Something that is made to be sold</source>
        <translation>شيء مصنوع للبيع</translation>
    </message>
    <message>
        <source>A work of art</source>
        <translation>عمل فني</translation>
    </message>
    <message>
        <source>food</source>
        <translation>طعام</translation>
    </message>
    <message>
        <source>Something to eat or drink</source>
        <translation>ما يؤكل أو يُشرب</translation>
    </message>
    <message>
        <source>clothing</source>
        <translation>ملابس</translation>
    </message>
    <message>
        <source>Something to wear</source>
        <translation>ما يُلبس</translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Words that can be read</source>
        <translation>كلمات يمكن قراءتها</translation>
    </message>
    <message>
        <source>graphic</source>
        <translation>عنصر رسومي</translation>
    </message>
    <message>
        <source>A drawing, a logo, a sign</source>
        <translation>رسم أو شعار أو علامة</translation>
    </message>
    <message>
        <source>machine-readable code</source>
        <translation>رمز مقروء آليًا</translation>
    </message>
    <message>
        <source>A bar code or the like</source>
        <translation>رمز شريطي أو ما شابه</translation>
    </message>
    <message>
        <source>geographic area</source>
        <translation>منطقة جغرافية</translation>
    </message>
    <message>
        <source>A stretch of land</source>
        <translation>بقعة من الأرض</translation>
    </message>
    <message>
        <source>rock formation</source>
        <translation>تكوين صخري</translation>
    </message>
    <message>
        <source>Rocks, cliffs, mountains</source>
        <translation>صخور أو جروف أو جبال</translation>
    </message>
    <message>
        <source>body of water</source>
        <translation>مسطح مائي</translation>
    </message>
    <message>
        <source>A lake, a river, the sea</source>
        <translation>بحيرة أو نهر أو بحر</translation>
    </message>
    <message>
        <source>dividing line</source>
        <translation>خط فاصل</translation>
    </message>
    <message>
        <source>Where one picture in the picture ends and another begins</source>
        <translation>حيث تنتهي صورة داخل الصورة وتبدأ أخرى</translation>
    </message>
    <message>
        <source>Region role</source>
        <translation>دور المنطقة</translation>
    </message>
    <message>
        <source>main subject area</source>
        <translation>منطقة الموضوع الرئيسي</translation>
    </message>
    <message>
        <source>What the picture is mostly about; one a picture</source>
        <translation>الموضوع الأهم في الصورة؛ واحدة لكل صورة</translation>
    </message>
    <message>
        <source>subject area</source>
        <translation>منطقة موضوع</translation>
    </message>
    <message>
        <source>Something that the picture is about</source>
        <translation>أحد موضوعات الصورة</translation>
    </message>
    <message>
        <source>area of interest</source>
        <translation>منطقة اهتمام</translation>
    </message>
    <message>
        <source>Worth looking at</source>
        <translation>جديرة بالنظر</translation>
    </message>
    <message>
        <source>cropping</source>
        <translation>اقتصاص</translation>
    </message>
    <message>
        <source>To be cut to this</source>
        <translation>تُقص الصورة إلى هذا الجزء</translation>
    </message>
    <message>
        <source>recommended cropping</source>
        <translation>اقتصاص موصى به</translation>
    </message>
    <message>
        <source>Best cut to this</source>
        <translation>يُفضَّل قص الصورة إلى هذا الجزء</translation>
    </message>
    <message>
        <source>landscape format cropping</source>
        <translation>اقتصاص أفقي</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be wide</source>
        <translation>تُقص إلى هذا الجزء حيث يجب أن تكون عريضة</translation>
    </message>
    <message>
        <source>portrait format cropping</source>
        <translation>اقتصاص عمودي</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be tall</source>
        <translation>تُقص إلى هذا الجزء حيث يجب أن تكون طويلة</translation>
    </message>
    <message>
        <source>square format cropping</source>
        <translation>اقتصاص مربع</translation>
    </message>
    <message>
        <source>To be cut to this where it has to be square</source>
        <translation>تُقص إلى هذا الجزء حيث يجب أن تكون مربعة</translation>
    </message>
    <message>
        <source>composite image item</source>
        <translation>عنصر من صورة مركّبة</translation>
    </message>
    <message>
        <source>One of the pictures that this one is made of</source>
        <translation>إحدى الصور التي تتكوّن منها هذه الصورة</translation>
    </message>
    <message>
        <source>copyright region</source>
        <translation>منطقة حقوق نشر</translation>
    </message>
    <message>
        <source>Shows something with a copyright of its own</source>
        <translation>تُظهر شيئًا له حقوق نشر خاصة به</translation>
    </message>
    <message>
        <source>business use</source>
        <translation>استخدام مؤسسي</translation>
    </message>
    <message>
        <source>For use within a company&apos;s workflow</source>
        <translation>للاستخدام في سير عمل شركة</translation>
    </message>
    <message>
        <source>Outline shape</source>
        <translation>شكل الإطار</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>مستطيل</translation>
    </message>
    <message>
        <source>A corner, a width and a height</source>
        <translation>زاوية وعرض وارتفاع</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>دائرة</translation>
    </message>
    <message>
        <source>A center and a radius</source>
        <translation>مركز ونصف قطر</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>مضلّع</translation>
    </message>
    <message>
        <source>Two or more points</source>
        <translation>نقطتان أو أكثر</translation>
    </message>
    <message>
        <source>Outline unit</source>
        <translation>وحدة الإطار</translation>
    </message>
    <message>
        <source>Relative</source>
        <translation>نسبية</translation>
    </message>
    <message>
        <source>Parts of the picture&apos;s width and height, from 0 to 1</source>
        <translation>أجزاء من عرض الصورة وارتفاعها، من 0 إلى 1</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>بكسل</translation>
    </message>
    <message>
        <source>Pixels of the picture</source>
        <translation>بكسلات الصورة</translation>
    </message>
    <message>
        <source>English</source>
        <comment>name of this language</comment>
        <extracomment>The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.</extracomment>
        <translation>العربية</translation>
    </message>
    <message>
        <source>“%1” is there already</source>
        <translation>«%1» موجود هناك من قبل</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>“%1” is not there any more</source>
        <translation>لم يعد «%1» موجودًا هناك</translation>
    </message>
    <message>
        <source>another Quorbel is renaming at this moment</source>
        <translation>تعيد نسخة أخرى من Quorbel التسمية الآن</translation>
    </message>
    <message>
        <source>Undo Rename</source>
        <translation>التراجع عن إعادة التسمية</translation>
    </message>
    <message>
        <source>Undo Rename of “%1”</source>
        <translation>التراجع عن إعادة تسمية «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Undo Rename of %n Photo(s)</source>
        <translation>
            <numerusform>التراجع عن إعادة التسمية</numerusform>
            <numerusform>التراجع عن إعادة تسمية صورة واحدة</numerusform>
            <numerusform>التراجع عن إعادة تسمية صورتين</numerusform>
            <numerusform>التراجع عن إعادة تسمية %n صور</numerusform>
            <numerusform>التراجع عن إعادة تسمية %n صورة</numerusform>
            <numerusform>التراجع عن إعادة تسمية %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>a file name cannot hold “/”</source>
        <translation>لا يجوز أن يحتوي اسم الملف على «/»</translation>
    </message>
    <message>
        <source>too long for a file name</source>
        <translation>أطول من أن يكون اسم ملف</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>مجلده للقراءة فقط</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>لم يعد موجودًا هناك</translation>
    </message>
    <message>
        <source>stays %1</source>
        <extracomment>%1 is a file&apos;s name: what is said of a photo that lacks a value</extracomment>
        <translation>يبقى %1</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>يصبح %1</translation>
    </message>
    <message>
        <source>name taken, so -%1</source>
        <extracomment>%1 is the number that was put behind the name</extracomment>
        <translation>الاسم مستخدم، لذا ‎-%1</translation>
    </message>
    <message>
        <source>with %1</source>
        <extracomment>%1 are files that are renamed along with the photo</extracomment>
        <translation>مع %1</translation>
    </message>
    <message>
        <source>Cannot move “%1”</source>
        <translation>لا يمكن نقل «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>%1 is a list: &quot;a.jpg, b.jpg and 3 more&quot;
----------
The end of a list of names: %1 is those before, with commas between them.</extracomment>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1 وواحد آخر</numerusform>
            <numerusform>%1 واثنان آخران</numerusform>
            <numerusform>%1 و%n آخرون</numerusform>
            <numerusform>%1 و%n آخر</numerusform>
            <numerusform>%1 و%n آخر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (is a folder|are folders); nothing was written.</source>
        <translation>
            <numerusform>لم يُكتب شيء: %1.</numerusform>
            <numerusform>%1 مجلد؛ لم يُكتب شيء.</numerusform>
            <numerusform>%1 مجلدان؛ لم يُكتب شيء.</numerusform>
            <numerusform>%1 مجلدات؛ لم يُكتب شيء.</numerusform>
            <numerusform>%1 مجلدات؛ لم يُكتب شيء.</numerusform>
            <numerusform>%1 مجلدات؛ لم يُكتب شيء.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 للقراءة فقط.</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos (is|are) read-only: %2; nothing was written.</source>
        <extracomment>%2 names the photos</extracomment>
        <translation>
            <numerusform>من %1 صورة لا شيء للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
            <numerusform>صورة واحدة من %1 للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
            <numerusform>صورتان من %1 للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
            <numerusform>%n صور من %1 للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
            <numerusform>%n صورة من %1 للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
            <numerusform>%n صورة من %1 للقراءة فقط: %2؛ لم يُكتب شيء.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another save is under way or was cut off: %1 lies beside the photo. If no other program is saving, delete it and save again. Nothing was written.</source>
        <translation>حفظ آخر قيد التنفيذ أو انقطع: الملف %1 موجود بجانب الصورة. إن لم يكن برنامج آخر يحفظ الآن، يُحذف هذا الملف ثم يُعاد الحفظ. لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>“%1” is too long: a value may have 128 KiB at most. Nothing was written.</source>
        <translation>«%1» أطول من المسموح: الحد الأقصى للقيمة 128 KiB. لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>Cannot write “%1”</source>
        <translation>لا يمكن كتابة «%1»</translation>
    </message>
    <message>
        <source>Cannot keep a copy of “%1”</source>
        <translation>لا يمكن حفظ نسخة من «%1»</translation>
    </message>
    <message>
        <source>Only the letters A–Z and digits can be stored in a name.</source>
        <translation>لا يُقبل في الاسم سوى الأحرف A–Z والأرقام.</translation>
    </message>
    <message>
        <source>A name needs at least two letters or digits.</source>
        <translation>يجب ألا يقل الاسم عن حرفين أو رقمين.</translation>
    </message>
    <message>
        <source>“%1” is a reserved word; choose another name.</source>
        <translation>الكلمة «%1» محجوزة؛ يُرجى اختيار اسم آخر.</translation>
    </message>
    <message>
        <source>That is the field %1</source>
        <extracomment>%1 is a field&apos;s name</extracomment>
        <translation>هذا هو الحقل %1</translation>
    </message>
    <message>
        <source>Not a date: YYYY-MM-DD HH:MM</source>
        <translation>ليس تاريخًا: YYYY-MM-DD HH:MM</translation>
    </message>
    <message>
        <source>Not a position: lat, lon</source>
        <translation>ليس موضعًا: lat, lon</translation>
    </message>
    <message>
        <source>Not an offset: +HH:MM</source>
        <translation>ليس فرق توقيت: ⁨+HH:MM⁩</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>ليس عددًا صحيحًا</translation>
    </message>
    <message>
        <source>Afrikaans</source>
        <translation>الأفريقانية</translation>
    </message>
    <message>
        <source>Albanian</source>
        <translation>الألبانية</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>العربية</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>الأرمنية</translation>
    </message>
    <message>
        <source>Basque</source>
        <translation>الباسكية</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>البنغالية</translation>
    </message>
    <message>
        <source>Bulgarian</source>
        <translation>البلغارية</translation>
    </message>
    <message>
        <source>Catalan</source>
        <translation>الكتالانية</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>الصينية</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>الكرواتية</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>التشيكية</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>الدانمركية</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>الهولندية</translation>
    </message>
    <message>
        <source>English</source>
        <translation>الإنجليزية</translation>
    </message>
    <message>
        <source>Estonian</source>
        <translation>الإستونية</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>الفنلندية</translation>
    </message>
    <message>
        <source>French</source>
        <translation>الفرنسية</translation>
    </message>
    <message>
        <source>Galician</source>
        <translation>الجاليكية</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>الجورجية</translation>
    </message>
    <message>
        <source>German</source>
        <translation>الألمانية</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>اليونانية</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>العبرية</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>الهندية</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>الهنغارية</translation>
    </message>
    <message>
        <source>Icelandic</source>
        <translation>الأيسلندية</translation>
    </message>
    <message>
        <source>Indonesian</source>
        <translation>الإندونيسية</translation>
    </message>
    <message>
        <source>Irish</source>
        <translation>الأيرلندية</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>الإيطالية</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>اليابانية</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>الكورية</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>اللاتينية</translation>
    </message>
    <message>
        <source>Latvian</source>
        <translation>اللاتفية</translation>
    </message>
    <message>
        <source>Lithuanian</source>
        <translation>الليتوانية</translation>
    </message>
    <message>
        <source>Malay</source>
        <translation>الماليزية</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>النرويجية</translation>
    </message>
    <message>
        <source>Persian</source>
        <translation>الفارسية</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>البولندية</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>البرتغالية</translation>
    </message>
    <message>
        <source>Romanian</source>
        <translation>الرومانية</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>الروسية</translation>
    </message>
    <message>
        <source>Serbian</source>
        <translation>الصربية</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>السلوفاكية</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>السلوفانية</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>الإسبانية</translation>
    </message>
    <message>
        <source>Swahili</source>
        <translation>السواحلية</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>السويدية</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>التايلاندية</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>التركية</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>الأوكرانية</translation>
    </message>
    <message>
        <source>Urdu</source>
        <translation>الأوردية</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>الفيتنامية</translation>
    </message>
    <message>
        <source>Welsh</source>
        <translation>الويلزية</translation>
    </message>
    <message>
        <source>Shown as the photo&apos;s name / heading</source>
        <translation>يظهر اسمًا للصورة أو عنوانًا لها</translation>
    </message>
    <message>
        <source>Searchable caption everywhere</source>
        <translation>تعليق يمكن البحث فيه في كل مكان</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Sorts your library by date in every app</source>
        <translation>ترتَّب به المكتبة حسب التاريخ في كل التطبيقات</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Filter &amp; group by tag</source>
        <translation>التصفية والتجميع حسب الوسم</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>المنشئ</translation>
    </message>
    <message>
        <source>Who made the photo</source>
        <translation>من أنشأ الصورة</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Rights / copyright notice</source>
        <translation>الحقوق / إشعار حقوق النشر</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>Pins on the map; sorts by place</source>
        <translation>يُستخدم للتثبيت على الخريطة وللترتيب حسب المكان</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>الإحداثيات</translation>
    </message>
    <message>
        <source>GPS latitude / longitude</source>
        <translation>خط العرض / خط الطول من GPS</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>التقييم</translation>
    </message>
    <message>
        <source>★ 1–5, read by most libraries</source>
        <translation>★ من 1 إلى 5، تقرؤه معظم المكتبات</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>العنوان الرئيسي</translation>
    </message>
    <message>
        <source>Short title shown in galleries</source>
        <translation>عنوان قصير يظهر في المعارض</translation>
    </message>
    <message>
        <source>People</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>Names of people shown</source>
        <translation>أسماء الأشخاص الظاهرين</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>الحدث</translation>
    </message>
    <message>
        <source>Group photos by event</source>
        <translation>تجميع الصور حسب الحدث</translation>
    </message>
    <message>
        <source>State / Province</source>
        <translation>الولاية / المقاطعة</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>الولاية أو المقاطعة</translation>
    </message>
    <message>
        <source>Country name</source>
        <translation>اسم الدولة</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>الموقع الفرعي</translation>
    </message>
    <message>
        <source>Neighborhood / venue</source>
        <translation>الحي / مكان الفعالية</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>العلامة</translation>
    </message>
    <message>
        <source>Colour / text label</source>
        <translation>علامة لونية أو نصية</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>كاتب التعليق</translation>
    </message>
    <message>
        <source>Who wrote the caption</source>
        <translation>من كتب التعليق</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>Subject category</source>
        <translation>فئة الموضوع</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>الإسناد</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>سطر الإسناد</translation>
    </message>
    <message>
        <source>Intellectual genre</source>
        <translation>النوع الفني</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>التعليمات</translation>
    </message>
    <message>
        <source>Editorial instructions</source>
        <translation>تعليمات تحريرية</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>معرّف المهمة</translation>
    </message>
    <message>
        <source>Job / transmission reference</source>
        <translation>مرجع المهمة / الإرسال</translation>
    </message>
    <message>
        <source>IPTC scene code</source>
        <translation>رمز المشهد في IPTC</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Editing software</source>
        <translation>برنامج التحرير</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>المصدر الأصلي</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>درجة الاستعجال</translation>
    </message>
    <message>
        <source>Editorial urgency (1–8)</source>
        <translation>درجة الاستعجال التحريري (1–8)</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>شروط الاستخدام</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>شروط استخدام الصورة</translation>
    </message>
    <message>
        <source>Web statement</source>
        <translation>بيان الحقوق على الويب</translation>
    </message>
    <message>
        <source>Rights URL</source>
        <translation>رابط الحقوق</translation>
    </message>
    <message>
        <source>Date digitized</source>
        <translation>تاريخ الرقمنة</translation>
    </message>
    <message>
        <source>When the image was digitized / scanned</source>
        <translation>وقت رقمنة الصورة أو مسحها ضوئيًا</translation>
    </message>
    <message>
        <source>TZ offset (taken)</source>
        <translation>فرق التوقيت (الالتقاط)</translation>
    </message>
    <message>
        <source>Timezone offset for date taken</source>
        <translation>فرق التوقيت لتاريخ الالتقاط</translation>
    </message>
    <message>
        <source>TZ offset (digitized)</source>
        <translation>فرق التوقيت (الرقمنة)</translation>
    </message>
    <message>
        <source>Timezone offset for date digitized</source>
        <translation>فرق التوقيت لتاريخ الرقمنة</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>الصانع</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>العدسة</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>الغالق</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>فتحة العدسة</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>البعد البؤري</translation>
    </message>
    <message>
        <source>Color space</source>
        <translation>فضاء الألوان</translation>
    </message>
    <message>
        <source>COMMON</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>LOCATION</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>CONTACT</source>
        <translation>جهة الاتصال</translation>
    </message>
    <message>
        <source>PEOPLE</source>
        <translation>الأشخاص</translation>
    </message>
    <message>
        <source>LOCATION CREATED</source>
        <translation>مكان الالتقاط</translation>
    </message>
    <message>
        <source>LOCATION SHOWN</source>
        <translation>المكان الظاهر</translation>
    </message>
    <message>
        <source>SUBJECTS</source>
        <translation>الموضوعات</translation>
    </message>
    <message>
        <source>THINGS SHOWN</source>
        <translation>الأشياء الظاهرة</translation>
    </message>
    <message>
        <source>REGIONS</source>
        <translation>المناطق</translation>
    </message>
    <message>
        <source>RIGHTS</source>
        <translation>الحقوق</translation>
    </message>
    <message>
        <source>LICENSING</source>
        <translation>الترخيص</translation>
    </message>
    <message>
        <source>SOURCE</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>IMAGE</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 ك.ب</translation>
    </message>
    <message>
        <source>Not a file</source>
        <translation>ليس ملفًا</translation>
    </message>
    <message>
        <source>File is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>Not an XMP file</source>
        <translation>ليس ملف XMP</translation>
    </message>
    <message>
        <source>set</source>
        <translation>ضبط</translation>
    </message>
    <message>
        <source>set if empty</source>
        <translation>ضبط إن كان فارغًا</translation>
    </message>
    <message>
        <source>append</source>
        <translation>إضافة بعده</translation>
    </message>
    <message>
        <source>prepend</source>
        <translation>إضافة قبله</translation>
    </message>
    <message>
        <source>“%1” names a field that there is not.</source>
        <translation>يذكر «%1» حقلًا غير موجود.</translation>
    </message>
    <message>
        <source>“%1” says nothing that can be done to a field.</source>
        <translation>في «%1» إجراء لا يمكن تطبيقه على حقل.</translation>
    </message>
    <message>
        <source>“%1” has a field without a text.</source>
        <translation>في «%1» حقل بلا نص.</translation>
    </message>
    <message>
        <source>“%1” is no template.</source>
        <translation>«%1» ليس قالبًا.</translation>
    </message>
    <message>
        <source>“%1” was made by a newer version of Quorbel.</source>
        <translation>أُنشئ «%1» بإصدار أحدث من Quorbel.</translation>
    </message>
    <message>
        <source>“%1” has no name.</source>
        <translation>«%1» بلا اسم.</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>لا يمكن قراءة «%1».</translation>
    </message>
    <message>
        <source>Cannot write the template “%1”</source>
        <translation>لا يمكن كتابة القالب «%1»</translation>
    </message>
    <message>
        <source>%1 missing: “%2”</source>
        <extracomment>%1 is a field that the photo has nothing in, %2 what the template gives instead</extracomment>
        <translation>ينقص %1: «%2»</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 are the fields that the photo has nothing in: &quot;Place, Event missing&quot;</extracomment>
        <translation>ينقص %1</translation>
    </message>
    <message>
        <source>Not a rating: 0 to 5</source>
        <translation>ليس تقييمًا: من 0 إلى 5</translation>
    </message>
    <message>
        <source>kept: %1</source>
        <extracomment>What a field holds stays as it is; %1 is why: &quot;kept: not empty&quot;</extracomment>
        <translation>باقٍ كما هو: %1</translation>
    </message>
    <message>
        <source>nothing to fill in</source>
        <translation>لا شيء للتعبئة</translation>
    </message>
    <message>
        <source>not read yet</source>
        <translation>لم يُقرأ بعد</translation>
    </message>
    <message>
        <source>not empty</source>
        <translation>ليس فارغًا</translation>
    </message>
    <message>
        <source>there already</source>
        <translation>موجود من قبل</translation>
    </message>
    <message>
        <source>%1 of one photo: %2</source>
        <extracomment>%1 is a field, %2 why a text cannot stand in it</extracomment>
        <translation>%1 في صورة واحدة: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n photo(s): %2</source>
        <translation>
            <numerusform>%1 في %n صورة: %2</numerusform>
            <numerusform>%1 في صورة واحدة: %2</numerusform>
            <numerusform>%1 في صورتين: %2</numerusform>
            <numerusform>%1 في %n صور: %2</numerusform>
            <numerusform>%1 في %n صورة: %2</numerusform>
            <numerusform>%1 في %n صورة: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Perl interpreter not found at %1.</source>
        <translation>لم يُعثر على مفسّر Perl في %1.</translation>
    </message>
    <message>
        <source>ExifTool exited with code %1: %2</source>
        <translation>انتهى ExifTool بالرمز %1: %2</translation>
    </message>
    <message>
        <source>Could not decode ExifTool output: %1</source>
        <translation>تعذّر فهم مخرجات ExifTool: %1</translation>
    </message>
    <message>
        <source>Bundled ExifTool could not be located.</source>
        <translation>تعذّر العثور على ExifTool المرفق.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 is what failed (&quot;Cannot move “/photos/a.jpg”&quot;), %2 the system&apos;s reason</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>تعذّر تشغيل ExifTool: %1</translation>
    </message>
    <message>
        <source>The read was cancelled.</source>
        <translation>أُلغيت القراءة.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>الاسم الأصلي</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>quotation marks around a name or a text that the user typed
----------
A name, in quotation marks.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>العدّاد</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>“%1” cannot be replaced and added to in one save. Nothing was written.</source>
        <translation>لا يمكن استبدال «%1» والإضافة إليه في حفظ واحد. لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>Changed while it was read</source>
        <translation>تغيّر أثناء قراءته</translation>
    </message>
    <message>
        <source>Cannot write to “%1”</source>
        <translation>لا يمكن الكتابة في «%1»</translation>
    </message>
    <message>
        <source>%1 — output: %2</source>
        <extracomment>%1 is why it could not be decoded, %2 the beginning of it</extracomment>
        <translation>%1 — المخرجات: %2</translation>
    </message>
    <message>
        <source>its values are not UTF-8</source>
        <translation>قيمه ليست بترميز UTF-8</translation>
    </message>
    <message>
        <source>not an array of objects</source>
        <translation>ليس مصفوفة كائنات</translation>
    </message>
    <message>
        <source>The file is not UTF-8: it was read as Windows Latin 1.</source>
        <translation>ليس الملف بترميز UTF-8: قُرئ على أنه Windows Latin 1.</translation>
    </message>
    <message>
        <source>Some characters of the file could not be read.</source>
        <translation>تعذّرت قراءة بعض أحرف الملف.</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) like these.</source>
        <translation>
            <numerusform>لا أسطر أخرى كهذه.</numerusform>
            <numerusform>وسطر آخر كهذا.</numerusform>
            <numerusform>وسطران آخران كهذين.</numerusform>
            <numerusform>و%n أسطر أخرى كهذه.</numerusform>
            <numerusform>و%n سطرًا آخر كهذه.</numerusform>
            <numerusform>و%n سطر آخر كهذه.</numerusform>
        </translation>
    </message>
    <message>
        <source>Line %1 has no tab: %2</source>
        <extracomment>%2 is the line, in quotation marks</extracomment>
        <translation>لا علامة جدولة في السطر %1: %2</translation>
    </message>
    <message>
        <source>Line %1 has no code in front of its tab.</source>
        <translation>لا رمز قبل علامة الجدولة في السطر %1.</translation>
    </message>
    <message>
        <source>Line %1 has no text for %2.</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>السطر %1 بلا نص للرمز %2.</translation>
    </message>
    <message>
        <source>Line %1: nobody can type a code with “=” in it: %2</source>
        <extracomment>%2 is a code, in quotation marks</extracomment>
        <translation>السطر %1: لا يصلح رمز يحتوي على «=»: %2</translation>
    </message>
    <message numerus="yes">
        <source>Line %1: a code has at most %n character(s): %2</source>
        <extracomment>%2 is a code that has more, in quotation marks</extracomment>
        <translation>
            <numerusform>السطر %1: الحد الأقصى للرمز %n حرف: %2</numerusform>
            <numerusform>السطر %1: الحد الأقصى للرمز حرف واحد: %2</numerusform>
            <numerusform>السطر %1: الحد الأقصى للرمز حرفان: %2</numerusform>
            <numerusform>السطر %1: الحد الأقصى للرمز %n أحرف: %2</numerusform>
            <numerusform>السطر %1: الحد الأقصى للرمز %n حرفًا: %2</numerusform>
            <numerusform>السطر %1: الحد الأقصى للرمز %n حرف: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is there twice, in lines %2 and %3: the last one counts.</source>
        <extracomment>%1 is a code, in quotation marks</extracomment>
        <translation>ورد %1 مرتين، في السطرين %2 و%3: يُعتمد الأخير.</translation>
    </message>
    <message numerus="yes">
        <source>%n date(s)</source>
        <translation>
            <numerusform>لا تواريخ</numerusform>
            <numerusform>تاريخًا واحدًا</numerusform>
            <numerusform>تاريخين</numerusform>
            <numerusform>%n تواريخ</numerusform>
            <numerusform>%n تاريخًا</numerusform>
            <numerusform>%n تاريخ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n title(s)</source>
        <translation>
            <numerusform>لا عناوين</numerusform>
            <numerusform>عنوانًا واحدًا</numerusform>
            <numerusform>عنوانين</numerusform>
            <numerusform>%n عناوين</numerusform>
            <numerusform>%n عنوانًا</numerusform>
            <numerusform>%n عنوان</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n description(s)</source>
        <translation>
            <numerusform>لا أوصاف</numerusform>
            <numerusform>وصفًا واحدًا</numerusform>
            <numerusform>وصفين</numerusform>
            <numerusform>%n أوصاف</numerusform>
            <numerusform>%n وصفًا</numerusform>
            <numerusform>%n وصف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n creator(s)</source>
        <translation>
            <numerusform>لا منشئين</numerusform>
            <numerusform>منشئ واحد</numerusform>
            <numerusform>منشئان</numerusform>
            <numerusform>%n منشئين</numerusform>
            <numerusform>%n منشئًا</numerusform>
            <numerusform>%n منشئ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s)</source>
        <translation>
            <numerusform>لا أماكن</numerusform>
            <numerusform>مكان واحد</numerusform>
            <numerusform>مكانان</numerusform>
            <numerusform>%n أماكن</numerusform>
            <numerusform>%n مكانًا</numerusform>
            <numerusform>%n مكان</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n headline(s)</source>
        <translation>
            <numerusform>لا عناوين رئيسية</numerusform>
            <numerusform>عنوانًا رئيسيًا واحدًا</numerusform>
            <numerusform>عنوانين رئيسيين</numerusform>
            <numerusform>%n عناوين رئيسية</numerusform>
            <numerusform>%n عنوانًا رئيسيًا</numerusform>
            <numerusform>%n عنوان رئيسي</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>لا أحداث</numerusform>
            <numerusform>حدثًا واحدًا</numerusform>
            <numerusform>حدثين</numerusform>
            <numerusform>%n أحداث</numerusform>
            <numerusform>%n حدثًا</numerusform>
            <numerusform>%n حدث</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n</source>
        <extracomment>%1 is a text in quotation marks that would go, %n the number of photos that hold it: &quot;“Old one” in 3&quot;</extracomment>
        <translation>
            <numerusform>%1 في %n</numerusform>
            <numerusform>%1 في صورة واحدة</numerusform>
            <numerusform>%1 في صورتين</numerusform>
            <numerusform>%1 في %n صور</numerusform>
            <numerusform>%1 في %n صورة</numerusform>
            <numerusform>%1 في %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>fills the empty field</source>
        <translation>يملأ الحقل الفارغ</translation>
    </message>
    <message>
        <source>would fill the empty field</source>
        <translation>سيملأ الحقل الفارغ</translation>
    </message>
    <message numerus="yes">
        <source>fills %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>لا يملأ شيئًا</numerusform>
            <numerusform>يملأ واحدة</numerusform>
            <numerusform>يملأ اثنتين</numerusform>
            <numerusform>يملأ %n</numerusform>
            <numerusform>يملأ %n</numerusform>
            <numerusform>يملأ %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would fill %n</source>
        <extracomment>%n is the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>لن يملأ شيئًا</numerusform>
            <numerusform>سيملأ واحدة</numerusform>
            <numerusform>سيملأ اثنتين</numerusform>
            <numerusform>سيملأ %n</numerusform>
            <numerusform>سيملأ %n</numerusform>
            <numerusform>سيملأ %n</numerusform>
        </translation>
    </message>
    <message>
        <source>adds to “%1”</source>
        <extracomment>%1 is what a list holds: items are added</extracomment>
        <translation>يضيف إلى «%1»</translation>
    </message>
    <message>
        <source>would add to “%1”</source>
        <translation>سيضيف إلى «%1»</translation>
    </message>
    <message numerus="yes">
        <source>adds to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>لا يضيف إلى %1</numerusform>
            <numerusform>يضيف إلى %1 في صورة واحدة</numerusform>
            <numerusform>يضيف إلى %1 في صورتين</numerusform>
            <numerusform>يضيف إلى %1 في %n صور</numerusform>
            <numerusform>يضيف إلى %1 في %n صورة</numerusform>
            <numerusform>يضيف إلى %1 في %n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would add to the %1 of %n</source>
        <extracomment>%1 is a field that holds a list (&quot;keywords&quot;), %n a number of photos</extracomment>
        <translation>
            <numerusform>لن يضيف إلى %1</numerusform>
            <numerusform>سيضيف إلى %1 في صورة واحدة</numerusform>
            <numerusform>سيضيف إلى %1 في صورتين</numerusform>
            <numerusform>سيضيف إلى %1 في %n صور</numerusform>
            <numerusform>سيضيف إلى %1 في %n صورة</numerusform>
            <numerusform>سيضيف إلى %1 في %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>replaces %1</source>
        <extracomment>%1 is what would go: &quot;4 titles&quot;, or a text in quotation marks</extracomment>
        <translation>يستبدل %1</translation>
    </message>
    <message>
        <source>would replace %1</source>
        <translation>سيستبدل %1</translation>
    </message>
    <message numerus="yes">
        <source>replaces %1, fills %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n the number of photos that have nothing in the field</extracomment>
        <translation>
            <numerusform>يستبدل %1</numerusform>
            <numerusform>يستبدل %1، ويملأ واحدة</numerusform>
            <numerusform>يستبدل %1، ويملأ اثنتين</numerusform>
            <numerusform>يستبدل %1، ويملأ %n</numerusform>
            <numerusform>يستبدل %1، ويملأ %n</numerusform>
            <numerusform>يستبدل %1، ويملأ %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>would replace %1, fill %n</source>
        <extracomment>%1 is what would go (&quot;4 titles&quot;), %n a number of photos that have nothing there</extracomment>
        <translation>
            <numerusform>سيستبدل %1</numerusform>
            <numerusform>سيستبدل %1، ويملأ واحدة</numerusform>
            <numerusform>سيستبدل %1، ويملأ اثنتين</numerusform>
            <numerusform>سيستبدل %1، ويملأ %n</numerusform>
            <numerusform>سيستبدل %1، ويملأ %n</numerusform>
            <numerusform>سيستبدل %1، ويملأ %n</numerusform>
        </translation>
    </message>
    <message>
        <source>the same already</source>
        <extracomment>%n is the number of photos that hold just the text
----------
Why nothing can be copied.</extracomment>
        <translation>القيمة نفسها موجودة</translation>
    </message>
    <message numerus="yes">
        <source>same in %n</source>
        <translation>
            <numerusform>لا شيء بالقيمة نفسها</numerusform>
            <numerusform>القيمة نفسها في واحدة</numerusform>
            <numerusform>القيمة نفسها في اثنتين</numerusform>
            <numerusform>القيمة نفسها في %n</numerusform>
            <numerusform>القيمة نفسها في %n</numerusform>
            <numerusform>القيمة نفسها في %n</numerusform>
        </translation>
    </message>
    <message>
        <source>not looked at yet</source>
        <extracomment>%n is a number of photos</extracomment>
        <translation>لم تُفحص بعد</translation>
    </message>
    <message numerus="yes">
        <source>%n not looked at yet</source>
        <translation>
            <numerusform>فُحصت كلها</numerusform>
            <numerusform>واحدة لم تُفحص بعد</numerusform>
            <numerusform>اثنتان لم تُفحصا بعد</numerusform>
            <numerusform>%n لم تُفحص بعد</numerusform>
            <numerusform>%n لم تُفحص بعد</numerusform>
            <numerusform>%n لم تُفحص بعد</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Of how many things: %1 and %2 are numbers.</extracomment>
        <translation>%1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>%n star(s)</source>
        <translation>
            <numerusform>بلا نجوم</numerusform>
            <numerusform>نجمة واحدة</numerusform>
            <numerusform>نجمتان</numerusform>
            <numerusform>%n نجوم</numerusform>
            <numerusform>%n نجمة</numerusform>
            <numerusform>%n نجمة</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to the list</source>
        <translation>العودة إلى القائمة</translation>
    </message>
    <message>
        <source>Escape</source>
        <extracomment>The key.</extracomment>
        <translation>Escape</translation>
    </message>
    <message>
        <source>This is the last photo</source>
        <translation>هذه آخر صورة</translation>
    </message>
    <message>
        <source>This is the first photo</source>
        <translation>هذه أول صورة</translation>
    </message>
    <message>
        <source>No stars</source>
        <translation>بلا نجوم</translation>
    </message>
    <message>
        <source>thumbnail only</source>
        <extracomment>Of the photo there is just this small picture.</extracomment>
        <translation>صورة مصغّرة فقط</translation>
    </message>
    <message>
        <source>damaged: not all of it can be shown</source>
        <translation>تالفة: لا يمكن عرضها كاملة</translation>
    </message>
    <message>
        <source>preview %1</source>
        <extracomment>The preview within a raw file is shown. %1: its size, as “1616 × 1080”.</extracomment>
        <translation>معاينة ⁨%1⁩</translation>
    </message>
    <message>
        <source>preview %1 of %2</source>
        <extracomment>%1: size of what is shown, as “1616 × 1080”. %2: size of the photo.</extracomment>
        <translation>معاينة ⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message>
        <source>reduced to %1 of %2</source>
        <translation>مصغّرة إلى ⁨%1⁩ من ⁨%2⁩</translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) unsaved</source>
        <translation>
            <numerusform>لا تعديلات غير محفوظة</numerusform>
            <numerusform>تعديل واحد غير محفوظ</numerusform>
            <numerusform>تعديلان غير محفوظين</numerusform>
            <numerusform>%n تعديلات غير محفوظة</numerusform>
            <numerusform>%n تعديلًا غير محفوظ</numerusform>
            <numerusform>%n تعديل غير محفوظ</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
    <message>
        <source>This photo is damaged: there is nothing in it to show.</source>
        <translation>هذه الصورة تالفة: ليس فيها ما يمكن عرضه.</translation>
    </message>
    <message>
        <source>This photo has more pixels than can be shown.</source>
        <translation>عدد البكسلات في هذه الصورة أكبر من أن يُعرض.</translation>
    </message>
    <message>
        <source>There is no picture in this file that can be shown.</source>
        <translation>لا توجد في هذا الملف صورة يمكن عرضها.</translation>
    </message>
    <message>
        <source>0 to 5 stars; click the current rating to clear it</source>
        <translation>من 0 إلى 5 نجوم؛ النقر على التقييم الحالي يمسحه</translation>
    </message>
    <message>
        <source>Column width</source>
        <extracomment>The line between two columns of the window, which one drags.</extracomment>
        <translation>عرض العمود</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>اقتراحات</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <extracomment>Button behind keywords: shows those that have no room.</extracomment>
        <translation>
            <numerusform>لا مزيد</numerusform>
            <numerusform>واحدة أخرى</numerusform>
            <numerusform>اثنتان أخريان</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>edited</source>
        <extracomment>Spoken of a field or a section of them.</extracomment>
        <translation>معدَّل</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Actions for this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>إجراءات: %1</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <extracomment>%1: a keyword.</extracomment>
        <translation>إبقاء %1</translation>
    </message>
    <message>
        <source>Take away %1</source>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>Where a keyword stands among others. %1: those above it, as “Places, Switzerland”.</extracomment>
        <translation>ضمن %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>%1: what is taken out of a list or form, as a keyword or a field.</extracomment>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>New keyword</source>
        <translation>كلمة مفتاحية جديدة</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message>
        <source>Not among the known codes</source>
        <translation>ليس من الرموز المعروفة</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no value</comment>
        <translation>بلا قيمة</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <extracomment>%1: what was typed.</extracomment>
        <translation>استخدام «%1»</translation>
    </message>
    <message>
        <source>As it is typed, not one of the codes</source>
        <translation>كما كُتب، وليس من الرموز</translation>
    </message>
    <message>
        <source>chosen</source>
        <extracomment>Spoken of a row in a list.</extracomment>
        <translation>مختار</translation>
    </message>
    <message>
        <source>Time-zone offset</source>
        <translation>فرق التوقيت</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is the name of a field, %2 what is said of it.
----------
%1 is what a key does, %2 the key.
----------
%1: name of a field, %2: what it holds.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n characters</source>
        <extracomment>Of a text. %1: how many characters it has, %n: how many it should have at most.</extracomment>
        <translation>
            <numerusform>%1 من %n حرف</numerusform>
            <numerusform>%1 من حرف واحد</numerusform>
            <numerusform>%1 من حرفين</numerusform>
            <numerusform>%1 من %n أحرف</numerusform>
            <numerusform>%1 من %n حرفًا</numerusform>
            <numerusform>%1 من %n حرف</numerusform>
        </translation>
    </message>
    <message>
        <source>Default and Form…</source>
        <extracomment>Of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>البديل والصيغة…</translation>
    </message>
    <message>
        <source>ALSO IN THESE PHOTOS</source>
        <extracomment>Heads fields that a chosen set of fields leaves out, in capitals.</extracomment>
        <translation>أيضًا في هذه الصور</translation>
    </message>
    <message>
        <source>ALSO IN THIS PHOTO</source>
        <translation>أيضًا في هذه الصورة</translation>
    </message>
    <message numerus="yes">
        <source>%n field(s)</source>
        <translation>
            <numerusform>لا حقول</numerusform>
            <numerusform>حقل واحد</numerusform>
            <numerusform>حقلان</numerusform>
            <numerusform>%n حقول</numerusform>
            <numerusform>%n حقلًا</numerusform>
            <numerusform>%n حقل</numerusform>
        </translation>
    </message>
    <message>
        <source>No camera details</source>
        <translation>لا توجد تفاصيل للكاميرا</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>A note as a sentence: %1 is its text, and what follows ends it.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Write %1 to all selected files</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>كتابة «%1» في كل الملفات المحددة</translation>
    </message>
    <message>
        <source>Remove this field</source>
        <translation>إزالة هذا الحقل</translation>
    </message>
    <message>
        <source>Bring %1 back</source>
        <extracomment>%1: a language.</extracomment>
        <translation>استعادة %1</translation>
    </message>
    <message>
        <source>Reading metadata</source>
        <translation>جارٍ قراءة البيانات الوصفية</translation>
    </message>
    <message>
        <source>Shown</source>
        <extracomment>Stands at the one of several values of a field that the form shows.</extracomment>
        <translation>معروضة</translation>
    </message>
    <message>
        <source>(empty)</source>
        <extracomment>A place within a photo that holds a field, and nothing in it.</extracomment>
        <translation>(فارغ)</translation>
    </message>
    <message>
        <source>The photo’s own file: read here, and never written</source>
        <translation>بيانات ملف الصورة نفسه: تُقرأ هنا ولا تُكتب أبدًا</translation>
    </message>
    <message>
        <source>Belongs to another standard: read here, and never written</source>
        <translation>تابع لمعيار آخر: يُقرأ هنا ولا يُكتب أبدًا</translation>
    </message>
    <message>
        <source>shown</source>
        <extracomment>Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.</extracomment>
        <translation>معروضة</translation>
    </message>
    <message>
        <source>Return uses this one</source>
        <translation>مفتاح Return لاستخدام هذا</translation>
    </message>
    <message>
        <source>Use this one</source>
        <translation>استخدام هذا</translation>
    </message>
    <message>
        <source>Make them agree</source>
        <extracomment>Button: writes what is shown to all places within a photo that hold a field.
----------
Button: writes what is shown to all places within photos that hold a field.</extracomment>
        <translation>توحيد القيم</translation>
    </message>
    <message>
        <source>Places of %1</source>
        <extracomment>Places within a photo that hold a field. %1: its name.</extracomment>
        <translation>مواضع %1</translation>
    </message>
    <message>
        <source>Writes what is shown to all places in the sidecar, of every field whose places differ there</source>
        <translation>يكتب القيمة المعروضة في كل المواضع داخل الملف المرافق، لكل حقل تختلف مواضعه فيه</translation>
    </message>
    <message>
        <source>Writes what is shown to all places, of every field whose places differ</source>
        <translation>يكتب القيمة المعروضة في كل المواضع، لكل حقل تختلف مواضعه</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة التسمية…</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>إضافة حقل</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Bring back</source>
        <extracomment>Button: shows edits again that were left unsaved.</extracomment>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>جارٍ إعادة التسمية…</translation>
    </message>
    <message>
        <source>CUSTOM</source>
        <extracomment>Heads the fields that users have named themselves, in capitals.</extracomment>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <extracomment>Heads what the camera noted, in capitals; and beside it that nobody can change that.</extracomment>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>للقراءة فقط</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>Add a description…</source>
        <translation>إضافة وصف…</translation>
    </message>
    <message>
        <source>Add a place…</source>
        <translation>إضافة مكان…</translation>
    </message>
    <message>
        <source>Add a creator…</source>
        <translation>إضافة منشئ…</translation>
    </message>
    <message>
        <source>Add a copyright notice…</source>
        <translation>إضافة إشعار حقوق النشر…</translation>
    </message>
    <message>
        <source>Add a headline…</source>
        <translation>إضافة عنوان رئيسي…</translation>
    </message>
    <message>
        <source>Add an event…</source>
        <translation>إضافة حدث…</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to all %n photos</source>
        <translation>
            <numerusform>لن يُكتب في أي صورة</numerusform>
            <numerusform>سيُكتب في الصورة</numerusform>
            <numerusform>سيُكتب في الصورتين كلتيهما</numerusform>
            <numerusform>سيُكتب في كل الصور (%n)</numerusform>
            <numerusform>سيُكتب في كل الصور (%n)</numerusform>
            <numerusform>سيُكتب في كل الصور (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>appends — existing values kept</source>
        <extracomment>What a save does to a list of each photo.</extracomment>
        <translation>إلحاق — تبقى القيم الموجودة</translation>
    </message>
    <message numerus="yes">
        <source>%n taken away</source>
        <extracomment>%n: how many items of a list, as keywords.</extracomment>
        <translation>
            <numerusform>لا يُزال شيء</numerusform>
            <numerusform>تُزال واحدة</numerusform>
            <numerusform>تُزال اثنتان</numerusform>
            <numerusform>تُزال %n</numerusform>
            <numerusform>تُزال %n</numerusform>
            <numerusform>تُزال %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Add ID + ↵</source>
        <extracomment>↵ is the Return key, which adds what was typed to a list.</extracomment>
        <translation>إضافة معرّف + ↵</translation>
    </message>
    <message>
        <source>Add age + ↵</source>
        <translation>إضافة عمر + ↵</translation>
    </message>
    <message>
        <source>Add organisation + ↵</source>
        <translation>إضافة مؤسسة + ↵</translation>
    </message>
    <message>
        <source>Add code + ↵</source>
        <translation>إضافة رمز + ↵</translation>
    </message>
    <message>
        <source>Add keyword + ↵</source>
        <translation>إضافة كلمة + ↵</translation>
    </message>
    <message>
        <source>Add to all + ↵</source>
        <translation>إضافة إلى الكل + ↵</translation>
    </message>
    <message>
        <source>Multiple values — leave unchanged</source>
        <translation>قيم متعددة — تُترك دون تغيير</translation>
    </message>
    <message numerus="yes">
        <source>Will be written to %1 of %n photos</source>
        <extracomment>%1 and %n: numbers of photos.</extracomment>
        <translation>
            <numerusform>لن يُكتب في أي صورة (%1)</numerusform>
            <numerusform>سيُكتب في %1 من صورة واحدة</numerusform>
            <numerusform>سيُكتب في %1 من صورتين</numerusform>
            <numerusform>سيُكتب في %1 من %n صور</numerusform>
            <numerusform>سيُكتب في %1 من %n صورة</numerusform>
            <numerusform>سيُكتب في %1 من %n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 more…</source>
        <extracomment>%1: how many photos.
----------
%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
            <numerusform>جارٍ قراءة الصور المتبقية: %1…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not read yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
            <numerusform>لم تُقرأ بعد: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>in all %1</source>
        <extracomment>A field holds something in all photos, or in some of them. The numbers are of photos.
----------
Said behind a keyword. The numbers are of photos.</extracomment>
        <translation>في الكل (%1)</translation>
    </message>
    <message>
        <source>in %1 or more of %2</source>
        <translation>في %1 على الأقل من %2</translation>
    </message>
    <message>
        <source>in %1 of %2</source>
        <translation>في %1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>Will be taken away from all %n photos</source>
        <translation>
            <numerusform>لن يُزال من أي صورة</numerusform>
            <numerusform>سيُزال من الصورة</numerusform>
            <numerusform>سيُزال من الصورتين كلتيهما</numerusform>
            <numerusform>سيُزال من كل الصور (%n)</numerusform>
            <numerusform>سيُزال من كل الصور (%n)</numerusform>
            <numerusform>سيُزال من كل الصور (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Will be taken away</source>
        <translation>سيُزال</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (has|have) places that differ</source>
        <extracomment>%1: how many photos. Places: several within a photo that hold the same field.</extracomment>
        <translation>
            <numerusform>صور تختلف مواضعها: %1</numerusform>
            <numerusform>صورة تختلف مواضعها: %1</numerusform>
            <numerusform>صور تختلف مواضعها: %1</numerusform>
            <numerusform>%1 صور تختلف مواضعها</numerusform>
            <numerusform>%1 صورة تختلف مواضعها</numerusform>
            <numerusform>%1 صورة تختلف مواضعها</numerusform>
        </translation>
    </message>
    <message>
        <source>A field of this name cannot be changed here</source>
        <translation>لا يمكن هنا تغيير حقل بهذا الاسم</translation>
    </message>
    <message>
        <source>No unsaved changes</source>
        <translation>لا توجد تغييرات غير محفوظة</translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved change(s)</source>
        <translation>
            <numerusform>لا تغييرات غير محفوظة</numerusform>
            <numerusform>تغيير واحد غير محفوظ</numerusform>
            <numerusform>تغييران غير محفوظين</numerusform>
            <numerusform>%n تغييرات غير محفوظة</numerusform>
            <numerusform>%n تغييرًا غير محفوظ</numerusform>
            <numerusform>%n تغيير غير محفوظ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) → %1</source>
        <extracomment>Of so many fields the values will go into files. %1: “12 files”.</extracomment>
        <translation>
            <numerusform>لا حقول ← %1</numerusform>
            <numerusform>حقل واحد ← %1</numerusform>
            <numerusform>حقلان ← %1</numerusform>
            <numerusform>%n حقول ← %1</numerusform>
            <numerusform>%n حقلًا ← %1</numerusform>
            <numerusform>%n حقل ← %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>لا ملفات</numerusform>
            <numerusform>ملف واحد</numerusform>
            <numerusform>ملفان</numerusform>
            <numerusform>%n ملفات</numerusform>
            <numerusform>%n ملفًا</numerusform>
            <numerusform>%n ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) of %1 left unsaved</source>
        <extracomment>Somebody went on without saving them. %1: “5 photos”.</extracomment>
        <translation>
            <numerusform>لا تعديلات متروكة دون حفظ (%1)</numerusform>
            <numerusform>تعديل واحد تُرك دون حفظ (%1)</numerusform>
            <numerusform>تعديلان تُركا دون حفظ (%1)</numerusform>
            <numerusform>%n تعديلات تُركت دون حفظ (%1)</numerusform>
            <numerusform>%n تعديلًا تُرك دون حفظ (%1)</numerusform>
            <numerusform>%n تعديل تُرك دون حفظ (%1)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit(s) left unsaved</source>
        <extracomment>Somebody went on without saving them.</extracomment>
        <translation>
            <numerusform>لا تعديلات متروكة دون حفظ</numerusform>
            <numerusform>تعديل واحد تُرك دون حفظ</numerusform>
            <numerusform>تعديلان تُركا دون حفظ</numerusform>
            <numerusform>%n تعديلات تُركت دون حفظ</numerusform>
            <numerusform>%n تعديلًا تُرك دون حفظ</numerusform>
            <numerusform>%n تعديل تُرك دون حفظ</numerusform>
        </translation>
    </message>
    <message>
        <source>Add field to all</source>
        <translation>إضافة حقل إلى الكل</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>جارٍ الحفظ…</translation>
    </message>
    <message>
        <source>Apply to %1</source>
        <extracomment>Button: saves what was edited into photos. %1: how many these are.</extracomment>
        <translation>تطبيق على %1</translation>
    </message>
    <message>
        <source>No photo selected</source>
        <translation>لم تُحدَّد أي صورة</translation>
    </message>
    <message>
        <source>Add a language to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>إضافة لغة إلى %1</translation>
    </message>
    <message>
        <source>Language or code</source>
        <translation>لغة أو رمز لغة</translation>
    </message>
    <message>
        <source>No such language. A code such as “de-AT” works too.</source>
        <translation>لا توجد لغة كهذه. يمكن أيضًا كتابة رمز مثل «de-AT».</translation>
    </message>
    <message>
        <source>Now</source>
        <extracomment>Button: puts the time of this moment into the field.</extracomment>
        <translation>الآن</translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ), another standard’s is shown</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>المواضع متفقة (%1)، والمعروض من معيار آخر</numerusform>
            <numerusform>موضع واحد من %1 مختلف، والمعروض من معيار آخر</numerusform>
            <numerusform>موضعان من %1 مختلفان، والمعروض من معيار آخر</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة، والمعروض من معيار آخر</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة، والمعروض من معيار آخر</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة، والمعروض من معيار آخر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 places (differs|differ)</source>
        <extracomment>Places within a photo that hold the same field. %1: how many there are, %n: in how many another text stands.</extracomment>
        <translation>
            <numerusform>المواضع متفقة (%1)</numerusform>
            <numerusform>موضع واحد من %1 مختلف</numerusform>
            <numerusform>موضعان من %1 مختلفان</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة</numerusform>
            <numerusform>%n من المواضع الـ%1 مختلفة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (will be taken away)</source>
        <extracomment>%1: code of a language, as “de”.</extracomment>
        <translation>%1 (سيُزال)</translation>
    </message>
    <message>
        <source>%1 in other languages: %2</source>
        <extracomment>%1: name of a field, %2: codes of languages, as “de, fr”.</extracomment>
        <translation>%1 بلغات أخرى: %2</translation>
    </message>
    <message>
        <source>Other languages: %1 (%2)</source>
        <extracomment>%1: codes of languages, as “de, fr”. %2: keys, as “Alt+Right”.</extracomment>
        <translation>لغات أخرى: %1 (%2)</translation>
    </message>
    <message>
        <source>Add language</source>
        <translation>إضافة لغة</translation>
    </message>
    <message>
        <source>Hide Languages</source>
        <translation>إخفاء اللغات</translation>
    </message>
    <message>
        <source>Show Languages</source>
        <translation>إظهار اللغات</translation>
    </message>
    <message>
        <source>Add Language…</source>
        <translation>إضافة لغة…</translation>
    </message>
    <message>
        <source>Required by %1</source>
        <extracomment>Stands in an empty field. %1: name of a set of fields, as “Press”.</extracomment>
        <translation>مطلوب في «%1»</translation>
    </message>
    <message>
        <source>%1 of %2 filled</source>
        <extracomment>%1 and %2: numbers of fields.</extracomment>
        <translation>المعبّأ %1 من %2</translation>
    </message>
    <message>
        <source>next gap F8</source>
        <extracomment>A gap: a field that a set of fields wants and that is empty. F8 is the key.</extracomment>
        <translation>الحقل الفارغ التالي F8</translation>
    </message>
    <message>
        <source>Tick a field to write it to all selected files.</source>
        <translation>وضع علامة على حقل يكتبه في كل الملفات المحددة.</translation>
    </message>
    <message numerus="yes">
        <source>Editing %n photos</source>
        <translation>
            <numerusform>تحرير الصور</numerusform>
            <numerusform>تحرير صورة واحدة</numerusform>
            <numerusform>تحرير صورتين</numerusform>
            <numerusform>تحرير %n صور</numerusform>
            <numerusform>تحرير %n صورة</numerusform>
            <numerusform>تحرير %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Field set</source>
        <translation>مجموعة الحقول</translation>
    </message>
    <message>
        <source>Copy from Location</source>
        <extracomment>Location: the fields of the form that say where the photo was taken.</extracomment>
        <translation>نسخ من الموقع</translation>
    </message>
    <message>
        <source>Copy to Location</source>
        <translation>نسخ إلى الموقع</translation>
    </message>
    <message>
        <source>Search Place…</source>
        <translation>بحث عن مكان…</translation>
    </message>
    <message>
        <source>nothing there</source>
        <extracomment>Why nothing can be copied: those fields are empty.</extracomment>
        <translation>لا شيء هناك</translation>
    </message>
    <message>
        <source>nothing here</source>
        <extracomment>Why nothing can be copied: this card is empty.</extracomment>
        <translation>لا شيء هنا</translation>
    </message>
    <message>
        <source>Use Remembered Contact…</source>
        <translation>استخدام جهة اتصال محفوظة…</translation>
    </message>
    <message>
        <source>Use Remembered Licensor…</source>
        <translation>استخدام جهة ترخيص محفوظة…</translation>
    </message>
    <message>
        <source>Use a remembered contact…</source>
        <translation>استخدام جهة اتصال محفوظة…</translation>
    </message>
    <message>
        <source>Use a remembered licensor…</source>
        <translation>استخدام جهة ترخيص محفوظة…</translation>
    </message>
    <message>
        <source>Forget Remembered Contacts</source>
        <translation>نسيان جهات الاتصال المحفوظة</translation>
    </message>
    <message>
        <source>Forget Remembered Licensors</source>
        <translation>نسيان جهات الترخيص المحفوظة</translation>
    </message>
    <message>
        <source>Remembered contacts</source>
        <translation>جهات الاتصال المحفوظة</translation>
    </message>
    <message>
        <source>Remembered licensors</source>
        <translation>جهات الترخيص المحفوظة</translation>
    </message>
    <message numerus="yes">
        <source>%n contact(s)</source>
        <translation>
            <numerusform>لا جهات اتصال</numerusform>
            <numerusform>جهة اتصال واحدة</numerusform>
            <numerusform>جهتا اتصال</numerusform>
            <numerusform>%n جهات اتصال</numerusform>
            <numerusform>%n جهة اتصال</numerusform>
            <numerusform>%n جهة اتصال</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n artwork(s)</source>
        <translation>
            <numerusform>لا أعمال فنية</numerusform>
            <numerusform>عمل فني واحد</numerusform>
            <numerusform>عملان فنيان</numerusform>
            <numerusform>%n أعمال فنية</numerusform>
            <numerusform>%n عملًا فنيًا</numerusform>
            <numerusform>%n عمل فني</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n term(s)</source>
        <translation>
            <numerusform>لا مصطلحات</numerusform>
            <numerusform>مصطلح واحد</numerusform>
            <numerusform>مصطلحان</numerusform>
            <numerusform>%n مصطلحات</numerusform>
            <numerusform>%n مصطلحًا</numerusform>
            <numerusform>%n مصطلح</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expression(s)</source>
        <translation>
            <numerusform>لا تعبيرات حقوق</numerusform>
            <numerusform>تعبير حقوق واحد</numerusform>
            <numerusform>تعبيرا حقوق</numerusform>
            <numerusform>%n تعبيرات حقوق</numerusform>
            <numerusform>%n تعبير حقوق</numerusform>
            <numerusform>%n تعبير حقوق</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (entry|entries)</source>
        <translation>
            <numerusform>لا قيود</numerusform>
            <numerusform>قيد واحد</numerusform>
            <numerusform>قيدان</numerusform>
            <numerusform>%n قيود</numerusform>
            <numerusform>%n قيدًا</numerusform>
            <numerusform>%n قيد</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n contributor(s)</source>
        <translation>
            <numerusform>لا مساهمين</numerusform>
            <numerusform>مساهم واحد</numerusform>
            <numerusform>مساهمان</numerusform>
            <numerusform>%n مساهمين</numerusform>
            <numerusform>%n مساهمًا</numerusform>
            <numerusform>%n مساهم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>لا مناطق</numerusform>
            <numerusform>منطقة واحدة</numerusform>
            <numerusform>منطقتان</numerusform>
            <numerusform>%n مناطق</numerusform>
            <numerusform>%n منطقة</numerusform>
            <numerusform>%n منطقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outline(s)</source>
        <translation>
            <numerusform>لا إطارات</numerusform>
            <numerusform>إطار واحد</numerusform>
            <numerusform>إطاران</numerusform>
            <numerusform>%n إطارات</numerusform>
            <numerusform>%n إطارًا</numerusform>
            <numerusform>%n إطار</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n point(s)</source>
        <translation>
            <numerusform>لا نقاط</numerusform>
            <numerusform>نقطة واحدة</numerusform>
            <numerusform>نقطتان</numerusform>
            <numerusform>%n نقاط</numerusform>
            <numerusform>%n نقطة</numerusform>
            <numerusform>%n نقطة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>لا روابط</numerusform>
            <numerusform>رابط واحد</numerusform>
            <numerusform>رابطان</numerusform>
            <numerusform>%n روابط</numerusform>
            <numerusform>%n رابطًا</numerusform>
            <numerusform>%n رابط</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n (person|people)</source>
        <translation>
            <numerusform>لا أشخاص</numerusform>
            <numerusform>شخص واحد</numerusform>
            <numerusform>شخصان</numerusform>
            <numerusform>%n أشخاص</numerusform>
            <numerusform>%n شخصًا</numerusform>
            <numerusform>%n شخص</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>لا منتجات</numerusform>
            <numerusform>منتج واحد</numerusform>
            <numerusform>منتجان</numerusform>
            <numerusform>%n منتجات</numerusform>
            <numerusform>%n منتجًا</numerusform>
            <numerusform>%n منتج</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licensor(s)</source>
        <translation>
            <numerusform>لا جهات ترخيص</numerusform>
            <numerusform>جهة ترخيص واحدة</numerusform>
            <numerusform>جهتا ترخيص</numerusform>
            <numerusform>%n جهات ترخيص</numerusform>
            <numerusform>%n جهة ترخيص</numerusform>
            <numerusform>%n جهة ترخيص</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n owner(s)</source>
        <translation>
            <numerusform>لا مالكين</numerusform>
            <numerusform>مالك واحد</numerusform>
            <numerusform>مالكان</numerusform>
            <numerusform>%n مالكين</numerusform>
            <numerusform>%n مالكًا</numerusform>
            <numerusform>%n مالك</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>لا مورّدين</numerusform>
            <numerusform>مورّد واحد</numerusform>
            <numerusform>مورّدان</numerusform>
            <numerusform>%n مورّدين</numerusform>
            <numerusform>%n مورّدًا</numerusform>
            <numerusform>%n مورّد</numerusform>
        </translation>
    </message>
    <message>
        <source>Add contact</source>
        <translation>إضافة جهة اتصال</translation>
    </message>
    <message>
        <source>Add artwork</source>
        <translation>إضافة عمل فني</translation>
    </message>
    <message>
        <source>Add term</source>
        <translation>إضافة مصطلح</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>إضافة تعبير حقوق</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>إضافة قيد في سجل</translation>
    </message>
    <message>
        <source>Add contributor</source>
        <translation>إضافة مساهم</translation>
    </message>
    <message>
        <source>Add region</source>
        <translation>إضافة منطقة</translation>
    </message>
    <message>
        <source>Add outline</source>
        <translation>إضافة إطار</translation>
    </message>
    <message>
        <source>Add point</source>
        <translation>إضافة نقطة</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>إضافة رابط</translation>
    </message>
    <message>
        <source>Add place</source>
        <translation>إضافة مكان</translation>
    </message>
    <message>
        <source>Add person</source>
        <translation>إضافة شخص</translation>
    </message>
    <message>
        <source>Add product</source>
        <translation>إضافة منتج</translation>
    </message>
    <message>
        <source>Add licensor</source>
        <translation>إضافة جهة ترخيص</translation>
    </message>
    <message>
        <source>Add owner</source>
        <translation>إضافة مالك</translation>
    </message>
    <message>
        <source>Add creator</source>
        <translation>إضافة منشئ</translation>
    </message>
    <message>
        <source>Add supplier</source>
        <translation>إضافة مورّد</translation>
    </message>
    <message>
        <source>New contact</source>
        <translation>جهة اتصال جديدة</translation>
    </message>
    <message>
        <source>New artwork</source>
        <translation>عمل فني جديد</translation>
    </message>
    <message>
        <source>New term</source>
        <translation>مصطلح جديد</translation>
    </message>
    <message>
        <source>New expression</source>
        <translation>تعبير حقوق جديد</translation>
    </message>
    <message>
        <source>New entry</source>
        <translation>قيد جديد في سجل</translation>
    </message>
    <message>
        <source>New contributor</source>
        <translation>مساهم جديد</translation>
    </message>
    <message>
        <source>New region</source>
        <translation>منطقة جديدة</translation>
    </message>
    <message>
        <source>New outline</source>
        <translation>إطار جديد</translation>
    </message>
    <message>
        <source>New point</source>
        <translation>نقطة جديدة</translation>
    </message>
    <message>
        <source>New link</source>
        <translation>رابط جديد</translation>
    </message>
    <message>
        <source>New place</source>
        <translation>مكان جديد</translation>
    </message>
    <message>
        <source>New person</source>
        <translation>شخص جديد</translation>
    </message>
    <message>
        <source>New product</source>
        <translation>منتج جديد</translation>
    </message>
    <message>
        <source>New licensor</source>
        <translation>جهة ترخيص جديدة</translation>
    </message>
    <message>
        <source>New owner</source>
        <translation>مالك جديد</translation>
    </message>
    <message>
        <source>New creator</source>
        <translation>منشئ جديد</translation>
    </message>
    <message>
        <source>New supplier</source>
        <translation>مورّد جديد</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Add code</source>
        <extracomment>Button: adds a code of a vocabulary to a list.</extracomment>
        <translation>إضافة رمز</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>Whether a height is below sea level.</extracomment>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Search place</source>
        <translation>بحث عن مكان</translation>
    </message>
    <message>
        <source>Town, landmark or airport</source>
        <translation>مدينة أو معلم أو مطار</translation>
    </message>
    <message>
        <source>Couldn&apos;t look that up</source>
        <translation>تعذّر البحث عن ذلك</translation>
    </message>
    <message>
        <source>Forget %1</source>
        <extracomment>%1: name of a contact or licensor.</extracomment>
        <translation>نسيان %1</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: shows further fields</comment>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>More fields of this %1</source>
        <extracomment>%1: what the card holds, as “place”, “person” or “contact”.</extracomment>
        <translation>المزيد من الحقول: %1</translation>
    </message>
    <message>
        <source>Also holds %1 of another program, which stays. Changing this %2 may be refused for that.</source>
        <extracomment>%1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…</extracomment>
        <translation>يحوي أيضًا %1 من برنامج آخر، ويبقى كما هو. وقد يُرفض لذلك تغيير هذا العنصر (%2).</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>verb: empties the fields</comment>
        <translation>مسح</translation>
    </message>
    <message>
        <source>%1, %2 %3 of %4</source>
        <extracomment>Spoken of a card. %1: name of the field, %2: “place”, “person”…, %3: which one it is, %4: how many there are.</extracomment>
        <translation>%1، %2 %3 من %4</translation>
    </message>
    <message>
        <source>stored as a code</source>
        <extracomment>Under the terms of a vocabulary: files hold a term&apos;s code, not its name.</extracomment>
        <translation>يُحفظ رمزًا</translation>
    </message>
    <message>
        <source>In these %1</source>
        <extracomment>Stands before keywords. %1: of how many photos.</extracomment>
        <translation>في هذه الصور (%1)</translation>
    </message>
    <message>
        <source>to be taken away</source>
        <extracomment>Said behind a keyword.</extracomment>
        <translation>ستُزال</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>The keywords that were used last.</extracomment>
        <translation>المستخدمة مؤخرًا</translation>
    </message>
    <message>
        <source>New Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>مجموعة جديدة…</translation>
    </message>
    <message>
        <source>Edit Set…</source>
        <extracomment>Set: of keywords.</extracomment>
        <translation>تحرير المجموعة…</translation>
    </message>
    <message>
        <source>Quick</source>
        <extracomment>Stands before keywords that a click adds.</extracomment>
        <translation>سريعة</translation>
    </message>
    <message>
        <source>Quick keywords</source>
        <translation>الكلمات المفتاحية السريعة</translation>
    </message>
    <message>
        <source>Add %1 to all, %2</source>
        <extracomment>Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.</extracomment>
        <translation>إضافة %1 إلى الكل، %2</translation>
    </message>
    <message>
        <source>Add %1 to all</source>
        <translation>إضافة %1 إلى الكل</translation>
    </message>
    <message>
        <source>Set of quick keywords: %1</source>
        <extracomment>%1: name of the set.</extracomment>
        <translation>مجموعة الكلمات المفتاحية السريعة: %1</translation>
    </message>
    <message>
        <source>Fill place from coordinates</source>
        <translation>تعبئة المكان من الإحداثيات</translation>
    </message>
    <message>
        <source>Place search is not installed</source>
        <translation>البحث عن الأماكن غير مثبَّت</translation>
    </message>
    <message>
        <source>The place service asks for a pause</source>
        <translation>خدمة الأماكن تطلب التمهّل</translation>
    </message>
    <message>
        <source>The place service sent too much</source>
        <translation>أرسلت خدمة الأماكن بيانات أكثر من اللازم</translation>
    </message>
    <message>
        <source>The place service did not answer in time</source>
        <translation>لم تُجب خدمة الأماكن في الوقت المحدد</translation>
    </message>
    <message>
        <source>The place service cannot be reached</source>
        <translation>يتعذّر الوصول إلى خدمة الأماكن</translation>
    </message>
    <message>
        <source>The place service answered something else</source>
        <translation>أجابت خدمة الأماكن بما لا يُفهم</translation>
    </message>
    <message>
        <source>The place service answered with status %1</source>
        <translation>أجابت خدمة الأماكن بالحالة %1</translation>
    </message>
    <message>
        <source>Map of %1</source>
        <extracomment>%1: a position, as “47.36667, 8.55000”.</extracomment>
        <translation>خريطة ⁨%1⁩</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>إضافة حقل</translation>
    </message>
    <message>
        <source>Search fields…</source>
        <translation>بحث في الحقول…</translation>
    </message>
    <message>
        <source>Search fields</source>
        <translation>بحث في الحقول</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>RECOMMENDED · WORKS EVERYWHERE</source>
        <translation>موصى به · يعمل في كل مكان</translation>
    </message>
    <message>
        <source>Already-set fields are hidden.</source>
        <translation>لا تظهر الحقول المعبّأة من قبل.</translation>
    </message>
    <message>
        <source>ADVANCED · CUSTOM FIELD</source>
        <translation>متقدم · حقل مخصص</translation>
    </message>
    <message>
        <source>may not appear in all apps</source>
        <translation>قد لا يظهر في كل التطبيقات</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>of a custom field</comment>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>of a custom field</comment>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>e.g. Project</source>
        <extracomment>An example of the name of a custom field: letters without accents, as it becomes the name of a tag.</extracomment>
        <translation>مثل Project</translation>
    </message>
    <message>
        <source>All recommended fields are already shown.</source>
        <translation>كل الحقول الموصى بها معروضة.</translation>
    </message>
    <message>
        <source>No matching fields.</source>
        <translation>لا توجد حقول مطابقة.</translation>
    </message>
    <message>
        <source>Will be stored as “%1”</source>
        <translation>سيُحفظ باسم «%1»</translation>
    </message>
    <message>
        <source>Add Metadata Field</source>
        <translation>إضافة حقل بيانات وصفية</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>الحقول</translation>
    </message>
    <message>
        <source>OTHER FIELDS</source>
        <translation>حقول أخرى</translation>
    </message>
    <message>
        <source>Copied today, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>نُسخت اليوم، %1</translation>
    </message>
    <message>
        <source>Copied yesterday, %1</source>
        <extracomment>%1 is a time of day.</extracomment>
        <translation>نُسخت أمس، %1</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <extracomment>The form of a day with its month in words: d is the day&apos;s number, MMMM the month&apos;s name, yyyy the year.</extracomment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Copied %1, %2</source>
        <extracomment>%1 is a day, %2 a time of day.</extracomment>
        <translation>نُسخت في %1، %2</translation>
    </message>
    <message>
        <source>Copied fields</source>
        <extracomment>%1 is the name of the file whose fields were copied.</extracomment>
        <translation>الحقول المنسوخة</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>من %1</translation>
    </message>
    <message>
        <source>All</source>
        <comment>button: ticks all fields</comment>
        <translation>الكل</translation>
    </message>
    <message>
        <source>None</source>
        <comment>button: ticks no field</comment>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Tick all fields</source>
        <translation>تحديد كل الحقول</translation>
    </message>
    <message>
        <source>Tick no field</source>
        <translation>إلغاء تحديد كل الحقول</translation>
    </message>
    <message>
        <source>Paste Fields</source>
        <translation>لصق الحقول</translation>
    </message>
    <message numerus="yes">
        <source>Paste %n Field(s)</source>
        <translation>
            <numerusform>لصق الحقول</numerusform>
            <numerusform>لصق حقل واحد</numerusform>
            <numerusform>لصق حقلين</numerusform>
            <numerusform>لصق %n حقول</numerusform>
            <numerusform>لصق %n حقلًا</numerusform>
            <numerusform>لصق %n حقل</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is written before Apply.</source>
        <translation>لا يُكتب شيء قبل «تطبيق».</translation>
    </message>
    <message>
        <source>Nothing is written before Save.</source>
        <translation>لا يُكتب شيء قبل «حفظ».</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (was|were) not read yet.</source>
        <translation>
            <numerusform>قُرئت كل الصور.</numerusform>
            <numerusform>صورة واحدة لم تُقرأ بعد.</numerusform>
            <numerusform>صورتان لم تُقرآ بعد.</numerusform>
            <numerusform>%n صور لم تُقرأ بعد.</numerusform>
            <numerusform>%n صورة لم تُقرأ بعد.</numerusform>
            <numerusform>%n صورة لم تُقرأ بعد.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste Fields to %n Photo(s)</source>
        <translation>
            <numerusform>لصق الحقول في %n صورة</numerusform>
            <numerusform>لصق الحقول في صورة واحدة</numerusform>
            <numerusform>لصق الحقول في صورتين</numerusform>
            <numerusform>لصق الحقول في %n صور</numerusform>
            <numerusform>لصق الحقول في %n صورة</numerusform>
            <numerusform>لصق الحقول في %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Paste Fields to %1</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>لصق الحقول في %1</translation>
    </message>
    <message>
        <source>Name of the set</source>
        <translation>اسم المجموعة</translation>
    </message>
    <message>
        <source>The first nine have the keys Alt+1 to Alt+9.</source>
        <translation>المفاتيح من Alt+1 إلى Alt+9 للكلمات التسع الأولى.</translation>
    </message>
    <message>
        <source>Delete Set</source>
        <translation>حذف المجموعة</translation>
    </message>
    <message>
        <source>Keywords of the set</source>
        <translation>كلمات المجموعة</translation>
    </message>
    <message>
        <source>New Set of Quick Keywords</source>
        <translation>مجموعة جديدة من الكلمات المفتاحية السريعة</translation>
    </message>
    <message>
        <source>Set of Quick Keywords</source>
        <translation>مجموعة كلمات مفتاحية سريعة</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Click a field to insert it. The extension is kept automatically.</source>
        <translation>النقر على حقل يُدرجه. ويُحتفظ بالامتداد تلقائيًا.</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>noun</comment>
        <translation>المعاينة</translation>
    </message>
    <message>
        <source>Rename File</source>
        <translation>إعادة تسمية الملف</translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) agree?</source>
        <translation>
            <numerusform>توحيد القيم في %n صورة؟</numerusform>
            <numerusform>توحيد القيم في صورة واحدة؟</numerusform>
            <numerusform>توحيد القيم في صورتين؟</numerusform>
            <numerusform>توحيد القيم في %n صور؟</numerusform>
            <numerusform>توحيد القيم في %n صورة؟</numerusform>
            <numerusform>توحيد القيم في %n صورة؟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Apply changes to %n photo(s)?</source>
        <translation>
            <numerusform>تطبيق التغييرات على %n صورة؟</numerusform>
            <numerusform>تطبيق التغييرات على صورة واحدة؟</numerusform>
            <numerusform>تطبيق التغييرات على صورتين؟</numerusform>
            <numerusform>تطبيق التغييرات على %n صور؟</numerusform>
            <numerusform>تطبيق التغييرات على %n صورة؟</numerusform>
            <numerusform>تطبيق التغييرات على %n صورة؟</numerusform>
        </translation>
    </message>
    <message>
        <source>Make “%1” agree?</source>
        <translation>توحيد القيم في «%1»؟</translation>
    </message>
    <message>
        <source>Save changes to “%1”?</source>
        <translation>حفظ التغييرات في «%1»؟</translation>
    </message>
    <message>
        <source>Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together.</source>
        <translation>حيث تختلف مواضع حقل، سيُكتب فيها كلها ما يُعرض منه. أما القوائم فتُجمع.</translation>
    </message>
    <message numerus="yes">
        <source>You edited %n field(s). Your changes will be lost if you don’t save them.</source>
        <translation>
            <numerusform>لم يُعدَّل أي حقل.</numerusform>
            <numerusform>عُدِّل حقل واحد. ستُفقد التغييرات إن لم تُحفظ.</numerusform>
            <numerusform>عُدِّل حقلان. ستُفقد التغييرات إن لم تُحفظ.</numerusform>
            <numerusform>عُدِّلت %n حقول. ستُفقد التغييرات إن لم تُحفظ.</numerusform>
            <numerusform>عُدِّل %n حقلًا. ستُفقد التغييرات إن لم تُحفظ.</numerusform>
            <numerusform>عُدِّل %n حقل. ستُفقد التغييرات إن لم تُحفظ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify the selected fields on %n file(s). This can’t be undone.</source>
        <translation>
            <numerusform>سيغيّر هذا الحقول المحددة في %n ملف، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا الحقول المحددة في ملف واحد، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا الحقول المحددة في ملفين، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا الحقول المحددة في %n ملفات، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا الحقول المحددة في %n ملفًا، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا الحقول المحددة في %n ملف، ولا يمكن التراجع عنه.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This will modify %1 on %n file(s). This can’t be undone.</source>
        <extracomment>%1 is a list of the names of fields.</extracomment>
        <translation>
            <numerusform>سيغيّر هذا %1 في %n ملف، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا %1 في ملف واحد، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا %1 في ملفين، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا %1 في %n ملفات، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا %1 في %n ملفًا، ولا يمكن التراجع عنه.</numerusform>
            <numerusform>سيغيّر هذا %1 في %n ملف، ولا يمكن التراجع عنه.</numerusform>
        </translation>
    </message>
    <message>
        <source>taken away: %1</source>
        <extracomment>%1 is a list of keywords that photos lose.</extracomment>
        <translation>تُزال: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <comment>noun: what a save changes</comment>
        <translation>التغييرات</translation>
    </message>
    <message>
        <source>Save and don’t ask again</source>
        <translation>الحفظ وعدم السؤال مرة أخرى</translation>
    </message>
    <message>
        <source>Don’t ask again this session</source>
        <translation>عدم السؤال مرة أخرى في هذه الجلسة</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>عدم الحفظ</translation>
    </message>
    <message>
        <source>Make It Agree</source>
        <translation>توحيد القيم</translation>
    </message>
    <message>
        <source>Make Them Agree</source>
        <translation>توحيد القيم</translation>
    </message>
    <message numerus="yes">
        <source>Apply to %n Photo(s)</source>
        <translation>
            <numerusform>تطبيق على %n صورة</numerusform>
            <numerusform>تطبيق على صورة واحدة</numerusform>
            <numerusform>تطبيق على صورتين</numerusform>
            <numerusform>تطبيق على %n صور</numerusform>
            <numerusform>تطبيق على %n صورة</numerusform>
            <numerusform>تطبيق على %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Before and after</source>
        <translation>قبل وبعد</translation>
    </message>
    <message>
        <source>By an amount</source>
        <translation>بمقدار</translation>
    </message>
    <message>
        <source>By a known photo</source>
        <translation>بصورة معلومة الوقت</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>المنطقة الزمنية</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>times become later</comment>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Earlier</source>
        <comment>times become earlier</comment>
        <translation>أبكر</translation>
    </message>
    <message>
        <source>Keep the clock time</source>
        <translation>إبقاء وقت الساعة</translation>
    </message>
    <message>
        <source>Use each photo’s own</source>
        <comment>time zone</comment>
        <translation>منطقة كل صورة</translation>
    </message>
    <message>
        <source>How to shift</source>
        <translation>كيفية الإزاحة</translation>
    </message>
    <message>
        <source>BEFORE → AFTER</source>
        <translation>قبل ← بعد</translation>
    </message>
    <message>
        <source>d</source>
        <comment>unit: days</comment>
        <translation>ي</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>أيام</translation>
    </message>
    <message>
        <source>h</source>
        <comment>unit: hours</comment>
        <translation>س</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>ساعات</translation>
    </message>
    <message>
        <source>min</source>
        <comment>unit: minutes</comment>
        <translation>د</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>دقائق</translation>
    </message>
    <message>
        <source>s</source>
        <comment>unit: seconds</comment>
        <translation>ث</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>ثوانٍ</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Was taken at</source>
        <translation>التُقطت في</translation>
    </message>
    <message>
        <source>Choose among the selected photos</source>
        <translation>اختيار من الصور المحددة</translation>
    </message>
    <message>
        <source>Without it, the moment stays and the clock time moves</source>
        <translation>بدونه تبقى اللحظة ويتغير وقت الساعة</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Search photos</source>
        <translation>بحث في الصور</translation>
    </message>
    <message>
        <source>No such photo</source>
        <translation>لا توجد صورة كهذه</translation>
    </message>
    <message>
        <source>Time zones</source>
        <translation>المناطق الزمنية</translation>
    </message>
    <message>
        <source>Search towns or offsets</source>
        <translation>بحث عن مدينة أو فرق توقيت</translation>
    </message>
    <message>
        <source>No such time zone</source>
        <translation>لا توجد منطقة زمنية كهذه</translation>
    </message>
    <message numerus="yes">
        <source>Set Zone of %n</source>
        <translation>
            <numerusform>ضبط المنطقة</numerusform>
            <numerusform>ضبط منطقة صورة واحدة</numerusform>
            <numerusform>ضبط منطقة صورتين</numerusform>
            <numerusform>ضبط منطقة %n صور</numerusform>
            <numerusform>ضبط منطقة %n صورة</numerusform>
            <numerusform>ضبط منطقة %n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shift %n Photo(s)</source>
        <translation>
            <numerusform>إزاحة الوقت</numerusform>
            <numerusform>إزاحة وقت صورة واحدة</numerusform>
            <numerusform>إزاحة وقت صورتين</numerusform>
            <numerusform>إزاحة وقت %n صور</numerusform>
            <numerusform>إزاحة وقت %n صورة</numerusform>
            <numerusform>إزاحة وقت %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Date digitized and the other dates of a photo move along.</source>
        <translation>يُزاح معها تاريخ الرقمنة وسائر تواريخ الصورة.</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>بلا تاريخ</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n more…</source>
        <comment>photos</comment>
        <translation>
            <numerusform>جارٍ القراءة…</numerusform>
            <numerusform>جارٍ قراءة صورة أخرى…</numerusform>
            <numerusform>جارٍ قراءة صورتين أخريين…</numerusform>
            <numerusform>جارٍ قراءة %n صور أخرى…</numerusform>
            <numerusform>جارٍ قراءة %n صورة أخرى…</numerusform>
            <numerusform>جارٍ قراءة %n صورة أخرى…</numerusform>
        </translation>
    </message>
    <message>
        <source>All others by the same amount: %1.</source>
        <extracomment>%1 is an amount of time, like “1 h 30 min earlier”.</extracomment>
        <translation>كل الصور الأخرى بالمقدار نفسه: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Shift Time of %n Photo(s)</source>
        <translation>
            <numerusform>إزاحة الوقت</numerusform>
            <numerusform>إزاحة وقت صورة واحدة</numerusform>
            <numerusform>إزاحة وقت صورتين</numerusform>
            <numerusform>إزاحة وقت %n صور</numerusform>
            <numerusform>إزاحة وقت %n صورة</numerusform>
            <numerusform>إزاحة وقت %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>No such shortcut.</source>
        <translation>لا يوجد اختصار كهذا.</translation>
    </message>
    <message>
        <source>Search shortcuts…</source>
        <translation>بحث في الاختصارات…</translation>
    </message>
    <message>
        <source>Search shortcuts</source>
        <translation>بحث في الاختصارات</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message numerus="yes">
        <source>%n shortcut(s)</source>
        <translation>
            <numerusform>لا اختصارات</numerusform>
            <numerusform>اختصار واحد</numerusform>
            <numerusform>اختصاران</numerusform>
            <numerusform>%n اختصارات</numerusform>
            <numerusform>%n اختصارًا</numerusform>
            <numerusform>%n اختصار</numerusform>
        </translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Field sets</source>
        <translation>مجموعات الحقول</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>معروض</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>مطلوب</translation>
    </message>
    <message>
        <source>Delete this set</source>
        <translation>حذف هذه المجموعة</translation>
    </message>
    <message>
        <source>New set, as a copy of this one</source>
        <translation>مجموعة جديدة منسوخة من هذه</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <extracomment>The name of a new set of fields; %1 is the name of the one that it is a copy of.
----------
%1: name of the template that this is a copy of.</extracomment>
        <translation>نسخة من %1</translation>
    </message>
    <message>
        <source>This set comes with Quorbel. Make a copy with + to change it.</source>
        <translation>هذه المجموعة مرفقة مع Quorbel. لتغييرها تُنشأ نسخة منها بالزر +.</translation>
    </message>
    <message>
        <source>Field Sets</source>
        <translation>مجموعات الحقول</translation>
    </message>
    <message>
        <source>Fields of the set</source>
        <translation>حقول المجموعة</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>noun</comment>
        <translation>الحقل</translation>
    </message>
    <message>
        <source>%1 on screen</source>
        <extracomment>The name of a tick that puts the field %1 on screen.</extracomment>
        <translation>عرض %1</translation>
    </message>
    <message>
        <source>%1 wanted</source>
        <extracomment>The name of a tick that says that the field %1 should be filled in.</extracomment>
        <translation>طلب %1</translation>
    </message>
    <message>
        <source>%1 keeps its name</source>
        <extracomment>%1 is the name of a file, %2 the one that it will get.</extracomment>
        <translation>يبقى اسم %1 كما هو</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>New names</source>
        <translation>الأسماء الجديدة</translation>
    </message>
    <message>
        <source>Counter from</source>
        <translation>العدّاد من</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>الخطوة</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>الخانات</translation>
    </message>
    <message>
        <source>Next</source>
        <comment>goes to the next name</comment>
        <translation>التالي</translation>
    </message>
    <message>
        <source>step</source>
        <extracomment>Behind “Counter from”: by how much it rises from photo to photo.</extracomment>
        <translation>الخطوة</translation>
    </message>
    <message>
        <source>digits</source>
        <extracomment>Behind “Counter from”: how many digits it has.</extracomment>
        <translation>الخانات</translation>
    </message>
    <message>
        <source>The extension is kept.</source>
        <translation>يبقى الامتداد كما هو.</translation>
    </message>
    <message>
        <source>Goes to the next name to look at</source>
        <translation>الانتقال إلى الاسم التالي الذي يحتاج إلى مراجعة</translation>
    </message>
    <message numerus="yes">
        <source>%1 to look at</source>
        <extracomment>%1 is a number of names.</extracomment>
        <translation>
            <numerusform>للمراجعة: %1</numerusform>
            <numerusform>للمراجعة: %1</numerusform>
            <numerusform>للمراجعة: %1</numerusform>
            <numerusform>للمراجعة: %1</numerusform>
            <numerusform>للمراجعة: %1</numerusform>
            <numerusform>للمراجعة: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %1</source>
        <extracomment>%1 is a number of photos.</extracomment>
        <translation>
            <numerusform>إعادة التسمية (%1)</numerusform>
            <numerusform>إعادة التسمية (%1)</numerusform>
            <numerusform>إعادة التسمية (%1)</numerusform>
            <numerusform>إعادة تسمية %1 صور</numerusform>
            <numerusform>إعادة تسمية %1 صورة</numerusform>
            <numerusform>إعادة تسمية %1 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Sidecars and backups go along. Edit ▸ Undo Rename takes it back.</source>
        <translation>تُعاد معها تسمية الملفات المرافقة والنسخ الاحتياطية. ويعيد الأمر تحرير ◂ التراجع عن إعادة التسمية كل ذلك.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2…</source>
        <extracomment>%1 of all %2 photos are renamed.</extracomment>
        <translation>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة التسمية: %1 من %2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Renames them as soon as the save has ended…</source>
        <translation>تُعاد التسمية فور انتهاء الحفظ…</translation>
    </message>
    <message numerus="yes">
        <source>Rename %1 Files</source>
        <translation>
            <numerusform>إعادة تسمية الملفات (%1)</numerusform>
            <numerusform>إعادة تسمية الملف (%1)</numerusform>
            <numerusform>إعادة تسمية الملفين (%1)</numerusform>
            <numerusform>إعادة تسمية %1 ملفات</numerusform>
            <numerusform>إعادة تسمية %1 ملفًا</numerusform>
            <numerusform>إعادة تسمية %1 ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1</source>
        <extracomment>%1 is the name of a field that a photo does not have.
----------
The photo holds nothing that could stand here. %1: what of, as “title”.</extracomment>
        <translation>بلا %1</translation>
    </message>
    <message>
        <source>Gain</source>
        <comment>photos gain a field</comment>
        <extracomment>Headings of columns: how many photos gain a field, change it, and lose it.</extracomment>
        <translation>تكتسب</translation>
    </message>
    <message>
        <source>Change</source>
        <comment>photos change a field</comment>
        <translation>تغيّر</translation>
    </message>
    <message>
        <source>Lose</source>
        <comment>photos lose a field</comment>
        <translation>تفقد</translation>
    </message>
    <message>
        <source>What the sidecars hold is written into the photos themselves, also where it differs. The sidecars stay as they are.</source>
        <translation>يُكتب ما في الملفات المرافقة في الصور نفسها، حتى حيث يختلف عنها. وتبقى الملفات المرافقة كما هي.</translation>
    </message>
    <message>
        <source>What raw photos hold and their sidecars do not is written into the sidecars. The photos stay untouched.</source>
        <translation>يُكتب في الملفات المرافقة ما تحويه صور RAW ولا تحويه ملفاتها المرافقة. ولا تُمس الصور.</translation>
    </message>
    <message>
        <source>Looking into the files…</source>
        <translation>جارٍ فحص الملفات…</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>لا يوجد ما يُكتب.</translation>
    </message>
    <message numerus="yes">
        <source>Looked into %1 of %2 photos…</source>
        <translation>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write Into %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos.</extracomment>
        <translation>
            <numerusform>كتابة في الصور (%1)</numerusform>
            <numerusform>كتابة في الصورة (%1)</numerusform>
            <numerusform>كتابة في الصورتين (%1)</numerusform>
            <numerusform>كتابة في %1 صور</numerusform>
            <numerusform>كتابة في %1 صورة</numerusform>
            <numerusform>كتابة في %1 صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write for %1 Photo(s)</source>
        <extracomment>A button; %1 is the number of photos whose sidecars are written.</extracomment>
        <translation>
            <numerusform>كتابة للصور (%1)</numerusform>
            <numerusform>كتابة للصور (%1)</numerusform>
            <numerusform>كتابة للصور (%1)</numerusform>
            <numerusform>كتابة للصور (%1)</numerusform>
            <numerusform>كتابة للصور (%1)</numerusform>
            <numerusform>كتابة للصور (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>Write Sidecars Into Photos</source>
        <translation>كتابة الملفات المرافقة في الصور</translation>
    </message>
    <message>
        <source>Write Metadata Into Sidecars</source>
        <translation>كتابة البيانات الوصفية في الملفات المرافقة</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (gains|gain) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>لا تكتسبه أي صورة</numerusform>
            <numerusform>تكتسبه صورة واحدة</numerusform>
            <numerusform>تكتسبه صورتان</numerusform>
            <numerusform>تكتسبه %n صور</numerusform>
            <numerusform>تكتسبه %n صورة</numerusform>
            <numerusform>تكتسبه %n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (changes|change) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>لا يتغير في أي صورة</numerusform>
            <numerusform>يتغير في صورة واحدة</numerusform>
            <numerusform>يتغير في صورتين</numerusform>
            <numerusform>يتغير في %n صور</numerusform>
            <numerusform>يتغير في %n صورة</numerusform>
            <numerusform>يتغير في %n صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) (loses|lose) it</source>
        <comment>a field</comment>
        <translation>
            <numerusform>لا تفقده أي صورة</numerusform>
            <numerusform>تفقده صورة واحدة</numerusform>
            <numerusform>تفقده صورتان</numerusform>
            <numerusform>تفقده %n صور</numerusform>
            <numerusform>تفقده %n صورة</numerusform>
            <numerusform>تفقده %n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>What is written</source>
        <translation>ما يُكتب</translation>
    </message>
    <message>
        <source>Looking… %1 of %2</source>
        <extracomment>While photos are read. %1 and %2 are numbers.</extracomment>
        <translation>جارٍ الفحص… %1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) (disagrees|disagree)</source>
        <extracomment>%1: how many photos hold a field in several places that differ.</extracomment>
        <translation>
            <numerusform>صور مختلفة القيم: %1</numerusform>
            <numerusform>صورة مختلفة القيم: %1</numerusform>
            <numerusform>صور مختلفة القيم: %1</numerusform>
            <numerusform>%1 صور مختلفة القيم</numerusform>
            <numerusform>%1 صورة مختلفة القيم</numerusform>
            <numerusform>%1 صورة مختلفة القيم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 disagree</source>
        <extracomment>As “%1 photos disagree”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 مختلفة</numerusform>
            <numerusform>%1 مختلفة</numerusform>
            <numerusform>%1 مختلفة</numerusform>
            <numerusform>%1 مختلفة</numerusform>
            <numerusform>%1 مختلفة</numerusform>
            <numerusform>%1 مختلفة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not looked at yet</source>
        <extracomment>%1: how many photos.</extracomment>
        <translation>
            <numerusform>لم تُفحص بعد: %1</numerusform>
            <numerusform>لم تُفحص بعد: %1</numerusform>
            <numerusform>لم تُفحص بعد: %1</numerusform>
            <numerusform>لم تُفحص بعد: %1</numerusform>
            <numerusform>لم تُفحص بعد: %1</numerusform>
            <numerusform>لم تُفحص بعد: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unknown</source>
        <extracomment>As “%1 not looked at yet”, where there is little room.</extracomment>
        <translation>
            <numerusform>%1 مجهولة</numerusform>
            <numerusform>%1 مجهولة</numerusform>
            <numerusform>%1 مجهولة</numerusform>
            <numerusform>%1 مجهولة</numerusform>
            <numerusform>%1 مجهولة</numerusform>
            <numerusform>%1 مجهولة</numerusform>
        </translation>
    </message>
    <message>
        <source>Show all photos</source>
        <translation>إظهار كل الصور</translation>
    </message>
    <message>
        <source>Look at them</source>
        <extracomment>Button behind a number of photos that were not looked at yet.</extracomment>
        <translation>فحصها</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>عوامل التصفية</translation>
    </message>
    <message numerus="yes">
        <source>%n more filters</source>
        <translation>
            <numerusform>لا عوامل أخرى</numerusform>
            <numerusform>عامل تصفية آخر</numerusform>
            <numerusform>عاملا تصفية آخران</numerusform>
            <numerusform>%n عوامل تصفية أخرى</numerusform>
            <numerusform>%n عامل تصفية آخر</numerusform>
            <numerusform>%n عامل تصفية آخر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 photo(s)</source>
        <extracomment>%1: a filter, as “No title”. %2: how many photos fit it.</extracomment>
        <translation>
            <numerusform>%1، عدد الصور: %2</numerusform>
            <numerusform>%1، عدد الصور: %2</numerusform>
            <numerusform>%1، عدد الصور: %2</numerusform>
            <numerusform>%1، %2 صور</numerusform>
            <numerusform>%1، %2 صورة</numerusform>
            <numerusform>%1، %2 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Without</source>
        <extracomment>Heads a list of what photos may lack: title, keywords…</extracomment>
        <translation>بدون</translation>
    </message>
    <message>
        <source>At least</source>
        <extracomment>Stands before the row of stars that a photo has at least.</extracomment>
        <translation>على الأقل</translation>
    </message>
    <message>
        <source>Click the lowest rating to list; click it again for any</source>
        <translation>النقر على أدنى تقييم يُعرض؛ والنقر عليه ثانية لأي تقييم</translation>
    </message>
    <message>
        <source>Any field contains…</source>
        <translation>أي حقل يحتوي على…</translation>
    </message>
    <message>
        <source>Any field contains</source>
        <translation>أي حقل يحتوي على</translation>
    </message>
    <message>
        <source>At least, any rating</source>
        <translation>على الأقل، أي تقييم</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>No description</source>
        <translation>بلا وصف</translation>
    </message>
    <message>
        <source>No keywords</source>
        <translation>بلا كلمات مفتاحية</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>بلا تاريخ التقاط</translation>
    </message>
    <message>
        <source>No place</source>
        <translation>بلا مكان</translation>
    </message>
    <message>
        <source>No creator</source>
        <translation>بلا منشئ</translation>
    </message>
    <message>
        <source>No copyright</source>
        <translation>بلا حقوق نشر</translation>
    </message>
    <message>
        <source>Unrated</source>
        <translation>بلا تقييم</translation>
    </message>
    <message>
        <source>Edited, not saved</source>
        <translation>معدّلة غير محفوظة</translation>
    </message>
    <message>
        <source>Changed since opened</source>
        <translation>تغيّرت منذ فتحها</translation>
    </message>
    <message>
        <source>Places differ</source>
        <translation>مواضعها مختلفة</translation>
    </message>
    <message>
        <source>Clear filters</source>
        <translation>مسح عوامل التصفية</translation>
    </message>
    <message>
        <source>Filter images</source>
        <translation>تصفية الصور</translation>
    </message>
    <message numerus="yes">
        <source>At least %n star(s)</source>
        <translation>
            <numerusform>أي عدد من النجوم</numerusform>
            <numerusform>نجمة واحدة على الأقل</numerusform>
            <numerusform>نجمتان على الأقل</numerusform>
            <numerusform>%n نجوم على الأقل</numerusform>
            <numerusform>%n نجمة على الأقل</numerusform>
            <numerusform>%n نجمة على الأقل</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains “%1”</source>
        <extracomment>A filter of photos. %1: what was typed.</extracomment>
        <translation>تحتوي على «%1»</translation>
    </message>
    <message>
        <source>collapsed</source>
        <extracomment>State of a folder in the list, spoken.</extracomment>
        <translation>مطوي</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>مبسوط</translation>
    </message>
    <message>
        <source>No matching photos.</source>
        <translation>لا توجد صور مطابقة.</translation>
    </message>
    <message>
        <source>Nothing left</source>
        <extracomment>No photo fits the filters.</extracomment>
        <translation>لم يبقَ شيء</translation>
    </message>
    <message>
        <source>All places agree</source>
        <extracomment>All places within the photos in which a field stands.</extracomment>
        <translation>كل المواضع متفقة</translation>
    </message>
    <message numerus="yes">
        <source>%1 photo(s) not looked at yet</source>
        <translation>
            <numerusform>صور لم تُفحص بعد: %1</numerusform>
            <numerusform>صورة لم تُفحص بعد: %1</numerusform>
            <numerusform>صور لم تُفحص بعد: %1</numerusform>
            <numerusform>%1 صور لم تُفحص بعد</numerusform>
            <numerusform>%1 صورة لم تُفحص بعد</numerusform>
            <numerusform>%1 صورة لم تُفحص بعد</numerusform>
        </translation>
    </message>
    <message>
        <source>Double-click to open in your default image app</source>
        <translation>النقر المزدوج يفتحها في تطبيق الصور الافتراضي</translation>
    </message>
    <message>
        <source>Name (A–Z)</source>
        <translation>الاسم (تصاعديًا)</translation>
    </message>
    <message>
        <source>Name (Z–A)</source>
        <translation>الاسم (تنازليًا)</translation>
    </message>
    <message>
        <source>Date (newest first)</source>
        <translation>التاريخ (الأحدث أولًا)</translation>
    </message>
    <message>
        <source>Date (oldest first)</source>
        <translation>التاريخ (الأقدم أولًا)</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Sort images</source>
        <translation>ترتيب الصور</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>Heads the ways in which photos are listed.</extracomment>
        <translation>ترتيب حسب</translation>
    </message>
    <message>
        <source>Thumbnail of %1</source>
        <extracomment>%1: name of a file.</extracomment>
        <translation>صورة مصغّرة لـ%1</translation>
    </message>
    <message>
        <source>nothing</source>
        <extracomment>What a field then holds.</extracomment>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>القوالب</translation>
    </message>
    <message>
        <source>Set</source>
        <comment>verb: puts the text into the field</comment>
        <translation>ضبط</translation>
    </message>
    <message>
        <source>Set if empty</source>
        <extracomment>Puts the text into the field when nothing is there.</extracomment>
        <translation>ضبط إن كان فارغًا</translation>
    </message>
    <message>
        <source>Append</source>
        <extracomment>Puts the text behind what the field holds.</extracomment>
        <translation>إضافة بعده</translation>
    </message>
    <message>
        <source>Prepend</source>
        <extracomment>Puts the text before what the field holds.</extracomment>
        <translation>إضافة قبله</translation>
    </message>
    <message>
        <source>What happens to %1</source>
        <extracomment>%1: name of a field.</extracomment>
        <translation>ما يحدث للحقل %1</translation>
    </message>
    <message>
        <source>Add name + ↵</source>
        <translation>إضافة اسم + ↵</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>Keys that apply a template.</extracomment>
        <translation>الاختصار</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>الصورة السابقة</translation>
    </message>
    <message>
        <source>Next photo</source>
        <translation>الصورة التالية</translation>
    </message>
    <message>
        <source>Fill</source>
        <extracomment>Button: fills the fields of photos.</extracomment>
        <translation>تعبئة</translation>
    </message>
    <message>
        <source>More</source>
        <comment>button: opens a menu</comment>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>استيراد…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>نقل إلى المهملات</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <extracomment>Heads the fields of a template, in capitals.</extracomment>
        <translation>الحقول</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos, with texts that each photo completes. Make one with +, or drop a template&apos;s file into the list.</source>
        <translation>يملأ القالب حقول الصور المحددة بنصوص تكملها كل صورة. يُنشأ القالب بالزر +، أو بإفلات ملف قالب في القائمة.</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>بلا اختصار</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <extracomment>Heads what the template makes of a photo, in capitals.</extracomment>
        <translation>المعاينة</translation>
    </message>
    <message numerus="yes">
        <source>Fill %1 Photo(s)</source>
        <extracomment>Button: fills the fields of the selected photos. %1: how many these are.</extracomment>
        <translation>
            <numerusform>تعبئة الصور (%1)</numerusform>
            <numerusform>تعبئة الصورة (%1)</numerusform>
            <numerusform>تعبئة الصورتين (%1)</numerusform>
            <numerusform>تعبئة %1 صور</numerusform>
            <numerusform>تعبئة %1 صورة</numerusform>
            <numerusform>تعبئة %1 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>No field of this name.</source>
        <translation>لا يوجد حقل بهذا الاسم.</translation>
    </message>
    <message>
        <source>custom field</source>
        <translation>حقل مخصص</translation>
    </message>
    <message>
        <source>from %1</source>
        <extracomment>How a counter counts. %1: its first number.</extracomment>
        <translation>من %1</translation>
    </message>
    <message>
        <source>from %1, step %2</source>
        <extracomment>How a counter counts. %1: its first number, %2: how far it is to the next.</extracomment>
        <translation>من %1، الخطوة %2</translation>
    </message>
    <message>
        <source>or %1</source>
        <extracomment>Behind the name of a token. %1: what stands in its place where a photo has no such value.</extracomment>
        <translation>أو %1</translation>
    </message>
    <message>
        <source>More…</source>
        <extracomment>Button: shows further tokens.</extracomment>
        <translation>المزيد…</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <extracomment>Puts a token into a text. %1: its name, as “Date taken”.</extracomment>
        <translation>إدراج %1</translation>
    </message>
    <message>
        <source>More tokens</source>
        <translation>متغيّرات أخرى</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>المتغيّرات</translation>
    </message>
    <message>
        <source>Search tokens…</source>
        <translation>بحث في المتغيّرات…</translation>
    </message>
    <message>
        <source>No token of this name.</source>
        <translation>لا يوجد متغيّر بهذا الاسم.</translation>
    </message>
    <message>
        <source>Default and form of %1</source>
        <extracomment>%1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.</extracomment>
        <translation>البديل والصيغة للمتغيّر %1</translation>
    </message>
    <message>
        <source>If missing</source>
        <extracomment>What stands in the place of a value that a photo does not have, and what happens when nothing is given.</extracomment>
        <translation>عند غيابه</translation>
    </message>
    <message>
        <source>leave a gap</source>
        <translation>ترك فراغ</translation>
    </message>
    <message>
        <source>Form</source>
        <extracomment>How a date or time is written.</extracomment>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Of a counter: its first number, how far it is from one to the next, and how many digits each has.</extracomment>
        <translation>من</translation>
    </message>
    <message>
        <source>Letters</source>
        <extracomment>Whether the letters of a text are capitals.</extracomment>
        <translation>الأحرف</translation>
    </message>
    <message>
        <source>As they are</source>
        <translation>كما هي</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>أحرف كبيرة</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>أحرف صغيرة</translation>
    </message>
    <message>
        <source>as in “%1”</source>
        <extracomment>%1: a date, written in the form that was chosen.</extracomment>
        <translation>كما في «%1»</translation>
    </message>
    <message>
        <source>There are no codes in this file.</source>
        <translation>لا توجد رموز في هذا الملف.</translation>
    </message>
    <message numerus="yes">
        <source>%n code(s).</source>
        <translation>
            <numerusform>لا رموز.</numerusform>
            <numerusform>رمز واحد.</numerusform>
            <numerusform>رمزان.</numerusform>
            <numerusform>%n رموز.</numerusform>
            <numerusform>%n رمزًا.</numerusform>
            <numerusform>%n رمز.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>button: no file is used any more</comment>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Choose the file of codes</source>
        <translation>اختيار ملف الرموز</translation>
    </message>
    <message>
        <source>Use no file of codes</source>
        <translation>عدم استخدام ملف رموز</translation>
    </message>
    <message>
        <source>A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js becomes its text at the second “=”; one Undo gives the code back.</source>
        <translation>ملف نصي في كل سطر منه رمز ثم علامة جدولة ثم نصه. تُكتب =js= في نص أو كلمة مفتاحية، فيتحول js إلى نصه عند علامة «=» الثانية؛ ويعيد «تراجع» مرة واحدة الرمز نفسه.</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>لا ملف</translation>
    </message>
    <message>
        <source>Nothing else in the photo before</source>
        <translation>لا شيء آخر في الصورة السابقة</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>رسالة</translation>
    </message>
    <message>
        <source>Getting Started</source>
        <translation>الخطوات الأولى</translation>
    </message>
    <message>
        <source>Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app agrees.</source>
        <translation>يقرأ Quorbel البيانات الوصفية داخل الصور ويحرّرها — العناوين والتواريخ والتعليقات والكلمات المفتاحية والمواقع — ويكتب التغييرات وفق معايير EXIF وIPTC وXMP دفعة واحدة لتتطابق في كل التطبيقات.</translation>
    </message>
    <message>
        <source>To begin, open a folder of images or one or more image files:</source>
        <translation>للبدء، يُفتح مجلد صور أو ملف صورة واحد أو أكثر:</translation>
    </message>
    <message>
        <source>Choose File ▸ Open… (⌘O), or drag photos onto the window.</source>
        <translation>اختيار الأمر ملف ◂ فتح… (⌘O)، أو سحب الصور إلى النافذة.</translation>
    </message>
    <message>
        <source>Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it.</source>
        <translation>اختيار الأمر ملف ◂ فتح مع المجلدات الفرعية… (⌘⇧O) لفتح مجلد مع كل ما فيه من مجلدات.</translation>
    </message>
    <message>
        <source>Reopen something recent from File ▸ Open Recent.</source>
        <translation>فتح عنصر سابق من جديد عبر ملف ◂ المفتوحة مؤخرًا.</translation>
    </message>
    <message>
        <source>Right-click a photo in your file manager and choose Open With ▸ Quorbel.</source>
        <translation>النقر بالزر الأيمن على صورة في مدير الملفات ثم اختيار فتح باستخدام ◂ Quorbel.</translation>
    </message>
    <message>
        <source>The Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message>
        <source>The window has three regions:</source>
        <translation>تنقسم النافذة إلى ثلاثة أقسام:</translation>
    </message>
    <message>
        <source>Sidebar (left): every photo in the folder. Search and sort by name or date from the controls at the top.</source>
        <translation>الشريط الجانبي: كل صور المجلد، مع البحث والترتيب حسب الاسم أو التاريخ من أدوات التحكم في أعلاه.</translation>
    </message>
    <message>
        <source>With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds.</source>
        <translation>عند فتح المجلدات الفرعية يكون لكل مجلد رأس. النقر عليه أو ضغط Return يطوي صوره، والنقر مع ⌥ يطوي كل المجلدات. ينقل السهم ← من الصورة إلى رأس مجلدها ويطويه، ويبسطه السهم →.</translation>
    </message>
    <message>
        <source>Preview (center): a large preview column appears as you widen the window, so you always see the photo you&apos;re tagging.</source>
        <translation>المعاينة (في الوسط): يظهر عمود معاينة كبير عند توسيع النافذة، فتبقى الصورة قيد العمل مرئية دائمًا.</translation>
    </message>
    <message>
        <source>Inspector (right): the editable fields, grouped as Common, Location and read-only Camera details.</source>
        <translation>لوحة الخصائص: الحقول القابلة للتحرير في قسمي «عام» و«الموقع»، مع تفاصيل الكاميرا للقراءة فقط.</translation>
    </message>
    <message>
        <source>Quorbel remembers what it read: a folder that you open again is there at once, and only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.</source>
        <translation>يتذكر Quorbel ما قرأه: فالمجلد الذي يُفتح مرة أخرى يظهر فورًا، ولا تُقرأ إلا الصور التي تغيّرت. الأمر عرض ◂ إعادة القراءة (⇧F5) يقرؤها كلها من جديد.</translation>
    </message>
    <message>
        <source>Editing Metadata</source>
        <translation>تحرير البيانات الوصفية</translation>
    </message>
    <message>
        <source>Select a photo and edit its fields in the inspector. Set a title, date, caption or location once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.</source>
        <translation>تُحدَّد صورة وتُحرَّر حقولها في لوحة الخصائص. يكفي إدخال العنوان أو التاريخ أو التعليق أو الموقع مرة واحدة ليكتبه Quorbel في وسوم EXIF وIPTC وXMP المقابلة معًا.</translation>
    </message>
    <message>
        <source>Use Add Field to pick a recommended standard field, or define a custom one.</source>
        <translation>يتيح «إضافة حقل» اختيار حقل قياسي موصى به أو تعريف حقل مخصص.</translation>
    </message>
    <message>
        <source>Turn on Show namespace details (Settings) to see exactly which tag each value writes to.</source>
        <translation>عند تفعيل «إظهار تفاصيل مساحات الأسماء» في الإعدادات يظهر الوسم الذي تُكتب فيه كل قيمة بالضبط.</translation>
    </message>
    <message>
        <source>Edited fields are marked until you save.</source>
        <translation>تبقى الحقول المعدّلة معلَّمة حتى الحفظ.</translation>
    </message>
    <message>
        <source>From Photo to Photo</source>
        <translation>من صورة إلى صورة</translation>
    </message>
    <message>
        <source>Captions for many photos need no mouse. The keys work from within any field:</source>
        <translation>كتابة التعليقات لصور كثيرة لا تحتاج إلى الفأرة. تعمل هذه المفاتيح من داخل أي حقل:</translation>
    </message>
    <message>
        <source>⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same field, and its text is selected there.</source>
        <translation>ينتقل ⁨⌥+↓⁩ و⁨⌥+↑⁩ إلى الصورة التالية والسابقة. يبقى المؤشر في الحقل نفسه، ويكون نصه محددًا.</translation>
    </message>
    <message>
        <source>⌘Return saves and goes on at once: you type while the last photo is still being written.</source>
        <translation>يحفظ ⌘Return وينتقل فورًا: يمكن متابعة الكتابة بينما تُكتب الصورة السابقة.</translation>
    </message>
    <message>
        <source>Ctrl+&apos; fills the field with what the photo before shows. An empty field there takes nothing away.</source>
        <translation>يملأ ⁨Ctrl+&apos;⁩ الحقل بما تعرضه الصورة السابقة. وإذا كان الحقل فارغًا هناك فلا يُحذف شيء.</translation>
    </message>
    <message>
        <source>0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many.</source>
        <translation>المفاتيح من 0 إلى 5 للتقييم عندما يكون التركيز على القائمة، ومن ⌘⌥0 إلى ⌘⌥5 للتقييم في أي مكان، لصورة واحدة أو لعدة صور.</translation>
    </message>
    <message>
        <source>F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every pixel there, the arrow keys go on to the next photo at the same place, Escape returns.</source>
        <translation>المفتاح F11، أو Space في القائمة، للعرض عن قرب: تملأ الصورة النافذة. النقر أو Z يُظهر كل بكسل في ذلك الموضع، وتنتقل مفاتيح الأسهم إلى الصورة التالية في الموضع نفسه، ويعيد Escape إلى القائمة.</translation>
    </message>
    <message>
        <source>Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.</source>
        <translation>يعرض الأمر مساعدة ◂ اختصارات لوحة المفاتيح (Ctrl+F1) كل المفاتيح.</translation>
    </message>
    <message>
        <source>Several Languages</source>
        <translation>لغات متعددة</translation>
    </message>
    <message>
        <source>A title, description, copyright notice, event or usage terms can be in several languages in one photo. The field shows the text that every app reads; the others stay with the photo whatever you write there.</source>
        <translation>يمكن أن يكون العنوان أو الوصف أو إشعار حقوق النشر أو الحدث أو شروط الاستخدام بعدة لغات في الصورة الواحدة. يعرض الحقل النص الذي تقرؤه كل التطبيقات، وتبقى النصوص الأخرى في الصورة مهما كُتب فيه.</translation>
    </message>
    <message>
        <source>A field that has other languages names them at its right end, like “de fr”. Click there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them.</source>
        <translation>الحقل الذي له لغات أخرى يذكرها عند نهايته، مثل «de fr». النقر هناك أو ضغط ⁨⌥+→⁩ في الحقل يُظهرها للتحرير، و⁨⌥+←⁩ يخفيها.</translation>
    </message>
    <message>
        <source>Add language finds a language by its name; the cross behind a text takes that language away.</source>
        <translation>يبحث «إضافة لغة» عن اللغة باسمها، وعلامة × بعد النص تزيل تلك اللغة.</translation>
    </message>
    <message>
        <source>Both count as unsaved until you save, and work for several photos at once.</source>
        <translation>يُعدّ كلاهما تغييرًا غير محفوظ حتى الحفظ، ويمكن إجراؤهما على عدة صور معًا.</translation>
    </message>
    <message>
        <source>Keyword Paths</source>
        <translation>مسارات الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where a keyword stands: in front of it while there are few, and always in its tooltip.</source>
        <translation>تحفظ برامج كثيرة الكلمات المفتاحية في شجرة، مثل أماكن ◂ فرنسا ◂ باريس. يعرض Quorbel موضع الكلمة المفتاحية: أمامها ما دامت الكلمات قليلة، ودائمًا في تلميحها.</translation>
    </message>
    <message>
        <source>Type Places &gt; France &gt; Paris, with a blank on each side of the &gt;, or Places|France|Paris. The photo gets the keyword Paris and its place in the tree.</source>
        <translation>يُكتب أماكن &gt; فرنسا &gt; باريس، مع مسافة على جانبي العلامة &gt;، أو أماكن|فرنسا|باريس. فتحصل الصورة على الكلمة المفتاحية «باريس» وموضعها في الشجرة.</translation>
    </message>
    <message>
        <source>Suggestions tell the places of a keyword. Type Places| to see what lies below Places.</source>
        <translation>تعرض الاقتراحات مواضع الكلمة المفتاحية. وتكفي كتابة أماكن| لرؤية ما يندرج تحت «أماكن».</translation>
    </message>
    <message>
        <source>Take a keyword away, and the paths that lead to it go too, in every place where the photo keeps them. Paths that lead further stay.</source>
        <translation>عند إزالة كلمة مفتاحية تزول أيضًا المسارات المؤدية إليها من كل موضع تحفظها فيه الصورة. أما المسارات التي تمتد أبعد منها فتبقى.</translation>
    </message>
    <message>
        <source>Places That Disagree</source>
        <translation>مواضع مختلفة القيم</translation>
    </message>
    <message>
        <source>A photo keeps a title or a date in several places, and each program reads the one it knows. When programs changed only some of them, the places differ. A field whose places differ has a mark under it.</source>
        <translation>تحفظ الصورة عنوانها أو تاريخها في عدة مواضع، ويقرأ كل برنامج الموضع الذي يعرفه. وإذا غيّرت البرامج بعضها فقط اختلفت القيم. تظهر علامة تحت الحقل الذي تختلف مواضعه.</translation>
    </message>
    <message>
        <source>Click the mark to see what each place holds. Use this one makes a text your edit; saving writes it to all places.</source>
        <translation>النقر على العلامة يعرض ما في كل موضع. يجعل «استخدام هذا» النص تعديلًا، ويكتبه الحفظ في كل المواضع.</translation>
    </message>
    <message>
        <source>View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all open photos for that, while you work on.</source>
        <translation>يعرض الأمر عرض ◂ إظهار الاختلافات (⌘⇧D) الصور التي تختلف مواضعها فقط. يفحص Quorbel لذلك كل الصور المفتوحة أثناء متابعة العمل.</translation>
    </message>
    <message>
        <source>With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its places. Undo Save takes it back.</source>
        <translation>عند تحديد صور، يكتب الأمر تحرير ◂ توحيد القيم ما تعرضه كل صورة في كل مواضعها. ويعيد «التراجع عن الحفظ» الوضع السابق.</translation>
    </message>
    <message>
        <source>Finding Gaps</source>
        <translation>البحث عن الحقول الفارغة</translation>
    </message>
    <message>
        <source>The filter beside the search lists only photos that lack something, have few or many stars, are edited and not saved, or hold a text in any field. Tick several: a photo must fit all. Each count is that of all open photos.</source>
        <translation>أداة التصفية بجانب البحث تعرض فقط الصور التي ينقصها شيء، أو التي نجومها قليلة أو كثيرة، أو المعدّلة غير المحفوظة، أو التي تحوي نصًا في أي حقل. عند اختيار عدة عوامل يجب أن تطابقها الصورة كلها. وكل عدد محسوب على كل الصور المفتوحة.</translation>
    </message>
    <message>
        <source>F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes back. With a filter for empty fields, only those count.</source>
        <translation>ينتقل F8 إلى الحقل الفارغ التالي: نزولًا في النموذج ثم إلى الصورة التالية. ويرجع ⇧F8 إلى الخلف. ومع تصفية الحقول الفارغة تُحسب تلك الحقول وحدها.</translation>
    </message>
    <message>
        <source>A photo that you edit stays listed until it is saved; then the next one takes its place.</source>
        <translation>تبقى الصورة قيد التحرير في القائمة حتى حفظها، ثم تحل الصورة التالية محلها.</translation>
    </message>
    <message>
        <source>The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.</source>
        <translation>علامة × على الشارة، أو Delete عليها، تنهي عامل تصفية واحدًا؛ وينهيها كلها الأمر عرض ◂ مسح عوامل التصفية (⌘⇧F).</translation>
    </message>
    <message>
        <source>IPTC Fields &amp; Field Sets</source>
        <translation>حقول IPTC ومجموعات الحقول</translation>
    </message>
    <message>
        <source>Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, contacts, people, places, releases, licences, what a picture was made with. A photo shows those that it holds; Add Field finds all others, by their names, by what they are for, and by their tags.</source>
        <translation>يقرأ Quorbel كل خصائص معيار IPTC Photo Metadata Standard ويكتبها: النص البديل وجهات الاتصال والأشخاص والأماكن والتصاريح والتراخيص وما صُنعت به الصورة. تعرض الصورة الحقول الموجودة فيها، ويجد «إضافة حقل» كل ما عداها بالاسم أو الغرض أو الوسم.</translation>
    </message>
    <message>
        <source>View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, Rights, Accessibility, or a set of your own. What a photo holds beside the set stays visible, and so does what you edited.</source>
        <translation>يحدد الأمر عرض ◂ مجموعة الحقول ما يظهر على الشاشة معًا: التعليقات أو الصحافة أو المتاحف أو مخزون الصور أو الحقوق أو إمكانية الوصول، أو مجموعة خاصة. ويبقى ظاهرًا ما تحمله الصورة خارج المجموعة، وكذلك ما جرى تعديله.</translation>
    </message>
    <message>
        <source>A set may want fields. Empty ones have a dashed border, the lines of the sections count them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back.</source>
        <translation>يمكن للمجموعة أن تطلب حقولًا. يكون للفارغ منها إطار متقطع، وتعدّها رؤوس الأقسام، وينتقل F8 بينها واحدًا بعد آخر ثم إلى الصورة التالية في النهاية. ويرجع ⇧F8 إلى الخلف.</translation>
    </message>
    <message>
        <source>Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it and what it wants. Sets that come with Quorbel can be copied there.</source>
        <translation>يُنشئ «حفظ المعروض كمجموعة…» مجموعة خاصة، ويغيّر «تحرير المجموعات…» محتواها وما تطلبه. ويمكن هناك نسخ المجموعات المرفقة مع Quorbel.</translation>
    </message>
    <message>
        <source>Default is the form as it was. Once you have chosen a set, or made one, they can be picked at the top of the form, too.</source>
        <translation>«الافتراضي» هو النموذج كما كان. وبعد اختيار مجموعة أو إنشائها يمكن اختيار المجموعات من أعلى النموذج أيضًا.</translation>
    </message>
    <message>
        <source>Shifting Times</source>
        <translation>إزاحة الأوقات</translation>
    </message>
    <message>
        <source>A camera whose clock was wrong leaves wrong times in all of its photos. Select them, and choose Edit ▸ Shift Time.</source>
        <translation>الكاميرا ذات الساعة الخاطئة تترك أوقاتًا خاطئة في كل صورها. الحل هو تحديد تلك الصور ثم اختيار الأمر تحرير ◂ إزاحة الوقت.</translation>
    </message>
    <message>
        <source>By an amount: so many days, hours, minutes and seconds later or earlier.</source>
        <translation>بمقدار: عدد من الأيام والساعات والدقائق والثواني لاحقًا أو أبكر.</translation>
    </message>
    <message>
        <source>By a known photo: type when one of the photos was really taken, and all others go by the same amount.</source>
        <translation>بصورة معلومة الوقت: يُكتب الوقت الحقيقي لالتقاط إحدى الصور، فتُزاح كل الصور الأخرى بالمقدار نفسه.</translation>
    </message>
    <message>
        <source>Time zone: sets the zone that the times are in. Keep the clock time, or let it move with the zone. Photos with a position can each get the zone that they were taken in.</source>
        <translation>المنطقة الزمنية: تحدد المنطقة التي تنتمي إليها الأوقات. يمكن إبقاء وقت الساعة كما هو أو تغييره مع المنطقة. ويمكن للصور التي لها موضع أن تأخذ كلٌّ منها المنطقة التي التُقطت فيها.</translation>
    </message>
    <message>
        <source>The table shows the first photo, the last one, and what becomes another day. Photos without a date are named and left alone. Undo Shift Time takes it back.</source>
        <translation>يعرض الجدول الصورة الأولى والأخيرة وما يتغير يومه. وتُذكر الصور التي بلا تاريخ وتُترك كما هي. ويعيد «التراجع عن إزاحة الوقت» الأوقات السابقة.</translation>
    </message>
    <message>
        <source>Batch Editing</source>
        <translation>التحرير الجماعي</translation>
    </message>
    <message>
        <source>Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to build a selection.</source>
        <translation>يمكن تحديد عدة صور لتحريرها معًا. يحدد ⌘A الكل، ويبني النقر مع ⇧ أو ⌘ تحديدًا.</translation>
    </message>
    <message>
        <source>Choose which fields to apply, set their values, and Quorbel writes them to every selected photo in one pass.</source>
        <translation>تُختار الحقول المطلوب تطبيقها وتُدخل قيمها، فيكتبها Quorbel في كل الصور المحددة دفعة واحدة.</translation>
    </message>
    <message>
        <source>List fields (like keywords) are appended across the selection.</source>
        <translation>تُضاف قيم الحقول المتعددة (مثل الكلمات المفتاحية) إلى كل الصور المحددة.</translation>
    </message>
    <message>
        <source>Quorbel confirms before a mass edit unless you&apos;ve turned that prompt off.</source>
        <translation>يطلب Quorbel التأكيد قبل التحرير الجماعي ما لم يُعطَّل هذا السؤال.</translation>
    </message>
    <message>
        <source>Below the keywords stand those that the selected photos have, with how many have each. Click one to give it to all of them; its cross takes it away from all with the next save.</source>
        <translation>تظهر تحت الكلمات المفتاحية كلمات الصور المحددة مع عدد الصور التي تحمل كلًا منها. النقر على إحداها يضيفها إلى كل الصور، وعلامة × تزيلها من الكل عند الحفظ التالي.</translation>
    </message>
    <message>
        <source>Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 to Alt+9. The name of the set is a menu of all sets.</source>
        <translation>الكلمات المفتاحية السريعة هي آخر ما استُخدم منها، أو مجموعة خاصة: يكفي النقر على إحداها أو ضغط Alt+1 إلى Alt+9. واسم المجموعة قائمة بكل المجموعات.</translation>
    </message>
    <message>
        <source>Copying Fields &amp; Codes</source>
        <translation>نسخ الحقول والرموز</translation>
    </message>
    <message>
        <source>What one photo says can be given to others, and texts that you type often can have short codes.</source>
        <translation>يمكن نقل ما في صورة إلى صور أخرى، ويمكن إعطاء النصوص المتكررة رموزًا قصيرة.</translation>
    </message>
    <message>
        <source>Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit ▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and pastes those that you tick. Nothing is written before you save.</source>
        <translation>يأخذ الأمر تحرير ◂ نسخ الحقول (⌘⇧C) حقول الصورة المحددة كما تظهر. ويعرض الأمر تحرير ◂ لصق الحقول… (⌘⇧V) ما ستحل محله في الصور المحددة، ويلصق ما اختير منها. ولا يُكتب شيء قبل الحفظ.</translation>
    </message>
    <message>
        <source>Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last is there in another window and after a restart, too.</source>
        <translation>الأمر تحرير ◂ لصق الحقول مرة أخرى يلصق بالاختيارات نفسها دون سؤال. ويبقى آخر ما نُسخ متاحًا في نافذة أخرى وبعد إعادة التشغيل أيضًا.</translation>
    </message>
    <message>
        <source>Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.</source>
        <translation>يُختار ملف رموز في الإعدادات: في كل سطر رمز ثم علامة جدولة ثم نصه. بعدها تُكتب =js= في نص أو كلمة مفتاحية فيتحول js إلى نصه. ويعيد تراجع (⌘Z) مرة واحدة الرمز نفسه.</translation>
    </message>
    <message>
        <source>A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…</source>
        <translation>يملأ القالب حقول الصور المحددة بنصوص تكملها كل صورة: «⁨Race %Counter% off %Place|Zürich%⁩». يُنشأ القالب من تحرير ◂ القوالب، أو من صورة عبر الأمر حفظ كقالب…</translation>
    </message>
    <message>
        <source>⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, written when you save.</source>
        <translation>المفاتيح من ⌘1 إلى ⌘9 تطبّق القوالب المرتبطة بها. وما تملؤه هو تعديلات تُكتب عند الحفظ.</translation>
    </message>
    <message>
        <source>Each field is set, set only if it is empty, or gains the text behind or before its own.</source>
        <translation>كل حقل إما أن تُضبط قيمته، أو تُضبط إن كان فارغًا فقط، أو يُضاف النص بعد نصه أو قبله.</translation>
    </message>
    <message>
        <source>Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack the value.</source>
        <translation>تمثّل المتغيّرات ما في الصورة: كل الحقول والكاميرا و%Filename% و%Counter%. النقر المزدوج على أحدها يتيح تحديد صيغة له، مثل d MMMM yyyy، ونص للصور التي تنقصها القيمة.</translation>
    </message>
    <message>
        <source>Each template is a file. Drag one out of the list to pass it on, and drop files in to import them.</source>
        <translation>كل قالب ملف مستقل. سحبه خارج القائمة يتيح مشاركته، وإفلات الملفات فيها يستوردها.</translation>
    </message>
    <message>
        <source>Renaming Files</source>
        <translation>إعادة تسمية الملفات</translation>
    </message>
    <message>
        <source>Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, add token chips and free text, and preview the result before applying.</source>
        <translation>يمكن لبرنامج Quorbel إعادة تسمية الملفات وفق نمط مبني على بياناتها الوصفية. تُضاف في نافذة إعادة التسمية شارات المتغيّرات والنص الحر، وتُعاين النتيجة قبل التطبيق.</translation>
    </message>
    <message>
        <source>Available tokens:</source>
        <translation>المتغيّرات المتاحة:</translation>
    </message>
    <message>
        <source>%Date% — date taken</source>
        <extracomment>Tokens, the words between two % signs, stay as they are in every language.</extracomment>
        <translation>‏%Date% — تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>%Time% — time taken</source>
        <translation>‏%Time% — وقت الالتقاط</translation>
    </message>
    <message>
        <source>%Title% — title</source>
        <translation>‏%Title% — العنوان</translation>
    </message>
    <message>
        <source>%Creator% — creator</source>
        <translation>‏%Creator% — المنشئ</translation>
    </message>
    <message>
        <source>%Place% — place</source>
        <translation>‏%Place% — المكان</translation>
    </message>
    <message>
        <source>%Original% — the original filename</source>
        <translation>‏%Original% — اسم الملف الأصلي</translation>
    </message>
    <message>
        <source>Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept filesystem-safe and unique automatically.</source>
        <translation>مثال: قد ينتج عن %Date%_%Title% الاسم 2026-07-14_Sunset.jpg. وتبقى الأسماء تلقائيًا صالحة لنظام الملفات وغير مكررة.</translation>
    </message>
    <message>
        <source>Several photos get their names together: select them and choose Rename Photos… in the File menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what stands for a missing title, or how a date is written. Names that lack something or were taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in the Edit menu takes all of it back, also after a restart.</source>
        <translation>يمكن تسمية عدة صور معًا: تُحدَّد ثم يُختار «إعادة تسمية الصور…» من قائمة ملف (Shift+F2). يرقّمها %Counter% بترتيب القائمة، ولكل حقل آخر متغيّر باسمه أيضًا، مثل %Headline%، ويحدد %Title|Untitled% أو %Date:yyyyMMdd% ما يحل محل العنوان الناقص أو كيفية كتابة التاريخ. وتُعلَّم الأسماء التي ينقصها شيء أو المستخدمة من قبل. وتُعاد معها تسمية الملفات المرافقة والنسخ الاحتياطية وملف RAW المقترن، ويعيد «التراجع عن إعادة التسمية» في قائمة تحرير كل ذلك، حتى بعد إعادة التشغيل.</translation>
    </message>
    <message>
        <source>Saving &amp; Backups</source>
        <translation>الحفظ والنسخ الاحتياطية</translation>
    </message>
    <message>
        <source>Your edits are written when you Save (⌘S).</source>
        <translation>تُكتب التعديلات عند الحفظ (⌘S).</translation>
    </message>
    <message>
        <source>Originals are backed up before writing (you can turn this off in Settings).</source>
        <translation>تُنسخ الملفات الأصلية احتياطيًا قبل الكتابة (يمكن تعطيل ذلك في الإعدادات).</translation>
    </message>
    <message>
        <source>Quorbel prompts before you switch away with unsaved changes.</source>
        <translation>ينبّه Quorbel قبل الانتقال عند وجود تغييرات غير محفوظة.</translation>
    </message>
    <message>
        <source>Optionally write an XMP sidecar instead of embedding, from Settings.</source>
        <translation>يمكن من الإعدادات اختيار كتابة ملف XMP مرافق بدلًا من التضمين.</translation>
    </message>
    <message>
        <source>Raw Files</source>
        <translation>ملفات RAW</translation>
    </message>
    <message>
        <source>Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or beside it. Beside it, the raw file itself is never written to.</source>
        <translation>يحدد القسم الإعدادات ◂ ملفات RAW أين تُكتب تعديلات صور RAW: في الملف كما في الصور الأخرى، أو بجانبه. وعند الكتابة بجانبه لا يُكتب في ملف RAW نفسه أبدًا.</translation>
    </message>
    <message>
        <source>The words then go to an XMP sidecar, which other programs read and write too. The line under the photo’s name says which file that is. DNG has a choice of its own.</source>
        <translation>تُكتب النصوص عندئذ في ملف XMP مرافق تقرؤه برامج أخرى وتكتب فيه أيضًا. ويذكر السطر تحت اسم الصورة أي ملف هو. ولصيغة DNG خيار خاص بها.</translation>
    </message>
    <message>
        <source>What the sidecar says stands before what the raw file says, field by field. Where the two differ, the field has a mark; click it to see both.</source>
        <translation>ما في الملف المرافق مقدَّم على ما في ملف RAW، حقلًا حقلًا. وحيث يختلفان تظهر علامة على الحقل؛ والنقر عليها يعرض كليهما.</translation>
    </message>
    <message>
        <source>View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, each by its own setting, and renaming takes all files of the shot along.</source>
        <translation>يعرض الأمر عرض ◂ إقران ملفات RAW وJPEG ملفي اللقطة كصورة واحدة. ويُكتب التعديل في كليهما، كلٌّ بحسب إعداده، وتشمل إعادة التسمية كل ملفات اللقطة.</translation>
    </message>
    <message>
        <source>File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for the selected photos. You see first what would change in how many. Undo Save takes it back.</source>
        <translation>ينقل الأمران ملف ◂ كتابة الملفات المرافقة في الصور… وكتابة البيانات الوصفية في الملفات المرافقة… النصوص للصور المحددة. ويظهر أولًا ما سيتغير وفي كم صورة. ويعيد «التراجع عن الحفظ» الوضع السابق.</translation>
    </message>
    <message>
        <source>Develop settings, and whatever else other programs keep in a sidecar, stay as they are.</source>
        <translation>تبقى إعدادات التحميض، وكل ما تحفظه برامج أخرى في الملف المرافق، كما هي.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Open Settings from the Quorbel menu (⌘,) to adjust:</source>
        <translation>تُفتح الإعدادات من قائمة ملف (⁨⌘,⁩) لضبط ما يلي:</translation>
    </message>
    <message>
        <source>Back up originals before saving.</source>
        <translation>نسخ الملفات الأصلية احتياطيًا قبل الحفظ.</translation>
    </message>
    <message>
        <source>Write an XMP sidecar file.</source>
        <translation>كتابة ملف XMP مرافق.</translation>
    </message>
    <message>
        <source>Show namespace details for every field.</source>
        <translation>إظهار تفاصيل مساحات الأسماء لكل حقل.</translation>
    </message>
    <message>
        <source>Confirm before mass edits, and the default rename pattern.</source>
        <translation>التأكيد قبل التحرير الجماعي، والنمط الافتراضي لإعادة التسمية.</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>المواضيع</translation>
    </message>
    <message>
        <source>Quorbel Help</source>
        <translation>مساعدة Quorbel</translation>
    </message>
    <message>
        <source>Drag a folder or image here</source>
        <translation>سحب مجلد أو صورة إلى هنا</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>فتح مجلد…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>فتح صورة…</translation>
    </message>
    <message>
        <source>Open with subfolders</source>
        <extracomment>A switch: a folder that is opened is opened with all folders in it.</extracomment>
        <translation>مع المجلدات الفرعية</translation>
    </message>
    <message>
        <source>Thumbnail only</source>
        <extracomment>Written on a photo of which nothing larger can be shown.</extracomment>
        <translation>صورة مصغّرة فقط</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) selected</source>
        <translation>
            <numerusform>لا صور محددة</numerusform>
            <numerusform>صورة واحدة محددة</numerusform>
            <numerusform>صورتان محددتان</numerusform>
            <numerusform>%n صور محددة</numerusform>
            <numerusform>%n صورة محددة</numerusform>
            <numerusform>%n صورة محددة</numerusform>
        </translation>
    </message>
    <message>
        <source>Preview of %1, thumbnail only</source>
        <extracomment>%1 is the name of a file.</extracomment>
        <translation>معاينة %1، صورة مصغّرة فقط</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>معاينة %1</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were looked at already.</extracomment>
        <translation>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ فحص الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Filling in %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were filled in already: what the program did not know of them yet was read.</extracomment>
        <translation>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ استكمال بيانات الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were read already.</extracomment>
        <translation>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ قراءة الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were renamed already.</extracomment>
        <translation>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ إعادة تسمية الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving %1 of %2 photos…</source>
        <extracomment>%1 of all %2 photos were saved already.</extracomment>
        <translation>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
            <numerusform>جارٍ حفظ الصور: %1 من %2…</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <comment>button: goes on without the file</comment>
        <translation>تخطي</translation>
    </message>
    <message>
        <source>Stuck at %1</source>
        <extracomment>%1 is the name of a file that takes suspiciously long to be read.</extracomment>
        <translation>توقّف عند %1</translation>
    </message>
    <message>
        <source>Looking for photos…</source>
        <translation>جارٍ البحث عن الصور…</translation>
    </message>
    <message>
        <source>Display</source>
        <comment>heading of settings</comment>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>يسري عند بدء التشغيل التالي.</translation>
    </message>
    <message>
        <source>Show namespace details</source>
        <translation>إظهار تفاصيل مساحات الأسماء</translation>
    </message>
    <message>
        <source>Adds the source tags (EXIF / IPTC / XMP) under each field.</source>
        <translation>يعرض وسوم المصدر (EXIF / IPTC / XMP) تحت كل حقل.</translation>
    </message>
    <message>
        <source>Saving</source>
        <comment>heading of settings</comment>
        <translation>الحفظ</translation>
    </message>
    <message>
        <source>Back up original before writing</source>
        <translation>نسخ الملف الأصلي احتياطيًا قبل الكتابة</translation>
    </message>
    <message>
        <source>Confirm before mass-applying to multiple files</source>
        <translation>التأكيد قبل التطبيق الجماعي على عدة ملفات</translation>
    </message>
    <message>
        <source>Also write a sidecar .xmp file</source>
        <translation>كتابة ملف ⁨.xmp⁩ مرافق أيضًا</translation>
    </message>
    <message>
        <source>Mirrors XMP metadata into &lt;name&gt;.xmp next to each image.</source>
        <extracomment>&lt;name&gt; stands for the image&apos;s own.</extracomment>
        <translation>تُنسخ بيانات XMP الوصفية إلى ⁨&lt;name&gt;.xmp⁩ بجانب كل صورة.</translation>
    </message>
    <message>
        <source>Renaming</source>
        <comment>heading of settings</comment>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>Filename pattern</source>
        <translation>نمط اسم الملف</translation>
    </message>
    <message>
        <source>Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept automatically.</source>
        <extracomment>What stands between two % signs is typed like this in every language.</extracomment>
        <translation>المتغيّرات: %Date% %Time% %Title% %Creator% %Place% %Original%. يُحتفظ بالامتداد تلقائيًا.</translation>
    </message>
    <message>
        <source>Strip special characters</source>
        <translation>إزالة الأحرف الخاصة</translation>
    </message>
    <message>
        <source>Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves characters like @ and &apos; in place.</source>
        <translation>الإبقاء على الحروف والأرقام فقط (تُجرَّد الحروف من علاماتها، مثل ⁨Café → Cafe⁩). عند التعطيل تبقى أحرف مثل @ و&apos; كما هي.</translation>
    </message>
    <message>
        <source>Raw files</source>
        <translation>ملفات RAW</translation>
    </message>
    <message>
        <source>Edits of raw photos</source>
        <translation>تعديلات صور RAW</translation>
    </message>
    <message>
        <source>Edits are written into the raw file, as into other photos.</source>
        <translation>تُكتب التعديلات في ملف RAW كما في الصور الأخرى.</translation>
    </message>
    <message>
        <source>The raw file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>يبقى ملف RAW دون تغيير. وتجد البرامج الأخرى النصوص في الملف المرافق.</translation>
    </message>
    <message>
        <source>Edits of DNG photos</source>
        <translation>تعديلات صور DNG</translation>
    </message>
    <message>
        <source>DNG is made to hold metadata, so it is written as other photos are.</source>
        <translation>صيغة DNG مصممة لحمل البيانات الوصفية، لذا تُكتب كما تُكتب الصور الأخرى.</translation>
    </message>
    <message>
        <source>The DNG file stays untouched. Other programs find the words in the sidecar.</source>
        <translation>يبقى ملف DNG دون تغيير. وتجد البرامج الأخرى النصوص في الملف المرافق.</translation>
    </message>
    <message>
        <source>Into the file</source>
        <extracomment>Where edits of raw photos are written: into the photo&apos;s own file, or into a sidecar that lies beside it.</extracomment>
        <translation>في الملف</translation>
    </message>
    <message>
        <source>Beside it</source>
        <translation>بجانبه</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>الكتابة في الملف</translation>
    </message>
    <message>
        <source>Write beside it</source>
        <translation>الكتابة بجانب الملف</translation>
    </message>
    <message>
        <source>Name of new sidecars</source>
        <translation>اسم الملفات المرافقة الجديدة</translation>
    </message>
    <message>
        <source>A sidecar that is already there keeps its name.</source>
        <translation>يحتفظ الملف المرافق الموجود باسمه.</translation>
    </message>
    <message>
        <source>Places</source>
        <comment>heading of settings: towns and sights</comment>
        <translation>الأماكن</translation>
    </message>
    <message>
        <source>Online place service</source>
        <translation>خدمة الأماكن عبر الإنترنت</translation>
    </message>
    <message>
        <source>Empty: places are looked up on this computer alone. With the https address of a Photon-compatible service, what you type in the Place field is sent there; places known here still come first. Takes effect at the next start.</source>
        <translation>إذا تُرك فارغًا، يُبحث عن الأماكن على هذا الحاسوب وحده. وعند إدخال عنوان خدمة متوافقة مع Photon (يبدأ بـ https)، يُرسل إليها ما يُكتب في حقل «المكان»، وتبقى الأماكن المعروفة هنا في المقدمة. يسري عند بدء التشغيل التالي.</translation>
    </message>
    <message>
        <source>Code replacements</source>
        <translation>استبدال الرموز</translation>
    </message>
    <message>
        <source>System</source>
        <comment>appearance: that of the desktop</comment>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <comment>appearance</comment>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <comment>appearance</comment>
        <translation>داكن</translation>
    </message>
    <message>
        <source>High contrast</source>
        <comment>appearance</comment>
        <translation>تباين عالٍ</translation>
    </message>
    <message>
        <source>System</source>
        <comment>language</comment>
        <extracomment>The language of the desktop, in a list of languages.</extracomment>
        <translation>لغة النظام</translation>
    </message>
    <message>
        <source>Not used: this is no https address.</source>
        <translation>غير مستخدم: هذا ليس عنوان https.</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>What a key does: it gives a photo stars.</extracomment>
        <translation>تقييم</translation>
    </message>
    <message>
        <source>In the list of photos</source>
        <translation>في قائمة الصور</translation>
    </message>
    <message>
        <source>Next or previous photo</source>
        <translation>الصورة التالية أو السابقة</translation>
    </message>
    <message>
        <source>A page further or back</source>
        <translation>صفحة إلى الأمام أو إلى الخلف</translation>
    </message>
    <message>
        <source>First or last photo</source>
        <translation>الصورة الأولى أو الأخيرة</translation>
    </message>
    <message>
        <source>Select up to there</source>
        <translation>التحديد حتى ذلك الموضع</translation>
    </message>
    <message>
        <source>Go there without selecting</source>
        <translation>الانتقال دون تحديد</translation>
    </message>
    <message>
        <source>Add to the selection, or take out</source>
        <translation>الإضافة إلى التحديد أو الإزالة منه</translation>
    </message>
    <message>
        <source>Look closely</source>
        <translation>عرض عن قرب</translation>
    </message>
    <message>
        <source>Open in the default application</source>
        <translation>فتح في التطبيق الافتراضي</translation>
    </message>
    <message>
        <source>Find by the beginning of the name</source>
        <translation>البحث ببداية الاسم</translation>
    </message>
    <message>
        <source>Fold or unfold a folder</source>
        <translation>طي مجلد أو بسطه</translation>
    </message>
    <message>
        <source>Fold or unfold all folders</source>
        <translation>طي كل المجلدات أو بسطها</translation>
    </message>
    <message>
        <source>Looking closely</source>
        <translation>عند العرض عن قرب</translation>
    </message>
    <message>
        <source>Next or previous photo, at the same place</source>
        <translation>الصورة التالية أو السابقة، في الموضع نفسه</translation>
    </message>
    <message>
        <source>Every pixel, or the whole photo</source>
        <translation>كل بكسل، أو الصورة كاملة</translation>
    </message>
    <message>
        <source>Larger or smaller</source>
        <translation>تكبير أو تصغير</translation>
    </message>
    <message>
        <source>Move the photo across</source>
        <translation>تحريك الصورة أفقيًا</translation>
    </message>
    <message>
        <source>Move the photo up or down</source>
        <translation>تحريك الصورة عموديًا</translation>
    </message>
    <message>
        <source>In a field</source>
        <translation>في حقل</translation>
    </message>
    <message>
        <source>Show its other languages, or add one</source>
        <translation>إظهار اللغات الأخرى أو إضافة لغة</translation>
    </message>
    <message>
        <source>Hide its other languages</source>
        <translation>إخفاء اللغات الأخرى</translation>
    </message>
    <message>
        <source>In the keywords</source>
        <translation>في الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Add what was typed</source>
        <translation>إضافة ما كُتب</translation>
    </message>
    <message>
        <source>From the entry to the last keyword</source>
        <translation>من خانة الإدخال إلى آخر كلمة مفتاحية</translation>
    </message>
    <message>
        <source>Take that keyword away</source>
        <translation>إزالة تلك الكلمة المفتاحية</translation>
    </message>
    <message>
        <source>On the stars</source>
        <translation>على النجوم</translation>
    </message>
    <message>
        <source>One star more or fewer</source>
        <translation>نجمة أكثر أو أقل</translation>
    </message>
    <message>
        <source>While searching</source>
        <translation>أثناء البحث</translation>
    </message>
    <message>
        <source>Go to what was found</source>
        <translation>الانتقال إلى ما عُثر عليه</translation>
    </message>
    <message>
        <source>Show all photos again</source>
        <translation>إظهار كل الصور من جديد</translation>
    </message>
    <message>
        <source>In a sheet</source>
        <translation>في نافذة حوار</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>This folder does not report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>لا يبلّغ هذا المجلد عن التغييرات؛ يفحصه %1 كل بضع ثوانٍ.</translation>
    </message>
    <message>
        <source>Not all of these folders report changes; %1 looks every few seconds.</source>
        <extracomment>%1 is the program.</extracomment>
        <translation>لا تبلّغ كل هذه المجلدات عن التغييرات؛ يفحصها %1 كل بضع ثوانٍ.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %2 folders report changes. Refresh to see what changed in the others.</source>
        <extracomment>Of %2 folders, only %1 do.</extracomment>
        <translation>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
            <numerusform>المجلدات التي تبلّغ عن التغييرات: %1 من %2 فقط. يُظهر «تحديث» ما تغيّر في البقية.</numerusform>
        </translation>
    </message>
    <message>
        <source>Refresh folder</source>
        <translation>تحديث المجلد</translation>
    </message>
    <message>
        <source>Show preview</source>
        <translation>إظهار المعاينة</translation>
    </message>
    <message>
        <source>Hide preview</source>
        <translation>إخفاء المعاينة</translation>
    </message>
    <message>
        <source>Back up originals before writing</source>
        <translation>نسخ الملفات الأصلية احتياطيًا قبل الكتابة</translation>
    </message>
    <message>
        <source>Also write sidecar .xmp</source>
        <translation>كتابة ملف ⁨.xmp⁩ مرافق أيضًا</translation>
    </message>
    <message>
        <source>Left as they are, because they could not be read: %1</source>
        <translation>تُركت كما هي لتعذّر قراءتها: %1</translation>
    </message>
    <message>
        <source>keeps changing</source>
        <translation>يتغيّر باستمرار</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>لا يوجد ملف كهذا</translation>
    </message>
    <message>
        <source>ExifTool told nothing of it</source>
        <translation>لم يذكر ExifTool شيئًا عنه</translation>
    </message>
    <message>
        <source>Could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>تعذّرت القراءة (%1)</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Some fields could not be read (%1)</source>
        <extracomment>%1 is the reason: &quot;took too long&quot;</extracomment>
        <translation>تعذّرت قراءة بعض الحقول (%1)</translation>
    </message>
    <message>
        <source>Some fields could not be read</source>
        <translation>تعذّرت قراءة بعض الحقول</translation>
    </message>
    <message>
        <source>“Some fields could not be read” stands under a photo’s name where that is so. Until Try again has read them, they cannot be edited: what nobody has seen is not written over.</source>
        <translation>تظهر عبارة «تعذّرت قراءة بعض الحقول» تحت اسم الصورة حين يحدث ذلك. وإلى أن تُقرأ هذه الحقول بعد الضغط على «إعادة المحاولة» لا يمكن تعديلها: فلا يُكتب فوق ما لم يره أحد.</translation>
    </message>
</context>
</TS>
