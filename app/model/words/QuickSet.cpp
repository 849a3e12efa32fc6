#include "app/model/words/QuickSet.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Quorbel::QuickSets {

using namespace Qt::StringLiterals;

QString toText(const QList<QuickSet>& sets)
{
    QJsonArray all;
    for (const QuickSet& set : sets)
        all.append(QJsonObject{ { u"name"_s, set.name }, { u"keywords"_s, QJsonArray::fromStringList(set.keywords) } });
    return QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
}

QList<QuickSet> fromText(const QString& text)
{
    QList<QuickSet> sets;
    for (const auto& entry : QJsonDocument::fromJson(text.toUtf8()).array()) {
        QuickSet set{ entry[u"name"_s].toString(), entry[u"keywords"_s].toVariant().toStringList() };
        set.keywords.removeAll(QString());
        set.keywords.removeDuplicates();
        const auto isItsName = [&set](const QuickSet& other) { return other.name == set.name; };
        if (!set.name.isEmpty() && std::none_of(sets.cbegin(), sets.cend(), isItsName))
            sets.append(set);
    }
    return sets;
}

QStringList used(const QStringList& now, const QStringList& before, qsizetype most)
{
    QStringList all = now + before;
    all.removeAll(QString());
    all.removeDuplicates();
    return all.mid(0, most);
}

QStringList placed(const QStringList& used, const QStringList& shown)
{
    QStringList places;
    for (const QString& keyword : used)
        if (!shown.contains(keyword))
            places.append(keyword);
    for (const QString& keyword : shown)
        if (used.contains(keyword))
            places.append(keyword);
    return places;
}

}  // namespace Quorbel::QuickSets
