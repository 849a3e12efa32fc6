// The homes of fields in sidecars, and their table in the documentation.
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"

#include <QFile>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

QString inCell(const QStringList& tags)
{
    QStringList quoted;
    for (const QString& tag : tags)
        quoted.append(u'`' + tag + u'`');
    return quoted.join(u"<br>"_s);
}

// The rows under the heading, as they stand.
QStringList documented()
{
    QFile page(QStringLiteral(QUORBEL_FIELDS_PAGE));
    QStringList rows;
    if (!page.open(QIODevice::ReadOnly))
        return rows;
    const QString text = QString::fromUtf8(page.readAll());
    for (const QString& line : text.section(u"## In a sidecar"_s, 1, 1).section(u"\n## "_s, 0, 0).split(u'\n'))
        if (line.startsWith(u"| "_s) && !line.startsWith(u"| In a sidecar"_s))
            rows.append(line);
    return rows;
}

}  // namespace

class tst_SidecarSchema : public QObject {
    Q_OBJECT

private slots:
    void tableOfHomes();
    void everyHomeIsOfXmp();
    void emptiedTagsHaveDefinitions();
};

void tst_SidecarSchema::tableOfHomes()
{
    QStringList rows;
    for (const FieldSpec& one : FieldSchema::all()) {
        const FieldSpec& field = *SidecarSchema::spec(one.id);
        const bool isPosition = field.kind == FieldKind::coordinates;
        const QStringList written =
            isPosition ? QStringList{ u"XMP-exif:GPSLatitude"_s, u"XMP-exif:GPSLongitude"_s } : field.writeTags;
        const QStringList read = isPosition ? field.readTags.first(1) : field.readTags;
        rows.append(u"| %1 | %2 | %3 |"_s.arg(field.label, inCell(written), inCell(read)));
    }
    QCOMPARE(documented(), rows);
}

// What stands nowhere in XMP would be lost without a word.
void tst_SidecarSchema::everyHomeIsOfXmp()
{
    for (const FieldSpec& field : SidecarSchema::everyField()) {
        QVERIFY2(!field.writeTags.isEmpty() || field.kind == FieldKind::coordinates, qPrintable(field.id));
        for (const QString& tag : field.writeTags)
            QVERIFY2(tag.startsWith(u"XMP-"_s), qPrintable(tag));
        QCOMPARE(field.languageTag(), FieldSchema::spec(field.id)->languageTag());
    }
}

void tst_SidecarSchema::emptiedTagsHaveDefinitions()
{
    const QString definitions = SidecarSchema::definitions();
    for (const FieldSpec& field : SidecarSchema::everyField()) {
        const QList<Assignment> emptied = SidecarSchema::emptied(field);
        QVERIFY2(!emptied.isEmpty(), qPrintable(field.id));
        for (const Assignment& assignment : emptied) {
            const QString plain = SidecarSchema::plainTag(assignment.tag);
            const bool isTyped = plain != assignment.tag;
            // The kinds that the tool refuses to store without a value.
            const bool mustBe = field.kind == FieldKind::date || field.kind == FieldKind::coordinates
                || field.kind == FieldKind::number || field.kind == FieldKind::rating || field.id == u"urgency";
            QVERIFY2(isTyped == mustBe, qPrintable(assignment.tag));
            if (isTyped)
                QVERIFY2(definitions.contains(u"  %1 => { }"_s.arg(plain.section(u':', 1))), qPrintable(plain));
        }
    }
}

QTEST_GUILESS_MAIN(tst_SidecarSchema)
#include "tst_SidecarSchema.moc"
