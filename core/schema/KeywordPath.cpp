#include "core/schema/KeywordPath.h"

#include "core/text/Text.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace Quorbel::KeywordPath {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar bar = u'|';

QString joined(const QStringList& parts)
{
    QStringList elements;
    for (const QString& part : parts)
        if (const QString element = Text::trimmedWithNewlines(part); !element.isEmpty())
            elements.append(element);
    return elements.join(bar);
}

// A bar within an element would look like two of them.
bool hasBar(const QStringList& elements)
{
    return std::any_of(
        elements.cbegin(), elements.cend(), [](const QString& element) { return element.contains(bar); });
}

}  // namespace

const QList<Home>& homes()
{
    static const QList<Home> all{
        { u"XMP-digiKam:TagsList"_s, u'/', true },
        { u"XMP-lr:HierarchicalSubject"_s, bar, true },
        { u"XMP-microsoft:LastKeywordXMP"_s, u'/', false },
        { u"XMP-mediapro:CatalogSets"_s, bar, false },
    };
    return all;
}

QString treeTag()
{
    return u"XMP-acdsee:Categories"_s;
}

QStringList elements(const QString& path)
{
    return path.split(bar, Qt::SkipEmptyParts);
}

QString keyword(const QString& path)
{
    return path.sliced(path.lastIndexOf(bar) + 1);
}

QString parents(const QString& path)
{
    return path.first(qMax<qsizetype>(0, path.lastIndexOf(bar)));
}

QString shown(const QString& path)
{
    return elements(path).join(u" ▸ "_s);
}

std::optional<QString> fromTyped(const QString& text)
{
    static const QRegularExpression between(uR"(\||\s>\s)"_s);
    const QString path = joined(text.split(between));
    return path.contains(bar) ? std::optional(path) : std::nullopt;
}

QString fromStored(const Home& home, const QString& item)
{
    const QStringList parts = item.split(home.separator);
    return hasBar(parts) ? QString() : joined(parts);
}

std::optional<QString> stored(const Home& home, const QString& path)
{
    if (home.separator != bar && path.contains(home.separator))
        return std::nullopt;
    return elements(path).join(home.separator);
}

QStringList inTree(const QString& text)
{
    QStringList paths;
    QStringList open;
    QList<bool> assigned;
    QXmlStreamReader xml(text);
    const auto close = [&] {
        if (!assigned.isEmpty() && assigned.takeLast())
            if (const QString path = joined(open); !path.isEmpty() && !hasBar(open) && !paths.contains(path))
                paths.append(path);
        if (!open.isEmpty())
            open.removeLast();
    };
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (xml.name() == u"Category") {
                open.append(QString());
                assigned.append(xml.attributes().value(u"Assigned"_s) == u"1");
            }
            break;
        case QXmlStreamReader::Characters:
            if (!open.isEmpty())
                open.last() += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            if (xml.name() == u"Category")
                close();
            break;
        default:
            break;
        }
    }
    return paths;
}

}  // namespace Quorbel::KeywordPath
